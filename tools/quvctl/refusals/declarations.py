# SPDX-License-Identifier: LGPL-3.0-or-later
"""What a C++ file declares: functions, structs, variables and other names of types, found by their shape."""

from dataclasses import dataclass, field

from cpptokens import Group, Token, angle_begin, angle_end, elements, is_group, is_name, is_sign, read, split, walk

SPECIFIERS = {"static", "const", "constexpr", "inline", "mutable", "volatile", "extern", "explicit", "virtual", "friend",
              "typename", "thread_local"}
NO_CALLS = {"if", "for", "while", "switch", "catch", "return", "sizeof", "alignof", "decltype", "noexcept", "static_assert",
            "throw", "else", "case", "constexpr", "defined", "typeid", "static_cast", "const_cast", "reinterpret_cast",
            "dynamic_cast", "new", "delete", "operator", "do", "alignas"}


CONTAINERS = {"vector", "array", "initializer_list", "QList", "QVector", "QVarLengthArray"}


def type_of(nodes):
    """The names of a type, without those of template arguments but what a container holds."""
    names = []
    place = 0
    while place < len(nodes):
        if is_sign(nodes[place], "<") and names and names[-1] not in CONTAINERS:
            end = angle_end(nodes, place)
            place = len(nodes) if end is None else end
        elif is_name(nodes[place]):
            names.append(nodes[place].text)
        place += 1
    return names


def names_of(nodes):
    return [node.text for node in nodes if isinstance(node, Token) and node.kind == "name"]


@dataclass(eq=False)
class Variable:
    """A variable, a parameter or a member."""

    name: str
    type: list  # the names in its type
    is_array: bool = False
    value: object = None  # the nodes of its initialiser, or None
    owners: tuple = ()
    function: object = None  # that it is local to
    root: object = None
    declared: object = None  # the token of its name


@dataclass(eq=False)
class Function:
    name: str
    owners: tuple  # the classes that it is declared in, the outermost first
    parameters: list
    returns: list
    body: object = None
    lead: list = field(default_factory=list)  # what stands before the body of a constructor
    outer: object = None  # the function that a lambda stands in
    root: object = None

    @property
    def outermost(self):
        return self.outer.outermost if self.outer else self

    def takes(self, count):
        fixed = [parameter for parameter in self.parameters if parameter.name != "..."]
        required = sum(parameter.value is None for parameter in fixed)
        return required <= count and (count <= len(fixed) or len(fixed) < len(self.parameters))

    def holds(self):
        """Its nodes: what stands before the body, and the body."""
        for node in self.lead:
            yield node
            if isinstance(node, Group):
                yield from walk(node)
        if self.body:
            yield from walk(self.body)


@dataclass(eq=False)
class Struct:
    name: str
    owners: tuple
    members: list
    root: object


