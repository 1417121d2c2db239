#include <korvane/frames.h>

#include <gtest/gtest.h>

#include <cstring>

#include "frames/frame_test_util.h"

namespace {

using frametest::randomFrame;

void expectNear(const double *a, const double *b, int n, double tol) {
    for (int i = 0; i < n; ++i)
        EXPECT_NEAR(a[i], b[i], tol) << i;
}

bool same(const double *a, const double *b, int n) {
    return std::memcmp(a, b, n * sizeof(double)) == 0;
}

TEST(FrameTransform, LocalAndWorldAreInversesInPlace) {
    std::mt19937 rng(21);
    for (int k = 0; k < 50; ++k) {
        RFrame f = randomFrame(rng);
        const double p[3] = {0.5 * k - 3, 1.5, -2.25};
        double q[3] = {p[0], p[1], p[2]}, v[3] = {p[0], p[1], p[2]}, r[3];
        mathTransLocalPnt3D(&f, q, q);
        f.scale = 2.0; // ignored
        mathTransWorldPnt3D(&f, q, q);
        expectNear(q, p, 3, 1e-13);
        mathTransLocalVec3D(&f, v, v);
        mathTransWorldVec3D(&f, v, v);
        expectNear(v, p, 3, 1e-13);
        mathTransLocalPnt3D(&f, p, q);
        mathTransLocalPnt3DByOXYZ(f.origin, f.xAxis, f.yAxis, f.zAxis, p, r);
        EXPECT_TRUE(same(q, r, 3));
    }
}

TEST(FrameTransform, PlaneAndBareAxisFormsAgreeWithTheSpaceForms) {
    std::mt19937 rng(23);
    const RFrame f = randomFrame(rng);
    const double p2[2] = {1.25, -0.5}, p3[3] = {1.25, -0.5, 0.0};
    double a[3], b[3], w2[3] = {0, 0, 99};
    mathTransLocalPnt2D(&f, p2, a);
    mathTransLocalPnt3D(&f, p3, b);
    EXPECT_TRUE(same(a, b, 3));
    mathTransLocalVec2D(&f, p2, a);
    mathTransLocalVec3DByXYZ(f.xAxis, f.yAxis, f.zAxis, p3, b);
    EXPECT_TRUE(same(a, b, 3));
    mathTransWorldPnt3D(&f, p3, b);
    mathTransWorldPnt3DTo2D(&f, p3, w2);
    EXPECT_TRUE(same(w2, b, 2));
    EXPECT_EQ(w2[2], 99.0);
    mathTransWorldPnt3DTo2DByOXY(f.origin, f.xAxis, f.yAxis, p3, w2);
    EXPECT_TRUE(same(w2, b, 2));
    mathTransWorldPnt3DByOXYZ(f.origin, f.xAxis, f.yAxis, f.zAxis, p3, a);
    EXPECT_TRUE(same(a, b, 3));
    mathTransWorldVec3D(&f, p3, a);
    mathTransWorldVec3DByXYZ(f.xAxis, f.yAxis, f.zAxis, p3, b);
    EXPECT_TRUE(same(a, b, 3));
}

TEST(FrameTransform, PlaneOXUsesTheQuarterTurnedYAxis) {
    const double o[2] = {1, 2}, xd[2] = {0.6, 0.8}, p[2] = {3, -1};
    double w[2], back[2];
    mathTransWorldPnt2DByOX(o, xd, p, w);
    const double want[2] = {2 * 0.6 - 3 * 0.8, 2 * -0.8 - 3 * 0.6}; // y axis (-0.8, 0.6)
    expectNear(w, want, 2, 1e-15);
    mathTransLocalPnt2DByOX(o, xd, w, back);
    expectNear(back, p, 2, 1e-14);
    mathTransLocalPnt2DByOX(o, xd, w, w); // in place
    EXPECT_TRUE(same(w, back, 2));
}

TEST(FrameStr4D, NegativeWeightsPassAndTinyOnesStopTheWalk) {
    std::mt19937 rng(25);
    const RFrame f = randomFrame(rng);
    const double in[12] = {2, 4, 6, 2, -1, 2, -3, -1, 1, 1, 1, 0};
    double out[12];
    for (double &x : out)
        x = 77.0;
    EXPECT_EQ(mathTransLocalStr4D(3, &f, in, out), 0);
    const double e1[3] = {1, -2, 3};
    double q[3];
    mathTransLocalPnt3D(&f, e1, q);
    const double want[3] = {-q[0], -q[1], -q[2]};
    expectNear(out + 4, want, 3, 1e-13);
    EXPECT_EQ(out[3], 2.0);
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
    expectNear(s, orig, 8, 1e-12);
}

} // namespace
