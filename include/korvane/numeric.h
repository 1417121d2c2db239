/* Korvane: Equations, dense, sparse and symmetric matrices, band solvers, optimisers, small systems
 * and complex numbers. */
#ifndef KORVANE_NUMERIC_H
#define KORVANE_NUMERIC_H

#include <korvane/kernel.h>

KORVANE_BEGIN_C

/* ---- Algebraic equations ---------------------------------------------------
 *
 * Coefficient arrays here are in DESCENDING order: c[0] multiplies the highest
 * power and c[n] is the constant (the polynomial calculus further down uses
 * the ascending order). A solver returns the count of real roots written, or
 * 100 when every value solves the equation; complex roots are simply not
 * counted. Roots stand in the order the formula gives them, unsorted, except
 * in mathSolUniNEqua. */

/* a x^2 + b x + c = 0 into r[2]. Both slots start as 1.0. When
 * (|b| + |c|) * 1e-20 > |a| the equation is linear: 1 with -c / b in both
 * slots if |b| > 1e-20, else 100 if |c| < tol, else 0 (r keeps 1.0, 1.0).
 * Otherwise d = c - b^2 / (4 a) is the value at the vertex and decides:
 *   a > 0:  d > tol none, -tol < d <= tol one, d <= -tol two;
 *   a <= 0: d < -tol none, -tol <= d < tol one, d >= tol two.
 * With none or one root both slots hold the vertex (a double root is counted
 * once but stands twice). Two roots come in cancellation-free form, unordered.
 * The linear test is strict, so a == b == c == 0 is not an identity: it
 * divides by a and reports 2 NaNs. */
KORVANE_API int mathSolQuadEqua(double a, double b, double c, double tol, double *r);
/* Cubic c[0..3] into r[3] by Cardano (one real root, result 1) or by the
 * trigonometric form (three, result 3). A discriminant below 1e-30 in
 * magnitude is a repeated root: 3 with r[1] == r[2]. A negligible c[0] hands
 * over to mathSolQuadEqua(c[1], c[2], c[3], tol, r); tol is used nowhere else.
 * x^3 itself yields non-finite values. */
KORVANE_API int mathSolTriaEqua(const double *c, double tol, double *r);
/* Quartic c[0..4] into r[4] by Ferrari, through the largest real root of the
 * resolvent cubic (the largest of the roots the cubic solver reported: slots it
 * did not write are never read). The two quadratic factors are solved with tolerance
 * tol / |c[0]|, the first factor's roots first; equal roots of the two factors
 * are not merged and a double root of a factor counts once. Known blind spots
 * kept as they are: x^4 reports no root, x^4 - 1 never reports 1 or -1 (at
 * most two spurious values near 0, as tol allows), (x-1)^2 (x-2)^2 gives 2.
 * A negligible c[0] hands over to mathSolTriaEqua(c + 1, tol, r). */
KORVANE_API int mathSolQuarEqua(const double *c, double tol, double *r);
/* Roots of the degree-n polynomial c[0..n] (n from 1 to 4, else 0 without
 * reading c) in [lo, hi], widened by 1e-10 on each side and not clamped.
 * The ends count as roots when |p| < tol there. The roots come ascending and
 * at least 1e-10 apart; a flat stretch at the low end is reported by its lower
 * value, one at the high end by its upper value. At most n roots into r[n]. */
KORVANE_API int mathSolUniNEqua(int n, const double *c, double lo, double hi, double tol,
                                double *r);
/* Newton's iteration for f(x) = target from x0, at most 32 steps: 1 when
 * |target - f| < tol, 800 when |df| < 1e-20, 0 otherwise. *x holds the last
 * iterate in every case. */
KORVANE_API int mathSolUnivEqua(double (*f)(double), double (*df)(double), double target, double x0,
                                double tol, double *x);

/* a cos t + b sin t = c for t in [0, 2 pi], into r[2] (r starts as 0, pi/2).
 * 100 when the amplitude sqrt(a^2 + b^2) is below 1e-20 and |c| < tol, or
 * when c is within tol of both the amplitude and its negative; 0 when |c|
 * exceeds the amplitude by more than tol. A tangent root is one root, written
 * twice; two roots are unordered. */
KORVANE_API int mathSolExpoEqua(double a, double b, double c, double tol, double *r);
/* a cos^2 t + b sin t cos t + c sin^2 t = 0 by the double angle: the angles
 * of mathSolExpoEqua halved, so they lie in [0, pi]. On 100, r is left as
 * mathSolExpoEqua wrote it. */
KORVANE_API int mathSolHomoEqua(double a, double b, double c, double tol, double *r);
/* a cos t + b cos t sin t + c sin t = 0 by u = tan(t / 2), in two passes so
 * that no root is sought at large |u|: angles in [0, 2 pi) from the first,
 * in (pi / 2, 3 pi / 2) from the second. Up to 4 into r[4], in the order
 * found, neither sorted nor merged. On 100 only r[0] = 0.0 is written. */
