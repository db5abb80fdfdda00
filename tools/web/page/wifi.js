// SPDX-License-Identifier: MIT
// Wi-Fi: radios, networks, channels with the networks around, stations, WPS.
import {isRadar, networksOf} from "./channels.js";
import {jobButton} from "./jobs.js";
import {answered, bandName, bar, button, el, figure, getAll, getOnce, link, name, note, notesOf, onOff, part, quiet,
  section, state, table} from "./main.js";
import {drawSpectrum, networkColour} from "./spectrum.js";
import {editRadio, editSsid} from "./wifi_forms.js";

async function load() {
  const base = await getAll({radios: "wifi/radios", ssids: "wifi/ssids", hosts: "hosts", survey: "wifi/survey?empty=1"});
  const {radios = []} = base.radios, {ssids = []} = base.ssids;
  const serving = ssids.filter(ssid => ssid.enabled && ssid.active && ssid.network !== "uplink");
  const each = (list, key, path, read) =>
    getAll(Object.fromEntries(list.map(one => [one[key], path + one[key]])), read);
  const [stations, settings, possible] = await Promise.all([each(serving, "interface", "wifi/stations/"),
    each(radios, "radio", "wifi/radios/"), each(radios, "interface", "wifi/channels/", getOnce)]);
  const sideOf = ({radio}) => settings[radio].user_interface?.[`Device.WiFi.Radio.${radio}`]?.ExtensionChannel;
  return {...base, serving, stations, possible,
    networks: networksOf(radios, ssids, sideOf, base.survey.networks ?? [])};
}

const channelsOf = (radio, {possible}) => possible[radio.interface].channels ?? [];
const channel = ({channel: number, auto_channel: auto}) => [auto && quiet("automatic "),
  isRadar(number) && quiet("DFS "), String(number)];

const radioTable = (radios, data) => table("Radios", [
  ["Radio", radio => bandName(radio.band)],
  ["State", radio => radio.status === "Up" ? state("On the air", "good")
    : radio.enabled ? state(radio.status, "bad") : onOff(false)],
  ["Channel", channel, "count"],
  ["Width", radio => figure(radio.bandwidth_mhz, "MHz"), "count"],
  ["Standards", "standards"],
  ["Clients", "clients", "count"],
  ["Change", radio =>
    button("Change", () => editRadio(radio, channelsOf(radio, data)), `radio ${bandName(radio.band)}`), "act"],
], radios, "radio", "This gateway has no radio.");

function ssidTable(label, ssids, radios) {
  return table(label, [
    ["Name", ssid => name(ssid.ssid)],
    ["Radio", ssid => bandName(radios.find(({radio}) => radio === ssid.radio)?.band)],
    ["For", "network"],
    ["State", ssid => ssid.enabled && ssid.active === false ? state("Not on the air", "bad") : onOff(ssid.enabled)],
    ["BSSID", "bssid"],
    ["Change", ssid => ssid.network !== "uplink" &&
      button("Change", () => editSsid(ssid), `network ${ssid.number}, ${ssid.ssid}`), "act"],
  ], ssids, "number", "None is on.");
}

function networkTables(ssids, radios) {
  const [on, off] = [true, false].map(enabled => ssids.filter(ssid => ssid.enabled === enabled));
  return [ssidTable("Networks that are on", on, radios), off.length > 0 && el("details",
    el("summary", `Switched off: ${off.length}`), ssidTable("Networks that are off", off, radios))];
}

function swatch(network) {
  const mark = el("span.swatch");
  mark.style.background = networkColour(network);
  return [mark, network.names.map((one, index) => [index > 0 && ", ", name(one.ssid)])];
}

const taken = ({channels, sure}) => [
  channels.length > 2 ? `${channels[0]} to ${channels.at(-1)}` : channels.join("\xa0+\xa0"), !sure && quiet(" perhaps")];

const AROUND = [
  ["Network", swatch],
  ["Signal", network => network.own ? el("span.own", "own") : figure(network.rssi_dbm, "dBm"), "count"],
  ["Channel", channel, "count"],
  ["Takes", network => taken(network.span)],
  ["Width", network => figure(network.bandwidth_mhz, "MHz"), "count"],
  ["Security", network => network.security === "NONE" ? "open" : network.security]];

const inBand = (data, radio) => data.networks.filter(network => network.span.band === radio.band);

function spectrum(radio, data) {
  const band = bandName(radio.band), shown = inBand(data, radio);
  const title = `Channels in ${band}`;
  return section([title, jobButton("Scan", `in ${band}`, "wifi/scans", {interface: radio.interface},
    ({networks}) => `networks found: ${networks.length}.`)],
  el("div.chart", {"data-own": "", "data-key": radio.band}),
  note(shown.some(network => network.own) ? "Dashed: own networks, at full height as their signal is not measured."
    : "No own network is on the air in this band.", radio.band === "5g" && " DFS channels give way to radar.",
  shown.every(network => network.own) ? !link.readOnly && " Scan to see the networks around."
    : notesOf(data.survey).map(text => ` Note: ${text}.`)),
  table(title, AROUND, shown, "id", "No network is known here."));
}

function stationTable({serving, stations, hosts}) {
  const failed = Object.values(stations).find(answer => answer instanceof Error);
  if (failed) return answered(failed);
  const known = new Map(hosts.hosts?.map(host => [host.mac.toUpperCase(), host.name]));
  const all = serving.flatMap(ssid => stations[ssid.interface].stations.map(station =>
    ({...station, ssid, host: known.get(station.mac.toUpperCase())}))).sort((a, b) => b.rssi_dbm - a.rssi_dbm);
  return table("Stations", [
    ["Station", ({host}) => name(host, "unknown")],
    ["MAC address", "mac"],
    ["Network", ({ssid}) => [name(ssid.ssid), quiet(" ", ssid.interface)]],
    // -90 dBm and less is no signal, -40 and more is a full one.
    ["Signal", ({rssi_dbm: dbm}) => el("span.signal", bar("Signal", dbm + 90, 50, dbm < -75), " ", figure(dbm, "dBm"))],
  ], all, station => station.ssid.interface + station.mac, "No station is connected.");
}

export default {
  load,
  render: data => data.radios.status === 404 ? answered(data.radios, null, "Wi-Fi") : [
    part("Radios", data.radios, ({radios}) => radioTable(radios, data), "Wi-Fi"),
    part("Networks", data.ssids, ({ssids}) => networkTables(ssids, data.radios.radios ?? []), "Wi-Fi"),
    (data.radios.radios ?? []).map(radio => spectrum(radio, data)),
    section("Stations", stationTable(data)),
    !link.readOnly && section(["WPS", jobButton("Start", "WPS", "wifi/wps", {}, ({wps}) => `${wps}.`)],
      note("Start it, then press the WPS button of the device that is to join. No pass phrase is typed.")),
  ],
  shown(data) {
    for (const radio of data.radios.radios ?? []) {
      const place = document.querySelector(`.chart[data-key="${radio.band}"]`);
      drawSpectrum(place, radio.band, channelsOf(radio, data).map(one => one.channel), inBand(data, radio))
        .catch(() => place.replaceChildren("The chart cannot be loaded."));
    }
  },
};
