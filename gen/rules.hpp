// Decomposition rules, as data.
//
// A rule is written in the notation of the size table:
//   2, 3, 4, 5, 7, 11    a block of that size (direct for the odd primes)
//   5w                   the reduced five-point block
//   CT(a,b)              Cooley-Tukey: a-point blocks first, twiddles, b-point blocks
//   PF(a,b)              Good-Thomas: a-point blocks first, no twiddles
//   R(n)                 the real-coefficient recursion of the two-lane double form
//   Rader(rule)          a prime P by Rader's rule: `rule` is the inner
//                        transform of length P - 1.  On real data the
//                        second transform's parts take the stages of `rule`,
//                        the negacyclic part with its first stage's blocks
//                        twiddled where their length is odd; after the
//                        parenthesis "t" twiddles both parts so, "p"
//                        neither, and "d" keeps the 11-point blocks of the
//                        second transform direct
//   Chirp(P,rule)        a prime P by the chirp rule over a transform `rule`
//                        of length Q >= 2P - 1
// Either factor of CT and PF may itself be a rule.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace vtxgen {

struct Rule {
    enum class Kind { Block, CT, PF, R, Rader, Chirp };
    Kind kind = Kind::Block;
    int size = 0;         // points of the transform this rule computes
    std::string variant;  // block: "" (direct), "w" (reduced five-point); Rader: "t", "p", "d"
    std::shared_ptr<const Rule> first, second;

    static Rule parse(const std::string& text);
    std::string text() const;
};

// One row of the complex table: the rule of each precision for one size.
struct ComplexRow {
    int size;
    const char* f32;
    const char* f64;
};

const std::vector<ComplexRow>& complex_rows();

// One row of the real table: the rules of the real kernels of one size, the
// same in both precisions.  The inverse kernel is the transpose of the
// forward transform of `inverse`.
struct RealRow {
    int size;
    const char* forward;
    const char* inverse;
};

const std::vector<RealRow>& real_rows();

// One row of the Hartley table: whether the kernel forms the pairs
// x(j) + x(n-j), x(j) - x(n-j) first (and runs the transpose of `rule`'s
// forward transform on them) or ends the forward transform of `rule` with
// a stage of pairs; the same in both precisions.
struct HartleyRow {
    int size;
    bool pairs_first;
    const char* rule;
};

const std::vector<HartleyRow>& hartley_rows();

}  // namespace vtxgen
