#include <korvane/kernel.h>

#include <gtest/gtest.h>

#include <cmath>

namespace {

const double kPi = 3.141592653589793;

TEST(PolylineLen, SumsSegmentsAndIsZeroBelowTwoPoints) {
    const double pts[12] = {0, 0, 0, 3, 4, 0, 3, 4, 12, 3, 4, 12};
    EXPECT_EQ(mathCalPolylineLen(1, pts), 0.0);
    EXPECT_EQ(mathCalPolylineLen(0, pts), 0.0);
    EXPECT_EQ(mathCalPolylineLen(4, pts), 17.0);
}

TEST(PolylineRotateAngle, AccumulatesUnsignedTurns) {
    const double zigzag[12] = {0, 0, 0, 1, 0, 0, 1, 1, 0, 2, 1, 0};
    EXPECT_EQ(mathCalPolylineRotateAngle(2, zigzag), 0.0);
    EXPECT_NEAR(mathCalPolylineRotateAngle(4, zigzag), kPi, 1e-15);
    const double straight[9] = {0, 0, 0, 1, 0, 0, 2, 0, 0};
    EXPECT_EQ(mathCalPolylineRotateAngle(3, straight), 0.0);
}

TEST(PolylineRotateAngle, RepeatedPointDropsTheWholeSum) {
    const double pts[15] = {0, 0, 0, 1, 0, 0, 1, 1, 0, 1, 1, 0, 0, 1, 0};
    EXPECT_EQ(mathCalPolylineRotateAngle(5, pts), 0.0);
    EXPECT_NEAR(mathCalPolylineRotateAngle(3, pts), kPi / 2, 1e-15);
}

TEST(CalArcLen1, SymmetricHalfOpenSum) {
    const double lens[7] = {100, 1, 2, 4, 8, 16, 32};
    EXPECT_EQ(mathCalArcLen1(lens, 2, 5), 4 + 8 + 16.0);
    EXPECT_EQ(mathCalArcLen1(lens, 5, 2), mathCalArcLen1(lens, 2, 5));
    EXPECT_EQ(mathCalArcLen1(lens, 3, 3), 0.0);
    EXPECT_EQ(mathCalArcLen1(lens, 0, 1), 1.0); // element 0 is never read
}

TEST(CalArcLen2, PairsApartFurtherThanTheGateGiveZero) {
    const double lens[4] = {0, 1, 2, 3};
    const double params[4] = {0, 1, 2, 3};
    EXPECT_EQ(mathCalArcLen2(4, lens, params, 0.0, 0.5), 0.0);
    EXPECT_EQ(mathCalArcLen2(4, lens, params, 0.5, 0.5 + 2e-10), 0.0);
    // Within the gate the piece is measured in the span's own scale.
    const double t1 = 1.5, t2 = 1.5 + 5e-11;
    EXPECT_EQ(mathCalArcLen2(4, lens, params, t1, t2), std::fabs(t2 - t1) * lens[2] / 1.0);
    EXPECT_EQ(mathCalArcLen2(4, lens, params, t2, t1), std::fabs(t1 - t2) * lens[2] / 1.0);
}

TEST(CalArcLen2, PairAcrossASpanBoundaryCountsTheSpanTwice) {
    const double lens[4] = {0, 1, 2, 3};
    const double params[4] = {0, 1, 2, 3};
    const double t1 = 1.0 - 4e-11, t2 = 1.0 + 4e-11; // i = 0, j = 1
    const double expected = mathCalArcLen1(lens, 0, 1) + std::fabs(params[1] - t1) * lens[1] / 1.0 +
                            std::fabs(t2 - params[1]) * lens[2] / 1.0;
    EXPECT_EQ(mathCalArcLen2(4, lens, params, t1, t2), expected);
    EXPECT_GT(mathCalArcLen2(4, lens, params, t1, t2), 1.0);
    const double back = mathCalArcLen1(lens, 1, 0) + std::fabs(t2 - params[1]) * lens[2] / 1.0 +
                        std::fabs(params[1] - t1) * lens[1] / 1.0;
    EXPECT_EQ(mathCalArcLen2(4, lens, params, t2, t1), back);
}

TEST(CalArcLen2, DegenerateSpanGivesZero) {
    const double lens[3] = {0, 1, 1};
    const double params[3] = {0, 0, 1};
    EXPECT_EQ(mathCalArcLen2(3, lens, params, 0.0, 0.0), 0.0);
}

TEST(IntPos, LinearSearchWithTheEndsHeld) {
    const double t[3] = {0, 1, 2};
    EXPECT_EQ(mathIntPos(3, t, -1.0), 0);
    EXPECT_EQ(mathIntPos(3, t, 0.5), 0);
    EXPECT_EQ(mathIntPos(3, t, 1.0), 1);
    EXPECT_EQ(mathIntPos(3, t, 5.0), 1);
    EXPECT_EQ(mathIntPos(3, t, 2.0 - 2e-10), 1);
    EXPECT_EQ(mathIntPos(3, t, 1e-10), 0);
    const double one[1] = {4};
    EXPECT_EQ(mathIntPos(1, one, 3.0), 0);
    EXPECT_EQ(mathIntPos(1, one, 5.0), -1);
    EXPECT_EQ(mathIntPos(0, one, 5.0), -1);
    const double unordered[3] = {0, 3, 1};
    EXPECT_EQ(mathIntPos(3, unordered, 2.5), 1); // n - 2 from the last-value test
    EXPECT_EQ(mathIntPos(3, t, std::nan("")), -1);
}

} // namespace
