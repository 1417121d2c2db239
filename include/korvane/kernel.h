/* Korvane kernel: scalars, vectors, points, homogeneous points and polylines.
 *
 * Every function works in double precision on raw arrays: a point or vector is
 * the address of its first double, so any part of a larger record can be
 * passed. Inputs come first, then tolerances, then outputs. Unless stated
 * otherwise a length counts as zero when it is strictly below its tolerance,
 * and an output may alias an input only where that is said. Pointers are not
 * tested: null is undefined. */
#ifndef KORVANE_KERNEL_H
#define KORVANE_KERNEL_H

#include <korvane/export.h>

typedef double Pnt2D[2];
typedef double Vec2D[2];
typedef double Pnt3D[3];
typedef double Vec3D[3];
typedef double Pnt4H[4]; /* x, y, z, w: the Euclidean point is (x/w, y/w, z/w) */

KORVANE_BEGIN_C

/* ---- Scalars ------------------------------------------------------------ */

/* acos and asin guarded at +-0.999999999999: beyond it they give the end
 * values (0 or pi; +-pi/2) instead of a domain error. */
KORVANE_API double mathACos(double x);
KORVANE_API double mathASin(double x);

/* Angle in [0, 2 pi) of a cosine and sine pair (need not be normalised);
 * 0.0 when |c| + |s| < 1e-20. */
KORVANE_API double mathSolAngleByCS(double c, double s);

/* x < lo gives lo, else x > hi gives hi, else x. */
KORVANE_API double mathClamp(double lo, double hi, double x);
KORVANE_API double mathClamp01(double x);
/* Reduces an angle into [0, 2 pi]; both ends are kept as they are. */
KORVANE_API double mathClamp0PI2(double x);
/* Reduces x by the period hi - lo; a period below 1e-10 gives (lo + hi) / 2.
 * The reduced value is x - floor((x - lo) / p) * p, with no further offset. */
KORVANE_API double mathClampPeriodic(double lo, double hi, double x);

/* 16-bit packers on plain 32-bit words; the high-half shift is logical. */
KORVANE_API unsigned int mathGetHigh16(unsigned int v);
KORVANE_API unsigned int mathGetLow16(unsigned int v);
KORVANE_API unsigned int mathSetHigh16(unsigned int v, unsigned int h);
KORVANE_API unsigned int mathSetLow16(unsigned int v, unsigned int l);
KORVANE_API unsigned int mathMerge16(unsigned int h, unsigned int l);

/* rand() % 10000 * 0.0001: one of 0, 0.0001, ..., 0.9999. Never seeds. */
KORVANE_API double mathRand01(void);

KORVANE_API void mathSwapInt(int *a, int *b);
KORVANE_API void mathSwapDbl(double *a, double *b);
/* Swaps n elements; n <= 0 does nothing. */
KORVANE_API void mathSwapDblN(double *a, double *b, int n);
KORVANE_API void mathSwapPnt2D(double *a, double *b);
KORVANE_API void mathSwapPnt3D(double *a, double *b);

/* 1 when the unit vectors coincide (opposite != 0: oppose), that is when
 * |b - a| (|a + b|) is strictly below tol: tol is a chord, not an angle. */
KORVANE_API int mathChkAng(const double *a, const double *b, double tol, int opposite);

/* out = (p1 - p0) * (1 / dt). Returns 0 and leaves out alone when
 * |dt| < 1e-20. */
KORVANE_API int mathNumDer(const double *p0, const double *p1, double dt, double *out);

/* ---- Vectors in the plane ------------------------------------------------ */

/* Normalises v in place; below tol v becomes zero and the result is 0. */
KORVANE_API int mathUniVec2D(double *v, double tol);
KORVANE_API double mathVecLen2D(const double *v);
KORVANE_API double mathOProduct2D(const double *a, const double *b);
/* Signed area a.x * b.y - a.y * b.x. */
KORVANE_API double mathVProduct2D(const double *a, const double *b);
KORVANE_API void mathRevVec2D(double *v);
/* out = q - p. */
KORVANE_API void mathGetVec2D(const double *p, const double *q, double *out);
/* out = unit(q - p); below tol returns 0 with out holding q - p. */
KORVANE_API int mathGetVecByPP2D(const double *p, const double *q, double tol, double *out);
/* Anticlockwise rotation of v; the angle comes first. out may not be v. */
KORVANE_API void mathRotVec2D(double angle, const double *v, double *out);
/* Unsigned angle in [0, pi]; -1.0 when either length is below tol. */
KORVANE_API double mathGetAngle2D(const double *a, const double *b, double tol);
KORVANE_API double mathGetAngle2DUnit(const double *a, const double *b);
/* Signed angle of unit vectors through the arcsine of their cross product.
 * A cross product of exactly zero counts as negative: parallel vectors give
 * -0.0, opposite ones -pi. */
KORVANE_API double mathGetAngle2DUnitEx(const double *a, const double *b);
/* Angle of v from the x axis in [0, 2 pi). */
KORVANE_API double mathGetAngleX2D(const double *v);
/* mathGetAngle2D(p - c, q - c, 1e-10). */
KORVANE_API double mathGetAngle3P2D(const double *p, const double *c, const double *q);
/* Angle at c measured anticlockwise from the ray c->q to the ray c->p, in
 * [0, 2 pi]; -1.0 when either ray is shorter than 1e-10. */
