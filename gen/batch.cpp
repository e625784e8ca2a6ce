#include "batch.hpp"

#include "complex.hpp"
#include "real.hpp"
#include "schedule.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <map>
#include <sstream>
#include <set>
#include <stdexcept>

namespace vtxgen {

namespace {

void require(bool ok, const std::string& what)
{
    if (!ok)
        throw std::logic_error("batch: " + what);
}

// Lanes an access moves: a half of a four-lane node, or all of them.
int lanes_moved(const Node& n)
{
    return n.access == Access::Low || n.access == Access::High ? 2 : n.width;
}

// The graph's nodes lane by lane, in the graph's order.
class Apart {
public:
    explicit Apart(const Graph& g) : g_(g), live_(g.live_lanes()), lane_(g.nodes().size()), out_{Graph(g.element()), {}}
    {
        for (auto& l : lane_)
            l.fill(kNone);
        for (std::size_t i = 0; i < g.nodes().size(); ++i)
            if (live_[i])
                node(static_cast<Id>(i));
        check_destination();
    }

    LaneGraph take() { return std::move(out_); }

private:
    Graph& ng() { return out_.graph; }

    // The value of lane l of node `of`; a constant becomes a node when an
    // operation first takes it (a constant that is only stored never does).
    Id raw(Id of, int l) const
    {
        const Id v = lane_[static_cast<std::size_t>(of)][static_cast<std::size_t>(l)];
        require(v != kNone, "an operand lane that was not formed");
        return v;
    }

    Id operand(Id of, int l)
    {
        const Id v = raw(of, l);
        if (v >= 0)
            return v;
        Pending& c = pending_[static_cast<std::size_t>(-2 - v)];
        if (c.made == kNone)
            c.made = ng().constant(c.prec, 1, {c.value}, c.note);
        return c.made;
    }

    Id pending(Prec p, double value, std::string note)
    {
        pending_.push_back({p, value, std::move(note), kNone});
        return static_cast<Id>(-2 - static_cast<Id>(pending_.size() - 1));
    }

    // One memory component of the source, read once however often the graph loads it.
    Id load(Prec p, int component)
    {
        auto found = loads_.find(component);
        if (found != loads_.end())
            return found->second;
        const Id id = ng().load(p, 1, Access::Scalar, static_cast<int>(out_.at.source.size()));
        out_.at.source.push_back(component);
        loads_[component] = id;
        return id;
    }

    void store(const Node& n)
    {
        const int first = n.access == Access::High ? 2 : 0;
        for (int j = 0; j < lanes_moved(n); ++j) {
            const int component = n.offset + j;
            require(!stored_.count(component), "component " + std::to_string(component) + " is stored twice");
            stored_.insert(component);
            const Id r = raw(n.a, first + j);
            if (r < kNone) {
                const double value = pending_[static_cast<std::size_t>(-2 - r)].value;
                require(value == 0 && !std::signbit(value), "a stored constant other than +0");
                out_.at.zeros.push_back(component);
                continue;
            }
            const Id v = operand(n.a, first + j);
            ng().store(v, Access::Scalar, static_cast<int>(out_.at.destination.size()));
            out_.at.destination.push_back(component);
        }
    }

    void node(Id id)
    {
        const Node& n = g_[id];
        if (n.op == Op::Store) {
            store(n);
            return;
        }
        auto& mine = lane_[static_cast<std::size_t>(id)];
        for (int l = 0; l < n.width; ++l) {
            if (!(live_[static_cast<std::size_t>(id)] >> l & 1))
                continue;
            Id& v = mine[static_cast<std::size_t>(l)];
            switch (n.op) {
            case Op::Load:
                // Lanes past a half load hold zeros, as the load clears them.
                v = l < lanes_moved(n) ? load(n.prec, n.offset + l) : pending(n.prec, 0.0, "a lane past the source");
                break;
            case Op::Const: v = pending(n.prec, n.value[static_cast<std::size_t>(l)], n.note); break;
            case Op::Add:
            case Op::Sub:
            case Op::Mul: {
                // The operands in statements of their own, the second first:
                // taking one may create a constant's node, and the nodes'
                // order (their names, the notes printed) must not follow the
                // compiler's order of evaluating a call's arguments.
                const Id b = operand(n.b, l);
                const Id a = operand(n.a, l);
                v = n.op == Op::Add ? ng().add(a, b) : n.op == Op::Sub ? ng().sub(a, b) : ng().mul(a, b);
                break;
            }
            case Op::Mask: v = ng().mask(operand(n.a, l), {g_[n.b].value[static_cast<std::size_t>(l)] != 0}); break;
            case Op::Scale: v = ng().scale(operand(n.a, l)); break;
            case Op::Neg: v = ng().neg(operand(n.a, l)); break;
            case Op::Widen: v = ng().widen(operand(n.a, l)); break;
            case Op::Narrow: v = ng().narrow(operand(n.a, l)); break;
            case Op::FlipSign: v = n.sel[static_cast<std::size_t>(l)] ? ng().flip_sign(operand(n.a, l), {true}) : raw(n.a, l); break;
            case Op::Swap: v = raw(n.a, 1 - l); break;
            case Op::Shuffle: {
                const int s = n.sel[static_cast<std::size_t>(l)];
                v = raw(s < n.width ? n.a : n.b, s % n.width);
                break;
            }
            case Op::Store: break;
            }
        }
    }

