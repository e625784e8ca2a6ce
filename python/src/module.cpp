// _vtxgen: the library's kernels over NumPy arrays, for the Python package.
//
// Every function takes a C-contiguous source and destination of the kernel's
// element type (the package prepares them; nothing here converts) and
// transforms every row of the last axis: the Fourier and Hartley families in
// one batch call (the bits of the single kernel per row), the Walsh-Hadamard
// transform and the DCT-IV once per row.  A status other than
// vtxStatusOk raises vtxgen.VtxError naming the status and the entry.
// Source and destination may be the same array where the kernel allows it.

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include <vtxcore.h>
#include <vtxgen.h>

#include <algorithm>
#include <climits>
#include <complex>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

namespace py = pybind11;

namespace {

// ---- Statuses -------------------------------------------------------------

const char *statusName(vtxStatus status)
{
    switch (status) {
    case vtxStatusOk: return "vtxStatusOk";
    case vtxStatusBadRule: return "vtxStatusBadRule";
    case vtxStatusSizeError: return "vtxStatusSizeError";
    case vtxStatusNullPointer: return "vtxStatusNullPointer";
    case vtxStatusFlagError: return "vtxStatusFlagError";
    default: return "an unknown status";
    }
}

struct StatusError {
    vtxStatus status;
    std::string entry;
    std::string detail;
};

void check(vtxStatus status, const char *entry, const std::string &detail)
{
    if (status != vtxStatusOk)
        throw StatusError{status, entry, detail};
}

py::handle errorClass;  // vtxgen.VtxError, made at import and kept for the process

// ---- Rows of the last axis ------------------------------------------------

template <class E>
void requireArray(const py::array &a, const char *what, bool writeable)
{
    if (!a.dtype().is(py::dtype::of<E>()))
        throw py::type_error(std::string(what) + " has dtype " + std::string(py::str(a.dtype())) +
                             ", expected " + std::string(py::str(py::dtype::of<E>())));
    if (!(a.flags() & py::array::c_style))
        throw py::value_error(std::string(what) + " is not C-contiguous");
    if (writeable && !a.writeable())
        throw py::value_error(std::string(what) + " is read-only");
}

py::ssize_t rowLength(const py::array &a)
{
    if (a.ndim() < 1)
        throw py::value_error("an array without axes has no rows");
    return a.shape(a.ndim() - 1);
}

// The kernels write exactly the destination row that their source row
// implies: refuse any other before a row is touched.
void requireRowLengths(const py::array &dst, py::ssize_t expected)
{
    if (rowLength(dst) != expected)
        throw py::value_error("the destination's rows hold " + std::to_string(rowLength(dst)) +
                              " elements, the transform gives " + std::to_string(expected));
}

// Calls fn(src, dst, srcLength, dstLength, rows) once for all rows; both
// arrays must have the same number of rows.  The rows run without the
// interpreter lock (other Python threads, a Dask worker's for one, go on
// meanwhile) unless `keepLock`: the kernels share nothing writable, the
// DCT-IV plans do.
template <class E, class L, class Fn>
void allRows(const py::array &src, py::array &dst, Fn fn, bool keepLock)
{
    requireArray<E>(src, "source", false);
    requireArray<E>(dst, "destination", true);
    const py::ssize_t in = rowLength(src), out = rowLength(dst);
    const py::ssize_t rows = in ? src.size() / in : 0;
    if ((out ? dst.size() / out : 0) != rows)
        throw py::value_error("source and destination differ in their number of rows");
    if (in > INT_MAX || out > INT_MAX)
        throw py::value_error("rows longer than any transform of the library");
    const L *s = reinterpret_cast<const L *>(src.data());
    L *d = reinterpret_cast<L *>(dst.mutable_data());
    std::optional<py::gil_scoped_release> unlocked;
    if (!keepLock)
        unlocked.emplace();
    if (rows > 0)
        fn(s, d, static_cast<int>(in), static_cast<int>(out), rows);
}

// The library's element type of a kernel, from its first parameter.
template <class F>
struct ElemOf;
template <class L, class... A>
struct ElemOf<vtxStatus (*)(const L *, L *, A...)> {
    using type = L;
};

// A family's single and double entry, picked by the source's dtype: E32 and
// E64 are the NumPy element types of the two precisions.  call(entry, name,
// src, dst, srcLength, dstLength, rows) runs all rows.
template <class E32, class E64, class F32, class F64, class Call>
void byPrecision(const py::array &src, py::array &dst, F32 f32, const char *name32, F64 f64,
                 const char *name64, Call call, bool keepLock = false)
{
    if (src.dtype().is(py::dtype::of<E32>()))
        allRows<E32, typename ElemOf<F32>::type>(
            src, dst, [&](auto s, auto d, int in, int out, py::ssize_t rows) { call(f32, name32, s, d, in, out, rows); },
            keepLock);
    else if (src.dtype().is(py::dtype::of<E64>()))
        allRows<E64, typename ElemOf<F64>::type>(
            src, dst, [&](auto s, auto d, int in, int out, py::ssize_t rows) { call(f64, name64, s, d, in, out, rows); },
            keepLock);
    else
        throw py::type_error("source has dtype " + std::string(py::str(src.dtype())) + ", expected " +
                             std::string(py::str(py::dtype::of<E32>())) + " or " +
                             std::string(py::str(py::dtype::of<E64>())));
}

// A call for byPrecision that runs call(entry, name, srcRow, dstRow,
// srcLength, dstLength) once per row.
template <class Call>
auto perRow(Call call)
{
    return [call](auto fn, const char *name, auto s, auto d, int in, int out, py::ssize_t rows) {
        for (py::ssize_t r = 0; r < rows; ++r)
            call(fn, name, s + r * in, d + r * out, in, out);
    };
}

#define VTX_ENTRIES(stem) stem##_32f, #stem "_32f", stem##_64f, #stem "_64f"
#define VTX_BATCHES(stem) stem##_Batch_32f, #stem "_Batch_32f", stem##_Batch_64f, #stem "_Batch_64f"
#define VTX_BATCHES_C(stem) stem##_Batch_32fc, #stem "_Batch_32fc", stem##_Batch_64fc, #stem "_Batch_64fc"

// Runs a batch entry by size over all rows, (src, dst, n, count, srcStride,
// dstStride, flag), n the source's row length or (nIsDst) the destination's;
// more than INT_MAX rows in several calls.
template <class E32, class E64, class F32, class F64>
void bySize(const py::array &src, py::array &dst, int flag, bool nIsDst, F32 f32, const char *name32,
            F64 f64, const char *name64)
{
    byPrecision<E32, E64>(src, dst, f32, name32, f64, name64,
                          [&](auto fn, const char *name, auto s, auto d, int in, int out, py::ssize_t rows) {
                              const int n = nIsDst ? out : in;
                              for (py::ssize_t done = 0; done < rows;) {
                                  const int count = static_cast<int>(std::min<py::ssize_t>(rows - done, INT_MAX));
                                  check(fn(s + done * in, d + done * out, n, count, in, out, flag), name,
                                        "size " + std::to_string(n));
                                  done += count;
                              }
                          });
}

// ---- Families ---------------------------------------------------------------

using C32 = std::complex<float>;
using C64 = std::complex<double>;

void dft(const py::array &src, py::array &dst, bool inverse, int flag)
{
    requireRowLengths(dst, rowLength(src));
    if (inverse)
        bySize<C32, C64>(src, dst, flag, false, VTX_BATCHES_C(vtxgDFTInv_CToC));
    else
        bySize<C32, C64>(src, dst, flag, false, VTX_BATCHES_C(vtxgDFTFwd_CToC));
}

enum Layout { CCS = 0, Pack = 1, Perm = 2 };

// The real batch entries by direction (forward, inverse) and layout (CCS,
// Pack, Perm); all take (src, dst, n, count, srcStride, dstStride, flag).
struct RealEntries {
    decltype(&vtxgDFTFwd_RToCCS_Batch_32f) f32;
    const char *name32;
    decltype(&vtxgDFTFwd_RToCCS_Batch_64f) f64;
    const char *name64;
};
const RealEntries realEntries[2][3] = {
    {{VTX_BATCHES(vtxgDFTFwd_RToCCS)}, {VTX_BATCHES(vtxgDFTFwd_RToPack)}, {VTX_BATCHES(vtxgDFTFwd_RToPerm)}},
    {{VTX_BATCHES(vtxgDFTInv_CCSToR)}, {VTX_BATCHES(vtxgDFTInv_PackToR)}, {VTX_BATCHES(vtxgDFTInv_PermToR)}},
};

// Forward: rows of n into rows of the layout's length; inverse: rows of the
// layout into rows of n, n being the destination's row length.
void realDft(const py::array &src, py::array &dst, bool inverse, int layout, int flag)
{
    if (layout < 0 || layout > 2)
        throw py::value_error("layout must be 0 (CCS), 1 (Pack) or 2 (Perm)");
    auto packed = [layout](py::ssize_t n) { return layout == CCS ? n / 2 * 2 + 2 : n; };
    if (inverse) {
        if (rowLength(src) != packed(rowLength(dst)))
            throw py::value_error("the source's rows do not hold the layout of the destination's length");
    } else {
        requireRowLengths(dst, packed(rowLength(src)));
    }
    const RealEntries &e = realEntries[inverse][layout];
    bySize<float, double>(src, dst, flag, inverse, e.f32, e.name32, e.f64, e.name64);
}

void hartley(const py::array &src, py::array &dst, int flag)
{
    requireRowLengths(dst, rowLength(src));
    bySize<float, double>(src, dst, flag, false, VTX_BATCHES(vtxgHartley));
}

// The order of a length 2^order, or 0 (which the library refuses) otherwise.
int orderOf(int n)
{
    for (int order = 1; order < 31; ++order)
        if (n == (1 << order))
            return order;
    return 0;
}

struct VtxFree {
    void operator()(void *p) const { vtxFree(p); }
};

// One work buffer per call, of the size the library asks, for all rows.
void wht(const py::array &src, py::array &dst, int flag)
{
    const py::ssize_t n = rowLength(src);
    requireRowLengths(dst, n);
    const int order = n <= INT_MAX ? orderOf(static_cast<int>(n)) : 0;
    const std::string detail = "length " + std::to_string(n);
    const bool single = src.dtype().is(py::dtype::of<float>());
    int bytes = 0;
    check((single ? vtxgWHTGetBufferSize_32f : vtxgWHTGetBufferSize_64f)(order, &bytes),
          single ? "vtxgWHTGetBufferSize_32f" : "vtxgWHTGetBufferSize_64f", detail);
    std::unique_ptr<void, VtxFree> buffer(bytes > 0 ? vtxMalloc(bytes) : nullptr);
    if (bytes > 0 && !buffer)
        throw std::bad_alloc();
    byPrecision<float, double>(src, dst, VTX_ENTRIES(vtxgWHT),
                               perRow([&](auto fn, const char *name, auto s, auto d, int, int) {
                                   check(fn(s, d, order, flag, buffer.get()), name, detail);
                               }));
}

#undef VTX_ENTRIES
#undef VTX_BATCHES
#undef VTX_BATCHES_C

// ---- DCT-IV plans, one per length and precision, kept for the process ------

template <class T, class Spec>
struct Dct4Api {
    vtxStatus (*initAlloc)(Spec **, int);
    vtxStatus (*release)(Spec *);
    vtxStatus (*execute)(const T *, T *, const Spec *);
    const char *initName;
    const char *executeName;
};
#define VTX_DCT4(p) {vtxgDCT4InitAlloc##p, vtxgDCT4Free##p, vtxgDCT4##p, "vtxgDCT4InitAlloc" #p, "vtxgDCT4" #p}
constexpr Dct4Api<vtx32f, vtxDCT4Spec_32f> dct4Single VTX_DCT4(_32f);
constexpr Dct4Api<vtx64f, vtxDCT4Spec_64f> dct4Double VTX_DCT4(_64f);
#undef VTX_DCT4

// The plan of length n, built at its first use.  Plans live until the process
// ends; the interpreter lock keeps one execution at a time on each.
template <class T, class Spec>
const Spec *dct4Plan(const Dct4Api<T, Spec> &api, int n)
{
    struct Free {
        const Dct4Api<T, Spec> *api;
        void operator()(Spec *spec) const { api->release(spec); }
    };
    static std::map<int, std::unique_ptr<Spec, Free>> plans;
    auto &plan = plans[n];
    if (!plan) {
        // GetSize also answers for some lengths that are no transform; only
        // powers of two reach the planner.
        if (orderOf(n) == 0)
            throw py::value_error("the DCT-IV length must be a power of two, not " + std::to_string(n));
        Spec *spec = nullptr;
        check(api.initAlloc(&spec, n), api.initName, "length " + std::to_string(n));
        plan = std::unique_ptr<Spec, Free>(spec, Free{&api});
    }
    return plan.get();
}

const auto &dct4ApiOf(const vtx32f *) { return dct4Single; }
const auto &dct4ApiOf(const vtx64f *) { return dct4Double; }

void dct4(const py::array &src, py::array &dst)
{
    requireRowLengths(dst, rowLength(src));
    byPrecision<float, double>(src, dst, dct4Single.execute, dct4Single.executeName, dct4Double.execute,
                               dct4Double.executeName,
                               perRow([](auto execute, const char *name, auto s, auto d, int n, int) {
                                   const auto *plan = dct4Plan(dct4ApiOf(s), n);
                                   check(execute(s, d, plan), name, "length " + std::to_string(n));
                               }),
                               /*keepLock=*/true);
}

} // namespace

