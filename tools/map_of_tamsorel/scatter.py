"""Sets the small signs out: never on names, marks, crossings, rivers or the shore, and
never on each other's feet."""

from dataclasses import dataclass

import numpy as np

from . import peaks
from .land import GRID


@dataclass
class Sign:
    x: float
    y: float
    size: float
    draw: object  # of peaks or growth
    more: tuple


class Ground:
    """What is taken already, in cells of the land's grid."""

    def __init__(self, closed):
        """closed: cells that no sign may cover."""
        self.sums = np.pad(np.cumsum(np.cumsum(closed, 0, dtype=np.int64), 1), ((1, 0), (1, 0)))
        self.feet = np.zeros(closed.shape, bool)
        self.signs = []

    def open(self, x, y, half, tall):
        """Whether a drawing that stands at a pixel would cover nothing closed."""
        x0, y0 = int((x - half) / GRID), int((y - tall) / GRID)
        x1, y1 = int((x + half) / GRID) + 1, int((y + 4) / GRID) + 1
        s = self.sums
        if x0 < 0 or y0 < 0 or y1 >= s.shape[0] or x1 >= s.shape[1]:
            return False
        return s[y1, x1] - s[y0, x1] - s[y1, x0] + s[y0, x0] == 0

    def foothold(self, x, y, half, tall):
        """The cells a sign would stand on; None if another stands there."""
        box = np.s_[
            max(int((y - tall) / GRID), 0) : int((y + tall) / GRID) + 1,
            max(int((x - half) / GRID), 0) : int((x + half) / GRID) + 1,
        ]
        return None if self.feet[box].any() else box


def _spots(share, count, seed):
    """Random pixels, as many per area as the share (0 to 1, on the land's grid) says."""
    chance = np.random.default_rng(seed)
    rows, columns = share.shape
    x, y = chance.uniform(0, columns, count), chance.uniform(0, rows, count)
    kept = chance.uniform(0, 1, count) < share[y.astype(int), x.astype(int)]
    return list(zip((x[kept] * GRID).tolist(), (y[kept] * GRID).tolist())), chance


def mountains(ground, heights, least, snow):
    """Mountains, the highest first; where names or shores leave little room, smaller ones."""
    spots, chance = _spots(np.clip((heights - least) / 0.08, 0, 1), 200000, 31)
    rows = heights.shape[0]

    def high(at):
        return heights[int(at[1] / GRID), int(at[0] / GRID)]

    spots.sort(key=lambda at: (-round(high(at) * 14), at))
    for x, y in spots:
        rise = min(max((high((x, y)) - least) / 0.6, 0), 1)
        width = (50 + 60 * rise) * chance.uniform(0.85, 1.15)
        y += 0.25 * width
        box = ground.foothold(x, y, 0.29 * width, 0.165 * width)
        if box is None:
            continue
        for w in (width, 0.78 * width, 0.62 * width):
            if ground.open(x, y, 0.44 * w, 0.85 * w):
                ground.feet[box] = True
                white = float(np.clip(snow[min(int(y / GRID), rows - 1), int(x / GRID)], 0, 1))
                ground.signs.append(Sign(x, y, w, peaks.mountain, (white,)))
                break


def strew(ground, share, kind):
    """Plants signs of one kind, as thick as the share says."""
    spots, chance = _spots(share, kind.tries, kind.seed)
    for x, y in spots:
        size = kind.size * chance.uniform(1 - kind.spread, 1 + kind.spread)
        if ground.open(x, y, kind.body[0] * size, kind.body[1] * size):
            box = ground.foothold(x, y, kind.foot[0] * size, kind.foot[1] * size)
            if box is not None:
                ground.feet[box] = True
                ground.signs.append(Sign(x, y, size, kind.draw, kind.more))


def draw(context, signs):
    """Draws the signs from the back to the front."""
    for number, sign in enumerate(sorted(signs, key=lambda s: (s.y, s.x))):
        context.save()
        context.translate(sign.x, sign.y)
        sign.draw(context, sign.size, np.random.default_rng(40000 + number), *sign.more)
        context.restore()
