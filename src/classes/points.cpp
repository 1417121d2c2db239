// The point classes: construction, assignment, access, arithmetic, matrix
// products, lengths and axis angles.
#include <korvane/classes.h>

#include "classes/class_ops.h"

#include <cmath>

using korvane::kHalfPiF;
using korvane::kTwoPiF;

namespace {

// Steps 2 to 4 of the axis angles: wrap a negative angle once, then snap
// to 0 and to 2 pi. The result may be 2 pi itself.
double snapAxisAngle(double a, double tol) {
    if (a < 0.0)
        a += kTwoPiF;
    if (std::fabs(a) <= tol)
        a = 0.0;
    if (std::fabs(a - kTwoPiF) <= tol)
        a = kTwoPiF;
    return a;
}

// True when s may divide: |s| above the guard. A NaN fails.
inline bool canDivide(float s, double guard) {
    return std::fabs(double(s)) > guard;
}

} // namespace

// ---- point_2d --------------------------------------------------------------

point_2d::point_2d() : x(0.0f), y(0.0f) {}
point_2d::point_2d(float x_, float y_) : x(x_), y(y_) {}
point_2d::point_2d(const float *&p) : x(p[0]), y(p[1]) {}

point_2d &point_2d::operator=(const nd_point_2d &p) {
    x = p.x;
    y = p.y;
    return *this;
}

point_2d &point_2d::operator=(const point_3d &p) {
    x = p.x;
    y = p.y;
    return *this;
}

float &point_2d::operator[](const int &i) {
    return i == 1 ? y : x;
}
point_2d::operator float *() {
    return &x;
}
point_2d::operator const float *() const {
    return &x;
}

void point_2d::operator()(float x_, float y_) {
    x = x_;
    y = y_;
}

void point_2d::operator()(float *p) {
    x = p[0];
    y = p[1];
}

void point_2d::Set(float x_, float y_) {
    x = x_;
    y = y_;
}

void point_2d::Set(const float *&p) {
    x = p[0];
    y = p[1];
}

void point_2d::Init() {
    x = y = 0.0f;
}

point_2d point_2d::operator+(const point_2d &p) const {
    return point_2d(float(double(x) + p.x), float(double(y) + p.y));
}

point_2d point_2d::operator-(const point_2d &p) const {
    return point_2d(float(double(x) - p.x), float(double(y) - p.y));
}

point_2d &point_2d::operator+=(const point_2d &p) {
    return *this = *this + p;
}
point_2d &point_2d::operator-=(const point_2d &p) {
    return *this = *this - p;
}

point_2d point_2d::operator*(float s) const {
    return point_2d(float(double(x) * s), float(double(y) * s));
}

point_2d &point_2d::operator*=(float s) {
    return *this = *this * s;
}

point_2d point_2d::operator/(float s) const {
    point_2d r(*this);
    return r /= s;
}

point_2d &point_2d::operator/=(float s) {
    if (!canDivide(s, korvane::gAbsZero))
        return *this;
    // reciprocal once, then multiply: the rounding is part of the result
    double inv = 1.0 / s;
    x = float(x * inv);
    y = float(y * inv);
    return *this;
}

point_2d point_2d::operator-() const {
    return point_2d(-x, -y);
}
point_2d point_2d::Inverse() const {
    return point_2d(-x, -y);
}

point_2d &point_2d::Reverse() {
    x = -x;
    y = -y;
    return *this;
}

point_2d point_2d::operator*(const float *m) const {
    double ox, oy;
    korvane::rowTimes3(x, y, m, ox, oy);
    return point_2d(float(ox), float(oy));
}

point_2d point_2d::operator*(const float (*m)[3]) const {
    return *this * &m[0][0];
}
point_2d &point_2d::operator*=(const float *m) {
    return *this = *this * m;
}
point_2d &point_2d::operator*=(const float (*m)[3]) {
    return *this = *this * &m[0][0];
}

point_2d operator*(const float &s, const point_2d &p) {
    return p * s;
}
point_2d operator*(const float *m, const point_2d &p) {
    return p * m;
}
point_2d operator*(const float (*m)[3], const point_2d &p) {
    return p * &m[0][0];
}

