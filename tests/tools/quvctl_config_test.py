# SPDX-License-Identifier: LGPL-3.0-or-later
"""quvctl config. Usage: quvctl_config_test.py QUVDRIVER QUVCTL"""

import json
import os
import resource
import sys
import tempfile
import time
import unittest

import quvctl_process
import quvdriver_process
from quvctl_process import envelope, run

NAMES = ["@ICS", "@NOM", "@GMC", "@ACP", "@CPT", "@AGI", "@HUM", "@TEM", "@SGA", "@RAM", "@FOT", "@AUT", "@BHL", "@LIT",
         "@TTD", "@PUL", "@HEA", "@NOZ", "@MOT", "@LTD", "@USS", "@PRO", "@ZDR", "@MIX", "@LCK", "@PLC"]

HUMIDIFIER = "1,60,10,40"
RAMP_1 = "1,1,5,6,20,10"
RAMP_32 = "2,32,7,8,30,15"
NO_RAMP = "0,0,5,5,20,10"


def driver_error(code, text):
    return {"error_type": 1, "timestamp": "2024-02-29T07:08:09.010Z", "code": code, "text": text}


class ScriptedDriver(quvctl_process.ScriptedDriver):
    """Holds rows as texts by structure and ID, and remembers what it was asked."""

    def __init__(self, rows, counts=None, absent=NO_RAMP, deaf=False, refusing=(), silent=None):
        self.silent = silent  # the command to which it does not reply
        self.rows = dict(rows)
        self.counts = counts or {code: 1 for code, _ in rows}
        self.absent = absent
        self.deaf = deaf  # writes change nothing
        self.refusing = refusing
        self.asked = []
        super().__init__()

    def execute(self, name, *params):
        self.asked.append([name, *params])
        if name == self.silent:
            time.sleep(1)
        if [name] in self.refusing or [name, *params] in self.refusing:
            return envelope(0, 4)
        return getattr(self, name)(*params)

    def GET_CONFIG_CMDS(self):
        codes = [{"cmd_code": code, "field_count": count} for code, count in self.counts.items()]
        return envelope({"version": 3, "minor_version": 2, **({"command_codes": codes} if codes else {})})

    def READ_CONFIG_ROW(self, code, number):
        text = self.rows.get((code, number), self.absent)
        if isinstance(text, dict):
            return text
        name = NAMES[code - 1] if code <= len(NAMES) else ""
        return envelope({"cmd_code": name, "cmd_value": code, "cmd_parameters": text})

    def WRITE_CONFIG_ROW(self, row):
        code, text = row["cmd_value"], row["cmd_parameters"]
        # a row tells itself which one it is, in the field of this position
        identity = {5: 3, 6: 2, 10: 1, 19: 1, 22: 1}.get(code)
        number = int(text.split(",")[identity]) if identity else 1
        if not self.deaf:
            self.rows[code, number] = text
        return envelope(0)

    def FINALIZE_CONFIG(self):
        return envelope(0)

    def told(self, *names):
        return [request for request in self.asked if request[0] in names]

    def written(self):
        return [(row["cmd_value"], row["cmd_parameters"]) for _, row in self.told("WRITE_CONFIG_ROW")]


HUMIDIFIER_FILE = """quvctl configuration 1

[@HUM]
cmd_enabled = 1
Sensor Reading Period = 60
Multiplier Coefficient = 10
Low Humidity Warning Threshold = 40
"""


