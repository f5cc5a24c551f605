# SPDX-License-Identifier: LGPL-3.0-or-later
"""scripts/demo shows what it builds while it builds. Usage: demo_test.py SCRIPTS"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import threading
import unittest

SCRIPTS = pathlib.Path()

# A build of 40 steps, the last of which waits for the file "go" and then fails.
BUILD = """#!/bin/sh
[ "$1" = --build ] || exit 0
for step in $(seq 39); do echo "[$step/40] step $step"; done
while [ ! -e go ]; do sleep 0.05; done
echo "error: no paint"
exit 1
"""


class DemoTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        (self.folder / "scripts").mkdir()
        shutil.copy(SCRIPTS / "demo", self.folder / "scripts")
        self.write_program("scripts/setup", "#!/bin/sh\n")
        self.write_program("bin/cmake", BUILD)

    def write_program(self, name, text):
        path = self.folder / name
        path.parent.mkdir(exist_ok=True)
        path.write_text(text, encoding="utf-8")
        path.chmod(0o755)

    def test_the_build_is_shown_while_it_goes_on(self):
        demo = subprocess.Popen([self.folder / "scripts/demo"], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.STDOUT, text=True,
                                env={**os.environ, "PATH": f"{self.folder / 'bin'}:{os.environ['PATH']}"})
        self.addCleanup(demo.stdout.close)
        watchdog = threading.Timer(10, (self.folder / "go").touch)
        watchdog.start()
        self.addCleanup(watchdog.cancel)
        shown = [demo.stdout.readline() for _ in range(4)]
        self.assertEqual(shown[1:], ["[10/40] step 10\n", "[20/40] step 20\n", "[30/40] step 30\n"])
        self.assertIsNone(demo.poll())
        (self.folder / "go").touch()
        rest, _ = demo.communicate(timeout=20)
        self.assertEqual((demo.returncode, rest), (1, "error: no paint\nscripts/demo: the build failed\n"))


if __name__ == "__main__":
    SCRIPTS = pathlib.Path(sys.argv.pop(1))
    unittest.main()
