"""Where things are, and how clang is told to compile them like the tool chain of the project does."""
import glob
import os
import subprocess

LIBRARY = ('grid', 'propgrid', 'treedrag', 'undo', 'controls', 'rules', 'module')
SAMPLES = ('samples',)

DEFINITIONS = ['UNICODE', '_UNICODE', '_AFXDLL', 'WIN32', '_WINDOWS', '_WIN32_WINNT=0x0601', 'WINVER=0x0601',
               '_WIN32_IE=0x0600', 'NDEBUG']


class Part:
    """A part of the sources that is compiled with definitions and include folders of its own."""

    def __init__(self, name, folders, definitions, includes):
        self.name = name
        self.folders = folders
        self.definitions = definitions
        self.includes = includes


PARTS = [
    Part('framework', ('framework/src',), ['QUORFX_BUILD'], ['framework/include', 'framework/src']),
    Part('library', LIBRARY, ['_AFXEXT', 'QUOR_UI_CTRL_BUILD'], ['.', 'module', 'framework/include']),
    Part('samples', SAMPLES, [], ['.', 'module', 'framework/include']),
]


def files(root, folders, suffix):
    """The files below the folders with that suffix, as paths relative to root, sorted."""
    found = []
    for folder in folders:
        found += glob.glob(os.path.join(root, folder, '**', '*' + suffix), recursive=True)
    return sorted(os.path.relpath(path, root) for path in found)


def sources(root, part):
    return files(root, part.folders, '.cpp')


def public_headers(root):
    """The headers that host programs may include."""
    headers = files(root, ('framework/include',), '.h')
    for folder in LIBRARY:
        headers += files(root, (folder,), '.h')
    # afxdllx.h defines things: it goes into one source file of a DLL.
    return [path for path in headers if os.path.basename(path) != 'afxdllx.h']


def standard_library_folders():
    """The folders of the C++ library of the cross compiler, which clang does not find by itself."""
    compiler = 'x86_64-w64-mingw32-g++-posix'
    output = subprocess.run([compiler, '-E', '-x', 'c++', '-v', os.devnull], capture_output=True, text=True,
                            check=True).stderr
    lines = output[output.index('#include <...>'):].splitlines()[1:]
    return [line.strip() for line in lines if line.startswith(' ') and '/c++' in line]


def clang_headers():
    """The folder of clang's own headers, which a program that uses clang as a library has to name."""
    return subprocess.run(['clang', '-print-resource-dir'], capture_output=True, text=True, check=True).stdout.strip()


def platform_arguments():
    arguments = ['--target=x86_64-w64-mingw32', '-std=gnu++20', '-nostdinc++', '-resource-dir', clang_headers()]
    for folder in standard_library_folders():
        arguments += ['-isystem', folder]
    return arguments + ['-D' + definition for definition in DEFINITIONS]


def part_arguments(root, part):
    arguments = ['-D' + definition for definition in part.definitions]
    for folder in part.includes:
        arguments += ['-I', os.path.normpath(os.path.join(root, folder))]
    return arguments
