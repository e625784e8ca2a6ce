/* Power spectrum of a real signal: 48 samples of two tones and a constant,
 * one forward real DFT into the CCS layout (bins 0 to 24 as re, im pairs),
 * |X[k]|^2 / N^2 per bin.  Checked against the DFT computed term by term in
 * long double; exits nonzero if a bin differs by more than 1e-12 of the
 * total power, or if the tones are not where they were put.
 *
 *   power_spectrum        prints bin, frequency (cycles per sample), power
 */
#include <math.h>
#include <stdio.h>

#include "vtxgen.h"

#define N 48

int main(void)
{
    const long double pi = 3.141592653589793238462643383279502884L;
    const double pi_d = 3.14159265358979323846;
    double x[N], spectrum[N + 2]; /* CCS: 2 (N/2) + 2 elements */
    for (int n = 0; n < N; ++n)
        x[n] = 0.25 + sin(2 * pi_d * 5 * n / N) + 0.5 * cos(2 * pi_d * 12 * n / N + 0.3);

    vtxStatus st = vtxgDFTFwd_RToCCS_48_64f(x, spectrum, vtxScaleNone);
    if (st != vtxStatusOk) {
        fprintf(stderr, "vtxgDFTFwd_RToCCS_48_64f returned %d\n", (int)st);
        return 1;
    }

    double power[N / 2 + 1], total = 0, worst = 0;
    long double reference[N / 2 + 1];
    for (int k = 0; k <= N / 2; ++k) {
        const double re = spectrum[2 * k], im = spectrum[2 * k + 1];
        power[k] = (re * re + im * im) / ((double)N * N);
        long double sr = 0, si = 0;
        for (int n = 0; n < N; ++n) {
            sr += x[n] * cosl(2 * pi * (long double)(n * k % N) / N);
            si -= x[n] * sinl(2 * pi * (long double)(n * k % N) / N);
        }
        reference[k] = (sr * sr + si * si) / ((long double)N * N);
        total += power[k];
    }
    for (int k = 0; k <= N / 2; ++k) {
        const double err = fabs((double)(power[k] - reference[k]));
        if (err > worst)
            worst = err;
        printf("%2d  %.4f  %.6e\n", k, (double)k / N, power[k]);
    }
    printf("largest difference from the long-double DFT: %.3e of total power %.6f\n", worst / total, total);

    /* Two tones and the constant: bins 0, 5 and 12 hold the power. */
    int peaks = 0;
    for (int k = 0; k <= N / 2; ++k)
        if (power[k] > 1e-6 * total)
            peaks += (k == 0 || k == 5 || k == 12) ? 1 : 100;
    if (worst > 1e-12 * total || peaks != 3) {
        fprintf(stderr, "power spectrum wrong (difference %.3e, peaks %d)\n", worst / total, peaks);
        return 1;
    }
    return 0;
}
