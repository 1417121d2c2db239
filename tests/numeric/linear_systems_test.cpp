#include <korvane/numeric.h>

#include "support/expect.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#ifdef KORVANE_HAVE_EIGEN
#include <Eigen/Dense>
using RowMatrix = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
using EigenMatrix = Eigen::Map<const RowMatrix>;
#endif

namespace {

using korvane_test::exactly;
using korvane_test::near;
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

double maxDiff(const Matrix &a, const Matrix &b) {
    double v = 0.0;
    for (size_t i = 0; i < a.size(); ++i)
        v = std::max(v, std::fabs(a[i] - b[i]));
    return v;
}

TEST(MatrixBasics, RowOperationsAndEmptyDimensions) {
    double m[6] = {1, 2, 3, 4, 5, 6}, out[2] = {7, 7};
    mathElemnTrans_4(3, 1, m, 1.0); // scaling by 1 changes nothing
    mathElemnTrans_6(3, 1, 1, m);   // nor does swapping a row with itself
    EXPECT_TRUE(exactly(m, {1, 2, 3, 4, 5, 6}));
    mathElemnTrans_6(3, 0, 1, m);
    EXPECT_TRUE(exactly(m, {4, 5, 6, 1, 2, 3}));
    mathMatxScalar(-1, -2, m, 2.0, out); // two negative dimensions: still empty
    mathMatxPlus(0, 2, m, m, out);
    mathMatxCopy(m, out, -2, -1);
    EXPECT_TRUE(exactly(out, {7, 7}));
    EXPECT_EQ(mathCalDeterm33(1, 2, 3, 0, 1, 4, 5, 6, 0), 1.0);
}

TEST(GaussEliminate, RankTestIsThePrecisionNotTheScaleAndTiesTakeTheColumn) {
    // 1 + 1e-17 == 1 is refused, 1 + 1e-15 is not, though both are perfectly conditioned.
    double small[4] = {1e-17, 0, 0, 1e-17}, ok[4] = {1e-15, 0, 0, 1e-15}, bs[2] = {1, 1},
           bo[2] = {1, 2};
    EXPECT_EQ(mathGaussEliminate(small, bs, 2), 0);
    EXPECT_TRUE(mathGaussEliminate(ok, bo, 2) == 1 && std::fabs(bo[1] - 2e15) <= 2.0);
    // |-2| at (0, 1) ties with |2| at (1, 0): the first in row-major order, a
    // column exchange, leaves -0.5 and 2.5; the row exchange would leave 0.5 and -2.5.
    double a[4] = {1, -2, 2, 1}, b[2] = {-3, 4}; // x = (1, 2)
    ASSERT_EQ(mathGaussEliminate(a, b, 2), 1);
    EXPECT_TRUE(a[1] == -0.5 && a[3] == 2.5 && exactly(b, {1, 2}));
}

// Every square solver on the same well-conditioned systems, small orders often
// and then up to 43; with Eigen installed, also against its full-pivoting LU.
TEST(SquareSystems, RandomSystemsAreSolvedAndInvertedInputsUnchanged) {
    std::mt19937 gen(33);
    double v[3];
    for (int trial = 0; trial < 80; ++trial) {
        const int n = trial < 40 ? 1 + trial % 4 : trial - 36;
        const Matrix a = randomMatrix(gen, n, n, 2.0), b = randomMatrix(gen, n, 1), a0 = a, b0 = b;
        Matrix x(n), work = a, inv(n * n), id(n * n);
        ASSERT_EQ(mathSolLineEqua(n, a.data(), b.data(), x.data()), 1);
        EXPECT_TRUE(a == a0 && b == b0);
        EXPECT_LT(maxDiff(mult(a, x, n, n, 1), b), 1e-12) << n;
        ASSERT_EQ(mathMatxInvsByET(n, work.data(), inv.data()), 1);
        mathUnitMatx(n, id.data());
        EXPECT_LT(maxDiff(mult(a, inv, n, n, n), id), 1e-9) << n;
        // The formulas of two and three unknowns agree.
        EXPECT_TRUE(n != 2 ||
                    (mathSolLineEqua22(a[0], a[1], a[2], a[3], b[0], b[1], 1e-12, v, v + 1) &&
                     maxDiff(Matrix(v, v + 2), x) < 1e-13));
        EXPECT_TRUE(n != 3 || (mathSolLineEqua33(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7],
                                                 a[8], b[0], b[1], b[2], 1e-12, v, v + 1, v + 2) &&
                               maxDiff(Matrix(v, v + 3), x) < 1e-13));
#ifdef KORVANE_HAVE_EIGEN
        const Eigen::VectorXd want =
            EigenMatrix(a.data(), n, n).fullPivLu().solve(EigenMatrix(b.data(), n, 1));
        EXPECT_LT(maxDiff(x, Matrix(want.data(), want.data() + n)), 1e-11 * (1.0 + want.norm()));
#endif
    }
}