KORVANE_API double mathGetACWAngle3P2D(const double *p, const double *c, const double *q);
/* mathGetACWAngle3P2D(a, (0, 0), b). */
KORVANE_API double mathGetACWAngle2D(const double *a, const double *b);

/* ---- Vectors in space ---------------------------------------------------- */

/* out = q - p. */
KORVANE_API void mathGetVec(const double *p, const double *q, double *out);
/* out = unit(q - p) with tol 1e-10; on failure out is zero and 0 returned. */
KORVANE_API int mathGetVecUnit(const double *p, const double *q, double *out);
/* Normalises v in place; below tol v becomes zero and the result is 0. */
KORVANE_API int mathUniVec(double *v, double tol);
KORVANE_API double mathVecLen(const double *v);
KORVANE_API double mathOProduct(const double *a, const double *b);
/* a[0]*b[2] + a[2]*b[0] + a[1]*b[1]: a dot product with x and z crossed. */
KORVANE_API double mathWProduct(const double *a, const double *b);
/* out = a x b; out may be a or b. */
KORVANE_API void mathVProduct(const double *a, const double *b, double *out);
/* out = unit(a x b) with tol 1e-10; on failure returns 0, out untouched. */
KORVANE_API int mathVProductUnit(const double *a, const double *b, double *out);
/* Triple product (a x b) . c. */
KORVANE_API double mathMProduct(const double *a, const double *b, const double *c);
KORVANE_API void mathRevVec(double *v);
/* Rescales v to length len; returns 0 and leaves v alone when |v| < 1e-20. */
KORVANE_API int mathChnVecLen(double *v, double len);
/* out = 2 (v.n) n - v: reflection of v about the line of the unit n. */
KORVANE_API void mathRefVec(const double *v, const double *n, double *out);
/* 1 when |a x b| < tol. */
KORVANE_API int mathIsParallel(const double *a, const double *b, double tol);
/* 1 when |a . b| < tol. */
KORVANE_API int mathIsPerpendicular(const double *a, const double *b, double tol);
/* out = (v.n) n for a unit n. */
KORVANE_API void mathPrjVecVec(const double *v, const double *n, double *out);
/* out = cos(angle) x + sin(angle) y. */
KORVANE_API void mathRotVecXY(const double *x, const double *y, double angle, double *out);
/* out = cos(angle) x + sin(angle) (z x x). */
KORVANE_API void mathRotVecXZ(const double *x, const double *z, double angle, double *out);
/* Rotates the free vector v about the unit axis through pnt; out may be v. */
KORVANE_API void mathRotVec(const double *axis, const double *pnt, double angle, const double *v,
                            double *out);
/* Mirrors the free vector v in the plane (pnt, unit normal); out may be v. */
KORVANE_API void mathMirVec(const double *pnt, const double *normal, const double *v, double *out);
/* Index of the element of least absolute value; ties keep the lowest index. */
KORVANE_API int mathGetVecMinComSub(int n, const double *a);
/* Completes the axis z to a frame: x unit and perpendicular to z, y = z x x
 * (not normalised again). Returns 0 with x zero and y untouched on failure. */
KORVANE_API int mathGetXYFromZ(const double *z, double *x, double *y);
/* Negates v in place when it points away from q as seen from p. Returns -4
 * (v untouched) when |q - p| < 1e-10, else 1. */
KORVANE_API int mathAdjVecDir(const double *p, double *v, const double *q);
/* out = unit(a + b). 1 on success; -4 with out zero on failure. */
KORVANE_API int mathAngleBisector(const double *a, const double *b, double *out);
/* Unsigned angle in [0, pi]; -1.0 when either length is below tol. */
KORVANE_API double mathGetAngle(const double *a, const double *b, double tol);
KORVANE_API double mathGetAngleUnit(const double *a, const double *b);
/* Angle of two unit vectors folded into [0, pi/2]. */
KORVANE_API double mathGetAcuteAngleUnit(const double *a, const double *b);
/* mathGetAngle(p - c, q - c, 1e-10). */
KORVANE_API double mathGetAngle3P(const double *p, const double *c, const double *q);
/* Angle of v in the plane of the unit axes x, y, in [0, 2 pi). */
KORVANE_API double mathGetRAngleXY(const double *x, const double *y, const double *v);
/* As mathGetRAngleXY with y = unit(z x x); x and z must not be parallel. */
KORVANE_API double mathGetRAngleXZ(const double *x, const double *z, const double *v);

/* ---- Points -------------------------------------------------------------- */

KORVANE_API void mathInitPnt2D(double *p);
KORVANE_API void mathInitPnt(double *p);
/* Copies, source first. */
KORVANE_API void mathCpyPnt2D(const double *from, double *to);
KORVANE_API void mathCpyPnt(const double *from, double *to);
KORVANE_API void mathCpyPnt4(const double *from, double *to);
/* The z of the target becomes 0.0. */
KORVANE_API void mathCpyPnt2DTo3D(const double *from, double *to);
KORVANE_API double mathDist2D(const double *p, const double *q);
KORVANE_API double mathDist(const double *p, const double *q);
/* Distance in n dimensions. */
KORVANE_API double mathDistXD(int n, const double *a, const double *b);
/* Distance of two homogeneous points; 0.0 when either weight is below 1e-10
 * (a negative weight included). */
