#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""watch.py TOOL SANDBOX: pages that are shown again and again, on a terminal and into a pipe."""
import re
import signal
import subprocess
import sys
import unittest

sys.dont_write_bytecode = True

from tool import Tool, interrupted

tool = Tool(sys.argv[1], sys.argv[2])


class Watch(unittest.TestCase):
    def setUp(self):
        self.folder = tool.folder()

    def test_a_page_is_shown_again_until_the_key(self):
        shown = interrupted(tool, ["mode", "--json", "--watch", "1"], signal.SIGINT, 1.6, self.folder)
        self.assertEqual((shown.code, shown.err), (0, ""))
        self.assertEqual(shown.out, b'{"mode":4,"router":true,"wifi_wan":false}\n' * 2)
        self.assertEqual(interrupted(tool, ["mode", "--watch"], signal.SIGTERM, 0.5, self.folder).code, 143)

    def test_a_key_pressed_at_the_first_line_ends_it_well(self):
        for _ in range(20):
            with subprocess.Popen([tool.executable, "mode", "--watch"], env=tool.environment(self.folder),
                                  stdout=subprocess.PIPE, stderr=subprocess.PIPE) as process:
                process.stdout.read(1)
                process.send_signal(signal.SIGINT)
                err = process.communicate(timeout=30)[1]
            self.assertEqual((process.returncode, err), (0, b""))

    def test_a_page_that_fails_stays_with_the_error_below(self):
        columns, rows = 40, 10
        tool.sandbox("fault", "add", "Device.DHCPv4.Server.Pool.1", "--nth", "2", "--code", "no-memory", folder=self.folder)
        text = tool.on_terminal("lan", "--ipv4", "--watch", "1", columns=columns, rows=rows, folder=self.folder,
                                until=b"fault 1 hit", NO_COLOR="1").decode()
        screens = [re.sub(r"\x1b\[[KJ]", "", screen).splitlines() for screen in text.split("\x1b[H")[1:]]
        self.assertEqual(len(screens), 2, text)
        for screen in screens:
            self.assertEqual(screen[0], screens[0][0])
            self.assertLess(sum(max(1, -(-len(line) // columns)) for line in screen), rows, screen)
        self.assertRegex(screens[1][-1], "^caltofal: request on .{50,} failed: fault 1 hit")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
