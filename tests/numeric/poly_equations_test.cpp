#include <korvane/numeric.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace {

// Descending coefficients of prod (x - roots[i]).
std::vector<double> fromRoots(const std::vector<double> &roots) {
    std::vector<double> c{1.0};
    for (double x0 : roots) {
        c.push_back(0.0);
        for (size_t i = c.size() - 1; i > 0; --i)
            c[i] -= x0 * c[i - 1];
    }
    return c;
}

// Horner, as an evaluator independent of mathEvalPoly.
double horner(const std::vector<double> &c, double x) {
    double v = 0.0;
    for (double ci : c)
        v = v * x + ci;
    return v;
}

// Distinct roots in [-4, 4], at least 0.5 apart.
std::vector<double> separatedRoots(std::mt19937 &gen, int n) {
    std::uniform_real_distribution<double> u(-4.0, 4.0);
    std::vector<double> roots;
    while (static_cast<int>(roots.size()) < n) {
        const double x = u(gen);
        bool ok = true;
        for (double y : roots)
            ok = ok && std::fabs(x - y) >= 0.5;
        if (ok)
            roots.push_back(x);
    }
    return roots;
}

// Every expected root is matched by a reported one and vice versa.
void expectSameRoots(std::vector<double> want, const double *got, int n, double tol) {
    ASSERT_EQ(static_cast<int>(want.size()), n);
    std::vector<double> have(got, got + n);
    std::sort(want.begin(), want.end());
    std::sort(have.begin(), have.end());
    for (int i = 0; i < n; ++i)
        EXPECT_NEAR(have[i], want[i], tol);
}

TEST(SolQuadEqua, IdentityAndContradictionKeepTheOnes) {
    double r[2] = {7.0, 7.0};
    EXPECT_EQ(mathSolQuadEqua(0.0, 0.0, 1e-12, 1e-10, r), 100);
    EXPECT_EQ(r[0], 1.0);
    EXPECT_EQ(r[1], 1.0);
    r[0] = r[1] = 7.0;
    EXPECT_EQ(mathSolQuadEqua(0.0, 0.0, 1.0, 0.5, r), 0);
    EXPECT_EQ(r[0], 1.0);
    EXPECT_EQ(r[1], 1.0);
    EXPECT_EQ(mathSolQuadEqua(0.0, 1e-21, 0.25, 0.5, r), 100); // |b| not above 1e-20
}

TEST(SolQuadEqua, AllZeroCoefficientsAreNotNegligibleAgainstZero) {
    // The negligibility test is strict: 0 * 1e-20 > 0 fails, so the
    // quadratic branch divides by a == 0.
    double r[2];
    EXPECT_EQ(mathSolQuadEqua(0.0, 0.0, 0.0, 1e-10, r), 2);
    EXPECT_TRUE(std::isnan(r[0]));
    EXPECT_TRUE(std::isnan(r[1]));
}

TEST(SolQuadEqua, NegligibleSquareTermIsLinear) {
    double r[2];
    EXPECT_EQ(mathSolQuadEqua(1e-30, 1.0, 1.0, 1e-10, r), 1);
    EXPECT_EQ(r[0], -1.0);
    EXPECT_EQ(r[1], -1.0);
}

TEST(SolQuadEqua, DoubleRootCountsOnceStandsTwice) {
    double r[2];
    EXPECT_EQ(mathSolQuadEqua(1.0, -2.0, 1.0, 1e-12, r), 1);
    EXPECT_EQ(r[0], 1.0);
    EXPECT_EQ(r[1], 1.0);
}

TEST(SolQuadEqua, SignOfLeadingTermClosesTheBoundsOnOppositeSides) {
    double r[2];
    // d == -tol: two roots upward, one downward.
    EXPECT_EQ(mathSolQuadEqua(1.0, 0.0, -0.25, 0.25, r), 2);
    EXPECT_EQ(r[0], 0.5);
    EXPECT_EQ(r[1], -0.5);
    EXPECT_EQ(mathSolQuadEqua(-1.0, 0.0, -0.25, 0.25, r), 1);
    EXPECT_EQ(r[0], 0.0);
    // d == tol: one root upward, two downward.
    EXPECT_EQ(mathSolQuadEqua(1.0, 0.0, 0.25, 0.25, r), 1);
    EXPECT_EQ(mathSolQuadEqua(-1.0, 0.0, 0.25, 0.25, r), 2);
    EXPECT_EQ(r[0], -0.5);
    EXPECT_EQ(r[1], 0.5);
    // Beyond the bounds: no root, the vertex in both slots.
    EXPECT_EQ(mathSolQuadEqua(2.0, -4.0, 3.0, 0.5, r), 0);
    EXPECT_EQ(r[0], 1.0);
    EXPECT_EQ(r[1], 1.0);
}

