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

std::string counts_text(const Graph& g)
{
    const Counts c = g.count();
    return std::to_string(c.additions) + " additions and subtractions";
}

std::string piece_struct(const WhtPiece& piece)
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
        o << "    static constexpr int stride = " << piece.stride << ";\n";
    o << "    template <class M>\n"
      << "    VTX_EXPAND static void run(const " << r << "* x, " << r << "* y, [[maybe_unused]] " << r << " s)\n"
      << "    {\n"
      << emit_body(g, piece.prec) << "    }\n};\n\n";
    return o.str();
}

std::string kernel_struct(const WhtKernel& k)
{
    const std::string r = real(k.prec);
    const auto [inv_n, inv_sqrt_n] = scale_literals(k.length(), k.prec);
    std::ostringstream o;
    o << "// " << k.name() << ": ";
    std::string body;
    if (k.passes.empty()) {
        const Graph g = k.build();
        o << "one straight line; " << counts_text(g) << "\n";
        body = emit_body(g, k.prec);
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

std::string emit_wht_unit(Prec p)
{
    std::vector<std::string> emitted;
    std::ostringstream pieces, structs, entries;
    const std::string elem = p == Prec::F32 ? "vtx32f" : "vtx64f";
    for (const WhtKernel& k : wht_kernels()) {
        if (k.prec != p)
            continue;
        if (!k.passes.empty())
            for (const WhtPiece& piece : k.pieces())
                if (std::find(emitted.begin(), emitted.end(), piece.name()) == emitted.end()) {
                    emitted.push_back(piece.name());
                    pieces << piece_struct(piece);
                }
        structs << kernel_struct(k);
        entries << entry_points({k.name(), k.twin_name(), "vtx::" + k.name().substr(4),
                                 "(const " + elem + "* src, " + elem + "* dst, int flag, void* buffer)", ", buffer",
                                 k.frame()});
    }
    return "// Generated by vtxgen-gen from the Walsh-Hadamard pass table. Do not edit.\n"
           "#include \"wht/passes.hpp\"\n\n"
           "namespace vtx {\nnamespace {\n\n" +
           pieces.str() + structs.str() + "}  // namespace\n}  // namespace vtx\n\n" + entries.str();
}

}  // namespace vtxgen
