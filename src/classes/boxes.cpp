// Box2D and Box3D: axis-aligned float boxes. No global tolerance is read;
// comparisons without a tolerance argument are exact.
#include <korvane/classes.h>

namespace {

inline float lesser(float a, float b) {
    return a < b ? a : b;
}
inline float greater(float a, float b) {
    return a > b ? a : b;
}

// Per-axis tests of the tolerant IsIn forms: the x rule closes the upper end,
// the rule of the other axes leaves it open.
inline bool inClosed(double lo, double hi, double p, double t) {
    return lo - t <= p && p <= hi + t;
}
inline bool inHalfOpen(double lo, double hi, double p, double t) {
    return lo - t <= p && p < hi + t;
}

// Overlap of [lo0, hi0] and [lo1, hi1] is at least -t.
inline bool overlapAtLeast(float lo0, float hi0, float lo1, float hi1, float t) {
    double lo = greater(lo0, lo1), hi = lesser(hi0, hi1);
    return hi - lo >= -double(t);
}

} // namespace

// ---- Box2D -----------------------------------------------------------------

Box2D::Box2D() : min(1.0f, 1.0f), max(-1.0f, -1.0f) {}
Box2D::Box2D(float x0, float y0, float x1, float y1) : min(x0, y0), max(x1, y1) {}
Box2D::Box2D(const point_2d &a, const point_2d &b) : min(a), max(b) {}
Box2D::Box2D(const Box3D &b) : min(b.min.x, b.min.y), max(b.max.x, b.max.y) {}

Box2D &Box2D::operator=(const Box3D &b) {
    DefineBox(b);
    return *this;
}

void Box2D::EmptyBox() {
    min.Set(1.0f, 1.0f);
    max.Set(-1.0f, -1.0f);
}

void Box2D::DefineBox(float x0, float y0, float x1, float y1) {
    min.Set(x0, y0);
    max.Set(x1, y1);
}

void Box2D::DefineBox(const point_2d &a, const point_2d &b) {
    float x0 = lesser(a.x, b.x), x1 = greater(a.x, b.x);
    float y0 = lesser(a.y, b.y), y1 = greater(a.y, b.y);
    min.Set(x0, y0);
    max.Set(x1, y1);
}

void Box2D::DefineBox(const point_3d &a, const point_3d &b) {
    float x0 = lesser(a.x, b.x), x1 = greater(a.x, b.x);
    float y0 = lesser(a.y, b.y), y1 = greater(a.y, b.y);
    min.Set(x0, y0);
    max.Set(x1, y1);
}

void Box2D::DefineBox(const Box2D &b) {
    *this = b;
}

void Box2D::DefineBox(const Box3D &b) {
    point_2d lo(b.min.x, b.min.y), hi(b.max.x, b.max.y);
    min = lo;
    max = hi;
}

int Box2D::IsEmpty() const {
    return (min.x > max.x || min.y > max.y) ? 1 : 0;
}

point_2d Box2D::GetCenter() const {
    return point_2d(float((double(min.x) + max.x) * 0.5), float((double(min.y) + max.y) * 0.5));
}

float Box2D::GetWidth() const {
    return float(double(max.x) - min.x);
}
float Box2D::GetHeight() const {
    return float(double(max.y) - min.y);
}

int Box2D::GetCorner(point_2d *out) const {
    if (IsEmpty())
        return 0;
    out[0].Set(min.x, min.y);
    out[1].Set(max.x, min.y);
    out[2].Set(max.x, max.y);
    out[3].Set(min.x, max.y);
    return 1;
}

int Box2D::operator==(const Box2D &b) const {
    return (min.x == b.min.x && min.y == b.min.y && max.x == b.max.x && max.y == b.max.y) ? 1 : 0;
}

// Examines nothing: every segment passes.
int Box2D::CheckInter(const point_3d &, const point_3d &, float) const {
    return 1;
}

