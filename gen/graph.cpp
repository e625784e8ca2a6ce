#include "graph.hpp"

#include <bit>
#include <cmath>
#include <stdexcept>

namespace vtxgen {

namespace {

void require(bool ok, const char* what)
{
    if (!ok)
        throw std::logic_error(what);
}

// Lanes an access moves: all of them, or the half of a four-lane node.
std::uint8_t access_lanes(const Node& n)
{
    switch (n.access) {
    case Access::Low: return 0x3;
    case Access::High: return 0xC;
    default: return static_cast<std::uint8_t>((1u << n.width) - 1);
    }
}

int lanes_moved(Access a, int width)
{
    return (a == Access::Low || a == Access::High) ? 2 : width;
}

// One rounding in the node's precision.
double round_to(Prec p, double v)
{
    return p == Prec::F32 ? static_cast<double>(static_cast<float>(v)) : v;
}

Node make(Op op, Prec p, int width, Access access = Access::Scalar)
{
    Node n;
    n.op = op;
    n.prec = p;
    n.width = static_cast<std::uint8_t>(width);
    n.access = access;
    return n;
}

}  // namespace

Id Graph::push(Node n)
{
    nodes_.push_back(std::move(n));
    return static_cast<Id>(nodes_.size() - 1);
}

Id Graph::load(Prec p, int width, Access access, int offset)
{
    require(width == 1 || width == 2 || width == 4, "load: width");
    require((access == Access::Scalar) == (width == 1), "load: scalar access needs width 1");
    require(access != Access::High, "load: no high-half loads");
    require(access != Access::Low || width == 4, "load: half loads fill four-lane nodes");
    require(width * bytes_of(p) <= 16, "load: wider than a vector");
    require(p == element_, "load: the source holds the kernel's elements");
    Node n = make(Op::Load, p, static_cast<std::uint8_t>(width), access);
    n.offset = offset;
    return push(n);
}

void Graph::store(Id v, Access access, int offset)
{
    const Node& src = (*this)[v];
    require(src.prec == element_, "store: the destination takes the kernel's elements only");
    require((access == Access::Scalar) == (src.width == 1), "store: scalar access needs width 1");
    require(access == Access::Full || access == Access::Scalar || src.width == 4,
            "store: half stores take four-lane nodes");
    Node n = make(Op::Store, src.prec, src.width, access);
    n.a = v;
    n.offset = offset;
    push(n);
}

Id Graph::constant(Prec p, int width, std::array<double, 4> lanes, std::string note)
{
    Node n = make(Op::Const, p, static_cast<std::uint8_t>(width));
    for (int l = 0; l < width; ++l)
        n.value[l] = round_to(p, lanes[l]);
    n.note = std::move(note);
    return push(n);
}

Id Graph::splat(Prec p, int width, double v, std::string note)
{
    return constant(p, width, {v, v, v, v}, std::move(note));
}

Id Graph::binary(Op op, Id a, Id b)
{
    const Node& x = (*this)[a];
    const Node& y = (*this)[b];
    require(x.prec == y.prec && x.width == y.width, "binary operation: operands differ in shape");
    Node n = make(op, x.prec, x.width);
    n.a = a;
    n.b = b;
    return push(n);
}

Id Graph::unary(Op op, Id a, Prec p)
{
    Node n = make(op, p, (*this)[a].width);
    n.a = a;
    return push(n);
}

Id Graph::add(Id a, Id b) { return binary(Op::Add, a, b); }
Id Graph::sub(Id a, Id b) { return binary(Op::Sub, a, b); }
Id Graph::mul(Id a, Id b) { return binary(Op::Mul, a, b); }

Id Graph::mask(Id a, std::array<bool, 4> lanes)
{
    const Node& x = (*this)[a];
    const Id k = constant(x.prec, x.width, {double(lanes[0]), double(lanes[1]), double(lanes[2]), double(lanes[3])},
                          "lane mask");
    return binary(Op::Mask, a, k);
}
Id Graph::scale(Id a) { return unary(Op::Scale, a, (*this)[a].prec); }
Id Graph::neg(Id a) { return unary(Op::Neg, a, (*this)[a].prec); }

Id Graph::widen(Id a)
{
    require((*this)[a].prec == Prec::F32 && (*this)[a].width == 1, "widen: takes a float scalar");
    return unary(Op::Widen, a, Prec::F64);
}

Id Graph::narrow(Id a)
{
    require((*this)[a].prec == Prec::F64 && (*this)[a].width == 1, "narrow: takes a double scalar");
    return unary(Op::Narrow, a, Prec::F32);
}

Id Graph::swap(Id a)
{
    require((*this)[a].width == 2, "swap: takes a two-lane node");
    return unary(Op::Swap, a, (*this)[a].prec);
}

Id Graph::flip_sign(Id a, std::array<bool, 4> lanes)
{
    Id id = unary(Op::FlipSign, a, (*this)[a].prec);
    for (int l = 0; l < 4; ++l)
        nodes_[id].sel[l] = lanes[l];
    return id;
}

Id Graph::shuffle(Id a, Id b, std::array<int, 4> sel)
{
    const Node& x = (*this)[a];
    require(x.width >= 2 && (*this)[b].width == x.width && x.prec == (*this)[b].prec,
            "shuffle: takes two vector nodes of one shape");
    Node n = make(Op::Shuffle, x.prec, x.width);
    n.a = a;
    n.b = b;
    for (int l = 0; l < x.width; ++l) {
        require(sel[l] >= 0 && sel[l] < 2 * x.width, "shuffle: lane out of range");
        n.sel[l] = static_cast<std::uint8_t>(sel[l]);
    }
    return push(n);
}

std::vector<std::uint8_t> Graph::live_lanes() const
{
    std::vector<std::uint8_t> live(nodes_.size(), 0);
    for (std::size_t i = nodes_.size(); i-- > 0;) {
        const Node& n = nodes_[i];
        const std::uint8_t mine = n.op == Op::Store ? access_lanes(n) : live[i];
        if (!mine)
            continue;
        if (n.op == Op::Store) {
            live[i] = mine;
            live[static_cast<std::size_t>(n.a)] |= mine;
            continue;
        }
        switch (n.op) {
        case Op::Swap:
            live[static_cast<std::size_t>(n.a)] |= static_cast<std::uint8_t>(((mine & 1) << 1) | ((mine >> 1) & 1));
            break;
        case Op::Shuffle:
            for (int l = 0; l < n.width; ++l)
                if (mine & (1u << l)) {
                    const int s = n.sel[l];
                    live[static_cast<std::size_t>(s < n.width ? n.a : n.b)] |=
                        static_cast<std::uint8_t>(1u << (s % n.width));
                }
            break;
        default:
            if (n.a != kNone)
                live[static_cast<std::size_t>(n.a)] |= mine;
            if (n.b != kNone)
                live[static_cast<std::size_t>(n.b)] |= mine;
        }
    }
    return live;
}

Counts Graph::count() const
{
    const auto live = live_lanes();
    Counts c;
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
        if (!live[i])
            continue;
        const Node& n = nodes_[i];
        const int used = std::popcount(live[i]);
        switch (n.op) {
        case Op::Add:
        case Op::Sub:
            c.additions += used;
            c.lane_slots += n.width;
            break;
        case Op::Mul:
        case Op::Mask: {
            // A lane mask multiplies only where it holds a one.
            int lanes = used;
            const Node& k = nodes_[static_cast<std::size_t>(n.a)];
            if (n.op == Op::Mul && k.op == Op::Const && k.width == 1 && k.value[0] == 2.0) {
                c.doublings += used;
                c.lane_slots += n.width;
                break;
            }
            if (n.op == Op::Mask)
                for (int l = 0; l < n.width; ++l)
                    lanes -= (live[i] >> l & 1) && nodes_[static_cast<std::size_t>(n.b)].value[l] == 0;
            c.multiplications += lanes;
            c.lane_slots += n.width;
            break;
        }
        case Op::Scale:
            c.scale_lanes += used;
            c.lane_slots += n.width;
            break;
        case Op::Neg: c.negations += used; break;
        case Op::Swap: ++c.exchanges; break;
        case Op::Widen: ++c.widen; break;
        case Op::Narrow: {
            ++c.narrow;
            Id from = n.a;  // the scale of an output, perhaps behind its sign
            if (nodes_[static_cast<std::size_t>(from)].op == Op::Neg)
                from = nodes_[static_cast<std::size_t>(from)].a;
            c.scaled_wide += nodes_[static_cast<std::size_t>(from)].op == Op::Scale;
            break;
        }
        default: break;
        }
    }
    return c;
}

