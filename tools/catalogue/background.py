"""The background stars: a band of faint ones, clusters and doubles, brighter ones apart.

They are strewn one after the other where none disturbs a figure or a name: first the
clusters, then the wide country outside the band, then the band with the density it has.
A place is chosen at random, so that there are groups and gaps as in a sky; only a little
care is taken that nothing runs together and nowhere a hole is left.
"""

import math
import random

from . import band
from .lettering import map_reach, name_box, text_width
from .plane import box_to_point
from .sphere import along, angle, angles, cross, dot, even_points, norm, vec
from .wheel import INNER_PATH, from_middle, on_rim
from .world import TAU

COUNT = 454
SEED = 20720
BRIGHTEST, FAINTEST = 4.51, 6.0  # magnitudes
STAR_GAP = math.cos(math.radians(1.9))  # to a figure's star

CLUSTERS = [  # longitude and latitude of the middle as seen, degrees; how many stars
    (216, 21, 7),
    (300, 22, 6),
    (94, 54, 7),
    (352, -8, 6),
    (152, -30, 7),
]
CLUSTER_GAP = (0.8, 1.3)  # degrees from a cluster's star to the next
DOUBLES = 9
DOUBLE_GAP = (0.6, 0.75)  # degrees
OUTSIDE = 108  # single stars outside the band
OUTSIDE_GAP, BAND_GAP = 2.2, 0.8  # degrees between single stars
WIDEST_HOLE = 10.5  # degrees from anywhere outside the band to the nearest star
IN_BAND = 3.0  # the density at which the band begins


class Obstacles:
    """Everything a background star must keep away from."""

    def __init__(self, figures, labels):
        self.figures = figures
        self.stars = [s.at for f in figures for s in f.stars]
        self.pole_star = next(t.at for t in labels if t.mag)
        # The band's name lies in the band: only its letters on the wheel stay free.
        others = [t for t in labels if not t.mag and t.name != band.NAME]
        self.names = [(t.at, map_reach(t.name, 0) + 0.5) for t in others]
        self.rim, self.boxes = [], []
        for t in labels:
            if on_rim(t.at):
                lon = angles(t.at)[0]
                self.rim.append((lon - 0.02, lon + text_width(t.name) / INNER_PATH + 0.02))
            else:
                self.boxes.append(name_box(t.name, t.mag, *from_middle(t.at)))

    def cover(self, v):
        if any(dot(v, s) > STAR_GAP for s in self.stars) or angle(v, self.pole_star) < 9.3:
            return True
        if any(angle(v, at) < reach for at, reach in self.names):
            return True
        lon, lat = angles(v)
        if -0.01 < lat < 0.115 and any(start < lon < end for start, end in self.rim):
            return True
        spot = from_middle(v)
        if any(box_to_point(b, spot) < 1.5 for b in self.boxes):
            return True
        return any(dot(v, f.centre) > 0.75 and f.distance(v) < 1.3 for f in self.figures)


class Strewing:
    """The stars strewn so far, as (vector, magnitude), and the chance that strews more."""

    def __init__(self, figures, labels):
        self.rnd = random.Random(SEED)
        self.obstacles = Obstacles(figures, labels)
        self.figure_stars = self.obstacles.stars
        self.stars = []

    def anywhere(self):
        lon, z = TAU * self.rnd.random(), 2 * self.rnd.random() - 1
        return vec(lon, math.asin(z))

    def near(self, v, gap):
        """A point beside v in any direction, as far from it as the two ends of gap allow."""
        right = norm(cross(v, (0.0, 0.0, 1.0)))
        up = cross(right, v)
        turn, distance = TAU * self.rnd.random(), self.rnd.uniform(*gap)
        e = tuple(math.cos(turn) * right[i] + math.sin(turn) * up[i] for i in range(3))
        return along(v, e, distance)

    def room(self, v):
        """Degrees to the nearest star strewn so far."""
        nearest = max((dot(v, s) for s, _ in self.stars), default=-1.0)
        return math.degrees(math.acos(max(-1.0, min(1.0, nearest))))

    def magnitude(self, brightest, faintest):
        """Of a star in a range: each magnitude has about three times the stars of the last."""
        share = self.rnd.random()
        low, high = 3.0**brightest, 3.0**faintest
        return math.log(low + share * (high - low), 3)

    def cluster(self, middle, count):
        """A handful of stars, each close to one that stands already."""
        members = [middle]
        while len(members) < count:
            v = self.near(self.rnd.choice(members), CLUSTER_GAP)
            gaps = [angle(v, m) for m in members]
            if min(gaps) >= CLUSTER_GAP[0] and angle(v, middle) < 2.2:
                if not self.obstacles.cover(v):
                    members.append(v)
        for i, v in enumerate(members):
            self.stars.append((v, self.magnitude(4.6, 5.0) if i < 2 else self.magnitude(4.9, 5.9)))

    def outside(self, count):
        """Single stars outside the band, where there is much room rather than little."""
        while count:
            free = [
                v
                for v in (self.anywhere() for _ in range(20))
                if band.density(v) < IN_BAND / 2
                and self.room(v) > OUTSIDE_GAP
                and not self.obstacles.cover(v)
            ][:5]
            if free:
                v = max(free, key=lambda p: min(self.room(p), self.figure_room(p)))
                self.stars.append((v, self.magnitude(BRIGHTEST, 5.4)))
                count -= 1

    def fill_holes(self):
        """A star in the middle of every place outside the band that was left too empty."""
        for v in even_points(2000):
            if min(self.room(v), self.figure_room(v)) > WIDEST_HOLE and band.density(v) < IN_BAND:
                if not self.obstacles.cover(v):
                    self.stars.append((v, self.magnitude(BRIGHTEST, 5.4)))

    def figure_room(self, v):
        return math.degrees(math.acos(max(dot(v, s) for s in self.figure_stars)))

    def doubles(self, count):
        """Companions for single stars outside the band."""
        first = len(self.stars)
        while len(self.stars) < first + count:
            v, mag = self.stars[self.rnd.randrange(first - OUTSIDE, first)]
            companion = self.near(v, DOUBLE_GAP)
            if angle(companion, v) <= self.room(companion) and not self.obstacles.cover(companion):
                if self.alone(v):
                    self.stars.append((companion, min(FAINTEST, mag + self.rnd.uniform(0.2, 0.9))))

    def alone(self, v):
        return sum(dot(v, s) > math.cos(math.radians(2)) for s, _ in self.stars) == 1

    def band(self, count):
        """The band's stars, as dense as it is and the fainter the denser."""
        while count:
            v = self.anywhere()
            density = band.density(v)
            if density < IN_BAND / 2 or self.rnd.random() * band.PEAK > density:
                continue
            if self.room(v) > BAND_GAP and not self.obstacles.cover(v):
                self.stars.append((v, self.magnitude(4.7, FAINTEST)))
                count -= 1


def background_stars(figures, labels):
    """The stars as (vector at which it is seen, magnitude): many faint ones, few bright."""
    sky = Strewing(figures, labels)
    for lon, lat, count in CLUSTERS:
        sky.cluster(vec(math.radians(lon), math.radians(lat)), count)
    sky.outside(OUTSIDE)
    sky.doubles(DOUBLES)
    sky.fill_holes()
    sky.band(COUNT - len(sky.stars))
    by_brightness = sorted(range(COUNT), key=lambda i: sky.stars[i][1])
    for i, mag in ((by_brightness[0], BRIGHTEST), (by_brightness[-1], FAINTEST)):
        sky.stars[i] = (sky.stars[i][0], mag)
    return sky.stars
