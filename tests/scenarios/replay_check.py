#!/usr/bin/env python3
"""Usage: replay_check.py path/to/tourvane-script path/to/scenarios

Each NAME.tvs runs with one seed, each time in a fresh folder: twice as written, which must
print the same transcript, and once with `diary` and `history` after every command, which
less the lines those print must be the same transcript with the same exit status. One script
at least must print another transcript with another seed, or the replays would prove nothing.
"""
import glob, os, re, subprocess, sys, tempfile

QUEUEING = ("rnd", "answer", "input", "automemo")  # run before the start-up: no look there
LOOK_BACK = re.compile(rb"^(diary|week) \d\d/\d\d/\d+ ")


def run(driver, text, seed="5"):
    """Each part of the script after a "# next run" line is a new run in the same folder."""
    with tempfile.TemporaryDirectory() as work:
        done = [subprocess.run([driver, "--seed", seed], input=part.encode(), cwd=work,
                               capture_output=True, timeout=60)
                for part in re.split(r"(?m)^# next run\n", text)]
    out = b"".join(d.stdout for d in done).splitlines()
    return [d.returncode for d in done], [l for l in out if not LOOK_BACK.match(l)]


def looking_back(text):
    out = []
    for line in text.splitlines():
        words = line.split()
        out.append(line)
        if words and not words[0].startswith("#") and words[0] not in QUEUEING:
            out += ["diary", "history"]
    return "\n".join(out) + "\n"


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    driver = os.path.abspath(sys.argv[1])
    scripts = sorted(glob.glob(os.path.join(sys.argv[2], "*.tvs")))
    failures, seed_matters = 0, False
    for script in scripts:
        with open(script, encoding="utf-8") as f:
            text = f.read()
        first = run(driver, text)
        seed_matters = seed_matters or run(driver, text, "6") != first
        for what, again in (("the same seed", run(driver, text)),
                            ("looking back", run(driver, looking_back(text)))):
            if again != first:
                print("%s: %s changed the transcript" % (os.path.basename(script), what))
                failures += 1
    if not seed_matters:
        print("no script's transcript depends on the seed")
        failures += 1
    print("%d passed, %d failed" % (2 * len(scripts) + 1 - failures, failures))
    return 1 if failures or not scripts else 0


if __name__ == "__main__":
    sys.exit(main())
