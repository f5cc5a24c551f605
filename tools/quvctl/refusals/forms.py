# SPDX-License-Identifier: LGPL-3.0-or-later
"""In which form comes what is refused."""

import re
from itertools import dropwhile

VALUE, LIST, TYPED, TOKENS, ROW, MACHINE, ENVELOPE = \
    "XML-RPC value", "list", "typed", "tokens", "text", "machine", "envelope"

# A member or a parameter of such a name says in which form its code is raised; any other name says when.
FORM_NAMES = {"value": VALUE, "xmlRpc": VALUE, "struct": VALUE, "list": LIST, "typed": TYPED, "tokens": TOKENS,
              "envelope": ENVELOPE}

# What stands behind variants only in a constructor that a program calls with what it has: a request is read from them alone.
PLAIN = {"bool", "int", "uint", "qlonglong"}

MACHINES = {"FW_Machine", "FW_Dispenser", "FW_Mixer"}


def in_words(name):
    return re.sub(r"(?<=[a-z0-9])(?=[A-Z])", " ", name).lower()


def has_plain_behind(parameters):
    """Whether a plain parameter follows one of variants."""
    behind = dropwhile(lambda parameter: "QVariant" not in parameter.type, parameters)
    return any(PLAIN & set(parameter.type) for parameter in behind)


def form_of(function):
    """The form of what a function reads or checks; empty when its signature does not tell."""
    types = {name for parameter in function.parameters for name in parameter.type}
    form = VALUE if "XmlRpcValue" in types else LIST if "QVariant" in types else TOKENS if "QStringList" in types else ""
    is_constructor = function.owners[-1:] == (function.name,)
    if is_constructor and form == LIST and has_plain_behind(function.parameters):
        return TYPED
    if not form and is_constructor:
        if types and types <= MACHINES | {"const", "int", "char"} and types & MACHINES:
            return MACHINE
        is_row = any(parameter.name == "row" and parameter.type == ["QString"] for parameter in function.parameters)
        return ROW if is_row else TYPED
    if function.name.startswith("check") and "FW_DriverError" in types:
        return f"check of the {in_words(function.name[len('check'):])}".replace(" id", " ID")
    if re.fullmatch(r"buildProtoAnswer|set[A-Za-z]*Answer", function.name):
        form = ENVELOPE if function.name == "setAnswer" and form == VALUE else form
        return f"answer, {form}" if form else "answer"
    return form
