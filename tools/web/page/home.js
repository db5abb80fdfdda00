// SPDX-License-Identifier: MIT
// The home network: its addresses, the hosts in it, the set-top box.
import {deviceColumns, el, facts, figure, getStatus, note, onOff, pair, part, table} from "./main.js";

const pool = lan => ["Hands out", lan.dhcp_start && `${lan.dhcp_start} to ${lan.dhcp_end}`];

const ipv4 = lan => facts(["Address", lan.address], ["Subnet mask", lan.subnet_mask], ["MAC address", lan.mac_address],
  ["DHCP server", onOff(lan.dhcp_active)], pool(lan), ["Lease", figure(lan.lease_time_s / 3600, "hours")]);

const ipv6 = lan => facts(["State", onOff(lan.active)],
  ["Address", lan.address && `${lan.address}/${lan.prefix_length_bits}`], ["Mode", lan.mode], pool(lan),
  ["Name servers", [lan.dns1, lan.dns2].filter(Boolean).join(", ")], ["Domain", lan.domain]);

const hostTable = ({hosts}) => [note(`Connected: ${hosts.filter(host => host.active).length} of ${hosts.length}.`),
  table("Hosts", [...deviceColumns("Host", "address"), ["Link", "type"]],
    [...hosts].sort((a, b) => b.active - a.active), "number", "No host has been seen yet.")];

export default {
  load: () => getStatus({hosts: "hosts"}),
  render: ({lan, hosts, iptv}) => [
    part("LAN", lan, value => pair(el("div", el("h3", "IPv4"), value.ipv4 && ipv4(value.ipv4)),
      el("div", el("h3", "IPv6"), value.ipv6 && ipv6(value.ipv6)))),
    part("Hosts", hosts, hostTable, "list of hosts"),
    part("IPTV", iptv, value =>
      note(`${value.set_top_box ? "A" : "No"} LAN port belongs to a set-top box.`), "IPTV bridge"),
  ],
};
