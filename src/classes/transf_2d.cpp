// TRANSF_2D: the 3 by 3 transformation of the plane held as named parts.
// Products and inversion go through the raw matrix functions.
#include <korvane/classes.h>

#include "classes/class_ops.h"

#include <cmath>

TRANSF_2D::TRANSF_2D()
    : xAxis(1.0f, 0.0f), yAxis(0.0f, 1.0f), pAxis(0.0f, 0.0f), origin(0.0f, 0.0f), scale(1.0f) {}

TRANSF_2D::TRANSF_2D(const float *m) {
    Set9(m);
}

void TRANSF_2D::Init() {
    *this = TRANSF_2D();
}

void TRANSF_2D::Set9(const float *m) {
    xAxis.Set(m[0], m[1]);
    pAxis.Set(m[2], m[5]);
    yAxis.Set(m[3], m[4]);
    origin.Set(m[6], m[7]);
    scale = m[8];
}

void TRANSF_2D::Set3X3(const float (*m)[3]) {
    Set9(&m[0][0]);
}

void TRANSF_2D::Get9(float *m) const {
    m[0] = xAxis.x;
    m[1] = xAxis.y;
    m[2] = pAxis.x;
    m[3] = yAxis.x;
    m[4] = yAxis.y;
    m[5] = pAxis.y;
    m[6] = origin.x;
    m[7] = origin.y;
    m[8] = scale;
}

void TRANSF_2D::Get3X3(float (*m)[3]) const {
    Get9(&m[0][0]);
}

void TRANSF_2D::Get16(float *m) const {
    const float r[16] = {xAxis.x, xAxis.y, 0.0f, pAxis.x, yAxis.x,  yAxis.y,  0.0f, pAxis.y,
                         0.0f,    0.0f,    1.0f, 0.0f,    origin.x, origin.y, 0.0f, scale};
    for (int i = 0; i < 16; ++i)
        m[i] = r[i];
}

void TRANSF_2D::GetDbl16(double *m) const {
    float r[16];
    Get16(r);
    for (int i = 0; i < 16; ++i)
        m[i] = r[i];
}

point_2d TRANSF_2D::GetXAxis() const {
    return xAxis;
}
point_2d TRANSF_2D::GetYAxis() const {
    return yAxis;
}
point_2d TRANSF_2D::GetOrigin() const {
    return origin;
}
point_2d TRANSF_2D::GetPAxis() const {
    return pAxis;
}
float TRANSF_2D::GetScale() const {
    return scale;
}

const float &TRANSF_2D::operator()(const int &row, const int &col) const {
    if (row < 0 || row > 2 || col < 0 || col > 2)
        return xAxis.x;
    const float *const cells[9] = {&xAxis.x, &xAxis.y,  &pAxis.x,  &yAxis.x, &yAxis.y,
                                   &pAxis.y, &origin.x, &origin.y, &scale};
    return *cells[3 * row + col];
}

void TRANSF_2D::Define(point_2d org, point_2d xdir) {
    xdir.Unit();
    xAxis = xdir;
    yAxis.Set(-xdir.y, xdir.x);
    pAxis.Set(0.0f, 0.0f);
    origin = org;
    scale = 1.0f;
}

void TRANSF_2D::Define(point_2d org, point_2d xdir, point_2d ydir) {
    origin = org;
    xAxis = xdir;
    yAxis = ydir;
    Unit();
}

void TRANSF_2D::Unit() {
    if (korvane::gAbsDistTol > xAxis.Unit()) {
        Init();
        return;
    }
    if (korvane::gAbsDistTol > yAxis.Unit()) {
        Init();
        return;
    }
    // the axes are not made perpendicular
    pAxis.Set(0.0f, 0.0f);
    scale = 1.0f;
}

// ---- Def family --------------------------------------------------------------

void TRANSF_2D::DefMove(point_2d p) {
    Init();
    origin = p;
}

void TRANSF_2D::DefRotate(float a) {
    Init();
    float c = float(std::cos(double(a))), s = float(std::sin(double(a)));
    xAxis.Set(c, s);
    yAxis.Set(-s, c);
}

void TRANSF_2D::DefRotate(const point_2d &c, float a) {
    double cs = std::cos(double(a)), sn = std::sin(double(a));
    float ox = float((1.0 - cs) * c.x + sn * c.y);
    float oy = float((1.0 - cs) * c.y - sn * c.x);
    DefRotate(a);
    origin.Set(ox, oy);
}

void TRANSF_2D::DefScale(float sx, float sy) {
    Init();
    xAxis.Set(sx, 0.0f);
    yAxis.Set(0.0f, sy);
}

void TRANSF_2D::DefScale(const point_2d &c, float sx, float sy) {
    float ox = float((1.0 - sx) * c.x), oy = float((1.0 - sy) * c.y);
    DefScale(sx, sy);
    origin.Set(ox, oy);
}

