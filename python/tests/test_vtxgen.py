"""The Python package against NumPy/SciPy (tolerance), against the library's
own C kernels called through ctypes (bit for bit), and the scipy.fft backend
(serves what it claims with those bits, hands back everything else)."""

import ctypes
import functools

import numpy as np
import pytest
import scipy.fft

import vtxgen

SIZES = range(2, 65)
DTYPES = [np.float32, np.float64]
NORMS = [None, "ortho", "forward"]
rng = np.random.default_rng(18)


def real(n, dtype, rows=()):
    return rng.standard_normal(rows + (n,)).astype(dtype)


def cplx(n, dtype, rows=()):
    return (real(n, dtype, rows) + 1j * real(n, dtype, rows)).astype(np.result_type(dtype, 1j))


def close(y, ref, dtype, what):
    tol = 30 * np.finfo(dtype).eps * np.linalg.norm(ref)
    assert np.linalg.norm(y - ref) <= tol, what


def wht_reference(x):
    y = x.astype(np.float64)
    h = 1
    while h < len(y):
        y = y.reshape(-1, 2, h)
        y = np.stack([y[:, 0] + y[:, 1], y[:, 0] - y[:, 1]], axis=1).reshape(-1)
        h *= 2
    return y


# ---- Against NumPy and SciPy, every size, dtype and norm ----------------------

