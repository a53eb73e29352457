"""Spelling of the documents and of the comments in the public headers, by hunspell with British English.

    spelling.py ROOT HEADER...      headers are paths from the root

What a program would not take for prose is left out: code, links, and words with capitals inside, digits or underscores.
Words that the dictionary lacks stand in words.txt beside this script, sorted, each used somewhere.
"""
import os
import re
import subprocess
import sys

from documents import FOR_USERS, documents, read, without_code


def prose_of_document(text):
    text = re.sub(r'<!--.*?-->', lambda match: re.sub(r'[^\n]', ' ', match.group()), without_code(text), flags=re.S)
    text = re.sub(r'\]\([^)]*\)', ']', text)
    return re.sub(r'`[^`\n]*`', ' ', text).split('\n')


def prose_of_header(text):
    """The comments, without the lines of code in them."""
    for line in text.split('\n'):
        comment = re.search(r'//(.*)', line)
        yield '' if not comment or comment.group(1).startswith('     ') else re.sub(
            r'"[^"]*"|`[^`]*`|\S*[/()\\<>]\S*', ' ', comment.group(1))


def words(line):
    for token in re.findall(r"[\w'’.:+*#@-]+", line):
        if re.search(r'\w(\.|::)\w', token):
            continue
        for word in re.split(r"[-.:+*]", token):
            word = word.replace('’', "'").strip("'_")
            word = re.sub(r"'s$", '', word)
            if re.fullmatch(r"[A-Z]?[a-z']{2,}", word):
                yield word


def unknown_words(known):
    outcome = subprocess.run(['hunspell', '-d', 'en_GB', '-l'], input='\n'.join(sorted(known)) + '\n',
                             capture_output=True, text=True, check=True, env={**os.environ, 'LC_ALL': 'C.UTF-8'})
    return set(outcome.stdout.split())


def main():
    root, headers = sys.argv[1], sys.argv[2:]
    with open(os.path.join(os.path.dirname(__file__), 'words.txt'), encoding='utf-8') as file:
        listed = file.read().split()
    places = {}
    texts = [(path, prose_of_document(read(root, path))) for path in documents(root) if FOR_USERS.match(path)]
    texts += [(path, prose_of_header(read(root, path))) for path in headers]
    for path, lines in texts:
        for number, line in enumerate(lines, 1):
            for word in words(line):
                places.setdefault(word, '%s:%d' % (path, number))
    unknown = unknown_words(places)
    lower = {word.lower() for word in unknown}
    faults = ['%s: %s' % (places[word], word) for word in sorted(unknown, key=lambda word: places[word])
              if word not in listed and word.lower() not in listed]
    faults += ['words.txt: nothing uses %s' % word for word in listed if word.lower() not in lower]
    if listed != sorted(set(listed), key=str.lower):
        faults.append('words.txt is not sorted')
    print('\n'.join(faults + ['%d words in %d files, %d unknown' % (len(places), len(texts), len(faults))]))
    return 1 if faults else 0


if __name__ == '__main__':
    sys.exit(main())
