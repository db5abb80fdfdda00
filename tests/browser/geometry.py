# SPDX-License-Identifier: MIT
"""The geometry of the channel chart, as numbers."""
from page import PageCase

# Channel, width told, side of the secondary channel: the channels taken, from, to in MHz, whether that is sure.
SPANS = [
    (1, 20, "auto", [1], 2402, 2422, True),
    (6, 20, None, [6], 2427, 2447, True),
    (13, 20, "auto", [13], 2462, 2482, True),
    (14, 20, "auto", [14], 2474, 2494, True),
    (1, 40, "upper", [1, 5], 2402, 2442, True),
    (6, 40, "upper", [6, 10], 2427, 2467, True),
    (6, 40, "lower", [2, 6], 2407, 2447, True),
    (6, 40, "auto", [6, 10], 2427, 2467, False),
    (11, 40, "upper", [7, 11], 2432, 2472, False),
    (11, 40, "auto", [7, 11], 2432, 2472, False),
    (2, 40, "lower", [2, 6], 2407, 2447, False),
    (36, 20, "auto", [36], 5170, 5190, True),
    (36, 40, "upper", [36, 40], 5170, 5210, True),
    (40, 40, "lower", [36, 40], 5170, 5210, True),
    (44, 40, "upper", [44, 48], 5210, 5250, True),
    (44, 80, "upper", [36, 40, 44, 48], 5170, 5250, True),
    (60, 80, "upper", [52, 56, 60, 64], 5250, 5330, True),
    (64, 160, "lower", [36, 40, 44, 48, 52, 56, 60, 64], 5170, 5330, True),
    (108, 40, "upper", [108, 112], 5530, 5570, True),
    (120, 20, "auto", [120], 5590, 5610, True),
    (128, 80, "lower", [116, 120, 124, 128], 5570, 5650, True),
    (144, 80, "lower", [132, 136, 140, 144], 5650, 5730, True),
    (149, 80, "upper", [149, 153, 157, 161], 5735, 5815, True),
    (140, 160, "auto", [140], 5690, 5710, False),
    (37, 40, "upper", [37], 5175, 5195, False),
    (44, None, "auto", [44], 5210, 5230, False),
    (0, 20, "auto", None, None, None, None),
    (200, 20, "auto", None, None, None, None),
]

# A program that calls an expression of `channels`, the module as it is served, and `input`.
CALL = """const [input, done] = arguments;
import("/channels.js").then(channels => done({}), error => done(String(error)));"""


class Geometry(PageCase):
    def setUp(self):
        super().setUp()
        self.serve()

    def call(self, expression, given=None):
        return self.driver.execute_async_script(CALL.replace("{}", f"({expression})"), given)

    def test_a_network_spans_exactly_its_channels(self):
        given = [dict(zip(("channel", "bandwidth_mhz", "secondary_side"), case)) for case in SPANS]
        for (*network, channels, low, high, sure), span in zip(SPANS, self.call("input.map(channels.spanOf)", given)):
            with self.subTest(network):
                got = span and [span["channels"], span["low"], span["high"], span["sure"]]
                self.assertEqual(got, channels and [channels, low, high, sure])

    def test_the_axis_keeps_distances_within_a_run_and_drops_unused_ones(self):
        for band, used, pieces in (
                ("2.4g", [1, 6], [(1, 13)]), ("2.4g", [14], [(1, 14)]), ("5g", [36], [(36, 64)]),
                ("5g", [60, 100], [(36, 64), (100, 144)]), ("5g", [149], [(149, 177)]), ("5g", [], [(36, 64)])):
            axis = self.call("channels.axisOf(...input)", [band, used])
            with self.subTest(band, used=used):
                self.assertEqual([(piece["channels"][0], piece["channels"][-1]) for piece in axis["pieces"]], pieces)
                widths = self.call("input.pieces.map(({low, high}) => "
                                   "channels.positionOf(input, high) - channels.positionOf(input, low))", axis)
                self.assertEqual(widths, [piece["high"] - piece["low"] for piece in axis["pieces"]])
        self.assertIsNone(self.call("channels.positionOf(channels.axisOf('5g', [36]), 5500)"))

    def test_a_hump_stands_on_the_floor_at_both_edges(self):
        points = self.call("channels.humpOf(channels.axisOf('5g', [36]), {low: 5170, high: 5250}, -50, -100)")
        xs, ys = [point["x"] for point in points], [point["y"] for point in points]
        self.assertAlmostEqual(xs[-1] - xs[0], 80)
        for got, wanted in ((ys[0], -100), (ys[-1], -100), (max(ys), -50), (ys[len(ys) // 2], -50)):
            self.assertAlmostEqual(got, wanted)
        self.assertEqual(xs, sorted(xs))

    def test_names_never_cover_each_other_and_the_first_always_find_room(self):
        area = {"left": 40, "right": 340, "top": 0, "bottom": 200}
        crowd = [{"x": 45 + 290 * (index % 7) / 6, "y": 60 + index, "width": 90, "height": 30 if index < 2 else 15}
                 for index in range(40)]
        placed = self.call("channels.placeLabels(...input)", [crowd, area])
        self.assertEqual([box["height"] for box in placed[:2]], [30, 30])
        self.assertGreater(len(placed), 10)
        for number, one in enumerate(placed):
            self.assertTrue(area["left"] <= one["left"] and one["left"] + one["width"] <= area["right"], one)
            self.assertTrue(area["top"] <= one["top"] and one["top"] + one["height"] <= area["bottom"], one)
            for other in placed[:number]:
                self.assertFalse(covers(one, other), (one, other))

    def test_colours_stay_and_differ_while_there_are_free_ones(self):
        first, again, twelve = self.call("""(() => {
            const taken = new Map(), ids = [...Array(12).keys()].map(number => '02:00:5E:0' + number);
            const ask = list => list.map(id => channels.colourOf(id, taken, 12));
            return [ask(ids.slice(0, 5)), ask([...ids].reverse()).reverse().slice(0, 5), ask(ids)]; })()""")
        self.assertEqual(first, again)
        self.assertEqual(sorted(twelve), list(range(12)))


def covers(one, other):
    return (one["left"] < other["left"] + other["width"] and other["left"] < one["left"] + one["width"]
            and one["top"] < other["top"] + other["height"] and other["top"] < one["top"] + one["height"])
