// The printer: graphs become straight-line C++ over the vector layer.
#pragma once

#include "graph.hpp"

#include <string>
#include <utility>
#include <vector>

namespace vtxgen {

// Hexadecimal literal that reproduces the value exactly (with an f suffix
// for float).
std::string literal(double v, Prec p);

// Scale constants, formed from N alone: 1/N nearest, and 1.0 divided by the
// double square root of N, each step rounded to double; float kernels round
// those doubles once more.  As literals: {1/N, 1/sqrt(N)}.
std::pair<std::string, std::string> scale_literals(int n, Prec p);

// How a kernel meets misaligned pointers.
enum class Frame {
    NoAlignmentTest,  // scalar accesses only: null and flag tests alone
    SecondPath,       // the kernel holds an unaligned copy of its arithmetic
    Twin,             // misaligned pointers go to the kernel's unaligned twin
};

// The exported entry of a kernel (and its twin) over the call frame.
struct EntryShape {
    std::string name;        // vtxgDFTFwd_CToC_8_32fc
    std::string twin;        // owngDFTFwd_CToC_8_32fc_unaligned (Frame::Twin only)
    std::string impl;        // the kernel type: vtx::DFTFwd_CToC_8_32fc
    std::string params;      // "(const vtx32fc* src, vtx32fc* dst, int flag)"
    std::string extra_args;  // arguments past the flag, passed on: "" or ", buffer"
    Frame frame;
};
std::string entry_points(const EntryShape& e);

// The statements of a kernel body over `x` (source components), `y`
// (destination components), `s` (scale) and the access policy `M`.
std::string emit_body(const Graph& g, Prec kernel_prec);

// A straight-line kernel as the printer takes it: whatever its family.
struct KernelText {
    std::string name;     // vtxgDFTFwd_RToCCS_8_32f
    std::string twin;     // the unaligned twin's name (Frame::Twin only)
    std::string element;  // the C element type of source and destination: vtx32f
    std::string scaling;  // which flag divides: Forward, Inverse or SelfInverse
    std::string summary;  // one line on how it is built: "rule R(8)"
    Prec prec;
    int size;
    Frame frame;
    Graph graph;
};

// A translation unit holding the given kernels with their frames.
std::string emit_unit(const std::vector<KernelText>& kernels, const std::string& origin);

}  // namespace vtxgen
