#include <korvane/kernel.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

const double kPi = 3.141592653589793;
const double kTwoPi = 6.283185307179586;

TEST(UniVec, LengthEqualToToleranceSucceeds) {
    double v[3] = {3.0, 4.0, 0.0};
    EXPECT_EQ(mathUniVec(v, 5.0), 1);
    EXPECT_EQ(v[0], 3.0 * (1.0 / 5.0));
    EXPECT_EQ(v[1], 4.0 * (1.0 / 5.0));
    double w[3] = {3.0, 4.0, 0.0};
    EXPECT_EQ(mathUniVec(w, std::nextafter(5.0, 6.0)), 0);
    EXPECT_EQ(w[0], 0.0);
    EXPECT_EQ(w[1], 0.0);
    EXPECT_EQ(w[2], 0.0);
}

TEST(UniVec2D, LengthEqualToToleranceSucceeds) {
    double v[2] = {0.0, 2.0};
    EXPECT_EQ(mathUniVec2D(v, 2.0), 1);
    EXPECT_EQ(v[1], 1.0);
    double w[2] = {0.0, 2.0};
    EXPECT_EQ(mathUniVec2D(w, std::nextafter(2.0, 3.0)), 0);
    EXPECT_EQ(w[0], 0.0);
    EXPECT_EQ(w[1], 0.0);
}

TEST(Normalisers, FailuresLeaveWhatEachTwinDescribes) {
    const double p[3] = {1, 1, 1};
    double out[3] = {9, 9, 9};
    EXPECT_EQ(mathGetVecUnit(p, p, out), 0);
    EXPECT_EQ(out[0], 0.0);
    EXPECT_EQ(out[2], 0.0);

    const double p2[2] = {1.0, 1.0}, q2[2] = {1.0 + 1e-12, 1.0};
    double o2[2] = {9, 9};
    EXPECT_EQ(mathGetVecByPP2D(p2, q2, 1e-10, o2), 0);
    EXPECT_EQ(o2[0], q2[0] - p2[0]);
    EXPECT_EQ(o2[1], 0.0);

    const double a[3] = {1, 0, 0}, b[3] = {2, 0, 0};
    double keep[3] = {5, 6, 7};
    EXPECT_EQ(mathVProductUnit(a, b, keep), 0);
    EXPECT_EQ(keep[0], 5.0);
    EXPECT_EQ(keep[1], 6.0);
    EXPECT_EQ(keep[2], 7.0);

    double tiny[3] = {1e-21, 0, 0};
    EXPECT_EQ(mathChnVecLen(tiny, 4.0), 0);
    EXPECT_EQ(tiny[0], 1e-21);

    const double u[3] = {1, 0, 0}, opp[3] = {-1, 0, 0};
    double bis[3] = {9, 9, 9};
    EXPECT_EQ(mathAngleBisector(u, opp, bis), -4);
    EXPECT_EQ(bis[0], 0.0);
    EXPECT_EQ(bis[1], 0.0);
    EXPECT_EQ(bis[2], 0.0);
}

TEST(Products, DotCrossTripleAndTheCrossedDot) {
    const double x[3] = {1, 0, 0}, y[3] = {0, 1, 0}, z[3] = {0, 0, 1};
    EXPECT_EQ(mathWProduct(x, z), 1.0);
    EXPECT_EQ(mathOProduct(x, z), 0.0);
    EXPECT_EQ(mathMProduct(x, y, z), 1.0);
    EXPECT_EQ(mathMProduct(y, x, z), -1.0);
    const double a[2] = {2, 1}, b[2] = {1, 3};
    EXPECT_EQ(mathVProduct2D(a, b), 5.0);
    EXPECT_EQ(mathOProduct2D(a, b), 5.0);
}

TEST(VProduct, OutputMayAliasEitherInput) {
    const double a0[3] = {1, 2, 3}, b0[3] = {-4, 5, 0.5};
    double ref[3];
    mathVProduct(a0, b0, ref);
    double a[3] = {1, 2, 3};
    mathVProduct(a, b0, a);
    double b[3] = {-4, 5, 0.5};
    mathVProduct(a0, b, b);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(a[i], ref[i]);
        EXPECT_EQ(b[i], ref[i]);
    }
    EXPECT_EQ(ref[0], 2 * 0.5 - 3 * 5);
}

TEST(ParallelAndPerpendicular, StrictTests) {
    const double a[3] = {1, 0, 0}, b[3] = {1, 0.5, 0};
    EXPECT_EQ(mathIsParallel(a, b, 0.5), 0);
    EXPECT_EQ(mathIsParallel(a, b, 0.500001), 1);
    EXPECT_EQ(mathIsPerpendicular(a, b, 1.0), 0);
    EXPECT_EQ(mathIsPerpendicular(a, b, 1.000001), 1);
}

