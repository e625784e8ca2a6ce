#!/usr/bin/env python3
"""Table of vtxgen against FFTW from a vtxgen_bench JSON file.

    bench_report.py vtxgen_bench.json [more.json ...] [--csv out.csv] [--markdown out.md] [--svg out.svg]

Reads the JSON that Google Benchmark writes with --benchmark_out (with or
without repetitions; several files of separate runs are read as one, with
the context of the first), keeps for each benchmark the best (smallest) real time
of its repetitions, pairs the benchmarks named family/precision/size/vtxgen
and family/precision/size/fftw, prints one row per kernel and writes the same
rows as CSV (by default next to the JSON, with the suffix .csv).

The ratio is fftw / vtxgen: above 1 means the vtxgen kernel is faster.
Without FFTW rows the fftw and ratio columns stay empty.  Families that also
have .../scalar (a plain loop of the same transform), .../naive (the O(N^2)
sum of the definition) and .../memcpy (a copy of the same bytes) rows get
scalar/vtxgen, naive/vtxgen and the copy share, memcpy / vtxgen: the
fraction of the machine's copy bandwidth that the kernel reaches when it
reads and writes each element once.  Kernels timed in two of their forms,
.../sse2 and .../avx2 (the 128-bit and the 256-bit code of the same bits),
get both times and sse2/avx2, the 256-bit form's speed-up, with its least
value and geometric mean per family and precision below the table.

Below the table, per family and precision: the geometric mean of fftw/vtxgen
over its sizes and the sizes where FFTW is faster.  --markdown also writes,
per family, one row per size with the precisions side by side (vtxgen ns,
fftw ns, ratio for each) and the same summary.  --svg draws fftw/vtxgen
against the size, a panel per family and a line per precision, as a
hand-written SVG file.
"""

import argparse
import csv
import json
import math
import os
import sys

COLUMNS = ["family", "precision", "size", "vtxgen_ns", "fftw_ns", "fftw/vtxgen", "scalar_ns", "scalar/vtxgen",
           "naive_ns", "naive/vtxgen", "memcpy_ns", "copy share", "sse2_ns", "avx2_ns", "sse2/avx2"]
IMPLEMENTATIONS = ("vtxgen", "fftw", "scalar", "naive", "memcpy", "sse2", "avx2")
NS_PER_UNIT = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}


def load(path):
    with open(path, encoding="utf-8") as f:
        return json.load(f)


def best_times(benchmarks):
    """Maps (family, precision, size, implementation) to (best ns, repetitions, errors)."""
    times = {}
    errors = {}
    for b in benchmarks:
        if b.get("run_type", "iteration") != "iteration":
            continue  # mean, median, stddev, cv: the repetitions themselves are here too
        name = b.get("run_name") or b.get("name", "")
        parts = name.split("/")
        if len(parts) < 4 or parts[3] not in IMPLEMENTATIONS:
            print(f"bench_report: ignoring benchmark {name!r}", file=sys.stderr)
            continue
        try:
            size = int(parts[2])
        except ValueError:
            print(f"bench_report: ignoring benchmark {name!r} (size is not a number)", file=sys.stderr)
            continue
        key = (parts[0], parts[1], size, parts[3])
        if b.get("error_occurred"):
            errors[key] = b.get("error_message", "error")
            continue
        ns = float(b["real_time"]) * NS_PER_UNIT[b.get("time_unit", "ns")]
        times.setdefault(key, []).append(ns)
    result = {key: (min(v), len(v), None) for key, v in times.items()}
    for key, message in errors.items():
        if key not in result:
            result[key] = (None, 0, message)
    return result


def rows_of(best):
    """One row per family/precision/size, in that order."""
    kernels = sorted({key[:3] for key in best})
    rows = []
    for kernel in kernels:
        found = {impl: best.get(kernel + (impl,)) for impl in IMPLEMENTATIONS}
        ns = {impl: b[0] if b else None for impl, b in found.items()}
        vtx_ns = ns["vtxgen"]

        def over_vtxgen(impl):
            return ns[impl] / vtx_ns if vtx_ns and ns[impl] else None

        note = "; ".join(f"{impl}: {b[2]}" for impl, b in found.items() if b and b[2])
        rows.append({"family": kernel[0], "precision": kernel[1], "size": kernel[2],
                     "vtxgen_ns": vtx_ns, "fftw_ns": ns["fftw"], "fftw/vtxgen": over_vtxgen("fftw"),
                     "scalar_ns": ns["scalar"], "scalar/vtxgen": over_vtxgen("scalar"),
                     "naive_ns": ns["naive"], "naive/vtxgen": over_vtxgen("naive"),
                     "memcpy_ns": ns["memcpy"], "copy share": over_vtxgen("memcpy"),
                     "sse2_ns": ns["sse2"], "avx2_ns": ns["avx2"],
                     "sse2/avx2": ns["sse2"] / ns["avx2"] if ns["sse2"] and ns["avx2"] else None, "note": note})
    return rows


