"""Where the bodies that wander stand: the sun, the moon and the planets.

All move at an even pace, the moon on an inclined circle.  A moment is a number of days
since noon of the first day; directions are vectors in the ecliptic frame.
"""

import math

from .sphere import vec
from .world import TAU

SIDEREAL_RATE = 1.0027777692901494  # turns of the sky a day
SUN_MOTION, SUN_PHASE = 0.0027777692901493913, -0.0013888846450746957  # turns
MOON_MOTION, MOON_PHASE = 0.03611111929015772, 0.027630213198790443  # turns
MOON_NODES, MOON_NODE_PHASE = 0.03626222155587435, -52833.2133155291  # turns a day, radians
MOON_INCLINATION = 0.13962634015954636  # radians

PLANETS = [  # name, radius in distances of the sun, days a turn, turns at the beginning
    ("Bralo", 0.6712873444586567, -198.00000000000003, 5.026548245743669),
    ("Dunmor", 1.5874010519681996, 720.0, 1.2566370614359172),
    ("Galvi", 4.641588833612779, 3600.0, 2.5132741228718345),
    ("Pallox", 19.332111165970602, 30600.0, 3.7699111843077517),
]


def sun_longitude(t):
    return (SUN_MOTION * t + SUN_PHASE) % 1 * TAU


def sun(t):
    return vec(sun_longitude(t), 0.0)


def moon(t):
    lon = (MOON_MOTION * t + MOON_PHASE) % 1 * TAU
    return vec(lon, math.sin(TAU * t * MOON_NODES + MOON_NODE_PHASE) * MOON_INCLINATION)


def planets(t):
    """The planets' names with their directions."""
    lon = sun_longitude(t)
    for name, radius, period, phase in PLANETS:
        turned = (phase + t / period) % 1 * TAU
        x = math.cos(lon) + radius * math.cos(turned)
        y = math.sin(lon) + radius * math.sin(turned)
        yield name, vec(math.atan2(y, x), 0.0)


def sidereal_angle(t, longitude):
    """Radians; the longitude too, east counted positive."""
    return longitude + SIDEREAL_RATE * t % 1 * TAU
