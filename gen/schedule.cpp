#include "schedule.hpp"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <numeric>
#include <stdexcept>

namespace vtxgen {

namespace {

// The recursive cut.  `sums_only`: depth counts additions and
// subtractions alone, so that the products, lane moves and sign flips of a
// twiddle stay on the level of the butterfly they feed.
class Cut {
public:
    Cut(const Graph& g, const std::vector<Id>& all, bool sums_only, bool narrowest)
        : g_(g), sums_only_(sums_only), narrowest_(narrowest), member_(g.nodes().size(), 0),
          index_(g.nodes().size(), 0), depth_(g.nodes().size(), 0), reach_(g.nodes().size(), 0)
    {
        order_.reserve(all.size());
        cut(all);
    }

    std::vector<Id> take() { return std::move(order_); }

private:
    // Operands of `id` inside the set marked with `token`.
    template <class F>
    void inner_operands(Id id, int token, F f) const
    {
        const Node& n = g_[id];
        for (Id operand : {n.a, n.b})
            if (operand != kNone && member_[static_cast<std::size_t>(operand)] == token)
                f(operand);
    }

    // `set` is in increasing id order, which is an order of operands before
    // their users (a builder can only name nodes that exist).
    void cut(const std::vector<Id>& set)
    {
        if (set.size() == 1) {
            order_.push_back(set.front());
            return;
        }
        const int token = ++tokens_;
        for (std::size_t i = 0; i < set.size(); ++i) {
            member_[static_cast<std::size_t>(set[i])] = token;
            index_[static_cast<std::size_t>(set[i])] = static_cast<int>(i);
        }

        // Independent pieces, each whole before the next, in the order of
        // their first nodes.
        std::vector<int> root(set.size());
        std::iota(root.begin(), root.end(), 0);
        auto find = [&](int i) {
            while (root[static_cast<std::size_t>(i)] != i)
                i = root[static_cast<std::size_t>(i)] = root[static_cast<std::size_t>(root[static_cast<std::size_t>(i)])];
            return i;
        };
        for (std::size_t i = 0; i < set.size(); ++i)
            inner_operands(set[i], token, [&](Id operand) {
                const int a = find(static_cast<int>(i));
                const int b = find(index_[static_cast<std::size_t>(operand)]);
                root[static_cast<std::size_t>(std::max(a, b))] = std::min(a, b);
            });
        std::vector<int> piece_of(set.size(), -1);
        std::vector<std::vector<Id>> pieces;
        for (std::size_t i = 0; i < set.size(); ++i) {
            const auto r = static_cast<std::size_t>(find(static_cast<int>(i)));
            if (piece_of[r] < 0) {
                piece_of[r] = static_cast<int>(pieces.size());
                pieces.emplace_back();
            }
            pieces[static_cast<std::size_t>(piece_of[r])].push_back(set[i]);
        }
        if (pieces.size() > 1) {
            for (const auto& piece : pieces)
                cut(piece);
            return;
        }

        // One connected piece: the nodes below a level of depth (counted
        // from the piece's own inputs), then the others.
        int deepest = 0;
        for (Id id : set) {
            const Op op = g_[id].op;
            const int step = !sums_only_ || op == Op::Add || op == Op::Sub || op == Op::Load ? 1 : 0;
            int d = 0;
            inner_operands(id, token, [&](Id operand) { d = std::max(d, depth_[static_cast<std::size_t>(operand)] + step); });
            depth_[static_cast<std::size_t>(id)] = d;
            deepest = std::max(deepest, d);
        }
        if (deepest == 0) {  // a chain of lane moves and products: in order
            order_.insert(order_.end(), set.begin(), set.end());
            return;
        }
        int level = (deepest + 1) / 2;
        if (narrowest_) {
            // The level in the middle half that the fewest values cross.
            for (Id id : set)
                reach_[static_cast<std::size_t>(id)] = depth_[static_cast<std::size_t>(id)];
            for (Id id : set)
                inner_operands(id, token, [&](Id operand) {
                    int& r = reach_[static_cast<std::size_t>(operand)];
                    r = std::max(r, depth_[static_cast<std::size_t>(id)]);
                });
            std::vector<int> crossing(static_cast<std::size_t>(deepest) + 2, 0);
            for (Id id : set) {  // a value crosses the levels above its own up to its last user's
                ++crossing[static_cast<std::size_t>(depth_[static_cast<std::size_t>(id)]) + 1];
                --crossing[static_cast<std::size_t>(reach_[static_cast<std::size_t>(id)]) + 1];
            }
            for (std::size_t h = 1; h < crossing.size(); ++h)
                crossing[h] += crossing[h - 1];
            auto better = [&](int h) {
                const int c = crossing[static_cast<std::size_t>(h)], best = crossing[static_cast<std::size_t>(level)];
                return c < best || (c == best && std::abs(2 * h - deepest) < std::abs(2 * level - deepest));
            };
            for (int h = std::max(1, deepest / 4); h <= deepest - deepest / 4; ++h)
                if (better(h))
                    level = h;
        }
        std::vector<Id> first, second;
        for (Id id : set)
            (depth_[static_cast<std::size_t>(id)] < level ? first : second).push_back(id);
        cut(first);
        cut(second);
    }

