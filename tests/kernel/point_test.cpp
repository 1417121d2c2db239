#include <korvane/kernel.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "support/expect.h"

namespace {

using korvane_test::exactly;
using korvane_test::near;
using korvane_test::same;

const double kPi = 3.141592653589793;

TEST(Points, CopiesDistancesAndFreeMixes) {
    const double p[4] = {1, 2, 3, 4};
    double q[4] = {9, 9, 9, 9};
    mathCpyPnt2DTo3D(p, q);
    EXPECT_TRUE(exactly(q, {1, 2, 0, 9}));
    const double a[3] = {0, 0, 0}, b[3] = {2, 3, 6};
    EXPECT_EQ(mathDist(a, b), 7.0);
    const double x[6] = {1, 1, 1, 1, 1, 1}, y[6] = {2, 2, 2, 2, 2, 2};
    EXPECT_EQ(mathDistXD(6, x, y), std::sqrt(6.0));
    EXPECT_EQ(mathDistXD(0, x, y), 0.0);
    double out[3];
    mathMixPnt(p, b, 2.0, 3.0, out); // the weights need not sum to 1
    EXPECT_TRUE(exactly(out, {8, 13, 24}));
    const double g[4] = {0, 0, 0, 2};
    double o4[4];
    mathMixP4D(0.5, 0.25, p, g, o4);
    EXPECT_TRUE(exactly(o4, {0.5, 1, 1.5, 2.5}));
}

TEST(Points, EvalLinIsAddVec) {
    const double p[3] = {1, 1, 1}, d[3] = {0.1, 0.2, 0.3};
    double a[3], b[3];
    mathAddVec(p, d, 3.3, a);
    mathEvalLin(p, d, 3.3, b);
    EXPECT_TRUE(same(a, b, 3));
    EXPECT_EQ(a[2], 1 + 3.3 * 0.3);
}

TEST(Points, SymPntReadsOnlyTheFirstCentreCoordinate) {
    const double c[3] = {1, 5, 9}, p[3] = {0, 0, 0};
    double out[3];
    mathSymPnt(c, p, out);
    EXPECT_TRUE(exactly(out, {2, 2, 2}));
}

TEST(Points, ScaleAboutACentre) {
    const double c[3] = {1, 1, 1}, s[3] = {2, 3, -1}, p[3] = {2, 2, 2};
    double out[3];
    mathScalePnt(c, s, p, out);
    EXPECT_TRUE(exactly(out, {3, 4, 0}));
}

TEST(RotPnt, QuarterTurnAboutZIsAnticlockwise) {
    const double axis[3] = {0, 0, 1}, pnt[3] = {1, 1, 0}, p[3] = {2, 1, 5};
    double out[3], o2[2];
    mathRotPnt(axis, pnt, kPi / 2, p, out);
    EXPECT_TRUE(near(out, {1, 2, 5}, 1e-15));
    mathRotPnt2D(pnt, kPi / 2, p, o2);
    EXPECT_TRUE(near(o2, {1, 2}, 1e-15));
}

TEST(RotAndMirPnt, InvariantsAndAliasing) {
    std::mt19937 rng(5);
    std::uniform_real_distribution<double> u(-4, 4);
    for (int k = 0; k < 100; ++k) {
        double axis[3] = {u(rng), u(rng), u(rng)};
        mathUniVec(axis, 1e-10);
        const double pnt[3] = {u(rng), u(rng), u(rng)}, p[3] = {u(rng), u(rng), u(rng)};
        const double angle = u(rng);
        double out[3], f0[3], f1[3], back[3], in[3] = {p[0], p[1], p[2]};
        mathRotPnt(axis, pnt, angle, p, out);
        mathPrjPntLin(p, pnt, axis, f0);
        mathPrjPntLin(out, pnt, axis, f1);
        EXPECT_NEAR(mathDist(p, f0), mathDist(out, f1), 1e-12); // distance to the axis kept
        EXPECT_NEAR(mathDist(f0, f1), 0.0, 1e-12);
        mathRotPnt(axis, pnt, -angle, out, back);
        EXPECT_TRUE(near(back, {p[0], p[1], p[2]}, 1e-12));
        mathRotPnt(axis, pnt, angle, in, in);
        EXPECT_TRUE(same(in, out, 3));

        double once[3], twice[3], mid[3], e[3], m[3] = {p[0], p[1], p[2]};
        mathMirPnt(pnt, axis, p, once);
        mathMirPnt(pnt, axis, once, twice);
        EXPECT_TRUE(near(twice, {p[0], p[1], p[2]}, 1e-12));
        mathMidPnt(p, once, mid);
        mathGetVec(pnt, mid, e);
        EXPECT_NEAR(mathOProduct(e, axis), 0.0, 1e-12); // the mid-point lies on the plane
        mathMirPnt(pnt, axis, m, m);
        EXPECT_TRUE(same(m, once, 3));
    }
}

TEST(Homogeneous, DivisionByTheWeight) {
    const double h[4] = {2, 4, 6, -2}, g[4] = {1, 1, 1, -1.0}, inf[4] = {1, 2, 3, 5e-11};
    double out[3] = {9, 9, 9}, keep[3] = {7, 7, 7};
    EXPECT_EQ(mathGetPnt4(h, out), 1);
    EXPECT_TRUE(exactly(out, {-1, -2, -3}));
    EXPECT_EQ(mathDist3H(g, h), 0.0); // a negative weight counts as too small here
    EXPECT_EQ(mathGetPnt4(inf, keep), 0);
    EXPECT_TRUE(exactly(keep, {7, 7, 7}));
    const double h3[3] = {3, 6, 1e-10};
    double o2[2];
    EXPECT_EQ(mathGetPnt3(h3, o2), 1); // a weight equal to 1e-10 divides
    EXPECT_EQ(o2[0], 3 / 1e-10);
    const double a[4] = {2, 0, 0, 2}, b[4] = {0, 6, 0, 3};
    EXPECT_EQ(mathDist3H(a, b), std::sqrt(5.0));
}

TEST(Homogeneous, WeightRuleOfTheTransforms) {
    const double d[3] = {1, 2, 3}, atInf[4] = {10, 20, 30, 0.0}, h[4] = {2, 4, 6, 2};
    double out[4];
    mathMovePnt4H(d, atInf, out);
    EXPECT_TRUE(exactly(out, {11, 22, 33, 0}));
    mathMovePnt4H(d, h, out);
    EXPECT_TRUE(exactly(out, {(2 * 0.5 + 1) * 2, (4 * 0.5 + 2) * 2, (6 * 0.5 + 3) * 2, 2}));
    const double c[3] = {1, 1, 1}, s[3] = {2, 2, 2};
    const double h2[4] = {3, 3, 3, 3}, atInf2[4] = {3, 3, 3, -5e-11};
    mathScalePnt4H(c, s, h2, out);
    EXPECT_TRUE(exactly(out, {3, 3, 3, 3}));
    mathScalePnt4H(c, s, atInf2, out);
    EXPECT_TRUE(exactly(out, {5, 5, 5, -5e-11}));
}

TEST(Homogeneous, RotateAndMirrorAgreeWithThePlainForms) {
    double axis[3] = {1, 2, 2};
    mathUniVec(axis, 1e-10);
    const double pnt[3] = {0.5, -1, 2}, h[4] = {1.5, 3, -4.5, 1.5}, e[3] = {1, 2, -3};
    double out[4], plain[3], alias[4] = {h[0], h[1], h[2], h[3]};
    mathRotPnt4H(axis, pnt, 0.7, h, out);
    mathRotPnt(axis, pnt, 0.7, e, plain);
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(out[i] / out[3], plain[i], 1e-14);
    mathMirPnt4H(pnt, axis, h, out);
    mathMirPnt(pnt, axis, e, plain);
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(out[i] / out[3], plain[i], 1e-14);
    mathMirPnt4H(pnt, axis, alias, alias);
    EXPECT_TRUE(same(alias, out, 4));
}

TEST(ChkPntLin2D, SidesAndTheZeroToleranceQuirk) {
    const double a[2] = {0, 0}, b[2] = {2, 0}, c[2] = {1e-10, 0};
    const double on[2] = {1, 0}, left[2] = {1, 1}, right[2] = {1, -1};
    EXPECT_EQ(mathChkPntLin2D(on, a, b, 0.0), 4); // |s| < 0 and s > 0 are both false
    EXPECT_EQ(mathChkPntLin2D(on, a, b, 1e-10), 2);
    EXPECT_EQ(mathChkPntLin2D(right, a, b, 1e-10), 4);
    EXPECT_EQ(mathChkPntLin2D(left, a, b, 1.0), 3); // strict: distance 1 is not on
    EXPECT_EQ(mathChkPntLin2D(left, a, a, 1e-10), 800);
    EXPECT_EQ(mathChkPntLin2D(left, a, c, 1e-10), 3); // a length of exactly 1e-10 is a line
}

} // namespace
