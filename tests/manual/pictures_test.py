"""Every picture of README and manual that needs no browser is drawn anew and compared with the one that is
shown: none is older than what it shows, and none is drawn by nobody.

    pictures_test.py PROJECT MAKE_PICTURES"""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from PIL import Image

PROJECT, MAKER = Path(sys.argv[1]), Path(sys.argv[2])
sys.path.insert(0, str(PROJECT / "tools/pictures"))

from comparison import difference  # noqa: E402  (it lies beside the tool that makes the pictures)

# Of the page on a phone: tests/web/page/picture_test.mjs.
IN_A_BROWSER = {"docs/images/page-phone.png", "docs/manual/images/page-phone.png"}


class PicturesTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        cls.drawn = Path(cls.folder.name) / "drawn"
        own = {f"XDG_{kind}_HOME": cls.folder.name for kind in ("CACHE", "CONFIG", "DATA")}
        unscaled = {name: value for name, value in os.environ.items() if not name.startswith("QT_")}
        subprocess.run(
            [MAKER, cls.drawn],
            check=True,
            env=unscaled
            | own
            | {
                "QT_QPA_PLATFORM": "offscreen",
                "FONTCONFIG_FILE": str(PROJECT / "tools/pictures/fonts.conf"),
            },
        )
        cls.names = sorted(str(path.relative_to(cls.drawn)) for path in cls.drawn.rglob("*.png"))

    def test_none_is_older_than_what_it_shows(self):
        self.assertGreater(len(self.names), 10)
        for name in self.names:
            with self.subTest(name):
                words = difference(PROJECT / name, self.drawn / name)
                if words:
                    self.fail(f"{name} {words}; tools/make_pictures makes it anew")

    def test_none_is_drawn_by_nobody(self):
        shown = {
            str(path.relative_to(PROJECT))
            for folder in ("docs/images", "docs/manual/images")
            for path in (PROJECT / folder).iterdir()
        }
        self.assertEqual(shown - IN_A_BROWSER, set(self.names))

    def test_what_is_changed_is_told(self):
        name = "docs/manual/images/window-planets.png"
        changed = Path(self.folder.name) / "changed.png"
        with Image.open(self.drawn / name) as image:
            image.load()
        image.paste((90, 90, 90), (300, 320, 303, 324))  # as small as a letter
        image.save(changed)
        self.assertIn("older", difference(changed, self.drawn / name))
        image.resize((640, 400)).save(changed)
        self.assertIn("is 640 x 400 pixels", difference(changed, self.drawn / name))
        shutil.copy(self.drawn / name, changed)
        self.assertEqual(difference(changed, self.drawn / name), "")
        self.assertIn("missing", difference(Path(self.folder.name) / "none.png", changed))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
