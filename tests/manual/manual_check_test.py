"""The check of the manual finds each kind of fault when it is put into a copy of the manual.

    manual_check_test.py MANUAL_FOLDER VEYRUNA"""

import shutil
import sys
import tempfile
import unittest
from pathlib import Path

from manual_check import faults_of
from program import Program

MANUAL, VEYRUNA = Path(sys.argv[1]), sys.argv[2]


class ManualCheckTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        home = tempfile.TemporaryDirectory()
        cls.addClassCleanup(home.cleanup)
        cls.program = Program(VEYRUNA, home.name, MANUAL.glob("*.csv"))
        cls.before = set(faults_of(MANUAL, cls.program))

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.manual = Path(folder.name) / "manual"
        shutil.copytree(MANUAL, self.manual)

    def expect(self, *words):
        """One new fault holds all these words."""
        new = set(faults_of(self.manual, self.program)) - self.before
        self.assertTrue(any(all(word in fault for word in words) for fault in new), new)

    def replace(self, page, old, new):
        path = self.manual / page
        text = path.read_text(encoding="utf-8")
        self.assertIn(old, text)
        path.write_text(text.replace(old, new), encoding="utf-8")

    def test_missing_page(self):
        (self.manual / "map.html").unlink()
        self.expect("index.html", "map.html is missing")

    def test_missing_picture(self):
        (self.manual / "images/wheel-parts.png").unlink()
        self.expect("horoscope.html", "images/wheel-parts.png is missing")

    def test_missing_anchor(self):
        self.replace("tables.html", 'id="clock"', 'id="watch"')
        self.expect("questions.html", "#clock is no anchor")

    def test_page_nobody_reaches(self):
        shutil.copy(self.manual / "map.html", self.manual / "secret.html")
        self.expect("secret.html cannot be reached")

    def test_order_of_the_pages(self):
        self.replace(
            "map.html", '<a href="tables.html" rel="prev">', '<a href="time.html" rel="prev">'
        )
        self.expect("map.html does not come after tables.html")

    def test_link_to_the_outside(self):
        self.replace("map.html", "<h1>", '<h1><a href="https://example.org/">x</a>')
        self.expect("map.html leads out of the manual")

    def test_script(self):
        self.replace("map.html", "<h1>", "<script>1</script><h1>")
        self.expect("map.html holds a script")

    def test_element_left_open(self):
        self.replace("map.html", "</h1>", "")
        self.expect("map.html closes")

    def test_example_the_program_does_not_write(self):
        self.replace("tables.html", "151:05", "151:06")
        self.replace("session.html", "081:30", "081:31")  # its command is shown
        self.expect("tables.html", "does not write", "151:06")
        self.expect("session.html", "does not write", "081:31")

    def test_example_that_leaves_no_file(self):
        self.replace("command-line.html", "-o birth.svg", "-o berth.svg")
        self.expect("command-line.html", "does not write birth.svg")

    def test_lacking_option(self):
        self.replace("command-line.html", ">--step DAYS</code>", "></code>")
        self.expect("lacks --step")

    def test_invented_command(self):
        self.replace("command-line.html", "<code>hourly</code></th>", "<code>weekly</code></th>")
        self.expect("invents weekly")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
