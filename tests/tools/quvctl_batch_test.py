# SPDX-License-Identifier: LGPL-3.0-or-later
"""quvctl batch as a program: literal requests in, literal replies out. Usage: quvctl_batch_test.py QUVCTL"""

import json
import os
import subprocess
import sys
import tempfile
import threading
import unittest

import programmemory

QUVCTL = ""
LONGEST = 16 * 1024 * 1024

GET_PROTO_VALUE = ("static ProtoCommand* ProtoCommandList::getProtoCommand"
                   "(QString, XmlRpc::XmlRpcValue&, const FW_Machine*)")
GET_PROTO_LIST = ("static ProtoCommand* ProtoCommandList::getProtoCommand"
                  "(QString, QList<QVariant>, const FW_Machine*)")
PROTO_VALUE = "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)"
PROTO_LIST = "ProtoCommand::ProtoCommand(int, QString, QList<QVariant>, const FW_Machine*)"

# What a dispenser's status holds when nothing is going on.
IDLE = {
    "disp_status": 1, "current_position_id": 0, "current_position_id_zone": 0, "normal_wm": True,
    **dict.fromkeys("""
        offline_pressed board_not_initialized startup resetting BL_active BL_memory_resetting BL_fw_update conf_writing
        hw_error conf_error process_error stop_process disp_info_writing disp_info_erasing new_buffered_error
        dispenser_not_ready emergency_pressed can_present shelf_up shelf_down WM_set door_open machine_turned_off
        machine_unlocked tinting recirculating stirring valve_on cap_open bellow_up no_24_voltage no_48_voltage punching
        slave_scan post_erogation turntable_moving cleaning formula_interrupted nozzle_valve_working_pos
        circuit_fin_presence airpurge head1_can_dose head2_can_dose predispensing pumping nozzle_moving
        nozzle_valve_open_accurate canister_lvl_critical new_cleaning_stats stall_low stall_high check_level_in_progress
        speed_red_in_recirc plc_start_activated plc_stop_activated m_zdr_mixingInProgress m_zdr_openingPlatesInProgress
        m_zdr_closingPlatesInProgress m_zdr_pluggingInProgress m_zdr_canCentered m_zdr_plasticPlugReserve
        m_zdr_plasticPlugNotMounted m_zdr_homePosition""".split(), False)}


def status(**changes):
    assert set(changes) <= set(IDLE)
    return {**IDLE, **changes}


def refused(code, text, function):
    return {"ok": False, "code": code, "text": text, "function": function}


def bad(text):
    return refused("", text, "")


def unique(pairs):
    keys = [key for key, _ in pairs]
    assert len(keys) == len(set(keys)), keys
    return dict(pairs)


class BatchTest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.process = subprocess.Popen([QUVCTL, "batch"], stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    @classmethod
    def tearDownClass(cls):
        cls.process.stdin.close()
        status_at_end = cls.process.wait(30)
        cls.process.stdout.close()
        assert status_at_end == 0, status_at_end

    def send(self, line):
        """The reply line to a line of bytes."""
        watchdog = threading.Timer(120, self.process.kill)  # 16 MiB take their time under sanitizers
        watchdog.start()
        self.process.stdin.write(line + b"\n")
        self.process.stdin.flush()
        reply = self.process.stdout.readline()
        watchdog.cancel()
        self.assertTrue(reply.endswith(b"\n"), reply)
        return reply.decode("utf-8")

    def ask(self, request):
        text = request if isinstance(request, str) else json.dumps(request)
        return json.loads(self.send(text.encode("utf-8")), object_pairs_hook=unique)

    def expect(self, request, reply):
        got = self.ask(request)
        self.assertEqual(got, reply)
        # True == 1 and 1.0 == 1 in Python, but not on the wire
        self.assertEqual(json.dumps(got, sort_keys=True), json.dumps(reply, sort_keys=True))


class Catalogue(BatchTest):
    def test_rows(self):
        reply = self.ask({"op": "catalogue"})
        self.assertIs(reply["ok"], True)
        rows = reply["rows"]
        self.assertEqual(len(rows), 167)
        self.assertEqual([row["id"] for row in rows], list(range(167)))
        self.assertEqual(list(rows[0].items()), [
            ("id", 0), ("name", "GET_STATUS"), ("code", "0006"), ("altCode", "I3"), ("maxParams", 1), ("minParams", 0),
            ("type", 0), ("target", 1), ("multiple", False), ("addressMachine", True), ("workingPriorityLevel", 0),
            ("schedulingPriorityLevel", 6), ("checkBusy", False), ("busyTimeout", 0), ("trackExecutionTime", False),
            ("recordInStats", False), ("machineObjUsage", 0), ("privateCommand", False), ("erogationCommand", False),
            ("familyMask", 3)])
        self.assertEqual(rows[8], {
            "id": 8, "name": "TINT", "code": "0017", "altCode": "", "maxParams": 1, "minParams": 1, "type": 5,
            "target": 1, "multiple": False, "addressMachine": True, "workingPriorityLevel": 0,
            "schedulingPriorityLevel": 0, "checkBusy": True, "busyTimeout": 9999999, "trackExecutionTime": True,
            "recordInStats": True, "machineObjUsage": 2, "privateCommand": False, "erogationCommand": True,
            "familyMask": 3})
        self.assertEqual(rows[166]["name"], "PAUSE")

    def query(self, expected, what, **arguments):
        self.expect({"op": "query", "what": what, **arguments}, {"ok": True, "value": expected})

    def test_lookups(self):
        self.query(True, "existsCommand", name="GET_STATUS")
        self.query(False, "existsCommand", name="get_status")
        self.query("TINT", "cmdStr", value=8)
        self.query("", "cmdStr", value=167)
        self.query("", "cmdStr", value=-1)
        self.query(10, "cmdParamNum", name="BOARD_MEMORY", mandatory=False)
        self.query(6, "cmdParamNum", name="BOARD_MEMORY", mandatory=True)
        self.query(-1, "cmdParamNum", name="NOPE", mandatory=True)
        self.query(6, "cmdParamNum", value=40, mandatory=True)
        self.query(-1, "cmdParamNum", value=167, mandatory=False)
        self.query("0006", "cmdCode", name="GET_STATUS", family=1)
        self.query("I3", "cmdCode", name="GET_STATUS", family=2)
        self.query("", "cmdCode", name="TINT", family=3)
        self.query("", "cmdCode", name="NOPE", family=1)
        self.query("EXEC_B", "functionCallStr", mode=1)
        self.query("EXEC_NB", "functionCallStr", mode=2)
        self.query("EXEC_B", "functionCallStr", mode=3)
        self.query("EXEC_NC", "functionCallStr", mode=4)

    def test_targets(self):
        for name, dispenser, mixer in [("TINT", True, False), ("MIX", False, True), ("RESET", True, True),
                                       ("GET_HOST_INFO", False, False), ("NOPE", False, False)]:
            self.query(dispenser, "targetIsDispenser", name=name)
            self.query(mixer, "targetIsMixer", name=name)
            self.query(dispenser or mixer, "targetIsMachine", name=name)

    def test_kinds(self):
        # of each: strictly, and otherwise
        table = {
            "isSerialCommand": {"GET_ERRORS": (True, True), "SET_SERIAL": (False, True), "STOP": (False, True),
                                "TINT": (False, True), "CLEAN_CONFIG": (False, False), "NOPE": (False, False)},
            "isConfigurationCommand": {"LOGIN": (True, True), "SET_SERIAL": (False, True), "STOP": (False, True),
                                       "CLEAN_CONFIG": (False, True), "TINT": (False, False)},
            "isSerialAndConfigCommand": {"SET_SERIAL": (True, True), "STOP": (False, True), "TINT": (False, False)},
            "isConfigAndSerialCommand": {"STOP": (True, True), "SET_SERIAL": (False, True), "TINT": (False, False)},
            "isSpecialCommand": {"TINT": (False, True), "CLEAN_CONFIG": (False, True), "STOP": (False, False)},
            "isSpecialAndSerialCommand": {"TINT": (True, True), "CLEAN_CONFIG": (False, False)},
            "isSpecialAndConfigCommand": {"CLEAN_CONFIG": (True, True), "TINT": (False, False)},
            "isScaleCommand": {"WEIGHT": (True, True), "TINT": (False, False), "NOPE": (False, False)},
        }
        for what, names in table.items():
            for name, (strictly, otherwise) in names.items():
                self.query(strictly, what, name=name, strict=True)
                self.query(otherwise, what, name=name, strict=False)

    def test_fields(self):
        self.query(True, "isMultipleCommand", name="CHECK_BUSY")
        self.query(False, "isMultipleCommand", name="TINT")
        self.query(False, "addressMachine", name="LOGIN")
        self.query(True, "addressMachine", name="TINT")
        self.query(True, "hasHighSchedulingPriority", name="GET_SHELF_POS")
        self.query(False, "hasHighSchedulingPriority", name="TINT")
        self.query(True, "checkBusyFlag", name="TINT")
        self.query(False, "checkBusyFlag", name="GET_STATUS")
        self.query(500000, "busyTimeout", name="ULTRASOUND_CLEAN")
        self.query(9999999, "commandTimeout", name="TINT")
        self.query(0, "commandTimeout", name="GET_STATUS")
        self.query(True, "trackExecutionTime", name="TINT")
        self.query(False, "trackExecutionTime", name="PRIMING")
        self.query(True, "recordInStats", name="CLEANING")
        self.query(False, "recordInStats", name="RESET")
        self.query(2, "machineObjUsage", name="TINT")
        self.query(0, "machineObjUsage", name="NOPE")
        self.query(True, "privateCommand", name="GET_ERROR_PKT")
        self.query(False, "privateCommand", name="TINT")
        self.query(True, "erogationCommand", name="MIX")
        self.query(False, "erogationCommand", name="STIRRING")

    def test_what_may_be_left_out(self):
        self.query(True, "isSerialCommand", name="STOP")  # not strict: firmware and driver share it
        self.query(3, "cmdParamNum", name="PURGE")  # the greatest number
        self.query("0006", "cmdCode", name="GET_STATUS")  # family 1
        self.query("EXEC_B", "functionCallStr")

    def test_bad_queries(self):
        for request, text in [
                ({"what": "nope"}, '"what" names no query of the catalogue'),
                ({}, '"what" is missing'),
                ({"what": "existsCommand"}, '"name" is missing'),
                ({"what": "existsCommand", "name": 5}, '"name" must be a string'),
                ({"what": "isSerialCommand", "name": "TINT", "strict": 1}, '"strict" must be true or false'),
                ({"what": "cmdStr", "value": "8"}, '"value" must be a whole number'),
                ({"what": "cmdStr", "value": 4294967304}, '"value" must be a whole number of 32 bits'),
                ({"what": "cmdCode", "name": "TINT", "family": 1.0}, '"family" must be a whole number')]:
            self.expect({"op": "query", **request}, bad(text))


class Encode(BatchTest):
    def encode(self, reply, **request):
        self.expect({"op": "encode", **request}, reply)

    def test_status_request(self):
        plain = {"ok": True, "class": "DispenserStatusCmd", "request": ["GET_STATUS", 0], "parameters": [0],
                 "code": "0006", "module": 0, "serial": [], "estimated_ms": 0, "command": "", "action": "",
                 "action_detailed": ""}
        self.encode(plain, name="GET_STATUS")
        self.encode(plain, name="GET_STATUS", args=[], form="list", machine="dispenser")
        module3 = {**plain, "request": ["GET_STATUS", 3], "parameters": [3], "module": 3}
        self.encode(module3, name="GET_STATUS", args=[3])
        self.encode(module3, name="GET_STATUS", args=[3], form="list", machine="mixer")
        self.encode({**plain, "code": "I3"}, name="GET_STATUS", family=2)
        self.encode({**plain, "code": ""}, name="GET_STATUS", family=3)

    def test_objects_in_a_list(self):
        cycle = {"cycle_type": 2, "mixing_speed": -1, "clamping_force": 7, "duration": 300}
        mix = {"ok": True, "class": "MixCmd", "request": ["MIX", {"mixer_cycles": [cycle]}], "parameters": [[cycle]],
               "code": "0031", "module": 0, "serial": [0, 1, 5, 2, 245, 7, 54, 1], "estimated_ms": 0, "command": "",
               "action": "Mix in progress", "action_detailed": "Mix in progress"}
        self.encode(mix, name="MIX", args=[{"mixer_cycles": [cycle]}])
        self.encode(mix, name="MIX", args=[[cycle]], form="list", machine="mixer")

    def test_enumerations(self):
        plates = {"ok": True, "class": "MixerPlatesCmd", "request": ["MIXER_PLATES", 2, 60515, 245, 0],
                  "parameters": [2, 60515, 245, 0], "code": "0030", "module": 0, "serial": [2, 245, 245, 245, 0],
                  "estimated_ms": 0, "command": "", "action": "Mixer plates movement in progress",
                  "action_detailed": "Mixer plates movement in progress"}
        self.encode(plates, name="MIXER_PLATES", args=[2])
        self.encode(plates, name="MIXER_PLATES", args=[2, 60515, 245, 0], form="list")

    def test_texts_of_the_bases(self):
        self.encode({"ok": True, "class": "ConfProtoCommand", "request": ["GET_DRIVER_SETTINGS"], "parameters": [],
                     "estimated_ms": 20000, "command": "Application settings read",
                     "action": "Retrieving application settings",
                     "action_detailed": "Retrieving application settings"}, name="GET_DRIVER_SETTINGS")
        self.encode({"ok": True, "class": "SerialProtoCommand", "request": ["FINALIZE_CONFIG"], "parameters": [],
                     "code": "0067", "module": 0, "serial": [], "estimated_ms": 0, "command": "",
                     "action": "In progress", "action_detailed": "In progress"}, name="FINALIZE_CONFIG")
        self.encode({"ok": True, "class": "ConfProtoCommand", "request": ["GET_USS_W_STATUS"], "parameters": [],
                     "estimated_ms": 240000, "command": "", "action": "", "action_detailed": ""},
                    name="GET_USS_W_STATUS")

    def test_refusals(self):
        self.encode(refused("DE00298", "Position ID: expected INT parameter",
                            "DispenserStatusCmd::DispenserStatusCmd(const XmlRpc::XmlRpcValue&)"),
                    name="GET_STATUS", args=[1.0])
        self.encode(refused("DE00300", "Position ID: expected INT parameter",
                            "DispenserStatusCmd::DispenserStatusCmd(QList<QVariant>)"),
                    name="GET_STATUS", args=["1"], form="list")
        self.encode(refused("DE00312", "TINT command : expected at least 1 parameters, received 0 instead!",
                            PROTO_VALUE), name="TINT")
        self.encode(refused("DE00313", "TINT command : expected at least 1 parameters, received 0 instead!",
                            PROTO_LIST), name="TINT", form="list")
        self.encode(refused("DE00311", "ProtoCommand: expected array for xmlrpc type", PROTO_VALUE),
                    name="GET_STATUS", args={"position": 1})
        self.encode(refused("DE00337", "Command type not recognized", GET_PROTO_VALUE), name="NOPE")
        self.encode(refused("DE00441", "Command type not recognized", GET_PROTO_LIST), name="NOPE", form="list")

    def test_bad_requests(self):
        self.encode(bad('"name" is missing'))
        self.encode(bad('"name" must be a string'), name=None)
        self.encode(bad('"form" must be "value" or "list"'), name="GET_STATUS", form="xml")
        self.encode(bad('"args" must be an array'), name="GET_STATUS", args={}, form="list")
        self.encode(bad('"args": the whole number 2147483648 does not fit in 32 bits'),
                    name="GET_STATUS", args=[2147483648])
        self.encode(bad('"args": the whole number -2147483649 does not fit in 32 bits'),
                    name="GET_STATUS", args=[-2147483649], form="list")
        self.encode(bad('"args": null is no value of the protocol'), name="GET_STATUS", args=[None])
        self.encode(bad('"family" must be a whole number'), name="GET_STATUS", family="1")

    def test_texts_quote_forty_characters(self):
        name = "x" * 100000
        for machine, colorant in [(name, "B"), ("dispenser", name)]:
            formula = {"formula_type": 4, "quantity_unit": 3, "quantities": [1.0], "ids": [colorant]}
            text = self.ask({"op": "encode", "name": "TINT", "args": [formula], "machine": machine})["text"]
            self.assertIn('"' + "x" * 40 + '..."', text)
            self.assertLess(len(text), 200)

    def test_machine_file(self):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "machine.json")
            with open(path, "w", encoding="utf-8") as file:
                file.write('{"type": "dispenser", "heads": 2, "command_family": 2}')
            self.assertIs(self.ask({"op": "encode", "name": "GET_STATUS", "machine": path})["ok"], True)
            os.mkfifo(path + "pipe")
            pipe = self.ask({"op": "encode", "name": "GET_STATUS", "machine": path + "pipe"})
            self.assertIn("it is no regular file", pipe["text"])
            missing = self.ask({"op": "encode", "name": "GET_STATUS", "machine": path + "x"})
        self.assertIs(missing["ok"], False)
        self.assertEqual(missing["code"], "")
        self.assertIn(path + "x", missing["text"])


