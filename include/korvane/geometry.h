/* Korvane: Lines, segments, planes, arcs, circles, spheres, cylinders, ellipses, ellipsoids and
 * triangles. */
#ifndef KORVANE_GEOMETRY_H
#define KORVANE_GEOMETRY_H

#include <korvane/kernel.h>

KORVANE_BEGIN_C

/* Result classes of the intersection functions: 0 nothing, 1 a single
 * result, 2 parallel and apart, 4 coincident or overlapping, 5 skew,
 * 800 degenerate input. */

/* ---- Lines in the plane ------------------------------------------------------
 * A line is a point o and a unit direction d, or two points a, b in the Ex
 * forms. A signed distance is positive on the left of the direction. */

/* A piece of a planar polyline; a node of a singly linked chain. */
typedef struct Lin2D {
    struct Lin2D *next;
    Pnt2D start;
    Pnt2D end;
} Lin2D;

/* New piece with next null, or null when allocation fails. Released as a
 * chain node by mathFreSDChns. */
KORVANE_API Lin2D *mathCreLin2D(const double *start, const double *end);
/* Swaps start and end. 0 for a null record, else 1. */
KORVANE_API int mathRevLin2D(Lin2D *lin);
/* out = o + t d. */
KORVANE_API void mathEvalLin2D(const double *o, const double *d, double t, double *out);
/* Signed distance (p.y - o.y) d.x - (p.x - o.x) d.y; d must be unit. */
KORVANE_API double mathDistPntLin2D(const double *p, const double *o, const double *d);
/* Signed distance to the line through a and b; when |b - a| < 1e-8 the
 * unsigned distance to a. */
KORVANE_API double mathDistPntLin2DEx(const double *p, const double *a, const double *b);
/* Foot of p on the line. */
KORVANE_API void mathPrjPntLin2D(const double *p, const double *o, const double *d, double *out);
/* Foot of p on the line through a and b; out = a when |b - a| < 1e-10. */
KORVANE_API void mathPrjPntLin2DEx(const double *p, const double *a, const double *b, double *out);
/* Unit normal on the left (right) of a->b. 1, or 0 with out unnormalised
 * when its length is below 1e-10. */
KORVANE_API int mathGetLinLeftDir2D(const double *a, const double *b, double *out);
KORVANE_API int mathGetLinRightDir2D(const double *a, const double *b, double *out);
/* dir = b - a and *len = |b - a|, always written. Below tol returns 0 with dir
 * unnormalised; otherwise dir is divided by the length and 1 returned.
 * (The 3D twin gives -4 instead of 0.) */
KORVANE_API int mathGetLinDirLen2D(const double *a, const double *b, double tol, double *dir,
                                   double *len);
/* Intersects o1 + t d1 and o2 + s d2. Returns 1 with the crossing in out when
 * the directions differ by at least tolPar; else 2 for parallel lines apart
 * (out untouched) or 4 for coincident ones, with out the mid-point of the two
 * origins moved to the mid-way normal. */
KORVANE_API int mathIntLin2D(const double *o1, const double *d1, const double *o2, const double *d2,
                             double tolDist, double tolPar, double *out);
/* Two-point form of mathIntLin2D; 800 when either piece is shorter than
 * tolDist. */
KORVANE_API int mathIntLin2DEx(const double *a1, const double *b1, const double *a2,
                               const double *b2, double tolDist, double tolPar, double *out);
/* Grows one connected run from the first piece of *chain, joining pieces
 * whose ends lie strictly closer than tol at either end of the run and
 * turning them so that each end meets the next start. The run goes to
 * *result; pieces that do not connect stay in *chain in their order.
 * Returns the number of pieces in the run (0 for an empty chain). */
KORVANE_API int mathGetPolylineOfLin2ds(Lin2D **chain, double tol, Lin2D **result);

/* ---- Lines in space ---------------------------------------------------------- */

/* A piece of a polyline in space; a node of a singly linked chain. */
typedef struct Lin3D {
    struct Lin3D *next;
    Pnt3D start;
    Pnt3D end;
} Lin3D;

