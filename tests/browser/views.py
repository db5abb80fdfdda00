# SPDX-License-Identifier: MIT
"""Every view on every demo gateway shows what the interface answers."""
from page import GATEWAYS, PageCase

# View, section, fact, resource, member, what the page makes of it where that is not the text itself.
FACTS = [
    ("", "Internet", "Address", "/wan", "ip_address", None),
    ("", "Internet", "State", "/wan", "status", {"Up": "Connected"}.get),
    ("", "Home network", "Address", "/lan", "ipv4.address", None),
    ("", "Home network", "Role", "/mode", "router", lambda router: "router" if router else "bridge"),
    ("internet", "WAN", "Address", "/wan", "ip_address", None),
    ("internet", "WAN", "Subnet mask", "/wan", "subnet_mask", None),
    ("internet", "WAN", "Gateway", "/wan", "gateway", None),
    ("internet", "WAN", "Interface", "/wan", "interface", None),
    ("internet", "WAN", "VLAN", "/wan", "vlan", lambda vlan: str(vlan["id"]) if vlan and vlan["enabled"] else "none"),
    ("internet", "WAN", "User name", "/wan", "ppp.username", None),
    ("internet", "Name servers", "First", "/dns", "dns1", None),
    ("internet", "IPv6", "Address", "/ipv6", "address", None),
    ("internet", "IPv6", "State", "/ipv6", "enabled", lambda on: "On" if on else "Off"),
    ("internet", "DSL line", "Downstream/Rate", "/dsl", "downstream.rate_kbit_s",
     lambda kbit: f"{kbit / 1000:.1f} Mbit/s"),
    ("internet", "DSL line", "Upstream/Noise margin", "/dsl", "upstream.noise_margin_db", lambda db: f"{db:.1f} dB"),
    ("internet", "DSL line", "Downstream/Attenuation", "/dsl", "downstream.attenuation_db",
     lambda db: f"{db[0]:.1f} dB"),
    ("internet", "ATM link", "VPI / VCI", "/atm", "", lambda atm: f"{atm['vpi']} / {atm['vci']}"),
    ("internet", "Multi-WAN", "Two WANs", "/multiwan", "enabled", lambda on: "On" if on else "Off"),
    ("home", "LAN", "IPv4/Address", "/lan", "ipv4.address", None),
    ("home", "LAN", "IPv4/MAC address", "/lan", "ipv4.mac_address", None),
    ("home", "LAN", "IPv4/DHCP server", "/lan", "ipv4.dhcp_active", lambda on: "On" if on else "Off"),
    ("home", "LAN", "IPv6/Address", "/lan", "ipv6", lambda lan: f"{lan['address']}/{lan['prefix_length_bits']}"),
    ("mesh", "Mesh", "State", "/mesh", "enabled", lambda on: "On" if on else "Off"),
    ("mesh", "Mesh", "Satellites", "/mesh", "connected", str),
    ("mesh", "Repeater uplink", "To", "/wifi/endpoint", "peer", None),
    ("mesh", "Repeater uplink", "Channel", "/wifi/endpoint", "channel", str),
]

BANDS = {"2.4g": "2.4 GHz", "5g": "5 GHz"}


def members(value):
    return value if isinstance(value, list) else list(value.values())


# View, section, table, resource, its list, column by column what a row shows; only rows of which the last holds.
TABLES = [
    ("", "Wi-Fi", "Radios", "/wifi/radios", "radios",
     {"Radio": lambda one: BANDS[one["band"]], "Channel": lambda one: str(one["channel"]),
      "Clients": lambda one: str(one["clients"])}, None),
    ("home", "Hosts", "Hosts", "/hosts", "hosts",
     {"Host": lambda one: one["name"] or "(no name)", "Address": lambda one: one["address"],
      "State": lambda one: "Connected" if one["active"] else "Away"}, None),
    ("wifi", "Radios", "Radios", "/wifi/radios", "radios",
     {"Radio": lambda one: BANDS[one["band"]], "Width": lambda one: f"{one['bandwidth_mhz']} MHz",
      "Standards": lambda one: one["standards"]},
     None),
    ("wifi", "Networks", "Networks that are on", "/wifi/ssids", "ssids",
     {"Name": lambda one: one["ssid"] or "(no name)", "BSSID": lambda one: one["bssid"],
      "For": lambda one: one["network"],
      "Change": lambda one: "–" if one["network"] == "uplink" else "Change"},
     lambda one: one["enabled"]),
    ("mesh", "Mesh", "Satellites", "/mesh", "satellites",
     {"Satellite": lambda one: one["name"], "Address": lambda one: one["ip"],
      "MAC address": lambda one: one["mac"]}, None),
]


