#include "lanes.hpp"

#include <algorithm>
#include <tuple>

namespace vtxgen {

int lanes_of(Prec p) { return 16 / bytes_of(p); }

Gather gather(const Graph& g, const Packing& k, const std::vector<Id>& ops)
{
    Gather r;
    const int n = static_cast<int>(ops.size());
    const Prec p = g[ops[0]].prec;
    if (std::all_of(ops.begin(), ops.end(), [&](Id o) { return g[o].op == Op::Const; })) {
        r.kind = Gather::Constant;
        return r;
    }
    auto pack = [&](Id o) { return k.pack_of[static_cast<std::size_t>(o)]; };
    auto lane = [&](Id o) { return k.lane_of[static_cast<std::size_t>(o)]; };
    std::vector<int> sources;
    for (Id o : ops) {
        if (pack(o) < 0)
            sources.push_back(-1);
        else if (std::find(sources.begin(), sources.end(), pack(o)) == sources.end())
            sources.push_back(pack(o));
    }
    const bool packed = std::none_of(sources.begin(), sources.end(), [](int s) { return s < 0; });
    if (packed && sources.size() == 1) {
        r.a = sources[0];
        bool same = true;
        for (int l = 0; l < n; ++l) {
            r.lane[static_cast<std::size_t>(l)] = lane(ops[static_cast<std::size_t>(l)]);
            same = same && lane(ops[static_cast<std::size_t>(l)]) == l;
        }
        r.kind = same ? Gather::Same : Gather::OnePack;
        r.cost = same ? 0 : 1;
        return r;
    }
    if (packed && sources.size() == 2) {
        r.a = sources[0];
        r.b = sources[1];
        std::vector<int> from_a, from_b;
        for (int l = 0; l < n; ++l) {
            const Id o = ops[static_cast<std::size_t>(l)];
            const bool in_a = pack(o) == r.a;
            r.lane[static_cast<std::size_t>(l)] = lane(o) + (in_a ? 0 : 4);
            auto& set = in_a ? from_a : from_b;
            if (std::find(set.begin(), set.end(), lane(o)) == set.end())
                set.push_back(lane(o));
        }
        if (p == Prec::F64) {
            r.kind = Gather::TwoPacks;
            r.cost = 1;
            return r;
        }
        if (from_a.size() <= 2 && from_b.size() <= 2) {
            r.kind = Gather::TwoPacks;
            // One shuffle where a's lanes come first, b's last, else two.
            const bool direct = n == 4 ? r.lane[0] < 4 && r.lane[1] < 4 && r.lane[2] >= 4 && r.lane[3] >= 4
                                       : r.lane[0] < 4 && r.lane[1] >= 4 && r.lane[0] == 0 && r.lane[1] == 4;
            r.cost = direct ? 1 : 2;
            return r;
        }
    }
    r.kind = Gather::Build;
    r.cost = p == Prec::F32 && n == 4 ? 3 : 1;
    for (Id o : ops)
        if (pack(o) >= 0 && lane(o) != 0)
            ++r.cost;  // taken out of its lane first
    return r;
}

namespace {

// The share of a graph's single-lane instructions below which its packing
// is taken.  Measured over the real and Hartley kernels against FFTW, packed
// against single: at a modelled share below 0.85 the packed kernels ran a
// geometric mean 1.16 (float) and 1.02 to 1.24 (double) times faster, from
// 0.85 to 0.9 1.07 and 1.02, from 0.9 to 1 0.96 to 1.01.
constexpr double kWorthIt = 0.9;

// Below this many single-lane instructions a kernel stays single whatever
// its share: lining up a handful of values costs more than the model counts
// (packed, the double inverse of 8 ran 0.68 and the float inverse of 4 0.82
// times as fast).
constexpr int kSmallest = 60;

class Packer {
public:
    Packer(const Graph& g, const std::vector<std::uint8_t>& live) : g_(g), live_(live)
    {
        const std::size_t count = g.nodes().size();
        k_.pack_of.assign(count, -1);
        k_.lane_of.assign(count, 0);
        users_.resize(count);
        above_.resize(count);
        const std::size_t words = (count + 63) / 64;
        for (Id id = 0; id < static_cast<Id>(count); ++id) {
            if (!live_[static_cast<std::size_t>(id)])
                continue;
            const Node& n = g_[id];
            std::vector<std::uint64_t> bits(words, 0);
            for (Id o : {n.a, n.b}) {
                if (o == kNone || g_[o].op == Op::Const)
                    continue;
                users_[static_cast<std::size_t>(o)].push_back(id);
                const auto& from = above_[static_cast<std::size_t>(o)];
                for (std::size_t w = 0; w < words; ++w)
                    bits[w] |= from[w];
                bits[static_cast<std::size_t>(o) / 64] |= std::uint64_t(1) << (o % 64);
            }
            above_[static_cast<std::size_t>(id)] = std::move(bits);
        }
    }

