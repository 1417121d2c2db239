#include <korvane/containers.h>

#include <gtest/gtest.h>

namespace {

// Writes every element a block may hold: the sanitizer build turns any
// shortfall into a failure.
void fill(double *s, int count) {
    for (int i = 0; i < count; ++i)
        s[i] = i;
}

TEST(Strings, HoldThreeSpareElementsAndNullForAnImpossibleSize) {
    double *(*const make[5])(int) = {NewStr1D, NewStr2D, NewStr3D, NewStr4D, NewStr5D};
    for (int w = 1; w <= 5; ++w) {
        double *s = make[w - 1](4);
        ASSERT_NE(s, nullptr);
        fill(s, 7 * w);
        DelStr3D(&s); // one release under five names
        EXPECT_EQ(s, nullptr);
        DelStr1D(&s); // null stays null
        EXPECT_EQ(s, nullptr);
        EXPECT_EQ(make[w - 1](-4), nullptr);
    }
    double *k = NewKntStr(3, 4);
    ASSERT_NE(k, nullptr);
    fill(k, 12);
    DelStr1D(&k);
    EXPECT_EQ(NewKntStr(-3, -3), nullptr);
}

TEST(Nets, AllocateRowsZeroToNOfMPlusThreeElements) {
    double **net = nullptr;
    NewNet3D(&net, 2, 5);
    ASSERT_NE(net, nullptr);
    for (int i = 0; i <= 2; ++i)
        fill(net[i], 8 * 3);
    DelNet3D(2, &net);
    EXPECT_EQ(net, nullptr);
    DelNet2D(3, &net);     // a null table: only the null store
    NewNet1D(&net, -1, 4); // a table without rows
    ASSERT_NE(net, nullptr);
    DelNet1D(-1, &net);
    EXPECT_EQ(net, nullptr);
}

TEST(Nets, AHalfBuiltNetIsReleasedUpToItsFirstNullRow) {
    // Row 2 failed; the poisoned slot behind it must never be read.
    double poison = 0.0;
    double **net = new double *[8];
    net[0] = new double[4];
    net[1] = new double[4];
    net[2] = nullptr;
    net[3] = &poison;
    DelNet4D(5, &net);
    EXPECT_EQ(net, nullptr);
}

} // namespace
