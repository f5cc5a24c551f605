# SPDX-License-Identifier: LGPL-3.0-or-later
"""The driver, called by a client that knows nothing of it but XML-RPC: Python's own."""

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


class ClientTest(unittest.TestCase):
    def setUp(self):
        self.driver = Driver("--speed", "3")
        self.addCleanup(self.driver.kill)
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

    # No answer holds doubles yet, so they come back in the text that refuses them; how they are written in a value is
    # tested with the codec.
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
                    for n in range(25):
                        name = f"CLIENT_{number}_{n}"
                        text = client.EXEC_B(name)["errors"][1]["text"]
                        if text != f'The catalogue has no command "{name}"':
                            failures.append(text)
                        status = client.EXEC_B(name, "GET_STATUS", number)
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


if __name__ == "__main__":
    quvdriver_process.main()
