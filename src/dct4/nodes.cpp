// The DCT-IV plan classes: __init__, _chooseRule, mem, plan and __del__ of
// every class, and the function objects' `at`, for both precisions.
#include "dct4/nodes.hpp"

#include "vtxgen.h"

namespace vtx::dct4 {

using namespace vtx::plan;

namespace {

constexpr std::int32_t kQ = 32;  // one list cell, rounded

constexpr std::int32_t recordSize(std::int32_t bytes)
{
    return (bytes + 31) & ~31;
}

template <class R>
R* allocRecord(Arena* arena)
{
    return reinterpret_cast<R*>(vtxgArenaMalloc(arena, sizeof(R)));
}

template <class R>
Arena* arenaOfNode(const R* node)
{
    return arenaOf(node, node->arena);
}


void addTo(Arena* arena, Ref list, EnvObject* item)
{
    EnvList_add(deref<EnvList>(arena, list), item);
}

// Header of a record: size and arena first, slots last (see finishHeader).
void startHeader(EnvObject* self, Arena* arena, std::int32_t size)
{
    self->size = size;
    self->arena = refOf(arena, self);
}

void finishHeader(EnvObject* self, std::int32_t code)
{
    self->del = code;
    self->slot = code;
}

// children: free the members, the cells behind the head, then the head.
void freeChildren(Arena* arena, Ref children)
{
    EnvList_freeChildren(deref<EnvList>(arena, children));
    freeListHead(arena, children);
}

std::int32_t ruleOfLength(std::int32_t length, std::int32_t largest, std::int32_t other)
{
    std::int32_t rule = 1;
    for (std::int32_t key = 2; key <= largest; key *= 2, ++rule)
        if (length == key)
            return rule;
    return other;
}

// Rules of env1 (lengths 2 to 32), env5 and env9 (2 to 64).
std::int32_t env1_chooseRule(std::int32_t length) { return ruleOfLength(length, 32, 6); }
std::int32_t env5_chooseRule(std::int32_t length) { return ruleOfLength(length, 64, 7); }
std::int32_t env9_chooseRule(std::int32_t length) { return ruleOfLength(length, 64, 7); }
// env8 by m2 (2 to 32) and env4 by m (1 to 32); 0 refuses.
std::int32_t env8_chooseRule(std::int32_t m2) { return ruleOfLength(m2, 32, 0); }
std::int32_t env4_chooseRule(std::int32_t m) { return ruleOfLength(2 * m, 64, 0); }
// env2 on v and env3 on m: a multiple of the lanes.
template <class T> std::int32_t multipleOfLanes(std::int32_t x) { return x % Precision<T>::lanes == 0 ? 1 : 0; }

template <class T> std::int32_t env4TableBytes(std::int32_t groups, std::int32_t m)
{
    return wrapMul(wrapMul(groups, 32), m);
}
std::int32_t env8TableBytes(std::int32_t v, std::int32_t m2)
{
    return wrapMul(wrapMul(32, v), m2 - 1);
}
template <class T> std::int32_t scratchBytes(std::int32_t n)
{
    return wrapMul(n, sizeof(T));
}

// Sums of sizing terms in 32-bit wrap-around.
template <class... Terms>
std::int32_t sum(Terms... terms)
{
    std::int32_t s = 0;
    ((s = wrapAdd(s, terms)), ...);
    return s;
}

// ---- env7, env8, env9 ------------------------------------------------------

template <class T> std::int32_t env7_mem(std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t);

template <class T>
std::int32_t env9_mem(std::int32_t length, std::int32_t p1, std::int32_t p2, std::int32_t stride, std::int32_t,
                      std::int32_t, std::int32_t n, std::int32_t colStride, std::int32_t)
{
    std::int32_t s = 0;
    if (env9_chooseRule(length) == 7) {
        s = env7_mem<T>(length, p1, p2, stride, n, colStride);
        if (s < 0)
            return s;
        s = sum(s, EnvList_add_mem(2));
    }
    return sum(s, vtxgAlignSize32Bytes(0), recordSize(sizeof(Env9)), 2 * kQ);
}

template <class T>
std::int32_t env7_mem(std::int32_t length, std::int32_t p1, std::int32_t p2, std::int32_t stride, std::int32_t n,
                      std::int32_t cols)
{
    std::int32_t m2 = 0;
    if (divisorsIntNonTriv(&m2, length / 2) != vtxStatusOk || env8_chooseRule(m2) == 0)
        return vtxStatusSizeError;
    const std::int32_t v = length / (2 * m2);
    std::int32_t s = sum(vtxgAlignSize32Bytes(env8TableBytes(v, m2)), recordSize(sizeof(Env8)), kQ);
    if (s < 0)
        return s;
    const std::int32_t child = env9_mem<T>(length / m2, p1, p2, wrapMul(stride, m2), stride, m2, n,
                                           wrapMul(cols, m2), cols);
    if (child < 0)
        return child;
    return sum(s, child, vtxgAlignSize32Bytes(scratchBytes<T>(n)), recordSize(sizeof(Env7)), 3 * kQ,
               EnvList_add_mem(2), recordSize(sizeof(Envlambda)), EnvList_add_mem(1), EnvList_add_mem(2));
}

template <class T> std::int32_t env7_plan(Env7* self);
template <class T> void env7_del_(Env7* self);

template <class T>
void env7_init_(Env7* self, Arena* arena, std::int32_t length, std::int32_t p1, std::int32_t p2,
                std::int32_t stride, std::int32_t n, std::int32_t cols)
{
    startHeader(self, arena, sizeof(Env7));
    self->children = self->stage2List = self->stage1List = self->scratch = 0;
    self->length = length;
    self->divisor = 0;
    self->p1 = p1;
    self->p2 = p2;
    self->stride = stride;
    self->n = n;
    self->cols = cols;
    self->rule = 0;
    self->stage2List = newListHead(arena);
    self->stage1List = newListHead(arena);
    self->children = newListHead(arena);
    finishHeader(self, kEnv7 + Precision<T>::code);
}

template <class T>
void envlambda_init_(Envlambda* self, Arena* arena, std::int32_t length, std::int32_t m2)
{
    startHeader(self, arena, sizeof(Envlambda));
    self->length = length;
    self->m2 = m2;
    finishHeader(self, kLambda + Precision<T>::code);
}

template <class T>
void env8_init_(Env8* self, Arena* arena, std::int32_t m2, std::int32_t n, std::int32_t cols,
                std::int32_t rowStride, std::int32_t v, std::int32_t n2, std::int32_t half, std::int32_t last,
                std::int32_t cols2, std::int32_t inner, Envlambda* twiddle)
{
    startHeader(self, arena, sizeof(Env8));
    self->children = self->table = 0;
    self->m2 = m2;
    self->n = n;
    self->cols = cols;
    self->rowStride = rowStride;
    self->v = v;
    self->n2 = n2;
    self->half = half;
    self->last = last;
    self->cols2 = cols2;
    self->inner = inner;
    self->twiddle = refOf(arena, twiddle);
    self->rule = 0;
    self->children = newListHead(arena);
    finishHeader(self, kEnv8 + Precision<T>::code);
}

// Cosine and sine of each twiddle, each broadcast to a vector of its own.
template <class T>
T* putBroadcast(T* out, T x)
{
    constexpr std::int32_t lanes = Precision<T>::lanes;
    const T c = cosPi<T>(x), s = sinPi<T>(x);
    for (std::int32_t j = 0; j < lanes; ++j)
        out[j] = c;
    for (std::int32_t j = 0; j < lanes; ++j)
        out[lanes + j] = s;
    return out + 2 * lanes;
}

template <class T>
std::int32_t env8_plan(Env8* self)
{
    Arena* arena = arenaOfNode(self);
    self->rule = env8_chooseRule(self->m2);
    if (self->rule == 0)
        return vtxStatusSizeError;
    T* out = reinterpret_cast<T*>(vtxgArenaMalloc(arena, env8TableBytes(self->v, self->m2)));
    self->table = refOf(arena, out);
    const auto* lambda = deref<Envlambda>(arena, self->twiddle);
    for (std::int32_t a = 0; a < self->v; ++a)
        for (std::int32_t e = 0; e < self->m2 - 1; ++e) {
            const Env8Entry entry = env8Entry(self->m2, self->inner, a, e);
            const T f = owng_TFunc_IIIR_at<T>(lambda, entry.row, 0, 0);
            out = putBroadcast<T>(out, f * static_cast<T>(2 * entry.multiple) / static_cast<T>(self->m2));
        }
    return vtxStatusOk;
}

template <class T>
void env8_del_(Env8* self)
{
    Arena* arena = arenaOfNode(self);
    vtxgArenaFree(arena, deref<void>(arena, self->table),
                  self->rule ? wrapMul(wrapMul(self->v, 32), self->m2 - 1) : 0);
    freeChildren(arena, self->children);
}

template <class T>
void env9_init_(Env9* self, Arena* arena, std::int32_t length, std::int32_t p1, std::int32_t p2,
                std::int32_t stride, std::int32_t parentStride, std::int32_t m2, std::int32_t n,
                std::int32_t colStride, std::int32_t cols)
{
    startHeader(self, arena, sizeof(Env9));
    self->children = self->kernelList = self->table = 0;
    self->length = length;
    self->p1 = p1;
    self->p2 = p2;
    self->stride = stride;
    self->parentStride = parentStride;
    self->m2 = m2;
    self->n = n;
    self->colStride = colStride;
    self->cols = cols;
    self->rule = 0;
    self->kernelList = newListHead(arena);
    self->children = newListHead(arena);
    finishHeader(self, kEnv9 + Precision<T>::code);
}

// Builds an env7 below a node with a kernelList (env5 and env9 of rule 7).
template <class T, class Node>
std::int32_t planInnerEnv7(Node* self, std::int32_t length, std::int32_t p1, std::int32_t p2,
                           std::int32_t stride, std::int32_t n, std::int32_t cols)
{
    Arena* arena = arenaOfNode(self);
    auto* child = allocRecord<Env7>(arena);
    env7_init_<T>(child, arena, length, p1, p2, stride, n, cols);
    addTo(arena, self->children, child);
    addTo(arena, self->kernelList, child);
    return env7_plan<T>(firstOf<Env7>(arena, self->kernelList)) ? vtxStatusSizeError : vtxStatusOk;
}

template <class T>
std::int32_t env9_plan(Env9* self)
{
    self->rule = env9_chooseRule(self->length);
    if (self->rule != 7)
        return vtxStatusOk;
    return planInnerEnv7<T>(self, self->length, self->p1, self->p2, self->stride, self->n, self->colStride);
}

// Nodes that own nothing but children below a kernelList.
template <class Node>
void delKernelHolder(Node* self)
{
    Arena* arena = arenaOfNode(self);
    vtxgArenaFree(arena, deref<void>(arena, self->table), 0);
    freeListHead(arena, self->kernelList);
    freeChildren(arena, self->children);
}

template <class T>
std::int32_t env7_plan(Env7* self)
{
    Arena* arena = arenaOfNode(self);
    self->rule = 1;
    std::int32_t m2 = 0;
    if (divisorsIntNonTriv(&m2, self->length / 2) != vtxStatusOk)
        return vtxStatusSizeError;
    self->divisor = m2;
    auto* combine = allocRecord<Env8>(arena);
    auto* lambda = allocRecord<Envlambda>(arena);
    envlambda_init_<T>(lambda, arena, self->length, m2);
    addTo(arena, self->children, lambda);
    env8_init_<T>(combine, arena, m2, self->n, self->cols, 2 * self->cols * m2, self->length / (2 * m2),
                  self->n, self->length / 2, self->length - 1, self->cols, self->length / m2, lambda);
    addTo(arena, self->children, combine);
    addTo(arena, self->stage2List, combine);
    if (env8_plan<T>(firstOf<Env8>(arena, self->stage2List)))
        return vtxStatusSizeError;
    auto* inner = allocRecord<Env9>(arena);
    env9_init_<T>(inner, arena, self->length / m2, self->p1, self->p2, self->stride * m2, self->stride, m2,
                  self->n, self->cols * m2, self->cols);
    addTo(arena, self->children, inner);
    addTo(arena, self->stage1List, inner);
    if (env9_plan<T>(firstOf<Env9>(arena, self->stage1List)))
        return vtxStatusSizeError;
    self->scratch = refOf(arena, vtxgArenaMalloc(arena, scratchBytes<T>(self->n)));
    return vtxStatusOk;
}

template <class T>
void env7_del_(Env7* self)
{
    Arena* arena = arenaOfNode(self);
    vtxgArenaFree(arena, deref<void>(arena, self->scratch), self->rule == 1 ? scratchBytes<T>(self->n) : 0);
    freeListHead(arena, self->stage2List);
    freeListHead(arena, self->stage1List);
    freeChildren(arena, self->children);
}

// ---- env2, env4, env3, env5 ------------------------------------------------

template <class T>
std::int32_t env2_mem(std::int32_t m, std::int32_t, std::int32_t, std::int32_t v, std::int32_t, std::int32_t,
                      std::int32_t)
{
    constexpr std::int32_t lanes = Precision<T>::lanes;
    if (!multipleOfLanes<T>(v) || env4_chooseRule(m) == 0)
        return vtxStatusSizeError;
    std::int32_t s = sum(vtxgAlignSize32Bytes(env4TableBytes<T>(v / lanes, m)), recordSize(sizeof(Env4)), kQ);
    if (s < 0)
        return s;
    return sum(s, vtxgAlignSize32Bytes(0), recordSize(sizeof(Env2)), 2 * kQ, EnvList_add_mem(2),
               recordSize(sizeof(Envfsplit)), EnvList_add_mem(1));
}

template <class T>
void env2_init_(Env2* self, Arena* arena, std::int32_t m, std::int32_t n, std::int32_t twoM, std::int32_t v,
                std::int32_t n2, std::int32_t last, std::int32_t l, EnvfCompose* twiddle)
{
    startHeader(self, arena, sizeof(Env2));
    self->children = self->kernelList = self->table = 0;
    self->m = m;
    self->n = n;
    self->twoM = twoM;
    self->v = v;
    self->n2 = n2;
    self->last = last;
    self->l = l;
    self->twiddle = refOf(arena, twiddle);
    self->rule = 0;
    self->kernelList = newListHead(arena);
    self->children = newListHead(arena);
    finishHeader(self, kEnv2 + Precision<T>::code);
}

template <class T>
std::int32_t env4_plan(Env4* self)
{
    constexpr std::int32_t lanes = Precision<T>::lanes;
    Arena* arena = arenaOfNode(self);
    self->rule = env4_chooseRule(self->m);
    if (self->rule == 0)
        return vtxStatusSizeError;
    T* out = reinterpret_cast<T*>(vtxgArenaMalloc(arena, env4TableBytes<T>(self->groups, self->m)));
    self->table = refOf(arena, out);
    const auto* view = deref<EnvObject>(arena, self->twiddle);
    for (std::int32_t g = 0; g < self->groups; ++g)
        for (std::int32_t index = 0; index < self->m; ++index) {
            const std::int32_t b = env4ColumnOrder(self->m, index);
            for (std::int32_t k = 2 * b; k <= 2 * b + 1; ++k)
                for (std::int32_t j = 0; j < lanes; ++j)
                    *out++ = owng_TFunc_IIIR_at<T>(view, g, j, k);
        }
    return vtxStatusOk;
}

template <class T>
void env4_del_(Env4* self)
{
    Arena* arena = arenaOfNode(self);
    vtxgArenaFree(arena, deref<void>(arena, self->table), self->rule ? self->groups << (4 + self->rule) : 0);
    freeChildren(arena, self->children);
}

template <class T>
std::int32_t env2_plan(Env2* self)
{
    constexpr std::int32_t lanes = Precision<T>::lanes;
    Arena* arena = arenaOfNode(self);
    self->rule = multipleOfLanes<T>(self->v);
    if (!self->rule)
        return vtxStatusSizeError;
    auto* kernel = allocRecord<Env4>(arena);
    auto* view = allocRecord<Envfsplit>(arena);
    startHeader(view, arena, sizeof(Envfsplit));
    view->width = self->twoM;
    view->groups = self->v / lanes;
    view->wrapped = self->twiddle;
    finishHeader(view, kSplit + Precision<T>::code);
    addTo(arena, self->children, view);

    startHeader(kernel, arena, sizeof(Env4));
    kernel->children = kernel->table = 0;
    kernel->m = self->m;
    kernel->n = self->n;
    kernel->twoM = self->twoM;
    kernel->rowLanes = self->twoM * lanes;
    kernel->groups = self->v / lanes;
    kernel->n2 = self->n2;
    kernel->last = self->last;
    kernel->l = self->l;
    kernel->twiddle = refOf(arena, view);
    kernel->rule = 0;
    kernel->children = newListHead(arena);
    finishHeader(kernel, kEnv4 + Precision<T>::code);
    addTo(arena, self->children, kernel);
    addTo(arena, self->kernelList, kernel);
    return env4_plan<T>(firstOf<Env4>(arena, self->kernelList)) ? vtxStatusSizeError : vtxStatusOk;
}

template <class T>
std::int32_t env5_mem(std::int32_t l, std::int32_t n, std::int32_t, std::int32_t twoM, std::int32_t,
                      std::int32_t, std::int32_t m)
{
    std::int32_t s = 0;
    if (env5_chooseRule(l) == 7) {
        s = env7_mem<T>(l, n, n, twoM, n, m);
        if (s < 0)
            return s;
        s = sum(s, EnvList_add_mem(2));
    }
    return sum(s, vtxgAlignSize32Bytes(0), recordSize(sizeof(Env5)), 2 * kQ);
}

template <class T>
std::int32_t env3_mem(std::int32_t l, std::int32_t n, std::int32_t last, std::int32_t twoM, std::int32_t m,
                      std::int32_t n2, std::int32_t)
{
    if (!multipleOfLanes<T>(m))
        return vtxStatusSizeError;
    const std::int32_t child = env5_mem<T>(l, n, last, twoM, m / Precision<T>::lanes, n2, m);
    if (child < 0)
        return child;
    return sum(child, vtxgAlignSize32Bytes(0), recordSize(sizeof(Env3)), 2 * kQ, EnvList_add_mem(2));
}

// env3 and env5 records share their shape: the header, children, one lookup
// list, a table pointer never set, the rule and seven integers.
template <class T, class Record, class Fields>
void column_stage_init_(Record* self, Arena* arena, std::int32_t kind, Fields store)
{
    startHeader(self, arena, sizeof(Record));
    self->children = self->kernelList = self->table = 0;
    store(*self);
    self->rule = 0;
    self->kernelList = newListHead(arena);
    self->children = newListHead(arena);
    finishHeader(self, kind + Precision<T>::code);
}

template <class T>
void env3_init_(Env3* self, Arena* arena, std::int32_t l, std::int32_t n, std::int32_t last, std::int32_t twoM,
                std::int32_t m, std::int32_t n2, std::int32_t m2)
{
    column_stage_init_<T>(self, arena, kEnv3, [&](Env3& r) {
        r.l = l, r.n = n, r.last = last, r.twoM = twoM, r.m = m, r.n2 = n2, r.m2 = m2;
    });
}

template <class T>
void env5_init_(Env5* self, Arena* arena, std::int32_t l, std::int32_t n, std::int32_t last, std::int32_t twoM,
                std::int32_t groups, std::int32_t n2, std::int32_t m)
{
    column_stage_init_<T>(self, arena, kEnv5, [&](Env5& r) {
        r.l = l, r.n = n, r.last = last, r.twoM = twoM, r.groups = groups, r.n2 = n2, r.m = m;
    });
}

template <class T>
std::int32_t env5_plan(Env5* self)
{
    self->rule = env5_chooseRule(self->l);
    if (self->rule != 7)
        return vtxStatusOk;
    return planInnerEnv7<T>(self, self->l, self->n, self->n, self->twoM, self->n, self->m);
}

template <class T>
std::int32_t env3_plan(Env3* self)
{
    Arena* arena = arenaOfNode(self);
    self->rule = multipleOfLanes<T>(self->m);
    if (!self->rule)
        return vtxStatusSizeError;
    auto* child = allocRecord<Env5>(arena);
    env5_init_<T>(child, arena, self->l, self->n, self->last, self->twoM, self->m / Precision<T>::lanes,
                  self->n2, self->m);
    addTo(arena, self->children, child);
    addTo(arena, self->kernelList, child);
    return env5_plan<T>(firstOf<Env5>(arena, self->kernelList)) ? vtxStatusSizeError : vtxStatusOk;
}

template <class T>
void envfCompose_init_(EnvfCompose* self, Arena* arena, std::int32_t width, std::int32_t denominator,
                       std::int32_t v, std::int32_t m, std::int32_t width2)
{
    startHeader(self, arena, sizeof(EnvfCompose));
    self->width = width;
    self->denominator = denominator;
    self->v = v;
    self->m = m;
    self->width2 = width2;
    finishHeader(self, kCompose + Precision<T>::code);
}

}  // namespace

// ---- env1 -----------------------------------------------------------------

template <class T>
std::int32_t env1_mem(std::int32_t n)
{
    const std::int32_t base = sum(recordSize(sizeof(Env1)), 3 * kQ);
    if (env1_chooseRule(n) != 6)
        return sum(vtxgAlignSize32Bytes(0), base);
    std::int32_t m = 0;
    if (divisorsIntNonTriv(&m, n / 2) != vtxStatusOk)
        return vtxStatusSizeError;
    const std::int32_t v = n / (2 * m), l = n / m, last = wrapAdd(wrapMul(2, n), -1);
    const std::int32_t stage2 = env2_mem<T>(m, n, 2 * m, v, n, last, l);
    if (stage2 < 0)
        return stage2;
    const std::int32_t stage1 = env3_mem<T>(l, n, last, 2 * m, m, n, m);
    if (stage1 < 0)
        return stage1;
    return sum(stage2, stage1, vtxgAlignSize32Bytes(scratchBytes<T>(n)), base, EnvList_add_mem(2),
               recordSize(sizeof(EnvfCompose)), EnvList_add_mem(1), EnvList_add_mem(2));
}

template <class T>
void env1_init_(Env1* self, Arena* arena, std::int32_t length)
{
    startHeader(self, arena, sizeof(Env1));
    self->children = self->stage2List = self->stage1List = self->scratch = 0;
    self->length = length;
    self->divisor = 0;
    self->rule = 0;
    self->stage2List = newListHead(arena);
    self->stage1List = newListHead(arena);
    self->children = newListHead(arena);
    finishHeader(self, kEnv1 + Precision<T>::code);
}

template <class T>
std::int32_t env1_plan(Env1* self)
{
    Arena* arena = arenaOfNode(self);
    const std::int32_t n = self->length;
    self->rule = env1_chooseRule(n);
    if (self->rule != 6)
        return vtxStatusOk;
    std::int32_t m = 0;
    if (divisorsIntNonTriv(&m, n / 2) != vtxStatusOk)
        return vtxStatusSizeError;
    self->divisor = m;
    const std::int32_t v = n / (2 * m), l = n / m, last = wrapAdd(wrapMul(2, n), -1);

    auto* stage2 = allocRecord<Env2>(arena);
    auto* compose = allocRecord<EnvfCompose>(arena);
    envfCompose_init_<T>(compose, arena, 2 * m, wrapMul(8, n), v, m, 2 * m);
    addTo(arena, self->children, compose);
    env2_init_<T>(stage2, arena, m, n, 2 * m, v, n, last, l, compose);
    addTo(arena, self->children, stage2);
    addTo(arena, self->stage2List, stage2);
    if (env2_plan<T>(firstOf<Env2>(arena, self->stage2List)))
        return vtxStatusSizeError;

    auto* stage1 = allocRecord<Env3>(arena);
    env3_init_<T>(stage1, arena, l, n, last, 2 * m, m, n, m);
    addTo(arena, self->children, stage1);
    addTo(arena, self->stage1List, stage1);
    if (env3_plan<T>(firstOf<Env3>(arena, self->stage1List)))
        return vtxStatusSizeError;

    self->scratch = refOf(arena, vtxgArenaMalloc(arena, scratchBytes<T>(n)));
    return vtxStatusOk;
}

template <class T>
void env1_del_(Env1* self)
{
    Arena* arena = arenaOfNode(self);
    vtxgArenaFree(arena, deref<void>(arena, self->scratch), self->rule == 6 ? scratchBytes<T>(self->length) : 0);
    freeListHead(arena, self->stage2List);
    freeListHead(arena, self->stage1List);
    freeChildren(arena, self->children);
}

// ---- Function objects -----------------------------------------------------

template <class T>
T envfCompose_at(const EnvfCompose* self, std::int32_t i, std::int32_t j)
{
    const std::int32_t ix = self->width * i + j;
    const std::int32_t h = ix / 2, a = h / self->m, b = h % self->m;
    const std::int32_t numerator = 2 * (2 * a + 1) * (2 * b + 1);
    const T x = static_cast<T>(numerator) / static_cast<T>(self->denominator);
    return ix % 2 ? sinPi<T>(x) : cosPi<T>(x);
}

template <class T>
T envfsplit_at(const Envfsplit* self, std::int32_t i, std::int32_t j, std::int32_t k)
{
    const auto* wrapped = deref<EnvfCompose>(arenaOf(self, self->arena), self->wrapped);
    return envfCompose_at<T>(wrapped, Precision<T>::lanes * i + j, k);
}

template <class T>
T envlambda_at(const Envlambda* self, std::int32_t i)
{
    return (static_cast<T>(i) + static_cast<T>(0.5)) / static_cast<T>(self->length / self->m2);
}

template <class T>
T owng_TFunc_IIIR_at(const EnvObject* object, std::int32_t i, std::int32_t j, std::int32_t k)
{
    switch (object->slot - Precision<T>::code) {
    case kCompose: return envfCompose_at<T>(static_cast<const EnvfCompose*>(object), i, j);
    case kSplit: return envfsplit_at<T>(static_cast<const Envfsplit*>(object), i, j, k);
    case kLambda: return envlambda_at<T>(static_cast<const Envlambda*>(object), i);
    default: return T(0);
    }
}

Env8Entry env8Entry(std::int32_t m2, std::int32_t inner, std::int32_t a, std::int32_t e)
{
    // Two-level combining: for m2 = 16 first four sets of 3 (set j at the
    // unit (2a+1) + 2 j inner), then the 3 multiples of the unit 4 (2a+1);
    // for m2 = 32 first the 7 multiples of 4 (2a+1), then eight sets of 3.
    const std::int32_t sets = m2 == 16 ? 0 : 7;  // where the sets start
    const std::int32_t fours = m2 == 16 ? 12 : 0;  // where the multiples of 4 (2a+1) start
    if (m2 < 16)
        return {e + 1, a};
    if (e >= fours && e < fours + m2 / 4 - 1)
        return {4 * (e - fours + 1), a};
    const std::int32_t s = e - sets;
    return {s % 3 + 1, a + (s / 3) * inner};
}

namespace {

template <class T>
void delOfClass(EnvObject* object, std::int32_t code)
{
    switch (code) {
    case kEnv1: env1_del_<T>(static_cast<Env1*>(object)); break;
    case kEnv2: delKernelHolder(static_cast<Env2*>(object)); break;
    case kEnv3: delKernelHolder(static_cast<Env3*>(object)); break;
    case kEnv4: env4_del_<T>(static_cast<Env4*>(object)); break;
    case kEnv5: delKernelHolder(static_cast<Env5*>(object)); break;
    case kEnv7: env7_del_<T>(static_cast<Env7*>(object)); break;
    case kEnv8: env8_del_<T>(static_cast<Env8*>(object)); break;
    case kEnv9: delKernelHolder(static_cast<Env9*>(object)); break;
    default: break;  // function objects own nothing
    }
}

}  // namespace

template std::int32_t env1_mem<float>(std::int32_t);
template std::int32_t env1_mem<double>(std::int32_t);
template void env1_init_<float>(Env1*, Arena*, std::int32_t);
template void env1_init_<double>(Env1*, Arena*, std::int32_t);
template std::int32_t env1_plan<float>(Env1*);
template std::int32_t env1_plan<double>(Env1*);
template void env1_del_<float>(Env1*);
template void env1_del_<double>(Env1*);
template float envfCompose_at<float>(const EnvfCompose*, std::int32_t, std::int32_t);
template double envfCompose_at<double>(const EnvfCompose*, std::int32_t, std::int32_t);
template float envlambda_at<float>(const Envlambda*, std::int32_t);
template double envlambda_at<double>(const Envlambda*, std::int32_t);
template float owng_TFunc_IIIR_at<float>(const EnvObject*, std::int32_t, std::int32_t, std::int32_t);
template double owng_TFunc_IIIR_at<double>(const EnvObject*, std::int32_t, std::int32_t, std::int32_t);

}  // namespace vtx::dct4

void vtx::plan::callDel(EnvObject* object)
{
    using namespace vtx::dct4;
    if (object->del >= kDouble)
        delOfClass<double>(object, object->del - kDouble);
    else
        delOfClass<float>(object, object->del);
}
