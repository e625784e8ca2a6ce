// The Walsh-Hadamard entries for an order known at run time: the kernel of
// that order from a table of thirteen, and the work buffer each order needs.
// One unsigned comparison rejects every order outside 1..13, negative ones
// included, before anything else is looked at.
#include "vtxgen.h"

namespace {

constexpr unsigned kOrders = 13;

template <class T>
using Kernel = vtxStatus (*)(const T*, T*, int, void*);

constexpr Kernel<vtx32f> kernels_32f[kOrders] = {
    vtxgWHT_1_32f, vtxgWHT_2_32f, vtxgWHT_3_32f, vtxgWHT_4_32f,  vtxgWHT_5_32f,  vtxgWHT_6_32f,  vtxgWHT_7_32f,
    vtxgWHT_8_32f, vtxgWHT_9_32f, vtxgWHT_10_32f, vtxgWHT_11_32f, vtxgWHT_12_32f, vtxgWHT_13_32f};
constexpr Kernel<vtx64f> kernels_64f[kOrders] = {
    vtxgWHT_1_64f, vtxgWHT_2_64f, vtxgWHT_3_64f, vtxgWHT_4_64f,  vtxgWHT_5_64f,  vtxgWHT_6_64f,  vtxgWHT_7_64f,
    vtxgWHT_8_64f, vtxgWHT_9_64f, vtxgWHT_10_64f, vtxgWHT_11_64f, vtxgWHT_12_64f, vtxgWHT_13_64f};

// Bytes of work buffer by order: 2^N elements for two passes, plus a chunk
// of 2^(a+b) elements for three.
constexpr int buffer_32f[kOrders] = {0, 0, 0, 0, 0, 0, 0, 1024, 2048, 4096, 8192, 18432, 34816};
constexpr int buffer_64f[kOrders] = {0, 0, 0, 0, 0, 0, 0, 2048, 4096, 8192, 18432, 34816, 73728};

template <class T>
vtxStatus dispatch(const Kernel<T> (&table)[kOrders], const T* src, T* dst, int order, int flag, void* buffer)
{
    const unsigned entry = static_cast<unsigned>(order) - 1u;
    if (entry > kOrders - 1)
        return vtxStatusSizeError;
    return table[entry](src, dst, flag, buffer);
}

vtxStatus buffer_size(const int (&table)[kOrders], int order, int* bytes)
{
    const unsigned entry = static_cast<unsigned>(order) - 1u;
    if (entry > kOrders - 1)
        return vtxStatusSizeError;
    *bytes = table[entry];
    return vtxStatusOk;
}

}  // namespace

extern "C" {

vtxStatus vtxgWHT_32f(const vtx32f* src, vtx32f* dst, int order, int flag, void* buffer)
{
    return dispatch(kernels_32f, src, dst, order, flag, buffer);
}

vtxStatus vtxgWHT_64f(const vtx64f* src, vtx64f* dst, int order, int flag, void* buffer)
{
    return dispatch(kernels_64f, src, dst, order, flag, buffer);
}

vtxStatus vtxgWHTGetBufferSize_32f(int order, int* bytes)
{
    return buffer_size(buffer_32f, order, bytes);
}

vtxStatus vtxgWHTGetBufferSize_64f(int order, int* bytes)
{
    return buffer_size(buffer_64f, order, bytes);
}

}  // extern "C"
