"""The whole sheet, laid on from the paper up: washes, lines, signs, net, marks, lettering."""

import time

import cairo
import numpy as np
from PIL import Image
from scipy import ndimage

from . import (
    contours,
    graticule,
    layout,
    lettering,
    marks,
    ornaments,
    plants,
    scatter,
    vessels,
    washes,
    waters,
)
from .country import Country
from .land import GRID
from .world import HEIGHT, WIDTH

QUALITY = 95


def _surface(picture):
    pixels = np.full((HEIGHT, WIDTH, 4), 255, np.uint8)
    pixels[..., :3] = np.round(picture[..., ::-1] * 255)
    return cairo.ImageSurface.create_for_data(pixels, cairo.FORMAT_RGB24, WIDTH, HEIGHT), pixels


def _letter(picture, bare, labels, rivers):
    """The lettering; beneath it the lines fade into the bare wash, but for the rivers."""
    halo = cairo.ImageSurface(cairo.FORMAT_A8, WIDTH, HEIGHT)
    c = cairo.Context(halo)
    c.set_line_join(cairo.LINE_JOIN_ROUND)
    for label in labels:
        if not graticule.valid(*label.boxes().mean((0, 1))):
            continue  # on the bare parchment, where nothing is to fade but the frame
        c.new_path()
        lettering.trace(c, label)
        c.set_line_width(13)
        c.stroke()
    share = ndimage.gaussian_filter(washes.alpha(halo), 2.2)[..., None] * 0.88
    share *= 1 - waters.cover(rivers)[..., None]
    lifted = picture + (bare + (1 - bare) * 0.10 - picture) * share
    surface, pixels = _surface(np.clip(lifted, 0, 1))
    c = cairo.Context(surface)
    for label in labels:
        lettering.draw(c, label)
    surface.flush()
    return pixels[..., 2::-1]


def plan():
    """What stands where: the country, the room that is left on it, its names and the figures."""
    country = Country()
    boxes = ornaments.boxes() + vessels.boxes()
    figures = ornaments.draw(cairo.Context(cairo.RecordingSurface(cairo.CONTENT_COLOR, None)))
    room = layout.Room(country, boxes, figures)
    names, country.rivers = layout.arrange(room, country.rivers)
    layout.verify(names, figures, boxes)
    return country, room, names, figures


def make(path):
    """Draws the map and writes it to a path; gives back its names."""
    start = time.time()

    def step(what):
        print(f"{time.time() - start:6.1f} s  {what}", flush=True)

    country, room, names, figures = plan()
    step(f"land, heights and {len(country.rivers)} rivers, each strictly downhill")
    coast = contours.contours(country.land, 0, GRID, 0.8)
    shore = GRID * ndimage.distance_transform_edt(country.land <= 0)
    bare = washes.bare_sheet(country, coast, shore)
    step("washes")
    signs = plants.plant(country, room)
    step(f"{len(signs)} signs planted")
    surface, pixels = _surface(bare)
    c = cairo.Context(surface)
    c.save()
    graticule.trace_border(c)
    c.clip()
    waters.draw(c, country, coast, shore)
    scatter.draw(c, signs)
    c.restore()
    graticule.draw_net(c)
    graticule.draw_frame(c)
    ornaments.draw(c)
    vessels.draw(c)
    graticule.draw_crossings(c)
    marks.draw(c)
    surface.flush()
    step("ink")
    picture = _letter(
        pixels[..., 2::-1].astype(np.float32) / 255, bare, names + figures, country.rivers
    )
    # From top to bottom, not progressive: reading that would take a second copy in memory.
    Image.fromarray(np.ascontiguousarray(picture)).save(
        path, quality=QUALITY, subsampling=0, optimize=True
    )
    step(f"{path.name} ({path.stat().st_size} bytes)")
    return names
