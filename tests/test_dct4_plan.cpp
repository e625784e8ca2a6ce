// The DCT-IV planning runtime from the inside: arena arithmetic, EnvList,
// helpers, the plan trees and their twiddle tables.
#include "dct4_support.hpp"
#include "vtxgen.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

using namespace vtxtest::dct4;

// ---- Arena ------------------------------------------------------------------

TEST(Arena, AlignSizeRoundsUpToMultiplesOf32)
{
    const std::int32_t cases[][2] = {{0, 0}, {1, 32}, {12, 32}, {31, 32}, {32, 32}, {33, 64}, {1000, 1024}};
    for (const auto& c : cases)
        EXPECT_EQ(vtxgAlignSize32Bytes(c[0]), c[1]) << c[0];
}

TEST(Arena, MallocAndFreeMoveNextByRoundedSizes)
{
    PlacedBlock block(1024, 0);
    Arena* arena = arenaSetUp(block.start());
    unsigned char* const start = arena->next();
    EXPECT_EQ(vtxgArenaMalloc(arena, 0), start);
    EXPECT_EQ(vtxgArenaMalloc(arena, 0), start);
    unsigned char* a = vtxgArenaMalloc(arena, 12);
    unsigned char* b = vtxgArenaMalloc(arena, 12);
    EXPECT_EQ(b - a, 32);
    vtxgArenaFree(arena, nullptr, 0);
    EXPECT_EQ(arena->next(), b + 32);
    vtxgArenaFree(arena, a, 12);  // A's size, not B's pointer: B is now free
    EXPECT_EQ(arena->next(), b);
    vtxgArenaFree(arena, nullptr, 33);
    EXPECT_EQ(arena->next(), b - 64);
}

TEST(Arena, SetUpFindsTheFirst32ByteBoundaryAboveBlockPlus32)
{
    for (std::size_t offset = 0; offset < 32; ++offset) {
        PlacedBlock block(256, offset);
        Arena* arena = arenaSetUp(block.start());
        const std::ptrdiff_t gap = arena->next() - block.start();
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(arena->next()) % 32, 0u) << offset;
        EXPECT_EQ(gap, 64 - static_cast<std::ptrdiff_t>(offset)) << offset;
    }
}

// ---- EnvList ----------------------------------------------------------------

struct ListFixture : ::testing::Test {
    PlacedBlock block{4096, 0};
    Arena* arena = arenaSetUp(block.start());

    // A function object record (owns nothing) of 24 bytes.
    EnvObject* object()
    {
        auto* o = reinterpret_cast<EnvObject*>(vtxgArenaMalloc(arena, sizeof(Envlambda)));
        *o = {kLambda, static_cast<std::int32_t>(sizeof(Envlambda)), kLambda, refOf(arena, o)};
        return o;
    }
    EnvList* head() { return deref<EnvList>(arena, newListHead(arena)); }
};

TEST_F(ListFixture, FirstMemberTakesNoCellLaterOnesOneEach)
{
    EnvList* list = head();
    EnvObject *a = object(), *b = object(), *c = object();
    EXPECT_EQ(EnvList_get(list, 0), nullptr);
    EXPECT_EQ(EnvList_get(list, -1), nullptr);
    unsigned char* before = arena->next();
    EXPECT_EQ(EnvList_add(list, a), a);
    EXPECT_EQ(arena->next(), before);
    EXPECT_EQ(EnvList_add(list, b), b);
    EXPECT_EQ(arena->next(), before + 32);
    EnvList_add(list, c);
    EXPECT_EQ(EnvList_get(list, 0), a);
    EXPECT_EQ(EnvList_get(list, 1), b);
    EXPECT_EQ(EnvList_get(list, 2), c);
    EXPECT_EQ(EnvList_get(list, 3), nullptr);  // one past the end
    EXPECT_EQ(EnvList_get(list, 4), nullptr);  // two or more past the end
    EXPECT_EQ(EnvList_add_mem(3), 96);
}

