#include <korvane/numeric.h>

#include "support/expect.h"

#include <cmath>
#include <complex>
#include <random>

namespace {

using Complex = std::complex<double>;
using korvane_test::exactly;
using korvane_test::near;

// std::complex<double> is laid out as the pair (real, imaginary) the functions take.
const auto d = [](Complex *z) { return reinterpret_cast<double *>(z); };

TEST(PolyMult, ConvolutionOverAZeroedResultNegativeDegreesWriteNothing) {
    const double a[2] = {1, 1}, b[3] = {1, -1, 2}; // (1 + x)(1 - x + 2 x^2)
    double r[4] = {9, 9, 9, 9};
    mathPolyMult(1, 2, a, b, r);
    EXPECT_TRUE(exactly(r, {1, 0, 1, 2}));
    mathPolyMult(-1, 2, a, b, r);
    mathPolyMult(1, -2, a, b, r);
    EXPECT_TRUE(exactly(r, {1, 0, 1, 2}));
}

TEST(PolyDeri, SeparateArraysGiveTheFirstDerivativeAliasedTheKth) {
    const double a[4] = {1, 2, 3, 4}; // 1 + 2x + 3x^2 + 4x^3
    double r[4] = {9, 9, 9, 9}, b[4] = {1, 2, 3, 4};
    mathPolyDeri(2, 3, a, r);
    EXPECT_TRUE(exactly(r, {2, 6, 12, 9}));
    mathPolyDeri(0, 3, a, r); // below one: nothing
    EXPECT_TRUE(exactly(r, {2, 6, 12, 9}));
    mathPolyDeri(2, 3, b, b); // 6 + 24 x, then stale values
    EXPECT_TRUE(exactly(b, {6, 24, 12, 4}));
    mathPolyDeri(4, 3, a, r); // order above the degree: r[0] = 0 alone
    EXPECT_TRUE(exactly(r, {0, 6, 12, 9}));
}

TEST(PolyIntg, DefiniteIntegralAndTheShortIntervalGuard) {
    const double c[3] = {1, 0, 1}; // 1 + x^2
    EXPECT_NEAR(mathPolyIntg(2, -1.0, 2.0, c), 3.0 + 9.0 / 3.0, 1e-14);
    EXPECT_TRUE(mathPolyIntg(2, 2.0, 0.0, c) == 0.0 && mathPolyIntg(2, 1.0, 1.0 + 5e-11, c) == 0.0);
}

TEST(IntgPolyMult, InnerProductsOfValuesAndDerivatives) {
    // p = x^m, q = 2 x^m on [-0.5, 1.5], against closed forms.
    auto I = [](double k) { return (std::pow(1.5, k + 1) - std::pow(-0.5, k + 1)) / (k + 1); };
    for (int n = 1; n <= 6; ++n) {
        const double m = n - 1.0, m2 = m * (m - 1.0);
        double p[6] = {}, q[6] = {}, r[3] = {9, 9, 9};
        p[n - 1] = 1.0;
        q[n - 1] = 2.0;
        mathIntgPolyMult(n, p, q, -0.5, 1.5, r);
        EXPECT_TRUE(near(r, {2 * I(2 * m), 2 * m * m * I(2 * m - 2)}, 1e-11)) << n;
        EXPECT_NEAR(r[2], n > 2 ? 2 * m2 * m2 * I(2 * m - 4) : 9.0, 1e-11) << n;
    }
    double p[7] = {1, 1, 1, 1, 1, 1, 1}, r[1] = {9};
    mathIntgPolyMult(7, p, p, 0.0, 1.0, r); // beyond six coefficients: nothing
    EXPECT_EQ(r[0], 9.0);
}

TEST(CompArith, DivisionInvertsMultiplicationWhichMayAlias) {
    std::mt19937 gen(52);
    std::uniform_real_distribution<double> u(-3.0, 3.0);
    for (int trial = 0; trial < 100; ++trial) {
        Complex a{u(gen), u(gen)}, b{u(gen), u(gen)}, p, q, x = a, y = b;
        mathCompMult(d(&a), d(&b), d(&p));
        EXPECT_LT(std::abs(p - a * b), 1e-14);
        ASSERT_EQ(mathCompDivi(d(&p), d(&b), d(&q)), 1);
        EXPECT_LT(std::abs(q - a), 1e-13);
        mathCompMult(d(&x), d(&b), d(&x));
        mathCompMult(d(&a), d(&y), d(&y));
        EXPECT_TRUE(x == p && y == p);
    }
    Complex one{1, 1}, tiny{1e-11, 0}, small{1e-10, 0}, r{7, 7};
    EXPECT_TRUE(mathCompDivi(d(&one), d(&tiny), d(&r)) == 0 && r == Complex(7, 7)); // |b|^2 = 1e-22
    EXPECT_EQ(mathCompDivi(d(&one), d(&small), d(&r)), 1);
}

TEST(IntpComp, ReproducesNodesAndPolynomialsFailsOnCoincidentNodes) {
    Complex z[5], w[5], r;
    auto poly = [](Complex t) { return Complex(0.5, -1) + t * (Complex(1, 2) + t * 0.25); };
    for (int i = 0; i < 5; ++i)
        w[i] = poly(z[i] = std::polar(1.0, 1.3 * i));
    Complex x{0.3, -0.7}, twin[2] = {{1, 1}, {1, 1 + 1e-11}};
    for (Complex at : {z[0], z[1], z[2], z[3], z[4], x}) {
        ASSERT_EQ(mathIntpComp(5, d(z), d(w), d(&at), d(&r)), 1);
        EXPECT_LT(std::abs(r - poly(at)), 1e-12) << at;
    }
    r = {7, 7};
    // The partial sum is left: nothing added yet.
    EXPECT_TRUE(mathIntpComp(2, d(twin), d(w), d(&x), d(&r)) == 0 && r == Complex(0, 0));
    r = {7, 7};
    EXPECT_TRUE(mathIntpComp(0, d(z), d(w), d(&x), d(&r)) == 1 && r == Complex(0, 0));
}

} // namespace