TEST(SolLineEqua, SingularSystemsGetTheMinimumNormLeastSquaresAnswer) {
    const double a[4] = {1, 1, 1, 1}, consistent[2] = {2, 2}, inconsistent[2] = {1, 3};
    double x[2];
    for (const double *b : {consistent, inconsistent})
        EXPECT_TRUE(mathSolLineEqua(2, a, b, x) == 1 && near(x, {1, 1}, 1e-14));
    // Refused for its scale; in the fallback every column is "dependent"
    // (squared length below 1e-20), so x comes back zero.
    const double tiny[4] = {1e-17, 0, 0, 1e-17};
    EXPECT_TRUE(mathSolLineEqua(2, tiny, consistent, x) == 1 && exactly(x, {0, 0}));
}

TEST(SolLineEqua, CramerRefusesBelowTheToleranceOutputsUntouched) {
    double x = 7.0, y = 7.0, v[3] = {7, 7, 7};
    // det = 1e-3: refused below tol with the outputs untouched, accepted at it.
    EXPECT_TRUE(mathSolLineEqua22(1, 0, 0, 1e-3, 1, 1, 2e-3, &x, &y) == 0 && x == 7.0 && y == 7.0);
    EXPECT_TRUE(mathSolLineEqua22(1, 0, 0, 1e-3, 1, 1, 1e-3, &x, &y) == 1 && x == 1.0 &&
                std::fabs(y - 1e3) < 1e-12);
    EXPECT_EQ(mathSolLineEqua33(1, 2, 3, 2, 4, 6, 0, 1, 1, 1, 2, 3, 1e-12, v, v + 1, v + 2), 0);
    EXPECT_TRUE(exactly(v, {7, 7, 7}));
}

TEST(MatxInvs, RankDeficientMatricesSatisfyThePenroseConditions) {
    std::mt19937 gen(34);
    const auto symmetric = [](const Matrix &m, int n) {
        Matrix t(n * n);
        mathMatxTrans(n, n, m.data(), t.data());
        return maxDiff(m, t) < 1e-9;
    };
    for (int trial = 0; trial < 60; ++trial) {
        const int r = 2 + trial % 7, c = 2 + (trial / 7) % 6, k = 1 + trial % std::min(r, c);
        const Matrix a = mult(randomMatrix(gen, r, k), randomMatrix(gen, k, c), r, k, c);
        Matrix g(c * r, 99.0);
        ASSERT_EQ(mathMatxInvs(r, c, a.data(), g.data()), 1);
        const Matrix ag = mult(a, g, r, c, r), ga = mult(g, a, c, r, c);
        EXPECT_LT(maxDiff(mult(ag, a, r, r, c), a), 1e-9);
        EXPECT_LT(maxDiff(mult(ga, g, c, c, r), g), 1e-9 * (1.0 + maxDiff(g, Matrix(c * r))));
        EXPECT_TRUE(symmetric(ag, r) && symmetric(ga, c));
#ifdef KORVANE_HAVE_EIGEN // also against the pseudo-inverse by Eigen
        const RowMatrix want =
            EigenMatrix(a.data(), r, c).completeOrthogonalDecomposition().pseudoInverse();
        EXPECT_LT(maxDiff(g, Matrix(want.data(), want.data() + c * r)), 1e-9 * (1.0 + want.norm()));
#endif
    }
    double zero[3] = {0, 0, 0}, g[3] = {7, 7, 7};
    EXPECT_TRUE(mathMatxInvs(3, 1, zero, g) == 1 && exactly(g, {0, 0, 0}));
}

TEST(MatxInvsByET, TakesTheFirstUsableRowOrReportsSingular) {
    double a[4] = {1e-21, 1, 1, 1}, inv[4]; // 1e-21 is not usable: exchange
    EXPECT_TRUE(mathMatxInvsByET(2, a, inv) == 1 && near(inv, {-1, 1, 1, 0}, 1e-15));
    double s[9] = {1, 2, 3, 2, 4, 6, 1, 0, 1}, is[9];
    EXPECT_EQ(mathMatxInvsByET(3, s, is), 0);
}

