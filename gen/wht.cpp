#include "wht.hpp"

#include "emit.hpp"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace vtxgen {

namespace {

// The pass orders of the blocked kernels: a contiguous block of 2^a, then
// 2^b across rows, then 2^c across chunks.  Orders 1 to 7 are one straight
// line in both precisions.
struct PassRow {
    int order;
    std::vector<int> f32, f64;
};

const PassRow kPasses[] = {
    // order  float       double
    {8, {5, 3}, {5, 3}},
    {9, {6, 3}, {5, 4}},
    {10, {6, 4}, {7, 3}},
    {11, {6, 5}, {5, 3, 3}},
    {12, {6, 3, 3}, {5, 3, 4}},
    {13, {6, 3, 4}, {7, 3, 3}},
};

constexpr int kMaxOrder = 13;
// The orders that have a 256-bit form: eight vectors of floats, eight of
// doubles and up (the smaller ones are too short to gain from it).
constexpr int kSmallestWide = 5;

const char* suffix(Prec p) { return p == Prec::F32 ? "32f" : "64f"; }
const char* real(Prec p) { return p == Prec::F32 ? "float" : "double"; }
int lanes(Prec p) { return p == Prec::F32 ? 4 : 2; }

// (a, b) becomes (a + b, a - b).
void butterfly(Graph& g, Id& a, Id& b)
{
    const Id sum = g.add(a, b);
    const Id difference = g.sub(a, b);
    a = sum;
    b = difference;
}

// Stages between the values: v[i] with v[i + d] for d = 1, 2, 4, ... in turn.
void stages(Graph& g, std::vector<Id>& v)
{
    for (std::size_t d = 1; d < v.size(); d <<= 1)
        for (std::size_t i = 0; i < v.size(); ++i)
            if (!(i & d))
                butterfly(g, v[i], v[i + d]);
}

// A square tile of vectors transposed in registers: lanes become vectors.
void transpose(Graph& g, std::vector<Id>& t)
{
    if (t.size() == 2) {
        t = {g.shuffle(t[0], t[1], {0, 2, 0, 0}), g.shuffle(t[0], t[1], {1, 3, 0, 0})};
        return;
    }
    const Id lo01 = g.shuffle(t[0], t[1], {0, 4, 1, 5}), lo23 = g.shuffle(t[2], t[3], {0, 4, 1, 5});
    const Id hi01 = g.shuffle(t[0], t[1], {2, 6, 3, 7}), hi23 = g.shuffle(t[2], t[3], {2, 6, 3, 7});
    t = {g.shuffle(lo01, lo23, {0, 1, 4, 5}), g.shuffle(lo01, lo23, {2, 3, 6, 7}),
         g.shuffle(hi01, hi23, {0, 1, 4, 5}), g.shuffle(hi01, hi23, {2, 3, 6, 7})};
}

// The stages on the bits inside a vector: each tile of `lanes` vectors is
// transposed, its stages run between vectors, and it is transposed back.
void stages_inside_vectors(Graph& g, std::vector<Id>& v, int w)
{
    for (std::size_t first = 0; first < v.size(); first += static_cast<std::size_t>(w)) {
        std::vector<Id> tile(v.begin() + static_cast<std::ptrdiff_t>(first),
                             v.begin() + static_cast<std::ptrdiff_t>(first) + w);
        transpose(g, tile);
        stages(g, tile);
        transpose(g, tile);
        std::copy(tile.begin(), tile.end(), v.begin() + static_cast<std::ptrdiff_t>(first));
    }
}

// Value i stored at offset i * step, multiplied by the scale first if asked.
void store_all(Graph& g, const std::vector<Id>& v, Access access, int step, bool scaled)
{
    for (std::size_t i = 0; i < v.size(); ++i)
        g.store(scaled ? g.scale(v[i]) : v[i], access, static_cast<int>(i) * step);
}

// 2^order contiguous elements, all stages.  Float below order 4 and double
// below order 3 go element by element; longer lines hold `lanes` neighbours
// per vector.
Graph contiguous(Prec p, int order, bool scaled)
{
    const int w = order >= (p == Prec::F32 ? 4 : 3) ? lanes(p) : 1;
    const Access access = w == 1 ? Access::Scalar : Access::Full;
    Graph g(p);
    std::vector<Id> v(static_cast<std::size_t>((1 << order) / w));
    for (std::size_t i = 0; i < v.size(); ++i)
        v[i] = g.load(p, w, access, static_cast<int>(i) * w);
    if (w > 1)
        stages_inside_vectors(g, v, w);
    stages(g, v);
    store_all(g, v, access, w, scaled);
    return g;
}

Graph across_rows(Prec p, int order, int stride, bool scaled)
{
    Graph g(p);
    std::vector<Id> v(static_cast<std::size_t>(1 << order));
    for (std::size_t r = 0; r < v.size(); ++r)
        v[r] = g.load(p, lanes(p), Access::Full, static_cast<int>(r) * stride);
    stages(g, v);
    store_all(g, v, Access::Full, stride, scaled);
    return g;
}

// ---- The 256-bit form -------------------------------------------------------
//
// Eight floats or four doubles per vector, the same butterflies in the same
// order for every element.  A vector's low half holds four floats (two
// doubles) from the first half of the line and its high half the same
// places of the second half, so the top bit is the last stage and lies
// across halves: one exchange of halves before that stage also puts the
// results back in order, stored whole.  The stages on the bits inside a half
// run between vectors after an in-half transposition (4 x 4 tiles of floats,
// 2 x 2 of doubles), and back.  Vector distances give the other bits.
//
// The printer keeps the element that each lane holds, and checks every
// butterfly (partner element at the stage's distance) and every store
// (neighbouring elements in order): a wrong layout fails at generation.

class WideLine {
public:
    explicit WideLine(Prec p) : p_(p), w_(p == Prec::F32 ? 8 : 4) {}

