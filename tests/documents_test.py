# SPDX-License-Identifier: LGPL-3.0-or-later
"""
A document is right: its command lines and requests are run, and what they print is compared.
Usage: documents_test.py SOURCE PROGRAMS DOCUMENT [unittest options]; PROGRAMS is the folder of quvctl and quvdriver.

What stands in a document, and what is done with it:

    $ COMMAND           in a fence: run by a shell, in one folder and in the order of the document; the lines below it are
                        what it prints. "quvdriver ... &" starts a driver, in place of the one that had this port; it takes
                        a free port, and the document's stands for that.
    ...                 a line that stands for any lines
    ```console differs  the fence has what differs each time: tickets, progress, times of day. Only their form is compared.
    <!-- run: X -->     a step that readers see told in other words
    {"op":...}          a request of quvctl batch; the line below it is its reply, where … stands for anything
    [y/N] y             an answer that is typed on a terminal
"""

import difflib
import json
import os
import pathlib
import pty
import re
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import unittest
import xmlrpc.client

SOURCE = pathlib.Path()
PROGRAMS = pathlib.Path()
DOCUMENT = ""

PORT = "9333"  # of a driver and a client that are not told another
TICKET = re.compile(r"\b[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}\b")
CALLING = re.compile(r"\bquvctl (call|tint|watch|config|ticket|status|errors|stir|refill|stop)\b(?![^|;&]* --port)")

# What another test runs, and by which words.
RUN_ELSEWHERE = {
    "./scripts/demo": (".ci/run", "\nscripts/demo\n"),
    "./scripts/test": (".ci/run", "\nscripts/test\n"),
    "cmake --preset release && cmake --build --preset release": ("tests/packages_test.py", '"--preset", "release"'),
    "cmake --install build/release --prefix /usr/local": ("tests/packages_test.py", '"cmake", "--install", BUILD'),
}


class Fence:
    def __init__(self, line, info):
        self.line = line  # of the first line in it
        self.info = info
        self.lines = []

    def __iter__(self):
        return enumerate(self.lines, self.line)


class Hidden:
    def __init__(self, line, command):
        self.line = line
        self.command = command


def parts_of(text):
    """The fences and the hidden steps, in their order."""
    parts, fence = [], None
    for number, line in enumerate(text.split("\n"), 1):
        if line.startswith("```"):
            if fence:
                parts.append(fence)
            fence = None if fence else Fence(number + 1, line[3:].strip())
        elif fence:
            fence.lines.append(line)
        elif found := re.fullmatch(r"<!-- run: (.*) -->", line):
            parts.append(Hidden(number, found.group(1)))
    if fence:
        raise AssertionError(f"the fence of line {fence.line - 1} has no end")
    return parts


def commands_in(fence):
    """Its commands with their lines and what they print; the lines before the first are passed over."""
    found = []
    for number, line in fence:
        if line.startswith("$ "):
            found.append((number, line[2:], []))
        elif found:
            found[-1][2].append(line)
    for _, _, printed in found:
        while printed and not printed[-1]:
            printed.pop()
    return found


def form_of(lines):
    """Lines without what differs each time: any progress is one line."""
    formed = []
    for line in lines:
        line = TICKET.sub("TICKET", line)
        line = re.sub(r"^\d\d:\d\d:\d\d ", "hh:mm:ss ", line)
        line = re.sub(r"^(\[[#.]+\] )?((?!100 %)\d+ %(  .*)?|Queued\.\.\.)$", "PROGRESS", line)
        if line != "PROGRESS" or formed[-1:] != ["PROGRESS"]:
            formed.append(line)
    return formed


def matches(expected, printed):
    pattern = "".join(r"(?:.*\n)*?" if line == "..." else re.escape(line + "\n") for line in expected)
    return re.fullmatch(pattern, "".join(line + "\n" for line in printed)) is not None


