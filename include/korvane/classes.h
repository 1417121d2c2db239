// Korvane value classes: single-precision tolerances, points, boxes,
// transformations, matrix functions and picking. C++ only.
//
// Coordinates are 32-bit floats; every formula runs with 64-bit intermediates
// and rounds once when it stores or returns. Points are row vectors: a 2D
// matrix is 9 floats and a 3D matrix 16 floats, row by row, with translation
// in the last row, and nothing divides by a homogeneous coordinate. The
// classes are plain values: no virtual functions, no heap, cheap to copy.
// Nothing here throws, prints or allocates. Predicates return 1 or 0.
#ifndef KORVANE_CLASSES_H
#define KORVANE_CLASSES_H

#ifndef __cplusplus
#error "korvane/classes.h is a C++ header"
#endif

#include <korvane/export.h>

// ---- Process-wide tolerances ----------------------------------------------
//
// Plain globals, read at every call and stored without validation; meant to
// be set at start-up or by one thread.

// Length below which a segment counts as a point; 2D perpendicularity;
// window edge rejection. Default 0.002.
KORVANE_API double gmGetDistTol();
KORVANE_API void gmSetDistTol(double tol);
// Slack on a 2D line parameter; snapping of the 2D axis angles; window edge
// parameters. Default 0.0001.
KORVANE_API double gmGetParaTol();
KORVANE_API void gmSetParaTol(double tol);
// Point equality (times 10 in 2D), zero vectors, on-line and collinearity
// tests. Default 1e-06.
KORVANE_API double gmGetAbsDistTol();
KORVANE_API void gmSetAbsDistTol(double tol);
// Snapping of the 3D axis angles. Default 1e-06.
KORVANE_API double gmGetAbsParaTol();
KORVANE_API void gmSetAbsParaTol(double tol);
// Divisor guard of point_2d and point_3d; window edge determinant.
// Default 1e-10.
KORVANE_API double gmGetAbsZero();
KORVANE_API void gmSetAbsZero(double tol);

class point_2d;
class nd_point_2d;
class point_3d;
class nd_point_3d;
class point_4d;
class Box2D;
class Box3D;
class TRANSF_2D;
class TRANSF_3D;

// ---- point_2d --------------------------------------------------------------

class KORVANE_API point_2d {
  public:
    float x, y;

    point_2d(); // (0, 0)
    point_2d(float x, float y);
    point_2d(const point_2d &) = default;
    point_2d(const float *&p); // reads p[0], p[1]; p is not advanced

    // Assignments copy x and y; the z of a point_3d and the tag of an
    // nd_point_2d are dropped.
    point_2d &operator=(const point_2d &) = default;
    point_2d &operator=(const nd_point_2d &p);
    point_2d &operator=(const point_3d &p);

    // Index 1 gives y; every other index, negative or out of range, gives x.
    float &operator[](const int &i);
    operator float *();
    operator const float *() const;
    void operator()(float x, float y);
    void operator()(float *p);
    void Set(float x, float y);
    void Set(const float *&p);
    void Init();

    point_2d operator+(const point_2d &p) const;
    point_2d operator-(const point_2d &p) const;
    point_2d &operator+=(const point_2d &p);
    point_2d &operator-=(const point_2d &p);
    point_2d operator*(float s) const;
    point_2d &operator*=(float s);
    // Multiplies by the reciprocal of s; |s| at most gmGetAbsZero (or a NaN)
    // leaves the point as it is.
    point_2d operator/(float s) const;
    point_2d &operator/=(float s);
    // Negated copy; the object is untouched. Inverse is the same operation.
    point_2d operator-() const;
    point_2d Inverse() const;
    // Negates in place.
    point_2d &Reverse();
    // Row vector times a 3 by 3 matrix: x' = x m0 + y m3 + m6,
    // y' = x m1 + y m4 + m7. The third column is not read.
    point_2d operator*(const float *m) const;
    point_2d operator*(const float (*m)[3]) const;
    point_2d &operator*=(const float *m);
    point_2d &operator*=(const float (*m)[3]);

    float DistFrom(const point_2d &p) const;
    float DistFrom2(const point_2d &p) const;
    float Length() const;
    // Normalises in place and returns the former length. A length below
    // 1e-09 makes the vector zero and returns 0.
    float Unit();
    float Iproduct(const point_2d &p) const;
    // x p.y - y p.x.
    float Xproduct(const point_2d &p) const;
    // With c = Xproduct(a): (-c b.y, c b.x), the plane part of (this x a) x b.
    point_2d Xproduct(const point_2d &a, const point_2d &b) const;
    // Angle in [0, 2 pi] from the x (y) axis. Within gmGetParaTol of 0 it
    // snaps to 0 and within it of 2 pi to 2 pi, so (0, 1) has the angle 2 pi
    // from the y axis. 2 pi and pi/2 are the single-precision values.
    float AngleToXAxis() const;
    float AngleToYAxis() const;

