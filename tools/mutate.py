#!/usr/bin/env python3
"""Makes small deliberate changes to the sources, one at a time, and tells which of them no test notices.

    tools/mutate.py                         every change of the plan, as far as no earlier run has tried it
    tools/mutate.py --folder grid/tree      only changes of this folder; may be given more than once
    tools/mutate.py --shard 2/5             the second of five parts, so that the work can be divided
    tools/mutate.py --sample 50 --seed 7    only so many, of all folders alike
    tools/mutate.py --only ID               only this change; may be given more than once
    tools/mutate.py --kind release          only changes of this kind; may be given more than once
    tools/mutate.py --variant mingw-checked leaks are noticed in the checked variant only
    tools/mutate.py --native                only with the tests of rules and collections, which need no Wine
    tools/mutate.py --quick                 leaves out the few tests that take most of the time of their program
    tools/mutate.py --again                 also what an earlier run has tried
    tools/mutate.py --list                  lists the plan with what is known of each change
    tools/mutate.py --report                prints scores and survivors of all runs so far
    tools/mutate.py --write-docs            puts the scores of all runs so far into docs/RELIABILITY.md
    tools/mutate.py --show ID               shows one change

The plan is tools/mutations/places.tsv, changes written down by hand, and a sample of what the rules below make of
the sources: the same sample on each machine, as a change is named after the line that it changes. What
cannot matter is listed with its reason in tools/mutations/harmless.tsv, and does not count.

Works in a copy of the sources below the build folder, where each file is compiled by itself; a change costs
the compilation of a file, linking a library and the tests of its folder, up to the first that fails. Results
are kept, so that a run that was ended goes on where it was.
"""

import argparse
import collections
import hashlib
import itertools
import json
import os
import pathlib
import re
import selectors
import subprocess
import sys
import time

import figures

ROOT = pathlib.Path(__file__).resolve().parent.parent
LISTS = ROOT / "tools" / "mutations"
BUILD = pathlib.Path(os.environ.get("QUOR_BUILD", ROOT / "build"))

# Which programs look at a folder, the quickest to notice first. The longest name that fits counts.
PROGRAMS = {
    "grid": ["grid_test", "grid_input_test"],
    "grid/collections": ["collections_test"],
    "treedrag": ["treedrag_test", "treedrag_input_test"],
    "propgrid": ["propgrid_test", "propgrid_input_test"],
    "controls": ["controls_test", "controls_input_test"],
    "rules": ["rules_test", "grid_test", "treedrag_test", "controls_test", "propgrid_test"],
    "framework/src": ["framework_test", "frames_test", "dialogs_test"],
    "framework/src/propertygrid": ["propgrid_test", "framework_test", "propgrid_input_test"],
    "framework/src/propertyrules": ["rules_test", "framework_test", "propgrid_input_test"],
    "framework/src/bars": ["frames_test", "documents_test"],
    "framework/src/commondialog": ["dialogs_test", "framework_test"],
    "framework/src/propertysheet": ["dialogs_test", "framework_test"],
    "framework/src/document": ["documents_test", "framework_test"],
    "framework/src/mdi": ["documents_test", "frames_test"],
    "framework/src/frame": ["framework_test", "frames_test", "documents_test"],
}

# What tests/native builds for this machine.
NATIVE = {"rules_test", "collections_test"}

# How many changes made by rule are in the plan for each folder; a folder below takes the number of the longest name.
SAMPLE = {
    "grid": 14,
    "grid/collections": 12,
    "treedrag": 32,
    "propgrid": 14,
    "controls": 26,
    "rules": 30,
    "framework/src": 6,
    "framework/src/propertygrid": 12,
    "framework/src/propertyrules": 12,
}

# Leaks end only the programs of the checked variant.
LEAK_KINDS = {"release"}

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
        if m.group(1) != m.group(2):
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


# ---- The copy of the sources ----------------------------------------------------------------------------------------


