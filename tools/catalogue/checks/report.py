"""What the checks find."""

from dataclasses import dataclass
from typing import Callable


@dataclass
class Report:
    say: Callable[[str], None] = print  # where the findings go, a line each
    faults: int = 0

    def __call__(self, ok, text):
        """Say one finding and count it if it is a fault."""
        self.faults += not ok
        self.say(("ok     " if ok else "FAULT  ") + text)
