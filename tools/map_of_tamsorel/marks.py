"""The marks of the thirteen places: a red disc in a pale ring with a dark rim."""

import numpy as np

from .paint import INK, rgb
from .world import PLACES

DISC, RING, RIM = 8.5, 14.0, 16.5  # radii in pixels
ROOM = 43.0  # pixels around the middle where no letter stands: a ring is drawn there on screens
DISC_COLOUR, RING_COLOUR = rgb("#c22a1c"), rgb("#f7eed8")


def draw(c):
    for place in PLACES:
        for radius, colour in ((RIM, INK), (RING, RING_COLOUR), (DISC, DISC_COLOUR)):
            c.arc(*place.pixel, radius, 0, 2 * np.pi)
            c.set_source_rgb(*colour)
            c.fill()
