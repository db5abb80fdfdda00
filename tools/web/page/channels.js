// SPDX-License-Identifier: MIT
// The channel chart in numbers: what a network takes, where that is on the axis, its shape, the place of its name, its
// colour. Nothing here draws or asks.

// The 20 MHz channels of 5 GHz lie in runs without gaps, in which wider channels are formed from the first one on.
const RUNS = [[36, 64], [100, 144], [149, 177]];
const HALF = 10, MARGIN = 4, GAP = 14; // MHz: of a channel; beside the outermost channel of a run; between runs

export const bandOf = channel => channel >= 1 && channel <= 14 ? "2.4g" : channel >= 36 && channel <= 177 ? "5g" : null;
export const centreMhz = channel => channel === 14 ? 2484 : channel < 14 ? 2407 + 5 * channel : 5000 + 5 * channel;
export const isRadar = channel => channel >= 52 && channel <= 144;
const series = (first, count, step) => Array.from({length: count}, (_, index) => first + index * step);

// The channels that a 5 GHz network of `size` channels takes, null where there is no such block.
function blockOf(channel, size) {
  const run = RUNS.find(([first, last]) => channel >= first && channel <= last && (channel - first) % 4 === 0);
  if (!run) return null;
  const block = series(channel - (channel - run[0]) % (4 * size), size, 4);
  return block.at(-1) <= run[1] ? block : null;
}

// What a network takes: its 20 MHz channels in rising order, `low` to `high` MHz, and whether that is sure or had to be
// guessed, as the side of the secondary channel is not told or not possible. Null for a channel of no band.
export function spanOf({channel, bandwidth_mhz: width, secondary_side: side}) {
  const band = bandOf(channel);
  if (!band) return null;
  let channels = [channel], sure = width === 20;
  if (band === "5g") {
    const block = blockOf(channel, width / 20);
    channels = block ?? channels;
    sure = block !== null;
  } else if (band === "2.4g" && width >= 40 && channel < 14) {
    // The secondary channel of 2.4 GHz begins where the primary one ends: four channels off.
    const fits = {upper: channel + 4 <= 13, lower: channel - 4 >= 1};
    const above = fits[side] ? side === "upper" : fits.upper;
    channels = above ? [channel, channel + 4] : [channel - 4, channel];
    sure = fits[side] === true && width === 40;
  }
  return {band, channels, sure, low: centreMhz(channels[0]) - HALF, high: centreMhz(channels.at(-1)) + HALF};
}

// The axis of a band: the runs in which one of the channels lies, side by side. A step on it is a MHz.
export function axisOf(band, channels) {
  const runs = band === "5g" ? RUNS : [[1, channels.includes(14) ? 14 : 13]];
  const used = runs.filter(([first, last]) => channels.some(channel => channel >= first && channel <= last));
  let end = -GAP;
  const pieces = (used.length ? used : [runs[0]]).map(([first, last]) => {
    const step = band === "5g" ? 4 : 1, start = end + GAP;
    const piece = {start, low: centreMhz(first) - HALF - MARGIN, high: centreMhz(last) + HALF + MARGIN,
      channels: series(first, (last - first) / step + 1, step)};
    end = start + piece.high - piece.low;
    return piece;
  });
  return {band, pieces, end};
}

export function positionOf(axis, mhz) {
  const piece = axis.pieces.find(({low, high}) => mhz >= low && mhz <= high);
  return piece ? piece.start + mhz - piece.low : null;
}

// A network's outline: it stands on the floor at both edges and reaches the top over its middle.
export function humpOf(axis, {low, high}, top, floor) {
  return series(-1, 49, 1 / 24).map(across => ({x: positionOf(axis, low) + (high - low) * (across + 1) / 2,
    y: floor + (top - floor) * Math.max(0, 1 - across ** 4)}));
}

// Labels {x: middle, y: wanted lower edge, width, height}, the most important first, with `left` and `top` in `area` so
// that they do not cover each other; those without room within four heights are left out.
export function placeLabels(labels, area) {
  const placed = [];
  const covers = (a, b) => a.left < b.left + b.width && b.left < a.left + a.width
    && a.top < b.top + b.height && b.top < a.top + a.height;
  for (const label of labels) {
    const {x, y, width, height} = label;
    const left = Math.max(area.left, Math.min(x - width / 2, area.right - width));
    const wanted = Math.max(area.top, Math.min(y, area.bottom) - height);
    const place = [0, -.5, -1, .5, -1.5, 1, -2, 2, -3, 3, -4, 4]
      .map(step => ({...label, left, top: wanted + step * height}))
      .find(one => one.top >= area.top && one.top + height <= area.bottom && !placed.some(other => covers(other, one)));
    if (place) placed.push(place);
  }
  return placed;
}

// One of `count` colours for a network. `taken` remembers those given: none is given twice before all are.
export function colourOf(id, taken, count) {
  if (!taken.has(id)) taken.set(id, taken.size % count);
  return taken.get(id);
}

// The networks on the air: the own ones of a radio as one, then the others, strongest first. One that several
// interfaces heard stands there once; own ones that were heard are no others. sideOf() tells where a radio's secondary
// channel is.
export function networksOf(radios, ssids, sideOf, heard) {
  const own = radios.filter(radio => radio.enabled && radio.status === "Up" && bandOf(radio.channel) === radio.band)
    .map(radio => ({...radio, own: true, id: radio.interface, secondary_side: sideOf(radio), names:
      ssids.filter(ssid => ssid.radio === radio.radio && ssid.enabled && ssid.active && ssid.network !== "uplink")}))
    .filter(network => network.names.length);
  const ours = new Set(ssids.map(ssid => ssid.bssid)), others = new Map();
  for (const network of [...heard].sort((a, b) => b.rssi_dbm - a.rssi_dbm)) {
    if (!ours.has(network.bssid) && !others.has(network.bssid) && bandOf(network.channel)) {
      others.set(network.bssid, {...network, own: false, id: network.bssid, names: [network]});
    }
  }
  return [...own, ...others.values()].map(network => ({...network, span: spanOf(network)}));
}