TEST_F(ListFixture, TeardownFreesMembersAndCellsButNotTheHead)
{
    EnvList* list = head();
    EnvList_freeChildren(nullptr);
    EnvList_freeChildren(list);  // empty head
    EnvList_del_(list);          // one cell: nothing to free
    unsigned char* const empty = arena->next();
    EXPECT_EQ(empty, reinterpret_cast<unsigned char*>(list) + 32);
    for (int i = 0; i < 3; ++i)
        EnvList_add(list, object());
    EXPECT_EQ(arena->next(), empty + 3 * 32 + 2 * 32);
    EnvList_freeChildren(list);
    EXPECT_EQ(arena->next(), empty + 2 * 32);
    EnvList_del_(list);
    EXPECT_EQ(arena->next(), empty);
}

// ---- Helpers ----------------------------------------------------------------

TEST(Helpers, SineAndCosineInUnitsOfPiRoundTheArgumentToSingleFirst)
{
    EXPECT_EQ(vtxgCosPi_32f(0.0f), 1.0f);
    EXPECT_EQ(vtxgSinPi_32f(0.5f), 1.0f);
    // pi/2 rounded to single lies above pi/2: the cosine is a small negative
    // number, not zero and not the double value.
    EXPECT_EQ(vtxgCosPi_32f(0.5f), std::cos(1.57079637f));
    EXPECT_LT(vtxgCosPi_32f(0.5f), -4.3e-8f);
    EXPECT_EQ(vtxgCosPi_64f(0.5), std::cos(1.5707963267948966));
    EXPECT_GT(vtxgCosPi_64f(0.5), 6.1e-17);
    for (float x : {0.125f, 0.3f, 0.71f, 1.9f})
        EXPECT_NEAR(vtxgSinPi_32f(x), std::sin(3.14159265358979323846L * x), 3e-7) << x;
}

// The double helpers round an extended-precision value once: against the
// extended libm they agree to the bit but for rare near-ties, on both ABIs.
TEST(Helpers, DoubleSineAndCosineAreRoundedFromExtendedPrecision)
{
    int offByOne = 0;
    for (int i = 0; i <= 40000; ++i) {
        const double x = i / 20000.0 + 1e-7 * (i % 7);  // 0 to 2 and a little
        const long double theta = static_cast<long double>(x * 3.141592653589793);
        for (int sine = 0; sine < 2; ++sine) {
            const double got = sine ? vtxgSinPi_64f(x) : vtxgCosPi_64f(x);
            const double want = static_cast<double>(sine ? std::sin(theta) : std::cos(theta));
            if (got != want) {
                ++offByOne;
                EXPECT_EQ(std::nextafter(got, want), want) << x << (sine ? " sin" : " cos");
            }
        }
    }
    EXPECT_LE(offByOne, 80);  // one in a thousand
}

TEST(Helpers, DivisorRuleFallsThroughToSmallerDivisors)
{
    const std::int32_t cases[][2] = {{3, -6},  {0, -6},   {-5, -6},  {4, 2},    {6, 2},    {8, 2},
                                     {10, 2},  {12, 2},   {16, 4},   {24, 4},   {32, 8},   {40, 8},
                                     {48, 8},  {64, 8},   {96, 8},   {128, 16}, {144, 16}, {256, 16},
                                     {512, 32}, {528, 16}, {520, 8}, {516, 4},  {514, 2},  {515, -6}};
    for (const auto& c : cases) {
        std::int32_t result = 777;
        const std::int32_t status = divisorsIntNonTriv(&result, c[0]);
        if (c[1] < 0) {
            EXPECT_EQ(status, vtxStatusSizeError) << c[0];
            EXPECT_EQ(result, 777) << c[0];
        } else {
            EXPECT_EQ(status, vtxStatusOk) << c[0];
            EXPECT_EQ(result, c[1]) << c[0];
        }
    }
}

