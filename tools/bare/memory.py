"""How much memory a process takes with all that it has started.

Watched rather than limited by the kernel: that works in any container, without a control group of one's own.
What is taken and given back between two looks is not seen.
"""

import os


def parents():
    """The parent of each process of this machine."""
    found = {}
    for name in os.listdir("/proc"):
        try:
            with open(f"/proc/{int(name)}/stat", encoding="utf-8", errors="replace") as file:
                found[int(name)] = int(file.read().rpartition(")")[2].split()[1])
        except (ValueError, OSError):
            pass  # no process, or one that has ended meanwhile
    return found


def children(first):
    return [child for child, parent in parents().items() if parent == first]


def family(first):
    """The process `first` with all that descend from it."""
    parent_of = parents()
    members = {first}
    grown = True
    while grown:
        more = {child for child, parent in parent_of.items() if parent in members} - members
        members |= more
        grown = bool(more)
    return members


def megabytes_of(process):
    """What it has in memory; of what several share, its part."""
    try:
        with open(f"/proc/{process}/smaps_rollup", encoding="utf-8") as file:
            for line in file:
                if line.startswith("Pss:"):
                    return int(line.split()[1]) / 1024
    except OSError:
        pass
    return 0


def taken_by_family(first):
    return sum(megabytes_of(member) for member in family(first))