    // Equal when the distance is below 10 gmGetAbsDistTol; != is its exact
    // negation (both 0 on a NaN).
    int operator==(const point_2d &p) const;
    int operator!=(const point_2d &p) const;

    // Nearest point q on the segment a-b, its parameter t and distance d.
    // A segment shorter than gmGetDistTol counts as the point a (t 0). The
    // parameter is kept unclamped when it lies in (-gmGetParaTol,
    // 1 + gmGetParaTol]; otherwise the nearer end wins, a tie going to b.
    // Always returns 1.
    int GetDistLineSeg(point_2d a, point_2d b, float &t, point_2d &q, float &d) const;
    float GetDistLineSeg(point_2d a, point_2d b) const;
    // Projection onto the infinite line a-b, unclamped; a line shorter than
    // gmGetDistTol gives t 0 and q = a. Always returns 1.
    int GetProjectPoint(point_2d a, point_2d b, float &t, point_2d &q, float &d) const;
    // Distance from the infinite line; when |b - a| squared is below
    // gmGetAbsDistTol, the distance from a.
    float GetDistLine(point_2d a, point_2d b) const;
    // Distance of (x, y, 0) from the line o + t u; u must be a unit vector
    // and is not checked. t = (p - o) . u.
    float GetDistLine(const point_3d &o, const point_3d &u, float &t) const;

    // GetDistLine(a, b) below gmGetAbsDistTol.
    int IsOn(const point_2d &a, const point_2d &b) const;
    // GetDistLineSeg(a, b) below gmGetAbsDistTol.
    int IsOnSeg(const point_2d &a, const point_2d &b) const;
    // Unit vectors with a dot product above 0.9999 (IsParallel: or below
    // -0.9999). A vector shorter than gmGetAbsDistTol is parallel to nothing.
    int IsSameDirection(const point_2d &v) const;
    int IsParallel(const point_2d &v) const;
    // |dot product| of the raw vectors below gmGetDistTol: a zero vector is
    // perpendicular to everything.
    int IsPerpendicular(const point_2d &v) const;
    // a and b seen from this point along one line: the cross product of the
    // unit vectors towards them below gmGetAbsDistTol. 0 when either of them
    // is closer than gmGetAbsDistTol to this point.
    int IsConLine(const point_2d &a, const point_2d &b) const;
    // Anticlockwise angle from this vector to v, in [0, 2 pi).
    float AngleToVector(const point_2d &v) const;
};

// s p.
KORVANE_API point_2d operator*(const float &s, const point_2d &p);
// The same row-vector product as p * m, whichever side the matrix stands on.
KORVANE_API point_2d operator*(const float *m, const point_2d &p);
KORVANE_API point_2d operator*(const float (*m)[3], const point_2d &p);

// 1 when no inner point of pts[0..n-1] is farther than tol from the segment
// pts[0]-pts[n-1] (a distance equal to tol passes); n of 2 or less gives 1.
KORVANE_API int IsPtsColine(const point_2d *pts, int n, float tol);

// ---- nd_point_2d, nd_point_3d: packed array elements ------------------------
//
// No gap after tag, so sizeof is 10 and 14. The tag belongs to the caller:
// it is stored and copied, never interpreted.

#pragma pack(push, 1)
class KORVANE_API nd_point_2d {
  public:
    float x, y;
    short tag;

    nd_point_2d(); // (0, 0), tag 0
    nd_point_2d(const nd_point_2d &) = default;
    nd_point_2d(const float *&p); // reads p[0], p[1]; tag 0

    nd_point_2d &operator=(const nd_point_2d &) = default; // copies the tag
    nd_point_2d &operator=(const point_2d &p);             // tag kept
    nd_point_2d &operator=(const point_3d &p);             // tag kept
};

class KORVANE_API nd_point_3d {
  public:
    float x, y, z;
    short tag;

    nd_point_3d(); // (0, 0, 0), tag 0
    nd_point_3d(const nd_point_3d &) = default;
    nd_point_3d(const float *&p); // reads p[0..2]; tag 0

    nd_point_3d &operator=(const nd_point_3d &) = default; // copies the tag
    nd_point_3d &operator=(const point_3d &p);             // tag kept
};
#pragma pack(pop)

// ---- point_3d --------------------------------------------------------------

class KORVANE_API point_3d {
  public:
    float x, y, z;

    point_3d(); // (0, 0, 0)
    point_3d(float x, float y, float z);
    point_3d(const point_3d &) = default;
    point_3d(const float *&p); // reads p[0..2]; p is not advanced

