# SPDX-License-Identifier: MIT
"""What PATCH writes, shows before, refuses and logs."""
import concurrent.futures
import json
import re
import subprocess
import time
import unittest

from server import SANDBOX, Server, environment

CHANNEL = "Device.WiFi.Radio.1.Channel"


def change(path, before, after):
    *objects, parameter = path.split(".")
    return {"object": ".".join(objects), "parameter": parameter, "from": before, "to": after}


class Changes(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.server = Server(words=True).__enter__()
        self.addCleanup(self.server.end)

    def test_a_dry_run_shows_what_the_change_then_writes(self):
        cases = [  # resource, body, changes
            ("/objects", {"Device.WiFi.Radio.1.": {"Channel": 11}}, [change(CHANNEL, 6, 11)]),
            ("/objects", {"Device.WiFi.Radio.1": {"Channel": "+012", "Enable": "TRUE"},
                          "Device.WiFi.SSID.1.": {"SSID": "007"}},
             [change(CHANNEL, 11, 12), change("Device.WiFi.SSID.1.SSID", "VOLA Home", "007")]),
            ("/objects", {"Device.WiFi.Radio.1.": {"Channel": 12}}, []),
            ("/wifi/ssids/1", {"SSID": "<b>Attic</b> \u202e\"'", "IsolationEnable": False},
             [change("Device.WiFi.SSID.1.SSID", "007", "<b>Attic</b> \u202e\"'")]),
            ("/wifi/ssids/1", {"SSID": "<b>Attic</b> \u202e\"'"}, []),
            ("/wifi/radios/1", {"OperatingChannelBandwidth": 40, "ExtensionChannel": "upper"},
             [change("Device.WiFi.Radio.1.OperatingChannelBandwidth", "20MHz", "40MHz"),
              change("Device.WiFi.Radio.1.ExtensionChannel", "Auto", "AboveControlChannel")]),
            ("/mesh", {"enabled": True}, [change("Device.WiFi.X_ZINTU_RoamingMesh.Enable", False, True)]),
            ("/mesh", {"enabled": True}, []),
        ]
        for resource, body, changes in cases:
            with self.subTest(resource=resource, body=body):
                dry = self.server.patch(resource + "?dry_run=1", body)
                self.assertEqual((dry.status, dry.json), (200, {"changes": changes, "written": False, "applied": False}))
                for one in changes:
                    now = self.server.get(f"/objects?path={one['object']}.{one['parameter']}").json[one["object"]]
                    self.assertEqual(now[one["parameter"]], one["from"])
                done = self.server.patch(resource, body)
                self.assertEqual(done.json, {"changes": changes, "written": bool(changes), "applied": bool(changes)})
                for one in changes:
                    now = self.server.get(f"/objects?path={one['object']}.{one['parameter']}").json[one["object"]]
                    self.assertEqual(now[one["parameter"]], one["to"])

    def test_notes_are_in_a_header(self):
        """What the command line says on standard error, in ASCII, as no header holds other bytes."""
        self.server.tool("set", "Device.WiFi.Radio.1.AutoChannelEnable=true")
        answer = self.server.patch("/wifi/radios/1", {"Channel": 11})
        self.assertEqual(json.loads(answer.headers["Caltofal-Notes"]),
                         ["AutoChannelEnable is true: the radio chooses its channel itself"])
        subprocess.run([SANDBOX, "import", "home", "-"], env=environment(self.server.folder), check=True, capture_output=True,
                       input="# values as texts\nDevice.DNS.Client.Server.1.DNSServer = Grü\x1b\n".encode())
        self.assertRegex(self.server.get("/dns").headers["Caltofal-Notes"],
                         r'^\["DNS server \\"Gr\\u00fc\\u001b\\" is not an address: [ -~]*"\]$')
        self.assertIsNone(self.server.get("/lan").headers["Caltofal-Notes"])

    def test_settings_dry_run_is_the_command_lines(self):
        body = {"OperatingChannelBandwidth": "40", "ExtensionChannel": "upper"}
        dry = self.server.patch("/wifi/radios/1?dry_run=1", body)
        printed = self.server.tool("wifi", "set", "radio", "1", "--ui", *(f"{name}={value}" for name, value in body.items()),
                                   "--dry-run", "--json")
        self.assertEqual(dry.body, printed.stdout)

    def test_stored_only_waits_for_the_next_start(self):
        for resource, body in (("/objects", {"Device.WiFi.Radio.1.": {"Channel": 3}}), ("/wifi/radios/1", {"Channel": 3})):
            with self.subTest(resource=resource):
                answer = self.server.patch(resource + "?db_only=1", body)
                self.assertEqual((answer.json["written"], answer.json["applied"]), (True, False))
                self.assertEqual(self.server.stored(CHANNEL), "6")
        subprocess.run([SANDBOX, "boot", "home"], env=environment(self.server.folder), check=True, capture_output=True)
        self.assertEqual(self.server.stored(CHANNEL), "3")

    def test_refusals_name_the_culprit_and_change_nothing(self):
        cases = [  # resource, body, status, code, word
            ("/objects", {"Device.WiFi.Radio.1.": {"Channel": "abc"}}, 422, -205, "Channel"),
            ("/objects", {"Device.WiFi.Radio.1.": {"Channel": 11}, "Device.WiFi.Radio.2.": {"Channel": 999}}, 422, -206,
             "Device.WiFi.Radio.2.Channel"),
            ("/objects", {"Device.WiFi.Radio.1.": {"Channel": 11, "Status": "Down"}}, 422, -204, "Status"),
            ("/objects", {"Device.WiFi.Radio.1.": {"Nonsense": 11}}, 404, None, "Nonsense"),
            ("/objects", {"Device.Nonsense.": {"Channel": 11}}, 404, -202, "Device.Nonsense"),
            ("/objects", {"Device." + "x" * 300: {"Channel": 11}}, 400, None, "path"),
            ("/wifi/ssids/1", {"Nonsense": 1}, 404, None, "Nonsense"),
            ("/wifi/ssids/1", {"SSID": "x" * 33}, 422, -206, "SSID"),
            ("/wifi/ssids/1", {"SSID": "x" * 200}, 400, None, "SSID"),
            ("/wifi/ssids/77", {"SSID": "x"}, 404, None, ""),
            ("/wifi/radios/1", {"ExtensionChannel": "sideways"}, 422, None, "sideways"),
            ("/mesh", {"enabled": "yes"}, 400, None, "enabled"),
            ("/mesh", {"on": True}, 400, None, "on"),
            ("/objects?dry_run=maybe", {"Device.WiFi.Radio.1.": {"Channel": 11}}, 400, None, "dry_run"),
            ("/objects?dry_run", {"Device.WiFi.Radio.1.": {"Channel": 11}}, 400, None, "dry_run"),
            ("/objects?dry_run=1&dry_run=0", {"Device.WiFi.Radio.1.": {"Channel": 11}}, 400, None, "once"),
            ("/wifi/ssids/1?db_only=", {"SSID": "y"}, 400, None, "db_only"),
            ("/wifi/ssids/1?db_only=true", {"SSID": "y"}, 400, None, "1 or 0"),
            ("/wifi/ssids/1?dry_run=false", {"SSID": "y"}, 400, None, "1 or 0"),
        ]
        for resource, body, status, code, word in cases:
            with self.subTest(resource=resource, body=body):
                answer = self.server.patch(resource, body)
                self.assertEqual(answer.status, status, answer.body)
                self.assertIn(word, answer.message)
                if code:
                    self.assertEqual(answer.json["error"]["code"], code)
                self.assertEqual(self.server.stored(CHANNEL), "6")

    def test_a_change_holds_for_what_its_client_has_read(self):
        """If-Match: the tag of the same resource's GET; for objects that of the query's paths, else of the body's."""
        radio, ssid = "/objects?path=Device.WiFi.Radio.1", {"SSID": "mine"}
        own, leaf = self.server.get(radio).headers["ETag"], self.server.get(radio + "&leaf=1").headers["ETag"]
        pair = self.server.get(radio + "&path=Device.WiFi.SSID.1.").headers["ETag"]
        wifi = self.server.get("/wifi/ssids/1").headers["ETag"]
        body = {"Device.WiFi.Radio.1.": {"Channel": 11}}
        both = {**body, "Device.WiFi.SSID.1": {"SSID": "x"}}
        cases = [  # resource, body, If-Match, status while all is as it was read, and after another's change
            ("/objects", body, own, 200, 412), ("/objects", body, leaf, 412, 412), ("/objects?leaf=1", body, leaf, 200, 412),
            ("/objects", both, pair, 200, 412), ("/objects", both, own, 412, 412),
            ("/objects?path=Device.WiFi.Radio.1", both, own, 200, 412),
            ("/objects?path=Device.DHCPv4", body, own, 412, 412), ("/objects?path=Device.Nope", body, own, 404, 404),
            ("/wifi/ssids/1", ssid, wifi, 200, 412), ("/wifi/ssids/1?db_only=1", ssid, wifi, 200, 412),
            ("/wifi/ssids/1", ssid, f' "a,b" ,, {wifi}', 200, 412), ("/wifi/ssids/1", ssid, "W/" + wifi, 412, 412),
            ("/wifi/ssids/1", ssid, "*", 200, 200), ("/wifi/ssids/1", ssid, "", 412, 412),
            ("/wifi/ssids/77", ssid, "*", 404, 404), ("/wifi/ssids/1", {"Nope": 1}, wifi, 404, 412),
            *(("/wifi/ssids/1", ssid, text, 400, 400) for text in ("x", '"x', wifi + " " + wifi, wifi + ", *", 'w/"x"', '"\t"')),
            ("/objects?path=Device.WiFi.Radio.1", body, None, 400, 400), ("/objects?leaf=0", body, None, 400, 400),
        ]
        for turn in (3, 4):
            for resource, given, tag, *statuses in cases:
                with self.subTest(resource=resource, given=given, tag=tag, turn=turn):
                    dry = self.server.patch(resource + "&?"["?" not in resource] + "dry_run=1", given, If_Match=tag)
                    self.assertEqual(dry.status, statuses[turn - 3], dry.body)
                    self.assertIn("changes" if dry.status == 200 else "error", dry.json)
            self.server.tool("set", f"{CHANNEL}=3", "Device.WiFi.SSID.1.SSID=theirs")
        refused = self.server.patch("/wifi/ssids/1", ssid, If_Match=wifi)
        self.assertEqual((refused.status, self.server.stored("Device.WiFi.SSID.1.SSID")), (412, "theirs"))
        fresh = self.server.get("/wifi/ssids/1").headers["ETag"]
        self.assertEqual(self.server.patch("/wifi/ssids/1", ssid, If_Match=fresh).status, 200)
        lines = f'If-Match: "x"\r\nIf-Match: {self.server.get("/wifi/ssids/1").headers["ETag"]}\r\n'  # one list
        self.assertIn(b"HTTP/1.1 200", self.server.raw(
            (f"PATCH /api/v1/wifi/ssids/1 HTTP/1.1\r\nHost: {self.server.host}\r\nOrigin: http://{self.server.host}\r\n"
             f"Authorization: Bearer {self.server.token}\r\nContent-Type: application/json\r\nConnection: close\r\n{lines}"
             'Content-Length: 15\r\n\r\n{"SSID": "our"}').encode()))

    def test_changes_take_turns(self):
        """Each of many at once tells what the one before it has written; of those with one tag a single one is made."""
        def all_at_once(resource, bodies, **headers):
            with concurrent.futures.ThreadPoolExecutor(8) as pool:
                return list(pool.map(lambda body: self.server.patch(resource, body, **headers), bodies))
        bodies = [{"SSID": f"n{number}"} for number in range(24)]
        written = [answer.json["changes"][0] for answer in all_at_once("/wifi/ssids/1", bodies)]
        self.assertEqual(len({one["from"] for one in written}), len(bodies))
        self.assertEqual({one["from"] for one in written} ^ {one["to"] for one in written},
                         {"VOLA Home", self.server.stored("Device.WiFi.SSID.1.SSID")})
        tag = self.server.get("/objects?path=Device.WiFi.SSID.1.").headers["ETag"]
        bodies = [{"Device.WiFi.SSID.1.": {"SSID": f"m{number}"}} for number in range(24)]
        statuses = [answer.status for answer in all_at_once("/objects", bodies, If_Match=tag)]
        self.assertEqual(sorted(statuses), [200] + [412] * 23)

    def test_each_change_is_logged_without_values(self):
        self.server.patch("/wifi/ssids/1", {"KeyPassphrase": "a-secret-of-mine"})
        self.server.patch("/objects", {"Device.WiFi.Radio.1.": {"Channel": 11, "Name\n2026": 1}})
        self.server.patch("/objects?dry_run=1", {"Device.WiFi.Radio.1.": {"Channel": 9}})
        self.server.patch("/objects?db_only=a-secret", '{"KeyPassphrase": "a-secret')
        self.server.ask("DELETE", "/api/v1/jobs/1", "{}")
        self.server.patch("/objects", {"Device.WiFi.Radio.1.": {f"Name{number}": 1 for number in range(3000)}})
        lines = self.server.end().splitlines()
        self.assertRegex(lines[-1], r"Radio\.1\.Name0,.*,Device\.WiFi\.Radio\.1\.Name\d+ and 29\d\d more -> 404$")
        self.assertLess(len(lines.pop()), 1200)
        pattern = r"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ 127\.0\.0\.1 (?:PATCH|DELETE) (/api/v1/\S+)(?: (\S+))? -> (\d+)"
        self.assertEqual([re.fullmatch(pattern, line).groups() for line in lines],
                         [("/api/v1/wifi/ssids/1", "KeyPassphrase", "200"),
                          ("/api/v1/objects", "Device.WiFi.Radio.1.Channel,Device.WiFi.Radio.1.Name?2026", "404"),
                          ("/api/v1/objects", None, "400"), ("/api/v1/jobs/1", None, "400")])

    def test_a_log_that_nobody_reads_holds_nothing_up(self):
        names = {f"Name{number:030}": 1 for number in range(30)}
        statuses = {self.server.patch("/objects", {"Device.WiFi.Radio.1.": names}).status for _ in range(100)}
        self.assertEqual((statuses, self.server.get("").status), ({404}, 200))
        self.assertLess(len(self.server.end()), 65536)  # bytes of a pipe

    def test_a_change_cut_at_the_end_is_logged(self):
        """Those that wait for it are not begun."""
        subprocess.run([SANDBOX, "fault", "add", "Device.WiFi.SSID.", "--late", "3000", "--on", "set"], check=True,
                       env=environment(self.server.folder), capture_output=True)
        connections = [self.server.connect() for _ in range(9)]
        for connection in connections:
            connection.request("PATCH", "/api/v1/objects", json.dumps({"Device.WiFi.SSID.1.": {"SSID": "late"}}),
                               {"Authorization": f"Bearer {self.server.token}", "Origin": f"http://{self.server.host}",
                                "Content-Type": "application/json"})
        time.sleep(0.4)
        start = time.monotonic()
        lines = self.server.end().splitlines()
        self.assertLess(time.monotonic() - start, 1.2)
        ends = sorted(re.search(r" PATCH /api/v1/objects(?: Device\.WiFi\.SSID\.1\.SSID)? -> (.*)$", line)[1] for line in lines)
        self.assertEqual(ends, [*8 * ["not begun: the server ended"], "unknown: ended while the gateway was asked"])
        for connection in connections:
            connection.close()

    def test_a_change_killed_in_the_middle_is_whole_or_not_there(self):
        pair = ("Device.WiFi.SSID.1.SSID", "Device.WiFi.SSID.2.SSID")
        self.server.patch("/objects", {f"Device.WiFi.SSID.{number}.": {"SSID": "before"} for number in (1, 2)})
        for number in range(8):
            with Server(folder=self.server.folder, words=True) as server:
                connection = server.connect()
                for turn in range(1 + number):
                    body = json.dumps({f"{path.rsplit('.', 1)[0]}.": {"SSID": f"n{number}t{turn}"} for path in pair})
                    connection.request("PATCH", "/api/v1/objects", body,
                                       {"Authorization": f"Bearer {server.token}", "Origin": f"http://{server.host}",
                                        "Content-Type": "application/json"})
                    if turn < number:
                        connection.getresponse().read()
                server.process.kill()
                server.process.wait()
                server.process.returncode = 0
                connection.close()
            self.assertEqual(*(self.server.stored(path) for path in pair))