    struct Vec {
        std::string name;
        std::vector<int> elem;  // the element each lane holds
        int done = 0;           // the stages done on them, as a mask of bits
    };

    int width() const { return w_; }

    Vec load(int at)
    {
        Vec v{fresh(), {}};
        for (int j = 0; j < w_; ++j)
            v.elem.push_back(at + j);
        o_ << "        const " << type() << " " << v.name << " = wide::load(x + " << at << ");\n";
        return v;
    }
    Vec load_halves(int lo, int hi)
    {
        Vec v{fresh(), {}};
        for (int j = 0; j < w_ / 2; ++j)
            v.elem.push_back(lo + j);
        for (int j = 0; j < w_ / 2; ++j)
            v.elem.push_back(hi + j);
        o_ << "        const " << type() << " " << v.name << " = wide::load_halves(x + " << lo << ", x + " << hi
           << ");\n";
        return v;
    }
    // Four doubles from `at` with stage 0 done as they come in: the even
    // elements in pairs, the odd ones in pairs, their sums in the even lanes
    // and differences in the odd ones.  The odd elements come from one
    // element further on, except at the end of the line (`last`), where that
    // would read past it: there they come from the four by a lane move.
    Vec load_paired(int at, bool last)
    {
        Vec v{fresh(), {}, 1};
        for (int j = 0; j < w_; ++j)
            v.elem.push_back(at + j);
        const std::string even = fresh(), odd = fresh(), sum = fresh(), difference = fresh();
        o_ << "        const wide::V4d " << even << " = wide::load_evens(x + " << at << ");\n";
        if (last)
            o_ << "        const wide::V4d " << odd << " = wide::unpackhi(wide::load(x + " << at << "), wide::load(x + "
               << at << "));\n";
        else
            o_ << "        const wide::V4d " << odd << " = wide::load_evens(x + " << at + 1 << ");\n";
        o_ << "        const wide::V4d " << sum << " = wide::add(" << even << ", " << odd << ");\n"
           << "        const wide::V4d " << difference << " = wide::sub(" << even << ", " << odd << ");\n"
           << "        const wide::V4d " << v.name << " = wide::even_odd(" << sum << ", " << difference << ");\n";
        return v;
    }

