// vtxgen-gen: writes the kernel sources of one translation unit, or reports
// on the kernels it knows.
//
//   vtxgen-gen complex <fwd|inv> <32fc|64fc> <from> <to> <file>
//   vtxgen-gen real <fwd|inv> <32f|64f> <from> <to> <file>   real kernels, all layouts
//   vtxgen-gen real hartley <32f|64f> <from> <to> <file>     Hartley kernels
//   vtxgen-gen wht <32f|64f> <file> [avx2]   the Walsh-Hadamard kernels of one
//                          precision, or their 256-bit forms
//   vtxgen-gen batch <complex|real> <fwd|inv|hartley> <prec> <from> <to> <file>
//                          kernels across transforms, one transform per lane
//   vtxgen-gen batch-tables <file>    the tables of the batch entries
//   vtxgen-gen counts      operation counts of every kernel
//   vtxgen-gen show <name> the generated text of one kernel
//   vtxgen-gen prototypes  the kernels' declarations for the public header
//   vtxgen-gen schedules   the modelled spills of each candidate order, per kernel
//   vtxgen-gen lanes       the packing of each real and Hartley kernel: instructions modelled
#include "batch.hpp"
#include "complex.hpp"
#include "emit.hpp"
#include "lanes.hpp"
#include "real.hpp"
#include "schedule.hpp"
#include "wht.hpp"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

using namespace vtxgen;

