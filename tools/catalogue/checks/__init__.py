"""Measures a catalogue, as the texts of its two tables.

One line is said for every property; those of the form come first, and only when
they are all in order is the sky itself measured.
"""

from . import forms, pairs, random_charts, sky, spacing, star_map, wheel
from .loaded import load


def measure(stars, lines, report):
    """Measure the bytes of the star table and of the line table."""
    catalogue = load(stars, lines, report)
    forms.check(catalogue, report)
    pairs.check(catalogue, report)
    if report.faults:
        report.say("%d faults; the sky itself is measured once they are mended" % report.faults)
        return

    sky.check(catalogue, report)
    spacing.check(catalogue, report)
    star_map.check(catalogue, report)
    wheel.check(catalogue, report)
    random_charts.check(catalogue, report)
