# SPDX-License-Identifier: LGPL-3.0-or-later
"""What becomes of every command: docs/driver.md has a table of it. Usage: quvdriver_commands_test.py QUVDRIVER QUVCTL DOCUMENT

With --write behind them the table is written anew.
"""
import contextlib
import difflib
import json
import re
import subprocess
import sys
import unittest
import xmlrpc.client
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import quvdriver_process

MACHINES = ["dispenser", "turntable", "dual", "station", "mixer"]
BEGIN = "<!-- what becomes of each command: written by tests/tools/quvdriver_commands_test.py -->\n"
END = "<!-- end -->\n"
QUVCTL = ""
DOCUMENT = ""


class Recorder:
    def EXEC_B(self, *params):
        return list(params)


def shown(*words):
    return subprocess.run([QUVCTL, *words], capture_output=True, check=True, text=True, timeout=30).stdout


def request(name):
    """The request of the command's example."""
    example = json.loads(shown("show", name, "--json")).get("example")
    return eval(example["python"], {"driver": Recorder(), "xmlrpc": xmlrpc}) if example else [name]


def in_words(error):
    """The code, and of a firmware's refusal the reason."""
    reason = re.search(r"refused the code \w+: (.*) \(masks", error["text"])
    return error["code"] + (f": {reason.group(1)}" if reason else "")


def attempt(machine, params):
    """The errors of the envelope, and the codes that the firmware was asked with, each once."""
    with contextlib.ExitStack() as stack:
        driver = stack.enter_context(quvdriver_process.Driver(
            "--machine", machine, "--speed", "10000", "--trace=json", stderr=subprocess.PIPE))
        envelope = stack.enter_context(driver.client()).EXEC_B(*params)
        driver.process.terminate()
        lines = [json.loads(line) for line in driver.process.stderr.read().splitlines() if line.startswith("{")]
        driver.process.stderr.close()
    codes = dict.fromkeys(line["code"] for line in lines if line["what"] == "exchange" and not line.get("refused"))
    return envelope["ret_code"], [in_words(error) for error in envelope["errors"]], list(codes)


def outcome(name):
    """The machine that carries the command out, or comes farthest, what its firmware is asked, and how it ends."""
    params = request(name)
    farthest = None
    for machine in MACHINES:
        ret_code, errors, codes = attempt(machine, params)
        told = (machine, " ".join(codes) or "-", "done" if ret_code == 0 else "; ".join(errors))
        if ret_code == 0:
            return told
        if errors == ["DE03107"]:  # it needs no machine
            return ("-", *told[1:])
        if farthest is None or (farthest[2] in ("DE03104", "DE03105") and errors != [farthest[2]]):
            farthest = told
    return ("-", *farthest[1:])


def table():
    names = shown("list", "--names").split()
    with ThreadPoolExecutor(3) as pool:
        outcomes = dict(zip(names, pool.map(outcome, names)))
    rows = [f"| `{name}` | {machine} | {codes} | {end} |\n" for name, (machine, codes, end) in outcomes.items()]
    return "| Command | Machine | Firmware is asked | Outcome |\n|---|---|---|---|\n" + "".join(rows)


def parts():
    text = Path(DOCUMENT).read_text(encoding="utf-8")
    return re.fullmatch(f"(.*{re.escape(BEGIN)})(.*)({re.escape(END)}.*)", text, re.DOTALL).groups()


class Commands(unittest.TestCase):
    maxDiff = None

    def test_the_table_is_what_the_driver_does(self):
        _, written, _ = parts()
        seen = table()
        self.assertEqual(seen.count("\n"), 2 + 167)
        difference = "".join(difflib.unified_diff(written.splitlines(True), seen.splitlines(True), DOCUMENT, "seen", n=0))
        self.assertEqual(written, seen, f"write it anew with --write\n{difference}")


if __name__ == "__main__":
    quvdriver_process.PROGRAM, QUVCTL, DOCUMENT = sys.argv[1:4]
    if sys.argv[4:] == ["--write"]:
        before, _, after = parts()
        Path(DOCUMENT).write_text(before + table() + after, encoding="utf-8")
    else:
        unittest.main(argv=sys.argv[:1])
