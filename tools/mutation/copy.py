"""The copy of the sources in which changes are built: all at once, as switches, and by itself what cannot be switched."""

import json
import os
import re
import subprocess
import sys

from mutation import plan, switches
from mutation.plan import ROOT

NATIVE = "native"
SMALL = ["collections_test", "rules_test"]


def say(text):
    print(f"mutate: {text}", flush=True)


def has(program):
    return subprocess.run(["which", program], capture_output=True).returncode == 0


class Copy:
    """Sources and build trees. Keeps from one run to the next which number a change has, because that is compiled
    into the programs, and which way to build it in the compiler has taken."""

    def __init__(self, variant, scratch, native_only):
        self.scratch = scratch
        self.tree = scratch / "tree"
        # As deep as where one builds, so that a compiler cache knows what has been compiled there.
        self.variant = NATIVE if native_only else variant
        self.build = self.tree / "build" / self.variant
        self.log = scratch / f"{variant}.log"
        self.known = scratch / "switches.json"
        known = json.loads(self.known.read_text()) if self.known.exists() else {}
        self.numbers, self.ways = known.get("numbers", {}), known.get("ways", {})
        self.recording = set()  # the source of each program that gets the recorder
        self.switched = set()  # the changes that are built in
        self.alone = None  # the file that has a change of its own, without switches

    @property
    def is_native(self):
        return self.variant == NATIVE

    def path(self, program):
        return self.build / program if self.is_native else self.build / "bin" / f"{program}.exe"

    def number(self, change):
        return self.numbers.setdefault(change.id, len(self.numbers) + 1)

    def prepare(self, programs, changes):
        """Builds the programs with all changes that can be switched."""
        self.tree.mkdir(parents=True, exist_ok=True)
        names = plan.tracked_files()
        self.remove_leftovers(set(names))
        if not (self.build / "build.ninja").exists():
            self.write_sources(names, [])
            self.configure()
        self.recording = {self.first_source(program) for program in programs}
        say(f"building {' '.join(programs)} with {len(changes)} changes")
        while True:
            lines = self.write_sources(names, changes)
            # The small ones first: what they refuse in a header need not fail in all that include it.
            if self.compile([name for name in SMALL if name in programs]) and self.compile(programs):
                break
            refused = self.refused(lines)
            if not refused:
                sys.exit(f"mutate: the sources do not build; see {self.log}")
            for change in refused:
                self.ways[change] = self.ways.get(change, 0) + 1
            self.keep()
            say(f"the compiler refused {len(refused)} switches; trying other ways")
        self.keep()
        self.switched = {change for places in lines.values() for change in places}

    def keep(self):
        self.known.write_text(json.dumps({"numbers": self.numbers, "ways": self.ways}))

    def first_source(self, program):
        commands = json.loads((self.build / "compile_commands.json").read_text())
        files = sorted(os.path.relpath(entry["file"], self.tree) for entry in commands
                       if re.search(rf"CMakeFiles/{program}\.dir/", entry["command"]))
        return next(name for name in files if name.endswith("_test.cpp"))

    def configure(self):
        say(f"configuring {self.variant}")
        launcher = ["-D", "CMAKE_CXX_COMPILER_LAUNCHER=ccache"] if has("ccache") else []
        if self.is_native:
            what = ["-G", "Ninja", "-S", "tests/native", "-D", "CMAKE_EXPORT_COMPILE_COMMANDS=ON"]
        else:
            what = ["--preset", self.variant, "-D", "QUOR_UNITY=OFF"]
        subprocess.run(["cmake", *what, "-B", str(self.build), *launcher], cwd=self.tree, check=True, stdout=subprocess.DEVNULL)

    def write_sources(self, names, changes):
        """file -> change -> the lines where it is built in."""
        files = {}
        for change in changes:
            files.setdefault(change.file, []).append(change)
        lines = {}
        for name in names:
            content = (ROOT / name).read_bytes()
            if name in files:
                text, lines[name] = self.with_switches(content.decode(), files[name])
                content = text.encode()
            if name in self.recording:
                content += f'\n#include "{self.tree}/tools/mutation/Recorder.h"\n'.encode()
            self.write(name, content)
        return lines

    def with_switches(self, text, changes):
        source, units, ids = switches.Source(text), {}, {}
        for change in changes:
            ways = switches.candidates(source, change)
            way = self.ways.get(change.id, 0)
            if way < len(ways):
                units[self.number(change)] = ways[way]
                ids[self.number(change)] = change.id
        if not units:
            return text, {}
        made, lines = switches.switched(text, units, self.tree / "tools/mutation/Switch.h")
        return made, {ids[number]: place for number, place in lines.items()}

    def write(self, name, content):
        """Only what differs is written, so that no more is compiled than has changed."""
        target = self.tree / name
        if not target.exists() or target.read_bytes() != content:
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_bytes(content)
            target.chmod((ROOT / name).stat().st_mode)

    def remove_leftovers(self, names):
        for folder, folders, files in os.walk(self.tree):
            if folder == str(self.tree):
                folders[:] = [name for name in folders if name != "build"]
            for file in files:
                path = os.path.join(folder, file)
                if os.path.relpath(path, self.tree) not in names:
                    os.unlink(path)

    def compile(self, programs):
        if not programs:
            # Without a name everything would be built.
            return True
        with open(self.log, "wb") as log:
            return subprocess.run(["ninja", "-k", "0", "-C", str(self.build), *programs], stdout=log, stderr=log).returncode == 0

    def refused(self, lines):
        """The changes at the lines that the compiler complains of; all of a file in which it complains of others."""
        log = self.log.read_text(encoding="utf-8", errors="replace")
        found, elsewhere = set(), set()
        for path, line in re.findall(r"^(\S+?):(\d+):\d+: (?:fatal )?error:", log, re.MULTILINE):
            # A compiler cache may have made the path relative.
            name = next((known for known in lines if path.endswith("/" + known)), None)
            here = {change for change, (first, last) in lines.get(name, {}).items() if first <= int(line) <= last}
            found |= here
            if not here and name:
                elsewhere |= set(lines[name])
        return found or elsewhere

    def build_alone(self, change, programs):
        """Builds the programs with this one change and no switches in its file; whether the compiler takes it."""
        # What the one before it has changed may be what the compiler refuses.
        if self.alone is not None:
            self.write(self.alone, (ROOT / self.alone).read_bytes())
        self.alone = change.file
        text = (ROOT / change.file).read_text(encoding="utf-8")
        self.write(change.file, plan.changed_text(change, text).encode())
        return self.compile(programs)
