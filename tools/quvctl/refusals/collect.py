# SPDX-License-Identifier: LGPL-3.0-or-later
"""Writes the table of all refusals as C++. Usage: collect.py ROOT OUTPUT FOLDER..., the folders relative to the root."""

import os
import sys

from refusals import Unresolved, collected

HEAD = """// Made from the sources by refusals/collect.py: a change here does not last.
#include "explanations.h"

namespace quv {

const std::vector<Explanation> &explanations()
{
    static const std::vector<Explanation> all = {
"""
TAIL = """    };
    return all;
}

} // namespace quv
"""


def sources_in(root, folders):
    texts = {}
    for folder in folders:
        for path, _, names in os.walk(os.path.join(root, folder)):
            for name in names:
                if name.endswith((".h", ".cpp")):
                    file = os.path.join(path, name)
                    with open(file, encoding="utf-8") as source:
                        texts[os.path.relpath(file, root).replace(os.sep, "/")] = source.read()
    return texts


def literal(text):
    escapes = {"\\": "\\\\", '"': '\\"', "\n": "\\n", "\t": "\\t"}
    return '"' + "".join(escapes.get(character, character) for character in text) + '"'


def row(refusal):
    cells = [refusal.code, refusal.text, ", ".join(refusal.names), refusal.refuser, refusal.form, refusal.when,
             ", ".join(refusal.functions), refusal.file, *filter(None, [refusal.subject])]
    return "        {" + ", ".join(map(literal, cells)) + "},\n"


def write_if_changed(path, text):
    """What did not change is not compiled again."""
    try:
        with open(path, encoding="utf-8") as file:
            if file.read() == text:
                return
    except FileNotFoundError:
        pass
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)


def main(root, output, *folders):
    try:
        refusals = collected(sources_in(root, folders))
    except Unresolved as error:
        print(error, file=sys.stderr)
        return 1
    write_if_changed(output, HEAD + "".join(map(row, refusals)) + TAIL)
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
