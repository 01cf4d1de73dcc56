#!/usr/bin/env python3
"""Checks the source tree against the rules of ARCHITECTURE.md: who may include whom, how long a file and a shape may be,
that no file names a directory of somebody's machine or keeps both sides of a merge, and that comments name the thing
first. Prints every breach and exits with 1 when there is one.

Usage: check_rules.py [ROOT]
"""

import os
import re
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from include_graph import IncludeGraph, included_names  # noqa: E402

LONGEST_FILE = 700
LONGEST_SHAPE = 40  # non-blank lines of C++ of one shape
SHAPE_SOURCE = re.compile(r"^shapes/([^/]+)/[^/]+\.(h|cpp)$")
MOST_UNITS_OF_A_KNOT = 2  # headers with their source files that all depend on each other
MOST_GOLDEN_FILES = 200  # of one folder
SKIPPED_DIRECTORIES = {".git", ".cache", "build"}
SKIPPED_AT_THE_ROOT = {"pages"}
TEXT_SUFFIXES = (".h", ".cpp", ".py", ".sh", ".md", ".txt", ".cmake", ".svg", ".qrc", ".json", ".in", ".ui", ".html")
EXTENSIONLESS_TEXT = {"run", "test"}
QT_MODULES = {"QtCore", "QtGui", "QtWidgets"}
STANDARD_HEADER = re.compile(r"^[a-z_0-9]+$|^[a-z]+\.h$|^(sys|linux)/[a-z_]+\.h$")
# A comment that opens with "What" describes a thing instead of naming it.
RIDDLES = {
    ".cpp": re.compile(r"//[/!<]*\s*(@name\s+)?What\b"),
    ".h": re.compile(r"//[/!<]*\s*(@name\s+)?What\b"),
    ".cmake": re.compile(r"^\s*#\s*What\b"),
    ".py": re.compile(r'^\s*(#|""")\s*What\b'),
    ".sh": re.compile(r"^\s*#\s*What\b"),
}
MACHINE_PATH = re.compile(r"(?<![\w./$}\-])/(work|root|home|tmp/bash_jobs|Users)/\w")
MERGE_MARKER = re.compile(r"^(<{7} |>{7} )")


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
    Component(
        ["shapes/declared/core"],
        prefixes=(
            "declared/core/",
            "declared/expressions/",
            "declared/reader/",
            "shapekit/",
            "svgobj/",
            "framework/",
            "svgbase/",
        ),
        headers=("pagehost/objectplugin.h",),
    ),
    Component(
        ["shapes/declared/plugin"],
        prefixes=("declared/", "shapekit/", "svgobj/", "framework/", "svgbase/"),
        headers=("pagehost/objectplugin.h",),
    ),
    Component(
        ["shapes/ink"],
        prefixes=("ink/", "shapekit/", "svgobj/", "framework/", "svgbase/"),
        headers=("pagehost/objectplugin.h", "pagehost/pagetool.h"),
    ),
    Component(
        ["shapes/line"],
        prefixes=("line/", "shapekit/", "svgobj/", "framework/", "svgbase/"),
        headers=("pagehost/objectplugin.h", "pagehost/pagetool.h", "pagehost/specialproperty.h"),
    ),
    Component(
        ["shapes/text"],
        prefixes=("text/", "shapekit/", "svgobj/", "framework/", "svgbase/"),
        headers=("pagehost/listmark.h", "pagehost/objectplugin.h", "pagehost/pagetool.h", "pagehost/textlinks.h"),
    ),
    Component(["shapes"], prefixes=("shapekit/", "svgobj/", "framework/", "svgbase/"), own=("shapes",)),
    Component(
        ["tools/checklist", "tools/shape"],
        prefixes=("checklist/", "declared/", "shapekit/", "svgobj/", "framework/", "svgbase/", "pagehost/"),
        own=("tools",),
    ),
    Component(
        ["board"],
        prefixes=("framework/", "pagehost/"),
        own=("board",),
        headers=("svgbase/qzesvgtinydocument.h",),
        qt=frozenset({"QtPrintSupport"}),
    ),
]


# The folders of each part of the tree, lowest first, and the other folders of the part that each may include.
ROOMS = {
    "reference/svgbase": {
        "grammar": "",
        "tree": "grammar",
        "images": "grammar tree",
        "properties": "grammar tree",
        "style": "grammar tree properties",
        "geometry": "grammar tree properties style",
        "text": "grammar tree images properties style geometry",
        "filters": "grammar",
        "raster": "grammar geometry",
        "resolve": "grammar tree images properties style geometry text filters",
        "scene": "grammar tree images properties geometry resolve",
        "paint": "grammar filters raster resolve scene",
        "animation": "grammar tree properties style geometry resolve",
        "document": "grammar tree images properties style geometry resolve scene paint animation",
    },
    "reference/framework": {
        "include/pagehost": "",
        "assets": "include/pagehost",
        "host": "include/pagehost",
        "pages": "include/pagehost host",
        "commands": "include/pagehost host",
        "files": "include/pagehost host",
        "lessons": "include/pagehost host files",
        "plugins": "include/pagehost",
        "painting": "include/pagehost",
    },
    "board": {
        "look": "",
        "output": "",
        "objects": "look",
        "page": "look",
        "core": "look page",
        "commands": "look objects page core",
        "presenting": "look page core",
        "clipboard": "look output objects page core",
        "documents": "look core",
        "lessons": "look output page core",
        "tools": "look page core",
        "panels/fields": "look core",
        "panels": "look objects page core panels/fields",
        "panels/editors": "look panels panels/fields",
        "panels/forms": "look core panels panels/editors panels/fields",
        "panels/settings": "core panels/editors panels/forms",
        "panels/properties": "core panels/editors panels/forms panels/settings",
        "exporting": "look output core documents panels/fields",
        "accessible": "look page core panels/settings",
        "window": "look output page core accessible commands presenting clipboard documents exporting lessons tools panels "
        "panels/fields panels/settings panels/properties",
        "application": "look output objects page core presenting documents lessons panels panels/settings "
        "panels/properties window",
        "": "application",
    },
}

