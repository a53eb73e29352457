"""The documents of the project: which there are, their headings, their links and their blocks of code."""
import os
import re
import subprocess
from dataclasses import dataclass

# What every block of C++ in these is held to; the others show excerpts and counter-examples.
FOR_USERS = re.compile(r'^(README\.md|docs/.*)$')


@dataclass
class Block:
    path: str
    line: int  # of the first line of code
    language: str
    kind: str  # what the comment above the block says: <!-- code: KIND -->
    code: str

    @property
    def place(self):
        return '%s:%d' % (self.path, self.line)


def documents(root):
    """The paths from the root, new files included."""
    listed = subprocess.run(['git', '-C', root, 'ls-files', '--cached', '--others', '--exclude-standard', '*.md'],
                            capture_output=True, text=True, check=True).stdout.split('\n')
    return sorted(path for path in listed if path and os.path.exists(os.path.join(root, path)))


def read(root, path):
    with open(os.path.join(root, path), encoding='utf-8') as file:
        return file.read()


def blocks(root, path):
    kind, start, language = '', None, ''
    lines = read(root, path).split('\n')
    for number, line in enumerate(lines, 1):
        if start is None:
            marker = re.match(r'<!-- code: (.*) -->$', line)
            fence = re.match(r'```(\w*)$', line)
            if marker:
                kind = marker.group(1)
            elif fence:
                start, language = number, fence.group(1)
            elif line.strip():
                kind = ''
        elif line == '```':
            yield Block(path, start + 1, language, kind, '\n'.join(lines[start:number - 1]) + '\n')
            kind, start = '', None


def without_code(text):
    """The text with empty lines where blocks of code are, fenced or indented."""
    kept, fenced, previous_blank, indented = [], False, True, False
    for line in text.split('\n'):
        if line.startswith('```'):
            fenced = not fenced
            kept.append('')
            continue
        is_list = re.match(r'\s*([-*]|\d+\.) ', line)
        indented = line.startswith('    ') and not is_list and (previous_blank or indented)
        previous_blank = not line.strip() and not indented or previous_blank and not line.strip()
        kept.append('' if fenced or indented else line)
        if line.strip():
            previous_blank = False
    return '\n'.join(kept)


def anchors(text):
    """The anchors that the headings of a document get where it is shown."""
    found, times = set(), {}
    for line in without_code(text).split('\n'):
        heading = re.match(r'#+ +(.*?) *$', line)
        if not heading:
            continue
        title = re.sub(r'\[([^\]]*)\]\([^)]*\)', r'\1', heading.group(1)).replace('`', '')
        anchor = re.sub(r'[^\w\- ]', '', title.lower()).replace(' ', '-')
        number = times.get(anchor, 0)
        times[anchor] = number + 1
        found.add(anchor if number == 0 else '%s-%d' % (anchor, number))
    return found
