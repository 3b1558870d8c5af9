"""Mountains and hills, drawn in ink as by hand: each stands at (0, 0) and rises up.

Every function takes a cairo context, the width in pixels, a generator for its wobble, and
how far down the snow comes (0 to 1).
"""

import math

import cairo
import numpy as np

from .pen import ink, line

STONE = (0.925, 0.875, 0.765)
SHADE = (0.36, 0.26, 0.20)


def _crag(chance, start, end, pieces, rough):
    """A broken line from start to end."""
    t = np.linspace(0, 1, pieces + 1)
    x, y = start[0] + (end[0] - start[0]) * t, start[1] + (end[1] - start[1]) * t
    off = chance.uniform(-rough, rough, pieces + 1)
    off[[0, -1]] = 0
    nx, ny = -(end[1] - start[1]), end[0] - start[0]
    size = math.hypot(nx, ny)
    return list(zip(x + off * nx / size, y + off * ny / size))


def mountain(c, width, chance, snow):
    tall = width * chance.uniform(0.72, 0.92)
    peak = (width * chance.uniform(-0.10, 0.06), -tall)
    left = _crag(chance, (-0.5 * width, chance.uniform(-2, 2)), peak, 6, 0.035 * width)
    right = _crag(chance, peak, (0.5 * width, chance.uniform(-2, 2)), 6, 0.035 * width)
    ridge = _crag(chance, peak, (width * chance.uniform(0.0, 0.14), -0.06 * tall), 5, 0.05 * width)
    body = cairo.LinearGradient(0, -tall, 0, 0)
    body.add_color_stop_rgba(0, *STONE, 1)
    body.add_color_stop_rgba(0.7, *STONE, 0.92)
    body.add_color_stop_rgba(1, *STONE, 0.0)
    line(c, left + right[1:])
    c.set_source(body)
    c.fill()
    dark = cairo.LinearGradient(0, -tall, 0, 0)
    dark.add_color_stop_rgba(0, *SHADE, 0.55)
    dark.add_color_stop_rgba(0.75, *SHADE, 0.30)
    dark.add_color_stop_rgba(1, *SHADE, 0.0)
    line(c, ridge + right[::-1])
    c.set_source(dark)
    c.fill()
    if snow > 0.05:
        low = -tall * (1 - 0.42 * snow)
        share = (tall + low) / tall
        edge = [
            (peak[0] + (x - peak[0]) * share, peak[1] + (y - peak[1]) * share)
            for x, y in ((-0.5 * width, 0), (0.5 * width, 0))
        ]
        hem = _crag(chance, edge[1], edge[0], 6, 0.06 * width)
        line(c, [peak] + hem)
        c.set_source_rgba(0.975, 0.965, 0.93, 0.95)
        c.fill()
        line(c, [peak, edge[1], (0.5 * (edge[0][0] + edge[1][0]) + 0.04 * width, low)])
        c.set_source_rgba(0.52, 0.52, 0.56, 0.38)
        c.fill()
    c.set_line_cap(cairo.LINE_CAP_ROUND)
    strokes = max(3, int(width / 13))
    for k in range(strokes):  # strokes down the shaded side
        t = (k + 0.7) / (strokes + 0.6)
        at = ridge[min(int(t * 5) + 1, 5)]
        x, y = peak[0] + (at[0] - peak[0]) * 0.9, -tall * (1 - t)
        x += chance.uniform(0, 0.03) * width
        long = (1 - t) * 0.30 * width * chance.uniform(0.7, 1.1) + 0.10 * width
        line(c, [(x, y), (x + long * 0.52, y + long * 0.9)])
        ink(c, 1.0, 0.5)
    for k in range(2):  # and a few down the light side
        t = chance.uniform(0.35, 0.75)
        x, y = peak[0] - 0.42 * width * t * chance.uniform(0.3, 0.75), -tall * (1 - t)
        line(c, [(x, y), (x - 0.05 * width, y + 0.13 * tall)])
        ink(c, 0.9, 0.35)
    line(c, ridge[:4])
    ink(c, 1.2, 0.7)
    line(c, left)
    ink(c, 1.7, 0.9)
    line(c, right)
    ink(c, 2.3, 0.95)


def hill(c, width, chance, snow):
    tall = width * chance.uniform(0.34, 0.46)
    lean = chance.uniform(-0.08, 0.08) * width
    c.move_to(-0.5 * width, 0)
    c.curve_to(-0.3 * width, -0.9 * tall, -0.18 * width + lean, -tall, lean, -tall)
    c.curve_to(0.2 * width + lean, -tall, 0.36 * width, -0.7 * tall, 0.5 * width, 0)
    body = cairo.LinearGradient(0, -tall, 0, 0)
    body.add_color_stop_rgba(0, *STONE, 0.8)
    body.add_color_stop_rgba(1, *STONE, 0.0)
    c.set_source(body)
    path = c.copy_path()
    c.fill()
    dark = cairo.RadialGradient(
        0.26 * width, -0.5 * tall, 0, 0.26 * width, -0.5 * tall, 0.26 * width
    )
    dark.add_color_stop_rgba(0, *SHADE, 0.30)
    dark.add_color_stop_rgba(1, *SHADE, 0.0)
    c.append_path(path)
    c.set_source(dark)
    c.fill()
    c.append_path(path)
    ink(c, 1.4, 0.75)
    for k in range(3):
        x = width * (0.16 + 0.10 * k) + lean * 0.5
        y = -tall * (0.86 - 0.22 * k)
        line(c, [(x, y), (x + 0.05 * width, y + 0.30 * tall)])
        ink(c, 0.9, 0.5)
