#!/usr/bin/env python3
"""Kernel times across fresh processes: what changes with the process's layout.

    bench_stability.py build/release/bench/vtxgen_bench [-k 10] [--cpu 1] [--strict]

Runs vtxgen_bench K times, each a fresh process pinned to one core, with a
quick selection (by default the complex kernels, 20 repetitions of 2 ms in
random order), and reports per kernel:

  best       the best time over all processes
  slowest    the slowest process's best (its process number after the @)
  spread     slowest / best
  layout     the same, each process's times first divided by its load
             factor (the median over its kernels of time / best anywhere:
             a busy stretch covering a whole process slows every kernel
             alike); above 1.25 the kernel is flagged "process"
  mirror     the kernel's best over its mirror's best in the same process
             (forward against inverse of the same size and precision, CCS
             forward real against CCS inverse real), the median over the
             processes (a slowdown of one process is the "process" flag's);
             above 1.25 the kernel is flagged "mirror"
  code KB    with --library, the size of the kernel's entry point (kernels
             near the 32 KB instruction cache are the ones that move)

A kernel's time should depend on its code and its data, not on where the
loader put the library or the stack: the same kernel in two processes, or a
forward kernel and its inverse (the same instruction mix) in one, differ by a
few percent at most.  Benchmarks are noisy, so flags are reported and the exit
status stays 0 unless --strict is given.

--keep DIR keeps each process's JSON (DIR/proc-<i>.json); --from DIR reads
such a directory again instead of running.  --launcher prefixes each run
(e.g. "setarch -R" for a fixed layout), --env NAME=VALUE sets a variable in
every process, --env-pad B adds a variable of B * i bytes to process i, which
moves the stack of each process by a different amount.
"""

import argparse
import glob
import math
import os
import shlex
import shutil
import subprocess
import statistics
import sys
import tempfile

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from bench_report import best_times, load  # noqa: E402  (the same reading of the JSON as the report)

# The C name of a kernel from its benchmark family, with {n} its size and {p} its precision.
C_NAMES = {"cfwd": "vtxgDFTFwd_CToC_{n}_{p}", "cinv": "vtxgDFTInv_CToC_{n}_{p}",
           "rccs": "vtxgDFTFwd_RToCCS_{n}_{p}", "rpack": "vtxgDFTFwd_RToPack_{n}_{p}",
           "iccs": "vtxgDFTInv_CCSToR_{n}_{p}", "dht": "vtxgHartley_{n}_{p}"}
DEFAULT_FILTER = "^c(fwd|inv)/.*/vtxgen$"
MIRRORS = {"cfwd": "cinv", "cinv": "cfwd", "rccs": "iccs", "iccs": "rccs"}


