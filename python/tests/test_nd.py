"""The N-dimensional transforms: bit for bit the one-dimensional functions
along each axis, SciPy's reading of s, axes, norm and dtypes (against its
default backend), and the scipy.fft backend serving exactly these calls."""

import numpy as np
import pytest
import scipy.fft

import vtxgen

rng = np.random.default_rng(27)
NORMS = [None, "backward", "ortho", "forward"]
ND = ["fft2", "ifft2", "rfft2", "irfft2", "fftn", "ifftn", "rfftn", "irfftn"]


def data(shape, dtype):
    x = rng.standard_normal(shape)
    if np.dtype(dtype).kind == "c":
        x = x + 1j * rng.standard_normal(shape)
    return x.astype(dtype)


def fit(x, lengths, axes):
    """x cut or zero-padded to lengths along axes (numpy's own pad)."""
    for n, a in zip(lengths, axes):
        x = np.take(x, range(min(n, x.shape[a])), axis=a)
        pad = [(0, 0)] * x.ndim
        pad[a] = (0, n - x.shape[a])
        x = np.pad(x, pad)
    return x


def composed(name, x, lengths, axes, norm):
    """The composition written out with the one-dimensional functions: the
    forward ones along the axes from the last (the real one first), the
    inverse real one with the real axis last."""
    kind = name.rstrip("2n")
    real_out = kind == "irfft"
    x = fit(x, lengths[:-1] + [lengths[-1] // 2 + 1 if real_out else lengths[-1]], axes)
    if kind == "rfft":
        x = vtxgen.rfft(x, axis=axes[-1], norm=norm)
    one = vtxgen.ifft if kind in ("ifft", "irfft") else vtxgen.fft
    for a in reversed(axes[:-1] if kind in ("rfft", "irfft") else axes):
        x = one(x, axis=a, norm=norm)
    if real_out:
        x = vtxgen.irfft(x, lengths[-1], axis=axes[-1], norm=norm)
    return x


# (shape, s, axes): every transformed length lands in 2..64.
CASES = [
    ((8, 8), None, None),
    ((64, 2), None, None),
    ((47, 59), None, None),
    ((3, 12, 5), None, None),
    ((4, 17, 9), None, (0, 2)),
    ((6, 7, 10), None, (-1, 0)),
    ((5, 6, 7), (9, 4), None),          # the last two axes, padded and cut
    ((5, 6, 7), (-1, 16), (0, 2)),      # -1 keeps the length
    ((2, 3, 4, 5), None, (1, 2, 3)),
    ((33, 64), (61, 40), (1, 0)),
    ((7, 30), None, (0,)),               # one axis: the one-dimensional function
]


def nd_cases():
    for name in ND:
        for shape, s, axes in CASES:
            if name.endswith("2") and len(axes or s or (-2, -1)) != 2:
                continue
            yield name, shape, s, axes


def oracle_lengths_and_axes(name, x, s, axes):
    """The lengths and axes scipy.fft's documentation gives, spelled out."""
    if axes is None:
        count = 2 if name.endswith("2") else len(s) if s else x.ndim
        axes = range(x.ndim - count, x.ndim)
    axes = [a % x.ndim for a in axes]
    if s is not None:
        return [x.shape[a] if n == -1 else n for n, a in zip(s, axes)], axes
    lengths = [x.shape[a] for a in axes]
    if name.startswith("irfft"):
        lengths[-1] = 2 * (lengths[-1] - 1)
    return lengths, axes


@pytest.mark.parametrize("name, shape, s, axes", nd_cases())
def test_bits_equal_the_composition_and_values_equal_scipy(name, shape, s, axes):
    kwargs = {} if axes is None else {"axes": axes}
    double = np.float64 if name.startswith("rfft") else np.complex128
    if name.startswith("irfft") and s is None:  # the shape of the output: its half spectrum in
        real_axis = (axes[-1] if axes else -1) % len(shape)
        shape = tuple(m // 2 + 1 if a == real_axis else m for a, m in enumerate(shape))
    for dtype in (double, {np.float64: np.float32, np.complex128: np.complex64}[double]):
        x = data(shape, dtype)
        lengths, axes_ = oracle_lengths_and_axes(name, x, s, axes)
        for norm in NORMS:
            ours = getattr(vtxgen, name)(x, s=s, norm=norm, **kwargs)
            theirs = getattr(scipy.fft, name)(x, s=s, norm=norm, **kwargs)
            what = f"{name} {norm} {np.dtype(dtype)}"
            assert ours.dtype == theirs.dtype and ours.shape == theirs.shape, what
            tol = 40 * np.finfo(ours.dtype).eps * np.linalg.norm(theirs)
            assert np.linalg.norm(ours - theirs) <= tol, what
            assert np.array_equal(ours, composed(name, x, lengths, axes_, norm)), what


@pytest.mark.parametrize("dtype", [np.float16, np.int16, np.bool_, np.float32, np.dtype(">f8"), np.dtype(">c8")])
def test_dtypes_are_promoted_as_scipy_promotes_them(dtype):
    x = (rng.standard_normal((6, 10)) * 4).astype(dtype)
    names = ["fft", "ifft2", "fftn", "irfft", "irfftn"]
    if np.dtype(dtype).kind != "c":
        names += ["rfft", "rfft2"]
    for name in names:
        theirs = getattr(scipy.fft, name)(x)
        ours = getattr(vtxgen, name)(x)
        assert ours.dtype == theirs.dtype, name
        assert np.allclose(ours, theirs, rtol=0, atol=1e-5 * np.abs(theirs).max()), name
        with scipy.fft.set_backend(vtxgen.scipy_backend, only=True):
            assert np.array_equal(getattr(scipy.fft, name)(x), ours), name


def test_overwrite_x_keeps_the_bits_and_the_input_otherwise():
    x = data((16, 12), np.complex128)
    before = x.copy()
    expected = vtxgen.fft2(x)
    assert np.array_equal(x, before)
    y = x.copy()
    assert np.array_equal(vtxgen.fft2(y, overwrite_x=True), expected)
    assert np.array_equal(vtxgen.irfft2(x), vtxgen.irfft2(x, overwrite_x=True))
    assert np.array_equal(x, before)  # irfft2 never writes its input, whatever overwrite_x


@pytest.mark.parametrize("call, error", [
    (lambda: vtxgen.fftn(np.ones((4, 4)), axes=(0, 0)), ValueError),
    (lambda: vtxgen.fftn(np.ones((4, 4)), axes=(2,)), ValueError),
    (lambda: vtxgen.fftn(np.ones((4, 4)), s=(4, 4, 4)), ValueError),
    (lambda: vtxgen.fftn(np.ones((4, 4)), s=(4,), axes=(0, 1)), ValueError),
    (lambda: vtxgen.fftn(np.ones((4, 4)), s=(0, 4)), ValueError),
    (lambda: vtxgen.rfftn(np.ones((4, 4)), axes=()), ValueError),
    (lambda: vtxgen.rfft2(np.ones((4, 4), complex)), TypeError),
    (lambda: vtxgen.fft2(np.ones((4, 65))), vtxgen.VtxError),
    (lambda: vtxgen.irfft2(np.ones((4, 3)), s=(4, 65)), vtxgen.VtxError),
    (lambda: vtxgen.fft2(np.ones((4, 4), np.longdouble)), TypeError),
])
def test_mistakes_raise(call, error):
    with pytest.raises(error):
        call()


# ---- The scipy.fft backend ---------------------------------------------------------

@pytest.mark.parametrize("name", ND)
def test_backend_serves_the_package_bits(name):
    x = data((12, 5, 16), np.float32 if name.startswith("rfft") else np.complex64)
    calls = [dict(), dict(norm="ortho"), dict(axes=(0, 2)), dict(s=(9, 20), axes=(2, 0), norm="forward"),
             dict(workers=2), dict(workers=-1), dict(overwrite_x=True)]
    for kwargs in calls:
        # only=True: a call handed back would raise.
        with scipy.fft.set_backend(vtxgen.scipy_backend, only=True):
            served = getattr(scipy.fft, name)(x.copy(), **kwargs)
        kwargs.pop("workers", None)
        assert np.array_equal(served, getattr(vtxgen, name)(x.copy(), **kwargs)), kwargs


@pytest.mark.parametrize("call", [
    lambda: scipy.fft.fft2(np.ones((8, 65))),
    lambda: scipy.fft.fftn(np.ones((8, 1, 4))),
    lambda: scipy.fft.irfftn(np.ones((8, 40), complex)),          # 78 real points
    lambda: scipy.fft.rfft2(np.ones((8, 8), complex)),
    lambda: scipy.fft.fftn(np.ones((8, 8), np.longdouble)),
    lambda: scipy.fft.fftn(np.ones((8, 0))),
    lambda: scipy.fft.fftn(np.ones((8, 8)), axes=(0, 0)),
    lambda: scipy.fft.fftn(np.ones((8, 8)), axes=()),
    lambda: scipy.fft.fft2(np.ones((8, 8)), workers=0),
    lambda: scipy.fft.fft2(np.ones((8, 8)), plan=object()),
    lambda: scipy.fft.hfft2(np.ones((8, 8), complex)),
    lambda: scipy.fft.dctn(np.ones((8, 8)), 4),
])
def test_backend_hands_back_what_it_lacks(call):
    with scipy.fft.set_backend(vtxgen.scipy_backend, only=True):
        with pytest.raises(Exception) as raised:
            call()
    assert type(raised.value).__name__ == "BackendNotImplementedError"