    // Every component up to the last one written is written: the batch
    // writes whole blocks of components and must not invent any.
    void check_destination() const
    {
        if (stored_.empty())
            return;
        const int last = *stored_.rbegin();
        require(static_cast<int>(stored_.size()) == last + 1, "the destination has components the kernel does not write");
    }

    const Graph& g_;
    std::vector<std::uint8_t> live_;
    std::vector<std::array<Id, 4>> lane_;
    struct Pending {
        Prec prec;
        double value;
        std::string note;
        Id made;
    };
    std::vector<Pending> pending_;  // lane ids -2, -3, ...
    std::map<int, Id> loads_;
    std::set<int> stored_;
    LaneGraph out_;
};

// Constants are the same only with the same bits (-0 is not +0).
bool same_bits(double u, double v)
{
    return std::bit_cast<std::uint64_t>(u) == std::bit_cast<std::uint64_t>(v);
}

bool same_node(const Node& x, const Node& y)
{
    return x.op == y.op && x.prec == y.prec && x.width == y.width && x.access == y.access && x.a == y.a &&
           x.b == y.b && x.offset == y.offset && x.sel == y.sel &&
           std::equal(x.value.begin(), x.value.end(), y.value.begin(), same_bits);
}

bool same_arithmetic(const Graph& x, const Graph& y)
{
    return x.nodes().size() == y.nodes().size() &&
           std::equal(x.nodes().begin(), x.nodes().end(), y.nodes().begin(), same_node);
}

// ---- printing

const char* type_of(Prec p) { return p == Prec::F32 ? "Vf" : "Vd"; }

// A float kernel holds each of its double values in two vectors, the low
// and the high half of its W lanes: `t5` and `t5h`.
class CorePrinter {
public:
    explicit CorePrinter(const BatchCore& c)
        : c_(c), g_(c.graph), prec_(c.kernels.front().text.prec), at_(c.kernels.front().at)
    {
    }

    std::string print()
    {
        const KernelText& first = c_.kernels.front().text;
        const Counts counts = g_.count();
        const char* real = prec_ == Prec::F32 ? "float" : "double";
        const char* v = type_of(prec_);
        out_ << "// " << c_.name << ": " << first.summary << "; " << counts.additions << " additions, "
             << counts.multiplications << " multiplications";
        if (c_.kernels.size() > 1) {
            out_ << "; also for";
            for (std::size_t i = 1; i < c_.kernels.size(); ++i)
                out_ << " " << c_.kernels[i].text.name.substr(4);
        }
        out_ << "\nvoid " << c_.name << "(const " << real << "* in, " << real << "* out, " << real << " s)\n{\n"
             << "    const " << v << "* x = reinterpret_cast<const " << v << "*>(in);\n"
             << "    " << v << "* y = reinterpret_cast<" << v << "*>(out);\n";
        for (std::size_t i = 0; i < g_.nodes().size(); ++i)
            if (g_.nodes()[i].op == Op::Const)
                constant(static_cast<Id>(i));
        bool scale = false, wide_scale = false;
        for (const Node& n : g_.nodes())
            if (n.op == Op::Scale)
                (n.prec == prec_ ? scale : wide_scale) = true;
        if (scale || wide_scale)
            out_ << "    const " << v << " sv = " << (prec_ == Prec::F32 ? "splat_f" : "splat_d") << "(s);\n";
        if (wide_scale)
            out_ << "    const Vd svw = widen_low(sv);  // s in every lane\n";
        for (Id id : schedule(g_, g_.live_lanes(), false))
            statement(id);
        out_ << "}\n\n";
        return out_.str();
    }

private:
    bool split(Id id) const { return prec_ == Prec::F32 && g_[id].prec == Prec::F64; }

    // The name of a value, or of one half of a split value; a constant is
    // the same in both halves.
    std::string name(Id id, int half = 0) const
    {
        return names_.at(id) + (half && g_[id].op != Op::Const ? "h" : "");
    }

