#!/usr/bin/env python3
"""What the reference shows besides the comments of the headers.

reference.py pages FACTS    prints a page for each subsystem and each element of the layout
reference.py filter FILE    prints a header or page as Doxygen reads it; the folder of facts stands
                            in the environment, as KIVO_FACTS
reference.py check          fails where a comment is missing that Doxygen does not miss

The folder of facts is told in facts.py.
"""

import os
import re
import sys
from collections import defaultdict
from functools import cache
from pathlib import Path

from facts import (ROOT, TITLES, last_name, read_class, read_elements, read_places, read_subsystems,
                   without_field)

NAMESPACE = "kivo::erp::v12::fiscal"
KINDS = {
    "eager": "Its record exists as long as the object.",
    "lazy": "No record until a field is stored.",
    "lazy, copies end the process when they fail": "No record until a field is stored, and running "
    "out of memory in a copy ends the process.",
    "in place": "Its fields stand in the object itself.",
}


def reference(owner, accessor=None):
    target = f"{NAMESPACE}::{owner}" + (f"::{accessor}" if accessor else "")
    return f'\\ref {target} "{accessor or owner}"'


def element_reference(name):
    return f'\\ref element_{name} "{name}"'


def own_places(places):
    """Those of fields, without the attributes that the place in a list fills."""
    return [place for place in places if place.owner and place.kind != "position"]


def tree(classes, places):
    """The groups of a subsystem below those that hold them, as lists in lists."""
    own = set(classes)
    groups = {place.owner for place in places}
    held = defaultdict(dict)  # class: the places of its groups, by accessor and group
    for place in own_places(places):
        child = place.type
        if child in own or place.owner in own and child in groups:
            held[place.owner].setdefault((place.getter, child), []).append(place)

    def branch(name, line):
        yield f"<li>{line}"
        if held[name] and (name in own or line == reference(name)):
            yield "<ul>"
            for (_, child), found in held[name].items():
                place = found[0]
                names = dict.fromkeys(last_name(each.path) for each in found)
                where = "inside" if place.kind == "embedded" else " ".join(names)
                times = place.choice or {"plain": ""}.get(place.count, place.count)
                yield from branch(child, f"<b>{where}</b> {reference(child)} <i>{times}</i>")
            yield "</ul>"
        yield "</li>"

    roots = [owner for owner in list(held)
             if held[owner] and (owner not in own or owner == "nota_fiscal")]
    lines = [line for root in roots for line in branch(root, reference(root))]
    return ['<div class="tree">', "<ul>", *lines, "</ul>", "</div>"]


def page(label, title, *lines):
    return "\n".join([f"/** \\page {label} {title}", "", *lines, "*/", ""])


def occurrence(element):
    if not element.in_run:
        return element.occurs
    beside = " ".join(element.excludes) if len(element.excludes) <= 3 else "others of its group"
    return f"{element.occurs}, not beside {beside}" if element.excludes else element.occurs


def place_table(paths, elements):
    yield ""
    yield "| where | how often | what stands in it |"
    yield "|---|---|---|"
    for path in paths:
        element = elements[path]
        inner = [each for each in elements if each.rpartition("/")[0] == path] if element.is_group else []
        content = element.demanded.replace("|", "\\|") or ", ".join(
            element_reference(last_name(each)) for each in inner)
        yield f"| `{path}` | {occurrence(element)} | {content} |"
    yield ""


def element_page(name, paths, places, elements, comments):
    """What holds the elements of a name, in each of their places."""
    fields = defaultdict(list)
    free = []
    for path in paths:
        found = [place for place in places if place.path == path and place.kind not in
                 ("embedded", "position")]
        for place in found:
            fields[place.owner, place.getter, place.setter].append(path)
        if not found:
            free.append(path)
    lines = []
    for (owner, getter, setter), own in fields.items():
        if owner:
            lines += [f"<b>{reference(owner)}</b>: {reference(owner, getter)}, {reference(owner, setter)}", "",
                      comments[owner, getter]]
        else:
            lines += ["<b>No object holds it.</b> The writer fills it in, from `layout::outside_texts`."]
        lines += place_table(own, elements)
    known = {"/".join(place.path.split("/")[:size]) for place in places
             for size in range(1, place.path.count("/") + 2)}
    groups = [path for path in free if path in known and elements[path].is_group]
    numbers = [path for path in free if path in known and path not in groups]
    riding = [path for path in free if path not in known]
    if groups:
        lines += ["<b>No field of its own:</b> the fields of what stands in it are those of the class around it.",
                  *place_table(groups, elements)]
    if numbers:
        lines += ["<b>No field of its own:</b> it is the place of the element in its list.",
                  *place_table(numbers, elements)]
    if riding:
        lines += ["<b>No class has a field for it.</b> It rides along: `layout::read_xml` keeps its texts "
                  "in `invoice_document::kept`, and `layout::write_xml` puts them into their place; see "
                  "\\ref coverage_elements-without-a-field \"Elements without a field\".",
                  *place_table(riding, elements)]
    return page(f"element_{name}", name, *lines)


