#include <korvane/frames.h>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>

#include "frames/frame_test_util.h"

namespace {

using frametest::randomFrame;

const double kPi = 3.141592653589793;

void expectNear3(const double *a, const double *b, double tol) {
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(a[i], b[i], tol) << i;
}
void expectNear3(const double *a, std::array<double, 3> b, double tol) {
    expectNear3(a, b.data(), tol);
}

TEST(RowForm, FrameMatrixMapsLocalToWorldAndItsInverseBack) {
    std::mt19937 rng(31);
    RFrame f = randomFrame(rng);
    f.scale = 4.0;
    double m[16], w[16];
    mathMatxGetRFrame(&f, m);
    EXPECT_EQ(m[1], f.xAxis[1]);
    EXPECT_EQ(m[13], f.origin[1]);
    EXPECT_EQ(m[3], 0.0);
    EXPECT_EQ(m[15], 4.0);
    mathMatxWorldToRFrame(&f, w);
    EXPECT_EQ(w[15], 1.0);
    double w2[16];
    mathMatxWorldToRFrame2(&f, w2);
    EXPECT_EQ(std::memcmp(w, w2, sizeof w), 0);

    const double p[3] = {0.5, -2, 1.5};
    double a[3], b[3];
    mathMatxPnt3D(m, p, a);
    mathTransLocalPnt3D(&f, p, b);
    expectNear3(a, b, 1e-14);
    mathMatxPnt3D(w, a, a);
    expectNear3(a, p, 1e-13);

    double untouched[16] = {0};
    mathMatxGetRFrame(nullptr, untouched);
    mathMatxWorldToRFrame(nullptr, untouched);
    EXPECT_EQ(untouched[0], 0.0);
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
    const double v[3] = {1, 2, 3};
    mathMatxMove(v, m);
    const double neg[4] = {1, 1, 1, -1}, tiny[4] = {1, 1, 1, 0.5e-10};
    double out[4] = {9, 9, 9, 9};
    mathMatxPnt4D(m, neg, out);
    mathMatxPnt4D(m, tiny, out);
    for (double x : out)
        EXPECT_EQ(x, 9.0);
    double h[4] = {2, 4, 6, 2};
    mathMatxPnt4D(m, h, h); // in place: (1, 2, 3) moved to (2, 4, 6), weighted
    EXPECT_EQ(h[0], 4.0);
    EXPECT_EQ(h[1], 8.0);
    EXPECT_EQ(h[2], 12.0);
    EXPECT_EQ(h[3], 2.0);
}

TEST(RowForm, VectorsIgnoreTheTranslation) {
    double m[16];
    const double move[3] = {5, -6, 7}, v[3] = {0.25, 0.5, -1};
    EXPECT_EQ(mathMatxMove(move, m), m);
    double out[3];
    mathMatxVec3D(m, v, out);
    expectNear3(out, v, 0.0);
}

TEST(RowForm, QuarterTurnAboutZMapsXToY) {
    const double o[3] = {0, 0, 0}, z[3] = {0, 0, 1}, x[3] = {1, 0, 0};
    double m[16], out[3];
    mathMatxRotate(o, z, kPi / 2, m);
    mathMatxPnt3D(m, x, out);
    expectNear3(out, std::array<double, 3>{0, 1, 0}, 1e-15);
}

TEST(RowForm, RotationAndMirrorAgreeWithThePointFunctions) {
    const double pnt[3] = {1, -1, 2}, axis[3] = {0.48, 0.6, 0.64}, p[3] = {-2, 0.5, 3};
    double m[16], a[3], b[3];
    mathMatxRotate(pnt, axis, 1.1, m);
    mathMatxPnt3D(m, p, a);
    mathRotPnt(axis, pnt, 1.1, p, b);
    expectNear3(a, b, 1e-13);
    mathMatxMirror(pnt, axis, m);
    mathMatxPnt3D(m, p, a);
    mathMirPnt(pnt, axis, p, b);
    expectNear3(a, b, 1e-13);
}

TEST(RowForm, ScalingAboutACentre) {
    const double c[3] = {1, 2, 3}, s[3] = {2, 0.5, -1}, p[3] = {3, 6, 4};
    double m[16], out[3], ref[3];
    EXPECT_EQ(mathMatxScale(c, s, m), m);
    EXPECT_EQ(m[12], -1.0);
    EXPECT_EQ(m[14], 6.0);
    EXPECT_EQ(m[15], 1.0);
    mathMatxPnt3D(m, p, out);
    mathScalePnt(c, s, p, ref);
    expectNear3(out, ref, 1e-14);
}

TEST(RowForm, ComposedMatricesApplyLeftFirst) {
    const double v[3] = {1, 0, 0}, o[3] = {0, 0, 0}, z[3] = {0, 0, 1}, p[3] = {1, 1, 0};
    double mv[16], mr[16], both[16], out[3];
    mathMatxMove(v, mv);
    mathMatxRotate(o, z, kPi / 2, mr);
    mathMatxMult16(mv, mr, both); // move, then turn: (2, 1) -> (-1, 2)
    mathMatxPnt3D(both, p, out);
    expectNear3(out, std::array<double, 3>{-1, 2, 0}, 1e-15);
}

TEST(RowForm, AMovedFrameStaysRightHandedUnderAMirror) {
    std::mt19937 rng(33);
    RFrame f = randomFrame(rng), g;
    const double pnt[3] = {0, 0, 0}, n[3] = {1, 0, 0};
    double m[16];
    mathMatxMirror(pnt, n, m);
    mathMatxRFrame(m, &f, &g);
    EXPECT_EQ(g.scale, 1.0);
    EXPECT_NEAR(g.xAxis[0], -f.xAxis[0], 1e-15);
    EXPECT_NEAR(g.origin[0], -f.origin[0], 1e-15);
    double zz[3];
    mathVProduct(g.xAxis, g.yAxis, zz);
    expectNear3(g.zAxis, zz, 1e-14); // not the mirror image of f's z
    EXPECT_NEAR(g.zAxis[0], f.zAxis[0], 1e-14);

    // In place, and a null frame or output does nothing.
    mathMatxRFrame(m, &f, &f);
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
