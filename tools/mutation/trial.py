"""Tries changes: which tests reach a change is recorded once, and only these run with the change on."""

import collections
import hashlib
import pathlib
import threading

from mutation import session
from mutation.copy import say
from mutation.plan import longest_fit

# Which programs look at a folder, the quickest to notice first. The longest name that fits counts.
PROGRAMS = {
    "grid": ["grid_test", "grid_input_test", "extras_test"],
    "grid/collections": ["collections_test"],
    "grid/extras": ["extras_test", "clipboard_test"],
    "treedrag": ["treedrag_test", "treedrag_input_test", "undo_test"],
    "undo": ["undo_test"],
    "propgrid": ["propgrid_test", "propgrid_input_test"],
    "controls": ["controls_test", "controls_input_test"],
    "rules": ["rules_test", "grid_test", "treedrag_test", "controls_test", "propgrid_test"],
    "framework/src": ["framework_test", "frames_test", "dialogs_test", "documents_test"],
    "framework/src/propertygrid": ["propgrid_test", "framework_test", "propgrid_input_test"],
    "framework/src/propertyrules": ["rules_test", "framework_test", "propgrid_input_test"],
}

# What tests/native builds for this machine.
NATIVE_PROGRAMS = {"rules_test", "collections_test"}

# Seconds of all tests of a round: the next round begins only when this one has noticed nothing.
ROUNDS = (1, 4, 16)


class Reach:
    """Of one program: how long each test takes, which fail without a change, and which reach what."""

    def __init__(self, path):
        self.seconds, self.failing, self.always = {}, set(), set()
        self.tests = collections.defaultdict(set)
        for line in path.read_text(encoding="utf-8").splitlines():
            test, milliseconds, outcome, numbers = line.split("\t")
            numbers = {int(number) for number in numbers.split()}
            if test == "*":
                self.always = numbers
                continue
            self.seconds[test] = int(milliseconds) / 1000
            if outcome == "failed":
                self.failing.add(test)
            for number in numbers:
                self.tests[number].add(test)

    def rounds(self, number, hints, most):
        """The tests that reach the change, or all for a change that is built alone, in lists of which each takes longer than
        the one before; then the others, when the change is reached before the tests begin. None that would make them take
        more than so many seconds."""
        all_tests = set(self.seconds) - self.failing
        reaching = all_tests if number is None else self.tests.get(number, set()) - self.failing
        left = self.in_order(reaching, hints)
        if number in self.always:
            left += self.in_order(all_tests - reaching, hints)
        while left and sum(self.seconds[test] for test in left) > most:
            left.pop()
        for allowed in ROUNDS:
            taken, whole = [], 0.0
            while left and (not taken or whole + self.seconds[left[0]] <= allowed):
                whole += self.seconds[left[0]]
                taken.append(left.pop(0))
            if taken:
                yield taken
        if left:
            yield left

    def in_order(self, tests, hints):
        return sorted(tests, key=lambda test: (test not in hints, self.seconds[test], test))


