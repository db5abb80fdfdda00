// SPDX-License-Identifier: MIT
// The page: its views, the way between them, values that refresh by themselves. The overview is here, as the page begins
// with it; the other views are loaded when they are first shown.
import {answered, bandName, connected, el, facts, getStatus, link, morph, note, onOff, pair, part, rate, table} from "./kit.js";

const REFRESH_MS = 5000;

const overview = {
  load: () => getStatus({radios: "wifi/radios"}),
  render: ({mode, wan, dsl, lan, radios}) => pair(
    part("Internet", wan, value => facts(["State", connected(value.status === "Up", value.status || "Unknown", "bad")],
      ["Connection", value.description || value.type], dsl.value?.status === "connected" && ["DSL line",
        [rate(dsl.value.downstream.rate_kbit_s), " down, ", rate(dsl.value.upstream.rate_kbit_s), " up"]],
      ["Address", value.ip_address], ["IPv6 address", value.ipv6?.address], ["Gateway", value.gateway])),
    part("Home network", lan, ({ipv4, ipv6}) => facts(["Role", mode.value && (mode.value.router ? "router" : "bridge")],
      ["Address", ipv4?.address], ["IPv6 address", ipv6?.address], ["DHCP server", onOff(ipv4?.dhcp_active)])),
    part("Wi-Fi", radios, value => table("Radios", [["Radio", radio => bandName(radio.band)], ["State", radio => onOff(radio.enabled)],
      ["Channel", "channel", "count"], ["Clients", "clients", "count"]], value.radios, "radio", "No radio."), "Wi-Fi")),
};

// A view: load() asks for what it shows, render(data) makes elements of it, shown(data) is told when they stand there.
const VIEWS = Object.entries({"": "Overview", internet: "Internet", home: "Home network", wifi: "Wi-Fi", mesh: "Mesh",
  model: "Data model", written: "Written"}).map(([route, title]) => ({route, title, view: route ? null : overview}));

const [content, freshness, trouble, views] = ["content", "freshness", "trouble", "views"].map(id => document.getElementById(id));
let current, timer, turn = 0, data, lastGood = "";

function showLink() {
  const since = lastGood && ` What is shown is of ${lastGood}.`;
  const text = {lost: `The connection to the server is lost; trying again.${since}`,
    ended: `This session has ended: open the address that the server printed at its start.${since}`}[link.state] ?? "";
  if (trouble.textContent !== text) trouble.textContent = text;
  freshness.textContent = text || !lastGood ? "" : `As of ${lastGood}`;
}

const title = () => el("h1", current.title);

// Shows what is known already: for a view whose own controls changed.
export function redraw() {
  if (!data) return;
  morph(content, [title(), current.view.render(data)].flat());
  current.view.shown?.(data);
}

// Asks for everything again and shows what is different. A turn that another one has overtaken shows nothing.
export async function refresh() {
  clearTimeout(timer);
  const mine = ++turn;
  try {
    const fresh = await current.view.load();
    if (mine !== turn) return;
    data = fresh;
    lastGood = new Date().toLocaleTimeString();
    redraw();
  } catch (error) {
    if (mine !== turn) return;
    if (link.state === "ok" || !data) morph(content, [title(), answered({error})]);
  }
  content.setAttribute("data-view", current.route);
  content.removeAttribute("aria-busy");
  showLink();
  if (!document.hidden && link.state !== "ended") timer = setTimeout(refresh, REFRESH_MS);
}

async function open() {
  const route = location.hash.replace(/^#\/?/, "");
  const next = VIEWS.find(view => view.route === route) ?? VIEWS[0];
  if (next === current) return;
  const first = !current;
  current = next;
  data = null;
  turn++;
  morph(views, VIEWS.map(view => el("li",
    el("a", {href: `#/${view.route}`, "aria-current": view === next && "page"}, view.title))));
  document.title = `${next.title} – Gateway`;
  content.setAttribute("aria-busy", "true");
  if (!first) {
    morph(content, [title(), note("Loading…")]);
    content.focus();
  }
  next.view ??= (await import(`./${route}.js`)).default;
  if (next === current) await refresh();
}

addEventListener("hashchange", open);
document.addEventListener("visibilitychange", () => (document.hidden ? clearTimeout(timer) : refresh()));
open();
