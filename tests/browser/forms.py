# SPDX-License-Identifier: MIT
"""Changes through the forms, and what takes long."""
from page import By, Keys, PageCase

SSID = "Device.WiFi.SSID.1"
SECURITY = "Device.WiFi.AccessPoint.1.Security"
RADIO = "Device.WiFi.Radio.2"
CODE = "Device.DeviceInfo.ProvisioningCode"

# View, the button that opens the form, what is filled in, what the form says that will change, what the store holds.
CHANGES = [
    ("wifi", "Change network 1, VOLA Home", {"SSID": "Attic <b>&amp; \"Co\""},
     {f"{SSID}.SSID": ("VOLA Home", "Attic <b>&amp; \"Co\"")}, {f"{SSID}.SSID": "Attic <b>&amp; \"Co\""}),
    ("wifi", "Change network 1, VOLA Home", {"KeyPassphrase": "a new pass phrase"},
     {f"{SECURITY}.KeyPassphrase": ("(hidden)", "(hidden)")}, {f"{SECURITY}.KeyPassphrase": "a new pass phrase"}),
    ("wifi", "Change network 1, VOLA Home", {"ModeEnabled": "WPA2/WPA-PSK"},
     {f"{SECURITY}.ModeEnabled": ("WPA2-Personal", "WPA-WPA2-Personal")},
     {f"{SECURITY}.ModeEnabled": "WPA-WPA2-Personal"}),
    ("wifi", "Change radio 5 GHz", {"Channel": "100"},
     {f"{RADIO}.Channel": ("36", "100"), f"{RADIO}.AutoChannelEnable": ("true", "false")},
     {f"{RADIO}.Channel": "100", f"{RADIO}.AutoChannelEnable": "false"}),
    ("wifi", "Change radio 5 GHz", {"OperatingChannelBandwidth": "40", "ExtensionChannel": "upper"},
     {f"{RADIO}.OperatingChannelBandwidth": ("80MHz", "40MHz")}, {f"{RADIO}.OperatingChannelBandwidth": "40MHz"}),
    ("mesh", "Change mesh", {"enabled": "true"},
     {"Device.WiFi.X_ZINTU_RoamingMesh.Enable": ("false", "true")}, {"Device.WiFi.X_ZINTU_RoamingMesh.Enable": "true"}),
]

# View, form, field, its parameter.
MEANWHILE = [
    ("wifi", "Change network 1, VOLA Home", "SSID", f"{SSID}.SSID"),
    ("model", f"Change {CODE}", "ProvisioningCode", CODE),
]

# Field, what is filled in, and what is said beside it.
LENGTHS = [
    ("KeyPassphrase", "short", "Too short by 3: 8 to 63"),
    ("KeyPassphrase", "long enough", ""),
    ("KeyPassphrase", "g" * 64, "Too long by 1: 8 to 63"),
    ("KeyPassphrase", "0f" * 32, ""),
    ("SSID", "\u00e9" * 17, "Too long by 2: 1 to 32 bytes"),
    ("SSID", "", "Too short by 1"),
    ("SSID", "\u00e9" * 16, ""),
]


def stored_now(server, path):
    return server.tool("get", path, "--values", "--show-secrets").stdout.decode().rstrip("\n")


