# SPDX-License-Identifier: LGPL-3.0-or-later
"""The commands for machines in people's words, and the login on one of several. Usage: quvctl_machine_test.py QUVDRIVER QUVCTL"""

import json
import os
import re
import signal
import socketserver
import subprocess
import sys
import tempfile
import threading
import time
import unittest
import xmlrpc.server

import quvctl_process
import quvdriver_process
from quvctl_process import envelope, run, start

DISPENSER_FLAGS = """
    offline_pressed board_not_initialized tinting recirculating stirring startup resetting valve_on cap_open BL_active
    BL_memory_resetting BL_fw_update conf_writing hw_error conf_error bellow_up process_error stop_process emergency_pressed
    no_24_voltage no_48_voltage can_present punching shelf_up shelf_down""".split()

MIXER_FLAGS = """
    offline_pressed board_not_initialized cycle_active clamping mixing startup repositioning plates_part_opened not_locked_ver
    BL_active BL_memory_resetting BL_fw_update conf_writing hw_error conf_error process_error stop_process emergency_pressed
    intput_power_abs lower_plate_extracted can_present door_partially_opened shelf_down shelf_up can_in_plates door_opening
    door_closing door_reset cycle_interrupted door_locked config_changed ready_next_cycle cycle_on_hold need_repositioning
    door_unlocked resetting normal_wm""".split()


def dispenser(**changes):
    return envelope({"disp_status": 1, **dict.fromkeys(DISPENSER_FLAGS, False), **changes})


def mixer(**changes):
    return envelope({"disp_status": 1, **dict.fromkeys(MIXER_FLAGS, False), "normal_wm": True, "cycle_id": 0, "timeleft": 0,
                     "mixing_speed": 0, "clamping_force": 0, "clamping_height": 0, **changes})


def refused(code, text, ret_code=6):
    return envelope(0, ret_code, "failed", [
        {"error_type": 1, "timestamp": "2024-02-29T07:08:09.010Z", "code": code, "text": text}])


def ticket(state, result=0):
    return envelope({"status": state, "info": "", "extra_info": "", "time_left": 0, "percentage": 0 if state > 0 else 100,
                     "cmd_answer": result})


def info(**members):
    return {"sid": -1, "enabled": True, "serial_number": "", "description": "", "model": "", "product_code": "", **members}


def listed(dispensers=(), mixers=()):
    """Machines by their numbers; the first of a kind is the active one."""
    def status(number, active, member):
        names = {"dispenser_info": "disp_id", "mixer_info": "mixer_id"}
        return {"active": active, "conf_mng": False, "fw_update": False, "stats_mng": False, "slave_scan": False,
                "grav_sw_dose": False, "scale_mngm": False,
                member: info(**{names[member]: number, "tinting_parallelism": 2, "rotating_disp": False,
                                "description": f"machine {number}", "model": "M-1", "serial_number": f"SN{number}"})}
    return envelope({"disp_list": [status(each, i == 0, "dispenser_info") for i, each in enumerate(dispensers)],
                     "mixer_list": [status(each, i == 0, "mixer_info") for i, each in enumerate(mixers)]})


def canister(number, code, level):
    return {"id": number, "enabled": True, "cur_q": float(level), "max_q": 1000.0, "res_q": 50.0, "res_w": 200.0,
            "circuits": [number], "positions": [number + 10], "colorant_id": number, "colorant_code": code}


def canisters(*levels):
    return envelope({"canister_list": list(levels)})


def hardware_error(code, module, when="2024-02-29T07:08:09.010Z"):
    return {"error_type": 2, "timestamp": when, "code": code, "module": module, "value": 0, "flag": True, "device": 1}


def errors(*told):
    return envelope({"fw_errors": list(told)})


class Server(socketserver.ThreadingMixIn, xmlrpc.server.SimpleXMLRPCServer):
    daemon_threads = True


class FakeDriver:
    """
    A driver of another make: answers by name what its script has (a list: one after the other, the last for ever; a function: what
    it gives), and remembers what it was asked, each time with the session.
    """

    NOT_CARRIED_OUT = refused("DE03107", "not carried out")

    def __init__(self, **script):
        self.script = {"GET_CMD_STATUS": ticket(0, envelope(0)), "LOGIN": envelope({"session_id": "S-1"}),
                       "LOGOUT": envelope(0), "STOP": envelope(0), **script}
        self.asked = []
        self.lock = threading.Lock()

    def answer(self, params):
        params = list(params)
        session = params.pop(0) if params[0].startswith("S-") else ""
        name = params.pop(0)
        with self.lock:
            self.asked.append((session, name, *params))
            answer = self.script.get(name, self.NOT_CARRIED_OUT)
            if isinstance(answer, list):
                answer = answer.pop(0) if len(answer) > 1 else answer[0]
        return answer() if callable(answer) else answer

    def execute(self, *params):
        return self.answer(params)

    def begin(self, *params):
        told = self.answer(params)
        return envelope({"ticket_id": "T-1"}) if told["ret_code"] == 0 else told

    def orders(self):
        """What it was told to do, without the questions."""
        return [asked for asked in self.asked if not asked[1].startswith(("GET_", "MIXER_STATUS"))]

    def names(self):
        return [asked[1] for asked in self.asked]

    def __enter__(self):
        self.server = Server(("127.0.0.1", 0), logRequests=False, allow_none=False)
        self.server.register_function(self.execute, "EXEC_B")
        self.server.register_function(self.begin, "EXEC_NB")
        self.port = str(self.server.server_address[1])
        threading.Thread(target=self.server.serve_forever, args=(0.01,), daemon=True).start()
        return self

    def __exit__(self, *_):
        self.server.shutdown()
        self.server.server_close()


def until(condition):
    for _ in range(3000):
        if condition():
            return
        time.sleep(0.01)
    raise AssertionError("it never came")