TEST(Helpers, FunctionObjectExamples)
{
    EnvfCompose compose{};
    compose.width = 16;
    compose.denominator = 512;
    compose.m = 8;
    EXPECT_NEAR(envfCompose_at<double>(&compose, 0, 0), std::cos(M_PI / 256), 1e-16);
    EXPECT_NEAR(envfCompose_at<double>(&compose, 0, 1), std::sin(M_PI / 256), 1e-16);
    EXPECT_NEAR(envfCompose_at<float>(&compose, 0, 1), std::sin(M_PI / 256), 1e-9);
    // ix = 43: entry (a, b) = (2, 5), a sine of angle pi 5 11 / 256.
    EXPECT_NEAR(envfCompose_at<double>(&compose, 2, 11), std::sin(M_PI * 55 / 256), 1e-15);
    Envlambda lambda{};
    lambda.length = 128;
    lambda.m2 = 8;
    EXPECT_EQ(envlambda_at<float>(&lambda, 0), 0.03125f);
    EXPECT_EQ(envlambda_at<double>(&lambda, 3), 3.5 / 16);
}

TEST(Helpers, Env4ColumnOrderIsAPermutationInTheStoredOrder)
{
    EXPECT_EQ(env4ColumnOrder(1, 0), 0);
    const std::int32_t order8[] = {0, 7, 1, 6, 2, 5, 3, 4};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(env4ColumnOrder(8, i), order8[i]);
    for (std::int32_t m : {2, 4, 8, 16, 32}) {
        std::vector<int> seen(m, 0);
        for (std::int32_t i = 0; i < m; ++i)
            ++seen[env4ColumnOrder(m, i)];
        for (std::int32_t b = 0; b < m; ++b)
            EXPECT_EQ(seen[b], 1) << "m " << m << " b " << b;
    }
    EXPECT_EQ(env4ColumnOrder(32, 2), 16);
    EXPECT_EQ(env4ColumnOrder(32, 31), 2);
}

// ---- Plans: trees, placement, excess ---------------------------------------

// The arena excess of a plan with this many env7 levels.
std::ptrdiff_t excessFor(int env7Levels, std::int32_t n)
{
    if (n <= 32)
        return 0;
    return 224 + 160 * env7Levels;
}

template <class T>
vtxStatus initPlan(Env1** root, std::int32_t n, void* block)
{
    if constexpr (sizeof(T) == 4)
        return vtxgDCT4Init_32f(reinterpret_cast<vtxDCT4Spec_32f**>(root), n, block);
    else
        return vtxgDCT4Init_64f(reinterpret_cast<vtxDCT4Spec_64f**>(root), n, block);
}

template <class T>
std::int32_t sizeOf(std::int32_t n)
{
    int size = -1;
    if constexpr (sizeof(T) == 4)
        EXPECT_EQ(vtxgDCT4GetSize_32f(n, &size), vtxStatusOk) << n;
    else
        EXPECT_EQ(vtxgDCT4GetSize_64f(n, &size), vtxStatusOk) << n;
    return size;
}

std::int32_t largestLog2(bool single)
{
    // Under an emulator the tables of the plans from 2^21 up take minutes to
    // fill; 2^20 already holds every kind of record at its 32-bit size.
    if (std::getenv("VTX_EMULATED"))
        return 20;
#if defined(__SANITIZE_ADDRESS__)
    // Under the sanitizers the largest plans take several times longer to fill.
    (void)single;
    return 24;
#else
    return single ? 26 : 25;
#endif
}

