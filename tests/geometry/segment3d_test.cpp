#include <korvane/geometry.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "support/expect.h"

namespace {

using korvane_test::exactly;
using korvane_test::near;

TEST(IntSegm, ClassesOfSegmentPairsOnTheXAxis) {
    // The first segment runs from 0 to 4 along x; out1, out2 as x coordinates.
    struct Case {
        double b1[3], b2[3];
        int result;
        double x1, x2;
    };
    const Case cases[] = {
        {{4, 0, 0}, {4, 3, 0}, 1, 4, 4}, // meet at one end
        {{6, 0, 0}, {1, 0, 0}, 4, 1, 4}, // collinear overlap, ordered along the first
        {{4, 0, 0}, {7, 0, 0}, 1, 4, 4}, // collinear, touching end to end: one point
    };
    const double a1[3] = {0, 0, 0}, a2[3] = {4, 0, 0};
    for (const Case &c : cases) {
        double out1[3], out2[3];
        EXPECT_EQ(mathIntSegm(a1, a2, c.b1, c.b2, 1e-8, 1e-11, out1, out2), c.result);
        EXPECT_TRUE(near(out1, {c.x1, 0, 0}, 1e-15));
        EXPECT_TRUE(near(out2, {c.x2, 0, 0}, 1e-15));
    }
}

TEST(IntSegm, SkewSegmentsApartGiveZeroWithThePerpendicular) {
    // Overlapping boxes, so the closest approach is measured: 0.2 apart.
    const double a1[3] = {0, 0, 0}, a2[3] = {4, 0, 0}, b1[3] = {2, -1, 1}, b2[3] = {3, 1, -0.5};
    const double e2[3] = {1, 2, -1.5};
    double out1[3], out2[3], w[3];
    EXPECT_EQ(mathIntSegm(a1, a2, b1, b2, 1e-8, 1e-11, out1, out2), 0);
    EXPECT_NEAR(mathDist(out1, out2), 0.2, 1e-12);
    mathGetVec(out1, out2, w);
    EXPECT_NEAR(mathOProduct(w, e2), 0.0, 1e-12);
    EXPECT_TRUE(near(w, {0, w[1], w[2]}, 1e-12));
    EXPECT_TRUE(near(out1, {out1[0], 0, 0}, 1e-12));
    // Boxes apart: rejected before anything is measured; a short segment is 800.
    const double c1[3] = {2, -1, 1}, c2[3] = {2, 1, 1}, tiny[3] = {0, 0, 0.5e-8};
    EXPECT_EQ(mathIntSegm(a1, a2, c1, c2, 1e-8, 1e-11, out1, out2), 0);
    EXPECT_EQ(mathIntSegm(a1, tiny, a1, b2, 1e-8, 1e-11, out1, out2), 800);
    EXPECT_EQ(mathIntSegm(a1, tiny, c1, c2, 1e-8, 1e-11, out1, out2), 0);
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
            double foot[3];
            EXPECT_NEAR(mathGetPntSegmNearestPnt(out1, a1, a2, foot), 0.0, 1e-9);
            EXPECT_NEAR(mathGetPntSegmNearestPnt(out2, b1, b2, foot), 0.0, 1e-9);
            EXPECT_NEAR(mathDist(out1, out2), 0.0, 1e-8);
        }
        EXPECT_EQ(r == 1, shift == 0.0) << k;
    }
    EXPECT_GT(hits, 100);
}

