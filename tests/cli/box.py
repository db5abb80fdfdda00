#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""box.py TOOL SANDBOX [--update | unittest arguments]: tests the commands that need the device box, or writes their
expected output anew. Exit code 77 where there can be no box."""
import json
import os
import re
import signal
import subprocess
import sys
import time
import unittest

sys.dont_write_bytecode = True

from cases import BOX_PAGES, BOX_VERBS
from expect import check_examples, check_pages, write_pages
from tool import HERE, Tool, interrupted

tool = Tool(sys.argv[1], sys.argv[2])
SLOW = {"CALTOFAL_BOX_SCAN_MS": "20000"}
QUICK = {"CALTOFAL_BOX_SCAN_MS": "50", "CALTOFAL_BOX_WPS_MS": "50"}


class Box(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.folder = tool.folder()

    def run_tool(self, *words, **variables):
        return tool.run(*words, folder=self.folder, **variables)

    def test_pages_are_as_expected(self):
        check_pages(self, tool, BOX_PAGES, notes=True)

    def test_examples_of_the_help_work(self):
        self.assertEqual(check_examples(self, tool, lambda words: words in BOX_VERBS, self.folder), len(BOX_VERBS))
        self.assertEqual(tool.sandbox("run", "-g", "mesh", "--", "gddbc", "-i", "-g", "/runtime/nimbord/pushes",
                                      folder=self.folder), b"1\n", "one of the examples is a synchronisation")

    def test_bad_tools_and_files(self):
        """All in one box, by hostile.py."""
        done = subprocess.run([tool.sandbox_executable, "run", "-b", HERE, "--", sys.executable,
                               os.path.join(HERE, "hostile.py"), tool.executable], env=tool.environment(self.folder),
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=120, check=False)
        self.assertEqual(done.returncode, 0, done.stdout.decode(errors="replace"))

    def test_options_and_exit_codes_go_through(self):
        result = self.run_tool("-g", "repeater", "wifi", "endpoint", "--json", "--trace")
        self.assertEqual((result.code, json.loads(result.out)["peer"]), (0, "02:00:5E:10:01:01"))
        self.assertIn("[request] get Device.WiFi.EndPoint.1, Device.WiFi.EndPoint.2 -> 0\n", result.err)
        for words, code, message in (
                ("wifi endpoint", 10, "no end point is enabled"),
                ("wifi endpoint wlan0", 10, "wlan0 is not an end point"),
                ("wifi scan wlan0 --ssid nope --pace 20", 10, 'the network "nope" was not found'),
                ("wifi survey --ssid nope", 10, 'the network "nope" was not found'),
                ("wifi stations wlan9", 10, "wlan9: no SSID of the gateway is on that interface"),
                ("wifi survey wlan2", 10, "wlan2 has no result; caltofal wifi scan wlan2 makes one"),
                ("wifi stations wlan2 --mac 00:00:5e:00:53:99", 10, "00:00:5e:00:53:99 is not a station of wlan2"),
                ("mesh ip 02:00:5e:20:00:99", 10, "02:00:5e:20:00:99: no satellite and no host has that MAC address"),
                ("wifi scan wlan2 --pace 1", 3, "the scan on wlan2 brought no result: is its radio on?")):
            with self.subTest(words):
                plain = self.run_tool(*words.split())
                self.assertEqual((plain.code, plain.out, plain.err), (code, b"", f"caltofal: {message}\n"))

    def test_an_end_point_without_a_reference_names_no_interface(self):
        gateway = os.path.join(self.folder, "nameless.tr181")
        with open(gateway, "w", encoding="ascii") as file:
            file.write("Device.WiFi.EndPoint.1.SSIDReference =\n")
        tool.sandbox("new", "nameless", "--from", "repeater", folder=self.folder)
        tool.sandbox("import", "nameless", gateway, folder=self.folder)
        result = self.run_tool("-g", "nameless", "wifi", "endpoint")
        self.assertEqual((result.code, result.err), (10, "caltofal: end point 1 names no interface\n"))

    def test_one_end_point_is_enough(self):
        tool.less("repeater", ["Device.WiFi.EndPoint.2"], self.folder)
        result = self.run_tool("-g", "less", "wifi", "endpoint")
        self.assertEqual((result.code, result.err), (0, ""))
        self.assertEqual(result.out, self.run_tool("-g", "repeater", "wifi", "endpoint").out)
        tool.less("repeater", ["Device.WiFi.SSID.17"], self.folder)
        self.assertRegex(self.run_tool("-g", "less", "wifi", "endpoint").err,
                         r"end point 1 names no interface; the gateway lacks Device\.WiFi\.SSID\.17; ")

    def test_a_scan_ends_when_its_result_is_there(self):
        start = time.monotonic()
        self.assertEqual(self.run_tool("wifi", "scan", "wlan0", CALTOFAL_BOX_SCAN_MS="500").code, 0)
        self.assertLess(time.monotonic() - start, 12, "its first interval lasts 15 seconds")

    def test_a_radio_that_is_off_has_no_stations_and_cannot_scan(self):
        self.run_tool("set", "Device.WiFi.Radio.1.Enable=false")
        for words, code, message in (("scan wlan0", 1, "radio 1 is switched off: it cannot scan"),
                                     ("scan wlan0.0 --ssid x", 1, "radio 1 is switched off: it cannot scan"),
                                     ("stations wlan0", 0, "no stations on wlan0")):
            result = self.run_tool("wifi", *words.split())
            self.assertEqual((result.code, result.out, result.err), (code, b"", f"caltofal: {message}\n"))

    def test_a_narrow_terminal_leaves_columns_out(self):
        self.run_tool("wifi", "scan", "wlan2", "--pace", "10", **QUICK)
        def shown(*words, columns):
            text = tool.on_terminal("wifi", "survey", *words, folder=self.folder, columns=columns, NO_COLOR="1")
            return text.decode().splitlines()

        for width, gone in ((80, "2ND, STANDARDS, ENCRYPTION, WIDTH MHZ"), (110, "2ND"), (120, None)):
            lines = shown(columns=width)
            self.assertLessEqual(max(len(line) for line in lines), width)
            self.assertTrue(lines[1].startswith("VOLA Upstream 5G ") and lines[2].startswith("Upstream 5G "), lines)
            notes = " ".join(" ".join(lines).split()).partition("caltofal: no room for ")[2]
            self.assertEqual(notes, f"{gone}: --columns shows them, and so does a wider terminal" if gone else "")
        self.assertEqual(shown("--columns", "ssid,bssid,2nd", columns=40)[1][:5], "  2ND")

        charted = [line for line in shown("--chart", columns=66) if line.startswith("-")]
        self.assertEqual([(len(line) <= 66, line[60:]) for line in charted[:2]], [(True, "VOL..."), (True, "Ups...")])
        seen = tool.on_terminal("wifi", "survey", "--watch", "60", folder=self.folder, columns=80, rows=9,
                                until=b"terminal\r\n", NO_COLOR="1").decode()
        lines = seen.rpartition("\x1b[H")[2].split("\r\n")
        self.assertEqual(lines[4:6], ["(2 more lines)\x1b[K", "\x1b[Jcaltofal: the sandbox made these networks up"],
                         "the other note takes two rows")

    def test_a_radio_that_says_little_has_no_invented_channel(self):
        unknown = {"interface": "ra0", "radio": 1, "channel": None, "auto_channel": None, "secondary_side": None,
                   "dfs_channel": None}
        for lines, said in (([], {}), (["OperatingChannelBandwidth=40MHz"], {}),
                            (["AutoChannelEnable=TRUE"], {"auto_channel": True}),
                            (["AutoChannelEnable=yes", "Channel=6", "OperatingChannelBandwidth=40MHz"], {"channel": 6}),
                            (["Channel=3", "OperatingChannelBandwidth=40MHz"],
                             {"channel": 3, "secondary_side": "upper"})):
            tool.imported("few", ["Device.WiFi.SSID.1.Name=ra0", "Device.WiFi.SSID.1.LowerLayers=Device.WiFi.Radio.1",
                                  *(f"Device.WiFi.Radio.1.{line}" for line in ["Name=ra0", *lines])], self.folder)
            result = self.run_tool("-g", "few", "wifi", "channel", "ra0", "--json")
            self.assertEqual((result.code, json.loads(result.out or "null")), (0, {**unknown, **said}), lines)

    def test_cells_for_scripts_hold_one_fact(self):
        self.assertIn(b"52\t5260\t20,40,80\t-\t56\tyes\n", self.run_tool("wifi", "channels", "wlan2", "--terse").out)
        self.run_tool("wifi", "scan", "wlan2", "--pace", "10", **QUICK)
        self.assertIn(b"yes  60 (DFS)\n", self.run_tool("wifi", "survey", "--columns", "dfs,channel").out)
        self.assertEqual(self.run_tool("wifi", "survey", "--chart", "--terse").code, 2)

    def test_a_chart_tells_what_it_draws_too_narrow(self):
        self.run_tool("wifi", "scan", "wlan0", "--pace", "10", **QUICK)
        for side, below, note in (("Auto", 6, True), ("AboveControlChannel", 6, False), ("BelowControlChannel", 18, False)):
            self.run_tool("set", "Device.WiFi.Radio.1", "AutoChannelEnable=false", "Channel=13",
                          "OperatingChannelBandwidth=40MHz", "ExtensionChannel=" + side)
            result = self.run_tool("wifi", "survey", "--chart")
            own = re.search("\nown +(-+)###(-+) +wlan0\n", result.out.decode())
            self.assertEqual((len(own[1]), len(own[2])), (below, 3), "within the band")
            self.assertEqual("caltofal: drawn as 20 MHz, as the secondary channel may lie on either side: wlan0\n" in
                             result.err, note)

    def test_a_stale_result_is_not_taken_for_a_new_one(self):
        self.assertEqual(self.run_tool("wifi", "scan", "wlan0", "--pace", "10", **QUICK).code, 0)
        stale = self.run_tool("wifi", "scan", "wlan0", "--pace", "1", CALTOFAL_BOX_SCAN_MS="5000")
        self.assertEqual((stale.code, stale.out), (3, b""))

    def test_wps(self):
        def wps(*words, **variables):
            result = self.run_tool("wifi", "wps", *words, **{**QUICK, **variables})
            return result.code, result.out.decode() + result.err

        self.assertEqual(wps("start", "--pace", "20"), (0, "Success\n"))
        self.assertEqual(wps("cancel"),
                         (0, "Success\ncaltofal: WPS: nothing was in progress, so the state is unchanged\n"))
        self.assertEqual(wps("reset"), (0, "Idle\n"))
        self.assertEqual(wps("start", "--pace", "20", CALTOFAL_BOX_WPS="timeout"),
                         (3, "caltofal: WPS: timed out, no device has joined: was its button pressed?\n"))
        self.assertEqual(wps("start", "--pace", "1", CALTOFAL_BOX_WPS_MS="5000"),
                         (3, "caltofal: WPS: still in progress; caltofal wifi wps cancel ends it\n"))
        for access_point in (1, 9):
            self.run_tool("set", f"Device.WiFi.AccessPoint.{access_point}.WPS", "Enable=false")
        self.assertEqual(wps("start", "--pace", "1"), (1, 'caltofal: WPS: the service daemon reports "Failed"\n'))

    def test_a_key_ends_a_wait(self):
        for words, number, message in (
                ("wifi scan wlan0", signal.SIGINT, "interrupted: the scan on wlan0 goes on by itself"),
                ("wifi wps start", signal.SIGINT, "interrupted: WPS cancelled"),
                ("mesh sync -g mesh", signal.SIGTERM, "interrupted: the satellites take the settings all the same")):
            with self.subTest(words):
                result = interrupted(tool, words.split(), number, 4, self.folder, **SLOW)
                self.assertEqual((result.code, result.out, result.err), (128 + number, b"", f"caltofal: {message}\n"))
        for delay in (0.03, 0.06, 0.1, 0.15, 0.2, 0.3, 0.4, 1.5):
            for number, send in ((signal.SIGINT, os.killpg), (signal.SIGHUP, os.kill), (signal.SIGQUIT, os.kill)):
                with self.subTest(f"{number} after {delay} s"):
                    result = interrupted(tool, ["wifi", "wps", "start", "--json"], number, delay, self.folder,
                                         send=send)
                    self.assertEqual((result.code, result.out), (128 + number, b""), result.err)
                    self.assertEqual(json.loads(result.err)["error"]["exit"], 128 + number)
        on_terminal = interrupted(tool, ["wifi", "scan", "wlan0"], signal.SIGINT, b": 1 s", self.folder, terminal=True,
                                  **SLOW)
        self.assertRegex(on_terminal.err, r"scanning on wlan0: 1 s\r\x1b\[Kcaltofal: interrupted: [^\r]+\r\n$")

    def test_one_scan_at_a_time(self):
        words = [tool.executable, "wifi", "scan", "wlan0", "--pace", "20"]
        scans = [subprocess.Popen(words, env=tool.environment(self.folder), stdout=subprocess.PIPE,
                                  stderr=subprocess.PIPE) for _ in range(2)]
        ends = sorted((scan.communicate(timeout=60)[1], scan.returncode) for scan in scans)
        self.assertEqual(ends[0], (b"caltofal: another scan on wlan0 is under way\n", 1))
        self.assertEqual(ends[1][1], 0)
        self.assertIn(b"caltofal: the sandbox made these networks up\n", ends[1][0])

    def test_mesh_sync_does_nothing_where_nothing_is_to_do(self):
        for steps, reason in (((), "the mesh is off"),
                              (("mesh enable",), "no satellite is connected"),
                              (("set Device.X_ZINTU_CurrentNetwork OperationMode=2",),
                               "this gateway is not the master")):
            for step in steps:
                self.assertEqual(self.run_tool(*step.split()).code, 0, step)
            result = self.run_tool("mesh", "sync", "--json")
            self.assertEqual((result.code, json.loads(result.out)),
                             (0, {"synced": False, "satellites": 0, "reason": reason}))


if __name__ == "__main__":
    check = subprocess.run([tool.sandbox_executable, "run", "--check"], env=tool.environment(None), check=False,
                           stdout=subprocess.DEVNULL)
    if check.returncode == 77:
        sys.exit(77)
    if sys.argv[3:] == ["--update"]:
        write_pages(tool, BOX_PAGES, notes=True)
    else:
        unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