    // (a, b) becomes (a + b, a - b); b's lanes hold the elements `distance`
    // past a's, and every stage below `distance` is done on both.
    void butterfly(Vec& a, Vec& b, int distance)
    {
        for (int j = 0; j < w_; ++j)
            if (b.elem[j] != a.elem[j] + distance || (a.elem[j] & distance))
                throw std::logic_error("256-bit Walsh-Hadamard line: lanes out of place for a butterfly");
        if (a.done != distance - 1 || b.done != distance - 1)
            throw std::logic_error("256-bit Walsh-Hadamard line: stages out of order");
        Vec sum{fresh(), a.elem, a.done | distance}, difference{fresh(), b.elem, a.done | distance};
        o_ << "        const " << type() << " " << sum.name << " = wide::add(" << a.name << ", " << b.name << ");\n"
           << "        const " << type() << " " << difference.name << " = wide::sub(" << a.name << ", " << b.name
           << ");\n";
        a = sum;
        b = difference;
    }
    // Within each half: floats as 4 x 4 tiles over four vectors, doubles as
    // 2 x 2 tiles over two.
    void transpose(std::vector<Vec*> t)
    {
        if (t.size() == 2) {
            const Vec a = *t[0], b = *t[1];
            *t[0] = binary("unpacklo", a, b, {0, 4, 2, 6});
            *t[1] = binary("unpackhi", a, b, {1, 5, 3, 7});
            return;
        }
        const Vec lo01 = binary("unpacklo", *t[0], *t[1], {0, 8, 1, 9, 4, 12, 5, 13});
        const Vec hi01 = binary("unpackhi", *t[0], *t[1], {2, 10, 3, 11, 6, 14, 7, 15});
        const Vec lo23 = binary("unpacklo", *t[2], *t[3], {0, 8, 1, 9, 4, 12, 5, 13});
        const Vec hi23 = binary("unpackhi", *t[2], *t[3], {2, 10, 3, 11, 6, 14, 7, 15});
        *t[0] = binary("movelh", lo01, lo23, {0, 1, 8, 9, 4, 5, 12, 13});
        *t[1] = binary("movehl", lo01, lo23, {2, 3, 10, 11, 6, 7, 14, 15});
        *t[2] = binary("movelh", hi01, hi23, {0, 1, 8, 9, 4, 5, 12, 13});
        *t[3] = binary("movehl", hi01, hi23, {2, 3, 10, 11, 6, 7, 14, 15});
    }
    // (a, b) becomes (low halves of a and b, high halves of a and b).
    void exchange_halves(Vec& a, Vec& b)
    {
        const int h = w_ / 2;
        std::vector<int> lo(2 * h), hi(2 * h);
        for (int j = 0; j < h; ++j)
            lo[j] = j, lo[h + j] = w_ + j, hi[j] = h + j, hi[h + j] = w_ + h + j;
        const Vec low = binary("low_halves", a, b, lo), high = binary("high_halves", a, b, hi);
        a = low;
        b = high;
    }
    // Elements with every stage up to `stages` (a mask) done, in order.
    void store(const Vec& v, bool scaled, int stages)
    {
        for (int j = 1; j < w_; ++j)
            if (v.elem[j] != v.elem[0] + j)
                throw std::logic_error("256-bit Walsh-Hadamard line: a store of elements out of order");
        if (v.done != stages)
            throw std::logic_error("256-bit Walsh-Hadamard line: a store before the last stage");
        o_ << "        wide::store(y + " << v.elem[0] << ", "
           << (scaled ? "wide::mul(sv, " + v.name + ")" : v.name) << ");\n";
    }

    std::string text(bool scaled) const
    {
        const std::string splat = p_ == Prec::F32 ? "wide::splat8(s)" : "wide::splat4(s)";
        return (scaled ? "        const " + type() + " sv = " + splat + ";\n" : std::string()) + o_.str();
    }

private:
    std::string type() const { return p_ == Prec::F32 ? "wide::V8f" : "wide::V4d"; }
    std::string fresh() { return "t" + std::to_string(next_++); }
    // A lane move: lane l of the result is lane sel[l] of (a, b), 0 .. w-1
    // from a, w .. 2w-1 from b.
    Vec binary(const std::string& op, const Vec& a, const Vec& b, const std::vector<int>& sel)
    {
        if (a.done != b.done)
            throw std::logic_error("256-bit Walsh-Hadamard line: lanes of different stages in one vector");
        Vec r{fresh(), {}, a.done};
        for (int l : sel)
            r.elem.push_back(l < w_ ? a.elem[l] : b.elem[l - w_]);
        o_ << "        const " << type() << " " << r.name << " = wide::" << op << "(" << a.name << ", " << b.name
           << ");\n";
        return r;
    }

