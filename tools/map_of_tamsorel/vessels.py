"""Ships and a sea serpent, to fill the emptiest waters."""

import math

import numpy as np

from .paint import INK, rgb
from .pen import ink
from .world import to_pixel

WOOD, SAIL, SKIN = rgb("#8a6a48"), rgb("#f3ead2"), rgb("#8fa98f")
# What, longitude, latitude, size in pixels, sailing east (1) or west (-1).
FLEET = (
    ("ship", -24.6, 7.2, 120, 1),
    ("ship", -30.6, 36.6, 104, -1),
    ("ship", -1.6, 52.5, 100, 1),
    ("serpent", 7.6, 6.4, 170, 1),
    ("ship", 42.4, 3.0, 110, -1),
)


def boxes():
    """The room of each, as corners in pixels."""
    found = []
    for what, lon, lat, size, _ in FLEET:
        x, y = (float(v) for v in to_pixel(lon, lat))
        wide, tall = (0.60 * size, 1.02 * size) if what == "ship" else (0.66 * size, 0.46 * size)
        found.append(
            np.array(
                [
                    (x - wide, y - tall),
                    (x + wide, y - tall),
                    (x + wide, y + 0.16 * size),
                    (x - wide, y + 0.16 * size),
                ]
            )
        )
    return found


def _ripples(c, half):
    for y, reach in ((0.03, 1.0), (0.085, 0.72), (0.135, 0.4)):
        x = -half * reach
        c.move_to(x, y)
        while x < half * reach:
            c.curve_to(x + 0.03, y - 0.025, x + 0.06, y - 0.025, x + 0.09, y)
            x += 0.09
        ink(c, 0.011, 0.6, rgb("#2f4a56"))


def _sail(c, x, top, bottom, wide):
    """A square sail, filled by the wind from behind."""
    belly = 0.30 * (bottom - top)
    c.move_to(x - wide * 0.42, top)
    c.line_to(x + wide * 0.42, top)
    c.curve_to(
        x + wide * 0.42 + belly,
        top + belly,
        x + wide * 0.5 + belly,
        bottom - belly * 0.6,
        x + wide * 0.5,
        bottom,
    )
    foot = bottom - belly * 0.5
    c.curve_to(x + wide * 0.2, foot, x - wide * 0.2, foot, x - wide * 0.5, bottom)
    c.curve_to(
        x - wide * 0.4 + belly * 0.7,
        bottom - belly,
        x - wide * 0.35 + belly * 0.6,
        top + belly,
        x - wide * 0.42,
        top,
    )
    c.set_source_rgb(*SAIL)
    c.fill_preserve()
    ink(c, 0.013)
    for k in (0.1, 0.3):
        c.move_to(x + wide * k + belly * 0.5, top + 0.02)
        c.curve_to(
            x + wide * k + belly * 1.1,
            top + belly,
            x + wide * k + belly,
            bottom - belly,
            x + wide * k + 0.02,
            bottom - belly * 0.4,
        )
        ink(c, 0.007, 0.5)


def _ship(c):
    _ripples(c, 0.55)
    for x, top in ((-0.24, -0.72), (0.02, -0.92), (0.26, -0.66)):
        c.move_to(x, -0.1)
        c.line_to(x, top)
        ink(c, 0.018)
        c.move_to(x, top)
        c.curve_to(x + 0.05, top - 0.05, x + 0.08, top + 0.03, x + 0.15, top - 0.02)
        c.line_to(x, top + 0.05)
        c.close_path()
        c.set_source_rgb(*rgb("#a33a28"))
        c.fill_preserve()
        ink(c, 0.007)
    c.move_to(0.36, -0.2)
    c.line_to(0.58, -0.34)
    ink(c, 0.016)
    for x, top, middle, bottom, wide in (
        (-0.24, -0.65, -0.45, -0.2, 0.2),
        (0.02, -0.85, -0.58, -0.22, 0.24),
        (0.26, -0.60, -0.42, -0.2, 0.19),
    ):
        _sail(c, x, middle + 0.02, bottom, wide)
        _sail(c, x, top, middle, wide * 0.8)
    c.move_to(-0.46, -0.24)
    c.curve_to(-0.44, -0.08, -0.38, 0.0, -0.30, 0.03)
    c.line_to(0.26, 0.03)
    c.curve_to(0.36, -0.02, 0.42, -0.10, 0.44, -0.2)
    c.curve_to(0.30, -0.14, 0.2, -0.13, 0.0, -0.12)
    c.curve_to(-0.15, -0.12, -0.24, -0.14, -0.26, -0.22)
    c.close_path()
    c.set_source_rgb(*WOOD)
    c.fill_preserve()
    ink(c, 0.016)
    for lift in (0.045, 0.085):
        c.move_to(-0.42, -0.17 + lift)
        c.curve_to(-0.2, -0.08 + lift, 0.2, -0.09 + lift, 0.41, -0.16 + lift)
        ink(c, 0.008, 0.7)


