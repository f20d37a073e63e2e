#include "language.hpp"

#include "content.hpp"
#include "platform.hpp"

#include <fmt/args.h>
#include <libintl.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <vector>

namespace nfe_summary {

namespace {

constexpr const char* domain = "nfe_summary";

std::string variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

/// The language that the environment asks for, as gettext would find it; but no locale of that
/// language has to be on the machine.
std::string language_of_environment() {
    std::string locale;
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        locale = locale.empty() ? variable(name) : locale;
    }
    if (locale == "C" || locale == "POSIX") {
        return "en";
    }
    std::string list = variable("LANGUAGE");
    while (!list.empty()) {
        std::string first = list.substr(0, list.find(':'));
        if (first.starts_with("pt") || first.starts_with("en")) {
            return first;
        }
        list.erase(0, first.size() + 1);
    }
    return locale.empty() ? platform::language_of_settings() : locale;
}

/// Where the translations stand, beside the program wherever that is.
std::string translations() {
    std::error_code error;
    const std::filesystem::path folder = platform::program().parent_path();
    const std::filesystem::path installed = folder.parent_path() / "share" / "locale";
    const bool found =
        std::filesystem::exists(installed / "pt_BR" / "LC_MESSAGES" / "nfe_summary.mo", error);
    return file_name_of(found ? installed : folder / "locale");
}

} // namespace

void choose_language(const std::string& language) {
    const std::string chosen = language.empty() ? language_of_environment() : language;
    platform::translate_into(chosen.starts_with("pt") ? "pt_BR" : "en");
    bindtextdomain(domain, translations().c_str());
    bind_textdomain_codeset(domain, "UTF-8");
    textdomain(domain);
}

const char* tr(const char* text) { return gettext(text); }

