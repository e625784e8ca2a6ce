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
};

class Arith {
public:
    // `wide`: products with constants and their sums run in double and round
    // once to float (the scalar float kernels of sizes 3 and 5).
    Arith(Graph& g, Prec prec, int width, bool wide = false)
        : g_(g), prec_(prec), width_(width), wide_(wide)
    {
    }

    Graph& graph() { return g_; }
    Prec prec() const { return prec_; }
    int width() const { return width_; }

    Val add(Val a, Val b);
    Val sub(Val a, Val b) { return add(a, -b); }
    Cx add(Cx a, Cx b) { return {add(a.re, b.re), add(a.im, b.im)}; }
    Cx sub(Cx a, Cx b) { return {sub(a.re, b.re), sub(a.im, b.im)}; }

    // |c| * v with the sign of c kept aside.
    Val times(exact::Quad c, Val v, const std::string& note);
    Cx times(exact::Quad c, Cx v, const std::string& note) { return {times(c, v.re, note), times(c, v.im, note)}; }

    // start + sum of terms, left to right; start joins after the first product.
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

    // A node holding the value itself: a negated value costs a subtraction from zero.
    Id node(Val v);

private:
    Id constant(exact::Quad c, const std::string& note);
    Val lift(Val v);

    Graph& g_;
    Prec prec_;
    int width_;
    bool wide_;
    std::map<Id, Id> widened_;
    std::map<std::pair<double, Id>, Id> products_;
};

std::string angle_note(const char* fn, long num, long den);

}  // namespace vtxgen
