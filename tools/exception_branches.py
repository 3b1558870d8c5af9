#!/usr/bin/env python3
"""exception_branches.py BUILD COVERAGE.json: takes those branches out of what gcovr has read that only
an exception leads to and that none has led to.

GCC takes a text or a list that was begun to pieces again where an exception passes it, and every step of
that is a branch. gcovr leaves out the branch that an exception takes, but not those behind it; gcov knows
them. A line whose branches the two count differently is left as it is.
"""
import collections
import json
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

BLOCK = re.compile(r"^\s*(\S+):\s*\d+-block\s+\d+$")
LINE = re.compile(r"^\s*\S+:\s*(\d+):")
BRANCH = re.compile(r"^branch\s+\d+ (.*)$")

# All that is never run here is what an exception would have led to.
SAMPLE = (
    "struct Room { ~Room(); }; Room::~Room() {}\nvoid leave(); int main() { Room room; leave(); }\n"
)


def gcov(data):
    command = ["gcov", "-a", "-b", "-c", "--stdout", str(data)]
    return subprocess.run(
        command, capture_output=True, text=True, check=True, cwd=data.parent
    ).stdout


def mark_of_exceptions():
    """How gcov marks a block that was never run and that only an exception leads to: its manual has it
    the wrong way round for GCC 12, so it is tried."""
    with tempfile.TemporaryDirectory() as folder:
        for name, text in (("sample.cpp", SAMPLE), ("leave.cpp", "void leave() {}\n")):
            Path(folder, name).write_text(text, encoding="utf-8")
        subprocess.run(
            ["g++", "-O0", "--coverage", "sample.cpp", "leave.cpp", "-o", "sample"],
            cwd=folder,
            check=True,
        )
        subprocess.run([f"{folder}/sample"], cwd=folder, check=True)
        (data,) = Path(folder).glob("*sample.gcda")
        blocks = [BLOCK.match(row) for row in gcov(data).splitlines()]
    marks = {block[1] for block in blocks if block and not block[1].rstrip("*").isdigit()}
    if len(marks) != 1:
        sys.exit(
            f"exception_branches: gcov marks what an exception leads to as {marks or 'nothing'}"
        )
    return marks.pop()


def told_by_gcov(build, root):
    """By file and line, as often as the line was compiled: of each of its branches whether only an
    exception leads to it."""
    mark = mark_of_exceptions()
    told = collections.defaultdict(list)
    for data in sorted(build.rglob("*.gcda")):
        file = branches = None
        is_exception = False
        for row in gcov(data).splitlines():
            if line := LINE.match(row):
                if "0:Source:" in row:
                    file = os.path.relpath(build / row.split(":Source:")[1], root)
                branches = []
                is_exception = False
                told[file, int(line[1])].append(branches)
            elif block := BLOCK.match(row):
                is_exception = block[1] == mark
            elif (branch := BRANCH.match(row)) and "(throw)" not in branch[1]:
                branches.append(is_exception)
    return told


def main():
    build, path = Path(sys.argv[1]).resolve(), Path(sys.argv[2])
    told = told_by_gcov(build, os.getcwd())
    data = json.loads(path.read_text(encoding="utf-8"))
    taken_out = 0
    for file in data["files"]:
        for line in file["lines"]:
            counted = line["branches"]
            times = [each for each in told[file["file"], line["line_number"]] if each]
            if not counted or max(map(len, times), default=0) != len(counted):
                continue
            kept = [
                branch
                for i, branch in enumerate(counted)
                if branch["count"] or not all(each[i] for each in times if i < len(each))
            ]
            taken_out += len(counted) - len(kept)
            line["branches"] = kept
    path.write_text(json.dumps(data), encoding="utf-8")
    print(f"{taken_out} branches that only an exception leads to are left out")


if __name__ == "__main__":
    main()
