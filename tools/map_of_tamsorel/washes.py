"""The sheet without any ink: parchment, and the washes of sea and land within the frame."""

import cairo
import numpy as np
from scipy import ndimage

from . import graticule, paint, pen
from .land import GRID
from .world import HEIGHT, WIDTH


def alpha(surface):
    """The cover of an A8 surface, 0 to 1."""
    surface.flush()
    rows = np.frombuffer(surface.get_data(), np.uint8).reshape(HEIGHT, surface.get_stride())
    return rows[:, :WIDTH] / np.float32(255)


def _mask(lines):
    """How far each pixel is inside the lines, 0 to 1."""
    surface = cairo.ImageSurface(cairo.FORMAT_A8, WIDTH, HEIGHT)
    c = cairo.Context(surface)
    c.set_fill_rule(cairo.FILL_RULE_EVEN_ODD)
    for line in lines:
        pen.loop(c, line.tolist())
    c.fill()
    return alpha(surface)


def _enlarge3(picture):
    return np.stack([paint.enlarge(picture[..., k]) for k in range(3)], axis=2)


def bare_sheet(country, coast, shore):
    """Colours 0 to 1; coast: its lines, shore: pixels from each cell to the nearest land."""
    sea = _enlarge3(paint.sea_wash(shore))
    ground = paint.land_wash(
        country.heights, country.rain, country.warmth, country.fen, country.desert
    )
    # No shade reaches the coast: land is lighter than the sea beside it, everywhere.
    inland = GRID * ndimage.distance_transform_edt(country.land > 0)
    shade = (paint.light(country.heights, 26) - 1) * (1 - np.exp(-inland / 55))
    ground *= 1 + shade[..., None]
    coast_mask = _mask(coast)[..., None]
    picture = sea + (_enlarge3(ground) - sea) * coast_mask
    away = GRID * ndimage.distance_transform_edt(~country.valid)
    ghost = paint.enlarge(np.where(country.valid, 1.0, 0.38 * np.exp(-away / 45)))
    frame = cairo.ImageSurface(cairo.FORMAT_A8, WIDTH, HEIGHT)
    c = cairo.Context(frame)
    graticule.trace_border(c)
    c.fill()
    share = np.maximum(alpha(frame), np.clip(ghost, 0, 0.38))[..., None]
    paper = paint.paper()
    tone = paper.mean(axis=2, keepdims=True)
    tinted = paper * paint.PAPER
    return np.clip(tinted + (picture * (0.25 + 0.75 * tone) - tinted) * share, 0, 1).astype(
        np.float32
    )
