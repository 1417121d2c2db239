#include <korvane/numeric.h>

#include "support/expect.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace {

using korvane_test::exactly;
const double kPi = 3.141592653589793, kTwoPi = 6.283185307179586;

// Descending coefficients of scale * prod (x - roots[i]).
std::vector<double> fromRoots(const std::vector<double> &roots, double scale = 1.0) {
    std::vector<double> c{scale};
    for (double x0 : roots) {
        c.push_back(0.0);
        for (size_t i = c.size() - 1; i > 0; --i)
            c[i] -= x0 * c[i - 1];
    }
    return c;
}

// n ascending roots at least 0.5 apart, the first anywhere in [-4, 1].
std::vector<double> separatedRoots(std::mt19937 &gen, int n) {
    std::uniform_real_distribution<double> u(0.0, 1.0);
    std::vector<double> roots{-4.0 + 5.0 * u(gen)};
    while (static_cast<int>(roots.size()) < n)
        roots.push_back(roots.back() + 0.5 + u(gen));
    return roots;
}

void expectSameRoots(const std::vector<double> &want, double *got, int n) {
    ASSERT_EQ(static_cast<int>(want.size()), n);
    std::sort(got, got + n);
    for (int i = 0; i < n; ++i)
        EXPECT_NEAR(got[i], want[i], 1e-9);
}

TEST(SolQuadEqua, BoundsDegenerateFormsAndUnwrittenSlots) {
    // d == -tol: two roots upward, one (the vertex) downward; d == tol: the
    // reverse. A double root counts once and stands twice; no root leaves the
    // vertex; a negligible a is linear, then an identity (100) or nothing.
    // a, b, c, tol, the count, r[0], r[1]
    const double cases[][7] = {{1, 0, -0.25, 0.25, 2, 0.5, -0.5},
                               {-1, 0, -0.25, 0.25, 1, 0, 0},
                               {1, 0, 0.25, 0.25, 1, 0, 0},
                               {-1, 0, 0.25, 0.25, 2, -0.5, 0.5},
                               {1, -2, 1, 1e-12, 1, 1, 1},
                               {2, -4, 3, 0.5, 0, 1, 1},
                               {1e-30, 1, 1, 1e-10, 1, -1, -1},
                               {0, 1e-21, 1e-12, 1e-10, 100, 1, 1},
                               {0, 0, 1, 0.5, 0, 1, 1}};
    double r[2];
    for (const auto &q : cases)
        EXPECT_TRUE(mathSolQuadEqua(q[0], q[1], q[2], q[3], r) == q[4] && exactly(r, {q[5], q[6]}))
            << q[0] << " " << q[1] << " " << q[2];
    // Strict test: all zeros are not negligible against a == 0, which divides.
    EXPECT_TRUE(mathSolQuadEqua(0, 0, 0, 1e-10, r) == 2 && std::isnan(r[0]) && std::isnan(r[1]));
}

// The interval solver finds the roots inside, ascending and distinct; the
// closed forms find every real root, also beside a complex pair.
TEST(SolPolyEqua, RecoversSeparatedRealRootsAndSkipsComplexPairs) {
    std::mt19937 gen(11);
    std::uniform_real_distribution<double> u(-2.0, 2.0);
    double r[4], quartic[5], cubic[4];
    for (int trial = 0; trial < 400; ++trial) {
        const int n = 1 + trial % 4;
        const std::vector<double> roots = separatedRoots(gen, n);
        std::vector<double> c = fromRoots(roots, trial % 8 < 4 ? -2.5 : 0.75), inside;
        const double lo = 2.0 * u(gen), hi = lo + 4.0;
        std::copy_if(roots.begin(), roots.end(), std::back_inserter(inside),
                     [&](double x) { return x > lo && x < hi; });
        const int k = mathSolUniNEqua(n, c.data(), lo, hi, 1e-12, r);
        ASSERT_EQ(k, static_cast<int>(inside.size()));
        for (int i = 0; i < k; ++i)
            EXPECT_NEAR(r[i], inside[i], 1e-9); // in order: ascending
        if (n == 1)
            continue;
        expectSameRoots(roots, r,
                        n == 2   ? mathSolQuadEqua(c[0], c[1], c[2], 1e-12, r)
                        : n == 3 ? mathSolTriaEqua(c.data(), 1e-10, r)
                                 : mathSolQuarEqua(c.data(), 1e-10, r));
        if (n != 2)
            continue;
        // Times x^2 + p x + q with p^2 < 4 q: no further real root.
        const double p = u(gen), pq[3] = {1.0, p, p * p * 0.25 + 0.5 + std::fabs(u(gen))};
        mathPolyMult(2, 2, c.data(), pq, quartic); // the convolution ignores the order
        expectSameRoots(roots, r, mathSolQuarEqua(quartic, 1e-10, r));
        mathPolyMult(1, 2, fromRoots({roots[0]}).data(), pq, cubic);
        expectSameRoots({roots[0]}, r, mathSolTriaEqua(cubic, 1e-10, r));
    }
    EXPECT_EQ(mathSolUniNEqua(5, nullptr, 0.0, 1.0, 1e-10, r), 0); // c is not read
}