    Prec p_;
    int w_;
    int next_ = 0;
    std::ostringstream o_;
};

// Every stage on the vectors [lo, lo + count) whose bits lie inside the
// group, depth first, each vector loaded just before its tile needs it: the
// in-half bits through transposed tiles, then the vector distances.  At the
// top (`last`), each butterfly of the largest distance is followed at once by
// the exchange of halves, the top stage and the stores of its two pairs, so
// that few vectors stay live; every load still comes before the first store.
void wide_stages(WideLine& line, std::vector<WideLine::Vec>& v, int lo, int count, int n, bool last, bool scaled)
{
    const int half = line.width() / 2, tile = half;  // vectors per tile: 4 floats, 2 doubles per half
    auto at = [&](int k) -> WideLine::Vec& { return v[static_cast<std::size_t>(k)]; };
    auto finish = [&](int k) {  // the pair k, k + 1: exchange, top stage, stores
        line.exchange_halves(at(k), at(k + 1));
        line.butterfly(at(k), at(k + 1), n / 2);
        line.store(at(k), scaled, n - 1);
        line.store(at(k + 1), scaled, n - 1);
    };
    if (count == tile) {
        std::vector<WideLine::Vec*> t;
        for (int i = 0; i < tile; ++i) {
            at(lo + i) = line.load_halves(half * (lo + i), n / 2 + half * (lo + i));
            t.push_back(&at(lo + i));
        }
        line.transpose(t);
        for (int d = 1; d < tile; d <<= 1)
            for (int i = 0; i < tile; ++i)
                if (!(i & d))
                    line.butterfly(*t[i], *t[i + d], d);
        line.transpose(t);
        for (int d = 1; d < tile; d <<= 1)
            for (int i = 0; i < tile; ++i)
                if (!(i & d))
                    line.butterfly(*t[i], *t[i + d], d * half);
        if (last)
            for (int k = lo; k < lo + count; k += 2)
                finish(k);
        return;
    }
    wide_stages(line, v, lo, count / 2, n, false, scaled);
    wide_stages(line, v, lo + count / 2, count / 2, n, false, scaled);
    for (int k = lo; k < lo + count / 2; ++k) {
        line.butterfly(at(k), at(k + count / 2), count / 2 * half);
        if (last && k % 2 == 1) {
            finish(k - 1);
            finish(k - 1 + count / 2);
        }
    }
}

// Doubles: four neighbours per vector, stage 0 as they are loaded (the even
// and the odd elements each in pairs, no lane move); stage 1 lies across
// halves, so vectors k and k + V/2 exchange halves first (the top bit goes
// inside, across halves); the stages between go by vector distances within
// each half of the vectors, and the top stage comes after the exchange back,
// which restores the order for the stores.  Two half moves per vector, where
// the layout of floats would take three lane moves and an insertion.
void wide_doubles(WideLine& line, std::vector<WideLine::Vec>& v, int lo, int count, bool last, bool scaled)
{
    auto at = [&](int k) -> WideLine::Vec& { return v[static_cast<std::size_t>(k)]; };
    const int half = static_cast<int>(v.size()) / 2, n = 8 * half;
    // At the top, each pair k, k + V/2 is done once its last butterfly is:
    // the exchange back, the top stage and the stores follow at once.
    auto finish = [&](int k) {
        line.exchange_halves(at(k), at(k + half));
        line.butterfly(at(k), at(k + half), n / 2);
        line.store(at(k), scaled, n - 1);
        line.store(at(k + half), scaled, n - 1);
    };
    if (count == 1) {
        at(lo) = line.load_paired(4 * lo, false);
        at(lo + half) = line.load_paired(4 * (lo + half), lo + half == 2 * half - 1);
        line.exchange_halves(at(lo), at(lo + half));
        line.butterfly(at(lo), at(lo + half), 2);
        if (last)
            finish(lo);
        return;
    }
    wide_doubles(line, v, lo, count / 2, false, scaled);
    wide_doubles(line, v, lo + count / 2, count / 2, false, scaled);
    for (int k = lo; k < lo + count / 2; ++k) {
        for (int h : {0, half})
            line.butterfly(at(k + h), at(k + h + count / 2), 4 * (count / 2));
        if (last) {
            finish(k);
            finish(k + count / 2);
        }
    }
}

// 2^order contiguous elements, all stages, in the 256-bit form.
std::string wide_contiguous(Prec p, int order, bool scaled)
{
    WideLine line(p);
    const int n = 1 << order;
    std::vector<WideLine::Vec> v(static_cast<std::size_t>(n / line.width()));
    if (p == Prec::F32) {
        wide_stages(line, v, 0, static_cast<int>(v.size()), n, true, scaled);
        return line.text(scaled);
    }
    wide_doubles(line, v, 0, static_cast<int>(v.size()) / 2, true, scaled);
    return line.text(scaled);
}

// One column eight floats (four doubles) wide of 2^order rows `stride`
// elements apart: stages across the rows, depth first.
void wide_rows_stages(WideLine& line, std::vector<WideLine::Vec>& v, int lo, int count, int stride)
{
    if (count == 1)
        return;
    wide_rows_stages(line, v, lo, count / 2, stride);
    wide_rows_stages(line, v, lo + count / 2, count / 2, stride);
    for (int r = lo; r < lo + count / 2; ++r)
        line.butterfly(v[static_cast<std::size_t>(r)], v[static_cast<std::size_t>(r + count / 2)],
                       count / 2 * stride);
}

std::string wide_rows(Prec p, int order, int stride, bool scaled)
{
    WideLine line(p);
    std::vector<WideLine::Vec> v;
    for (int r = 0; r < 1 << order; ++r) {
        v.push_back(line.load(r * stride));
        v.back().done = stride - 1;  // the passes before
    }
    wide_rows_stages(line, v, 0, 1 << order, stride);
    for (const WideLine::Vec& r : v)
        line.store(r, scaled, (stride << order) - 1);
    return line.text(scaled);
}

std::string counts_text(const Graph& g)
{
    const Counts c = g.count();
    return std::to_string(c.additions) + " additions and subtractions";
}

// A piece as a struct with its run function, in the 128-bit form or the
// 256-bit one (`wide`).
std::string piece_struct(const WhtPiece& piece, bool wide)
{
    const Graph g = piece.build();
    const std::string r = real(piece.prec);
    std::ostringstream o;
    o << "// " << piece.name() << ": ";
    if (piece.kind == WhtPiece::Kind::Block)
        o << (1 << piece.order) << " contiguous elements";
    else
        o << (1 << piece.order) << " rows " << piece.stride << " elements apart, one vector wide";
    o << "; " << counts_text(g) << (piece.scaled ? ", scaled" : ", unscaled") << "\n"
      << "struct " << piece.name() << " {\n"
      << "    static constexpr int order = " << piece.order << ";\n";
    if (piece.kind == WhtPiece::Kind::Rows)
        o << "    static constexpr int stride = " << piece.stride << ";\n"
          << "    static constexpr int lanes = " << lanes(piece.prec) * (wide ? 2 : 1) << ";\n";
    o << "    template <class M>\n"
      << "    VTX_EXPAND static void run(const " << r << "* x, " << r << "* y, [[maybe_unused]] " << r << " s)\n"
      << "    {\n"
      << (wide ? piece.wide_body() : emit_body(g, piece.prec)) << "    }\n};\n\n";
    return o.str();
}

std::string kernel_struct(const WhtKernel& k, bool wide)
{
    const std::string r = real(k.prec);
    const auto [inv_n, inv_sqrt_n] = scale_literals(k.length(), k.prec);
    std::ostringstream o;
    o << "// " << k.name() << ": ";
    std::string body;
    if (k.passes.empty()) {
        const Graph g = k.build();
        o << "one straight line; " << counts_text(g) << "\n";
        body = wide ? wide_contiguous(k.prec, k.order, true) : emit_body(g, k.prec);
    } else {
        o << "passes";
        for (std::size_t i = 0; i < k.passes.size(); ++i)
            o << (i ? ", " : " ") << k.passes[i];
        o << " through a work buffer of " << k.buffer_bytes() << " bytes\n";
        const auto pieces = k.pieces();
        body = std::string("        wht::") + (pieces.size() == 2 ? "two_passes" : "three_passes") + "<M";
        for (const WhtPiece& piece : pieces)
            body += ", " + piece.name();
        body += ">(x, y, s, buffer, buffer_bytes);\n";
    }
    o << "struct " << k.name().substr(4) << " {\n"
      << "    using Real = " << r << ";\n"
      << "    static constexpr Scaling scaling = Scaling::SelfInverse;\n"
      << "    static constexpr Real inv_n = " << inv_n << ";  // 1/" << k.length() << "\n"
      << "    static constexpr Real inv_sqrt_n = " << inv_sqrt_n << ";  // 1/sqrt(" << k.length() << ")\n";
    if (!k.passes.empty())
        o << "    static constexpr int buffer_bytes = " << k.buffer_bytes() << ";\n";
    o << "    template <class M>\n"
      << "    VTX_EXPAND static void run(const " << r << "* x, " << r << "* y, " << r << " s, void* "
      << (k.passes.empty() ? "/* buffer: not used below order 8 */" : "buffer") << ")\n"
      << "    {\n"
      << body << "    }\n};\n\n";
    return o.str();
}

}  // namespace

