#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""capture.py TOOL SANDBOX [unittest arguments]: what a gateway's capture says, imported under another name, is what the
gateway itself says, page by page and byte by byte. Exit code 77 where there can be no box."""
import json
import os
import shlex
import subprocess
import sys
import unittest

sys.dont_write_bytecode = True

from cases import BOX_PAGES, PAGES
from tool import Tool

tool = Tool(sys.argv[1], sys.argv[2])
DEMOS = ("atm", "bridge", "dhcp", "dual", "home", "mesh", "repeater", "static")
# Every page of any gateway, whether it answers or says why not.
COMMANDS = sorted({command for pages in (PAGES, BOX_PAGES) for commands in pages.values() for command in commands} |
                  {"wifi endpoint wlan3", "wifi channel wlan2", "get Device. --json", "hosts --json", "status --json"})
QUICK = {"CALTOFAL_BOX_SCAN_MS": "20"}


class Capture(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.folder = tool.folder()

    def captured(self, gateway, *options):
        result = tool.run("-g", gateway, "capture", *options, folder=self.folder)
        self.assertEqual(result.code, 0, result.err)
        path = os.path.join(self.folder, gateway + ".capture")
        with open(path, "wb") as file:
            file.write(result.out)
        return path

    def imported(self, name, path):
        done = subprocess.run([tool.sandbox_executable, "import", name, path], env=tool.environment(self.folder),
                              stderr=subprocess.PIPE, timeout=60, check=False)
        self.assertEqual(done.returncode, 0, done.stderr)
        return done.stderr.decode()

    def pages(self, gateway, *options):
        """All in one box: command, output, errors and exit code."""
        script = "".join(f"echo '== {command}'; {shlex.quote(tool.executable)} {command} 2>&1; echo \"-> $?\"\n"
                         for command in COMMANDS)
        done = subprocess.run([tool.sandbox_executable, "run", "-g", gateway, *options, "--", "sh", "-c", script],
                              env={**tool.environment(self.folder), **QUICK}, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, timeout=120, check=False)
        return done.stdout.decode(errors="backslashreplace")

    def test_a_captured_gateway_answers_as_the_gateway_does(self):
        for demo in DEMOS:
            with self.subTest(demo):
                report = self.imported(demo + ".copy", self.captured(demo, "--driver", "--with-secrets"))
                self.assertRegex(report, rf"^{demo}.copy: took in (\d+) of \1 values\n$")
                copied, own = (self.pages(gateway).split("== ") for gateway in (demo + ".copy", demo))
                self.assertGreater(len(own), len(COMMANDS))
                for page, expected in zip(copied, own, strict=True):
                    self.assertEqual(page, expected)

    def test_only_what_was_recorded_is_played_back(self):
        path = self.captured("home", "--driver")
        with open(path, encoding="utf-8") as file:
            text = file.read()
        self.assertIn("Device.WiFi.AccessPoint.1.Security.KeyPassphrase [string(8:63) rw] = (hidden)\n", text)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text.replace("primary_channel: 6", "primary_channel: 4")
                       .replace("Current Channel=6", "Current Channel=4"))
        self.imported("played", path)
        for options in ((), ("--recorded-only",)):
            script = "cat /proc/net/mtlk/wlan0/channel; iwlist wlan0 channel | tail -n 1; iw dev wlan9 info 2>&1"
            done = subprocess.run([tool.sandbox_executable, "run", "-g", "played", *options, "--", "sh", "-c", script],
                                  env=tool.environment(self.folder), stdout=subprocess.PIPE, timeout=60, check=False)
            lines = done.stdout.decode().splitlines()
            self.assertEqual(lines[1:-1], ["primary_channel: 4", "primary_frequency: 2437 MHz",
                                           "          Current Channel=4"])
            self.assertEqual(lines[-1], "iw dev wlan9 info: not recorded" if options else
                             "command failed: No such device (-19)")

    def test_a_parameter_is_captured_by_its_path(self):
        result = tool.run("capture", "Device.WiFi.Radio.1.Channel", folder=self.folder)
        self.assertIn(b"\n@capture\nDevice.WiFi.Radio.1.Channel [unsignedInt(1:255) rw", result.out)
        self.assertEqual(result.out.count(b"Device."), 1)
        twice = tool.run("capture", "Device.WiFi.Radio.1.Channel", "Device.WiFi.Radio.1.", "Device.WiFi.", folder=self.folder)
        self.assertEqual(twice.out.count(b"Device.WiFi.Radio.1.Channel "), 1)
        self.assertEqual(tool.run("capture", "Device.WiFi.Radio.1.Chanel", folder=self.folder).code, 10)

    def test_a_gateway_without_a_recording_is_told(self):
        done = subprocess.run([tool.sandbox_executable, "run", "--recorded-only", "--", "true"],
                              env=tool.environment(self.folder), stderr=subprocess.PIPE, timeout=60, check=False)
        self.assertEqual((done.returncode, done.stderr.decode()), (0, "gateway home holds no recording, so all is refused: "
                                                                   "take one with caltofal capture --driver\n"))

    def test_a_capture_is_applied(self):
        path = self.captured("home")
        words = ("Device.WiFi.Radio.1", "Channel=11", "Device.WiFi.SSID.1", "SSID=other",
                 "Device.WiFi.AccessPoint.1.Security", "KeyPassphrase=something else")
        self.assertEqual(tool.run("set", *words, folder=self.folder).code, 0)
        with open(path, "r+", encoding="utf-8") as file:
            text = file.read().replace("Radio.1.MaxBitRate [unsignedInt ro default=\"0\"] = 300", "Radio.1.MaxBitRate = 1")
            file.seek(0)
            file.write(text + "Device.WiFi.Radio.1.Nope = 1\n")
            file.truncate()
        changes = ["Device.WiFi.Radio.1.Channel", "Device.WiFi.SSID.1.SSID"]
        for options, written in ((("--dry-run",), False), ((), True)):
            result = tool.run("apply", path, "--json", *options, folder=self.folder)
            answer = json.loads(result.out)
            self.assertEqual([f"{one['object']}.{one['parameter']}" for one in answer["changes"]], changes)
            self.assertEqual({one["parameter"]: one["reason"] for one in answer["skipped"]
                              if "secret" not in one["reason"]}, {
                "Device.WiFi.Radio.1.Nope": "unknown to the gateway",
                "Device.WiFi.Radio.1.MaxBitRate": "read-only"})
            self.assertIn({"parameter": "Device.WiFi.AccessPoint.1.Security.KeyPassphrase",
                           "reason": "a secret that was replaced in the file"}, answer["skipped"])
            self.assertEqual(answer["written"], written)
        self.assertEqual(tool.run("get", "Device.WiFi.SSID.1.SSID", "--values", folder=self.folder).out,
                         b"VOLA Home\n")
        again = tool.run("apply", path, folder=self.folder)
        self.assertEqual((again.code, again.out), (0, b""))
        self.assertIn("caltofal: skipped, read-only: Device.WiFi.Radio.1.MaxBitRate\n", again.err)
        self.assertEqual(tool.run("set", "--db-only", "Device.WiFi.Radio.1", "Channel=9", folder=self.folder).code, 0)
        self.assertEqual(tool.run("apply", path, "--db-only", folder=self.folder).code, 0)
        pending = subprocess.run([tool.sandbox_executable, "diff", "home"], env=tool.environment(self.folder),
                                 stdout=subprocess.PIPE, check=False)
        self.assertEqual(pending.stdout, b"", "what waited for the next start is taken back")

    def test_a_wep_key_is_kept(self):
        key = ("get", "Device.WiFi.AccessPoint.1.Security.WEPKey", "--values", "--show-secrets")
        self.assertEqual(tool.run("set", "Device.WiFi.AccessPoint.1.Security", "WEPKey=0123456789", folder=self.folder).code, 0)
        path = self.captured("home")
        self.assertRegex(self.imported("home", path), "hidden in the file: [0-9]+, ")
        self.assertEqual(tool.run("apply", path, folder=self.folder).code, 0)
        self.assertEqual(tool.run(*key, folder=self.folder).out, b"0123456789\n")


if __name__ == "__main__":
    check = subprocess.run([tool.sandbox_executable, "run", "--check"], env=tool.environment(None), check=False,
                           stdout=subprocess.DEVNULL)
    if check.returncode == 77:
        sys.exit(77)
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
