# SPDX-License-Identifier: MIT
"""hostile.py TOOL, in the box of the gateway `home`: the device's tools and files are made to misbehave in every way.
The tool then answers or says what is wrong in one line; it never crashes, hangs or shows control characters."""
import json
import os
import re
import shutil
import stat
import subprocess
import sys
import unittest

TOOL = sys.argv[1]
BIN = "/tmp/bad_tools"
WITHOUT_TOOLS = "/opt/lantiq/busybox:/usr/bin"
MEGABYTE = 1 << 20

FAILING = "echo boom >&2; exit 1"
SILENT = "exit 0"
ENDLESS = f"head -c {MEGABYTE} /dev/zero | tr '\\0' 9"
NOISE = "head -c 200000 /bin/busybox"

# The device's tool, what it does (None: it is missing), the command, its exit code, what it says. A code of None
# stands for any that is not a crash.
TOOLS = [
    ("iw", None, "wifi channels wlan0", 1, r"iw lists no channels for wlan0 \(.*iw: not found\)"),
    ("iw", FAILING, "wifi channels wlan0", 1, r"iw lists no channels for wlan0 \(boom\)"),
    ("iw", SILENT, "wifi channels wlan0", 1, "iw lists no channels for wlan0"),
    ("iw", f"yes '1 2412 - - 40+ - -' | head -c {MEGABYTE}", "wifi channels wlan0", 0, "beyond the 100th are left out"),
    ("iw", ENDLESS, "wifi channels wlan0", 1, "iw lists no channels for wlan0"),
    ("iw", NOISE, "wifi channels wlan0", None, ""),
    ("iw", f"head -c {MEGABYTE} /dev/zero | tr '\\0' x >&2", "wifi channels wlan0", 1, r"\(x{200}\)"),
    ("iwlist", None, "wifi channel wlan0", 1, r"iwlist tells no channel of wlan0 \(.*iwlist: not found\)"),
    ("iwlist", FAILING, "wifi channel wlan0", 1, r"\(boom\)"),
    ("iwlist", SILENT, "wifi channel wlan0", 0, "the radio of wlan0 is off"),
    ("iwlist", "echo Current Channel=99999999999999999999", "wifi channel wlan0", 0, ""),
    ("iwlist", ENDLESS, "wifi channel wlan0", 0, "the radio of wlan0 is off"),
    ("ubus", None, "wifi scan wlan0 --pace 1", 1, r"the scan request failed \(.*ubus: not found\)"),
    ("ubus", FAILING, "wifi wps start --pace 1", 1, r"the WPS request failed \(boom\)"),
    ("ubus", SILENT, "wifi scan wlan0 --pace 1", 3, "the scan on wlan0 brought no result"),
    ("ubus", f"yes | head -c {MEGABYTE}", "wifi wps cancel", 0, "nothing was in progress"),
    ("gddbc", None, "mesh status", 1, r"does not tell the satellites \(.*gddbc: not found\)"),
    ("gddbc", "echo abc", "mesh status", 0, ""),
    ("gddbc", ENDLESS, "mesh status", 0, ""),
]

STATION = b" 00:00:5E:00:53:15 : STA MAC\n"
ANTENNA = b" -57 : Short-term RSSI average per antenna 1, dBm\n"
LINE = b"Net\t6\t-52\tWPA2-PSK\tAES\t02:00:5E:40:01:01\t20\t802.11b+g+n\tauto\t1\n"
PEERS = "/proc/net/mtlk/wlan0/PeerFlowStatus"
CHANNEL = "/proc/net/mtlk/wlan1/channel"
RESULT = "/tmp/wlan_wave/wlan0_scan_by_User.result"

