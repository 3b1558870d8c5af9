"""Measures what a reader of the map meets: how land and sea differ in grey, how the names stand
out and what they cover, where rivers rise, and whether the frame is whole.

Contrasts are those of relative luminance, (lighter + 0.05) / (darker + 0.05).
"""

import numpy as np
from scipy import ndimage

from . import climate, contours, graticule, layout, lettering
from .land import GRID
from .world import EAST, NORTH, PLACES, SOUTH, WEST, to_degrees, to_pixel

STATION, REACH, OFF = 40, 32, 5  # pixels: between stations of the coast, around each, off it
LEAST_CELLS = 60  # of land and of sea around a station
SCREEN = 835.0 / 4316.0  # points to a pixel of the map at 100 % in a window of 1280 by 800


WEIGHTS = np.array([0.2126, 0.7152, 0.0722])  # of red, green and blue


def linear(colours):
    """Light of colours 0 to 1."""
    return np.where(colours <= 0.04045, colours / 12.92, ((colours + 0.055) / 1.055) ** 2.4)


def luminance(colours):
    """Relative luminance of colours 0 to 1; the last axis holds red, green and blue."""
    return linear(np.asarray(colours, float)) @ WEIGHTS


def brightness(picture):
    """Relative luminance of a picture of bytes: by a table, since a sheet of numbers for each step of
    the calculation would take gigabytes."""
    light = linear(np.arange(256) / 255)
    return sum(weight * light[picture[..., i]] for i, weight in enumerate(WEIGHTS))


def contrast(a, b):
    return (np.maximum(a, b) + 0.05) / (np.minimum(a, b) + 0.05)


def coast(bright, country):
    """Along every coast: how much lighter the land is than the sea beside it, and where."""
    dry = country.land > 0
    away = GRID * (ndimage.distance_transform_edt(dry) - ndimage.distance_transform_edt(~dry))
    rows, columns = away.shape
    found = []
    for line in contours.contours(country.land, 0, GRID, 0.8):
        for x, y in line[:: max(STATION // GRID, 1)]:
            column, row, reach = int(x / GRID), int(y / GRID), REACH // GRID
            window = np.s_[
                max(row - reach, 0) : row + reach + 1, max(column - reach, 0) : column + reach + 1
            ]
            if not (0 <= row < rows and 0 <= column < columns and country.valid[window].all()):
                continue
            near, grey = away[window], bright[window]
            land, sea = grey[near > OFF], grey[near < -OFF]
            if min(len(land), len(sea)) >= LEAST_CELLS:
                ratio = (np.median(land) + 0.05) / (np.median(sea) + 0.05)
                found.append((ratio, *(float(v) for v in to_degrees(x, y))))
    return np.array(found)


def lettering_contrast(bright, labels):
    """Of each label: the contrast of its ink with the ground around its letters."""
    found = []
    for label in labels:
        ground = []
        for box in label.boxes():
            low, high = box.min(0) - 4, box.max(0) + 4
            window = bright[
                max(int(low[1]), 0) : int(high[1]) + 1, max(int(low[0]), 0) : int(high[0]) + 1
            ]
            ground.append(window[window > np.percentile(window, 50)])
        ink = luminance(label.style.colour)
        found.append(float(contrast(ink, np.median(np.concatenate(ground)))))
    return np.array(found)


def frame_corners(grey):
    """Of each corner on the sheet: the lightest (0 to 255) of what should be ink along the outer
    lines of both bands, from where they meet."""
    found = {}
    for name, lon, lat, way in (
        ("north-west", WEST, NORTH, -1),
        ("north-east", EAST, NORTH, -1),
        ("south-east", EAST, SOUTH, 1),
    ):
        out = graticule.corner(lon, lat) - np.array(to_pixel(lon, lat))
        tip = np.array(to_pixel(lon, lat)) + out * graticule.BAND
        inward = 1 if lon == WEST else -1
        along = np.stack([tip + (inward * k, 0) for k in np.arange(0, 24, 1.0)])
        side = np.array(to_pixel(lon, lat + 0.5 * way)) - np.array(to_pixel(lon, lat))
        side = side / np.hypot(*side)
        down = np.stack([tip + side * k for k in np.arange(0, 24, 1.0)])
        worst = 0
        for point in np.concatenate([along, down]):
            x, y = point.astype(int)
            worst = max(worst, int(grey[y - 1 : y + 2, x - 1 : x + 2].min()))
        found[name] = worst
    return found


def springs_in_dunes(country):
    """Rivers that rise in dunes."""
    dunes = climate.dunes(country.desert, country.heights) > 0
    rising = [tuple((river.points[0] / GRID).astype(int)) for river in country.rivers]
    return sum(bool(dunes[row, column]) for column, row in rising)


def clearance(names, country):
    """Least pixels from any letter to the water of a river, and to the middle of a mark."""
    drawn = np.concatenate([river.points for river in country.rivers])
    half = np.concatenate([river.widths / 2 for river in country.rivers])
    rivers = 1e9
    for label in names:
        boxes = label.boxes()
        low, high = boxes.min((0, 1)) - 60, boxes.max((0, 1)) + 60
        near = ((drawn > low) & (drawn < high)).all(axis=1)
        for point, wide in zip(drawn[near], half[near]):
            rivers = min(rivers, lettering.nearest_to(boxes, point[None]) - wide)
    places = np.array([place.pixel for place in PLACES])
    mark = min(lettering.nearest_to(label.boxes(), places) for label in names)
    return rivers, mark


def sizes(labels):
    """The least and the degrees' size of type, in points at 100 % on a window of 1280 by 800."""
    least = min(label.style.size for label in labels)
    degrees = min(label.style.size for label in labels if label.kind == "degrees")
    return least * SCREEN, degrees * SCREEN


def offing(names, country):
    """Least pixels from the letters of a water's name to the coast."""
    inside = ndimage.distance_transform_edt(country.land <= 0) * GRID
    least = 1e9
    for label in names:
        if layout.UNDER.get(label.kind) == "sea":
            column, row = (layout.samples(label) / GRID).astype(int).T
            least = min(least, float(inside[row, column].min()))
    return least