namespace {

int usage()
{
    std::cerr << "usage: vtxgen-gen complex <fwd|inv> <32fc|64fc> <from> <to> <file>\n"
                 "       vtxgen-gen real <fwd|inv|hartley> <32f|64f> <from> <to> <file>\n"
                 "       vtxgen-gen wht <32f|64f> <file> [avx2]\n"
                 "       vtxgen-gen batch <complex|real> <fwd|inv|hartley> <prec> <from> <to> <file>\n"
                 "       vtxgen-gen batch-tables <file>\n"
                 "       vtxgen-gen counts\n"
                 "       vtxgen-gen show <kernel name>\n"
                 "       vtxgen-gen prototypes\n"
                 "       vtxgen-gen schedules\n";
    return 2;
}

// Leaves the file alone when its text is unchanged, so nothing recompiles.
bool write_if_changed(const std::string& path, const std::string& text)
{
    std::ifstream in(path, std::ios::binary);
    if (in) {
        std::ostringstream old;
        old << in.rdbuf();
        if (old.str() == text)
            return true;
    }
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << text;
    return static_cast<bool>(out);
}

int write_unit(const std::vector<KernelText>& kernels, const std::string& origin, const std::string& path)
{
    if (!write_if_changed(path, emit_unit(kernels, origin))) {
        std::cerr << "vtxgen-gen: cannot write " << path << "\n";
        return 1;
    }
    return 0;
}

int complex_unit(const std::string& dir, const std::string& prec, int from, int to, const std::string& path)
{
    std::vector<KernelText> chosen;
    for (const ComplexKernel& k : complex_kernels()) {
        const bool fwd = k.direction == Direction::Forward;
        const bool f32 = k.prec == Prec::F32;
        if ((dir == "fwd") == fwd && (prec == "32fc") == f32 && k.size >= from && k.size <= to)
            chosen.push_back(k.text());
    }
    return write_unit(chosen, "the rule table", path);
}

// The real Fourier kernels of a direction, or the Hartley kernels.
std::vector<RealKernel> real_family(const std::string& dir)
{
    return dir == "hartley" ? hartley_kernels() : real_kernels(dir == "fwd" ? Direction::Forward : Direction::Inverse);
}

int real_unit(const std::string& dir, const std::string& prec, int from, int to, const std::string& path)
{
    if (dir != "fwd" && dir != "inv" && dir != "hartley")
        return usage();
    std::vector<KernelText> chosen;
    for (const RealKernel& k : real_family(dir))
        if ((prec == "32f") == (k.prec == Prec::F32) && k.size >= from && k.size <= to)
            chosen.push_back(k.text());
    return write_unit(chosen, "the real rule table", path);
}

int wht_unit(const std::string& prec, const std::string& path, const std::string& form)
{
    if ((prec != "32f" && prec != "64f") || (form != "sse2" && form != "avx2"))
        return usage();
    if (!write_if_changed(path, emit_wht_unit(prec == "32f" ? Prec::F32 : Prec::F64, form == "avx2"))) {
        std::cerr << "vtxgen-gen: cannot write " << path << "\n";
        return 1;
    }
    return 0;
}

int write_text(const std::string& text, const std::string& path)
{
    if (!write_if_changed(path, text)) {
        std::cerr << "vtxgen-gen: cannot write " << path << "\n";
        return 1;
    }
    return 0;
}

int batch_unit(const std::string& kind, const std::string& dir, const std::string& prec, int from, int to,
               const std::string& path)
{
    return write_text(emit_batch_unit(batch_cores(kind, dir, prec.substr(0, 2) == "32" ? Prec::F32 : Prec::F64, from, to)),
                      path);
}

// The Walsh-Hadamard kernels: straight lines counted whole, blocked ones as
// the sum of their pieces times the calls of each.
void wht_counts()
{
    std::printf("\n%-28s %-22s %9s %9s\n", "kernel", "passes", "additions", "scale");
    for (const WhtKernel& k : wht_kernels()) {
        Counts total;
        std::string passes = "straight line";
        if (k.passes.empty()) {
            total = k.build().count();
        } else {
            passes.clear();
            for (const WhtPiece& piece : k.pieces()) {
                const Counts c = piece.build().count();
                total.additions += c.additions * piece.calls(k.order);
                total.scale_lanes += c.scale_lanes * piece.calls(k.order);
                passes += (passes.empty() ? "" : ", ") + std::to_string(piece.order);
            }
        }
        std::printf("%-28s %-22s %9d %9d\n", k.name().c_str(), passes.c_str(), total.additions, total.scale_lanes);
    }
}

int counts()
{
    std::printf("%-28s %-22s %9s %9s %9s %8s\n", "kernel", "rule", "additions", "multiply", "exchanges", "lanes");
    int failures = 0;
    for (const ComplexKernel& k : complex_kernels()) {
        try {
            const Counts c = k.build().count();
            std::printf("%-28s %-22s %9d %9d %9d %7.0f%%\n", k.name().c_str(), k.rule.text().c_str(), c.additions,
                        c.multiplications, c.exchanges, 100 * c.lanes_in_use());
        } catch (const std::exception& e) {
            std::printf("%-28s %-22s %s\n", k.name().c_str(), k.rule.text().c_str(), e.what());
            ++failures;
        }
    }
    std::printf("\n%-28s %-48s %6s %6s %4s %6s %6s %6s %6s\n", "kernel", "how", "add", "mul", "neg", "widen",
                "narrow", "wide", "double");
    for (const char* family : {"fwd", "inv", "hartley"})
        for (const RealKernel& k : real_family(family)) {
            if (k.layout != Layout::CCS)
                continue;  // the three layouts share their arithmetic
            const Counts c = k.build().count();
            std::printf("%-28s %-48s %6d %6d %4d %6d %6d %6d %6d\n", k.name().c_str(), k.summary().c_str(),
                        c.additions, c.multiplications, c.negations, c.widen, c.narrow, c.scaled_wide, c.doublings);
        }
    wht_counts();
    return failures ? 1 : 0;
}

int prototypes()
{
    for (Direction d : {Direction::Forward, Direction::Inverse}) {
        const bool fwd = d == Direction::Forward;
        std::printf("/* ---- Complex %s DFT %s\n", fwd ? "forward" : "inverse",
                    std::string(48, '-').c_str());
        std::printf(" * y[k] = s * sum_n x[n] exp(%s2 pi i n k / N), interleaved complex, natural order.\n */\n",
                    fwd ? "-" : "+");
        for (Prec p : {Prec::F32, Prec::F64}) {
            std::vector<ComplexKernel> ks;
            for (const ComplexKernel& k : complex_kernels())
                if (k.prec == p && k.direction == d)
                    ks.push_back(k);
            std::sort(ks.begin(), ks.end(), [](const auto& x, const auto& y) { return x.size < y.size; });
            const char* t = p == Prec::F32 ? "vtx32fc" : "vtx64fc";
            for (const ComplexKernel& k : ks)
                std::printf("VTXAPI vtxStatus %s(const %s *src, %s *dst, int scaleFlag);\n", k.name().c_str(), t, t);
            std::printf("\n");
        }
    }
    for (Direction d : {Direction::Forward, Direction::Inverse}) {
        const bool fwd = d == Direction::Forward;
        std::printf("/* ---- %s real DFT %s\n", fwd ? "Forward" : "Inverse", std::string(55, '-').c_str());
        if (fwd)
            std::printf(" * The half spectrum X[0..n/2] of n real elements, X[k] = s * sum_j x[j] exp(-2 pi i j k / n),\n"
                        " * in the packed layout of the name (see Packed layouts above).\n */\n");
        else
            std::printf(" * n real elements from the half spectrum X[0..n/2] in the packed layout of the name,\n"
                        " * x[j] = s * sum_k X[k] exp(+2 pi i j k / n) over all n bins, X[n-k] = conj X[k].\n */\n");
        for (Prec p : {Prec::F32, Prec::F64})
            for (Layout l : {Layout::CCS, Layout::Pack, Layout::Perm}) {
                const char* t = p == Prec::F32 ? "vtx32f" : "vtx64f";
                for (const RealKernel& k : real_kernels(d))
                    if (k.prec == p && k.layout == l)
                        std::printf("VTXAPI vtxStatus %s(const %s *src, %s *dst, int scaleFlag);\n", k.name().c_str(),
                                    t, t);
                std::printf("\n");
            }
    }
    std::printf("/* ---- Hartley transform %s\n", std::string(51, '-').c_str());
    std::printf(" * H[k] = s * sum_j x[j] (cos(2 pi j k / n) + sin(2 pi j k / n)), n real elements to n,\n"
                " * natural order; its own inverse (flags 1 and 2 both divide by n).\n */\n");
    for (Prec p : {Prec::F32, Prec::F64}) {
        const char* t = p == Prec::F32 ? "vtx32f" : "vtx64f";
        for (const RealKernel& k : hartley_kernels())
            if (k.prec == p)
                std::printf("VTXAPI vtxStatus %s(const %s *src, %s *dst, int scaleFlag);\n", k.name().c_str(), t, t);
        std::printf("\n");
    }
    return 0;
}

// Modelled spills of the candidate orders of each kernel with 16 and with 8
// registers; the printed order is the cheapest at 16.
int schedules()
{
    auto row = [](const std::string& name, const Graph& g) {
        std::printf("%-30s", name.c_str());
        const auto live = g.live_lanes();
        for (int registers : {kRegisters, 8})
            for (const auto& order : schedule_candidates(g, live))
                std::printf(" %6d", spill_cost(g, with_stores_after_loads(g, order), registers));
        std::printf("\n");
    };
    std::printf("%-30s %6s %6s %6s %6s %6s %6s  (16 registers; then 8)\n", "kernel", "built", "half", "sums",
                "narrow", "sums", "cones");
    for (const ComplexKernel& k : complex_kernels())
        row(k.name(), k.build());
    for (const char* family : {"fwd", "inv", "hartley"})
        for (const RealKernel& k : real_family(family))
            if (k.layout == Layout::CCS)
                row(k.name(), k.build());
    return 0;
}

// Modelled instructions of each real and Hartley kernel as single lanes and
// as packed, and the operations that run packed.
int lanes()
{
    std::printf("%-30s %7s %7s %6s %7s\n", "kernel", "single", "packed", "packs", "members");
    for (const char* family : {"fwd", "inv", "hartley"})
        for (const RealKernel& k : real_family(family)) {
            if (k.layout != Layout::CCS)
                continue;
            const Graph g = k.build();
            const auto live = g.live_lanes();
            const Packing p = pack_lanes(g, live, schedule(g, live));
            int packs = 0, members = 0;
            for (const auto& m : p.packs)
                if (!m.empty()) {
                    ++packs;
                    members += static_cast<int>(m.size());
                }
            std::printf("%-30s %7d %7d %6d %7d\n", k.name().c_str(), p.scalar_cost, p.packed_cost, packs, members);
        }
    return 0;
}

int show(const std::string& name)
{
    for (const ComplexKernel& k : complex_kernels())
        if (k.name() == name) {
            std::cout << emit_unit({k.text()}, "the rule table");
            return 0;
        }
    for (const char* family : {"fwd", "inv", "hartley"})
        for (const RealKernel& k : real_family(family))
            if (k.name() == name) {
                std::cout << emit_unit({k.text()}, "the real rule table");
                return 0;
            }
    for (const WhtKernel& k : wht_kernels())
        if (k.name() == name) {
            if (k.passes.empty())
                std::cout << emit_body(k.build(), k.prec);
            for (const WhtPiece& piece : k.passes.empty() ? std::vector<WhtPiece>{} : k.pieces())
                std::cout << "// " << piece.name() << "\n" << emit_body(piece.build(), k.prec);
            return 0;
        }
    std::cerr << "vtxgen-gen: no kernel " << name << "\n";
    return 1;
}

}  // namespace

