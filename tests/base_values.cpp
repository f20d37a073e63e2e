#include <fiscal/types.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>

namespace kivo::tests {

using erp::v12::cnpj;
using erp::v12::cpf;
using erp::v12::fiscal::date;
using erp::v12::fiscal::datetime;
using erp::v12::fiscal::decimal;

// A record holds many of these; their size and their copies are what a copy of it costs.
template <class Value>
concept one_word = sizeof(Value) == 8 && std::is_trivially_copyable_v<Value>;
static_assert(one_word<decimal> && one_word<date> && one_word<datetime> && one_word<cnpj> &&
              one_word<cpf>);

/// Whether the compiler makes a value of such arguments.
template <class Value, class... Arguments>
concept made_of = requires(Arguments... arguments) {
    Value::make(arguments...);
};
static_assert(made_of<decimal, int, unsigned> && made_of<decimal, long, short>);
static_assert(made_of<date, int, std::uint8_t, long long> && made_of<date, long, int, unsigned>);
static_assert(made_of<datetime, date, int, unsigned, long, datetime::utc_offset>);
// 42.90 would be 42, and what does not fit would be another number
static_assert(!made_of<decimal, double, int> && !made_of<decimal, int, float>);
static_assert(!made_of<decimal, std::uint64_t, int> && !made_of<decimal, int, std::uint64_t>);
static_assert(!made_of<date, double, int, int> && !made_of<date, int, std::uint64_t, int> &&
              !made_of<date, int, int, float>);
static_assert(!made_of<datetime, date, double, int, int, datetime::utc_offset> &&
              !made_of<datetime, date, int, std::uint64_t, int, datetime::utc_offset> &&
              !made_of<datetime, date, int, int, float, datetime::utc_offset>);

template <class Value> int read(Value& value, std::string_view text) {
    return core::v7::value_converter<Value>::make_value(value, text.data(), text.size());
}

template <class Value> Value value_of(std::string_view text) {
    Value value;
    EXPECT_EQ(read(value, text), 0) << text;
    return value;
}

template <class Value> std::string text_of(Value value) {
    char buffer[40];
    std::size_t length = sizeof buffer;
    const int result = core::v7::chars_converter<Value>::make_chars(buffer, length, value);
    return result == 0 ? std::string(buffer, length) : "result " + std::to_string(result);
}

/// Texts that are read, and written again as they were, into a buffer that is just large enough.
template <class Value> void expect_round_trips(std::initializer_list<std::string_view> rows) {
    for (const std::string_view row : rows) {
        const auto value = value_of<Value>(row);
        EXPECT_EQ(text_of(value), row);

        std::string buffer(row.size() + 1, '.');
        std::size_t length = row.size() - 1;
        EXPECT_EQ(core::v7::chars_converter<Value>::make_chars(buffer.data(), length, value), 1);
        EXPECT_EQ(length, row.size()) << "the size that is needed";
        EXPECT_EQ(buffer, std::string(row.size() + 1, '.')) << "nothing is written";
        EXPECT_EQ(core::v7::chars_converter<Value>::make_chars(buffer.data(), length, value), 0);
        EXPECT_EQ(buffer, std::string(row) + '.') << "no terminating zero";
    }
}

/// Texts that are refused and leave the value as it was. Each good text is tried with something
/// before, behind and inside it too.
template <class Value>
void expect_refusals(std::string_view good, std::initializer_list<std::string_view> rows) {
    const auto before = value_of<Value>(good);
    auto value = before;
    const auto expect_refused = [&](std::string_view text) {
        EXPECT_EQ(read(value, text), 3) << text;
        EXPECT_EQ(value, before) << text;
    };
    for (const std::string_view row : rows) {
        expect_refused(row);
    }
    const std::string text(good);
    for (const char added : {' ', '\n', '\t', '+', 'x', ',', '\0'}) {
        expect_refused(added + text);
        expect_refused(text + added);
        expect_refused(text.substr(0, 1) + added + text.substr(1));
    }
}

// Catches a lost zero, sign or decimal place, and a limit that is off by one.
TEST(base_values, decimal) {
    expect_round_trips<decimal>({"0", "7", "-7", "1234.56", "1.50", "-0.5", "0.00", "0.05",
                                 "10.000", "0.000000000000001", "-0.000000000000001",
                                 "99.999999999999999", "-99.999999999999999", "99999999999999999",
                                 "-99999999999999999"});
    expect_refusals<decimal>("1234.56", {"",
                                         "-",
                                         ".",
                                         "-.",
                                         ".5",
                                         "5.",
                                         "-.5",
                                         "1.2.3",
                                         "1..2",
                                         "--1",
                                         "1-",
                                         "1e3",
                                         "1,5",
                                         "0x10",
                                         "\xD9\xA1",
                                         "100000000000000000",
                                         "-100000000000000000",
                                         "12345678901234567.0",
                                         "0.0000000000000001",
                                         "18446744073709551617",
                                         "99999999999999999999999999999999999999"});
    EXPECT_EQ(text_of(value_of<decimal>("007.50")), "7.50") << "leading zeros say nothing";
    EXPECT_EQ(text_of(value_of<decimal>("0000000000000000000000000001")), "1");
    EXPECT_EQ(text_of(value_of<decimal>("-0.00")), "0.00");
    using to_decimal = core::v7::value_converter<decimal>;
    for (const char* const text : {"0", "7", "0.50", "1234.56"}) {
        EXPECT_TRUE(to_decimal::gives_back(text)) << text << " is written as it was read";
    }
    for (const char* const text : {"00", "007.50", "0000000000000000000000000001", "-0.00"}) {
        EXPECT_FALSE(to_decimal::gives_back(text)) << text << " is written otherwise";
    }
}

// Catches a comparison of scales, and one that overflows while it makes them alike.
TEST(base_values, decimals_compare_as_numbers) {
    EXPECT_EQ(value_of<decimal>("1.50"), value_of<decimal>("1.5"));
    EXPECT_EQ(value_of<decimal>("0.000"), decimal());
    EXPECT_EQ(value_of<decimal>("-10.0"), value_of<decimal>("-10"));
    EXPECT_NE(value_of<decimal>("1.5"), value_of<decimal>("15"));
    EXPECT_NE(value_of<decimal>("1.5"), value_of<decimal>("-1.5"));
    EXPECT_NE(value_of<decimal>("10"), value_of<decimal>("1"));
    EXPECT_NE(value_of<decimal>("99999999999999999"), value_of<decimal>("0.000000000000001"));
    // 2 to the power of 49, which times 10 to the power of 15 is 0 in 64 bits
    EXPECT_NE(value_of<decimal>("562949953421312"), value_of<decimal>("0.000000000000000"));
}

// Catches a limit of the parts that is off by one.
TEST(base_values, decimals_are_made_of_coefficient_and_scale) {
    const auto price = decimal::make(-1050, 2).value();
    EXPECT_EQ(text_of(price), "-10.50");
    EXPECT_EQ(price.coefficient(), -1050);
    EXPECT_EQ(price.scale(), 2U);
    EXPECT_TRUE(decimal::make(decimal::max_coefficient, 15));
    EXPECT_TRUE(decimal::make(-decimal::max_coefficient, 0));
    EXPECT_FALSE(decimal::make(decimal::max_coefficient + 1, 0));
    EXPECT_FALSE(decimal::make(-decimal::max_coefficient - 1, 0));
    EXPECT_FALSE(decimal::make(0, 16));
}

// Catches an overflow in a check, and an argument that is cut off before it is checked.
TEST(base_values, are_not_made_of_what_does_not_fit) {
    constexpr std::int64_t one_of_32_bits = 1 + (std::int64_t(1) << 32);
    using limits = std::numeric_limits<std::int64_t>;
    for (const std::int64_t end :
         {limits::min(), -one_of_32_bits, std::int64_t(-1), one_of_32_bits, limits::max()}) {
        EXPECT_FALSE(decimal::make(1, end)) << end;
        EXPECT_FALSE(date::make(end, 1, 1)) << end;
        EXPECT_FALSE(date::make(2026, end, 1)) << end;
        EXPECT_FALSE(date::make(2026, 1, end)) << end;
        const date day = date::make(2026, 11, 24).value();
        EXPECT_FALSE(datetime::make(day, end, 0, 0, {})) << end;
        EXPECT_FALSE(datetime::make(day, 0, end, 0, {})) << end;
        EXPECT_FALSE(datetime::make(day, 0, 0, end, {})) << end;
    }
    EXPECT_FALSE(decimal::make(limits::min(), 0));
    EXPECT_FALSE(decimal::make(limits::max(), 0));
    const auto with_offset = [](unsigned hours, unsigned minutes) {
        return datetime::make(date::make(2026, 11, 24).value(), 8, 30, 15, {true, hours, minutes});
    };
    constexpr unsigned largest = std::numeric_limits<unsigned>::max();
    for (const unsigned end : {largest, largest / 60 + 1, largest - 59}) {
        EXPECT_FALSE(with_offset(end, 0)) << end;
        EXPECT_FALSE(with_offset(0, end)) << end;
        EXPECT_FALSE(with_offset(end, end)) << end;
    }
    EXPECT_TRUE(with_offset(14, 0));
    EXPECT_FALSE(with_offset(14, 1));
}

// Catches a wrong leap year and a month's end that is off by one.
TEST(base_values, date) {
    expect_round_trips<date>({"0001-01-01", "9999-12-31", "2024-02-29", "2000-02-29", "2026-02-28",
                              "2026-01-31", "2026-03-31", "2026-04-30", "2026-05-31", "2026-06-30",
                              "2026-07-31", "2026-08-31", "2026-09-30", "2026-10-31", "2026-11-30",
                              "2026-12-31"});
    expect_refusals<date>("2026-11-24",
                          {"",           "0000-01-01", "2026-00-10", "2026-13-10", "2026-11-00",
                           "2026-11-31", "2026-04-31", "2026-06-31", "2026-09-31", "2026-01-32",
                           "2025-02-29", "1900-02-29", "2100-02-29", "2024-02-30", "2026-1-24",
                           "26-11-24",   "2026/11/24", "24-11-2026", "2026-11-2x", "-026-11-24",
                           "20261124"});
    EXPECT_EQ(text_of(date()), "result 3") << "no date has no text";
    EXPECT_EQ(date::make(2026, 11, 24), value_of<date>("2026-11-24"));
    EXPECT_EQ(value_of<date>("2026-11-24").day(), 24U);
}

// Catches a lost offset or its sign, and a limit that is off by one.
TEST(base_values, datetime) {
    expect_round_trips<datetime>({"2026-11-24T08:30:15-03:00", "0001-01-01T00:00:00+00:00",
                                  "9999-12-31T23:59:59+14:00", "2026-11-24T23:59:59-14:00",
                                  "2026-11-24T00:00:00-00:00", "2024-02-29T12:00:00-04:30"});
    expect_refusals<datetime>(
        "2026-11-24T08:30:15-03:00",
        {"", "2026-11-24", "2026-11-24T08:30:15", "2026-11-24T08:30:15Z",
         "2026-11-24 08:30:15-03:00", "2026-11-24T24:00:00-03:00", "2026-11-24T08:60:15-03:00",
         "2026-11-24T08:30:60-03:00", "2026-11-24T08:30:15-14:01", "2026-11-24T08:30:15+15:00",
         "2026-11-24T08:30:15-03:60", "2026-02-29T08:30:15-03:00", "2026-11-24T08:30:15.5-03:00",
         "2026-11-24T08-30-15-03:00", "2026-11-24T08:30:15 03:00", "2026-11-24T08:30:15-03-00",
         "2026-11-24T0x:30:15-03:00"});
    EXPECT_EQ(text_of(datetime()), "result 3") << "no time has no text";
    EXPECT_EQ(datetime().offset(), datetime::utc_offset()) << "nothing is UTC";
    EXPECT_NE(value_of<datetime>("2026-11-24T12:00:00-03:00"),
              value_of<datetime>("2026-11-24T15:00:00+00:00"))
        << "the offset is part of the value";
    for (const char* const other :
         {"2026-11-25T08:30:15-03:45", "2026-11-24T09:30:15-03:45", "2026-11-24T08:31:15-03:45",
          "2026-11-24T08:30:16-03:45", "2026-11-24T08:30:15+03:45", "2026-11-24T08:30:15-04:45",
          "2026-11-24T08:30:15-03:44"}) {
        EXPECT_NE(value_of<datetime>("2026-11-24T08:30:15-03:45"), value_of<datetime>(other));
    }
    const auto time = value_of<datetime>("2026-11-24T08:30:15-03:45");
    EXPECT_EQ(time.day(), value_of<date>("2026-11-24"));
    EXPECT_EQ(datetime::make(time.day(), 8, 30, 15, {true, 3, 45}), time);
    EXPECT_EQ(time.hour() * 10000 + time.minute() * 100 + time.second(), 83015U);
}

// Catches a wrong weight, a letter worth the wrong number and an unchecked digit.
TEST(base_values, cnpj) {
    expect_round_trips<cnpj>({"11222333000181", "00000000000191", "12ABC34501DE35",
                              "99317482000175", "K7M2P9R4000120", "ZZZZZZZZZZZZ62"});
    expect_refusals<cnpj>("12ABC34501DE35",
                          {"", "12abc34501de35", "12ABC34501DE36", "12ABC34501DE45",
                           "12ABC34501DE3", "12ABC34501DE350", "12ABC34501DEA5", "12ABC34501DE3A",
                           "21ABC34501DE35", "11222333000182", "11222333000191", "00000000000000",
                           "11.222.333/0001-81", "1122233300018", "[2ABC34501DE35",
                           "@2ABC34501DE35", ":2ABC34501DE35"});
    EXPECT_EQ(text_of(cnpj()), "result 3") << "no number has no text";
}

TEST(base_values, cpf) {
    expect_round_trips<cpf>({"52998224725", "11144477735", "00000000191", "27182818205"});
    expect_refusals<cpf>("52998224725",
                         {"", "52998224726", "52998224735", "25998224725", "5299822472",
                          "529982247250", "529.982.247-25", "00000000000", "11111111111",
                          "99999999999", "5299822472A"});
    EXPECT_EQ(text_of(cpf()), "result 3") << "no number has no text";
}

} // namespace kivo::tests
