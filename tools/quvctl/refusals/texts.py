# SPDX-License-Identifier: LGPL-3.0-or-later
"""What the text of an expression is, as far as the sources tell it."""

import re

from cpptokens import angle_end, elements, is_group, is_name, is_sign, is_text, split
from declarations import NO_CALLS
from places import TEXT_MAKERS, called_by, struct_of
from sources import function_of

CODE = re.compile(r"DE\d{5}")
PLACE = "\u2026"  # what only the running program knows

TEXT_TYPES = {"char", "QString", "QLatin1String", "string", "TString", "auto", "QByteArray", "string_view"}
UNFORESEEN = {"what", "getMessage"}  # texts of other people's exceptions
DEEPEST = 12


class Binding:
    """What a name stands for in a function: nodes of a call, read where the call is, or a list that a struct is made of."""

    def __init__(self, nodes, scope):
        self.nodes = nodes
        self.scope = scope


class Scope:
    """The names that are bound where an expression is read, and how many steps led there."""

    def __init__(self, bindings=None, depth=0):
        self.bindings = bindings or {}
        self.depth = depth

    def deeper(self):
        return Scope(self.bindings, self.depth + 1)

    def within(self, bindings):
        return Scope(bindings, self.depth + 1)


class Texts:
    """Reads expressions."""

    def __init__(self, sources):
        self.sources = sources

    def of(self, nodes, scope):
        """All texts that the expression can be; empty when it is no text, or nobody can tell."""
        if not nodes or scope.depth > DEEPEST:
            return []
        for place, node in enumerate(nodes):
            if is_sign(node, "?"):
                rest = split(nodes[place + 1:], ":")
                return unique(text for part in rest for text in self.of(part, scope))
        parts = split(nodes, "+")
        if len(parts) > 1:
            return self.sum_of(parts, scope)
        if all(is_text(node) for node in nodes):
            return ["".join(node.value for node in nodes)]
        if is_sign(nodes[0], "*", "&"):
            return self.of(nodes[1:], scope)
        if len(nodes) == 1:
            return self.of_node(nodes[0], scope)
        if is_group(nodes[-1], "("):
            return self.of_call(nodes, scope)
        if is_group(nodes[-1], "{") and is_name(nodes[-2]) and nodes[-2].text in TEXT_MAKERS:
            return self.of_first(nodes[-1], scope)
        if is_sign(nodes[-2], ".", "->") and is_name(nodes[-1]):
            return self.of_member(nodes[:-2], nodes[-1].text, scope)
        if is_sign(nodes[-2], "::"):
            return self.of_node(nodes[-1], scope)
        return []

    def sum_of(self, parts, scope):
        sums = [""]
        for part in parts:
            texts = self.of(part, scope) or [PLACE]
            sums = [begin + text for begin in sums for text in texts]
        return [] if sums == [PLACE * len(parts)] else sums

    def of_node(self, node, scope):
        if is_group(node, "("):
            return self.of(node.nodes, scope)
        if not is_name(node):
            return []
        bound = scope.bindings.get(node.text)
        if bound:
            return self.of(bound.nodes, bound.scope)
        variable = self.sources.variable_near(node.text, node)
        if variable is None or not TEXT_TYPES & set(variable.type):
            return []
        function = function_of(node)
        if function and any(variable is parameter for parameter in function.parameters):
            return self.of_parameter(function, variable, scope)
        texts = self.of(variable.value, scope.deeper()) if variable.value else []
        if variable.value and is_group(variable.value[0], "("):
            texts = self.of_first(variable.value[0], scope.deeper())
        return texts or self.of_later(variable, node, scope)

    def of_first(self, group, scope):
        """Of the first element of a list that is a text."""
        return next((texts for nodes in elements(group) if (texts := self.of(nodes, scope))), [])

    def of_parameter(self, function, parameter, scope):
        """What the callers give."""
        place = next(place for place, one in enumerate(function.parameters) if one is parameter)
        texts = []
        for call in self.calls_of(function):
            given = elements(call)
            if place < len(given):
                texts += self.of(given[place], scope.within({}))
        return unique(texts)

    def of_later(self, variable, node, scope):
        """What is assigned to a local variable, there or by a function that it is handed to."""
        if variable.function is None:
            return []
        texts = []
        for name in self.sources.names.get(variable.name, []):
            if function_of(name) is not function_of(node):
                continue
            after = name.beside(1)
            if is_sign(after, "="):
                texts += self.of(statement_behind(after), scope.deeper())
            texts += self.of_filled(name, scope)
        return unique(texts)

    def of_filled(self, name, scope):
        """What the function called with the variable at this place assigns to it."""
        group = name.parent
        if not is_group(group, "(") or scope.depth > DEEPEST:
            return []
        texts = []
        for place, nodes in enumerate(elements(group)):
            if nodes and nodes[-1] is name and len(nodes) <= 2:
                for function in called_by(self.sources, group):
                    texts += self.of_out_parameter(function, place, scope.within(self.bound(function, group, scope)))
        return texts

    def of_out_parameter(self, function, place, scope):
        if place >= len(function.parameters):
            return []
        texts = []
        for node in function.holds():
            if not is_name(node, function.parameters[place].name):
                continue
            if is_sign(node.beside(1), "="):
                texts += self.of(statement_behind(node.beside(1)), scope.deeper())
            texts += self.of_filled(node, scope)
        return texts

    def of_call(self, nodes, scope):
        group = nodes[-1]
        if len(nodes) > 3 and is_sign(nodes[-3], ".", "->") and is_name(nodes[-2]):
            if nodes[-2].text == "arg":
                return self.filled(self.of(nodes[:-3], scope), group, scope)
            if nodes[-2].text in UNFORESEEN:
                return [PLACE]
        name = nodes[-2]
        if not is_name(name) or name.text in NO_CALLS:
            return []
        if name.text == "QT_TRANSLATE_NOOP":
            return self.of(elements(group)[-1], scope)  # behind the context
        if name.text in TEXT_MAKERS:
            return self.of_first(group, scope)
        texts = []
        for function in called_by(self.sources, group):
            if function.body and TEXT_TYPES & set(function.returns):
                inside = scope.within(self.bound(function, group, scope))
                for node in function.holds():
                    if is_name(node, "return"):
                        texts += self.of(statement_behind(node), inside.deeper())
        return unique(texts)

    def of_member(self, of_what, member, scope):
        """A member of something that is made of a list."""
        made = self.list_of(of_what, scope)
        if made is None:
            return []
        group, struct, inside = made
        for place, one in enumerate(struct.members):
            if one.name == member:
                given = elements(group)
                nodes = given[place] if place < len(given) else one.value
                return self.of(nodes, inside) if nodes else []
        return []

    def list_of(self, nodes, scope):
        """The list that an object is made of, its struct, and where to read the list."""
        if len(nodes) > 2 and is_sign(nodes[-2], ".", "->") and is_name(nodes[-1]):
            outer = self.list_of(nodes[:-2], scope)
            if outer is None:
                return None
            group, struct, inside = outer
            for place, one in enumerate(struct.members):
                given = elements(group)
                if one.name == nodes[-1].text and place < len(given) and len(given[place]) == 1:
                    inner = self.sources.struct_near(one.type, group)
                    return (given[place][0], inner, inside) if inner and is_group(given[place][0], "{") else None
            return None
        name = nodes[-1]
        if is_sign(name, "::") or not is_name(name):
            return None
        bound = scope.bindings.get(name.text)
        if bound and len(bound.nodes) == 1 and is_group(bound.nodes[0], "{"):
            struct = struct_of(self.sources, bound.nodes[0])
            return (bound.nodes[0], struct, bound.scope) if struct else None
        if bound:
            return self.list_of(bound.nodes, bound.scope) if bound.nodes else None
        variable = self.sources.variable_near(name.text, name)
        if variable and variable.value and is_group(variable.value[-1], "{"):
            struct = self.sources.struct_near(variable.type, name)
            return (variable.value[-1], struct, scope.within({})) if struct else None
        return None

    def filled(self, texts, group, scope):
        """The texts with their lowest places filled by what arg is given."""
        for nodes in elements(group):
            values = self.of(nodes, scope) or [PLACE]
            texts = [fill(text, value) for text in texts for value in values]
        return unique(texts)

    # Calls

    def calls_of(self, function):
        """The arguments of each call of a function."""
        for name in self.sources.names.get(function.name, []):
            group = name.beside(1)
            if is_sign(group, "<"):
                end = angle_end(name.parent.nodes, group.index)
                group = name.parent.nodes[end].beside(1) if end is not None else None
            if is_group(group, "(") and group.role != "params" and function in called_by(self.sources, group):
                yield group

    def bound(self, function, group, scope):
        bindings = {}
        for parameter, nodes in zip(function.parameters, elements(group)):
            bindings[parameter.name] = Binding(nodes, scope.deeper())
        return bindings


def unique(texts):
    return list(dict.fromkeys(texts))


def statement_behind(node):
    """The nodes from the next one on to the end of the statement."""
    nodes = node.parent.nodes[node.index + 1:]
    return split(nodes, ";")[0]


def fill(text, value):
    places = [int(number) for number in re.findall(r"%(\d{1,2})", text)]
    return re.sub(rf"%{min(places)}(?!\d)", lambda _: value, text) if places else text
