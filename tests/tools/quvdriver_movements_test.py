# SPDX-License-Identifier: LGPL-3.0-or-later
"""What moves on simulated machines, and the mixer: each command by its effect, called from outside."""

import time
import unittest

import quvdriver_process
from quvdriver_process import Driver


class MachineTest(unittest.TestCase):
    def machine(self, name):
        driver = Driver("--machine", name, "--speed", "10")
        self.addCleanup(driver.kill)
        client = driver.client()
        self.addCleanup(client("close"))
        return client

    def call(self, client, *params):
        envelope = client.EXEC_B(*params)
        self.assertEqual((envelope["ret_code"], envelope["errors"]), (0, []), params)
        return envelope["ret_value"]

    def refused(self, client, *params):
        envelope = client.EXEC_B(*params)
        self.assertEqual(envelope["ret_code"], 4, envelope)
        return envelope["errors"][0]["text"]

    def wait(self, client, question, **expected):
        """The first answer with these members; all that came before it."""
        seen = []
        end = time.monotonic() + 60
        while time.monotonic() < end:
            answer = self.call(client, question)
            seen.append(answer)
            if all(answer[name] == value for name, value in expected.items()):
                return answer, seen
            time.sleep(0.005)
        self.fail(f"{question} never told {expected}, but {seen[-1]}")


class MovementsTest(MachineTest):
    def test_the_shelf_goes_up_and_down(self):
        client = self.machine("station")
        self.assertEqual(self.call(client, "GET_SHELF_POS", 3)["shelf_position"], -1)
        self.call(client, "SHELF_MOVE", 0, 300)
        status = self.call(client, "GET_STATUS")
        self.assertEqual((status["shelf_up"], status["head1_can_dose"]), (True, False))
        self.wait(client, "GET_STATUS", shelf_up=False)
        self.assertEqual(self.call(client, "GET_SHELF_POS", 3)["shelf_position"], 300)
        self.call(client, "SHELF_MOVE", 1, 0)
        _, seen = self.wait(client, "GET_STATUS", shelf_down=False)
        self.assertTrue(seen[0]["shelf_down"])
        self.assertEqual(self.call(client, "GET_SHELF_POS")["shelf_position"], 0)

    def test_a_machine_without_a_shelf_refuses_to_move_it(self):
        client = self.machine("dispenser")
        self.assertIn("the machine has no shelf", self.refused(client, "SHELF_MOVE", 0, 300))
        self.assertIn("the machine has no turntable", self.refused(client, "TURNTABLE_MOVE", 1, 1, 2, 0, 0))
        self.assertIn("the machine has no automatic cap", self.refused(self.machine("turntable"), "AUTOCAP_MOVE", 1))

    def test_the_cap_opens_and_closes(self):
        client = self.machine("dispenser")
        self.assertFalse(self.call(client, "GET_STATUS")["cap_open"])
        self.call(client, "AUTOCAP_MOVE", 1)
        self.assertFalse(self.call(client, "GET_STATUS")["cap_open"])
        self.wait(client, "GET_STATUS", cap_open=True)
        self.call(client, "AUTOCAP_MOVE", 0)
        self.wait(client, "GET_STATUS", cap_open=False)

    def test_the_table_turns(self):
        client = self.machine("turntable")
        self.assertEqual(self.call(client, "GET_STATUS")["current_position_id"], 1)
        self.call(client, "TURNTABLE_MOVE", 4, 1, 2, 0, 0)
        answer, seen = self.wait(client, "GET_STATUS", turntable_moving=False)
        self.assertEqual((seen[0]["turntable_moving"], seen[0]["current_position_id"]), (True, 0))
        self.assertEqual((answer["current_position_id"], answer["current_position_id_zone"]), (4, 0))
        self.call(client, "TURNTABLE_MOVE_STEPS", 0, 245, 1600)  # the next of eight, of 12800
        answer, _ = self.wait(client, "GET_STATUS", turntable_moving=False)
        self.assertEqual(answer["current_position_id"], 5)
        self.call(client, "TURNTABLE_MOVE_TO_REFILL", 5)
        answer, _ = self.wait(client, "GET_STATUS", turntable_moving=False)
        self.assertEqual((answer["current_position_id"], answer["current_position_id_zone"]), (5, 1))
        self.call(client, "TURNTABLE_MOVE", 0, 0, 2, 0, 0)  # searches the reference
        answer, _ = self.wait(client, "GET_STATUS", turntable_moving=False)
        self.assertEqual((answer["current_position_id"], answer["current_position_id_zone"]), (1, 0))
        positions = self.call(client, "GET_TURNTABLE_POSITIONS")["turntable_circuits"]
        self.assertEqual([(circuit["position_id"], circuit["steps_pos"], circuit["fin_size"]) for circuit in positions],
                         [(number, (number - 1) * 1600, 30) for number in range(1, 9)])

    def test_a_tint_turns_the_table(self):
        client = self.machine("turntable")
        formula = {"formula_type": 4, "quantity_unit": 3, "ids": ["C"], "quantities": [2.0]}
        self.call(client, "TINT", formula)
        self.assertEqual(self.call(client, "GET_STATUS")["current_position_id"], 3)

    def test_the_station_closes_mixes_and_opens(self):
        client = self.machine("station")
        self.assertTrue(self.call(client, "GET_STATUS")["m_zdr_homePosition"])
        self.call(client, "ZDR_CYCLE_OPERATION", 2, 5)
        _, seen = self.wait(client, "GET_STATUS", m_zdr_homePosition=True)
        members = ("m_zdr_closingPlatesInProgress", "m_zdr_pluggingInProgress", "m_zdr_mixingInProgress",
                   "m_zdr_openingPlatesInProgress")
        phases = []
        for status in seen:
            phase = [name for name in members if status[name]]
            if phase and phase != phases[-1:]:
                phases += phase
        self.assertEqual(phases, list(members))
        self.assertTrue(all(status["m_zdr_canCentered"] for status in seen if status["m_zdr_mixingInProgress"]))

        self.call(client, "ZDR_ACTUATOR_MOVE", 5, 1)
        self.wait(client, "GET_STATUS", head1_can_dose=True)
        self.assertFalse(self.call(client, "GET_STATUS")["m_zdr_homePosition"])
        self.call(client, "ZDR_CYCLE_OPERATION", 0)
        self.wait(client, "GET_STATUS", m_zdr_homePosition=True)
        self.call(client, "ZDR_SLAVE_PROCEDURE", 100)
        self.wait(client, "GET_STATUS", m_zdr_homePosition=True)

        commands = {command["code"]: command["fields"] for command in self.call(client, "ZDR_GET_COMMANDS")["cmd_list"]}
        self.assertEqual(commands, {0x27: [1, 2, 3, 4, 5, 6], 0x28: [100, 200], 0x32: [0, 1, 2, 3, 4], 0x37: []})

    def test_only_the_station_has_its_commands(self):
        self.assertEqual(self.machine("dispenser").EXEC_B("ZDR_CYCLE_OPERATION", 2)["ret_code"], 3)


