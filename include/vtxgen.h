/* vtxgen: fixed-size discrete transforms for x86 with 128-bit vectors.
 *
 * Every transform size is a function of its own: a generated straight line of
 * arithmetic with its constants inline.  All functions are reentrant, keep no
 * state and never allocate (except where noted).
 *
 * Calling convention of every kernel:
 *   status = kernel(source, destination, scaleFlag);
 * The source is read in full before the first element of the destination is
 * written, so source and destination may be the same array.  Any alignment is
 * accepted; 16-byte aligned pointers take the fastest path.
 *
 * Compiles as C99 and as C++.
 */
#ifndef VTXGEN_H
#define VTXGEN_H

#include <stdint.h>

#if defined(_WIN32)
#define VTXAPI
#else
#define VTXAPI __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Status values ---------------------------------------------------- */

typedef int32_t vtxStatus;

enum {
    vtxStatusOk = 0,            /* the destination holds the result */
    vtxStatusBadRule = -5,      /* a DCT-IV plan met a rule outside its table */
    vtxStatusSizeError = -6,    /* a general entry was given a size it lacks */
    vtxStatusNullPointer = -8,  /* source or destination was null */
    vtxStatusFlagError = -16    /* scaleFlag was not one of the four below */
};

/* ---- Scale flags -------------------------------------------------------
 * The flag picks the factor s that multiplies every output component:
 *
 *                       forward   inverse   Hartley, Walsh-Hadamard
 *   vtxScaleForward       1/N        1          1/N
 *   vtxScaleInverse        1        1/N         1/N
 *   vtxScaleSymmetric  1/sqrt(N) 1/sqrt(N)   1/sqrt(N)
 *   vtxScaleNone           1         1           1
 *
 * A forward and an inverse transform with the same flag, Forward or Inverse,
 * compose to the identity; so do two passes with Symmetric.  Any other value
 * gives vtxStatusFlagError.
 */
enum {
    vtxScaleForward = 1,
    vtxScaleInverse = 2,
    vtxScaleSymmetric = 4,
    vtxScaleNone = 8
};

/* ---- Element types ---------------------------------------------------- */

typedef float vtx32f;
typedef double vtx64f;
typedef struct vtx32fc { float re, im; } vtx32fc;
typedef struct vtx64fc { double re, im; } vtx64fc;

/* ---- Version ----------------------------------------------------------- */

typedef struct VersionRecord {
    int32_t versionMajor;
    int32_t versionMinor;
    int32_t buildMajor;
    int32_t buildNumber;
    char cpuTag[4];
    const char *libraryName;
    const char *versionText;
    const char *buildDate;
} VersionRecord;

/* The record of the linked build; constant, never null, never to be freed. */
VTXAPI const VersionRecord *vtxgenGetLibVersion(void);

/* ---- Size dispatchers --------------------------------------------------
 * The kernel of size n (2 to 64) called with the other arguments unchanged,
 * its status returned; any other n gives vtxStatusSizeError before a pointer
 * or the flag is looked at.
 */