    void constant(Id id)
    {
        const Node& n = g_[id];
        std::uint64_t bits;
        std::memcpy(&bits, &n.value[0], sizeof bits);
        const auto key = std::make_pair(n.prec, bits);
        auto found = constants_.find(key);
        if (found != constants_.end()) {
            names_[id] = found->second;
            return;
        }
        const std::string k = "k" + std::to_string(constants_.size());
        constants_[key] = k;
        names_[id] = k;
        char value[64];
        std::snprintf(value, sizeof value, "%.17g", n.value[0]);
        out_ << "    const " << type_of(n.prec) << " " << k << " = " << (n.prec == Prec::F32 ? "splat_f(" : "splat_d(")
             << literal(n.value[0], n.prec) << ");  // " << value << (n.note.empty() ? "" : ": " + n.note) << "\n";
    }

    void statement(Id id)
    {
        const Node& n = g_[id];
        const std::string t = "t" + std::to_string(id);
        names_[id] = t;
        auto line = [&](const std::string& declared, const std::string& expr) {
            out_ << "    const " << type_of(n.prec) << " " << declared << " = " << expr << ";\n";
        };
        auto call = [&](const char* fn, int half) {
            return std::string(fn) + "(" + name(n.a, half) + (n.b == kNone ? "" : ", " + name(n.b, half)) + ")";
        };
        const char* fn = nullptr;
        switch (n.op) {
        case Op::Load: line(t, "x[" + std::to_string(at_.source[static_cast<std::size_t>(n.offset)]) + "]"); return;
        case Op::Store:
            out_ << "    y[" << at_.destination[static_cast<std::size_t>(n.offset)] << "] = " << name(n.a) << ";\n";
            return;
        case Op::Widen:
            line(t, "widen_low(" + name(n.a) + ")");
            line(t + "h", "widen_high(" + name(n.a) + ")");
            return;
        case Op::Narrow: line(t, "narrow(" + name(n.a, 0) + ", " + name(n.a, 1) + ")"); return;
        case Op::Scale:
            for (int half = 0; half < (split(id) ? 2 : 1); ++half)
                line(half ? t + "h" : t, "mul(" + name(n.a, half) + (split(id) ? ", svw)" : ", sv)"));
            return;
        case Op::Add: fn = "add"; break;
        case Op::Sub: fn = "sub"; break;
        case Op::Mul:
        case Op::Mask: fn = "mul"; break;
        case Op::Neg: fn = "neg0"; break;
        case Op::FlipSign: fn = "flip"; break;
        case Op::Const: return;
        case Op::Swap:
        case Op::Shuffle: throw std::logic_error("batch: a lane move in a graph with its lanes apart");
        }
        for (int half = 0; half < (split(id) ? 2 : 1); ++half)
            line(half ? t + "h" : t, call(fn, half));
    }

