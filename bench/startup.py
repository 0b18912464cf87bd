#!/usr/bin/env python3
"""The game's start-up held against a bare Qt window's.

Runs `tourvane --measure-startup` and `tourvane-bare-window` in turn, PAIRS times each (the
one that goes first alternates), and prints the median of each and the ratio of the medians;
the game may take at most 1.5 times as long as the bare window. Each program prints how many
milliseconds after its process started its window was first painted (to the 10 ms tick of the
kernel's clock); the same runs are also timed from here, from before the process is started
to the printed line, which is finer.

    bench/startup.py [--pairs N] [--bin DIR] [--folder DIR] [--label]

DIR defaults to build-release/bin, else build/bin. The programs run in --folder (default: a
new empty folder), where the game looks for its save files. The platform is the caller's:
QT_QPA_PLATFORM=offscreen, or a real X server, e.g. xvfb-run -a -s '-screen 0 1920x1080x24'.
With --label the bare window shows a line of text too, and so reads the system's fonts as
the game's title screen must.
"""

import argparse
import os
import re
import statistics
import subprocess
import sys
import tempfile
import time

LIMIT = 1.5
LINE = re.compile(r"^startup: .* was drawn (-?\d+) ms after the process started$")


def run(program, folder):
    """One start: the program's own figure and the time seen from outside, in ms."""
    start = time.perf_counter()
    proc = subprocess.Popen(program, cwd=folder, stdout=subprocess.PIPE,
                            stderr=subprocess.DEVNULL, text=True)
    own = None
    for line in proc.stdout:
        match = LINE.match(line.strip())
        if match:
            own = float(match.group(1))
            break
    outside = (time.perf_counter() - start) * 1e3
    proc.stdout.read()
    if proc.wait(timeout=30) != 0 or own is None:
        sys.exit(f"startup.py: {program[0]} did not report its first paint")
    return own, outside


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--pairs", type=int, default=20)
    parser.add_argument("--bin")
    parser.add_argument("--folder")
    parser.add_argument("--label", action="store_true")
    args = parser.parse_args()
    root = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    bin_dir = args.bin or next(
        (d for d in (os.path.join(root, "build-release", "bin"), os.path.join(root, "build", "bin"))
         if os.path.exists(os.path.join(d, "tourvane-bare-window"))), None)
    if not bin_dir:
        sys.exit("startup.py: build tourvane and tourvane-bare-window first (or give --bin)")
    game = [os.path.join(bin_dir, "tourvane"), "--measure-startup"]
    bare = [os.path.join(bin_dir, "tourvane-bare-window")] + (["--label"] if args.label else [])

    with tempfile.TemporaryDirectory(prefix="tourvane-startup-") as scratch:
        folder = args.folder or scratch
        run(game, folder)  # the first start of all loads the libraries from the disk
        run(bare, folder)
        times = {"game": [], "bare": []}
        for pair in range(args.pairs):
            order = [("game", game), ("bare", bare)]
            if pair % 2:
                order.reverse()
            for name, program in order:
                times[name].append(run(program, folder))

    platform = os.environ.get("QT_QPA_PLATFORM") or (
        "xcb on " + os.environ["DISPLAY"] if os.environ.get("DISPLAY") else "default")
    against = "a bare window with a label" if args.label else "a bare window"
    print(f"{args.pairs} pairs against {against}, platform {platform}, limit {LIMIT}")
    verdict = True
    for k, how in ((0, "as each program reports it"), (1, "timed from outside")):
        game_ms = statistics.median(t[k] for t in times["game"])
        bare_ms = statistics.median(t[k] for t in times["bare"])
        ratio = game_ms / bare_ms if bare_ms > 0 else float("inf")
        verdict = verdict and ratio <= LIMIT
        print(f"{how:27}: game {game_ms:6.1f} ms  bare window {bare_ms:6.1f} ms  "
              f"ratio {ratio:.2f}")
    print("within the limit" if verdict else "OVER the limit")
    return 0 if verdict else 1


if __name__ == "__main__":
    sys.exit(main())