def cells_of(row):
    digits = {"size": None, "copy share": 3}
    out = []
    for column in COLUMNS:
        value = row[column]
        if isinstance(value, str):
            out.append(value)
        elif column == "size":
            out.append(str(value))
        else:
            out.append(fmt(value, digits.get(column, 2)))
    return out


def fmt(value, digits):
    return "" if value is None else f"{value:.{digits}f}"


def print_table(rows, context, repetitions, out=sys.stdout, brief=False):
    host = context.get("host_name", "?")
    cpus = context.get("num_cpus", "?")
    mhz = context.get("mhz_per_cpu", "?")
    print(f"\n{context.get('date', '')}  {host}, {cpus} cpus at {mhz} MHz", file=out)
    for label in ("vtxgen", "fftw", "fftw_wisdom"):
        if label in context:
            print(f"{label}: {context[label]}", file=out)
    if "load_avg" in context:
        print("load average: " + " ".join(f"{x:.2f}" for x in context["load_avg"]), file=out)
    if context.get("library_build_type") == "debug":
        print("note: the Google Benchmark library reports a debug build (the timed loop is inlined "
              "into vtxgen_bench and built with its flags)", file=out)
    if repetitions:
        print(f"ns per call, best of {repetitions} repetition{'s' if repetitions != 1 else ''}; "
              "fftw/vtxgen above 1: vtxgen faster", file=out)

    if brief:
        print(f"{len(rows)} kernels timed; their rows are in the CSV and Markdown files", file=out)
    else:
        print_rows(rows, out)
    print(file=out)
    for summary in summary_lines(rows):
        print(summary, file=out)


def print_rows(rows, out):
    cells = [cells_of(r) for r in rows]
    widths = [max(len(COLUMNS[i]), *(len(c[i]) for c in cells)) for i in range(len(COLUMNS))]
    left = 2  # family and precision are left-aligned, the numbers right-aligned

    def line(values):
        return "  ".join(v.ljust(w) if i < left else v.rjust(w) for i, (v, w) in enumerate(zip(values, widths)))

    print(line(COLUMNS), file=out)
    print("  ".join("-" * w for w in widths), file=out)
    for r, c in zip(rows, cells):
        print(line(c) + (f"  ({r['note']})" if r["note"] else ""), file=out)


def summaries(rows):
    """Per (family, precision) with FFTW rows: (pairs, geometric mean of fftw/vtxgen, sizes below 1)."""
    ratios = {}
    for r in rows:
        if r["fftw/vtxgen"]:
            ratios.setdefault((r["family"], r["precision"]), []).append((r["size"], r["fftw/vtxgen"]))
    return {key: (len(v), math.exp(sum(math.log(x) for _, x in v) / len(v)), [n for n, x in v if x < 1])
            for key, v in ratios.items()}


def summary_lines(rows):
    lines = []
    for (family, precision), (pairs, mean, slower) in sorted(summaries(rows).items()):
        lines.append(f"{family} {precision}: geometric mean of fftw/vtxgen {mean:.2f} over {pairs} sizes; "
                     + ("FFTW faster at " + ", ".join(map(str, slower)) if slower else "vtxgen faster at every size"))
    forms = {}
    for r in rows:
        if r["sse2/avx2"]:
            forms.setdefault((r["family"], r["precision"]), []).append((r["size"], r["sse2/avx2"]))
    for (family, precision), v in sorted(forms.items()):
        least = min(v, key=lambda sx: sx[1])
        mean = math.exp(sum(math.log(x) for _, x in v) / len(v))
        lines.append(f"{family} {precision}: sse2/avx2 geometric mean {mean:.2f} over {len(v)} sizes, "
                     f"least {least[1]:.2f} at {least[0]}")
    return lines


# The families of the short summary table, in its order, with their names in words.
SUMMARY_FAMILIES = (("cfwd", "Complex DFT, forward"), ("cinv", "Complex DFT, inverse"),
                    ("rccs", "Real DFT, forward (CCS)"), ("iccs", "Real DFT, inverse (CCS)"),
                    ("dht", "Hartley"), ("wht", "Walsh-Hadamard (FFTW: its 2 x ... x 2 real transform)"),
                    ("dct4", "DCT-IV"))


