# SPDX-License-Identifier: LGPL-3.0-or-later
"""quvctl tint and ticket. Usage: quvctl_tint_test.py QUVDRIVER QUVCTL"""

import json
import os
import re
import signal
import sys
import tempfile
import time
import unittest

import quvctl_process
import quvdriver_process
from quvctl_process import run, start


def envelope(value, ret_code=0, info="TINT command executed successfully!"):
    return quvctl_process.envelope(value, ret_code, info)


def ticket(state, result=0, **members):
    return envelope({"status": state, "info": "", "extra_info": "", "time_left": 0,
                     "percentage": 0 if state > 0 else 100, "cmd_answer": result, **members})


def error(code, text):
    return {"error_type": 1, "timestamp": "2024-02-29T07:08:09.010Z", "code": code, "text": text}


def colorants(unit, **quantities):
    """A formula of colorants: B=12.5."""
    return {"formula_type": 4, "quantity_unit": unit, "ids": list(quantities),
            "quantities": [float(number) for number in quantities.values()]}


def steps(**positions):
    """A formula of steps at positions: p3=120."""
    return {"formula_type": 1, "quantity_unit": 1, "ids": [name[1:] for name in positions],
            "quantities": [float(number) for number in positions.values()]}


def dispensed(poured, asked):
    return envelope({"dispensed_formula": poured, "remaining_formula": steps(), "total_formula": asked})


def levels(critical=(), warning=()):
    return envelope({"canisters_below_critical": list(critical), "canisters_below_warning": list(warning)})


class ScriptedDriver(quvctl_process.ScriptedDriver):
    """Answers a pour by its script, and remembers what it was asked. It tells nothing of its machines."""

    def __init__(self, **script):
        self.script = {"levels": levels(), "start": envelope({"ticket_id": "T-1"}),
                       "tickets": [ticket(0, envelope(0))],
                       "dispensed": {1: dispensed(colorants(1, B=1340), colorants(1, B=1340)),
                                     3: dispensed(colorants(3, B=12.5), colorants(3, B=12.5))}, **script}
        self.asked = []
        self.started = []
        super().__init__()

    def execute(self, name, *params):
        if name == "GET_ACTIVE_DISP":
            return envelope(0, 1, "unknown")
        self.asked.append([name, *params])
        if name == "GET_CMD_STATUS":
            tickets = self.script["tickets"]
            return tickets.pop(0) if len(tickets) > 1 else tickets[0]
        if name == "GET_DISPENSED_FORMULA":
            reports = self.script["dispensed"]
            return reports[params[1]] if 3 in reports else reports
        return self.script[{"CHECK_FORMULA_LEVELS": "levels", "GET_CMD_EST_EXEC_TIME": "estimate",
                            "GET_LOW_LEVEL_FORMULA": "plan"}[name]]

    def start(self, *params):
        self.started.append(list(params))
        answer = self.script["start"]
        time.sleep(self.script.get("delay", 0))
        return answer.pop(0) if isinstance(answer, list) else answer


