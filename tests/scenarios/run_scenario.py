#!/usr/bin/env python3
"""Plays scenario scripts with tourvane-script, each run in a fresh empty folder.

  run_scenario.py [--update] DRIVER NAME.tvs   the transcript (--seed 1) is NAME.out line for
      line, and the exit status is 1 when it has an error line, 0 otherwise; --update writes
      NAME.out from the run instead (check every line of it before keeping it).
  run_scenario.py --replays DRIVER FOLDER      each script (--seed 5) prints the same transcript
      again, and again with `diary` and `history` after every command less the lines those
      print; and one script at least prints another transcript with another seed.
"""
import glob, itertools, os, re, subprocess, sys, tempfile

QUEUEING = ("rnd", "answer", "input", "automemo")  # run before the start-up: no look there
LOOK_BACK = re.compile(r"^(diary|week) \d\d/\d\d/\d+ ")


def run(driver, text, seed):
    with tempfile.TemporaryDirectory() as work:
        done = subprocess.run([driver, "--seed", seed], input=text.encode(), cwd=work,
                              capture_output=True, timeout=60)
    out = done.stdout.decode("utf-8", errors="replace").splitlines()
    return done.returncode, out, done.stderr.decode()


def check(driver, script, update):
    expected_path = os.path.splitext(script)[0] + ".out"
    status, got, stderr = run(driver, open(script, encoding="utf-8").read(), "1")
    if update:
        open(expected_path, "w", encoding="utf-8").write("".join(l + "\n" for l in got))
        return "wrote %s (%d lines, exit %d)" % (expected_path, len(got), status)
    want = open(expected_path, encoding="utf-8").read().splitlines()
    for n, (w, g) in enumerate(itertools.zip_longest(want, got, fillvalue="<end>")):
        if w != g:
            sys.exit("line %d differs\n  expected: %s\n  got:      %s" % (n + 1, w, g))
    if status != any(line.startswith("error ") for line in want):
        sys.exit("exit status %d\n%s" % (status, stderr))
    return "%d lines as recorded" % len(got)


def replays(driver, folder):
    def looking_back(text):
        out = []
        for line in text.splitlines():
            words = line.split()
            out += [line] + (["diary", "history"] if words and words[0][0] != "#"
                             and words[0] not in QUEUEING else [])
        return "\n".join(out) + "\n"

    def transcript(text, seed):
        status, lines, _ = run(driver, text, seed)
        return status, [l for l in lines if not LOOK_BACK.match(l)]

    failures, seed_matters = [], False
    scripts = sorted(glob.glob(os.path.join(folder, "*.tvs")))
    for script in scripts:
        text = open(script, encoding="utf-8").read()
        first = transcript(text, "5")
        seed_matters = seed_matters or transcript(text, "6") != first
        for what, other in (("the same seed", transcript(text, "5")),
                            ("looking back", transcript(looking_back(text), "5"))):
            if other != first:
                failures.append("%s: %s changed the transcript" % (os.path.basename(script), what))
    if not seed_matters or not scripts:
        failures.append("no script's transcript depends on the seed")
    sys.exit("\n".join(failures) if failures else None)


args = sys.argv[1:]
if len(args) == 3 and args[0] == "--replays":
    replays(os.path.abspath(args[1]), args[2])
elif len(args) in (2, 3) and args[:len(args) - 2] in ([], ["--update"]):
    print(check(os.path.abspath(args[-2]), os.path.abspath(args[-1]), len(args) == 3))
else:
    sys.exit(__doc__)
