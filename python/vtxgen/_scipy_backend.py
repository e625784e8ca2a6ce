"""A scipy.fft backend on the vtxgen kernels.

    with scipy.fft.set_backend(vtxgen.scipy_backend):
        scipy.fft.fft(x)          # vtxgen for the sizes and dtypes it has

It serves a call only where the library has the kernel:

    fft, ifft     float32, float64, complex64, complex128; length 2 to 64
    rfft          float32, float64; length 2 to 64
    irfft         complex64, complex128; output length 2 to 64
    dct, idct     type 4 only; float32, float64; a power of two up to 2**26
                  (float32) or 2**25 (float64)

with any `axis`, `n`, `norm` (None, "backward", "ortho", "forward"),
`overwrite_x` and `workers` (ignored: one thread), and `plan=None`.
Everything else, other functions, types, dtypes, lengths, empty arrays or
arguments it does not know, returns NotImplemented, so that SciPy computes it
(or, under `set_backend(..., only=True)`, reports it).

The Fourier transforms take scipy's `norm` as the library's scale flag, so
their bits are the library's. SciPy's DCT-IV is twice the plain sum the
library computes (norm None or "backward"); its other factors are 1/n
("forward"; idct: "backward") and sqrt(2/n) ("ortho"). The result is the
library's, multiplied once by that factor rounded to the dtype: exact for
every factor but sqrt(2/n) with n an even power of two (4, 16, 64, ...).
SciPy has no Hartley transform; `vtxgen.hartley` is the package's own.
"""

import inspect
import operator

import numpy as np

import vtxgen

_FLOAT = (np.dtype(np.float32), np.dtype(np.float64))
_COMPLEX = (np.dtype(np.complex64), np.dtype(np.complex128))
_NORMS = (None, "backward", "ortho", "forward")
_DCT4_LONGEST = {np.dtype(np.float32): 2**26, np.dtype(np.float64): 2**25}


def _fourier_length(n):
    return 2 <= n <= 64


def _dct4_length(n, dtype):
    return 2 <= n <= _DCT4_LONGEST[dtype] and n & (n - 1) == 0


def _array(x, dtypes):
    """x as an array if it is one of dtypes with at least one axis and no
    empty one, else None."""
    x = np.asarray(x)
    if x.dtype not in dtypes or x.ndim == 0 or x.size == 0:
        return None
    return x


def _length(x, n, axis):
    """The transform's input length along axis, or None where not an index."""
    try:
        axis = operator.index(axis)
        m = x.shape[axis]
        return m if n is None else operator.index(n)
    except (TypeError, IndexError):
        return None


def _fourier(transform, dtypes):
    def serve(x, n=None, axis=-1, norm=None, overwrite_x=False, workers=None, *, plan=None):
        x = _array(x, dtypes)
        if x is None or plan is not None or norm not in _NORMS:
            return NotImplemented
        length = _length(x, n, axis)
        if length is None or not _fourier_length(length):
            return NotImplemented
        return transform(x, n, axis, norm, overwrite_x)
    return serve


def _irfft(x, n=None, axis=-1, norm=None, overwrite_x=False, workers=None, *, plan=None):
    x = _array(x, _COMPLEX)
    if x is None or plan is not None or norm not in _NORMS:
        return NotImplemented
    length = _length(x, n, axis)
    if length is None:
        return NotImplemented
    out = 2 * (length - 1) if n is None else length
    if not _fourier_length(out):
        return NotImplemented
    return vtxgen.irfft(x, out, axis, norm, overwrite_x)


def _dct4(inverse):
    def serve(x, type=2, n=None, axis=-1, norm=None, overwrite_x=False, workers=None,
              orthogonalize=None):
        x = _array(x, _FLOAT)
        if x is None or type != 4 or norm not in _NORMS:
            return NotImplemented
        length = _length(x, n, axis)
        if length is None or not _dct4_length(length, x.dtype):
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
    "fft": _fourier(vtxgen.fft, _FLOAT + _COMPLEX),
    "ifft": _fourier(vtxgen.ifft, _FLOAT + _COMPLEX),
    "rfft": _fourier(vtxgen.rfft, _FLOAT),
    "irfft": _irfft,
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
