#!/usr/bin/env python3
"""Compares the manual page and the completion of each installed program with its --help: all three have the same options.

Usage: manuals.py PREFIX
"""

import os
import re
import subprocess
import sys

# Commands of the programs that have some.
COMMANDS = {"gliololok-board": [], "gliololok-shape": ["new", "lint", "look", "check", "preview", "import"], "svgdraw": []}
OPTION = re.compile(r"(?<![\w-])--[a-z][a-z-]*")
# Qt adds it where its own options are left out, of which there are none here.
ALL_OF_QT = {"--help-all"}


def help_of(program, environment):
    """The help of a program, and that of its commands."""
    calls = [[program, "--help"]] + [[program, command, "--help"] for command in COMMANDS[os.path.basename(program)]]
    return "".join(subprocess.run(call, env=environment, capture_output=True, text=True, check=True).stdout for call in calls)


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read().replace("\\-", "-")


def differences(prefix, name):
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    told = set(OPTION.findall(help_of(f"{prefix}/bin/{name}", environment))) - ALL_OF_QT | {"--help"}
    for place in (f"share/man/man1/{name}.1", f"share/bash-completion/completions/{name}"):
        listed = set(OPTION.findall(read(f"{prefix}/{place}")))
        yield from (f"{place} lacks {option}" for option in sorted(told - listed))
        yield from (f"{place} has {option}, which --help has not" for option in sorted(listed - told))


def main():
    found = [difference for name in COMMANDS for difference in differences(sys.argv[1], name)]
    for difference in found:
        print(f"FAIL: {difference}", file=sys.stderr)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
