/** @file vtxcore.h
 * vtxcore: the platform core library that vtxgen runs beside.
 *
 * vtxgen takes memory through vtxMalloc / vtxFree and asks ownGetFeature which
 * version record to report.  Compiles as C99 and as C++.
 */
#ifndef VTXCORE_H
#define VTXCORE_H

#include <stddef.h>

#if defined(_WIN32)
#define VTXCOREAPI
#else
/** Marks the exported functions. */
#define VTXCOREAPI __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** A block of at least `size` bytes aligned to 64 bytes, or null on failure
 * or when size is not positive.  Release it with vtxFree. */
VTXCOREAPI void *vtxMalloc(int size);

/** Releases a block from vtxMalloc; null is ignored. */
VTXCOREAPI void vtxFree(void *ptr);

/** Answers a feature query; this build knows no features and answers 0. */
VTXCOREAPI int ownGetFeature(int feature, int arg);

#ifdef __cplusplus
}
#endif

#endif /* VTXCORE_H */
