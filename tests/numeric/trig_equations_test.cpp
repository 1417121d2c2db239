#include <korvane/numeric.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

const double kPi = 3.141592653589793;
const double kTwoPi = 6.283185307179586;

// Roots of f on [0, 2 pi) counted by sign changes on a fine grid.
template <class F> int signChanges(F f) {
    const int steps = 8000;
    int count = 0;
    double prev = f(0.0);
    for (int i = 1; i <= steps; ++i) {
        const double v = f(kTwoPi * i / steps);
        if ((prev < 0.0) != (v < 0.0))
            ++count;
        prev = v;
    }
    return count;
}

TEST(SolExpoEqua, BothRootsSolveTheEquation) {
    std::mt19937 gen(21);
    std::uniform_real_distribution<double> u(-3.0, 3.0);
    double r[2];
    for (int trial = 0; trial < 300; ++trial) {
        const double a = u(gen), b = u(gen);
        const double n = std::sqrt(a * a + b * b);
        const double c = n * (0.95 * u(gen) / 3.0); // inside the amplitude
        ASSERT_EQ(mathSolExpoEqua(a, b, c, 1e-12, r), 2);
        for (int i = 0; i < 2; ++i) {
            EXPECT_GE(r[i], 0.0);
            EXPECT_LE(r[i], kTwoPi);
            EXPECT_NEAR(a * std::cos(r[i]) + b * std::sin(r[i]), c, 1e-12);
        }
        EXPECT_GT(std::fabs(r[0] - r[1]), 1e-9);
    }
}

TEST(SolExpoEqua, TangentRootIsOneRootWrittenTwice) {
    double r[2];
    ASSERT_EQ(mathSolExpoEqua(-1.0, 0.0, 1.0, 1e-12, r), 1); // cos t = -1
    EXPECT_NEAR(r[0], kPi, 1e-12);
    EXPECT_EQ(r[0], r[1]);
    // cos t = 1: the roots 0 and 2 pi lie at the two ends of the period.
    ASSERT_EQ(mathSolExpoEqua(1.0, 0.0, 1.0, 1e-12, r), 1);
    EXPECT_EQ(r[0], 0.0);
    EXPECT_EQ(r[1], kTwoPi);
}

TEST(SolExpoEqua, OutOfReachAndIdentities) {
    double r[2] = {5.0, 5.0};
    EXPECT_EQ(mathSolExpoEqua(1.0, 0.0, 1.5, 0.1, r), 0);
    EXPECT_EQ(r[0], 0.0);
    EXPECT_EQ(r[1], 1.5707963267948966);
    // Beyond the amplitude but within tol: the tangent root.
    EXPECT_EQ(mathSolExpoEqua(0.0, 2.0, 2.1, 0.2, r), 1);
    EXPECT_NEAR(r[0], kPi / 2.0, 1e-12);
    EXPECT_EQ(mathSolExpoEqua(0.0, 0.0, 1e-11, 1e-10, r), 100);
    EXPECT_EQ(mathSolExpoEqua(0.0, 0.0, 1.0, 1e-10, r), 0);
    // An amplitude within tol of zero is an identity too.
    EXPECT_EQ(mathSolExpoEqua(1e-3, 0.0, 0.0, 1e-2, r), 100);
}

TEST(SolHomoEqua, HalvedAnglesSolveTheQuadraticForm) {
    std::mt19937 gen(22);
    std::uniform_real_distribution<double> u(-2.0, 2.0);
    double r[2];
    int checked = 0;
    for (int trial = 0; trial < 300; ++trial) {
        const double a = u(gen), b = u(gen), c = u(gen);
        const int k = mathSolHomoEqua(a, b, c, 1e-12, r);
        ASSERT_LE(k, 2);
        // Real roots exist exactly when the form is indefinite.
        EXPECT_EQ(k > 0, b * b - 4.0 * a * c > 0.0);
        for (int i = 0; i < k; ++i, ++checked) {
            const double t = r[i], cs = std::cos(t), sn = std::sin(t);
            EXPECT_GE(t, 0.0);
            EXPECT_LE(t, kPi);
            EXPECT_NEAR(a * cs * cs + b * sn * cs + c * sn * sn, 0.0, 1e-12);
        }
    }
    EXPECT_GT(checked, 100);
    EXPECT_EQ(mathSolHomoEqua(1.0, 0.0, 1.0, 1e-10, r), 0); // cos^2 + sin^2
    EXPECT_EQ(mathSolHomoEqua(0.0, 0.0, 0.0, 1e-10, r), 100);
}

TEST(SolAngleByCCSS, FindsEveryRootOfTheCircle) {
    std::mt19937 gen(23);
    std::uniform_real_distribution<double> u(-2.0, 2.0);
    double r[4];
    for (int trial = 0; trial < 150; ++trial) {
        const double a = u(gen), b = u(gen), c = u(gen);
        auto f = [&](double t) {
            return a * std::cos(t) + b * std::cos(t) * std::sin(t) + c * std::sin(t);
        };
        const int k = mathSolAngleByCCSS(a, b, c, 1e-12, r);
        ASSERT_EQ(k, signChanges(f));
        for (int i = 0; i < k; ++i) {
            EXPECT_GE(r[i], 0.0);
            EXPECT_LT(r[i], kTwoPi);
            EXPECT_NEAR(f(r[i]), 0.0, 1e-8);
        }
    }
}

TEST(SolAngleByCCSS, SecondPassCoversTheHalfAroundPi) {
    // sin t (c + b cos t) with a = 0: the roots 0 and pi, the second found by
    // the second pass as pi - 2 atan(0).
    double r[4];
    ASSERT_EQ(mathSolAngleByCCSS(0.0, 0.0, 1.0, 1e-12, r), 2);
    EXPECT_NEAR(r[0], 0.0, 1e-12);
    EXPECT_NEAR(r[1], kPi, 1e-12);
}

} // namespace
