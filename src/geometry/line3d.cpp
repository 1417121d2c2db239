// Lines in space: distances, feet, parameters, the closest approach of two
// lines and the coplanarity test.
#include <korvane/containers.h>
#include <korvane/geometry.h>

#include <cmath>
#include <new>

#include "geometry/polyline_join.h"
#include "kernel/vector_ops.h"

using namespace korvane;

Lin3D *mathCreLin3D(const double *start, const double *end) {
    Lin3D *lin = new (std::nothrow) Lin3D;
    if (!lin)
        return nullptr;
    lin->next = nullptr;
    copy3(start, lin->start);
    copy3(end, lin->end);
    return lin;
}

int mathRevLin3D(Lin3D *lin) {
    if (!lin)
        return 0;
    swapEnds<Lin3D, 3>(lin);
    return 1;
}

double mathDistPntLin(const double *p, const double *o, const double *d) {
    double f[3];
    footOnLine(p, o, d, f);
    return dist3(p, f);
}

double mathDistPntLinEx(const double *p, const double *a, const double *b) {
    double e[3], w[3];
    sub3(b, a, e);
    sub3(a, p, w);
    if (len3(e) < 1e-10)
        return len3(w);
    const double we = dot3(w, e);
    // The absolute value guards against a rounding below zero.
    return std::sqrt(std::fabs(dot3(w, w) - we * we / dot3(e, e)));
}

int mathGetLinDirLen(const double *a, const double *b, double tol, double *dir, double *len) {
    sub3(b, a, dir);
    *len = len3(dir);
    if (*len < tol)
        return -4;
    // Division here, not a reciprocal.
    dir[0] /= *len;
    dir[1] /= *len;
    dir[2] /= *len;
    return 1;
}

int mathChkPntLin(const double *p, const double *a, const double *b, double tol) {
    return mathDistPntLinEx(p, a, b) < tol ? 1 : 0;
}

void mathPrjPntLinEx(const double *p, const double *a, const double *b, double *out) {
    double d[3];
    sub3(b, a, d);
    if (!unit3(d, 1e-10)) {
        copy3(a, out);
        return;
    }
    footOnLine(p, a, d, out);
}

void mathPrjPntLineEx(const double *p, const double *a, const double *b, double *out, double *t) {
    double d[3], w[3];
    sub3(b, a, d);
    const double len = len3(d);
    if (!unit3(d, 1e-10)) {
        copy3(a, out);
        *t = 0.0;
        return;
    }
    sub3(p, a, w);
    const double k = dot3(w, d);
    out[0] = a[0] + k * d[0];
    out[1] = a[1] + k * d[1];
    out[2] = a[2] + k * d[2];
    *t = k / len;
}

double mathCalPntLinPara(const double *p, const double *o, const double *d) {
    for (int k = 0; k < 3; ++k) {
        if (std::fabs(d[k]) > 0.5)
            return (p[k] - o[k]) / d[k];
    }
    return 0.0;
}

double mathCalPntLinSegPara(const double *p, const double *a, const double *b) {
    double e[3];
    sub3(b, a, e);
    double best = 0.0;
    int k = 0;
    if (std::fabs(e[0]) > 0.0)
        best = e[0];
    // The signed best is held against absolute values, so a negative x loses
    // to any nonzero y. Kept: the parameter is right, only less well
    // conditioned.
    if (best < std::fabs(e[1])) {
        best = e[1];
        k = 1;
    }
    if (best < std::fabs(e[2])) {
        best = e[2];
        k = 2;
    }
    if (std::fabs(best) <= 1e-8)
        return 0.0;
    return (p[k] - a[k]) / best;
}

