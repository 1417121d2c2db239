// Complex arithmetic on pairs of doubles, real part first, and complex
// Lagrange interpolation.
#include <korvane/numeric.h>

void mathCompPlus(const double *a, const double *b, double *r) {
    r[0] = a[0] + b[0];
    r[1] = a[1] + b[1];
}

void mathCompMinus(const double *a, const double *b, double *r) {
    r[0] = a[0] - b[0];
    r[1] = a[1] - b[1];
}

void mathCompMult(const double *a, const double *b, double *r) {
    // Both parts from the inputs before r is written: r may alias either.
    const double re = a[0] * b[0] - a[1] * b[1];
    const double im = a[0] * b[1] + a[1] * b[0];
    r[0] = re;
    r[1] = im;
}

int mathCompDivi(const double *a, const double *b, double *r) {
    const double m = b[0] * b[0] + b[1] * b[1];
    if (m < 1e-20)
        return 0;
    // a conj(b) / |b|^2
    const double re = (a[0] * b[0] + a[1] * b[1]) / m;
    const double im = (a[1] * b[0] - a[0] * b[1]) / m;
    r[0] = re;
    r[1] = im;
    return 1;
}

int mathIntpComp(int n, const double *z, const double *w, const double *x, double *r) {
    r[0] = 0.0;
    r[1] = 0.0;
    for (int i = 0; i < n; ++i) {
        double L[2] = {1.0, 0.0};
        for (int j = 0; j < n; ++j) {
            if (j == i)
                continue;
            double num[2], den[2], q[2];
            mathCompMinus(x, z + 2 * j, num);
            mathCompMinus(z + 2 * i, z + 2 * j, den);
            if (!mathCompDivi(num, den, q))
                return 0; // coincident nodes; r holds the partial sum
            mathCompMult(L, q, L);
        }
        double term[2];
        mathCompMult(L, w + 2 * i, term);
        mathCompPlus(r, term, r);
    }
    return 1;
}
