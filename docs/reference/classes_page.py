#!/usr/bin/env python3
"""Makes docs/classes.md: the classes by subsystem, from the comments of their headers.

classes_page.py [--compare] FACTS    prints it, or fails where the file is another; the folder of
                                     facts is told in facts.py
"""

from facts import TITLES, page_main, read_class, read_subsystems


def classes_page(folder):
    lines = [
        "# Classes by subsystem",
        "",
        "Each name is a header and a source in `fiscal/`; the class comment tells its kind in full.",
        "`fiscal/nota_fiscal.hpp` includes them all. `./dev pages` makes this page from the comments.",
    ]
    for name, classes in read_subsystems(folder).items():
        lines += ["", f"## {TITLES[name]}", "", "| class | kind | what it holds |", "|---|---|---|"]
        lines += [f"| `{each.name}` | {each.kind} | {each.meaning} |" for each in map(read_class, classes)]
    lines += [
        "",
        "`valor_cred_pres` and `valor_cred_pres_sus` are plain structures of one amount, in",
        "`fiscal/valor_cred_pres.hpp`. Enumerations that several classes share stand in headers of their own:",
        "`csosn`, `cst`, `cst_ipi`, `modalidade_bc_icms`, `modalidade_bc_icms_st`, `origem_cst`,",
        "`tipo_emissao`.",
    ]
    return "\n".join(lines) + "\n"


if __name__ == "__main__":
    page_main(__doc__, "docs/classes.md", classes_page)
