"""clang-tidy over library and samples, folder by folder as the build compiles them.

    tidy.py ROOT WORK [FOLDER...]

Prints the findings and how many there were; fails when there was one. WORK is a folder for what is written.
"""
import collections
import os
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

sys.path.insert(0, os.path.join(os.path.dirname(__file__), '..', 'api'))
import layout

# What the compilers warn of is their business.
QUIET = ['-Wno-everything']
# Every source in these is a program of its own.
PROGRAMS = ('samples/recipes',)


def write_version(root, work):
    """The header that CMake makes of a template; any numbers will do."""
    with open(os.path.join(root, 'cmake/QuorVersion.h.in'), encoding='utf-8') as file:
        text = re.sub(r'@\w+@', '0', file.read())
    with open(os.path.join(work, 'QuorVersion.h'), 'w', encoding='utf-8') as file:
        file.write(text)


def joined_folders(root, work, wanted):
    """Writes a source for each folder that includes the folder's sources; yields it with the part's arguments."""
    for part in layout.PARTS:
        if part.name == 'framework':
            continue
        arguments = layout.part_arguments(root, part)
        framework = os.path.normpath(os.path.join(root, 'framework/include'))
        arguments[arguments.index(framework) - 1] = '-isystem'
        folders = collections.defaultdict(list)
        for path in layout.sources(root, part):
            folder = os.path.dirname(path)
            folders[path if folder in PROGRAMS else folder].append(path)
        for folder, paths in folders.items():
            if wanted and folder not in wanted:
                continue
            joined = os.path.join(work, folder.replace('/', '-') + '.cpp')
            with open(joined, 'w', encoding='utf-8') as file:
                file.writelines('#include "%s"\n' % os.path.join(root, path) for path in paths)
            yield folder, joined, arguments


def findings(root, work, joined, arguments):
    outcome = subprocess.run(
        ['clang-tidy', '--quiet', '--config-file=' + os.path.join(root, '.clang-tidy'), joined, '--']
        + layout.platform_arguments() + arguments + ['-I', work] + QUIET,
        capture_output=True, text=True, cwd=root)
    lines = [line for line in outcome.stdout.splitlines() if re.search(r': (error|warning): ', line)]
    if outcome.returncode and not lines:
        lines = [outcome.stderr.strip()]
    return lines


def main():
    root, work = map(os.path.abspath, sys.argv[1:3])
    os.makedirs(work, exist_ok=True)
    write_version(root, work)
    tasks = list(joined_folders(root, work, sys.argv[3:]))
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        found = pool.map(lambda task: findings(root, work, *task[1:]), tasks)
    lines = sorted({line.replace(root + '/', '') for lines in found for line in lines})
    print(*lines, sep='\n')
    print('check-style: clang-tidy read %d folders, %d findings' % (len(tasks), len(lines)))
    return bool(lines)


if __name__ == '__main__':
    sys.exit(main())
