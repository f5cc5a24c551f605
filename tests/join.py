#!/usr/bin/env python3
# SPDX-License-Identifier: LGPL-3.0-or-later
"""Joins sources of tests into one, so that headers are parsed and templates are made once for all of them.

Usage: join.py OUTPUT SOURCE...

Each source keeps its names in a namespace of its own. What it includes is included before, outside of that namespace, and
guarded against a second time; the compiler tells of mistakes in the sources themselves.
"""
import re
import sys
from pathlib import Path


def included(source):
    for name in re.findall(r'^#include ([<"].+[>"])', source.read_text(), re.MULTILINE):
        beside = source.parent / name[1:-1]
        yield f'"{beside}"' if name[0] == '"' and beside.exists() else name


def joined(sources):
    headers = dict.fromkeys(header for source in sources for header in included(source))
    lines = [f"#include {header}" for header in headers]
    for source in sources:
        lines += ["", "namespace {", f"namespace {source.stem} {{", f'#include "{source}"', "}", "}"]
    return "\n".join(lines) + "\n"


if __name__ == "__main__":
    output, *sources = map(Path, sys.argv[1:])
    text = joined(sources)
    if not output.exists() or output.read_text() != text:  # what did not change is not compiled again
        output.write_text(text)
