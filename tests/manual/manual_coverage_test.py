"""What the program has and a copy of the manual lacks is named, of each kind.

    manual_coverage_test.py MANUAL_FOLDER VEYRUNA PROJECT"""

import functools
import shutil
import sys
import tempfile
import unittest
from pathlib import Path

from manual_coverage import lacking
from program import Program
from sayings import environment_of, sayings_of

MANUAL, VEYRUNA, PROJECT = Path(sys.argv[1]), sys.argv[2], Path(sys.argv[3])


class ManualCoverageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        home = tempfile.TemporaryDirectory()
        cls.addClassCleanup(home.cleanup)
        cls.program = Program(VEYRUNA, home.name)
        cls.program.lines = functools.cache(cls.program.lines)  # the same for every manual

    def expect(self, old, new, *words):
        """Where `new` stands for `old` on every page, a fault holds all these words."""
        with tempfile.TemporaryDirectory() as folder:
            manual = Path(folder) / "manual"
            shutil.copytree(MANUAL, manual)
            replaced = 0
            for page in manual.glob("*.html"):
                text = page.read_text(encoding="utf-8")
                replaced += text.count(old)
                page.write_text(text.replace(old, new), encoding="utf-8")
            self.assertGreater(replaced, 0, old)
            faults = list(lacking(manual, self.program, PROJECT))
            self.assertTrue(any(all(word in fault for word in words) for fault in faults), faults)

    def test_a_message_of_the_command(self):
        self.expect("is one word too many behind", "is too much", "cli/typed/grammar.cpp")

    def test_a_message_of_the_window(self):
        self.expect("Please enter a name.", "", "model/location_error.h")

    def test_a_message_of_parts(self):
        self.expect("which draws", "", "drawing_program.cpp says: which draws")

    def test_a_message_of_the_page(self):
        self.expect("The link is copied.", "", "web/page/saving.mjs")

    def test_a_column(self):
        self.expect("I-DEC", "D", "tables.html", "I-DEC")

    def test_a_code(self):
        self.expect(">FPL</th>", "></th>", "tables.html does not explain FPL")

    def test_a_member_of_a_file_for_programs(self):
        self.expect("local_<wbr>clock", "clock", "programs.html", "of events with local_clock")

    def test_what_a_member_is(self):
        self.expect("Above the horizon", "High", "of positions with altitude_degrees")

    def test_a_word_of_a_condition(self):
        self.expect("favours", "likes", "almanac.html does not explain favours")

    def test_a_file(self):
        self.expect("horoscope-black-and-white", "paper", "horoscope-black-and-white.svg")

    def test_a_line_of_the_panel_in_the_picture(self):
        self.expect("Umbrik is Impotent", "Umbrik is Weak", "does not say Impotent in words")

    def test_a_variable(self):
        self.expect("VEYRUNA_PAGE", "PAGE", "files.html", "VEYRUNA_PAGE")

    def test_what_is_looked_at(self):
        sources = {source for source, _ in sayings_of(PROJECT)}
        for room in ("ui/sidebar", "ui/map", "model", "export", "words", "cli/batch", "almanac"):
            self.assertTrue(any(source.startswith(room) for source in sources), room)
        self.assertGreater(len(set(sayings_of(PROJECT))), 350)
        self.assertIn("VEYRUNA_PAGE", set(environment_of(PROJECT)))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
