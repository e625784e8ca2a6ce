// Kernel assembly for the complex Fourier kernels.
//
// Three forms share the blocks of blocks.cpp:
//  - scalar float, sizes 2 to 5: one block on scalar parts;
//  - four-lane float: real and imaginary parts in separate vectors.  The top
//    rule splits the kernel over lanes: its first-stage blocks run in lanes,
//    one block per lane, across vectors; a transposition turns the lanes
//    over; full twiddle rows follow for CT; the second-stage blocks run in
//    lanes again.  Rules nested inside a stage run across vectors;
//  - two-lane double: one complex element per vector, run through the flow
//    graph of a real-input transform on both lanes at once.  Its blocks give
//    bins X[k] = P + i'R with real coefficients; lanes meet only at the end,
//    where y[k] and y[N-k] take one lane exchange and one sign flip per pair.
#include "complex.hpp"

#include "blocks.hpp"
#include "exact.hpp"

#include <stdexcept>

namespace vtxgen {

namespace {

[[noreturn]] void unsupported(const std::string& what)
{
    throw std::invalid_argument("no builder for " + what);
}

// ------------------------------------------------------------ scalar float

void scalar_kernel(Graph& g, const Rule& rule, Direction dir)
{
    const int n = rule.size;
    Arith f(g, Prec::F32, 1, n == 3 || n == 5);
    Cxs x;
    for (int i = 0; i < n; ++i)
        x.push_back({{g.load(Prec::F32, 1, Access::Scalar, 2 * i)}, {g.load(Prec::F32, 1, Access::Scalar, 2 * i + 1)}});
    const Cxs y = transform(f, rule, x, dir);
    for (int k = 0; k < n; ++k) {
        g.store(g.scale(f.node(y[k].re)), Access::Scalar, 2 * k);
        g.store(g.scale(f.node(y[k].im)), Access::Scalar, 2 * k + 1);
    }
}

// --------------------------------------------------------- four-lane float

// Lanes of one vector pair: up to four elements, by 16-byte accesses where
// two needed elements are adjacent, by 8-byte accesses otherwise.
Cx load_lanes(Graph& g, const std::vector<int>& elements)
{
    std::vector<Id> halves;  // each holds two elements, interleaved
    for (std::size_t l = 0; l < elements.size(); l += 2) {
        const int e = elements[l];
        if (l + 1 < elements.size() && elements[l + 1] == e + 1) {
            halves.push_back(g.load(Prec::F32, 4, Access::Full, 2 * e));
        } else {
            const Id lo = g.load(Prec::F32, 4, Access::Low, 2 * e);
            const Id hi = l + 1 < elements.size() ? g.load(Prec::F32, 4, Access::Low, 2 * elements[l + 1]) : lo;
            halves.push_back(g.shuffle(lo, hi, {0, 1, 4, 5}));
        }
    }
    const Id v0 = halves[0], v1 = halves.size() > 1 ? halves[1] : halves[0];
    return {{g.shuffle(v0, v1, {0, 2, 4, 6})}, {g.shuffle(v0, v1, {1, 3, 5, 7})}};
}

// Interleaves, scales and stores the lanes of v as the given elements: a
// pair of adjacent elements at an even index by one 16-byte access, the
// others by 8-byte accesses.  The scale is the last arithmetic, on the
// interleaved vectors.
void store_lanes(Arith& f, Cx v, const std::vector<int>& elements)
{
    Graph& g = f.graph();
    const Id re = f.node(v.re), im = f.node(v.im);
    for (std::size_t l = 0; l < elements.size(); l += 2) {
        const Id packed = g.scale(l == 0 ? g.shuffle(re, im, {0, 4, 1, 5}) : g.shuffle(re, im, {2, 6, 3, 7}));
        const int e = elements[l];
        const bool pair = l + 1 < elements.size();
        if (pair && elements[l + 1] == e + 1 && e % 2 == 0) {
            g.store(packed, Access::Full, 2 * e);
        } else {
            g.store(packed, Access::Low, 2 * e);
            if (pair)
                g.store(packed, Access::High, 2 * elements[l + 1]);
        }
    }
}

// Four lanes of four vectors become four vectors of four lanes.
std::array<Id, 4> transpose(Graph& g, const std::array<Id, 4>& v)
{
    const Id lo01 = g.shuffle(v[0], v[1], {0, 4, 1, 5}), lo23 = g.shuffle(v[2], v[3], {0, 4, 1, 5});
    const Id hi01 = g.shuffle(v[0], v[1], {2, 6, 3, 7}), hi23 = g.shuffle(v[2], v[3], {2, 6, 3, 7});
    return {g.shuffle(lo01, lo23, {0, 1, 4, 5}), g.shuffle(lo01, lo23, {2, 3, 6, 7}),
            g.shuffle(hi01, hi23, {0, 1, 4, 5}), g.shuffle(hi01, hi23, {2, 3, 6, 7})};
}

// The twiddle row r of lanes k1 = k0..k0+3: a full complex product with two
// constant vectors, trivial lanes included.
Cx twiddle_row(Arith& f, Cx v, int n, int r, int k0, int lanes, Direction dir)
{
    Graph& g = f.graph();
    std::array<double, 4> c{1, 1, 1, 1}, s{};
    const int sign = dir == Direction::Forward ? -1 : 1;
    for (int l = 0; l < lanes; ++l) {
        c[l] = exact::to_float(exact::cos_2pi(long(r) * (k0 + l), n));
        s[l] = exact::to_float(exact::sin_2pi(long(sign) * r * (k0 + l), n));
    }
    const std::string what = "w(" + std::to_string(n) + ")^(" + std::to_string(r) + "k)";
    const Id cv = g.constant(Prec::F32, 4, c, "cos of " + what);
    const Id sv = g.constant(Prec::F32, 4, s, "sin of " + what);
    const Id re = f.node(v.re), im = f.node(v.im);
    return {{g.sub(g.mul(cv, re), g.mul(sv, im))}, {g.add(g.mul(sv, re), g.mul(cv, im))}};
}

int groups_of_four(int n) { return (n + 3) / 4; }

void vector_kernel(Graph& g, const Rule& rule, Direction dir)
{
    if (rule.kind != Rule::Kind::CT && rule.kind != Rule::Kind::PF)
        unsupported("the float rule " + rule.text());
    Arith f(g, Prec::F32, 4);
    const bool ct = rule.kind == Rule::Kind::CT;
    const int a = rule.first->size, b = rule.second->size, n = a * b;
    auto input = [&](int i, int col) { return ct ? col + b * i : (b * i + a * col) % n; };
    auto output = [&](int k1, int k2) {
        if (ct)
            return k1 + a * k2;
        int k = 0;
        while (k % a != k1 || k % b != k2)
            ++k;
        return k;
    };
    // First stage: columns in lanes, a-point blocks across vectors.
    const int col_groups = groups_of_four(b), k1_groups = groups_of_four(a);
    std::vector<Cxs> A(static_cast<std::size_t>(col_groups));  // A[group][k1]
    for (int cg = 0; cg < col_groups; ++cg) {
        Cxs rows;
        for (int i = 0; i < a; ++i) {
            std::vector<int> elements;
            for (int col = 4 * cg; col < std::min(b, 4 * cg + 4); ++col)
                elements.push_back(input(i, col));
            rows.push_back(load_lanes(g, elements));
        }
        A[cg] = transform(f, *rule.first, rows, dir);
    }
    // Transposition in four-by-four tiles: T[col][k1 group].
    std::vector<std::vector<Cx>> T(static_cast<std::size_t>(b), std::vector<Cx>(static_cast<std::size_t>(k1_groups)));
    for (int cg = 0; cg < col_groups; ++cg)
        for (int kg = 0; kg < k1_groups; ++kg) {
            std::array<Id, 4> re, im;
            for (int l = 0; l < 4; ++l) {
                const int k1 = std::min(4 * kg + l, a - 1);  // idle lanes repeat a row
                re[l] = f.node(A[cg][k1].re);
                im[l] = f.node(A[cg][k1].im);
            }
            const auto tre = transpose(g, re), tim = transpose(g, im);
            for (int l = 0; l < 4 && 4 * cg + l < b; ++l)
                T[4 * cg + l][kg] = {{tre[l]}, {tim[l]}};
        }
    // Twiddle rows and second stage: k1 in lanes, b-point blocks across vectors.
    for (int kg = 0; kg < k1_groups; ++kg) {
        const int lanes = std::min(4, a - 4 * kg);
        Cxs cols;
        for (int col = 0; col < b; ++col)
            cols.push_back(ct && col > 0 ? twiddle_row(f, T[col][kg], n, col, 4 * kg, lanes, dir) : T[col][kg]);
        const Cxs y = transform(f, *rule.second, cols, dir);
        for (int k2 = 0; k2 < b; ++k2) {
            std::vector<int> elements;
            for (int l = 0; l < lanes; ++l)
                elements.push_back(output(4 * kg + l, k2));
            store_lanes(f, y[k2], elements);
        }
    }
}

// ------------------------------------------------------------ two-lane double

// The only place where lanes meet: with X[k] = P + i'R, the outputs are
// y[k] = P + iR and y[N-k] = P - iR (forward and inverse alike: the
// direction is in the bins), iR being R with its lanes exchanged and the
// sign of the new real lane flipped.
std::vector<Val> join_pairs(Arith& f, const Cxs& bins)
{
    Graph& g = f.graph();
    const int n = static_cast<int>(bins.size());
    std::vector<Val> y(static_cast<std::size_t>(n));
    y[0] = bins[0].re;
    if (n % 2 == 0)
        y[n / 2] = bins[n / 2].re;
    for (int k = 1; 2 * k < n; ++k) {
        const Val r = bins[k].im;  // iR = (-R.im, R.re); with R = -Q it is (Q.im, -Q.re)
        const Val i_r{g.flip_sign(g.swap(r.id), {!r.neg, r.neg}), false};
        y[k] = f.add(bins[k].re, i_r);
        y[n - k] = f.sub(bins[k].re, i_r);
    }
    return y;
}

// Direct block of size 3 or 5 as a kernel of its own: the sine products are
// taken on lane-exchanged differences with constant pairs of opposite sign
// (G = iS), so the block needs no sign mask.  y[0] = x[0] + (a1 + a2 + ...).
std::vector<Val> direct_swapped(Arith& f, const std::vector<Id>& x, Direction dir)
{
    Graph& g = f.graph();
    const int p = static_cast<int>(x.size());
    const std::vector<int> u = pair_order(p);
    std::vector<Val> a, sb;
    for (int j : u) {
        a.push_back({g.add(x[j], x[p - j])});
        sb.push_back({g.swap(g.sub(x[j], x[p - j]))});
    }
    Val asum = a[0];
    for (std::size_t j = 1; j < a.size(); ++j)
        asum = f.add(asum, a[j]);
    std::vector<Val> y(static_cast<std::size_t>(p));
    y[0] = f.add(Val{x[0]}, asum);
    for (int m = 1; m <= (p - 1) / 2; ++m) {
        std::vector<Term> cos_terms;
        Val s;
        for (std::size_t j = 0; j < u.size(); ++j) {
            const long e = long(u[j]) * m % p;
            cos_terms.push_back({exact::cos_2pi(e, p), a[j], angle_note("cos", e, p)});
            const exact::Quad sv = exact::sin_2pi(e, p), mag = sv < 0 ? -sv : sv;
            const Id pair = g.constant(Prec::F64, 2, {-exact::to_double(mag), exact::to_double(mag)},
                                       "-+" + angle_note("sin", e, p));
            const Val sp{g.mul(pair, sb[j].id), sv < 0};
            s = j == 0 ? sp : f.add(s, sp);
        }
        const Val c = f.combine(Val{x[0]}, cos_terms);
        y[m] = dir == Direction::Forward ? f.sub(c, s) : f.add(c, s);
        y[p - m] = dir == Direction::Forward ? f.add(c, s) : f.sub(c, s);
    }
    return y;
}

void two_lane_kernel(Graph& g, const Rule& rule, Direction dir)
{
    const int n = rule.size;
    Arith f(g, Prec::F64, 2);
    std::vector<Id> x;
    for (int i = 0; i < n; ++i)
        x.push_back(g.load(Prec::F64, 2, Access::Full, 2 * i));
    std::vector<Val> y;
    if (rule.kind == Rule::Kind::Block && (n == 3 || n == 5) && rule.variant.empty()) {
        y = direct_swapped(f, x, dir);
    } else {
        Cxs in;
        for (Id v : x)
            in.push_back({{v}, {}});
        y = join_pairs(f, transform(f, rule, in, dir));
    }
    for (int k = 0; k < n; ++k)
        g.store(g.scale(f.node(y[k])), Access::Full, 2 * k);
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
        scalar_kernel(g, rule, direction);
    else
        vector_kernel(g, rule, direction);
    return g;
}

std::vector<ComplexKernel> complex_kernels()
{
    std::vector<ComplexKernel> out;
    for (Prec p : {Prec::F32, Prec::F64})
        for (const ComplexRow& row : complex_rows())
            if (const char* rule = p == Prec::F32 ? row.f32 : row.f64)
                out.push_back({Direction::Forward, p, row.size, Rule::parse(rule)});
    return out;
}

}  // namespace vtxgen