    point_3d &operator=(const point_3d &) = default;
    point_3d &operator=(const nd_point_3d &p);
    point_3d &operator=(const point_2d &p); // z becomes 0

    // Index 1 gives y, 2 gives z; every other index gives x.
    float &operator[](const int &i);
    operator float *();
    operator const float *() const;
    void operator()(float x, float y, float z);
    void operator()(float *p);
    void Set(float x, float y, float z);
    void Set(const float *&p);
    void Init();

    point_3d operator+(const point_3d &p) const;
    point_3d operator-(const point_3d &p) const;
    point_3d &operator+=(const point_3d &p);
    point_3d &operator-=(const point_3d &p);
    point_3d operator*(float s) const;
    point_3d &operator*=(float s);
    // Multiplies by the reciprocal of s; |s| at most gmGetAbsZero (or a NaN)
    // leaves the point as it is.
    point_3d operator/(float s) const;
    point_3d &operator/=(float s);
    point_3d operator-() const;
    point_3d Inverse() const; // same as unary minus
    point_3d &Reverse();
    // Row vector times a 4 by 4 matrix; the fourth column is not read.
    point_3d operator*(const float *m) const;
    point_3d operator*(const float (*m)[4]) const;
    point_3d &operator*=(const float *m);
    point_3d &operator*=(const float (*m)[4]);

    float DistFrom(const point_3d &p) const;
    float DistFrom2(const point_3d &p) const;
    float Length() const;
    // Normalises in place and returns the former length; below 1e-09 the
    // vector becomes zero and 0 is returned.
    float Unit();
    float Iproduct(const point_3d &p) const;
    point_3d Xproduct(const point_3d &p) const;                      // this x p
    float HybridProduct(const point_3d &a, const point_3d &b) const; // (this x a) . b
    // Angles of (x, y) as on point_2d, snapping with gmGetAbsParaTol.
    float AngleToXAxis() const;
    float AngleToYAxis() const;
    // Angle from +z in [0, pi], no snapping.
    float AngleToZAxis() const;

    // == when the distance is below gmGetAbsDistTol, != when above it: at
    // exactly the tolerance both give 0.
    int operator==(const point_3d &p) const;
    int operator!=(const point_3d &p) const;

    // Projection onto the infinite line a-b, unclamped. A line whose squared
    // length is below gmGetAbsDistTol counts as the point a (t 0).
    // Always returns 1.
    int GetMinDistance(point_3d a, point_3d b, float &t, point_3d &q, float &d) const;
    // Distance from the line o + t u; u must be a unit vector and is not
    // checked. t = (p - o) . u.
    float GetDistLine(const point_3d &o, const point_3d &u, float &t) const;
    // Inside the bounding box of a-b widened by gmGetAbsDistTol (strictly),
    // and |p - a| + |p - b| - |a - b| below gmGetAbsDistTol.
    int IsOnSeg(point_3d a, point_3d b) const;
    int IsSameDirection(const point_3d &v) const; // as on point_2d
    int IsParallel(const point_3d &v) const;      // as on point_2d
    // |dot product| of the raw vectors below gmGetAbsDistTol.
    int IsPerpendicular(const point_3d &v) const;
    // The cross product of the unit vectors towards a and b is shorter than
    // gmGetAbsDistTol. A point equal to a or b is collinear here.
    int IsConLine(const point_3d &a, const point_3d &b) const;
    // Unsigned angle to v in [0, pi]. When the raw cross product is shorter
    // than gmGetAbsDistTol: 0 for the same direction, else pi.
    float AngleToVector(const point_3d &v) const;
};

KORVANE_API point_3d operator*(const float &s, const point_3d &p);
// The same row-vector product as p * m.
KORVANE_API point_3d operator*(const float *m, const point_3d &p);
KORVANE_API point_3d operator*(const float (*m)[4], const point_3d &p);

// ---- point_4d --------------------------------------------------------------

class KORVANE_API point_4d {
  public:
    float x, y, z, w;

    point_4d(); // (0, 0, 0, 1)
    point_4d(float x, float y, float z, float w);
    point_4d(const point_4d &) = default;
    point_4d(const float *&p); // reads p[0..3]

    point_4d &operator=(const point_4d &) = default;
    point_4d &operator=(const point_3d &p);    // w becomes 1
    point_4d &operator=(const nd_point_3d &p); // w becomes 1
    point_4d &operator=(const point_2d &p);    // z 0, w 1

    void Set(float x, float y, float z, float w);
    void Set(const float *&p);
    void Init(); // (0, 0, 0, 1)