class Session:
    """A display and a Wine of its own in which one test program after the other runs: what has begun once is not begun anew
    for each change. Begins anew after a program that did not end by itself, because that may leave keys held down."""

    def __init__(self):
        self.display = None

    def begin(self):
        if self.display:
            return
        read, write = os.pipe()
        self.display = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x900x24", "-noreset", "-nolisten", "tcp"],
            pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as answer:
            number = answer.readline().strip()
        script = ('quor_name=mutate; source "$0/tools/lib.sh"; set_wine_environment; '
                  'export WINEPREFIX=$("$0/tools/wine-prefix.sh" mutate); wine_loader; env -0')
        output = subprocess.run(["bash", "-c", script, str(ROOT)], check=True, capture_output=True, text=True).stdout
        self.loader, _, settings = output.partition("\n")
        self.environment = dict(entry.split("=", 1) for entry in settings.split("\0") if "=" in entry)
        self.environment["DISPLAY"] = f":{number}"
        subprocess.run(["wineserver", "-p"], env=self.environment, check=False)

    def end(self):
        if self.display:
            subprocess.run(["wineserver", "-k"], env=self.environment, check=False)
            self.display.terminate()
            self.display.wait()
            self.display = None

    def command(self, program):
        self.begin()
        # Program, Wine and display answer each other at every step, which costs more on several cores.
        return ["taskset", "-c", "0", self.loader, str(program)]


