# SPDX-License-Identifier: MIT
"""The channel chart as drawn: what readers of such charts complain of elsewhere."""
import os

from geometry import covers
from page import PageCase

# Band, channel, dBm, MHz, side; the first and last 20 MHz channel that the network takes.
AROUND = [
    ("2.4GHz", 1, -50, 20, "auto", 1, 1),
    ("2.4GHz", 3, -60, 40, "upper", 3, 7),
    ("2.4GHz", 9, -62, 40, "lower", 5, 9),
    ("2.4GHz", 13, -88, 20, "auto", 13, 13),
    ("5GHz", 40, -55, 40, "lower", 36, 40),
    ("5GHz", 48, -61, 80, "lower", 36, 48),
    ("5GHz", 52, -71, 80, "upper", 52, 64),
    ("5GHz", 108, -79, 40, "upper", 108, 112),
    ("5GHz", 140, -84, 20, "auto", 140, 140),
]
# What is drawn in a band: the ticks with their places, and each network's outline, and the boxes of names.
DRAWN = """
const chart = Chart.getChart(document.querySelector('.chart[data-key="' + arguments[0] + '"] canvas'));
const {x, y} = chart.scales;
const px = point => [x.getPixelForValue(point.x), y.getPixelForValue(point.y)];
return {area: chart.chartArea, floor: y.getPixelForValue(y.min), mhz: x.getPixelForValue(1) - x.getPixelForValue(0),
  ticks: Object.fromEntries(x.ticks.map(tick => [tick.label, x.getPixelForValue(tick.value)])),
  titles: [x.options.title.text, y.options.title.text],
  networks: chart.data.datasets.map(({network, data, borderColor}) => ({
    id: network.id, own: network.own, channel: network.channel, colour: borderColor,
    first: px(data[0]), last: px(data.at(-1)), top: Math.min(...data.map(one => px(one)[1])),
    dbm: network.own ? null : y.getPixelForValue(network.rssi_dbm)})),
  names: chart.names.map(({network, ...label}) => ({id: network.id, ...label}))};"""


def row(number, band, channel, dbm, mhz, side, *_, name="network"):
    columns = (band, f"{name} {number}", channel, dbm, "WPA2-PSK", "AES",
               f"02:00:5E:66:00:{number:02X}", mhz, "802.11n", side, 0)
    return "\t".join(map(str, columns)) + "\n"


