"""The dense band: a belt around the sphere in which the background stars thicken.

It is no even ribbon: it winds, swells in the far north, is lumpy with clouds of stars,
and for a quarter of its way a dark rift parts it into two arms.
"""

import math
import random

from .sphere import NORTH, along, angle, cross, dot, height, norm, vec

NAME = "Ilvarane"
POLE = vec(math.radians(292), math.radians(28))  # of the belt's great circle, as seen
ZERO = norm(cross(POLE, NORTH))  # where longitude along the belt starts
QUARTER = cross(POLE, ZERO)  # and where it has come to 90 degrees
PEAK = 30.0  # no density is greater than this

CLOUDS = 46
CLOUD_SEED = 4107
RIFT_FROM, RIFT_TO = 200.0, 300.0  # longitudes along the belt, degrees
RIFT_WIDTH = 1.8  # degrees


def point(lon, lat):
    """The point at a longitude along the belt and so far beside its middle (degrees)."""
    t = math.radians(lon)
    on_belt = tuple(math.cos(t) * ZERO[i] + math.sin(t) * QUARTER[i] for i in range(3))
    return along(on_belt, POLE, lat)


def _clouds():
    rnd = random.Random(CLOUD_SEED)
    clouds = []
    for _ in range(CLOUDS):
        lon = rnd.uniform(0, 360)
        at = point(lon, meander(math.radians(lon)) + rnd.gauss(0, 2.5))
        size = rnd.uniform(1.2, 4.0)  # degrees
        rise = rnd.uniform(0.5, 2.6)  # how much denser than the belt around it
        clouds.append((at, size, rise))
    return clouds


def meander(lon):
    """How far the belt's middle lies beside its great circle, degrees; lon in radians."""
    return -2.0 * math.sin(2 * lon + 0.7)


def longitude(v):
    """Along the belt, radians from -pi to pi."""
    return math.atan2(dot(v, QUARTER), dot(v, ZERO))


def beside(v):
    """Degrees from the winding middle of the belt, to the side of its pole positive."""
    return height(v, POLE) - meander(longitude(v))


def rift_middle(lon):
    """How far the rift's middle lies beside the belt's at a longitude, all in degrees."""
    return 1.2 * math.sin(math.radians(3.3 * lon))


def rift(v):
    """What the rift makes of the belt at v: next to nothing in its middle, the arms beside it
    brighter, 1 where it does not run.
    """
    lon = math.degrees(longitude(v)) % 360
    inside = min(lon - RIFT_FROM, RIFT_TO - lon) / 20.0  # 1 where it has come to its width
    if inside <= 0:
        return 1.0
    off = beside(v) - rift_middle(lon)
    dark = math.exp(-((off / (RIFT_WIDTH * min(inside, 1.0))) ** 4))
    return (1.0 - 0.97 * dark) * (1.0 + 0.9 * min(inside, 1.0))


def density(v):
    """How dense the stars stand at v; 1 far from the band, at most PEAK in it."""
    lon = longitude(v)
    swell = 0.5 + 0.5 * math.cos(lon - math.radians(250))
    width = 4.2 + 2.6 * swell**3  # degrees
    belt = math.exp(-((beside(v) / width) ** 2))
    if belt < 0.01:
        return 1.0
    clouds = sum(
        rise * math.exp(-((angle(v, at) / size) ** 2)) for at, size, rise in CLOUDS_OF_STARS
    )
    return min(PEAK, 1.0 + (6.0 + 2.0 * swell) * belt * (0.35 + clouds) * rift(v))


def density_around(v, reach):
    """The mean density at v and in a ring so many degrees around it."""
    right = norm(cross(v, NORTH))
    up = cross(right, v)
    ring = [v]
    for k in range(8):
        c, s = math.cos(k * math.pi / 4), math.sin(k * math.pi / 4)
        ring.append(along(v, tuple(c * right[i] + s * up[i] for i in range(3)), reach))
    return sum(map(density, ring)) / len(ring)


CLOUDS_OF_STARS = _clouds()
