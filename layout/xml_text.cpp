#include <layout/xml_text.hpp>

#include <pugixml.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <vector>

namespace kivo::erp::v12::layout {

namespace {

// far deeper than any invoice, far from the end of the stack
constexpr std::size_t deepest = 100;

[[noreturn]] void refuse(const std::string& reason) {
    throw std::runtime_error("not an XML document: " + reason);
}

bool is_xml_character(char32_t character) {
    return character >= 0x20
               ? character <= 0xD7FF || (character >= 0xE000 && character <= 0xFFFD) ||
                     (character >= 0x10000 && character <= 0x10FFFF)
               : character == '\t' || character == '\n' || character == '\r';
}

void append_utf8(std::string& text, char32_t character) {
    const auto add = [&](char32_t byte) { text += static_cast<char>(byte); };
    const auto add_rest = [&](unsigned shift) { add(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) {
        add(character);
    } else if (character < 0x800) {
        add(0xC0 | (character >> 6));
        add_rest(0);
    } else if (character < 0x10000) {
        add(0xE0 | (character >> 12));
        add_rest(6);
        add_rest(0);
    } else {
        add(0xF0 | (character >> 18));
        add_rest(12);
        add_rest(6);
        add_rest(0);
    }
}

/// Reads one character of UTF-8; 0 where there is none.
char32_t take_character(const char*& at, const char* end) {
    const auto first = static_cast<unsigned char>(*at);
    const int more = first < 0x80 ? 0 : first < 0xE0 ? 1 : first < 0xF0 ? 2 : 3;
    constexpr std::array<char32_t, 4> smallest{0, 0x80, 0x800, 0x10000};
    if ((first >= 0x80 && first < 0xC2) || first > 0xF4 || end - at <= more) {
        return 0;
    }
    char32_t character = more == 0 ? first : first & (0x3FU >> more);
    for (int index = 1; index <= more; ++index) {
        const auto next = static_cast<unsigned char>(at[index]);
        if ((next & 0xC0) != 0x80) {
            return 0;
        }
        character = (character << 6) | (next & 0x3FU);
    }
    at += more + 1;
    return character < smallest[static_cast<std::size_t>(more)] ? 0 : character;
}

constexpr std::size_t block = 32;

/// Whether so many bytes are ASCII, and none of them one that XML does not have.
bool is_plain(const char* bytes) {
    unsigned char others = 0; // without a branch: the compiler looks at many bytes at once
    for (std::size_t index = 0; index < block; ++index) {
        const auto byte = static_cast<signed char>(bytes[index]); // of other characters: below 0
        const unsigned char below = byte < 0x20 ? 0xFF : 0;
        const unsigned char line_end = byte == '\n' ? 0xFF : 0;
        others = static_cast<unsigned char>(others | (below ^ line_end));
    }
    return others == 0;
}

/// Whether a text is nothing but XML's characters in UTF-8.
bool is_xml_utf8(std::string_view text) {
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end) {
        const bool whole = static_cast<std::size_t>(end - at) >= block;
        if (whole && is_plain(at)) {
            at += block;
            continue;
        }
        for (const char* const stop = whole ? at + block : end; at < stop;) {
            const auto byte = static_cast<unsigned char>(*at);
            if (byte >= 0x20 && byte < 0x80) {
                ++at;
            } else if (!is_xml_character(take_character(at, end))) {
                return false;
            }
        }
    }
    return true;
}

/// The encoding that an XML declaration names, in capitals; empty where it names none.
std::string declared_encoding(std::string_view xml) {
    if (!xml.starts_with("<?xml")) {
        return {};
    }
    const std::string_view declaration = xml.substr(0, xml.find("?>"));
    std::size_t begin = declaration.find("encoding");
    begin = begin == declaration.npos ? begin : declaration.find_first_of("\"'", begin);
    if (begin == declaration.npos) {
        return {};
    }
    const std::size_t end = declaration.find(declaration[begin], begin + 1);
    std::string name(declaration.substr(begin + 1, end - begin - 1));
    for (char& letter : name) {
        letter = static_cast<char>(letter >= 'a' && letter <= 'z' ? letter - 'a' + 'A' : letter);
    }
    return name;
}

/// What the bytes from 0x80 to 0x9F are in Windows-1252; 0: nothing.
constexpr std::array<char16_t, 32> windows_1252{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

std::string from_one_byte(std::string_view xml, bool windows) {
    std::string result;
    for (const char byte : xml) {
        const auto code = static_cast<unsigned char>(byte);
        const bool differs = windows && code >= 0x80 && code < 0xA0;
        const char32_t character = differs ? windows_1252[code - 0x80U] : code;
        if (character == 0) {
            refuse("a byte is not Windows-1252, as it declares");
        }
        append_utf8(result, character);
    }
    return result;
}

std::string from_utf16(std::string_view xml, bool big_endian) {
    std::string result;
    char32_t high = 0; // the first half of a pair
    for (std::size_t index = 0; index < xml.size(); index += 2) {
        if (index + 1 == xml.size()) {
            refuse("half a character at its end");
        }
        const auto first = static_cast<unsigned char>(xml[index]);
        const auto second = static_cast<unsigned char>(xml[index + 1]);
        const char32_t unit = big_endian ? first * 256U + second : second * 256U + first;
        if ((unit & 0xFC00) == 0xD800 && high == 0) {
            high = unit;
        } else if (((unit & 0xFC00) == 0xDC00) != (high != 0)) {
            refuse("half a character in UTF-16");
        } else {
            append_utf8(result,
                        high == 0 ? unit : 0x10000 + ((high & 0x3FF) << 10) + (unit & 0x3FF));
            high = 0;
        }
    }
    return result;
}

/// The document in UTF-8, checked; `converted` holds it where it was something else.
std::string_view in_utf8(std::string_view xml, std::string& converted) {
    const bool big_endian = xml.starts_with("\xFE\xFF");
    if (big_endian || xml.starts_with("\xFF\xFE")) {
        converted = from_utf16(xml.substr(2), big_endian);
        xml = converted;
    } else {
        xml.remove_prefix(xml.starts_with("\xEF\xBB\xBF") ? 3 : 0);
        const std::string encoding = declared_encoding(xml);
        const bool windows = encoding == "WINDOWS-1252" || encoding == "CP1252";
        if (windows || encoding == "ISO-8859-1" || encoding == "LATIN1") {
            converted = from_one_byte(xml, windows);
            xml = converted;
        } else if (!encoding.empty() && encoding != "UTF-8" && encoding != "UTF8" &&
                   encoding != "US-ASCII" && encoding != "ASCII") {
            refuse("its encoding " + encoding + " is none that is read");
        }
    }
    if (!is_xml_utf8(xml)) {
        refuse("a byte is not UTF-8, or a control character");
    }
    return xml;
}

std::string line_and_column(std::string_view xml, std::size_t offset) {
    const std::string_view before = xml.substr(0, offset);
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const std::string_view on_line = before.substr(before.rfind('\n') + 1);
    const auto column = std::count_if(on_line.begin(), on_line.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; // characters, not bytes
    });
    return "line " + std::to_string(line) + ", column " + std::to_string(column + 1);
}

bool is_reference(std::string_view name) {
    if (!name.starts_with('#')) {
        constexpr std::array known{"amp", "lt", "gt", "quot", "apos"};
        return std::find(known.begin(), known.end(), name) != known.end();
    }
    const bool hexadecimal = name.starts_with("#x");
    const std::string_view digits = name.substr(hexadecimal ? 2 : 1);
    std::uint32_t code = 0;
    const auto [stop, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), code, hexadecimal ? 16 : 10);
    return error == std::errc() && stop == digits.data() + digits.size() && is_xml_character(code);
}

/// The parser takes an ampersand that begins no reference for a character, and control characters
/// by their numbers.
void check_references(std::string_view xml) {
    if (xml.find('&') == xml.npos) {
        return;
    }
    for (std::size_t at = 0; (at = xml.find_first_of("&<", at)) != xml.npos; ++at) {
        const std::string_view rest = xml.substr(at);
        if (xml[at] == '&') {
            if (!is_reference(rest.substr(1, rest.find(';') - 1))) {
                refuse("no such character or entity (" + line_and_column(xml, at) + ')');
            }
        } else if (rest.starts_with("<![CDATA[")) {
            at = std::min(xml.find("]]>", at), xml.size() - 1);
        } else if (rest.starts_with("<!--")) {
            at = std::min(xml.find("-->", at), xml.size() - 1);
        }
    }
}

bool is_namespace(std::string_view attribute) {
    return attribute == "xmlns" || attribute.starts_with("xmlns:") || attribute.starts_with("xsi:");
}

/// Whether names may have prefixes: one is declared.
bool declares_prefix(std::string_view xml) {
    std::size_t colon = xml.find(':'); // rarer than any character before it
    while (colon != xml.npos && !xml.substr(0, colon).ends_with("xmlns")) {
        colon = xml.find(':', colon + 1);
    }
    return colon != xml.npos;
}

/// Moves a parsed document into a tree. Texts lie in the buffer that was parsed.
class tree_maker final : public pugi::xml_tree_walker {
public:
    /// `xml` is the document, and `buffer` where it was parsed.
    tree_maker(tree& result, std::string_view xml, const char* buffer)
        : result_(&result), xml_(xml), buffer_(buffer), prefixed_(declares_prefix(xml)) {}

