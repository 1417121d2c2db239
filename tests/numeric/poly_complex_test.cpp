#include <korvane/numeric.h>

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <random>

namespace {

TEST(PolyMult, ConvolutionOverAZeroedResult) {
    const double a[2] = {1, 1}, b[3] = {1, -1, 2}; // (1 + x)(1 - x + 2 x^2)
    double r[4] = {9, 9, 9, 9};
    mathPolyMult(1, 2, a, b, r);
    EXPECT_EQ(r[0], 1.0);
    EXPECT_EQ(r[1], 0.0);
    EXPECT_EQ(r[2], 1.0);
    EXPECT_EQ(r[3], 2.0);
    double s[2] = {9, 9};
    mathPolyMult(-1, 2, a, b, s);
    mathPolyMult(1, -2, a, b, s);
    EXPECT_EQ(s[0], 9.0);
}

TEST(PolyDeri, SeparateArraysGiveTheFirstDerivativeAliasedTheKth) {
    const double a[4] = {1, 2, 3, 4}; // 1 + 2x + 3x^2 + 4x^3
    double r[4] = {9, 9, 9, 9};
    mathPolyDeri(2, 3, a, r);
    EXPECT_EQ(r[0], 2.0);
    EXPECT_EQ(r[1], 6.0);
    EXPECT_EQ(r[2], 12.0);
    EXPECT_EQ(r[3], 9.0);
    double b[4] = {1, 2, 3, 4};
    mathPolyDeri(2, 3, b, b); // 6 + 24 x, the rest stale
    EXPECT_EQ(b[0], 6.0);
    EXPECT_EQ(b[1], 24.0);
    EXPECT_EQ(b[2], 12.0);
    EXPECT_EQ(b[3], 4.0);
}

TEST(PolyDeri, OrderAboveDegreeWritesOneZeroBelowOneNothing) {
    const double a[2] = {1, 2};
    double r[2] = {9, 9};
    mathPolyDeri(2, 1, a, r);
    EXPECT_EQ(r[0], 0.0);
    EXPECT_EQ(r[1], 9.0);
    r[0] = 9.0;
    mathPolyDeri(0, 1, a, r);
    EXPECT_EQ(r[0], 9.0);
}

TEST(PolyIntg, DefiniteIntegralAndTheShortIntervalGuard) {
    const double c[3] = {1, 0, 1}; // 1 + x^2
    EXPECT_NEAR(mathPolyIntg(2, 0.0, 2.0, c), 2.0 + 8.0 / 3.0, 1e-14);
    EXPECT_NEAR(mathPolyIntg(2, -1.0, 1.0, c), 2.0 + 2.0 / 3.0, 1e-14);
    EXPECT_EQ(mathPolyIntg(2, 2.0, 0.0, c), 0.0);
    EXPECT_EQ(mathPolyIntg(2, 1.0, 1.0 + 5e-11, c), 0.0);
}

// Composite Simpson, an integrator independent of the coefficient arithmetic.
template <class F> double simpson(F f, double lo, double hi) {
    const int m = 2000;
    const double h = (hi - lo) / m;
    double s = f(lo) + f(hi);
    for (int i = 1; i < m; ++i)
        s += (i % 2 ? 4.0 : 2.0) * f(lo + i * h);
    return s * h / 3.0;
}

double eval(int n, const double *c, double x, int deriv) {
    double v = 0.0;
    for (int i = deriv; i < n; ++i) {
        double k = 1.0;
        for (int j = 0; j < deriv; ++j)
            k *= i - j;
        v += k * c[i] * std::pow(x, i - deriv);
    }
    return v;
}

TEST(IntgPolyMult, InnerProductsOfValuesAndDerivatives) {
    std::mt19937 gen(51);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    for (int n = 1; n <= 6; ++n) {
        double p[6], q[6], r[3] = {9, 9, 9};
        for (int i = 0; i < n; ++i) {
            p[i] = u(gen);
            q[i] = u(gen);
        }
        mathIntgPolyMult(n, p, q, -0.5, 1.5, r);
        for (int d = 0; d < 3; ++d) {
            if (d == 2 && n <= 2) {
                EXPECT_EQ(r[2], 9.0); // not written
                continue;
            }
            const double want =
                simpson([&](double x) { return eval(n, p, x, d) * eval(n, q, x, d); }, -0.5, 1.5);
            EXPECT_NEAR(r[d], want, 1e-11 * (1.0 + std::fabs(want))) << n << " " << d;
        }
    }
    double p[7] = {1, 1, 1, 1, 1, 1, 1}, r[3] = {9, 9, 9};
    mathIntgPolyMult(7, p, p, 0.0, 1.0, r);
    EXPECT_EQ(r[0], 9.0);
}

TEST(CompArith, MultiplicationAllowsAliasingAndDivisionInvertsIt) {
    std::mt19937 gen(52);
    std::uniform_real_distribution<double> u(-3.0, 3.0);
    for (int trial = 0; trial < 100; ++trial) {
        const double a[2] = {u(gen), u(gen)}, b[2] = {u(gen), u(gen)};
        double p[2], q[2];
        mathCompMult(a, b, p);
        const std::complex<double> want =
            std::complex<double>(a[0], a[1]) * std::complex<double>(b[0], b[1]);
        EXPECT_NEAR(p[0], want.real(), 1e-14);
        EXPECT_NEAR(p[1], want.imag(), 1e-14);
        ASSERT_EQ(mathCompDivi(p, b, q), 1);
        EXPECT_NEAR(q[0], a[0], 1e-13);
        EXPECT_NEAR(q[1], a[1], 1e-13);
        double x[2] = {a[0], a[1]}, y[2] = {b[0], b[1]};
        mathCompMult(x, b, x);
        mathCompMult(a, y, y);
        EXPECT_EQ(x[0], p[0]);
        EXPECT_EQ(x[1], p[1]);
        EXPECT_EQ(y[0], p[0]);
        EXPECT_EQ(y[1], p[1]);
        mathCompPlus(a, b, x);
        mathCompMinus(x, b, x);
        EXPECT_NEAR(x[0], a[0], 1e-15);
        EXPECT_NEAR(x[1], a[1], 1e-15);
    }
}

TEST(CompDivi, TinyDivisorLeavesResultUntouched) {
    const double a[2] = {1, 1}, tiny[2] = {1e-11, 0};
    double r[2] = {7, 7};
    EXPECT_EQ(mathCompDivi(a, tiny, r), 0);
    EXPECT_EQ(r[0], 7.0);
    EXPECT_EQ(r[1], 7.0);
    const double small[2] = {1e-10, 0}; // |b|^2 == 1e-20 is accepted
    EXPECT_EQ(mathCompDivi(a, small, r), 1);
}

TEST(IntpComp, ReproducesNodesAndPolynomials) {
    std::mt19937 gen(53);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    const int n = 5;
    double z[2 * n], w[2 * n], r[2];
    const std::complex<double> c0(0.5, -1), c1(1, 2), c2(-0.5, 0.25);
    auto poly = [&](std::complex<double> x) { return c0 + x * (c1 + x * c2); };
    for (int i = 0; i < n; ++i) {
        z[2 * i] = std::cos(1.3 * i);
        z[2 * i + 1] = std::sin(1.3 * i);
        const std::complex<double> v = poly({z[2 * i], z[2 * i + 1]});
        w[2 * i] = v.real();
        w[2 * i + 1] = v.imag();
    }
    for (int i = 0; i < n; ++i) {
        ASSERT_EQ(mathIntpComp(n, z, w, z + 2 * i, r), 1);
        EXPECT_NEAR(r[0], w[2 * i], 1e-13);
        EXPECT_NEAR(r[1], w[2 * i + 1], 1e-13);
    }
    for (int trial = 0; trial < 20; ++trial) {
        const double x[2] = {u(gen), u(gen)};
        ASSERT_EQ(mathIntpComp(n, z, w, x, r), 1);
        const std::complex<double> want = poly({x[0], x[1]});
        EXPECT_NEAR(r[0], want.real(), 1e-12);
        EXPECT_NEAR(r[1], want.imag(), 1e-12);
    }
}

TEST(IntpComp, CoincidentNodesFailAndNoNodesGiveZero) {
    const double z[4] = {1, 1, 1, 1 + 1e-11}, w[4] = {1, 0, 2, 0}, x[2] = {0, 0};
    double r[2] = {7, 7};
    EXPECT_EQ(mathIntpComp(2, z, w, x, r), 0);
    EXPECT_EQ(r[0], 0.0); // the partial sum: nothing added yet
    r[0] = r[1] = 7.0;
    EXPECT_EQ(mathIntpComp(0, z, w, x, r), 1);
    EXPECT_EQ(r[0], 0.0);
    EXPECT_EQ(r[1], 0.0);
}

} // namespace