class Source:
    """One file's declarations."""

    def __init__(self, text, path):
        self.root = read(text, path)
        self.functions = []
        self.structs = []
        self.variables = []  # those of namespaces, classes and functions
        self.aliases = []  # name, names in the type, owners
        self.scan(self.root, ())

    # Declarations

    def scan(self, group, owners):
        group.role = "scope"
        group.owners = owners
        begin = 0
        place = 0
        nodes = group.nodes
        while place < len(nodes):
            node = nodes[place]
            if is_sign(node, ";"):
                self.declaration(nodes[begin:place], owners)
            elif is_sign(node, ":") and is_name(nodes[place - 1], "public", "protected", "private"):
                pass
            elif is_group(node, "{") and self.take_block(nodes[begin:place], node, owners):
                pass
            else:
                place += 1
                continue
            place += 1
            begin = place

    def take_block(self, head, block, owners):
        """Reads a block that belongs to no initialiser; false for one that does."""
        head = without_templates(head)
        if names_of(head[:1]) in (["namespace"], ["extern"]) or names_of(head[:2]) == ["inline", "namespace"]:
            self.scan(block, owners)
            return True
        kind = next((place for place, node in enumerate(head) if is_name(node, "struct", "class", "union")), None)
        if kind is not None and not any(is_group(node, "(") or is_sign(node, "=") for node in head[kind:]):
            self.take_class(head[kind + 1:], block, owners)
            return False  # variables may follow
        if any(is_name(node, "enum") for node in head[:2]):
            return False
        function = self.function_head(head, owners)
        if function is None or function.name == "":
            return False
        self.add_body(function, block)
        return True

    def take_class(self, head, block, owners):
        head = split(head, ":")[0]
        names = [name for name in names_of(flat(head)) if name != "final"]
        if not names:
            return
        # an export macro may stand before the name; owners may stand in it
        path = qualified(flat(head)) or (names[-1],)
        inner = owners + path
        before = len(self.variables)
        self.scan(block, inner)
        members = [variable for variable in self.variables[before:] if variable.owners == inner]
        self.structs.append(Struct(inner[-1], inner[:-1], members, self.root))

    def function_head(self, head, owners):
        """The function that nodes declare, up to what stands behind its parameters; None for none."""
        for place, node in enumerate(head):
            if is_sign(node, "=") and not is_name(head[place - 1], "operator"):
                return None
            if is_group(node, "(") and place > 0 and is_name(head[place - 1]) and \
                    head[place - 1].text not in NO_CALLS | {"Q_DECLARE_METATYPE"}:
                break
        else:
            return None
        path, begin = path_before(head, place)
        tail = head[place + 1:]
        if not all(is_name(node) or is_group(node, "(") or is_sign(node, "->", "::", "<", ">", "*", "&", ",") or
                   is_sign(node, "[") for node in split(tail, ":")[0]):
            return None
        node.role = "params"
        lead = tail[len(split(tail, ":")[0]):]
        return Function(path[-1], owners + path[:-1], parameters_of(node), type_of(head[:begin]), lead=lead,
                        root=self.root)

    def add_body(self, function, block):
        function.body = block
        block.role = "body"
        for node in [*function.lead, block]:
            node.function = function
        self.functions.append(function)
        self.scan_body(function, block)
        for node in function.lead:
            if isinstance(node, Group):
                self.find_lambdas(function, node)

    def declaration(self, nodes, owners):
        nodes = without_templates(nodes)
        if names_of(nodes[:1]) == ["using"]:
            if len(nodes) > 2 and is_sign(nodes[2], "="):
                self.aliases.append((nodes[1].text, type_of(nodes[3:]), owners))
            return
        if names_of(nodes[:1])[:1] in (["typedef"], ["friend"], ["template"]):
            return
        variable = variable_of(nodes) or function_pointer_of(nodes)
        if variable:
            self.add_variable(variable, owners, None)
            return
        function = self.function_head(nodes, owners)
        if function:
            self.functions.append(function)

    def add_variable(self, variable, owners, function):
        variable.owners = owners + variable.owners
        variable.function = function
        variable.root = self.root
        self.variables.append(variable)

    # Bodies

    def scan_body(self, function, block):
        """The local variables and the named lambdas of a block."""
        statement = []
        for node in block.nodes:
            if is_sign(node, ";"):
                self.statement(statement, function)
                statement = []
            elif is_group(node, "{") and is_block(node) and introducer_of(node) is None:
                self.conditions(statement, function)
                node.role = "body"
                self.scan_body(function, node)
                statement = []
            else:
                statement.append(node)
        self.statement(statement, function)

    def statement(self, nodes, function):
        self.conditions(nodes, function)
        variable = variable_of(nodes)
        if variable:
            self.add_variable(variable, function.owners, function)
        for node in nodes:
            if isinstance(node, Group):
                self.find_lambdas(function, node)

    def conditions(self, nodes, function):
        """Variables in the head of a loop, a condition or a handler."""
        for place, node in enumerate(nodes):
            before = nodes[place - 1] if place else None
            if not is_group(node, "(") or not is_name(before, "for", "if", "while", "switch", "catch"):
                continue
            for part in split(node.nodes, ";"):
                variable = variable_of(split(part, ":")[0], plain=True)
                if variable:
                    self.add_variable(variable, function.owners, function)

    def find_lambdas(self, function, group):
        introducer = introducer_of(group)
        if introducer is None:
            for node in group.nodes:
                if isinstance(node, Group):
                    self.find_lambdas(function, node)
        elif group.function is None:
            self.take_lambda(function, introducer, group)

    def take_lambda(self, outer, introducer, body):
        parameters = introducer.beside(1)
        is_named = is_sign(introducer.beside(-1), "=") and is_name(introducer.beside(-2))
        if is_group(parameters, "("):
            parameters.role = "params"
        function = Function(introducer.beside(-2).text if is_named else "", outer.owners,
                            parameters_of(parameters) if is_group(parameters, "(") else [], [], outer=outer,
                            root=self.root)
        self.add_body(function, body)


def introducer_of(group):
    """The brackets that a lambda begins with, of its body; None for any other group."""
    if not is_group(group, "{"):
        return None
    node = group.beside(-1)
    while is_name(node) or is_sign(node, "->", "::", "&", "*", "<", ">", ","):
        node = node.beside(-1)  # what it returns, and mutable
    if is_group(node, "(") and is_group(node.beside(-1), "["):
        node = node.beside(-1)
    before = node.beside(-1) if is_group(node, "[") else None
    return node if is_group(node, "[") and not is_name(before) and not is_group(before, "(") else None


def is_block(group):
    """Whether a pair of braces inside a function holds statements and is no list."""
    if any(is_sign(node, ";") for node in group.nodes):
        return True
    before = group.beside(-1)
    if before is None:
        return is_group(group.parent, "{") and group.parent.role == "body" and group.parent.function is not None and \
            len(group.parent.nodes) == 1
    return is_group(before, "(") or is_name(before, "else", "try", "do") or is_sign(before, ";") or \
        introducer_of(group) is not None


