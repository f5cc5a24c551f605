# SPDX-License-Identifier: LGPL-3.0-or-later
"""A week of a simulated machine in a minute: pours, stirring and cleaning, stops and faults. In the end all books add up."""

import itertools
import json
import os
import random
import tempfile
import time
import unittest

import quvdriver_process
from quvdriver_process import Driver

SPEED = 10000
DAY = 86400
POSITIONS = 1, 2, 3, 4
ROUND = [3, 1, 2, 4]  # of the turntable
GRAMS_OF_STROKE = 4
FULL = 2000  # more than a fast computer pours in a week
BLOCKED = 3
BLOCKED_CIRCUITS = 10  # a number of GET_ACTIVE_CIRCUITS
WORKS = {  # beside the pours
    "stirred": [("STIRRING", 2, 30), ("STIRRING", 0, 60, True)],
    "recirculated": [("RECIRCULATION", 4, 30), ("RECIRCULATION", 0, 60, 50, 0, True)],
    "cleaned": [("NOZZLE_CLEAN", 0, 30), ("CLEANING", 1, 50, 60, 2)],
    "reset": [("RESET",)],
}
SEVERAL = 3


def machine():
    """On a turntable, each canister with a level sensor. 100 steps pour a gram, a stroke has 400."""
    return {
        "type": "dispenser", "stirring_parallelism": 4, "recirculating_parallelism": 4,
        "devices": {"turntable": {"positions": ROUND, "step_time": 1000}, "brush": {}},
        "canisters": [{
            "id": 10 + position, "maximum": FULL, "current": FULL, "level_sensor": {},
            "circuits": [{
                "id": 20 + position, "position_id": position, "dosing_motor": {"steps_per_stroke": 400},
                "calibration": [{"steps": 1000, "quantity": 10, "speed": 50}],
                "stirring_motor": {}, "recirculation_motor": {}, "cleaning_motors": [{"duration": 30}],
            }],
        } for position in POSITIONS],
    }


SCENARIO = {"events": [
    {"at": 1.5 * DAY, "for": 12 * 3600, "event": "circuit_blocked", "circuit": BLOCKED},
    {"at": 3 * DAY, "for": 3600, "event": "emergency"},
    {"at": 4 * DAY, "for": 7200, "event": "door_open"},
    {"at": 5.2 * DAY, "for": 6 * 3600, "event": "circuit_blocked", "circuit": BLOCKED},
    {"at": 6 * DAY, "for": 1800, "event": "emergency"},
]}


def between(begin, end):
    """The circuits at which the table may stand on its way, the shorter one. From 0 on it may come from anywhere."""
    apart = abs(ROUND.index(begin) - ROUND.index(end)) if begin else len(ROUND) / 2
    return {begin, end} if apart in (0, 1, len(ROUND) - 1) else set(ROUND)


