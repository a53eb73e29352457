"""Dead links: relative paths and anchors in all documents.

    links.py ROOT
"""
import os
import re
import sys

from documents import anchors, documents, read, without_code


def links(text):
    for number, line in enumerate(without_code(text).split('\n'), 1):
        for target in re.findall(r'\]\(([^)\s]+)\)', line):
            if not re.match(r'[a-z]+:', target):
                yield number, target


def main():
    root = sys.argv[1]
    dead, count = [], 0
    for path in documents(root):
        for number, target in links(read(root, path)):
            count += 1
            file, _, anchor = target.partition('#')
            aim = os.path.normpath(os.path.join(os.path.dirname(path), file)) if file else path
            if not os.path.exists(os.path.join(root, aim)):
                dead.append('%s:%d: there is no %s' % (path, number, aim))
            elif anchor and anchor not in anchors(read(root, aim)):
                dead.append('%s:%d: %s has no heading for #%s' % (path, number, aim, anchor))
    print('\n'.join(dead + ['%d relative links, %d dead' % (count, len(dead))]))
    return 1 if dead else 0


if __name__ == '__main__':
    sys.exit(main())