void Graph::evaluate(const std::vector<double>& src, std::vector<double>& dst, double scale) const
{
    std::vector<std::array<double, 4>> v(nodes_.size());
    auto lanes = [&](Id id) -> const std::array<double, 4>& { return v[static_cast<std::size_t>(id)]; };
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
        const Node& n = nodes_[i];
        std::array<double, 4>& r = v[i];
        const bool f32 = n.prec == Prec::F32;
        // Each lane rounds once in the node's precision, as the vector unit does.
        auto arith = [&](auto op) {
            for (int l = 0; l < n.width; ++l) {
                const double x = lanes(n.a)[l], y = n.b == kNone ? scale : lanes(n.b)[l];
                r[l] = f32 ? static_cast<double>(op(static_cast<float>(x), static_cast<float>(y)))
                           : op(x, y);
            }
        };
        switch (n.op) {
        case Op::Load:
            r = {};
            for (int l = 0; l < lanes_moved(n.access, n.width); ++l)
                r[l] = src.at(static_cast<std::size_t>(n.offset + l));
            break;
        case Op::Store: {
            const int first = n.access == Access::High ? 2 : 0;
            for (int l = 0; l < lanes_moved(n.access, n.width); ++l)
                dst.at(static_cast<std::size_t>(n.offset + l)) = lanes(n.a)[first + l];
            break;
        }
        case Op::Const: r = n.value; break;
        case Op::Add: arith([](auto x, auto y) { return x + y; }); break;
        case Op::Sub: arith([](auto x, auto y) { return x - y; }); break;
        case Op::Mul:
        case Op::Mask:
        case Op::Scale: arith([](auto x, auto y) { return x * y; }); break;
        case Op::Neg:
            for (int l = 0; l < n.width; ++l)
                r[l] = f32 ? static_cast<double>(0.0f - static_cast<float>(lanes(n.a)[l])) : 0.0 - lanes(n.a)[l];
            break;
        case Op::Widen: r = lanes(n.a); break;
        case Op::Narrow: r[0] = round_to(Prec::F32, lanes(n.a)[0]); break;
        case Op::Swap: r = {lanes(n.a)[1], lanes(n.a)[0], 0, 0}; break;
        case Op::FlipSign:
            for (int l = 0; l < n.width; ++l)
                r[l] = n.sel[l] ? -lanes(n.a)[l] : lanes(n.a)[l];
            break;
        case Op::Shuffle:
            for (int l = 0; l < n.width; ++l)
                r[l] = lanes(n.sel[l] < n.width ? n.a : n.b)[n.sel[l] % n.width];
            break;
        }
    }
}

int Graph::source_components() const
{
    int end = 0;
    for (const Node& n : nodes_)
        if (n.op == Op::Load)
            end = std::max(end, n.offset + lanes_moved(n.access, n.width));
    return end;
}

int Graph::destination_components() const
{
    int end = 0;
    for (const Node& n : nodes_)
        if (n.op == Op::Store)
            end = std::max(end, n.offset + lanes_moved(n.access, n.width));
    return end;
}

}  // namespace vtxgen
