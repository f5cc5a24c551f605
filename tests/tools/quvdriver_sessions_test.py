# SPDX-License-Identifier: LGPL-3.0-or-later
"""Sessions, and several machines behind one driver, called by a client that makes its keys by itself."""

import json
import os
import random
import subprocess
import tempfile
import threading
import unittest

import quvdriver_process
from quvdriver_process import Driver, run

BASE = 50
MODULUS = 59
DISPENSER = 1
MIXER = 4


def formula(**quantities):
    """By colorants, in grams."""
    return {"formula_type": 4, "quantity_unit": 3, "ids": list(quantities),
            "quantities": [float(quantity) for quantity in quantities.values()]}


class Session:
    """A client that works on one machine."""

    def __init__(self, client, machine, kind=DISPENSER):
        self.client = client
        self.id = self.answer(client.EXEC_B("LOGIN", machine, "test", 0, kind))["session_id"]

    @staticmethod
    def answer(envelope):
        if envelope["ret_code"] != 0:
            raise AssertionError(envelope)
        return envelope["ret_value"]

    def certify(self):
        """Exchanges the keys, and tells whether the driver has the same."""
        secret = random.randint(2, 9)
        key = self.answer(self.client.EXEC_B("GET_KEY", self.id, str(pow(BASE, secret, MODULUS))))["driver_key"]
        shared = pow(int(key), secret, MODULUS)
        return self.answer(self.client.EXEC_B("CERTIFY_SESSION", self.id, str(shared)))["key_verify_result"]

    def call(self, name, *arguments):
        return self.client.EXEC_B(self.id, name, *arguments)

    def ask(self, name, *arguments):
        return self.answer(self.call(name, *arguments))


