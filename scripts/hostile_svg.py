#!/usr/bin/env python3
"""Draws documents designed to be slow or large, and reports the cost of each.

    scripts/hostile_svg.py SVGDRAW [--only PATTERN] [--divide N] [--keep FOLDER] [--check]

Prints CPU seconds, memory and the exit code of svgdraw for each document, at 256 or with `--side 4096` at 4096 pixels
a side, and marks documents above the library's aim for any input in a release build: 2 s and 512 MiB at 256, 10 s
and 1.5 GiB at 4096. `--divide` makes the documents smaller by that factor, for builds with sanitizers. `--check` fails
when a document crashes, is refused or drawn against expectation, or takes more memory than the aim; time is never
judged, since machines differ.
"""

import argparse
import fnmatch
import os
import resource
import subprocess
import sys
import tempfile

from hostile import cascades, crowds, layers, outlines, references, structures, styles, texts  # noqa: F401
from hostile.document import documents, expected

# Pixels a side: CPU seconds and MiB that drawing any document may take.
AIMS = {256: (2, 512), 4096: (10, 1536)}
SECONDS_UNTIL_KILLED = 20


def measured(svgdraw, path, picture, side):
    """Exit code (negative for a signal), CPU seconds and MiB of drawing one file, one second into its animation."""
    arguments = [svgdraw, path, picture, str(side), str(side), "1000"]
    process = subprocess.Popen(arguments, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
                               preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_CPU, (SECONDS_UNTIL_KILLED,) * 2))
    with process.stderr as stream:
        messages = stream.read()
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    return process.returncode, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024, messages.decode(errors="replace")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("svgdraw")
    parser.add_argument("--only", default="*")
    parser.add_argument("--side", type=int, choices=AIMS, default=256)
    parser.add_argument("--divide", type=int, default=1)
    parser.add_argument("--keep", default="")
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--any-memory", action="store_true", help="for builds whose sanitizers keep freed memory")
    options = parser.parse_args()
    seconds_aim, memory_aim = AIMS[options.side]
    failures = []
    with tempfile.TemporaryDirectory() as temporary:
        folder = options.keep or temporary
        os.makedirs(folder, exist_ok=True)
        for name in fnmatch.filter(documents, options.only):
            path = os.path.join(folder, name + ".svg")
            with open(path, "w", encoding="utf-8") as file:
                file.write(documents[name](options.divide))
            code, seconds, mebibytes, messages = measured(options.svgdraw, path, os.path.join(folder, name + ".png"),
                                                        options.side)
            first = messages.splitlines()[0].replace(path, "")[:70] if messages else ""
            mark = "OVER" if seconds > seconds_aim or mebibytes > memory_aim else ""
            print(f"{name:32} {seconds:7.2f} s {mebibytes:7.0f} MiB  {mark:4}  exit {code}  {first}", flush=True)
            if not options.keep:
                os.remove(path)
            too_large = mebibytes > memory_aim and not options.any_memory
            if code != expected[name] or too_large:
                failures.append(name)
    if options.check and failures:
        print("not as expected: " + ", ".join(failures))
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