@pytest.mark.parametrize("dtype", DTYPES)
def test_fourier_and_hartley_match_numpy(dtype):
    for n in SIZES:
        for norm in NORMS:
            x, r = cplx(n, dtype), real(n, dtype)
            what = f"n={n} norm={norm}"
            close(vtxgen.fft(x, norm=norm), np.fft.fft(x, norm=norm), dtype, what)
            close(vtxgen.ifft(x, norm=norm), np.fft.ifft(x, norm=norm), dtype, what)
            close(vtxgen.rfft(r, norm=norm), np.fft.rfft(r, norm=norm), dtype, what)
            h = x[: n // 2 + 1]
            close(vtxgen.irfft(h, n, norm=norm), np.fft.irfft(h, n, norm=norm), dtype, what)
            f = np.fft.fft(r, norm=norm)
            close(vtxgen.hartley(r, norm=norm), f.real - f.imag, dtype, what)
            assert vtxgen.fft(x).dtype == x.dtype and vtxgen.rfft(r).dtype == x.dtype


@pytest.mark.parametrize("dtype", DTYPES)
def test_wht_and_dct4_match_references(dtype):
    for order in range(1, 14):
        x = real(2**order, dtype)
        close(vtxgen.wht(x), wht_reference(x), dtype, f"order {order}")
        close(vtxgen.wht(x, norm="forward"), wht_reference(x) / 2**order, dtype, f"order {order}")
        close(vtxgen.dct4(x), scipy.fft.dct(x.astype(np.float64), 4) / 2, dtype, f"dct4 {2**order}")
        assert vtxgen.wht(x).dtype == vtxgen.dct4(x).dtype == dtype


@pytest.mark.parametrize("layout", vtxgen.LAYOUTS)
def test_packed_layouts_hold_the_half_spectrum_and_invert(layout):
    for n in SIZES:
        r = real(n, np.float64)
        ccs = vtxgen.rfft(r).view(np.float64)
        packed = vtxgen.rfft_packed(r, layout)
        order = {"CCS": np.arange(len(ccs)), "Pack": np.r_[0, 2 : n + 1],
                 "Perm": np.r_[0, n, 2:n] if n % 2 == 0 else np.r_[0, 2 : n + 1]}[layout]
        assert np.array_equal(packed, ccs[order]), f"n={n}"
        close(vtxgen.irfft_packed(packed, n, layout), r, np.float64, f"n={n}")


# ---- Bit for bit the library's fixed-size C kernels ------------------------------

@functools.cache
def library():
    """The libvtxgenp8 that the package loaded."""
    with open("/proc/self/maps") as maps:
        path = next(line.split()[-1] for line in maps if "libvtxgenp8" in line)
    return ctypes.CDLL(path)


def c_call(name, src, out, *extra):
    pointers = ctypes.c_void_p(src.ctypes.data), ctypes.c_void_p(out.ctypes.data)
    status = getattr(library(), name)(*pointers, *extra)
    assert status == 0, name
    return out


P = {np.float32: "32f", np.float64: "64f"}


@pytest.mark.parametrize("dtype", DTYPES)
def test_bits_equal_the_c_kernels(dtype):
    # 19 rows: one batch call of more transforms than the widest vector has
    # lanes and a short last group; every row against its single C kernel.
    p = P[dtype]
    for n in SIZES:
        x, r = cplx(n, dtype, rows=(19,)), real(n, dtype, rows=(19,))
        for norm, flag in [(None, 8), ("forward", 1), ("ortho", 4)]:
            cases = [
                (vtxgen.fft(x, norm=norm), f"vtxgDFTFwd_CToC_{n}_{p}c", x, flag),
                (vtxgen.ifft(x, norm=norm), f"vtxgDFTInv_CToC_{n}_{p}c", x, {8: 2, 1: 8, 4: 4}[flag]),
                (vtxgen.rfft(r, norm=norm).view(dtype), f"vtxgDFTFwd_RToCCS_{n}_{p}", r, flag),
                (vtxgen.hartley(r, norm=norm), f"vtxgHartley_{n}_{p}", r, flag),
            ]
            for layout in vtxgen.LAYOUTS:
                packed = vtxgen.rfft_packed(r, layout, norm=norm)
                cases.append((vtxgen.irfft_packed(packed, n, layout, norm=norm),
                              f"vtxgDFTInv_{layout}ToR_{n}_{p}", packed, {8: 2, 1: 8, 4: 4}[flag]))
            for y, name, src, f in cases:
                for row in range(len(y)):
                    assert np.array_equal(y[row], c_call(name, src[row], np.empty_like(y[row]), f)), (name, row)
    lib = library()
    for order in range(1, 14):
        x = real(2**order, dtype)
        assert np.array_equal(vtxgen.wht(x), c_call(f"vtxgWHT_{order}_{p}", x, np.empty_like(x), 8, None))
        spec = ctypes.c_void_p()
        assert getattr(lib, f"vtxgDCT4InitAlloc_{p}")(ctypes.byref(spec), 2**order) == 0
        assert np.array_equal(vtxgen.dct4(x), c_call(f"vtxgDCT4_{p}", x, np.empty_like(x), spec))
        getattr(lib, f"vtxgDCT4Free_{p}")(spec)


@pytest.mark.parametrize("transform, make", [
    (vtxgen.fft, cplx), (vtxgen.ifft, cplx), (vtxgen.irfft, cplx), (vtxgen.rfft, real),
    (vtxgen.hartley, real), (vtxgen.wht, real), (vtxgen.dct4, real),
    (lambda x, axis=-1: vtxgen.rfft_packed(x, "Perm", axis=axis), real),
])
def test_axes_batches_and_overwrite_keep_the_bits(transform, make):
    x = make(8, np.float32, rows=(16,))  # rows of 8, transformed along the 16
    y = transform(x, axis=0)
    for j in range(x.shape[1]):
        assert np.array_equal(y[:, j], transform(x[:, j].copy())), f"column {j}"
    before = x.copy()
    transform(x)
    assert np.array_equal(x, before)
    if "overwrite_x" in transform.__code__.co_varnames and x.dtype == y.dtype:
        z = x.copy()
        transform(z, overwrite_x=True)
        assert np.array_equal(z, transform(x)), "in place"


def test_n_cuts_and_pads():
    x = real(12, np.float64)
    assert np.array_equal(vtxgen.rfft(x, n=20), vtxgen.rfft(np.pad(x, (0, 8))))
    assert np.array_equal(vtxgen.fft(x, n=7), vtxgen.fft(x[:7]))


# ---- The scipy.fft backend -----------------------------------------------------

@pytest.mark.parametrize("dtype", DTYPES)
def test_backend_serves_the_library_bits(dtype):
    # only=True: a call the backend handed back would raise.
    with scipy.fft.set_backend(vtxgen.scipy_backend, only=True):
        for n in SIZES:
            x, r, h = cplx(n, dtype, rows=(2,)), real(n, dtype, rows=(2,)), cplx(n // 2 + 1, dtype)
            for norm in NORMS:
                for theirs, ours, data in [(scipy.fft.fft, vtxgen.fft, x), (scipy.fft.fft, vtxgen.fft, r),
                                           (scipy.fft.ifft, vtxgen.ifft, x), (scipy.fft.rfft, vtxgen.rfft, r)]:
                    assert np.array_equal(theirs(data, norm=norm), ours(data, norm=norm)), f"n={n}"
                assert np.array_equal(scipy.fft.irfft(h, n, norm=norm), vtxgen.irfft(h, n, norm=norm))
        assert np.array_equal(scipy.fft.ifft(x, n=40, axis=0), vtxgen.ifft(x, n=40, axis=0))
        for order in range(1, 13):
            r = real(2**order, dtype)
            for norm in NORMS:
                for transform in (scipy.fft.dct, scipy.fft.idct):
                    with scipy.fft.set_backend("scipy"):
                        ref = transform(r, 4, norm=norm)
                    close(transform(r, 4, norm=norm), ref, dtype, f"{transform.__name__} {len(r)} {norm}")
            assert np.array_equal(scipy.fft.dct(r.copy(), 4, overwrite_x=True), 2 * vtxgen.dct4(r))


@pytest.mark.parametrize("call", [
    lambda: scipy.fft.fft(np.ones(65, np.complex64)),
    lambda: scipy.fft.rfft(np.ones(8, np.complex64)),
    lambda: scipy.fft.fft(np.ones(8, np.clongdouble)),
    lambda: scipy.fft.fft(np.ones((8, 0))),
    lambda: scipy.fft.irfft(np.ones(40, np.complex128)),
    lambda: scipy.fft.dct(np.ones(8), 2),
    lambda: scipy.fft.dct(np.ones(12), 4),
    lambda: scipy.fft.fft(np.ones(8), workers=0),
    lambda: scipy.fft.rfft(np.ones(8), plan=object()),
])
def test_backend_hands_back_what_it_lacks(call):
    with scipy.fft.set_backend(vtxgen.scipy_backend, only=True):
        with pytest.raises(Exception) as raised:
            call()
    assert type(raised.value).__name__ == "BackendNotImplementedError"


def test_backend_falls_back_to_scipy():
    x = cplx(65, np.float64)
    with scipy.fft.set_backend("scipy"):
        theirs = scipy.fft.fft(x)
    with scipy.fft.set_backend(vtxgen.scipy_backend):
        assert np.array_equal(scipy.fft.fft(x), theirs)


# ---- Errors ----------------------------------------------------------------------

@pytest.mark.parametrize("call, error, status", [
    (lambda: vtxgen.fft(np.ones(65, np.complex64)), vtxgen.VtxError, "vtxStatusSizeError"),
    (lambda: vtxgen.rfft_packed(np.ones(1), "Perm"), vtxgen.VtxError, "vtxStatusSizeError"),
    (lambda: vtxgen.wht(np.ones(12)), vtxgen.VtxError, "vtxStatusSizeError"),
    (lambda: vtxgen.wht(np.ones(2**14)), vtxgen.VtxError, "vtxStatusSizeError"),
    (lambda: vtxgen._vtxgen.dft(np.ones(8, np.complex64), np.ones(8, np.complex64), False, 3),
     vtxgen.VtxError, "vtxStatusFlagError"),
    (lambda: vtxgen.dct4(np.ones(33)), ValueError, None),
    (lambda: vtxgen.fft(np.ones(8), norm="none"), ValueError, None),
    (lambda: vtxgen.rfft(np.ones(8, np.complex64)), TypeError, None),
    (lambda: vtxgen.fft(np.ones(8, np.longdouble)), TypeError, None),
    (lambda: vtxgen.irfft_packed(np.ones(9), 8, "Pack"), ValueError, None),
    (lambda: vtxgen.rfft_packed(np.ones(8), "Half"), ValueError, None),
])
def test_errors_raise(call, error, status):
    with pytest.raises(error) as raised:
        call()
    if status:
        assert raised.value.status_name == status and status in str(raised.value)
