/* A C99 program using vtxgen: an 8-point forward DFT and the version record.
 * Exits nonzero if the call fails or the DC bin is not the sum of the input. */
#include <stdio.h>

#include "vtxgen.h"

int main(void)
{
    vtx32fc x[8], y[8];
    float sum_re = 0.0f, sum_im = 0.0f;
    const VersionRecord *ver = vtxgenGetLibVersion();
    vtxStatus status;
    int n;

    /* Small integers: every sum below is exact in float. */
    for (n = 0; n < 8; ++n) {
        x[n].re = (float)(n + 1);
        x[n].im = (float)(n % 3) - 1.0f;
        sum_re += x[n].re;
        sum_im += x[n].im;
    }

    status = vtxgDFTFwd_CToC_8_32fc(x, y, vtxScaleNone);

    printf("%s %s (%s)\n", ver->libraryName, ver->versionText, ver->buildDate);
    if (status != vtxStatusOk) {
        fprintf(stderr, "vtxgDFTFwd_CToC_8_32fc returned %d\n", (int)status);
        return 1;
    }
    for (n = 0; n < 8; ++n)
        printf("y[%d] = %g %+gi\n", n, y[n].re, y[n].im);
    if (y[0].re != sum_re || y[0].im != sum_im) {
        fprintf(stderr, "DC bin is %g %+gi, expected %g %+gi\n", y[0].re, y[0].im, sum_re, sum_im);
        return 1;
    }
    return 0;
}