int mathIntLin(const double *o1, const double *d1, const double *o2, const double *d2,
               double tolDist, double tolPar, double *out1, double *out2) {
    double n[3];
    cross3(d1, d2, n);
    if (!normaliseOrKeep3(n, tolPar)) {
        // Parallel: the feet of the mid-point of the two origins.
        double m[3];
        mathMidPnt(o1, o2, m);
        footOnLine(m, o1, d1, out1);
        footOnLine(m, o2, d2, out2);
        return dist3(out1, out2) < tolDist ? 4 : 2;
    }
    double w[3], c[3];
    sub3(o1, o2, w);

    cross3(d2, n, c);
    double den = dot3(c, d1);
    if (std::fabs(den) < 1e-100)
        return 800;
    const double t = -dot3(c, w) / den;
    out1[0] = o1[0] + t * d1[0];
    out1[1] = o1[1] + t * d1[1];
    out1[2] = o1[2] + t * d1[2];

    cross3(d1, n, c);
    den = dot3(c, d2);
    if (std::fabs(den) < 1e-100)
        return 800;
    const double s = dot3(c, w) / den;
    out2[0] = o2[0] + s * d2[0];
    out2[1] = o2[1] + s * d2[1];
    out2[2] = o2[2] + s * d2[2];

    return dist3(out1, out2) < tolDist ? 1 : 5;
}

namespace {

// Unit b - a through the reciprocal; 0 when shorter than tol.
int unitDir3(const double *a, const double *b, double tol, double *d) {
    sub3(b, a, d);
    return normaliseOrKeep3(d, tol);
}

} // namespace

int mathIntLinEx(const double *a1, const double *b1, const double *a2, const double *b2,
                 double tolDist, double tolPar, double *out1, double *out2) {
    double d1[3], d2[3];
    if (!unitDir3(a1, b1, tolDist, d1))
        return 800;
    if (!unitDir3(a2, b2, tolDist, d2))
        return 800;
    return mathIntLin(a1, d1, a2, d2, tolDist, tolPar, out1, out2);
}

int mathIntLine(const double *a1, const double *b1, const double *a2, const double *b2,
                double tolDist, double tolPar, double *out1, double *out2, double *t1, double *t2,
                double *dist) {
    double d1[3], d2[3], n[3];
    sub3(b1, a1, d1);
    sub3(b2, a2, d2);
    if (len3(d1) < tolDist)
        return 800;
    if (len3(d2) < tolDist)
        return 800;
    cross3(d1, d2, n);
    // tolPar is compared with the unnormalised product.
    if (len3(n) >= tolPar) {
        double w[3], c[3];
        sub3(a2, a1, w);
        const double nn = dot3(n, n);
        cross3(w, d2, c);
        *t1 = dot3(c, n) / nn;
        cross3(d1, w, c);
        *t2 = -dot3(c, n) / nn;
        out1[0] = a1[0] + *t1 * d1[0];
        out1[1] = a1[1] + *t1 * d1[1];
        out1[2] = a1[2] + *t1 * d1[2];
        out2[0] = a2[0] + *t2 * d2[0];
        out2[1] = a2[1] + *t2 * d2[1];
        out2[2] = a2[2] + *t2 * d2[2];
        *dist = dist3(out1, out2);
        return *dist < tolDist ? 1 : 5;
    }
    // Parallel: the feet use the raw directions, exact only for unit ones.
    double m[3];
    mathMidPnt(a1, a2, m);
    footOnLine(m, a1, d1, out1);
    footOnLine(m, a2, d2, out2);
    *dist = dist3(out1, out2);
    return *dist < tolDist ? 4 : 2;
}

int mathIsLinCoplanar(const double *o1, const double *d1, const double *o2, const double *d2,
                      double tolDist, double tolPar, double *pnt, double *normal) {
    double out1[3], out2[3];
    switch (mathIntLin(o1, d1, o2, d2, tolDist, tolPar, out1, out2)) {
    case 1:
        mathVProductUnit(d1, d2, normal);
        copy3(out1, pnt);
        return 1;
    case 2: {
        double v[3];
        // With o1 equal to o2 both inner calls fail and normal is left as it
        // was; callers avoid that by construction.
        mathGetVecUnit(o1, o2, v);
        mathVProductUnit(d1, v, normal);
        copy3(o1, pnt);
        return 1;
    }
    case 4:
        return 2;
    default:
        return 0;
    }
}

int mathGetPolylineOfLin3ds(Lin3D **chain, double tol, Lin3D **result) {
    return joinPieces<Lin3D, 3>(chain, tol, result, dist3);
}
