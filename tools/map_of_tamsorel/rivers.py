"""Rivers: the ways of the gathered water, from spring to mouth, as tapering lines."""

from dataclasses import dataclass

import numpy as np
from scipy import ndimage

from . import lines
from .land import GRID as LAND_GRID
from .relief import GRID
from .world import PLACES

LEAST_WATER = 400  # cells of mean rain; less is a brook and not drawn
SHORTEST = 9  # cells
NEAR = 13.0  # pixels


@dataclass
class River:
    points: np.ndarray  # pixels, from the spring down to the coast or the greater river
    widths: np.ndarray  # pixels
    water: float  # at the mouth
    mouth: tuple  # points and widths across the coast; none where it joins a greater river


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


def trace(drainage, dunes, land):
    """All rivers, down to the coast of the land's field; asserts that each runs strictly downhill
    and never shrinks. None rises in the dunes (where that is true): it is drawn from where it
    leaves them."""
    columns = drainage.receiver.shape[1]
    filled, water = drainage.filled.ravel(), drainage.water.ravel()
    seat, rivers, dropped = {}, [], set()
    sand = dunes.ravel()
    for number, stem in enumerate(_stems(drainage)):
        while len(stem) > 1 and sand[stem[-1]]:
            stem.pop()
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
        points, widths = points[::-1], widths[::-1]
        mouth = (points[:0], widths[:0])
        if parent is None:
            points, widths, mouth = _meet_the_sea(points, widths, land)
        rivers.append(River(points, widths, float(water[stem[1]]), mouth))
    return rivers


def _meet_the_sea(points, widths, land):
    """Ends a river at the coast itself: (points, widths, mouth). The mouth widens into the sea."""
    column, row = points.T / LAND_GRID - 0.5
    dry = ndimage.map_coordinates(land, (row, column), order=1, mode="nearest")
    wet = np.nonzero(dry > 0)[0]
    last = int(wet[-1]) if len(wet) else 0
    if last < 2:
        return points, widths, (points[:0], widths[:0])
    share = dry[last] / (dry[last] - dry[last + 1]) if last + 1 < len(points) else 1.0
    ahead = points[last] - points[last - 2]
    ahead /= max(np.hypot(*ahead), 1e-9)
    shore = points[last] + (
        share * (points[last + 1] - points[last]) if last + 1 < len(points) else 3 * ahead
    )
    points, widths = np.vstack([points[: last + 1], shore]), np.append(
        widths[: last + 1], widths[last]
    )
    steps, wider = np.array([-7.0, 0.0, 5.0, 10.0]), np.array([1.0, 1.1, 1.35, 1.7])
    mouth, wide = shore + steps[:, None] * ahead, widths[-1] * wider
    column, row = (mouth + wide[:, None] * ahead).T / LAND_GRID - 0.5
    beyond = ndimage.map_coordinates(land, (row, column), order=1, mode="nearest") > 0
    beyond[:2] = False  # in narrow waters the other bank is not washed away
    open_water = len(mouth) if not beyond.any() else int(beyond.argmax())
    return points, widths, (mouth[:open_water], wide[:open_water])


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