class Requests(unittest.TestCase):
    maxDiff = None

    def sent(self, *words):
        """The formula that a driver gets."""
        with ScriptedDriver() as driver:
            code, _, err = run("tint", *words, "--no-wait", "--port", str(driver.port))
            self.assertEqual((code, err), (0, ""))
        self.assertEqual([request[0] for request in driver.asked], ["CHECK_FORMULA_LEVELS"])
        self.assertEqual(len(driver.started), 1)
        name, formula = driver.started[0]
        self.assertEqual(name, "TINT")
        # the question about the levels is the same formula, without a policy
        self.assertEqual(driver.asked[0][1:], [{**formula, "levels_policy": 0}, False])
        return formula

    def test_colorants(self):
        self.assertEqual(self.sent("B=12.5", "KX=3"), {
            "formula_type": 4, "quantity_unit": 3, "ids": ["B", "KX"], "quantities": [12.5, 3.0],
            "exec_criterion": 0, "levels_policy": 2, "decimals": 3})
        self.assertEqual(self.sent("a=b=1e1")["ids"], ["a=b"])

    def test_types_and_units(self):
        for word, number in [("position", 1), ("circuit", 2), ("canister", 3), ("colorant", 4)]:
            self.assertEqual(self.sent("--by", word, "7=5")["formula_type"], number)
        for word, number in [("steps", 1), ("strokes", 2), ("weight", 3)]:
            self.assertEqual(self.sent("--unit", word, "7=5")["quantity_unit"], number)

    def test_levels_check(self):
        self.assertEqual(self.sent("B=1", "--levels-check", "on")["levels_policy"], 2)
        self.assertEqual(self.sent("B=1", "--levels-check", "off")["levels_policy"], 0)

    def test_json(self):
        formula = {"formula_type": 1, "quantity_unit": 1, "ids": ["3", "4"], "quantities": [200, 10.0],
                   "queue_ids": [1, 0], "nozzle_valves": [0, 2], "exec_criterion": 2, "decimals": 1}
        told = {**formula, "quantities": [200.0, 10.0]}
        self.assertEqual(self.sent(json.dumps(formula)), {**told, "levels_policy": 2})
        for policy in [0, 1, 2, 5]:
            self.assertEqual(self.sent(json.dumps({**formula, "levels_policy": policy}))["levels_policy"], policy)
        text = json.dumps({**formula, "levels_policy": 5})
        self.assertEqual(self.sent(text, "--levels-check", "on")["levels_policy"], 7)
        self.assertEqual(self.sent(json.dumps({**formula, "levels_policy": 7}), "--levels-check", "off")
                         ["levels_policy"], 5)

    def test_members_that_nobody_reads(self):
        formula = {"formula_type": 4, "quantity_unit": 3, "ids": ["B"], "quantities": [1], "shade": "grey"}
        self.assertNotIn("shade", self.sent(json.dumps(formula)))

    def test_wrong_usage(self):
        formula = '{"formula_type":4,"quantity_unit":3,"ids":["B"],"quantities":[1]}'
        with ScriptedDriver() as driver:
            for text, *words in [
                    ("tint needs FORMULA | ID=QUANTITY...",),
                    ("B is no ID=QUANTITY, such as B=12.5", "B"),
                    ("=5 is no ID=QUANTITY, such as B=12.5", "=5"),
                    ("B= is no ID=QUANTITY, such as B=12.5", "B="),
                    ("B=1,5 is no ID=QUANTITY, such as B=12.5", "B=1,5"),
                    ("B=inf is no ID=QUANTITY, such as B=12.5", "A=1", "B=inf"),
                    ("B=1: B is no whole number", "B=1", "--by", "position"),
                    ("--by is one of: colorant, position, circuit, canister", "B=1", "--by", "smell"),
                    ("--unit is one of: weight, steps, strokes", "B=1", "--unit", "litres"),
                    ("--levels-check is one of: on, off", "B=1", "--levels-check", "maybe"),
                    ("--interval takes a number from 0.01 to 86400", "B=1", "--interval", "0.009"),
                    ('unexpected "B=1"', formula, "B=1"),
                    ("a formula as JSON tells its own type and unit, without --by and --unit", formula, "--by",
                     "colorant"),
                    ("a formula as JSON tells its own type and unit, without --by and --unit", formula, "--unit",
                     "steps"),
                    ("the formula: there is no such type of formula", formula.replace("4", "5")),
                    ('the formula has no member "formla"; did you mean "formula_type"?', formula.replace("formula_type", "formla")),
                    ('the formula has no member "Quantites"; did you mean "quantities"?',
                     formula.replace('"quantities"', '"Quantites"')),
                    ('the formula has no member "levels_polcy"; did you mean "levels_policy"?',
                     formula.replace("}", ',"levels_polcy":0}'))]:
                self.assertEqual(run("tint", *words, "--port", str(driver.port)),
                                 (2, "", f"quvctl: {text} (see quvctl help)\n"))
            for text in ["{", "{}", "{'a':1}", '{"formula_type":null}', formula.replace("[1]", "[1,2]"),
                         formula.replace("[1]", "[2147483648]")]:
                code, out, err = run("tint", text, "--port", str(driver.port))
                self.assertEqual((code, out), (2, ""))
                self.assertRegex(err, "^quvctl: the formula: .+\n$")
        self.assertEqual((driver.asked, driver.started), ([], []))