class Formulas(BatchTest):
    """Arguments that are objects: structs in both forms, and written as such."""

    def encode(self, form, name, argument):
        reply = self.ask({"op": "encode", "name": name, "args": [argument], "form": form, "machine": "dispenser"})
        self.assertEqual(reply["parameters"], reply["request"][1:])
        return reply

    def test_formula(self):
        given = {"formula_type": 4, "quantity_unit": 3, "ids": ["B"], "quantities": [10]}
        for form in ["value", "list"]:
            reply = self.encode(form, "TINT", given)
            self.assertEqual(reply["class"], "TintCmd")
            self.assertEqual(reply["request"], ["TINT", {
                **given, "quantities": [10.0], "exec_criterion": 0, "levels_policy": 0, "decimals": 3}])
            self.assertEqual(reply["serial"], [2, 1, 2, 1, 50, 2, 96, 4])  # 1080 steps = 4 * 246 + 96

    def test_circuits_with_strokes(self):
        given = {"exec_criterion": 2,
                 "target_circuits": [{"position_id": 3, "queue_id": 1, "speed": 40, "strokes": 2}]}
        for form in ["value", "list"]:
            self.assertEqual(self.encode(form, "PRIMING2", given)["request"], ["PRIMING2", given])

    def test_refusals(self):
        for form, code in [("value", "DE00437"), ("list", "DE00775")]:
            reply = self.ask({"op": "encode", "name": "TINT", "form": form, "machine": "dispenser", "args": [
                {"formula_type": 4, "quantity_unit": 3, "ids": ["B"], "quantities": []}]})
            self.assertEqual((reply["ok"], reply["code"]), (False, code))
        self.assertEqual(self.ask({"op": "encode", "name": "TINT", "form": "list", "args": [5]})["code"], "DE00439")