void Box2D::Move(float dx, float dy) {
    min.Set(float(double(min.x) + dx), float(double(min.y) + dy));
    max.Set(float(double(max.x) + dx), float(double(max.y) + dy));
}

void Box2D::Grow(float dx, float dy) {
    min.Set(float(double(min.x) - dx), float(double(min.y) - dy));
    max.Set(float(double(max.x) + dx), float(double(max.y) + dy));
}

void Box2D::Intersect(const Box2D &b) {
    min.Set(greater(min.x, b.min.x), greater(min.y, b.min.y));
    max.Set(lesser(max.x, b.max.x), lesser(max.y, b.max.y));
}

void Box2D::Union(const Box2D &b) {
    min.Set(lesser(min.x, b.min.x), lesser(min.y, b.min.y));
    max.Set(greater(max.x, b.max.x), greater(max.y, b.max.y));
}

void Box2D::Adjust() {
    if (min.x > max.x) {
        float t = min.x;
        min.x = max.x;
        max.x = t;
    }
    if (min.y > max.y) {
        float t = min.y;
        min.y = max.y;
        max.y = t;
    }
}

void Box2D::AddPt(const point_2d &p) {
    if (IsEmpty()) {
        min = p;
        max = p;
        return;
    }
    if (p.x < min.x)
        min.x = p.x;
    if (p.y < min.y)
        min.y = p.y;
    if (p.x > max.x)
        max.x = p.x;
    if (p.y > max.y)
        max.y = p.y;
}

void Box2D::AddPt(const nd_point_2d &p) {
    AddPt(point_2d(p.x, p.y));
}

// No emptiness test here, unlike Box3D: an empty box's corners take part.
Box2D &Box2D::operator+=(const Box2D &b) {
    Union(b);
    return *this;
}

Box2D Box2D::operator+(const Box2D &b) const {
    Box2D r(*this);
    r.Union(b);
    return r;
}

int Box2D::IsIn(const point_2d &p) const {
    return (min.x <= p.x && p.x < max.x && min.y <= p.y && p.y < max.y) ? 1 : 0;
}

int Box2D::Contains(const point_2d &p) const {
    return IsIn(p);
}

int Box2D::IsIn(const point_2d &p, float t) const {
    return (inClosed(min.x, max.x, p.x, t) && inHalfOpen(min.y, max.y, p.y, t)) ? 1 : 0;
}

int Box2D::IsIn2D(const double *p, double t) const {
    return (inClosed(min.x, max.x, p[0], t) && inHalfOpen(min.y, max.y, p[1], t)) ? 1 : 0;
}

int Box2D::IsIntersect(const Box2D &b) const {
    if (!(min.x < b.max.x && max.x > b.min.x))
        return 0;
    return (min.y < b.max.y && max.y > b.min.y) ? 1 : 0;
}

int Box2D::CanIntersect(const Box2D &b) const {
    if (!(greater(min.x, b.min.x) <= lesser(max.x, b.max.x)))
        return 0;
    return greater(min.y, b.min.y) <= lesser(max.y, b.max.y) ? 1 : 0;
}

int Box2D::CanIntersect(const Box2D &b, float t) const {
    if (!overlapAtLeast(min.x, max.x, b.min.x, b.max.x, t))
        return 0;
    return overlapAtLeast(min.y, max.y, b.min.y, b.max.y, t) ? 1 : 0;
}

int Box2D::CanIntersect(const Box3D &b, float t) const {
    if (!overlapAtLeast(min.x, max.x, b.min.x, b.max.x, t))
        return 0;
    return overlapAtLeast(min.y, max.y, b.min.y, b.max.y, t) ? 1 : 0;
}

int Box2D::CanInclude(const Box2D &b) const {
    return (min.x <= b.min.x && max.x >= b.max.x && min.y <= b.min.y && max.y >= b.max.y) ? 1 : 0;
}

int Box2D::CanInclude(const Box3D &b) const {
    return (min.x <= b.min.x && max.x >= b.max.x && min.y <= b.min.y && max.y >= b.max.y) ? 1 : 0;
}

