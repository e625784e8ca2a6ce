#include "emit.hpp"

#include "lanes.hpp"
#include "schedule.hpp"

#include <cmath>
#include <cstdio>
#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <tuple>

namespace vtxgen {

std::string literal(double v, Prec p)
{
    if (v == 0)
        return p == Prec::F32 ? "0.0f" : "0.0";
    char buf[64];
    std::snprintf(buf, sizeof buf, "%a", v);
    std::string s = buf;
    if (p == Prec::F32)
        s += "f";
    return s;
}

namespace {

std::string type_of(Prec p, int width)
{
    if (width == 1)
        return p == Prec::F32 ? "float" : "double";
    return p == Prec::F32 ? "V4f" : "V2d";
}

std::string decimal(double v)
{
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.17g", v);
    return buf;
}

std::string shuffle_call(const Node& n, const std::string& a, const std::string& b)
{
    const auto& s = n.sel;
    if (n.width == 2) {
        if (s[0] == 0 && s[1] == 2)
            return "unpacklo(" + a + ", " + b + ")";
        if (s[0] == 1 && s[1] == 3)
            return "unpackhi(" + a + ", " + b + ")";
        throw std::logic_error("no vector instruction for this two-lane shuffle");
    }
    auto is = [&](int s0, int s1, int s2, int s3) { return s[0] == s0 && s[1] == s1 && s[2] == s2 && s[3] == s3; };
    if (is(0, 4, 1, 5))
        return "unpacklo(" + a + ", " + b + ")";
    if (is(2, 6, 3, 7))
        return "unpackhi(" + a + ", " + b + ")";
    if (is(0, 1, 4, 5))
        return "movelh(" + a + ", " + b + ")";
    if (is(2, 3, 6, 7))
        return "movehl(" + a + ", " + b + ")";
    if (s[0] < 4 && s[1] < 4 && s[2] >= 4 && s[3] >= 4)
        return "shuffle<" + std::to_string(s[0]) + ", " + std::to_string(s[1]) + ", " + std::to_string(s[2] - 4) +
               ", " + std::to_string(s[3] - 4) + ">(" + a + ", " + b + ")";
    throw std::logic_error("no vector instruction for this shuffle");
}

class BodyPrinter {
public:
    BodyPrinter(const Graph& g, Prec kernel_prec) : g_(g), prec_(kernel_prec), live_(g.live_lanes())
    {
        // A shuffle names both operands even where it takes no lane of one.
        for (std::size_t i = live_.size(); i-- > 0;) {
            const Node& n = g_.nodes()[i];
            if (!live_[i])
                continue;
            for (Id operand : {n.a, n.b})
                if (operand != kNone && !live_[static_cast<std::size_t>(operand)])
                    live_[static_cast<std::size_t>(operand)] = 0x10;
        }
    }

    std::string print()
    {
        const auto& nodes = g_.nodes();
        packing_ = pack_lanes(g_, live_, schedule(g_, live_));
        // The constants of single statements (packs write theirs in place)
        // and the scale vectors first.
        std::vector<char> single(nodes.size(), 0);
        for (std::size_t i = 0; i < nodes.size(); ++i)
            if (live_[i] && packing_.pack_of[i] < 0)
                for (Id o : {nodes[i].a, nodes[i].b})
                    if (o != kNone)
                        single[static_cast<std::size_t>(o)] = 1;
        for (std::size_t i = 0; i < nodes.size(); ++i)
            if (live_[i] && nodes[i].op == Op::Const && single[i])
                constant(static_cast<Id>(i));
        for (Prec p : {Prec::F32, Prec::F64})
            for (int w : {2, 4})
                if (uses_scale(p, w))
                    out_ << "        const " << type_of(p, w) << " sv = " << (w == 4 ? "splat4(s)" : "splat2(s)") << ";\n";
        // The statements in the order that spills least, the whole source
        // read before the first store; single lanes packed where it pays.
        for (int u : packing_.order)
            if (u >= 0)
                pack_statement(u);
            else
                statement(~u);
        return out_.str();
    }

private:
    bool uses_scale(Prec p, int width) const
    {
        for (std::size_t i = 0; i < g_.nodes().size(); ++i) {
            const Node& n = g_.nodes()[i];
            if (live_[i] && n.op == Op::Scale && n.prec == p && n.width == width)
                return true;
        }
        return false;
    }

