"""Puts pictures that were drawn anew in the place of those that are shown.

    keep.py DRAWN_FOLDER PROJECT

Only those that differ so that it can be seen: the others stay as they are, to the byte. A picture is kept
in 256 colours where that cannot be told apart."""

import sys
from pathlib import Path

from PIL import Image

from comparison import LIMIT, difference

# Less than what the test would name, so that fewer colours alone never bring a picture near to that.
TOLD_APART = LIMIT * 3 / 4


def keep(drawn, shown):
    shown.parent.mkdir(parents=True, exist_ok=True)
    with Image.open(drawn) as image:
        full = image.convert("RGB")
    # By the reach of the colours, not by how often they come: a thin ring keeps its own.
    fewer = full.quantize(
        256, method=Image.Quantize.MAXCOVERAGE, kmeans=2, dither=Image.Dither.NONE
    )
    fewer.save(shown, optimize=True)
    if difference(shown, drawn, limit=TOLD_APART):
        full.save(shown, optimize=True)


def main(folder, project):
    for drawn in sorted(folder.rglob("*.png")):
        name = drawn.relative_to(folder)
        if difference(project / name, drawn):
            keep(drawn, project / name)
            print(f"{name}: made anew")


if __name__ == "__main__":
    main(Path(sys.argv[1]), Path(sys.argv[2]))
