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

// n roots in [-4, 4], ascending and at least 0.5 apart.
std::vector<double> separatedRoots(std::mt19937 &gen, int n) {
    std::uniform_real_distribution<double> u(-4.0, 4.0);
    std::vector<double> roots;
    while (static_cast<int>(roots.size()) < n) {
        const double x = u(gen);
        if (std::all_of(roots.begin(), roots.end(),
                        [x](double y) { return std::fabs(x - y) >= 0.5; }))
            roots.push_back(x);
    }
    std::sort(roots.begin(), roots.end());
    return roots;
}

void expectSameRoots(const std::vector<double> &want, double *got, int n) {
    ASSERT_EQ(static_cast<int>(want.size()), n);
    std::sort(got, got + n);
    for (int i = 0; i < n; ++i)
        EXPECT_NEAR(got[i], want[i], 1e-9);
}

TEST(SolQuadEqua, BoundsDegenerateFormsAndUnwrittenSlots) {
    double r[2];
    // d == -tol: two roots upward, one (the vertex) downward; d == tol: the reverse.
    EXPECT_EQ(mathSolQuadEqua(1.0, 0.0, -0.25, 0.25, r), 2);
    EXPECT_TRUE(r[0] == 0.5 && r[1] == -0.5);
    EXPECT_EQ(mathSolQuadEqua(-1.0, 0.0, -0.25, 0.25, r), 1);
    EXPECT_EQ(mathSolQuadEqua(1.0, 0.0, 0.25, 0.25, r), 1);
    EXPECT_EQ(mathSolQuadEqua(-1.0, 0.0, 0.25, 0.25, r), 2);
    // A double root counts once and stands twice; no root leaves the vertex.
    EXPECT_EQ(mathSolQuadEqua(1.0, -2.0, 1.0, 1e-12, r), 1);
    EXPECT_TRUE(r[0] == 1.0 && r[1] == 1.0);
    EXPECT_EQ(mathSolQuadEqua(2.0, -4.0, 3.0, 0.5, r), 0);
    EXPECT_TRUE(r[0] == 1.0 && r[1] == 1.0);
    EXPECT_EQ(mathSolQuadEqua(1e-30, 1.0, 1.0, 1e-10, r), 1); // linear
    EXPECT_TRUE(r[0] == -1.0 && r[1] == -1.0);
    EXPECT_EQ(mathSolQuadEqua(0.0, 1e-21, 1e-12, 1e-10, r), 100);
    EXPECT_TRUE(r[0] == 1.0 && r[1] == 1.0);
    EXPECT_EQ(mathSolQuadEqua(0.0, 0.0, 1.0, 0.5, r), 0);
    // Strict test: all zeros are not negligible against a == 0, which divides.
    EXPECT_EQ(mathSolQuadEqua(0.0, 0.0, 0.0, 1e-10, r), 2);
    EXPECT_TRUE(std::isnan(r[0]) && std::isnan(r[1]));
}

TEST(SolPolyEqua, RecoversSeparatedRealRootsAndSkipsComplexPairs) {
    std::mt19937 gen(11);
    std::uniform_real_distribution<double> u(-2.0, 2.0);
    double r[4];
    for (int trial = 0; trial < 300; ++trial) {
        const int n = 2 + trial % 3;
        const std::vector<double> roots = separatedRoots(gen, n);
        std::vector<double> c = fromRoots(roots);
        for (double &ci : c)
            ci *= trial % 2 ? -2.5 : 0.75;
        expectSameRoots(roots, r,
                        n == 2   ? mathSolQuadEqua(c[0], c[1], c[2], 1e-12, r)
                        : n == 3 ? mathSolTriaEqua(c.data(), 1e-10, r)
                                 : mathSolQuarEqua(c.data(), 1e-10, r));
        if (n != 2)
            continue;
        // Times x^2 + p x + q with p^2 < 4 q: no further real root.
        const double p = u(gen), q = p * p * 0.25 + 0.5 + std::fabs(u(gen)), x0 = roots[0];
        const double quartic[5] = {c[0], c[1] + p * c[0], c[2] + p * c[1] + q * c[0],
                                   p * c[2] + q * c[1], q * c[2]};
        expectSameRoots(roots, r, mathSolQuarEqua(quartic, 1e-10, r));
        const double cubic[4] = {1.0, p - x0, q - p * x0, -q * x0};
        expectSameRoots({x0}, r, mathSolTriaEqua(cubic, 1e-10, r));
    }
}

TEST(SolPolyEqua, KnownBlindSpotsOfTheClosedForms) {
    double r[4];
    const double x3[4] = {1.0, 0.0, 0.0, 0.0}; // repeated-root branch, 0 / 0
    EXPECT_EQ(mathSolTriaEqua(x3, 1e-10, r), 3);
    EXPECT_FALSE(std::isfinite(r[0]) || std::isfinite(r[1]) || std::isfinite(r[2]));
    const double x4[5] = {1.0, 0.0, 0.0, 0.0, 0.0};
    EXPECT_EQ(mathSolQuarEqua(x4, 1e-10, r), 0);
    // x^4 - 1: the factors from the resolvent are not the true ones.
    const double x4m1[5] = {1.0, 0.0, 0.0, 0.0, -1.0};
    EXPECT_EQ(mathSolQuarEqua(x4m1, 1e-20, r), 0);
    const int k = mathSolQuarEqua(x4m1, 1e-10, r);
    for (int i = 0; i < k; ++i)
        EXPECT_LT(std::fabs(r[i]), 1e-6);
    // A double root of each factor counts once.
    expectSameRoots({1.0, 2.0}, r, mathSolQuarEqua(fromRoots({1, 1, 2, 2}).data(), 1e-10, r));
}

