# SPDX-License-Identifier: MIT
"""The page in a browser: one Chromium for all tests, a server for each, and what a reader sees as Python values."""
import base64
import functools
import os
import subprocess
import sys
import tempfile
import unittest

from selenium import webdriver
from selenium.common.exceptions import StaleElementReferenceException
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.ui import Select, WebDriverWait

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "web"))
# pylint: disable-next=wrong-import-position,unused-import
from server import GATEWAYS, SANDBOX, Server, environment, has_box

FOLDER = os.path.abspath(sys.argv[4])
SOURCES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools", "web", "page")
VIEWS = ("", "internet", "home", "wifi", "mesh", "model", "written")
WIDTHS = (360, 768, 1280)
OPTIONS = """--headless=new --no-sandbox --disable-gpu --disable-background-networking --disable-component-update
    --disable-sync --no-first-run --hide-scrollbars --force-color-profile=srgb --lang=en""".split()

# What stands in the sections: {section: {"text", "facts": {"part/term": text}, "tables": {label: [{head: text}]}}}.
READ = """
const text = node => node.innerText.trim();
const object = (nodes, pair) => Object.fromEntries([...nodes].map(pair));
return object(document.querySelectorAll("main section"), section => [section.getAttribute("aria-label"), {
  text: text(section),
  facts: object(section.querySelectorAll("dl > div"), pair => {
    const part = pair.parentNode.parentNode.querySelector(":scope > h3");
    return [(part ? part.innerText + "/" : "") + pair.firstChild.innerText, text(pair.lastChild)];
  }),
  tables: object(section.querySelectorAll("table"), table => [table.getAttribute("aria-label"),
    [...table.querySelectorAll("tbody tr")].map(row => object(row.cells, cell => [cell.dataset.head, text(cell)]))]),
}]);"""


@functools.lru_cache(None)
def browser():
    options = webdriver.ChromeOptions()
    for option in [*OPTIONS, "--user-data-dir=" + PROFILE.name]:
        options.add_argument(option)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    return webdriver.Chrome(service=Service("chromedriver"), options=options)


PROFILE = tempfile.TemporaryDirectory(prefix="caltofal-browser-")  # pylint: disable=consider-using-with


def quit_browser():
    if browser.cache_info().currsize:
        browser().quit()
    PROFILE.cleanup()


class Boxed(Server):
    """In the device box, whose exit code after a signal is the signal's."""

    def __init__(self, options=(), **variables):
        super().__init__(*options, box=True, **variables)

    def end(self):
        if self.process.poll() is None:
            self.process.terminate()
        self.process.communicate(timeout=10)


class PageCase(unittest.TestCase):
    """A test with the page of a gateway. The console must stay without errors, but for the statuses in `expected`: the
    browser itself reports each answer of 400 and above there."""
    maxDiff = None
    expected = ()

    def setUp(self):
        self.driver = browser()
        self.driver.get_log("browser")
        self.addCleanup(self.check_console)

    def check_console(self):
        errors = [entry["message"] for entry in self.driver.get_log("browser") if entry["level"] == "SEVERE"
                  and not any(f"status of {status}" in entry["message"] for status in self.expected)]
        self.assertEqual(errors, [])
        self.resize(1280)

    def serve(self, gateway="home", **options):
        server = self.enterContext(Boxed(gateway=gateway, **options))
        self.addCleanup(self.driver.get, "about:blank")  # before the server ends
        self.driver.delete_all_cookies()
        self.driver.get(f"http://{server.host}/?token={server.token}")
        self.await_view("")
        return server

    def scan(self, server):
        """Looks for networks in both bands, without the waits that a page's own scan has."""
        jobs = [server.post("/wifi/scans", {"interface": wlan, "pace": 20}).json["id"] for wlan in ("wlan0", "wlan2")]
        done = lambda job: server.get(f"/jobs/{job}").json["state"] == "done"
        WebDriverWait(None, 20, 0.05).until(lambda _: all(map(done, jobs)))

    @staticmethod
    def sandbox(server, *words, data=b""):
        subprocess.run([SANDBOX, *words], env=environment(server.folder), input=data, check=True, capture_output=True,
                       timeout=60)

    def script(self, text, *arguments):
        return self.driver.execute_script(text, *arguments)

    def await_script(self, text, *arguments, timeout=20):
        """Waits until the expression is true; its value."""
        return WebDriverWait(self.driver, timeout, 0.05, [StaleElementReferenceException]).until(
            lambda driver: driver.execute_script(f"return {text}", *arguments), text)

    def await_view(self, view):
        self.await_script("document.querySelector('#views [aria-current]')?.hash === '#/' + arguments[0] && "
                          "!document.getElementById('content').hasAttribute('aria-busy')", view)

    def open(self, view):
        self.script("location.hash = '#/' + arguments[0]", view)
        self.await_view(view)
        if view == "wifi":
            self.await_script("[...document.querySelectorAll('.chart')].every(chart => chart.querySelector('canvas'))")
        return self.read()

    def read(self):
        return self.script(READ)

    def resize(self, width, scheme="light", height=900):
        self.driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride",
                                    {"width": width, "height": height, "deviceScaleFactor": 1, "mobile": False})
        self.driver.execute_cdp_cmd("Emulation.setEmulatedMedia",
                                    {"features": [{"name": "prefers-color-scheme", "value": scheme}]})

    def screenshot(self, name):
        width, height = self.script("return [innerWidth, Math.max(600, document.documentElement.scrollHeight)]")
        picture = self.driver.execute_cdp_cmd("Page.captureScreenshot", {
            "captureBeyondViewport": True, "clip": {"x": 0, "y": 0, "width": width, "height": height, "scale": 1}})
        os.makedirs(os.path.join(FOLDER, "screenshots"), exist_ok=True)
        with open(os.path.join(FOLDER, "screenshots", name + ".png"), "wb") as file:
            file.write(base64.b64decode(picture["data"]))

    def button(self, name, inside="body"):
        """The button of that accessible name."""
        return self.await_script("""[...document.querySelectorAll(arguments[1] + ' button')].find(button =>
            (button.getAttribute('aria-label') ?? button.textContent) === arguments[0])""", name, inside)

    def press(self, name, inside="body"):
        self.script("arguments[0].click()", self.button(name, inside))

    def field(self, name):
        return self.await_script("document.querySelector('dialog')?.querySelector(`[name=${arguments[0]}]`)", name)

    def fill(self, name, text):
        field = self.field(name)
        if field.tag_name == "select":
            Select(field).select_by_value(text)
        else:
            field.send_keys(Keys.CONTROL, "a")
            field.send_keys(text or Keys.DELETE)

    def await_preview(self):
        """What the open form says that will change, {parameter: (from, to)}, as soon as it may be saved."""
        self.await_script("document.querySelector('dialog button.main[aria-disabled=false]')")
        rows = self.script("""return [...document.querySelectorAll("dialog tbody tr")].map(row =>
            [...row.cells].map(cell => cell.innerText))""")
        return {path: (old, new) for path, old, new in rows}

    def save(self):
        self.press("Save", "dialog")
        self.await_script("!document.querySelector('dialog')")
