"""What the checks find."""

from dataclasses import dataclass


@dataclass
class Report:
    faults: int = 0

    def __call__(self, ok, text):
        """Print one finding and count it if it is a fault."""
        self.faults += not ok
        print(("ok     " if ok else "FAULT  ") + text)
