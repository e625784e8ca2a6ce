"""A scipy.fft backend on the vtxgen kernels.

    with scipy.fft.set_backend(vtxgen.scipy_backend):
        scipy.fft.fft(x)          # vtxgen for the sizes and dtypes it has

It serves a call only where the library has the kernels:

    fft, ifft, fft2, ifft2, fftn, ifftn
                  real or complex input; every transformed length 2 to 64
    rfft, rfft2, rfftn
                  real input; every transformed length 2 to 64
    irfft, irfft2, irfftn
                  real or complex input; every transformed length 2 to 64,
                  the real axis counted by its output
    dct, idct     type 4 only; real input; a power of two up to 2**26
                  (single precision) or 2**25 (double)

Inputs are promoted as scipy.fft promotes them: float16 to float32, integers
and booleans to float64; float32 and complex64 run the single-precision
kernels, float64 and complex128 the double ones. Any `axis`, `n`, `axes`,
`s`, `norm` (None, "backward", "ortho", "forward") and `overwrite_x` are
served; `workers` is accepted (a valid count; the call runs on the calling
thread) and `plan` must be None. Everything else, other functions, types,
dtypes (long double), lengths, empty arrays or arguments that scipy.fft
refuses, returns NotImplemented, so that SciPy computes it or reports the
mistake (under `set_backend(..., only=True)`, BackendNotImplementedError).

The Fourier transforms take scipy's `norm` as the library's scale flag, so
their bits are the library's; the N-dimensional ones are the composition of
the one-dimensional ones along each axis (vtxgen._nd). SciPy's DCT-IV is
twice the plain sum the library computes (norm None or "backward"); its
other factors are 1/n ("forward"; idct: "backward") and sqrt(2/n)
("ortho"). The result is the library's, multiplied once by that factor
rounded to the dtype: exact for every factor but sqrt(2/n) with n an even
power of two (4, 16, 64, ...). SciPy has no Hartley transform;
`vtxgen.hartley` is the package's own.
"""

import inspect
import operator
import os

import numpy as np

import vtxgen
from vtxgen._nd import _lengths_and_axes

_REAL = tuple(np.dtype(t) for t in (np.float16, np.float32, np.float64))
_COMPLEX = (np.dtype(np.complex64), np.dtype(np.complex128))
_NORMS = (None, "backward", "ortho", "forward")
_DCT4_LONGEST = {np.dtype(np.float32): 2**26, np.dtype(np.float64): 2**25}


def _fourier_length(n):
    return 2 <= n <= 64


def _dct4_length(n, dtype):
    return 2 <= n <= _DCT4_LONGEST[dtype] and n & (n - 1) == 0


def _array(x, complex_ok):
    """x as an array if scipy.fft would transform its dtype with kernels the
    library has (real ones always, complex ones where `complex_ok`), with at
    least one axis and no empty one; else None."""
    x = np.asarray(x)
    dtype = x.dtype.newbyteorder("=")
    served = dtype.kind in "biu" or dtype in _REAL or (complex_ok and dtype in _COMPLEX)
    if not served or x.ndim == 0 or x.size == 0:
        return None
    return x


def _workers_valid(workers):
    """A worker count that scipy.fft accepts: None, positive, or negative
    down to -os.cpu_count()."""
    if workers is None:
        return True
    try:
        workers = operator.index(workers)
    except TypeError:
        return False
    return workers > 0 or -(os.cpu_count() or 1) <= workers < 0


def _options_served(norm, workers, plan):
    return norm in _NORMS and _workers_valid(workers) and plan is None


def _length(x, n, axis):
    """The transform's input length along axis, or None where not an index."""
    try:
        axis = operator.index(axis)
        m = x.shape[axis]
        return m if n is None else operator.index(n)
    except (TypeError, IndexError):
        return None


def _fourier(transform, complex_ok):
    def serve(x, n=None, axis=-1, norm=None, overwrite_x=False, workers=None, *, plan=None):
        x = _array(x, complex_ok)
        if x is None or not _options_served(norm, workers, plan):
            return NotImplemented
        length = _length(x, n, axis)
        if length is None or not _fourier_length(length):
            return NotImplemented
        return transform(x, n, axis, norm, overwrite_x)
    return serve


