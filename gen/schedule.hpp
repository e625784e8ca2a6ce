// The order in which a kernel's statements are printed.
//
// The arithmetic of a graph fixes every result bit; its order of statements
// fixes how many values are alive at once, and so how much a compiler that
// keeps the source order (as GCC does on x86 before register allocation)
// spills to the stack.  The builders create nodes stage by stage over the
// whole transform; printed in that order, a 64-point kernel keeps dozens of
// vectors alive where the register file holds 16 (8 on i386).
//
// The schedule cuts the graph recursively: a set of nodes that falls apart
// into independent pieces runs piece after piece; a connected set runs its
// shallower half (by depth from the set's own inputs) before its deeper half,
// each half scheduled the same way.  A Cooley-Tukey step thus becomes its
// column transforms one by one, then its row transforms one by one, and
// within each the same again, down to single operations: at any moment only
// the values of the sub-block under way and the results waiting for the next
// half are alive, whatever the register count.
#pragma once

#include "graph.hpp"

#include <cstdint>
#include <vector>

namespace vtxgen {

// Vector registers the schedule is fitted to: those of x86-64.  The same
// order serves the eight of i386, where every kernel spills more.
constexpr int kRegisters = 16;

// The live non-constant nodes of `g` (those with a nonzero entry in `live`),
// each after its operands and, with `in_place`, every store after the last
// load, so that a kernel may run in place: of the candidate orders, the one
// that spills least into `kRegisters` registers, by `spill_cost`.
std::vector<Id> schedule(const Graph& g, const std::vector<std::uint8_t>& live, bool in_place = true);

// The candidates, before stores are moved behind the last load: the
// builder's order; the recursive cut, with depth counted over every node and
// over sums alone; each output's cone in the order of the stores.  In each,
// every load, and every node whose operands stay alive past its first user
// anyway, waits until just before that user.
std::vector<std::vector<Id>> schedule_candidates(const Graph& g, const std::vector<std::uint8_t>& live);

// `order` with every store moved behind the last load.
std::vector<Id> with_stores_after_loads(const Graph& g, const std::vector<Id>& order);

// Values stored to and read back from the stack when `order` runs in
// `registers` registers, as an allocator that evicts the value used again
// last would do.
int spill_cost(const Graph& g, const std::vector<Id>& order, int registers);

}  // namespace vtxgen
