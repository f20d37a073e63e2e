"""What the documentation and its tests know of the library.

Facts of the layout map and the layout come from the program layout_facts, the classes of each
subsystem from the build; all three are files in a folder that the target `facts` makes. Comments
come from the headers of fiscal/.
"""

import re
import sys
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
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


def table(file):
    """The lines of a file, each as a dictionary by column."""
    names, *lines = [line.split("\t") for line in file.read_text().splitlines()]
    return [dict(zip(names, cells, strict=True)) for cells in lines]


def last_name(path):
    return path.split("/")[-1].lstrip("@")


@dataclass
class Element:
    """An element or attribute of the layout."""

    path: str
    occurs: str  # 1, 0-1, (1): in parentheses where it is one of a choice, or of a run
    content: str  # group, digits 2, text 1-60
    demanded: str  # the same in a sentence, with codes; of a group, empty
    excludes: list  # names beside which it may not stand

    @property
    def is_group(self):
        return self.content == "group"

    @property
    def least(self):
        return int(re.search(r"\d+", self.occurs)[0])

    @property
    def most(self):
        return int(re.findall(r"\d+", self.occurs)[-1])

    @property
    def in_run(self):
        return self.occurs.startswith("(")


@dataclass
class Place:
    """A field of the map in one of its places; those of a class stand in each of the class's."""

    path: str  # of a field without an element, empty; of an embedded one, the holder's
    owner: str  # the class; empty where no object holds the element
    getter: str
    setter: str
    kind: str  # element, attribute, position, alternative, embedded, without element, outside
    count: str  # plain, optional, list
    type: str  # what the getter returns, without optional and list
    value: str  # group, decimal, number, text
    choice: str  # empty, choice, optional choice
    alternative: str  # its index; of a choice in a choice, both
    largest: int  # of a number
    width: int  # of a number: digits, with zeros in front; 0: as many as it needs
    wide_width: int
    base: int
    fewer: bool  # fewer digits are read, too
    omit_default: bool
    even_empty: bool
    prefix: str  # what stands before the text
    marker: str  # the element that tells an alternative from another one
    run: bool  # the object may be absent, and has no element of its own
    conditional: bool  # the object is not always written

    @property
    def is_group(self):
        return self.value == "group"

    @property
    def holds(self):
        """What the getter returns, in words."""
        if self.kind == "position":
            return "its place in the list"
        choice = f"{self.choice}, alternative {self.alternative}: " if self.choice else ""
        times = {"plain": "", "optional": "optional ", "list": "list of "}[self.count]
        return f"{choice}{times}`{self.type}`"

    @property
    def plain_name(self):
        return self.getter.removeprefix("get_")

    @property
    def odd_names(self):
        """Whether the names are not get_ and set_ before the same."""
        return self.getter != f"get_{self.plain_name}" or self.setter != f"set_{self.plain_name}"


def read_elements(folder):
    return {row["path"]: Element(**(row | {"excludes": row["excludes"].split()}))
            for row in table(folder / "elements.tsv")}


def read_places(folder):
    """All fields in all their places, in the layout's order."""
    numbers = ("largest", "width", "wide_width", "base")
    flags = ("fewer", "omit_default", "even_empty", "run", "conditional")
    return [Place(**({name: value for name, value in row.items() if name != "class"}
                     | {"owner": row["class"]}
                     | {name: int(row[name] or 0) for name in numbers}
                     | {name: row[name] == "yes" for name in flags}))
            for row in table(folder / "fields.tsv")]


def read_subsystems(folder):
    """The names of the classes, by subsystem, in the order of their titles."""
    result = {name: [] for name in TITLES}
    for row in table(folder / "classes.tsv"):
        result[row["subsystem"]].append(row["class"])
    return result


def without_field(elements, places):
    """The elements in which nothing has a place; of a whole group, only the group."""
    known = set()
    for place in places:  # a group is known by whatever stands in it
        names = place.path.split("/")
        known |= {"/".join(names[:size]) for size in range(1, len(names) + 1)}
    result = []
    for path, element in elements.items():
        if path not in known and not (result and path.startswith(result[-1].path + "/")):
            result.append(element)
    return result


@dataclass
class Class:
    name: str
    meaning: str
    kind: str
    getters: dict  # accessor: comment


def joined(comment):
    return " ".join(line.strip().removeprefix("///").strip() for line in comment.splitlines())


def read_class(name, root=ROOT):
    text = (root / f"fiscal/{name}.hpp").read_text()
    comment = re.search(r"((?:^/// .*\n)+)class KIVO_ERP_FISCAL_EXPORT", text, re.M)
    meaning, kind, rest = re.split(r"\b(Eager|Lazy|In place): ", joined(comment[1]))
    meaning = re.match(r".*?\)(?=\.)|.*(?=\.)", meaning)[0]
    kind = kind.lower()
    if kind == "lazy" and "ends the process" in rest:
        kind = "lazy, copies end the process when they fail"
    getters = dict.fromkeys(re.findall(r"(\w+)\(\) const", text), "")
    for comment, getter in re.findall(r"((?:^    ///.*\n)+)[^;{}/]*?(\w+)\(\) const", text, re.M):
        getters[getter] = joined(comment)
    return Class(name, meaning, kind, getters)


def page_main(usage, file, make):
    """The program that makes a page from facts: prints it, or compares it with its file."""
    *options, folder = sys.argv[1:] or [""]
    if options not in ([], ["--compare"]) or not folder:
        sys.exit(usage)
    page = make(Path(folder))
    if not options:
        print(page, end="")
    elif page != (ROOT / file).read_text():
        sys.exit(f"{file} is not what the facts say: ./dev pages makes it anew")
