"""Puts measured figures into docs/RELIABILITY.md, between the lines that name the script which made them."""

import pathlib
import sys

PAGE = pathlib.Path(__file__).resolve().parent.parent / "docs" / "RELIABILITY.md"


def table(head, rows):
    """A table: the first column is text, the others are numbers."""
    lines = [head, ["---"] + ["---:"] * (len(head) - 1), *rows]
    return "\n".join("| " + " | ".join(str(cell) for cell in line) + " |" for line in lines)


def folder(name):
    """A folder as a table names it; "(all)" with those below it, "all" is none."""
    path, _, rest = name.partition(" ")
    return name if name == "all" else f"`{path}` {rest}".strip()


def write(name, text):
    """Replaces what stands between <!-- name ... --> and <!-- end of name -->."""
    page = PAGE.read_text(encoding="utf-8")
    start, end = page.find(f"<!-- {name}"), page.find(f"<!-- end of {name} -->")
    if start < 0 or end < start:
        sys.exit(f"{PAGE} has no place for {name}")
    start = page.index("\n", start) + 1
    PAGE.write_text(page[:start] + "\n" + text.strip() + "\n\n" + page[end:], encoding="utf-8")
    print(f"{PAGE} has new figures of {name}")