std::string WhtPiece::name() const
{
    if (kind == Kind::Block)
        return "WHTBlock_" + std::to_string(order) + "_" + suffix(prec);
    return "WHTRows_" + std::to_string(order) + "x" + std::to_string(stride) + (scaled ? "_scaled_" : "_") +
           suffix(prec);
}

Graph WhtPiece::build() const
{
    return kind == Kind::Block ? contiguous(prec, order, scaled) : across_rows(prec, order, stride, scaled);
}

int WhtPiece::calls(int kernel_order) const
{
    const int per_call = (1 << order) * (kind == Kind::Block ? 1 : lanes(prec));
    return (1 << kernel_order) / per_call;
}

std::string WhtKernel::name() const { return "vtxgWHT_" + std::to_string(order) + "_" + suffix(prec); }

std::string WhtKernel::twin_name() const { return "owng" + name().substr(4) + "_unaligned"; }

Frame WhtKernel::frame() const
{
    if (order <= (prec == Prec::F32 ? 3 : 2))
        return Frame::NoAlignmentTest;
    if (order == 3)
        return Frame::SecondPath;  // double 3
    return Frame::Twin;
}

int WhtKernel::buffer_bytes() const
{
    if (passes.empty())
        return 0;
    const int e = bytes_of(prec);
    const int chunk = passes.size() == 3 ? (1 << (passes[0] + passes[1])) * e : 0;
    return length() * e + chunk;
}

