#include <korvane/containers.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

const double kTwoPi = 6.283185307179586;

TEST(RangeTests, StrictBoundsAndEitherOrder) {
    EXPECT_EQ(mathChkValInt(3, 1, 0.1, 2), 1);
    EXPECT_EQ(mathChkValInt(1, 3, 0.0, 3), 0);
    EXPECT_EQ(mathChkValInt(1, 3, 0.5, 3.5), 0);
    EXPECT_EQ(mathChkIntInt(0, 1, 1.5, 2, 0.5), 1); // a gap equal to tol
    EXPECT_EQ(mathChkIntInt(1.5, 2, 0, 1, 0.25), 0);
}

TEST(IntInt, TouchingRangesMeetInOnePoint) {
    double s = 0, e = 0;
    EXPECT_EQ(mathIntInt(2, 1, 2, 3, 1e-10, &s, &e), 1);
    EXPECT_EQ(s, 2.0);
    EXPECT_EQ(e, 2.0);
}

TEST(IntInt, DisjointRangesGiveTheMeanOfTheGapTwice) {
    double s = 0, e = 0;
    EXPECT_EQ(mathIntInt(0, 1, 1.001, 2, 1e-10, &s, &e), 0);
    EXPECT_EQ(s, (1.001 + 1.0) * 0.5);
    EXPECT_EQ(e, s);
    // A gap below tol counts as a meeting and leaves the ends inverted.
    EXPECT_EQ(mathIntInt(0, 1, 1.25, 2, 0.5, &s, &e), 1);
    EXPECT_EQ(s, 1.25);
    EXPECT_EQ(e, 1.0);
}

TEST(IntIntArc, AFullArcYieldsTheOtherAndAWrappingArcMeetsTwice) {
    int n = -1;
    double out[4];
    EXPECT_EQ(mathIntIntArc(0, kTwoPi, 1, 2, 1e-6, &n, out), 1);
    EXPECT_EQ(n, 1);
    EXPECT_EQ(out[1], 2.0);
    // b runs from 6 past the turn to 7; a covers 0.25..6.1.
    EXPECT_EQ(mathIntIntArc(0.25, 6.1, 6.0, 7.0, 1e-10, &n, out), 1);
    EXPECT_EQ(n, 2);
    EXPECT_EQ(out[0], 6.0);
    EXPECT_EQ(out[1], 6.1);
    EXPECT_EQ(out[2], 0.25);
    EXPECT_EQ(out[3], 7.0 - kTwoPi);
    // Only the unrolled tail meets: it lands in the first pair.
    EXPECT_EQ(mathIntIntArc(0.1, 0.5, 6.0, 7.0, 1e-10, &n, out), 1);
    EXPECT_EQ(n, 1);
    EXPECT_EQ(out[0], 0.1);
    EXPECT_EQ(mathIntIntArc(1.0, 2.0, 3.0, 4.0, 1e-10, &n, out), 0);
    EXPECT_EQ(n, 0);
}

TEST(IntAri, MultiplyTakesTheExtremeProducts) {
    std::mt19937 rng(3);
    std::uniform_real_distribution<double> u(-4, 4);
    for (int k = 0; k < 100; ++k) {
        const double a0 = u(rng), a1 = a0 + 2, b0 = u(rng), b1 = b0 + 1;
        const double p[4] = {a0 * b0, a0 * b1, a1 * b0, a1 * b1};
        double s, e;
        ASSERT_EQ(mathIntAri(2, a0, a1, b0, b1, &s, &e), 1);
        EXPECT_EQ(s, std::fmin(std::fmin(p[0], p[1]), std::fmin(p[2], p[3])));
        EXPECT_EQ(e, std::fmax(std::fmax(p[0], p[1]), std::fmax(p[2], p[3])));
    }
    double s, e;
    EXPECT_EQ(mathIntAri(1, 1, 2, 10, 20, &s, &e), 1);
    EXPECT_EQ(s, -19.0);
    EXPECT_EQ(e, -8.0);
}

TEST(IntAri, DivisionNeedsAPositiveDivisorAndKeepsTheFormula) {
    double s = 7, e = 7;
    EXPECT_EQ(mathIntAri(3, 1, 2, 0, 4, &s, &e), 0);
    EXPECT_EQ(mathIntAri(3, 1, 2, -1, 4, &s, &e), 0);
    EXPECT_EQ(mathIntAri(4, 1, 2, 1, 4, &s, &e), 0);
    EXPECT_EQ(s, 7.0);
    EXPECT_EQ(mathIntAri(3, -4, 2, 1e-20, 4, &s, &e), 1);
    EXPECT_EQ(s, -1.0);
    EXPECT_EQ(e, 2.0 / 1e-20);
}

TEST(DecPeriInt, SplitsWholePeriodsAndARemainder) {
    int k = -1, n = -1;
    double first[2], second[2] = {9, 9};
    EXPECT_EQ(mathDecPeriInt(0, 1, 2.75, 0.5, &k, &n, first, second), 1);
    EXPECT_EQ(k, 2);
    EXPECT_EQ(n, 1);
    EXPECT_EQ(first[0], 0.5);
    EXPECT_EQ(first[1], 0.75);
    EXPECT_EQ(second[0], 9.0);
    EXPECT_EQ(mathDecPeriInt(0, 1, 0.5, 1.25, &k, &n, first, second), 1);
    EXPECT_EQ(k, 0);
    EXPECT_EQ(n, 2);
    EXPECT_EQ(first[1], 1.0);
    EXPECT_EQ(second[0], 0.0);
    EXPECT_EQ(second[1], 0.25);
    EXPECT_EQ(mathDecPeriInt(0, 1, 0.0, 2.0, &k, &n, first, second), 1);
    EXPECT_EQ(n, 0); // no remainder
    k = n = -1;
    EXPECT_EQ(mathDecPeriInt(1, 1 + 1e-11, 0, 5, &k, &n, first, second), 0);
    EXPECT_EQ(k, -1);
}