float point_2d::DistFrom(const point_2d &p) const {
    const double dx = double(x) - p.x, dy = double(y) - p.y;
    return float(std::sqrt(dx * dx + dy * dy));
}

float point_2d::DistFrom2(const point_2d &p) const {
    double dx = double(x) - p.x, dy = double(y) - p.y;
    return float(dx * dx + dy * dy);
}

float point_2d::Length() const {
    double dx = x, dy = y;
    return float(std::sqrt(dx * dx + dy * dy));
}

float point_2d::Unit() {
    double dx = x, dy = y;
    double len = std::sqrt(dx * dx + dy * dy);
    if (len < 1e-09) {
        x = y = 0.0f;
        return 0.0f;
    }
    double inv = 1.0 / len;
    x = float(dx * inv);
    y = float(dy * inv);
    return float(len);
}

float point_2d::Iproduct(const point_2d &p) const {
    return float(double(x) * p.x + double(y) * p.y);
}

float point_2d::Xproduct(const point_2d &p) const {
    return float(double(x) * p.y - double(y) * p.x);
}

point_2d point_2d::Xproduct(const point_2d &a, const point_2d &b) const {
    double c = Xproduct(a);
    return point_2d(float(-c * b.y), float(c * b.x));
}

float point_2d::AngleToXAxis() const {
    return float(snapAxisAngle(std::atan2(double(y), double(x)), korvane::gParaTol));
}

float point_2d::AngleToYAxis() const {
    return float(snapAxisAngle(std::atan2(double(y), double(x)) - kHalfPiF, korvane::gParaTol));
}

int point_2d::operator==(const point_2d &p) const {
    double dx = double(x) - p.x, dy = double(y) - p.y;
    return std::sqrt(dx * dx + dy * dy) < 10.0 * korvane::gAbsDistTol ? 1 : 0;
}

int point_2d::operator!=(const point_2d &p) const {
    double dx = double(x) - p.x, dy = double(y) - p.y;
    return std::sqrt(dx * dx + dy * dy) >= 10.0 * korvane::gAbsDistTol ? 1 : 0;
}

// ---- nd_point_2d -----------------------------------------------------------

nd_point_2d::nd_point_2d() : x(0.0f), y(0.0f), tag(0) {}
nd_point_2d::nd_point_2d(const float *&p) : x(p[0]), y(p[1]), tag(0) {}

nd_point_2d &nd_point_2d::operator=(const point_2d &p) {
    x = p.x;
    y = p.y;
    return *this;
}

nd_point_2d &nd_point_2d::operator=(const point_3d &p) {
    x = p.x;
    y = p.y;
    return *this;
}

// ---- point_3d --------------------------------------------------------------

point_3d::point_3d() : x(0.0f), y(0.0f), z(0.0f) {}
point_3d::point_3d(float x_, float y_, float z_) : x(x_), y(y_), z(z_) {}
point_3d::point_3d(const float *&p) : x(p[0]), y(p[1]), z(p[2]) {}

point_3d &point_3d::operator=(const nd_point_3d &p) {
    x = p.x;
    y = p.y;
    z = p.z;
    return *this;
}

point_3d &point_3d::operator=(const point_2d &p) {
    x = p.x;
    y = p.y;
    z = 0.0f;
    return *this;
}

float &point_3d::operator[](const int &i) {
    return i == 1 ? y : (i == 2 ? z : x);
}
point_3d::operator float *() {
    return &x;
}
point_3d::operator const float *() const {
    return &x;
}

void point_3d::operator()(float x_, float y_, float z_) {
    x = x_;
    y = y_;
    z = z_;
}

void point_3d::operator()(float *p) {
    x = p[0];
    y = p[1];
    z = p[2];
}

void point_3d::Set(float x_, float y_, float z_) {
    x = x_;
    y = y_;
    z = z_;
}

void point_3d::Set(const float *&p) {
    x = p[0];
    y = p[1];
    z = p[2];
}

void point_3d::Init() {
    x = y = z = 0.0f;
}

