"""vtxgen: fixed-size discrete transforms over NumPy arrays.

Each one-dimensional function transforms along one axis (the last by
default) over all others in C++ (the Fourier and Hartley ones in one batch
call, the bits of one call per row); the N-dimensional ones apply them
along each axis in turn. The dtype is kept: float32 and complex64 data run the
single-precision kernels in single-precision arithmetic, float64 and
complex128 the double ones; integers and booleans are taken as float64,
float16 as float32, anything else is a TypeError.

    fft, ifft         complex DFT, lengths 2 to 64
    rfft, irfft       real DFT into and from NumPy's half spectrum (the CCS layout)
    rfft_packed,      the same into and from a packed real layout:
    irfft_packed      "CCS", "Pack" or "Perm"
    hartley           discrete Hartley transform, lengths 2 to 64
    wht               Walsh-Hadamard transform, lengths 2 to 8192 (powers of two)
    dct4              DCT-IV, plain sum, lengths powers of two to 2**26 (single)
                      or 2**25 (double); one plan per length, kept
    fft2, ifft2,      N-dimensional complex DFT, every transformed axis 2 to 64:
    fftn, ifftn       the one-dimensional kernels along each axis
    rfft2, irfft2,    N-dimensional real DFT and its inverse (the last
    rfftn, irfftn     transformed axis the real one)

`n` cuts or zero-pads the input along the axis (the N-dimensional functions
take `s` and `axes` as scipy.fft does; vtxgen._nd says how), `norm`
("backward", "ortho", "forward") picks the factor as in numpy.fft, and
`overwrite_x=True` lets the result be written into `x` when `x` already has
the result's dtype and layout. A status of the library other than
vtxStatusOk raises VtxError, which names the status and the C entry.

`scipy_backend` serves scipy.fft with these kernels (see
vtxgen._scipy_backend):

    with scipy.fft.set_backend(vtxgen.scipy_backend):
        y = scipy.fft.fft(x)

and `vtxgen.dask` (imported on its own) runs them over Dask arrays larger
than memory.
"""

import numpy as np

from . import _vtxgen
from ._vtxgen import VtxError

__license__ = "BSD-3-Clause"  # the LICENSE file at the top of the source tree

__all__ = [
    "VtxError", "fft", "ifft", "rfft", "irfft", "rfft_packed", "irfft_packed",
    "hartley", "wht", "dct4", "fft2", "ifft2", "fftn", "ifftn", "rfft2", "irfft2", "rfftn",
    "irfftn", "scipy_backend", "version", "LAYOUTS",
]

LAYOUTS = ("CCS", "Pack", "Perm")
_NORMS = (None, "backward", "ortho", "forward")


def version():
    """The version text of the linked libvtxgenp8."""
    return _vtxgen.version()


def _flag(norm, inverse=False):
    """The scale flag that gives numpy's factor for `norm`: the forward
    transform divides by N under "forward", the inverse under "backward"."""
    if norm not in _NORMS:
        raise ValueError(f'norm must be "backward", "ortho" or "forward", not {norm!r}')
    if norm == "ortho":
        return _vtxgen.SCALE_SYMMETRIC
    if (norm == "forward") != inverse:
        return _vtxgen.SCALE_INVERSE if inverse else _vtxgen.SCALE_FORWARD
    return _vtxgen.SCALE_NONE


def _precision(dtype):
    """32 or 64: the kernels that data of this dtype runs."""
    dtype = np.dtype(dtype).newbyteorder("=")
    if dtype in (np.float32, np.complex64, np.float16):
        return 32
    if dtype in (np.float64, np.complex128) or dtype.kind in "biu":
        return 64
    raise TypeError(f"vtxgen has no kernels for dtype {dtype} "
                    "(float32, float64, complex64, complex128 and integers)")


def _real_dtype(x):
    if np.iscomplexobj(x):
        raise TypeError("x must be real")
    return np.float32 if _precision(x.dtype) == 32 else np.float64


def _complex_dtype(x):
    return np.complex64 if _precision(x.dtype) == 32 else np.complex128


def _rows(x, n, axis, dtype):
    """x with `axis` last, cut or zero-padded to n, C-contiguous, of dtype;
    and whether it may be written (a copy of our own)."""
    x = np.asarray(x)
    if x.ndim == 0:
        raise ValueError("x must have at least one axis")
    rows = np.moveaxis(x, axis, -1)
    if n is not None:
        n = int(n)
        if n < 1:
            raise ValueError(f"invalid number of data points ({n})")
        m = rows.shape[-1]
        if n < m:
            rows = rows[..., :n]
        elif n > m:
            padded = np.zeros(rows.shape[:-1] + (n,), dtype)
            padded[..., :m] = rows
            rows = padded
    rows = np.ascontiguousarray(rows, dtype=dtype)
    return rows, not np.may_share_memory(rows, x)


def _in_place(rows, own, overwrite_x):
    """The destination of a transform that keeps the shape and dtype."""
    if own or (overwrite_x and rows.flags.writeable):
        return rows
    return np.empty_like(rows)


def _same_shape(kernel, x, n, axis, overwrite_x, dtype):
    rows, own = _rows(x, n, axis, dtype)
    out = _in_place(rows, own, overwrite_x)
    kernel(rows, out)
    return np.moveaxis(out, -1, axis)


def fft(x, n=None, axis=-1, norm=None, overwrite_x=False):
    """Complex forward DFT along `axis`, y[k] = sum_j x[j] exp(-2 pi i jk/n)."""
    flag = _flag(norm)
    x = np.asarray(x)
    return _same_shape(lambda s, d: _vtxgen.dft(s, d, False, flag), x, n, axis, overwrite_x,
                       _complex_dtype(x))


