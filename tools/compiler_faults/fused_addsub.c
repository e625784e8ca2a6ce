/* A multiplication fused into an addition under -ffp-contract=off.

   GCC 12.2 with FMA instructions available (-mfma, -march=haswell or later,
   -march=native here, and -mavx512f even with -mno-fma): where its
   vectorizer joins a sum and a difference of products in the lanes of one
   vector (an add/sub pair, as in a rotation or a complex product), it emits
   vfmaddsub or vfmsubadd, which round once where two roundings were
   written.  Neither -fno-tree-slp-vectorize nor -fno-tree-loop-vectorize
   alone prevents it (each vectorizer does it); -fno-tree-vectorize does.
   Seen first in the double DCT-IV of length 2, and in the float Pack and
   Perm kernels of 11 points.  The build compiles this file with the
   library's flags (cmake/arith.cmake): if an FMA instruction comes out, the
   library is built with -fno-tree-vectorize.

   cc -O2 -mfma -ffp-contract=off fused_addsub.c && ./a.out   (or c++ -x c++)
                      prints "ok", or the first fused result and exits 1 */
#include <stdio.h>

/* One output pair of a rotation: the length-2 DCT-IV has this form. */
__attribute__((noinline)) void rotation(const double* x, double* y, double c, double s)
{
    const double x0 = x[0], x1 = x[1];
    y[0] = c * x0 + s * x1;
    y[1] = s * x0 - c * x1;
}

/* Complex products over an array, the loop vectorizer's case. */
__attribute__((noinline)) void products(const double* __restrict a, double* __restrict y, double c, double d, int n)
{
    for (int i = 0; i < n; ++i) {
        y[2 * i] = a[2 * i] * c - a[2 * i + 1] * d;
        y[2 * i + 1] = a[2 * i] * d + a[2 * i + 1] * c;
    }
}

int main(void)
{
    enum { n = 64 };
    volatile double c = 0.1, s = 0.7; /* not constants: each product rounds here */
    double x[2 * n], y[2 * n], r[2];
    unsigned long long state = 1;
    for (int i = 0; i < 2 * n; ++i) {
        state = state * 6364136223846793005ull + 1442695040888963407ull;
        x[i] = (double)(state >> 11) / 9007199254740992.0;
    }
    products(x, y, c, s, n);
    for (int i = 0; i < n; ++i) {
        const double* a = x + 2 * i;
        rotation(a, r, c, s);
        const double p = a[0] * c, q = a[1] * s, u = a[0] * s, v = a[1] * c;
        if (y[2 * i] != p - q || y[2 * i + 1] != u + v || r[0] != p + q || r[1] != u - v) {
            printf("x = %a, %a: fused (products %a %a, rotation %a %a)\n", a[0], a[1], y[2 * i], y[2 * i + 1], r[0],
                   r[1]);
            return 1;
        }
    }
    puts("ok");
    return 0;
}
