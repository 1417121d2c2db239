// Free functions on raw float matrices (9 or 16 floats, row by row, row
// vectors, translation in the last row) and on double view matrices.
#include <korvane/classes.h>

#include "classes/class_ops.h"

#include <cmath>

namespace {

// Wraps x into [lo, hi]: inside (ends included) it stays, outside it is
// reduced by whole periods; a period below 1e-06 gives the midpoint.
double wrapToRange(double x, double lo, double hi) {
    double p = hi - lo;
    if (p < 1e-06)
        return (lo + hi) * 0.5;
    if (x >= lo && x <= hi)
        return x;
    return x - std::floor((x - lo) / p) * p;
}

// The shear angle kept off the quarter and three-quarter turns, so that its
// tangent stays finite. The constants are exact as they stand, including the
// quarter turn 1.5707963269748966.
double safeShearAngle(double a) {
    double t = wrapToRange(a, 0.0, 6.283185307179586);
    double d = t - 1.5707963269748966;
    if (std::fabs(d) < 0.0097266)
        return t >= 1.5717963269748965 ? 1.5805229269748966 : 1.5610697269748965;
    if (std::fabs(d - 3.141592653589793) < 0.0097266)
        return t >= 4.71338898056469 ? 4.722115580564689 : 4.70266238056469;
    return t;
}

// move(-c) * core * move(c), all 3 by 3.
void aboutPoint2D(float cx, float cy, const float *core, float *m) {
    float t[9], b[9];
    MakeMoveMatrix(-cx, -cy, t);
    MakeMoveMatrix(cx, cy, b);
    MultiMatrix2D(t, core, t);
    MultiMatrix2D(t, b, m);
}

void rotate2D(double a, float *m) {
    InitMatrix2D(m);
    float c = float(std::cos(a)), s = float(std::sin(a));
    m[0] = c;
    m[1] = s;
    m[3] = -s;
    m[4] = c;
}

void shear2D(float cx, float cy, float a, int at, float *m) {
    float h[9];
    InitMatrix2D(h);
    h[at] = float(std::tan(safeShearAngle(a)));
    aboutPoint2D(cx, cy, h, m);
}

void transDouble(double x, double y, double z, const double *m, point_3d &out) {
    double ox, oy, oz;
    korvane::rowTimes4(x, y, z, m, ox, oy, oz);
    out.Set(float(ox), float(oy), float(oz));
}

} // namespace

namespace korvane {

void axisRotation(int axis, double a, float *m) {
    InitMatrix3D(m);
    float c = float(std::cos(a)), s = float(std::sin(a));
    if (axis == 0) {
        m[5] = m[10] = c;
        m[6] = s;
        m[9] = -s;
    } else if (axis == 1) {
        m[0] = m[10] = c;
        m[8] = s;
        m[2] = -s;
    } else {
        m[0] = m[5] = c;
        m[1] = s;
        m[4] = -s;
    }
}

} // namespace korvane

void InitMatrix2D(float *m) {
    for (int i = 0; i < 9; ++i)
        m[i] = (i % 4 == 0) ? 1.0f : 0.0f;
}

void InitMatrix3D(float *m) {
    for (int i = 0; i < 16; ++i)
        m[i] = (i % 5 == 0) ? 1.0f : 0.0f;
}

void ClearMatrix2D(float *m, float v) {
    for (int i = 0; i < 9; ++i)
        m[i] = v;
}

void ClearMatrix3D(float *m, float v) {
    for (int i = 0; i < 16; ++i)
        m[i] = v;
}

void CopyMatrix2D(const float *a, float *m) {
    for (int i = 0; i < 9; ++i)
        m[i] = a[i];
}

void CopyMatrix3D(const float *a, float *m) {
    for (int i = 0; i < 16; ++i)
        m[i] = a[i];
}

void MultiMatrix2D(const float *a, const float *b, float *m) {
    // formed locally, so m may be a or b
    float r[9];
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            r[3 * i + j] = float(double(a[3 * i]) * b[j] + double(a[3 * i + 1]) * b[3 + j] +
                                 double(a[3 * i + 2]) * b[6 + j]);
    CopyMatrix2D(r, m);
}