    std::string name(Id id) const { return names_.at(id); }

    void constant(Id id)
    {
        const Node& n = g_[id];
        const auto key = std::make_tuple(n.prec, n.width, n.value);
        auto found = constants_.find(key);
        if (found != constants_.end()) {
            names_[id] = found->second;
            return;
        }
        const std::string k = "k" + std::to_string(constants_.size());
        constants_[key] = k;
        names_[id] = k;
        std::string init;
        bool same = true;
        for (int l = 1; l < n.width; ++l)
            same = same && n.value[l] == n.value[0];
        if (n.width == 1) {
            init = literal(n.value[0], n.prec);
        } else if (same) {
            init = std::string(n.width == 4 ? "splat4(" : "splat2(") + literal(n.value[0], n.prec) + ")";
        } else {
            init = n.width == 4 ? "vec4(" : "vec2(";
            for (int l = 0; l < n.width; ++l)
                init += (l ? ", " : "") + literal(n.value[l], n.prec);
            init += ")";
        }
        out_ << "        const " << type_of(n.prec, n.width) << " " << k << " = " << init << ";";
        std::string values;
        for (int l = 0; l < (same ? 1 : n.width); ++l)
            values += (l ? ", " : "") + decimal(n.value[l]);
        out_ << "  // " << values;
        if (!n.note.empty())
            out_ << ": " << n.note;
        out_ << "\n";
    }

    // A packed value that a single statement uses, taken out of its lane.
    void take_out(Id id)
    {
        if (id == kNone || names_.count(id))
            return;
        const int p = packing_.pack_of[static_cast<std::size_t>(id)];
        if (p < 0)
            return;
        const std::string t = "t" + std::to_string(id);
        out_ << "        const " << type_of(g_[id].prec, 1) << " " << t << " = lane<"
             << packing_.lane_of[static_cast<std::size_t>(id)] << ">(p" << p << ");\n";
        names_[id] = t;
    }

    // The vector holding `ops` in lane order.
    std::string vector_of(const std::vector<Id>& ops)
    {
        const Prec p = g_[ops[0]].prec;
        const Gather r = gather(g_, packing_, ops);
        std::string pa = "p" + std::to_string(r.a), pb = "p" + std::to_string(r.b);
        auto lanes = [&](int l) { return r.lane[static_cast<std::size_t>(l) % ops.size()]; };
        auto num = [](int v) { return std::to_string(v); };
        switch (r.kind) {
        case Gather::Same: return pa;
        case Gather::OnePack:
            if (p == Prec::F64)
                return "shuffle2<" + num(lanes(0)) + ", " + num(lanes(1)) + ">(" + pa + ", " + pa + ")";
            return "shuffle<" + num(lanes(0)) + ", " + num(lanes(1)) + ", " + num(lanes(2)) + ", " + num(lanes(3)) + ">(" +
                   pa + ", " + pa + ")";
        case Gather::TwoPacks: {
            if (p == Prec::F64) {
                const bool a_first = lanes(0) < 4;
                return "shuffle2<" + num(lanes(0) % 4) + ", " + num(lanes(1) % 4) + ">(" + (a_first ? pa : pb) + ", " +
                       (a_first ? pb : pa) + ")";
            }
            if (ops.size() == 2 && lanes(0) == 0 && lanes(1) == 4)
                return "unpacklo(" + pa + ", " + pb + ")";
            if (ops.size() == 4 && lanes(0) < 4 && lanes(1) < 4 && lanes(2) >= 4 && lanes(3) >= 4)
                return "shuffle<" + num(lanes(0)) + ", " + num(lanes(1)) + ", " + num(lanes(2) - 4) + ", " +
                       num(lanes(3) - 4) + ">(" + pa + ", " + pb + ")";
            // Two steps: the lanes wanted from each source side by side,
            // then in order.
            std::vector<int> from_a, from_b;
            for (int l = 0; l < 4; ++l) {
                auto& set = lanes(l) < 4 ? from_a : from_b;
                if (std::find(set.begin(), set.end(), lanes(l) % 4) == set.end())
                    set.push_back(lanes(l) % 4);
            }
            while (from_a.size() < 2)
                from_a.push_back(from_a[0]);
            while (from_b.size() < 2)
                from_b.push_back(from_b[0]);
            const std::string t = "q" + std::to_string(moves_++);
            out_ << "        const V4f " << t << " = shuffle<" << from_a[0] << ", " << from_a[1] << ", " << from_b[0]
                 << ", " << from_b[1] << ">(" << pa << ", " << pb << ");\n";
            std::string sel;
            for (int l = 0; l < 4; ++l) {
                const int at = lanes(l) < 4 ? int(std::find(from_a.begin(), from_a.end(), lanes(l)) - from_a.begin())
                                            : 2 + int(std::find(from_b.begin(), from_b.end(), lanes(l) - 4) - from_b.begin());
                sel += (l ? ", " : "") + num(at);
            }
            return "shuffle<" + sel + ">(" + t + ", " + t + ")";
        }
        case Gather::Constant:
        case Gather::Build: {
            std::string v = p == Prec::F32 ? "vec4(" : "vec2(";
            for (int l = 0; l < lanes_of(p); ++l) {
                const Id o = ops[static_cast<std::size_t>(l) % ops.size()];
                if (g_[o].op == Op::Const) {
                    v += (l ? ", " : "") + literal(g_[o].value[0], p);
                } else {
                    take_out(o);
                    v += (l ? ", " : "") + name(o);
                }
            }
            return v + ")";
        }
        }
        return {};
    }

