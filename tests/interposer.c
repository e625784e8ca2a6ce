/* A library exporting some of vtxgen's kernel names, loaded before it: its
 * functions return a status no kernel has and count their calls.  The
 * library's dispatchers must still run their own kernels. */
#include "vtxgen.h"

int vtxInterposedCalls = 0;

#define VTX_IMPOSTOR(name, T)                                    \
    VTXAPI vtxStatus name(const T *src, T *dst, int scaleFlag)   \
    {                                                            \
        (void)src;                                               \
        (void)dst;                                               \
        (void)scaleFlag;                                         \
        ++vtxInterposedCalls;                                    \
        return 77;                                               \
    }

VTX_IMPOSTOR(vtxgDFTFwd_CToC_2_32fc, vtx32fc)
VTX_IMPOSTOR(vtxgDFTInv_CToC_47_32fc, vtx32fc)
VTX_IMPOSTOR(vtxgDFTFwd_CToC_64_64fc, vtx64fc)
VTX_IMPOSTOR(vtxgDFTFwd_RToCCS_8_32f, vtx32f)
VTX_IMPOSTOR(vtxgDFTFwd_RToPerm_59_64f, vtx64f)

VTXAPI vtxStatus vtxgWHT_3_32f(const vtx32f *src, vtx32f *dst, int scaleFlag, void *buffer)
{
    (void)src;
    (void)dst;
    (void)scaleFlag;
    (void)buffer;
    ++vtxInterposedCalls;
    return 77;
}
