// SPDX-License-Identifier: MIT
// Forms in a dialog: what a change would write is shown before it is saved, a refusal stands beside its field.
import {ApiError, button, el, morph, say, send, visible} from "./main.js";
import {changesOf, changeTable, noteWritten} from "./written.js";

const PREVIEW_DELAY_MS = 300;
const HIDDEN = "(hidden)"; // what stands in place of a secret

// {name, label, value, options, hint, reveal(), write(value)}: options are values or [value, label]; reveal() reads a
// secret; write() says what to ask for, by default {name: value}.
class Field {
  constructor(spec, index) {
    this.spec = {write: value => ({[spec.name]: value}), ...spec};
    this.id = `field-${index}`;
    this.input = this.control();
    this.note = el("p.note", {id: `${this.id}-note`}, spec.hint);
    this.first = this.value;
  }

  control() {
    const {value, options, name} = this.spec, common = {id: this.id, name, "aria-describedby": `${this.id}-note`};
    if (options) {
      const pairs = options.map(option => [option].flat());
      if (!pairs.some(([one]) => one === value)) pairs.unshift([value, value]);
      return el("select", common, pairs.map(([one, label = one]) =>
        el("option", {value: one, selected: one === value}, label)));
    }
    if (typeof value === "boolean") return el("input", {...common, type: "checkbox", checked: value});
    const hidden = value === HIDDEN;
    return el("input", {...common, type: hidden ? "password" : "text", value: hidden ? "" : value,
      autocomplete: "new-password", spellcheck: "false"});
  }

  get value() { return this.input.type === "checkbox" ? this.input.checked : this.input.value; }
  get changed() { return this.value !== this.first; }
  get asked() { return this.spec.write(this.value); }

  concerns({message}) {
    return Object.keys(this.asked).some(name => new RegExp(`(^|[ ."])${name}(?![.\\w])`).test(message));
  }

  say(refusal) {
    this.input.setAttribute("aria-invalid", !!refusal);
    this.note.className = refusal ? "note refused" : "note";
    this.note.textContent = refusal || this.spec.hint || "";
  }

  async reveal(shower) {
    this.first = await this.spec.reveal();
    this.input.value ||= this.first;
    this.input.type = "text";
    shower.remove();
    this.input.focus();
  }

  element() {
    const label = el("label", {for: this.id}, this.spec.label);
    if (this.input.type === "checkbox") return el("div.field.check", this.input, label, this.note);
    const show = ({target}) => this.reveal(target).catch(error => this.say(error.message));
    const shower = this.spec.reveal && button("Show", show, this.spec.label);
    return el("div.field", label, el("div.entry", this.input, shower), this.note);
  }
}

// `path` takes the change, whose body is what the fields ask for unless body() makes something else of it.
export function openForm({title, path, fields: specs, body = asked => asked, done}) {
  const fields = specs.map((spec, index) => new Field(spec, index));
  const preview = el("div", {role: "status"}), refusal = el("p.refused", {role: "alert"});
  const save = el("button.main", {type: "submit"}, "Save");
  let timer, turn = 0;

  const ask = async query => changesOf(await send("PATCH", path + query,
    body(Object.assign({}, ...fields.filter(field => field.changed).map(field => field.asked)))));

  // The refused field, undefined where the words name none.
  function refuse(error) {
    if (!(error instanceof ApiError)) throw error;
    const field = [...fields.filter(one => one.changed), ...fields].find(one => one.concerns(error));
    (field ?? {say: text => { refusal.textContent = text; }}).say(visible(error.message));
    return field;
  }

  async function foresee() {
    const mine = ++turn;
    refusal.textContent = "";
    fields.forEach(field => field.say(""));
    let rows = [];
    try {
      if (fields.some(field => field.changed)) rows = await ask("?dry_run=1");
    } catch (error) {
      if (mine === turn) refuse(error);
    }
    if (mine !== turn) return;
    morph(preview, [changeTable(rows)]);
    save.disabled = !rows.length;
  }

  async function submit(event) {
    event.preventDefault();
    if (save.disabled) return;
    clearTimeout(timer);
    turn++;
    save.disabled = true;
    try {
      noteWritten(await ask(""));
      dialog.close();
      say(`${title}: saved.`);
      done();
    } catch (error) {
      refuse(error)?.input.focus();
      save.disabled = false;
    }
  }

  const dialog = el("dialog", {"aria-labelledby": "form-title"}, el("h2", {id: "form-title"}, visible(title)),
    el("form", {novalidate: true, onsubmit: submit, oninput: () => {
      clearTimeout(timer);
      save.disabled = true;
      timer = setTimeout(foresee, PREVIEW_DELAY_MS);
    }}, fields.map(field => field.element()), el("h3", "What will change"), preview, refusal,
    el("div.actions", save, button("Cancel", () => dialog.close()))));
  dialog.onclose = () => {
    clearTimeout(timer);
    dialog.remove();
  };
  document.body.append(dialog);
  dialog.showModal();
  foresee();
}
