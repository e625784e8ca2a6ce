"""vtxgen.dask: the STFT and the block-wise 2-D transforms give the bits of
the in-memory computation, under Dask's local (threaded) scheduler and on a
distributed cluster whose worker has a smaller memory budget than the data."""

import hashlib

import dask
import dask.array as da
import numpy as np
import pytest
from distributed import Client, LocalCluster
from numpy.lib.stride_tricks import sliding_window_view

import vtxgen
import vtxgen.dask

rng = np.random.default_rng(5)


def signal(shape, dtype):
    x = rng.standard_normal(shape)
    if np.dtype(dtype).kind == "c":
        x = x + 1j * rng.standard_normal(shape)
    return x.astype(dtype)


def stft_in_memory(x, n, hop, window, norm):
    frames = sliding_window_view(x, n, axis=-1)[..., ::hop, :]
    return vtxgen.rfft(frames * window, norm=norm)


def blocks_one_by_one(x, block, kind, norm):
    """Each block through the package's 2-D function on its own."""
    b0, b1 = block
    w_in = b1 // 2 + 1 if kind == "irfft2" else b1
    rows = []
    for i in range(0, x.shape[-2], b0):
        row = [getattr(vtxgen, kind)(x[..., i:i + b0, j:j + w_in], s=(b0, b1), norm=norm)
               for j in range(0, x.shape[-1], w_in)]
        rows.append(np.concatenate(row, axis=-1))
    return np.concatenate(rows, axis=-2)


# (signal shape, chunks, n, hop, dtype, window, norm)
STFTS = [
    ((10000,), 1000, 64, 16, np.float64, None, None),
    ((3, 5000), (1, 700), 33, 11, np.float32, np.ones(33), "ortho"),
    ((4099,), 4099, 8, 8, np.float64, None, "forward"),
    ((1000,), 97, 64, 1, np.float32, None, None),
    ((2, 640), (2, 64), 2, 2, np.int16, None, None),
]


@pytest.mark.parametrize("shape, chunks, n, hop, dtype, window, norm", STFTS)
def test_stft_equals_the_frames_in_memory(shape, chunks, n, hop, dtype, window, norm):
    x = signal(shape, np.float64) * 100
    x = x.astype(dtype)
    y = vtxgen.dask.stft(da.from_array(x, chunks=chunks), n, hop, window, norm)
    real = np.float32 if dtype == np.float32 else np.float64
    w = vtxgen.dask.hann(n, real) if window is None else np.asarray(window, real)
    expected = stft_in_memory(x, n, hop, w, norm)
    assert y.shape == expected.shape and y.dtype == expected.dtype
    assert np.array_equal(y.compute(scheduler="threads"), expected)


# (image shape, chunks, block, kinds, dtype)
BLOCKS = [
    ((128, 96), (50, 40), (8, 8), ("fft2", "ifft2", "rfft2"), np.float32),
    ((128, 80), (64, 45), (8, 8), ("irfft2", "fft2"), np.complex64),
    ((2, 64, 60), (1, 64, 30), (16, 12), ("fft2", "ifft2"), np.complex128),
    ((90, 90), (90, 90), (45, 30), ("rfft2",), np.float64),
]


@pytest.mark.parametrize("shape, chunks, block, kinds, dtype", BLOCKS)
def test_blocks_equal_each_block_in_memory(shape, chunks, block, kinds, dtype):
    x = signal(shape, dtype)
    for kind in kinds:
        for norm in (None, "ortho"):
            y = vtxgen.dask.blockwise_fft2(da.from_array(x, chunks=chunks), block, kind, norm)
            expected = blocks_one_by_one(x, block, kind, norm)
            assert y.shape == expected.shape and y.dtype == expected.dtype, kind
            assert np.array_equal(y.compute(scheduler="threads"), expected), kind