    bool for_each(pugi::xml_node& found) override {
        const auto level = static_cast<std::size_t>(depth()); // that of the root is 0
        if (level >= deepest) {
            throw std::runtime_error("elements are nested too deeply for an invoice");
        }
        const std::size_t index = result_->size();
        const std::size_t parent = level == 0 ? index : last_[level - 1];
        const char* const name = found.name();
        if (*name == '\0') {
            pieces_.push_back({parent, found.value()});
            return true;
        }
        last_[level] = index;
        const char* const text = found.value(); // not in the buffer where there is none
        const char* const colon = prefixed_ ? std::strchr(name, ':') : nullptr;
        const element_name own = element_name::in_buffer(colon == nullptr ? name : colon + 1);
        result_->add_below(index - parent, own,
                           *text == '\0' ? std::string_view() : text_in_buffer(text));
        if (may_have_attributes(own)) {
            for (pugi::xml_attribute attribute = found.first_attribute(); !attribute.empty();
                 attribute = attribute.next_attribute()) {
                add(found, attribute, result_->size() - index);
            }
        }
        return true;
    }

    bool end(pugi::xml_node&) override {
        std::stable_sort(pieces_.begin(), pieces_.end(), [](const piece& left, const piece& right) {
            return left.element < right.element;
        });
        for (auto first = pieces_.begin(); first != pieces_.end();) {
            std::string_view& text = result_->text_at(first->element);
            std::string whole(text);
            auto next = first;
            for (; next != pieces_.end() && next->element == first->element; ++next) {
                whole += next->text;
            }
            text = result_->keep(whole);
            first = next;
        }
        result_->measure();
        return true;
    }

private:
    /// A text behind another element, a comment or the like.
    struct piece {
        std::size_t element;
        std::string_view text;
    };

