# SPDX-License-Identifier: MIT
"""Texts from the air and from clients that try to be more than text."""
import os

from page import PageCase

MARK = "document.body.dataset.broken = 1"
# The bytes as they come, and the text that a reader sees.
TEXTS = [
    (f"<img src=x onerror='{MARK}'>"[:32].encode(), f"<img src=x onerror='{MARK}'>"[:32]),
    (b"<script>alert(1)</script>", "<script>alert(1)</script>"),
    (b"</bdi></td><h1>x</h1>", "</bdi></td><h1>x</h1>"),
    (b"\"'`><svg/onload=alert(1)>", "\"'`><svg/onload=alert(1)>"),
    (b"&lt;b&gt;${7*7}{{7*7}}", "&lt;b&gt;${7*7}{{7*7}}"),
    ("a\u202ednep\u202c\u200fz".encode(), "a\\u202ednep\\u202c\\u200fz"),
    ("\u05e9\u05dc\u05d5\u05dd <b>".encode(), "\u05e9\u05dc\u05d5\u05dd <b>"),
    (b"caf\xe9 \xff\xfe", "caf\ufffd \ufffd\ufffd"),
    (b"bell\x07 esc\x1b[31m", "bell\\u0007 esc\\u001b[31m"),
    (b"__proto__", "__proto__"),
    (b"constructor", "constructor"),
]
NEIGHBOUR = "2.4GHz\t{}\t{}\t-{}\tWPA2-PSK\tAES\t02:00:5E:66:00:{:02X}\t20\t802.11n\tauto\t0\n"


def escaped(raw):
    return "".join(f"\\x{byte:02x}" for byte in raw)


class Hostile(PageCase):
    def gateway(self, server):
        """The texts as SSIDs, host names and networks around."""
        lines = "".join(f"Device.Hosts.Host.{number}.HostName = {escaped(raw)}\n"
                        + (f"Device.WiFi.SSID.{number}.SSID = {escaped(raw)}\n" if number < 9 else "")
                        + f"Device.WiFi.SSID.{number}.Enable = true\n" for number, (raw, _) in enumerate(TEXTS, 1))
        self.sandbox(server, "import", "home", "-", "--format", "tr181", data=lines.encode())
        around = b"".join(NEIGHBOUR.format("@", 1 + number % 13, 40 + number, number).encode().replace(b"@", raw)
                          for number, (raw, _) in enumerate(TEXTS) if b"\t" not in raw)
        box = os.path.join(server.folder, "home.box")
        with open(os.path.join(box, "neighbours.tsv"), "wb") as file:
            file.write(around)

    def test_they_stand_there_as_text_and_nothing_runs(self):
        server = self.serve(CALTOFAL_BOX_SCAN_MS="50")
        self.gateway(server)
        self.scan(server)
        for view, section in (("home", "Hosts"), ("wifi", "Networks"), ("wifi", "Channels in 2.4 GHz")):
            self.open(view)
            names = self.await_script("""(found => found.length > 3 && found)([...document.querySelectorAll(
                'main section[aria-label="' + arguments[0] + '"] bdi')].map(name => name.textContent))""", section)
            for number, (raw, text) in enumerate(TEXTS, 1):
                if section != "Networks" or number < 9:
                    with self.subTest(section, raw=raw):
                        self.assertIn(text, names)
            self.assertEqual(self.script("""return [
                document.querySelectorAll("main :is(img, script, svg, b, bdi *)").length,
                document.querySelectorAll("h1").length, document.body.dataset.broken ?? "whole"]"""), [0, 1, "whole"])
        self.press(f"Change network 1, {TEXTS[0][1]}")
        self.await_script("document.querySelector('dialog')")
        self.assertEqual(self.field("SSID").get_attribute("value"), TEXTS[0][1])
        title = self.script("return document.querySelector('dialog h2').textContent")
        self.assertEqual(title, f"Network {TEXTS[0][1]}")
        self.press("Cancel", "dialog")
        self.open("model")
        self.driver.find_element("id", "search").send_keys("hosts.host hostname")
        rows = {row["Parameter"]: row["Value"] for row in self.read()["Parameters"]["tables"]["Parameters"]}
        for number, (_, text) in enumerate(TEXTS, 1):
            self.assertEqual(rows[f"Device.Hosts.Host.{number}.HostName"], text)
