// The Walsh-Hadamard kernels: which exist, their pass table, and the graphs
// of their straight-line pieces.
//
// Orders 1 to 7 are one straight line each.  Orders 8 to 13 run two or three
// passes through a work buffer; each pass repeats one straight-line piece
// over blocks, and the loops are hand-written (src/wht/passes.hpp).  The
// pieces are:
//   Block  2^order contiguous elements, stages 0..order-1, unscaled;
//   Rows   one vector-wide column of 2^order rows `stride` elements apart,
//          stages across the rows, scaled when it ends the kernel.
#pragma once

#include "emit.hpp"
#include "graph.hpp"

#include <string>
#include <vector>

namespace vtxgen {

struct WhtPiece {
    enum class Kind { Block, Rows };
    Kind kind;
    Prec prec;
    int order;       // stages performed
    int stride = 0;  // Rows: elements from one row to the next
    bool scaled = false;

    std::string name() const;  // WHTBlock_6_32f, WHTRows_3x64_32f, WHTRows_4x512_scaled_32f
    Graph build() const;
    std::string wide_body() const;  // the statements of the 256-bit form
    int calls(int kernel_order) const;  // how often a kernel of that order runs it
};

struct WhtKernel {
    Prec prec;
    int order;
    std::vector<int> passes;  // pass orders (a, b[, c]); empty for one straight line

    int length() const { return 1 << order; }
    std::string name() const;       // vtxgWHT_8_32f
    std::string twin_name() const;  // owngWHT_8_32f_unaligned
    bool has_wide_form() const;     // orders 5 and up have a 256-bit form
    std::string form_name(const std::string& set) const;  // owngWHT_8_32f_avx2
    Frame frame() const;
    int buffer_bytes() const;       // 0 below order 8
    // Straight-line orders: the whole kernel, scaled.
    Graph build() const;
    // Blocked orders: the pieces of the passes, in pass order.
    std::vector<WhtPiece> pieces() const;
};

// The 26 kernels, float first, by order.
std::vector<WhtKernel> wht_kernels();

// A translation unit with the kernels of one precision: the 128-bit forms and
// the exported entries, or (`wide`) the 256-bit forms, built with -mavx2.
std::string emit_wht_unit(Prec p, bool wide = false);

}  // namespace vtxgen
