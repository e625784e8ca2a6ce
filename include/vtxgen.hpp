/// @file vtxgen.hpp
/// @brief The C++ interface of vtxgen: header-only, C++17 (C++20 where
/// available), over the C functions of vtxgen.h.
///
/// Every call here is the C call of the same transform with the same
/// arguments, its status handed back unchanged as a vtx::status; the results
/// are the C call's bits.  The transform calls are not noexcept (they never
/// throw): a noexcept wrapper around a C call costs a frame where the call
/// would otherwise be a jump.
///
///  - By compile-time size: vtx::dft<N>, vtx::inverse_dft<N>,
///    vtx::real_forward<N, Layout>, vtx::real_inverse<N, Layout>,
///    vtx::hartley<N>, vtx::walsh_hadamard<Order>.  A size outside 2 to 64
///    (an order outside 1 to 13) does not compile.
///  - By run-time size, over pointers or over contiguous ranges
///    (std::vector, std::array, C arrays, std::span): the same names without
///    the template argument.
///  - Batches, count transforms of one size in one call: vtx::dft_batch,
///    vtx::inverse_dft_batch, vtx::real_forward_batch<Layout>,
///    vtx::real_inverse_batch<Layout>, vtx::hartley_batch, over pointers with
///    strides or over contiguous ranges of whole transforms.
///  - vtx::wht: the Walsh-Hadamard transform of one order with a work buffer
///    of its own.
///  - vtx::dct4_plan (owning) and vtx::dct4_placed_plan (built in a block of
///    the caller's).
///  - vtx::status with std::error_code integration, and vtx::check, which
///    throws vtx::error for a status other than vtx::status::ok.
#ifndef VTXGEN_HPP
#define VTXGEN_HPP

#include <array>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <new>
#include <string>
#include <system_error>
#include <type_traits>
#include <utility>
#if defined(__has_include)
#if __has_include(<span>)
#include <span>
#endif
#endif

#include "vtxgen.h"

/// The C++ interface of vtxgen.
namespace vtx {

/// The status of a call: the C library's vtxStatus values as an enum.
enum class status : std::int32_t {
    ok = vtxStatusOk,                    ///< the destination holds the result
    bad_rule = vtxStatusBadRule,         ///< a DCT-IV plan met a rule outside its table
    size_error = vtxStatusSizeError,     ///< a size the library lacks, or ranges of unequal lengths
    null_pointer = vtxStatusNullPointer, ///< a null pointer (or, for allocations, out of memory)
    flag_error = vtxStatusFlagError      ///< a scale flag outside the four below
};

/// The factor of every output; see vtxgen.h for the table per family.
enum class scale : int {
    forward = vtxScaleForward,     ///< the forward transform divided by N
    inverse = vtxScaleInverse,     ///< the inverse transform divided by N
    symmetric = vtxScaleSymmetric, ///< either divided by sqrt(N)
    none = vtxScaleNone            ///< unscaled
};

/// The error category of vtx::status; its name is "vtxgen".
class status_category : public std::error_category {
public:
    /// "vtxgen".
    const char* name() const noexcept override { return "vtxgen"; }
    /// A sentence for each status, with its C name and value.
    std::string message(int value) const override
    {
        switch (value) {
        case vtxStatusOk: return "vtxStatusOk (0): no error";
        case vtxStatusBadRule: return "vtxStatusBadRule (-5): a DCT-IV plan met a rule outside its table";
        case vtxStatusSizeError: return "vtxStatusSizeError (-6): size not available";
        case vtxStatusNullPointer: return "vtxStatusNullPointer (-8): null pointer";
        case vtxStatusFlagError: return "vtxStatusFlagError (-16): scale flag not 1, 2, 4 or 8";
        default: return "unknown vtxgen status " + std::to_string(value);
        }
    }
};

/// The one instance of the category.
inline const std::error_category& vtxgen_category() noexcept
{
    static const status_category instance;
    return instance;
}

/// A status as an error code of vtxgen_category() (found by argument-dependent
/// lookup, so a vtx::status converts to std::error_code implicitly).
inline std::error_code make_error_code(status s) noexcept
{
    return {static_cast<int>(s), vtxgen_category()};
}

/// The exception of vtx::check: a std::system_error whose code() is the status.
class error : public std::system_error {
public:
    /// The status and the call that returned it.
    error(status s, const char* what) : std::system_error(make_error_code(s), what), status_(s) {}
    /// The status as returned.
    status value() const noexcept { return status_; }

private:
    status status_;
};

/// The throwing form: returns if s is status::ok, else throws vtx::error.
/// `vtx::check(vtx::dft<8>(x.data(), y.data()))`.
inline void check(status s, const char* what = "vtxgen")
{
    if (s != status::ok)
        throw error(s, what);
}

}  // namespace vtx

/// Makes vtx::status usable wherever a std::error_code is expected.
namespace std {
template <>
struct is_error_code_enum<vtx::status> : true_type {};
}  // namespace std

