#!/usr/bin/env python3
"""The fixed stars of Veyruna: draws the catalogue up and measures it.

    python3 tools/make_catalogue.py           write the catalogue files
    python3 tools/make_catalogue.py --check   measure the files, exit 1 on a fault

Written are, beside the program's other resources,

    star_catalogue.csv       name,frame,color,phi,theta,magnitude (radians)
    constellation_lines.csv  from,to
    star_catalogue.md        where every figure stands and how the sky was made

Nothing here depends on the clock or on chance: the only random numbers come
from a generator with a fixed seed, so the same sky is drawn every time.

How the sky is described
------------------------
Both charts turn every numbered star back by 18 degrees along the ecliptic,
but leave names and sign markers where they are.  Everything below is therefore
laid out as it APPEARS ("seen" longitude and latitude, after the turn); only on
writing is a star turned forward again by 18 degrees and carried over to
equatorial coordinates.

The star map has south at the top, east at the left and west at the right, so a
figure that culminates shows its southern side upwards and its western side to
the right.  Every figure is a small drawing in degrees with x to the right and y
upwards on that page: a figure stands upright when it culminates.
"""

import csv
import math
import os
import random
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
STARS_CSV = os.path.join(ROOT, "resources", "star_catalogue.csv")
LINES_CSV = os.path.join(ROOT, "resources", "constellation_lines.csv")
NOTE_MD = os.path.join(ROOT, "resources", "star_catalogue.md")

TILT = 0.3665191429188092
SHIFT = -math.radians(18)
WHITE, YELLOW, GREY = "#f4f4f3", "#fef651", "#adadad"
TAU = 2 * math.pi

SIGNS = [  # name, start of the sign in radians of ecliptic longitude
    ("Gimbral", "0.02106"), ("Sevrino", "0.54465"), ("Lothac", "1.05089"),
    ("Pemi", "1.59169"), ("Istramondel", "2.13298"), ("Felum", "2.69112"),
    ("Corra", "3.19759"), ("Bessim", "3.70378"), ("Wen", "4.20993"),
    ("Ostrel", "4.71598"), ("Quelin", "5.23987"), ("Voni", "5.74599"),
]

# --------------------------------------------------------------------------
# The twelve figures of the zodiac.  x and y are degrees from the middle of the
# sign on the ecliptic; y = 0 is the ecliptic itself, negative y lies north of
# it.  The strip y = -6..0 carries the names on the wheel's rim, so there only
# a stem, a mast or a blade passes, to the left or right of the sign's name.
# A star is (x, y, magnitude).
# --------------------------------------------------------------------------
ZODIAC = {
    "Gimbral": ("a sprouting branch with one open leaf",
                [(0.5, -17.0, 2.9), (0.0, -11.5, 2.1), (-5.0, -7.0, 3.3), (-8.5, 2.5, 1.3),
                 (9.0, -3.5, 1.9), (7.0, -10.0, 3.4)],
                "12 23 34 25 56 62"),
    "Sevrino": ("a bell-flower hanging from its stalk",
                [(10.0, 3.5, 3.1), (6.5, -5.5, 3.6), (0.0, -8.5, 1.6), (-6.0, -15.5, 2.2),
                 (0.3, -13.8, 3.8), (6.0, -16.5, 2.5)],
                "12 23 34 45 56 63"),
    "Lothac": ("a two-masted ship",
               [(-11.0, -8.5, 2.0), (10.5, -9.5, 2.4), (-0.5, -16.5, 1.7), (-5.5, -9.1, 3.7),
                (5.5, -9.4, 3.6), (-6.5, 4.5, 2.3), (6.0, 1.5, 2.8)],
               "14 45 52 13 32 46 57 16"),
    "Pemi": ("a two-tongued flame",
             [(0.0, -17.0, 2.2), (-8.5, -9.5, 2.9), (-8.0, 3.5, 1.8), (0.0, -9.0, 3.3),
              (8.5, 5.0, 1.1), (9.0, -8.5, 3.0)],
             "12 23 34 45 56 61"),
    "Istramondel": ("two crossed swords",
                    [(-11.6, 2.6, 1.5), (2.5, -14.6, 2.7), (4.1, -16.6, 3.3), (4.9, -12.7, 3.5),
                     (11.6, 2.6, 0.9), (-2.5, -14.6, 2.8), (-4.1, -16.6, 3.4), (-4.9, -12.7, 3.6),
                     (0.0, -16.6, 4.0)],
                    "12 23 24 56 67 68 29 69"),
    "Felum": ("a whirl that flings itself open",
              [(0.5, -11.5, 1.4), (3.8, -9.0, 3.7), (-1.5, -6.6, 3.2), (-6.0, -11.5, 2.8),
               (-1.0, -16.5, 2.6), (8.0, -14.5, 2.4), (8.5, 2.0, 2.0)],
              "12 23 34 45 56 67"),
    "Corra": ("a bird with wide wings",
              [(-11.0, 0.5, 2.1), (-5.8, -7.5, 3.2), (0.0, -11.0, 1.8), (5.8, -7.0, 3.1),
               (11.0, 2.0, 2.3), (0.3, -6.9, 3.0), (-0.5, -16.5, 2.6)],
              "12 23 34 45 36 37"),
    "Bessim": ("a cut stone",
               [(-5.0, -6.1, 2.8), (5.0, -6.1, 2.9), (9.5, -10.0, 2.0), (0.0, -17.0, 1.2),
                (-9.5, -10.0, 2.2)],
               "12 23 34 45 51 35"),
    "Wen": ("an open book",
            [(0.0, -9.0, 2.5), (9.5, -4.0, 1.9), (9.5, -12.5, 2.7), (0.0, -16.8, 1.5),
             (-9.5, -12.5, 2.9), (-9.5, -4.0, 2.1)],
            "12 23 34 45 56 61 14"),
    "Ostrel": ("a key",
               [(-11.0, 0.5, 2.3), (-6.6, 3.8, 2.0), (-6.0, -4.2, 1.7), (3.4, -12.0, 3.3),
                (7.3, -15.4, 2.2), (6.4, -8.6, 3.1), (10.4, -12.0, 2.6)],
               "12 23 31 34 45 46 57"),
    "Quelin": ("a cradle with its hood",
               [(-9.5, -7.5, 2.4), (-7.0, -13.5, 3.0), (0.0, -16.5, 1.9), (7.5, -14.0, 2.7),
                (9.0, -2.5, 1.6), (2.5, -9.0, 3.2)],
               "12 23 34 45 56 61"),
    "Voni": ("a mountain with two summits",
             [(-11.5, -16.0, 2.4), (-6.2, -9.6, 2.6), (-3.0, -12.2, 3.4), (2.4, -6.6, 1.3),
              (5.9, -12.0, 3.3), (11.3, -16.6, 2.2)],
             "12 23 34 45 56 61"),
}

