"""The guide's tables of keys, made from the sources, and what its tables of the mouse are held against."""
import re

from documents import read

GUIDE = 'docs/guide/'
KEY_NAMES = {'TAB': 'Tab', 'RETURN': 'Enter', 'ESCAPE': 'Esc', 'PRIOR': 'Page Up', 'NEXT': 'Page Down', 'HOME': 'Home',
             'END': 'End', 'LEFT': 'Left', 'RIGHT': 'Right', 'UP': 'Up', 'DOWN': 'Down', 'INSERT': 'Insert',
             'DELETE': 'Delete', 'SPACE': 'Space', 'ADD': 'Num +', 'SUBTRACT': 'Num -', 'MULTIPLY': 'Num *'}
MOUSE_ENTRY = re.compile(r'^ +ON_WM_((?:[LRM]BUTTON|MOUSE|CAPTURE)\w+)\(\)|^ +ON_NOTIFY_REFLECT\((TVN_BEGINDRAG)', re.M)


class Fault(Exception):
    pass


def key_name(code):
    if code.startswith("'"):
        return code.strip("'")
    name = code.removeprefix('VK_')
    return KEY_NAMES.get(name, name.capitalize() if not re.match(r'F\d', name) else name)


def lines_of(root, name):
    return [line for line in read(root, 'tools/docs/' + name).splitlines() if line and not line.startswith('#')]


# ---- The grid, which has a table of keys

def grid_keys(root):
    source = read(root, 'grid/input/GridKeyMap.cpp')
    table = re.search(r'GridKeyMap::Entries\[\] = \{(.*?)\n\};', source, re.S).group(1)
    words = dict(line.split('\t', 1) for line in lines_of(root, 'key-actions.tsv'))
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
        raise Fault('GridKeyMap.cpp: the table of keys is not what keys.py reads')
    return '\n'.join(rows)


# ---- The other controls, whose functions look for keys

def body_of(root, path, name):
    """A function, an enumeration or a list of codes."""
    found = re.search(r'^[^\n;]*\b%s\b[^\n;]*?(?:\n\{.*?^\}|\{[^\n]*\};)' % re.escape(name), read(root, path), re.M | re.S)
    if not found:
        raise Fault('%s: there is no %s as control-keys.tsv names it' % (path, name))
    return found.group()


def codes_in(body):
    if body.lstrip().startswith('enum'):
        return set(re.findall(r'^ +(\w+) = 0x', body, re.M))
    return set(re.findall(r"VK_\w+|'[^'\\]'|\b0x[0-9A-F]{2}\b(?! *;)", body)) - {'VK_SHIFT'}


def control_keys(root):
    """The tables by page."""
    pages, place, wanted = {}, None, set()

    def finish():
        if place is not None and codes_in(body_of(root, place[2], place[3])) != wanted:
            raise Fault('%s looks for the keys %s, tools/docs/control-keys.tsv has %s' % (
                place[3], sorted(codes_in(body_of(root, place[2], place[3]))), sorted(wanted)))

    for line in lines_of(root, 'control-keys.tsv'):
        if line.startswith('= '):
            finish()
            place, wanted = line[2:].split(' | '), set()
            continue
        code, name, words = line.split('\t')
        wanted.add(code)
        columns = pages.setdefault(place[0], {})
        columns.setdefault(place[1], {})
        if words:
            columns[place[1]][name] = words
    finish()
    return {page: merged(columns) for page, columns in pages.items()}


def merged(columns):
    names = list(dict.fromkeys(name for keys in columns.values() for name in keys))
    rows = ['| Key | %s |' % ' | '.join(columns), '|---' * (len(columns) + 1) + '|']
    rows += ['| %s | %s |' % (name, ' | '.join(keys.get(name, '') for keys in columns.values())) for name in names]
    return '\n'.join(rows).replace('|  |', '| |').replace('|  |', '| |')


# ---- All of them

def write_between(root, page, name, wanted, write):
    """Compares what a page has between <!-- table: NAME --> and <!-- end of table -->, or writes it."""
    text = read(root, GUIDE + page)
    made, number = re.subn(r'(<!-- table: %s -->\n).*?(<!-- end of table -->)' % name,
                           lambda match: match.group(1) + wanted + '\n' + match.group(2), text, flags=re.S)
    if number != 1:
        raise Fault('%s%s: there is no table of %s' % (GUIDE, page, name))
    if made != text and not write:
        raise Fault('%s%s: the table of %s is not that of the sources; tools/check-docs.sh --write makes it'
                    % (GUIDE, page, name))
    if made != text:
        with open('%s/%s%s' % (root, GUIDE, page), 'w', encoding='utf-8') as file:
            file.write(made)


def write_tables(root, write):
    """Returns the number of keys and of controls."""
    tables = {'grid.md': grid_keys(root), **control_keys(root)}
    for page, wanted in tables.items():
        write_between(root, page, 'keys', wanted, write)
    return sum(table.count('\n') - 1 for table in tables.values()), len(tables)


def check_mouse(root):
    """A table of the mouse names above it what the sources handle: <!-- mouse in FILE...: MESSAGE... -->"""
    number = 0
    for page in ('grid.md', 'drag-tree.md', 'report-list.md', 'select-all-edit.md', 'property-grid.md'):
        comment = re.search(r'<!-- mouse in ([^:]*): ([^>]*) -->', read(root, GUIDE + page))
        if not comment:
            raise Fault('%s%s: no table of the mouse says which sources it tells of' % (GUIDE, page))
        handled = {plain or notified for path in comment.group(1).split()
                   for plain, notified in MOUSE_ENTRY.findall(read(root, path))}
        if handled != set(comment.group(2).split()):
            raise Fault('%s%s: its table of the mouse was written for %s; the sources handle %s'
                        % (GUIDE, page, comment.group(2), ' '.join(sorted(handled))))
        number += len(handled)
    return number
