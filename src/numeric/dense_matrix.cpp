// Dense row-major matrices: products, transposition, fixed-size determinants,
// elementary row operations, Gaussian elimination with complete pivoting, the
// Greville generalised inverse and the inverse by row transformations.
#include <korvane/numeric.h>

#include <cmath>
#include <new>

double mathCalDeterm22(double a, double b, double c, double d) {
    return a * d - b * c;
}

double mathCalDeterm33(double a, double b, double c, double d, double e, double f, double g,
                       double h, double i) {
    // This order of the six terms is part of the result.
    return b * f * g + c * d * h + a * e * i - c * e * g - a * f * h - b * d * i;
}

void mathMatxMult(const double *a, const double *b, double *c, int l, int m, int n) {
    for (int i = 0; i < l; ++i) {
        for (int j = 0; j < n; ++j) {
            double *cij = c + i * n + j;
            *cij = 0.0;
            for (int k = 0; k < m; ++k)
                *cij += a[i * m + k] * b[k * n + j];
        }
    }
}

void mathMatxTrans(int r, int c, const double *a, double *t) {
    for (int i = 0; i < r; ++i) {
        for (int j = 0; j < c; ++j)
            t[j * r + i] = a[i * c + j];
    }
}

void mathUnitMatx(int n, double *m) {
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j)
            m[i * n + j] = i == j ? 1.0 : 0.0;
    }
}

void mathMatxScalar(int r, int c, const double *a, double f, double *out) {
    // Dimensions below 1 give empty loops, two negative ones included.
    if (r < 1 || c < 1)
        return;
    const int count = r * c;
    for (int i = 0; i < count; ++i)
        out[i] = f * a[i];
}

void mathMatxPlus(int r, int c, const double *a, const double *b, double *out) {
    if (r < 1 || c < 1)
        return;
    const int count = r * c;
    for (int i = 0; i < count; ++i)
        out[i] = a[i] + b[i];
}

void mathMatxMinus(int r, int c, const double *a, const double *b, double *out) {
    if (r < 1 || c < 1)
        return;
    const int count = r * c;
    for (int i = 0; i < count; ++i)
        out[i] = a[i] - b[i];
}

void mathMatxCopy(const double *a, double *out, int r, int c) {
    if (r < 1 || c < 1)
        return;
    const int count = r * c;
    for (int i = 0; i < count; ++i)
        out[i] = a[i];
}

void mathElemnTrans_2(int n, const double *a, double *b, double f) {
    for (int j = 0; j < n; ++j)
        b[j] += f * a[j];
}

void mathElemnTrans_3(int n, double *a, double *b) {
    for (int j = 0; j < n; ++j) {
        const double t = a[j];
        a[j] = b[j];
        b[j] = t;
    }
}

void mathElemnTrans_4(int n, int i, double *m, double f) {
    if (std::fabs(1.0 - f) < 1e-20)
        return;
    double *row = m + i * n;
    for (int j = 0; j < n; ++j)
        row[j] *= f;
}

void mathElemnTrans_5(int n, int i, int j, double *m, double f) {
    const double *src = m + i * n;
    double *dst = m + j * n;
    for (int k = 0; k < n; ++k)
        dst[k] += f * src[k];
}

void mathElemnTrans_6(int n, int i, int j, double *m) {
    if (i == j)
        return;
    mathElemnTrans_3(n, m + i * n, m + j * n);
}

int mathGaussEliminate(double *a, double *b, int n) {
    if (n < 1)
        return 0;
    int *cols = new (std::nothrow) int[n + 1];
    if (!cols)
        return 0;
    for (int k = 0; k < n - 1; ++k) {
        // Strictly greater: the first largest element in row-major order wins.
        double best = 0.0;
        int pr = k;
        int pc = k;
        for (int i = k; i < n; ++i) {
            for (int j = k; j < n; ++j) {
                const double v = std::fabs(a[i * n + j]);
                if (v > best) {
                    best = v;
                    pr = i;
                    pc = j;
                }
            }
        }
        cols[k] = pc;
        // The rank test is the precision of the arithmetic, not a tolerance.
        if (1.0 + best == 1.0) {
            delete[] cols;
            return 0;
        }
        if (pc != k) {
            for (int i = 0; i < n; ++i) {
                const double t = a[i * n + k];
                a[i * n + k] = a[i * n + pc];
                a[i * n + pc] = t;
            }
        }
        if (pr != k) {
            for (int j = k; j < n; ++j) {
                const double t = a[k * n + j];
                a[k * n + j] = a[pr * n + j];
                a[pr * n + j] = t;
            }
            const double t = b[k];
            b[k] = b[pr];
            b[pr] = t;
        }
        double *rowk = a + k * n;
        const double p = rowk[k];
        const double inv = 1.0 / p;
        for (int j = k + 1; j < n; ++j)
            rowk[j] *= inv;
        b[k] = b[k] / p; // a true division here, unlike the row
        for (int i = k + 1; i < n; ++i) {
            double *rowi = a + i * n;
            const double f = rowi[k];
            for (int j = k + 1; j < n; ++j)
                rowi[j] -= rowk[j] * f;
            b[i] -= f * b[k];
        }
    }
    const double last = a[(n - 1) * n + (n - 1)];
    if (1.0 + std::fabs(last) == 1.0) {
        delete[] cols;
        return 0;
    }
    b[n - 1] = b[n - 1] / last;
    // Every pivot but the last is one after the row scaling.
    for (int i = n - 2; i >= 0; --i) {
        const double *rowi = a + i * n;
        double sum = 0.0;
        for (int j = i + 1; j < n; ++j)
            sum += rowi[j] * b[j];
        b[i] -= sum;
    }
    // Undo the column exchanges, last first.
    cols[n - 1] = n - 1;
    for (int k = n - 1; k >= 0; --k) {
        if (cols[k] != k) {
            const double t = b[k];
            b[k] = b[cols[k]];
            b[cols[k]] = t;
        }
    }
    delete[] cols;
    return 1;
}

