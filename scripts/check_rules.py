#!/usr/bin/env python3
"""Holds the source tree against the rules of ARCHITECTURE.md: who may include whom, how long a file and a shape may be, and that
no file names a directory of somebody's machine. Prints every breach and exits with 1 when there is one.

Usage: check_rules.py [ROOT]
"""

import os
import re
import sys

LONGEST_FILE = 700
LONGEST_SHAPE = 40  # lines of C++ of one shape that are not blank
SHAPE_SOURCE = re.compile(r"^shapes/([^/]+)/[^/]+\.(h|cpp)$")
SKIPPED_DIRECTORIES = {".git", ".cache", "build", "pages"}
TEXT_SUFFIXES = (".h", ".cpp", ".py", ".sh", ".md", ".txt", ".cmake", ".svg", ".qrc", ".json", ".in", ".ui", ".html")
EXTENSIONLESS_TEXT = {"run", "test"}
QT_MODULES = {"QtCore", "QtGui", "QtWidgets"}
STANDARD_HEADER = re.compile(r"^[a-z_0-9]+$|^[a-z]+\.h$|^(sys|linux)/[a-z_]+\.h$")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
MACHINE_PATH = re.compile(r"(?<![\w./$}\-])/(work|root|home|tmp/bash_jobs|Users)/\w")


class Component:
    """A part of the tree, the prefixes that it may include, and the directories its own headers are found in."""

    def __init__(self, folders, prefixes=(), own=(), headers=(), qt=frozenset()):
        self.folders = folders
        self.prefixes = prefixes
        self.own = own
        self.headers = headers
        self.qt = QT_MODULES | qt


LIBRARY_FOLDERS = ["include/svgobj"] + ["src/" + name for name in ("shape", "properties", "history", "render", "object")]

COMPONENTS = [
    Component(LIBRARY_FOLDERS, prefixes=("svgobj/", "framework/", "svgbase/"), own=("src",)),
    Component(["src/host/framework"], prefixes=("framework/",)),
    Component(["src/host/svgbase"], prefixes=("svgbase/",)),
    Component(["reference/svgbase"], prefixes=("svgbase/",), own=("reference/svgbase",)),
    Component(["reference/framework"], prefixes=("framework/", "pagehost/"), own=("reference/framework",)),
    Component(
        ["kit"],
        prefixes=("shapekit/", "svgobj/", "framework/", "svgbase/"),
        headers=("pagehost/objectplugin.h",),
    ),
    Component(["shapes"], prefixes=("shapekit/", "svgobj/", "framework/", "svgbase/"), own=("shapes",)),
    Component(["board"], prefixes=("framework/", "pagehost/"), own=("board",), qt=frozenset({"QtPrintSupport"})),
]


def text_files(root):
    """Paths, relative to the root, of the files that people wrote."""
    for directory, folders, files in os.walk(root):
        folders[:] = sorted(f for f in folders if f not in SKIPPED_DIRECTORIES and not f.startswith("build-"))
        for name in sorted(files):
            if name.endswith(TEXT_SUFFIXES) or name in EXTENSIONLESS_TEXT:
                yield os.path.relpath(os.path.join(directory, name), root)


def component_of(path):
    for component in COMPONENTS:
        if any(path.startswith(folder + "/") for folder in component.folders):
            return component
    return None


def is_own_header(component, root, path, name):
    """Whether the header belongs to the same component as the file that includes it."""
    candidates = [os.path.join(os.path.dirname(path), name)] + [os.path.join(base, name) for base in component.own]
    for candidate in candidates:
        candidate = os.path.normpath(candidate)
        if os.path.isfile(os.path.join(root, candidate)) and component_of(candidate) is component:
            return True
    return False


def may_include(component, root, path, name):
    if name.startswith(component.prefixes) or name in component.headers:
        return True
    if is_own_header(component, root, path, name):
        return True
    module = name.split("/")[0]
    if module.startswith("Qt") and "/" in name:
        return module in component.qt
    # Headers that are made while building: those of Qt's meta-object compiler.
    if name.endswith(".moc") or name.startswith("moc_"):
        return True
    return STANDARD_HEADER.match(name) is not None


def include_breaches(root, path, lines):
    component = component_of(path)
    if component is None or not path.endswith((".h", ".cpp")):
        return
    for number, line in enumerate(lines, 1):
        match = INCLUDE.match(line)
        if match and not may_include(component, root, path, match.group(2)):
            yield f"{path}:{number}: may not include {match.group(2)}"


def length_breaches(path, lines):
    if len(lines) > LONGEST_FILE:
        yield f"{path}: {len(lines)} lines, more than {LONGEST_FILE}"


def shape_breaches(lines_of_shapes):
    for shape, count in sorted(lines_of_shapes.items()):
        if count > LONGEST_SHAPE:
            yield f"shapes/{shape}: {count} lines of C++, more than {LONGEST_SHAPE}"


def path_breaches(path, lines):
    for number, line in enumerate(lines, 1):
        match = MACHINE_PATH.search(line)
        if match:
            yield f"{path}:{number}: names a directory of one machine: {match.group(0)}"


def breaches(root):
    lines_of_shapes = {}
    for path in text_files(root):
        with open(os.path.join(root, path), encoding="utf-8", errors="replace") as file:
            lines = file.read().splitlines()
        yield from include_breaches(root, path, lines)
        yield from length_breaches(path, lines)
        yield from path_breaches(path, lines)
        shape = SHAPE_SOURCE.match(path)
        if shape:
            written = sum(1 for line in lines if line.strip())
            lines_of_shapes[shape.group(1)] = lines_of_shapes.get(shape.group(1), 0) + written
    yield from shape_breaches(lines_of_shapes)


def main():
    root = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
    found = list(breaches(os.path.abspath(root)))
    for breach in found:
        print(breach)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