    Packing run(const std::vector<Id>& schedule)
    {
        for (Op op : {Op::Load, Op::Store}) {
            seed(op);
            grow();
        }
        prune();
        cost();
        if (k_.scalar_cost < kSmallest || k_.packed_cost > kWorthIt * k_.scalar_cost)
            clear();
        order(schedule);
        cost();
        return k_;
    }

private:
    bool live(Id id) const { return id != kNone && live_[static_cast<std::size_t>(id)]; }

    bool groupable(Id id) const
    {
        if (!live(id))
            return false;
        const Node& n = g_[id];
        if (n.width != 1)
            return false;
        switch (n.op) {
        case Op::Load:
        case Op::Store:
        case Op::Add:
        case Op::Sub:
        case Op::Mul:
        case Op::Scale:
        case Op::Neg:
        case Op::Narrow: return true;
        case Op::Widen: return g_[n.a].op != Op::Narrow;  // through the scalar barrier only
        default: return false;
        }
    }

    std::tuple<int, int, bool, bool> signature(Id id) const
    {
        const Node& n = g_[id];
        const bool ka = n.a != kNone && g_[n.a].op == Op::Const;
        const bool kb = n.b != kNone && g_[n.b].op == Op::Const;
        return {int(n.op), int(n.prec), ka, kb};
    }

    bool depends(Id x, Id y) const  // y is an ancestor of x
    {
        return above_[static_cast<std::size_t>(x)][static_cast<std::size_t>(y) / 64] >> (y % 64) & 1;
    }

    bool free(Id id) const { return groupable(id) && k_.pack_of[static_cast<std::size_t>(id)] < 0; }

    bool can_pack(const std::vector<Id>& m) const
    {
        // As many lanes as the narrower of result and operand has: two
        // floats narrowed from two doubles.
        const int size = static_cast<int>(m.size());
        const Node& first = g_[m[0]];
        const int width = first.op == Op::Narrow ? 2 : lanes_of(first.prec);
        if (size < 2 || (size != 2 && size != width))
            return false;
        for (int i = 0; i < size; ++i) {
            if (!free(m[i]) || signature(m[i]) != signature(m[0]))
                return false;
            for (int j = 0; j < i; ++j)
                if (m[i] == m[j] || depends(m[i], m[j]) || depends(m[j], m[i]))
                    return false;
        }
        const Node& n = g_[m[0]];
        if (n.op == Op::Load || n.op == Op::Store)
            for (int i = 1; i < size; ++i)
                if (g_[m[i]].offset != n.offset + i)
                    return false;
        return true;
    }

    void make(const std::vector<Id>& m)
    {
        const int p = static_cast<int>(k_.packs.size());
        k_.packs.push_back(m);
        for (std::size_t i = 0; i < m.size(); ++i) {
            k_.pack_of[static_cast<std::size_t>(m[i])] = p;
            k_.lane_of[static_cast<std::size_t>(m[i])] = static_cast<int>(i);
        }
        work_.push_back(p);
    }

    // A run of nodes cut into vectors of `prec`: whole vectors, then a pair.
    void pack_run(const std::vector<Id>& run)
    {
        if (run.empty())
            return;
        const int width = g_[run[0]].op == Op::Narrow ? 2 : lanes_of(g_[run[0]].prec);
        std::size_t at = 0;
        while (at + 2 <= run.size()) {
            const std::size_t take = at + static_cast<std::size_t>(width) <= run.size() ? width : 2;
            std::vector<Id> m(run.begin() + static_cast<long>(at), run.begin() + static_cast<long>(at + take));
            if (can_pack(m)) {
                make(m);
                at += take;
            } else {
                ++at;
            }
        }
    }

    // Loads (or stores) of neighbouring elements.
    void seed(Op op)
    {
        std::vector<Id> all;
        for (Id id = 0; id < static_cast<Id>(g_.nodes().size()); ++id)
            if (free(id) && g_[id].op == op)
                all.push_back(id);
        std::stable_sort(all.begin(), all.end(), [&](Id x, Id y) { return g_[x].offset < g_[y].offset; });
        std::vector<Id> run;
        for (Id id : all) {
            if (!run.empty() && g_[id].offset != g_[run.back()].offset + 1) {
                pack_run(run);
                run.clear();
            }
            run.push_back(id);
        }
        pack_run(run);
    }

