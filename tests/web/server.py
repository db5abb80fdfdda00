# SPDX-License-Identifier: MIT
"""Starting caltofal-web in a sandbox folder of its own, and asking it."""
import http.client
import json
import os
import re
import socket
import subprocess
import sys
import tempfile
from dataclasses import dataclass

WEB, TOOL, SANDBOX = (os.path.abspath(program) for program in sys.argv[1:4])
GATEWAYS = ("atm", "bridge", "dhcp", "dual", "home", "mesh", "repeater", "static")
JSON = "application/json"
SANITIZED = bool(os.environ.get("CALTOFAL_WEB_SANITIZED"))  # slow, and with memory of its own


@dataclass
class Answer:
    status: int
    headers: http.client.HTTPMessage
    body: bytes

    @property
    def json(self):
        return json.loads(self.body)

    @property
    def message(self):
        return self.json["error"]["message"]


def environment(folder, **variables):
    kept = {name: os.environ[name] for name in os.environ if name == "PATH" or name.endswith("SAN_OPTIONS")}
    return {**kept, "CALTOFAL_SANDBOX_DIR": folder, "LC_ALL": "C", "HOME": folder, **variables}


def has_box():
    return subprocess.run([SANDBOX, "run", "--check"], env=environment(tempfile.mkdtemp()), capture_output=True,
                          check=False).returncode == 0


class Server:
    """A running server. Used as a context; at its end the server must have ended well, in time and without a word."""

    def __init__(self, *options, gateway="home", box=False, folder=None, words=False, **variables):
        self.folder = folder or tempfile.mkdtemp(prefix="caltofal-web-", dir=SCRATCH.name)
        self.gateway = gateway
        self.box = [SANDBOX, "run", "-g", gateway, "--"] if box else []
        self.options = options
        self.words = words  # whether it may write on standard error
        self.variables = variables

    def __enter__(self):
        # pylint: disable-next=consider-using-with
        self.process = subprocess.Popen(
            [*self.box, WEB, "--listen", "127.0.0.1:0", "-g", self.gateway, *self.options],
            env=environment(self.folder, **self.variables), cwd=self.folder, stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        line = self.process.stdout.readline()
        match = re.fullmatch(r"http://([^/]*)/\?token=([0-9a-f]{32})\n", line)
        assert match, (line, self.process.poll() is not None and self.process.stderr.read())
        self.host, self.token = match.groups()
        self.port = int(self.host.rsplit(":", 1)[1])
        return self

    def __exit__(self, kind, value, trace):
        self.end()

    def end(self):
        """Ends the server and returns what it wrote on standard error."""
        if self.process.poll() is None:
            self.process.terminate()
        rest, self.errors = self.process.communicate(timeout=10)
        good = (0, 143) if self.box else (0,)  # the box ends as its signal says
        assert self.process.returncode in good and rest == "", (self.process.returncode, rest, self.errors)
        assert "Sanitizer" not in self.errors and (self.words or self.errors == ""), self.errors
        return self.errors

    def connect(self, timeout=20):
        return http.client.HTTPConnection("127.0.0.1", self.port, timeout=timeout)

    def ask(self, method, target, body=None, connection=None, **headers):
        """A request as a program with the token sends it. Headers are named with underscores; None leaves one out."""
        own = {"Authorization": f"Bearer {self.token}"}
        if method not in ("GET", "HEAD"):
            own["Origin"] = f"http://{self.host}"
            if body is not None:
                own["Content-Type"] = JSON
        own.update({name.replace("_", "-"): text for name, text in headers.items()})
        own = {name: text for name, text in own.items() if text is not None}
        data = json.dumps(body) if isinstance(body, (dict, list)) else body
        used = connection or self.connect()
        used.request(method, target, data, own)
        response = used.getresponse()
        answer = Answer(response.status, response.headers, response.read())
        if not connection:
            used.close()
        return answer

    def get(self, resource, **headers):
        return self.ask("GET", "/api/v1" + resource, **headers)

    def patch(self, resource, body, **headers):
        return self.ask("PATCH", "/api/v1" + resource, body, **headers)

    def post(self, resource, body, **headers):
        return self.ask("POST", "/api/v1" + resource, body, **headers)

    def raw(self, data, timeout=20):
        """All that comes back for these bytes until the server closes or the client has waited long enough."""
        with socket.create_connection(("127.0.0.1", self.port), timeout=timeout) as connection:
            try:
                connection.sendall(data)
            except OSError:
                pass
            return read_all(connection)

    def tool(self, *words):
        return subprocess.run([TOOL, "-g", self.gateway, *words], env=environment(self.folder), capture_output=True,
                              check=False, timeout=60)

    def stored(self, path):
        return self.tool("get", path, "--values").stdout.decode().rstrip("\n")


def read_all(connection):
    data = b""
    try:
        while chunk := connection.recv(65536):
            data += chunk
    except OSError:
        pass
    return data


def memory(process):
    """Resident memory in KB."""
    with open(f"/proc/{process.pid}/status", encoding="ascii") as file:
        return int(re.search(r"VmRSS:\s*(\d+)", file.read()).group(1))


SCRATCH = tempfile.TemporaryDirectory(prefix="caltofal-web-")  # pylint: disable=consider-using-with
