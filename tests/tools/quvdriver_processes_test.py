# SPDX-License-Identifier: LGPL-3.0-or-later
"""What a dispenser does by itself: stirring, recirculation, cleaning, its modes and its level sensors."""

import json
import os
import tempfile
import time
import unittest

import quvdriver_process
from quvdriver_process import Driver

SPEED = 100
ENDLESS = 60515
FORMULA = {"formula_type": 1, "quantity_unit": 3, "ids": [1], "quantities": [10.0]}


def machine(**members):
    """Four circuits at the positions 1 to 4; all but the last can be stirred. A quantity of 10 takes 1000 steps."""
    canisters = []
    for number in range(1, 5):
        circuit = {
            "id": number, "position_id": number,
            "dosing_motor": {"steps_per_stroke": 400},
            "calibration": [{"steps": 1000, "quantity": 10, "speed": 50}],
            "recirculation_motor": {"activity": 100, "pause": "100 s"},
            "cleaning_motors": [{"duration": 30}],
        }
        if number < 4:
            circuit["stirring_motor"] = {"activity": 100, "pause": "100 s"}
        canisters.append({"id": number, "maximum": 3000, "current": 500, "circuits": [circuit]})
    canisters[1]["level_sensor"] = {}
    return {"type": "dispenser", "stirring_parallelism": 2, "recirculating_parallelism": 4, "canisters": canisters,
            **members}


