#include <korvane/frames.h>

#include <gtest/gtest.h>

#include <algorithm>

#include "frames/frame_test_util.h"

namespace {

using namespace frametest;

// ---- Frames ----------------------------------------------------------------------

TEST(RFrame, InverseComposedWithTheFrameIsTheIdentity) {
    RFrame id, inv, prod;
    mathInitRFrame(&id);
    EXPECT_TRUE(exactly(fields(id), {1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1}));
    std::mt19937 rng(11);
    for (int k = 0; k < 50; ++k) {
        RFrame f = randomFrame(rng);
        mathInvsRFrame(&f, &inv);
        mathMultRFrame(&f, &inv, &prod);
        EXPECT_TRUE(within(fields(prod), fields(id), 13, 1e-13));
        mathEvalRFrame(&f, &f, &prod); // the inverse of the first, then the second
        EXPECT_TRUE(within(fields(prod), fields(id), 13, 1e-13));
        f.scale = 2.0;          // the inverse has scale 1.0 whatever the frame's
        mathInvsRFrame(&f, &f); // in place
        EXPECT_TRUE(same(fields(f), fields(inv), 13));
    }
}

TEST(RFrame, ScalingOnlyMovesTheOrigin) {
    std::mt19937 rng(2);
    RFrame f = randomFrame(rng);
    f.scale = 5.0;
    RFrame want = f, moved = f;
    const double v[3] = {1, 2, 3};
    for (int i = 0; i < 3; ++i)
        want.origin[i] += v[i];
    mathScaleRFrame(v, 42, &f); // neither the axes nor the scale change
    mathMoveRFrame(v, &moved);
    EXPECT_TRUE(same(fields(f), fields(want), 13));
    EXPECT_TRUE(same(fields(moved), fields(want), 13));
}

TEST(DerivFrame, BuildsARightHandedFrameOrFailsForAParallelReferenceOrAShortZ) {
    const double o[3] = {1, 2, 3}, z[3] = {0, 0, 2}, ref[3] = {0, 5, 0}, par[3] = {0, 0, -3};
    const double tiny[3] = {0, 0, 0.9e-8}, enough[3] = {0, 0, 1.1e-8};
    RFrame f;
    ASSERT_EQ(mathDerivFrame(o, z, ref, &f), 1); // x is unit(ref x z)
    EXPECT_TRUE(exactly(fields(f), {1, 0, 0, 0, 1, 0, 0, 0, 1, 1, 2, 3, 1}));
    f.scale = 7.0;
    EXPECT_EQ(mathDerivFrame(o, z, par, &f), 0);
    EXPECT_EQ(f.scale, 7.0); // partly written, scale not set
    EXPECT_EQ(mathDerivFrame(o, tiny, ref, &f), 0);
    EXPECT_EQ(mathDerivFrame(o, enough, ref, &f), 1); // the limit is 1e-8, not 1e-10
}

TEST(RFrameEqu, OriginsExactlyTolApartAreEqual) {
    RFrame a, b;
    mathInitRFrame(&a);
    mathInitRFrame(&b);
    b.yAxis[1] = 0.0; // a zero axis never fails
    EXPECT_EQ(mathRFrameEqu(&a, &b, 1e-10), 1);
    b.origin[0] = 0.5;
    EXPECT_EQ(mathRFrameEqu(&a, &b, 0.5), 1);
    EXPECT_EQ(mathRFrameEqu(&a, &b, 0.4375), 0);
    b.yAxis[0] = b.yAxis[1] = 1.0; // 45 degrees off
    EXPECT_EQ(mathRFrameEqu(&a, &b, 0.5), 0);
    EXPECT_EQ(mathRFrameEqu(&a, &b, 0.8), 1);
}

TEST(RFrameStr, EveryRecordStartsWithScaleOne) {
    RFrame **s = mathNewRFrameStr(4);
    ASSERT_NE(s, nullptr);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(s[i]->scale, 1.0);
    mathFreRFrameStr(4, s);
    mathFreRFrameStr(3, nullptr);
}

// ---- Matrices --------------------------------------------------------------------

TEST(Matrices, TheTwoLayoutsOfAFrameAndWhatTheyMap) {
    std::mt19937 rng(31);
    RFrame f = randomFrame(rng), b = randomFrame(rng), g;
    f.scale = 4.0;
    double c[16], m[16], w[16], w2[16], fb[16], fb2[16], a[3], q[3];
    // The column form holds the axes in columns and the origin in column 3;
    // row 3 is ignored on the way back.
    mathGetMatrixFromRFrame(&f, c);
    EXPECT_TRUE(exactly(c, {f.xAxis[0], f.yAxis[0], f.zAxis[0], f.origin[0], f.xAxis[1]}));
    EXPECT_TRUE(exactly(c + 12, {0, 0, 0, 4}));
    c[12] = c[13] = c[14] = 99.0;
    mathGetRFrameFromMatrix(c, &g);
    EXPECT_TRUE(same(fields(f), fields(g), 13));
    mathGetRFrameFromMatrix(nullptr, &g);
    mathMultRFrame(&f, nullptr, &g);
    EXPECT_TRUE(same(fields(f), fields(g), 13));
    // The row form holds them in rows and the origin in row 3.
    mathMatxGetRFrame(&f, m);
    EXPECT_TRUE(exactly(m, {f.xAxis[0], f.xAxis[1], f.xAxis[2], 0.0}));
    EXPECT_TRUE(exactly(m + 12, {f.origin[0], f.origin[1], f.origin[2], 4.0}));
    mathMatxWorldToRFrame(&f, w);
    mathMatxWorldToRFrame2(&f, w2);
    const double p[3] = {0.5, -2, 1.5};
    mathMatxPnt3D(m, p, a);
    mathTransLocalPnt3D(&f, p, q);
    EXPECT_TRUE(within(a, q, 3, 1e-14));
    mathMatxPnt3D(w, a, a);
    EXPECT_TRUE(within(a, p, 3, 1e-13));
    // From b's coordinates into f's, against b's point map and f's inverse.
    mathMatxPnt3D(mathMatxRFrameToRFrame(&f, &b, fb), p, a);
    EXPECT_TRUE(same(mathMatxRFrameToRFrame2(&f, &b, fb2), fb, 16));
    mathTransLocalPnt3D(&b, p, q);
    mathMatxPnt3D(w2, q, q);
    EXPECT_TRUE(within(a, q, 3, 1e-12));
}

TEST(Matrices, RowFormWeightedPointsBelowTheSignedLimitAreRefusedSilently) {
    const double v[3] = {1, 2, 3}, neg[4] = {1, 1, 1, -1}, tiny[4] = {1, 1, 1, 0.5e-10};
    double m[16], out[4] = {9, 9, 9, 9}, h[4] = {2, 4, 6, 2}, vec[3];
    mathMatxMove(v, m);
    mathMatxPnt4D(m, neg, out);
    mathMatxPnt4D(m, tiny, out);
    EXPECT_TRUE(exactly(out, {9, 9, 9, 9}));
    mathMatxPnt4D(m, h, h); // in place: (1, 2, 3) moved to (2, 4, 6), weighted
    EXPECT_TRUE(exactly(h, {4, 8, 12, 2}));
    mathMatxVec3D(m, v, vec); // the translation cancels
    EXPECT_TRUE(same(vec, v, 3));
}

TEST(Matrices, RowFormMotionsAgreeWithThePointFunctions) {
    const double pnt[3] = {1, -1, 2}, axis[3] = {0.48, 0.6, 0.64}, p[3] = {-2, 0.5, 3};
    const double s[3] = {2, 0.5, -1};
    double m[16], a[3], b[3];
    mathMatxRotate(pnt, axis, 1.1, m);
    mathMatxPnt3D(m, p, a);
    mathRotPnt(axis, pnt, 1.1, p, b);
    EXPECT_TRUE(within(a, b, 3, 1e-13));
    mathMatxMirror(pnt, axis, m);
    mathMatxPnt3D(m, p, a);
    mathMirPnt(pnt, axis, p, b);
    EXPECT_TRUE(within(a, b, 3, 1e-13));
    mathMatxPnt3D(mathMatxScale(pnt, s, m), p, a);
    mathScalePnt(pnt, s, p, b);
    EXPECT_TRUE(within(a, b, 3, 1e-14));
}

TEST(Matrices, ProductsApplyLeftFirstAndMayWriteOverAnOperand) {
    const double v[3] = {1, 0, 0}, o[3] = {0, 0, 0}, z[3] = {0, 0, 1}, p[3] = {1, 1, 1};
    double mv[16], mr[16], both[16], out[3];
    mathMatxRotate(o, z, 1.5707963267948966, mr);
    mathMatxMult16(mathMatxMove(v, mv), mr, both); // move, then turn: (2, 1) -> (-1, 2)
    mathMatxMult4x4(mv, mr, mr);
    mathMatxPnt3D(both, p, out);
    EXPECT_TRUE(near(out, {-1, 2, 1}, 1e-15));
    EXPECT_TRUE(same(mr, both, 16));
}

TEST(Matrices, AMovedFrameIsRebuiltRightHandedOrKeepsItsOldZ) {
    std::mt19937 rng(33);
    RFrame f = randomFrame(rng), g;
    const double pnt[3] = {0, 0, 0}, n[3] = {1, 0, 0};
    double m[16], zz[3];
    mathMatxMirror(pnt, n, m);
    mathMatxRFrame(m, &f, &g);
    EXPECT_EQ(g.scale, 1.0);
    EXPECT_NEAR(g.xAxis[0], -f.xAxis[0], 1e-15);
    mathVProduct(g.xAxis, g.yAxis, zz);
    EXPECT_TRUE(within(g.zAxis, zz, 3, 1e-14));
    EXPECT_NEAR(g.zAxis[0], f.zAxis[0], 1e-14); // not the mirror image of f's z
    mathMatxRFrame(m, &f, &f);                  // in place
    EXPECT_TRUE(same(fields(f), fields(g), 13));
    g.zAxis[0] = 0.25; // scaling by zero leaves no axes to build z from
    mathMatxRFrame(mathMatxScale(pnt, pnt, m), &f, &g);
    EXPECT_EQ(g.zAxis[0], 0.25);
}

// ---- Transforms ------------------------------------------------------------------

TEST(FrameTransform, LocalAndWorldAreInversesThroughTheFrameOrItsBareAxesInPlace) {
    std::mt19937 rng(21);
    RFrame f = randomFrame(rng);
    f.scale = 2.0; // ignored
    const double *o = f.origin, *x = f.xAxis, *y = f.yAxis, *z = f.zAxis, p[3] = {2, 1.5, -2.25};
    double q[3] = {p[0], p[1], p[2]}, v[3] = {p[0], p[1], p[2]};
    mathTransLocalPnt3D(&f, q, q);
    mathTransWorldPnt3DByOXYZ(o, x, y, z, q, q);
    EXPECT_TRUE(within(q, p, 3, 1e-13));
    mathTransLocalPnt3DByOXYZ(o, x, y, z, q, q);
    mathTransWorldPnt3D(&f, q, q);
    EXPECT_TRUE(within(q, p, 3, 1e-13));
    mathTransLocalVec3D(&f, v, v);
    mathTransWorldVec3DByXYZ(x, y, z, v, v);
    EXPECT_TRUE(within(v, p, 3, 1e-13));
    mathTransLocalVec3DByXYZ(x, y, z, v, v);
    mathTransWorldVec3D(&f, v, v);
    EXPECT_TRUE(within(v, p, 3, 1e-13));
}

TEST(FrameTransform, PlaneFormsAgreeWithTheSpaceFormsInPlace) {
    std::mt19937 rng(23);
    const RFrame f = randomFrame(rng);
    const double p[3] = {1.25, -0.5, 0.0};
    double b[3], a[3] = {1.25, -0.5}, v[3] = {1.25, -0.5}, u[3] = {1.25, -0.5}, w[3] = {0, 0, 9};
    mathTransLocalPnt3D(&f, p, b);
    mathTransLocalPnt2D(&f, a, a);
    EXPECT_TRUE(same(a, b, 3));
    mathTransLocalVec3D(&f, p, b);
    mathTransLocalVec2D(&f, v, v);
    EXPECT_TRUE(same(v, b, 3));
    mathTransWorldPnt3D(&f, p, b);
    mathTransWorldPnt3DTo2D(&f, p, w);
    EXPECT_TRUE(exactly(w, {b[0], b[1], 9}));
    mathTransWorldPnt3DTo2DByOXY(f.origin, f.xAxis, f.yAxis, u, u);
    EXPECT_TRUE(exactly(u, {b[0], b[1], 0}));
}

TEST(FrameTransform, PlaneOXUsesTheQuarterTurnedYAxis) {
    const double o[2] = {1, 2}, xd[2] = {0.6, 0.8}, p[2] = {3, -1};
    double w[2];
    mathTransWorldPnt2DByOX(o, xd, p, w); // y axis (-0.8, 0.6)
    EXPECT_TRUE(near(w, {2 * 0.6 - 3 * 0.8, 2 * -0.8 - 3 * 0.6}, 1e-15));
    mathTransLocalPnt2DByOX(o, xd, w, w); // in place
    EXPECT_TRUE(within(w, p, 2, 1e-14));
}

TEST(FrameStr4D, NegativeWeightsPassTinyOnesStopTheWalkAndWorldUndoesLocal) {
    std::mt19937 rng(25);
    const RFrame f = randomFrame(rng);
    const double in[12] = {2, 4, 6, 2, -1, 2, -3, -1, 1, 1, 1, 0}, e1[3] = {1, -2, 3};
    double out[12], q[3];
    std::fill(out, out + 12, 77.0);
    EXPECT_EQ(mathTransLocalStr4D(3, &f, in, out), 0);
    mathTransLocalPnt3D(&f, e1, q);
    EXPECT_TRUE(near(out + 4, {-q[0], -q[1], -q[2], -1}, 1e-13));
    EXPECT_TRUE(exactly(out + 8, {77, 77, 77, 77}));    // the refused point is not written
    EXPECT_EQ(mathTransWorldStr4D(-2, &f, in, out), 1); // nothing to refuse
    std::copy(in, in + 8, out);                         // the two good points, in place both ways
    ASSERT_EQ(mathTransLocalStr4D(2, &f, out, out), 1);
    ASSERT_EQ(mathTransWorldStr4D(2, &f, out, out), 1);
    EXPECT_TRUE(within(out, in, 8, 1e-12));
}

} // namespace
