// Block builders and kernel assembly for the complex Fourier kernels.
//
// Two data forms:
//  - the split form (float): real and imaginary parts in separate nodes,
//    scalars for sizes 2 to 5, four-lane vectors from size 6 on;
//  - the two-lane form (double): one complex element per node, run through
//    the flow graph of a real-input transform on both lanes at once.  Its
//    blocks yield half spectra: bins X[k] = P - i'Q with real coefficients.
//    Lanes meet only at the end, where y[k] = P - iQ and y[N-k] = P + iQ
//    take one lane exchange and one sign flip per pair.
#include "complex.hpp"

#include "exact.hpp"

#include <cmath>
#include <map>
#include <stdexcept>
#include <utility>

namespace vtxgen {

namespace {

[[noreturn]] void unsupported(const std::string& what)
{
    throw std::invalid_argument("no builder for " + what);
}

// "|cos(2*pi*3/5)|": constants are stored by magnitude, signs go into the additions.
std::string fmt_angle(const char* fn, long num, long den)
{
    return std::string("|") + fn + "(2*pi*" + std::to_string(num) + "/" + std::to_string(den) + ")|";
}

// A constant of a kernel, from its exact value, rounded once to `p`.
Id exact_splat(Graph& g, Prec p, int width, exact::Quad v, std::string note)
{
    const double d = p == Prec::F32 ? double(exact::to_float(v)) : exact::to_double(v);
    return g.splat(p, width, d, std::move(note));
}

// Order of a direct block's pairs: powers of a root g whose power (p-1)/2 is
// -1 modulo p.
int pair_root(int p)
{
    switch (p) {
    case 3: return 2;
    case 5: return 3;
    case 7: return 5;
    case 11: return 6;
    default: unsupported("a direct block of " + std::to_string(p) + " points");
    }
}

std::vector<int> pair_order(int p)
{
    std::vector<int> u;
    for (int j = 0, v = 1; j < (p - 1) / 2; ++j, v = v * pair_root(p) % p)
        u.push_back(v);
    return u;
}

// A term c * v of a real linear combination; the sign of c picks addition or
// subtraction, the product takes |c|.
struct Term {
    exact::Quad coef;
    Id value;
    std::string note;
};

// ---------------------------------------------------------------- split form

struct Cx {
    Id re, im;
};

class Split {
public:
    // wide: products with constants and their sums run in double and round
    // once to float (float kernels of sizes 3 and 5).
    Split(Graph& g, Prec prec, int width, bool wide) : g_(g), prec_(prec), width_(width), wide_(wide) {}

    Graph& graph() { return g_; }
    int width() const { return width_; }
    Prec prec() const { return prec_; }

    Cx add(Cx a, Cx b) { return {g_.add(a.re, b.re), g_.add(a.im, b.im)}; }
    Cx sub(Cx a, Cx b) { return {g_.sub(a.re, b.re), g_.sub(a.im, b.im)}; }

    // start + sum of terms, left to right; start joins after the first product.
    Id combine(Id start, const std::vector<Term>& terms)
    {
        const Prec p = wide_ ? Prec::F64 : prec_;
        Id acc = kNone;
        for (const Term& t : terms) {
            const Id k = exact_splat(g_, p, width_, t.coef < 0 ? -t.coef : t.coef, t.note);
            const Id prod = g_.mul(k, lift(t.value));
            const bool plus = t.coef > 0;
            if (acc != kNone)
                acc = plus ? g_.add(acc, prod) : g_.sub(acc, prod);
            else if (start != kNone)
                acc = plus ? g_.add(prod, lift(start)) : g_.sub(lift(start), prod);
            else if (plus)
                acc = prod;
            else
                unsupported("a combination that starts with a negative product");
        }
        return wide_ ? g_.narrow(acc) : acc;
    }

