#include <korvane/containers.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

TEST(SortDblArray, AgreesWithTheStandardSort) {
    std::mt19937 rng(1);
    std::uniform_int_distribution<int> u(-5, 5);
    for (int n = 0; n < 14; ++n) {
        std::vector<double> a(n + 1, 99.0);
        for (int i = 0; i < n; ++i)
            a[i] = u(rng) * 0.5;
        std::vector<double> b(a.begin(), a.begin() + n);
        std::sort(b.begin(), b.end());
        mathSortDblArray(n, a.data());
        for (int i = 0; i < n; ++i)
            EXPECT_EQ(a[i], b[i]);
        EXPECT_EQ(a[n], 99.0);
    }
}

TEST(FilterDblArray, ComparesWithTheLastKeptValue) {
    double a[6] = {0.0, 0.4, 0.8, 1.2, 1.6, 5.0};
    EXPECT_EQ(mathFilterDblArray(6, a, 1.0), 3);
    EXPECT_EQ(a[0], 0.0);
    EXPECT_EQ(a[1], 1.2);
    EXPECT_EQ(a[2], 5.0);
    EXPECT_EQ(a[3], 1.2); // stale tail
}

TEST(FilterDblArray, StrictToleranceKeepsEqualValuesAtZero) {
    double a[4] = {1.0, 1.0, 1.0, 2.0};
    EXPECT_EQ(mathFilterDblArray(4, a, 0.0), 4);
    double b[3] = {1.0, 2.0, 3.0};
    EXPECT_EQ(mathFilterDblArray(3, b, 1.0), 3); // a gap equal to tol is kept
}

TEST(FilterDblArray, SmallCountsReturnOneUntouched) {
    double a[2] = {3.0, 1e100};
    EXPECT_EQ(mathFilterDblArray(0, a, 1.0), 1);
    EXPECT_EQ(mathFilterDblArray(-4, a, 1.0), 1);
    EXPECT_EQ(mathFilterDblArray(1, a, 1.0), 1);
    EXPECT_EQ(a[0], 3.0);
    EXPECT_EQ(a[1], 1e100);
}

TEST(FilterDblArray, HugeInputValuesAreDroppedLikeMarkers) {
    double a[4] = {1.0, 2.0, 9.999999999e99, 1e300};
    EXPECT_EQ(mathFilterDblArray(4, a, 0.5), 2);
    EXPECT_EQ(a[1], 2.0);
}

TEST(DblArrayExtremes, FirstOfEqualExtremesWins) {
    const double a[5] = {1, 3, 3, -2, -2};
    double m = 0;
    EXPECT_EQ(mathGetDblArrayMaxVal(3, a, &m), 1);
    EXPECT_EQ(m, 3.0);
    EXPECT_EQ(mathGetDblArrayMinVal(5, a, &m), 3);
    EXPECT_EQ(m, -2.0);
    double lo = 0, hi = 0;
    EXPECT_EQ(mathGetDblArrayMinMax(5, a, &lo, nullptr), 1);
    EXPECT_EQ(lo, -2.0);
    EXPECT_EQ(mathGetDblArrayMinMax(5, a, nullptr, &hi), 1);
    EXPECT_EQ(hi, 3.0);
}

TEST(RevDblArray, ReversesOddAndEvenCounts) {
    double a[5] = {1, 2, 3, 4, 5};
    mathRevDblArray(5, a);
    EXPECT_EQ(a[0], 5.0);
    EXPECT_EQ(a[2], 3.0);
    EXPECT_EQ(a[4], 1.0);
    mathRevDblArray(4, a);
    EXPECT_EQ(a[0], 2.0);
    EXPECT_EQ(a[3], 5.0);
    EXPECT_EQ(a[4], 1.0);
}

} // namespace
