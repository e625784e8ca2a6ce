// The printer: graphs become straight-line C++ over the vector layer.
#pragma once

#include "complex.hpp"
#include "graph.hpp"

#include <string>
#include <vector>

namespace vtxgen {

// Hexadecimal literal that reproduces the value exactly (with an f suffix
// for float).
std::string literal(double v, Prec p);

// The statements of a kernel body over `x` (source components), `y`
// (destination components), `s` (scale) and the access policy `M`.
std::string emit_body(const Graph& g, Prec kernel_prec);

// A translation unit holding the given complex kernels with their frames.
std::string emit_complex_unit(const std::vector<ComplexKernel>& kernels);

}  // namespace vtxgen