class MachineTest(unittest.TestCase):
    maxDiff = None

    def call(self, driver, *words, **environment):
        return run(*words, "--port", driver.port, env={**os.environ, **environment})

    def done(self, driver, *words, **environment):
        code, out, err = self.call(driver, *words, **environment)
        self.assertEqual((code, err), (0, ""), out)
        return out

    def wrong(self, *words):
        code, out, err = run(*words)
        self.assertEqual((code, out), (2, ""), err)
        return err


class On(MachineTest):
    LOGOUT = ("S-1", "LOGOUT", "S-1")

    def test_number(self):
        with FakeDriver(GET_STATUS=dispenser()) as driver:
            self.done(driver, "call", "GET_STATUS", "--on", "dispenser:2")
        self.assertEqual(driver.asked, [("", "LOGIN", 2, "quvctl", 0, 1), ("S-1", "GET_STATUS", 0), self.LOGOUT])

    def test_mixer_by_the_environment(self):
        with FakeDriver(MIXER_STATUS=mixer(), GET_ACTIVE_DISP=listed([1, 2], [7, 8])) as driver:
            self.done(driver, "call", "MIXER_STATUS", QUV_ON="mixer")
        self.assertEqual(driver.asked, [("", "GET_ACTIVE_DISP"), ("", "LOGIN", 7, "quvctl", 0, 4), ("S-1", "MIXER_STATUS"),
                                        self.LOGOUT])

    def test_failure(self):
        with FakeDriver(GET_STATUS=refused("DE03110", "broken", 8)) as driver:
            code, _, err = self.call(driver, "call", "GET_STATUS", "--on", "dispenser:1")
        self.assertEqual(code, 1)
        self.assertTrue(err.startswith("DE03110: broken\n"), err)
        self.assertEqual(driver.asked[-1], self.LOGOUT)

    def test_refused_login(self):
        with FakeDriver(LOGIN=refused("DE03161", "too many sessions")) as driver:
            code, _, err = self.call(driver, "call", "GET_STATUS", "--on", "dispenser:1")
        self.assertEqual((code, driver.names()), (1, ["LOGIN"]))
        self.assertTrue(err.startswith("DE03161: too many sessions\n"), err)

    def test_no_mixer(self):
        with FakeDriver(GET_ACTIVE_DISP=listed([1])) as driver:
            self.assertEqual(self.call(driver, "stop", "--on", "mixer"), (1, "", "quvctl: the driver has no mixer\n"))

    def test_interrupt(self):
        answered = threading.Event()
        script = {"GET_STATUS": lambda: (answered.wait(30), dispenser())[1]}
        with FakeDriver(**script) as driver:
            with start("call", "GET_STATUS", "--on", "dispenser:1", "--port", driver.port) as process:
                until(lambda: "GET_STATUS" in driver.names())
                process.send_signal(signal.SIGINT)
                out, err = process.communicate(timeout=30)
                answered.set()
        self.assertEqual((process.returncode, out, err), (130, "", ""))
        self.assertEqual(driver.asked[-1], self.LOGOUT)

    def test_pour_behind_a_ticket(self):
        levels = envelope({"canisters_below_critical": [], "canisters_below_warning": []})
        with FakeDriver(CHECK_FORMULA_LEVELS=levels, TINT=envelope(0)) as driver:
            self.done(driver, "tint", "B=1", "--no-wait", "--on", "dispenser:3")
        self.assertEqual([asked[:2] for asked in driver.asked],
                         [("", "LOGIN"), ("S-1", "CHECK_FORMULA_LEVELS"), ("S-1", "TINT"), ("S-1", "LOGOUT")])

    def test_wrong(self):
        for word in ["", "dispensers", "mixer:", "mixer:x", "scale", "dispenser:-1"]:
            self.assertIn("--on: a machine is called dispenser, mixer, or by its number too",
                          self.wrong("call", "GET_STATUS", f"--on={word}"))


    def test_other_kind(self):
        with FakeDriver() as driver:
            for words, kind, other in [(["stir", "3"], "dispenser", "mixer"), (["recirculate", "off"], "dispenser", "mixer"),
                                       (["clean", "brush"], "dispenser", "mixer"), (["tint", "B=1"], "dispenser", "mixer"),
                                       (["refill", "B=1"], "dispenser", "mixer"), (["circuits"], "dispenser", "mixer"),
                                       (["sensors"], "dispenser", "mixer"), (["mix", "3"], "mixer", "dispenser"),
                                       (["move", "cap", "open"], "dispenser", "mixer"),
                                       (["move", "plates", "open"], "mixer", "dispenser")]:
                name = " ".join(words[:2]) if words[0] == "move" else words[0]
                for source, environment in [(["--on", f"{other}:2"], {}), ([], {"QUV_ON": other})]:
                    code, out, err = self.call(driver, *words, *source, **environment)
                    self.assertEqual((code, out, err), (2, "", f"quvctl: {name} is for a {kind}; "
                                                               f"{'--on' if source else 'QUV_ON'} names a {other} (see quvctl help)\n"))
            self.assertEqual(driver.asked, [])

    def test_hints(self):
        for code, on, hint in [("DE03112", "dispenser:2", "quvctl status --on dispenser:2 tells when it has ended"),
                               ("DE03402", "mixer:1", "--on, or QUV_ON, names the machine, such as mixer or dispenser:2")]:
            with FakeDriver(TINT=refused(code, "no")) as driver:
                _, _, err = self.call(driver, "call", "TINT", '{"formula_type":4,"quantity_unit":3,"ids":["B"],"quantities":[1]}',
                                      "--on", on)
            self.assertEqual(err.splitlines()[:2], [f"{code}: no", f"hint: {hint}"])

    def end(self, number, *words, **script):
        """Has the program ended by a signal while it is at a call."""
        answered = threading.Event()
        with FakeDriver(**{"GET_STATUS": lambda: (answered.wait(30), dispenser())[1], **script}) as driver:
            with start(*words, "--on", "dispenser:1", "--port", driver.port) as process:
                until(lambda: "GET_STATUS" in driver.names())
                process.send_signal(number)
                out, err = process.communicate(timeout=30)
                answered.set()
        self.assertEqual(driver.asked[-1], self.LOGOUT)
        return process.returncode, out, err

    def test_ended_by_others(self):
        for number, status in [(signal.SIGTERM, 143), (signal.SIGHUP, 129)]:
            self.assertEqual(self.end(number, "watch"), (status, "", ""))

    def test_others_leave_no_time_for_a_second(self):
        asked = []

        def once_then_never():
            asked.append(True)
            if len(asked) > 1:
                threading.Event().wait(5)
            return dispenser()

        with FakeDriver(GET_STATUS=once_then_never, STIRRING=envelope(0)) as driver:
            with start("stir", "--on", "dispenser:1", "--port", driver.port) as process:
                until(lambda: len(asked) > 1)
                process.send_signal(signal.SIGTERM)
                _, err = process.communicate(timeout=30)
        self.assertEqual((process.returncode, err), (
            143, f"the machine goes on; look at it with: quvctl status --port {driver.port} --on dispenser:1\n"))
        self.assertEqual(driver.asked[-1], self.LOGOUT)

    def test_what_is_ignored(self):
        with FakeDriver(GET_STATUS=dispenser()) as driver:
            with subprocess.Popen([quvctl_process.PROGRAM, "watch", "--on", "dispenser:1", "--interval", "0.01", "--port",
                                   driver.port], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                  preexec_fn=lambda: signal.signal(signal.SIGHUP, signal.SIG_IGN)) as process:
                until(lambda: driver.names().count("GET_STATUS") > 1)
                process.send_signal(signal.SIGHUP)
                asked = driver.names().count("GET_STATUS")
                until(lambda: driver.names().count("GET_STATUS") > asked + 2)
                process.send_signal(signal.SIGTERM)
                self.assertEqual(process.wait(30), 143)
        self.assertIn(self.LOGOUT, driver.asked[-2:])  # a question that was on its way may come behind it

    def test_closed_output(self):
        with FakeDriver(GET_STATUS=dispenser()) as driver:
            for words in [["status"], ["watch", "--interval", "0.01"]]:
                reader, writer = os.pipe()
                os.close(reader)
                with subprocess.Popen([quvctl_process.PROGRAM, *words, "--on", "dispenser:1", "--port", driver.port],
                                      stdin=subprocess.DEVNULL, stdout=writer, stderr=subprocess.PIPE, text=True) as process:
                    os.close(writer)
                    _, err = process.communicate(timeout=30)
                self.assertEqual((process.returncode, err), (-signal.SIGPIPE, ""))
                self.assertEqual(driver.asked[-1], self.LOGOUT)


