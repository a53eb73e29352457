"""The tables of documented members: what they hold, and their declarations as text."""
import csv
import os
import re

# What the reference prints with a capital or small letter too many.
MISPRINTS = {'Const': 'const', 'Virtual': 'virtual', 'int_ptr': 'INT_PTR', 'arg_key': 'ARG_KEY', 'PUNIT': 'UINT*',
             'CImagelist': 'CImageList'}

FOLDER = os.path.dirname(os.path.abspath(__file__))


class Member:
    """One documented member of a class with all its declarations."""

    def __init__(self, class_name, name, access, text):
        self.class_name = class_name
        self.name = name
        self.access = access
        self.declarations = split_declarations(text)


def rows(name):
    """The lines of a table without its heading; nothing where there is no such table."""
    path = os.path.join(FOLDER, name)
    if not os.path.exists(path):
        return []
    with open(path, encoding='utf-8', newline='') as file:
        lines = [line for line in csv.reader(file, delimiter='\t', quoting=csv.QUOTE_NONE) if line]
    return [line for line in lines[1:] if not line[0].startswith('#')]


def documented_members():
    """All documented members, in the order of the tables, one Member for each class and name."""
    found = {}
    for table in ('members.tsv', 'members-extra.tsv'):
        for class_name, name, access, text in rows(table):
            if class_name in ('?', 'access'):
                continue
            member = Member(class_name, name, access, text)
            known = found.setdefault((class_name, name), member)
            if known is not member:
                known.declarations += member.declarations
                if known.access == '?':
                    known.access = member.access
    return list(found.values())


def kept_members():
    """Reachable members of the framework that the reference lacks: reason by class and member, * for all."""
    return {(class_name, name): reason for class_name, name, reason in rows('members-kept.tsv')}


class Shape:
    """How a class of the framework is documented: under which class, and with which names and types changed."""

    def __init__(self, documented, template, prelude, replacements):
        self.documented = documented
        self.template = template
        self.prelude = prelude
        self.replacements = replacements


def shapes():
    """The Shape of each class that is not simply documented under its own name."""
    found = {}
    for class_name, documented, template, prelude, replacements in rows('classes.tsv'):
        pairs = [pair.split(' -> ') for pair in replacements.split('; ') if pair]
        found[class_name] = Shape(documented, template, prelude, pairs)
    return found


def split_declarations(text):
    """The declarations of one cell of the table, without what has no meaning for the comparison."""
    text = re.sub(r'\b(AFX_DATA|AFX_INLINE|ATL_NOINLINE|AFX_CDECL)\b', '', text)
    for wrong, right in MISPRINTS.items():
        text = re.sub(r'\b%s\b' % wrong, right, text)
    parts, depth, start = [], 0, 0
    for at, unit in enumerate(text):
        depth += {'(': 1, '{': 1, ')': -1, '}': -1}.get(unit, 0)
        if unit == ';' and depth == 0:
            parts.append(text[start:at].strip())
            start = at + 1
    parts.append(text[start:].strip())
    return [part for part in parts if part]