class Pouring(unittest.TestCase):
    maxDiff = None

    def tint(self, **script):
        with ScriptedDriver(**script) as driver:
            told = run("tint", "B=12.5", "--interval", "0.01", "--port", str(driver.port))
        return (*told, driver)

    def test_all(self):
        code, out, err, driver = self.tint(
            tickets=[ticket(2), ticket(1, percentage=5, time_left=20000), ticket(1, percentage=14, time_left=18000),
                     ticket(1, percentage=45, time_left=11500), ticket(0, envelope(0))])
        self.assertEqual((code, err), (0, ""))
        self.assertEqual(out.split("\n"), [
            "Ticket T-1",
            "Queued...",
            "5 %  About 21 seconds remaining...",
            "45 %  About 12 seconds remaining...",
            "100 %  Done successfully!",
            "TINT command executed successfully!",
            "COLORANT  ASKED  POURED  LEFT TO POUR  ASKED STEPS  POURED STEPS",
            "B         12.5   12.5    0             1340         1340",
            "poured: all",
            ""])
        self.assertEqual(driver.asked[1:], [["GET_CMD_STATUS", "T-1"]] * 5 +
                         [["GET_DISPENSED_FORMULA", 4, 1], ["GET_DISPENSED_FORMULA", 4, 3]])

    def test_a_driver_that_knows_positions_and_steps_only(self):
        code, out, err, _ = self.tint(dispensed=dispensed(steps(p2=300, p14=1000000), steps(p2=300, p14=1000000)))
        self.assertEqual((code, err), (0, ""))
        self.assertEqual(out.split("\n")[-5:], [
            "POSITION  ASKED STEPS  POURED STEPS  LEFT TO POUR",
            "2         300          300           0",
            "14        1000000      1000000       0",
            "poured: all",
            ""])

    def test_less_than_asked(self):
        less = error("DE03142", 'Less was poured than asked: "B" 4 of 12.5, in steps 429 of 1340')
        code, out, err, _ = self.tint(
            tickets=[ticket(0, {**envelope(0), "errors": [less]})],
            dispensed={1: dispensed(colorants(1, B=429), colorants(1, B=1340)),
                       3: dispensed(colorants(3, B=4), colorants(3, B=12.5))})
        self.assertEqual((code, err.split("\n")[0]), (1, f"DE03142: {less['text']}"))
        self.assertEqual(out.split("\n")[2:], [
            "COLORANT  ASKED  POURED  LEFT TO POUR  ASKED STEPS  POURED STEPS",
            "B         12.5   4       8.5           1340         429",
            "poured less than asked: B", ""])
        # a driver that does not tell it in its envelope
        code, out, err, _ = self.tint(dispensed=dispensed(steps(p2=0), steps(p2=300, p3=200)))
        self.assertEqual((code, err), (1, ""))
        self.assertEqual(out.split("\n")[-4:],
                         ["2         300          0             300", "3         200          0             200",
                          "poured less than asked: 2, 3", ""])

    def test_an_error_beside_the_answer_fails(self):
        code, out, err, _ = self.tint(tickets=[ticket(0, {**envelope(0), "errors": [error("DE03117", "Unknown")]})])
        self.assertEqual((code, err), (1, "DE03117: Unknown\n"))
        self.assertNotIn("executed successfully", out)
        beside = [error("DE03117", "Unknown"), error("DE00060", "Another")]
        with ScriptedDriver(tickets=[ticket(0, {**envelope(0), "errors": beside})]) as driver:
            code, out, _ = run("tint", "B=12.5", "--json", "--interval", "0.01", "--port", str(driver.port))
        reply = json.loads(out)
        self.assertEqual((code, reply["ok"], reply["code"], reply["text"], reply["function"]),
                         (1, False, "DE03117", "Unknown", ""))
        self.assertEqual(reply["items"], [
            {"id": "B", "asked": 12.5, "poured": 12.5, "left": 0, "asked_steps": 1340, "poured_steps": 1340}])

    def refused_here(self, *words):
        with ScriptedDriver() as driver:
            told = run("tint", *words, "--port", str(driver.port))
            self.assertEqual((driver.asked, driver.started), ([], []))
        return told

    def test_wrong_amounts_are_refused_before_anything_is_sent(self):
        hint = "hint: quvctl tint --force pours the nearest amounts, and leaves out those of 0\n"
        for words, sentences in [
                (["B=0", "C=1"], ["B: a quantity of 0 cannot be poured"]),
                (["B=0.5", "C=1", "--unit", "strokes"], ["B: 0.5 strokes cannot be poured, the nearest is 1"]),
                (["3=0.2", "4=20.4", "--by", "position", "--unit", "steps"],
                 ["3: 0.2 steps cannot be poured, the nearest is 1",
                  "4: 20.4 steps cannot be poured, the nearest is 20"])]:
            self.assertEqual(self.refused_here(*words), (1, "", "".join(line + "\n" for line in sentences) + hint))
        self.assertEqual(self.refused_here("B=0", "--force"),
                         (1, "", "warning: B: a quantity of 0 cannot be poured\nnothing is left to pour\n"))

    def test_force_pours_the_nearest(self):
        with ScriptedDriver() as driver:
            code, out, err = run("tint", "B=0", "C=0.5", "D=2.003", "E=0.25", "E=0.75", "--unit", "strokes", "--force",
                                 "--no-wait", "--port", str(driver.port))
        self.assertEqual((code, out), (0, "Ticket T-1\n"))
        self.assertEqual(err, "warning: B: a quantity of 0 cannot be poured\n"
                              "warning: C: 0.5 strokes cannot be poured, the nearest is 1\n")
        [[_, formula]] = driver.started
        self.assertEqual((formula["ids"], formula["quantities"]), (["C", "D", "E"], [1.0, 2.003, 1.0]))

    def test_amounts_that_the_driver_knows_better(self):
        offered = {**colorants(3, B=0.009), "levels_policy": 2}
        reason = '"B": 0.005 cannot be poured, the nearest is 0.009 (steps of the motor: 1)'
        refusal = {**envelope(offered, 1), "errors": [error("DE03141", reason)]}
        with ScriptedDriver(start=[refusal]) as driver:
            code, out, err = run("tint", "B=0.005", "--no-wait", "--port", str(driver.port))
        self.assertEqual((code, out), (1, ""))
        self.assertEqual(err.split("\n")[0], f"DE03141: {reason}")
        self.assertIn("--force", err.split("\n")[1])
        with ScriptedDriver(start=[refusal, envelope({"ticket_id": "T-1"})]) as driver:
            code, out, err = run("tint", "B=0.005", "--no-wait", "--force", "--port", str(driver.port))
        self.assertEqual((code, out, err), (0, "Ticket T-1\n", f"warning: DE03141: {reason}\n"))
        self.assertEqual(driver.started[1][1]["quantities"], [0.009])

    def test_dry_run(self):
        plan = envelope({"low_level_formula": steps(p2=1340, p3=20)})
        with ScriptedDriver(estimate=envelope({"exec_time": 8123}), plan=plan, levels=levels([3])) as driver:
            code, out, err = run("tint", "B=12.5", "C=0.2", "--dry-run", "--port", str(driver.port))
        self.assertEqual((code, err), (0, "warning: canister 3 would fall below its critical level\n"))
        self.assertEqual(out.split("\n"), [
            "COLORANT  ASKED  POSITION  STEPS",
            "B         12.5   2         1340",
            "C         0.2    3         20",
            "would take 8.1 s",
            "the canisters do not hold enough",
            "nothing has been poured", ""])
        self.assertEqual([request[0] for request in driver.asked],
                         ["CHECK_FORMULA_LEVELS", "GET_CMD_EST_EXEC_TIME", "GET_LOW_LEVEL_FORMULA"])
        self.assertEqual(driver.started, [])

    def test_json(self):
        for poured, ok in [(300, True), (120, False)]:
            with ScriptedDriver(dispensed=dispensed(steps(p2=poured), steps(p2=300))) as driver:
                code, out, err = run("tint", "B=12.5", "--json", "--interval", "0.01", "--port", str(driver.port))
            self.assertEqual((code, err), (0 if ok else 1, ""))
            reply = json.loads(out)
            self.assertEqual((reply["ok"], reply["ticket"], reply["items"]),
                             (ok, "T-1", [{"id": "2", "asked_steps": 300, "poured_steps": poured}]))
            self.assertEqual(reply.get("text"), None if ok else "poured less than asked")
        with ScriptedDriver() as driver:
            code, out, err = run("tint", "B=12.5", "--json", "--interval", "0.01", "--port", str(driver.port))
        self.assertEqual((code, err), (0, ""))
        self.assertEqual(json.loads(out)["items"], [
            {"id": "B", "asked": 12.5, "poured": 12.5, "left": 0, "asked_steps": 1340, "poured_steps": 1340}])
        with ScriptedDriver() as driver:
            code, out, err = run("tint", "B=1", "--no-wait", "--json", "--port", str(driver.port))
        self.assertEqual((code, json.loads(out), err), (0, {"ok": True, "ticket": "T-1"}, ""))
        nothing = "B: a quantity of 0 cannot be poured"
        half = "C: 0.5 strokes cannot be poured, the nearest is 1"
        for words, code, text in [(["B=0", "C=0.5"], "DE03140", nothing), (["C=0.5", "B=0"], "DE03141", half),
                                  (["B=0", "--force"], "DE03140", nothing)]:
            status, out, err = self.refused_here(*words, "--unit", "strokes", "--json")
            self.assertEqual((status, json.loads(out)),
                             (1, {"ok": False, "code": code, "text": text, "function": ""}))
            self.assertIn(text, err.split("\n")[0])

    def test_json_of_a_plan(self):
        plan = envelope({"low_level_formula": steps(p2=1340)})
        with ScriptedDriver(estimate=envelope({"exec_time": 8123}), plan=plan) as driver:
            code, out, err = run("tint", "B=12.5", "--dry-run", "--json", "--port", str(driver.port))
        self.assertEqual((code, err), (0, ""))
        self.assertEqual(json.loads(out), {"ok": True, "plan": {"exec_time": 8123, "enough": True, "items": [
            {"id": "B", "asked": 12.5, "position": "2", "steps": 1340}]}})
        self.assertEqual(driver.started, [])

    def test_low_levels_are_told_and_stop_nothing(self):
        code, out, err, driver = self.tint(levels=levels([3, 5], [5, 7]))
        self.assertEqual((code, err.split("\n")), (0, [
            "warning: canister 3 would fall below its critical level",
            "warning: canister 5 would fall below its critical level",
            "warning: canister 7 would fall below its warning level",
            ""]))
        self.assertIn("\npoured: all\n", out)
        self.assertEqual(len(driver.started), 1)

    def test_refused_before_the_pour(self):
        errors = [{"error_type": 1, "timestamp": "2024-02-29T07:08:09.010Z", "code": "DE00552", "text": "Bad"}]
        code, out, err, driver = self.tint(levels={**envelope(0, 1), "errors": errors})
        self.assertEqual((code, out, err),
                         (1, "", "DE00552: Bad\nFailed! Xml-rpc command invalid for Driver.\n"))
        self.assertEqual(driver.started, [])

    def test_refused_pour(self):
        code, out, err, driver = self.tint(start=envelope(0, 4))
        self.assertEqual((code, out, err), (1, "", "Failed! Command not executed due to errors on firmware.\n"))
        self.assertEqual(len(driver.asked), 1)

    def test_failed_pour(self):
        code, out, err, driver = self.tint(tickets=[ticket(-1, envelope(0, 4))])
        self.assertEqual((code, out, err), (1, "Ticket T-1\n100 %  Errors in command execution!\n",
                                            "Failed! Command not executed due to errors on firmware.\n"))
        self.assertEqual(driver.asked[-1][0], "GET_CMD_STATUS")  # the last pour is another one

    def test_interrupted_pour(self):
        code, out, err, _ = self.tint(tickets=[ticket(-3, envelope(0, 7))],
                                      dispensed=dispensed(steps(p2=12), steps(p2=300)))
        self.assertEqual((code, err), (1, "Command has been interrupted!\n"))
        self.assertEqual(out.split("\n"), ["Ticket T-1", "100 %  Interrupted!",
                                           "POSITION  ASKED STEPS  POURED STEPS  LEFT TO POUR",
                                           "2         300          12            288",
                                           "poured less than asked: 2", ""])

    def test_the_report_of_another_pour(self):
        gone = "warning: the machine has poured something else since; its report of this pour is gone\n"
        other = {1: dispensed(colorants(1, C=580), colorants(1, C=580)),
                 3: dispensed(colorants(3, C=5), colorants(3, C=5))}
        more = {1: dispensed(colorants(1, B=1340, C=580), colorants(1, B=1340, C=580)),
                3: dispensed(colorants(3, B=12.5, C=5), colorants(3, B=12.5, C=5))}
        another_amount = {1: dispensed(colorants(1, B=1300), colorants(1, B=1300)),
                          3: dispensed(colorants(3, B=12), colorants(3, B=12))}
        for report in [other, more, another_amount]:
            code, out, err, _ = self.tint(dispensed=report)
            self.assertEqual((code, out.split("\n")[2:], err), (0, ["TINT command executed successfully!", ""], gone))
        less = error("DE03142", "Less")
        code, out, err, _ = self.tint(tickets=[ticket(0, {**envelope(0), "errors": [less]})], dispensed=other)
        self.assertEqual((code, out), (1, "Ticket T-1\n100 %  Done successfully!\n"))
        self.assertEqual(err.split("\n")[-2], gone[:-1])
        code, out, err, _ = self.tint(tickets=[ticket(-3, envelope(0, 7))], dispensed=other)
        self.assertEqual((code, err), (1, gone + "Command has been interrupted!\n"))
        for tickets, ok in [([ticket(0, envelope(0))], True), ([ticket(0, {**envelope(0), "errors": [less]})], False)]:
            with ScriptedDriver(dispensed=other, tickets=tickets) as driver:
                code, out, err = run("tint", "B=12.5", "--json", "--interval", "0.01", "--port", str(driver.port))
            reply = json.loads(out)
            self.assertEqual((code, reply["ok"], reply.get("code"), "items" in reply),
                             (0, True, None, False) if ok else (1, False, "DE03142", False))
            self.assertIn(gone, err)

    def test_no_wait(self):
        with ScriptedDriver() as driver:
            self.assertEqual(run("tint", "B=1", "--no-wait", "--port", str(driver.port)), (0, "Ticket T-1\n", ""))

    def test_interrupted_before_there_is_a_ticket(self):
        with ScriptedDriver(delay=2) as driver:
            with start("tint", "B=1", "--json", "--port", str(driver.port)) as process:
                while not driver.started:
                    self.assertIsNone(process.poll())
                process.send_signal(signal.SIGINT)
                out, err = process.communicate(timeout=30)
        text = "the machine may have begun; look at it with: quvctl call GET_STATUS"
        self.assertEqual((process.returncode, json.loads(out), err), (
            130, {"ok": False, "code": "", "text": text, "function": ""}, text + "\n"))


