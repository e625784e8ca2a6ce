#include "mirror.hpp"

#include <stdexcept>
#include <string>

namespace vtxgen {

// a + b with the signs folded as Arith does, each sum or difference formed
// once: a - b found as b - a is taken with its sign turned.
Val Mirror::sum(Val a, Val b)
{
    // Two weights still in double (products, or sums of them) add in double;
    // a weight meeting a rounded one is rounded first.
    if (!(f_.wide(a) && f_.wide(b))) {
        a = f_.rounded(a);
        b = f_.rounded(b);
    }
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

void Mirror::give(Id to, Parts w)
{
    auto it = weight_.find(to);
    if (it == weight_.end())
        weight_[to] = w;
    else
        it->second = sum(it->second, w);
}

void Mirror::seed(Val v, Parts w)
{
    if (v.zero())
        return;
    give(v.id, v.neg ? Parts{-w.even, -w.odd} : w);
}

std::vector<Parts> Mirror::run()
{
    const Graph& g = f_.graph();
    const Id end = static_cast<Id>(g.nodes().size());
    for (Id id = end - 1; id >= start_; --id) {
        auto it = weight_.find(id);
        if (it == weight_.end())
            continue;
        const Parts w = it->second;
        const Node n = g[id];
        switch (n.op) {
        case Op::Add:
            give(n.a, w);
            give(n.b, w);
            break;
        case Op::Sub:
            give(n.a, w);
            give(n.b, {-w.even, -w.odd});
            break;
        case Op::Widen:
        case Op::Narrow: give(n.a, w); break;  // the transpose rounds as its own sums and products do
        case Op::Mul: {
            const Node k = g[n.a];  // a copy: the products below grow the graph
            const exact::Quad c = k.value[0];
            give(n.b, {f_.times(c, w.even, k.note), f_.times(c, w.odd, k.note)});
            break;
        }
        default: throw std::logic_error("mirror: node " + std::to_string(id) + " is not linear arithmetic");
        }
    }
    std::vector<Parts> out;
    for (const Val& v : inputs_) {
        if (v.zero()) {
            out.push_back({});
            continue;
        }
        auto it = weight_.find(v.id);
        const Parts w = it == weight_.end() ? Parts{} : it->second;
        out.push_back(v.neg ? Parts{-w.even, -w.odd} : w);
    }
    for (const auto& [id, w] : weight_)
        if (id < start_) {
            bool input = false;
            for (const Val& v : inputs_)
                input = input || v.id == id;
            if (!input)
                throw std::logic_error("mirror: the first transform reads node " + std::to_string(id) +
                                       ", which is not one of its inputs");
        }
    return out;
}

}  // namespace vtxgen
