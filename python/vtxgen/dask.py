"""The kernels over Dask arrays: transforms of data larger than memory.

    import vtxgen.dask
    frames = vtxgen.dask.stft(signal, 64, hop=16)            # lazy Dask arrays
    tiles = vtxgen.dask.blockwise_fft2(image, (8, 8))

Each chunk is transformed where it lies, with the package's functions, so a
worker holds a few chunks at a time however long the signal or large the
image, and the scheduler (Dask's threads, or a distributed cluster) runs the
chunks in parallel: the extension lets go of the interpreter lock while its
kernels run. The results are lazy: reduce them (`.sum()`, `.max()`), store
them (`dask.array.store`, `to_zarr`) or `.compute()` them when they fit.

Every value is the one the in-memory computation gives, bit for bit: a frame
or a block is computed by the same calls whichever chunk it falls in.

    stft            frames of n points (2 to 64) every `hop` samples along
                    the last axis, windowed, through rfft (map_overlap)
    blockwise_fft2  fft2, ifft2, rfft2 or irfft2 of every block of the last
                    two axes, as in a block codec (map_blocks)
"""

import dask.array as da
import numpy as np

import vtxgen


def _precision_dtypes(dtype):
    """The real and the complex dtype of the kernels that run data of dtype."""
    single = vtxgen._precision(dtype) == 32
    return (np.dtype(np.float32), np.dtype(np.complex64)) if single else \
        (np.dtype(np.float64), np.dtype(np.complex128))


def hann(n, dtype=np.float64):
    """The periodic Hann window of n points, 0.5 - 0.5 cos(2 pi j / n)."""
    return (0.5 - 0.5 * np.cos(2 * np.pi * np.arange(n) / n)).astype(dtype)


def stft_frames(x, n, hop, window, norm=None):
    """In memory: the rfft of every windowed frame x[..., k*hop : k*hop + n],
    as an array (..., frames, n//2 + 1)."""
    frames = np.lib.stride_tricks.sliding_window_view(x, n, axis=-1)[..., ::hop, :]
    return vtxgen.rfft(frames * window, norm=norm)


