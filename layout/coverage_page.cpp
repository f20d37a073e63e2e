// Writes docs/coverage.md: the layout map as a page for users.

#include <layout/coverage.hpp>

#include <algorithm>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <stdexcept>
#include <tuple>
#include <utility>

namespace {

using namespace kivo::erp::v12::layout;

using texts = std::vector<std::string>;

std::string code(std::string_view text) { return '`' + std::string(text) + '`'; }

std::string joined(const texts& parts, std::string_view separator) {
    std::string result;
    for (const std::string& part : parts) {
        result += (result.empty() ? "" : std::string(separator)) + part;
    }
    return result;
}

void add_once(texts& parts, const std::string& part) {
    if (std::find(parts.begin(), parts.end(), part) == parts.end()) {
        parts.push_back(part);
    }
}

texts split(const std::string& path) {
    texts result;
    std::istringstream input(path);
    for (std::string name; std::getline(input, name, '/');) {
        result.push_back(name);
    }
    return result;
}

/// Several paths as one, if they differ in one name alone: `a/{b, c}/d`.
std::optional<std::string> merged(const texts& paths) {
    const texts first = split(paths.front());
    for (std::size_t differing = 0; differing < first.size(); ++differing) {
        texts names;
        const bool same = std::all_of(paths.begin(), paths.end(), [&](const std::string& path) {
            texts parts = split(path);
            if (parts.size() != first.size()) {
                return false;
            }
            std::swap(parts[differing], names.emplace_back(first[differing]));
            return parts == first;
        });
        if (same) {
            texts parts = first;
            parts[differing] = names.size() == 1 ? names[0] : '{' + joined(names, ", ") + '}';
            return joined(parts, "/");
        }
    }
    return {};
}

std::string in_one(const texts& paths) {
    if (const auto one = merged(paths)) {
        return code(*one);
    }
    texts marked;
    for (const std::string& path : paths) {
        marked.push_back(code(path));
    }
    return joined(marked, "<br>");
}

std::string accessors(const place& field) {
    std::string_view name = field.getter;
    name.remove_prefix(name.starts_with("get_") ? 4 : 0);
    return code(field.getter) + (field.setter.substr(4) == name ? "" : "<br>" + code(field.setter));
}

std::string holds(const place& field) {
    if (field.standing == place::kind::position) {
        return "its place in the list";
    }
    const std::string choice = field.alternative + (field.alternative.empty() ? "" : ": ");
    const std::string times = field.times == place::count::optional ? "optional "
                              : field.times == place::count::list   ? "list of "
                                                                    : "";
    return choice + times + code(field.type);
}

/// All places of one field, or of one alternative of a choice.
struct row {
    place field; ///< in the first of the places
    texts paths;
    texts layout;
    texts differences;
};

using element_map = std::map<std::string, layout_element>;

std::vector<row> rows_of(const std::vector<place>& fields, const element_map& elements) {
    std::vector<row> result;
    std::map<std::tuple<std::string_view, std::string_view, std::string>, std::size_t> known;
    for (const place& field : fields) {
        const layout_element& element = elements.at(field.path);
        const auto [found, is_new] =
            known.emplace(std::tuple(field.owner, field.getter, holds(field)), result.size());
        if (is_new) {
            result.push_back({field, {}, {}, {}});
        }
        row& merged = result[found->second];
        add_once(merged.paths, field.path);
        add_once(merged.layout, field.standing == place::kind::inside
                                    ? "no element of its own"
                                    : element.occurs + ", " + element.content);
        for (const std::string& difference : differences(field, element)) {
            add_once(merged.differences, difference);
        }
    }
    return result;
}

/// The places that disagree with their elements on absence, by the way in which they do.
void write_absence(const std::vector<place>& fields, const element_map& elements) {
    std::vector<std::pair<std::string, texts>> ways; // in the order in which they are met
    for (const place& field : fields) {
        const std::string way = absence(field, elements.at(field.path));
        if (!way.empty()) {
            auto found = std::find_if(ways.begin(), ways.end(),
                                      [&](const auto& known) { return known.first == way; });
            if (found == ways.end()) {
                found = ways.insert(ways.end(), {way, {}});
            }
            add_once(found->second, field.path);
        }
    }
    for (const auto& [way, paths] : ways) {
        std::cout << "\n- " << way << ':';
        texts together;
        for (std::size_t index = 0; index < paths.size(); ++index) {
            together.push_back(paths[index]);
            texts with_next = together;
            if (index + 1 == paths.size() ||
                (with_next.push_back(paths[index + 1]), !merged(with_next))) {
                std::cout << "\n  - " << in_one(together);
                together.clear();
            }
        }
    }
    std::cout << '\n';
}

void write_table(const std::set<std::string>& classes, const std::vector<row>& rows) {
    std::cout << "\n| Element | Class | Accessor | Holds | Layout | Where they differ |\n"
                 "|---|---|---|---|---|---|\n";
    for (const row& merged : rows) {
        if (classes.contains(std::string(merged.field.owner))) {
            std::cout << "| " << in_one(merged.paths) << " | " << code(merged.field.owner) << " | "
                      << accessors(merged.field) << " | " << holds(merged.field) << " | "
                      << joined(merged.layout, "<br>") << " | " << joined(merged.differences, "; ")
                      << " |\n";
        }
    }
}

void write_page(const std::vector<layout_element>& elements, std::istream& subsystems) {
    element_map by_path;
    for (const layout_element& element : elements) {
        by_path.emplace(element.path, element);
    }
    std::vector<place> fields;
    std::vector<place> no_elements;
    std::vector<place> outside;
    std::set<std::string_view> classes;
    std::set<std::pair<std::string_view, std::string_view>> pairs;
    const std::vector<place> all_places = places();
    for (const place& found : all_places) {
        if (found.standing != place::kind::none && !by_path.contains(found.path)) {
            throw std::runtime_error("the layout has no element " + found.path);
        }
        (found.standing == place::kind::none      ? no_elements
         : found.standing == place::kind::outside ? outside
                                                  : fields)
            .push_back(found);
        if (found.standing != place::kind::outside) {
            classes.insert(found.owner);
            pairs.emplace(found.owner, found.getter);
        }
    }

    std::cout
        << R"(# What the library holds of the layout

`./dev coverage-page` makes this page from the layout map (`layout/*.hpp`) and the layout's own list
of elements (`layout/elements.txt`), and the tests compare it: change those, not this page.

The library follows the layout of NF-e and NFC-e 4.00 in the release PL_010 v1.30. )"
        << classes.size() << " classes\nwith " << pairs.size()
        << R"( accessor pairs hold the content of `infNFe`. Paths begin below `infNFe`; `@` marks an attribute.

- [Elements without a field](#elements-without-a-field)
- [Elements that a writer fills in](#elements-that-a-writer-fills-in)
- [Fields without an element](#fields-without-an-element)
- [Absence](#absence)
- [Widths and forms](#widths-and-forms)
- [Order](#order)
- [What reading reports](#what-reading-reports)
- [Every field](#every-field)

## Elements without a field

A group stands for all that is in it. Beside `infNFe`, the classes hold nothing of `infNFeSupl` (the
QR code of an NFC-e), of `Signature`, and of `protNFe`.

| Element | Occurs | Content |
|---|---|---|
)";
    for (const layout_element& element : without_field(elements, all_places)) {
        std::cout << "| " << code(element.path) << " | " << element.occurs << " | "
                  << element.content << " |\n";
    }

    std::cout << R"(
## Elements that a writer fills in

The layout demands these, and no class holds them. `layout::outside_texts` has a text for each, which
reading fills, so that a document read and written keeps its own; for a new invoice, `cDV` comes
from the key, `tpImp` from the model, and the others have a default.

)";
    for (const place& element : outside) {
        std::cout << "- " << code(element.path) << '\n';
    }

    std::cout << R"(
## Fields without an element

They are kept and copied like any other, but no element fills them and nothing writes them. The
terms of payment, the classes of IPI and the FECOP total belong to earlier layouts; the code of a
presumed credit stands once in this release, in `gCredPresOper/cCredPres`, and no longer in the
groups of IBS and CBS below it.

| Class | Accessor | Holds |
|---|---|---|
)";
    for (const place& field : no_elements) {
        std::cout << "| " << code(field.owner) << " | " << accessors(field) << " | " << holds(field)
                  << " |\n";
    }

    std::cout << R"(
## Absence

An optional field tells absence itself, and so does an empty list. A plain field has a value from
the start, so absence has to be told from the value: empty texts, base values that were never set,
such as a date, and groups with nothing in them are not written. Plain amounts, numbers and codes
are written at 0 too, but for those below. Where the layout demands what is optional here, an object
can lack what the schema wants; it is written without, and the schema will refuse it.
)";
    write_absence(fields, by_path);
    std::cout << R"(
Some groups tell more than their fields:

- `tributacao_pis_cofins` always holds both contributions; a rate group at its defaults stands for
  the one that is missing, and is not written.
- `encerrante_bomba_combustiveis` also holds `pBio`, which stands beside `encerrante`: with `pBio`
  alone, `encerrante` is not written.
- `tributacao_ipi` is written as `IPITrib` or `IPINT`, as its situation code tells. `vUnid` has a
  field, and `qUnid`, which the layout demands beside it, has none: the schema refuses an IPI per
  unit as it is written.
- `grupo_fcp` has a base; in `ICMS00`, where the layout has no `vBCFCP`, it is not written.
- A medicine without registration is written as two elements: `cProdANVISA` with the text ISENTO,
  and `xMotivoIsencao`.

## Widths and forms

- A code of a fixed width is held as a number, without its zeros in front; they are put back in
  writing. A code of two widths is written in the first that holds it.
- Enumerations name the codes of the layout, but hold others too: a code of the right form is read,
  kept and written, whether it has a name or not.
- A number without a fixed width is written with as many digits as it needs, although the layout may
  take zeros in front of it.
- A text wider than its field, such as a number above the largest of its type, is refused and
  reported, never cut.
- A decimal keeps the places that it was given, and has at most 17 digits, 15 of them behind the
  point. The layout's count of places, such as two for an amount, is the caller's matter; so are the
  lengths of texts, and lists of choices such as the rates that `pICMSInter` takes.
- CNPJ and CPF are read with valid check digits only, where they are fields of these types.

The table below says for each field where it is narrower or of another form.

## Order

The order of the elements belongs to the layout, and is the map's alone; the order in which an object
stores, copies and releases its fields is another, and no accessor depends on either. In particular,
addresses, the item, `vBC` beside `pRedBC` in `ICMS90` and `ICMSSN900`, the `vBCFCPSTRet` group in
`ICMSST` and `vICMSMonoDif` in `ICMS53` are stored otherwise than they are written. Lists keep their
order. The references of an invoice are four lists, of which each keeps its own, and are written one
list after the other.

## What reading reports

`layout::read_xml` and `layout::read_file` read everything that has a field, and tell of the rest in
`invoice_document::result`, by path:

- `unread`: elements, attributes and texts without a field; of a group in which nothing has one, the
  group alone.
- `changed`: texts whose value is held, but which will be written otherwise, such as a number with
  zeros in front that has no fixed width.
- `refused`: texts that their field cannot hold, with what it holds. The field stays unset.

Nothing else is lost: what is read is written again, element for element.

## Every field

Occurrence and content are the layout's: `digits` may have zeros in front and `number` may not,
`decimal` has so many digits before and behind the point, `text` so many characters. What occurs in
parentheses is one of a choice, or of several elements that may be absent together.
A field that is neither optional nor a list is plain.
)";
    const std::vector<row> rows = rows_of(fields, by_path);
    for (std::string line; std::getline(subsystems, line);) {
        std::istringstream names(line);
        std::string subsystem;
        names >> subsystem;
        std::cout << "\n### " << subsystem << '\n';
        write_table({std::istream_iterator<std::string>(names), {}}, rows);
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: layout_coverage ELEMENTS SUBSYSTEMS\n";
        return 1;
    }
    try {
        std::ifstream subsystems(argv[2]);
        write_page(read_elements(argv[1]), subsystems);
        return subsystems.eof() ? 0 : 1;
    } catch (const std::exception& failure) {
        std::cerr << "layout_coverage: " << failure.what() << '\n';
        return 1;
    }
}