TEST(SolQuadEqua, RecoversSeparatedRootsWithoutCancellation) {
    std::mt19937 gen(11);
    double r[2];
    for (int trial = 0; trial < 200; ++trial) {
        const std::vector<double> roots = separatedRoots(gen, 2);
        const double s = trial % 2 ? -3.0 : 0.5; // either sign of a
        const std::vector<double> c = fromRoots(roots);
        ASSERT_EQ(mathSolQuadEqua(s * c[0], s * c[1], s * c[2], 1e-12, r), 2);
        expectSameRoots(roots, r, 2, 1e-9);
    }
    // Roots 1e8 and 1e-8: the small one survives in full precision.
    ASSERT_EQ(mathSolQuadEqua(1.0, -(1e8 + 1e-8), 1.0, 0.0, r), 2);
    EXPECT_NEAR(std::min(r[0], r[1]), 1e-8, 1e-22);
}

TEST(SolTriaEqua, ThreeRealRootsByTheTrigonometricForm) {
    std::mt19937 gen(12);
    double r[3];
    for (int trial = 0; trial < 200; ++trial) {
        const std::vector<double> roots = separatedRoots(gen, 3);
        std::vector<double> c = fromRoots(roots);
        for (double &ci : c)
            ci *= -2.5;
        ASSERT_EQ(mathSolTriaEqua(c.data(), 1e-10, r), 3);
        expectSameRoots(roots, r, 3, 1e-9);
    }
}

TEST(SolTriaEqua, OneRealRootByCardano) {
    std::mt19937 gen(13);
    std::uniform_real_distribution<double> u(-3.0, 3.0);
    double r[3] = {0.0, 42.0, 43.0};
    for (int trial = 0; trial < 200; ++trial) {
        // (x - x0)(x^2 + p x + q) with p^2 < 4 q
        const double x0 = u(gen), p = u(gen), q = p * p * 0.25 + 0.5 + std::fabs(u(gen));
        const double c[4] = {1.0, p - x0, q - x0 * p, -x0 * q};
        ASSERT_EQ(mathSolTriaEqua(c, 1e-10, r), 1);
        EXPECT_NEAR(r[0], x0, 1e-9);
    }
    EXPECT_EQ(r[1], 42.0); // only the real root is written
    EXPECT_EQ(r[2], 43.0);
}

TEST(SolTriaEqua, NegligibleCubicTermHandsOverToTheQuadratic) {
    const double c[4] = {1e-25, 1.0, -3.0, 2.0};
    double r[3];
    ASSERT_EQ(mathSolTriaEqua(c, 1e-10, r), 2);
    expectSameRoots({1.0, 2.0}, r, 2, 1e-15);
}

TEST(SolTriaEqua, PureCubeReportsThreeNonFiniteValues) {
    const double c[4] = {1.0, 0.0, 0.0, 0.0};
    double r[3];
    EXPECT_EQ(mathSolTriaEqua(c, 1e-10, r), 3);
    EXPECT_FALSE(std::isfinite(r[0]));
    EXPECT_FALSE(std::isfinite(r[1]));
    EXPECT_FALSE(std::isfinite(r[2]));
}

TEST(SolQuarEqua, RecoversFourSeparatedRoots) {
    std::mt19937 gen(14);
    double r[4];
    for (int trial = 0; trial < 200; ++trial) {
        const std::vector<double> roots = separatedRoots(gen, 4);
        std::vector<double> c = fromRoots(roots);
        for (double &ci : c)
            ci *= 0.75;
        ASSERT_EQ(mathSolQuarEqua(c.data(), 1e-10, r), 4);
        expectSameRoots(roots, r, 4, 1e-9);
    }
}

