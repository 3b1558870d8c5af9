"""Warmth and rain: what grows where follows from latitude, height and the winds.

North of 30 degrees the winds blow from the west, south of it from the east; they take up
water over the sea and lose it over land, most where the land rises.
"""

import numpy as np
from scipy import ndimage

from . import noise


def _blown(land, heights, from_west):
    """Rain of a wind that blows along the rows."""
    order = range(land.shape[1]) if from_west else range(land.shape[1] - 1, -1, -1)
    air, before = np.ones(land.shape[0]), np.zeros(land.shape[0])
    rain = np.zeros(land.shape)
    for column in order:
        over_land, height = land[:, column], np.maximum(heights[:, column], 0)
        rise = np.maximum(height - before, 0)
        fall = air * np.clip(0.0022 + 0.16 * rise, 0, 0.5) * over_land
        rain[:, column] = fall
        air = np.where(over_land, air - fall + 0.0010 * (0.8 - air), air + 0.02 * (1 - air))
        before = height
    return rain


def rain(land, heights, lat):
    """Rain in each cell, about 0 (desert) to 1 (wet)."""
    heights = ndimage.gaussian_filter(heights, 6)
    westerly = np.clip((lat - 26) / 8, 0, 1)
    fallen = westerly * _blown(land, heights, True) + (1 - westerly) * _blown(land, heights, False)
    near_land = ndimage.gaussian_filter(land.astype(float), 16)
    fallen = ndimage.gaussian_filter(fallen, 16) / np.maximum(near_land, 0.05)
    belt = (
        1.25 * np.exp(-((lat / 12) ** 2))
        + np.exp(-(((lat - 48) / 15) ** 2))
        + 0.25
        - 0.35 * np.exp(-(((lat - 24) / 7) ** 2))
    )
    wet = fallen / 0.0024 * np.clip(belt, 0.05, None) + 0.05 * noise.fractal(land.shape, 60, 4, 701)
    return np.clip(0.55 * wet, 0.02, 1.0)


def dunes(desert, heights):
    """How thick dunes stand, 0 to 1: in the deserts, and on no mountain."""
    return np.clip(desert * 1.4 - 0.3, 0, 1) * (heights < 0.33)


def warmth(heights, lat):
    """1 at the equator's shore, 0 where trees end."""
    return np.clip(1.12 - lat / 56 - 0.45 * np.maximum(heights, 0), 0, 1.1)
