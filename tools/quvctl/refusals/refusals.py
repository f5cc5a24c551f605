# SPDX-License-Identifier: LGPL-3.0-or-later
"""Who refuses with which code and text: every literal of a code, followed to the text that it is raised with."""

import re
from dataclasses import dataclass

from cpptokens import Token, elements, is_group, is_name, is_sign, walk
from declarations import CONTAINERS, Function
from descriptions import THE_ANSWER, Descriptions, answering_function, is_described
from forms import FORM_NAMES, MACHINE, MACHINES, form_of, in_words
from places import called_by, declared_before, declared_with, handed_to, list_around, makers_of, struct_of, uses_of
from sources import Sources, callee_of, function_of, is_header, stem
from texts import CODE, DEEPEST, PLACE, Binding, Scope, Texts, unique

# What takes a code and behind it its text.
SINKS = {"FW_Exception", "FW_DriverError", "D_E"}

ANSWERED = "AnsweredBy"  # the struct of the refusals of a command's answer, by the form in which the answer comes
ANSWER = "*answer*"  # the step that leads through it
NAMES_WITHOUT_WORDS = {"code", "codes", "refusal", "refusals", "text", "error", "failure", "expected", "incorrect",
                       "levels"}


class Unresolved(Exception):
    """Codes without a text."""


@dataclass(frozen=True)
class Refusal:
    """One text of a code, and who refuses with it."""

    code: str
    text: str  # with PLACE for what only the running program knows
    names: tuple  # what stands in that place, when the sources list it
    refuser: str  # the class
    form: str
    when: str
    functions: tuple
    file: str
    subject: str = ""  # the argument, the member or the answer that a description refuses


@dataclass(frozen=True)
class Raised:
    """A text that a literal was followed to, by way of the names of members and parameters, functions, uses of variables."""

    text: str
    names: tuple
    path: tuple

    @property
    def form(self):
        form = next((FORM_NAMES[step] for step in map(plain, self.steps()) if step in FORM_NAMES), "")
        return f"answer, {form}" if form and ANSWER in self.steps() else form

    @property
    def form_of_path(self):
        functions = [step for step in self.path if isinstance(step, Function)]
        first = [step.parameters[0] for step in functions if step.parameters]
        form = next((form for step in functions if (form := form_of(step))), "")
        return form or (MACHINE if any(MACHINES & set(parameter.type) for parameter in first) else "")

    @property
    def when(self):
        return next((in_words(step) for step in map(plain, self.steps())
                     if step not in FORM_NAMES and step != ANSWER and step.lower() not in NAMES_WITHOUT_WORDS), "")

    @property
    def use(self):
        """Where the variable is used that the literal is the value of; None when it is none."""
        return next((step for step in self.path if isinstance(step, Token)), None)

    def steps(self):
        return [step for step in self.path if isinstance(step, str)]


def collected(texts):
    """The refusals of all codes in the files, sorted. texts: of each path. Throws Unresolved."""
    collector = Collector(Sources(texts))
    refusals = []
    problems = []
    for literal in collector.sources.texts:
        if CODE.fullmatch(literal.value) and not is_compared(literal) and not is_told(literal):
            found = collector.refusals_of(literal)
            refusals += found
            if not found:
                problems.append(f"{literal.root().path}: {literal.value}: no text was found that it is raised with")
    if problems:
        raise Unresolved("\n".join(unique(problems)))
    return merged(refusals)


def is_compared(literal):
    node = literal
    while node and not (is_sign(node.beside(-1), "==", "!=") or is_sign(node.beside(1), "==", "!=")):
        if node.parent is None or not is_group(node.parent, "("):
            return False
        node = node.parent.beside(-1)
    return node is not None


def is_told(literal):
    """Whether a constant only repeats what another library raises, for those who tell it: its name begins with that."""
    name = None if function_of(literal) else declared_name(literal)
    return name is not None and name.text.startswith("told")


def merged(refusals):
    """One refusal for those that differ in nothing but the function or the names."""
    found = {}
    for one in refusals:
        key = (one.code, one.text, one.refuser, one.form, one.subject, one.when, one.file)
        names, functions = found.get(key, ((), ()))
        found[key] = (unique([*names, *one.names]), unique([*functions, *one.functions]))
    return [Refusal(code, text, tuple(names), refuser, form, when, tuple(functions), file, subject)
            for (code, text, refuser, form, subject, when, file), (names, functions) in
            sorted(found.items(), key=lambda item: item[0])]


