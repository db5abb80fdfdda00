#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""gateway_files.py TOOL SANDBOX [unittest arguments]: the same gateway files through `caltofal apply` and
`caltofal-sandbox import`, which have a reader each: both take them, or both refuse them at the same line, and neither
shows more of a line than its path."""
import os
import re
import subprocess
import sys
import unittest

sys.dont_write_bytecode = True

from tool import Tool

tool = Tool(sys.argv[1], sys.argv[2])
SSID = b"Device.WiFi.SSID.2.SSID"
GOOD = (
    b"\xef\xbb\xbf@capture\n" + SSID + b" = My\\x41Net\n",
    b"@capture\r\n  # comment\r\n  " + SSID + b"\t = MyANet\r\n",
    b"@capture\r" + SSID + b" [ string(:32)  rw default=\"a ] \\\" =\" ] = MyANet\r",
    b"# one\n" + SSID + b" = MyANet\nDevice.X_A.T.{i}. [table rw]\nDevice.X_A.T.{i}.N [list enum(a|\"b ] c\")]\n",
    b"@capture\n@file \"/a b\" = x\n@answer \"iw dev\" 0 = \n@answer \"iw\" 1 =\n" + SSID + b" = MyANet\n",
)
# The line that is wrong, 0 for the file as a whole, and the file from its second line on.
BAD = (
    (2, SSID + b" = My\\qNet"), (2, SSID + b" = hunter2\\x4"), (2, SSID + b" = \\x00"), (2, SSID + b" = a\\"),
    (3, SSID + b" = a\n" + SSID + b" = b"), (3, b"@file \"/a\" = x\n@file \"/a\" = y"),
    (2, SSID + b" [bogus] = a"), (2, SSID + b" [string int] = a"), (2, SSID + b" [string = a"),
    (2, SSID + b" [list] = a"), (2, SSID + b" [default=\"hunter2] = a"), (2, SSID + b" [default=hunter2] = a"),
    (2, SSID + b" [last=1] = a"), (2, b"Device.WiFi. [string]"), (2, b"Device.WiFi. [last=x]"), (2, b"Device.WiFi. = a"),
    (2, b"@file \"x"), (2, b"@file x = y"), (2, b"@answer"), (2, b"@answer \"x\" = y"), (2, b"@bogus"),
    (2, SSID), (2, SSID + b"=hunter2"), (2, SSID + b" =hunter2"), (2, SSID + b": hunter2"), (2, SSID + b" hunter2"),
    (2, b"hunter2"), (2, b"hunter2 = a"), (2, b"Password=hunter2"), (2, b"Device..A = hunter2"),
    (2, b"Device.A.01.B = a"), (2, b"Device.1.2.B = a"), (2, b"Device.-A.B = a"), (2, b"Device.A.{i}.B = a"),
)


class GatewayFiles(unittest.TestCase):
    def setUp(self):
        self.folder = tool.folder()
        self.file = os.path.join(self.folder, "f.tr181")

    def both(self, content):
        """What each program says of a file that may have any bytes: its exit code and its words."""
        with open(self.file, "wb") as file:
            file.write(content)
        return self.results(self.file)

    def results(self, path):
        done = subprocess.run([tool.sandbox_executable, "import", "copy", path, "--replace"], stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, env=tool.environment(self.folder), timeout=60, check=False)
        applied = tool.run("apply", path, folder=self.folder)
        return (done.returncode, done.stderr.decode()), (applied.code, applied.err)

    def test_what_is_right_is_taken_by_both(self):
        for content in GOOD:
            with self.subTest(content):
                tool.run("set", "Device.WiFi.SSID.2", "SSID=before", folder=self.folder)
                self.assertEqual([code for code, _ in self.both(content)], [0, 0])
                for gateway in ("home", "copy"):
                    got = tool.run("-g", gateway, "get", SSID.decode(), "--values", folder=self.folder)
                    self.assertEqual(got.out, b"MyANet\n", gateway)

    def test_what_is_wrong_is_refused_by_both(self):
        for line, content in BAD:
            with self.subTest(content):
                for code, words in self.both(b"@capture\n" + content + b"\n"):
                    self.assertEqual(code, 1, words)
                    self.assertRegex(words, rf"^caltofal[a-z-]*: {re.escape(self.file)}:{line}: .+\n$")
                    self.assertNotIn("hunter2", words)

    def test_what_is_no_file_is_named(self):
        for path, reason in (("/dev/null", "is empty"), (".", "is a directory"), ("none", "No such file or directory")):
            for code, words in self.results(path):
                self.assertEqual((code, words.split(": ", 1)[1]), (1, f"{path}: {reason}\n"))


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
