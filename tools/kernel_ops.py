#!/usr/bin/env python3
"""The arithmetic of the compiled real and Hartley kernels against their graphs.

    kernel_ops.py <build dir>

Compiles the generated real and Hartley units with the library's own command
lines plus -fno-tree-vectorize -fno-tree-slp-vectorize (so that each
operation is one scalar instruction rather than a lane of a packed one), and
counts per kernel the additions and subtractions (addss, subss, addsd, subsd)
and the multiplications (mulss, mulsd).  The graph's counts from
`vtxgen-gen counts` predict them: Add + Neg + doublings (the compiler adds a
value to itself for 2 x) and Mul + N (the scale of each output).  Prints the
kernels that differ and, per family and precision, how many agree.
"""

import collections
import concurrent.futures
import os
import re
import shlex
import subprocess
import sys
import tempfile

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests"))
from check_kernel_code import functions  # noqa: E402  (the same reading of objdump)

UNIT = re.compile(r"generated/real_\w+\.cpp\.o$")
KERNEL = re.compile(r"^vtxg(DFTFwd_RToCCS|DFTInv_CCSToR|Hartley)_(\d+)_(32f|64f)$")
COUNTS = re.compile(r"^(vtxg\w+)\s+.*?\s+(\d+)\s+(\d+)\s+(\d+)\s+\d+\s+\d+\s+\d+\s+(\d+)$")


def compile_units(build, out_dir):
    commands = subprocess.run(["ninja", "-C", build, "-t", "commands", "src/libvtxgenp8.so"], check=True,
                              capture_output=True, text=True).stdout.splitlines()
    jobs = []
    for line in commands:
        args = shlex.split(line)
        if "-o" not in args or not UNIT.search(args[args.index("-o") + 1]):
            continue
        obj = os.path.join(out_dir, os.path.basename(args[args.index("-o") + 1]))
        args = [a for a in args if a != "/usr/bin/ccache"]
        args[args.index("-o") + 1] = obj
        for flag in ("-MD", "-MT", "-MF"):
            while flag in args:
                at = args.index(flag)
                del args[at:at + (1 if flag == "-MD" else 2)]
        jobs.append((args + ["-fno-tree-vectorize", "-fno-tree-slp-vectorize"], obj))
    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        for done in pool.map(lambda job: subprocess.run(job[0], cwd=os.path.join(build, "src"), check=True), jobs):
            pass
    return [obj for _, obj in jobs]


def main(argv):
    if len(argv) != 2:
        raise SystemExit(__doc__)
    build = os.path.abspath(argv[1])
    graph = {}
    counts = subprocess.run([os.path.join(build, "gen", "vtxgen-gen"), "counts"], check=True, capture_output=True,
                            text=True).stdout
    for line in counts.splitlines():
        m = COUNTS.match(line)
        if m and KERNEL.match(m.group(1)):
            add, mul, neg, doublings = (int(m.group(i)) for i in range(2, 6))
            graph[m.group(1)] = (add + neg + doublings, mul + int(KERNEL.match(m.group(1)).group(2)))
    compiled = {}
    with tempfile.TemporaryDirectory() as tmp:
        for obj in compile_units(build, tmp):
            for name, body in functions(obj):
                if name in graph:
                    ops = collections.Counter(op for _, op, _ in body)
                    compiled[name] = (ops["addss"] + ops["subss"] + ops["addsd"] + ops["subsd"],
                                      ops["mulss"] + ops["mulsd"])
    agree = collections.Counter()
    total = collections.Counter()
    for name, want in sorted(graph.items()):
        family = KERNEL.match(name).group(1) + " " + KERNEL.match(name).group(3)
        total[family] += 1
        got = compiled.get(name)
        if got == want:
            agree[family] += 1
        else:
            print(f"{name}: compiled {got} additions and multiplications, the graph {want}")
    for family in sorted(total):
        print(f"{family}: {agree[family]} of {total[family]} kernels compile to the graph's operations")
    return 0 if agree == total else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv))
