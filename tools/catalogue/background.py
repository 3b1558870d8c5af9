"""The background stars: evenly spaced, their density following the band.

Many more stars than needed are strewn at random where none disturbs a figure or a
name.  Then the most crowded one is taken away again and again until enough are left;
that leaves a pattern without clumps and holes.
"""

import heapq
import math
import random

from . import band
from .lettering import map_reach, name_box, text_width
from .plane import box_to_point
from .sphere import angle, angles, dot
from .wheel import INNER_PATH, from_middle, on_rim
from .world import TAU

COUNT = 454
STREWN = 3600
SEED = 20720
BRIGHTEST, FAINTEST = 4.51, 6.0  # magnitudes
STAR_GAP = math.cos(math.radians(1.9))  # to a figure's star


class Obstacles:
    """Everything a background star must keep away from."""

    def __init__(self, figures, labels):
        self.figures = figures
        self.stars = [s.at for f in figures for s in f.stars]
        self.pole_star = next(t.at for t in labels if t.mag)
        self.names = [(t.at, map_reach(t.name, 0) + 0.5) for t in labels if not t.mag]
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


def strew(rnd, obstacles):
    """Random free points as (vector, density of the band there), denser in the band."""
    points = []
    while len(points) < STREWN:
        z = 2 * rnd.random() - 1
        lon = TAU * rnd.random()
        chance = rnd.random() * band.PEAK
        c = math.sqrt(1 - z * z)
        v = (c * math.cos(lon), c * math.sin(lon), z)
        density = band.density(v)
        if chance <= density and not obstacles.cover(v):
            points.append((v, density))
    return points


def reaches(points, count):
    """How far apart the points would stand in the densest packing of `count` of them.

    Each point by its local density; in radii of the sphere.
    """
    area = 4 * math.pi / sum(1 / d for _, d in points)
    return [math.sqrt((area / d) * len(points) / count / (2 * math.sqrt(3))) * 2 for _, d in points]


def crowding(points, reach):
    """For every point its neighbours, as (index, weight), and the sum of their weights."""
    order = sorted(range(len(points)), key=lambda i: points[i][0][2])
    neighbours = [[] for _ in points]
    crowd = [0.0] * len(points)
    for k, i in enumerate(order):
        x, y, z = points[i][0]
        for j in order[k + 1 :]:
            x2, y2, z2 = points[j][0]
            if z2 - z > 0.5:
                break
            r = 0.5 * (reach[i] + reach[j])
            square = (x - x2) ** 2 + (y - y2) ** 2 + (z - z2) ** 2
            if square < r * r:
                weight = (1 - math.sqrt(square) / r) ** 8
                neighbours[i].append((j, weight))
                neighbours[j].append((i, weight))
                crowd[i] += weight
                crowd[j] += weight
    return neighbours, crowd


def thin_out(points, count):
    """The vectors that are left when the most crowded point has gone until `count` remain."""
    neighbours, crowd = crowding(points, reaches(points, count))
    heap = [(-w, i) for i, w in enumerate(crowd)]
    heapq.heapify(heap)
    left = set(range(len(points)))
    while len(left) > count:
        weight, i = heapq.heappop(heap)
        if i not in left or -weight != crowd[i]:
            continue  # an entry from before a neighbour went
        left.remove(i)
        for j, w in neighbours[i]:
            if j in left:
                crowd[j] -= w
                heapq.heappush(heap, (-crowd[j], j))
    return [points[i][0] for i in sorted(left)]


def background_stars(figures, labels):
    """The stars as (vector at which it is seen, magnitude): many faint ones, few bright."""
    rnd = random.Random(SEED)
    places = thin_out(strew(rnd, Obstacles(figures, labels)), COUNT)
    mags = [BRIGHTEST + (FAINTEST - BRIGHTEST) * (k / (COUNT - 1)) ** 0.62 for k in range(COUNT)]
    rnd.shuffle(mags)
    return list(zip(places, mags))