    const Graph& g_;
    bool sums_only_;
    bool narrowest_;
    std::vector<int> member_;  // the token of the set a node was last seen in
    std::vector<int> index_;   // its position in that set
    std::vector<int> depth_;
    std::vector<int> reach_;  // the deepest level of a node's users in the set
    int tokens_ = 0;
    std::vector<Id> order_;
};


// Each store after its value, each other node after its operands, taken
// output by output in the order the builder made the stores.
std::vector<Id> by_outputs(const Graph& g, const std::vector<Id>& all)
{
    std::vector<bool> in(g.nodes().size(), false), done(g.nodes().size(), false);
    for (Id id : all)
        in[static_cast<std::size_t>(id)] = true;
    std::vector<Id> order;
    order.reserve(all.size());
    auto visit = [&](auto& self, Id id) -> void {
        if (id == kNone || !in[static_cast<std::size_t>(id)] || done[static_cast<std::size_t>(id)])
            return;
        self(self, g[id].a);
        self(self, g[id].b);
        done[static_cast<std::size_t>(id)] = true;
        order.push_back(id);
    };
    for (Id id : all)
        if (g[id].op == Op::Store)
            visit(visit, id);
    for (Id id : all)  // what reaches no store: shuffle operands that give no lane
        visit(visit, id);
    return order;
}

// Each node that only shortens lives by waiting moved to just before its
// first user: a load (its value can be read again), or a node whose operands
// all stay alive past that user anyway.
std::vector<Id> sink(const Graph& g, const std::vector<Id>& order)
{
    const std::size_t count = g.nodes().size();
    std::vector<int> first_use(count, std::numeric_limits<int>::max()), last_use(count, -1);
    for (std::size_t i = 0; i < order.size(); ++i) {
        const Node& n = g[order[i]];
        for (Id operand : {n.a, n.b})
            if (operand != kNone) {
                auto& f = first_use[static_cast<std::size_t>(operand)];
                f = std::min(f, static_cast<int>(i));
                last_use[static_cast<std::size_t>(operand)] = static_cast<int>(i);
            }
    }
    std::vector<bool> waiting(count, false), placed(count, false);
    for (Id id : order) {
        const Node& n = g[id];
        const int first = first_use[static_cast<std::size_t>(id)];
        bool wait = n.op != Op::Store && first != std::numeric_limits<int>::max();
        for (Id operand : {n.a, n.b})
            if (operand != kNone && g[operand].op != Op::Const && g[operand].op != Op::Load)
                wait = wait && last_use[static_cast<std::size_t>(operand)] > first;
        waiting[static_cast<std::size_t>(id)] = wait;
    }
    std::vector<Id> out;
    out.reserve(order.size());
    auto place = [&](auto& self, Id id) -> void {
        if (placed[static_cast<std::size_t>(id)])
            return;
        placed[static_cast<std::size_t>(id)] = true;
        for (Id operand : {g[id].a, g[id].b})
            if (operand != kNone && waiting[static_cast<std::size_t>(operand)])
                self(self, operand);
        out.push_back(id);
    };
    for (Id id : order)
        if (!waiting[static_cast<std::size_t>(id)])
            place(place, id);
    for (Id id : order)  // waiting for a user outside the order: none in a kernel
        place(place, id);
    return out;
}

}  // namespace

std::vector<Id> with_stores_after_loads(const Graph& g, const std::vector<Id>& order)
{
    std::size_t loads_left = 0;
    for (Id id : order)
        loads_left += g[id].op == Op::Load;
    std::vector<Id> out, pending;
    out.reserve(order.size());
    for (Id id : order) {
        if (g[id].op == Op::Store)
            pending.push_back(id);
        else
            out.push_back(id);
        loads_left -= g[id].op == Op::Load;
        if (!loads_left) {
            out.insert(out.end(), pending.begin(), pending.end());
            pending.clear();
        }
    }
    out.insert(out.end(), pending.begin(), pending.end());
    return out;
}

int spill_cost(const Graph& g, const std::vector<Id>& order, int registers)
{
    // Belady's rule over the printed order: a value that does not fit is the
    // one used again last; a computed value put out of its register costs a
    // store the first time and a load at each return.  Loaded values and
    // constants are read again from memory and cost nothing here.
    const std::size_t count = g.nodes().size();
    std::vector<std::vector<int>> uses(count);
    for (std::size_t i = 0; i < order.size(); ++i) {
        const Node& n = g[order[i]];
        for (Id operand : {n.a, n.b})
            if (operand != kNone && g[operand].op != Op::Const)
                uses[static_cast<std::size_t>(operand)].push_back(static_cast<int>(i));
    }
    std::vector<std::size_t> next(count, 0);  // index into uses of the next use
    auto next_use = [&](Id v) {
        const auto& u = uses[static_cast<std::size_t>(v)];
        const std::size_t k = next[static_cast<std::size_t>(v)];
        return k < u.size() ? u[k] : std::numeric_limits<int>::max();
    };
    std::vector<bool> held(count, false), stored(count, false);
    std::vector<Id> regs;
    int cost = 0;
    for (std::size_t i = 0; i < order.size(); ++i) {
        const Id id = order[i];
        const Node& n = g[id];
        for (Id operand : {n.a, n.b}) {
            if (operand == kNone || g[operand].op == Op::Const)
                continue;
            if (!held[static_cast<std::size_t>(operand)]) {
                cost += g[operand].op != Op::Load;
                held[static_cast<std::size_t>(operand)] = true;
                regs.push_back(operand);
            }
        }
        for (Id operand : {n.a, n.b})
            if (operand != kNone && g[operand].op != Op::Const)
                ++next[static_cast<std::size_t>(operand)];
        if (n.op != Op::Store) {
            held[static_cast<std::size_t>(id)] = true;
            regs.push_back(id);
        }
        std::erase_if(regs, [&](Id v) {
            const bool dead = next_use(v) == std::numeric_limits<int>::max();
            if (dead)
                held[static_cast<std::size_t>(v)] = false;
            return dead;
        });
        while (static_cast<int>(regs.size()) > registers) {
            auto far = std::max_element(regs.begin(), regs.end(),
                                        [&](Id a, Id b) { return next_use(a) < next_use(b); });
            const Id v = *far;
            regs.erase(far);
            held[static_cast<std::size_t>(v)] = false;
            if (g[v].op != Op::Load && !stored[static_cast<std::size_t>(v)]) {
                stored[static_cast<std::size_t>(v)] = true;
                ++cost;
            }
        }
    }
    return cost;
}

std::vector<std::vector<Id>> schedule_candidates(const Graph& g, const std::vector<std::uint8_t>& live)
{
    std::vector<Id> all;
    for (std::size_t i = 0; i < live.size(); ++i)
        if (live[i] && g.nodes()[i].op != Op::Const)
            all.push_back(static_cast<Id>(i));
    return {
        sink(g, all),
        sink(g, Cut(g, all, false, false).take()),
        sink(g, Cut(g, all, true, false).take()),
        sink(g, Cut(g, all, false, true).take()),
        sink(g, Cut(g, all, true, true).take()),
        sink(g, by_outputs(g, all)),
    };
}

std::vector<Id> schedule(const Graph& g, const std::vector<std::uint8_t>& live, bool in_place)
{
    auto candidates = schedule_candidates(g, live);
    if (in_place)
        for (auto& order : candidates)
            order = with_stores_after_loads(g, order);
    std::size_t best = 0;
    int best_cost = std::numeric_limits<int>::max();
    for (std::size_t c = 0; c < candidates.size(); ++c) {
        const int cost = spill_cost(g, candidates[c], kRegisters);
        if (cost < best_cost) {
            best_cost = cost;
            best = c;
        }
    }
    return candidates[best];
}

}  // namespace vtxgen
