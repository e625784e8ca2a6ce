#include "mirror.hpp"

#include <stdexcept>
#include <string>

namespace vtxgen {

// a + b with the signs folded as Arith does, each sum or difference formed
// once: a - b found as b - a is taken with its sign turned.
Val Mirror::sum(Val a, Val b)
{
    const bool in_double = in_double_ || (rounding_ == Rounding::AsTheyMeet ? f_.wide(a) && f_.wide(b)
                                                                            : f_.wide(a) || f_.wide(b));
    a = in_double ? f_.widened(a) : f_.rounded(a);
    b = in_double ? f_.widened(b) : f_.rounded(b);
    if (a.zero())
        return b;
    if (b.zero())
        return a;
    Graph& g = f_.graph();
    auto form = [&](bool subtract, Id x, Id y) {
        if (!subtract && y < x)
            std::swap(x, y);
        auto it = formed_.find({subtract, x, y});
        if (it != formed_.end())
            return it->second;
        return formed_[{subtract, x, y}] = subtract ? g.sub(x, y) : g.add(x, y);
    };
    auto difference = [&](Id x, Id y) -> Val {
        if (auto it = formed_.find({true, y, x}); it != formed_.end())
            return {it->second, true};
        return {form(true, x, y), false};
    };
    if (a.neg == b.neg)
        return {form(false, a.id, b.id), a.neg};
    return a.neg ? difference(b.id, a.id) : difference(a.id, b.id);
}

void Mirror::give(Id to, Parts w, bool product)
{
    std::vector<Given>& at = given_[to];
    if (rounding_ == Rounding::AsTheyMeet && !at.empty())
        at.front().w = sum(at.front().w, w);  // added at once, as they meet
    else
        at.push_back({w, product});
}

// The weights given to a node, added up in the order in which the node's
// uses were formed: the reverse of their coming, since the run goes
// backwards and the seeds, the last uses, come first.  Products are the
// terms of a combination; the other weights, added up, are its start value,
// joining where the policy says.
Parts Mirror::total(Id at)
{
    auto it = given_.find(at);
    if (it == given_.end())
        return {};
    return {total(it->second, false), total(it->second, true)};
}

Val Mirror::total(const std::vector<Given>& given, bool odd)
{
    int count = 0;
    for (const Given& g : given)
        count += !(odd ? g.w.odd : g.w.even).zero();
    // In a transform of its own a sum that meets other weights has left its
    // block: it arrives rounded, as a start value does.
    const bool round = rounding_ == Rounding::Transform && count > 1 && !in_double_;
    Val start, terms;
    bool any_start = false;
    for (auto g = given.rbegin(); g != given.rend(); ++g)
        if (!g->product) {
            Val w = odd ? g->w.odd : g->w.even;
            if (w.zero())
                continue;
            if (round)
                w = f_.rounded(w);
            start = any_start ? sum(start, w) : w;
            any_start = true;
        }
    bool joined = !any_start, first = true;
    for (auto g = given.rbegin(); g != given.rend(); ++g) {
        const Val w = odd ? g->w.odd : g->w.even;
        if (!g->product || w.zero())
            continue;
        terms = first ? w : sum(terms, w);
        first = false;
        if (!joined && (f_.policy().start == Policy::Start::AfterFirstTerm || w.neg)) {
            terms = sum(terms, start);
            joined = true;
        }
    }
    return joined ? terms : first ? start : sum(terms, start);
}

void Mirror::seed(Val v, Parts w)
{
    if (v.zero())
        return;
    give(v.id, v.neg ? Parts{-w.even, -w.odd} : w);
}

std::vector<Parts> Mirror::run()
{
    const Id end = static_cast<Id>(source_.nodes().size());
    for (Id id = end - 1; id >= start_; --id) {
        if (!given_.count(id))
            continue;
        in_double_ = in_double_at_.count(id) > 0;
        Parts w = total(id);
        const Node n = source_[id];  // a copy: the run may grow the graph it reads
        switch (n.op) {
        case Op::Add:
        case Op::Sub:
            give(n.a, w);
            give(n.b, n.op == Op::Add ? w : Parts{-w.even, -w.odd});
            break;
        case Op::Widen:
        case Op::Narrow: {
            // The transpose rounds as its own sums and products do; products
            // reach the operand as the terms they are.
            bool products = true;
            for (const Given& g : given_[id])
                products = products && g.product;
            give(n.a, w, products);
            break;
        }
        case Op::Load: given_[id] = {{w, false}}; break;  // an input: its weight stays for the end
        case Op::Mul: {
            const Node k = source_[n.a];
            auto times = [&](Val v) {
                const exact::Quad c = halved_.count(v.id) ? 2 * k.value[0] : exact::Quad(k.value[0]);
                return f_.times(c, v, k.note, in_double_);
            };
            give(n.b, {times(w.even), times(w.odd)}, true);
            break;
        }
        default: throw std::logic_error("mirror: node " + std::to_string(id) + " is not linear arithmetic");
        }
        in_double_ = false;
    }
    std::vector<Parts> out;
    for (const Val& v : inputs_) {
        if (v.zero()) {
            out.push_back({});
            continue;
        }
        const Parts w = total(v.id);
        out.push_back(v.neg ? Parts{-w.even, -w.odd} : w);
    }
    for (const auto& [id, w] : given_)
        if (id < start_) {
            bool input = false;
            for (const Val& v : inputs_)
                input = input || v.id == id;
            if (!input)
                throw std::logic_error("mirror: the graph run backwards reads node " + std::to_string(id) +
                                       ", which is not one of its inputs");
        }
    return out;
}

}  // namespace vtxgen
