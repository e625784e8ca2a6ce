"""Power spectrum of a real signal with vtxgen, then the same through
scipy.fft with vtxgen as its backend.

Run with PYTHONPATH naming the built package (<build>/python).
"""

import numpy as np
import scipy.fft

import vtxgen

# 64 samples of two tones (bins 5 and 12) in a little noise, in float32.
n = 64
t = np.arange(n)
rng = np.random.default_rng(1)
signal = (np.sin(2 * np.pi * 5 * t / n) + 0.5 * np.cos(2 * np.pi * 12 * t / n)
          + 0.05 * rng.standard_normal(n)).astype(np.float32)

# The half spectrum, 33 complex64 bins: the library's CCS layout, with the
# ortho norm so that the power sums to the signal's energy (Parseval).
spectrum = vtxgen.rfft(signal, norm="ortho")
power = np.abs(spectrum) ** 2
power[1 : (n + 1) // 2] *= 2  # each inner bin stands for itself and its mirror
print(f"vtxgen {vtxgen.version()}: rfft of {n} {signal.dtype} samples -> {spectrum.dtype}")
print("strongest bins:", sorted(np.argsort(power)[-2:].tolist()))
print(f"energy {np.sum(signal.astype(np.float64) ** 2):.4f}, power sum {power.sum():.4f}")

# scipy.fft served by the library: the same bits.
with scipy.fft.set_backend(vtxgen.scipy_backend):
    same = scipy.fft.rfft(signal, norm="ortho")
print("scipy.fft.rfft with the vtxgen backend gives the same bits:",
      np.array_equal(same, spectrum))

assert sorted(np.argsort(power)[-2:].tolist()) == [5, 12]
assert np.array_equal(same, spectrum)
