# SPDX-License-Identifier: LGPL-3.0-or-later
"""What no honest client sends. After each the driver must still answer a good request, and soon."""

import random
import re
import signal
import socket
import threading
import time
import unittest
import xmlrpc.client

import programmemory
import quvdriver_process
from quvdriver_process import Driver

CALL = b"<?xml version='1.0'?><methodCall><methodName>EXEC_B</methodName><params>%b</params></methodCall>"
GOOD = CALL % b"<param><value><string>GET_STATUS</string></value></param>"
MEGABYTE = 1024 * 1024


def value(xml):
    return CALL % (b"<param><value>" + xml + b"</value></param>")


def http(body, length=None):
    length = len(body) if length is None else length
    return b"POST /RPC2 HTTP/1.1\r\nHost: localhost\r\nContent-Type: text/xml\r\nContent-Length: %b\r\n\r\n%b" % (
        str(length).encode(), body)


class HostileTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.driver = Driver()

    @classmethod
    def tearDownClass(cls):
        cls.driver.process.send_signal(signal.SIGTERM)
        try:
            code = cls.driver.process.wait(10)
        finally:
            cls.driver.kill()
        if code != 0:
            raise AssertionError(f"the driver ended with {code}")

    def connect(self, timeout=60.0):
        connection = socket.create_connection(("127.0.0.1", self.driver.port), timeout=timeout)
        self.addCleanup(connection.close)
        return connection

    def exchange(self, data, end=True):
        """Sends all that the driver takes, and gives all that it answers."""
        connection = self.connect()
        try:
            connection.sendall(data)
            if end:
                connection.shutdown(socket.SHUT_WR)
        except OSError:
            pass  # refused before it was all sent
        answer = b""
        try:
            while chunk := connection.recv(65536):
                answer += chunk
        except OSError:
            pass
        connection.close()
        return answer

    def status_line(self, answer):
        return int(answer.split(b" ", 2)[1]) if answer.startswith(b"HTTP/") else None

    def assert_fault(self, document, codes=(-32700, -32600)):
        with self.assertRaises(xmlrpc.client.Fault, msg=document[:80]) as raised:
            self.driver.post(document)
        self.assertIn(raised.exception.faultCode, codes)
        return raised.exception.faultString

    def assert_alive(self):
        self.assertIsNone(self.driver.process.poll(), "the driver has ended")
        begin = time.monotonic()
        self.assertEqual(self.driver.post(GOOD)["ret_code"], 0)
        self.assertLess(time.monotonic() - begin, 2)

    def tearDown(self):
        self.assert_alive()

    def peak_memory(self, driver):
        """The most that a driver had at once, bytes."""
        with open(f"/proc/{driver.process.pid}/status", encoding="utf-8") as file:
            found = re.search(r"VmHWM:\s+(\d+) kB", file.read())
        return int(found.group(1)) * 1024

    def test_documents_of_many_values(self):
        document = value(b"<array><data>" + b"<value/>" * 130000 + b"</data></array>")
        self.assertIn("More than 40000 values", self.assert_fault(document))
        threads = [threading.Thread(target=self.exchange, args=(http(document),)) for _ in range(64)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        if programmemory.is_its_own(quvdriver_process.PROGRAM):
            self.assertLess(self.peak_memory(self.driver), 500 * MEGABYTE)

    def test_truncated_documents(self):
        for size in range(0, len(GOOD), 7):
            self.assert_fault(GOOD[:size])
        self.assert_alive()
        for size in range(0, len(http(GOOD)), 29):
            answer = self.exchange(http(GOOD)[:size])
            self.assertIn(self.status_line(answer), (None, 400, 411), answer)

    def test_deep_nesting(self):
        for opening, closing in ((b"<array><data><value>", b"</value></data></array>"),
                                 (b"<struct><member><name>a</name><value>", b"</value></member></struct>")):
            whole = 1000 * 1000 // len(opening + closing)  # what fits into the limit of size
            self.assert_fault(value(opening * whole + b"<i4>1</i4>" + closing * whole))
            self.assert_fault(value(opening * (1000 * 1000 // len(opening))))  # never closed
            self.assert_alive()
        # Past the limit of size it must not matter how deep it is.
        body = value(b"<array><data><value>" * 60000 + b"</value></data></array>" * 60000)
        answer = self.exchange(http(body))
        self.assertEqual(self.status_line(answer), 413)

    def test_sixty_thousand_arrays_in_few_bytes_each(self):
        self.assert_fault(b"<array>" * 60000)
        self.assert_fault(value(b"<array>" * 60000 + b"</array>" * 60000))

    def test_a_hundred_megabytes_that_are_announced(self):
        connection = self.connect()
        connection.sendall(http(b"", 100 * MEGABYTE))
        sent, answer = self.send_until_answered(connection, b"x" * 65536)
        self.assertEqual(self.status_line(answer), 413)
        self.assertLess(sent, 30 * MEGABYTE)

    def test_a_hundred_megabytes_in_chunks(self):
        connection = self.connect()
        connection.sendall(b"POST /RPC2 HTTP/1.1\r\nHost: localhost\r\nContent-Type: text/xml\r\n"
                           b"Transfer-Encoding: chunked\r\n\r\n")
        sent, answer = self.send_until_answered(connection, b"10000\r\n" + b"x" * 65536 + b"\r\n")
        self.assertEqual(self.status_line(answer), 413)
        self.assertLess(sent, 30 * MEGABYTE)

    def test_many_large_requests_at_once(self):
        driver = Driver()
        self.addCleanup(driver.end)
        size = 1000 * 1000
        connections = []
        for _ in range(300):
            connection = socket.create_connection(("127.0.0.1", driver.port), timeout=60)
            self.addCleanup(connection.close)
            connections.append(connection)
            try:
                connection.sendall(http(b"x" * (size - 1), size))
            except OSError:
                pass  # refused before it was all sent
        self.assertEqual(driver.post(GOOD)["ret_code"], 0)
        if programmemory.is_its_own(quvdriver_process.PROGRAM):
            self.assertLess(self.peak_memory(driver), 150 * MEGABYTE)
        for connection in connections:
            connection.close()

    def send_until_answered(self, connection, block):
        """Sends up to 100 MB, but stops when the driver says something."""
        sent = 0
        answer = b""
        try:
            while sent < 100 * MEGABYTE and not answer:
                connection.settimeout(0.001)
                try:
                    answer = connection.recv(65536)
                except TimeoutError:
                    pass
                connection.settimeout(60)
                if not answer:
                    connection.sendall(block)
                    sent += len(block)
        except OSError:
            pass
        connection.close()
        return sent, answer

    def test_wrong_lengths(self):
        for length, expected in (("-1", 400), ("abc", 400), ("12abc", 400), ("", 400), ("1e3", 400),
                                 ("99999999999999999999999", 413), ("18446744073709551616", 413),
                                 ("1048577", 413)):
            answer = self.exchange(http(GOOD, length), end=False)
            self.assertEqual(self.status_line(answer), expected, length)
        self.assert_alive()
        # Longer than what comes, and the other side closes; shorter, so that the document is cut.
        self.assertEqual(self.status_line(self.exchange(http(GOOD, len(GOOD) + 100))), 400)
        self.assertIn(b"<fault>", self.exchange(http(GOOD, len(GOOD) - 10)))
        twice = http(GOOD).replace(b"\r\n\r\n", b"\r\nContent-Length: 3\r\n\r\n", 1)
        self.assertEqual(self.status_line(self.exchange(twice, end=False)), 400)
        none = b"POST / HTTP/1.1\r\nHost: localhost\r\nContent-Type: text/xml\r\n\r\n" + GOOD
        self.assertEqual(self.status_line(self.exchange(none)), 411)

    def test_what_is_no_request(self):
        for data in (b"\0", b"\r\n\r\n", b"GET / HTTP/1.1\r\n\r\n", b"POST / HTTP/9.9\r\n\r\n", b"A" * 200000,
                     b"POST " + b"/" * 100000 + b" HTTP/1.1\r\n\r\n",
                     b"POST / HTTP/1.1\r\n" + b"X: y\r\n" * 20000 + b"\r\n",
                     b"POST / HTTP/1.1\r\nX: " + b"y" * 500000 + b"\r\n\r\n", b"\x16\x03\x01\x02\x00\x01"):
            answer = self.exchange(data)
            self.assertNotEqual(self.status_line(answer), 200, data[:40])
        self.assert_alive()

    def test_binary_rubbish(self):
        source = random.Random(9333)
        for size in (1, 10, 1000, 100000):
            rubbish = source.randbytes(size)
            self.assertNotEqual(self.status_line(self.exchange(rubbish)), 200)
            self.assert_fault(rubbish)
            self.assert_fault(value(b"<string>" + rubbish.replace(b"<", b"\x01") + b"\x01</string>"))

    def test_entities(self):
        levels = b"".join(b'<!ENTITY e%d "%b">' % (n, b"&e%d;" % (n - 1) * 10) for n in range(1, 12))
        bomb = b'<!DOCTYPE m [<!ENTITY e0 "lol">' + levels + b"]>"
        quadratic = b'<!DOCTYPE m [<!ENTITY a "' + b"a" * 50000 + b'">]>'
        outside = b'<!DOCTYPE m [<!ENTITY x SYSTEM "file:///etc/hostname">]>'
        itself = b'<!DOCTYPE m [<!ENTITY a "&b;"><!ENTITY b "&a;">]>'
        for dtd, text in ((bomb, b"&e11;"), (quadratic, b"&a;" * 5000), (outside, b"&x;"), (itself, b"&a;"),
                          (b"", b"&nothing;"), (b'<!DOCTYPE m SYSTEM "http://127.0.0.1:1/m.dtd">', b"x")):
            document = value(b"<string>" + text + b"</string>").replace(b"?>", b"?>" + dtd, 1)
            begin = time.monotonic()
            self.assert_fault(document)
            self.assertLess(time.monotonic() - begin, 10, dtd[:60])

    def test_values_that_are_none(self):
        for xml in (b"<i4>1e3</i4>", b"<boolean>2</boolean>", b"<double>nan</double>", b"<double>1e999</double>",
                    b"<base64>!</base64>", b"<dateTime.iso8601>yesterday</dateTime.iso8601>", b"<nil/>",
                    b"<struct><member><name>a</name></member></struct>", b"<array/>", b"<i4>1</i4><i4>2</i4>"):
            self.assert_fault(value(xml))
        self.assert_fault(b"<methodResponse><params/></methodResponse>")
        self.assert_fault(GOOD + GOOD)

    def test_many_arguments(self):
        envelope = self.driver.post(value(b"GET_STATUS") .replace(
            b"</params>", b"<param><value><i4>1</i4></value></param>" * 20000 + b"</params>"))
        self.assertEqual(envelope["ret_code"], 0)

    def test_slow_senders(self):
        begin = time.monotonic()
        stalled = [self.connect() for _ in range(16)]
        dripping = [self.connect() for _ in range(16)]
        for n, connection in enumerate(stalled):
            connection.sendall(http(GOOD)[:n * len(http(GOOD)) // 16])  # in the request line, in a header, in the document
        for n in range(10):
            for connection in dripping:
                connection.sendall(http(GOOD)[n:n + 1])
            self.assert_alive()
            time.sleep(0.05)
        # Those that have stalled are told so, or hung up on, and do not wait for ever.
        for n, connection in enumerate(stalled):
            answer = connection.recv(65536)
            self.assertIn(self.status_line(answer), (None, 400, 408), n)
        self.assertLess(time.monotonic() - begin, 15)

    def test_clients_that_hang_up(self):
        for _ in range(50):
            connection = self.connect()
            connection.sendall(http(GOOD))
            # Resets instead of closing, so that the answer has nowhere to go.
            connection.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, b"\1\0\0\0\0\0\0\0")
            connection.close()


if __name__ == "__main__":
    quvdriver_process.main()
