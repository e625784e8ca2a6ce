// vtxgen: the library's transforms from the command line.
#include "cli.hpp"

#include <cstdio>
#include <cstring>
#include <exception>
#include <map>

namespace {

const char* const kMain = R"(usage: vtxgen COMMAND [ARGS]

Fixed-size discrete transforms (complex and real DFT, Hartley,
Walsh-Hadamard, DCT-IV) in single and double precision.

commands:
  info    the library's version, build, families and sizes
  run     apply a transform to numbers from a file or standard input
  check   every kernel against a long-double reference, and each family's
          digest against the digests shipped with the tool
  bench   every family and size against FFTW: table, CSV and SVG plot

vtxgen COMMAND --help describes a command.
)";

const std::map<std::string, const char*> kHelp{
    {"info", R"(usage: vtxgen info

Prints the library's version record, how this program and the library were
built (compiler, flags, ABI), and every family of transforms the library
exports with its sizes.
)"},
    {"run", R"(usage: vtxgen run TRANSFORM N [options]
       vtxgen run KERNEL [options]

Applies one transform of N points to numbers read from a file or standard
input and writes the result to standard output or a file.

TRANSFORM is one of
  cfwd   complex DFT, forward              N = 2..64    in: N complex   out: N complex
  cinv   complex DFT, inverse              N = 2..64    in: N complex   out: N complex
  rfwd   real DFT into a packed layout     N = 2..64    in: N reals     out: the layout
  rinv   real inverse DFT from a layout    N = 2..64    in: the layout  out: N reals
  dht    discrete Hartley transform        N = 2..64    in: N reals     out: N reals
  wht    Walsh-Hadamard transform          N = 2..8192, a power of two
  dct4   DCT of type IV                    N = 2, 4, 8, ... (see vtxgen info)
or KERNEL is an exported kernel's name, e.g. vtxgDFTFwd_RToPack_12_64f
(vtxgDCT4_32f and vtxgDCT4_64f take N as well).

A packed layout of N points holds: ccs 2(N/2)+2 reals, pack and perm N.
Complex numbers are written as pairs "re im".

options:
  -d, --double          double precision (default: single)
  -l, --layout L        ccs (default), pack or perm, for rfwd and rinv
  -s, --scale S         none (default), forward, inverse, symmetric, or 1, 2, 4, 8
  -i, --input FILE      read from FILE (default: standard input, also "-")
  -o, --output FILE     write to FILE (default: standard output)
  -c, --count C         C transforms one after another in one batch call
                        (cfwd, cinv, rfwd, rinv, dht): C times the input
  --binary-input        the input is raw floats or doubles of this machine
  --binary-output       write raw floats or doubles (default: text, one
                        number or "re im" pair per line, exact to the bit)

examples:
  echo 1 0 0 0 0 0 0 0 | vtxgen run cfwd 4
  vtxgen run rfwd 8 --layout perm --double -i signal.txt
  vtxgen run dht 16 --count 100 -i frames.txt
)"},
    {"check", R"(usage: vtxgen check [--digests FILE] [--print-digests] [--dct4-max N] [--no-progress]

Runs every kernel of every family on fixed inputs and prints one line per
family: the largest error against a long-double reference (relative, in the
2-norm, over all sizes), its bound, and a digest (FNV-1a) of the outputs'
bits for every scale flag, aligned and one element off, compared with the
digest shipped with the tool.  The same digests hold on x86-64 and i386.
Exits with status 1 when any family fails.

options:
  --digests FILE   compare with the digests in FILE instead
  --print-digests  print the digests in the form of that file, and nothing else
  --dct4-max N     the largest DCT-IV length checked (default 65536)
  --no-progress    no progress line on a terminal (elsewhere there is none)
)"},
    {"bench", R"(usage: vtxgen bench [--quick] [options]

Times every family and size of the library and the same transform through
FFTW (when the benchmark program was built with it) with the benchmark
program vtxgen_bench, then writes a table of nanoseconds per call and the
ratio fftw/vtxgen (above 1: vtxgen faster), a CSV, a Markdown page and an
SVG plot of the ratio against the size, and prints a summary per family
and precision (the geometric mean of the ratio, the sizes where FFTW is
faster).  Progress on standard error with an estimate of the time left: on a
terminal a line redrawn in place, elsewhere a line per family and precision.
The batch rows (bcfwd, brccs, biccs, bdht) time 256 transforms per call
against FFTW's plan_many and, without --quick, a loop of single calls.

options:
  --quick            about a minute: fewer repetitions, shorter DCT-IV range
  --out DIR          where the files go (default: vtxgen-bench)
  --table            print every row of the table too
  --no-progress      no progress at all
  --filter REGEX     only the benchmarks matching REGEX, e.g. ^cfwd/32fc/
  --repetitions N    repetitions of each benchmark; the fastest counts
  --min-time S       seconds of one repetition
  --cpu N            pin the run to core N with taskset (default 1; "none": no pinning)
  --bench PROGRAM    the benchmark program (default: found beside this tool)
  --report SCRIPT    the report script bench_report.py (default: found beside this tool)
)"},
};

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 2 || !std::strcmp(argv[1], "--help") || !std::strcmp(argv[1], "-h") || !std::strcmp(argv[1], "help")) {
        std::fputs(kMain, argc < 2 ? stderr : stdout);
        return argc < 2 ? 2 : 0;
    }
    const std::string command = argv[1];
    std::vector<std::string> args(argv + 2, argv + argc);
    if (!kHelp.count(command)) {
        std::fprintf(stderr, "vtxgen: unknown command \"%s\"; the commands are info, run, check and bench (see --help)\n",
                     command.c_str());
        return 2;
    }
    for (const std::string& a : args)
        if (a == "--help" || a == "-h") {
            std::fputs(kHelp.at(command), stdout);
            return 0;
        }
    try {
        if (command == "info")
            return vtxcli::info(args);
        if (command == "run")
            return vtxcli::run(args);
        if (command == "check")
            return vtxcli::check(args);
        return vtxcli::bench(args);
    } catch (const vtxcli::Error& e) {
        std::fprintf(stderr, "vtxgen %s: %s\n", command.c_str(), e.message.c_str());
        return e.status;
    } catch (const std::exception& e) {
        std::fprintf(stderr, "vtxgen %s: %s\n", command.c_str(), e.what());
        return 1;
    }
}
