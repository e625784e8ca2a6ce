#!/usr/bin/env python3
"""Rewrites the README's speed table and plot from one quick benchmark run.

    tools/readme_figures.py [--build build/release] [--from DIR]

Runs `vtxgen bench --quick` of the build tree (pinned to core 1, its
default) into <build>/bench-quick, or takes the JSON files an earlier run
left in DIR, then
  - replaces the table between the README's speed-table markers with one row
    per family (the geometric mean of FFTW's time over vtxgen's in each
    precision, and at how many sizes vtxgen is faster), under a line that
    gives the date of the run and the machine it ran on;
  - writes the plot of the same run to docs/img/bench-quick.svg.
The machine is read from /proc/cpuinfo, so run it where the benchmark ran.
"""

import argparse
import glob
import os
import re
import subprocess
import sys

import bench_report

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
BEGIN = "<!-- speed table: tools/readme_figures.py writes from here -->"
END = "<!-- to here -->"


def machine(context):
    """The processor's name, its cores and clock, and whether it is virtual."""
    info = {}
    try:
        with open("/proc/cpuinfo", encoding="utf-8") as f:
            for line in f:
                key, _, value = line.partition(":")
                info.setdefault(key.strip(), value.strip())
    except OSError:
        pass
    name = re.sub(r"\((R|TM)\)", "", info.get("model name", "an x86-64 processor"))
    name = re.sub(r"\s+(CPU|Processor)\b", "", name).strip()
    cpus, mhz = context.get("num_cpus"), context.get("mhz_per_cpu")
    clock = f" at {mhz / 1000:.1f} GHz" if mhz else ""
    kind = "virtual machine" if "hypervisor" in info.get("flags", "").split() else "machine"
    return f"an {name}{clock} ({f'{cpus}-core ' if cpus else ''}{kind})"


def main(argv=None):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", default=os.path.join(ROOT, "build", "release"), help="the build tree")
    parser.add_argument("--from", dest="source", help="take the JSON files of an earlier run in this directory")
    args = parser.parse_args(argv)

    out = args.source or os.path.join(args.build, "bench-quick")
    if not args.source:
        tool = os.path.join(args.build, "tools", "cli", "vtxgen")
        subprocess.run([tool, "bench", "--quick", "--out", out], check=True)
    jsons = sorted(glob.glob(os.path.join(out, "vtxgen_bench-*.json")))
    if not jsons:
        print(f"readme_figures: no vtxgen_bench-*.json in {out}", file=sys.stderr)
        return 1
    runs = [bench_report.load(path) for path in jsons]
    context = runs[0].get("context", {})
    best = bench_report.best_times([b for r in runs for b in r.get("benchmarks", [])])
    rows = bench_report.rows_of(best)
    repetitions = max(b[1] for b in best.values())

    date = context.get("date", "")[:10]
    table = (f"Measured {date} on {machine(context)}, pinned to one core, by `vtxgen bench --quick`: each "
             f"kernel and the FFTW plan of the same transform timed side by side in one run, best of {repetitions} "
             f"repetitions. A cell is FFTW's time over vtxgen's, the geometric mean over the sizes (above 1: "
             f"vtxgen is faster), and at how many sizes vtxgen is faster.\n\n" + bench_report.summary_markdown(rows))
    readme = os.path.join(ROOT, "README.md")
    with open(readme, encoding="utf-8") as f:
        text = f.read()
    start, stop = text.find(BEGIN), text.find(END)
    if start < 0 or stop < start:
        print(f"readme_figures: no speed-table markers in {readme}", file=sys.stderr)
        return 1
    with open(readme, "w", encoding="utf-8") as f:
        f.write(text[:start + len(BEGIN)] + "\n" + table + text[stop:])
    svg = os.path.join(ROOT, "docs", "img", "bench-quick.svg")
    bench_report.write_svg(rows, context, repetitions, svg)
    print(f"readme_figures: {readme} and {svg} rewritten from the run of {date}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
