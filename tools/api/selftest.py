"""Plants one violation of each kind in a copy of the sources and shows that the checks find it."""
import os
import shutil
import subprocess
import sys
import tempfile

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
FOLDERS = ('framework', 'grid', 'propgrid', 'treedrag', 'undo', 'controls', 'rules', 'module', 'samples', 'tools',
           'docs', 'cmake')


class Plant:
    """One violation: what replaces what in which file, and what the check has to say of it."""

    def __init__(self, name, path, old, new, complaint, compiles=False):
        self.name = name
        self.path = path
        self.old = old
        self.new = new
        self.complaint = complaint
        self.compiles = compiles


BUTTON = 'framework/include/fx/button.h'
SOURCE = 'controls/CAllSelectEdit.cpp'

PLANTS = [
    Plant('a public member that is not documented', BUTTON, 'CButton();', 'CButton();\n    void Flash();',
          'CButton::Flash: the reference has no such member'),
    Plant('another result type', BUTTON, 'UINT GetState() const', 'int GetState() const', 'CButton::GetState'),
    Plant('another access', 'framework/include/fx/propertygridctrl.h',
          'virtual BOOL EditItem(', 'public: virtual BOOL EditItem(',
          'CMFCPropertyGridCtrl::EditItem: is public, but documented as protected'),
    Plant('a missing virtual', 'framework/include/fx/propertygridproperty.h', 'virtual BOOL IsSelected() const',
          'BOOL IsSelected() const', 'CMFCPropertyGridProperty::IsSelected: is not virtual'),
    Plant('another default argument', 'framework/include/fx/wnd.h', 'void Invalidate(BOOL bErase = TRUE)',
          'void Invalidate(BOOL bErase = FALSE)', 'CWnd::Invalidate: has the default arguments'),
    Plant('a stale page', 'docs/FRAMEWORK.md', '# The framework', '# the framework', 'is out of date'),
    Plant('an undocumented macro', SOURCE, 'ON_WM_KILLFOCUS()', 'ON_WM_KILLFOCUS()\n    AFX_STATIC', 'the macro AFX_STATIC'),
    Plant('a bare std::max', SOURCE, 'BEGIN_MESSAGE_MAP', 'int Larger(int a, int b)\n{\n    return std::max(a, b);\n}\n'
          'BEGIN_MESSAGE_MAP', 'meets a macro of windows.h'),
    Plant('a standard header that is not named', SOURCE, 'BEGIN_MESSAGE_MAP', 'std::vector<int> theNumbers;\n'
          'BEGIN_MESSAGE_MAP', 'names <vector> nowhere'),
    Plant('a protected member that is called', 'samples/gallery/PropertiesPage.cpp', 'grid.ExpandAll(FALSE);',
          'grid.OnPropertyChanged(NULL); grid.AdjustLayout();', "'AdjustLayout' is a protected member"),
    Plant('a handler without its class', SOURCE, 'BEGIN_MESSAGE_MAP(CAllSelectEdit, CEdit)',
          'BEGIN_MESSAGE_MAP(CAllSelectEdit, CEdit)\n    ON_COMMAND(1, Clear)',
          'call to non-static member function', True),
    Plant('a header that needs another one', 'controls/CAllSelectEdit.h', '#include <afxwin.h>', '',
          'controls/CAllSelectEdit.h', True),
]


def copy(target):
    for folder in FOLDERS:
        shutil.copytree(os.path.join(ROOT, folder), os.path.join(target, folder))


def plant(target, violation):
    path = os.path.join(target, violation.path)
    with open(path, encoding='utf-8') as file:
        before = file.read()
    after = before.replace(violation.old, violation.new, 1)
    if after == before:
        raise SystemExit('selftest: %s: nothing to replace in %s' % (violation.name, violation.path))
    with open(path, 'w', encoding='utf-8') as file:
        file.write(after)
    return before


def restore(target, violation, before):
    with open(os.path.join(target, violation.path), 'w', encoding='utf-8') as file:
        file.write(before)


def check(target, violation):
    """The exit code and the output of the checks, limited to what the violation needs."""
    command = [sys.executable, os.path.join(target, 'tools/api/check.py'), '--root', target, '--work',
               os.path.join(target, 'build/api'), '--only', violation.path]
    command += [] if violation.compiles else ['--members-only']
    outcome = subprocess.run(command, capture_output=True, text=True)
    return outcome.returncode, outcome.stdout + outcome.stderr


def main():
    missed = 0
    with tempfile.TemporaryDirectory() as target:
        copy(target)
        for violation in PLANTS:
            before = plant(target, violation)
            code, output = check(target, violation)
            restore(target, violation, before)
            found = code != 0 and violation.complaint in output
            missed += not found
            print('selftest: %s: %s' % (violation.name, 'found' if found else 'MISSED\n' + output), flush=True)
    print('selftest: %d of %d violations found' % (len(PLANTS) - missed, len(PLANTS)))
    return 1 if missed else 0


if __name__ == '__main__':
    sys.exit(main())
