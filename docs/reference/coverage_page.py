#!/usr/bin/env python3
"""Makes docs/coverage.md: the layout map as a page for users.

coverage_page.py [--compare] FACTS    prints it, or fails where the file is another; the folder of
                                      facts is told in facts.py
"""

import re

from facts import TITLES, page_main, read_elements, read_places, read_subsystems, without_field

PAGE = """\
# What the library holds of the layout

`./dev pages` makes this page from the layout map (`layout/*.hpp`) and the layout's own list
of elements (`layout/elements.txt`), and the tests compare it: change those, not this page.

The library follows the layout of NF-e and NFC-e 4.00 in the release PL_010 v1.30. {classes} classes
with {pairs} accessor pairs hold the content of `infNFe`. Paths begin below `infNFe`; `@` marks an attribute.

- [Elements without a field](#elements-without-a-field)
- [Elements that a writer fills in](#elements-that-a-writer-fills-in)
- [Fields without an element](#fields-without-an-element)
- [Accessors with names of their own](#accessors-with-names-of-their-own)
- [Absence](#absence)
- [Widths and forms](#widths-and-forms)
- [Order](#order)
- [What reading reports](#what-reading-reports)
- [Every field](#every-field)

## Elements without a field

{lacking} elements and groups; a group stands for all that is in it. They ride along: `layout::read_xml`
keeps their texts by path in `invoice_document::kept`, and `layout::write_xml` puts texts that it is
given there into their places. Beside `infNFe`, the classes hold nothing of `infNFeSupl` (the QR code
of an NFC-e), of `Signature`, and of `protNFe`, and these do not ride along.

{without_field}

## Elements that a writer fills in

The layout demands these, and no class holds them. `layout::outside_texts` has a text for each, which
reading fills, so that a document read and written keeps its own; for a new invoice, `cDV` comes
from the key, `tpImp` from the model, and the others have a default.

{outside}

## Fields without an element

They are kept and copied like any other, but no element fills them and nothing writes them. The
terms of payment, the classes of IPI and the FECOP total belong to earlier layouts; the code of a
presumed credit stands once in this release, in `gCredPresOper/cCredPres`, and no longer in the
groups of IBS and CBS below it.

{without_element}

## Accessors with names of their own

A pair is `get_` and `set_` before the same name, but for these. The names are the interface, and
stay as they are.

{odd_names}

## Absence

An optional field tells absence itself, and so does an empty list. A plain field has a value from
the start, so absence has to be told from the value: empty texts, base values that were never set,
such as a date, and groups with nothing in them are not written. Plain amounts, numbers and codes
are written at 0 too, but for those below. Where the document that was read lacks such an element,
the report tells that it is added. Where the layout demands what is optional here, an object
can lack what the schema wants; it is written without, and the schema will refuse it.

{absence}

Some groups tell more than their fields:

- `imposto` is mandatory in the layout, and written for every item, also when nothing in it has a
  field.
- `tributacao_pis_cofins` always holds both contributions; a rate group at its defaults stands for
  the one that is missing, and is not written. Where a document has one with an amount of 0 and
  nothing else, it has no room.
- `encerrante_bomba_combustiveis` also holds `pBio`, which stands beside `encerrante`: with `pBio`
  alone, `encerrante` is not written. Where a document has one beside `pBio` with nothing but zeros,
  it has no room.
- `modBC` of `ICMS51` is written where it is not 0, or where there is a `vBC`: code 0 is also the
  default of a plain field. `modBC` 0 without `vBC` has no room; `vBC` without `modBC` gets the
  code 0, which is told as added.
- `tributacao_ipi` is written as `IPITrib` or `IPINT`, as its situation code tells: an `IPITrib` whose
  code is not its own has no room and comes back as `IPINT`; where a document has both, the second has
  no room. `vUnid` has a field, and `qUnid`, which the layout demands beside it, has none and rides
  along.
- An item holds ICMS or ISSQN, and `med`, `arma` or `comb`: what a document has beside the first of
  them has no room.
- `grupo_fcp` has a base; in `ICMS00`, where the layout has no `vBCFCP`, it is not written.
- A medicine without registration is written as two elements: `cProdANVISA` with the text ISENTO,
  and `xMotivoIsencao`. That text alone tells it from one with a registration, beside which an
  `xMotivoIsencao` has no room.
- `nRE`, and `CNPJ` of `entrega` and `infRespTec`, may be empty in the layout: the number 0, and a CNPJ
  that was never set, stand for the empty element.

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
  lengths of texts, and lists of choices such as the rates that `pICMSInter` takes. `layout::check`
  tells where a document has others than the layout allows.
- CNPJ and CPF are read with valid check digits only, where they are fields of these types. Those of
  one digit all through are not issued, and refused.

The table below says for each field where it is narrower or of another form.

## Order

The order of the elements belongs to the layout, and is the map's alone; the order in which an object
stores, copies and releases its fields is another, and no accessor depends on either. In particular,
addresses, the item, `vBC` beside `pRedBC` in `ICMS90` and `ICMSSN900`, the `vBCFCPSTRet` group in
`ICMSST` and `vICMSMonoDif` in `ICMS53` are stored otherwise than they are written. Lists keep their
order. The references of an invoice are four lists, of which each keeps its own, and are written one
list after the other: those that change their place are told as written otherwise.

## What reading reports

`layout::read_xml` and `layout::read_file` read everything that has a field, keep what has none, and
tell what becomes of it in `invoice_document::report`, by path:

- `without_field`: elements and attributes without a field, of a whole group the group alone. They
  ride along in `invoice_document::kept`.
- `unknown`: elements, attributes and texts that the layout does not have there. They are left out.
- `refused`: texts that their field cannot hold, with what it holds. The field stays unset.
- `written_otherwise`: what is held, but will be written with another text, such as a number with
  zeros in front that has no fixed width, or in another place.
- `without_room`: what the objects cannot tell beside what they hold, such as a second group where
  they hold one.
- `added`: what the document does not have and will be written, such as a plain amount of 0.

What is in none of the last five is written again, element for element. `invoice_document::beside`
has the paths of what stands around `infNFe`.

## Every field

Occurrence and content are the layout's: `digits` may have zeros in front and `number` may not,
`decimal` has so many digits before and behind the point, `text` so many characters. What occurs in
parentheses is one of a choice, or of several elements that may be absent together.
A field that is neither optional nor a list is plain.

{every_field}
"""