KORVANE_API int mathSolAngleByCCSS(double a, double b, double c, double tol, double *r);

/* c[n] + c[n-1] x + c[n-2] x^2 + ...: summed upward with a running power, not
 * by Horner's rule. */
KORVANE_API double mathEvalPoly(int n, const double *c, double x);
/* p(x) / q(x), both of degree n in descending order; 0.0 when q(x) < 1e-20,
 * which includes every negative denominator. */
KORVANE_API double mathEvalRPoly(int n, const double *p, const double *q, double x);

/* ---- Dense matrices ---------------------------------------------------------
 *
 * A matrix is a flat row-major array with no header: element (i, j) of an r by
 * c matrix is at i * c + j. Dimensions below 1 give empty loops. */

/* a d - b c. */
KORVANE_API double mathCalDeterm22(double a, double b, double c, double d);
/* The determinant of the rows (a b c), (d e f), (g h i), summed as
 * b f g + c d h + a e i - c e g - a f h - b d i. */
KORVANE_API double mathCalDeterm33(double a, double b, double c, double d, double e, double f,
                                   double g, double h, double i);
/* c (l by n) = a (l by m) b (m by n), accumulated in c: c must not alias a or
 * b. Nothing happens for l < 1. */
KORVANE_API void mathMatxMult(const double *a, const double *b, double *c, int l, int m, int n);
/* t (c by r) = transpose of a (r by c); t must not alias a. */
KORVANE_API void mathMatxTrans(int r, int c, const double *a, double *t);
/* m = identity of order n. */
KORVANE_API void mathUnitMatx(int n, double *m);
/* Element-wise forms; dimensions below 1 do nothing. out = f a; out may be
 * a. */
KORVANE_API void mathMatxScalar(int r, int c, const double *a, double f, double *out);
/* out = a + b, out = a - b; out may be either operand. */
KORVANE_API void mathMatxPlus(int r, int c, const double *a, const double *b, double *out);
KORVANE_API void mathMatxMinus(int r, int c, const double *a, const double *b, double *out);
/* out = a (r by c). Note the arrays come first. */
KORVANE_API void mathMatxCopy(const double *a, double *out, int r, int c);
/* b[j] += f a[j] for j < n. */
KORVANE_API void mathElemnTrans_2(int n, const double *a, double *b, double f);
/* Swaps the n-vectors a and b. */
KORVANE_API void mathElemnTrans_3(int n, double *a, double *b);
/* Scales row i of the n-column matrix m by f; left alone when |1 - f| < 1e-20. */
KORVANE_API void mathElemnTrans_4(int n, int i, double *m, double f);
/* Row j += f row i of the n-column matrix m. */
KORVANE_API void mathElemnTrans_5(int n, int i, int j, double *m, double f);
/* Swaps rows i and j of the n-column matrix m; nothing when i == j. */
KORVANE_API void mathElemnTrans_6(int n, int i, int j, double *m);
/* Solves a x = b (n by n) by complete pivoting, destroying a and leaving x in
 * b. A pivot p is refused when 1.0 + |p| == 1.0, whatever the scale of a: then
 * 0 (singular) with a and b part-way transformed. 1 when solved. The first
 * largest pivot in row-major order wins a tie. 0 for n < 1 or when the small
 * work list cannot be allocated. */
KORVANE_API int mathGaussEliminate(double *a, double *b, int n);
/* Solves a x = b (n by n) with a and b unchanged; x must not alias b. When
 * elimination finds a singular a, x is the minimum-norm least-squares answer
 * through mathMatxInvs, still with the result 1. 0 only if that fails, -1 when
 * the scratch block cannot be allocated. */
KORVANE_API int mathSolLineEqua(int n, const double *a, const double *b, double *x);
/* g (c by r) = the Moore-Penrose generalised inverse of a (r by c), by
 * Greville's column recursion; a column whose part outside the span of the
 * earlier ones has a squared length below 1e-20 counts as dependent. There is
 * no singular outcome: 1, or 0 only when memory ran out (nothing is left
 * allocated). Dimensions below 1 give 1 and touch nothing. */
KORVANE_API int mathMatxInvs(int r, int c, const double *a, double *g);
/* inv = a^-1 (n by n) by elementary row operations, destroying a. Rows are
 * exchanged with the first (not the largest) entry above 1e-20 in magnitude.
 * 0 when a is singular, with a and inv part-way transformed; else 1. */
KORVANE_API int mathMatxInvsByET(int n, double *a, double *inv);

/* ---- Small systems and least squares ---------------------------------------- */

/* a x + b y = e, c x + d y = f by Cramer. 0 (x, y untouched) when
 * |a d - b c| < tol, else 1. */
KORVANE_API int mathSolLineEqua22(double a, double b, double c, double d, double e, double f,
                                  double tol, double *x, double *y);
