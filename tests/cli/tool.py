# SPDX-License-Identifier: MIT
"""Running the tool in a sandbox folder of its own."""
import fcntl
import os
import pty
import re
import signal
import struct
import subprocess
import sys
import tempfile
import termios
import time
from dataclasses import dataclass

# The tool leaves alone what its caller ignores; whoever starts the tests may ignore some (nohup, a job in the background).
for _signal in (signal.SIGHUP, signal.SIGINT, signal.SIGQUIT, signal.SIGTERM):
    signal.signal(_signal, signal.SIG_DFL)

HERE = os.path.dirname(os.path.abspath(__file__))


@dataclass
class Result:
    code: int
    out: bytes
    err: str


class Tool:
    """The executable with an environment in which nothing of the caller's shows."""

    def __init__(self, executable, sandbox):
        self.executable = executable
        self.sandbox_executable = sandbox
        self.folders = tempfile.TemporaryDirectory(prefix="caltofal-cli-")
        self.shared = self.folder()

    def folder(self):
        """A new sandbox folder, in which every demo gateway is still as delivered."""
        return tempfile.mkdtemp(dir=self.folders.name)

    def environment(self, folder):
        # A gateway's user has no locale of his own, and its tables are the same as anywhere.
        kept = {name: os.environ[name] for name in ("PATH", "LSAN_OPTIONS", "ASAN_OPTIONS") if name in os.environ}
        return {**kept, "CALTOFAL_SANDBOX_DIR": folder or self.shared, "LC_ALL": "C", "TERM": "xterm"}

    def run(self, *words, folder=None, stdin=b"", stdout=subprocess.PIPE, **variables):
        done = subprocess.run([self.executable, *words], env={**self.environment(folder), **variables},
                              input=stdin, stdout=stdout, stderr=subprocess.PIPE, timeout=60, check=False)
        return Result(done.returncode, done.stdout, done.stderr.decode())

    def sandbox(self, *words, folder):
        return subprocess.run([self.sandbox_executable, *words], env=self.environment(folder), stdout=subprocess.PIPE,
                              timeout=60, check=True).stdout

    def imported(self, name, lines, folder):
        """A gateway of these lines, "PATH=VALUE"."""
        path = os.path.join(folder, name + ".txt")
        with open(path, "w", encoding="ascii") as file:
            file.write("\n".join(lines) + "\n")
        subprocess.run([self.sandbox_executable, "import", name, path, "--replace"], env=self.environment(folder),
                       stderr=subprocess.DEVNULL, timeout=60, check=True)

    def less(self, gateway, objects, folder):
        """The gateway `less`: another one without these objects and all below them."""
        lines = self.sandbox("export", "--format", "csv", gateway, folder=folder).splitlines(keepends=True)
        path = os.path.join(folder, "less.csv")
        with open(path, "wb") as file:
            file.writelines(line for line in lines
                            if not any(re.match(re.escape(one.encode()) + b"[.,]", line) for one in objects))
        subprocess.run([self.sandbox_executable, "remove", "less"], env=self.environment(folder), check=False,
                       stderr=subprocess.DEVNULL)
        subprocess.run([self.sandbox_executable, "import", "less", path], env=self.environment(folder), check=True,
                       stderr=subprocess.DEVNULL)

    def on_terminal(self, *words, columns=200, rows=50, folder=None, until=None, **variables):
        """What the tool writes when its standard output is a terminal of that size; with `folder` words too. The
        interrupt key comes where it has written `until`."""
        ours, theirs = pty.openpty()
        fcntl.ioctl(theirs, termios.TIOCSWINSZ, struct.pack("HHHH", rows, columns, 0, 0))
        with subprocess.Popen([self.executable, *words], env={**self.environment(folder), **variables}, stdout=theirs,
                              stderr=theirs if folder else subprocess.DEVNULL) as process:
            os.close(theirs)
            text = b""
            try:
                while chunk := os.read(ours, 65536):
                    text += chunk
                    if until and until in text:
                        process.send_signal(signal.SIGINT)
            except OSError:  # how a terminal ends
                pass
            process.wait()
        os.close(ours)
        return text


def watches(pid, number):
    """Whether a process minds a signal: before that, on a busy machine, it is still being loaded. The tool handles it,
    holds it while it becomes the box, or has become it."""
    with open(f"/proc/{pid}/status", encoding="ascii") as status:
        fields = dict(line.rstrip("\n").split(":\t", 1) for line in status)
    minded = int(fields["SigCgt"], 16) | int(fields["SigBlk"], 16)
    return minded >> (number - 1) & 1 or fields["Name"] not in (sys.executable.rsplit("/", 1)[-1], "python3", "caltofal")


def interrupted(tool, words, number, delay, folder, terminal=False, send=os.killpg, **variables):
    """The tool with a signal once it has watched signals for a while, or after a text on its terminal: to its process
    group as a terminal's key sends it, or with os.kill."""
    ours, theirs = pty.openpty() if terminal else os.pipe()
    with subprocess.Popen([tool.executable, *words], env={**tool.environment(folder), **variables}, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=theirs, start_new_session=True) as process:
        os.close(theirs)
        while not watches(process.pid, number):
            time.sleep(0.005)
        err = b""
        if isinstance(delay, bytes):
            while delay not in err:
                err += os.read(ours, 65536)
        else:
            time.sleep(delay)
        send(process.pid, number)
        out = process.communicate(timeout=30)[0]
        try:
            while chunk := os.read(ours, 65536):
                err += chunk
        except OSError:  # how a terminal ends
            pass
    os.close(ours)
    return Result(process.returncode, out, err.decode())


def expected_file(gateway, command, ending):
    name = re.sub("[^A-Za-z0-9.-]+", "_", command.replace(" --", " "))
    return os.path.join(HERE, "expected", gateway, name + ending)
