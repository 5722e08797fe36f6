#!/usr/bin/env python3
"""Puts one fault at a time into the portable code and tells which ones no native test sees.

    faults.py <build> [--count 150] [--seed 1] [--only REGEX] [--report FILE]

A fault is a comparison turned, a constant moved, a condition inverted or a statement left out. The
places are drawn from the seed, so that two runs over the same code put in the same ones. Places in
EXCLUDED are not drawn: what they break is seen only on a screen, or not at all.

<build> is a configured build of the native tests, without sanitizers; its sources are the checkout
that this script lies in, which must have no change that is not committed.
"""
import argparse
import os
import random
import re
import resource
import subprocess
import sys
import time

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
FLOORS = ["platform", "toolkit", "settings", "language", "engine", "quantity", "alerts", "stats",
          "display", "preferences", "program"]
# Each with the reason why its faults are set aside.
EXCLUDED = {
    r"^platform/(windows|memory)/": "not the portable code",
    r"^program/main\.cpp$": "runs on Windows only",
    r"layout\.cpp$|sign\.cpp$|panel\.cpp$|images\.cpp$|image_list\.cpp$"
    r"|menu_painter\.cpp$|about_box\.cpp$": "painting and places of controls",
}
# Lines whose faults are places of controls, or programs that are equal.
EXCLUDED_LINES = re.compile(
    r"constexpr (int|platform::Rect|platform::Size|FieldColumn) k|\.(Label|Field)\(|\{\w+, \{|kMargin|kRow|SetBounds"
    r"|\.reserve\(|^\s*(//|#|case |default:|namespace|using|template|struct|class|enum)"
    r"|static_assert|assign\(|NOLINT"
    # places in the statistics windows and their rows
    r"|const int (address_left|since_top|since_height|check_top|lower|group|value_left|unit_left) = "
    r"|FigureRow::Columns k|GroupBox::kTitleHeight|since_height - kButtonHeight|group - \d|width - 81|details_\.SetBounds|unit_left \+"
    # A repaint, since pictures in memory are made when they are looked at; the size of a bitmap that
    # only measures; how long a window of another program may take; any number that is no size.
    r"|^\s*Invalidate\(\);|PlacePixels\(|CreateBitmap\(\{1, 1\}\)|kPatience = |\? size : 0;"
    # Columns of a page; bounds that only have to be far enough away; a triangle that is higher at
    # any resolution; a picture that is enlarged to its own size; a form, which lies on nothing that
    # would hide it.
    r"|\.Top\(|open_left|kTitlesRemembered|kLongestPosted|kLongestHistory|kWidestDrawn"
    r"|max\(Scale\(3\), 1\)|<= kTrayPictureSize\)"
    r"|visible_ = false;  // forms"
    # The room of a figure; how a hint, the letters of the scale and the arrows of a field look; a
    # first value that is always replaced; a picture that is composed once more than needed.
    r"|const int inner = bounds\.width|kScaleFont|window_->Invalidate|2 \* margin\) / std::max"
    r"|const int top = \(size\.height - rows\)|canvas\.Fill\(\{size\.width / 2 - half"
    r"|std::int64_t number = 0;|size\.width <= 0 \|\| size\.height <= 0\) return nullptr|picture_is_old_ \|\|")


