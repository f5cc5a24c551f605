# SPDX-License-Identifier: LGPL-3.0-or-later
"""The configuration of simulated machines: written, made permanent, and kept while the driver is away."""

import json
import os
import resource
import shutil
import signal
import subprocess
import tempfile
import unittest

import quvdriver_process
from quvdriver_process import Driver, run

MACHINE_ROW = "1,1,1,1,1,1,1,60,0,0,0,30,90,0,0,0,0,0"  # one circuit at once, where there were four


def estimate(client):
    """What a tint of four circuits that do not wait for each other should take, milliseconds."""
    formula = {"formula_type": 4, "quantity_unit": 3, "ids": ["AXX", "E", "L", "V"], "quantities": [100.0] * 4}
    return client.EXEC_B("GET_CMD_EST_EXEC_TIME", {"command": ["TINT", formula]})["ret_value"]["exec_time"]


class ConfigTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.state = os.path.join(folder.name, "state.json")

    def driver(self, *options):
        return Driver("--speed", "1000", "--machine", "dispenser", "--state", self.state, *options)

    def call(self, client, *params):
        envelope = client.EXEC_B(*params)
        self.assertEqual((envelope["ret_code"], envelope["errors"]), (0, []), params)
        return envelope["ret_value"]

    def row(self, client, code, number=1):
        answer = self.call(client, "READ_CONFIG_ROW", code, number)
        self.assertEqual(answer["cmd_value"], code)
        return answer["cmd_parameters"]

    def write(self, client, code, text):
        self.call(client, "WRITE_CONFIG_ROW", {"cmd_value": code, "cmd_parameters": text})

    def rows(self, client):
        """Every row of the firmware."""
        rows = {}
        for structure in self.call(client, "GET_CONFIG_CMDS")["command_codes"]:
            code = structure["cmd_code"]
            for number in range(1, 18) if code in (5, 6, 10, 19, 22) else (1,):
                rows[code, number] = self.row(client, code, number)
                self.assertEqual(len(rows[code, number].split(",")), structure["field_count"], (code, number))
        return rows

    def test_a_restart_keeps_what_was_finalised_and_forgets_what_was_not(self):
        with self.driver() as driver, driver.client() as client:
            before = self.rows(client)
            soon = estimate(client)
            self.write(client, 3, MACHINE_ROW)
            self.write(client, 2, "1,Line 7")
            circuit = before[5, 16].split(",")
            self.assertEqual(circuit[:4], ["1", "16", "30", "16"])
            circuit[11] = "300"  # suction speed
            self.write(client, 5, ",".join(circuit))
            self.assertFalse(os.path.exists(self.state))
            self.call(client, "FINALIZE_CONFIG")
            late = estimate(client)
            self.assertGreater(late, 3 * soon)
            self.write(client, 7, "1,61,11,41")
            self.assertEqual(self.row(client, 7), "1,61,11,41")
        with self.driver() as driver, driver.client() as client:
            after = self.rows(client)
            expected = dict(before)
            expected[3, 1] = MACHINE_ROW
            expected[2, 1] = "1,Line 7"
            expected[5, 16] = ",".join(circuit)
            self.assertEqual(after, expected)
            self.assertEqual(estimate(client), late)  # the driver knows the machine as it was left
        os.remove(self.state)
        with self.driver() as driver, driver.client() as client:
            self.assertEqual(self.rows(client), before)
            self.assertEqual(estimate(client), soon)

    def test_one_file_holds_both_kinds(self):
        with Driver("--machine", "mixer", "--state", self.state) as driver, driver.client() as client:
            self.write(client, 2, "1,Mill")
            self.call(client, "FINALIZE_CONFIG")
        with self.driver() as driver, driver.client() as client:
            self.write(client, 2, "1,Line")
            self.call(client, "FINALIZE_CONFIG")
        with open(self.state, encoding="utf-8") as file:
            kept = json.load(file)
        self.assertEqual(sorted(kept), ["dispenser", "mixer"])
        self.assertEqual(kept["mixer"], [{"code": 1, "row": [1]}, {"code": 2, "row": [1], "name": "Mill"}])
        with Driver("--machine", "mixer", "--state", self.state) as driver, driver.client() as client:
            self.assertEqual(self.row(client, 2), "1,Mill")
            self.assertEqual(client.EXEC_B("READ_CONFIG_ROW", 3, 1)["ret_code"], 4)

    def test_what_is_read_can_be_written_back_whatever_the_firmwares_age(self):
        for age, version, machine_fields, circuit_fields in (("older", 1, 10, 30), ("equal", 2, 18, 53),
                                                              ("newer", 3, 19, 55)):
            with Driver("--speed", "1000", "--firmware", age) as driver, driver.client() as client:
                listing = self.call(client, "GET_CONFIG_CMDS")
                self.assertEqual(listing["version"], version)
                fields = {entry["cmd_code"]: entry["field_count"] for entry in listing["command_codes"]}
                self.assertEqual((fields[3], fields[5]), (machine_fields, circuit_fields), age)
                before = self.rows(client)
                for (code, _), text in before.items():
                    self.write(client, code, text)
                self.call(client, "FINALIZE_CONFIG")
                self.assertEqual(self.rows(client), before)

    def test_an_older_firmware_takes_no_later_fields(self):
        with Driver("--speed", "1000", "--firmware", "older") as driver, driver.client() as client:
            refused = client.EXEC_B("WRITE_CONFIG_ROW", {"cmd_value": 3, "cmd_parameters": MACHINE_ROW})
            self.assertEqual(refused["ret_code"], 4)
            self.write(client, 3, ",".join(MACHINE_ROW.split(",")[:10]))

    def test_a_newer_firmware_keeps_what_the_driver_does_not_know(self):
        with self.driver("--firmware", "newer") as driver, driver.client() as client:
            self.assertEqual(self.row(client, 7), "0,60,10,40,7")
            self.write(client, 7, "1,61,11,41")
            self.assertEqual(self.row(client, 7), "1,61,11,41,7")
            self.write(client, 7, "1,61,11,41,300")
            self.call(client, "FINALIZE_CONFIG")
        with self.driver("--firmware", "newer") as driver, driver.client() as client:
            self.assertEqual(self.row(client, 7), "1,61,11,41,300")
        ended = run("--machine", "dispenser", "--state", self.state)  # it has fewer fields
        self.assertEqual(ended.returncode, 1)
        self.assertIn("the firmware has no such row: structure 1 with 2 fields", ended.stderr)

    def test_files_and_options_that_are_refused(self):
        with open(self.state, "w", encoding="utf-8") as file:
            file.write('{"dispenser": [{"code": 3, "row": ["a"]}]}')
        ended = run("--state", self.state)
        self.assertEqual((ended.returncode, ended.stdout), (1, ""))
        self.assertIn(f'State file "{self.state}": dispenser[0].row must be a whole number', ended.stderr)
        ended = run("--firmware", "old")
        self.assertEqual((ended.returncode, ended.stdout), (2, ""))
        self.assertIn("--firmware must be older, equal or newer", ended.stderr)

    def test_a_file_that_cannot_be_written_refuses_the_finalisation(self):
        folder = os.path.join(os.path.dirname(self.state), "folder")
        os.mkdir(folder)
        state = os.path.join(folder, "state.json")
        with Driver("--speed", "1000", "--state", state) as driver, driver.client() as client:
            shutil.rmtree(folder)
            self.write(client, 7, "1,61,11,41")
            refused = client.EXEC_B("FINALIZE_CONFIG")
            self.assertEqual(refused["ret_code"], 4)
            self.assertEqual(refused["errors"][0]["text"],
                             "The firmware refused the code 0067: Configuration writing error (masks 0x0 and 0x2); "
                             f'State file "{state}": No such file or directory')
            self.assertEqual(self.row(client, 7), "1,61,11,41")

    def test_a_full_disk_leaves_the_file_as_it_was(self):
        with self.driver() as driver, driver.client() as client:
            self.write(client, 7, "1,61,11,41")
            self.call(client, "FINALIZE_CONFIG")
        with open(self.state, encoding="utf-8") as file:
            before = file.read()
        with Driver("--speed", "1000", "--machine", "dispenser", "--state", self.state,
                    stderr=subprocess.PIPE, restore_signals=False) as driver:
            # a file may have 1 KiB and a part of what the rows need, as when the disk is full
            resource.prlimit(driver.process.pid, resource.RLIMIT_FSIZE, (1024, 1024))
            with driver.client() as client:
                self.write(client, 7, "1,62,11,41")
                refused = client.EXEC_B("FINALIZE_CONFIG")
            driver.process.send_signal(signal.SIGTERM)
            _, log = driver.process.communicate(timeout=5)
        reason = f'State file "{self.state}": File too large'
        self.assertEqual(refused["ret_code"], 4)
        self.assertEqual(refused["errors"][0]["text"],
                         "The firmware refused the code 0067: Configuration writing error (masks 0x0 and 0x2); "
                         + reason)
        self.assertIn(f"quvdriver: {reason}\n", log)
        with open(self.state, encoding="utf-8") as file:
            self.assertEqual(file.read(), before)
        self.assertEqual(os.listdir(os.path.dirname(self.state)), ["state.json"])

    def test_a_state_file_has_one_driver(self):
        link = self.state + ".link"
        with self.driver():
            os.symlink(self.state, link)
            for name in (self.state, os.path.join(os.path.dirname(self.state), ".", "state.json")):
                second = run("--state", name)
                self.assertEqual((second.returncode, second.stdout), (1, ""))
                self.assertIn(f'State file "{name}": another process uses it', second.stderr)
        with self.driver() as driver, driver.client() as client:  # the one before was killed
            self.call(client, "FINALIZE_CONFIG")
            second = run("--state", link)
            self.assertEqual(second.returncode, 1)
            self.assertIn(f'State file "{link}": another process uses it', second.stderr)
            driver.process.send_signal(signal.SIGTERM)
            self.assertEqual(driver.process.wait(5), 0)
        self.assertFalse(os.path.exists(self.state + ".lock"))

    def test_a_state_file_that_cannot_be_written_is_told_at_start(self):
        nowhere = os.path.join(self.state, "nowhere.json")
        ended = run("--state", nowhere)
        self.assertEqual((ended.returncode, ended.stdout), (1, ""))
        self.assertIn(f'State file "{nowhere}": No such file or directory', ended.stderr)

    def test_what_is_no_regular_file_is_refused_and_not_waited_for(self):
        pipe = os.path.join(os.path.dirname(self.state), "pipe")
        os.mkfifo(pipe)
        for path in (pipe, os.path.dirname(self.state)):
            ended = run("--state", path)
            self.assertEqual((ended.returncode, ended.stdout), (1, ""))
            self.assertIn(f'State file "{path}": it is no regular file', ended.stderr)
            ended = run("--machine", path)
            self.assertEqual((ended.returncode, ended.stdout), (1, ""))
            self.assertIn(f'Machine "{path}": no machine of this name, and no file that can be read: '
                          "it is no regular file", ended.stderr)


if __name__ == "__main__":
    quvdriver_process.main()
