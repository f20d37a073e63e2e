#!/usr/bin/env python3
"""What the reference shows besides the comments of the headers.

reference.py classes        prints docs/classes.md, the classes by subsystem
reference.py check          fails where comments, layout map and docs/classes.md disagree
reference.py pages          prints a page for each subsystem and each element of the layout
reference.py filter FILE    prints a header or page as Doxygen reads it
reference.py found SITE     fails where the search of the site misses an element of the layout

Classes and comments are read from fiscal/, fields and elements from docs/coverage.md, which is made
from the layout map.
"""

import re
import sys
from collections import defaultdict
from dataclasses import dataclass, field
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
NAMESPACE = "kivo::erp::v12::fiscal"
TITLES = {
    "invoice": "The invoice",
    "document": "Document",
    "parties": "Parties",
    "items": "Items",
    "icms": "ICMS of an item",
    "other_taxes": "Other taxes of an item",
    "ibs_cbs": "IBS, CBS and the selective tax of an item",
    "totals": "Totals",
    "transport": "Transport",
    "payment": "Payment and billing",
}
KINDS = {
    "eager": "Its record exists as long as the object.",
    "lazy": "No record until a field is stored.",
    "lazy, copies end the process when they fail": "No record until a field is stored, and running "
    "out of memory in a copy ends the process.",
    "in place": "Its fields stand in the object itself.",
}


@dataclass
class Class:
    name: str
    meaning: str
    kind: str
    getters: dict = field(default_factory=dict)  # accessor: comment


@dataclass
class Row:
    """A field in its places in the layout."""

    paths: list
    owner: str
    getter: str
    holds: str
    inside: bool  # no element of its own: what it holds stands in the holder's


def joined(comment):
    return " ".join(line.strip().removeprefix("///").strip() for line in comment.splitlines())


def read_class(name):
    text = (ROOT / f"fiscal/{name}.hpp").read_text()
    comment = re.search(r"((?:^/// .*\n)+)class KIVO_ERP_FISCAL_EXPORT", text, re.M)
    meaning, kind, rest = re.split(r"\b(Eager|Lazy|In place): ", joined(comment[1]))
    meaning = re.match(r".*?\)(?=\.)|.*(?=\.)", meaning)[0]
    kind = kind.lower()
    if kind == "lazy" and "ends the process" in rest:
        kind = "lazy, copies end the process when they fail"
    result = Class(name, meaning, kind)
    result.getters = dict.fromkeys(re.findall(r"(\w+)\(\) const", text), "")
    for comment, getter in re.findall(r"((?:^    ///.*\n)+)[^;{}/]*?(\w+)\(\) const", text, re.M):
        result.getters[getter] = joined(comment)
    return result


def read_subsystems():
    lists = re.findall(r"^set\((\w+)\s+([^)$]*)\)", (ROOT / "fiscal/CMakeLists.txt").read_text(), re.M)
    names = {name: words.split() for name, words in lists}
    if set(names["subsystems"]) != set(TITLES):
        sys.exit("reference: a subsystem of fiscal/CMakeLists.txt has no title, or the reverse")
    return {name: [read_class(each) for each in names[name]] for name in TITLES}


def read_rows():
    text = (ROOT / "docs/coverage.md").read_text()
    result = []
    for line in re.findall(r"^\| (`.*) \|$", text, re.M):
        cells = [cell.strip() for cell in line.split(" | ")]
        if len(cells) == 6:  # of "Every field"
            paths, owner, getter, holds, layout, _ = cells
            getter = re.match(r"`(\w+)`", getter)[1]  # a setter of another name stands behind it
            if holds != "its place in the list":
                result.append(Row(re.findall("`([^`]+)`", paths), owner.strip("`"), getter, holds,
                                  layout == "no element of its own"))
        elif len(cells) == 3 and cells[1].startswith("`"):  # of "Fields without an element"
            result.append(Row([], cells[0].strip("`"), cells[1].strip("`"), cells[2], False))
    return result


