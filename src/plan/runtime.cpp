// The bump arena, EnvList, the sine and cosine helpers and the divisor rule.
#include "plan/runtime.hpp"

#include "vtxgen.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace vtx::plan {

std::int32_t vtxgAlignSize32Bytes(std::int32_t size)
{
    return static_cast<std::int32_t>((static_cast<std::uint32_t>(size) + 31u) & ~31u);
}

unsigned char* vtxgArenaMalloc(Arena* arena, std::int32_t size)
{
    unsigned char* p = arena->next();
    arena->setNext(p + vtxgAlignSize32Bytes(size));
    return p;
}

void vtxgArenaFree(Arena* arena, const void*, std::int32_t size)
{
    arena->setNext(arena->next() - vtxgAlignSize32Bytes(size));
}

Arena* arenaSetUp(void* block)
{
    auto* arena = static_cast<Arena*>(block);
    const std::int32_t a = vtxgAlignSize32Bytes(1);
    const auto b = reinterpret_cast<std::uintptr_t>(block);
    arena->setNext(static_cast<unsigned char*>(block) + 2 * a - static_cast<std::int32_t>(b % 32));
    return arena;
}

EnvList* EnvList_init_(EnvList* cell, Arena* arena)
{
    cell->value = 0;
    cell->next = 0;
    cell->arena = refOf(arena, cell);
    return cell;
}

EnvObject* EnvList_add(EnvList* list, EnvObject* item)
{
    Arena* arena = arenaOf(list, list->arena);
    EnvList* last = list;
    while (last->next)
        last = deref<EnvList>(arena, last->next);
    if (!last->value) {
        last->value = refOf(arena, item);
        return item;
    }
    auto* cell = EnvList_init_(reinterpret_cast<EnvList*>(vtxgArenaMalloc(arena, kCellSize)), arena);
    last->next = refOf(arena, cell);
    cell->value = refOf(arena, item);
    return item;
}

std::int32_t EnvList_add_mem(std::int32_t count)
{
    return wrapMul(count, vtxgAlignSize32Bytes(kCellSize));
}

EnvObject* EnvList_get(const EnvList* list, std::int32_t index)
{
    if (index < 0)
        return nullptr;
    const Arena* arena = arenaOf(list, list->arena);
    const EnvList* cell = list;
    std::int32_t steps = 0;
    while (cell && steps < index) {
        cell = deref<EnvList>(arena, cell->next);
        ++steps;
    }
    // With index equal to the number of cells the walk ends on no cell at
    // all: nothing to read, as for an index further past the end.
    if (steps != index || !cell)
        return nullptr;
    return deref<EnvObject>(arena, cell->value);
}

void EnvList_freeChildren(EnvList* list)
{
    if (!list)
        return;
    Arena* arena = arenaOf(list, list->arena);
    for (EnvList* cell = list; cell; cell = deref<EnvList>(arena, cell->next)) {
        if (EnvObject* value = deref<EnvObject>(arena, cell->value)) {
            callDel(value);
            vtxgArenaFree(arenaOf(cell, cell->arena), value, value->size);
        }
    }
}

void EnvList_del_(EnvList* list)
{
    Arena* arena = arenaOf(list, list->arena);
    EnvList* cell = deref<EnvList>(arena, list->next);
    while (cell) {
        EnvList* next = deref<EnvList>(arena, cell->next);
        vtxgArenaFree(arena, cell, kCellSize);
        cell = next;
    }
}

Ref newListHead(Arena* arena)
{
    auto* cell = reinterpret_cast<EnvList*>(vtxgArenaMalloc(arena, kCellSize));
    return refOf(arena, EnvList_init_(cell, arena));
}

void freeListHead(Arena* arena, Ref head)
{
    if (EnvList* list = deref<EnvList>(arena, head)) {
        EnvList_del_(list);
        vtxgArenaFree(arena, list, kCellSize);
    }
}

namespace {
constexpr double kPi = 3.141592653589793;
}

// Widen, multiply by pi in double, round to single, then single-precision
// libm: table values are reproducible from this order alone.
float vtxgCosPi_32f(float x)
{
    return std::cos(static_cast<float>(static_cast<double>(x) * kPi));
}

float vtxgSinPi_32f(float x)
{
    return std::sin(static_cast<float>(static_cast<double>(x) * kPi));
}

namespace {

// 1 / n! for n = 0 .. 23, in extended precision.
constexpr auto kInverseFactorials = [] {
    std::array<long double, 24> f{};
    long double x = 1;
    for (int n = 0; n < 24; ++n) {
        if (n > 0)
            x /= n;
        f[n] = x;
    }
    return f;
}();

// cos r (odd = false) or sin r (odd = true) for |r| <= pi/4, by Horner in
// r^2 over 11 terms: the next one is below 2^-70.
long double series(long double r, bool odd)
{
    const long double r2 = r * r;
    long double sum = 0;
    for (int n = 10; n >= 0; --n) {
        const long double c = kInverseFactorials[2 * n + odd];
        sum = sum * r2 + (n % 2 ? -c : c);
    }
    return odd ? sum * r : sum;
}

// cos (sine = false) or sin of a double angle, reduced by quarter turns and
// summed as a series in extended precision, then rounded once to double.
// The two x86 ABIs' libm disagree in the last bit of some double cosines;
// x87 arithmetic does not, so double plans hold the same tables on both.
double quarterTurnSeries(double theta, bool sine)
{
    // pi/2 in two parts: 60 bits, so that k times it is exact for the small k
    // of table angles, and the rest.
    constexpr long double kHalfPiHigh = 0xc90fdaa22168c23p-59L;
    constexpr long double kHalfPiLow = 5.17018298179410556885939765033317070644e-19L;
    const long long k = std::llround(theta / 1.5707963267948966);
    const long double r = (static_cast<long double>(theta) - static_cast<long double>(k) * kHalfPiHigh) -
                          static_cast<long double>(k) * kHalfPiLow;
    // theta = k quarter turns + r: cos theta is cos r, -sin r, -cos r, sin r
    // for k = 0, 1, 2, 3 mod 4; sin theta is the same one quarter later.
    const int quarter = static_cast<int>(((k % 4) + 4) % 4) + (sine ? 3 : 0);
    const long double value = series(r, quarter % 2 == 1);
    return static_cast<double>(quarter % 4 == 1 || quarter % 4 == 2 ? -value : value);
}

}  // namespace

// Multiply by pi in double, then the cosine or sine of that double angle.
double vtxgCosPi_64f(double x)
{
    return quarterTurnSeries(x * kPi, false);
}

double vtxgSinPi_64f(double x)
{
    return quarterTurnSeries(x * kPi, true);
}

// From the largest divisor down; a size class whose divisor fails falls
// through to the next smaller one without a new size test.
std::int32_t divisorsIntNonTriv(std::int32_t* result, std::int32_t n)
{
    int step;
    if (n >= 512)
        step = 1;
    else if (n >= 128)
        step = 2;
    else if (n >= 32)
        step = 3;
    else if (n >= 16)
        step = 4;
    else if (n >= 4)
        step = 5;
    else
        return vtxStatusSizeError;
    for (std::int32_t divisor = 64 >> step; step <= 5; ++step, divisor >>= 1)
        if (n % divisor == 0) {
            *result = divisor;
            return vtxStatusOk;
        }
    return vtxStatusSizeError;
}

}  // namespace vtx::plan