namespace {

/// What the companion and the system say; {} is a name, a text, a number, or another of these.
/// The first that fits is taken, so that those with most words of their own come first.
constexpr std::array messages{
    // files
    mark("No such file or directory"),
    mark("Permission denied"),
    mark("Is a directory"),
    mark("Not a directory"),
    mark("Input/output error"),
    mark("Too many levels of symbolic links"),
    mark("File name too long"),
    mark("No space left on device"),
    mark("Too many open files"),
    // documents
    mark("not an XML document: {}"),
    mark("not an NF-e or NFC-e: no {} in {}"),
    mark("not an NF-e or NFC-e: the document is {}"),
    mark("{} (line {}, column {})"),
    mark("no such character or entity"),
    mark("a byte is not Windows-1252, as it declares"),
    mark("half a character at its end"),
    mark("half a character in UTF-16"),
    mark("its encoding {} is none that is read"),
    mark("a byte is not UTF-8, or a control character"),
    mark("elements are nested too deeply for an invoice"),
    mark("an element has two attributes {}"),
    mark("more than one element at its root"),
    mark("no element in it"),
    mark("{}: a character that XML cannot hold, or a byte that is not UTF-8"),
    mark("Could not determine tag type"),
    mark("Error parsing document declaration/processing instruction"),
    mark("Error parsing comment"),
    mark("Error parsing CDATA section"),
    mark("Error parsing document type declaration"),
    mark("Error parsing PCDATA section"),
    mark("Error parsing start element tag"),
    mark("Error parsing element attribute"),
    mark("Error parsing end element tag"),
    mark("Start-end tags mismatch"),
    mark("No document element found"),
    // paths and texts
    mark("{}: named twice"),
    mark("{}: no number in brackets"),
    mark("{}: an element without a name"),
    mark("{}: number {} without those before it"),
    // refused texts
    mark("a decimal number such as 1234.56, of at most 17 digits, 15 of them decimal places"),
    mark("a date of the calendar, AAAA-MM-DD"),
    mark("a date and time with its offset, AAAA-MM-DDThh:mm:ss-03:00"),
    mark("a CNPJ, 14 characters with their check digits"),
    mark("a CNPJ, 14 characters; those of one repeated digit are not issued"),
    mark("a CPF, 11 digits with their check digits"),
    mark("a CPF, 11 digits; those of one repeated digit are not issued"),
    mark("a code of the layout"),
    mark("a text that is not empty"),
    mark("{} and a text behind it"),
    mark("a whole number up to {}"),
    mark("behind those that the layout has before it"),
    // what the layout demands
    mark("{}; or {}"),
    mark("{}, none beyond U+00FF, no blank at either end"),
    mark("{}, none beyond U+00FF, no blanks"),
    mark("a whole number from {} to {}, no zeros in front"),
    mark("a whole number from {}, no zeros in front"),
    mark("{}; below 1, {}"),
    mark("up to {} without zeros in front, above 0, then {}"),
    mark("up to {} without zeros in front, not a bare 0, then {}"),
    mark("up to {} without zeros in front, then {}"),
    mark("a number up to {} without zeros in front, above 0, then {}"),
    mark("a number up to {} without zeros in front, not a bare 0, then {}"),
    mark("a number up to {} without zeros in front, then {}"),
    mark("a point and {}, or no point"),
    mark("a date from 2000 to 2099, AAAA-MM-DD"),
    mark("date and time from 2000 to 2099, AAAA-MM-DDThh:mm:ss and an offset in whole hours from "
         "-11:00 to +12:00"),
    mark("year and month, AAMM"),
    mark("year and month from 2025 on, AAAA-MM"),
    mark("month and year from 2000 to 2999, MM/AAAA"),
    mark("{} bytes in base64"),
    mark("bytes in base64"),
    mark("no such attribute in {}"),
    mark("no such element in {}"),
    mark("no such attribute beside a text"),
    mark("no such element beside a text"),
    mark("elements alone"),
    mark("a number that no other {} has"),
    mark("at most {} digits"),
    mark("at most {}"),
    mark("not beside {}"),
    mark("beside {}: {}"),
    mark("one of {}"),
    mark("before {}"),
    mark("behind {}"),
    mark("a group"),
    mark("nothing"),
    mark("{}, {}"),
    mark("1 digit or capital letter"),
    mark("{} digits or capital letters"),
    mark("1 capital letter"),
    mark("{} capital letters"),
    mark("1 hexadecimal digit"),
    mark("{} hexadecimal digits"),
    mark("{} digits or letters from A to F"),
    mark("1 digit"),
    mark("{} digits"),
    mark("1 character"),
    mark("{} characters"),
    mark("{} of {}"),
    mark("{} with {}"),
    mark("{} to {}"),
    mark("{} or {}"),
};

/// What stands in the braces of a pattern; absent where a message does not fit it.
std::optional<std::vector<std::string_view>> fit(std::string_view message,
                                                 std::string_view pattern) {
    std::vector<std::string_view> found;
    for (;;) {
        const std::size_t brace = pattern.find("{}");
        const std::string_view words = pattern.substr(0, brace);
        if (!message.starts_with(words)) {
            return {};
        }
        message.remove_prefix(words.size());
        if (brace == pattern.npos) {
            return message.empty() ? std::optional(found) : std::nullopt;
        }
        pattern.remove_prefix(brace + 2);
        const std::string_view behind = pattern.substr(0, pattern.find("{}"));
        const std::size_t end =
            behind.empty() ? message.size()
            : pattern == behind
                ? (message.ends_with(behind) ? message.size() - behind.size() : message.npos)
                : message.find(behind);
        if (end == message.npos || end == 0) {
            return {};
        }
        found.push_back(message.substr(0, end));
        message.remove_prefix(end);
    }
}

} // namespace

std::string translated(std::string_view message) {
    if (message.empty() || (message.front() == '"' && message.find('"', 1) == message.size() - 1)) {
        return std::string(message); // a text of the document
    }
    for (const char* const pattern : messages) {
        if (const auto found = fit(message, pattern)) {
            fmt::dynamic_format_arg_store<fmt::format_context> arguments;
            for (const std::string_view part : *found) {
                arguments.push_back(translated(part));
            }
            return fmt::vformat(tr(pattern), arguments);
        }
    }
    return std::string(message);
}

} // namespace nfe_summary
