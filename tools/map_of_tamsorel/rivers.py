"""Rivers: the ways of the gathered water, from spring to mouth, as tapering lines."""

from dataclasses import dataclass

import numpy as np
from scipy import ndimage

from . import lines
from .relief import GRID
from .world import PLACES

LEAST_WATER = 260  # cells of mean rain; less is a brook and not drawn
SHORTEST = 9  # cells
NEAR = 13.0  # pixels


@dataclass
class River:
    points: np.ndarray  # pixels, from the spring down to the sea or the greater river
    widths: np.ndarray  # pixels
    water: float  # at the mouth


def _stems(drainage):
    """Cells of each river, mouth first, greater rivers before those that join them."""
    to, water = drainage.receiver.ravel(), drainage.water.ravel()
    wet = drainage.order[water[drainage.order] > LEAST_WATER]
    donors = {}
    for k in wet.tolist():
        donors.setdefault(int(to[k]), []).append(k)
    is_wet = set(wet.tolist())
    waiting = sorted(
        (k for k in wet.tolist() if int(to[k]) not in is_wet), key=lambda k: (-water[k], k)
    )
    stems = []
    while waiting:
        mouth = waiting.pop(0)
        stem = [int(to[mouth]), mouth]
        while stem[-1] in donors:
            upper = sorted(donors[stem[-1]], key=lambda k: (-water[k], k))
            waiting.extend(upper[1:])
            stem.append(upper[0])
        stems.append(stem)
    return stems


def trace(drainage):
    """All rivers; asserts that each runs strictly downhill and never shrinks."""
    columns = drainage.receiver.shape[1]
    filled, water = drainage.filled.ravel(), drainage.water.ravel()
    seat, rivers, dropped = {}, [], set()
    for number, stem in enumerate(_stems(drainage)):
        if len(stem) < SHORTEST or stem[0] in dropped:
            dropped.update(stem[1:])
            continue
        assert np.all(np.diff(filled[stem]) > 0), "a river runs uphill"
        assert np.all(np.diff(water[stem[1:]]) <= 0), "a river shrinks on its way"
        cells = np.array(stem)
        points = np.stack([(cells % columns + 0.5) * GRID, (cells // columns + 0.5) * GRID], axis=1)
        points = _wind(points, number)
        parent = seat.get(stem[0])
        if parent is not None:
            points, stem = _join(points, stem, rivers[parent].points)
            if len(stem) < SHORTEST:
                dropped.update(stem)
                continue
        seat.update((k, len(rivers)) for k in stem[1:])
        widths = np.clip(1.7 + 0.062 * (np.sqrt(water[stem[1:]]) - LEAST_WATER**0.5), 1.5, 9)
        widths = ndimage.gaussian_filter1d(np.concatenate([widths[:1] * 1.25, widths]), 2.5)
        widths *= np.clip(0.45 + np.arange(len(widths))[::-1] / 14, 0, 1)
        rivers.append(River(points[::-1], widths[::-1], float(water[stem[1]])))
    return rivers


def _join(points, stem, greater):
    """Ends a river where it first comes close to the greater one, so that they never run
    side by side; both lists start at the mouth."""
    away = np.hypot(
        points[:, None, 0] - greater[None, :, 0], points[:, None, 1] - greater[None, :, 1]
    )
    close = np.nonzero(away.min(axis=1) < NEAR)[0]
    cut = int(close[-1]) if len(close) else 0
    points, stem = points[cut:].copy(), stem[cut:]
    last = greater[away[cut].argmin()]
    points[:4] += (last - points[:4]) * np.array([[1], [0.5], [0.2], [0.05]])[: len(points)]
    return points, stem


def _wind(points, number):
    """Rounds the steps of the grid and lets the river wind a little, not at its towns."""
    count = len(points)
    rounded = np.concatenate(
        [2 * points[0] - points[1:][::-1], points, 2 * points[-1] - points[:-1][::-1]]
    )
    rounded = ndimage.gaussian_filter1d(rounded, 2.6, axis=0)[count - 1 : 2 * count - 1]
    ahead = lines.directions(rounded)
    side = np.stack([-ahead[:, 1], ahead[:, 0]], axis=1)
    chance = np.random.default_rng(800 + number)
    sway = ndimage.gaussian_filter1d(chance.standard_normal(count + 40), 2.2)[20:-20] * 7.5
    near = np.min([np.hypot(*(rounded - p.pixel).T) for p in PLACES], axis=0)
    ends = np.clip(np.minimum(np.arange(count), np.arange(count)[::-1]) / 5, 0, 1)
    return rounded + side * (sway * ends * (1 - np.exp(-((near / 60) ** 2))))[:, None]
