#!/usr/bin/env python3
"""Draws the About box's built-in banner (res/ui/AboutBanner.bmp) as a 24-bit BMP: a band that
runs from deep to light blue with a shield on the left. It carries no text, so that it suits
every language. Run from anywhere: python3 res/tools/make_about_banner.py."""

import math
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from make_slider_bitmap import write_bmp  # noqa: E402

WIDTH, HEIGHT = 420, 64
DEEP, LIGHT = (10, 46, 110), (92, 150, 220)
SHIELD_CENTRE, SHIELD_RADIUS = (40, 32), 22


def band(x):
    t = x / (WIDTH - 1)
    return tuple(round(d + (l - d) * t) for d, l in zip(DEEP, LIGHT))


def in_shield(x, y):
    """A rounded top and a point at the bottom."""
    cx, cy = SHIELD_CENTRE
    dx, dy = x - cx, y - cy
    if dy <= 0:
        return math.hypot(dx, dy) <= SHIELD_RADIUS
    return abs(dx) <= SHIELD_RADIUS * (1 - dy / SHIELD_RADIUS) and dy <= SHIELD_RADIUS


def pixel(x, y):
    if in_shield(x, y):
        inner = in_shield(x - (x - SHIELD_CENTRE[0]) * 0.25, y - (y - SHIELD_CENTRE[1]) * 0.25)
        edge = not in_shield(x + (1 if x > SHIELD_CENTRE[0] else -1) * 3, y + 3)
        return (255, 255, 255) if edge or not inner else (235, 170, 40)
    return band(x)


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    path = os.path.join(here, "..", "ui", "AboutBanner.bmp")
    write_bmp(path, [[pixel(x, y) for x in range(WIDTH)] for y in range(HEIGHT)])


if __name__ == "__main__":
    main()
