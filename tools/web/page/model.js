// SPDX-License-Identifier: MIT
// The whole data model: found by words, read, changed.
import {openForm} from "./edit.js";
import {button, el, getAll, note, part, redraw, table} from "./main.js";
import {valueOf} from "./written.js";

const MOST = 200; // rows at once
let words = "", kept, rows;

// The parameters of an answer, made once for each.
function parametersOf(answer) {
  if (answer === kept) return rows;
  kept = answer;
  rows = Object.entries(answer).flatMap(([object, parameters]) => Object.entries(parameters)
    .filter(([parameter]) => !parameter.endsWith("_hex"))
    .map(([parameter, value]) => ({object, parameter, value,
      path: `${object}.${parameter}`, text: `${object}.${parameter} ${value}`.toLowerCase()})));
  return rows;
}

function search(text) {
  words = text;
  const input = document.getElementById("search");
  input.value = text;
  input.focus();
  redraw();
}

const change = ({object, parameter, path}) => openForm({title: path, path: `objects?path=${encodeURIComponent(path)}`,
  fieldsOf: answer => [{name: parameter, label: parameter, value: answer[object][parameter],
    write: value => ({[object]: {[parameter]: value}})}]});

const COLUMNS = [
  ["Parameter", row => el("code", row.path)],
  ["Value", row => valueOf(row.value)],
  ["Change", row => button("Change", () => change(row), row.path), "act"]];

function results(all) {
  const wanted = words.toLowerCase().split(/\s+/).filter(Boolean);
  if (!wanted.length) {
    const tops = new Set(all.map(({path}) => path.split(".", 2).join(".")));
    return [note(`${all.length} parameters. Search, or begin with an object:`),
      el("p.actions", [...tops].sort().map(path => button(path, () => search(`${path}.`))))];
  }
  const hits = all.filter(row => wanted.every(word => row.text.includes(word)));
  return [el("p.quiet", {role: "status"}, `${hits.length} of ${all.length} parameters`,
    hits.length > MOST ? `; the first ${MOST} are shown: add a word.` : "."),
  table("Parameters", COLUMNS, hits.slice(0, MOST), "path", "None has all these words in its path or value.")];
}

export default {
  load: () => getAll({all: "objects?path=Device."}),
  render: ({all}) => [
    el("div.field", el("label", {for: "search"}, "Words of a path or a value"), el("input", {id: "search",
      type: "search", autocomplete: "off", spellcheck: "false", value: words,
      oninput: event => search(event.target.value)})),
    part("Parameters", all, value => results(parametersOf(value))),
  ],
};
