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
import heapq
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
                    [(-11.6, 2.6, 1.5), (2.5, -14.5, 2.7), (4.2, -16.6, 3.3), (5.3, -12.3, 3.5),
                     (11.6, 2.6, 0.9), (-2.5, -14.5, 2.8), (-4.2, -16.6, 3.4), (-5.3, -12.3, 3.6),
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
               [(-5.0, -6.7, 2.8), (5.0, -6.7, 2.9), (9.5, -10.0, 2.0), (0.0, -17.0, 1.2),
                (-9.5, -10.0, 2.2)],
               "12 23 34 45 51 35"),
    "Wen": ("an open book",
            [(0.0, -7.4, 2.5), (9.5, -2.4, 1.9), (9.5, -11.0, 2.7), (0.0, -15.6, 1.5),
             (-9.5, -11.0, 2.9), (-9.5, -2.4, 2.1)],
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
             [(-11.5, -16.0, 2.4), (-6.2, -9.6, 2.6), (-3.0, -12.2, 3.4), (2.4, -6.8, 1.3),
              (5.9, -12.0, 3.3), (11.3, -16.6, 2.2)],
             "12 23 34 45 56 61"),
}

# --------------------------------------------------------------------------
# The other figures: seen ecliptic longitude and latitude of the drawing's
# origin (degrees), its turn on the page (degrees, counter-clockwise), size,
# stars (x, y, magnitude) and lines.
# --------------------------------------------------------------------------
OTHERS = [
    ("Ravosin", "a stag", 20, 37, 0, 0.94,
     [(-9, 9, 2.9), (0.5, 10, 2.7), (-4.5, 4.5, 1.9), (-1, -1, 2.4), (8, -0.5, 2.1),
      (-2, -10, 3.2), (9, -10, 3.0)], "13 23 34 45 46 57"),
    ("Orsimel", "a harp", 67, 41, 0, 1.1,
     [(-6, 8, 1.3), (0, 5.5, 3.5), (7.5, 6.5, 2.2), (2.5, -1, 3.7), (-5, -8, 2.0)],
     "12 23 34 45 51 24"),
    ("Hesmi", "a heron", 112, 38, 0, 1.1,
     [(-9, 6.5, 2.8), (-4.5, 7.5, 2.0), (-1.5, 0.5, 2.6), (6.5, -1.5, 2.3), (-0.5, -9.5, 3.1)],
     "12 23 34 35"),
    ("Serrivo", "a serpent", 176, 39, 0, 1,
     [(-18.5, 0.5, 0.54), (-15, 5, 2.9), (-9, 3.8, 2.6), (-5, -2.8, 2.8), (0.8, -4, 2.4),
      (6, 1.8, 3.0), (12, 3, 2.7), (18.5, -2.2, 3.3)], "12 23 34 45 56 67 78"),
    ("Cathrel", "a gate", 235, 37, 0, 1.05,
     [(-6, -8, 2.3), (-5.5, 6, 1.7), (5.5, 6.5, 1.8), (6.5, -8, 2.5)], "12 23 34"),
    ("Raumel", "a crown", 286, 42, 0, 1.05,
     [(-9, 5, 2.0), (-5, -5, 2.5), (0, 6, 1.0), (5, -5, 2.6), (9, 5.5, 2.2)], "12 23 34 45 24"),
    ("Ulvane", "a hanging lantern", 332, 43, 0, 1.1,
     [(0, 9.5, 2.7), (0, 4.5, 3.4), (-4.5, -1.5, 2.5), (0, -7.5, 0.8), (4.5, -1.5, 2.6)],
     "12 23 34 45 52"),
    ("Dronac", "a hammer", 35, 64, 0, 1,
     [(-5.5, 6, 2.2), (0, 6.8, 2.9), (5.5, 7.5, 2.3), (-0.5, -8, 1.8)], "12 23 24"),
    ("Estrim", "a ladder", 144, 60, 0, 1,
     [(-4.5, -9, 2.1), (-3.5, 0, 3.4), (-2.8, 8, 2.6), (2.8, 7.5, 2.7), (3.3, -0.5, 3.5),
      (4.5, -9.5, 2.4)], "12 23 34 45 56 25"),
    ("Tassum", "a goblet", 193, 70, 0, 1,
     [(-5.5, 7, 2.4), (5.5, 7.5, 2.2), (0, -0.5, 3.0), (0.3, -8, 1.9)], "12 23 31 34"),
    ("Zelmi", "a swallow", 252, 66, 0, 1.05,
     [(-8, 4, 2.6), (0, -3, 1.7), (8.5, 5, 2.8)], "12 23"),
    ("Vellio", "a bent reed", 320, 74, 0, 1,
     [(-1.5, -9.5, 2.3), (-0.5, 1, 3.3), (5, 8.5, 2.5)], "12 23"),
    ("Jorva", "a fish", 18, -30, 0, 1.12,
     [(-9.5, 0, 1.4), (0, 5, 2.8), (9, -4.5, 2.6), (9.5, 4.5, 2.5), (0.3, -4.5, 2.9)],
     "12 23 34 45 51"),
    ("Yorrum", "a plough", 75, -30, 0, 1.1,
     [(9.5, 6.5, 2.4), (3, -2, 2.9), (-3, -7, 1.8), (-9.5, 3, 2.2)], "12 23 24"),
    ("Trefal", "a hay-fork", 128, -29, 0, 1.1,
     [(-5, 8, 2.5), (0, 9, 2.2), (5, 8, 2.6), (0, 1, 3.2), (0.5, -10, 1.9)], "14 24 34 45"),
    ("Okrim", "a sickle", 182, -29, 0, 1.25,
     [(0, -9, 2.3), (0, -1.5, 3.0), (6, 4, 2.6), (1.5, 9.5, 1.6)], "12 23 34"),
    ("Ombrac", "an anchor", 230, -33, 0, 1.1,
     [(0, 9, 2.1), (0, -7.5, 1.2), (-7.5, -1.5, 2.6), (7.5, -1.5, 2.5)], "12 23 24"),
    ("Tirrem", "a sail", 277, -32, 0, 1.05,
     [(-5, -7, 2.2), (-3.5, 9, 1.8), (7.5, -5.5, 2.4)], "12 23 31"),
    ("Sabrel", "an hour-glass", 327, -29, 0, 1.05,
     [(-5, 8, 2.0), (5, 8.5, 2.3), (-5.5, -8, 2.4), (5.5, -8.5, 1.9)], "12 23 34 41"),
    ("Iskrel", "a spear", 35, -63, 0, 1,
     [(-11, -2.5, 2.6), (5, 1, 3.1), (10.5, 2.6, 1.5)], "12 23"),
    ("Selvo", "a tent", 132, -67, 0, 1.05,
     [(-6, -6, 2.7), (0, 7, 1.7), (6.5, -6, 2.6)], "12 23"),
    ("Dalmi", "a needle", 304, -69, 0, 1.5,
     [(0, 5, 1.6), (0.6, -5, 2.8)], "12"),
    ("Duvi", "two lamps side by side", 211, -71, 0, 1.3,
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
                if gap < 5:
                    cost += (5 - gap) * 2
                if southern:
                    g = rim_gap(f.name, lon)
                    if g < 10:
                        cost += (10 - g) * 2
                    g = line_gap(f.name, lon)
                    if g < 3:
                        cost += (3 - g) * 3
                    mid = lon + text_width(f.name) / 340
                    off = abs((mid - c_lon + math.pi) % TAU - math.pi)
                    cost += math.degrees(off) * 0.15
                    # North of the figure where there is room: seen from the
                    # northern lands, the name rises with its figure.
                    cost += y * 0.12
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
    width = 5.0 + 4.0 * swell ** 3
    height = 10.0 + 3.0 * swell
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
    peak = 14.0
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
        if any(dot(v, w) > COS_STAR for w in fixed) or angle(v, pole) < 9.3:
            continue
        if any(angle(v, q) < r + 0.5 for q, r in taken[1:]):
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


def draw_up():
    """The texts of the three files."""
    figures = make_figures()
    labels, taken = place_labels(figures)
    rows = []
    bg = sorted(unseen(v) + (m,) for v, m in background(figures, labels, taken))
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
    stars = "name,frame,color,phi,theta,magnitude\n" + "".join(",".join(r) + "\n" for r in rows)
    lines = "from,to\n" + "".join("_%s%d,_%s%d\n" % (f.code, a + 1, f.code, b + 1)
                                 for f in figures for a, b in f.lines)
    return {STARS_CSV: stars, LINES_CSV: lines, NOTE_MD: note_text(figures, labels)}


def generate():
    for path, text in draw_up().items():
        with open(path, "w", encoding="utf-8", newline="\n") as out:
            out.write(text)


# --------------------------------------------------------------------------
# Measuring the files
# --------------------------------------------------------------------------
# Degrees on the sphere, or units of the charts (1 degree from the centre is 2 units).
LIMITS = {
    "figure": 25.0, "long figure": 40.0, "zodiac latitude": 18.0, "hole": 22.0, "dark": 13.0,
    "star gap": 0.3, "background to figure star": 1.2, "figure gap": 2.5,
    "pole": 1.0, "pole space": 2.0, "centred latitude": 12.0,
    "name gap": 0.5, "name reach": 6.5, "rim text gap": 2.5, "seam": 2.0,
    "upright text gap": 2.0, "text to line": 0.8, "text to dot": 0.2,
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


def map_reach(s):
    """Degrees around a name's position that it may cover on the star map."""
    if s.mag > 0:
        return dot_size(s.mag) + text_width(s.name) / 2 + 0.5
    return reach(s.name)


class Check:
    def __init__(self):
        self.faults = 0
        with open(STARS_CSV, "rb") as f:
            raw = f.read()
        with open(LINES_CSV, "rb") as f:
            raw_lines = f.read()
        both = raw + raw_lines
        self.report(all(c < 128 for c in both) and b"\r" not in both,
                    "both files are plain ASCII with line feeds")
        self.report(raw.startswith(b"name,frame,color,phi,theta,magnitude\n")
                    and raw_lines.startswith(b"from,to\n"), "column lines")
        rows = csv.DictReader(raw.decode("ascii", "replace").splitlines())
        self.stars = [Star(r) for r in rows]
        rows = csv.DictReader(raw_lines.decode("ascii", "replace").splitlines())
        self.pairs = [(r["from"], r["to"]) for r in rows]
        self.index = {s.name: s for s in self.stars}
        self.background = [s for s in self.stars if s.background]
        self.members = [s for s in self.stars if s.numbered and not s.background]
        self.markers = [s for s in self.stars if s.marker]
        self.names = [s for s in self.stars if not s.numbered and not s.marker]
        self.sign_names = [s for s in self.names if s.frame == "ecliptic"]
        self.other_names = [s for s in self.names if s.frame == "equatorial"]
        self.pole = [s for s in self.other_names if s.mag == 1.0]
        self.codes = list(dict.fromkeys(s.code for s in self.members))
        self.group = {c: [s for s in self.members if s.code == c] for c in self.codes}
        self.signs = [n.upper() for n, _ in SIGNS]

    def report(self, ok, text):
        self.faults += not ok
        print(("ok     " if ok else "FAULT  ") + text)

    def run(self):
        self.forms()
        self.lines()
        if self.faults:
            print("%d faults; the sky itself is measured once they are mended" % self.faults)
            return self.faults
        self.centre = {c: norm(tuple(sum(s.ec[i] for s in self.group[c]) for i in range(3)))
                       for c in self.codes}
        self.arcs = {c: [(a.ec, b.ec) for a, b in self.figures[c]] for c in self.codes}
        self.drawn = sorted(self.background + self.members + self.pole, key=lambda s: s.ec[2])
        self.places()
        self.distances()
        self.holes()
        self.names_beside_figures()
        self.star_maps()
        self.wheel_figures()
        for black_and_white in (False, True):
            self.wheel_texts(black_and_white)
        same = True
        for path, text in draw_up().items():
            with open(path, encoding="utf-8", newline="") as f:
                same = same and f.read() == text
        # No fault of the sky: another mathematical library may round a last digit otherwise.
        print("note   the files %s what this tool draws"
              % ("are exactly" if same else "DIFFER from"))
        print("%d faults" % self.faults if self.faults else "no faults")
        return self.faults

    # Counts, forms, colours, magnitudes.
    def forms(self):
        bg, members, names = self.background, self.members, self.names
        counts = (len(self.stars), len(bg), len(members), len(self.markers), len(names))
        self.report(counts == (679, 454, 176, 12, 37),
                    "rows %d: background %d, figures %d, markers %d, names %d" % counts)
        self.report(len(self.index) == len(self.stars), "no name twice")
        order = [0 if s.background else 1 if s.numbered else 2 if s.marker else 3
                 for s in self.stars]
        self.report(order == sorted(order), "order: background, figures, markers, names")
        self.report([s.name for s in bg] == ["_BACKGROUND%03d" % i for i in range(1, 455)]
                    and all(s.color == GREY and s.frame == "equatorial" for s in bg),
                    "background numbered from 001 to %03d, %s, equatorial" % (len(bg), GREY))
        m = sorted(s.mag for s in bg) or [0]
        self.report(m[0] == 4.51 and m[-1] == 6.0,
                    "background magnitudes %.2f to %.2f, the middle one %.2f"
                    % (m[0], m[-1], m[len(m) // 2]))
        self.report(len(self.codes) == 35 and self.codes[:12] == self.signs,
                    "constellations %d, the twelve signs first" % len(self.codes))
        self.report(all([s.name for s in g] == ["_%s%d" % (c, i + 1) for i in range(len(g))]
                        for c, g in self.group.items()), "figures numbered from 1 without a gap")
        sizes = sorted(len(g) for g in self.group.values()) or [0]
        self.report(sizes[0] >= 2 and sizes[-1] <= 9, "stars in a figure: " + ", ".join(
            "%d x %d" % (sizes.count(n), n) for n in range(0, 10) if n in sizes))
        yellow = [s.name for s in members if s.color == YELLOW]
        self.report(len(yellow) == 1 and all(s.color in (WHITE, YELLOW) for s in members)
                    and all(s.frame == "equatorial" for s in members),
                    "figure stars %s, one %s: %s" % (WHITE, YELLOW, " ".join(yellow)))
        m = sorted(s.mag for s in members) or [0]
        self.report(m[0] == 0.54 and m[-1] == 4.0, "figure magnitudes %.2f to %.2f, mean %.2f"
                    % (m[0], m[-1], sum(m) / len(m)))
        self.report([(s.name, "%.5f" % s.given[0]) for s in self.markers]
                    == [("_" + n.upper(), start) for n, start in SIGNS]
                    and all(s.frame == "ecliptic" and s.given[1] == 0 and s.mag == 1
                            and s.color == WHITE for s in self.markers),
                    "markers at the starts of the sign table")
        self.report([s.name for s in self.sign_names] == [n for n, _ in SIGNS]
                    and all(s.color == WHITE and s.mag == 0 for s in self.sign_names),
                    "sign names %d" % len(self.sign_names))
        others = self.other_names
        self.report(len(others) == 25 and len(self.pole) == 1
                    and all(s.mag in (0.0, 1.0) for s in others)
                    and all(s.color in (WHITE, YELLOW) for s in others),
                    "equatorial names %d, the star with a name is %s"
                    % (len(others), " ".join(s.name for s in self.pole)))
        named = {s.name.upper() for s in names}
        band = [s.name for s in others if s not in self.pole and s.name.upper() not in self.group]
        self.report(all(c in named for c in self.codes) and len(band) == 1,
                    "every figure has its name; the dense band is %s" % " ".join(band))
        self.report(all(0 <= s.given[0] < TAU and abs(s.given[1]) <= math.pi / 2
                        for s in self.stars), "positions in range")

    # The line pairs.
    def lines(self):
        index, pairs = self.index, self.pairs
        known = all(a in index and b in index for a, b in pairs)
        self.report(len(pairs) == 162 and known, "line pairs %d, both stars known" % len(pairs))
        self.report(len({frozenset(p) for p in pairs}) == len(pairs)
                    and all(a != b for a, b in pairs), "no pair twice")
        if not known:
            return
        self.report(all(index[a].code == index[b].code != "" for a, b in pairs),
                    "every pair within one constellation")
        self.figures, whole = {}, True
        for c in self.codes:
            edges = [(a, b) for a, b in pairs if index[a].code == index[b].code == c]
            seen, todo = set(), [self.group[c][0].name]
            while todo:
                n = todo.pop()
                if n not in seen:
                    seen.add(n)
                    todo += [b if a == n else a for a, b in edges if n in (a, b)]
            whole = whole and len(seen) == len(self.group[c])
            self.figures[c] = [(index[a], index[b]) for a, b in edges]
        self.report(whole, "every figure hangs together, no star stands alone")

    # How large the figures are, and the zodiac inside its signs.
    def places(self):
        ext = sorted((max(angle(a.ec, b.ec) for a in g for b in g), c)
                     for c, g in self.group.items())
        self.report(ext[-2][0] <= LIMITS["figure"] and ext[-1][0] <= LIMITS["long figure"],
                    "figures %.1f to %.1f degrees across, the long one (%s) %.1f"
                    % (ext[0][0], ext[-2][0], ext[-1][1].capitalize(), ext[-1][0]))
        spare, high = 99.0, 0.0
        for i, c in enumerate(self.signs):
            a, b = sign_range(i)
            for s in self.group[c]:
                lon, lat = angles(s.ec)
                if i == 11 and lon < math.pi:
                    lon += TAU
                spare = min(spare, math.degrees(lon - a), math.degrees(b - lon))
                high = max(high, abs(math.degrees(lat)))
        self.report(spare > 0 and high <= LIMITS["zodiac latitude"],
                    "zodiac figures inside their signs: nearest boundary %.2f degrees, "
                    "greatest latitude %.1f" % (spare, high))
        bright = [s for s in self.background if band_density(s.ec) > 3]
        self.report(True, "background stars in the dense band: %d of %d"
                    % (len(bright), len(self.background)))

    # Stars among themselves, figures among themselves.
    def distances(self):
        least, to_figures, among, pair = 99.0, 99.0, 99.0, ()
        for i, a in enumerate(self.drawn):
            for b in self.drawn[i + 1:]:
                if b.ec[2] - a.ec[2] > 0.2:
                    break
                if dot(a.ec, b.ec) < 0.98:
                    continue
                d = angle(a.ec, b.ec)
                if d < least:
                    least, pair = d, (a.name, b.name)
                if a.background and b.background:
                    among = min(among, d)
                elif a.background or b.background:
                    to_figures = min(to_figures, d)
        self.report(least >= LIMITS["star gap"],
                    "nearest two stars %.2f degrees apart (%s %s)" % ((least,) + pair))
        self.report(to_figures >= LIMITS["background to figure star"],
                    "background stars %.2f degrees from one another, %.2f from figure stars"
                    % (among, to_figures))
        up = (0.0, 0.0, 1.0)
        own = angle(self.pole[0].eq, up)
        d, name = min((angle(s.eq, up), s.name) for s in self.background + self.members)
        self.report(own <= LIMITS["pole"] and d > own + LIMITS["pole space"],
                    "%s %.2f degrees from the celestial pole, the next star (%s) %.2f"
                    % (self.pole[0].name, own, name, d))
        gap, between = 99.0, ()
        for i, c in enumerate(self.codes):
            for d in self.codes[i + 1:]:
                if angle(self.centre[c], self.centre[d]) < 60:
                    g = min(arc_arc_distance(*x, *y) for x in self.arcs[c] for y in self.arcs[d])
                    if g < gap:
                        gap, between = g, (c.capitalize(), d.capitalize())
        self.report(gap >= LIMITS["figure gap"],
                    "nearest two figures %.1f degrees apart (%s and %s), none crossing"
                    % ((gap,) + between))

    # The widest empty circles.
    def holes(self):
        figure, star, n = (0.0, ()), 0.0, 3000
        for k in range(n):
            z = 1 - (2 * k + 1) / n
            c, l = math.sqrt(1 - z * z), k * 2.399963229728653
            v = (c * math.cos(l), c * math.sin(l), z)
            d = min(segment_distance(v, *x) for c in self.codes
                    if angle(v, self.centre[c]) < 70 for x in self.arcs[c])
            figure = max(figure, (d, v))
            star = max(star, min(angle(v, s.ec) for s in self.drawn if abs(s.ec[2] - z) < 0.6))
        lon, lat = (math.degrees(x) for x in angles(figure[1]))
        self.report(figure[0] <= LIMITS["hole"], "widest circle without a figure: radius %.1f "
                    "degrees at longitude %.0f, latitude %.0f" % (figure[0], lon, lat))
        self.report(star <= LIMITS["dark"], "widest circle without a star: radius %.1f degrees"
                    % star)

    # Names and figures on the star map, whatever way the sky is turned.
    def names_beside_figures(self):
        near, far, strange, pair = (99.0, ""), (0.0, ""), (99.0, ""), (99.0, "")
        for i, s in enumerate(self.names):
            for c in self.codes:
                g = min(min(segment_distance(s.ec, *x) for x in self.arcs[c]),
                        min(angle(s.ec, t.ec) - dot_size(t.mag) / 2 for t in self.group[c]))
                g -= map_reach(s)
                if c == s.name.upper():
                    near, far = min(near, (g, s.name)), max(far, (g, s.name))
                else:
                    strange = min(strange, (g, "%s to %s" % (s.name, c.capitalize())))
            for t in self.names[i + 1:]:
                g = angle(s.ec, t.ec) - map_reach(s) - map_reach(t)
                pair = min(pair, (g, s.name + " and " + t.name))
        self.report(near[0] >= LIMITS["name gap"] and far[0] <= LIMITS["name reach"],
                    "names stand %.1f (%s) to %.1f (%s) degrees clear of their figures"
                    % (near + far))
        self.report(strange[0] >= LIMITS["name gap"],
                    "names stand at least %.1f degrees clear of other figures (%s)" % strange)
        self.report(pair[0] >= LIMITS["name gap"], "nearest two names on the star map, turned as "
                    "they may be, %.1f degrees clear (%s)" % pair)

    # The star map itself at many places and hours.
    def star_maps(self):
        low, met, maps = (99.0, ""), 0, 0
        for latitude in (-80, -60, -35, -15, 0, 20, 40, 60, 80):
            for hour in range(0, 24, 2):
                maps += 1
                up = {}
                for s in self.members + self.names:
                    x, y, alt = turn_page(s.eq, math.radians(hour * 15 + 7),
                                          math.radians(latitude))
                    if alt >= 0:
                        up[s.name] = (x, y)
                boxes = [(s.name, name_box(s.name, s.mag, *up[s.name]))
                         for s in self.names if s.name in up]
                for i, (n1, b1) in enumerate(boxes):
                    for n2, b2 in boxes[i + 1:]:
                        low = min(low, (box_gap(b1, b2), n1 + " and " + n2))
                shown = []
                for c in self.codes:
                    segs = [(up[a.name], up[b.name]) for a, b in self.figures[c]
                            if a.name in up and b.name in up]
                    if segs:
                        xs = [p[0] for s in segs for p in s]
                        ys = [p[1] for s in segs for p in s]
                        shown.append((segs, (min(xs), min(ys), max(xs), max(ys))))
                for i, (s1, b1) in enumerate(shown):
                    for s2, b2 in shown[i + 1:]:
                        if box_gap(b1, b2) <= 0:
                            met += sum(1 for x in s1 for y in s2 if segments_meet(*x, *y))
        self.report(met == 0, "%d star maps: lines of different figures crossing %d" % (maps, met))
        self.report(low[0] >= LIMITS["upright text gap"],
                    "%d star maps: nearest two names %.1f units (%s)" % ((maps,) + low))

    # The figures on the wheel.
    def wheel_figures(self):
        flat = {s.name: wheel(s.ec) for s in self.members}
        cut = crossing = 0
        self.visible = []
        for c in self.codes:
            for a, b in self.figures[c]:
                pa, pb = flat[a.name], flat[b.name]
                if pa[0] <= 1 or pb[0] <= 1:
                    self.visible.append((c, pa[1:], pb[1:]))
                elif point_to_segment((180, 180), pa[1:], pb[1:]) < 180:
                    cut += 1
        for i, (c, a, b) in enumerate(self.visible):
            for d, e, f in self.visible[i + 1:]:
                if c != d:
                    m = segments_meet(a, b, e, f)
                    crossing += m is not None and math.hypot(m[0] - 180, m[1] - 180) <= 180
        self.report(cut == 0 and crossing == 0, "wheel: lines of different figures crossing %d, "
                    "lines from outside to outside showing %d" % (crossing, cut))
        south = [s for s in self.other_names if wheel(s.ec)[0] > 0.9]
        self.report(all(s.color == YELLOW for s in south),
                    "wheel: names along the rim besides the signs %d, all %s"
                    % (len(south), YELLOW))
        low = min(math.degrees(angles(s.ec)[1]) for s in self.other_names if s not in south)
        self.report(low >= LIMITS["centred latitude"],
                    "wheel: upright names from latitude %.1f degrees on" % low)
        worst = 0.0
        for i, s in enumerate(self.sign_names):
            a, b = sign_range(i)
            mid = angles(s.ec)[0] + text_width(s.name) / 175 / 2
            worst = max(worst, abs(math.degrees(mid - (a + b) / 2)))
        self.report(worst < 0.1, "wheel: sign names centred in their signs to %.2f degrees" % worst)

    # The names on the wheel.
    def wheel_texts(self, black_and_white):
        mode = "black and white" if black_and_white else "colour"
        rim, boxes = wheel_names(self.names, black_and_white)
        inner = RIM_LENGTH["rim_inner"]

        # Compared around the circle even when two names run on different paths.
        gap = (999.0, "")
        for i, (s, path, a, b) in enumerate(rim):
            for t, path2, a2, b2 in rim[i + 1:]:
                k, k2 = inner / RIM_LENGTH[path], inner / RIM_LENGTH[path2]
                gap = min(gap, (max(a2 * k2 - b * k, a * k - b2 * k2), s.name + " and " + t.name))
        self.report(gap[0] >= LIMITS["rim text gap"],
                    "%s: nearest two names along the rim %.1f units (%s)" % ((mode,) + gap))
        gap = min(min((a, s.name), (RIM_LENGTH[path] - b, s.name)) for s, path, a, b in rim)
        self.report(gap[0] >= LIMITS["seam"],
                    "%s: nearest name to longitude 0 is %.1f units off (%s)" % ((mode,) + gap))

        gap = (999.0, "")
        for i, (s, b1) in enumerate(boxes):
            for t, b2 in boxes[i + 1:]:
                gap = min(gap, (box_gap(b1, b2), s.name + " and " + t.name))
            edge = max(math.hypot(x, y) for x in (b1[0], b1[2]) for y in (b1[1], b1[3]))
            gap = min(gap, (170 - DESCENT - edge, s.name + " and the rim"))
        self.report(gap[0] >= LIMITS["upright text gap"],
                    "%s: nearest two upright names %.1f units (%s)" % ((mode,) + gap))

        def to_rim(x, y, path, a, b):
            base = RIM_LENGTH[path] / TAU
            r, l = math.hypot(x, y), (math.atan2(x, -y) % TAU) * base
            return math.hypot(max(a - l, l - b, 0), max(base - DESCENT - r, r - base - ASCENT, 0))

        along_rim, upright = (999.0, ""), (999.0, "")
        for c, a, b in self.visible:
            n = max(2, int(math.hypot(b[0] - a[0], b[1] - a[1]) * 2))
            for k in range(n + 1):
                x = a[0] + (b[0] - a[0]) * k / n - 180
                y = a[1] + (b[1] - a[1]) * k / n - 180
                if math.hypot(x, y) > 155:
                    for s, *place in rim:
                        along_rim = min(along_rim, (to_rim(x, y, *place),
                                                    s.name + " and " + c.capitalize()))
                for s, box in boxes:
                    upright = min(upright, (box_to_point(box, (x, y)),
                                            s.name + " and " + c.capitalize()))
        self.report(along_rim[0] >= LIMITS["text to line"],
                    "%s: nearest figure line to a name along the rim %.1f units (%s)"
                    % ((mode,) + along_rim))
        self.report(upright[0] >= LIMITS["text to line"],
                    "%s: nearest figure line to an upright name %.1f units (%s)"
                    % ((mode,) + upright))

        gap = (999.0, "")
        for s in self.drawn:
            _, x, y = wheel(s.ec)
            x, y = away(x - 180), away(y - 180)
            d = [(to_rim(x, y, *place), t) for t, *place in rim]
            d += [(box_to_point(box, (x, y)), t) for t, box in boxes if t is not s]
            least, t = min(d, key=lambda e: e[0])
            gap = min(gap, (least - dot_size(s.mag), t.name + " and " + s.name))
        self.report(gap[0] >= LIMITS["text to dot"],
                    "%s: nearest dot to a name %.1f units (%s)" % ((mode,) + gap))


# --------------------------------------------------------------------------
# The note
# --------------------------------------------------------------------------
NOTE_HEAD = """# The star catalogue

`star_catalogue.csv` and `constellation_lines.csv` hold the fixed stars of
Veyruna: 454 background stars, 176 stars in 35 constellations joined by 162
lines, 12 markers at the starts of the signs and 37 names.

## Where it comes from

The sky is invented for this world. Every figure was drawn by hand as a small
picture of something and then laid on the sphere; the names are made up in the
tongue of the signs. Nothing is taken from a catalogue of real stars and no real
constellation served as a pattern. The background stars come from a generator
with a fixed seed. All of it is written by

    python3 tools/make_catalogue.py

which yields the same files every time, this note among them: to change the sky,
change the drawings in that tool. `python3 tools/make_catalogue.py --check`
measures the files as they stand.

## The columns

`star_catalogue.csv` has `name,frame,color,phi,theta,magnitude`; phi is the right
ascension or ecliptic longitude, theta the declination or ecliptic latitude, both
in radians, by `frame`. The form of a name tells what the row is: `_BACKGROUND001`
a background star, `_GIMBRAL3` the third star of a figure, `_GIMBRAL` the marker of
a sign, `Gimbral` a name. Magnitude 0 means a bare name; %(pole)s alone is a star
and a name in one. `constellation_lines.csv` has `from,to`.

## How the sky is laid out

- The charts turn all numbered stars back by 18 degrees along the ecliptic, and
  leave markers and names alone. The rows are chosen so that after this turn each
  zodiac figure stands inside its sign and each name beside its figure. The
  positions below are those seen on the charts, after the turn.
- The star map has south at the top and west at the right, and the figures are
  drawn for it: they stand upright when they culminate. On the wheel, which shows
  the sky the other way round, they appear as in a mirror.
- The zodiac figures lie mostly north of the ecliptic so that the wheel shows
  them; a stem, a mast or a blade reaches across it beside the sign's name. The
  names of the signs are centred in their signs along the wheel's outer path.
- Names of southern figures run along the wheel's inner path and are %(yellow)s;
  they keep clear of the signs' names too, because in black and white all of them
  share that path, and of longitude 0, where the path ends. Names further north
  than 12 degrees are drawn upright beside their figures and are %(white)s.
- A name stays clear of its own figure, of the others and of the other names
  however the sky is turned on the star map.
- Bright stars stand at the corners of a figure. One star is yellow: %(flame)s,
  the flame in the lantern %(lantern)s.
- %(pole)s stands 0.4 degrees from the celestial north pole, alone in a dark round.
- %(band)s is the dense band: background stars thicken towards a slightly winding
  belt around the sphere, broadest in the far north beside Hathel and narrowest in the far
  south, and thin out evenly away from it. Its name stands inside it, north of %(under)s.

## The constellations

Longitude and latitude are ecliptic, of the middle of the figure; the declination
tells from which places of the world it is seen.

| code | name | depicts | stars | lines | longitude | latitude | declination |
|---|---|---|---|---|---|---|---|
"""


def note_text(figures, labels):
    band = next(v for n, _, _, v, _ in labels if n == BAND)
    lon = angles(band)[0]
    under = next(SIGNS[i][0] for i in range(12)
                 if sign_range(i)[0] <= lon < sign_range(i)[1]
                 or i == 11 and lon < sign_range(0)[0])
    out = NOTE_HEAD % {
        "pole": POLE_STAR[0], "band": BAND, "under": under, "flame": YELLOW_STAR,
        "lantern": "Ulvane", "yellow": "yellow (%s)" % YELLOW, "white": "white (%s)" % WHITE,
    }
    for f in figures:
        lon, lat = (math.degrees(x) for x in angles(f.centre))
        dec = math.degrees(angles(to_eq(f.centre))[1])
        out += "| %s | %s | %s | %d | %d | %.0f° | %+.0f° | %+.0f° |\n" % (
            f.code, f.name, f.what, len(f.stars), len(f.lines), lon, lat, dec)
    return out


def main():
    if sys.argv[1:] == ["--check"]:
        sys.exit(1 if Check().run() else 0)
    if sys.argv[1:]:
        sys.exit("usage: make_catalogue.py [--check]")
    generate()


if __name__ == "__main__":
    main()