    // Component-wise on all four, w included.
    point_4d operator+(const point_4d &p) const;
    point_4d operator-(const point_4d &p) const;
    point_4d &operator+=(const point_4d &p);
    point_4d &operator-=(const point_4d &p);
    point_4d operator*(float s) const;
    point_4d &operator*=(float s);
    // The guard is the fixed 1e-07, not gmGetAbsZero: |s| at most 1e-07
    // leaves the point as it is.
    point_4d operator/(float s) const;
    point_4d &operator/=(float s);
};

// ---- Box2D, Box3D ----------------------------------------------------------
//
// Axis-aligned float boxes. They read no global tolerance. A box is empty
// when min exceeds max on some axis; the canonical empty box has every min 1
// and every max -1. A point box (min == max) is not empty. Nothing below
// tests emptiness unless it says so.

class KORVANE_API Box2D {
  public:
    point_2d min, max;

    Box2D();                                       // canonical empty box
    Box2D(float x0, float y0, float x1, float y1); // min (x0, y0), max (x1, y1), unsorted
    Box2D(const point_2d &a, const point_2d &b);   // min a, max b, unsorted
    Box2D(const Box2D &) = default;
    Box2D(const Box3D &b); // projection to x and y

    Box2D &operator=(const Box2D &) = default;
    Box2D &operator=(const Box3D &b);

    void EmptyBox();
    void DefineBox(float x0, float y0, float x1, float y1); // unsorted
    // Sorted per axis; the point_3d form reads x and y.
    void DefineBox(const point_2d &a, const point_2d &b);
    void DefineBox(const point_3d &a, const point_3d &b);
    void DefineBox(const Box2D &b);
    void DefineBox(const Box3D &b);

    int IsEmpty() const;
    point_2d GetCenter() const;
    float GetWidth() const;  // max.x - min.x, negative when reversed
    float GetHeight() const; // max.y - min.y
    // Four corners anticlockwise from min: (min, min), (max, min), (max, max),
    // (min, max). 0 with out untouched for an empty box.
    int GetCorner(point_2d *out) const;
    int operator==(const Box2D &b) const; // exact
    // Always 1: examines nothing.
    int CheckInter(const point_3d &a, const point_3d &b, float tol) const;

    void Move(float dx, float dy);
    // min - d, max + d.
    void Grow(float dx, float dy);
    // Larger min, smaller max; may come out reversed.
    void Intersect(const Box2D &b);
    // Smaller min, larger max, empty boxes taken at face value: the empty
    // box plus (5, 5)-(6, 6) is (1, 1)-(6, 6).
    void Union(const Box2D &b);
    // Swaps min and max on reversed axes.
    void Adjust();
    // An empty box becomes the point box of p; otherwise it grows to hold p.
    void AddPt(const point_2d &p);
    void AddPt(const nd_point_2d &p);
    Box2D &operator+=(const Box2D &b); // Union
    Box2D operator+(const Box2D &b) const;

    // min <= p < max per axis: the upper edges are outside.
    int IsIn(const point_2d &p) const;
    int Contains(const point_2d &p) const;
    // x: min - t <= p <= max + t; y: min - t <= p < max + t. Only the upper
    // x edge is inside.
    int IsIn(const point_2d &p, float t) const;
    int IsIn2D(const double *p, double t) const;

    // Open overlap on every axis: touching boxes do not intersect.
    int IsIntersect(const Box2D &b) const;
    // Closed overlap: touching boxes do.
    int CanIntersect(const Box2D &b) const;
    // Overlap of at least -t per axis: a gap up to t counts as touching.
    int CanIntersect(const Box2D &b, float t) const;
    int CanIntersect(const Box3D &b, float t) const; // x and y only
    // b lies within this box, edges included.
    int CanInclude(const Box2D &b) const;
    int CanInclude(const Box3D &b) const; // x and y only
};

class KORVANE_API Box3D {
  public:
    point_3d min, max;

    Box3D(); // canonical empty box
    // Sorted per axis, z 0 at both ends (unlike Box2D's constructor).
    Box3D(const point_2d &a, const point_2d &b);
    Box3D(const Box3D &) = default;
    // x and y copied, z 0 at both ends.
    Box3D(const Box2D &b);

    Box3D &operator=(const Box3D &) = default;

    void EmptyBox();
    void DefineBox(const point_3d &a, const point_3d &b); // sorted per axis
    void DefineBox(const Box3D &b);
    void DefineBox(const Box2D &b, float z); // min z and max z both z

    int IsEmpty() const;
    point_3d GetCenter() const;
    float GetXWidth() const;
    float GetYWidth() const;
    float GetZWidth() const;
    // The four corners of the min z level as on Box2D, then those of the max z
    // level. 0 with out untouched for an empty box.
    int GetCorner(point_3d *out) const;
    int operator==(const Box3D &b) const;
    // Always 1: examines nothing.
    int CheckInter(const point_3d &a, const point_3d &b, float tol) const;