def summary_markdown(rows):
    """One Markdown row per family with FFTW rows: the sizes timed and, in
    single and double precision, the geometric mean of fftw/vtxgen and the
    number of sizes where vtxgen is faster."""
    found = {(family, "single" if precision.startswith("32") else "double"): v
             for (family, precision), v in summaries(rows).items()}
    lines = ["| Transform | Sizes | Single: FFTW time / vtxgen time | Double: FFTW time / vtxgen time |",
             "|---|---|---|---|"]
    for family, words in SUMMARY_FAMILIES:
        sizes = sorted({r["size"] for r in rows if r["family"] == family and r["fftw/vtxgen"]})
        if not sizes:
            continue
        cells = []
        for precision in ("single", "double"):
            pairs, mean, slower = found.get((family, precision), (0, None, []))
            cells.append(f"{mean:.2f}, faster at {pairs - len(slower)} of {pairs}" if pairs else "")
        lines.append(f"| {words} | {sizes[0]} to {sizes[-1]} | " + " | ".join(cells) + " |")
    return "\n".join(lines) + "\n"


def write_markdown(rows, context, repetitions, path):
    """Per family: size, then vtxgen ns, fftw ns and fftw/vtxgen of each precision side by side."""
    with open(path, "w", encoding="utf-8") as f:
        f.write(f"{context.get('date', '')}, {context.get('host_name', '?')}; "
                f"ns per call, best of {repetitions} repetitions; fftw/vtxgen above 1: vtxgen faster\n")
        for family in sorted({r["family"] for r in rows}):
            mine = [r for r in rows if r["family"] == family]
            precisions = sorted({r["precision"] for r in mine})
            by = {(r["precision"], r["size"]): r for r in mine}
            peer = any(r["fftw_ns"] for r in mine)  # without FFTW rows: the vtxgen column only
            columns = ["vtxgen", "fftw", "ratio"] if peer else ["vtxgen"]
            f.write(f"\n### {family}\n\n| N |"
                    + "".join(f" {p} {c} |" for p in precisions for c in columns) + "\n")
            f.write("|---:|" + "---:|" * (len(columns) * len(precisions)) + "\n")
            for size in sorted({r["size"] for r in mine}):
                cells = [str(size)]
                for p in precisions:
                    r = by.get((p, size), {})
                    cells += [fmt(r.get(key), 2) for key in ("vtxgen_ns", "fftw_ns", "fftw/vtxgen")[:len(columns)]]
                f.write("| " + " | ".join(cells) + " |\n")
            lines = summary_lines(mine)
            if lines:
                f.write("\n" + "".join(f"- {line}\n" for line in lines))


def write_csv(rows, path):
    with open(path, "w", newline="", encoding="utf-8") as f:
        w = csv.writer(f)
        w.writerow(COLUMNS)
        for r in rows:
            w.writerow([r["size"] if c == "size" else r[c] if isinstance(r[c], str) else fmt(r[c], 3)
                        for c in COLUMNS])


SVG_COLOURS = ("#1f77b4", "#d62728", "#2ca02c", "#9467bd", "#ff7f0e", "#17becf")