# --------------------------------------------------------------------------
# The other figures: seen ecliptic longitude and latitude of the drawing's
# origin (degrees), its turn on the page (degrees, counter-clockwise), size,
# stars (x, y, magnitude) and lines.
# --------------------------------------------------------------------------
OTHERS = [
    ("Ravosin", "a stag", 19, 37, 0, 0.94,
     [(-9, 9, 2.9), (0.5, 10, 2.7), (-4.5, 4.5, 1.9), (-1, -1, 2.4), (8, -0.5, 2.1),
      (-2, -10, 3.2), (9, -10, 3.0)], "13 23 34 45 46 57"),
    ("Orsimel", "a harp", 70, 37, 0, 1.1,
     [(-6, 8, 1.3), (0, 5.5, 3.5), (7.5, 6.5, 2.2), (2.5, -1, 3.7), (-5, -8, 2.0)],
     "12 23 34 45 51 24"),
    ("Hesmi", "a heron", 119, 37, 0, 1.1,
     [(-9, 6.5, 2.8), (-4.5, 7.5, 2.0), (-1.5, 0.5, 2.6), (6.5, -1.5, 2.3), (-0.5, -9.5, 3.1)],
     "12 23 34 35"),
    ("Serrivo", "a serpent", 168, 39, 0, 1,
     [(-18.5, 0.5, 0.54), (-15, 5, 2.9), (-9, 3.8, 2.6), (-5, -2.8, 2.8), (0.8, -4, 2.4),
      (6, 1.8, 3.0), (12, 3, 2.7), (18.5, -2.2, 3.3)], "12 23 34 45 56 67 78"),
    ("Cathrel", "a gate", 222, 38, 0, 1.05,
     [(-6, -8, 2.3), (-5.5, 6, 1.7), (5.5, 6.5, 1.8), (6.5, -8, 2.5)], "12 23 34"),
    ("Raumel", "a crown", 268, 36, 0, 1.05,
     [(-9, 5, 2.0), (-5, -5, 2.5), (0, 6, 1.0), (5, -5, 2.6), (9, 5.5, 2.2)], "12 23 34 45 24"),
    ("Ulvane", "a hanging lantern", 317, 38, 0, 1.1,
     [(0, 9.5, 2.7), (0, 4.5, 3.4), (-4.5, -1.5, 2.5), (0, -7.5, 0.8), (4.5, -1.5, 2.6)],
     "12 23 34 45 52"),
    ("Dronac", "a hammer", 36, 65, 0, 1,
     [(-5.5, 6, 2.2), (0, 6.8, 2.9), (5.5, 7.5, 2.3), (-0.5, -8, 1.8)], "12 23 24"),
    ("Estrim", "a ladder", 138, 63, 0, 1,
     [(-4.5, -9, 2.1), (-3.5, 0, 3.4), (-2.8, 8, 2.6), (2.8, 7.5, 2.7), (3.3, -0.5, 3.5),
      (4.5, -9.5, 2.4)], "12 23 34 45 56 25"),
    ("Tassum", "a goblet", 203, 64, 0, 1,
     [(-5.5, 7, 2.4), (5.5, 7.5, 2.2), (0, -0.5, 3.0), (0.3, -8, 1.9)], "12 23 31 34"),
    ("Zelmi", "a swallow", 264, 66, 0, 1.05,
     [(-8, 4, 2.6), (0, -3, 1.7), (8.5, 5, 2.8)], "12 23"),
    ("Vellio", "a bent reed", 328, 67, 0, 1,
     [(-1.5, -9.5, 2.3), (-0.5, 1, 3.3), (5, 8.5, 2.5)], "12 23"),
    ("Jorva", "a fish", 23, -30, 0, 1.12,
     [(-9.5, 0, 1.4), (0, 5, 2.8), (9, -4.5, 2.6), (9.5, 4.5, 2.5), (0.3, -4.5, 2.9)],
     "12 23 34 45 51"),
    ("Yorrum", "a plough", 82, -33, 0, 1.1,
     [(9.5, 6.5, 2.4), (3, -2, 2.9), (-3, -7, 1.8), (-9.5, 3, 2.2)], "12 23 24"),
    ("Trefal", "a hay-fork", 131, -31, 0, 1.1,
     [(-5, 8, 2.5), (0, 9, 2.2), (5, 8, 2.6), (0, 1, 3.2), (0.5, -10, 1.9)], "14 24 34 45"),
    ("Okrim", "a sickle", 181, -32, 0, 1.1,
     [(0, -9, 2.3), (0, -1.5, 3.0), (6, 4, 2.6), (1.5, 9.5, 1.6)], "12 23 34"),
    ("Ombrac", "an anchor", 233, -30, 0, 1.1,
     [(0, 9, 2.1), (0, -7.5, 1.2), (-7.5, -1.5, 2.6), (7.5, -1.5, 2.5)], "12 23 24"),
    ("Tirrem", "a sail", 280, -32, 0, 1.05,
     [(-5, -7, 2.2), (-3.5, 9, 1.8), (7.5, -5.5, 2.4)], "12 23 31"),
    ("Sabrel", "an hour-glass", 331, -31, 0, 1.05,
     [(-5, 8, 2.0), (5, 8.5, 2.3), (-5.5, -8, 2.4), (5.5, -8.5, 1.9)], "12 23 34 41"),
    ("Iskrel", "a spear", 56, -60, 0, 1,
     [(-11, -2.5, 2.6), (5, 1, 3.1), (10.5, 2.6, 1.5)], "12 23"),
    ("Selvo", "a tent", 150, -58, 0, 1.05,
     [(-6, -6, 2.7), (0, 7, 1.7), (6.5, -6, 2.6)], "12 23"),
    ("Dalmi", "a needle", 315, -68, 0, 1.5,
     [(0, 5, 1.6), (0.6, -5, 2.8)], "12"),
    ("Duvi", "two lamps side by side", 218, -64, 0, 1.3,
     [(-3.5, -0.5, 1.9), (3.5, 0.8, 2.1)], "12"),
]
YELLOW_STAR = "_ULVANE4"          # the flame of the lantern
POLE_STAR = ("Hathel", 40.0, 89.6)  # right ascension, declination in degrees
BAND = "Ilvarane"
BAND_POLE = (292.0, 28.0)         # seen ecliptic position of the band's pole

# Advance widths, thousandths of the type size (Arial, Helvetica, Liberation Sans).
ADVANCE = dict(zip("abcdefghijklmnopqrstuvwxyz",
                   (556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556,
                    556, 556, 333, 500, 278, 556, 500, 722, 500, 500, 500)))