PYBIND11_MODULE(_vtxgen, m)
{
    m.doc() = "The vtxgen kernels over NumPy arrays (rows of the last axis); use the vtxgen package.";

    errorClass = PyErr_NewExceptionWithDoc(
        "vtxgen.VtxError",
        "A vtxgen entry returned a status other than vtxStatusOk.\n\n"
        "Attributes: status (the number), status_name (such as 'vtxStatusSizeError'), entry (the "
        "C function).",
        PyExc_RuntimeError, nullptr);
    if (!errorClass)
        throw py::error_already_set();
    m.attr("VtxError") = errorClass;
    // pybind11's translator type takes the pointer by value.
    py::register_exception_translator([](std::exception_ptr p) {  // NOLINT(performance-unnecessary-value-param)
        try {
            if (p)
                std::rethrow_exception(p);
        } catch (const StatusError &e) {
            const std::string message = e.entry + " returned " + statusName(e.status) + " (" +
                                        std::to_string(e.status) + ") for " + e.detail;
            py::object error = errorClass(message);
            error.attr("status") = e.status;
            error.attr("status_name") = statusName(e.status);
            error.attr("entry") = e.entry;
            PyErr_SetObject(errorClass.ptr(), error.ptr());
        }
    });

    m.attr("SCALE_FORWARD") = int(vtxScaleForward);
    m.attr("SCALE_INVERSE") = int(vtxScaleInverse);
    m.attr("SCALE_SYMMETRIC") = int(vtxScaleSymmetric);
    m.attr("SCALE_NONE") = int(vtxScaleNone);

    m.def("version", [] { return std::string(vtxgenGetLibVersion()->versionText); },
          "The version text of the linked library.");
    m.def("dft", &dft, py::arg("src"), py::arg("dst"), py::arg("inverse"), py::arg("flag"));
    m.def("real_dft", &realDft, py::arg("src"), py::arg("dst"), py::arg("inverse"), py::arg("layout"),
          py::arg("flag"));
    m.def("hartley", &hartley, py::arg("src"), py::arg("dst"), py::arg("flag"));
    m.def("wht", &wht, py::arg("src"), py::arg("dst"), py::arg("flag"));
    m.def("dct4", &dct4, py::arg("src"), py::arg("dst"));
}
