// The real Fourier kernels: which exist, what they are called, where each
// bin of the half spectrum lies in the three packed layouts, and the graph
// of each kernel built from its rule.
#pragma once

#include "arith.hpp"
#include "emit.hpp"
#include "graph.hpp"
#include "rules.hpp"

#include <string>
#include <vector>

namespace vtxgen {

// The packed half spectra of a real transform of n points.
enum class Layout { CCS, Pack, Perm };

const char* layout_name(Layout l);  // "CCS", "Pack", "Perm"

// Elements of a layout: CCS 2 floor(n/2) + 2, Pack and Perm n.
int layout_length(Layout l, int n);

// Position of Re(k) or Im(k), 0 <= k <= n/2, in a layout; -1 for a value the
// layout does not store (Im(0), Im(n/2), and their CCS slots, which hold
// plain zeros, see zero_slots).
int position(Layout l, int n, int k, bool imaginary);

// The CCS positions that always hold positive zero: 1, and n + 1 for even n.
std::vector<int> zero_slots(Layout l, int n);

// The arithmetic of the real kernels: float kernels add in float, form
// products and the sums of one block output in double and round once.
Policy real_policy(Prec p);

// A Hartley kernel, H[k] = sum_j x[j] (cos + sin)(2 pi j k / n), is built
// from the real Fourier graphs in one of two forms.
enum class HartleyForm {
    None,        // a Fourier kernel
    // The forward graph up to (Re(k), Im(k)), then one stage of pairs
    // H[k] = Re(k) - Im(k), H[n-k] = Re(k) + Im(k).
    PairStage,
    // The pairs e(j) = x(j) + x(n-j), o(j) = x(j) - x(n-j) first, as the
    // weights of the bins in the inverse kernel's run: x(0), e(k), -o(k) and
    // x(n/2) are the bins Re(0), 2 Re(k), 2 Im(k) and Re(n/2) of an inverse
    // transform, whose points are H[j].
    PairsFirst,
};

// A forward kernel (n real points to a packed half spectrum), an inverse
// one (a packed half spectrum to n real points) or a Hartley kernel (n real
// points to n; direction Forward, layout unused).
struct RealKernel {
    Prec prec;
    int size;
    Layout layout;
    Direction direction;
    Rule rule;
    HartleyForm hartley = HartleyForm::None;

    // vtxgDFTFwd_RToCCS_8_32f, vtxgDFTInv_CCSToR_8_32f, vtxgHartley_8_32f
    std::string name() const;
    bool is_hartley() const { return hartley != HartleyForm::None; }
    int source_length() const
    {
        return direction == Direction::Forward ? size : layout_length(layout, size);
    }
    int destination_length() const
    {
        return direction == Direction::Forward && !is_hartley() ? layout_length(layout, size) : size;
    }
    Graph build() const;
    std::string summary() const;  // how it is built: "rule R(8)", "the pairs, then rule PF(5,2) transposed"
    KernelText text() const;      // what the printer takes

    // The bins of an inverse kernel whose doubling is folded into the one
    // product each meets: 2k for Re(k), 2k + 1 for Im(k).
    std::vector<int> folded_doublings() const;

private:
    Graph forward() const;
    Graph inverse(const std::vector<int>& folded) const;
    Graph pairs_first() const;
    // The transpose of the forward transform of the rule, the weight of each
    // bin given by `weights` into the kernel's graph.
    template <class Weights>
    Graph transposed(Weights weights) const;
};

// Every real Fourier kernel of a direction: by precision, layout and size.
std::vector<RealKernel> real_kernels(Direction d);

// Every Hartley kernel: by precision and size.
std::vector<RealKernel> hartley_kernels();

}  // namespace vtxgen
