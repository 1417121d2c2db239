// Relations of point_2d and point_3d to lines, segments and other vectors:
// distances, on-line and direction predicates, angles between vectors.
#include <korvane/classes.h>

#include "classes/class_ops.h"

#include <cmath>

using korvane::gAbsDistTol;

namespace {

// Sign of the direction test on the unit vectors: +1 when their dot product
// is above 0.9999, -1 when below -0.9999, else 0. A vector shorter than
// gmGetAbsDistTol gives 0. The 0.9999 is fixed, not a global tolerance.
int directionSign(double dot) {
    return dot > 0.9999 ? 1 : (dot < -0.9999 ? -1 : 0);
}

int directionSign(point_2d a, point_2d b) {
    if (a.Unit() < gAbsDistTol || b.Unit() < gAbsDistTol)
        return 0;
    return directionSign(double(a.x) * b.x + double(a.y) * b.y);
}

int directionSign(point_3d a, point_3d b) {
    if (a.Unit() < gAbsDistTol || b.Unit() < gAbsDistTol)
        return 0;
    return directionSign(double(a.x) * b.x + double(a.y) * b.y + double(a.z) * b.z);
}

// Added once to a negative angle from atan2: the single-precision 2 pi.
const float kTwoPiFloat = 6.2831855f;
const float kPiFloat = 3.1415927f;

// The foot a + s e of p on the line, its parameter and its distance from p,
// each rounded once when stored.
void storeFoot(const point_2d &p, const point_2d &a, double ex, double ey, double s, float &t,
               point_2d &q, float &d) {
    const double qx = a.x + s * ex, qy = a.y + s * ey;
    const double dx = p.x - qx, dy = p.y - qy;
    t = float(s);
    q = point_2d(float(qx), float(qy));
    d = float(std::sqrt(dx * dx + dy * dy));
}

} // namespace

// ---- point_2d --------------------------------------------------------------

int point_2d::GetDistLineSeg(point_2d a, point_2d b, float &t, point_2d &q, float &d) const {
    double ex = double(b.x) - a.x, ey = double(b.y) - a.y;
    double len2 = ex * ex + ey * ey;
    double ax = double(x) - a.x, ay = double(y) - a.y;
    double dA = std::sqrt(ax * ax + ay * ay);
    if (std::sqrt(len2) < korvane::gDistTol) {
        t = 0.0f;
        q = a;
        d = float(dA);
        return 1;
    }
    double s = (ax * ex + ay * ey) / len2;
    // not clamped: within the slack, s and q may lie a little beyond the ends
    if (s > -korvane::gParaTol && s <= 1.0 + korvane::gParaTol) {
        storeFoot(*this, a, ex, ey, s, t, q, d);
        return 1;
    }
    double bx = double(x) - b.x, by = double(y) - b.y;
    double dB = std::sqrt(bx * bx + by * by);
    // a tie goes to b
    if (dA < dB) {
        t = 0.0f;
        q = a;
        d = float(dA);
    } else {
        t = 1.0f;
        q = b;
        d = float(dB);
    }
    return 1;
}

float point_2d::GetDistLineSeg(point_2d a, point_2d b) const {
    float t, d;
    point_2d q;
    GetDistLineSeg(a, b, t, q, d);
    return d;
}

int point_2d::GetProjectPoint(point_2d a, point_2d b, float &t, point_2d &q, float &d) const {
    double ex = double(b.x) - a.x, ey = double(b.y) - a.y;
    double len2 = ex * ex + ey * ey;
    double ax = double(x) - a.x, ay = double(y) - a.y;
    if (std::sqrt(len2) < korvane::gDistTol) {
        t = 0.0f;
        q = a;
        d = float(std::sqrt(ax * ax + ay * ay));
        return 1;
    }
    storeFoot(*this, a, ex, ey, (ax * ex + ay * ey) / len2, t, q, d);
    return 1;
}

float point_2d::GetDistLine(point_2d a, point_2d b) const {
    double ex = double(b.x) - a.x, ey = double(b.y) - a.y;
    double len2 = ex * ex + ey * ey;
    double ax = double(x) - a.x, ay = double(y) - a.y;
    // the squared length against the tolerance, not the length
    if (len2 < gAbsDistTol)
        return float(std::sqrt(ax * ax + ay * ay));
    double c = ay * ex - ax * ey;
    return float(std::sqrt(c * c / len2));
}

float point_2d::GetDistLine(const point_3d &o, const point_3d &u, float &t) const {
    double px = double(x) - o.x, py = double(y) - o.y, pz = 0.0 - o.z;
    double s = px * u.x + py * u.y + pz * u.z;
    double dx = x - (o.x + s * u.x), dy = y - (o.y + s * u.y), dz = 0.0 - (o.z + s * u.z);
    t = float(s);
    return float(std::sqrt(dx * dx + dy * dy + dz * dz));
}

int point_2d::IsOn(const point_2d &a, const point_2d &b) const {
    return GetDistLine(a, b) < gAbsDistTol ? 1 : 0;
}

int point_2d::IsOnSeg(const point_2d &a, const point_2d &b) const {
    return GetDistLineSeg(a, b) < gAbsDistTol ? 1 : 0;
}

int point_2d::IsSameDirection(const point_2d &v) const {
    return directionSign(*this, v) == 1 ? 1 : 0;
}