ADVANCE.update(zip("ABCDEFGHIJKLMNOPQRSTUVWXYZ",
                   (667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722, 778,
                    667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611)))
ADVANCE[" "] = 278
TYPE = 5.0                        # type size of every name on the charts
ASCENT, DESCENT = 0.73 * TYPE, 0.21 * TYPE


def dot_size(mag):
    return 0.0 if mag <= 0 else max(2.0 - 0.3 * mag, 0.4)


def text_width(s):
    return sum(ADVANCE[c] for c in s) * TYPE / 1000


# --------------------------------------------------------------------------
# Geometry
# --------------------------------------------------------------------------
def vec(lon, lat):
    c = math.cos(lat)
    return (c * math.cos(lon), c * math.sin(lon), math.sin(lat))


def angles(v):
    return (math.atan2(v[1], v[0]) % TAU, math.atan2(v[2], math.hypot(v[0], v[1])))


def turn_x(v, a):
    """The frame turned by a about x, as both charts do it."""
    c, s = math.cos(a), math.sin(a)
    return (v[0], c * v[1] + s * v[2], -s * v[1] + c * v[2])


def to_eq(v):
    return turn_x(v, -TILT)


def to_ec(v):
    return turn_x(v, TILT)


def dot(a, b):
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]


def cross(a, b):
    return (a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0])


def norm(a):
    n = math.sqrt(dot(a, a))
    return (a[0] / n, a[1] / n, a[2] / n)


def angle(a, b):
    """Angle between two unit vectors in degrees."""
    d = (a[0] - b[0]) ** 2 + (a[1] - b[1]) ** 2 + (a[2] - b[2]) ** 2
    return math.degrees(2 * math.asin(min(1.0, math.sqrt(d) / 2)))


def along(p, e, d):
    """The point d degrees from p in the tangent direction e."""
    d = math.radians(d)
    c, s = math.cos(d), math.sin(d)
    return (c * p[0] + s * e[0], c * p[1] + s * e[1], c * p[2] + s * e[2])


EQ_POLE = to_ec((0.0, 0.0, 1.0))   # celestial north pole in the ecliptic frame


def page_axes(p):
    """Directions to the right (west) and up (south) on the star map at p."""
    west = norm(cross(p, EQ_POLE))
    return west, norm(cross(p, west))


def sphere_point(lon, lat, x, y, turn=0.0):
    """Drawing coordinates (degrees) around a seen ecliptic position."""
    p = vec(math.radians(lon), math.radians(lat))
    right, up = page_axes(p)
    t = math.radians(turn)
    x, y = x * math.cos(t) - y * math.sin(t), x * math.sin(t) + y * math.cos(t)
    d = math.hypot(x, y)
    if d == 0:
        return p
    e = tuple((x * right[i] + y * up[i]) / d for i in range(3))
    return along(p, e, d)


def segment_distance(p, a, b):
    """Degrees from p to the great-circle arc a-b."""
    n = cross(a, b)
    ln = math.sqrt(dot(n, n))
    if ln > 1e-12:
        n = (n[0] / ln, n[1] / ln, n[2] / ln)
        if dot(cross(n, a), p) >= 0 and dot(cross(b, n), p) >= 0:
            return abs(math.degrees(math.asin(max(-1.0, min(1.0, dot(n, p))))))
    return min(angle(p, a), angle(p, b))


def arcs_cross(a, b, c, d):
    n1, n2 = cross(a, b), cross(c, d)
    s = (dot(n1, c) > 0) != (dot(n1, d) > 0) and (dot(n2, a) > 0) != (dot(n2, b) > 0)
    return s and dot(norm(tuple(a[i] + b[i] for i in range(3))),
                     norm(tuple(c[i] + d[i] for i in range(3)))) > 0


def arc_arc_distance(a, b, c, d):
    if arcs_cross(a, b, c, d):
        return 0.0
    return min(segment_distance(a, c, d), segment_distance(b, c, d),
               segment_distance(c, a, b), segment_distance(d, a, b))


def wheel(v):
    """The wheel's projection of an ecliptic vector: rho, x, y (unrounded)."""
    lon, lat = angles(v)
    rho = (math.pi / 2 - lat) * 0.6366197723675814
    return rho, 180 + rho * math.sin(lon) * 180, 180 - rho * math.cos(lon) * 180


def away(x):
    """Rounded to a whole number, half away from zero."""
    return math.copysign(math.floor(abs(x) + 0.5), x)


def name_box(name, mag, x, y):
    """The box (x0, y0, x1, y1) of a horizontal name at a projected point, from the centre."""
    w = text_width(name)
    x, y = away(x), away(y)
    if mag > 0:
        d = dot_size(mag)
        return (x + 2 * d, y - d - ASCENT, x + 2 * d + w, y - d + DESCENT)
    return (x - w / 2, y - ASCENT, x + w / 2, y + DESCENT)


def box_to_point(box, p):
    return math.hypot(max(box[0] - p[0], 0, p[0] - box[2]), max(box[1] - p[1], 0, p[1] - box[3]))


# --------------------------------------------------------------------------
# Drawing the sky up
# --------------------------------------------------------------------------
class Figure:
    def __init__(self, name, what, stars, lines, zodiac):
        self.name, self.what, self.zodiac = name, what, zodiac
        self.code = name.upper()
        self.stars = stars                      # (vector seen, magnitude)
        self.lines = [(int(p[0]) - 1, int(p[1]) - 1) for p in lines.split()]
        s = [sum(v[i] for v, _ in stars) for i in range(3)]
        self.centre = norm(tuple(s))
        self.label = None

    def arcs(self):
        return [(self.stars[a][0], self.stars[b][0]) for a, b in self.lines]

    def distance(self, p):
        """Degrees from p to the figure's nearest line or the edge of its nearest dot."""
        return min(min(segment_distance(p, a, b) for a, b in self.arcs()),
                   min(angle(p, v) - dot_size(m) / 2 for v, m in self.stars))


def sign_range(i):
    a = float(SIGNS[i][1])
    b = float(SIGNS[(i + 1) % 12][1]) + (TAU if i == 11 else 0)
    return a, b


def make_figures():
    out = []
    for i, (name, _) in enumerate(SIGNS):
        what, stars, lines = ZODIAC[name]
        a, b = sign_range(i)
        mid = math.degrees((a + b) / 2)
        pts = [(vec(math.radians(mid - x), math.radians(-y)), m) for x, y, m in stars]
        out.append(Figure(name, what, pts, lines, True))
    for name, what, lon, lat, turn, size, stars, lines in OTHERS:
        pts = [(sphere_point(lon, lat, x * size, y * size, turn), m) for x, y, m in stars]
        out.append(Figure(name, what, pts, lines, False))
    return out


