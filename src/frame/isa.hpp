// The instruction set the library's kernels run in, chosen once per process.
//
// Every kernel exists in an SSE2 form, the reference that i386 and processors
// without AVX2 run; wider forms give the same bits.  The choice is the widest
// set the processor and its operating system support, narrowed by the
// environment variable VTX_ISA (sse2, avx2 or avx512): a value wider than the
// processor supports is capped at what it supports, and an unknown value is
// ignored.  The choice is made on first use and never changes afterwards.
#pragma once

namespace vtx {

// Narrowest first: a set runs every form of the sets before it.
enum class Isa : int { sse2 = 0, avx2 = 1, avx512 = 2 };

// The set this process runs.  Safe to call from an ifunc resolver.
Isa active_isa() noexcept;

// The widest set this build has kernels for and this processor supports,
// before VTX_ISA narrows it.
Isa supported_isa() noexcept;

// "sse2", "avx2" or "avx512".
const char* isa_name(Isa isa) noexcept;

}  // namespace vtx