TEST(IsInPeri, ShiftsByWholePeriods) {
    EXPECT_EQ(mathIsInPeri(0, 1, 2, 4.5, 1e-10), 1);
    EXPECT_EQ(mathIsInPeri(0, 1, 2, 5.5, 1e-10), 0);
    EXPECT_EQ(mathIsInPeri(0, 1.9, 2, 5.95, 0.1), 1); // covers a whole turn
    EXPECT_EQ(mathIsInPeri(0, 1, 0, 1.5, 0.5), 0);    // not periodic, strict
}

TEST(IsInPeri, AgreesWithAnExplicitShiftSearchAwayFromTheEnds) {
    std::mt19937 rng(5);
    std::uniform_real_distribution<double> u(-10, 10), len(0, 3), per(0.5, 4);
    int checked = 0;
    for (int t = 0; t < 2000; ++t) {
        const Interval iv = {u(rng), 0};
        const double b = iv.start + len(rng), p = per(rng), v = u(rng) * 3;
        bool in = false, nearEnd = false;
        for (int k = -100; k <= 100; ++k) {
            const double w = v + k * p;
            in = in || (iv.start <= w && w <= b);
            nearEnd = nearEnd || std::fabs(w - iv.start) < 1e-6 || std::fabs(w - b) < 1e-6;
        }
        if (nearEnd || p < b - iv.start)
            continue;
        ++checked;
        Interval j = iv;
        j.end = b;
        EXPECT_EQ(mathIsInPeri(j.start, b, p, v, 1e-9), in ? 1 : 0);
        EXPECT_EQ(intervalIsInPeri(&j, p, v, 1e-9), in ? 1 : 0);
        double rep = 0;
        EXPECT_EQ(intervalIsInPeEx(&j, p, v, 1e-9, &rep), in ? 1 : 0);
        if (in) {
            EXPECT_TRUE(rep >= j.start - 1e-9 && rep <= b + 1e-9);
            EXPECT_NEAR(std::remainder(rep - v, p), 0.0, 1e-9);
        } else {
            EXPECT_EQ(rep, v);
        }
    }
    EXPECT_GT(checked, 1000);
}

TEST(IntervalRecord, CreateWritesOnlyTheFirstEndFromTheSecondArgument) {
    Interval *iv = intervalCreate(1.0, 2.0);
    ASSERT_NE(iv, nullptr);
    EXPECT_EQ(iv->start, 2.0);
    EXPECT_EQ(intervalFree(iv), 1);
    EXPECT_EQ(intervalFree(nullptr), 1);
    EXPECT_EQ(pnodeFree(new Interval{0, 1}), 1);
}

TEST(IntervalRecord, LengthAndStrictMembership) {
    const Interval iv = {3, 1}, j = {1, 3};
    EXPECT_EQ(intervalGetLen(&iv), 2.0);
    EXPECT_EQ(intervalGetLen(nullptr), 0.0);
    EXPECT_EQ(intervalIsIn(&j, 1.0, 0.0), 0);
    EXPECT_EQ(intervalIsIn(&j, 1.0, 1e-12), 1);
    EXPECT_EQ(intervalIsIn(&iv, 2.0, 0.0), 0); // order matters here
}

TEST(IntervalInt, MeanOnFailureAndANullOutputIsAllowed) {
    const double a[2] = {4, 1}, b[2] = {5, 6};
    double out[2] = {0, 0};
    EXPECT_EQ(intervalInt(a, b, 1e-10, out), 0);
    EXPECT_EQ(out[0], 4.5);
    EXPECT_EQ(out[1], 4.5);
    EXPECT_EQ(intervalInt(a, a, 1e-10, nullptr), 1);
}

TEST(IntervalIntPeri, FindsTheOverlapThroughTheAddedPeriod) {
    const double a[2] = {5, 7}, b[2] = {0, 1};
    int n = -1;
    double o1[2], o2[2] = {9, 9};
    EXPECT_EQ(intervalIntPeri(a, b, kTwoPi, 1e-10, &n, o1, o2), 1);
    EXPECT_EQ(n, 1);
    EXPECT_EQ(o1[0], kTwoPi);
    EXPECT_EQ(o1[1], 7.0);
    EXPECT_EQ(o2[0], 9.0);
    // Both sides of the turn: b and b plus one period each meet a.
    const double c[2] = {0.5, 6.5};
    EXPECT_EQ(intervalIntPeri(c, b, kTwoPi, 1e-10, &n, o1, o2), 1);
    EXPECT_EQ(n, 2);
    EXPECT_EQ(o1[0], 0.5);
    EXPECT_EQ(o1[1], 1.0);
    EXPECT_EQ(o2[0], kTwoPi);
    EXPECT_EQ(o2[1], 6.5);
}

TEST(IntervalIntPeri, CoveringAndNonPeriodicCases) {
    const double whole[2] = {0, 7}, b[2] = {1, 2}, c[2] = {3, 4};
    int n = 0;
    double o1[2];
    EXPECT_EQ(intervalIntPeri(b, whole, kTwoPi, 1e-10, &n, o1, nullptr), 1);
    EXPECT_EQ(n, 1);
    EXPECT_EQ(o1[0], 1.0);
    EXPECT_EQ(intervalIntPeri(b, c, 0.0, 1e-10, &n, o1, nullptr), 0);
    EXPECT_EQ(n, 0);
}

} // namespace
