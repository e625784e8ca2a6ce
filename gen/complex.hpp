// The complex Fourier kernels: which exist, what they are called, and the
// graph of each one built from its rule.
#pragma once

#include "arith.hpp"
#include "emit.hpp"
#include "graph.hpp"
#include "rules.hpp"

#include <string>
#include <vector>

namespace vtxgen {

struct ComplexKernel {
    Direction direction;
    Prec prec;
    int size;
    Rule rule;

    std::string name() const;       // vtxgDFTFwd_CToC_8_32fc
    std::string twin_name() const;  // owngDFTFwd_CToC_8_32fc_unaligned
    Frame frame() const;
    Graph build() const;
    KernelText text() const;  // what the printer takes
};

// Every complex kernel that has a rule, forward kernels first, by size.
std::vector<ComplexKernel> complex_kernels();

}  // namespace vtxgen
