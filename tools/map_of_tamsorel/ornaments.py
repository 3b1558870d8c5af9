"""Cartouche, scale bar, compass rose and the degrees along the frame.

The first three stand in the bare parchment of the sheet's north-eastern corner.
"""

import math

import cairo
import numpy as np

from . import lettering
from .graticule import BAND, STEP
from .lettering import Style
from .paint import INK, rgb
from .pen import ink
from .world import DEGREE, EAST, NORTH, SOUTH, WEST, WIDTH, to_pixel

CARTOUCHE = (3440.0, 120.0, 4212.0, 556.0)  # left, top, right, bottom in pixels
SCALE_AT = (3664.0, 700.0)  # left end of the scale bar
ROSE = (4012.0, 1086.0, 176.0)  # middle and radius in pixels
LEAGUES = 20  # to the degree
RED, PALE, GOLD = rgb("#9c3324"), rgb("#f5ecd3"), rgb("#c39a54")
TITLE = Style(176, False, 0.05, tuple(rgb("#5b2318")))
UNDERTITLE = Style(42, True, 0.02, tuple(INK))
FIGURES = Style(51, True, 0.0, tuple(INK))
SCALE_FIGURES = Style(46, False, 0.02, tuple(INK))
SCALE_NOTE = Style(46, True, 0.0, tuple(INK))
POINTS = Style(62, False, 0.0, tuple(INK))


def boxes():
    """The room of cartouche, scale bar and rose, as corners in pixels."""

    def box(left, top, right, bottom):
        return np.array([(left, top), (right, top), (right, bottom), (left, bottom)], float)

    x, y = SCALE_AT
    rx, ry, radius = ROSE
    return [
        box(*CARTOUCHE),
        box(x - 20, y - 74, x + 10 * DEGREE + 40, y + 92),
        box(rx - radius - 66, ry - radius - 66, rx + radius + 66, ry + radius + 66),
    ]


def _plate(c, left, top, right, bottom, notch):
    """A plate with hollowed corners."""
    c.new_path()
    c.arc_negative(left, top, notch, math.pi / 2, 0)
    c.arc_negative(right, top, notch, math.pi, math.pi / 2)
    c.arc_negative(right, bottom, notch, 1.5 * math.pi, math.pi)
    c.arc_negative(left, bottom, notch, 0, -math.pi / 2)
    c.close_path()


def _scroll(c, x, y, size, turn, mirror):
    """A curl of ink with three leaves, growing to the right."""
    c.save()
    c.translate(x, y)
    c.rotate(turn)
    c.scale(size, size * mirror)
    c.move_to(0, 0)
    c.curve_to(0.5, -0.5, 1.2, -0.45, 1.35, -0.1)
    c.curve_to(1.42, 0.15, 1.12, 0.25, 1.05, 0.03)
    for at, lean in ((0.35, -0.9), (0.75, -1.1), (1.1, -0.7)):
        c.move_to(at, -0.32)
        c.curve_to(at + 0.02, -0.6, at + 0.15, -0.7, at + 0.3, -0.72)
        c.curve_to(at + 0.28, -0.55, at + 0.2, -0.4, at, -0.32)
    c.restore()
    ink(c, 2.0, 0.85, RED)


def _cartouche(c, labels):
    left, top, right, bottom = CARTOUCHE
    for k in range(10):
        _plate(c, left + 9, top + 11, right + 9 + k * 0.6, bottom + 9 + k * 0.6, 40)
        c.set_source_rgba(0.25, 0.17, 0.10, 0.03)
        c.fill()
    _plate(c, left, top, right, bottom, 40)
    middle = (left + right) / 2
    wash = cairo.RadialGradient(middle, (top + bottom) / 2, 60, middle, (top + bottom) / 2, 470)
    wash.add_color_stop_rgb(0, *PALE)
    wash.add_color_stop_rgb(1, *rgb("#e9d9b4"))
    c.set_source(wash)
    c.fill_preserve()
    ink(c, 4.2)
    _plate(c, left + 12, top + 12, right - 12, bottom - 12, 40)
    ink(c, 1.4)
    _plate(c, left + 20, top + 20, right - 20, bottom - 20, 40)
    ink(c, 2.6, 1.0, RED)
    for x, y in ((left, top), (right, top), (left, bottom), (right, bottom)):
        for radius, colour in ((15, INK), (12, PALE), (7, RED)):
            c.arc(x, y, radius, 0, 7)
            c.set_source_rgb(*colour)
            c.fill()
    labels.append(lettering.on_arc("Tamsorel", "title", TITLE, middle, top + 216))
    y = top + 268
    c.move_to(middle - 250, y)
    c.line_to(middle - 40, y)
    c.move_to(middle + 40, y)
    c.line_to(middle + 250, y)
    ink(c, 1.8)
    for radius, colour in ((14, GOLD), (9, PALE)):
        star = 16
        for k in range(star):
            a, r = 2 * math.pi * k / star, radius * (1.7 if k % 2 == 0 else 1.0)
            (c.line_to if k else c.move_to)(middle + r * math.sin(a), y - r * math.cos(a))
        c.close_path()
        c.set_source_rgb(*colour)
        c.fill_preserve()
        ink(c, 1.2)
    for side in (-1, 1):
        c.save()
        c.translate(middle, 0)
        c.scale(side, 1)
        _scroll(c, 258, y, 46, 0.0, 1)
        c.restore()
    labels.append(
        lettering.on_arc("The Lands and Seas of Veyruna", "title", UNDERTITLE, middle, top + 322)
    )
    labels.append(
        lettering.on_arc(
            "from the Equator to the sixtieth Parallel", "title", UNDERTITLE, middle, top + 366
        )
    )


