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

// A forward kernel (n real points to a packed half spectrum) or an inverse
// one (a packed half spectrum to n real points).
struct RealKernel {
    Prec prec;
    int size;
    Layout layout;
    Direction direction;
    Rule rule;

    std::string name() const;  // vtxgDFTFwd_RToCCS_8_32f, vtxgDFTInv_CCSToR_8_32f
    int source_length() const { return direction == Direction::Forward ? size : layout_length(layout, size); }
    int destination_length() const { return direction == Direction::Forward ? layout_length(layout, size) : size; }
    Graph build() const;
    KernelText text() const;  // what the printer takes

    // The bins of an inverse kernel whose doubling is folded into the one
    // product each meets: 2k for Re(k), 2k + 1 for Im(k).
    std::vector<int> folded_doublings() const;

private:
    Graph forward() const;
    Graph inverse(const std::vector<int>& folded) const;
};

// Every real kernel of a direction: by precision, layout and size.
std::vector<RealKernel> real_kernels(Direction d);

}  // namespace vtxgen
