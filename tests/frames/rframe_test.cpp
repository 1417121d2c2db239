#include <korvane/frames.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "frames/frame_test_util.h"

namespace {

using frametest::randomFrame;

void expectIdentity(const RFrame &f, double tol) {
    const double id[12] = {1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0};
    const double *g = f.xAxis;
    const double got[12] = {g[0],       g[1],        g[2],        f.yAxis[0],
                            f.yAxis[1], f.yAxis[2],  f.zAxis[0],  f.zAxis[1],
                            f.zAxis[2], f.origin[0], f.origin[1], f.origin[2]};
    for (int i = 0; i < 12; ++i)
        EXPECT_NEAR(got[i], id[i], tol) << i;
}

TEST(RFrame, InitGivesTheIdentityAndToleratesNull) {
    RFrame f;
    std::memset(&f, 0xff, sizeof f);
    mathInitRFrame(&f);
    expectIdentity(f, 0.0);
    EXPECT_EQ(f.scale, 1.0);
    mathInitRFrame(nullptr);
    RFrame inv;
    mathInvsRFrame(&f, &inv);
    expectIdentity(inv, 0.0);
}

TEST(RFrame, InverseComposedWithTheFrameIsTheIdentity) {
    std::mt19937 rng(11);
    for (int k = 0; k < 50; ++k) {
        const RFrame f = randomFrame(rng);
        RFrame inv, prod;
        mathInvsRFrame(&f, &inv);
        mathMultRFrame(&f, &inv, &prod);
        expectIdentity(prod, 1e-13);
        mathMultRFrame(&inv, &f, &prod);
        expectIdentity(prod, 1e-13);
        mathEvalRFrame(&f, &f, &prod);
        expectIdentity(prod, 1e-13);
        EXPECT_EQ(prod.scale, 1.0);
        // In place: the frame becomes its own inverse.
        RFrame g = f;
        mathInvsRFrame(&g, &g);
        EXPECT_EQ(std::memcmp(&g, &inv, sizeof g), 0);
    }
}

TEST(RFrame, InverseScaleIsOneAndEvalKeepsTheSecondScale) {
    RFrame a, b, r;
    mathInitRFrame(&a);
    mathInitRFrame(&b);
    a.scale = 2.0;
    b.scale = 3.0;
    mathInvsRFrame(&a, &r);
    EXPECT_EQ(r.scale, 1.0);
    mathEvalRFrame(&a, &b, &r);
    EXPECT_EQ(r.scale, 3.0);
    mathMultRFrame(&a, &b, &r);
    EXPECT_EQ(r.scale, 6.0);
}

TEST(RFrame, ScaleOnlyMovesTheOrigin) {
    std::mt19937 rng(2);
    RFrame f = randomFrame(rng);
    f.scale = 5.0;
    const RFrame before = f;
    const double v[3] = {1, 2, 3};
    mathScaleRFrame(v, 42, &f);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(f.origin[i], before.origin[i] + v[i]);
        EXPECT_EQ(f.xAxis[i], before.xAxis[i]);
        EXPECT_EQ(f.zAxis[i], before.zAxis[i]);
    }
    EXPECT_EQ(f.scale, 5.0);
    RFrame g = before;
    mathMoveRFrame(v, &g);
    EXPECT_EQ(std::memcmp(&f, &g, sizeof f), 0);
}

TEST(RFrame, RotatingTheFrameRotatesEveryLocalPoint) {
    std::mt19937 rng(4);
    const double pnt[3] = {1, -2, 0.5}, axis[3] = {0.0, 0.6, 0.8}, p[3] = {0.3, -1.2, 2.0};
    RFrame f = randomFrame(rng);
    double before[3], after[3];
    mathTransLocalPnt3D(&f, p, before);
    mathRotPnt(axis, pnt, 0.7, before, before);
    mathRotateRFrame(pnt, axis, 0.7, &f);
    mathTransLocalPnt3D(&f, p, after);
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(after[i], before[i], 1e-13);
}

TEST(DerivFrame, BuildsARightHandedFrameAlongZ) {
    const double o[3] = {1, 2, 3}, z[3] = {0, 0, 2}, ref[3] = {0, 5, 0};
    RFrame f;
    ASSERT_EQ(mathDerivFrame(o, z, ref, &f), 1);
    EXPECT_EQ(f.zAxis[2], 1.0);
    EXPECT_EQ(f.xAxis[0], 1.0); // unit(ref x z)
    EXPECT_EQ(f.yAxis[1], 1.0);
    EXPECT_EQ(f.origin[2], 3.0);
    EXPECT_EQ(f.scale, 1.0);
}

