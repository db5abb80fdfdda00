# SPDX-License-Identifier: MIT
"""What the server refuses, and what every answer carries."""
import os
import re
import socket
import stat
import subprocess
import tempfile
import time
import unittest

from server import JSON, SANITIZED, WEB, Server, environment, read_all

POLICY = "default-src 'self'; frame-ancestors 'none'; base-uri 'none'; form-action 'self'"
CHANGE = {"Device.WiFi.Radio.1.": {"Channel": 11}}


class Refusals(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.server = cls.enterClassContext(Server("--host", "gateway.example", words=True))

    @classmethod
    def enterClassContext(cls, manager):  # Python 3.11 and later have it
        entered = manager.__enter__()
        cls.addClassCleanup(manager.__exit__, None, None, None)
        return entered

    def test_requests_are_judged_by_their_headers(self):
        own, port = f"http://{self.server.host}", self.server.port
        cases = [  # method, resource, headers, status
            ("GET", "/api/v1", {}, 200),
            ("GET", "/api/v1", {"Authorization": None}, 401),
            ("GET", "/api/v1", {"Authorization": f"bearer {self.server.token}"}, 200),
            ("GET", "/api/v1", {"Authorization": "Bearer " + "0" * 32}, 401),
            ("GET", "/api/v1", {"Authorization": "Bearer " + self.server.token[:-1]}, 401),
            ("GET", "/api/v1", {"Authorization": None, "Cookie": f"caltofal-{port}={self.server.token}"}, 401),
            ("GET", "/api/v1", {"Authorization": None, "Cookie": f"caltofal-{port}="}, 401),
            ("GET", "/api/v1/nonsense", {"Authorization": None}, 401),
            ("GET", "/api/v1", {"Host": "gateway.example"}, 200),
            ("GET", "/api/v1", {"Host": "Gateway.Example:443"}, 200),
            ("GET", "/api/v1", {"Host": f"127.0.0.1:{port} \t", "Authorization": f"Bearer   {self.server.token} "}, 200),
            ("GET", "/api/v1", {"Host": "evil.example"}, 421),
            ("GET", "/api/v1", {"Host": "gateway.example.evil.example"}, 421),
            ("GET", "/api/v1", {"Host": f"127.0.0.1:{port + 1}"}, 421),
            ("GET", "/api/v1", {"Host": f"localhost:{port}"}, 421),
            ("GET", "/", {"Host": "evil.example"}, 421),
            ("GET", f"/?token={self.server.token}", {"Host": "evil.example"}, 421),
            ("GET", "/api/v1/nonsense", {}, 404),
            ("GET", "/api", {}, 404),
            ("GET", "/api/v2/wan", {}, 404),
            ("GET", "/api/v1/wan?nonsense=1", {}, 400),
            ("GET", "/api/v1/wan?" + "&" * 64, {}, 400),
            ("GET", "/api/v1/wan?" + "a&" * 7000, {}, 400),  # more than the HTTP library has room for
            ("GET", "/api/v1/objects?path=Device.WiFi&dry_run=1", {}, 400),
            ("PATCH", "/api/v1/objects?where=a%3Db", {}, 400),
            ("GET", "/api/v1/wan%zz", {}, 400),
            ("GET", "/api/v1/wan%00", {}, 400),
            ("PUT", "/api/v1/wan", {}, 405),
            ("PATCH", "/api/v1/wan", {}, 405),
            ("POST", "/", {}, 405),
            ("OPTIONS", "/api/v1/objects", {"Origin": "http://evil.example"}, 405),
            ("PATCH", "/api/v1/objects", {"Origin": None}, 403),
            ("PATCH", "/api/v1/objects", {"Origin": "null"}, 403),
            ("PATCH", "/api/v1/objects", {"Origin": "http://evil.example"}, 403),
            ("PATCH", "/api/v1/objects", {"Origin": f"http://127.0.0.1:{port + 1}"}, 403),
            ("PATCH", "/api/v1/objects", {"Origin": f"{own}.evil.example"}, 403),
            ("PATCH", "/api/v1/objects", {"Origin": own, "Sec-Fetch-Site": "cross-site"}, 403),
            ("PATCH", "/api/v1/objects", {"Origin": None, "Sec-Fetch-Site": "same-site"}, 403),
            ("PATCH", "/api/v1/objects", {"Origin": None, "Sec-Fetch-Site": "same-origin"}, 400),
            ("PATCH", "/api/v1/objects", {"Host": "gateway.example", "Origin": "https://gateway.example"}, 400),
            ("PATCH", "/api/v1/objects", {"Content-Type": None}, 415),
            ("PATCH", "/api/v1/objects", {"Content-Type": "text/plain"}, 415),
            ("PATCH", "/api/v1/objects", {"Content-Type": "application/json; charset=utf-8"}, 400),
            ("PATCH", "/api/v1/objects", {"Transfer-Encoding": "chunked", "Content-Type": JSON}, 411),
            ("DELETE", "/api/v1/jobs/1", {"Origin": None}, 403),
            ("DELETE", "/api/v1/jobs/1", {}, 404),
            ("DELETE", "/api/v1/jobs/1", {"If-Match": "*"}, 400),
            ("GET", "/api/v1/wan", {"If-Match": "*"}, 400),
        ]
        for method, target, headers, status in cases:
            with self.subTest(method=method, target=target, headers=headers):
                body = "" if method == "PATCH" and "Transfer-Encoding" not in headers else None
                answer = self.server.ask(method, target, body, **headers)
                self.assertEqual(answer.status, status, answer.body)
                self.assertEqual(answer.headers["Content-Security-Policy"], POLICY)
                self.assertEqual(answer.headers["X-Content-Type-Options"], "nosniff")
                self.assertEqual(answer.headers["Referrer-Policy"], "no-referrer")
                self.assertEqual(answer.headers["Cross-Origin-Resource-Policy"], "same-origin")
                if status >= 400:
                    self.assertEqual(answer.headers["Cache-Control"], "no-store")
                    self.assertTrue(answer.message)
                self.assertEqual("Allow" in answer.headers, status == 405)
                self.assertNotIn("Access-Control-Allow-Origin", answer.headers)

    def test_only_embedded_files_are_served(self):
        for path in ("/../../etc/passwd", "/%2e%2e/%2e%2e/etc/passwd", "//etc/passwd", "/..%2fetc%2fpasswd", "/etc/passwd",
                     "/page/", "/chart.js/", "/chart.js%00.html", "/.", "/CMakeLists.txt", "/chart.js\\..", "http://x/"):
            with self.subTest(path=path):
                head = self.server.raw(f"GET {path} HTTP/1.1\r\nHost: {self.server.host}\r\nConnection: close\r\n\r\n"
                                       .encode()).split(b"\r\n")[0]
                self.assertRegex(head, rb"HTTP/1.1 40[04] ")

    def test_files_come_with_type_and_tag(self):
        chart = self.server.ask("GET", "/chart.js", Authorization=None)
        self.assertEqual((chart.status, chart.headers["Content-Type"]), (200, "text/javascript; charset=utf-8"))
        self.assertIn(b"Chart.js", chart.body[:100])
        again = self.server.ask("GET", "/chart.js", If_None_Match=chart.headers["ETag"])
        self.assertEqual((again.status, again.body), (304, b""))
        head = self.server.ask("HEAD", "/chart.js")
        self.assertEqual((head.headers["Content-Length"], head.body), (str(len(chart.body)), b""))

    def test_bodies_have_limits(self):
        filler = '{"Device.WiFi.Radio.1.": {"Channel": "%s"}}'
        deep = '{"a":' * 10000 + "1" + "}" * 10000
        cases = [  # body, status, word of the message
            (filler % ("x" * 70000), 413, "65536"),
            (filler % ("x" * 3000000), 413, "65536"),
            (deep[:60000], 400, "deeper"),
            ("[" * 10000, 400, "deeper"),
            ('{"a":' * 16 + "1" + "}" * 16, 400, "Device"),
            ('{"a":' * 17 + "1" + "}" * 17, 400, "deeper"),
            ("", 400, "nothing to set"),
            ("{", 400, "JSON"),
            ("[1]", 400, "object"),
            ('{"Device.WiFi.Radio.1.": {"Channel": 1, "Channel": 2}}', 400, "twice"),
            ('{"Device.WiFi.Radio.1.": {"Channel": 1}, "Device.WiFi.Radio.1": {"Channel": 2}}', 400, "twice"),
            ('{"Device.WiFi.Radio.1.": {"Channel": null}}', 400, "Channel"),
            ('{"Device.WiFi.Radio.1.": {"Channel": "a\\u0000b"}}', 400, "NUL"),
            ('{"Device.WiFi.Radio.1.": {"Chan\\u0000nel": 1}}', 400, '"Chan\\u0000nel"'),
            ('{"Device.WiFi.\\u0000Radio.1.": {"Channel": 1}}', 400, '"Device.WiFi.\\u0000Radio.1."'),
            ('{"a\\u0000b": 1, "a\\u0000b": 1}', 400, '"a\\u0000b" is given twice'),
            ('{"Device.WiFi.Radio.1.": {"Channel": 1e1}}', 400, "as a text"),
            ('{"Device.WiFi.SSID.1.": {"SSID": 1.10}}', 400, "as a text"),
            ('{"Device.WiFi.SSID.1.": {"SSID": 123456789012345678901}}', 400, "as a text"),
            ('{"Device.WiFi.Radio.1.": {"Channel": "\xff"}}'.encode("latin-1"), 400, "JSON"),
            ('{"Device.WiFi.Radio.1.": {"Channel": 1e999}}', 400, "too large"),
            ('{"Device.WiFi.Radio.1.": {}}', 400, "nothing to set"),
            ('{"Device.WiFi.Radio.1.": 3}', 400, "Device.WiFi.Radio.1."),
            ('{"Nonsense.": {"a": 1}}', 400, "Nonsense"),
        ]
        for body, status, word in cases:
            with self.subTest(body=body[:60], length=len(body)):
                try:
                    answer = self.server.patch("/objects", body, Content_Type=JSON)
                except ConnectionError:  # far beyond the limit the server need not read on
                    self.assertGreater(len(body), 1000000)
                    continue
                self.assertEqual(answer.status, status, answer.body)
                self.assertIn(word, answer.message)

    def test_what_is_malformed_is_refused(self):
        """With the server's own answer, but for what the HTTP library judges by itself."""
        head = f"GET /api/v1 HTTP/1.1\r\nHost: {self.server.host}\r\nAuthorization: Bearer {self.server.token}\r\n"
        chunked = "Transfer-Encoding: chunked\r\n\r\n"
        cases = [  # bytes, status, whether the answer is the server's own
            (head + "X: " + "y" * 17000 + "\r\n\r\n", "431", True),
            (head + "".join(f"X{i}: y\r\n" for i in range(9000)) + "\r\n", "431", False),
            (head + "Cookie: " + "; ".join(f"c{i}=v" for i in range(180)) + "\r\n\r\n", "431", True),
            (head + "Cookie: " + ";" * 400 + "\r\n\r\n", "431", True),
            (head + "Cookie: " + ";" * 5000 + "\r\n\r\n", "431", False),
            (head + f"Host: {self.server.host}\r\n\r\n", "400", True),
            (head + "Content-Length: 1\r\nContent-Length: 2\r\n\r\n12", "400", True),
            (head + "Content-Length: 0\r\nContent-Length: 9\r\n\r\n" + head + "\r\n", "400", True),
            (head + "Content-Length: 99999999999999999999\r\n\r\n", "413", False),
            (head + "Content-Length: -1\r\n\r\n", "400", False),
            (head + "X : y\r\n\r\n", "400", True),
            *((head + line + "\r\n" + head + "\r\n", "400", True)  # one request, which has no second reading
              for line in (": x\r\n", ":\r\n", ": \r\n", ":\t\r\n", ": x\n", "X: y\n: \n", "X: y\r\n z\r\n", "X: y\r\n : z\r\n",
                           "X: y\0z\r\n", "Cookie: a=b\0\r\n", "\rX: y\r\n", "X\r: y\r\n", "X\x0b: y\r\n", "X: a\rHost: evil\r\n")),
            (head.replace("/v1", "/v1\0x") + "\r\n", "400", True),
            (head.replace("\r", "") + "X:\nY: \nConnection: close\n\n", "200", True),
            (head + "".join(f"X{i}: {'y' * 120}\r\n" for i in range(100)) + "Connection: close\r\n\r\n", "200", True),
            (head + "no colon\r\n\r\n", "400", False),
            (head + chunked + "1\r\n{\r\n0\r\n\r\n", "411", True),
            (head + chunked + "x\r\n", "411", True),
            (head + chunked.replace("chunked", "gzip"), "411", True),
            (head.replace("/v1 ", "/v1 /x "), "404", True),
            (head.replace("GET", "GET ") + "\r\n", "400", True),
            (head.replace("/api/v1", f"/?token={self.server.token}&token=x") + "\r\n", "400", True),
            (head.replace("1.1", "2.0") + "\r\n", "505", False),
            ("GET / HTTP/1.0\r\n\r\n", "421", True),
            ("GET / HTTP/1.1\r\n\r\n", "421", True),
            ("GET /\r\n\r\n", "400", False),
            ("GET " + "/" * 70000 + " HTTP/1.1\r\n\r\n", "414", False),
        ]
        for data, status, own in cases:
            with self.subTest(data=data[:40] + data[-40:]):
                data += "" if "\n\n" in data.replace("\r", "") else "\r\n"
                answer = self.server.raw(data.encode(), timeout=3).decode()
                start, _, body = answer.partition("\r\n\r\n")
                self.assertEqual(answer.count("Content-Security-Policy:"), 1 if own else 0, answer)
                self.assertTrue(start.startswith(f"HTTP/1.1 {status} "), start)
                self.assertEqual(POLICY in start and "no-store" in start and body.startswith("{"), own, start)
                self.assertEqual(answer.count("HTTP/1.1 "), 1 if own else answer.count("HTTP/1.1 "), answer)
        self.assertEqual(self.server.raw(b"\x16\x03\x01\r\n\r\n", timeout=3), b"")
        self.assertEqual(self.server.get("").status, 200)


class Sessions(unittest.TestCase):
    def test_the_token_opens_a_session(self):
        with Server() as server, Server(words=True) as other:
            answer = server.ask("GET", f"/?token={server.token}", Authorization=None)
            self.assertEqual((answer.status, answer.headers["Location"]), (303, "/"))
            cookie, *attributes = answer.headers["Set-Cookie"].split("; ")
            self.assertEqual(set(attributes), {"Path=/", "HttpOnly", "SameSite=Strict"})
            self.assertNotIn(server.token, cookie)
            self.assertEqual(server.get("", Authorization=None, Cookie=f"a=b; {cookie}; c=d").status, 200)
            forged = f"caltofal-{server.port}=bad"  # by another server on the host
            self.assertEqual(server.get("", Authorization=None, Cookie=f"{forged}; {cookie}; {forged}").status, 200)
            elsewhere = cookie.replace(str(server.port), str(other.port))
            self.assertEqual(other.get("", Authorization=None, Cookie=elsewhere).status, 401)
            others = other.ask("GET", f"/?token={other.token}", Authorization=None).headers["Set-Cookie"].split("; ")[0]
            for one in (server, other):  # a browser keeps the cookies of all ports of a host in one jar
                self.assertEqual(one.get("", Authorization=None, Cookie=f"{cookie}; {others}").status, 200)
            self.assertEqual(other.get("", Authorization=f"Bearer {server.token}").status, 401)

    def test_five_wrong_tokens_make_wait(self):
        with Server(words=True) as server:
            wrong = {"Authorization": "Bearer " + "f" * 32}
            self.assertEqual([server.get("", **wrong).status for _ in range(5)], [401] * 5)
            for answer in (server.get(""), server.ask("GET", f"/?token={server.token}", Authorization=None)):
                self.assertEqual((answer.status, answer.headers["Retry-After"]), (503, "10"))
            stale = [server.get("", Authorization=None, Cookie=f"caltofal-{server.port}=x").status for _ in range(9)]
            self.assertEqual(stale, [401] * 9)
            time.sleep(10.5)
            self.assertEqual([server.get("", **wrong).status, server.get("", **wrong).status], [401, 503])
            self.assertEqual(server.get("").status, 200)  # it has waited once, whoever else guesses on from here

    def test_the_token_file_is_the_owners(self):
        file = os.path.join(tempfile.mkdtemp(), "token")
        with open(file, "w", encoding="ascii") as old:
            os.chmod(old.name, 0o644)
        with Server("--token-file", file) as server:
            with open(file, encoding="ascii") as written:
                self.assertEqual(written.read(), server.token + "\n")
            self.assertEqual(stat.S_IMODE(os.stat(file).st_mode), 0o600)

    def test_a_token_file_takes_no_other_files_place(self):
        folder = tempfile.mkdtemp()
        fifo, link, target, directory, end = (os.path.join(folder, name) for name in ("fifo", "link", "target", "directory", "end"))
        os.mkfifo(fifo)
        with socket.socket(socket.AF_UNIX) as bound:
            bound.bind(end)
        os.symlink(target, link)
        os.mkdir(directory)
        before = sorted(os.listdir(folder))
        for file, what in ((fifo, "FIFO"), (link, "symbolic link"), (end, "socket"), (directory, "directory")):
            done = subprocess.run([WEB, "--listen", "127.0.0.1:0", "--token-file", file], env=environment(tempfile.mkdtemp()),
                                  capture_output=True, text=True, timeout=10, check=False)
            self.assertEqual((done.returncode, done.stdout), (1, ""))
            self.assertRegex(done.stderr, f"{file}: .*{what}")
        self.assertTrue(stat.S_ISFIFO(os.stat(fifo).st_mode) and stat.S_ISSOCK(os.stat(end).st_mode))
        self.assertEqual(sorted(os.listdir(folder)), before)

    def test_read_only_refuses_every_change(self):
        with Server("--read-only", words=True) as server, Server() as other:
            for method, resource in (("PATCH", "/objects"), ("PATCH", "/objects?dry_run=0"), ("PATCH", "/wifi/ssids/1"),
                                     ("POST", "/wifi/scans"), ("POST", "/wifi/wps"), ("POST", "/mesh/sync"),
                                     ("DELETE", "/jobs/1")):
                answer = server.ask(method, "/api/v1" + resource, None if method == "DELETE" else CHANGE)
                self.assertEqual((answer.status, "--read-only" in answer.message), (403, True), resource)
            self.assertNotIn("PATCH", str(server.get("").json))
            dry, wrong = (server.patch(f"/objects?dry_run={flag}", CHANGE) for flag in ("1", "maybe"))
            self.assertEqual((dry.status, dry.json["changes"][0]["to"], wrong.status), (200, 11, 400))
            self.assertEqual(server.stored("Device.WiFi.Radio.1.Channel"), "6")
            self.assertEqual([one.get(resource).headers["Caltofal-Read-Only"] for one in (server, other)
                              for resource in ("/wan", "/nope")], ["1", "1", None, None])
            for head in ("HEAD /nope HTTP/1.1\r\n", "GET /api/v1 HTTP/1.1\r\nX : y\r\n", "PUT / HTTP/1.1\r\n", "GET /api/v1 HTTP/1.1\r\n",
                         "GET /" + "?&" * 80 + " HTTP/1.1\r\n", "GET / HTTP/1.1\r\n" + "X: y\r\n" * 200):
                host = "" if head.startswith("HEAD") else f"Host: {server.host}\r\n"
                answer = server.raw(f"{head}{host}Connection: close\r\n\r\n".encode())
                self.assertRegex(answer, rb"^HTTP/1.1 4(.|\r\n)*\r\nCaltofal-Read-Only: 1\r\n")

    def test_command_line(self):
        cases = [  # options, exit code, what it says
            (["--help"], 0, "--read-only"),
            (["--version"], 0, "caltofal-web 1"),
            (["--listen", "0.0.0.0:0"], 2, "--host"),
            (["--listen", "[::]:0"], 2, "--host"),
            (["--listen", "127.0.0.1"], 2, "ADDRESS:PORT"),
            (["--listen", "127.0.0.1:70000"], 2, "port"),
            (["--listen", "example.org:80"], 2, "IP address"),
            (["--connections", "0"], 2, "connections"),
            (["--host", ""], 2, "host"),
            (["--host", "gateway.example:443"], 2, "without a port"),
            (["--host", "[fd00::1]", "--listen", "nowhere"], 2, "ADDRESS:PORT"),
            (["-g", ""], 2, "gateway"),
            (["nonsense"], 2, "nonsense"),
            (["--listen", "127.0.0.1:0", "--token-file", "/dev/null/token"], 1, "/dev/null/token"),
        ]
        for options, code, word in cases:
            with self.subTest(options=options):
                done = subprocess.run([WEB, *options], env=environment(tempfile.mkdtemp()), capture_output=True, text=True,
                                      timeout=10, check=False)
                self.assertEqual(done.returncode, code, done.stderr)
                self.assertIn(word, done.stdout + done.stderr)
        with Server() as server:
            done = subprocess.run([WEB, "--listen", server.host], env=environment(server.folder), capture_output=True,
                                  text=True, timeout=10, check=False)
            self.assertEqual((done.returncode, "in use" in done.stderr), (1, True))


class RefusalLog(unittest.TestCase):
    def test_what_is_turned_away_is_logged(self):
        with Server(words=True) as server:
            wrong = {"Authorization": "Bearer not-the-token"}
            for method, target, headers in (
                    ("GET", "/api/v1/wifi/ssids/1?x=%1b[2J", wrong), ("GET", "/api/v1/%0a%1b[2J?token=secret", {"Authorization": None}),
                    ("GET", "/?token=not-the-token", {}), ("PUT", "/api/v1/wan", {}),
                    ("DELETE", "/api/v1/a%0a%1b[2J", {}), ("PATCH", "/api/v1/objects?secret%0a=x", {}),
                    ("PATCH", "/api/v1/objects", {"Origin": "http://evil.example"}),
                    ("POST", "/api/v1/mesh/sync", {"Content-Type": "text/plain"}), ("EVIL", "/x", {"Host": "evil.example"}),
                    *(("GET", "/api/v1", wrong) for _ in range(5)), ("GET", "/api/v1/nonsense", {}), ("GET", "/nonsense", {})):
                server.ask(method, target, "{}" if method != "GET" else None, **headers)
            lines = server.end().splitlines()
        pattern = r"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ 127\.0\.0\.1 refused (.*) -> (\d+)"
        matches = [re.fullmatch(pattern, line) for line in lines]
        self.assertTrue(all(matches), lines)
        self.assertEqual([(match[1].split(":")[0], match[2]) for match in matches],
                         [("GET /api/v1/wifi/ssids/{N}", "401"), ("? /api/v1/wan", "405"),
                          ("DELETE /api", "404"), ("PATCH /api/v1/objects", "400"), ("PATCH /api/v1/objects", "403"),
                          ("POST /api/v1/mesh/sync", "415"), ("? /", "421"), ("GET /api", "503"), ("7 more", "401")])

    def test_it_is_not_flooded(self):
        with Server(words=True) as server:
            for _ in range(300):
                server.get("", Host="evil.example")
            time.sleep(10.1)
            server.get("", Host="evil.example")
            lines = server.end().splitlines()
        self.assertEqual([line.split(" refused ")[1].split(":")[0] for line in lines],
                         ["GET /api/v1", "299 more -> 421", "GET /api/v1"])


class Limits(unittest.TestCase):
    def test_connections_beyond_the_limit_are_told_so(self):
        for options, most in (((), 16), (("--connections", "5"), 5), (("--connections-per-address", "3"), 3)):
            with self.subTest(options=options), Server(*options) as server:
                held = [socket.create_connection(("127.0.0.1", server.port)) for _ in range(most)]
                time.sleep(0.2)
                for _ in range(3):
                    answer = server.raw(f"GET / HTTP/1.1\r\nHost: {server.host}\r\n\r\n".encode())
                    self.assertTrue(answer.startswith(b"HTTP/1.1 503 "), answer)
                    self.assertIn(b"too many connections", answer)
                held.pop().close()
                time.sleep(0.2)
                self.assertEqual(server.get("").status, 200)
                for connection in held:
                    connection.close()

    def test_slow_requests_are_ended(self):
        """Ten seconds for all of a request, however it is dealt out: a burst, then a byte now and then."""
        with Server("--connections-per-address", "40") as server:
            line = "PATCH /api/v1/objects HTTP/1.1\r\n"
            head = f"{line}Host: {server.host}\r\nAuthorization: Bearer {server.token}\r\nOrigin: http://{server.host}\r\n" \
                   f"Content-Type: {JSON}\r\nContent-Length: 100\r\n\r\n"
            cases = {  # what comes at once, what comes slowly
                "nothing": ("", ""), "a line": (line, ""), "no body": (head, ""), "a slow line": ("", line),
                "a slow end of the line, then slow headers": (line[:-9], head[len(line) - 9:]),
                "slow headers": (line, head[len(line):]),
                "a slow end of the headers, then a slow body": (head[:-9], head[-9:] + "{" * 90),
                "a slow body": (head, "{" * 90)}
            start, slow = time.monotonic(), {}
            for name, (burst, drops) in cases.items():
                for again in (False, True):
                    connection = socket.create_connection(("127.0.0.1", server.port), timeout=0.01)
                    if again:  # after another request on the same connection
                        connection.sendall(f"HEAD /icon.svg HTTP/1.1\r\nHost: {server.host}\r\n\r\n".encode())
                    slow[name, again] = [connection, burst.encode(), list(drops), b"", None]
            time.sleep(0.3)
            for client in slow.values():
                client[0].sendall(client[1])
            while time.monotonic() < start + 12:
                for client in slow.values():
                    self.deal_out(client, start)
                time.sleep(0.4)
                self.assertEqual(server.get("").status, 200)
            for (name, again), (connection, burst, _, answer, ended) in slow.items():
                with self.subTest(name=name, again=again):
                    connection.close()
                    self.assertIsNotNone(ended, answer)
                    self.assertGreater(ended, 9)
                    self.assertLess(ended, 11.5)
                    last = answer.split(b"HTTP/1.1 ")[-1]
                    begun = b"\n" in burst or "end of the line" in name
                    silent = again and not begun  # closed without a word
                    self.assertTrue(last.startswith(b"200 " if silent else b"408 "), answer)

    @staticmethod
    def deal_out(client, start):
        """Sends the next byte of a slow client, and notes what came back and when the server closed."""
        connection, _, drops, _, ended = client
        if ended is None:
            try:
                if drops:
                    connection.sendall(drops.pop(0).encode())
                while chunk := connection.recv(4096):
                    client[3] += chunk
                client[4] = time.monotonic() - start
            except TimeoutError:
                pass
            except OSError:
                client[4] = time.monotonic() - start

    @unittest.skipIf(SANITIZED, "sanitizers take longer than the second that there is")
    def test_ending_lets_requests_finish(self):
        for number in range(5):
            with self.subTest(number=number), Server() as server:
                connection = server.connect()
                self.assertEqual(server.ask("GET", "/api/v1", connection=connection).status, 200)
                connection.request("GET", "/api/v1/status", headers={"Authorization": f"Bearer {server.token}"})
                time.sleep(0.001 * number)
                start = time.monotonic()
                server.process.terminate()
                self.assertEqual(connection.getresponse().status, 200)
                server.process.wait(timeout=5)
                self.assertLess(time.monotonic() - start, 1)
                connection.close()