@pytest.mark.parametrize("call, error", [
    (lambda: vtxgen.dask.stft(da.zeros(100), 65), ValueError),
    (lambda: vtxgen.dask.stft(da.zeros(100), 16, hop=17), ValueError),
    (lambda: vtxgen.dask.stft(da.zeros(10), 16), ValueError),
    (lambda: vtxgen.dask.stft(da.zeros(100, dtype=complex), 16), TypeError),
    (lambda: vtxgen.dask.stft(da.zeros(100), 16, window=np.ones(8)), ValueError),
    (lambda: vtxgen.dask.blockwise_fft2(da.zeros((16, 20)), (8, 8)), ValueError),
    (lambda: vtxgen.dask.blockwise_fft2(da.zeros((16, 16)), (8, 65)), ValueError),
    (lambda: vtxgen.dask.blockwise_fft2(da.zeros((16, 16)), (8, 8), "dct"), ValueError),
    (lambda: vtxgen.dask.blockwise_fft2(da.zeros((16, 16), dtype=complex), (8, 8), "rfft2"), TypeError),
])
def test_mistakes_raise_before_anything_runs(call, error):
    with pytest.raises(error):
        call()


# ---- Past the memory of a distributed worker ---------------------------------------

BUDGET = 16 * 2**20  # the worker's memory limit, in bytes


@pytest.fixture(scope="module")
def client():
    # The worker keeps its results under the budget by spilling them to disk
    # (the "target" fraction); the process-wide watermarks would count this
    # whole test process (the worker runs in it) and pause the worker.
    watermarks = {f"distributed.worker.memory.{w}": False for w in ("spill", "pause", "terminate")}
    with dask.config.set(watermarks), \
            LocalCluster(n_workers=1, threads_per_worker=2, processes=False, memory_limit=BUDGET,
                         dashboard_address=None) as cluster, Client(cluster) as client:
        yield client


def digests(y):
    """A hash of each chunk's bits, taken where the chunk is computed."""
    def digest(block):
        h = hashlib.blake2b(np.ascontiguousarray(block).tobytes(), digest_size=8).digest()
        return np.full((1,) * block.ndim, int.from_bytes(h, "little"), np.uint64)
    return y.map_blocks(digest, dtype=np.uint64, chunks=tuple((1,) * len(c) for c in y.chunks))


def digests_in_memory(y, chunks):
    bounds = [np.cumsum((0,) + c) for c in chunks]
    out = np.empty([len(c) for c in chunks], np.uint64)
    for index in np.ndindex(out.shape):
        part = y[tuple(slice(b[i], b[i + 1]) for b, i in zip(bounds, index))]
        h = hashlib.blake2b(np.ascontiguousarray(part).tobytes(), digest_size=8).digest()
        out[index] = int.from_bytes(h, "little")
    return out


def noise(i):
    """Values in [-0.5, 0.5) from the indices i (uint64), by integer hashing:
    the same bits from a NumPy and from a Dask array, chunk by chunk."""
    return ((i * 2654435761) % 2**32).astype(np.float64) / 2**32 - 0.5


# The tornado under Debian's distributed warns when the cluster starts.
@pytest.mark.filterwarnings("ignore:make_current is deprecated:DeprecationWarning")
@pytest.mark.parametrize("recipe", ["stft", "blocks"])
def test_distributed_past_the_worker_memory_gives_the_in_memory_bits(client, recipe):
    worker = next(iter(client.scheduler_info()["workers"].values()))
    assert worker["memory_limit"] == BUDGET
    if recipe == "stft":
        shape = (2**22,)  # 32 MiB of float64 samples
        x = noise(da.arange(shape[0], chunks=2**18, dtype=np.uint64))
        y = vtxgen.dask.stft(x, 64, hop=32)
        expected = stft_in_memory(noise(np.arange(shape[0], dtype=np.uint64)), 64, 32, vtxgen.dask.hann(64), None)
    else:
        shape = (2048, 2048)  # a 32 MiB image
        i = da.arange(2048 * 2048, chunks=256 * 2048, dtype=np.uint64).reshape(shape).rechunk((256, 512))
        x = noise(i)
        y = vtxgen.dask.blockwise_fft2(x, (8, 8), "rfft2")
        image = noise(np.arange(2048 * 2048, dtype=np.uint64)).reshape(shape)
        expected = vtxgen.rfft2(image.reshape(256, 8, 256, 8), axes=(1, 3)).reshape(2048, 256 * 5)
    assert x.nbytes >= 2 * BUDGET and y.nbytes >= 2 * BUDGET
    on_the_cluster = digests(y).compute()  # the client's default scheduler: the cluster
    assert np.array_equal(on_the_cluster, digests_in_memory(expected, y.chunks))
