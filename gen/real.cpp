// Kernel assembly for the real Fourier kernels.
//
// One scalar graph per size, precision and direction.  Forward: the rule runs
// on real loads (every imaginary part a known zero, so only the bins up to
// n/2 are formed), each bin leaves through one output step, and the layout is
// no more than where the stores go.  Inverse: the transpose of the forward
// transform of the inverse rule, run on the loaded bins, the bins 0 < k < n/2
// doubled first; the layout is no more than where the loads come from.  The
// three layouts of a size so compute the same values bit for bit, but for the
// inverses of 7 (an order of terms) and the float inverses of 22 and 46 (one
// sum in double) (RealKernel::transposed).
#include "real.hpp"

#include "blocks.hpp"
#include "mirror.hpp"

#include <algorithm>
#include <stdexcept>

namespace vtxgen {

const char* layout_name(Layout l)
{
    switch (l) {
    case Layout::CCS: return "CCS";
    case Layout::Pack: return "Pack";
    case Layout::Perm: return "Perm";
    }
    return "";
}

int layout_length(Layout l, int n)
{
    return l == Layout::CCS ? 2 * (n / 2) + 2 : n;
}

int position(Layout l, int n, int k, bool imaginary)
{
    const bool nyquist = n % 2 == 0 && 2 * k == n;
    if (imaginary && (k == 0 || nyquist))
        return -1;
    if (k == 0)
        return 0;
    switch (l) {
    case Layout::CCS: return 2 * k + imaginary;
    case Layout::Pack: return nyquist ? n - 1 : 2 * k - 1 + imaginary;
    case Layout::Perm:
        if (nyquist)
            return 1;
        return n % 2 == 0 ? 2 * k + imaginary : 2 * k - 1 + imaginary;
    }
    return -1;
}

std::vector<int> zero_slots(Layout l, int n)
{
    if (l != Layout::CCS)
        return {};
    if (n % 2 == 0)
        return {1, n + 1};
    return {1};
}

Policy real_policy(Prec p)
{
    return {.element = p,
            .width = 1,
            .wide = p == Prec::F32,
            .start = Policy::Start::AfterFirstSubtracted,
            .dc = Policy::Dc::PairsFirst,
            .pairs = {{11, {1, 2, 3, 4, 5}}},  // the other blocks pair by powers of their root
            .signed_imaginary_sums = true,
            .rotated_good_thomas = true,
            .rader_parts_apart = true,
            .rader_second_own = true,
            .rader_second_elevens_by_rader = true,
            .rader_second_turns_sums_first = true,
            .sign = Policy::Sign::AfterScale};
}

namespace {

// The product of a Rader block of p points by M[h], h = (p - 1) / 2, the
// factor its first transform's bin h meets alone, in the block whose outputs
// are the odd bins of y; then its rounding and the widening of that.
std::vector<Id> odd_bins_middle_factor(const Graph& t, const Cxs& y, int p)
{
    const std::string note = "M[" + std::to_string((p - 1) / 2) + "] of " + std::to_string(p);
    std::vector<std::vector<Id>> users(t.nodes().size());
    for (Id id = 0; id < static_cast<Id>(t.nodes().size()); ++id)
        for (Id from : {t[id].a, t[id].b})
            if (from != kNone)
                users[static_cast<std::size_t>(from)].push_back(id);
    for (Id id = 0; id < static_cast<Id>(t.nodes().size()); ++id) {
        if (t[id].op != Op::Mul || t[t[id].a].note != note)
            continue;
        std::vector<bool> reached(t.nodes().size());
        std::vector<Id> todo{id};
        while (!todo.empty()) {
            const Id at = todo.back();
            todo.pop_back();
            if (reached[static_cast<std::size_t>(at)])
                continue;
            reached[static_cast<std::size_t>(at)] = true;
            todo.insert(todo.end(), users[static_cast<std::size_t>(at)].begin(),
                        users[static_cast<std::size_t>(at)].end());
        }
        bool odd = true, any = false;
        for (std::size_t k = 1; k < y.size(); ++k)
            for (const Val& v : {y[k].re, y[k].im})
                if (!v.zero() && reached[static_cast<std::size_t>(v.id)]) {
                    any = true;
                    odd = odd && k % 2 == 1;
                }
        if (!any || !odd)
            continue;
        std::vector<Id> chain{id};
        for (std::size_t i = 0; i < chain.size(); ++i)
            for (Id u : users[static_cast<std::size_t>(chain[i])])
                if (t[u].op == (t[chain[i]].op == Op::Mul ? Op::Narrow : Op::Widen))
                    chain.push_back(u);
        return chain;
    }
    throw std::logic_error("no product by " + note + " reaches the odd bins alone");
}

}  // namespace

std::string RealKernel::name() const
{
    const std::string n = std::to_string(size) + (prec == Prec::F32 ? "_32f" : "_64f");
    if (is_hartley())
        return "vtxgHartley_" + n;
    if (direction == Direction::Forward)
        return std::string("vtxgDFTFwd_RTo") + layout_name(layout) + "_" + n;
    return std::string("vtxgDFTInv_") + layout_name(layout) + "ToR_" + n;
}

Graph RealKernel::build() const
{
    if (hartley == HartleyForm::PairsFirst)
        return pairs_first();
    return direction == Direction::Forward ? forward() : inverse(folded_doublings());
}

Graph RealKernel::forward() const
{
    Graph g(prec);
    Arith f(g, real_policy(prec));
    Cxs x;
    for (int i = 0; i < size; ++i)
        x.push_back({{g.load(prec, 1, Access::Scalar, i)}, {}});
    const Cxs y = transform(f, rule, x, Direction::Forward);
    // Every output is formed before the first store is placed.
    std::vector<std::pair<Id, int>> stores;
    if (is_hartley()) {
        // The pair stage: float additions whose signs take the bins' own, so
        // no output is negated, and every output is scaled in float.
        for (int k = 0; 2 * k <= size; ++k) {
            if (k == 0 || 2 * k == size) {
                stores.emplace_back(f.output(f.rounded(y[k].re)), k);
                continue;
            }
            stores.emplace_back(f.output(f.sub(y[k].re, y[k].im)), k);
            stores.emplace_back(f.output(f.add(y[k].re, y[k].im)), size - k);
        }
    } else {
        for (int k = 0; 2 * k <= size; ++k)
            for (bool imaginary : {false, true})
                if (const int at = position(layout, size, k, imaginary); at >= 0)
                    stores.emplace_back(f.output(imaginary ? y[k].im : y[k].re), at);
        for (int at : zero_slots(layout, size))
            stores.emplace_back(g.splat(prec, 1, 0.0, "always zero"), at);
    }
    for (const auto& [value, at] : stores)
        g.store(value, Access::Scalar, at);
    return g;
}

// x[j] = Re(0) + sum over 0 < k < n/2 of (2 Re(k) cos(2 pi j k / n) -
// 2 Im(k) sin(2 pi j k / n)) + Re(n/2) (-1)^j: the forward real transform
// (Re(k) = sum x[j] cos, Im(k) = -sum x[j] sin) transposed, with each bin as
// its weight.  The stand-in points of the forward graph only carry the
// weights home; the kernel holds its loads, the weights, the backward run
// and the output steps.  `weights(g, f, mirror, y)` seeds the mirror with the
// weight of each forward output y[k].re, y[k].im, in g.
template <class Weights>
Graph RealKernel::transposed(Weights weights) const
{
    Graph t(prec);
    Policy forward = real_policy(prec);
    forward.eighth_turn_sums_first = true;  // the transpose multiplies first, then adds
    forward.dc_formed_last = true;          // x[0] of a direct block adds the weighted bins, then Re(0)
    forward.merged_constants = true;  // twiddles take the 3-point blocks' sqrt(3)/2
    forward.rader_second_turns_sums_first = false;
    // The odd part of 32 by radix 8, that of 64 by radix 2 over two of those.
    forward.odd_part_radix = {{32, 8}, {64, 2}};
    // The CCS inverse of 7 sums A(1) and B(1) over the bins 1, 3, 2; Pack
    // and Perm over 1, 2, 3.
    if (direction == Direction::Inverse && layout == Layout::CCS && size == 7)
        forward.first_pair_uses = {{7, {1, 3, 2}}};
    Arith ft(t, forward);
    std::vector<Val> points;
    Cxs x;
    for (int j = 0; j < size; ++j) {
        points.push_back({t.load(prec, 1, Access::Scalar, j)});
        x.push_back({points.back(), {}});
    }
    const Cxs y = transform(ft, rule, x, Direction::Forward);

    Graph g(prec);
    Arith f(g, real_policy(prec));
    Mirror mirror(f, t, 0, points, Mirror::Rounding::Transform);
    // The float inverses of 62 and 22 and 46 (p x 2, p = 31, 11, 23), the
    // last two in CCS and Perm, and the Hartley kernel of 62 add the bins
    // that the odd-bin block's factor M[h] meets in double, whose terms are
    // widened for other products anyway: one widening fewer.  The Pack
    // inverses of 22 and 46 add them in float, as the other blocks do.
    const bool inverse = direction == Direction::Inverse;
    if (prec == Prec::F32 && (size == 62 ? inverse || is_hartley()
                                         : inverse && layout != Layout::Pack && (size == 22 || size == 46)))
        for (Id at : odd_bins_middle_factor(t, y, size / 2))
            mirror.sums_in_double(at);
    weights(g, f, mirror, y);
    const std::vector<Parts> w = mirror.run();
    std::vector<Id> outputs;
    for (const Parts& v : w)
        outputs.push_back(f.output(f.rounded(v.even)));
    for (int j = 0; j < size; ++j)
        g.store(outputs[static_cast<std::size_t>(j)], Access::Scalar, j);
    return g;
}

// The inverse kernel: each bin loaded from its layout is its own weight,
// doubled for 0 < k < n/2 (where the doubling is folded, the products it
// meets take the 2).
Graph RealKernel::inverse(const std::vector<int>& folded) const
{
    return transposed([&](Graph& g, Arith&, Mirror& mirror, const Cxs& y) {
        // Every bin is loaded before the first doubling.
        struct Bin {
            Val forward;  // the forward graph's output this bin weighs
            Id load;
            int code;     // 2k, or 2k + 1 for Im(k)
            bool doubled;
        };
        std::vector<Bin> bins;
        for (int k = 0; 2 * k <= size; ++k)
            for (bool imaginary : {false, true})
                if (const int at = position(layout, size, k, imaginary); at >= 0)
                    bins.push_back({imaginary ? y[k].im : y[k].re, g.load(prec, 1, Access::Scalar, at),
                                    2 * k + imaginary, k > 0 && 2 * k < size});
        for (const Bin& b : bins) {
            Val w{b.load};
            if (b.doubled && std::count(folded.begin(), folded.end(), b.code))
                mirror.halved(b.load);
            else if (b.doubled)
                w = {g.mul(g.splat(prec, 1, 2.0, "2"), b.load)};
            mirror.seed(b.forward, {w, {}});
        }
    });
}

// The pairs-first Hartley kernel: x(0), e(k) = x(k) + x(n-k), -o(k) =
// x(n-k) - x(k) and x(n/2) weigh Re(0), Re(k), Im(k) and Re(n/2), and the
// points of the transposed run are H[j] = x(0) + sum e(k) cos + sum o(k) sin
// + x(n/2) (-1)^j.  The sign of -o(k) folds into the additions it meets.
Graph RealKernel::pairs_first() const
{
    return transposed([&](Graph& g, Arith& f, Mirror& mirror, const Cxs& y) {
        std::vector<Val> x;
        for (int j = 0; j < size; ++j)
            x.push_back({g.load(prec, 1, Access::Scalar, j)});
        mirror.seed(y[0].re, {x[0], {}});
        for (int k = 1; 2 * k < size; ++k) {
            mirror.seed(y[k].re, {f.add(x[k], x[size - k]), {}});
            mirror.seed(y[k].im, {-f.sub(x[k], x[size - k]), {}});
        }
        if (size % 2 == 0)
            mirror.seed(y[size / 2].re, {x[size / 2], {}});
    });
}

// A doubled bin whose one use is a product with a constant (through its
// widening in a float kernel) takes the 2 into that constant instead.
std::vector<int> RealKernel::folded_doublings() const
{
    if (direction == Direction::Forward)
        return {};
    const Graph g = inverse({});
    const auto live = g.live_lanes();
    std::vector<std::vector<Id>> users(g.nodes().size());
    for (Id id = 0; id < static_cast<Id>(g.nodes().size()); ++id) {
        if (!live[static_cast<std::size_t>(id)])
            continue;
        const Node& n = g[id];
        for (Id from : {n.a, n.b})
            if (from != kNone)
                users[static_cast<std::size_t>(from)].push_back(id);
    }
    auto only_user = [&](Id id) {
        const auto& u = users[static_cast<std::size_t>(id)];
        return u.size() == 1 ? u[0] : kNone;
    };
    std::vector<int> folded;
    for (Id id = 0; id < static_cast<Id>(g.nodes().size()); ++id) {
        const Node& d = g[id];
        if (d.op != Op::Mul || g[d.a].op != Op::Const || g[d.a].value[0] != 2.0 || g[d.b].op != Op::Load)
            continue;
        Id use = only_user(id);
        if (use != kNone && g[use].op == Op::Widen)
            use = only_user(use);
        if (use == kNone || g[use].op != Op::Mul)
            continue;
        for (int k = 1; 2 * k < size; ++k)
            for (bool imaginary : {false, true})
                if (position(layout, size, k, imaginary) == g[d.b].offset)
                    folded.push_back(2 * k + imaginary);
    }
    return folded;
}

// No alignment test: every access is one element.
std::string RealKernel::summary() const
{
    switch (hartley) {
    case HartleyForm::PairStage: return "rule " + rule.text() + ", then the pair stage";
    case HartleyForm::PairsFirst: return "the pairs, then rule " + rule.text() + " transposed";
    case HartleyForm::None: break;
    }
    return "rule " + rule.text() + (direction == Direction::Forward ? "" : ", transposed");
}

KernelText RealKernel::text() const
{
    const char* scaling = is_hartley() ? "SelfInverse" : direction == Direction::Forward ? "Forward" : "Inverse";
    return {name(), "", prec == Prec::F32 ? "vtx32f" : "vtx64f", scaling, summary(), prec, size,
            Frame::NoAlignmentTest, build()};
}

std::vector<RealKernel> real_kernels(Direction d)
{
    std::vector<RealKernel> out;
    for (Prec p : {Prec::F32, Prec::F64})
        for (Layout l : {Layout::CCS, Layout::Pack, Layout::Perm})
            for (const RealRow& row : real_rows())
                out.push_back({p, row.size, l, d, Rule::parse(d == Direction::Forward ? row.forward : row.inverse)});
    return out;
}

std::vector<RealKernel> hartley_kernels()
{
    std::vector<RealKernel> out;
    for (Prec p : {Prec::F32, Prec::F64})
        for (const HartleyRow& row : hartley_rows())
            out.push_back({p, row.size, Layout::CCS, Direction::Forward, Rule::parse(row.rule),
                           row.pairs_first ? HartleyForm::PairsFirst : HartleyForm::PairStage});
    return out;
}

}  // namespace vtxgen
