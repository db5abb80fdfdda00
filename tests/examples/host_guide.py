#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds docs/host-guide.md to the examples: its code is theirs, and its commands print what it says.

host_guide.py [--box] [--update] ROOT DIRECTORY...

A comment before a block says what the block is:

    <!-- examples/FILE -->        the file, or its part between "guide: begin" and "guide: end"
    <!-- run -->                  commands, with what they print
    <!-- run in the box -->       likewise; only these with --box

Blocks run in the guide's order, on gateways of their own, with the directories in PATH; every block of code or of
commands bears such a comment. --update writes code and output anew: look at the difference.
"""

import argparse
import difflib
import os
import pathlib
import re
import subprocess
import sys
import tempfile

BLOCK = re.compile(r"(?:<!-- (?P<mark>.*?) -->\n)?```(?P<kind>\w*)\n(?P<text>.*?)^```$", re.S | re.M)
UNCHECKED = ("sh",)  # installing and building: the package tests do that
END = "\x01"


def code(root, name):
    text = (root / name).read_text()
    part = re.search(r"^[^\n]*guide: begin\n(.*)^[^\n]*guide: end\n", text, re.S | re.M)
    return part.group(1) if part else text.split("\n", 1)[1]  # without the line of the licence


def run(text, environment, scratch):
    """The block anew, with what its commands print now."""
    commands = re.findall(r"^\$ (.*)$", text, re.M)
    script = "exec 2>&1\n" + "".join(f"{line}\nkept=$?; printf '{END}'; (exit $kept)\n" for line in commands)
    done = subprocess.run(["bash", "-c", script], env=environment, cwd=scratch, capture_output=True, text=True,
                          timeout=200, check=False)
    outputs = done.stdout.split(END)
    return "".join(f"$ {line}\n{output}" for line, output in zip(commands, outputs))


def anew(block, arguments, environment, scratch):
    """What the block should hold."""
    mark, kind, text = block["mark"], block["kind"], block["text"]
    if kind in UNCHECKED:
        return text
    if mark in ("run", "run in the box"):
        return run(text, environment, scratch) if (mark != "run") == arguments.box else text
    if not mark or not mark.startswith("examples/"):
        sys.exit(f"this block says not what it is:\n{text}")
    return code(arguments.root, mark)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--box", action="store_true")
    parser.add_argument("--update", action="store_true")
    parser.add_argument("root", type=pathlib.Path)
    parser.add_argument("path", nargs="+")
    arguments = parser.parse_args()
    guide = arguments.root / "docs/host-guide.md"
    text = guide.read_text()
    shown = {block["mark"] for block in BLOCK.finditer(text)}
    hidden = {f"examples/{file.name}" for file in (arguments.root / "examples").glob("*.c*")} - shown
    if hidden:
        sys.exit(f"the guide does not show {sorted(hidden)}")
    with tempfile.TemporaryDirectory() as scratch:
        environment = {name: value for name, value in os.environ.items() if not name.startswith("CALTOFAL_")}
        environment["CALTOFAL_SANDBOX_DIR"] = scratch + "/store"
        environment["PATH"] = os.pathsep.join([*map(os.path.abspath, arguments.path), environment["PATH"]])
        os.mkdir(scratch + "/store")
        if arguments.box and subprocess.run(["caltofal-sandbox", "run", "--check"], env=environment,
                                            check=False).returncode == 77:
            sys.exit(77)

        def renewed(block):
            head = block[0][: block.start("text") - block.start()]
            return head + anew(block, arguments, environment, scratch) + "```"

        written = BLOCK.sub(renewed, text)
    if arguments.update:
        guide.write_text(written)
    elif written != text:
        sys.stderr.writelines(difflib.unified_diff(text.splitlines(True), written.splitlines(True), "the guide", "now"))
        sys.exit(1)


main()
