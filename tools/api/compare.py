"""Holds the framework's classes against the documented members."""

# What the declaration macros of classes and message maps put into a class.
MADE_BY_MACROS = {'GetRuntimeClass', 'GetThisClass', '_GetBaseClass', 'CreateObject', 'GetThisMessageMap',
                  'GetMessageMap'}


class Finding:
    """One violation: where, which member, and what is wrong with it."""

    def __init__(self, where, member, problem):
        self.where = where
        self.member = member
        self.problem = problem

    def __str__(self):
        return '%s: %s: %s' % (self.where, self.member, self.problem)


class Coverage:
    """How many of the documented members of a class the framework has."""

    def __init__(self, documented, present, missing):
        self.documented = documented
        self.present = present
        self.missing = missing


class Comparison:
    def __init__(self, classes, internal, documented, kept):
        self.classes = classes
        # With the classes that those are built on, which programs do not name.
        self.all_classes = {**internal, **classes}
        self.documented = documented
        self.kept = kept
        self.used_reasons = set()
        self.kept_count = 0
        self.wrong = set()
        self.findings = []
        self.undocumented = {}
        self.matched = {}

    def run(self):
        for name in sorted(self.classes):
            for member in self.classes[name].reachable():
                self.check(self.classes[name], member)
        for name, member in self.kept:
            if (name, member) not in self.used_reasons:
                self.report('members-kept.tsv', name + '::' + member, 'is kept for a reason, but the framework lacks it')

    def report(self, where, member, problem):
        self.findings.append(Finding(where, member, problem))

    def check(self, owner, member):
        if self.is_implied(owner, member):
            return
        entries = [entry for entry in self.documented.get(owner.name, []) if entry[2]]
        same_name = [entry for entry in entries if entry[2].name == member.name]
        matches = [entry for entry in same_name if member.kind == 'type' or
                   not entry[2].invalid and entry[2].signature() == member.signature()]
        if not matches and self.is_documented_in_base(owner, member):
            return
        if self.is_kept(owner, member):
            return
        name = owner.name + '::' + member.name
        self.wrong.add(member.usr)
        if not same_name:
            self.undocumented.setdefault(owner.name, []).append(member)
            self.report(member.location, name, 'the reference has no such member')
        elif not matches:
            self.report(member.location, name, '%s is documented as %s' % (
                member.text(), '; '.join(entry[1] for entry in same_name)))
        else:
            self.wrong.discard(member.usr)
            self.check_details(owner, member, name, matches)

    def check_details(self, owner, member, name, matches):
        problems = [self.difference(member, documented) for _, _, documented in matches]
        if all(problems) and not self.is_kept(owner, member):
            self.wrong.add(member.usr)
            self.report(member.location, name, problems[0])
        else:
            self.matched[member.usr] = name

    def difference(self, member, documented):
        if documented.access in ('public', 'protected') and documented.access != member.access:
            return 'is %s, but documented as %s' % (member.access, documented.access)
        if documented.is_virtual and not member.is_virtual:
            return 'is not virtual, but documented as virtual'
        if member.is_virtual and not documented.is_virtual and not member.overrides and member.name[0] != '(':
            return 'is virtual, but not documented as virtual'
        if member.defaults != documented.defaults:
            return 'has the default arguments %s, documented are %s' % (member.defaults, documented.defaults)
        return ''

    def is_implied(self, owner, member):
        """Whether the member comes with a language rule or a declaration macro, not from the reference."""
        if member.name in MADE_BY_MACROS or member.name == 'class' + owner.name or member.name == '(destructor)':
            return True
        # Copying and moving exist unless a class forbids them; that moving is written out changes nothing for a program.
        own = member.parameters in ([owner.name + ' &&'], ['const %s &' % owner.name])
        return own and member.name in ('(constructor)', 'operator=')

    def is_kept(self, owner, member):
        for key in ((owner.name, member.name), (owner.name, '*')):
            if key in self.kept:
                self.used_reasons.add(key)
                self.kept_count += 1
                return True
        return False

    def is_documented_in_base(self, owner, member):
        """Whether it overrides, or hands on, what the reference lists for a base class."""
        for base in self.bases(owner.name):
            for _, _, documented in self.documented.get(base, []):
                if documented and self.is_redeclared(member, documented):
                    self.matched[member.usr] = owner.name + '::' + member.name
                    return True
        return False

    def is_redeclared(self, member, documented):
        """Whether a class overrides a documented virtual function or handles a documented message anew."""
        if documented.name != member.name:
            return False
        if member.overrides:
            return documented.is_virtual
        return documented.signature() == member.signature() and documented.access == member.access

    def bases(self, name):
        found = []
        for base in self.all_classes[name].bases if name in self.all_classes else []:
            found += [base] + self.bases(base)
        return found


def coverage(classes, internal, members, comparison):
    """The Coverage of each class that the tables list, by class name."""
    by_class = {}
    for member in members:
        by_class.setdefault(member.class_name, []).append(member)
    found = {}
    for name, listed in by_class.items():
        names = present_names(name, {**internal, **classes})
        missing = [member for member in listed if not is_present(member, names, classes.get(name), comparison)]
        found[name] = Coverage(len(listed), len(listed) - len(missing), [member.name for member in missing])
    return found


def present_names(name, classes):
    """Names that hosts reach in a class, with those of bases that are templates (the collections)."""
    if name not in classes:
        return set()
    names = {member.name for member in classes[name].reachable()}
    for base in classes[name].bases:
        if base in classes and classes[base].is_template:
            names |= present_names(base, classes)
    return names


def is_present(member, names, owner, comparison):
    if owner is None:
        return False
    declared = [entry[2] for entry in comparison.documented.get(owner.name, []) if entry[0] is member and entry[2]]
    return any(declaration.name in names for declaration in declared) or member.name in names
