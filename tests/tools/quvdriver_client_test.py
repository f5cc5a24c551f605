# SPDX-License-Identifier: LGPL-3.0-or-later
"""The driver, called by a client that knows nothing of it but XML-RPC: Python's own."""

import datetime
import re
import signal
import threading
import time
import unittest
import xmlrpc.client

import quvdriver_process
from quvdriver_process import Driver

STATUS_FLAGS = """
offline_pressed board_not_initialized startup resetting BL_active BL_memory_resetting BL_fw_update conf_writing hw_error
conf_error process_error stop_process disp_info_writing disp_info_erasing new_buffered_error dispenser_not_ready
emergency_pressed normal_wm can_present shelf_up shelf_down WM_set door_open machine_turned_off machine_unlocked
tinting recirculating stirring valve_on cap_open bellow_up no_24_voltage no_48_voltage punching slave_scan post_erogation
turntable_moving cleaning formula_interrupted nozzle_valve_working_pos circuit_fin_presence airpurge head1_can_dose
head2_can_dose predispensing pumping nozzle_moving nozzle_valve_open_accurate canister_lvl_critical new_cleaning_stats
stall_low stall_high check_level_in_progress speed_red_in_recirc plc_start_activated plc_stop_activated
m_zdr_mixingInProgress m_zdr_openingPlatesInProgress m_zdr_closingPlatesInProgress m_zdr_pluggingInProgress
m_zdr_canCentered m_zdr_plasticPlugReserve m_zdr_plasticPlugNotMounted m_zdr_homePosition
""".split()
STATUS_NUMBERS = {"disp_status": 1, "current_position_id": 0, "current_position_id_zone": 0}


def request(value):
    return f"""<?xml version="1.0"?>
<methodCall><methodName>EXEC_B</methodName><params><param><value>{value}</value></param></params></methodCall>"""


def formula(quantities, **others):
    """By colorants, in grams."""
    return {"formula_type": 4, "quantity_unit": 3, "ids": list(quantities),
            "quantities": [float(quantity) for quantity in quantities.values()], **others}


