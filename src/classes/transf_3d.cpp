// TRANSF_3D: the 4 by 4 transformation of space held as named parts.
#include <korvane/classes.h>

#include "classes/class_ops.h"

#include <cmath>

using korvane::gAbsDistTol;

namespace {

// The coordinate axis that seeds a frame across the direction d: z when |z|
// is at most |x| and |y|, else y when |y| is at most |x| and |z|, else x.
point_3d frameSeed(const point_3d &d) {
    double ax = std::fabs(double(d.x)), ay = std::fabs(double(d.y)), az = std::fabs(double(d.z));
    if (az <= ax && az <= ay)
        return point_3d(0.0f, 0.0f, 1.0f);
    if (ay <= ax && ay <= az)
        return point_3d(0.0f, 1.0f, 0.0f);
    return point_3d(1.0f, 0.0f, 0.0f);
}

TRANSF_3D fromAxisRotation(int axis, double a) {
    float m[16];
    korvane::axisRotation(axis, a, m);
    return TRANSF_3D(m);
}

// Move(-p) G R F Move(p), with G the inverse of the frame F and R the turn
// about its z axis. F already sits at p, so the outer moves shift the axis
// to 2p; this is the rotation as it is defined.
TRANSF_3D rotateAboutFrame(const TRANSF_3D &f, const point_3d &p, double a) {
    TRANSF_3D g = f.Inverse();
    TRANSF_3D r = fromAxisRotation(2, a);
    TRANSF_3D ma, mb;
    ma.DefMove(-p);
    mb.DefMove(p);
    return ma * g * r * f * mb;
}

} // namespace

TRANSF_3D::TRANSF_3D()
    : xAxis(1.0f, 0.0f, 0.0f), yAxis(0.0f, 1.0f, 0.0f), zAxis(0.0f, 0.0f, 1.0f),
      pAxis(0.0f, 0.0f, 0.0f), origin(0.0f, 0.0f, 0.0f), scale(1.0f) {}

TRANSF_3D::TRANSF_3D(const float *m) {
    Set16(m);
}

TRANSF_3D &TRANSF_3D::operator=(const TRANSF_2D &t) {
    Set2D(t);
    // flattens onto z = 0, where Set2D keeps z
    zAxis.Set(0.0f, 0.0f, 0.0f);
    return *this;
}

void TRANSF_3D::Init() {
    *this = TRANSF_3D();
}

void TRANSF_3D::Set16(const float *m) {
    xAxis.Set(m[0], m[1], m[2]);
    yAxis.Set(m[4], m[5], m[6]);
    zAxis.Set(m[8], m[9], m[10]);
    pAxis.Set(m[3], m[7], m[11]);
    origin.Set(m[12], m[13], m[14]);
    scale = m[15];
}

void TRANSF_3D::Set4X4(const float (*m)[4]) {
    Set16(&m[0][0]);
}

void TRANSF_3D::SetDbl16(const double *m) {
    float f[16];
    for (int i = 0; i < 16; ++i)
        f[i] = float(m[i]);
    Set16(f);
}

void TRANSF_3D::SetDbl4X4(const double (*m)[4]) {
    SetDbl16(&m[0][0]);
}

void TRANSF_3D::Get16(float *m) const {
    const float r[16] = {xAxis.x, xAxis.y, xAxis.z, pAxis.x, yAxis.x,  yAxis.y,  yAxis.z,  pAxis.y,
                         zAxis.x, zAxis.y, zAxis.z, pAxis.z, origin.x, origin.y, origin.z, scale};
    for (int i = 0; i < 16; ++i)
        m[i] = r[i];
}

void TRANSF_3D::Get4X4(float (*m)[4]) const {
    Get16(&m[0][0]);
}

void TRANSF_3D::GetDbl16(double *m) const {
    float r[16];
    Get16(r);
    for (int i = 0; i < 16; ++i)
        m[i] = r[i];
}

void TRANSF_3D::GetDbl4X4(double (*m)[4]) const {
    GetDbl16(&m[0][0]);
}