/* The 3 by 3 system with rows (a00 a01 a02 | b0), (a10 a11 a12 | b1),
 * (a20 a21 a22 | b2) by Cramer. 0 (outputs untouched) when |det| < tol. */
KORVANE_API int mathSolLineEqua33(double a00, double a01, double a02, double a10, double a11,
                                  double a12, double a20, double a21, double a22, double b0,
                                  double b1, double b2, double tol, double *x, double *y,
                                  double *z);
/* Unit solution r of a x + b y = 0, c x + d y = 0, taken perpendicular to the
 * longer row (the second on a tie). r starts as zero. 100 when both rows are
 * shorter than tol; 1 when the other row's residual is at most tol; 0
 * otherwise, r still holding the unit vector. */
KORVANE_API int mathSolHomoEqua22(double a, double b, double c, double d, double tol, double *r);
/* Components of v on the basis e1, e2, e3: v = a e1 + b e2 + c e3. A singular
 * basis gives the minimum-norm components. 1; 0 (outputs untouched) only when
 * memory ran out. */
KORVANE_API int mathDecVec(const double *v, const double *e1, const double *e2, const double *e3,
                           double *a, double *b, double *c);
/* out (cols) = generalised inverse of m (rows by cols) times b (rows). 1; 0
 * when the inverse ran out of memory, -1 when the own block could not be
 * allocated; out untouched in both. */
KORVANE_API int mathSolByMatxInvs(int rows, int cols, const double *m, const double *b,
                                  double *out);
/* Least squares of a x = b for the scalar x; x = 0 when a . a <= 1e-100.
 * Always 1. */
KORVANE_API int mathSolLeastSquare31(const double *a, const double *b, double *x);
/* Least squares of a x[0] + b x[1] = c; for parallel a and b the shortest
 * such x (zero when |b|^2 < 1e-50). Always 1. */
KORVANE_API int mathSolLeastSquare32(const double *a, const double *b, const double *c, double *x);
/* Parameters r[0], r[1] of the closest points p0 + r[0] d0 and p1 + r[1] d1 of
 * two lines. When |d0 x d1| < 1e-11 they are the projections (m - p0) . d0 and
 * (m - p1) . d1 of the midpoint m of p0 and p1, with the result 1. 0 when a
 * denominator falls below 1e-100 (r[0] may already be written). */
KORVANE_API int mathSolLeastSquareLin(const double *p0, const double *d0, const double *p1,
                                      const double *d1, double *r);

/* ---- Polynomial calculus ------------------------------------------------------
 *
 * Coefficient arrays here are in ASCENDING order: a[0] is the constant and
 * a[n] multiplies x^n, the reverse of the equation solvers above. */

/* r[0..n+m] = a[0..n] * b[0..m] by convolution (either order, if both agree).
 * Nothing is written when n < 0 or n + m < 0. */
KORVANE_API void mathPolyMult(int n, int m, const double *a, const double *b, double *r);
/* k passes of r[i - 1] = i a[i], the pass limit dropping from n by one each
 * pass. Each pass reads a: with separate arrays r is the first derivative
 * whatever k is; with r == a the passes chain into the k-th derivative.
 * k > n writes r[0] = 0.0 alone; k < 1 writes nothing. */
KORVANE_API void mathPolyDeri(int k, int n, const double *a, double *r);
/* Integral of c[0..n] over [lo, hi]; 0.0 when hi - lo < 1e-10, so also for a
 * reversed interval. */
KORVANE_API double mathPolyIntg(int n, double lo, double hi, const double *c);
/* Integrals over [lo, hi] of p q, p' q' and (only when n > 2) p'' q'' into
 * r[0], r[1], r[2], for polynomials of n coefficients. n is at most 6: a
 * larger n writes nothing. r[2] is not written for n <= 2. */
KORVANE_API void mathIntgPolyMult(int n, const double *p, const double *q, double lo, double hi,
                                  double *r);

/* ---- Complex numbers (pairs: real part first) ------------------------------- */

/* r = a + b, r = a - b, r = a b; r may alias either operand. */
KORVANE_API void mathCompPlus(const double *a, const double *b, double *r);
KORVANE_API void mathCompMinus(const double *a, const double *b, double *r);
KORVANE_API void mathCompMult(const double *a, const double *b, double *r);
/* r = a conj(b) / |b|^2; r may alias either operand. 0 with r untouched when
 * |b|^2 < 1e-20, else 1. */
KORVANE_API int mathCompDivi(const double *a, const double *b, double *r);
/* r = value at x of the Lagrange polynomial through the n nodes z with values
 * w (arrays of n pairs). 0 when two nodes have |z[i] - z[j]|^2 < 1e-20, r then
 * holding a partial sum; 1 otherwise (with r zero for n < 1). */
KORVANE_API int mathIntpComp(int n, const double *z, const double *w, const double *x, double *r);

KORVANE_END_C

#endif