class Collector:
    def __init__(self, sources):
        self.sources = sources
        self.texts = Texts(sources)
        self.descriptions = Descriptions(sources, self.texts)
        self.classes = {name.lower(): name for name in sources.structs}

    def refusals_of(self, literal):
        found = unique(self.raised(literal, Scope(), ()))
        path = literal.root().path
        described = [Refusal(literal.value, raised.text, raised.names, one.refuser, one.form, one.when, (one.function,), path,
                             one.subject) for one in self.descriptions.places(literal) for raised in found]
        told = {one.form for one in described}
        places = self.uses_by_hand(literal) if described else [literal]
        by_functions = [Refusal(literal.value, raised.text, raised.names, refuser,
                                raised.form or form or raised.form_of_path, raised.when, (function,), path,
                                THE_ANSWER if ANSWER in raised.steps() else "")
                        for raised in found for place in places
                        for refuser, function, form in self.users(raised.use or place, raised)]
        return described + [one for one in by_functions if one.form not in told]

    def uses_by_hand(self, literal):
        """Where the variable that a code belongs to is used in functions that describe nothing, maybe in a form more."""
        name = None if function_of(literal) else declared_name(literal)
        return [use for use in uses_of(self.sources, name)
                if (function := function_of(use)) and not is_described(function.outermost.owners)]

    # The text

    def raised(self, node, scope, path):
        """What a code is raised with that stands at a node."""
        if scope.depth > DEEPEST:
            return []
        around = list_around(node)
        if around is None:
            return self.raised_by_statement(node, scope, path)
        group, place = around
        path += self.words_of(group, place)
        ways = [self.raised_inside, self.raised_beside, self.raised_behind]
        if self.has_text_beside(group, place):
            ways = [self.raised_beside]
            path += self.readers_of(group, place)
        return next((raised for way in ways if (raised := way(group, place, scope, path))), [])

    def has_text_beside(self, group, place):
        """Whether it is known that what stands next to a code is its text."""
        if is_group(group, "("):
            return callee_of(group) in SINKS
        struct = None if makers_of(self.sources, group) else struct_of(self.sources, group)
        beside = struct.members[place + 1].name if struct and place + 1 < len(struct.members) else ""
        return beside.lower().endswith("text")

    def readers_of(self, group, place):
        """The functions that read a member of a name of its own."""
        struct = struct_of(self.sources, group)
        if struct is None or struct.members[place].name.lower() in NAMES_WITHOUT_WORDS | set(FORM_NAMES):
            return ()
        return tuple(function_of(node) for node in self.sources.names[struct.members[place].name]
                     if self.reads(node, struct, group))

    def raised_beside(self, group, place, scope, path):
        """With the text that stands next to it."""
        given = elements(group)
        return self.raised_with(given[place + 1], group, scope, path) if place + 1 < len(given) else []

    def raised_behind(self, group, place, scope, path):
        """With the text that stands somewhere behind it in the same list."""
        return next((raised for nodes in elements(group)[place + 2:]
                     if (raised := self.raised_with(nodes, group, scope, path))), [])

    def raised_with(self, nodes, group, scope, path):
        return [Raised(re.sub(r"%\d+", PLACE, text), self.key_of(group, scope) if "%1" in text else (), path)
                for text in self.texts.of(nodes, scope.deeper()) if not CODE.fullmatch(text)]

    def raised_inside(self, group, place, scope, path):
        """By the function that it is handed to, or by whoever reads the member that it is."""
        functions = handed_to(self.sources, group)
        if functions or is_group(group, "("):
            return [one for function in functions if place < len(function.parameters)
                    for one in self.raised_by_parameter(function, place, group, scope, path)]
        struct = struct_of(self.sources, group)
        if struct is None or place >= len(struct.members):
            return []
        return self.raised_by_member(struct, struct.members[place], group, scope, path)

    def raised_by_parameter(self, function, place, group, scope, path):
        if function.body is None:
            return []
        inside = scope.within(self.texts.bound(function, group, scope))
        return [one for node in function.holds() if is_name(node, function.parameters[place].name) and
                not is_sign(node.beside(-1), ".", "->", "::")
                for one in self.raised(node, inside.deeper(), path + (function,))]

    def raised_by_member(self, struct, member, group, scope, path):
        raised = []
        for node in self.sources.names.get(member.name, []):
            if self.reads(node, struct, group):
                inside = scope.within({node.beside(-2).text: Binding([group], scope)})
                raised += self.raised(node, inside, path + (function_of(node),))
        return raised

    def reads(self, node, struct, group):
        """Whether a node is a member of an object that may be the struct that is made of the list."""
        owner = node.beside(-2)
        if not is_sign(node.beside(-1), ".", "->") or not is_name(owner) or function_of(node) is None:
            return False
        if is_sign(owner.beside(-1), ".", "->"):
            return any(self.sources.struct_near(one.type, node) is struct
                       for one in self.sources.variables.get(owner.text, []) if one.owners and not one.function)
        variable = self.sources.variable_near(owner.text, owner)
        if variable is None:
            return False
        if variable.value and variable.function is None:
            return any(is_inside(group, inner) for inner in variable.value)
        known = self.sources.struct_near(variable.type, node)
        if known or "auto" not in variable.type:
            return known is struct
        return self.members_read(owner) <= {one.name for one in struct.members}

    def members_read(self, owner):
        """All members of a variable that its function reads."""
        return {node.beside(2).text for node in function_of(owner).holds()
                if is_name(node, owner.text) and is_sign(node.beside(1), ".", "->") and is_name(node.beside(2))}

    def raised_by_statement(self, node, scope, path):
        """By whoever uses the variable that it is, or calls the function that returns it."""
        begin = node
        while begin and not is_sign(begin, ";", "=") and not is_name(begin, "return"):
            begin = begin.beside(-1)
        if is_name(begin, "return"):
            function = function_of(begin)
            return [one for call in self.texts.calls_of(function)
                    for one in self.raised(call.beside(-1), self.outside(function, call, scope), path)]
        name = begin.beside(-1) if is_sign(begin, "=") else node.beside(-1)  # or Type name{...}
        name = name.beside(-1) if is_group(name, "[") else name
        return [one for use in uses_of(self.sources, name) for one in self.raised(use, scope.deeper(), path + (use,))]

    def outside(self, function, call, scope):
        """The names that were bound in a function, as its caller calls them."""
        bindings = {}
        for parameter, nodes in zip(function.parameters, elements(call)):
            if parameter.name in scope.bindings and len(nodes) == 1 and is_name(nodes[0]):
                bindings[nodes[0].text] = scope.bindings[parameter.name]
        return scope.within(bindings)

    def key_of(self, group, scope):
        """The texts with which the lists around a text begin, of the innermost that begins with one: what the text is of."""
        while True:
            texts = self.texts.of(elements(group)[0], scope.deeper())
            if texts and not CODE.fullmatch(texts[0]):
                return tuple(texts)
            around = list_around(group)
            if around is None:
                return self.keys_of_uses(group, scope)
            group = around[0]

    def keys_of_uses(self, group, scope):
        """The same for a list that has a name: of all lists that it is used in."""
        variable = declared_before(self.sources, group) if scope.depth < DEEPEST else None
        uses = uses_of(self.sources, variable.declared) if variable else []
        return tuple(unique(key for use in uses if (around := list_around(use))
                            for key in self.keys_of_rows(*around) or self.key_of(around[0], scope.deeper())))

    def keys_of_rows(self, call, place):
        """The same for what a call gives to those rows of a table that have a trait."""
        traits = {trait for function in handed_to(self.sources, call) if place < len(function.parameters)
                  for node in function.holds() if is_name(node, function.parameters[place].name)
                  for trait in asked_before(node)}
        tables = [self.sources.variable_near(nodes[0].text, nodes[0]) for nodes in elements(call)
                  if traits and len(nodes) == 1 and is_name(nodes[0])]
        return [text for table in tables if table and table.is_array and table.value and is_group(table.value[-1], "{")
                for nodes in elements(table.value[-1])
                if nodes and is_group(nodes[0], "{") and any(is_name(node, *traits) for node in walk(nodes[0]))
                for text in self.texts.of(elements(nodes[0])[0], Scope())]

    def words_of(self, group, place):
        """The names of the members that a code stands for, the innermost first, up to the parameter that they are given to."""
        words = ()
        while True:
            struct = None if is_group(group, "(") else struct_of(self.sources, group)
            functions = handed_to(self.sources, group)
            variables = [function.parameters[place] for function in functions if place < len(function.parameters)]
            if struct and not functions:
                variables = struct.members[place:place + 1]
            names = {variable.name for variable in variables if not CONTAINERS & set(variable.type)} - {""}
            words += tuple(names) if len(names) == 1 else ()
            beside = {plain(one.name) for function in functions for one in function.parameters}
            words += ("value",) if names == {"refusal"} and "list" in beside else ()
            words += (ANSWER,) if struct and struct.name == ANSWERED else ()
            around = list_around(group)
            if around is None or is_group(group, "("):
                return words
            group, place = around

    # The refusers

    def users(self, node, raised, seen=frozenset()):
        """Class, function and form of all who use what stands at a node to refuse with it."""
        function = function_of(node)
        if function:
            return self.users_of_function(function.outermost, raised, seen)
        name = declared_name(node)
        variable = declared_with(self.sources, name)
        if variable and is_described(variable.owners) and ANSWER in raised.steps():
            # the layer reads it, whoever else does
            return [(variable.owners[0], answering_function(variable.owners, raised.form), "")]
        uses = [use for use in uses_of(self.sources, name) if id(use) not in seen]
        fitting = [use for use in uses if self.leads_to(use, raised)]
        found = unique(user for use in fitting or uses for user in self.users(use, raised, seen | {id(use)}))
        path = node.root().path
        owner = variable.owners[0] if variable and variable.owners else self.class_of_file(path) or stem(path)
        place = "::".join([*variable.owners, variable.name]) if variable else ""
        return in_one_form(found, raised.form) or [(owner, place, "")]

    def users_of_function(self, function, raised, seen):
        form = form_of(function)
        if function.owners:
            return [(function.owners[0], "::".join([*function.owners, function.name]), form)]
        calls = [call for call in self.texts.calls_of(function) if id(call) not in seen]
        owner = self.class_of_file(function.root.path)
        if owner and not is_header(function.root.path):
            calls = [call for call in calls if call.root() is function.root]
        found = unique(user for call in calls for user in self.users(call, raised, seen | {id(call)}))
        return in_one_form(found, raised.form or form) or [(owner or stem(function.root.path), function.name, form)]

    def leads_to(self, use, raised):
        """Whether a variable is used so that the text was found that way."""
        if is_sign(use.beside(1), ".", "->"):
            return is_name(use.beside(2), *raised.steps())
        functions = {step.outermost for step in raised.path if isinstance(step, Function)}
        return not functions or self.is_handed_to(functions, use, 0)

    def is_handed_to(self, functions, use, depth):
        """Whether a variable is an argument of one of the functions, or of one that hands it on to them."""
        group, place = list_around(use) or (None, 0)
        if not is_group(group, "(") or depth > 4:
            return False
        for called in called_by(self.sources, group):
            handed = [] if called.body is None or place >= len(called.parameters) else \
                [node for node in called.holds() if is_name(node, called.parameters[place].name)]
            if called in functions or any(self.is_handed_to(functions, node, depth + 1) for node in handed):
                return True
        return False

    def class_of_file(self, path):
        """The class that a file is named after, or None."""
        return self.classes.get(stem(path))


