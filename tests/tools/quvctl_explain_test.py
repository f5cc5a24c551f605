# SPDX-License-Identifier: LGPL-3.0-or-later
"""quvctl explain: each code that the sources hold. Usage: quvctl_explain_test.py QUVCTL SOURCE_FOLDER..."""

import functools
import json
import re
import sys
import unittest
from pathlib import Path

import quvctl_process
from quvctl_process import run

FOLDERS = []


def codes_in_sources():
    texts = (path.read_text(encoding="utf-8") for folder in FOLDERS for path in sorted(Path(folder).rglob("*"))
             if path.suffix in (".h", ".cpp"))
    return sorted({code for text in texts for code in re.findall(r'"(DE\d{5})"', text)})


@functools.lru_cache(maxsize=None)
def all_explained():
    """What is told of each code in the sources, asked together."""
    status, out, err = run("explain", *codes_in_sources(), "--json")
    assert status == 0, err
    return [json.loads(line) for line in out.splitlines()]


def explained(code):
    for told in all_explained():
        if told["code"] == code:
            return told
    return json.loads(run("explain", code, "--json")[1])


def shown_refusals():
    """Code, form and circumstance of what quvctl show tells of arguments, answers and their members."""
    _, out, _ = run("show", "--markdown")
    return {(code, form.replace("XML-RPC", "XML-RPC value"), when)
            for code, forms, when in re.findall(r"^\| (DE\d{5}) \| ([^|]*) \| ([^|]*) \|", out, re.MULTILINE)
            for form in forms.split(", ") if not re.match(r"there are |the arguments are ", when)}


