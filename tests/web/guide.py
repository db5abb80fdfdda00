# SPDX-License-Identifier: MIT
"""What docs/web.md shows: its commands, and its nginx in front."""
import os
import re
import shutil
import socket
import ssl
import http.client
import subprocess
import tempfile
import time
import unittest

from server import Server, environment

with open(os.path.join(os.path.dirname(__file__), "../../docs/web.md"), encoding="utf-8") as page:
    GUIDE = page.read()


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


class Guide(unittest.TestCase):
    maxDiff = None

    def test_the_transcripts(self):
        lines = GUIDE[GUIDE.index("<!-- server"):GUIDE.index("## What takes long")].splitlines()
        steps = []
        for line in (line[4:] for line in lines if line.startswith("    ")):
            if line.startswith("$ "):
                steps.append([line[2:], ""])
            elif steps:
                steps[-1][1] += line + "\n"
        with Server("--token-file", "token", words=True) as server:
            def here(text):
                return text.replace("127.0.0.1:8080", server.host)
            for command, shown in steps:
                if command == "cat change":
                    with open(os.path.join(server.folder, "change"), "w", encoding="utf-8") as script:
                        script.write(here(shown))
                    continue
                done = subprocess.run(["sh", "-c", here(command)], cwd=server.folder, env=environment(server.folder),
                                      capture_output=True, text=True, timeout=20, check=False)
                self.assertEqual(done.stdout, shown, (command, done.stderr))
        self.assertGreater(len(steps), 5)

    @unittest.skipUnless(shutil.which("nginx") and shutil.which("openssl"), "nginx is not installed")
    def test_nginx_in_front(self):
        folder, port = tempfile.mkdtemp(), free_port()
        subprocess.run(["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "1", "-subj",
                        "/CN=gateway.example", "-keyout", "key.pem", "-out", "cert.pem"], cwd=folder, check=True,
                       capture_output=True)
        block = re.search(r"<!-- nginx -->\n```nginx\n(.*?)```", GUIDE, re.S).group(1)
        with Server("--host", "gateway.example", "--connections-per-address", "64", words=True) as server:
            for before, after in (("listen 443", f"listen 127.0.0.1:{port}"), ("/etc/ssl/certs/gateway.pem", "cert.pem"),
                                  ("/etc/ssl/private/gateway.key", "key.pem"), ("127.0.0.1:8080", server.host)):
                self.assertIn(before, block)
                block = block.replace(before, f"{folder}/{after}" if after.endswith("pem") else after)
            with open(f"{folder}/nginx.conf", "w", encoding="utf-8") as file:
                paths = "".join(f"{name}_temp_path {folder}/{name}; " for name in
                                ("client_body", "proxy", "fastcgi", "uwsgi", "scgi"))
                file.write(f"daemon off; pid {folder}/pid; error_log {folder}/error; events {{}}\n"
                           f"http {{ access_log {folder}/access; {paths}\n{block} }}\n")
            # pylint: disable-next=consider-using-with
            nginx = subprocess.Popen(["nginx", "-c", f"{folder}/nginx.conf", "-e", f"{folder}/error"],
                                     stderr=subprocess.DEVNULL)
            self.addCleanup(nginx.wait)
            self.addCleanup(nginx.terminate)
            self.browse(server, port)
            with open(f"{folder}/access", encoding="utf-8") as file:
                self.assertRegex(log := file.read(), "GET /api/v1/wan")
                self.assertNotIn(server.token, log)

    def browse(self, server, port):
        context = ssl.create_default_context()
        context.check_hostname, context.verify_mode = False, ssl.CERT_NONE
        host = f"gateway.example:{port}"

        def ask(method, target, body=None, **headers):
            for _ in range(50):
                connection = http.client.HTTPSConnection("127.0.0.1", port, context=context, timeout=5)
                try:
                    connection.request(method, target, body, {"Host": host, **headers})
                    answer = connection.getresponse()
                    answer.read()
                    return answer
                except ConnectionRefusedError:
                    time.sleep(0.1)
            raise AssertionError("nginx does not listen")

        opened = ask("GET", f"/?token={server.token}")
        self.assertEqual((opened.status, "secure" in opened.headers["Set-Cookie"].lower()), (303, True))
        self.assertIn("max-age", opened.headers["Strict-Transport-Security"])
        cookie = {"Cookie": opened.headers["Set-Cookie"].split(";")[0]}
        self.assertEqual(ask("GET", "/api/v1/wan", **cookie).status, 200)
        self.assertEqual(ask("GET", "/api/v1/wan").status, 401)
        change = {"Content-Type": "application/json", **cookie}
        for origin, status in ((f"https://{host}", 200), ("https://evil.example", 403)):
            answer = ask("PATCH", "/api/v1/objects", '{"Device.WiFi.Radio.1.": {"Channel": 11}}', Origin=origin, **change)
            self.assertEqual(answer.status, status)