class LongCalls(unittest.TestCase):
    """What takes long gets a ticket by quvctl call as well."""

    FORMULA = json.dumps({"formula_type": 4, "quantity_unit": 3, "ids": ["B"], "quantities": [12.5]})

    def call(self, *options, **script):
        with ScriptedDriver(**script) as driver:
            told = run("call", "TINT", self.FORMULA, *options, "--port", str(driver.port))
            self.assertEqual([name for name, *_ in driver.started], ["TINT"])
        return told

    def test_waiting(self):
        self.assertEqual(self.call(tickets=[ticket(1, percentage=45, time_left=11500), ticket(0, envelope(0))]),
                         (0, "Ticket T-1\n45 %  About 12 seconds remaining...\n100 %  Done successfully!\n"
                             "TINT command executed successfully!\n0\n", ""))

    def test_json(self):
        code, out, err = self.call("--json")
        self.assertEqual((code, err), (0, ""))
        self.assertEqual(json.loads(out)["envelope"]["info"], "TINT command executed successfully!")
        errors = {"errors": [error("DE03142", "Less")]}
        code, out, err = self.call("--json", tickets=[ticket(0, {**envelope(0), **errors})])
        self.assertEqual((code, err, json.loads(out)["envelope"]["ret_code"]), (1, "", 0))
        reply = json.loads(out)
        self.assertEqual((reply["ok"], reply["code"], reply["text"], reply["value"]), (False, "DE03142", "Less", 0))

    def test_begun_is_not_done(self):
        self.assertEqual(self.call("--async"), (0, "TINT has begun\nTicket T-1\n", ""))

    def test_refused_and_failed(self):
        no = error("DE00123", "No")
        told = (1, "DE00123: No\nFailed! Xml-rpc command invalid for Driver.\n")
        code, out, err = self.call(start={**envelope(0, 1), "errors": [no]})
        self.assertEqual((code, out, err), (1, "", told[1]))
        code, out, err = self.call(tickets=[ticket(-1, {**envelope(0, 1), "errors": [no]})])
        self.assertEqual((code, err), told)
        code, out, err = self.call(tickets=[ticket(0, {**envelope(0), "errors": [no]})])
        self.assertEqual((code, err), (1, "DE00123: No\n"))
        self.assertNotIn("executed successfully", out)

    def test_the_driver_goes(self):
        for ticket_id, word in (("T-1", "T-1"), ("it's", r"'it'\''s'"), ("it's\u200e\\", r"$'it\'s\U0000200e\\'")):
            driver = ScriptedDriver(start=envelope({"ticket_id": ticket_id}),
                                    tickets=[ticket(1, percentage=45, time_left=11500)])
            with start("call", "TINT", self.FORMULA, "--port", str(driver.port)) as process:
                process.stdout.readline()
                process.stdout.readline()  # it waits
                driver.close()
                _, err = process.communicate(timeout=30)
            self.assertEqual(process.returncode, 1)
            self.assertEqual(err.split("\n")[0],
                             f"the machine goes on; look again with: quvctl ticket {word} --port {driver.port}")

    def test_the_ticket_of_what_fails_is_told(self):
        for words in [("tint", "B=12.5", "--interval", "0.01"), ("call", "TINT", self.FORMULA)]:
            driver = ScriptedDriver(tickets=[ticket(1, percentage=45, time_left=11500)])
            with start(*words, "--json", "--port", str(driver.port)) as process:
                while len(driver.asked) < 2:
                    self.assertIsNone(process.poll())
                    time.sleep(0.01)
                driver.close()
                out, err = process.communicate(timeout=30)
            self.assertEqual(process.returncode, 1)
            self.assertEqual(json.loads(out), {"ok": False, "code": "", "function": "", "ticket": "T-1",
                                               "text": f"Cannot connect to 127.0.0.1:{driver.port}"})
            self.assertIn("quvctl ticket T-1 ", err)
            failed = [ticket(-1, {**envelope(0, 4), "errors": [error("DE00123", "No")]})]
            with ScriptedDriver(tickets=failed) as driver:
                code, out, _ = run(*words, "--json", "--port", str(driver.port))
            reply = json.loads(out)
            self.assertEqual((code, reply["ok"], reply["code"], reply["ticket"]), (1, False, "DE00123", "T-1"))
            self.assertEqual(reply["envelope"]["ret_code"], 4)

    def test_no_answer_to_the_start(self):
        with ScriptedDriver(delay=2) as driver:
            code, out, err = run("tint", "B=1", "--timeout", "1", "--port", str(driver.port))
        self.assertEqual((code, out), (1, ""))
        self.assertIn("the machine may have begun; look at it with: quvctl call GET_STATUS\n", err)