class ClientTest(unittest.TestCase):
    def setUp(self):
        self.driver = Driver("--speed", "3")
        self.addCleanup(self.driver.end)
        self.client = self.driver.client()
        self.addCleanup(self.client("close"))

    def test_the_status_is_a_struct_with_all_its_members(self):
        envelope = self.client.EXEC_B("GET_STATUS")
        self.assertEqual(set(envelope), {"ret_code", "info", "ret_value", "errors", "exec_time"})
        self.assertEqual(envelope["ret_code"], 0)
        self.assertEqual(envelope["info"], "GET_STATUS command executed successfully!")
        self.assertEqual(envelope["errors"], [])
        self.assertIs(type(envelope["exec_time"]), int)
        status = envelope["ret_value"]
        self.assertEqual(sorted(status), sorted(STATUS_FLAGS + list(STATUS_NUMBERS)))
        for name, number in STATUS_NUMBERS.items():
            self.assertIs(type(status[name]), int, name)
            self.assertEqual(status[name], number, name)
        for name in STATUS_FLAGS:
            self.assertIs(type(status[name]), bool, name)
            self.assertEqual(status[name], name in ("normal_wm", "head1_can_dose"), name)

    def test_a_reset_shows_in_the_status_until_it_has_ended(self):
        self.assertEqual(self.client.EXEC_B("RESET")["ret_code"], 0)
        status = self.client.EXEC_B("GET_STATUS")["ret_value"]
        self.assertTrue(status["resetting"])
        self.assertFalse(status["head1_can_dose"])
        self.assertEqual(self.client.EXEC_B("RESET")["ret_code"], 4)
        end = time.monotonic() + 10
        while self.client.EXEC_B("GET_STATUS")["ret_value"]["resetting"]:
            self.assertLess(time.monotonic(), end)
            time.sleep(0.05)

    def test_an_unknown_command(self):
        envelope = self.client.EXEC_B("MAKE_COFFEE")
        self.assertEqual(envelope["ret_code"], 1)
        self.assertEqual(envelope["info"], "MAKE_COFFEE : Failed! Xml-rpc command invalid for Driver.")
        self.assertEqual(envelope["ret_value"], 0)
        first = envelope["errors"][0]
        self.assertEqual(first["code"], "DE00337")
        self.assertEqual(first["text"], "Command type not recognized")
        self.assertEqual(first["error_type"], 1)

    def test_an_unknown_method_is_a_fault(self):
        with self.assertRaises(xmlrpc.client.Fault) as raised:
            self.client.perché("GET_STATUS")
        self.assertEqual(raised.exception.faultCode, -32601)
        self.assertEqual(raised.exception.faultString, 'Unknown method "perché"')

    def test_text_of_any_script_there_and_back(self):
        for text in ("perché", "色 <&> \"]]>\"", "\U0001f3a8 Ελλάδα"):
            envelope = self.client.EXEC_B(text)
            self.assertEqual(envelope["errors"][1]["text"], f'The catalogue has no command "{text}"')
        # The message of the envelope is Latin-1 by nature.
        self.assertEqual(self.client.EXEC_B("perché 色")["info"],
                         "perché ? : Failed! Xml-rpc command invalid for Driver.")

    def test_text_in_latin_1_is_understood(self):
        envelope = self.driver.post(request("perché").replace("?>", ' encoding="ISO-8859-1"?>').encode("latin-1"))
        self.assertEqual(envelope["info"], "perché : Failed! Xml-rpc command invalid for Driver.")

    def test_doubles_there_and_back_to_the_last_digit(self):
        quantities = [0.1, 0.1 + 0.2, 1 / 3, 123456.78901234567, 5e-324]
        answer = self.client.EXEC_B("GET_FORMULA_CIRCUITS", formula(
            dict(zip(["AXX", "B", "C", "D", "E"], quantities))))["ret_value"]
        self.assertEqual(answer["quantities"], quantities)
        self.assertEqual(answer["positions"], [1, 2, 3, 4, 5])

    def test_doubles_are_read_to_the_last_digit(self):
        for number in (0.1, 0.1 + 0.2, 1 / 3, -2.5e-300, 1.7976931348623157e308, 5e-324, 123456789.12345679):
            text = self.client.EXEC_B(number)["errors"][0]["text"]
            prefix = "The command name must be a text, not the double "
            self.assertTrue(text.startswith(prefix), text)
            self.assertEqual(float(text[len(prefix):]), number)

    def test_integers_to_the_ends_of_32_bits(self):
        for number in (2147483647, -2147483648):
            text = self.client.EXEC_B(number)["errors"][0]["text"]
            self.assertEqual(text, f"The command name must be a text, not the integer {number}")

    def test_what_is_no_command_name(self):
        for name, words in (({"a": 1}, "a struct"), (b"RESET", "binary data"),
                            (datetime.datetime(2026, 3, 2, 9, 15), "a time")):
            text = self.client.EXEC_B(name)["errors"][0]["text"]
            self.assertEqual(text, f"The command name must be a text, not {words}")

    def test_integers_beyond_32_bits_are_refused(self):
        for value in ("<i4>2147483648</i4>", "<int>-2147483649</int>", "<i4>4294967297</i4>",
                      "<i8>5</i8>", "<i8>9223372036854775807</i8>", "<int>99999999999999999999</int>",
                      "<int>12abc</int>", "<int></int>"):
            with self.assertRaises(xmlrpc.client.Fault, msg=value) as raised:
                self.driver.post(request(value))
            self.assertEqual(raised.exception.faultCode, -32600, value)

    def test_eight_clients_at_once_get_their_own_answers(self):
        failures = []

        def work(number):
            try:
                with self.driver.client() as client:
                    session = client.EXEC_B("LOGIN", 1, str(number))["ret_value"]["session_id"]
                    for n in range(25):
                        name = f"CLIENT_{number}_{n}"
                        text = client.EXEC_B(name)["errors"][1]["text"]
                        if text != f'The catalogue has no command "{name}"':
                            failures.append(text)
                        status = client.EXEC_B(session, "GET_STATUS", number)
                        if status["ret_code"] != 0 or status["ret_value"]["normal_wm"] is not True:
                            failures.append(status)
            except Exception as error:  # whatever it is, the test must hear of it
                failures.append(repr(error))

        threads = [threading.Thread(target=work, args=(number,)) for number in range(8)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join(20)
            self.assertFalse(thread.is_alive())
        self.assertEqual(failures, [])


class PourTest(unittest.TestCase):
    """A tint on the built-in dispenser: 10 g of B are 1080 steps, of F 1160, at 50 turns of 200 steps a minute: 6.48 s and
    6.96 s, which overlap, since the two are of different queues; ten times faster here."""

    TINT = formula({"B": 10, "F": 10}, levels_policy=2)

    def setUp(self):
        self.driver = Driver("--machine", "dispenser", "--speed", "10")
        self.addCleanup(self.driver.end)
        self.client = self.driver.client()
        self.addCleanup(self.client("close"))

    def call(self, name, *arguments):
        envelope = self.client.EXEC_B(name, *arguments)
        self.assertEqual(envelope["ret_code"], 0, envelope)
        return envelope["ret_value"]

    def level(self, colorant):
        """What the driver believes a canister to hold, out of the words in which it refuses to raise it."""
        text = self.client.EXEC_B("SET_LEVELS", True, formula({colorant: 100000}))["errors"][0]["text"]
        return float(re.fullmatch(r"Canister \d+ cannot hold (.*); it holds 0 to 3000", text).group(1)) - 100000

    def test_the_time_of_a_pour_beyond_the_levels(self):
        too_much = formula({"B": 2500, "F": 1}, levels_policy=2)
        for envelope in (self.client.EXEC_B("TINT", too_much),
                         self.client.EXEC_B("GET_CMD_EST_EXEC_TIME", {"command": ["TINT", too_much]})):
            self.assertEqual(envelope["ret_code"], 1)
            self.assertEqual(
                [(error["code"], error["text"]) for error in envelope["errors"]],
                [("DE00061", "Formula interrupted because the current amount would go below zero"),
                 ("DE03144", 'Canister 2 ("B") holds 2000; without 2500 it would fall below its critical level of 150')])

    def dispensed(self):
        report = self.call("GET_DISPENSED_FORMULA", 1, 1)
        return [dict(zip(report[key]["ids"], report[key]["quantities"]))
                for key in ("dispensed_formula", "total_formula")]

    def test_a_whole_tint_with_polling(self):
        levels = self.call("CHECK_FORMULA_LEVELS", self.TINT, False)
        self.assertEqual(levels, {"canisters_below_critical": [], "canisters_below_warning": []})
        self.assertEqual(self.call("GET_CMD_EST_EXEC_TIME", {"command": ["TINT", self.TINT]}), {"exec_time": 696})

        begun = self.client.EXEC_NB("TINT", self.TINT)
        self.assertEqual(begun["ret_code"], 0, begun)
        ticket = begun["ret_value"]["ticket_id"]
        seen = []
        end = time.monotonic() + 20
        while not seen or seen[-1]["status"] > 0:
            self.assertLess(time.monotonic(), end)
            seen.append(self.call("GET_CMD_STATUS", ticket))
            time.sleep(0.01)
        running = [status for status in seen if status["status"] == 1]
        self.assertTrue(any(0 < status["percentage"] < 100 and 0 < status["time_left"] < 696 for status in running))
        for before, after in zip(running, running[1:]):
            self.assertLessEqual(before["percentage"], after["percentage"])
            self.assertGreaterEqual(before["time_left"], after["time_left"])
        last = seen[-1]
        self.assertEqual((last["status"], last["percentage"], last["time_left"]), (0, 100, 0))
        self.assertEqual(last["info"], "Done successfully!")
        self.assertEqual(last["cmd_answer"]["ret_code"], 0)
        self.assertEqual(last["cmd_answer"]["info"], "TINT command executed successfully!")

        poured = {"2": 1080.0, "6": 1160.0}
        self.assertEqual(self.dispensed(), [poured, poured])
        self.assertEqual([self.level(colorant) for colorant in ("B", "F", "C")], [1990, 1990, 2000])

    def test_while_one_pours_others_ask_and_may_not_pour(self):
        ticket = self.client.EXEC_NB("TINT", self.TINT)["ret_value"]["ticket_id"]
        while not self.call("GET_STATUS")["tinting"]:
            time.sleep(0.005)
        for method in (self.client.EXEC_B, self.client.EXEC_NB):
            refused = method("TINT", self.TINT)
            self.assertEqual(refused["ret_code"], 6)
            self.assertEqual(refused["errors"][0]["code"], "DE03112")
        self.assertFalse(self.call("GET_STATUS")["head1_can_dose"])
        self.assertEqual(self.dispensed()[1], {"2": 1080.0, "6": 1160.0})
        channel, = self.call("GET_FORMULA_EXECUTION", self.TINT)["frm_progress"]["channels"]
        self.assertEqual(channel["formula"]["ids"], ["B", "F"])
        # waits for the end without asking again and again
        status = self.call("GET_STATUS")
        changed = self.client.EXEC_NC("GET_STATUS", {"last_answer": status}, 20, 4000)
        self.assertFalse(changed["ret_value"]["tinting"])
        ended = self.client.EXEC_B("TINT", formula({"C": 0.5}))
        while ended["ret_code"] == 6:  # the driver still reads the report
            ended = self.client.EXEC_B("TINT", formula({"C": 0.5}))
        self.assertEqual(ended["ret_code"], 0, ended)
        self.assertEqual(self.call("GET_CMD_STATUS", ticket)["status"], 0)
        self.assertEqual(self.level("C"), 1999.5)

    def test_the_end_of_the_driver_does_not_wait_for_a_pour(self):
        answers = []
        with self.driver.client() as other:
            caller = threading.Thread(target=lambda: answers.append(other.EXEC_B("TINT", formula({"B": 100}))))
            caller.start()
            while not self.call("GET_STATUS")["tinting"]:
                time.sleep(0.005)
            begin = time.monotonic()
            self.driver.process.send_signal(signal.SIGTERM)
            self.assertEqual(self.driver.process.wait(5), 0)
            self.assertLess(time.monotonic() - begin, 2)
            caller.join(5)
        self.assertEqual(answers[0]["ret_code"], 7)
        self.assertEqual(answers[0]["errors"][0]["code"], "DE03116")


if __name__ == "__main__":
    quvdriver_process.main()