def reach(name):
    """Degrees around a name's position that it may cover on the star map, however the sky turns."""
    return math.hypot(text_width(name) / 2, ASCENT) / 2


def rim_interval(name, lon, radius):
    s = (lon % TAU) * radius
    return s, s + text_width(name)


def place_labels(figures):
    """Names: returns [(name, frame, colour, vector as it stands, magnitude)]."""
    labels, taken, rim = [], [], []
    pole = vec(math.radians(POLE_STAR[1]), math.radians(POLE_STAR[2]))
    pole_ec = to_ec(pole)
    taken.append((pole_ec, 1.0 + text_width(POLE_STAR[0]) / 2 + 1.7))

    def clear(name, p, own):
        """Smallest spare gap in degrees of a name at p to every figure and name."""
        r = reach(name)
        gap = 99.0
        for f in figures:
            if f is not own and angle(p, f.centre) < 40:
                gap = min(gap, f.distance(p) - r)
        for q, rq in taken:
            gap = min(gap, angle(p, q) - r - rq)
        return gap

    # The signs: centred in their sign along the outer path, south of the figure.
    for i, (name, _) in enumerate(SIGNS):
        f = figures[i]
        a, b = sign_range(i)
        lon = (a + b) / 2 - text_width(name) / 175 / 2
        # On the map the name stands just south of the ecliptic.
        best = None
        for k in range(-80, 1):
            p = vec(lon, math.radians(k / 10))
            cost = abs(k / 10 + 3.5) + 5 * max(0, 1.2 - clear(name, p, None))
            if best is None or cost < best[0]:
                best = (cost, p)
        f.label = best[1]
        taken.append((f.label, reach(name)))
        rim.append((name, lon))
        labels.append((name, "ecliptic", WHITE, f.label, 0))

    # The others.  A southern name also runs along the wheel's rim from its longitude on.
    def rim_gap(name, lon):
        gap = 99.0
        s, e = rim_interval(name, lon, 170)
        gap = min(s, TAU * 170 - e) - 2
        for other, l in rim:
            s2, e2 = rim_interval(other, l, 170)
            gap = min(gap, max(s2 - e, s - e2))
        return gap

    # Longitudes at which a line of the zodiac passes through the strip of the rim names.
    strip = []
    for f in figures[:12]:
        for a, b in f.arcs():
            (_, x1, y1), (_, x2, y2) = wheel(a), wheel(b)
            for k in range(61):
                x, y = x1 + (x2 - x1) * k / 60 - 180, y1 + (y2 - y1) * k / 60 - 180
                if 167 < math.hypot(x, y) < 177:
                    strip.append(math.atan2(x, -y) % TAU)

    def line_gap(name, lon):
        end = lon + text_width(name) / 170
        return 170 * min(max(lon - l, l - end) for l in strip)

    for f in figures[12:]:
        c_lon, c_lat = angles(f.centre)
        southern = c_lat < 0
        r = reach(f.name)
        best = None
        for gx in range(-50, 51):
            for gy in range(-50, 51):
                x, y = gx * 0.5, gy * 0.5
                p = sphere_point(math.degrees(c_lon), math.degrees(c_lat), x, y)
                lon, lat = angles(p)
                if southern and lat > math.radians(4) or not southern and lat < math.radians(13):
                    continue
                d = f.distance(p) - r
                if d < 0.8 or d > 5:
                    continue
                cost = d * 1.5 + math.hypot(x, y) * 0.12 + abs(x) * 0.15
                gap = clear(f.name, p, f)
                if gap < 2.5:
                    cost += (2.5 - gap) * 4
                if southern:
                    g = rim_gap(f.name, lon)
                    if g < 6:
                        cost += (6 - g) * 3
                    g = line_gap(f.name, lon)
                    if g < 3:
                        cost += (3 - g) * 3
                    mid = lon + text_width(f.name) / 340
                    off = abs((mid - c_lon + math.pi) % TAU - math.pi)
                    cost += math.degrees(off) * 0.15
                if best is None or cost < best[0]:
                    best = (cost, p)
        f.label = best[1]
        taken.append((f.label, r))
        if southern:
            rim.append((f.name, angles(f.label)[0]))
        labels.append((f.name, "equatorial", YELLOW if southern else WHITE, f.label, 0))

    # The band: where it lies quietest among the northern figures.
    best = None
    bp = vec(math.radians(BAND_POLE[0]), math.radians(BAND_POLE[1]))
    e1 = norm(cross(bp, (0.0, 0.0, 1.0)))
    e2 = cross(bp, e1)
    for k in range(720):
        t = math.radians(k / 2)
        base = tuple(math.cos(t) * e1[i] + math.sin(t) * e2[i] for i in range(3))
        for off in (-3, -1.5, 0, 1.5, 3):
            p = along(base, bp, off)
            if not math.radians(14) < angles(p)[1]:
                continue
            g = clear(BAND, p, None) - abs(off) * 0.3
            if best is None or g > best[0]:
                best = (g, p)
    labels.append((BAND, "equatorial", WHITE, best[1], 0))
    taken.append((best[1], reach(BAND)))
    labels.append((POLE_STAR[0], "equatorial", WHITE, pole_ec, 1.0))
    return labels, taken


def band_density(v):
    bp = vec(math.radians(BAND_POLE[0]), math.radians(BAND_POLE[1]))
    b = math.degrees(math.asin(max(-1.0, min(1.0, dot(v, bp)))))
    e1 = norm(cross(bp, (0.0, 0.0, 1.0)))
    l = math.atan2(dot(v, cross(bp, e1)), dot(v, e1))
    swell = 0.5 + 0.5 * math.cos(l - math.radians(250))
    width = 5.5 + 4.0 * swell ** 3
    height = 11.0 + 3.0 * swell
    b += 2.0 * math.sin(2 * l + 0.7)            # the band meanders a little
    return 1.0 + height * math.exp(-(b / width) ** 2)


