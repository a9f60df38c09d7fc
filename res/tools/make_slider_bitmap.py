#!/usr/bin/env python3
"""Draws the level slider's built-in bitmap (res/ui/Slider.bmp) as a 208x32 24-bit BMP. Run from
anywhere: python3 res/tools/make_slider_bitmap.py.

The strip is cut as the slider reads it (src/ui/SliderRule.h): the thumb is the rightmost
HEIGHT / 2 = 16 columns, the channel the 192 columns left of it. The channel holds three zones
one thumb wide (at 0, 88 and 176), each with a tick mark at its centre; the slider draws the zones
unscaled and stretches the groove between them. Magenta is transparent."""

import os
import struct

HEIGHT = 32
THUMB = HEIGHT // 2
CHANNEL = 192
WIDTH = CHANNEL + THUMB
BACKGROUND = (255, 0, 255)

GROOVE_TOP, GROOVE_BOTTOM = 11, 16
TICK_TOP, TICK_BOTTOM = 24, 29


def write_bmp(path, pixels):
    """pixels[y][x] = (r, g, b), top row first; BMP rows go bottom-up, each padded to 4 bytes."""
    width = len(pixels[0])
    row_bytes = (width * 3 + 3) & ~3
    image = bytearray()
    for y in reversed(range(len(pixels))):
        row = bytearray()
        for r, g, b in pixels[y]:
            row += bytes((b, g, r))
        row += b"\0" * (row_bytes - len(row))
        image += row
    header = struct.pack("<2sIHHI", b"BM", 14 + 40 + len(image), 0, 0, 14 + 40)
    info = struct.pack("<IiiHHIIiiII", 40, width, len(pixels), 1, 24, 0, len(image), 2835, 2835,
                       0, 0)
    with open(path, "wb") as out:
        out.write(header + info + image)


def blend(a, b, t):
    return tuple(int(round(a[i] + (b[i] - a[i]) * t)) for i in range(3))


def zone_left(position, width):
    """Where a position's zone starts, as the slider computes it."""
    return position * (width - THUMB) // 2


def draw_channel(pixels):
    """A sunken groove across the channel, lit from the top left, and a tick under each zone."""
    left, right = 2, CHANNEL - 3
    for y in range(GROOVE_TOP, GROOVE_BOTTOM + 1):
        for x in range(left, right + 1):
            if y == GROOVE_TOP or x == left:
                colour = (150, 150, 150)
            elif y == GROOVE_BOTTOM or x == right:
                colour = (255, 255, 255)
            elif y == GROOVE_TOP + 1:
                colour = (105, 105, 110)
            else:
                colour = blend((205, 212, 225), (235, 238, 244),
                               (y - GROOVE_TOP - 2) / (GROOVE_BOTTOM - GROOVE_TOP - 2))
            pixels[y][x] = colour
    for position in range(3):
        centre = zone_left(position, CHANNEL) + THUMB // 2
        for y in range(TICK_TOP, TICK_BOTTOM + 1):
            for x in (centre - 1, centre):
                pixels[y][x] = (90, 90, 95)


def draw_thumb(pixels):
    """A blue body with rounded corners over the groove, pointing down at the tick."""
    x0 = CHANNEL
    body_top, body_bottom = 4, 19
    left, right = 2, THUMB - 3
    border = (35, 65, 125)
    for y in range(body_top, body_bottom + 1):
        for x in range(left, right + 1):
            corner = (x in (left, right)) and (y in (body_top, body_bottom))
            if corner:
                continue
            edge = x in (left, right) or y == body_top
            if edge:
                colour = border
            elif x == left + 1 or y == body_top + 1:
                colour = (205, 225, 250)
            else:
                colour = blend((150, 190, 240), (60, 110, 200),
                               (y - body_top) / (body_bottom - body_top))
            pixels[y][x0 + x] = colour
    # The point: each row two columns narrower, ending on the two centre columns.
    for k in range(6):
        y = body_bottom + 1 + k
        first, last = left + k, right - k
        for x in range(first, last + 1):
            edge = x in (first, last) or k == 5
            pixels[y][x0 + x] = border if edge else blend((60, 110, 200), (40, 80, 160), k / 5)


def main():
    pixels = [[BACKGROUND for _ in range(WIDTH)] for _ in range(HEIGHT)]
    draw_channel(pixels)
    draw_thumb(pixels)
    out = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "ui")
    os.makedirs(out, exist_ok=True)
    write_bmp(os.path.join(out, "Slider.bmp"), pixels)


if __name__ == "__main__":
    main()