class ConfigTest(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.path = os.path.join(self.folder.name, "machine.conf")

    def put(self, text):
        with open(self.path, "wb") as file:
            file.write(text if isinstance(text, bytes) else text.encode("utf-8"))

    def content(self):
        with open(self.path, encoding="utf-8") as file:
            return file.read()

    def config(self, driver, action, *options):
        return run("config", action, self.path, *options, "--port", str(driver.port))


class Pull(ConfigTest):
    def test_rows_of_every_kind(self):
        rows = {(1, 1): "1", (2, 1): "1,Shop, \"left\" #1", (7, 1): HUMIDIFIER + ",9,2147483647", (12, 1): "2,0,245",
                (10, 1): RAMP_1, (10, 32): RAMP_32, (31, 1): "1,5"}
        with ScriptedDriver(rows, {31: 2, 10: 6, 7: 6, 12: 3, 2: 2, 1: 1}) as driver:
            code, out, err = self.config(driver, "pull")
        self.assertEqual((code, err), (0, ""))
        self.assertEqual(self.content(), """quvctl configuration 1
# firmware configuration 3.2
machine = dispenser

[@ICS]
cmd_enabled = 1

[@NOM]
cmd_enabled = 1
Structure name = "Shop, \\"left\\" #1"

[@HUM]
cmd_enabled = 1
Sensor Reading Period = 60
Multiplier Coefficient = 10
Low Humidity Warning Threshold = 40
NEW_DATA 4 = 9
NEW_DATA 5 = 2147483647

[@RAM 1]
cmd_enabled = 1
Ramp ID = 1
Slow speed steps after valve open = 5
Slow speed steps before valve close = 6
Ramp speed threshold = 20
Ramp slow speed = 10

[@RAM 32]
cmd_enabled = 2
Ramp ID = 32
Slow speed steps after valve open = 7
Slow speed steps before valve close = 8
Ramp speed threshold = 30
Ramp slow speed = 15

[@AUT]
cmd_enabled = 2
NEW_DATA 1 = 0
NEW_DATA 2 = 245

[31]
cmd_enabled = 1
NEW_DATA 1 = 5
""")
        lines = out.split("\n")
        self.assertEqual(lines[0], "Executing...")
        self.assertEqual(lines[-3:], ["100 %  Done successfully!", f"7 rows in {self.path}", ""])
        for line in lines[1:-3]:
            self.assertRegex(line, r"^\d\d %$")
        self.assertEqual([request[1:] for request in driver.told("READ_CONFIG_ROW")],
                         [[1, 1], [2, 1], [7, 1], *([10, number] for number in range(1, 41)), [12, 1], [31, 1]])
        self.assertEqual({request[0] for request in driver.asked}, {"GET_CONFIG_CMDS", "READ_CONFIG_ROW"})

    def asked_ids(self, code, rows, absent):
        with ScriptedDriver({(code, number): text for number, text in rows.items()}, {code: 1}, absent) as driver:
            status, _, err = self.config(driver, "pull")
            self.assertEqual((status, err), (0, ""))
            self.assertEqual({request[1] for request in driver.told("READ_CONFIG_ROW")}, {code})
            return [request[2] for request in driver.told("READ_CONFIG_ROW")]

    def test_how_far_it_looks(self):
        self.assertEqual(self.asked_ids(10, {}, NO_RAMP), list(range(1, 33)))
        self.assertEqual(self.asked_ids(10, {24: RAMP_1}, NO_RAMP), list(range(1, 33)))
        self.assertEqual(self.asked_ids(10, {25: RAMP_1}, NO_RAMP), list(range(1, 34)))
        self.assertEqual(self.asked_ids(10, {32: RAMP_1, 40: RAMP_1}, NO_RAMP), list(range(1, 49)))
        self.assertEqual(self.asked_ids(10, {n: RAMP_1 for n in range(1, 99)}, NO_RAMP), list(range(1, 65)))

    def test_one_stirring_motor_for_all_circuits(self):
        everywhere = "1,245,245,60,30,1,400,15,100,0,0"
        own = "1,2,3,61,30,1,400,15,100,0,0"
        self.assertEqual(self.asked_ids(6, {3: own}, everywhere), list(range(1, 33)))
        self.assertEqual([line for line in self.content().split("\n") if line.startswith("[")], ["[@AGI 3]", "[@AGI 245]"])
        self.assertIn("\n[@AGI 245]\ncmd_enabled = 1\nCanister ID = 245\nPosition ID = 245\nStirring Duration = 60\n",
                      self.content())
        self.put(self.content().replace("Duration = 60", "Duration = 90"))
        with ScriptedDriver({(6, 3): own, (6, 245): everywhere}) as driver:
            self.assertEqual(self.config(driver, "push", "--yes"), (
                0, "[@AGI 245]\n  Stirring Duration: 60 -> 90\n1 row written, finalised and read back\n", ""))

    def test_labels_that_are_alike(self):
        circuit = ",".join(["1", "2", "30", "7", *(str(100 + n) for n in range(4, 54))])
        with ScriptedDriver({(5, 7): circuit}, {5: 54}, "0,1,100,0,1") as driver:
            self.assertEqual(self.config(driver, "pull")[0], 0)
            text = self.content()
            self.assertIn("\n[@CPT 7]\ncmd_enabled = 1\nCanister ID = 2\nCanister Size = 30\nPosition ID = 7\n", text)
            for number in range(124, 130):
                self.assertIn(f"\nLayout Position ID = {number}\n", text)
            self.assertTrue(text.endswith("\nSmart Speed Reduction Enable = 152\nNEW_DATA 53 = 153\n"), text)
            self.assertEqual(self.config(driver, "diff"), (0, "no differences\n", ""))

    def test_machine_without_a_name(self):
        nameless = envelope(0, 1, errors=[driver_error("DE00183", "NEW_DATA field not found in answer")])
        with ScriptedDriver({(2, 1): nameless}) as driver:
            self.assertEqual(self.config(driver, "pull")[0], 0)
            self.assertTrue(self.content().endswith('\n[@NOM]\ncmd_enabled = 1\nStructure name = ""\n'))
            self.assertEqual(self.config(driver, "push", "--yes"), (0, "no differences\n", ""))
            self.put(self.content().replace('""', '"Shop"'))
            code, out, err = self.config(driver, "push", "--yes")
            self.assertEqual((code, err), (0, ""))
            self.assertEqual(out, '[@NOM]\n  Structure name: "" -> "Shop"\n1 row written, finalised and read back\n')
            self.assertEqual(driver.rows[2, 1], "1,Shop")

    def test_quiet_and_json(self):
        with ScriptedDriver({(1, 1): "1", (2, 1): "1,Mill"}) as driver:
            self.assertEqual(self.config(driver, "pull", "-q"), (0, "", ""))
            code, out, err = self.config(driver, "pull", "--json")
        self.assertEqual((code, err, json.loads(out)), (
            0, "", {"ok": True, "file": self.path, "machine": "mixer", "version": "3.2", "rows": 2}))
        self.assertIn("\nmachine = mixer\n", self.content())

    def test_nothing_offered(self):
        with ScriptedDriver({}) as driver:
            code, out, _ = self.config(driver, "pull")
        self.assertEqual((code, out.split("\n")[-2]), (0, f"0 rows in {self.path}"))
        self.assertEqual(self.content(), "quvctl configuration 1\n# firmware configuration 3.2\n")

    def test_refused(self):
        self.put("what was there before")
        with ScriptedDriver({(7, 1): HUMIDIFIER, (10, 1): RAMP_1}, refusing=[["READ_CONFIG_ROW", 10, 3]]) as driver:
            code, _, err = self.config(driver, "pull")
            self.assertEqual((code, err), (1, "[@RAM 3] cannot be read\n"
                                              "Failed! Command not executed due to errors on firmware.\n"))
        with ScriptedDriver({}, refusing=[["GET_CONFIG_CMDS"]]) as driver:
            code, out, err = self.config(driver, "pull")
            self.assertEqual((code, out, err), (1, "", "the structures cannot be listed\n"
                                                       "Failed! Command not executed due to errors on firmware.\n"))
        self.assertEqual(self.content(), "what was there before")

    def test_answers_that_are_none(self):
        for answer, text in [
                (envelope({"cmd_code": "@TEM", "cmd_value": 8, "cmd_parameters": "1"}), "the answer is no row of [@HUM]"),
                (envelope({"cmd_value": 7}), "the answer is no row of [@HUM]"),
                (envelope(5), "the answer is no row of [@HUM]"),
                (envelope({"cmd_code": "@HUM", "cmd_value": 7, "cmd_parameters": ""}), "the row of @HUM is none: "),
                (envelope({"cmd_code": "@HUM", "cmd_value": 7, "cmd_parameters": "1,-2"}),
                 "the row of @HUM is none: 1,-2")]:
            with ScriptedDriver({(7, 1): answer}) as driver:
                code, _, err = self.config(driver, "pull")
            self.assertEqual((code, err), (1, f"quvctl: {text}\n"))
        self.assertFalse(os.path.exists(self.path))

    def test_file_that_cannot_be_written(self):
        self.path = os.path.join(self.folder.name, "no", "such", "folder")
        with ScriptedDriver({}) as driver:
            code, out, err = self.config(driver, "pull")
            self.assertEqual((code, out), (1, ""))
            self.assertIn(self.path, err)
            self.assertEqual(driver.asked, [])


class File(ConfigTest):
    """Files that are read; nobody is asked when they are wrong."""

    def wrong(self, line, text, content):
        self.put(content)
        with ScriptedDriver({}) as driver:
            for action in ["push", "diff"]:
                code, out, err = self.config(driver, action)
                self.assertEqual((code, out, err),
                                 (2, "", f"quvctl: {self.path}:{line}: {text} (see quvctl help)\n"))
            self.assertEqual(driver.asked, [])

    def wrong_below(self, line, text, content):
        self.wrong(line + 1, text, "quvctl configuration 1\n" + content)

    def test_header(self):
        self.wrong(1, 'the line "quvctl configuration 1" is missing', "")
        self.wrong(3, 'the line "quvctl configuration 1" is missing', "# note\n\n")
        self.wrong(2, 'a configuration begins with the line "quvctl configuration 1"', "\n[@HUM]\ncmd_enabled = 1\n")
        self.wrong(1, "this is a configuration of another version than 1", "quvctl configuration 2\n")
        self.wrong(1, "this is no UTF-8", b"quvctl configuration 1\n# \xff\n")

    def test_headings(self):
        self.wrong_below(1, "[@DOG] is no structure", "[@DOG]\n")
        self.wrong_below(1, "[7] is no structure", "[7]\n")
        self.wrong_below(1, "[@HUM is no structure", "[@HUM\n")
        self.wrong_below(1, "[@HUM 1] has no number: there is one [@HUM] only", "[@HUM 1]\n")
        self.wrong_below(1, "[@CPT] needs a number, as in [@CPT 1]", "[@CPT]\n")
        self.wrong_below(1, "0 is no number from 1 on", "[@CPT 0]\n")
        self.wrong_below(1, "2147483648 is no number from 1 on", "[@CPT 2147483648]\n")
        self.wrong_below(3, "[@HUM] stands here for the second time", "[@HUM]\ncmd_enabled = 0\n[@HUM]\n")
        self.wrong_below(2, "[@HUM] has no field", "[@HUM]\n[@TEM]\n")
        self.wrong_below(2, "[@HUM] has no field", "[@HUM]\n")

    def test_fields(self):
        self.wrong_below(1, "a field stands below the heading of its structure, such as [@HUM]", "cmd_enabled = 1\n")
        self.wrong_below(2, 'this is no line "label = value"', "[@HUM]\ncmd_enabled 1\n")
        self.wrong_below(2, '[@HUM] has "cmd_enabled" here, not "Sensor Reading Period"',
                         "[@HUM]\nSensor Reading Period = 60\n")
        self.wrong_below(2, '[@HUM] has "cmd_enabled" here, not "NEW_DATA 0"', "[@HUM]\nNEW_DATA 0 = 60\n")
        self.wrong_below(3, '[@HUM] has "Sensor Reading Period" here, not "Multiplier Coefficient"',
                         "[@HUM]\ncmd_enabled = 1\nMultiplier Coefficient = 10\n")
        self.wrong_below(3, '[@ICS] has "NEW_DATA 1" here, not "NEW_DATA 2"',
                         "[@ICS]\ncmd_enabled = 1\nNEW_DATA 2 = 10\n")
        for value in ["", "x", "-1", "+1", "1.0", "2147483648", "1 # a note", "0x10", "\u0661"]:
            self.wrong_below(2, f'"{value}" is no whole number from 0 to 2147483647', f"[@HUM]\ncmd_enabled = {value}\n")
        for value in ["Shop", '"Shop', "5", '"a" "b"']:
            self.wrong_below(3, f"{value} is no name in quotation marks",
                             f"[@NOM]\ncmd_enabled = 1\nStructure name = {value}\n")

    def test_what_is_no_regular_file_is_refused_and_not_waited_for(self):
        os.mkfifo(self.path)
        with ScriptedDriver({(7, 1): HUMIDIFIER}) as driver:
            text = f"quvctl: {self.path}: it is no regular file"
            self.assertEqual(self.config(driver, "pull"), (1, "", text + "\n"))
            for action in ("diff", "push"):
                self.assertEqual(self.config(driver, action), (2, "", text + " (see quvctl help)\n"), action)
            self.assertEqual(driver.asked, [])
        self.assertEqual(os.listdir(self.folder.name), [os.path.basename(self.path)])

    def test_size(self):
        self.put("#" * (1024 * 1024 + 1))
        with ScriptedDriver({}) as driver:
            code, out, err = self.config(driver, "diff")
        self.assertEqual((code, out, err), (2, "", f"quvctl: {self.path} is longer than 1 MiB (see quvctl help)\n"))

    def test_no_file(self):
        with ScriptedDriver({}) as driver:
            code, out, err = self.config(driver, "push", "--yes")
        self.assertEqual((code, out, err), (2, "", f"quvctl: {self.path}: No such file or directory (see quvctl help)\n"))

    def test_rows_of_another_heading(self):
        for code, label, begin in [("CPT", "Position ID", "cmd_enabled = 1\nCanister ID = 5\nCanister Size = 30\n"),
                                   ("RAM", "Ramp ID", "cmd_enabled = 1\n")]:
            self.wrong_below(begin.count("\n") + 2, f"[@{code} 5] has the {label} 7: a row is that of its heading",
                             f"[@{code} 5]\n{begin}{label} = 7\n")

    def test_machine(self):
        self.wrong_below(1, 'the machine is a dispenser or a mixer, not "boat"', "machine = boat\n")
        self.wrong_below(2, "the machine stands here for the second time", "machine = mixer\nmachine=mixer\n")
        self.wrong_below(3, "the machine stands above all rows", "[@HUM]\ncmd_enabled = 0\nmachine = dispenser\n")

    def test_what_is_passed_over(self):
        self.put("# mine\r\n\r\nquvctl configuration 1\r\n  [@HUM]  \r\n\t# slow\r\n"
                 "cmd_enabled=1\r\n  Sensor Reading Period   =   0060\r\nNEW_DATA 2 = 10")
        with ScriptedDriver({(7, 1): HUMIDIFIER}) as driver:
            self.assertEqual(self.config(driver, "diff"), (0, "no differences\n", ""))


class Limits(ConfigTest):
    def refused(self, driver, action="pull"):
        code, out, err = self.config(driver, action)
        self.assertEqual((code, os.path.exists(self.path)), (1, action != "pull"))
        return err

    def test_structures(self):
        with ScriptedDriver({}, {code: 1 for code in range(1, 258)}) as driver:
            self.assertEqual(self.refused(driver), "quvctl: the firmware offers more than 256 structures\n")

    def test_fields_of_a_row(self):
        with ScriptedDriver({(27, 1): "1" + ",2" * 999}) as driver:
            self.assertEqual(self.config(driver, "pull")[::2], (0, ""))
        os.remove(self.path)
        with ScriptedDriver({(27, 1): "1" + ",2" * 1000}) as driver:
            self.assertEqual(self.refused(driver), "quvctl: the row of 27 has more than 1000 fields\n")

    def test_fields_of_a_configuration(self):
        with ScriptedDriver({(code, 1): "1" + ",2" * 999 for code in range(27, 128)}) as driver:
            self.assertEqual(self.refused(driver),
                             "quvctl: the firmware's configuration has more than 100000 fields\n")

    def test_length_of_a_configuration(self):
        with ScriptedDriver({(2, 1): "1," + "x" * (1024 * 1024)}) as driver:
            self.assertEqual(self.refused(driver), "quvctl: the firmware's configuration is longer than 1 MiB\n")

    def test_files_of_many_rows(self):
        count = 30000
        self.put("quvctl configuration 1\n" + "".join(f"[{27 + n}]\ncmd_enabled = 1\n" for n in range(count)))
        with ScriptedDriver({(7, 1): HUMIDIFIER}) as driver:
            before = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime
            code, out, err = self.config(driver, "diff")
            self.assertLess(resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime - before, 5)
        self.assertEqual((code, out), (0, "no differences\n"))
        self.assertEqual(err.count("\n"), count)

    def test_texts_quote_what_is_needed(self):
        self.put("quvctl configuration 1\n[@HUM]\ncmd_enabled = " + "7" * 100000 + "\n")
        with ScriptedDriver({(7, 1): HUMIDIFIER}) as driver:
            self.assertEqual(self.config(driver, "diff")[2],
                             f'quvctl: {self.path}:3: "{"7" * 40}..." is no whole number from 0 to 2147483647 '
                             "(see quvctl help)\n")


class FullDisk(ConfigTest):
    def test_the_file_stays_as_it_was(self):
        self.put("before")
        limit = lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (1024, 1024))
        rows = {(10, number): f"1,{number},5,6,20,10" for number in range(1, 33)}
        with ScriptedDriver(rows) as driver:
            code, out, err = run("config", "pull", self.path, "--port", str(driver.port), preexec_fn=limit,
                                 restore_signals=False)
        self.assertEqual((code, err), (1, f"quvctl: {self.path}: File too large\n"))
        self.assertNotIn("Done", out)
        self.assertEqual(self.content(), "before")
        self.assertEqual(os.listdir(self.folder.name), [os.path.basename(self.path)])


