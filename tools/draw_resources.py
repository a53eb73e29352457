#!/usr/bin/env python3
"""Draws the icons and cursors of module/res, each size pixel by pixel.

    tools/draw_resources.py                   writes the .ico and .cur files
    tools/draw_resources.py --sheet FILE.png  also draws all of them eight times enlarged into one picture

The row header draws its icons as high as a row, so there is an image for every usual row height: shapes keep to whole
pixels and to slopes of 45 degrees, which stay crisp without smoothing.
"""

import argparse
import pathlib
import struct
import zlib

ICON_SIZES = (*range(12, 25), 28, 32, 40, 48)
CURSOR_SIZES = (32, 48)

DARK = (0x28, 0x28, 0x28, 0xFF)
BLUE = (0x00, 0x35, 0x9E, 0xFF)
BLACK = (0x00, 0x00, 0x00, 0xFF)
WHITE = (0xFF, 0xFF, 0xFF, 0xFF)
CLEAR = (0, 0, 0, 0)


def blank(size):
    return [[CLEAR] * size for _ in range(size)]


def paint(size, colour, inside):
    """An image of the pixels (x, y) for which inside is true."""
    return [[colour if inside(x, y) else CLEAR for x in range(size)] for y in range(size)]


def current_row_marker(size):
    """A solid triangle that points right; its height has the parity of the size, so that it stands in the middle."""
    width = round((0.68 * size + size % 2) / 2)
    height = 2 * width - size % 2
    left, top = (size - width) // 2, (size - height) // 2

    def inside(x, y):
        row = y - top
        return 0 <= row < height and left <= x <= left + min(row, height - 1 - row)

    return paint(size, DARK, inside)


def new_row_marker(size):
    """An asterisk with eight arms, two pixels thick or more; an odd size holds the asterisk of the even size below."""
    even = size - size % 2
    thick = 2 * max(1, round(even / 24))
    arm = round(even * 0.4)
    diagonal = round(arm * 0.75)
    band = thick if even >= 18 else thick - 1

    def inside(x, y):
        # Distances from the centre in half pixels: odd, because the centre lies between two pixels.
        across, down = abs(2 * x + 1 - even), abs(2 * y + 1 - even)
        upright = min(across, down) < thick and max(across, down) < 2 * arm
        slanted = abs(across - down) <= band and max(across, down) < 2 * diagonal
        return upright or slanted

    return paint(size, BLUE, inside)


def arrow_right(size):
    """A black arrow with a white border, its tip at the right edge of the middle row. Returns the image and its tip."""
    unit = size // 16
    tip, middle, head, tail = size - 2 - unit, size // 2, 4 * unit, 11 * unit

    def inside(x, y):
        back, off = tip - x, abs(y - middle)
        return 0 <= back and (off <= back <= head if back <= head else back <= tail and off <= unit // 2)

    return with_border(paint(size, BLACK, inside)), (tip, middle)


def arrow_down(size):
    image, (tip, middle) = arrow_right(size)
    return [list(column) for column in zip(*image)], (middle, tip)


def with_border(image):
    """White pixels around every painted pixel."""
    size = len(image)
    result = [row[:] for row in image]
    for y in range(size):
        for x in range(size):
            around = (image[v][u] for v in range(max(0, y - 1), min(size, y + 2))
                      for u in range(max(0, x - 1), min(size, x + 2)))
            if image[y][x] == CLEAR and any(pixel != CLEAR for pixel in around):
                result[y][x] = WHITE
    return result


def bitmap(image):
    """The image as an icon holds it: 32-bit pixels and a 1-bit mask of the clear ones, both from the bottom up."""
    size = len(image)
    pixels, mask = bytearray(), bytearray()
    mask_bytes = (size + 31) // 32 * 4
    for row in reversed(image):
        for red, green, blue, alpha in row:
            pixels += bytes((blue, green, red, alpha))
        bits = sum(1 << (mask_bytes * 8 - 1 - x) for x, pixel in enumerate(row) if pixel[3] == 0)
        mask += bits.to_bytes(mask_bytes, "big")
    header = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, len(pixels) + len(mask), 0, 0, 0, 0)
    return header + pixels + mask


def icon_file(images):
    return resource_file(1, [(image, 1, 32) for image in images])


def cursor_file(images_and_tips):
    return resource_file(2, [(image, *tip) for image, tip in images_and_tips])


def resource_file(kind, entries):
    """An .ico (kind 1: planes and bits) or .cur (kind 2: hot spot x and y) file."""
    directory = struct.pack("<HHH", 0, kind, len(entries))
    offset = len(directory) + 16 * len(entries)
    body = b""
    for image, first, second in entries:
        data, size = bitmap(image), len(image)
        directory += struct.pack("<BBBBHHII", size, size, 0, 0, first, second, len(data), offset + len(body))
        body += data
    return directory + body


def sheet(rows):
    """All images, one row of them per resource, on the grey of a row header, enlarged."""
    scale, gap, grey = 8, 2, (0xF0, 0xF0, 0xF0)
    width = max(sum(len(image) + gap for image in row) for row in rows) + gap
    canvas = []
    for row in rows:
        band = [[(0xC0, 0xC0, 0xC0)] * width for _ in range(max(map(len, row)) + gap)]
        x = gap
        for image in row:
            for v, line in enumerate(image):
                for u, (red, green, blue, alpha) in enumerate(line):
                    band[v][x + u] = (red, green, blue) if alpha else grey
            x += len(image) + gap
        canvas += band
    return png([[pixel for pixel in line for _ in range(scale)] for line in canvas for _ in range(scale)])


def png(lines):
    def chunk(name, data):
        return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))

    raw = b"".join(b"\0" + bytes(part for pixel in line for part in pixel) for line in lines)
    header = struct.pack(">IIBBBBB", len(lines[0]), len(lines), 8, 2, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(raw)) + chunk(b"IEND", b"")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--sheet", type=pathlib.Path, metavar="FILE.png", help="where to draw the enlarged picture")
    arguments = parser.parse_args()

    icons = {"current_row.ico": current_row_marker, "new_row.ico": new_row_marker}
    cursors = {"row_arrow.cur": arrow_right, "column_arrow.cur": arrow_down}
    folder = pathlib.Path(__file__).resolve().parent.parent / "module" / "res"
    rows = []
    for name, draw in icons.items():
        images = [draw(size) for size in ICON_SIZES]
        (folder / name).write_bytes(icon_file(images))
        rows.append(images)
    for name, draw in cursors.items():
        images = [draw(size) for size in CURSOR_SIZES]
        (folder / name).write_bytes(cursor_file(images))
        rows.append([image for image, _ in images])
    if arguments.sheet:
        arguments.sheet.write_bytes(sheet(rows))


if __name__ == "__main__":
    main()