void MultiMatrix3D(const float *a, const float *b, float *m) {
    float r[16];
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j)
            r[4 * i + j] =
                float(double(a[4 * i]) * b[j] + double(a[4 * i + 1]) * b[4 + j] +
                      double(a[4 * i + 2]) * b[8 + j] + double(a[4 * i + 3]) * b[12 + j]);
    CopyMatrix3D(r, m);
}

void Matrix2DTo3D(const float *a, float *m) {
    const float r[16] = {a[0], a[1], 0.0f, a[2], a[3], a[4], 0.0f, a[5],
                         0.0f, 0.0f, 1.0f, 0.0f, a[6], a[7], 0.0f, a[8]};
    CopyMatrix3D(r, m);
}

int GetInverseMatrix2D(const float *a, float *m) {
    const double a0 = a[0], a1 = a[1], a2 = a[2], a3 = a[3], a4 = a[4], a5 = a[5], a6 = a[6],
                 a7 = a[7], a8 = a[8];
    // Sarrus, in this order of terms
    double det =
        a0 * a4 * a8 + a1 * a5 * a6 + a2 * a3 * a7 - a0 * a5 * a7 - a8 * a1 * a3 - a4 * a6 * a2;
    // a fixed threshold, not a global tolerance
    if (std::fabs(det) < 1e-06)
        return 0;
    double inv = 1.0 / det;
    // The adjugate is stored in m first, then each stored element is scaled.
    const float adj[9] = {
        float(a4 * a8 - a5 * a7), float(a2 * a7 - a1 * a8), float(a1 * a5 - a2 * a4),
        float(a5 * a6 - a3 * a8), float(a0 * a8 - a2 * a6), float(a2 * a3 - a0 * a5),
        float(a3 * a7 - a4 * a6), float(a1 * a6 - a0 * a7), float(a0 * a4 - a1 * a3)};
    for (int i = 0; i < 9; ++i)
        m[i] = float(double(adj[i]) * inv);
    return 1;
}

// ---- 2D constructors --------------------------------------------------------

void MakeMoveMatrix(float dx, float dy, float *m) {
    InitMatrix2D(m);
    m[6] = dx;
    m[7] = dy;
}

void MakeRotateMatrix(float cx, float cy, float a, float *m) {
    float r[9];
    rotate2D(a, r);
    aboutPoint2D(cx, cy, r, m);
}

void MakeScaleMatrix(float cx, float cy, float sx, float sy, float *m) {
    float s[9];
    InitMatrix2D(s);
    s[0] = sx;
    s[4] = sy;
    aboutPoint2D(cx, cy, s, m);
}

void MakeMirrorMatrix(float cx, float cy, float a, float *m) {
    // Five factors multiplied strictly left to right, each product stored.
    float t[9], step[9];
    MakeMoveMatrix(-cx, -cy, t);
    rotate2D(-double(a), step);
    MultiMatrix2D(t, step, t);
    InitMatrix2D(step);
    step[4] = -1.0f;
    MultiMatrix2D(t, step, t);
    rotate2D(a, step);
    MultiMatrix2D(t, step, t);
    MakeMoveMatrix(cx, cy, step);
    MultiMatrix2D(t, step, m);
}

void MakeShearMatX(float cx, float cy, float a, float *m) {
    shear2D(cx, cy, a, 3, m);
}
void MakeShearMatY(float cx, float cy, float a, float *m) {
    shear2D(cx, cy, a, 1, m);
}

void MakeShearMatrix(const point_2d &p, const point_2d &q, float a, float *m) {
    point_2d u = q - p;
    float len = u.Unit();
    if (len < 1e-05) {
        MakeShearMatX(p.x, p.y, a, m);
        return;
    }
    const float f[9] = {u.x, u.y, 0.0f, -u.y, u.x, 0.0f, p.x, p.y, 1.0f};
    float g[9], h[9];
    InitMatrix2D(g);
    GetInverseMatrix2D(f, g);
    InitMatrix2D(h);
    // y' = y + t x in the line's frame, where the fallback shears along x
    h[1] = float(std::tan(safeShearAngle(a)));
    MultiMatrix2D(g, h, g);
    MultiMatrix2D(g, f, m);
}

