#!/usr/bin/env python3
"""Makes small deliberate changes to the sources and tells which of them no test notices.

    tools/mutate.py                         every change of the plan, as far as no earlier run has tried it
    tools/mutate.py --folder grid/tree      only changes of this folder; may be given more than once
    tools/mutate.py --only ID               only this change; may be given more than once
    tools/mutate.py --kind release          only changes of this kind; may be given more than once
    tools/mutate.py --survivors             once more those that no test has noticed so far: after tests were added
    tools/mutate.py --again                 also what an earlier run has tried
    tools/mutate.py --sample 50 --seed 7    only so many, of all folders alike
    tools/mutate.py --variant mingw-checked leaks are noticed in the checked variant only
    tools/mutate.py --native                only with the tests of rules and collections, which need no Wine
    tools/mutate.py --without '*Fuzz.*'     only with the other tests
    tools/mutate.py --most 10               at most so many seconds of tests of each program for a change; what survives
                                            this or the line above is worth another run with all
    tools/mutate.py --jobs 2                so many programs at the same time
    tools/mutate.py --list                  lists the plan with what is known of each change
    tools/mutate.py --report                prints scores and survivors of all runs so far
    tools/mutate.py --write-docs            puts the scores of all runs so far into docs/RELIABILITY.md
    tools/mutate.py --show ID               shows one change

The plan is tools/mutations/places.tsv, changes written down by hand, and a sample of what rules make of the
sources: the same sample on each machine, as a change is named after the line that it changes. What
cannot matter is listed with its reason in tools/mutations/harmless.tsv, and does not count.

A copy of the sources below the build folder is built once with all changes in it; each is a choice that the
program makes at run time, (On(17) ? (changed) : (original)), and QUOR_MUTANT=17 switches this one on. One run of
each program records which test reaches which choice. Then each change costs only the tests that reach it, the
quickest first, up to the first that fails, crashes or takes much longer than it should. What the compiler takes in no such
form, such as a type or a constant of its own, is built and tried by itself.

Results are kept below the build folder, so that a run that was ended goes on where it was. The parts are in
tools/mutation: plan.py, which changes; switches.py, how they are built in; copy.py, the build; session.py, a run;
trial.py, recording and trying; results.py, scores.
"""

import argparse
import collections
import hashlib
import itertools
import os
import pathlib
import sys
import time

sys.dont_write_bytecode = True

from mutation.copy import Copy, say
from mutation.plan import ROOT, longest_fit, plan
from mutation.results import Results, area, report, show, write_docs
from mutation.trial import NATIVE_PROGRAMS, PROGRAMS, Trials

BUILD = pathlib.Path(os.environ.get("QUOR_BUILD", ROOT / "build"))


def parse():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--folder", action="append", default=[])
    parser.add_argument("--only", action="append", default=[])
    parser.add_argument("--kind", action="append", default=[])
    parser.add_argument("--survivors", action="store_true")
    parser.add_argument("--again", action="store_true")
    parser.add_argument("--sample", type=int)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--variant", choices=["mingw-release", "mingw-checked"], default="mingw-release")
    parser.add_argument("--everything", action="store_true", help="all changes by rule, not the sample")
    parser.add_argument("--scratch", type=pathlib.Path, default=BUILD / "mutate")
    parser.add_argument("--native", action="store_true")
    parser.add_argument("--without", default="", metavar="TESTS")
    parser.add_argument("--most", type=float, default=float("inf"), metavar="SECONDS")
    parser.add_argument("--jobs", type=int, default=1)
    parser.add_argument("--list", action="store_true")
    parser.add_argument("--report", action="store_true")
    parser.add_argument("--write-docs", action="store_true")
    parser.add_argument("--show", metavar="ID")
    return parser.parse_args()


