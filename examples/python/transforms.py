"""Three uses of vtxgen from Python, each checked against a direct sum:
a fast circular convolution, one MDCT frame built on the DCT-IV, and a
randomized Hadamard rotation.

Run with PYTHONPATH naming the built package (<build>/python).
"""

import numpy as np

import vtxgen

rng = np.random.default_rng(5)

# Circular convolution of 48 points: forward transforms, a product, the
# inverse (which divides by 48).
a, b = rng.standard_normal(48), rng.standard_normal(48)
fast = vtxgen.ifft(vtxgen.fft(a) * vtxgen.fft(b)).real
direct = np.array([sum(a[j] * b[(k - j) % 48] for j in range(48)) for k in range(48)])
print(f"convolution of 48 points: largest difference {np.max(np.abs(fast - direct)):.1e}")
assert np.allclose(fast, direct, atol=1e-12)

# One MDCT frame: 2N windowed samples to N coefficients,
#   X[k] = sum_n x[n] cos(pi/N (n + 1/2 + N/2)(k + 1/2)),
# is the DCT-IV of the frame folded to N values: with x = [p, q, r, s] in
# quarters, the DCT-IV of [-r' - s, p - q'] (' reversed).
N = 256
window = np.sin(np.pi * (np.arange(2 * N) + 0.5) / (2 * N)).astype(np.float32)
frame = window * rng.standard_normal(2 * N).astype(np.float32)
p, q, r, s = np.split(frame, 4)
coefficients = vtxgen.dct4(np.concatenate([-r[::-1] - s, p - q[::-1]]))
n, k = np.arange(2 * N), np.arange(N)
direct = np.cos(np.pi / N * np.outer(k + 0.5, n + 0.5 + N / 2)) @ frame.astype(np.float64)
print(f"MDCT frame of {2 * N} float32 samples: relative error "
      f"{np.linalg.norm(coefficients - direct) / np.linalg.norm(direct):.1e}")
assert coefficients.dtype == np.float32
assert np.linalg.norm(coefficients - direct) < 1e-5 * np.linalg.norm(direct)

# A randomized Hadamard rotation of 1024 values: random signs, then the
# orthonormal transform; it keeps the length and undoes itself in reverse.
x = rng.standard_normal(1024)
signs = rng.choice([-1.0, 1.0], size=1024)
rotated = vtxgen.wht(signs * x, norm="ortho")
back = signs * vtxgen.wht(rotated, norm="ortho")
print(f"Hadamard rotation of 1024 values: length {np.linalg.norm(x):.6f} -> "
      f"{np.linalg.norm(rotated):.6f}, round trip error {np.max(np.abs(back - x)):.1e}")
assert np.isclose(np.linalg.norm(rotated), np.linalg.norm(x))
assert np.allclose(back, x, atol=1e-12)
