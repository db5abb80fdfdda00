// SPDX-License-Identifier: MIT
// What was written from this browser tab, kept for as long as it is open, without the secrets.
import {button, el, note, section, table, visible} from "./kit.js";
import {redraw} from "./main.js";

const KEPT = "written", MOST = 200;
let entries = JSON.parse(sessionStorage.getItem(KEPT) ?? "[]");

export const isSecret = parameter => /pass(word|phrase)|secret|wepkey|presharedkey/i.test(parameter);

const worded = (parameter, value) => isSecret(parameter) ? "(secret)" : value === "" ? "(empty)"
  : value === undefined ? null : String(value);

// Rows of {path, from, to} of an answer to a change, whether it tells changes or, of any objects, what was set;
// `before(parameter)` is what an answer of the second kind does not tell.
export function changesOf(answer, before) {
  const changes = answer?.changes ?? (answer?.set ?? []).flatMap(({object, parameters}) =>
    Object.entries(parameters).map(([parameter, to]) => ({object, parameter, to, from: before?.(parameter)})));
  return changes.map(({object, parameter, from, to}) => ({path: `${object.replace(/\.$/, "")}.${parameter}`,
    from: worded(parameter, from), to: worded(parameter, to)}));
}

const COLUMNS = [["Parameter", row => el("code", visible(row.path))], ["From", row => row.from], ["To", row => row.to]];
export const changeTable = rows => table("Changes", COLUMNS, rows, null, "Nothing: these are the values in force.");

function keep(rows) {
  entries = rows.slice(0, MOST);
  sessionStorage.setItem(KEPT, JSON.stringify(entries));
}

export function noteWritten(rows) {
  const time = new Date().toLocaleTimeString();
  keep([...rows.map(row => ({time, ...row})), ...entries]);
}

function forget() {
  keep([]);
  redraw();
}

export default {
  load: async () => ({}),
  render: () => section("Changes", entries.length ? button("Empty the list", forget) : null,
    note("What was written from this tab, the latest first, without pass phrases and passwords."),
    table("Changes", [...COLUMNS, ["Time", row => row.time]], entries, null, "Nothing has been written yet.")),
};
