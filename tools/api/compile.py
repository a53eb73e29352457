"""clang as the second compiler: sources in one or two modes, and every public header alone."""
import os
import re
import subprocess
from concurrent.futures import ThreadPoolExecutor

import includes
import layout

WARNINGS = [
    '-Wall', '-Wextra', '-Wpedantic', '-Wconversion', '-Werror',
    # A control's Create and CreateEx hide those of CWnd, and the declaration macros override without saying so.
    '-Wno-overloaded-virtual', '-Wno-inconsistent-missing-override',
    # GetSafeHwnd and its siblings are documented to work on a null this.
    '-Wno-tautological-undefined-compare', '-Wno-undefined-bool-conversion',
    # Friends of a class are declared before their export.
    '-Wno-dll-attribute-on-redeclaration',
    # Conversions of the sign are not warned about by the first compiler either.
    '-Wno-sign-conversion',
]

# As close to Microsoft's compiler as headers allow that were written for another one: its extensions and its rules for
# names and lookup, but not its macros. The C++ library asks for the macros of its own compiler.
MICROSOFT = [
    '-fms-extensions', '-fms-compatibility', '-fms-compatibility-version=19.33', '-fno-delayed-template-parsing',
    '-U_MSC_VER', '-U_MSC_FULL_VER', '-U_MSC_BUILD', '-U__SIZEOF_INT128__', '-D__GNUC__=12', '-D__GNUC_MINOR__=2',
    '-D__GXX_WEAK__=1', '-D__GCC_ATOMIC_TEST_AND_SET_TRUEVAL=1', '-D__GCC_ATOMIC_POINTER_LOCK_FREE=2',
    '-D__GCC_ATOMIC_INT_LOCK_FREE=2', '-D__GCC_ATOMIC_LONG_LOCK_FREE=2', '-D__GCC_ATOMIC_LLONG_LOCK_FREE=2',
    '-D__GCC_ATOMIC_BOOL_LOCK_FREE=2', '-D__GCC_ATOMIC_CHAR_LOCK_FREE=2', '-D__GCC_ATOMIC_SHORT_LOCK_FREE=2',
    '-D__GCC_ATOMIC_WCHAR_T_LOCK_FREE=2', '-D__GCC_ATOMIC_CHAR8_T_LOCK_FREE=2',
    '-D__GCC_ATOMIC_CHAR16_T_LOCK_FREE=2', '-D__GCC_ATOMIC_CHAR32_T_LOCK_FREE=2',
]
MODES = {'gnu': [], 'microsoft': MICROSOFT}

# What nearly every source includes, precompiled; that a file names its own headers shows when it is compiled alone. The
# standard headers come first and then the macros of windows.h, which are there without NOMINMAX: the first compiler's
# own library sets that.
STANDARD = sorted(includes.NAMES) + ['atomic', 'chrono', 'cstdio', 'initializer_list', 'mutex', 'random', 'stdexcept',
                                     'system_error', 'thread', 'typeinfo']
PLATFORM = ['afxwin.h', 'afxext.h', 'afxcmn.h', 'afxtempl.h', 'afxdisp.h', 'afxcontrolbars.h']
MACROS = """#define max(a, b) (((a) > (b)) ? (a) : (b))
#define min(a, b) (((a) < (b)) ? (a) : (b))
"""
COMMON = ''.join('#include <%s>\n' % name for name in STANDARD + PLATFORM) + MACROS


class Compiler:
    """Compiles files of a checkout and collects what clang says, one text for each file that failed."""

    def __init__(self, root, work, jobs):
        self.root = root
        self.work = work
        self.jobs = jobs
        self.platform = layout.platform_arguments()
        os.makedirs(work, exist_ok=True)
        self.write_version()

    def write_version(self):
        """The header that CMake makes of a template; any numbers will do."""
        template = os.path.join(self.root, 'cmake/QuorVersion.h.in')
        if os.path.exists(template):
            with open(template, encoding='utf-8') as file:
                text = re.sub(r'@\w+@', '0', file.read())
            with open(os.path.join(self.work, 'QuorVersion.h'), 'w', encoding='utf-8') as file:
                file.write(text)

    def arguments(self, part, mode):
        # The folders of the framework are the system's for everybody but the framework.
        arguments = layout.part_arguments(self.root, part)
        if part.name != 'framework':
            framework = os.path.normpath(os.path.join(self.root, 'framework/include'))
            at = arguments.index(framework)
            arguments[at - 1] = '-isystem'
        return self.platform + MODES[mode] + arguments + ['-I', self.work] + WARNINGS

    def precompiled(self, part, mode):
        """The path of the precompiled COMMON headers for a part and a mode."""
        path = os.path.join(self.work, '%s-%s' % (mode, part.name))
        with open(path + '.h', 'w', encoding='utf-8') as file:
            file.write(COMMON)
        command = ['clang++', '-x', 'c++-header'] + self.arguments(part, mode) + [
            '-Wno-pragma-system-header-outside-header', '-o', path + '.pch', path + '.h']
        outcome = subprocess.run(command, capture_output=True, text=True, cwd=self.root)
        return (path + '.pch', outcome.stderr if outcome.returncode else '')

    def syntax(self, arguments, path):
        outcome = subprocess.run(['clang++', '-fsyntax-only'] + arguments + [path], capture_output=True, text=True,
                                 cwd=self.root)
        return outcome.stderr if outcome.returncode or outcome.stderr else ''

    def check_sources(self, mode, parts, chosen=None):
        """Failures by path; with how many files were compiled."""
        tasks = []
        for part in parts:
            paths = [path for path in layout.sources(self.root, part) if not chosen or path in chosen]
            if not paths:
                continue
            header, problem = self.precompiled(part, mode)
            if problem:
                return {header: problem}, 0
            arguments = self.arguments(part, mode) + ['-include-pch', header]
            tasks += [(arguments, path) for path in paths]
        return self.run(tasks), len(tasks)

    def check_headers(self, chosen=None):
        """Failures of the public headers, each included first and alone by an otherwise empty source."""
        part = layout.PARTS[2]
        tasks = []
        for header in layout.public_headers(self.root):
            path = os.path.join(self.work, 'alone-%s.cpp' % re.sub(r'\W', '-', header))
            if header.startswith('framework/include/fx/') or chosen and header not in chosen:
                continue
            with open(path, 'w', encoding='utf-8') as file:
                name = re.sub(r'^framework/include/', '', header)
                file.write('#include "%s"\nint theOnlyThing = 0;\n' % name)
            tasks.append((self.arguments(part, 'gnu') + ['-Wno-pragma-once-outside-header'], path))
        return self.run(tasks), len(tasks)

    def run(self, tasks):
        with ThreadPoolExecutor(self.jobs) as pool:
            texts = list(pool.map(lambda task: self.syntax(*task), tasks))
        return {path: text for (_, path), text in zip(tasks, texts) if text}