    /// Few elements have one, and to ask the parser takes longer.
    bool may_have_attributes(std::string_view name) const {
        return xml_[static_cast<std::size_t>(name.data() + name.size() - buffer_)] != '>';
    }

    void add(const pugi::xml_node& element, const pugi::xml_attribute& attribute, std::size_t up) {
        const std::string_view name = attribute.name();
        if (element.attribute(attribute.name()) != attribute) {
            refuse("an element has two attributes " + std::string(name));
        }
        if (!is_namespace(name)) {
            char* const kept = result_->place(name.size() + 1);
            *kept = '@';
            std::copy(name.begin(), name.end(), kept + 1);
            result_->add_below(up, std::string_view(kept, name.size() + 1), attribute.value());
        }
    }

    tree* result_;
    std::string_view xml_;
    const char* buffer_;
    bool prefixed_;
    std::array<std::size_t, deepest> last_{}; // the last element of each level
    std::vector<piece> pieces_;
};

} // namespace

tree parse_xml(std::string_view xml) {
    std::string converted;
    xml = in_utf8(xml, converted);
    check_references(xml);

    tree result;
    constexpr std::size_t padding = 8; // see text_in_buffer
    char* const buffer = result.place(xml.size() + padding);
    std::fill_n(std::copy(xml.begin(), xml.end(), buffer), padding, '\0');
    pugi::xml_document parsed;
    // a text of spaces alone is a text; a fragment may have two roots, which are refused below
    const unsigned options = pugi::parse_default | pugi::parse_ws_pcdata_single |
                             pugi::parse_embed_pcdata | pugi::parse_fragment;
    const pugi::xml_parse_result outcome =
        parsed.load_buffer_inplace(buffer, xml.size(), options, pugi::encoding_utf8);
    if (!outcome) {
        refuse(std::string(outcome.description()) + " (" +
               line_and_column(xml, static_cast<std::size_t>(outcome.offset)) + ')');
    }
    pugi::xml_node root;
    for (const pugi::xml_node& child : parsed.children()) {
        const std::string_view text = child.value();
        if (child.type() == pugi::node_element ? !root.empty() : !text.empty()) {
            refuse("more than one element at its root");
        }
        root = child;
    }
    if (root.empty()) {
        refuse("no element in it");
    }
    // the parser overwrites the last character, and so loses one that stands alone
    if (xml[xml.find_last_not_of(" \t\r\n")] != '>') {
        refuse("a text behind its root");
    }
    result.expect(xml.size() / 32);
    tree_maker maker(result, xml, buffer);
    parsed.traverse(maker);
    return result;
}

