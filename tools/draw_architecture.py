#!/usr/bin/env python3
"""Draws docs/images/floors.svg and scan.svg from the code: what includes what, and the steps of a scan.

The floors are those of the table in docs/architecture.md, the includes those of their sources, and
the steps the calls in ScanCycle::Run.
"""
import html
import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parents[1]
IMAGES = ROOT / "docs/images"
INCLUDE = re.compile(r'^#include "(?!program/product.h)([a-z]+)/', re.MULTILINE)  # names only
STYLE = """<style>
text { font: 13px "Segoe UI", sans-serif; fill: #222 }
.name { font-weight: bold }
.quiet { fill: #777 }
.card { fill: #fff }
.box { fill: #e8eef6; stroke: #8aa4c4 }
.line { stroke: #8aa4c4; fill: none }
.dot { fill: #0a58a8 }
</style>"""


class Drawing:
    def __init__(self):
        self.parts = []
        self.dots = []  # lie upon all else

    def text(self, x, y, words, kind="", anchor="start"):
        self.parts.append(f'<text x="{x}" y="{y}" class="{kind}" text-anchor="{anchor}">'
                          f"{html.escape(words)}</text>")

    def box(self, x, y, width, height, kind="box"):
        self.parts.append(f'<rect x="{x}" y="{y}" width="{width}" height="{height}" class="{kind}"/>')

    def line(self, x1, y1, x2, y2):
        self.parts.append(f'<path d="M{x1} {y1}L{x2} {y2}" class="line"/>')

    def dot(self, x, y):
        self.dots.append(f'<circle cx="{x}" cy="{y}" r="5" class="dot"/>')

    def save(self, name, width, height):
        head = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
                f'viewBox="0 0 {width} {height}">\n{STYLE}\n'
                f'<rect width="{width}" height="{height}" class="card"/>\n')
        (IMAGES / name).write_text(head + "\n".join(self.parts + self.dots) + "\n</svg>\n", encoding="utf-8")


def floors():
    """(number, folder) of each folder, from the top."""
    table = (ROOT / "docs/architecture.md").read_text(encoding="utf-8")
    rows = re.findall(r"^\| (\d+) \| ([^|]*) \|", table, re.MULTILINE)
    return [(int(number), folder) for number, folders in rows
            for folder in re.findall(r"`([a-z]+)/`", folders)]


def included_by(folder):
    """The folders whose headers the sources of a folder include."""
    sources = (path for path in (ROOT / folder).rglob("*") if path.suffix in (".h", ".cpp"))
    return {name for path in sources
            for name in INCLUDE.findall(path.read_text(encoding="utf-8"))} - {folder}


def draw_floors():
    """A flight of stairs: a box's line goes right, and down at a dot to what it includes."""
    rows = floors()
    width, height, right, down, left, top = 126, 26, 78, 40, 10, 40
    drawing = Drawing()
    drawing.text(left, 24, "Which folder includes which: a line goes right and, at a dot, down", "quiet")
    for at, (_, folder) in enumerate(rows):
        y = top + at * down + height / 2
        columns = [below for below, (_, name) in enumerate(rows) if name in included_by(folder)]
        for below in columns:
            x = left + below * right + width / 2
            drawing.line(left + at * right + width / 2, y, x, y)
            drawing.line(x, y, x, top + below * down + height / 2)
            drawing.dot(x, y)
    for at, (number, folder) in enumerate(rows):
        x, y = left + at * right, top + at * down
        drawing.box(x, y, width, height)
        drawing.text(x + 8, y + 18, str(number), "quiet")
        drawing.text(x + 30, y + 18, folder, "name")
    last = len(rows) - 1
    drawing.save("floors.svg", left * 2 + last * right + width, top + last * down + height + 10)


def body_of(source, method):
    start = source.index(f" ScanCycle::{method}(")
    return source[start:source.index("\n}\n", start)]


def steps_of_scan():
    """(member, call) of each step; a method of the cycle's own counts as the step it leads to."""
    source = (ROOT / "engine/scan_cycle.cpp").read_text(encoding="utf-8")
    run = body_of(source, "Run")
    steps = []
    for line in run[run.index("\n\n"):].splitlines():
        if own := re.match(r"  ([A-Z]\w*)\(", line):
            steps.append(("steps_", re.search(r"steps_\.(\w+)", body_of(source, own[1]))[1]))
        for member, call in re.findall(r"\b(\w+_)\.(\w+)\(", line):
            steps.append((member, call))
    return steps


def draw_scan():
    steps = steps_of_scan()
    lanes = list(dict.fromkeys(member for member, _ in steps))
    width, step, left, top = 190, 34, 20, 60
    drawing = Drawing()
    for at, lane in enumerate(lanes):
        x = left + at * width
        drawing.text(x + 85, 30, "the floors above" if lane == "steps_" else lane.rstrip("_"), "name",
                     "middle")
        drawing.text(x + 85, 46, lane, "quiet", "middle")
    before = None
    for at, (member, call) in enumerate(steps):
        x, y = left + lanes.index(member) * width, top + at * step
        if before is not None:
            drawing.line(before + 85, y - 8, x + 85, y)
        drawing.box(x, y, 170, step - 8)
        drawing.text(x + 85, y + 17, call, "", "middle")
        before = x
    drawing.save("scan.svg", left + len(lanes) * width, top + len(steps) * step + 10)


if __name__ == "__main__":
    draw_floors()
    draw_scan()