# File, content (None: it is missing), command, exit code, what it says, how many stations or networks.
FILES = [
    (PEERS, None, "wifi stations wlan0", 1, "the driver tells no stations of wlan0", 0),
    (PEERS, b"", "wifi stations wlan0", 0, "no stations on wlan0", 0),
    (PEERS, STATION.rstrip(), "wifi stations wlan0", 0, "", 1),
    (PEERS, STATION * 2 + ANTENNA * 3, "wifi stations wlan0", 0, "", 1),
    (PEERS, (STATION + ANTENNA * 4) * 200, "wifi stations wlan0", 0, "beyond the 128th are left out", 128),
    (PEERS, b"-57 Short-term STA MAC\n: : : STA MAC\nSTA MAC\n", "wifi stations wlan0", 0, "no stations", 0),
    (PEERS, b"9" * MEGABYTE + b" : STA MAC", "wifi stations wlan0", 0, "", 0),
    (PEERS, bytes(range(256)) * 400, "wifi stations wlan0", None, "", None),
    (CHANNEL, None, "wifi endpoint wlan1", 1, r"the driver tells nothing of wlan1 \(", None),
    (CHANNEL, b"width: \nprimary_channel: x\n", "wifi endpoint wlan1", 0, "", None),
    # No megabyte: the time that the device's sed takes for a line grows with the square of its length.
    (CHANNEL, b"width: " + b"9" * 50000, "wifi endpoint wlan1", 0, "", None),
    (CHANNEL, b"width: 80\n" * 100000, "wifi endpoint wlan1", 0, "", None),
    (RESULT, None, "wifi survey wlan0", 10, "wlan0 has no result", None),
    (RESULT, b"", "wifi survey wlan0", 0, "no networks found", 0),
    (RESULT, LINE[:30] + b"\n" + LINE + LINE[:-4], "wifi survey", 0, "2 lines of the result left out", 1),
    (RESULT, LINE.replace(b"\tAES", b""), "wifi survey wlan0", 0, "1 line of the result left out", 0),
    (RESULT, LINE.rstrip() + b"\textra\tcolumns\n", "wifi survey wlan0", 0, "", 1),
    (RESULT, LINE.replace(b"Net", b"a'\"\\$`\x1b[31m\xff\xfe"), "wifi survey wlan0", 0, "", 1),
    (RESULT, b"x" * MEGABYTE, "wifi survey wlan0", 0, "left out", 0),
    (RESULT, LINE * (MEGABYTE // len(LINE)), "wifi survey wlan0", 0, "", MEGABYTE // len(LINE)),
    (RESULT, bytes(range(256)) * 400, "wifi survey wlan0", None, "", None),
]


class Hostile(unittest.TestCase):
    def check(self, command, code, message, path=None):
        """Runs the command for people and as JSON; the JSON, None after a failure."""
        environment = {**os.environ, "PATH": path or os.environ["PATH"]}
        plain, as_json = (subprocess.run([TOOL, *command.split(), *option], stdin=subprocess.DEVNULL, timeout=30,
                                         stdout=subprocess.PIPE, stderr=subprocess.PIPE, env=environment, check=False)
                          for option in ([], ["--json"]))
        self.assertIn(plain.returncode, (0, 1) if code is None else (code,), plain.stderr)
        self.assertEqual(as_json.returncode, plain.returncode)
        self.assertNotRegex(plain.stdout + plain.stderr, rb"[\x00-\x09\x0b-\x1f\x7f]")
        self.assertRegex(plain.stderr.decode(), r"^(caltofal: [^\n]+\n)*$")
        self.assertTrue(re.search(message, plain.stderr.decode()), plain.stderr)
        if plain.returncode == 0:
            return json.loads(as_json.stdout)
        self.assertEqual((plain.stdout, as_json.stdout, plain.stderr.count(b"\n")), (b"", b"", 1))
        self.assertEqual(json.loads(as_json.stderr)["error"]["exit"], plain.returncode)
        return None

    def test_tools(self):
        for name, script, command, code, message in TOOLS:
            with self.subTest(f"{name}: {script}"):
                path = WITHOUT_TOOLS
                if script is not None:
                    os.makedirs(BIN)
                    self.addCleanup(shutil.rmtree, BIN, ignore_errors=True)
                    with open(f"{BIN}/{name}", "w", encoding="ascii") as file:
                        file.write(f"#!/bin/sh\n{script}\n")
                    os.chmod(f"{BIN}/{name}", stat.S_IRWXU)
                    path = f"{BIN}:{os.environ['PATH']}"
                self.check(command, code, message, path)
                shutil.rmtree(BIN, ignore_errors=True)

    def test_files(self):
        for path, content, command, code, message, count in FILES:
            with self.subTest(f"{path}: {(content or b'missing')[:40]!r}"):
                before = None
                if os.path.exists(path):
                    with open(path, "rb") as file:
                        before = file.read()
                    os.unlink(path)
                if content is not None:
                    with open(path, "wb") as file:
                        file.write(content)
                answer = self.check(command, code, message)
                if answer is not None and count is not None:
                    self.assertEqual(len(answer.get("stations", answer.get("networks"))), count)
                if before is not None:
                    with open(path, "wb") as file:
                        file.write(before)

    def test_an_ssid_of_any_bytes_is_shown_as_it_is(self):
        with open(RESULT, "wb") as file:
            file.write(LINE.replace(b"Net", b"a'\"\\$`\x1b[31m\xff"))
        network = self.check("wifi survey wlan0", 0, "")["networks"][0]
        self.assertEqual(bytes.fromhex(network["ssid_hex"]), b"a'\"\\$`\x1b[31m\xff")
        self.assertTrue(re.match(r"a'\"\\\$`\x1b\[31m", network["ssid"]))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