class Decode(BatchTest):
    def decode(self, tokens, reply):
        self.expect({"op": "decode", "name": "GET_STATUS", "args": [], "tokens": tokens}, reply)

    def answer(self, descriptions, **changes):
        return {"ok": True, "class": "DispenserStatusAnswer", "value": status(**changes),
                "descriptions": [{"text": text, "bad": is_bad} for text, is_bad in descriptions]}

    def test_shortest_answer(self):
        self.decode(["6", "0", "1", "0", "0", "0", "0"], self.answer([]))
        self.decode(["6", "anything", "2", "0", "0", "0", "1"], self.answer([], disp_status=2, normal_wm=False))

    def test_bits(self):
        self.decode(["6", "0", "1", "7F", "0", "40", "0"], self.answer(
            [("Emergency button pressed", True), ("Offline button pressed", True), ("Board not initialized", True),
             ("Startup in progress", True), ("Reset in progress", False), ("Tinting in progress", False),
             ("Recirculation in progress", False), ("Stirring in progress", False)],
            offline_pressed=True, board_not_initialized=True, tinting=True, recirculating=True, stirring=True,
            startup=True, resetting=True, emergency_pressed=True))
        self.decode(["6", "0", "1", "0", "3", "2", "16"], self.answer(
            [("At least one valve ON", False), ("Autocap opened", False), ("Bellows up", False),
             ("Punching in progress", False)],
            valve_on=True, cap_open=True, bellow_up=True, no_24_voltage=True, no_48_voltage=True, punching=True))

    def test_all_words(self):
        self.decode(["C", "0", "1", "0", "0", "0", "0", "40", "F5", "3", "4", "48", "2", "40", "8"], self.answer(
            [("Door open", False), ("Machine turned off while working", True), ("Head 1 ready to dispense", False),
             ("One or more canister under critical level", True), ("Stall low", False)],
            door_open=True, current_position_id_zone=3, head1_can_dose=True, machine_turned_off=True,
            canister_lvl_critical=True, stall_low=True, m_zdr_canCentered=True, m_zdr_homePosition=True))

    def test_positions(self):
        self.decode(["8", "0", "1", "0", "0", "0", "0", "0", "1F", "F5"],
                    self.answer([], current_position_id=31))
        self.decode(["8", "0", "1", "0", "0", "0", "0", "0", "zz", "9"],
                    self.answer([], current_position_id_zone=9))

    def test_refusals(self):
        machine = "MachineStatusAnswer::MachineStatusAnswer(QStringList)"
        serial = "SerialProtoAnswer::SerialProtoAnswer(QStringList)"
        dispenser = "DispenserStatusAnswer::DispenserStatusAnswer(QStringList)"
        mask = "Error during command answer decoding: mask "
        for tokens, code, text, function in [
                ([], "DE00066", "Error during command answer decoding: bad length", machine),
                (["5", "0", "1", "0", "0"], "DE00066", "Error during command answer decoding: bad length", machine),
                (["6", "0", "0", "0", "0", "0", "0"], "DE00068",
                 "Error during command answer decoding: conversion failed", machine),
                (["6", "0", "3", "0", "0", "0", "0"], "DE00068",
                 "Error during command answer decoding: conversion failed", machine),
                (["ZZ", "0", "1", "0", "0", "0", "0"], "DE00070",
                 "Invalid parameter length type found in answer", serial),
                (["7", "0", "1", "0", "0", "0", "0"], "DE00077",
                 "Error during command answer decoding: bad length", serial),
                (["5", "0", "1", "0", "0", "0"], "DE02666", "Error during command answer decoding", dispenser),
                (["6", "0", "1", "x", "0", "0", "0"], "DE00128", mask + "1", dispenser),
                (["6", "0", "1", "0", "x", "0", "0"], "DE00129", mask + "2", dispenser),
                (["6", "0", "1", "0", "0", "x", "0"], "DE00130", mask + "3", dispenser),
                (["6", "0", "1", "0", "0", "0", "x"], "DE00113", mask + "4", dispenser),
                (["7", "0", "1", "0", "0", "0", "0", "x"], "DE01454", mask + "5", dispenser),
                (["A", "0", "1", "0", "0", "0", "0", "0", "0", "0", "x"], "DE02242", mask + "8", dispenser),
                (["B", "0", "1", "0", "0", "0", "0", "0", "0", "0", "0", "x"], "DE02430", mask + "9", dispenser),
                (["C", "0", "1", "0", "0", "0", "0", "0", "0", "0", "0", "0", "x"], "DE02628", mask + "10",
                 dispenser),
                (["D", "0", "1", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "x"], "DE02877", mask + "10",
                 dispenser),
                (["E", "0", "1", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "x"], "DE02878", mask + "10",
                 dispenser)]:
            self.decode(tokens, refused(code, text, function))

    def test_plain_answer(self):
        self.expect({"op": "decode", "name": "FINALIZE_CONFIG", "tokens": ["1", "A", "B"]},
                    {"ok": True, "class": "SerialProtoAnswer", "value": 0})
        self.expect({"op": "decode", "name": "FINALIZE_CONFIG", "tokens": []},
                    refused("DE00076", "Empty answer received", "SerialProtoAnswer::SerialProtoAnswer(QStringList)"))

    def test_bad_requests(self):
        self.decode("6", bad('"tokens" must be an array of strings'))
        self.decode([6], bad('"tokens" must be an array of strings'))
        self.expect({"op": "decode", "name": "GET_STATUS"}, bad('"tokens" is missing'))
        self.expect({"op": "decode", "name": "LOGOUT", "args": ["x"], "tokens": []},
                    bad('"name": LOGOUT is no serial command, so tokens are no answer to it'))


class Answers(BatchTest):
    def test_answer(self):
        value = status(disp_status=2, tinting=True, hw_error=True, current_position_id=7)
        reply = {"ok": True, "class": "DispenserStatusAnswer", "value": value,
                 "descriptions": [{"text": "Hardware error present", "bad": True},
                                  {"text": "Tinting in progress", "bad": False}]}
        self.expect({"op": "answer", "name": "GET_STATUS", "args": [], "value": value}, reply)
        # members that are written and never read
        self.expect({"op": "answer", "name": "GET_STATUS",
                     "value": {**value, "WM_set": True, "disp_info_writing": True, "disp_info_erasing": True}}, reply)

    def test_answer_without_optional_members(self):
        value = status()
        for key in ["new_buffered_error", "normal_wm", "door_open", "slave_scan", "current_position_id",
                    "m_zdr_homePosition"]:
            del value[key]
        self.expect({"op": "answer", "name": "GET_STATUS", "value": value},
                    {"ok": True, "class": "DispenserStatusAnswer", "value": status(), "descriptions": []})

    def test_answer_refusals(self):
        machine = "MachineStatusAnswer::MachineStatusAnswer(const XmlRpc::XmlRpcValue&)"
        dispenser = "DispenserStatusAnswer::DispenserStatusAnswer(const XmlRpc::XmlRpcValue&)"
        for key, replacement, code, text, function in [
                ("disp_status", None, "DE00443", "MachineStatusAnswer: expected disp_status value", machine),
                ("disp_status", True, "DE00443", "MachineStatusAnswer: expected disp_status value", machine),
                ("hw_error", None, "DE00026", "MachineStatusAnswer: expected hw_error value", machine),
                ("hw_error", 0, "DE00026", "MachineStatusAnswer: expected hw_error value", machine),
                ("can_present", None, "DE00026", "DispenserStatusAnswer: expected can_present value", machine),
                ("punching", None, "DE00026", "DispenserStatusAnswer: expected punching value", dispenser)]:
            value = status()
            del value[key]
            if replacement is not None:
                value[key] = replacement
            self.expect({"op": "answer", "name": "GET_STATUS", "value": value}, refused(code, text, function))
        self.expect({"op": "answer", "name": "GET_STATUS"}, bad('"value" is missing'))

    def test_plain_answer(self):
        self.expect({"op": "answer", "name": "FINALIZE_CONFIG", "value": {"a": [1, 2.0]}},
                    {"ok": True, "class": "SerialProtoAnswer", "value": 0})


class Envelopes(BatchTest):
    def setanswer(self, envelope, reply, **more):
        self.expect({"op": "setanswer", "name": "GET_STATUS", "envelope": envelope, **more}, reply)

    def test_success(self):
        value = status(stirring=True)
        self.setanswer({"ret_code": 0, "info": "done", "ret_value": value, "errors": [], "exec_time": 12},
                       {"ok": True, "envelope": {"ret_code": 0, "info": "done", "printable": ["Success!"]},
                        "class": "DispenserStatusAnswer", "value": value})

    def test_refusal_of_the_machine(self):
        self.setanswer({"ret_code": 4, "info": "no", "ret_value": 0, "errors": []},
                       {"ok": True, "envelope": {
                           "ret_code": 4, "info": "no",
                           "printable": ["Failed! Command not executed due to errors on firmware."]}})

    def test_ticket(self):
        self.setanswer({"ret_code": 0, "info": "", "ret_value": {"ticket_id": "T-1"}, "errors": []},
                       {"ok": True, "envelope": {"ret_code": 0, "info": "", "printable": ["Success!"]},
                        "class": "AsyncAnswer", "value": {"ticket_id": "T-1"}}, **{"async": True})

    def test_envelopes_that_are_none(self):
        whole = {"ret_code": 0, "info": "", "ret_value": 0, "errors": []}
        function = "XmlRpcAnswer::XmlRpcAnswer(const XmlRpc::XmlRpcValue&)"
        for change, code, text in [
                ({"ret_value": None}, "DE00356", "XmlRpcAnswer: expected ret_value value"),
                ({"ret_code": None}, "DE00357", "XmlRpcAnswer: expected ret_code value"),
                ({"ret_code": True}, "DE00357", "XmlRpcAnswer: expected ret_code value"),
                ({"info": None}, "DE00358", "XmlRpcAnswer: expected info value"),
                ({"errors": None}, "DE00366", "XmlRpcAnswer: expected errors value"),
                ({"errors": {}}, "DE00365", "XmlRpcAnswer: bad type for errors value: Array expected"),
                ({"exec_time": 1.5}, "DE00523", "XmlRpcAnswer: error decoding execution time value")]:
            envelope = {key: value for key, value in {**whole, **change}.items() if value is not None}
            self.setanswer(envelope, refused(code, text, function))
        self.setanswer(5, refused("DE00355", "XmlRpcAnswer: expected struct type for xmlrpc type", function))
        self.setanswer(whole, refused("DE00443", "MachineStatusAnswer: expected disp_status value",
                                      "MachineStatusAnswer::MachineStatusAnswer(const XmlRpc::XmlRpcValue&)"))
        self.setanswer(whole, bad('"async" must be true or false'), **{"async": 0})
        self.expect({"op": "setanswer", "name": "GET_STATUS"}, bad('"envelope" is missing'))

    def envelope(self, written, **request):
        self.expect({"op": "envelope", **request}, {"ok": True, "value": written})

    def test_writing(self):
        self.envelope({"ret_code": 4, "info": "TINT : Failed! Command not executed due to errors on firmware.",
                       "ret_value": {"a": [1, 2.0, True, "x"]}, "errors": [], "exec_time": 5},
                      ret_code=4, value={"a": [1, 2.0, True, "x"]}, command="TINT", time=4294967301)
        self.envelope({"ret_code": 0, "info": "TINT command executed successfully!", "ret_value": 7, "errors": [],
                       "exec_time": 12}, ret_code=0, value=7, command="TINT", time=12)
        self.envelope({"ret_code": 0, "info": "Command executed successfully!", "ret_value": 0, "errors": [],
                       "exec_time": 0}, ret_code=0)
        for code, text in [(1, "Failed! Xml-rpc command invalid for Driver."),
                           (2, "Failed! Serial answer invalid for Driver."),
                           (3, "Failed! Serial command invalid for firmware."),
                           (5, "Failed! Command not executed due to errors on the driver configuration."),
                           (6, "Failed! Command not executed due to errors in Driver internal procedures."),
                           (7, "Command has been interrupted!"),
                           (8, "Failed! Command not executed due to generic errors."),
                           (9, "Failed! Generic error."), (-1, "Failed! Generic error.")]:
            self.envelope({"ret_code": code, "info": "Command failed! : " + text, "ret_value": 0, "errors": [],
                           "exec_time": 0}, ret_code=code, command="")

    def test_bad_requests(self):
        self.expect({"op": "envelope"}, bad('"ret_code" is missing'))
        self.expect({"op": "envelope", "ret_code": 2147483648}, bad('"ret_code" must be a whole number of 32 bits'))
        self.expect({"op": "envelope", "ret_code": 0, "time": 1.0}, bad('"time" must be a whole number'))
        self.expect({"op": "envelope", "ret_code": 0, "value": {"$base64": "?"}},
                    bad('"value": "$base64" holds no valid base64'))

    def test_numbers_keep_their_types(self):
        raw = self.send(b'{"op":"envelope","ret_code":0,"value":[3,3.0,-0.0,1e3,0.1,1e300,123456789.125,true]}')
        self.assertIn('"ret_value":[3,3.0,-0.0,1000.0,0.1,1e+300,123456789.125,true]', raw)

    def test_text_and_binary(self):
        value = {"caf\u00e9": "\u20ac \U0001f600 \u0000 \n\"", "bytes": {"$base64": "AP8="}}
        reply = self.ask({"op": "envelope", "ret_code": 0, "value": value})
        self.assertEqual(reply["value"]["ret_value"], value)


