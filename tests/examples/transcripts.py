#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds a document to what it shows: its transcripts print what it says, its code is that of the examples.

transcripts.py [--box] [--update] ROOT BUILD DOCUMENT

A block, fenced or indented, that begins with "$ " is a transcript: its commands run with the build's programs in PATH,
in the document's order, on gateways that are new in every section (##). `cat FILE` writes the file where there is none.
Times, process numbers, durations, and line
numbers and blanks at a line's end may differ. A comment before a block says what else there is to know of it:

    <!-- in the box -->           needs the device box; these blocks run with --box only, beside the others
    <!-- not run: REASON -->      is left alone
    <!-- examples/FILE -->        is code: the file, or its part between "guide: begin" and "guide: end"
    <!-- file: NAME -->           is written to that file

The build that is tested is build/release there, as in a clone.

A fenced block in a programming language bears such a comment. --update writes what differs anew: look at the changes.
Exit code 77 where there can be no box.
"""

import argparse
import difflib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

FENCED = r"```(?P<kind>\w*)\n(?P<fenced>(?:.*\n)*?)```$"
INDENTED = r"(?P<margin> {4,})(?P<indented>\$ .*\n(?:(?P=margin).*\n|\n(?=(?P=margin)))*)"
PART = re.compile(rf"^## .*$|(?:^<!-- (?P<mark>.*?) -->\n)?^(?:{FENCED}|{INDENTED})", re.M)
LANGUAGES = ("c", "cpp", "cmake")
DIFFERS = (r" +$", r": (\d+|\.\.\.)\]", r"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d(\.\d+)?\+\d{4}( \d+)?", r"\[\d+\]", r"\b\d+us\b")
END = "\x01"


def masked(text):
    for pattern in DIFFERS:
        text = re.sub(pattern, "#", text, flags=re.M)
    return text


class Document:
    def __init__(self, arguments, scratch):
        self.arguments = arguments
        self.scratch = scratch
        self.home = scratch / "home/me"
        self.home.mkdir(parents=True)
        build = arguments.build.absolute()
        (self.home / "build").mkdir()
        (self.home / "build/release").symlink_to(build)
        self.environment = {name: value for name, value in os.environ.items()
                            if not name.startswith(("CALTOFAL_", "XDG_", "LC_"))}
        self.environment |= {"HOME": str(self.home), "LC_ALL": "C.UTF-8",
                             "PATH": os.pathsep.join([f"{build}/examples", f"{build}/bin", os.environ["PATH"]])}
        self.shown = set()
        shutil.copy(arguments.root / "tests/store/dumps/acs.csv", self.home)

    def code(self, name):
        self.shown.add(name)
        text = (self.arguments.root / name).read_text()
        part = re.search(r"^[^\n]*guide: begin\n(.*)^[^\n]*guide: end\n", text, re.S | re.M)
        return part.group(1) if part else text.split("\n", 1)[1]  # without the line of the licence

    def run(self, text):
        """The transcript with what its commands print now."""
        steps = re.findall(r"^\$ (.*)\n((?:(?!\$ ).*\n)*)", text, re.M)
        script = "exec 2>&1\n"
        for command, output in steps:
            file = self.home / command.removeprefix("cat ")
            if re.fullmatch(r"cat [\w.]+", command) and not file.exists() and "trace" not in command:
                file.write_text(output)
            script += f"{command}\nkept=$?; printf '{END}'; (exit $kept)\n"
        done = subprocess.run(["bash", "-c", script], env=self.environment, cwd=self.home, capture_output=True,
                              text=True, timeout=200, check=False)
        printed = done.stdout.replace(str(self.scratch), "").split(END)
        return "".join(f"$ {command}\n{output}" for (command, _), output in zip(steps, printed))

    def anew(self, part):
        """What the part of the document should be."""
        if part[0].startswith("## "):
            shutil.rmtree(self.home / ".local", ignore_errors=True)
            return part[0]
        mark = part["mark"] or ""
        text = part["fenced"] if part["indented"] is None else part["indented"].replace("\n" + part["margin"], "\n")
        if mark.startswith("file: "):
            (self.home / mark.removeprefix("file: ")).write_text(text)
            return part[0]
        if mark.startswith("examples/"):
            now = self.code(mark)
        elif part["kind"] in LANGUAGES and not mark:
            sys.exit(f"this block does not say what it is:\n{text}")
        elif not text.startswith("$ ") or mark.startswith("not run: "):
            return part[0]
        elif mark == "in the box" and not self.arguments.box:
            return part[0]
        else:
            now = self.run(text)
        if masked(now) == masked(text):
            return part[0]
        now = re.sub(r" +$", "", now, flags=re.M)
        if part["indented"] is not None:
            now = re.sub(r"^(?=.)", part["margin"], now, flags=re.M)
            return part[0].replace(part["margin"] + part["indented"], now)
        return part[0].replace(text, now)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--box", action="store_true")
    parser.add_argument("--update", action="store_true")
    parser.add_argument("root", type=pathlib.Path)
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("document", type=pathlib.Path)
    arguments = parser.parse_args()
    file = arguments.root / arguments.document
    text = file.read_text()
    with tempfile.TemporaryDirectory() as scratch:
        document = Document(arguments, pathlib.Path(scratch))
        if arguments.box and subprocess.run(["caltofal-sandbox", "run", "--check"], env=document.environment,
                                            check=False).returncode == 77:
            sys.exit(77)
        written = PART.sub(document.anew, text)
        if file.name == "host-guide.md":
            hidden = {f"examples/{path.name}" for path in (arguments.root / "examples").glob("*.c*")} - document.shown
            if hidden:
                sys.exit(f"the guide does not show {sorted(hidden)}")
    if arguments.update:
        file.write_text(written)
    elif written != text:
        sys.stderr.writelines(difflib.unified_diff(text.splitlines(True), written.splitlines(True),
                                                   str(arguments.document), "now"))
        sys.exit(1)


main()
