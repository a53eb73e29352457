"""The code of the documents as a project: programs, and one source with everything else.

    code.py ROOT WORK HEADER...     headers are those of the package, as hosts include them

Each block of C++ says in a comment above it what it is, <!-- code: KIND -->:

    host TITLE              a whole program, whose window has that title
    part of FILE            stands in that file, line for line
    declarations            stands in a namespace
    members(BASE)           stands in a class derived from BASE
    statements(PARAMETERS)  stands in a function with these parameters
    entries(BASE)           stands in the message map of a class derived from BASE

WORK gets the project; WORK/programs lists a program and its title in each line.
"""
import os
import re
import sys

from documents import FOR_USERS, blocks, documents, read

FRAMEWORK = ['afxwin.h', 'afxcmn.h', 'afxext.h', 'afxcontrolbars.h', 'afxtempl.h', 'afxdtctl.h', 'afxdlgs.h', 'afxdisp.h']
STANDARD = ['memory', 'string', 'thread', 'vector']

PROJECT = '''cmake_minimum_required(VERSION 3.25)
project(documents LANGUAGES CXX RC)
find_package(QuorUiCtrl 1.0 REQUIRED)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
add_compile_options(-O0 -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
add_library(fragments OBJECT fragments.cpp)
target_compile_options(fragments PRIVATE -Wno-unused -Wno-unused-parameter)
target_link_libraries(fragments PRIVATE QuorUiCtrl::QuorUiCtrl)
foreach(host IN ITEMS %s)
    add_executable(${host} WIN32 ${host}.cpp)
    target_link_libraries(${host} PRIVATE QuorUiCtrl::QuorUiCtrl)
endforeach()
add_subdirectory("%s/samples/recipes" recipes)
add_subdirectory("%s/tools/docs/samples" pictures)
'''


class Fault(Exception):
    pass


def wrapped(block, number):
    """The block with what it stands in; the compiler names its place in the document."""
    code = '#line %d "%s"\n%s' % (block.line, block.path, re.sub(r'^#include.*$', '', block.code, flags=re.M))
    kind, _, argument = block.kind.partition('(')
    argument = argument.rpartition(')')[0]
    if kind == 'declarations':
        return code
    if kind == 'members':
        return 'class Block : public %s\n{\npublic:\nusing Base = %s;\nusing Base::Base;\n%s};\n' % (
            argument, argument, code)
    if kind == 'statements':
        return 'inline void Run(%s)\n{\n%s}\n' % (argument, code)
    if kind == 'entries':
        names = sorted(set(re.findall(r'&(\w+)::(\w+)', block.code)))
        owner = names[0][0]
        handlers = ''.join('afx_msg void %s() {}\n' % name for _, name in names)
        return ('class %s : public %s\n{\n%sDECLARE_MESSAGE_MAP()\n};\nBEGIN_MESSAGE_MAP(%s, %s)\n%sEND_MESSAGE_MAP()\n'
                % (owner, argument, handlers, owner, argument, code))
    raise Fault('%s: a block of C++ needs <!-- code: KIND --> above it, not "%s"' % (block.place, block.kind))


def check_part(root, block):
    path = block.kind[len('part of '):]
    if block.code not in read(root, path):
        raise Fault('%s: this is no part of %s' % (block.place, path))


def fragments_source(headers, fragments):
    identifiers = sorted({name for block in fragments for name in re.findall(r'\bID[A-Z]?_\w+', block.code)})
    lines = ['#include <%s>' % header for header in FRAMEWORK + STANDARD]
    lines += ['#include "%s"' % header for header in headers]
    lines += ['#ifndef %s\n#define %s %d\n#endif' % (name, name, 2000 + i) for i, name in enumerate(identifiers)]
    for number, block in enumerate(fragments):
        lines.append('namespace block%d\n{\nusing namespace QuorUiCtr;\n%s}' % (number, wrapped(block, number)))
    return '\n'.join(lines) + '\n'


def write(path, text):
    """Leaves a file alone that is the same already, so that it is not compiled again."""
    if os.path.exists(path):
        with open(path, encoding='utf-8') as file:
            if file.read() == text:
                return
    with open(path, 'w', encoding='utf-8') as file:
        file.write(text)


def recipe_titles(root):
    folder = os.path.join(root, 'samples/recipes')
    for name in sorted(os.listdir(folder)):
        if name.endswith('.cpp'):
            text = read(root, 'samples/recipes/' + name)
            if text.count('\n') >= 120:
                raise Fault('samples/recipes/%s has %d lines; recipes have fewer than 120' % (name, text.count('\n')))
            yield name[:-len('.cpp')], re.search(r'Create\(nullptr, L"([^"]*)"', text).group(1)


def main():
    root, work, headers = sys.argv[1], sys.argv[2], sys.argv[3:]
    os.makedirs(work, exist_ok=True)
    found = [block for path in documents(root) if FOR_USERS.match(path) for block in blocks(root, path)
             if block.language == 'cpp']
    hosts, fragments, parts = [], [], []
    for block in found:
        if block.kind.startswith('host '):
            hosts.append(block)
        elif block.kind.startswith('part of '):
            check_part(root, block)
            parts.append(block)
        else:
            fragments.append(block)
    programs = list(recipe_titles(root))
    for block in hosts:
        name = 'host_' + re.sub(r'\W', '_', os.path.splitext(os.path.basename(block.path))[0])
        # A document may have more than one.
        number = sum(known == name or known.startswith(name + '_host') for known, _ in programs)
        if number:
            name += '_host%d' % (number + 1)
        programs.append((name, block.kind[len('host '):]))
        write(os.path.join(work, name + '.cpp'), '#line %d "%s"\n%s' % (block.line, block.path, block.code))
    write(os.path.join(work, 'fragments.cpp'), fragments_source(headers, fragments))
    names = [name for name, _ in programs if name.startswith('host_')]
    write(os.path.join(work, 'CMakeLists.txt'), PROJECT % (' '.join(names), root, root))
    write(os.path.join(work, 'programs'), ''.join('%s %s\n' % program for program in programs))
    print('%d blocks of code: %d hosts, %d fragments, %d parts of samples; %d recipes'
          % (len(found), len(hosts), len(fragments), len(parts), len(programs) - len(hosts)))


if __name__ == '__main__':
    try:
        main()
    except Fault as fault:
        sys.exit(str(fault))