def code(text):
    return f"`{text}`"


def several(number, what):
    return f"{number} {what}{'' if number == 1 else 's'}"


def merged(paths):
    """Several paths as one, if they differ in one name alone: `a/{b, c}/d`; else nothing."""
    split = [path.split("/") for path in paths]
    first = split[0]
    for at in range(len(first)):
        rest = first[:at] + first[at + 1:]
        if all(len(names) == len(first) and names[:at] + names[at + 1:] == rest for names in split):
            names = [names[at] for names in split]
            own = names[0] if len(names) == 1 else "{" + ", ".join(names) + "}"
            return "/".join(first[:at] + [own] + first[at + 1:])
    return None


def in_one(paths):
    one = merged(paths)
    return code(one) if one else "<br>".join(map(code, paths))


def accessors(place):
    return code(place.getter) + (f"<br>{code(place.setter)}" if place.odd_names else "")


def absence(place, element):
    """Where field and element disagree on whether the element may be absent; else nothing."""
    # an alternative is there or not as the choice tells, and so is a group without an element
    if place.kind not in ("element", "attribute"):
        return None
    may_be_absent = element.least == 0 or (element.in_run and not place.run)
    plain = place.count == "plain" and not place.is_group
    if place.count == "optional":
        return None if may_be_absent else "optional, although the layout demands it"
    if plain and place.omit_default:
        return "left out at its default" if may_be_absent else "left out while never set: 0 is no code"
    if plain and may_be_absent and place.conditional:
        return "left out where its group does without"
    if plain and may_be_absent and place.value in ("number", "decimal"):
        return "written even at 0, where the layout lets it be absent"
    return None


def number_differences(place, element):
    widths = [int(number) for number in re.findall(r"\d+", element.content)]
    form = element.content.split()[0]
    digits_only = form in ("digits", "number")
    if digits_only and 10 ** widths[-1] - 1 > place.largest:
        yield f"up to {place.largest}, the layout takes {several(widths[-1], 'digit')}"
    if place.base == 16:
        yield "the code read as a hexadecimal number"
    elif not digits_only:
        yield "a number, the layout takes a text"
    if place.wide_width:
        yield (f"written with {several(place.width, 'digit')}, or with {place.wide_width} where it "
               "needs more")
    elif place.fewer:
        yield f"written with {several(place.width, 'digit')}, and read with fewer, too"
    elif place.width and digits_only and widths[0] != place.width:
        yield f"always {several(place.width, 'digit')}"
    elif place.width > 1:
        yield f"written with {several(place.width, 'digit')}"
    elif not place.width and form == "digits" and widths[-1] > 1:
        yield "zeros in front are not kept"


