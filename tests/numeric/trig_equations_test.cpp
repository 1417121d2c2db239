#include <korvane/numeric.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

const double kPi = 3.141592653589793;
const double kTwoPi = 6.283185307179586;

TEST(SolExpoEqua, BothRootsSolveTheEquation) {
    std::mt19937 gen(21);
    std::uniform_real_distribution<double> u(-3.0, 3.0);
    double r[2];
    for (int trial = 0; trial < 300; ++trial) {
        const double a = u(gen), b = u(gen), c = std::hypot(a, b) * 0.3 * u(gen);
        ASSERT_EQ(mathSolExpoEqua(a, b, c, 1e-12, r), 2);
        for (double t : r) {
            EXPECT_TRUE(t >= 0.0 && t <= kTwoPi);
            EXPECT_NEAR(a * std::cos(t) + b * std::sin(t), c, 1e-12);
        }
        EXPECT_GT(std::fabs(r[0] - r[1]), 1e-9);
    }
}

TEST(SolExpoEqua, TangentRootsOutOfReachAndIdentities) {
    double r[2] = {5.0, 5.0};
    EXPECT_EQ(mathSolExpoEqua(1.0, 0.0, 1.5, 0.1, r), 0);
    EXPECT_TRUE(r[0] == 0.0 && r[1] == 1.5707963267948966);
    ASSERT_EQ(mathSolExpoEqua(-1.0, 0.0, 1.0, 1e-12, r), 1); // cos t = -1
    EXPECT_NEAR(r[0], kPi, 1e-12);
    EXPECT_EQ(r[0], r[1]);
    // cos t = 1: 0 and 2 pi at the two ends of the period are one root.
    ASSERT_EQ(mathSolExpoEqua(1.0, 0.0, 1.0, 1e-12, r), 1);
    EXPECT_TRUE(r[0] == 0.0 && r[1] == kTwoPi);
    EXPECT_EQ(mathSolExpoEqua(0.0, 2.0, 2.1, 0.2, r), 1); // beyond, but within tol
    EXPECT_EQ(mathSolExpoEqua(0.0, 0.0, 1e-11, 1e-10, r), 100);
    EXPECT_EQ(mathSolExpoEqua(0.0, 0.0, 1.0, 1e-10, r), 0);
    EXPECT_EQ(mathSolExpoEqua(1e-3, 0.0, 0.0, 1e-2, r), 100); // amplitude within tol
}

TEST(SolHomoEqua, HalvedAnglesSolveIndefiniteFormsOnly) {
    std::mt19937 gen(22);
    std::uniform_real_distribution<double> u(-2.0, 2.0);
    double r[2];
    for (int trial = 0; trial < 300; ++trial) {
        const double a = u(gen), b = u(gen), c = u(gen);
        const int k = mathSolHomoEqua(a, b, c, 1e-12, r);
        EXPECT_EQ(k, b * b - 4.0 * a * c > 0.0 ? 2 : 0);
        for (int i = 0; i < k; ++i) {
            const double cs = std::cos(r[i]), sn = std::sin(r[i]);
            EXPECT_TRUE(r[i] >= 0.0 && r[i] <= kPi);
            EXPECT_NEAR(a * cs * cs + b * sn * cs + c * sn * sn, 0.0, 1e-12);
        }
    }
    EXPECT_EQ(mathSolHomoEqua(0.0, 0.0, 0.0, 1e-10, r), 100);
}

TEST(SolAngleByCCSS, FindsEveryRootOfTheCircle) {
    std::mt19937 gen(23);
    std::uniform_real_distribution<double> u(-2.0, 2.0);
    double r[4];
    for (int trial = 0; trial < 150; ++trial) {
        const double a = u(gen), b = u(gen), c = u(gen);
        auto f = [&](double t) { return (a + b * std::sin(t)) * std::cos(t) + c * std::sin(t); };
        int changes = 0; // roots counted by sign changes on a fine grid
        for (int i = 1; i <= 8000; ++i)
            changes += (f(kTwoPi * (i - 1) / 8000) < 0.0) != (f(kTwoPi * i / 8000) < 0.0);
        const int k = mathSolAngleByCCSS(a, b, c, 1e-12, r);
        ASSERT_EQ(k, changes);
        for (int i = 0; i < k; ++i) {
            EXPECT_TRUE(r[i] >= 0.0 && r[i] < kTwoPi);
            EXPECT_NEAR(f(r[i]), 0.0, 1e-8);
        }
    }
}

} // namespace