TEST(PntSegm, ParametersDistancesAndTheStrictOnTest) {
    const double a[3] = {0, 0, 0}, b[3] = {2, 0, 0}, p[3] = {5, 4, 0};
    EXPECT_EQ(mathCalPntSegmPara(a, b, p), 2.5); // unclamped
    EXPECT_EQ(mathCalPntSegmPara(a, a, p), 0.0);
    const struct {
        double p[3], dist, t;
    } cases[] = {{{5, 4, 0}, 5, 1}, {{1.5, 2, 0}, 2, 0.75}, {{-3, 4, 0}, 5, 0}};
    for (const auto &c : cases) {
        double t = 9, out[3];
        EXPECT_EQ(mathGetPntSegmNDT(c.p, a, b, &t), c.dist);
        EXPECT_EQ(t, c.t);
        EXPECT_EQ(mathGetPntSegmNearestPnt(c.p, a, b, out), c.dist);
        EXPECT_TRUE(exactly(out, {2 * c.t, 0, 0}));
    }
    double out[3];
    EXPECT_EQ(mathGetPntSegmNearestPnt(p, a, a, out), std::sqrt(41.0));
    const double on[3] = {1, 0.5, 0}, beyond[3] = {2.3, 0.4, 0};
    EXPECT_EQ(mathChkPntSegm(on, a, b, 0.5), 0);
    EXPECT_EQ(mathChkPntSegm(on, a, b, 0.500001), 1);
    EXPECT_EQ(mathChkPntSegm(beyond, a, b, 0.5), 0);
    EXPECT_EQ(mathChkPntSegm(beyond, a, b, 0.500001), 1);
    double lo[3], hi[3];
    mathGetBoxSegm(b, p, lo, hi);
    EXPECT_TRUE(exactly(lo, {2, 0, 0}));
    EXPECT_TRUE(exactly(hi, {5, 4, 0}));
}

TEST(IntSegmLin, EndsOnTheLineOfSight) {
    const double a[3] = {1, 1, 0}, b[3] = {1, 1, 5}, c[3] = {0, 0, 0};
    const double o[3] = {1, 1, -3}, d[3] = {0, 0, 1};
    double out1[3], out2[3], t1 = 9, t2 = 9;
    EXPECT_EQ(mathIntSegmLin(a, b, o, d, 1e-6, out1, out2, &t1, &t2), 4); // along the line
    EXPECT_EQ(t1, 0.0);
    EXPECT_EQ(t2, 1.0);
    EXPECT_TRUE(exactly(out1, {1, 1, 0}));
    EXPECT_TRUE(exactly(out2, {1, 1, 5}));
    t1 = t2 = 9;
    EXPECT_EQ(mathIntSegmLin(c, b, o, d, 1e-6, out1, out2, &t1, &t2), 1); // only b: *t2
    EXPECT_TRUE(exactly(out1, {1, 1, 5}));
    EXPECT_EQ(t1, 9.0);
    EXPECT_EQ(t2, 1.0);
    EXPECT_EQ(mathIntSegmLin(b, c, o, d, 1e-6, out1, out2, &t1, &t2), 1); // only a: *t1
    EXPECT_EQ(t1, 0.0);
}

TEST(IntSegmLin, CrossingGivesThePointOnTheRealSegment) {
    const double a[3] = {0, 0, 2}, b[3] = {4, 0, 6}, o[3] = {1, 0, -10}, d[3] = {0, 0, 1};
    double out1[3], out2[3], t1 = 9, t2 = 9;
    EXPECT_EQ(mathIntSegmLin(a, b, o, d, 1e-6, out1, out2, &t1, &t2), 1);
    EXPECT_EQ(t1, 0.25);
    EXPECT_EQ(t2, 9.0);
    EXPECT_TRUE(exactly(out1, {1, 0, 3}));
    const double far[3] = {1, 0.5, -10};
    EXPECT_EQ(mathIntSegmLin(a, b, far, d, 1e-6, out1, out2, &t1, &t2), 0);
}

TEST(PickSegm, EndOnAndSideOnSegments) {
    const double a[3] = {1, 1, 0}, b[3] = {1, 1, 5}, d[3] = {0, 0, 1};
    const double close[3] = {1.05, 1, 9}, far[3] = {1.2, 1, 9};
    EXPECT_EQ(mathPickSegm(a, b, close, d, 0.1), 1);
    EXPECT_EQ(mathPickSegm(a, b, far, d, 0.1), 0);
    const double c[3] = {4, 1, 3};
    const double mid[3] = {2.5, 1.05, -7}, past[3] = {4.2, 1, 0};
    EXPECT_EQ(mathPickSegm(a, c, mid, d, 0.1), 1);
    EXPECT_EQ(mathPickSegm(a, c, past, d, 0.1), 0);
    EXPECT_EQ(mathPickSegm(a, c, past, d, 0.25), 1);
}

} // namespace
