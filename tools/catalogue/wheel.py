"""How the wheel shows the sky: north ecliptic pole in the middle, the rim south of it.

Lengths are units of the chart: the middle is at (180, 180), y runs downwards, and
rho = 1, the ecliptic, lies 180 units from the middle.  Names far from the middle
run along one of two circular paths from their longitude on; the others stand upright.
"""

import math
from functools import cache
from itertools import combinations

from .lettering import text_width, whole
from .plane import box_to_line
from .sphere import CELESTIAL_POLE, angles, vec
from .wanderers import planets
from .world import FIRST_LATITUDE, FIRST_MOMENT, TAU

OUTER_PATH, INNER_PATH = 175, 170  # radii: white names run on the outer one, others inside


def project(v):
    """Where an ecliptic vector appears: rho, x, y (unrounded)."""
    lon, lat = angles(v)
    rho = (math.pi / 2 - lat) * 0.6366197723675814
    return rho, 180 + rho * math.sin(lon) * 180, 180 - rho * math.cos(lon) * 180


def from_middle(v):
    """Where an ecliptic vector appears, counted from the middle."""
    _, x, y = project(v)
    return x - 180, y - 180


def on_whole_units(v):
    """The direction nearest to v, on the chart, that appears on whole units.

    Dots are drawn on whole units and lines are not: a star that stands there has its
    lines end in the middle of its dot.
    """
    x, y = (whole(k) for k in from_middle(v))
    return vec(longitude(x, y), (1 - math.hypot(x, y) / 180) * math.pi / 2)


@cache
def first_chords():
    """The chords from planet to planet of the first start, counted from the middle."""
    ends = [tuple(map(whole, from_middle(at))) for _, at in planets(FIRST_MOMENT)]
    return list(combinations(ends, 2))


def chord_gap(box):
    """How far a box, counted from the middle, stays from those chords; 0 when one cuts it."""
    return min(box_to_line(box, *chord) for chord in first_chords())


def circle_gap(box):
    """How far a box, counted from the middle, stays from the first start's circle of latitude.

    That is the way of the zenith of the place with which the program opens; negative
    when the circle cuts the box.
    """
    x, y = (whole(k) for k in from_middle(CELESTIAL_POLE))
    radius = 180 * (1 - 2 * FIRST_LATITUDE / math.pi)
    corners = [math.hypot(bx - x, by - y) for bx in (box[0], box[2]) for by in (box[1], box[3])]
    nearest = math.hypot(max(box[0] - x, 0, x - box[2]), max(box[1] - y, 0, y - box[3]))
    return max(nearest - radius, radius - max(corners))


def longitude(x, y):
    """Ecliptic longitude in radians of a point counted from the middle."""
    return math.atan2(x, -y) % TAU


def on_rim(v):
    """Whether a name at v runs along the rim."""
    return project(v)[0] > 0.9


def rim_interval(name, lon, radius):
    """From where to where a name at a longitude runs on the path of that radius."""
    start = (lon % TAU) * radius
    return start, start + text_width(name)
