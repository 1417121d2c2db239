#include <korvane/kernel.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

const double kPi = 3.141592653589793;

TEST(Points, CopiesAndDistances) {
    const double p[4] = {1, 2, 3, 4};
    double q[4] = {9, 9, 9, 9};
    mathCpyPnt2DTo3D(p, q);
    EXPECT_EQ(q[2], 0.0);
    EXPECT_EQ(q[3], 9.0);
    mathCpyPnt4(p, q);
    EXPECT_EQ(q[3], 4.0);
    const double a[3] = {0, 0, 0}, b[3] = {2, 3, 6};
    EXPECT_EQ(mathDist(a, b), 7.0);
    EXPECT_EQ(mathDist2D(a, b), std::sqrt(13.0));
    const double x[6] = {1, 1, 1, 1, 1, 1}, y[6] = {2, 2, 2, 2, 2, 2};
    EXPECT_EQ(mathDistXD(6, x, y), std::sqrt(6.0));
    EXPECT_EQ(mathDistXD(0, x, y), 0.0);
}

TEST(Points, MixWeightsAreFree) {
    const double p[3] = {1, 2, 3}, q[3] = {10, 20, 30};
    double out[3];
    mathMixPnt(p, q, 2.0, 3.0, out);
    EXPECT_EQ(out[0], 32.0);
    EXPECT_EQ(out[2], 96.0);
    const double h[4] = {1, 1, 1, 1}, g[4] = {0, 0, 0, 2};
    double o4[4];
    mathMixP4D(0.5, 0.25, h, g, o4);
    EXPECT_EQ(o4[0], 0.5);
    EXPECT_EQ(o4[3], 1.0);
    mathMidPnt(p, q, out);
    EXPECT_EQ(out[1], 11.0);
}

TEST(Points, EvalLinIsAddVec) {
    const double p[3] = {1, 1, 1}, d[3] = {0.1, 0.2, 0.3};
    double a[3], b[3];
    mathAddVec(p, d, 3.3, a);
    mathEvalLin(p, d, 3.3, b);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(a[i], b[i]);
    EXPECT_EQ(a[2], 1 + 3.3 * 0.3);
}

TEST(Points, SymPntReadsOnlyTheFirstCentreCoordinate) {
    const double c[3] = {1, 5, 9}, p[3] = {0, 0, 0};
    double out[3];
    mathSymPnt(c, p, out);
    EXPECT_EQ(out[0], 2.0);
    EXPECT_EQ(out[1], 2.0);
    EXPECT_EQ(out[2], 2.0);
}

TEST(Points, ScaleAboutACentre) {
    const double c[3] = {1, 1, 1}, s[3] = {2, 3, -1}, p[3] = {2, 2, 2};
    double out[3];
    mathScalePnt(c, s, p, out);
    EXPECT_EQ(out[0], 3.0);
    EXPECT_EQ(out[1], 4.0);
    EXPECT_EQ(out[2], 0.0);
}

TEST(RotPnt, KeepsDistanceToTheAxisAndAliases) {
    std::mt19937 rng(5);
    std::uniform_real_distribution<double> u(-4, 4);
    for (int k = 0; k < 100; ++k) {
        double axis[3] = {u(rng), u(rng), u(rng)};
        mathUniVec(axis, 1e-10);
        const double pnt[3] = {u(rng), u(rng), u(rng)};
        const double p[3] = {u(rng), u(rng), u(rng)};
        const double angle = u(rng);
        double out[3], f0[3], f1[3];
        mathRotPnt(axis, pnt, angle, p, out);
        mathPrjPntLin(p, pnt, axis, f0);
        mathPrjPntLin(out, pnt, axis, f1);
        EXPECT_NEAR(mathDist(p, f0), mathDist(out, f1), 1e-12);
        EXPECT_NEAR(mathDist(f0, f1), 0.0, 1e-12);
        double back[3];
        mathRotPnt(axis, pnt, -angle, out, back);
        for (int i = 0; i < 3; ++i)
            EXPECT_NEAR(back[i], p[i], 1e-12);
        double in[3] = {p[0], p[1], p[2]};
        mathRotPnt(axis, pnt, angle, in, in);
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(in[i], out[i]);
    }
}

TEST(RotPnt, QuarterTurnAboutZIsAnticlockwise) {
    const double axis[3] = {0, 0, 1}, pnt[3] = {1, 1, 0}, p[3] = {2, 1, 5};
    double out[3];
    mathRotPnt(axis, pnt, kPi / 2, p, out);
    EXPECT_NEAR(out[0], 1.0, 1e-15);
    EXPECT_NEAR(out[1], 2.0, 1e-15);
    EXPECT_EQ(out[2], 5.0);
    const double c[2] = {1, 1};
    double o2[2];
    mathRotPnt2D(c, kPi / 2, p, o2);
    EXPECT_NEAR(o2[0], 1.0, 1e-15);
    EXPECT_NEAR(o2[1], 2.0, 1e-15);
}

TEST(MirPnt, TwiceIsIdentityAndAliases) {
    std::mt19937 rng(9);
    std::uniform_real_distribution<double> u(-4, 4);
    for (int k = 0; k < 100; ++k) {
        double n[3] = {u(rng), u(rng), u(rng)};
        mathUniVec(n, 1e-10);
        const double pnt[3] = {u(rng), u(rng), u(rng)};
        const double p[3] = {u(rng), u(rng), u(rng)};
        double once[3], twice[3], mid[3], e[3];
        mathMirPnt(pnt, n, p, once);
        mathMirPnt(pnt, n, once, twice);
        for (int i = 0; i < 3; ++i)
            EXPECT_NEAR(twice[i], p[i], 1e-12);
        mathMidPnt(p, once, mid);
        mathGetVec(pnt, mid, e);
        EXPECT_NEAR(mathOProduct(e, n), 0.0, 1e-12); // the midpoint lies on the plane
        double in[3] = {p[0], p[1], p[2]};
        mathMirPnt(pnt, n, in, in);
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(in[i], once[i]);
    }
}

