// SPDX-License-Identifier: MIT
// The forms of a radio and of a network. Values are in the user interface's words.
import {isRadar} from "./channels.js";
import {openForm} from "./edit.js";
import {bandName, get} from "./main.js";

const STANDARDS = {"2.4g": ["b", "g", "n", "b+g", "g+n", "b+g+n"], "5g": ["a", "n", "ac", "a+n", "n+ac", "a+n+ac"]};

// The fields of those parameters that the gateway has: others are null.
const fieldsFrom = fields => ({settings, user_interface: words}) => {
  const values = Object.assign({}, ...Object.entries(settings).map(([object, values]) =>
    ({...values, ...words[object]})));
  return fields.filter(field => values[field.name] != null).map(field =>
    ({...field, value: values[field.name], ...field.from?.(values)}));
};

// One choice for two parameters: the number, and whether the radio chooses it.
const channelChoice = channels => ({Channel: now, AutoChannelEnable: auto}) => ({
  value: auto ? "auto" : String(now),
  options: [["auto", auto ? `automatic (now ${now})` : "automatic"],
    ...channels.map(({channel}) => [String(channel), `${channel}${isRadar(channel) ? " (DFS)" : ""}`])],
  write: chosen => chosen === "auto" ? {AutoChannelEnable: "true"}
    : {...auto && {AutoChannelEnable: "false"}, Channel: chosen}});

export function editRadio({radio, band}, channels) {
  const widths = [...new Set(channels.flatMap(one => one.bandwidths_mhz))].sort((a, b) => a - b);
  openForm({title: `Radio ${bandName(band)}`, path: `wifi/radios/${radio}`, fieldsOf: fieldsFrom([
    {name: "Enable", label: "Switched on"},
    {name: "Channel", label: "Channel", from: channelChoice(channels),
      hint: band === "5g" ? "On a DFS channel the radio first listens for radar." : ""},
    {name: "OperatingChannelBandwidth", label: "Width",
      options: [["auto", "automatic"], ...widths.map(mhz => [String(mhz), `${mhz} MHz`])]},
    {name: "ExtensionChannel", label: "Secondary channel",
      options: [["upper", "above"], ["lower", "below"], ["auto", "automatic"]]},
    {name: "OperatingStandards", label: "Standards", options: STANDARDS[band].map(letters => `802.11${letters}`)},
    {name: "TransmitPower", label: "Transmit power", options: ["high", "medium", "low"]}])});
}

export function editSsid({number, ssid}) {
  const reveal = async () => (await get(`secrets/wifi/ssids/${number}`)).KeyPassphrase;
  openForm({title: `Network ${ssid}`, path: `wifi/ssids/${number}`, fieldsOf: fieldsFrom([
    {name: "Enable", label: "Switched on"},
    {name: "SSID", label: "Name (SSID)", bytes: [1, 32], hint: "1 to 32 bytes."},
    {name: "SSIDAdvertisementEnabled", label: "Announce the name"},
    {name: "ModeEnabled", label: "Security", options: [["NONE", "none: open to all"], "WEP", "WPA-PSK", "WPA2/WPA-PSK",
      "WPA2-PSK", "WPA2/WPA-Enterprise", "WPA2-Enterprise"]},
    {name: "KeyPassphrase", label: "Pass phrase", reveal, bytes: [8, 63], or: /^[\da-f]{64}$/i,
      hint: "8 to 63 characters. Left empty, it stays as it is."},
    {name: "IsolationEnable", label: "Keep stations apart"}])});
}
