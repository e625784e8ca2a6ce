#!/usr/bin/env python3
"""The analysis of tools/bench_stability.py on made-up processes whose answer is known.

Three processes of two kernel pairs: the third takes twice the time of the
first everywhere (a busy stretch: no flag), cfwd/64fc/8 is 1.6 times slower
than elsewhere in the second (flag "process" only: its mirror ratio is the
median over the processes), and cinv/32fc/4 is always 1.3 times its forward
(flag "mirror" only).
"""
import json
import os
import subprocess
import sys
import tempfile

TOOL = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tools", "bench_stability.py")
BASE = {"cfwd/64fc/8": 10.0, "cinv/64fc/8": 10.0, "cfwd/32fc/4": 5.0, "cinv/32fc/4": 6.5}
PROCESSES = [{}, {"cfwd/64fc/8": 1.6}, {name: 2.0 for name in BASE}]
EXPECTED = {"cfwd/64fc/8": "process", "cinv/64fc/8": "", "cfwd/32fc/4": "", "cinv/32fc/4": "mirror"}


def write(directory):
    for i, slower in enumerate(PROCESSES):
        runs = [{"name": f"{name}/vtxgen", "run_name": f"{name}/vtxgen", "run_type": "iteration",
                 "real_time": ns * slower.get(name, 1.0) * (1 + 0.01 * r), "time_unit": "ns"}
                for name, ns in BASE.items() for r in range(3)]
        with open(os.path.join(directory, f"proc-{i}.json"), "w", encoding="utf-8") as f:
            json.dump({"context": {}, "benchmarks": runs}, f)


def main():
    with tempfile.TemporaryDirectory() as tmp:
        write(tmp)
        done = subprocess.run([sys.executable, TOOL, "--from", tmp, "--strict"], capture_output=True, text=True)
    print(done.stdout + done.stderr)
    flags = {line.split()[0]: " ".join(line.split()[7:]) for line in done.stdout.splitlines()
             if line.split() and line.split()[0] in EXPECTED}
    bad = [f"{name}: flags {flags.get(name)!r}, expected {want!r}" for name, want in EXPECTED.items()
           if flags.get(name) != want]
    if done.returncode != 2:
        bad.append(f"--strict with flags: exit status {done.returncode}, expected 2")
    for line in bad:
        print("FAIL", line)
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
