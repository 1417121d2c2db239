/* Korvane: Reference frames, gravity frames and double-precision boxes.
 *
 * A reference frame places a local coordinate system in the world. Its axes
 * are expected to be unit and orthogonal; nothing checks this, and the point
 * and vector transforms ignore the scale field. Two 4x4 layouts are used, both
 * sixteen doubles row by row:
 *
 *   column form (mathGetMatrixFromRFrame, mathGetRFrameFromMatrix,
 *   mathMultRFrame, mathMatxMult4x4): world = M * local for column vectors;
 *   the columns are x axis, y axis, z axis, origin, row 3 is (0, 0, 0, scale).
 *
 *   row form (every other mathMatx function): result = point * M for row
 *   vectors; the rows are (x axis, 0), (y axis, 0), (z axis, 0),
 *   (origin, scale).
 *
 * In every transform the output may be the input: all of the input is read
 * before any output is written. */
#ifndef KORVANE_FRAMES_H
#define KORVANE_FRAMES_H

#include <korvane/kernel.h>

/* Boxes: minimum corner, then maximum corner. The empty box holds 1e10 in
 * every minimum and -1e10 in every maximum. */
typedef double DBox2D[4]; /* min x, min y, max x, max y */
typedef double DBox3D[6]; /* min x, min y, min z, max x, max y, max z */

typedef struct RFrame {
    Vec3D xAxis;
    Vec3D yAxis;
    Vec3D zAxis;
    Pnt3D origin;
    double scale; /* homogeneous scale, 1.0 in every frame the library builds */
} RFrame;

/* A barycentric frame over the tetrahedron of three points and an apex. */
typedef struct GFrame {
    Pnt3D corner0;
    Pnt3D corner1;
    Pnt3D corner2;
    Pnt3D apex;
    double volume; /* signed volume of the tetrahedron, 0.0 until built */
} GFrame;

KORVANE_BEGIN_C

/* ---- Construction and motion ---------------------------------------------- */

/* Identity frame with scale 1.0. A null frame does nothing. */
KORVANE_API void mathInitRFrame(RFrame *frame);
/* Adds v to the origin. */
KORVANE_API void mathMoveRFrame(const double *v, RFrame *frame);
/* Adds v to the origin, exactly like mathMoveRFrame: the axes and the scale
 * field are not changed, and the middle argument is never read. */
KORVANE_API void mathScaleRFrame(const double *v, int unused, RFrame *frame);
/* Rotates origin and axes in place about the unit axis through pnt. */
KORVANE_API void mathRotateRFrame(const double *pnt, const double *axis, double angle,
                                  RFrame *frame);
/* Frame at origin with z along zdir (unit with tol 1e-8), x = unit(ref x z),
 * y = unit(z x x), scale 1.0. Returns 0 when any of the three cannot be made
 * unit (ref parallel to zdir, say); the frame is then partly written. */
KORVANE_API int mathDerivFrame(const double *origin, const double *zdir, const double *ref,
                               RFrame *frame);
/* Table of n separately allocated frames, each with only its scale set (1.0).
 * Null when an allocation fails (nothing is left allocated) or n < 0.
 * Release with mathFreRFrameStr. */
KORVANE_API RFrame **mathNewRFrameStr(int n);
/* Releases the n frames and the table. A null table does nothing. */
KORVANE_API void mathFreRFrameStr(int n, RFrame **str);

/* ---- Column-form matrices and frame algebra -------------------------------- */

/* Column form of the frame; nothing happens if either pointer is null. */
KORVANE_API void mathGetMatrixFromRFrame(const RFrame *frame, double *m);
/* Frame of the three columns, the origin column and the corner element; the
 * rest of row 3 is ignored. Nothing happens if either pointer is null. */
KORVANE_API void mathGetRFrameFromMatrix(const double *m, RFrame *frame);
/* c = a * b; c may be a or b. */
KORVANE_API void mathMatxMult4x4(const double *a, const double *b, double *c);
/* Inverse of an orthonormal frame: transposed axes, origin the negated dots
 * of the axes with the origin. The scale of the inverse is 1.0 whatever the
 * frame's scale was. */
KORVANE_API void mathInvsRFrame(const RFrame *frame, RFrame *inverse);
/* c = a * b through the column form (the scales multiply). Nothing happens if
 * any pointer is null. */
KORVANE_API void mathMultRFrame(const RFrame *a, const RFrame *b, RFrame *c);
/* The inverse of a times b: frame b in the coordinates of a. The result keeps
 * the scale of b. */
KORVANE_API void mathEvalRFrame(const RFrame *a, const RFrame *b, RFrame *result);
/* 1 if the origins are at most tol apart and every pair of axes makes an
 * angle of at most tol (radians; tol is also the zero length of the angle
 * test, and an axis shorter than that never fails). */
KORVANE_API int mathRFrameEqu(const RFrame *a, const RFrame *b, double tol);

/* ---- Row-form matrices ----------------------------------------------------- */

