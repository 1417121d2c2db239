#include <korvane/frames.h>

#include <gtest/gtest.h>

#include <cstring>

#include "frames/frame_test_util.h"

namespace {

using frametest::randomFrame;

void expectIdentity(const RFrame &f, double tol) {
    const double *axes[3] = {f.xAxis, f.yAxis, f.zAxis};
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 3; ++j)
            EXPECT_NEAR(axes[i][j], i == j ? 1.0 : 0.0, tol);
        EXPECT_NEAR(f.origin[i], 0.0, tol);
    }
}

TEST(RFrame, InverseComposedWithTheFrameIsTheIdentity) {
    std::mt19937 rng(11);
    for (int k = 0; k < 50; ++k) {
        const RFrame f = randomFrame(rng);
        RFrame inv, prod;
        mathInvsRFrame(&f, &inv);
        mathMultRFrame(&f, &inv, &prod);
        expectIdentity(prod, 1e-13);
        mathEvalRFrame(&f, &f, &prod);
        expectIdentity(prod, 1e-13);
        RFrame g = f;
        mathInvsRFrame(&g, &g); // in place
        EXPECT_EQ(std::memcmp(&g, &inv, sizeof g), 0);
    }
    RFrame id;
    mathInitRFrame(&id);
    mathInitRFrame(nullptr);
    expectIdentity(id, 0.0);
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
    RFrame g = f;
    const RFrame before = f;
    const double v[3] = {1, 2, 3};
    mathScaleRFrame(v, 42, &f);
    mathMoveRFrame(v, &g);
    EXPECT_EQ(std::memcmp(&f, &g, sizeof f), 0);
    EXPECT_EQ(f.origin[2], before.origin[2] + 3.0);
    EXPECT_EQ(std::memcmp(f.xAxis, before.xAxis, sizeof f.xAxis * 3), 0);
    EXPECT_EQ(f.scale, 5.0);
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
    EXPECT_EQ(f.scale, 1.0);
}

TEST(DerivFrame, FailsForAParallelReferenceOrAShortZ) {
    const double o[3] = {0, 0, 0}, z[3] = {0, 0, 1}, par[3] = {0, 0, -3}, ref[3] = {1, 0, 0};
    RFrame f;
    f.scale = 7.0;
    EXPECT_EQ(mathDerivFrame(o, z, par, &f), 0);
    EXPECT_EQ(f.scale, 7.0); // partly written, scale not set
    const double tiny[3] = {0, 0, 0.9e-8}, enough[3] = {0, 0, 1.1e-8};
    EXPECT_EQ(mathDerivFrame(o, tiny, ref, &f), 0);
    EXPECT_EQ(mathDerivFrame(o, enough, ref, &f), 1); // the limit is 1e-8, not 1e-10
}

TEST(RFrameEqu, OriginsExactlyTolApartAreEqual) {
    RFrame a, b;
    mathInitRFrame(&a);
    mathInitRFrame(&b);
    b.origin[0] = 0.5;
    EXPECT_EQ(mathRFrameEqu(&a, &b, 0.5), 1);
    EXPECT_EQ(mathRFrameEqu(&a, &b, 0.4375), 0);
    b.origin[0] = 0.0;
    b.yAxis[0] = 1.0; // 45 degrees off
    EXPECT_EQ(mathRFrameEqu(&a, &b, 0.5), 0);
    EXPECT_EQ(mathRFrameEqu(&a, &b, 0.8), 1);
    b.yAxis[0] = b.yAxis[1] = 0.0; // a zero axis never fails
    EXPECT_EQ(mathRFrameEqu(&a, &b, 1e-10), 1);
}

TEST(ColumnForm, RoundTripsIgnoringRowThreeAndNulls) {
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
    mathMultRFrame(&f, nullptr, &g);
    EXPECT_EQ(untouched[0], 0.0);
    EXPECT_EQ(std::memcmp(&f, &g, sizeof f), 0);
}

TEST(ColumnForm, MultiplicationMayWriteOverAnOperand) {
    double a[16], b[16], c[16], a2[16], b2[16];
    for (int i = 0; i < 16; ++i) {
        a2[i] = a[i] = i * 0.5 - 3;
        b2[i] = b[i] = 7 - i * 0.25;
    }
    mathMatxMult4x4(a, b, c);
    EXPECT_EQ(c[6], a[4] * b[2] + a[5] * b[6] + a[6] * b[10] + a[7] * b[14]);
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
    mathFreRFrameStr(3, nullptr);
}

} // namespace
