"""Reads declarations through libclang: those of the framework's classes, and the documented ones."""
import ctypes
import os
import re

from clang.cindex import AccessSpecifier, Cursor, CursorKind, Index, TranslationUnit, TypeKind, conf

import layout
import tables

FUNCTIONS = {CursorKind.CXX_METHOD, CursorKind.CONSTRUCTOR, CursorKind.DESTRUCTOR, CursorKind.CONVERSION_FUNCTION,
             CursorKind.FUNCTION_TEMPLATE, CursorKind.FUNCTION_DECL}
DATA = {CursorKind.FIELD_DECL, CursorKind.VAR_DECL}
TYPES = {CursorKind.STRUCT_DECL, CursorKind.CLASS_DECL, CursorKind.ENUM_DECL, CursorKind.UNION_DECL,
         CursorKind.TYPEDEF_DECL, CursorKind.TYPE_ALIAS_DECL}
CLASSES = {CursorKind.CLASS_DECL, CursorKind.STRUCT_DECL, CursorKind.CLASS_TEMPLATE}
ACCESS = {AccessSpecifier.PUBLIC: 'public', AccessSpecifier.PROTECTED: 'protected', AccessSpecifier.PRIVATE: 'private'}


class Declaration:
    """What a host can see of one member."""

    def __init__(self, cursor, class_name):
        self.kind = 'function' if cursor.kind in FUNCTIONS else 'data' if cursor.kind in DATA else 'type'
        self.name = member_name(cursor, class_name)
        self.access = ACCESS.get(cursor.access_specifier, 'public')
        self.is_virtual = self.kind == 'function' and cursor.is_virtual_method()
        self.is_static = cursor.is_static_method() or cursor.kind == CursorKind.VAR_DECL
        self.is_const = self.kind == 'function' and cursor.is_const_method()
        self.overrides = bool(self.is_virtual and overridden_places(cursor))
        self.location = location(cursor)
        self.usr = cursor.get_usr()
        self.invalid = False
        self.result, self.parameters, self.defaults = '', [], []
        if self.kind == 'function':
            self.read_function(cursor, class_name)
        elif self.kind == 'data':
            self.result = type_name(cursor.type, class_name)

    def read_function(self, cursor, class_name):
        if cursor.kind not in (CursorKind.CONSTRUCTOR, CursorKind.DESTRUCTOR):
            self.result = type_name(cursor.result_type, class_name)
        for parameter in cursor.get_children():
            if parameter.kind == CursorKind.PARM_DECL:
                self.parameters.append(without_const(type_name(parameter.type, class_name)))
                self.defaults.append(default_argument(parameter))
        if cursor.type.kind == TypeKind.FUNCTIONPROTO and cursor.type.is_function_variadic():
            self.parameters.append('...')
            self.defaults.append('')

    def signature(self):
        return (self.kind, self.name, self.result, tuple(self.parameters), self.is_const, self.is_static)

    def text(self):
        words = [self.access + ':']
        words += ['static'] if self.is_static else []
        words += ['virtual'] if self.is_virtual else []
        words += [self.result] if self.result else []
        if self.kind != 'function':
            return ' '.join(words + [self.name])
        parameters = [name + (' = ' + value if value else '')
                      for name, value in zip(self.parameters, self.defaults)]
        words.append('%s(%s)' % (self.name, ', '.join(parameters)))
        return ' '.join(words + (['const'] if self.is_const else []))


def member_name(cursor, class_name):
    owner = cursor.semantic_parent.spelling
    if cursor.kind == CursorKind.CONSTRUCTOR or (cursor.kind == CursorKind.FUNCTION_TEMPLATE and
                                                 cursor.spelling.split('<')[0] == owner):
        return '(constructor)'
    if cursor.kind == CursorKind.DESTRUCTOR:
        return '(destructor)'
    if cursor.kind == CursorKind.CONVERSION_FUNCTION:
        return 'operator ' + type_name(cursor.result_type, class_name)
    return cursor.spelling