def in_one_form(users, form):
    """Those in the form, or else those in any form, when there are some; constructors before all that write as well."""
    users = [user for user in users if user[2] == form and form] or [user for user in users if user[2]] or users
    made = {(user[0], user[2]) for user in users if is_constructor(user[1])}
    return [user for user in users if is_constructor(user[1]) or (user[0], user[2]) not in made]


def is_constructor(path):
    return path.split("::")[-2:-1] == path.split("::")[-1:]


def declared_name(node):
    """The name of the variable in whose initialiser a node stands."""
    while node.parent and node.parent.role != "scope":
        node = node.parent
    while node and not is_sign(node, "=", ";"):
        before = node.beside(-1)
        if is_group(node, "{") and is_name(before):
            return before
        node = before
    name = node.beside(-1) if is_sign(node, "=") else None
    return name.beside(-1) if is_group(name, "[") else name


def asked_before(node):
    """The names that a condition asks for, as in row.has(Trait) ? node : other."""
    asked = node.beside(-2) if is_sign(node.beside(-1), "?") else None
    return [one.text for one in asked.nodes if is_name(one)] if is_group(asked, "(") and \
        is_name(asked.beside(-1), "has") else []


def is_inside(node, group):
    while node and node is not group:
        node = node.parent
    return node is not None


def plain(name):
    name = re.sub(r"(?:Code|Refusal)$", "", name)
    return name[2].lower() + name[3:] if re.match(r"(?:of|in)[A-Z]", name) else name