// ---- Box3D -----------------------------------------------------------------

Box3D::Box3D() : min(1.0f, 1.0f, 1.0f), max(-1.0f, -1.0f, -1.0f) {}

// sorts, where Box2D's constructor from points does not
Box3D::Box3D(const point_2d &a, const point_2d &b)
    : min(lesser(a.x, b.x), lesser(a.y, b.y), 0.0f),
      max(greater(a.x, b.x), greater(a.y, b.y), 0.0f) {}

Box3D::Box3D(const Box2D &b) : min(b.min.x, b.min.y, 0.0f), max(b.max.x, b.max.y, 0.0f) {}

void Box3D::EmptyBox() {
    min.Set(1.0f, 1.0f, 1.0f);
    max.Set(-1.0f, -1.0f, -1.0f);
}

void Box3D::DefineBox(const point_3d &a, const point_3d &b) {
    point_3d lo(lesser(a.x, b.x), lesser(a.y, b.y), lesser(a.z, b.z));
    point_3d hi(greater(a.x, b.x), greater(a.y, b.y), greater(a.z, b.z));
    min = lo;
    max = hi;
}

void Box3D::DefineBox(const Box3D &b) {
    *this = b;
}

void Box3D::DefineBox(const Box2D &b, float z) {
    point_3d lo(b.min.x, b.min.y, z), hi(b.max.x, b.max.y, z);
    min = lo;
    max = hi;
}

int Box3D::IsEmpty() const {
    return (min.x > max.x || min.y > max.y || min.z > max.z) ? 1 : 0;
}

point_3d Box3D::GetCenter() const {
    return point_3d(float((double(min.x) + max.x) * 0.5), float((double(min.y) + max.y) * 0.5),
                    float((double(min.z) + max.z) * 0.5));
}

float Box3D::GetXWidth() const {
    return float(double(max.x) - min.x);
}
float Box3D::GetYWidth() const {
    return float(double(max.y) - min.y);
}
float Box3D::GetZWidth() const {
    return float(double(max.z) - min.z);
}

int Box3D::GetCorner(point_3d *out) const {
    if (IsEmpty())
        return 0;
    const float zs[2] = {min.z, max.z};
    for (int k = 0; k < 2; ++k) {
        out[4 * k + 0].Set(min.x, min.y, zs[k]);
        out[4 * k + 1].Set(max.x, min.y, zs[k]);
        out[4 * k + 2].Set(max.x, max.y, zs[k]);
        out[4 * k + 3].Set(min.x, max.y, zs[k]);
    }
    return 1;
}

int Box3D::operator==(const Box3D &b) const {
    return (min.x == b.min.x && min.y == b.min.y && min.z == b.min.z && max.x == b.max.x &&
            max.y == b.max.y && max.z == b.max.z)
               ? 1
               : 0;
}

int Box3D::CheckInter(const point_3d &, const point_3d &, float) const {
    return 1;
}

void Box3D::Move(float dx, float dy, float dz) {
    min.Set(float(double(min.x) + dx), float(double(min.y) + dy), float(double(min.z) + dz));
    max.Set(float(double(max.x) + dx), float(double(max.y) + dy), float(double(max.z) + dz));
}

void Box3D::Grow(float dx, float dy, float dz) {
    min.Set(float(double(min.x) - dx), float(double(min.y) - dy), float(double(min.z) - dz));
    max.Set(float(double(max.x) + dx), float(double(max.y) + dy), float(double(max.z) + dz));
}

void Box3D::Intersect(const Box3D &b) {
    min.Set(greater(min.x, b.min.x), greater(min.y, b.min.y), greater(min.z, b.min.z));
    max.Set(lesser(max.x, b.max.x), lesser(max.y, b.max.y), lesser(max.z, b.max.z));
}