def element_of(path):
    return path.split("/")[-1].lstrip("@")


def classes_page(subsystems):
    lines = [
        "# Classes by subsystem",
        "",
        "Each name is a header and a source in `fiscal/`; the class comment tells its kind in full.",
        "`fiscal/nota_fiscal.hpp` includes them all. `./dev docs` makes this page from the comments.",
    ]
    for name, classes in subsystems.items():
        lines += ["", f"## {TITLES[name]}", "", "| class | kind | what it holds |", "|---|---|---|"]
        lines += [f"| `{each.name}` | {each.kind} | {each.meaning} |" for each in classes]
    lines += [
        "",
        "`valor_cred_pres` and `valor_cred_pres_sus` are plain structures of one amount, in",
        "`fiscal/valor_cred_pres.hpp`. Enumerations that several classes share stand in headers of their own:",
        "`csosn`, `cst`, `cst_ipi`, `modalidade_bc_icms`, `modalidade_bc_icms_st`, `origem_cst`,",
        "`tipo_emissao`.",
    ]
    return "\n".join(lines) + "\n"


def comments_of(subsystems):
    """The comment of each getter, by class and getter."""
    return {(each.name, getter): comment
            for classes in subsystems.values() for each in classes
            for getter, comment in each.getters.items()}


def check(subsystems, rows):
    faults = []
    comments = comments_of(subsystems)
    for owner, getter in comments.keys() - {(row.owner, row.getter) for row in rows}:
        faults.append(f"{owner}::{getter} is not in the layout map")
    for row in rows:
        for path in row.paths if not row.inside else []:
            # of a choice among many groups, the comment may name the element around them
            names = path.replace("@", "").split("/")[-2 if "choice" in row.holds else -1 :]
            if not re.search(rf"\b({'|'.join(names)})\b", comments[row.owner, row.getter]):
                faults.append(f"{row.owner}::{row.getter} does not name {element_of(path)}")
    for header in [*ROOT.glob("fiscal/*.hpp"), *ROOT.glob("base/*.hpp")]:  # Doxygen lets these pass
        for name in re.findall(r"^ +(\w+) = \w+,?$", header.read_text(), re.M):
            faults.append(f"{header.name} does not tell what {name} is")
    if (ROOT / "docs/classes.md").read_text() != classes_page(subsystems):
        faults.append("docs/classes.md is not what the comments say: ./dev docs makes it anew")
    return faults


def reference(owner, getter=None):
    target = f"{NAMESPACE}::{owner}" + (f"::{getter}" if getter else "")
    return f'\\ref {target} "{owner if getter is None else owner + "::" + getter}"'


def tree(classes, rows):
    """The groups of a subsystem below those that hold them, as lists in lists."""
    own = {each.name for each in classes}
    groups = {row.owner for row in rows}
    held = defaultdict(list)  # class: the rows of its groups, with the class that each holds
    for row in rows:
        held[row.owner] += [(row, child) for child in re.findall(r"`(\w+)`", row.holds)
                            if child in own or row.owner in own and child in groups]

    def branch(name, line):
        yield f"<li>{line}"
        if held[name] and (name in own or line == reference(name)):
            yield "<ul>"
            for row, child in held[name]:
                place = "inside" if row.inside else " ".join(dict.fromkeys(map(element_of, row.paths)))
                times = re.search(r"\bchoice|list|^optional(?! choice)|$", row.holds)[0]
                yield from branch(child, f"<b>{place}</b> {reference(child)} <i>{times}</i>")
            yield "</ul>"
        yield "</li>"

    roots = [owner for owner in list(held) if held[owner] and (owner not in own or owner == "nota_fiscal")]
    lines = [line for root in roots for line in branch(root, reference(root))]
    return ['<div class="tree">', "<ul>", *lines, "</ul>", "</div>"]


def page(label, title, *lines):
    return "\n".join([f"/** \\page {label} {title}", "", *lines, "*/", ""])