class Status(BatchTest):
    def status(self, reply, struct, **request):
        """The reply as told, but for the members that most states share."""
        value = {"status": reply["status"], "info": "", "extra_info": "", "time_left": 0,
                 "percentage": reply["percentage"], "cmd_answer": 0, **struct}
        self.expect({"op": "status", **request},
                    {"ok": True, "valid": True, "extra_info": "", "time_tracking": True, **reply, "value": value})

    def test_executing(self):
        self.status({"status": 1, "description": "Executing...", "info": "pouring", "extra_info": "circuit 3",
                     "time_left": "About 60 seconds remaining...", "percentage": 10},
                    {"time_left": 59400, "info": "pouring", "extra_info": "circuit 3"},
                    status=1, time_left=59400, percentage=10, info="pouring", extra_info="circuit 3", verbose=True)
        self.status({"status": 1, "description": "Executing...", "info": "Executing...", "time_left": "00:59",
                     "percentage": 10}, {"time_left": 59400}, status=1, time_left=59400, percentage=10)

    def test_states(self):
        for state, text in [(3, "Created..."), (2, "Queued..."), (1, "Executing...")]:
            self.status({"status": state, "description": text, "info": text, "time_left": "00:00", "percentage": 0,
                         "time_tracking": state != 1}, {}, status=state)
        for state, text in [(0, "Done successfully!"), (-1, "Errors in command execution!"), (-2, "Unknown"),
                            (-3, "Interrupted!"), (-4, "Timeout elapsed!")]:
            self.status({"status": state, "description": text, "info": text,
                         "time_left": "About 1 seconds remaining...", "percentage": 100}, {},
                        status=state, verbose=True, time_left=5000, percentage=7)

    def test_states_that_there_are_not(self):
        for state in [-5, 4, 2147483647]:
            self.status({"status": -5, "valid": False, "description": "Unknown", "info": "Unknown",
                         "time_left": "00:00", "percentage": 0}, {}, status=state, time_left=5000, percentage=7)

    def test_limits_of_percentage_and_time(self):
        for given, kept in [(-1, 0), (0, 0), (99, 99), (100, 99), (2147483647, 99)]:
            self.status({"status": 2, "description": "Queued...", "info": "Queued...", "time_left": "00:00",
                         "percentage": kept}, {}, status=2, percentage=given, time_left=-1)

    def test_time_left(self):
        def time_left(milliseconds, verbose, struct=None):
            reply = self.ask({"op": "status", "status": 1, "time_left": milliseconds, "verbose": verbose})
            if struct is not None:
                self.assertEqual(reply["value"]["time_left"], struct)
            return reply["time_left"]

        hour, day = 3600000, 86400000
        self.assertEqual(time_left(59000, False), "00:59")
        self.assertEqual(time_left(hour - 1, False), "59:59")
        self.assertEqual(time_left(hour, False), "01:00:00")
        self.assertEqual(time_left(day - 1000, False), "23:59:59")
        self.assertEqual(time_left(day, False), "00:00")
        self.assertEqual(time_left(day + 61000, False), "01:01")
        self.assertEqual(time_left(125000, True), "About 2 minutes and 6 seconds remaining...")
        self.assertEqual(time_left(2 * hour + 3 * 60000, True),
                         "About 2 hours, 3 minutes and 1 seconds remaining...")
        self.assertEqual(time_left(day + 11000, True), "About 12 seconds remaining...")
        # 64 bits here; the struct has 32
        self.assertEqual(time_left(1000 * day + hour, False, 504254080), "01:00:00")

    def test_result(self):
        result = {"ret_code": 0, "info": "done", "ret_value": [1, 2.0], "errors": []}
        self.status({"status": 0, "description": "Done successfully!", "info": "Done successfully!",
                     "time_left": "00:00", "percentage": 100}, {"cmd_answer": result}, status=0, value=result)
        self.status({"status": 1, "description": "Executing...", "info": "Executing...", "time_left": "00:00",
                     "percentage": 0, "time_tracking": False}, {}, status=1, value=result)

    def test_bad_requests(self):
        self.expect({"op": "status"}, bad('"status" is missing'))
        self.expect({"op": "status", "status": "1"}, bad('"status" must be a whole number'))
        self.expect({"op": "status", "status": 2147483648}, bad('"status" must be a whole number of 32 bits'))
        self.expect({"op": "status", "status": 1, "time_left": 1.5}, bad('"time_left" must be a whole number'))
        self.expect({"op": "status", "status": 1, "percentage": 2147483648},
                    bad('"percentage" must be a whole number of 32 bits'))
        self.expect({"op": "status", "status": 1, "info": 5}, bad('"info" must be a string'))
        self.expect({"op": "status", "status": 1, "extra_info": None}, bad('"extra_info" must be a string'))
        self.expect({"op": "status", "status": 1, "verbose": 1}, bad('"verbose" must be true or false'))
        self.expect({"op": "status", "status": 0, "value": None},
                    bad('"value": null is no value of the protocol'))


class Supports(BatchTest):
    def test_no_gate(self):
        self.expect({"op": "supports", "name": "GET_STATUS", "args": [], "family": 63, "revision": 38},
                    {"ok": True, "supported": True})

    def test_bad_requests(self):
        self.expect({"op": "supports", "name": "GET_STATUS", "family": 63}, bad('"revision" is missing'))
        self.expect({"op": "supports", "name": "GET_STATUS"}, bad('"family" is missing'))
        self.expect({"op": "supports", "name": "NOPE", "family": 63, "revision": 38},
                    refused("DE00337", "Command type not recognized", GET_PROTO_VALUE))


class CommandLists(BatchTest):
    """What one machine can do."""

    def commands(self, **request):
        reply = self.ask({"op": "commands", **request})
        self.assertIs(reply["ok"], True, reply)
        told = [command["name"] for command in reply["value"]["command_list"]]
        self.assertEqual(told, [command["name"] for command in reply["commands"]])
        return {command["name"]: command for command in reply["commands"]}

    def test_filled(self):
        self.assertEqual(len(self.commands()), 148)
        self.assertEqual(self.commands()["TINT"], {
            "id": 8, "name": "TINT", "code": "0017", "minParams": 1, "maxParams": 1, "type": 5, "multiple": False,
            "useDispenser": True, "schedulingPriorityLevel": 0, "workingPriorityLevel": 0, "checkBusy": True,
            "trackExecutionTime": True, "busyTimeout": 9999999, "busyCheckFrequency": 500, "recordInStats": True,
            "machineObjUsage": 2, "privateCommand": False, "erogationCommand": True, "available": True, "version": 0})
        self.assertEqual(list(self.commands(device=4, family=2)), [
            "RESET", "GET_ERRORS", "CLEAR_ERRORS", "READ_FW_VERSION", "GET_CMD_LIST", "GET_ACTIVE_DISP"])
        self.assertEqual(self.commands(device=2), {})
        self.assertEqual(len(self.commands(offline=True)), 61)

    def test_updated(self):
        table = ["8", "2", "17", "0", "2", "5", "0", "0", "x"]
        commands = self.commands(tokens=table, firmware_family=63, revision=39, machine="dispenser")
        available = {name: command["available"] for name, command in commands.items()}
        self.assertTrue(available["TINT"] and available["RECIRCULATION"] and available["GET_KEY_CODE"])
        self.assertFalse(available["RESET"] or available["GET_STATUS"])
        self.assertEqual((commands["RECIRCULATION"]["version"], commands["TINT"]["version"]), (2, 2))
        commands = self.commands(tokens=table)
        self.assertFalse(commands["GET_KEY_CODE"]["available"])
        self.assertEqual(commands["RECIRCULATION"]["version"], 0)
        self.expect({"op": "commands", "tokens": ["2", "0", "0"]},
                    refused("DE00670", "Error during command answer decoding: bad length",
                            "FirmwareCommandsAnswer::FirmwareCommandsAnswer(QStringList)"))

    def test_read_by_a_client(self):
        command = {"id": 8, "name": "TINT", "code": "0017", "min_params": 1, "max_params": 1, "driver_cmd": False,
                   "version": 2}
        self.expect({"op": "commands", "value": {"command_list": [command]}}, {
            "ok": True, "class": "GetCommandListAnswer",
            "value": {"command_list": [{**command, "enabled": True, "time_tracking": False}]},
            "lines": ["Command TINT (version 2)"]})
        self.expect({"op": "commands", "value": {}},
                    refused("DE00433", "GetCommandListAnswer: Errors during ProtocolCommandInfo list creation",
                            "GetCommandListAnswer::GetCommandListAnswer(const XmlRpc::XmlRpcValue&)"))

    def test_bad_requests(self):
        self.expect({"op": "commands", "device": "1"}, bad('"device" must be a whole number'))
        self.expect({"op": "commands", "offline": 1}, bad('"offline" must be true or false'))
        self.expect({"op": "commands", "tokens": [], "revision": 39}, bad('"firmware_family" is missing'))


class Series(BatchTest):
    """The commands by which a driver carries out another."""

    def series(self, reply, **request):
        self.expect({"op": "series", **request}, reply)

    def test_autotest(self):
        reply = self.ask({"op": "series", "name": "AUTOTEST", "args": [2], "machine": "dispenser"})
        requests = [command["request"] for command in reply["commands"]]
        # of each of 16 circuits both ways of its valve, two recirculations and two pours
        self.assertEqual(len(requests), 2 * (16 * 8 + 2 + 6 + 1 + 1) + 1)
        self.assertEqual(requests[:4], [["SET_DISP_OUTPUT", 1, 1, 2, 0], ["PAUSE", 500],
                                        ["SET_DISP_OUTPUT", 1, 1, 1, 0], ["PAUSE", 500]])
        self.assertEqual(reply["commands"][-1], {"request": ["RESET", 0], "code": "0001", "module": 0, "serial": []})

    def test_stirring(self):
        commands = [{"request": ["STIRRING", position, 30, False], "code": "0004", "module": position, "serial": [30, 0, 0]}
                    for position in range(1, 17)]
        self.series({"ok": True, "commands": commands}, name="STIR_ALL", args=[30], machine="dispenser")

    def test_refusals(self):
        self.series(refused("DE01865", "AutotestCmd: invalid autotest cycles value",
                            "AutotestCmd::AutotestCmd(const XmlRpc::XmlRpcValue&)"),
                    name="AUTOTEST", args=[501], machine="dispenser")
        self.series(bad('"machine" must be a dispenser'), name="AUTOTEST")
        self.series(bad('"machine" must be a dispenser'), name="AUTOTEST", machine="mixer")
        self.series(bad('"name": RESET is no series of commands'), name="RESET", machine="dispenser")