    void Move(float dx, float dy, float dz);
    void Grow(float dx, float dy, float dz);
    void Intersect(const Box3D &b);
    // Plain per-axis rule: an empty box pulls the result out to (1, 1, 1) and
    // (-1, -1, -1).
    void Union(const Box3D &b);
    void Adjust();
    void AddPt(const point_3d &p);
    // Empty boxes are honoured: an empty side takes the other side's value
    // (an empty this first), so empty + empty is empty.
    Box3D &operator+=(const Box3D &b);
    Box3D operator+(const Box3D &b) const;

    // min <= p < max per axis.
    int IsIn(const point_3d &p) const;
    int Contains(const point_3d &p) const;
    // x includes max + t, y and z exclude it.
    int IsIn(const point_3d &p, float t) const;
    int IsIn(const point_2d &p, float t) const; // x and y; z ignored
    int IsIn2D(const double *p, double t) const;

    int IsIntersect(const Box3D &b) const;           // open
    int CanIntersect(const Box3D &b) const;          // closed
    int CanIntersect(const Box3D &b, float t) const; // gap up to t
    int CanIntersect(const Box2D &b, float t) const; // x and y only
    int CanInclude(const Box3D &b) const;
};

// ---- Free matrix functions -------------------------------------------------
//
// 2D: 9 floats, 3D: 16 floats, row by row, row vectors, translation in the
// last row. Outputs come last and may alias inputs where a product is formed.

KORVANE_API void InitMatrix2D(float *m);
KORVANE_API void InitMatrix3D(float *m);
KORVANE_API void ClearMatrix2D(float *m, float v);
KORVANE_API void ClearMatrix3D(float *m, float v);
KORVANE_API void CopyMatrix2D(const float *a, float *m);
KORVANE_API void CopyMatrix3D(const float *a, float *m);
// m = a b; m may be a or b.
KORVANE_API void MultiMatrix2D(const float *a, const float *b, float *m);
KORVANE_API void MultiMatrix3D(const float *a, const float *b, float *m);
// Rows (a0, a1, 0, a2), (a3, a4, 0, a5), (0, 0, 1, 0), (a6, a7, 0, a8).
KORVANE_API void Matrix2DTo3D(const float *a, float *m);
// 1 and the inverse in m (which may be a); 0 with m untouched when the
// determinant's magnitude is below 1e-06.
KORVANE_API int GetInverseMatrix2D(const float *a, float *m);

KORVANE_API void MakeMoveMatrix(float dx, float dy, float *m);
// Rotation by a (anticlockwise) about (cx, cy).
KORVANE_API void MakeRotateMatrix(float cx, float cy, float a, float *m);
KORVANE_API void MakeScaleMatrix(float cx, float cy, float sx, float sy, float *m);
// Mirror in the line through (cx, cy) at the angle a to the x axis.
KORVANE_API void MakeMirrorMatrix(float cx, float cy, float a, float *m);
// Shears about (cx, cy): x' = x + t y (MatX), y' = y + t x (MatY), with
// t = tan(a). The angle is wrapped into [0, 2 pi] and kept about 0.0097 away
// from the quarter and three-quarter turns, so t stays finite.
KORVANE_API void MakeShearMatX(float cx, float cy, float a, float *m);
KORVANE_API void MakeShearMatY(float cx, float cy, float a, float *m);
// y' = y + t x in the frame of the line p-q; a line shorter than 1e-05
// falls back to MakeShearMatX about p.
KORVANE_API void MakeShearMatrix(const point_2d &p, const point_2d &q, float a, float *m);

KORVANE_API void MakeMove3D(float dx, float dy, float dz, float *m);
KORVANE_API void MakeRotate3D_X(float a, float *m);
KORVANE_API void MakeRotate3D_Y(float a, float *m);
KORVANE_API void MakeRotate3D_Z(float a, float *m);
// Rotation by a about the line v[0]-v[1]; the identity when they are closer
// than 0.01.
KORVANE_API void MakeRotate3D_V(const point_3d *v, float a, float *m);
// Rigid motion taking v[0] to the origin and the direction v[0]->v[1] to +z;
// the identity when the points are closer than 0.001.
KORVANE_API void MakeRotate_VToZ(const point_3d *v, float *m);
// Its inverse.
KORVANE_API void MakeRotate_ZToV(const point_3d *v, float *m);
// Rotation by -b about the horizontal line through p at the angle a to x.
KORVANE_API void MakeRotateMat3D(point_3d p, float a, float b, float *m);

