# SPDX-License-Identifier: LGPL-3.0-or-later
"""How the driver is started, and how it ends."""

import json
import os
import signal
import socket
import subprocess
import tempfile
import time
import unittest
import xmlrpc.client

import quvdriver_process
from quvdriver_process import Driver, run


class ProgramTest(unittest.TestCase):
    def test_port_0_takes_a_free_port_each_time(self):
        with Driver() as first, Driver() as second:
            self.assertNotEqual(first.port, second.port)
            for driver in (first, second):
                with driver.client() as client:
                    self.assertEqual(client.EXEC_B("GET_STATUS")["ret_code"], 0)

    def test_it_ends_cleanly_on_signals(self):
        for number in (signal.SIGTERM, signal.SIGINT):
            with Driver() as driver:
                idle = socket.create_connection(("127.0.0.1", driver.port), timeout=5)
                with driver.client() as client:
                    self.assertEqual(client.EXEC_B("GET_STATUS")["ret_code"], 0)
                    begin = time.monotonic()
                    driver.process.send_signal(number)
                    self.assertEqual(driver.process.wait(5), 0)
                    self.assertLess(time.monotonic() - begin, 2)  # whoever is connected and silent is not waited for
                idle.close()
                with self.assertRaises(OSError):
                    socket.create_connection(("127.0.0.1", driver.port), timeout=5)

    def test_signals_are_for_the_main_thread_alone(self):
        with Driver() as driver, driver.client() as client:
            self.assertEqual(client.EXEC_B("GET_STATUS")["ret_code"], 0)
            tasks = f"/proc/{driver.process.pid}/task"
            end = time.monotonic() + 5
            while len(threads := os.listdir(tasks)) <= 8:  # the first of them may answer before the last is there
                self.assertLess(time.monotonic(), end)
            threads.remove(str(driver.process.pid))  # the main thread, which waits for them
            for thread in threads:
                with open(f"{tasks}/{thread}/status", encoding="ascii") as file:
                    masks = dict(line.split(":\t") for line in file if line.startswith("Sig"))
                for number in (signal.SIGTERM, signal.SIGINT):
                    bit = 1 << (number - 1)
                    self.assertTrue(int(masks["SigBlk"], 16) & bit, f"{number} in {thread}")
                    self.assertFalse(int(masks["SigCgt"], 16) & bit, f"{number} in {thread}")

    def test_once_answers_one_call_and_ends(self):
        with Driver("--once") as driver:
            with driver.client() as client:
                self.assertEqual(client.EXEC_B("GET_STATUS")["ret_code"], 0)
            self.assertEqual(driver.process.wait(5), 0)

    def test_once_counts_only_calls(self):
        with Driver("--once") as driver:
            with socket.create_connection(("127.0.0.1", driver.port), timeout=5) as stranger:
                stranger.sendall(b"GET / HTTP/1.0\r\n\r\n")
                self.assertTrue(stranger.recv(100).startswith(b"HTTP/1.1 405 "))
            with driver.client() as client:
                self.assertEqual(client.EXEC_B("NOPE")["ret_code"], 1)
            self.assertEqual(driver.process.wait(5), 0)

    def test_machines_are_chosen(self):
        with Driver("--machine", "mixer") as driver, driver.client() as client:
            self.assertEqual(client.EXEC_B("GET_STATUS")["ret_code"], 5)
            self.assertEqual(client.EXEC_B("RESET")["ret_code"], 0)
        with Driver("--machine", "none") as driver, driver.client() as client:
            self.assertEqual(client.EXEC_B("RESET")["ret_code"], 5)
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "dual.json")
            with open(path, "w", encoding="utf-8") as file:
                file.write('{"type": "dispenser", "heads": 2, "command_family": 2}')
            with Driver("--machine", path) as driver, driver.client() as client:
                self.assertTrue(client.EXEC_B("GET_STATUS")["ret_value"]["head2_can_dose"])
                self.assertEqual(client.EXEC_B("RESET")["ret_code"], 3)

    def test_speed_shortens_processes(self):
        with Driver("--speed", "10000") as driver, driver.client() as client:
            self.assertEqual(client.EXEC_B("RESET")["ret_code"], 0)
            time.sleep(0.05)
            self.assertFalse(client.EXEC_B("GET_STATUS")["ret_value"]["resetting"])

    def test_a_port_that_is_taken(self):
        with Driver() as driver:
            second = run("--port", str(driver.port))
            self.assertEqual(second.returncode, 1)
            self.assertEqual(second.stdout, "")
            self.assertIn(f"Cannot listen on 127.0.0.1:{driver.port}", second.stderr)

    def test_wrong_usage(self):
        for options, text in ((["--port", "65536"], "--port must be a number from 0 to 65535"),
                              (["--port", "x"], "--port must be a number from 0 to 65535"),
                              (["--speed", "0"], "--speed must be a number from 0.01 to 10000"),
                              (["--speed", "nan"], "--speed must be a number from 0.01 to 10000"),
                              (["--state", ""], "--state must be a file"),
                              (["--machine", "mixer:7", "--machine", "mixer:7"], "there are two mixers with the ID 7"),
                              (["--trace=xml"], "--trace stands alone, or as --trace=json"),
                              (["--nothing"], "nothing"),
                              (["--help-all"], "help-all"),
                              (["extra"], 'unexpected argument "extra"')):
            ended = run(*options)
            self.assertEqual(ended.returncode, 2, options)
            self.assertEqual(ended.stdout, "", options)
            self.assertIn(text, ended.stderr, options)

    def test_a_machine_that_cannot_be_had(self):
        ended = run("--machine", "/nowhere/machine.json")
        self.assertEqual(ended.returncode, 1)
        self.assertIn('Machine "/nowhere/machine.json": ', ended.stderr)

    def traced(self, option):
        """What a driver tells of three calls, in lines."""
        with Driver(option, "--machine", "dispenser", stderr=subprocess.PIPE) as driver:
            with driver.client() as client:
                client.EXEC_B("", "GET_STATUS")
                client.EXEC_B("a secret", "GET_STATUS")
                client.EXEC_NB("a secret", "and another")
                with self.assertRaises(xmlrpc.client.Fault):
                    client.OPEN("a secret")
            driver.process.send_signal(signal.SIGTERM)
            _, told = driver.process.communicate(timeout=5)
        self.assertEqual(driver.process.returncode, 0)
        self.assertNotIn("secret", told)
        return told.splitlines()

    def test_trace_in_json(self):
        lines = [json.loads(line) for line in self.traced("--trace=json")]
        for line in lines:
            self.assertRegex(line.pop("time"), r"^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z$")
            self.assertIsInstance(line.pop("ms"), int)
        self.assertEqual(lines, [
            {"what": "exchange", "machine": "dispenser:1", "code": "0006", "module": 0, "out": [],
             "in": "E 0 1 0 0 0 0 0 F5 F5 4 0 0 0 0".split()},
            {"what": "call", "method": "EXEC_B", "command": "GET_STATUS", "ret_code": 0, "errors": []},
            {"what": "call", "method": "EXEC_B", "command": "GET_STATUS", "ret_code": 1, "errors": ["DE03400"]},
            {"what": "call", "method": "EXEC_NB", "command": "", "ret_code": 1, "errors": ["DE00337", "DE03103"]},
            {"what": "call", "method": "OPEN", "command": "", "fault": -32601}])

    def test_trace_for_people(self):
        time_of_day = r"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z"
        for line, expected in zip(self.traced("--trace"), (
                "exchange  machine dispenser:1  code 0006  module 0  out -  in E 0 1 0 0 0 0 0 F5 F5 4 0 0 0 0",
                "call  method EXEC_B  command GET_STATUS  ret_code 0  errors -",
                "call  method EXEC_B  command GET_STATUS  ret_code 1  errors DE03400",
                "call  method EXEC_NB  command -  ret_code 1  errors DE00337 DE03103",
                "call  method OPEN  command -  fault -32601"), strict=True):
            self.assertRegex(line, rf"^{time_of_day}  {expected}  ms \d+$")

    def test_help_and_version(self):
        told = run("--help")
        self.assertEqual(told.returncode, 0)
        for option in ("--host", "--port", "--machine", "--speed", "--state", "--firmware", "--token-file", "--open", "--trace",
                       "--once"):
            self.assertIn(option, told.stdout)
        self.assertRegex(told.stdout, r"(?m)^  -v, -V, --version ")
        self.assertNotIn("--help-all", told.stdout)
        self.assertRegex(told.stdout, r"(?m)^  --trace\[=json\] ")
        for columns in (40, 60, 100):
            lines = run("-h", env={**os.environ, "COLUMNS": str(columns)}).stdout.splitlines()
            self.assertEqual([line for line in lines if len(line) > columns], [])
            self.assertGreater(max(map(len, lines)), columns - 20)
        for option in ("--version", "-V", "-v"):
            told = run(option)
            self.assertEqual((told.returncode, told.stderr), (0, ""), option)
            self.assertRegex(told.stdout, r"^quvdriver \d+\.\d+\.\d+\n$", option)

    def test_output_that_cannot_be_written(self):
        text = "quvdriver: standard output: No space left on device\n"
        with open("/dev/full", "w", encoding="ascii") as full:
            for option in ("--help", "--version"):
                ended = subprocess.run([quvdriver_process.PROGRAM, option], stdout=full, stderr=subprocess.PIPE, text=True,
                                       timeout=60, check=False)
                self.assertEqual((ended.returncode, ended.stderr), (1, text))
            driver = subprocess.Popen([quvdriver_process.PROGRAM, "--port", "0"], stdout=full, stderr=subprocess.PIPE, text=True)
        self.assertEqual(driver.stderr.readline(), text)
        driver.send_signal(signal.SIGTERM)  # it serves all the same
        self.assertEqual((driver.communicate(timeout=60)[1], driver.returncode), ("", 0))


if __name__ == "__main__":
    quvdriver_process.main()
