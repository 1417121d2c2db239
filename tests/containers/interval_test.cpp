#include <korvane/containers.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

// Each helper below gives the answer of a call followed by every output it
// may write, so one comparison pins the written and the untouched outputs (a
// braced list is evaluated in order, the call first).
using V = std::vector<double>;

const double kTwoPi = 6.283185307179586;

TEST(Membership, StrictBoundsEitherOrderAndWholeTurns) {
    EXPECT_EQ(mathChkValInt(3, 1, 0.1, 2), 1);
    EXPECT_EQ(mathChkValInt(1, 3, 0.5, 3.5), 0);
    EXPECT_EQ(mathChkIntInt(0, 1, 1.5, 2, 0.5), 1); // a gap equal to tol
    EXPECT_EQ(mathChkIntInt(1.5, 2, 0, 1, 0.25), 0);
    EXPECT_EQ(mathIsInPeri(0, 1.9, 2, 5.95, 0.1), 1); // covers a whole turn
    EXPECT_EQ(mathIsInPeri(0, 1, 0, 1.5, 0.5), 0);    // not periodic, strict
    const Interval back = {3, 1}, j = {1, 3};
    EXPECT_EQ(intervalIsIn(&j, 1.0, 0.0), 0);
    EXPECT_EQ(intervalIsIn(&j, 1.0, 1e-12), 1);
    EXPECT_EQ(intervalIsIn(&back, 2.0, 0.0), 0); // order matters here
    EXPECT_EQ(intervalGetLen(&back), 2.0);
    EXPECT_EQ(intervalGetLen(nullptr), 0.0);
}

static V intInt(double a0, double a1, double b0, double b1, double tol) {
    double r[2];
    return V{double(mathIntInt(a0, a1, b0, b1, tol, r, r + 1)), r[0], r[1]};
}

TEST(IntInt, MeetsWithinTolAndOtherwiseGivesTheMeanOfTheGapTwice) {
    EXPECT_EQ(intInt(2, 1, 2, 3, 1e-10), (V{1, 2, 2}));            // touching, either order
    EXPECT_EQ(intInt(0, 1, 1.25, 2, 0.125), (V{0, 1.125, 1.125})); // else the mean of the gap
    EXPECT_EQ(intInt(0, 1, 1.25, 2, 0.5), (V{1, 1.25, 1.0}));      // a gap below tol: ends inverted
}

static V arc(double a0, double a1, double b0, double b1, double tol) {
    int n = -1;
    double out[4];
    V v{double(mathIntIntArc(a0, a1, b0, b1, tol, &n, out)), double(n)};
    v.insert(v.end(), out, out + 2 * n);
    return v;
}

TEST(IntIntArc, AFullArcYieldsTheOtherAndAWrappingArcMeetsTwice) {
    EXPECT_EQ(arc(0, kTwoPi, 1, 2, 1e-6), (V{1, 1, 1, 2}));
    // b runs from 6 past the turn to 7; a covers 0.25..6.1.
    EXPECT_EQ(arc(0.25, 6.1, 6.0, 7.0, 1e-10), (V{1, 2, 6.0, 6.1, 0.25, 7.0 - kTwoPi}));
    // Only the unrolled tail meets: it lands in the first pair.
    EXPECT_EQ(arc(0.1, 0.5, 6.0, 7.0, 1e-10), (V{1, 1, 0.1, 0.5}));
    EXPECT_EQ(arc(1.0, 2.0, 3.0, 4.0, 1e-10), (V{0, 0}));
}

static V ari(int op, double a0, double a1, double b0, double b1) {
    double r[2] = {7, 7};
    return V{double(mathIntAri(op, a0, a1, b0, b1, r, r + 1)), r[0], r[1]};
}

TEST(IntAri, EachOperationAndTheRefusedDivisions) {
    EXPECT_EQ(ari(0, 1, 2, 10, 20), (V{1, 11, 22}));
    EXPECT_EQ(ari(1, 1, 2, 10, 20), (V{1, -19, -8}));
    EXPECT_EQ(ari(2, -2, 3, -5, 4), (V{1, -15, 12}));          // the extreme products
    EXPECT_EQ(ari(3, -4, 2, 1e-20, 4), (V{1, -1, 2 / 1e-20})); // a0 / b1, a1 / b0
    EXPECT_EQ(ari(3, 1, 2, 0, 4), (V{0, 7, 7}));               // the divisor must be positive
}