def pages(subsystems, rows):
    yield page("subsystems", "Subsystems", *(f"- \\subpage subsystem_{name}" for name in subsystems))
    for name, classes in subsystems.items():
        yield page(f"subsystem_{name}", TITLES[name],
                   "Each group below the one that holds it, with its element; inside: it has none of its "
                   "own, and its elements stand in the holder's.", "",
                   *tree(classes, rows), "",
                   "| class | kind | what it holds |", "|---|---|---|",
                   *(f"| {reference(each.name)} | {each.kind} | {each.meaning} |" for each in classes))

    index = defaultdict(list)
    for row in rows:
        for name in {element_of(path) for path in row.paths}:
            index[name].append(row)
    yield page("elements", "Elements of the layout",
               "Every element and attribute of the layout that a field holds, and which field it is.", "",
               *(f"- \\subpage element_{name}" for name in sorted(index, key=str.lower)))
    comments = comments_of(subsystems)
    for name, found in index.items():
        lines = []
        for row in found:
            places = [f"  - `{path}`" for path in row.paths if element_of(path) == name]
            lines += [f"- {reference(row.owner, row.getter)}: {comments[row.owner, row.getter]}", *places]
        yield page(f"element_{name}", name, *lines)


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
    for line in path.read_text().splitlines():
        code ^= line.startswith("```")
        heading = re.match(r"##+ (.*)", line)
        if heading and not code:
            line += f" {{#{label_of(path.stem, heading[1])}}}"
        if path.name == "classes.md":
            line = re.sub(r"^\| `(\w+)`", lambda name: f"| {reference(name[1])}", line)
        line = re.sub(r"\]\((?:[\w./]*?(\w+)\.md)?#([^)]+)\)",
                      lambda link: f"](#{label_of(link[1] or path.stem, link[2])})", line)
        yield line


def filtered_header(path):
    """A header with a comment at every member: one that stands directly below another shares its
    comment, and what is alike in all classes has one here."""
    text = path.read_text()
    alike = {"friend constexpr bool operator==": "Compares the values.",
             "using cnpj =": "The value.", "using cpf =": "The value."}
    if "class KIVO_ERP_FISCAL_EXPORT" in text:
        alike |= special_members(path.stem, read_class(path.stem).kind)
    if path.name == "handle.hpp":
        alike |= special_members("eager_handle", "eager") | special_members("lazy_handle", "lazy")
    above, shared, of_struct, complete = [], [], [], True
    for line in text.splitlines():
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
            if re.match(r"    \w.*\(|    void$", line):
                known = known or shared
            yield from known
        # in the table of an enumeration, the code stands before what it means
        line = re.sub(r"^( +\w+ = (\d+),? +///< )(?!code )", r"\1\2: ", line)
        if not stripped.startswith("//"):
            complete = stripped.endswith((";", "}", ":", "{")) or not stripped
        yield line


def search_faults(site, rows):
    texts = "".join(path.read_text() for path in (site / "search").glob("pages_*.js"))
    names = {element_of(path) for row in rows for path in row.paths}
    return [f"the search does not find {name}" for name in sorted(names) if f"['{name}'," not in texts]


def main(command, *arguments):
    if command == "filter":
        path = Path(arguments[0]).resolve()
        print(*(filtered_page if path.suffix == ".md" else filtered_header)(path), sep="\n")
        return
    subsystems, rows = read_subsystems(), read_rows()
    faults = []
    if command == "classes":
        print(classes_page(subsystems), end="")
    elif command == "check":
        faults = check(subsystems, rows)
    elif command == "pages":
        print(*pages(subsystems, rows), sep="\n")
    elif command == "found":
        faults = search_faults(Path(arguments[0]), rows)
    else:
        sys.exit(__doc__)
    if faults:
        sys.exit("\n".join(f"reference: {fault}" for fault in faults))


if __name__ == "__main__":
    main(*(sys.argv[1:] or ["help"]))