class Stop(MachineTest):
    def test_stop(self):
        with FakeDriver() as driver:
            self.assertEqual(self.done(driver, "stop"), "the machine has been told to stop\n")
            self.assertEqual(self.done(driver, "stop", "-q"), "")
            self.assertEqual(json.loads(self.done(driver, "stop", "--json")), {"ok": True})
        self.assertEqual(driver.asked, [("", "STOP", 0, 0)] * 3)

    def test_refused(self):
        with FakeDriver(STOP=refused("DE03106", "The firmware refused", 4)) as driver:
            code, out, err = self.call(driver, "stop")
        self.assertEqual((code, out), (1, ""))
        self.assertTrue(err.startswith("DE03106: The firmware refused\n"), err)


class SecondInterrupt(MachineTest):
    """Ctrl-C ends the waiting; another one stops the machine."""

    LEVELS = envelope({"canisters_below_critical": [], "canisters_below_warning": []})

    def pour(self, times, **script):
        with FakeDriver(CHECK_FORMULA_LEVELS=self.LEVELS, TINT=envelope(0), GET_CMD_STATUS=ticket(1), **script) as driver:
            with start("tint", "B=1", "--interval", "0.01", "--port", driver.port) as process:
                until(lambda: driver.names().count("GET_CMD_STATUS") > 2)
                process.send_signal(signal.SIGINT)
                err = process.stderr.readline() + process.stderr.readline()
                if times > 1:
                    process.send_signal(signal.SIGINT)
                _, more = process.communicate(timeout=30)
        self.assertEqual((process.returncode, err), (
            130, f"the machine goes on; look again with: quvctl ticket T-1 --port {driver.port}\n"
                 "Ctrl-C again within 2 seconds stops the machine\n"))
        return driver, more

    def test_one(self):
        driver, more = self.pour(1)
        self.assertEqual((more, driver.names().count("STOP")), ("", 0))

    def test_two(self):
        driver, more = self.pour(2)
        self.assertEqual((more, driver.names().count("STOP")), ("the machine has been told to stop\n", 1))
        self.assertIn(("", "STOP", 0, 0), driver.asked)

    def test_refused(self):
        driver, more = self.pour(2, STOP=refused("DE03110", "broken", 8))
        self.assertEqual(more, "the machine was not stopped: DE03110: broken; try again with: "
                               f"quvctl stop --port {driver.port}\n")


