#!/usr/bin/env python3
"""Compares three accounts of every field: the layout map, the headers' comments and codes, and
the layout's own list of elements.

fields_agree.py FACTS [ROOT]    the folder of facts, and the tree whose headers are read

Two accessors of one type that change places in the map pass every way there and back; here, the
comments of their headers and the elements' forms tell them apart. Every rule is exact: a comment
names the last name of the field's path, and no other.
"""

import re
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "docs/reference"))
from facts import ROOT, last_name, read_class, read_elements, read_places, read_subsystems  # noqa: E402

# The interface holds several medicines, of which the layout takes one.
LISTS_OF_ONE = {"det/prod/med"}
# Numbers in the interface; in the layout, letters may stand in them, too.
NUMBERS_FOR_TEXTS = {"det/imposto/IPI/cEnq"}


def in_parentheses(comment):
    return re.findall(r"\(([^()]*)\)", comment)


def below(place, places):
    """The names that an object without an element of its own puts into its holder's, in order."""
    names = {}
    for each in places:
        if each.owner != place.type:
            continue
        if each.kind == "embedded" and each.path == place.path:
            names |= dict.fromkeys(below(each, places))
        elif each.path.startswith(place.path + "/"):
            names[each.path[len(place.path) + 1:].split("/")[0]] = None
    return list(names)


def expected_names(found, places):
    """What the comment of a field has to name, from its places: alternatives in their order."""
    names = {}
    for place in found:
        path = place.path
        shared = len({each.getter for each in places if each.path == path and each.count == "list"}) > 1
        if place.kind == "position":
            continue
        if "," in place.alternative:  # of a choice among many groups, the element around them
            names[path.split("/")[-2]] = None
        elif place.marker:
            names[place.marker] = None
        elif shared:  # lists with elements of one name: what stands in them tells them apart
            inner = [each.path for each in places if each.owner == place.type]
            names[inner[0].split("/")[path.count("/") + 1] if inner else last_name(path)] = None
        else:
            names[last_name(path)] = None
    return list(names)


def comment_faults(name, found, comment, places):
    first = found[0]
    said = in_parentheses(comment)
    if first.kind == "without element":
        if not re.search(r"\(no element in layout 4\.00\b", comment):
            yield f"{name}: the comment does not say that the layout has no element"
        return
    words = [word for part in said for word in re.findall(r"[\w/]+", part)]
    if first.kind == "embedded" and not first.marker:
        inner, holder = below(first, places), last_name(first.path)
        told = [word for word in words if word in inner]
        rest = [word for word in words if word == holder]
        whole = told == inner or (" to " in said[-1] and told == [inner[0], inner[-1]])
        if not whole and (told or not rest):
            yield f"{name}: the comment names {told}, the map has {inner} in {holder}"
        return
    expected = expected_names(found, places)
    if first.choice:
        numbered = re.findall(r"\b(\w+) \(index (\d)\)", comment)
        if numbered and numbered[0][0] in expected:
            told = [element for element, _ in numbered]
            if [number for _, number in numbered] != [place.alternative for place in found]:
                yield f"{name}: the comment numbers the alternatives otherwise"
        else:
            told = [word for word in words if word not in ("index", "0", "1")]
    else:
        told = words[-1:] if re.fullmatch(r"(attribute )?[\w/]+", said[-1] if said else "") else words
    paths = [word for word in told if "/" in word]
    if [last_name(word) for word in told] != expected:
        yield f"{name}: the comment names {told}, the map {expected}"
    for path in paths:
        if not any((place.path + "/").endswith(f"/{path}/") or
                   f"{place.path}/{last_name(path)}".endswith(f"/{path}") for place in found):
            yield f"{name}: the comment's path {path} is not the map's"


def class_faults(name, meaning, places):
    """A class names the element in which its objects stand."""
    said = in_parentheses(meaning)
    paths = dict.fromkeys(place.path for place in places if place.type == name
                          and place.kind in ("element", "alternative"))
    for path in paths:
        lists = {place.getter for place in places if place.path == path and place.count == "list"}
        told = re.match(r"\w+", said[-1])[0] if said else None
        own = {last_name(path)}
        if len(lists) > 1:
            own |= {place.path.split("/")[path.count("/") + 1] for place in places
                    if place.owner == name}
        if told not in own:
            yield f"{name}: the comment names {told}, the map {last_name(path)}"


def form_fits(place, element):
    content = element.content
    widths = [int(number) for number in re.findall(r"\d+", content)]
    if place.is_group or element.is_group:
        return place.is_group and element.is_group
    if place.type in ("date", "datetime"):
        return content == place.type
    if place.type == "cnpj":
        return content in ("text 14", "text 0-14")
    if place.type == "cpf":
        return content == "digits 11"
    if place.value == "decimal":
        numbers = re.fullmatch(r"[\d., or]+", element.demanded)  # or one of some amounts
        return content.startswith("decimal") or bool(numbers)
    if place.value == "number":
        if place.base == 16:
            return content == f"text {place.width}"
        fits = place.width in (0, *widths) and place.wide_width in (0, *widths)
        return content.split()[0] in ("digits", "number") and fits or place.path in NUMBERS_FOR_TEXTS
    return content not in ("date", "datetime")


