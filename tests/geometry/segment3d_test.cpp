#include <korvane/geometry.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

TEST(IntSegm, SegmentsMeetingAtOneEnd) {
    const double a1[3] = {0, 0, 0}, a2[3] = {2, 0, 0}, b1[3] = {2, 0, 0}, b2[3] = {2, 3, 0};
    double out1[3], out2[3];
    EXPECT_EQ(mathIntSegm(a1, a2, b1, b2, 1e-8, 1e-11, out1, out2), 1);
    EXPECT_NEAR(out1[0], 2.0, 1e-15);
    EXPECT_NEAR(out2[0], 2.0, 1e-15);
    EXPECT_NEAR(out2[1], 0.0, 1e-15);
}

TEST(IntSegm, SkewSegmentsApartGiveZeroWithThePerpendicular) {
    // Overlapping boxes, so the closest approach is measured: 0.2 apart.
    const double a1[3] = {0, 0, 0}, a2[3] = {4, 0, 0}, b1[3] = {2, -1, 1}, b2[3] = {3, 1, -0.5};
    double out1[3], out2[3], w[3];
    EXPECT_EQ(mathIntSegm(a1, a2, b1, b2, 1e-8, 1e-11, out1, out2), 0);
    EXPECT_NEAR(mathDist(out1, out2), 0.2, 1e-12);
    EXPECT_NEAR(out1[1], 0.0, 1e-12);
    EXPECT_NEAR(out1[2], 0.0, 1e-12);
    mathGetVec(out1, out2, w);
    const double e2[3] = {1, 2, -1.5};
    EXPECT_NEAR(mathOProduct(w, e2), 0.0, 1e-12);
    EXPECT_NEAR(w[0], 0.0, 1e-12);
    // Boxes apart: rejected before anything is measured.
    const double c1[3] = {2, -1, 1}, c2[3] = {2, 1, 1};
    EXPECT_EQ(mathIntSegm(a1, a2, c1, c2, 1e-8, 1e-11, out1, out2), 0);
}

TEST(IntSegm, CollinearOverlapIsOrderedAlongTheFirst) {
    const double a1[3] = {0, 0, 0}, a2[3] = {4, 0, 0}, b1[3] = {6, 0, 0}, b2[3] = {1, 0, 0};
    double out1[3], out2[3];
    EXPECT_EQ(mathIntSegm(a1, a2, b1, b2, 1e-8, 1e-11, out1, out2), 4);
    EXPECT_EQ(out1[0], 1.0);
    EXPECT_EQ(out2[0], 4.0);
}

TEST(IntSegm, CollinearSegmentsTouchingInOneEndGiveOne) {
    const double a1[3] = {0, 0, 0}, a2[3] = {4, 0, 0}, b1[3] = {4, 0, 0}, b2[3] = {7, 0, 0};
    double out1[3], out2[3];
    EXPECT_EQ(mathIntSegm(a1, a2, b1, b2, 1e-8, 1e-11, out1, out2), 1);
    EXPECT_EQ(out1[0], 4.0);
    EXPECT_EQ(out2[0], 4.0);
}

TEST(IntSegm, ShortSegmentIs800AndFarBoxesAreZero) {
    const double a[3] = {0, 0, 0}, b[3] = {1, 1, 1}, c[3] = {0, 0, 0.5e-8};
    double out1[3], out2[3];
    EXPECT_EQ(mathIntSegm(a, c, a, b, 1e-8, 1e-11, out1, out2), 800);
    const double f1[3] = {5, 5, 5}, f2[3] = {6, 6, 6};
    EXPECT_EQ(mathIntSegm(a, c, f1, f2, 1e-8, 1e-11, out1, out2), 0);
}

TEST(IntSegm, AgreesWithANearestPointOracle) {
    std::mt19937 rng(12);
    std::uniform_real_distribution<double> u(-3, 3);
    int hits = 0;
    for (int k = 0; k < 300; ++k) {
        // Segments through a common point, or shifted apart along z.
        const double c[3] = {u(rng), u(rng), 0};
        const double d1[3] = {u(rng), u(rng), 0}, d2[3] = {u(rng), u(rng), 0};
        const double s = 0.5 + 0.5 * (k % 3), shift = (k % 2) ? 0.0 : 0.5;
        const double a1[3] = {c[0] - d1[0], c[1] - d1[1], 0};
        const double a2[3] = {c[0] + s * d1[0], c[1] + s * d1[1], 0};
        const double b1[3] = {c[0] - s * d2[0], c[1] - s * d2[1], shift};
        const double b2[3] = {c[0] + d2[0], c[1] + d2[1], shift};
        double out1[3], out2[3];
        const int r = mathIntSegm(a1, a2, b1, b2, 1e-8, 1e-6, out1, out2);
        if (r == 1) {
            ++hits;
            double near[3];
            EXPECT_NEAR(mathGetPntSegmNearestPnt(out1, a1, a2, near), 0.0, 1e-9);
            EXPECT_NEAR(mathGetPntSegmNearestPnt(out2, b1, b2, near), 0.0, 1e-9);
            EXPECT_NEAR(mathDist(out1, out2), 0.0, 1e-8);
        }
        EXPECT_EQ(r == 1, shift == 0.0) << k;
    }
    EXPECT_GT(hits, 100);
}

