"""The dense band: a belt around the sphere in which the background stars thicken."""

import math

from .sphere import NORTH, along, cross, dot, height, norm, vec

NAME = "Ilvarane"
POLE = vec(math.radians(292), math.radians(28))  # of the belt's great circle, as seen
ZERO = norm(cross(POLE, NORTH))  # where longitude along the belt starts
QUARTER = cross(POLE, ZERO)  # and where it has come to 90 degrees
PEAK = 14.0  # no density is greater than this


def point(lon, lat):
    """The point at a longitude along the belt and so far beside its middle (degrees)."""
    t = math.radians(lon)
    on_belt = tuple(math.cos(t) * ZERO[i] + math.sin(t) * QUARTER[i] for i in range(3))
    return along(on_belt, POLE, lat)


def density(v):
    """How dense the stars stand at v; 1 far from the band, at most PEAK in it."""
    lon = math.atan2(dot(v, QUARTER), dot(v, ZERO))
    swell = 0.5 + 0.5 * math.cos(lon - math.radians(250))
    width = 5.0 + 4.0 * swell**3  # degrees
    rise = 10.0 + 3.0 * swell
    meander = 2.0 * math.sin(2 * lon + 0.7)  # degrees
    return 1.0 + rise * math.exp(-(((height(v, POLE) + meander) / width) ** 2))
