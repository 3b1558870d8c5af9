"""Heights: ranges along their crests, hills, plains; then valleys worn by running water.

Heights are 0 at the sea and about 1 on the highest crests.  One cell is GRID pixels wide.
"""

import numpy as np
from scipy import ndimage

from . import flow, lines, noise
from .drawings import LAKES, RANGES, VALLEYS
from .land import pixel_grids
from .world import PLACES, to_pixel

GRID = 4
ROUNDS = 7  # of wear
WEAR = 1.2


def lake_field():
    """Positive inside the lakes, in pixels; on the land's grid."""
    x, y = pixel_grids()
    lakes = np.full(x.shape, -1e3)
    rough = 9 * noise.fractal(x.shape, 45, 4, 611)
    for lon, lat, wide, high, turn in LAKES:
        at_x, at_y = to_pixel(lon, lat)
        c, s = np.cos(np.radians(turn)), np.sin(np.radians(turn))
        u, v = (x - at_x) * c + (y - at_y) * s, (y - at_y) * c - (x - at_x) * s
        lakes = np.maximum(lakes, high * (1 - np.hypot(u / wide, v / high)) + rough)
    return lakes


def _winding(x, y):
    """How far the valleys stray from their drawn way, in pixels; not at all in the towns."""
    near = np.min([np.hypot(x - p.pixel[0], y - p.pixel[1]) for p in PLACES], axis=0)
    loose = 1 - np.exp(-((near / 110) ** 2))
    return tuple(26 * loose * noise.fractal(x.shape, 34, 3, seed) for seed in (550, 555))


def raw_heights(land):
    """Heights before any water has run, from the land field at this grid."""
    x, y = pixel_grids(GRID)
    shape = land.shape
    inland = GRID * ndimage.distance_transform_edt(land > 0)
    heights = 0.17 * (1 - np.exp(-inland / 200))
    heights += 0.035 * noise.fractal(shape, 60, 5, 501) * (1 - np.exp(-inland / 60))
    crag = noise.ridged(shape, 26, 4, 520)
    sway = 40 * noise.fractal(shape, 40, 3, 530)
    for height, width, crest in RANGES:
        crest = lines.smooth_curve(np.stack(to_pixel(*np.array(crest, float).T), axis=1), 20, 50)
        away, share = lines.nearest(x, y, crest, 4.5 * width)
        away = np.maximum(away + 0.5 * sway * np.clip(away / width + 0.2, 0, 1), 0)
        ends = np.clip(6 * np.minimum(share, 1 - share) + 0.55, 0, 1)
        bulk = height * ends * np.exp(-np.abs(away / width) ** 1.7)
        foot = 0.22 * height * np.exp(-((away / (2.3 * width)) ** 2))
        range_ = (bulk * (0.62 + 0.62 * crag) + foot + 0.5 * heights) * (1 - np.exp(-inland / 70))
        heights = np.maximum(heights, range_)
    heights += 0.014 * noise.fractal(shape, 22, 4, 560, 0.6)
    wind_x, wind_y = _winding(x, y)
    for valley in VALLEYS:
        way = lines.smooth_curve(np.stack(to_pixel(*np.array(valley, float).T), axis=1), 12, 22)
        away, share = lines.nearest(x + wind_x, y + wind_y, way, 240)
        bed = 0.06 * np.maximum(1 - share, 0) ** 1.2 + 0.003
        sink = np.exp(-((away / 40) ** 2))
        heights = np.where(heights > bed, heights + (bed - heights) * sink, heights)
    return np.where(land > 0, np.maximum(heights, 0.002), -0.01)


def heights(land, lakes, rain):
    """Worn heights and the way the water takes: (heights, flow.Drainage)."""
    ground = raw_heights(land)
    for _ in range(ROUNDS):
        ground = np.where((lakes > 0) & (land > 0), ground - 0.02, ground)
        drainage = flow.drain(ground, land > 0, rain)
        ground = flow.wear(ground, drainage, WEAR)
        ground = np.where(land > 0, ndimage.gaussian_filter(ground, 0.6), ground)
    drainage = flow.drain(np.where((lakes > 0) & (land > 0), ground - 0.02, ground), land > 0, rain)
    return ground, drainage
