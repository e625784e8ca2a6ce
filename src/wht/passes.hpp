// The passes of the blocked Walsh-Hadamard kernels (orders 8 to 13).
//
// A kernel of order N = a + b (+ c) runs its stages bit 0 upward in two or
// three passes over a work buffer, each pass one generated straight-line
// piece repeated over blocks:
//   Block  a contiguous block of 2^a elements: stages 0..a-1;
//   Rows   one vector-wide column of 2^b rows, 2^a elements apart: stages a..a+b-1
//          (a vector of the piece's form: Rows::lanes elements);
//   Cols   (three passes) one column of 2^c rows, 2^(a+b) apart: the rest.
// The source is read in the first pass only and the destination written in
// the last only, so the two may be the same array; the last piece multiplies
// by the scale just before its stores.  The work buffer is always reached
// with aligned accesses, the caller's arrays through the kernel's policy M.
#pragma once

#include "frame/frame.hpp"
#include "frame/isa.hpp"
#include "vtxcore.h"

namespace vtx {
namespace wht {

// Whether the kernels with a 256-bit form run it: the process runs AVX2.
inline bool wide_forms() { return active_isa() >= Isa::avx2; }

// The caller's buffer, or one of `bytes` from the core library for this call
// (its result is not tested: there is no status for a failed allocation).
template <class Real>
VTX_EXPAND Real* work_buffer(void* buffer, int bytes)
{
    return static_cast<Real*>(buffer ? buffer : vtxMalloc(bytes));
}

template <class Real>
VTX_EXPAND void release(void* buffer, Real* work)
{
    if (!buffer)
        vtxFree(work);
}

// Pass 1: each block of 2^a elements of the source into the buffer at the
// same place.  Pass 2: each column of the buffer across its rows, scaled,
// into the destination.
template <class M, class Block, class Rows, class Real>
VTX_EXPAND void two_passes(const Real* x, Real* y, Real s, void* buffer, int bytes)
{
    constexpr int row = 1 << Block::order, n = row << Rows::order;
    static_assert(Rows::stride == row);
    Real* work = work_buffer<Real>(buffer, bytes);
    for (int i = 0; i < n; i += row)
        Block::template run<Split<M, Aligned>>(x + i, work + i, s);
    for (int c = 0; c < row; c += Rows::lanes)
        Rows::template run<Split<Aligned, M>>(work + c, y + c, s);
    release(buffer, work);
}

// Pass 1, chunk by chunk of 2^(a+b) elements: the blocks of the chunk into
// the chunk array behind the main array, then the columns of the chunk array
// across its rows into the main array at the chunk's place.  Pass 2: each
// column of the main array across its chunks, scaled, into the destination.
template <class M, class Block, class Rows, class Cols, class Real>
VTX_EXPAND void three_passes(const Real* x, Real* y, Real s, void* buffer, int bytes)
{
    constexpr int row = 1 << Block::order, chunk = row << Rows::order, n = chunk << Cols::order;
    static_assert(Rows::stride == row && Cols::stride == chunk);
    Real* work = work_buffer<Real>(buffer, bytes);
    Real* chunk_array = work + n;
    for (int k = 0; k < n; k += chunk) {
        for (int i = 0; i < chunk; i += row)
            Block::template run<Split<M, Aligned>>(x + k + i, chunk_array + i, s);
        for (int c = 0; c < row; c += Rows::lanes)
            Rows::template run<Aligned>(chunk_array + c, work + k + c, s);
    }
    for (int c = 0; c < chunk; c += Cols::lanes)
        Cols::template run<Split<Aligned, M>>(work + c, y + c, s);
    release(buffer, work);
}

}  // namespace wht
}  // namespace vtx
