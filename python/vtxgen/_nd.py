"""N-dimensional transforms: the one-dimensional kernels along each axis.

    fft2, ifft2, fftn, ifftn      complex, every transformed axis 2 to 64
    rfft2, irfft2, rfftn, irfftn  real, the last transformed axis the real one

`s` and `axes` are read as scipy.fft reads them: `axes` default to all axes
(the last two for the *2 forms) or, with `s` given, the last len(s); axes are
unique; `s[i]` cuts or zero-pads the input along axes[i] before anything is
transformed (-1 keeps its length); for irfft2/irfftn `s[-1]` is the length
of the real output (default 2*(m-1)), the input's last axis being cut or
padded to s[-1]//2 + 1 bins.

The result is the composition of the one-dimensional transforms, each with
the same `norm` (so each axis gets its own share of the factor): the forward
ones along the axes from the last to the first, the real one first; the
inverse real one takes the complex axes from the last to the first and the
real axis last. Its bits are those of the one-dimensional functions applied
in that order, and `_along` is the one place that orders them.
"""

import operator
from numbers import Number

import numpy as np

from . import fft, ifft, irfft, rfft


def _ints(values, name):
    if isinstance(values, Number):
        values = (values,)
    try:
        return [operator.index(v) for v in values]
    except TypeError as e:
        raise ValueError(f"{name} must be a scalar or iterable of integers") from e


def _lengths_and_axes(x, s, axes, real_inverse=False):
    """The transform length along each transformed axis and the axes, as
    scipy.fft reads `s` and `axes`; for a real inverse the last length is
    that of the real output. ValueError for what scipy.fft refuses, and for
    no axis at all."""
    if axes is not None:
        axes = [a + x.ndim if a < 0 else a for a in _ints(axes, "axes")]
        if any(a < 0 or a >= x.ndim for a in axes):
            raise ValueError("axes exceeds dimensionality of input")
        if len(set(axes)) != len(axes):
            raise ValueError("all axes must be unique")
    if s is not None:
        lengths = _ints(s, "shape")
        if axes is None:
            if len(lengths) > x.ndim:
                raise ValueError("shape requires more axes than are present")
            axes = list(range(x.ndim - len(lengths), x.ndim))
        elif len(axes) != len(lengths):
            raise ValueError("when given, axes and shape arguments have to be of the same length")
        lengths = [x.shape[a] if n == -1 else n for n, a in zip(lengths, axes)]
    else:
        axes = list(range(x.ndim)) if axes is None else axes
        lengths = [x.shape[a] for a in axes]
        if real_inverse and axes:
            lengths[-1] = 2 * (lengths[-1] - 1)
    if not axes:
        raise ValueError("at least 1 axis must be transformed")
    if any(n < 1 for n in lengths):
        raise ValueError(f"invalid number of data points ({lengths}) specified")
    return lengths, axes


def _fit(x, lengths, axes):
    """x cut or zero-padded to `lengths` along `axes`; and whether it is a
    copy of our own."""
    index = [slice(None)] * x.ndim
    shape = list(x.shape)
    for n, a in zip(lengths, axes):
        index[a] = slice(0, min(n, x.shape[a]))
        shape[a] = n
    index = tuple(index)
    if shape == list(x[index].shape):
        return x[index], False
    padded = np.zeros(shape, x.dtype)
    padded[index] = x[index]
    return padded, True


def _along(transform, x, axes, norm, overwrite_x):
    """`transform` (fft or ifft) along each of `axes`, the last first: the
    composition the N-dimensional results are, each axis's rows in one batch
    call."""
    for axis in reversed(axes):
        x = transform(x, None, axis, norm, overwrite_x)
        overwrite_x = True  # from the second axis on, x is our own
    return x


def fftn(x, s=None, axes=None, norm=None, overwrite_x=False):
    """N-dimensional complex forward DFT over `axes` (default all)."""
    x = np.asarray(x)
    lengths, axes = _lengths_and_axes(x, s, axes)
    x, copied = _fit(x, lengths, axes)
    return _along(fft, x, axes, norm, overwrite_x or copied)


def ifftn(x, s=None, axes=None, norm=None, overwrite_x=False):
    """N-dimensional complex inverse DFT over `axes`, by default divided by
    the product of their lengths."""
    x = np.asarray(x)
    lengths, axes = _lengths_and_axes(x, s, axes)
    x, copied = _fit(x, lengths, axes)
    return _along(ifft, x, axes, norm, overwrite_x or copied)


def rfftn(x, s=None, axes=None, norm=None, overwrite_x=False):
    """N-dimensional DFT of real input: the real DFT along the last of
    `axes` (its n//2 + 1 bins), then the complex one along the others."""
    x = np.asarray(x)
    lengths, axes = _lengths_and_axes(x, s, axes)
    x, _ = _fit(x, lengths, axes)
    return _along(fft, rfft(x, None, axes[-1], norm), axes[:-1], norm, True)


def irfftn(x, s=None, axes=None, norm=None, overwrite_x=False):
    """N-dimensional inverse of rfftn: the complex inverse along all of
    `axes` but the last, then the real inverse along the last, of s[-1]
    points (default 2*(m-1))."""
    x = np.asarray(x)
    lengths, axes = _lengths_and_axes(x, s, axes, real_inverse=True)
    out = lengths[-1]
    x, copied = _fit(x, lengths[:-1] + [out // 2 + 1], axes)
    return irfft(_along(ifft, x, axes[:-1], norm, overwrite_x or copied), out, axes[-1], norm)


def fft2(x, s=None, axes=(-2, -1), norm=None, overwrite_x=False):
    """Two-dimensional complex forward DFT: fftn over the last two axes."""
    return fftn(x, s, axes, norm, overwrite_x)


def ifft2(x, s=None, axes=(-2, -1), norm=None, overwrite_x=False):
    """Two-dimensional complex inverse DFT: ifftn over the last two axes."""
    return ifftn(x, s, axes, norm, overwrite_x)


def rfft2(x, s=None, axes=(-2, -1), norm=None, overwrite_x=False):
    """Two-dimensional DFT of real input: rfftn over the last two axes."""
    return rfftn(x, s, axes, norm, overwrite_x)


def irfft2(x, s=None, axes=(-2, -1), norm=None, overwrite_x=False):
    """Two-dimensional inverse of rfft2: irfftn over the last two axes."""
    return irfftn(x, s, axes, norm, overwrite_x)