    std::vector<Id> operands(const std::vector<Id>& m, bool second) const
    {
        std::vector<Id> ops;
        for (Id x : m)
            ops.push_back(second ? g_[x].b : g_[x].a);
        return ops;
    }

    void pack_statement(int p)
    {
        const std::vector<Id>& m = packing_.packs[static_cast<std::size_t>(p)];
        const Node& n = g_[m[0]];
        const bool four = m.size() == 4;
        const std::string t = "p" + std::to_string(p);
        const std::string a = n.a != kNone ? vector_of(operands(m, false)) : "";
        const std::string b = n.b != kNone ? vector_of(operands(m, true)) : "";
        std::string expr;
        switch (n.op) {
        case Op::Load:
            expr = (n.prec == Prec::F64 || four ? "load_any(x + " : "load_low(x + ") + std::to_string(n.offset) + ")";
            break;
        case Op::Store:
            out_ << "        " << (n.prec == Prec::F64 || four ? "store_any(y + " : "store_low(y + ") << n.offset << ", "
                 << a << ");\n";
            return;
        case Op::Add: expr = "add(" + a + ", " + b + ")"; break;
        case Op::Sub: expr = "sub(" + a + ", " + b + ")"; break;
        case Op::Mul: expr = "mul(" + a + ", " + b + ")"; break;
        case Op::Scale: {
            const bool wide = n.prec != prec_;
            const std::string sv = n.prec == Prec::F32 ? "s4" : wide ? "s2d" : "s2";
            if (!scales_.count(sv)) {
                scales_.insert(sv);
                out_ << "        const " << type_of(n.prec, 2) << " " << sv << " = "
                     << (n.prec == Prec::F32 ? "splat4(s)" : wide ? "splat2(double(s))" : "splat2(s)") << ";\n";
            }
            expr = "mul(" + a + ", " + sv + ")";
            break;
        }
        case Op::Neg:  // 0 - v in every lane: +0 stays +0
            expr = std::string("sub(") + (n.prec == Prec::F32 ? "splat4(0.0f)" : "splat2(0.0)") + ", " + a + ")";
            break;
        case Op::Widen: expr = "widen_low(" + a + ")"; break;
        case Op::Narrow: expr = "narrow(" + a + ")"; break;
        default: throw std::logic_error("no packed form of this operation");
        }
        out_ << "        const " << type_of(n.prec, 2) << " " << t << " = " << expr << ";\n";
    }