    // y[m] = C - iS and y[p-m] = C + iS in the forward direction.
    std::pair<Cx, Cx> conjugate_pair(Cx c, Cx s, Direction dir)
    {
        Cx minus{g_.add(c.re, s.im), g_.sub(c.im, s.re)};
        Cx plus{g_.sub(c.re, s.im), g_.add(c.im, s.re)};
        return dir == Direction::Forward ? std::pair{minus, plus} : std::pair{plus, minus};
    }

private:
    Id lift(Id v)
    {
        if (!wide_)
            return v;
        auto it = widened_.find(v);
        return it != widened_.end() ? it->second : widened_[v] = g_.widen(v);
    }

    Graph& g_;
    Prec prec_;
    int width_;
    bool wide_;
    std::map<Id, Id> widened_;
};

std::vector<Cx> two_point(Split& f, const std::vector<Cx>& x)
{
    return {f.add(x[0], x[1]), f.sub(x[0], x[1])};
}

// Multiplication by -i folds into the last additions: no product, no mask.
std::vector<Cx> four_point(Split& f, const std::vector<Cx>& x, Direction dir)
{
    Graph& g = f.graph();
    const Cx a = f.add(x[0], x[2]), b = f.sub(x[0], x[2]);
    const Cx c = f.add(x[1], x[3]), d = f.sub(x[1], x[3]);
    const Cx y1{g.add(b.re, d.im), g.sub(b.im, d.re)};
    const Cx y3{g.sub(b.re, d.im), g.add(b.im, d.re)};
    return dir == Direction::Forward ? std::vector<Cx>{f.add(a, c), y1, f.sub(a, c), y3}
                                     : std::vector<Cx>{f.add(a, c), y3, f.sub(a, c), y1};
}

// Direct block of an odd prime: cosine sums C[m] over the pair sums, sine
// sums S[m] over the pair differences, y[0] folded from x[0] on.
std::vector<Cx> direct_split(Split& f, const std::vector<Cx>& x, Direction dir)
{
    const int p = static_cast<int>(x.size());
    const std::vector<int> u = pair_order(p);
    std::vector<Cx> a, b;
    for (int j : u) {
        a.push_back(f.add(x[j], x[p - j]));
        b.push_back(f.sub(x[j], x[p - j]));
    }
    std::vector<Cx> y(p);
    y[0] = x[0];
    for (const Cx& aj : a)
        y[0] = f.add(y[0], aj);
    for (int m = 1; m <= (p - 1) / 2; ++m) {
        std::vector<Term> cre, cim, sre, sim;
        for (std::size_t j = 0; j < u.size(); ++j) {
            const long e = long(u[j]) * m;
            const exact::Quad c = exact::cos_2pi(e, p), s = exact::sin_2pi(e, p);
            cre.push_back({c, a[j].re, fmt_angle("cos", e % p, p)});
            cim.push_back({c, a[j].im, fmt_angle("cos", e % p, p)});
            sre.push_back({s, b[j].re, fmt_angle("sin", e % p, p)});
            sim.push_back({s, b[j].im, fmt_angle("sin", e % p, p)});
        }
        const Cx C{f.combine(x[0].re, cre), f.combine(x[0].im, cim)};
        const Cx S{f.combine(kNone, sre), f.combine(kNone, sim)};
        std::tie(y[m], y[p - m]) = f.conjugate_pair(C, S, dir);
    }
    return y;
}

std::vector<Cx> split_block(Split& f, const Rule& r, const std::vector<Cx>& x, Direction dir)
{
    if (r.kind != Rule::Kind::Block || !r.variant.empty())
        unsupported("the float block " + r.text());
    switch (r.size) {
    case 2: return two_point(f, x);
    case 4: return four_point(f, x, dir);
    default: return direct_split(f, x, dir);
    }
}

// Twiddle w(N)^(r k) for the four lanes k = k0..k0+3, multiplied in full,
// trivial lanes included.
Cx twiddle_row(Split& f, Cx v, int n, int r, int k0, Direction dir)
{
    Graph& g = f.graph();
    std::array<double, 4> c{}, s{};
    const int sign = dir == Direction::Forward ? -1 : 1;
    for (int l = 0; l < 4; ++l) {
        c[l] = exact::to_float(exact::cos_2pi(long(r) * (k0 + l), n));
        s[l] = exact::to_float(exact::sin_2pi(long(sign) * r * (k0 + l), n));
    }
    const std::string what = "w(" + std::to_string(n) + ")^(" + std::to_string(r) + "k)";
    const Id cv = g.constant(f.prec(), 4, c, "cos of " + what);
    const Id sv = g.constant(f.prec(), 4, s, "sin of " + what);
    return {g.sub(g.mul(cv, v.re), g.mul(sv, v.im)), g.add(g.mul(sv, v.re), g.mul(cv, v.im))};
}

// Lanes of four-lane values, two complex elements per 16-byte access.
Cx load_lanes(Graph& g, int element, int count)
{
    const Id v0 = g.load(Prec::F32, 4, Access::Full, 2 * element);
    if (count == 2)
        return {g.shuffle(v0, v0, {0, 2, 4, 6}), g.shuffle(v0, v0, {1, 3, 5, 7})};
    if (count != 4)
        unsupported("a row of " + std::to_string(count) + " lanes");
    const Id v1 = g.load(Prec::F32, 4, Access::Full, 2 * element + 4);
    return {g.shuffle(v0, v1, {0, 2, 4, 6}), g.shuffle(v0, v1, {1, 3, 5, 7})};
}

void store_lanes(Graph& g, Cx v, int element)
{
    const Id re = g.scale(v.re), im = g.scale(v.im);
    g.store(g.shuffle(re, im, {0, 4, 1, 5}), Access::Full, 2 * element);
    g.store(g.shuffle(re, im, {2, 6, 3, 7}), Access::Full, 2 * element + 4);
}

// Four lanes of four values become four values of four lanes.
std::array<Id, 4> transpose(Graph& g, const std::array<Id, 4>& v)
{
    const Id lo01 = g.shuffle(v[0], v[1], {0, 4, 1, 5}), lo23 = g.shuffle(v[2], v[3], {0, 4, 1, 5});
    const Id hi01 = g.shuffle(v[0], v[1], {2, 6, 3, 7}), hi23 = g.shuffle(v[2], v[3], {2, 6, 3, 7});
    return {g.shuffle(lo01, lo23, {0, 1, 4, 5}), g.shuffle(lo01, lo23, {2, 3, 6, 7}),
            g.shuffle(hi01, hi23, {0, 1, 4, 5}), g.shuffle(hi01, hi23, {2, 3, 6, 7})};
}

// CT(a,b) in four lanes: columns r in lanes for the a-point stage, a
// transposition, full twiddle rows, then the b-point stage with lanes k1.
void vector_ct(Graph& g, const Rule& rule, Direction dir)
{
    const int a = rule.first->size, b = rule.second->size, n = a * b;
    if (a != 4 || b > 4)
        unsupported("the float rule " + rule.text());
    Split f(g, Prec::F32, 4, false);
    std::vector<Cx> rows;
    for (int t = 0; t < a; ++t)
        rows.push_back(load_lanes(g, b * t, b));
    const std::vector<Cx> A = split_block(f, *rule.first, rows, dir);
    const auto re = transpose(g, {A[0].re, A[1].re, A[2].re, A[3].re});
    const auto im = transpose(g, {A[0].im, A[1].im, A[2].im, A[3].im});
    std::vector<Cx> cols;
    for (int r = 0; r < b; ++r) {
        const Cx v{re[r], im[r]};
        cols.push_back(r == 0 ? v : twiddle_row(f, v, n, r, 0, dir));
    }
    const std::vector<Cx> y = split_block(f, *rule.second, cols, dir);
    for (int k2 = 0; k2 < b; ++k2)
        store_lanes(g, y[k2], a * k2);
}

// Scalar kernels of sizes 2 to 5: one block on scalar parts.
void scalar_block(Graph& g, const Rule& rule, Direction dir)
{
    const int n = rule.size;
    Split f(g, Prec::F32, 1, n == 3 || n == 5);
    std::vector<Cx> x;
    for (int i = 0; i < n; ++i)
        x.push_back({g.load(Prec::F32, 1, Access::Scalar, 2 * i), g.load(Prec::F32, 1, Access::Scalar, 2 * i + 1)});
    const std::vector<Cx> y = split_block(f, rule, x, dir);
    for (int k = 0; k < n; ++k) {
        g.store(g.scale(y[k].re), Access::Scalar, 2 * k);
        g.store(g.scale(y[k].im), Access::Scalar, 2 * k + 1);
    }
}

// ------------------------------------------------------------- two-lane form

// A bin of a half spectrum: X = P - i'Q; a real bin has no Q.
struct Bin {
    Id p = kNone, q = kNone;
};

Id pair_const(Graph& g, exact::Quad lane0, exact::Quad lane1, std::string note)
{
    return g.constant(Prec::F64, 2, {exact::to_double(lane0), exact::to_double(lane1)}, std::move(note));
}

Id scaled(Graph& g, exact::Quad c, Id v, std::string note)
{
    return g.mul(exact_splat(g, Prec::F64, 2, c, std::move(note)), v);
}

// Odd part O(N) of the recursion, on d[j] = x[j] - x[j + N/2]: bins 1, 3, ...
std::vector<Bin> odd_part(Graph& g, const std::vector<Id>& d)
{
    switch (d.size()) {
    case 1: return {{d[0], kNone}};
    case 2: return {{d[0], d[1]}};
    case 4: {
        const exact::Quad h = exact::cos_2pi(1, 8);
        const Id t13 = scaled(g, h, d[3], "sqrt(1/2)"), t25 = scaled(g, h, d[1], "sqrt(1/2)");
        const Id t27 = g.sub(t25, t13), t29 = g.add(t25, t13);
        return {{g.add(d[0], t27), g.add(d[2], t29)}, {g.sub(d[0], t27), g.sub(t29, d[2])}};
    }
    default: unsupported("the odd part of R(" + std::to_string(2 * d.size()) + ")");
    }
}

// R(N): sums and differences of the halves; the even bins are R(N/2) of the
// sums, the same graph as the smaller kernel's; the odd bins are O(N).
std::vector<Bin> recursion(Graph& g, const std::vector<Id>& x)
{
    const std::size_t h = x.size() / 2;
    std::vector<Id> s, d;
    for (std::size_t j = 0; j < h; ++j) {
        s.push_back(g.add(x[j], x[j + h]));
        d.push_back(g.sub(x[j], x[j + h]));
    }
    const std::vector<Bin> odd = odd_part(g, d);
    if (h == 1)
        return {{s[0], kNone}, odd[0]};
    const std::vector<Bin> even = recursion(g, s);
    std::vector<Bin> bins(h + 1);
    for (std::size_t k = 0; k <= h; k += 2)
        bins[k] = even[k / 2];
    for (std::size_t k = 1; k < h; k += 2)
        bins[k] = odd[k / 2];
    return bins;
}

// The only place where lanes meet: y[k] = P - iQ, y[N-k] = P + iQ (forward).
std::vector<Id> join_pairs(Graph& g, const std::vector<Bin>& bins, int n, Direction dir)
{
    std::vector<Id> y(n);
    y[0] = bins[0].p;
    if (n % 2 == 0)
        y[n / 2] = bins[n / 2].p;
    for (int k = 1; 2 * k < n; ++k) {
        const Id minus_i_q = g.flip_sign(g.swap(bins[k].q), {false, true});
        const Id first = g.add(bins[k].p, minus_i_q), second = g.sub(bins[k].p, minus_i_q);
        y[k] = dir == Direction::Forward ? first : second;
        y[n - k] = dir == Direction::Forward ? second : first;
    }
    return y;
}

// Direct block of size 3 or 5 as a kernel of its own: the sine products are
// taken on lane-exchanged differences with constant pairs of opposite sign
// (G = iS), so the block needs no sign mask.  y[0] = x[0] + (a1 + a2 + ...).
std::vector<Id> direct_swapped(Graph& g, const std::vector<Id>& x, Direction dir)
{
    const int p = static_cast<int>(x.size());
    const std::vector<int> u = pair_order(p);
    std::vector<Id> a, sb;
    for (int j : u) {
        a.push_back(g.add(x[j], x[p - j]));
        sb.push_back(g.swap(g.sub(x[j], x[p - j])));
    }
    Id asum = a[0];
    for (std::size_t j = 1; j < a.size(); ++j)
        asum = g.add(asum, a[j]);
    std::vector<Id> y(p);
    y[0] = g.add(x[0], asum);
    for (int m = 1; m <= (p - 1) / 2; ++m) {
        Id c = kNone, s = kNone;
        for (std::size_t j = 0; j < u.size(); ++j) {
            const long e = long(u[j]) * m;
            const exact::Quad cv = exact::cos_2pi(e, p), sv = exact::sin_2pi(e, p);
            const Id cp = scaled(g, cv < 0 ? -cv : cv, a[j], fmt_angle("cos", e % p, p));
            c = j == 0 ? (cv > 0 ? g.add(cp, x[0]) : g.sub(x[0], cp)) : (cv > 0 ? g.add(c, cp) : g.sub(c, cp));
            const exact::Quad mag = sv < 0 ? -sv : sv;
            const Id sp = g.mul(pair_const(g, -mag, mag, "-+" + fmt_angle("sin", e % p, p)), sb[j]);
            s = j == 0 ? sp : (sv > 0 ? g.add(s, sp) : g.sub(s, sp));
        }
        const Id first = g.sub(c, s), second = g.add(c, s);  // C - iS, C + iS
        y[m] = dir == Direction::Forward ? first : second;
        y[p - m] = dir == Direction::Forward ? second : first;
    }
    return y;
}

void two_lane_kernel(Graph& g, const Rule& rule, Direction dir)
{
    const int n = rule.size;
    std::vector<Id> x;
    for (int i = 0; i < n; ++i)
        x.push_back(g.load(Prec::F64, 2, Access::Full, 2 * i));
    std::vector<Id> y;
    if (rule.kind == Rule::Kind::Block && (n == 3 || n == 5) && rule.variant.empty())
        y = direct_swapped(g, x, dir);
    else if (rule.kind == Rule::Kind::R || (rule.kind == Rule::Kind::Block && (n == 2 || n == 4)))
        y = join_pairs(g, recursion(g, x), n, dir);
    else
        unsupported("the double rule " + rule.text());
    for (int k = 0; k < n; ++k)
        g.store(g.scale(y[k]), Access::Full, 2 * k);
}

}  // namespace

std::string ComplexKernel::name() const
{
    return std::string(direction == Direction::Forward ? "vtxgDFTFwd" : "vtxgDFTInv") + "_CToC_" +
           std::to_string(size) + (prec == Prec::F32 ? "_32fc" : "_64fc");
}

std::string ComplexKernel::twin_name() const
{
    return "owng" + name().substr(4) + "_unaligned";
}

Frame ComplexKernel::frame() const
{
    if (prec == Prec::F32)
        return size <= 5 ? Frame::NoAlignmentTest : Frame::Twin;
    return size <= 4 ? Frame::SecondPath : Frame::Twin;
}

Graph ComplexKernel::build() const
{
    Graph g;
    if (prec == Prec::F64)
        two_lane_kernel(g, rule, direction);
    else if (size <= 5)
        scalar_block(g, rule, direction);
    else if (rule.kind == Rule::Kind::CT)
        vector_ct(g, rule, direction);
    else
        unsupported("the float rule " + rule.text());
    return g;
}

std::vector<ComplexKernel> complex_kernels()
{
    std::vector<ComplexKernel> out;
    for (Prec p : {Prec::F32, Prec::F64})
        for (const ComplexRow& row : complex_rows())
            out.push_back({Direction::Forward, p, row.size, Rule::parse(p == Prec::F32 ? row.f32 : row.f64)});
    return out;
}

}  // namespace vtxgen
