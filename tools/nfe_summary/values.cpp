#include "values.hpp"

#include <layout/text.hpp>

#include <fmt/format.h>

#include <algorithm>
#include <charconv>

namespace nfe_summary {

namespace layout = kivo::erp::v12::layout;

namespace {

constexpr std::size_t most_places = 15;             // of a decimal
constexpr std::int64_t one = 1'000'000'000'000'000; // in units of the last place

/// `-1234.5` as `-1.234,50`.
std::string in_brazilian_form(std::string_view text, std::size_t places) {
    if (text.empty()) {
        return "";
    }
    const std::size_t point = std::min(text.find('.'), text.size());
    std::string whole(text.substr(0, point));
    for (std::size_t place = 3, first = whole.starts_with('-') ? 1 : 0;
         whole.size() > first + place; place += 4) {
        whole.insert(whole.size() - place, 1, '.');
    }
    std::string decimals(text.substr(std::min(point + 1, text.size())));
    while (decimals.size() > places && decimals.ends_with('0')) {
        decimals.pop_back();
    }
    decimals.resize(std::max(decimals.size(), places), '0');
    return decimals.empty() ? whole : whole + ',' + decimals;
}

/// `AAAA-MM-DD`, and what may follow, as `DD/MM/AAAA`.
std::string day_first(std::string_view text) {
    return text.empty() ? ""
                        : fmt::format("{2}/{1}/{0}", text.substr(0, 4), text.substr(5, 2),
                                      text.substr(8, 2));
}

/// Puts a text into a pattern whose # stand for its characters; a text of another length stays.
std::string punctuated(std::string_view text, std::string_view pattern) {
    std::string result;
    std::size_t used = 0;
    for (const char character : pattern) {
        if (character != '#') {
            result += character;
        } else if (used < text.size()) {
            result += text[used++];
        } else {
            return std::string(text);
        }
    }
    return used == text.size() ? result : std::string(text);
}

} // namespace

std::string amount(const fiscal::decimal& value, std::size_t places) {
    return in_brazilian_form(layout::text_of(value).value_or(""), places);
}

std::string amount(const optional<fiscal::decimal>& value, std::size_t places) {
    return value ? amount(*value, places) : "";
}

std::string plain(const fiscal::decimal& value) { return layout::text_of(value).value_or(""); }

std::string plain(const optional<fiscal::decimal>& value) { return value ? plain(*value) : ""; }

std::string quantity(const fiscal::decimal& value) { return amount(value, 0); }

void decimal_sum::add(const fiscal::decimal& value) {
    const std::string text = plain(value);
    const std::size_t point = std::min(text.find('.'), text.size());
    std::string digits = text.substr(0, point);
    std::string decimals = text.substr(std::min(point + 1, text.size()));
    decimals.resize(most_places, '0');
    std::int64_t whole = 0;
    std::int64_t fraction = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), whole);
    std::from_chars(decimals.data(), decimals.data() + decimals.size(), fraction);
    parts_[0] += digits.starts_with('-') ? -fraction : fraction;
    parts_[1] += whole % one;
    parts_[2] += whole / one;
    carry();
    empty_ = false;
}

void decimal_sum::add(const optional<fiscal::decimal>& value) {
    if (value) {
        add(*value);
    }
}

void decimal_sum::add(const decimal_sum& other) {
    for (std::size_t place = 0; place < parts_.size(); ++place) {
        parts_[place] += other.parts_[place];
    }
    carry();
    empty_ = empty_ && other.empty_;
}

/// Brings all parts but the highest, which alone has a sign, into their range.
void decimal_sum::carry() {
    for (std::size_t place = 0; place + 1 < parts_.size(); ++place) {
        const std::int64_t over = parts_[place] / one - (parts_[place] % one < 0 ? 1 : 0);
        parts_[place] -= over * one;
        parts_[place + 1] += over;
    }
}

std::string decimal_sum::text() const { return in_brazilian_form(plain_text(), 2); }

std::string decimal_sum::plain_text() const {
    if (empty_) {
        return "";
    }
    constexpr std::size_t least_places = 2;
    decimal_sum size = *this;
    const bool negative = parts_.back() < 0;
    if (negative) {
        for (std::int64_t& part : size.parts_) {
            part = -part;
        }
        size.carry();
    }
    const auto [decimals, whole, beyond] = size.parts_;
    std::string text = negative ? "-" : "";
    text += beyond == 0 ? fmt::format("{}.{:015}", whole, decimals)
                        : fmt::format("{}{:015}.{:015}", beyond, whole, decimals);
    const std::size_t end =
        std::max(text.find_last_not_of('0') + 1, text.find('.') + 1 + least_places);
    return text.substr(0, end);
}

std::string day(const optional<fiscal::date>& value) {
    return day_first((value ? layout::text_of(*value) : std::nullopt).value_or(""));
}

std::string time(const optional<fiscal::datetime>& value) {
    const std::string text = (value ? layout::text_of(*value) : std::nullopt).value_or("");
    return time_text(text);
}

std::string time_text(const std::string& text) {
    constexpr std::size_t size = 25; // AAAA-MM-DDThh:mm:ss-03:00
    return text.size() != size
               ? text
               : joined({day_first(text), text.substr(11, 8), text.substr(19)}, " ");
}

std::string day_in(const std::string& text) { return text.substr(0, text.find(' ')); }

std::string hour_in(const std::string& text) {
    const std::size_t space = text.find(' ');
    return space == text.npos ? "" : text.substr(space + 1, text.find(' ', space + 1) - space - 1);
}

std::string key(std::string_view text) {
    return punctuated(text, "#### #### #### #### #### #### #### #### #### #### ####");
}

std::string cnpj_text(const optional<fiscal::cnpj>& number) {
    const std::string text = (number ? layout::text_of(*number) : std::nullopt).value_or("");
    return punctuated(text, "##.###.###/####-##");
}

std::string cpf_text(std::string_view number) { return punctuated(number, "###.###.###-##"); }

std::string id_text(std::string_view characters) {
    constexpr std::size_t person = 11;
    return characters.size() == person ? cpf_text(characters)
                                       : punctuated(characters, "##.###.###/####-##");
}

std::string postal_code(std::string_view digits) { return punctuated(digits, "#####-###"); }

std::string postal_code(const fiscal::endereco& place) {
    const auto code = place.get_cep();
    return code ? postal_code(layout::text_of(*code, layout::digits(8)).value_or("")) : "";
}

std::string phone(std::string_view digits) {
    constexpr std::size_t mobile = 11;
    return punctuated(digits, digits.size() == mobile ? "(##) #####-####" : "(##) ####-####");
}

std::string street(const fiscal::endereco& place) {
    return joined({place.get_logradouro(), place.get_numero_endereco(),
                   place.get_complemento().value_or("")});
}

std::string address(const fiscal::endereco& place) {
    return joined(
        {street(place), place.get_bairro(),
         joined({postal_code(place), joined({place.get_nome_municipio(), place.get_uf()}, " - ")},
                " "),
         place.get_pais().value_or("")});
}

} // namespace nfe_summary