def layout_faults(place, elements, root):
    element = elements.get(place.path)
    if element is None:
        yield f"{place.path}: no element of the layout"
        return
    if place.kind == "embedded":
        return
    yield from default_faults(place, element, root)
    if not form_fits(place, element):
        yield f"{place.path}: {place.owner}::{place.getter} holds {place.holds}, the layout {element.content}"
    if (place.count == "list") != (element.most > 1) and place.path not in LISTS_OF_ONE:
        yield f"{place.path}: {place.owner}::{place.getter} is {place.count}, the layout takes {element.occurs}"
    if place.count == "optional" and place.is_group and place.kind == "element" and element.occurs == "1":
        yield f"{place.path}: optional, although the layout demands the group"


def default_faults(place, element, root):
    """What is 0 before it is set is written where the layout demands it and takes a 0."""
    header = "".join(path.read_text() for name in (place.owner, place.type)
                     if (path := root / f"fiscal/{name}.hpp").exists())
    unset = re.search(rf"enum class {place.type} [^}}]*?\w+ = 0,\s+///< never set; not a code", header)
    if place.count != "plain" or place.value not in ("decimal", "number"):
        return
    takes_zero = place.value == "decimal" or "0" in re.split(", | or ", element.demanded)
    optional = element.occurs == "0-1" and (place.value == "decimal" or not takes_zero)
    if (unset or optional) and not place.omit_default:
        yield f"{place.path}: {place.owner}::{place.getter} is written before it is set"
    if element.occurs == "1" and takes_zero and place.omit_default:
        yield f"{place.path}: {place.owner}::{place.getter} is left out while it is 0"


def code_faults(places, elements, root):
    """An enumeration has each code of its elements, once, and no other than its comments tell: a 0
    that is no code, and codes of a later schema."""
    for header in sorted(root.glob("fiscal/*.hpp")):
        for kind, body in re.findall(r"enum class (\w+) : std::uint\d+_t \{(.*?)\};",
                                     header.read_text(), re.S):
            name = f"{header.stem}::{kind}"
            told = [(int(value, 0), meaning) for value, meaning in
                    re.findall(r" = (\w+),(?:\s*///< (.*))?", body)]
            unset = [value for value, meaning in told if meaning.startswith("never set; not a code")]
            later = {value for value, meaning in told if "; schema of " in meaning}
            codes = {value for value, _ in told} - set(unset)
            if len(codes) + len(unset) < len(told) or any(unset):
                yield f"{name}: a code stands twice, or what is no code is not 0"
            expected = {int(code, place.base or 10) for place in places
                        if place.value == "number" and place.kind != "without element"
                        and place.type == kind and header.stem in (kind, place.owner)
                        for code in re.split(", | or ", elements[place.path].demanded)
                        if code.isalnum()}
            if expected and codes - later != expected:
                yield f"{name}: not as in the layout: {sorted(expected ^ (codes - later))}"


def order_faults(places, elements):
    """The map has the layout's order. Alternatives have that of their indices, attributes any."""
    order = {path: number for number, path in enumerate(elements)}
    last = {}
    for place in places:
        if place.path in order and place.kind == "element":
            holder = place.path.rpartition("/")[0]
            if order[place.path] < last.get(holder, -1):
                yield f"{place.path}: the layout has it before what the map has before it"
            last[holder] = max(order[place.path], last.get(holder, -1))


def header_pairs(text):
    """Getter and setter of each pair, as they stand one below the other."""
    return re.findall(r"(\w+)\(\) const[^;]*;\s*(?:///[^\n]*\n\s*)*void\s+(set_\w+)\(", text)


def faults(folder, root):
    places, elements = read_places(folder), read_elements(folder)
    fields = {}
    for place in places:
        if place.owner:
            fields.setdefault((place.owner, place.getter), []).append(place)
    names = [name for classes in read_subsystems(folder).values() for name in classes]
    for name in names:
        known = read_class(name, root)
        pairs = header_pairs((root / f"fiscal/{name}.hpp").read_text())
        for pair in pairs:
            if pair != (pair[0], *{place.setter for place in fields.get((name, pair[0]), [])}):
                yield f"{name}::{pair[0]} and {pair[1]} are no pair of the layout map"
        for getter in dict.fromkeys([*known.getters, *(each for owner, each in fields if owner == name)]):
            if getter not in (pair[0] for pair in pairs) or (name, getter) not in fields:
                yield f"{name}::{getter}: not both in the header and in the layout map"
            else:
                yield from comment_faults(f"{name}::{getter}", fields[name, getter],
                                          known.getters[getter], places)
        yield from class_faults(name, known.meaning, places)
    for owner in sorted({owner for owner, _ in fields} - set(names)):
        yield f"{owner}: no class of a subsystem"
    for place in places:
        if place.kind != "without element":
            yield from layout_faults(place, elements, root)
    yield from code_faults(places, elements, root)
    yield from order_faults(places, elements)


if __name__ == "__main__":
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    found = list(faults(Path(sys.argv[1]), Path(sys.argv[2]) if len(sys.argv) == 3 else ROOT))
    if found:
        sys.exit("\n".join(found))