class Diff(ConfigTest):
    def test_differences(self):
        self.put("quvctl configuration 1\n[@RAM 4]\ncmd_enabled = 1\nRamp ID = 4\n"
                 "[@HUM]\ncmd_enabled = 2\nSensor Reading Period = 60\nMultiplier Coefficient = 11\n"
                 "[@ICS]\ncmd_enabled = 1\n")
        with ScriptedDriver({(1, 1): "1", (7, 1): HUMIDIFIER, (10, 1): RAMP_1}) as driver:
            code, out, err = self.config(driver, "diff")
            self.assertEqual((code, err), (1, ""))
            self.assertEqual(out, "[@RAM 4]\n  cmd_enabled: 0 -> 1\n  Ramp ID: 0 -> 4\n"
                                  "[@HUM]\n  cmd_enabled: 1 -> 2\n  Multiplier Coefficient: 10 -> 11\n")
            self.assertEqual(driver.asked, [["GET_CONFIG_CMDS"], ["READ_CONFIG_ROW", 10, 4], ["READ_CONFIG_ROW", 7, 1],
                                            ["READ_CONFIG_ROW", 1, 1]])

    def test_file_of_another_machine(self):
        for kind, rows, other in [("dispenser", {(1, 1): "1", (2, 1): "1,Mill"}, "mixer"),
                                  ("mixer", {(1, 1): "1", (7, 1): HUMIDIFIER}, "dispenser")]:
            self.put(f"quvctl configuration 1\nmachine = {kind}\n[@ICS]\ncmd_enabled = 2\n")
            text = f"the file is of a {kind}, the machine behind the driver is a {other}"
            with ScriptedDriver(rows) as driver:
                for words in [["diff"], ["push", "--yes"]]:
                    self.assertEqual(self.config(driver, *words), (1, "", f"quvctl: {text}\n"))
                code, out, _ = self.config(driver, "diff", "--json")
                self.assertEqual((code, json.loads(out)["text"]), (1, text))
                self.assertEqual(driver.told("READ_CONFIG_ROW", "WRITE_CONFIG_ROW"), [])
        with ScriptedDriver({(1, 1): "2", (7, 1): HUMIDIFIER}) as driver:
            self.put("quvctl configuration 1\nmachine = dispenser\n[@ICS]\ncmd_enabled = 2\n")
            self.assertEqual(self.config(driver, "diff"), (0, "no differences\n", ""))

    def test_json(self):
        self.put("quvctl configuration 1\n[@RAM 4]\ncmd_enabled = 1\nRamp ID = 4\n[@PLC]\ncmd_enabled = 1\n")
        with ScriptedDriver({(10, 1): RAMP_1}) as driver:
            code, out, err = self.config(driver, "diff", "--json")
        self.assertEqual((code, err, json.loads(out)), (1, "", {
            "ok": True,
            "differences": [{"row": "[@RAM 4]", "fields": [{"label": "cmd_enabled", "from": "0", "to": "1"},
                                                           {"label": "Ramp ID", "from": "0", "to": "4"}]}],
            "warnings": ["the firmware has no @PLC: left out"]}))

    def test_rows_that_there_are_not(self):
        self.put("quvctl configuration 1\n[@RAM 4]\ncmd_enabled = 0\nRamp ID = 4\n")
        with ScriptedDriver({(10, 1): RAMP_1}) as driver:
            self.assertEqual(self.config(driver, "diff"), (0, "no differences\n", ""))

    def test_older_firmware(self):
        self.put(HUMIDIFIER_FILE + "NEW_DATA 4 = 7\n[@PLC]\ncmd_enabled = 1\n[@TEM]\ncmd_enabled = 0\n"
                                   "Sensor Reading Period = 5\n")
        with ScriptedDriver({(7, 1): "1,60", (8, 1): "0"}) as driver:
            self.assertEqual(self.config(driver, "diff"), (
                0, "no differences\n",
                'warning: the firmware has no "Multiplier Coefficient" of @HUM, nor what follows: left out\n'
                "warning: the firmware has no @PLC: left out\n"
                'warning: the firmware has no "Sensor Reading Period" of @TEM: left out\n'))

    def test_newer_firmware(self):
        self.put(HUMIDIFIER_FILE)
        with ScriptedDriver({(7, 1): HUMIDIFIER + ",8,9"}) as driver:
            self.assertEqual(self.config(driver, "diff"), (0, "no differences\n", ""))


