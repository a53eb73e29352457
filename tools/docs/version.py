"""One place states the version, CMakeLists.txt; this compares what else names it.

    version.py ROOT
"""
import re
import sys

from documents import documents, read


def stated(root):
    return re.search(r'^project\(QuorUiCtrl VERSION (\d+\.\d+\.\d+) ', read(root, 'CMakeLists.txt'), re.M).group(1)


def numbers(version):
    return [int(number) for number in version.split('.')]


def faults(root, version):
    released = re.findall(r'^## \[(\d[^\]]*)\]', read(root, 'CHANGELOG.md'), re.M)
    if not released or released[0] != version:
        yield 'CHANGELOG.md: its newest version is %s' % (released[:1] or 'none')
    # What generates QuorVersion.h, from which the version record and the about box take it.
    if '"@PROJECT_VERSION@"' not in read(root, 'cmake/QuorVersion.h.in'):
        yield 'cmake/QuorVersion.h.in does not take the version of the project'
    record = read(root, 'module/QuorUiCtrl.rc')
    for key, value in re.findall(r'^ *(FILEVERSION|PRODUCTVERSION|VALUE "(?:File|Product)Version",) +(\S+)$', record, re.M):
        if not value.startswith('QUOR_VERSION'):
            yield 'module/QuorUiCtrl.rc: %s %s is a version of its own' % (key, value)
    if 'QUOR_VERSION' not in read(root, 'samples/gallery/AboutBox.cpp'):
        yield 'samples/gallery/AboutBox.cpp does not show QUOR_VERSION'
    hosts = ['samples/minimal/CMakeLists.txt', 'samples/recipes/CMakeLists.txt', 'tools/docs/samples/CMakeLists.txt']
    for path in documents(root) + hosts:
        for wanted in re.findall(r'find_package\(QuorUiCtrl (\d[\d.]*)', read(root, path)):
            if numbers(wanted)[0] != numbers(version)[0] or numbers(wanted) > numbers(version):
                yield '%s: find_package asks for %s' % (path, wanted)


def main():
    root = sys.argv[1]
    version = stated(root)
    found = list(faults(root, version))
    print('\n'.join(found) if found else 'version %s everywhere' % version)
    return 1 if found else 0


if __name__ == '__main__':
    sys.exit(main())
