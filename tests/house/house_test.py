#!/usr/bin/env python3
"""Rules that hold for every source file, and for what is written about the commands."""
import os
import re
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
FLOORS = {"platform": 1, "toolkit": 2, "settings": 3, "language": 3, "engine": 4, "quantity": 5,
          "alerts": 6, "stats": 7, "display": 8, "preferences": 9, "program": 10}
# Streams and locales bring tables that make the executable twice as large.
HEAVY = set("iostream istream ostream fstream sstream iomanip locale codecvt regex filesystem format"
            " strstream syncstream clocale".split())


def read(path):
    with open(os.path.join(ROOT, path), encoding="utf-8") as file:
        return file.read()


def sources(*folders):
    """The path of each source, from the root."""
    for folder in folders:
        for place, _, names in os.walk(os.path.join(ROOT, folder)):
            for name in names:
                if name.endswith((".h", ".cpp")):
                    yield os.path.relpath(os.path.join(place, name), ROOT).replace(os.sep, "/")


def body(path):
    """The folder of a body of the platform; None for all else."""
    found = re.match(r"platform/(\w+)/", path)
    return found and found[1]


def fault(path, quoted, target):
    """Why a product's file may not include this; None where it may."""
    if not quoted:
        if target in HEAVY:
            return "is heavy"
        # The standard library's headers have no ending. The system's macros rename what bears the
        # name of a call, so that two files would see two different classes.
        return "is the system's" if "." in target and body(path) != "windows" else None
    if target == "program/product.h":  # names, which say nothing about the program
        return None
    if path == "program/main.cpp":  # puts the program together
        return "is in memory" if body(target) == "memory" else None
    if body(target):
        return "is a body of the platform" if body(target) != body(path) else None
    floor = FLOORS.get(target.split("/")[0], 99)
    return "climbs" if floor > FLOORS[path.split("/")[0]] else None


class House(unittest.TestCase):
    def test_no_include_climbs_and_the_system_stays_behind_the_fence(self):
        self.assertIsNone(fault("engine/a.cpp", True, "platform/b.h"))
        for path, quoted, target in (("engine/a.cpp", True, "display/b.h"),
                                     ("display/a.cpp", True, "platform/memory/b.h"),
                                     ("display/a.cpp", False, "windows.h")):
            self.assertIsNotNone(fault(path, quoted, target), "the check sees nothing")
        checked = 0
        for path in sources(*FLOORS):
            for open_, target in re.findall(r'^\s*#include\s+(["<])([^">]+)', read(path), re.M):
                checked += 1
                self.assertIsNone(fault(path, open_ == '"', target), f"{path}: {target}")
        self.assertGreater(checked, 1000, "the sources were not found")

    def test_every_folder_of_tests_is_built(self):
        listed = re.split(r'[\s";)]+', read("cmake/tests.cmake"))
        for path in sources("tests"):
            if path.endswith("_test.cpp"):
                self.assertIn(os.path.dirname(path), listed)

    def test_the_readme_and_the_usage_list_the_words_of_dev(self):
        script = read("dev")
        words = set(re.findall(r"^word_([\w-]+)\(\) \{", script, re.M))
        self.assertIn("test", words)
        self.assertEqual(set(re.findall(r"`\./dev ([^ `]+)`", read("README.md"))), words)
        for word in words:
            self.assertIn(f"\n#   {word} ", script, "the usage at the head of ./dev")


if __name__ == "__main__":
    unittest.main()