class Status(MachineTest):
    def test_dispenser(self):
        pours = envelope({"frm_progress": {"channels": [
            {"channel_id": 1, "percentage": 42, "time_left": 11500,
             "formula": {"formula_type": 4, "quantity_unit": 3, "ids": ["B", "KX"], "quantities": [1.0, 2.0]}}]}})
        with FakeDriver(GET_STATUS=dispenser(tinting=True, emergency_pressed=True), GET_ACTIVE_DISP=listed([1, 2]),
                        GET_FORMULA_EXECUTION=pours, GET_ERRORS=errors(hardware_error(2, 5)),
                        GET_CANISTER_LIST=canisters(canister(1, "B", 640), canister(2, "KX", 120.5),
                                                    canister(3, "T", 20))) as driver:
            out = self.done(driver, "status", TZ="UTC")
            self.assertEqual(out, """\
Dispenser 1, machine 1, M-1, serial number SN1
Emergency button pressed
Tinting in progress
  head 1 [####......] 42 %, 12 s left: B KX

CANISTER  COLORANT  LEVEL                OF    WARNING  RESERVE
1         B         [######....]  640    1000  200      50
2         KX        [#.........]  120.5  1000  200      50       below its warning level
3         T         [..........]  20     1000  200      50       below its reserve

2024-02-29 07:08:09  hardware error 2: the canister of circuit 5 is empty
""")
            told = json.loads(self.done(driver, "status", "--json", "--on", "dispenser:2"))
        self.assertEqual((told["ok"], told["kind"], told["machine"]["disp_id"]), (True, "dispenser", 2))
        self.assertEqual(told["status"]["value"]["tinting"], True)
        self.assertEqual(told["pours"][0]["percentage"], 42)
        self.assertEqual([each["level"] for each in told["canisters"]], ["good", "warning", "reserve"])
        self.assertEqual(told["errors"][0]["words"], "hardware error 2: the canister of circuit 5 is empty")

    def test_mixer_of_a_driver_without_dispenser(self):
        with FakeDriver(GET_STATUS=refused("DE03104", "no machine", 5), GET_ACTIVE_DISP=listed([], [7]),
                        MIXER_STATUS=mixer(mixing=True, cycle_id=2, timeleft=95, mixing_speed=50, clamping_force=20)) as driver:
            self.assertEqual(self.done(driver, "status"),
                             "Mixer 7, machine 7, M-1, serial number SN7\nMixing in progress\n"
                             "  cycle 2, 1 min 35 s left, speed 50, force 20\n")

    def test_driver_that_tells_little(self):
        with FakeDriver(GET_STATUS=dispenser()) as driver:
            self.assertEqual(self.done(driver, "status"), "Dispenser\nAt rest\n")

    def test_capping_station(self):
        flags = {"m_zdr_mixingInProgress": "mixing in progress", "m_zdr_openingPlatesInProgress": "plates opening",
                 "m_zdr_closingPlatesInProgress": "plates closing", "m_zdr_pluggingInProgress": "plugging in progress",
                 "m_zdr_canCentered": "can centred", "m_zdr_plasticPlugReserve": "few plugs left",
                 "m_zdr_plasticPlugNotMounted": "no plug mounted", "m_zdr_homePosition": "at its home position"}
        for flag, words in flags.items():
            with FakeDriver(GET_STATUS=dispenser(**{flag: True})) as driver:
                self.assertEqual(self.done(driver, "status"), f"Dispenser\nCapping station: {words}\n")

    def test_real_driver(self):
        with quvdriver_process.Driver("--machine", "dispenser") as driver:
            out = self.done(type("Port", (), {"port": str(driver.port)}), "status")
        self.assertRegex(out, r"\ADispenser.*\nHead 1 ready to dispense\n\nCANISTER  COLORANT .*\n1 +AXX +\[#")
        self.assertEqual(len(re.findall(r"(?m)^\d+ +[A-Z]+ +\[", out)), 16)


class Errors(MachineTest):
    def test_errors(self):
        told = errors(hardware_error(3, 4), {**hardware_error(5, 0), "error_type": 3}, hardware_error(99, 7))
        with FakeDriver(GET_ERRORS=told, CLEAR_ERRORS=envelope(0)) as driver:
            lines = ["2024-02-29 07:08:09  hardware error 3: circuit 4 is blocked",
                     "2024-02-29 07:08:09  configuration error 5: the configuration has a field that is out of its range",
                     "2024-02-29 07:08:09  hardware error 99 of module 7, value 0"]
            self.assertEqual(self.done(driver, "errors", TZ="UTC").splitlines(), lines)
            self.assertEqual(driver.orders(), [])
            self.assertEqual(self.done(driver, "errors", "--clear", TZ="UTC").splitlines(), [*lines, "cleared"])
            self.assertEqual(driver.orders(), [("", "CLEAR_ERRORS")])
            reply = json.loads(self.done(driver, "errors", "--json"))
        self.assertEqual((reply["cleared"], [each["code"] for each in reply["errors"]]), (False, [3, 5, 99]))

    def test_what_nobody_has_seen_is_not_cleared(self):
        with FakeDriver(GET_ERRORS=errors(hardware_error(3, 4)), CLEAR_ERRORS=envelope(0)) as driver:
            with open("/dev/full", "wb") as full:
                process = subprocess.run([quvctl_process.PROGRAM, "errors", "--clear", "--port", driver.port], timeout=30,
                                         stdin=subprocess.DEVNULL, stdout=full, stderr=subprocess.PIPE, check=False)
            self.assertEqual((process.returncode, driver.orders()), (1, []))
        with FakeDriver(GET_ERRORS=errors(hardware_error(3, 4))) as driver:
            code, out, _ = self.call(driver, "errors", "--clear", TZ="UTC")
        self.assertEqual((code, out), (1, "2024-02-29 07:08:09  hardware error 3: circuit 4 is blocked\n"))

    def test_none(self):
        with FakeDriver(GET_ERRORS=errors()) as driver:
            self.assertEqual(self.done(driver, "errors"), "no errors\n")


