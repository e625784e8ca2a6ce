// The arithmetic graph of one kernel.
//
// A node is a value of one, two or four lanes with an explicit element
// precision.  The graph knows nothing about Fourier transforms: it holds loads,
// constants, lane-wise arithmetic, lane moves and stores, in the order in
// which a builder created them.  Nothing is merged behind the builder's back:
// two identical expressions are two nodes unless the builder reuses one.
//
// That order names the nodes and guides the schedule, so it must not depend
// on the compiler that builds the generator: a builder never creates nodes in
// two arguments of one call, whose order C++ leaves open (GCC evaluates them
// last to first, clang first to last), but in statements of their own.
//
// What a graph can do besides being printed: evaluate itself in IEEE float
// and double exactly as the compiled kernel rounds, and count its operations.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace vtxgen {

enum class Prec : std::uint8_t { F32, F64 };

inline int bytes_of(Prec p) { return p == Prec::F32 ? 4 : 8; }

enum class Op : std::uint8_t {
    Load,      // lanes from the source, starting at component `offset`
    Store,     // operand a's lanes to the destination, starting at component `offset`
    Const,     // per-lane constant
    Add,
    Sub,
    Mul,       // lane-wise product; counted as a multiplication
    Mask,      // product with a constant of ones and zeros (b) isolating lanes; counted in its one-lanes
    Scale,     // product with the run-time scale factor: the last product of an output
    Neg,       // 0 - a, positive zero the minuend: the sign of an output, after its scale
    Widen,     // float to double, exact
    Narrow,    // double to float, one rounding
    Swap,      // two lanes exchanged
    FlipSign,  // sign bits of the lanes in `mask` flipped (exclusive or, no arithmetic)
    Shuffle,   // lane l of the result is lane sel[l] of (a, b): 0-3 from a, 4-7 from b (0-1, 2-3 in two lanes)
};

// How a load or store meets memory.  Full accesses move the node's 16 bytes;
// Low and High move eight bytes: a four-lane node's lanes 0-1 or 2-3.  A Low
// load clears lanes 2-3.  No access reaches outside the source or the
// destination: a source ending 8 bytes into a 16-byte block ends with a Low
// load, at any alignment.
enum class Access : std::uint8_t { Scalar, Full, Low, High };

using Id = std::int32_t;
constexpr Id kNone = -1;

struct Node {
    Op op = Op::Const;
    Prec prec = Prec::F64;
    std::uint8_t width = 1;  // lanes: 1, 2 or 4
    Access access = Access::Scalar;
    Id a = kNone;
    Id b = kNone;
    int offset = 0;                 // memory component index for Load/Store
    std::array<std::uint8_t, 4> sel{};  // Shuffle lane sources; FlipSign uses sel[l] != 0
    std::array<double, 4> value{};  // Const lanes (float constants hold exact float values)
    std::string note;               // what a constant means, for the printed comment
};

// Operation counts by the conventions of the published tables: additions and
// multiplications are real operations on data, counted per lane that carries
// a result; the final scale is not counted.
struct Counts {
    int additions = 0;
    int multiplications = 0;
    int exchanges = 0;     // lane exchanges (two-lane form)
    int negations = 0;     // outputs formed as 0 - v after their scale
    int doublings = 0;     // products with 2 (exact), apart from the multiplications
    int widen = 0;
    int narrow = 0;
    int scaled_wide = 0;   // outputs of a float kernel scaled in double, then rounded
    int scale_lanes = 0;   // lanes of the final scale that carry a result
    int lane_slots = 0;    // lanes of all arithmetic operations, the final scale included, used or not
    // Share of the lanes of arithmetic operations that carry a result; the
    // final scale multiplications count among the operations here.
    double lanes_in_use() const
    {
        return lane_slots ? double(additions + multiplications + scale_lanes) / lane_slots : 1.0;
    }
};

class Graph {
public:
    // `element`: the precision of the kernel's source and destination; every
    // load and store has it.
    explicit Graph(Prec element) : element_(element) {}
    Prec element() const { return element_; }

    const std::vector<Node>& nodes() const { return nodes_; }
    const Node& operator[](Id id) const { return nodes_[static_cast<std::size_t>(id)]; }

    Id load(Prec p, int width, Access access, int offset);
    void store(Id v, Access access, int offset);
    Id constant(Prec p, int width, std::array<double, 4> lanes, std::string note = {});
    Id splat(Prec p, int width, double v, std::string note = {});
    Id add(Id a, Id b);
    Id sub(Id a, Id b);
    Id mul(Id a, Id b);
    Id mask(Id a, std::array<bool, 4> lanes);
    Id scale(Id a);
    Id neg(Id a);
    Id widen(Id a);
    Id narrow(Id a);
    Id swap(Id a);
    Id flip_sign(Id a, std::array<bool, 4> lanes);
    Id shuffle(Id a, Id b, std::array<int, 4> sel);

    // Lanes of each node that reach a store, as a bit mask.
    std::vector<std::uint8_t> live_lanes() const;
    Counts count() const;

    // Runs the graph on `src` (components of the kernel's element type, held
    // as doubles; float kernels take exact float values) and writes `dst`.
    // Every operation rounds as the compiled kernel does.
    void evaluate(const std::vector<double>& src, std::vector<double>& dst, double scale) const;

    // Components read and written, from the loads and stores.
    int source_components() const;
    int destination_components() const;

private:
    Id push(Node n);
    Id binary(Op op, Id a, Id b);
    Id unary(Op op, Id a, Prec p);
    Prec element_;
    std::vector<Node> nodes_;
};

}  // namespace vtxgen