TEST(Reflections, ReflectAndProjectAboutAUnitLine) {
    const double n[3] = {0, 1, 0}, v[3] = {1, 2, 3};
    double out[3];
    mathRefVec(v, n, out);
    EXPECT_EQ(out[0], -1.0);
    EXPECT_EQ(out[1], 2.0);
    EXPECT_EQ(out[2], -3.0);
    mathPrjVecVec(v, n, out);
    EXPECT_EQ(out[0], 0.0);
    EXPECT_EQ(out[1], 2.0);
}

TEST(Angles, UndefinedBelowToleranceIsMinusOne) {
    const double a[3] = {1, 0, 0}, zero[3] = {0, 0, 0};
    EXPECT_EQ(mathGetAngle(a, zero, 1e-10), -1.0);
    EXPECT_EQ(mathGetAngle(zero, a, 1e-10), -1.0);
    const double p[2] = {0, 0}, c[2] = {0, 0}, q[2] = {1, 0};
    EXPECT_EQ(mathGetAngle3P2D(p, c, q), -1.0);
    EXPECT_EQ(mathGetACWAngle3P2D(p, c, q), -1.0);
    const double b[3] = {0, 3, 0};
    EXPECT_NEAR(mathGetAngle(a, b, 1e-10), kPi / 2, 1e-15);
    const double d[3] = {-2, 0, 0};
    EXPECT_EQ(mathGetAngle(a, d, 1e-10), kPi); // cosine -1 exactly hits the guard
}

TEST(Angles, SignedAngleOfUnitVectorsKeepsNegativeZero) {
    const double a[2] = {1, 0}, same[2] = {1, 0}, opp[2] = {-1, 0};
    const double r0 = mathGetAngle2DUnitEx(a, same);
    EXPECT_EQ(r0, 0.0);
    EXPECT_TRUE(std::signbit(r0));
    EXPECT_EQ(mathGetAngle2DUnitEx(a, opp), -kPi);
    const double up[2] = {0, 1}, down[2] = {0, -1};
    EXPECT_EQ(mathGetAngle2DUnitEx(a, up), 1.5707963267948966);
    EXPECT_EQ(mathGetAngle2DUnitEx(a, down), -1.5707963267948966);
    const double s = std::sqrt(0.5);
    const double back[2] = {-s, s};
    EXPECT_NEAR(mathGetAngle2DUnitEx(a, back), 0.75 * kPi, 1e-12);
}

TEST(Angles, AnticlockwiseTurnAtAPoint) {
    const double p[2] = {1, 0}, c[2] = {0, 0}, q[2] = {0, 1};
    EXPECT_NEAR(mathGetACWAngle3P2D(p, c, q), 0.75 * kTwoPi, 1e-15);
    EXPECT_NEAR(mathGetACWAngle3P2D(q, c, p), 0.25 * kTwoPi, 1e-15);
    EXPECT_EQ(mathGetACWAngle2D(p, q), mathGetACWAngle3P2D(p, c, q));
}

TEST(Angles, FullCircleAnglesShiftedIntoRange) {
    const double v[2] = {0, -1};
    EXPECT_EQ(mathGetAngleX2D(v), std::atan2(-1.0, 0.0) + kTwoPi);
    const double x[3] = {1, 0, 0}, y[3] = {0, 1, 0}, z[3] = {0, 0, 1};
    const double w[3] = {1, -1, 5};
    EXPECT_NEAR(mathGetRAngleXY(x, y, w), 1.75 * kPi, 1e-15);
    EXPECT_EQ(mathGetRAngleXZ(x, z, w), mathGetRAngleXY(x, y, w));
}

TEST(Angles, AcuteFolding) {
    const double a[3] = {1, 0, 0};
    const double s = std::sqrt(0.5);
    const double b[3] = {-s, s, 0};
    EXPECT_NEAR(mathGetAcuteAngleUnit(a, b), kPi / 4, 1e-12);
    EXPECT_EQ(mathGetAcuteAngleUnit(a, b), kPi - mathGetAngleUnit(a, b));
}

TEST(Rotations, PlanarRotationIsAnticlockwise) {
    const double v[2] = {1, 0};
    double out[2];
    mathRotVec2D(kPi / 2, v, out);
    EXPECT_NEAR(out[0], 0.0, 1e-16);
    EXPECT_EQ(out[1], 1.0);
}

TEST(Rotations, RotVecKeepsLengthAndAliases) {
    std::mt19937 rng(3);
    std::uniform_real_distribution<double> u(-2, 2);
    for (int k = 0; k < 100; ++k) {
        double axis[3] = {u(rng), u(rng), u(rng)};
        mathUniVec(axis, 1e-10);
        const double pnt[3] = {u(rng), u(rng), u(rng)};
        const double v[3] = {u(rng), u(rng), u(rng)};
        const double angle = 3 * u(rng);
        double out[3];
        mathRotVec(axis, pnt, angle, v, out);
        EXPECT_NEAR(mathVecLen(out), mathVecLen(v), 1e-12);
        EXPECT_NEAR(mathOProduct(out, axis), mathOProduct(v, axis), 1e-12);
        double in[3] = {v[0], v[1], v[2]};
        mathRotVec(axis, pnt, angle, in, in);
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(in[i], out[i]);
    }
}

