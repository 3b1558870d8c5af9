"""The lines of the water: waves along the coast, rivers, lakes, and the coast itself."""

import cairo
import numpy as np
from scipy import ndimage

from . import paint, pen, washes
from .contours import contours
from .land import GRID
from .paint import rgb
from .world import HEIGHT, WIDTH

# Lines along the coast: pixels off it, width, strength.
WAVE_LINES = ((9, 1.5, 0.60), (20, 1.3, 0.46), (34, 1.15, 0.34), (51, 1.0, 0.24), (71, 0.9, 0.16))
WAVE_INK, BANK_INK, STREAM = rgb("#2c4a55"), rgb("#2f4b55"), paint.COAST


def _trace(c, lines):
    for line in lines:
        pen.loop(c, line.tolist())


def _waves(c, country, shore):
    """Lines that follow the coast and fade out to sea; all but the first are broken."""
    off = ndimage.gaussian_filter(
        shore - GRID * ndimage.distance_transform_edt(country.land > 0), 2.2
    )
    for number, (far, width, alpha) in enumerate(WAVE_LINES):
        for line in contours(-off, -far, GRID, 2.0, 60):
            chance = np.random.default_rng(2000 + 100 * number + len(line))
            c.set_dash(chance.uniform(30, 130, 6) * np.array([1.6, 0.12] * 3) if number else [])
            _trace(c, [line])
            pen.ink(c, width, alpha, WAVE_INK)
    c.set_dash([])


def _strokes(c, points, widths, extra, colour):
    for k in range(len(points) - 1):
        width = (widths[k] + widths[k + 1]) / 2 + extra
        if width > 0.7:
            pen.line(c, points[k : k + 2])
            pen.ink(c, width, 1.0, colour)


def _river(c, river):
    """A river: its banks first, then the water between them, and out into the sea."""
    _strokes(c, river.points, river.widths, 1.5, BANK_INK)
    _strokes(c, river.points, river.widths, -0.6, STREAM)
    _strokes(c, *river.mouth, -0.6, STREAM)


def cover(rivers):
    """Where the rivers run, 0 to 1, at the sheet's full size."""
    surface = cairo.ImageSurface(cairo.FORMAT_A8, WIDTH, HEIGHT)
    c = cairo.Context(surface)
    c.set_line_cap(cairo.LINE_CAP_ROUND)
    for river in rivers:
        _strokes(c, river.points, river.widths, 1.5, BANK_INK)
    return washes.alpha(surface)


def _lakes(c, country):
    lakes = np.where(country.land > 0, country.lakes, -9)
    _trace(c, contours(lakes, 0, GRID, 2.0))
    c.set_source_rgb(*STREAM)
    c.fill_preserve()
    pen.ink(c, 2.2, 1.0, BANK_INK)
    for far, alpha in ((7, 0.45), (15, 0.3)):
        _trace(c, contours(lakes, far, GRID, 2.0))
        pen.ink(c, 1.1, alpha, WAVE_INK)


def draw(c, country, coast, shore):
    """coast: its lines; shore: pixels from each cell at sea to the nearest land."""
    c.set_line_join(cairo.LINE_JOIN_ROUND)
    c.set_line_cap(cairo.LINE_CAP_ROUND)
    c.set_fill_rule(cairo.FILL_RULE_EVEN_ODD)
    _waves(c, country, shore)
    for river in sorted(country.rivers, key=lambda r: r.water):
        _river(c, river)
    _lakes(c, country)
    c.push_group()
    for width, alpha, off in ((4.6, 0.22, 1.6), (2.3, 0.95, 0.0)):  # a shade, then the coast
        _trace(c, [line + off for line in coast])
        pen.ink(c, width, alpha)
    c.set_operator(cairo.OPERATOR_DEST_OUT)  # which is open where a river comes out
    for river in country.rivers:
        _strokes(c, *river.mouth, -0.6, STREAM)
    c.pop_group_to_source()
    c.paint()
