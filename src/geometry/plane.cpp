// Planes given by a point po and a unit normal n: distances, projections and
// the intersections with lines, segments, planes and three planes.
#include <korvane/geometry.h>
#include <korvane/numeric.h>

#include <cmath>

#include "kernel/vector_ops.h"

using namespace korvane;

namespace {

// Signed height of p over the plane.
double height(const double *p, const double *po, const double *n) {
    double w[3];
    sub3(p, po, w);
    return dot3(w, n);
}

} // namespace

double mathDistPntPln(const double *p, const double *po, const double *n) {
    return std::fabs(height(p, po, n));
}

double mathDistPntPlnSide(const double *p, const double *po, const double *n) {
    return height(p, po, n);
}

void mathPrjPntPln(const double *p, const double *po, const double *n, double *out) {
    double w[3];
    sub3(po, p, w);
    const double k = dot3(w, n);
    out[0] = p[0] + k * n[0];
    out[1] = p[1] + k * n[1];
    out[2] = p[2] + k * n[2];
}

void mathPrjVecPln(const double *v, const double *n, double *out) {
    const double k = dot3(v, n);
    out[0] = v[0] - k * n[0];
    out[1] = v[1] - k * n[1];
    out[2] = v[2] - k * n[2];
}

int mathIsLinOnPln(const double *o, const double *d, const double *po, const double *n,
                   double tol) {
    if (std::fabs(height(o, po, n)) >= tol)
        return 0;
    // A fixed lever of 100 makes the test sensitive to the direction.
    double q[3];
    mathAddVec(o, d, 100.0, q);
    return std::fabs(height(q, po, n)) < tol ? 1 : 0;
}

int mathIntLinPln(const double *o, const double *d, const double *po, const double *n,
                  double tolDist, double tolPar, double *out) {
    const double h = height(o, po, n);
    const double c = dot3(d, n);
    if (std::fabs(c) < tolPar) {
        // Parallel: out = o even when the line is apart from the plane.
        copy3(o, out);
        return std::fabs(h) < tolDist ? 4 : 2;
    }
    const double t = -h / c;
    out[0] = o[0] + t * d[0];
    out[1] = o[1] + t * d[1];
    out[2] = o[2] + t * d[2];
    return 1;
}

int mathIntSegmPln(const double *a, const double *b, const double *po, const double *n, double tol,
                   double *out1, double *out2, double *t1, double *t2) {
    const double h1 = height(a, po, n);
    const double h2 = height(b, po, n);
    if (h1 > tol && h2 > tol)
        return 0;
    if (h1 < -tol && h2 < -tol)
        return 0;
    if (std::fabs(h1) < tol && std::fabs(h2) < tol) {
        copy3(a, out1);
        copy3(b, out2);
        *t1 = 0.0;
        *t2 = 1.0;
        return 4;
    }
    // An end on the plane is always reported through the first output.
    if (std::fabs(h1) < tol) {
        copy3(a, out1);
        *t1 = 0.0;
        return 1;
    }
    if (std::fabs(h2) < tol) {
        copy3(b, out1);
        *t1 = 1.0;
        return 1;
    }
    if (h1 * h2 >= 0.0)
        return 0;
    const double t = h1 / (h1 - h2);
    *t1 = t;
    mathMixPnt(a, b, 1.0 - t, t, out1);
    return 1;
}

int mathIsPlnOverlap(const double *p1, const double *na, const double *p2, const double *nb,
                     double tolDist, double tolPar) {
    double c[3];
    cross3(na, nb, c);
    if (len3(c) >= tolPar)
        return 0;
    return std::fabs(height(p1, p2, na)) < tolDist ? 1 : 0;
}

int mathIntPln(const double *p1, const double *na, const double *p2, const double *nb,
               double tolDist, double tolPar, double *out, double *dir) {
    cross3(na, nb, dir);
    const double len = len3(dir);
    if (len < tolPar)
        return std::fabs(height(p1, p2, na)) < tolDist ? 4 : 2;
    const double c1 = dot3(p1, na);
    const double c2 = dot3(p2, nb);
    const double half = len * 0.5;
    // Zero the coordinate along the dominant axis of dir and solve the other
    // two by Cramer's rule; z is taken without a test.
    if (std::fabs(dir[0]) > half) {
        out[0] = 0.0;
        out[1] = (c1 * nb[2] - c2 * na[2]) / dir[0];
        out[2] = (c2 * na[1] - c1 * nb[1]) / dir[0];
    } else if (std::fabs(dir[1]) > half) {
        out[1] = 0.0;
        out[0] = (c2 * na[2] - c1 * nb[2]) / dir[1];
        out[2] = (c1 * nb[0] - c2 * na[0]) / dir[1];
    } else {
        out[2] = 0.0;
        out[0] = (c1 * nb[1] - c2 * na[1]) / dir[2];
        out[1] = (c2 * na[0] - c1 * nb[0]) / dir[2];
    }
    const double r = 1.0 / len;
    dir[0] *= r;
    dir[1] *= r;
    dir[2] *= r;
    return 1;
}

int mathInt3Pln(const double *p1, const double *na, const double *p2, const double *nb,
                const double *p3, const double *nc, double tol, double *out) {
    const double c1 = dot3(p1, na);
    const double c2 = dot3(p2, nb);
    const double c3 = dot3(p3, nc);
    // The solver's result is never 800, so 801 comes back in every case: a
    // singular system shows only as an untouched out.
    mathSolLineEqua33(na[0], na[1], na[2], nb[0], nb[1], nb[2], nc[0], nc[1], nc[2], c1, c2, c3,
                      tol * tol, &out[0], &out[1], &out[2]);
    return 801;
}
