#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""arrows.py ROOT: every include line of the library, the sandbox and the tools is an arrow of docs/architecture.md."""

import pathlib
import re
import sys
import unittest

TOPS = ("src", "sandbox", "tools", "include", "platform")  # the directories that include lines begin at
NAMED = ("src", "sandbox")  # their include lines name the room
SOURCES = (".h", ".c", ".cpp", ".in")
ROW = re.compile(r"^\| `([a-z/]+)/` \|.*\|([^|]*)\|$", re.M)
INCLUDE = re.compile(r'^\s*#\s*include\s*["<]([^">]+)[">]', re.M)
# Headers of others, and the only rooms that see them.
OTHERS = {
    "sqlite3.h": ["sandbox/store"],
    "nlohmann/": ["sandbox/exchange", "sandbox/device", "sandbox/tool", "tools/pages", "tools/caltofal", "tools/web"],
    "CLI/": ["sandbox/tool", "tools/caltofal", "tools/help", "tools/web"],
    "libsmartcols": ["tools/pages", "tools/caltofal"],
    "microhttpd.h": ["tools/web"],
}


def arrows_of(page):
    """Room -> the rooms and files that it may include."""
    return {room: re.findall(r"`([^`]+)`", targets) for room, targets in ROW.findall(page)}


class Project:
    def __init__(self, arrows, files):
        self.arrows = arrows
        self.files = files  # path -> text

    def room(self, path):
        rooms = [room for room in self.arrows if path.startswith(room + "/")]
        return max(rooms, key=len, default=None)

    def target(self, path, name):
        """The project's file that an include line means."""
        beside = path.rpartition("/")[0]
        places = [f"{top}/{name}" for top in (beside, *TOPS)]
        return next((place for place in places if place in self.files), None)

    def fault(self, path, name):
        """What is wrong with an include line, or None."""
        room = self.room(path)
        target = self.target(path, name)
        if room is None:
            return "the file stands in no room"
        if target is None:
            wrong = [start for start, rooms in OTHERS.items() if name.startswith(start) and room not in rooms]
            return "not for this room" if wrong else None
        allowed = self.arrows[room]
        if self.room(target) != room and self.room(target) not in allowed and target not in allowed:
            return f"{room} may not include {self.room(target) or target}"
        if path.startswith(NAMED) and target.startswith(NAMED) and "/" not in name:
            return "does not name the room"
        return None

    def faults(self):
        return [f"{path}: {name}: {fault}" for path, text in sorted(self.files.items())
                for name in INCLUDE.findall(text) if (fault := self.fault(path, name))]


class Arrows(unittest.TestCase):
    root = pathlib.Path()

    @classmethod
    def setUpClass(cls):
        cls.arrows = arrows_of((cls.root / "docs/architecture.md").read_text())
        cls.files = {str(file.relative_to(cls.root)): file.read_text() for top in TOPS
                     for file in (cls.root / top).rglob("*") if file.suffix in SOURCES and file.is_file()}

    def test_every_include_line_is_an_arrow_of_the_map(self):
        self.assertGreater(len(self.files), 300)
        self.assertEqual([], Project(self.arrows, self.files).faults())

    def test_rooms_of_the_map_exist(self):
        self.assertEqual([], [room for room in self.arrows if not (self.root / room).is_dir()])

    def test_a_wrong_arrow_is_seen(self):
        for path, line in (
                ("src/network/x.cpp", '"wifi/object_path.h"'),
                ("src/mesh/x.cpp", '"libcal.h"'),
                ("src/frame/x.cpp", '"text.h"'),
                ("src/wifi/convert/x.cpp", '"frame/message.h"'),
                ("src/attic/x.cpp", '"frame/text.h"'),
                ("sandbox/value/x.cpp", '"store/model.h"'),
                ("sandbox/exchange/x.cpp", "<sqlite3.h>"),
                ("sandbox/device/box/x.cpp", '"tool/command.h"'),
                ("tools/pages/x.cpp", '"caltofal/print.h"'),
                ("tools/web/x.cpp", '"frame/text.h"'),
                ("tools/caltofal/x.cpp", "<libcal.h>")):
            project = Project(self.arrows, {**self.files, path: f"#include {line}\n"})
            self.assertEqual(1, len(project.faults()), f"{path}: {line}")


if __name__ == "__main__":
    Arrows.root = pathlib.Path(sys.argv.pop(1))
    unittest.main()