// Builds every accepted power of two in a block of exactly the reported
// size, at both placements; checks alignment, bounds, the excess and that
// teardown returns `next` to where Init set it up.
template <class T>
void buildEveryPowerOfTwo()
{
    constexpr bool single = sizeof(T) == 4;
    for (std::int32_t k = 1; k <= largestLog2(single); ++k) {
        const std::int32_t n = 1 << k;
        const std::int32_t size = sizeOf<T>(n);
        for (std::size_t offset : {std::size_t{4}, std::size_t{0}}) {
            PlacedBlock block(static_cast<std::size_t>(size), offset);
            Env1* root = nullptr;
            ASSERT_EQ(initPlan<T>(&root, n, block.start()), vtxStatusOk) << n;
            Arena* arena = block.arena();
            const unsigned char* const first = reinterpret_cast<unsigned char*>(root);
            EXPECT_EQ(first - block.start(), 64 - static_cast<std::ptrdiff_t>(offset)) << n;
            int env7Levels = 0;
            walk(arena, root, 0, [&](const EnvObject* o, int) {
                const auto* p = reinterpret_cast<const unsigned char*>(o);
                EXPECT_EQ(reinterpret_cast<std::uintptr_t>(p) % 32, 0u) << n;
                EXPECT_TRUE(p >= first && p + o->size <= block.end()) << n;
                EXPECT_EQ(o->arena, p - block.start()) << n;
                if (o->del % kDouble == kEnv7)
                    ++env7Levels;
            });
            EXPECT_LE(arena->next(), block.end()) << n;
            EXPECT_EQ(block.end() - arena->next(), excessFor(env7Levels, n) + static_cast<std::ptrdiff_t>(offset))
                << "N " << n << " offset " << offset;
            env1_del_<T>(root);
            vtxgArenaFree(arena, root, root->size);
            EXPECT_EQ(arena->next(), first) << n;
        }
    }
}

TEST(Plans, EveryPowerOfTwoBuildsInItsReportedSingle) { buildEveryPowerOfTwo<float>(); }
TEST(Plans, EveryPowerOfTwoBuildsInItsReportedDouble) { buildEveryPowerOfTwo<double>(); }

template <class T>
struct BuiltPlan {
    std::unique_ptr<PlacedBlock> block;
    Env1* root = nullptr;
    const Arena* arena() const { return block->arena(); }
};

template <class T>
BuiltPlan<T> build(std::int32_t n)
{
    BuiltPlan<T> plan;
    plan.block = std::make_unique<PlacedBlock>(sizeOf<T>(n), 0);
    EXPECT_EQ(initPlan<T>(&plan.root, n, plan.block->start()), vtxStatusOk) << n;
    return plan;
}

TEST(Plans, Tree1024SingleMatchesItsListing)
{
    const auto plan = build<float>(1024);
    const Arena* arena = plan.arena();
    const Env1* root = plan.root;
    EXPECT_EQ(root->rule, 6);
    EXPECT_EQ(root->divisor, 32);
    EXPECT_EQ(root->length, 1024);
    EXPECT_NE(root->scratch, 0);
    EXPECT_EQ(root->del, kEnv1);
    EXPECT_EQ(root->size, 44);

    const auto* compose = static_cast<const EnvfCompose*>(EnvList_get(deref<EnvList>(arena, root->children), 0));
    ASSERT_EQ(compose->slot, kCompose);
    EXPECT_EQ(compose->size, 36);
    EXPECT_EQ(compose->width, 64);
    EXPECT_EQ(compose->denominator, 8192);
    EXPECT_EQ(compose->v, 16);
    EXPECT_EQ(compose->m, 32);
    EXPECT_EQ(compose->width2, 64);

    const auto* e2 = firstOf<Env2>(arena, root->stage2List);
    ASSERT_EQ(e2->del, kEnv2);
    EXPECT_EQ(EnvList_get(deref<EnvList>(arena, root->children), 1), e2);
    const std::int32_t f2[] = {e2->rule, e2->m, e2->n, e2->twoM, e2->v, e2->n2, e2->last, e2->l};
    const std::int32_t w2[] = {1, 32, 1024, 64, 16, 1024, 2047, 32};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(f2[i], w2[i]) << "env2 field " << i;
    EXPECT_EQ(e2->table, 0);
    EXPECT_EQ(deref<EnvfCompose>(arena, e2->twiddle), compose);

    const auto* e4 = firstOf<Env4>(arena, e2->kernelList);
    ASSERT_EQ(e4->del, kEnv4);
    const std::int32_t f4[] = {e4->rule, e4->m, e4->n, e4->twoM, e4->rowLanes, e4->groups, e4->n2, e4->last, e4->l};
    const std::int32_t w4[] = {6, 32, 1024, 64, 256, 4, 1024, 2047, 32};
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(f4[i], w4[i]) << "env4 field " << i;
    const auto* split = deref<Envfsplit>(arena, e4->twiddle);
    ASSERT_EQ(split->slot, kSplit);
    EXPECT_EQ(split->width, 64);
    EXPECT_EQ(split->groups, 4);
    EXPECT_EQ(deref<EnvfCompose>(arena, split->wrapped), compose);
    EXPECT_EQ(EnvList_get(deref<EnvList>(arena, e2->children), 0), split);

    const auto* e3 = firstOf<Env3>(arena, root->stage1List);
    ASSERT_EQ(e3->del, kEnv3);
    const std::int32_t f3[] = {e3->rule, e3->l, e3->n, e3->last, e3->twoM, e3->m, e3->n2, e3->m2};
    const std::int32_t w3[] = {1, 32, 1024, 2047, 64, 32, 1024, 32};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(f3[i], w3[i]) << "env3 field " << i;

    const auto* e5 = firstOf<Env5>(arena, e3->kernelList);
    ASSERT_EQ(e5->del, kEnv5);
    const std::int32_t f5[] = {e5->rule, e5->l, e5->n, e5->last, e5->twoM, e5->groups, e5->n2, e5->m};
    const std::int32_t w5[] = {5, 32, 1024, 2047, 64, 8, 1024, 32};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(f5[i], w5[i]) << "env5 field " << i;
    EXPECT_EQ(EnvList_get(deref<EnvList>(arena, e5->kernelList), 0), nullptr);
}

