# SPDX-License-Identifier: LGPL-3.0-or-later
"""quvdriver --scenario: what clients hear of machines with which something goes wrong. Usage: quvdriver_scenario_test.py QUVDRIVER"""

import json
import os
import tempfile
import time
import unittest

import quvdriver_process
from quvdriver_process import Driver, run

CIRCUITS = [{"id": number, "position_id": number,
             "dosing_motor": {"steps_per_stroke": 400},
             "calibration": [{"steps": 1000, "quantity": 10, "speed": 50}]} for number in (1, 2)]
MACHINE = {
    "type": "dispenser", "conf_structure_name": "TRIAL",
    "colorants": [{"code": "A"}, {"code": "B"}],
    "canisters": [{"id": 10 + number, "colorant": code, "maximum": 1000, "current": 500, "level_sensor": {},
                   "circuits": [circuit]}
                  for number, code, circuit in zip((1, 2), "AB", CIRCUITS)]}


def tint(position, quantity):
    return {"formula_type": 1, "quantity_unit": 3, "ids": [position], "quantities": [quantity]}


class Scenario(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def written(self, name, content):
        path = os.path.join(self.folder, name)
        with open(path, "w", encoding="utf-8") as file:
            json.dump(content, file)
        return path

    def driver(self, events, *options, machine=None):
        return Driver("--scenario", self.written("scenario.json", {"events": events}),
                      "--machine", machine or self.written("machine.json", MACHINE), *options)

    def done(self, client, *call):
        envelope = client.EXEC_B(*call)
        self.assertEqual(envelope["ret_code"], 0, envelope)
        return envelope["ret_value"]

    def status_with(self, client, **flags):
        """The first status that has the flags."""
        end = time.monotonic() + 30
        while True:
            status = self.done(client, "GET_STATUS")
            if all(status[name] == value for name, value in flags.items()):
                return status
            self.assertLess(time.monotonic(), end, status)
            time.sleep(0.005)

    def hardware_errors(self, client):
        """Code and module of each."""
        packets = self.done(client, "ERRORS_NUM")["packets_count"]
        return [(error["code"], error["module"]) for index in range(1, packets + 1)
                for error in self.done(client, "GET_ERROR_PKT", index)["fw_errors"] if error["error_type"] == 2]

    def test_the_emergency_button_ends_a_reset_and_is_heard_of(self):
        with self.driver([{"at": 2, "event": "emergency", "for": 4}], "--speed", "2") as driver, \
                driver.client() as client:
            self.assertEqual(client.EXEC_NB("RESET")["ret_code"], 0)
            status = self.status_with(client, emergency_pressed=True)
            self.assertEqual((status["resetting"], status["head1_can_dose"], status["dispenser_not_ready"],
                              status["hw_error"], status["new_buffered_error"]), (False, False, True, True, True))
            sensors = self.done(client, "GET_SENSORS_STATUS")
            self.assertEqual((sensors["emergency_btn_pressed"], sensors["MASTER_48V"], sensors["MASTER_48V_SW"],
                              sensors["MASTER_24V"]), (True, True, False, True))
            refused = client.EXEC_B("RESET")
            self.assertEqual((refused["ret_code"], refused["errors"][0]["code"]), (4, "DE03106"))
            self.assertIn("Machine not available", refused["errors"][0]["text"])
            status = self.status_with(client, emergency_pressed=False)
            self.assertEqual((status["head1_can_dose"], status["dispenser_not_ready"], status["hw_error"]),
                             (True, False, True))
            self.assertEqual(self.hardware_errors(client), [(1, 0)])
            self.assertFalse(self.done(client, "GET_STATUS")["new_buffered_error"])
            self.done(client, "CLEAR_ERRORS")
            self.assertEqual(self.done(client, "ERRORS_NUM"), {"num_errors": 0, "packets_count": 0})
            self.assertFalse(self.done(client, "GET_STATUS")["hw_error"])
            self.done(client, "RESET")

    def test_asking_for_a_packet_clears_nothing(self):
        with self.driver([{"at": 0, "event": "emergency"}]) as driver, driver.client() as client:
            for wrong in ((), (0,), (245,), (-1,)):
                refused = client.EXEC_B("GET_ERROR_PKT", *wrong)
                self.assertEqual((refused["ret_code"], refused["errors"][0]["code"]), (1, "DE03420"))
            self.assertEqual(client.EXEC_B("GET_ERROR_PKT", 2)["ret_code"], 4)
            self.assertEqual(self.hardware_errors(client), [(1, 0)])

    def test_all_errors_are_listed_until_somebody_clears_them(self):
        events = [{"at": 0, "event": "emergency", "for": 1}, {"at": 0, "event": "circuit_blocked", "circuit": 2}]
        with self.driver(events, "--speed", "1000") as driver, driver.client() as client:
            self.status_with(client, emergency_pressed=False)
            for _ in range(6):
                client.EXEC_B("TINT", tint(2, 1))
            self.assertEqual(self.done(client, "ERRORS_NUM"), {"num_errors": 7, "packets_count": 2})
            for _ in range(2):
                errors = self.done(client, "GET_ERRORS")["fw_errors"]
                self.assertEqual([(error["error_type"], error["code"], error["module"]) for error in errors],
                                 [(2, 1, 0)] + 6 * [(2, 3, 2)])
            self.done(client, "CLEAR_ERRORS")
            self.assertEqual(self.done(client, "GET_ERRORS"), {"fw_errors": []})

    def test_who_stirs_all_is_told_that_the_button_ended_it(self):
        content = json.loads(json.dumps(MACHINE))
        for canister in content["canisters"]:
            canister["circuits"][0]["stirring_motor"] = {}
        with self.driver([{"at": 50, "event": "offline"}], "--speed", "10",
                         machine=self.written("stirring.json", content)) as driver, driver.client() as client:
            told = client.EXEC_B("STIR_ALL", 600)
            self.assertEqual((told["ret_code"], [error["code"] for error in told["errors"]]), (7, ["DE03417"]), told)
            self.assertIn("the offline button is pressed", told["errors"][0]["text"])

    def test_a_refused_reset_stops_no_procedure(self):
        content = json.loads(json.dumps(MACHINE))
        content["canisters"][0]["circuits"][0]["stirring_motor"] = {}
        with self.driver([{"at": 0, "event": "door_open"}],
                         machine=self.written("stirring.json", content)) as driver, driver.client() as client:
            ticket = client.EXEC_NB("STIR_ALL", 600)["ret_value"]["ticket_id"]
            end = time.monotonic() + 30
            while not self.done(client, "GET_STATUS", 1)["stirring"]:
                self.assertLess(time.monotonic(), end)
            self.assertEqual(client.EXEC_B("RESET")["ret_code"], 4)
            self.assertGreater(self.done(client, "GET_CMD_STATUS", ticket)["status"], 0)
            self.assertTrue(self.done(client, "GET_STATUS", 1)["stirring"])
            self.done(client, "STOP")
            while (told := self.done(client, "GET_CMD_STATUS", ticket))["status"] > 0:
                self.assertLess(time.monotonic(), end)
            self.assertEqual((told["status"], told["cmd_answer"]["errors"][0]["code"]), (-3, "DE03410"))

    def test_door_can_and_offline_show_while_they_last(self):
        events = [{"at": 0, "event": "door_open"}, {"at": 0, "event": "can_present"}, {"at": 0, "event": "offline"}]
        with self.driver(events) as driver, driver.client() as client:
            status = self.done(client, "GET_STATUS")
            self.assertEqual((status["door_open"], status["can_present"], status["offline_pressed"],
                              status["head1_can_dose"]), (True, True, True, False))
            sensors = self.done(client, "GET_SENSORS_STATUS")
            self.assertEqual((sensors["can_present"], sensors["offline_pressed"]), (True, True))
            self.assertEqual(client.EXEC_B("TINT", tint(1, 1))["ret_code"], 4)

    def test_an_open_door_refuses_a_reset_and_changes_nothing(self):
        content = json.loads(json.dumps(MACHINE))
        content["devices"] = {"autocap": {}}
        content["canisters"][0]["circuits"][0]["stirring_motor"] = {}
        machine = self.written("stirred.json", content)
        with self.driver([{"at": 0, "event": "door_open"}], machine=machine) as driver, driver.client() as client:
            self.done(client, "STIRRING", 1, 60515)  # without end
            refused = client.EXEC_B("RESET")
            self.assertEqual((refused["ret_code"], refused["errors"][0]["code"]), (4, "DE03106"))
            self.assertIn("Machine not available", refused["errors"][0]["text"])
            self.assertTrue(self.done(client, "GET_STATUS", 1)["stirring"])
            self.assertFalse(self.done(client, "GET_STATUS")["resetting"])
            self.assertTrue(self.done(client, "GET_SENSORS_STATUS")["cap_close"])
        with self.driver([{"at": 0, "event": "door_open"}], machine="mixer") as driver, driver.client() as client:
            self.assertEqual(client.EXEC_B("RESET")["ret_code"], 4)
            self.assertFalse(self.done(client, "MIXER_STATUS")["repositioning"])

    def test_a_blocked_circuit_pours_nothing_and_is_told(self):
        with self.driver([{"at": 0, "event": "circuit_blocked", "circuit": 2}], "--speed", "1000") as driver, \
                driver.client() as client:
            poured = client.EXEC_B("TINT", {"formula_type": 1, "quantity_unit": 3, "ids": [1, 2],
                                            "quantities": [10, 10]})
            self.assertEqual(poured["ret_code"], 0)
            self.assertEqual([error["code"] for error in poured["errors"]], ["DE03142"])
            self.assertIn("0 of 10", poured["errors"][0]["text"])
            self.assertEqual(self.hardware_errors(client), [(3, 2)])
            self.assertTrue(self.done(client, "GET_STATUS", 2)["stall_high"])
            self.assertFalse(self.done(client, "GET_STATUS", 1)["stall_high"])
            stalled = self.done(client, "GET_ACTIVE_CIRCUITS", 13)
            self.assertEqual((stalled["circuit_process"], stalled["positions_id"]), (13, [2]))

    def test_an_empty_canister_is_an_error_in_the_buffer(self):
        content = json.loads(json.dumps(MACHINE))
        content["canisters"][0]["current"] = 5
        poor = self.written("poor.json", content)
        with self.driver([], "--speed", "1000", machine=poor) as driver, driver.client() as client:
            client.EXEC_B("TINT", {**tint(1, 10), "levels_policy": 0})
            errors = self.hardware_errors(client)
            status = self.done(client, "GET_STATUS", 1)
        self.assertEqual(errors, [(2, 1)])
        self.assertTrue(status["canister_lvl_critical"])

    def test_a_sensor_lies(self):
        with self.driver([{"at": 1, "event": "sensor_lies", "canister": 12}], "--speed", "10") as driver, \
                driver.client() as client:
            self.status_with(client, canister_lvl_critical=True)
            self.assertEqual(self.done(client, "GET_ACTIVE_CIRCUITS", 12)["positions_id"], [2])
            self.assertTrue(self.done(client, "GET_STATUS", 2)["canister_lvl_critical"])
            self.assertFalse(self.done(client, "GET_STATUS", 1)["canister_lvl_critical"])

    def test_a_board_refuses(self):
        with self.driver([{"at": 0, "event": "board_refuses", "board": 2}], "--speed", "1000") as driver, \
                driver.client() as client:
            for call in (("GET_STATUS", 2), ("TINT", tint(2, 1))):
                refused = client.EXEC_B(*call)
                self.assertEqual(refused["ret_code"], 4)
                self.assertTrue(refused["errors"][0]["text"].endswith("; the board at 2 refuses"), refused)
            self.done(client, "TINT", tint(1, 1))
            self.assertEqual(self.hardware_errors(client), [(4, 2)])

    def test_the_link_is_lost_and_comes_back(self):
        with self.driver([{"at": 0, "event": "link_lost", "for": 10}], "--speed", "20") as driver, \
                driver.client() as client:
            lost = client.EXEC_B("GET_STATUS")
            self.assertEqual((lost["ret_code"], lost["errors"][0]["code"], lost["errors"][0]["text"]),
                             (8, "DE03110", "the firmware gives no reply"))
            end = time.monotonic() + 30
            while client.EXEC_B("GET_STATUS")["ret_code"] == 8:
                self.assertLess(time.monotonic(), end)
                time.sleep(0.01)
            self.assertTrue(self.done(client, "GET_STATUS")["head1_can_dose"])

    def test_a_pour_outlives_a_lost_link(self):
        with self.driver([{"at": 90, "event": "link_lost", "for": 10}], "--speed", "50") as driver, \
                driver.client() as client:
            ticket = client.EXEC_NB("TINT", tint(1, 200))["ret_value"]["ticket_id"]
            self.status_with(client, tinting=True)
            end = time.monotonic() + 30
            while (asked := client.EXEC_B("GET_STATUS"))["ret_code"] == 0:
                self.assertTrue(asked["ret_value"]["tinting"], "the pour was over before")
                self.assertLess(time.monotonic(), end)
            while (told := self.done(client, "GET_CMD_STATUS", ticket))["status"] > 0:
                self.assertLess(time.monotonic(), end)
                time.sleep(0.005)
            self.assertEqual((told["status"], told["cmd_answer"]["ret_code"]), (0, 0), told)
            canister, _ = self.done(client, "GET_CANISTER_LIST")["canister_list"]
            self.assertAlmostEqual(canister["cur_q"], 300, 6)

    def test_each_machine_has_its_own_events(self):
        events = [{"at": 0, "event": "emergency", "machine": "mixer"}, {"at": 0, "event": "can_present"}]
        with self.driver(events, "--machine", "mixer") as driver, driver.client() as client:
            status = self.done(client, "GET_STATUS")
            self.assertEqual((status["emergency_pressed"], status["can_present"]), (False, True))

    def test_measures_are_told(self):
        with self.driver([]) as driver, driver.client() as client:
            measured = self.done(client, "GET_SENSOR_DATA", 0, 0)["sensor_data"]
            self.assertEqual((measured["sensor_type"], measured["measure_type"]), (0, 0))
            self.assertAlmostEqual(measured["value"], 21, delta=0.5)
            self.assertEqual(client.EXEC_B("GET_SENSOR_DATA", 21, 0)["ret_code"], 4)

    def test_faults_of_the_machine_file_stand(self):
        faulty = self.written("faulty.json", {**MACHINE, "faults": [{"event": "circuit_blocked", "circuit": 1}]})
        with Driver("--machine", faulty) as driver, driver.client() as client:
            self.assertEqual(self.done(client, "GET_ACTIVE_CIRCUITS", 10)["positions_id"], [1])
        wrong = self.written("wrong.json", {**MACHINE, "faults": [{"event": "circuit_blocked", "circuit": 9}]})
        ended = run("--machine", wrong)
        self.assertEqual((ended.returncode, ended.stdout), (1, ""))
        self.assertIn("faults[0].circuit: the machine has no circuit at position 9", ended.stderr)

    def test_scenarios_that_are_refused(self):
        for content, text in (({"events": [{"at": 1, "event": "rain"}]}, "events[0].event: must be one of emergency, "),
                              ({"events": [{"at": 1, "event": "offline", "machine": "dispenser:2"}]},
                               "events[0].machine: the driver has no such machine")):
            path = self.written("wrong.json", content)
            ended = run("--scenario", path)
            self.assertEqual((ended.returncode, ended.stdout), (1, ""))
            self.assertIn('quvdriver: Scenario "', ended.stderr)
            self.assertIn(text, ended.stderr)
        ended = run("--scenario", os.path.join(self.folder, "none.json"))
        self.assertEqual(ended.returncode, 1)
        ended = run("--scenario", "")
        self.assertEqual(ended.returncode, 2)
        self.assertIn("--scenario must be a file", ended.stderr)


if __name__ == "__main__":
    quvdriver_process.main()
