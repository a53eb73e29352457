"""Compares the tables of the guide with the sources they tell of, so that they cannot be wrong.

    tables.py ROOT [--write]

The key tables are made from the key map of the grid and the words in key-actions.tsv; --write writes them. The tables of
style flags, resources, messages and hooks are written by hand and must name all that there are, and nothing else.
"""
import os
import re
import sys

from documents import read

GUIDE = 'docs/guide/'
KEY_NAMES = {'TAB': 'Tab', 'RETURN': 'Enter', 'ESCAPE': 'Esc', 'PRIOR': 'Page Up', 'NEXT': 'Page Down', 'HOME': 'Home',
             'END': 'End', 'LEFT': 'Left', 'RIGHT': 'Right', 'UP': 'Up', 'DOWN': 'Down', 'INSERT': 'Insert',
             'DELETE': 'Delete', 'SPACE': 'Space', 'ADD': 'Num +', 'SUBTRACT': 'Num -', 'MULTIPLY': 'Num *'}


class Fault(Exception):
    pass


def key_name(code):
    if code.startswith("'"):
        return code.strip("'")
    name = code.removeprefix('VK_')
    return KEY_NAMES.get(name, name.capitalize() if not re.match(r'F\d', name) else name)


def key_table(root):
    source = read(root, 'grid/input/GridKeyMap.cpp')
    table = re.search(r'GridKeyMap::Entries\[\] = \{(.*?)\n\};', source, re.S).group(1)
    words = dict(line.split('\t', 1) for line in read(root, 'tools/docs/key-actions.tsv').splitlines()
                 if line and not line.startswith('#'))
    used, rows = set(), ['| Key | Alone | With Ctrl |', '|---|---|---|']
    for code, plain, control in re.findall(r"\{(VK_\w+|'\w'),\s*&GridKeyMap::(\w+),\s*&GridKeyMap::(\w+)\}", table):
        for action in (plain, control):
            if action not in words:
                raise Fault('tools/docs/key-actions.tsv: no words for the action %s of GridKeyMap.cpp' % action)
        used |= {plain, control}
        rows.append('| %s | %s | %s |' % (key_name(code), words[plain],
                                          'the same' if plain == control else words[control]))
    if set(words) - used:
        raise Fault('tools/docs/key-actions.tsv: no key does %s' % ', '.join(sorted(set(words) - used)))
    if len(rows) - 2 != table.count('&GridKeyMap::') // 2:
        raise Fault('GridKeyMap.cpp: the table of keys is not what tables.py reads')
    return '\n'.join(rows)


def check_key_table(root, write):
    path = GUIDE + 'grid.md'
    text = read(root, path)
    pattern = r'(<!-- table: keys -->\n).*?(<!-- end of table -->)'
    wanted = key_table(root)
    made, number = re.subn(pattern, lambda match: match.group(1) + wanted + '\n' + match.group(2), text, flags=re.S)
    if number != 1:
        raise Fault('%s: there is no table of keys' % path)
    if made != text and not write:
        raise Fault('%s: the table of keys is not that of GridKeyMap.cpp; tools/check-docs.sh --write makes it' % path)
    if made != text:
        with open(os.path.join(root, path), 'w', encoding='utf-8') as file:
            file.write(made)
    return wanted.count('\n') - 1


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


def hooks(root):
    """The hooks that the recorder overrides, which are all."""
    names = re.findall(r'HookGroup::\w+', read(root, 'samples/recording/HookRecorder.h'))
    listed = re.findall(r'[\w*] (On\w+)\([^;]*?\)(?: const)? override', read(root, 'samples/recording/HookRecorder.h'))
    if len(names) != len(listed):
        raise Fault('HookRecorder.h: hooks are not written as tables.py reads them')
    return listed


def main():
    root, write = sys.argv[1], '--write' in sys.argv
    report = ['%d keys' % check_key_table(root, write)]
    grid = read(root, GUIDE + 'grid.md')
    flags = [name for name in setters(root, 'grid/TGGridStyle.h')] + ['SetRowSel', 'SetColSel', 'SetTreeLine']
    report.append('%d style flags of the grid' % compare('grid.md', 'Style flags', grid, flags))
    report.append('%d of columns' % compare('grid.md', 'Columns', grid, setters(root, 'grid/TGGridCol.h')))
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
