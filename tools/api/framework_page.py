"""docs/FRAMEWORK.md: which documented members the framework has, class by class."""
PATH = 'docs/FRAMEWORK.md'

HEADING = '''# The framework's share of MFC

`framework/` is what the project builds with where there is no MFC. It offers nothing that the public MFC reference
does not document, with the documented access, types and defaults; `tools/check-api.sh` holds every declaration
against the reference (`tools/api/`). This page is written by `tools/check-api.sh --write-docs`.

'''


def text(classes, shares, comparison):
    there = {name: share for name, share in shares.items() if share.present}
    absent = {name: share for name, share in shares.items() if not share.present}
    present = sum(share.present for share in there.values())
    documented = sum(share.documented for share in shares.values())
    lines = [HEADING, 'Of %d documented members of %d classes it has %d, in %d classes (%d %%).\n' % (
        documented, len(shares), present, len(there), 100 * present // documented)]
    lines += ['\n## Classes\n\n', '| Class | Members | Documented | Not there |\n', '|---|---:|---:|---|\n']
    for name in sorted(there):
        share = there[name]
        lines.append('| %s | %d | %d | %s |\n' % (name, share.present, share.documented, shortened(share.missing)))
    lines += ['\nThe ready-made collections (%s) have the members of the template classes and of `CObArray`, `CObList` '
              'and `CMapStringToOb` with their own types.\n' % ', '.join('`%s`' % name for name in collections(classes, shares))]
    lines += ['\n## Not there\n\n', ', '.join(sorted(absent)) + '.\n']
    lines += ['\n## More than the reference lists\n\n']
    lines += ['- %s: %s\n' % (name if member == '*' else name + '::' + member, reason)
              for (name, member), reason in sorted(comparison.kept.items())]
    return ''.join(lines)


def shortened(names):
    names = [name.replace('|', '\\|') for name in names]
    if len(names) > 40:
        return ', '.join(names[:40]) + ' and %d more' % (len(names) - 40)
    return ', '.join(names)


def collections(classes, shares):
    """The classes that are documented by another one."""
    listed = ('CObArray', 'CObList', 'CMapStringToOb')
    return sorted(name for name, owner in classes.items() if not owner.is_template and name not in listed and
                  (name.endswith(('Array', 'List')) and name != 'CImageList' or name.startswith('CMap')))
