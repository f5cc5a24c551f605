# SPDX-License-Identifier: LGPL-3.0-or-later
"""The driver as a program, for tests that call it from outside. The path of the program is their first argument."""

import http.client
import re
import subprocess
import sys
import threading
import unittest
import xmlrpc.client

PROGRAM = None


class Driver:
    """A running driver on a free loopback port; it ends at the latest when the context does."""

    def __init__(self, *options, address="127.0.0.1", **more):
        self.process = subprocess.Popen(
            [PROGRAM, "--port", "0", *options], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, text=True, **more)
        watchdog = threading.Timer(10, self.process.kill)
        watchdog.start()
        self.first_line = self.process.stdout.readline()
        watchdog.cancel()
        found = re.fullmatch(rf"listening on {re.escape(address)}:(\d+)\n", self.first_line)
        if not found:
            self.kill()
            raise AssertionError(f"unexpected first line {self.first_line!r}")
        self.port = int(found.group(1))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.end()

    def end(self):
        """As people end it, so that what looks at it from outside (coverage, leaks) is told; killed when that takes too long."""
        self.process.terminate()
        try:
            self.process.wait(5)
        except subprocess.TimeoutExpired:
            pass
        self.kill()

    def kill(self):
        self.process.kill()
        self.process.wait()
        self.process.stdout.close()

    def client(self):
        return xmlrpc.client.ServerProxy(
            f"http://127.0.0.1:{self.port}/RPC2", transport=Transport(), use_builtin_types=True)

    def post(self, document):
        """The reply to a raw document, decoded: raises xmlrpc.client.Fault for a fault."""
        connection = http.client.HTTPConnection("127.0.0.1", self.port, timeout=60)
        try:
            connection.request("POST", "/RPC2", document, {"Content-Type": "text/xml"})
            response = connection.getresponse()
            body = response.read()
            if response.status != 200:
                raise AssertionError(f"HTTP {response.status}: {body!r}")
            return xmlrpc.client.loads(body, use_builtin_types=True)[0][0]
        finally:
            connection.close()


class Transport(xmlrpc.client.Transport):
    """Waits no longer than a minute for anything."""

    def make_connection(self, host):
        connection = super().make_connection(host)
        connection.timeout = 60
        return connection


def run(*options, **more):
    """The program until it ends by itself."""
    return subprocess.run([PROGRAM, *options], stdin=subprocess.DEVNULL, capture_output=True, text=True,
                          timeout=60, check=False, **more)


def main():
    global PROGRAM
    if len(sys.argv) < 2:
        sys.exit(f"usage: {sys.argv[0]} PATH_OF_QUVDRIVER [unittest options]")
    PROGRAM = sys.argv.pop(1)
    unittest.main(module="__main__")
