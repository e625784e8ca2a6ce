#include "arith.hpp"

#include <stdexcept>

namespace vtxgen {

std::string angle_note(const char* fn, long num, long den)
{
    return std::string("|") + fn + "(2*pi*" + std::to_string(num) + "/" + std::to_string(den) + ")|";
}

// a + b on two nodes of one precision, the signs folded into the operation.
Val Arith::fold(Val a, Val b)
{
    if (a.zero())
        return b;
    if (b.zero())
        return a;
    if (!a.neg && !b.neg)
        return {g_.add(a.id, b.id), false};
    if (!a.neg)
        return {g_.sub(a.id, b.id), false};
    if (!b.neg)
        return {g_.sub(b.id, a.id), false};
    return {g_.add(a.id, b.id), true};
}

Val Arith::add(Val a, Val b)
{
    const Val rb = rounded(b);  // b's rounding first, as the kernels have it (graph.hpp)
    return fold(rounded(a), rb);
}

Val Arith::sum(Val a, Val b)
{
    if (!wide(a) && !wide(b))
        return fold(a, b);
    const Val wb = widened(b);  // b first, as the kernels have it (graph.hpp)
    return fold(widened(a), wb);
}

Id Arith::constant(exact::Quad c, const std::string& note)
{
    const Prec p = policy_.wide ? Prec::F64 : policy_.element;
    const double v = p == Prec::F32 ? double(exact::to_float(c)) : exact::to_double(c);
    return g_.splat(p, policy_.width, v, note);
}

Val Arith::rounded(Val v)
{
    if (!wide(v))
        return v;
    auto it = narrowed_.find(v.id);
    const Id r = it != narrowed_.end() ? it->second : narrowed_[v.id] = g_.narrow(v.id);
    return {r, v.neg};
}

Val Arith::widened(Val v)
{
    if (!policy_.wide || v.zero() || wide(v))
        return v;
    auto it = widened_.find(v.id);
    const Id w = it != widened_.end() ? it->second : widened_[v.id] = g_.widen(v.id);
    return {w, v.neg};
}

Val Arith::times(exact::Quad c, Val v, const std::string& note, bool as_is)
{
    if (v.zero() || c == 0)
        return {};
    const bool negative = c < 0;
    as_is = as_is && wide(v);
    const Val x = as_is ? v : widened(rounded(v));
    const Id k = constant(negative ? -c : c, note);
    // One product of a constant and a value, however often the block asks.
    const auto key = std::make_pair(g_[k].value[0], x.id);
    auto it = products_.find(key);
    const Id prod = it != products_.end() ? it->second : products_[key] = g_.mul(k, x.id);
    if (!as_is)  // a product of a double sum is never merged
        factors_[prod] = {negative ? -c : c, {rounded(v).id, false}};
    return {prod, x.neg != negative};
}

// A twiddle product: where the policy merges constants and v is a product
// c' u, the twiddle multiplies u by c c' instead.
Val Arith::twiddled(exact::Quad c, Val v, const std::string& note)
{
    return policy_.merged_constants ? merged(c, v, note) : times(c, v, note);
}

Val Arith::merged(exact::Quad c, Val v, const std::string& note)
{
    if (auto it = factors_.find(v.id); !v.zero() && it != factors_.end())
        return times(c * (v.neg ? -it->second.coef : it->second.coef), it->second.operand, note);
    return times(c, v, note);
}

Val Arith::combine(Val start, const std::vector<Term>& terms)
{
    start = rounded(start);  // a value from another block arrives rounded
    Val acc;
    bool joined = start.zero();
    for (const Term& t : terms) {
        const Val p = t.merged ? merged(t.coef, t.value, t.note) : times(t.coef, t.value, t.note);
        acc = sum(acc, p);
        if (!joined && (policy_.start == Policy::Start::AfterFirstTerm || p.neg)) {
            acc = sum(acc, start);
            joined = true;
        }
    }
    return joined ? acc : sum(acc, start);
}

Cx Arith::rotate(Cx v, long e, long n, Direction dir, bool products_first)
{
    e %= n;
    if (e < 0)
        e += n;
    if (dir == Direction::Inverse)
        e = (n - e) % n;  // the conjugate root
    if (e == 0)
        return v;
    if ((4 * e) % n == 0) {
        switch (4 * e / n) {
        case 1: return times_minus_i(v);
        case 2: return -v;
        default: return times_i(v);
        }
    }
    const std::string what = "w(" + std::to_string(n) + ")^" + std::to_string(e);
    if ((8 * e) % n == 0) {
        // z w(8)^k from p = h (re + im) and q = h (im - re)
        const exact::Quad h = exact::cos_2pi(1, 8);
        Val p, q;
        if (products_first) {
            const Val hr = times(h, v.re, "sqrt(1/2)"), hi = times(h, v.im, "sqrt(1/2)");
            p = sum(hr, hi);
            q = sum(hi, -hr);
        } else {
            p = times(h, add(v.re, v.im), "sqrt(1/2)");
            q = times(h, sub(v.im, v.re), "sqrt(1/2)");
        }
        switch (8 * e / n) {
        case 1: return {p, q};
        case 3: return {q, -p};
        case 5: return {-p, -q};
        default: return {-q, p};
        }
    }
    const exact::Quad c = exact::cos_2pi(e, n), s = -exact::sin_2pi(e, n);  // w^e = c + i s
    const Val rc = twiddled(c, v.re, "cos of " + what), is = twiddled(s, v.im, "sin of " + what);
    const Val rs = twiddled(s, v.re, "sin of " + what), ic = twiddled(c, v.im, "cos of " + what);
    return {sum(rc, -is), sum(rs, ic)};
}

Id Arith::node(Val v)
{
    v = rounded(v);
    if (v.zero())
        return g_.splat(policy_.element, policy_.width, 0.0, "zero");
    if (!v.neg)
        return v.id;
    return g_.sub(g_.splat(policy_.element, policy_.width, 0.0, "zero"), v.id);
}

Id Arith::output(Val v)
{
    if (policy_.sign == Policy::Sign::BeforeScale)
        return g_.scale(node(v));
    if (v.zero())
        return g_.scale(g_.splat(policy_.element, policy_.width, 0.0, "zero"));
    Id r = g_.scale(v.id);
    if (v.neg)
        r = g_.neg(r);
    return wide(v) ? g_.narrow(r) : r;
}

}  // namespace vtxgen