class ProcessesTest(unittest.TestCase):
    def driver(self, **members):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        path = os.path.join(folder.name, "machine.json")
        with open(path, "w", encoding="utf-8") as file:
            json.dump(machine(**members), file)
        return Driver("--machine", path, "--speed", str(SPEED))

    def call(self, client, *params):
        envelope = client.EXEC_B(*params)
        self.assertEqual((envelope["ret_code"], envelope["errors"]), (0, []), params)
        return envelope["ret_value"]

    def call_in_background(self, client, *params):
        begun = client.EXEC_NB(*params)
        self.assertEqual(begun["ret_code"], 0, begun)
        return begun["ret_value"]["ticket_id"]

    def refused(self, client, reason, *params):
        envelope = client.EXEC_B(*params)
        self.assertEqual((envelope["ret_code"], envelope["errors"][0]["code"]), (4, "DE03106"), params)
        self.assertIn(reason, envelope["errors"][0]["text"], params)

    def status(self, client, position=0):
        return self.call(client, "GET_STATUS", position)

    def at(self, client, process):
        """The positions whose own status tells the process."""
        return [position for position in range(1, 5) if self.status(client, position)[process]]

    def wait(self, condition, what):
        end = time.monotonic() + 30
        while not condition():
            self.assertLess(time.monotonic(), end, what)
            time.sleep(0.01)

    def test_stirring_in_the_background_ends_by_itself_and_by_0(self):
        with self.driver() as driver, driver.client() as client:
            self.call(client, "STIRRING", 1, ENDLESS)
            self.call(client, "STIRRING", 2, 30)  # 0.3 s
            self.wait(lambda: self.at(client, "stirring") == [1], "the end of 30 s")
            told = self.status(client)
            self.assertEqual((told["stirring"], told["head1_can_dose"]), (False, True))
            self.call(client, "TINT", FORMULA)
            self.assertEqual(self.at(client, "stirring"), [1])
            self.call(client, "STIRRING", 1, 0)
            self.assertEqual(self.at(client, "stirring"), [])
            self.call(client, "STIRRING", 0, ENDLESS)
            self.assertEqual(self.at(client, "stirring"), [1, 2, 3])
            self.assertTrue(self.status(client)["stirring"])
            self.call(client, "STIRRING", 0, 0)
            self.assertEqual(self.at(client, "stirring"), [])
            self.refused(client, "Wrong position ID", "STIRRING", 4, 30)

    def test_busy_stirring_keeps_all_else_from_beginning(self):
        with self.driver() as driver, driver.client() as client:
            self.call(client, "STIRRING", 1, ENDLESS, True)
            told = self.status(client)
            self.assertEqual((told["stirring"], told["head1_can_dose"]), (True, False))
            for command in (("TINT", FORMULA), ("RECIRCULATION", 2, 30), ("CLEANING", 1), ("NOZZLE_CLEAN", 0, 30),
                            ("STIRRING", 2, 30), ("GET_LEVEL_SENSORS",)):
                self.refused(client, "not available", *command)
            self.call(client, "STIRRING", 1, 0)
            self.assertFalse(self.status(client)["stirring"])
            self.call(client, "STIRRING", 1, 30, True)
            self.wait(lambda: not self.status(client)["stirring"], "the end of 30 s")
            self.call(client, "TINT", FORMULA)
            self.call(client, "STIRRING", 1, ENDLESS, True)
            self.call(client, "RESET")  # ends all
            told = self.status(client)
            self.assertEqual((told["stirring"], told["resetting"]), (False, True))

    def test_all_circuits_are_stirred_in_batches(self):
        with self.driver() as driver, driver.client() as client:
            def stirring():
                answers = self.call(client, "GET_CIRCUITS_STATUS")["circuits_status_answers"]
                self.assertEqual([answer["position_id"] for answer in answers], [1, 2, 3, 4])
                return [answer["position_id"] for answer in answers if answer["status_answer"]["stirring"]]
            ticket = self.call_in_background(client, "STIR_ALL", 100, 0, False, 0)  # 1 s, two at once
            seen = []
            while (told := self.call(client, "GET_CMD_STATUS", ticket))["status"] > 0:
                if (now := stirring()) and (not seen or now != seen[-1]):
                    seen.append(now)
            self.assertEqual((told["status"], told["cmd_answer"]["ret_code"]), (0, 0), told)
            self.assertEqual(stirring(), [])
            self.assertIn([1, 2], seen)
            self.assertEqual(seen[-1], [3])
            self.assertNotIn(4, sum(seen, []))  # it has no stirrer
            one = self.call(client, "GET_CIRCUITS_STATUS", 3)["circuits_status_answers"]
            self.assertEqual([answer["position_id"] for answer in one], [3])

    def test_a_series_of_stirring_is_stopped(self):
        with self.driver() as driver, driver.client() as client:
            ticket = self.call_in_background(client, "STIR_ALL", ENDLESS)
            self.wait(lambda: self.at(client, "stirring") == [1], "the first circuit")
            self.call(client, "STOP")
            self.wait(lambda: self.call(client, "GET_CMD_STATUS", ticket)["status"] <= 0, "the end of the series")
            told = self.call(client, "GET_CMD_STATUS", ticket)
            self.assertEqual((told["status"], told["cmd_answer"]["errors"][0]["code"]), (-3, "DE03410"))
            self.assertEqual(self.at(client, "stirring"), [])

    def test_recirculation_gives_way_to_a_pour(self):
        with self.driver() as driver, driver.client() as client:
            self.call(client, "RECIRCULATION", 0, ENDLESS)
            self.assertEqual(self.at(client, "recirculating"), [1, 2, 3, 4])
            self.call(client, "TINT", FORMULA)
            self.assertEqual(self.at(client, "recirculating"), [2, 3, 4])
            self.call(client, "RECIRCULATION", 3, 0)
            self.assertEqual(self.at(client, "recirculating"), [2, 4])
            self.call(client, "RECIRCULATION", 0, 0)
            self.call(client, "RECIRCULATION", 1, ENDLESS, 50, 0, True)
            self.assertTrue(self.status(client)["recirculating"])
            self.refused(client, "not available", "TINT", FORMULA)
            self.call(client, "RECIRCULATION", 1, 0)
            self.call(client, "RECIRCULATION", 1, 30, 245, 0, True)
            self.wait(lambda: not self.status(client)["recirculating"], "the end of 30 s")
            self.refused(client, "Bad command parameters", "RECIRCULATION", 1, 30, 150)
            self.refused(client, "Bad command parameters", "RECIRCULATION", 1, 30, 50, 1)  # strokes

    def test_strokes_of_a_machine_that_counts_them(self):
        with self.driver(model=6) as driver, driver.client() as client:
            self.call(client, "RECIRCULATION", 1, 20, 10, 1)  # 20 of 12 s each: 2.4 s
            self.assertEqual(self.at(client, "recirculating"), [1])
            self.wait(lambda: self.at(client, "recirculating") == [], "the end of 20 strokes")

    def test_two_canisters_are_stirred_at_once_and_no_third(self):
        with self.driver() as driver, driver.client() as client:
            self.call(client, "STIRRING", 1, ENDLESS)
            self.call(client, "STIRRING", 2, ENDLESS)
            self.refused(client, "no more circuits than 2 are stirred at once", "STIRRING", 3, 30)
            self.call(client, "STIRRING", 1, 0)
            self.call(client, "STIRRING", 3, ENDLESS)
            self.assertEqual(self.at(client, "stirring"), [2, 3])

    def test_a_brush_keeps_all_else_from_beginning(self):
        with self.driver(devices={"brush": {}}) as driver, driver.client() as client:
            self.call(client, "CLEANING", 0, 50, ENDLESS, 0, True)
            self.assertTrue(self.status(client)["cleaning"])
            self.assertEqual(self.at(client, "cleaning"), [1, 2, 3, 4])
            self.refused(client, "the machine is cleaning", "STIRRING", 1, 30)
            self.refused(client, "the machine is cleaning", "TINT", FORMULA)

    def test_a_cleaning_in_the_background_leaves_stirring_alone(self):
        with self.driver(devices={"brush": {}}) as driver, driver.client() as client:
            self.call(client, "CLEANING", 1, 50, ENDLESS)
            self.assertTrue(self.status(client)["cleaning"])
            self.call(client, "STIRRING", 1, ENDLESS)
            self.assertEqual(self.at(client, "stirring"), [1])
            self.refused(client, "not available", "TINT", FORMULA)

    def test_nozzles_are_cleaned_and_the_machine_is_free_again(self):
        with self.driver(devices={"brush": {}}) as driver, driver.client() as client:
            self.call(client, "CLEANING", 1, 245, 300, 2)  # 3 s at position 2
            self.assertEqual(self.at(client, "cleaning"), [2])
            self.wait(lambda: not self.status(client)["cleaning"], "the end of 300 s")
            self.call(client, "NOZZLE_CLEAN", 0, ENDLESS)  # as configured: 34 s each
            self.assertTrue(self.status(client)["cleaning"])
            self.refused(client, "not available", "NOZZLE_CLEAN", 0, ENDLESS)
            self.wait(lambda: not self.status(client)["cleaning"], "the end of four nozzles")
            self.call(client, "TINT", FORMULA)

    def test_the_bath_of_the_ultrasound(self):
        bath = {"filling_time": 150, "ultrasound_duration": 150, "emptying_time": 150}  # 1.5 s each
        with self.driver(devices={"ultrasound_cleaning": bath}) as driver, driver.client() as client:
            def told():
                status = self.status(client)
                return status["cleaning"], status["pumping"]
            self.call(client, "ULTRASOUND_CLEAN", 1)
            self.assertEqual(told(), (True, True))
            self.wait(lambda: told() == (True, False), "the ultrasound")
            self.wait(lambda: told() == (True, True), "the emptying")
            self.wait(lambda: told() == (False, False), "the end")
            self.call(client, "ULTRASOUND_CLEAN", 4, 300)
            self.assertEqual(told(), (True, False))
            self.refused(client, "not available", "ULTRASOUND_CLEAN", 1)
            self.wait(lambda: told() == (False, False), "the end of 300 s")

    def test_nothing_is_cleaned_without_the_device(self):
        with self.driver() as driver, driver.client() as client:
            self.refused(client, "the machine has no enabled ultrasound bath", "ULTRASOUND_CLEAN", 1)
            self.refused(client, "no enabled ultrasound bath, brush or cap that rinses", "NOZZLE_CLEAN", 0, 30)
            self.refused(client, "the machine has no enabled brush", "CLEANING", 0)

    def test_a_reserved_mode_pours_nothing(self):
        with self.driver() as driver, driver.client() as client:
            self.assertEqual(self.call(client, "WORKING_MODE")["working_mode"], 1)
            self.assertEqual(self.call(client, "WORKING_MODE", 3)["working_mode"], 3)
            told = self.status(client)
            self.assertEqual((told["normal_wm"], told["head1_can_dose"]), (False, False))
            self.refused(client, "Bad working mode", "TINT", FORMULA)
            self.call(client, "STIRRING", 1, 30)
            self.assertEqual(self.call(client, "WORKING_MODE", 1)["working_mode"], 1)
            self.assertTrue(self.status(client)["normal_wm"])
            self.call(client, "TINT", FORMULA)

    def test_timed_processes_are_held_and_let_go(self):
        with self.driver(timed_processes_mask=2) as driver, driver.client() as client:
            self.wait(lambda: self.at(client, "stirring") == [1, 2, 3], "the stirring by itself")
            self.assertFalse(self.status(client)["stirring"])
            self.call(client, "TOGGLE_TEMPORIZED", True, 2, 0)
            self.assertTrue(self.status(client)["normal_wm"])
            for _ in range(25):  # longer than a pause and an activity
                self.assertEqual(self.at(client, "stirring"), [])
                time.sleep(0.1)
            self.call(client, "TOGGLE_TEMPORIZED", False)
            self.wait(lambda: self.at(client, "stirring") == [1, 2, 3], "the stirring by itself")
            self.wait(lambda: self.at(client, "recirculating") == [1, 2, 3, 4], "the recirculation by itself")

    def test_holding_one_timed_process_leaves_the_other(self):
        canisters = machine()["canisters"]
        for canister in canisters:
            canister["circuits"][0]["recirculation_motor"]["activity"] = 60000  # 600 s
        with self.driver(timed_processes_mask=3, canisters=canisters) as driver, driver.client() as client:
            self.wait(lambda: self.at(client, "recirculating") == [1, 2, 3, 4], "the recirculation by itself")
            self.call(client, "TOGGLE_TEMPORIZED", True, 2, 0)
            self.assertEqual(self.at(client, "recirculating"), [1, 2, 3, 4])
            self.assertEqual(self.at(client, "stirring"), [])

    def test_family_2_holds_timed_processes(self):
        with self.driver(timed_processes_mask=2, command_family=2) as driver, driver.client() as client:
            self.wait(lambda: self.at(client, "stirring") == [1, 2, 3], "the stirring by itself")
            self.call(client, "TOGGLE_TEMPORIZED")
            self.assertEqual(self.at(client, "stirring"), [])
            self.wait(lambda: self.at(client, "stirring") == [1, 2, 3], "the end of the holding")
            self.assertEqual(client.EXEC_B("STIRRING", 1, 30)["errors"][0]["code"], "DE03105")
            pause = self.call_in_background(client, "PAUSE", 600000)
            self.assertEqual(client.EXEC_B("STOP")["errors"][0]["code"], "DE03105")
            self.call(client, "STOP", 0, 1)
            self.wait(lambda: self.call(client, "GET_CMD_STATUS", pause)["status"] == -3, "the end of the pause")

    def test_level_sensors_follow_the_canister(self):
        with self.driver() as driver, driver.client() as client:
            self.refused(client, "Wrong position ID", "GET_LEVEL_SENSORS", [1])
            self.assertEqual(self.call(client, "GET_LEVEL_SENSORS")["levels"], [[2, 12500]])  # 125 strokes
            self.wait(lambda: not self.status(client)["check_level_in_progress"], "the end of the reading")
            self.call(client, "TINT", {**FORMULA, "ids": [2], "quantities": [40.0]})
            self.assertEqual(self.call(client, "GET_LEVEL_SENSORS", [2])["levels"], [[2, 11500]])

    def long_pour(self, client, quantity):
        """One of circuit 2, which takes seconds."""
        ticket = client.EXEC_NB("TINT", {**FORMULA, "ids": [2], "quantities": [quantity], "levels_policy": 0})
        self.wait(lambda: self.status(client)["tinting"], "the pour")
        return ticket["ret_value"]["ticket_id"]

    def end(self, client, ticket):
        self.wait(lambda: self.call(client, "GET_CMD_STATUS", ticket)["status"] <= 0, "the end of the pour")

    def rich_machine(self):
        """One with enough in canister 2, and not more than its sensor can tell."""
        canisters = machine()["canisters"]
        canisters[1]["current"] = 2000
        return self.driver(canisters=canisters)

    def test_levels_set_during_a_pour_are_those_of_the_machine(self):
        for delta, quantity, is_stopped in ((True, -100.0, True), (False, 1950.0, True), (False, 1999.0, False)):
            with self.rich_machine() as driver, driver.client() as client:
                ticket = self.long_pour(client, 1900.0 if is_stopped else 700.0)
                self.call(client, "SET_LEVELS", delta, {**FORMULA, "ids": [2], "quantities": [quantity]})
                self.assertTrue(self.status(client)["tinting"], "it ended too early")
                if is_stopped:
                    self.call(client, "STOP")
                self.end(client, ticket)
                level = self.call(client, "GET_CANISTER_LIST")["canister_list"][1]["cur_q"]
                self.assertGreater(level, 0)
                told = self.call(client, "GET_LEVEL_SENSORS", [2])["levels"]
                self.assertEqual(told, [[2, round(level * 100) // 4]], (delta, is_stopped))  # 400 steps a stroke

    def test_a_canister_is_critical_when_it_has_been_poured_from(self):
        with self.rich_machine() as driver, driver.client() as client:
            ticket = self.long_pour(client, 1990.0)
            self.assertFalse(self.status(client, 2)["canister_lvl_critical"])
            self.assertEqual(self.call(client, "GET_ACTIVE_CIRCUITS", 12)["positions_id"], [])
            self.assertTrue(self.status(client)["tinting"], "it ended too early")
            self.call(client, "STOP")
            self.end(client, ticket)
            self.assertFalse(self.status(client, 2)["canister_lvl_critical"])

    def test_a_command_is_handed_through_to_a_board(self):
        with self.driver() as driver, driver.client() as client:
            self.call(client, "DEEP_SERVICE", 0, 2, "0004", [245, 245, 0])
            self.assertEqual(self.at(client, "stirring"), [2])
            told = self.call(client, "DEEP_SERVICE", 0, 2, "0006")["parameters"]
            self.assertEqual((told[1], told[2]), (1, 16))
            self.refused(client, "Wrong position ID", "DEEP_SERVICE", 0, 4, "0004", [30, 0, 0])


if __name__ == "__main__":
    quvdriver_process.main()