void expectEnv7(const Env7* e7, const std::int32_t (&want)[8], const char* what)
{
    const std::int32_t f[] = {e7->rule, e7->length, e7->divisor, e7->p1, e7->p2, e7->stride, e7->n, e7->cols};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(f[i], want[i]) << what << " field " << i;
}

void expectEnv8(const Arena* arena, const Env8* e8, const std::int32_t (&want)[11], const std::int32_t (&lambda)[2],
                const char* what)
{
    const std::int32_t f[] = {e8->rule, e8->m2, e8->n, e8->cols, e8->rowStride, e8->v,
                              e8->n2, e8->half, e8->last, e8->cols2, e8->inner};
    for (int i = 0; i < 11; ++i)
        EXPECT_EQ(f[i], want[i]) << what << " field " << i;
    const auto* l = deref<Envlambda>(arena, e8->twiddle);
    EXPECT_EQ(l->slot, kLambda) << what;
    EXPECT_EQ(l->length, lambda[0]) << what;
    EXPECT_EQ(l->m2, lambda[1]) << what;
}

TEST(Plans, Tree131072SingleMatchesItsListing)
{
    const auto plan = build<float>(131072);
    const Arena* arena = plan.arena();
    EXPECT_EQ(plan.root->divisor, 32);
    const auto* e4 = firstOf<Env4>(arena, firstOf<Env2>(arena, plan.root->stage2List)->kernelList);
    EXPECT_EQ(e4->rule, 6);
    EXPECT_EQ(firstOf<Env2>(arena, plan.root->stage2List)->v, 2048);
    EXPECT_EQ(e4->groups, 512);
    const auto* e5 = firstOf<Env5>(arena, firstOf<Env3>(arena, plan.root->stage1List)->kernelList);
    EXPECT_EQ(e5->rule, 7);
    EXPECT_EQ(e5->l, 4096);

    const auto* top = firstOf<Env7>(arena, e5->kernelList);
    ASSERT_EQ(top->del, kEnv7);
    expectEnv7(top, {1, 4096, 32, 131072, 131072, 64, 131072, 32}, "env7 of 4096");
    EXPECT_NE(top->scratch, 0);
    expectEnv8(arena, firstOf<Env8>(arena, top->stage2List),
               {5, 32, 131072, 32, 2048, 64, 131072, 2048, 4095, 32, 128}, {4096, 32}, "env8 of 4096");
    const auto* e9 = firstOf<Env9>(arena, top->stage1List);
    const std::int32_t f9[] = {e9->rule, e9->length, e9->p1, e9->p2, e9->stride,
                               e9->parentStride, e9->m2, e9->n, e9->colStride, e9->cols};
    const std::int32_t w9[] = {7, 128, 131072, 131072, 2048, 64, 32, 131072, 1024, 32};
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(f9[i], w9[i]) << "env9 of 128 field " << i;

    const auto* inner = firstOf<Env7>(arena, e9->kernelList);
    expectEnv7(inner, {1, 128, 8, 131072, 131072, 2048, 131072, 1024}, "env7 of 128");
    expectEnv8(arena, firstOf<Env8>(arena, inner->stage2List),
               {3, 8, 131072, 1024, 16384, 8, 131072, 64, 127, 1024, 16}, {128, 8}, "env8 of 128");
    const auto* leaf = firstOf<Env9>(arena, inner->stage1List);
    EXPECT_EQ(leaf->rule, 4);
    EXPECT_EQ(leaf->length, 16);
    // Every scratch is N elements, also at the level of length 128: the
    // inner env7 allocates its scratch last, the outer one next, the root's
    // after that, and the plan ends there.
    EXPECT_EQ(top->scratch - inner->scratch, 131072 * 4);
    EXPECT_EQ(plan.root->scratch - top->scratch, 131072 * 4);
    EXPECT_EQ(plan.arena()->next(), deref<unsigned char>(arena, plan.root->scratch) + 131072 * 4);
    int levels = 0;
    walk(arena, plan.root, 0, [&](const EnvObject* o, int) { levels += o->del == kEnv7; });
    EXPECT_EQ(levels, 2);
}

