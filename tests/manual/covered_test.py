"""Nothing is cut or covered on the charts that README and manual show; the check of it can fail.

    covered_test.py MANUAL_FOLDER VEYRUNA"""

import subprocess
import sys
import unittest
from pathlib import Path

MANUAL, VEYRUNA = Path(sys.argv[1]).absolute(), sys.argv[2]
TOOLS = MANUAL.parents[1] / "tools"
sys.path.insert(0, str(TOOLS))

from catalogue.covered import Chart, faults  # noqa: E402


def moments():
    """What the tools that take the pictures read, by its name."""
    lines = (TOOLS / "pictures/moments").read_text(encoding="utf-8").splitlines()
    rows = (line.split() for line in lines if line[:1] != "#")
    return {name: arguments for name, *arguments in rows}


def chart(moment, *document):
    command = [VEYRUNA, *moments()[moment], *document]
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


class CoveredTest(unittest.TestCase):
    def test_the_star_map_of_the_first_tour_is_clean(self):
        self.assertEqual(list(faults(chart("first-tour", "star-map"))), [])

    def test_the_wheel_that_is_shown_is_clean(self):
        self.assertEqual(list(faults(chart("wheel", "horoscope"))), [])

    def test_what_is_shown_of_it_in_black_and_white_is_clean(self):
        view = [float(length) for length in moments()["wheel-by-half"]]
        self.assertEqual(list(faults(chart("wheel", "horoscope", "--bw"), view)), [])

    def test_every_name_is_read_off_the_charts(self):
        wheel = {text.name for text in Chart(chart("wheel", "horoscope")).texts}
        planets = {"Bralo", "Dunmor", "Galvi", "Pallox"}
        self.assertEqual(len(wheel), 37 + 4 + 1)  # the moon stands south, outside
        self.assertLessEqual(planets | {"GEN", "Gimbral", "Okrim", "Hathel"}, wheel)

    def test_a_chord_through_a_name_is_told(self):
        found = list(faults(chart("first-tour", "horoscope")))
        self.assertIn("Gimbral is cut by a pink line", found)
        self.assertIn("Bralo and Galvi lie on one another", found)

    def test_in_black_and_white_the_signs_share_the_path_of_the_planets(self):
        found = list(faults(chart("wheel", "horoscope", "--bw")))
        self.assertEqual(found, ["Pallox and Quelin lie on one another"])

    def test_a_name_at_the_edge_of_the_picture_or_on_the_rim_is_told(self):
        wheel = chart("wheel", "horoscope")
        self.assertIn("Raumel is cut at the picture's edge", faults(wheel, (58, -10, 300, 380)))
        self.assertIn("Zelmi is cut at the rim", list(faults(moved(wheel, "Zelmi", 221))))

    def test_a_dot_and_the_circle_of_the_latitude_are_told(self):
        wheel = chart("wheel", "horoscope")
        dot = '<circle cx="130" cy="206" r="2.00" fill="#f4f4f3" />'
        found = list(faults(wheel.replace("</g>\n<circle", "</g>\n" + dot + "\n<circle")))
        self.assertTrue(any(f.startswith("Zelmi lies on a #f4f4f3 dot") for f in found), found)
        found = list(faults(moved(wheel, "Zelmi", -4)))
        self.assertIn("Zelmi is cut by a circle of the latitude", found)


def moved(svg, name, right):
    """The chart with an upright name so many units to the right."""
    lines = svg.splitlines()
    i = next(k for k, line in enumerate(lines) if line.endswith(">%s</text>" % name))
    x = lines[i].split('"')[1]
    lines[i] = lines[i].replace('"%s"' % x, '"%g"' % (float(x) + right), 1)
    return "\n".join(lines)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