def run_processes(args, out_dir):
    """Runs the K processes; returns the paths of their JSON files."""
    paths = []
    for i in range(args.processes):
        path = os.path.join(out_dir, f"proc-{i}.json")
        command = shlex.split(args.launcher or "")
        if args.cpu != "" and shutil.which("taskset"):
            command += ["taskset", "-c", str(args.cpu)]
        command += [args.bench, f"--benchmark_filter={args.filter}",
                    f"--benchmark_repetitions={args.repetitions}", f"--benchmark_min_time={args.min_time}",
                    "--benchmark_enable_random_interleaving=true", "--benchmark_display_aggregates_only=true",
                    f"--benchmark_out={path}", "--benchmark_out_format=json"]
        env = dict(os.environ)
        env.update(kv.split("=", 1) for kv in args.env)
        if args.env_pad:
            env["VTX_BENCH_PAD"] = "x" * (args.env_pad * i)
        print(f"process {i + 1}/{args.processes} ...", file=sys.stderr, flush=True)
        done = subprocess.run(command, env=env, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
        if done.returncode != 0:
            sys.stderr.write(done.stderr)
            raise SystemExit(f"bench_stability: {shlex.join(command)} failed with status {done.returncode}")
        paths.append(path)
    return paths


def code_sizes(library):
    """The size in bytes of each exported function of the library (nm -S), by name."""
    out = subprocess.run(["nm", "-S", "--defined-only", "-D", library], capture_output=True, text=True,
                         check=True).stdout
    sizes = {}
    for line in out.splitlines():
        fields = line.split()
        if len(fields) == 4:
            sizes[fields[3]] = int(fields[1], 16)
    return sizes


def code_kb(kernel, sizes):
    name = C_NAMES.get(kernel[0], "").format(n=kernel[2], p=kernel[1])
    return sizes[name] / 1024 if name in sizes else None


def per_process_bests(paths):
    """One dict per process: (family, precision, size) -> best ns of the vtxgen row."""
    processes = []
    for path in paths:
        best = best_times(load(path).get("benchmarks", []))
        processes.append({key[:3]: b[0] for key, b in best.items() if key[3] == "vtxgen" and b[0]})
    return processes


def load_factors(processes):
    """Per process: the median over its kernels of time / the kernel's best anywhere.

    A busy stretch that covers a whole process slows all its kernels alike;
    dividing by this factor leaves what is particular to a kernel.
    """
    best = {}
    for p in processes:
        for kernel, ns in p.items():
            best[kernel] = min(best.get(kernel, ns), ns)
    return [statistics.median(ns / best[kernel] for kernel, ns in p.items()) if p else 1.0 for p in processes]


def stability_rows(processes, threshold, sizes=None):
    """Per kernel: best, slowest process's best and its index, raw and load-corrected spread, median mirror
    ratio, flags."""
    factors = load_factors(processes)
    rows = []
    for kernel in sorted(set().union(*processes)):
        bests = [(p[kernel], i) for i, p in enumerate(processes) if kernel in p]
        best = min(b for b, _ in bests)
        slowest, slowest_at = max(bests)
        corrected = [b / factors[i] for b, i in bests]
        mirror = (MIRRORS.get(kernel[0]),) + kernel[1:]
        mirror_ratios = [p[kernel] / p[mirror] for p in processes if kernel in p and mirror in p]
        mirror_ratio = statistics.median(mirror_ratios) if mirror_ratios else None
        layout = max(corrected) / min(corrected)
        flags = []
        if layout > threshold:
            flags.append("process")
        if mirror_ratio and mirror_ratio > threshold:
            flags.append("mirror")
        rows.append({"kernel": "/".join(map(str, kernel)), "best": best, "slowest": slowest,
                     "slowest_at": slowest_at, "spread": slowest / best, "layout": layout,
                     "mirror": mirror_ratio, "code_kb": code_kb(kernel, sizes or {}), "flags": flags})
    return rows, factors


def print_rows(rows, factors, threshold):
    print(f"ns per call over {len(factors)} fresh processes; flagged above {threshold:.2f}")
    print("load factor of each process (median of its kernels' time / their best): "
          + " ".join(f"{f:.2f}" for f in factors))
    header = (f"{'kernel':<18} {'best':>9} {'slowest':>9} {'@':>3} {'spread':>7} {'layout':>7} {'mirror':>7} "
              f"{'code KB':>7}  flags")
    print(header)
    print("-" * len(header))
    for r in rows:
        mirror = f"{r['mirror']:7.2f}" if r["mirror"] else " " * 7
        kb = f"{r['code_kb']:7.1f}" if r["code_kb"] else " " * 7
        print(f"{r['kernel']:<18} {r['best']:9.2f} {r['slowest']:9.2f} {r['slowest_at']:>3} "
              f"{r['spread']:7.2f} {r['layout']:7.2f} {mirror} {kb}  {' '.join(r['flags'])}")
    flagged = [r for r in rows if r["flags"]]
    layouts = [r["layout"] for r in rows]
    print(f"\n{len(rows)} kernels; geometric mean of the layout spread "
          f"{math.exp(sum(map(math.log, layouts)) / len(layouts)):.3f}; {len(flagged)} flagged"
          + (": " + ", ".join(r["kernel"] for r in flagged) if flagged else ""))
    return flagged


def main(argv=None):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("bench", nargs="?", help="the vtxgen_bench program (not needed with --from)")
    parser.add_argument("-k", "--processes", type=int, default=10, help="fresh processes (default 10)")
    parser.add_argument("--cpu", default="1", help="the core to pin to with taskset; empty for none (default 1)")
    parser.add_argument("--filter", default=DEFAULT_FILTER, help=f"benchmarks to run (default {DEFAULT_FILTER})")
    parser.add_argument("--repetitions", type=int, default=20, help="repetitions per process (default 20)")
    parser.add_argument("--min-time", default="0.002", help="seconds of one repetition (default 0.002)")
    parser.add_argument("--threshold", type=float, default=1.25, help="flag above this ratio (default 1.25)")
    parser.add_argument("--strict", action="store_true", help="exit with status 2 when a kernel is flagged")
    parser.add_argument("--keep", help="keep each process's JSON in this directory")
    parser.add_argument("--from", dest="from_dir", help="read proc-*.json from this directory instead of running")
    parser.add_argument("--library", help="libvtxgenp8.so: adds each kernel's code size (nm) as a column")
    parser.add_argument("--launcher", help='a command prefix for each process, e.g. "setarch -R"')
    parser.add_argument("--env", action="append", default=[], help="NAME=VALUE for every process (repeatable)")
    parser.add_argument("--env-pad", type=int, default=0, help="add B * i bytes of environment to process i")
    args = parser.parse_args(argv)

    if args.from_dir:
        paths = sorted(glob.glob(os.path.join(args.from_dir, "proc-*.json")),
                       key=lambda p: int(p.rsplit("-", 1)[1].split(".")[0]))
    elif not args.bench:
        parser.error("give the vtxgen_bench program, or --from DIR")
    elif args.keep:
        os.makedirs(args.keep, exist_ok=True)
        paths = run_processes(args, args.keep)
    else:
        with tempfile.TemporaryDirectory() as tmp:
            paths = run_processes(args, tmp)
            processes = per_process_bests(paths)
    if args.from_dir or args.keep:
        processes = per_process_bests(paths)
    if not processes or not any(processes):
        print("bench_stability: no vtxgen rows", file=sys.stderr)
        return 1
    rows, factors = stability_rows(processes, args.threshold, code_sizes(args.library) if args.library else None)
    flagged = print_rows(rows, factors, args.threshold)
    return 2 if flagged and args.strict else 0


if __name__ == "__main__":
    sys.exit(main())
