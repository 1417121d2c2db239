// Boxes against lines, planes, spheres and a translation direction, and the
// exact bounds of a box carried through a frame.
#include <korvane/containers.h>
#include <korvane/frames.h>

#include <cmath>

#include "kernel/vector_ops.h"

using namespace korvane;

int mathChkBoxLinInt(const double *box, const double *p, const double *d, double tol) {
    double lo = -1e10, hi = 1e10;
    for (int i = 0; i < 3; ++i) {
        const double mn = box[i], mx = box[3 + i];
        if (std::fabs(d[i]) < 1e-10) {
            // Parallel to the slab: the line must lie within it.
            if ((mx - p[i] + tol) * (mn - p[i] - tol) > 0.0)
                return 0;
            continue;
        }
        double a = (mn - p[i] - tol) / d[i];
        double b = (mx - p[i] + tol) / d[i];
        if (d[i] <= 0.0) {
            const double t = a;
            a = b;
            b = t;
        }
        if (!mathIntInt(a, b, lo, hi, 1e-10, &lo, &hi))
            return 0;
    }
    return 1;
}

int mathChkBoxPlnInt(const double *box, const double *p, const double *n, double tol, double *gap) {
    double lo = 0.0, hi = 0.0;
    for (int i = 0; i < 3; ++i) {
        const double pMin = box[i] * n[i];
        const double pMax = box[3 + i] * n[i];
        if (std::fabs(pMin) <= 1e-20 && std::fabs(pMax) <= 1e-20)
            continue;
        if (n[i] < 0.0) {
            lo += pMax;
            hi += pMin;
        } else {
            lo += pMin;
            hi += pMax;
        }
    }
    const double e = dot3(p, n);
    if (lo - tol < e && e < hi + tol) {
        *gap = 0.0;
        return 1;
    }
    // Negative when the box lies wholly on the negative side of the plane.
    *gap = lo <= e ? hi - e : lo - e;
    return 0;
}

int mathChkBox3DIntSph(const double *box, const double *c, double r, double tol) {
    double nearSum = 0.0, farSum = 0.0;
    for (int i = 0; i < 3; ++i) {
        const double a = (c[i] - box[i]) * (c[i] - box[i]);
        const double b = (c[i] - box[3 + i]) * (c[i] - box[3 + i]);
        const double larger = a > b ? a : b;
        farSum += larger;
        // The larger of the two squares, on purpose: a sphere touching the
        // near face of a distant box does not count.
        if (box[i] > c[i] || c[i] > box[3 + i])
            nearSum += larger;
    }
    if (!(std::sqrt(nearSum) - tol < r))
        return 0;
    return std::sqrt(farSum) + tol > r ? 1 : 0;
}

int mathChkPalVecThrTwoBox(const double *a, const double *b, const double *d, double tol) {
    double tLo = -1e10, tHi = 1e10;
    for (int i = 0; i < 3; ++i) {
        double lo = b[i] - a[3 + i];
        double hi = b[3 + i] - a[i];
        if (std::fabs(d[i]) < 1e-20) {
            if (lo > tol || -tol > hi)
                return 0;
            continue;
        }
        lo /= d[i];
        hi /= d[i];
        if (d[i] <= 0.0) {
            const double t = lo;
            lo = hi;
            hi = t;
        }
        if (lo > tLo)
            tLo = lo;
        if (hi <= tHi)
            tHi = hi;
        if (tHi + tol < tLo)
            return 0;
    }
    return 1;
}

namespace {

// Bounds of one output axis: start from base and add c * min to the minimum
// and c * max to the maximum for a non-negative coefficient, crossed for a
// negative one. The corners are never formed.
void accumulate(double c, double inMin, double inMax, double *outMin, double *outMax) {
    if (c >= 0.0) {
        *outMin += c * inMin;
        *outMax += c * inMax;
    } else {
        *outMin += c * inMax;
        *outMax += c * inMin;
    }
}

} // namespace

void mathTransLocalBox2D(const RFrame *frame, const double *box, double *out) {
    const double *axes[2] = {frame->xAxis, frame->yAxis};
    double t[6];
    for (int i = 0; i < 3; ++i) {
        t[i] = frame->origin[i];
        t[3 + i] = frame->origin[i];
        for (int j = 0; j < 2; ++j)
            accumulate(axes[j][i], box[j], box[2 + j], &t[i], &t[3 + i]);
    }
    for (int k = 0; k < 6; ++k)
        out[k] = t[k];
}

void mathTransLocalBox3D(const RFrame *frame, const double *box, double *out) {
    const double *axes[3] = {frame->xAxis, frame->yAxis, frame->zAxis};
    double t[6];
    for (int i = 0; i < 3; ++i) {
        t[i] = frame->origin[i];
        t[3 + i] = frame->origin[i];
        for (int j = 0; j < 3; ++j)
            accumulate(axes[j][i], box[j], box[3 + j], &t[i], &t[3 + i]);
    }
    for (int k = 0; k < 6; ++k)
        out[k] = t[k];
}

void mathTransWorldBox3D(const RFrame *frame, const double *box, double *out) {
    const double *axes[3] = {frame->xAxis, frame->yAxis, frame->zAxis};
    double t[6];
    for (int i = 0; i < 3; ++i) {
        t[i] = -dot3(frame->origin, axes[i]);
        t[3 + i] = t[i];
        for (int j = 0; j < 3; ++j)
            accumulate(axes[i][j], box[j], box[3 + j], &t[i], &t[3 + i]);
    }
    for (int k = 0; k < 6; ++k)
        out[k] = t[k];
}
