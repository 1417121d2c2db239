#include <korvane/frames.h>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>

#include "frames/frame_test_util.h"

namespace {

using frametest::randomFrame;

void expectNear3(const double *a, const double *b, double tol) {
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(a[i], b[i], tol) << i;
}
void expectNear3(const double *a, std::array<double, 3> b, double tol) {
    expectNear3(a, b.data(), tol);
}

TEST(FrameTransform, LocalAndWorldAreInversesInPlace) {
    std::mt19937 rng(21);
    for (int k = 0; k < 50; ++k) {
        const RFrame f = randomFrame(rng);
        const double p[3] = {0.5 * k - 3, 1.5, -2.25};
        double q[3] = {p[0], p[1], p[2]};
        mathTransLocalPnt3D(&f, q, q);
        mathTransWorldPnt3D(&f, q, q);
        expectNear3(q, p, 1e-13);
        double v[3] = {p[0], p[1], p[2]};
        mathTransLocalVec3D(&f, v, v);
        EXPECT_NEAR(mathVecLen(v), mathVecLen(p), 1e-13);
        mathTransWorldVec3D(&f, v, v);
        expectNear3(v, p, 1e-13);
    }
}

TEST(FrameTransform, TheScaleFieldIsIgnored) {
    std::mt19937 rng(22);
    RFrame f = randomFrame(rng);
    const double p[3] = {1, 2, 3};
    double a[3], b[3];
    mathTransLocalPnt3D(&f, p, a);
    f.scale = 2.0;
    mathTransLocalPnt3D(&f, p, b);
    EXPECT_EQ(std::memcmp(a, b, sizeof a), 0);
}

TEST(FrameTransform, PlaneFormsAgreeWithSpaceFormsAtZeroHeight) {
    std::mt19937 rng(23);
    const RFrame f = randomFrame(rng);
    const double p2[2] = {1.25, -0.5}, p3[3] = {1.25, -0.5, 0.0};
    double a[3], b[3], w2[3] = {0, 0, 99};
    mathTransLocalPnt2D(&f, p2, a);
    mathTransLocalPnt3D(&f, p3, b);
    EXPECT_EQ(std::memcmp(a, b, sizeof a), 0);
    mathTransLocalVec2D(&f, p2, a);
    mathTransLocalVec3D(&f, p3, b);
    EXPECT_EQ(std::memcmp(a, b, sizeof a), 0);
    mathTransWorldPnt3D(&f, p3, b);
    mathTransWorldPnt3DTo2D(&f, p3, w2);
    EXPECT_EQ(w2[0], b[0]);
    EXPECT_EQ(w2[1], b[1]);
    EXPECT_EQ(w2[2], 99.0);
}

TEST(FrameTransform, BareAxisFormsMatchTheFrameForms) {
    std::mt19937 rng(24);
    const RFrame f = randomFrame(rng);
    const double p[3] = {-1, 0.75, 2};
    double a[3], b[3];
    mathTransLocalPnt3D(&f, p, a);
    mathTransLocalPnt3DByOXYZ(f.origin, f.xAxis, f.yAxis, f.zAxis, p, b);
    EXPECT_EQ(std::memcmp(a, b, sizeof a), 0);
    mathTransWorldPnt3D(&f, p, a);
    mathTransWorldPnt3DByOXYZ(f.origin, f.xAxis, f.yAxis, f.zAxis, p, b);
    EXPECT_EQ(std::memcmp(a, b, sizeof a), 0);
    mathTransWorldPnt3DTo2DByOXY(f.origin, f.xAxis, f.yAxis, p, b);
    EXPECT_EQ(std::memcmp(a, b, 2 * sizeof(double)), 0);
    mathTransLocalVec3D(&f, p, a);
    mathTransLocalVec3DByXYZ(f.xAxis, f.yAxis, f.zAxis, p, b);
    EXPECT_EQ(std::memcmp(a, b, sizeof a), 0);
    mathTransWorldVec3D(&f, p, a);
    mathTransWorldVec3DByXYZ(f.xAxis, f.yAxis, f.zAxis, p, b);
    EXPECT_EQ(std::memcmp(a, b, sizeof a), 0);
}

TEST(FrameTransform, PlaneOXUsesTheQuarterTurnedYAxis) {
    const double o[2] = {1, 2}, xd[2] = {0.6, 0.8};
    const double p[2] = {3, -1};
    double w[2], back[2];
    mathTransWorldPnt2DByOX(o, xd, p, w);
    // y axis = (-0.8, 0.6)
    EXPECT_NEAR(w[0], 2 * 0.6 - 3 * 0.8, 1e-15);
    EXPECT_NEAR(w[1], 2 * -0.8 - 3 * 0.6, 1e-15);
    mathTransLocalPnt2DByOX(o, xd, w, back);
    EXPECT_NEAR(back[0], 3.0, 1e-14);
    EXPECT_NEAR(back[1], -1.0, 1e-14);
    mathTransLocalPnt2DByOX(o, xd, w, w); // in place
    EXPECT_EQ(std::memcmp(w, back, sizeof w), 0);
}

TEST(FrameStr4D, NegativeWeightsPassAndTinyOnesStopTheWalk) {
    std::mt19937 rng(25);
    const RFrame f = randomFrame(rng);
    double in[12] = {2, 4, 6, 2, -1, 2, -3, -1, 1, 1, 1, 0};
    double out[12];
    for (double &x : out)
        x = 77.0;
    EXPECT_EQ(mathTransLocalStr4D(3, &f, in, out), 0);
    const double e0[3] = {1, 2, 3}, e1[3] = {1, -2, 3};
    double q[3];
    mathTransLocalPnt3D(&f, e0, q);
    expectNear3(out, std::array<double, 3>{q[0] * 2, q[1] * 2, q[2] * 2}, 1e-13);
    EXPECT_EQ(out[3], 2.0);
    mathTransLocalPnt3D(&f, e1, q);
    expectNear3(out + 4, std::array<double, 3>{-q[0], -q[1], -q[2]}, 1e-13);
    EXPECT_EQ(out[7], -1.0);
    EXPECT_EQ(out[8], 77.0); // the refused point is not written
    EXPECT_EQ(mathTransLocalStr4D(0, &f, in, out), 1);
    EXPECT_EQ(mathTransWorldStr4D(-2, &f, in, out), 1);
}

TEST(FrameStr4D, WorldUndoesLocalInPlace) {
    std::mt19937 rng(26);
    const RFrame f = randomFrame(rng);
    const double orig[8] = {2, 4, 6, 2, 0.5, -1, 3, -0.5};
    double s[8];
    std::memcpy(s, orig, sizeof s);
    ASSERT_EQ(mathTransLocalStr4D(2, &f, s, s), 1);
    ASSERT_EQ(mathTransWorldStr4D(2, &f, s, s), 1);
    for (int i = 0; i < 8; ++i)
        EXPECT_NEAR(s[i], orig[i], 1e-12);
}

} // namespace