def write_svg(rows, context, repetitions, path):
    """fftw/vtxgen against N: a panel per family, a line per precision, both axes logarithmic."""
    series = {}
    for r in rows:
        if r["fftw/vtxgen"]:
            series.setdefault(r["family"], {}).setdefault(r["precision"], []).append((r["size"], r["fftw/vtxgen"]))
    if not series:
        return False
    ratios = [x for fam in series.values() for pts in fam.values() for _, x in pts]
    lo = min(-1, math.floor(math.log2(min(ratios))))
    hi = max(1, math.ceil(math.log2(max(ratios))))
    pw, ph, margin, top = 420, 230, 56, 56  # panel size, left margin, title band
    cols = 2
    families = sorted(series)
    nrows = (len(families) + cols - 1) // cols
    width, height = cols * (pw + margin + 24) + 16, top + nrows * (ph + 70)
    out = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
           f'font-family="sans-serif" font-size="12">',
           f'<rect width="{width}" height="{height}" fill="white"/>',
           f'<text x="16" y="22" font-size="15" font-weight="bold">fftw/vtxgen: time of FFTW over time of vtxgen '
           f'(above 1: vtxgen faster)</text>',
           f'<text x="16" y="42" fill="#555">{esc(context.get("date", ""))}, {esc(context.get("host_name", ""))}; '
           f'best of {repetitions} repetitions; {esc(context.get("fftw", "FFTW"))}</text>']
    for i, family in enumerate(families):
        x0 = 16 + margin + (i % cols) * (pw + margin + 24)
        y0 = top + 16 + (i // cols) * (ph + 70)
        sizes = sorted({n for pts in series[family].values() for n, _ in pts})
        powers = all(n & (n - 1) == 0 for n in sizes)
        ax = (lambda n: math.log2(n)) if powers else (lambda n: n)
        a, b = ax(sizes[0]), ax(sizes[-1])
        b = b if b > a else a + 1

        def px(n):
            return x0 + (ax(n) - a) / (b - a) * pw

        def py(v):
            return y0 + ph - (math.log2(v) - lo) / (hi - lo) * ph

        out.append(f'<rect x="{x0}" y="{y0}" width="{pw}" height="{ph}" fill="none" stroke="#999"/>')
        out.append(f'<text x="{x0}" y="{y0 - 6}" font-weight="bold">{esc(family)}</text>')
        for e in range(lo, hi + 1):
            y = py(2.0 ** e)
            out.append(f'<line x1="{x0}" y1="{y:.1f}" x2="{x0 + pw}" y2="{y:.1f}" '
                       f'stroke="{"#444" if e == 0 else "#ddd"}"/>')
            out.append(f'<text x="{x0 - 6}" y="{y + 4:.1f}" text-anchor="end">{2.0 ** e:g}</text>')
        ticks = sizes if len(sizes) <= 12 else [n for n in sizes if n in (2, 8, 16, 24, 32, 40, 48, 56, 64)
                                                 or (powers and math.log2(n) % 2 == 1)]
        for n in ticks:
            out.append(f'<text x="{px(n):.1f}" y="{y0 + ph + 15}" text-anchor="middle">{n}</text>')
        out.append(f'<text x="{x0 + pw / 2}" y="{y0 + ph + 32}" text-anchor="middle" fill="#555">N</text>')
        for j, (precision, pts) in enumerate(sorted(series[family].items())):
            colour = SVG_COLOURS[j % len(SVG_COLOURS)]
            points = " ".join(f"{px(n):.1f},{py(v):.1f}" for n, v in sorted(pts))
            out.append(f'<polyline points="{points}" fill="none" stroke="{colour}" stroke-width="1.5"/>')
            out.extend(f'<circle cx="{px(n):.1f}" cy="{py(v):.1f}" r="2" fill="{colour}">'
                       f'<title>{esc(family)} {esc(precision)} N={n}: {v:.2f}</title></circle>' for n, v in pts)
            out.append(f'<text x="{x0 + pw - 8}" y="{y0 + 16 + 15 * j}" text-anchor="end" fill="{colour}">'
                       f'{esc(precision)}</text>')
    out.append("</svg>")
    with open(path, "w", encoding="utf-8") as f:
        f.write("\n".join(out) + "\n")
    return True


def esc(text):
    return str(text).replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;").replace('"', "&quot;")


def main(argv=None):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("json", nargs="+", help="Google Benchmark JSON output of vtxgen_bench (one or more runs)")
    parser.add_argument("--csv", help="where to write the CSV (default: the JSON path with .csv)")
    parser.add_argument("--markdown", help="also write the sizes of each family as a Markdown table here")
    parser.add_argument("--svg", help="also draw fftw/vtxgen against the size as an SVG file here")
    parser.add_argument("--brief", action="store_true", help="print the header and the summary lines, not the rows")
    args = parser.parse_args(argv)

    runs = [load(path) for path in args.json]
    data = {"context": runs[0].get("context", {}), "benchmarks": [b for r in runs for b in r.get("benchmarks", [])]}
    best = best_times(data["benchmarks"])
    if not best:
        print(f"bench_report: no vtxgen or fftw benchmarks in {' '.join(args.json)}", file=sys.stderr)
        return 1
    rows = rows_of(best)
    repetitions = max(b[1] for b in best.values())

    print_table(rows, data.get("context", {}), repetitions, brief=args.brief)
    csv_path = args.csv or os.path.splitext(args.json[0])[0] + ".csv"
    write_csv(rows, csv_path)
    print(f"CSV: {csv_path}")
    if args.markdown:
        write_markdown(rows, data.get("context", {}), repetitions, args.markdown)
        print(f"Markdown: {args.markdown}")
    if args.svg:
        if write_svg(rows, data.get("context", {}), repetitions, args.svg):
            print(f"SVG: {args.svg}")
        else:
            print("bench_report: no FFTW rows, so no plot", file=sys.stderr)
    return 0


if __name__ == "__main__":
    sys.exit(main())
