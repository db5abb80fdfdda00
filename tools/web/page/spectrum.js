// SPDX-License-Identifier: MIT
// Draws the channel chart of a band with Chart.js. What stands where comes from channels.js.
import {axisOf, centreMhz, colourOf, humpOf, placeLabels, positionOf} from "./channels.js";
import {visible} from "./main.js";

const FLOOR_DBM = -100, TOP_DBM = -20;
const OWN_DBM = -30; // the gateway does not hear itself: its own networks stand highest
const RADAR_MHZ = [[5250, 5330], [5490, 5730]]; // channels 52 to 64, 100 to 144
const COLOURS = 12;
const LINE_PX = 15, MOST_LETTERS = 24; // of a name

const taken = new Map(); // network → its colour
const charts = new Map(); // band → Chart

const css = name => getComputedStyle(document.documentElement).getPropertyValue(name);

export function networkColour(network, alpha = 1) {
  if (network.own) return `oklch(${css("--own")} / ${alpha})`;
  const hue = 285 + colourOf(network.id, taken, COLOURS) * 5 % COLOURS * 25; // no blue: that is the own ones'
  return `oklch(${css("--others")} ${hue} / ${alpha})`;
}

const hump = (network, axis) => ({network, showLine: true, pointRadius: 0, fill: {value: FLOOR_DBM},
  borderColor: networkColour(network), backgroundColor: networkColour(network, network.own ? .22 : .12),
  borderWidth: network.own ? 2.5 : 1.5, borderDash: network.own ? [6, 4] : [], order: network.own ? 1 : 0,
  data: humpOf(axis, network.span, network.own ? OWN_DBM : Math.max(FLOOR_DBM + 2, network.rssi_dbm), FLOOR_DBM)});

const cut = text => text.length > MOST_LETTERS ? `${[...text].slice(0, MOST_LETTERS - 1).join("")}…` : text;

const fontOf = (network, px = 12) => `${network?.own ? "600 " : ""}${px}px ${css("--font")}`;

// The names over the humps.
function drawNames(chart) {
  const {ctx: context, chartArea: area, scales: {x, y}} = chart;
  context.save();
  Object.assign(context, {textAlign: "center", textBaseline: "top", direction: "ltr", lineWidth: 4, lineJoin: "round"});
  const labels = chart.data.datasets.map(({network, data}) => {
    context.font = fontOf(network);
    const lines = network.names.map(one => cut(visible(one.ssid) || "(no name)"));
    const middle = data[data.length >> 1];
    return {network, lines, x: x.getPixelForValue(middle.x), y: y.getPixelForValue(middle.y) - 3,
      width: Math.max(...lines.map(line => context.measureText(line).width)) + 6, height: lines.length * LINE_PX};
  });
  chart.names = placeLabels(labels, area);
  for (const {network, lines, left, top, width} of chart.names) {
    // A rim in the background's colour, as lines may cross a name.
    Object.assign(context, {font: fontOf(network), strokeStyle: css("--paper"),
      fillStyle: css(network.own ? "--accent" : "--ink")});
    lines.forEach((line, index) => {
      const place = [line, left + width / 2, top + index * LINE_PX + 1];
      context.strokeText(...place);
      context.fillText(...place);
    });
  }
  context.restore();
}

// The channels that give way to radar are shaded, and marked above.
function drawRadar({ctx: context, chartArea: area, scales: {x}, data: {axis}}) {
  context.save();
  Object.assign(context, {font: fontOf(null, 11), textBaseline: "bottom"});
  for (const ends of RADAR_MHZ.map(pair => pair.map(mhz => positionOf(axis, mhz)))) {
    if (ends.includes(null)) continue; // not on this axis
    const [left, right] = ends.map(end => x.getPixelForValue(end));
    context.fillStyle = css("--shade");
    context.fillRect(left, area.top, right - left, area.bottom - area.top);
    context.fillStyle = css("--quiet");
    context.fillText("DFS", left, area.top - 3);
  }
  context.restore();
}

// Every channel, or every second or fourth where they would stand too close.
function ticksOf(axis, width) {
  const apart = width / axis.end * (axis.band === "5g" ? 20 : 5), step = apart >= 24 ? 1 : apart >= 12 ? 2 : 4;
  return axis.pieces.flatMap(({channels}) => channels.filter((_, index) => index % step === 0)
    .map(channel => ({value: positionOf(axis, centreMhz(channel)), label: String(channel)})));
}

function optionsOf(axis) {
  const color = css("--quiet"), grid = css("--line"), font = {size: 11, family: css("--font")};
  const title = text => ({display: true, text, color, font});
  return {responsive: true, maintainAspectRatio: false, animation: false, events: [],
    layout: {padding: {top: 16, right: 4}}, plugins: {legend: {display: false}, tooltip: {enabled: false}},
    scales: {
      x: {type: "linear", min: 0, max: axis.end, title: title("Channel"), grid: {display: false},
        afterBuildTicks: scale => { scale.ticks = ticksOf(axis, scale.chart.width - 60); },
        ticks: {color, font, autoSkip: false, maxRotation: 0, callback: (_, index, ticks) => ticks[index].label}},
      y: {min: FLOOR_DBM, max: TOP_DBM, title: title("Signal, dBm"), grid: {color: grid},
        ticks: {color, font, stepSize: 20}}}};
}

// Shows networks of a band in `place`; `possible` are the channels that the radio may use.
export async function drawSpectrum(place, band, possible, networks) {
  await import("/chart.js"); // which makes a global Chart
  if (!place.isConnected) return;
  const axis = axisOf(band, [...possible, ...networks.flatMap(network => network.span.channels)]);
  const data = {axis, datasets: networks.map(network => hump(network, axis))}, options = optionsOf(axis);
  let chart = charts.get(band);
  if (chart?.canvas?.parentNode === place) {
    Object.assign(chart.data, data);
    chart.options = options;
    chart.update("none");
  } else {
    chart?.destroy();
    const canvas = document.createElement("canvas");
    canvas.role = "img";
    canvas.ariaLabel = "Networks by channel and signal, as in the table below";
    place.replaceChildren(canvas);
    chart = new Chart(canvas, {type: "scatter", data, options,
      plugins: [{id: "channels", beforeDatasetsDraw: drawRadar, afterDatasetsDraw: drawNames}]});
    charts.set(band, chart);
  }
}
