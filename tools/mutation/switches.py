"""Builds changes into a source so that each can be switched on at run time.

The smallest part of the source that a change fits into becomes a choice, (On(17) ? (changed) : (original)) for an expression,
if (On(17)) { changed } else { original } for statements. A change has several candidates for that part, the first of which
the compiler takes: nothing here understands C++ well enough to know. What has none left is built by itself.
"""

import bisect
import collections
import os
import re

from mutation import plan

# What of a source becomes a choice: from start to end, which the change makes into the text.
Unit = collections.namedtuple("Unit", "start end text form")

TOKEN = re.compile(
    r"""(?P<skip>\s+|//[^\n]*|/\*.*?\*/|^[ \t]*\#(?:[^\n\\]|\\.)*)
    |R"\((?:.|\n)*?\)"|(?:u8|[LuU])?"(?:\\.|[^"\\\n])*"|(?:[LuU])?'(?:\\.|[^'\\\n])*'
    |\d[\w.']*|[A-Za-z_]\w*
    |<<=|>>=|<=>|->\*|\.\.\.|::|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.""",
    re.VERBOSE | re.DOTALL | re.MULTILINE)
ASSIGNMENTS = {"=", "+=", "-=", "*=", "/=", "%=", "&=", "|=", "^=", "<<=", ">>="}
CONTROL = {"if", "for", "while", "switch", "constexpr"}
NO_TYPES = {"return", "delete", "throw", "new", "else", "case", "goto", "if", "for", "while", "switch", "do", "try", "break",
            "continue", "default", "co_return", "operator"}
NO_VALUES = CONTROL | {"else", "do", "try", "case", "default", "break", "continue", "goto"}


class Source:
    """The tokens of a source, and which bracket encloses which."""

    def __init__(self, text):
        self.text = text
        self.tokens = [(m.start(), m.end(), m.group()) for m in TOKEN.finditer(text) if m.group("skip") is None]
        self.starts = [start for start, _, _ in self.tokens]
        self.mate, self.parent = {}, []
        open_brackets = []
        for index, (_, _, word) in enumerate(self.tokens):
            if word in (")", "]", "}") and open_brackets:
                first = open_brackets.pop()
                self.mate[first], self.mate[index] = index, first
            self.parent.append(open_brackets[-1] if open_brackets else None)
            if word in ("(", "[", "{"):
                open_brackets.append(index)

    def word(self, index):
        return self.tokens[index][2] if 0 <= index < len(self.tokens) else ""

    def begin(self, index):
        return self.tokens[index][0]

    def end(self, index):
        return self.tokens[index][1]

    def is_block(self, brace):
        """Whether the brace holds statements or declarations, and not values."""
        if brace is None:
            return True
        if self.word(brace) != "{":
            return False
        before = self.word(brace - 1)
        if before in ("else", "do", "try", "const", "override", "final", "noexcept", "mutable", "]", ")", ";", "{", "}", ":", ""):
            return True
        return any(self.word(i) == ";" for i in range(brace, self.mate.get(brace, brace)) if self.parent[i] == brace)

    def covering(self, start, end):
        """The first and the last token of a piece of text, with the mates of all brackets among them."""
        first = max(0, bisect.bisect_right(self.starts, start) - 1)
        if self.end(first) <= start and first + 1 < len(self.tokens):
            first += 1
        last = max(first, bisect.bisect_left(self.starts, max(end, start + 1)) - 1)
        while True:
            mates = [self.mate[i] for i in range(first, last + 1) if i in self.mate]
            wider = min([first, *mates]), max([last, *mates])
            if wider == (first, last):
                return first, last
            first, last = wider

    def enclosing(self, first, last):
        """The innermost bracket around both tokens, and both as seen from directly inside of it."""
        outside = self.parent[first]
        while outside is not None and self.mate.get(outside, last) <= last:
            outside = self.parent[outside]
        return outside

    def segment(self, first, last):
        """The expression or statement around the tokens, as (first, last) without a semicolon."""
        outside = self.enclosing(first, last)
        block = self.is_block(outside)
        begin = first
        while begin > 0 and begin - 1 != outside and not self.ends_segment(begin - 1, block):
            begin = self.mate[begin - 1] if self.word(begin - 1) in (")", "]", "}") else begin - 1
        while self.word(begin) in ("case", "default"):
            colon = next((i for i in range(begin, first) if self.word(i) == ":"), None)
            if colon is None:
                break
            begin = colon + 1
        limit = self.mate.get(outside, len(self.tokens)) if outside is not None else len(self.tokens)
        end = last
        if block and self.word(last) == ";":
            return begin, end
        while end + 1 < limit and self.word(end + 1) not in ((";",) if block else (",", ";")):
            end += 1
            end = self.mate.get(end, end) if self.word(end) in ("(", "[", "{") else end
        return begin, end

    def ends_segment(self, index, block):
        word = self.word(index)
        if word == ";" or (word == "," and not block):
            return True
        if not block:
            return False
        if word == "}":
            return self.is_block(self.mate.get(index))
        if word == ")":
            return self.word(self.mate.get(index, 0) - 1) in CONTROL
        return word in ("else", "do", "{")

    def direct(self, first, last, words):
        """The tokens of these words between two, not inside brackets there."""
        outside = self.enclosing(first, last)
        return [i for i in range(first, last + 1) if self.word(i) in words and self.parent[i] == outside]

    def declares(self, first, last):
        """Whether one of the statements from first to last seems to declare something: a type, then a name."""
        outside = self.enclosing(first, last)
        starts = [first] + [i + 1 for i in self.direct(first, last, (";", "{", "}"))]
        for start in (start for start in starts if start <= last):
            if self.word(start) in ("const", "auto", "static", "constexpr", "using", "unsigned", "long", "int", "bool"):
                return True
            text = self.text[self.begin(start) : self.end(min(last, start + 12))]
            match = re.match(r"([A-Za-z_]\w*)(::\w+)*(<[^;{}()]*>)?[\s*&]+[A-Za-z_]\w*\s*[({=;,]", text)
            if match and match.group(1) not in NO_TYPES and self.parent[start] == outside:
                return True
        return False