class Simulated(unittest.TestCase):
    """Pours on a driver's simulated dispenser."""

    maxDiff = None
    REPORT = ["COLORANT  ASKED  POURED  LEFT TO POUR  ASKED STEPS  POURED STEPS",
              "B         10     10      0             1080         1080",
              "C         2      2       0             232          232",
              "poured: all", ""]

    def tint(self, driver, *words):
        return run("tint", *words, "--interval", "0.01", "--port", str(driver.port))

    def test_pour(self):
        with quvdriver_process.Driver("--machine", "dispenser", "--speed", "100") as driver:
            code, out, err = self.tint(driver, "B=10", "C=2")
        self.assertEqual((code, err), (0, ""))
        lines = out.split("\n")
        self.assertRegex(lines[0], "^Ticket .+$")
        self.assertEqual(lines[-6:], ["TINT command executed successfully!", *self.REPORT])
        self.assertEqual(lines[-7], "100 %  Done successfully!")
        for line in lines[1:-7]:
            self.assertRegex(line, r"^(Created\.\.\.|Queued\.\.\.|Executing\.\.\.|\d+ %(  About .+ remaining\.\.\.)?)$")

    def test_token(self):
        with tempfile.TemporaryDirectory() as folder:
            paths = {}
            for name, content in [("good", "a token of the shop".replace(" ", "-")), ("bad", "another-token-of-16"), ("none", "")]:
                paths[name] = os.path.join(folder, name)
                with open(paths[name], "w", encoding="ascii") as file:
                    file.write(content + "\n")
            with quvdriver_process.Driver("--machine", "dispenser", "--token-file", paths["good"]) as driver:
                call = ["call", "GET_STATUS", "-q", "--port", str(driver.port)]
                self.assertEqual(run(*call, "--token-file", paths["good"])[0], 0)
                self.assertEqual(run(*call, env={**os.environ, "QUV_TOKEN_FILE": paths["good"]})[0], 0)
                for options in [(), ("--token-file", paths["bad"])]:
                    code, out, err = run(*call, *options)
                    self.assertEqual((code, out), (1, ""))
                    self.assertEqual(err, f"quvctl: 127.0.0.1:{driver.port} answered with the HTTP status 401: The token is "
                                          "missing or wrong\nhint: --token-file, or QUV_TOKEN_FILE, names the file with the "
                                          "token that the driver was given\n")
                formula = json.dumps({"formula_type": 4, "quantity_unit": 3, "ids": ["B"], "quantities": [12.5]})
                code, out, err = run("call", "TINT", formula, "--port", str(driver.port))
                self.assertEqual((code, out), (1, ""))
                self.assertNotIn("may have begun", err)
                self.assertEqual(run(*call, "--token-file", paths["none"]), (
                    2, "", f'quvctl: Token file "{paths["none"]}": it must hold one line of 16 to 512 characters, without '
                           "blanks (see quvctl help)\n"))
                pipe = os.path.join(folder, "pipe")  # nobody waits for whoever may write into it
                os.mkfifo(pipe)
                self.assertEqual(run(*call, "--token-file", pipe), (
                    2, "", f'quvctl: Token file "{pipe}": it is no regular file (see quvctl help)\n'))

    def test_no_wait(self):
        with quvdriver_process.Driver("--machine", "dispenser", "--speed", "100") as driver:
            code, out, err = run("tint", "B=10", "C=2", "--no-wait", "--port", str(driver.port))
            self.assertEqual((code, err), (0, ""))
            ticket_id = re.fullmatch("Ticket (.+)\n", out).group(1)
            code, out, err = run("ticket", ticket_id, "--wait", "--interval", "0.01", "--port", str(driver.port))
            self.assertEqual((code, err), (0, ""))
            self.assertEqual(out.split("\n")[-3:], ["TINT command executed successfully!", "0", ""])
            code, out, err = run("ticket", ticket_id, "--json", "--port", str(driver.port))
            self.assertEqual((code, json.loads(out)["status"]["status"]), (0, 0))
            self.assertEqual(run("ticket", "no-such-ticket", "--port", str(driver.port))[:2], (1, ""))

    def test_levels(self):
        with quvdriver_process.Driver("--machine", "dispenser", "--speed", "10000") as driver:
            code, out, err = self.tint(driver, "B=1900")  # 2000 in the canister, 150 are critical, 300 low
            self.assertEqual((code, out), (1, ""))
            self.assertEqual(err.split("\n")[0], "warning: canister 2 would fall below its critical level")
            self.assertIn("DE00060", err)
            code, out, err = self.tint(driver, "B=1750")
            self.assertEqual((code, err), (0, "warning: canister 2 would fall below its warning level\n"))
            code, out, err = self.tint(driver, "B=10")  # 250 are left
            self.assertEqual((code, err), (0, "warning: canister 2 would fall below its warning level\n"))
            code, out, err = self.tint(driver, "B=300", "--levels-check", "off")  # more than is there
            self.assertEqual(code, 1)
            self.assertRegex(err, "^warning: canister 2 would fall below its critical level\n"
                                  r'DE03142: Less was poured than asked: "B" \d+(\.\d+)? of 300, in steps \d+ of \d+\n'
                                  "hint: .+\n$")
            self.assertIn("\npoured less than asked: B\n", out)
            self.assertNotIn("executed successfully", out)

    def test_amounts(self):
        with quvdriver_process.Driver("--machine", "dispenser", "--speed", "10000") as driver:
            code, out, err = self.tint(driver, "B=0.003")
            self.assertEqual((code, out), (1, ""))
            self.assertRegex(err, r'^DE03141: "B": 0\.003 cannot be poured, the nearest is 0\.00\d+ \(steps of the motor: 1\)\n'
                                  r"hint: .+ --force .+\nFailed! Xml-rpc command invalid for Driver\.\n$")
            self.assertEqual(self.tint(driver, "B=0.003", "--dry-run")[0], 1)
            code, out, err = self.tint(driver, "B=0.003", "--dry-run", "--force")
            self.assertEqual(code, 0, err)
            self.assertRegex(out, r"\nB +0\.00\d+ +2 +1\n(would take .+\n)?the canisters hold enough\nnothing has been poured\n$")
            code, out, err = self.tint(driver, "B=0.003", "--force")
            self.assertEqual(code, 0, err)
            self.assertRegex(out, r"\nB +0\.00\d+ +0\.00\d+ +0 +1 +1\npoured: all\n$")
            code, out, err = self.tint(driver, "B=2", "--unit", "strokes")
            self.assertEqual((code, err), (0, ""))
            self.assertRegex(out, r"\nCOLORANT  ASKED STROKES  POURED STROKES  LEFT TO POUR .+\nB +2 +2 +0 ")

    def test_asked_is_what_was_typed(self):
        with quvdriver_process.Driver("--machine", "dispenser", "--speed", "10000") as driver:
            for words, rows in [
                    (["--unit", "strokes", "B=0.5"], [r"B +0\.5 +1 +0 +6000 +6000"]),
                    (["B=0.03", "C=0"], [r"B +0\.03 +0\.03\d+ +0 +\d +\d", "C +0 +0 +0 +0 +0"]),
                    (["--unit", "steps", "B=100.6"], ["B +100\\.6 +101 +0"]),
                    (["--unit", "steps", "B=100.4"], ["B +100\\.4 +100 +0"]),
                    (["--by", "circuit", "--unit", "strokes", "2=1", "2=0.5"], ["2 +1\\.5 +2 +0 +12000 +12000"])]:
                code, out, err = self.tint(driver, *words, "--force")
                self.assertEqual(code, 0, err)
                self.assertRegex(out, "\n" + "\n".join(rows) + "\npoured: all\n$")
            code, out, err = self.tint(driver, "--unit", "strokes", "B=0.5", "--force", "--json")
            item = json.loads(out)["items"][0]
            self.assertEqual((item["asked"], item["poured"], item["left"]), (0.5, 1, 0))
            code, out, err = self.tint(driver, "--unit", "strokes", "B=0.5", "--force", "--dry-run")
            self.assertRegex(out, r"\nB +0\.5 +2 +6000\n")

    def test_nothing_poured_leaves_what_was_asked(self):
        with quvdriver_process.Driver("--machine", "dispenser", "--speed", "10000") as driver:
            self.assertEqual(self.tint(driver, "B=2500", "--levels-check", "off")[0], 1)  # 2000 are there
            code, out, err = self.tint(driver, "B=100", "--levels-check", "off")
            self.assertEqual(code, 1)
            self.assertRegex(out, r"\nB +100 +0 +100 +\d+ +0\n")

    def test_dry_run_pours_nothing(self):
        with quvdriver_process.Driver("--machine", "dispenser", "--speed", "10000") as driver:
            code, out, err = self.tint(driver, "B=10", "C=2", "--dry-run")
            self.assertEqual((code, err), (0, ""))
            self.assertEqual(out.split("\n")[:3], ["COLORANT  ASKED  POSITION  STEPS", "B         10     2         1080",
                                                   "C         2      3         232"])
            refused = self.tint(driver, "B=1900", "--dry-run")
            self.assertEqual(refused, self.tint(driver, "B=1900"))  # as the pour is refused
            self.assertIn("\nDE03144: Canister 2 ", refused[2])
            with driver.client() as client:
                report = client.EXEC_B("GET_DISPENSED_FORMULA", 1, 1)["ret_value"]["total_formula"]
        self.assertEqual(report["ids"], [])

    def test_another_pour_meanwhile(self):
        with quvdriver_process.Driver("--machine", "dispenser", "--speed", "5") as driver:  # a second for B
            port = ["--port", str(driver.port)]
            with start("tint", "B=10", "--interval", "3", *port) as process:
                process.stdout.readline()
                process.stdout.readline()  # it waits for its next question
                time.sleep(0.2)
                process.send_signal(signal.SIGSTOP)  # however long the other pour may take
                time.sleep(2)
                self.assertEqual(self.tint(driver, "C=5")[0], 0)
                process.send_signal(signal.SIGCONT)
                out, err = process.communicate(timeout=30)
        self.assertEqual((process.returncode, err), (
            0, "warning: the machine has poured something else since; its report of this pour is gone\n"))
        self.assertNotIn("COLORANT", out)

    def test_refusals(self):
        with quvdriver_process.Driver("--machine", "dispenser", "--speed", "100") as driver:
            for words, code in [(["NOPE=1"], "DE03021"), (["B=-1"], "DE00552")]:
                status, out, err = self.tint(driver, *words)
                self.assertEqual((status, out), (1, ""))
                self.assertIn(code, err)
        with quvdriver_process.Driver("--machine", "mixer") as driver:
            status, out, err = self.tint(driver, "B=1")
            self.assertEqual((status, out), (1, ""))
            self.assertIn("DE03104", err)

    def test_queries_that_know_the_machine(self):
        formula = json.dumps({"formula_type": 4, "quantity_unit": 3, "ids": ["B"], "quantities": [5.0]})
        with quvdriver_process.Driver("--machine", "dispenser") as driver:
            query = ["call", "GET_LOW_LEVEL_FORMULA", formula, "--json", "--port", str(driver.port)]
            text = ("Invalid dispenser data; --machine tells for which machine the formula is, as in "
                    "--machine dispenser")
            code, out, err = run(*query)
            self.assertEqual((code, json.loads(out)["text"], err), (1, text, f"DE00334: {text}\n"))
            code, out, _ = run(*query, "--machine", "dispenser")
        self.assertEqual(code, 0)
        built = json.loads(out)["value"]["low_level_formula"]
        self.assertEqual((built["ids"], built["quantities"]), (["2"], [548.0]))

    def test_interrupt(self):
        with quvdriver_process.Driver("--machine", "dispenser", "--speed", "20") as driver:
            with start("tint", "B=500", "--interval", "0.01", "--port", str(driver.port)) as process:  # 13 s
                ticket_id = re.fullmatch("Ticket (.+)\n", process.stdout.readline()).group(1)
                process.stdout.readline()  # it waits
                process.send_signal(signal.SIGINT)
                _, err = process.communicate(timeout=30)
            self.assertEqual((process.returncode, err), (
                130, f"the machine goes on; look again with: quvctl ticket {ticket_id} --port {driver.port}\n"
                     "Ctrl-C again within 2 seconds stops the machine\n"))
            code, out, err = run("ticket", ticket_id, "--port", str(driver.port))
            self.assertEqual((code, err), (0, ""))
            self.assertRegex(out, r"^\d+ %  About \d+ seconds remaining\.\.\.\n$")
            code, out, err = self.tint(driver, "B=1")  # the machine is busy
            self.assertEqual((code, out), (1, ""))

    def test_terminal(self):
        with quvdriver_process.Driver("--machine", "dispenser", "--speed", "20") as driver:
            code, text = quvctl_process.run_on_terminal(
                "tint", "B=500", "--interval", "0.01", "--port", str(driver.port),
                asks=lambda shown: b"remaining...\033[K\r[" in shown, answer=b"\003")  # Ctrl-C
        self.assertEqual(code, 130)
        self.assertRegex(text, r"^Ticket .+\r\n\r\[\.{10}\] ")
        self.assertRegex(text, r"\r\[[#.]{10}\] \d+ %  About \d+ seconds remaining\.\.\.\x1b\[K")
        self.assertRegex(text, rf"\r\nthe machine goes on; look again with: quvctl ticket .+ --port {driver.port}\r\n"
                                r"Ctrl-C again within 2 seconds stops the machine\r\n$")


if __name__ == "__main__":
    quvctl_process.PROGRAM = sys.argv.pop(2)
    quvdriver_process.main()