void TRANSF_2D::DefShear(float a, float b) {
    Init();
    xAxis.Set(1.0f, b);
    yAxis.Set(a, 1.0f);
}

void TRANSF_2D::DefMirrorXAxis() {
    Init();
    yAxis.Set(0.0f, -1.0f);
}

void TRANSF_2D::DefMirrorYAxis() {
    Init();
    xAxis.Set(-1.0f, 0.0f);
}

void TRANSF_2D::DefMirrorOrigin() {
    Init();
    xAxis.Set(-1.0f, 0.0f);
    yAxis.Set(0.0f, -1.0f);
}

void TRANSF_2D::DefMirror(const point_2d &a, const point_2d &b) {
    TRANSF_2D f, r;
    f.Define(a, b - a);
    TRANSF_2D g = f.Inverse();
    r.DefMirrorXAxis();
    *this = g * r * f;
}

// ---- Composing family: the step is applied after the present one -------------

void TRANSF_2D::Move(const point_2d &p) {
    origin += p;
}

void TRANSF_2D::Rotate(float a) {
    TRANSF_2D t;
    t.DefRotate(a);
    *this *= t;
}

void TRANSF_2D::Rotate(const point_2d &c, float a) {
    TRANSF_2D t;
    t.DefRotate(c, a);
    *this *= t;
}

void TRANSF_2D::Scale(float sx, float sy) {
    TRANSF_2D t;
    t.DefScale(sx, sy);
    *this *= t;
}

void TRANSF_2D::Scale(const point_2d &c, float sx, float sy) {
    TRANSF_2D t;
    t.DefScale(c, sx, sy);
    *this *= t;
}

void TRANSF_2D::Shear(float a, float b) {
    TRANSF_2D t;
    t.DefShear(a, b);
    *this *= t;
}

void TRANSF_2D::MirrorXAxis() {
    TRANSF_2D t;
    t.DefMirrorXAxis();
    *this *= t;
}

void TRANSF_2D::MirrorYAxis() {
    TRANSF_2D t;
    t.DefMirrorYAxis();
    *this *= t;
}

void TRANSF_2D::MirrorOrigin() {
    TRANSF_2D t;
    t.DefMirrorOrigin();
    *this *= t;
}

void TRANSF_2D::Mirror(const point_2d &a, const point_2d &b) {
    TRANSF_2D t;
    t.DefMirror(a, b);
    *this *= t;
}

// ---- Products ----------------------------------------------------------------

TRANSF_2D TRANSF_2D::operator*(const TRANSF_2D &t) const {
    float a[9], b[9];
    Get9(a);
    t.Get9(b);
    MultiMatrix2D(a, b, a);
    return TRANSF_2D(a);
}

TRANSF_2D &TRANSF_2D::operator*=(const TRANSF_2D &t) {
    return *this = *this * t;
}

TRANSF_2D TRANSF_2D::Inverse() const {
    // The scratch array starts as the object's own matrix, which
    // GetInverseMatrix2D leaves alone when it refuses: a singular matrix
    // gives back an unchanged copy.
    float m[9];
    Get9(m);
    GetInverseMatrix2D(m, m);
    return TRANSF_2D(m);
}

TRANSF_2D TRANSF_2D::Transpose() const {
    TRANSF_2D r(*this);
    r.xAxis.Set(xAxis.x, yAxis.x);
    r.yAxis.Set(xAxis.y, yAxis.y);
    r.pAxis = origin;
    r.origin = pAxis;
    return r;
}

point_2d operator*(const point_2d &p, const TRANSF_2D &t) {
    double x = p.x, y = p.y;
    return point_2d(float(x * t.xAxis.x + y * t.yAxis.x + t.origin.x),
                    float(x * t.xAxis.y + y * t.yAxis.y + t.origin.y));
}

point_3d operator*(const point_3d &p, const TRANSF_2D &t) {
    double x = p.x, y = p.y;
    return point_3d(float(x * t.xAxis.x + y * t.yAxis.x + t.origin.x),
                    float(x * t.xAxis.y + y * t.yAxis.y + t.origin.y), p.z);
}

void TransPointList2D(const point_2d *in, unsigned short n, point_2d *out, const TRANSF_2D &t) {
    for (unsigned i = 0; i < n; ++i)
        out[i] = in[i] * t;
}

void TransPointList2D(const point_3d *in, unsigned short n, point_2d *out, const TRANSF_2D &t) {
    for (unsigned i = 0; i < n; ++i)
        out[i] = in[i] * t;
}

void TransPointList2D(const point_3d *in, unsigned short n, point_3d *out, const TRANSF_2D &t) {
    for (unsigned i = 0; i < n; ++i)
        out[i] = in[i] * t;
}