// out = p m with a 3 by 3 matrix (z copied by the point_3d output).
KORVANE_API void TransPoint2D(const point_2d &p, point_2d *out, const float *m);
KORVANE_API void TransPoint2D(const point_3d &p, point_2d *out, const float *m);
KORVANE_API void TransPoint2D(const point_3d &p, point_3d *out, const float *m);
// out = p m with a 4 by 4 matrix; a point_2d input has z 0.
KORVANE_API void TransPoint3D(const point_3d &p, point_3d *out, const float *m);
KORVANE_API void TransPoint3D(const point_3d &p, point_2d *out, const float *m);
KORVANE_API void TransPoint3D(const point_2d &p, point_2d *out, const float *m);
// n points through a 3 by 3 matrix; n of 0 does nothing. out may be in.
KORVANE_API void TransPointList2D(const point_2d *in, unsigned short n, point_2d *out,
                                  const float *m);
KORVANE_API void TransPointList2D(const point_3d *in, unsigned short n, point_2d *out,
                                  const float *m);
KORVANE_API void TransPointList2D(const point_3d *in, unsigned short n, point_3d *out,
                                  const float *m);
// Through a 4 by 4 matrix of doubles in 64-bit arithmetic; 2D points have z 0.
KORVANE_API void mathMatrixPt_2D(const point_2d &p, point_3d &out, const double *m);
KORVANE_API void mathMatrixNDPt_2D(const nd_point_2d &p, point_3d &out, const double *m);
KORVANE_API void mathMatrixPt_3D(const point_3d &p, point_3d &out, const double *m);
// Bounding box of the transformed corners (z 0 for a Box2D). The input is
// not tested for emptiness: its corners are used as they stand.
KORVANE_API void mathMatrixBox2D(const Box2D &b, Box3D &out, const double *m);
KORVANE_API void mathMatrixBox3D(const Box3D &b, Box3D &out, const double *m);

// ---- TRANSF_2D -------------------------------------------------------------
//
// The 3 by 3 matrix held as parts:
//     | xAxis.x   xAxis.y   pAxis.x |
//     | yAxis.x   yAxis.y   pAxis.y |
//     | origin.x  origin.y  scale   |
// Def members replace the object; the composing members (Move, Rotate, ...)
// multiply the same step on from the right, so it applies after what the
// object already does.

class KORVANE_API TRANSF_2D {
  public:
    point_2d xAxis, yAxis, pAxis, origin;
    float scale;

    TRANSF_2D(); // identity
    TRANSF_2D(const float *m);
    TRANSF_2D(const TRANSF_2D &) = default;
    TRANSF_2D &operator=(const TRANSF_2D &) = default;

    void Init();
    void Set9(const float *m);
    void Set3X3(const float (*m)[3]);
    void Get9(float *m) const;
    void Get3X3(float (*m)[3]) const;
    // The 4 by 4 embedding: rows (xx, xy, 0, px), (yx, yy, 0, py), (0, 0, 1, 0),
    // (ox, oy, 0, scale).
    void Get16(float *m) const;
    void GetDbl16(double *m) const;
    point_2d GetXAxis() const;
    point_2d GetYAxis() const;
    point_2d GetOrigin() const;
    point_2d GetPAxis() const;
    float GetScale() const;
    // Element (row, col); any index outside 0..2 gives element (0, 0).
    const float &operator()(const int &row, const int &col) const;

    // Frame at org with x axis along xdir (made unit; zero below 1e-09) and
    // y axis its left normal.
    void Define(point_2d org, point_2d xdir);
    // Stores the three and calls Unit(): the axes are normalised separately,
    // not made perpendicular.
    void Define(point_2d org, point_2d xdir, point_2d ydir);
    // Normalises both axes; either shorter than gmGetAbsDistTol makes the
    // identity (origin lost). Otherwise pAxis (0, 0), scale 1, origin kept.
    void Unit();

    void DefMove(point_2d p);
    void DefRotate(float a);                    // anticlockwise about (0, 0)
    void DefRotate(const point_2d &c, float a); // about c
    void DefScale(float sx, float sy);
    void DefScale(const point_2d &c, float sx, float sy);
    void DefShear(float a, float b); // x' = x + a y, y' = b x + y
    void DefMirrorXAxis();
    void DefMirrorYAxis();
    void DefMirrorOrigin();
    // Reflection in the line through a and b. Equal points give a singular
    // frame and a degenerate result.
    void DefMirror(const point_2d &a, const point_2d &b);

    // Adds p to origin; no product.
    void Move(const point_2d &p);
    void Rotate(float a);
    void Rotate(const point_2d &c, float a);
    void Scale(float sx, float sy);
    void Scale(const point_2d &c, float sx, float sy);
    void Shear(float a, float b);
    void MirrorXAxis();
    void MirrorYAxis();
    void MirrorOrigin();
    void Mirror(const point_2d &a, const point_2d &b);

