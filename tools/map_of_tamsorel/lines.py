"""Lines on paper: distance to them, smoothing them, walking along them."""

import numpy as np
from scipy import ndimage


def smooth_curve(points, step, sigma):
    """An open line walked in equal steps with its corners rounded; its ends stay."""
    points = np.asarray(points, float)
    along = np.concatenate([[0], np.cumsum(np.hypot(*np.diff(points, axis=0).T))])
    count = max(int(along[-1] / step), 2)
    at = np.linspace(0, along[-1], count + 1)
    walked = np.stack([np.interp(at, along, points[:, k]) for k in (0, 1)], axis=1)
    if sigma <= 0:
        return walked
    padded = np.concatenate(
        [2 * walked[0] - walked[1:][::-1], walked, 2 * walked[-1] - walked[:-1][::-1]]
    )
    rounded = ndimage.gaussian_filter1d(padded, sigma / step, axis=0, mode="nearest")
    return rounded[count : 2 * count + 1]


def nearest(x, y, points, width):
    """For every cell: distance to the line, and how far along it (0 to 1) the near point is."""
    points = np.asarray(points, float)
    away, share = np.full(x.shape, 1e9), np.zeros(x.shape)
    lengths = np.hypot(*np.diff(points, axis=0).T)
    total, before = lengths.sum(), 0.0
    for (ax, ay), (bx, by), length in zip(points[:-1], points[1:], lengths):
        rows = np.nonzero((y[:, 0] > min(ay, by) - width) & (y[:, 0] < max(ay, by) + width))[0]
        columns = np.nonzero((x[0] > min(ax, bx) - width) & (x[0] < max(ax, bx) + width))[0]
        if len(rows) and len(columns):
            box = np.s_[rows[0] : rows[-1] + 1, columns[0] : columns[-1] + 1]
            t = np.clip(((x[box] - ax) * (bx - ax) + (y[box] - ay) * (by - ay)) / length**2, 0, 1)
            distance = np.hypot(x[box] - ax - t * (bx - ax), y[box] - ay - t * (by - ay))
            closer = distance < away[box]
            away[box] = np.where(closer, distance, away[box])
            share[box] = np.where(closer, (before + t * length) / total, share[box])
        before += length
    return away, share


def directions(points):
    """The unit direction of a line at each of its points."""
    ahead = np.gradient(np.asarray(points, float), axis=0)
    return ahead / np.maximum(np.hypot(ahead[:, 0], ahead[:, 1]), 1e-9)[:, None]
