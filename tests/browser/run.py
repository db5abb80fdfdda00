#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""run.py WEB TOOL SANDBOX FOLDER [MODULE[.CLASS[.TEST]]...]: the page in headless Chromium. FOLDER takes the
screenshots and what npm brings. Exit code 77 where there is no browser or no device box."""
import shutil
import sys
import unittest

sys.dont_write_bytecode = True


def missing():
    try:
        import selenium  # pylint: disable=import-outside-toplevel,unused-import
    except ImportError:
        return "python3-selenium"
    return next((name for name in ("chromium", "chromedriver") if not shutil.which(name)), None)


if __name__ == "__main__":
    if lacking := missing():
        print(f"skipped: no {lacking} here")
        sys.exit(77)
    from page import has_box, quit_browser
    if not has_box():
        print("skipped: no device box here")
        sys.exit(77)
    names = sys.argv[5:] or ["geometry", "views", "forms", "hostile", "chart", "link", "access"]
    try:
        result = unittest.TextTestRunner(verbosity=2).run(unittest.defaultTestLoader.loadTestsFromNames(names))
    finally:
        quit_browser()
    for test, reason in result.skipped:
        print(f"skipped: {test}: {reason}")
    sys.exit(not result.wasSuccessful())