    void statement(Id id)
    {
        const Node& n = g_[id];
        take_out(n.a);
        take_out(n.b);
        const std::string t = "t" + std::to_string(id);
        const bool scalar = n.width == 1;
        auto bin = [&](const char* op, const char* fn) {
            return scalar ? name(n.a) + " " + op + " " + name(n.b) : std::string(fn) + "(" + name(n.a) + ", " + name(n.b) + ")";
        };
        std::string expr;
        switch (n.op) {
        case Op::Load: {
            const std::string at = "x + " + std::to_string(n.offset);
            if (n.access == Access::Scalar && n.prec == Prec::F64)
                expr = "load_element(" + at + ")";  // a double need not be 8-byte aligned
            else if (n.access == Access::Scalar)
                expr = "x[" + std::to_string(n.offset) + "]";
            else if (n.access == Access::Low)
                expr = "load_low(" + at + ")";
            else if (n.prec == Prec::F32 && (n.offset * 4) % 16 == 8)
                expr = "M::load_straddle(" + at + ")";
            else
                expr = "M::load(" + at + ")";
            break;
        }
        case Op::Store: {
            const std::string at = "y + " + std::to_string(n.offset);
            switch (n.access) {
            case Access::Scalar:
                if (n.prec == Prec::F64)
                    out_ << "        store_element(" << at << ", " << name(n.a) << ");\n";
                else
                    out_ << "        y[" << n.offset << "] = " << name(n.a) << ";\n";
                break;
            case Access::Low: out_ << "        store_low(" << at << ", " << name(n.a) << ");\n"; break;
            case Access::High: out_ << "        store_high(" << at << ", " << name(n.a) << ");\n"; break;
            case Access::Full: out_ << "        M::store(" << at << ", " << name(n.a) << ");\n"; break;
            }
            return;
        }
        case Op::Add: expr = bin("+", "add"); break;
        case Op::Sub: expr = bin("-", "sub"); break;
        case Op::Mul:
        case Op::Mask: expr = bin("*", "mul"); break;
        case Op::Scale:
            if (!scalar)
                expr = "mul(" + name(n.a) + ", sv)";
            else
                expr = name(n.a) + (n.prec == prec_ ? " * s" : " * double(s)");
            break;
        case Op::Neg:
            if (!scalar)
                throw std::logic_error("no vector negation from zero");
            expr = literal(0.0, n.prec) + " - " + name(n.a);
            break;
        case Op::Widen:
            // A float just rounded from a double goes back through widen(),
            // which keeps the compiler from dropping the pair (simd.hpp).
            expr = (g_[n.a].op == Op::Narrow ? "widen(" : "double(") + name(n.a) + ")";
            break;
        case Op::Narrow: expr = "float(" + name(n.a) + ")"; break;
        case Op::Swap: expr = "swap(" + name(n.a) + ")"; break;
        case Op::FlipSign: {
            int mask = 0;
            for (int l = 0; l < n.width; ++l)
                mask |= n.sel[l] ? 1 << l : 0;
            expr = "flip<" + std::to_string(mask) + ">(" + name(n.a) + ")";
            break;
        }
        case Op::Shuffle: expr = shuffle_call(n, name(n.a), name(n.b)); break;
        case Op::Const: return;
        }
        names_[id] = t;
        out_ << "        const " << type_of(n.prec, n.width) << " " << t << " = " << expr << ";\n";
    }