/* Row form of the frame (local to world). A null frame does nothing. */
KORVANE_API void mathMatxGetRFrame(const RFrame *frame, double *m);
/* Row form of the inverse frame (world to local; corner 1.0). A null frame
 * does nothing. Two names for one function. */
KORVANE_API void mathMatxWorldToRFrame(const RFrame *frame, double *m);
KORVANE_API void mathMatxWorldToRFrame2(const RFrame *frame, double *m);
/* Row form of mathEvalRFrame(a, b); returns m. Two names for one function. */
KORVANE_API double *mathMatxRFrameToRFrame(const RFrame *a, const RFrame *b, double *m);
KORVANE_API double *mathMatxRFrameToRFrame2(const RFrame *a, const RFrame *b, double *m);
/* p * M with the translation row, no division by the fourth column. */
KORVANE_API void mathMatxPnt3D(const double *m, const double *p, double *out);
/* A weighted point: divided by its weight, moved like mathMatxPnt3D and
 * multiplied back; out[3] is the weight. A weight below 1e-10 (every negative
 * weight too) leaves out untouched, silently. */
KORVANE_API void mathMatxPnt4D(const double *m, const double *p, double *out);
/* Image of the vector: image of v minus image of zero, so the translation
 * cancels. */
KORVANE_API void mathMatxVec3D(const double *m, const double *v, double *out);
/* Moves a frame: origin as a point, x and y axes as vectors (not made unit),
 * z = unit(x' x y') (left as it was if that fails), scale 1.0. A mirroring
 * matrix thus still gives a right-handed frame. Nothing happens if frame or
 * out is null. */
KORVANE_API void mathMatxRFrame(const double *m, const RFrame *frame, RFrame *out);
/* c = a * b; c may be a or b. */
KORVANE_API void mathMatxMult16(const double *a, const double *b, double *c);
/* Translation by v; returns m. */
KORVANE_API double *mathMatxMove(const double *v, double *m);
/* Scaling about the centre c by the three factors s; returns m. */
KORVANE_API double *mathMatxScale(const double *c, const double *s, double *m);
/* Rotation through the angle about the unit axis through pnt. */
KORVANE_API void mathMatxRotate(const double *pnt, const double *axis, double angle, double *m);
/* Mirror in the plane through pnt with the unit normal. */
KORVANE_API void mathMatxMirror(const double *pnt, const double *normal, double *m);

/* ---- Transforms through a frame (Local: frame to world; World: back) ------- */

/* x X + y Y + O: a point of the frame's xy plane in the world. */
KORVANE_API void mathTransLocalPnt2D(const RFrame *frame, const double *p, double *out);
KORVANE_API void mathTransLocalPnt3D(const RFrame *frame, const double *p, double *out);
/* ((p - O).X, (p - O).Y, (p - O).Z). */
KORVANE_API void mathTransWorldPnt3D(const RFrame *frame, const double *p, double *out);
/* ((p - O).X, (p - O).Y): a Pnt2D. */
KORVANE_API void mathTransWorldPnt3DTo2D(const RFrame *frame, const double *p, double *out);
KORVANE_API void mathTransLocalVec2D(const RFrame *frame, const double *v, double *out);
KORVANE_API void mathTransLocalVec3D(const RFrame *frame, const double *v, double *out);
KORVANE_API void mathTransWorldVec3D(const RFrame *frame, const double *v, double *out);
/* n weighted points (Pnt4H): dehomogenised, transformed as points, weighted
 * again. Returns 0 at the first weight with |w| < 1e-10 (the points before it
 * are written); negative weights pass. A count below 1 returns 1. */
KORVANE_API int mathTransLocalStr4D(int n, const RFrame *frame, const double *in, double *out);
KORVANE_API int mathTransWorldStr4D(int n, const RFrame *frame, const double *in, double *out);

/* ---- Transforms through bare axes -------------------------------------------- */

/* In the plane with origin o and unit x direction xd; the y axis is xd turned
 * a positive quarter. */
KORVANE_API void mathTransWorldPnt2DByOX(const double *o, const double *xd, const double *p,
                                         double *out);
KORVANE_API void mathTransLocalPnt2DByOX(const double *o, const double *xd, const double *p,
                                         double *out);
KORVANE_API void mathTransWorldPnt3DTo2DByOXY(const double *o, const double *x, const double *y,
                                              const double *p, double *out);
KORVANE_API void mathTransWorldPnt3DByOXYZ(const double *o, const double *x, const double *y,
                                           const double *z, const double *p, double *out);
KORVANE_API void mathTransLocalPnt3DByOXYZ(const double *o, const double *x, const double *y,
                                           const double *z, const double *p, double *out);
KORVANE_API void mathTransWorldVec3DByXYZ(const double *x, const double *y, const double *z,
                                          const double *v, double *out);
KORVANE_API void mathTransLocalVec3DByXYZ(const double *x, const double *y, const double *z,
                                          const double *v, double *out);

/* ---- Boxes in the plane ------------------------------------------------------
 * A tolerance widens the tested shapes. */