TEST(SolPolyEqua, KnownBlindSpotsOfTheClosedForms) {
    double r[4];
    // x^3 takes the repeated-root branch and divides 0 by 0; x^4 reports nothing.
    EXPECT_EQ(mathSolTriaEqua(fromRoots({0, 0, 0}).data(), 1e-10, r), 3);
    EXPECT_FALSE(std::isfinite(r[0]) || std::isfinite(r[1]) || std::isfinite(r[2]));
    EXPECT_EQ(mathSolQuarEqua(fromRoots({0, 0, 0, 0}).data(), 1e-10, r), 0);
    // x^4 - 1: the factors from the resolvent are not the true ones.
    const double x4m1[5] = {1.0, 0.0, 0.0, 0.0, -1.0};
    EXPECT_EQ(mathSolQuarEqua(x4m1, 1e-20, r), 0);
    const int k = mathSolQuarEqua(x4m1, 1e-10, r);
    for (int i = 0; i < k; ++i)
        EXPECT_LT(std::fabs(r[i]), 1e-6);
    // A double root of each factor counts once.
    expectSameRoots({1.0, 2.0}, r, mathSolQuarEqua(fromRoots({1, 1, 2, 2}).data(), 1e-10, r));
}

TEST(SolUniNEqua, EndsCountFlatPairsGoLowEndFirstAndNothingIsClamped) {
    // p(x) = x - root: root, lo, hi, tol, the one root reported.
    const double cases[][5] = {
        {0, -1e-5, 1.0, 1e-3, -1e-5},            // lo and 0 within tol: the lower
        {0, -1.0, 1e-5, 1e-3, 0.0},              // a lone pair is the low pair
        {0, -1e-5, 1e-5, 1e-3, 1e-5},            // then the high pair: hi
        {2, 0.0, 1.9999, 1e-3, 1.9999},          // beyond hi, but |p(hi)| < tol
        {1 + 5e-11, 0.0, 1.0, 1e-14, 1 + 5e-11}, // in the 1e-10 widening, not clamped
    };
    double r[1];
    for (const auto &t : cases) {
        const double c[2] = {1.0, -t[0]};
        EXPECT_TRUE(mathSolUniNEqua(1, c, t[1], t[2], t[3], r) == 1 && r[0] == t[4])
            << t[1] << t[2];
    }
    const double flat[2] = {0.0, 1e-12}, farOut[2] = {1.0, -(1.0 + 2e-10)};
    EXPECT_TRUE(mathSolUniNEqua(1, flat, 0, 1, 1e-10, r) == 100 &&
                mathSolUniNEqua(1, farOut, 0, 1, 1e-14, r) == 0);
}

TEST(SolUnivEqua, ConvergesStallsOrStopsOnAFlatDerivative) {
    double (*square)(double) = [](double x) { return x * x; };
    double (*twice)(double) = [](double x) { return 2.0 * x; };
    double x = 0.0;
    EXPECT_TRUE(mathSolUnivEqua(square, twice, 2.0, 1.0, 1e-14, &x) == 1 &&
                std::fabs(x - std::sqrt(2.0)) < 1e-14);
    EXPECT_TRUE(mathSolUnivEqua(square, twice, 2.0, 0.0, 1e-14, &x) == 800 && x == 0.0);
    EXPECT_EQ(mathSolUnivEqua(square, twice, 0.0, 0.0, 1e-14, &x), 1); // met at the start
    EXPECT_EQ(mathSolUnivEqua([](double t) { return t * t + 1.0; }, twice, 0.0, 0.3, 1e-14, &x), 0);
}

