"""Where the water runs: every cell of land drains down to the sea.

Hollows are filled to their brim (priority flood, each cell a hair above the one it was
reached from), so that a way strictly downhill leads from every cell to the sea.
"""

import heapq
from dataclasses import dataclass

import numpy as np

HAIR = 1e-6
NEIGHBOURS = ((-1, -1), (-1, 0), (-1, 1), (0, -1), (0, 1), (1, -1), (1, 0), (1, 1))


@dataclass
class Drainage:
    filled: np.ndarray  # heights with the hollows filled
    receiver: np.ndarray  # flat index of the cell that water runs to; itself at sea
    order: np.ndarray  # flat indices of the land cells, lowest first
    water: np.ndarray  # rain gathered from above, in cells of mean rain


def _fill(ground, land):
    """Priority flood from the sea and the sheet's edge."""
    rows, columns = ground.shape
    wide = columns + 2
    level = np.full((rows + 2, wide), -1.0)
    level[1:-1, 1:-1] = ground
    closed = np.ones((rows + 2, wide), bool)
    closed[1:-1, 1:-1] = ~land
    shore = np.zeros_like(closed)
    for dy, dx in NEIGHBOURS:
        shore[1:-1, 1:-1] |= np.roll(closed, (dy, dx), (0, 1))[1:-1, 1:-1]
    shore &= ~closed
    flat, done = level.ravel().tolist(), closed.ravel().tolist()
    heap = [(flat[k], k) for k in np.nonzero(shore.ravel())[0].tolist()]
    for _, k in heap:
        done[k] = True
    heapq.heapify(heap)
    steps = [dy * wide + dx for dy, dx in NEIGHBOURS]
    push, pop = heapq.heappush, heapq.heappop
    while heap:
        height, k = pop(heap)
        for step in steps:
            n = k + step
            if not done[n]:
                done[n] = True
                if flat[n] <= height:
                    flat[n] = height + HAIR
                push(heap, (flat[n], n))
    return np.array(flat).reshape(rows + 2, wide)[1:-1, 1:-1]


def drain(ground, land, rain):
    """The drainage of a ground; rain is relative to its mean."""
    filled = np.where(land, _fill(ground, land), -0.01)
    rows, columns = ground.shape
    edged = np.pad(filled, 1, constant_values=-0.01)
    index = np.arange(rows * columns).reshape(rows, columns)
    steepest, receiver = np.zeros_like(filled), index.copy()
    for dy, dx in NEIGHBOURS:
        drop = (filled - edged[1 + dy : 1 + dy + rows, 1 + dx : 1 + dx + columns]) / np.hypot(
            dy, dx
        )
        y, x = np.mgrid[0:rows, 0:columns]
        inside = (y + dy >= 0) & (y + dy < rows) & (x + dx >= 0) & (x + dx < columns)
        better = (drop > steepest) & land & inside
        steepest = np.where(better, drop, steepest)
        receiver = np.where(better, index + dy * columns + dx, receiver)
    order = np.argsort(filled.ravel(), kind="stable")
    order = order[land.ravel()[order]]
    water, to = (rain * land).ravel().tolist(), receiver.ravel().tolist()
    for k in order[::-1].tolist():
        if to[k] != k:
            water[to[k]] += water[k]
    return Drainage(filled, receiver, order, np.array(water).reshape(rows, columns))


def wear(ground, drainage, strength):
    """One long step of streams cutting down (implicit, so it never undercuts)."""
    columns = ground.shape[1]
    to = drainage.receiver.ravel()
    own = np.arange(to.size)
    apart = np.maximum(np.hypot(to // columns - own // columns, to % columns - own % columns), 1)
    cut = (strength * 0.02 * np.minimum(drainage.water.ravel(), 4000) ** 0.5 / apart).tolist()
    level = np.where(drainage.order.size, drainage.filled, ground).ravel().tolist()
    to = to.tolist()
    for k in drainage.order.tolist():
        r = to[k]
        base = level[r] if level[r] > 0 else 0.0
        level[k] = (level[k] + cut[k] * base) / (1 + cut[k])
    return np.array(level).reshape(ground.shape)
