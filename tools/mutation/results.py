"""What is known of each change, and the scores."""

import collections
import pathlib

import figures
from mutation.plan import table


class Results:
    """One line for each attempt: id, variant, outcome, by what, seconds. A later line replaces an earlier one."""

    def __init__(self, path):
        self.path = path
        self.known = {}
        for line in path.read_text(encoding="utf-8").splitlines() if path.exists() else []:
            name, variant, outcome, by, _ = line.split("\t")
            self.known[name, variant] = (outcome, by)

    def add(self, name, variant, outcome, by, seconds):
        self.known[name, variant] = (outcome, by)
        with open(self.path, "a", encoding="utf-8") as file:
            file.write(f"{name}\t{variant}\t{outcome}\t{by}\t{seconds:.0f}\n")

    def is_settled(self, name, variant):
        known = self.outcome(name)
        return (name, variant) in self.known or (known is not None and known[0] == "noticed")

    def outcome(self, name):
        """Over both variants: what one of them notices is noticed."""
        outcomes = [value for (known, _), value in self.known.items() if known == name]
        return next((value for value in outcomes if value[0] == "noticed"), outcomes[0] if outcomes else None)


def area(file):
    parts = pathlib.PurePosixPath(file).parts
    return "framework/src" if parts[0] == "framework" else "/".join(parts[:-1])


def counted(changes, results):
    """(folder -> outcome -> number, the changes that survived)"""
    harmless = {line[0]: line[1] for line in table("harmless.tsv")}
    counts = collections.defaultdict(collections.Counter)
    survivors = []
    for change in changes:
        known = results.outcome(change.id)
        outcome = known[0] if known else "not tried"
        if outcome == "survived" and change.id in harmless:
            outcome = "harmless"
        counts[area(change.file)][outcome] += 1
        if outcome == "survived":
            survivors.append(change)
    return counts, survivors


OUTCOMES = ["noticed", "survived", "harmless", "refused", "not tried"]


def rows_of(counts):
    """Folder, score, and the numbers of each outcome; the last row is the sum."""
    total = sum(counts.values(), collections.Counter())
    for name, count in [*sorted(counts.items()), ("all", total)]:
        tried = count["noticed"] + count["survived"]
        score = f"{100 * count['noticed'] / tried:.0f} %" if tried else "-"
        yield [name, score, *(count[outcome] for outcome in OUTCOMES)]


def report(changes, results):
    counts, survivors = counted(changes, results)
    for name, *cells in [["folder", "score", *OUTCOMES], *rows_of(counts)]:
        print(f"{name:<20}" + "".join(f"{cell:>11}" for cell in cells))
    if survivors:
        print("\nNo test notices:")
    for change in survivors:
        print(f"  {change.id}  {change.file}:{change.line + 1}")
        show(change)


def write_docs(changes, results):
    counts, survivors = counted(changes, results)
    rows = [[figures.folder(name), *cells] for name, *cells in rows_of(counts)]
    text = figures.table(["folder", "score", *OUTCOMES], rows)
    if survivors:
        text += "\n\nNo test notices " + ", ".join(f"`{change.id}`" for change in survivors) + "."
        partly = sum(results.outcome(change.id)[1].startswith(("not all", "without")) for change in survivors)
        if partly:
            were = "was" if partly == 1 else "were"
            text += f" {partly} of these {were} tried with a part of the tests only, without the longest."
    figures.write("mutations", text)


def show(change):
    for mark, text in (("-", change.before), ("+", change.after)):
        for line in text.splitlines():
            print(f"      {mark} {line.strip()}")