def flat(nodes):
    return [node for node in nodes if isinstance(node, Token)]


def without_templates(nodes):
    """Without the heads of templates and attributes at the beginning."""
    place = 0
    while place < len(nodes):
        if is_name(nodes[place], "template") and place + 1 < len(nodes) and is_sign(nodes[place + 1], "<"):
            depth = 0
            for end in range(place + 1, len(nodes)):
                depth += is_sign(nodes[end], "<") - is_sign(nodes[end], ">")
                if depth == 0:
                    break
            place = end + 1
        elif is_group(nodes[place], "["):
            place += 1
        else:
            break
    return nodes[place:]


def qualified(nodes):
    """The names of A::B at the end of the nodes, as a tuple; empty when the last node is no name."""
    path = []
    place = len(nodes) - 1
    if place >= 0 and is_name(nodes[place], "final"):
        place -= 1
    while place >= 0:
        if is_sign(nodes[place], ">"):
            begin = angle_begin(nodes[place])
            place = nodes.index(begin) - 1 if begin in nodes else -1
            continue
        if not is_name(nodes[place]):
            break
        path.insert(0, nodes[place].text)
        if place == 0 or not is_sign(nodes[place - 1], "::"):
            break
        place -= 2
    return tuple(path)


def path_before(nodes, place):
    """The names of A<T>::B before the parameters at place, and where they begin."""
    path = [nodes[place - 1].text]
    begin = place - 1
    if begin > 0 and is_sign(nodes[begin - 1], "~"):
        path[0] = "~" + path[0]
        begin -= 1
    while begin > 1 and is_sign(nodes[begin - 1], "::"):
        before = begin - 2
        if is_sign(nodes[before], ">"):
            opening = angle_begin(nodes[before])
            while before > 0 and nodes[before] is not opening:
                before -= 1
            before -= 1
        if before < 0 or not is_name(nodes[before]):
            break
        path.insert(0, nodes[before].text)
        begin = before
    return tuple(name for name in path if name != "quv"), begin


def parameters_of(group):
    parameters = []
    for nodes in elements(group):
        if any(is_sign(node, "...") for node in nodes):
            parameters.append(Variable("...", []))
            continue
        left = split(nodes, "=")
        variable = variable_of(left[0], plain=True) or Variable("", type_of(left[0]))
        variable.value = left[1] if len(left) > 1 else None
        parameters.append(variable)
    return [] if len(parameters) == 1 and parameters[0].type == ["void"] else parameters


def variable_of(nodes, plain=False):
    """The variable that a statement declares, or None. plain: what is declared is no variable with values, but a parameter."""
    place = 0
    declared = None
    while place < len(nodes):
        node = nodes[place]
        if is_sign(node, "<") and place > 0 and is_name(nodes[place - 1]):
            end = angle_end(nodes, place)
            if end is None:
                return None
            place = end
        elif is_name(node):
            if node.text in NO_CALLS - {"constexpr", "alignas"} | {"using", "goto", "break", "continue", "enum"}:
                return None
            declared = place
        elif is_group(node, "[") and declared is not None:
            pass
        elif not is_sign(node, "::", "*", "&", "&&"):
            break
        place += 1
    if not declared:
        return None
    path, begin = path_before(nodes, declared + 1)
    tail = nodes[declared + 1:]
    is_array = bool(tail) and is_group(tail[0], "[")
    if is_array:
        tail = tail[1:]
    type_names = type_of(nodes[:begin])
    if begin > 0 and is_sign(nodes[begin - 1], "::") or not set(type_names) - SPECIFIERS:
        return None
    if tail and is_sign(tail[0], ">"):
        return None
    value = None
    if tail and is_sign(tail[0], "="):
        value = tail[1:]
    elif len(tail) == 1 and is_group(tail[0], "{"):
        value = tail
    elif len(tail) == 1 and is_group(tail[0], "(") and not plain and looks_like_values(tail[0]):
        value = tail
    elif tail:
        return None
    return Variable(path[-1], type_names, is_array, value, path[:-1], declared=nodes[declared])


def function_pointer_of(nodes):
    """The variable of T (*name)(...), or None."""
    for place, node in enumerate(nodes[1:-1], 1):
        if is_group(node, "(") and node.nodes and is_sign(node.nodes[0], "*") and is_name(node.nodes[-1]) and \
                is_group(nodes[place + 1], "("):
            return Variable(node.nodes[-1].text, type_of(nodes[:place]), declared=node.nodes[-1])
    return None


def looks_like_values(group):
    """Whether parentheses behind a name hold what a variable is made of, and not the parameters of a function."""
    if not group.nodes:
        return False
    first = elements(group)[0]
    if any(not (is_name(node) or is_sign(node, "::", "<", ">", "*", "&", "&&", "=", ",")) for node in first):
        return True
    return len(first) == 1