def ifft(x, n=None, axis=-1, norm=None, overwrite_x=False):
    """Complex inverse DFT along `axis`, by default divided by n."""
    flag = _flag(norm, inverse=True)
    x = np.asarray(x)
    return _same_shape(lambda s, d: _vtxgen.dft(s, d, True, flag), x, n, axis, overwrite_x,
                       _complex_dtype(x))


def hartley(x, n=None, axis=-1, norm=None, overwrite_x=False):
    """Discrete Hartley transform, y[k] = sum_j x[j] cas(2 pi jk/n), its own
    inverse up to the factor: "forward" divides by n, "ortho" by sqrt(n)."""
    flag = _flag(norm)
    x = np.asarray(x)
    return _same_shape(lambda s, d: _vtxgen.hartley(s, d, flag), x, n, axis, overwrite_x,
                       _real_dtype(x))


def wht(x, n=None, axis=-1, norm=None, overwrite_x=False):
    """Walsh-Hadamard transform in natural order, y[k] = sum_j (-1)^popcount(j&k) x[j],
    of length 2 to 8192 (a power of two); "forward" divides by the length,
    "ortho" by its square root."""
    flag = _flag(norm)
    x = np.asarray(x)
    return _same_shape(lambda s, d: _vtxgen.wht(s, d, flag), x, n, axis, overwrite_x,
                       _real_dtype(x))


def dct4(x, n=None, axis=-1, overwrite_x=False):
    """DCT-IV, the plain sum y[k] = sum_j x[j] cos(pi/n (j + 1/2)(k + 1/2)) (half of
    scipy.fft.dct(x, 4)); n a power of two. The plan of each length and precision
    is built at its first use and kept."""
    x = np.asarray(x)
    return _same_shape(_vtxgen.dct4, x, n, axis, overwrite_x, _real_dtype(x))


def _layout(layout):
    try:
        return LAYOUTS.index(layout)
    except ValueError:
        raise ValueError(f"layout must be one of {LAYOUTS}, not {layout!r}") from None


def _packed_length(layout, n):
    return 2 * (n // 2) + 2 if layout == 0 else n


def _real_forward(x, n, axis, norm, kind):
    """Rows (the last axis) of the packed spectra of x along axis."""
    flag = _flag(norm)
    x = np.asarray(x)
    rows, _ = _rows(x, n, axis, _real_dtype(x))
    out = np.empty(rows.shape[:-1] + (_packed_length(kind, rows.shape[-1]),), rows.dtype)
    _vtxgen.real_dft(rows, out, False, kind, flag)
    return out


def _real_inverse(rows, n, kind, norm):
    """Rows of n points from rows (the last axis) of packed spectra."""
    flag = _flag(norm, inverse=True)
    out = np.empty(rows.shape[:-1] + (n,), rows.dtype)
    _vtxgen.real_dft(rows, out, True, kind, flag)
    return out


def rfft_packed(x, layout="CCS", n=None, axis=-1, norm=None):
    """Real forward DFT into a packed real layout along `axis`: "CCS"
    (Re0, 0, Re1, Im1, ..., 2*(n//2)+2 values), "Pack" (Re0, Re1, Im1, ...,
    n values) or "Perm" (for even n Re0, Re(n/2), Re1, Im1, ...; n values)."""
    return np.moveaxis(_real_forward(x, n, axis, norm, _layout(layout)), -1, axis)


def irfft_packed(x, n=None, layout="CCS", axis=-1, norm=None):
    """Real inverse DFT of n points from a packed layout along `axis`, by
    default divided by n. n defaults to the length of the axis ("Pack",
    "Perm") or to that length less 2 ("CCS"); the axis must hold exactly the
    layout's length for n."""
    kind = _layout(layout)
    x = np.asarray(x)
    rows, _ = _rows(x, None, axis, _real_dtype(x))
    m = rows.shape[-1]
    n = int(n) if n is not None else (m - 2 if kind == 0 else m)
    if _packed_length(kind, n) != m:
        raise ValueError(f"a {layout} spectrum of {n} points has {_packed_length(kind, n)} "
                         f"values, not {m}")
    return np.moveaxis(_real_inverse(rows, n, kind, norm), -1, axis)


def rfft(x, n=None, axis=-1, norm=None, overwrite_x=False):
    """Real forward DFT along `axis` into NumPy's half spectrum of n//2+1
    complex bins: the library's CCS layout seen as complex numbers."""
    ccs = _real_forward(x, n, axis, norm, 0)
    return np.moveaxis(ccs.view(_complex_dtype(ccs)), -1, axis)


def irfft(x, n=None, axis=-1, norm=None, overwrite_x=False):
    """Real inverse DFT of n points (default 2*(m-1)) from NumPy's half
    spectrum along `axis`, read as the CCS layout: the imaginary parts of bin
    0 and, for even n, bin n/2 are not read."""
    x = np.asarray(x)
    if n is None:
        n = 2 * (x.shape[axis] - 1) if x.ndim else 0
    n = int(n)
    if n < 1:
        raise ValueError(f"invalid number of data points ({n})")
    rows, _ = _rows(x, n // 2 + 1, axis, _complex_dtype(x))
    return np.moveaxis(_real_inverse(rows.view(rows.real.dtype), n, 0, norm), -1, axis)


# These use the functions above.
from ._nd import fft2, fftn, ifft2, ifftn, irfft2, irfftn, rfft2, rfftn  # noqa: E402
from ._scipy_backend import scipy_backend  # noqa: E402
