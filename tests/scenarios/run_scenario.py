#!/usr/bin/env python3
"""Plays one scenario script with tourvane-script and compares the transcript with the
recorded one, line for line.

Usage: run_scenario.py [--update] path/to/tourvane-script path/to/NAME.tvs

The script runs with --seed 1 in a fresh empty folder; a line "# next run" starts the program
again in the same folder, so later runs find the files of the earlier ones. NAME.out beside it holds the exact
transcript; the exit status must be 1 when the transcript has an error line and 0 otherwise.
--update writes NAME.out from the run instead (check every line of it before keeping it).
"""
import os
import re
import subprocess
import sys
import tempfile

args = sys.argv[1:]
update = args[:1] == ["--update"]
args = args[1:] if update else args
if len(args) != 2:
    sys.exit(__doc__)
driver, script = (os.path.abspath(a) for a in args)
expected_path = os.path.splitext(script)[0] + ".out"
with open(script, encoding="utf-8") as f:
    runs = re.split(r"(?m)^# next run\n", f.read())
with tempfile.TemporaryDirectory() as work:
    done = [subprocess.run([driver, "--seed", "1"], input=text.encode(), cwd=work,
                           capture_output=True, timeout=60) for text in runs]
got = b"".join(r.stdout for r in done).decode("utf-8", errors="replace").splitlines()
returncode, stderr = max(r.returncode for r in done), b"".join(r.stderr for r in done)
if update:
    with open(expected_path, "w", encoding="utf-8") as out:
        out.write("".join(line + "\n" for line in got))
    print("wrote %s (%d lines, exit %d)" % (expected_path, len(got), returncode))
    sys.exit(0)
with open(expected_path, encoding="utf-8") as f:
    want = f.read().splitlines()
for n in range(max(len(want), len(got))):
    w, g = (want + ["<end>"] * len(got))[n], (got + ["<end>"] * len(want))[n]
    if w != g:
        sys.exit("line %d differs\n  expected: %s\n  got:      %s" % (n + 1, w, g))
status = 1 if any(line.startswith("error ") for line in want) else 0
if returncode != status:
    sys.exit("exit status %d, expected %d\n%s" % (returncode, status, stderr.decode()))
print("%d lines as recorded" % len(got))
