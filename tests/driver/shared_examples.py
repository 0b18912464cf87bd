#!/usr/bin/env python3
"""Runs the shared transcript checker against tourvane-script, or skips (exit 77) when the
checker isn't there, as in a clone without the shared folder beside it.

Usage: shared_examples.py path/to/check-driver.py path/to/tourvane-script
"""
import os
import subprocess
import sys

if len(sys.argv) != 3:
    sys.exit(__doc__)
checker, driver = sys.argv[1], sys.argv[2]
if not os.path.isfile(checker):
    print("skipped: %s not found" % checker)
    sys.exit(77)
sys.exit(subprocess.call([sys.executable, checker, driver]))
