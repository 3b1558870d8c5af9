"""Geometry on the sphere.

Directions are unit vectors (x, y, z), as a rule in the ecliptic frame.  Longitudes
and latitudes are in radians, distances between directions in degrees.
"""

import math

from .world import TAU, TILT, TURN

NORTH = (0.0, 0.0, 1.0)  # the pole of whatever frame a vector is given in


def vec(lon, lat):
    c = math.cos(lat)
    return (c * math.cos(lon), c * math.sin(lon), math.sin(lat))


def angles(v):
    """Longitude from 0 on and latitude of a direction, in radians."""
    return (math.atan2(v[1], v[0]) % TAU, math.atan2(v[2], math.hypot(v[0], v[1])))


def _turn_x(v, a):
    """v as it stands in a frame turned by a about x."""
    c, s = math.cos(a), math.sin(a)
    return (v[0], c * v[1] + s * v[2], -s * v[1] + c * v[2])


def to_equatorial(v):
    return _turn_x(v, -TILT)


def to_ecliptic(v):
    return _turn_x(v, TILT)


def turned_back(v):
    """The ecliptic vector at which the charts show a numbered star."""
    lon, lat = angles(v)
    return vec(lon + TURN, lat)


def turned_forward(v):
    """The ecliptic vector at which a star must stand to be seen at v."""
    lon, lat = angles(v)
    return vec(lon - TURN, lat)


def dot(a, b):
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]


def cross(a, b):
    return (a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0])


def norm(a):
    n = math.sqrt(dot(a, a))
    return (a[0] / n, a[1] / n, a[2] / n)


def even_points(n):
    """Directions spread evenly over the sphere along a spiral."""
    for k in range(n):
        z = 1 - (2 * k + 1) / n
        c, lon = math.sqrt(1 - z * z), k * 2.399963229728653
        yield c * math.cos(lon), c * math.sin(lon), z


def mean(vectors):
    """The direction in the middle of some directions."""
    return norm(tuple(sum(v[i] for v in vectors) for i in range(3)))


def angle(a, b):
    """Degrees between two directions, exact for small ones too."""
    d = (a[0] - b[0]) ** 2 + (a[1] - b[1]) ** 2 + (a[2] - b[2]) ** 2
    return math.degrees(2 * math.asin(min(1.0, math.sqrt(d) / 2)))


def height(v, pole):
    """Degrees of v above the great circle around a pole."""
    return math.degrees(math.asin(max(-1.0, min(1.0, dot(v, pole)))))


def along(p, e, d):
    """The point d degrees from p in the tangent direction e."""
    d = math.radians(d)
    c, s = math.cos(d), math.sin(d)
    return (c * p[0] + s * e[0], c * p[1] + s * e[1], c * p[2] + s * e[2])


CELESTIAL_POLE = to_ecliptic(NORTH)


def on_page(p, x, y):
    """The point x degrees right of p and y degrees above it on the star map.

    The map has south at the top and west at the right, so this is how a drawing
    must be laid around p to stand upright when it culminates.
    """
    right = norm(cross(p, CELESTIAL_POLE))
    up = norm(cross(p, right))
    d = math.hypot(x, y)
    if d == 0:
        return p
    return along(p, tuple((x * right[i] + y * up[i]) / d for i in range(3)), d)


def arc_distance(p, a, b):
    """Degrees from p to the great-circle arc a-b."""
    n = cross(a, b)
    if dot(n, n) > 1e-24:
        n = norm(n)
        if dot(cross(n, a), p) >= 0 and dot(cross(b, n), p) >= 0:
            return abs(height(p, n))
    return min(angle(p, a), angle(p, b))


def _arcs_cross(a, b, c, d):
    n1, n2 = cross(a, b), cross(c, d)
    return (
        (dot(n1, c) > 0) != (dot(n1, d) > 0)
        and (dot(n2, a) > 0) != (dot(n2, b) > 0)
        and dot(mean((a, b)), mean((c, d))) > 0
    )


def arc_arc_distance(a, b, c, d):
    """Degrees between the great-circle arcs a-b and c-d."""
    if _arcs_cross(a, b, c, d):
        return 0.0
    return min(
        arc_distance(a, c, d), arc_distance(b, c, d), arc_distance(c, a, b), arc_distance(d, a, b)
    )
