// Reference frames: construction and motion, frame strings, the column-form
// matrix and the frame algebra built on it.
#include <korvane/frames.h>

#include <new>

#include "frames/frame_ops.h"

using namespace korvane;

// ---- Construction and motion ----------------------------------------------------

void mathInitRFrame(RFrame *frame) {
    if (frame)
        identityFrame(frame);
}

void mathMoveRFrame(const double *v, RFrame *frame) {
    add3(frame->origin, v, frame->origin);
}

void mathScaleRFrame(const double *v, int unused, RFrame *frame) {
    // Only a move: neither the axes nor the scale field change.
    (void)unused;
    add3(frame->origin, v, frame->origin);
}

void mathRotateRFrame(const double *pnt, const double *axis, double angle, RFrame *frame) {
    mathRotPnt(axis, pnt, angle, frame->origin, frame->origin);
    mathRotVec(axis, pnt, angle, frame->xAxis, frame->xAxis);
    mathRotVec(axis, pnt, angle, frame->yAxis, frame->yAxis);
    mathRotVec(axis, pnt, angle, frame->zAxis, frame->zAxis);
}

int mathDerivFrame(const double *origin, const double *zdir, const double *ref, RFrame *frame) {
    copy3(origin, frame->origin);
    copy3(zdir, frame->zAxis);
    if (!mathUniVec(frame->zAxis, 1e-8))
        return 0;
    if (!mathVProductUnit(ref, frame->zAxis, frame->xAxis))
        return 0;
    if (!mathVProductUnit(frame->zAxis, frame->xAxis, frame->yAxis))
        return 0;
    frame->scale = 1.0;
    return 1;
}

RFrame **mathNewRFrameStr(int n) {
    if (n < 0)
        return nullptr;
    RFrame **str = new (std::nothrow) RFrame *[static_cast<unsigned>(n)];
    if (!str)
        return nullptr;
    for (int i = 0; i < n; ++i) {
        RFrame *f = new (std::nothrow) RFrame;
        if (!f) {
            // Give back what was made so far rather than leave it stranded.
            for (int j = 0; j < i; ++j)
                delete str[j];
            delete[] str;
            return nullptr;
        }
        f->scale = 1.0; // the other twelve doubles are the caller's to set
        str[i] = f;
    }
    return str;
}

void mathFreRFrameStr(int n, RFrame **str) {
    if (!str)
        return;
    for (int i = 0; i < n; ++i)
        delete str[i];
    delete[] str;
}

// ---- Column form and frame algebra ----------------------------------------------

void mathGetMatrixFromRFrame(const RFrame *frame, double *m) {
    if (!frame || !m)
        return;
    for (int i = 0; i < 3; ++i) {
        m[4 * i] = frame->xAxis[i];
        m[4 * i + 1] = frame->yAxis[i];
        m[4 * i + 2] = frame->zAxis[i];
        m[4 * i + 3] = frame->origin[i];
    }
    m[12] = 0.0;
    m[13] = 0.0;
    m[14] = 0.0;
    m[15] = frame->scale;
}

void mathGetRFrameFromMatrix(const double *m, RFrame *frame) {
    if (!m || !frame)
        return;
    for (int i = 0; i < 3; ++i) {
        frame->xAxis[i] = m[4 * i];
        frame->yAxis[i] = m[4 * i + 1];
        frame->zAxis[i] = m[4 * i + 2];
        frame->origin[i] = m[4 * i + 3];
    }
    frame->scale = m[15];
}

void mathMatxMult4x4(const double *a, const double *b, double *c) {
    mult4x4(a, b, c);
}

void mathInvsRFrame(const RFrame *frame, RFrame *inverse) {
    invertFrame(frame, inverse);
}

void mathMultRFrame(const RFrame *a, const RFrame *b, RFrame *c) {
    if (!a || !b || !c)
        return;
    double ma[16], mb[16];
    mathGetMatrixFromRFrame(a, ma);
    mathGetMatrixFromRFrame(b, mb);
    mult4x4(ma, mb, ma);
    mathGetRFrameFromMatrix(ma, c);
}

void mathEvalRFrame(const RFrame *a, const RFrame *b, RFrame *result) {
    // The inverse has scale 1.0, so the result carries b's scale unchanged.
    RFrame inv;
    invertFrame(a, &inv);
    mathMultRFrame(&inv, b, result);
}

int mathRFrameEqu(const RFrame *a, const RFrame *b, double tol) {
    // A distance equal to tol passes; tol also serves as an angle in radians.
    if (mathDist(a->origin, b->origin) > tol)
        return 0;
    // mathGetAngle gives -1.0 for a too-short axis, which never fails here.
    if (mathGetAngle(a->xAxis, b->xAxis, tol) > tol)
        return 0;
    if (mathGetAngle(a->yAxis, b->yAxis, tol) > tol)
        return 0;
    if (mathGetAngle(a->zAxis, b->zAxis, tol) > tol)
        return 0;
    return 1;
}
