# SPDX-License-Identifier: LGPL-3.0-or-later
"""Who may call the driver: no web page, nobody from elsewhere without the token."""

import base64
import http.client
import os
import subprocess
import tempfile
import unittest
import xmlrpc.client

import quvdriver_process
from quvdriver_process import Driver, run

TOKEN = "correct-horse-battery:staple"
CALL = xmlrpc.client.dumps(("GET_STATUS",), "EXEC_B").encode()
TINT = xmlrpc.client.dumps(("TINT", {"formula_type": 4, "quantity_unit": 3, "ids": ["B"], "quantities": [10.0]}),
                           "EXEC_NB").encode()


def ask(port, headers, body=CALL, host="127.0.0.1"):
    """The status, the headers and the body that the driver gives; the headers of a good request, changed."""
    whole = {"Host": f"127.0.0.1:{port}", "Content-Type": "text/xml", **headers}
    connection = http.client.HTTPConnection(host, port, timeout=5)
    try:
        connection.putrequest("POST", "/RPC2", skip_host=True, skip_accept_encoding=True)
        for name, value in whole.items():
            if value is not None:
                connection.putheader(name, value)
        connection.putheader("Content-Length", str(len(body)))
        connection.endheaders(body)
        response = connection.getresponse()
        return response.status, response.headers, response.read()
    finally:
        connection.close()


class WebPageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.driver = Driver("--speed", "10")

    @classmethod
    def tearDownClass(cls):
        cls.driver.end()

    def status(self, headers, body=CALL):
        return ask(self.driver.port, headers, body)[0]

    def test_a_good_request_is_answered(self):
        self.assertEqual(self.status({}), 200)

    def test_a_page_cannot_pour(self):
        page = {"Origin": "http://evil.example", "Host": "evil.example", "Content-Type": "text/plain"}
        self.assertEqual(self.status(page, TINT), 403)
        for header, status in (("Host", 421), ("Content-Type", 415)):
            self.assertEqual(self.status({header: page[header]}, TINT), status)
        with self.driver.client() as client:
            self.assertFalse(client.EXEC_B("GET_STATUS")["ret_value"]["tinting"])
            report = client.EXEC_B("GET_DISPENSED_FORMULA", 1, 1)["ret_value"]
        self.assertEqual(report["total_formula"]["ids"], [])

    def test_any_origin_and_any_site_of_a_page_is_refused(self):
        for origin in ("null", "http://localhost", f"http://127.0.0.1:{self.driver.port}", ""):
            self.assertEqual(self.status({"Origin": origin}), 403, origin)
        for site in ("cross-site", "same-site", "same-origin", "anything"):
            self.assertEqual(self.status({"Sec-Fetch-Site": site}), 403, site)
        self.assertEqual(self.status({"Sec-Fetch-Site": "none"}), 200)

    def test_only_xml_is_taken(self):
        for kind in ("text/xml", "TEXT/XML", "application/xml", "text/xml; charset=utf-8", "application/xml;charset=UTF-8"):
            self.assertEqual(self.status({"Content-Type": kind}), 200, kind)
        for kind in (None, "", "text/plain", "text/plain; text/xml", "text/xmlx", "application/json",
                     "application/x-www-form-urlencoded", "multipart/form-data; boundary=text/xml"):
            self.assertEqual(self.status({"Content-Type": kind}), 415, kind)

    def test_only_this_computer_is_meant(self):
        port = self.driver.port
        for host in (None, "localhost", f"LOCALHOST:{port}", "127.0.0.1", "127.9.8.7:1", "[::1]", f"[::1]:{port}", "::1"):
            self.assertEqual(self.status({"Host": host}), 200, host)
        for host in ("evil.example", f"evil.example:{port}", "localhost.evil.example", "127.0.0.1.evil.example", "",
                     "192.168.0.1", "128.0.0.1", "[::2]", "[", "localhost:1:2", "0.0.0.0", "127.1", "localhost:80@evil.example", "localhost:80x", ":80",
                     "[::1]evil.example", "[::1]:80x", "[127.0.0.1", "[]"):
            self.assertEqual(self.status({"Host": host}), 421, host)

    def test_what_is_refused_is_told_in_a_line(self):
        _, _, body = ask(self.driver.port, {"Origin": "x"})
        self.assertEqual(body, b"Requests of web pages are refused\n")
        _, _, body = ask(self.driver.port, {"Content-Type": "text/plain"})
        self.assertEqual(body, b"The content must be XML: text/xml or application/xml\n")

    def test_the_name_that_the_driver_listens_on(self):
        with Driver("--host", "localhost", address="localhost") as driver:
            self.assertEqual(ask(driver.port, {"Host": "localhost"}, host="localhost")[0], 200)
            self.assertEqual(ask(driver.port, {"Host": "other"}, host="localhost")[0], 421)


class TokenTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.file = self.write(TOKEN + "\n")

    def write(self, text, name="token"):
        path = os.path.join(self.folder, name)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def test_the_token_opens(self):
        def basic(text):
            return "Basic " + base64.b64encode(text.encode()).decode()

        with Driver("--token-file", self.file) as driver:
            for given in (f"Bearer {TOKEN}", f"bearer  {TOKEN}", basic(f"anybody:{TOKEN}"), basic(f":{TOKEN}")):
                self.assertEqual(ask(driver.port, {"Authorization": given})[0], 200, given)
            for given in (None, "", "Bearer", f"Bearer {TOKEN}x", f"Bearer {TOKEN[:-1]}", f"Bearer {TOKEN * 2}",
                          f"Digest {TOKEN}", TOKEN, basic(TOKEN), basic(f"{TOKEN}:x"), "Basic ????", "Basic"):
                status, headers, body = ask(driver.port, {"Authorization": given})
                self.assertEqual(status, 401, given)
                self.assertEqual(headers.get_all("WWW-Authenticate"), ['Bearer realm="quvdriver"', 'Basic realm="quvdriver"'])
                self.assertNotIn(TOKEN.encode(), body)

    def test_pythons_client_sends_it_by_its_address(self):
        with Driver("--token-file", self.file) as driver:
            address = f"any:correct-horse-battery%3Astaple@127.0.0.1:{driver.port}"
            with xmlrpc.client.ServerProxy(f"http://{address}/RPC2", transport=quvdriver_process.Transport()) as client:
                self.assertEqual(client.EXEC_B("GET_STATUS")["ret_code"], 0)
            with driver.client() as client, self.assertRaises(xmlrpc.client.ProtocolError) as raised:
                client.EXEC_B("GET_STATUS")
            self.assertEqual(raised.exception.errcode, 401)

    def test_beyond_this_computer_only_with_a_token_or_open(self):
        for host in ("0.0.0.0", "::"):
            ended = run("--port", "0", "--host", host)
            self.assertEqual(ended.returncode, 2, host)
            self.assertEqual(ended.stdout, "")
            self.assertIn("reached from other computers", ended.stderr)
            self.assertIn("--token-file", ended.stderr)
            self.assertIn("--open", ended.stderr)
        with Driver("--host", "0.0.0.0", "--token-file", self.file, address="0.0.0.0") as driver:
            self.assertEqual(ask(driver.port, {})[0], 401)
            named = {"Authorization": f"Bearer {TOKEN}", "Host": "driver.example"}
            self.assertEqual(ask(driver.port, named)[0], 200)
            self.assertEqual(ask(driver.port, {**named, "Origin": "http://driver.example"})[0], 403)
        with Driver("--host", "0.0.0.0", "--open", address="0.0.0.0") as driver:
            self.assertEqual(ask(driver.port, {"Host": "driver.example"})[0], 200)
            self.assertEqual(ask(driver.port, {"Origin": "http://driver.example"})[0], 403)

    def test_wrong_usage(self):
        for options, text in ((["--host", ""], "--host must be an address"),
                              (["--token-file", self.file, "--open"], "--token-file and --open exclude each other")):
            ended = run("--port", "0", *options)
            self.assertEqual(ended.returncode, 2, options)
            self.assertIn(text, ended.stderr)

    def test_a_file_that_holds_no_token(self):
        for number, text in enumerate(("", "\n", "short", "x" * 513, "two words that are long", "two-lines-of-a\nfile-that-is-long",
                                       "perché-perché-perché")):
            path = self.write(text, str(number))
            ended = run("--port", "0", "--token-file", path)
            self.assertEqual(ended.returncode, 1, text)
            self.assertEqual(ended.stderr, f'quvdriver: Token file "{path}": it must hold one line of 16 to 512 '
                                           "characters, without blanks\n")
        ended = run("--port", "0", "--token-file", os.path.join(self.folder, "none"))
        self.assertEqual(ended.returncode, 1)
        self.assertIn("No such file", ended.stderr)
        fifo = os.path.join(self.folder, "fifo")
        os.mkfifo(fifo)
        for path in (fifo, self.folder, "/dev/zero"):
            ended = run("--port", "0", "--token-file", path)
            self.assertEqual(ended.returncode, 1)
            self.assertIn("it is no regular file", ended.stderr)


if __name__ == "__main__":
    quvdriver_process.main()