void Box3D::Union(const Box3D &b) {
    min.Set(lesser(min.x, b.min.x), lesser(min.y, b.min.y), lesser(min.z, b.min.z));
    max.Set(greater(max.x, b.max.x), greater(max.y, b.max.y), greater(max.z, b.max.z));
}

void Box3D::Adjust() {
    for (int i = 0; i < 3; ++i) {
        float &lo = min[i], &hi = max[i];
        if (lo > hi) {
            float t = lo;
            lo = hi;
            hi = t;
        }
    }
}

void Box3D::AddPt(const point_3d &p) {
    if (IsEmpty()) {
        min = p;
        max = p;
        return;
    }
    if (p.x < min.x)
        min.x = p.x;
    if (p.y < min.y)
        min.y = p.y;
    if (p.z < min.z)
        min.z = p.z;
    if (p.x > max.x)
        max.x = p.x;
    if (p.y > max.y)
        max.y = p.y;
    if (p.z > max.z)
        max.z = p.z;
}

Box3D &Box3D::operator+=(const Box3D &b) {
    if (IsEmpty())
        *this = b;
    else if (!b.IsEmpty())
        Union(b);
    return *this;
}

Box3D Box3D::operator+(const Box3D &b) const {
    if (IsEmpty())
        return b;
    if (b.IsEmpty())
        return *this;
    Box3D r(*this);
    r.Union(b);
    return r;
}

int Box3D::IsIn(const point_3d &p) const {
    return (min.x <= p.x && p.x < max.x && min.y <= p.y && p.y < max.y && min.z <= p.z &&
            p.z < max.z)
               ? 1
               : 0;
}

int Box3D::Contains(const point_3d &p) const {
    return IsIn(p);
}

int Box3D::IsIn(const point_3d &p, float t) const {
    return (inClosed(min.x, max.x, p.x, t) && inHalfOpen(min.y, max.y, p.y, t) &&
            inHalfOpen(min.z, max.z, p.z, t))
               ? 1
               : 0;
}

int Box3D::IsIn(const point_2d &p, float t) const {
    return (inClosed(min.x, max.x, p.x, t) && inHalfOpen(min.y, max.y, p.y, t)) ? 1 : 0;
}

int Box3D::IsIn2D(const double *p, double t) const {
    return (inClosed(min.x, max.x, p[0], t) && inHalfOpen(min.y, max.y, p[1], t)) ? 1 : 0;
}

int Box3D::IsIntersect(const Box3D &b) const {
    if (!(min.x < b.max.x && max.x > b.min.x))
        return 0;
    if (!(min.y < b.max.y && max.y > b.min.y))
        return 0;
    return (min.z < b.max.z && max.z > b.min.z) ? 1 : 0;
}

int Box3D::CanIntersect(const Box3D &b) const {
    if (!(greater(min.x, b.min.x) <= lesser(max.x, b.max.x)))
        return 0;
    if (!(greater(min.y, b.min.y) <= lesser(max.y, b.max.y)))
        return 0;
    return greater(min.z, b.min.z) <= lesser(max.z, b.max.z) ? 1 : 0;
}

int Box3D::CanIntersect(const Box3D &b, float t) const {
    if (!overlapAtLeast(min.x, max.x, b.min.x, b.max.x, t))
        return 0;
    if (!overlapAtLeast(min.y, max.y, b.min.y, b.max.y, t))
        return 0;
    return overlapAtLeast(min.z, max.z, b.min.z, b.max.z, t) ? 1 : 0;
}

int Box3D::CanIntersect(const Box2D &b, float t) const {
    if (!overlapAtLeast(min.x, max.x, b.min.x, b.max.x, t))
        return 0;
    return overlapAtLeast(min.y, max.y, b.min.y, b.max.y, t) ? 1 : 0;
}

int Box3D::CanInclude(const Box3D &b) const {
    return (min.x <= b.min.x && max.x >= b.max.x && min.y <= b.min.y && max.y >= b.max.y &&
            min.z <= b.min.z && max.z >= b.max.z)
               ? 1
               : 0;
}
