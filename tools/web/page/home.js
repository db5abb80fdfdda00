// SPDX-License-Identifier: MIT
// The home network: its addresses, the hosts in it, the set-top box.
import {connected, el, facts, figure, getStatus, name, note, onOff, pair, part, table} from "./kit.js";

const order = host => (host.IPAddress ?? "").split(".").reduce((sum, byte) => sum * 256 + Number(byte), host.Active ? 0 : 2 ** 33);

export const HOSTS = "objects?path=Device.Hosts.Host&leaf=1";
// The hosts of its answer: those that are here first.
export const hostsOf = answer => Object.entries(answer).map(([path, host]) => ({...host, path})).sort((a, b) => order(a) - order(b));

const ipv4 = lan => facts(["Address", lan.address], ["Subnet mask", lan.subnet_mask], ["MAC address", lan.mac_address],
  ["DHCP server", onOff(lan.dhcp_active)], ["Hands out", lan.dhcp_start && `${lan.dhcp_start} to ${lan.dhcp_end}`],
  ["For", figure(lan.lease_time_s / 3600, "hours")]);

const ipv6 = lan => facts(["State", onOff(lan.active)], ["Address", lan.address && `${lan.address}/${lan.prefix_length_bits}`],
  ["Mode", lan.mode], ["Hands out", lan.dhcp_start && `${lan.dhcp_start} to ${lan.dhcp_end}`],
  ["Name servers", [lan.dns1, lan.dns2].filter(Boolean).join(", ")], ["Domain", lan.domain]);

const COLUMNS = [
  ["Host", host => name(host.HostName)],
  ["State", host => connected(host.Active, "Away")],
  ["Address", "IPAddress"],
  ["MAC address", "PhysAddress"],
  ["By", "InterfaceType"],
  // A time of the year 1 says that there is none.
  ["Since", host => host.ActiveLastChange?.replace(/^0001.*/, "").slice(0, 16).replace("T", " ")]];

function hostTable(answer) {
  const hosts = hostsOf(answer);
  return [note(`${hosts.filter(host => host.Active).length} of ${hosts.length} are connected.`),
    table("Hosts", COLUMNS, hosts, "path", "No host has been seen yet.")];
}

export default {
  load: () => getStatus({hosts: HOSTS}),
  render: ({lan, hosts, iptv}) => [
    part("LAN", lan, value => pair(el("div", el("h3", "IPv4"), value.ipv4 && ipv4(value.ipv4)),
      el("div", el("h3", "IPv6"), value.ipv6 && ipv6(value.ipv6)))),
    part("Hosts", hosts, hostTable, "list of hosts"),
    part("IPTV", iptv, value => note(`${value.set_top_box ? "A" : "No"} LAN port belongs to a set-top box.`), "IPTV bridge"),
  ],
};