def member(value, path):
    for name in path.split(".") if path else []:
        value = value and value[name]
    return value


class Views(PageCase):
    def answers(self, resource):
        if resource not in self.known:
            answer = self.server.get(resource)
            self.assertIn(answer.status, (200, 404), answer.body)
            self.known[resource] = answer.json if answer.status == 200 else None
        return self.known[resource]

    def check_facts(self, view, shown):
        for wanted, section, fact, resource, path, words in FACTS:
            value = wanted == view and member(self.answers(resource), path)
            if wanted != view or (resource == "/dsl" and value and self.answers("/dsl")["status"] != "connected"):
                continue
            with self.subTest(self.server.gateway, section=section, fact=fact):
                if self.answers(resource) is None:
                    self.assertIn("This gateway has no", shown[section]["text"])
                elif value in (None, [], 0.0) and fact not in shown[section]["facts"]:
                    continue  # what the gateway does not tell, such as PPP where there is none
                else:
                    text = words(value) if words else value
                    self.assertEqual(shown[section]["facts"][fact].split("\n")[0], text or "–")

    def check_tables(self, view, shown):
        for wanted, section, table, resource, path, columns, condition in TABLES:
            if wanted != view or self.answers(resource) is None:
                continue
            with self.subTest(self.server.gateway, section=section, table=table):
                rows = [one for one in members(member(self.answers(resource), path)) if not condition or condition(one)]
                expected = sorted(tuple(cell(one) for cell in columns.values()) for one in rows)
                got = sorted(tuple(row[head] for head in columns) for row in shown[section]["tables"].get(table, []))
                self.assertEqual(got, expected)

    def check_stations(self, shown):
        serving = [one for one in self.answers("/wifi/ssids")["ssids"]
                   if one["enabled"] and one["active"] and one["network"] != "uplink"]
        stations = {one["interface"]: self.answers(f"/wifi/stations/{one['interface']}")["stations"] for one in serving}
        expected = sorted((station["mac"], one["ssid"] + " " + one["interface"], f"{station['rssi_dbm']} dBm")
                          for one in serving for station in stations[one["interface"]])
        rows = shown["Stations"]["tables"].get("Stations", [])
        self.assertEqual(sorted((row["MAC address"], row["Network"], row["Signal"]) for row in rows), expected)

    def check_model(self):
        answer = self.answers("/objects?path=Device.")
        count = sum(1 for parameters in answer.values() for name in parameters if not name.endswith("_hex"))
        self.assertIn(f"{count} parameters.", self.read()["Parameters"]["text"])
        self.driver.find_element("id", "search").send_keys("device.ip.interface.1. enable")
        rows = {row["Parameter"]: row["Value"] for row in self.read()["Parameters"]["tables"]["Parameters"]}
        self.assertEqual(rows["Device.IP.Interface.1.Enable"], "true")

    def test_every_view_of_every_gateway(self):
        for gateway in GATEWAYS:
            self.server, self.known = self.serve(gateway), {}
            for view in ("", "internet", "home", "wifi", "mesh", "model"):
                shown = self.open(view)
                self.assertTrue(view in ("model",) or shown, view)
                self.check_facts(view, shown)
                self.check_tables(view, shown)
                if view == "wifi":
                    self.check_stations(shown)
            self.check_model()
            self.doCleanups()
            self.setUp()
