// The lane pass: a graph of single-lane operations (the real and Hartley
// kernels) packed into 16-byte vectors.
//
// A pack is a few nodes of one operation and one precision, independent of
// each other, that run as one vector operation: four floats or two doubles,
// lane by lane, so every result keeps its operands, its precision and its
// rounding.  Packs start at the loads of neighbouring elements and the
// stores of neighbouring outputs and grow along operands and users as long
// as these stay alike.  Where a pack's operands do not stand in one vector in
// the pack's order, lane moves or a vector built of single values line them
// up; a packed value that a single-lane operation uses is taken out of its
// lane.  A pack that costs more than its members alone (by a count of
// instructions, lane moves included) is dissolved, and so is the whole
// packing of a graph that does not save a tenth of its instructions.
//
// What never becomes a vector operation: a widening of a value just rounded
// to float (it goes through the scalar barrier, which keeps the compiler from
// dropping the pair), and anything but loads, stores, sums, differences,
// products, the scale, the negation (printed as 0 - v, lane by lane) and the
// conversions between float and double.
#pragma once

#include "graph.hpp"

#include <array>
#include <vector>

namespace vtxgen {

struct Packing {
    std::vector<std::vector<Id>> packs;  // members in lane order
    std::vector<int> pack_of;            // per node: its pack, or -1
    std::vector<int> lane_of;            // per node: its lane in its pack
    // The statements in order: a pack (index >= 0) or a single node (~id).
    std::vector<int> order;
    int scalar_cost = 0;     // modelled instructions of the graph as single lanes
    int packed_cost = 0;     // and as packed
};

// Four float lanes or two double lanes.
int lanes_of(Prec p);

// How the operands of a pack's members, in lane order, come to stand in one
// vector: as a pack already is; moved within one pack or from two; built of
// single values; or a constant.
struct Gather {
    enum Kind { Same, OnePack, TwoPacks, Build, Constant } kind = Build;
    int a = -1;                  // the pack of lane 0's operand (OnePack, TwoPacks: the first source)
    int b = -1;                  // the second source (TwoPacks)
    std::array<int, 4> lane{};   // lane of each operand in a, or 4 + its lane in b
    int cost = 0;                // modelled instructions
};
Gather gather(const Graph& g, const Packing& k, const std::vector<Id>& ops);

// The packing of a graph of single lanes, its statements in an order that
// follows `schedule` (the graph's own order of single statements); no packs
// when `g` holds wider nodes or packing does not pay.
Packing pack_lanes(const Graph& g, const std::vector<std::uint8_t>& live, const std::vector<Id>& schedule);

}  // namespace vtxgen