class Watch(MachineTest):
    def lines(self, driver, *words):
        out = self.done(driver, "watch", "--interval", "0.01", *words)
        return [line[9:] for line in out.splitlines()]

    def test_errors_and_levels(self):
        old, new = hardware_error(1, 0), hardware_error(2, 5, "2024-02-29T07:09:00.000Z")
        with FakeDriver(GET_STATUS=dispenser(), GET_ERRORS=[errors(old), errors(old), errors(old, new)],
                        GET_CANISTER_LIST=[canisters(canister(1, "B", 640), canister(2, "KX", 150)),
                                           canisters(canister(1, "B", 190), canister(2, "KX", 150)),
                                           canisters(canister(1, "B", 40), canister(2, "KX", 900))]) as driver:
            self.assertEqual(self.lines(driver, "--count", "4"), [
                "Machine status 1", "hardware error 1: the emergency button was pressed",
                "canister 2 (KX) is below its warning level: 150 of 1000",
                "canister 1 (B) is below its warning level: 190 of 1000",
                "hardware error 2: the canister of circuit 5 is empty",
                "canister 1 (B) is below its reserve: 40 of 1000",
                "canister 2 (KX) is above its warning level again: 900 of 1000"])

    def test_the_same_error_twice(self):
        def told(*seconds):
            return errors(*[hardware_error(3, 5, f"2024-02-29T07:09:{each:02}.000Z") for each in seconds])

        line = "hardware error 3: circuit 5 is blocked"  # whatever time the driver tells, and each as often as it is there
        with FakeDriver(GET_STATUS=dispenser(),
                        GET_ERRORS=[told(1), told(2), told(3, 3), told(4, 4), told(5), told(6, 6)]) as driver:
            self.assertEqual(self.lines(driver, "--count", "7"), ["Machine status 1", line, line, line])

    def test_changes_of_a_dispenser(self):
        status = [dispenser(head1_can_dose=True, m_zdr_homePosition=True), dispenser(stall_high=True, current_position_id=4),
                  dispenser(recirculating=True, current_position_id=7), dispenser(head1_can_dose=True, pumping=True)]
        with FakeDriver(GET_STATUS=status) as driver:
            self.assertEqual(self.lines(driver, "--count", "4"), [
                "Machine status 1", "Head 1 ready to dispense", "Capping station: at its home position",
                "Position 4", "No longer: Head 1 ready to dispense", "No longer: Capping station: at its home position",
                "Stall high",
                "Recirculation in progress", "Position 7", "No longer: Stall high",
                "Recirculation not in progress", "No longer: Position 7", "Head 1 ready to dispense", "pumping"])

    def test_mixer_of_a_driver_without_dispenser(self):
        with FakeDriver(GET_STATUS=refused("DE03104", "no machine", 5), GET_ERRORS=errors(hardware_error(1, 0)),
                        MIXER_STATUS=[mixer(), mixer(mixing=True)]) as driver:
            self.assertEqual(self.lines(driver, "--count", "2"), [
                "Machine status 1", "hardware error 1: the emergency button was pressed", "Mixing in progress"])
        self.assertEqual([driver.names().count(name) for name in ["GET_STATUS", "MIXER_STATUS", "GET_CANISTER_LIST"]], [1, 2, 0])

    def test_another_machine_is_no_change(self):
        with FakeDriver(GET_STATUS=[dispenser(), refused("DE03104", "no machine", 5)], MIXER_STATUS=mixer()) as driver:
            lines = self.lines(driver, "--count", "2")
        self.assertEqual(lines[:2], ["Machine status 1", "No status: DE03104: no machine"])
        self.assertNotIn("MIXER_STATUS", driver.names())

    def test_real_driver(self):
        """A circuit that is blocked for a while, and an error that stays: each is told once."""
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "scenario.json")
            with open(path, "w", encoding="utf-8") as file:
                json.dump({"events": [{"at": 10, "event": "circuit_blocked", "circuit": 5, "for": 10},
                                      {"at": 25, "event": "emergency", "for": 5}]}, file)
            with quvdriver_process.Driver("--machine", "dispenser", "--speed", "5", "--scenario", path) as driver, \
                    start("watch", "--interval", "0.02", "--port", str(driver.port)) as process:
                watchdog = threading.Timer(30, process.kill)
                watchdog.start()
                lines = []
                while not lines or lines[-1] != "Emergency button released":
                    lines.append(process.stdout.readline()[9:-1])
                    self.assertNotEqual(lines[-1], "", lines)
                asked = []
                with driver.client() as client:
                    for _ in range(3):  # a few more questions of the program meanwhile
                        asked.append(client.EXEC_B("GET_ERRORS")["ret_value"]["fw_errors"])
                        time.sleep(0.1)
                process.terminate()
                lines += [line[9:-1] for line in process.stdout.read().splitlines(True)]
                watchdog.cancel()
        for text in ["Stall high", "No longer: Stall high", "hardware error 1: the emergency button was pressed"]:
            self.assertEqual(lines.count(text), 1, lines)
        self.assertEqual([len(each) for each in asked], [1, 1, 1])
        self.assertEqual(asked[0], asked[2])

    def test_json(self):
        with FakeDriver(GET_STATUS=dispenser(), GET_ERRORS=errors(hardware_error(1, 0)),
                        GET_CANISTER_LIST=canisters(canister(1, "B", 90))) as driver:
            told = [json.loads(line) for line in
                    self.done(driver, "watch", "--json", "--count", "3", "--interval", "0.01").splitlines()]
        self.assertEqual([list(each)[1] for each in told], ["class", "new_errors", "crossed_levels"])
        self.assertTrue(all(re.fullmatch(r"\d{4}-\d\d-\d\dT.*Z", each["time"]) for each in told))
        self.assertEqual((told[1]["new_errors"][0]["code"], told[2]["crossed_levels"][0]["level"]), (1, "warning"))

    def test_mixer(self):
        with FakeDriver(MIXER_STATUS=[mixer(), mixer(mixing=True), mixer(emergency_pressed=True)]) as driver:
            lines = self.lines(driver, "--count", "3", "--on", "mixer:7")
        self.assertEqual(lines, ["Machine status 1", "Mixing in progress", "Emergency button pressed",
                                 "No longer: Mixing in progress"])
        self.assertEqual(driver.names().count("GET_CANISTER_LIST"), 0)

    def test_a_driver_that_refuses_is_asked_once(self):
        with FakeDriver(GET_STATUS=dispenser()) as driver:
            self.assertEqual(self.lines(driver, "--count", "3"), ["Machine status 1"])
        self.assertEqual([driver.names().count(name) for name in ["GET_STATUS", "GET_ERRORS", "GET_CANISTER_LIST"]], [3, 1, 1])


