#include <korvane/containers.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

using V = std::vector<double>;

TEST(SortDblArray, AgreesWithTheStandardSortAndStaysInItsCount) {
    std::mt19937 rng(1);
    std::uniform_int_distribution<int> u(-5, 5);
    for (int n = 0; n < 14; ++n) {
        V a(n + 1, 99.0);
        std::generate_n(a.begin(), n, [&] { return u(rng) * 0.5; });
        V want = a;
        std::sort(want.begin(), want.begin() + n);
        mathSortDblArray(n, a.data());
        EXPECT_EQ(a, want);
    }
}

// The count kept and the whole array after; the tail past the count is stale.
static void expectFiltered(V a, double tol, int kept, const V &after) {
    EXPECT_EQ(mathFilterDblArray(static_cast<int>(a.size()), a.data(), tol), kept);
    EXPECT_EQ(a, after);
}

TEST(FilterDblArray, ComparesWithTheLastKeptValueAndCompactsOverTheMarkers) {
    expectFiltered({0.0, 0.4, 0.8, 1.2, 1.6, 5.0}, 1.0, 3, {0.0, 1.2, 5.0, 1.2, 1e100, 5.0});
    expectFiltered({1, 1, 1, 2}, 0.0, 4, {1, 1, 1, 2}); // strict: equal values stay at tol 0
    expectFiltered({1, 2, 3}, 1.0, 3, {1, 2, 3});       // a gap equal to tol stays
    expectFiltered({1, 2, 9.999999999e99, 1e300}, 0.5, 2, {1, 2, 9.999999999e99, 1e300});
    V b{3.0, 1e100}; // fewer than two values: one, untouched
    for (int n : {-4, 0, 1})
        EXPECT_EQ(mathFilterDblArray(n, b.data(), 1.0), 1);
    EXPECT_EQ(b, (V{3.0, 1e100}));
}

TEST(DblArray, FirstOfEqualExtremesWinsAndReversalStaysInItsCount) {
    V a{1, 3, 3, -2, -2}, r(4), b{1, 2, 3, 4, 5};
    EXPECT_EQ(mathGetDblArrayMaxVal(3, a.data(), &r[0]), 1);
    EXPECT_EQ(mathGetDblArrayMinVal(5, a.data(), &r[1]), 3);
    EXPECT_EQ(mathGetDblArrayMinMax(5, a.data(), &r[2], nullptr), 1);
    EXPECT_EQ(mathGetDblArrayMinMax(5, a.data(), nullptr, &r[3]), 1);
    EXPECT_EQ(r, (V{3, -2, -2, 3}));
    mathRevDblArray(5, b.data());
    EXPECT_EQ(b, (V{5, 4, 3, 2, 1}));
    mathRevDblArray(4, b.data());
    EXPECT_EQ(b, (V{2, 3, 4, 5, 1}));
}