TEST(PntSegm, ParametersAndNearestPoints) {
    const double a[3] = {0, 0, 0}, b[3] = {2, 0, 0}, p[3] = {5, 4, 0};
    EXPECT_EQ(mathCalPntSegmPara(a, b, p), 2.5);
    EXPECT_EQ(mathCalPntSegmPara(a, a, p), 0.0);
    double t = 9;
    EXPECT_EQ(mathGetPntSegmNDT(p, a, b, &t), 5.0);
    EXPECT_EQ(t, 1.0);
    const double q[3] = {1.5, 2, 0};
    EXPECT_EQ(mathGetPntSegmNDT(q, a, b, &t), 2.0);
    EXPECT_EQ(t, 0.75);
    const double r[3] = {-3, 4, 0};
    EXPECT_EQ(mathGetPntSegmNDT(r, a, b, &t), 5.0);
    EXPECT_EQ(t, 0.0);
    double out[3];
    EXPECT_EQ(mathGetPntSegmNearestPnt(p, a, b, out), 5.0);
    EXPECT_EQ(out[0], 2.0);
    EXPECT_EQ(mathGetPntSegmNearestPnt(p, a, a, out), std::sqrt(41.0));
}

TEST(PntSegm, OnSegmentTestIsStrict) {
    const double a[3] = {0, 0, 0}, b[3] = {2, 0, 0};
    const double p[3] = {1, 0.5, 0}, beyond[3] = {2.3, 0.4, 0};
    EXPECT_EQ(mathChkPntSegm(p, a, b, 0.5), 0);
    EXPECT_EQ(mathChkPntSegm(p, a, b, 0.500001), 1);
    EXPECT_EQ(mathChkPntSegm(beyond, a, b, 0.5), 0);
    EXPECT_EQ(mathChkPntSegm(beyond, a, b, 0.500001), 1);
    double lo[3], hi[3];
    mathGetBoxSegm(b, a, lo, hi);
    EXPECT_EQ(lo[0], 0.0);
    EXPECT_EQ(hi[0], 2.0);
}

TEST(IntSegmLin, SegmentAlongTheLineGivesFour) {
    const double a[3] = {1, 1, 0}, b[3] = {1, 1, 5}, o[3] = {1, 1, -3}, d[3] = {0, 0, 1};
    double out1[3], out2[3], t1 = 9, t2 = 9;
    EXPECT_EQ(mathIntSegmLin(a, b, o, d, 1e-6, out1, out2, &t1, &t2), 4);
    EXPECT_EQ(t1, 0.0);
    EXPECT_EQ(t2, 1.0);
    EXPECT_EQ(out1[2], 0.0);
    EXPECT_EQ(out2[2], 5.0);
}

TEST(IntSegmLin, OnlyBOnTheLineWritesTheSecondParameter) {
    const double a[3] = {0, 0, 0}, b[3] = {1, 1, 5}, o[3] = {1, 1, -3}, d[3] = {0, 0, 1};
    double out1[3], out2[3], t1 = 9, t2 = 9;
    EXPECT_EQ(mathIntSegmLin(a, b, o, d, 1e-6, out1, out2, &t1, &t2), 1);
    EXPECT_EQ(out1[0], 1.0);
    EXPECT_EQ(out1[2], 5.0);
    EXPECT_EQ(t1, 9.0);
    EXPECT_EQ(t2, 1.0);
    EXPECT_EQ(mathIntSegmLin(b, a, o, d, 1e-6, out1, out2, &t1, &t2), 1);
    EXPECT_EQ(t1, 0.0);
}

TEST(IntSegmLin, CrossingGivesThePointOnTheRealSegment) {
    const double a[3] = {0, 0, 2}, b[3] = {4, 0, 6}, o[3] = {1, 0, -10}, d[3] = {0, 0, 1};
    double out1[3], out2[3], t1 = 9, t2 = 9;
    EXPECT_EQ(mathIntSegmLin(a, b, o, d, 1e-6, out1, out2, &t1, &t2), 1);
    EXPECT_EQ(t1, 0.25);
    EXPECT_EQ(t2, 9.0);
    EXPECT_EQ(out1[0], 1.0);
    EXPECT_EQ(out1[2], 3.0);
    const double far[3] = {1, 0.5, -10};
    EXPECT_EQ(mathIntSegmLin(a, b, far, d, 1e-6, out1, out2, &t1, &t2), 0);
}

TEST(PickSegm, EndOnAndSideOnSegments) {
    const double a[3] = {1, 1, 0}, b[3] = {1, 1, 5}, d[3] = {0, 0, 1};
    const double near[3] = {1.05, 1, 9}, far[3] = {1.2, 1, 9};
    EXPECT_EQ(mathPickSegm(a, b, near, d, 0.1), 1);
    EXPECT_EQ(mathPickSegm(a, b, far, d, 0.1), 0);
    const double c[3] = {4, 1, 3};
    const double mid[3] = {2.5, 1.05, -7}, past[3] = {4.2, 1, 0};
    EXPECT_EQ(mathPickSegm(a, c, mid, d, 0.1), 1);
    EXPECT_EQ(mathPickSegm(a, c, past, d, 0.1), 0);
    EXPECT_EQ(mathPickSegm(a, c, past, d, 0.25), 1);
}

} // namespace
