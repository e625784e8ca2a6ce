// The size dispatchers: for a size known only at run time, the kernel of
// that size from a constant table of 63 entries, entry i holding size i + 2.
// One unsigned comparison rejects every size outside 2..64, negative ones
// included; nothing else is looked at here, so pointers and the flag meet
// the kernel's own checks.
#include "vtxgen.h"

#include <cstddef>

namespace {

template <class T>
using Kernel = vtxStatus (*)(const T*, T*, int);

template <class T, std::size_t Entries>
vtxStatus dispatch(const Kernel<T> (&table)[Entries], const T* src, T* dst, int n, int flag)
{
    static_assert(Entries == 63);
    const unsigned entry = static_cast<unsigned>(n) - 2u;
    if (entry > Entries - 1)
        return vtxStatusSizeError;
    return table[entry](src, dst, flag);
}

}  // namespace

// The kernel of every size 2..64 of one family: family_N_type, in order.
#define VTX_KERNELS(family, type)                                                                          \
    family##_2_##type, family##_3_##type, family##_4_##type, family##_5_##type, family##_6_##type,          \
        family##_7_##type, family##_8_##type, family##_9_##type, family##_10_##type, family##_11_##type,     \
        family##_12_##type, family##_13_##type, family##_14_##type, family##_15_##type, family##_16_##type,  \
        family##_17_##type, family##_18_##type, family##_19_##type, family##_20_##type, family##_21_##type,  \
        family##_22_##type, family##_23_##type, family##_24_##type, family##_25_##type, family##_26_##type,  \
        family##_27_##type, family##_28_##type, family##_29_##type, family##_30_##type, family##_31_##type,  \
        family##_32_##type, family##_33_##type, family##_34_##type, family##_35_##type, family##_36_##type,  \
        family##_37_##type, family##_38_##type, family##_39_##type, family##_40_##type, family##_41_##type,  \
        family##_42_##type, family##_43_##type, family##_44_##type, family##_45_##type, family##_46_##type,  \
        family##_47_##type, family##_48_##type, family##_49_##type, family##_50_##type, family##_51_##type,  \
        family##_52_##type, family##_53_##type, family##_54_##type, family##_55_##type, family##_56_##type,  \
        family##_57_##type, family##_58_##type, family##_59_##type, family##_60_##type, family##_61_##type,  \
        family##_62_##type, family##_63_##type, family##_64_##type

// The general entry family_type over the table of its kernels.
#define VTX_DISPATCHER(family, type, T)                                             \
    vtxStatus family##_##type(const T* src, T* dst, int n, int flag)                \
    {                                                                                \
        static constexpr Kernel<T> table[] = {VTX_KERNELS(family, type)};            \
        return dispatch(table, src, dst, n, flag);                                   \
    }

extern "C" {

VTX_DISPATCHER(vtxgDFTFwd_CToC, 32fc, vtx32fc)
VTX_DISPATCHER(vtxgDFTFwd_CToC, 64fc, vtx64fc)
VTX_DISPATCHER(vtxgDFTInv_CToC, 32fc, vtx32fc)
VTX_DISPATCHER(vtxgDFTInv_CToC, 64fc, vtx64fc)
VTX_DISPATCHER(vtxgHartley, 32f, vtx32f)
VTX_DISPATCHER(vtxgHartley, 64f, vtx64f)
VTX_DISPATCHER(vtxgDFTFwd_RToCCS, 32f, vtx32f)
VTX_DISPATCHER(vtxgDFTFwd_RToCCS, 64f, vtx64f)
VTX_DISPATCHER(vtxgDFTFwd_RToPack, 32f, vtx32f)
VTX_DISPATCHER(vtxgDFTFwd_RToPack, 64f, vtx64f)
VTX_DISPATCHER(vtxgDFTFwd_RToPerm, 32f, vtx32f)
VTX_DISPATCHER(vtxgDFTFwd_RToPerm, 64f, vtx64f)
VTX_DISPATCHER(vtxgDFTInv_CCSToR, 32f, vtx32f)
VTX_DISPATCHER(vtxgDFTInv_CCSToR, 64f, vtx64f)
VTX_DISPATCHER(vtxgDFTInv_PackToR, 32f, vtx32f)
VTX_DISPATCHER(vtxgDFTInv_PackToR, 64f, vtx64f)
VTX_DISPATCHER(vtxgDFTInv_PermToR, 32f, vtx32f)
VTX_DISPATCHER(vtxgDFTInv_PermToR, 64f, vtx64f)

}  // extern "C"

#undef VTX_DISPATCHER
#undef VTX_KERNELS
