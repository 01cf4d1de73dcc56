"""Which files of the source tree include which, as a graph of folders and as one of units: a header and its source file are one
unit.
"""

import os
import re

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
SOURCE_SUFFIXES = (".h", ".cpp")
# Folders that public headers are found in.
PUBLIC_BASES = ("include", "src/host", "reference/framework/include", "kit/include")
# Folders that headers of a part of the tree are found in, by the beginning of the including file's path.
OWN_BASES = {
    "src/": ("src",),
    "reference/svgbase/": ("reference/svgbase",),
    "reference/framework/": ("reference/framework",),
    "kit/": ("kit/src",),
    "shapes/": ("shapes",),
    "tools/": ("tools", "shapes"),
    "board/": ("board",),
    "bench/": ("board",),
    "tests/": ("tests", "tools", "src", "reference/svgbase", "reference/framework", "board"),
    "fuzz/": ("tests", "src", "reference/svgbase"),
}


def included_names(lines):
    """Pairs of line number and name of every include."""
    for number, line in enumerate(lines, 1):
        match = INCLUDE.match(line)
        if match:
            yield number, match.group(2)


def unit_of(path):
    return os.path.splitext(path)[0]


def bases_of(path):
    own = [bases for start, bases in OWN_BASES.items() if path.startswith(start)]
    return (os.path.dirname(path),) + (own[0] if own else ()) + PUBLIC_BASES


def strongly_connected(graph):
    """Sets of more than one node that all reach each other (Tarjan), without recursion."""
    index, low, open_nodes, result = {}, {}, [], []
    on_stack = set()
    for start in sorted(graph):
        if start in index:
            continue
        index[start] = low[start] = len(index)
        open_nodes.append(start)
        on_stack.add(start)
        walk = [(start, iter(sorted(graph[start])))]
        while walk:
            node, targets = walk[-1]
            for target in targets:
                if target not in index:
                    index[target] = low[target] = len(index)
                    open_nodes.append(target)
                    on_stack.add(target)
                    walk.append((target, iter(sorted(graph.get(target, ())))))
                    break
                if target in on_stack:
                    low[node] = min(low[node], index[target])
            else:
                walk.pop()
                if walk:
                    low[walk[-1][0]] = min(low[walk[-1][0]], low[node])
                if low[node] == index[node]:
                    component = set()
                    while node not in component:
                        component.add(open_nodes.pop())
                    on_stack -= component
                    if len(component) > 1:
                        result.append(component)
    return result


class IncludeGraph:
    """The includes between files of a tree. Headers that are not in the tree don't count."""

    def __init__(self, root):
        self.root = root
        self.units = {}
        # By pair of folders: an include that leads from the first to the second.
        self.folders = {}

    def add(self, path, lines):
        if not path.endswith(SOURCE_SUFFIXES):
            return
        unit = unit_of(path)
        targets = self.units.setdefault(unit, set())
        for number, name in included_names(lines):
            header = self.find(path, name)
            if header is None or unit_of(header) == unit:
                continue
            targets.add(unit_of(header))
            folders = (os.path.dirname(path), os.path.dirname(header))
            if folders[0] != folders[1]:
                self.folders.setdefault(folders, f"{path}:{number}")

    def find(self, path, name):
        """Path of an included header, relative to the root; None for one that is not in the tree."""
        for base in bases_of(path):
            candidate = os.path.normpath(os.path.join(base, name))
            if os.path.isfile(os.path.join(self.root, candidate)):
                return candidate
        return None

    def mutual_folders(self):
        """Pairs of folders that include each other, each with an include of either direction."""
        for (one, other), place in sorted(self.folders.items()):
            if one < other and (other, one) in self.folders:
                yield one, other, place, self.folders[(other, one)]

    def knots(self, most):
        """Lists of more than `most` units that all depend on each other."""
        for component in strongly_connected(self.units):
            if len(component) > most:
                yield sorted(component)
