// Row-form 4x4 matrices: a row vector is multiplied from the left and the
// translation stands in row 3. Frames, points, weighted points and vectors
// through them, and the elementary motions.
#include <korvane/frames.h>

#include "frames/frame_ops.h"

using namespace korvane;

void mathMatxGetRFrame(const RFrame *frame, double *m) {
    if (frame)
        rowMatrix(frame, m);
}

void mathMatxWorldToRFrame(const RFrame *frame, double *m) {
    if (!frame)
        return;
    RFrame inv;
    invertFrame(frame, &inv);
    rowMatrix(&inv, m);
}

void mathMatxWorldToRFrame2(const RFrame *frame, double *m) {
    mathMatxWorldToRFrame(frame, m);
}

double *mathMatxRFrameToRFrame(const RFrame *a, const RFrame *b, double *m) {
    RFrame r;
    mathEvalRFrame(a, b, &r);
    rowMatrix(&r, m);
    return m;
}

double *mathMatxRFrameToRFrame2(const RFrame *a, const RFrame *b, double *m) {
    return mathMatxRFrameToRFrame(a, b, m);
}

void mathMatxPnt3D(const double *m, const double *p, double *out) {
    rowPnt3(m, p, out);
}

void mathMatxPnt4D(const double *m, const double *p, double *out) {
    const double w = p[3];
    // Signed test: negative weights are refused too, with out untouched.
    if (w < 1e-10)
        return;
    double q[3] = {p[0] / w, p[1] / w, p[2] / w};
    rowPnt3(m, q, q);
    out[0] = q[0] * w;
    out[1] = q[1] * w;
    out[2] = q[2] * w;
    out[3] = w;
}

void mathMatxVec3D(const double *m, const double *v, double *out) {
    // Zero and v go through as points and their images are subtracted, so the
    // translation cancels (up to the rounding of the two sums).
    const double zero[3] = {0.0, 0.0, 0.0};
    double o[3], q[3];
    rowPnt3(m, zero, o);
    rowPnt3(m, v, q);
    sub3(q, o, out);
}

void mathMatxRFrame(const double *m, const RFrame *frame, RFrame *out) {
    if (!frame || !out)
        return;
    double o[3], x[3], y[3];
    rowPnt3(m, frame->origin, o);
    mathMatxVec3D(m, frame->xAxis, x);
    mathMatxVec3D(m, frame->yAxis, y);
    out->scale = 1.0;
    copy3(o, out->origin);
    copy3(x, out->xAxis);
    copy3(y, out->yAxis);
    // z is rebuilt right-handed, so a mirror does not mirror it; when the
    // product cannot be made unit the old z stays.
    mathVProductUnit(out->xAxis, out->yAxis, out->zAxis);
}

void mathMatxMult16(const double *a, const double *b, double *c) {
    mult4x4(a, b, c);
}

double *mathMatxMove(const double *v, double *m) {
    RFrame f;
    identityFrame(&f);
    copy3(v, f.origin);
    rowMatrix(&f, m);
    return m;
}

double *mathMatxScale(const double *c, const double *s, double *m) {
    for (int k = 0; k < 16; ++k)
        m[k] = 0.0;
    m[0] = s[0];
    m[5] = s[1];
    m[10] = s[2];
    m[12] = (1.0 - s[0]) * c[0];
    m[13] = (1.0 - s[1]) * c[1];
    m[14] = (1.0 - s[2]) * c[2];
    m[15] = 1.0;
    return m;
}

void mathMatxRotate(const double *pnt, const double *axis, double angle, double *m) {
    // The world-to-frame map of a frame turned through -angle turns points
    // through +angle.
    RFrame f;
    identityFrame(&f);
    mathRotateRFrame(pnt, axis, -angle, &f);
    mathMatxWorldToRFrame(&f, m);
}

void mathMatxMirror(const double *pnt, const double *normal, double *m) {
    RFrame f;
    identityFrame(&f);
    mathMirPnt(pnt, normal, f.origin, f.origin);
    mathMirVec(pnt, normal, f.xAxis, f.xAxis);
    mathMirVec(pnt, normal, f.yAxis, f.yAxis);
    mathMirVec(pnt, normal, f.zAxis, f.zAxis);
    mathMatxWorldToRFrame(&f, m);
}