    // Of the users of `m` in `slot`, the one most like `like` whose other
    // operand stands where `like`'s does, lane `l` further.
    Id partner(Id m, bool second, Id like, int l, const std::vector<Id>& taken) const
    {
        const Id other = second ? g_[like].a : g_[like].b;
        Id best = kNone;
        int best_score = -1;
        for (Id u : users_[static_cast<std::size_t>(m)]) {
            const Node& n = g_[u];
            if ((second ? n.b : n.a) != m || !free(u) || signature(u) != signature(like) ||
                std::find(taken.begin(), taken.end(), u) != taken.end())
                continue;
            int score = 0;
            const Id o = second ? n.a : n.b;
            if (other != kNone && o != kNone && g_[o].op != Op::Const) {
                const int po = k_.pack_of[static_cast<std::size_t>(other)];
                if (po >= 0 && po == k_.pack_of[static_cast<std::size_t>(o)])
                    score = k_.lane_of[static_cast<std::size_t>(o)] == k_.lane_of[static_cast<std::size_t>(other)] + l ? 2 : 1;
            }
            if (score > best_score) {
                best = u;
                best_score = score;
            }
        }
        return best;
    }

    void grow()
    {
        while (!work_.empty()) {
            const int p = work_.back();
            work_.pop_back();
            const std::vector<Id> m = k_.packs[static_cast<std::size_t>(p)];
            if (m.empty())
                continue;
            for (bool second : {false, true}) {
                std::vector<Id> ops;
                for (Id x : m)
                    ops.push_back(second ? g_[x].b : g_[x].a);
                if (ops[0] == kNone || g_[ops[0]].op == Op::Const)
                    continue;
                pack_run(ops);
            }
            // Users alike in the same slot, from any lanes on.
            for (std::size_t i = 0; i + 1 < m.size(); ++i)
                for (Id u0 : users_[static_cast<std::size_t>(m[i])]) {
                    if (!free(u0))
                        continue;
                    for (bool second : {false, true}) {
                        if ((second ? g_[u0].b : g_[u0].a) != m[i] || !free(u0))
                            continue;
                        std::vector<Id> group{u0};
                        for (std::size_t j = i + 1; j < m.size(); ++j) {
                            const Id u = partner(m[j], second, u0, static_cast<int>(j - i), group);
                            if (u != kNone)
                                group.push_back(u);
                        }
                        pack_run(group);
                    }
                }
        }
    }

    void dissolve(int p)
    {
        for (Id x : k_.packs[static_cast<std::size_t>(p)])
            k_.pack_of[static_cast<std::size_t>(x)] = -1;
        k_.packs[static_cast<std::size_t>(p)].clear();
    }

    void clear()
    {
        for (std::size_t p = 0; p < k_.packs.size(); ++p)
            dissolve(static_cast<int>(p));
    }

    std::vector<Id> operands(const std::vector<Id>& m, bool second) const
    {
        std::vector<Id> ops;
        for (Id x : m)
            ops.push_back(second ? g_[x].b : g_[x].a);
        return ops;
    }

    // Instructions saved by a pack: its members but one, less the lane
    // moves that line its operands up and take its values out for single
    // users.
    int benefit(int p) const
    {
        const auto& m = k_.packs[static_cast<std::size_t>(p)];
        int b = static_cast<int>(m.size()) - 1;
        for (bool second : {false, true}) {
            const std::vector<Id> ops = operands(m, second);
            if (ops[0] != kNone)
                b -= gather(g_, k_, ops).cost;
        }
        for (std::size_t l = 1; l < m.size(); ++l)
            for (Id u : users_[static_cast<std::size_t>(m[l])])
                if (k_.pack_of[static_cast<std::size_t>(u)] < 0) {
                    --b;
                    break;
                }
        return b;
    }

    void prune()
    {
        for (bool changed = true; changed;) {
            changed = false;
            for (std::size_t p = 0; p < k_.packs.size(); ++p)
                if (!k_.packs[p].empty() && benefit(static_cast<int>(p)) < 0) {
                    dissolve(static_cast<int>(p));
                    changed = true;
                }
        }
    }

