#!/usr/bin/env python3
"""Draws the ribbon's bitmaps (Res/Q-orb.bmp, Res/Spam.bmp, Res/NotSpam.bmp) as 32x32 24-bit
BMP files. Run from anywhere: python3 res/tools/make_ribbon_bitmaps.py. Magenta is the
transparent colour the ribbon keys out."""

import math
import os
import struct

SIZE = 32
BACKGROUND = (255, 0, 255)


def write_bmp(path, pixels):
    """pixels[y][x] = (r, g, b), top row first; BMP rows go bottom-up, each padded to 4 bytes."""
    row_bytes = (SIZE * 3 + 3) & ~3
    image = bytearray()
    for y in reversed(range(SIZE)):
        row = bytearray()
        for r, g, b in pixels[y]:
            row += bytes((b, g, r))
        row += b"\0" * (row_bytes - len(row))
        image += row
    header = struct.pack("<2sIHHI", b"BM", 14 + 40 + len(image), 0, 0, 14 + 40)
    info = struct.pack("<IiiHHIIiiII", 40, SIZE, SIZE, 1, 24, 0, len(image), 2835, 2835, 0, 0)
    with open(path, "wb") as out:
        out.write(header + info + image)


def canvas():
    return [[BACKGROUND for _ in range(SIZE)] for _ in range(SIZE)]


def blend(a, b, t):
    return tuple(int(round(a[i] + (b[i] - a[i]) * t)) for i in range(3))


def q_orb():
    """A blue sphere lit from the top left, with a white ring and tail forming a Q."""
    pixels = canvas()
    cx = cy = 15.5
    for y in range(SIZE):
        for x in range(SIZE):
            d = math.hypot(x - cx, y - cy)
            if d > 14.5:
                continue
            light = max(0.0, 1.0 - math.hypot(x - 10, y - 9) / 20.0)
            colour = blend((10, 50, 140), (120, 190, 255), light)
            if 6.0 <= math.hypot(x - cx, y - cy + 1) <= 8.5:
                colour = (245, 248, 255)
            if 17 <= x <= 24 and abs((y - 17) - (x - 17)) <= 1.2 and y <= 24:
                colour = (245, 248, 255)
            pixels[y][x] = colour
    return pixels


def envelope(mark_colour, draw_mark):
    """A pale envelope with its flap, and a round badge in the lower right holding a mark."""
    pixels = canvas()
    for y in range(7, 25):
        for x in range(2, 28):
            edge = x in (2, 27) or y in (7, 24)
            pixels[y][x] = (90, 90, 100) if edge else (250, 248, 235)
    for x in range(3, 27):
        y = 8 + int(round(abs(x - 14.5) * -0.6 + 8))
        if 8 <= y < 24:
            pixels[y][x] = (120, 120, 130)
    bx, by = 23.0, 23.0
    for y in range(SIZE):
        for x in range(SIZE):
            if math.hypot(x - bx, y - by) <= 8.0:
                pixels[y][x] = mark_colour
    for x, y in draw_mark(bx, by):
        if 0 <= x < SIZE and 0 <= y < SIZE:
            pixels[y][x] = (255, 255, 255)
    return pixels


def cross(bx, by):
    points = []
    for i in range(-4, 5):
        for w in (0, 1):
            points.append((int(bx) + i + w, int(by) + i))
            points.append((int(bx) + i + w, int(by) - i))
    return points


def tick(bx, by):
    points = []
    for i in range(0, 3):
        for w in (0, 1):
            points.append((int(bx) - 4 + i, int(by) + i + w))
    for i in range(0, 7):
        for w in (0, 1):
            points.append((int(bx) - 2 + i, int(by) + 2 - i + w))
    return points


def main():
    out = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "Res")
    os.makedirs(out, exist_ok=True)
    write_bmp(os.path.join(out, "Q-orb.bmp"), q_orb())
    write_bmp(os.path.join(out, "Spam.bmp"), envelope((200, 30, 30), cross))
    write_bmp(os.path.join(out, "NotSpam.bmp"), envelope((30, 150, 60), tick))


if __name__ == "__main__":
    main()