TEST(SolHomoEqua22, UnitSolutionPerpendicularToTheLongerRow) {
    double r[2] = {7.0, 7.0};
    EXPECT_TRUE(mathSolHomoEqua22(1e-11, 0, 0, 1e-11, 1e-10, r) == 100 && exactly(r, {0, 0}));
    EXPECT_TRUE(mathSolHomoEqua22(1, 2, 3, 6, 1e-12, r) == 1 && // null direction (-2, 1)
                near(r, {-2.0 / std::sqrt(5.0), 1.0 / std::sqrt(5.0)}, 1e-15));
    // Equal lengths take the second row; the first then leaves a residual.
    EXPECT_TRUE(mathSolHomoEqua22(1, 0, 0, 1, 1e-12, r) == 0 && exactly(r, {-1, 0}));
    EXPECT_EQ(mathSolHomoEqua22(0.5, 0, 0, 1, 0.5, r), 1); // residual == tol passes
}

// The shortest of the equally good answers when the columns are dependent.
TEST(MinimumNorm, DecVecAndTheLeastSquaresOfThreeEquations) {
    double a, b, c, x = 7.0, s[2];
    const double e1[3] = {1, 0, 0}, e2[3] = {0, 1, 0}, e3[3] = {1, 1, 0}, w[3] = {2, 4, 0};
    // The basis vectors are the columns; (a, b, c) is orthogonal to the null space (1, 1, -1).
    ASSERT_EQ(mathDecVec(w, e1, e2, e3, &a, &b, &c), 1);
    EXPECT_TRUE(std::fabs(a + c - 2.0) < 1e-14 && std::fabs(b + c - 4.0) < 1e-14 &&
                std::fabs(a + b - c) < 1e-14);
    const double zero[3] = {0, 0, 0}, v[3] = {1, 2, 2}, twice[3] = {2, 4, 4}, c3[3] = {3, 3, 3};
    const double minus[3] = {-2, -4, -4};
    EXPECT_TRUE(mathSolLeastSquare31(zero, c3, &x) == 1 && x == 0.0);
    EXPECT_TRUE(mathSolLeastSquare31(v, c3, &x) == 1 && x == 15.0 / 9.0);
    // 2 x0 + x1 = 1 at least length: (2, 1) / 5; the sign follows a.
    EXPECT_TRUE(mathSolLeastSquare32(twice, v, v, s) == 1 && near(s, {0.4, 0.2}, 1e-15));
    EXPECT_TRUE(mathSolLeastSquare32(minus, v, v, s) == 1 && near(s, {-0.4, 0.2}, 1e-15));
    EXPECT_TRUE(mathSolLeastSquare32(zero, zero, v, s) == 1 && exactly(s, {0, 0}));
}

TEST(SolLeastSquareLin, ConnectingSegmentIsPerpendicularOrFeetOfTheMidpoint) {
    std::mt19937 gen(43);
    double r[2];
    for (int trial = 0; trial < 100; ++trial) {
        const Matrix p = randomMatrix(gen, 4, 3); // p0, d0, p1, d1
        ASSERT_EQ(mathSolLeastSquareLin(&p[0], &p[3], &p[6], &p[9], r), 1);
        // Each row of p against the connecting segment (p0 + r0 d0) - (p1 + r1 d1).
        const Matrix w = mult(p, mult({1, r[0], -1, -r[1]}, p, 1, 4, 3), 4, 3, 1);
        EXPECT_TRUE(std::fabs(w[1]) < 1e-11 && std::fabs(w[3]) < 1e-11);
    }
    const double o[3] = {0, 0, 0}, d[3] = {1, 0, 0}, q[3] = {4, 1, 0};
    EXPECT_TRUE(mathSolLeastSquareLin(o, d, q, d, r) == 1 && exactly(r, {2, -2}));
}

// The comparisons against Eigen run inside the oracle loops above; say so
// where Eigen is not installed.
TEST(EigenComparison, SkippedWithoutEigen) {
#ifndef KORVANE_HAVE_EIGEN
    GTEST_SKIP() << "Eigen not installed: no differential comparison";
#endif
}

} // namespace
