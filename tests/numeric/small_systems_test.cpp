#include <korvane/numeric.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

double dot(const double *a, const double *b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

TEST(SolLineEqua22, SolvesOrLeavesOutputsUntouched) {
    double x = 7.0, y = 7.0;
    ASSERT_EQ(mathSolLineEqua22(2, 1, 1, 3, 5, 10, 1e-12, &x, &y), 1); // x = 1, y = 3
    EXPECT_NEAR(x, 1.0, 1e-15);
    EXPECT_NEAR(y, 3.0, 1e-15);
    x = y = 7.0;
    // det = 1e-3: refused below tol, accepted at it.
    EXPECT_EQ(mathSolLineEqua22(1, 0, 0, 1e-3, 1, 1, 2e-3, &x, &y), 0);
    EXPECT_EQ(x, 7.0);
    EXPECT_EQ(y, 7.0);
    EXPECT_EQ(mathSolLineEqua22(1, 0, 0, 1e-3, 1, 1, 1e-3, &x, &y), 1);
}

TEST(SolLineEqua33, CramerAgreesWithAKnownSolution) {
    std::mt19937 gen(41);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    for (int trial = 0; trial < 100; ++trial) {
        double m[9], s[3], b[3];
        for (double &v : m)
            v = u(gen);
        for (int i = 0; i < 3; ++i)
            m[4 * i] += 2.0;
        for (double &v : s)
            v = u(gen);
        for (int i = 0; i < 3; ++i)
            b[i] = dot(m + 3 * i, s);
        double x, y, z;
        ASSERT_EQ(mathSolLineEqua33(m[0], m[1], m[2], m[3], m[4], m[5], m[6], m[7], m[8], b[0],
                                    b[1], b[2], 1e-12, &x, &y, &z),
                  1);
        EXPECT_NEAR(x, s[0], 1e-13);
        EXPECT_NEAR(y, s[1], 1e-13);
        EXPECT_NEAR(z, s[2], 1e-13);
    }
    double x = 7.0, y = 7.0, z = 7.0;
    EXPECT_EQ(mathSolLineEqua33(1, 2, 3, 2, 4, 6, 0, 1, 1, 1, 2, 3, 1e-12, &x, &y, &z), 0);
    EXPECT_EQ(x, 7.0);
}

TEST(SolHomoEqua22, UnitSolutionPerpendicularToTheLongerRow) {
    double r[2] = {7.0, 7.0};
    EXPECT_EQ(mathSolHomoEqua22(1e-11, 0, 0, 1e-11, 1e-10, r), 100);
    EXPECT_EQ(r[0], 0.0);
    EXPECT_EQ(r[1], 0.0);
    // Dependent rows (1, 2) and (3, 6): the null direction (-2, 1) / sqrt 5.
    ASSERT_EQ(mathSolHomoEqua22(1, 2, 3, 6, 1e-12, r), 1);
    EXPECT_NEAR(r[0], -6.0 / std::sqrt(45.0), 1e-15);
    EXPECT_NEAR(r[1], 3.0 / std::sqrt(45.0), 1e-15);
    // Equal lengths take the second row; the first row then fails.
    ASSERT_EQ(mathSolHomoEqua22(1, 0, 0, 1, 1e-12, r), 0);
    EXPECT_EQ(r[0], -1.0);
    EXPECT_EQ(r[1], 0.0);
    // A residual equal to tol still passes.
    EXPECT_EQ(mathSolHomoEqua22(0.5, 0, 0, 1, 0.5, r), 1);
}

TEST(DecVec, ReconstructsTheVector) {
    std::mt19937 gen(42);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    for (int trial = 0; trial < 50; ++trial) {
        double e1[3], e2[3], e3[3], v[3];
        for (int i = 0; i < 3; ++i) {
            e1[i] = u(gen) + (i == 0 ? 2.0 : 0.0);
            e2[i] = u(gen) + (i == 1 ? 2.0 : 0.0);
            e3[i] = u(gen) + (i == 2 ? 2.0 : 0.0);
            v[i] = u(gen);
        }
        double a, b, c;
        ASSERT_EQ(mathDecVec(v, e1, e2, e3, &a, &b, &c), 1);
        for (int i = 0; i < 3; ++i)
            EXPECT_NEAR(a * e1[i] + b * e2[i] + c * e3[i], v[i], 1e-13);
    }
}

TEST(DecVec, SingularBasisGivesMinimumNormComponents) {
    const double e1[3] = {1, 0, 0}, e2[3] = {0, 1, 0}, e3[3] = {1, 1, 0};
    const double v[3] = {2, 4, 0};
    double a, b, c;
    ASSERT_EQ(mathDecVec(v, e1, e2, e3, &a, &b, &c), 1);
    EXPECT_NEAR(a + c, 2.0, 1e-14);
    EXPECT_NEAR(b + c, 4.0, 1e-14);
    EXPECT_NEAR(a + b - c, 0.0, 1e-14); // orthogonal to the null space (1, 1, -1)
}

TEST(SolLeastSquare, ScalarAndTwoColumnProblems) {
    const double zero[3] = {0, 0, 0}, a[3] = {1, 2, 2}, b[3] = {3, 3, 3};
    double x = 7.0;
    EXPECT_EQ(mathSolLeastSquare31(zero, b, &x), 1);
    EXPECT_EQ(x, 0.0);
    EXPECT_EQ(mathSolLeastSquare31(a, b, &x), 1);
    EXPECT_EQ(x, 15.0 / 9.0);

    const double p[3] = {1, 0, 2}, q[3] = {0, 1, 1};
    double c[3], s[2];
    for (int i = 0; i < 3; ++i)
        c[i] = 2.0 * p[i] - 3.0 * q[i];
    ASSERT_EQ(mathSolLeastSquare32(p, q, c, s), 1);
    EXPECT_NEAR(s[0], 2.0, 1e-14);
    EXPECT_NEAR(s[1], -3.0, 1e-14);
}

TEST(SolLeastSquare32, ParallelColumnsGiveTheShortestSolution) {
    const double b[3] = {1, 2, 2}, twice[3] = {2, 4, 4}, minus[3] = {-2, -4, -4};
    double x[2];
    // 2 x0 + x1 = 1 at least length: (2, 1) / 5.
    ASSERT_EQ(mathSolLeastSquare32(twice, b, b, x), 1);
    EXPECT_NEAR(x[0], 0.4, 1e-15);
    EXPECT_NEAR(x[1], 0.2, 1e-15);
    ASSERT_EQ(mathSolLeastSquare32(minus, b, b, x), 1);
    EXPECT_NEAR(x[0], -0.4, 1e-15);
    EXPECT_NEAR(x[1], 0.2, 1e-15);
    const double zero[3] = {0, 0, 0};
    ASSERT_EQ(mathSolLeastSquare32(zero, zero, b, x), 1);
    EXPECT_EQ(x[0], 0.0);
    EXPECT_EQ(x[1], 0.0);
}

TEST(SolLeastSquareLin, ConnectingSegmentIsPerpendicularToBothLines) {
    std::mt19937 gen(43);
    std::uniform_real_distribution<double> u(-2.0, 2.0);
    for (int trial = 0; trial < 100; ++trial) {
        double p0[3], d0[3], p1[3], d1[3], r[2];
        for (int i = 0; i < 3; ++i) {
            p0[i] = u(gen);
            d0[i] = u(gen);
            p1[i] = u(gen);
            d1[i] = u(gen);
        }
        ASSERT_EQ(mathSolLeastSquareLin(p0, d0, p1, d1, r), 1);
        double w[3];
        for (int i = 0; i < 3; ++i)
            w[i] = p0[i] + r[0] * d0[i] - p1[i] - r[1] * d1[i];
        EXPECT_NEAR(dot(w, d0), 0.0, 1e-11);
        EXPECT_NEAR(dot(w, d1), 0.0, 1e-11);
    }
}

TEST(SolLeastSquareLin, ParallelLinesTakeTheFeetOfTheMidpoint) {
    const double p0[3] = {0, 0, 0}, d[3] = {1, 0, 0}, p1[3] = {4, 1, 0};
    double r[2];
    ASSERT_EQ(mathSolLeastSquareLin(p0, d, p1, d, r), 1);
    EXPECT_EQ(r[0], 2.0);
    EXPECT_EQ(r[1], -2.0);
}

} // namespace