namespace {

/// Which characters stand otherwise in XML.
constexpr std::array<bool, 256> escaped_characters = [] {
    std::array<bool, 256> result{};
    for (const char character : {'&', '<', '>', '\r'}) {
        result[static_cast<unsigned char>(character)] = true;
    }
    return result;
}();

constexpr bool is_escaped(char character, bool attribute) {
    return escaped_characters[static_cast<unsigned char>(character)] ||
           (attribute && (character == '"' || character == '\t' || character == '\n'));
}

/// A document that grows. Room is made for a whole element at once.
class xml_writer {
public:
    xml_writer() { text_.resize(4096); }

    std::string take() {
        text_.resize(used_);
        return std::move(text_);
    }

    void add(const node& element) {
        const node* inner = &element + 1;
        const node* const end = &element + element.size;
        make_room(3 * element.name.text().size() + longest * element.text.size());
        put('<');
        put_name(element.name);
        for (; inner != end && inner->name.is_attribute(); ++inner) {
            make_room(inner->name.text().size() + longest * inner->text.size());
            put(' ');
            put(inner->name.text().substr(1));
            put("=\"");
            put_escaped(inner->text, true);
            put('"');
        }
        put('>');
        put_escaped(element.text, false);
        for (; inner != end; inner += inner->size) {
            add(*inner);
        }
        make_room(element.name.text().size());
        put("</");
        put_name(element.name);
        put('>');
    }

    void declare() {
        make_room(0);
        put(R"(<?xml version="1.0" encoding="UTF-8"?>)");
    }

private:
    static constexpr std::size_t longest = 6; // reference to a character

    void make_room(std::size_t size) {
        constexpr std::size_t signs = 64; // and the declaration
        if (text_.size() - used_ < size + signs) {
            text_.resize(2 * text_.size() + size + signs);
        }
    }

    void put(char character) { text_[used_++] = character; }
    void put(std::string_view part) {
        std::memcpy(text_.data() + used_, part.data(), part.size());
        used_ += part.size();
    }

    void put_name(const element_name& name) {
        used_ = static_cast<std::size_t>(name.put(text_.data() + used_) - text_.data());
    }

    void put_escaped(std::string_view part, bool attribute) {
        char* at = text_.data() + used_;
        for (const char character : part) {
            if (is_escaped(character, attribute)) {
                const std::string_view instead = reference(character);
                at = std::copy(instead.begin(), instead.end(), at);
            } else {
                *at++ = character;
            }
        }
        used_ = static_cast<std::size_t>(at - text_.data());
    }

    static std::string_view reference(char character) {
        switch (character) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        case '"':
            return "&quot;";
        case '\t':
            return "&#9;";
        case '\n':
            return "&#10;";
        default:
            return "&#13;";
        }
    }

    std::string text_;
    std::size_t used_ = 0;
};

} // namespace

std::string xml_text(const node& root) {
    xml_writer writer;
    writer.declare();
    writer.add(root);
    std::string result = writer.take();
    if (!is_xml_utf8(result)) {
        for (const node* element = &root; element != &root + root.size; ++element) {
            if (!is_xml_utf8(element->text)) {
                throw std::runtime_error(path_teller(root)(*element) +
                                         ": a character that XML cannot hold, or a byte that is "
                                         "not UTF-8");
            }
        }
    }
    return result;
}

} // namespace kivo::erp::v12::layout
