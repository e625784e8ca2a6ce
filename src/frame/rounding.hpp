// The floating-point setting every unit that computes a transform compiles
// under: each operation rounds once, as written, in the precision of its
// operands.  The build gives -fno-fast-math -ffp-contract=off (and, on 32-bit
// x86, -msse2 -mfpmath=sse) after the user's flags; a unit that still sees
// one of the settings below got flags after those (from a compiler wrapper,
// say) and would compute other bits than the library's, so it stops here.
// Contraction leaves no trace in the preprocessor: the configuration tests
// it instead (cmake/arith.cmake).
#pragma once

#if defined(__FAST_MATH__)
#error "vtxgen: compiled with -ffast-math or -Ofast: the kernels would not give their bits; remove it"
#endif
#if defined(__FINITE_MATH_ONLY__) && __FINITE_MATH_ONLY__
#error "vtxgen: compiled with -ffinite-math-only: the kernels would not give their bits; remove it"
#endif
// GCC names the parts of -funsafe-math-optimizations; clang does not.
#if defined(__ASSOCIATIVE_MATH__) || defined(__RECIPROCAL_MATH__) || defined(__NO_SIGNED_ZEROS__)
#error "vtxgen: compiled with -funsafe-math-optimizations or a part of it: the kernels would not give their bits"
#endif
#if defined(__FLT_EVAL_METHOD__) && __FLT_EVAL_METHOD__ != 0
#error "vtxgen: float and double arithmetic is evaluated in a wider format (x87); compile with -msse2 -mfpmath=sse"
#endif
