#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""test_result.py BUILD RESULT.xml: one line on a run of ctest, with how many tests were skipped and why."""

import json
import subprocess
import sys
import xml.etree.ElementTree as xml

NAMESPACES = "namespaces"  # the label of the tests that need them


def labels_of(build):
    shown = subprocess.run(["ctest", "--test-dir", build, "--show-only=json-v1"], capture_output=True, check=True)
    properties = {test["name"]: test.get("properties", []) for test in json.loads(shown.stdout)["tests"]}
    return {name: {label for row in rows if row["name"] == "LABELS" for label in row["value"]}
            for name, rows in properties.items()}


def main():
    build, result = sys.argv[1:]
    states = {case.get("name"): case for case in xml.parse(result).getroot().iter("testcase")}
    failed = [name for name, case in states.items() if case.get("status") == "fail"]
    skipped = [name for name, case in states.items() if case.get("status") not in ("run", "fail")]
    labels = labels_of(build) if skipped else {}
    boxed = [name for name in skipped if NAMESPACES in labels[name]]
    line = f"{len(states) - len(failed) - len(skipped)} passed, {len(failed)} failed, {len(skipped)} skipped"
    for names, why in ((boxed, "for want of namespaces"), (set(skipped) - set(boxed), "for another reason")):
        if names:
            line += f"; {len(names)} {why}: {' '.join(sorted(names))}"
    print(line)


main()
