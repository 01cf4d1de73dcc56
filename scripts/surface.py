#!/usr/bin/env python3
"""The public surface of the library as text: the symbols that gliololok.so exports and the virtual slots of the classes
that shapes derive from, in slot order.

Usage: surface.py check|update BUILD-DIRECTORY

"check" compares it with docs/abi.txt, shows what differs and exits with 1 when something does; "update" writes the file.
A change of that file is a change of the binary interface: review it as such.
"""

import difflib
import os
import re
import subprocess
import sys
import tempfile

ROOT = os.path.abspath(os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
REVIEWED = os.path.join(ROOT, "docs", "abi.txt")
CLASSES = ["CSVGBase", "CSVGObj", "CSVGBaseUndoCmd", "CSVGAnimate"]
HEADERS = ["csvgobj", "csvgbase", "csvgpropitem", "csvgbaseundocmd", "csvganimate"]
# Weak symbols are copies of inline code, which users of the headers compile themselves.
WEAK_KINDS = set("WwVvu")
# The name of the version of all symbols.
VERSION_KINDS = set("A")
LINKER_SYMBOLS = {"__bss_start", "_edata", "_end", "_init", "_fini"}
NOTE = "# Written by scripts/surface.py update BUILD-DIRECTORY; see there.\n"


def output_of(*command, text=None):
    return subprocess.run(command, input=text, check=True, capture_output=True, text=True).stdout


def exported_symbols(library):
    names = set()
    for line in output_of("nm", "-DC", "--defined-only", library).splitlines():
        match = re.match(r"^[0-9a-f]+ (\w) (.*?)(?:@@\w+)?$", line)
        if match and match.group(1) not in WEAK_KINDS | VERSION_KINDS and match.group(2) not in LINKER_SYMBOLS:
            names.add(match.group(2))
    return sorted(names)


def class_dump():
    """The compiler's dump of the class layouts."""
    flags = output_of("pkg-config", "--cflags", "Qt5Widgets").split()
    includes = ["-I" + os.path.join(ROOT, "include"), "-I" + os.path.join(ROOT, "src", "host")]
    source = "".join(f"#include <svgobj/{header}.h>\n" for header in HEADERS)
    with tempfile.TemporaryDirectory() as directory:
        dump = os.path.join(directory, "classes.txt")
        command = ["g++", "-std=c++17", "-fPIC", "-x", "c++", "-c", "-", "-o", os.devnull]
        output_of(*command, f"-fdump-lang-class={dump}", *flags, *includes, text=source)
        with open(dump, encoding="utf-8") as file:
            return file.read()


def virtual_slots(dump, name):
    """The functions of the class's virtual tables in slot order."""
    table = re.search(rf"^Vtable for {name}$\n(?:.*\n)*?\n", dump, re.MULTILINE)
    entries = re.findall(r"^\d+ +(?:\(int \(\*\)\(\.\.\.\)\))?(\S.*)$", table.group(0), re.MULTILINE)
    slots = []
    for entry in entries:
        if entry.startswith("(& _ZTI"):
            slots.pop()  # each table begins with its offset and the class's type information
        else:
            slots.append(readable(entry))
    return slots


def readable(entry):
    if entry == "0":
        return "destructor"  # the compiler leaves these slots of an abstract class empty
    match = re.match(r"^\w+::(_ZT[hv]\w+)$", entry)
    return output_of("c++filt", match.group(1)).strip() if match else entry


def surface(build):
    library = os.path.join(build, "lib", "gliololok.so")
    lines = [NOTE, "\n[exported symbols]\n"]
    lines += [name + "\n" for name in exported_symbols(library)]
    dump = class_dump()
    for name in CLASSES:
        lines.append(f"\n[virtual slots of {name}]\n")
        lines += [f"{slot} {function}\n" for slot, function in enumerate(virtual_slots(dump, name))]
    return "".join(lines).splitlines(keepends=True)


def check(lines):
    with open(REVIEWED, encoding="utf-8") as file:
        reviewed = file.readlines()
    difference = list(difflib.unified_diff(reviewed, lines, "docs/abi.txt", "the library as built"))
    sys.stdout.writelines(difference)
    return 1 if difference else 0


def update(lines):
    with open(REVIEWED, "w", encoding="utf-8") as file:
        file.writelines(lines)
    return 0


def main():
    if len(sys.argv) != 3 or sys.argv[1] not in ("check", "update"):
        print(__doc__.strip(), file=sys.stderr)
        return 2
    lines = surface(sys.argv[2])
    return check(lines) if sys.argv[1] == "check" else update(lines)


if __name__ == "__main__":
    sys.exit(main())
