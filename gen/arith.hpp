// Arithmetic on graph values with the signs and zeros kept aside.
//
// A Val is a node, its negation, or zero.  Negation costs nothing: it folds
// into the next addition or subtraction (a + (-b) is a - b, (-a) + b is
// b - a, (-a) + (-b) is -(a + b)), and zero operands vanish, so a block
// written once for complex data runs pruned on real data: every operation
// on a known zero or a sign is left out.  Each folding is exact in IEEE
// arithmetic, so the bits are those of the block as written.
#pragma once

#include "exact.hpp"
#include "graph.hpp"

#include <map>
#include <string>
#include <vector>

namespace vtxgen {

struct Val {
    Id id = kNone;
    bool neg = false;

    bool zero() const { return id == kNone; }
    Val operator-() const { return {id, zero() ? false : !neg}; }
};

// A complex value of two parts.  In the float forms the parts are the
// data's real and imaginary parts; in the double form they are the formal
// parts of a real-coefficient flow graph run on both lanes.
struct Cx {
    Val re, im;
    Cx conj() const { return {re, -im}; }
    Cx operator-() const { return {-re, -im}; }
    bool real() const { return im.zero(); }
};

enum class Direction { Forward, Inverse };

// A term c * v of a real linear combination; the sign of c picks addition or
// subtraction, the product takes |c|.
struct Term {
    exact::Quad coef;
    Val value;
    std::string note;
    bool merged = false;  // a lone product c' u as value is taken as (c c') u
};

// How a kernel form computes, as data: the blocks ask it, never the
// precision or the size.
struct Policy {
    Prec element = Prec::F64;  // precision of the data and of every butterfly
    int width = 1;             // lanes of a value

    // Products with constants are formed in double on the widened float
    // operand; the sums of products of one block output stay in double and
    // are rounded once, when the value next meets a float operation.  An
    // output still in double is scaled in double before its rounding.
    bool wide = false;

    // Where the start value of a combination (x[0] of a direct block) joins
    // its products: after the first one, or after the first one that is
    // subtracted (at the end when none is).
    enum class Start { AfterFirstTerm, AfterFirstSubtracted } start = Start::AfterFirstTerm;

    // The DC output of a direct block: x[0] and then each pair sum, or the
    // pair sums first and x[0] last.
    enum class Dc { StartFirst, PairsFirst } dc = Dc::StartFirst;

    // The DC output of a direct block is formed after the others (its order
    // of creation, which the transpose of the block follows).
    bool dc_formed_last = false;

    // The pairs (j, p - j) of a direct block of prime p, in order, where they
    // are not the powers of the block's root (pair_order in blocks.hpp).
    std::map<int, std::vector<int>> pairs = {};

    // The outputs of a direct block of prime p, by p, in the order in which
    // their products on the block's first pair are formed (otherwise in
    // output order); a transposed block adds its first point's terms so.
    std::map<int, std::vector<int>> first_pair_uses = {};

    // On real data a direct block sums each imaginary output with its own
    // signs (-sin of the forward transform), instead of negating the sine sum.
    bool signed_imaginary_sums = false;

    // A power-of-two block on real data runs as the recursion R(n).
    bool real_powers_of_two_recursive = false;

    // The radix of the odd part of R(n) by n, where it is not 4.
    std::map<int, int> odd_part_radix = {};

    // The odd part of R(n) from 16 on turns its inner bins by w(n)^k: at an
    // eighth turn the sum and difference of the parts multiplied by
    // sqrt(1/2), or the parts multiplied and then added (the default).
    bool odd_part_turns_sums_first = false;

    // The odd bins of R(8) turn d1 and d3 by an eighth: each multiplied by
    // sqrt(1/2) and then added and subtracted, or added and subtracted and
    // then multiplied (whose transpose multiplies first).
    bool eighth_turn_sums_first = false;

    // Good-Thomas steps map their outputs as they map their inputs,
    // k = (b k1 + a k2) mod N, and rotate their blocks to match; otherwise
    // the outputs follow the Chinese remainders and the blocks are plain.
    bool rotated_good_thomas = false;

    // A Rader block on complex data runs split on the real and on the
    // imaginary parts, or by the complex rule.
    bool rader_parts_apart = false;