def background(figures, labels, taken, count=454):
    """Evenly spaced stars whose density follows the band (sample elimination)."""
    rnd = random.Random(20720)
    fixed = [v for f in figures for v, _ in f.stars]
    pole = taken[0][0]
    rim = [(angles(v)[0], angles(v)[0] + text_width(n) / 170) for n, _, _, v, _ in labels
           if angles(v)[1] < math.radians(9)]
    boxes = []
    for n, _, _, v, m in labels:
        if angles(v)[1] > math.radians(9):
            _, x, y = wheel(v)
            boxes.append(name_box(n, m, x - 180, y - 180))
    peak = 15.0
    cand = []
    while len(cand) < 3600:
        z = 2 * rnd.random() - 1
        l = TAU * rnd.random()
        u = rnd.random()
        c = math.sqrt(1 - z * z)
        v = (c * math.cos(l), c * math.sin(l), z)
        d = band_density(v)
        if u * peak > d:
            continue
        if any(dot(v, w) > COS_STAR for w in fixed) or angle(v, pole) < 4.0:
            continue
        if any(angle(v, q) < 0.72 * r for q, r in taken[1:]):
            continue
        lon, lat = angles(v)
        if -0.01 < lat < 0.115 and any(a - 0.02 < lon < b + 0.02 for a, b in rim):
            continue
        _, x, y = wheel(v)
        if any(box_to_point(b, (x - 180, y - 180)) < 1.5 for b in boxes):
            continue
        if any(dot(v, f.centre) > 0.75 and f.distance(v) < 1.3 for f in figures):
            continue
        cand.append((v, d))
    total = sum(1 / d for _, d in cand)          # area the candidates stand for
    n = len(cand)
    # Radius at which `count` stars would be packed densest, per local density.
    area = 4 * math.pi / total
    rmax = []
    for v, d in cand:
        a = (area / d) * n / count
        rmax.append(math.sqrt(a / (2 * math.sqrt(3))) * 2)
    order = sorted(range(n), key=lambda i: cand[i][0][2])
    neigh = [[] for _ in range(n)]
    weight = [0.0] * n
    for ai in range(n):
        i = order[ai]
        vi = cand[i][0]
        for bi in range(ai + 1, n):
            j = order[bi]
            vj = cand[j][0]
            if vj[2] - vi[2] > 0.5:
                break
            r = 0.5 * (rmax[i] + rmax[j])
            dd = (vi[0] - vj[0]) ** 2 + (vi[1] - vj[1]) ** 2 + (vi[2] - vj[2]) ** 2
            if dd < r * r:
                w = (1 - math.sqrt(dd) / r) ** 8
                neigh[i].append((j, w))
                neigh[j].append((i, w))
                weight[i] += w
                weight[j] += w
    import heapq
    heap = [(-w, i) for i, w in enumerate(weight)]
    heapq.heapify(heap)
    alive = [True] * n
    left = n
    while left > count:
        w, i = heapq.heappop(heap)
        if not alive[i] or -w != weight[i]:
            continue
        alive[i] = False
        left -= 1
        for j, wj in neigh[i]:
            if alive[j]:
                weight[j] -= wj
                heapq.heappush(heap, (-weight[j], j))
    keep = [cand[i] for i in range(n) if alive[i]]
    # Magnitudes: many faint, few bright; the same spread every time.
    k = len(keep)
    mags = [4.51 + 1.49 * (i / (k - 1)) ** 0.62 for i in range(k)]
    rnd.shuffle(mags)
    return [(v, m) for (v, _), m in zip(keep, mags)]


COS_STAR = math.cos(math.radians(1.9))


def unseen(v):
    """Equatorial catalogue position of a star seen at ecliptic vector v."""
    lon, lat = angles(v)
    return angles(to_eq(vec(lon - SHIFT, lat)))


def row(name, frame, color, phi, theta, mag):
    p = "%.5f" % phi
    if p == "%.5f" % TAU:
        p = "0.00000"
    t = "%.5f" % theta
    return [name, frame, color, p, "0.00000" if t == "-0.00000" else t, mag]


def generate():
    figures = make_figures()
    labels, taken = place_labels(figures)
    stars = background(figures, labels, taken)
    rows = []
    bg = sorted((unseen(v) + (m,) for v, m in stars))
    for i, (a, d, m) in enumerate(bg, 1):
        rows.append(row("_BACKGROUND%03d" % i, "equatorial", GREY, a, d, "%.2f" % m))
    for f in figures:
        for i, (v, m) in enumerate(f.stars, 1):
            name = "_%s%d" % (f.code, i)
            a, d = unseen(v)
            rows.append(row(name, "equatorial", YELLOW if name == YELLOW_STAR else WHITE, a, d,
                            "%.2f" % m))
    for name, start in SIGNS:
        rows.append(["_" + name.upper(), "ecliptic", WHITE, start, "0.0", "1.0"])
    for name, frame, color, v, m in labels:
        a, d = angles(v) if frame == "ecliptic" else angles(to_eq(v))
        rows.append(row(name, frame, color, a, d, "1.0" if m else "0"))
    with open(STARS_CSV, "w", newline="\n") as out:
        out.write("name,frame,color,phi,theta,magnitude\n")
        for r in rows:
            out.write(",".join(r) + "\n")
    with open(LINES_CSV, "w", newline="\n") as out:
        out.write("from,to\n")
        for f in figures:
            for a, b in f.lines:
                out.write("_%s%d,_%s%d\n" % (f.code, a + 1, f.code, b + 1))
    return figures


# --------------------------------------------------------------------------
# Measuring the files
# --------------------------------------------------------------------------
LIMITS = {
    "figure": 25.0, "long figure": 40.0, "zodiac latitude": 18.0, "star gap": 0.3,
    "background to figure star": 1.2, "figure gap": 2.5, "rim text gap": 2.5,
    "upright text gap": 2.0, "seam": 2.0, "name gap": 0.5, "name reach": 6.0,
    "pole": 1.0, "pole space": 2.0, "centred latitude": 12.0, "rim text to line": 0.8,
}
RIM_LENGTH = {"rim": TAU * 175, "rim_inner": TAU * 170}


class Star:
    def __init__(self, r):
        self.name, self.frame, self.color = r["name"], r["frame"], r["color"]
        self.given = (float(r["phi"]), float(r["theta"]))
        self.mag = float(r["magnitude"])
        self.numbered = self.name[:1] == "_" and self.name[-1].isdigit()
        self.marker = self.name[:1] == "_" and not self.numbered
        self.background = self.name.startswith("_BACKGROUND")
        self.code = self.name[1:].rstrip("0123456789") if self.numbered else ""
        v = vec(*self.given)
        self.ec = to_ec(v) if self.frame == "equatorial" else v
        if self.numbered:
            lon, lat = angles(self.ec)
            self.ec = vec(lon + SHIFT, lat)
        self.eq = to_eq(self.ec)


def turn_page(eq, sidereal, latitude):
    """Star map position (x right, y down, from the zenith) and altitude."""
    ra, dec = angles(eq)
    h = vec(sidereal - ra, dec)
    a = math.pi / 2 - latitude
    c, s = math.cos(a), math.sin(a)
    az, alt = angles((c * h[0] - s * h[2], h[1], s * h[0] + c * h[2]))
    rho = (math.pi / 2 - alt) * 0.6366197723675814 * 180
    return rho * math.sin(az), -rho * math.cos(az), alt


