// The C++ interface against the C calls.  Oracle: every kernel the library
// exports, found by name in its symbol table, called with the same input and
// flag; each C++ form (compile-time size, run-time size over pointers, over
// std::span, over std::span of a static extent, and vtx::wht's owned buffer)
// must give its status and bits.
// Then the error mapping and the lifecycle of the owning objects, with
// vtxMalloc and vtxFree (the DCT-IV plans' blocks) and the aligned operator
// new and delete (vtx::wht's buffers) of this program's own counting blocks.
#include "support.hpp"
#include "vtxcore.h"
#include "vtxgen.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <functional>
#include <new>
#include <map>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace {
int g_live = 0;  // blocks from vtxMalloc not yet freed
bool g_fail = false;
}  // namespace

extern "C" VTXCOREAPI void* vtxMalloc(int size)
{
    if (g_fail || size <= 0)
        return nullptr;
    ++g_live;
    return std::aligned_alloc(64, static_cast<std::size_t>(size + 63) / 64 * 64);
}

extern "C" VTXCOREAPI void vtxFree(void* ptr)
{
    if (ptr != nullptr)
        --g_live;
    std::free(ptr);
}

void* operator new(std::size_t size, std::align_val_t al, const std::nothrow_t&) noexcept
{
    if (g_fail)
        return nullptr;
    ++g_live;
    const auto a = static_cast<std::size_t>(al);
    return std::aligned_alloc(a, (size + a - 1) / a * a);
}

void operator delete(void* ptr, std::align_val_t) noexcept
{
    if (ptr != nullptr)
        --g_live;
    std::free(ptr);
}