class Shell:
    """Runs command lines in a folder of their own, with the drivers that they start."""

    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.environment = {name: value for name, value in os.environ.items()
                            if not name.startswith("QUV_") and name != "COLUMNS"}
        self.environment.update(PATH=f"{PROGRAMS}:{os.environ['PATH']}", NO_COLOR="1", LC_ALL="C.UTF-8",
                                HOME=str(self.folder))
        self.drivers = {}  # by the port that the document tells
        self.ports = {}  # which the drivers have, likewise
        self.tickets = {}
        self.status = 0  # of the last command

    def close(self):
        for port in list(self.drivers):
            self.stop_driver(port)
        shutil.rmtree(self.folder)

    def stop_driver(self, port):
        if port in self.drivers:
            driver = self.drivers.pop(port)
            driver.send_signal(signal.SIGTERM)
            driver.communicate(timeout=10)

    def run(self, command, typed=None):
        if found := re.fullmatch(r"(quvdriver\b.*) &", command):
            return self.start_driver(shlex.split(found.group(1)))
        for written, given in self.tickets.items():
            command = command.replace(written, given)
        if PORT in self.ports:
            command = CALLING.sub(rf"quvctl \1 --port {self.ports[PORT]}", command)
        for told, port in self.ports.items():
            command = command.replace(f"--port {told}", f"--port {port}")
        text = self.run_shell(command, typed)
        for told, port in self.ports.items():
            text = text.replace(f" --port {port}", "" if told == PORT else f" --port {told}")
            text = text.replace(f":{port}", f":{told}")
        return text.removesuffix("\n").split("\n") if text else []

    def run_shell(self, command, typed):
        theirs = subprocess.DEVNULL
        if typed:
            ours, theirs = pty.openpty()
            os.write(ours, typed.encode("utf-8"))
        try:
            result = subprocess.run(["bash", "-c", command], cwd=self.folder, env=self.environment, stdin=theirs,
                                    stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=60, check=False)
        finally:
            if typed:
                os.close(ours)
                os.close(theirs)
        self.status = result.returncode
        return result.stdout.decode("utf-8")

    def start_driver(self, words):
        told = PORT
        if "--port" in words:
            place = words.index("--port")
            told = words[place + 1]
            del words[place:place + 2]
        self.stop_driver(told)
        driver = subprocess.Popen([*words, "--port", "0"], cwd=self.folder, env=self.environment,
                                       stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, text=True)
        self.drivers[told] = driver
        watchdog = threading.Timer(10, driver.kill)
        watchdog.start()
        first = driver.stdout.readline()
        watchdog.cancel()
        found = re.search(r":(\d+)\n$", first)
        self.status = 0 if found else 1
        self.ports[told] = found.group(1) if found else "0"
        return [first.rstrip("\n").replace(f":{self.ports[told]}", f":{told}")]


class DocumentTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.parts = parts_of((SOURCE / DOCUMENT).read_text(encoding="utf-8"))
        cls.fences = [part for part in cls.parts if isinstance(part, Fence)]

    def fence(self, info, beginning):
        found = [fence for fence in self.fences if fence.info == info and fence.lines[0].startswith(beginning)]
        self.assertEqual(len(found), 1, beginning)
        return "\n".join(found[0].lines) + "\n"

    def mismatch(self, line, what, written, printed):
        difference = "\n".join(difflib.unified_diff(written, printed, "the document", "printed", lineterm="", n=100))
        self.fail(f"""{DOCUMENT}:{line}: this does not print what the document says:
    {what}
{difference}
If what is printed is right, write it into the document. Otherwise the program must be mended. What differs each time may stand in
a fence that begins with ```console differs; the top of tests/documents_test.py tells more.""")

    def text_of(self, name):
        return (SOURCE / name).read_text(encoding="utf-8")