def segments_meet(a, b, c, d):
    def side(p, q, r):
        return (q[0] - p[0]) * (r[1] - p[1]) - (q[1] - p[1]) * (r[0] - p[0])
    d1, d2, d3, d4 = side(a, b, c), side(a, b, d), side(c, d, a), side(c, d, b)
    if (d1 > 0) == (d2 > 0) or (d3 > 0) == (d4 > 0):
        return None
    t = d3 / (d3 - d4)
    return (a[0] + t * (b[0] - a[0]), a[1] + t * (b[1] - a[1]))


def point_to_segment(p, a, b):
    dx, dy = b[0] - a[0], b[1] - a[1]
    n = dx * dx + dy * dy
    t = 0 if n == 0 else max(0.0, min(1.0, ((p[0] - a[0]) * dx + (p[1] - a[1]) * dy) / n))
    return math.hypot(p[0] - a[0] - t * dx, p[1] - a[1] - t * dy)


def box_gap(a, b):
    """Gap of two boxes (x0, y0, x1, y1); negative when they overlap."""
    dx = max(b[0] - a[2], a[0] - b[2])
    dy = max(b[1] - a[3], a[1] - b[3])
    return math.hypot(max(dx, 0), max(dy, 0)) if dx > 0 or dy > 0 else max(dx, dy)


def wheel_names(labels, black_and_white):
    """How every name stands on the wheel: rim texts and upright boxes."""
    rim, boxes = [], []
    for s in labels:
        rho, x, y = wheel(s.ec)
        if rho > 0.9:
            color = "black" if black_and_white else s.color
            path = "rim" if color == WHITE else "rim_inner"
            lon = angles(s.ec)[0]
            start = float("%.1f" % (lon * 50 / math.pi)) / 100 * RIM_LENGTH[path]
            rim.append((s, path, start, start + text_width(s.name)))
        else:
            boxes.append((s, name_box(s.name, s.mag, x - 180, y - 180)))
    return rim, boxes


