// The public life of a DCT-IV plan: size, build, execute, free.
#include "dct4/direct.hpp"
#include "dct4/nodes.hpp"
#include "dct4/stages.hpp"

#include "vtxcore.h"
#include "vtxgen.h"

namespace vtx::dct4 {
namespace {

using namespace vtx::plan;

template <class T>
vtxStatus getSize(int len, int* sizeOut)
{
    const std::int32_t size = env1_mem<T>(len);
    if (size < 0)
        return vtxStatusSizeError;
    *sizeOut = wrapAdd(size, 2 * vtxgAlignSize32Bytes(1));
    return vtxStatusOk;
}

// The longest length whose plan fits the block GetSize reports: 2^26 + 1 in
// single precision, 2^25 + 1 in double.  GetSize also answers for a few
// longer lengths (2^29, 2^30 and each plus 1), where its 32-bit total wraps
// to a small positive number; no plan of theirs fits what it reports, so
// Init and InitAlloc refuse them.
template <class T>
constexpr int kLongestPlan = (1 << (sizeof(T) == 4 ? 26 : 25)) + 1;

template <class T>
vtxStatus init(void** specOut, int len, void* block)
{
    if (!specOut || !block)
        return vtxStatusNullPointer;
    // The sizing decides a length before anything is written: a plan refused
    // only by its own tests would leave part of a tree in the block, and
    // for long refused lengths far beyond its end.
    if (len > kLongestPlan<T> || env1_mem<T>(len) < 0)
        return vtxStatusSizeError;
    Arena* arena = arenaSetUp(block);
    auto* root = reinterpret_cast<Env1*>(vtxgArenaMalloc(arena, sizeof(Env1)));
    env1_init_<T>(root, arena, len);
    const std::int32_t status = env1_plan<T>(root);
    if (status != vtxStatusOk) {
        env1_del_<T>(root);
        vtxgArenaFree(arena, root, root->size);
        return status;
    }
    *specOut = root;
    return vtxStatusOk;
}

template <class T>
vtxStatus initAlloc(void** specOut, int len)
{
    if (!specOut)
        return vtxStatusNullPointer;
    if (len > kLongestPlan<T>)
        return vtxStatusSizeError;
    int size = 0;
    const vtxStatus sized = getSize<T>(len, &size);
    if (sized != vtxStatusOk)
        return sized;
    void* block = vtxMalloc(size);
    const vtxStatus built = init<T>(specOut, len, block);
    if (built != vtxStatusOk) {
        vtxFree(block);
        return built;
    }
    return vtxStatusOk;
}

template <class T>
vtxStatus release(void* spec)
{
    if (!spec)
        return vtxStatusNullPointer;
    auto* root = static_cast<Env1*>(spec);
    Arena* arena = arenaOf(root, root->arena);
    env1_del_<T>(root);
    vtxgArenaFree(arena, root, root->size);
    vtxFree(arena);
    return vtxStatusOk;
}

template <class T>
vtxStatus execute(const T* src, T* dst, const void* spec)
{
    if (!spec || !src || !dst)
        return vtxStatusNullPointer;
    const auto* root = static_cast<const Env1*>(spec);
    if (direct::dct4Direct(root->rule, src, dst))
        return vtxStatusOk;
    if (root->rule == 6)
        return static_cast<vtxStatus>(env1_compute<T>(root, dst, src, active_isa()));
    return vtxStatusBadRule;
}

}  // namespace
}  // namespace vtx::dct4

using namespace vtx::dct4;

extern "C" {

VTXAPI vtxStatus vtxgDCT4GetSize_32f(int len, int* sizeOut) { return getSize<float>(len, sizeOut); }
VTXAPI vtxStatus vtxgDCT4GetSize_64f(int len, int* sizeOut) { return getSize<double>(len, sizeOut); }

VTXAPI vtxStatus vtxgDCT4Init_32f(vtxDCT4Spec_32f** specOut, int len, void* block)
{
    return init<float>(reinterpret_cast<void**>(specOut), len, block);
}
VTXAPI vtxStatus vtxgDCT4Init_64f(vtxDCT4Spec_64f** specOut, int len, void* block)
{
    return init<double>(reinterpret_cast<void**>(specOut), len, block);
}

VTXAPI vtxStatus vtxgDCT4InitAlloc_32f(vtxDCT4Spec_32f** specOut, int len)
{
    return initAlloc<float>(reinterpret_cast<void**>(specOut), len);
}
VTXAPI vtxStatus vtxgDCT4InitAlloc_64f(vtxDCT4Spec_64f** specOut, int len)
{
    return initAlloc<double>(reinterpret_cast<void**>(specOut), len);
}

VTXAPI vtxStatus vtxgDCT4Free_32f(vtxDCT4Spec_32f* spec) { return release<float>(spec); }
VTXAPI vtxStatus vtxgDCT4Free_64f(vtxDCT4Spec_64f* spec) { return release<double>(spec); }

VTXAPI vtxStatus vtxgDCT4_32f(const vtx32f* src, vtx32f* dst, const vtxDCT4Spec_32f* spec)
{
    return execute<float>(src, dst, spec);
}
VTXAPI vtxStatus vtxgDCT4_64f(const vtx64f* src, vtx64f* dst, const vtxDCT4Spec_64f* spec)
{
    return execute<double>(src, dst, spec);
}

}  // extern "C"
