// Products, derivatives and integrals of ascending coefficient arrays.
#include <korvane/numeric.h>

void mathPolyMult(int n, int m, const double *a, const double *b, double *r) {
    if (n + m < 0 || n < 0)
        return;
    for (int i = 0; i <= n + m; ++i)
        r[i] = 0.0;
    for (int i = 0; i <= n; ++i) {
        for (int j = 0; j <= m; ++j)
            r[i + j] += a[i] * b[j];
    }
}

void mathPolyDeri(int k, int n, const double *a, double *r) {
    if (k > n) {
        r[0] = 0.0;
        return;
    }
    // Every pass reads a: the passes chain only when r is a itself. Ascending
    // i reads a[i] before the pass overwrites it.
    for (int pass = 0; pass < k; ++pass) {
        const int limit = n - pass;
        for (int i = 1; i <= limit; ++i)
            r[i - 1] = i * a[i];
    }
}

double mathPolyIntg(int n, double lo, double hi, const double *c) {
    if (hi - lo < 1e-10)
        return 0.0;
    double sum = 0.0;
    double ph = hi;
    double pl = lo;
    for (int i = 0; i <= n; ++i) {
        sum += c[i] * (ph - pl) / (i + 1);
        ph *= hi;
        pl *= lo;
    }
    return sum;
}

namespace {

// Coefficients of the derivative of c[0..deg]; degree 0 gives the single 0.
int derivative(int deg, const double *c, double *out) {
    if (deg < 1) {
        out[0] = 0.0;
        return 0;
    }
    for (int i = 1; i <= deg; ++i)
        out[i - 1] = i * c[i];
    return deg - 1;
}

} // namespace

void mathIntgPolyMult(int n, const double *p, const double *q, double lo, double hi, double *r) {
    if (n > 6)
        return;
    double prod[11] = {};
    double dp[6] = {};
    double dq[6] = {};
    double d2p[6] = {};
    double d2q[6] = {};

    mathPolyMult(n - 1, n - 1, p, q, prod);
    r[0] = mathPolyIntg(2 * n - 2, lo, hi, prod);

    const int d1 = derivative(n - 1, p, dp);
    derivative(n - 1, q, dq);
    mathPolyMult(d1, d1, dp, dq, prod);
    r[1] = mathPolyIntg(2 * n - 4, lo, hi, prod);

    if (n > 2) {
        const int d2 = derivative(d1, dp, d2p);
        derivative(d1, dq, d2q);
        mathPolyMult(d2, d2, d2p, d2q, prod);
        r[2] = mathPolyIntg(2 * n - 6, lo, hi, prod);
    }
}