/* New piece with next null, or null. Released by mathFreSDChns. */
KORVANE_API Lin3D *mathCreLin3D(const double *start, const double *end);
/* Swaps start and end. 0 for a null record, else 1. */
KORVANE_API int mathRevLin3D(Lin3D *lin);
/* Distance from p to its foot on the line o + t d (unit d). */
KORVANE_API double mathDistPntLin(const double *p, const double *o, const double *d);
/* Distance from p to the line through a and b; |a - p| when
 * |b - a| < 1e-10. */
KORVANE_API double mathDistPntLinEx(const double *p, const double *a, const double *b);
/* dir = b - a and *len = |b - a|, always written. Below tol returns -4 with dir
 * unnormalised; otherwise dir is divided by the length and 1 returned. */
KORVANE_API int mathGetLinDirLen(const double *a, const double *b, double tol, double *dir,
                                 double *len);
/* 1 when mathDistPntLinEx(p, a, b) < tol. */
KORVANE_API int mathChkPntLin(const double *p, const double *a, const double *b, double tol);
/* Foot of p on the line through a and b; out = a when |b - a| < 1e-10. */
KORVANE_API void mathPrjPntLinEx(const double *p, const double *a, const double *b, double *out);
/* As mathPrjPntLinEx, with *t the parameter of the foot (a = 0, b = 1):
 * ((p - a).d) / |b - a| for the unit d; *t = 0.0 when |b - a| < 1e-10. */
KORVANE_API void mathPrjPntLineEx(const double *p, const double *a, const double *b, double *out,
                                  double *t);
/* Parameter of p on o + t d from the first coordinate whose |d| exceeds 0.5;
 * 0.0 when none does. */
KORVANE_API double mathCalPntLinPara(const double *p, const double *o, const double *d);
/* Parameter of p on a -> b (a = 0, b = 1) from one coordinate, chosen by a
 * running comparison of the signed best against absolute values (a negative
 * x component loses to any nonzero y); 0.0 when that component is at most
 * 1e-8 in magnitude. */
KORVANE_API double mathCalPntLinSegPara(const double *p, const double *a, const double *b);
/* Closest approach of o1 + t d1 and o2 + s d2 (unit directions): out1 on line
 * 1, out2 on line 2. Returns 1 (meet), 5 (skew), 2 (parallel apart) or 4
 * (coincident), with both outputs written; 800 when a denominator falls below
 * 1e-100 (out1 may already be written when it is the second one). */
KORVANE_API int mathIntLin(const double *o1, const double *d1, const double *o2, const double *d2,
                           double tolDist, double tolPar, double *out1, double *out2);
/* Two-point form of mathIntLin; 800 when either piece is shorter than
 * tolDist. */
KORVANE_API int mathIntLinEx(const double *a1, const double *b1, const double *a2, const double *b2,
                             double tolDist, double tolPar, double *out1, double *out2);
/* Closest approach with the raw directions b - a: parameters *t1, *t2 (a = 0,
 * b = 1, written only for non-parallel lines), points out1, out2 and their
 * distance *dist. tolPar is compared with the unnormalised cross product.
 * Returns 1, 5, 2, 4, or 800 (nothing written) for a piece shorter than
 * tolDist. */
KORVANE_API int mathIntLine(const double *a1, const double *b1, const double *a2, const double *b2,
                            double tolDist, double tolPar, double *out1, double *out2, double *t1,
                            double *t2, double *dist);
/* Plane of two lines: 1 with pnt and normal for crossing or parallel lines;
 * 2 for coincident lines (nothing written); 0 otherwise. Parallel lines with
 * o1 equal to o2 determine no normal: normal is then left as it was. */
KORVANE_API int mathIsLinCoplanar(const double *o1, const double *d1, const double *o2,
                                  const double *d2, double tolDist, double tolPar, double *pnt,
                                  double *normal);
/* The 3D twin of mathGetPolylineOfLin2ds. */
KORVANE_API int mathGetPolylineOfLin3ds(Lin3D **chain, double tol, Lin3D **result);

/* ---- Segments in space -------------------------------------------------------- */

/* Per axis, the smaller end coordinate to min, the larger to max. */
KORVANE_API void mathGetBoxSegm(const double *a, const double *b, double *min, double *max);
/* Unclamped parameter ((p - a).d) / |d|^2 of p on a -> b; 0.0 when
 * |d|^2 < 1e-20. The point stands last. */
