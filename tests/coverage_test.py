# SPDX-License-Identifier: LGPL-3.0-or-later
"""What scripts/coverage takes for a decision. Usage: coverage_test.py SCRIPTS"""

import importlib.machinery
import importlib.util
import pathlib
import sys
import unittest

SCRIPTS = pathlib.Path(sys.argv.pop(1))
sys.dont_write_bytecode = True
LOADER = importlib.machinery.SourceFileLoader("coverage", str(SCRIPTS / "coverage"))
coverage = importlib.util.module_from_spec(importlib.util.spec_from_loader("coverage", LOADER))
LOADER.exec_module(coverage)


def branches(text):
    """From words as "3" (a count), "3f" (falls through), "3t" (into an exception)."""
    return [{"count": int(word.rstrip("ft")), "fallthrough": word.endswith("f"), "throw": word.endswith("t")}
            for word in text.split()]


class Decided(unittest.TestCase):
    def expect(self, text, decisions, exceptions=False):
        self.assertEqual(coverage.decided(branches(text), exceptions), decisions)

    def test_conditions(self):
        self.expect("", [])
        self.expect("7f 2", [[7, 2]])
        self.expect("7 2f 0f 2", [[7, 2], [0, 2]])

    def test_switch(self):
        self.expect("1 0 4", [[1, 0, 4]])
        self.expect("1 0 4 2f", [[1, 0], [4, 2]])

    def test_calls_that_may_throw(self):
        self.expect("7f 0t", [])
        self.expect("7f 0t 5f 2", [[5, 2]])
        self.expect("1 0 7f 0t 3 4f", [[1, 0], [3, 4]])
        self.expect("7f 0t 5f 2", [[7, 0], [5, 2]], exceptions=True)


class BranchesOfALine(unittest.TestCase):
    def counts(self, count, *shapes):
        line = coverage.Line()
        line.count = count
        line.shapes = dict(enumerate(shapes))
        return line.branches()

    def test_all_of_a_line_that_never_ran(self):
        self.assertEqual(self.counts(0, [[0, 0], [0, 0]]), [0, 0, 0, 0])

    def test_decisions_that_were_met(self):
        self.assertEqual(self.counts(4, [[4, 0], [0, 0], [0, 1, 0]], [[2, 2]]), [4, 0, 0, 1, 0, 2, 2])


if __name__ == "__main__":
    unittest.main()
