#include <korvane/kernel.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "support/expect.h"

namespace {

using korvane_test::exactly;
using korvane_test::same;

const double kPi = 3.141592653589793;
const double kTwoPi = 6.283185307179586;

TEST(UniVec, LengthEqualToToleranceSucceeds) {
    double v[3] = {3.0, 4.0, 0.0}, w[3] = {3.0, 4.0, 0.0};
    EXPECT_EQ(mathUniVec(v, 5.0), 1);
    EXPECT_TRUE(exactly(v, {3.0 * (1.0 / 5.0), 4.0 * (1.0 / 5.0), 0.0}));
    EXPECT_EQ(mathUniVec(w, std::nextafter(5.0, 6.0)), 0);
    EXPECT_TRUE(exactly(w, {0, 0, 0}));
    double v2[2] = {0.0, 2.0}, w2[2] = {0.0, 2.0};
    EXPECT_EQ(mathUniVec2D(v2, 2.0), 1);
    EXPECT_TRUE(exactly(v2, {0, 1}));
    EXPECT_EQ(mathUniVec2D(w2, std::nextafter(2.0, 3.0)), 0);
    EXPECT_TRUE(exactly(w2, {0, 0}));
}

TEST(Normalisers, FailuresLeaveWhatEachTwinDescribes) {
    const double p[3] = {1, 1, 1};
    double out[3] = {9, 9, 9};
    EXPECT_EQ(mathGetVecUnit(p, p, out), 0);
    EXPECT_TRUE(exactly(out, {0, 0, 0}));

    const double p2[2] = {1.0, 1.0}, q2[2] = {1.0 + 1e-12, 1.0};
    double o2[2] = {9, 9};
    EXPECT_EQ(mathGetVecByPP2D(p2, q2, 1e-10, o2), 0);
    EXPECT_TRUE(exactly(o2, {q2[0] - p2[0], 0.0}));

    const double a[3] = {1, 0, 0}, b[3] = {2, 0, 0};
    double keep[3] = {5, 6, 7};
    EXPECT_EQ(mathVProductUnit(a, b, keep), 0);
    EXPECT_TRUE(exactly(keep, {5, 6, 7}));

    double tiny[3] = {1e-21, 0, 0}, c[3] = {0, 3, 4};
    EXPECT_EQ(mathChnVecLen(tiny, 4.0), 0);
    EXPECT_EQ(tiny[0], 1e-21);
    EXPECT_EQ(mathChnVecLen(c, 10.0), 1);
    EXPECT_TRUE(korvane_test::near(c, {0, 6, 8}, 1e-15));

    const double opp[3] = {-1, 0, 0};
    double bis[3] = {9, 9, 9};
    EXPECT_EQ(mathAngleBisector(a, opp, bis), -4);
    EXPECT_TRUE(exactly(bis, {0, 0, 0}));
}

TEST(Products, DotCrossTripleAndTheCrossedDot) {
    const double x[3] = {1, 0, 0}, y[3] = {0, 1, 0}, z[3] = {0, 0, 1};
    EXPECT_EQ(mathWProduct(x, z), 1.0);
    EXPECT_EQ(mathOProduct(x, z), 0.0);
    EXPECT_EQ(mathMProduct(x, y, z), 1.0);
    EXPECT_EQ(mathMProduct(y, x, z), -1.0);
    const double a[2] = {2, 1}, b[2] = {1, 3};
    EXPECT_EQ(mathVProduct2D(a, b), 5.0);
}

TEST(VProduct, OutputMayAliasEitherInput) {
    const double a0[3] = {1, 2, 3}, b0[3] = {-4, 5, 0.5};
    double ref[3], a[3] = {1, 2, 3}, b[3] = {-4, 5, 0.5};
    mathVProduct(a0, b0, ref);
    mathVProduct(a, b0, a);
    mathVProduct(a0, b, b);
    EXPECT_TRUE(same(a, ref, 3));
    EXPECT_TRUE(same(b, ref, 3));
    EXPECT_EQ(ref[0], 2 * 0.5 - 3 * 5);
}

TEST(ParallelAndPerpendicular, StrictTests) {
    const double a[3] = {1, 0, 0}, b[3] = {1, 0.5, 0};
    EXPECT_EQ(mathIsParallel(a, b, 0.5), 0);
    EXPECT_EQ(mathIsParallel(a, b, 0.500001), 1);
    EXPECT_EQ(mathIsPerpendicular(a, b, 1.0), 0);
    EXPECT_EQ(mathIsPerpendicular(a, b, 1.000001), 1);
}

TEST(Angles, LengthEqualToToleranceIsDefined) {
    const double a[2] = {3, 4}, b[2] = {0, 5}, p[3] = {3, 4, 0}, c[3] = {0, 0, 0};
    EXPECT_NEAR(mathGetAngle2D(a, b, 5.0), std::acos(0.8), 1e-15);
    EXPECT_EQ(mathGetAngle2D(a, b, std::nextafter(5.0, 6.0)), -1.0);
    EXPECT_NEAR(mathGetAngle3P(p, c, p), 0.0, 1e-15);
}

TEST(Angles, UndefinedBelowToleranceIsMinusOne) {
    const double a[3] = {1, 0, 0}, zero[3] = {0, 0, 0}, d[3] = {-2, 0, 0};
    EXPECT_EQ(mathGetAngle(a, zero, 1e-10), -1.0);
    EXPECT_EQ(mathGetAngle(zero, a, 1e-10), -1.0);
    EXPECT_EQ(mathGetAngle(a, d, 1e-10), kPi); // a cosine of -1 hits the guard exactly
    const double c[2] = {0, 0}, q[2] = {1, 0};
    EXPECT_EQ(mathGetACWAngle3P2D(c, c, q), -1.0);
}

TEST(Angles, SignedAngleOfUnitVectorsKeepsNegativeZero) {
    const double a[2] = {1, 0}, opp[2] = {-1, 0}, up[2] = {0, 1}, down[2] = {0, -1};
    const double r0 = mathGetAngle2DUnitEx(a, a);
    EXPECT_EQ(r0, 0.0);
    EXPECT_TRUE(std::signbit(r0));
    EXPECT_EQ(mathGetAngle2DUnitEx(a, opp), -kPi);
    EXPECT_EQ(mathGetAngle2DUnitEx(a, up), 1.5707963267948966);
    EXPECT_EQ(mathGetAngle2DUnitEx(a, down), -1.5707963267948966);
    const double back[2] = {-std::sqrt(0.5), std::sqrt(0.5)};
    EXPECT_NEAR(mathGetAngle2DUnitEx(a, back), 0.75 * kPi, 1e-12);
}

TEST(Angles, AnticlockwiseTurnAtAPoint) {
    const double p[2] = {1, 0}, c[2] = {0, 0}, q[2] = {0, 1};
    EXPECT_NEAR(mathGetACWAngle3P2D(p, c, q), 0.75 * kTwoPi, 1e-15);
    EXPECT_NEAR(mathGetACWAngle3P2D(q, c, p), 0.25 * kTwoPi, 1e-15);
    EXPECT_EQ(mathGetACWAngle2D(p, q), mathGetACWAngle3P2D(p, c, q));
}

TEST(Angles, FullCircleAndAcuteForms) {
    const double v[2] = {0, -1};
    EXPECT_EQ(mathGetAngleX2D(v), std::atan2(-1.0, 0.0) + kTwoPi);
    const double x[3] = {1, 0, 0}, y[3] = {0, 1, 0}, z[3] = {0, 0, 1}, w[3] = {1, -1, 5};
    EXPECT_NEAR(mathGetRAngleXY(x, y, w), 1.75 * kPi, 1e-15);
    EXPECT_EQ(mathGetRAngleXZ(x, z, w), mathGetRAngleXY(x, y, w));
    const double b[3] = {-std::sqrt(0.5), std::sqrt(0.5), 0};
    EXPECT_NEAR(mathGetAcuteAngleUnit(x, b), kPi / 4, 1e-12);
    EXPECT_EQ(mathGetAcuteAngleUnit(x, b), kPi - mathGetAngleUnit(x, b));
}

TEST(Rotations, QuarterTurnsAreAnticlockwise) {
    const double v[2] = {1, 0};
    double out[2], o3[3];
    mathRotVec2D(kPi / 2, v, out);
    EXPECT_NEAR(out[0], 0.0, 1e-16);
    EXPECT_EQ(out[1], 1.0);
    const double x[3] = {1, 0, 0}, z[3] = {0, 0, 1};
    mathRotVecXZ(x, z, kPi / 2, o3);
    EXPECT_NEAR(o3[0], 0.0, 1e-16);
    EXPECT_EQ(o3[1], 1.0);
}

TEST(Rotations, RotateAndMirrorKeepLengthsAndAlias) {
    std::mt19937 rng(3);
    std::uniform_real_distribution<double> u(-2, 2);
    for (int k = 0; k < 100; ++k) {
        double axis[3] = {u(rng), u(rng), u(rng)};
        mathUniVec(axis, 1e-10);
        const double pnt[3] = {u(rng), u(rng), u(rng)}, v[3] = {u(rng), u(rng), u(rng)};
        const double angle = 3 * u(rng);
        double out[3], in[3] = {v[0], v[1], v[2]};
        mathRotVec(axis, pnt, angle, v, out);
        EXPECT_NEAR(mathVecLen(out), mathVecLen(v), 1e-12);
        EXPECT_NEAR(mathOProduct(out, axis), mathOProduct(v, axis), 1e-12);
        mathRotVec(axis, pnt, angle, in, in);
        EXPECT_TRUE(same(in, out, 3));

        double once[3], twice[3], m[3] = {v[0], v[1], v[2]};
        mathMirVec(pnt, axis, v, once);
        mathMirVec(pnt, axis, once, twice);
        EXPECT_TRUE(korvane_test::near(twice, {v[0], v[1], v[2]}, 1e-13));
        EXPECT_NEAR(mathOProduct(once, axis), -mathOProduct(v, axis), 1e-13);
        mathMirVec(pnt, axis, m, m);
        EXPECT_TRUE(same(m, once, 3));
    }
    const double n[3] = {0, 1, 0}, v[3] = {1, 2, 3};
    double out[3];
    mathRefVec(v, n, out);
    EXPECT_TRUE(exactly(out, {-1, 2, -3}));
}

TEST(MinComSub, StrictScanKeepsTheLowestIndex) {
    const double a[9] = {3, -1, 1, 2, -1, 5, 0.5, 7, -0.5};
    EXPECT_EQ(mathGetVecMinComSub(9, a), 6);
    EXPECT_EQ(mathGetVecMinComSub(6, a), 1);
}

TEST(GetXYFromZ, CompletesARightHandedFrame) {
    const double z[3] = {0, 0, 1};
    double x[3], y[3];
    EXPECT_EQ(mathGetXYFromZ(z, x, y), 1); // ties take k = 0
    EXPECT_TRUE(exactly(x, {0, 1, 0}));
    EXPECT_TRUE(exactly(y, {-1, 0, 0}));

    std::mt19937 rng(11);
    std::uniform_real_distribution<double> u(-3, 3);
    for (int k = 0; k < 200; ++k) {
        const double w[3] = {u(rng), u(rng), u(rng)};
        ASSERT_EQ(mathGetXYFromZ(w, x, y), 1);
        EXPECT_NEAR(mathVecLen(x), 1.0, 1e-15);
        EXPECT_NEAR(mathVecLen(y), mathVecLen(w), 1e-13); // y keeps the length of z
        EXPECT_NEAR(mathOProduct(x, w), 0.0, 1e-13);
        EXPECT_NEAR(mathOProduct(x, y), 0.0, 1e-13);
        EXPECT_GT(mathMProduct(x, y, w), 0.0);
    }
    const double zero[3] = {0, 0, 0};
    double fx[3] = {9, 9, 9}, fy[3] = {8, 8, 8};
    EXPECT_EQ(mathGetXYFromZ(zero, fx, fy), 0);
    EXPECT_TRUE(exactly(fx, {0, 0, 0}));
    EXPECT_TRUE(exactly(fy, {8, 8, 8}));
}

TEST(AdjVecDir, TurnsTowardTheTargetUnlessPerpendicular) {
    const double p[3] = {0, 0, 0}, q[3] = {2, 0, 0};
    double v[3] = {-1, 1, 0}, w[3] = {-0.5e-10, 1, 0}, s[3] = {-1, 0, 0};
    EXPECT_EQ(mathAdjVecDir(p, v, q), 1);
    EXPECT_TRUE(exactly(v, {1, -1, 0}));
    EXPECT_EQ(mathAdjVecDir(p, w, q), 1);
    EXPECT_EQ(w[0], -0.5e-10);
    EXPECT_EQ(mathAdjVecDir(p, s, p), -4);
    EXPECT_EQ(s[0], -1.0);
}

} // namespace