class Week(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        paths = []
        for name, content in (("machine.json", machine()), ("scenario.json", SCENARIO)):
            paths.append(os.path.join(folder.name, name))
            with open(paths[-1], "w", encoding="utf-8") as file:
                json.dump(content, file)
        self.earliest = time.monotonic()  # the machine's time begins between the two
        self.driver = Driver("--machine", paths[0], "--scenario", paths[1], "--speed", str(SPEED))
        self.addCleanup(self.driver.kill)
        self.begin = time.monotonic()
        self.client = self.driver.client()
        self.addCleanup(self.client("close"))
        self.dice = random.Random(7)
        self.levels = dict.fromkeys(POSITIONS, float(FULL))
        self.counts = {"whole": 0, "stopped": 0, "refused": 0, "blocked": 0}
        self.works = dict.fromkeys(WORKS, 0)
        self.next_work = itertools.cycle(WORKS)

    def ask(self, *params):
        envelope = self.client.EXEC_B(*params)
        self.assertEqual(envelope["ret_code"], 0, (params, envelope))
        return envelope["ret_value"]

    def is_blocked(self):
        return BLOCKED in self.ask("GET_ACTIVE_CIRCUITS", BLOCKED_CIRCUITS)["positions_id"]

    def error_count(self):
        return self.ask("ERRORS_NUM")["num_errors"]

    def position(self):
        return self.ask("GET_STATUS")["current_position_id"]

    def emergencies(self, begin, end, sure):
        """How often the button was pressed from one moment to another: for sure, or at the most."""
        some = 0.01
        moments = [event["at"] / SPEED for event in SCENARIO["events"] if event["event"] == "emergency"]
        if sure:
            return sum(begin < self.earliest + moment - some and self.begin + moment + some < end for moment in moments)
        return sum(begin < self.begin + moment + some and self.earliest + moment - some < end for moment in moments)

    def check_table(self, report, before):
        """After a pour that was stopped: on the way to a circuit, or at it."""
        order = [int(position) for position in report["total_formula"]["ids"]]
        poured = {int(position): grams for position, grams in zip(
            report["dispensed_formula"]["ids"], report["dispensed_formula"]["quantities"])}
        last = max((place for place, position in enumerate(order) if poured[position] > 0), default=-1)
        begin = order[last] if last >= 0 else before
        # a circuit that is blocked is come to as well
        ends = order[last + 1:] if BLOCKED in order else order[last + 1:last + 2]
        allowed = {0, begin}.union(*(between(*leg) for leg in zip([begin, *ends], ends)))
        self.assertIn(self.position(), allowed, (before, report))

    def end(self, ticket):
        while (told := self.ask("GET_CMD_STATUS", ticket))["status"] > 0:
            time.sleep(0.002)
        return told

    def pour(self):
        circuits = self.dice.sample(POSITIONS, self.dice.randint(1, 3))
        formula = {"formula_type": 1, "quantity_unit": 3, "ids": circuits,
                   "quantities": [self.dice.randint(1, 40) / 10 for _ in circuits]}
        position_before, blocked_before = self.position(), self.is_blocked()
        first, errors_before, second = time.monotonic(), self.error_count(), time.monotonic()
        begun = self.client.EXEC_NB("TINT", formula)
        self.assertEqual(begun["ret_code"], 0, begun)
        if self.dice.random() < 0.3:
            time.sleep(self.dice.random() * 0.002)
            self.ask("STOP")
        told = self.end(begun["ret_value"]["ticket_id"])
        if told["status"] == -1:
            self.assertIn(told["cmd_answer"]["errors"][0]["code"], {"DE03106"}, told)
            self.counts["refused"] += 1
            return
        if told["status"] == -3 and told["cmd_answer"]["errors"][0]["code"] == "DE03410":
            return  # stopped before the machine began, which tells of the pour before
        report = self.ask("GET_DISPENSED_FORMULA", 1, 3)
        poured = report["dispensed_formula"]
        for position, grams in zip(map(int, poured["ids"]), poured["quantities"]):
            self.levels[position] -= grams
        if told["status"] == 0:
            self.assertEqual(self.position(), int(report["total_formula"]["ids"][-1]))
        else:
            self.check_table(report, position_before)
        self.counts["whole" if told["status"] == 0 else "stopped"] += 1
        if self.is_blocked() == blocked_before:  # else nobody knows when it changed
            expected = errors_before + (blocked_before and BLOCKED in circuits)
            third, errors, fourth = time.monotonic(), self.error_count(), time.monotonic()
            self.assertGreaterEqual(errors, expected + self.emergencies(second, third, True))
            self.assertLessEqual(errors, expected + self.emergencies(first, fourth, False))
            self.counts["blocked"] += blocked_before and BLOCKED in circuits

    def work(self):
        """The next of them, which may be refused, since the machine is at something else."""
        work = next(self.next_work)
        envelope = self.client.EXEC_B(*self.dice.choice(WORKS[work]))
        if envelope["ret_code"] != 0:
            self.assertEqual((envelope["ret_code"], envelope["errors"][0]["code"]), (4, "DE03106"), envelope)
        self.works[work] += envelope["ret_code"] == 0

    def lacks_work(self):
        return min(self.works.values()) < SEVERAL or not (self.counts["stopped"] and self.counts["refused"])

    def check_books(self):
        canisters = {canister["positions"][0]: canister["cur_q"] for canister in self.ask("GET_CANISTER_LIST")["canister_list"]}
        for position, level in self.levels.items():
            self.assertAlmostEqual(canisters[position], level, 6)

    def rest(self):
        """Until the machine is at nothing."""
        self.client.EXEC_B("STOP")
        while not self.ask("GET_STATUS")["head1_can_dose"]:
            time.sleep(0.005)

    def test_the_books_of_a_week(self):
        end = self.begin + 7 * DAY / SPEED
        while (now := time.monotonic()) < end or (self.lacks_work() and now < end + 60):  # on a slow computer it gets longer
            if self.dice.random() < 0.2:
                self.work()
            else:
                self.pour()
            if self.error_count() > 40:
                self.ask("CLEAR_ERRORS")
            time.sleep(self.dice.random() * 0.1)
        self.check_books()
        self.rest()
        # what the machine itself says: hundredths of strokes
        for position, hundredths in self.ask("GET_LEVEL_SENSORS", list(POSITIONS))["levels"]:
            self.assertAlmostEqual(hundredths / 100 * GRAMS_OF_STROKE, self.levels[position], delta=GRAMS_OF_STROKE / 100)
        for kind, count in self.works.items():
            self.assertGreaterEqual(count, SEVERAL, (kind, self.works))
        for kind, count in self.counts.items():
            self.assertGreater(count, 0, (kind, self.counts))


if __name__ == "__main__":
    quvdriver_process.main()
