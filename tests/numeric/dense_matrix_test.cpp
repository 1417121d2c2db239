#include <korvane/numeric.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace {

using Matrix = std::vector<double>;

Matrix randomMatrix(std::mt19937 &gen, int r, int c) {
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    Matrix m(r * c);
    for (double &x : m)
        x = u(gen);
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

double maxAbs(const Matrix &m) {
    double v = 0.0;
    for (double x : m)
        v = std::max(v, std::fabs(x));
    return v;
}

double maxDiff(const Matrix &a, const Matrix &b) {
    double v = 0.0;
    for (size_t i = 0; i < a.size(); ++i)
        v = std::max(v, std::fabs(a[i] - b[i]));
    return v;
}

TEST(CalDeterm, AgreesWithCofactorExpansion) {
    EXPECT_EQ(mathCalDeterm22(3.0, 2.0, 1.0, 4.0), 10.0);
    std::mt19937 gen(31);
    for (int trial = 0; trial < 50; ++trial) {
        const Matrix m = randomMatrix(gen, 3, 3);
        const double cof = m[0] * mathCalDeterm22(m[4], m[5], m[7], m[8]) -
                           m[1] * mathCalDeterm22(m[3], m[5], m[6], m[8]) +
                           m[2] * mathCalDeterm22(m[3], m[4], m[6], m[7]);
        EXPECT_NEAR(mathCalDeterm33(m[0], m[1], m[2], m[3], m[4], m[5], m[6], m[7], m[8]), cof,
                    1e-14);
    }
}

TEST(MatxMult, ProductOfKnownRectangularMatrices) {
    const Matrix a = {1, 2, 3, 4, 5, 6}; // 2 by 3
    const Matrix b = {1, 0, 0, 1, 1, 1}; // 3 by 2
    EXPECT_EQ(mult(a, b, 2, 3, 2), (Matrix{4, 5, 10, 11}));
    Matrix c = {9, 9};
    mathMatxMult(a.data(), b.data(), c.data(), 0, 3, 2); // l < 1: nothing
    EXPECT_EQ(c, (Matrix{9, 9}));
    mathMatxMult(a.data(), b.data(), c.data(), 1, 0, 2); // empty inner: zeros
    EXPECT_EQ(c, (Matrix{0, 0}));
}

TEST(MatxElementwise, TransposeScaleSumAndCopy) {
    std::mt19937 gen(32);
    const Matrix a = randomMatrix(gen, 3, 4), b = randomMatrix(gen, 3, 4);
    EXPECT_EQ(trans(trans(a, 3, 4), 4, 3), a);
    EXPECT_EQ(trans(a, 3, 4)[1 * 3 + 2], a[2 * 4 + 1]);
    Matrix s(12), d(12), c(12);
    mathMatxPlus(3, 4, a.data(), b.data(), s.data());
    mathMatxMinus(3, 4, s.data(), b.data(), d.data());
    EXPECT_LT(maxDiff(d, a), 1e-15);
    mathMatxScalar(3, 4, a.data(), -2.0, c.data());
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(c[i], -2.0 * a[i]);
    mathMatxCopy(a.data(), c.data(), 3, 4);
    EXPECT_EQ(c, a);
    Matrix id(9, 7.0);
    mathUnitMatx(3, id.data());
    EXPECT_EQ(id, (Matrix{1, 0, 0, 0, 1, 0, 0, 0, 1}));
}

TEST(ElemnTrans, RowOperations) {
    Matrix m = {1, 2, 3, 4, 5, 6}; // 3 rows of 2
    mathElemnTrans_5(2, 0, 2, m.data(), -5.0);
    EXPECT_EQ(m, (Matrix{1, 2, 3, 4, 0, -4}));
    mathElemnTrans_6(2, 0, 1, m.data());
    EXPECT_EQ(m, (Matrix{3, 4, 1, 2, 0, -4}));
    mathElemnTrans_6(2, 2, 2, m.data());
    EXPECT_EQ(m, (Matrix{3, 4, 1, 2, 0, -4}));
    mathElemnTrans_4(2, 1, m.data(), 0.5);
    EXPECT_EQ(m, (Matrix{3, 4, 0.5, 1, 0, -4}));
    double a[3] = {1, 2, 3}, b[3] = {10, 20, 30};
    mathElemnTrans_2(3, a, b, 2.0);
    EXPECT_EQ(b[2], 36.0);
    mathElemnTrans_3(3, a, b);
    EXPECT_EQ(a[0], 12.0);
    EXPECT_EQ(b[0], 1.0);
}

TEST(GaussEliminate, SingleUnknownDoesOnlyTheLastPivotTest) {
    double a[1] = {0.5}, b[1] = {3.0};
    ASSERT_EQ(mathGaussEliminate(a, b, 1), 1);
    EXPECT_EQ(b[0], 6.0);
    double tiny[1] = {1e-17}, c[1] = {3.0};
    EXPECT_EQ(mathGaussEliminate(tiny, c, 1), 0);
    EXPECT_EQ(c[0], 3.0);
}

TEST(GaussEliminate, RankTestIsThePrecisionNotTheScale) {
    double z[4] = {0, 0, 0, 0}, bz[2] = {1, 1};
    EXPECT_EQ(mathGaussEliminate(z, bz, 2), 0);
    // 1 + 1e-17 == 1 is refused, 1 + 1e-15 is not, even though both
    // matrices are perfectly conditioned multiples of the identity.
    double small[4] = {1e-17, 0, 0, 1e-17}, bs[2] = {1, 1};
    EXPECT_EQ(mathGaussEliminate(small, bs, 2), 0);
    double ok[4] = {1e-15, 0, 0, 1e-15}, bo[2] = {1, 2};
    ASSERT_EQ(mathGaussEliminate(ok, bo, 2), 1);
    EXPECT_NEAR(bo[0], 1e15, 1.0);
    EXPECT_NEAR(bo[1], 2e15, 2.0);
}

TEST(GaussEliminate, FirstLargestPivotInRowMajorOrderWins) {
    // |-2| at (0, 1) ties with |2| at (1, 0): the column exchange is taken,
    // which leaves -0.5 and 2.5 behind (the row exchange would leave 0.5 and
    // -2.5).
    double a[4] = {1, -2, 2, 1}, b[2] = {-3, 4}; // x = (1, 2)
    ASSERT_EQ(mathGaussEliminate(a, b, 2), 1);
    EXPECT_EQ(a[1], -0.5);
    EXPECT_EQ(a[3], 2.5);
    EXPECT_NEAR(b[0], 1.0, 1e-15);
    EXPECT_NEAR(b[1], 2.0, 1e-15);
}

TEST(SolLineEqua, RandomSystemsSatisfyTheEquations) {
    std::mt19937 gen(33);
    for (int n = 1; n <= 24; ++n) {
        Matrix a = randomMatrix(gen, n, n);
        for (int i = 0; i < n; ++i)
            a[i * n + i] += 2.0; // well conditioned, not symmetric
        const Matrix b = randomMatrix(gen, n, 1);
        const Matrix a0 = a, b0 = b;
        Matrix x(n, 0.0);
        ASSERT_EQ(mathSolLineEqua(n, a.data(), b.data(), x.data()), 1);
        EXPECT_EQ(a, a0);
        EXPECT_EQ(b, b0);
        const Matrix ax = mult(a, x, n, n, 1);
        EXPECT_LT(maxDiff(ax, b), 1e-10 * (maxAbs(a) * maxAbs(x) + maxAbs(b))) << n;
    }
}

TEST(SolLineEqua, SingularSystemsGetTheMinimumNormLeastSquaresAnswer) {
    const double a[4] = {1, 1, 1, 1};
    double x[2];
    const double consistent[2] = {2, 2};
    ASSERT_EQ(mathSolLineEqua(2, a, consistent, x), 1);
    EXPECT_NEAR(x[0], 1.0, 1e-14);
    EXPECT_NEAR(x[1], 1.0, 1e-14);
    const double inconsistent[2] = {1, 3}; // best fit x0 + x1 = 2
    ASSERT_EQ(mathSolLineEqua(2, a, inconsistent, x), 1);
    EXPECT_NEAR(x[0], 1.0, 1e-14);
    EXPECT_NEAR(x[1], 1.0, 1e-14);
}

TEST(SolLineEqua, TinyScaleFallsBackToAZeroInverse) {
    // Refused by the rank test and, with squared column lengths below 1e-20,
    // every column of the fallback counts as dependent: x comes back zero.
    const double a[4] = {1e-17, 0, 0, 1e-17}, b[2] = {1, 1};
    double x[2] = {5, 5};
    ASSERT_EQ(mathSolLineEqua(2, a, b, x), 1);
    EXPECT_EQ(x[0], 0.0);
    EXPECT_EQ(x[1], 0.0);
}

// A G A = A, G A G = G, and A G, G A symmetric.
void expectPenrose(const Matrix &a, const Matrix &g, int r, int c, double tol) {
    const Matrix ag = mult(a, g, r, c, r), ga = mult(g, a, c, r, c);
    EXPECT_LT(maxDiff(mult(ag, a, r, r, c), a), tol * (1.0 + maxAbs(a)));
    EXPECT_LT(maxDiff(mult(ga, g, c, c, r), g), tol * (1.0 + maxAbs(g)));
    EXPECT_LT(maxDiff(ag, trans(ag, r, r)), tol);
    EXPECT_LT(maxDiff(ga, trans(ga, c, c)), tol);
}

TEST(MatxInvs, RankDeficientMatricesSatisfyThePenroseConditions) {
    std::mt19937 gen(34);
    for (int trial = 0; trial < 60; ++trial) {
        const int r = 2 + trial % 7, c = 2 + (trial / 7) % 6;
        const int k = 1 + trial % std::min(r, c); // rank
        const Matrix a = mult(randomMatrix(gen, r, k), randomMatrix(gen, k, c), r, k, c);
        Matrix g(c * r, 99.0);
        ASSERT_EQ(mathMatxInvs(r, c, a.data(), g.data()), 1);
        expectPenrose(a, g, r, c, 1e-9);
    }
}

TEST(MatxInvs, FullRankSquareGivesTheInverse) {
    std::mt19937 gen(35);
    Matrix a = randomMatrix(gen, 5, 5);
    for (int i = 0; i < 5; ++i)
        a[i * 5 + i] += 3.0;
    Matrix g(25), id(25);
    ASSERT_EQ(mathMatxInvs(5, 5, a.data(), g.data()), 1);
    mathUnitMatx(5, id.data());
    EXPECT_LT(maxDiff(mult(a, g, 5, 5, 5), id), 1e-12);
}

TEST(MatxInvs, ZeroColumnGivesAZeroRow) {
    const double a[3] = {0, 0, 0};
    double g[3] = {7, 7, 7};
    ASSERT_EQ(mathMatxInvs(3, 1, a, g), 1);
    EXPECT_EQ(g[0], 0.0);
    EXPECT_EQ(g[1], 0.0);
    EXPECT_EQ(g[2], 0.0);
    const double z[6] = {0, 0, 0, 0, 0, 0};
    double gz[6] = {7, 7, 7, 7, 7, 7};
    ASSERT_EQ(mathMatxInvs(2, 3, z, gz), 1);
    EXPECT_EQ(maxAbs(Matrix(gz, gz + 6)), 0.0);
}

TEST(MatxInvsByET, InverseOfRandomMatricesAndFirstUsableRow) {
    std::mt19937 gen(36);
    for (int n = 1; n <= 10; ++n) {
        const Matrix a = randomMatrix(gen, n, n);
        Matrix work = a, inv(n * n), id(n * n);
        ASSERT_EQ(mathMatxInvsByET(n, work.data(), inv.data()), 1);
        mathUnitMatx(n, id.data());
        EXPECT_LT(maxDiff(mult(a, inv, n, n, n), id), 1e-9 * (1.0 + maxAbs(inv)));
    }
    // An entry of 1e-21 is not usable: the rows are exchanged.
    double a[4] = {1e-21, 1, 1, 1}, inv[4];
    ASSERT_EQ(mathMatxInvsByET(2, a, inv), 1);
    EXPECT_NEAR(inv[0], -1.0, 1e-15);
    EXPECT_NEAR(inv[1], 1.0, 1e-15);
    EXPECT_NEAR(inv[2], 1.0, 1e-15);
    EXPECT_NEAR(inv[3], 0.0, 1e-15);
}

TEST(MatxInvsByET, SingularMatrixReturnsZero) {
    double a[9] = {1, 2, 3, 2, 4, 6, 1, 0, 1}, inv[9];
    EXPECT_EQ(mathMatxInvsByET(3, a, inv), 0);
    double z[4] = {0, 0, 0, 0}, iz[4];
    EXPECT_EQ(mathMatxInvsByET(2, z, iz), 0);
    EXPECT_EQ(iz[0], 1.0); // the identity it started from
    EXPECT_EQ(iz[1], 0.0);
}

} // namespace
