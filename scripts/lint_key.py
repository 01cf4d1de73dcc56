#!/usr/bin/env python3
"""Names the state in which a source is linted: lint_key.py BUILD TOOLS SOURCE prints a hash of what the source says after the
preprocessor, comments included, of .clang-tidy and of TOOLS, which names the tools and their checks. The same name means the same
findings. Exits with 1 where there is none: the source isn't compiled in BUILD, or can't be preprocessed.
"""

import hashlib
import json
import os
import shlex
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
# Options of a compiler with the number of their arguments that only concern its output.
OUTPUT_OPTIONS = {"-c": 0, "-o": 1, "-MD": 0, "-MT": 1, "-MF": 1}
# Keeps comments, in which checks are switched off, and leaves out the places of files.
PREPROCESS = ["-E", "-P", "-C", "-w"]


def preprocessor_command(compile_command):
    command = []
    arguments = iter(shlex.split(compile_command))
    for argument in arguments:
        if argument not in OUTPUT_OPTIONS:
            command.append(argument)
            continue
        for _ in range(OUTPUT_OPTIONS[argument]):
            next(arguments)
    return command + PREPROCESS


def preprocessed(root, build, source):
    """The text as bytes, without the folder of the checkout; None where there is none."""
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as file:
        entries = json.load(file)
    path = os.path.join(root, source)
    entry = next((entry for entry in entries if entry["file"] == path), None)
    if not entry:
        return None
    done = subprocess.run(
        preprocessor_command(entry["command"]), cwd=entry["directory"], capture_output=True, check=False
    )
    return done.stdout.replace(root.encode(), b"") if done.returncode == 0 else None


def key_of(root, build, tools, source):
    """The name, or None. `root` is the checkout, `source` a path in it."""
    text = preprocessed(root, build, source)
    if text is None:
        return None
    digest = hashlib.sha256(text)
    with open(os.path.join(root, ".clang-tidy"), "rb") as checks:
        digest.update(checks.read())
    digest.update(f"{tools}\n{source}".encode())
    return digest.hexdigest()


def main():
    key = key_of(ROOT, *sys.argv[1:])
    if key is None:
        return 1
    print(key)
    return 0


if __name__ == "__main__":
    sys.exit(main())