TEST(Rotations, RotVecXZTurnsXTowardZCrossX) {
    const double x[3] = {1, 0, 0}, z[3] = {0, 0, 1};
    double out[3];
    mathRotVecXZ(x, z, kPi / 2, out);
    EXPECT_NEAR(out[0], 0.0, 1e-16);
    EXPECT_EQ(out[1], 1.0);
}

TEST(MirVec, MirrorTwiceIsIdentityAndAliases) {
    const double pnt[3] = {5, -3, 2};
    double n[3] = {1, 2, -2};
    mathUniVec(n, 1e-10);
    const double v[3] = {0.3, -1.7, 4.1};
    double once[3], twice[3];
    mathMirVec(pnt, n, v, once);
    mathMirVec(pnt, n, once, twice);
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(twice[i], v[i], 1e-14);
    EXPECT_NEAR(mathOProduct(once, n), -mathOProduct(v, n), 1e-14);
    double in[3] = {v[0], v[1], v[2]};
    mathMirVec(pnt, n, in, in);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(in[i], once[i]);
}

TEST(MinComSub, StrictScanKeepsTheLowestIndex) {
    const double a[9] = {3, -1, 1, 2, -1, 5, 0.5, 7, -0.5};
    EXPECT_EQ(mathGetVecMinComSub(9, a), 6);
    EXPECT_EQ(mathGetVecMinComSub(6, a), 1);
    const double z[3] = {0, 0, 1};
    EXPECT_EQ(mathGetVecMinComSub(3, z), 0);
}

TEST(GetXYFromZ, CompletesARightHandedFrame) {
    const double z[3] = {0, 0, 1};
    double x[3], y[3];
    EXPECT_EQ(mathGetXYFromZ(z, x, y), 1);
    EXPECT_EQ(x[0], 0.0);
    EXPECT_EQ(x[1], 1.0);
    EXPECT_EQ(x[2], 0.0);
    EXPECT_EQ(y[0], -1.0);
    EXPECT_EQ(y[1], 0.0);
    EXPECT_EQ(y[2], 0.0);

    std::mt19937 rng(11);
    std::uniform_real_distribution<double> u(-3, 3);
    for (int k = 0; k < 200; ++k) {
        const double w[3] = {u(rng), u(rng), u(rng)};
        ASSERT_EQ(mathGetXYFromZ(w, x, y), 1);
        EXPECT_NEAR(mathVecLen(x), 1.0, 1e-15);
        EXPECT_NEAR(mathVecLen(y), mathVecLen(w), 1e-13); // y keeps the length of z
        EXPECT_NEAR(mathOProduct(x, w), 0.0, 1e-13);
        EXPECT_NEAR(mathOProduct(y, w), 0.0, 1e-12);
        EXPECT_NEAR(mathOProduct(x, y), 0.0, 1e-13);
        EXPECT_GT(mathMProduct(x, y, w), 0.0);
    }
}

TEST(GetXYFromZ, ZeroAxisFailsWithXZeroAndYUntouched) {
    const double z[3] = {0, 0, 0};
    double x[3] = {9, 9, 9}, y[3] = {8, 8, 8};
    EXPECT_EQ(mathGetXYFromZ(z, x, y), 0);
    EXPECT_EQ(x[0], 0.0);
    EXPECT_EQ(x[1], 0.0);
    EXPECT_EQ(x[2], 0.0);
    EXPECT_EQ(y[0], 8.0);
}

TEST(AdjVecDir, TurnsTowardTheTargetUnlessPerpendicular) {
    const double p[3] = {0, 0, 0}, q[3] = {2, 0, 0};
    double v[3] = {-1, 1, 0};
    EXPECT_EQ(mathAdjVecDir(p, v, q), 1);
    EXPECT_EQ(v[0], 1.0);
    EXPECT_EQ(v[1], -1.0);
    double w[3] = {-0.5e-10, 1, 0};
    EXPECT_EQ(mathAdjVecDir(p, w, q), 1);
    EXPECT_EQ(w[0], -0.5e-10);
    double s[3] = {-1, 0, 0};
    EXPECT_EQ(mathAdjVecDir(p, s, p), -4);
    EXPECT_EQ(s[0], -1.0);
}

TEST(ChnVecLen, RescalesToTheGivenLength) {
    double v[3] = {0, 3, 4};
    EXPECT_EQ(mathChnVecLen(v, 10.0), 1);
    EXPECT_NEAR(v[1], 6.0, 1e-15);
    EXPECT_NEAR(v[2], 8.0, 1e-15);
}

} // namespace