class Commands(DocumentTest):
    def test_what_they_print(self):
        shell = Shell()
        self.addCleanup(shell.close)
        for part in self.parts:
            if isinstance(part, Hidden):
                shell.run(part.command)
                self.assertEqual(shell.status, 0, f"{DOCUMENT}:{part.line}: {part.command}")
                continue
            for line, command, written in commands_in(part):
                with self.subTest(line=line, command=command):
                    self.check(shell, line, command, written, "differs" in part.info.split())

    def check(self, shell, line, command, written, differs):
        typed = "".join(re.findall(r"\[y/N\] (\w+\n)", "\n".join(written) + "\n"))
        printed = shell.run(command, typed)
        expected = re.sub(r"(\[y/N\] )\w+\n", r"\1", "\n".join(written) + "\n").split("\n")[:-1] if typed else written
        for one, other in zip(TICKET.findall("\n".join(expected)), TICKET.findall("\n".join(printed))):
            shell.tickets[one] = other
        if differs:
            expected, printed = form_of(expected), form_of(printed)
        if not matches(expected, printed):
            self.mismatch(line, command, expected, printed)


class Requests(DocumentTest):
    def test_what_they_answer(self):
        pairs = []
        for fence in self.fences:
            numbered = [(number, line) for number, line in fence if line.startswith("{")]
            if not numbered or not numbered[0][1].startswith('{"op"'):
                continue
            for (line, request), (_, reply) in zip(numbered[::2], numbered[1::2], strict=True):
                pairs.append((line, request, reply))
        self.assertTrue(DOCUMENT != "docs/batch.md" or len(pairs) > 10)
        requests = "".join(request + "\n" for _, request, _ in pairs)
        told = subprocess.run([PROGRAMS / "quvctl", "batch"], input=requests, capture_output=True, text=True,
                              encoding="utf-8", timeout=60, check=True).stdout.split("\n")[:-1]
        self.assertEqual(len(told), len(pairs))
        for (line, request, reply), answer in zip(pairs, told):
            with self.subTest(line=line):
                if "…" in reply:
                    same = re.fullmatch(".*".join(map(re.escape, reply.split("…"))), answer)
                else:
                    same = json.loads(reply) == json.loads(answer)
                if not same:
                    self.mismatch(line, request, [reply], [answer])


class OtherLines(DocumentTest):
    def test_each_is_a_usage_or_run_elsewhere(self):
        for fence in self.fences:
            if commands_in(fence) or not re.match(r"quv|\./|cmake |pkg-config|g\+\+|sudo|apt", fence.lines[0]):
                continue
            text = "\n".join(fence.lines)
            if fence.info in ("", "text") and re.match(r"quv(ctl|driver) .*[\[|]", text):
                self.check_usage(fence.line, text)
            elif fence.info != "sh":
                for number, line in fence:
                    self.check_run_elsewhere(number, line)

    def check_usage(self, line, text):
        program, *words = text.split()
        help_words = ["help", words[0]] if program == "quvctl" else ["--help"]
        told = subprocess.run([PROGRAMS / program, *help_words], capture_output=True, text=True, timeout=10,
                              check=True).stdout
        if program == "quvctl":
            self.assertIn("Usage: " + " ".join(text.split()), " ".join(told.split()), f"{DOCUMENT}:{line}")
        else:
            offered = set(re.findall(r"--[a-z][a-z-]+", told)) - {"--help", "--help-all", "--version"}
            self.assertEqual(set(re.findall(r"--[a-z][a-z-]+", text)), offered, f"{DOCUMENT}:{line}")

    def check_run_elsewhere(self, number, line):
        command = re.sub(r" +#.*", "", line)
        self.assertIn(command, RUN_ELSEWHERE, f"{DOCUMENT}:{number}: no test runs this command line; begin it with \"$ \", "
                      "or tell in RUN_ELSEWHERE of tests/documents_test.py which other test does")
        file, words = RUN_ELSEWHERE[command]
        self.assertIn(words, self.text_of(file))


