#!/usr/bin/env python3
"""Compares the numbers that README, LEIAME and docs/ tell of the classes with the source.

numbers_in_prose.py FACTS [ROOT]    the folder of facts, and the tree whose documents are read
"""

import re
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "docs/reference"))
from facts import ROOT, read_places, read_subsystems  # noqa: E402


def counts(folder, root):
    """What can be counted, by the words that stand behind the number."""
    places = read_places(folder)
    pairs = {(place.owner, place.getter) for place in places if place.owner}
    classes = sum(map(len, read_subsystems(folder).values()))
    copies = re.compile(r"\(const \w+& other\) noexcept;")
    never_failing = sum(1 for header in (root / "fiscal").glob("*.hpp")
                        if any("operator" not in line and copies.search(line)
                               for line in header.read_text().splitlines()))
    of_icms = {place.type for place in places
               if place.getter == "get_tributacao" and place.alternative.startswith("0, ")}
    return {
        r"(?:C\+\+20 value |value )?classes(?: de valor)?(?! promise| lazy| \*lazy)": classes,
        r"(?:small |pequenas )?(?:lazy classes|classes \*?lazy\*?)": never_failing,
        r"(?:accessor pairs|fields|campos)": len(pairs),
        r"(?:groups|grupos)(?=, o[ru])": len(of_icms),
    }


def faults(folder, root):
    documents = [root / "README.md", root / "LEIAME.md", *sorted((root / "docs").glob("*.md"))]
    for words, expected in counts(folder, root).items():
        met = False
        for document in documents:
            text = document.read_text().replace("\n", " ")
            for found in re.finditer(rf"\b([\d,.]*\d) {words}", text):
                met = True
                if found[1].replace(",", "") != str(expected):
                    yield f"{document.relative_to(root)}: \"{found[0]}\" are {expected}"
        if not met:
            yield f"no document tells the number of {words}"


if __name__ == "__main__":
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    wrong = list(faults(Path(sys.argv[1]), Path(sys.argv[2]) if len(sys.argv) == 3 else ROOT))
    if wrong:
        sys.exit("\n".join(wrong))