namespace {

// One C++ form of a kernel: source, destination (sized by the kernel's
// lengths), element counts n_src and n_dst, flag.
using Form = vtx::status (*)(void* src, void* dst, int n_src, int n_dst, vtx::scale);
struct Forms {
    std::vector<std::pair<const char*, Form>> forms;
};
std::map<std::string, Forms>& table() { static std::map<std::string, Forms> t; return t; }

template <class T>
const char* suffix() { return sizeof(T) == 4 ? "_32f" : "_64f"; }

template <class T>
std::span<T> sp(void* p, int n) { return {static_cast<T*>(p), static_cast<std::size_t>(n)}; }
// The same with the length in the type: the compile-time size from a range.
template <class T, int N>
std::span<T, N> fixed(void* p) { return std::span<T, N>(static_cast<T*>(p), N); }

template <class T, class L, int N>
void add_layout(const std::string& fwd, const std::string& inv)
{
    table()[fwd].forms = {
        {"fixed", [](void* s, void* d, int, int, vtx::scale f) { return vtx::real_forward<N, L>(static_cast<T*>(s), static_cast<T*>(d), f); }},
        {"sized", [](void* s, void* d, int, int, vtx::scale f) { return vtx::real_forward<L>(static_cast<T*>(s), static_cast<T*>(d), N, f); }},
        {"range", [](void* s, void* d, int ns, int nd, vtx::scale f) { return vtx::real_forward<L>(sp<const T>(s, ns), sp<T>(d, nd), f); }},
        {"static", [](void* s, void* d, int, int, vtx::scale f) { return vtx::real_forward<L>(fixed<const T, N>(s), fixed<T, L::length(N)>(d), f); }}};
    table()[inv].forms = {
        {"fixed", [](void* s, void* d, int, int, vtx::scale f) { return vtx::real_inverse<N, L>(static_cast<T*>(s), static_cast<T*>(d), f); }},
        {"sized", [](void* s, void* d, int, int, vtx::scale f) { return vtx::real_inverse<L>(static_cast<T*>(s), static_cast<T*>(d), N, f); }},
        {"range", [](void* s, void* d, int ns, int nd, vtx::scale f) { return vtx::real_inverse<L>(sp<const T>(s, ns), sp<T>(d, nd), f); }},
        {"static", [](void* s, void* d, int, int, vtx::scale f) { return vtx::real_inverse<L>(fixed<const T, L::length(N)>(s), fixed<T, N>(d), f); }}};
}

template <class T, int N>
void add_size()
{
    using C = std::complex<T>;
    const std::string p = suffix<T>(), n = std::to_string(N);
    table()["vtxgDFTFwd_CToC_" + n + p + "c"].forms = {
        {"fixed", [](void* s, void* d, int, int, vtx::scale f) { return vtx::dft<N>(static_cast<C*>(s), static_cast<C*>(d), f); }},
        {"sized", [](void* s, void* d, int, int, vtx::scale f) { return vtx::dft(static_cast<C*>(s), static_cast<C*>(d), N, f); }},
        {"range", [](void* s, void* d, int, int, vtx::scale f) { return vtx::dft(sp<const C>(s, N), sp<C>(d, N), f); }},
        {"static", [](void* s, void* d, int, int, vtx::scale f) { return vtx::dft(fixed<const C, N>(s), fixed<C, N>(d), f); }}};
    table()["vtxgDFTInv_CToC_" + n + p + "c"].forms = {
        {"fixed", [](void* s, void* d, int, int, vtx::scale f) { return vtx::inverse_dft<N>(static_cast<C*>(s), static_cast<C*>(d), f); }},
        {"sized", [](void* s, void* d, int, int, vtx::scale f) { return vtx::inverse_dft(static_cast<C*>(s), static_cast<C*>(d), N, f); }},
        {"range", [](void* s, void* d, int, int, vtx::scale f) { return vtx::inverse_dft(sp<const C>(s, N), sp<C>(d, N), f); }},
        {"static", [](void* s, void* d, int, int, vtx::scale f) { return vtx::inverse_dft(fixed<const C, N>(s), fixed<C, N>(d), f); }}};
    table()["vtxgHartley_" + n + p].forms = {
        {"fixed", [](void* s, void* d, int, int, vtx::scale f) { return vtx::hartley<N>(static_cast<T*>(s), static_cast<T*>(d), f); }},
        {"sized", [](void* s, void* d, int, int, vtx::scale f) { return vtx::hartley(static_cast<T*>(s), static_cast<T*>(d), N, f); }},
        {"range", [](void* s, void* d, int, int, vtx::scale f) { return vtx::hartley(sp<const T>(s, N), sp<T>(d, N), f); }},
        {"static", [](void* s, void* d, int, int, vtx::scale f) { return vtx::hartley(fixed<const T, N>(s), fixed<T, N>(d), f); }}};
    add_layout<T, vtx::ccs, N>("vtxgDFTFwd_RToCCS_" + n + p, "vtxgDFTInv_CCSToR_" + n + p);
    add_layout<T, vtx::pack, N>("vtxgDFTFwd_RToPack_" + n + p, "vtxgDFTInv_PackToR_" + n + p);
    add_layout<T, vtx::perm, N>("vtxgDFTFwd_RToPerm_" + n + p, "vtxgDFTInv_PermToR_" + n + p);
}

template <class T, int Order>
void add_order()
{
    const std::string name = "vtxgWHT_" + std::to_string(Order) + suffix<T>();
    table()[name].forms = {
        {"fixed", [](void* s, void* d, int, int, vtx::scale f) { return vtx::walsh_hadamard<Order>(static_cast<T*>(s), static_cast<T*>(d), f); }},
        {"sized", [](void* s, void* d, int, int, vtx::scale f) { return vtx::walsh_hadamard(static_cast<T*>(s), static_cast<T*>(d), Order, f); }},
        {"owned", [](void* s, void* d, int, int, vtx::scale f) { return vtx::wht<T>(Order)(static_cast<T*>(s), static_cast<T*>(d), f); }},
        {"range", [](void* s, void* d, int n, int, vtx::scale f) { return vtx::wht<T>(Order)(sp<const T>(s, n), sp<T>(d, n), f); }}};
}

template <class T, int... N, int... O>
void add_all(std::integer_sequence<int, N...>, std::integer_sequence<int, O...>)
{
    (add_size<T, N + 2>(), ...);
    (add_order<T, O + 1>(), ...);
}

const std::map<std::string, Forms>& forms()
{
    if (table().empty()) {
        add_all<float>(std::make_integer_sequence<int, 63>(), std::make_integer_sequence<int, 13>());
        add_all<double>(std::make_integer_sequence<int, 63>(), std::make_integer_sequence<int, 13>());
    }
    return table();
}

// Runs the C kernel and every C++ form of `name` on the same input with each
// flag; expects equal statuses and bytes.
void expect_forms_match(const std::string& name, const std::function<vtxStatus(const void*, void*, int)>& c,
                        int n_src, int n_dst, int bytes_per_element, bool single)
{
    const auto it = forms().find(name);
    ASSERT_NE(it, forms().end()) << name << " has no C++ form";
    const std::size_t n = static_cast<std::size_t>(std::max(n_src, n_dst) + 16);  // room for reads behind
    const std::vector<double> x = vtxtest::fixed_input(n_src, 7u + static_cast<unsigned>(n_src), single);
    vtxtest::Buffer src(n * static_cast<std::size_t>(bytes_per_element));
    src.put(0, x, single);
    for (const vtx::scale flag : {vtx::scale::forward, vtx::scale::inverse, vtx::scale::symmetric, vtx::scale::none}) {
        vtxtest::Buffer want(n * static_cast<std::size_t>(bytes_per_element), 0);
        const vtxStatus st = c(src.at(0), want.at(0), static_cast<int>(flag));
        for (const auto& [form, call] : it->second.forms) {
            vtxtest::Buffer got(want.size(), 0);
            const vtx::status cst = call(src.at(0), got.at(0), n_src, n_dst, flag);
            EXPECT_EQ(static_cast<vtxStatus>(cst), st) << name << " " << form << " flag " << static_cast<int>(flag);
            EXPECT_EQ(std::memcmp(got.at(0), want.at(0), want.size()), 0)
                << name << " " << form << " flag " << static_cast<int>(flag) << ": other bits than the C call";
        }
    }
}

TEST(Cxx, ComplexFormsGiveTheCCallsBits)
{
    for (const vtxtest::ComplexKernel& k : vtxtest::complex_kernels())
        expect_forms_match(k.name(), k.fn, k.components(), k.components(), k.component_bytes(), k.single());
}

TEST(Cxx, RealAndHartleyFormsGiveTheCCallsBits)
{
    for (const auto* list : {&vtxtest::real_kernels(vtxgen::Direction::Forward),
                             &vtxtest::real_kernels(vtxgen::Direction::Inverse), &vtxtest::hartley_kernels()})
        for (const vtxtest::RealKernel& k : *list)
            expect_forms_match(k.name(), k.fn, k.source_elements(), k.destination_elements(), k.element_bytes(),
                               k.single());
}

TEST(Cxx, WalshHadamardFormsGiveTheCCallsBits)
{
    for (const vtxtest::WhtKernel& k : vtxtest::wht_kernels())
        expect_forms_match(k.name(), [&k](const void* s, void* d, int f) { return k(s, d, f, nullptr); },
                           k.length(), k.length(), k.element_bytes(), k.single());
    EXPECT_EQ(g_live, 0);
}

// ---- Statuses ------------------------------------------------------------------

TEST(Cxx, StatusesAreTheCStatusesAsErrorCodes)
{
    const std::vector<std::complex<float>> x(8);
    std::vector<std::complex<float>> y(8), short_y(7);
    std::vector<double> r(8), c(10);
    const auto bad_flag = static_cast<vtx::scale>(3);
    vtx32fc cx[8] = {}, cy[8];
    const struct {
        vtx::status got;
        vtxStatus want;
    } rows[] = {
        {vtx::dft<8>(x.data(), y.data()), vtxgDFTFwd_CToC_8_32fc(cx, cy, vtxScaleNone)},
        {vtx::dft<8, float>(nullptr, y.data()), vtxgDFTFwd_CToC_8_32fc(nullptr, cy, vtxScaleNone)},
        {vtx::inverse_dft<8>(x.data(), y.data(), bad_flag), vtxgDFTInv_CToC_8_32fc(cx, cy, 3)},
        {vtx::dft(x.data(), y.data(), 65), vtxgDFTFwd_CToC_32fc(cx, cy, 65, vtxScaleNone)},
        {vtx::hartley(r.data(), r.data(), 1), vtxgHartley_64f(r.data(), r.data(), 1, vtxScaleNone)},
        {vtx::walsh_hadamard(r.data(), r.data(), 14), vtxgWHT_64f(r.data(), r.data(), 14, vtxScaleNone, nullptr)},
        {vtx::real_forward<vtx::ccs>(r, c, bad_flag), vtxgDFTFwd_RToCCS_64f(r.data(), c.data(), 8, 3)},
        // Ranges of lengths that do not fit the transform: no call.
        {vtx::dft(x, short_y), vtxStatusSizeError},
        {vtx::real_forward<vtx::pack>(r, c), vtxStatusSizeError},
        {vtx::real_inverse<vtx::perm>(c, r), vtxStatusSizeError},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(static_cast<vtxStatus>(row.got), row.want);
        const std::error_code ec = row.got;
        EXPECT_EQ(ec.value(), row.want);
        EXPECT_EQ(&ec.category(), &vtx::vtxgen_category());
        EXPECT_EQ(static_cast<bool>(ec), row.want != vtxStatusOk);
    }
    EXPECT_STREQ(vtx::vtxgen_category().name(), "vtxgen");
    for (const vtx::status s : {vtx::status::bad_rule, vtx::status::size_error, vtx::status::null_pointer,
                                vtx::status::flag_error}) {
        try {
            vtx::check(s, "call");
            ADD_FAILURE() << "no exception";
        } catch (const vtx::error& e) {
            EXPECT_EQ(e.value(), s);
            EXPECT_EQ(e.code(), s);
            EXPECT_NE(std::string(e.what()).find("call"), std::string::npos);
        }
    }
    EXPECT_NO_THROW(vtx::check(vtx::status::ok));
}

// ---- Owning objects --------------------------------------------------------------

template <class T>
class CxxPlans : public ::testing::Test {};
using Precisions = ::testing::Types<float, double>;
TYPED_TEST_SUITE(CxxPlans, Precisions);

TYPED_TEST(CxxPlans, Dct4PlansOwnTheirBlockAndGiveTheCBits)
{
    using T = TypeParam;
    using Api = vtx::detail::api<T>;
    const int n = 1024;
    std::vector<T> x(n), want(n), got(n);
    for (int i = 0; i < n; ++i)
        x[i] = static_cast<T>((i * 37 % 101) - 50) / 64;
    typename Api::spec* spec = nullptr;
    ASSERT_EQ(Api::dct4_init_alloc(&spec, n), vtxStatusOk);
    ASSERT_EQ(Api::dct4(x.data(), want.data(), spec), vtxStatusOk);
    ASSERT_EQ(Api::dct4_free(spec), vtxStatusOk);
    ASSERT_EQ(g_live, 0);
    {
        vtx::dct4_plan<T> plan(n);
        EXPECT_EQ(g_live, 1);
        vtx::dct4_plan<T> moved(std::move(plan));
        // A moved-from plan is empty, and its call says so.
        // cppcheck-suppress accessMoved
        EXPECT_FALSE(plan.valid());  // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
        // cppcheck-suppress accessMoved
        EXPECT_EQ(plan(x.data(), got.data()), vtx::status::null_pointer);  // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
        EXPECT_EQ(moved.length(), n);
        EXPECT_EQ(moved(x, got), vtx::status::ok);
        EXPECT_EQ(got, want);
        EXPECT_EQ(moved(x, std::span<T>(got).first(n - 1)), vtx::status::size_error);
        EXPECT_EQ(g_live, 1);
        vtx::dct4_plan<T> other(64);
        other = std::move(moved);  // the 64-point plan goes with `moved`
    }
    EXPECT_EQ(g_live, 0);

    int bytes = 0;
    ASSERT_EQ(vtx::dct4_placed_plan<T>::block_size(n, bytes), vtx::status::ok);
    std::vector<unsigned char> block(static_cast<std::size_t>(bytes) + 1);
    const vtx::dct4_placed_plan<T> placed(n, block.data() + 1);  // any alignment
    EXPECT_EQ(g_live, 0);
    std::fill(got.begin(), got.end(), T(0));
    EXPECT_EQ(placed(x, got), vtx::status::ok);
    EXPECT_EQ(got, want);

    // Refusals: the C statuses, thrown or reported, and nothing left behind.
    std::error_code ec;
    EXPECT_EQ(vtx::dct4_placed_plan<T>::block_size(3, bytes), vtx::status::size_error);
    EXPECT_FALSE(vtx::dct4_plan<T>(3, ec).valid());
    EXPECT_EQ(ec, vtx::status::size_error);
    EXPECT_FALSE(vtx::dct4_placed_plan<T>(n, nullptr, ec).valid());
    EXPECT_EQ(ec, vtx::status::null_pointer);
    try {
        vtx::dct4_plan<T> bad(96);
        ADD_FAILURE() << "no exception";
    } catch (const vtx::error& e) {
        EXPECT_EQ(e.value(), vtx::status::size_error);
    }
    g_fail = true;
    EXPECT_FALSE(vtx::dct4_plan<T>(n, ec).valid());
    EXPECT_EQ(ec, vtx::status::null_pointer);
    g_fail = false;
    EXPECT_EQ(g_live, 0);
}

TYPED_TEST(CxxPlans, WalshHadamardOwnsOneBufferFromOrderEight)
{
    using T = TypeParam;
    for (int order = 1; order <= 13; ++order) {
        vtx::wht<T> w(order);
        EXPECT_EQ(w.length(), 1 << order);
        EXPECT_EQ(g_live, order >= 8 ? 1 : 0) << order;
        vtx::wht<T> moved(std::move(w));
        // cppcheck-suppress accessMoved
        EXPECT_FALSE(w.valid());  // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
        EXPECT_EQ(g_live, order >= 8 ? 1 : 0) << order;
    }
    EXPECT_EQ(g_live, 0);
    std::error_code ec;
    EXPECT_FALSE(vtx::wht<T>(14, ec).valid());
    EXPECT_EQ(ec, vtx::status::size_error);
    EXPECT_THROW(vtx::wht<T>(0), vtx::error);
    g_fail = true;
    EXPECT_FALSE(vtx::wht<T>(8, ec).valid());
    EXPECT_EQ(ec, std::errc::not_enough_memory);
    EXPECT_THROW(vtx::wht<T>(9), std::bad_alloc);
    EXPECT_TRUE(vtx::wht<T>(7, ec).valid());  // no buffer needed
    g_fail = false;
    EXPECT_EQ(g_live, 0);
}

}  // namespace
