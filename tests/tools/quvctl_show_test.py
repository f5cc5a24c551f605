# SPDX-License-Identifier: LGPL-3.0-or-later
"""quvctl show: a command in words, and its examples. Usage: quvctl_show_test.py QUVDRIVER QUVCTL COMMANDS_MD"""

import ast
import base64
import difflib
import fcntl
import functools
import json
import os
import pty
import re
import shlex
import struct
import subprocess
import sys
import termios
import unittest
import xmlrpc.client

import quvctl_process
import quvdriver_process
from quvctl_process import run

COMMANDS_MD = ""


@functools.lru_cache(maxsize=None)
def as_json(name):
    return run("show", name, "--json")


class ShowTest(unittest.TestCase):
    maxDiff = None

    def done(self, *words):
        code, out, err = run(*words)
        self.assertEqual((code, err), (0, ""))
        return out

    def facts(self, name):
        code, out, err = as_json(name)
        self.assertEqual((code, err), (0, ""))
        return json.loads(out)

    def names(self):
        return self.done("list", "--names").split()


class Words(ShowTest):
    def test_arguments_refusals_and_examples(self):
        self.assertEqual(self.done("show", "AUTOCAP_MOVE"), """\
Name     AUTOCAP_MOVE
Purpose  Opens or closes the automatic cap of the nozzles
Class    AutocapCmd

Arguments
  movement_type  int  required  0 close, 1 open, 2 to 6 further movements

Answer: a plain one, without members

Refusals
  DE00311  XML-RPC  the arguments are no array: "ProtoCommand: expected array for xmlrpc type"
  DE00312  XML-RPC  there are no arguments: "AUTOCAP_MOVE command : expected at least 1 parameters, received 0 instead!"
  DE00313  list     there are no arguments: "AUTOCAP_MOVE command : expected at least 1 parameters, received 0 instead!"
  DE00290  XML-RPC  movement_type is of another type: "Autocap movement type: expected INT parameter"
  DE00292  list     movement_type is of another type: "Autocap movement type: expected INT parameter"

Examples
  quvctl call AUTOCAP_MOVE movement_type=1

  import xmlrpc.client

  driver = xmlrpc.client.ServerProxy("http://127.0.0.1:9333")
  print(driver.EXEC_B("AUTOCAP_MOVE", 1))

Row                  3
Code                 0041
Parameters           1
Kind                 serial
Machine              dispenser
Command families     1, 2
Addressed to         a machine
Priority             working 0, scheduling 0
Looks at busy state  yes
Time-out             20 s
Measures its time    yes
In the statistics    yes
Machine object use   0
Multiple             no
Private              no
Delivers colorant    no
""")

    def test_members_with_one_refusal_are_told_once(self):
        text = self.done("show", "GET_STATUS")
        self.assertIn("\n  position  int  optional, 0  a circuit's position; 0 is the machine\n", text)
        self.assertIn("\nAnswer: DispenserStatusAnswer\n  disp_status ", text)
        self.assertRegex(text, r"(?m)^  tinting +bool  required  DE00026$")
        self.assertRegex(text, r"(?m)^  WM_set +bool  optional +always false$")
        refusals = text[text.index("\nRefusals\n"):text.index("\nExamples\n")]
        self.assertEqual([line for line in refusals.split("\n") if "DE00026" in line], [
            '  DE00026  XML-RPC   a member is missing or of another type: '
            '"MachineStatusAnswer: expected \u2026 value"',
            '  DE00026  XML-RPC   a member is missing or of another type: '
            '"DispenserStatusAnswer: expected \u2026 value"'])
        self.assertIn('  DE00443  XML-RPC   disp_status is missing or of another type: '
                      '"MachineStatusAnswer: expected disp_status value"\n', refusals)
        self.assertIn('  DE00097  tokens    the answer cannot be made: "Failed to create DispenserStatusAnswer"\n',
                      refusals)
        self.assertNotIn("DE00312", refusals)  # it may have no arguments

    def test_forms_with_one_refusal_are_told_once(self):
        self.assertIn('\n  DE00314  XML-RPC, list  code is missing: "Command code value expected"\n',
                      self.done("show", "READ_CONFIG_ROW"))

    def test_refusals_of_a_request_are_those_that_the_library_gives(self):
        text = self.done("show", "WRITE_CONFIG_ROW")
        self.assertIn('\n  DE00171  XML-RPC  the arguments are no array: "Error decoding xmp-rpc type"\n', text)
        self.assertNotIn("DE00311", text)

    def test_refusals_of_the_objects_in_it(self):
        def shown(name):
            return self.done("show", name)

        of_machines = {"SAVE_CONFIG", "SAVE_DISP_CONFIG", "SAVE_MACHINE_CONFIG", "GET_CONFIG", "SET_CANISTER_LIST",
                      "SET_COLORANT_LIST", "GET_COLORANT_LIST", "SET_CALIB_LIST", "GET_CALIB_LIST", "SET_CALIB_PROFILES",
                      "GET_CALIB_PROFILES", "SET_GRAV_SETTINGS", "GET_GRAV_SETTINGS", "GE_TEST"}
        self.assertEqual({name for name in self.names() if "DE03350" in shown(name)}, of_machines)
        self.assertIn('  DE03350  XML-RPC        canisters: a canister with a wrong member: "Machine data: \u2026"\n',
                      shown("SET_CANISTER_LIST"))
        for name in ["SAVE_CONFIG", "GET_CONFIG"]:
            for code in ["DE03365", "DE03366", "DE03367", "DE03368"]:
                self.assertIn(code, shown(name))
        for name in ["ADD_STATS_ERRORS", "GET_ERRORS"]:
            for code in ["DE03001", "DE03002", "DE03003", "DE03004", "DE03005", "DE03007"]:
                self.assertIn(code, shown(name))

    def test_all_refusals_of_a_list(self):
        for name, code, when in [
                ("CLONE_DISPENSER", "DE01476", "disp_id: the list is empty"),
                ("CLONE_MACHINE", "DE02692", "machine_id: the list is empty"),
                ("GET_CALIB_LIST", "DE00858", "calibrations_list has an element that cannot be made"),
                ("GET_RECALIB_LIST", "DE02637", "calibrations_list has an element that cannot be made"),
                ("GET_CANISTER_LIST", "DE03389", "canister_list has an element without a canister's ID behind it"),
                ("GET_CIRCUIT_LIST", "DE03391", "circuit_list has an element without a canister's ID behind it"),
                ("GET_CMD_LIST", "DE00430", "command_list has an element without a value"),
                ("GET_ERRORS", "DE00467", "fw_errors cannot be made"),
                ("RES_FILE_LIST", "DE02756", "res_file_list: the list is empty")]:
            self.assertRegex(self.done("show", name), rf"(?m)^  {code}  list +{re.escape(when)}: ", name)

    def test_plain_command(self):
        self.assertEqual(self.done("show", "CHECK_BUSY").split("\n\nRow ")[0], """\
Name     CHECK_BUSY
Purpose  Checks whether the machine is busy
Class    ConfProtoCommand, the plain one of its kind

Arguments: none of its own; any that are given are dropped

Answer: a plain ConfProtoAnswer, without members

Examples
  quvctl call CHECK_BUSY

  import xmlrpc.client

  driver = xmlrpc.client.ServerProxy("http://127.0.0.1:9333")
  print(driver.EXEC_B("CHECK_BUSY"))""")
        self.assertEqual(self.done("show", "CHECK_SERIAL").split("\n\nRow ")[0], """\
Name     CHECK_SERIAL
Purpose  Checks the serial port of a machine
Class    ConfProtoCommand, the plain one of its kind

Arguments: none of its own; the catalogue tells 1, and any that are given are dropped

Answer: a plain ConfProtoAnswer, without members""")
        text = self.done("show", "INIT")
        self.assertIn("\nClass    SerialProtoCommand, the plain one of its kind\n", text)
        self.assertIn("\nAnswer: a plain SerialProtoAnswer, without members\n", text)

    def test_plain_command_with_an_answer_of_its_own(self):
        for name, answer in [("GET_ERRORS", "GetErrorsAnswer"), ("GET_KEY_CODE", "GetKeyCodeAnswer"),
                             ("GET_TURNTABLE_POSITIONS", "GetTurntablePositionsAnswer")]:
            text = self.done("show", name)
            self.assertIn("\nClass    SerialProtoCommand, the plain one of its kind\n\n"
                          "Arguments: none of its own; any that are given are dropped\n\n"
                          f"Answer: {answer}\n", text)
            self.assertIn(f"\n  quvctl call {name}\n", text)

    def test_plain_commands_are_told_apart(self):
        for name in self.names():
            facts = self.facts(name)
            self.assertEqual(facts["plain"], facts["class"] in ("SerialProtoCommand", "ConfProtoCommand"), name)
            if facts["plain"]:
                self.assertEqual(facts["arguments"], [], name)
                self.assertIn("\nArguments: none of its own; ", self.done("show", name))
                self.assertRegex(self.done("show", name), r"(?m)^Answer: \w")

    def test_every_command_has_a_class(self):
        for name in self.names():
            self.assertTrue(self.facts(name)["class"], name)

    def test_lines_are_broken_for_a_terminal_only(self):
        self.assertEqual(self.on_terminal(60, "READ_CONFIG_ROW")[5:11], [
            "Arguments",
            "  code  int  required  the structure's code",
            "  id    int  required  the circuit or reference of a",
            "                       structure that exists once for each,",
            "                       else 1",
            ""])
        narrow = self.on_terminal(40, "AUTOCAP_MOVE")
        self.assertEqual(narrow[:8], [
            "Name     AUTOCAP_MOVE",
            "Purpose  Opens or closes the automatic",
            "         cap of the nozzles",
            "Class    AutocapCmd",
            "",
            "Arguments",
            "  movement_type  int  required",
            "      0 close, 1 open, 2 to 6 further"])
        self.assertIn('  print(driver.EXEC_B("AUTOCAP_MOVE", 1))', narrow)  # there to be copied

    def on_terminal(self, columns, name):
        try:
            ours, theirs = pty.openpty()
        except OSError as error:
            self.skipTest(f"this machine has no terminal to give: {error}")
        fcntl.ioctl(theirs, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
        subprocess.run([quvctl_process.PROGRAM, "show", name], stdout=theirs,
                       env={**os.environ, "NO_COLOR": "1"}, timeout=30, check=True)
        text = b""
        while not text.endswith(b"Delivers colorant    no\r\n"):
            text += os.read(ours, 65536)
        os.close(ours)
        os.close(theirs)
        return text.decode("utf-8").split("\r\n")


class Json(ShowTest):
    def test_all_facts(self):
        facts = self.facts("READ_CONFIG_ROW")
        self.assertEqual((facts["id"], facts["code"], facts["minParams"]), (21, "0066", 0))
        self.assertEqual(facts["purpose"], "Reads one row of the machine's setup from its firmware")
        self.assertEqual((facts["class"], facts["tellsArguments"]), ("ReadConfigurationParamCmd", True))
        code, number = facts["arguments"]
        self.assertEqual(code, {
            "name": "code", "type": "int", "meaning": "the structure's code", "optional": False, "refusals": [
                {"form": form, "when": when, "code": refusal, "text": text}
                for when, refusal, text in [("missing", "DE00314", "Command code value expected"),
                                            ("another type", "DE00084", "Invalid command code found in answer")]
                for form in ("XML-RPC", "list")]})
        self.assertEqual(number["name"], "id")
        self.assertEqual(facts["refusals"], [
            {"form": "XML-RPC", "when": "the arguments are no array", "code": "DE00311",
             "text": "ProtoCommand: expected array for xmlrpc type"}])
        self.assertEqual(facts["answerClass"], "ReadConfigurationParamAnswer")
        self.assertIn({"form": "tokens", "when": "", "code": "DE00095", "text": "Failed to create ProtoAnswer"},
                      facts["answerRefusals"])
        self.assertEqual(facts["example"], {"shell": "quvctl call READ_CONFIG_ROW code=7 id=1",
                                            "python": 'driver.EXEC_B("READ_CONFIG_ROW", 7, 1)'})

    def test_members_and_defaults(self):
        facts = self.facts("GET_STATUS")
        self.assertEqual((facts["arguments"][0]["optional"], facts["arguments"][0]["default"]), (True, 0))
        self.assertEqual((facts["tellsMembers"], len(facts["members"])), (True, 67))
        self.assertEqual(facts["members"][0], {
            "key": "disp_status", "type": "int", "meaning": "", "required": True, "refusals": [
                {"form": "XML-RPC", "when": "missing or another type", "code": "DE00443",
                 "text": "MachineStatusAnswer: expected disp_status value"}]})

    def test_names(self):
        self.assertEqual(self.done("show", "READ_CONFIG_ROW", "--names"), "code\nid\n")
        self.assertEqual(self.done("show", "GET_ERRORS", "--names"), "")


class Recorder:
    """Gives back what it is to send."""

    def EXEC_B(self, *params):
        return list(params)


def bytes_or_struct(members):
    return xmlrpc.client.Binary(base64.b64decode(members["$base64"])) if "$base64" in members else members


def value(word):
    """What a word of an example stands for."""
    text = re.sub(r"^[a-z_0-9]+=", "", word)
    try:
        return json.loads(text, object_hook=bytes_or_struct)
    except ValueError:
        return text


class Examples(ShowTest):
    def examples(self):
        """Those of all commands, by name."""
        found = {name: self.facts(name).get("example") for name in self.names()}
        return {name: example for name, example in found.items() if example}

    def test_all_can_be_encoded(self):
        examples = self.examples()
        for name in self.names():
            facts = self.facts(name)
            if facts["class"] and (facts["arguments"] or facts["maxParams"] == 0):
                self.assertIn(name, examples, "it needs a sample in tools/quvctl/commandexample.cpp")
        for name, example in examples.items():
            if "shell" not in example:
                sent, *arguments = eval(example["python"], {"driver": Recorder(), "xmlrpc": xmlrpc})
                code, _, error = run("call", sent, *map(json.dumps, arguments))
                self.assertEqual((sent, code), (name, 2))
                self.assertIn(f"{name} cannot be called: the driver would refuse what quvctl sends", error)
                continue
            program, call, *words = shlex.split(example["shell"])
            self.assertEqual((program, call, words[0]), ("quvctl", "call", name))
            self.assertEqual(json.loads(self.done("encode", "--json", *words))["request"][0], name)
            if "--machine" in words:
                del words[words.index("--machine"):]
            self.assertEqual(eval(example["python"], {"driver": Recorder(), "xmlrpc": xmlrpc}), [name, *map(value, words[1:])])

    def test_they_work(self):
        for machine, names in [
                ("dispenser", ["GET_STATUS", "GET_CONFIG_CMDS", "READ_CONFIG_ROW", "WRITE_CONFIG_ROW", "TINT",
                               "GET_DISPENSED_FORMULA", "PRIMING", "PACK", "PURGE", "PRIMING2", "PACK2", "AIRPURGE",
                               "SET_LEVELS", "CHECK_FORMULA_LEVELS", "GET_FORMULA_CIRCUITS", "GET_LOW_LEVEL_FORMULA",
                               "GET_FORMULA_EXECUTION", "GET_CMD_EST_EXEC_TIME"]),
                ("dual", ["CHANNEL_TINT"])]:
            with quvdriver_process.Driver("--machine", machine, "--speed", "1000") as driver:
                for name in names:
                    with self.subTest(name):
                        self.runs(name, driver.port)

    def runs(self, name, port):
        text = self.done("show", name)
        shell, python = text[text.index("\nExamples\n") + 10:text.index("\n\nRow ")].split("\n\n", 1)
        out = self.done(*shlex.split(shell)[1:], "--port", str(port))
        self.assertRegex(out, rf"(?m)^{name} command executed successfully!$")
        source = "\n".join(line[2:] for line in python.split("\n")).replace(":9333", f":{port}")
        printed = subprocess.run([sys.executable, "-c", source], capture_output=True, timeout=30, check=True).stdout
        self.assertEqual(ast.literal_eval(printed.decode("utf-8"))["ret_code"], 0, printed)

    def test_ticket_of_an_example_is_unknown(self):
        with quvdriver_process.Driver("--machine", "dispenser") as driver, driver.client() as client:
            example = self.facts("GET_CMD_STATUS")["example"]
            self.assertEqual(eval(example["python"], {"driver": client})["errors"][0]["code"], "DE03111")


class Markdown(ShowTest):
    def test_the_document_is_what_the_library_tells(self):
        with open(COMMANDS_MD, encoding="utf-8") as document:
            written = document.read()
        told = self.done("show", "--markdown")
        difference = "\n".join(list(difflib.unified_diff(written.split("\n"), told.split("\n"), "docs/commands.md",
                                                         "quvctl show --markdown", lineterm="", n=1))[:40])
        self.assertTrue(written == told, "docs/commands.md is out of date; write it anew with\n"
                                         "    quvctl show --markdown > docs/commands.md\n" + difference)

    def test_every_command_has_its_line_and_its_chapter(self):
        lines = self.done("show", "--markdown").split("\n")
        for name in self.names():
            self.assertEqual(lines.count(f"## {name}"), 1, name)
            self.assertEqual(sum(line.startswith(f"| [{name}](#{name.lower()}) | ") for line in lines), 1, name)
        self.assertIn("| [GET_STATUS](#get_status) | serial | Tells what the dispenser is doing |", lines)

    def test_a_chapter(self):
        text = self.done("show", "--markdown")
        chapter = text[text.index("## GET_CMD_EST_EXEC_TIME\n"):]
        self.assertEqual(chapter[:chapter.index("\n## ", 1)], """\
## GET_CMD_EST_EXEC_TIME

Tells how long a command is expected to take.

Class: GetCmdEstimatedExecTimeCmd; Row: 85; Parameters: 1; Kind: configuration; Machine: dispenser, mixer; \
Command families: 1; Addressed to: a machine; Priority: working 0, scheduling 0; Machine object use: 2

| Argument | Type | Default | Meaning |
|---|---|---|---|
| `command` | struct | required | member "command": an array of the other command's name and its arguments |

Answer: GetCmdEstimatedExecTimeAnswer.

| Member | Type |  | Refusal | Meaning |
|---|---|---|---|---|
| `exec_time` | int | required | DE01180, DE01178 | milliseconds |

| Code | Form | When | Text |
|---|---|---|---|
| DE00311 | XML-RPC | the arguments are no array | ProtoCommand: expected array for xmlrpc type |
| DE00312 | XML-RPC | there are no arguments | GET_CMD_EST_EXEC_TIME command : expected at least 1 parameters, \
received 0 instead! |
| DE00313 | list | there are no arguments | GET_CMD_EST_EXEC_TIME command : expected at least 1 parameters, \
received 0 instead! |
| DE01180 | XML-RPC | exec_time is missing or of another type | GetCmdEstimatedExecTimeAnswer: cannot find execution \
time tag |
| DE01178 | list | exec_time is missing or of another type | GetCmdEstimatedExecTimeAnswer decoding failed: invalid \
QVariant value |
| DE01297 | XML-RPC | the answer cannot be made | Failed to create answer |
| DE00346 | list | the answer cannot be made | Failed to create answer |

```sh
quvctl call GET_CMD_EST_EXEC_TIME 'command={"command":["RESET"]}'
```

```python
driver.EXEC_B("GET_CMD_EST_EXEC_TIME", {"command": ["RESET"]})
```
""")

    def test_wrong_usage(self):
        self.assertEqual(run("show", "TINT", "--markdown"), (
            2, "", "quvctl: --markdown tells all commands, and takes no NAME (see quvctl help)\n"))


if __name__ == "__main__":
    quvdriver_process.PROGRAM = sys.argv.pop(1)
    quvctl_process.PROGRAM = sys.argv.pop(1)
    COMMANDS_MD = sys.argv.pop(1)
    unittest.main()