def chosen(changes, options, results):
    for change in changes:
        folder = str(pathlib.PurePosixPath(change.file).parent)
        outcome = results.outcome(change.id)
        if options.folder and not any(longest_fit({name.rstrip("/"): True}, folder) for name in options.folder):
            continue
        if options.kind and change.kind not in options.kind:
            continue
        if options.only and change.id not in options.only:
            continue
        if options.survivors and not (outcome and outcome[0] == "survived"):
            continue
        yield change


def in_order(changes):
    """The library before the framework."""
    return sorted(changes, key=lambda change: area(change.file).startswith("framework"))


def drawn(changes, number, seed):
    """So many of the changes, one folder after the other having its turn."""
    folders = collections.defaultdict(list)
    for one in sorted(changes, key=lambda c: hashlib.sha1(f"{seed} {c.id}".encode()).hexdigest()):
        folders[area(one.file)].append(one)
    turns = itertools.zip_longest(*(folders[name] for name in sorted(folders)))
    return [one for turn in turns for one in turn if one is not None][:number]


def programs_of(change, options):
    programs = longest_fit(PROGRAMS, str(pathlib.PurePosixPath(change.file).parent))
    return [name for name in programs if name in NATIVE_PROGRAMS or not options.native]


def main():
    options = parse()
    if options.show or options.only:
        options.everything = True
    scratch = options.scratch.resolve()
    scratch.mkdir(parents=True, exist_ok=True)
    results = Results(scratch / "results.tsv")
    changes = plan(options.everything)
    wanted = in_order(chosen(changes, options, results))
    if options.sample is not None:
        wanted = drawn(wanted, options.sample, options.seed)
    if options.show:
        for change in changes:
            if change.id == options.show:
                print(f"{change.file}:{change.line + 1}")
                show(change)
    elif options.list:
        for change in wanted:
            print("\t".join([change.id, f"{change.file}:{change.line + 1}", *(results.outcome(change.id) or ["-"])]))
        print(f"{len(wanted)} changes")
    elif options.write_docs:
        write_docs(wanted, results)
    else:
        if not options.report:
            attempt_all(wanted, plan(False), options, results, scratch)
        report(wanted, results)


def attempt_all(wanted, planned, options, results, scratch):
    again = options.again or options.survivors or options.only
    due = [change for change in wanted if again or not results.is_settled(change.id, options.variant)]
    due = [change for change in due if programs_of(change, options)]
    if not due:
        return
    programs = sorted({program for change in due for program in programs_of(change, options)})
    copy = Copy(options.variant, scratch, options.native)
    # All of the plan is built in, whatever is due, so that another run need not build anew.
    copy.prepare(programs, [*planned, *(change for change in due if change not in planned)])
    trials = Trials(copy, options.jobs, options.without, options.most)
    try:
        trials.record(programs)
        attempt_each(due, options, results, trials)
    finally:
        trials.end()


def attempt_each(due, options, results, trials):
    """Those that are built in; then the others, one after another, as each needs a build."""
    switched = [change for change in due if change.id in trials.copy.switched]
    alone = [change for change in due if change.id not in trials.copy.switched]
    done = itertools.count(1)

    def keep(change, outcome, by, seconds):
        # Under Wine the tests of the controls may notice it still.
        if not (options.native and outcome == "survived"):
            results.add(change.id, trials.copy.variant, outcome, by, seconds)
        if outcome == "noticed":
            trials.hints[change.file].append(by.partition(" ")[2])
        place = f"{change.file}:{change.line + 1}"
        say(f"{next(done)}/{len(due)} {change.id} {place} {outcome}{' ' + by if by else ''} ({seconds:.0f} s)")

    def tried(one, change, attempt):
        start = time.monotonic()
        outcome, by = attempt(one, change)
        with trials.lock:
            keep(change, outcome, by, time.monotonic() - start)

    waiting = list(switched)

    def work(one):
        while True:
            with trials.lock:
                if not waiting:
                    return
                change = waiting.pop(0)
            tried(one, change, trials.attempt)

    trials.in_parallel(work)
    for change in alone:
        tried(trials.sessions[0], change, trials.attempt_alone)


if __name__ == "__main__":
    sys.exit(main())
