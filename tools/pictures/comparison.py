"""How a picture as it is drawn now is compared with the one that is shown: square by square, so that what
the eye cannot tell apart, such as a picture in fewer colours, is the same.

    comparison.py SHOWN DRAWN SIDE LIMIT

Says where the first square of SIDE pixels lies whose mean colours differ by more than LIMIT of 255; exit
status 1 where there is one."""

import sys
from pathlib import Path

import numpy
from PIL import Image

SIDE, LIMIT = 4, 20


def square_means(path, side):
    """The mean red, green and blue of each whole square, as an array of rows."""
    with Image.open(path) as image:
        pixels = numpy.asarray(image.convert("RGB"), float)
    rows, columns = pixels.shape[0] // side, pixels.shape[1] // side
    whole = pixels[: rows * side, : columns * side]
    return whole.reshape(rows, side, columns, side, 3).mean((1, 3))


def size_of(path):
    with Image.open(path) as image:
        return image.size


def difference(shown, drawn, side=SIDE, limit=LIMIT):
    """In words what can be told apart of two pictures; empty where nothing can."""
    if not Path(shown).is_file():
        return "is missing"
    if size_of(shown) != size_of(drawn):
        was, now = ("{} x {}".format(*size_of(path)) for path in (shown, drawn))
        return f"is {was} pixels and would now be {now}"
    apart = numpy.abs(square_means(shown, side) - square_means(drawn, side)).max(2) > limit
    if not apart.any():
        return ""
    row, column = numpy.argwhere(apart)[0]
    return (
        f"is older than what it shows: {apart.sum()} of {apart.size} squares differ,"
        f" the first at {column * side},{row * side}"
    )


if __name__ == "__main__":
    words = difference(sys.argv[1], sys.argv[2], int(sys.argv[3]), float(sys.argv[4]))
    print(words)
    sys.exit(1 if words else 0)