void TRANSF_3D::Set2D(const float *m) {
    xAxis.Set(m[0], m[1], 0.0f);
    yAxis.Set(m[3], m[4], 0.0f);
    zAxis.Set(0.0f, 0.0f, 1.0f);
    pAxis.Set(m[2], m[5], 0.0f);
    origin.Set(m[6], m[7], 0.0f);
    scale = m[8];
}

void TRANSF_3D::Set2D(const TRANSF_2D &t) {
    float m[9];
    t.Get9(m);
    Set2D(m);
}

point_3d TRANSF_3D::GetXAxis() const {
    return xAxis;
}
point_3d TRANSF_3D::GetYAxis() const {
    return yAxis;
}
point_3d TRANSF_3D::GetZAxis() const {
    return zAxis;
}
point_3d TRANSF_3D::GetOrigin() const {
    return origin;
}
point_3d TRANSF_3D::GetPAxis() const {
    return pAxis;
}
float TRANSF_3D::GetScale() const {
    return scale;
}

const float &TRANSF_3D::operator()(const int &row, const int &col) const {
    if (row < 0 || row > 3 || col < 0 || col > 3)
        return xAxis.x;
    const float *const cells[16] = {&xAxis.x,  &xAxis.y,  &xAxis.z,  &pAxis.x, &yAxis.x, &yAxis.y,
                                    &yAxis.z,  &pAxis.y,  &zAxis.x,  &zAxis.y, &zAxis.z, &pAxis.z,
                                    &origin.x, &origin.y, &origin.z, &scale};
    return *cells[4 * row + col];
}

// ---- Frames --------------------------------------------------------------------

void TRANSF_3D::Define(point_3d org, point_3d zdir) {
    zdir.Unit();
    Init();
    origin = org;
    zAxis = zdir;
    yAxis = zAxis.Xproduct(frameSeed(zAxis));
    xAxis = yAxis.Xproduct(zAxis);
    Unit();
}

void TRANSF_3D::Define(const double *org, const double *zdir) {
    // the direction is taken as it stands, not normalised
    point_3d o{float(org[0]), float(org[1]), float(org[2])};
    point_3d z{float(zdir[0]), float(zdir[1]), float(zdir[2])};
    Init();
    origin = o;
    zAxis = z;
    yAxis = zAxis.Xproduct(frameSeed(zAxis));
    xAxis = yAxis.Xproduct(zAxis);
    Unit();
}

void TRANSF_3D::Define(point_3d org, point_3d zdir, point_3d xdir) {
    origin = org;
    zAxis = zdir;
    xAxis = xdir;
    yAxis = zdir.Xproduct(xdir);
    Unit();
}

int TRANSF_3D::Unit() {
    // the axes are normalised one by one, not made perpendicular
    if (gAbsDistTol > xAxis.Unit() || gAbsDistTol > yAxis.Unit() || gAbsDistTol > zAxis.Unit()) {
        Init();
        return 0;
    }
    pAxis.Set(0.0f, 0.0f, 0.0f);
    scale = 1.0f;
    return 1;
}

// ---- Def family ------------------------------------------------------------------

void TRANSF_3D::DefMove(point_3d p) {
    Init();
    origin = p;
}

void TRANSF_3D::DefMove(const double *p) {
    point_3d o{float(p[0]), float(p[1]), float(p[2])};
    DefMove(o);
}

void TRANSF_3D::DefRotateXAxis(float a) {
    *this = fromAxisRotation(0, a);
}
void TRANSF_3D::DefRotateYAxis(float a) {
    *this = fromAxisRotation(1, a);
}
void TRANSF_3D::DefRotateZAxis(float a) {
    *this = fromAxisRotation(2, a);
}

void TRANSF_3D::DefRotate(float a, float b, float c) {
    Init();
    Rotate(a, b, c);
}

void TRANSF_3D::DefRotateLine(const point_3d &p, const point_3d &q, float a) {
    TRANSF_3D f;
    f.Define(p, q - p);
    *this = rotateAboutFrame(f, p, a);
}

void TRANSF_3D::DefRotate(const double *p, const double *d, double a) {
    TRANSF_3D f;
    f.Define(p, d);
    // The rotation about z takes its angle as a float, as DefRotateZAxis does.
    *this = rotateAboutFrame(f, point_3d(float(p[0]), float(p[1]), float(p[2])), float(a));
}