class Forms(PageCase):
    expected = (412, 422, 503)

    def open_form(self, view, name, values):
        self.open(view)
        if view == "model":
            self.driver.find_element(By.ID, "search").send_keys(name.removeprefix("Change "))
        self.button(name).send_keys(Keys.ENTER)
        self.await_script("document.querySelector('dialog')")
        for field, value in values.items():
            self.fill(field, value)

    def test_a_change_is_foreseen_written_and_noted(self):
        for view, name, values, foreseen, stored in CHANGES:
            with self.subTest(name, **values):
                server = self.serve()
                self.open_form(view, name, values)
                self.assertEqual(self.await_preview(), foreseen)
                self.assertNotEqual(server.stored(next(iter(stored))), next(iter(stored.values())))
                self.save()
                self.assertEqual({path: stored_now(server, path) for path in stored}, stored)
                self.open("written")
                rows = self.script("return [...document.querySelectorAll('main tbody tr')]"
                                   ".map(row => [...row.cells].map(cell => cell.innerText))")
                self.assertEqual({path: (old, new) for path, old, new, _ in rows[:len(foreseen)]}, foreseen)
                self.assertNotIn("pass phrase", self.script("return JSON.stringify(sessionStorage)"))
            self.doCleanups()
            self.setUp()

    def note(self, field):
        return self.driver.find_element(By.ID, self.field(field).get_attribute("aria-describedby")).text

    def test_a_wrong_length_is_told_while_typing(self):
        self.serve()
        self.open_form("wifi", "Change network 1, VOLA Home", {})
        for field, text, words in LENGTHS:
            with self.subTest(field, text=text):
                self.fill(field, text)
                if words:
                    self.await_script("document.querySelector('.note.refused')?.innerText.startsWith(arguments[0])", words)
                    self.assertFalse(self.driver.find_elements(By.CSS_SELECTOR, "[aria-disabled=false]"))
                else:
                    self.await_preview()

    def test_a_refusal_stands_beside_its_field_or_keeps_the_focus(self):
        server = self.serve()
        self.open_form("wifi", "Change network 1, VOLA Home", {"SSID": "Attic", "ModeEnabled": "WPA2/WPA-PSK"})
        self.await_preview()
        self.sandbox(server, "fault", "add", SSID, "--code", "store-failed")
        self.button("Save", "dialog").send_keys(Keys.ENTER)
        self.await_script("document.querySelector('dialog [role=alert]').innerText")
        self.assertEqual(self.driver.switch_to.active_element, self.button("Save", "dialog"))
        self.sandbox(server, "fault", "clear")
        self.press("Cancel", "dialog")
        self.open_form("model", f"Change {CODE}", {"ProvisioningCode": "x" * 65})
        self.await_preview()
        self.press("Save", "dialog")
        field = self.field("ProvisioningCode")
        self.await_script("arguments[0].ariaInvalid === 'true'", field)
        self.assertIn("is outside string(", self.note("ProvisioningCode"))
        self.assertEqual(self.driver.switch_to.active_element, field)
        self.assertEqual(server.stored(CODE), "demo.home")

    def test_what_the_gateway_changed_meanwhile_is_shown_and_not_overwritten(self):
        for view, name, field, path in MEANWHILE:
            with self.subTest(path):
                server = self.serve()
                self.open_form(view, name, {field: "Cellar"})
                (before, _), = self.await_preview().values()
                for now in ("Attic", "Loft"):
                    self.assertEqual(self.await_preview(), {path: (before, "Cellar")})
                    server.tool("set", path.rpartition(".")[0], f"{field}={now}")
                    if now == "Loft":  # from here on it is not looked for
                        self.press("Save", "dialog")
                        self.await_script("document.querySelector('dialog [role=alert]').innerText.includes('Not saved')")
                    self.await_script("document.querySelector('dialog').innerText.includes(arguments[0])",
                                      f"Changed meanwhile on the gateway, now: {now}")
                    self.assertEqual(server.stored(path), now)
                    self.script("addEventListener('refreshed', event => event.stopImmediatePropagation(), true)")
                    before = now
                self.assertEqual(self.await_preview(), {path: ("Loft", "Cellar")})
                self.save()
                self.assertEqual(server.stored(path), "Cellar")
            self.doCleanups()
            self.setUp()

    def test_the_pass_phrase_is_shown_only_when_asked_for(self):
        self.serve()
        self.open_form("wifi", "Change network 1, VOLA Home", {})
        field = self.field("KeyPassphrase")
        self.assertEqual((field.get_attribute("type"), field.get_attribute("value")), ("password", ""))
        self.press("Show Pass phrase", "dialog")
        self.await_script("arguments[0].value === 'correct-horse-battery' && arguments[0].type === 'text'", field)
        self.assertIsNone(self.script("return document.querySelector('dialog button.main[aria-disabled=false]')"), "no change yet")

    def test_any_parameter_can_be_found_and_changed(self):
        server = self.serve()
        self.open_form("model", f"Change {CODE}", {"ProvisioningCode": "lab.7"})
        self.assertEqual(self.await_preview(), {CODE: ("demo.home", "lab.7")})
        self.save()
        self.assertEqual(server.stored(CODE), "lab.7")
        self.await_script("document.querySelector('main tbody td').innerText === 'lab.7'")

    def test_a_scan_shows_its_progress_and_then_the_networks(self):
        self.serve(CALTOFAL_BOX_SCAN_MS="1500")
        self.assertNotIn("cafe-open", self.open("wifi")["Channels in 2.4 GHz"]["text"])
        self.button("Scan in 2.4 GHz").send_keys(Keys.ENTER)
        self.await_script("document.querySelector('progress')")
        self.assertRegex(self.script("return document.querySelector('progress').parentNode.innerText"), r"\d+ s( left)?")
        self.await_script("!document.querySelector('progress') && document.body.innerText.includes('networks found: 5')",
                          timeout=60)
        self.await_script("document.querySelector('main').innerText.includes('cafe-open')")
        self.assertIn("Note: the sandbox made these networks up.", self.read()["Channels in 2.4 GHz"]["text"])
        self.assertEqual(self.driver.switch_to.active_element, self.button("Scan in 2.4 GHz"))

    def test_a_scan_can_be_cancelled(self):
        self.serve(CALTOFAL_BOX_SCAN_MS="8000")
        self.open("wifi")
        self.press("Scan in 5 GHz")
        self.press("Cancel Scan in 5 GHz")
        self.await_script("!document.querySelector('progress')", timeout=5)

    def test_wps_counts_down(self):
        self.serve(CALTOFAL_BOX_WPS_MS="2500")
        self.open("wifi")
        self.press("Start WPS")
        left = "Number(document.querySelector('progress')?.parentNode.innerText.match(/(\\d+) s left/)?.[1])"
        first = self.await_script(left)
        self.await_script(f"{left} < arguments[0]", first)
        self.await_script("document.getElementById('said').innerText === 'Start WPS: Success.'")
