"""The outline of land and lakes for the web page: few corners, in few bytes.

Drawn are the same coasts as on the sheet, without what is smaller than a finger. One unit is
UNIT pixels of the sheet; each corner is written as its whole steps from the one before.
"""

import numpy as np

from . import land, relief
from .contours import contours
from .world import CENTRE_X, EQUATOR_Y, HEIGHT, LAT_SCALE, LON_SCALE, WIDTH

UNIT = 4  # pixels of the sheet
OFF = 1.2  # units that a line may pass beside the coast
SMALLEST = 40.0  # square units
SMOOTH = 4.0  # steps along the coast over which it is rounded

MODULE = """// Made by tools/make_map.py --outline: the coasts of Tamsorel, a path each of land and lakes.
export const outline = {{
  width: {width},
  height: {height},
  centreX: {centre_x},
  equatorY: {equator_y},
  latitudeScale: {latitude_scale}, // units per radian
  longitudeScale: {longitude_scale}, // the same, at the equator
  land: "{land}",
  lakes: "{lakes}",
}};
"""


def _area(points):
    x, y = points.T
    return 0.5 * abs(np.dot(x, np.roll(y, -1)) - np.dot(y, np.roll(x, -1)))


def _thinned(points, off):
    """An open line without the corners that lie no further than `off` from what remains."""
    first, last = points[0], points[-1]
    along = last - first
    length = np.hypot(*along)
    from_first = points - first
    if length > 0:
        share = np.clip(from_first @ along / length**2, 0, 1)
        away = np.hypot(*(from_first - share[:, None] * along).T)
    else:
        away = np.hypot(*from_first.T)
    far = int(away.argmax())
    if away[far] <= off:
        return [first, last]
    return _thinned(points[: far + 1], off)[:-1] + _thinned(points[far:], off)


def _corners(line):
    """A closed line's corners in whole units, each once."""
    line = np.concatenate([line, line[:1]])
    half = int(np.hypot(*(line - line[0]).T).argmax())
    thinned = _thinned(line[: half + 1], OFF)[:-1] + _thinned(line[half:], OFF)[:-1]
    whole = np.rint(np.array(thinned)).astype(int)
    return whole[(whole != np.roll(whole, 1, axis=0)).any(axis=1)]


def _step(numbers):
    """Numbers of a path; a minus is all that need stand between two."""
    text = ""
    for number in numbers:
        text += ("" if number < 0 or not text else " ") + str(number)
    return text


def _path(lines):
    text = ""
    for line in lines:
        corners = _corners(line / UNIT)
        if len(corners) < 3 or _area(corners.astype(float)) < SMALLEST:
            continue
        steps = np.diff(corners, axis=0).ravel()
        text += f"M{_step(corners[0])}l{_step(steps)}z"
    return text


def write(file):
    """Writes the module of the outline."""
    field = land.field()
    lakes = np.where(field > 0, relief.lake_field(), -9)
    module = MODULE.format(
        width=WIDTH / UNIT,
        height=HEIGHT / UNIT,
        centre_x=CENTRE_X / UNIT,
        equator_y=EQUATOR_Y / UNIT,
        latitude_scale=LAT_SCALE / UNIT,
        longitude_scale=LON_SCALE / UNIT,
        land=_path(contours(field, 0, land.GRID, SMOOTH)),
        lakes=_path(contours(lakes, 0, land.GRID, SMOOTH)),
    )
    file.write_text(module, encoding="utf-8")