class Push(ConfigTest):
    def test_push(self):
        self.put("quvctl configuration 1\n[@RAM 2]\ncmd_enabled = 1\nRamp ID = 2\n"
                 "[@HUM]\ncmd_enabled = 1\nSensor Reading Period = 300\n[@ICS]\ncmd_enabled = 1\n")
        with ScriptedDriver({(1, 1): "1", (7, 1): HUMIDIFIER + ",8", (10, 1): RAMP_1}) as driver:
            code, out, err = self.config(driver, "push", "--yes")
            self.assertEqual((code, err), (0, ""))
            self.assertEqual(out, "[@RAM 2]\n  cmd_enabled: 0 -> 1\n  Ramp ID: 0 -> 2\n"
                                  "[@HUM]\n  Sensor Reading Period: 60 -> 300\n"
                                  "2 rows written, finalised and read back\n")
            self.assertEqual(driver.asked, [
                ["GET_CONFIG_CMDS"], ["READ_CONFIG_ROW", 10, 2], ["READ_CONFIG_ROW", 7, 1], ["READ_CONFIG_ROW", 1, 1],
                ["WRITE_CONFIG_ROW", {"cmd_value": 10, "cmd_parameters": "1,2,5,5,20,10"}],
                ["WRITE_CONFIG_ROW", {"cmd_value": 7, "cmd_parameters": "1,300,10,40,8"}],
                ["FINALIZE_CONFIG"],
                ["GET_CONFIG_CMDS"], ["READ_CONFIG_ROW", 10, 2], ["READ_CONFIG_ROW", 7, 1]])

    def test_machine_before_circuits(self):
        self.put("quvctl configuration 1\n[@CPT 3]\ncmd_enabled = 2\n[@HUM]\ncmd_enabled = 2\n[@GMC]\ncmd_enabled = 2\n")
        circuit = "1,3,30,3" + ",1" * 17
        with ScriptedDriver({(5, 3): circuit, (7, 1): HUMIDIFIER, (3, 1): "1,1,1,1,4,1,1,60"}) as driver:
            self.assertEqual(self.config(driver, "push", "--yes")[0], 0)
            self.assertEqual([code for code, _ in driver.written()], [3, 5, 7])

    def test_nothing_to_change(self):
        self.put(HUMIDIFIER_FILE)
        with ScriptedDriver({(7, 1): HUMIDIFIER}) as driver:
            for options in [["--yes"], []]:
                self.assertEqual(self.config(driver, "push", *options), (0, "no differences\n", ""))
            self.assertEqual(driver.told("WRITE_CONFIG_ROW", "FINALIZE_CONFIG"), [])

    def test_pull_then_push_changes_nothing(self):
        newest = {(7, 1): HUMIDIFIER + ",8", (10, 2): "2,2,7,8,30,15", (31, 1): "1,5,6"}
        firmwares = [{(7, 1): "1,60,10", (10, 2): "2,2,7,8"}, newest,
                     {(7, 1): HUMIDIFIER + ",8,9", (10, 2): "2,2,7,8,30,15,11", (31, 1): "1,5,6,7", (1, 1): "1"}]
        with ScriptedDriver(newest) as driver:
            self.assertEqual(self.config(driver, "pull")[0], 0)
        for rows in firmwares:
            with ScriptedDriver(rows) as driver:
                code, out, _ = self.config(driver, "push", "--yes")
                self.assertEqual((code, out), (0, "no differences\n"))
                self.assertEqual(driver.told("WRITE_CONFIG_ROW", "FINALIZE_CONFIG"), [])

    def test_nobody_to_ask(self):
        self.put(HUMIDIFIER_FILE.replace("60", "61"))
        with ScriptedDriver({(7, 1): HUMIDIFIER}) as driver:
            self.assertEqual(self.config(driver, "push"), (
                2, "[@HUM]\n  Sensor Reading Period: 60 -> 61\n",
                "quvctl: nobody can be asked here: config push needs --yes (see quvctl help)\n"))
            self.assertEqual(driver.written(), [])

    def test_values_that_no_firmware_takes(self):
        for content, rows, text in [
                (HUMIDIFIER_FILE.replace("enabled = 1", "enabled = 3"), {(7, 1): HUMIDIFIER},
                 "[@HUM]: cmd_enabled is 0, 1 or 2"),
                ('quvctl configuration 1\n[@NOM]\ncmd_enabled = 1\nStructure name = ""\n', {(2, 1): "1,Shop"},
                 "[@NOM]: a name has one character at least, printable ASCII without commas"),
                ('quvctl configuration 1\n[@NOM]\ncmd_enabled = 1\nStructure name = "a,b"\n', {(2, 1): "1,Shop"},
                 "[@NOM]: a name has one character at least, printable ASCII without commas"),
                ('quvctl configuration 1\n[@NOM]\ncmd_enabled = 1\nStructure name = "caf\u00e9"\n', {(2, 1): "1,Shop"},
                 "[@NOM]: a name has one character at least, printable ASCII without commas")]:
            self.put(content)
            with ScriptedDriver(rows) as driver:
                code, _, err = self.config(driver, "push", "--yes")
                self.assertEqual((code, err), (1, f"quvctl: {text}\n"))
                self.assertEqual(driver.written(), [])

    def test_json(self):
        self.put(HUMIDIFIER_FILE.replace("60", "61"))
        change = {"row": "[@HUM]", "fields": [{"label": "Sensor Reading Period", "from": "60", "to": "61"}]}
        with ScriptedDriver({(7, 1): HUMIDIFIER}, deaf=True) as driver:
            code, out, err = self.config(driver, "push", "--json", "--yes")
            self.assertEqual((code, json.loads(out)), (1, {
                "ok": False, "code": "", "text": "the firmware has not taken all of it", "function": "",
                "written": [change], "not_taken": [change]}))
        with ScriptedDriver({(7, 1): HUMIDIFIER}) as driver:
            code, out, _ = self.config(driver, "push", "--json")
            self.assertEqual((code, json.loads(out)["text"]), (2, "nobody can be asked here: config push needs --yes"))
            self.assertEqual(driver.written(), [])
            for written in [[change], []]:
                code, out, err = self.config(driver, "push", "--json", "--yes")
                self.assertEqual((code, err, json.loads(out)), (0, "", {"ok": True, "written": written, "not_taken": []}))

    def test_first_row_refused(self):
        self.put(HUMIDIFIER_FILE.replace("60", "61"))
        row = {"cmd_value": 7, "cmd_parameters": "1,61,10,40"}
        with ScriptedDriver({(7, 1): HUMIDIFIER}, refusing=[["WRITE_CONFIG_ROW", row]]) as driver:
            code, _, err = self.config(driver, "push", "--yes")
        self.assertEqual((code, err), (1, "no row was written, and nothing is changed\n[@HUM] cannot be written\n"
                                          "Failed! Command not executed due to errors on firmware.\n"))

    def test_driver_that_goes_away(self):
        self.put(HUMIDIFIER_FILE.replace("60", "61"))
        for command, told in [
                ("WRITE_CONFIG_ROW", r"0 rows written, perhaps \[@HUM\] as well, and not finalised: the firmware forgets it "
                                     r"when it is switched off"),
                ("FINALIZE_CONFIG", r"1 row written; nobody knows whether the firmware has finalised that; have it keep it with: "
                                    r"quvctl call FINALIZE_CONFIG")]:
            with ScriptedDriver({(7, 1): HUMIDIFIER}, silent=command) as driver:
                code, _, err = self.config(driver, "push", "--yes", "--timeout", "0.5")
            self.assertEqual(code, 1)
            self.assertRegex(err, rf"^{told}\nquvctl: .+\n$")

    def test_row_that_tells_no_position(self):
        self.put("quvctl configuration 1\n[@RAM 4]\ncmd_enabled = 1\n")
        with ScriptedDriver({(10, 1): RAMP_1}) as driver:
            code, _, err = self.config(driver, "push", "--yes")
            self.assertEqual((code, err), (1, "quvctl: [@RAM 4]: the file does not tell the Ramp ID\n"))
            self.assertEqual(driver.written(), [])

    def test_refused_row(self):
        self.put("quvctl configuration 1\n[@HUM]\ncmd_enabled = 2\n[@ICS]\ncmd_enabled = 2\n")
        row = {"cmd_value": 1, "cmd_parameters": "2"}
        with ScriptedDriver({(1, 1): "1", (7, 1): HUMIDIFIER}, refusing=[["WRITE_CONFIG_ROW", row]]) as driver:
            code, out, err = self.config(driver, "push", "--yes")
            self.assertEqual((code, out), (1, "[@HUM]\n  cmd_enabled: 1 -> 2\n[@ICS]\n  cmd_enabled: 1 -> 2\n"))
            self.assertEqual(err, "1 row written, and not finalised: the firmware forgets it when it is switched off\n"
                                  "[@ICS] cannot be written\n"
                                  "Failed! Command not executed due to errors on firmware.\n")
            self.assertEqual(driver.told("FINALIZE_CONFIG"), [])

    def test_firmware_that_does_not_finalise(self):
        self.put(HUMIDIFIER_FILE.replace("60", "61"))
        with ScriptedDriver({(7, 1): HUMIDIFIER}, refusing=[["FINALIZE_CONFIG"]]) as driver:
            code, _, err = self.config(driver, "push", "--yes")
        self.assertEqual((code, err), (
            1, "1 row written, and not finalised: have it keep it with: quvctl call FINALIZE_CONFIG\n"
               "the configuration cannot be finalised\nFailed! Command not executed due to errors on firmware.\n"))

    def test_firmware_that_does_not_take_it(self):
        self.put(HUMIDIFIER_FILE.replace("60", "61"))
        with ScriptedDriver({(7, 1): HUMIDIFIER}, deaf=True) as driver:
            code, out, err = self.config(driver, "push", "--yes")
        change = "[@HUM]\n  Sensor Reading Period: 60 -> 61\n"
        self.assertEqual((code, out, err), (1, change + change, "the firmware has not taken all of it:\n"))