def type_name(clang_type, class_name):
    """The canonical name of a type, in which the class itself is always called the same."""
    name = clang_type.get_canonical().spelling
    name = re.sub(r'type-parameter-\d+-(\d+)', r'T\1', name)
    name = re.sub(r'\btypename\s+', '', name)
    name = re.sub(r'\bdocumented::', '', name)
    name = re.sub(r'\b(D\d+|%s)\b' % re.escape(class_name), class_name, name)
    name = re.sub(r'\b%s<[^<>]*>' % re.escape(class_name), class_name, name)
    name = re.sub(r'\b%s::' % re.escape(class_name), '', name)
    return name


def without_const(name):
    """A parameter's type as the caller sees it: whether the function may change its own copy is not part of it."""
    if name.endswith('const'):
        return name[:-len('const')].rstrip()
    return name[len('const '):] if name.startswith('const ') and name[-1] not in '*&]' else name


def default_argument(parameter):
    tokens = [token.spelling for token in parameter.get_tokens()]
    if '=' not in tokens:
        return ''
    text = ''.join(tokens[tokens.index('=') + 1:])
    return re.sub(r'\w+::', '', text).replace('nullptr', 'NULL')


def overridden_places(cursor):
    """USR and file of the functions that a virtual function overrides; the Python binding has no name for this."""
    array, number = ctypes.POINTER(Cursor)(), ctypes.c_uint()
    conf.lib.clang_getOverriddenCursors.argtypes = [Cursor, ctypes.c_void_p, ctypes.c_void_p]
    conf.lib.clang_getOverriddenCursors.restype = None
    conf.lib.clang_disposeOverriddenCursors.argtypes = [ctypes.c_void_p]
    conf.lib.clang_getOverriddenCursors(cursor, ctypes.byref(array), ctypes.byref(number))
    places = []
    for i in range(number.value):
        base = array[i]
        base._tu = cursor._tu
        places.append((base.get_usr(), base.location.file.name if base.location.file else ''))
    if number.value:
        conf.lib.clang_disposeOverriddenCursors(array)
    return places


def location(cursor):
    return '%s:%d' % (cursor.location.file.name if cursor.location.file else '?', cursor.location.line)


class Class:
    """A class of the framework with its reachable members and its bases."""

    def __init__(self, cursor):
        self.name = cursor.spelling
        self.location = location(cursor)
        self.is_template = cursor.kind == CursorKind.CLASS_TEMPLATE
        self.bases = [base_name(child) for child in cursor.get_children()
                      if child.kind == CursorKind.CXX_BASE_SPECIFIER]
        self.members = [Declaration(child, self.name) for child in cursor.get_children()
                        if child.kind in FUNCTIONS | DATA | TYPES and child.spelling]

    def reachable(self):
        return [member for member in self.members if member.access != 'private']


def base_name(specifier):
    return re.sub(r'<.*', '', specifier.type.spelling).split(' ')[-1].split('::')[-1]


def parse(text, arguments):
    index = Index.create()
    options = TranslationUnit.PARSE_SKIP_FUNCTION_BODIES
    return index.parse('documented.cpp', args=arguments, options=options,
                       unsaved_files=[('documented.cpp', text)])


def arguments_for(root):
    part = layout.Part('probe', (), [], ['framework/include'])
    return layout.platform_arguments() + layout.part_arguments(root, part) + ['-ferror-limit=0', '-w']


def include_all(root):
    headers = layout.files(root, ('framework/include',), '.h')
    names = [os.path.relpath(path, 'framework/include') for path in headers]
    top = [name for name in names if '/' not in name and name not in ('afxdllx.h',)]
    top.sort(key=lambda name: (name != 'afxwin.h', name))
    return ''.join('#include <%s>\n' % name for name in top)


