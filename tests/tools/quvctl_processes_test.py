# SPDX-License-Identifier: LGPL-3.0-or-later
"""What quvctl has the driver's simulated machines do, and waits for. Usage: quvctl_processes_test.py QUVDRIVER QUVCTL"""

import json
import re
import signal
import sys
import tempfile
import time
import unittest

import quvctl_process
import quvdriver_process
from quvctl_process import run, start

DISPENSER = 1  # among the kinds of machines


def until(condition):
    end = time.monotonic() + 30
    while time.monotonic() < end:
        if condition():
            return
        time.sleep(0.02)
    raise AssertionError("it never came")


class ProcessTest(unittest.TestCase):
    maxDiff = None

    def driver(self, *options, speed=1):
        driver = quvdriver_process.Driver(*options, "--speed", str(speed))
        self.addCleanup(driver.end)
        self.port = str(driver.port)
        client = driver.client()
        self.addCleanup(client("close"))
        return client

    def asked(self, client, *params):
        envelope = client.EXEC_B(*params)
        self.assertEqual(envelope["ret_code"], 0, envelope)
        return envelope["ret_value"]

    def quvctl(self, *words):
        return run(*words, "--port", self.port)

    def done(self, *words):
        code, out, err = self.quvctl(*words)
        self.assertEqual((code, err), (0, ""), out)
        return out

    def waiting(self, *words):
        """The program, once it has told that the machine has begun."""
        process = start(*words, "--interval", "0.05", "--port", self.port)
        self.addCleanup(process.wait, 30)
        self.addCleanup(process.kill)
        self.addCleanup(process.stdout.close)
        self.addCleanup(process.stderr.close)
        process.first_line = process.stdout.readline()
        time.sleep(0.2)  # it waits
        return process

    def interrupted_twice(self, process):
        process.send_signal(signal.SIGINT)
        hint = process.stderr.readline()
        process.stderr.readline()
        process.send_signal(signal.SIGINT)
        _, more = process.communicate(timeout=30)
        self.assertEqual((process.returncode, more), (130, "the machine has been told to stop\n"))
        return hint


class OneMachineOfSeveral(ProcessTest):
    def test_the_mixer_is_stopped_and_not_the_dispenser(self):
        client = self.driver("--machine", "dispenser", "--machine", "mixer")
        mixer = self.asked(client, "GET_ACTIVE_DISP")["mixer_list"][0]["mixer_info"]["mixer_id"]
        self.done("tint", "C=400", "--no-wait")
        hint = self.interrupted_twice(self.waiting("mix", "300"))
        self.assertEqual(hint, "the machine goes on; look at it with: "
                               f"quvctl status --port {self.port} --on mixer:{mixer}\n")
        self.assertFalse(self.asked(client, "MIXER_STATUS")["mixing"])
        self.assertTrue(self.asked(client, "GET_STATUS")["tinting"])

    def test_the_machine_of_the_beginning_is_stopped(self):
        client = self.driver("--machine", "dispenser", "--machine", "dispenser")
        first, second = (each["dispenser_info"]["disp_id"] for each in self.asked(client, "GET_ACTIVE_DISP")["disp_list"])
        process = self.waiting("recirculate", "100")
        self.done("recirculate", "endless", "--on", f"dispenser:{second}")
        self.asked(client, "SET_ACTIVE_DISP", second, DISPENSER)
        time.sleep(0.3)
        self.assertIsNone(process.poll())
        self.assertIn(f" --on dispenser:{first}\n", self.interrupted_twice(process))
        self.assertTrue(self.asked(client, "GET_STATUS")["recirculating"])
        self.asked(client, "SET_ACTIVE_DISP", first, DISPENSER)
        self.assertFalse(self.asked(client, "GET_STATUS")["recirculating"])

    def test_the_report_is_of_the_machine_that_has_poured(self):
        client = self.driver("--machine", "dispenser", "--machine", "dispenser", speed=5)
        second = self.asked(client, "GET_ACTIVE_DISP")["disp_list"][1]["dispenser_info"]["disp_id"]
        process = self.waiting("tint", "B=30")
        self.asked(client, "SET_ACTIVE_DISP", second, DISPENSER)
        out, err = process.communicate(timeout=60)
        self.assertEqual((process.returncode, err), (0, ""))
        self.assertTrue(out.endswith("\npoured: all\n"), out)

    def test_a_session_that_the_driver_forgot(self):
        first = quvdriver_process.Driver("--machine", "mixer")
        self.port = str(first.port)
        process = self.waiting("watch", "--on", "mixer")
        first.end()
        lines = iter(process.stdout.readline, "")
        self.assertTrue(any("No status" in line for line in lines))
        second = quvdriver_process.Driver("--machine", "mixer", "--port", self.port)
        self.addCleanup(second.end)
        self.assertTrue(any("The driver answers again" in line for line in lines))
        process.send_signal(signal.SIGINT)


