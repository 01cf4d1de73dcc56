#!/usr/bin/env python3
"""The look at exported pictures: drawings pass, and whatever shows nothing or is damaged is found."""

import contextlib
import io
import os
import struct
import sys
import tempfile
import unittest
import zlib

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts"))
import look_at_pictures  # noqa: E402

SIDE = 300


def chunk(kind, content):
    return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))


def png(rows, width, filters=None):
    """An RGB picture of rows of bytes, as they stand or already filtered by the given filter types."""
    filters = filters or [0] * len(rows)
    raw = b"".join(bytes([kind]) + row for kind, row in zip(filters, rows))
    header = struct.pack(">IIBBBBB", width, len(rows), 8, 2, 0, 0, 0)
    parts = [(b"IHDR", header), (b"IDAT", zlib.compress(raw)), (b"IEND", b"")]
    return look_at_pictures.SIGNATURE + b"".join(chunk(kind, content) for kind, content in parts)


def drawing():
    """White with a band of 20 greys across it."""
    white = b"\xff\xff\xff" * SIDE
    return [bytes([y] * 3) * SIDE if y < 20 else white for y in range(SIDE)]


class LookAtPictures(unittest.TestCase):
    def result(self, *pictures):
        with tempfile.TemporaryDirectory() as folder:
            for number, picture in enumerate(pictures):
                with open(os.path.join(folder, f"{number}.png"), "wb") as file:
                    file.write(picture)
            with contextlib.redirect_stdout(io.StringIO()) as printed:
                code = look_at_pictures.main(folder)
            return code, printed.getvalue()

    def colours_of(self, picture):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "picture.png")
            with open(path, "wb") as file:
                file.write(picture)
            return look_at_pictures.pixels(path)[2]

    def test_drawings_pass(self):
        picture = png(drawing(), SIDE)
        self.assertEqual(self.result(picture, picture)[0], 0)

    def test_a_missing_picture_is_found(self):
        self.assertEqual(self.result(png(drawing(), SIDE))[0], 1)

    def test_an_empty_page_is_found(self):
        empty = png([b"\xff\xff\xff" * SIDE] * SIDE, SIDE)
        code, printed = self.result(png(drawing(), SIDE), empty)
        self.assertEqual(code, 1)
        self.assertIn("1.png: shows nothing: 1 colours, 0.0% drawn", printed)

    def test_a_small_picture_is_found(self):
        code, printed = self.result(png(drawing(), SIDE), png(drawing()[:299], SIDE))
        self.assertEqual(code, 1)
        self.assertIn("only 300 x 299 pixels", printed)

    def test_a_flipped_bit_is_found(self):
        damaged = bytearray(png(drawing(), SIDE))
        damaged[60] ^= 1
        code, printed = self.result(png(drawing(), SIDE), bytes(damaged))
        self.assertEqual(code, 1)
        self.assertIn("damaged chunk", printed)

    def test_a_cut_picture_is_found(self):
        code, printed = self.result(png(drawing(), SIDE), png(drawing(), SIDE)[:-12])
        self.assertEqual(code, 1)
        self.assertIn("cut off", printed)

    def test_every_filter_is_undone(self):
        # Two pixels a row: first row (10, 20, 30) (11, 22, 33), then rows that each give the first again.
        plain = bytes([10, 20, 30, 11, 22, 33])
        by_left = bytes([10, 20, 30, 1, 2, 3])
        by_above = bytes(6)
        by_average = bytes([5, 10, 15, 1, 1, 2])  # minus half of left and above, rounded down
        by_paeth = bytes(6)  # the best predictor is the row above
        rows = [plain, by_left, by_above, by_average, by_paeth]
        colours = self.colours_of(png(rows, 2, [0, 1, 2, 3, 4]))
        self.assertEqual(dict(colours), {plain[:3]: 5, plain[3:]: 5})


if __name__ == "__main__":
    unittest.main()