def _irfft(x, n=None, axis=-1, norm=None, overwrite_x=False, workers=None, *, plan=None):
    x = _array(x, complex_ok=True)
    if x is None or not _options_served(norm, workers, plan):
        return NotImplemented
    length = _length(x, n, axis)
    if length is None:
        return NotImplemented
    out = 2 * (length - 1) if n is None else length
    if not _fourier_length(out):
        return NotImplemented
    return vtxgen.irfft(x, out, axis, norm, overwrite_x)


def _nd(transform, complex_ok, two_d=False, real_inverse=False):
    def serve(x, s=None, axes=(-2, -1) if two_d else None, norm=None, overwrite_x=False, workers=None,
              *, plan=None):
        x = _array(x, complex_ok)
        if x is None or not _options_served(norm, workers, plan):
            return NotImplemented
        try:
            lengths, _ = _lengths_and_axes(x, s, axes, real_inverse)
        except ValueError:
            return NotImplemented  # SciPy reports its own
        if not all(_fourier_length(n) for n in lengths):
            return NotImplemented
        return transform(x, s, axes, norm, overwrite_x)
    return serve


def _dct4(inverse):
    def serve(x, type=2, n=None, axis=-1, norm=None, overwrite_x=False, workers=None,
              orthogonalize=None):
        x = _array(x, complex_ok=False)
        if x is None or type != 4 or not _options_served(norm, workers, None):
            return NotImplemented
        length = _length(x, n, axis)
        if length is None or not _dct4_length(length, np.dtype(vtxgen._real_dtype(x))):
            return NotImplemented
        y = vtxgen.dct4(x, n, axis, overwrite_x)
        # SciPy's factor of each norm over the plain sum (the type IV has no
        # orthogonalizing step, so `orthogonalize` changes nothing).
        if norm == "ortho":
            factor = np.sqrt(2.0 / length)
        elif (norm == "forward") != inverse:
            factor = 1.0 / length
        else:
            factor = 2.0
        y *= y.dtype.type(factor)
        return y
    return serve


_SERVED = {
    "fft": _fourier(vtxgen.fft, complex_ok=True),
    "ifft": _fourier(vtxgen.ifft, complex_ok=True),
    "rfft": _fourier(vtxgen.rfft, complex_ok=False),
    "irfft": _irfft,
    "fft2": _nd(vtxgen.fft2, complex_ok=True, two_d=True),
    "ifft2": _nd(vtxgen.ifft2, complex_ok=True, two_d=True),
    "rfft2": _nd(vtxgen.rfft2, complex_ok=False, two_d=True),
    "irfft2": _nd(vtxgen.irfft2, complex_ok=True, two_d=True, real_inverse=True),
    "fftn": _nd(vtxgen.fftn, complex_ok=True),
    "ifftn": _nd(vtxgen.ifftn, complex_ok=True),
    "rfftn": _nd(vtxgen.rfftn, complex_ok=False),
    "irfftn": _nd(vtxgen.irfftn, complex_ok=True, real_inverse=True),
    "dct": _dct4(inverse=False),
    "idct": _dct4(inverse=True),
}
_SIGNATURES = {name: inspect.signature(serve) for name, serve in _SERVED.items()}


class ScipyBackend:
    """The scipy.fft backend protocol (uarray): the domain, and a function
    that serves a call or returns NotImplemented."""

    __ua_domain__ = "numpy.scipy.fft"

    @staticmethod
    def __ua_function__(method, args, kwargs):
        name = getattr(method, "__name__", None)
        serve = _SERVED.get(name)
        if serve is None:
            return NotImplemented
        try:
            _SIGNATURES[name].bind(*args, **kwargs)
        except TypeError:
            return NotImplemented  # SciPy reports its own argument errors
        return serve(*args, **kwargs)

    def __repr__(self):
        return "vtxgen.scipy_backend"


scipy_backend = ScipyBackend()
