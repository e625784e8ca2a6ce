// The DCT-IV plan classes and function objects.  One record layout serves
// both precisions; the operations are templates on the element type.
#pragma once

#include "dct4/math.hpp"
#include "plan/runtime.hpp"

#include <cstdint>

namespace vtx::dct4 {

using plan::Arena;
using plan::EnvObject;
using plan::Ref;

// The root: rules 1 to 5 are the direct lengths 2 to 32, rule 6 the split.
struct Env1 : EnvObject {
    Ref children, stage2List, stage1List, scratch;
    std::int32_t rule, divisor, length;
};
// Stage two's holder: tests v and owns the combining node and its view.
struct Env2 : EnvObject {
    Ref children, kernelList, table;
    std::int32_t rule, m, n, twoM, v, n2, last, l;
    Ref twiddle;  // the root's envfCompose, not owned
};
// Stage one's holder: tests m and owns the column node.
struct Env3 : EnvObject {
    Ref children, kernelList, table;
    std::int32_t rule, l, n, last, twoM, m, n2, m2;
};
// The combining kernels of stage two and their twiddle table.
struct Env4 : EnvObject {
    Ref children, table;
    std::int32_t rule, m, n, twoM, rowLanes, groups, n2, last, l;
    Ref twiddle;  // the env2's envfsplit, not owned
};
// The column transforms of stage one.
struct Env5 : EnvObject {
    Ref children, kernelList, table;
    std::int32_t rule, l, n, last, twoM, groups, n2, m;
};
// A long column split into m2 interleaved inner transforms.
struct Env7 : EnvObject {
    Ref children, stage2List, stage1List, scratch;
    std::int32_t rule, length, divisor, p1, p2, stride, n, cols;
};
// The combining step of an env7 and its twiddle table.
struct Env8 : EnvObject {
    Ref children, table;
    std::int32_t rule, m2, n, cols, rowStride, v, n2, half, last, cols2, inner;
    Ref twiddle;  // the env7's envlambda, not owned
};
// The inner column transforms of an env7.
struct Env9 : EnvObject {
    Ref children, kernelList, table;
    std::int32_t rule, length, p1, p2, stride, parentStride, m2, n, colStride, cols;
};
// Twiddle of angle pi (2a+1)(2b+1) / (4N): cosine at even, sine at odd j.
struct EnvfCompose : EnvObject {
    std::int32_t width, denominator, v, m, width2;
};
// A view of an envfCompose in groups of lanes rows.
struct Envfsplit : EnvObject {
    std::int32_t width, groups;
    Ref wrapped;
};
// Fractional frequency (i + 1/2) / (length / m2).
struct Envlambda : EnvObject {
    std::int32_t length, m2;
};

static_assert(sizeof(Env1) == 44 && sizeof(Env2) == 64 && sizeof(Env3) == 60 && sizeof(Env4) == 64 &&
              sizeof(Env5) == 60 && sizeof(Env7) == 64 && sizeof(Env8) == 72 && sizeof(Env9) == 68 &&
              sizeof(EnvfCompose) == 36 && sizeof(Envfsplit) == 28 && sizeof(Envlambda) == 24,
              "records of 4-byte fields on every ABI");

template <class T>
struct Precision {
    static constexpr std::int32_t lanes = 16 / sizeof(T);
    static constexpr std::int32_t code = sizeof(T) == 8 ? plan::kDouble : 0;
};

// The sizing of a plan, the root's own record included: a byte count or a
// negative status.
template <class T> std::int32_t env1_mem(std::int32_t length);

template <class T> void env1_init_(Env1* self, Arena* arena, std::int32_t length);
template <class T> std::int32_t env1_plan(Env1* self);
template <class T> void env1_del_(Env1* self);

// The function objects' values, in the plan's precision.
template <class T> T envfCompose_at(const EnvfCompose* self, std::int32_t i, std::int32_t j);
template <class T> T envfsplit_at(const Envfsplit* self, std::int32_t i, std::int32_t j, std::int32_t k);
template <class T> T envlambda_at(const Envlambda* self, std::int32_t i);
// Calls any function object's `at` by its slot.
template <class T> T owng_TFunc_IIIR_at(const EnvObject* object, std::int32_t i, std::int32_t j, std::int32_t k);

// The order of the columns b within a group of an env4 table.
using math::env4ColumnOrder;

// The first member of a node's list, as the given class.
template <class R>
R* firstOf(const Arena* arena, Ref list)
{
    return static_cast<R*>(plan::EnvList_get(deref<plan::EnvList>(arena, list), 0));
}

// The env8 twiddle of table entry `e` (0 to m2-2) of row a: the multiple of
// the unit and the row that envlambda is asked for, so that the angle in
// units of pi is lambda(row) * 2 * multiple / m2.
struct Env8Entry {
    std::int32_t multiple, row;
};
Env8Entry env8Entry(std::int32_t m2, std::int32_t inner, std::int32_t a, std::int32_t e);

}  // namespace vtx::dct4
