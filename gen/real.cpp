// Kernel assembly for the real Fourier kernels.
//
// One scalar graph per size and precision: the rule runs on real loads
// (every imaginary part a known zero, so only the bins up to n/2 are formed),
// each bin leaves through one output step, and the layout is no more than
// where the stores go.  The three layouts of a size so compute the same
// values bit for bit.
#include "real.hpp"

#include "blocks.hpp"

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
            .sign = Policy::Sign::AfterScale};
}

std::string RealKernel::name() const
{
    return std::string("vtxgDFTFwd_RTo") + layout_name(layout) + "_" + std::to_string(size) +
           (prec == Prec::F32 ? "_32f" : "_64f");
}

Graph RealKernel::build() const
{
    Graph g(prec);
    Arith f(g, real_policy(prec));
    Cxs x;
    for (int i = 0; i < size; ++i)
        x.push_back({{g.load(prec, 1, Access::Scalar, i)}, {}});
    const Cxs y = transform(f, rule, x, Direction::Forward);
    // Every output is formed before the first store is placed.
    std::vector<std::pair<Id, int>> stores;
    for (int k = 0; 2 * k <= size; ++k)
        for (bool imaginary : {false, true})
            if (const int at = position(layout, size, k, imaginary); at >= 0)
                stores.emplace_back(f.output(imaginary ? y[k].im : y[k].re), at);
    for (int at : zero_slots(layout, size))
        stores.emplace_back(g.splat(prec, 1, 0.0, "always zero"), at);
    for (const auto& [value, at] : stores)
        g.store(value, Access::Scalar, at);
    return g;
}

// No alignment test: every access is one element.
KernelText RealKernel::text() const
{
    return {name(), "", prec == Prec::F32 ? "vtx32f" : "vtx64f", "Forward", "rule " + rule.text(), prec, size,
            Frame::NoAlignmentTest, build()};
}

std::vector<RealKernel> real_forward_kernels()
{
    std::vector<RealKernel> out;
    for (Prec p : {Prec::F32, Prec::F64})
        for (Layout l : {Layout::CCS, Layout::Pack, Layout::Perm})
            for (const RealRow& row : real_rows())
                out.push_back({p, row.size, l, Rule::parse(row.forward)});
    return out;
}

}  // namespace vtxgen