/* New empty DBox2D (four doubles from an array allocation: release it with
 * DelStr1D), or null. */
KORVANE_API double *mathCreateBox2D(void);
/* Makes the box empty. */
KORVANE_API void mathClnBox2D(double *box);
/* Copies both corners as given, unsorted; returns box. */
KORVANE_API double *mathIniBox2D(const double *min, const double *max, double *box);
/* The box of two points: the smaller value of each axis is the minimum. */
KORVANE_API void mathDefBox2D(const double *p, const double *q, double *box);
/* Grows the box to hold p; an empty box becomes the point. */
KORVANE_API void mathEnlargeBox2D(const double *p, double *box);
/* Box of n points (n < 1: the empty box). */
KORVANE_API void mathCalBox2DStr(int n, const double *pts, double *box);
/* Box of n points (x, y, w), enlarged by (x / w, y / w). Returns 0 at the
 * first w below 1e-20 (negative weights too), the box holding the points
 * before it; else 1. */
KORVANE_API int mathCalBox2HStr(int n, const double *pts, double *box);
/* 1 if the boxes overlap within tol. */
KORVANE_API int mathChkBox2DInt(const double *a, const double *b, double tol);
/* 1 if p lies in the box widened by tol; the widened border counts. */
KORVANE_API int mathChkBox2DPnt(const double *box, const double *p, double tol);
KORVANE_API void mathCalBox2DUnion(const double *a, const double *b, double *out);
/* Common part, written in any case (inverted for disjoint boxes); 0 if a
 * minimum exceeds its maximum by more than 1e-10, else 1. */
KORVANE_API int mathCalBox2DInt(const double *a, const double *b, double *out);
/* 1 if every maximum + 1e-10 >= its minimum; an empty box fails. */
KORVANE_API int mathIsValidBox2D(const double *box);
/* Exact world bounds (a DBox3D) of a DBox2D in the frame's xy plane. */
KORVANE_API void mathTransLocalBox2D(const RFrame *frame, const double *box, double *out);

/* ---- Boxes in space ---------------------------------------------------------- */

KORVANE_API void mathClnBox3D(double *box);
KORVANE_API double *mathIniBox3D(const double *min, const double *max, double *box);
KORVANE_API void mathDefBox3D(const double *p, const double *q, double *box);
KORVANE_API void mathEnlargeBox3D(const double *p, double *box);
/* Moves every face outwards by d; returns box. */
KORVANE_API double *mathExpandBox3D(double d, double *box);
/* The eight corners: four at minimum z, then four at maximum z, each group
 * anticlockwise from above starting at minimum x and y. A null box does
 * nothing. */
KORVANE_API void mathCalBox3DCorner(const double *box, double *corners);
KORVANE_API void mathCalBox3DStr(int n, const double *pts, double *box);
/* Box of n Pnt4H after mathGetPnt4: 0 at the first |w| < 1e-10, else 1. */
KORVANE_API int mathCalBox3HStr(int n, const double *pts, double *box);
KORVANE_API int mathChkBox3DInt(const double *a, const double *b, double tol);
KORVANE_API int mathChkBox3DPnt(const double *box, const double *p, double tol);
KORVANE_API void mathCalBox3DUnion(const double *a, const double *b, double *out);
KORVANE_API int mathCalBox3DInt(const double *a, const double *b, double *out);
KORVANE_API int mathIsValidBox3D(const double *box);
/* Nearest point of the box to p (p clamped per axis) and its distance. */
KORVANE_API double mathCalBox3DPntNearestDist(const double *box, const double *p, double *nearest);
/* 1 if the infinite line p + t d meets the box widened by tol (slab test; a
 * zero direction tests p itself). */
KORVANE_API int mathChkBoxLinInt(const double *box, const double *p, const double *d, double tol);
/* 1 if the plane (p, n) meets the box within tol, with *gap 0.0; else 0 and
 * *gap the signed offset of the nearer box extreme from the plane: negative
 * when the box lies wholly on the negative side, positive on the positive. */
KORVANE_API int mathChkBoxPlnInt(const double *box, const double *p, const double *n, double tol,
                                 double *gap);
/* 1 if the sphere's surface may pass through the box. The near distance
 * sums, for the axes where c lies outside the slab, the square to the
 * farther face: an overestimate, so a sphere that touches the near face of a
 * distant box does not count. A sphere holding the whole box gives 0. */
KORVANE_API int mathChkBox3DIntSph(const double *box, const double *c, double r, double tol);
/* 1 if box a moved by some t d meets box b within tol. */
KORVANE_API int mathChkPalVecThrTwoBox(const double *a, const double *b, const double *d,
                                       double tol);
/* Exact world bounds of a box given in frame coordinates, and frame bounds of
 * a box given in the world; the corners are never formed, the scale field is
 * not used, and out may be box. */
KORVANE_API void mathTransLocalBox3D(const RFrame *frame, const double *box, double *out);
KORVANE_API void mathTransWorldBox3D(const RFrame *frame, const double *box, double *out);

KORVANE_END_C

#endif
