/** @file vtxgen.h
 * vtxgen: fixed-size discrete transforms for x86 with 128-bit vectors.
 *
 * Every transform size is a function of its own: a generated straight line of
 * arithmetic with its constants inline.  All functions are reentrant, keep no
 * state and never allocate (except where noted).
 *
 * Calling convention of every kernel:
 *   status = kernel(source, destination, scaleFlag);
 * The source is read in full before the first element of the destination is
 * written, so source and destination may be the same array.  Any alignment is
 * accepted; 16-byte aligned pointers take the fastest path.  No kernel reads
 * a byte outside its source or writes one outside its destination (a
 * Walsh-Hadamard kernel also uses the work buffer it is given).
 *
 * Compiles as C99 and as C++.
 */
#ifndef VTXGEN_H
#define VTXGEN_H

#include <stdint.h>

#if defined(_WIN32)
#define VTXAPI
#else
/** Marks the exported functions. */
#define VTXAPI __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Status values ---------------------------------------------------- */

/** The status every function returns: one of the vtxStatus values. */
typedef int32_t vtxStatus;

/** The status values. */
enum {
    vtxStatusOk = 0,            /**< the destination holds the result */
    vtxStatusBadRule = -5,      /**< a DCT-IV plan met a rule outside its table */
    vtxStatusSizeError = -6,    /**< a general entry was given a size it lacks */
    vtxStatusNullPointer = -8,  /**< source or destination was null */
    vtxStatusFlagError = -16    /**< scaleFlag was not one of the four below */
};

/** @name Scale flags
 * ---- Scale flags -------------------------------------------------------
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
/** @{ */
enum {
    vtxScaleForward = 1,
    vtxScaleInverse = 2,
    vtxScaleSymmetric = 4,
    vtxScaleNone = 8
};
/** @} */

/* ---- Element types ---------------------------------------------------- */

typedef float vtx32f;  /**< a single-precision real element */
typedef double vtx64f; /**< a double-precision real element */
/** A single-precision complex element, the layout of std::complex<float>. */
typedef struct vtx32fc {
    float re; /**< real part */
    float im; /**< imaginary part */
} vtx32fc;
/** A double-precision complex element, the layout of std::complex<double>. */
typedef struct vtx64fc {
    double re; /**< real part */
    double im; /**< imaginary part */
} vtx64fc;

/* ---- Version ----------------------------------------------------------- */

/** The version of the linked build. */
typedef struct VersionRecord {
    int32_t versionMajor;    /**< major version */
    int32_t versionMinor;    /**< minor version */
    int32_t buildMajor;      /**< major build number */
    int32_t buildNumber;     /**< build number */
    char cpuTag[4];          /**< the code path's tag */
    const char *libraryName; /**< the library's name */
    const char *versionText; /**< the version as text */
    const char *buildDate;   /**< the build's date */
} VersionRecord;

/** The record of the linked build; constant, never null, never to be freed. */
VTXAPI const VersionRecord *vtxgenGetLibVersion(void);

/** @name Size dispatchers
 * ---- Size dispatchers --------------------------------------------------
 * The kernel of size n (2 to 64) called with the other arguments unchanged,
 * its status returned; any other n gives vtxStatusSizeError before a pointer
 * or the flag is looked at.
 */
/** @{ */
/** The kernel of size n of the family and precision in the name, called with
 * the other arguments; vtxStatusSizeError for n outside 2 to 64. */
