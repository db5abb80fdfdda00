# SPDX-License-Identifier: MIT
"""Every resource on every demo gateway says what the command line prints with --json, byte for byte."""
import json
import re
import subprocess
import unittest

from server import GATEWAYS, SANDBOX, TOOL, Server, environment, has_box

STATUS_OF_EXIT = {1: 500, 2: 400, 3: 504, 4: 503, 5: 422, 10: 404, 77: 503}

PLAIN = {  # resource: words of the command line
    "/status": "status", "/mode": "mode", "/gateway": "gateway", "/wan": "wan", "/dns": "dns", "/ipv6": "ipv6", "/dsl": "dsl",
    "/atm": "atm", "/lan": "lan", "/multiwan": "multiwan", "/iptv": "iptv", "/hosts": "hosts",
    "/wifi/radios": "wifi radios", "/wifi/ssids": "wifi ssids",
    "/wifi/radios/1": "wifi radio 1", "/wifi/radios/2": "wifi radio 2", "/wifi/radios/9": "wifi radio 9",
    "/wifi/ssids/1": "wifi ssid 1", "/wifi/ssids/9": "wifi ssid 9", "/wifi/ssids/0": "wifi ssid 0",
    "/wifi/ssids/x": "wifi ssid x",
    "/objects?path=Device.": "get Device.",
    "/objects?path=Device.WiFi.Radio.1.&leaf=1": "get Device.WiFi.Radio.1. --leaf",
    "/objects?path=Device.WiFi.Radio.1.Channel": "get Device.WiFi.Radio.1.Channel",
    "/objects?path=Device.Hosts.Host&where=Active%3Dtrue": "get Device.Hosts.Host --where Active=true",
    "/objects?path=Device.WiFi.Radio.1&path=Device.WiFi.SSID.1": "get Device.WiFi.Radio.1 Device.WiFi.SSID.1",
    "/objects?path=Device.Nope": "get Device.Nope",
    "/objects?path=*": "get *",
    "/objects?path=*.*": "get *.*",
    "/objects?path=Device.Hosts.Host&where=Active%3Dmaybe": "get Device.Hosts.Host --where Active=maybe",
    "/objects?path=Device.Hosts.Host&where=Active": "get Device.Hosts.Host --where Active",
}
IN_THE_BOX = {
    "/mesh": "mesh status", "/wifi/survey": "wifi survey", "/wifi/endpoint": "wifi endpoint",
    **{f"/wifi/{noun}/{interface}": f"wifi {noun} {interface}" for noun in ("channels", "stations")
       for interface in ("wlan0", "wlan2", "wlan9", "wl%24x")},
}


def without_command(error):
    """A command line's words on wrong usage name the command and its help, which over HTTP nobody typed."""
    if error["error"]["exit"] == 2:
        message = error["error"]["message"]
        error["error"]["message"] = re.sub(r"^[a-z -]+: (.*); see caltofal [a-z -]+ --help$", r"\1", message).replace("after --", "after ")
    return error


class Resources(unittest.TestCase):
    maxDiff = None

    def compare(self, server, resources, printed):
        """`printed` gives exit code, standard output and standard error for the words of a command line."""
        for resource, words in resources.items():
            with self.subTest(gateway=server.gateway, resource=resource):
                code, out, err = printed([*words.replace("%24", "$").split(), "--json"])
                answer = server.get(resource)
                self.assertEqual(answer.headers["Content-Type"], "application/json")
                if code == 0:
                    self.assertEqual((answer.status, answer.body), (200, out))
                    again = server.get(resource, If_None_Match=answer.headers["ETag"])
                    self.assertEqual((again.status, again.body), (304, b""))
                else:
                    self.assertEqual(answer.status, STATUS_OF_EXIT[code], err)
                    self.assertEqual(answer.json, without_command(json.loads(err)))

    def test_pages(self):
        for gateway in GATEWAYS:
            with Server(gateway=gateway) as server:
                def printed(words):
                    done = server.tool(*words)
                    return done.returncode, done.stdout, done.stderr
                self.compare(server, PLAIN, printed)

    @unittest.skipUnless(has_box(), "there can be no device box here")
    def test_pages_of_the_device(self):
        for gateway in ("home", "repeater", "mesh", "bridge"):
            with Server(gateway=gateway, box=True, words=True) as server:
                def printed(words):
                    done = subprocess.run([SANDBOX, "run", "-g", gateway, "--", TOOL, *words], env=environment(server.folder),
                                          cwd=server.folder, capture_output=True, check=False, timeout=60)
                    return done.returncode, done.stdout, done.stderr
                self.compare(server, IN_THE_BOX, printed)

    def test_without_the_device_it_is_said(self):
        with Server() as server:
            for resource in IN_THE_BOX:
                if "%24" not in resource:
                    answer = server.get(resource)
                    self.assertEqual((answer.status, answer.json["error"]["exit"]), (503, 77), resource)

    def test_the_index_is_what_there_is(self):
        with Server(words=True) as server:
            index = server.get("").json
            named = {"/api/v1" + resource.split("?")[0].rsplit("/", resource.count("/") > 1)[0]
                     for resource in (*PLAIN, *IN_THE_BOX)}
            for path in named:
                self.assertTrue(any(line.startswith(path) for line in index), path)
            for path, methods in index.items():
                for method in ("GET", "POST", "PATCH", "DELETE"):
                    status = server.ask(method, path.replace("{N}", "1").replace("{IF}", "wlan0").replace("{ID}", "1"),
                                        {} if method in ("POST", "PATCH") else None).status
                    self.assertEqual(status == 405, method not in methods, (method, path))

    def test_a_missing_gateway_is_said(self):
        """One that was never there, and one that is removed while it is served."""
        with Server(gateway="nosuch", words=True) as server:
            for made in (False, True):
                for verb in ("new", "remove") if made else ():
                    self.assertEqual(server.get("/wan").status, 200 if verb == "remove" else 503)
                    subprocess.run([SANDBOX, verb, "nosuch", *(["--from", "home"] if verb == "new" else [])],
                                   env=environment(server.folder), capture_output=True, check=True)
                answers = [server.get(resource) for resource in PLAIN if not resource.endswith(("=Active", "/x", "/0", "*"))]
                answers.append(server.patch("/wifi/ssids/1", {"SSID": "x"}))
                for answer in answers:
                    self.assertEqual((answer.status, answer.json["error"]["exit"]), (503, 4), answer.body)
                    self.assertIn('there is no gateway "nosuch" in ', answer.message)

    def test_secrets_are_asked_for_by_themselves(self):
        with Server() as server:
            secret = server.get("/secrets/wifi/ssids/1").json["KeyPassphrase"]
            self.assertEqual(secret, server.tool("get", "Device.WiFi.AccessPoint.1.Security.KeyPassphrase", "--values",
                                                 "--show-secrets").stdout.decode().strip())
            everything = [*PLAIN, "/objects?path=Device.WiFi.AccessPoint.1.Security.&leaf=1"]
            password = "ppp-secret"
            for resource in everything:
                body = server.get(resource).body.decode()
                self.assertNotIn(secret, body, resource)
                self.assertNotIn(password, body, resource)
            dry = server.patch("/wifi/ssids/1?dry_run=1", {"KeyPassphrase": "another-pass-phrase"})
            self.assertEqual(len(dry.json["changes"]), 1)
            self.assertNotIn(secret, dry.body.decode())
            self.assertNotIn("another-pass-phrase", dry.body.decode())
