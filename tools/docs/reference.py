"""A public header as Doxygen wants it: the filter of the reference.

    reference.py HEADER

The headers' comments are plain ones, written to be read in place. A comment belongs to all declarations that follow
it without a blank line or another comment between them; each of them gets it. A comment with a title in dashes begins a
section. Text is escaped, indented lines are code.
"""
import re
import sys

# Words that Doxygen would take for commands or links to nothing.
ESCAPED = re.compile(r'([\\@<>&#%])')
# Declarations in these have comments of their own.
OPENS_SCOPE = re.compile(r'\s*(template <[^>]*> )?(class|struct|enum|namespace)\b(?!.*;$)')


def is_comment(line):
    return line.lstrip().startswith('//')


def content(line):
    return line.lstrip()[2:]


def formatted(lines, first_of_file):
    """The lines of a comment as one comment of Doxygen, on one line each."""
    result, in_code = [], False
    for number, line in enumerate(lines):
        text = content(line)
        is_code = text.startswith('     ')
        if not is_code and not text.strip() and in_code:
            is_code = any(content(later).startswith('     ') for later in lines[number + 1:number + 2])
        opening = '@code{.cpp} ' if is_code and not in_code else ''
        closing = '@endcode ' if in_code and not is_code else ''
        in_code = is_code
        text = text if is_code else closing + ESCAPED.sub(r'\\\1', text.strip())
        result.append((opening, text))
    made = []
    for opening, text in result:
        made.append('/// ' + (opening + '\n///' + text if opening else text))
    if in_code:
        made.append('/// @endcode')
    if first_of_file:
        made[0] = made[0].replace('/// ', '/// @file\n/// ', 1)
    return made


def without_bodies(text):
    return re.sub(r'^(\s*)(.*) = delete;$', r'\1', text, flags=re.M)


def main():
    with open(sys.argv[1], encoding='utf-8') as file:
        lines = without_bodies(file.read()).split('\n')
    output, index, first, in_section = [], 0, True, False
    while index < len(lines):
        line = lines[index]
        if not is_comment(line):
            if in_section and re.match(r'(public|protected|private):|};', line):
                output.append('/// @}')
                in_section = False
            output.append(line)
            index += 1
            continue
        end = index
        while end < len(lines) and is_comment(lines[end]):
            end += 1
        comment = lines[index:end]
        title = re.match(r' ---- (.*?) -*$', content(comment[0]))
        if title:
            output += ['/// @}'] * in_section + ['/// @name ' + title.group(1)]
            output += formatted(comment[1:], False) + ['/// @{']
            in_section, index = True, end
            continue
        made = formatted(comment, first)
        first = False
        output += made
        # All further declarations of the group.
        nesting, complete = 0, False
        while end < len(lines) and lines[end].strip() and not is_comment(lines[end]):
            code = re.sub(r'"(\\.|[^"])*"|\'.\'|//.*', '', lines[end]).rstrip()
            if complete and not re.match(r'\s*([{}]|(public|protected|private):)', code):
                output += [entry for entry in made if '@file' not in entry]
            output.append(lines[end])
            end += 1
            if OPENS_SCOPE.match(code):
                break
            nesting += sum(code.count(mark) for mark in '({') - sum(code.count(mark) for mark in ')}')
            complete = nesting == 0 and (code.endswith((';', '}')) or re.match(r'\s*#define.*[^\\]$', code) is not None)
        index = end
    print('\n'.join(output))


if __name__ == '__main__':
    main()