class Explain(unittest.TestCase):
    maxDiff = None

    def refusals(self, code):
        """Text, class, form, when, functions and file of each."""
        told = explained(code)
        self.assertEqual(told["code"], code)
        return [(one["text"], one["class"], one["form"], one["when"], one["functions"], one["file"])
                for one in told["refusals"]]

    def test_every_code_in_the_sources(self):
        codes = codes_in_sources()
        self.assertGreater(len(codes), 650)
        self.assertEqual([told["code"] for told in all_explained()], codes)
        for told in all_explained():
            self.assertTrue(told["refusals"], told)
            for refusal in told["refusals"]:
                self.assertTrue(refusal["text"].strip(), told)
                self.assertTrue(refusal["class"], told)
                self.assertRegex(refusal["file"], r"^(src|framework|tools)/\S+\.(cpp|h)$")

    def test_for_people(self):
        self.assertEqual(run("explain", "DE01930"), (0, """\
DE01930: Invalid data
CLASS      FORM     WHEN          FUNCTION            FILE
MOT_cdata  machine  null machine  referenceStructure  src/configuration/mot_cdata.cpp

DE01930: Priming2Cmd failed: invalid Formula type parameter
CLASS        FORM           WHEN                                    FUNCTION                  FILE
Priming2Cmd  XML-RPC value  circuits is missing or of another type  Priming2Cmd::Priming2Cmd  src/dispensing/priming2cmd.cpp
""", ""))

    def test_forms_of_a_code(self):
        for word in ["60", "0060", "de60", "De00060", "DE60"]:
            self.assertEqual(json.loads(run("explain", word, "--json")[1]), explained("DE00060"))

    def test_several_codes(self):
        one, other = run("explain", "60")[1], run("explain", "DE00298")[1]
        self.assertEqual(run("explain", "60", "DE00298"), (0, one + "\n" + other, ""))
        status, out, err = run("explain", "60", "64", "298")
        self.assertEqual((status, out), (1, one))  # what was known has been told
        self.assertRegex(err, "^DE00064: no refusal has this code")
        self.assertEqual(run("explain", "60", "foo")[:2], (2, ""))

    def test_arguments(self):
        for code, form in [("DE00298", "XML-RPC value"), ("DE00300", "list")]:
            (text, owner, told_form, when, functions, file), = self.refusals(code)
            self.assertEqual((text, owner, told_form, when, file),
                             ("Position ID: expected INT parameter", "DispenserStatusCmd", form,
                              "position is of another type", "src/status/dispenserstatuscmd.cpp"))
            self.assertEqual(functions, ["DispenserStatusCmd::DispenserStatusCmd"])
        for code, owner, form, when in [
                ("DE00289", "AutocapCmd", "XML-RPC value", "movement_type is missing"),
                ("DE00291", "AutocapCmd", "list", "movement_type is missing"),
                ("DE00992", "PackCmd", "list", "movement_type is out of range"),
                ("DE00993", "PackCmd", "list", "formula cannot be read"),
                ("DE01424", "ChannelTintCmd", "XML-RPC value", "channel is missing or of another type")]:
            self.assertEqual([refusal[1:5] for refusal in self.refusals(code)], [(owner, form, when, [f"{owner}::{owner}"])])
        self.assertEqual(self.refusals("DE00312"), [
            ("\u2026 command : expected at least \u2026 parameters, received \u2026 instead!", "ProtoCommand",
             "XML-RPC value", "", ["ProtoCommand::ProtoCommand"], "src/base/protocommand.cpp")])

    def test_checks_of_formulas(self):
        self.assertEqual(self.refusals("DE00060"), [
            ("Formula interrupted because the current amount will would below the critical level", "TintCmd",
             "check of the formula", "below reserve", ["TintCmd::checkFormula"], "src/dispensing/tintcmd.cpp")])
        self.assertEqual(self.refusals("DE01209"), [
            ("Bad values in formula! Values have to be positive", "PurgeFormulaCmd", "check of the formula", "negative",
             ["PurgeFormulaCmd::checkFormula"], "src/dispensing/purgeformulacmd.cpp")])
        self.assertEqual(self.refusals("DE00491"), [
            ("TintCmd failed: invalid Formula type parameter", "TintCmd", "typed", "", ["TintCmd::TintCmd"],
             "src/dispensing/tintcmd.cpp")])

    def test_tokens_and_rows(self):
        self.assertEqual(self.refusals("DE00077"), [
            ("Error during command answer decoding: bad length", "SerialProtoAnswer", "tokens", "",
             ["SerialProtoAnswer::SerialProtoAnswer"], "src/base/serialprotoanswer.cpp")])
        self.assertEqual([refusal[:4] for refusal in self.refusals("DE00199")],
                         [("Autocap Type field not found in answer", "ACP_cdata", "tokens", "")])
        self.assertEqual([refusal[:4] for refusal in self.refusals("DE00206")],
                         [("NEW_DATA field not found in answer", "ACP_cdata", "tokens", "new data")])

    def test_answers(self):
        self.assertEqual([refusal[:4] for refusal in self.refusals("DE00097")],
                         [("Failed to create DispenserStatusAnswer", "DispenserStatusCmd", "answer, tokens",
                           "the answer cannot be made")])
        for code, form, function in [("DE00097", "answer, tokens", "buildProtoAnswer"),
                                     ("DE01266", "answer, XML-RPC value", "buildProtoAnswer"),
                                     ("DE01267", "answer, list", "buildProtoAnswer"),
                                     ("DE00027", "answer, envelope", "setAnswer")]:
            self.assertEqual(self.refusals(code), [
                ("Failed to create DispenserStatusAnswer", "DispenserStatusCmd", form, "the answer cannot be made",
                 [f"DispenserStatusCmd::{function}"], "src/status/dispenserstatuscmd.cpp")])
        self.assertEqual([refusal[:4] for refusal in self.refusals("DE01152")],
                         [("Failed to create answer", "ConfProtoCommand", "answer", "null")])

    def test_members_of_a_struct(self):
        told = {(one["class"], one["text"]): one["names"] for one in explained("DE00026")["refusals"]}
        self.assertEqual(told[("DispenserStatusAnswer", "DispenserStatusAnswer: expected \u2026 value")],
                         ["tinting", "recirculating", "stirring", "valve_on", "cap_open", "bellow_up", "no_24_voltage",
                          "no_48_voltage", "punching"])
        self.assertIn("hw_error", told[("MachineStatusAnswer", "MachineStatusAnswer: expected \u2026 value")])
        self.assertEqual(told[("MachineStatusAnswer", "DispenserStatusAnswer: expected \u2026 value")], ["can_present"])

    def test_what_an_ellipsis_stands_for(self):
        code, out, err = run("explain", "DE00026")
        self.assertEqual((code, err), (0, ""))
        texts = out.split("\n\n")
        self.assertEqual(texts[0].split("\n")[-2:], [
            "DispenserStatusAnswer: … is one of tinting, recirculating, stirring, valve_on, cap_open, bellow_up, no_24_voltage, "
            "no_48_voltage, punching",
            "MachineStatusAnswer: … is can_present"])
        self.assertEqual(texts[-1].split("\n")[0], "DE00026: …: expected … value")
        self.assertEqual(len(texts[-1].rstrip("\n").split("\n")), 3)  # of any member: none is named

    def test_members_of_a_described_answer(self):
        for code, owner, form, when in [
                ("DE01178", "GetCmdEstimatedExecTimeAnswer", "list", "exec_time is missing or of another type"),
                ("DE00937", "GetConnectionsAnswer", "list", "connection_data_list has an element of another type"),
                ("DE00459", "CheckFormulaLevelsAnswer", "XML-RPC value",
                 "canisters_below_critical has an element of another type"),
                ("DE00460", "CheckFormulaLevelsAnswer", "XML-RPC value",
                 "canisters_below_critical is missing or of another type"),
                ("DE01710", "GetDispensedFormulaAnswer", "XML-RPC value", "dispensed_formula is of another type"),
                ("DE01711", "GetDispensedFormulaAnswer", "XML-RPC value", "dispensed_formula is missing")]:
            self.assertEqual([refusal[1:5] for refusal in self.refusals(code)], [(owner, form, when, [f"{owner}::{owner}"])])

    def test_members_that_are_also_refused_by_hand(self):
        self.assertEqual([refusal[1:4] for refusal in self.refusals("DE01884")], [
            ("GetConnectionsAnswer", "XML-RPC value", "connection_data_list has an element that cannot be made"),
            ("GetConnectionsAnswer", "list", "")])
        self.assertIn(("StopCmd", "typed", ""), [refusal[1:4] for refusal in self.refusals("DE01332")])

    def test_codes_of_one_text(self):
        for code, owner, places in [
                ("DE02734", "ResourceFileManagementBase", [("XML-RPC value", "res_data cannot be made")]),
                ("DE02735", "ResourceFileManagementBase", [("XML-RPC value", "res_data is missing")]),
                ("DE02740", "ResourceFileManagementBase", [("tokens", "")]),
                ("DE02754", "ResourceFileReadAnswer", [("XML-RPC value", "res_file is missing"), ("list", "")]),
                ("DE02755", "ResourceFileReadAnswer", [("XML-RPC value", "res_file cannot be made"),
                                                       ("list", "res_file is missing or of another type")])]:
            self.assertEqual([refusal[1:4] for refusal in self.refusals(code)], [(owner, *place) for place in places])

    def test_show_says_the_same(self):
        alike = 0
        for code, form, when in sorted(shown_refusals()):
            told = {told_when for _, _, told_form, told_when, _, _ in self.refusals(code)
                    if told_form in (form, f"answer, {form}")}
            # explain tells all that a class would refuse, show what is left of it behind the base's count of arguments
            told |= {told_when.replace("is missing or of another type", "is of another type") for told_when in told}
            # a code that several members share is shown once
            shared = [told_when.partition(" ")[2] for told_when in told]
            told |= {f"a member {words}" for words in shared if shared.count(words) > 1}
            what = when.rpartition(": ")[2]  # of a member of an argument show names the argument as well
            alike += bool({what, when} & told)
            with self.subTest(code):  # nothing is told of what a class reads by hand, or of members in a table of their own
                self.assertTrue({what, when, ""} & told, (when, told))
        self.assertGreater(alike, 80)

    def test_show_repeats_what_the_framework_raises(self):
        def plain(text):
            return re.sub("\u2026+", "\u2026", text.removeprefix("machines[\u2026]: "))

        codes = ["DE03350", *(f"DE0336{digit}" for digit in "5678"), *(f"DE0300{digit}" for digit in "123457")]
        shown = {}
        for code, text in re.findall(r"^\| (DE\d{5}) \| .* \| (.*) \|$", quvctl_process.run("show", "--markdown")[1], re.M):
            if code in codes:
                shown.setdefault(code, set()).add(plain(text.replace("\\", "")))
        self.assertEqual(sorted(shown), sorted(codes))
        for code, texts in shown.items():
            self.assertEqual(texts, {plain(refusal[0]) for refusal in self.refusals(code)}, code)

    def test_several_places(self):
        self.assertEqual({refusal[1] for refusal in self.refusals("DE01295")},
                         {"CommandIDCmd", "GetConfigCmdsCmd", "GetDispInfoCmd", "ReadConfigurationParamCmd", "SerialProtoCommand"})

    def test_framework_and_driver(self):
        self.assertEqual(self.refusals("DE03002"), [
            ("FW_DriverError: expected code value", "FW_DriverError", "XML-RPC value", "",
             ["FW_DriverError::FW_DriverError"], "framework/src/fw_error.cpp")])
        self.assertEqual([refusal[0] for refusal in self.refusals("DE03113")], ["Too many commands wait for their turn"])

    def test_unknown_code(self):
        def distances(codes):
            return [abs(int(code[2:]) - int(unknown[2:])) for code in codes]

        for unknown in ["DE00064", "DE99999", "DE00000"]:
            status, out, err = run("explain", unknown, "--json")
            self.assertEqual((status, json.loads(out)["code"]), (1, unknown))
            self.assertRegex(err, rf"^{unknown}: no refusal has this code; the nearest are (DE\d{{5}}, ){{2}}DE\d{{5}}\n$")
            nearest = set(re.findall(r"DE\d{5}", err)[1:])
            others = set(codes_in_sources()) - nearest
            self.assertEqual(len(nearest), 3)
            self.assertLessEqual(max(distances(nearest)), min(distances(others)))

    def test_wrong_usage(self):
        for word in ["foo", "DE", "DE000600", "DE00060x", "60.0", ""]:
            self.assertEqual(run("explain", word), (2, "", f'quvctl: "{word}" is no code of a refusal, such as '
                                                           "DE00060 or 60 (see quvctl help)\n"))
        self.assertEqual(run("explain"), (2, "", "quvctl: explain needs CODE [CODE...] (see quvctl help)\n"))


if __name__ == "__main__":
    quvctl_process.PROGRAM = sys.argv.pop(1)
    FOLDERS = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