class Processes(MachineTest):
    QUICK = ("--interval", "0.01")

    def test_stirring_to_the_end(self):
        status = [dispenser(), *[dispenser(stirring=True)] * 6, dispenser()]
        with FakeDriver(GET_STATUS=status, STIRRING=envelope(0)) as driver:
            out = self.done(driver, "stir", *self.QUICK).splitlines()
        self.assertEqual((out[0], out[-1]), ("stirring all circuits for 30 s", "stirred"))
        self.assertEqual(driver.orders(), [("", "STIRRING", 0, 30, False)])
        self.assertGreaterEqual(driver.names().count("GET_STATUS"), 8)

    def test_what_is_sent(self):
        for words, sent in [
                (["stir", "3min", "--circuit", "4"], [("STIRRING", 4, 180, False)]),
                (["stir", "1h30min", "--circuit", "4,B,4"], [("STIRRING", 4, 5400, False), ("STIRRING", 12, 5400, False)]),
                (["stir", "endless"], [("STIRRING", 0, 60515, False)]),
                (["stir", "off"], [("STIRRING", 0, 0, False)]),
                (["recirculate", "45", "--speed", "60"], [("RECIRCULATION", 0, 45, 60, 0, False)]),
                (["recirculate", "off", "--circuit", "3"], [("RECIRCULATION", 3, 0, 245, 0, False)]),
                (["clean", "circuits", "20s"], [("CLEANING", 1, 245, 20, 0, False)]),
                (["clean", "brush", "5s"], [("CLEANING", 0, 245, 5, 0, False)]),
                (["clean", "nozzles", "--circuit", "3"], [("NOZZLE_CLEAN", 3, 60515)]),
                (["clean", "ultrasound"], [("ULTRASOUND_CLEAN", 1, 245)]),
                (["clean", "fill", "1min"], [("ULTRASOUND_CLEAN", 3, 60)]),
                (["move", "shelf", "up", "--height", "300"], [("SHELF_MOVE", 0, 300)]),
                (["move", "shelf", "down"], [("SHELF_MOVE", 1, 0)]),
                (["move", "cap", "open"], [("AUTOCAP_MOVE", 1)]),
                (["move", "cap", "close"], [("AUTOCAP_MOVE", 0)]),
                (["move", "table", "5"], [("TURNTABLE_MOVE", 5, 1, 2, 0, 0, 245)]),
                (["move", "table", "5", "--refill"], [("TURNTABLE_MOVE_TO_REFILL", 5)]),
                (["move", "table", "reference"], [("TURNTABLE_MOVE", 0, 0, 2, 0, 0, 245)])]:
            with FakeDriver(GET_STATUS=dispenser(), GET_CANISTER_LIST=canisters(canister(2, "B", 640)),
                            **{sent[0][0]: envelope(0)}) as driver:
                self.done(driver, *words, "--no-wait", *self.QUICK)
            self.assertEqual(driver.orders(), [("", *each) for each in sent], words)

    def test_a_mixers_plates(self):
        for goal, action in [("open", 0), ("close", 1)]:
            status = [mixer(), mixer(clamping=True), mixer(clamping=True), mixer()]
            with FakeDriver(MIXER_STATUS=status, MIXER_PLATES=envelope(0)) as driver:
                out = self.done(driver, "move", "plates", goal, *self.QUICK).splitlines()
            self.assertEqual(driver.orders(), [("", "MIXER_PLATES", action, 60515, 245, 0)])
            self.assertEqual(out[-1], "moved")
            self.assertGreaterEqual(driver.names().count("MIXER_STATUS"), 4)

    def test_mixing(self):
        def cycle(kind, speed, force, duration):
            return {"cycle_type": kind, "mixing_speed": speed, "clamping_force": force, "duration": duration}

        for words, cycles in [
                (["3min", "--speed", "50"], [cycle(1, 50, 50, 180)]),
                (["1min@30", "20", "--force", "9", "--type", "2"], [cycle(2, 30, 9, 60), cycle(2, -1, 9, 20)]),
                (["10", "--times", "2"], [cycle(1, -1, 50, 10)] * 2)]:
            with FakeDriver(MIXER_STATUS=[mixer(), mixer(cycle_active=True), mixer()], MIX=envelope(0)) as driver:
                out = self.done(driver, "mix", *words, *self.QUICK).splitlines()
            self.assertEqual(driver.orders(), [("", "MIX", {"mixer_cycles": cycles})])
            self.assertEqual(out[-1], "mixed")

    def test_mixing_that_is_interrupted(self):
        with FakeDriver(MIXER_STATUS=[mixer(), mixer(cycle_active=True), mixer(cycle_interrupted=True)],
                        MIX=envelope(0)) as driver:
            code, _, err = self.call(driver, "mix", "3min", *self.QUICK)
        self.assertEqual((code, err), (1, "Cycle interrupted\n"))

    def test_refused_by_the_firmware(self):
        with FakeDriver(GET_STATUS=dispenser(), STIRRING=envelope(0),
                        GET_CMD_STATUS=ticket(-1, refused("DE03106", "The firmware refused the code 0004", 4))) as driver:
            code, _, err = self.call(driver, "stir", *self.QUICK)
        self.assertEqual(code, 1)
        self.assertTrue(err.startswith("DE03106: The firmware refused the code 0004\n"), err)

    def test_refused_since_it_is_busy(self):
        busy = "DE03106: The firmware refused the code 0004: Machine not available (masks 0x0 and 0x8)"
        for text, hint in [(busy, "hint: quvctl status --on dispenser:2 tells what the machine is at\n"),
                           (busy + "; the machine has no stirrers", "")]:
            with FakeDriver(GET_STATUS=dispenser(), STIRRING=refused("DE03106", text[9:], 4)) as driver:
                _, _, err = self.call(driver, "stir", "--on", "dispenser:2")
            self.assertEqual(err, f"{text}\n{hint}Failed! Command not executed due to errors on firmware.\n")

    def test_circuits_that_are_not_there(self):
        circuits = envelope({"circuit_list": [
            {"id": i, "position_id": i, "enabled": True, "canister_id": i, "colorant_id": 0, "stirring_enabled": True,
             "recirculation_enabled": True, "pump_type": 0, "pump_serial_number": "", "head_ref_id": 1} for i in (1, 12)]})
        with FakeDriver(GET_CIRCUIT_LIST=circuits, GET_CANISTER_LIST=canisters(canister(2, "B", 640)), GET_STATUS=dispenser(),
                        STIRRING=envelope(0)) as driver:
            for word, text in [("99", "the machine has no circuit 99; quvctl circuits tells which it has"),
                               ("B,2", "the machine has no circuit 2;"),
                               (",", '--circuit takes positions and codes of colorants, such as 3,KX; not ","'),
                               ("B,", '--circuit takes positions and codes of colorants, such as 3,KX; not "B,"'),
                               ("b", 'the machine has no circuit with the colorant b; did you mean "B"?'),
                               ("Q", "the machine has no circuit with the colorant Q (see quvctl help)")]:
                code, out, err = self.call(driver, "stir", "--circuit", word)
                self.assertEqual((code, out), (2, ""))
                self.assertIn(text, err)
            self.assertEqual(driver.orders(), [])
            self.done(driver, "stir", "--circuit", "1,B", "--no-wait", *self.QUICK)
            self.assertEqual([order[2] for order in driver.orders()], [1, 12])

    def test_what_goes_wrong_meanwhile(self):
        with FakeDriver(GET_STATUS=[dispenser(hw_error=True), dispenser(hw_error=True, stirring=True),
                                    dispenser(hw_error=True, stirring=True, emergency_pressed=True)],
                        STIRRING=envelope(0)) as driver:
            code, out, err = self.call(driver, "stir", "--json", *self.QUICK)
        reply = json.loads(out)
        self.assertEqual((code, err), (1, "Emergency button pressed\n"))
        self.assertEqual((reply["ok"], reply["text"], reply["process"], reply["state"]),
                         (False, "Emergency button pressed", "stirring all circuits for 30 s", "disturbed"))

    def test_what_goes_wrong_is_no_success(self):
        with FakeDriver(GET_STATUS=[dispenser(), dispenser(stirring=True), dispenser(stirring=True),
                                    dispenser(emergency_pressed=True)], STIRRING=envelope(0)) as driver:
            code, out, err = self.call(driver, "stir", *self.QUICK)
        self.assertEqual((code, err), (1, "Emergency button pressed\n"))
        self.assertNotIn("stirred", out)
        self.assertNotIn("success", out)

    def test_driver_that_goes_away(self):
        with FakeDriver(GET_STATUS=dispenser(stirring=True), STIRRING=envelope(0)) as driver:
            with start("stir", *self.QUICK, "--port", driver.port) as process:
                until(lambda: driver.names().count("GET_STATUS") > 3)
                driver.__exit__()
                _, err = process.communicate(timeout=30)
        self.assertEqual(process.returncode, 1)
        self.assertTrue(err.startswith("the machine goes on; look at it with: quvctl status "), err)

    def test_wrong_interval_sends_nothing(self):
        with FakeDriver(GET_STATUS=dispenser(), STIRRING=envelope(0)) as driver:
            self.assertEqual(self.call(driver, "stir", "--interval", "0")[0], 2)
        self.assertEqual(driver.orders(), [])

    def test_interrupt(self):
        with FakeDriver(GET_STATUS=dispenser(stirring=True), STIRRING=envelope(0)) as driver:
            with start("stir", *self.QUICK, "--port", driver.port) as process:
                until(lambda: driver.names().count("GET_STATUS") > 3)
                process.send_signal(signal.SIGINT)
                _, err = process.communicate(timeout=30)
        self.assertEqual((process.returncode, err), (
            130, f"the machine goes on; look at it with: quvctl status --port {driver.port}\n"
                 "Ctrl-C again within 2 seconds stops the machine\n"))
        self.assertEqual(driver.orders(), [("", "STIRRING", 0, 30, False)])

    def test_wrong(self):
        for words, text in [
                (["stir", "0"], "a time is a number of seconds from 1 to 60514"),
                (["stir", "17h"], "a time is a number of seconds from 1 to 60514"),
                (["stir", "fast"], 'such as 90s, 3min, 1h30min; not "fast"'),
                (["stir", "--circuit", "0"], "a circuit's position is a number from 1 to 255, not 0"),
                (["recirculate", "--speed", "0"], "--speed takes a number from 1 to 100"),
                (["clean", "brushes"], 'did you mean "brush"?'),
                (["clean", "brush", "--circuit", "3"], "clean brush is not of circuits"),
                (["mix", "3min@0"], "a cycle is TIME or TIME@SPEED"),
                (["mix"], "mix needs TIME[@SPEED]..."),
                (["move", "shelf", "up"], "move shelf up needs --height"),
                (["move", "shelf", "left"], 'move shelf goes to up, down, not "left"'),
                (["move", "plates", "up"], 'move plates goes to open, close, not "up"'),
                (["move", "door", "open"], 'move has shelf, table, cap and plates, not "door"'),
                (["move", "cap", "open", "--height", "3"], "--height belongs to move shelf"),
                (["move", "table", "300"], "a circuit's position is a number from 1 to 255")]:
            self.assertIn(text, self.wrong(*words, "--port", "1"), words)


