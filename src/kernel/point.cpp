// Points in the plane and in space, homogeneous points, and the foot and side
// of a point against a line.
#include <korvane/kernel.h>

#include <cmath>

#include "kernel/vector_ops.h"

using namespace korvane;

void mathInitPnt2D(double *p) {
    p[0] = 0.0;
    p[1] = 0.0;
}

void mathInitPnt(double *p) {
    p[0] = 0.0;
    p[1] = 0.0;
    p[2] = 0.0;
}

void mathCpyPnt2D(const double *from, double *to) {
    to[0] = from[0];
    to[1] = from[1];
}

void mathCpyPnt(const double *from, double *to) {
    copy3(from, to);
}

void mathCpyPnt4(const double *from, double *to) {
    to[0] = from[0];
    to[1] = from[1];
    to[2] = from[2];
    to[3] = from[3];
}

void mathCpyPnt2DTo3D(const double *from, double *to) {
    to[0] = from[0];
    to[1] = from[1];
    to[2] = 0.0;
}

double mathDist2D(const double *p, const double *q) {
    return dist2(p, q);
}

double mathDist(const double *p, const double *q) {
    return dist3(p, q);
}

double mathDistXD(int n, const double *a, const double *b) {
    // One accumulator in ascending index order.
    double sum = 0.0;
    for (int i = 0; i < n; ++i) {
        const double d = a[i] - b[i];
        sum += d * d;
    }
    return std::sqrt(std::fabs(sum));
}

double mathDist3H(const double *a, const double *b) {
    // The weights are compared as they stand: a negative weight gives 0.0 too.
    if (a[3] < 1e-10)
        return 0.0;
    if (b[3] < 1e-10)
        return 0.0;
    const double ra = 1.0 / a[3];
    const double rb = 1.0 / b[3];
    const double pa[3] = {a[0] * ra, a[1] * ra, a[2] * ra};
    const double pb[3] = {b[0] * rb, b[1] * rb, b[2] * rb};
    return dist3(pa, pb);
}

void mathMidPnt2D(const double *p, const double *q, double *out) {
    out[0] = (p[0] + q[0]) * 0.5;
    out[1] = (p[1] + q[1]) * 0.5;
}

void mathMidPnt(const double *p, const double *q, double *out) {
    out[0] = (p[0] + q[0]) * 0.5;
    out[1] = (p[1] + q[1]) * 0.5;
    out[2] = (p[2] + q[2]) * 0.5;
}

void mathMixPnt2D(const double *p, const double *q, double s, double t, double *out) {
    out[0] = s * p[0] + t * q[0];
    out[1] = s * p[1] + t * q[1];
}

void mathMixPnt(const double *p, const double *q, double s, double t, double *out) {
    out[0] = s * p[0] + t * q[0];
    out[1] = s * p[1] + t * q[1];
    out[2] = s * p[2] + t * q[2];
}

void mathMixP4D(double s, double t, const double *p, const double *q, double *out) {
    out[0] = s * p[0] + t * q[0];
    out[1] = s * p[1] + t * q[1];
    out[2] = s * p[2] + t * q[2];
    out[3] = s * p[3] + t * q[3];
}

void mathAddVec(const double *p, const double *d, double t, double *out) {
    out[0] = p[0] + t * d[0];
    out[1] = p[1] + t * d[1];
    out[2] = p[2] + t * d[2];
}

void mathEvalLin(const double *p, const double *d, double t, double *out) {
    mathAddVec(p, d, t, out);
}

int mathGetPnt3(const double *h, double *out) {
    // Here the weight is taken in absolute value, unlike mathDist3H.
    const double w = h[2];
    if (std::fabs(w) < 1e-10)
        return 0;
    out[0] = h[0] / w;
    out[1] = h[1] / w;
    return 1;
}

int mathGetPnt4(const double *h, double *out) {
    const double w = h[3];
    if (std::fabs(w) < 1e-10)
        return 0;
    out[0] = h[0] / w;
    out[1] = h[1] / w;
    out[2] = h[2] / w;
    return 1;
}

void mathRotPnt2D(const double *c, double angle, const double *p, double *out) {
    const double cs = std::cos(angle);
    const double sn = std::sin(angle);
    const double x = p[0] - c[0];
    const double y = p[1] - c[1];
    out[0] = c[0] + (cs * x - sn * y);
    out[1] = c[1] + (sn * x + cs * y);
}

void mathRotPnt(const double *axis, const double *pnt, double angle, const double *p, double *out) {
    rotatePoint(axis, pnt, angle, p, out);
}

void mathMirPnt(const double *pnt, const double *normal, const double *p, double *out) {
    mirrorPoint(pnt, normal, p, out);
}

void mathSymPnt(const double *c, const double *p, double *out) {
    // Every component from the first centre coordinate: c[1] and c[2] are
    // never read. This is the interface's behaviour, kept on purpose.
    const double c0 = c[0];
    out[0] = 2.0 * c0 - p[0];
    out[1] = 2.0 * c0 - p[1];
    out[2] = 2.0 * c0 - p[2];
}

void mathScalePnt(const double *c, const double *s, const double *p, double *out) {
    out[0] = (p[0] - c[0]) * s[0] + c[0];
    out[1] = (p[1] - c[1]) * s[1] + c[1];
    out[2] = (p[2] - c[2]) * s[2] + c[2];
}

// ---- Homogeneous points -------------------------------------------------------

namespace {

// Applies a Euclidean point operation to a homogeneous point under the weight
// rule: a weight below 1e-10 in magnitude marks a point at infinity, whose raw
// coordinates are transformed as they stand.
template <typename Op> void applyWeighted(const double *h, double *out, Op op) {
    const double w = h[3];
    out[3] = w;
    double e[3] = {h[0], h[1], h[2]};
    if (std::fabs(w) < 1e-10) {
        op(e);
        copy3(e, out);
        return;
    }
    const double r = 1.0 / w;
    e[0] *= r;
    e[1] *= r;
    e[2] *= r;
    op(e);
    out[0] = e[0] * w;
    out[1] = e[1] * w;
    out[2] = e[2] * w;
}

} // namespace

void mathMovePnt4H(const double *d, const double *h, double *out) {
    applyWeighted(h, out, [d](double *e) { add3(d, e, e); });
}

void mathMirPnt4H(const double *pnt, const double *normal, const double *h, double *out) {
    applyWeighted(h, out, [pnt, normal](double *e) { mirrorPoint(pnt, normal, e, e); });
}

void mathRotPnt4H(const double *axis, const double *pnt, double angle, const double *h,
                  double *out) {
    applyWeighted(h, out, [axis, pnt, angle](double *e) { rotatePoint(axis, pnt, angle, e, e); });
}

void mathScalePnt4H(const double *c, const double *s, const double *h, double *out) {
    applyWeighted(h, out, [c, s](double *e) { mathScalePnt(c, s, e, e); });
}

// ---- A point against a line ---------------------------------------------------

void mathPrjPntLin(const double *p, const double *o, const double *d, double *out) {
    footOnLine(p, o, d, out);
}

int mathChkPntLin2D(const double *p, const double *a, const double *b, double tol) {
    return sideOfLine2D(p, a, b, tol);
}
