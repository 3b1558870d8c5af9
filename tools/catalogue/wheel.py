"""How the wheel shows the sky: north ecliptic pole in the middle, the rim south of it.

Lengths are units of the chart: the middle is at (180, 180), y runs downwards, and
rho = 1, the ecliptic, lies 180 units from the middle.  Names far from the middle
run along one of two circular paths from their longitude on; the others stand upright.
"""

import math

from .lettering import text_width
from .sphere import angles
from .world import TAU

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
