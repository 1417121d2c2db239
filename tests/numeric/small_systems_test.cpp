#include <korvane/numeric.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

double dot(const double *a, const double *b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

TEST(SolLineEqua, TwoAndThreeUnknownsByCramer) {
    double x = 7.0, y = 7.0, z = 7.0, m[9], s[3], b[3];
    // det = 1e-3: refused below tol with the outputs untouched, accepted at it.
    EXPECT_EQ(mathSolLineEqua22(1, 0, 0, 1e-3, 1, 1, 2e-3, &x, &y), 0);
    EXPECT_TRUE(x == 7.0 && y == 7.0);
    EXPECT_EQ(mathSolLineEqua22(1, 0, 0, 1e-3, 1, 1, 1e-3, &x, &y), 1);
    EXPECT_EQ(mathSolLineEqua33(1, 2, 3, 2, 4, 6, 0, 1, 1, 1, 2, 3, 1e-12, &x, &y, &z), 0);
    EXPECT_EQ(z, 7.0);
    std::mt19937 gen(41);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    for (int trial = 0; trial < 100; ++trial) {
        for (int i = 0; i < 9; ++i)
            m[i] = u(gen) + (i % 4 == 0 ? 2.0 : 0.0);
        for (int i = 0; i < 3; ++i)
            s[i] = u(gen);
        for (int i = 0; i < 3; ++i)
            b[i] = dot(m + 3 * i, s);
        ASSERT_EQ(mathSolLineEqua33(m[0], m[1], m[2], m[3], m[4], m[5], m[6], m[7], m[8], b[0],
                                    b[1], b[2], 1e-12, &x, &y, &z),
                  1);
        EXPECT_TRUE(std::fabs(x - s[0]) < 1e-13 && std::fabs(z - s[2]) < 1e-13);
        ASSERT_EQ(mathSolLineEqua22(m[0], m[1], m[3], m[4], m[0] * s[0] + m[1] * s[1],
                                    m[3] * s[0] + m[4] * s[1], 1e-12, &x, &y),
                  1);
        EXPECT_NEAR(y, s[1], 1e-13);
    }
}

TEST(SolHomoEqua22, UnitSolutionPerpendicularToTheLongerRow) {
    double r[2] = {7.0, 7.0};
    EXPECT_EQ(mathSolHomoEqua22(1e-11, 0, 0, 1e-11, 1e-10, r), 100);
    EXPECT_TRUE(r[0] == 0.0 && r[1] == 0.0);
    ASSERT_EQ(mathSolHomoEqua22(1, 2, 3, 6, 1e-12, r), 1); // null direction (-2, 1)
    EXPECT_NEAR(r[0], -2.0 / std::sqrt(5.0), 1e-15);
    EXPECT_NEAR(r[1], 1.0 / std::sqrt(5.0), 1e-15);
    // Equal lengths take the second row; the first then leaves a residual.
    ASSERT_EQ(mathSolHomoEqua22(1, 0, 0, 1, 1e-12, r), 0);
    EXPECT_TRUE(r[0] == -1.0 && r[1] == 0.0);
    EXPECT_EQ(mathSolHomoEqua22(0.5, 0, 0, 1, 0.5, r), 1); // residual == tol passes
}

TEST(DecVec, ReconstructsTheVectorAndTakesMinimumNormOnASingularBasis) {
    std::mt19937 gen(42);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    double e[9], v[3], a, b, c;
    for (int trial = 0; trial < 50; ++trial) {
        for (int i = 0; i < 9; ++i)
            e[i] = u(gen) + (i % 4 == 0 ? 2.0 : 0.0);
        for (double &x : v)
            x = u(gen);
        ASSERT_EQ(mathDecVec(v, e, e + 3, e + 6, &a, &b, &c), 1);
        for (int i = 0; i < 3; ++i)
            EXPECT_NEAR(a * e[i] + b * e[3 + i] + c * e[6 + i], v[i], 1e-13);
    }
    const double e1[3] = {1, 0, 0}, e2[3] = {0, 1, 0}, e3[3] = {1, 1, 0}, w[3] = {2, 4, 0};
    ASSERT_EQ(mathDecVec(w, e1, e2, e3, &a, &b, &c), 1);
    EXPECT_TRUE(std::fabs(a + c - 2.0) < 1e-14 && std::fabs(b + c - 4.0) < 1e-14);
    EXPECT_NEAR(a + b - c, 0.0, 1e-14); // orthogonal to the null space
}

TEST(SolLeastSquare, ShortestSolutionForParallelColumns) {
    const double zero[3] = {0, 0, 0}, b[3] = {1, 2, 2}, twice[3] = {2, 4, 4}, c3[3] = {3, 3, 3};
    const double minus[3] = {-2, -4, -4};
    double x = 7.0, s[2];
    EXPECT_TRUE(mathSolLeastSquare31(zero, c3, &x) == 1 && x == 0.0);
    EXPECT_TRUE(mathSolLeastSquare31(b, c3, &x) == 1 && x == 15.0 / 9.0);
    // 2 x0 + x1 = 1 at least length: (2, 1) / 5; the sign follows a.
    ASSERT_EQ(mathSolLeastSquare32(twice, b, b, s), 1);
    EXPECT_TRUE(std::fabs(s[0] - 0.4) < 1e-15 && std::fabs(s[1] - 0.2) < 1e-15);
    ASSERT_EQ(mathSolLeastSquare32(minus, b, b, s), 1);
    EXPECT_NEAR(s[0], -0.4, 1e-15);
    ASSERT_EQ(mathSolLeastSquare32(zero, zero, b, s), 1);
    EXPECT_TRUE(s[0] == 0.0 && s[1] == 0.0);
}

TEST(SolLeastSquareLin, ConnectingSegmentIsPerpendicularOrFeetOfTheMidpoint) {
    std::mt19937 gen(43);
    std::uniform_real_distribution<double> u(-2.0, 2.0);
    double p[12], r[2], w[3];
    for (int trial = 0; trial < 100; ++trial) {
        for (double &v : p)
            v = u(gen);
        ASSERT_EQ(mathSolLeastSquareLin(p, p + 3, p + 6, p + 9, r), 1);
        for (int i = 0; i < 3; ++i)
            w[i] = p[i] + r[0] * p[3 + i] - p[6 + i] - r[1] * p[9 + i];
        EXPECT_TRUE(std::fabs(dot(w, p + 3)) < 1e-11 && std::fabs(dot(w, p + 9)) < 1e-11);
    }
    const double o[3] = {0, 0, 0}, d[3] = {1, 0, 0}, q[3] = {4, 1, 0};
    ASSERT_EQ(mathSolLeastSquareLin(o, d, q, d, r), 1);
    EXPECT_TRUE(r[0] == 2.0 && r[1] == -2.0);
}

} // namespace
