// Inline vector arithmetic shared by the double-precision family. The
// exported kernel functions are thin wrappers over these, so hot callers in
// the library inline them instead of calling through the interface.
#ifndef KORVANE_KERNEL_VECTOR_OPS_H
#define KORVANE_KERNEL_VECTOR_OPS_H

#include <cmath>

#include "kernel/constants.h"

namespace korvane {

inline double dot2(const double *a, const double *b) {
    return a[0] * b[0] + a[1] * b[1];
}
inline double dot3(const double *a, const double *b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}
inline double cross2(const double *a, const double *b) {
    return a[0] * b[1] - a[1] * b[0];
}
inline double len2(const double *v) {
    return std::sqrt(v[0] * v[0] + v[1] * v[1]);
}
inline double len3(const double *v) {
    return std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
}

inline void sub2(const double *q, const double *p, double *out) {
    out[0] = q[0] - p[0];
    out[1] = q[1] - p[1];
}
inline void sub3(const double *q, const double *p, double *out) {
    out[0] = q[0] - p[0];
    out[1] = q[1] - p[1];
    out[2] = q[2] - p[2];
}
inline void add3(const double *a, const double *b, double *out) {
    out[0] = a[0] + b[0];
    out[1] = a[1] + b[1];
    out[2] = a[2] + b[2];
}
inline void copy3(const double *from, double *to) {
    to[0] = from[0];
    to[1] = from[1];
    to[2] = from[2];
}

// out = a x b; every input is read before out is written, so out may alias.
inline void cross3(const double *a, const double *b, double *out) {
    const double x = a[1] * b[2] - a[2] * b[1];
    const double y = a[2] * b[0] - a[0] * b[2];
    const double z = a[0] * b[1] - a[1] * b[0];
    out[0] = x;
    out[1] = y;
    out[2] = z;
}

// Normalisation: strict test, so a length equal to tol succeeds; the
// reciprocal is formed once and multiplied in. A vector shorter than tol is
// left as it is.
inline int normaliseOrKeep2(double *v, double tol) {
    const double len = len2(v);
    if (len < tol)
        return 0;
    const double r = 1.0 / len;
    v[0] *= r;
    v[1] *= r;
    return 1;
}
inline int normaliseOrKeep3(double *v, double tol) {
    const double len = len3(v);
    if (len < tol)
        return 0;
    const double r = 1.0 / len;
    v[0] *= r;
    v[1] *= r;
    v[2] *= r;
    return 1;
}

// The same, but a vector shorter than tol becomes zero.
inline int unit2(double *v, double tol) {
    if (normaliseOrKeep2(v, tol))
        return 1;
    v[0] = 0.0;
    v[1] = 0.0;
    return 0;
}
inline int unit3(double *v, double tol) {
    if (normaliseOrKeep3(v, tol))
        return 1;
    v[0] = 0.0;
    v[1] = 0.0;
    v[2] = 0.0;
    return 0;
}

inline double acosGuarded(double x) {
    if (x > 0.999999999999)
        return 0.0;
    if (x < -0.999999999999)
        return kPi;
    return std::acos(x);
}
inline double asinGuarded(double x) {
    if (x > 0.999999999999)
        return kHalfPi;
    if (x < -0.999999999999)
        return -kHalfPi;
    return std::asin(x);
}

// Foot of p on the line o + t d (unit d).
inline void footOnLine(const double *p, const double *o, const double *d, double *out) {
    double e[3];
    sub3(p, o, e);
    const double k = dot3(e, d);
    out[0] = o[0] + k * d[0];
    out[1] = o[1] + k * d[1];
    out[2] = o[2] + k * d[2];
}

// Rotation of p about the line through pnt along the unit axis; out may be p.
inline void rotatePoint(const double *axis, const double *pnt, double angle, const double *p,
                        double *out) {
    double f[3], r[3], w[3];
    footOnLine(p, pnt, axis, f);
    sub3(p, f, r);
    cross3(axis, r, w);
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    out[0] = f[0] + c * r[0] + s * w[0];
    out[1] = f[1] + c * r[1] + s * w[1];
    out[2] = f[2] + c * r[2] + s * w[2];
}

// Mirror image of p in the plane (pnt, unit normal); out may be p.
inline void mirrorPoint(const double *pnt, const double *normal, const double *p, double *out) {
    double e[3];
    sub3(p, pnt, e);
    const double k = dot3(normal, e);
    out[0] = p[0] - 2.0 * k * normal[0];
    out[1] = p[1] - 2.0 * k * normal[1];
    out[2] = p[2] - 2.0 * k * normal[2];
}

inline double dist2(const double *p, const double *q) {
    double e[2];
    sub2(q, p, e);
    return len2(e);
}
inline double dist3(const double *p, const double *q) {
    double e[3];
    sub3(q, p, e);
    return len3(e);
}

// Unsigned angle of two vectors, -1.0 when either is shorter than tol.
inline double angleOf2(const double *a, const double *b, double tol) {
    const double la = len2(a);
    const double lb = len2(b);
    if (la < tol || lb < tol)
        return -1.0;
    return acosGuarded(dot2(a, b) / (lb * la));
}
inline double angleOf3(const double *a, const double *b, double tol) {
    const double la = len3(a);
    const double lb = len3(b);
    if (la < tol || lb < tol)
        return -1.0;
    return acosGuarded(dot3(a, b) / (lb * la));
}

// Side of p relative to the line from a to b: 2 on, 3 left, 4 right,
// 800 for a line shorter than 1e-10.
inline int sideOfLine2D(const double *p, const double *a, const double *b, double tol) {
    double ab[2], ap[2];
    sub2(b, a, ab);
    const double len = len2(ab);
    if (len < 1e-10)
        return 800;
    sub2(p, a, ap);
    const double s = cross2(ab, ap) / len;
    if (std::fabs(s) < tol)
        return 2;
    return s > 0.0 ? 3 : 4;
}

} // namespace korvane

#endif
