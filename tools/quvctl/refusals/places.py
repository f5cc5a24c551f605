# SPDX-License-Identifier: LGPL-3.0-or-later
"""Where an expression stands: in a list that a struct is made of, in the arguments of a call, or in a statement."""

from cpptokens import elements, is_group, is_name, is_sign
from declarations import CONTAINERS, NO_CALLS, is_block
from sources import callee_of, function_of, is_header, owners_of

# Calls that give the text that they are given, and what else gives what it is given.
TEXT_MAKERS = {"QStringLiteral", "QLatin1String", "QString", "fromLatin1", "fromUtf8", "TString", "QT_TRANSLATE_NOOP",
               "translated", "string"}
TRANSPARENT = TEXT_MAKERS | {"move"}


def is_statements(group):
    return group.role in ("scope", "body", "params") or (is_group(group, "{") and is_block(group))


def list_around(node):
    """The innermost list around a node and the element's place in it; None for a node that is in no list."""
    group = node.parent
    if group is None or is_statements(group) or is_group(group, "["):
        return None
    if is_group(group, "("):
        callee = callee_of(group)
        if callee is None:
            before = group.beside(-1)
            return None if is_name(before) and before.text in NO_CALLS - {"return", "throw"} else list_around(group)
        if callee in TRANSPARENT:
            return list_around(group)
    for place, nodes in enumerate(elements(group)):
        if node in nodes:
            return group, place
    return None


def kept(find):
    """Keeps what was found once for a group."""
    def finding(sources, group):
        key = (find, id(group))
        if key not in sources.kept:
            sources.kept[key] = find(sources, group)
        return sources.kept[key]
    return finding


@kept
def called_by(sources, group):
    """The functions that parentheses may call: those with that name and number of arguments, defined ones before others."""
    callee = callee_of(group)
    if callee is None:
        return []
    count = len(elements(group)) if group.nodes else 0
    found = [one for one in sources.functions_near(callee, group) if one.takes(count)]
    if not found:
        for types, _, _ in sources.aliases.get(callee, []):
            found += [one for name in types[-1:] for one in sources.functions_near(name, group) if one.takes(count)]
    found = of_owner(sources, group, found)
    return [one for one in found if one.body] or found


def of_owner(sources, group, functions):
    """Those of the class that the call names, or whose object it names; all when that tells nothing."""
    name = group.beside(-1)
    before = name.beside(-1) if is_name(name) else None
    owner = before.beside(-1) if before else None
    names = set()
    if is_sign(before, "::") and is_name(owner):
        names = {owner.text}
    elif is_sign(before, ".", "->") and is_name(owner) and not is_sign(owner.beside(-1), ".", "->"):
        variable = sources.variable_near(owner.text, owner)
        names = set(variable.type) if variable else set()
    elif before is None or not is_sign(before, ".", "->", "::"):
        inside = owners_of(group)
        free = [one for one in functions if not one.owners or one.owners == inside[:len(one.owners)]]
        return free or functions  # or those of a base
    return [one for one in functions if one.owners and one.owners[-1] in names] or functions


@kept
def types_of(sources, group):
    """The types that a list in braces may have, as names, by what stands around it."""
    before = group.beside(-1)
    if is_name(before, "return"):
        function = function_of(group)
        return [of_function(sources, function, function.returns)] if function else []
    if is_sign(before, "=") or (is_name(before) and before.text not in NO_CALLS):
        variable = declared_before(sources, group)
        if variable or is_sign(before, "="):
            return [of_variable(sources, variable)] if variable else []
        return [sources.without_aliases([before.text], group.root(), owners_of(group))]  # Type{...}
    around = None if is_sign(before, ">") else list_around(group)
    return types_in(sources, group, *around) if around else []


def types_in(sources, group, outer, place):
    """Those of a list in braces that is an element of another list."""
    if is_group(outer, "(") or makers_of(sources, outer):
        return [of_function(sources, function, function.parameters[place].type)
                for function in handed_to(sources, outer) if place < len(function.parameters)]
    if holds_many(sources, outer):
        if len(elements(outer)) == 1 and all(is_group(nodes[0], "{") for nodes in elements(group)):
            return types_of(sources, outer)  # the second braces of a std::array
        return [[name for name in types if name not in CONTAINERS] for types in types_of(sources, outer)]
    struct = struct_of(sources, outer)
    return [of_variable(sources, struct.members[place])] if struct and place < len(struct.members) else []


def of_variable(sources, variable):
    return sources.without_aliases(variable.type, variable.root, variable.owners)


def of_function(sources, function, types):
    return sources.without_aliases(types, function.root, function.owners)


def declared_before(sources, group):
    """The variable whose initialiser a list in braces is."""
    name = group.beside(-1)
    if is_sign(name, "="):
        name = name.beside(-1)
    return declared_with(sources, name.beside(-1) if is_group(name, "[") else name)


def declared_with(sources, name):
    """The variable whose own declaration this name stands in."""
    if not is_name(name):
        return None
    return next((one for one in sources.variables.get(name.text, []) if one.declared is name), None)


def uses_of(sources, name):
    """Where a variable is used, by the name in its declaration."""
    variable = declared_with(sources, name)
    if variable is None:
        return []
    everywhere = variable.function is None and any(
        is_header(one.root.path) for one in sources.variables[name.text] if one.owners == variable.owners)
    return [node for node in sources.names[name.text]
            if node is not name and (everywhere or node.root() is variable.root) and
            not is_sign(node.beside(-1), ".", "->") and sources.variable_near(name.text, node) is variable]


@kept
def holds_many(sources, group):
    """Whether a list in braces is that of an array or a container and not of one struct."""
    variable = declared_before(sources, group)
    return bool(variable and variable.is_array) or \
        any(CONTAINERS & set(types) for types in types_of(sources, group))


def handed_to(sources, group):
    """The functions that what stands in a list is handed to: those of a call, or constructors."""
    return called_by(sources, group) if is_group(group, "(") else makers_of(sources, group)


def makers_of(sources, group):
    """The constructors of a struct that a list in braces may be handed to."""
    struct = struct_of(sources, group)
    if struct is None:
        return []
    found = [one for one in sources.functions.get(struct.name, [])
             if one.owners == struct.owners + (struct.name,) and one.takes(len(elements(group)))]
    return [one for one in found if one.body] or found


@kept
def struct_of(sources, group):
    """The struct that a list in braces makes; None when nobody can tell."""
    if holds_many(sources, group):
        return None
    return next((struct for types in types_of(sources, group) if (struct := sources.struct_near(types, group))), None)
