// Segments in space: boxes, parameters, nearest points, the intersection of
// two segments, and a segment against a line of sight.
#include <korvane/geometry.h>
#include <korvane/kernel.h>

#include <cmath>

#include "kernel/vector_ops.h"

using namespace korvane;

void mathGetBoxSegm(const double *a, const double *b, double *min, double *max) {
    for (int i = 0; i < 3; ++i) {
        const double lo = a[i] < b[i] ? a[i] : b[i];
        const double hi = a[i] < b[i] ? b[i] : a[i];
        min[i] = lo;
        max[i] = hi;
    }
}

double mathCalPntSegmPara(const double *a, const double *b, const double *p) {
    double d[3], w[3];
    sub3(b, a, d);
    const double q = dot3(d, d);
    if (q < 1e-20)
        return 0.0;
    sub3(p, a, w);
    return dot3(w, d) / q;
}

int mathChkPntSegm(const double *p, const double *a, const double *b, double tol) {
    for (int i = 0; i < 3; ++i) {
        const double lo = a[i] < b[i] ? a[i] : b[i];
        const double hi = a[i] < b[i] ? b[i] : a[i];
        if (lo > p[i] + tol || hi + tol < p[i])
            return 0;
    }
    double d[3], w[3];
    sub3(b, a, d);
    sub3(a, p, w);
    const double s = dot3(w, d);
    const double q = dot3(d, d);
    double r = dot3(w, w);
    if (q > 1e-20) {
        const double t = -s / q;
        if (t > 1.0)
            r = r + (s + s) + q; // squared distance to b
        else if (t > 0.0)
            r = r + t * s; // squared distance to the foot
    }
    return std::sqrt(r) < tol ? 1 : 0;
}

double mathGetPntSegmNearestPnt(const double *p, const double *a, const double *b, double *out) {
    double d[3], w[3];
    sub3(b, a, d);
    sub3(a, p, w);
    const double q = dot3(d, d);
    double t = 0.0;
    if (q > 1e-20)
        t = mathClamp01(dot3(w, d) * (-1.0 / q));
    out[0] = a[0] + t * d[0];
    out[1] = a[1] + t * d[1];
    out[2] = a[2] + t * d[2];
    return dist3(p, out);
}

double mathGetPntSegmNDT(const double *p, const double *a, const double *b, double *t) {
    *t = 0.0;
    double w[3], d[3];
    sub3(a, p, w);
    sub3(b, a, d);
    const double q = dot3(d, d);
    const double r = dot3(w, w);
    const double s = dot3(w, d);
    if (q <= 1e-20)
        return std::sqrt(r);
    const double u = -s / q;
    *t = u;
    if (u > 1.0) {
        *t = 1.0;
        return std::sqrt(r + (s + s) + q);
    }
    if (u > 0.0)
        return std::sqrt(r + u * s);
    *t = 0.0;
    return std::sqrt(r);
}

namespace {

// Unit direction of b - a through the reciprocal, with its length; 0 when
// the segment is shorter than 1e-8.
int segmentDir(const double *a, const double *b, double *e, double *len) {
    sub3(b, a, e);
    *len = len3(e);
    if (*len < 1e-8)
        return 0;
    const double r = 1.0 / *len;
    e[0] *= r;
    e[1] *= r;
    e[2] *= r;
    return 1;
}

double along(const double *p, const double *o, const double *e) {
    double w[3];
    sub3(p, o, w);
    return dot3(w, e);
}

// True when both extents lie beyond the same end of [0, len], by more than tol.
bool bothOutside(double u1, double u2, double len, double tol) {
    return (u1 > len + tol && u2 > len + tol) || (u1 < -tol && u2 < -tol);
}

} // namespace