// Lengths 2^k + 1 plan like 2^k (halves and quotients truncate alike) and
// stay inside their reported block.
template <class T>
void oddLengthsBuildInsideTheirBlock(std::initializer_list<std::int32_t> lengths)
{
    for (std::int32_t n : lengths) {
        const std::int32_t size = sizeOf<T>(n);
        PlacedBlock block(static_cast<std::size_t>(size), 4);
        Env1* root = nullptr;
        ASSERT_EQ(initPlan<T>(&root, n, block.start()), vtxStatusOk) << n;
        EXPECT_EQ(root->rule, 6) << n;
        EXPECT_LE(block.arena()->next(), block.end()) << n;
    }
}

TEST(Plans, OddLengthsThatTruncateBuildSingle) { oddLengthsBuildInsideTheirBlock<float>({33, 65, 129, 4097}); }
TEST(Plans, OddLengthsThatTruncateBuildDouble) { oddLengthsBuildInsideTheirBlock<double>({9, 17, 33, 4097}); }

// ---- Tables -------------------------------------------------------------------

// Every env4 entry is the helper's value of the closed-form angle
// pi (2a+1)(2b+1) / (4N), and within rounding of the true one.
template <class T>
void env4TablesMatchTheirAngles()
{
    constexpr std::int32_t lanes = 16 / sizeof(T);
    for (std::int32_t n : {64, 128, 256, 512, 1024, 4096, 65536}) {
        const auto plan = build<T>(n);
        const Arena* arena = plan.arena();
        const auto* e4 = firstOf<Env4>(arena, firstOf<Env2>(arena, plan.root->stage2List)->kernelList);
        const T* table = deref<T>(arena, e4->table);
        std::size_t at = 0;
        for (std::int32_t g = 0; g < e4->groups; ++g)
            for (std::int32_t index = 0; index < e4->m; ++index)
                for (int sine = 0; sine < 2; ++sine)
                    for (std::int32_t j = 0; j < lanes; ++j) {
                        const std::int32_t a = lanes * g + j, b = env4ColumnOrder(e4->m, index);
                        const std::int64_t num = (2 * a + 1) * (2 * b + 1);
                        const T x = static_cast<T>(2 * num) / static_cast<T>(8 * n);
                        const T value = table[at++];
                        ASSERT_EQ(value, sine ? sinPi<T>(x) : cosPi<T>(x)) << "N " << n << " a " << a << " b " << b;
                        const long double angle = 3.14159265358979323846L * num / (4.0L * n);
                        const long double truth = sine ? std::sin(angle) : std::cos(angle);
                        ASSERT_NEAR(value, truth, sizeof(T) == 4 ? 3e-7 : 1e-15) << "N " << n;
                    }
        EXPECT_EQ(at, static_cast<std::size_t>(n)) << "N/2 complex values, N " << n;
    }
}

