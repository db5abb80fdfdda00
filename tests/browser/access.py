# SPDX-License-Identifier: MIT
"""The page for everybody: rules of accessibility, keyboard, narrow screens. Takes the screenshots."""
import os
import subprocess

from page import FOLDER, VIEWS, WIDTHS, Keys, PageCase

AXE = os.path.join(FOLDER, "node_modules", "axe-core", "axe.min.js")
RUN = """const done = arguments[0];
axe.run(document, {resultTypes: ["violations"]}).then(result => done(result.violations.map(one =>
    [one.id, one.help, one.nodes.map(node => node.html.slice(0, 200))])), error => done(String(error)));"""
# What reaches beyond the screen or is cut off inside its own element.
CUT = """return [...document.querySelectorAll("body *")].filter(node => {
  const box = node.getBoundingClientRect(), style = getComputedStyle(node);
  if (style.clipPath !== "none" || node.closest("thead, .skip, option") || !box.width) return false;
  return box.right > innerWidth + 1 || box.left < -1
    || (style.overflowX !== "visible" && node.scrollWidth > node.clientWidth + 1 && node.tagName !== "INPUT");
}).map(node => node.tagName + "." + node.className + ": " + node.textContent.slice(0, 60));"""

# Addresses in tables that do not stand in one line.
BROKEN = """return [...document.querySelectorAll("td")].filter(cell => {
  const range = document.createRange();
  range.selectNodeContents(cell);
  return /^[0-9A-F]{2}:|^\\d+\\.\\d/i.test(cell.innerText) && range.getClientRects().length > 1;
}).map(cell => cell.innerText);"""


def axe():
    """The rules' source; None where npm cannot bring it."""
    if not os.path.exists(AXE):
        os.makedirs(FOLDER, exist_ok=True)
        try:
            subprocess.run(["npm", "install", "--prefix", FOLDER, "--no-audit", "--no-fund", "--silent", "axe-core@4"],
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=120, check=True)
        except (OSError, subprocess.SubprocessError):
            return None
    with open(AXE, encoding="utf-8") as file:
        return file.read()


class Access(PageCase):
    def fill_the_views(self):
        """A scan and a change, so that no view is empty."""
        server = self.serve("home", CALTOFAL_BOX_SCAN_MS="50")
        self.sandbox(server, "import", "home", "-", "--format", "tr181",
                     data=b"Device.Hosts.Host.1.HostName = " + b"a" * 63)
        self.scan(server)
        self.open("wifi")
        self.press("Change radio 5 GHz")
        self.await_script("document.querySelector('dialog')")
        self.fill("TransmitPower", "low")
        self.await_preview()
        self.save()
        return server

    def each_look(self):
        for width in WIDTHS:
            for scheme in ("light", "dark"):
                self.resize(width, scheme)
                for view in VIEWS:
                    self.open(view)
                    if view == "model":
                        self.script("""const search = document.getElementById("search");
                            search.value = "radio.1 channel"; search.dispatchEvent(new Event("input"));""")
                    with self.subTest(view=view, width=width, scheme=scheme):
                        yield f"{view or 'overview'}-{width}-{scheme}"

    def test_nothing_is_cut_at_any_width(self):
        self.fill_the_views()
        for name in self.each_look():
            self.assertEqual(self.script(CUT), [])
            self.assertEqual(self.script(BROKEN), [])
            self.assertLessEqual(*self.script("return [document.documentElement.scrollWidth, innerWidth]"))
            self.screenshot(name)

    def test_axe_finds_nothing(self):
        source = axe()
        if not source:
            self.skipTest("axe-core cannot be had from npm here")
        self.fill_the_views()
        for _ in self.each_look():
            self.script(source)
            self.assertEqual(self.driver.execute_async_script(RUN), [])
        self.resize(360)
        self.open("wifi")
        self.press("Change network 1, VOLA Home")
        self.await_script("document.querySelector('dialog')")
        self.assertEqual(self.driver.execute_async_script(RUN), [])
        self.assertEqual(self.script(CUT), [])
        self.screenshot("form-360-light")

    def test_everything_is_reached_by_the_keyboard_alone(self):
        self.serve()
        keys = lambda *pressed: self.driver.switch_to.active_element.send_keys(*pressed)
        focused = lambda: self.script("""const {activeElement: at} = document;
            return at.getAttribute("aria-label") ?? at.textContent""")
        self.driver.find_element("tag name", "body").send_keys(Keys.TAB)
        self.assertEqual(focused(), "Skip to content")
        for view in ("Overview", "Internet", "Home network", "Wi-Fi"):
            keys(Keys.TAB)
            self.assertEqual(focused(), view)
        keys(Keys.ENTER)
        self.await_view("wifi")
        self.assertEqual(self.script("return document.activeElement.id"), "content")
        keys(Keys.TAB)
        self.assertEqual(focused(), "Change radio 2.4 GHz")
        keys(Keys.ENTER)
        self.await_script("document.querySelector('dialog')")
        keys("n")  # no
        self.await_script("document.querySelector('dialog button.main[aria-disabled=false]')")
        keys(Keys.ESCAPE)
        self.await_script("!document.querySelector('dialog')")
        self.assertEqual(focused(), "Change radio 2.4 GHz")
        unreached = self.script("""return [...document.querySelectorAll("main :is(button, a, input, select, summary)")]
            .filter(node => node.tabIndex < 0 || node.getAttribute("tabindex") > 0).length""")
        self.assertEqual(unreached, 0)
