# SPDX-License-Identifier: LGPL-3.0-or-later
"""The tool as a program, and a driver for it to call, for tests that play the driver themselves."""

import os
import pty
import signal
import subprocess
import termios
import threading
import unittest
import xmlrpc.server

PROGRAM = None


def run(*words, **more):
    """The program until it ends by itself: its exit status, and its lines on standard output and standard error."""
    result = subprocess.run([PROGRAM, *words], stdin=subprocess.DEVNULL, capture_output=True, timeout=30, check=False,
                            **more)
    return result.returncode, result.stdout.decode("utf-8"), result.stderr.decode("utf-8")


def start(*words):
    """The program on its own, which listens to Ctrl-C even when the tests do not."""
    return subprocess.Popen([PROGRAM, *words], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                            text=True, preexec_fn=lambda: signal.signal(signal.SIGINT, signal.default_int_handler))


def run_on_terminal(*words, asks, answer):
    """The program on a terminal, answered once asks(shown) is true, until it ends: its exit status and all that it showed."""
    try:
        child, terminal = pty.fork()
    except OSError as error:
        raise unittest.SkipTest(f"this machine has no terminal to give: {error}")
    if child == 0:
        attributes = termios.tcgetattr(0)
        attributes[3] |= termios.NOFLSH  # else Ctrl-C throws away what the program has just shown
        termios.tcsetattr(0, termios.TCSANOW, attributes)
        os.environ.update(TERM="xterm", NO_COLOR="1")
        os.execv(PROGRAM, [PROGRAM, *words])
    watchdog = threading.Timer(30, os.kill, (child, signal.SIGKILL))
    watchdog.start()
    shown = b""
    while not asks(shown):
        shown += os.read(terminal, 4096)
    os.write(terminal, answer)
    try:
        while more := os.read(terminal, 4096):
            shown += more
    except OSError:
        pass  # the end of a terminal
    _, status = os.waitpid(child, 0)
    watchdog.cancel()
    os.close(terminal)
    return os.waitstatus_to_exitcode(status), shown.decode("utf-8")


def envelope(value, ret_code=0, info="done", errors=()):
    return {"ret_code": ret_code, "info": info, "ret_value": value, "errors": list(errors), "exec_time": 3}


class ScriptedDriver:
    """
    A driver of another make, which listens from its making until it is closed. A test gives it its operations: execute for
    calls that wait for their end, start for those that do not.
    """

    def __init__(self, port=0):
        self.server = xmlrpc.server.SimpleXMLRPCServer(("127.0.0.1", port), logRequests=False)
        self.server.register_function(self.execute, "EXEC_B")
        self.server.register_function(self.start, "EXEC_NB")
        self.port = self.server.server_address[1]
        self.thread = threading.Thread(target=self.server.serve_forever, args=(0.01,), daemon=True)
        self.thread.start()

    def execute(self, name, *params):
        raise NotImplementedError

    def start(self, name, *params):
        raise NotImplementedError

    def close(self):
        self.server.shutdown()
        self.thread.join()
        self.server.server_close()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()