int mathIntSegm(const double *a1, const double *a2, const double *b1, const double *b2,
                double tolDist, double tolPar, double *out1, double *out2) {
    for (int i = 0; i < 3; ++i) {
        const double lo1 = a1[i] < a2[i] ? a1[i] : a2[i];
        const double hi1 = a1[i] < a2[i] ? a2[i] : a1[i];
        const double lo2 = b1[i] < b2[i] ? b1[i] : b2[i];
        const double hi2 = b1[i] < b2[i] ? b2[i] : b1[i];
        if (lo1 > hi2 + tolDist || hi1 < lo2 - tolDist)
            return 0;
    }
    double e1[3], e2[3], len1, len2;
    if (!segmentDir(a1, a2, e1, &len1))
        return 800;
    const double u1 = along(b1, a1, e1);
    const double u2 = along(b2, a1, e1);
    if (bothOutside(u1, u2, len1, tolDist))
        return 0;
    if (!segmentDir(b1, b2, e2, &len2))
        return 800;
    if (bothOutside(along(a1, b1, e2), along(a2, b1, e2), len2, tolDist))
        return 0;

    const int r = mathIntLin(a1, e1, b1, e2, tolDist, tolPar, out1, out2);
    if (r == 1) {
        const double u = along(out1, a1, e1);
        const double v = along(out2, b1, e2);
        if (u <= -tolDist || u >= len1 + tolDist || v <= -tolDist || v >= len2 + tolDist)
            return 0;
        return 1;
    }
    if (r == 4) {
        const double umin = u1 < u2 ? u1 : u2;
        const double umax = u1 < u2 ? u2 : u1;
        const double lo = umin <= 0.0 ? 0.0 : umin;
        const double hi = umax > len1 ? len1 : umax;
        if (hi <= lo - tolDist)
            return 0;
        mathAddVec(a1, e1, lo, out1);
        mathAddVec(a1, e1, hi, out2);
        // Segments that only touch end to end meet in one point.
        return lo + tolDist < hi ? 4 : 1;
    }
    return 0;
}

int mathIntSegmLin(const double *a, const double *b, const double *o, const double *d, double tol,
                   double *out1, double *out2, double *t1, double *t2) {
    mathPrjPntPln(a, o, d, out1);
    mathPrjPntPln(b, o, d, out2);
    double e[3];
    sub3(out2, out1, e);
    const double da = dist3(out1, o);
    const double db = dist3(out2, o);
    if (da < tol && db < tol) {
        copy3(a, out1);
        *t1 = 0.0;
        copy3(b, out2);
        *t2 = 1.0;
        return 4;
    }
    if (da < tol) {
        copy3(a, out1);
        *t1 = 0.0;
        return 1;
    }
    if (db < tol) {
        // The parameter goes to *t2 here, and *t1 is left alone.
        copy3(b, out1);
        *t2 = 1.0;
        return 1;
    }
    const double len = len3(e);
    if (len <= 1e-10)
        return 0;
    const double r = 1.0 / len;
    const double f[3] = {e[0] * r, e[1] * r, e[2] * r};
    const double s = along(o, out1, f);
    if (s < -tol)
        return 0;
    if (s > len + tol)
        return 0;
    out1[0] = out1[0] + s * f[0];
    out1[1] = out1[1] + s * f[1];
    out1[2] = out1[2] + s * f[2];
    if (dist3(o, out1) >= tol)
        return 0;
    const double t = r * s;
    *t1 = t;
    mathMixPnt(a, b, 1.0 - t, t, out1);
    return 1;
}

int mathPickSegm(const double *a, const double *b, const double *o, const double *d, double tol) {
    double pa[3], pb[3], e[3];
    mathPrjPntPln(a, o, d, pa);
    mathPrjPntPln(b, o, d, pb);
    sub3(pb, pa, e);
    const double len = len3(e);
    // A segment seen end-on: the cursor against its one projected point.
    if (len < 1e-10)
        return dist3(o, pa) < tol ? 1 : 0;
    const double f[3] = {e[0] / len, e[1] / len, e[2] / len};
    const double s = along(o, pa, f);
    if (s < -tol)
        return 0;
    if (s > len + tol)
        return 0;
    const double q[3] = {pa[0] + s * f[0], pa[1] + s * f[1], pa[2] + s * f[2]};
    return dist3(o, q) < tol ? 1 : 0;
}
