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

// The three forms' arithmetic.  Scalar float kernels form their products and
// the sums of products in double (sizes 3 and 5 have any); the four-lane
// float form stays in float and runs Rader blocks on the real and imaginary
// parts apart; the two-lane double form adds the pair sums of a direct block
// before x[0] and runs real power-of-two blocks as R(n).
const Policy kScalarFloat{.element = Prec::F32, .width = 1, .wide = true, .rader_parts_apart = true};
const Policy kFourLaneFloat{.element = Prec::F32, .width = 4, .rader_parts_apart = true};
const Policy kTwoLaneDouble{
    .element = Prec::F64, .width = 2, .dc = Policy::Dc::PairsFirst, .real_powers_of_two_recursive = true};

// ------------------------------------------------------------ scalar float

void scalar_kernel(Graph& g, const Rule& rule, Direction dir)
{
    const int n = rule.size;
    Arith f(g, kScalarFloat);
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
// A full complex product, lane by lane, with the factor's real and
// imaginary parts in two constant vectors.
Cx times_lanes(Arith& f, Cx v, const std::array<double, 4>& re, const std::array<double, 4>& im,
               const std::string& what)
{
    Graph& g = f.graph();
    const Id cr = g.constant(Prec::F32, 4, re, "Re " + what), ci = g.constant(Prec::F32, 4, im, "Im " + what);
    const Id vr = f.node(v.re), vi = f.node(v.im);
    // Each product in a statement of its own, the second first (graph.hpp).
    const Id ii = g.mul(ci, vi), rr = g.mul(cr, vr);
    const Id real = g.sub(rr, ii);
    const Id ri = g.mul(cr, vi), ir = g.mul(ci, vr);
    return {{real}, {g.add(ir, ri)}};
}

Cx twiddle_row(Arith& f, Cx v, int n, int r, int k0, int lanes, Direction dir)
{
    Graph& g = f.graph();
    // Idle lanes have the twiddle 0: a row of ones in the used lanes is then
    // a lane mask, and only a full group's first row is skipped.
    if (r == 0) {
        if (lanes == 4)
            return v;
        const std::array<bool, 4> used{lanes > 0, lanes > 1, lanes > 2, false};
        return {{g.mask(f.node(v.re), used)}, {g.mask(f.node(v.im), used)}};
    }
    std::array<double, 4> c{}, s{};
    const int sign = dir == Direction::Forward ? -1 : 1;
    for (int l = 0; l < lanes; ++l) {
        c[l] = exact::to_float(exact::cos_2pi(long(r) * (k0 + l), n));
        s[l] = exact::to_float(exact::sin_2pi(long(sign) * r * (k0 + l), n));
    }
    return times_lanes(f, v, c, s, "w(" + std::to_string(n) + ")^(" + std::to_string(r) + "k)");
}

int groups_of_four(int n) { return (n + 3) / 4; }

// A CT or PF rule split over four lanes.  Its input side holds, for each
// group of four columns, the a rows of the first stage (lanes: columns);
// its output side holds, for each group of four k1, the b rows of the second
// stage (lanes: k1).  forward() runs the first-stage blocks, turns the lanes
// over, applies the twiddle rows and runs the second-stage blocks;
// mirrored() runs the same transform (same root) with its stages in reverse
// order, from the output side back to the input side.
class LaneSplit {
public:
    LaneSplit(Arith& f, const Rule& rule, Direction dir) : f_(f), rule_(rule), dir_(dir)
    {
        if (rule.kind != Rule::Kind::CT && rule.kind != Rule::Kind::PF)
            unsupported("a lane split of " + rule.text());
        a = rule.first->size;
        b = rule.second->size;
        n = a * b;
        ct = rule.kind == Rule::Kind::CT;
    }

    int a, b, n;
    bool ct;

    int col_groups() const { return groups_of_four(b); }
    int k1_groups() const { return groups_of_four(a); }
    int cols_in(int cg) const { return std::min(4, b - 4 * cg); }
    int k1s_in(int kg) const { return std::min(4, a - 4 * kg); }

    // The transform's input index of row i, column col.
    int input(int i, int col) const { return ct ? col + b * i : (b * i + a * col) % n; }
    // Its output index of k1, k2.
    int output(int k1, int k2) const
    {
        if (ct)
            return k1 + a * k2;
        int k = 0;
        while (k % a != k1 || k % b != k2)
            ++k;
        return k;
    }

    // rows[cg][i] -> spectrum[kg][k2]
    std::vector<Cxs> forward(const std::vector<Cxs>& rows) const
    {
        std::vector<Cxs> A;  // A[cg][k1]
        for (int cg = 0; cg < col_groups(); ++cg)
            A.push_back(transform(f_, *rule_.first, rows[cg], dir_));
        const auto T = turn(A, col_groups(), k1_groups(), a, b);  // T[kg][col]
        std::vector<Cxs> out;
        for (int kg = 0; kg < k1_groups(); ++kg) {
            Cxs cols;
            for (int col = 0; col < b; ++col)
                cols.push_back(twiddled(T[kg][col], col, kg));
            out.push_back(transform(f_, *rule_.second, cols, dir_));
        }
        return out;
    }

    // spectrum[kg][k2] -> rows[cg][i]
    std::vector<Cxs> mirrored(const std::vector<Cxs>& spectrum) const
    {
        std::vector<Cxs> C;  // C[kg][col]
        for (int kg = 0; kg < k1_groups(); ++kg) {
            Cxs cols = transform(f_, *rule_.second, spectrum[kg], dir_);
            for (int col = 0; col < b; ++col)
                cols[col] = twiddled(cols[col], col, kg);
            C.push_back(cols);
        }
        const auto T = turn(C, k1_groups(), col_groups(), b, a);  // T[cg][k1]
        std::vector<Cxs> out;
        for (int cg = 0; cg < col_groups(); ++cg)
            out.push_back(transform(f_, *rule_.first, T[cg], dir_));
        return out;
    }

private:
    // The twiddle row of column col for the k1 of group kg (CT only).
    Cx twiddled(Cx v, int col, int kg) const
    {
        return ct ? twiddle_row(f_, v, n, col, 4 * kg, k1s_in(kg), dir_) : v;
    }

    // from[g][i] with lanes j (groups of four of `lanes_total`) becomes
    // to[h][j] with lanes i (groups of four of `count`), by four-by-four tiles.
    std::vector<Cxs> turn(const std::vector<Cxs>& from, int groups, int to_groups, int count, int lanes_total) const
    {
        Graph& g = f_.graph();
        std::vector<Cxs> to(static_cast<std::size_t>(to_groups), Cxs(static_cast<std::size_t>(lanes_total)));
        for (int gi = 0; gi < groups; ++gi)
            for (int h = 0; h < to_groups; ++h) {
                std::array<Id, 4> re, im;
                for (int l = 0; l < 4; ++l) {
                    const int i = std::min(4 * h + l, count - 1);  // idle lanes repeat a row
                    re[l] = f_.node(from[gi][i].re);
                    im[l] = f_.node(from[gi][i].im);
                }
                const auto tre = transpose(g, re), tim = transpose(g, im);
                for (int l = 0; l < 4 && 4 * gi + l < lanes_total; ++l)
                    to[h][4 * gi + l] = {{tre[l]}, {tim[l]}};
            }
        return to;
    }

    Arith& f_;
    const Rule& rule_;
    Direction dir_;
};

// Rows of the input side from the source: element `map(index)` for each
// position of the split's input.
template <class Map>
std::vector<Cxs> load_input_side(Graph& g, const LaneSplit& s, Map map)
{
    std::vector<Cxs> rows;
    for (int cg = 0; cg < s.col_groups(); ++cg) {
        Cxs r;
        for (int i = 0; i < s.a; ++i) {
            std::vector<int> elements;
            for (int l = 0; l < s.cols_in(cg); ++l)
                elements.push_back(map(s.input(i, 4 * cg + l)));
            r.push_back(load_lanes(g, elements));
        }
        rows.push_back(r);
    }
    return rows;
}

void vector_kernel(Graph& g, const Rule& rule, Direction dir)
{
    Arith f(g, kFourLaneFloat);
    const LaneSplit s(f, rule, dir);
    const auto spectrum = s.forward(load_input_side(g, s, [](int e) { return e; }));
    for (int kg = 0; kg < s.k1_groups(); ++kg)
        for (int k2 = 0; k2 < s.b; ++k2) {
            std::vector<int> elements;
            for (int l = 0; l < s.k1s_in(kg); ++l)
                elements.push_back(s.output(4 * kg + l, k2));
            store_lanes(f, spectrum[kg][k2], elements);
        }
}

// The same with the factors' exact values, rounded once to float.
Cx times_lanes(Arith& f, Cx v, const std::array<std::pair<exact::Quad, exact::Quad>, 4>& c, const std::string& what)
{
    std::array<double, 4> re{}, im{};
    for (int l = 0; l < 4; ++l) {
        re[l] = exact::to_float(c[l].first);
        im[l] = exact::to_float(c[l].second);
    }
    return times_lanes(f, v, re, im, what);
}

// The chirp rule for a prime P over a transform of length Q, the input in
// natural order four elements a vector (the last row's lone element is
// loaded as a half vector, its zero lanes meeting a zero chirp, so that no
// byte past the source is read): y = x c, T = DFT_Q(y, zero
// padded), B = H T, z = DFT_Q(B) in the opposite direction for k < P only,
// Y = c z.  c[j] = w(P)^((P+1)/2 j^2) forward, exp(i pi j^2 / P) inverse;
// H[f] = (1/Q) sum over |n| < P of conj(c[|n|]) exp(-2 pi i f n / Q).
void chirp_kernel(Graph& g, const Rule& rule, Direction dir)
{
    const int p = rule.size, q = rule.first->size;
    Arith f(g, kFourLaneFloat);
    auto chirp = [&](long j) -> std::pair<exact::Quad, exact::Quad> {
        if (j >= p)
            return {0, 0};
        if (dir == Direction::Forward) {
            const long e = (long(p + 1) / 2 * (j * j % p)) % p;
            return {exact::cos_2pi(e, p), -exact::sin_2pi(e, p)};
        }
        return {exact::cos_2pi(j * j % (2 * p), 2 * p), exact::sin_2pi(j * j % (2 * p), 2 * p)};
    };
    auto filter = [&](long fr) -> std::pair<exact::Quad, exact::Quad> {
        exact::Quad re = 0, im = 0;
        for (long n = -(p - 1); n <= p - 1; ++n) {
            const auto [cr, ci] = chirp(n < 0 ? -n : n);  // conj(c) times exp(-2 pi i f n / Q)
            const exact::Quad er = exact::cos_2pi(fr * n, q), ei = -exact::sin_2pi(fr * n, q);
            re += cr * er + ci * ei;
            im += cr * ei - ci * er;
        }
        return {re / q, im / q};
    };
    const LaneSplit first(f, *rule.first, Direction::Forward), second(f, *rule.first, Direction::Inverse);
    if (first.b != 4)
        unsupported("a chirp transform without four columns: " + rule.first->text());
    // Rows of four adjacent elements; rows past the source are known zeros.
    std::vector<Cxs> rows(1);
    for (int t = 0; t < first.a; ++t) {
        if (4 * t >= p) {
            rows[0].push_back({});
            continue;
        }
        if (4 * t + 2 >= p)
            unsupported("a chirp row with fewer than three elements");
        const Id v0 = g.load(Prec::F32, 4, Access::Full, 8 * t),
                 v1 = g.load(Prec::F32, 4, 4 * t + 3 < p ? Access::Full : Access::Low, 8 * t + 4);
        const Cx v{{g.shuffle(v0, v1, {0, 2, 4, 6})}, {g.shuffle(v0, v1, {1, 3, 5, 7})}};
        rows[0].push_back(times_lanes(f, v, {chirp(4 * t), chirp(4 * t + 1), chirp(4 * t + 2), chirp(4 * t + 3)},
                                      "chirp"));
    }
    auto spectrum = first.forward(rows);
    for (int kg = 0; kg < first.k1_groups(); ++kg)
        for (int k2 = 0; k2 < first.b; ++k2) {
            std::array<std::pair<exact::Quad, exact::Quad>, 4> h;
            for (int l = 0; l < 4; ++l)
                h[l] = filter(first.output(4 * kg + l, k2));
            spectrum[kg][k2] = times_lanes(f, spectrum[kg][k2], h, "H");
        }
    const auto z = second.mirrored(spectrum);
    for (int t = 0; 4 * t < p; ++t) {
        const Cx y = times_lanes(f, z[0][t], {chirp(4 * t), chirp(4 * t + 1), chirp(4 * t + 2), chirp(4 * t + 3)},
                                 "chirp");
        std::vector<int> elements;
        for (int j = 4 * t; j < std::min(p, 4 * t + 4); ++j)
            elements.push_back(j);
        store_lanes(f, y, elements);
    }
}

// PF(2,X) with X odd and split over lanes itself: the two-point blocks run on
// the halves x[e] and x[e+m] of the input, element e in lane order, so rows
// are runs of adjacent elements; the sums give the even outputs through X in
// natural order, y[2j] = U[j]; the differences, their lanes of odd e turned
// in sign, give the odd outputs, y[k] = V[k/2 mod m], by the same X.
void halves_kernel(Graph& g, const Rule& rule, Direction dir)
{
    Arith f(g, kFourLaneFloat);
    const Rule& inner = *rule.second;
    const int m = inner.size;
    const LaneSplit s(f, inner, dir);
    const auto first = load_input_side(g, s, [](int e) { return e; });
    const auto second = load_input_side(g, s, [m](int e) { return e + m; });
    std::vector<Cxs> sums(first.size()), differences(first.size());
    for (std::size_t cg = 0; cg < first.size(); ++cg)
        for (std::size_t i = 0; i < first[cg].size(); ++i) {
            sums[cg].push_back(f.add(first[cg][i], second[cg][i]));
            const Cx d = f.sub(first[cg][i], second[cg][i]);
            std::array<bool, 4> odd{};
            for (int l = 0; l < s.cols_in(static_cast<int>(cg)); ++l)
                odd[l] = s.input(static_cast<int>(i), 4 * static_cast<int>(cg) + l) % 2 == 1;
            differences[cg].push_back({{g.flip_sign(f.node(d.re), odd)}, {g.flip_sign(f.node(d.im), odd)}});
        }
    const auto even = s.forward(sums), odd = s.forward(differences);
    for (int kg = 0; kg < s.k1_groups(); ++kg)
        for (int k2 = 0; k2 < s.b; ++k2) {
            std::vector<int> to_even, to_odd;
            for (int l = 0; l < s.k1s_in(kg); ++l) {
                const int j = s.output(4 * kg + l, k2);
                to_even.push_back(2 * j);
                const int k = 2 * j % m;
                to_odd.push_back(k % 2 ? k : k + m);
            }
            store_lanes(f, even[kg][k2], to_even);
            store_lanes(f, odd[kg][k2], to_odd);
        }
}

// The complex Rader rule in four lanes, for a prime P with the inner rule of
// length L = P - 1: a[q] = x[g^q] enters the input side, the inner spectrum
// is multiplied lane by lane by the factors M[k] (1/L folded in), x[0] joins
// lane 0 of the row that holds k = 0 through a lane mask, the mirrored
// transform of the same root returns out[q] = Y[g^q] to the input side.
// Y[0] = x[0] + A[0], through the same mask.
void complex_rader_kernel(Graph& g, const Rule& rule, Direction dir)
{
    const int p = rule.size;
    Arith f(g, kFourLaneFloat);
    const LaneSplit s(f, *rule.first, Direction::Forward);
    const std::vector<int> power = rader_powers(p);
    auto spectrum = s.forward(load_input_side(g, s, [&](int q) { return power[q]; }));
    const Id x0 = g.load(Prec::F32, 4, Access::Low, 0);
    const Cx dc{{g.shuffle(x0, x0, {0, 0, 4, 4})}, {g.shuffle(x0, x0, {1, 1, 5, 5})}};
    const std::array<bool, 4> lane0{true, false, false, false};
    const auto factors = rader_factors(p, dir);
    Cx y0;
    for (int kg = 0; kg < s.k1_groups(); ++kg)
        for (int k2 = 0; k2 < s.b; ++k2) {
            std::array<double, 4> re{}, im{};
            for (int l = 0; l < s.k1s_in(kg); ++l) {
                const int k = s.output(4 * kg + l, k2);
                re[l] = exact::to_float(factors[k].first);
                im[l] = exact::to_float(factors[k].second);
            }
            Cx& v = spectrum[kg][k2];
            Cx prod = times_lanes(f, v, re, im, "M[k]");
            if (kg == 0 && k2 == 0) {  // k = 0 sits in lane 0 here
                y0 = {{g.add(dc.re.id, g.mask(f.node(v.re), lane0))}, {g.add(dc.im.id, g.mask(f.node(v.im), lane0))}};
                prod = {{g.add(prod.re.id, g.mask(dc.re.id, lane0))}, {g.add(prod.im.id, g.mask(dc.im.id, lane0))}};
            }
            v = prod;
        }
    const auto rows = s.mirrored(spectrum);
    store_lanes(f, y0, {0});
    for (int cg = 0; cg < s.col_groups(); ++cg)
        for (int i = 0; i < s.a; ++i) {
            std::vector<int> elements;
            for (int l = 0; l < s.cols_in(cg); ++l)
                elements.push_back(power[s.input(i, 4 * cg + l)]);
            store_lanes(f, rows[cg][i], elements);
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
    Arith f(g, kTwoLaneDouble);
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
    Graph g(prec);
    if (prec == Prec::F64)
        two_lane_kernel(g, rule, direction);
    else if (size <= 5)
        scalar_kernel(g, rule, direction);
    else if (rule.kind == Rule::Kind::Rader)
        complex_rader_kernel(g, rule, direction);
    else if (rule.kind == Rule::Kind::Chirp)
        chirp_kernel(g, rule, direction);
    else if (rule.kind == Rule::Kind::PF && rule.first->size == 2 &&
             (rule.second->kind == Rule::Kind::CT || rule.second->kind == Rule::Kind::PF))
        halves_kernel(g, rule, direction);
    else
        vector_kernel(g, rule, direction);
    return g;
}

KernelText ComplexKernel::text() const
{
    return {name(),
            twin_name(),
            prec == Prec::F32 ? "vtx32fc" : "vtx64fc",
            direction == Direction::Forward ? "Forward" : "Inverse",
            "rule " + rule.text(),
            prec,
            size,
            frame(),
            build()};
}

std::vector<ComplexKernel> complex_kernels()
{
    std::vector<ComplexKernel> out;
    for (Direction d : {Direction::Forward, Direction::Inverse})
        for (Prec p : {Prec::F32, Prec::F64})
            for (const ComplexRow& row : complex_rows())
                if (const char* rule = p == Prec::F32 ? row.f32 : row.f64)
                    out.push_back({d, p, row.size, Rule::parse(rule)});
    return out;
}

}  // namespace vtxgen
