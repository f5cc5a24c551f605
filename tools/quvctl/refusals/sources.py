# SPDX-License-Identifier: LGPL-3.0-or-later
"""All files, and what a name stands for at a place in one of them."""

import os

from cpptokens import Group, Token, angle_begin, is_name, is_sign, walk
from declarations import NO_CALLS, Source


def callee_of(group):
    """The name before the parentheses of a call or of a variable's values, and the name of the variable's type; or None."""
    node = group.beside(-1)
    if is_sign(node, ">"):
        opening = angle_begin(node)
        node = opening.beside(-1) if opening else None
    if not is_name(node) or node.text in NO_CALLS:
        return None
    before = node.beside(-1)
    while is_sign(before, "::"):
        node_before = before.beside(-1)
        if is_sign(node_before, ">"):
            opening = angle_begin(node_before)
            node_before = opening.beside(-1) if opening else None
        before = node_before.beside(-1) if is_name(node_before) else None
    if is_name(before) and before.text not in NO_CALLS | {"co_return", "and", "or", "not"}:
        return before.text  # Type name(values)
    if is_sign(before, ">"):
        opening = angle_begin(before)
        if opening and is_name(opening.beside(-1)):
            return opening.beside(-1).text
    return node.text


class Sources:
    """All files, by what they declare."""

    def __init__(self, texts):
        """texts: of each path"""
        self.files = [Source(text, path) for path, text in sorted(texts.items())]
        self.functions = {}
        self.structs = {}
        self.variables = {}
        self.aliases = {}
        self.names = {}  # the tokens of each name
        self.texts = []  # the tokens of literals
        self.kept = {}  # what was found about groups
        for source in self.files:
            for node in walk(source.root):
                if is_name(node):
                    self.names.setdefault(node.text, []).append(node)
                elif isinstance(node, Token) and node.kind == "text":
                    self.texts.append(node)
            for function in source.functions:
                self.functions.setdefault(function.name, []).append(function)
            for struct in source.structs:
                self.structs.setdefault(struct.name, []).append(struct)
            for variable in source.variables:
                self.variables.setdefault(variable.name, []).append(variable)
            for name, types, owners in source.aliases:
                self.aliases.setdefault(name, []).append((types, owners, source.root))

    def functions_near(self, name, node):
        """Those of the name, a lambda of the same function or else those of the same file before all others, then of its library."""
        found = self.functions.get(name, [])
        found = [one for one in found if library_of(one.root.path) == library_of(node.root().path)] or found
        function = function_of(node)
        local = [one for one in found if one.outer and function and one.outermost is function.outermost]
        found = [one for one in found if not one.outer]
        if not any(is_header(one.root.path) for one in found):
            found = [one for one in found if one.root is node.root()]
        return local or [one for one in found if one.root is node.root() and one.body] or found

    def variable_near(self, name, node):
        """The variable that a name stands for where the node is: local, of the file, or of a header. None for none."""
        function = function_of(node)
        found = self.variables.get(name, [])
        while function:
            local = [one for one in found if one.function is function]
            if local:
                return local[-1]
            parameter = next((one for one in function.parameters if one.name == name), None)
            if parameter:
                return parameter
            function = function.outer
        owners = owners_named(node) if is_name(node, name) else None
        inside = owners_of(node)
        shared = [one for one in found if one.function is None and
                  (one.owners == inside[:len(one.owners)] if owners is None else one.owners[-len(owners):] == owners)]
        here = [one for one in shared if one.root is node.root()]
        header = [one for one in shared if is_header(one.root.path)]
        variable = max(here or header, key=lambda one: len(one.owners), default=None)
        if variable and "extern" in variable.type:
            return next((one for one in found if one.value and not one.function and not one.owners), variable)
        return variable

    def struct_near(self, names, node):
        """The struct that the names of a type mean where the node is: the last of them that is one."""
        for name in reversed(names):
            struct = self.struct_named(name, node, set())
            if struct:
                return struct
        return None

    def without_aliases(self, names, root, owners):
        """The names of a type in a file and its classes, with other names of types replaced by what they stand for."""
        found = []
        for name in names:
            visible = [(len(inside), types) for types, inside, alias_root in self.aliases.get(name, [])
                       if inside == owners[:len(inside)] and (alias_root is root or is_header(alias_root.path)) and
                       name not in types]
            types = max(visible, key=lambda alias: alias[0], default=(0, None))[1]
            found += self.without_aliases(types, root, owners) if types else [name]
        return found

    def struct_named(self, name, node, seen):
        if name in seen:
            return None
        seen.add(name)
        for types, _, root in sorted(self.aliases.get(name, []), key=lambda alias: alias[2] is not node.root()):
            if root is node.root() or is_header(root.path):
                for type_name in reversed(types):
                    struct = self.struct_named(type_name, node, seen)
                    if struct:
                        return struct
        found = [one for one in self.structs.get(name, []) if one.members]
        here = [one for one in found if one.root is node.root()]
        header = [one for one in found if is_header(one.root.path)]
        return (here or header or [None])[0]


def library_of(path):
    return path.split("/", 1)[0]


def is_header(path):
    return path.endswith(".h")


def function_of(node):
    """The innermost function or named lambda around a node."""
    while node:
        if node.function:
            return node.function
        node = node.parent
    return None


def owners_of(node):
    """The classes around a node, the outermost first."""
    while node:
        if node.function:
            return node.function.owners
        if isinstance(node, Group) and node.owners:
            return node.owners
        node = node.parent
    return ()


def owners_named(node):
    """The class that stands before a name and the sign ::, as a tuple that is empty for a namespace; None without any."""
    owner = node.beside(-2)
    if not is_sign(node.beside(-1), "::") or not is_name(owner):
        return None
    return () if owner.text in ("quv", "std") else (owner.text,)


def stem(path):
    name = os.path.splitext(os.path.basename(path))[0]
    return name[:-2] if name.endswith("_p") else name
