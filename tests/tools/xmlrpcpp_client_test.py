# SPDX-License-Identifier: LGPL-3.0-or-later
"""The driver, called by the example of a client on XmlRpc++. Usage: xmlrpcpp_client_test.py QUVDRIVER TINTCLIENT"""

import http.client
import re
import subprocess
import sys
import unittest

import quvdriver_process
from quvdriver_process import Driver

CLIENT = ""


class ClientTest(unittest.TestCase):
    def setUp(self):
        self.driver = Driver("--machine", "dispenser", "--speed", "10")
        self.addCleanup(self.driver.end)

    def run_client(self, *words, port=None):
        result = subprocess.run([CLIENT, "127.0.0.1", str(port or self.driver.port), *words],
                                stdin=subprocess.DEVNULL, capture_output=True, text=True, timeout=20, check=False)
        return result.returncode, result.stdout, result.stderr

    def test_the_status(self):
        self.assertEqual(self.run_client(), (0, "status: Head 1 ready to dispense\n", ""))

    def test_a_tint_with_a_ticket_and_its_progress(self):
        code, out, err = self.run_client("B=50", "C=20")
        self.assertEqual((code, err), (0, ""))
        status, ticket, *progress, end = out.splitlines()
        self.assertEqual(status, "status: Head 1 ready to dispense")
        self.assertRegex(ticket, r"^ticket: [0-9a-f-]{36}$")
        self.assertEqual(end, "poured")
        self.assertGreater(len(progress), 3)
        percentages = []
        for line in progress:
            self.assertRegex(line, r"^\d+ %, 00:0\d left$")
            percentages.append(int(line.split()[0]))
        self.assertEqual(percentages, sorted(percentages))
        self.assertGreater(percentages[-1], 50)
        # what the firmware reports: 50 g of B and 20 g of C by the calibrations of the circuits 2 and 3
        with self.driver.client() as client:
            report = client.EXEC_B("GET_DISPENSED_FORMULA", 1, 1)["ret_value"]
        self.assertEqual(report["total_formula"]["ids"], ["2", "3"])
        self.assertEqual(report["dispensed_formula"]["quantities"], [5280, 2170])

    def test_a_refused_formula(self):
        code, out, err = self.run_client("NONE=1")
        self.assertEqual(code, 1)
        self.assertIn("DE03021: Formula: the dispenser does not have \"NONE\"", err)
        self.assertNotIn("poured", out)

    def test_a_pour_that_gave_less(self):
        levels = {"formula_type": 4, "quantity_unit": 3, "ids": ["B"]}
        with Driver("--machine", "dispenser", "--speed", "10000") as driver:
            with driver.client() as client:
                pour = {**levels, "quantities": [2500.0], "levels_policy": 0}  # 2000 are there
                self.assertTrue(client.EXEC_B("TINT", pour)["errors"])
                for _ in range(300):  # the driver believes in it; less than 1 is no refill that the firmware is told
                    envelope = client.EXEC_B("SET_LEVELS", True, {**levels, "quantities": [0.9]})
                    self.assertEqual(envelope["ret_code"], 0, envelope)
            code, out, err = self.run_client("B=100", port=driver.port)
        self.assertEqual(code, 1)
        self.assertRegex(err, r'^tintclient: DE03142: Less was poured than asked: "B" 0 of 100, in steps 0 of \d+\n$')
        self.assertNotIn("poured\n", out)

    def test_no_driver(self):
        self.driver.kill()
        code, out, err = self.run_client()
        self.assertEqual((code, out), (1, ""))
        self.assertTrue(err.endswith("tintclient: the driver does not reply\n"), err)

    def test_wrong_usage(self):
        self.assertEqual(self.run_client("B")[::2], (1, "tintclient: expected COLORANT=QUANTITY, not B\n"))

    def test_no_element_of_a_reply_is_without_an_end_tag(self):
        connection = http.client.HTTPConnection("127.0.0.1", self.driver.port, timeout=5)
        self.addCleanup(connection.close)
        connection.request("POST", "/", "<methodCall><methodName>EXEC_B</methodName><params><param><value>GET_STATUS"
                           "</value></param></params></methodCall>", {"Content-Type": "text/xml"})
        body = connection.getresponse().read()
        self.assertIn(b"<array><data></data></array>", body)
        self.assertIsNone(re.search(rb"<\w+ ?/>", body))


if __name__ == "__main__":
    quvdriver_process.PROGRAM = sys.argv.pop(1)
    CLIENT = sys.argv.pop(1)
    unittest.main()
