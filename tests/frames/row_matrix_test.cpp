#include <korvane/frames.h>

#include <gtest/gtest.h>

#include <cstring>

#include "frames/frame_test_util.h"

namespace {

using frametest::randomFrame;

const double kPi = 3.141592653589793;

void expectNear3(const double *a, const double *b, double tol) {
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(a[i], b[i], tol) << i;
}

TEST(RowForm, FrameMatrixMapsLocalToWorldAndItsInverseBack) {
    std::mt19937 rng(31);
    RFrame f = randomFrame(rng);
    f.scale = 4.0;
    double m[16], w[16], w2[16];
    mathMatxGetRFrame(&f, m);
    EXPECT_EQ(m[1], f.xAxis[1]);
    EXPECT_EQ(m[13], f.origin[1]);
    EXPECT_EQ(m[3], 0.0);
    EXPECT_EQ(m[15], 4.0);
    mathMatxWorldToRFrame(&f, w);
    mathMatxWorldToRFrame2(&f, w2);
    EXPECT_EQ(w[15], 1.0);
    EXPECT_EQ(std::memcmp(w, w2, sizeof w), 0);
    const double p[3] = {0.5, -2, 1.5};
    double a[3], b[3];
    mathMatxPnt3D(m, p, a);
    mathTransLocalPnt3D(&f, p, b);
    expectNear3(a, b, 1e-14);
    mathMatxPnt3D(w, a, a);
    expectNear3(a, p, 1e-13);
}

TEST(RowForm, FrameToFrameCarriesCoordinatesOfBIntoA) {
    std::mt19937 rng(32);
    const RFrame a = randomFrame(rng), b = randomFrame(rng);
    double m[16], m2[16];
    EXPECT_EQ(mathMatxRFrameToRFrame(&a, &b, m), m);
    EXPECT_EQ(mathMatxRFrameToRFrame2(&a, &b, m2), m2);
    EXPECT_EQ(std::memcmp(m, m2, sizeof m), 0);
    const double p[3] = {1, 2, -1};
    double viaMatrix[3], viaWorld[3];
    mathMatxPnt3D(m, p, viaMatrix);
    mathTransLocalPnt3D(&b, p, viaWorld);
    mathTransWorldPnt3D(&a, viaWorld, viaWorld);
    expectNear3(viaMatrix, viaWorld, 1e-12);
}

TEST(RowForm, WeightedPointsBelowTheSignedLimitAreRefusedSilently) {
    double m[16];
    const double v[3] = {1, 2, 3}, neg[4] = {1, 1, 1, -1}, tiny[4] = {1, 1, 1, 0.5e-10};
    mathMatxMove(v, m);
    double out[4] = {9, 9, 9, 9};
    mathMatxPnt4D(m, neg, out);
    mathMatxPnt4D(m, tiny, out);
    for (double x : out)
        EXPECT_EQ(x, 9.0);
    double h[4] = {2, 4, 6, 2};
    mathMatxPnt4D(m, h, h); // in place: (1, 2, 3) moved to (2, 4, 6), weighted
    const double want[4] = {4, 8, 12, 2};
    EXPECT_EQ(std::memcmp(h, want, sizeof h), 0);
    double vec[3];
    mathMatxVec3D(m, v, vec); // the translation cancels
    EXPECT_EQ(std::memcmp(vec, v, sizeof vec), 0);
}

TEST(RowForm, QuarterTurnAboutZMapsXToY) {
    const double o[3] = {0, 0, 0}, z[3] = {0, 0, 1}, x[3] = {1, 0, 0}, y[3] = {0, 1, 0};
    double m[16], out[3];
    mathMatxRotate(o, z, kPi / 2, m);
    mathMatxPnt3D(m, x, out);
    expectNear3(out, y, 1e-15);
}

TEST(RowForm, MotionsAgreeWithThePointFunctions) {
    const double pnt[3] = {1, -1, 2}, axis[3] = {0.48, 0.6, 0.64}, p[3] = {-2, 0.5, 3};
    const double s[3] = {2, 0.5, -1};
    double m[16], a[3], b[3];
    mathMatxRotate(pnt, axis, 1.1, m);
    mathMatxPnt3D(m, p, a);
    mathRotPnt(axis, pnt, 1.1, p, b);
    expectNear3(a, b, 1e-13);
    mathMatxMirror(pnt, axis, m);
    mathMatxPnt3D(m, p, a);
    mathMirPnt(pnt, axis, p, b);
    expectNear3(a, b, 1e-13);
    EXPECT_EQ(mathMatxScale(pnt, s, m), m);
    EXPECT_EQ(m[12], -1.0); // (1 - s) c
    EXPECT_EQ(m[15], 1.0);
    mathMatxPnt3D(m, p, a);
    mathScalePnt(pnt, s, p, b);
    expectNear3(a, b, 1e-14);
}

TEST(RowForm, ComposedMatricesApplyLeftFirst) {
    const double v[3] = {1, 0, 0}, o[3] = {0, 0, 0}, z[3] = {0, 0, 1}, p[3] = {1, 1, 0};
    const double want[3] = {-1, 2, 0};
    double mv[16], mr[16], both[16], out[3];
    mathMatxMove(v, mv);
    mathMatxRotate(o, z, kPi / 2, mr);
    mathMatxMult16(mv, mr, both); // move, then turn: (2, 1) -> (-1, 2)
    mathMatxPnt3D(both, p, out);
    expectNear3(out, want, 1e-15);
}

TEST(RowForm, AMovedFrameStaysRightHandedUnderAMirror) {
    std::mt19937 rng(33);
    RFrame f = randomFrame(rng), g;
    const double pnt[3] = {0, 0, 0}, n[3] = {1, 0, 0};
    double m[16], zz[3];
    mathMatxMirror(pnt, n, m);
    mathMatxRFrame(m, &f, &g);
    EXPECT_EQ(g.scale, 1.0);
    EXPECT_NEAR(g.xAxis[0], -f.xAxis[0], 1e-15);
    mathVProduct(g.xAxis, g.yAxis, zz);
    expectNear3(g.zAxis, zz, 1e-14);
    EXPECT_NEAR(g.zAxis[0], f.zAxis[0], 1e-14); // not the mirror image of f's z
    mathMatxRFrame(m, &f, &f);                  // in place
    EXPECT_EQ(std::memcmp(&f, &g, sizeof f), 0);
    mathMatxRFrame(m, nullptr, &g);
    mathMatxRFrame(m, &f, nullptr);
}

TEST(RowForm, AFrameWhoseAxesCollapseKeepsItsOldZ) {
    double m[16] = {0};
    m[15] = 1.0; // every vector goes to zero
    RFrame f, g;
    mathInitRFrame(&f);
    g = f;
    g.zAxis[0] = 0.25;
    mathMatxRFrame(m, &f, &g);
    EXPECT_EQ(g.zAxis[0], 0.25);
    EXPECT_EQ(g.xAxis[0], 0.0);
}

} // namespace
