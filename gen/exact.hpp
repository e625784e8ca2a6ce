// Constants computed well beyond double precision, rounded once.
//
// Sines and cosines of rational multiples of 2 pi are taken to an angle in
// [0, pi/4] by integer symmetry (so cos(pi/2) is exactly 0 and cos(pi/4)
// equals sin(pi/4)), then summed as Taylor series in binary128 arithmetic,
// which GCC provides in software on x86-64 and i386 alike.  The conversion to
// double or float rounds correctly; the series' error is far below anything
// that could move a rounding.
#pragma once

namespace vtxgen::exact {

using Quad = __float128;

Quad pi();
Quad sqrt(Quad v);

// cos and sin of 2 pi num / den, any integers with den > 0.
Quad cos_2pi(long num, long den);
Quad sin_2pi(long num, long den);

inline double to_double(Quad v) { return static_cast<double>(v); }
inline float to_float(Quad v) { return static_cast<float>(v); }

}  // namespace vtxgen::exact