class WaterChange(BatchTest):
    """What a status of the ultrasound cleaning's water says."""

    @staticmethod
    def status(last, current, maximum):
        return {"last_water_change_data": {"timestamp": "", "cleaning_cycles": last},
                "current_data": {"timestamp": "2026-03-02T09:15:30.250Z", "cleaning_cycles": current},
                "max_cleaning_cycles": maximum}

    def test_cycles(self):
        for last, current, maximum, needed, remaining in [(120, 150, 40, False, 10), (120, 160, 40, False, 0),
                                                          (120, 161, 40, True, 0), (120, 161, 0, False, 0),
                                                          (-2147483648, 2147483647, 2147483647, True, 0),
                                                          (2147483647, -2147483648, 1, False, 2147483647)]:
            status = self.status(last, current, maximum)
            self.expect({"op": "waterchange", "value": status},
                        {"ok": True, "needWaterChange": needed, "remainingCleaningCycles": remaining, "value": status})

    def test_refusals(self):
        self.expect({"op": "waterchange", "value": {}},
                    refused("DE02622", "UssWaterChangeStatus: Errors during xmlrpc decoding",
                            "UssWaterChangeStatus::UssWaterChangeStatus(const XmlRpc::XmlRpcValue&)"))
        self.expect({"op": "waterchange"}, bad('"value" is missing'))


SERIAL_TOKENS = "SerialProtoAnswer::SerialProtoAnswer(QStringList)"


class Refusals(BatchTest):
    """What a firmware answers to a command that it refuses."""

    def refusal(self, reply, **request):
        self.expect({"op": "refusal", **request}, reply)

    def test_reasons(self):
        flags = dict.fromkeys("""
            field_out_of_range no_etx bad_checksum bad_cmd_code bad_position_id bad_cmd_parameters
            cmd_refused_error_state conf_write_error conf_row_write_error dispenser_not_available
            bad_working_mode""".split(), False)
        self.refusal({"ok": True, "codes": [8, 10],
                      "texts": ["Command refused because of errors", "Configuration row writing error"],
                      "value": {"cmd_refused_error": {
                          **flags, "cmd_refused_error_state": True, "conf_row_write_error": True}}},
                     tokens=["6", "0", "5", "0", "0", "0", "0"])
        reply = self.ask({"op": "refusal", "tokens": ["6", "7F", "7F", "x", "x", "x", "x"]})
        self.assertEqual(reply["codes"], [1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12])
        self.assertEqual(reply["texts"], [
            "One or more fields contain values out of range", "ETX not present", "Bad checksum", "Unknown command code",
            "Wrong position ID", "Bad command parameters", "Command refused because of errors",
            "Configuration writing error", "Configuration row writing error", "Machine not available",
            "Bad working mode"])
        self.assertEqual(reply["value"], {"cmd_refused_error": dict.fromkeys(flags, True)})

    def test_tokens_that_are_none(self):
        answer = "CommandRefusedAnswer::CommandRefusedAnswer(QStringList)"
        error = "CommandRefusedError::CommandRefusedError(QStringList)"
        for tokens, code, text, function in [
                ([], "DE00076", "Empty answer received", SERIAL_TOKENS),
                (["5", "1", "0", "0", "0", "0"], "DE00063", "Error during command answer decoding: bad length", answer),
                (["6", "x", "0", "0", "0", "0", "0"], "DE00869",
                 "Error during command refused error decoding: mask 1", error),
                (["6", "0", "x", "0", "0", "0", "0"], "DE00870",
                 "Error during command refused error decoding: mask 2", error),
                (["6", "0", "0", "0", "0", "0", "0"], "DE00173",
                 "Command refused due to unknown reason. No refused answer bit set!", answer)]:
            self.refusal(refused(code, text, function), tokens=tokens)

    def test_raw_answers(self):
        self.refusal({"ok": True, "refused": True}, raw="A1A00BB00A0")
        self.refusal({"ok": True, "refused": True}, raw="A1A00BB00a")
        self.refusal({"ok": True, "refused": False}, raw="A1A00BB0A0")
        self.refusal({"ok": True, "refused": False}, raw="")

    def test_bad_requests(self):
        self.refusal(bad('a refusal needs "tokens" or "raw"'))
        self.refusal(bad('"tokens" must be an array of strings'), tokens="6 0 5")
        self.refusal(bad('"raw" must be a string'), raw=["0A"])


class Scales(BatchTest):
    """Scales, and how circuits are dosed by one."""

    def test_a_restart_that_only_a_driver_makes(self):
        for form, code in [("value", "DE02171"), ("list", "DE02172")]:
            reply = self.ask({"op": "encode", "class": "ScaleResetCmd", "args": [True], "form": form})
            self.assertEqual((reply["class"], reply["request"]), ("ScaleResetCmd", ["SCALE_RESET", True]))
            reply = self.ask({"op": "encode", "class": "ScaleResetCmd", "args": [1], "form": form})
            self.assertEqual((reply["code"], reply["text"]),
                             (code, "Hard reset value parameter: expected BOOL parameter"))
        reply = self.ask({"op": "encode", "name": "SCALE_RESET", "args": []})
        self.assertEqual((reply["class"], reply["request"]), ("ConfProtoCommand", ["SCALE_RESET"]))

    def test_objects_in_lists_are_their_structs(self):
        scale = {"scale_model": "Libra 6", "scale_unit": 1, "max_weight": 6.2, "precision": 3,
                 "scale_port": {"conn_type": 0, "conn_name": "/dev/ttyS1", "conn_address": ""}}
        circuits = [{"position_id": 3, "tolerance": 0.25, "max_corrections": 5}]
        test = {"current_scale_weight": 12.5, "driver_GE_settings": {"tolerance": 0.25, "max_corrections": 5}}
        for name, in_list, in_value in [("SET_SCALE_CONFIG", scale, {"scale": scale}),
                                        ("SET_GRAV_SETTINGS", circuits, {"circuits_grav_settings": circuits}),
                                        ("GET_GRAV_SETTINGS", [2, 3], {"positions_id": [2, 3]}),
                                        ("GE_TEST", test, test)]:
            for form, arguments in [("list", [in_list]), ("value", [in_value])]:
                reply = self.ask({"op": "encode", "name": name, "args": arguments, "form": form})
                self.assertEqual((reply.get("request"), reply.get("parameters")), ([name, in_value], [in_list]))

    def test_no_scale(self):
        self.assertEqual(self.ask({"op": "encode", "name": "SET_SCALE_CONFIG"})["request"],
                         ["SET_SCALE_CONFIG", {"scale": 0}])
        self.assertEqual(self.ask({"op": "answer", "name": "GET_SCALE_CONFIG", "value": [{"scale": 0}]}),
                         {"ok": True, "class": "GetScaleConfigAnswer", "value": [{"scale": 0}]})


class Errors(BatchTest):
    """The buffer of errors that a firmware keeps."""

    def test_three_commands_of_one_code(self):
        for name, arguments, class_name, serial in [("GET_ERROR_PKT", [5], "FwErrorCmd", [5]),
                                                    ("GET_ERROR_PKT", [], "FwErrorCmd", [0]),
                                                    ("CLEAR_ERRORS", [], "ClearErrorsCmd", [0])]:
            for form in ["value", "list"]:
                reply = self.ask({"op": "encode", "name": name, "args": arguments, "form": form})
                self.assertEqual((reply["class"], reply["code"], reply["serial"]), (class_name, "000C", serial))
                self.assertEqual((reply["request"], reply["parameters"], reply["module"]), ([name], [], 0))
        for form, code in [("value", "DE00465"), ("list", "DE00466")]:
            reply = self.ask({"op": "encode", "name": "GET_ERROR_PKT", "args": ["5"], "form": form})
            self.assertEqual((reply["code"], reply["text"]), (code, "Error Packet: expected INT parameter"))

    def test_a_packet(self):
        reply = self.ask({"op": "decode", "name": "GET_ERROR_PKT",
                          "tokens": ["8", "1", "0", "1", "7", "1", "2", "3", "60"]})
        self.assertEqual((reply["ok"], reply["class"]), (True, "FwErrorAnswer"))
        [error] = reply["value"]["fw_errors"]
        self.assertRegex(error.pop("timestamp"), r"^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z$")
        self.assertEqual(error, {"error_type": 2, "code": 182041, "module": 7, "value": 0, "flag": True, "device": 1})
        self.expect({"op": "decode", "name": "GET_ERROR_PKT", "tokens": ["3", "1", "0", "1"]},
                    refused("DE00092", "Error during command answer decoding: module value not found",
                            "FwErrorAnswer::FwErrorAnswer(QStringList)"))

    def test_the_errors_of_a_driver(self):
        time = {"timestamp": "2024-02-29T23:59:58.123Z"}
        errors = [{"error_type": 1, "code": "DE00289", "text": "Too few parameters", **time},
                  {"error_type": 3, "code": 99, "module": 2, "value": 5, "flag": True, **time},
                  {"error_type": 2, "code": 1, "module": 7, "value": 31, "flag": False, "device": 4, **time}]
        self.expect({"op": "answer", "name": "GET_ERRORS", "value": {"fw_errors": errors}},
                    {"ok": True, "class": "GetErrorsAnswer", "value": {"fw_errors": errors}})
        self.expect({"op": "answer", "name": "GET_ERROR_PKT", "value": {"fw_errors": errors}},
                    {"ok": True, "class": "FwErrorAnswer", "value": {"fw_errors": [errors[2], errors[1]]}})
        self.expect({"op": "decode", "name": "GET_ERRORS", "tokens": ["1", "x"]},
                    {"ok": True, "class": "GetErrorsAnswer", "value": {"fw_errors": []}})
        self.expect({"op": "answer", "name": "GET_ERRORS", "value": {}},
                    refused("DE00471", "GetErrorsAnswer: Errors during FW_ErrorList list creation (XmlRpcValue)",
                            "GetErrorsAnswer::GetErrorsAnswer(const XmlRpc::XmlRpcValue&)"))