class Chart(PageCase):
    def setUp(self):
        super().setUp()
        self.server = self.serve(CALTOFAL_BOX_SCAN_MS="50")

    def put_around(self, lines):
        with open(os.path.join(self.server.folder, "home.box", "neighbours.tsv"), "w", encoding="utf-8") as file:
            file.write("".join(lines))

    def drawn(self):
        """What the chart shows after a scan."""
        self.scan(self.server)
        self.open("")
        self.open("wifi")
        return {band: self.script(DRAWN, band) for band in ("2.4g", "5g")}

    def test_a_hump_stands_exactly_over_the_channels_that_it_takes(self):
        self.put_around(row(number, *network) for number, network in enumerate(AROUND))
        self.server.tool("set", "Device.WiFi.Radio.2", "OperatingChannelBandwidth=80MHz", "Channel=100")
        drawn = self.drawn()
        own = [("2.4GHz", 6, None, 20, "", 6, 6), ("5GHz", 100, None, 80, "", 100, 112)]
        for number, (name, channel, dbm, _, _, first, last) in enumerate([*AROUND, *own]):
            band = drawn["2.4g" if name == "2.4GHz" else "5g"]
            shown = next(one for one in band["networks"] if one["own"] == (dbm is None) and one["channel"] == channel)
            with self.subTest(number, band=name, channel=channel):
                self.assertAlmostEqual(shown["first"][0], band["ticks"][str(first)] - 10 * band["mhz"], delta=.5)
                self.assertAlmostEqual(shown["last"][0], band["ticks"][str(last)] + 10 * band["mhz"], delta=.5)
                self.assertAlmostEqual(shown["first"][1], band["floor"], delta=.5)
                self.assertAlmostEqual(shown["last"][1], band["floor"], delta=.5)
                if dbm is not None:
                    self.assertAlmostEqual(shown["top"], shown["dbm"], delta=1)
        for band, channels in (("2.4g", range(1, 14)), ("5g", [*range(36, 65, 4), *range(100, 145, 4)])):
            self.assertEqual(sorted(map(int, drawn[band]["ticks"])), list(channels), "no band has one of the other")
            self.assertEqual(drawn[band]["titles"], ["Channel", "Signal, dBm"])
        table = self.read()["Channels in 5 GHz"]["tables"]["Channels in 5 GHz"]
        others = [row for row in table if row["Network"].startswith("network")]
        self.assertEqual({row["Network"]: (row["Channel"], row["Takes"].replace("\xa0", " ")) for row in others}, {
            "network 4": ("40", "36 + 40"), "network 5": ("48", "36 to 48"), "network 6": ("DFS 52", "52 to 64"),
            "network 7": ("DFS 108", "108 + 112"), "network 8": ("DFS 140", "140")})

    def test_in_a_crowd_names_stay_apart_and_own_ones_are_there(self):
        lower = [row(n, "2.4GHz", 1 + n % 13, -35 - n, 20, "auto", name="a rather long name") for n in range(40)]
        self.put_around(lower + [row(100 + n, "5GHz", 36 + 4 * (n % 8), -40 - n, 20, "auto") for n in range(30)])
        own = {"2.4g": ["VOLA Home", "Café & Friends"], "5g": ["VOLA Home 5G", "Café & Friends"]}
        self.drawn()
        for width in (1280, 768, 360):
            self.resize(width)
            self.await_script("[...document.querySelectorAll('.chart')].every(one => "
                              "Math.abs(one.clientWidth - one.firstChild.clientWidth) < 2)")
            self.driver.execute_async_script("requestAnimationFrame(() => requestAnimationFrame(arguments[0]))")
            for band in own:
                drawn = self.script(DRAWN, band)
                with self.subTest(width=width, band=band):
                    self.assertIn(own[band], [name["lines"] for name in drawn["names"]])
                    for number, one in enumerate(drawn["names"]):
                        self.assertGreaterEqual(one["left"], drawn["area"]["left"])
                        self.assertLessEqual(one["left"] + one["width"], drawn["area"]["right"] + 1)
                        self.assertFalse([other for other in drawn["names"][:number] if covers(one, other)], one)
            self.screenshot(f"crowd-{width}")
        table = self.read()["Channels in 2.4 GHz"]["tables"]["Channels in 2.4 GHz"]
        self.assertEqual(len(table), 41, "the table has them all")

    def test_a_network_keeps_its_colour_between_scans(self):
        networks = [row(number, *network) for number, network in enumerate(AROUND)]
        self.put_around(networks[1:])
        before = self.drawn()
        self.put_around([row(0, *AROUND[0][:2], -30, *AROUND[0][3:]), row(77, "2.4GHz", 2, -31, 20, "auto"),
                         *reversed(networks[1:])])
        after = self.drawn()
        for band in before:
            colours = {one["id"]: one["colour"] for one in after[band]["networks"]}
            self.assertEqual({one["id"]: colours[one["id"]] for one in before[band]["networks"]},
                             {one["id"]: one["colour"] for one in before[band]["networks"]})
            self.assertEqual(len(set(colours.values())), len(colours), "and none has another one's")

    def test_colours_follow_the_scheme(self):
        look = """const {scales: {x}, data: {datasets}} = Chart.getChart(document.querySelector(".chart canvas")),
            mark = document.querySelector("section .swatch");
            return [x.options.ticks.color, datasets[0].borderColor, getComputedStyle(mark).backgroundColor];"""
        self.drawn()
        light = self.script(look)
        self.resize(1280, "dark")
        self.await_script(f"(() => {{{look}}})()[0] !== arguments[0]", light[0], timeout=2)
        self.assertTrue(all(one != other for one, other in zip(light, self.script(look))))

    def test_a_gateway_that_hears_nobody_still_shows_itself(self):
        self.put_around([])
        drawn = self.drawn()
        for band in drawn.values():
            self.assertEqual([one["own"] for one in band["networks"]], [True])
            self.assertEqual(len(band["names"]), 1)

    def test_own_networks_leave_the_chart_with_their_radio(self):
        self.server.tool("set", "Device.WiFi.Radio.1", "Enable=false")
        self.server.tool("set", "Device.WiFi.SSID.9", "SSID=Attic")
        text = self.open("wifi")
        self.assertIn("No own network is on the air", text["Channels in 2.4 GHz"]["text"])
        self.assertIn("Attic", text["Channels in 5 GHz"]["text"])