TEST(EvalPoly, DescendingOrderAndTheOneSidedDenominatorGuard) {
    const double c[4] = {2.0, -3.0, 0.5, 4.0}, p[2] = {0.0, 3.0};
    const double minusTwo[2] = {0.0, -2.0}, atGuard[2] = {0.0, 1e-20}, below[2] = {0.0, 0.99e-20};
    EXPECT_EQ(mathEvalPoly(3, c, 2.0), 16.0 - 12.0 + 1.0 + 4.0);
    EXPECT_TRUE(mathEvalRPoly(1, p, minusTwo, 1.0) == 0.0 &&
                mathEvalRPoly(1, p, below, 7.0) == 0.0);
    EXPECT_EQ(mathEvalRPoly(1, p, atGuard, 7.0), 3.0 / 1e-20);
}

// Random coefficients a, b, c for the three trigonometric equations.
TEST(TrigEquations, EveryReportedAngleSolvesItsEquationAndNoneIsMissed) {
    std::mt19937 gen(21);
    std::uniform_real_distribution<double> u(-2.0, 2.0);
    double r[4];
    for (int trial = 0; trial < 300; ++trial) {
        const double a = u(gen), b = u(gen), c = u(gen), s = std::hypot(a, b) * 0.45 * c;
        // a cos t + b sin t = s, well inside the amplitude: two angles.
        ASSERT_EQ(mathSolExpoEqua(a, b, s, 1e-12, r), 2);
        EXPECT_GT(std::fabs(r[0] - r[1]), 1e-9);
        for (int i = 0; i < 2; ++i)
            EXPECT_TRUE(r[i] >= 0.0 && r[i] <= kTwoPi &&
                        std::fabs(a * std::cos(r[i]) + b * std::sin(r[i]) - s) < 1e-12);
        // a cos^2 t + b sin t cos t + c sin^2 t = 0: angles in [0, pi], none for a definite form.
        const int k = mathSolHomoEqua(a, b, c, 1e-12, r);
        EXPECT_EQ(k, b * b - 4.0 * a * c > 0.0 ? 2 : 0);
        for (int i = 0; i < k; ++i) {
            const double cs = std::cos(r[i]), sn = std::sin(r[i]);
            EXPECT_TRUE(r[i] >= 0.0 && r[i] <= kPi &&
                        std::fabs(a * cs * cs + b * sn * cs + c * sn * sn) < 1e-12);
        }
        // (a + b sin t) cos t + c sin t = 0: as many angles as sign changes on a fine grid.
        auto f = [&](double t) { return (a + b * std::sin(t)) * std::cos(t) + c * std::sin(t); };
        int changes = 0;
        for (int i = 1; i <= 8000; ++i)
            changes += (f(kTwoPi * (i - 1) / 8000) < 0.0) != (f(kTwoPi * i / 8000) < 0.0);
        ASSERT_EQ(mathSolAngleByCCSS(a, b, c, 1e-12, r), changes);
        for (int i = 0; i < changes; ++i)
            EXPECT_TRUE(r[i] >= 0.0 && r[i] < kTwoPi && std::fabs(f(r[i])) < 1e-8) << r[i];
    }
    EXPECT_EQ(mathSolHomoEqua(0.0, 0.0, 0.0, 1e-10, r), 100);
}

TEST(SolExpoEqua, TangentRootsOutOfReachAndIdentities) {
    double r[2] = {5.0, 5.0};
    EXPECT_TRUE(mathSolExpoEqua(1.0, 0.0, 1.5, 0.1, r) == 0 && exactly(r, {0.0, kPi / 2}));
    EXPECT_TRUE(mathSolExpoEqua(-1.0, 0.0, 1.0, 1e-12, r) == 1 && // cos t = -1
                std::fabs(r[0] - kPi) < 1e-12 && r[0] == r[1]);
    // cos t = 1: 0 and 2 pi at the two ends of the period are one root.
    EXPECT_TRUE(mathSolExpoEqua(1.0, 0.0, 1.0, 1e-12, r) == 1 && exactly(r, {0.0, kTwoPi}));
    EXPECT_EQ(mathSolExpoEqua(0.0, 2.0, 2.1, 0.2, r), 1); // beyond, but within tol
    EXPECT_TRUE(mathSolExpoEqua(0, 0, 1e-11, 1e-10, r) == 100 &&
                mathSolExpoEqua(0, 0, 1, 1e-10, r) == 0);
    EXPECT_EQ(mathSolExpoEqua(1e-3, 0.0, 0.0, 1e-2, r), 100); // amplitude within tol
}

} // namespace
