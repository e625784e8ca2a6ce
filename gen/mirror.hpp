// The mirrored transform: the transpose of a linear graph.
//
// A transform maps its inputs to its outputs through additions,
// subtractions and products with constants.  Run backwards - every value
// handing its weight to the operands that made it - the same graph computes
// the transpose of that map with the same products and its stages in
// reverse order.  The DFT matrix is symmetric, so the transpose of a complex
// transform is the transform of the same root; the transpose of a forward
// real transform (real points to half a spectrum) is the inverse real one
// (half a spectrum, its bins doubled, to real points).
//
// Each weight is carried as two parts, an even and an odd one, so that one
// backward run serves two sums whose inputs are disjoint; a part that is
// zero costs nothing, and a sum formed twice is formed once.
#pragma once

#include "arith.hpp"

#include <map>
#include <set>
#include <tuple>
#include <vector>

namespace vtxgen {

struct Parts {
    Val even, odd;
};

class Mirror {
public:
    // How the weights of a float form round.
    enum class Rounding {
        // The second transform of a Rader block run on the first one: weights
        // add as they meet, in double when both are still in double, else
        // both rounded first.
        AsTheyMeet,
        // A transform of its own: the weights that meet at a value add in the
        // order its uses were formed.  Products (also through a widening)
        // are the terms of a sum in double; the other weights are its start
        // value, each rounded first (the transpose's butterflies are float
        // additions of rounded values, and a sum that meets others has left
        // its block), joining as a start value joins a combination
        // (Arith::combine).  A weight that meets none stays as it is, and a
        // product rounds its operand.
        Transform,
    };

    // The graph run backwards is every node of f's graph created since
    // `start`; `inputs` are the values it was given.
    Mirror(Arith& f, Id start, std::vector<Val> inputs, Rounding rounding = Rounding::AsTheyMeet)
        : Mirror(f, f.graph(), start, std::move(inputs), rounding)
    {
    }
    // The graph run backwards is `source` from `start` on, another graph than
    // f's: weights are values of f's graph.
    Mirror(Arith& f, const Graph& source, Id start, std::vector<Val> inputs, Rounding rounding)
        : f_(f), source_(source), start_(start), inputs_(std::move(inputs)), rounding_(rounding)
    {
    }

    // Weight w given to an output value v of the graph run backwards.
    void seed(Val v, Parts w);

    // A weight node that stands for twice its value: where it is only ever
    // multiplied by a constant c, the product takes 2c.
    void halved(Id weight) { halved_.insert(weight); }

    // The weights that meet at `node` of the graph run backwards (a product
    // with a constant, its rounding, the widening of that) add in double,
    // their terms widened as for products anyway, and a product takes their
    // sum as it is.
    void sums_in_double(Id node) { in_double_at_.insert(node); }

    // The weights that reach the inputs, in input order.
    std::vector<Parts> run();

private:
    Val sum(Val a, Val b);
    Parts sum(Parts a, Parts b) { return {sum(a.even, b.even), sum(a.odd, b.odd)}; }
    Parts total(Id at);
    void give(Id to, Parts w, bool product = false);

    struct Given {
        Parts w;
        bool product;  // a product with a constant, which the sum takes as a term
    };
    Val total(const std::vector<Given>& given, bool odd);

    Arith& f_;
    const Graph& source_;
    Id start_;
    std::vector<Val> inputs_;
    Rounding rounding_;
    std::set<Id> halved_;
    std::set<Id> in_double_at_;
    bool in_double_ = false;  // while the weights of one of those add
    std::map<Id, std::vector<Given>> given_;         // source node -> weights, in the order given
    std::map<std::tuple<bool, Id, Id>, Id> formed_;  // (subtraction, a, b) -> node
};

}  // namespace vtxgen