class MixerTest(MachineTest):
    """A mixer, reached without another machine."""

    def setUp(self):
        self.client = self.machine("mixer")

    def test_mixes_its_cycles_in_turn(self):
        self.assertTrue(self.call(self.client, "MIXER_STATUS")["ready_next_cycle"])
        cycles = [{"cycle_type": 1, "mixing_speed": 100, "clamping_force": 30, "duration": 10},
                  {"cycle_type": 2, "mixing_speed": -1, "clamping_force": 40, "duration": 15}]
        self.assertEqual(self.client.EXEC_NB("MIX", {"mixer_cycles": cycles})["ret_code"], 0)
        self.wait(self.client, "MIXER_STATUS", cycle_active=True)
        _, seen = self.wait(self.client, "MIXER_STATUS", cycle_active=False)
        mixing = [(status["cycle_id"], status["mixing_speed"], status["clamping_force"], status["clamping_height"],
                   status["can_in_plates"]) for status in seen if status["mixing"]]
        self.assertEqual(list(dict.fromkeys(mixing)), [(1, 100, 30, 250, True), (2, 120, 40, 250, True)])
        left = [status["timeleft"] for status in seen]
        self.assertEqual(left, sorted(left, reverse=True))
        self.assertLessEqual(left[0], 28)
        self.assertTrue(any(status["clamping"] and status["shelf_up"] for status in seen))
        end = seen[-1]
        self.assertEqual((end["cycle_id"], end["timeleft"], end["clamping_height"]), (0, 0, 400))
        self.assertTrue(end["ready_next_cycle"])

    def test_its_status_stands_beside_what_the_driver_does(self):
        told = self.call(self.client, "GET_MIXER_STATUS")
        self.assertEqual((told["pos_available"], told["pos_ready"], told["disp_status"]["mixing"]), (True, True, False))
        driver = told["driver_status"]
        self.assertEqual((driver["active"], driver["conf_mng"], driver["fw_update"], driver["mixer_info"]["mixer_id"]),
                         (True, False, False, 2))
        cycle = {"cycle_type": 1, "mixing_speed": 100, "clamping_force": 30, "duration": 30}
        self.assertEqual(self.client.EXEC_NB("MIX", {"mixer_cycles": [cycle]})["ret_code"], 0)
        self.wait(self.client, "MIXER_STATUS", mixing=True)
        told = self.call(self.client, "GET_MIXER_STATUS")
        self.assertEqual((told["disp_status"]["mixing"], told["disp_status"]["cycle_id"]), (True, 1))

    def test_moves_its_plates(self):
        self.call(self.client, "MIXER_PLATES", 1)
        status = self.call(self.client, "MIXER_STATUS")
        self.assertTrue(status["clamping"] or status["can_in_plates"])
        status, _ = self.wait(self.client, "MIXER_STATUS", can_in_plates=True)
        self.assertEqual((status["clamping_force"], status["clamping_height"]), (50, 250))
        self.call(self.client, "MIXER_PLATES", 0, 500, 100, 0)
        status, _ = self.wait(self.client, "MIXER_STATUS", clamping=False)
        self.assertEqual((status["plates_part_opened"], status["clamping_height"]), (True, 300))
        self.assertEqual(self.client.EXEC_B("MIXER_PLATES", 7)["ret_code"], 4)

    def test_a_reset_brings_the_plates_back(self):
        self.call(self.client, "MIXER_PLATES", 1)
        self.wait(self.client, "MIXER_STATUS", can_in_plates=True)
        self.call(self.client, "RESET")
        status = self.call(self.client, "MIXER_STATUS")
        self.assertEqual((status["repositioning"], status["ready_next_cycle"]), (True, False))
        status, _ = self.wait(self.client, "MIXER_STATUS", repositioning=False)
        self.assertEqual((status["clamping_height"], status["can_in_plates"]), (400, False))


if __name__ == "__main__":
    quvdriver_process.main()
