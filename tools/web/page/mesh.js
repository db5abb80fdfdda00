// SPDX-License-Identifier: MIT
// The roaming mesh with its satellites, and the uplink of a repeater.
import {openForm} from "./edit.js";
import {jobButton} from "./jobs.js";
import {button, connected, deviceColumns, el, facts, failure, figure, getAll, link, onOff, part, table} from "./main.js";

const change = () => openForm({title: "Mesh", path: "mesh",
  fieldsOf: mesh => [{name: "enabled", label: "Switched on", value: mesh.enabled,
    write: enabled => ({enabled: enabled === "true"})}]});

const satellites = mesh => [
  facts(["State", onOff(mesh.enabled)], ["Role", mesh.master ? "master" : "satellite"], ["Satellites", mesh.connected]),
  table("Satellites", deviceColumns("Satellite", "ip"), mesh.satellites, "mac",
    mesh.enabled ? "No satellite has joined yet." : "The mesh is off.")];

const uplink = point => facts(["State", connected(point.connected, "Not connected", "bad")],
  ["Interface", el("code", point.interface)], ["To", point.peer], ["Channel", point.channel],
  ["Width", figure(point.bandwidth_mhz, "MHz")]);

export default {
  // There is an end point to ask for where an uplink is on.
  async load() {
    const answers = await getAll({mesh: "mesh", ssids: "wifi/ssids"});
    const on = answers.ssids.ssids?.some(ssid => ssid.network === "uplink" && ssid.enabled);
    return {...answers, endpoint: failure(404), ...on && await getAll({endpoint: "wifi/endpoint"})};
  },
  render: ({mesh, endpoint}) => [
    part(["Mesh", "enabled" in mesh && !link.readOnly && button("Change", change, "mesh"), mesh.enabled && mesh.master
      && jobButton("Synchronise", "the mesh", "mesh/sync", {}, () => "the satellites have the settings.")],
    mesh, satellites, "mesh"),
    part("Repeater uplink", endpoint, uplink, "active repeater uplink"),
  ],
};