def _body(c, trace, thick):
    """A round body along a path: dark outline, skin, and a lighter back."""
    for width, colour in ((thick + 0.022, INK), (thick, SKIN), (thick * 0.3, rgb("#aabfa0"))):
        trace()
        ink(c, width, 1.0, colour)


def _fin(c, x, y, turn, size):
    c.save()
    c.translate(x, y)
    c.rotate(turn)
    c.move_to(-0.5 * size, 0)
    c.curve_to(-0.3 * size, -0.4 * size, -0.5 * size, -0.8 * size, -0.6 * size, -size)
    c.curve_to(0, -0.8 * size, 0.3 * size, -0.5 * size, 0.5 * size, 0)
    c.set_source_rgb(*rgb("#a8583e"))
    c.fill_preserve()
    c.restore()
    ink(c, 0.009)


def _serpent(c):
    for x, high, thick in ((-0.44, 0.10, 0.05), (-0.20, 0.16, 0.07), (0.08, 0.19, 0.08)):
        for turn in (-0.7, 0.0, 0.7):
            _fin(
                c,
                x + 0.115 * math.sin(turn),
                -high * (0.80 + 0.14 * math.cos(turn)) - thick * 0.25,
                turn * 0.9,
                0.055,
            )

        def coil():
            c.move_to(x - 0.12, 0.03)
            c.curve_to(x - 0.11, -1.25 * high, x + 0.11, -1.25 * high, x + 0.12, 0.03)

        _body(c, coil, thick)
    for turn, y in ((-0.75, -0.14), (-0.6, -0.24), (-0.35, -0.33)):
        _fin(c, 0.285 - 0.02 * turn, y, turn - 0.5, 0.055)

    def neck():
        c.move_to(0.33, 0.03)
        c.curve_to(0.30, -0.16, 0.30, -0.34, 0.42, -0.365)

    _body(c, neck, 0.075)

    def tail():
        c.move_to(-0.60, 0.03)
        c.curve_to(-0.60, -0.06, -0.62, -0.10, -0.65, -0.13)

    _body(c, tail, 0.03)
    _fin(c, -0.65, -0.125, -0.6, 0.09)
    c.move_to(0.38, -0.405)  # the head
    c.curve_to(0.46, -0.43, 0.56, -0.38, 0.63, -0.345)
    c.curve_to(0.61, -0.315, 0.54, -0.315, 0.48, -0.325)
    c.curve_to(0.52, -0.30, 0.57, -0.29, 0.59, -0.275)
    c.curve_to(0.52, -0.26, 0.44, -0.275, 0.39, -0.325)
    c.set_source_rgb(*SKIN)
    c.fill_preserve()
    ink(c, 0.012)
    c.arc(0.485, -0.372, 0.011, 0, 7)
    c.set_source_rgb(*INK)
    c.fill()
    _ripples(c, 0.66)


def draw(c):
    for what, lon, lat, size, heading in FLEET:
        x, y = (float(v) for v in to_pixel(lon, lat))
        c.save()
        c.translate(x, y)
        c.scale(size * heading, size)
        (_ship if what == "ship" else _serpent)(c)
        c.restore()