def _scale(c, labels):
    x, y = SCALE_AT
    for k in range(10):
        c.rectangle(x + k * DEGREE, y, DEGREE, 9)
        c.set_source_rgb(*(rgb("#5a4330") if k % 2 == 0 else PALE))
        c.fill()
        c.rectangle(x + k * DEGREE, y + 9, DEGREE, 9)
        c.set_source_rgb(*(PALE if k % 2 == 0 else rgb("#5a4330")))
        c.fill()
    c.rectangle(x, y, 10 * DEGREE, 18)
    ink(c, 2.0)
    for k in (0, 5, 10):
        c.move_to(x + k * DEGREE, y - 8)
        c.line_to(x + k * DEGREE, y + 18)
        ink(c, 2.0)
        labels.append(
            lettering.on_arc(str(k * LEAGUES), "scale", SCALE_FIGURES, x + k * DEGREE, y - 18)
        )
    labels.append(
        lettering.on_arc(
            "Leagues, twenty to a degree of latitude", "scale", SCALE_NOTE, x + 5 * DEGREE, y + 66
        )
    )


def _rose(c, labels):
    x, y, radius = ROSE
    for r, width in ((radius, 2.6), (radius - 9, 1.2), (radius * 0.60, 1.4), (radius * 0.56, 1.0)):
        c.arc(x, y, r, 0, 7)
        ink(c, width)
    for k in range(72):
        a = math.radians(5 * k)
        short = radius - (9 if k % 2 else 18)
        c.move_to(x + radius * math.sin(a), y - radius * math.cos(a))
        c.line_to(x + short * math.sin(a), y - short * math.cos(a))
        ink(c, 1.3)

    def ray(turn, long, wide):
        tip = (x + long * math.sin(turn), y - long * math.cos(turn))
        for side, colour in ((1, rgb("#54402f")), (-1, PALE)):
            a = turn + side * math.pi / 4
            foot = (x + wide * math.sin(a), y - wide * math.cos(a))
            c.move_to(x, y)
            c.line_to(*tip)
            c.line_to(*foot)
            c.close_path()
            c.set_source_rgb(*colour)
            c.fill_preserve()
            ink(c, 1.5)

    for k in range(8):
        ray(math.pi / 8 + k * math.pi / 4, radius * 0.66, 20)
    for k in range(4):
        ray(math.pi / 4 + k * math.pi / 2, radius * 0.84, 30)
    for k in range(4):
        ray(k * math.pi / 2, radius * 1.06, 42)
    for r, colour in ((17, INK), (14, GOLD), (6, INK)):
        c.arc(x, y, r, 0, 7)
        c.set_source_rgb(*colour)
        c.fill()
    for text, dx, dy in (("N", 0, -1), ("E", 1, 0), ("S", 0, 1), ("W", -1, 0)):
        far = radius * 1.06 + 34
        labels.append(lettering.on_arc(text, "rose", POINTS, x + dx * far, y + dy * far + 20))


def _degrees(labels):
    """Figures along the frame, or along the sheet's edge where that cuts the frame off."""

    def put(text, x, y):
        labels.append(lettering.on_arc(text, "degrees", FIGURES, x, y))

    for lat in range(int(SOUTH), int(NORTH) + 1, STEP):
        text = f"{lat}°" + ("N" if lat else "")
        x, y = to_pixel(EAST, lat)
        if lat not in (SOUTH, NORTH):
            put(text, x + BAND + 70, y + 16)
            x, y = to_pixel(WEST, lat)
            put(text, *((x - BAND - 70, y + 16) if x > 160 else (64, y - 22 if x < 0 else y - 50)))
    for lon in range(int(WEST), int(EAST) + 1, STEP):
        text = f"{abs(lon)}°" + ("E" if lon > 0 else "W" if lon < 0 else "")
        for lat, drop in ((SOUTH, BAND + 42), (NORTH, -BAND - 16)):
            x, y = to_pixel(lon, lat)
            if 60 < x < WIDTH - 60:
                put(text, x, y + drop)


def draw(c):
    """Draws all of it but the lettering, which is given back."""
    labels = []
    c.set_line_join(cairo.LINE_JOIN_ROUND)
    c.set_line_cap(cairo.LINE_CAP_BUTT)
    _cartouche(c, labels)
    _scale(c, labels)
    _rose(c, labels)
    _degrees(labels)
    return labels