def pages(folder):
    places, elements, subsystems = read_places(folder), read_elements(folder), read_subsystems(folder)
    classes = {name: read_class(name) for names in subsystems.values() for name in names}
    yield page("subsystems", "Subsystems", *(f"- \\subpage subsystem_{name}" for name in subsystems))
    for name, names in subsystems.items():
        yield page(f"subsystem_{name}", TITLES[name],
                   "Each group below the one that holds it, with its element; inside: it has none of its "
                   "own, and its elements stand in the holder's.", "",
                   *tree(names, places), "",
                   "| class | kind | what it holds |", "|---|---|---|",
                   *(f"| {reference(each)} | {classes[each].kind} | {classes[each].meaning} |"
                     for each in names))

    index = defaultdict(list)
    for path in elements:
        index[last_name(path)].append(path)
    lacking = [last_name(element.path) for element in without_field(elements, places)]
    yield page("elements", "Elements of the layout",
               "Every element and attribute of the layout, and which field it is. No field have:", "",
               ", ".join(element_reference(name) for name in dict.fromkeys(lacking)) + ".", "",
               *(f"- \\subpage element_{name}" for name in sorted(index, key=str.lower)))
    comments = {(each.name, getter): comment for each in classes.values()
                for getter, comment in each.getters.items()}
    for name, paths in index.items():
        yield element_page(name, paths, places, elements, comments)


@cache
def facts_of_filter():
    """The names of the layout's elements, and those that each setter sets."""
    folder = os.environ.get("KIVO_FACTS")
    if not folder:
        return set(), {}
    setters = defaultdict(dict)
    for place in own_places(read_places(Path(folder))):
        if place.path and place.kind != "embedded" and "," not in place.alternative:
            setters[place.owner, place.setter][last_name(place.path)] = None
    return {last_name(path) for path in read_elements(Path(folder))}, setters


def with_links(comment):
    """The lines of a comment; elements in parentheses lead to their pages."""
    names, _ = facts_of_filter()
    text = "\n".join(comment)
    linked = re.sub(r"\([^()]*\)", lambda part: re.sub(
        r"(?<![\w\\:])\w+", lambda word: element_reference(word[0]) if word[0] in names else word[0],
        part[0]), text)
    return linked.split("\n")


def special_members(name, kind):
    """What each special member does, by the kind of its class."""
    eager = kind == "eager"
    moved = {"eager": "whose record stays: it may be used on", "in place": "which keeps its values"}.get(
        kind, "which is empty then")
    assigned = "field by field" if eager else "as a whole"
    return {
        f"{name}()": f"Every field at its default. {KINDS[kind]}",
        f"{name}(const {name}&": "A copy of every field; nothing is shared.",
        f"{name}({name}&&": f"Takes the fields of another, {moved}.",
        f"{name}& operator=(const {name}&": f"Copies the fields of another, {assigned}.",
        f"{name}& operator=({name}&&": f"Takes the fields of another, {moved}.",
        f"~{name}()": "Releases all that the object holds.",
        f"void swap({name}&": "Exchanges the fields with another, without a copy.",
    }


def label_of(page, heading):
    """A label of its own for a heading, since a link names the heading alone."""
    words = re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-")
    return page.lower() + "_" + words.encode("ascii", "ignore").decode()


