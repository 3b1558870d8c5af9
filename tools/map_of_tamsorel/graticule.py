"""The net of parallels and meridians every five degrees, its crossings, and the frame."""

import cairo
import numpy as np

from .paint import INK, rgb
from .world import EAST, HEIGHT, NORTH, SOUTH, WEST, WIDTH, to_degrees, to_pixel

STEP = 5
DOT, PEARL = 3.6, 7.0  # radii in pixels: the dot, and the pale disc under it
DOT_COLOUR, PEARL_COLOUR = rgb("#1d3557"), rgb("#f4ead0")
CLEAR = 12.0  # pixels around a crossing where nothing else is drawn
INSET = 8.0  # crossings nearer to the sheet's edge carry no dot
BAND = 13.0  # pixels, the frame's graduated band


def meridian(lon, count=241):
    lat = np.linspace(SOUTH, NORTH, count)
    return np.stack(to_pixel(np.full(count, float(lon)), lat), axis=1)


def crossings():
    """(longitude, latitude, x, y) of every crossing on the sheet, the frame's among them."""
    found = []
    for lat in range(int(SOUTH), int(NORTH) + 1, STEP):
        for lon in range(int(WEST), int(EAST) + 1, STEP):
            x, y = (float(v) for v in to_pixel(lon, lat))
            if INSET <= x <= WIDTH - INSET and INSET <= y <= HEIGHT - INSET:
                found.append((lon, lat, x, y))
    return found


def trace_border(c):
    """Adds the border of the valid area to the path."""
    west, east = meridian(WEST), meridian(EAST)
    points = np.concatenate([west, east[::-1]])
    c.move_to(*points[0])
    for point in points[1:]:
        c.line_to(*point)
    c.close_path()


def valid(x, y):
    lon, lat = to_degrees(x, y)
    return (lat >= SOUTH) & (lat <= NORTH) & (np.abs(lon) <= EAST)


def draw_net(c):
    c.save()
    trace_border(c)
    c.clip()
    for lat in range(int(SOUTH) + STEP, int(NORTH), STEP):
        y = float(to_pixel(0, lat)[1])
        c.move_to(0, y)
        c.line_to(WIDTH, y)
    for lon in range(int(WEST) + STEP, int(EAST), STEP):
        line = meridian(lon)
        c.move_to(*line[0])
        for point in line[1:]:
            c.line_to(*point)
    c.set_source_rgba(*rgb("#4a3a2c"), 0.36)
    c.set_line_width(1.5)
    c.stroke()
    c.restore()


WAYS_OUT = {SOUTH: np.array([0, 1.0]), NORTH: np.array([0, -1.0])}


def _outward(lon, lat):
    """A point of the frame's side and the way out of the area."""
    x, y = to_pixel(lon, lat)
    ahead = np.array(to_pixel(lon, lat + 0.01)) - np.array([x, y])
    normal = np.array([-ahead[1], ahead[0]]) / np.hypot(*ahead)
    return np.array([x, y]), normal if lon > 0 else -normal


def corner(lon, lat, wide=1.0):
    """Where the bands of both sides meet outside a corner, so many pixels out of either."""
    point, side = _outward(lon, lat)
    return point + wide * (side + WAYS_OUT[lat]) / (1 + side @ WAYS_OUT[lat])


def draw_frame(c):
    """The border line, and outside of it a band of dark and light degrees, joined at the corners."""

    def joined(lon, lat):
        return np.array(to_pixel(lon, lat)), corner(lon, lat) - np.array(to_pixel(lon, lat))

    edges = []
    for lon in (WEST, EAST):
        side = [
            [_outward(lon, lat + k / 6) for k in range(7)] for lat in range(int(SOUTH), int(NORTH))
        ]
        side[0][0] = joined(lon, SOUTH)
        side[-1][-1] = joined(lon, NORTH)
        edges += side
    for lat, way in WAYS_OUT.items():
        row = [
            [(np.array(to_pixel(lon + k, lat)), way) for k in (0, 1)]
            for lon in range(int(WEST), int(EAST))
        ]
        row[0][0] = joined(WEST, lat)
        row[-1][-1] = joined(EAST, lat)
        edges += row
    for number, edge in enumerate(edges):
        inner = [p + n * 4 for p, n in edge]
        outer = [p + n * BAND for p, n in edge]
        c.move_to(*inner[0])
        for p in inner[1:] + outer[::-1]:
            c.line_to(*p)
        c.close_path()
        c.set_source_rgb(*(rgb("#5a4330") if number % 2 else rgb("#f1e7cd")))
        c.fill_preserve()
        c.set_source_rgb(*INK)
        c.set_line_width(1.0)
        c.stroke()
    trace_border(c)
    c.set_source_rgb(*INK)
    c.set_line_width(2.4)
    c.set_line_join(cairo.LINE_JOIN_MITER)
    c.stroke()


def draw_crossings(c):
    for _, _, x, y in crossings():
        for radius, colour in ((PEARL, PEARL_COLOUR), (DOT, DOT_COLOUR)):
            c.arc(x, y, radius, 0, 2 * np.pi)
            c.set_source_rgb(*colour)
            c.fill()
