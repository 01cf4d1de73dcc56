#!/usr/bin/env python3
"""The board as a screen reader of the desktop finds it: a window on a virtual display, read through AT-SPI.

Usage: test_atspi.py BOARD [TEST...]. Starts a display and a session bus of its own; needs neither a desktop nor a user.
"""

import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

# Seconds that only a board that hangs takes, under load and with sanitizers, too.
PATIENCE = 600
# Between two looks.
PAUSE = 0.05
INSIDE = "GLIOLOLOK_ATSPI_INSIDE"
# Symbols of keys.
PAGE_UP = 0xFF55
PAGE_DOWN = 0xFF56


def with_display(work):
    """Calls work() with the name of a display that lives meanwhile. The server chooses a free number."""
    reading, writing = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1366x768x24", "-nolisten", "tcp", "-noreset"],
        pass_fds=[writing],
        stderr=subprocess.DEVNULL,
    )
    os.close(writing)
    try:
        with os.fdopen(reading) as pipe:
            number = pipe.readline().strip()
        if not number:
            sys.exit("Xvfb has not started.")
        return work(":" + number)
    finally:
        server.terminate()
        server.wait()


def run_outside(arguments):
    home = tempfile.mkdtemp(prefix="gliololok-atspi-")
    os.chmod(home, 0o700)

    def run(display):
        environment = dict(
            os.environ,
            DISPLAY=display,
            HOME=home,
            XDG_RUNTIME_DIR=home,
            XDG_CONFIG_HOME=home + "/config",
            XDG_DATA_HOME=home + "/data",
            XDG_CACHE_HOME=home + "/cache",
            LC_ALL="C.UTF-8",
            QT_QPA_PLATFORM="xcb",
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
            **{INSIDE: "1"},
        )
        for name in ("AT_SPI_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS", "WAYLAND_DISPLAY", "NO_AT_BRIDGE"):
            environment.pop(name, None)
        return subprocess.call(
            ["dbus-run-session", "--", sys.executable, os.path.abspath(__file__), *arguments], env=environment
        )

    try:
        return with_display(run)
    finally:
        shutil.rmtree(home, ignore_errors=True)


class BoardCase(unittest.TestCase):
    """A running board, which a class starts with arguments of its own."""

    program = ""

    @classmethod
    def start(cls, *arguments):
        cls.board = subprocess.Popen([cls.program, "--language", "en", *arguments])

    @classmethod
    def tearDownClass(cls):
        cls.board.terminate()
        cls.board.wait()

    @classmethod
    def waited(cls, look):
        """The first result of look() that is true."""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            if cls.board.poll() is not None:
                raise AssertionError(f"The board has ended with {cls.board.returncode}.")
            result = look()
            if result:
                return result
            try:
                cls.board.wait(PAUSE)
            except subprocess.TimeoutExpired:
                pass
        raise AssertionError(f"In vain: {look.__name__}.")

    @classmethod
    def found_page(cls):
        for application in children(pyatspi.Registry.getDesktop(0)):
            if application.name == "gliololok-board":
                return below(application, cls.is_page)
        return None

    @staticmethod
    def is_page(item):
        return item.getRole() == pyatspi.ROLE_CANVAS


class TestBoard(BoardCase):
    @classmethod
    def setUpClass(cls):
        cls.start("--demo")
        cls.page = cls.waited(cls.found_page)

    def objects(self):
        return [item for item in children(self.page) if item.getRole() == pyatspi.ROLE_IMAGE]

    def object_with_slider(self, name):
        for item in self.objects():
            for grip in children(item):
                if grip.getRole() == pyatspi.ROLE_SLIDER and grip.name == name:
                    return item, grip
        self.fail(f"No object has a slider called {name}.")

    def test_the_page_says_how_many_objects_it_has(self):
        match = re.fullmatch(r"Page 1 of (\d+), (\d+) objects", self.page.name)
        self.assertTrue(match, self.page.name)
        self.assertGreater(int(match.group(1)), 1)
        self.assertEqual(int(match.group(2)), len(self.objects()))

    def test_objects_have_names_places_and_actions(self):
        objects = self.objects()
        self.assertGreater(len(objects), 3)
        for item in objects:
            self.assertTrue(item.name)
            self.assertRegex(item.description, r"at -?\d+, -?\d+, \d+ × \d+")
            self.assertEqual(actions_of(item)[0], "select")

    def test_control_points_are_sliders(self):
        _, slider = self.object_with_slider("Corner radius")
        value = slider.queryValue()
        self.assertEqual(value.minimumValue, 0)
        self.assertGreater(value.maximumValue, value.currentValue)
        self.assertGreater(value.currentValue, 0)
        self.assertGreater(value.minimumIncrement, 0)
        self.assertEqual(slider.description, f"Corner radius {value.currentValue:g}")

    def test_a_value_that_is_set_is_read_back(self):
        _, slider = self.object_with_slider("Corner radius")
        value = slider.queryValue()
        wanted = float(round(value.maximumValue / 2))
        self.assertNotEqual(value.currentValue, wanted)
        value.currentValue = wanted

        def is_set():
            slider.clear_cache()
            return slider.description == f"Corner radius {wanted:g}"

        self.waited(is_set)
        self.assertEqual(slider.queryValue().currentValue, wanted)

    def test_an_object_is_selected(self):
        item = self.objects()[1]
        self.assertFalse(item.getState().contains(pyatspi.STATE_SELECTED))
        actions = item.queryAction()
        self.assertTrue(actions.doAction(actions_of(item).index("select")))

        def is_selected():
            item.clear_cache()
            return item.getState().contains(pyatspi.STATE_SELECTED)

        self.waited(is_selected)


class TestPresentedFile(BoardCase):
    """`--present FILE`."""

    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        file = os.path.join(cls.folder.name, "lesson.board.json")
        pages = [{"page": number, "width": 640, "height": 360, "objectCount": 0, "objects": []} for number in (1, 2)]
        with open(file, "w", encoding="utf-8") as out:
            json.dump({"format": "gliololok board", "version": 1, "pageCount": 2, "pages": pages}, out)
        cls.start("--present", file)
        cls.page = cls.waited(cls.found_page)

    @classmethod
    def tearDownClass(cls):
        super().tearDownClass()
        cls.folder.cleanup()

    @staticmethod
    def is_page(item):
        """The one over the screen, as large as it gets without a window manager. The window's has bars around it."""
        if not BoardCase.is_page(item):
            return False
        place = item.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return place.x == 0 and place.y == 0

    def test_keys_of_clickers_turn_the_pages_of_the_file(self):
        self.assertEqual(self.page.name, "Page 1 of 2, 0 objects")
        for key, name in ((PAGE_DOWN, "Page 2 of 2, 0 objects"), (PAGE_UP, "Page 1 of 2, 0 objects")):
            pyatspi.Registry.generateKeyboardEvent(key, None, pyatspi.KEY_SYM)

            def is_turned(expected=name):
                self.page.clear_cache()
                return self.page.name == expected

            self.waited(is_turned)


def children(item):
    return [child for child in (item[i] for i in range(item.childCount)) if child]


def below(item, test):
    """The first item of a tree, in its order, that passes the test."""
    if test(item):
        return item
    for child in children(item):
        found = below(child, test)
        if found:
            return found
    return None


def actions_of(item):
    actions = item.queryAction()
    return [actions.getName(i) for i in range(actions.nActions)]


if __name__ == "__main__":
    if INSIDE not in os.environ:
        sys.exit(run_outside(sys.argv[1:]))
    import pyatspi

    BoardCase.program = sys.argv.pop(1)
    unittest.main(verbosity=2)