KORVANE_API double mathDist3H(const double *a, const double *b);
/* out = (p + q) * 0.5. */
KORVANE_API void mathMidPnt2D(const double *p, const double *q, double *out);
KORVANE_API void mathMidPnt(const double *p, const double *q, double *out);
/* out = s p + t q; nothing forces s + t = 1. */
KORVANE_API void mathMixPnt2D(const double *p, const double *q, double s, double t, double *out);
KORVANE_API void mathMixPnt(const double *p, const double *q, double s, double t, double *out);
/* out = s p + t q on all four components; the weights come first. */
KORVANE_API void mathMixP4D(double s, double t, const double *p, const double *q, double *out);
/* out = p + t d. mathEvalLin is the same function. */
KORVANE_API void mathAddVec(const double *p, const double *d, double t, double *out);
KORVANE_API void mathEvalLin(const double *p, const double *d, double t, double *out);
/* (x, y, w) -> (x / w, y / w). Returns 0 and leaves out alone when
 * |w| < 1e-10. */
KORVANE_API int mathGetPnt3(const double *h, double *out);
/* (x, y, z, w) -> (x / w, y / w, z / w), with the same rule. */
KORVANE_API int mathGetPnt4(const double *h, double *out);
/* Anticlockwise rotation of p about c; the angle stands second. */
KORVANE_API void mathRotPnt2D(const double *c, double angle, const double *p, double *out);
/* Rotation of p about the line through pnt along the unit axis,
 * anticlockwise seen against the axis. out may be p. */
KORVANE_API void mathRotPnt(const double *axis, const double *pnt, double angle, const double *p,
                            double *out);
/* Mirror image of p in the plane through pnt with the unit normal.
 * out may be p. */
KORVANE_API void mathMirPnt(const double *pnt, const double *normal, const double *p, double *out);
/* out[i] = 2 * c[0] - p[i] for every i: only the first coordinate of the
 * centre is read, by design of this interface. */
KORVANE_API void mathSymPnt(const double *c, const double *p, double *out);
/* out[i] = (p[i] - c[i]) * s[i] + c[i], with three scale factors s. */
KORVANE_API void mathScalePnt(const double *c, const double *s, const double *p, double *out);

/* ---- Homogeneous points ----------------------------------------------------
 * out.w = h.w. A weight with |w| < 1e-10 is a point at infinity: the plain
 * operation acts on the raw x, y, z. Otherwise the point is divided by its
 * weight (through 1 / w), transformed, and multiplied by the weight again. */

KORVANE_API void mathMovePnt4H(const double *d, const double *h, double *out);
KORVANE_API void mathMirPnt4H(const double *pnt, const double *normal, const double *h,
                              double *out);
KORVANE_API void mathRotPnt4H(const double *axis, const double *pnt, double angle, const double *h,
                              double *out);
KORVANE_API void mathScalePnt4H(const double *c, const double *s, const double *h, double *out);

/* ---- Polylines (n points as a flat array of 3n doubles) ------------------- */

/* Sum of the segment lengths; 0.0 for n < 2. */
KORVANE_API double mathCalPolylineLen(int n, const double *pts);
/* Sum of the unsigned turning angles; 0.0 for n < 3 or as soon as any
 * segment is shorter than 1e-10. */
KORVANE_API double mathCalPolylineRotateAngle(int n, const double *pts);
/* Sum of lens[k] for k from min(i, j) + 1 to max(i, j). */
KORVANE_API double mathCalArcLen1(const double *lens, int i, int j);
/* Length between the parameters t1 and t2 of a parametrised polyline, where
 * lens[k] is the length of the segment ending at point k. Only parameter
 * pairs within 1e-10 of each other are measured: any pair further apart
 * gives 0.0. */
KORVANE_API double mathCalArcLen2(int n, const double *lens, const double *params, double t1,
                                  double t2);

/* ---- Point against a line, position in a parameter array ----------------- */

/* Foot of p on the line o + t d, d unit. */
KORVANE_API void mathPrjPntLin(const double *p, const double *o, const double *d, double *out);
/* Side of p relative to the line from a to b: 2 on (|distance| < tol),
 * 3 left, 4 right, 800 when |b - a| < 1e-10. */
KORVANE_API int mathChkPntLin2D(const double *p, const double *a, const double *b, double tol);
/* Index of the span of the ascending array t[0..n-1] that holds x, by a
 * linear search: 0 when x < t[0] + 1e-10, else n - 2 when x > t[n-1] - 1e-10
 * (so -1 for n = 1), else the i with t[i] <= x < t[i+1], else -1 (an array
 * out of order). n < 1 gives -1 without reading t. */
KORVANE_API int mathIntPos(int n, const double *t, double x);

KORVANE_END_C

#endif
