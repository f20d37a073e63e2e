#pragma once

#include <layout/tree.hpp>

#include <base/optional.hpp>

#include <string>
#include <string_view>
#include <vector>

/// The access key of an invoice: 44 characters that repeat what the invoice says elsewhere.
namespace kivo::erp::v12::layout {

/// Something in a key that cannot be right.
struct key_fault {
    enum class kind {
        missing,     ///< there is no key
        form,        ///< not 44 characters, or others than digits and the letters of a CNPJ
        check_digit, ///< the last digit is not that of the characters before it
        part,        ///< a part is not what the invoice says in its element
    };

    kind is;
    std::string element;   ///< whose text the key has there, below infNFe: `ide/nNF`
    std::string in_key;    ///< what the key has there; of a whole key, the key
    std::string elsewhere; ///< what it should have there

    bool operator==(const key_fault&) const = default;
};

/// The key of an invoice, without the letters before it; empty where it has none.
std::string_view key_of(const node& infnfe);

/// The check digit of the first 43 characters of a key; absent where they are of no key.
core::v7::optional<char> key_check_digit(std::string_view first_characters);

/// What cannot be right in the key of an invoice. An element that is not there is not missed.
std::vector<key_fault> key_faults(const node& infnfe);

} // namespace kivo::erp::v12::layout
