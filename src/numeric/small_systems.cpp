// Linear systems of two and three unknowns by formula, the decomposition of a
// vector on a basis and small least-squares problems.
#include <korvane/numeric.h>

#include <cmath>
#include <new>

#include "kernel/vector_ops.h"

using namespace korvane;

int mathSolLineEqua22(double a, double b, double c, double d, double e, double f, double tol,
                      double *x, double *y) {
    const double det = mathCalDeterm22(a, b, c, d);
    if (std::fabs(det) < tol)
        return 0;
    const double inv = 1.0 / det;
    *x = (d * e - b * f) * inv;
    *y = (a * f - c * e) * inv;
    return 1;
}

int mathSolLineEqua33(double a00, double a01, double a02, double a10, double a11, double a12,
                      double a20, double a21, double a22, double b0, double b1, double b2,
                      double tol, double *x, double *y, double *z) {
    const double det = mathCalDeterm33(a00, a01, a02, a10, a11, a12, a20, a21, a22);
    if (std::fabs(det) < tol)
        return 0;
    const double inv = 1.0 / det;
    *x = mathCalDeterm33(b0, a01, a02, b1, a11, a12, b2, a21, a22) * inv;
    *y = mathCalDeterm33(a00, b0, a02, a10, b1, a12, a20, b2, a22) * inv;
    *z = mathCalDeterm33(a00, a01, b0, a10, a11, b1, a20, a21, b2) * inv;
    return 1;
}

int mathSolHomoEqua22(double a, double b, double c, double d, double tol, double *r) {
    r[0] = 0.0;
    r[1] = 0.0;
    const double g = std::sqrt(a * a + b * b);
    const double h = std::sqrt(c * c + d * d);
    if (g < tol && h < tol)
        return 100;
    // Perpendicular to the longer row, then tested against the other one.
    double residual;
    if (g <= h) {
        r[0] = -d / h;
        r[1] = c / h;
        residual = a * r[0] + b * r[1];
    } else {
        r[0] = -b / g;
        r[1] = a / g;
        residual = c * r[0] + d * r[1];
    }
    return std::fabs(residual) <= tol ? 1 : 0;
}

int mathSolByMatxInvs(int rows, int cols, const double *m, const double *b, double *out) {
    const int count = rows > 0 && cols > 0 ? rows * cols : 0;
    double *inverse = new (std::nothrow) double[count + 1];
    if (!inverse)
        return -1;
    for (int i = 0; i < count; ++i)
        inverse[i] = 0.0;
    int result = 0;
    if (mathMatxInvs(rows, cols, m, inverse) == 1) {
        mathMatxMult(inverse, b, out, cols, rows, 1);
        result = 1;
    }
    delete[] inverse;
    return result;
}

int mathDecVec(const double *v, const double *e1, const double *e2, const double *e3, double *a,
               double *b, double *c) {
    // The basis vectors are the columns.
    const double m[9] = {e1[0], e2[0], e3[0], e1[1], e2[1], e3[1], e1[2], e2[2], e3[2]};
    double out[3];
    if (mathSolByMatxInvs(3, 3, m, v, out) != 1)
        return 0;
    *a = out[0];
    *b = out[1];
    *c = out[2];
    return 1;
}

int mathSolLeastSquare31(const double *a, const double *b, double *x) {
    const double s = dot3(a, a);
    *x = s <= 1e-100 ? 0.0 : dot3(a, b) / s;
    return 1;
}

int mathSolLeastSquare32(const double *a, const double *b, const double *c, double *x) {
    const double aa = dot3(a, a);
    const double ab = dot3(a, b);
    const double bb = dot3(b, b);
    const double ac = dot3(a, c);
    const double bc = dot3(b, c);
    if (mathSolLineEqua22(aa, ab, ab, bb, ac, bc, 1e-100, &x[0], &x[1]))
        return 1;
    // a and b are parallel, a = g b: every x with g x[0] + x[1] fixed fits
    // equally well, and the shortest lies along (g, 1).
    if (bb < 1e-50) {
        x[0] = 0.0;
        x[1] = 0.0;
        return 1;
    }
    const double inv = 1.0 / bb;
    double g = std::sqrt(std::fabs(inv * aa));
    if (bc * ac < 0.0)
        g = -g;
    x[1] = inv * bc / (g * g + 1.0);
    x[0] = x[1] * g;
    return 1;
}

int mathSolLeastSquareLin(const double *p0, const double *d0, const double *p1, const double *d1,
                          double *r) {
    double n[3];
    mathVProduct(d0, d1, n);
    const double len = len3(n);
    if (len < 1e-11) {
        // Parallel: the feet of the midpoint of p0 and p1.
        double m[3], e[3];
        for (int i = 0; i < 3; ++i)
            m[i] = (p0[i] + p1[i]) * 0.5;
        sub3(m, p0, e);
        r[0] = dot3(e, d0);
        sub3(m, p1, e);
        r[1] = dot3(e, d1);
        return 1;
    }
    const double inv = 1.0 / len;
    n[0] *= inv;
    n[1] *= inv;
    n[2] *= inv;
    double w[3], t[3];
    sub3(p0, p1, w);
    // Each parameter from the plane through the other line along n.
    cross3(d1, n, t);
    double den = dot3(t, d0);
    if (std::fabs(den) < 1e-100)
        return 0;
    r[0] = -dot3(t, w) / den;
    cross3(d0, n, t);
    den = dot3(t, d1);
    if (std::fabs(den) < 1e-100)
        return 0;
    r[1] = dot3(t, w) / den;
    return 1;
}
