// The computations of a DCT-IV plan of length 64 and up.
//
//   stage one   env5 (and env7 / env9 below it for columns longer than 64):
//               the m folded columns of the input, each transformed with odd
//               frequencies, into the root's scratch;
//   stage two   env4: the scratch rows twiddled and combined into the output.
//
// Each returns 0, or vtxStatusBadRule for a rule it has no body for (which a
// built plan never holds).  Column and output offsets are element indices.
#pragma once

#include "dct4/nodes.hpp"

#include <cstdint>

namespace vtx::dct4 {

// All groups of lanes columns of the input into the scratch (row pitch m).
template <class T> std::int32_t env5_compute(const Env5* self, T* dst, const T* src);

// `groups` adjacent groups of lanes columns, the first column being `column`
// of the level above's input fold, written from `output` of each row of
// `dst`.  The rows of every level hold all groups side by side, so one pass
// of a level serves them all and each cache line is fetched once.
template <class T>
std::int32_t env7_compute(const Env7* self, T* dst, const T* src, std::int32_t column, std::int32_t output,
                          std::int32_t groups);
template <class T>
std::int32_t env9_compute(const Env9* self, T* dst, const T* src, std::int32_t column, std::int32_t output,
                          std::int32_t groups);
template <class T>
std::int32_t env8_compute(const Env8* self, T* dst, const T* src, std::int32_t output, std::int32_t groups);

// The scratch into the transform's output.
template <class T> std::int32_t env4_compute(const Env4* self, T* dst, const T* src);

// The whole transform of a root of rule 6, `src` to `dst` through the scratch.
template <class T> std::int32_t env1_compute(const Env1* self, T* dst, const T* src);

}  // namespace vtx::dct4