KORVANE_API double mathCalPntSegmPara(const double *a, const double *b, const double *p);
/* 1 when p lies within tol (strictly) of the segment. */
KORVANE_API int mathChkPntSegm(const double *p, const double *a, const double *b, double tol);
/* Writes the nearest point of the segment to p and returns its distance. */
KORVANE_API double mathGetPntSegmNearestPnt(const double *p, const double *a, const double *b,
                                            double *out);
/* Distance from p to the segment, with the clamped parameter in *t. */
KORVANE_API double mathGetPntSegmNDT(const double *p, const double *a, const double *b, double *t);
/* Intersects the segments a1-a2 and b1-b2: 1 with out1 on the first and out2
 * on the second; 4 for a collinear overlap from out1 to out2 along the first;
 * 0 for none (also for skew or parallel lines); 800 for a segment shorter than
 * 1e-8. */
KORVANE_API int mathIntSegm(const double *a1, const double *a2, const double *b1, const double *b2,
                            double tolDist, double tolPar, double *out1, double *out2);
/* Segment a-b against the line of sight o + t d (unit d), tested in the plane
 * through o perpendicular to d. 4: the segment lies along the line (out1 = a,
 * *t1 = 0, out2 = b, *t2 = 1). 1: a on the line (out1 = a, *t1 = 0), or b on
 * the line (out1 = b, *t2 = 1, *t1 untouched), or a crossing at *t1 with
 * out1 on the segment. 0: none; out1 and out2 then hold working values. */
KORVANE_API int mathIntSegmLin(const double *a, const double *b, const double *o, const double *d,
                               double tol, double *out1, double *out2, double *t1, double *t2);
/* 1 when the cursor ray o + t d (unit d) passes within tol of the segment. */
KORVANE_API int mathPickSegm(const double *a, const double *b, const double *o, const double *d,
                             double tol);

/* ---- Planes: a point po and a unit normal n ---------------------------------- */

/* |(p - po).n| */
KORVANE_API double mathDistPntPln(const double *p, const double *po, const double *n);
/* (p - po).n: positive on the side of the normal. */
KORVANE_API double mathDistPntPlnSide(const double *p, const double *po, const double *n);
/* out = p + ((po - p).n) n. */
KORVANE_API void mathPrjPntPln(const double *p, const double *po, const double *n, double *out);
/* out = v - (v.n) n. */
KORVANE_API void mathPrjVecPln(const double *v, const double *n, double *out);
/* 1 when o and o + 100 d both lie strictly within tol of the plane. */
KORVANE_API int mathIsLinOnPln(const double *o, const double *d, const double *po, const double *n,
                               double tol);
/* Line o + t d (d need not be unit) against the plane: 1 with the crossing in
 * out; for |d.n| < tolPar out = o and the result is 4 (in the plane) or 2. */
KORVANE_API int mathIntLinPln(const double *o, const double *d, const double *po, const double *n,
                              double tolDist, double tolPar, double *out);
/* Segment a-b against the plane. 4: in the plane (out1 = a, out2 = b, *t1 = 0,
 * *t2 = 1). 1: an end on the plane, always reported through out1 and *t1, or a
 * crossing at *t1. 0: none. out2 and *t2 are written only on 4. */
KORVANE_API int mathIntSegmPln(const double *a, const double *b, const double *po, const double *n,
                               double tol, double *out1, double *out2, double *t1, double *t2);
/* 1 when the planes are parallel (|na x nb| < tolPar) and p1 lies within
 * tolDist of the second one, measured along na. */
KORVANE_API int mathIsPlnOverlap(const double *p1, const double *na, const double *p2,
                                 const double *nb, double tolDist, double tolPar);
/* Line of two planes: 1 with a point in out and the unit direction na x nb in
 * dir. Parallel planes (|na x nb| < tolPar) give 4 (coincident) or 2, with
 * dir holding the small product and out untouched. */
KORVANE_API int mathIntPln(const double *p1, const double *na, const double *p2, const double *nb,
                           double tolDist, double tolPar, double *out, double *dir);
/* Point of three planes, solved with tol * tol as the determinant tolerance.
 * Returns 801 in every case: a singular system shows only as an untouched
 * out. */
KORVANE_API int mathInt3Pln(const double *p1, const double *na, const double *p2, const double *nb,
                            const double *p3, const double *nc, double tol, double *out);

KORVANE_END_C

#endif
