#!/usr/bin/env python3
"""Draws Icons/default.bmp, the four activity pictures of the tray icon side by side: idle, upload,
download, both. A monitor with an arrow for each direction that lights up while data moves."""
import pathlib
import struct

# "u" is the upload arrow, "d" the download arrow. The last column stays clear, so the last of the
# four pictures does without it.
MONITOR = (
    "................",
    "ooooooooooooooo.",
    "offfffffffffffo.",
    "ofsssssssssssfo.",
    "ofssusssssdssfo.",
    "ofsuuussssdssfo.",
    "ofuuuuusssdssfo.",
    "ofssusssdddddfo.",
    "ofssussssdddsfo.",
    "ofssusssssdssfo.",
    "ofsssssssssssfo.",
    "offfffffffffffo.",
    "ooooooooooooooo.",
    ".....offfo......",
    "...ooooooooo....",
    "................",
)
COLOURS = {
    ".": (255, 0, 255),  # that of the lower left corner is see-through
    "o": (48, 48, 48),
    "f": (200, 204, 208),
    "s": (16, 24, 40),
}
DIM = (72, 84, 104)
UPLOAD = (64, 160, 255)
DOWNLOAD = (255, 72, 72)
PICTURES = ((DIM, DIM), (UPLOAD, DIM), (DIM, DOWNLOAD), (UPLOAD, DOWNLOAD))
WIDTH, HEIGHT = 63, 16


def pixel(x, y):
    picture, column = divmod(x, 16)
    up, down = PICTURES[picture]
    return {**COLOURS, "u": up, "d": down}[MONITOR[y][column]]


def main():
    padding = bytes(-WIDTH * 3 % 4)
    pixels = b"".join(
        b"".join(bytes(reversed(pixel(x, y))) for x in range(WIDTH)) + padding
        for y in reversed(range(HEIGHT)))
    header = struct.pack("<IiiHHIIiiII", 40, WIDTH, HEIGHT, 1, 24, 0, len(pixels), 2835, 2835, 0, 0)
    start = 14 + len(header)
    path = pathlib.Path(__file__).parents[1] / "assets" / "Icons" / "default.bmp"
    path.parent.mkdir(exist_ok=True)
    path.write_bytes(struct.pack("<2sIHHI", b"BM", start + len(pixels), 0, 0, start) + header + pixels)


if __name__ == "__main__":
    main()
