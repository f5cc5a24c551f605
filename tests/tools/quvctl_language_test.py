# SPDX-License-Identifier: LGPL-3.0-or-later
"""The language in which the tools tell the library's texts. Usage: quvctl_language_test.py QUVDRIVER QUVCTL"""

import json
import os
import subprocess
import sys
import unittest

import quvdriver_process

QUVCTL = None
REQUESTS = """\
{"op":"encode","name":"RESET","args":[0]}
{"op":"status","status":1,"time_left":59400,"verbose":true}
{"op":"encode","name":"TINT","args":[{"formula_type":4,"quantity_unit":3,"ids":["B"],"quantities":[12.5]}],"machine":"dispenser"}
"""


def without_languages():
    return {name: value for name, value in os.environ.items()
            if not (name.startswith("LC_") or name in ("LANG", "LANGUAGE", "QUV_LANG"))}


def quvctl(*words, text="", **languages):
    result = subprocess.run([QUVCTL, *words], input=text, capture_output=True, check=False, timeout=30,
                            encoding="utf-8", env={**without_languages(), **languages})
    return result.stdout


def batch(**languages):
    return [json.loads(line) for line in quvctl("batch", text=REQUESTS, **languages).splitlines()]


class ToolsLanguage(unittest.TestCase):
    def test_words_for_people_follow_the_locale_and_quv_lang_before_it(self):
        for languages, text in [
                ({}, "Reset in progress"),
                ({"LANG": "C"}, "Reset in progress"),
                ({"LANG": "fr_FR.UTF-8"}, "Reset in progress"),
                ({"LANG": "de_DE.UTF-8"}, "Zurücksetzen läuft"),
                ({"LC_ALL": "de_AT.UTF-8", "LANG": "en_US.UTF-8"}, "Zurücksetzen läuft"),
                ({"QUV_LANG": "de"}, "Zurücksetzen läuft"),
                ({"QUV_LANG": "de_CH", "LANG": "en_US.UTF-8"}, "Zurücksetzen läuft"),
                ({"QUV_LANG": "en", "LANG": "de_DE.UTF-8"}, "Reset in progress"),
                ({"QUV_LANG": "tlh", "LANG": "de_DE.UTF-8"}, "Reset in progress"),
                ({"QUV_LANG": "", "LANG": "de_DE.UTF-8"}, "Zurücksetzen läuft")]:
            self.assertRegex(quvctl("encode", "RESET", "0", **languages), rf"(?m)^Action +{text}$", languages)

    def test_a_batch_follows_quv_lang_alone(self):
        for languages in [{}, {"LANG": "de_DE.UTF-8"}]:
            reset, status, _ = batch(**languages)
            self.assertEqual((reset["action"], status["description"]), ("Reset in progress", "Executing..."))
        reset, status, tint = batch(QUV_LANG="de", LC_ALL="de_DE.UTF-8")
        self.assertEqual(reset["action"], "Zurücksetzen läuft")
        self.assertEqual(reset["action_detailed"], "Alle Module des Dosierers werden zurückgesetzt")
        self.assertEqual(reset["command"], "Reset in progress", "what goes to logs stays as it is")
        self.assertEqual(status["description"], "Wird ausgeführt …")
        self.assertEqual(status["time_left"], "Noch etwa 60 Sekunden …")
        self.assertEqual(tint["request"][-1]["quantities"], [12.5])

    def test_a_driver_works_in_another_language(self):
        with quvdriver_process.Driver(env={**without_languages(), "QUV_LANG": "de", "LC_ALL": "de_DE.UTF-8"}) as driver:
            with driver.client() as client:
                self.assertEqual(client.EXEC_B("GET_STATUS")["ret_code"], 0)
                refused = client.EXEC_B("GET_STATUS", "x")
            self.assertEqual(refused["errors"][0]["code"], "DE00298")


if __name__ == "__main__":
    quvdriver_process.PROGRAM, QUVCTL = sys.argv[1:3]
    unittest.main(argv=sys.argv[:1] + sys.argv[3:])
