"""A screen for a window in the root, and the moment from which it shows what it will show."""

import glob
import os
import shutil
import subprocess
import tempfile
import time

SOCKETS = "/tmp/.X11-unix"  # shared with the root


class Screen:
    """A virtual screen without a desktop; `display` is what DISPLAY is set to."""

    def __init__(self):
        self.folder = tempfile.mkdtemp()
        reading, writing = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-fbdir", self.folder, "-ac", "-noreset"]
            + ["-screen", "0", "1280x800x24"],
            pass_fds=[writing],
            stderr=subprocess.DEVNULL,
        )
        os.close(writing)
        with os.fdopen(reading) as number:
            self.display = ":" + number.readline().strip()
        self.empty = self.look()
        self.last = self.empty
        self.changed = None

    def look(self):
        with open(glob.glob(f"{self.folder}/Xvfb_screen0")[0], "rb") as pixels:
            return pixels.read()

    def stands_since(self, rest=2.0):
        """When the screen last changed, if that is `rest` seconds ago and it is not empty; else None."""
        seen = self.look()
        now = time.monotonic()
        if seen != self.last:
            self.last, self.changed = seen, now
        if self.changed is not None and self.last != self.empty and now - self.changed >= rest:
            return self.changed
        return None

    def save(self, path):
        """What is seen, as a dump of the X server (`convert xwd:FILE FILE.png`)."""
        with open(path, "wb") as file:
            file.write(self.last)

    def end(self):
        self.server.terminate()
        self.server.wait()
        shutil.rmtree(self.folder, ignore_errors=True)
