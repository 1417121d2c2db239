#include <korvane/containers.h>

#include <gtest/gtest.h>

#include <algorithm>

// Every element a block may hold is written: the sanitizer build turns any
// shortfall into a failure.

TEST(Strings, HoldThreeSpareElementsAndNullForAnImpossibleSize) {
    double *(*const make[5])(int) = {NewStr1D, NewStr2D, NewStr3D, NewStr4D, NewStr5D};
    void (*const release[5])(double **) = {DelStr1D, DelStr2D, DelStr3D, DelStr4D, DelStr5D};
    for (int w = 1; w <= 5; ++w) {
        double *s = make[w - 1](4);
        ASSERT_NE(s, nullptr);
        std::fill_n(s, 7 * w, 1.0);
        release[5 - w](&s); // one release under five names
        EXPECT_EQ(s, nullptr);
        release[w - 1](&s); // null stays null
        EXPECT_EQ(make[w - 1](-4), nullptr);
    }
    double *k = NewKntStr(3, 4);
    ASSERT_NE(k, nullptr);
    std::fill_n(k, 12, 1.0);
    DelStr1D(&k);
    EXPECT_EQ(NewKntStr(-3, -3), nullptr);
}

TEST(Nets, AllocateRowsZeroToNOfMPlusThreeElementsAndReleaseUpToTheFirstNullRow) {
    double **net = nullptr;
    NewNet3D(&net, 2, 5); // the sizes come after the table, unlike the release
    ASSERT_NE(net, nullptr);
    for (int i = 0; i <= 2; ++i)
        std::fill_n(net[i], 8 * 3, 1.0);
    DelNet3D(2, &net);
    EXPECT_EQ(net, nullptr);
    DelNet2D(3, &net); // a null table: only the null store
    // Half built: row 2 failed, and the poisoned slot behind it is never read.
    double poison = 0.0;
    net = new double *[8] { new double[4], new double[4], nullptr, &poison };
    DelNet4D(5, &net);
    EXPECT_EQ(net, nullptr);
}