int mathSolLineEqua(int n, const double *a, const double *b, double *x) {
    double *block = new (std::nothrow) double[n * n + 1];
    if (!block)
        return -1;
    mathMatxCopy(a, block, n, n);
    for (int i = 0; i < n; ++i)
        x[i] = b[i];
    int result = 0;
    if (mathGaussEliminate(block, x, n) == 1) {
        result = 1;
    } else if (mathMatxInvs(n, n, a, block) == 1) {
        // Singular: the generalised inverse gives the minimum-norm
        // least-squares answer.
        mathMatxMult(block, b, x, n, n, 1);
        result = 1;
    }
    delete[] block;
    return result;
}

int mathMatxInvs(int r, int c, const double *a, double *g) {
    if (r < 1 || c < 1)
        return 1;
    double *d = new (std::nothrow) double[c + 1];
    double *t = new (std::nothrow) double[r * c + 1];
    if (!d || !t) {
        delete[] d;
        delete[] t;
        return 0;
    }
    // Row k of t is column k of a, so every column is contiguous.
    mathMatxTrans(r, c, a, t);

    double s = 0.0;
    for (int i = 0; i < r; ++i)
        s += t[i] * t[i];
    for (int i = 0; i < r; ++i)
        g[i] = s > 1e-20 ? t[i] / s : 0.0;

    // Greville: add column k to the inverse of the columns before it.
    for (int k = 1; k < c; ++k) {
        const double *ak = t + k * r;
        double *w = g + k * r;
        for (int j = 0; j < k; ++j) {
            const double *gj = g + j * r;
            double dj = 0.0;
            for (int i = 0; i < r; ++i)
                dj += gj[i] * ak[i];
            d[j] = dj;
        }
        // w = ak - (its projection on the span so far).
        for (int i = 0; i < r; ++i)
            w[i] = 0.0;
        for (int j = 0; j < k; ++j) {
            const double *tj = t + j * r;
            for (int i = 0; i < r; ++i)
                w[i] += d[j] * tj[i];
        }
        for (int i = 0; i < r; ++i)
            w[i] = ak[i] - w[i];
        s = 0.0;
        for (int i = 0; i < r; ++i)
            s += w[i] * w[i];
        if (s < 1e-20) {
            // Dependent column: w = d^T G over 1 + d . d.
            double dd = 0.0;
            for (int j = 0; j < k; ++j)
                dd += d[j] * d[j];
            s = dd + 1.0;
            for (int i = 0; i < r; ++i)
                w[i] = 0.0;
            for (int j = 0; j < k; ++j) {
                const double *gj = g + j * r;
                for (int i = 0; i < r; ++i)
                    w[i] += d[j] * gj[i];
            }
        }
        const double inv = 1.0 / s;
        for (int i = 0; i < r; ++i)
            w[i] *= inv;
        for (int j = 0; j < k; ++j) {
            double *gj = g + j * r;
            for (int i = 0; i < r; ++i)
                gj[i] -= d[j] * w[i];
        }
    }
    delete[] d;
    delete[] t;
    return 1;
}

int mathMatxInvsByET(int n, double *a, double *inv) {
    mathUnitMatx(n, inv);
    for (int k = 0; k < n; ++k) {
        // The first usable row, not the largest entry.
        int p = k;
        while (p < n && !(std::fabs(a[p * n + k]) > 1e-20))
            ++p;
        if (p == n)
            return 0;
        mathElemnTrans_6(n, k, p, a);
        mathElemnTrans_6(n, k, p, inv);
        for (int i = k + 1; i < n; ++i) {
            if (std::fabs(a[i * n + k]) > 1e-20) {
                const double f = -a[i * n + k] / a[k * n + k];
                mathElemnTrans_5(n, k, i, a, f);
                mathElemnTrans_5(n, k, i, inv, f);
            }
        }
    }
    // Back substitution by columns; a is only read from here on.
    for (int k = n - 1; k >= 0; --k) {
        const double p = a[k * n + k];
        if (std::fabs(p) < 1e-20)
            return 0;
        mathElemnTrans_4(n, k, inv, 1.0 / p);
        for (int i = k - 1; i >= 0; --i)
            mathElemnTrans_5(n, k, i, inv, -a[i * n + k]);
    }
    return 1;
}
