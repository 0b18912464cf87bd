#!/usr/bin/env python3
"""Plays one scenario script with tourvane-script and compares the transcript with the
recorded one, line for line.

Usage: run_scenario.py [--update] path/to/tourvane-script path/to/NAME.tvs

The script runs with --seed 1 in a fresh empty folder. NAME.out beside it holds the exact
transcript; the exit status must be 1 when the transcript has an error line and 0 otherwise.
--update writes NAME.out from the run instead (check every line of it before keeping it).
"""
import os
import subprocess
import sys
import tempfile


def main():
    args = sys.argv[1:]
    update = bool(args) and args[0] == "--update"
    if update:
        args = args[1:]
    if len(args) != 2:
        sys.exit(__doc__)
    driver, script = (os.path.abspath(a) for a in args)
    expected_path = os.path.splitext(script)[0] + ".out"

    with tempfile.TemporaryDirectory() as work:
        run = subprocess.run([driver, "--seed", "1", script], cwd=work, capture_output=True,
                             timeout=60)
    got = run.stdout.decode("utf-8", errors="replace").splitlines()

    if update:
        with open(expected_path, "w", encoding="utf-8") as out:
            out.write("".join(line + "\n" for line in got))
        print("wrote %s (%d lines, exit %d)" % (expected_path, len(got), run.returncode))
        return 0

    with open(expected_path, encoding="utf-8") as f:
        want = f.read().splitlines()
    for n, (w, g) in enumerate(zip(want, got), start=1):
        if w != g:
            print("line %d differs\n  expected: %s\n  got:      %s" % (n, w, g))
            return 1
    if len(want) != len(got):
        print("expected %d lines, got %d; first extra: %s" % (
            len(want), len(got), (got[len(want)] if len(got) > len(want) else want[len(got)])))
        return 1
    status = 1 if any(line.startswith("error ") for line in want) else 0
    if run.returncode != status:
        print("exit status %d, expected %d\n%s" % (run.returncode, status,
                                                    run.stderr.decode(errors="replace")))
        return 1
    print("%d lines as recorded" % len(got))
    return 0


if __name__ == "__main__":
    sys.exit(main())