TEST(SolQuarEqua, RecoversTwoRealRootsBesideAComplexPair) {
    std::mt19937 gen(15);
    std::uniform_real_distribution<double> u(-2.0, 2.0);
    double r[4];
    for (int trial = 0; trial < 200; ++trial) {
        const std::vector<double> roots = separatedRoots(gen, 2);
        const double p = u(gen), q = p * p * 0.25 + 0.5 + std::fabs(u(gen));
        const std::vector<double> a = fromRoots(roots);
        const double c[5] = {a[0], a[1] + p * a[0], a[2] + p * a[1] + q * a[0], p * a[2] + q * a[1],
                             q * a[2]};
        ASSERT_EQ(mathSolQuarEqua(c, 1e-10, r), 2);
        expectSameRoots(roots, r, 2, 1e-9);
    }
}

TEST(SolQuarEqua, KnownBlindSpots) {
    double r[4];
    const double x4[5] = {1.0, 0.0, 0.0, 0.0, 0.0};
    EXPECT_EQ(mathSolQuarEqua(x4, 1e-10, r), 0);
    // x^4 - 1: the factors built from the resolvent are not the true ones.
    const double x4m1[5] = {1.0, 0.0, 0.0, 0.0, -1.0};
    EXPECT_EQ(mathSolQuarEqua(x4m1, 1e-20, r), 0);
    const int k = mathSolQuarEqua(x4m1, 1e-10, r);
    for (int i = 0; i < k; ++i)
        EXPECT_LT(std::fabs(r[i]), 1e-6);
    // A double root of each factor counts once.
    const std::vector<double> c = fromRoots({1.0, 1.0, 2.0, 2.0});
    ASSERT_EQ(mathSolQuarEqua(c.data(), 1e-10, r), 2);
    expectSameRoots({1.0, 2.0}, r, 2, 1e-12);
}

TEST(SolQuarEqua, NegligibleQuarticTermHandsOverToTheCubic) {
    const std::vector<double> c3 = fromRoots({-1.0, 0.5, 3.0});
    const double c[5] = {1e-30, c3[0], c3[1], c3[2], c3[3]};
    double r[4];
    ASSERT_EQ(mathSolQuarEqua(c, 1e-10, r), 3);
    expectSameRoots({-1.0, 0.5, 3.0}, r, 3, 1e-12);
}

TEST(SolUniNEqua, DegreeOutsideOneToFourReadsNothing) {
    double r[5] = {9.0};
    EXPECT_EQ(mathSolUniNEqua(5, nullptr, 0.0, 1.0, 1e-10, r), 0);
    EXPECT_EQ(mathSolUniNEqua(0, nullptr, 0.0, 1.0, 1e-10, r), 0);
    EXPECT_EQ(r[0], 9.0);
}

TEST(SolUniNEqua, RootsAreAscendingDistinctAndInside) {
    std::mt19937 gen(16);
    std::uniform_real_distribution<double> u(-4.0, 4.0);
    double r[4];
    for (int trial = 0; trial < 300; ++trial) {
        const int n = 1 + trial % 4;
        const std::vector<double> roots = separatedRoots(gen, n);
        const std::vector<double> c = fromRoots(roots);
        double lo = u(gen), hi = u(gen);
        if (lo > hi)
            std::swap(lo, hi);
        const int k = mathSolUniNEqua(n, c.data(), lo, hi, 1e-12, r);
        std::vector<double> inside;
        for (double x : roots) {
            if (x > lo && x < hi)
                inside.push_back(x);
        }
        std::sort(inside.begin(), inside.end());
        ASSERT_EQ(k, static_cast<int>(inside.size()));
        for (int i = 0; i < k; ++i) {
            EXPECT_NEAR(r[i], inside[i], 1e-9);
            if (i > 0) {
                EXPECT_GT(r[i] - r[i - 1], 1e-10);
            }
        }
    }
}

TEST(SolUniNEqua, RootJustOutsideIsKeptUnclamped) {
    const double justOut = 1.0 + 5e-11;
    const double c[2] = {1.0, -justOut};
    double r[1];
    ASSERT_EQ(mathSolUniNEqua(1, c, 0.0, 1.0, 1e-14, r), 1);
    EXPECT_EQ(r[0], justOut);
    const double farOut[2] = {1.0, -(1.0 + 2e-10)};
    EXPECT_EQ(mathSolUniNEqua(1, farOut, 0.0, 1.0, 1e-14, r), 0);
}

