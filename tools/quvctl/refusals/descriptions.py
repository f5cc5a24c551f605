# SPDX-License-Identifier: LGPL-3.0-or-later
"""Where the description of a command or an answer refuses: which argument or member, in which form, and when."""

from dataclasses import dataclass
from itertools import islice

from cpptokens import elements, is_group, is_name, is_sign
from forms import ENVELOPE, LIST, VALUE, form_of
from places import declared_before, handed_to, list_around, uses_of
from sources import callee_of, function_of
from texts import DEEPEST, Scope

# When an argument is refused, by the archive's operation and its parameter; the library's own teller says the same.
ARGUMENT_WORDS = {("required", "absent"): "missing", ("required", "otherType"): "another type",
                  ("requiredIf", "absent"): "missing", ("requiredIf", "otherType"): "another type",
                  ("optional", "otherType"): "another type", ("convertible", "refusal"): "missing or another type",
                  ("object", "refusal"): "missing or another type", ("object", "unreadable"): "unreadable",
                  ("refuseUnless", "refusal"): "out of range"}
# Operations that name an argument, and where in them the name stands.
NAMING = {"required": 0, "requiredIf": 1, "optional": 0, "convertible": 0, "object": 0, "unread": 0}
MEMBER = "Member"
MAY_BE_MISSING = "writtenWhenFilled"  # what makes a member that nothing refuses when it is missing
MEMBER_WORDS = {"otherType": "another type", "unmade": "cannot be made", "element": "an element of another type",
                "unmadeElement": "an element that cannot be made"}  # operations on a member
IN_LIST_TOO = "alsoInList"  # a refusal of the list form behind when it comes, in words
THE_ANSWER = "the answer"


@dataclass(frozen=True)
class Place:
    """A refusal in a description; subject is the argument, the member or the answer."""

    refuser: str
    function: str
    form: str
    subject: str
    when: str


class Descriptions:
    def __init__(self, sources, texts):
        self.sources = sources
        self.texts = texts

    def places(self, node, indexes=()):
        """Where a code is used in descriptions. indexes: its places in lists inside of the node, the outermost first."""
        if len(indexes) > DEEPEST:
            return []
        around = list_around(node)
        while around:
            group, index = around
            found = self.argument(group, index, indexes) or self.member(group, index)
            if found:
                return [found]
            node = group
            indexes = (index, *indexes)
            around = list_around(node)
        variable = declared_before(self.sources, node) if is_group(node, "{") else None
        uses = uses_of(self.sources, variable.declared) if variable and indexes else []
        return [place for use in uses for place in self.places(use, indexes)]

    def argument(self, group, index, indexes):
        """Of an operation of the archive that describes the arguments; None when the group is none."""
        operation = callee_of(group) if is_group(group, "(") else None
        parameter = self.parameter_of(group, index, "arguments")
        if (operation, parameter) not in ARGUMENT_WORDS:
            return None
        named = group if operation in NAMING else self.operation_before(group)
        is_list = parameter == "unreadable" or indexes[:1] == (1,)
        name = self.name_in(named, NAMING[callee_of(named)]) if named else None
        return self.raised_by_constructors(group, LIST if is_list else VALUE, name, ARGUMENT_WORDS[operation, parameter])

    def member(self, group, index):
        """Of a member of an answer, or of an operation on it; None when the group is none."""
        parameter = self.parameter_of(group, index, "members")
        operation = callee_of(group) if is_group(group, "(") else None
        if operation == IN_LIST_TOO and parameter:
            return self.raised_by_constructors(group, LIST, self.name_in(member_of(group)), self.name_in(group))
        if operation in MEMBER_WORDS and parameter:
            return self.raised_by_constructors(group, VALUE, self.name_in(member_of(group)), MEMBER_WORDS[operation])
        if parameter == "missing":  # what refuses each flag of a table
            return self.raised_by_constructors(group, VALUE, "", "")
        if parameter not in ("refusal", "inList") or \
                not any(one.owners[-1:] == (MEMBER,) for one in handed_to(self.sources, group)):
            return None
        when = "missing or another type"
        if parameter == "inList" and self.is_list_of_elements(function_of(group).owners[:-1]):
            when = MEMBER_WORDS["element"]
        elif parameter == "refusal" and operation == MAY_BE_MISSING:
            when = "another type"
        elif parameter == "refusal" and {"otherType", "unmade"} & set(operations_on(group)):
            when = "missing"
        return self.raised_by_constructors(group, LIST if parameter == "inList" else VALUE, self.name_in(group), when)

    def is_list_of_elements(self, owners):
        """Whether a class goes through the list by itself, and does not read it member by member."""
        made_of_lists = [one for one in self.sources.functions.get(owners[-1], [])
                         if one.owners == owners and one.body and form_of(one) == LIST]
        return any(is_name(node, "for") for one in made_of_lists for node in one.holds())

    def parameter_of(self, group, index, name):
        """The name of what stands in a place of a list, in the description's function of that name; None anywhere else."""
        function = function_of(group)
        if function is None or function.name != name or not is_described(function.owners):
            return None
        return next((one.parameters[index].name for one in handed_to(self.sources, group)
                     if index < len(one.parameters) and one.parameters[index].name), None)

    def operation_before(self, group):
        """The list of the last operation before this one that names an argument."""
        return next((node for node in reversed(group.parent.nodes[:group.index])
                     if is_group(node, "(") and callee_of(node) in NAMING), None)

    def name_in(self, group, index=0):
        """The name that stands at this place of a list, alone or with its meaning."""
        named = next(islice(elements(group), index, None), [])
        is_list = len(named) == 1 and is_group(named[0], "{")
        texts = self.texts.of_first(named[0], Scope()) if is_list else self.texts.of(named, Scope())
        return texts[0] if texts else ""

    def raised_by_constructors(self, group, form, subject, when):
        owners = function_of(group).owners[:-1]
        return Place(owners[0], "::".join([*owners, owners[-1]]), form, subject or "", when)


def member_of(group):
    """The list of the member that an operation is called on, maybe behind other operations."""
    while is_sign(group.beside(-2), ".") and is_group(group.beside(-3), "("):
        group = group.beside(-3)
    return group


def operations_on(group):
    """The names of the operations that are called on what a list makes."""
    names = []
    while is_sign(group.beside(1), ".") and is_name(group.beside(2)) and is_group(group.beside(3), "("):
        names.append(group.beside(2).text)
        group = group.beside(3)
    return names


def is_described(owners):
    """Whether it is a description that the innermost class is."""
    return owners[-1:] == ("Description",)


def answering_function(owners, form):
    """The function that refuses to make the answer of the class that a description belongs to, in the form."""
    return "::".join([*owners[:-1], "setAnswer" if form.endswith(ENVELOPE) else "buildProtoAnswer"])