TEST(Homogeneous, DivisionByTheWeight) {
    const double h[4] = {2, 4, 6, -2};
    double out[3] = {9, 9, 9};
    EXPECT_EQ(mathGetPnt4(h, out), 1);
    EXPECT_EQ(out[0], -1.0);
    EXPECT_EQ(out[2], -3.0);
    const double g[4] = {1, 1, 1, -1.0};
    EXPECT_EQ(mathDist3H(g, h), 0.0); // a negative weight counts as too small here
    const double inf[4] = {1, 2, 3, 5e-11};
    double keep[3] = {7, 7, 7};
    EXPECT_EQ(mathGetPnt4(inf, keep), 0);
    EXPECT_EQ(keep[0], 7.0);
    const double h3[3] = {3, 6, 1e-10};
    double o2[2];
    EXPECT_EQ(mathGetPnt3(h3, o2), 1);
    EXPECT_EQ(o2[0], 3 / 1e-10);
    const double a[4] = {2, 0, 0, 2}, b[4] = {0, 6, 0, 3};
    EXPECT_EQ(mathDist3H(a, b), std::sqrt(5.0));
}

TEST(Homogeneous, WeightRuleOfTheTransforms) {
    const double d[3] = {1, 2, 3};
    const double atInf[4] = {10, 20, 30, 0.0};
    double out[4];
    mathMovePnt4H(d, atInf, out);
    EXPECT_EQ(out[0], 11.0);
    EXPECT_EQ(out[1], 22.0);
    EXPECT_EQ(out[2], 33.0);
    EXPECT_EQ(out[3], 0.0);

    const double h[4] = {2, 4, 6, 2};
    mathMovePnt4H(d, h, out);
    EXPECT_EQ(out[0], (2 * 0.5 + 1) * 2);
    EXPECT_EQ(out[2], (6 * 0.5 + 3) * 2);
    EXPECT_EQ(out[3], 2.0);

    // Euclidean transform of the divided point, weighted again.
    const double c[3] = {1, 1, 1}, s[3] = {2, 2, 2};
    const double h2[4] = {3, 3, 3, 3};
    mathScalePnt4H(c, s, h2, out);
    EXPECT_EQ(out[0], 3.0);
    EXPECT_EQ(out[3], 3.0);
    const double atInf2[4] = {3, 3, 3, -5e-11};
    mathScalePnt4H(c, s, atInf2, out);
    EXPECT_EQ(out[0], 5.0);
    EXPECT_EQ(out[3], -5e-11);
}

TEST(Homogeneous, RotateAndMirrorAgreeWithThePlainForms) {
    double axis[3] = {1, 2, 2};
    mathUniVec(axis, 1e-10);
    const double pnt[3] = {0.5, -1, 2};
    const double h[4] = {1.5, 3, -4.5, 1.5};
    const double e[3] = {1, 2, -3};
    double out[4], plain[3];
    mathRotPnt4H(axis, pnt, 0.7, h, out);
    mathRotPnt(axis, pnt, 0.7, e, plain);
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(out[i] / out[3], plain[i], 1e-14);
    mathMirPnt4H(pnt, axis, h, out);
    mathMirPnt(pnt, axis, e, plain);
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(out[i] / out[3], plain[i], 1e-14);
    double alias[4] = {h[0], h[1], h[2], h[3]};
    mathMirPnt4H(pnt, axis, alias, alias);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(alias[i], out[i]);
}

TEST(ChkPntLin2D, SidesAndTheZeroToleranceQuirk) {
    const double a[2] = {0, 0}, b[2] = {2, 0};
    const double on[2] = {1, 0}, left[2] = {1, 1}, right[2] = {1, -1};
    EXPECT_EQ(mathChkPntLin2D(on, a, b, 0.0), 4); // |s| < 0 and s > 0 are both false
    EXPECT_EQ(mathChkPntLin2D(on, a, b, 1e-10), 2);
    EXPECT_EQ(mathChkPntLin2D(left, a, b, 1e-10), 3);
    EXPECT_EQ(mathChkPntLin2D(right, a, b, 1e-10), 4);
    EXPECT_EQ(mathChkPntLin2D(left, a, b, 1.0), 3); // strict: distance 1 is not on
    EXPECT_EQ(mathChkPntLin2D(left, a, a, 1e-10), 800);
    const double c[2] = {1e-10, 0};
    EXPECT_EQ(mathChkPntLin2D(left, a, c, 1e-10), 3); // length equal to 1e-10 is a line
}

TEST(PrjPntLin, FootIsOnTheLineAndPerpendicular) {
    const double o[3] = {1, 1, 1}, d[3] = {0, 0.6, 0.8}, p[3] = {3, -2, 5};
    double f[3], e[3];
    mathPrjPntLin(p, o, d, f);
    mathGetVec(f, p, e);
    EXPECT_NEAR(mathOProduct(e, d), 0.0, 1e-14);
    EXPECT_EQ(f[0], 1.0);
}

} // namespace