void TRANSF_3D::DefRotate(point_3d p, point_3d u, point_3d v) {
    point_3d n = u.Xproduct(v);
    float angle = u.AngleToVector(v);
    float len = n.Unit();
    if (gAbsDistTol > len) {
        if (gAbsDistTol > std::fabs(double(angle))) {
            Init();
            return;
        }
        // opposite directions: turn about an axis across u
        n = u.Xproduct(frameSeed(u));
        if (gAbsDistTol > n.Unit())
            return;
    }
    // q = p + 10 n, rounded once.
    point_3d q(float(double(p.x) + 10.0 * n.x), float(double(p.y) + 10.0 * n.y),
               float(double(p.z) + 10.0 * n.z));
    DefRotateLine(p, q, -angle);
    *this = Inverse();
}

void TRANSF_3D::DefScale(float sx, float sy, float sz) {
    Init();
    xAxis.x = sx;
    yAxis.y = sy;
    zAxis.z = sz;
}

void TRANSF_3D::DefScale(const point_3d &c, float sx, float sy, float sz) {
    TRANSF_3D ma, s, mb;
    ma.DefMove(-c);
    s.DefScale(sx, sy, sz);
    mb.DefMove(c);
    *this = ma * s * mb;
}

void TRANSF_3D::DefScale(const double *c, const double *s) {
    DefScale(point_3d(float(c[0]), float(c[1]), float(c[2])), float(s[0]), float(s[1]),
             float(s[2]));
}

void TRANSF_3D::DefMirrorXOYPlane() {
    DefScale(1.0f, 1.0f, -1.0f);
}
void TRANSF_3D::DefMirrorYOZPlane() {
    DefScale(-1.0f, 1.0f, 1.0f);
}
void TRANSF_3D::DefMirrorZOXPlane() {
    DefScale(1.0f, -1.0f, 1.0f);
}

void TRANSF_3D::DefMirror(unsigned int plane) {
    switch (plane) {
    case 0:
        DefMirrorXOYPlane();
        break;
    case 1:
        DefMirrorYOZPlane();
        break;
    case 2:
        DefMirrorZOXPlane();
        break;
    default:
        // an unknown plane leaves the object as it is
        break;
    }
}

void TRANSF_3D::DefMirrorPlane(const point_3d &p, const point_3d &n) {
    TRANSF_3D f, r;
    f.Define(p, n);
    TRANSF_3D g = f.Inverse();
    r.DefMirrorXOYPlane();
    *this = g * r * f;
}

void TRANSF_3D::DefMirror(const double *p, const double *n) {
    TRANSF_3D f, r;
    f.Define(p, n);
    TRANSF_3D g = f.Inverse();
    r.DefMirrorXOYPlane();
    *this = g * r * f;
}

// ---- Composing family: the step is applied after the present one -----------------

void TRANSF_3D::Move(point_3d p) {
    origin += p;
}

void TRANSF_3D::RotateXAxis(float a) {
    *this *= fromAxisRotation(0, a);
}
void TRANSF_3D::RotateYAxis(float a) {
    *this *= fromAxisRotation(1, a);
}
void TRANSF_3D::RotateZAxis(float a) {
    *this *= fromAxisRotation(2, a);
}

void TRANSF_3D::Rotate(float a, float b, float c) {
    RotateXAxis(a);
    RotateYAxis(b);
    RotateZAxis(c);
}

void TRANSF_3D::RotateLine(const point_3d &p, const point_3d &q, float a) {
    TRANSF_3D t;
    t.DefRotateLine(p, q, a);
    *this *= t;
}

void TRANSF_3D::Scale(float sx, float sy, float sz) {
    TRANSF_3D t;
    t.DefScale(sx, sy, sz);
    *this *= t;
}

void TRANSF_3D::Scale(const point_3d &c, float sx, float sy, float sz) {
    TRANSF_3D t;
    t.DefScale(c, sx, sy, sz);
    *this *= t;
}

void TRANSF_3D::MirrorXOYPlane() {
    TRANSF_3D t;
    t.DefMirrorXOYPlane();
    *this *= t;
}

