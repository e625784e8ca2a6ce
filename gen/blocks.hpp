// Block builders: each takes the values of a block's points and gives the
// values of its outputs, expanded in place in whatever lanes the values have.
// A rule nests blocks: transform() runs any rule across positions.
#pragma once

#include "arith.hpp"
#include "rules.hpp"

#include <vector>

namespace vtxgen {

using Cxs = std::vector<Cx>;

// The transform of `rule` over x, with the root w(n)^r (r coprime to n; 1 is
// the plain transform).  Real input (every imaginary part zero) runs pruned:
// only the bins up to n/2 are formed, the others are their conjugates, at no
// cost.
Cxs transform(Arith& f, const Rule& rule, const Cxs& x, Direction dir, int r = 1);

// The smallest primitive root of a prime.
int primitive_root(int p);

// g^q mod p for q = 0..p-2, g the smallest primitive root.
std::vector<int> rader_powers(int p);

// The pointwise factors of a Rader rule, M[k] for k = 0..p-2 as (re, im):
// (1/L) sum over n of omega^(g^n) w(L)^(-nk), omega = exp(-2 pi i r / p),
// L = p - 1; the inverse takes (-1)^k M[k].
std::vector<std::pair<exact::Quad, exact::Quad>> rader_factors(int p, Direction dir, int r = 1);

// The pairs of a direct block in order: powers of a root g whose power
// (p-1)/2 is -1 modulo p.
std::vector<int> pair_order(int p);

}  // namespace vtxgen