def framework_classes(unit, root):
    """All classes that the framework's headers define, by name; apart from them those that classes are built on."""
    folder = os.path.realpath(os.path.join(root, 'framework/include'))
    found, internal = {}, {}
    for cursor in unit.cursor.get_children():
        if not cursor.location.file or not os.path.realpath(cursor.location.file.name).startswith(folder):
            continue
        if cursor.kind in CLASSES and cursor.is_definition() and cursor.spelling:
            found[cursor.spelling] = Class(cursor)
        elif cursor.kind == CursorKind.NAMESPACE and cursor.spelling == 'quorfx':
            internal.update({child.spelling: Class(child) for child in cursor.get_children()
                             if child.kind in CLASSES and child.is_definition()})
    return found, internal


def documented_text(members, names, all_shapes):
    """Source text with one structure for each documented declaration, and which member each belongs to."""
    lines, owners = ['namespace documented {'], []
    by_class = {}
    for member in members:
        by_class.setdefault(member.class_name, []).append(member)
    for name in sorted(names):
        shape = all_shapes.get(name) or tables.Shape(name, '', '', [])
        own = by_class.get(name, []) if name != shape.documented else []
        for member in by_class.get(shape.documented, []) + own:
            for text in member.declarations:
                lines.append(structure(len(owners), name, shape, text))
                owners.append((name, member, text))
    return '\n'.join(lines + ['}']), owners


def structure(number, class_name, shape, text):
    for old, new in shape.replacements:
        text = re.sub(r'(?<!\w)%s(?!\w)' % re.escape(old), new, text)
    text = re.sub(r'(?<=[\s*&])%s::(?=~?\w+\s*\()' % class_name, '', ' ' + text).strip()
    text = re.sub(r'(?:^|(?<=explicit ))%s\s*\(' % class_name, 'D%d(' % number, text)
    text = re.sub(r'~\s*%s\s*\(' % class_name, '~D%d(' % number, text)
    base = '::' + class_name
    if shape.template:
        parameters = re.findall(r'(?:class|typename) (\w+)', shape.template)
        base += '<%s>' % ', '.join(parameters)
        text = re.sub(r'\b%s\b(?!\s*[<(:])' % class_name, base, text)
    return '%s struct D%d : public %s { %s %s; };' % (shape.template, number, base, shape.prelude, text)


def documented_declarations(unit, owners):
    """The Declaration of each documented text that clang understood, by class: (Member, text, Declaration)."""
    found = {}
    for namespace in unit.cursor.get_children():
        if namespace.kind != CursorKind.NAMESPACE or namespace.spelling != 'documented':
            continue
        for cursor in namespace.get_children():
            match = re.fullmatch(r'D(\d+)', cursor.spelling)
            if not match or not cursor.is_definition():
                continue
            name, member, text = owners[int(match[1])]
            children = [child for child in cursor.get_children() if child.kind in FUNCTIONS | DATA | TYPES]
            declaration = Declaration(children[-1], name) if children else None
            if declaration:
                declaration.number = int(match[1])
                # The structure derives from the class, so that every virtual function seems to override.
                declaration.is_virtual = bool(re.search(r'\bvirtual\b', text))
                if member.access in ('public', 'protected'):
                    declaration.access = member.access
            found.setdefault(name, []).append((member, text, declaration))
    return found


def read(root, members, all_shapes):
    """The framework's classes, those they are built on, and the documented declarations of each."""
    arguments = arguments_for(root)
    includes = include_all(root)
    names = framework_classes(parse(includes, arguments), root)[0].keys()
    text, owners = documented_text(members, names, all_shapes)
    unit = parse(includes + text, arguments)
    documented = documented_declarations(unit, owners)
    mark_invalid(unit, documented, includes.count('\n') + 1)
    classes, internal = framework_classes(unit, root)
    return classes, internal, documented


def mark_invalid(unit, documented, offset):
    """A declaration with types that the framework lacks is documented, but nothing can match it."""
    lines = {diagnostic.location.line - offset - 1 for diagnostic in unit.diagnostics
             if diagnostic.severity >= diagnostic.Error and diagnostic.location.file and
             diagnostic.location.file.name == unit.spelling}
    for entries in documented.values():
        for _, _, declaration in entries:
            if declaration:
                declaration.invalid = declaration.number in lines
