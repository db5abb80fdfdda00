#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""run.py WEB TOOL SANDBOX [MODULE[.CLASS[.TEST]]...]: the web back end as built, over its own connections."""
import sys
import unittest

sys.dont_write_bytecode = True

# pylint: disable=wildcard-import,unused-wildcard-import,unused-import
import changes
import guide
import jobs
import load
import resources
import safety

if __name__ == "__main__":
    names = sys.argv[4:] or ["safety", "resources", "changes", "jobs", "load", "guide"]
    result = unittest.TextTestRunner().run(unittest.defaultTestLoader.loadTestsFromNames(names))
    sys.exit(not result.wasSuccessful())
