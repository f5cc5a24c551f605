# SPDX-License-Identifier: LGPL-3.0-or-later
"""C++ as tokens in nested groups: as much of it as it takes to find literals, and the lists that they stand in."""

import re

PAIRS = {"(": ")", "[": "]", "{": "}"}
SPACE = r"\s+|//(?:[^\n\\]|\\.)*|/\*.*?\*/"
RAW = r'(?:u8|[uUL])?R"(?P<mark>[^()\\\s]*)\((?P<raw>.*?)\)(?P=mark)"'
STRING = r'(?:u8|[uUL])?"(?P<string>(?:[^"\\\n]|\\.)*)"'
LEXER = re.compile(
    rf"(?P<space>{SPACE})|(?P<rawstring>{RAW})|(?P<text>{STRING})|(?P<char>'(?:[^'\\\n]|\\.)+')"
    r"|(?P<name>[A-Za-z_]\w*)|(?P<number>\.?\d(?:[\w.]|'\w|[eEpP][+-])*)"
    r"|(?P<sign>::|->\*?|\.\.\.|&&|\|\||[=!<]=|\+\+|--|[-+*/%&|^]=|<<|.)", re.DOTALL)
DIRECTIVE = re.compile(r"^[ \t]*#(?:[^\n\\]|\\.)*", re.MULTILINE | re.DOTALL)
ESCAPE = re.compile(r"\\(u[0-9a-fA-F]{4}|U[0-9a-fA-F]{8}|x[0-9a-fA-F]+|[0-7]{1,3}|.)", re.DOTALL)
NAMED_ESCAPES = {"n": "\n", "t": "\t", "r": "\r", "a": "\a", "b": "\b", "f": "\f", "v": "\v", "\n": ""}


def unescaped(text):
    def character(match):
        escape = match[1]
        if escape[0] in "uUx" and len(escape) > 1:
            return chr(int(escape[1:], 16))
        return chr(int(escape, 8)) if escape[0] in "01234567" else NAMED_ESCAPES.get(escape, escape)

    return ESCAPE.sub(character, text)


class Node:
    """A token or a group: parent is the group that it stands in, at index."""

    __slots__ = ("parent", "index", "function")

    def __init__(self):
        self.parent = None
        self.index = 0
        self.function = None  # of the body of a function, and of what stands before the body of a constructor

    def beside(self, distance):
        """The node so many places further in the same group, or None."""
        place = self.index + distance
        return self.parent.nodes[place] if self.parent and 0 <= place < len(self.parent.nodes) else None

    def root(self):
        node = self
        while node.parent:
            node = node.parent
        return node


class Token(Node):
    """kind is name, text (value is what the literal holds), number, char or sign."""

    __slots__ = ("kind", "text", "value")

    def __init__(self, kind, text, value=None):
        super().__init__()
        self.kind = kind
        self.text = text
        self.value = value


class Group(Node):
    """What stands between a pair of brackets. The whole file is a group without brackets."""

    __slots__ = ("opening", "nodes", "role", "path", "owners")

    def __init__(self, opening):
        super().__init__()
        self.opening = opening
        self.nodes = []
        self.role = ""  # "scope" of declarations, "params" of a function, "body" of one
        self.path = ""  # of a whole file
        self.owners = ()  # of the declarations in a class: the classes around them, the outermost first

    def append(self, node):
        node.parent = self
        node.index = len(self.nodes)
        self.nodes.append(node)


def is_name(node, *names):
    return isinstance(node, Token) and node.kind == "name" and (not names or node.text in names)


def is_sign(node, *signs):
    return isinstance(node, Token) and node.kind == "sign" and node.text in signs


def is_text(node):
    return isinstance(node, Token) and node.kind == "text"


def is_group(node, opening):
    return isinstance(node, Group) and node.opening == opening


def tokens(source):
    for match in LEXER.finditer(DIRECTIVE.sub("", source)):
        if match.lastgroup == "rawstring":
            yield Token("text", match[0], match["raw"])
        elif match.lastgroup == "text":
            yield Token("text", match[0], unescaped(match["string"]))
        elif match.lastgroup != "space":
            yield Token(match.lastgroup, match[0])


def read(source, path=""):
    """The file as one group. A bracket that is never closed ends with the file, one that was never opened is passed over."""
    whole = Group("")
    whole.role = "scope"
    whole.path = path
    current = whole
    for token in tokens(source):
        if token.kind == "sign" and token.text in PAIRS:
            group = Group(token.text)
            current.append(group)
            current = group
        elif token.kind == "sign" and token.text in PAIRS.values():
            if current.parent and PAIRS[current.opening] == token.text:
                current = current.parent
        else:
            current.append(token)
    return whole


def walk(group):
    """All nodes in it, each before what it holds."""
    for node in group.nodes:
        yield node
        if isinstance(node, Group):
            yield from walk(node)


def angle_end(nodes, begin):
    """Where the template arguments end that begin with the sign < at begin; None when it is the sign of a comparison."""
    depth = 0
    for place in range(begin, len(nodes)):
        node = nodes[place]
        if is_sign(node, "<"):
            depth += 1
        elif is_sign(node, ">"):
            depth -= 1
            if depth == 0:
                return place
        elif is_group(node, "{") or is_text(node):
            return None
        elif isinstance(node, Token) and node.kind == "sign" and node.text not in ("::", ",", "&", "*", "...", "-"):
            return None
    return None


def angle_begin(node):
    """The first sign of the template arguments that end with this sign >."""
    depth = 0
    while node:
        if is_sign(node, ">"):
            depth += 1
        elif is_sign(node, "<"):
            depth -= 1
            if depth == 0:
                return node
        node = node.beside(-1)
    return None


def split(nodes, sign=","):
    """The runs of nodes between the signs, those of template arguments left whole."""
    parts = [[]]
    place = 0
    while place < len(nodes):
        node = nodes[place]
        if is_sign(node, "<") and place > 0 and is_name(nodes[place - 1]):
            end = angle_end(nodes, place)
            if end is not None:
                parts[-1].extend(nodes[place:end + 1])
                place = end + 1
                continue
        if is_sign(node, sign):
            parts.append([])
        else:
            parts[-1].append(node)
        place += 1
    return parts


def elements(group):
    """What a list holds; a comma behind the last changes nothing."""
    parts = split(group.nodes)
    return parts[:-1] if not parts[-1] else parts