class Readme(DocumentTest):
    def test_the_program_is_the_example(self):
        example = self.text_of("examples/consumer/main.cpp").split("\n", 1)
        self.assertEqual(example[0], "// SPDX-License-Identifier: LGPL-3.0-or-later")
        self.assertEqual(self.fence("cpp", "#include <QuvFramework"), example[1])
        self.assertEqual(self.fence("", "request: "), self.text_of("examples/consumer/expected.txt"))

    def test_the_project_is_the_example(self):
        example = self.text_of("examples/consumer/CMakeLists.txt").split("\n", 1)
        self.assertTrue(example[0].startswith("# "))
        self.assertEqual(self.fence("cmake", "cmake_minimum_required"), example[1])


class DriverDocument(DocumentTest):
    def test_the_state_file_is_read(self):
        shell = Shell()
        self.addCleanup(shell.close)
        (shell.folder / "state.json").write_text(self.fence("json", "{"), encoding="utf-8")
        self.assertEqual(shell.run("quvdriver --state state.json &"), [f"listening on 127.0.0.1:{PORT}"])
        self.assertIn('Structure name = "Line 7"', shell.run("quvctl config pull all.conf >pulled; cat all.conf"))

    def test_the_scenario_is_read(self):
        shell = Shell()
        self.addCleanup(shell.close)
        (shell.folder / "scenario.json").write_text(self.fence("json scenario", "{"), encoding="utf-8")
        self.assertEqual(shell.run("quvdriver --scenario scenario.json &"), [f"listening on 127.0.0.1:{PORT}"])


class Reference(DocumentTest):
    # What the simulated driver does not do: unknown tickets, sessions and IDs, packets without a number, codes without firmware or
    # machine, what needs no firmware.
    LIMITS = {"DE03104", "DE03105", "DE03106", "DE03107", "DE03111", "DE03400", "DE03401", "DE03420"}

    def test_each_example_is_understood(self):
        shell = Shell()
        self.addCleanup(shell.close)
        examples = [line for fence in self.fences if fence.info == "sh" for line in fence.lines]
        calls = [line for fence in self.fences if fence.info == "python" for line in fence.lines
                 if line.startswith("driver.EXEC_B(")]
        self.assertGreater(len(examples), 40)
        self.assertGreaterEqual(len(calls), len(examples))  # quvctl cannot send what a command does not write
        for machine in ("dispenser", "dual"):
            def of_machine(lines):
                return [line for line in lines if ("CHANNEL_TINT" in line) == (machine == "dual")]

            shell.run(f"quvdriver --machine {machine} --machine mixer --speed 10000 &")
            for example in of_machine(examples):
                with self.subTest(example):
                    told = shell.run(example)
                    codes = set(re.findall(r"DE\d{5}", "\n".join(told)))
                    self.assertTrue(any(line.endswith(" executed successfully!") for line in told) or codes & self.LIMITS, told)
            for call in of_machine(calls):
                with self.subTest(call):
                    with xmlrpc.client.ServerProxy(f"http://127.0.0.1:{shell.ports[PORT]}") as driver:
                        envelope = eval(call, {"driver": driver, "xmlrpc": xmlrpc})
                    codes = {error["code"] for error in envelope["errors"]}
                    self.assertTrue(envelope["ret_code"] == 0 or codes & self.LIMITS, envelope)


CASES = {"README.md": [Readme], "docs/driver.md": [DriverDocument], "docs/commands.md": [Reference]}


def load_tests(loader, _tests, _pattern):
    cases = [Commands, Requests, OtherLines, *CASES.get(DOCUMENT, [])]
    return unittest.TestSuite(loader.loadTestsFromTestCase(case) for case in cases)


if __name__ == "__main__":
    SOURCE = pathlib.Path(sys.argv.pop(1)).resolve()
    PROGRAMS = pathlib.Path(sys.argv.pop(1)).resolve()
    DOCUMENT = sys.argv.pop(1)
    unittest.main()
