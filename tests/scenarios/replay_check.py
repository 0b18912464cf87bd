#!/usr/bin/env python3
"""Replays every scenario script and checks that looking back changes nothing.

Usage: replay_check.py path/to/tourvane-script path/to/scenarios

Each NAME.tvs runs three times with one seed, each in a fresh empty folder: twice as written,
which must print the same transcript (the same seed and script give the same game), and once
with `diary` and `history` after every command, whose transcript less the lines those two print
must be the first one byte for byte, with the same exit status. At least one script must
print another transcript with another seed, or the replays would prove nothing.
"""
import glob
import os
import re
import subprocess
import sys
import tempfile

SEED, OTHER_SEED = "5", "6"
QUEUEING = ("rnd", "answer", "input", "automemo")  # these run before the start-up
LOOK_BACK = re.compile(rb"^(diary|week) \d\d/\d\d/\d+ ")


def run(driver, script_text, seed=SEED):
    with tempfile.TemporaryDirectory() as work:
        path = os.path.join(work, "script.tvs")
        with open(path, "w", encoding="utf-8") as f:
            f.write(script_text)
        done = subprocess.run([driver, "--seed", seed, path], cwd=work, capture_output=True,
                              timeout=60)
    return done.returncode, done.stdout.splitlines()


def looking_back(script_text):
    out = []
    for line in script_text.splitlines():
        out.append(line)
        words = line.split()
        # A look only after a command that has started the game, so the start-up keeps its moment.
        if words and not words[0].startswith("#") and words[0] not in QUEUEING:
            out += ["diary", "history"]
    return "\n".join(out) + "\n"


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    driver = os.path.abspath(sys.argv[1])
    failures = 0
    seed_matters = False
    scripts = sorted(glob.glob(os.path.join(sys.argv[2], "*.tvs")))
    for script in scripts:
        name = os.path.basename(script)
        with open(script, encoding="utf-8") as f:
            text = f.read()
        first = run(driver, text)
        seed_matters = seed_matters or run(driver, text, OTHER_SEED) != first
        if run(driver, text) != first:
            print("%s: the same seed gave two different transcripts" % name)
            failures += 1
        status, lines = run(driver, looking_back(text))
        shown = [l for l in lines if not LOOK_BACK.match(l)]
        plain = [l for l in first[1] if not LOOK_BACK.match(l)]
        if (status, shown) != (first[0], plain):
            diff = next((i for i, (a, b) in enumerate(zip(plain, shown)) if a != b),
                        min(len(plain), len(shown)))
            print("%s: looking back changed line %d (exit %d, was %d)" % (
                name, diff + 1, status, first[0]))
            failures += 1
    if not seed_matters:
        print("no script's transcript depends on the seed")
        failures += 1
    print("%d passed, %d failed" % (len(scripts) + 1 - failures, failures))
    return 1 if failures or not scripts else 0


if __name__ == "__main__":
    sys.exit(main())
