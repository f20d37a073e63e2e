#!/usr/bin/env python3
"""Draws the charts of docs/performance.md from the figures of one run.

charts.py record RUN    prints the figures of a run of the benchmarks, which wrote its results with
                        --benchmark_out=RUN, as docs/performance.tsv
charts.py [--compare]   draws docs/performance-*.svg from docs/performance.tsv, or fails where the
                        files are others
"""

import json
import math
import sys
from collections import defaultdict
from pathlib import Path
from statistics import median

from facts import ROOT, table

FIGURES = ROOT / "docs/performance.tsv"
OPERATIONS = ["build", "copy", "assign", "read", "destroy"]
HOLDERS = ["library", "plain structures", "protobuf", "protobuf arena", "XSD tree"]
COLOURS = ["#1f77b4", "#8c8c8c", "#d1741f", "#2f9e5f", "#a05cc0"]
STYLE = """\
<style>
text { font: 13px sans-serif; fill: #222; }
.small { font-size: 11px; }
.line { stroke: #ccc; }
.page { fill: #fff; }
@media (prefers-color-scheme: dark) {
    text { fill: #ddd; }
    .line { stroke: #555; }
    .page { fill: #1b1c1d; }
}
</style>
<rect class="page" width="100%" height="100%"/>"""
WIDTH = 450  # read on a phone, too


def figures():
    """Nanoseconds per item, by operation and holder, and then by number of items."""
    result = defaultdict(dict)
    for row in table(FIGURES):
        result[row["operation"], row["holder"]][int(row["items"])] = float(row["ns_per_item"])
    return result


def record(run):
    times = defaultdict(list)
    for result in json.loads(Path(run).read_text())["benchmarks"]:
        parts = result["name"].split("/")
        if result["run_type"] == "iteration" and len(parts) >= 3 and parts[2].isdigit():
            operation, holder, items = parts[:3]
            if operation in OPERATIONS and holder in HOLDERS:
                times[operation, holder, int(items)].append(result["cpu_time"])
    yield "operation\tholder\titems\tns_per_item"
    for (operation, holder, items), found in times.items():
        yield f"{operation}\t{holder}\t{items}\t{median(found) / items:.0f}"


def short(nanoseconds):
    return f"{nanoseconds:.0f} ns" if nanoseconds < 995 else f"{nanoseconds / 1000:.1f} µs"


def document(height, title, lines):
    return "\n".join([f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {height}" '
                      f'width="{WIDTH}" height="{height}" role="img" aria-label="{title}">',
                      f"<title>{title}</title>", STYLE, *lines, "</svg>", ""])


def text(x, y, words, anchor="start", kind=""):
    return f'<text x="{x:.0f}" y="{y:.0f}" text-anchor="{anchor}"{kind and f" class={kind!r}"}>{words}</text>'


def growth(all_figures):
    """Lines over the number of items, both axes logarithmic."""
    lines = []
    left, right, top, bottom = 56, 330, 16, 270
    sizes = sorted({size for operation in OPERATIONS for size in all_figures[operation, "library"]})

    def x(items):
        return left + (right - left) * math.log10(items) / math.log10(sizes[-1])

    def y(nanoseconds):
        return bottom - (bottom - top) * (math.log10(nanoseconds) - 2) / 2

    for mark in (100, 1000, 10000):
        lines += [f'<line class="line" x1="{left}" x2="{right}" y1="{y(mark):.0f}" y2="{y(mark):.0f}"/>',
                  text(left - 8, y(mark) + 4, short(mark), "end", "small")]
    lines += [text(x(size), bottom + 18, size, "middle", "small") for size in sizes]
    lines.append(text((left + right) / 2, bottom + 38, "items of the invoice", "middle"))
    taken = []
    for operation, colour in zip(OPERATIONS, COLOURS):
        points = sorted(all_figures[operation, "library"].items())
        path = " ".join(f"{x(items):.0f},{y(value):.0f}" for items, value in points)
        label = y(points[-1][1])
        while any(abs(label - other) < 14 for other in taken):
            label += 2
        taken.append(label)
        lines += [f'<polyline points="{path}" fill="none" stroke="{colour}" stroke-width="2"/>',
                  *(f'<circle cx="{x(items):.0f}" cy="{y(value):.0f}" r="3.5" fill="{colour}"/>'
                    for items, value in points),
                  text(right + 12, label + 4, f"{operation}, {short(points[-1][1])}")]
    return document(320, "Time per item, by the number of items", lines)


def peers(all_figures, items=100):
    """Bars for each operation, a bar for each holder, on a logarithmic axis."""
    lines = []
    left, right, bar, gap = 66, 430, 15, 14
    least, most = 10, 4000

    def x(nanoseconds):
        return left + (right - left) * math.log10(nanoseconds / least) / math.log10(most / least)

    height = 30 + len(OPERATIONS) * (len(HOLDERS) * bar + gap) + 24
    for mark in (10, 100, 1000):
        lines += [f'<line class="line" x1="{x(mark):.0f}" x2="{x(mark):.0f}" y1="24" y2="{height - 30}"/>',
                  text(x(mark), height - 12, short(mark), "middle", "small")]
    at = 4
    for number, (holder, colour) in enumerate(zip(HOLDERS, COLOURS)):
        lines += [f'<rect x="{at}" y="4" width="11" height="11" fill="{colour}"/>',
                  text(at + 16, 14, holder, kind="small")]
        at += 28 + 6 * len(holder)
    y = 30
    for operation in OPERATIONS:
        lines.append(text(left - 10, y + len(HOLDERS) * bar / 2 + 4, operation, "end"))
        for holder, colour in zip(HOLDERS, COLOURS):
            value = all_figures[operation, holder][items]
            lines += [f'<rect x="{left}" y="{y}" width="{x(value) - left:.0f}" height="{bar - 2}" '
                      f'fill="{colour}"/>', text(x(value) + 5, y + bar - 4, short(value), kind="small")]
            y += bar
        y += gap
    return document(height, f"Time per item in an invoice of {items} items", lines)


def main(*arguments):
    if len(arguments) == 2 and arguments[0] == "record":
        print(*record(arguments[1]), sep="\n")
        return
    if arguments not in ((), ("--compare",)):
        sys.exit(__doc__)
    for name, draw in {"growth": growth, "peers": peers}.items():
        file = ROOT / f"docs/performance-{name}.svg"
        if not arguments:
            file.write_text(draw(figures()))
        elif file.read_text() != draw(figures()):
            sys.exit(f"{file.name} is not drawn from docs/performance.tsv: ./dev pages draws it anew")


if __name__ == "__main__":
    main(*sys.argv[1:])
