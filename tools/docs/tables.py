"""Compares the tables of the guide with the sources they tell of, so that they cannot be wrong.

    tables.py ROOT [--write]

keys.py makes the tables of keys; --write writes them. The tables of style flags, messages and hooks are written by hand and
must name all that there are, and nothing else.
"""
import os
import re
import sys

from documents import read
from keys import GUIDE, Fault, check_mouse, write_between, write_tables

def named_first(text, heading):
    """What the first cells of the table below a heading name in code, in order."""
    section = re.search(r'^#+ %s\n(.*?)(?=^#|\Z)' % re.escape(heading), text, re.S | re.M)
    if not section:
        raise Fault('no heading "%s"' % heading)
    cells = re.findall(r'^\| (.*?) \|', section.group(1), re.M)
    return [name for cell in cells for name in re.findall(r'`(\w+)', cell)]


def compare(path, heading, text, wanted):
    found = named_first(text, heading)
    missing = [name for name in wanted if name not in found]
    strange = [name for name in found if name not in wanted]
    if missing or strange or len(found) != len(set(found)):
        raise Fault('%s, "%s": missing %s; unknown %s; each once' % (path, heading, missing, strange))
    return len(found)


def setters(root, header):
    """The Set... functions that take a flag."""
    return sorted(set(re.findall(r'void (Set\w+)\(bool on\)', read(root, header))))


# Flags that no still picture shows; the editor of one line stands beside that of several.
WITHOUT_PICTURE = {'SetLabelSort', 'SetShowDragContext', 'TVS_DISABLEDRAGDROP', 'PrepareControl', 'ES_AUTOHSCROLL'}


def check_pictures(root):
    """Every flag of the guide has a picture in docs/pictures/styles, which its page shows, and there are no others."""
    shown = set()
    for page, heading, prefix in (('grid.md', 'Style flags', ''), ('grid.md', 'Columns', 'column-'),
                                  ('property-grid.md', 'Style flags', 'properties-'),
                                  ('drag-tree.md', 'Styles', 'tree-'), ('report-list.md', 'Styles', 'list-')):
        text = read(root, GUIDE + page)
        for flag in set(named_first(text, heading)) - WITHOUT_PICTURE:
            if '(../pictures/styles/%s%s.png)' % (prefix, flag) not in text:
                raise Fault('%s%s: no picture of what %s changes; see tools/take-pictures.sh' % (GUIDE, page, flag))
            shown.add('%s%s.png' % (prefix, flag))
    strange = set(os.listdir(os.path.join(root, 'docs/pictures/styles'))) - shown
    if strange:
        raise Fault('docs/pictures/styles: no page shows %s' % ', '.join(sorted(strange)))
    return len(shown)


def hooks(root):
    """The hooks that the recorder overrides, which are all."""
    names = re.findall(r'HookGroup::\w+', read(root, 'samples/recording/HookRecorder.h'))
    listed = re.findall(r'[\w*] (On\w+)\([^;]*?\)(?: const)? override', read(root, 'samples/recording/HookRecorder.h'))
    if len(names) != len(listed):
        raise Fault('HookRecorder.h: hooks are not written as tables.py reads them')
    return listed


def write_hooks(root, write):
    """The declarations of the hooks as a host overrides them, from the header of the grid."""
    declared = re.findall(r'^    virtual (.*\bOn\w+\(.*\)(?: const)?);$', read(root, 'grid/TGGrid.h'), re.M)
    names = [re.search(r'(On\w+)\(', line).group(1) for line in declared]
    if sorted(names) != sorted(hooks(root)):
        raise Fault('grid/TGGrid.h: hooks are not written as tables.py reads them')
    code = '<!-- code: members(TGGrid) -->\n```cpp\n%s\n```' % '\n'.join(line + ' override;' for line in declared)
    write_between(root, 'hooks.md', 'hooks', code, write)


def main():
    root, write = sys.argv[1], '--write' in sys.argv
    report = ['%d keys of %d controls' % write_tables(root, write), '%d mouse messages' % check_mouse(root)]
    grid = read(root, GUIDE + 'grid.md')
    flags = [name for name in setters(root, 'grid/TGGridStyle.h')] + ['SetRowSel', 'SetColSel', 'SetTreeLine']
    report.append('%d style flags of the grid' % compare('grid.md', 'Style flags', grid, flags))
    report.append('%d of columns' % compare('grid.md', 'Columns', grid, setters(root, 'grid/TGGridCol.h')))
    report.append('%d flags in pictures' % check_pictures(root))
    write_hooks(root, write)
    all_hooks = hooks(root)
    page = read(root, GUIDE + 'hooks.md')
    told = [name for heading in re.findall(r'^## (The hooks of .*)$', page, re.M) for name in named_first(page, heading)]
    missing = [name for name in all_hooks if told.count(name) != all_hooks.count(name)]
    strange = [name for name in told if name not in all_hooks]
    if missing or strange:
        raise Fault('hooks.md: not told as often as there are: %s; unknown: %s' % (missing, strange))
    report.append('%d of %d hooks' % (len(told), len(all_hooks)))
    messages = re.findall(r'constexpr UINT (TDM_\w+)', read(root, 'treedrag/CTreeCtrlDrag.h'))
    report.append('%d messages of the drag tree' % compare(
        'drag-tree.md', 'Messages to the parent', read(root, GUIDE + 'drag-tree.md'), messages))
    print('tables as in the sources: ' + ', '.join(report))


if __name__ == '__main__':
    try:
        main()
    except Fault as fault:
        sys.exit(str(fault))