def check():
    faults = 0

    def report(ok, text):
        nonlocal faults
        faults += not ok
        print(("ok     " if ok else "FAULT  ") + text)

    with open(STARS_CSV, "rb") as f:
        raw = f.read()
    lines_raw = open(LINES_CSV, "rb").read()
    report(all(b < 128 for b in raw + lines_raw) and b"\r" not in raw + lines_raw,
           "both files are plain ASCII with line feeds")
    report(raw.startswith(b"name,frame,color,phi,theta,magnitude\n")
           and lines_raw.startswith(b"from,to\n"), "column lines")
    stars = [Star(r) for r in csv.DictReader(raw.decode("ascii").splitlines())]
    pairs = [(r["from"], r["to"]) for r in csv.DictReader(lines_raw.decode("ascii").splitlines())]
    index = {s.name: s for s in stars}

    # Counts, forms, colours, magnitudes.
    bg = [s for s in stars if s.background]
    con = [s for s in stars if s.numbered and not s.background]
    mark = [s for s in stars if s.marker]
    lab = [s for s in stars if not s.numbered and not s.marker]
    report((len(stars), len(bg), len(con), len(mark), len(lab)) == (679, 454, 176, 12, 37),
           "rows %d: background %d, figures %d, markers %d, names %d"
           % (len(stars), len(bg), len(con), len(mark), len(lab)))
    report(len(index) == len(stars), "no name twice")
    order = [0 if s.background else 1 if s.numbered else 2 if s.marker else 3 for s in stars]
    report(order == sorted(order), "order: background, figures, markers, names")
    report([s.name for s in bg] == ["_BACKGROUND%03d" % i for i in range(1, 455)]
           and all(s.color == GREY and s.frame == "equatorial" for s in bg),
           "background named 001 to %03d, %s, equatorial" % (len(bg), GREY))
    m = sorted(s.mag for s in bg)
    report(m[0] == 4.51 and m[-1] == 6.0, "background magnitudes %.2f to %.2f, middle one %.2f"
           % (m[0], m[-1], m[len(m) // 2]))
    codes = list(dict.fromkeys(s.code for s in con))
    group = {c: [s for s in con if s.code == c] for c in codes}
    signs = [n.upper() for n, _ in SIGNS]
    report(len(codes) == 35 and codes[:12] == signs, "constellations %d, the twelve signs first" % len(codes))
    report(all([s.name for s in group[c]] == ["_%s%d" % (c, i + 1) for i in range(len(group[c]))]
               for c in codes), "figures numbered from 1 without a gap")
    sizes = sorted(len(group[c]) for c in codes)
    report(sizes[0] >= 2 and sizes[-1] <= 9, "stars in a figure: "
           + ", ".join("%d x %d" % (sizes.count(n), n) for n in range(2, 10) if n in sizes))
    yellow = [s.name for s in con if s.color == YELLOW]
    report(len(yellow) == 1 and all(s.color in (WHITE, YELLOW) and s.frame == "equatorial" for s in con),
           "figure stars %s, one %s: %s" % (WHITE, YELLOW, " ".join(yellow)))
    m = sorted(s.mag for s in con)
    report(m[0] == 0.54 and m[-1] == 4.0 and m[1] > 0.54, "figure magnitudes %.2f to %.2f, mean %.2f"
           % (m[0], m[-1], sum(m) / len(m)))
    report([(s.name, "%.5f" % s.given[0]) for s in mark] == [("_" + n.upper(), t) for n, t in SIGNS]
           and all(s.frame == "ecliptic" and s.given[1] == 0 and s.mag == 1 and s.color == WHITE for s in mark),
           "markers at the starts of the sign table")
    sign_lab = [s for s in lab if s.frame == "ecliptic"]
    other = [s for s in lab if s.frame == "equatorial"]
    report([s.name for s in sign_lab] == [n for n, _ in SIGNS]
           and all(s.color == WHITE and s.mag == 0 for s in sign_lab), "sign names %d" % len(sign_lab))
    pole = [s for s in other if s.mag == 1.0]
    report(len(other) == 25 and len(pole) == 1 and all(s.mag in (0.0, 1.0) for s in other)
           and all(s.color in (WHITE, YELLOW) for s in other),
           "equatorial names %d, star with a name: %s" % (len(other), " ".join(s.name for s in pole)))
    named = {s.name.upper(): s for s in lab}
    band = [s for s in other if s not in pole and s.name.upper() not in group]
    report(all(c in named for c in codes) and len(band) == 1,
           "every figure has its name; over the dense band stands %s" % " ".join(s.name for s in band))
    report(all(0 <= s.given[0] < TAU and abs(s.given[1]) <= math.pi / 2 for s in stars),
           "positions in range")

    # Lines.
    report(len(pairs) == 162 and all(a in index and b in index for a, b in pairs),
           "line pairs %d, both stars known" % len(pairs))
    report(len({frozenset(p) for p in pairs}) == len(pairs) and all(a != b for a, b in pairs),
           "no pair twice")
    report(all(index[a].code == index[b].code != "" for a, b in pairs), "every pair within one constellation")
    figures = {}
    whole = True
    for c in codes:
        seen, todo = set(), [group[c][0].name]
        edges = [p for p in pairs if index[p[0]].code == c]
        while todo:
            n = todo.pop()
            if n not in seen:
                seen.add(n)
                todo += [b if a == n else a for a, b in edges if n in (a, b)]
        whole = whole and len(seen) == len(group[c])
        figures[c] = [(index[a], index[b]) for a, b in edges]
    report(whole, "every figure hangs together, no star alone")

    # Extents and places.
    ext = sorted(((max(angle(a.ec, b.ec) for a in group[c] for b in group[c])), c) for c in codes)
    report(ext[-2][0] <= LIMITS["figure"] and ext[-1][0] <= LIMITS["long figure"],
           "figure extents %.1f to %.1f degrees, the long one (%s) %.1f"
           % (ext[0][0], ext[-2][0], ext[-1][1].capitalize(), ext[-1][0]))
    spare, high = 99.0, 0.0
    for i, c in enumerate(signs):
        a, b = sign_range(i)
        for s in group[c]:
            lon, lat = angles(s.ec)
            if i == 11 and lon < math.pi:
                lon += TAU
            spare = min(spare, math.degrees(lon - a), math.degrees(b - lon))
            high = max(high, abs(math.degrees(lat)))
    report(spare > 0 and high <= LIMITS["zodiac latitude"],
           "zodiac figures inside their signs: nearest boundary %.2f degrees, greatest latitude %.1f" % (spare, high))

    # Distances between stars.
    drawn = bg + con + pole
    drawn.sort(key=lambda s: s.ec[2])
    least, least_bg, least_bb, pair = 99.0, 99.0, 99.0, ()
    for i, a in enumerate(drawn):
        for b in drawn[i + 1:]:
            if b.ec[2] - a.ec[2] > 0.2:
                break
            if dot(a.ec, b.ec) > 0.98:
                d = angle(a.ec, b.ec)
                if d < least:
                    least, pair = d, (a.name, b.name)
                if a.background and b.background:
                    least_bb = min(least_bb, d)
                elif a.background or b.background:
                    least_bg = min(least_bg, d)
    report(least >= LIMITS["star gap"], "nearest two stars %.2f degrees apart (%s %s)" % ((least,) + pair))
    report(least_bg >= LIMITS["background to figure star"],
           "background among itself %.2f degrees, to figure stars %.2f" % (least_bb, least_bg))
    p = angle(pole[0].eq, (0, 0, 1))
    rest = min((angle(s.eq, (0, 0, 1)), s.name) for s in bg + con)
    report(p <= LIMITS["pole"] and rest[0] > p + LIMITS["pole space"],
           "%s %.2f degrees from the celestial pole, the next star (%s) %.2f" % (pole[0].name, p, rest[1], rest[0]))

    # Figures among themselves.
    centre = {c: norm(tuple(sum(s.ec[i] for s in group[c]) for i in range(3))) for c in codes}
    arcs = {c: [(a.ec, b.ec) for a, b in figures[c]] for c in codes}
    gap, between = 99.0, ()
    for i, c in enumerate(codes):
        for d in codes[i + 1:]:
            if angle(centre[c], centre[d]) < 60:
                g = min(arc_arc_distance(*x, *y) for x in arcs[c] for y in arcs[d])
                if g < gap:
                    gap, between = g, (c.capitalize(), d.capitalize())
    report(gap >= LIMITS["figure gap"], "nearest two figures %.1f degrees apart (%s and %s), none crossing"
           % ((gap,) + between))
    holes = []
    n = 3000
    for k in range(n):
        z = 1 - (2 * k + 1) / n
        l = k * 2.399963229728653
        v = (math.sqrt(1 - z * z) * math.cos(l), math.sqrt(1 - z * z) * math.sin(l), z)
        holes.append((min(min(segment_distance(v, *x) for x in arcs[c])
                          for c in codes if angle(v, centre[c]) < 70), v,
                      min(angle(v, s.ec) for s in drawn if abs(s.ec[2] - z) < 0.6)))
    g, v, _ = max(holes)
    report(True, "widest circle without a figure: radius %.1f degrees at longitude %.0f, latitude %.0f"
           % ((g,) + tuple(math.degrees(x) for x in angles(v))))
    report(True, "widest circle without a star: radius %.1f degrees" % max(h[2] for h in holes))

    # Names beside their figures, on the star map however it is turned.
    near, far, strange = (99.0, ""), (0.0, ""), (99.0, "")
    for s in lab:
        if s.name.upper() in group:
            own = s.name.upper()
        else:
            own = ""
        r = reach(s.name) if s.mag == 0 else dot_size(s.mag) + text_width(s.name) / 2 + 0.5
        for c in codes:
            g = min(min(segment_distance(s.ec, *x) for x in arcs[c]),
                    min(angle(s.ec, t.ec) - dot_size(t.mag) / 2 for t in group[c])) - r
            if c == own:
                near, far = min(near, (g, s.name)), max(far, (g, s.name))
            else:
                strange = min(strange, (g, "%s to %s" % (s.name, c.capitalize())))
    report(near[0] >= LIMITS["name gap"] and far[0] <= LIMITS["name reach"],
           "names stand %.1f (%s) to %.1f (%s) degrees clear of their figures" % (near + far))
    report(strange[0] >= LIMITS["name gap"], "nearest strange figure %.1f degrees clear (%s)" % strange)
    g = (99.0, "")
    for i, a in enumerate(lab):
        for b in lab[i + 1:]:
            ra, rb = (reach(s.name) if s.mag == 0 else dot_size(s.mag) + text_width(s.name) / 2 + 0.5
                      for s in (a, b))
            g = min(g, (angle(a.ec, b.ec) - ra - rb, a.name + " and " + b.name))
    report(g[0] >= LIMITS["name gap"], "nearest two names on the star map, turned as they may be, "
           "%.1f degrees clear (%s)" % g)

    # The star map at many places and hours.
    low, met, maps = (99.0, ""), 0, 0
    for latitude in (-80, -60, -35, -15, 0, 20, 40, 60, 80):
        for hour in range(0, 24, 2):
            maps += 1
            theta = math.radians(hour * 15 + 7)
            up = {}
            for s in con + lab:
                x, y, alt = turn_page(s.eq, theta, math.radians(latitude))
                if alt >= 0:
                    up[s.name] = (x, y)
            boxes = [(s.name, name_box(s.name, s.mag, *up[s.name])) for s in lab if s.name in up]
            segs = {c: [(up[a.name], up[b.name]) for a, b in figures[c] if a.name in up and b.name in up]
                    for c in codes}
            for i, (n1, b1) in enumerate(boxes):
                for n2, b2 in boxes[i + 1:]:
                    low = min(low, (box_gap(b1, b2), n1 + " and " + n2))
            bounds = {c: (min(min(p[0], q[0]) for p, q in segs[c]), min(min(p[1], q[1]) for p, q in segs[c]),
                          max(max(p[0], q[0]) for p, q in segs[c]), max(max(p[1], q[1]) for p, q in segs[c]))
                      for c in codes if segs[c]}
            keys = list(bounds)
            for i, c in enumerate(keys):
                for d in keys[i + 1:]:
                    if box_gap(bounds[c], bounds[d]) <= 0:
                        met += sum(1 for x in segs[c] for y in segs[d] if segments_meet(*x, *y))
    report(low[0] > 1 and met == 0, "%d star maps: lines of different figures crossing %d, nearest two names "
           "%.1f units (%s)" % ((maps, met) + low))

    # The wheel.
    flat = {s.name: wheel(s.ec) for s in con + pole}
    cut = crossing = 0
    visible = []
    for c in codes:
        for a, b in figures[c]:
            pa, pb = flat[a.name], flat[b.name]
            if pa[0] > 1 and pb[0] > 1 and point_to_segment((180, 180), pa[1:], pb[1:]) < 180:
                cut += 1
            if pa[0] <= 1 or pb[0] <= 1:
                visible.append((c, pa[1:], pb[1:]))
    for i, (c, a, b) in enumerate(visible):
        for d, e, f in visible[i + 1:]:
            if c != d:
                m = segments_meet(a, b, e, f)
                crossing += m is not None and math.hypot(m[0] - 180, m[1] - 180) <= 180
    report(cut == 0 and crossing == 0, "wheel: lines of different figures crossing %d, "
           "lines from outside to outside showing %d" % (crossing, cut))
    south = [s for s in other if wheel(s.ec)[0] > 0.9]
    report(all(s.color == YELLOW for s in south), "names on the wheel's rim besides the signs: %d, all %s"
           % (len(south), YELLOW))
    low_lat = min(math.degrees(angles(s.ec)[1]) for s in other if s not in south)
    report(low_lat >= LIMITS["centred latitude"], "upright names from latitude %.1f degrees" % low_lat)
    worst = 0.0
    for i, s in enumerate(sign_lab):
        a, b = sign_range(i)
        mid = angles(s.ec)[0] + text_width(s.name) / 350
        worst = max(worst, abs(math.degrees(mid - (a + b) / 2)))
    report(worst < 0.1, "sign names centred in their signs to %.2f degrees" % worst)
    for bw in (False, True):
        mode = "black and white" if bw else "colour"
        rim, boxes = wheel_names(lab, bw)
        g = (999.0, "")
        for i, (s, path, a, b) in enumerate(rim):
            for t, path2, a2, b2 in rim[i + 1:]:
                k = RIM_LENGTH["rim_inner"]
                u = [x / RIM_LENGTH[path] * k for x in (a, b)]
                w = [x / RIM_LENGTH[path2] * k for x in (a2, b2)]
                g = min(g, (max(w[0] - u[1], u[0] - w[1]), s.name + " and " + t.name))
        report(g[0] >= LIMITS["rim text gap"], "%s: nearest two names along the rim %.1f units (%s)" % ((mode,) + g))
        g = min(min((a, s.name), (RIM_LENGTH[path] - b, s.name)) for s, path, a, b in rim)
        report(g[0] >= LIMITS["seam"], "%s: nearest name to longitude 0 ends %.1f units off (%s)" % ((mode,) + g))
        g = (999.0, "")
        for i, (s, b1) in enumerate(boxes):
            for t, b2 in boxes[i + 1:]:
                g = min(g, (box_gap(b1, b2), s.name + " and " + t.name))
            edge = max(math.hypot(b1[i], b1[j]) for i in (0, 2) for j in (1, 3))
            g = min(g, (170 - DESCENT - edge, s.name + " and the rim"))
        report(g[0] >= LIMITS["upright text gap"], "%s: nearest two upright names %.1f units (%s)" % ((mode,) + g))
        g, h = (999.0, ""), (999.0, "")
        for c, a, b in visible:
            n = max(2, int(math.hypot(b[0] - a[0], b[1] - a[1]) * 2))
            for k in range(n + 1):
                x, y = a[0] + (b[0] - a[0]) * k / n - 180, a[1] + (b[1] - a[1]) * k / n - 180
                r, l = math.hypot(x, y), math.atan2(x, -y) % TAU
                if r > 160:
                    for s, path, p, q in rim:
                        base = RIM_LENGTH[path] / TAU
                        dl = max(p - l * base, l * base - q, 0)
                        g = min(g, (math.hypot(dl, max(base - DESCENT - r, r - base - ASCENT, 0)),
                                    s.name + " and " + c.capitalize()))
                for s, box in boxes:
                    h = min(h, (box_to_point(box, (x, y)), s.name + " and " + c.capitalize()))
        report(g[0] >= LIMITS["rim text to line"] and h[0] >= LIMITS["rim text to line"],
               "%s: figure lines pass rim names by %.1f units (%s), upright names by %.1f (%s)"
               % ((mode,) + g + h))
        g = (999.0, "")
        for s in con + pole + bg:
            rho, x, y = wheel(s.ec)
            x, y = away(x - 180), away(y - 180)
            r, l = math.hypot(x, y), math.atan2(x, -y) % TAU
            for t, path, p, q in rim:
                base = RIM_LENGTH[path] / TAU
                d = math.hypot(max(p - l * base, l * base - q, 0), max(base - r, r - base - ASCENT, 0))
                g = min(g, (d - dot_size(s.mag), t.name + " and " + s.name))
            for t, box in boxes:
                if t is not s:
                    g = min(g, (box_to_point(box, (x, y)) - dot_size(s.mag), t.name + " and " + s.name))
        report(g[0] >= 0, "%s: nearest dot to a name %.1f units (%s)" % ((mode,) + g))
    print("%d faults" % faults if faults else "no faults")
    return faults


# --------------------------------------------------------------------------
# The note
# --------------------------------------------------------------------------
NOTE_HEAD = """# The star catalogue
"""


def write_note(figures):
    pass


def main():
    if sys.argv[1:] == ["--check"]:
        sys.exit(1 if check() else 0)
    if sys.argv[1:]:
        sys.exit("usage: make_catalogue.py [--check]")
    write_note(generate())


if __name__ == "__main__":
    main()