    TRANSF_2D operator*(const TRANSF_2D &t) const;
    TRANSF_2D &operator*=(const TRANSF_2D &t);
    // Inverse through GetInverseMatrix2D. A singular matrix (determinant
    // below 1e-06 in magnitude) gives back an unchanged copy of the object,
    // as TRANSF_3D::Inverse does.
    TRANSF_2D Inverse() const;
    // Matrix transposed: pAxis and origin trade places.
    TRANSF_2D Transpose() const;
};

// x' = x xAxis.x + y yAxis.x + origin.x, y' likewise; pAxis and scale are not
// read. The point_3d form copies z.
KORVANE_API point_2d operator*(const point_2d &p, const TRANSF_2D &t);
KORVANE_API point_3d operator*(const point_3d &p, const TRANSF_2D &t);
// n points by the formula above; n of 0 does nothing. out may be in.
KORVANE_API void TransPointList2D(const point_2d *in, unsigned short n, point_2d *out,
                                  const TRANSF_2D &t);
KORVANE_API void TransPointList2D(const point_3d *in, unsigned short n, point_2d *out,
                                  const TRANSF_2D &t);
KORVANE_API void TransPointList2D(const point_3d *in, unsigned short n, point_3d *out,
                                  const TRANSF_2D &t);

// ---- TRANSF_3D -------------------------------------------------------------
//
// The 4 by 4 matrix, row by row: xAxis, pAxis.x / yAxis, pAxis.y / zAxis,
// pAxis.z / origin, scale. Def and composing members as on TRANSF_2D.

class KORVANE_API TRANSF_3D {
  public:
    point_3d xAxis, yAxis, zAxis, pAxis, origin;
    float scale;

    TRANSF_3D(); // identity
    TRANSF_3D(const float *m);
    TRANSF_3D(const TRANSF_3D &) = default;
    TRANSF_3D &operator=(const TRANSF_3D &) = default;
    // Like Set2D(t) but with zAxis (0, 0, 0): everything lands on z = 0 and
    // the matrix is singular.
    TRANSF_3D &operator=(const TRANSF_2D &t);

    void Init();
    void Set16(const float *m);
    void Set4X4(const float (*m)[4]);
    void SetDbl16(const double *m); // rounded to floats
    void SetDbl4X4(const double (*m)[4]);
    void Get16(float *m) const;
    void Get4X4(float (*m)[4]) const;
    void GetDbl16(double *m) const;
    void GetDbl4X4(double (*m)[4]) const;
    // Embeds a 2D matrix with zAxis (0, 0, 1): xAxis (m0, m1, 0),
    // yAxis (m3, m4, 0), pAxis (m2, m5, 0), origin (m6, m7, 0), scale m8.
    void Set2D(const float *m);
    void Set2D(const TRANSF_2D &t);
    point_3d GetXAxis() const;
    point_3d GetYAxis() const;
    point_3d GetZAxis() const;
    point_3d GetOrigin() const;
    point_3d GetPAxis() const;
    float GetScale() const;
    // Element (row, col); any index outside 0..3 gives element (0, 0).
    const float &operator()(const int &row, const int &col) const;

    // Frame at org with z along zdir (made unit in the point_3d form, taken
    // as it stands in the double form). The x axis comes from the coordinate
    // axis of zdir's smallest component: z if |z| <= |x|, |y|; else y if
    // |y| <= |x|, |z|; else x. So zdir (0, 0, 1) gives xAxis (0, 1, 0).
    void Define(point_3d org, point_3d zdir);
    void Define(const double *org, const double *zdir);
    // origin org, zAxis zdir, xAxis xdir, yAxis zdir x xdir, then Unit():
    // xdir keeps its direction even when not perpendicular to zdir.
    void Define(point_3d org, point_3d zdir, point_3d xdir);
    // Normalises the three axes (not made perpendicular). One shorter than
    // gmGetAbsDistTol gives the identity and 0; otherwise pAxis zero,
    // scale 1, origin kept, and 1.
    int Unit();

    void DefMove(point_3d p);
    void DefMove(const double *p);
    void DefRotateXAxis(float a);
    void DefRotateYAxis(float a);
    void DefRotateZAxis(float a);
    // About x by a, then y by b, then z by c.
    void DefRotate(float a, float b, float c);
    // Rotation by a built as Move(-p) G R F Move(p) with F the frame on p
    // along q - p: the axis is parallel to q - p through 2p, so it is the
    // line p-q only when p is the origin.
    void DefRotateLine(const point_3d &p, const point_3d &q, float a);
    // The same five factors with the direction d given directly.
    void DefRotate(const double *p, const double *d, double a);
    // Turns the direction u towards v (axis through 2p, as above). Parallel
    // u and v give the identity; opposite ones turn about an axis across u.
    void DefRotate(point_3d p, point_3d u, point_3d v);
    void DefScale(float sx, float sy, float sz);
    void DefScale(const point_3d &c, float sx, float sy, float sz); // about c
    void DefScale(const double *c, const double *s);
    void DefMirrorXOYPlane();
    void DefMirrorYOZPlane();
    void DefMirrorZOXPlane();
    // 0: XOY, 1: YOZ, 2: ZOX; any other value leaves the object unchanged.
    void DefMirror(unsigned int plane);
    // Reflection in the plane through p with normal n.
    void DefMirrorPlane(const point_3d &p, const point_3d &n);
    void DefMirror(const double *p, const double *n);