# Folders that tests of a folder may stand for, and those below "tests" that stand for none.
TESTED_ROOTS = ("", "src", "reference")
UNMIRRORED_TESTS = ("support", "recordinghost", "package", "frozen", "shapes/coded", "svgbase/golden")


def text_files(root):
    """Paths, relative to the root, of hand-written files."""
    for directory, folders, files in os.walk(root):
        skipped = SKIPPED_DIRECTORIES | (SKIPPED_AT_THE_ROOT if os.path.samefile(directory, root) else set())
        folders[:] = sorted(f for f in folders if f not in skipped and not f.startswith("build-"))
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
    # Headers generated by Qt's meta-object compiler.
    if name.endswith(".moc") or name.startswith("moc_"):
        return True
    return STANDARD_HEADER.match(name) is not None


def include_breaches(root, path, lines):
    component = component_of(path)
    if component is None or not path.endswith((".h", ".cpp")):
        return
    for number, name in included_names(lines):
        if not may_include(component, root, path, name):
            yield f"{path}:{number}: may not include {name}"


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


def merge_breaches(path, lines):
    for number, line in enumerate(lines, 1):
        if MERGE_MARKER.match(line):
            yield f"{path}:{number}: a conflict of a merge was left open"


def room_of(part, folder):
    """Name of a folder inside of a part of the tree; None for one outside of it."""
    if folder != part and not folder.startswith(part + "/"):
        return None
    return folder[len(part) + 1 :]


def room_breaches(graph):
    for part, rooms in ROOMS.items():
        for (source, target), place in sorted(graph.folders.items()):
            room, other = room_of(part, source), room_of(part, target)
            if room is None or other is None:
                continue
            if other not in rooms.get(room, "").split():
                yield f"{place}: {source} may not include {target}"


def circle_breaches(graph):
    for one, other, place, back in graph.mutual_folders():
        yield f"{one} and {other} include each other: {place} and {back}"
    for knot in graph.knots(MOST_UNITS_OF_A_KNOT):
        yield f"{len(knot)} units depend on each other: {' '.join(knot)}"


def folders_below(root, start):
    """Folders with files below one, relative to it."""
    top = os.path.join(root, start)
    for directory, folders, files in os.walk(top):
        folders[:] = sorted(f for f in folders if f != "__pycache__")
        if files and directory != top:
            yield os.path.relpath(directory, top), files


def mirror_breaches(root):
    for folder, _ in folders_below(root, "tests"):
        if any(folder == name or folder.startswith(name + "/") for name in UNMIRRORED_TESTS):
            continue
        if not any(os.path.isdir(os.path.join(root, base, folder)) for base in TESTED_ROOTS):
            yield f"tests/{folder}: mirrors no folder of the sources"


def golden_breaches(root):
    for folder, files in folders_below(root, "tests/svgbase/golden"):
        if len(files) > MOST_GOLDEN_FILES:
            yield f"tests/svgbase/golden/{folder}: {len(files)} files, more than {MOST_GOLDEN_FILES}"
def comment_breaches(path, lines):
    kind = ".cmake" if os.path.basename(path) == "CMakeLists.txt" else os.path.splitext(path)[1]
    riddle = RIDDLES.get(kind)
    for number, line in enumerate(lines, 1):
        if riddle and riddle.search(line):
            yield f"{path}:{number}: the comment opens with 'What', name the thing instead"


def breaches(root):
    lines_of_shapes = {}
    graph = IncludeGraph(root)
    for path in text_files(root):
        with open(os.path.join(root, path), encoding="utf-8", errors="replace") as file:
            lines = file.read().splitlines()
        graph.add(path, lines)
        yield from include_breaches(root, path, lines)
        yield from length_breaches(path, lines)
        yield from path_breaches(path, lines)
        yield from merge_breaches(path, lines)
        yield from comment_breaches(path, lines)
        shape = SHAPE_SOURCE.match(path)
        if shape:
            written = sum(1 for line in lines if line.strip())
            lines_of_shapes[shape.group(1)] = lines_of_shapes.get(shape.group(1), 0) + written
    yield from shape_breaches(lines_of_shapes)
    yield from room_breaches(graph)
    yield from circle_breaches(graph)
    yield from mirror_breaches(root)
    yield from golden_breaches(root)


def main():
    root = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
    found = list(breaches(os.path.abspath(root)))
    for breach in found:
        print(breach)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
