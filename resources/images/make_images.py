#!/usr/bin/env python3
"""Draws the icons of the resource library: make_images.py [FOLDER]

A pointer that picks out of a dashed frame, for dark and for light themes, each in two sizes.
"""

import struct
import sys
import zlib
from pathlib import Path

SIDE = 16  # of the drawing, in the units below
SAMPLES = 6  # in each direction within a pixel, for smooth edges

POINTER = [(6.0, 5.0), (6.0, 14.6), (8.4, 12.4), (10.0, 15.8), (11.8, 15.0), (10.2, 11.7),
           (13.4, 11.7)]
DASHES = [(1, 1, 4, 2.2), (6, 1, 9, 2.2), (11, 1, 14, 2.2), (1, 1, 2.2, 4), (1, 6, 2.2, 9),
          (1, 11, 2.2, 12.2), (1, 11, 3.8, 12.2), (12.8, 1, 14, 4), (12.8, 6, 14, 9)]

THEMES = {
    "dark": ((228, 231, 235), (125, 180, 240)),
    "light": ((29, 33, 38), (31, 95, 168)),
}


def in_pointer(x, y):
    inside = False
    for (x1, y1), (x2, y2) in zip(POINTER, POINTER[1:] + POINTER[:1]):
        if (y1 > y) != (y2 > y) and x < x1 + (y - y1) * (x2 - x1) / (y2 - y1):
            inside = not inside
    return inside


def near_pointer(x, y):
    """A gap around the pointer keeps it apart from the frame."""
    return any(in_pointer(x + dx, y + dy) for dx in (-1, 0, 1) for dy in (-1, 0, 1))


def in_frame(x, y):
    return any(l <= x < r and t <= y < b for l, t, r, b in DASHES) and not near_pointer(x, y)


def pixel(column, row, unit, colors):
    counts = [0, 0]
    for i in range(SAMPLES * SAMPLES):
        x = (column + (i % SAMPLES + 0.5) / SAMPLES) / unit
        y = (row + (i // SAMPLES + 0.5) / SAMPLES) / unit
        if in_pointer(x, y):
            counts[0] += 1
        elif in_frame(x, y):
            counts[1] += 1
    covered = sum(counts)
    if covered == 0:
        return (0, 0, 0, 0)
    mixed = tuple(sum(n * c[k] for n, c in zip(counts, colors)) // covered for k in range(3))
    return mixed + (covered * 255 // (SAMPLES * SAMPLES),)


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def png(side, colors):
    rows = b"".join(
        b"\0" + bytes(v for column in range(side) for v in pixel(column, row, side / SIDE, colors))
        for row in range(side))
    header = struct.pack(">IIBBBBB", side, side, 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows, 9))
            + chunk(b"IEND", b""))


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).parent
    for theme, colors in THEMES.items():
        (folder / f"find_select_{theme}.png").write_bytes(png(SIDE, colors))
        (folder / f"find_select_{theme}@2x.png").write_bytes(png(2 * SIDE, colors))


if __name__ == "__main__":
    main()
