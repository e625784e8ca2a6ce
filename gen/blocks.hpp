// Block builders: each takes the values of a block's points and gives the
// values of its outputs, expanded in place in whatever lanes the values have.
// A rule nests blocks: transform() runs any rule across positions.
#pragma once

#include "arith.hpp"
#include "rules.hpp"

#include <vector>

namespace vtxgen {

using Cxs = std::vector<Cx>;

// The transform of `rule` over x.  Real input (every imaginary part zero)
// runs pruned: only the bins up to n/2 are formed, the others are their
// conjugates, at no cost.
Cxs transform(Arith& f, const Rule& rule, const Cxs& x, Direction dir);

// The pairs of a direct block in order: powers of a root g whose power
// (p-1)/2 is -1 modulo p.
std::vector<int> pair_order(int p);

}  // namespace vtxgen
