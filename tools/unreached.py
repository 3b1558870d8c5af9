#!/usr/bin/env python3
"""unreached.py COVERAGE.json REASONS.md LIST: writes into LIST, file by file, the lines that no test
reached, with their text, and the branches that were never taken.

Fails where REASONS.md does not name, `in/this/way.cpp`, a file that has such lines, or names one that
has none any more."""
import json
import re
import sys
from pathlib import Path


def unreached(file):
    """Line by line of a file: its number, what was not reached and whether that is the whole line."""
    for line in file["lines"]:
        if line.get("gcovr/noncode"):
            continue
        missed = sum(1 for branch in line["branches"] if branch["count"] == 0)
        if line["count"] == 0:
            yield line["line_number"], "line", True
        elif missed:
            yield line["line_number"], f"{missed} of {len(line['branches'])} branches", False


def main():
    data, reasons, listing = sys.argv[1:]
    said = []
    files = set()
    for file in json.loads(Path(data).read_text(encoding="utf-8"))["files"]:
        text = Path(file["file"]).read_text(encoding="utf-8").splitlines()
        found = list(unreached(file))
        if found:
            said.append(file["file"])
        said += [
            f"  {number:4} {what:>15}  {text[number - 1].strip()}" for number, what, _ in found
        ]
        if any(is_line for _, _, is_line in found):
            files.add(file["file"])
    Path(listing).write_text("\n".join(said) + "\n", encoding="utf-8")
    named = set(
        re.findall(r"`([a-z0-9_/]+\.(?:cpp|h))`", Path(reasons).read_text(encoding="utf-8"))
    )
    for file in sorted(files - named):
        print(f"{file} has lines that no test reaches, and {reasons} does not say why")
    for file in sorted(named - files):
        print(f"{file} stands in {reasons}, and all its lines are reached")
    return 1 if files != named else 0


if __name__ == "__main__":
    sys.exit(main())
