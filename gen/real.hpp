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

struct RealKernel {
    Prec prec;
    int size;
    Layout layout;
    Rule rule;

    std::string name() const;  // vtxgDFTFwd_RToCCS_8_32f
    int destination_length() const { return layout_length(layout, size); }
    Graph build() const;
    KernelText text() const;  // what the printer takes
};

// Every forward real kernel: by precision, layout and size.
std::vector<RealKernel> real_forward_kernels();

}  // namespace vtxgen