def filtered_page(path):
    """A page whose headings can be linked to, within it and from others."""
    code = False
    text = path.read_text()
    if path.name == "coverage.md":  # its widest tables
        text = re.sub(r"\n(\| Element \| Class (?:.*\n)+)", r'\n<div class="fields">\n\n\1\n</div>\n', text)
    if path.name in ("guia.md", "LEIAME.md"):
        text = re.sub(r"^# (.*)", r"# \1 (em português)", text, count=1)
    for line in text.splitlines():
        code ^= line.startswith("```")
        heading = re.match(r"##+ (.*)", line)
        if heading and not code:
            line += f" {{#{label_of(path.stem, heading[1])}}}"
        if path.name == "classes.md":
            line = re.sub(r"^\| `(\w+)`", lambda name: f"| {reference(name[1])}", line)
        line = re.sub(r"\]\((?:[\w./]*?(\w+)\.md)?#([^)]+)\)",
                      lambda link: f"](#{label_of(link[1] or path.stem, link[2])})", line)
        yield line


def linked_header(text):
    """The lines of a header, whose comments lead to the elements that they name."""
    comment = []
    for line in text.splitlines():
        if line.strip().startswith("///"):
            comment.append(line)
        else:
            yield from with_links(comment) if comment else []
            comment = []
            yield line


def set_comment(owner, setter):
    names = facts_of_filter()[1].get((owner, setter))
    return f"Sets {' or '.join(map(element_reference, names))}." if names else "Sets it."


def filtered_header(path):
    """A header with a comment at every member: one that stands directly below another shares its
    comment, a setter names its element, and what is alike in all classes has one here."""
    text = path.read_text()
    alike = {"friend constexpr bool operator==": "Compares the values.",
             "bool operator==": "Compares the values.", "enum class kind {": "What it is.",
             "std::string path;": "Where it stands.", "kind is;": "What it is.",
             "using cnpj =": "The value.", "using cpf =": "The value."}
    if "class KIVO_ERP_FISCAL_EXPORT" in text:
        alike |= special_members(path.stem, read_class(path.stem).kind)
    if path.name == "handle.hpp":
        alike |= special_members("eager_handle", "eager") | special_members("lazy_handle", "lazy")
    of_class = "class KIVO_ERP_FISCAL_EXPORT" in text
    above, shared, of_struct, complete = [], [], [], True
    for line in linked_header(text) if of_class else text.splitlines():
        stripped = line.strip()
        if stripped.startswith("///"):
            if not above:  # whole, not the first sentence alone: the next tells kinds and failures
                line = line.replace("/// ", "/// \\brief ")
            above.append(line)
        elif above:
            shared = above
            of_struct = above if stripped.startswith("template <> struct") else of_struct
            above = []
        elif not stripped:
            shared = []
        elif re.match(r"template <.*> \w+\(.*\) -> ", stripped):
            line = ""  # a deduction guide says nothing that the class does not
        elif complete and line.startswith("    "):
            known = [f"/// {comment}" for beginning, comment in alike.items()
                     if stripped.startswith(beginning)]
            if stripped.startswith("static conversion_result make_"):
                known = of_struct
            setter = re.match(r"    void (set_\w+)\(", line)
            if setter and of_class:
                known = known or [f"/// \\brief {set_comment(path.stem, setter[1])}"]
            elif re.match(r"    \w.*\(|    void$", line):
                known = known or shared
            yield from known
        # in the table of an enumeration, the code stands before what it means
        line = re.sub(r"^( +\w+ = (\d+),? +///< )(?!code )", r"\1\2: ", line)
        if not stripped.startswith("//"):
            complete = stripped.endswith((";", "}", ":", "{")) or not stripped
        yield line


def comment_faults():
    for header in [*ROOT.glob("fiscal/*.hpp"), *ROOT.glob("base/*.hpp")]:
        for name in re.findall(r"^ +(\w+) = \w+,?$", header.read_text(), re.M):
            yield f"reference: {header.name} does not tell what {name} is"


def main(command, *arguments):
    if command == "filter":
        path = Path(arguments[0]).resolve()
        print(*(filtered_page if path.suffix == ".md" else filtered_header)(path), sep="\n")
    elif command == "pages":
        print(*pages(Path(arguments[0])), sep="\n")
    elif command == "check":
        faults = list(comment_faults())
        if faults:
            sys.exit("\n".join(faults))
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main(*(sys.argv[1:] or ["help"]))
