#include <korvane/containers.h>

#include <gtest/gtest.h>

namespace {

// Writes every element a string of n may hold (n + 3 of them): the sanitizer
// build turns any shortfall into a failure.
void fill(double *s, int count) {
    for (int i = 0; i < count; ++i)
        s[i] = i;
}

TEST(Strings, HoldThreeSpareElementsOfTheirWidth) {
    using Make = double *(*)(int);
    const Make make[5] = {NewStr1D, NewStr2D, NewStr3D, NewStr4D, NewStr5D};
    for (int w = 1; w <= 5; ++w) {
        double *s = make[w - 1](4);
        ASSERT_NE(s, nullptr);
        fill(s, 7 * w);
        EXPECT_EQ(s[7 * w - 1], 7 * w - 1);
        DelStr3D(&s); // the release is one function under five names
        EXPECT_EQ(s, nullptr);
    }
    double *k = NewKntStr(3, 4);
    ASSERT_NE(k, nullptr);
    fill(k, 12);
    DelStr1D(&k);
    EXPECT_EQ(k, nullptr);
}

TEST(Strings, AnImpossibleSizeGivesNull) {
    EXPECT_EQ(NewStr1D(-4), nullptr);
    EXPECT_EQ(NewStr5D(-100), nullptr);
    EXPECT_EQ(NewKntStr(-3, -3), nullptr);
    double *s = NewStr2D(-3); // zero elements is still a block
    ASSERT_NE(s, nullptr);
    DelStr2D(&s);
}

TEST(Strings, ReleasingANullStringLeavesItNull) {
    double *s = nullptr;
    DelStr1D(&s);
    EXPECT_EQ(s, nullptr);
}

TEST(Nets, AllocateRowsZeroToNOfMPlusThreeElements) {
    double **net = nullptr;
    NewNet3D(&net, 2, 5);
    ASSERT_NE(net, nullptr);
    for (int i = 0; i <= 2; ++i) {
        ASSERT_NE(net[i], nullptr);
        fill(net[i], 8 * 3);
    }
    DelNet3D(2, &net);
    EXPECT_EQ(net, nullptr);

    NewNet4D(&net, 0, 0);
    ASSERT_NE(net, nullptr);
    fill(net[0], 3 * 4);
    DelNet1D(0, &net);
    EXPECT_EQ(net, nullptr);
    DelNet2D(3, &net); // a null table: only the null store
    EXPECT_EQ(net, nullptr);
}

TEST(Nets, ANegativeBoundMakesATableWithoutRows) {
    double **net = nullptr;
    NewNet1D(&net, -1, 4);
    ASSERT_NE(net, nullptr);
    DelNet1D(-1, &net);
    EXPECT_EQ(net, nullptr);
    NewNet2D(&net, -10, 4);
    EXPECT_EQ(net, nullptr);
}

TEST(Nets, AHalfBuiltNetIsReleasedUpToItsFirstNullRow) {
    // Row 2 failed: slots behind it are never read, so a poisoned slot there
    // must not be touched.
    double poison = 0.0;
    double **net = new double *[8];
    net[0] = new double[4];
    net[1] = new double[4];
    net[2] = nullptr;
    net[3] = &poison;
    DelNet1D(5, &net);
    EXPECT_EQ(net, nullptr);
}

} // namespace
