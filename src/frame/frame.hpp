// The call frame shared by every kernel: the order of checks, the choice of
// the scale factor, and the hand-off of misaligned pointers.
//
// A kernel type K supplies
//   using Real = float or double;          its working precision
//   static constexpr Scaling scaling;      which flag divides
//   static constexpr Real inv_n, inv_sqrt_n;
//   template <class Mem> static void run(const Real* x, Real* y, Real s);
// where run reads all of x before it writes y, and multiplies every output
// component by s as its last step.  Arguments past the flag (the work buffer
// of the Walsh-Hadamard kernels) go to run unchanged, after s.
#pragma once

#include "rounding.hpp"
#include "simd.hpp"
#include "vtxgen.h"

#include <cstdint>
#include <type_traits>

#define VTX_INTERNAL __attribute__((visibility("hidden")))
// Kernel bodies and the frame are expanded into each entry point: a kernel
// calls nothing but, at most, its twin.
#define VTX_EXPAND __attribute__((always_inline)) inline

namespace vtx {

// Which flag value divides by N.
enum class Scaling {
    Forward,      // 1 divides: forward transforms
    Inverse,      // 2 divides: inverse transforms
    SelfInverse,  // 1 and 2 both divide: Hartley and Walsh-Hadamard
};

namespace frame {

inline bool misaligned(const void* src, const void* dst)
{
    return ((reinterpret_cast<std::uintptr_t>(src) | reinterpret_cast<std::uintptr_t>(dst)) & 15u) != 0;
}

// The factor of a flag, tested in the order 8, 4, 1, 2.  False for any other flag.
template <Scaling S, class Real>
inline bool choose_scale(int flag, Real inv_n, Real inv_sqrt_n, Real& s)
{
    if (flag == vtxScaleNone)
        s = Real(1);
    else if (flag == vtxScaleSymmetric)
        s = inv_sqrt_n;
    else if (flag == vtxScaleForward)
        s = S == Scaling::Inverse ? Real(1) : inv_n;
    else if (flag == vtxScaleInverse)
        s = S == Scaling::Forward ? Real(1) : inv_n;
    else
        return false;
    return true;
}

// Null test (source, then destination), flag test, then the transform.
template <class K, class Mem, class Src, class Dst, class... Extra>
VTX_EXPAND vtxStatus checked(const Src* src, Dst* dst, int flag, Extra... extra)
{
    using Real = typename K::Real;
    if (!src)
        return vtxStatusNullPointer;
    if (!dst)
        return vtxStatusNullPointer;
    Real s;
    if (!choose_scale<K::scaling>(flag, K::inv_n, K::inv_sqrt_n, s))
        return vtxStatusFlagError;
    K::template run<Mem>(reinterpret_cast<const Real*>(src), reinterpret_cast<Real*>(dst), s, extra...);
    return vtxStatusOk;
}

// A kernel whose misaligned calls go to its twin, which runs the checks itself.
template <class K, class Src, class Dst, class... Extra>
VTX_EXPAND vtxStatus with_twin(const Src* src, Dst* dst, int flag, vtxStatus (*twin)(const Src*, Dst*, int, Extra...),
                               std::type_identity_t<Extra>... extra)
{
    if (misaligned(src, dst))
        return twin(src, dst, flag, extra...);
    return checked<K, Aligned>(src, dst, flag, extra...);
}

// A kernel that holds both paths itself.
template <class K, class Src, class Dst, class... Extra>
VTX_EXPAND vtxStatus with_second_path(const Src* src, Dst* dst, int flag, Extra... extra)
{
    if (misaligned(src, dst))
        return checked<K, Unaligned>(src, dst, flag, extra...);
    return checked<K, Aligned>(src, dst, flag, extra...);
}

}  // namespace frame
}  // namespace vtx
