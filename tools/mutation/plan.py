"""What is changed: the changes written down by hand, and those that the rules make of the sources.

A change made by rule is named after the line that it changes, so that each machine draws the same sample.
"""

import collections
import hashlib
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
LISTS = ROOT / "tools" / "mutations"

# How many changes made by rule are in the plan for each folder; a folder below takes the number of the longest name.
SAMPLE = {
    "grid": 14,
    "grid/collections": 12,
    "treedrag": 32,
    "propgrid": 14,
    "controls": 26,
    "rules": 30,
    "undo": 48,
    "framework/src": 6,
    "framework/src/propertygrid": 12,
    "framework/src/propertyrules": 12,
}

Change = collections.namedtuple("Change", "id kind file before after line")


# ---- Changes by rule ------------------------------------------------------------------------------------------------

COMPARISONS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
CALL = re.compile(r"(?:::)?[\w:]+(?:\([^()]*\))?(?:(?:\.|->)[\w:]+(?:\([^()]*\))?)*\(.*\);")
DECLARES = re.compile(r"(?:return|throw|delete|if|for|while|else|case|using|typedef|static_assert|new|co_\w+)\b")


def kind_of_call(statement):
    """What is lost with a call: a repaint, something given back, a word to the host, or anything else."""
    name = re.findall(r"(\w+)\(", statement)[0]
    if re.search(r"Invalidate|Redraw|Refresh|Repaint|RecalcLayout|UpdateWindow", name):
        return "repaint"
    if re.search(r"Release|Delete|Destroy|Close|Free|Clear|Remove|Kill|Detach", name):
        return "release"
    if re.match(r"(On[A-Z]|Send|Post|Notify|Tell)", name):
        return "hook"
    return "call"


def is_call(statement):
    return bool(CALL.fullmatch(statement)) and not DECLARES.match(statement) and "ASSERT" not in statement


def changes_of_line(line):
    """(kind, changed line) for each rule that fits a line of code."""
    code = line.split(" // ")[0]
    masked = re.sub(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])*\'', lambda m: "\0" * len(m.group()), code)
    for m in re.finditer(r" (<=|>=|==|!=|<|>) ", masked):
        if not masked.lstrip().startswith("template"):
            yield "comparison", code[: m.start(1)] + COMPARISONS[m.group(1)] + code[m.end(1) :]
    for m in re.finditer(r" (&&|\|\|) ", masked):
        yield "logic", code[: m.start(1)] + ("||" if m.group(1) == "&&" else "&&") + code[m.end(1) :]
    for m in re.finditer(r"\((!)[\w(:]", masked):
        yield "logic", code[: m.start(1)] + code[m.end(1) :]
    for m in re.finditer(r"(?<= )([+-])(?= [\w(])", masked):
        yield "arithmetic", code[: m.start(1)] + ("-" if m.group(1) == "+" else "+") + code[m.end(1) :]
    for m in re.finditer(r"(?<![\w.\[])(\d+)(?![\w.])", masked):
        yield "constant", code[: m.start(1)] + str(int(m.group(1)) + 1) + code[m.end(1) :]
    for m in re.finditer(r"return (true|false|TRUE|FALSE);", masked):
        other = {"true": "false", "false": "true", "TRUE": "FALSE", "FALSE": "TRUE"}[m.group(1)]
        yield "result", code[: m.start(1)] + other + code[m.end(1) :]
    for m in re.finditer(r"\b\w+\((\w+), (\w+)\)", masked):
        # At the margin these are the types of a definition.
        if m.group(1) != m.group(2) and line.startswith(" "):
            yield "arguments", code[: m.start(1)] + m.group(2) + ", " + m.group(1) + code[m.end(2) :]
    statement = masked.strip()
    indent = code[: len(code) - len(code.lstrip())]
    if indent and is_call(statement):
        yield kind_of_call(statement), indent + ";"
    if indent and re.fullmatch(r"delete (\[\] )?[\w>.\-]+;", statement):
        yield "release", indent + ";"


def is_code(line):
    text = line.strip()
    return bool(text) and not re.match(r"//|#|/\*|\*|template|using|namespace|friend|class|struct|ON_|IMPLEMENT_|static_assert", text)


