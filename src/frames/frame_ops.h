// Inline frame arithmetic shared by the frame and box functions. Every helper
// reads all of its input before it writes, so outputs may alias inputs.
#ifndef KORVANE_FRAMES_FRAME_OPS_H
#define KORVANE_FRAMES_FRAME_OPS_H

#include <korvane/frames.h>

#include "kernel/vector_ops.h"

namespace korvane {

// x X + y Y + z Z + O.
inline void localPnt3(const double *x, const double *y, const double *z, const double *o,
                      const double *p, double *out) {
    const double r0 = p[0] * x[0] + p[1] * y[0] + p[2] * z[0] + o[0];
    const double r1 = p[0] * x[1] + p[1] * y[1] + p[2] * z[1] + o[1];
    const double r2 = p[0] * x[2] + p[1] * y[2] + p[2] * z[2] + o[2];
    out[0] = r0;
    out[1] = r1;
    out[2] = r2;
}

// ((p - O).X, (p - O).Y, (p - O).Z).
inline void worldPnt3(const double *x, const double *y, const double *z, const double *o,
                      const double *p, double *out) {
    double d[3];
    sub3(p, o, d);
    const double r0 = dot3(d, x);
    const double r1 = dot3(d, y);
    const double r2 = dot3(d, z);
    out[0] = r0;
    out[1] = r1;
    out[2] = r2;
}

inline void localVec3(const double *x, const double *y, const double *z, const double *v,
                      double *out) {
    const double r0 = v[0] * x[0] + v[1] * y[0] + v[2] * z[0];
    const double r1 = v[0] * x[1] + v[1] * y[1] + v[2] * z[1];
    const double r2 = v[0] * x[2] + v[1] * y[2] + v[2] * z[2];
    out[0] = r0;
    out[1] = r1;
    out[2] = r2;
}

inline void worldVec3(const double *x, const double *y, const double *z, const double *v,
                      double *out) {
    const double r0 = dot3(v, x);
    const double r1 = dot3(v, y);
    const double r2 = dot3(v, z);
    out[0] = r0;
    out[1] = r1;
    out[2] = r2;
}

// Row vector times a row-form matrix, translation row included, no division.
inline void rowPnt3(const double *m, const double *p, double *out) {
    const double r0 = p[0] * m[0] + p[1] * m[4] + p[2] * m[8] + m[12];
    const double r1 = p[0] * m[1] + p[1] * m[5] + p[2] * m[9] + m[13];
    const double r2 = p[0] * m[2] + p[1] * m[6] + p[2] * m[10] + m[14];
    out[0] = r0;
    out[1] = r1;
    out[2] = r2;
}

// c = a * b for row-major 4x4 matrices, through a temporary.
inline void mult4x4(const double *a, const double *b, double *c) {
    double t[16];
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            t[4 * i + j] = a[4 * i] * b[j] + a[4 * i + 1] * b[4 + j] + a[4 * i + 2] * b[8 + j] +
                           a[4 * i + 3] * b[12 + j];
        }
    }
    for (int k = 0; k < 16; ++k)
        c[k] = t[k];
}

// Inverse of an orthonormal frame; the scale is set to 1.0, not inverted.
inline void invertFrame(const RFrame *f, RFrame *inv) {
    RFrame t;
    const double *axes[3] = {f->xAxis, f->yAxis, f->zAxis};
    for (int i = 0; i < 3; ++i) {
        t.xAxis[i] = axes[i][0];
        t.yAxis[i] = axes[i][1];
        t.zAxis[i] = axes[i][2];
    }
    t.origin[0] = -dot3(f->xAxis, f->origin);
    t.origin[1] = -dot3(f->yAxis, f->origin);
    t.origin[2] = -dot3(f->zAxis, f->origin);
    t.scale = 1.0;
    *inv = t;
}

// Row form of a frame.
inline void rowMatrix(const RFrame *f, double *m) {
    for (int i = 0; i < 3; ++i) {
        m[i] = f->xAxis[i];
        m[4 + i] = f->yAxis[i];
        m[8 + i] = f->zAxis[i];
        m[12 + i] = f->origin[i];
    }
    m[3] = 0.0;
    m[7] = 0.0;
    m[11] = 0.0;
    m[15] = f->scale;
}

inline void identityFrame(RFrame *f) {
    for (int i = 0; i < 3; ++i) {
        f->xAxis[i] = 0.0;
        f->yAxis[i] = 0.0;
        f->zAxis[i] = 0.0;
        f->origin[i] = 0.0;
    }
    f->xAxis[0] = 1.0;
    f->yAxis[1] = 1.0;
    f->zAxis[2] = 1.0;
    f->scale = 1.0;
}

} // namespace korvane

#endif
