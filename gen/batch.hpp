// Many transforms in one call: one transform per vector lane.
//
// A batch kernel runs a kernel's graph across transforms instead of within
// one.  Every lane of every node becomes a value of its own, and every
// operation on it one vector operation over W transforms: the same
// operation on the same operands in the same precision, so each lane gives
// the bits of the single kernel.  Lane moves (exchanges, shuffles) become
// other names for the same values, sign flips stay sign flips, and lanes that
// reach no store are dropped.
//
// What is printed per kernel is only the arithmetic, from an array of input
// vectors (vector i: component i of W transforms) to an array of outputs; the
// runtime moves the transforms' components into those arrays and back, and
// the order of the arrays is the order in which the graph first reads and
// writes memory.  Kernels that differ only in where their values lie (the
// three packed layouts of a real spectrum) so share one printed function.
#pragma once

#include "emit.hpp"
#include "graph.hpp"

#include <string>
#include <vector>

namespace vtxgen {

// Where a batch kernel's values lie in memory: its inputs and outputs are
// numbered in the order the graph first reaches each memory component.
struct Placement {
    std::vector<int> source;       // input i is component source[i] of the source
    std::vector<int> destination;  // output i is component destination[i] of the destination
    std::vector<int> zeros;        // destination components stored as plain +0
};

// A kernel's graph with its lanes apart: every node one lane wide, loads
// and stores at the numbers of their placement.
struct LaneGraph {
    Graph graph;
    Placement at;
};

// Throws when the graph stores a component twice, stores a constant other
// than +0, or leaves a component below its last one unwritten.
LaneGraph lanes_apart(const Graph& g);

// A kernel in its batch form.
struct BatchKernel {
    KernelText text;
    int source_elements;       // elements of one transform's input and output, in
    int destination_elements;  // the kernel's element type (complex elements for complex)
    Placement at;              // where its core's inputs and outputs lie
};

// One printed function and the kernels it serves: those of one size whose
// graphs, lanes apart, are the same.
struct BatchCore {
    std::string name;  // its first kernel's name without the prefix: DFTFwd_RToCCS_8_32f
    Graph graph;       // lanes apart
    std::vector<BatchKernel> kernels;
};

// The cores of a family: kind "complex" with dir "fwd" or "inv", or kind
// "real" with dir "fwd", "inv" or "hartley"; one precision, sizes from..to.
std::vector<BatchCore> batch_cores(const std::string& kind, const std::string& dir, Prec p, int from, int to);

// A translation unit of cores, compiled once per instruction set.
std::string emit_batch_unit(const std::vector<BatchCore>& cores);

// The unit of the eighteen tables the batch entries choose from: for each
// size the components read and written, where each lies in the arrays of the
// cores, the scale constants, and the core of every instruction set.
std::string emit_batch_tables();

}  // namespace vtxgen