    // Adds p to origin; no product.
    void Move(point_3d p);
    void RotateXAxis(float a);
    void RotateYAxis(float a);
    void RotateZAxis(float a);
    void Rotate(float a, float b, float c);
    void RotateLine(const point_3d &p, const point_3d &q, float a);
    void Scale(float sx, float sy, float sz);
    void Scale(const point_3d &c, float sx, float sy, float sz);
    void MirrorXOYPlane();
    void MirrorYOZPlane();
    void MirrorZOXPlane();
    void Mirror(unsigned int plane);
    void MirrorPlane(const point_3d &p, const point_3d &n);

    // this t; operands may be the same object.
    TRANSF_3D operator*(const TRANSF_3D &t) const;
    TRANSF_3D &operator*=(const TRANSF_3D &t);
    // Single-precision Gauss-Jordan with partial pivoting. A pivot below
    // gmGetAbsDistTol in magnitude gives back an unchanged copy.
    TRANSF_3D Inverse() const;
    // The whole matrix transposed: pAxis and origin trade places.
    TRANSF_3D Transpose() const;
};

// Full row-vector product; w' = x pAxis.x + y pAxis.y + z pAxis.z + w scale.
KORVANE_API point_4d operator*(const point_4d &p, const TRANSF_3D &t);
// x xAxis + y yAxis + z zAxis + origin; pAxis and scale are not read.
KORVANE_API point_3d operator*(const point_3d &p, const TRANSF_3D &t);
// x' = x xAxis.x + y yAxis.x + origin.x, y' likewise.
KORVANE_API point_2d operator*(const point_2d &p, const TRANSF_3D &t);

// ---- Picking and window classification -------------------------------------
//
// 64-bit arithmetic; 2D points have z 0; the tag of nd_point_2d is ignored.
//
// A pick line is org + s dir with dir a unit vector (not checked: distances
// and depths scale with its length; a zero dir picks nothing). A point's
// distance from the line must be below tol, strictly; its depth is its
// coordinate along dir from org. The frame across the line is seeded by the
// smallest component of dir (a deliberate choice: seeded by the largest, a
// pick along a coordinate axis, as in top, front and side views, would get a
// degenerate frame and pick nothing). Another frame across the line would
// change results only by rounding.

KORVANE_API int PntPickPt(point_2d p, const double *org, const double *dir, double tol,
                          double &depth);
// 1 at the first segment of the polyline (in list order) within tol of the
// line, with param = segment index + fraction. Within a segment the start
// vertex is tried first, then the end vertex, then the interior. depth
// interpolates between the depth of vertex 0 of the whole list and that of
// the segment's end vertex, so it is a true interpolation on segment 0 only.
// 0 with both outputs untouched when nothing is hit, for null pts and for
// n of 1 or less (use PntPickPt for a single point).
KORVANE_API int PntPickPT2D(const point_2d *pts, int n, const double *org, const double *dir,
                            double tol, double &depth, double &param);
KORVANE_API int PntPickNDPT2D(const nd_point_2d *pts, int n, const double *org, const double *dir,
                              double tol, double &depth, double &param);
KORVANE_API int PntPickPT3D(const point_3d *pts, int n, const double *org, const double *dir,
                            double tol, double &depth, double &param);

// 1 when the polyline, mapped by the view matrix m (16 doubles; only columns 0
// and 1 are read), touches the window wmin-wmax: a vertex within 1e-05 of it
// or a segment crossing one of its edges (edge tolerances gmGetDistTol,
// gmGetParaTol, gmGetAbsZero). A polyline enclosing the window without
// touching it gives 0. n below 1 gives 0; WinInterPt2D also gives 0 for null
// pts, the other two require a valid array.
KORVANE_API int WinInterPt2D(const point_2d *pts, int n, const double *m, const double *wmin,
                             const double *wmax);
KORVANE_API int WinInterNDPt2D(const nd_point_2d *pts, int n, const double *m, const double *wmin,
                               const double *wmax);
KORVANE_API int WinInterPt3D(const point_3d *pts, int n, const double *m, const double *wmin,
                             const double *wmax);

#endif