def tokens(line):
    """(start, end, replacement, kind) of each fault that a line has room for."""
    code = re.sub(r'"(\\.|[^"\\])*"|\'(\\.|[^\'\\])*\'', lambda m: " " * len(m[0]), line)
    code = code.split("//")[0]
    turned = {"==": "!=", "!=": "==", "<=": "<", ">=": ">", "&&": "||", "||": "&&"}
    for m in re.finditer(r"==|!=|<=|>=|&&|\|\|", code):
        yield m.start(), m.end(), turned[m[0]], "comparison"
    for m in re.finditer(r"(?<=[\w)\]] )[<>](?= [\w(-])", code):
        yield m.start(), m.end(), m[0] + "=", "comparison"
    for m in re.finditer(r"(?<=[\w)\]] )[+-](?= [\w(])", code):
        yield m.start(), m.end(), "-" if m[0] == "+" else "+", "sign"
    for m in re.finditer(r"(?<![\w.])(\d+)(?![\w.])", code):
        yield m.start(), m.end(), str(int(m[1]) + 1), "constant"
    for m in re.finditer(r"\b(true|false)\b", code):
        yield m.start(), m.end(), "false" if m[0] == "true" else "true", "constant"
    for m in re.finditer(r"(?<=[(&|= ])!(?=[\w(])", code):
        yield m.start(), m.end(), "", "condition"
    statement = re.match(r"\s+(?!return|const|auto|static|if|for|while|break|continue|throw|else)"
                         r"[\w.:>\-\[\]]+(\(.*\)| \+?=[^=].*|\+\+|--)?;$", code)
    if statement and ("(" in code or "=" in code) and code.count("(") == code.count(")"):
        begin = len(line) - len(line.lstrip())
        if not re.match(r"\s+[\w:<>]+ \w+( = .*|\{.*)?;$", code):
            yield begin, len(line), ";", "statement"


def places():
    files = subprocess.check_output(["git", "ls-files"] + [f + "/*.cpp" for f in FLOORS], cwd=ROOT,
                                    text=True).split()
    for path in files:
        if any(re.search(pattern, path) for pattern in EXCLUDED):
            continue
        with open(os.path.join(ROOT, path), encoding="utf-8") as source:
            for number, line in enumerate(source.read().split("\n")):
                if EXCLUDED_LINES.search(line):
                    continue
                for begin, end, new, kind in tokens(line):
                    yield path, number, begin, end, new, kind


def put(path, number, begin, end, new):
    """Puts the fault in and returns the file as it was."""
    full = os.path.join(ROOT, path)
    with open(full, encoding="utf-8") as source:
        before = source.read()
    lines = before.split("\n")
    lines[number] = lines[number][:begin] + new + lines[number][end:]
    with open(full, "w", encoding="utf-8") as source:
        source.write("\n".join(lines))
    return before


def outcome(build):
    """"seen", "unseen", or "no program" where the fault does not compile."""
    made = subprocess.run(["cmake", "--build", build, "--target", "all"], capture_output=True,
                          text=True)
    if made.returncode != 0:
        return "no program"
    tested = subprocess.run(["ctest", "--test-dir", build, "--stop-on-failure", "--timeout", "60",
                             "-j", str(os.cpu_count()), "-E", "house"], capture_output=True)
    return "seen" if tested.returncode != 0 else "unseen"


def main():
    asked = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    asked.add_argument("build")
    asked.add_argument("--count", type=int, default=150)
    asked.add_argument("--seed", type=int, default=1)
    asked.add_argument("--only", default="", metavar="REGEX", help="in files whose path fits")
    asked.add_argument("--report")
    asked = asked.parse_args()
    if subprocess.check_output(["git", "status", "--porcelain", "-uno"], cwd=ROOT):
        sys.exit("faults: there are changes that are not committed")
    if outcome(asked.build) != "unseen":
        sys.exit("faults: the tests fail without a fault")
    # A fault that fills the memory must not take it from the machine.
    resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30))
    drawn = sorted(place for place in places() if re.search(asked.only, place[0]))
    random.Random(asked.seed).shuffle(drawn)
    report = open(asked.report, "w", encoding="utf-8") if asked.report else sys.stdout
    count = {"seen": 0, "unseen": 0}
    for path, number, begin, end, new, kind in drawn:
        if sum(count.values()) == asked.count:
            break
        started = time.time()
        before = put(path, number, begin, end, new)
        try:
            result = outcome(asked.build)
        finally:
            with open(os.path.join(ROOT, path), "w", encoding="utf-8") as source:
                source.write(before)
        if result in count:
            count[result] += 1
            line = before.split("\n")[number]
            print(f"{result:6} {path}:{number + 1} {kind}: {line.strip()}  "
                  f"[{line[begin:end].strip()} -> {new}]  {time.time() - started:.0f} s",
                  file=report, flush=True)
    print(f"seen {count['seen']} of {sum(count.values())} (seed {asked.seed}, "
          f"{len(drawn)} places)", file=report, flush=True)


if __name__ == "__main__":
    main()