point_3d point_3d::operator+(const point_3d &p) const {
    return point_3d(float(double(x) + p.x), float(double(y) + p.y), float(double(z) + p.z));
}

point_3d point_3d::operator-(const point_3d &p) const {
    return point_3d(float(double(x) - p.x), float(double(y) - p.y), float(double(z) - p.z));
}

point_3d &point_3d::operator+=(const point_3d &p) {
    return *this = *this + p;
}
point_3d &point_3d::operator-=(const point_3d &p) {
    return *this = *this - p;
}

point_3d point_3d::operator*(float s) const {
    return point_3d(float(double(x) * s), float(double(y) * s), float(double(z) * s));
}

point_3d &point_3d::operator*=(float s) {
    return *this = *this * s;
}

point_3d point_3d::operator/(float s) const {
    point_3d r(*this);
    return r /= s;
}

point_3d &point_3d::operator/=(float s) {
    if (!canDivide(s, korvane::gAbsZero))
        return *this;
    double inv = 1.0 / s;
    x = float(x * inv);
    y = float(y * inv);
    z = float(z * inv);
    return *this;
}

point_3d point_3d::operator-() const {
    return point_3d(-x, -y, -z);
}
point_3d point_3d::Inverse() const {
    return point_3d(-x, -y, -z);
}

point_3d &point_3d::Reverse() {
    x = -x;
    y = -y;
    z = -z;
    return *this;
}

point_3d point_3d::operator*(const float *m) const {
    double ox, oy, oz;
    korvane::rowTimes4(x, y, z, m, ox, oy, oz);
    return point_3d(float(ox), float(oy), float(oz));
}

point_3d point_3d::operator*(const float (*m)[4]) const {
    return *this * &m[0][0];
}
point_3d &point_3d::operator*=(const float *m) {
    return *this = *this * m;
}
point_3d &point_3d::operator*=(const float (*m)[4]) {
    return *this = *this * &m[0][0];
}

point_3d operator*(const float &s, const point_3d &p) {
    return p * s;
}
point_3d operator*(const float *m, const point_3d &p) {
    return p * m;
}
point_3d operator*(const float (*m)[4], const point_3d &p) {
    return p * &m[0][0];
}

float point_3d::DistFrom(const point_3d &p) const {
    const double dx = double(x) - p.x, dy = double(y) - p.y, dz = double(z) - p.z;
    return float(std::sqrt(dx * dx + dy * dy + dz * dz));
}

float point_3d::DistFrom2(const point_3d &p) const {
    double dx = double(x) - p.x, dy = double(y) - p.y, dz = double(z) - p.z;
    return float(dx * dx + dy * dy + dz * dz);
}

float point_3d::Length() const {
    double dx = x, dy = y, dz = z;
    return float(std::sqrt(dx * dx + dy * dy + dz * dz));
}

float point_3d::Unit() {
    double dx = x, dy = y, dz = z;
    double len = std::sqrt(dx * dx + dy * dy + dz * dz);
    if (len < 1e-09) {
        x = y = z = 0.0f;
        return 0.0f;
    }
    double inv = 1.0 / len;
    x = float(dx * inv);
    y = float(dy * inv);
    z = float(dz * inv);
    return float(len);
}

float point_3d::Iproduct(const point_3d &p) const {
    return float(double(x) * p.x + double(y) * p.y + double(z) * p.z);
}

point_3d point_3d::Xproduct(const point_3d &p) const {
    return point_3d(float(double(y) * p.z - double(z) * p.y),
                    float(double(z) * p.x - double(x) * p.z),
                    float(double(x) * p.y - double(y) * p.x));
}

float point_3d::HybridProduct(const point_3d &a, const point_3d &b) const {
    double cx = double(y) * a.z - double(z) * a.y;
    double cy = double(z) * a.x - double(x) * a.z;
    double cz = double(x) * a.y - double(y) * a.x;
    return float(cx * b.x + cy * b.y + cz * b.z);
}

float point_3d::AngleToXAxis() const {
    return float(snapAxisAngle(std::atan2(double(y), double(x)), korvane::gAbsParaTol));
}