    void cost()
    {
        k_.scalar_cost = 0;
        k_.packed_cost = 0;
        std::vector<std::uint8_t> taken(g_.nodes().size() * 4, 0);
        for (Id id = 0; id < static_cast<Id>(g_.nodes().size()); ++id) {
            if (!live(id) || g_[id].op == Op::Const)
                continue;
            ++k_.scalar_cost;
            if (k_.pack_of[static_cast<std::size_t>(id)] >= 0)
                continue;
            ++k_.packed_cost;
            for (Id o : {g_[id].a, g_[id].b}) {
                if (o == kNone)
                    continue;
                const int po = k_.pack_of[static_cast<std::size_t>(o)];
                const int lo = k_.lane_of[static_cast<std::size_t>(o)];
                if (po >= 0 && lo > 0 && !taken[static_cast<std::size_t>(po) * 4 + static_cast<std::size_t>(lo)]) {
                    taken[static_cast<std::size_t>(po) * 4 + static_cast<std::size_t>(lo)] = 1;
                    ++k_.packed_cost;
                }
            }
        }
        for (const auto& m : k_.packs) {
            if (m.empty())
                continue;
            ++k_.packed_cost;
            for (bool second : {false, true}) {
                const std::vector<Id> ops = operands(m, second);
                if (ops[0] != kNone)
                    k_.packed_cost += gather(g_, k_, ops).cost;
            }
        }
    }

    // Statements in the schedule's order as far as packs allow: of the
    // statements whose operands are ready, the one whose last member comes
    // first in the schedule.  A pack that waits on itself through another
    // (two packs each feeding the other) is dissolved.
    void order(const std::vector<Id>& schedule)
    {
        const std::size_t count = g_.nodes().size();
        std::vector<int> at(count, -1);
        for (std::size_t i = 0; i < schedule.size(); ++i)
            at[static_cast<std::size_t>(schedule[i])] = static_cast<int>(i);
        for (;;) {
            auto unit = [&](Id x) {
                const int p = k_.pack_of[static_cast<std::size_t>(x)];
                return p >= 0 ? p : ~x;
            };
            std::vector<int> key_pack(k_.packs.size(), -1);
            for (Id x : schedule) {
                const int u = unit(x);
                if (u >= 0)
                    key_pack[static_cast<std::size_t>(u)] = std::max(key_pack[static_cast<std::size_t>(u)], at[static_cast<std::size_t>(x)]);
            }
            std::vector<char> printed(count, 0);
            k_.order.clear();
            // Repeatedly take the ready unit first in the schedule.
            std::vector<int> pending;
            for (Id x : schedule) {
                const int u = unit(x);
                if (u < 0 || at[static_cast<std::size_t>(x)] == key_pack[static_cast<std::size_t>(u)])
                    pending.push_back(u);
            }
            auto members = [&](int u) { return u >= 0 ? k_.packs[static_cast<std::size_t>(u)] : std::vector<Id>{~u}; };
            auto ready = [&](int u) {
                for (Id x : members(u))
                    for (Id o : {g_[x].a, g_[x].b})
                        if (o != kNone && g_[o].op != Op::Const && !printed[static_cast<std::size_t>(o)])
                            return false;
                return true;
            };
            bool stuck = false;
            while (!pending.empty()) {
                std::size_t i = 0;
                while (i < pending.size() && !ready(pending[i]))
                    ++i;
                if (i == pending.size()) {
                    for (int u : pending)
                        if (u >= 0) {
                            dissolve(u);
                            break;
                        }
                    stuck = true;
                    break;
                }
                const int u = pending[i];
                pending.erase(pending.begin() + static_cast<long>(i));
                for (Id x : members(u))
                    printed[static_cast<std::size_t>(x)] = 1;
                k_.order.push_back(u);
            }
            if (!stuck)
                return;
        }
    }

    const Graph& g_;
    const std::vector<std::uint8_t>& live_;
    Packing k_;
    std::vector<std::vector<Id>> users_;
    std::vector<std::vector<std::uint64_t>> above_;
    std::vector<int> work_;
};

}  // namespace

Packing pack_lanes(const Graph& g, const std::vector<std::uint8_t>& live, const std::vector<Id>& schedule)
{
    for (std::size_t i = 0; i < g.nodes().size(); ++i)
        if (live[i] && g.nodes()[i].width != 1) {
            Packing none;
            none.pack_of.assign(g.nodes().size(), -1);
            none.lane_of.assign(g.nodes().size(), 0);
            for (Id x : schedule)
                none.order.push_back(~x);
            return none;
        }
    return Packer(g, live).run(schedule);
}

}  // namespace vtxgen