def differences(place, element):
    """Where field and element differ: in absence, number, width and form."""
    without = absence(place, element)
    if without:
        yield without
    if place.kind == "embedded":
        return
    if place.count == "list" and element.most == 1:
        yield "a list, the layout takes one"
    elif place.count != "list" and element.most > 1:
        yield f"one, the layout takes {element.most}"
    if place.value == "number" and place.kind != "position":
        yield from number_differences(place, element)
    if place.value == "decimal" and element.content.startswith("decimal"):
        if sum(map(int, re.findall(r"\d+", element.content))) > 17:
            yield "at most 17 digits in all"
    if place.prefix:
        yield f"held without the `{place.prefix}` in front"
    if place.even_empty:
        yield ("written even when it is empty" if place.count == "plain"
               else "its default stands for the empty element")


def absence_lists(places, elements):
    """The places that disagree with their elements on absence, by the way in which they do."""
    ways = {}
    for place in places:
        way = absence(place, elements[place.path])
        if way:
            ways.setdefault(way, {})[place.path] = None
    for way, paths in ways.items():
        yield f"- {way}:"
        together = []
        for path in paths:
            if together and not merged([*together, path]):
                yield f"  - {in_one(together)}"
                together = []
            together.append(path)
        yield f"  - {in_one(together)}"


def rows(places, elements):
    """All places of one field, or of one alternative of a choice, as one row of the table."""
    together = {}
    for place in places:
        together.setdefault((place.owner, place.getter, place.holds), []).append(place)
    for found in together.values():
        place = found[0]
        layout, differing = {}, {}
        for each in found:
            element = elements[each.path]
            layout[f"{element.occurs}, {element.content}"] = None
            differing |= dict.fromkeys(differences(each, element))
        if place.kind == "embedded":
            layout = ["no element of its own"]
        yield place.owner, [in_one(list(dict.fromkeys(each.path for each in found))),
                            code(place.owner), accessors(place), place.holds, "<br>".join(layout),
                            "; ".join(differing)]


def table_lines(names, lines):
    cells = [names, ["---"] * len(names), *lines]
    return ["| " + " | ".join(line) + " |" if line[0] != "---" else "|" + "|".join(line) + "|"
            for line in cells]


def field_tables(subsystems, places, elements):
    all_rows = list(rows(places, elements))
    for name, classes in subsystems.items():
        yield f"### {TITLES[name]}\n"
        yield from table_lines(
            ["Element", "Class", "Accessor", "Holds", "Layout", "Where they differ"],
            [cells for owner, cells in all_rows if owner in classes])
        yield ""


def coverage_page(folder):
    places, elements = read_places(folder), read_elements(folder)
    fields = [place for place in places if place.owner]
    in_layout = [place for place in fields if place.path or place.kind == "embedded"]
    lacking = without_field(elements, places)
    pairs = {(place.owner, place.getter): place for place in fields}
    content = {
        "without_field": table_lines(["Element", "Occurs", "Content"],
                                     [[code(each.path), each.occurs, each.content] for each in lacking]),
        "outside": [f"- {code(place.path)}" for place in places if not place.owner],
        "without_element": table_lines(
            ["Class", "Accessor", "Holds"],
            [[code(place.owner), accessors(place), place.holds] for place in fields
             if place.kind == "without element"]),
        "odd_names": table_lines(["Class", "Getter", "Setter"],
                                 [[code(place.owner), code(place.getter), code(place.setter)]
                                  for place in pairs.values() if place.odd_names]),
        "absence": absence_lists(in_layout, elements),
        "every_field": field_tables(read_subsystems(folder), in_layout, elements),
    }
    return PAGE.format(classes=len({place.owner for place in fields}), pairs=len(pairs),
                       lacking=len(lacking),
                       **{name: "\n".join(lines).rstrip() for name, lines in content.items()})


if __name__ == "__main__":
    page_main(__doc__, "docs/coverage.md", coverage_page)
