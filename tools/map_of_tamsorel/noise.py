"""Smooth random fields, the same for the same seed.

A field is a lattice of random numbers joined by cubic splines.  The products are sparse
and run in one fixed order, so that no digit depends on how many threads there are.
"""

import numpy as np
from scipy import sparse


def _spline(length, period):
    """Weights that spread a lattice over a line: a sparse (length, lattice) matrix."""
    at = np.arange(length) / period
    cell = np.floor(at).astype(int)
    t = at - cell
    weights = (
        np.stack(
            [
                (1 - t) ** 3,
                3 * t**3 - 6 * t**2 + 4,
                -3 * t**3 + 3 * t**2 + 3 * t + 1,
                t**3,
            ],
            axis=1,
        )
        / 6
    )
    rows = np.repeat(np.arange(length), 4)
    columns = (cell[:, None] + np.arange(4)).ravel()
    return sparse.csr_matrix((weights.ravel(), (rows, columns)), shape=(length, cell[-1] + 4))


def waves(shape, period, seed):
    """One octave: about unit variance, features about `period` cells (y, x or one) wide."""
    period_y, period_x = period if isinstance(period, tuple) else (period, period)
    down, across = _spline(shape[0], period_y), _spline(shape[1], period_x)
    lattice = np.random.default_rng(seed).standard_normal((down.shape[1], across.shape[1]))
    return (across @ (down @ lattice).T).T / 0.48


def fractal(shape, period, octaves, seed, gain=0.5):
    """Octaves of waves, each half as wide and `gain` times as high as the one before."""
    total, weight = np.zeros(shape), 1.0
    for octave in range(octaves):
        total += weight * waves(shape, max(period / 2**octave, 1.0), seed + octave)
        weight *= gain
    return total


def ridged(shape, period, octaves, seed, gain=0.5):
    """Sharp crests where the waves cross zero; 0 to about 1."""
    total, weight, sum_of_weights = np.zeros(shape), 1.0, 0.0
    for octave in range(octaves):
        crest = 1 - np.minimum(
            np.abs(waves(shape, max(period / 2**octave, 1.0), seed + octave)), 1
        )
        total += weight * crest**2
        sum_of_weights += weight
        weight *= gain
    return total / sum_of_weights