class Refill(MachineTest):
    LIST = canisters(canister(1, "B", 640), canister(2, "KX", 150), canister(3, "KX", 20))

    def refill(self, *words):
        with FakeDriver(GET_CANISTER_LIST=self.LIST, SET_LEVELS=envelope(0)) as driver:
            out = self.done(driver, "refill", *words)
        (_, name, delta, formula, refilled), = driver.orders()
        self.assertEqual((name, formula["formula_type"], formula["quantity_unit"], refilled), ("SET_LEVELS", 3, 3, True))
        return delta, dict(zip(formula["ids"], formula["quantities"])), out

    def test_amounts(self):
        delta, amounts, out = self.refill("B=300", "3=full")
        self.assertEqual((delta, amounts), (True, {"1": 300.0, "3": 980.0}))
        self.assertEqual([line.split()[:2] for line in out.splitlines()], [["CANISTER", "COLORANT"], ["1", "B"], ["3", "KX"]])

    def test_levels(self):
        self.assertEqual(self.refill("B=700", "2=full", "--level")[:2], (False, {"1": 700.0, "2": 1000.0}))

    def test_wrong(self):
        with FakeDriver(GET_CANISTER_LIST=self.LIST) as driver:
            for word, text in [("KX=5", "the colorant KX is in the canisters 2, 3: name one by its number"),
                               ("ZZ=5", "the machine has no canister ZZ"), ("B", "B is no CANISTER=AMOUNT"),
                               ("B=much", "B=much is no CANISTER=AMOUNT"),
                               ("b=5", 'the machine has no canister b; did you mean "B"?'),
                               ("kx=5", 'the machine has no canister kx; did you mean "KX"?'),
                               ("B=-5", "B=-5 is less than nothing; a level that is too high is set right by --level")]:
                code, out, err = self.call(driver, "refill", word)
                self.assertEqual((code, out), (2, ""))
                self.assertIn(text, err)
            self.assertEqual(driver.orders(), [])

    def test_real_driver(self):
        with quvdriver_process.Driver("--machine", "dispenser") as driver:
            port = type("Port", (), {"port": str(driver.port)})
            self.done(port, "refill", "B=1000", "--level", "-q")
            out = self.done(port, "refill", "B=250.5")
            self.assertEqual(out.splitlines()[1].split()[:2], ["2", "B"])
            self.assertIn(" 1250.5 ", out)


