/* A float rounded from a double and widened again loses its rounding.

   GCC 12.2 at -O2 (its vectorizer on, at any -march): the two statement
   pairs below go into the lanes of one vector, and value numbering then
   takes (vector double)(vector float)x for x, as if the trip through float
   were exact.  The products come out of the unrounded sums.  Seen first in
   the float Pack and Perm kernels of 31 points under -mavx2, where the
   vectorizer found the same pattern profitable (at plain -O2 it did not).
   The kernels widen such a float through vtx::widen() (src/frame/simd.hpp),
   which the compiler cannot see through.

   cc -O2 narrow_widen.c && ./a.out     prints "ok", or the wrong products
                                        and exits 1 */
#include <stdio.h>

__attribute__((noinline)) static void scaled(const double* a, double* b)
{
    const float f0 = (float)(a[0] - a[2]), f1 = (float)(a[1] + a[3]);
    b[0] = (double)f0 * 3.0;
    b[1] = (double)f1 * 3.0;
}

int main(void)
{
    const double a[4] = {1 + 0x1p-40, 1 + 0x1p-40, 0, 0}; /* both round to 1.0f */
    double b[2];
    scaled(a, b);
    if (b[0] == 3.0 && b[1] == 3.0) {
        puts("ok");
        return 0;
    }
    printf("%a %a, not 0x1.8p+1 twice: the float rounding was dropped\n", b[0], b[1]);
    return 1;
}