def difference(before, after):
    """How many characters both have in common at the start and at the end."""
    head = len(os.path.commonprefix([before, after]))
    tail = len(os.path.commonprefix([before[head:][::-1], after[head:][::-1]]))
    return head, tail


def candidates(source, change):
    """The units that the change fits into, the smallest first."""
    changed = plan.changed_text(change, source.text)
    head, tail = difference(source.text, changed)
    start, end = head, len(source.text) - tail

    def unit(first, last, form):
        low, high = source.begin(first), source.end(last)
        return Unit(low, high, changed[low : len(changed) - (len(source.text) - high)], form)

    span = source.covering(start, end)
    found = []
    # Out of lists: of several arguments none can be chosen alone.
    while not source.is_block(source.enclosing(*span)) and source.direct(*span, (",", ";")):
        span = around(source, span)
    if not source.is_block(source.enclosing(*span)) and not source.declares(*value_of(source, *span)):
        found.append(unit(*value_of(source, *span), "expression"))
    while not source.is_block(source.enclosing(*span)):
        span = around(source, span)
    first, last = source.segment(*span)
    if source.direct(first, last, ("constexpr",)) and source.direct(first, last, ("=",)):
        return [unit(first, last, "constant")]
    if has_value(source, first, last) and not source.declares(*value_of(source, *span)):
        found.append(unit(*value_of(source, *span), "expression"))
    if source.word(last + 1) == ";" and source.word(last) != ";":
        last += 1
    if not source.declares(first, last) and source.word(first) != "else":
        found.append(unit(first, last, "statement"))
    return [one for number, one in enumerate(found) if one not in found[:number]]


def around(source, span):
    outside = source.enclosing(*span)
    return outside, source.mate[outside]


def has_value(source, first, last):
    """Whether a statement may be an expression, or hold one behind a return or an assignment."""
    if source.word(first) in NO_VALUES:
        return False
    return not [i for i in source.direct(first, last, (";",)) if i < last]


def value_of(source, first, last):
    """Of the expression or statement around two tokens what has a value: not the return, not what is assigned to."""
    begin, end = source.segment(first, last)
    end -= source.word(end) == ";"
    if source.word(begin) in ("return", "throw", "co_return") and begin < first:
        begin += 1
    assigned = [i for i in source.direct(begin, end, ASSIGNMENTS) if i < first]
    return (assigned[-1] + 1 if assigned else begin), end


# Around each unit, to find it again in the finished source.
OPEN, ENTER, CLOSE = "\1", "\2", "\3"


def whole(text, form):
    return f"void({text})" if form == "void" else f"({text})"


def choice(numbered, original):
    """numbered: (number of the change, unit); all of the same part and form."""
    form = numbered[0][1].form
    if form == "constant":
        # A constant of the compiler's becomes one of the program's.
        name, _, value = original.partition("=")
        value = "".join(f"quor_mutation::On({number}) ? ({one.text.partition('=')[2]}) : " for number, one in numbered) + value
        return f"{name.replace('constexpr', 'const', 1)} = {value}"
    if form == "statement":
        text = "".join(f"if (quor_mutation::On({number})) {{ {one.text} }} else " for number, one in numbered)
        return f"{{ {text}{{ {original} }} }}"
    nothing = any(not one.text.strip(" ;") for _, one in numbered)
    form = "void" if nothing else form
    text = "".join(f"quor_mutation::On({number}) ? {whole(one.text.strip(' ;'), form)} : " for number, one in numbered)
    return f"({text}{whole(original, form)})"


def switched(text, units, header):
    """The source with all changes built in, and for each change the lines where it is. units: number -> unit; those
    that cut through another are left out and get no lines."""
    groups = collections.defaultdict(list)
    for number, one in sorted(units.items()):
        groups[one.start, one.end, one.form].append((number, one))
    # Outer ones first; of those in the same place one is inside of the other.
    order = sorted(groups, key=lambda key: (key[0], -key[1], key[2] != "statement"))
    taken = []
    for key in order:
        if not any(other[0] < key[0] < other[1] < key[1] for other in taken):
            taken.append(key)

    def render(low, high, inside):
        result, at = "", low
        while inside:
            key, rest = inside[0], inside[1:]
            nested = [other for other in rest if other[1] <= key[1]]
            original = render(key[0], key[1], nested)
            names = ",".join(str(number) for number, _ in groups[key])
            result += text[at : key[0]] + OPEN + names + ENTER + choice(groups[key], original) + CLOSE
            at, inside = key[1], [other for other in rest if other not in nested]
        return result + text[at:high]

    return without_marks(f'#include "{header}"\n' + render(0, len(text), taken))


def without_marks(marked):
    lines, open_units, line, result = {}, [], 1, []
    for part in re.split(f"({OPEN}[^{ENTER}]*{ENTER}|{CLOSE}|\n)", marked):
        if part.startswith(OPEN):
            open_units.append(([int(number) for number in part[1:-1].split(",")], line))
            continue
        if part == CLOSE:
            numbers, first = open_units.pop()
            lines.update({number: (first, line) for number in numbers})
            continue
        line += part == "\n"
        result.append(part)
    return "".join(result), lines
