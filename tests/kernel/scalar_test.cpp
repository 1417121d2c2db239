#include <korvane/kernel.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "support/expect.h"

namespace {

using korvane_test::exactly;

const double kPi = 3.141592653589793;
const double kTwoPi = 6.283185307179586;

TEST(ACos, GuardsGiveTheEndValuesExactly) {
    EXPECT_EQ(mathACos(1.0), 0.0);
    EXPECT_EQ(mathACos(-1.0), kPi);
    EXPECT_EQ(mathACos(1.5), 0.0);
    EXPECT_EQ(mathACos(-1.5), kPi);
    EXPECT_EQ(mathACos(0.999999999999), std::acos(0.999999999999));
    EXPECT_EQ(mathACos(0.5), std::acos(0.5));
}

TEST(ASin, GuardsGiveTheEndValuesExactly) {
    EXPECT_EQ(mathASin(1.0), 1.5707963267948966);
    EXPECT_EQ(mathASin(-1.0), -1.5707963267948966);
    EXPECT_EQ(mathASin(7.0), 1.5707963267948966);
}

TEST(SolAngleByCS, CoversTheCircleAndGuardsZero) {
    EXPECT_EQ(mathSolAngleByCS(0.0, 0.0), 0.0);
    EXPECT_EQ(mathSolAngleByCS(5e-21, 4e-21), 0.0);
    EXPECT_EQ(mathSolAngleByCS(0.0, -1.0), std::atan2(-1.0, 0.0) + kTwoPi);
    EXPECT_NEAR(mathSolAngleByCS(3.0, 3.0), kPi / 4.0, 1e-15);
}

TEST(Clamp, LowBoundIsTestedFirst) {
    EXPECT_EQ(mathClamp(0.0, 1.0, -2.0), 0.0);
    EXPECT_EQ(mathClamp(0.0, 1.0, 2.0), 1.0);
    EXPECT_EQ(mathClamp(2.0, 1.0, 0.0), 2.0); // inverted bounds: lo wins below lo
    EXPECT_EQ(mathClamp(2.0, 1.0, 1.5), 2.0);
    EXPECT_EQ(mathClamp01(-0.1), 0.0);
    EXPECT_EQ(mathClamp01(1.1), 1.0);
}

TEST(Clamp0PI2, KeepsBothEndsAndFoldsOthers) {
    EXPECT_EQ(mathClamp0PI2(kTwoPi), kTwoPi);
    EXPECT_EQ(mathClamp0PI2(0.0), 0.0);
    EXPECT_EQ(mathClamp0PI2(-0.5), -0.5 - std::floor(-0.5 * 0.15915494309189535) * kTwoPi);
    EXPECT_NEAR(mathClamp0PI2(-0.5), kTwoPi - 0.5, 1e-15);
    EXPECT_NEAR(mathClamp0PI2(3.0 * kTwoPi + 1.0), 1.0, 1e-14);
    for (double x = -50.0; x < 50.0; x += 0.37) {
        const double y = mathClamp0PI2(x);
        EXPECT_GE(y, 0.0);
        EXPECT_LE(y, kTwoPi);
        EXPECT_NEAR(std::sin(y), std::sin(x), 1e-12);
    }
}

TEST(ClampPeriodic, ZeroPeriodAndUnoffsetReduction) {
    EXPECT_EQ(mathClampPeriodic(1.0, 1.0, 7.0), 1.0);
    EXPECT_EQ(mathClampPeriodic(1.0, 1.0 + 5e-11, 7.0), (1.0 + (1.0 + 5e-11)) * 0.5);
    EXPECT_EQ(mathClampPeriodic(1.0, 3.0, 3.0), 3.0);
    EXPECT_EQ(mathClampPeriodic(1.0, 3.0, 1.0), 1.0);
    // x - floor((x - lo) / p) * p: 7.5 - floor(6.5 / 2) * 2 = 1.5
    EXPECT_EQ(mathClampPeriodic(1.0, 3.0, 7.5), 1.5);
    EXPECT_EQ(mathClampPeriodic(1.0, 3.0, -0.5), 1.5);
}

TEST(Packers, MergeAndSplitRoundTrip) {
    const unsigned int h = 0xDEADBEEFu, l = 0x12345678u;
    const unsigned int w = mathMerge16(h, l);
    EXPECT_EQ(mathGetHigh16(w), h & 0xFFFFu);
    EXPECT_EQ(mathGetLow16(w), l & 0xFFFFu);
    EXPECT_EQ(mathGetHigh16(0xFFFF0000u), 0xFFFFu); // logical shift
    EXPECT_EQ(mathSetHigh16(0xAAAA1234u, 0x5678u), 0x56781234u);
    EXPECT_EQ(mathSetLow16(0xAAAA1234u, 0xFFFF5678u), 0xAAAA5678u);
}

TEST(Rand01, StaysOnTheTenThousandGrid) {
    for (int i = 0; i < 2000; ++i) {
        const double r = mathRand01();
        EXPECT_TRUE(r >= 0.0 && r <= 0.9999);
        EXPECT_NEAR(r / 0.0001, std::round(r / 0.0001), 1e-6);
    }
}

TEST(Rand01, FollowsThePlatformGeneratorUnseeded) {
    std::srand(77);
    const int expected = std::rand() % 10000;
    std::srand(77);
    EXPECT_EQ(mathRand01(), static_cast<double>(expected) * 0.0001);
}

TEST(Swaps, ExchangeContentsAndIgnoreEmptyCounts) {
    int i = 1, j = 2;
    mathSwapInt(&i, &j);
    EXPECT_EQ(i * 10 + j, 21);
    double a[3] = {1, 2, 3}, b[3] = {4, 5, 6};
    mathSwapDblN(a, b, 0);
    mathSwapDblN(a, b, -3);
    EXPECT_TRUE(exactly(a, {1, 2, 3}));
    mathSwapPnt2D(a, b);
    EXPECT_TRUE(exactly(a, {4, 5, 3}));
    mathSwapPnt3D(a, b);
    EXPECT_TRUE(exactly(a, {1, 2, 6}));
    EXPECT_TRUE(exactly(b, {4, 5, 3}));
}

TEST(ChkAng, ToleranceIsAStrictChord) {
    const double a[3] = {1, 0, 0};
    const double b[3] = {0.6, 0.8, 0};
    const double chord = std::sqrt(0.4 * 0.4 + 0.8 * 0.8);
    EXPECT_EQ(mathChkAng(a, b, chord, 0), 0);
    EXPECT_EQ(mathChkAng(a, b, std::nextafter(chord, 1.0), 0), 1);
    const double c[3] = {-1, 0, 0};
    EXPECT_EQ(mathChkAng(a, c, 1e-12, 1), 1);
    EXPECT_EQ(mathChkAng(a, c, 1e-12, 0), 0);
}

TEST(NumDer, MultipliesByTheReciprocalAndGuardsTinySteps) {
    const double p0[3] = {1, 2, 3}, p1[3] = {2, 4, 9};
    double out[3] = {7, 7, 7};
    EXPECT_EQ(mathNumDer(p0, p1, 1e-21, out), 0);
    EXPECT_TRUE(exactly(out, {7, 7, 7}));
    EXPECT_EQ(mathNumDer(p0, p1, 3.0, out), 1);
    const double r = 1.0 / 3.0;
    EXPECT_TRUE(exactly(out, {1.0 * r, 2.0 * r, 6.0 * r}));
    EXPECT_EQ(mathNumDer(p0, p1, -1e-20, out), 1);
}

} // namespace