VTXAPI vtxStatus vtxgDFTFwd_CToC_32fc(const vtx32fc *src, vtx32fc *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_64fc(const vtx64fc *src, vtx64fc *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_32fc(const vtx32fc *src, vtx32fc *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_64fc(const vtx64fc *src, vtx64fc *dst, int n, int scaleFlag);

/* ---- Walsh-Hadamard transform ------------------------------------------
 * y[k] = s * sum_j (-1)^popcount(j & k) x[j], n = 2^order real elements,
 * natural (Hadamard) order.  Scale flags 1 and 2 both give s = 1/n, 4 gives
 * 1/sqrt(n), 8 gives 1: twice with flag 4, or once with 1 and once with 8,
 * returns the input.
 *
 * Orders 8 to 13 run in passes through a work buffer of the size that
 * vtxgWHTGetBufferSize_32f / _64f reports, 16-byte aligned whatever the
 * alignment of src and dst; a null buffer makes the kernel take one from
 * vtxMalloc and release it before returning (an allocation per call).
 * Orders 1 to 7 ignore the buffer argument.  Source and destination may be
 * the same array.
 */
VTXAPI vtxStatus vtxgWHT_1_32f(const vtx32f *src, vtx32f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_2_32f(const vtx32f *src, vtx32f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_3_32f(const vtx32f *src, vtx32f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_4_32f(const vtx32f *src, vtx32f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_5_32f(const vtx32f *src, vtx32f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_6_32f(const vtx32f *src, vtx32f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_7_32f(const vtx32f *src, vtx32f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_8_32f(const vtx32f *src, vtx32f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_9_32f(const vtx32f *src, vtx32f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_10_32f(const vtx32f *src, vtx32f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_11_32f(const vtx32f *src, vtx32f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_12_32f(const vtx32f *src, vtx32f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_13_32f(const vtx32f *src, vtx32f *dst, int scaleFlag, void *buffer);

VTXAPI vtxStatus vtxgWHT_1_64f(const vtx64f *src, vtx64f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_2_64f(const vtx64f *src, vtx64f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_3_64f(const vtx64f *src, vtx64f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_4_64f(const vtx64f *src, vtx64f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_5_64f(const vtx64f *src, vtx64f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_6_64f(const vtx64f *src, vtx64f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_7_64f(const vtx64f *src, vtx64f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_8_64f(const vtx64f *src, vtx64f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_9_64f(const vtx64f *src, vtx64f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_10_64f(const vtx64f *src, vtx64f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_11_64f(const vtx64f *src, vtx64f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_12_64f(const vtx64f *src, vtx64f *dst, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_13_64f(const vtx64f *src, vtx64f *dst, int scaleFlag, void *buffer);

/* The kernel of `order` (1 to 13) called with the other arguments unchanged
 * and its status returned; any other order gives vtxStatusSizeError before a
 * pointer or the flag is looked at. */
VTXAPI vtxStatus vtxgWHT_32f(const vtx32f *src, vtx32f *dst, int order, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_64f(const vtx64f *src, vtx64f *dst, int order, int scaleFlag, void *buffer);

/* Bytes of work buffer that the kernel of `order` needs (0 below order 8)
 * written to *bytes; an order outside 1 to 13 gives vtxStatusSizeError and
 * leaves *bytes alone. */
VTXAPI vtxStatus vtxgWHTGetBufferSize_32f(int order, int *bytes);
VTXAPI vtxStatus vtxgWHTGetBufferSize_64f(int order, int *bytes);

/* ---- DCT-IV -------------------------------------------------------------
 * y[k] = sum_n x[n] cos(pi/N (n + 1/2)(k + 1/2)), k = 0 .. N-1, unscaled
 * (two passes give N/2 times the input).  N is a power of two from 2 to 2^26
 * in single and 2^25 in double precision.
 *
 * A plan lives in one block of memory:
 *   vtxgDCT4GetSize_32f(N, &size)       bytes the block needs, or
 *                                       vtxStatusSizeError (size untouched);
 *   vtxgDCT4Init_32f(&spec, N, block)   builds the plan in a caller's block of
 *                                       that size, any alignment;
 *   vtxgDCT4InitAlloc_32f(&spec, N)     the same in a block from vtxMalloc,
 *                                       given back by vtxgDCT4Free_32f only;
 *   vtxgDCT4_32f(src, dst, spec)        executes; src may equal dst.  One
 *                                       execution at a time per plan.
 * A plan built by Init in the caller's block is simply dropped with it.
 * Execution allocates nothing.  vtxStatusBadRule (-5) comes only from a
 * plan whose rule fields were overwritten.
 */
typedef struct vtxDCT4Spec_32f vtxDCT4Spec_32f;
typedef struct vtxDCT4Spec_64f vtxDCT4Spec_64f;

VTXAPI vtxStatus vtxgDCT4GetSize_32f(int len, int *sizeOut);
VTXAPI vtxStatus vtxgDCT4GetSize_64f(int len, int *sizeOut);
VTXAPI vtxStatus vtxgDCT4Init_32f(vtxDCT4Spec_32f **specOut, int len, void *block);
VTXAPI vtxStatus vtxgDCT4Init_64f(vtxDCT4Spec_64f **specOut, int len, void *block);
VTXAPI vtxStatus vtxgDCT4InitAlloc_32f(vtxDCT4Spec_32f **specOut, int len);
VTXAPI vtxStatus vtxgDCT4InitAlloc_64f(vtxDCT4Spec_64f **specOut, int len);
VTXAPI vtxStatus vtxgDCT4Free_32f(vtxDCT4Spec_32f *spec);
VTXAPI vtxStatus vtxgDCT4Free_64f(vtxDCT4Spec_64f *spec);
VTXAPI vtxStatus vtxgDCT4_32f(const vtx32f *src, vtx32f *dst, const vtxDCT4Spec_32f *spec);
VTXAPI vtxStatus vtxgDCT4_64f(const vtx64f *src, vtx64f *dst, const vtxDCT4Spec_64f *spec);

/* ---- Complex forward DFT ------------------------------------------------
 * y[k] = s * sum_n x[n] exp(-2 pi i n k / N), interleaved complex, natural order.
 */
VTXAPI vtxStatus vtxgDFTFwd_CToC_2_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_3_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_4_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_5_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_6_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_7_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_8_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_9_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_10_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_11_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_12_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_13_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_14_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_15_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_16_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_17_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_18_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_19_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_20_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_21_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_22_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_23_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_24_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_25_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_26_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_27_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_28_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_29_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_30_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_31_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_32_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_33_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_34_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_35_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_36_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_37_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_38_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_39_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_40_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_41_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_42_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_43_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_44_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_45_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_46_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_47_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_48_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_49_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_50_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_51_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_52_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_53_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_54_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_55_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_56_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_57_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_58_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_59_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_60_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_61_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_62_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_63_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_64_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);

VTXAPI vtxStatus vtxgDFTFwd_CToC_2_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_3_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_4_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_5_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_6_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_7_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_8_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_9_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_10_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_11_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_12_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_13_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_14_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_15_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_16_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_17_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_18_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_19_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_20_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_21_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_22_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_23_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_24_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_25_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_26_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_27_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_28_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_29_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_30_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_31_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_32_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_33_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_34_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_35_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_36_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_37_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_38_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_39_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_40_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_41_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_42_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_43_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_44_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_45_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_46_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_47_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_48_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_49_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_50_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_51_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_52_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_53_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_54_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_55_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_56_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_57_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_58_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_59_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_60_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_61_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_62_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_63_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_64_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);

/* ---- Complex inverse DFT ------------------------------------------------
 * y[k] = s * sum_n x[n] exp(+2 pi i n k / N), interleaved complex, natural order.
 */
VTXAPI vtxStatus vtxgDFTInv_CToC_2_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_3_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_4_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_5_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_6_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_7_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_8_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_9_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_10_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_11_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_12_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_13_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_14_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_15_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_16_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_17_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_18_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_19_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_20_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_21_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_22_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_23_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_24_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_25_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_26_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_27_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_28_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_29_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_30_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_31_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_32_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_33_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_34_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_35_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_36_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_37_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_38_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_39_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_40_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_41_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_42_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_43_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_44_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_45_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_46_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_47_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_48_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_49_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_50_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_51_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_52_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_53_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_54_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_55_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_56_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_57_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_58_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_59_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_60_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_61_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_62_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_63_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_64_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag);

VTXAPI vtxStatus vtxgDFTInv_CToC_2_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_3_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_4_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_5_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_6_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_7_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_8_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_9_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_10_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_11_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_12_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_13_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_14_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_15_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_16_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_17_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_18_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_19_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_20_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_21_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_22_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_23_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_24_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_25_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_26_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_27_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_28_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_29_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_30_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_31_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_32_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_33_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_34_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_35_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_36_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_37_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_38_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_39_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_40_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_41_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_42_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_43_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_44_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_45_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_46_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_47_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_48_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_49_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_50_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_51_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_52_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_53_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_54_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_55_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_56_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_57_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_58_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_59_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_60_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_61_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_62_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_63_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_64_64fc(const vtx64fc *src, vtx64fc *dst, int scaleFlag);

#ifdef __cplusplus
}
#endif

#endif /* VTXGEN_H */
