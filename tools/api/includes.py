"""Which standard headers a file has to name for what it uses, because the headers of other libraries include less."""
import os
import re

import layout

NAMES = {
    'algorithm': r'std::(min|max|clamp|find|find_if|sort|stable_sort|any_of|all_of|none_of|count_if|copy|fill|remove_if|'
                 r'rotate|reverse|lower_bound|upper_bound|for_each|transform|unique|replace|equal|copy_n|fill_n|'
                 r'min_element|max_element|partition|stable_partition)\b',
    'array': r'std::array\b',
    'cerrno': r'\berrno\b',
    'climits': r'\b(INT|LONG|UINT|SHRT|ULONG)_(MAX|MIN)\b',
    'cmath': r'std::(round|floor|ceil|sqrt|pow|lround|log10|fabs|isfinite|isnan)\b',
    'cstdarg': r'\bva_(list|start|end|arg|copy)\b',
    'cstddef': r'std::(size_t|ptrdiff_t|byte|max_align_t|nullptr_t)\b|\boffsetof\b',
    'cstdint': r'std::u?int(8|16|32|64|ptr)_t\b',
    'cstdlib': r'\b(_wtoi|_wtol|_wtof|std::(atoi|abs|malloc|free|getenv|strtol))\b',
    'cstring': r'std::(mem|str)(cpy|cmp|len|set|move|chr|str|rchr)\b',
    'cwchar': r'\b(std::)?(wcs|wmem)(cpy|cmp|len|set|move|chr|str|rchr|ncmp|ncpy|tol|tod|toul)\b',
    'cwctype': r'\bisw(digit|space|alpha|alnum|print|xdigit)\b|\btow(lower|upper)\b',
    'deque': r'std::deque\b',
    'filesystem': r'std::filesystem\b',
    'fstream': r'std::w?[io]?fstream\b',
    'functional': r'std::(function|less|greater|hash|invoke|ref)\b',
    'iterator': r'std::(size|ssize|back_inserter|distance|advance|next|prev|reverse_iterator|forward_iterator_tag)\b',
    'limits': r'std::numeric_limits\b',
    'list': r'std::list\b',
    'map': r'std::(map|multimap)\b',
    'memory': r'std::(unique_ptr|make_unique|shared_ptr|make_shared|weak_ptr|addressof|destroy_at)\b',
    'new': r'std::(nothrow|bad_alloc|launder|align_val_t)\b',
    'numeric': r'std::(accumulate|iota|gcd)\b',
    'optional': r'std::(optional|nullopt)\b',
    'set': r'std::(set|multiset)\b',
    'span': r'std::span\b',
    'sstream': r'std::w?[io]?stringstream\b',
    'string': r'std::(wstring|string|to_wstring|to_string|stoi)\b',
    'string_view': r'std::w?string_view\b',
    'tuple': r'std::(tie|tuple|make_tuple)\b',
    'type_traits': r'std::(is_\w+|enable_if\w*|conditional\w*|decay\w*|remove_\w+_t|true_type|false_type|void_t)\b',
    'unordered_map': r'std::unordered_map\b',
    'unordered_set': r'std::unordered_set\b',
    'utility': r'std::(move|exchange|swap|forward|pair|make_pair|as_const|cmp_\w+)\b',
    'variant': r'std::variant\b',
    'vector': r'std::vector\b',
}
PATTERNS = {name: re.compile(pattern) for name, pattern in NAMES.items()}
COMMENTS_AND_TEXTS = re.compile(r'//[^\n]*|"(?:\\.|[^"\\\n])*"')
INCLUDE = re.compile(r'#\s*include\s+([<"])([^>"]+)')
# std::min is looked for with its parenthesis, because windows.h makes a macro of the bare name.
UNGUARDED = re.compile(r'(?<!\()\bstd::(min|max)\s*\(|::(min|max)\s*\(\s*\)')


def missing(root):
    """What files lack, one text each, and how many files were read."""
    found, texts = [], {}
    paths = []
    for part in layout.PARTS:
        paths += layout.files(root, part.folders, '.cpp') + layout.files(root, part.folders, '.h')
    paths += layout.files(root, ('framework/include',), '.h')
    for path in paths:
        code = COMMENTS_AND_TEXTS.sub('', read(root, path, texts))
        named = named_headers(root, path, texts, set())
        if path.startswith('framework/'):
            named |= named_headers(root, 'framework/include/fx/config.h', texts, set())
        for header, pattern in PATTERNS.items():
            match = pattern.search(code)
            if match and header not in named:
                found.append('%s: uses %s but names <%s> nowhere' % (path, match[0], header))
        for match in UNGUARDED.finditer(code):
            found.append('%s: %s meets a macro of windows.h: write the name in parentheses' % (path, match[0]))
        found += platform_order(path, read(root, path, texts))
    return found, len(paths)


def platform_order(path, text):
    """A file that includes headers of MFC includes afxwin.h first: others take it for granted."""
    names = re.findall(r'#\s*include\s+<(afx\w+\.h)>', text)
    if not names or path.startswith('framework/') or 'afxwin.h' in names[:1]:
        return []
    own = re.findall(r'#\s*include\s+"', text)
    return [] if own and path.endswith('.cpp') else ['%s: includes <%s> before <afxwin.h>' % (path, names[0])]


def read(root, path, texts):
    if path not in texts:
        with open(os.path.join(root, path), encoding='utf-8') as file:
            texts[path] = file.read()
    return texts[path]


def named_headers(root, path, texts, seen):
    """The headers that a file includes, with those that its own headers include."""
    if path in seen:
        return set()
    seen.add(path)
    names = set()
    for kind, name in INCLUDE.findall(read(root, path, texts)):
        names.add(name)
        for folder in ('', os.path.dirname(path), 'framework/src', 'framework/include'):
            inner = os.path.normpath(os.path.join(folder, name))
            if kind == '"' and os.path.exists(os.path.join(root, inner)):
                names |= named_headers(root, inner, texts, seen)
                break
    return names