namespace vtx {

/// @cond internal
namespace detail {

template <class T>
struct is_precision : std::bool_constant<std::is_same_v<T, float> || std::is_same_v<T, double>> {};

constexpr bool in_sizes(int n) { return n >= 2 && n <= 64; }
constexpr bool in_orders(int order) { return order >= 1 && order <= 13; }

// The C element type of a complex precision: vtx32fc and vtx64fc have the
// layout of std::complex<float> and std::complex<double> (two parts in turn).
template <class T> struct c_complex;
template <> struct c_complex<float> { using type = vtx32fc; };
template <> struct c_complex<double> { using type = vtx64fc; };
template <class T>
using c_complex_t = typename c_complex<T>::type;

template <class T>
const c_complex_t<T>* c_ptr(const std::complex<T>* p) noexcept
{
    return reinterpret_cast<const c_complex_t<T>*>(p);
}
template <class T>
c_complex_t<T>* c_ptr(std::complex<T>* p) noexcept
{
    return reinterpret_cast<c_complex_t<T>*>(p);
}

template <class E>
using kernel = vtxStatus (*)(const E*, E*, int);
template <class E>
using general = vtxStatus (*)(const E*, E*, int, int);
template <class E>
using wht_kernel = vtxStatus (*)(const E*, E*, int, void*);
template <class E>
using batch = vtxStatus (*)(const E*, E*, int, int, int, int, int);

// The kernels of one family and precision, indexed by size (2 to 64).
#define VTXCXX_KERNELS(f, p)                                                                      \
    {nullptr, nullptr, f##2##p, f##3##p, f##4##p, f##5##p, f##6##p, f##7##p, f##8##p, f##9##p,    \
     f##10##p, f##11##p, f##12##p, f##13##p, f##14##p, f##15##p, f##16##p, f##17##p, f##18##p,    \
     f##19##p, f##20##p, f##21##p, f##22##p, f##23##p, f##24##p, f##25##p, f##26##p, f##27##p,    \
     f##28##p, f##29##p, f##30##p, f##31##p, f##32##p, f##33##p, f##34##p, f##35##p, f##36##p,    \
     f##37##p, f##38##p, f##39##p, f##40##p, f##41##p, f##42##p, f##43##p, f##44##p, f##45##p,    \
     f##46##p, f##47##p, f##48##p, f##49##p, f##50##p, f##51##p, f##52##p, f##53##p, f##54##p,    \
     f##55##p, f##56##p, f##57##p, f##58##p, f##59##p, f##60##p, f##61##p, f##62##p, f##63##p,    \
     f##64##p}
#define VTXCXX_ORDERS(p)                                                                          \
    {nullptr, vtxgWHT_1##p, vtxgWHT_2##p, vtxgWHT_3##p, vtxgWHT_4##p, vtxgWHT_5##p, vtxgWHT_6##p, \
     vtxgWHT_7##p, vtxgWHT_8##p, vtxgWHT_9##p, vtxgWHT_10##p, vtxgWHT_11##p, vtxgWHT_12##p,       \
     vtxgWHT_13##p}

// The C functions of one precision: T its real type, CT its complex type,
// cs and rs the name suffixes of its complex and real entries.
template <class T> struct api;
#define VTXCXX_API(T, CT, cs, rs)                                                                          \
    template <> struct api<T> {                                                                             \
        using C = CT;                                                                                       \
        static constexpr kernel<C> dft_forward[65] = VTXCXX_KERNELS(vtxgDFTFwd_CToC_, cs);                  \
        static constexpr kernel<C> dft_inverse[65] = VTXCXX_KERNELS(vtxgDFTInv_CToC_, cs);                  \
        static constexpr kernel<T> ccs_forward[65] = VTXCXX_KERNELS(vtxgDFTFwd_RToCCS_, rs);                \
        static constexpr kernel<T> pack_forward[65] = VTXCXX_KERNELS(vtxgDFTFwd_RToPack_, rs);              \
        static constexpr kernel<T> perm_forward[65] = VTXCXX_KERNELS(vtxgDFTFwd_RToPerm_, rs);              \
        static constexpr kernel<T> ccs_inverse[65] = VTXCXX_KERNELS(vtxgDFTInv_CCSToR_, rs);                \
        static constexpr kernel<T> pack_inverse[65] = VTXCXX_KERNELS(vtxgDFTInv_PackToR_, rs);              \
        static constexpr kernel<T> perm_inverse[65] = VTXCXX_KERNELS(vtxgDFTInv_PermToR_, rs);              \
        static constexpr kernel<T> hartley[65] = VTXCXX_KERNELS(vtxgHartley_, rs);                          \
        static constexpr wht_kernel<T> wht[14] = VTXCXX_ORDERS(rs);                                         \
        static constexpr general<C> any_dft_forward = vtxgDFTFwd_CToC##cs;                                  \
        static constexpr general<C> any_dft_inverse = vtxgDFTInv_CToC##cs;                                  \
        static constexpr general<T> any_ccs_forward = vtxgDFTFwd_RToCCS##rs;                                \
        static constexpr general<T> any_pack_forward = vtxgDFTFwd_RToPack##rs;                              \
        static constexpr general<T> any_perm_forward = vtxgDFTFwd_RToPerm##rs;                              \
        static constexpr general<T> any_ccs_inverse = vtxgDFTInv_CCSToR##rs;                                \
        static constexpr general<T> any_pack_inverse = vtxgDFTInv_PackToR##rs;                              \
        static constexpr general<T> any_perm_inverse = vtxgDFTInv_PermToR##rs;                              \
        static constexpr general<T> any_hartley = vtxgHartley##rs;                                          \
        static constexpr batch<C> batch_dft_forward = vtxgDFTFwd_CToC_Batch##cs;                            \
        static constexpr batch<C> batch_dft_inverse = vtxgDFTInv_CToC_Batch##cs;                            \
        static constexpr batch<T> batch_ccs_forward = vtxgDFTFwd_RToCCS_Batch##rs;                          \
        static constexpr batch<T> batch_pack_forward = vtxgDFTFwd_RToPack_Batch##rs;                        \
        static constexpr batch<T> batch_perm_forward = vtxgDFTFwd_RToPerm_Batch##rs;                        \
        static constexpr batch<T> batch_ccs_inverse = vtxgDFTInv_CCSToR_Batch##rs;                          \
        static constexpr batch<T> batch_pack_inverse = vtxgDFTInv_PackToR_Batch##rs;                        \
        static constexpr batch<T> batch_perm_inverse = vtxgDFTInv_PermToR_Batch##rs;                        \
        static constexpr batch<T> batch_hartley = vtxgHartley_Batch##rs;                                    \
        static vtxStatus any_wht(const T* s, T* d, int order, int flag, void* b)                            \
        {                                                                                                   \
            return vtxgWHT##rs(s, d, order, flag, b);                                                       \
        }                                                                                                   \
        static vtxStatus wht_buffer_size(int order, int* bytes) { return vtxgWHTGetBufferSize##rs(order, bytes); } \
        using spec = vtxDCT4Spec##rs;                                                                       \
        static vtxStatus dct4_size(int n, int* bytes) { return vtxgDCT4GetSize##rs(n, bytes); }             \
        static vtxStatus dct4_init(spec** s, int n, void* block) { return vtxgDCT4Init##rs(s, n, block); }  \
        static vtxStatus dct4_init_alloc(spec** s, int n) { return vtxgDCT4InitAlloc##rs(s, n); }           \
        static vtxStatus dct4_free(spec* s) { return vtxgDCT4Free##rs(s); }                                 \
        static vtxStatus dct4(const T* x, T* y, const spec* s) { return vtxgDCT4##rs(x, y, s); }            \
    };
VTXCXX_API(float, vtx32fc, _32fc, _32f)
VTXCXX_API(double, vtx64fc, _64fc, _64f)
#undef VTXCXX_API
#undef VTXCXX_KERNELS
#undef VTXCXX_ORDERS

inline status to_status(vtxStatus s) noexcept { return static_cast<status>(s); }
inline int flag(scale s) noexcept { return static_cast<int>(s); }

// A contiguous range with elements E: std::data and std::size apply.
template <class R>
using element_of = std::remove_pointer_t<decltype(std::data(std::declval<R&>()))>;
template <class R, class = void>
struct range_traits {
    static constexpr bool is_range = false;
};
template <class R>
struct range_traits<R, std::void_t<decltype(std::data(std::declval<R&>())), decltype(std::size(std::declval<R&>()))>> {
    static constexpr bool is_range = true;
    using value = std::remove_cv_t<element_of<R>>;
    static constexpr bool is_const = std::is_const_v<element_of<R>>;
};
template <class R, class E>
constexpr bool is_source_of() { if constexpr (range_traits<R>::is_range) return std::is_same_v<typename range_traits<R>::value, E>; else return false; }
template <class R, class E>
constexpr bool is_destination_of() { if constexpr (range_traits<R>::is_range) return std::is_same_v<typename range_traits<R>::value, E> && !range_traits<R>::is_const; else return false; }

// The length of a range type known at compile time (C arrays, std::array,
// std::span of a static extent), or `dynamic`.
inline constexpr std::size_t dynamic = static_cast<std::size_t>(-1);
template <class R>
struct static_extent : std::integral_constant<std::size_t, dynamic> {};
template <class E, std::size_t N>
struct static_extent<E[N]> : std::integral_constant<std::size_t, N> {};
template <class E, std::size_t N>
struct static_extent<std::array<E, N>> : std::integral_constant<std::size_t, N> {};
#if defined(__cpp_lib_span)
template <class E, std::size_t N>
struct static_extent<std::span<E, N>> : std::integral_constant<std::size_t, N == std::dynamic_extent ? dynamic : N> {};
#endif
template <class R>
inline constexpr std::size_t extent_of = static_extent<std::remove_cv_t<std::remove_reference_t<R>>>::value;
template <class In, class Out>
inline constexpr bool both_static = extent_of<In> != dynamic && extent_of<Out> != dynamic;

// A range's length as the int the C functions take; a length beyond int is
// one no kernel has (-1 gives vtxStatusSizeError).
template <class R>
int length_of(const R& r) noexcept
{
    const auto n = std::size(r);
    return n <= static_cast<decltype(n)>(1 << 30) ? static_cast<int>(n) : -1;
}

}  // namespace detail
/// @endcond

// ---- Packed layouts ------------------------------------------------------

/// The CCS layout of a real spectrum: 2 (n/2) + 2 elements, Re0, 0, Re1, Im1, ...
struct ccs {
    /// Elements of the layout for a real sequence of n.
    static constexpr int length(int n) noexcept { return 2 * (n / 2) + 2; }
};
/// The Pack layout: n elements, Re0, Re1, Im1, Re2, Im2, ... (Re(n/2) last for even n).
struct pack {
    /// Elements of the layout for a real sequence of n.
    static constexpr int length(int n) noexcept { return n; }
};
/// The Perm layout: n elements, Re0, Re(n/2), Re1, Im1, ... for even n; Pack for odd n.
struct perm {
    /// Elements of the layout for a real sequence of n.
    static constexpr int length(int n) noexcept { return n; }
};

/// @cond internal
namespace detail {
template <class Layout, class T> struct layout_kernels;
template <class T> struct layout_kernels<ccs, T> {
    static constexpr const kernel<T>* forward = api<T>::ccs_forward;
    static constexpr const kernel<T>* inverse = api<T>::ccs_inverse;
    static constexpr general<T> any_forward = api<T>::any_ccs_forward;
    static constexpr general<T> any_inverse = api<T>::any_ccs_inverse;
    static constexpr batch<T> batch_forward = api<T>::batch_ccs_forward;
    static constexpr batch<T> batch_inverse = api<T>::batch_ccs_inverse;
};
template <class T> struct layout_kernels<pack, T> {
    static constexpr const kernel<T>* forward = api<T>::pack_forward;
    static constexpr const kernel<T>* inverse = api<T>::pack_inverse;
    static constexpr general<T> any_forward = api<T>::any_pack_forward;
    static constexpr general<T> any_inverse = api<T>::any_pack_inverse;
    static constexpr batch<T> batch_forward = api<T>::batch_pack_forward;
    static constexpr batch<T> batch_inverse = api<T>::batch_pack_inverse;
};
template <class T> struct layout_kernels<perm, T> {
    static constexpr const kernel<T>* forward = api<T>::perm_forward;
    static constexpr const kernel<T>* inverse = api<T>::perm_inverse;
    static constexpr general<T> any_forward = api<T>::any_perm_forward;
    static constexpr general<T> any_inverse = api<T>::any_perm_inverse;
    static constexpr batch<T> batch_forward = api<T>::batch_perm_forward;
    static constexpr batch<T> batch_inverse = api<T>::batch_perm_inverse;
};
template <class L>
inline constexpr bool is_layout = std::is_same_v<L, ccs> || std::is_same_v<L, pack> || std::is_same_v<L, perm>;
}  // namespace detail
/// @endcond

// ---- Compile-time sizes ----------------------------------------------------

/// The forward complex DFT of N points (2 to 64): the kernel vtxgDFTFwd_CToC_N_32fc or _64fc.
template <int N, class T>
[[nodiscard]] status dft(const std::complex<T>* src, std::complex<T>* dst, scale s = scale::none)
{
    static_assert(detail::in_sizes(N), "vtx: transform sizes are 2 to 64");
    constexpr auto k = detail::api<T>::dft_forward[N];
    return detail::to_status(k(detail::c_ptr(src), detail::c_ptr(dst), detail::flag(s)));
}

/// The inverse complex DFT of N points (2 to 64): vtxgDFTInv_CToC_N_32fc or _64fc.
template <int N, class T>
[[nodiscard]] status inverse_dft(const std::complex<T>* src, std::complex<T>* dst, scale s = scale::none)
{
    static_assert(detail::in_sizes(N), "vtx: transform sizes are 2 to 64");
    constexpr auto k = detail::api<T>::dft_inverse[N];
    return detail::to_status(k(detail::c_ptr(src), detail::c_ptr(dst), detail::flag(s)));
}

/// The forward real DFT of N points (2 to 64) into Layout (vtx::ccs, vtx::pack
/// or vtx::perm): dst receives Layout::length(N) elements.
template <int N, class Layout, class T>
[[nodiscard]] status real_forward(const T* src, T* dst, scale s = scale::none)
{
    static_assert(detail::in_sizes(N), "vtx: transform sizes are 2 to 64");
    static_assert(detail::is_layout<Layout>, "vtx: the layouts are vtx::ccs, vtx::pack and vtx::perm");
    constexpr auto k = detail::layout_kernels<Layout, T>::forward[N];
    return detail::to_status(k(src, dst, detail::flag(s)));
}

/// The inverse real DFT of N points (2 to 64) from Layout: N real elements out.
template <int N, class Layout, class T>
[[nodiscard]] status real_inverse(const T* src, T* dst, scale s = scale::none)
{
    static_assert(detail::in_sizes(N), "vtx: transform sizes are 2 to 64");
    static_assert(detail::is_layout<Layout>, "vtx: the layouts are vtx::ccs, vtx::pack and vtx::perm");
    constexpr auto k = detail::layout_kernels<Layout, T>::inverse[N];
    return detail::to_status(k(src, dst, detail::flag(s)));
}

/// The discrete Hartley transform of N points (2 to 64), its own inverse.
template <int N, class T>
[[nodiscard]] status hartley(const T* src, T* dst, scale s = scale::none)
{
    static_assert(detail::in_sizes(N), "vtx: transform sizes are 2 to 64");
    constexpr auto k = detail::api<T>::hartley[N];
    return detail::to_status(k(src, dst, detail::flag(s)));
}

/// The Walsh-Hadamard transform of 2^Order points (Order 1 to 13) with the
/// caller's work buffer (null: one allocation per call from order 8 up);
/// vtx::wht owns one instead.
template <int Order, class T>
[[nodiscard]] status walsh_hadamard(const T* src, T* dst, scale s = scale::none, void* buffer = nullptr)
{
    static_assert(detail::in_orders(Order), "vtx: Walsh-Hadamard orders are 1 to 13");
    constexpr auto k = detail::api<T>::wht[Order];
    return detail::to_status(k(src, dst, detail::flag(s), buffer));
}

// ---- Run-time sizes over pointers -----------------------------------------

/// The forward complex DFT of n points; n outside 2 to 64 gives status::size_error.
template <class T>
[[nodiscard]] status dft(const std::complex<T>* src, std::complex<T>* dst, int n, scale s = scale::none)
{
    return detail::to_status(detail::api<T>::any_dft_forward(detail::c_ptr(src), detail::c_ptr(dst), n, detail::flag(s)));
}

/// The inverse complex DFT of n points.
template <class T>
[[nodiscard]] status inverse_dft(const std::complex<T>* src, std::complex<T>* dst, int n, scale s = scale::none)
{
    return detail::to_status(detail::api<T>::any_dft_inverse(detail::c_ptr(src), detail::c_ptr(dst), n, detail::flag(s)));
}

/// The forward real DFT of n points into Layout (Layout::length(n) elements).
template <class Layout, class T>
[[nodiscard]] status real_forward(const T* src, T* dst, int n, scale s = scale::none)
{
    static_assert(detail::is_layout<Layout>, "vtx: the layouts are vtx::ccs, vtx::pack and vtx::perm");
    return detail::to_status(detail::layout_kernels<Layout, T>::any_forward(src, dst, n, detail::flag(s)));
}

/// The inverse real DFT of n points from Layout.
template <class Layout, class T>
[[nodiscard]] status real_inverse(const T* src, T* dst, int n, scale s = scale::none)
{
    static_assert(detail::is_layout<Layout>, "vtx: the layouts are vtx::ccs, vtx::pack and vtx::perm");
    return detail::to_status(detail::layout_kernels<Layout, T>::any_inverse(src, dst, n, detail::flag(s)));
}

/// The Hartley transform of n points.
template <class T>
[[nodiscard]] status hartley(const T* src, T* dst, int n, scale s = scale::none)
{
    return detail::to_status(detail::api<T>::any_hartley(src, dst, n, detail::flag(s)));
}

/// The Walsh-Hadamard transform of 2^order points with the caller's buffer.
template <class T>
[[nodiscard]] status walsh_hadamard(const T* src, T* dst, int order, scale s = scale::none, void* buffer = nullptr)
{
    return detail::to_status(detail::api<T>::any_wht(src, dst, order, detail::flag(s), buffer));
}

// ---- Sizes from contiguous ranges ------------------------------------------
//
// The size is the source's length; a destination of another length than the
// transform writes gives status::size_error without a call.  Where both
// lengths are part of the types (C arrays, std::array, std::span of a static
// extent), the kernel of that size is called directly and lengths that do not
// fit do not compile.

/// @cond internal
namespace detail {
template <class In, class Out, class E>
using if_ranges = std::enable_if_t<is_source_of<In, E>() && is_destination_of<Out, E>(), int>;
template <class In, class Out>
using complex_of = typename range_traits<Out>::value::value_type;
}  // namespace detail
/// @endcond

/// The forward complex DFT of a range of std::complex (float or double)
/// into a range of the same length.
template <class In, class Out, class T = detail::complex_of<In, Out>,
          detail::if_ranges<In, Out, std::complex<T>> = 0>
[[nodiscard]] status dft(const In& src, Out&& dst, scale s = scale::none)
{
    if constexpr (detail::both_static<In, Out>) {
        static_assert(detail::extent_of<In> == detail::extent_of<Out>, "vtx: source and destination lengths differ");
        return dft<static_cast<int>(detail::extent_of<In>)>(std::data(src), std::data(dst), s);
    }
    const int n = detail::length_of(src);
    if (detail::length_of(dst) != n)
        return status::size_error;
    return dft(std::data(src), std::data(dst), n, s);
}

/// The inverse complex DFT of a range into a range of the same length.
template <class In, class Out, class T = detail::complex_of<In, Out>,
          detail::if_ranges<In, Out, std::complex<T>> = 0>
[[nodiscard]] status inverse_dft(const In& src, Out&& dst, scale s = scale::none)
{
    if constexpr (detail::both_static<In, Out>) {
        static_assert(detail::extent_of<In> == detail::extent_of<Out>, "vtx: source and destination lengths differ");
        return inverse_dft<static_cast<int>(detail::extent_of<In>)>(std::data(src), std::data(dst), s);
    }
    const int n = detail::length_of(src);
    if (detail::length_of(dst) != n)
        return status::size_error;
    return inverse_dft(std::data(src), std::data(dst), n, s);
}

/// The forward real DFT of a range of n reals into Layout::length(n) elements.
template <class Layout, class In, class Out, class T = typename detail::range_traits<Out>::value,
          detail::if_ranges<In, Out, T> = 0>
[[nodiscard]] status real_forward(const In& src, Out&& dst, scale s = scale::none)
{
    if constexpr (detail::both_static<In, Out>) {
        constexpr int n = static_cast<int>(detail::extent_of<In>);
        static_assert(detail::extent_of<Out> == static_cast<std::size_t>(Layout::length(n)),
                      "vtx: the destination is not the layout's length");
        return real_forward<n, Layout>(std::data(src), std::data(dst), s);
    }
    const int n = detail::length_of(src);
    if (detail::length_of(dst) != Layout::length(n))
        return status::size_error;
    return real_forward<Layout>(std::data(src), std::data(dst), n, s);
}

/// The inverse real DFT of Layout::length(n) elements into a range of n reals
/// (here n is the destination's length).
template <class Layout, class In, class Out, class T = typename detail::range_traits<Out>::value,
          detail::if_ranges<In, Out, T> = 0>
[[nodiscard]] status real_inverse(const In& src, Out&& dst, scale s = scale::none)
{
    if constexpr (detail::both_static<In, Out>) {
        constexpr int n = static_cast<int>(detail::extent_of<Out>);
        static_assert(detail::extent_of<In> == static_cast<std::size_t>(Layout::length(n)),
                      "vtx: the source is not the layout's length");
        return real_inverse<n, Layout>(std::data(src), std::data(dst), s);
    }
    const int n = detail::length_of(dst);
    if (detail::length_of(src) != Layout::length(n))
        return status::size_error;
    return real_inverse<Layout>(std::data(src), std::data(dst), n, s);
}

/// The Hartley transform of a range into a range of the same length.
template <class In, class Out, class T = typename detail::range_traits<Out>::value,
          detail::if_ranges<In, Out, T> = 0>
[[nodiscard]] status hartley(const In& src, Out&& dst, scale s = scale::none)
{
    if constexpr (detail::both_static<In, Out>) {
        static_assert(detail::extent_of<In> == detail::extent_of<Out>, "vtx: source and destination lengths differ");
        return hartley<static_cast<int>(detail::extent_of<In>)>(std::data(src), std::data(dst), s);
    }
    const int n = detail::length_of(src);
    if (detail::length_of(dst) != n)
        return status::size_error;
    return hartley(std::data(src), std::data(dst), n, s);
}

// ---- Batches ------------------------------------------------------------------
//
// count transforms of n points in one call, each with exactly the bits of
// the single call: transform t reads src + t * src_stride and writes
// dst + t * dst_stride, strides in elements (std::complex elements for the
// complex DFT), at least the lengths of one input and one output.  src may
// be dst with equal strides; other overlaps are the caller's fault.  Over
// ranges the transforms lie one after another: the source holds whole
// transforms, and the destination as many outputs.

/// count forward complex DFTs of n points.
template <class T>
[[nodiscard]] status dft_batch(const std::complex<T>* src, std::complex<T>* dst, int n, int count, int src_stride,
                               int dst_stride, scale s = scale::none)
{
    return detail::to_status(detail::api<T>::batch_dft_forward(detail::c_ptr(src), detail::c_ptr(dst), n, count,
                                                               src_stride, dst_stride, detail::flag(s)));
}

/// count inverse complex DFTs of n points.
template <class T>
[[nodiscard]] status inverse_dft_batch(const std::complex<T>* src, std::complex<T>* dst, int n, int count,
                                       int src_stride, int dst_stride, scale s = scale::none)
{
    return detail::to_status(detail::api<T>::batch_dft_inverse(detail::c_ptr(src), detail::c_ptr(dst), n, count,
                                                               src_stride, dst_stride, detail::flag(s)));
}

/// count forward real DFTs of n points into Layout.
template <class Layout, class T>
[[nodiscard]] status real_forward_batch(const T* src, T* dst, int n, int count, int src_stride, int dst_stride,
                                        scale s = scale::none)
{
    static_assert(detail::is_layout<Layout>, "vtx: the layouts are vtx::ccs, vtx::pack and vtx::perm");
    return detail::to_status(
        detail::layout_kernels<Layout, T>::batch_forward(src, dst, n, count, src_stride, dst_stride, detail::flag(s)));
}

/// count inverse real DFTs of n points from Layout.
template <class Layout, class T>
[[nodiscard]] status real_inverse_batch(const T* src, T* dst, int n, int count, int src_stride, int dst_stride,
                                        scale s = scale::none)
{
    static_assert(detail::is_layout<Layout>, "vtx: the layouts are vtx::ccs, vtx::pack and vtx::perm");
    return detail::to_status(
        detail::layout_kernels<Layout, T>::batch_inverse(src, dst, n, count, src_stride, dst_stride, detail::flag(s)));
}

/// count Hartley transforms of n points.
template <class T>
[[nodiscard]] status hartley_batch(const T* src, T* dst, int n, int count, int src_stride, int dst_stride,
                                   scale s = scale::none)
{
    return detail::to_status(
        detail::api<T>::batch_hartley(src, dst, n, count, src_stride, dst_stride, detail::flag(s)));
}

/// @cond internal
namespace detail {
// The transforms of ranges holding them one after another: the count of
// whole inputs in the source, when the destination holds as many outputs
// exactly; -1 otherwise (a size error at the call).
template <class In, class Out>
int batch_count(const In& src, const Out& dst, int in, int out) noexcept
{
    const int read = length_of(src), written = length_of(dst);
    if (in <= 0 || out <= 0 || read < 0 || read % in != 0 || static_cast<long long>(read / in) * out != written)
        return -1;
    return read / in;
}
}  // namespace detail
/// @endcond

/// Forward complex DFTs of n points over a range of whole transforms, into a
/// range of the same length.
template <class In, class Out, class T = detail::complex_of<In, Out>, detail::if_ranges<In, Out, std::complex<T>> = 0>
[[nodiscard]] status dft_batch(const In& src, Out&& dst, int n, scale s = scale::none)
{
    const int count = detail::batch_count(src, dst, n, n);
    if (count < 0)
        return status::size_error;
    return dft_batch(std::data(src), std::data(dst), n, count, n, n, s);
}

/// Inverse complex DFTs of n points over a range of whole transforms.
template <class In, class Out, class T = detail::complex_of<In, Out>, detail::if_ranges<In, Out, std::complex<T>> = 0>
[[nodiscard]] status inverse_dft_batch(const In& src, Out&& dst, int n, scale s = scale::none)
{
    const int count = detail::batch_count(src, dst, n, n);
    if (count < 0)
        return status::size_error;
    return inverse_dft_batch(std::data(src), std::data(dst), n, count, n, n, s);
}

/// Forward real DFTs of n points over a range of count * n reals into
/// count * Layout::length(n) elements.
template <class Layout, class In, class Out, class T = typename detail::range_traits<Out>::value,
          detail::if_ranges<In, Out, T> = 0>
[[nodiscard]] status real_forward_batch(const In& src, Out&& dst, int n, scale s = scale::none)
{
    const int count = detail::batch_count(src, dst, n, Layout::length(n));
    if (count < 0)
        return status::size_error;
    return real_forward_batch<Layout>(std::data(src), std::data(dst), n, count, n, Layout::length(n), s);
}

/// Inverse real DFTs of n points over a range of count * Layout::length(n)
/// elements into count * n reals.
template <class Layout, class In, class Out, class T = typename detail::range_traits<Out>::value,
          detail::if_ranges<In, Out, T> = 0>
[[nodiscard]] status real_inverse_batch(const In& src, Out&& dst, int n, scale s = scale::none)
{
    const int count = detail::batch_count(src, dst, Layout::length(n), n);
    if (count < 0)
        return status::size_error;
    return real_inverse_batch<Layout>(std::data(src), std::data(dst), n, count, Layout::length(n), n, s);
}

/// Hartley transforms of n points over a range of whole transforms.
template <class In, class Out, class T = typename detail::range_traits<Out>::value, detail::if_ranges<In, Out, T> = 0>
[[nodiscard]] status hartley_batch(const In& src, Out&& dst, int n, scale s = scale::none)
{
    const int count = detail::batch_count(src, dst, n, n);
    if (count < 0)
        return status::size_error;
    return hartley_batch(std::data(src), std::data(dst), n, count, n, n, s);
}

// ---- Walsh-Hadamard with a buffer of its own --------------------------------

/// The Walsh-Hadamard transform of one order (1 to 13) in precision T, with
/// the work buffer that order needs (none below order 8), taken once with
/// aligned operator new (std::nothrow) when the object is made and given
/// back when it is destroyed.  Calls through one
/// object share its buffer: one call at a time per object.  Move-only.
template <class T>
class wht {
    static_assert(detail::is_precision<T>::value, "vtx::wht is of float or double");

public:
    /// The transform of `order`; throws vtx::error for an order outside
    /// 1 to 13 and std::bad_alloc when the buffer cannot be had.
    explicit wht(int order)
    {
        std::error_code ec;
        *this = wht(order, ec);
        if (ec == std::errc::not_enough_memory)
            throw std::bad_alloc();
        if (ec)
            throw error(static_cast<status>(ec.value()), "vtx::wht");
    }
    /// The transform of `order`, reporting in ec instead of throwing:
    /// status::size_error for a bad order, std::errc::not_enough_memory.
    /// On failure the object is empty (valid() false; calls give
    /// status::size_error).
    wht(int order, std::error_code& ec) noexcept
    {
        ec.clear();
        int bytes = 0;
        if (const status st = detail::to_status(detail::api<T>::wht_buffer_size(order, &bytes)); st != status::ok) {
            ec = st;
            return;
        }
        if (bytes > 0 && (buffer_ = ::operator new(static_cast<std::size_t>(bytes), alignment, std::nothrow)) == nullptr) {
            ec = std::make_error_code(std::errc::not_enough_memory);
            return;
        }
        order_ = order;
    }
    /// Takes the other's buffer, leaving it empty.
    wht(wht&& other) noexcept : order_(std::exchange(other.order_, 0)), buffer_(std::exchange(other.buffer_, nullptr)) {}
    /// Exchanges the two objects' transforms.
    wht& operator=(wht&& other) noexcept
    {
        std::swap(order_, other.order_);
        std::swap(buffer_, other.buffer_);
        return *this;
    }
    wht(const wht&) = delete;
    wht& operator=(const wht&) = delete;
    ~wht()
    {
        if (buffer_ != nullptr)
            ::operator delete(buffer_, alignment);
    }

    /// Whether the object holds a transform.
    bool valid() const noexcept { return order_ != 0; }
    /// The order (0 when empty).
    int order() const noexcept { return order_; }
    /// The number of points, 2^order (0 when empty).
    int length() const noexcept { return order_ != 0 ? 1 << order_ : 0; }
    /// The owned buffer (null below order 8).
    void* buffer() const noexcept { return buffer_; }

    /// Transforms length() elements from src into dst (src may be dst).
    [[nodiscard]] status operator()(const T* src, T* dst, scale s = scale::none) const
    {
        if (order_ == 0)
            return status::size_error;
        return walsh_hadamard(src, dst, order_, s, buffer_);
    }
    /// Over ranges, each of length() elements.
    template <class In, class Out, detail::if_ranges<In, Out, T> = 0>
    [[nodiscard]] status operator()(const In& src, Out&& dst, scale s = scale::none) const
    {
        if (detail::length_of(src) != length() || detail::length_of(dst) != length())
            return status::size_error;
        return (*this)(std::data(src), std::data(dst), s);
    }

private:
    static constexpr std::align_val_t alignment{64};  // the kernels need 16
    wht() = default;
    int order_ = 0;
    void* buffer_ = nullptr;
};

// ---- DCT-IV plans ------------------------------------------------------------

/// @cond internal
namespace detail {
// What the two plans share: the C plan, execution and the ranges form.
template <class T>
class dct4_base {
    static_assert(is_precision<T>::value, "vtx DCT-IV plans are of float or double");

public:
    /// The C plan (null when empty).
    const typename api<T>::spec* spec() const noexcept { return spec_; }
    /// Whether the object holds a plan.
    bool valid() const noexcept { return spec_ != nullptr; }
    /// The transform length (0 when empty).
    int length() const noexcept { return length_; }
    /// Executes the plan over length() elements (src may be dst): the C
    /// call's status; status::null_pointer when empty.
    [[nodiscard]] status operator()(const T* src, T* dst) const
    {
        return to_status(api<T>::dct4(src, dst, spec_));
    }
    /// Over ranges, each of length() elements.
    template <class In, class Out, if_ranges<In, Out, T> = 0>
    [[nodiscard]] status operator()(const In& src, Out&& dst) const
    {
        if (length_of(src) != length_ || length_of(dst) != length_)
            return status::size_error;
        return (*this)(std::data(src), std::data(dst));
    }

protected:
    typename api<T>::spec* spec_ = nullptr;
    int length_ = 0;
};
}  // namespace detail
/// @endcond

/// A DCT-IV plan of length N (a power of two) that owns its block: built by
/// vtxgDCT4InitAlloc, given back by vtxgDCT4Free when destroyed.  Move-only.
/// One execution at a time per plan.
template <class T>
class dct4_plan : public detail::dct4_base<T> {
    using api = detail::api<T>;

public:
    /// An empty plan.
    dct4_plan() noexcept = default;
    /// The plan of length n; throws vtx::error with the C status.
    explicit dct4_plan(int n)
    {
        check(make(n), "vtx::dct4_plan");
    }
    /// The plan of length n, the C status in ec (empty on failure).
    dct4_plan(int n, std::error_code& ec) noexcept { ec = make(n); }
    /// Takes the other's plan, leaving it empty.
    dct4_plan(dct4_plan&& other) noexcept { swap(other); }
    /// Exchanges the two objects' plans.
    dct4_plan& operator=(dct4_plan&& other) noexcept
    {
        swap(other);
        return *this;
    }
    dct4_plan(const dct4_plan&) = delete;
    dct4_plan& operator=(const dct4_plan&) = delete;
    ~dct4_plan()
    {
        if (this->spec_ != nullptr)
            (void)api::dct4_free(this->spec_);
    }
    /// Gives the plan back now, with vtxgDCT4Free's status (ok when empty).
    status reset() noexcept
    {
        status st = status::ok;
        if (this->spec_ != nullptr)
            st = detail::to_status(api::dct4_free(this->spec_));
        this->spec_ = nullptr;
        this->length_ = 0;
        return st;
    }

private:
    status make(int n) noexcept
    {
        typename api::spec* spec = nullptr;
        const status st = detail::to_status(api::dct4_init_alloc(&spec, n));
        if (st == status::ok) {
            this->spec_ = spec;
            this->length_ = n;
        }
        return st;
    }
    void swap(dct4_plan& other) noexcept
    {
        std::swap(this->spec_, other.spec_);
        std::swap(this->length_, other.length_);
    }
};

/// A DCT-IV plan built by vtxgDCT4Init in a block of the caller's, of at
/// least block_size(n) bytes, any alignment.  It owns nothing: the block
/// must outlive it, and dropping the block drops the plan.  Copyable (the
/// copies share the block and the one-execution-at-a-time rule).
template <class T>
class dct4_placed_plan : public detail::dct4_base<T> {
    using api = detail::api<T>;

public:
    /// Bytes of block the plan of length n needs; status::size_error (and
    /// bytes untouched) for a length the DCT-IV lacks.
    [[nodiscard]] static status block_size(int n, int& bytes) noexcept
    {
        return detail::to_status(api::dct4_size(n, &bytes));
    }
    /// An empty plan.
    dct4_placed_plan() noexcept = default;
    /// The plan of length n in block; throws vtx::error with the C status.
    dct4_placed_plan(int n, void* block)
    {
        check(make(n, block), "vtx::dct4_placed_plan");
    }
    /// The plan of length n in block, the C status in ec (empty on failure).
    dct4_placed_plan(int n, void* block, std::error_code& ec) noexcept { ec = make(n, block); }

private:
    status make(int n, void* block) noexcept
    {
        typename api::spec* spec = nullptr;
        const status st = detail::to_status(api::dct4_init(&spec, n, block));
        if (st == status::ok) {
            this->spec_ = spec;
            this->length_ = n;
        }
        return st;
    }
};

}  // namespace vtx

#endif  // VTXGEN_HPP
