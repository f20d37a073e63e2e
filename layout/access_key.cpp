#include <layout/access_key.hpp>

#include <algorithm>
#include <array>
#include <cstddef>

namespace kivo::erp::v12::layout {

namespace {

constexpr std::size_t without_check_digit = 43;
constexpr std::size_t issuer_begin = 6;
constexpr std::size_t issuer_size = 14; // of which a CNPJ may have letters in the first 12

/// A part of the key, in their order.
struct key_part {
    const char* element;
    std::size_t begin;
    std::size_t size;
};
constexpr std::array parts{
    key_part{"ide/cUF", 0, 2},
    key_part{"ide/dhEmi", 2, 4}, // year and month
    key_part{"emit/CNPJ", issuer_begin, issuer_size},
    key_part{"ide/mod", 20, 2},
    key_part{"ide/serie", 22, 3},
    key_part{"ide/nNF", 25, 9},
    key_part{"ide/tpEmis", 34, 1},
    key_part{"ide/cNF", 35, 8},
};

bool has_key_characters(std::string_view text) {
    for (std::size_t index = 0; index < text.size(); ++index) {
        const char character = text[index];
        const bool letters = index >= issuer_begin && index < issuer_begin + issuer_size - 2;
        if (!(character >= '0' && character <= '9') &&
            !(letters && character >= 'A' && character <= 'Z')) {
            return false;
        }
    }
    return true;
}

/// Tells where a part of the key is not the text of its element.
void compare(const key_part& part, std::string_view key, const node& infnfe,
             std::vector<key_fault>& faults) {
    std::string element = part.element;
    const node* found = child_at(infnfe, element);
    if (found == nullptr && element == "emit/CNPJ") {
        element = "emit/CPF";
        found = child_at(infnfe, element);
    }
    if (found == nullptr) {
        return;
    }
    std::string wanted(found->text);
    if (element == "ide/dhEmi") { // AAAA-MM-
        wanted = found->text.size() < 8 ? "" : std::string(found->text.substr(2, 5)).erase(2, 1);
    }
    wanted.insert(0, part.size - std::min(part.size, wanted.size()), '0');
    const std::string_view in_key = key.substr(part.begin, part.size);
    if (in_key != wanted) {
        faults.push_back({key_fault::kind::part, element, std::string(in_key), wanted});
    }
}

} // namespace

std::string_view key_of(const node& infnfe) {
    std::string_view key = text_at(infnfe, "@Id");
    key.remove_prefix(key.starts_with("NFe") ? 3 : 0);
    return key;
}

core::v7::optional<char> key_check_digit(std::string_view first_characters) {
    if (first_characters.size() != without_check_digit || !has_key_characters(first_characters)) {
        return {};
    }
    int sum = 0;
    int weight = 2;
    for (std::size_t index = first_characters.size(); index-- > 0;) {
        sum += (first_characters[index] - '0') * weight;
        weight = weight == 9 ? 2 : weight + 1;
    }
    const int remainder = sum % 11;
    return static_cast<char>('0' + (remainder < 2 ? 0 : 11 - remainder));
}

std::vector<key_fault> key_faults(const node& infnfe) {
    const std::string_view key = key_of(infnfe);
    if (key.empty()) {
        return {{key_fault::kind::missing, "@Id", "", ""}};
    }
    if (key.size() != without_check_digit + 1 || !has_key_characters(key)) {
        return {{key_fault::kind::form, "@Id", std::string(key), ""}};
    }
    std::vector<key_fault> faults;
    for (const key_part& part : parts) {
        compare(part, key, infnfe, faults);
    }
    const char right = key_check_digit(key.substr(0, without_check_digit)).value_or('\0');
    if (right != key.back()) {
        faults.push_back({key_fault::kind::check_digit, "ide/cDV", std::string(1, key.back()),
                          std::string(1, right)});
    }
    return faults;
}

} // namespace kivo::erp::v12::layout
