"""Names under the sun, the moon and the planets, on charts of a thousand random moments.

Lengths are units of the charts.
"""

import math
import random
from collections import Counter

from .. import wanderers
from ..lettering import ASCENT, DESCENT, name_box, text_width, whole
from ..plane import box_gap, box_to_point
from ..sphere import angles, to_equatorial
from ..wheel import INNER_PATH
from ..world import TAU
from .star_map import map_point
from .wheel import wheel_texts

CHARTS, SEED = 1000, 1000
DAYS = 720_000  # two thousand years
PLANET_SIZES = {"Bralo": 0.8, "Dunmor": 0.8, "Galvi": 2.4, "Pallox": 1.9}
SUN_SIZE, MOON_SIZE = 3.57, 5.0
COVERED_SIGNS = 0.10  # share of star maps on which a planet's label lies on a sign's name


def check(catalogue, report):
    rnd = random.Random(SEED)
    counts = Counter()
    for _ in range(CHARTS):
        t, lon = rnd.uniform(0, DAYS), rnd.uniform(-math.pi, math.pi)
        latitude = math.asin(rnd.uniform(-1, 1))  # evenly over the world
        counts.update(star_map_faults(catalogue, t, lon, latitude))
        counts.update(wheel_faults(catalogue, t))

    def say(key, limit, text):
        share = counts[key] / CHARTS
        report(share <= limit, "%d random %s %.1f %%" % (CHARTS, text, 100 * share))

    say("sign", COVERED_SIGNS, "star maps: a planet's label lies on a sign's name in")
    say("map", 1, "star maps: a label or disc of any wanderer touches any name in")
    say("wheel", 1, "wheels in colour: a planet's label runs into a name on its path in")


def star_map_faults(catalogue, t, lon, latitude):
    """What is covered on the map: "sign" by a planet's label, "map" anything by anything."""
    sidereal = wanderers.sidereal_angle(t, lon)

    def place(at):
        return map_point(to_equatorial(at), sidereal, latitude)

    names = {}
    for s in catalogue.names:
        spot = place(s.at)
        if spot:
            names[s] = name_box(s.name, s.mag, *spot)
    labels, discs = [], []
    for planet, at in wanderers.planets(t):
        spot = place(at)
        if spot:
            labels.append(marker_box(planet, PLANET_SIZES[planet], *map(whole, spot)))
            discs.append((PLANET_SIZES[planet], tuple(map(whole, spot))))
    faults = set()
    signs = [box for s, box in names.items() if s in catalogue.sign_names]
    if any(box_gap(a, b) < 0 for a in labels for b in signs):
        faults.add("sign")
    moon, sun = place(wanderers.moon(t)), place(wanderers.sun(t))
    if moon:
        x, y = moon
        labels.append((x + 10, y - 5 - ASCENT, x + 10 + text_width("IVRO"), y - 5 + DESCENT))
        discs.append((MOON_SIZE, moon))
    if sun:
        discs.append((SUN_SIZE, tuple(map(whole, sun))))
    for box in names.values():
        if any(box_gap(box, label) < 0 for label in labels):
            faults.add("map")
        if any(box_to_point(box, spot) < size for size, spot in discs):
            faults.add("map")
    return faults


def marker_box(name, size, x, y):
    """The label beside a dot of that size."""
    return (
        x + 2 * size,
        y - size - ASCENT,
        x + 2 * size + text_width(name),
        y - size + DESCENT,
    )


def wheel_faults(catalogue, t):
    """The planets' labels run on the inner path, as the southern names do."""
    for text in wheel_texts(catalogue.names, False)[0]:
        if text.radius == INNER_PATH:
            for planet, at in wanderers.planets(t):
                start = angles(at)[0] * INNER_PATH
                end = start + text_width(planet)
                for turn in (-TAU * INNER_PATH, 0, TAU * INNER_PATH):
                    if start + turn < text.end and text.start < end + turn:
                        return {"wheel"}
    return set()
