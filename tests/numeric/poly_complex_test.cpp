#include <korvane/numeric.h>

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <random>

namespace {

using Complex = std::complex<double>;

TEST(PolyMult, ConvolutionOverAZeroedResult) {
    const double a[2] = {1, 1}, b[3] = {1, -1, 2}; // (1 + x)(1 - x + 2 x^2)
    double r[4] = {9, 9, 9, 9};
    mathPolyMult(1, 2, a, b, r);
    EXPECT_TRUE(r[0] == 1.0 && r[1] == 0.0 && r[2] == 1.0 && r[3] == 2.0);
    double s[2] = {9, 9};
    mathPolyMult(-1, 2, a, b, s);
    mathPolyMult(1, -2, a, b, s);
    EXPECT_EQ(s[0], 9.0);
}

TEST(PolyDeri, SeparateArraysGiveTheFirstDerivativeAliasedTheKth) {
    const double a[4] = {1, 2, 3, 4}; // 1 + 2x + 3x^2 + 4x^3
    double r[4] = {9, 9, 9, 9};
    mathPolyDeri(2, 3, a, r);
    EXPECT_TRUE(r[0] == 2.0 && r[1] == 6.0 && r[2] == 12.0 && r[3] == 9.0);
    double b[4] = {1, 2, 3, 4};
    mathPolyDeri(2, 3, b, b); // 6 + 24 x, then stale values
    EXPECT_TRUE(b[0] == 6.0 && b[1] == 24.0 && b[2] == 12.0 && b[3] == 4.0);
    mathPolyDeri(4, 3, a, r); // order above the degree: r[0] = 0 alone
    EXPECT_TRUE(r[0] == 0.0 && r[1] == 6.0);
    mathPolyDeri(0, 3, a, r); // below one: nothing
    EXPECT_EQ(r[0], 0.0);
}

TEST(PolyIntg, DefiniteIntegralAndTheShortIntervalGuard) {
    const double c[3] = {1, 0, 1}; // 1 + x^2
    EXPECT_NEAR(mathPolyIntg(2, -1.0, 2.0, c), 3.0 + 9.0 / 3.0, 1e-14);
    EXPECT_EQ(mathPolyIntg(2, 2.0, 0.0, c), 0.0);
    EXPECT_EQ(mathPolyIntg(2, 1.0, 1.0 + 5e-11, c), 0.0);
}

TEST(IntgPolyMult, InnerProductsOfValuesAndDerivatives) {
    // p = x^(n-1), q = 1 + x^(n-1) on [-0.5, 1.5], against closed forms.
    auto I = [](int k) { return (std::pow(1.5, k + 1) - std::pow(-0.5, k + 1)) / (k + 1); };
    for (int n = 1; n <= 6; ++n) {
        double p[6] = {}, q[6] = {}, r[3] = {9, 9, 9};
        p[n - 1] = 1.0;
        q[n - 1] = 1.0;
        q[0] += 1.0;
        mathIntgPolyMult(n, p, q, -0.5, 1.5, r);
        const double m = n - 1.0;
        EXPECT_NEAR(r[0], n == 1 ? 2.0 * I(0) : I(n - 1) + I(2 * n - 2), 1e-13) << n;
        EXPECT_NEAR(r[1], n == 1 ? 0.0 : m * m * I(2 * n - 4), 1e-12) << n;
        EXPECT_NEAR(r[2], n > 2 ? m * m * (m - 1) * (m - 1) * I(2 * n - 6) : 9.0, 1e-11) << n;
    }
    double p[7] = {1, 1, 1, 1, 1, 1, 1}, r[3] = {9, 9, 9};
    mathIntgPolyMult(7, p, p, 0.0, 1.0, r); // beyond six coefficients: nothing
    EXPECT_EQ(r[0], 9.0);
}

TEST(CompArith, DivisionInvertsMultiplicationWhichMayAlias) {
    std::mt19937 gen(52);
    std::uniform_real_distribution<double> u(-3.0, 3.0);
    for (int trial = 0; trial < 100; ++trial) {
        const double a[2] = {u(gen), u(gen)}, b[2] = {u(gen), u(gen)};
        double p[2], q[2], x[2] = {a[0], a[1]}, y[2] = {b[0], b[1]};
        mathCompMult(a, b, p);
        const Complex want = Complex(a[0], a[1]) * Complex(b[0], b[1]);
        EXPECT_NEAR(p[0], want.real(), 1e-14);
        EXPECT_NEAR(p[1], want.imag(), 1e-14);
        ASSERT_EQ(mathCompDivi(p, b, q), 1);
        EXPECT_NEAR(q[0], a[0], 1e-13);
        EXPECT_NEAR(q[1], a[1], 1e-13);
        mathCompMult(x, b, x);
        mathCompMult(a, y, y);
        EXPECT_TRUE(x[0] == p[0] && x[1] == p[1] && y[0] == p[0] && y[1] == p[1]);
        mathCompPlus(a, b, x);
        mathCompMinus(x, b, x);
        EXPECT_NEAR(x[0], a[0], 1e-15);
    }
    const double one[2] = {1, 1}, tiny[2] = {1e-11, 0}, small[2] = {1e-10, 0};
    double r[2] = {7, 7};
    EXPECT_EQ(mathCompDivi(one, tiny, r), 0); // |b|^2 = 1e-22
    EXPECT_TRUE(r[0] == 7.0 && r[1] == 7.0);
    EXPECT_EQ(mathCompDivi(one, small, r), 1);
}

TEST(IntpComp, ReproducesNodesAndPolynomialsFailsOnCoincidentNodes) {
    const int n = 5;
    double z[2 * n], w[2 * n], r[2];
    auto poly = [](Complex x) { return Complex(0.5, -1) + x * (Complex(1, 2) + x * 0.25); };
    for (int i = 0; i < n; ++i) {
        z[2 * i] = std::cos(1.3 * i);
        z[2 * i + 1] = std::sin(1.3 * i);
        const Complex v = poly({z[2 * i], z[2 * i + 1]});
        w[2 * i] = v.real();
        w[2 * i + 1] = v.imag();
    }
    for (int i = 0; i < n; ++i) {
        ASSERT_EQ(mathIntpComp(n, z, w, z + 2 * i, r), 1);
        EXPECT_NEAR(r[0], w[2 * i], 1e-13);
        EXPECT_NEAR(r[1], w[2 * i + 1], 1e-13);
    }
    const double x[2] = {0.3, -0.7};
    ASSERT_EQ(mathIntpComp(n, z, w, x, r), 1);
    EXPECT_NEAR(r[0], poly({0.3, -0.7}).real(), 1e-12);
    EXPECT_NEAR(r[1], poly({0.3, -0.7}).imag(), 1e-12);
    const double twin[4] = {1, 1, 1, 1 + 1e-11};
    r[0] = 7.0;
    EXPECT_EQ(mathIntpComp(2, twin, w, x, r), 0);
    EXPECT_EQ(r[0], 0.0); // the partial sum: nothing added yet
    r[0] = r[1] = 7.0;
    EXPECT_EQ(mathIntpComp(0, z, w, x, r), 1);
    EXPECT_TRUE(r[0] == 0.0 && r[1] == 0.0);
}

} // namespace