// ---- 3D constructors --------------------------------------------------------

void MakeMove3D(float dx, float dy, float dz, float *m) {
    InitMatrix3D(m);
    m[12] = dx;
    m[13] = dy;
    m[14] = dz;
}

void MakeRotate3D_X(float a, float *m) {
    korvane::axisRotation(0, a, m);
}
void MakeRotate3D_Y(float a, float *m) {
    korvane::axisRotation(1, a, m);
}
void MakeRotate3D_Z(float a, float *m) {
    korvane::axisRotation(2, a, m);
}

void MakeRotate3D_V(const point_3d *v, float a, float *m) {
    double dx = double(v[1].x) - v[0].x, dy = double(v[1].y) - v[0].y, dz = double(v[1].z) - v[0].z;
    double len = std::sqrt(dx * dx + dy * dy + dz * dz);
    if (len < 0.01) {
        InitMatrix3D(m);
        return;
    }
    double half = double(a) / 2.0;
    double w = std::cos(half), s = std::sin(half);
    // unit quaternion (x, y, z, w)
    double x = dx * s / len, y = dy * s / len, z = dz * s / len;
    const float r[16] = {float(1.0 - 2.0 * y * y - 2.0 * z * z),
                         float(2.0 * x * y + 2.0 * z * w),
                         float(2.0 * x * z - 2.0 * y * w),
                         0.0f,
                         float(2.0 * x * y - 2.0 * z * w),
                         float(1.0 - 2.0 * x * x - 2.0 * z * z),
                         float(2.0 * y * z + 2.0 * x * w),
                         0.0f,
                         float(2.0 * x * z + 2.0 * y * w),
                         float(2.0 * y * z - 2.0 * x * w),
                         float(1.0 - 2.0 * x * x - 2.0 * y * y),
                         0.0f,
                         0.0f,
                         0.0f,
                         0.0f,
                         1.0f};
    float t[16], b[16];
    MakeMove3D(-v[0].x, -v[0].y, -v[0].z, t);
    MakeMove3D(v[0].x, v[0].y, v[0].z, b);
    MultiMatrix3D(t, r, t);
    MultiMatrix3D(t, b, m);
}

namespace {

// The two rotations of MakeRotate_VToZ: A about x (ny, nz into the xz
// plane), B about y (onto +z); sign -1 builds their inverses. Returns false
// when the points are too close, having set m to the identity.
bool vToZFactors(const point_3d *v, float sign, float *a, float *b, bool &skipA, float *m) {
    double dx = double(v[1].x) - v[0].x, dy = double(v[1].y) - v[0].y, dz = double(v[1].z) - v[0].z;
    double len = std::sqrt(dx * dx + dy * dy + dz * dz);
    if (len < 0.001) {
        InitMatrix3D(m);
        return false;
    }
    double nx = dx / len, ny = dy / len, nz = dz / len;
    double q = std::sqrt(ny * ny + nz * nz);
    InitMatrix3D(b);
    b[0] = float(q);
    b[10] = float(q);
    b[2] = float(sign * nx);
    b[8] = float(-sign * nx);
    skipA = q < 0.001;
    InitMatrix3D(a);
    if (!skipA) {
        a[5] = a[10] = float(nz / q);
        a[6] = float(sign * (ny / q));
        a[9] = float(-sign * (ny / q));
    }
    return true;
}

} // namespace

void MakeRotate_VToZ(const point_3d *v, float *m) {
    float a[16], b[16], t[16];
    bool skipA;
    if (!vToZFactors(v, 1.0f, a, b, skipA, m))
        return;
    MakeMove3D(-v[0].x, -v[0].y, -v[0].z, t);
    if (!skipA)
        MultiMatrix3D(t, a, t);
    MultiMatrix3D(t, b, m);
}

void MakeRotate_ZToV(const point_3d *v, float *m) {
    float a[16], b[16], t[16];
    bool skipA;
    if (!vToZFactors(v, -1.0f, a, b, skipA, m))
        return;
    MakeMove3D(v[0].x, v[0].y, v[0].z, t);
    if (!skipA)
        MultiMatrix3D(b, a, b);
    MultiMatrix3D(b, t, m);
}

