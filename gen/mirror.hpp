// The mirrored transform: the transpose of a linear graph.
//
// The first transform of a Rader rule maps L inputs to L outputs through
// additions, subtractions and products with constants.  Run backwards -
// every value handing its weight to the operands that made it - the same
// graph computes the transpose of that map with the same products and its
// stages in reverse order.  The DFT matrix is symmetric, so the transpose of
// a transform is the transform of the same root.
//
// Each weight is carried as two parts, an even and an odd one, so that one
// backward run serves two sums whose inputs are disjoint; a part that is
// zero costs nothing, and a sum formed twice is formed once.
#pragma once

#include "arith.hpp"

#include <map>
#include <tuple>
#include <vector>

namespace vtxgen {

struct Parts {
    Val even, odd;
};

class Mirror {
public:
    // The graph of the first transform is every node created since `start`;
    // `inputs` are the values it was given.
    Mirror(Arith& f, Id start, std::vector<Val> inputs) : f_(f), start_(start), inputs_(std::move(inputs)) {}

    // Weight w given to an output value v of the first transform.
    void seed(Val v, Parts w);

    // The weights that reach the inputs, in input order.
    std::vector<Parts> run();

private:
    Val sum(Val a, Val b);
    Parts sum(Parts a, Parts b) { return {sum(a.even, b.even), sum(a.odd, b.odd)}; }
    void give(Id to, Parts w);

    Arith& f_;
    Id start_;
    std::vector<Val> inputs_;
    std::map<Id, Parts> weight_;
    std::map<std::tuple<bool, Id, Id>, Id> formed_;  // (subtraction, a, b) -> node
};

}  // namespace vtxgen
