"""Measures the finished picture: where its marks and crossings really are.

A mark is the middle of its red, a crossing the middle of its dark dot in the pale pearl.
The pearl and the ring keep all else away, so a threshold half-way is safe even after
the picture has been compressed.
"""

import numpy as np
from PIL import Image

from . import graticule
from .world import HEIGHT, PLACES, WIDTH

WORST = 0.75  # pixels


def redness(window):
    """How much redder than green and blue, above what paper and ink ever are."""
    return np.clip(window[..., 0] - window[..., 1:].mean(axis=-1) - 50, 0, None)


def darkness(window):
    """How much darker than half-way between dot and pearl."""
    grey = window @ np.array([0.299, 0.587, 0.114])
    return np.clip(150 - grey, 0, None)


def centre(picture, x, y, reach, weight):
    """The middle (x, y) of a weight near a pixel, and the weight's sum."""
    for _ in range(3):
        left, top = max(int(x - reach) - 1, 0), max(int(y - reach) - 1, 0)
        window = picture[top : int(y + reach) + 2, left : int(x + reach) + 2]
        rows, columns = np.mgrid[top : top + window.shape[0], left : left + window.shape[1]] + 0.5
        share = weight(window) * (np.hypot(columns - x, rows - y) <= reach)
        total = share.sum()
        if total == 0:
            return np.nan, np.nan, 0.0
        x, y = (share * columns).sum() / total, (share * rows).sum() / total
    return x, y, total


def run(path):
    """Prints the worst errors; true when all is within bounds."""
    image = Image.open(path)
    picture = np.asarray(image.convert("RGB"), float)
    good = image.size == (WIDTH, HEIGHT) and image.mode == "RGB"
    print(
        f"{path.name}: {image.size[0]} x {image.size[1]} {image.mode}, {path.stat().st_size} bytes"
    )
    marks_at = [(p.name, *p.pixel) for p in PLACES]
    dots_at = [(f"{lon} E {lat} N", x, y) for lon, lat, x, y in graticule.crossings()]
    for what, spots, reach, weight in (
        ("marks", marks_at, 12.0, redness),
        ("crossings", dots_at, 6.5, darkness),
    ):
        found = [centre(picture, x, y, reach, weight) for _, x, y in spots]
        sums = np.array([f[2] for f in found])
        off = np.array(
            [np.hypot(f[0] - s[1], f[1] - s[2]) if f[2] else 1e3 for f, s in zip(found, spots)]
        )
        worst = int(off.argmax())
        # A spot that is missing or half hidden has an odd weight.
        odd = [s[0] for s, total in zip(spots, sums) if abs(total / np.median(sums) - 1) > 0.25]
        low, high = sums.min() / np.median(sums), sums.max() / np.median(sums)
        print(
            f"  {len(spots)} {what}: mean error {off.mean():.3f}, worst {off[worst]:.3f} pixels"
            f" ({spots[worst][0]}); weights {low:.2f} to {high:.2f} of the median"
        )
        if odd:
            print("    odd:", ", ".join(odd))
        good = good and off.max() <= WORST and not odd
    return good