class Classes(BatchTest):
    """Commands of classes that the factory never makes."""

    def test_number_of_errors(self):
        command = {"class": "ErrorNumCmd"}
        self.expect({"op": "encode", **command}, {
            "ok": True, "class": "ErrorNumCmd", "request": ["ERRORS_NUM"], "parameters": [], "code": "000C",
            "module": 0, "serial": [245], "estimated_ms": 0, "command": "", "action": "In progress",
            "action_detailed": "In progress"})
        number = {"ok": True, "class": "ErrorNumAnswer", "value": {"num_errors": 300, "packets_count": 17}}
        self.expect({"op": "decode", **command, "tokens": ["3", "36", "1", "11"]}, number)
        self.expect({"op": "answer", **command, "value": number["value"]}, number)
        self.expect({"op": "setanswer", **command, "envelope": {
            "ret_code": 0, "info": "", "ret_value": number["value"], "errors": []}},
            {**number, "envelope": {"ret_code": 0, "info": "", "printable": ["Success!"]}})
        self.expect({"op": "supports", **command, "family": 1, "revision": 0}, {"ok": True, "supported": True})
        self.expect({"op": "decode", **command, "tokens": ["2", "36", "1"]},
                    refused("DE00088", "Error during command answer decoding: bad length",
                            "ErrorNumAnswer::ErrorNumAnswer(QStringList)"))
        # by its name it is a plain command
        reply = self.ask({"op": "encode", "name": "ERRORS_NUM"})
        self.assertEqual((reply["class"], reply["serial"]), ("SerialProtoCommand", []))

    def test_what_the_driver_carries_out(self):
        port = {"conn_type": 1, "conn_name": "Velto", "conn_address": "00:11"}
        for class_name, name, args in [("GetDispensedFormulaConfCmd", "GET_DISPENSED_FORMULA", [2, 1]),
                                       ("SetConfSerialCmd", "SET_SERIAL", [port]), ("StopConfCmd", "STOP", [3, 2])]:
            for form in ["value", "list"]:
                reply = self.ask({"op": "encode", "class": class_name, "args": args, "form": form,
                                  "machine": "dispenser"})
                self.assertEqual((reply["ok"], reply.get("class"), reply.get("request")),
                                 (True, class_name, [name, *args]), reply)
        self.expect({"op": "encode", "class": "SetConfSerialCmd", "args": ["COM1"]},
                    refused("DE00442", "SetSerialCmd: unable to create FW_SerialPort object",
                            "SetSerialCmd::SetSerialCmd(const XmlRpc::XmlRpcValue&)"))
        self.expect({"op": "encode", "class": "StopConfCmd", "args": [4, 2]},
                    refused("DE01332", "StopCmd: invalid fw stop type value",
                            "StopConfCmd::StopConfCmd(const XmlRpc::XmlRpcValue&)"))

    def test_scans_for_firmware(self):
        versions = {"slave_versions": [{"board_address": 17, "app_version": [63, 0, 0, 0, 0, 38], "boot_version": []}]}
        tokens = ["4", "1", "11", "3F", "26"]
        for class_name, name, serial, answer in [
                ("FirmwareScanCmd", "FW_SCAN", [], "FirmwareScanAnswer"),
                ("FirmwareScanReadCmd", "FW_SCAN_READ", [2], "FirmwareScanAnswer"),
                ("FirmwareScanStartCmd", "FW_SCAN_START", [1], "SerialProtoAnswer")]:
            for form in ["value", "list"]:
                reply = self.ask({"op": "encode", "class": class_name, "form": form})
                self.assertEqual((reply["class"], reply["request"], reply["serial"]), (class_name, [name], serial))
            self.expect({"op": "decode", "class": class_name, "tokens": tokens},
                        {"ok": True, "class": answer, "value": 0 if serial == [1] else versions})
            # by its name it is a plain command
            self.assertEqual(self.ask({"op": "encode", "name": name})["class"], "SerialProtoCommand")

    def test_identifiers_of_a_command(self):
        command = {"class": "CommandIDCmd", "args": [23]}
        reply = self.ask({"op": "encode", **command})
        self.assertEqual((reply["class"], reply["code"], reply["serial"]), ("CommandIDCmd", "0068", [23]))
        self.expect({"op": "decode", **command, "tokens": ["3", "2", "11", "F5"]},
                    {"ok": True, "class": "CommandIDAnswer", "value": {"command_ids": [17, 245]}})
        self.assertEqual(self.ask({"op": "encode", "name": "GET_CMD_ID", "args": [23]})["class"], "SerialProtoCommand")

    def test_purges(self):
        purge = {"purge_quantity": 2.5, "quantity_unit": 3, "only_filled": True, "head": 0}
        for form, given in [("value", purge), ("value", [purge]), ("list", [2.5, 3, True, 0])]:
            reply = self.ask({"op": "encode", "class": "PurgeQuantityCmd", "args": given, "form": form})
            self.assertEqual((reply["class"], reply["request"]), ("PurgeQuantityCmd", ["PURGE", purge]))
        for form in ["value", "list"]:
            reply = self.ask({"op": "encode", "class": "PurgeCmd", "args": [purge], "form": form})
            self.assertEqual((reply["class"], reply["request"]), ("PurgeCmd", ["PURGE"]))
        self.assertEqual(self.ask({"op": "encode", "class": "PurgeCmd"})["code"], "DE00312")
        self.assertEqual(self.ask({"op": "encode", "class": "PurgeCmd", "form": "list"})["code"], "DE00313")

    def test_turntables(self):
        formula = {"formula_type": 1, "quantity_unit": 2, "ids": [1], "quantities": [3]}
        for class_name in ["TurntableTintCmd", "TurntablePurgeFormulaCmd"]:
            request = {"op": "encode", "class": class_name, "machine": "turntable", "args": [formula]}
            by_value = self.ask({**request, "position": 4})
            by_list = self.ask({**request, "args": [formula, 4], "form": "list"})
            self.assertEqual((by_value["class"], by_value["parameters"][-1]), (class_name, 4))
            self.assertEqual(by_list, by_value)
            self.assertEqual(self.ask(request)["parameters"][-1], 0)

    def test_a_client_that_asks_what_was_poured(self):
        for form in ["value", "list"]:
            reply = self.ask({"op": "encode", "class": "GetDispensedFormulaCmd", "args": [4, 3], "form": form})
            self.assertEqual((reply["class"], reply["request"]),
                             ("GetDispensedFormulaCmd", ["GET_DISPENSED_FORMULA", 4, 3]))
            self.assertNotIn("serial", reply)

    def test_bad_requests(self):
        unknown = bad('"class" names no class of commands that only a driver makes; others go by "name"')
        for name in ["TintCmd", "errornumcmd", ""]:
            self.expect({"op": "encode", "class": name}, unknown)
        self.expect({"op": "encode", "class": 5}, bad('"class" must be a string'))
        self.expect({"op": "encode", "class": "PurgeCmd", "form": "xml"}, bad('"form" must be "value" or "list"'))
        self.expect({"op": "encode", "class": "TurntableTintCmd", "args": [1], "position": "4"},
                    bad('"position" must be a whole number'))
        self.expect({"op": "decode", "class": "GetDispensedFormulaCmd", "tokens": ["0"]},
                    bad('"class": GET_DISPENSED_FORMULA is no serial command, so tokens are no answer to it'))


class Settings(BatchTest):
    """The driver's settings, and what it tells of itself."""

    DEFAULTS = {
        "AppProfile": "DEFAULT", "BTBannedDevices": "", "BTEnabled": False, "BTScanFilter": "VELTO_5G", "BTScanPolicy": 0,
        "BTTargetDevices": "", "BusyCheckFrequency": 500, "ConfigurationFileName": "configuration.xml",
        "ConfigurationPath": "/var/lib/velto/nuadriver/NUAlocal/config/",
        "CustomCalibrationProfilesFileName": "calibrationProfiles_custom.xml",
        "CustomCalibrationProfilesPath": "/var/lib/velto/nuadriver/NUAlocal/profiles/",
        "DefaultCalibrationProfilesFileName": "calibrationProfiles_default.xml",
        "DefaultCalibrationProfilesPath": "/config_data/", "LockConfiguration": False,
        "Logger": {"CompactLog": True, "LogFileEnabled": True, "LogFilePath": "/var/log/velto//",
                   "MaxFileSizeB": 5242880, "MaxNFile": 20},
        "QuantityPrecision": 4, "ScaleCom_AdvancedPortScanFilter": "", "ScaleCom_PortScanFilter": "",
        "SerCom_AdvancedPortScanFilter": "5G", "SerCom_PortScanFilter": "", "SerialConnScanFreq": 5000,
        "SerialScanLevel": 3, "SkipChecks": False, "StatsDBFileName2": "stats_db_V_1.db",
        "StatsDBPath": "/var/lib/velto/nuadriver/NUAlocal/stats/"}
    SHOP = {**DEFAULTS, "AppProfile": "SHOP"}

    def test_are_taken_from_struct_and_hash(self):
        logger = self.DEFAULTS["Logger"]
        self.expect({"op": "settings"}, {"ok": True, "value": self.DEFAULTS})
        self.expect({"op": "settings", "value": {"AppProfile": "SHOP"}}, {"ok": True, "value": self.SHOP})
        self.expect({"op": "settings", "value": {"AppProfile": 5}, "hash": {"AppProfile": "SHOP"}},
                    {"ok": True, "value": self.SHOP})
        self.expect({"op": "settings", "value": 5, "name": "driver"},
                    {"ok": True, "value": {**self.DEFAULTS, "Logger": {**logger, "LogFilePath": "/var/log/velto/driver/"}}})
        self.expect({"op": "settings", "hash": {"Logger_MaxNFile": "7", "SerialScanLevel": "4"}},
                    {"ok": True, "value": {**self.DEFAULTS, "Logger": {**logger, "MaxNFile": 7}}})
        self.expect({"op": "settings", "hash": 5}, bad('"hash" must be an object'))

    def test_are_sent(self):
        reply = {"ok": True, "class": "SetDriverSettingsCmd", "parameters": [self.SHOP],
                 "request": ["SET_DRIVER_SETTINGS", {"driver_settings": self.SHOP}], "estimated_ms": 20000,
                 "command": "Application settings update", "action": "Updating application settings",
                 "action_detailed": "Updating application settings"}
        request = {"op": "encode", "name": "SET_DRIVER_SETTINGS"}
        self.expect({**request, "args": [{"driver_settings": {"AppProfile": "SHOP"}}]}, reply)
        self.expect({**request, "args": [self.SHOP], "form": "list"}, reply)
        single = {"AppProfile": "SHOP", "Logger_MaxNFile": 7}
        for form in ["value", "list"]:
            self.expect({**request, "args": [{"driver_settings_hash": single}], "form": form},
                        {**reply, "parameters": [single],
                         "request": ["SET_DRIVER_SETTINGS", {"driver_settings_hash": single}]})

    def test_come_back(self):
        self.expect({"op": "answer", "name": "GET_DRIVER_SETTINGS", "value": {"driver_settings": {"AppProfile": "SHOP"}}},
                    {"ok": True, "class": "GetDriverSettingsAnswer", "value": {"driver_settings": self.SHOP}})
        host = {"host_name": "shop-1", "BT_radio_ON": True}
        self.expect({"op": "answer", "name": "GET_HOST_INFO", "value": host},
                    {"ok": True, "class": "GetHostInfoAnswer", "value": host})
        version = {"sw_version": "3.14.2", "build_revision": 17, "build_TS": "2026-03-04T05:06:07.008Z",
                   "release_type": "beta", "git_sha": "0a1b2c"}
        self.expect({"op": "answer", "name": "GET_SW_VERSION", "value": version},
                    {"ok": True, "class": "GetSwVersionAnswer", "value": version})

    def test_of_bluetooth(self):
        device = {"bt_name": "VELTO 1", "bt_address": "00:11"}
        settings = {"bt_enabled": True, "bt_target_devices": [device], "bt_banned_devices": []}
        reply = {"ok": True, "class": "SetBluetoothSettingsCmd", "request": ["SET_BT_SETTINGS", settings],
                 "parameters": [True, [device], []], "estimated_ms": 20000, "command": "Bluetooth settings update",
                 "action": "Updating bluetooth settings", "action_detailed": "Updating bluetooth settings"}
        self.expect({"op": "encode", "name": "SET_BT_SETTINGS", "args": [settings]}, reply)
        self.expect({"op": "encode", "name": "SET_BT_SETTINGS", "args": [True, [device], []], "form": "list"}, reply)
        self.expect({"op": "answer", "name": "GET_BT_SETTINGS", "value": settings},
                    {"ok": True, "class": "BluetoothSettingsAnswer", "value": settings})

    def test_of_connections(self):
        links = {"serial_connection_status": 1, "BT_connection_status": 0, "scale_connection_status": -1}
        answer = {"ok": True, "class": "GetConnectionStatusAnswer", "value": links}
        for command in [{"class": "GetConnectionStatusCmd"}, {"name": "GET_CONN_STATUS"}]:
            self.expect({"op": "answer", **command, "value": links}, answer)
        self.assertEqual(self.ask({"op": "encode", "class": "GetConnectionStatusCmd"})["command"],
                         "Connection status read")
        self.assertEqual(self.ask({"op": "encode", "name": "GET_CONN_STATUS"})["command"], "")


