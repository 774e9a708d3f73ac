#!/usr/bin/env python3
"""Draws the compiled-in image of the module: make_images.py [FOLDER]

A funnel over the letters of a list, 48 by 48 pixels. The file has the size that the module's
interface tells, which a text chunk fills up.
"""

import struct
import sys
import zlib
from pathlib import Path

SIDE = 48
SAMPLES = 4  # in each direction, for smooth edges
FILE_SIZE = 3227
INK = (45, 110, 185)
LINE = (120, 130, 140)


def in_funnel(x, y):
    if 0.10 <= y <= 0.50:
        half = 0.38 - (y - 0.10) * 0.75
        return abs(x - 0.42) <= half
    return 0.50 < y <= 0.86 and abs(x - 0.42) <= 0.08 and y <= 0.94 - (x - 0.34)


def in_list(x, y):
    return x >= 0.58 and x <= 0.92 and any(abs(y - row) <= 0.03 for row in (0.58, 0.72, 0.86))


def pixel(column, row):
    ink = line = 0
    for i in range(SAMPLES):
        for j in range(SAMPLES):
            x = (column + (i + 0.5) / SAMPLES) / SIDE
            y = (row + (j + 0.5) / SAMPLES) / SIDE
            if in_funnel(x, y):
                ink += 1
            elif in_list(x, y):
                line += 1
    covered = ink + line
    if covered == 0:
        return (0, 0, 0, 0)
    mixed = tuple((INK[k] * ink + LINE[k] * line) // covered for k in range(3))
    return mixed + (covered * 255 // (SAMPLES * SAMPLES),)


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def png(filler):
    rows = b"".join(
        b"\0" + bytes(v for column in range(SIDE) for v in pixel(column, row)) for row in range(SIDE))
    header = struct.pack(">IIBBBBB", SIDE, SIDE, 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"tEXt", b"Comment\0" + filler)
            + chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b""))


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).parent
    space = FILE_SIZE - len(png(b""))
    if space < 0:
        sys.exit(f"make_images: the image is {-space} bytes too large")
    (folder / "qselect_ent.png").write_bytes(png(b" " * space))


if __name__ == "__main__":
    main()
