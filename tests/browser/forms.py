# SPDX-License-Identifier: MIT
"""Changes through the forms, and what takes long."""
from page import By, Keys, PageCase

SSID = "Device.WiFi.SSID.1"
SECURITY = "Device.WiFi.AccessPoint.1.Security"
RADIO = "Device.WiFi.Radio.2"

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
    ("mesh", "Change mesh", {"enabled": True},
     {"Device.WiFi.X_ZINTU_RoamingMesh.Enable": ("false", "true")}, {"Device.WiFi.X_ZINTU_RoamingMesh.Enable": "true"}),
]

# What is filled in, the field that is refused, and words of the refusal.
REFUSED = [
    ({"KeyPassphrase": "short"}, "KeyPassphrase", "string(8:63)"),
    ({"SSID": "x" * 33}, "SSID", "string(32)"),
    ({"SSID": "Attic", "KeyPassphrase": "short"}, "KeyPassphrase", "string(8:63)"),
]


def stored_now(server, path):
    return server.tool("get", path, "--values", "--show-secrets").stdout.decode().rstrip("\n")


class Forms(PageCase):
    expected = (422,)

    def open_form(self, view, name, values):
        self.open(view)
        self.button(name).send_keys(Keys.ENTER)
        self.await_script("document.querySelector('dialog')")
        for field, value in values.items():
            if value is True:
                self.field(field).click()
            else:
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

    def test_a_refusal_stands_beside_its_field_and_writes_nothing(self):
        server = self.serve()
        for values, refused, words in REFUSED:
            with self.subTest(**values):
                self.open_form("wifi", "Change network 1, VOLA Home", values)
                self.await_preview()
                self.press("Save", "dialog")
                field = self.field(refused)
                self.await_script("arguments[0].getAttribute('aria-invalid') === 'true'", field)
                note = self.driver.find_element(By.ID, field.get_attribute("aria-describedby"))
                self.assertIn(words, note.text)
                self.assertEqual(self.driver.switch_to.active_element, field)
                self.assertEqual(server.stored(f"{SSID}.SSID"), "VOLA Home")
                self.fill(refused, "long enough")
                self.await_script("arguments[0].getAttribute('aria-invalid') === 'false'", field)
                self.press("Cancel", "dialog")

    def test_the_pass_phrase_is_shown_only_when_asked_for(self):
        self.serve()
        self.open_form("wifi", "Change network 1, VOLA Home", {})
        field = self.field("KeyPassphrase")
        self.assertEqual((field.get_attribute("type"), field.get_attribute("value")), ("password", ""))
        self.press("Show Pass phrase", "dialog")
        self.await_script("arguments[0].value === 'correct-horse-battery' && arguments[0].type === 'text'", field)
        self.assertIsNone(self.script("return document.querySelector('dialog button.main:enabled')"), "no change yet")

    def test_any_parameter_can_be_found_and_changed(self):
        server = self.serve()
        path = "Device.DeviceInfo.ProvisioningCode"
        self.open("model")
        self.driver.find_element(By.ID, "search").send_keys("provisioning")
        self.press(f"Change {path}")
        self.fill("ProvisioningCode", "lab.7")
        self.assertEqual(self.await_preview(), {path: ("demo.home", "lab.7")})
        self.save()
        self.assertEqual(server.stored(path), "lab.7")
        self.await_script("document.querySelector('main tbody td').innerText === 'lab.7'")

    def test_a_scan_shows_its_progress_and_then_the_networks(self):
        self.serve(CALTOFAL_BOX_SCAN_MS="1500")
        self.assertNotIn("cafe-open", self.open("wifi")["Channels in 2.4 GHz"]["text"])
        self.press("Scan: Scan in 2.4 GHz")
        self.await_script("document.querySelector('progress')")
        self.assertRegex(self.script("return document.querySelector('.progress').innerText"), r"\d+ s( left)?")
        self.await_script("!document.querySelector('progress') && document.body.innerText.includes('5 networks found')",
                          timeout=60)
        self.await_script("document.querySelector('main').innerText.includes('cafe-open')")

    def test_a_scan_can_be_cancelled(self):
        self.serve(CALTOFAL_BOX_SCAN_MS="8000")
        self.open("wifi")
        self.press("Scan: Scan in 5 GHz")
        self.press("Cancel Scan in 5 GHz")
        self.await_script("!document.querySelector('progress')", timeout=5)

    def test_wps_counts_down(self):
        self.serve(CALTOFAL_BOX_WPS_MS="2500")
        self.open("wifi")
        self.press("Start push-button: WPS")
        left = "Number(document.querySelector('.progress')?.innerText.match(/(\\d+) s left/)?.[1])"
        first = self.await_script(left)
        self.await_script(f"{left} < arguments[0]", first)
        self.await_script("document.getElementById('said').innerText === 'WPS: Success.'")
