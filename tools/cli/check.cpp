// vtxgen check: every kernel against a long-double reference, and a digest
// of each family's bits against the digests shipped with the tool.
#include "cli.hpp"
#include "dct4_reference.hpp"
#include "progress.hpp"
#include "support.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdio>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <sstream>

namespace vtxcli {

extern const char* const kShippedDigests;

namespace {

using vtxtest::Form;
using Cl = std::complex<long double>;
constexpr long double kPi = 3.141592653589793238462643383279502884L;

// sum_j x[j] w^(j k), w = exp(sign 2 pi i / n), k = 0..n-1, j k reduced modulo n.
std::vector<Cl> dft(const std::vector<Cl>& x, int sign)
{
    const std::size_t n = x.size();
    std::vector<Cl> root(n), y(n);
    for (std::size_t e = 0; e < n; ++e)
        root[e] = std::polar(1.0L, sign * 2 * kPi * static_cast<long double>(e) / static_cast<long double>(n));
    for (std::size_t k = 0; k < n; ++k)
        for (std::size_t j = 0; j < n; ++j)
            y[k] += x[j] * root[j * k % n];
    return y;
}

vtxgen::Layout layout_of(const std::string& name)
{
    return name == "CCS" ? vtxgen::Layout::CCS : name == "Pack" ? vtxgen::Layout::Pack : vtxgen::Layout::Perm;
}

// The transform of `x` by its definition, in long double, unscaled.
std::vector<long double> reference(const Transform& t, const std::vector<double>& x)
{
    const int n = t.n;
    const vtxtest::Export& e = *t.fn;
    std::vector<long double> y(t.out());
    if (e.form == Form::Dct4Run)
        return vtxtest::dct4::dct4Reference(x.data(), std::size_t(n));
    if (e.form == Form::WhtKernel) {  // natural Hadamard order, exact in long double
        std::copy(x.begin(), x.end(), y.begin());
        for (int h = 1; h < n; h *= 2)
            for (int i = 0; i < n; i += 2 * h)
                for (int j = i; j < i + h; ++j) {
                    const long double a = y[j], b = y[j + h];
                    y[j] = a + b;
                    y[j + h] = a - b;
                }
        return y;
    }
    if (e.from == "C") {
        std::vector<Cl> c(std::size_t(n), 0);
        for (int j = 0; j < n; ++j)
            c[j] = Cl(x[2 * j], x[2 * j + 1]);
        const std::vector<Cl> f = dft(c, e.name.find("Inv") != std::string::npos ? 1 : -1);
        for (int k = 0; k < n; ++k) {
            y[2 * k] = f[k].real();
            y[2 * k + 1] = f[k].imag();
        }
        return y;
    }
    if (e.from == "R" && e.to == "R") {  // Hartley: Re - Im of the forward DFT
        const std::vector<Cl> f = dft(std::vector<Cl>(x.begin(), x.end()), -1);
        for (int k = 0; k < n; ++k)
            y[k] = f[k].real() - f[k].imag();
        return y;
    }
    if (e.from == "R") {  // forward real: bins 0..n/2 into their slots
        const std::vector<Cl> f = dft(std::vector<Cl>(x.begin(), x.end()), -1);
        const vtxgen::Layout l = layout_of(e.to);
        for (int k = 0; k <= n / 2; ++k)
            for (bool im : {false, true})
                if (const int p = vtxgen::position(l, n, k, im); p >= 0)
                    y[p] = im ? f[k].imag() : f[k].real();
        return y;
    }
    // Inverse real: the Hermitian spectrum from its stored bins.
    const vtxgen::Layout l = layout_of(e.from);
    std::vector<Cl> spectrum(std::size_t(n), 0);
    for (int k = 0; k <= n / 2; ++k) {
        const int re = vtxgen::position(l, n, k, false), im = vtxgen::position(l, n, k, true);
        const Cl b(re >= 0 ? x[re] : 0.0, im >= 0 ? x[im] : 0.0);
        spectrum[k] = b;
        spectrum[(n - k) % n] = std::conj(b);
    }
    const std::vector<Cl> f = dft(spectrum, 1);
    for (int j = 0; j < n; ++j)
        y[j] = f[j].real();
    return y;
}

// The accepted relative error in the 2-norm: the rounding of a fast
// transform, log2 N units of the precision (at least one).
double bound(const Transform& t)
{
    return (t.single() ? 0x1p-23 : 0x1p-52) * std::max(1.0, std::log2(double(t.n)));
}

std::uint64_t fnv1a(const unsigned char* p, std::size_t n, std::uint64_t h)
{
    for (std::size_t i = 0; i < n; ++i)
        h = (h ^ p[i]) * 0x100000001b3ull;
    return h;
}

struct Result {
    double worst = 0;  // error / bound, the largest over sizes and inputs
    int at = 0;        // the size where it is
    std::uint64_t digest = 0xcbf29ce484222325ull;
    std::string failure;  // a call that did not return vtxStatusOk
};

// The work of checking a transform, for the progress line: the references
// grow as n log n (the DCT-IV's) and every size costs some calls.
double work(const Transform& t)
{
    return t.n * std::max(1.0, std::log2(double(t.n))) + 64;
}

// Every size of a family on two fixed inputs, with every scale flag, the
// arrays aligned and one element past a 16-byte boundary; `starting` is
// called before each size.
Result check_family(const Family& f, const std::function<void(const Transform&)>& starting)
{
    Result r;
    for (const Transform& t : f.sizes) {
        starting(t);
        const std::size_t width = t.single() ? 4 : 8, bytes = std::max(t.in(), t.out()) * width;
        for (std::uint32_t seed = 0; seed < 2; ++seed) {
            const std::vector<double> x = vtxtest::fixed_input(int(t.in()), seed, t.single());
            for (int flag : t.flagged() ? std::vector<int>{1, 2, 4, 8} : std::vector<int>{8})
                for (std::size_t at : {std::size_t(0), width}) {
                    vtxtest::Buffer src(bytes), dst(bytes);
                    src.put(at, x, t.single());
                    if (const vtxStatus s = t(src.at(at), dst.at(at), flag); s != vtxStatusOk)
                        r.failure = t.name() + " returned status " + std::to_string(s);
                    r.digest = fnv1a(dst.at(at), t.out() * width, r.digest);
                    if (flag != vtxScaleNone || at != 0)
                        continue;
                    const std::vector<double> y = dst.get(at, int(t.out()), t.single());
                    const std::vector<long double> ref = reference(t, x);
                    long double error = 0, norm = 0;
                    for (std::size_t i = 0; i < ref.size(); ++i) {
                        error += (y[i] - ref[i]) * (y[i] - ref[i]);
                        norm += ref[i] * ref[i];
                    }
                    const double share = double(sqrtl(error / norm)) / bound(t);
                    if (!(share <= r.worst)) {  // NaN too
                        r.worst = share;
                        r.at = t.n;
                    }
                }
        }
    }
    return r;
}

std::map<std::string, std::string> read_digests(const std::string& text)
{
    std::map<std::string, std::string> out;
    std::istringstream in(text);
    std::string line;
    while (std::getline(in, line)) {
        std::istringstream words(line);
        std::string family, digest;
        if (words >> family >> digest && family[0] != '#')
            out[family] = digest;
    }
    return out;
}

// A batch family gives its single family's bits, so it is held to that
// family's digest: the file lists each digest once.
std::string shipped_name(const std::string& family)
{
    const std::size_t at = family.find("Batch_");
    return at == std::string::npos ? family : family.substr(0, at) + family.substr(at + 6);
}

}  // namespace

int check(const std::vector<std::string>& args)
{
    std::string digest_text = kShippedDigests, digest_source = "the digests shipped with vtxgen";
    bool print = false, progress_wanted = true;
    int dct4_max = 1 << 16;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--print-digests") {
            print = true;
        } else if (args[i] == "--no-progress") {
            progress_wanted = false;
        } else if (args[i] == "--dct4-max") {
            dct4_max = to_int(option_value(args, i), "--dct4-max");
        } else if (args[i] == "--digests") {
            digest_source = option_value(args, i);
            std::ifstream in(digest_source);
            if (!in)
                fail("cannot read " + digest_source);
            digest_text.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
        } else {
            usage("unknown argument \"" + args[i] + "\"");
        }
    }
    const std::map<std::string, std::string> shipped = read_digests(digest_text);
    if (print)
        std::printf("# The digests vtxgen check compares with: FNV-1a of each family's output bits, every size,\n"
                    "# every scale flag, aligned and one element off, two fixed inputs.  The same on x86-64 and\n"
                    "# i386.  Written by vtxgen check --print-digests; rewrite it only when bits change on purpose.\n");
    else
        std::printf("%-28s %5s  %-18s %-16s  %s\n", "family", "sizes", "error/bound (at N)", "digest", "result");
    int failed = 0, families_seen = 0;
    const std::vector<Family> all = families(dct4_max);
    double total = 0, done = 0;
    for (const Family& f : all)
        for (const Transform& t : f.sizes)
            total += work(t);
    Progress progress(progress_wanted);
    for (const Family& f : all) {
        const Result r = check_family(f, [&](const Transform& t) {
            progress.show(done, total, t.name());
            done += work(t);
        });
        progress.clear();
        char digest[17];
        std::snprintf(digest, sizeof digest, "%016llx", static_cast<unsigned long long>(r.digest));
        ++families_seen;
        const std::string key = shipped_name(f.name);
        if (print) {
            if (key == f.name)
                std::printf("%-28s %s\n", f.name.c_str(), digest);
            continue;
        }
        std::string verdict = "PASS";
        if (!r.failure.empty())
            verdict = "FAIL: " + r.failure;
        else if (!(r.worst <= 1))
            verdict = "FAIL: error above the bound";
        else if (!shipped.count(key))
            verdict = "FAIL: no digest shipped for " + key;
        else if (shipped.at(key) != digest)
            verdict = "FAIL: the shipped digest of " + key + " is " + shipped.at(key);
        failed += verdict != "PASS";
        char error[32];
        std::snprintf(error, sizeof error, "%.3f (N %d)", r.worst, r.at);
        std::printf("%-28s %5zu  %-18s %s  %s\n", f.name.c_str(), f.sizes.size(), error, digest, verdict.c_str());
        std::fflush(stdout);
    }
    if (print)
        return 0;
    std::printf("\n%d families, %s; error: relative, 2-norm, on fixed inputs, against a long-double reference;\n"
                "bound: log2 N units of the precision; digests compared with %s\n",
                families_seen, failed ? (std::to_string(failed) + " FAILED").c_str() : "all passed",
                digest_source.c_str());
    return failed ? 1 : 0;
}

}  // namespace vtxcli
