"""The figures of the sky, drawn by hand.

Every drawing is in degrees with x to the right and y upwards as it appears on the
star map, which has south at the top, east at the left and west at the right: a
figure that culminates stands upright.  A star is (x, y, magnitude); the lines are
pairs of star numbers, counted from 1.
"""

from dataclasses import dataclass


@dataclass(frozen=True)
class Drawing:
    name: str
    depicts: str
    stars: list
    lines: str


@dataclass(frozen=True)
class PlacedDrawing(Drawing):
    """A drawing outside the zodiac, magnified by a size around its origin.

    The origin stands at lon and lat: degrees in the ecliptic frame, as it is seen.
    """

    lon: float
    lat: float
    size: float


YELLOW_STAR = "_ULVANE4"  # the flame of the lantern

# A drawing is read by its points, several in a line.
# fmt: off

# The figures of the signs, in their order.  The origin is the middle of the sign on the
# ecliptic; y = 0 is the ecliptic itself, negative y lies north of it.  The strip
# y = -6..0 carries the names on the wheel's rim, so there only a stem, a mast or a
# blade passes, to the left or right of the sign's name.
ZODIAC = [
    Drawing("Gimbral", "a sprouting branch with one open leaf",
            [(-2.5, -17.5, 3.4), (-1.0, -11.0, 2.4), (-7.5, 3.0, 1.6), (3.5, -6.6, 3.5),
             (11.0, -7.0, 2.9), (5.5, -13.0, 3.7)],
            "12 23 24 45 56 62"),
    Drawing("Sevrino", "a bell-flower hanging from its stalk",
            [(9.5, 2.5, 3.6), (7.0, -6.0, 3.2), (0.0, -7.5, 1.8), (-7.5, -15.5, 3.0),
             (6.0, -16.5, 3.3)],
            "12 23 34 45 53"),
    Drawing("Lothac", "a two-masted ship",
            [(-12.0, -7.5, 2.2), (-6.0, -15.5, 3.3), (7.0, -16.0, 3.5), (12.5, -8.5, 2.7),
             (-5.0, 4.0, 1.4), (6.5, 1.5, 3.0)],
            "12 23 34 41 25 36"),
    Drawing("Pemi", "a two-tongued flame",
            [(0.5, -17.0, 1.7), (-9.0, -9.0, 2.3), (-9.5, 3.0, 1.3), (-0.5, -9.5, 2.5),
             (9.5, 4.5, 0.7)],
            "12 23 34 45 51"),
    Drawing("Istramondel", "a drawn sword",
            [(11.5, 3.0, 1.1), (1.5, -12.0, 1.9), (-1.8, -17.0, 3.1), (-2.2, -9.5, 3.6),
             (5.2, -14.5, 4.0)],
            "12 23 24 25"),
    Drawing("Felum", "a whirl that flings itself open",
            [(1.8, -10.5, 3.4), (-2.0, -8.0, 3.9), (-5.2, -13.0, 3.7), (2.0, -17.0, 3.8),
             (9.0, -11.0, 3.6), (8.5, 1.5, 3.3)],
            "12 23 34 45 56"),
    Drawing("Corra", "a bird with wide wings",
            [(-12.0, -8.5, 3.0), (-7.0, -1.5, 3.4), (0.0, -9.5, 2.0), (7.5, -1.0, 3.3),
             (12.0, -8.0, 2.8), (0.5, -17.0, 3.2)],
            "12 23 34 45 36"),
    Drawing("Bessim", "a cut stone",
            [(6.0, -2.2, 3.4), (10.0, -2.2, 3.1), (12.2, -4.6, 3.0), (8.0, -10.4, 1.2),
             (3.8, -4.6, 3.5)],
            "12 23 34 45 51 35"),
    Drawing("Wen", "an open book",
            [(0.0, -7.4, 3.3), (10.0, 0.3, 2.3), (10.0, -9.0, 3.1), (0.0, -16.0, 2.8),
             (-10.0, -9.0, 3.4), (-10.0, 0.3, 3.0)],
            "12 23 34 45 56 61 14"),
    Drawing("Ostrel", "a key",
            [(10.5, 0.0, 3.2), (6.2, 2.8, 2.6), (5.2, -4.5, 2.1), (-2.8, -11.2, 3.5),
             (-8.5, -15.8, 2.5), (-6.6, -6.9, 3.4)],
            "12 23 31 34 45 46"),
    Drawing("Quelin", "a cradle with its hood",
            [(12.0, -10.0, 3.4), (7.0, -17.0, 3.1), (-8.0, -17.0, 2.7), (-12.2, -5.0, 1.7),
             (-6.2, 2.4, 3.6)],
            "12 23 34 45"),
    Drawing("Voni", "a mountain with two summits",
            [(-12.0, -16.5, 3.1), (-5.5, -6.5, 3.2), (-1.0, -11.0, 3.8), (5.0, -2.5, 1.5),
             (12.5, -16.5, 2.9)],
            "12 23 34 45"),
]