int main(int argc, char** argv)
{
    try {
        const std::string cmd = argc > 1 ? argv[1] : "";
        if (cmd == "complex" && argc == 7)
            return complex_unit(argv[2], argv[3], std::stoi(argv[4]), std::stoi(argv[5]), argv[6]);
        if (cmd == "real" && argc == 7)
            return real_unit(argv[2], argv[3], std::stoi(argv[4]), std::stoi(argv[5]), argv[6]);
        if (cmd == "wht" && (argc == 4 || argc == 5))
            return wht_unit(argv[2], argv[3], argc == 5 ? argv[4] : "sse2");
        if (cmd == "batch" && argc == 8)
            return batch_unit(argv[2], argv[3], argv[4], std::stoi(argv[5]), std::stoi(argv[6]), argv[7]);
        if (cmd == "batch-tables" && argc == 3)
            return write_text(emit_batch_tables(), argv[2]);
        if (cmd == "counts" && argc == 2)
            return counts();
        if (cmd == "prototypes" && argc == 2)
            return prototypes();
        if (cmd == "schedules" && argc == 2)
            return schedules();
        if (cmd == "lanes" && argc == 2)
            return lanes();
        if (cmd == "show" && argc == 3)
            return show(argv[2]);
        return usage();
    } catch (const std::exception& e) {
        std::cerr << "vtxgen-gen: " << e.what() << "\n";
        return 1;
    }
}
