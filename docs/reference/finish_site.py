#!/usr/bin/env python3
"""Finishes the site that Doxygen made, and fails where its search misses what it should find.

finish_site.py SITE FACTS

Doxygen's search finds the beginnings of names, and accessors begin with get_: each name is put into
the index of its later words, too. Long names may break behind _, :: and /. Pages say their language.
"""

import re
import sys
from collections import defaultdict
from pathlib import Path

from facts import (TITLES, last_name, read_elements, read_places, read_subsystems,
                   without_field)

GUIDE_IN_PORTUGUESE = "md_docs_guia"
PORTUGUESE = {f"{GUIDE_IN_PORTUGUESE}.html", "md_LEIAME.html"}
INDEX = re.compile(r"^  \['(\w+?)_\d+',(.*)\],?$", re.M)
LETTERS = re.compile(r"^  0: \"(.*)\"", re.M)


def later_words(identifier, entry):
    """What a name can be looked for beside its beginning."""
    words = identifier.split("_5f")
    yield from ("_5f".join(words[at:]) for at in range(1, len(words)) if words[at])
    element = re.match(r"\['([a-zA-Z]+)',\['\.\./element_", entry)
    if element:  # vFrete: Frete
        for capital in re.finditer(r"(?<=[a-z])[A-Z]", element[1]):
            yield element[1][capital.start():].lower()


def read_index(search):
    """The entries of the whole index, by what is looked for."""
    letters = LETTERS.search((search / "searchdata.js").read_text())[1]
    files = [search / f"all_{number:x}.js" for number in range(len(letters))]
    return letters, files, [INDEX.findall(file.read_text()) for file in files]


def add_later_words(search):
    letters, files, indices = read_index(search)
    more = defaultdict(set)
    for entries in indices:
        for identifier, entry in entries:
            for word in later_words(identifier, entry):
                more[word[0]].add((word, entry))
    for letter, file, entries in zip(letters, files, indices):
        lines = sorted({*entries, *more[letter]}, key=lambda line: (line[0].lower(), line[1]))
        file.write_text("var searchData=\n[\n" + ",\n".join(
            f"  ['{word}_{number}',{entry}]" for number, (word, entry) in enumerate(lines)) + "\n];\n")


def with_breaks(html):
    """A page whose long names may go on in the next line."""
    def text(part):
        return re.sub(r"[\w:/.]{16,}", lambda word: re.sub(r"(?<=\w)(_+|::|/)(?=\w)", r"\1<wbr/>", word[0]),
                      part)

    kept = r"<(script|style|title|head)\b.*?</\1>|<div class=\"fragment\">.*?<!-- fragment -->|<!--.*?-->|<[^>]*>"
    result, end = [], 0
    for found in re.finditer(kept, html, re.S):
        result += [text(html[end:found.start()]), found[0]]
        end = found.end()
    return "".join([*result, text(html[end:])])


def add_to_menu(site, subsystems):
    """Guides, subsystems and elements stand in the menu, which is all there is on a phone."""
    def entry(title, page, children=()):
        inner = ",children:[" + ",".join(children) + "]" if children else ""
        return f'{{text:"{title}",url:"{page}.html"{inner}}}'

    own = ",".join([
        entry("Guide", "md_docs_guide"),
        entry("Guia (em português)", GUIDE_IN_PORTUGUESE),
        entry("Subsystems", "subsystems",
              [entry(TITLES[name], f"subsystem_{name}") for name in subsystems]),
        entry("Elements of the layout", "elements"),
    ])
    menu = site / "menudata.js"
    text, count = re.subn(r'(var menudata=\{children:\[\s*\{[^{}]*\},)', rf"\1\n{own},", menu.read_text())
    if count != 1:
        sys.exit("site: the menu is not as it was")
    menu.write_text(text)


def finish_pages(site):
    for page in site.glob("*.html"):
        language = "pt-BR" if page.name in PORTUGUESE else "en"
        html = page.read_text().replace("<html xmlns=", f'<html lang="{language}" xmlns=', 1)
        page.write_text(with_breaks(html))


def faults(site, folder):
    letters, _, indices = read_index(site / "search")

    def found(word):
        entries = indices[letters.index(word[0].lower())]
        encoded = word.lower().replace("_", "_5f")
        return [entry for identifier, entry in entries if identifier.lower().startswith(encoded)]

    places, elements = read_places(folder), read_elements(folder)
    for name in {last_name(path) for path in elements}:
        if not any(f"element_{name}.html" in entry for entry in found(name)):
            yield f"the search does not find {name}"
    for element in without_field(elements, places):
        if "No class has a field" not in (site / f"element_{last_name(element.path)}.html").read_text():
            yield f"the page of {element.path} does not say that it has no field"
    for place in places:
        if place.owner:
            for word in (place.plain_name, place.plain_name.split("_")[-1]):
                if word[0] in letters and not any(f"'{place.getter}'" in entry for entry in found(word)):
                    yield f"the search for {word} does not find {place.getter}"
    for page in PORTUGUESE:
        if 'lang="pt-BR"' not in (site / page).read_text():
            yield f"{page} does not say its language"


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    SITE, FACTS = map(Path, sys.argv[1:])
    add_later_words(SITE / "search")
    add_to_menu(SITE, read_subsystems(FACTS))
    finish_pages(SITE)
    missing = list(dict.fromkeys(faults(SITE, FACTS)))
    if missing:
        sys.exit("\n".join(f"site: {fault}" for fault in missing))