float point_3d::AngleToYAxis() const {
    return float(snapAxisAngle(std::atan2(double(y), double(x)) - kHalfPiF, korvane::gAbsParaTol));
}

float point_3d::AngleToZAxis() const {
    double dx = x, dy = y;
    return float(kHalfPiF - std::atan2(double(z), std::sqrt(dx * dx + dy * dy)));
}

int point_3d::operator==(const point_3d &p) const {
    double dx = double(x) - p.x, dy = double(y) - p.y, dz = double(z) - p.z;
    return std::sqrt(dx * dx + dy * dy + dz * dz) < korvane::gAbsDistTol ? 1 : 0;
}

// strict on both sides: at exactly the tolerance neither == nor != holds
int point_3d::operator!=(const point_3d &p) const {
    double dx = double(x) - p.x, dy = double(y) - p.y, dz = double(z) - p.z;
    return std::sqrt(dx * dx + dy * dy + dz * dz) > korvane::gAbsDistTol ? 1 : 0;
}

// ---- nd_point_3d -----------------------------------------------------------

nd_point_3d::nd_point_3d() : x(0.0f), y(0.0f), z(0.0f), tag(0) {}
nd_point_3d::nd_point_3d(const float *&p) : x(p[0]), y(p[1]), z(p[2]), tag(0) {}

nd_point_3d &nd_point_3d::operator=(const point_3d &p) {
    x = p.x;
    y = p.y;
    z = p.z;
    return *this;
}

// ---- point_4d --------------------------------------------------------------

point_4d::point_4d() : x(0.0f), y(0.0f), z(0.0f), w(1.0f) {}
point_4d::point_4d(float x_, float y_, float z_, float w_) : x(x_), y(y_), z(z_), w(w_) {}
point_4d::point_4d(const float *&p) : x(p[0]), y(p[1]), z(p[2]), w(p[3]) {}

point_4d &point_4d::operator=(const point_3d &p) {
    x = p.x;
    y = p.y;
    z = p.z;
    w = 1.0f;
    return *this;
}

point_4d &point_4d::operator=(const nd_point_3d &p) {
    x = p.x;
    y = p.y;
    z = p.z;
    w = 1.0f;
    return *this;
}

point_4d &point_4d::operator=(const point_2d &p) {
    x = p.x;
    y = p.y;
    z = 0.0f;
    w = 1.0f;
    return *this;
}

void point_4d::Set(float x_, float y_, float z_, float w_) {
    x = x_;
    y = y_;
    z = z_;
    w = w_;
}

void point_4d::Set(const float *&p) {
    x = p[0];
    y = p[1];
    z = p[2];
    w = p[3];
}

void point_4d::Init() {
    x = y = z = 0.0f;
    w = 1.0f;
}

point_4d point_4d::operator+(const point_4d &p) const {
    return point_4d(float(double(x) + p.x), float(double(y) + p.y), float(double(z) + p.z),
                    float(double(w) + p.w));
}

point_4d point_4d::operator-(const point_4d &p) const {
    return point_4d(float(double(x) - p.x), float(double(y) - p.y), float(double(z) - p.z),
                    float(double(w) - p.w));
}

point_4d &point_4d::operator+=(const point_4d &p) {
    return *this = *this + p;
}
point_4d &point_4d::operator-=(const point_4d &p) {
    return *this = *this - p;
}

point_4d point_4d::operator*(float s) const {
    return point_4d(float(double(x) * s), float(double(y) * s), float(double(z) * s),
                    float(double(w) * s));
}

point_4d &point_4d::operator*=(float s) {
    return *this = *this * s;
}

point_4d point_4d::operator/(float s) const {
    point_4d r(*this);
    return r /= s;
}

// a fixed guard of its own, independent of gmGetAbsZero
point_4d &point_4d::operator/=(float s) {
    if (!canDivide(s, 1e-07))
        return *this;
    double inv = 1.0 / s;
    x = float(x * inv);
    y = float(y * inv);
    z = float(z * inv);
    w = float(w * inv);
    return *this;
}
