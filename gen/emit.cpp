#include "emit.hpp"

#include "schedule.hpp"

#include <cmath>
#include <cstdio>
#include <map>
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
        // The constants and the scale vectors first.
        for (std::size_t i = 0; i < nodes.size(); ++i)
            if (live_[i] && nodes[i].op == Op::Const)
                constant(static_cast<Id>(i));
        for (Prec p : {Prec::F32, Prec::F64})
            for (int w : {2, 4})
                if (uses_scale(p, w))
                    out_ << "        const " << type_of(p, w) << " sv = " << (w == 4 ? "splat4(s)" : "splat2(s)") << ";\n";
        // The statements in the order that spills least, the whole source
        // read before the first store.
        for (Id id : schedule(g_, live_))
            statement(id);
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

    void statement(Id id)
    {
        const Node& n = g_[id];
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
