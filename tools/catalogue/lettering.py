"""How much room names and dots take on the charts.

Lengths are units of the charts.  On the star map 1 degree from the centre is 2 units.
"""

import math

# Advance widths, thousandths of the type size (Arial, Helvetica, Liberation Sans).
ADVANCE = dict(
    zip(
        "abcdefghijklmnopqrstuvwxyz",
        (
            556,
            556,
            500,
            556,
            556,
            278,
            556,
            556,
            222,
            222,
            500,
            222,
            833,
            556,
            556,
            556,
            556,
            333,
            500,
            278,
            556,
            500,
            722,
            500,
            500,
            500,
        ),
    )
)
ADVANCE.update(
    zip(
        "ABCDEFGHIJKLMNOPQRSTUVWXYZ",
        (
            667,
            667,
            722,
            722,
            667,
            611,
            778,
            722,
            278,
            500,
            667,
            556,
            833,
            722,
            778,
            667,
            778,
            722,
            667,
            611,
            722,
            667,
            944,
            667,
            667,
            611,
        ),
    )
)
ADVANCE[" "] = 278
TYPE = 5.0  # type size of every name on the charts
ASCENT, DESCENT = 0.73 * TYPE, 0.21 * TYPE


def text_width(text):
    return sum(ADVANCE[c] for c in text) * TYPE / 1000


def dot_size(mag):
    """Radius of a star's dot; a bare name (magnitude 0) has none."""
    return 0.0 if mag <= 0 else max(2.0 - 0.3 * mag, 0.4)


def whole(x):
    """Rounded to a whole number, half away from zero, as the charts place things."""
    return math.copysign(math.floor(abs(x) + 0.5), x)


def name_box(name, mag, x, y):
    """The box of an upright name at a point given from the centre, y downwards."""
    w = text_width(name)
    x, y = whole(x), whole(y)
    if mag > 0:
        d = dot_size(mag)
        return (x + 2 * d, y - d - ASCENT, x + 2 * d + w, y - d + DESCENT)
    return (x - w / 2, y - ASCENT, x + w / 2, y + DESCENT)


def map_reach(name, mag):
    """Degrees around a name's position it may cover on the star map, however the sky turns."""
    if mag > 0:
        return dot_size(mag) + text_width(name) / 2 + 0.5
    return math.hypot(text_width(name) / 2, ASCENT) / 2
