// SPDX-License-Identifier: MIT
// The way to the Internet: WAN, name servers, IPv6, the line with its rates and margins, two WANs.
import {bar, connected, el, facts, figure, getStatus, note, onOff, pair, part, quiet, rate} from "./main.js";

const WORDS = {pppoe: "PPPoE", pppoa: "PPPoA", dynamic: "DHCP", static: "fixed addresses", dhcpv6: "DHCPv6",
  slaac: "SLAAC", vdsl: "VDSL", adsl: "ADSL", ethernet: "Ethernet", wifi: "Wi-Fi",
  ondemand: "on demand", manual: "by hand", tethered: "tethered phone", other: "DSL", loadbalancing: "load balancing"};
const word = value => WORDS[value] ?? value;
const code = text => text && el("code", text);

const wanFacts = wan => pair(
  facts(["State", connected(wan.status === "Up", wan.status || "Unknown", "bad")], ["Connection", wan.description],
    ["Type", word(wan.type)], ["Link", word(wan.link_type)], ["Address", wan.ip_address],
    ["Subnet mask", wan.subnet_mask], ["Gateway", wan.gateway], ["VLAN", wan.vlan?.enabled ? wan.vlan.id : "none"],
    ["Interface", code(wan.interface)]),
  wan.ppp && facts(["User name", wan.ppp.username], ["Connects", word(wan.ppp.connection_trigger)],
    ["Concentrator", wan.ppp.ac_name], ["Service", wan.ppp.service_name]));

const dnsFacts = dns => facts(["Set", dns.automatic ? "by the provider" : "by hand"], ["First", dns.dns1],
  ["Second", dns.dns2 === "0.0.0.0" ? null : dns.dns2]);

const ipv6Facts = ipv6 => facts(["State", onOff(ipv6.enabled)], ["Type", word(ipv6.type)], ["Address", ipv6.address],
  ["Next hop", ipv6.next_hop], ["Prefix delegation", onOff(ipv6.prefix_delegation)]);

// 12 dB above what the rate needs are as good as more; below 6 dB a line begins to drop out.
const FULL_DB = 12, SMALL_DB = 6;

function direction(title, values) {
  const {rate_kbit_s: now, max_rate_kbit_s: most, noise_margin_db: margin, attenuation_db: attenuation} = values;
  const small = margin < SMALL_DB;
  return el("div", el("h3", title), facts(
    ["Rate", [rate(now), bar(`${title} rate`, now, most)]],
    ["Attainable", rate(most)],
    ["Noise margin", [figure(margin, "dB", 1), small && quiet(" small"),
      bar(`${title} noise margin`, margin, FULL_DB, small)]],
    ["Attenuation", attenuation.length > 0 && attenuation.map(one => [figure(one, "dB", 1), " "])]));
}

const line = dsl => dsl.status !== "connected" ? [el("p", connected(false, "No signal")),
  note("Nothing is plugged into the DSL socket, or the exchange does not answer.")]
  : [facts(["State", connected(true)], ["Profile", dsl.profile], ["Modes", dsl.modes.join(", ")],
    ["CRC errors", [figure(dsl.crc_errors.modem, "seen here"), ", ",
      figure(dsl.crc_errors.exchange, "at the exchange")]]),
  pair(direction("Downstream", dsl.downstream), direction("Upstream", dsl.upstream))];

const oneWan = ({interface: name, kind}) => name && [code(name), ` ${word(kind)}`];

export default {
  load: () => getStatus({dns: "dns"}),
  render: ({wan, dns, ipv6, dsl, atm, multiwan}) => [
    part("WAN", wan, wanFacts),
    pair(part("Name servers", dns, dnsFacts), part("IPv6", ipv6, ipv6Facts)),
    part("DSL line", dsl, line, "DSL line"),
    pair(
      part("ATM link", atm, ({vpi, vci, qos_class: quality}) => facts(["VPI / VCI", `${vpi} / ${vci}`],
        ["Service class", quality], ["In use", wan.link_type === "adsl" ? "yes" : "no"]), "ATM link"),
      part("Multi-WAN", multiwan, both => facts(["Two WANs", onOff(both.enabled)], ["Sharing", word(both.sharing)],
        ["First", oneWan(both.wan1)], ["Second", oneWan(both.wan2)]), "second WAN")),
  ],
};