VTXAPI vtxStatus vtxgDFTFwd_CToC_32fc(const vtx32fc *src, vtx32fc *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_64fc(const vtx64fc *src, vtx64fc *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_32fc(const vtx32fc *src, vtx32fc *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_64fc(const vtx64fc *src, vtx64fc *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_32f(const vtx32f *src, vtx32f *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_64f(const vtx64f *src, vtx64f *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_32f(const vtx32f *src, vtx32f *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_64f(const vtx64f *src, vtx64f *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_32f(const vtx32f *src, vtx32f *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_64f(const vtx64f *src, vtx64f *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_32f(const vtx32f *src, vtx32f *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_64f(const vtx64f *src, vtx64f *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_32f(const vtx32f *src, vtx32f *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_64f(const vtx64f *src, vtx64f *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_32f(const vtx32f *src, vtx32f *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_64f(const vtx64f *src, vtx64f *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_32f(const vtx32f *src, vtx32f *dst, int n, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_64f(const vtx64f *src, vtx64f *dst, int n, int scaleFlag);

/** @} */

/** @name Batches
 * ---- Batches -------------------------------------------------------------
 * count transforms of size n (2 to 64) in one call: transform t reads
 * src + t * srcStride and writes dst + t * dstStride.  Strides are in
 * elements of the element type (complex elements for the complex families),
 * at least the transform's input length for srcStride and its output length
 * for dstStride: n for complex data and for real points, the layout's length
 * for a packed spectrum (a CCS spectrum of n points is 2 * (n / 2 + 1)
 * reals).  Every transform gives exactly the bits of the single call of its
 * size, at any count, stride and element alignment.
 *
 * Statuses, checked before anything is read or written: a null src or dst
 * gives vtxStatusNullPointer; then n outside 2 to 64, a negative count or a
 * stride shorter than its length gives vtxStatusSizeError; then a bad flag
 * gives vtxStatusFlagError.  On failure nothing is written.  A count of 0
 * returns vtxStatusOk and touches no memory.
 *
 * In place: src == dst with srcStride == dstStride, each stride covering the
 * longer of the two lengths, works.  Any other overlap between the source and
 * the destination of different transforms is the caller's fault and its
 * result undefined.  Like the single inverse CCS kernels, an inverse CCS
 * batch never reads the slots that hold no bin.
 */
/** @{ */
/** The transforms of the family and precision in the name, count of them of
 * size n, at the given strides. */
VTXAPI vtxStatus vtxgDFTFwd_CToC_Batch_32fc(const vtx32fc *src, vtx32fc *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_CToC_Batch_64fc(const vtx64fc *src, vtx64fc *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_Batch_32fc(const vtx32fc *src, vtx32fc *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CToC_Batch_64fc(const vtx64fc *src, vtx64fc *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_Batch_32f(const vtx32f *src, vtx32f *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_Batch_64f(const vtx64f *src, vtx64f *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_Batch_32f(const vtx32f *src, vtx32f *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_Batch_64f(const vtx64f *src, vtx64f *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_Batch_32f(const vtx32f *src, vtx32f *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_Batch_64f(const vtx64f *src, vtx64f *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_Batch_32f(const vtx32f *src, vtx32f *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_Batch_64f(const vtx64f *src, vtx64f *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_Batch_32f(const vtx32f *src, vtx32f *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_Batch_64f(const vtx64f *src, vtx64f *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_Batch_32f(const vtx32f *src, vtx32f *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_Batch_64f(const vtx64f *src, vtx64f *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_Batch_32f(const vtx32f *src, vtx32f *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_Batch_64f(const vtx64f *src, vtx64f *dst, int n, int count, int srcStride, int dstStride, int scaleFlag);
/** @} */

/* ---- Packed layouts of a real spectrum -----------------------------------
 * A real sequence of n elements has a Hermitian spectrum: X[n-k] is the
 * conjugate of X[k], Im X[0] = 0 and, for even n, Im X[n/2] = 0.  The bins
 * X[0..n/2] are stored in one of three layouts, h = n/2 rounded down:
 *
 *   CCS   2h + 2 elements: Re0, 0, Re1, Im1, ..., Reh, Imh (Im0 and, for
 *         even n, Im(n/2) stored as positive zero);
 *   Pack  n elements: Re0, Re1, Im1, Re2, Im2, ..., with Re(n/2) last for
 *         even n;
 *   Perm  n elements: for even n Re0, Re(n/2), Re1, Im1, Re2, Im2, ...;
 *         for odd n the same as Pack.
 *
 * For n = 8: CCS Re0 0 Re1 Im1 Re2 Im2 Re3 Im3 Re4 0, Pack Re0 Re1 Im1 Re2
 * Im2 Re3 Im3 Re4, Perm Re0 Re4 Re1 Im1 Re2 Im2 Re3 Im3.  The three layouts
 * of a size hold the same bits.  A forward real kernel reads n elements and
 * writes exactly the layout's length; in place, the array must have the
 * longer of the two lengths.  No alignment beyond the element's is needed.
 *
 * An inverse real kernel reads the bins of its layout and writes n elements.
 * It never reads the slots that hold no bin (the CCS zeros at 1 and, for
 * even n, n + 1), so they may hold anything and a CCS source may end after
 * element n.  Scale flag 2 divides by n, 1 and 8 do not, 4 divides by
 * sqrt(n): forward with 1 (or 2, or 4) then inverse with 1 (or 2, or 4)
 * returns the input.
 */

/** @name Walsh-Hadamard transform
 * ---- Walsh-Hadamard transform ------------------------------------------
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
/** @{ */
/** The Walsh-Hadamard transform of the order and precision in the name. */
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

/** The kernel of `order` (1 to 13) called with the other arguments unchanged
 * and its status returned; any other order gives vtxStatusSizeError before a
 * pointer or the flag is looked at. */
VTXAPI vtxStatus vtxgWHT_32f(const vtx32f *src, vtx32f *dst, int order, int scaleFlag, void *buffer);
VTXAPI vtxStatus vtxgWHT_64f(const vtx64f *src, vtx64f *dst, int order, int scaleFlag, void *buffer);

/** Bytes of work buffer that the kernel of `order` needs (0 below order 8)
 * written to *bytes; an order outside 1 to 13 gives vtxStatusSizeError and
 * leaves *bytes alone. */
VTXAPI vtxStatus vtxgWHTGetBufferSize_32f(int order, int *bytes);
VTXAPI vtxStatus vtxgWHTGetBufferSize_64f(int order, int *bytes);
/** @} */

/** @name DCT-IV
 * ---- DCT-IV -------------------------------------------------------------
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
/** @{ */
/** A DCT-IV plan of the precision in the name, opaque. */
typedef struct vtxDCT4Spec_32f vtxDCT4Spec_32f;
typedef struct vtxDCT4Spec_64f vtxDCT4Spec_64f;

/** The calls of the plan lifecycle above, for the precision in the name. */
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

/** @} */

/** @name Kernels of every size
 * Each takes (source, destination, scaleFlag) and returns a vtxStatus; the
 * comment of each family gives the transform. */
/** @{ */
/** @fn vtxStatus vtxgDFTFwd_CToC_2_32fc(const vtx32fc *src, vtx32fc *dst, int scaleFlag)
 * The kernel of the family, size and precision in the name: reads the source
 * whole, writes the destination, returns a vtxStatus. */
/* The kernel declarations below are written by `vtxgen-gen prototypes`; a test
 * holds them to it. */
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

/* ---- Forward real DFT -------------------------------------------------------
 * The half spectrum X[0..n/2] of n real elements, X[k] = s * sum_j x[j] exp(-2 pi i j k / n),
 * in the packed layout of the name (see Packed layouts above).
 */
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_2_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_3_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_4_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_5_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_6_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_7_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_8_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_9_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_10_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_11_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_12_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_13_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_14_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_15_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_16_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_17_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_18_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_19_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_20_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_21_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_22_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_23_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_24_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_25_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_26_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_27_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_28_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_29_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_30_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_31_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_32_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_33_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_34_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_35_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_36_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_37_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_38_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_39_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_40_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_41_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_42_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_43_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_44_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_45_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_46_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_47_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_48_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_49_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_50_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_51_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_52_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_53_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_54_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_55_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_56_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_57_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_58_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_59_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_60_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_61_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_62_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_63_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_64_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);

VTXAPI vtxStatus vtxgDFTFwd_RToPack_2_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_3_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_4_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_5_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_6_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_7_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_8_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_9_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_10_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_11_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_12_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_13_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_14_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_15_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_16_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_17_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_18_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_19_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_20_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_21_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_22_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_23_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_24_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_25_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_26_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_27_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_28_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_29_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_30_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_31_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_32_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_33_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_34_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_35_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_36_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_37_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_38_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_39_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_40_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_41_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_42_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_43_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_44_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_45_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_46_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_47_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_48_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_49_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_50_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_51_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_52_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_53_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_54_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_55_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_56_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_57_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_58_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_59_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_60_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_61_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_62_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_63_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_64_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);

VTXAPI vtxStatus vtxgDFTFwd_RToPerm_2_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_3_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_4_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_5_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_6_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_7_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_8_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_9_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_10_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_11_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_12_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_13_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_14_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_15_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_16_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_17_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_18_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_19_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_20_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_21_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_22_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_23_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_24_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_25_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_26_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_27_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_28_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_29_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_30_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_31_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_32_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_33_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_34_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_35_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_36_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_37_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_38_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_39_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_40_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_41_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_42_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_43_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_44_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_45_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_46_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_47_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_48_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_49_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_50_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_51_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_52_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_53_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_54_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_55_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_56_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_57_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_58_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_59_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_60_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_61_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_62_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_63_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_64_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);

VTXAPI vtxStatus vtxgDFTFwd_RToCCS_2_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_3_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_4_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_5_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_6_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_7_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_8_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_9_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_10_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_11_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_12_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_13_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_14_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_15_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_16_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_17_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_18_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_19_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_20_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_21_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_22_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_23_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_24_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_25_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_26_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_27_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_28_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_29_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_30_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_31_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_32_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_33_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_34_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_35_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_36_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_37_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_38_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_39_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_40_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_41_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_42_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_43_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_44_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_45_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_46_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_47_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_48_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_49_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_50_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_51_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_52_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_53_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_54_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_55_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_56_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_57_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_58_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_59_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_60_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_61_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_62_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_63_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToCCS_64_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);

VTXAPI vtxStatus vtxgDFTFwd_RToPack_2_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_3_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_4_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_5_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_6_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_7_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_8_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_9_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_10_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_11_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_12_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_13_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_14_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_15_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_16_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_17_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_18_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_19_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_20_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_21_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_22_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_23_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_24_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_25_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_26_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_27_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_28_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_29_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_30_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_31_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_32_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_33_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_34_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_35_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_36_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_37_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_38_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_39_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_40_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_41_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_42_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_43_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_44_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_45_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_46_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_47_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_48_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_49_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_50_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_51_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_52_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_53_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_54_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_55_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_56_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_57_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_58_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_59_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_60_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_61_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_62_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_63_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPack_64_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);

VTXAPI vtxStatus vtxgDFTFwd_RToPerm_2_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_3_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_4_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_5_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_6_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_7_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_8_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_9_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_10_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_11_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_12_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_13_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_14_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_15_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_16_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_17_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_18_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_19_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_20_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_21_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_22_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_23_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_24_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_25_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_26_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_27_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_28_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_29_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_30_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_31_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_32_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_33_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_34_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_35_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_36_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_37_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_38_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_39_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_40_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_41_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_42_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_43_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_44_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_45_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_46_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_47_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_48_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_49_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_50_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_51_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_52_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_53_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_54_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_55_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_56_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_57_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_58_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_59_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_60_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_61_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_62_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_63_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTFwd_RToPerm_64_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);

/* ---- Inverse real DFT -------------------------------------------------------
 * n real elements from the half spectrum X[0..n/2] in the packed layout of the name,
 * x[j] = s * sum_k X[k] exp(+2 pi i j k / n) over all n bins, X[n-k] = conj X[k].
 */
VTXAPI vtxStatus vtxgDFTInv_CCSToR_2_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_3_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_4_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_5_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_6_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_7_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_8_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_9_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_10_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_11_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_12_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_13_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_14_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_15_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_16_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_17_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_18_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_19_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_20_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_21_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_22_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_23_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_24_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_25_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_26_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_27_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_28_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_29_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_30_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_31_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_32_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_33_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_34_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_35_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_36_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_37_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_38_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_39_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_40_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_41_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_42_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_43_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_44_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_45_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_46_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_47_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_48_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_49_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_50_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_51_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_52_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_53_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_54_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_55_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_56_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_57_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_58_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_59_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_60_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_61_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_62_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_63_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_64_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);

VTXAPI vtxStatus vtxgDFTInv_PackToR_2_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_3_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_4_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_5_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_6_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_7_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_8_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_9_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_10_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_11_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_12_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_13_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_14_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_15_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_16_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_17_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_18_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_19_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_20_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_21_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_22_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_23_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_24_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_25_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_26_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_27_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_28_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_29_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_30_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_31_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_32_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_33_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_34_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_35_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_36_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_37_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_38_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_39_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_40_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_41_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_42_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_43_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_44_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_45_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_46_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_47_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_48_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_49_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_50_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_51_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_52_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_53_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_54_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_55_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_56_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_57_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_58_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_59_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_60_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_61_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_62_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_63_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_64_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);

VTXAPI vtxStatus vtxgDFTInv_PermToR_2_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_3_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_4_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_5_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_6_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_7_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_8_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_9_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_10_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_11_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_12_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_13_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_14_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_15_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_16_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_17_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_18_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_19_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_20_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_21_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_22_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_23_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_24_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_25_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_26_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_27_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_28_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_29_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_30_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_31_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_32_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_33_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_34_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_35_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_36_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_37_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_38_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_39_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_40_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_41_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_42_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_43_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_44_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_45_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_46_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_47_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_48_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_49_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_50_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_51_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_52_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_53_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_54_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_55_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_56_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_57_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_58_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_59_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_60_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_61_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_62_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_63_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_64_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);

VTXAPI vtxStatus vtxgDFTInv_CCSToR_2_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_3_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_4_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_5_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_6_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_7_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_8_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_9_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_10_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_11_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_12_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_13_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_14_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_15_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_16_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_17_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_18_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_19_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_20_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_21_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_22_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_23_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_24_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_25_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_26_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_27_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_28_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_29_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_30_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_31_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_32_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_33_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_34_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_35_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_36_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_37_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_38_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_39_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_40_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_41_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_42_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_43_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_44_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_45_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_46_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_47_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_48_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_49_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_50_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_51_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_52_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_53_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_54_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_55_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_56_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_57_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_58_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_59_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_60_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_61_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_62_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_63_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_CCSToR_64_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);

VTXAPI vtxStatus vtxgDFTInv_PackToR_2_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_3_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_4_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_5_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_6_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_7_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_8_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_9_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_10_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_11_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_12_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_13_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_14_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_15_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_16_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_17_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_18_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_19_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_20_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_21_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_22_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_23_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_24_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_25_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_26_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_27_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_28_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_29_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_30_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_31_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_32_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_33_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_34_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_35_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_36_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_37_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_38_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_39_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_40_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_41_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_42_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_43_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_44_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_45_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_46_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_47_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_48_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_49_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_50_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_51_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_52_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_53_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_54_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_55_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_56_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_57_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_58_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_59_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_60_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_61_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_62_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_63_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PackToR_64_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);

VTXAPI vtxStatus vtxgDFTInv_PermToR_2_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_3_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_4_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_5_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_6_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_7_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_8_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_9_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_10_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_11_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_12_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_13_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_14_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_15_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_16_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_17_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_18_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_19_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_20_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_21_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_22_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_23_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_24_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_25_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_26_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_27_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_28_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_29_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_30_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_31_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_32_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_33_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_34_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_35_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_36_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_37_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_38_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_39_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_40_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_41_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_42_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_43_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_44_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_45_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_46_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_47_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_48_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_49_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_50_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_51_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_52_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_53_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_54_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_55_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_56_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_57_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_58_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_59_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_60_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_61_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_62_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_63_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgDFTInv_PermToR_64_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);

/* ---- Hartley transform ---------------------------------------------------
 * H[k] = s * sum_j x[j] (cos(2 pi j k / n) + sin(2 pi j k / n)), n real elements to n,
 * natural order; its own inverse (flags 1 and 2 both divide by n).
 */
VTXAPI vtxStatus vtxgHartley_2_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_3_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_4_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_5_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_6_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_7_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_8_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_9_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_10_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_11_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_12_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_13_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_14_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_15_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_16_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_17_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_18_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_19_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_20_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_21_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_22_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_23_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_24_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_25_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_26_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_27_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_28_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_29_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_30_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_31_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_32_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_33_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_34_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_35_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_36_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_37_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_38_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_39_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_40_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_41_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_42_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_43_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_44_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_45_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_46_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_47_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_48_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_49_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_50_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_51_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_52_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_53_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_54_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_55_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_56_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_57_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_58_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_59_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_60_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_61_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_62_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_63_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_64_32f(const vtx32f *src, vtx32f *dst, int scaleFlag);

VTXAPI vtxStatus vtxgHartley_2_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_3_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_4_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_5_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_6_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_7_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_8_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_9_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_10_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_11_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_12_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_13_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_14_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_15_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_16_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_17_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_18_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_19_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_20_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_21_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_22_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_23_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_24_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_25_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_26_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_27_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_28_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_29_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_30_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_31_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_32_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_33_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_34_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_35_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_36_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_37_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_38_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_39_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_40_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_41_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_42_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_43_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_44_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_45_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_46_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_47_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_48_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_49_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_50_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_51_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_52_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_53_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_54_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_55_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_56_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_57_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_58_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_59_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_60_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_61_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_62_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_63_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);
VTXAPI vtxStatus vtxgHartley_64_64f(const vtx64f *src, vtx64f *dst, int scaleFlag);

#ifdef __cplusplus
}
#endif
/** @} */

#endif /* VTXGEN_H */
