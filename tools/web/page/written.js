// SPDX-License-Identifier: MIT
// What was written from this browser tab, kept for as long as it is open.
import {el, name, note, table} from "./main.js";

const KEPT = "written", MOST = 200;
let entries = JSON.parse(sessionStorage.getItem(KEPT) ?? "[]");

// A parameter's value as it stands in a table.
export const valueOf = value => name(String(value ?? ""), "(empty)");

const COLUMNS = [["Parameter", row => el("code", `${row.object}.${row.parameter}`)], ["From", row => valueOf(row.from)],
  ["To", row => valueOf(row.to)]];
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
