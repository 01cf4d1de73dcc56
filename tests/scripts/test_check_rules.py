#!/usr/bin/env python3
"""The rule checker itself: it must find each kind of breach and leave good files alone."""

import os
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts"))
import check_rules  # noqa: E402


class Tree:
    """A source tree made for one test."""

    def __init__(self):
        self.directory = tempfile.TemporaryDirectory()

    def write(self, path, text):
        full = os.path.join(self.directory.name, path)
        os.makedirs(os.path.dirname(full), exist_ok=True)
        with open(full, "w", encoding="utf-8") as file:
            file.write(text)

    def breaches(self):
        return list(check_rules.breaches(self.directory.name))


class CheckRules(unittest.TestCase):
    def setUp(self):
        self.tree = Tree()
        self.addCleanup(self.tree.directory.cleanup)

    def include(self, path, *names):
        self.tree.write(path, "".join(f"#include {name}\n" for name in names))

    def test_good_includes_pass(self):
        self.include("src/shape/mapping.h", "<QtCore/QPointF>", "<cmath>")
        self.include("src/shape/mapping.cpp", '"shape/mapping.h"', "<svgobj/csvgbase.h>", "<framework/idocument.h>")
        self.include("kit/src/shapeplugin.cpp", "<shapekit/kind.h>", "<svgobj/csvgbase.h>", "<pagehost/objectplugin.h>")
        self.include("shapes/flask/flask.cpp", "<shapekit/shape.h>", "<QtCore/QString>")
        self.include("shapes/declared/core/shape.h", "<shapekit/shape.h>")
        self.include("shapes/declared/plugin/plugin.cpp", "<declared/core/shape.h>", "<pagehost/objectplugin.h>")
        self.include("board/window.cpp", "<pagehost/document.h>", "<QtPrintSupport/QPrinter>")
        self.assertEqual(self.tree.breaches(), [])

    def test_shape_of_forty_lines_passes_blank_ones_aside(self):
        self.tree.write("shapes/star/star.cpp", "int a;\n\n" * 30)
        self.tree.write("shapes/star/star.h", "int a;\n" * 10)
        self.tree.write("kit/src/shape.cpp", "int a;\n" * 41)
        self.assertEqual(self.tree.breaches(), [])

    def test_shape_of_more_lines_is_found(self):
        self.tree.write("shapes/star/star.cpp", "int a;\n" * 30)
        self.tree.write("shapes/star/star.h", "int a;\n// b\n" * 6)
        self.assertEqual(self.tree.breaches(), ["shapes/star: 42 lines of C++, more than 40"])

    def test_library_may_not_see_the_reference_host(self):
        self.include("src/shape/mapping.cpp", "<pagehost/document.h>")
        self.assertEqual(
            self.tree.breaches(), ["src/shape/mapping.cpp:1: may not include pagehost/document.h"]
        )

    def test_svg_library_may_not_see_the_framework(self):
        self.include("reference/svgbase/parser.cpp", "<svgbase/qzesvgnode.h>", "<framework/cutil.h>")
        self.assertEqual(
            self.tree.breaches(), ["reference/svgbase/parser.cpp:2: may not include framework/cutil.h"]
        )

    def test_framework_may_not_see_the_library(self):
        self.include("reference/framework/page.cpp", "<svgobj/csvgobj.h>")
        self.assertEqual(len(self.tree.breaches()), 1)

    def test_board_may_not_see_shapes_or_svg(self):
        self.include("shapes/flask/flask.h", "<QtCore/QString>")
        self.include("board/window.cpp", "<svgbase/qzesvgnode.h>", '"flask/flask.h"', '"../shapes/flask/flask.h"')
        self.assertEqual(len(self.tree.breaches()), 3)

    def test_kit_may_see_only_the_plugin_interface(self):
        self.include("kit/src/shapeplugin.cpp", "<pagehost/document.h>")
        self.assertEqual(
            self.tree.breaches(), ["kit/src/shapeplugin.cpp:1: may not include pagehost/document.h"]
        )

    def test_shapes_may_not_see_the_plugin_interface(self):
        self.include("shapes/flask/flask.cpp", "<svgobj/csvgbase.h>", "<pagehost/objectplugin.h>")
        self.assertEqual(
            self.tree.breaches(), ["shapes/flask/flask.cpp:2: may not include pagehost/objectplugin.h"]
        )

    def test_declared_shapes_may_not_see_their_plugin(self):
        self.include("shapes/declared/plugin/plugin.h", "<QtCore/QString>")
        self.include("shapes/declared/core/shape.cpp", "<declared/plugin/plugin.h>", "<pagehost/objectplugin.h>")
        self.include("shapes/declared/reader/file.cpp", "<pagehost/objectplugin.h>")
        self.assertEqual(
            self.tree.breaches(),
            [
                "shapes/declared/core/shape.cpp:1: may not include declared/plugin/plugin.h",
                "shapes/declared/reader/file.cpp:1: may not include pagehost/objectplugin.h",
            ],
        )

    def test_other_qt_modules_are_refused(self):
        self.include("src/render/painting.cpp", "<QtSvg/QSvgRenderer>")
        self.include("src/render/other.cpp", "<QPainter>")
        self.assertEqual(len(self.tree.breaches()), 2)

    def test_700_lines_pass_and_701_do_not(self):
        self.tree.write("docs/good.md", "line\n" * 700)
        self.assertEqual(self.tree.breaches(), [])
        self.tree.write("docs/long.md", "line\n" * 701)
        self.assertEqual(self.tree.breaches(), ["docs/long.md: 701 lines, more than 700"])

    def test_comments_that_open_with_what_are_found(self):
        opening = "What"
        self.tree.write("src/shape/a.h", f"/// {opening} a shape is.\nint a; ///< {opening} counts.\n/// @name {opening} is said\n")
        self.tree.write("src/shape/CMakeLists.txt", f"# {opening} the shapes share.\n")
        self.tree.write("scripts/a.py", f'"""{opening} was found."""\n')
        self.assertEqual(
            [breach.partition(" ")[0] for breach in self.tree.breaches()],
            ["scripts/a.py:1:", "src/shape/CMakeLists.txt:1:", "src/shape/a.h:1:", "src/shape/a.h:2:", "src/shape/a.h:3:"],
        )

    def test_what_within_a_comment_passes(self):
        self.tree.write("src/shape/a.h", "/// Says what a shape is. What follows is public.\n/// Whatever comes.\n")
        self.assertEqual(self.tree.breaches(), [])

    def test_a_path_of_one_machine_is_found(self):
        home = "/" + "home" + "/somebody"
        self.tree.write("docs/notes.md", f"See {home}/notes.\n")
        self.assertEqual(len(self.tree.breaches()), 1)

    def test_a_folder_below_may_be_included(self):
        self.include("reference/svgbase/grammar/numbers.h", "<QtCore/QString>")
        self.include("reference/svgbase/tree/reader.cpp", '"grammar/numbers.h"')
        self.assertEqual(self.tree.breaches(), [])

    def test_a_folder_above_may_not_be_included(self):
        self.include("reference/svgbase/tree/reader.h", "<QtCore/QString>")
        self.include("reference/svgbase/grammar/numbers.cpp", "<cmath>", '"tree/reader.h"')
        self.assertEqual(
            self.tree.breaches(),
            ["reference/svgbase/grammar/numbers.cpp:2: reference/svgbase/grammar may not include reference/svgbase/tree"],
        )

    def test_a_folder_that_nobody_listed_may_include_no_other(self):
        self.include("reference/framework/host/page.h", "<QtCore/QString>")
        self.include("reference/framework/cellar/wine.cpp", '"host/page.h"')
        self.assertEqual(
            self.tree.breaches(),
            [
                "reference/framework/cellar/wine.cpp:1: reference/framework/cellar may not include "
                "reference/framework/host"
            ],
        )

    def test_folders_that_include_each_other_are_found(self):
        self.include("src/shape/mapping.h", "<QtCore/QPointF>")
        self.include("src/shape/travel.cpp", '"render/zoom.h"')
        self.include("src/render/zoom.h", "<shape/mapping.h>")
        self.assertEqual(
            self.tree.breaches(),
            ["src/render and src/shape include each other: src/render/zoom.h:1 and src/shape/travel.cpp:1"],
        )

    def test_two_files_that_depend_on_each_other_pass_and_three_do_not(self):
        self.include("src/shape/a.cpp", '"shape/b.h"')
        self.include("src/shape/a.h", "<QtCore/QString>")
        self.include("src/shape/b.h", '"a.h"')
        self.assertEqual(self.tree.breaches(), [])
        self.include("src/shape/b.h", '"shape/c.h"')
        self.include("src/shape/c.h", "<QtCore/QString>")
        self.include("src/shape/c.cpp", '"shape/a.h"')
        self.assertEqual(
            self.tree.breaches(), ["3 units depend on each other: src/shape/a src/shape/b src/shape/c"]
        )

    def test_circles_of_other_files_are_told_apart(self):
        for one, other in ("ab", "cd"):
            self.include(f"src/shape/{one}.h", f'"shape/{other}.h"')
            self.include(f"src/shape/{other}.h", "<QtCore/QString>")
            self.include(f"src/shape/{other}.cpp", f'"shape/{one}.h"')
        self.include("src/shape/b.cpp", '"shape/a.h"', '"shape/c.h"')
        self.assertEqual(self.tree.breaches(), [])

    def test_tests_mirror_the_sources(self):
        for path in ("src/shape/mapping.cpp", "reference/svgbase/text/fonts.cpp", "kit/src/kind.cpp"):
            self.include(path, "<QtCore/QString>")
        for path in ("shape", "svgbase", "svgbase/text", "kit", "support", "package/consumer", "svgbase/golden/css"):
            self.include(f"tests/{path}/test_it.cpp", "<QtCore/QString>")
        self.assertEqual(self.tree.breaches(), [])

    def test_tests_of_no_folder_are_found(self):
        self.include("reference/svgbase/text/fonts.cpp", "<QtCore/QString>")
        self.include("tests/svgbase/words/test_it.cpp", "<QtCore/QString>")
        self.include("tests/outline/test_it.cpp", "<QtCore/QString>")
        self.assertEqual(
            self.tree.breaches(),
            ["tests/outline: mirrors no folder of the sources", "tests/svgbase/words: mirrors no folder of the sources"],
        )

    def test_200_golden_files_in_a_folder_pass_and_201_do_not(self):
        for number in range(200):
            self.tree.write(f"tests/svgbase/golden/css/case-{number}.svg", "<svg/>")
        self.assertEqual(self.tree.breaches(), [])
        self.tree.write("tests/svgbase/golden/css/case-200.svg", "<svg/>")
        self.assertEqual(self.tree.breaches(), ["tests/svgbase/golden/css: 201 files, more than 200"])

    def test_an_open_merge_conflict_is_found_and_a_shift_is_not(self):
        self.tree.write("fuzz/CMakeLists.txt", "a\n" + "<" * 7 + " HEAD\nb\n" + "=" * 7 + "\nc\n" + ">" * 7 + " d\n")
        self.tree.write("src/shape/mapping.cpp", "stream << a << b >> c;\n")
        self.assertEqual(
            self.tree.breaches(),
            [f"fuzz/CMakeLists.txt:{line}: a conflict of a merge was left open" for line in (2, 6)],
        )

    def test_exported_pages_are_left_out_and_folders_of_that_name_are_not(self):
        self.tree.write("pages/page.md", "line\n" * 701)
        self.tree.write("reference/framework/pages/notes.md", "line\n" * 701)
        self.assertEqual(
            self.tree.breaches(), ["reference/framework/pages/notes.md: 701 lines, more than 700"]
        )


if __name__ == "__main__":
    unittest.main()
