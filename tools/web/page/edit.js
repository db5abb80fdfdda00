// SPDX-License-Identifier: MIT
// Forms in a dialog: what a change would write is shown before it is saved, a refusal stands beside its field.
import {button, el, get, morph, refresh, say, send, visible} from "./main.js";
import {changeTable, noteWritten} from "./written.js";

const PREVIEW_DELAY_MS = 300;
const HIDDEN = "(hidden)"; // what stands in place of a secret

// {name, label, value, options, hint, bytes, or, reveal(), write(value)}: options are values or [value, label]; a text
// has bytes[0] to bytes[1] bytes or matches `or`; reveal() reads a secret; write() says what to ask for, by default
// {name: value}.
class Field {
  constructor(spec, index) {
    this.id = `field-${index}`;
    this.spec = spec;
    this.input = this.control(spec);
    this.hint = spec.hint ?? "";
    this.note = el("p.note", {id: `${this.id}-note`});
    this.first = this.value;
    this.take(spec.value);
  }

  control({name, value, options = typeof value === "boolean" && [["true", "yes"], ["false", "no"]]}) {
    const common = {id: this.id, name, "aria-describedby": `${this.id}-note`};
    if (options) {
      return el("select", {...common, onchange() { this.form.oninput(); }}, options.map(option => {
        const [one, label = one] = [option].flat();
        return el("option", {value: one}, label);
      }));
    }
    const [type, autocomplete] = value === HIDDEN ? ["password", "new-password"] : ["text", "off"];
    return el("input", {...common, type, autocomplete, spellcheck: "false"});
  }

  get value() { return this.input.value; }
  get changed() { return this.value !== this.first && !(this.spec.reveal && !this.value); }
  get asked() { return this.spec.write?.(this.value) ?? {[this.spec.name]: this.value}; }

  // What is wrong with the length of the text, if anything is.
  get misfit() {
    const {bytes: [least, most] = [0, Infinity], or, hint} = this.spec;
    const bytes = new TextEncoder().encode(this.value).length, off = Math.max(least - bytes, bytes - most);
    return this.changed && off > 0 && !or?.test(this.value)
      ? `Too ${bytes < least ? "short" : "long"} by ${off}: ${hint}` : "";
  }

  // Takes over what the gateway has, shown where nothing else was filled in. Returns it in words.
  take(value) {
    const {input} = this, filledIn = this.changed;
    this.first = value === HIDDEN ? "" : String(value);
    const find = () => [...input.options ?? []].find(option => option.value === this.first);
    if (input.options && !find()) input.prepend(new Option(this.first));
    if (!filledIn) input.value = this.first;
    return find()?.text ?? this.first;
  }

  // The same field of a later answer.
  renew(spec) {
    const before = this.spec.value;
    this.spec = spec;
    if (spec.value === before) return;
    this.hint = `Changed meanwhile on the gateway, now: ${this.take(spec.value) || "(empty)"}`;
  }

  say(refusal) {
    this.input.ariaInvalid = !!refusal;
    this.note.classList.toggle("refused", !!refusal);
    this.note.textContent = visible(refusal || this.hint);
  }

  async reveal(shower) {
    this.first = await this.spec.reveal();
    this.input.value ||= this.first;
    this.input.type = "text";
    shower.remove();
    this.input.focus();
  }

  element() {
    const show = ({target}) => this.reveal(target).catch(error => this.say(error.message));
    return el("div.field", el("label", {for: this.id}, this.spec.label),
      el("div.entry", this.input, this.spec.reveal && button("Show", show, this.spec.label)), this.note);
  }
}

// fieldsOf() makes the fields of what `path` answers, which takes the change: what the fields ask for.
export async function openForm({title, path, fieldsOf}) {
  let known = await get(path).catch(error => say(error.message)), timer, turn = 0;
  if (!known || document.querySelector("dialog")) return;
  const fields = fieldsOf(known).map((spec, index) => new Field(spec, index));
  const dryRun = `${path.includes("?") ? "&" : "?"}dry_run=1`;
  const preview = el("div", {role: "status"}), refusal = el("p.refused", {role: "alert"});
  const save = el("button.main", {type: "submit"}, "Save");
  const allow = may => { save.ariaDisabled = !may; }; // really disabled, it would lose the focus

  // Only for what is known: a change that the gateway made meanwhile is refused with 412.
  const ask = async query => (await send("PATCH", path + query,
    Object.assign({}, ...fields.filter(field => field.changed).map(field => field.asked)), known)).changes;

  // Beside the refused field where the words name one; what is to get the focus.
  function refuse({message}) {
    const field = fields.find(({spec: {name}}) => new RegExp(`(^|[ ."])${name}(?![.\\w])`).test(message));
    if (!field) refusal.textContent = visible(message);
    field?.say(message);
    return field?.input ?? save;
  }

  async function foresee(words = "") {
    const mine = ++turn;
    let rows = [];
    refusal.textContent = words;
    try {
      const now = await get(path);
      if (mine !== turn) return;
      if (now !== known) fieldsOf(now).forEach(spec => fields.find(one => one.spec.name === spec.name)?.renew(spec));
      known = now;
      fields.forEach(field => field.say(field.misfit));
      if (fields.some(field => field.changed) && !fields.some(field => field.misfit)) rows = await ask(dryRun);
    } catch (error) {
      if (mine === turn) refuse(error);
    }
    if (mine !== turn) return;
    morph(preview, [changeTable(rows)]);
    allow(rows.length);
  }

  function foreseeSoon() {
    clearTimeout(timer);
    turn++;
    allow(false);
    timer = setTimeout(foresee, PREVIEW_DELAY_MS);
  }

  async function watch() {
    if (await get(path).catch(() => known) !== known) foreseeSoon();
  }

  async function submit(event) {
    event.preventDefault();
    if (save.ariaDisabled === "true") return;
    turn++;
    allow(false);
    try {
      noteWritten(await ask(""));
      dialog.close();
      say(`${title}: saved.`);
      refresh();
    } catch (error) {
      if (error.status === 412) return foresee("Not saved: the gateway has changed meanwhile. See what will change.");
      refuse(error).focus();
      allow(true);
    }
  }

  const dialog = el("dialog", {"aria-labelledby": "form-title"}, el("h2", {id: "form-title"}, title),
    el("form", {novalidate: true, onsubmit: submit, oninput: foreseeSoon}, fields.map(field => field.element()),
      el("h3", "What will change"), preview, refusal,
      el("div.actions", save, button("Cancel", () => dialog.close()))));
  addEventListener("refreshed", watch);
  dialog.onclose = () => {
    removeEventListener("refreshed", watch);
    clearTimeout(timer);
    dialog.remove();
  };
  document.body.append(dialog);
  dialog.showModal();
  foresee();
}