class Calibrations(BatchTest):
    def test_of_a_circuit(self):
        reply = {"ok": True, "class": "GetCalibrationListCmd", "request": ["GET_CALIB_LIST", 3, True],
                 "parameters": [3, True], "estimated_ms": 20000, "command": "", "action": "In progress",
                 "action_detailed": "In progress"}
        self.expect({"op": "encode", "name": "GET_CALIB_LIST", "args": [3, True], "machine": "dispenser"}, reply)
        self.expect({"op": "encode", "name": "GET_CALIB_LIST", "args": [3, True], "form": "list"}, reply)
        refusal = {"ok": False, "code": "DE00876",
                   "text": "Invalid position ID parameter: not present on current dispenser",
                   "function": "CalibrationListCmd::CalibrationListCmd(const XmlRpc::XmlRpcValue&, const FW_Dispenser*)"}
        self.expect({"op": "encode", "name": "GET_RECALIB_LIST", "args": [245], "machine": "dispenser"}, refusal)

    def test_of_points(self):
        point = {"calib_point_id": 1, "disp_quantity": 1.02, "disp_steps": 400, "speed": 60, "nozzle_valve_id": 0}
        data = {"position_id": 3, "calib_points": [point]}
        struct = {"calibrations_list": [data]}
        reply = {"ok": True, "class": "SetRecalibrationListCmd", "request": ["SET_RECALIB_LIST", struct],
                 "parameters": [[data]], "estimated_ms": 20000, "command": "", "action": "In progress",
                 "action_detailed": "In progress"}
        request = {"op": "encode", "name": "SET_RECALIB_LIST"}
        self.expect({**request, "args": [struct]}, reply)
        self.expect({**request, "args": [[data]], "form": "list"}, reply)
        self.expect({**request, "args": [data], "form": "list"}, reply)
        self.expect({"op": "answer", "name": "GET_RECALIB_LIST", "args": [3], "value": struct},
                    {"ok": True, "class": "GetRecalibrationListAnswer", "value": struct})

    def test_of_pumps(self):
        profiles = {"calibration_profiles": {"pumps": []}}
        self.expect({"op": "answer", "name": "GET_CALIB_PROFILES", "value": profiles},
                    {"ok": True, "class": "GetCalibrationProfilesAnswer", "value": profiles})
        reply = self.ask({"op": "encode", "name": "SET_CALIB_PROFILES", "args": [{"pumps": [{"id": 7}]}, True, False]})
        self.assertEqual((reply["class"], reply["command"]), ("SetCalibrationProfilesCmd", "Calibration profiles write"))
        self.assertEqual(reply["request"][1]["pumps"][0]["id"], 7)

    def test_in_codes(self):
        self.assertEqual(self.ask({"op": "encode", "name": "GET_QRCODE_CALIB"})["request"],
                         ["GET_QRCODE_CALIB", {"qr_code_density": 1}])
        codes = {"encoded_data_list": ["Q1;7", "Q2;8"]}
        self.expect({"op": "answer", "name": "GET_QRCODE_CALIB", "value": codes},
                    {"ok": True, "class": "GetQRCodeCalibrationAnswer", "value": codes})


class Renamed(BatchTest):
    """A command that a driver gives its newer name."""

    TINT = {"op": "encode", "name": "TINT", "machine": "dispenser",
            "args": [{"formula_type": 4, "quantity_unit": 3, "ids": ["B"], "quantities": [10]}]}

    def test_tint2(self):
        tint = self.ask(self.TINT)
        tint2 = self.ask({**self.TINT, "as": "TINT2"})
        self.assertEqual((tint["code"], tint["serial"]), ("0017", [2, 1, 2, 1, 50, 2, 96, 4]))
        self.assertEqual((tint2["class"], tint2["request"][0]), ("TintCmd", "TINT2"))
        self.assertEqual(tint2["request"][1:], tint["request"][1:])
        # six fields a circuit: its nozzle valve and its level, 2086 = 8 * 246 + 118 hundreds of steps, as well
        self.assertEqual((tint2["code"], tint2["serial"]), ("0035", [2, 1, 6, 2, 1, 50, 0, 2, 96, 4, 2, 118, 8]))

    def test_bad_requests(self):
        self.expect({**self.TINT, "as": "TINT3"}, bad('"as" names no command of the catalogue'))
        self.expect({**self.TINT, "as": 2}, bad('"as" must be a string'))