TEST(SolUniNEqua, FlatPairsAreTestedAtTheLowEndFirst) {
    const double c[2] = {1.0, 0.0}; // p(x) = x: flat within tol near 0
    double r[1];
    // Low end: lo and the root 0 are one root, reported by the lower value.
    ASSERT_EQ(mathSolUniNEqua(1, c, -1e-5, 1.0, 1e-3, r), 1);
    EXPECT_EQ(r[0], -1e-5);
    // Two values are always the low pair: the root stands for hi.
    ASSERT_EQ(mathSolUniNEqua(1, c, -1.0, 1e-5, 1e-3, r), 1);
    EXPECT_EQ(r[0], 0.0);
    // Three: the low pair leaves lo, then the high pair keeps hi.
    ASSERT_EQ(mathSolUniNEqua(1, c, -1e-5, 1e-5, 1e-3, r), 1);
    EXPECT_EQ(r[0], 1e-5);
    // An end alone counts as a root when |p| < tol there.
    const double c2[2] = {1.0, -2.0}; // root 2, outside [0, 1.9999]
    ASSERT_EQ(mathSolUniNEqua(1, c2, 0.0, 1.9999, 1e-3, r), 1);
    EXPECT_EQ(r[0], 1.9999);
}

TEST(SolUniNEqua, IdentityIsReportedAtOnce) {
    const double lin[2] = {0.0, 1e-12};
    double r[2];
    EXPECT_EQ(mathSolUniNEqua(1, lin, 0.0, 1.0, 1e-10, r), 100);
    const double quad[3] = {0.0, 0.0, 1e-12};
    EXPECT_EQ(mathSolUniNEqua(2, quad, 0.0, 1.0, 1e-10, r), 100);
    // A degenerate line with a constant beyond tol has only the ends to offer.
    const double off[2] = {0.0, 1.0};
    EXPECT_EQ(mathSolUniNEqua(1, off, 0.0, 1.0, 1e-10, r), 0);
}

double square(double x) {
    return x * x;
}
double twice(double x) {
    return 2.0 * x;
}
double squarePlusOne(double x) {
    return x * x + 1.0;
}

TEST(SolUnivEqua, ConvergesStallsOrFailsOnAFlatDerivative) {
    double x = 0.0;
    EXPECT_EQ(mathSolUnivEqua(square, twice, 2.0, 1.0, 1e-14, &x), 1);
    EXPECT_NEAR(x, std::sqrt(2.0), 1e-14);
    // A stationary start: 800, unless the target is already met there.
    EXPECT_EQ(mathSolUnivEqua(square, twice, 2.0, 0.0, 1e-14, &x), 800);
    EXPECT_EQ(x, 0.0);
    EXPECT_EQ(mathSolUnivEqua(square, twice, 0.0, 0.0, 1e-14, &x), 1);
    // x^2 + 1 = 0 has no real root: 32 steps, then 0.
    EXPECT_EQ(mathSolUnivEqua(squarePlusOne, twice, 0.0, 0.3, 1e-14, &x), 0);
    EXPECT_TRUE(std::isfinite(x));
}

TEST(EvalPoly, DescendingCoefficientsAgreeWithHorner) {
    const std::vector<double> c = {2.0, -3.0, 0.5, 4.0};
    for (double x = -2.0; x <= 2.0; x += 0.25)
        EXPECT_NEAR(mathEvalPoly(3, c.data(), x), horner(c, x), 1e-12);
    EXPECT_EQ(mathEvalPoly(0, c.data(), 5.0), 2.0);
}

TEST(EvalRPoly, DenominatorBelowTheGuardGivesZeroWhateverItsSign) {
    const double p[2] = {0.0, 3.0};
    const double minusTwo[2] = {0.0, -2.0};
    EXPECT_EQ(mathEvalRPoly(1, p, minusTwo, 1.0), 0.0);
    const double atGuard[2] = {0.0, 1e-20};
    EXPECT_EQ(mathEvalRPoly(1, p, atGuard, 7.0), 3.0 / 1e-20);
    const double below[2] = {0.0, 0.99e-20};
    EXPECT_EQ(mathEvalRPoly(1, p, below, 7.0), 0.0);
    const double q[2] = {1.0, 1.0}; // (3) / (x + 1)
    EXPECT_EQ(mathEvalRPoly(1, p, q, 2.0), 1.0);
}

} // namespace
