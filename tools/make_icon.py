#!/usr/bin/env python3
"""Draws tremolux.ico: red and blue bars on a white card, at the sizes that Windows asks for."""
import pathlib
import struct
import zlib

SIZES = (16, 20, 24, 32, 40, 48, 64, 96, 128, 256)
FRAME = (64, 64, 64, 255)
CARD = (255, 255, 255, 255)
CLEAR = (0, 0, 0, 0)
RED = (205, 0, 0, 255)  # download, as in the graph
BLUE = (0, 0, 255, 255)  # upload
# Height of each bar in sixteenths of the card, download and upload in turns.
BARS = ((5, RED), (3, BLUE), (8, RED), (5, BLUE), (11, RED), (7, BLUE))


def pixel(x, y, size):
    unit = size / 16
    column, row = x / unit, y / unit
    if not (1 <= column < 15 and 1 <= row < 15):
        return CLEAR
    if not (2 <= column < 14 and 2 <= row < 14):
        return FRAME
    height, colour = BARS[int((column - 2) / 2)]
    return colour if 14 - row <= height else CARD


def png(size):
    rows = b"".join(
        b"\0" + b"".join(struct.pack("4B", *pixel(x, y, size)) for x in range(size))
        for y in range(size))

    def chunk(kind, data):
        return (struct.pack(">I", len(data)) + kind + data +
                struct.pack(">I", zlib.crc32(kind + data)))

    return (b"\x89PNG\r\n\x1a\n" +
            chunk(b"IHDR", struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)) +
            chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b""))


def bitmap(size):
    """The small sizes as bitmaps, which every part of Windows reads."""
    header = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, 0, 0, 0, 0, 0)
    pixels = b"".join(
        struct.pack("4B", *(pixel(x, y, size)[i] for i in (2, 1, 0, 3)))
        for y in reversed(range(size)) for x in range(size))
    mask = bytes((size + 31) // 32 * 4) * size
    return header + pixels + mask


def banner(width, height):
    """The bars alone, for the last page of the installer: a bitmap of 24 bits."""
    def colour(x, y):
        high, bar = BARS[x * len(BARS) // width]
        return bar if y * 16 < high * height else CARD

    rows = b"".join(  # the lowest first, each a multiple of four bytes
        b"".join(bytes(colour(x, y)[2::-1]) for x in range(width)).ljust((width * 3 + 3) // 4 * 4)
        for y in range(height))
    header = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(rows), 0, 0, 0, 0)
    return struct.pack("<2sIHHI", b"BM", 54 + len(rows), 0, 0, 54) + header + rows


def main():
    images = [bitmap(size) if size <= 48 else png(size) for size in SIZES]
    offset = 6 + 16 * len(images)
    directory = struct.pack("<HHH", 0, 1, len(images))
    for size, image in zip(SIZES, images):
        directory += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(image), offset)
        offset += len(image)
    path = pathlib.Path(__file__).parents[1] / "assets" / "tremolux.ico"
    path.write_bytes(directory + b"".join(images))


if __name__ == "__main__":
    main()