void TRANSF_3D::MirrorYOZPlane() {
    TRANSF_3D t;
    t.DefMirrorYOZPlane();
    *this *= t;
}

void TRANSF_3D::MirrorZOXPlane() {
    TRANSF_3D t;
    t.DefMirrorZOXPlane();
    *this *= t;
}

void TRANSF_3D::Mirror(unsigned int plane) {
    TRANSF_3D t;
    t.DefMirror(plane);
    *this *= t;
}

void TRANSF_3D::MirrorPlane(const point_3d &p, const point_3d &n) {
    TRANSF_3D t;
    t.DefMirrorPlane(p, n);
    *this *= t;
}

// ---- Products ------------------------------------------------------------------------

TRANSF_3D TRANSF_3D::operator*(const TRANSF_3D &t) const {
    float a[16], b[16];
    Get16(a);
    t.Get16(b);
    MultiMatrix3D(a, b, a);
    return TRANSF_3D(a);
}

TRANSF_3D &TRANSF_3D::operator*=(const TRANSF_3D &t) {
    return *this = *this * t;
}

TRANSF_3D TRANSF_3D::Inverse() const {
    // Gauss-Jordan on [M | I] in single precision, as the result is defined
    float a[4][8];
    float m[16];
    Get16(m);
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c) {
            a[r][c] = m[4 * r + c];
            a[r][c + 4] = (r == c) ? 1.0f : 0.0f;
        }
    for (int c = 0; c < 4; ++c) {
        // the first of equal magnitudes stays the pivot
        int p = c;
        for (int r = c + 1; r < 4; ++r)
            if (std::fabs(a[r][c]) > std::fabs(a[p][c]))
                p = r;
        if (gAbsDistTol > std::fabs(a[p][c]))
            return *this;
        float inv = 1.0f / a[p][c];
        for (int j = c; j < 8; ++j)
            a[p][j] *= inv;
        if (p != c)
            for (int j = c; j < 8; ++j) {
                float t = a[p][j];
                a[p][j] = a[c][j];
                a[c][j] = t;
            }
        for (int r = c + 1; r < 4; ++r) {
            float f = a[r][c];
            for (int j = c + 1; j < 8; ++j)
                a[r][j] -= f * a[c][j];
            a[r][c] = 0.0f;
        }
    }
    for (int c = 3; c >= 1; --c)
        for (int r = c - 1; r >= 0; --r) {
            float f = a[r][c];
            for (int j = c + 1; j < 8; ++j)
                a[r][j] -= f * a[c][j];
        }
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            m[4 * r + c] = a[r][c + 4];
    return TRANSF_3D(m);
}

TRANSF_3D TRANSF_3D::Transpose() const {
    float m[16], r[16];
    Get16(m);
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j)
            r[4 * j + i] = m[4 * i + j];
    return TRANSF_3D(r);
}

point_4d operator*(const point_4d &p, const TRANSF_3D &t) {
    double x = p.x, y = p.y, z = p.z, w = p.w;
    return point_4d(float(x * t.xAxis.x + y * t.yAxis.x + z * t.zAxis.x + w * t.origin.x),
                    float(x * t.xAxis.y + y * t.yAxis.y + z * t.zAxis.y + w * t.origin.y),
                    float(x * t.xAxis.z + y * t.yAxis.z + z * t.zAxis.z + w * t.origin.z),
                    float(x * t.pAxis.x + y * t.pAxis.y + z * t.pAxis.z + w * t.scale));
}

point_3d operator*(const point_3d &p, const TRANSF_3D &t) {
    double x = p.x, y = p.y, z = p.z;
    return point_3d(float(x * t.xAxis.x + y * t.yAxis.x + z * t.zAxis.x + t.origin.x),
                    float(x * t.xAxis.y + y * t.yAxis.y + z * t.zAxis.y + t.origin.y),
                    float(x * t.xAxis.z + y * t.yAxis.z + z * t.zAxis.z + t.origin.z));
}

point_2d operator*(const point_2d &p, const TRANSF_3D &t) {
    double x = p.x, y = p.y;
    return point_2d(float(x * t.xAxis.x + y * t.yAxis.x + t.origin.x),
                    float(x * t.xAxis.y + y * t.yAxis.y + t.origin.y));
}