TEST(SolUniNEqua, RootsAreAscendingDistinctAndInside) {
    std::mt19937 gen(16);
    std::uniform_real_distribution<double> u(-4.0, 4.0);
    double r[4];
    for (int trial = 0; trial < 300; ++trial) {
        const int n = 1 + trial % 4;
        const std::vector<double> roots = separatedRoots(gen, n);
        const double lo = u(gen), hi = lo + 4.0;
        std::vector<double> inside;
        std::copy_if(roots.begin(), roots.end(), std::back_inserter(inside),
                     [&](double x) { return x > lo && x < hi; });
        const int k = mathSolUniNEqua(n, fromRoots(roots).data(), lo, hi, 1e-12, r);
        ASSERT_EQ(k, static_cast<int>(inside.size()));
        for (int i = 0; i < k; ++i)
            EXPECT_NEAR(r[i], inside[i], 1e-9); // in order: ascending
    }
    EXPECT_EQ(mathSolUniNEqua(5, nullptr, 0.0, 1.0, 1e-10, r), 0); // c is not read
}

TEST(SolUniNEqua, EndsCountFlatPairsGoLowEndFirstAndNothingIsClamped) {
    const double c[2] = {1.0, 0.0}; // p(x) = x: within tol = 1e-3 near 0
    double r[1];
    ASSERT_EQ(mathSolUniNEqua(1, c, -1e-5, 1.0, 1e-3, r), 1); // lo and 0: the lower
    EXPECT_EQ(r[0], -1e-5);
    ASSERT_EQ(mathSolUniNEqua(1, c, -1.0, 1e-5, 1e-3, r), 1); // a lone pair is the low pair
    EXPECT_EQ(r[0], 0.0);
    ASSERT_EQ(mathSolUniNEqua(1, c, -1e-5, 1e-5, 1e-3, r), 1); // then the high pair: hi
    EXPECT_EQ(r[0], 1e-5);
    const double off[2] = {1.0, -2.0}; // root 2, beyond hi, but |p(hi)| < tol
    ASSERT_EQ(mathSolUniNEqua(1, off, 0.0, 1.9999, 1e-3, r), 1);
    EXPECT_EQ(r[0], 1.9999);
    const double flat[2] = {0.0, 1e-12};
    EXPECT_EQ(mathSolUniNEqua(1, flat, 0.0, 1.0, 1e-10, r), 100);
    // The interval is widened by 1e-10, and a root found there is not clamped.
    const double justOut[2] = {1.0, -(1.0 + 5e-11)}, farOut[2] = {1.0, -(1.0 + 2e-10)};
    ASSERT_EQ(mathSolUniNEqua(1, justOut, 0.0, 1.0, 1e-14, r), 1);
    EXPECT_EQ(r[0], 1.0 + 5e-11);
    EXPECT_EQ(mathSolUniNEqua(1, farOut, 0.0, 1.0, 1e-14, r), 0);
}

TEST(SolUnivEqua, ConvergesStallsOrStopsOnAFlatDerivative) {
    double (*square)(double) = [](double x) { return x * x; };
    double (*twice)(double) = [](double x) { return 2.0 * x; };
    double (*squarePlusOne)(double) = [](double x) { return x * x + 1.0; };
    double x = 0.0;
    EXPECT_EQ(mathSolUnivEqua(square, twice, 2.0, 1.0, 1e-14, &x), 1);
    EXPECT_NEAR(x, std::sqrt(2.0), 1e-14);
    EXPECT_EQ(mathSolUnivEqua(square, twice, 2.0, 0.0, 1e-14, &x), 800);
    EXPECT_EQ(x, 0.0);
    EXPECT_EQ(mathSolUnivEqua(square, twice, 0.0, 0.0, 1e-14, &x), 1); // met at the start
    EXPECT_EQ(mathSolUnivEqua(squarePlusOne, twice, 0.0, 0.3, 1e-14, &x), 0);
}

TEST(EvalPoly, DescendingOrderAndTheOneSidedDenominatorGuard) {
    const double c[4] = {2.0, -3.0, 0.5, 4.0};
    EXPECT_EQ(mathEvalPoly(3, c, 2.0), 16.0 - 12.0 + 1.0 + 4.0);
    const double p[2] = {0.0, 3.0}, minusTwo[2] = {0.0, -2.0};
    const double atGuard[2] = {0.0, 1e-20}, below[2] = {0.0, 0.99e-20};
    EXPECT_EQ(mathEvalRPoly(1, p, minusTwo, 1.0), 0.0);
    EXPECT_EQ(mathEvalRPoly(1, p, atGuard, 7.0), 3.0 / 1e-20);
    EXPECT_EQ(mathEvalRPoly(1, p, below, 7.0), 0.0);
}

} // namespace
