#!/usr/bin/env python3
"""Reads what coverage.sh has counted and prints how much of each folder was run.

    tools/coverage.py [--missing] [--write-docs] BUILD

A branch that only an exception takes does not count, nor does one of a line that holds no code, such as a
closing brace. A line of a header counts once, whatever the number of sources that include it.
"""

import argparse
import collections
import json
import pathlib
import re
import subprocess
import sys

import figures

ROOT = pathlib.Path(__file__).resolve().parent.parent
GCOV = "x86_64-w64-mingw32-gcov-posix"
REASONS = ROOT / "tools/coverage/unrun.tsv"

# Percent of lines, and of branches, that have to run. The longest name that fits a folder counts.
LIMITS = {
    "grid": (98, 93),
    "rules": (98, 93),
    "treedrag": (98, 93),
    "undo": (98, 93),
    "controls": (98, 93),
    "propgrid": (98, 93),
    "framework/src": (93, 85),
}


def area(path):
    folder = str(path.parent)
    return next((name for name in LIMITS if folder == name or folder.startswith(name + "/")), None)


class File:
    def __init__(self, path):
        self.text = (ROOT / path).read_text(encoding="utf-8", errors="replace").splitlines()
        self.lines = collections.Counter()
        # (line, number of branches) -> how often each was taken: instances of a template have the same ones.
        self.branches = collections.defaultdict(list)

    def source(self, number):
        return self.text[number - 1].strip() if number <= len(self.text) else ""

    def add(self, entry):
        number = entry["line_number"]
        self.lines[number] += entry["count"]
        taken = [branch["count"] for branch in entry["branches"] if not branch["throw"]]
        if not taken or not re.search(r"\w", re.sub(r"//.*", "", self.source(number))):
            return
        known = self.branches[number, len(taken)]
        known[:] = [old + new for old, new in zip(known or [0] * len(taken), taken)]

    def missing(self):
        """line -> what of it did not run."""
        result = {number: "line" for number, count in self.lines.items() if count == 0}
        for (number, count), taken in self.branches.items():
            if number not in result and 0 in taken:
                result[number] = f"{taken.count(0)} of {count} branches"
        return dict(sorted(result.items()))


def counted(build):
    files = {}
    found = sorted(build.rglob("*.gcda"))
    if not found:
        sys.exit(f"coverage: no counts below {build}; run ./coverage.sh")
    for start in range(0, len(found), 16):
        output = subprocess.run(
            [GCOV, "--json-format", "--stdout", "--branch-probabilities", *map(str, found[start : start + 16])],
            check=True, capture_output=True, text=True).stdout
        for document in output.splitlines():
            for entry in json.loads(document)["files"] if document.startswith("{") else []:
                path = resolved(entry["file"], build)
                if path is None or area(path) is None:
                    continue
                file = files.setdefault(path, File(path))
                for line in entry["lines"]:
                    file.add(line)
    return files


def resolved(name, build):
    """The path from the root: the compiler writes them so, or seen from the build folder."""
    for base in (ROOT, build):
        path = (base / name).resolve()
        if path.is_relative_to(ROOT) and path.is_file():
            return path.relative_to(ROOT)
    return None


def reasons():
    """(file, line without blanks at its ends) -> why no test runs it."""
    table = {}
    for line in REASONS.read_text(encoding="utf-8").splitlines() if REASONS.exists() else []:
        if line and not line.startswith("#"):
            file, text, reason = line.split("\t")
            table[file, text] = reason
    return table


def percent(done, whole):
    return 100 * done / whole if whole else 100.0


def sums_of(files):
    """Name -> [lines run, lines, branches run, branches], for each folder and each area."""
    sums = collections.defaultdict(lambda: [0, 0, 0, 0])
    for path, file in files.items():
        here = area(path)
        names = {here} if here == "framework/src" else {here + " (all)", str(path.parent)}
        branches = [count for taken in file.branches.values() for count in taken]
        counts = [sum(count > 0 for count in file.lines.values()), len(file.lines),
                  sum(count > 0 for count in branches), len(branches)]
        for name in names:
            sums[name] = [old + new for old, new in zip(sums[name], counts)]
    return sums


def report(files):
    """Prints the table; returns the areas that stay below their limits."""
    below = []
    print(f"{'folder':<22}{'lines':>14}{'':>8}{'branches':>14}{'':>8}   limits")
    for name, (lines, all_lines, branches, all_branches) in sorted(sums_of(files).items()):
        limits = LIMITS.get(name.removesuffix(" (all)")) if name.endswith("(all)") or name == "framework/src" else None
        shares = percent(lines, all_lines), percent(branches, all_branches)
        low = limits and any(share < limit for share, limit in zip(shares, limits))
        if low:
            below.append(name)
        print(f"{name:<22}{f'{lines}/{all_lines}':>14}{shares[0]:>7.1f}%{f'{branches}/{all_branches}':>14}{shares[1]:>7.1f}%"
              + (f"   {limits[0]} {limits[1]}" if limits else "") + (" BELOW" if low else ""))
    return below


def write_docs(files, below):
    rows = [[figures.folder(name), lines, f"{percent(run, lines):.1f} %", branches, f"{percent(taken, branches):.1f} %"]
            for name, (run, lines, taken, branches) in sorted(sums_of(files).items())]
    text = figures.table(["folder", "lines", "run", "branches", "taken"], rows)
    if below:
        text += f"\n\nBelow its limits: {', '.join(map(figures.folder, below))}."
    figures.write("coverage", text)


def report_missing(files):
    known = reasons()
    for path, file in sorted(files.items()):
        for number, what in file.missing().items():
            text = file.source(number)
            print(f"{path}:{number}\t{what}\t{text}\t{known.get((str(path), text), '')}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--missing", action="store_true")
    parser.add_argument("--write-docs", action="store_true")
    parser.add_argument("build", type=pathlib.Path)
    options = parser.parse_args()
    files = counted(options.build.resolve())
    if options.missing:
        report_missing(files)
    below = report(files)
    if options.write_docs:
        write_docs(files, below)
    if below:
        sys.exit(f"coverage: below its limit: {', '.join(below)}")


if __name__ == "__main__":
    main()
