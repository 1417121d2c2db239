// Points, vectors and weighted point strings between frame and world
// coordinates, through an RFrame or through its fields passed one by one. The
// axes are taken as orthonormal and the scale field is ignored.
#include <korvane/frames.h>

#include "frames/frame_ops.h"

using namespace korvane;

namespace {

using PointMap = void (*)(const double *, const double *, const double *, const double *,
                          const double *, double *);

// Weighted points one by one: dehomogenise (refusing |w| < 1e-10, either
// sign), transform as a point, weight again. Each point is read whole before
// it is written, so in and out may be one string.
int transformStr4(int n, const RFrame *f, const double *in, double *out, PointMap map) {
    if (n < 1)
        return 1;
    for (int i = 0; i < n; ++i) {
        const double *h = in + 4 * i;
        double p[3];
        if (!mathGetPnt4(h, p))
            return 0;
        const double w = h[3];
        map(f->xAxis, f->yAxis, f->zAxis, f->origin, p, p);
        double *o = out + 4 * i;
        o[0] = p[0] * w;
        o[1] = p[1] * w;
        o[2] = p[2] * w;
        o[3] = w;
    }
    return 1;
}

} // namespace

// ---- Through a frame ---------------------------------------------------------------

void mathTransLocalPnt2D(const RFrame *frame, const double *p, double *out) {
    const double *x = frame->xAxis, *y = frame->yAxis, *o = frame->origin;
    const double r0 = p[0] * x[0] + p[1] * y[0] + o[0];
    const double r1 = p[0] * x[1] + p[1] * y[1] + o[1];
    const double r2 = p[0] * x[2] + p[1] * y[2] + o[2];
    out[0] = r0;
    out[1] = r1;
    out[2] = r2;
}

void mathTransLocalPnt3D(const RFrame *frame, const double *p, double *out) {
    localPnt3(frame->xAxis, frame->yAxis, frame->zAxis, frame->origin, p, out);
}

void mathTransWorldPnt3D(const RFrame *frame, const double *p, double *out) {
    worldPnt3(frame->xAxis, frame->yAxis, frame->zAxis, frame->origin, p, out);
}

void mathTransWorldPnt3DTo2D(const RFrame *frame, const double *p, double *out) {
    double d[3];
    sub3(p, frame->origin, d);
    const double r0 = dot3(d, frame->xAxis);
    const double r1 = dot3(d, frame->yAxis);
    out[0] = r0;
    out[1] = r1;
}

void mathTransLocalVec2D(const RFrame *frame, const double *v, double *out) {
    const double *x = frame->xAxis, *y = frame->yAxis;
    const double r0 = v[0] * x[0] + v[1] * y[0];
    const double r1 = v[0] * x[1] + v[1] * y[1];
    const double r2 = v[0] * x[2] + v[1] * y[2];
    out[0] = r0;
    out[1] = r1;
    out[2] = r2;
}

void mathTransLocalVec3D(const RFrame *frame, const double *v, double *out) {
    localVec3(frame->xAxis, frame->yAxis, frame->zAxis, v, out);
}

void mathTransWorldVec3D(const RFrame *frame, const double *v, double *out) {
    worldVec3(frame->xAxis, frame->yAxis, frame->zAxis, v, out);
}

int mathTransLocalStr4D(int n, const RFrame *frame, const double *in, double *out) {
    return transformStr4(n, frame, in, out, localPnt3);
}

int mathTransWorldStr4D(int n, const RFrame *frame, const double *in, double *out) {
    return transformStr4(n, frame, in, out, worldPnt3);
}

// ---- Through bare axes --------------------------------------------------------------

void mathTransWorldPnt2DByOX(const double *o, const double *xd, const double *p, double *out) {
    double d[2];
    sub2(p, o, d);
    // The y axis is xd turned a positive quarter: (-xd[1], xd[0]).
    const double x = dot2(d, xd);
    const double y = d[1] * xd[0] - d[0] * xd[1];
    out[0] = x;
    out[1] = y;
}

void mathTransLocalPnt2DByOX(const double *o, const double *xd, const double *p, double *out) {
    const double x = xd[0] * p[0] - xd[1] * p[1] + o[0];
    const double y = xd[0] * p[1] + xd[1] * p[0] + o[1];
    out[0] = x;
    out[1] = y;
}

void mathTransWorldPnt3DTo2DByOXY(const double *o, const double *x, const double *y,
                                  const double *p, double *out) {
    double d[3];
    sub3(p, o, d);
    const double r0 = dot3(d, x);
    const double r1 = dot3(d, y);
    out[0] = r0;
    out[1] = r1;
}

void mathTransWorldPnt3DByOXYZ(const double *o, const double *x, const double *y, const double *z,
                               const double *p, double *out) {
    worldPnt3(x, y, z, o, p, out);
}

void mathTransLocalPnt3DByOXYZ(const double *o, const double *x, const double *y, const double *z,
                               const double *p, double *out) {
    localPnt3(x, y, z, o, p, out);
}

void mathTransWorldVec3DByXYZ(const double *x, const double *y, const double *z, const double *v,
                              double *out) {
    worldVec3(x, y, z, v, out);
}

void mathTransLocalVec3DByXYZ(const double *x, const double *y, const double *z, const double *v,
                              double *out) {
    localVec3(x, y, z, v, out);
}