class Copy:
    """Sources and build trees in which a change is made, and the runs of the tests there."""

    def __init__(self, variant, scratch, quick_only=False):
        self.quick_only = quick_only
        self.tree = scratch / "tree"
        self.variant = variant
        # As deep as where one builds, so that a compiler cache knows what has been compiled there.
        self.builds = {name: self.tree / "build" / name for name in ("native", variant)}
        self.log = scratch / f"{variant}.log"
        self.quick = collections.defaultdict(list)  # file -> suites that have noticed changes of it
        self.limits = {}
        self.failing = {}
        self.slow = {}
        self.session = Session()

    def prepare(self, programs):
        self.tree.mkdir(parents=True, exist_ok=True)
        names = tracked_files()
        for name in names:
            self.copy_file(name)
        self.remove_leftovers(set(names))
        self.users = collections.defaultdict(set)
        self.home = {}  # program -> the build tree that it is in
        for variant, build in self.builds.items():
            self.configure(variant, build)
            known = subprocess.run(
                ["ninja", "-C", str(build), "-t", "targets", "all"], capture_output=True, text=True, check=True
            ).stdout
            for name in programs:
                if name not in self.home and f"\n{name}: " in "\n" + known:
                    self.home[name] = build
            self.read_users(build)
        say(f"building {' '.join(self.home)}")
        if not self.compile(sorted(self.home)):
            sys.exit(f"mutate: the unchanged sources do not build; see {self.log}")

    def configure(self, variant, build):
        if (build / "build.ninja").exists():
            return
        say(f"configuring {variant}")
        launcher = ["-D", "CMAKE_CXX_COMPILER_LAUNCHER=ccache"] if has("ccache") else []
        werror = ["-D", "QUOR_WERROR=1"] if os.environ.get("QUOR_WERROR") else []
        if variant == "native":
            what = ["-G", "Ninja", "-S", "tests/native", "-D", "CMAKE_EXPORT_COMPILE_COMMANDS=ON", *werror]
        else:
            what = ["--preset", variant, "-D", "QUOR_UNITY=OFF", *werror]
        subprocess.run(["cmake", *what, "-B", str(build), *launcher], cwd=self.tree, check=True, stdout=subprocess.DEVNULL)

    def copy_file(self, name):
        """Only what differs is written, so that no more is compiled than has changed."""
        source, target = ROOT / name, self.tree / name
        content = source.read_bytes()
        if not target.exists() or target.read_bytes() != content:
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_bytes(content)
            target.chmod(source.stat().st_mode)

    def remove_leftovers(self, names):
        for folder, folders, files in os.walk(self.tree):
            if pathlib.Path(folder) == self.tree:
                folders[:] = [name for name in folders if name != "build"]
            for file in files:
                path = pathlib.Path(folder, file)
                if str(path.relative_to(self.tree)) not in names:
                    path.unlink()

    def compile(self, programs, change=None):
        """The programs, or what a change of one file makes of them."""
        for build in self.builds.values():
            here = [name for name in programs if self.home[name] == build]
            if here and not self.compile_in(build, self.targets(change, here, build) if change else here):
                return False
        return True

    def compile_in(self, build, targets):
        with open(self.log, "wb") as log:
            return subprocess.run(["ninja", "-C", str(build), *targets], stdout=log, stderr=log).returncode == 0

    def read_users(self, build):
        """file -> targets that compile it."""
        for entry in json.loads((build / "compile_commands.json").read_text()):
            target = re.search(r"CMakeFiles/(\w+)\.dir/", entry["command"])
            if target:
                self.users[build, os.path.relpath(entry["file"], self.tree)].add(target.group(1))

    def targets(self, change, programs, build):
        """The libraries; the programs only where they compile the file or one that includes it themselves."""
        if change.file.endswith(".h") or build.name == "native":
            return programs
        libraries = ["QuorFx"] if change.file.startswith("framework/") else ["QuorUiCtrl"]
        alone = self.users[build, change.file] <= {"QuorFx", "QuorUiCtrl"}
        return libraries if alone else [*libraries, *programs]

    def run(self, program, filters, limit=None):
        """(exit code or None for too long, output)"""
        options = ["--gtest_fail_fast", "--gtest_color=no", f"--gtest_filter={filters}"]
        build = self.home[program]
        native = build.name == "native"
        command = [str(build / program)] if native else self.session.command(build / f"bin/{program}.exe")
        process = subprocess.Popen(command + options, env=None if native else self.session.environment,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        output = watched_output(process, limit)
        code = process.wait()
        if output is None or (not native and code not in (0, 1)):
            self.session.end()
        return (None, "") if output is None else (code, output)

    def measure(self, program):
        """How much time a program takes, and which tests fail without a change."""
        failing = []
        while True:
            before = children_time()
            code, output = self.run(program, self.filter("*", failing))
            if code == 0:
                break
            culprit = failed_test(output)
            if culprit is None or culprit in failing or len(failing) > 9:
                sys.exit(f"mutate: {program} fails without a change ({code}):\n{output[-2000:]}")
            say(f"{culprit} of {program} fails without a change and is left out")
            failing.append(culprit)
        self.failing[program] = failing
        self.slow[program] = slow_tests(output)
        self.limits[program] = 20 + 3 * (children_time() - before)
        say(f"{program} takes {children_time() - before:.0f} s")

    def filter(self, names, failing):
        return names + ("-" + ":".join(failing) if failing else "")

    def first_names(self, change, program):
        """The suites that have noticed changes of the file, and those named after its concern."""
        names = [f"{suite}.*" for owner, suite in self.quick[change.file] if owner == program]
        concern = re.findall(r"[A-Z][a-z]{3,}", pathlib.Path(change.file).stem)[-1:]
        return names + [f"*{word}*" for word in concern if word not in ("Grid", "Tree", "List", "Property")]

    def noticed_by(self, change, program):
        if program not in self.limits:
            path = self.tree / change.file
            mutated = path.read_text(encoding="utf-8")
            path.write_text(self.unchanged, encoding="utf-8")
            self.compile([program], change)
            self.measure(program)
            path.write_text(mutated, encoding="utf-8")
            self.compile([program], change)
        failing = list(self.failing[program])
        slow = self.slow[program]
        first = self.first_names(change, program)
        rounds = [(":".join(first), slow)] if first else []
        rounds.append(("*", slow))
        if slow and not self.quick_only:
            rounds.append((":".join(slow), []))
        for names, without in rounds:
            while True:
                code, output = self.run(program, self.filter(names, without + failing), self.limits[program])
                if code == 0:
                    break
                culprit = failed_test(output)
                if code is None or culprit is None:
                    return f"{program} {'takes too long' if code is None else f'ends with {code}'}"
                # Seen once more, alone: on a busy machine a test may fail by itself.
                if self.run(program, culprit, self.limits[program])[0] != 0:
                    self.remember(change.file, program, culprit)
                    return f"{program} {culprit}"
                failing.append(culprit)
        return None

    def remember(self, file, program, test):
        entry = (program, test.split(".")[0])
        if entry not in self.quick[file]:
            self.quick[file].append(entry)

    def attempt(self, change):
        """(outcome, by what)"""
        path = self.tree / change.file
        self.unchanged = path.read_text(encoding="utf-8")
        folder = str(pathlib.PurePosixPath(change.file).parent)
        programs = [name for name in longest_fit(PROGRAMS, folder) if name in self.home]
        try:
            path.write_text(changed_text(change, self.unchanged), encoding="utf-8")
            for program in programs:
                if not self.compile([program], change):
                    return "refused", "the compiler"
                noticed = self.noticed_by(change, program)
                if noticed:
                    return "noticed", noticed
            return "survived", "quick" if self.quick_only else ""
        finally:
            path.write_text(self.unchanged, encoding="utf-8")


def children_time():
    """Seconds of the processor that processes which have ended took; the time on the wall depends on what else runs."""
    times = os.times()
    return times.children_user + times.children_system


def processor_time(process):
    try:
        fields = pathlib.Path(f"/proc/{process.pid}/stat").read_text().rpartition(")")[2].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")
    except OSError:
        return 0.0


def watched_output(process, limit, silence=240):
    """What the process writes; None when it was ended because it took more processor time than allowed, or stood still."""
    output, heard = b"", time.monotonic()
    with selectors.DefaultSelector() as selector:
        selector.register(process.stdout, selectors.EVENT_READ)
        while True:
            if selector.select(0.5):
                read = os.read(process.stdout.fileno(), 65536)
                if not read:
                    return output.decode(errors="replace")
                output, heard = output + read, time.monotonic()
            elif process.poll() is not None:
                # What it has started, such as the desktop of Wine, may hold the pipe open.
                return output.decode(errors="replace")
            too_long = limit is not None and processor_time(process) > limit
            if too_long or (limit is not None and time.monotonic() - heard > silence):
                process.kill()
                return None


def failed_test(output):
    """The first test that failed, or that was running when the program ended."""
    failed = re.findall(r"^\[  FAILED  \] ([\w/]+\.[\w/]+)", output, re.MULTILINE)
    if failed:
        return failed[0]
    started = re.findall(r"^\[ RUN      \] ([\w/]+\.[\w/]+)", output, re.MULTILINE)
    ended = re.findall(r"^\[       OK \] ([\w/]+\.[\w/]+)", output, re.MULTILINE)
    return started[-1] if len(started) > len(ended) else None


def slow_tests(output):
    """Those few that take a fiftieth of the time or more each: they come last."""
    times = re.findall(r"^\[       OK \] ([\w/]+\.[\w/]+).* \((\d+) ms\)", output, re.MULTILINE)
    whole = sum(int(time_taken) for _, time_taken in times)
    return sorted({name for name, time_taken in times if int(time_taken) * 50 > whole and int(time_taken) > 1000})


def has(program):
    return subprocess.run(["which", program], capture_output=True).returncode == 0


def say(text):
    print(f"mutate: {text}", flush=True)


# ---- Results --------------------------------------------------------------------------------------------------------


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
    text = figures.table(["folder", "score", *OUTCOMES], rows_of(counts))
    if survivors:
        text += "\n\nNo test notices " + ", ".join(f"`{change.id}`" for change in survivors) + "."
    figures.write("mutations", text)


def show(change):
    for mark, text in (("-", change.before), ("+", change.after)):
        for line in text.splitlines():
            print(f"      {mark} {line.strip()}")


# ---- The program ----------------------------------------------------------------------------------------------------


def parse():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--folder", action="append", default=[])
    parser.add_argument("--only", action="append", default=[])
    parser.add_argument("--kind", action="append", default=[])
    parser.add_argument("--shard", default="1/1")
    parser.add_argument("--sample", type=int)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--variant", choices=["mingw-release", "mingw-checked"], default="mingw-release")
    parser.add_argument("--everything", action="store_true", help="all changes by rule, not the sample")
    parser.add_argument("--scratch", type=pathlib.Path, default=BUILD / "mutate")
    parser.add_argument("--native", action="store_true")
    parser.add_argument("--quick", action="store_true")
    parser.add_argument("--again", action="store_true")
    parser.add_argument("--list", action="store_true")
    parser.add_argument("--report", action="store_true")
    parser.add_argument("--write-docs", action="store_true")
    parser.add_argument("--show", metavar="ID")
    return parser.parse_args()


def chosen(changes, options):
    part, parts = (int(number) for number in options.shard.split("/"))
    if not 1 <= part <= parts:
        sys.exit("mutate: --shard takes a part and the number of parts, such as 2/5")
    for number, change in enumerate(changes):
        folder = str(pathlib.PurePosixPath(change.file).parent)
        if number % parts != part - 1:
            continue
        if options.folder and not any(longest_fit({name.rstrip("/"): True}, folder) for name in options.folder):
            continue
        if options.kind and change.kind not in options.kind:
            continue
        if options.only and change.id not in options.only:
            continue
        yield change


def drawn(changes, number, seed):
    """So many of the changes, one folder after the other having its turn."""
    folders = collections.defaultdict(list)
    for one in sorted(changes, key=lambda c: hashlib.sha1(f"{seed} {c.id}".encode()).hexdigest()):
        folders[area(one.file)].append(one)
    turns = itertools.zip_longest(*(folders[name] for name in sorted(folders)))
    return [one for turn in turns for one in turn if one is not None][:number]


def main():
    options = parse()
    if options.show or options.only:
        options.everything = True
    scratch = options.scratch.resolve()
    scratch.mkdir(parents=True, exist_ok=True)
    results = Results(scratch / "results.tsv")
    changes = plan(options.everything)
    if options.show:
        for change in changes:
            if change.id == options.show:
                print(f"{change.file}:{change.line + 1}")
                show(change)
        return
    wanted = list(chosen(changes, options))
    if options.sample is not None:
        wanted = drawn(wanted, options.sample, options.seed)
    if options.list:
        for change in wanted:
            print("\t".join([change.id, f"{change.file}:{change.line + 1}", *(results.outcome(change.id) or ["-"])]))
        print(f"{len(wanted)} changes")
        return
    if options.write_docs:
        write_docs(wanted, results)
        return
    if not options.report:
        attempt_all(wanted, options, results, scratch)
    report(wanted, results)


def attempt_all(wanted, options, results, scratch):
    due = [change for change in wanted if options.again or (change.id, options.variant) not in results.known]
    folders = {str(pathlib.PurePosixPath(change.file).parent) for change in due}
    programs = sorted({program for folder in folders for program in longest_fit(PROGRAMS, folder)})
    if not due:
        return
    copy = Copy(options.variant, scratch, options.quick or options.native)
    if options.native:
        copy.builds = {"native": copy.builds["native"]}
        programs = [program for program in programs if program in NATIVE]
    copy.prepare(programs)
    try:
        attempt_each(due, options, results, copy)
    finally:
        copy.session.end()


def attempt_each(due, options, results, copy):
    for number, change in enumerate(due, 1):
        start = time.monotonic()
        outcome, by = copy.attempt(change)
        seconds = time.monotonic() - start
        results.add(change.id, options.variant, outcome, by, seconds)
        say(f"{number}/{len(due)} {change.id} {change.file}:{change.line + 1} {outcome} {by} ({seconds:.0f} s)")


if __name__ == "__main__":
    main()
