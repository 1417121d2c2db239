// Lines in the plane: distances, feet, normals, the line intersection and
// the joining of unordered pieces into one run.
#include <korvane/containers.h>
#include <korvane/geometry.h>

#include <cmath>
#include <new>

#include "geometry/polyline_join.h"
#include "kernel/vector_ops.h"

using namespace korvane;

Lin2D *mathCreLin2D(const double *start, const double *end) {
    Lin2D *lin = new (std::nothrow) Lin2D;
    if (!lin)
        return nullptr;
    lin->next = nullptr;
    lin->start[0] = start[0];
    lin->start[1] = start[1];
    lin->end[0] = end[0];
    lin->end[1] = end[1];
    return lin;
}

int mathRevLin2D(Lin2D *lin) {
    if (!lin)
        return 0;
    swapEnds<Lin2D, 2>(lin);
    return 1;
}

void mathEvalLin2D(const double *o, const double *d, double t, double *out) {
    out[0] = o[0] + t * d[0];
    out[1] = o[1] + t * d[1];
}

double mathDistPntLin2D(const double *p, const double *o, const double *d) {
    return (p[1] - o[1]) * d[0] - (p[0] - o[0]) * d[1];
}

double mathDistPntLin2DEx(const double *p, const double *a, const double *b) {
    double e[2];
    sub2(b, a, e);
    const double len = len2(e);
    // A degenerate line gives the unsigned distance to its first point.
    if (len < 1e-8)
        return dist2(p, a);
    return (e[0] * (p[1] - a[1]) - e[1] * (p[0] - a[0])) / len;
}

namespace {

void foot2(const double *p, const double *o, const double *d, double *out) {
    double e[2];
    sub2(p, o, e);
    const double k = dot2(e, d);
    out[0] = o[0] + k * d[0];
    out[1] = o[1] + k * d[1];
}

int unitDir2(const double *a, const double *b, double tol, double *d) {
    sub2(b, a, d);
    return normaliseOrKeep2(d, tol);
}

} // namespace

void mathPrjPntLin2D(const double *p, const double *o, const double *d, double *out) {
    foot2(p, o, d, out);
}

void mathPrjPntLin2DEx(const double *p, const double *a, const double *b, double *out) {
    double d[2];
    if (!unitDir2(a, b, 1e-10, d)) {
        out[0] = a[0];
        out[1] = a[1];
        return;
    }
    foot2(p, a, d, out);
}

int mathGetLinLeftDir2D(const double *a, const double *b, double *out) {
    out[0] = a[1] - b[1];
    out[1] = b[0] - a[0];
    return normaliseOrKeep2(out, 1e-10);
}

int mathGetLinRightDir2D(const double *a, const double *b, double *out) {
    out[0] = b[1] - a[1];
    out[1] = a[0] - b[0];
    return normaliseOrKeep2(out, 1e-10);
}

int mathGetLinDirLen2D(const double *a, const double *b, double tol, double *dir, double *len) {
    sub2(b, a, dir);
    *len = len2(dir);
    if (*len < tol)
        return 0;
    // Division here, not a reciprocal.
    dir[0] /= *len;
    dir[1] /= *len;
    return 1;
}

int mathIntLin2D(const double *o1, const double *d1, const double *o2, const double *d2,
                 double tolDist, double tolPar, double *out) {
    // Signed distances of o1 and of o1 + d1 from line 2.
    const double h1 = (o1[1] - o2[1]) * d2[0] - (o1[0] - o2[0]) * d2[1];
    const double h2 = h1 - d1[0] * d2[1] + d1[1] * d2[0];
    if (std::fabs(h2 - h1) >= tolPar) {
        const double t = h1 / (h1 - h2);
        out[0] = o1[0] + t * d1[0];
        out[1] = o1[1] + t * d1[1];
        return 1;
    }
    // Parallel: move both origins to the mid-way normal.
    double w[2];
    sub2(o2, o1, w);
    const double t = dot2(w, d1) * 0.5;
    sub2(o1, o2, w);
    const double u = dot2(w, d2) * 0.5;
    const double pa[2] = {o1[0] + t * d1[0], o1[1] + t * d1[1]};
    const double pb[2] = {o2[0] + u * d2[0], o2[1] + u * d2[1]};
    if (dist2(pa, pb) >= tolDist)
        return 2;
    out[0] = (pa[0] + pb[0]) * 0.5;
    out[1] = (pa[1] + pb[1]) * 0.5;
    return 4;
}

int mathIntLin2DEx(const double *a1, const double *b1, const double *a2, const double *b2,
                   double tolDist, double tolPar, double *out) {
    double d1[2], d2[2];
    if (!unitDir2(a1, b1, tolDist, d1))
        return 800;
    if (!unitDir2(a2, b2, tolDist, d2))
        return 800;
    return mathIntLin2D(a1, d1, a2, d2, tolDist, tolPar, out);
}

int mathGetPolylineOfLin2ds(Lin2D **chain, double tol, Lin2D **result) {
    return joinPieces<Lin2D, 2>(chain, tol, result, dist2);
}
