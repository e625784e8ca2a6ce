#include "blocks.hpp"

#include "mirror.hpp"

#include <memory>
#include <numeric>
#include <stdexcept>
#include <string>

namespace vtxgen {

namespace {

Cxs rader(Arith& f, const Rule& rule, const Cxs& x, Direction dir, int r);

[[noreturn]] void unsupported(const std::string& what)
{
    throw std::invalid_argument("no block for " + what);
}

bool all_real(const Cxs& x)
{
    for (const Cx& v : x)
        if (!v.real())
            return false;
    return true;
}

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

Cxs two_point(Arith& f, const Cxs& x)
{
    return {f.add(x[0], x[1]), f.sub(x[0], x[1])};
}

// Multiplication by -i folds into the last additions: no product, no mask.
Cxs four_point(Arith& f, const Cxs& x, Direction dir)
{
    const Cx a = f.add(x[0], x[2]), b = f.sub(x[0], x[2]);
    const Cx c = f.add(x[1], x[3]), d = f.sub(x[1], x[3]);
    const Cx y1{f.add(b.re, d.im), f.sub(b.im, d.re)};  // b - i d
    const Cx y3{f.sub(b.re, d.im), f.add(b.im, d.re)};  // b + i d
    return dir == Direction::Forward ? Cxs{f.add(a, c), y1, f.sub(a, c), y3} : Cxs{f.add(a, c), y3, f.sub(a, c), y1};
}

// Radix 2 on the input: sums to a four-point block for the even outputs,
// differences turned by w(8)^j (two products for each odd power) to a
// four-point block for the odd outputs.
Cxs eight_point(Arith& f, const Cxs& x, Direction dir)
{
    Cxs s, d;
    for (int j = 0; j < 4; ++j) {
        s.push_back(f.add(x[j], x[j + 4]));
        d.push_back(f.rotate(f.sub(x[j], x[j + 4]), j, 8, dir));
    }
    const Cxs even = four_point(f, s, dir), odd = four_point(f, d, dir);
    Cxs y(8);
    for (int k = 0; k < 4; ++k) {
        y[2 * k] = even[k];
        y[2 * k + 1] = odd[k];
    }
    return y;
}

// Direct block of an odd prime: cosine sums C[m] over the pair sums, sine
// sums S[m] over the pair differences, x[0] joining where the policy says.
// y[0] folds from x[0] or adds the pair sums first, as the policy says.  On
// real data the real form sums each imaginary output directly with its own
// signs.
Cxs direct(Arith& f, const Cxs& x, Direction dir, int r)
{
    const int p = static_cast<int>(x.size());
    const auto given = f.policy().pairs.find(p);
    const std::vector<int> u = given != f.policy().pairs.end() ? given->second : pair_order(p);
    Cxs a, b;
    for (int j : u) {
        a.push_back(f.add(x[j], x[p - j]));
        b.push_back(f.sub(x[j], x[p - j]));
    }
    Cxs y(p);
    auto dc = [&] {
        if (f.policy().dc == Policy::Dc::StartFirst) {
            y[0] = x[0];
            for (const Cx& aj : a)
                y[0] = f.add(y[0], aj);
        } else {
            Cx sum = a[0];
            for (std::size_t j = 1; j < a.size(); ++j)
                sum = f.add(sum, a[j]);
            y[0] = f.add(x[0], sum);
        }
    };
    if (!f.policy().dc_formed_last)
        dc();
    // The products on the first pair's sum and difference, for the outputs
    // in the order the policy gives: the order in which a transposed block
    // adds them up.
    if (const auto first = f.policy().first_pair_uses.find(p); first != f.policy().first_pair_uses.end())
        for (int m : first->second) {
            const long e = long(u[0]) * m * r % p;
            f.times(exact::cos_2pi(e, p), a[0].re, angle_note("cos", e, p));
            f.times(exact::sin_2pi(e, p), b[0].re, angle_note("sin", e, p));
        }
    const bool signed_im = f.policy().signed_imaginary_sums && all_real(x);
    for (int m = 1; m <= (p - 1) / 2; ++m) {
        std::vector<Term> cre, cim, sre, sim;
        for (std::size_t j = 0; j < u.size(); ++j) {
            const long e = long(u[j]) * m * r % p;
            const exact::Quad c = exact::cos_2pi(e, p), s = exact::sin_2pi(e, p);
            cre.push_back({c, a[j].re, angle_note("cos", e, p)});
            cim.push_back({c, a[j].im, angle_note("cos", e, p)});
            sre.push_back({signed_im && dir == Direction::Forward ? -s : s, b[j].re, angle_note("sin", e, p)});
            sim.push_back({s, b[j].im, angle_note("sin", e, p)});
        }
        if (signed_im) {
            const Cx v{f.combine(x[0].re, cre), f.combine({}, sre)};
            y[m] = v;
            y[p - m] = v.conj();
            continue;
        }
        const Cx C{f.combine(x[0].re, cre), f.combine(x[0].im, cim)};
        const Cx S{f.combine({}, sre), f.combine({}, sim)};
        const Cx minus{f.add(C.re, S.im), f.sub(C.im, S.re)};  // C - iS
        const Cx plus{f.sub(C.re, S.im), f.add(C.im, S.re)};   // C + iS
        y[m] = dir == Direction::Forward ? minus : plus;
        y[p - m] = dir == Direction::Forward ? plus : minus;
    }
    if (f.policy().dc_formed_last)
        dc();
    return y;
}

// The reduced five-point block: twelve products where the direct block has sixteen.
Cxs reduced_five(Arith& f, const Cxs& x, Direction dir)
{
    const Cx a1 = f.add(x[1], x[4]), b1 = f.sub(x[1], x[4]);
    const Cx a2 = f.add(x[2], x[3]), b2 = f.sub(x[2], x[3]);
    const Cx S = f.add(a1, a2);
    const Cx M = f.sub(x[0], f.times(exact::Quad(0.25), S, "1/4"));
    const exact::Quad r5 = exact::sqrt(5) / 4;
    const Cx T = f.times(r5, f.sub(a1, a2), "sqrt(5)/4");
    const Cx U = f.add(M, T), V = f.sub(M, T);
    const exact::Quad s1 = exact::sin_2pi(1, 5), s2 = exact::sin_2pi(2, 5);
    // Each product in a statement of its own, the second first (graph.hpp).
    const Cx e2 = f.times(s2, b2, angle_note("sin", 2, 5));
    const Cx E = f.add(f.times(s1, b1, angle_note("sin", 1, 5)), e2);
    const Cx f2 = f.times(s2, b1, angle_note("sin", 2, 5));
    const Cx F = f.sub(f.times(s1, b2, angle_note("sin", 1, 5)), f2);
    const Cx iE = Arith::times_i(E), iF = Arith::times_i(F);
    Cxs y{f.add(x[0], S), f.sub(U, iE), f.add(V, iF), f.sub(V, iF), f.add(U, iE)};
    if (dir == Direction::Inverse) {
        std::swap(y[1], y[4]);
        std::swap(y[2], y[3]);
    }
    return y;
}


// The size of the blocks of a rule's first stage.
int first_block(const Rule& rule)
{
    switch (rule.kind) {
    case Rule::Kind::CT:
    case Rule::Kind::PF: return first_block(*rule.first);
    case Rule::Kind::R: return 2;
    default: return rule.size;
    }
}

// The stages of a step after its first stage's blocks, in their order,
// joined as the step joins them; null for a single block.
std::shared_ptr<const Rule> after_first_stage(const Rule& rule)
{
    if (rule.kind != Rule::Kind::CT && rule.kind != Rule::Kind::PF)
        return nullptr;
    const auto inner = after_first_stage(*rule.first);
    if (!inner)
        return rule.second;
    Rule r = rule;
    r.first = inner;
    r.size = inner->size * rule.second->size;
    return std::make_shared<const Rule>(r);
}

// The same stages with the first stage's blocks apart: CT(a, rest), the
// twiddles of the whole length between them.
Rule first_stage_twiddled(const Rule& rule)
{
    const auto rest = after_first_stage(rule);
    if (!rest)
        return rule;
    const Rule* leaf = &rule;
    while (leaf->kind == Rule::Kind::CT || leaf->kind == Rule::Kind::PF)
        leaf = leaf->first.get();
    Rule r;
    r.kind = Rule::Kind::CT;
    r.size = rule.size;
    r.first = std::make_shared<const Rule>(*leaf);
    r.second = rest;
    return r;
}

// The rule with its 11-point blocks by Rader's rule, as inverse transforms
// hold them.
Rule elevens_by_rader(const Rule& rule)
{
    if (rule.kind == Rule::Kind::Block && rule.size == 11 && rule.variant.empty())
        return Rule::parse("Rader(PF(5,2))");
    Rule r = rule;
    if (r.kind == Rule::Kind::Rader)
        return r;  // a Rader block inside is an inverse transform's own
    if (r.first)
        r.first = std::make_shared<const Rule>(elevens_by_rader(*r.first));
    if (r.second)
        r.second = std::make_shared<const Rule>(elevens_by_rader(*r.second));
    return r;
}

// A forward transform of a rule on stand-in points of a graph of its own:
// what a mirror runs backwards where the transform wanted is not the
// transpose of one already in the kernel.
struct StandIn {
    Graph g;
    Arith f;
    std::vector<Val> points;
    Cxs bins;
    StandIn(Prec p, const Policy& policy, const Rule& rule) : g(p), f(g, policy)
    {
        Cxs x;
        for (int q = 0; q < rule.size; ++q) {
            points.push_back({g.load(p, 1, Access::Scalar, q)});
            x.push_back({points.back(), {}});
        }
        bins = transform(f, rule, x, Direction::Forward);
    }
};

// The split Rader rule on real input: every constant real.  With the inner
// spectrum A[k] = U[k] + i'V[k] (k <= L/2) and the doubled factors
// 2M[k] = alpha + i'beta, P = alpha U - beta V and Q = alpha V + beta U; the
// even k give the cyclic part E[q] = E0 + sum (P cos + Q sin), the odd k the
// negacyclic part O[q] = sum (Q cos - P sin), both for q < L/2, by the
// second transform; y[g^q] = E + i'O and y[g^(q+L/2)] = y[p - g^q] = E - i'O.
// E0 = x[0] - U[0]/L takes the DC term; M[L/2] is real for p = 1 mod 4 (even
// part) and imaginary otherwise.  The inverse turns the sign of the odd part.
//
// The second transform is one mirrored run of the first one (both parts at
// once), or, where the policy says, an inverse transform of its own for
// each part (Policy::rader_second_own).
Cxs split_rader(Arith& f, const Rule& rule, const Cxs& x, Direction dir, int r)
{
    const int p = rule.size, L = p - 1, h = L / 2;
    const std::vector<int> power = rader_powers(p);
    std::vector<Val> in;
    Cxs a;
    for (int q = 0; q < L; ++q) {
        a.push_back(x[static_cast<std::size_t>(power[q])]);
        in.push_back(a.back().re);
    }
    const Id start = static_cast<Id>(f.graph().nodes().size());
    const Cxs A = transform(f, *rule.first, a, Direction::Forward);
    const auto M = rader_factors(p, Direction::Forward, r);
    const std::string of = " of " + std::to_string(p);

    // The graphs run backwards, and the bins of each that the parts weigh.
    const bool own = f.policy().rader_second_own && all_real(x);
    std::unique_ptr<StandIn> cyclic, negacyclic;
    std::unique_ptr<Mirror> even_run, odd_run;
    // Where the first stage's blocks are of odd length a (and L/a even), a
    // point q and its mirror q + L/2 lie in different blocks: the
    // negacyclic part takes the stages with the first stage's blocks apart
    // and twiddled (and the cyclic part too, variant "t"; neither, "p"), and
    // only the blocks of the first half of the stride run.
    const bool elevens = f.policy().rader_second_elevens_by_rader && rule.variant.find('d') == std::string::npos;
    const Rule second = elevens ? elevens_by_rader(*rule.first) : *rule.first;
    const int stride = L / first_block(second);
    const bool twisted = own && first_block(second) % 2 == 1 && stride % 2 == 0;
    if (own) {
        Policy standin = f.policy();
        standin.merged_constants = true;
        standin.eighth_turn_sums_first = true;
        standin.dc_formed_last = true;
        standin.odd_part_turns_sums_first = f.policy().rader_second_turns_sums_first;
        // A Rader block inside keeps its 11-point blocks as they stand.
        standin.rader_second_elevens_by_rader = false;
        const bool odd_twisted = twisted && rule.variant.find('p') == std::string::npos;
        const bool even_twisted = twisted && rule.variant.find('t') != std::string::npos;
        cyclic = std::make_unique<StandIn>(f.graph().element(), standin,
                                           even_twisted ? first_stage_twiddled(second) : second);
        negacyclic = std::make_unique<StandIn>(f.graph().element(), standin,
                                               odd_twisted ? first_stage_twiddled(second) : second);
        even_run = std::make_unique<Mirror>(f, cyclic->g, 0, cyclic->points, Mirror::Rounding::Transform);
        odd_run = std::make_unique<Mirror>(f, negacyclic->g, 0, negacyclic->points, Mirror::Rounding::Transform);
    } else {
        even_run = std::make_unique<Mirror>(f, start, in);
    }
    // Weight w for bin k's real or imaginary part, in the even or odd part.
    auto seed = [&](int k, bool im, bool odd, Val w) {
        const Parts parts = odd ? Parts{{}, w} : Parts{w, {}};
        if (!own)
            return even_run->seed(im ? A[k].im : A[k].re, parts);
        const Cx& bin = (odd ? negacyclic : cyclic)->bins[static_cast<std::size_t>(k)];
        (odd ? odd_run : even_run)->seed(im ? bin.im : bin.re, parts);
    };
    const Val u0 = A[0].re;
    seed(0, false, false, f.combine(x[0].re, {{-exact::Quad(1) / L, u0, "1/" + std::to_string(L)}}));
    for (int k = 1; k < h; ++k) {
        const exact::Quad alpha = 2 * M[k].first, beta = 2 * M[k].second;
        const std::string note = "2M[" + std::to_string(k) + "]" + of;
        const Val U = A[k].re, V = A[k].im;
        // A part of the bin that is a lone product c u (the sqrt(3)/2 of a
        // three-point block) meets the factor as c alpha u, c beta u.
        const Val P = f.combine({}, {{alpha, U, note, own}, {-beta, V, note, own}});
        const Val Q = f.combine({}, {{alpha, V, note, own}, {beta, U, note, own}});
        if (k % 2 == 0) {
            seed(k, false, false, P);
            seed(k, true, false, -Q);
        } else {
            seed(k, false, true, Q);
            seed(k, true, true, P);
        }
    }
    const std::string note = "M[" + std::to_string(h) + "]" + of;
    if (h % 2 == 0)
        seed(h, false, false, f.times(M[h].first, A[h].re, note));
    else
        seed(h, false, true, f.times(M[h].second, A[h].re, note));
    const std::vector<Parts> even = even_run->run();
    const std::vector<Parts> odd = odd_run ? odd_run->run() : even;
    Cxs y(static_cast<std::size_t>(p));
    y[0] = {f.add(x[0].re, u0), {}};
    // Points q and q + L/2 carry E and -O alike: each pair is read where the
    // blocks of the first half of the stride put it.
    for (int q = 0; q < h; ++q) {
        const int at = own && h % stride != 0 && q % stride >= stride / 2 ? q + h : q;
        Val o = at == q ? odd[static_cast<std::size_t>(at)].odd : -odd[static_cast<std::size_t>(at)].odd;
        if (dir == Direction::Inverse)
            o = -o;
        y[static_cast<std::size_t>(power[q])] = {even[static_cast<std::size_t>(at)].even, o};
        y[static_cast<std::size_t>(power[q + h])] = {even[static_cast<std::size_t>(at)].even, -o};
    }
    return y;
}

// The complex Rader rule across positions, for a prime p with the inner
// rule of length L = p - 1: a[q] = x[g^q]; the inner spectrum A; B[k] =
// M[k] A[k] with x[0] joining B[0]; the transform of the same root (no
// conjugate) of B gives y[g^q]; y[0] = x[0] + A[0].
Cxs complex_rader(Arith& f, const Rule& rule, const Cxs& x, Direction dir, int r)
{
    const int p = rule.size, L = p - 1;
    const std::vector<int> power = rader_powers(p);
    Cxs a;
    for (int q = 0; q < L; ++q)
        a.push_back(x[static_cast<std::size_t>(power[q])]);
    const Cxs A = transform(f, *rule.first, a, Direction::Forward);
    const auto M = rader_factors(p, dir, r);
    Cxs B;
    for (int k = 0; k < L; ++k) {
        const auto [mr, mi] = M[static_cast<std::size_t>(k)];
        const std::string note = "M[" + std::to_string(k) + "] of " + std::to_string(p);
        const Cx& v = A[static_cast<std::size_t>(k)];
        // Each product in a statement of its own, the second first (graph.hpp).
        const Val ii = f.times(mi, v.im, note);
        const Val re = f.sub(f.times(mr, v.re, note), ii);
        const Val ir = f.times(mi, v.re, note);
        B.push_back({re, f.add(f.times(mr, v.im, note), ir)});
    }
    B[0] = f.add(x[0], B[0]);
    const Cxs out = transform(f, *rule.first, B, Direction::Forward);
    Cxs y(static_cast<std::size_t>(p));
    y[0] = f.add(x[0], A[0]);
    for (int q = 0; q < L; ++q)
        y[static_cast<std::size_t>(power[q])] = out[static_cast<std::size_t>(q)];
    return y;
}

// Rader blocks on real data run split.  On complex data, float blocks (across
// vectors, real and imaginary parts apart) run split on each part, y = r + i s
// with r, s the transforms of the real and imaginary parts; the double form's
// blocks that meet complex bins (the seven of 35) take the complex rule.
Cxs rader(Arith& f, const Rule& rule, const Cxs& x, Direction dir, int r)
{
    if (all_real(x))
        return split_rader(f, rule, x, dir, r);
    if (f.policy().rader_parts_apart) {
        Cxs re, im;
        for (const Cx& v : x) {
            re.push_back({v.re, {}});
            im.push_back({v.im, {}});
        }
        const Cxs yr = split_rader(f, rule, re, dir, r), yi = split_rader(f, rule, im, dir, r);
        Cxs y;
        for (std::size_t k = 0; k < x.size(); ++k)
            y.push_back({f.sub(yr[k].re, yi[k].im), f.add(yr[k].im, yi[k].re)});
        return y;
    }
    return complex_rader(f, rule, x, dir, r);
}

// Conjugate-symmetric completion of a real input's spectrum.
void complete_from_conjugates(Cxs& y, const std::vector<bool>& have)
{
    const std::size_t n = y.size();
    for (std::size_t k = 0; k < n; ++k)
        if (!have[k]) {
            if (!have[(n - k) % n])
                throw std::logic_error("a bin and its conjugate both missing");
            y[k] = y[(n - k) % n].conj();
        }
}

// CT(a,b): a-point blocks down the columns r of n = r + b t, twiddles
// w(N)^(r k1), b-point blocks across; output k = k1 + a k2.
// PF(a,b): n = (b n1 + a n2) mod N, no twiddles; output k with k mod a = k1
// and k mod b = k2, or, in forms with rotated Good-Thomas blocks, output
// k = (b k1 + a k2) mod N with the a-point blocks rotated by b and the
// b-point blocks by a.  On real input only the blocks k1 <= a/2 of the second
// stage run.  The whole step rotated by r (its root w(N)^r) rotates every
// block and twiddle by r as well.
Cxs compose(Arith& f, const Rule& rule, const Cxs& x, Direction dir, int r)
{
    const int a = rule.first->size, b = rule.second->size, n = a * b;
    const bool ct = rule.kind == Rule::Kind::CT;
    const bool rotated = !ct && f.policy().rotated_good_thomas;
    const int r1 = rotated ? b * r % a : r % a, r2 = rotated ? a * r % b : r % b;
    const bool real = all_real(x);
    std::vector<Cxs> A(static_cast<std::size_t>(b));  // A[col][k1]
    for (int col = 0; col < b; ++col) {
        Cxs in;
        for (int i = 0; i < a; ++i)
            in.push_back(x[static_cast<std::size_t>(ct ? col + b * i : (b * i + a * col) % n)]);
        A[col] = transform(f, *rule.first, in, dir, r1);
    }
    Cxs y(static_cast<std::size_t>(n));
    std::vector<bool> have(static_cast<std::size_t>(n), false);
    for (int k1 = 0; k1 < a; ++k1) {
        if (real && 2 * k1 > a)
            continue;
        Cxs in;
        for (int col = 0; col < b; ++col)
            in.push_back(ct ? f.rotate(A[col][k1], long(col) * k1 * r, n, dir) : A[col][k1]);
        const Cxs out = transform(f, *rule.second, in, dir, r2);
        for (int k2 = 0; k2 < b; ++k2) {
            int k = ct ? k1 + a * k2 : (b * k1 + a * k2) % n;
            if (!ct && !rotated)
                for (k = 0; k % a != k1 || k % b != k2; ++k) {
                }
            y[k] = out[k2];
            have[k] = true;
        }
    }
    if (real)
        complete_from_conjugates(y, have);
    return y;
}

// R(N) on real input: sums and differences of the halves; the even bins are
// R(N/2) of the sums, the odd bins come from the differences.
Cxs odd_part(Arith& f, const std::vector<Val>& d, Direction dir);

Cxs recursion(Arith& f, const Cxs& x, Direction dir)
{
    const std::size_t n = x.size(), h = n / 2;
    if (n == 1)
        return x;
    Cxs s;
    std::vector<Val> d;
    for (std::size_t j = 0; j < h; ++j) {
        s.push_back(f.add(x[j], x[j + h]));
        d.push_back(f.sub(x[j].re, x[j + h].re));
    }
    const Cxs even = recursion(f, s, dir);
    const Cxs odd = odd_part(f, d, dir);
    Cxs y(n);
    std::vector<bool> have(n, false);
    for (std::size_t k = 0; k < h; ++k) {
        y[2 * k] = even[k];
        have[2 * k] = true;
    }
    for (std::size_t m = 0; m < odd.size(); ++m) {
        y[2 * m + 1] = odd[m];
        have[2 * m + 1] = true;
    }
    complete_from_conjugates(y, have);
    return y;
}

// Odd bins Y[m] = X[2m+1] = sum_j d[j] w(N)^(j (2m+1)), d real, for
// m = 0 .. N/4 - 1 (the others are conjugates).  From N = 16 on, radix 4
// on the index: j = 4i + r, four odd parts of N/4 points on the d[4i + r],
// their bins turned by w(N)^(r (2m+1)) for the first N/16 values of m only
// (the rest are the same products up to conjugation and quarter turns), and
// four-point blocks across r.
Cxs odd_part(Arith& f, const std::vector<Val>& d, Direction dir)
{
    const int h = static_cast<int>(d.size());  // N/2
    const int n = 2 * h;
    Cxs y;
    switch (h) {
    case 1: y = {{d[0], {}}}; break;
    case 2: y = {{d[0], -d[1]}}; break;  // d0 - i d1
    case 4: {
        // h d1 and h d3, their sum and difference, then the two bins.
        const exact::Quad r = exact::cos_2pi(1, 8);
        Val t27, t29;
        if (f.policy().eighth_turn_sums_first) {
            t27 = f.times(r, f.sub(d[1], d[3]), "sqrt(1/2)");
            t29 = f.times(r, f.add(d[1], d[3]), "sqrt(1/2)");
        } else {
            const Val t25 = f.times(r, d[1], "sqrt(1/2)"), t13 = f.times(r, d[3], "sqrt(1/2)");
            t27 = f.sub(t25, t13);
            t29 = f.add(t25, t13);
        }
        y = {{f.add(d[0], t27), -f.add(d[2], t29)}, {f.sub(d[0], t27), -f.sub(t29, d[2])}};
        break;
    }
    default: {
        // Radix R on the index (4 unless the policy says otherwise for n).
        const auto given = f.policy().odd_part_radix.find(n);
        const int R = given != f.policy().odd_part_radix.end() ? given->second : 4;
        if (h % (2 * R) != 0)
            unsupported("the odd part of R(" + std::to_string(n) + ") by radix " + std::to_string(R));
        std::vector<Cxs> G(static_cast<std::size_t>(R));
        for (int r = 0; r < R; ++r) {
            std::vector<Val> sub;
            for (int i = 0; R * i + r < h; ++i)
                sub.push_back(d[static_cast<std::size_t>(R * i + r)]);
            G[static_cast<std::size_t>(r)] = odd_part(f, sub, Direction::Forward);
        }
        const int q = n / R;  // length of the inner odd parts' spectra
        auto inner = [&](int r, int bin) {  // bin odd, 0 < bin < q
            const Cxs& g = G[static_cast<std::size_t>(r)];
            return bin < q / 2 ? g[static_cast<std::size_t>((bin - 1) / 2)]
                               : g[static_cast<std::size_t>((q - bin - 1) / 2)].conj();
        };
        // Y[m + j q/2] for j < R is the R-point transform over r of the
        // turned inner bins of m; the outputs past N/4 give the bins of the
        // second half of each run of q/2 as their conjugates.
        y.resize(static_cast<std::size_t>(n / 4));
        for (int m = 0; m < q / 4; ++m) {
            Cxs rho;
            for (int r = 0; r < R; ++r)
                rho.push_back(f.rotate(inner(r, (2 * m + 1) % q), long(r) * (2 * m + 1), n, Direction::Forward,
                                       !f.policy().odd_part_turns_sums_first));
            const Cxs z = transform(f, Rule::parse(std::to_string(R)), rho, Direction::Forward);
            for (int j = 0; j < R; ++j) {
                const int at = m + j * q / 2;
                if (at < n / 4)
                    y[static_cast<std::size_t>(at)] = z[static_cast<std::size_t>(j)];
                else
                    y[static_cast<std::size_t>(n / 2 - 1 - at)] = z[static_cast<std::size_t>(j)].conj();
            }
        }
    }
    }
    if (dir == Direction::Inverse)
        for (Cx& v : y)
            v = v.conj();
    return y;
}

}  // namespace

int primitive_root(int p)
{
    for (int g = 2; g < p; ++g) {
        int order = 1;
        for (long v = g; v != 1; v = v * g % p)
            ++order;
        if (order == p - 1)
            return g;
    }
    return 1;  // p = 2
}

std::vector<int> rader_powers(int p)
{
    std::vector<int> power;
    for (int q = 0, v = 1, root = primitive_root(p); q < p - 1; ++q, v = v * root % p)
        power.push_back(v);
    return power;
}

std::vector<std::pair<exact::Quad, exact::Quad>> rader_factors(int p, Direction dir, int r)
{
    const int L = p - 1, g = primitive_root(p);
    std::vector<std::pair<exact::Quad, exact::Quad>> m(static_cast<std::size_t>(L));
    for (int k = 0; k < L; ++k) {
        exact::Quad re = 0, im = 0;
        long power = 1;  // g^n mod p
        for (int n = 0; n < L; ++n, power = power * g % p) {
            // angle / 2 pi = -r g^n / p + n k / L
            const long num = -long(r) * power % p * L + long(n) * k % L * p, den = long(p) * L;
            re += exact::cos_2pi(num, den);
            im += exact::sin_2pi(num, den);
        }
        // Parts that vanish exactly (Im M[0], one part of M[L/2]) come out of
        // the sums as residues near 1e-34: they are zero.
        auto exact_zero = [](exact::Quad v) { return v < 1e-25 && v > -1e-25 ? exact::Quad(0) : v; };
        const exact::Quad sign = dir == Direction::Inverse && k % 2 ? -1 : 1;
        m[static_cast<std::size_t>(k)] = {exact_zero(sign * re / L), exact_zero(sign * im / L)};
    }
    return m;
}

std::vector<int> pair_order(int p)
{
    std::vector<int> u;
    for (int j = 0, v = 1; j < (p - 1) / 2; ++j, v = v * pair_root(p) % p)
        u.push_back(v);
    return u;
}

Cxs transform(Arith& f, const Rule& rule, const Cxs& x, Direction dir, int r)
{
    const int n = rule.size;
    if (static_cast<int>(x.size()) != n)
        throw std::logic_error("rule " + rule.text() + " given " + std::to_string(x.size()) + " points");
    r = (r % n + n) % n;
    if (n > 1 && std::gcd(r, n) != 1)
        throw std::logic_error("rotation " + std::to_string(r) + " of a " + std::to_string(n) + "-point transform");
    // A rotated block without a rotated form of its own: the bins of the
    // plain one, y_r[k] = y[r k mod n].
    auto permuted = [&] {
        const Cxs y = transform(f, rule, x, dir);
        Cxs out(y.size());
        for (int k = 0; k < n; ++k)
            out[static_cast<std::size_t>(k)] = y[static_cast<std::size_t>(long(r) * k % n)];
        return out;
    };
    switch (rule.kind) {
    case Rule::Kind::CT:
    case Rule::Kind::PF: return compose(f, rule, x, dir, r);
    case Rule::Kind::Rader: return rader(f, rule, x, dir, r);
    case Rule::Kind::R:
        if (!all_real(x))
            unsupported("R(n) on complex input");
        return r > 1 ? permuted() : recursion(f, x, dir);
    case Rule::Kind::Chirp: unsupported("the chirp rule inside another rule");
    case Rule::Kind::Block: break;
    }
    const bool pow2 = (n & (n - 1)) == 0;
    const Direction opposite = dir == Direction::Forward ? Direction::Inverse : Direction::Forward;
    if (rule.variant == "w" && n == 5)
        return r > 1 ? permuted() : reduced_five(f, x, dir);
    if (!rule.variant.empty())
        unsupported("the block " + rule.text());
    if (pow2 && n >= 4 && all_real(x) && f.policy().real_powers_of_two_recursive)
        return r > 1 ? permuted() : recursion(f, x, dir);
    switch (n) {
    case 1: return x;
    case 2: return two_point(f, x);
    case 4: return four_point(f, x, r == 3 ? opposite : dir);
    case 8: return r == 7 ? eight_point(f, x, opposite) : r > 1 ? permuted() : eight_point(f, x, dir);
    default: return direct(f, x, dir, r);
    }
}

}  // namespace vtxgen