void MakeRotateMat3D(point_3d p, float a, float b, float *m) {
    float r[16], acc[16];
    MakeMove3D(-p.x, -p.y, -p.z, acc);
    korvane::axisRotation(2, -double(a), r);
    MultiMatrix3D(acc, r, acc);
    korvane::axisRotation(0, -double(b), r);
    MultiMatrix3D(acc, r, acc);
    korvane::axisRotation(2, a, r);
    MultiMatrix3D(acc, r, acc);
    MakeMove3D(p.x, p.y, p.z, r);
    MultiMatrix3D(acc, r, m);
}

// ---- Applying matrices -------------------------------------------------------

void TransPoint2D(const point_2d &p, point_2d *out, const float *m) {
    double ox, oy;
    korvane::rowTimes3(p.x, p.y, m, ox, oy);
    out->Set(float(ox), float(oy));
}

void TransPoint2D(const point_3d &p, point_2d *out, const float *m) {
    double ox, oy;
    korvane::rowTimes3(p.x, p.y, m, ox, oy);
    out->Set(float(ox), float(oy));
}

void TransPoint2D(const point_3d &p, point_3d *out, const float *m) {
    double ox, oy;
    korvane::rowTimes3(p.x, p.y, m, ox, oy);
    out->Set(float(ox), float(oy), p.z);
}

void TransPoint3D(const point_3d &p, point_3d *out, const float *m) {
    double ox, oy, oz;
    korvane::rowTimes4(p.x, p.y, p.z, m, ox, oy, oz);
    out->Set(float(ox), float(oy), float(oz));
}

void TransPoint3D(const point_3d &p, point_2d *out, const float *m) {
    double ox, oy, oz;
    korvane::rowTimes4(p.x, p.y, p.z, m, ox, oy, oz);
    out->Set(float(ox), float(oy));
}

void TransPoint3D(const point_2d &p, point_2d *out, const float *m) {
    double ox, oy, oz;
    korvane::rowTimes4(p.x, p.y, 0.0, m, ox, oy, oz);
    out->Set(float(ox), float(oy));
}

void TransPointList2D(const point_2d *in, unsigned short n, point_2d *out, const float *m) {
    for (unsigned i = 0; i < n; ++i)
        TransPoint2D(in[i], out + i, m);
}

void TransPointList2D(const point_3d *in, unsigned short n, point_2d *out, const float *m) {
    for (unsigned i = 0; i < n; ++i)
        TransPoint2D(in[i], out + i, m);
}

void TransPointList2D(const point_3d *in, unsigned short n, point_3d *out, const float *m) {
    for (unsigned i = 0; i < n; ++i)
        TransPoint2D(in[i], out + i, m);
}

void mathMatrixPt_2D(const point_2d &p, point_3d &out, const double *m) {
    transDouble(p.x, p.y, 0.0, m, out);
}

void mathMatrixNDPt_2D(const nd_point_2d &p, point_3d &out, const double *m) {
    transDouble(p.x, p.y, 0.0, m, out);
}

void mathMatrixPt_3D(const point_3d &p, point_3d &out, const double *m) {
    transDouble(p.x, p.y, p.z, m, out);
}

// The corners are taken as they stand, also those of an empty box.
void mathMatrixBox2D(const Box2D &b, Box3D &out, const double *m) {
    const double xs[4] = {b.min.x, b.max.x, b.max.x, b.min.x};
    const double ys[4] = {b.min.y, b.min.y, b.max.y, b.max.y};
    out.EmptyBox();
    for (int i = 0; i < 4; ++i) {
        point_3d c;
        transDouble(xs[i], ys[i], 0.0, m, c);
        out.AddPt(c);
    }
}

void mathMatrixBox3D(const Box3D &b, Box3D &out, const double *m) {
    const double xs[4] = {b.min.x, b.max.x, b.max.x, b.min.x};
    const double ys[4] = {b.min.y, b.min.y, b.max.y, b.max.y};
    const double zs[2] = {b.min.z, b.max.z};
    out.EmptyBox();
    for (int k = 0; k < 2; ++k)
        for (int i = 0; i < 4; ++i) {
            point_3d c;
            transDouble(xs[i], ys[i], zs[k], m, c);
            out.AddPt(c);
        }
}