class Circuits(ProcessTest):
    def two_at_a_time(self):
        """A driver whose dispenser recirculates two circuits at a time."""
        machine = json.loads(run("machine", "dispenser")[1])
        machine["recirculating_parallelism"] = 2
        with tempfile.NamedTemporaryFile("w", suffix=".json") as file:
            json.dump(machine, file)
            file.flush()
            return self.driver("--machine", file.name)

    def positions_at_work(self, client):
        return {each["position_id"] for each in self.asked(client, "GET_CIRCUITS_STATUS")["circuits_status_answers"]
                if each["status_answer"]["recirculating"]}

    def test_as_many_at_a_time_as_the_machine_takes(self):
        client = self.two_at_a_time()
        process = self.waiting("recirculate", "2", "--circuit", "2,3,4")
        self.assertEqual(process.first_line, "recirculating circuits 2, 3, 4 for 2 s\n")
        seen = []
        while process.poll() is None:
            now = self.positions_at_work(client)
            if now not in seen:
                seen.append(now)
        out, err = process.communicate(timeout=30)
        self.assertEqual((process.returncode, err), (0, ""), out)
        self.assertEqual(seen[0], {2, 3})
        self.assertIn({4}, seen)
        self.assertTrue(out.endswith("recirculated\n"), out)

    def test_what_goes_on_behind_a_refusal(self):
        client = self.two_at_a_time()
        code, out, err = self.quvctl("recirculate", "endless", "--circuit", "2,3,4,5")
        self.assertEqual((code, out), (1, ""))
        self.assertEqual(err.splitlines()[-2:], [
            "refused for circuit 4",
            f"begun and going on: circuits 2, 3; to end it: quvctl stop --port {self.port} --on dispenser:1"])
        self.assertEqual(self.positions_at_work(client), {2, 3})

    def test_cleaning_one_after_the_other(self):
        self.driver("--machine", "dispenser")
        self.assertTrue(self.done("clean", "circuits", "1", "--circuit", "2,3", "--interval", "0.05").endswith("cleaned\n"))

    def test_a_machine_that_is_faster_was_not_stopped(self):
        self.driver("--machine", "dispenser", speed=10)
        for words in (["stir", "5"], ["recirculate", "5"], ["clean", "circuits", "5"]):
            self.assertEqual(self.done(*words, "--circuit", "2,3", "-q", "--interval", "0.05"), "")

    def test_nothing_more_is_begun_on_a_machine_that_was_stopped(self):
        client = self.two_at_a_time()
        process = self.waiting("recirculate", "100", "--circuit", "2,3,4,5")
        self.done("stop", "-q")
        _, err = process.communicate(timeout=30)
        self.assertEqual((process.returncode, err), (1, "not begun: circuits 4, 5\n"))
        self.assertEqual(self.positions_at_work(client), set())


class Movements(ProcessTest):
    def test_a_cap_that_stands_so(self):
        self.driver("--machine", "dispenser")
        self.assertTrue(self.done("move", "cap", "open", "--interval", "0.05").endswith("moved\n"))
        self.assertEqual(self.done("move", "cap", "open"), "the cap is open already\n")
        self.assertTrue(self.done("move", "cap", "close", "--interval", "0.05").endswith("moved\n"))
        self.assertEqual(json.loads(self.done("move", "cap", "close", "--json")),
                         {"ok": True, "process": "the cap is closed already", "state": "ended"})

    def test_a_cap_that_is_refused(self):
        self.driver("--machine", "dispenser")
        self.done("tint", "C=400", "--no-wait")
        code, out, err = self.quvctl("move", "cap", "close", "--interval", "0.05")
        self.assertEqual((code, out), (1, ""))
        self.assertIn("DE03106: ", err)

    def test_a_cap_that_is_stopped(self):
        self.driver("--machine", "dispenser", speed=0.1)
        process = self.waiting("move", "cap", "open")
        self.done("stop", "-q")
        _, err = process.communicate(timeout=30)
        self.assertEqual((process.returncode, err), (1, "the cap is not open\n"))

    def test_refilling_at_the_reference(self):
        self.assertEqual(run("move", "table", "reference", "--refill", "--port", "1"), (
            2, "", "quvctl: --refill needs the position of a circuit, not reference (see quvctl help)\n"))


class HowFarItIs(ProcessTest):
    def test_without_an_estimate_it_is_told_once(self):
        self.driver("--machine", "turntable", speed=10)
        self.assertEqual(self.done("move", "table", "reference", "--interval", "0.05"),
                         "moving the table to its reference\nmoved\n")

    def test_a_mixer_tells_its_time(self):
        self.driver("--machine", "mixer", speed=20)
        out = self.done("mix", "30", "--interval", "0.05")
        told = [int(each) for each in re.findall(r"(?m)^(\d+) %", out)]
        self.assertEqual(told, sorted(told))
        self.assertTrue(any(30 < each < 95 for each in told), out)

    def test_the_object_tells_what_became_of_the_machine(self):
        self.driver("--machine", "mixer")
        with start("mix", "300", "--json", "--interval", "0.05", "--port", self.port) as process:
            client = quvdriver_process.xmlrpc.client.ServerProxy(f"http://127.0.0.1:{self.port}/RPC2")
            until(lambda: client.EXEC_B("MIXER_STATUS")["ret_value"]["mixing"])
            client("close")()
            time.sleep(0.2)  # it waits
            process.send_signal(signal.SIGINT)
            process.stderr.readline()
            process.stderr.readline()
            process.send_signal(signal.SIGINT)
            out, _ = process.communicate(timeout=30)
        self.assertEqual((process.returncode, json.loads(out)["text"]), (130, "the machine has been told to stop"))


if __name__ == "__main__":
    quvctl_process.PROGRAM = sys.argv.pop(2)
    quvdriver_process.main()
