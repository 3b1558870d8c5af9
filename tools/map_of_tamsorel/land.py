"""Land and sea: from the hand-drawn outlines to coasts with fjords, bays and capes.

The field is positive on land, negative at sea and zero along the coast; its size is
about the distance to the coast in pixels.  One cell is GRID pixels wide.
"""

import numpy as np
from PIL import Image, ImageDraw
from scipy import ndimage

from . import lines, noise
from .drawings import FIRTHS, HEADLANDS, ISLETS, LANDS
from .world import HEIGHT, PLACES, WIDTH, to_degrees, to_pixel

GRID = 2
SHAPE = (HEIGHT // GRID, WIDTH // GRID)  # the relief's grid is twice as coarse
SMALLEST_ISLE, SMALLEST_POND = 40, 2500  # cells
NARROWEST = 3  # cells of water on either side of a channel's middle; less is drawn as land
FJORD_COUNTRY = ((-24, 46, 11, 11), (4, 52, 12, 4.5), (38, 54, 7, 8), (-33, 51, 6, 4))


def pixel_grids(grid=GRID):
    """The pixel coordinates (x, y) of the middle of every cell."""
    shape = (HEIGHT // grid, WIDTH // grid)
    y, x = np.mgrid[0 : shape[0], 0 : shape[1]].astype(float)
    return (x + 0.5) * grid, (y + 0.5) * grid


def _outline_distance(corners):
    """Pixels inside (positive) or outside a polygon of degrees."""
    x, y = to_pixel(*np.array(corners, float).T)
    picture = Image.new("L", (SHAPE[1], SHAPE[0]))
    ImageDraw.Draw(picture).polygon([(a / GRID, b / GRID) for a, b in zip(x, y)], fill=1)
    inside = np.array(picture, bool)
    return GRID * (ndimage.distance_transform_edt(inside) - ndimage.distance_transform_edt(~inside))


def _islets(x, y):
    field = np.full(SHAPE, -1e3)
    chance = np.random.default_rng(311)
    for start, end, count, radius in ISLETS:
        for k in range(count):
            share = (k + chance.uniform(-0.3, 0.3)) / (count - 1)
            bend = 1.2 * np.sin(np.pi * share) + chance.uniform(-0.5, 0.5)
            at_x, at_y = to_pixel(
                start[0] + share * (end[0] - start[0]) + 0.6 * bend,
                start[1] + share * (end[1] - start[1]) + bend,
            )
            size = radius * chance.uniform(0.6, 1.8)
            field = np.maximum(
                field, size - np.hypot(x - at_x, (y - at_y) * chance.uniform(0.8, 1.3))
            )
    return field


def _shape(field, x, y, rough):
    """Raises the headlands and lets the sea into the firths that were drawn by hand."""
    for shapes, shape in ((HEADLANDS, 1), (FIRTHS, -1)):
        for half, way in shapes:
            way = np.stack(to_pixel(*np.array(way, float).T), axis=1)
            away = lines.nearest(x, y, lines.smooth_curve(way, 20, 40), 4 * half)[0]
            limit = shape * (half - away) + 0.4 * rough
            field = np.maximum(field, limit) if shape > 0 else np.minimum(field, limit)
    return field


def _fjords(field, x, y):
    """How deep inlets cut into the land, in pixels: narrow, and only in fjord country."""
    lon, lat = to_degrees(x, y)
    country = np.zeros(SHAPE)
    for at_lon, at_lat, wide, high in FJORD_COUNTRY:
        country = np.maximum(
            country, np.exp(-(((lon - at_lon) / wide) ** 4) - ((lat - at_lat) / high) ** 4)
        )
    wander = noise.fractal(SHAPE, 66, 3, 401)
    cut = np.clip(1.25 - np.abs(wander) / 0.17, 0, 1)
    reach = np.clip(1.7 - field / 95, 0, 1)
    return 190 * country * cut * reach


def _settle(field, x, y):
    """Lets every place stand on land, and the ports by the water."""
    for place in PLACES:
        at_x, at_y = place.pixel
        away = np.hypot(x - at_x, y - at_y)
        here = field[int(at_y / GRID), int(at_x / GRID)]
        if place.shore:
            field += (place.shore - here) * np.exp(-((away / 90) ** 2))
        elif here < 90:
            field += (90 - here) * np.exp(-((away / 110) ** 2))
    return field


def _tidy(field):
    """Takes away specks of land, ponds of sea, and inlets whose coasts would be one thick line."""
    dry = field > 0
    field[ndimage.binary_closing(np.pad(dry, 9), iterations=NARROWEST)[9:-9, 9:-9] & ~dry] = 1.5
    parts, count = ndimage.label(field > 0)
    sizes = ndimage.sum_labels(np.ones(SHAPE), parts, np.arange(count + 1))
    field[(sizes < SMALLEST_ISLE)[parts] & (parts > 0)] = -1.5
    parts, count = ndimage.label(field <= 0)
    sizes = ndimage.sum_labels(np.ones(SHAPE), parts, np.arange(count + 1))
    field[(sizes < SMALLEST_POND)[parts] & (parts > 0)] = 1.5
    return field


def field():
    """The signed field of land and sea."""
    x, y = pixel_grids()
    rough = (
        38 * noise.waves(SHAPE, 160, 101)
        + 42 * noise.waves(SHAPE, 72, 102)
        + 27 * noise.waves(SHAPE, 34, 103)
        + 16 * noise.waves(SHAPE, 16, 104)
        + 8.5 * noise.waves(SHAPE, 8, 105)
        + 3.4 * noise.waves(SHAPE, 4, 106)
    )
    # Rough and smooth coasts take turns.
    fine = (
        9 * noise.fractal(SHAPE, 20, 3, 110) * np.clip(0.4 + noise.waves(SHAPE, 180, 115), 0, 1.6)
    )
    land = np.full(SHAPE, -1e3)
    for roughness, corners in LANDS:
        land = np.maximum(land, _outline_distance(corners) + roughness * (rough + fine))
    small = rough - 38 * noise.waves(SHAPE, 160, 101)
    land = np.maximum(land, _islets(x, y) + 0.36 * small + 0.8 * fine)
    land -= _fjords(land, x, y)
    land = _shape(land, x, y, small)
    return _tidy(_settle(land, x, y))
