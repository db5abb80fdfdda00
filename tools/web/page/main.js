// SPDX-License-Identifier: MIT
// Asking the gateway; what views are made of; the overview; the way between the views, which are loaded when they are
// first shown. One file, as the first view is to need few.

// What went wrong with a request, with its HTTP status or 0.
export const failure = (status, message) => Object.assign(new Error(message), {status});

// How the server was last found: "ok", "lost" (no answer) or "ended" (it knows no such session).
export const link = {state: "ok", readOnly: false};
const kept = new Map(); // path → the value of its last answer
const heads = new WeakMap(); // such a value → the headers that came with it

function lost() {
  link.state = "lost";
  throw failure(0, "The server cannot be reached.");
}

async function ask(method, path, headers, body) {
  const response = await fetch(`/api/v1/${path}`, {method, headers, body, cache: "no-store"}).catch(lost);
  link.state = response.status === 401 ? "ended" : "ok";
  if (response.ok || response.status === 304) {
    link.readOnly = response.headers.has("Caltofal-Read-Only");
    return response;
  }
  const answer = await response.json().catch(() => ({}));
  throw failure(response.status, answer.error?.message ?? `The server answered ${response.status}.`);
}

const tagOf = value => heads.get(value).get("ETag");

// A resource: the same object again for as long as the server says that it is the same.
export async function get(path) {
  const before = kept.get(path);
  const response = await ask("GET", path, before ? {"If-None-Match": tagOf(before)} : {});
  if (response.status === 304) return before;
  const value = await response.json();
  kept.set(path, value);
  heads.set(value, response.headers);
  return value;
}

// What was said beside a value that get() gave: a list of texts.
export const notesOf = value => JSON.parse(heads.get(value)?.get("Caltofal-Notes") ?? "[]");

// For what does not change while it is looked at.
export const getOnce = async path => kept.get(path) ?? get(path);

// {name: path} becomes {name: answer}, which may be a failure; fails as a whole only without a server.
export async function getAll(paths, read = get) {
  return Object.fromEntries(await Promise.all(Object.entries(paths).map(async ([name, path]) =>
    [name, await read(path).catch(error => {
      if (link.state !== "ok") throw error;
      return error;
    })])));
}

// The pages of `status` in the same form, with more that getAll() asks for.
export async function getStatus(more) {
  const [status, others] = await Promise.all([get("status"), getAll(more)]);
  return {...Object.fromEntries(Object.entries(status).map(([name, value]) =>
    [name, value?.error ? failure(value.error.exit === 10 ? 404 : 500, value.error.message) : value])), ...others};
}

// A change: its answer. It is refused with 412 when the gateway has something else by now than `known`, from get().
export async function send(method, path, body, known) {
  const headers = {"Content-Type": "application/json", ...known && {"If-Match": tagOf(known)}};
  return (await ask(method, path, headers, JSON.stringify(body))).json();
}

const HANDLERS = ["onclick", "oninput", "onchange", "onsubmit"];
const given = value => value !== false && (value ?? null) !== null;

// What would not be seen, or would turn the direction of what follows, is spelled out.
const UNSEEN = /[\0-\x1f\x7f-\x9f\u00ad\u061c\u180e\u200b-\u200f\u2028-\u202e\u2060-\u206f\ufeff\ufff9-\ufffb]/g;
export const visible = text => String(text).replace(UNSEEN, c => `\\u${c.charCodeAt(0).toString(16).padStart(4, "0")}`);

// el("p.note", {id: "x", onclick: f}, "text", child, [more]): without what is null or false, and with texts visible.
export function el(kind, ...rest) {
  const [tag, ...classes] = kind.split(".");
  const node = document.createElement(tag);
  if (classes.length) node.className = classes.join(" ");
  const attributes = rest[0]?.constructor === Object ? rest.shift() : {};
  for (const [key, value] of Object.entries(attributes)) {
    if (HANDLERS.includes(key)) node[key] = value;
    else if (given(value)) node.setAttribute(key, value === true ? "" : value);
  }
  node.append(...rest.flat(9).filter(given).map(child => child instanceof Node ? child : visible(child)));
  return node;
}

