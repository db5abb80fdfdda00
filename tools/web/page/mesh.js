// SPDX-License-Identifier: MIT
// The roaming mesh with its satellites, and the uplink of a repeater.
import {openForm} from "./edit.js";
import {jobButton, progress} from "./jobs.js";
import {button, connected, el, facts, figure, getAll, name, onOff, part, refresh, table} from "./main.js";

const change = mesh => openForm({title: "Mesh", path: "mesh", done: refresh,
  fields: [{name: "enabled", label: "Mesh on", value: mesh.enabled}]});

const SATELLITES = [
  ["Satellite", one => name(one.name)],
  ["State", one => connected(one.active, "Away")],
  ["Address", "ip"],
  ["MAC address", "mac"]];

const satellites = mesh => [progress("Synchronisation"),
  facts(["State", onOff(mesh.enabled)], ["Role", mesh.master ? "master" : "satellite"], ["Satellites", mesh.connected]),
  table("Satellites", SATELLITES, mesh.satellites, "mac",
    mesh.enabled ? "No satellite has joined yet." : "The mesh is off.")];

const uplink = point => facts(["State", connected(point.connected, "Not connected", "bad")],
  ["Interface", el("code", point.interface)], ["To", point.peer], ["Channel", point.channel],
  ["Width", figure(point.bandwidth_mhz, "MHz")]);

export default {
  // There is an end point to ask for where an uplink is on.
  async load() {
    const answers = await getAll({mesh: "mesh", ssids: "wifi/ssids"});
    const on = answers.ssids.value?.ssids.some(ssid => ssid.network === "uplink" && ssid.enabled);
    return {...answers, endpoint: {error: {status: 404}}, ...(on ? await getAll({endpoint: "wifi/endpoint"}) : {})};
  },
  render: ({mesh, endpoint}) => [
    part(["Mesh", mesh.value && button("Change", () => change(mesh.value), "mesh"),
      mesh.value?.enabled && mesh.value.master && jobButton("Synchronise", "Synchronisation",
        "mesh/sync", {}, () => "the satellites have the settings.")],
    mesh, satellites, "mesh"),
    part("Repeater uplink", endpoint, uplink, "active repeater uplink"),
  ],
};
