# SPDX-License-Identifier: LGPL-3.0-or-later
"""What Tab offers. Usage: completion_test.py QUVCTL ITS_SCRIPT QUVDRIVER ITS_SCRIPT"""

import re
import subprocess
import sys
import unittest

import quvctl_process
from quvctl_process import run

COMPLETION = DRIVER = DRIVER_COMPLETION = ""


def complete(function, completion, program, *words):
    """What Tab offers at the end of the last word."""
    script = ('source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); ' + function + '; '
              'printf "%s\\n" "${COMPREPLY[@]}"')
    result = subprocess.run(["bash", "--norc", "-c", script, "bash", completion, program, *words],
                            capture_output=True, text=True, timeout=30, check=False)
    if result.stderr:
        raise AssertionError(result.stderr)
    return result.stdout.split()


class Quvctl(unittest.TestCase):
    def complete(self, *words):
        return complete("_quvctl", COMPLETION, quvctl_process.PROGRAM, *words)

    def test_completion(self):
        self.assertEqual(self.complete("sh"), ["show"])
        self.assertIn("watch", self.complete(""))
        self.assertEqual(self.complete("show", "GET_STAT"), ["GET_STATUS", "GET_STATS_ERRORS"])
        self.assertEqual(self.complete("call", "--port", "99", "TIN"), ["TINT", "TINT2"])
        self.assertEqual(self.complete("call", "TINT", "GET"), [])
        self.assertEqual(self.complete("call", "TINT", "--p"), ["--port"])
        self.assertEqual(self.complete("list", "--kind", "s"), ["serial", "special", "scale"])
        self.assertEqual(self.complete("help", "wa"), ["watch"])
        self.assertEqual(self.complete("encode", "--machine", "turn"), ["turntable"])
        self.assertEqual(self.complete("machine", "turn"), ["turntable"])
        self.assertEqual(self.complete("config", "pu"), ["pull", "push"])
        self.assertEqual(self.complete("clean", "ul"), ["ultrasound", "ultrasound-only"])
        self.assertEqual(self.complete("stir", "--on", "m"), ["mixer"])
        self.assertEqual(self.complete("move", ""), ["shelf", "table", "cap"])
        self.assertEqual(self.complete("move", "cap", ""), ["open", "close"])
        self.assertEqual(self.complete("config", "--yes", "d"), ["diff"])
        self.assertEqual(self.complete("config", "push", COMPLETION[:-1]), [COMPLETION])

    def test_names_of_arguments(self):
        self.assertEqual(self.complete("call", "GET_STATUS", ""), ["position="])
        self.assertEqual(self.complete("call", "--port", "99", "GET_STATUS", "pos"), ["position="])
        self.assertEqual(self.complete("encode", "READ_CONFIG_ROW", ""), ["code=", "id="])
        self.assertEqual(self.complete("encode", "READ_CONFIG_ROW", "i"), ["id="])
        for given in [("code=7",), ("code", "=", "7")]:
            self.assertEqual(self.complete("encode", "READ_CONFIG_ROW", *given, ""), ["id="])
        for value in [("code", "="), ("code", "=", "7"), ("code", "=", "i"), ("code=7",)]:
            self.assertEqual(self.complete("encode", "READ_CONFIG_ROW", *value), [])
        self.assertEqual(self.complete("call", "GET_ERRORS", ""), [])
        self.assertEqual(self.complete("call", "NOPE", ""), [])
        self.assertEqual(self.complete("show", "GET_STATUS", ""), [])

    def test_options_are_those_of_the_help(self):
        for name in ["list", "show", "encode", "decode", "call", "ticket", "tint", "config", "watch", "batch",
                     "machine", "explain", "status", "errors", "sensors", "circuits", "stir", "recirculate", "clean", "mix",
                     "move", "refill", "stop"]:
            told = re.findall(r"(?m)^  (?:-\w, |    )(--[a-z-]+)", run("help", name)[1])
            self.assertIn("--help", told)
            self.assertEqual(sorted(self.complete(name, "--")), sorted(told), name)

    def test_values_behind_a_sign(self):
        for words in [("tint", "--by", "c"), ("tint", "--by", "=", "c")]:
            self.assertEqual(self.complete(*words), ["circuit", "canister", "colorant"])
        self.assertEqual(self.complete("tint", "--by", "="), ["position", "circuit", "canister", "colorant"])
        self.assertEqual(self.complete("tint", "--by=po"), ["--by=position"])
        for port in [("--port", "99"), ("--port=99",), ("--port", "=", "99")]:
            self.assertEqual(self.complete("call", *port, "TIN"), ["TINT", "TINT2"])
            self.assertEqual(self.complete("call", *port, "GET_STATUS", ""), ["position="])
            self.assertNotIn("--port", self.complete("call", *port, "--"))
        self.assertEqual(self.complete("call", "--port", ""), [])
        self.assertEqual(self.complete("call", "-q", "TIN"), ["TINT", "TINT2"])

    def test_what_is_given_is_not_offered(self):
        self.assertEqual(self.complete("encode", "READ_CONFIG_ROW", "7", ""), ["id="])
        self.assertEqual(self.complete("encode", "--family", "1", "READ_CONFIG_ROW", "7", "2", ""), [])
        self.assertNotIn("--json", self.complete("call", "--json", "--"))


class Quvdriver(unittest.TestCase):
    def complete(self, *words):
        return complete("_quvdriver", DRIVER_COMPLETION, DRIVER, *words)

    def test_options(self):
        told = subprocess.run([DRIVER, "--help"], capture_output=True, text=True, timeout=30, check=True).stdout
        options = re.findall(r"(?m)^  (?:-\w, )*(--[a-z-]+)", told)
        self.assertIn("--firmware", options)
        self.assertEqual(self.complete(""), options)
        self.assertEqual(self.complete("--fi"), ["--firmware"])
        self.assertEqual(self.complete("--ver"), ["--version"])  # behind two letters in the help

    def test_values(self):
        self.assertEqual(self.complete("--machine", "turn"), ["turntable"])
        self.assertEqual(self.complete("--machine", "none", "--machine", "=", "du"), ["dual"])
        self.assertEqual(self.complete("--firmware", "="), ["older", "equal", "newer"])
        self.assertEqual(self.complete("--firmware=ol"), ["--firmware=older"])
        for option in ["--scenario", "--state"]:
            self.assertEqual(self.complete(option, DRIVER_COMPLETION[:-1]), [DRIVER_COMPLETION])
        self.assertEqual(self.complete("--port", ""), [])


if __name__ == "__main__":
    quvctl_process.PROGRAM = sys.argv.pop(1)
    COMPLETION = sys.argv.pop(1)
    DRIVER = sys.argv.pop(1)
    DRIVER_COMPLETION = sys.argv.pop(1)
    unittest.main()
