// The size dispatchers: for a size known only at run time, the kernel of
// that size from a constant table of 63 entries, entry i holding size i + 2.
// One unsigned comparison rejects every size outside 2..64, negative ones
// included; nothing else is looked at here, so pointers and the flag meet
// the kernel's own checks.
#include "vtxgen.h"

#include <cstddef>

#define VTX_SIZES(X)                                                                                   \
    X(2) X(3) X(4) X(5) X(6) X(7) X(8) X(9) X(10) X(11) X(12) X(13) X(14) X(15) X(16) X(17) X(18)     \
    X(19) X(20) X(21) X(22) X(23) X(24) X(25) X(26) X(27) X(28) X(29) X(30) X(31) X(32) X(33) X(34)   \
    X(35) X(36) X(37) X(38) X(39) X(40) X(41) X(42) X(43) X(44) X(45) X(46) X(47) X(48) X(49) X(50)   \
    X(51) X(52) X(53) X(54) X(55) X(56) X(57) X(58) X(59) X(60) X(61) X(62) X(63) X(64)

namespace {

template <class T>
using Kernel = vtxStatus (*)(const T*, T*, int);

#define VTX_FWD_32(n) vtxgDFTFwd_CToC_##n##_32fc,
#define VTX_FWD_64(n) vtxgDFTFwd_CToC_##n##_64fc,
#define VTX_INV_32(n) vtxgDFTInv_CToC_##n##_32fc,
#define VTX_INV_64(n) vtxgDFTInv_CToC_##n##_64fc,

#define VTX_CCS_32(n) vtxgDFTFwd_RToCCS_##n##_32f,
#define VTX_CCS_64(n) vtxgDFTFwd_RToCCS_##n##_64f,
#define VTX_PACK_32(n) vtxgDFTFwd_RToPack_##n##_32f,
#define VTX_PACK_64(n) vtxgDFTFwd_RToPack_##n##_64f,
#define VTX_PERM_32(n) vtxgDFTFwd_RToPerm_##n##_32f,
#define VTX_PERM_64(n) vtxgDFTFwd_RToPerm_##n##_64f,

constexpr Kernel<vtx32fc> fwd_32fc[] = {VTX_SIZES(VTX_FWD_32)};
constexpr Kernel<vtx64fc> fwd_64fc[] = {VTX_SIZES(VTX_FWD_64)};
constexpr Kernel<vtx32fc> inv_32fc[] = {VTX_SIZES(VTX_INV_32)};
constexpr Kernel<vtx64fc> inv_64fc[] = {VTX_SIZES(VTX_INV_64)};
constexpr Kernel<vtx32f> ccs_32f[] = {VTX_SIZES(VTX_CCS_32)};
constexpr Kernel<vtx64f> ccs_64f[] = {VTX_SIZES(VTX_CCS_64)};
constexpr Kernel<vtx32f> pack_32f[] = {VTX_SIZES(VTX_PACK_32)};
constexpr Kernel<vtx64f> pack_64f[] = {VTX_SIZES(VTX_PACK_64)};
constexpr Kernel<vtx32f> perm_32f[] = {VTX_SIZES(VTX_PERM_32)};
constexpr Kernel<vtx64f> perm_64f[] = {VTX_SIZES(VTX_PERM_64)};

static_assert(sizeof fwd_32fc / sizeof fwd_32fc[0] == 63 && sizeof perm_64f / sizeof perm_64f[0] == 63);

template <class T, std::size_t Entries>
vtxStatus dispatch(const Kernel<T> (&table)[Entries], const T* src, T* dst, int n, int flag)
{
    const unsigned entry = static_cast<unsigned>(n) - 2u;
    if (entry > Entries - 1)
        return vtxStatusSizeError;
    return table[entry](src, dst, flag);
}

}  // namespace

extern "C" {

vtxStatus vtxgDFTFwd_CToC_32fc(const vtx32fc* src, vtx32fc* dst, int n, int flag)
{
    return dispatch(fwd_32fc, src, dst, n, flag);
}

vtxStatus vtxgDFTFwd_CToC_64fc(const vtx64fc* src, vtx64fc* dst, int n, int flag)
{
    return dispatch(fwd_64fc, src, dst, n, flag);
}

vtxStatus vtxgDFTInv_CToC_32fc(const vtx32fc* src, vtx32fc* dst, int n, int flag)
{
    return dispatch(inv_32fc, src, dst, n, flag);
}

vtxStatus vtxgDFTInv_CToC_64fc(const vtx64fc* src, vtx64fc* dst, int n, int flag)
{
    return dispatch(inv_64fc, src, dst, n, flag);
}

vtxStatus vtxgDFTFwd_RToCCS_32f(const vtx32f* src, vtx32f* dst, int n, int flag)
{
    return dispatch(ccs_32f, src, dst, n, flag);
}

vtxStatus vtxgDFTFwd_RToCCS_64f(const vtx64f* src, vtx64f* dst, int n, int flag)
{
    return dispatch(ccs_64f, src, dst, n, flag);
}

vtxStatus vtxgDFTFwd_RToPack_32f(const vtx32f* src, vtx32f* dst, int n, int flag)
{
    return dispatch(pack_32f, src, dst, n, flag);
}

vtxStatus vtxgDFTFwd_RToPack_64f(const vtx64f* src, vtx64f* dst, int n, int flag)
{
    return dispatch(pack_64f, src, dst, n, flag);
}

vtxStatus vtxgDFTFwd_RToPerm_32f(const vtx32f* src, vtx32f* dst, int n, int flag)
{
    return dispatch(perm_32f, src, dst, n, flag);
}

vtxStatus vtxgDFTFwd_RToPerm_64f(const vtx64f* src, vtx64f* dst, int n, int flag)
{
    return dispatch(perm_64f, src, dst, n, flag);
}

}  // extern "C"
