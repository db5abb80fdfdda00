#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""incomplete.py TOOL SANDBOX [unittest arguments]: pages of which a request fails, and gateways that lack what a page
shows. SANDBOX is caltofal-sandbox, by which requests are made to fail."""
import json
import os
import re
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True

from cases import LESS
from tool import Tool

tool = Tool(sys.argv[1], sys.argv[2])


class FailedRequests(unittest.TestCase):
    """A page asks for several objects and answers one code: the tool says which request it was."""

    def setUp(self):
        self.folder = tool.folder()

    def make_fail(self, path, code):
        tool.sandbox("fault", "add", path, "--code", code, folder=self.folder)

    def assert_fails(self, words, code, message):
        result = tool.run(*words.split(), folder=self.folder)
        self.assertEqual((result.code, result.out, result.err), (code, b"", f"caltofal: {message}\n"))

    def test_a_late_request_of_a_page_is_named(self):
        self.make_fail("Device.DSL.Channel.1.Stats.Total", "store-busy")
        self.assert_fails("dsl", 4, "request on Device.DSL.Channel.1.Stats.Total failed: fault 1 hit "
                          "Device.DSL.Channel.1.Stats.Total")

    def test_one_of_several_objects_of_a_request(self):
        self.make_fail("Device.DHCPv4.Server.Pool.1", "no-memory")
        self.assert_fails("lan --ipv4", 1, "request on Device.IP.Interface.1.IPv4Address.1, "
                          "Device.DHCPv4.Server.Pool.1, Device.Ethernet.Interface.1 failed: fault 1 hit "
                          "Device.DHCPv4.Server.Pool.1")

    def test_requests_that_a_page_can_do_without_are_not_blamed(self):
        self.make_fail("Device.Ethernet.VLANTermination.1", "store-busy")
        self.make_fail("Device.Routing.Router.1.IPv6Forwarding.3", "absent-object")
        self.assert_fails("wan", 4, "request on Device.Ethernet.VLANTermination.1 failed: fault 1 hit "
                          "Device.Ethernet.VLANTermination.1")

    def test_a_gateway_without_uci_section_is_still_shown(self):
        self.make_fail("Device.X_LANTIQ_COM_NwHardware", "absent-object")
        result = tool.run("gateway", folder=self.folder)
        self.assertEqual(result.code, 0)
        self.assertIn(b"UCI section         -\n", result.out)
        self.assertIn("WANConnection failed", result.err)

    def test_a_wan_without_route_is_shown_with_a_note(self):
        for entry in ("1", "2"):
            tool.run("del", "Device.Routing.Router.1.IPv4Forwarding." + entry, folder=self.folder)
        result = tool.run("wan", folder=self.folder)
        self.assertEqual((result.code, result.err),
                         (0, 'caltofal: no IPv4 forwarding entry tells the gateway: none with a GatewayIPAddress has the '
                             'Interface "Device.IP.Interface.3.", with its last dot, and an Origin that begins with '
                             'DHCPv4, Static or X_LANTIQ_COM_PPPoE\n'))
        self.assertIn(b"Gateway               -\n", result.out)

    def test_a_request_that_failed_behind_a_page_is_told(self):
        self.make_fail("Device.IP.Interface.3", "store-busy")
        result = tool.run("wan", folder=self.folder)
        self.assertEqual((result.code, result.out.count(b"pppoe")), (0, 1))
        self.assertIn("caltofal: request on Device.IP.Interface.3 failed: fault 1 hit Device.IP.Interface.3; what it "
                      "tells is missing here\n", result.err)

    def test_a_default_wan_that_is_not_there_is_told(self):
        tool.run("set", "Device.X_ZINTU_CurrentNetwork.WanIpInterface=Device.IP.Interface.77", folder=self.folder)
        reason = "Device.X_ZINTU_CurrentNetwork: WanIpInterface is Device.IP.Interface.77, which does not exist"
        for page in ("wan", "ipv6", "dns"):
            self.assert_fails(page, 10, reason)
        self.assertEqual(tool.run("status", folder=self.folder).out.decode().count(f" ({reason})\n"), 2)

    def test_a_default_wan_with_a_final_dot_is_explained(self):
        tool.run("set", "Device.X_ZINTU_CurrentNetwork.WanIpInterface=Device.IP.Interface.3.", folder=self.folder)
        for page in ("wan", "ipv6"):
            result = tool.run(page, folder=self.folder)
            self.assertEqual(result.code, 0)
            self.assertIn("WanIpInterface ends with a dot (Device.IP.Interface.3.): the library finds", result.err)
            self.assertNotIn("..", result.err)

    def test_a_read_parameter_leaves_no_refusal(self):
        self.assertEqual(tool.run("get", "Device.WiFi.Radio.1.Channel", folder=self.folder).code, 0)
        self.assertFalse(os.path.exists(os.path.join(self.folder, "home.log")))

    def test_status_goes_on_behind_failed_pages(self):
        self.make_fail("Device.DSL", "store-failed")
        result = tool.run("status", "--json", folder=self.folder)
        pages = json.loads(result.out)
        self.assertEqual(result.code, 0)
        self.assertEqual((pages["dsl"]["error"]["exit"], pages["lan"]["ipv4"]["dhcp_active"]), (4, True))


# Command on that gateway, lines of the answer or of the error.
OTHER_MAKER = {
    "radios": ["1 radio1 - - 1 - - 1", "2 radio2 - - 2 - - 2", "3 radio3 - - 3 - - 3"],
    "ssids": ["5 - 3 net5 - - yes -", "7 - - alone - - - -"],
    "clients 2": ["2"], "clients 3": ["3"],
    "clients 4": ["there is no radio 4: the gateway has 1, 2, 3"],
    "radio 3": ["Radio.3.Channel 3", "Radio.3.TransmitPower -", "AccessPoint.3.WMMEnable -"],
    "radio 4": ["there is no radio 4: the gateway has 1, 2, 3"],
    "ssid 5": ["SSID.5.SSID net5", "SSID.5.BSSID -", "AccessPoint.3.Security.ModeEnabled WPA2-Personal WPA2-PSK",
               "AccessPoint.3.X_LANTIQ_COM_Vendor.MACAddressControlEnabled -"],
    "ssid 7": ["SSID.7.SSID alone"],
    "ssid 4": ["there is no SSID 4: the gateway has 1, 2, 5, 6, 7"],
    "acl 5": ["Filter Allow", "2 02:00:5E:00:00:02", "3 02-00-5E-00-00-03"],
    "acl 5 --mac 02:00:5e:00:00:02": ["02:00:5e:00:00:02 may join"],
    "acl 5 --mac 02:00:5e:00:00:03": ["02:00:5e:00:00:03 may join"],  # stored with dashes
    "acl 5 --mac 02005e000004": ["02:00:5e:00:00:04 may join"],  # stored without separators
    "acl 5 --mac 02:00:5e:00:00:05": ["02:00:5e:00:00:05 may not join"],
    "acl 1": ["Device.WiFi.AccessPoint.1 has no MAC filter"],
    "acl 4": ["there is no SSID 4: the gateway has 1, 2, 5, 6, 7"],
    "acl 7": ["SSID 7 has no access point: no MAC filter"],
}


class Lacking(unittest.TestCase):
    """Gateways that do not have all that a page can show."""

    def setUp(self):
        self.folder = tool.folder()

    def without(self, *paths):
        for path in paths:
            tool.sandbox("fault", "add", path, "--code", "absent-object", folder=self.folder)

    def run_tool(self, *words):
        return tool.run(*words, folder=self.folder)

    def test_pages_without_an_object_show_the_others_and_name_it(self):
        for gateway, objects, page, lines, named in LESS:
            with self.subTest(f"{page} of {gateway} without {objects}"):
                tool.less(gateway, objects.split(), self.folder)
                result = self.run_tool(*page.split(), "-g", "less")
                text = re.sub(" +", " ", result.out.decode())
                for line in lines:
                    self.assertIn(f"\n{line}\n", "\n" + text)
                kept = ("; what they tell" if ", " in named else "; what it tells") + " is missing here\n"
                self.assertEqual((result.code, result.err), (0, named and f"caltofal: the gateway lacks {named}{kept}"))

    def test_a_page_asks_for_nothing_twice_where_nothing_is_missing(self):
        asked = re.findall(r"^\[request\] get (\S+) -> 0$", self.run_tool("wan", "--trace").err, re.M)
        self.assertEqual((len(asked), len(set(asked))), (12, 11), "two of its pieces ask for the current network")

    def test_one_half_of_the_lan_is_shown_without_the_other(self):
        self.without("Device.IP.Interface.1.IPv4Address", "Device.DHCPv4", "Device.Ethernet")
        result = self.run_tool("lan", "--json")
        self.assertEqual((result.code, list(json.loads(result.out))), (0, ["ipv6"]))
        self.assertIn("the gateway lacks Device.IP.Interface.1.IPv4Address.1, ", result.err)
        self.assertEqual(self.run_tool("lan", "--ipv4").code, 10)
        self.without("Device.IP", "Device.IPv6", "Device.RouterAdvertisement", "Device.DHCPv6")
        result = self.run_tool("lan")
        self.assertEqual((result.code, result.out), (10, b""))
        self.assertRegex(result.err, r"^caltofal: request on [^;]*: fault 1 hit Device\.IP\.Interface\.1\.IPv4Address; "
                                     r"request on [^;]*: fault 4 hit Device\.IP\n$")

    def test_what_fails_beside_a_missing_object_is_still_told(self):
        self.without("Device.DHCPv4")
        tool.sandbox("fault", "add", "Device.Ethernet.Interface", "--code", "store-busy", folder=self.folder)
        result = self.run_tool("lan", "--ipv4")
        self.assertEqual((result.code, result.out), (4, b""))
        self.assertIn("Device.Ethernet.Interface.1 failed: fault 2 hit", result.err)

    def test_a_flag_in_other_words_is_not_taken_for_a_no(self):
        states = {"True": True, "FALSE": False, "1": True, "enabled": None, "": None}
        tool.imported("flags", [f"Device.Hosts.Host.{number}.Active={word}" for number, word in enumerate(states, 1)],
                      self.folder)
        hosts = json.loads(self.run_tool("-g", "flags", "hosts", "--json").out)["hosts"]
        self.assertEqual([host["active"] for host in hosts], list(states.values()))

    def test_a_host_is_found_and_numbered_however_the_gateway_writes_it(self):
        tool.imported("hosts", ["Device.Hosts.Host.7.PhysAddress=02-00-5E-00-00-07",
                                "Device.Hosts.Host.8.PhysAddress=02005E000008",
                                "Device.Hosts.Host.cpe-1.PhysAddress=02:00:5E:00:00:09"], self.folder)
        for words, number in (("02:00:5e:00:00:07", 7), ("02-00-5E-00-00-08", 8), ("02005e000008", 8),
                              ("02:00:5e:00:00:09", None)):
            result = self.run_tool("-g", "hosts", "host", words, "--json")
            self.assertEqual(json.loads(result.out)["number"], number, words)
        self.assertEqual(self.run_tool("-g", "hosts", "host", "02:00:5e:00:00:0a").code, 10)
        hosts = json.loads(self.run_tool("-g", "hosts", "hosts", "--json").out)["hosts"]
        self.assertEqual([host["number"] for host in hosts], [7, 8, None])
        self.assertRegex(self.run_tool("-g", "hosts", "hosts").out, rb"\n- +-")

    def test_an_infinite_lease_is_told_in_words(self):
        self.run_tool("set", "Device.DHCPv4.Server.Pool.1.LeaseTime=-1")
        self.assertRegex(self.run_tool("lan").out.decode(), r"\nLease time +infinite\n")
        self.assertEqual(json.loads(self.run_tool("lan", "--json").out)["ipv4"]["lease_time_s"], -1)

    def test_a_missing_value_keeps_its_place_in_the_status(self):
        self.assertEqual(self.run_tool("set", "Device.IP.Interface.3.IPv4Address.1.IPAddress=").code, 0)
        self.assertRegex(self.run_tool("status").out.decode(), r"\nWAN +Up  pppoe  -  203\.0\.113\.1  Device\.")

    def test_what_a_model_lacks_is_explained_once_behind_the_hint(self):
        tool.imported("older", ["InternetGatewayDevice.DeviceInfo.Manufacturer=x"], self.folder)
        both = self.run_tool("-g", "older", "lan").err
        self.assertEqual((both.count("request on"), both.count("TR-098")), (2, 1), both)
        for words in ("radio 1", "ssid 1", "clients 1", "acl 1", "set radio 1 Channel=6"):
            result = self.run_tool("-g", "older", "wifi", *words.split())
            self.assertRegex(result.err, r"there is no \w+ 1: the gateway has none; this gateway's model is TR-098", words)
        self.assertIn("InternetGatewayDevice.DeviceInf: no such object (did you mean DeviceInfo?); this gateway",
                      self.run_tool("-g", "older", "get", "InternetGatewayDevice.DeviceInf").err)

    def test_what_a_gateway_does_not_have_is_none_in_the_status(self):
        self.without("Device.DSL")
        self.assertRegex(self.run_tool("status").out.decode(), r"\nDSL +none\n")

    def test_status_of_a_gateway_without_any_page_tells_the_reason(self):
        self.without("Device")
        result = self.run_tool("status")
        self.assertEqual((result.code, result.out.count(b" none\n"), result.err),
                         (0, 8, "caltofal: request on Device.X_ZINTU_CurrentNetwork failed: fault 1 hit Device\n"))

    def test_a_cut_list_of_name_servers_is_told(self):
        servers = "Device.DNS.Client.Server.1.DNSServer = 198.51.100.53,198.51.100.54,198.51.100.55\n"
        with tempfile.NamedTemporaryFile("w", suffix=".tr181") as file:  # no set gets a list in there, a dump may
            file.write(servers)
            file.flush()
            tool.sandbox("import", "home", file.name, folder=self.folder)
        result = self.run_tool("dns")
        self.assertRegex(result.err, r'DNS server "[0-9.,]{15}" is not an address: the record holds 15 characters')

    def test_a_list_longer_than_the_record_is_told_and_shown(self):
        layers = ",".join(f"Device.Ethernet.Interface.{i}." for i in range(1, 9))
        self.assertEqual(self.run_tool("set", "Device.IP.Interface.3", "LowerLayers=" + layers).code, 0)
        result = self.run_tool("lower-layers", "Device.IP.Interface.3")
        self.assertIn("--all shows the whole one", result.err)
        whole = self.run_tool("lower-layers", "Device.IP.Interface.3", "--all")
        self.assertEqual(whole.out.decode(), layers.replace(".,", "\n").rstrip(".") + "\n")
        cut = json.loads(self.run_tool("lower-layers", "Device.IP.Interface.3", "--json").out)["lower_layers"]
        self.assertEqual(cut, layers.replace(".,", ",").split(",")[:len(cut)], "no path is cut")
        self.assertEqual(self.run_tool("set", "Device.IP.Interface.3", "LowerLayers=Device.PPP.Interface.1.,"
                                       "Device.Ethernet.Link.1.,Device.Nope.1.").code, 0)
        self.assertIn("--all walks them all", self.run_tool("lower-layers", "Device.IP.Interface.3", "--walk").err)
        every = self.run_tool("lower-layers", "Device.IP.Interface.3", "--walk", "--all")
        self.assertRegex(every.out.decode(), r"(?s)^Device.PPP.Interface.1\n.*\nDevice.Ethernet.Link.1\n  .*Nope.1\n$")
        self.assertIn("Device.Nope.1: no such object", every.err)

    def test_whose_lower_layers_are_shown_is_told(self):
        first = ": this is what {} has, the first one there"
        port = "Device.Bridging.Bridge.1.Port.1"
        for words, note in (("Device.IP.Interface.3", ""), (port + " --all", ""),
                            ("Device.IP", "Device.IP names no instance" + first.format("Device.IP.Interface.1")),
                            ("Device.Bridging.Bridge.1. --all", "Device.Bridging.Bridge.1 has no lower layers itself" +
                             first.format(port)),
                            ("Device.Hosts", "Device.Hosts names no instance, and nothing below it has lower layers")):
            result = self.run_tool("lower-layers", *words.split())
            self.assertEqual((result.code, result.err), (0, f"caltofal: {note}\n" if note else ""))

    def test_wifi_pages_of_another_maker_show_what_there_is(self):
        self.import_other_maker()
        for words, wanted in OTHER_MAKER.items():
            with self.subTest(words):
                result = self.run_tool("wifi", *words.split(), "-g", "other")
                text = re.sub(" +", " ", result.out.decode()) or result.err.removeprefix("caltofal: ")
                for line in wanted:
                    self.assertIn(line + "\n", text)
                self.assertEqual(result.code, 0 if result.out else 10)
        for spelling in ("true", "1", "TRUE"):  # in the file it is "True"
            shown = self.run_tool("get", "Device.WiFi.Radio", "--where", f"X_OTHER_Boost={spelling}", "Name", "-g", "other")
            self.assertEqual(shown.out, b"Device.WiFi.Radio.3.Name  radio3\n")
        settings = json.loads(self.run_tool("wifi", "ssid", "5", "-g", "other", "--json").out)["settings"]
        self.assertEqual(settings["Device.WiFi.SSID.5"]["X_ZINTU_Active"], None)
        self.assertEqual(self.run_tool("wifi", "set", "ssid", "5", "IsolationEnable=true", "-g", "other").code, 10)

    def import_other_maker(self):
        """SSIDs numbered freely, access points by reference, three radios, none of the objects of the demos' maker."""
        model = {}
        for radio in (1, 2, 3):
            model |= {f"Radio.{radio}.Name": f"radio{radio}", f"Radio.{radio}.Enable": "1",
                      f"Radio.{radio}.Channel": str(radio), f"Radio.{radio}.X_OTHER_Steering.Channel": "9"}
        for point, (ssid, radio) in enumerate(((1, 1), (2, 2), (5, 3), (6, 2)), 1):
            model |= {f"SSID.{ssid}.SSID": f"net{ssid}", f"SSID.{ssid}.Enable": "1",
                      f"SSID.{ssid}.LowerLayers": f"Device.WiFi.Radio.{radio}.",
                      f"AccessPoint.{point}.SSIDReference": f"Device.WiFi.SSID.{ssid}.",
                      f"AccessPoint.{point}.AssociatedDeviceNumberOfEntries": str(point),
                      f"AccessPoint.{point}.Security.ModeEnabled": "WPA2-Personal"}
            model |= {f"AccessPoint.{point}.AssociatedDevice.{device}.MACAddress": "02:00:5E:00:00:01"
                      for device in range(1, point + 1)}
        model |= {"Radio.3.X_OTHER_Boost": "True", "SSID.6.Enable": "0", "SSID.7.SSID": "alone", "AccessPoint.3.MACAddressControlEnabled": True,
                  "AccessPoint.3.AllowedMACAddress": "02:00:5E:00:00:01, 02:00:5E:00:00:02 ,02-00-5E-00-00-03,02005E000004,05"}
        path = os.path.join(self.folder, "other.json")
        with open(path, "w", encoding="ascii") as file:
            json.dump({"Device.WiFi." + name: value for name, value in model.items()}, file)
        self.assertEqual(subprocess.run([tool.sandbox_executable, "import", "other", path], stderr=subprocess.DEVNULL,
                                        env=tool.environment(self.folder), check=False).returncode, 0)


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
