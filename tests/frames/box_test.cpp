#include <korvane/containers.h>
#include <korvane/frames.h>

#include <gtest/gtest.h>

#include <algorithm>

#include "frames/frame_test_util.h"

namespace {

using namespace frametest;

const double kUnit[6] = {0, 0, 0, 1, 1, 1};

void randomBox(std::mt19937 &rng, double *box) {
    std::uniform_real_distribution<double> u(-2, 2);
    for (int i = 0; i < 3; ++i) {
        const double a = u(rng), b = u(rng);
        box[i] = std::min(a, b);
        box[3 + i] = std::max(a, b);
    }
}

TEST(DBox, AnEmptyBoxIsInvalidAndTakesTheFirstPointWhole) {
    double *box = mathCreateBox2D(), b3[6];
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(mathIsValidBox2D(box), 0);
    const double p[2] = {3, -4};
    mathEnlargeBox2D(p, box);
    EXPECT_TRUE(exactly(box, {3, -4, 3, -4}));
    DelStr1D(&box);
    mathCalBox3DStr(0, nullptr, b3);
    EXPECT_TRUE(exactly(b3, {1e10, 1e10, 1e10, -1e10, -1e10, -1e10}));
    // Validity allows an inversion of up to 1e-10.
    const double nearly[6] = {1, 1, 1, 1 - 0.5e-10, 1, 1}, inverted[6] = {1, 1, 1, 1 - 1e-9, 1, 1};
    EXPECT_EQ(mathIsValidBox3D(nearly), 1);
    EXPECT_EQ(mathIsValidBox3D(inverted), 0);
}

TEST(DBox, DefineSortsEachAxisWhileInitialiseCopies) {
    const double p[3] = {2, 1, 5}, q[3] = {0, 3, 4};
    double box[6];
    mathDefBox2D(p, q, box);
    EXPECT_TRUE(exactly(box, {0, 1, 2, 3}));
    EXPECT_TRUE(exactly(mathIniBox2D(p, q, box), {2, 1, 0, 3}));
    mathDefBox3D(p, q, box);
    EXPECT_TRUE(exactly(box, {0, 1, 4, 2, 3, 5}));
}

TEST(DBox, PointsAtTheToleranceAreInsideAndATinyGapStillMeets) {
    const double box[4] = {0, 0, 1, 1}, onEdge[2] = {1.25, -0.25}, beyond[2] = {1.25, -0.5};
    const double p3[3] = {0.5, 0.5, 1.5}, tiny[4] = {1 + 1e-10, 0, 2, 1};
    double out[4], apart[4] = {1 + 1e-9, 0, 2, 1};
    EXPECT_EQ(mathChkBox2DPnt(box, onEdge, 0.25), 1);
    EXPECT_EQ(mathChkBox2DPnt(box, beyond, 0.25), 0);
    EXPECT_EQ(mathChkBox3DPnt(kUnit, p3, 0.5), 1);
    EXPECT_EQ(mathChkBox3DPnt(kUnit, p3, 0.25), 0);
    EXPECT_EQ(mathCalBox2DInt(box, tiny, out), 1);
    EXPECT_EQ(mathCalBox2DInt(box, apart, apart), 0);
    EXPECT_TRUE(exactly(apart, {1 + 1e-9, 0, 1, 1})); // written, inverted
}

TEST(DBox, OverlapTestsAgreeWithIntervalOverlapOnEveryAxis) {
    std::mt19937 rng(41);
    std::uniform_int_distribution<int> at(-8, 8), len(0, 6);
    for (int k = 0; k < 2000; ++k) {
        // Half-integer ends, so touching boxes are frequent.
        double a[6], b[6], common[6];
        for (double *box : {a, b})
            for (int i = 0; i < 3; ++i) {
                box[i] = at(rng) * 0.5;
                box[3 + i] = box[i] + len(rng) * 0.5;
            }
        const double tol = 0.5 * (k % 3);
        bool meets[3];
        for (int i = 0; i < 3; ++i)
            meets[i] = b[3 + i] + tol >= a[i] && a[3 + i] + tol >= b[i];
        EXPECT_EQ(mathChkBox3DInt(a, b, tol), meets[0] && meets[1] && meets[2] ? 1 : 0);
        const double a2[4] = {a[0], a[1], a[3], a[4]}, b2[4] = {b[0], b[1], b[3], b[4]};
        EXPECT_EQ(mathChkBox2DInt(a2, b2, tol), meets[0] && meets[1] ? 1 : 0);
        EXPECT_EQ(mathCalBox3DInt(a, b, common), mathChkBox3DInt(a, b, 0.0));
    }
}

TEST(DBox, UnionAndCommonPartMayOverwriteAnOperand) {
    double a[6] = {0, 0, 0, 2, 2, 2}, c[4] = {0, 0, 1, 1};
    const double b[6] = {1, -1, 1, 3, 1, 3}, d[4] = {-1, 0.5, 0.5, 2};
    mathCalBox3DUnion(a, b, a);
    EXPECT_TRUE(exactly(a, {0, -1, 0, 3, 2, 3}));
    EXPECT_EQ(mathCalBox3DInt(a, b, a), 1);
    EXPECT_TRUE(same(a, b, 6));
    mathCalBox2DUnion(c, d, c);
    EXPECT_TRUE(exactly(c, {-1, 0, 1, 2}));
}

TEST(DBox, HomogeneousStringsDifferInTheirWeightTests) {
    const double h3[12] = {2, 4, 6, 2, 1, 1, 1, -1, 1, 1, 1, 0.5e-10};
    double box[6], h2[9] = {2, 4, 2, 1, 1, 1, 5, 5, -1};
    EXPECT_EQ(mathCalBox2HStr(3, h2, box), 0); // a negative weight stops it
    EXPECT_TRUE(exactly(box, {1, 1, 1, 2}));
    EXPECT_EQ(mathCalBox3HStr(2, h3, box), 1); // a negative weight passes
    EXPECT_TRUE(exactly(box, {-1, -1, -1, 1, 2, 3}));
    EXPECT_EQ(mathCalBox3HStr(3, h3, box), 0);
}

TEST(DBox, CornersRunAnticlockwiseBottomThenTopAndExpandGrowsEveryFace) {
    double box[6] = {0, 10, 20, 1, 11, 21}, c[24];
    mathCalBox3DCorner(box, c);
    EXPECT_TRUE(exactly(c, {0, 10, 20, 1, 10, 20, 1, 11, 20, 0, 11, 20,
                            0, 10, 21, 1, 10, 21, 1, 11, 21, 0, 11, 21}));
    mathCalBox3DCorner(nullptr, c);
    EXPECT_TRUE(exactly(mathExpandBox3D(0.5, box), {-0.5, 9.5, 19.5, 1.5, 11.5, 21.5}));
}

TEST(DBox, NearestPointIsTheClampedPoint) {
    double q[3], in[3] = {0.5, 0.25, 1.0}, p[3] = {4, 0.5, -4};
    EXPECT_EQ(mathCalBox3DPntNearestDist(kUnit, in, q), 0.0);
    EXPECT_TRUE(same(q, in, 3));
    EXPECT_EQ(mathCalBox3DPntNearestDist(kUnit, p, p), 5.0); // in place
    EXPECT_TRUE(exactly(p, {1, 0.5, 0}));
}

TEST(ChkBoxLinInt, AgreesWithASampledLineAwayFromTheBorder) {
    std::mt19937 rng(51);
    std::uniform_real_distribution<double> u(-2, 2), w(-2.5, 2.5);
    int hits = 0, misses = 0;
    for (int k = 0; k < 400; ++k) {
        double box[6], p[3], d[3], q[3];
        randomBox(rng, box);
        for (int i = 0; i < 3; ++i) {
            p[i] = w(rng);
            d[i] = (k % 5 == 0 && i == k % 3) ? 0.0 : u(rng);
        }
        if (mathUniVec(d, 1e-3) == 0)
            continue;
        // A line that meets the box passes 0.01 inside the grown box over a
        // chord far longer than the sample step; one that meets the shrunk
        // box surely meets the box.
        bool grown = false, shrunk = false;
        for (int s = -4000; s <= 4000; ++s) {
            mathAddVec(p, d, s * 2e-3, q);
            grown = grown || mathChkBox3DPnt(box, q, 0.01);
            shrunk = shrunk || mathChkBox3DPnt(box, q, -0.01);
        }
        if (shrunk || !grown) {
            EXPECT_EQ(mathChkBoxLinInt(box, p, d, 0.0), shrunk ? 1 : 0);
            ++(shrunk ? hits : misses);
        }
    }
    EXPECT_GT(std::min(hits, misses), 30);
}

TEST(ChkBoxLinInt, ToleranceWidensTheSlabsAndAZeroDirectionTestsThePoint) {
    const double zero[3] = {0, 0, 0}, on[3] = {1.5, 0.5, -0.5}, off[3] = {1.5, 0.5, -0.75};
    // Parallel to the y slab on its widened face (a product of 0 is not
    // outside), and passing the corner (1, 0) at a distance of 0.15.
    const double p[3] = {2, 1.25, 0.5}, d[3] = {-1, 0, 0}, q[3] = {1.25, 0, 0.5};
    const double e[3] = {0.6, 0.8, 0};
    EXPECT_EQ(mathChkBoxLinInt(kUnit, on, zero, 0.5), 1);
    EXPECT_EQ(mathChkBoxLinInt(kUnit, off, zero, 0.5), 0);
    EXPECT_EQ(mathChkBoxLinInt(kUnit, p, d, 0.25), 1);
    EXPECT_EQ(mathChkBoxLinInt(kUnit, p, d, 0.125), 0);
    EXPECT_EQ(mathChkBoxLinInt(kUnit, q, e, 0.25), 1);
    EXPECT_EQ(mathChkBoxLinInt(kUnit, q, e, 0.125), 0);
}

TEST(ChkBoxPlnInt, GapSignTellsTheSideOfTheBox) {
    const double n[3] = {0, 0, 1}, above[3] = {0, 0, 2}, below[3] = {0, 0, -2};
    const double through[3] = {5, 5, 0.5}, top[3] = {0, 0, 1};
    double gap = 9;
    // The plane touching the top face is outside with tol 0, inside with more.
    EXPECT_EQ(mathChkBoxPlnInt(kUnit, top, n, 0.0, &gap), 0);
    EXPECT_EQ(gap, 0.0);
    EXPECT_EQ(mathChkBoxPlnInt(kUnit, top, n, 1e-12, &gap), 1);
    EXPECT_EQ(mathChkBoxPlnInt(kUnit, above, n, 1e-10, &gap), 0);
    EXPECT_EQ(gap, -1.0);
    EXPECT_EQ(mathChkBoxPlnInt(kUnit, below, n, 1e-10, &gap), 0);
    EXPECT_EQ(gap, 2.0);
    EXPECT_EQ(mathChkBoxPlnInt(kUnit, through, n, 1e-10, &gap), 1);
    EXPECT_EQ(gap, 0.0);
}

TEST(ChkBox3DIntSph, CutsOnlyBetweenTheNearAndFarSums) {
    const double c[3] = {0.5, 0.5, 0.5}, far[6] = {10, 0, 0, 11, 1, 1}, d[3] = {0, 0.5, 0.5};
    EXPECT_EQ(mathChkBox3DIntSph(kUnit, c, 2.0, 1e-10), 0); // far distance is sqrt(0.75)
    EXPECT_EQ(mathChkBox3DIntSph(kUnit, c, 0.6, 1e-10), 1);
    // Off the x slab the near sum takes the farther face: 11, not the true 10.
    EXPECT_EQ(mathChkBox3DIntSph(far, d, 10.9, 1e-10), 0);
    EXPECT_EQ(mathChkBox3DIntSph(far, d, 11.01, 1e-10), 1);
}

TEST(ChkPalVecThrTwoBox, OnlyTheDirectionThatLinesThemUpWorks) {
    const double b[6] = {5, 0, 0, 6, 1, 1}, c[6] = {5, 1.5, 0, 6, 2, 1}, x[3] = {1, 0, 0};
    const double y[3] = {0, 1, 0}, back[3] = {-2, 0, 0}, slight[3] = {1, 0.1, 0};
    EXPECT_EQ(mathChkPalVecThrTwoBox(kUnit, b, x, 1e-10), 1);
    EXPECT_EQ(mathChkPalVecThrTwoBox(kUnit, b, back, 1e-10), 1); // t may be negative
    EXPECT_EQ(mathChkPalVecThrTwoBox(kUnit, b, y, 1e-10), 0);
    EXPECT_EQ(mathChkPalVecThrTwoBox(kUnit, b, slight, 1e-10), 1);
    EXPECT_EQ(mathChkPalVecThrTwoBox(kUnit, c, x, 0.5), 1);
    EXPECT_EQ(mathChkPalVecThrTwoBox(kUnit, c, x, 0.25), 0);
}

TEST(TransBox, BoundsEqualTheBoxOfTheTransformedCornersInPlace) {
    std::mt19937 rng(53);
    for (int k = 0; k < 100; ++k) {
        RFrame f = randomFrame(rng);
        f.scale = 3.0; // not used
        double box[6], corners[24], tc[24], wc[24], ref[6], wref[6], loc[6], wld[6];
        randomBox(rng, box);
        mathCalBox3DCorner(box, corners);
        for (int c = 0; c < 8; ++c) {
            mathTransLocalPnt3D(&f, corners + 3 * c, tc + 3 * c);
            mathTransWorldPnt3D(&f, corners + 3 * c, wc + 3 * c);
        }
        mathCalBox3DStr(8, tc, ref);
        mathCalBox3DStr(8, wc, wref);
        std::copy(box, box + 6, loc);
        mathTransLocalBox3D(&f, loc, loc); // in place
        mathTransWorldBox3D(&f, box, wld);
        EXPECT_TRUE(within(loc, ref, 6, 1e-13));
        EXPECT_TRUE(within(wld, wref, 6, 1e-13));
        // The plane form is the space form of the box flattened to z = 0.
        const double b2[4] = {box[0], box[1], box[3], box[4]};
        box[2] = box[5] = 0.0;
        mathTransLocalBox2D(&f, b2, loc);
        mathTransLocalBox3D(&f, box, ref);
        EXPECT_TRUE(same(loc, ref, 6));
    }
}

} // namespace
