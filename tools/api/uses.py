"""What the library and the samples use of the framework: members, overrides and macros."""
import os
import re
from concurrent.futures import ProcessPoolExecutor

from clang.cindex import Cursor, CursorKind, Index, conf

import declarations
import layout

REFERENCES = {CursorKind.MEMBER_REF_EXPR, CursorKind.DECL_REF_EXPR, CursorKind.CALL_EXPR, CursorKind.TYPE_REF,
              CursorKind.MEMBER_REF, CursorKind.OVERLOADED_DECL_REF}


def uses_of(task):
    """The USRs of the framework's members that one source uses, and of those that it overrides."""
    root, path, arguments = task
    unit = Index.create(excludeDecls=True).parse(os.path.join(root, path), args=arguments)
    failures = [str(diagnostic) for diagnostic in unit.diagnostics if diagnostic.severity >= diagnostic.Error]
    folder = os.path.realpath(os.path.join(root, 'framework/include'))
    used, overridden = {}, {}
    for cursor in unit.cursor.get_children():
        collect(cursor, folder, used, overridden)
    return path, used, overridden, failures


def collect(cursor, folder, used, overridden):
    """Walks the cursor and notes the framework's members by USR, each with a place where it is used."""
    if cursor.kind in REFERENCES:
        note(cursor, cursor.referenced, folder, used)
    elif cursor.kind == CursorKind.CXX_METHOD and cursor.is_virtual_method():
        for usr, place in overridden_members(cursor, folder):
            overridden.setdefault(usr, place)
    for child in cursor.get_children():
        collect(child, folder, used, overridden)


def note(cursor, target, folder, used):
    if target is None or target.semantic_parent is None:
        return
    if target.semantic_parent.kind not in declarations.CLASSES and target.kind != CursorKind.ENUM_CONSTANT_DECL:
        return
    if is_inside(target, folder):
        used.setdefault(pattern_usr(target), declarations.location(cursor))


def pattern_usr(cursor):
    """The USR as declared: a member of an instance of a template is that of the template."""
    pattern = conf.lib.clang_getSpecializedCursorTemplate(cursor)
    return pattern.get_usr() if isinstance(pattern, Cursor) and pattern.get_usr() else cursor.get_usr()


def is_inside(cursor, folder):
    file = cursor.location.file
    return file is not None and os.path.realpath(file.name).startswith(folder)


def overridden_members(cursor, folder):
    for usr, file_name in declarations.overridden_places(cursor):
        if os.path.realpath(file_name).startswith(folder):
            yield usr, declarations.location(cursor)


def macros_used(root):
    """The framework's macros that library and samples name: name to the first place, and how many there are."""
    defined = {}
    for path in layout.files(root, ('framework/include',), '.h'):
        with open(os.path.join(root, path), encoding='utf-8') as file:
            for name in re.findall(r'^\s*#\s*define\s+(\w+)', file.read(), re.MULTILINE):
                defined.setdefault(name, path)
    used = {}
    for path in layout.files(root, layout.LIBRARY + layout.SAMPLES, '.cpp') + \
            layout.files(root, layout.LIBRARY + layout.SAMPLES, '.h'):
        with open(os.path.join(root, path), encoding='utf-8') as file:
            lines = file.read().splitlines()
            # A file that asks whether there is such a macro can do without it.
            asked = set(re.findall(r'^#\s*ifdef\s+(\w+)', '\n'.join(lines), re.MULTILINE))
            for number, line in enumerate(lines, 1):
                for name in re.findall(r'\b[A-Za-z_]\w*\b', re.sub(r'//.*|"(?:\\.|[^"\\])*"', '', line)):
                    if name in defined and name not in asked:
                        used.setdefault(name, '%s:%d' % (path, number))
    return used


def read(root, compiler, jobs, only):
    """All uses, overrides and failures of library and samples, or of the sources in only."""
    tasks = []
    for part in layout.PARTS[1:]:
        chosen = [path for path in layout.sources(root, part) if not only or path in only]
        if not chosen:
            continue
        header, problem = compiler.precompiled(part, 'gnu')
        if problem:
            return {}, {}, {header: [problem]}, 0
        arguments = compiler.arguments(part, 'gnu') + ['-include-pch', header, '-w']
        tasks += [(root, path, arguments) for path in chosen]
    used, overridden, failures = {}, {}, {}
    with ProcessPoolExecutor(jobs) as pool:
        for path, members, overrides, problems in pool.map(uses_of, tasks):
            for usr, place in members.items():
                used.setdefault(usr, place)
            for usr, place in overrides.items():
                overridden.setdefault(usr, place)
            if problems:
                failures[path] = problems
    return used, overridden, failures, len(tasks)