class Trials:
    def __init__(self, copy, jobs, without, most):
        self.copy = copy
        self.without = without  # tests that do not take part, as --gtest_filter writes them
        self.most = most
        self.reach = {}
        self.hints = collections.defaultdict(list)  # file -> tests that have noticed other changes of it
        self.sessions = [session.Session(number) for number in range(1, jobs + 1)]
        self.lock = threading.Lock()

    def end(self):
        for one in self.sessions:
            one.end()

    # ---- Recording --------------------------------------------------------------------------------------------------

    def record(self, programs):
        """Runs each program once, unless it has not changed since the last time."""
        waiting = [name for name in programs if not self.is_recorded(name)]

        def work(one):
            while True:
                with self.lock:
                    if not waiting:
                        return
                    program = waiting.pop(0)
                self.record_one(one, program)

        self.in_parallel(work)
        for name in programs:
            self.reach[name] = Reach(self.record_of(name))

    def record_of(self, program):
        part = hashlib.sha1(self.without.encode()).hexdigest()[:8] if self.without else "all"
        return self.copy.build / f"{program}.{part}.reach"

    def is_recorded(self, program):
        record, path = self.record_of(program), self.copy.path(program)
        made = [path, *(path.parent / name for name in ("QuorFx.dll", "QuorUiCtrl.dll"))]
        return record.exists() and all(not one.exists() or one.stat().st_mtime < record.stat().st_mtime for one in made)

    def record_one(self, one, program):
        say(f"recording {program}")
        record = self.record_of(program)
        unfinished = record.with_suffix(".unfinished")
        unfinished.unlink(missing_ok=True)
        name = str(unfinished) if self.copy.is_native else session.windows_path(unfinished)
        _, output, ended = one.run(self.copy.path(program), ["--gtest_color=no", f"--gtest_filter=*-{self.without}"],
                                   {"QUOR_MUTATION_RECORD": name})
        if not ended or "Global test environment tear-down" not in output:
            raise SystemExit(f"mutate: {program} does not come to its end without a change:\n{output[-2000:]}")
        unfinished.rename(record)
        reach = Reach(record)
        say(f"{program} takes {sum(reach.seconds.values()):.0f} s"
            + (f"; left out, as it fails without a change: {' '.join(sorted(reach.failing))}" if reach.failing else ""))

    # ---- Trying -----------------------------------------------------------------------------------------------------

    def programs(self, change):
        folder = str(pathlib.PurePosixPath(change.file).parent)
        return [name for name in longest_fit(PROGRAMS, folder) if name in self.reach]

    def in_parallel(self, work):
        threads = [threading.Thread(target=work, args=(one,)) for one in self.sessions]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()

    def attempt(self, one, change):
        """(outcome, by what), for a change that is built in."""
        return self.noticed(one, change, self.copy.number(change))

    def attempt_alone(self, one, change):
        if not self.copy.build_alone(change, self.programs(change)):
            return "refused", "the compiler"
        return self.noticed(one, change, None)

    def noticed(self, one, change, number):
        reached = False
        for program in self.programs(change):
            reach = self.reach[program]
            for tests in reach.rounds(number, self.hints[change.file], self.most):
                reached = True
                culprit = self.failing_one(one, program, tests, number)
                if culprit:
                    return "noticed", f"{program} {culprit}"
        if not reached:
            return "survived", "no test reaches it"
        return "survived", "not all tests" if self.without or self.most < float("inf") else ""

    def failing_one(self, one, program, tests, number):
        """The first of the tests that fails, and fails again alone: on a busy machine a test may fail by itself."""
        left, silent = list(tests), 0
        while left:
            passed, output, _ = self.run(one, program, left, number)
            if passed:
                return None
            culprit = session.failed_test(output)
            if culprit not in left:
                # A machine that is busy may also keep the program from beginning.
                silent += 1
                if silent < 3:
                    continue
                return "does not begin" if culprit is None else culprit
            if not self.run(one, program, [culprit], number)[0]:
                return culprit
            # Others may fail as well, so those behind it have yet to run; those before it have passed.
            left.remove(culprit)
        return None

    def run(self, one, program, tests, number):
        reach = self.reach[program]
        # A file, because a command line has room for some hundred names only.
        flags = self.copy.scratch / f"flags-{one.number}"
        flags.write_text(f"--gtest_fail_fast\n--gtest_color=no\n--gtest_filter={':'.join(tests)}\n", encoding="utf-8")
        name = str(flags) if self.copy.is_native else session.windows_path(flags)
        settings = {} if number is None else {"QUOR_MUTANT": str(number)}
        seconds = [reach.seconds[test] for test in tests]
        return one.run(self.copy.path(program), [f"--gtest_flagfile={name}"], settings,
                       limit=10 + 4 * sum(seconds), silence=30 + 10 * max(seconds))
