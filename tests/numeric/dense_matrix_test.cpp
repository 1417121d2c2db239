#include <korvane/numeric.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace {

using Matrix = std::vector<double>;

Matrix randomMatrix(std::mt19937 &gen, int r, int c, double diag = 0.0) {
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    Matrix m(r * c);
    for (int i = 0; i < r * c; ++i)
        m[i] = u(gen) + (i / c == i % c ? diag : 0.0);
    return m;
}

Matrix mult(const Matrix &a, const Matrix &b, int l, int m, int n) {
    Matrix c(l * n);
    mathMatxMult(a.data(), b.data(), c.data(), l, m, n);
    return c;
}

Matrix trans(const Matrix &a, int r, int c) {
    Matrix t(r * c);
    mathMatxTrans(r, c, a.data(), t.data());
    return t;
}

double maxDiff(const Matrix &a, const Matrix &b) {
    double v = 0.0;
    for (size_t i = 0; i < a.size(); ++i)
        v = std::max(v, std::fabs(a[i] - b[i]));
    return v;
}

TEST(MatxMult, RectangularProductAndEmptyDimensions) {
    const Matrix a = {1, 2, 3, 4, 5, 6}, b = {1, 0, 0, 1, 1, 1}; // 2x3, 3x2
    EXPECT_EQ(mult(a, b, 2, 3, 2), (Matrix{4, 5, 10, 11}));
    Matrix c = {9, 9};
    mathMatxMult(a.data(), b.data(), c.data(), 0, 3, 2); // l < 1: nothing
    EXPECT_EQ(c, (Matrix{9, 9}));
    mathMatxMult(a.data(), b.data(), c.data(), 1, 0, 2); // empty sum: zeros
    EXPECT_EQ(c, (Matrix{0, 0}));
}

TEST(GaussEliminate, RankTestIsThePrecisionNotTheScale) {
    double one[1] = {0.5}, b1[1] = {3.0}; // n = 1: only the last pivot test
    ASSERT_EQ(mathGaussEliminate(one, b1, 1), 1);
    EXPECT_EQ(b1[0], 6.0);
    double zero[4] = {0, 0, 0, 0}, bz[2] = {1, 1};
    EXPECT_EQ(mathGaussEliminate(zero, bz, 2), 0);
    // 1 + 1e-17 == 1 is refused, 1 + 1e-15 is not, though both are perfectly conditioned.
    double small[4] = {1e-17, 0, 0, 1e-17}, bs[2] = {1, 1};
    EXPECT_EQ(mathGaussEliminate(small, bs, 2), 0);
    double ok[4] = {1e-15, 0, 0, 1e-15}, bo[2] = {1, 2};
    ASSERT_EQ(mathGaussEliminate(ok, bo, 2), 1);
    EXPECT_NEAR(bo[1], 2e15, 2.0);
}

TEST(GaussEliminate, FirstLargestPivotInRowMajorOrderWins) {
    // |-2| at (0, 1) ties with |2| at (1, 0): the column exchange is taken and
    // leaves -0.5 and 2.5 behind; the row exchange would leave 0.5 and -2.5.
    double a[4] = {1, -2, 2, 1}, b[2] = {-3, 4}; // x = (1, 2)
    ASSERT_EQ(mathGaussEliminate(a, b, 2), 1);
    EXPECT_TRUE(a[1] == -0.5 && a[3] == 2.5);
    EXPECT_TRUE(b[0] == 1.0 && b[1] == 2.0);
}

TEST(SolLineEqua, RandomSystemsSatisfyTheEquationsInputsUnchanged) {
    std::mt19937 gen(33);
    for (int n = 1; n <= 24; ++n) {
        const Matrix a = randomMatrix(gen, n, n, 2.0), b = randomMatrix(gen, n, 1);
        const Matrix a0 = a, b0 = b;
        Matrix x(n);
        ASSERT_EQ(mathSolLineEqua(n, a.data(), b.data(), x.data()), 1);
        EXPECT_TRUE(a == a0 && b == b0);
        EXPECT_LT(maxDiff(mult(a, x, n, n, 1), b), 1e-12) << n;
    }
}

TEST(SolLineEqua, SingularSystemsGetTheMinimumNormLeastSquaresAnswer) {
    const double a[4] = {1, 1, 1, 1}, consistent[2] = {2, 2}, inconsistent[2] = {1, 3};
    double x[2];
    for (const double *b : {consistent, inconsistent}) {
        ASSERT_EQ(mathSolLineEqua(2, a, b, x), 1);
        EXPECT_LT(maxDiff(Matrix(x, x + 2), Matrix{1, 1}), 1e-14);
    }
    // Refused for its scale; in the fallback every column is "dependent"
    // (squared length below 1e-20), so x comes back zero.
    const double tiny[4] = {1e-17, 0, 0, 1e-17};
    ASSERT_EQ(mathSolLineEqua(2, tiny, consistent, x), 1);
    EXPECT_TRUE(x[0] == 0.0 && x[1] == 0.0);
}

TEST(MatxInvs, RankDeficientMatricesSatisfyThePenroseConditions) {
    std::mt19937 gen(34);
    for (int trial = 0; trial < 60; ++trial) {
        const int r = 2 + trial % 7, c = 2 + (trial / 7) % 6, k = 1 + trial % std::min(r, c);
        const Matrix a = mult(randomMatrix(gen, r, k), randomMatrix(gen, k, c), r, k, c);
        Matrix g(c * r, 99.0);
        ASSERT_EQ(mathMatxInvs(r, c, a.data(), g.data()), 1);
        const Matrix ag = mult(a, g, r, c, r), ga = mult(g, a, c, r, c);
        EXPECT_LT(maxDiff(mult(ag, a, r, r, c), a), 1e-9);
        EXPECT_LT(maxDiff(mult(ga, g, c, c, r), g), 1e-9 * (1.0 + maxDiff(g, Matrix(c * r))));
        EXPECT_LT(maxDiff(ag, trans(ag, r, r)), 1e-9);
        EXPECT_LT(maxDiff(ga, trans(ga, c, c)), 1e-9);
    }
    const double zero[3] = {0, 0, 0};
    double g[3] = {7, 7, 7};
    ASSERT_EQ(mathMatxInvs(3, 1, zero, g), 1);
    EXPECT_EQ(Matrix(g, g + 3), Matrix(3, 0.0));
}

TEST(MatxInvsByET, InvertsTakingTheFirstUsableRowOrReportsSingular) {
    std::mt19937 gen(36);
    for (int n = 1; n <= 10; ++n) {
        const Matrix a = randomMatrix(gen, n, n, 1.0);
        Matrix work = a, inv(n * n), id(n * n);
        ASSERT_EQ(mathMatxInvsByET(n, work.data(), inv.data()), 1);
        mathUnitMatx(n, id.data());
        EXPECT_LT(maxDiff(mult(a, inv, n, n, n), id), 1e-9);
    }
    double a[4] = {1e-21, 1, 1, 1}, inv[4]; // 1e-21 is not usable: exchange
    ASSERT_EQ(mathMatxInvsByET(2, a, inv), 1);
    EXPECT_LT(maxDiff(Matrix(inv, inv + 4), Matrix{-1, 1, 1, 0}), 1e-15);
    double s[9] = {1, 2, 3, 2, 4, 6, 1, 0, 1}, is[9];
    EXPECT_EQ(mathMatxInvsByET(3, s, is), 0);
}

} // namespace