def _aligned_chunks(chunks, step, least):
    """Chunk sizes along one axis, each a multiple of `step` and at least
    `least` (but the last), near the sizes given."""
    total = sum(chunks)
    size = max(least, max(chunks) // step * step, step)
    size = -(-size // step) * step
    sizes = [size] * (total // size)
    if total % size:
        sizes.append(total % size)
        if len(sizes) > 1 and sizes[-1] < least:  # too short to be a neighbour's overlap
            last = sizes.pop()
            sizes[-1] += last
    return tuple(sizes)


def stft(x, n, hop=None, window=None, norm=None):
    """Short-time Fourier transform along the last axis of `x` (a Dask array,
    or anything da.asarray takes): frames of n points (2 to 64) every `hop`
    samples (default n//2), the first at 0, as many as fit; each multiplied
    by `window` (default the periodic Hann window, in x's real precision) and
    transformed by vtxgen.rfft with `norm`. The result is a lazy array
    (..., frames, n//2 + 1), chunked along the frames as x is along time.

    The time axis is rechunked to multiples of `hop` of at least n points;
    each chunk borrows the n - hop samples its last frames need from the
    next one (map_overlap), so no chunk holds more than its own share."""
    x = da.asarray(x)
    hop = n // 2 if hop is None else int(hop)
    if not 2 <= n <= 64 or not 1 <= hop <= n:
        raise ValueError(f"need 2 <= n <= 64 and 1 <= hop <= n, not n={n}, hop={hop}")
    if x.ndim == 0 or x.shape[-1] < n:
        raise ValueError(f"the last axis holds fewer than n={n} samples")
    if np.iscomplexobj(np.empty(0, x.dtype)):
        raise TypeError("x must be real")
    real, cplx = _precision_dtypes(x.dtype)
    window = hann(n, real) if window is None else np.asarray(window, real)
    if window.shape != (n,):
        raise ValueError(f"the window must hold n={n} values")

    axis = x.ndim - 1
    x = x.rechunk({axis: _aligned_chunks(x.chunks[axis], hop, n)})
    total = (x.shape[-1] - n) // hop + 1
    starts = np.cumsum((0,) + x.chunks[axis])  # every start a multiple of hop
    counts = tuple(int(min(total, -(-b // hop)) - min(total, a // hop)) for a, b in zip(starts[:-1], starts[1:]))
    overlap = n - hop

    def frames(block, block_info=None):
        i = block_info[None]["chunk-location"][axis]
        left = overlap if i > 0 else 0  # the samples borrowed from the chunk before
        inner = block[..., left:]
        return stft_frames(inner, n, hop, window, norm)[..., : counts[i], :]

    bins = n // 2 + 1
    out = da.map_overlap(
        frames, x, depth={axis: overlap}, boundary="none", trim=False, new_axis=x.ndim,
        chunks=x.chunks[:-1] + (counts, (bins,)), dtype=cplx, meta=np.empty((0,) * (x.ndim + 1), cplx))
    return out


_KINDS = {"fft2": vtxgen.fft2, "ifft2": vtxgen.ifft2, "rfft2": vtxgen.rfft2, "irfft2": vtxgen.irfft2}


def _block_width(kind, b):
    """The last block axis of the input and of the output for a block b wide."""
    half = b // 2 + 1
    return {"rfft2": (b, half), "irfft2": (half, b)}.get(kind, (b, b))


def blocks_in_memory(x, block, kind="fft2", norm=None):
    """In memory: `kind` (fft2, ifft2, rfft2, irfft2) of every block of the
    last two axes of x, a block being block[0] by block[1] real-space points
    (for irfft2 the input blocks are block[0] by block[1]//2 + 1 bins)."""
    b0, b1 = block
    w_in, w_out = _block_width(kind, b1)
    *outer, h, w = x.shape
    tiles = x.reshape(*outer, h // b0, b0, w // w_in, w_in)
    y = _KINDS[kind](tiles, s=(b0, b1), axes=(-3, -1), norm=norm)
    return y.reshape(*outer, h, w // w_in * w_out)


def blockwise_fft2(x, block=(8, 8), kind="fft2", norm=None):
    """`kind` ("fft2", "ifft2", "rfft2" or "irfft2") of every block of the
    last two axes of `x` (a Dask array or anything da.asarray takes),
    independently, as a block codec transforms its tiles: a lazy array of
    the same shape (rfft2: each block's last axis becomes block[1]//2 + 1
    bins; irfft2 reads blocks of block[0] by block[1]//2 + 1 bins and writes
    block[0] by block[1] points). Both block sides 2 to 64; the last two
    axes must hold whole blocks. Chunks are rounded to whole blocks and
    transformed one by one (map_blocks)."""
    if kind not in _KINDS:
        raise ValueError(f"kind must be one of {tuple(_KINDS)}, not {kind!r}")
    x = da.asarray(x)
    b0, b1 = (int(b) for b in block)
    if not (2 <= b0 <= 64 and 2 <= b1 <= 64):
        raise ValueError(f"block sides must be 2 to 64, not {block}")
    w_in, w_out = _block_width(kind, b1)
    if x.ndim < 2 or x.shape[-2] % b0 or x.shape[-1] % w_in:
        raise ValueError(f"the last two axes {x.shape[-2:]} do not hold whole blocks of {b0} x {w_in}")
    rows, cols = x.ndim - 2, x.ndim - 1
    x = x.rechunk({rows: _aligned_chunks(x.chunks[rows], b0, b0),
                   cols: _aligned_chunks(x.chunks[cols], w_in, w_in)})
    if kind == "rfft2" and np.iscomplexobj(np.empty(0, x.dtype)):
        raise TypeError("x must be real")
    real, cplx = _precision_dtypes(x.dtype)
    dtype = real if kind == "irfft2" else cplx
    return x.map_blocks(blocks_in_memory, (b0, b1), kind, norm, dtype=dtype,
                        chunks=x.chunks[:-1] + (tuple(c // w_in * w_out for c in x.chunks[cols]),),
                        meta=np.empty((0,) * x.ndim, dtype))