    const BatchCore& c_;
    const Graph& g_;
    Prec prec_;
    const Placement& at_;  // the core's arrays are indexed as its first kernel's memory
    std::map<Id, std::string> names_;
    std::map<std::pair<Prec, std::uint64_t>, std::string> constants_;
    std::ostringstream out_;
};

// ---- the kernels of a family

std::vector<BatchKernel> family_kernels(const std::string& kind, const std::string& dir, Prec p)
{
    std::vector<BatchKernel> out;
    if (kind == "complex") {
        for (const ComplexKernel& k : complex_kernels())
            if (k.prec == p && (k.direction == Direction::Forward) == (dir == "fwd"))
                out.push_back({k.text(), k.size, k.size, {}});
    } else if (kind == "real") {
        const std::vector<RealKernel> ks =
            dir == "hartley" ? hartley_kernels() : real_kernels(dir == "fwd" ? Direction::Forward : Direction::Inverse);
        for (const RealKernel& k : ks)
            if (k.prec == p)
                out.push_back({k.text(), k.source_length(), k.destination_length(), {}});
    } else {
        throw std::invalid_argument("batch: no family " + kind + " " + dir);
    }
    return out;
}

}  // namespace

LaneGraph lanes_apart(const Graph& g)
{
    return Apart(g).take();
}

std::vector<BatchCore> batch_cores(const std::string& kind, const std::string& dir, Prec p, int from, int to)
{
    std::vector<BatchCore> cores;
    std::vector<BatchKernel> kernels = family_kernels(kind, dir, p);
    std::stable_sort(kernels.begin(), kernels.end(),
                     [](const BatchKernel& a, const BatchKernel& b) { return a.text.size < b.text.size; });
    std::size_t first_of_size = 0;
    for (BatchKernel& k : kernels) {
        if (k.text.size < from || k.text.size > to)
            continue;
        LaneGraph lanes = lanes_apart(k.text.graph);
        k.at = std::move(lanes.at);
        if (!cores.empty() && cores.back().kernels.front().text.size != k.text.size)
            first_of_size = cores.size();
        std::size_t same = first_of_size;
        while (same < cores.size() && !same_arithmetic(cores[same].graph, lanes.graph))
            ++same;
        if (same == cores.size())
            cores.push_back({k.text.name.substr(4), std::move(lanes.graph), {}});
        cores[same].kernels.push_back(std::move(k));
    }
    return cores;
}

std::string emit_batch_unit(const std::vector<BatchCore>& cores)
{
    std::ostringstream o;
    o << "// Generated by vtxgen-gen: kernels across transforms, one transform per lane. Do not edit.\n"
      << "// Compiled once per instruction set; batch/lanes.hpp gives the vectors of the set.\n"
      << "#include \"batch/lanes.hpp\"\n\n"
      << "namespace vtx::batch::VTX_BATCH_SET {\n\n";
    for (const BatchCore& c : cores)
        o << CorePrinter(c).print();
    o << "}  // namespace vtx::batch::VTX_BATCH_SET\n";
    return o.str();
}

std::string emit_batch_tables()
{
    struct Family {
        std::string kind, dir;
    };
    const Family families[] = {{"complex", "fwd"}, {"complex", "inv"}, {"real", "fwd"}, {"real", "inv"}, {"real", "hartley"}};
    std::ostringstream decls, maps, tables;
    std::map<std::vector<int>, std::string> map_names;
    auto map_name = [&](const std::vector<int>& m) {
        auto found = map_names.find(m);
        if (found != map_names.end())
            return found->second;
        std::string name = "m" + std::to_string(map_names.size());
        map_names[m] = name;
        maps << "constexpr std::int16_t " << name << "[] = {";
        for (std::size_t i = 0; i < m.size(); ++i)
            maps << (i ? ", " : "") << m[i];
        maps << "};\n";
        return name;
    };
    for (const Family& f : families)
        for (Prec p : {Prec::F32, Prec::F64}) {
            const char* real = p == Prec::F32 ? "float" : "double";
            // The kernels of each table, by the table's name: the kernel's name
            // without its size.
            std::map<std::string, std::vector<std::pair<const BatchKernel*, const BatchCore*>>> by_table;
            const std::vector<BatchCore> cores = batch_cores(f.kind, f.dir, p, 2, 64);
            for (const BatchCore& c : cores) {
                decls << "VTX_BATCH_DECLARE(" << real << ", " << c.name << ")\n";
                for (const BatchKernel& k : c.kernels) {
                    const std::string size = "_" + std::to_string(k.text.size) + "_";
                    const std::string& name = k.text.name;
                    const std::size_t at = name.rfind(size);
                    by_table[name.substr(4, at - 4) + name.substr(at + size.size() - 1)].push_back({&k, &c});
                }
            }
            for (auto& [table, entries] : by_table) {
                std::sort(entries.begin(), entries.end(),
                          [](const auto& a, const auto& b) { return a.first->text.size < b.first->text.size; });
                require(entries.size() == 63 && entries.front().first->text.size == 2, table + " lacks sizes");
                tables << "extern const Family<" << real << "> " << table << " = {Scaling::"
                       << entries.front().first->text.scaling << ", {\n";
                for (const auto& [k, c] : entries) {
                    // Memory component -> index in the core's arrays (its first
                    // kernel's memory); -1: read by no operation, or written as
                    // +0.  A map of the first kernel itself is left out.
                    const Placement& core = c->kernels.front().at;
                    std::vector<int> from(static_cast<std::size_t>(k->text.graph.source_components()), -1);
                    for (std::size_t i = 0; i < k->at.source.size(); ++i)
                        from[static_cast<std::size_t>(k->at.source[i])] = core.source[i];
                    std::vector<int> to(k->at.destination.size() + k->at.zeros.size(), -1);
                    for (std::size_t i = 0; i < k->at.destination.size(); ++i)
                        to[static_cast<std::size_t>(k->at.destination[i])] = core.destination[i];
                    const bool own = k == &c->kernels.front();
                    const auto [inv_n, inv_sqrt_n] = scale_literals(k->text.size, p);
                    tables << "    {" << from.size() << ", " << to.size() << ", " << k->source_elements << ", "
                           << k->destination_elements << ", " << (own ? "nullptr" : map_name(from)) << ", "
                           << (own ? "nullptr" : map_name(to)) << ", " << inv_n << ", " << inv_sqrt_n
                           << ", VTX_BATCH_CORES(" << c->name << ")},  // " << k->text.size << "\n";
                }
                tables << "}};\n\n";
            }
        }
    std::ostringstream o;
    o << "// Generated by vtxgen-gen: the tables of the batch entries. Do not edit.\n"
      << "#include \"batch/batch.hpp\"\n\n"
      << "namespace vtx::batch {\n\n"
      << decls.str() << "\nnamespace {\n" << maps.str() << "}  // namespace\n\n"
      << tables.str() << "}  // namespace vtx::batch\n";
    return o.str();
}

}  // namespace vtxgen