class Lines(BatchTest):
    def test_requests_that_are_none(self):
        for line, text in [
                ("", "an empty line is no request"),
                (" \t\r", "an empty line is no request"),
                ("[]", "a request is a JSON object"),
                ("5", "a request is a JSON object"),
                ("{}", '"op" is missing'),
                ('{"op":5}', '"op" must be a string'),
                ('{"op":"nope"}', '"op" names no operation'),
                ('{"op":"catalogue","op":"catalogue"}', 'the member "op" stands twice in one object'),
                ('{"op":"envelope","ret_code":99999999999999999999}',
                 "the whole number 99999999999999999999 does not fit in 64 bits"),
                ('{"op":"catalogue","x":' + "[" * 64 + "]" * 64 + "}",
                 "arrays and objects are nested more than 64 levels deep"),
                ('{"op":"catalogue"}\0', "no JSON: it holds a NUL byte")]:
            self.expect(line, bad(text))

    def test_no_json(self):
        for line in [b"{", b"hello", b'{"op":"catalogue"} x', b"\xff", b'{"op":"\xc3"}', b'{"op":"\xed\xa0\x80"}',
                     b"[" * 100000, b'{"op":NaN}', b"{'op':1}", b'{"op":"a\tb"}']:
            reply = json.loads(self.send(line))
            self.assertIs(reply["ok"], False)
            self.assertEqual(reply["code"], "")
            self.assertEqual(reply["function"], "")
            self.assertTrue(reply["text"])

    def test_members_that_nobody_reads_are_passed_over(self):
        self.expect({"op": "query", "what": "existsCommand", "name": "TINT", "id": None, "note": 2 ** 40},
                    {"ok": True, "value": True})

    def test_long_lines(self):
        head = b'{"op":"query","what":"existsCommand","name":"'
        longest = head + b"x" * (LONGEST - len(head) - 2) + b'"}'
        self.assertEqual(len(longest), LONGEST)
        self.assertEqual(json.loads(self.send(longest)), {"ok": True, "value": False})
        self.assertEqual(json.loads(self.send(longest + b" ")), bad("the request is longer than 16 MiB"))
        self.expect({"op": "query", "what": "existsCommand", "name": "TINT"}, {"ok": True, "value": True})

    def test_lines_of_many_values(self):
        # a program of its own, whose memory is its own
        many = b'{"op":"encode","name":"GET_STATUS","args":[%b0]}'
        lines = [many % (b"0," * ((LONGEST - len(many)) // 2)), many % (b'"",' * ((LONGEST - len(many)) // 3)),
                 many % (b"{}," * 150000), b'{"op":"query","what":"existsCommand","name":"TINT"}']
        program = subprocess.Popen([QUVCTL, "batch"], stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        replies = []
        for line in lines:
            program.stdin.write(line + b"\n")
            program.stdin.flush()
            replies.append(json.loads(program.stdout.readline()))
        program.stdin.close()
        program.stdout.close()
        _, status, usage = os.wait4(program.pid, 0)
        program.returncode = os.waitstatus_to_exitcode(status)
        self.assertEqual(program.returncode, 0)
        self.assertEqual(replies[0], bad("it holds more than 200000 values"))
        self.assertEqual(replies[1], replies[0])
        self.assertEqual(replies[2]["code"], "DE00298")
        self.assertEqual(replies[3], {"ok": True, "value": True})
        if programmemory.is_its_own(QUVCTL):
            self.assertLess(usage.ru_maxrss, 300 * 1024)  # KiB


class Rows(BatchTest):
    WRITE_VALUE = "WriteConfigurationParamCmd::WriteConfigurationParamCmd(const XmlRpc::XmlRpcValue&)"
    WRITE_MACHINE = "WriteConfigurationParamCmd::WriteConfigurationParamCmd(int, const FW_Machine*, int)"
    ONCE = [1, 2, 3, 4, 7, 8, 9, 11, 13, 14, 15, 16, 17, 18, 20, 21, 25, 26]  # structures of a dispenser

    def row(self, reply, **request):
        self.expect({"op": "row", **request}, reply)

    def test_of_an_answer(self):
        self.row({"ok": True, "class": "HUM_cdata", "text": "@HUM 1,300,2,3",
                  "value": {"cmd_code": "@HUM", "cmd_value": 7, "cmd_parameters": "1,300,2,3"},
                  "serial": [1, 1, 2, 54, 1, 1, 2, 1, 3]},
                 tokens=["C", "7", "1", "4", "1", "1", "2", "36", "1", "1", "2", "1", "3"])
        # a field that nobody knows stays: 5 + 1 * 246
        self.row({"ok": True, "class": "HUM_cdata", "text": "@HUM 1,0,2,3,251",
                  "value": {"cmd_code": "@HUM", "cmd_value": 7, "cmd_parameters": "1,0,2,3,251"},
                  "serial": [1, 1, 1, 0, 1, 2, 1, 3, 2, 5, 1]},
                 tokens=["E", "7", "1", "5", "1", "1", "1", "0", "1", "2", "1", "3", "2", "5", "1"])
        self.row({"ok": True, "class": "NOM_cdata", "text": "@NOM 1,Abc",
                  "value": {"cmd_code": "@NOM", "cmd_value": 2, "cmd_parameters": "1,Abc"},
                  "serial": [1, 1, 3, 65, 98, 99]},
                 tokens=["9", "2", "1", "2", "1", "1", "3", "41", "62", "63"])
        for code, name in [("C", "@AUT"), ("1F", "")]:
            self.row({"ok": True, "class": "GENERIC_cdata", "text": name + " 2",
                      "value": {"cmd_code": name, "cmd_value": int(code, 16), "cmd_parameters": "2"}, "serial": [1, 2]},
                     tokens=["5", code, "1", "1", "1", "2"])

    def test_answers_that_are_none(self):
        answer = "ReadConfigurationParamAnswer::ReadConfigurationParamAnswer(QStringList)"
        self.row(refused("DE00078", "Command code not found in answer", answer), tokens=["0"])
        self.row(refused("DE00083", "Invalid fields number type found in answer", answer), tokens=["3", "7", "1", "x"])
        self.row(refused("DE00085", "Command enabled field not found in answer",
                         "ConfData::ConfData(int, QStringList)"), tokens=["3", "7", "1", "4"])
        self.row(refused("DE00249", "Multiplier Coefficient field not found in answer",
                         "HUM_cdata::HUM_cdata(QStringList, int)"),
                 tokens=["7", "7", "1", "4", "1", "1", "1", "0"])
        self.row(bad('"tokens" must be an array of strings'), tokens=[7])

    def test_of_a_struct(self):
        self.row({"ok": True, "class": "HUM_cdata", "text": "@HUM 2,300,2,3", "serial": [7, 4, 1, 2, 2, 54, 1, 1, 2, 1, 3]},
                 cmd_value=7, cmd_parameters="2,300,2,3")
        self.row({"ok": True, "class": "GENERIC_cdata", "text": "@AUT 1,7", "serial": [12, 2, 1, 1, 1, 7]},
                 cmd_value=12, cmd_parameters="1,7")
        for without in [{"cmd_value": 7}, {"cmd_parameters": "1,2"}, {"cmd_value": 0, "cmd_parameters": "1"}]:
            self.row({"ok": True, "text": "", "serial": [0, 1]}, **without)
        self.row(refused("DE00169", "Invalid configuration parameters. Expected Int type for attribute 'cmd_value'",
                         self.WRITE_VALUE), cmd_value="7", cmd_parameters="1")
        self.row(refused("DE00170", "Invalid configuration parameters. Expected String type for attribute "
                                    "'cmd_parameters'", self.WRITE_VALUE), cmd_value=7, cmd_parameters=1)
        self.row(refused("DE00152", "Invalid configuration parameter field in answer",
                         "ConfData::ConfData(int, QString)"), cmd_value=7, cmd_parameters="1,2,x,4")
        self.row(refused("DE00253", "Low Humidity Warning Threshold field not found in answer",
                         "HUM_cdata::HUM_cdata(QString)"), cmd_value=7, cmd_parameters="1,2,3")

    def test_of_a_machine(self):
        self.row({"ok": True, "class": "ICS_cdata", "text": "@ICS 1", "serial": [1, 1, 1, 1]}, code=1, machine="mixer")
        # a humidifier that the machine does not have has its defaults
        self.row({"ok": True, "class": "HUM_cdata", "text": "@HUM 0,60,10,40",
                  "serial": [7, 4, 1, 0, 1, 60, 1, 10, 1, 40]}, code=7, id=1, machine="dispenser")
        # circuit 3 has position 3
        circuit = self.ask({"op": "row", "code": 5, "id": 3, "machine": "dispenser"})
        self.assertEqual((circuit["class"], circuit["text"].split(",")[3], circuit["serial"][:2]), ("CPT_cdata", "3", [5, 53]))
        self.row(refused("DE00246", "Invalid Dispenser data", "HUM_cdata::HUM_cdata(const FW_Machine*)"), code=7)
        self.row(refused("DE02791", "Invalid data", "HUM_cdata::HUM_cdata(const FW_Machine*)"), code=7, machine="mixer")
        self.row(refused("DE00172", "Unknown command code", self.WRITE_MACHINE), code=27, machine="dispenser")
        self.row(refused("DE00582", "Write configuration row parameters: unknown command", self.WRITE_MACHINE),
                 code=12, machine="dispenser")
        self.row(bad('"code" must be a whole number'), code="7", machine="dispenser")

    def test_of_nothing(self):
        self.row(bad('a row needs "tokens", "code" or "cmd_value"'), machine="dispenser")

    def test_apply(self):
        self.expect({"op": "apply", "machine": "mixer", "rows": [
            {"code": 1, "text": "1"}, {"code": 2, "text": "1,Blend"}, {"code": 7, "text": "1,2,3,4"}]},
                    {"ok": True, "applied": [True, True, False], "rows": [
                        {"code": 1, "name": "@ICS", "text": "1"}, {"code": 2, "name": "@NOM", "text": "1,Blend"}]})
        self.expect({"op": "apply", "rows": [{"code": 1, "text": "1"}, {"code": 2, "text": "1,Blend"}]},
                    {"ok": True, "applied": [True, False], "rows": []})

    def test_apply_of_a_machines_own_rows_changes_nothing(self):
        for machine, count in (("dispenser", 50), ("turntable", 34), ("dual", 50), ("mixer", 2)):
            with self.subTest(machine):
                rows = self.ask({"op": "apply", "machine": machine, "rows": []})["rows"]
                self.assertEqual(len(rows), count)
                own = [{"code": row["code"], "text": row["text"]} for row in rows]
                reply = self.ask({"op": "apply", "machine": machine, "rows": own})
                self.assertEqual(reply["applied"], [True] * count)
                self.assertEqual(reply["rows"], rows)

    def test_apply_to_a_dispenser(self):
        circuit = ["1", "2", "30", "2", "1", *["0"] * 48]
        circuit[17], circuit[34], circuit[40] = "4", "5", "6"  # ramp, transmission, flow correction
        reply = self.ask({"op": "apply", "machine": "dispenser", "rows": [
            {"code": 3, "text": "1,2,1,3,5,2,3,90"}, {"code": 7, "text": "2,120,20,35"}, {"code": 7, "text": "0,1,1,1"},
            {"code": 5, "text": ",".join(circuit)}, {"code": 10, "text": "1,4,11,12,13,14"}, {"code": 10, "text": "1,9,1,1,1,1"},
            {"code": 12, "text": "1"}, {"code": 7, "text": ""}]})
        self.assertEqual(reply["applied"], [True, True, True, True, True, False, True, False])
        circuits = list(range(1, 17))
        self.assertEqual([(row["code"], row.get("id")) for row in reply["rows"]],
                         sorted([*((code, None) for code in self.ONCE),
                                 *((code, number) for code in [5, 6] for number in circuits),
                                 (10, 4), (19, 5), (22, 6)], key=lambda row: (row[0], row[1] or 0)))
        texts = {(row["name"], row.get("id", 1)): row["text"] for row in reply["rows"]}
        self.assertTrue(texts["@GMC", 1].startswith("1,2,1,3,5,2,3,90,0,"), texts["@GMC", 1])
        self.assertEqual(texts["@HUM", 1], "2,120,20,35")
        self.assertEqual(texts["@RAM", 4], "1,4,11,12,13,14")
        self.assertEqual(texts["@CPT", 2].split(",")[17], "4")

    def test_what_the_machine_tells_goes_on_to_its_circuits(self):
        circuit = ",".join(["1", "1", "30", "1", "1", *["0"] * 48])
        machine = "1,1,1,1,1,1,1,60,0,0,0,30,90,0,0,0,{},0"
        for rows, policy in [([(3, 19), 5], 19), ([(3, 3), 5], 0), ([5, (3, 19)], 0), ([(3, 19)], 0)]:
            reply = self.ask({"op": "apply", "machine": "dispenser", "rows": [
                {"code": 5, "text": circuit} if row == 5 else {"code": 3, "text": machine.format(row[1])} for row in rows]})
            self.assertEqual(reply["applied"], [True] * len(rows))
            told = next(row["text"] for row in reply["rows"] if row["name"] == "@GMC")
            self.assertEqual(told.split(",")[16], str(policy))

    def test_rows_that_cannot_be_applied(self):
        self.expect({"op": "apply", "machine": "dispenser", "rows": [{"code": 7, "text": "1"}]},
                    refused("DE00253", "Sensor Reading Period field not found in answer", "HUM_cdata::HUM_cdata(QString)"))
        self.expect({"op": "apply", "machine": "dispenser"}, bad('"rows" is missing'))
        for rows in [7, [7]]:
            self.expect({"op": "apply", "machine": "dispenser", "rows": rows}, bad('"rows" must be an array of objects'))
        self.expect({"op": "apply", "rows": [{"code": 7}]}, bad('"text" is missing'))
        self.expect({"op": "apply", "rows": [{"text": "1"}]}, bad('"code" is missing'))


class Stream(unittest.TestCase):
    def run_batch(self, data):
        return subprocess.run([QUVCTL, "batch"], input=data, stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=60)

    def test_no_input(self):
        result = self.run_batch(b"")
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, b"", b""))

    def test_a_reply_a_line_in_order(self):
        result = self.run_batch(b'{"op":"query","what":"cmdStr","value":8}\r\n\nx\n'
                                b'{"op":"query","what":"cmdStr","value":9}')
        self.assertEqual(result.returncode, 0)
        lines = result.stdout.decode().split("\n")
        self.assertEqual(lines[0], '{"ok":true,"value":"TINT"}')
        self.assertEqual(lines[1], '{"ok":false,"code":"","text":"an empty line is no request","function":""}')
        self.assertIs(json.loads(lines[2])["ok"], False)
        self.assertEqual(lines[3:], ['{"ok":true,"value":"STIRRING"}', ""])


if __name__ == "__main__":
    QUVCTL = sys.argv.pop(1)
    unittest.main()