TEST(DerivFrame, FailsForAParallelReferenceOrAShortZ) {
    const double o[3] = {0, 0, 0}, z[3] = {0, 0, 1}, par[3] = {0, 0, -3};
    RFrame f;
    f.scale = 7.0;
    EXPECT_EQ(mathDerivFrame(o, z, par, &f), 0);
    EXPECT_EQ(f.scale, 7.0); // left partly written, scale not set
    const double tiny[3] = {0, 0, 0.9e-8}, ref[3] = {1, 0, 0};
    EXPECT_EQ(mathDerivFrame(o, tiny, ref, &f), 0);
    const double justEnough[3] = {0, 0, 1.1e-8}; // the literal is 1e-8, not 1e-10
    EXPECT_EQ(mathDerivFrame(o, justEnough, ref, &f), 1);
}

TEST(RFrameEqu, OriginsExactlyTolApartAreEqual) {
    RFrame a, b;
    mathInitRFrame(&a);
    mathInitRFrame(&b);
    b.origin[0] = 0.5;
    EXPECT_EQ(mathRFrameEqu(&a, &b, 0.5), 1);
    EXPECT_EQ(mathRFrameEqu(&a, &b, 0.4375), 0);
    // An axis turned by more than tol differs; a zero axis never does.
    b.origin[0] = 0.0;
    b.yAxis[0] = 1.0; // 45 degrees off
    EXPECT_EQ(mathRFrameEqu(&a, &b, 0.5), 0);
    EXPECT_EQ(mathRFrameEqu(&a, &b, 0.8), 1);
    b.yAxis[0] = b.yAxis[1] = 0.0;
    EXPECT_EQ(mathRFrameEqu(&a, &b, 1e-10), 1);
}

TEST(ColumnForm, RoundTripsAndIgnoresTheRestOfRowThree) {
    std::mt19937 rng(8);
    RFrame f = randomFrame(rng), g;
    f.scale = 2.5;
    double m[16];
    mathGetMatrixFromRFrame(&f, m);
    EXPECT_EQ(m[3], f.origin[0]);
    EXPECT_EQ(m[4], f.xAxis[1]);
    EXPECT_EQ(m[12], 0.0);
    EXPECT_EQ(m[15], 2.5);
    m[12] = m[13] = m[14] = 99.0;
    mathGetRFrameFromMatrix(m, &g);
    EXPECT_EQ(std::memcmp(&f, &g, sizeof f), 0);

    double untouched[16] = {0};
    mathGetMatrixFromRFrame(nullptr, untouched);
    mathGetRFrameFromMatrix(nullptr, &g);
    mathGetRFrameFromMatrix(m, nullptr);
    mathMultRFrame(&f, nullptr, &g);
    EXPECT_EQ(untouched[0], 0.0);
    EXPECT_EQ(std::memcmp(&f, &g, sizeof f), 0);
}

TEST(ColumnForm, MultiplicationMayWriteOverAnOperand) {
    double a[16], b[16], c[16];
    for (int i = 0; i < 16; ++i) {
        a[i] = i * 0.5 - 3;
        b[i] = 7 - i * 0.25;
    }
    mathMatxMult4x4(a, b, c);
    EXPECT_EQ(c[0], a[0] * b[0] + a[1] * b[4] + a[2] * b[8] + a[3] * b[12]);
    double a2[16], b2[16];
    std::memcpy(a2, a, sizeof a);
    std::memcpy(b2, b, sizeof b);
    mathMatxMult4x4(a2, b, a2);
    mathMatxMult16(a, b2, b2);
    EXPECT_EQ(std::memcmp(a2, c, sizeof c), 0);
    EXPECT_EQ(std::memcmp(b2, c, sizeof c), 0);
}

TEST(RFrameStr, EveryRecordStartsWithScaleOne) {
    RFrame **s = mathNewRFrameStr(4);
    ASSERT_NE(s, nullptr);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(s[i]->scale, 1.0);
    mathFreRFrameStr(4, s);
    RFrame **empty = mathNewRFrameStr(0);
    EXPECT_NE(empty, nullptr);
    mathFreRFrameStr(0, empty);
    EXPECT_EQ(mathNewRFrameStr(-1), nullptr);
    mathFreRFrameStr(3, nullptr);
}

} // namespace
