"""Measures the finished picture: where its marks and crossings really are, and what its reader
meets (see `measures`).

A mark is the middle of its red, a crossing the middle of its dark dot in the pale pearl.
The pearl and the ring keep all else away, so a threshold half-way is safe even after
the picture has been compressed.
"""

import numpy as np
from PIL import Image

from . import graticule, measures, sheet
from .land import GRID
from .world import HEIGHT, PLACES, WIDTH

WORST = 0.75  # pixels
LEAST_SHORE = 1.6  # contrast of the land with the sea beside it, which is the darker
LEAST_TEXT = 4.5  # contrast of a name with its ground
LEAST_TYPE, LEAST_DEGREES = 8.0, 9.8  # points at 100 % in a window of 1280 by 800
FAINTEST = 150  # 0 to 255: what is lighter is no ink of the frame
LEAST_OFF_RIVER, LEAST_OFF_MARK, LEAST_OFF_COAST = 1.0, 42.0, 15.0  # pixels


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
        window = picture[top : int(y + reach) + 2, left : int(x + reach) + 2].astype(float)
        rows, columns = np.mgrid[top : top + window.shape[0], left : left + window.shape[1]] + 0.5
        share = weight(window) * (np.hypot(columns - x, rows - y) <= reach)
        total = share.sum()
        if total == 0:
            return np.nan, np.nan, 0.0
        x, y = (share * columns).sum() / total, (share * rows).sum() / total
    return x, y, total


def _reading(picture, grey):
    """Prints what a reader meets; true when all is within bounds."""
    country, _, names, figures = sheet.plan()
    bright = measures.brightness(picture)
    rows, columns = country.land.shape
    cells = bright.reshape(rows, GRID, columns, GRID).mean(axis=(1, 3))
    shores = measures.coast(cells, country)
    low = shores[shores[:, 0].argmin()]
    print(
        f"  {len(shores)} stations of the coasts: the land is {low[0]:.2f} times lighter than the"
        f" sea or more, {np.median(shores[:, 0]):.2f} in the middle (least at {low[1]:.1f} E"
        f" {low[2]:.1f} N)"
    )
    texts = measures.lettering_contrast(bright, names + figures)
    print(
        f"  lettering: contrast {texts.min():.2f} ({(names + figures)[texts.argmin()].text}) or more"
    )
    least, degrees = measures.sizes(names + figures)
    print(f"  type: {least:.1f} points or more in a window of 1280 by 800, degrees {degrees:.1f}")
    corners = measures.frame_corners(grey)
    print("  frame: lightest ink at the corners", corners)
    springs = measures.springs_in_dunes(country)
    river, mark = measures.clearance(names, country)
    off = measures.offing(names, country)
    print(
        f"  {len(country.rivers)} rivers, {springs} of which rise in dunes; letters keep"
        f" {river:.1f} pixels off rivers, {mark:.1f} off marks, the seas' {off:.1f} off the coast"
    )
    return (
        low[0] >= LEAST_SHORE
        and texts.min() >= LEAST_TEXT
        and least >= LEAST_TYPE
        and degrees >= LEAST_DEGREES
        and max(corners.values()) <= FAINTEST
        and springs == 0
        and river >= LEAST_OFF_RIVER
        and mark >= LEAST_OFF_MARK
        and off >= LEAST_OFF_COAST
    )


def run(path):
    """Prints the worst errors; true when all is within bounds."""
    image = Image.open(path)
    picture = np.asarray(image.convert("RGB"))
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
    return _reading(picture, np.asarray(image.convert("L"))) and good
