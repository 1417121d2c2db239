#include <korvane/frames.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "frames/frame_test_util.h"

namespace {

using frametest::randomFrame;

bool inBox(const double *box, const double *p, double grow) {
    for (int i = 0; i < 3; ++i) {
        if (p[i] < box[i] - grow || p[i] > box[3 + i] + grow)
            return false;
    }
    return true;
}

TEST(ChkBoxLinInt, AgreesWithASampledLineAwayFromTheBorder) {
    std::mt19937 rng(51);
    std::uniform_real_distribution<double> u(-2, 2), w(-2.5, 2.5);
    int hits = 0, misses = 0;
    for (int k = 0; k < 400; ++k) {
        double box[6], p[3], d[3];
        for (int i = 0; i < 3; ++i) {
            const double a = u(rng), b = u(rng);
            box[i] = std::min(a, b);
            box[3 + i] = std::max(a, b);
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
            double q[3];
            mathAddVec(p, d, s * 2e-3, q);
            grown = grown || inBox(box, q, 0.01);
            shrunk = shrunk || inBox(box, q, -0.01);
        }
        if (shrunk) {
            EXPECT_EQ(mathChkBoxLinInt(box, p, d, 0.0), 1);
            ++hits;
        } else if (!grown) {
            EXPECT_EQ(mathChkBoxLinInt(box, p, d, 0.0), 0);
            ++misses;
        }
    }
    EXPECT_GT(hits, 30);
    EXPECT_GT(misses, 30);
}

TEST(ChkBoxLinInt, AZeroDirectionTestsThePointInTheWidenedBox) {
    const double box[6] = {0, 0, 0, 1, 1, 1}, zero[3] = {0, 0, 0};
    const double on[3] = {1.5, 0.5, -0.5}, off[3] = {1.5, 0.5, -0.75};
    EXPECT_EQ(mathChkBoxLinInt(box, on, zero, 0.5), 1);
    EXPECT_EQ(mathChkBoxLinInt(box, off, zero, 0.5), 0);
}

TEST(ChkBoxLinInt, ToleranceWidensTheSlabs) {
    const double box[6] = {0, 0, 0, 1, 1, 1};
    // Parallel to the y slab and exactly on its widened face: a product of 0
    // is not outside.
    const double p[3] = {2, 1.25, 0.5}, d[3] = {-1, 0, 0};
    EXPECT_EQ(mathChkBoxLinInt(box, p, d, 0.25), 1);
    EXPECT_EQ(mathChkBoxLinInt(box, p, d, 0.125), 0);
    // Passing the corner (1, 0) at a distance of 0.15.
    const double q[3] = {1.25, 0, 0.5}, e[3] = {0.6, 0.8, 0};
    EXPECT_EQ(mathChkBoxLinInt(box, q, e, 0.25), 1);
    EXPECT_EQ(mathChkBoxLinInt(box, q, e, 0.125), 0);
}

TEST(ChkBoxPlnInt, GapSignTellsTheSideOfTheBox) {
    const double box[6] = {0, 0, 0, 1, 1, 1}, n[3] = {0, 0, 1};
    const double above[3] = {0, 0, 2}, below[3] = {0, 0, -2}, through[3] = {5, 5, 0.5};
    double gap = 9;
    EXPECT_EQ(mathChkBoxPlnInt(box, above, n, 1e-10, &gap), 0);
    EXPECT_EQ(gap, -1.0);
    EXPECT_EQ(mathChkBoxPlnInt(box, below, n, 1e-10, &gap), 0);
    EXPECT_EQ(gap, 2.0);
    EXPECT_EQ(mathChkBoxPlnInt(box, through, n, 1e-10, &gap), 1);
    EXPECT_EQ(gap, 0.0);
    // The plane touching the top face is outside with tol 0, inside with more.
    const double top[3] = {0, 0, 1};
    EXPECT_EQ(mathChkBoxPlnInt(box, top, n, 0.0, &gap), 0);
    EXPECT_EQ(gap, 0.0);
    EXPECT_EQ(mathChkBoxPlnInt(box, top, n, 1e-12, &gap), 1);
}

TEST(ChkBox3DIntSph, ASphereAroundTheWholeBoxDoesNotCut) {
    const double box[6] = {0, 0, 0, 1, 1, 1}, c[3] = {0.5, 0.5, 0.5};
    EXPECT_EQ(mathChkBox3DIntSph(box, c, 2.0, 1e-10), 0); // far distance is sqrt(0.75)
    EXPECT_EQ(mathChkBox3DIntSph(box, c, 0.6, 1e-10), 1);
    const double corner[3] = {0, 0, 0};
    EXPECT_EQ(mathChkBox3DIntSph(box, corner, 1.0, 1e-10), 1);
}

TEST(ChkBox3DIntSph, TheNearSumUsesTheFartherFaceOfAnOutsideAxis) {
    // The true nearest distance is 10; the near sum counts 11.
    const double box[6] = {10, 0, 0, 11, 1, 1}, c[3] = {0, 0.5, 0.5};
    EXPECT_EQ(mathChkBox3DIntSph(box, c, 10.5, 1e-10), 0);
    EXPECT_EQ(mathChkBox3DIntSph(box, c, 10.9, 1e-10), 0);
    EXPECT_EQ(mathChkBox3DIntSph(box, c, 11.01, 1e-10), 1);
}

TEST(ChkPalVecThrTwoBox, OnlyTheDirectionThatLinesThemUpWorks) {
    const double a[6] = {0, 0, 0, 1, 1, 1}, b[6] = {5, 0, 0, 6, 1, 1};
    const double x[3] = {1, 0, 0}, y[3] = {0, 1, 0}, back[3] = {-2, 0, 0};
    const double slant[3] = {1, 1, 0}, slight[3] = {1, 0.1, 0};
    EXPECT_EQ(mathChkPalVecThrTwoBox(a, b, x, 1e-10), 1);
    EXPECT_EQ(mathChkPalVecThrTwoBox(a, b, back, 1e-10), 1); // t may be negative
    EXPECT_EQ(mathChkPalVecThrTwoBox(a, b, y, 1e-10), 0);
    EXPECT_EQ(mathChkPalVecThrTwoBox(a, b, slant, 1e-10), 0);
    EXPECT_EQ(mathChkPalVecThrTwoBox(a, b, slight, 1e-10), 1);
    const double c[6] = {5, 1.5, 0, 6, 2, 1};
    EXPECT_EQ(mathChkPalVecThrTwoBox(a, c, x, 0.5), 1);
    EXPECT_EQ(mathChkPalVecThrTwoBox(a, c, x, 0.25), 0);
}

TEST(TransBox, LocalBoundsEqualTheBoxOfTheEightTransformedCorners) {
    std::mt19937 rng(53);
    std::uniform_real_distribution<double> u(-2, 2);
    for (int k = 0; k < 100; ++k) {
        const RFrame f = randomFrame(rng);
        double box[6];
        for (int i = 0; i < 3; ++i) {
            const double a = u(rng), b = u(rng);
            box[i] = std::min(a, b);
            box[3 + i] = std::max(a, b);
        }
        double corners[24], ref[6], loc[6], wld[6], wref[6];
        mathCalBox3DCorner(box, corners);
        double tc[24], wc[24];
        for (int c = 0; c < 8; ++c) {
            mathTransLocalPnt3D(&f, corners + 3 * c, tc + 3 * c);
            mathTransWorldPnt3D(&f, corners + 3 * c, wc + 3 * c);
        }
        mathCalBox3DStr(8, tc, ref);
        mathCalBox3DStr(8, wc, wref);
        mathTransLocalBox3D(&f, box, loc);
        mathTransWorldBox3D(&f, box, wld);
        for (int i = 0; i < 6; ++i) {
            EXPECT_NEAR(loc[i], ref[i], 1e-13);
            EXPECT_NEAR(wld[i], wref[i], 1e-13);
        }
        // The plane form against its four corners at zero height.
        const double b2[4] = {box[0], box[1], box[3], box[4]};
        double flat[6], fref[6], fc[12];
        for (int c = 0; c < 4; ++c) {
            const double q[2] = {b2[2 * (c & 1)], b2[1 + 2 * (c >> 1)]};
            mathTransLocalPnt2D(&f, q, fc + 3 * c);
        }
        mathCalBox3DStr(4, fc, fref);
        mathTransLocalBox2D(&f, b2, flat);
        for (int i = 0; i < 6; ++i)
            EXPECT_NEAR(flat[i], fref[i], 1e-13);
    }
}

TEST(TransBox, TheIdentityFrameReproducesTheBoxInPlace) {
    RFrame f;
    mathInitRFrame(&f);
    f.scale = 3.0; // not used
    double box[6] = {-1, 2, -3, 4, 5, 6};
    const double orig[6] = {-1, 2, -3, 4, 5, 6};
    mathTransLocalBox3D(&f, box, box);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(box[i], orig[i]);
    mathTransWorldBox3D(&f, box, box);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(box[i], orig[i]);
}

} // namespace