def begins_statement(before):
    """Whether a line after these begins a statement and does not go on with one."""
    code = next((line.strip() for line in reversed(before) if not line.strip().startswith("//")), "")
    return bool(re.search(r"(^|[;{}):]|else)$", code.split(" //")[0].rstrip()))


def changes_of_file(path):
    lines = (ROOT / path).read_text(encoding="utf-8").splitlines()
    seen = collections.Counter()

    def change(kind, number, before, after):
        key = (kind, before.strip(), after.strip())
        seen[key] += 1
        digest = hashlib.sha1(repr((key, seen[key])).encode()).hexdigest()[:8]
        return Change(f"{pathlib.Path(path).stem}:{kind}:{digest}", kind, path, before, after, number)

    for number, line in enumerate(lines):
        if not is_code(line):
            continue
        begins = begins_statement(lines[:number])
        for kind, changed in changes_of_line(line):
            if changed.strip() == ";" and not begins:
                continue
            yield change(kind, number, line, changed)
        after = lines[number + 1] if number + 1 < len(lines) else ""
        indent = len(line) - len(line.lstrip())
        if indent and indent == len(after) - len(after.lstrip()) and is_call(line.strip()) and is_call(after.strip()):
            if begins and not lines[number - 1].rstrip().endswith((")", "else")):
                yield change("order", number, line + "\n" + after, after + "\n" + line)


def longest_fit(table, folder):
    fitting = [name for name in table if folder == name or folder.startswith(name + "/")]
    return table[max(fitting, key=len)] if fitting else None


def sampled(changes, number):
    """The changes with the lowest digests, taking one of each kind in turn."""
    kinds = collections.defaultdict(list)
    for one in sorted(changes, key=lambda c: hashlib.sha1(c.id.encode()).hexdigest()):
        kinds[one.kind].append(one)
    taken = []
    while len(taken) < number and any(kinds.values()):
        for kind in sorted(kinds):
            if kinds[kind] and len(taken) < number:
                taken.append(kinds[kind].pop(0))
    return taken


def tracked_files():
    output = subprocess.run(
        ["git", "ls-files", "-co", "--exclude-standard"], cwd=ROOT, check=True, capture_output=True, text=True
    ).stdout
    return [name for name in output.splitlines() if (ROOT / name).is_file()]


def changes_by_rule(files, everything):
    folders = collections.defaultdict(list)
    for name in files:
        folder = str(pathlib.PurePosixPath(name).parent)
        suffixes = (".h",) if folder == "grid/collections" else (".cpp",)
        if name.endswith(suffixes) and longest_fit(SAMPLE, folder):
            folders[folder].extend(changes_of_file(name))
    for folder in sorted(folders):
        yield from folders[folder] if everything else sampled(folders[folder], longest_fit(SAMPLE, folder))


# ---- Changes by hand ------------------------------------------------------------------------------------------------


def table(name):
    path = LISTS / name
    for line in path.read_text(encoding="utf-8").splitlines() if path.exists() else []:
        if line and not line.startswith("#"):
            yield line.split("\t")


def changes_by_hand(files):
    """Each line: id, kind, file or folder, text before, text after. Blanks stand for any white space."""
    texts = {path: (ROOT / path).read_text(encoding="utf-8") for path in files if path.endswith((".cpp", ".h"))}
    for name, kind, place, before, after in table("places.tsv"):
        pattern = re.compile(r"\s+".join(re.escape(word) for word in before.split()))
        found = [(path, match) for path, text in texts.items()
                 if path.startswith(place + "/") or path == place for match in pattern.finditer(text)]
        if len(found) == 1:
            (path, match), = found
            number = texts[path].count("\n", 0, match.start())
            yield Change(name, kind, path, match.group(), after.replace("\\n", "\n"), number)
        else:
            print(f"mutate: {name} fits {len(found)} places of {place}", file=sys.stderr)


def plan(everything):
    files = tracked_files()
    return list(changes_by_hand(files)) + list(changes_by_rule(files, everything))


def changed_text(change, text):
    if change.kind != "order" and "\n" not in change.before and change.before in text.splitlines():
        lines = text.splitlines(keepends=True)
        lines[change.line] = change.after + "\n"
        return "".join(lines)
    start = sum(len(line) for line in text.splitlines(keepends=True)[: change.line])
    at = text.index(change.before, start)
    return text[:at] + change.after + text[at + len(change.before) :]

