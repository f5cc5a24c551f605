# SPDX-License-Identifier: LGPL-3.0-or-later
"""Says which sources of a target can be compiled joined, a line "path;group" for each. Usage: group_sources.py SOURCE...

Up to sixteen of a folder are a group. Apart stay two sources of which one has in its unnamed namespace a name that the other one
speaks of, and one that uses another's class or sees other templates: a description that makes a class is known in the source of
that class only. What is not recognised here is told by the compiler.
"""
import functools
import re
import sys
from pathlib import Path

MOST = 16
# what stands at the beginning of a line is declared there, since the contents of namespaces are not indented
DECLARED = re.compile(r"(\w+)(?:<[^;{}()]*>)?\s*(?=\(|\[|=|\{|;)")
TEMPLATES = re.compile(r"described\w+_p\.h")
SHARED = re.compile(r"using (?:\w+::)+\w+;|using namespace ")  # may be said twice
NO_NAMES = {"auto", "class", "const", "int", "void"}  # they stand where names do


def included(path):
    """The headers that a file includes, named as it says."""
    text = path.read_text(encoding="utf-8") if path.exists() else ""
    return re.findall(r'^#include "(.+)"', text, re.MULTILINE)


def used_headers(path):
    """The names of the headers that a source or its own header includes, without its own."""
    return {Path(name).stem for file in (path, path.with_suffix(".h")) for name in included(file)} - {path.stem}


@functools.lru_cache(maxsize=None)
def seen_templates(path):
    """Which bodies of templates are seen in a file: each class is made of them in one place."""
    seen = frozenset([path.name]) if TEMPLATES.match(path.name) else frozenset()
    for name in included(path):
        beside = path.parent / name
        seen |= seen_templates(beside if beside.exists() else path.parent.parent / name)
    return seen


def own_names(text):
    names = set()
    inside = False
    for line in text.splitlines():
        if line == "namespace {":
            inside = True
        elif line == "} // namespace":
            inside = False
        elif inside and re.match(r"\w|\[\[", line) and not SHARED.match(line):
            before_body = re.split(r"=(?!=)", line, maxsplit=1)[0] + " ="
            names |= set(DECLARED.findall(before_body)) | set(re.findall(r"^(?:struct|class|enum|enum class) (\w+)", line))
    return names - NO_NAMES


class Group:
    def __init__(self, folder, templates):
        self.folder = folder
        self.templates = templates
        self.names = set()
        self.words = set()
        self.sources = set()
        self.used = set()

    def takes(self, path, names, words, used):
        room = self.folder == path.parent and self.templates == seen_templates(path) and len(self.sources) < MOST
        strangers = not self.names & words and not names & self.words
        return room and strangers and not self.sources & used and path.stem not in self.used

    def add(self, path, names, words, used):
        self.names |= names
        self.words |= words
        self.sources.add(path.stem)
        self.used |= used


def main(paths):
    groups = []
    for path in map(Path, paths):
        if path.suffix != ".cpp" or not path.exists():
            continue
        text = path.read_text(encoding="utf-8")
        names, words, used = own_names(text), set(re.findall(r"\w+", text)), used_headers(path)
        group = next((group for group in groups if group.takes(path, names, words, used)), None)
        if not group:
            group = Group(path.parent, seen_templates(path))
            groups.append(group)
        group.add(path, names, words, used)
        print(f"{path};{groups.index(group)}")


if __name__ == "__main__":
    main(sys.argv[1:])
