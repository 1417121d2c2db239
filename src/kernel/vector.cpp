// Vector algebra in the plane and in space: products, normalisation, angles,
// rotations and the completion of one axis to a frame.
#include <korvane/kernel.h>

#include <cmath>

#include "kernel/vector_ops.h"

using namespace korvane;

// ---- In the plane -----------------------------------------------------------

int mathUniVec2D(double *v, double tol) {
    return unit2(v, tol);
}

double mathVecLen2D(const double *v) {
    return len2(v);
}

double mathOProduct2D(const double *a, const double *b) {
    return dot2(a, b);
}

double mathVProduct2D(const double *a, const double *b) {
    return cross2(a, b);
}

void mathRevVec2D(double *v) {
    v[0] = -v[0];
    v[1] = -v[1];
}

void mathGetVec2D(const double *p, const double *q, double *out) {
    sub2(q, p, out);
}

int mathGetVecByPP2D(const double *p, const double *q, double tol, double *out) {
    sub2(q, p, out);
    // Unlike mathUniVec2D, a failure keeps the unnormalised difference.
    return normaliseOrKeep2(out, tol);
}

void mathRotVec2D(double angle, const double *v, double *out) {
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    out[0] = c * v[0] - s * v[1];
    out[1] = s * v[0] + c * v[1];
}

double mathGetAngle2D(const double *a, const double *b, double tol) {
    return angleOf2(a, b, tol);
}

double mathGetAngle2DUnit(const double *a, const double *b) {
    return acosGuarded(dot2(a, b));
}

double mathGetAngle2DUnitEx(const double *a, const double *b) {
    const double s = a[0] * b[1] - a[1] * b[0];
    double m = std::fabs(asinGuarded(s));
    const double d = a[0] * b[0] + a[1] * b[1];
    if (d < 0.0)
        m = kPi - m;
    // A zero cross product takes the negative branch: -0.0 or -pi.
    if (s <= 0.0)
        return -m;
    return m;
}

double mathGetAngleX2D(const double *v) {
    double a = std::atan2(v[1], v[0]);
    if (a < 0.0)
        a += kTwoPi;
    return a;
}

double mathGetAngle3P2D(const double *p, const double *c, const double *q) {
    double a[2], b[2];
    sub2(p, c, a);
    sub2(q, c, b);
    return angleOf2(a, b, 1e-10);
}

double mathGetACWAngle3P2D(const double *p, const double *c, const double *q) {
    const double angle = mathGetAngle3P2D(p, c, q);
    if (angle < -0.5)
        return angle;
    if (sideOfLine2D(q, p, c, 1e-10) == 4)
        return kTwoPi - angle;
    return angle;
}

double mathGetACWAngle2D(const double *a, const double *b) {
    const double origin[2] = {0.0, 0.0};
    return mathGetACWAngle3P2D(a, origin, b);
}

// ---- In space ---------------------------------------------------------------

void mathGetVec(const double *p, const double *q, double *out) {
    sub3(q, p, out);
}

int mathGetVecUnit(const double *p, const double *q, double *out) {
    sub3(q, p, out);
    return unit3(out, 1e-10);
}

int mathUniVec(double *v, double tol) {
    return unit3(v, tol);
}

double mathVecLen(const double *v) {
    return len3(v);
}

double mathOProduct(const double *a, const double *b) {
    return dot3(a, b);
}

double mathWProduct(const double *a, const double *b) {
    // x and z crossed over, as the interface defines it.
    return a[0] * b[2] + a[2] * b[0] + a[1] * b[1];
}

void mathVProduct(const double *a, const double *b, double *out) {
    cross3(a, b, out);
}

int mathVProductUnit(const double *a, const double *b, double *out) {
    double c[3];
    cross3(a, b, c);
    if (!unit3(c, 1e-10))
        return 0;
    copy3(c, out);
    return 1;
}

double mathMProduct(const double *a, const double *b, const double *c) {
    double ab[3];
    cross3(a, b, ab);
    return dot3(ab, c);
}

void mathRevVec(double *v) {
    v[0] = -v[0];
    v[1] = -v[1];
    v[2] = -v[2];
}

int mathChnVecLen(double *v, double len) {
    const double l = len3(v);
    if (l < 1e-20)
        return 0;
    const double k = len / l;
    v[0] *= k;
    v[1] *= k;
    v[2] *= k;
    return 1;
}