    // A twiddle product whose operand is itself a lone product with a
    // constant (the sqrt(3)/2 of a three-point block) takes the product of
    // the two constants instead: the inner product, if nothing else uses it,
    // falls away, and in the wide form so do its rounding and the widening
    // behind it.
    bool merged_constants = false;

    // The second transform of a Rader block on real data: the mirror of the
    // first transform (both parts in one run), or for each part an inverse
    // transform of its own, the mirror of a forward transform on stand-in
    // points (merged constants, rounded as a transform of its own), whose
    // stages the Rader rule's variant chooses (rules.hpp).
    bool rader_second_own = false;
    // Those transforms hold their 11-point blocks by Rader's rule, as an
    // inverse kernel does, unless the Rader rule says otherwise.
    bool rader_second_elevens_by_rader = false;
    // The forward transforms they mirror take the eighth turns of the odd
    // parts of R(n) sums first (odd_part_turns_sums_first).
    bool rader_second_turns_sums_first = false;

    // How a negated output is finished: subtracted from zero before its scale
    // (an addition), or scaled and then negated, 0 - s*v (a negation).
    enum class Sign { BeforeScale, AfterScale } sign = Sign::BeforeScale;
};

class Arith {
public:
    Arith(Graph& g, const Policy& policy) : g_(g), policy_(policy) {}

    Graph& graph() { return g_; }
    const Policy& policy() const { return policy_; }

    // A butterfly addition: in the wide form double operands are rounded first.
    Val add(Val a, Val b);
    Val sub(Val a, Val b) { return add(a, -b); }
    Cx add(Cx a, Cx b) { return {add(a.re, b.re), add(a.im, b.im)}; }
    Cx sub(Cx a, Cx b) { return {sub(a.re, b.re), sub(a.im, b.im)}; }

    // A sum inside one block output: in the wide form, in double.
    Val sum(Val a, Val b);

    // |c| * v with the sign of c kept aside.  With `as_is` a value still in
    // double is multiplied as it is, not rounded first.
    Val times(exact::Quad c, Val v, const std::string& note, bool as_is = false);
    Cx times(exact::Quad c, Cx v, const std::string& note) { return {times(c, v.re, note), times(c, v.im, note)}; }

    // c * v where a lone product v = c' u is taken as (c c') u.
    Val merged(exact::Quad c, Val v, const std::string& note);

    // start + sum of terms in list order, start joining as the policy says:
    // the sums of one block output.
    Val combine(Val start, const std::vector<Term>& terms);

    // v * w(n)^e, w(n) = exp(-2 pi i / n) (forward) or its conjugate: free at
    // quarter turns, two products at odd eighth turns, four otherwise.  At an
    // eighth turn the sum and difference of the parts are multiplied by
    // sqrt(1/2), or with `products_first` the parts are multiplied and then
    // added.
    Cx rotate(Cx v, long e, long n, Direction dir, bool products_first = false);

    // v * (-i) and v * i.
    static Cx times_minus_i(Cx v) { return {v.im, -v.re}; }
    static Cx times_i(Cx v) { return {-v.im, v.re}; }

    // The value in the element precision: a double one rounded once (the
    // same node however often asked).
    Val rounded(Val v);

    // True for a value still in double in a float form (not yet rounded).
    bool wide(Val v) const { return !v.zero() && g_[v.id].prec != policy_.element; }

    // The value in double in the wide form, exact (the same node however
    // often asked); as it is otherwise.
    Val widened(Val v);

    // A node holding the value itself: a negated value costs a subtraction from zero.
    Id node(Val v);

    // The final node of an output, in the element precision: scaled, its sign
    // as the policy says, rounded last where it was still in double.
    Id output(Val v);

private:
    Val twiddled(exact::Quad c, Val v, const std::string& note);
    Id constant(exact::Quad c, const std::string& note);
    Val fold(Val a, Val b);

    Graph& g_;
    Policy policy_;
    std::map<Id, Id> widened_, narrowed_;
    std::map<std::pair<double, Id>, Id> products_;
    struct Factor {
        exact::Quad coef;  // the constant's magnitude
        Val operand;       // in the element's precision, unsigned
    };
    std::map<Id, Factor> factors_;  // product node -> what it multiplied
};

std::string angle_note(const char* fn, long num, long den);

}  // namespace vtxgen
