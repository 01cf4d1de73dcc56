#!/usr/bin/env python3
"""Runs the commands that the documents tell their readers to type, with the installed programs, in an empty folder for each document.

Usage: documents.py PREFIX COMPILER

A command that is not run has its reason below; any other one must succeed and leave the files that it names. Commands that open a window take a
picture of it and end. docs/host-integration.md has settings of CMake besides, which must configure.
"""

import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "scripts"))
from blocks import ROOT, blocks_of, documents, read, typed_commands  # noqa: E402

# The beginning of a command, and the reason why it is not run here.
NOT_RUN = {
    "./run": "continuous integration runs it on a bare system",
    "./test": "continuous integration runs it on a bare system",
    "cmake --preset board ": "./run does the same",
    "cmake --preset debug ": "it builds everything once more",
    "scripts/surface.py update ": "it writes docs/abi.txt; rules_public_surface compares instead",
    "cmake -S . -B build/bench ": "it needs the packages of the benchmarks",
    "cmake --build build/bench ": "it needs the packages of the benchmarks",
    "build/bench/bin/gliololok_bench ": "it needs the packages of the benchmarks",
}
# Words of the documents, and their values here.
PLACEHOLDERS = {"FILE": "lesson.board", "PICTURE": "picture.png", "FOLDER": "folder", "NAME.shape.svg": "tag.shape.svg", "NAME": "nut"}
# Options whose value is a file or a folder that the command writes.
WRITTEN = ("--export", "--thumbnail", "--screenshot", "--sheet", "--png")
ENDING = ("--export", "--thumbnail", "--screenshot")

HOST = """cmake_minimum_required(VERSION 3.22)
project(host LANGUAGES CXX)
find_package(Qt5 5.15 REQUIRED COMPONENTS Widgets)
"""
TARGETS = """foreach(library framework svg)
    if(NOT TARGET YourHost::${library})
        add_library(YourHost::${library} INTERFACE IMPORTED GLOBAL)
    endif()
endforeach()
"""
FIRST_SHAPE = ("docs/shape-author.md", '<shape:about name="Price tag"')


def fail(text):
    print(f"FAIL: {text}", file=sys.stderr)
    sys.exit(1)


def reason_not_to_run(command):
    return next((reason for start, reason in NOT_RUN.items() if (command + " ").startswith(start)), "")


def ended(words):
    """The command with options that let it end by itself."""
    program = words[0]
    if program == "gliololok-board" and not any(option in words for option in ENDING + ("--help",)):
        return words + ["--screenshot", "window.png"]
    if words[:2] == ["gliololok-shape", "preview"] and "--sheet" not in words:
        return words + ["--sheet", "preview.png"]
    return words


class Reader:
    """Somebody who types what a document says."""

    def __init__(self, path, prefix, compiler):
        self.path = path
        self.prefix = prefix
        self.folder = tempfile.mkdtemp()
        self.environment = dict(os.environ, PATH=f"{prefix}/bin:{os.environ['PATH']}", CXX=compiler,
                                QT_QPA_PLATFORM="offscreen", HOME=self.folder, CMAKE_GENERATOR="Ninja")

    def prepare(self):
        """The files that readers have by then: a board, a shape, icons, and the examples."""
        shutil.copytree(os.path.join(ROOT, "examples"), os.path.join(self.folder, "examples"))
        document, part = FIRST_SHAPE
        self.write("tag.shape.svg", next(text for _, _, text in blocks_of(read(document)) if part in text))
        self.write("drawing.svg", '<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24"><path d="M2 2h20v20z"/></svg>')
        os.mkdir(os.path.join(self.folder, "icons"))
        shutil.copy(os.path.join(self.folder, "drawing.svg"), os.path.join(self.folder, "icons", "corner.svg"))
        self.write("lesson.board.json", next(text for _, language, text in blocks_of(read("docs/board-format.md"))
                                             if language == "json"))
        # Files are told apart by their contents, not by their names.
        shutil.copy(os.path.join(self.folder, "lesson.board.json"), os.path.join(self.folder, "lesson.board"))

    def write(self, name, text):
        with open(os.path.join(self.folder, name), "w", encoding="utf-8") as file:
            file.write(text)

    def run(self, words):
        run = subprocess.run(words, cwd=self.folder, env=self.environment, stdin=subprocess.DEVNULL, capture_output=True,
                             text=True, timeout=1200)
        if run.returncode != 0:
            fail(f"{self.path}: {shlex.join(words)} ends with {run.returncode}: {run.stdout}{run.stderr}")
        for option, value in zip(words, words[1:]):
            if option in WRITTEN and not os.path.exists(os.path.join(self.folder, value)):
                fail(f"{self.path}: {shlex.join(words)} doesn't write {value}")

    def clear(self, words):
        """Removes what earlier commands have put where a command makes something new."""
        if words[0] == "cmake" and "-B" in words:
            shutil.rmtree(os.path.join(self.folder, words[words.index("-B") + 1]), ignore_errors=True)
        if words[:3] == ["gliololok-shape", "new", "tag"]:
            os.remove(os.path.join(self.folder, "tag.shape.svg"))

    def type(self, command):
        for part in command.split(" && "):
            part = part.replace("<prefix>", self.prefix)
            words = ended([PLACEHOLDERS.get(word, word) for word in shlex.split(part)])
            self.clear(words)
            self.run(words)

    def configure_other_host(self, text):
        """The command, or the settings, that link the library to the reader's own host."""
        host = os.path.join(self.folder, "host")
        shutil.rmtree(host, ignore_errors=True)
        os.mkdir(host)
        os.symlink(ROOT, os.path.join(host, "gliololok"))
        os.symlink(os.path.join(ROOT, "src", "host"), os.path.join(host, "include"))
        self.write("host/targets.cmake", TARGETS)
        if text.startswith("cmake "):
            words = shlex.split(text.replace("/where/your/headers/are", os.path.join(host, "include")))
            self.run(words + ["-S", ROOT, f"-DCMAKE_PROJECT_gliololok_INCLUDE={host}/targets.cmake"])
            return
        self.write("host/CMakeLists.txt", HOST + TARGETS + text)
        self.run(["cmake", "-S", host, "-B", os.path.join(host, "build")])


def read_as_told(path, prefix, compiler):
    """Runs the commands of a document; their number."""
    text = read(path)
    reader = Reader(path, prefix, compiler)
    reader.prepare()
    count = 0
    for command in typed_commands(text):
        if "YourHost::" in command:
            reader.configure_other_host(command)
        elif not reason_not_to_run(command):
            reader.type(command)
        else:
            continue
        count += 1
    for name, language, block in blocks_of(text):
        if language == "cmake" and "YourHost::" in block:
            reader.configure_other_host(block)
    shutil.rmtree(reader.folder)
    return count


def check_reasons():
    """Every reason belongs to a command that some document has."""
    commands = [command for path in documents() for command in typed_commands(read(path))]
    for start in NOT_RUN:
        if not any((command + " ").startswith(start) for command in commands):
            fail(f"no document has a command that begins with {start}")


def main():
    prefix, compiler = sys.argv[1:]
    check_reasons()
    count = sum(read_as_told(path, prefix, compiler) for path in documents())
    if count < 15:
        fail(f"only {count} commands were found")
    print(f"{count} commands")


if __name__ == "__main__":
    main()
