"""A command that is watched: how long it takes, of how many processors' time, and how much memory."""

import os
import signal
import subprocess
import time
from typing import NamedTuple

from . import memory

LOOKS_APART = 0.5  # seconds


class Outcome(NamedTuple):
    status: str  # the exit status, or why the command was ended
    seconds: float
    processor_seconds: float  # with all that it has started and waited for
    most_megabytes: float
    is_well: bool


def watch(command, log, megabytes, minutes, screen):
    """Runs `command` (unshare, whose one child is the first process of the root) to its end or until a
    limit is reached; with a screen, until what it shows stands still. 0 megabytes are no limit."""
    start = time.monotonic()
    running = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=log, stderr=log)
    most, stood, why, ended = 0.0, None, None, (0, 0, None)
    try:
        while not ended[0] and why is None and stood is None:
            time.sleep(LOOKS_APART)
            most = max(most, memory.taken_by_family(running.pid))
            stood = screen.stands_since() if screen else None
            if megabytes and most > megabytes:
                why = f"ended: it takes {most:.0f} MB of {megabytes}"
            if time.monotonic() - start > minutes * 60:
                why = f"ended after {minutes} minutes"
            ended = os.wait4(running.pid, os.WNOHANG)
    finally:
        if not ended[0]:
            # The first process of the root takes all others with it; what they took is told by its parent.
            for first in memory.children(running.pid):
                os.kill(first, signal.SIGKILL)
            ended = os.wait4(running.pid, 0)
        running.returncode = os.waitstatus_to_exitcode(ended[1])
    usage = ended[2]
    if stood:
        why = "the window stands"
    return Outcome(
        why or str(running.returncode),
        (stood or time.monotonic()) - start,
        usage.ru_utime + usage.ru_stime,
        most,
        bool(stood) or (why is None and not screen and running.returncode == 0),
    )
