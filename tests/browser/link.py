# SPDX-License-Identifier: MIT
"""Values that refresh, and what becomes of the page without its server."""
import os
import time

from page import SOURCES, PageCase

REFRESH = 5  # seconds
TROUBLE = "document.getElementById('trouble').innerText"
COUNT = "performance.getEntriesByType('resource').filter(entry => entry.name.includes('/api/')).length"


class Link(PageCase):
    expected = (401, 403, 500, 503)

    def test_the_first_view_is_small(self):
        self.serve()
        entries = self.script("""return ["navigation", "resource"].flatMap(type => performance.getEntriesByType(type))
            .map(entry => [entry.name, entry.decodedBodySize])""")
        self.assertLessEqual(len(entries), 6, entries)
        self.assertLessEqual(sum(size for _, size in entries), 300 * 1024, entries)
        files = [os.path.join(SOURCES, name) for name in os.listdir(SOURCES)]
        self.assertLessEqual(sum(os.path.getsize(file) for file in files), 60 * 1024)

    def test_nothing_is_loaded_from_elsewhere_and_no_style_is_injected(self):
        server = self.serve()
        self.open("wifi")
        origins = self.script("""return [...new Set(performance.getEntriesByType("resource")
            .map(entry => new URL(entry.name).host))]""")
        self.assertEqual(origins, [server.host])
        self.assertEqual(self.script("return document.querySelectorAll('style, script:not([src])').length"), 0)

    def test_values_refresh_and_what_is_the_same_is_left_alone(self):
        server = self.serve()
        for view in ("home", "wifi"):
            self.open(view)
            self.script("""for (const node of document.querySelectorAll("main *")) node.marked = true;
                window.changes = []; new MutationObserver(list => changes.push(...list.map(({type, target}) =>
                    [type, target.nodeName, target.textContent.slice(0, 80)]))).observe(document.querySelector("main"),
                {subtree: true, childList: true, characterData: true, attributes: true});""")
            before = self.script(f"return {COUNT}")
            self.await_script(f"{COUNT} > arguments[0] + 3", before, timeout=4 * REFRESH)
            self.assertEqual(self.script("return changes"), [])
        server.tool("set", "Device.WiFi.SSID.1", "SSID=Attic")
        self.await_script("document.querySelector('main').innerText.includes('Attic')", timeout=2 * REFRESH + 5)
        self.assertTrue(self.script("return [...document.querySelectorAll('main *')].every(node => node.marked)"))

    def test_a_hidden_tab_asks_for_nothing(self):
        self.serve()
        first = self.driver.current_window_handle
        self.driver.switch_to.new_window("tab")
        other = self.driver.current_window_handle
        time.sleep(REFRESH + 3)
        self.driver.close()
        self.driver.switch_to.window(first)
        self.assertNotEqual(first, other)
        hidden = self.script("""const entries = performance.getEntriesByType("visibility-state");
            const from = entries.findLast(entry => entry.name === "hidden")?.startTime;
            const to = entries.find(entry => entry.startTime > from && entry.name === "visible")?.startTime
              ?? performance.now();
            return from && [to - from, performance.getEntriesByType("resource")
              .filter(entry => entry.startTime > from + 50 && entry.startTime < to - 50).length]""")
        self.assertIsNotNone(hidden, "the tab was never hidden")
        self.assertGreater(hidden[0], REFRESH * 1000)
        self.assertEqual(hidden[1], 0)
        before = self.script(f"return {COUNT}")
        self.await_script(f"{COUNT} > arguments[0]", before, timeout=REFRESH + 3)

    def test_a_lost_connection_is_said_and_the_values_stay(self):
        server = self.serve()
        self.open("home")
        server.end()
        self.await_script(f"{TROUBLE}.includes('connection to the server is lost')", timeout=REFRESH + 5)
        self.assertIn("IPv4/Address", self.read()["LAN"]["facts"])
        self.script("location.hash = '#/mesh'")  # which was not loaded before
        self.await_script("document.querySelector('main').innerText.includes('The server cannot be reached.')")
        self.assertNotIn("What is shown", self.script(f"return {TROUBLE}"))
        self.driver.get_log("browser")  # the browser's own words on the refused connection

    def test_an_ended_session_is_said_and_nothing_more_asked(self):
        self.serve()
        self.open("home")
        self.driver.delete_all_cookies()
        self.await_script(f"{TROUBLE}.includes('session has ended')", timeout=REFRESH + 5)
        self.assertIn("IPv4/Address", self.read()["LAN"]["facts"])
        before = self.script(f"return {COUNT}")
        time.sleep(REFRESH + 1)
        self.assertEqual(self.script(f"return {COUNT}"), before)

    def test_what_the_gateway_refuses_to_tell_is_said_in_its_place(self):
        server = self.serve()
        self.open("internet")
        self.sandbox(server, "fault", "add", "Device.DSL.", "--code", "store-failed")
        self.await_script("document.querySelector('[aria-label=\"DSL line\"]').innerText.includes('Not available:')")
        self.assertEqual(self.read()["WAN"]["facts"]["Address"], "203.0.113.45")
        self.sandbox(server, "fault", "add", "any", "--code", "store-failed")
        self.script("location.hash = '#/model'")
        self.await_script("document.querySelector('main').innerText.includes('Not available:')")
        self.sandbox(server, "fault", "clear")
        self.await_script("document.querySelector('main').innerText.includes('parameters.')")

    def test_a_server_that_only_reads_offers_no_change(self):
        self.serve(options=["--read-only"])
        for view in ("wifi", "mesh", "model"):
            self.open(view)
            if view == "model":
                self.driver.find_element("id", "search").send_keys("radio.1")
            self.assertEqual(self.script("return [...document.querySelectorAll('main button')].length"), 0, view)
            text = self.script("return document.querySelector('main').innerText")
            self.assertIn("only reads", text)
            self.assertNotRegex(text, "Scan to|WPS")

    def test_a_bar_follows_its_value(self):
        server = self.serve()
        self.open("internet")
        width = "document.querySelector('[aria-label=\"Downstream noise margin\"] .fill').offsetWidth"
        before = self.script(f"return {width}")
        self.sandbox(server, "import", "home", "-", "--format", "tr181",
                     data=b"Device.DSL.Line.1.DownstreamNoiseMargin = 20\n")
        self.await_script(f"{width} < arguments[0] / 2", before, timeout=REFRESH + 5)
