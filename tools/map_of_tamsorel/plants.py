"""What stands where: mountains on the heights, woods where it rains, dunes in the deserts."""

from dataclasses import dataclass

import numpy as np
from scipy import ndimage

from . import climate, growth, peaks, scatter
from .land import GRID

STRAND = 18  # pixels of bare ground along every coast
LEAST_HEIGHT = 0.28  # of a mountain; what is lower is a hill


@dataclass(frozen=True)
class Kind:
    draw: object  # of peaks or growth
    size: float  # pixels
    spread: float  # how much the size varies
    body: tuple  # half width and height of the drawing, in sizes
    foot: tuple  # half width and height of the ground it takes, in sizes
    tries: int
    seed: int
    more: tuple = ()


HILL = Kind(peaks.hill, 46, 0.25, (0.52, 0.46), (0.42, 0.22), 90000, 41, (0.0,))
SEDGE = Kind(growth.sedge, 26, 0.2, (0.5, 0.5), (0.62, 0.36), 200000, 42)
JUNGLE = Kind(growth.jungle_tree, 26, 0.18, (0.42, 1.05), (0.26, 0.17), 500000, 43)
CONIFER = Kind(growth.conifer, 27, 0.2, (0.36, 1.15), (0.2, 0.16), 500000, 44)
BROADLEAF = Kind(growth.broadleaf, 25, 0.18, (0.42, 1.05), (0.26, 0.17), 500000, 45)
LONE_TREE = Kind(growth.broadleaf, 24, 0.18, (0.42, 1.05), (1.2, 1.0), 60000, 46)
LONE_PALM = Kind(growth.palm, 30, 0.18, (0.45, 1.1), (0.9, 0.8), 60000, 49)
DUNE = Kind(growth.dune, 46, 0.3, (0.52, 0.4), (0.66, 0.36), 60000, 47)
TUFT = Kind(growth.tuft, 13, 0.2, (0.6, 0.9), (2.2, 1.6), 60000, 48)


def plant(country, sheet):
    """All the small signs of the land, clear of the sheet's names and marks."""
    inland = GRID * ndimage.distance_transform_edt(country.land > 0)
    closed = sheet.busy | ~country.valid | (country.lakes > -7) | (inland < STRAND) | sheet.rivers
    ground = scatter.Ground(closed)
    heights, rain, warmth = country.heights, country.rain, country.warmth
    snow = (0.66 - warmth) / 0.42 + (heights - 0.75) * 0.8
    scatter.mountains(ground, heights, LEAST_HEIGHT, snow)

    foothills = np.clip((heights - 0.165) / 0.08, 0, 1) * (heights < 0.34)
    low, fen = heights < 0.33, country.fen > 0.35
    clear = low & ~fen & (country.desert < 0.3)
    lush = 2.6 * (rain - 0.27) + 1.5 * np.clip((warmth - 0.82) / 0.14, 0, 1)
    thick = np.clip((country.wood + lush) * 4, 0, 1) * clear
    cold = np.clip((0.43 - warmth + 0.05 * country.wood) * 9, 0, 1)
    for kind, share in (
        (HILL, foothills * 0.9),
        (SEDGE, fen * 0.9),
        (JUNGLE, thick * (warmth > 0.75)),
        (CONIFER, thick * cold * (warmth > 0.16)),
        (BROADLEAF, thick * (1 - cold) * (warmth < 0.78)),
        (LONE_TREE, clear * 0.04 * (warmth > 0.25) * (warmth < 0.78)),
        (LONE_PALM, clear * 0.04 * (warmth > 0.72)),
        (DUNE, climate.dunes(country.desert, heights)),
        (TUFT, clear * ((rain < 0.4) | (warmth < 0.25)) * 0.35),
    ):
        scatter.strew(ground, share, kind)
    return ground.signs