# The other figures, the northern ones first.
OTHERS = [
    PlacedDrawing("Ravosin", "a stag", lon=20, lat=38, size=1.03,
                  stars=[(-11, 12, 3.3), (0.5, 13, 3.4), (-5.5, 6.5, 1.6), (-10, 4, 3.1),
                         (-2, 0, 2.2), (9, 1, 2.6), (-4, -11, 3.5), (8, -11.5, 3.2)],
                  lines="13 23 34 35 56 57 68"),
    PlacedDrawing("Orsimel", "a harp", lon=67, lat=41, size=1.05,
                  stars=[(-6.5, 9, 0.9), (-1.2, 4.2, 3.6), (3.5, 3.9, 3.8), (8.5, 6.5, 2.4),
                         (-0.6, -4, 3.5), (-5.5, -9.5, 2.8)],
                  lines="12 23 34 45 56 61 25"),
    PlacedDrawing("Hesmi", "a heron", lon=112, lat=38, size=1.1,
                  stars=[(-9.5, 5.5, 3.3), (-4, 8, 2.3), (0, 0, 3.0), (8, -2.5, 3.2),
                         (1, -11, 3.6)],
                  lines="12 23 34 35"),
    PlacedDrawing("Serrivo", "a serpent", lon=176, lat=39, size=1,
                  stars=[(-18.5, 0.5, 0.54), (-12, 5, 3.2), (-4, 0.5, 2.9), (2, -5, 3.4),
                         (10, 2.5, 3.5), (18.5, -1, 3.8)],
                  lines="12 23 34 45 56"),
    PlacedDrawing("Cathrel", "a gate", lon=235, lat=37, size=1.05,
                  stars=[(-6, -8, 3.2), (-5.5, 6, 2.7), (5.5, 6.5, 2.5), (6.5, -8, 3.4)],
                  lines="12 23 34"),
    PlacedDrawing("Raumel", "a crown", lon=286, lat=42, size=1.05,
                  stars=[(-9, 5, 3.1), (-5, -5, 3.4), (0, 6, 0.9), (5, -5, 3.3), (9, 5.5, 2.9)],
                  lines="12 23 34 45 24"),
    PlacedDrawing("Ulvane", "a hanging lantern", lon=332, lat=43, size=1.1,
                  stars=[(0, 9.5, 3.5), (0, 4.5, 3.7), (-4.5, -1.5, 3.3), (0, -7.5, 0.8),
                         (4.5, -1.5, 3.2)],
                  lines="12 23 34 45 52"),
    PlacedDrawing("Dronac", "a hammer", lon=35, lat=66, size=1,
                  stars=[(-5.5, 6, 3.1), (0, 6.8, 3.4), (5.5, 7.5, 3.3), (-0.5, -8, 2.1)],
                  lines="12 23 24"),
    PlacedDrawing("Estrim", "a ladder", lon=144, lat=60, size=1,
                  stars=[(-4.5, -9, 2.7), (-3.5, 0, 3.6), (-2.8, 8, 3.4), (2.8, 7.5, 3.3),
                         (3.3, -0.5, 3.7), (4.5, -9.5, 3.0)],
                  lines="12 23 34 45 56 25"),
    PlacedDrawing("Tassum", "a goblet", lon=193, lat=70, size=1,
                  stars=[(-5.5, 7, 3.2), (5.5, 7.5, 3.0), (0, -0.5, 3.6), (0.3, -8, 2.4)],
                  lines="12 23 31 34"),
    PlacedDrawing("Zelmi", "a swallow", lon=252, lat=66, size=1,
                  stars=[(-1.5, 2.2, 2.0), (-4.3, -1.4, 3.3), (3.2, 2.6, 3.5), (0.3, -0.8, 3.6),
                         (0.4, -3.8, 3.7), (3.0, -2.8, 3.8)],
                  lines="12 13 14 45 46"),
    PlacedDrawing("Vellio", "a bent reed", lon=320, lat=74, size=1,
                  stars=[(-2, -10, 3.5), (-2.5, 2, 3.6), (1, 8.5, 3.8), (7, 4, 3.2)],
                  lines="12 23 34"),
    PlacedDrawing("Jorva", "a fish", lon=18, lat=-30, size=1.12,
                  stars=[(-9.5, 0, 1.5), (0, 5, 3.1), (9, -4.5, 3.3), (9.5, 4.5, 3.2),
                         (0.3, -4.5, 3.4)],
                  lines="12 23 34 45 51"),
    PlacedDrawing("Yorrum", "a plough", lon=75, lat=-30, size=1.06,
                  stars=[(10.5, 7.5, 3.1), (4.5, -0.5, 3.4), (2.5, -8, 2.5), (-6, -8.5, 2.8),
                         (-11, 5, 3.3)],
                  lines="12 23 34 25 24"),
    PlacedDrawing("Trefal", "a hay-fork", lon=128, lat=-29, size=1.1,
                  stars=[(-4.5, 10, 2.9), (4.5, 10.3, 3.4), (0, 2, 3.2), (0.5, -11, 2.3)],
                  lines="13 23 34"),
    PlacedDrawing("Okrim", "a sickle", lon=182, lat=-29, size=1.05,
                  stars=[(7.5, -12, 2.7), (4.0, -6.5, 3.2), (-6.0, -1.8, 3.0), (-3.6, 7.2, 3.4),
                         (7.4, 6.8, 1.8), (-1.2, 3.0, 3.6)],
                  lines="12 23 34 45 56 62"),
    PlacedDrawing("Ombrac", "an anchor", lon=230, lat=-33, size=1.1,
                  stars=[(0, 9, 2.6), (0, -7.5, 1.3), (-7.5, -1.5, 3.2), (7.5, -1.5, 3.3)],
                  lines="12 23 24"),
    PlacedDrawing("Tirrem", "a sail", lon=281, lat=-32, size=1,
                  stars=[(-2, 4.2, 2.8), (-2.2, -2.4, 3.4), (-2.3, -4.2, 3.6), (4.4, -1.8, 3.1)],
                  lines="12 23 14 42"),
    PlacedDrawing("Sabrel", "an hour-glass", lon=325, lat=-29, size=1.05,
                  stars=[(-5, 8, 2.9), (5, 8.5, 3.2), (-5.5, -8, 3.4), (5.5, -8.5, 2.7)],
                  lines="12 23 34 41"),
    PlacedDrawing("Iskrel", "a spear", lon=38, lat=-62, size=0.95,
                  stars=[(-18, -4.5, 3.3), (16, 3.8, 0.95), (8.5, 5.2, 3.6), (9.9, -1, 3.5)],
                  lines="12 23 24"),
    PlacedDrawing("Selvo", "a tent", lon=132, lat=-66, size=0.95,
                  stars=[(0.5, 7, 2.2), (-8, -6, 3.2), (-1, -6.8, 3.5), (8, -5, 3.1)],
                  lines="12 23 31 14"),
    PlacedDrawing("Dalmi", "a fish-hook", lon=307, lat=-69, size=1,
                  stars=[(-2.4, 4.2, 2.9), (-1.4, -2, 3.8), (1.2, -3.8, 3.4), (3, -1, 3.9)],
                  lines="12 23 34"),
    PlacedDrawing("Duvi", "two lamps side by side on a hook", lon=211, lat=-71, size=1,
                  stars=[(0, 2.1, 3.7), (-2.4, -1.8, 1.9), (2.4, -1.5, 2.1)],
                  lines="12 13"),
]
