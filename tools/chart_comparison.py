"""Compares the command's charts with those of headless Chromium; tools/compare_charts runs it.

    chart_comparison.py VEYRUNA FOLDER MOMENTS SEED
"""

import random
import statistics
import subprocess
import sys
import time
from dataclasses import dataclass
from pathlib import Path

import numpy
from PIL import Image

SQUARE = 4  # pixels
TENTH = 25.5  # of a channel
SHEET = 10  # charts in one picture of the browser, which has room for 16384 pixels
SCALES = (1, 2)
PDF_RUNS = 5


@dataclass(frozen=True)
class Chart:
    name: str
    command: tuple
    width: int  # points, as is its page
    height: int


CHARTS = (
    Chart("star map", ("star-map",), 720, 720),
    Chart("horoscope", ("horoscope",), 1440, 760),
    Chart("black and white", ("horoscope", "--bw"), 1440, 760),
)


def random_sky(dice):
    """A moment and a place, as options."""
    return (
        f"--year={dice.randint(1, 3000)}",
        f"--month={dice.randint(1, 12)}",
        f"--day={dice.randint(1, 30)}",
        f"--hour={dice.uniform(0, 24):.4f}",
        f"--lat={dice.uniform(-90, 90):.4f}",
        f"--long={dice.uniform(-180, 180):.4f}",
    )


def browse(*arguments):
    subprocess.run(
        [
            "chromium",
            "--headless",
            "--no-sandbox",
            "--disable-gpu",
            "--hide-scrollbars",
            *arguments,
        ],
        check=True,
        capture_output=True,
        timeout=300,
    )


class Comparison:
    def __init__(self, veyruna, folder):
        self._veyruna, self._folder = veyruna, folder

    def _write(self, chart, sky, file, *options):
        subprocess.run([self._veyruna, *sky, *chart.command, "-o", file, *options], check=True)

    def _ours(self, chart, sky, scale):
        file = self._folder / "ours.png"
        self._write(chart, sky, file, f"--size={chart.width * scale}")
        return Image.open(file).convert("RGB").copy()

    def _browsers(self, chart, skies, scale):
        """The browser's pictures of several moments, drawn one below the other."""
        svg = self._folder / "chart.svg"
        charts = []
        for sky in skies:
            self._write(chart, sky, svg)
            charts.append(svg.read_text(encoding="utf-8"))
        page = self._folder / "sheet.html"
        page.write_text(
            '<!DOCTYPE html><html><head><meta charset="utf-8"><style>body { margin: 0; } '
            f"svg {{ display: block; width: {chart.width}px; height: {chart.height}px; }}"
            "</style></head><body>" + "\n".join(charts) + "</body></html>",
            encoding="utf-8",
        )
        sheet = self._folder / "sheet.png"
        browse(
            f"--force-device-scale-factor={scale}",
            f"--window-size={chart.width},{chart.height * len(skies)}",
            f"--screenshot={sheet}",
            page.as_uri(),
        )
        picture = Image.open(sheet).convert("RGB")
        width, height = chart.width * scale, chart.height * scale
        if picture.size != (width, height * len(skies)):
            raise RuntimeError(f"the browser's picture is of {picture.size} pixels")
        return [
            picture.crop((0, row * height, width, (row + 1) * height)) for row in range(len(skies))
        ]

    def shares(self, chart, skies, scale):
        """Of each moment, the share of squares that differ."""
        found = []
        for first in range(0, len(skies), SHEET):
            some = skies[first : first + SHEET]
            for sky, theirs in zip(some, self._browsers(chart, some, scale)):
                ours = self._ours(chart, sky, scale)
                number = len(found)
                name = f"{chart.name.replace(' ', '-')}-{number}-{scale}x"
                theirs.save(self._folder / f"{name}-browser.png")
                ours.save(self._folder / f"{name}.png")
                found.append(different(ours, theirs))
        return found

    def pdf_times(self, chart, sky):
        """Seconds from start to end of the process, ours and the browser's, medians in turns."""
        page, pdf = self._folder / "page.html", self._folder / "page.pdf"
        self._write(chart, sky, page)
        ours, theirs = [], []
        for _ in range(PDF_RUNS):
            ours.append(timed(lambda: self._write(chart, sky, pdf)))
            theirs.append(timed(lambda: browse(f"--print-to-pdf={pdf}", page.as_uri())))
        return statistics.median(ours), statistics.median(theirs)


def timed(act):
    start = time.monotonic()
    act()
    return time.monotonic() - start


def different(ours, theirs):
    """The share of squares in which the mean of a channel is more than a tenth off."""

    def means(picture):
        pixels = numpy.asarray(picture, dtype=float)
        rows, columns = (length // SQUARE for length in pixels.shape[:2])
        whole = pixels[: rows * SQUARE, : columns * SQUARE]
        return whole.reshape(rows, SQUARE, columns, SQUARE, 3).mean(axis=(1, 3))

    return float((numpy.abs(means(ours) - means(theirs)).max(axis=2) > TENTH).mean())


def main():
    veyruna, folder, moments, seed = sys.argv[1], Path(sys.argv[2]), *map(int, sys.argv[3:5])
    dice = random.Random(seed)
    skies = [random_sky(dice) for _ in range(moments)]
    comparison = Comparison(veyruna, folder.resolve())
    print(f"{moments} moments, seed {seed}: squares that differ, in percent")
    print(f"{'':16} {'scale':>5} {'mean':>8} {'worst':>8}  worst moment")
    for chart in CHARTS:
        for scale in SCALES:
            found = comparison.shares(chart, skies, scale)
            worst = max(range(moments), key=found.__getitem__)
            print(
                f"{chart.name:16} {scale:>4}× {100 * statistics.mean(found):8.4f} "
                f"{100 * found[worst]:8.4f}  number {worst}: {' '.join(skies[worst])}",
                flush=True,
            )
    print(f"\nA PDF, from start to end of the process, medians of {PDF_RUNS} in turns")
    tables = (
        Chart("tables, 1 page", ("hourly",), 612, 792),
        Chart("tables, 5 pages", ("yearly",), 612, 792),
    )
    for document in CHARTS + tables:
        ours, theirs = comparison.pdf_times(document, skies[0])
        print(
            f"{document.name:16} {1000 * ours:6.0f} ms  browser {1000 * theirs:6.0f} ms"
            f"  ratio {ours / theirs:.3f}",
            flush=True,
        )


if __name__ == "__main__":
    main()