int point_2d::IsParallel(const point_2d &v) const {
    return directionSign(*this, v) != 0 ? 1 : 0;
}

int point_2d::IsPerpendicular(const point_2d &v) const {
    return std::fabs(double(x) * v.x + double(y) * v.y) < korvane::gDistTol ? 1 : 0;
}

int point_2d::IsConLine(const point_2d &a, const point_2d &b) const {
    point_2d u = a - *this, v = b - *this;
    if (u.Unit() < gAbsDistTol || v.Unit() < gAbsDistTol)
        return 0;
    return std::fabs(double(u.x) * v.y - double(u.y) * v.x) < gAbsDistTol ? 1 : 0;
}

float point_2d::AngleToVector(const point_2d &v) const {
    point_2d a(*this), b(v);
    a.Unit();
    b.Unit();
    double e = 10.0 * gAbsDistTol;
    if (a.DistFrom(b) < e)
        return 0.0f;
    if (a.DistFrom(-b) < e)
        return kPiFloat;
    TRANSF_2D t;
    t.Define(point_2d(0.0f, 0.0f), a);
    t = t.Inverse();
    point_2d r = b * t;
    double ang = std::atan2(double(r.y), double(r.x));
    if (ang < 0.0)
        ang += kTwoPiFloat;
    return float(ang);
}

int IsPtsColine(const point_2d *pts, int n, float tol) {
    if (n <= 2)
        return 1;
    for (int i = 1; i <= n - 2; ++i)
        if (pts[i].GetDistLineSeg(pts[0], pts[n - 1]) > tol)
            return 0;
    return 1;
}

// ---- point_3d --------------------------------------------------------------

int point_3d::GetMinDistance(point_3d a, point_3d b, float &t, point_3d &q, float &d) const {
    double ex = double(b.x) - a.x, ey = double(b.y) - a.y, ez = double(b.z) - a.z;
    double len2 = ex * ex + ey * ey + ez * ez;
    double ax = double(x) - a.x, ay = double(y) - a.y, az = double(z) - a.z;
    // the squared length against the tolerance: about 0.001 at the default
    if (len2 < gAbsDistTol) {
        t = 0.0f;
        q = a;
        d = float(std::sqrt(ax * ax + ay * ay + az * az));
        return 1;
    }
    double s = (ax * ex + ay * ey + az * ez) / len2;
    double qx = a.x + s * ex, qy = a.y + s * ey, qz = a.z + s * ez;
    double dx = x - qx, dy = y - qy, dz = z - qz;
    t = float(s);
    q = point_3d(float(qx), float(qy), float(qz));
    d = float(std::sqrt(dx * dx + dy * dy + dz * dz));
    return 1;
}

float point_3d::GetDistLine(const point_3d &o, const point_3d &u, float &t) const {
    double px = double(x) - o.x, py = double(y) - o.y, pz = double(z) - o.z;
    double s = px * u.x + py * u.y + pz * u.z;
    double dx = x - (o.x + s * u.x), dy = y - (o.y + s * u.y), dz = z - (o.z + s * u.z);
    t = float(s);
    return float(std::sqrt(dx * dx + dy * dy + dz * dz));
}

int point_3d::IsOnSeg(point_3d a, point_3d b) const {
    const float p[3] = {x, y, z}, pa[3] = {a.x, a.y, a.z}, pb[3] = {b.x, b.y, b.z};
    for (int i = 0; i < 3; ++i) {
        double lo = pa[i] < pb[i] ? pa[i] : pb[i];
        double hi = pa[i] < pb[i] ? pb[i] : pa[i];
        if (!(p[i] > lo - gAbsDistTol && p[i] < hi + gAbsDistTol))
            return 0;
    }
    // the excess of the detour over the segment, not the distance from it
    double detour = double(DistFrom(a)) + DistFrom(b) - a.DistFrom(b);
    return std::fabs(detour) < gAbsDistTol ? 1 : 0;
}

int point_3d::IsSameDirection(const point_3d &v) const {
    return directionSign(*this, v) == 1 ? 1 : 0;
}

int point_3d::IsParallel(const point_3d &v) const {
    return directionSign(*this, v) != 0 ? 1 : 0;
}

int point_3d::IsPerpendicular(const point_3d &v) const {
    return std::fabs(double(x) * v.x + double(y) * v.y + double(z) * v.z) < gAbsDistTol ? 1 : 0;
}

int point_3d::IsConLine(const point_3d &a, const point_3d &b) const {
    // no length check: a zero vector makes a zero cross product, so a point
    // equal to a or b counts as collinear
    point_3d u = a - *this, v = b - *this;
    u.Unit();
    v.Unit();
    point_3d n = u.Xproduct(v);
    return n.Unit() < gAbsDistTol ? 1 : 0;
}

float point_3d::AngleToVector(const point_3d &v) const {
    // the raw vectors decide parallelism, so two short vectors may land here
    point_3d n = Xproduct(v);
    if (n.Length() < gAbsDistTol)
        return IsSameDirection(v) ? 0.0f : kPiFloat;
    TRANSF_3D t;
    t.Define(point_3d(0.0f, 0.0f, 0.0f), n, *this);
    t = t.Inverse();
    point_3d r = v * t;
    double ang = std::atan2(double(r.y), double(r.x));
    if (ang < 0.0)
        ang += kTwoPiFloat;
    return float(ang);
}