static V dec(double lo, double hi, double a, double b) {
    int k = -1, n = -1;
    double f[2] = {9, 9}, s[2] = {9, 9};
    const double ok = mathDecPeriInt(lo, hi, a, b, &k, &n, f, s);
    return V{ok, double(k), double(n), f[0], f[1], s[0], s[1]};
}

TEST(DecPeriInt, SplitsWholePeriodsAndARemainder) {
    EXPECT_EQ(dec(0, 1, 2.75, 0.5), (V{1, 2, 1, 0.5, 0.75, 9, 9}));
    EXPECT_EQ(dec(0, 1, 0.5, 1.25), (V{1, 0, 2, 0.5, 1, 0, 0.25}));
    EXPECT_EQ(dec(0, 1, 0.0, 2.0), (V{1, 2, 0, 0, 0, 9, 9})); // no remainder
    EXPECT_EQ(dec(1, 1 + 1e-11, 0, 5), (V{0, -1, -1, 9, 9, 9, 9}));
}

TEST(IsInPeri, AgreesWithAnExplicitShiftSearchAwayFromTheEnds) {
    std::mt19937 rng(5);
    std::uniform_real_distribution<double> u(-10, 10), len(0, 3), per(0.5, 4);
    for (int t = 0; t < 2000; ++t) {
        const double a = u(rng), b = a + len(rng), p = per(rng), v = u(rng) * 3;
        bool in = false, nearEnd = false;
        for (int k = -100; k <= 100; ++k) {
            const double w = v + k * p;
            in = in || (a <= w && w <= b);
            nearEnd = nearEnd || std::fabs(w - a) < 1e-6 || std::fabs(w - b) < 1e-6;
        }
        if (nearEnd || p < b - a)
            continue;
        const Interval iv = {a, b};
        double rep = 0;
        EXPECT_EQ(mathIsInPeri(a, b, p, v, 1e-9), in ? 1 : 0);
        EXPECT_EQ(intervalIsInPeri(&iv, p, v, 1e-9), in ? 1 : 0);
        EXPECT_EQ(intervalIsInPeEx(&iv, p, v, 1e-9, &rep), in ? 1 : 0);
        // The representative lies in the range, whole periods away from v.
        EXPECT_TRUE(in ? rep >= a - 1e-9 && rep <= b + 1e-9 : rep == v);
        EXPECT_NEAR(std::remainder(rep - v, p), 0.0, 1e-9);
    }
}

TEST(IntervalRecord, CreateWritesOnlyTheFirstEndFromTheSecondArgument) {
    Interval *iv = intervalCreate(1.0, 2.0);
    ASSERT_NE(iv, nullptr);
    EXPECT_EQ(iv->start, 2.0);
    EXPECT_EQ(intervalFree(iv), 1);
    EXPECT_EQ(intervalFree(nullptr), 1);
    EXPECT_EQ(pnodeFree(new Interval{0, 1}), 1);
}

static V peri(V a, V b, double period) {
    int n = -1;
    double o1[2] = {9, 9}, o2[2] = {9, 9};
    const double ok = intervalIntPeri(a.data(), b.data(), period, 1e-10, &n, o1, o2);
    return V{ok, double(n), o1[0], o1[1], o2[0], o2[1]};
}

TEST(IntervalIntPeri, FindsTheOverlapThroughTheAddedPeriod) {
    EXPECT_EQ(peri({5, 7}, {0, 1}, kTwoPi), (V{1, 1, kTwoPi, 7, 9, 9}));
    // Both sides of the turn: b and b plus one period each meet.
    EXPECT_EQ(peri({0.5, 6.5}, {0, 1}, kTwoPi), (V{1, 2, 0.5, 1, kTwoPi, 6.5}));
    EXPECT_EQ(peri({1, 2}, {0, 7}, kTwoPi), (V{1, 1, 1, 2, 9, 9})); // covered: a itself
    // Not periodic: the plain common part, here the mean of the gap twice.
    EXPECT_EQ(peri({2, 1}, {3, 4}, 0.0), (V{0, 0, 2.5, 2.5, 9, 9}));
    const double a[2] = {4, 1};
    EXPECT_EQ(intervalInt(a, a, 1e-10, nullptr), 1); // no output wanted
}
