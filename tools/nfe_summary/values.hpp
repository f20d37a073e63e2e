#pragma once

#include "text.hpp"

#include <fiscal/endereco.hpp>
#include <fiscal/types.hpp>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

/// Values as a person in Brazil reads them. What has no text, such as a date never set, is empty.
namespace nfe_summary {

namespace fiscal = kivo::erp::v12::fiscal;

/// `1.234,56`, from the digits of the value: at least so many decimal places, and more only where
/// they are not zero.
std::string amount(const fiscal::decimal& value, std::size_t places = 2);
std::string amount(const optional<fiscal::decimal>& value, std::size_t places = 2);

/// `1234.56`, as the document has it.
std::string plain(const fiscal::decimal& value);
std::string plain(const optional<fiscal::decimal>& value);

/// A quantity: `12`, `0,5`.
std::string quantity(const fiscal::decimal& value);

/// The exact sum of decimal numbers.
class decimal_sum {
public:
    void add(const fiscal::decimal& value);
    void add(const optional<fiscal::decimal>& value);

    void add(const decimal_sum& other);

    /// The sum as an amount; empty when nothing was added.
    std::string text() const;
    /// The same as a plain number: `1234.50`.
    std::string plain_text() const;

private:
    void carry();

    bool empty_ = true;
    std::array<std::int64_t, 3> parts_ = {}; // of 15 decimal digits each, the lowest first
};

/// `12/08/2026`.
std::string day(const optional<fiscal::date>& value);

/// The layout's text of a date and time as `12/08/2026 13:45:10 -03:00`; another text stays.
std::string time_text(const std::string& text);

/// `12/08/2026 13:45:10 -03:00`.
std::string time(const optional<fiscal::datetime>& value);

/// The day and the time of day in what time_text makes.
std::string day_in(const std::string& text);
std::string hour_in(const std::string& text);

/// An access key in groups of four.
std::string key(std::string_view text);

std::string cnpj_text(const optional<fiscal::cnpj>& number);
std::string cpf_text(std::string_view number);

/// A CNPJ or CPF from its characters; another number stays.
std::string id_text(std::string_view characters);

/// `86010-140`; another text stays.
std::string postal_code(std::string_view digits);
std::string postal_code(const fiscal::endereco& place);

/// `(43) 3333-1207`; another number stays.
std::string phone(std::string_view digits);

/// Street, number and complement.
std::string street(const fiscal::endereco& place);

/// Street, number, complement, district, postal code, city, state and country in one text.
std::string address(const fiscal::endereco& place);

} // namespace nfe_summary
