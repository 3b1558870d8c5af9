"""The figures on the sphere."""

import math
from dataclasses import dataclass
from functools import cached_property

from . import drawings
from .lettering import dot_size
from .sphere import angle, arc_distance, mean, on_page, vec
from .wheel import on_whole_units
from .world import sign_range


@dataclass(frozen=True)
class Star:
    at: tuple  # ecliptic vector at which it is seen
    mag: float


@dataclass
class Figure:
    name: str
    depicts: str
    stars: list  # of anything that has `at` and `mag`
    lines: list  # pairs of indices of stars

    @property
    def code(self):
        return self.name.upper()

    @cached_property
    def centre(self):
        return mean([s.at for s in self.stars])

    @cached_property
    def span(self):
        """Degrees from star to star where they stand farthest apart."""
        return max(angle(a.at, b.at) for a in self.stars for b in self.stars)

    @cached_property
    def arcs(self):
        return [(self.stars[a].at, self.stars[b].at) for a, b in self.lines]

    def distance(self, p):
        """Degrees from p to the figure's nearest line or the edge of its nearest dot.

        A star's dot is drawn in units of the star map, two to a degree.
        """
        return min(
            min(arc_distance(p, a, b) for a, b in self.arcs),
            min(angle(p, s.at) - dot_size(s.mag) / 2 for s in self.stars),
        )


def _figure(drawing, place):
    stars = [Star(on_whole_units(place(x, y)), mag) for x, y, mag in drawing.stars]
    lines = [(int(a) - 1, int(b) - 1) for a, b in drawing.lines.split()]
    return Figure(drawing.name, drawing.depicts, stars, lines)


def zodiac_figure(i):
    """The figure of a sign; its drawing is in longitudes and latitudes, to fit the sign."""
    start, end = sign_range(i)
    middle = math.degrees((start + end) / 2)
    return _figure(drawings.ZODIAC[i], lambda x, y: vec(math.radians(middle - x), math.radians(-y)))


def other_figure(drawing):
    origin = vec(math.radians(drawing.lon), math.radians(drawing.lat))
    return _figure(drawing, lambda x, y: on_page(origin, x * drawing.size, y * drawing.size))


def zodiac_figures():
    return [zodiac_figure(i) for i in range(len(drawings.ZODIAC))]


def other_figures():
    return [other_figure(drawing) for drawing in drawings.OTHERS]