    const Graph& g_;
    Prec prec_;
    std::vector<std::uint8_t> live_;
    Packing packing_;
    int moves_ = 0;
    std::set<std::string> scales_;
    std::map<Id, std::string> names_;
    std::map<std::tuple<Prec, int, std::array<double, 4>>, std::string> constants_;
    std::ostringstream out_;
};

std::string counts_text(const Counts& c)
{
    std::string t = std::to_string(c.additions) + " additions, " + std::to_string(c.multiplications) + " multiplications";
    if (c.negations)
        t += ", " + std::to_string(c.negations) + " negations";
    if (c.exchanges)
        t += ", " + std::to_string(c.exchanges) + " lane exchanges";
    if (c.widen || c.narrow)
        t += ", " + std::to_string(c.widen) + " widened, " + std::to_string(c.narrow) + " narrowed";
    if (c.scaled_wide)
        t += ", " + std::to_string(c.scaled_wide) + " scaled wide";
    return t;
}

std::string kernel_struct(const KernelText& k)
{
    const std::string real = k.prec == Prec::F32 ? "float" : "double";
    const auto [inv_n, inv_sqrt_n] = scale_literals(k.size, k.prec);
    std::ostringstream o;
    o << "// " << k.name << ": " << k.summary << "; " << counts_text(k.graph.count()) << "\n"
      << "struct " << k.name.substr(4) << " {\n"
      << "    using Real = " << real << ";\n"
      << "    static constexpr Scaling scaling = Scaling::" << k.scaling << ";\n"
      << "    static constexpr Real inv_n = " << inv_n << ";  // 1/" << k.size << "\n"
      << "    static constexpr Real inv_sqrt_n = " << inv_sqrt_n << ";  // 1/sqrt(" << k.size << ")\n"
      << "    template <class M>\n"
      << "    VTX_EXPAND static void run(const " << real << "* x, " << real << "* y, " << real << " s)\n    {\n"
      << emit_body(k.graph, k.prec) << "    }\n};\n\n";
    return o.str();
}

}  // namespace

std::pair<std::string, std::string> scale_literals(int n, Prec p)
{
    const double inv_n = 1.0 / n;
    const double inv_sqrt_n = 1.0 / std::sqrt(static_cast<double>(n));
    if (p == Prec::F32)
        return {literal(static_cast<float>(inv_n), p), literal(static_cast<float>(inv_sqrt_n), p)};
    return {literal(inv_n, p), literal(inv_sqrt_n, p)};
}

std::string entry_points(const EntryShape& e)
{
    const std::string call = "(src, dst, flag" + e.extra_args + ")";
    std::ostringstream o;
    switch (e.frame) {
    case Frame::NoAlignmentTest:
        o << "extern \"C\" VTXAPI vtxStatus " << e.name << e.params << "\n{\n"
          << "    return vtx::frame::checked<" << e.impl << ", vtx::Aligned>" << call << ";\n}\n\n";
        break;
    case Frame::SecondPath:
        o << "extern \"C\" VTXAPI vtxStatus " << e.name << e.params << "\n{\n"
          << "    return vtx::frame::with_second_path<" << e.impl << ">" << call << ";\n}\n\n";
        break;
    case Frame::Twin:
        o << "extern \"C\" VTX_INTERNAL vtxStatus " << e.twin << e.params << "\n{\n"
          << "    return vtx::frame::checked<" << e.impl << ", vtx::Unaligned>" << call << ";\n}\n\n"
          << "extern \"C\" VTXAPI vtxStatus " << e.name << e.params << "\n{\n"
          << "    return vtx::frame::with_twin<" << e.impl << ">(src, dst, flag, " << e.twin << e.extra_args
          << ");\n}\n\n";
        break;
    }
    return o.str();
}

std::string emit_body(const Graph& g, Prec kernel_prec)
{
    return BodyPrinter(g, kernel_prec).print();
}

std::string emit_unit(const std::vector<KernelText>& kernels, const std::string& origin)
{
    std::ostringstream o;
    o << "// Generated by vtxgen-gen from " << origin << ". Do not edit.\n"
      << "#include \"frame/frame.hpp\"\n\n"
      << "namespace vtx {\nnamespace {\n\n";
    for (const KernelText& k : kernels)
        o << kernel_struct(k);
    o << "}  // namespace\n}  // namespace vtx\n\n";
    for (const KernelText& k : kernels)
        o << entry_points({k.name, k.twin, "vtx::" + k.name.substr(4),
                           "(const " + k.element + "* src, " + k.element + "* dst, int flag)", "", k.frame});
    return o.str();
}

}  // namespace vtxgen
