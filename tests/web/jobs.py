# SPDX-License-Identifier: MIT
"""What takes long: scans, WPS and the mesh, in the device box."""
import json
import os
import subprocess
import time
import unittest

from server import SANDBOX, SANITIZED, TOOL, Server, environment, has_box

QUICK = {"CALTOFAL_BOX_SCAN_MS": "300", "CALTOFAL_BOX_WPS_MS": "600"}


@unittest.skipUnless(has_box(), "there can be no device box here")
class Jobs(unittest.TestCase):
    def start(self, gateway="home", **variables):
        server = Server(gateway=gateway, box=True, words=True, **{**QUICK, **variables}).__enter__()
        self.addCleanup(server.end)
        return server

    def begin(self, server, resource, body):
        answer = server.post(resource, body)
        self.assertEqual(answer.status, 202, answer.body)
        job = answer.json
        self.assertEqual((job["kind"], answer.headers["Location"]), (resource[1:], f"/api/v1/jobs/{job['id']}"))
        return job["id"]

    def wait(self, server, number, limit=10):
        end = time.monotonic() + limit
        while (job := server.get(f"/jobs/{number}").json)["state"] == "running" and time.monotonic() < end:
            time.sleep(0.05)
        return job

    def test_two_scans_and_wps_at_once(self):
        server = self.start()
        self.assertEqual(server.get("/wifi/survey").status, 404)
        self.assertEqual(server.get("/wifi/survey?empty=1").json, {"networks": []})
        numbers = [self.begin(server, "/wifi/scans", {"interface": "wlan0", "pace": 20}),
                   self.begin(server, "/wifi/scans", {"interface": "wlan2", "pace": 20}),
                   self.begin(server, "/wifi/wps", {"pace": 50})]
        seen = server.get(f"/jobs/{numbers[0]}").json
        self.assertLess(seen["elapsed"], 5)
        self.assertEqual(server.get("/wan").status, 200)
        jobs = [self.wait(server, number) for number in numbers]
        self.assertEqual([job["state"] for job in jobs], ["done"] * 3, jobs)
        self.assertTrue(all(job["error"] is None and job["of"] > 0 for job in jobs))
        self.assertTrue(all(network["channel"] <= 14 for network in jobs[0]["result"]["networks"]))
        self.assertTrue(all(network["channel"] > 14 for network in jobs[1]["result"]["networks"]))
        self.assertEqual(jobs[2]["result"], {"wps": "Success"})
        made_up = "the sandbox made these networks up"
        self.assertEqual([job["notes"][:1] for job in jobs], [[made_up], [made_up], []])
        survey = server.get("/wifi/survey")
        self.assertIn(made_up, json.loads(survey.headers["Caltofal-Notes"]))
        self.assertEqual((survey.status, server.get("/wifi/survey?empty=1").body), (200, survey.body))
        self.assertEqual([job["id"] for job in server.get("/jobs").json["jobs"]], numbers)

    def test_a_scan_ends_when_its_result_is_there(self):
        server = self.start(CALTOFAL_BOX_SCAN_MS="1000")
        for interface in ("wlan0", "wlan2"):
            start = time.monotonic()
            job = self.wait(server, self.begin(server, "/wifi/scans", {"interface": interface}))
            self.assertEqual(job["state"], "done", job)
            self.assertGreaterEqual(time.monotonic() - start, 1)
            self.assertLess(time.monotonic() - start, 2.5)

    def test_what_is_under_way_is_not_begun_again(self):
        server = self.start(gateway="mesh", CALTOFAL_BOX_SCAN_MS="2000", CALTOFAL_BOX_WPS_MS="2000")
        work = (("/wifi/scans", {"interface": "wlan0", "pace": 100}), ("/wifi/wps", {"pace": 100}), ("/mesh/sync", {}))
        numbers = [self.begin(server, resource, body) for resource, body in work]
        for (resource, body), number in zip(work, numbers):
            again = server.post(resource, body)
            self.assertEqual((again.status, again.headers["Retry-After"]), (503, "1"), again.body)
            self.assertIn(f"job {number}", again.message)
        self.assertEqual([self.wait(server, number)["state"] for number in numbers], ["done"] * 3)
        self.assertEqual(self.wait(server, self.begin(server, *work[1]))["state"], "done")

    def test_a_scan_of_somebody_else_is_said(self):
        server = self.start()
        command = [SANDBOX, "run", "-g", "home", "--", TOOL, "wifi", "scan", "wlan0"]
        with subprocess.Popen(command, env=environment(server.folder, CALTOFAL_BOX_SCAN_MS="60000"), cwd=server.folder,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as scan:
            self.addCleanup(scan.kill)
            end = time.monotonic() + 20
            while not os.path.exists(f"{server.folder}/home.box/wlan_wave/wlan0_scan_by_User.result.lock"):
                self.assertLess(time.monotonic(), end)
                time.sleep(0.1)
            time.sleep(0.2)
            job = self.wait(server, self.begin(server, "/wifi/scans", {"interface": "wlan0", "pace": 100}))
            scan.terminate()
        self.assertEqual((job["state"], job["error"] and job["error"]["exit"]), ("failed", 1), job)
        self.assertIn("under way", job["error"]["message"])

    def test_jobs_are_cancelled(self):
        server = self.start(CALTOFAL_BOX_SCAN_MS="20000", CALTOFAL_BOX_WPS_MS="20000")
        for resource, body in (("/wifi/scans", {"interface": "wlan0"}), ("/wifi/wps", {})):
            with self.subTest(resource=resource):
                number = self.begin(server, resource, body)
                time.sleep(0.4)
                start = time.monotonic()
                self.assertEqual(server.ask("DELETE", f"/api/v1/jobs/{number}").status, 200)
                job = self.wait(server, number)
                self.assertEqual(job["state"], "cancelled", job)
                self.assertIn("interrupted", job["error"]["message"])
                self.assertLess(time.monotonic() - start, 2)
        again = server.ask("DELETE", f"/api/v1/jobs/{number}")
        self.assertEqual((again.status, again.json["state"]), (200, "cancelled"))
        if not SANITIZED:  # which takes longer than the second that there is
            self.begin(server, "/wifi/wps", {})  # the end of the server ends it as well

    def test_time_out_and_refusals(self):
        server = self.start(CALTOFAL_BOX_WPS="timeout")
        job = self.wait(server, self.begin(server, "/wifi/wps", {"pace": 50}))
        self.assertEqual((job["state"], job["error"]["exit"]), ("failed", 3))
        for resource, body, status in (
                ("/wifi/scans", {"interface": "wlan9"}, 404), ("/wifi/scans", {}, 400), ("/wifi/scans", {"interface": "wlan0; reboot"}, 400),
                ("/wifi/scans", {"interface": "wlan0", "ssid": "it's"}, 400), ("/wifi/scans", {"interface": 1}, 400),
                ("/wifi/scans", {"interface": "wlan0", "pace": 0}, 400), ("/wifi/scans", {"interface": "wlan0", "x": 1}, 400),
                ("/wifi/wps", {"interface": "wlan0"}, 400), ("/mesh/sync", {"a": 1}, 400)):
            self.assertEqual(server.post(resource, body).status, status, (resource, body))

    def test_so_many_jobs_run_at_once(self):
        server = self.start(CALTOFAL_BOX_SCAN_MS="20000")
        names = [f"wlan0.{number}" for number in range(1, 10)]
        text = "".join(f"Device.WiFi.SSID.{20 + number}.{line}\n" for number, name in enumerate(names)
                       for line in (f"Name = {name}", "LowerLayers = Device.WiFi.Radio.1."))
        subprocess.run([SANDBOX, "import", "home", "-"], env=environment(server.folder), input=f"# values as texts\n{text}".encode(),
                       check=True, capture_output=True)
        answers = [server.post("/wifi/scans", {"interface": name}) for name in names]
        self.assertEqual([answer.status for answer in answers], [202] * 8 + [503])

    def test_the_mesh_is_synchronised(self):
        server = self.start(gateway="mesh")
        job = self.wait(server, self.begin(server, "/mesh/sync", {}), limit=20)
        self.assertEqual((job["state"], job["result"]["synced"]), ("done", True), job)
        home = self.start()
        self.assertEqual(self.wait(home, self.begin(home, "/mesh/sync", {}))["result"]["reason"], "the mesh is off")