function morphNode(old, next) {
  if (old.nodeName !== next.nodeName || old.dataset?.key !== next.dataset?.key) return old.replaceWith(next);
  if (old.nodeType === Node.TEXT_NODE) {
    if (old.data !== next.data) old.data = next.data;
    return;
  }
  for (const handler of HANDLERS) old[handler] = next[handler];
  if ("own" in old.dataset) return;
  // Whether a disclosure is open is the reader's affair.
  for (const {name} of [...old.attributes]) if (name !== "open" && !next.hasAttribute(name)) old.removeAttribute(name);
  for (const {name, value} of next.attributes) {
    if (old.getAttribute(name) === value) continue;
    if (name === "style") old.style.cssText = value; // the content security policy refuses the attribute
    else old.setAttribute(name, value);
  }
  morph(old, next.childNodes);
}

// Makes the children of a node like those given and touches only what differs, so that focus, selection, scrolling and
// open disclosures survive. An element with data-own keeps what it has.
export function morph(parent, fresh) {
  const wanted = [...fresh].flat(9).filter(given), present = [...parent.childNodes];
  wanted.forEach((next, index) => (present[index] ? morphNode(present[index], next) : parent.append(next)));
  present.slice(wanted.length).forEach(old => old.remove());
}

export const quiet = (...text) => el("span.quiet", text);
export const note = (...text) => el("p.quiet", text);
const shown = value => given(value) && value !== "" ? value : quiet("–");

// A name that came from the air or from a client.
export const name = (text, empty = "(no name)") => text ? el("bdi", text) : quiet(empty);

export const figure = (value, unit, digits = 0) => typeof value === "number"
  ? el("span.figure", value.toFixed(digits), " ", el("span.unit", unit)) : quiet("–");
export const rate = kbit => kbit < 1000 ? figure(kbit, "kbit/s") : figure(kbit / 1000, "Mbit/s", 1);
export const bandName = band => band?.replace("g", " GHz");

// A state in words; `kind` (good, bad, off) adds a mark of its own shape and colour.
export const state = (word, kind) => el(`span.state.${kind}`, word);
export const onOff = on => on == null ? on : on ? state("On", "good") : state("Off", "off");
export const connected = (is, otherwise, kind = "off") => is == null ? is : is ? state("Connected", "good") : state(otherwise, kind);

// How much of a whole there is.
export function bar(label, part, whole, weak) {
  const share = Math.round(100 * Math.max(0, Math.min(1, part / whole || 0)));
  const fill = el("span.fill");
  fill.style.width = `${share}%`;
  return el(`span.bar${weak ? ".weak" : ""}`, {role: "meter", "aria-label": label, "aria-valuenow": share}, fill);
}

export const facts = (...rows) => el("dl", rows.filter(Boolean).map(([term, value]) =>
  el("div", el("dt", term), el("dd", shown(value)))));

// Columns of [head, content, kind]: content is a member's name or content(row), kind "count" for figures and "act" for
// changes, left out where the server only reads. On a narrow screen a row becomes a list of heads and cells, which is
// why the roles are spelled out. `key` is the content that gives a row its identity over refreshes.
export function table(label, all, rows, key, empty) {
  if (!rows.length) return note(empty);
  const columns = all.filter(([, , kind]) => kind !== "act" || !link.readOnly);
  const of = (content, row) => typeof content === "function" ? content(row) : row[content];
  const row = (cells, attributes) => el("tr", {role: "row", ...attributes}, columns.map(cells));
  return el("table", {role: "table", "aria-label": label},
    el("thead", row(([head, , kind = ""]) =>
      el(`th.${kind}`, {role: "columnheader"}, el("span", head)))),
    el("tbody", rows.map(one => row(([head, content, kind = ""], index) =>
      el(`${index ? "td" : "th"}.${kind}`, {role: index ? "cell" : "rowheader", "data-head": head},
        shown(of(content, one))), {"data-key": of(key, one)}))));
}

// Columns of a table of devices in the home.
export const deviceColumns = (head, address) => [[head, device => name(device.name)],
  ["State", device => connected(device.active, "Away")], ["Address", address], ["MAC address", "mac"]];

// `title` may go with buttons: [title, ...buttons].
export function section(title, ...content) {
  const [text, ...buttons] = [title].flat(9);
  return el("section", {"aria-label": text, "data-key": text},
    el("div.head", el("h2", text), el("div.actions", buttons)), content);
}
export const pair = (...parts) => el("div.pair", parts);

// `subject` completes the name for those who do not see what stands around it.
export const button = (label, onclick, subject) =>
  el("button", {type: "button", onclick, "aria-label": subject && visible(`${label} ${subject}`)}, label);

// What a view makes of an answer; `thing` is what is missing where there is none.
export const answered = (answer, show, thing) => !(answer instanceof Error) ? show(answer)
  : answer.status === 404 && thing ? note(`This gateway has no ${thing}.`)
    : el("p", el("strong.refused", "Not available: "), answer.message);
