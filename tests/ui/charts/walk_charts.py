"""Walks the charts of the window from outside, as a screen reader does (AT-SPI): every body, chord, named
star and line of the panel must be met with its name and a place, and the charts with their descriptions.
Prints a line for whatever is missing or too much; exit status 1 where there is something.

    xvfb-run -a dbus-run-session -- /usr/bin/python3 walk_charts.py PROBE"""

import collections
import os
import subprocess
import sys
import tempfile
import time

import pyatspi

CHART_TABS = {"Star map": 0, "Horoscope": 1}
PATIENCE_SECONDS = 120


def find(node, name):
    """The part of this name at or below a node, or None."""
    if node is None:
        return None
    if node.name == name and node.getRole() != pyatspi.ROLE_PAGE_TAB:
        return node
    for child in node:
        found = find(child, name)
        if found is not None:
            return found
    return None


def application(process_id):
    """The program as the desktop knows it, waited for."""
    end = time.monotonic() + PATIENCE_SECONDS
    while time.monotonic() < end:
        for program in pyatspi.Registry.getDesktop(0):
            if program is not None and program.get_process_id() == process_id:
                return program
        time.sleep(0.1)
    sys.exit("the window is not on the bus")


def expected_parts(probe):
    """What the window says: for each chart its description and how often each part's name occurs."""
    descriptions, parts = {}, collections.defaultdict(collections.Counter)
    for line in probe.stdout:
        if line == "\n":
            break
        chart, text = line.rstrip("\n").split("\t", 1)
        if chart in descriptions:
            parts[chart][text] += 1
        else:
            descriptions[chart] = text
    return descriptions, parts


def shown(probe, tab):
    """Has the window show a tab."""
    probe.stdin.write(f"{tab}\n")
    probe.stdin.flush()
    if probe.stdout.readline() != "shown\n":
        sys.exit("the window has gone")


def faults_of(chart, name, description, parts):
    """What is wrong with a chart as it is met."""
    if chart is None:
        return [f"no chart is called {name}"]
    faults = []
    if chart.description != description:
        faults.append(f"{name} is described as {chart.description!r}")
    met = collections.Counter(child.name for child in chart)
    faults += [f"{name} lacks {part}" for part in parts - met]
    faults += [f"{name} has too much: {part}" for part in met - parts]
    for child in chart:
        place = child.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        if place.width <= 0 or place.height <= 0:
            faults.append(f"{name} has nowhere {child.name}")
    print(f"{name}: {sum(met.values())} of {sum(parts.values())} parts met")
    print(f"  {chart.description}")
    return faults


def walk(probe):
    """What is wrong with the charts of the window."""
    descriptions, parts = expected_parts(probe)
    program = application(probe.pid)
    faults = []
    for name, tab in CHART_TABS.items():
        shown(probe, tab)
        faults += faults_of(find(program, name), name, descriptions.get(name), parts[name])
    return faults


def main():
    with tempfile.TemporaryDirectory() as home:
        alone = {"XDG_CONFIG_HOME": home, "XDG_DATA_HOME": home}
        spoken = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_QPA_PLATFORM": "xcb"}
        probe = subprocess.Popen(
            sys.argv[1:2],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
            encoding="utf-8",
            env=os.environ | alone | spoken,
        )
        try:
            faults = walk(probe)
        finally:
            probe.stdin.close()
            probe.wait(PATIENCE_SECONDS)
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