class SessionsTest(unittest.TestCase):
    def driver(self, *options):
        driver = Driver("--speed", "1000", *options)
        self.addCleanup(driver.kill)
        client = driver.client()
        self.addCleanup(client("close"))
        return driver, client

    def file(self, text, name="machine.json"):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        path = os.path.join(folder.name, name)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def assert_refused(self, envelope, ret_code, code):
        self.assertEqual((envelope["ret_code"], [error["code"] for error in envelope["errors"]]), (ret_code, [code]), envelope)

    def level(self, session, canister):
        """Out of the words in which the driver refuses to raise it."""
        refused = session.call("SET_LEVELS", True, {"formula_type": 3, "quantity_unit": 3, "ids": [canister],
                                                    "quantities": [100000.0]})
        words = refused["errors"][0]["text"]
        return round(float(words.split(" cannot hold ")[1].split(";")[0]) - 100000, 3)

    def test_a_session_from_login_to_logout(self):
        _, client = self.driver()
        session = Session(client, 1)
        self.assertRegex(session.id, "^[0-9a-f]{32}$")
        self.assertTrue(session.ask("GET_STATUS")["normal_wm"])  # before it is certified
        for _ in range(20):
            self.assertTrue(session.certify())
        self.assertTrue(session.ask("GET_STATUS")["normal_wm"])
        self.assertEqual(client.EXEC_B("LOGOUT", session.id)["ret_code"], 0)
        self.assert_refused(session.call("GET_STATUS"), 1, "DE03400")
        self.assert_refused(client.EXEC_B("LOGOUT", session.id), 1, "DE03400")

    def test_a_client_without_the_key_is_not_certified(self):
        _, client = self.driver()
        session = Session(client, 1)
        self.assert_refused(client.EXEC_B("CERTIFY_SESSION", session.id, "1"), 1, "DE03404")
        key = Session.answer(client.EXEC_B("GET_KEY", session.id, str(pow(BASE, 3, MODULUS))))["driver_key"]
        wrong = (pow(int(key), 3, MODULUS) + 1) % MODULUS
        self.assertEqual(Session.answer(client.EXEC_B("CERTIFY_SESSION", session.id, str(wrong))),
                         {"key_verify_result": False})
        self.assert_refused(client.EXEC_B("CERTIFY_SESSION", session.id, "1"), 1, "DE03404")
        self.assertTrue(session.certify())

    def test_a_leading_text_that_is_no_sessions_is_refused(self):
        _, client = self.driver()
        self.assert_refused(client.EXEC_B("leading", "GET_STATUS"), 1, "DE03400")
        self.assert_refused(client.EXEC_NB("leading", "RESET"), 1, "DE03400")
        self.assert_refused(client.EXEC_NC("leading", "GET_STATUS", {"cmd_parameters": []}, 10, 10), 1, "DE03400")

    def test_a_command_that_there_is_not_is_named_without_the_session(self):
        _, client = self.driver()
        session = Session(client, 1)
        refused = session.call("GET_STATSU")
        self.assertEqual((refused["ret_code"], refused["errors"][-1]["code"]), (1, "DE03103"))
        self.assertIn('"GET_STATSU"', refused["errors"][-1]["text"])
        self.assertNotIn(session.id, json.dumps(refused, default=str))

    def test_built_in_machines_given_twice_have_ids_of_their_own(self):
        _, client = self.driver("--machine", "dispenser", "--machine", "dispenser", "--machine", "turntable",
                                "--machine", "dispenser:9", "--machine", "mixer", "--machine", "mixer")
        answer = Session.answer(client.EXEC_B("GET_ACTIVE_DISP"))
        self.assertEqual([(status["dispenser_info"]["disp_id"], status["active"]) for status in answer["disp_list"]],
                         [(1, True), (2, False), (3, False), (9, False)])
        self.assertEqual([(status["mixer_info"]["mixer_id"], status["active"]) for status in answer["mixer_list"]],
                         [(2, True), (1, False)])
        self.assertEqual(answer["disp_list"][2]["dispenser_info"]["serial_number"], "SIM-T-0001")
        self.assertEqual(Session.answer(client.EXEC_B("GET_DISP_LIST")), {"disp_list": answer["disp_list"], "mixer_list": []})
        self.assertEqual(Session.answer(client.EXEC_B("GET_MIXER_LIST")), {"disp_list": [], "mixer_list": answer["mixer_list"]})

    def test_two_files_of_the_same_id_are_refused(self):
        path = self.file('{"type": "dispenser", "id": 1}')
        for first, second in ((path, path), ("dispenser", path)):
            ended = run("--machine", first, "--machine", second)
            self.assertEqual((ended.returncode, ended.stdout), (2, ""))
            self.assertIn("there are two dispensers with the ID 1", ended.stderr)

    def test_the_active_machine_gets_what_has_no_session(self):
        _, client = self.driver("--machine", "dispenser", "--machine", "dual", "--machine", "mixer")
        self.assertFalse(Session.answer(client.EXEC_B("GET_STATUS"))["head2_can_dose"])
        Session.answer(client.EXEC_B("SET_ACTIVE_DISP", 4, 1))
        self.assertTrue(Session.answer(client.EXEC_B("GET_STATUS"))["head2_can_dose"])
        status = Session.answer(client.EXEC_B("GET_DISP_STATUS"))
        self.assertTrue(status["pos_ready"])
        self.assertEqual(status["driver_status"]["dispenser_info"]["disp_id"], 4)
        self.assertFalse(Session(client, 1).ask("GET_DISP_STATUS")["pos_ready"])  # not the active one
        self.assertFalse(Session(client, 1).ask("GET_STATUS")["head2_can_dose"])
        Session.answer(client.EXEC_B("SET_ACTIVE_MACHINE", {"id": 1, "machine": 1}, {"id": 4, "machine": 1}))
        self.assertFalse(Session.answer(client.EXEC_B("GET_STATUS"))["head2_can_dose"])
        refused = client.EXEC_B("SET_ACTIVE_DISP", 2, 1)
        self.assert_refused(refused, 5, "DE03401")
        self.assertEqual(refused["errors"][0]["text"],
                         "The driver has no dispenser with the ID 2; it has dispenser:1, dispenser:4, mixer:2")

    def test_the_levels_are_those_of_the_sessions_machine(self):
        _, client = self.driver("--machine", "dispenser", "--machine", "dispenser")
        first, second = Session(client, 1), Session(client, 2)
        second.ask("TINT", formula(B=10))
        self.assertEqual((self.level(first, 2), self.level(second, 2)), (2000, 1990))

    def test_a_mixer_by_its_session(self):
        _, client = self.driver()
        mixer = Session(client, 2, MIXER)
        self.assertEqual(mixer.ask("READ_FW_VERSION", 0)["app_version"], [100, 1, 1, 0, 0, 1])
        self.assertEqual(mixer.call("RESET")["ret_code"], 0)
        self.assertFalse(Session(client, 1).ask("GET_STATUS")["resetting"])
        self.assert_refused(mixer.call("GET_STATUS"), 5, "DE03402")
        tint = {"command": ["TINT", formula(B=10)]}
        self.assert_refused(mixer.call("GET_CMD_EST_EXEC_TIME", tint), 5, "DE03402")
        self.assertGreater(Session.answer(client.EXEC_B("GET_CMD_EST_EXEC_TIME", tint))["exec_time"], 0)

    def test_what_the_firmware_tells_of_itself(self):
        _, client = self.driver()
        self.assertEqual(Session.answer(client.EXEC_B("READ_FW_VERSION", 0)),
                         {"board_address": -1, "app_version": [63, 1, 1, 0, 0, 40], "boot_version": []})
        self.assertEqual(Session.answer(client.EXEC_B("READ_FW_VERSION", 16))["app_version"], [63, 1, 1, 0, 0, 40])
        self.assert_refused(client.EXEC_B("READ_FW_VERSION", 17), 4, "DE03106")
        table = Session.answer(client.EXEC_B("GET_FW_COMMANDS", 1))["fw_commands"]
        self.assertIn({"cmd_code": 0x17, "cmd_status": 2, "cmd_exec": 1}, table)
        self.assertIn({"cmd_code": 0x0F, "cmd_status": 1, "cmd_exec": 1}, table)
        places = Session.answer(client.EXEC_B("GET_CMD_ID", 0x17))["command_ids"]
        self.assertEqual([table[place - 1]["cmd_code"] for place in places], [0x17])
        self.assertEqual(Session.answer(client.EXEC_B("GET_CMD_ID", 0x99)), {"command_ids": []})

    def test_a_firmware_is_not_asked_for_what_its_version_does_not_have(self):
        path = self.file('{"type": "dispenser", "firmware_version": [63, 1, 1, 0, 0, 32]}')
        _, client = self.driver("--machine", path)
        self.assertEqual(Session.answer(client.EXEC_B("READ_FW_VERSION", 0))["app_version"], [63, 1, 1, 0, 0, 32])
        self.assert_refused(client.EXEC_B("SW_PROCESS_TOGGLE", 1, 1), 3, "DE03406")
        self.assert_refused(client.EXEC_B("SLAVE_JUMP", 12, 2), 3, "DE03407")

    def test_a_tint_goes_by_the_later_code_on_a_firmware_that_has_it(self):
        machine = {"type": "dispenser", "colorants": [{"code": "B"}], "canisters": [
            {"id": 1, "colorant": "B", "maximum": 3000, "current": 2000, "circuits": [
                {"id": 1, "position_id": 1, "calibration": [{"steps": 1000, "quantity": 10, "speed": 50}]}]}]}
        for version, code in (([63, 1, 1, 0, 0, 40], "0017"), ([63, 1, 1, 0, 0, 41], "0035"), (None, "0017")):
            if version:
                machine["firmware_version"] = version
            else:
                del machine["firmware_version"]
            with Driver("--speed", "1000", "--trace=json", "--machine", self.file(json.dumps(machine)),
                        stderr=subprocess.PIPE) as driver:
                with driver.client() as client:
                    session = Session(client, 0)
                    session.ask("TINT", formula(B=10))
                    self.assertEqual(self.level(session, 1), 1990)
                driver.process.terminate()
                _, told = driver.process.communicate(timeout=10)
            codes = [line["code"] for line in map(json.loads, told.splitlines()) if line["what"] == "exchange"]
            self.assertIn(code, codes)
            self.assertFalse({"0017", "0035"} - {code} & set(codes), codes)

    def test_each_machine_keeps_its_configuration(self):
        state = os.path.join(os.path.dirname(self.file("")), "state.json")
        options = ("--state", state, "--machine", "dispenser", "--machine", "dispenser")
        driver, client = self.driver(*options)
        second = Session(client, 2)
        second.ask("WRITE_CONFIG_ROW", {"cmd_value": 7, "cmd_parameters": "1,61,11,41"})
        second.ask("FINALIZE_CONFIG")
        driver.kill()
        with open(state, encoding="utf-8") as file:
            self.assertEqual(list(json.load(file)), ["dispenser:2"])
        _, client = self.driver(*options)
        told = [Session(client, machine).ask("READ_CONFIG_ROW", 7, 1)["cmd_parameters"] for machine in (1, 2)]
        self.assertEqual(told, ["0,60,10,40", "1,61,11,41"])

    def test_three_clients_at_once_get_their_own_answers(self):
        driver, _ = self.driver("--machine", "dispenser", "--machine", "dual", "--machine", "mixer")
        rounds = 25
        failures = []

        def drive(machine, kind, work):
            try:
                with driver.client() as client:
                    session = Session(client, machine, kind)
                    if not session.certify():
                        raise AssertionError("not certified")
                    for turn in range(rounds):
                        work(session, turn)
            except Exception as error:  # pylint: disable=broad-except
                failures.append(repr(error))

        def pour(colorant, heads):
            def work(session, turn):
                session.ask("TINT", formula(**{colorant: 1 + turn % 3}))
                if session.ask("GET_STATUS")["head2_can_dose"] != (heads == 2):
                    raise AssertionError("the status of another machine")
                report = session.ask("GET_DISPENSED_FORMULA", 4, 3)["dispensed_formula"]
                if report["ids"] != [colorant] or abs(report["quantities"][0] - (1 + turn % 3)) > 0.01:
                    raise AssertionError(report)
            return work

        def mix(session, _turn):
            session.call("RESET")
            if session.ask("READ_FW_VERSION", 0)["app_version"][0] != 100:
                raise AssertionError("the version of another machine")

        clients = [threading.Thread(target=drive, args=arguments) for arguments in (
            (1, DISPENSER, pour("B", 1)), (4, DISPENSER, pour("C", 2)), (2, MIXER, mix))]
        for client in clients:
            client.start()
        for client in clients:
            client.join()
        self.assertEqual(failures, [])
        with driver.client() as client:
            poured = sum(1 + turn % 3 for turn in range(rounds))
            first, dual = Session(client, 1), Session(client, 4)
            self.assertAlmostEqual(self.level(first, 2), 2000 - poured, delta=0.5)
            self.assertEqual(self.level(first, 3), 2000)
            self.assertEqual(self.level(dual, 2), 2000)
            self.assertAlmostEqual(self.level(dual, 3), 2000 - poured, delta=0.5)


if __name__ == "__main__":
    quvdriver_process.main()
