// SPDX-License-Identifier: MIT
// Wi-Fi: radios, networks, channels with the networks around, stations, WPS.
import {isRadar, networksOf} from "./channels.js";
import {isRunning, jobButton, progress} from "./jobs.js";
import {answered, bandName, bar, button, el, figure, get, getAll, name, note, onOff, part, quiet, refresh, say,
  section, state, table} from "./main.js";
import {drawSpectrum, networkColour} from "./spectrum.js";
import {editRadio, editSsid} from "./wifi_forms.js";

const possible = new Map(); // interface → its channels, which do not change while they are looked at

async function load() {
  const base = await getAll({radios: "wifi/radios", ssids: "wifi/ssids", hosts: "hosts", survey: "wifi/survey?empty=1"});
  const radios = base.radios.value?.radios ?? [], ssids = base.ssids.value?.ssids ?? [];
  const serving = ssids.filter(ssid => ssid.enabled && ssid.active && ssid.network !== "uplink");
  const each = (list, key, path) => getAll(Object.fromEntries(list.map(one => [one[key], path + one[key]])));
  const unknown = radios.filter(radio => !possible.has(radio.interface));
  const [stations, settings, channels] = await Promise.all([each(serving, "interface", "wifi/stations/"),
    each(radios, "radio", "wifi/radios/"), each(unknown, "interface", "wifi/channels/")]);
  for (const [wlan, {value}] of Object.entries(channels)) if (value) possible.set(wlan, value.channels);
  const sides = radios.map(({radio}) => [radio,
    settings[radio].value?.user_interface[`Device.WiFi.Radio.${radio}`]?.ExtensionChannel]);
  return {...base, serving, stations, settings,
    networks: networksOf(radios, ssids, Object.fromEntries(sides), base.survey.value?.networks ?? [])};
}

const channelsOf = radio => possible.get(radio.interface) ?? [];
const channel = ({channel: number, auto_channel: auto}) => [auto && quiet("automatic "),
  isRadar(number) && quiet("DFS "), String(number)];

const radioTable = (radios, settings) => table("Radios", [
  ["Radio", radio => bandName(radio.band)],
  ["State", radio => radio.status === "Up" ? state("On the air", "good")
    : radio.enabled ? state(radio.status, "bad") : onOff(false)],
  ["Channel", channel, "count"],
  ["Width", radio => figure(radio.bandwidth_mhz, "MHz"), "count"],
  ["Standards", "standards"],
  ["Clients", "clients", "count"],
  ["Change", radio => settings[radio.radio].value && button("Change", () =>
    editRadio(radio, settings[radio.radio].value, channelsOf(radio), refresh), `radio ${bandName(radio.band)}`), "act"],
], radios, "radio", "This gateway has no radio.");

function ssidTable(label, ssids, radios) {
  const band = ssid => bandName(radios.find(({radio}) => radio === ssid.radio)?.band);
  return table(label, [
    ["Name", ssid => name(ssid.ssid)],
    ["Radio", band],
    ["For", "network"],
    ["State", ssid => ssid.enabled && !ssid.active ? state("Not on the air", "bad") : onOff(ssid.enabled)],
    ["BSSID", "bssid"],
    ["Change", ssid => ssid.network !== "uplink" && button("Change", () =>
      get(`wifi/ssids/${ssid.number}`).then(settings => editSsid(ssid, settings, refresh), error => say(error.message)),
    `network ${ssid.number}, ${ssid.ssid}`), "act"],
  ], ssids, "number", "None is on.");
}

function networkTables(ssids, radios) {
  const [on, off] = [true, false].map(enabled => ssids.filter(ssid => ssid.enabled === enabled));
  return [ssidTable("Networks that are on", on, radios), off.length > 0 && el("details",
    el("summary", `${off.length} that are off`), ssidTable("Networks that are off", off, radios))];
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
  const title = `Channels in ${band}`, label = `Scan in ${band}`;
  return section([title, jobButton("Scan", label, "wifi/scans", {interface: radio.interface},
    ({networks}) => `${networks.length} networks found.`)],
  progress(label),
  el("div.chart", {"data-own": "", "data-key": radio.band}),
  note(shown.some(network => network.own) ? "Dashed: own networks, at full height as their signal is not measured."
    : "No own network is on the air in this band.", radio.band === "5g" && " DFS channels give way to radar.",
  shown.every(network => network.own) && " Scan to see the networks around."),
  table(title, AROUND, shown, "id", "No network is known here."));
}

function stationTable({serving, stations, hosts}) {
  const failed = Object.values(stations).find(answer => answer.error);
  if (failed) return answered(failed);
  const known = new Map(hosts.value?.hosts.map(host => [host.mac.toUpperCase(), host.name]));
  const all = serving.flatMap(ssid => stations[ssid.interface].value.stations.map(station =>
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
  render: data => data.radios.error?.status === 404 ? answered(data.radios, null, "Wi-Fi") : [
    part("Radios", data.radios, ({radios}) => radioTable(radios, data.settings), "Wi-Fi"),
    part("Networks", data.ssids, ({ssids}) => networkTables(ssids, data.radios.value?.radios ?? []), "Wi-Fi"),
    ...(data.radios.value?.radios ?? []).map(radio => spectrum(radio, data)),
    section("Stations", stationTable(data)),
    section(["WPS", jobButton("Start push-button", "WPS", "wifi/wps", {}, ({wps}) => `${wps}.`)], progress("WPS"),
      note(isRunning("WPS") ? "Now press the WPS button of the device that is to join."
        : "Lets a device join without typing the pass phrase.")),
  ],
  shown(data) {
    for (const radio of data.radios.value?.radios ?? []) {
      const place = document.querySelector(`.chart[data-key="${radio.band}"]`);
      drawSpectrum(place, radio.band, channelsOf(radio).map(one => one.channel), inBand(data, radio))
        .catch(error => place.replaceChildren(error.message));
    }
  },
};