class Sensors(MachineTest):
    FLAGS = """offline_pressed can_present heater_on hum_pump_active emergency_btn_pressed cap_open cap_close cap_free
        shelf_security_pressed shelf_high shelf_low shelf_puncher SHELF_cap_free SHELF_cap_close SHELF_can_present
        SHELF_stuck_controls SHELF_up_button SHELF_down_button SHELF_security_button MASTER_48V MASTER_48V_SW MASTER_24V
        BHL_active LIT_active PC_relay_active autocap_active brush_motor_active brake_active heater_active bluetooth_active
        rollbar_unlocked brush2_motor_active""".split()

    def told(self, *active):
        return envelope({**dict.fromkeys(self.FLAGS, False), **dict.fromkeys(active, True)})

    def test_sensors(self):
        with FakeDriver(GET_SENSORS_STATUS=[self.told("can_present", "shelf_low"), self.told("cap_open"), self.told()]) as driver:
            self.assertEqual(self.done(driver, "sensors"), "can present\nshelf down\n")
            reply = json.loads(self.done(driver, "sensors", "--json"))
            self.assertEqual((reply["active"], reply["value"]["cap_open"], reply["value"]["cap_close"]),
                             (["cap open"], True, False))
            self.assertEqual(self.done(driver, "sensors"), "no sensor is active\n")


class Circuits(MachineTest):
    def test_circuits(self):
        def at(position, **flags):
            return {"position_id": position, "status_answer": dispenser(**flags)["ret_value"]}

        with FakeDriver(GET_CIRCUITS_STATUS=envelope({"circuits_status_answers": [at(11, stirring=True, tinting=True), at(12)]}),
                        GET_CANISTER_LIST=canisters(canister(1, "B", 640)),
                        GET_ACTIVE_CIRCUITS=envelope({"circuit_process": 3, "positions_id": [11, 14],
                                                      "status_type_masks": [2, 1], "status_type_mask": 2})) as driver:
            self.assertEqual(self.done(driver, "circuits"), """\
CIRCUIT  COLORANT  DOES
11       B         pours, stirs
12                 nothing
""")
            self.assertEqual(json.loads(self.done(driver, "circuits", "--json"))["circuits"],
                             [{"position": 11, "colorant": "B", "does": ["pours", "stirs"]},
                              {"position": 12, "colorant": "", "does": []}])
            self.assertEqual(self.done(driver, "circuits", "--process", "3"), "circuits engaged: 11, 14\n")
        self.assertIn(("", "GET_ACTIVE_CIRCUITS", 3), driver.asked)


class Lists(unittest.TestCase):
    """What the driver tells of its built-in dispenser: 16 canisters, each with the circuit of the same number."""

    def test_lists(self):
        with quvdriver_process.Driver("--machine", "dispenser") as driver:
            def told(name, *params):
                with driver.client() as client:
                    reply = client.EXEC_B(name, *params)
                self.assertEqual(reply["ret_code"], 0, reply)
                return reply["ret_value"]

            listed_canisters = told("GET_CANISTER_LIST")["canister_list"]
            self.assertEqual(len(listed_canisters), 16)
            self.assertEqual(listed_canisters[1], {
                "id": 2, "enabled": True, "cur_q": 2000.0, "max_q": 3000.0, "res_q": 150.0, "res_w": 300.0, "circuits": [2],
                "positions": [2], "colorant_id": 0, "colorant_code": "B"})
            circuits = told("GET_CIRCUIT_LIST")["circuit_list"]
            self.assertEqual([(each["id"], each["position_id"], each["canister_id"]) for each in circuits],
                             [(i, i, i) for i in range(1, 17)])
            colorants = told("GET_COLORANT_LIST", True)["colorant_list"]
            self.assertEqual((len(colorants), colorants[0]["code"]), (16, "AXX"))
            self.assertIn({"id": 0, "enabled": True, "description": "Automatic cap", "accept_commands": True, "type": 0},
                          told("GET_DEVICE_LIST")["device_list"])

    def test_without_a_dispenser(self):
        with quvdriver_process.Driver("--machine", "mixer") as driver:
            with driver.client() as client:
                reply = client.EXEC_B("GET_CANISTER_LIST")
        self.assertEqual((reply["ret_code"], reply["errors"][0]["code"]), (5, "DE03104"))


if __name__ == "__main__":
    quvctl_process.PROGRAM = sys.argv.pop(2)
    quvdriver_process.main()