void mathRefVec(const double *v, const double *n, double *out) {
    const double k = dot3(v, n);
    const double x = 2.0 * k * n[0] - v[0];
    const double y = 2.0 * k * n[1] - v[1];
    const double z = 2.0 * k * n[2] - v[2];
    out[0] = x;
    out[1] = y;
    out[2] = z;
}

int mathIsParallel(const double *a, const double *b, double tol) {
    double c[3];
    cross3(a, b, c);
    return len3(c) < tol ? 1 : 0;
}

int mathIsPerpendicular(const double *a, const double *b, double tol) {
    return std::fabs(dot3(a, b)) < tol ? 1 : 0;
}

void mathPrjVecVec(const double *v, const double *n, double *out) {
    const double k = dot3(v, n);
    out[0] = k * n[0];
    out[1] = k * n[1];
    out[2] = k * n[2];
}

void mathRotVecXY(const double *x, const double *y, double angle, double *out) {
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const double r0 = c * x[0] + s * y[0];
    const double r1 = c * x[1] + s * y[1];
    const double r2 = c * x[2] + s * y[2];
    out[0] = r0;
    out[1] = r1;
    out[2] = r2;
}

void mathRotVecXZ(const double *x, const double *z, double angle, double *out) {
    double y[3];
    cross3(z, x, y);
    mathRotVecXY(x, y, angle, out);
}

void mathRotVec(const double *axis, const double *pnt, double angle, const double *v, double *out) {
    double q[3];
    add3(v, pnt, q);
    rotatePoint(axis, pnt, angle, q, q);
    sub3(q, pnt, out);
}

void mathMirVec(const double *pnt, const double *normal, const double *v, double *out) {
    double q[3];
    add3(v, pnt, q);
    mirrorPoint(pnt, normal, q, q);
    sub3(q, pnt, out);
}

int mathGetVecMinComSub(int n, const double *a) {
    // Strict test, first to last: ties stay with the lowest index.
    int k = 0;
    double m = n > 0 ? std::fabs(a[0]) : 0.0;
    for (int i = 1; i < n; ++i) {
        const double v = std::fabs(a[i]);
        if (v < m) {
            m = v;
            k = i;
        }
    }
    return k;
}

int mathGetXYFromZ(const double *z, double *x, double *y) {
    x[0] = 0.0;
    x[1] = 0.0;
    x[2] = 0.0;
    switch (mathGetVecMinComSub(3, z)) {
    case 0:
        x[1] = z[2];
        x[2] = -z[1];
        break;
    case 1:
        x[0] = -z[2];
        x[2] = z[0];
        break;
    default:
        x[0] = z[1];
        x[1] = -z[0];
        break;
    }
    if (!unit3(x, 1e-10))
        return 0;
    // y keeps the length of z: it is not normalised again.
    cross3(z, x, y);
    return 1;
}

int mathAdjVecDir(const double *p, double *v, const double *q) {
    double e[3];
    sub3(q, p, e);
    const double len = len3(e);
    if (len < 1e-10)
        return -4;
    e[0] /= len;
    e[1] /= len;
    e[2] /= len;
    // A v perpendicular to e within 1e-10 is left as it is.
    if (dot3(e, v) < -1e-10) {
        v[0] = -v[0];
        v[1] = -v[1];
        v[2] = -v[2];
    }
    return 1;
}

int mathAngleBisector(const double *a, const double *b, double *out) {
    add3(a, b, out);
    // Fails with -4 where the other normalisers give 0.
    return unit3(out, 1e-10) ? 1 : -4;
}

double mathGetAngle(const double *a, const double *b, double tol) {
    return angleOf3(a, b, tol);
}

double mathGetAngleUnit(const double *a, const double *b) {
    return acosGuarded(dot3(a, b));
}

double mathGetAcuteAngleUnit(const double *a, const double *b) {
    const double angle = acosGuarded(dot3(a, b));
    if (angle > kHalfPi)
        return kPi - angle;
    return angle;
}

double mathGetAngle3P(const double *p, const double *c, const double *q) {
    double a[3], b[3];
    sub3(p, c, a);
    sub3(q, c, b);
    return angleOf3(a, b, 1e-10);
}

double mathGetRAngleXY(const double *x, const double *y, const double *v) {
    double a = std::atan2(dot3(y, v), dot3(x, v));
    if (a < 0.0)
        a += kTwoPi;
    return a;
}

double mathGetRAngleXZ(const double *x, const double *z, const double *v) {
    double y[3] = {0.0, 0.0, 0.0};
    // A failure is not tested: callers pass a valid pair.
    mathVProductUnit(z, x, y);
    return mathGetRAngleXY(x, y, v);
}