class Simulated(ConfigTest):
    """The configuration of a driver's simulated machine."""

    def pulled(self, machine, age):
        with quvdriver_process.Driver("--machine", machine, "--firmware", age) as driver:
            code, out, err = self.config(driver, "pull")
        self.assertEqual((code, err), (0, ""))
        return self.content()

    def test_a_pull_then_a_push_changes_nothing(self):
        for machine, rows in [("dispenser", 50), ("turntable", 34), ("dual", 50), ("mixer", 2)]:
            for age in ["older", "equal", "newer"]:
                with quvdriver_process.Driver("--machine", machine, "--firmware", age) as driver:
                    code, out, err = self.config(driver, "pull")
                    self.assertEqual((code, out.split("\n")[-2], err), (0, f"{rows} rows in {self.path}", ""))
                    self.assertEqual("NEW_DATA" in self.content(), age == "newer")
                    self.assertEqual(self.config(driver, "push", "--yes"), (0, "no differences\n", ""))

    def test_firmware_of_another_age(self):
        for age in ["older", "equal", "newer"]:
            self.pulled("dispenser", age)
            for other in ["older", "equal", "newer"]:
                with quvdriver_process.Driver("--machine", "dispenser", "--firmware", other) as driver:
                    code, out, err = self.config(driver, "push", "--yes")
                    self.assertEqual((code, out), (0, "no differences\n"))
                    leaves_out = (age, other) in [("equal", "older"), ("newer", "older"), ("newer", "equal")]
                    self.assertEqual("left out\n" in err, leaves_out, (age, other))

    def test_push_to_a_newer_firmware_keeps_what_nobody_knows(self):
        newer = self.pulled("dispenser", "newer")
        unknown = [line for line in newer.split("\n") if line.startswith("NEW_DATA")]
        self.assertGreaterEqual(len(unknown), 33)  # each row but the name
        self.pulled("dispenser", "equal")
        with quvdriver_process.Driver("--machine", "dispenser", "--firmware", "newer", "--speed", "1000") as driver:
            self.put(self.content().replace("Motor Power Off Delay = 60", "Motor Power Off Delay = 90"))
            self.assertEqual(self.config(driver, "push", "--yes"), (
                0, "[@GMC]\n  Motor Power Off Delay: 60 -> 90\n1 row written, finalised and read back\n", ""))
            self.assertEqual(self.config(driver, "pull")[0], 0)
        self.assertEqual(self.content(), newer.replace("Motor Power Off Delay = 60", "Motor Power Off Delay = 90"))

    def test_what_was_finalised_outlasts_the_firmware(self):
        options = ["--machine", "dispenser", "--speed", "1000", "--state", os.path.join(self.folder.name, "state")]
        circuit = "quvctl configuration 1\n[@CPT 3]\ncmd_enabled = 2\nCanister ID = 3\nCanister Size = 31\n"
        with quvdriver_process.Driver(*options) as driver:
            self.put(circuit)
            self.assertEqual(self.config(driver, "push", "--yes"), (
                0, "[@CPT 3]\n  cmd_enabled: 1 -> 2\n  Canister Size: 30 -> 31\n"
                   "1 row written, finalised and read back\n", ""))
            # a row that nobody finalises
            code, _, err = run("call", "WRITE_CONFIG_ROW", '{"cmd_value":2,"cmd_parameters":"1,Lost"}',
                               "--port", str(driver.port))
            self.assertEqual((code, err), (0, ""))
        with quvdriver_process.Driver(*options) as driver:
            self.assertEqual(self.config(driver, "diff"), (0, "no differences\n", ""))
            self.put('quvctl configuration 1\n[@NOM]\ncmd_enabled = 1\nStructure name = "Lost"\n')
            self.assertEqual(self.config(driver, "diff"),
                             (1, '[@NOM]\n  Structure name: "BUILT-IN" -> "Lost"\n', ""))

    def test_a_new_circuit(self):
        self.pulled("dispenser", "equal")
        text = self.content()
        begin, end = text.index("[@CPT 16]"), text.index("\n\n", text.index("[@CPT 16]"))
        self.put("quvctl configuration 1\n" + text[begin:end].replace("[@CPT 16]", "[@CPT 40]")
                 .replace("Position ID = 16", "Position ID = 40"))
        with quvdriver_process.Driver("--machine", "dispenser", "--speed", "1000") as driver:
            code, out, err = self.config(driver, "push", "--yes")
            self.assertEqual((code, err), (0, ""))
            self.assertTrue(out.startswith("[@CPT 40]\n  cmd_enabled: 0 -> 1\n"), out)
            self.assertTrue(out.endswith("\n1 row written, finalised and read back\n"), out)
            self.assertEqual(self.config(driver, "diff"), (0, "no differences\n", ""))

    def test_a_file_of_another_machine(self):
        self.pulled("dispenser", "equal")
        with quvdriver_process.Driver("--machine", "mixer") as driver:
            self.assertEqual(self.config(driver, "diff"), (
                1, "", "quvctl: the file is of a dispenser, the machine behind the driver is a mixer\n"))

    def test_a_circuit_that_is_absent(self):
        formula = '{"formula_type":4,"quantity_unit":3,"ids":["C"],"quantities":[5]}'
        options = ["--machine", "dispenser", "--speed", "1000", "--state", os.path.join(self.folder.name, "state")]
        self.put("quvctl configuration 1\n[@CPT 3]\ncmd_enabled = 0\n")
        with quvdriver_process.Driver(*options) as driver:
            query = ["call", "GET_FORMULA_CIRCUITS", formula, "--port"]
            self.assertEqual(run(*query, str(driver.port))[0], 0)
            self.assertEqual(self.config(driver, "push", "--yes")[0], 0)
            self.assertEqual(run(*query, str(driver.port))[:2], (1, ""))
        with quvdriver_process.Driver(*options) as driver:  # from the state file
            self.assertEqual(run(*query, str(driver.port))[:2], (1, ""))

    def test_no_driver(self):
        code, out, err = run("config", "pull", self.path, "--port", "1", "--timeout", "5")
        self.assertEqual((code, out), (1, ""))
        self.assertTrue(err.startswith("quvctl: "), err)
        self.assertEqual(os.listdir(self.folder.name), [])


