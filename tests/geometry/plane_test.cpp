#include <korvane/geometry.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "support/expect.h"

namespace {

using korvane_test::exactly;

const double kOrigin[3] = {0, 0, 0};
const double kZ[3] = {0, 0, 1};

TEST(IntSegmPln, EndsOnThePlaneAreReportedThroughTheFirstOutput) {
    const double a[3] = {1, 2, 0}, b[3] = {5, 5, 9};
    double out1[3] = {9, 9, 9}, out2[3] = {8, 8, 8}, t1 = 9, t2 = 9;
    EXPECT_EQ(mathIntSegmPln(a, b, kOrigin, kZ, 1e-8, out1, out2, &t1, &t2), 1);
    EXPECT_TRUE(exactly(out1, {1, 2, 0}));
    EXPECT_EQ(t1, 0.0);
    EXPECT_EQ(mathIntSegmPln(b, a, kOrigin, kZ, 1e-8, out1, out2, &t1, &t2), 1);
    EXPECT_TRUE(exactly(out1, {1, 2, 0}));
    EXPECT_EQ(t1, 1.0);
    EXPECT_TRUE(exactly(out2, {8, 8, 8}));
    EXPECT_EQ(t2, 9.0);
}

TEST(IntSegmPln, CrossingParameterFromTheSignedHeights) {
    const double a[3] = {0, 0, 1}, b[3] = {4, 0, -3};
    double out1[3], out2[3], t1, t2 = 9;
    EXPECT_EQ(mathIntSegmPln(a, b, kOrigin, kZ, 1e-8, out1, out2, &t1, &t2), 1);
    EXPECT_EQ(t1, 0.25);
    EXPECT_TRUE(exactly(out1, {1, 0, 0}));
    EXPECT_EQ(t2, 9.0);
}

TEST(IntSegmPln, HeightsExactlyAtToleranceFallThroughToNone) {
    const double a[3] = {0, 0, 0.5}, b[3] = {1, 0, 0.5}, c[3] = {1, 0, -0.5};
    double out1[3], out2[3], t1, t2;
    EXPECT_EQ(mathIntSegmPln(a, b, kOrigin, kZ, 0.5, out1, out2, &t1, &t2), 0);
    EXPECT_EQ(mathIntSegmPln(a, c, kOrigin, kZ, 0.5, out1, out2, &t1, &t2), 1);
    EXPECT_EQ(t1, 0.5);
}

TEST(IntSegmPln, SegmentInThePlane) {
    const double a[3] = {0, 0, 1e-9}, b[3] = {3, 0, -1e-9};
    double out1[3], out2[3], t1 = 9, t2 = 9;
    EXPECT_EQ(mathIntSegmPln(a, b, kOrigin, kZ, 1e-8, out1, out2, &t1, &t2), 4);
    EXPECT_EQ(t1, 0.0);
    EXPECT_EQ(t2, 1.0);
    EXPECT_EQ(out2[0], 3.0);
}

TEST(IntLinPln, ParallelLineWritesItsOriginEvenWhenApart) {
    const double o[3] = {1, 2, 3}, d[3] = {1, 0, 0};
    double out[3] = {9, 9, 9};
    EXPECT_EQ(mathIntLinPln(o, d, kOrigin, kZ, 1e-8, 1e-11, out), 2);
    EXPECT_TRUE(exactly(out, {1, 2, 3}));
    const double on[3] = {1, 2, 0}, down[3] = {0, 0, -2};
    EXPECT_EQ(mathIntLinPln(on, d, kOrigin, kZ, 1e-8, 1e-11, out), 4);
    EXPECT_EQ(mathIntLinPln(o, down, kOrigin, kZ, 1e-8, 1e-11, out), 1);
    EXPECT_TRUE(exactly(out, {1, 2, 0}));
}

TEST(Planes, ProjectionLiesOnThePlane) {
    std::mt19937 rng(6);
    std::uniform_real_distribution<double> u(-5, 5);
    for (int k = 0; k < 100; ++k) {
        double n[3] = {u(rng), u(rng), u(rng)};
        if (!mathUniVec(n, 0.1))
            continue;
        const double po[3] = {u(rng), u(rng), u(rng)}, p[3] = {u(rng), u(rng), u(rng)};
        double f[3], e[3], c[3];
        mathPrjPntPln(p, po, n, f);
        EXPECT_NEAR(mathDistPntPln(f, po, n), 0.0, 1e-12);
        mathGetVec(f, p, e);
        mathVProduct(e, n, c);
        EXPECT_NEAR(mathVecLen(c), 0.0, 1e-12);
        EXPECT_NEAR(mathDistPntPlnSide(p, po, n), mathOProduct(e, n), 1e-12);
        double v[3];
        mathPrjVecPln(p, n, v);
        EXPECT_NEAR(mathOProduct(v, n), 0.0, 1e-12);
    }
}

TEST(Planes, LineOnPlaneUsesALeverOfHundred) {
    const double o[3] = {0, 0, 0}, flat[3] = {1, 0, 0}, tilted[3] = {1, 0, 1e-9};
    EXPECT_EQ(mathIsLinOnPln(o, flat, kOrigin, kZ, 1e-8), 1);
    EXPECT_EQ(mathIsLinOnPln(o, tilted, kOrigin, kZ, 1e-8), 0);
    EXPECT_EQ(mathIsLinOnPln(o, tilted, kOrigin, kZ, 1e-6), 1);
}

TEST(Planes, OverlapNeedsParallelNormalsAndAShortGap) {
    const double p2[3] = {5, 5, 0.25}, x[3] = {1, 0, 0};
    EXPECT_EQ(mathIsPlnOverlap(kOrigin, kZ, p2, kZ, 0.5, 1e-11), 1);
    EXPECT_EQ(mathIsPlnOverlap(kOrigin, kZ, p2, kZ, 0.25, 1e-11), 0);
    EXPECT_EQ(mathIsPlnOverlap(kOrigin, kZ, p2, x, 0.5, 1e-11), 0);
}

TEST(IntPln, ZAndXNormalsGiveTheYAxis) {
    const double p1[3] = {0, 0, 2}, p2[3] = {3, 0, 0}, x[3] = {1, 0, 0};
    double out[3], dir[3];
    EXPECT_EQ(mathIntPln(p1, kZ, p2, x, 1e-8, 1e-11, out, dir), 1);
    EXPECT_TRUE(exactly(dir, {0, 1, 0}));
    EXPECT_TRUE(exactly(out, {3, 0, 2}));
}

TEST(IntPln, RandomPlanesMeetOnACommonLine) {
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> u(-5, 5);
    for (int k = 0; k < 200; ++k) {
        double na[3] = {u(rng), u(rng), u(rng)}, nb[3] = {u(rng), u(rng), u(rng)};
        mathUniVec(na, 1e-10);
        mathUniVec(nb, 1e-10);
        const double p1[3] = {u(rng), u(rng), u(rng)}, p2[3] = {u(rng), u(rng), u(rng)};
        double out[3], dir[3];
        if (mathIntPln(p1, na, p2, nb, 1e-8, 0.05, out, dir) != 1)
            continue;
        EXPECT_NEAR(mathDistPntPln(out, p1, na), 0.0, 1e-9);
        EXPECT_NEAR(mathDistPntPln(out, p2, nb), 0.0, 1e-9);
        EXPECT_NEAR(mathOProduct(dir, na), 0.0, 1e-12);
        EXPECT_NEAR(mathOProduct(dir, nb), 0.0, 1e-12);
        EXPECT_NEAR(mathVecLen(dir), 1.0, 1e-12);
    }
}

TEST(IntPln, ParallelPlanesLeaveThePointAlone) {
    const double p2[3] = {0, 0, 3};
    double out[3] = {9, 9, 9}, dir[3];
    EXPECT_EQ(mathIntPln(kOrigin, kZ, p2, kZ, 1e-8, 1e-11, out, dir), 2);
    EXPECT_EQ(out[0], 9.0);
    EXPECT_EQ(mathIntPln(kOrigin, kZ, kOrigin, kZ, 1e-8, 1e-11, out, dir), 4);
}

TEST(Int3Pln, Always801AndSingularLeavesOutAlone) {
    const double x[3] = {1, 0, 0}, y[3] = {0, 1, 0};
    const double p1[3] = {1, 0, 0}, p2[3] = {0, 2, 0}, p3[3] = {0, 0, 3};
    double out[3] = {9, 9, 9};
    EXPECT_EQ(mathInt3Pln(p1, x, p2, y, p3, kZ, 1e-8, out), 801);
    EXPECT_TRUE(exactly(out, {1, 2, 3}));
    double keep[3] = {9, 9, 9};
    EXPECT_EQ(mathInt3Pln(p1, kZ, p2, kZ, p3, kZ, 1e-8, keep), 801);
    EXPECT_TRUE(exactly(keep, {9, 9, 9}));
}

} // namespace
