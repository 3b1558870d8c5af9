"""Measures the catalogue's files as they stand.

One line is printed for every property; those of the form come first, and only when
they are all in order is the sky itself measured.
"""

from .. import files
from . import forms, pairs, sky, star_map, wheel
from .loaded import load
from .report import Report


def run():
    """Print what is found; returns the number of faults."""
    report = Report()
    catalogue = load(report)
    forms.check(catalogue, report)
    pairs.check(catalogue, report)
    if report.faults:
        print("%d faults; the sky itself is measured once they are mended" % report.faults)
        return report.faults

    sky.check(catalogue, report)
    star_map.check(catalogue, report)
    wheel.check(catalogue, report)
    # No fault of the sky: another mathematical library may round a last digit otherwise.
    print(
        "note   the files %s what this tool draws"
        % ("are exactly" if files.as_drawn() else "DIFFER from")
    )
    print("%d faults" % report.faults if report.faults else "no faults")
    return report.faults
