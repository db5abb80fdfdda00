#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""links_test.py FOLDER: every link of an installed document to another file leads to one, and to its heading."""
import pathlib
import re
import sys

LINK = re.compile(r"\]\(([^)\s:]*)\)")
HEADING = re.compile(r"^#+ (.*)$", re.M)


def anchors(document):
    """The names that headings are linked by."""
    headings = HEADING.findall(document.read_text(encoding="utf-8"))
    return {re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-") for heading in headings}


def broken(document):
    for link in LINK.findall(document.read_text(encoding="utf-8")):
        path, _, anchor = link.partition("#")
        target = document.parent / path if path else document
        if not target.exists():
            yield f"{document}: {link}: no such file"
        elif anchor and anchor not in anchors(target):
            yield f"{document}: {link}: no such heading"


documents = sorted(pathlib.Path(sys.argv[1]).rglob("*.md"))
faults = [fault for document in documents for fault in broken(document)]
print("\n".join(faults) or f"{len(documents)} documents")
sys.exit(1 if faults or not documents else 0)
