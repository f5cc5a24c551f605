# SPDX-License-Identifier: LGPL-3.0-or-later
"""Which programs' memory says something."""


def is_its_own(program):
    """Whether what a program takes is what it needs: sanitizers take many times as much."""
    with open(program, "rb") as file:
        content = file.read()
    return not any(mark in content for mark in (b"__asan_init", b"__tsan_init"))
