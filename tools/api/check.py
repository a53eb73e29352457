"""The checks of tools/check-api.sh."""
import argparse
import os
import sys
import time

import compare
import compile as compiling
import declarations
import framework_page
import includes
import layout
import tables
import uses


class Report:
    """Counts what was checked and prints what is wrong."""

    def __init__(self):
        self.violations = 0
        self.started = time.monotonic()

    def say(self, text):
        print('check-api: [%4.0f s] %s' % (time.monotonic() - self.started, text), flush=True)

    def violation(self, text):
        self.violations += 1
        print('check-api: violation: %s' % text, flush=True)

    def failures(self, found):
        """What clang said of files, shortened to the lines that name a problem."""
        for path, text in sorted(found.items()):
            lines = [line for line in text.splitlines() if ': error:' in line or ': warning:' in line]
            for line in lines or text.splitlines()[:5] or ['clang failed']:
                self.violation(line if ':' in line else path + ': ' + line)


def check_compilers(report, compiler, only):
    # Where Microsoft's compiler is, so is MFC: it never sees the sources of the framework.
    parts = {'gnu': layout.PARTS, 'microsoft': [part for part in layout.PARTS if part.name != 'framework']}
    for mode in parts:
        found, number = compiler.check_sources(mode, parts[mode], only)
        report.failures(found)
        report.say('clang compiled %d sources in %s mode, %d of them with complaints' % (number, mode, len(found)))


def check_headers(report, compiler, only):
    found, number = compiler.check_headers(only)
    report.failures(found)
    report.say('%d public headers compiled alone, %d of them with complaints' % (number, len(found)))


def check_includes(report, root):
    found, number = includes.missing(root)
    for text in found:
        report.violation(text)
    report.say('%d files name the standard headers they use, %d names are missing' % (number, len(found)))


def read_framework(report, root):
    """The framework held against the reference; says what differs."""
    members = tables.documented_members()
    classes, internal, documented = declarations.read(root, members, tables.shapes())
    comparison = compare.Comparison(classes, internal, documented, tables.kept_members())
    comparison.run()
    for finding in comparison.findings:
        report.violation(str(finding))
    reachable = sum(len(owner.reachable()) for owner in classes.values())
    undocumented = sum(len(found) for found in comparison.undocumented.values())
    report.say('the framework has %d classes with %d members that programs reach: %d as documented, %d kept for a '
               'reason, %d undocumented, %d differing' % (
                   len(classes), reachable, len(comparison.matched), comparison.kept_count, undocumented,
                   len(comparison.findings) - undocumented))
    return classes, compare.coverage(classes, internal, members, comparison), comparison


def check_uses(report, root, compiler, classes, comparison, only):
    used, overridden, failures, number = uses.read(root, compiler, compiler.jobs, only)
    report.failures({path: '\n'.join(lines) for path, lines in failures.items()})
    known = {member.usr: (owner, member) for owner in classes.values() for member in owner.members}
    wrong = 0
    for usr, place in sorted(list(used.items()) + list(overridden.items())):
        owner, member = known.get(usr, (None, None))
        if member is None or usr not in comparison.wrong:
            continue
        wrong += 1
        report.violation('%s: uses %s::%s, which the reference does not list so' % (place, owner.name, member.name))
    report.say('%d sources of library and samples use %d members of the framework and override %d, %d not as '
               'documented' % (number, len(used), len(overridden), wrong))


def check_macros(report, root):
    listed = {row[0] for row in tables.rows('macros.tsv')}
    used = uses.macros_used(root)
    wrong = sorted(name for name in used if name not in listed)
    for name in wrong:
        report.violation('%s: uses the macro %s, which the reference does not list' % (used[name], name))
    report.say('library and samples use %d macros of the framework, %d of them undocumented' % (
        len(used), len(wrong)))


def check_page(report, root, text):
    path = os.path.join(root, framework_page.PATH)
    current = ''
    if os.path.exists(path):
        with open(path, encoding='utf-8') as file:
            current = file.read()
    if current != text:
        report.violation('%s is out of date: run tools/check-api.sh --write-docs' % framework_page.PATH)


def parse_arguments():
    parser = argparse.ArgumentParser(prog='check-api.sh')
    parser.add_argument('--write-docs', action='store_true', help='write docs/FRAMEWORK.md and check nothing else')
    parser.add_argument('--members-only', action='store_true', help='check declarations and uses, compile nothing')
    parser.add_argument('--only', action='append', help='compile and look at this file alone')
    parser.add_argument('--root', default='.')
    parser.add_argument('--work', default='build/api')
    parser.add_argument('--jobs', type=int, default=os.cpu_count())
    return parser.parse_args()


def main():
    options = parse_arguments()
    report = Report()
    root = os.path.abspath(options.root)
    classes, shares, comparison = read_framework(report, root)
    page = framework_page.text(classes, shares, comparison)
    if options.write_docs:
        with open(os.path.join(root, framework_page.PATH), 'w', encoding='utf-8') as file:
            file.write(page)
        return report.violations
    compiler = compiling.Compiler(root, os.path.abspath(options.work), options.jobs)
    check_page(report, root, page)
    check_includes(report, root)
    check_macros(report, root)
    check_uses(report, root, compiler, classes, comparison, options.only)
    if not options.members_only:
        check_compilers(report, compiler, options.only)
        check_headers(report, compiler, options.only)
    report.say('%d violations' % report.violations)
    return report.violations


if __name__ == '__main__':
    sys.exit(1 if main() else 0)
