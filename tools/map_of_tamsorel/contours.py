"""Contours: where a field on a grid crosses a level, as smooth closed lines in pixels.

Filled even-odd they give the area above the level.
"""

import numpy as np
from scipy import ndimage

# For every pattern of the corners above the level (1 top left, 2 top right, 4 bottom
# right, 8 bottom left): the sides (0 top, 1 right, 2 bottom, 3 left) a line leaves by
# and enters by, with the high side on its right.
CASES = {
    1: ((3, 0),),
    2: ((0, 1),),
    3: ((3, 1),),
    4: ((1, 2),),
    5: ((3, 0), (1, 2)),
    6: ((0, 2),),
    7: ((3, 2),),
    8: ((2, 3),),
    9: ((2, 0),),
    10: ((0, 1), (2, 3)),
    11: ((2, 1),),
    12: ((1, 3),),
    13: ((1, 0),),
    14: ((0, 3),),
}


def contours(field, level, grid, sigma=0.8, shortest=12):
    """Closed lines (n, 2) along `level`; rounded by sigma steps."""
    rows, columns = field.shape[0] + 2, field.shape[1] + 2
    f = np.pad(field - level, 1, constant_values=-abs(field).max() - 1.0)
    f = np.where(f == 0, 1e-9, f)
    up = f > 0
    pattern = up[:-1, :-1] * 1 + up[:-1, 1:] * 2 + up[1:, 1:] * 4 + up[1:, :-1] * 8
    after = {}
    flat_sides = rows * columns
    for case, segments in CASES.items():
        y, x = np.nonzero(pattern == case)
        # Sides are numbered by their cell corner: across ones first, then down ones.
        side = (
            y * columns + x,
            flat_sides + y * columns + x + 1,
            (y + 1) * columns + x,
            flat_sides + y * columns + x,
        )
        for start, end in segments:
            after.update(zip(side[start].tolist(), side[end].tolist()))
    lines = []
    while after:
        first, second = next(iter(after.items()))
        loop, here = [first], second
        del after[first]
        while here != first:
            loop.append(here)
            here = after.pop(here)
        if len(loop) >= shortest:
            lines.append(_points(np.array(loop), f, columns, flat_sides, grid, sigma))
    return lines


def _points(loop, f, columns, flat_sides, grid, sigma):
    down = loop >= flat_sides
    corner = np.where(down, loop - flat_sides, loop)
    y, x = corner // columns, corner % columns
    here = f[y, x]
    there = np.where(
        down, f[np.minimum(y + 1, f.shape[0] - 1), x], f[y, np.minimum(x + 1, columns - 1)]
    )
    t = np.clip(here / (here - there), 0, 1)
    points = np.stack([x + np.where(down, 0, t), y + np.where(down, t, 0)], axis=1)
    points = (points - 1 + 0.5) * grid
    return ndimage.gaussian_filter1d(points, sigma, axis=0, mode="wrap") if sigma else points
