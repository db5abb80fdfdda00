// SPDX-License-Identifier: MIT
// What was written from this browser tab, kept for as long as it is open.
import {el, note, table, visible} from "./main.js";

const KEPT = "written", MOST = 200;
let entries = JSON.parse(sessionStorage.getItem(KEPT) ?? "[]");

// Rows of {path, from, to} of the answer to a change, which hides secrets.
export const changesOf = ({changes}) => changes.map(({object, parameter, from, to}) =>
  ({path: `${object}.${parameter}`, from: from === "" ? "(empty)" : from, to: to === "" ? "(empty)" : to}));

const COLUMNS = [["Parameter", row => el("code", visible(row.path))], ["From", "from"], ["To", "to"]];
export const changeTable = rows => table("Changes", COLUMNS, rows, null, "Nothing.");

export function noteWritten(rows) {
  const time = new Date().toLocaleTimeString();
  entries = [...rows.map(row => ({time, ...row})), ...entries].slice(0, MOST);
  sessionStorage.setItem(KEPT, JSON.stringify(entries));
}

export default {
  load: async () => ({}),
  render: () => [note("What was written from this tab, the latest first, without pass phrases and passwords."),
    table("Written", [...COLUMNS, ["Time", "time"]], entries, null, "Nothing has been written yet.")],
};