class Terminal(ConfigTest):
    def answer(self, driver, answer):
        """What push shows on a terminal, and its exit status, when it is answered like this."""
        code, shown = quvctl_process.run_on_terminal("config", "push", self.path, "--port", str(driver.port),
                                                     asks=lambda shown: shown.endswith(b"[y/N] "), answer=answer)
        return code, shown.replace("\r\n", "\n")

    def test_asks(self):
        for answer, written in [(b"y\n", 1), (b"yes\n", 1), (b"\n", 0), (b"n\n", 0), (b"Y E S\n", 0)]:
            self.put(HUMIDIFIER_FILE.replace("60", "61"))
            with ScriptedDriver({(7, 1): HUMIDIFIER}) as driver:
                code, text = self.answer(driver, answer)
                self.assertEqual((code, len(driver.written())), (1 - written, written), text)
            self.assertIn("\r[", text)
            self.assertIn("[@HUM]\n  Sensor Reading Period: 60 -> 61\nwrite 1 row? [y/N] ", text)
            self.assertTrue(text.endswith("read back\n" if written else "nothing was written\n"), text)


class Usage(ConfigTest):
    def test_wrong_usage(self):
        for words, text in [
                (["pull"], "config needs pull|push|diff FILE"),
                (["pull", "a", "b"], 'unexpected "b"'),
                (["fetch", "a"], 'config has pull, push and diff, not "fetch"'),
                (["diff", "a", "--yes"], "--yes belongs to config push")]:
            self.assertEqual(run("config", *words), (2, "", f"quvctl: {text} (see quvctl help)\n"))


if __name__ == "__main__":
    quvctl_process.PROGRAM = sys.argv.pop(2)
    quvdriver_process.main()