Graph WhtKernel::build() const
{
    if (!passes.empty())
        throw std::logic_error(name() + " runs in passes, not one straight line");
    return contiguous(prec, order, true);
}

std::vector<WhtPiece> WhtKernel::pieces() const
{
    std::vector<WhtPiece> out{{WhtPiece::Kind::Block, prec, passes.at(0)}};
    int done = passes[0];
    for (std::size_t i = 1; i < passes.size(); ++i) {
        const bool last = i + 1 == passes.size();
        out.push_back({WhtPiece::Kind::Rows, prec, passes[i], 1 << done, last});
        done += passes[i];
    }
    return out;
}

std::vector<WhtKernel> wht_kernels()
{
    std::vector<WhtKernel> out;
    for (Prec p : {Prec::F32, Prec::F64})
        for (int order = 1; order <= kMaxOrder; ++order) {
            WhtKernel k{p, order, {}};
            for (const PassRow& row : kPasses)
                if (row.order == order)
                    k.passes = p == Prec::F32 ? row.f32 : row.f64;
            out.push_back(k);
        }
    return out;
}

// The entries of the kernels of one precision in one form: for the 128-bit
// form the exported kernels, which run the 256-bit form instead where the
// process runs AVX2 (the 64-bit build only), for the 256-bit form the
// internal functions they call.
static std::string wht_unit(Prec p, bool wide)
{
    std::vector<std::string> emitted;
    std::ostringstream pieces, structs, entries;
    const std::string elem = p == Prec::F32 ? "vtx32f" : "vtx64f";
    const std::string params = "(const " + elem + "* src, " + elem + "* dst, int flag, void* buffer)";
    const std::string space = wide ? "vtx::wht_avx2::" : "vtx::";
    for (const WhtKernel& k : wht_kernels()) {
        if (k.prec != p || (wide && !k.has_wide_form()))
            continue;
        if (!k.passes.empty())
            for (const WhtPiece& piece : k.pieces())
                if (std::find(emitted.begin(), emitted.end(), piece.name()) == emitted.end()) {
                    emitted.push_back(piece.name());
                    pieces << piece_struct(piece, wide);
                }
        structs << kernel_struct(k, wide);
        const std::string impl = space + k.name().substr(4);
        if (wide) {
            entries << "extern \"C\" VTX_INTERNAL vtxStatus " << k.form_name("avx2") << params << "\n{\n"
                    << "    return vtx::frame::checked<" << impl << ", vtx::Unaligned>(src, dst, flag, buffer);\n}\n\n";
            continue;
        }
        if (!k.has_wide_form()) {
            entries << entry_points({k.name(), k.twin_name(), impl, params, ", buffer", k.frame()});
            continue;
        }
        // The 128-bit form under an internal name, then the exported choice.
        const std::string sse2 = k.form_name("sse2"), avx2 = k.form_name("avx2");
        std::string own = entry_points({sse2, k.twin_name(), impl, params, ", buffer", k.frame()});
        const std::string exported = "extern \"C\" VTXAPI vtxStatus " + sse2;
        own.replace(own.find(exported), exported.size(), "extern \"C\" VTX_INTERNAL vtxStatus " + sse2);
        entries << "#if defined(__x86_64__)\nextern \"C\" VTX_INTERNAL vtxStatus " << avx2 << params << ";\n#endif\n\n"
                << own << "extern \"C\" VTXAPI vtxStatus " << k.name() << params << "\n{\n"
                << "#if defined(__x86_64__)\n"
                << "    if (vtx::wht::wide_forms())\n"
                << "        return " << avx2 << "(src, dst, flag, buffer);\n"
                << "#endif\n"
                << "    return " << sse2 << "(src, dst, flag, buffer);\n}\n\n";
    }
    const std::string head = wide ? "#include \"frame/simd_wide.hpp\"\n#include \"wht/passes.hpp\"\n\n"
                                    "namespace vtx::wht_avx2 {\nnamespace {\n\n"
                                  : "#include \"wht/passes.hpp\"\n\nnamespace vtx {\nnamespace {\n\n";
    const std::string tail = wide ? "}  // namespace\n}  // namespace vtx::wht_avx2\n\n" : "}  // namespace\n}  // namespace vtx\n\n";
    return std::string("// Generated by vtxgen-gen from the Walsh-Hadamard pass table") +
           (wide ? ": the 256-bit forms (built with -mavx2)" : "") + ". Do not edit.\n" + head + pieces.str() +
           structs.str() + tail + entries.str();
}

std::string WhtPiece::wide_body() const
{
    return kind == Kind::Block ? wide_contiguous(prec, order, scaled) : wide_rows(prec, order, stride, scaled);
}

bool WhtKernel::has_wide_form() const { return order >= kSmallestWide; }

std::string WhtKernel::form_name(const std::string& set) const { return "owng" + name().substr(4) + "_" + set; }

std::string emit_wht_unit(Prec p, bool wide) { return wht_unit(p, wide); }

}  // namespace vtxgen
