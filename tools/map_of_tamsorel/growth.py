"""Trees, dunes, sedge and grass, drawn in ink as by hand: each stands at (0, 0).

Every function takes a cairo context, the size in pixels and a generator for its wobble.
"""

import math

import cairo

from .paint import INK
from .pen import ink, line

LEAF, NEEDLE, FROND = (0.60, 0.64, 0.40), (0.47, 0.53, 0.40), (0.52, 0.60, 0.36)


def broadleaf(c, size, chance, colour=LEAF):
    radius = size * 0.40
    middle = -size * 0.66
    c.move_to(-0.8, 0)
    c.line_to(-0.6, middle)
    c.line_to(0.9, middle)
    c.line_to(1.1, 0)
    c.set_source_rgba(*INK, 0.85)
    c.fill()
    bumps, turn = 7, chance.uniform(0, 1)
    spots = []
    for k in range(bumps):
        a = 2 * math.pi * (k + turn) / bumps
        r = radius * chance.uniform(0.9, 1.08)
        spots.append((r * math.cos(a), middle + 0.86 * r * math.sin(a)))

    def crown():
        c.move_to(*spots[0])
        for k in range(bumps):
            (ax, ay), (bx, by) = spots[k], spots[(k + 1) % bumps]
            mx, my = (ax + bx) / 2 * 1.42, middle + ((ay + by) / 2 - middle) * 1.42
            c.curve_to(
                mx * 0.6 + ax * 0.45,
                my * 0.6 + ay * 0.4,
                mx * 0.6 + bx * 0.45,
                my * 0.6 + by * 0.4,
                bx,
                by,
            )
        c.close_path()

    tone = chance.uniform(-0.035, 0.035)
    crown()
    leaf = cairo.LinearGradient(-radius, middle - radius, radius, middle + radius)
    leaf.add_color_stop_rgb(0.2, *(v + 0.10 + tone for v in colour))
    leaf.add_color_stop_rgb(0.95, *(v - 0.16 + tone for v in colour))
    c.set_source(leaf)
    c.fill_preserve()
    ink(c, 1.15, 0.85)
    c.arc(radius * 0.12, middle - radius * 0.05, radius * 0.5, 0.1, 1.5)
    ink(c, 0.8, 0.5)


def conifer(c, size, chance):
    tall, wide = size * 1.15, size * 0.30
    line(c, [(0, 0), (0, -0.25 * tall)])
    ink(c, 1.6, 0.85)
    tiers = [(-0.16, 1.0), (-0.44, 0.74), (-0.70, 0.46)]
    left, right = [], []
    for y, w in tiers:
        wob = chance.uniform(0.9, 1.1)
        left += [(-wide * w * wob, y * tall), (-wide * w * 0.5, (y - 0.17) * tall)]
        right += [(wide * w * wob, y * tall), (wide * w * 0.5, (y - 0.17) * tall)]
    outline = left + [(0, -tall)] + right[::-1]
    tone = chance.uniform(-0.03, 0.03)
    line(c, outline)
    c.close_path()
    leaf = cairo.LinearGradient(-wide, 0, wide, 0)
    leaf.add_color_stop_rgb(0.1, *(v + 0.10 + tone for v in NEEDLE))
    leaf.add_color_stop_rgb(0.9, *(v - 0.14 + tone for v in NEEDLE))
    c.set_source(leaf)
    c.fill_preserve()
    ink(c, 1.1, 0.85)


def jungle_tree(c, size, chance):
    if chance.uniform() < 0.3:
        palm(c, size * 1.1, chance)
    else:
        broadleaf(c, size, chance, FROND)


def palm(c, size, chance):
    lean = chance.uniform(-0.2, 0.2) * size
    top = -0.80 * size
    c.move_to(0, 0)
    c.curve_to(0, -0.4 * size, lean * 0.6, -0.6 * size, lean, top)
    ink(c, 1.8, 0.85)
    for turn in (-175, -140, -110, -70, -40, -5):
        a = math.radians(turn + chance.uniform(-8, 8))
        reach = 0.42 * size
        tip = (lean + reach * math.cos(a), top + 0.75 * reach * math.sin(a) + 0.14 * size)
        bow = (lean + 0.6 * reach * math.cos(a), top + 0.9 * reach * math.sin(a) - 0.10 * size)
        for width, colour in ((3.6, INK), (2.0, FROND)):
            c.move_to(lean, top)
            c.curve_to(*bow, *bow, *tip)
            ink(c, width, 0.95, colour)


def dune(c, size, chance):
    c.move_to(-0.5 * size, 0)
    c.curve_to(-0.2 * size, -0.30 * size, 0.05 * size, -0.34 * size, 0.14 * size, -0.30 * size)
    c.curve_to(0.3 * size, -0.2 * size, 0.4 * size, -0.06 * size, 0.5 * size, 0.02 * size)
    ink(c, 1.15, 0.5)
    c.move_to(0.14 * size, -0.30 * size)
    c.curve_to(0.10 * size, -0.18 * size, 0.02 * size, -0.1 * size, 0.08 * size, 0)
    ink(c, 0.9, 0.4)
    for _ in range(5):
        x, y = chance.uniform(0.14, 0.42) * size, chance.uniform(-0.14, -0.0) * size
        c.arc(x, y, 0.8, 0, 7)
        c.set_source_rgba(*INK, 0.45)
        c.fill()


def sedge(c, size, chance):
    line(c, [(-0.5 * size, 0), (0.5 * size, 0)])
    ink(c, 1.0, 0.55)
    line(c, [(-0.2 * size, 4), (0.3 * size, 4)])
    ink(c, 0.9, 0.4)
    for k in (-0.24, -0.1, 0.02, 0.13, 0.26):
        line(c, [(k * size * 0.7, 0), (k * size * 1.1, -size * chance.uniform(0.28, 0.5))])
        ink(c, 1.15, 0.75)


def tuft(c, size, chance):
    for k in (-0.3, 0.0, 0.3):
        line(c, [(k * size * 0.5, 0), (k * size, -size * chance.uniform(0.5, 0.8))])
        ink(c, 0.9, 0.45)