export const part = (title, answer, show, thing) => section(title, answered(answer, show, thing));

// Tells for a while that something was done.
export function say(text) {
  said.textContent = visible(text);
  clearTimeout(say.timer);
  say.timer = setTimeout(() => { said.textContent = ""; }, 6000);
}

const REFRESH_MS = 5000;

const overview = {
  load: () => getStatus({radios: "wifi/radios"}),
  render: ({mode, wan, dsl, lan, radios}) => pair(
    part("Internet", wan, value => facts(["State", connected(value.status === "Up", value.status || "Unknown", "bad")],
      ["Connection", value.description || value.type], dsl.status === "connected" && ["DSL line",
        [rate(dsl.downstream.rate_kbit_s), " down, ", rate(dsl.upstream.rate_kbit_s), " up"]],
      ["Address", value.ip_address], ["IPv6 address", value.ipv6?.address], ["Gateway", value.gateway])),
    part("Home network", lan, ({ipv4, ipv6}) => facts(["Role", ({true: "router", false: "bridge"})[mode.router]],
      ["Address", ipv4?.address], ["IPv6 address", ipv6?.address], ["DHCP server", onOff(ipv4?.dhcp_active)])),
    part("Wi-Fi", radios, value => table("Radios", [["Radio", radio => bandName(radio.band)],
      ["State", radio => onOff(radio.enabled)], ["Channel", "channel", "count"],
      ["Clients", "clients", "count"]], value.radios, "radio", "No radio."), "Wi-Fi")),
};

// A view: load() asks for what it shows, render(data) makes elements of it, shown(data) is told when they stand there.
const VIEWS = Object.entries({"": "Overview", internet: "Internet", home: "Home network", wifi: "Wi-Fi", mesh: "Mesh",
  model: "Data model", written: "Written"}).map(([route, title]) => ({route, title, view: route ? null : overview}));

const [content, freshness, said, trouble, views] = ["content", "freshness", "said", "trouble", "views"]
  .map(id => document.getElementById(id));
let current, timer, turn = 0, data, lastGood = "";

function showLink() {
  const since = data ? ` What is shown is of ${lastGood}.` : "";
  const text = {lost: `The connection to the server is lost; trying again.${since}`,
    ended: `This session has ended: open the address that the server printed at its start.${since}`}[link.state] ?? "";
  if (trouble.textContent !== text) trouble.textContent = text;
  freshness.textContent = text || !lastGood ? "" : `As of ${lastGood}`;
}

const title = () => [el("h1", current.title), link.readOnly && note("This server only reads: nothing can be changed.")];

// Shows what is known already: for a view whose own controls changed.
export function redraw() {
  if (!data) return;
  morph(content, [title(), current.view.render(data)]);
  current.view.shown?.(data);
}

// Asks for everything again and shows what is different. A turn that another one has overtaken shows nothing.
export async function refresh() {
  clearTimeout(timer);
  const mine = ++turn;
  try {
    current.view ??= (await import(`./${current.route}.js`).catch(lost)).default;
    const fresh = mine === turn && await current.view.load();
    if (mine !== turn) return;
    data = fresh;
    lastGood = new Date().toLocaleTimeString();
    redraw();
    dispatchEvent(new Event("refreshed"));
  } catch (error) {
    if (!("status" in error)) console.error(error); // a fault of the page's own
    if (mine !== turn) return;
    if (link.state === "ok" || !data) morph(content, [title(), answered(error)]);
  }
  content.removeAttribute("aria-busy");
  showLink();
  if (!document.hidden && link.state !== "ended") timer = setTimeout(refresh, REFRESH_MS);
}

function open() {
  const route = location.hash.replace(/^#\/?/, "");
  const next = VIEWS.find(view => view.route === route) ?? VIEWS[0];
  if (next === current) return;
  const first = !current;
  current = next;
  data = null;
  morph(views, VIEWS.map(view => el("li",
    el("a", {href: `#/${view.route}`, "aria-current": view === next && "page"}, view.title))));
  document.title = `${next.title} – Gateway`;
  content.setAttribute("aria-busy", "true");
  if (!first) {
    morph(content, [title(), note("Loading…")]);
    content.focus();
  }
  refresh();
}

addEventListener("hashchange", open);
matchMedia("(prefers-color-scheme: dark)").addEventListener("change", redraw);
document.addEventListener("visibilitychange", () => (document.hidden ? clearTimeout(timer) : refresh()));
open();