TEST(Tables, Env4SingleMatchesClosedFormAngles) { env4TablesMatchTheirAngles<float>(); }
TEST(Tables, Env4DoubleMatchesClosedFormAngles) { env4TablesMatchTheirAngles<double>(); }

// Every env8 entry holds cosine and sine of multiple * pi (2 row + 1) / L,
// each broadcast over the lanes, in the documented order.
template <class T>
void env8TablesMatchTheirAngles()
{
    constexpr std::int32_t lanes = 16 / sizeof(T);
    for (std::int32_t n : {4096, 8192, 32768, 131072}) {
        const auto plan = build<T>(n);
        const Arena* arena = plan.arena();
        const auto* e5 = firstOf<Env5>(arena, firstOf<Env3>(arena, plan.root->stage1List)->kernelList);
        for (const Env7* e7 = firstOf<Env7>(arena, e5->kernelList); e7;) {
            const auto* e8 = firstOf<Env8>(arena, e7->stage2List);
            const T* table = deref<T>(arena, e8->table);
            std::size_t at = 0;
            for (std::int32_t a = 0; a < e8->v; ++a)
                for (std::int32_t e = 0; e < e8->m2 - 1; ++e) {
                    const Env8Entry entry = env8Entry(e8->m2, e8->inner, a, e);
                    const long double turns =
                        static_cast<long double>(entry.multiple) * (2 * entry.row + 1) / e7->length;
                    for (int sine = 0; sine < 2; ++sine) {
                        const T want = sine ? sinPi<T>(static_cast<T>(turns)) : cosPi<T>(static_cast<T>(turns));
                        const long double truth = sine ? std::sin(3.14159265358979323846L * turns)
                                                       : std::cos(3.14159265358979323846L * turns);
                        for (std::int32_t j = 0; j < lanes; ++j) {
                            ASSERT_EQ(table[at], want) << "N " << n << " m2 " << e8->m2 << " a " << a << " e " << e;
                            ASSERT_NEAR(table[at], truth, sizeof(T) == 4 ? 4e-7 : 1e-15);
                            ++at;
                        }
                    }
                }
            EXPECT_EQ(static_cast<std::int64_t>(at * sizeof(T)), 32LL * e8->v * (e8->m2 - 1));
            const auto* e9 = firstOf<Env9>(arena, e7->stage1List);
            e7 = e9->rule == 7 ? firstOf<Env7>(arena, e9->kernelList) : nullptr;
        }
    }
}

TEST(Tables, Env8SingleMatchesClosedFormAngles) { env8TablesMatchTheirAngles<float>(); }
TEST(Tables, Env8DoubleMatchesClosedFormAngles) { env8TablesMatchTheirAngles<double>(); }

TEST(Tables, Env8TwoLevelOrders)
{
    // m2 = 16: four sets of three (set j at the row a + j inner), then 4, 8, 12.
    EXPECT_EQ(env8Entry(16, 16, 3, 0).multiple, 1);
    EXPECT_EQ(env8Entry(16, 16, 3, 0).row, 3);
    EXPECT_EQ(env8Entry(16, 16, 3, 5).multiple, 3);
    EXPECT_EQ(env8Entry(16, 16, 3, 5).row, 3 + 16);
    EXPECT_EQ(env8Entry(16, 16, 3, 14).multiple, 12);
    EXPECT_EQ(env8Entry(16, 16, 3, 14).row, 3);
    // m2 = 32: 4, 8, ..., 28, then eight sets of three.
    EXPECT_EQ(env8Entry(32, 4, 1, 6).multiple, 28);
    EXPECT_EQ(env8Entry(32, 4, 1, 7).multiple, 1);
    EXPECT_EQ(env8Entry(32, 4, 1, 30).multiple, 3);
    EXPECT_EQ(env8Entry(32, 4, 1, 30).row, 1 + 7 * 4);
    EXPECT_EQ(env8Entry(8, 4, 1, 6).multiple, 7);
}

}  // namespace
