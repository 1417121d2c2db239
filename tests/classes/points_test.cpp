#include <korvane/classes.h>

#include "classes/gm_guard.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>

namespace {

const float kTwoPiF = 6.2831855f;

TEST(Tolerances, DefaultsAndSettersStoreWithoutValidation) {
    EXPECT_EQ(gmGetDistTol(), 0.002);
    EXPECT_EQ(gmGetParaTol(), 0.0001);
    EXPECT_EQ(gmGetAbsDistTol(), 1e-06);
    EXPECT_EQ(gmGetAbsParaTol(), 1e-06);
    EXPECT_EQ(gmGetAbsZero(), 1e-10);
    GmGuard guard;
    gmSetDistTol(-3.0);
    gmSetAbsZero(0.0);
    EXPECT_EQ(gmGetDistTol(), -3.0);
    EXPECT_EQ(gmGetAbsZero(), 0.0);
}

TEST(PointLayout, NdPointsArePackedPlainValues) {
    EXPECT_EQ(sizeof(nd_point_2d), 10u);
    EXPECT_EQ(sizeof(nd_point_3d), 14u);
    nd_point_2d arr[3];
    EXPECT_EQ(reinterpret_cast<char *>(&arr[1]) - reinterpret_cast<char *>(&arr[0]), 10);
    EXPECT_TRUE(std::is_trivially_copyable<TRANSF_3D>::value);
    EXPECT_TRUE(std::is_trivially_copyable<Box3D>::value);
}

TEST(PointAssign, TagBelongsToTheLeftSideMissingFieldsAreFixed) {
    nd_point_2d nd;
    nd.tag = 7;
    nd = point_3d(3.0f, 4.0f, 5.0f);
    EXPECT_EQ(nd.tag, 7);
    EXPECT_EQ(nd.x, 3.0f);
    point_2d p(9.0f, 9.0f);
    p = nd; // the tag is lost
    EXPECT_EQ(p.y, 4.0f);
    nd_point_3d nd3;
    nd3.tag = -2;
    nd3 = point_3d(1.0f, 2.0f, 3.0f);
    EXPECT_EQ(nd3.tag, -2);

    point_4d h(5.0f, 6.0f, 7.0f, 8.0f);
    h = point_3d(1.0f, 2.0f, 3.0f);
    EXPECT_EQ(h.w, 1.0f);
    h.Set(5.0f, 6.0f, 7.0f, 8.0f);
    h = point_2d(1.0f, 2.0f);
    EXPECT_EQ(h.z, 0.0f);
    EXPECT_EQ(h.w, 1.0f);
    point_3d q(1.0f, 2.0f, 3.0f);
    q = point_2d(4.0f, 5.0f);
    EXPECT_EQ(q.z, 0.0f);
}

TEST(PointAccess, AnyOtherIndexGivesX) {
    point_2d p(1.0f, 0.0f);
    EXPECT_EQ(&p[5], &p.x);
    EXPECT_EQ(&p[-1], &p.x);
    EXPECT_EQ(&p[1], &p.y);
    point_3d q(1.0f, 2.0f, 3.0f);
    EXPECT_EQ(&q[2], &q.z);
    EXPECT_EQ(&q[3], &q.x);
    const float data[3] = {1.0f, 2.0f, 3.0f};
    const float *cur = data;
    point_3d r(cur); // reads without advancing
    EXPECT_EQ(cur, data);
    EXPECT_EQ(r.z, 3.0f);
}

TEST(PointEquality, TwoDimensionsAllowTenTimesTheTolerance) {
    point_2d a(0.0f, 0.0f), b(5e-06f, 0.0f);
    EXPECT_EQ(a == b, 1);
    EXPECT_EQ(a != b, 0);
    point_3d c(0.0f, 0.0f, 0.0f), d(5e-06f, 0.0f, 0.0f);
    EXPECT_EQ(c == d, 0);
    EXPECT_EQ(c != d, 1);
}

TEST(PointEquality, AtTheToleranceOnly2DNotEqualHolds) {
    GmGuard guard;
    gmSetAbsDistTol(0.0625); // 0.625 in 2D; the distances below are exact
    point_2d a(0.0f, 0.0f), b(0.625f, 0.0f);
    EXPECT_EQ(a == b, 0);
    EXPECT_EQ(a != b, 1);
    gmSetAbsDistTol(0.5);
    point_3d c(0.0f, 0.0f, 0.0f), d(0.0f, 0.0f, 0.5f);
    EXPECT_EQ(c == d, 0);
    EXPECT_EQ(c != d, 0);
    point_3d e(0.0f, 0.0f, std::nextafter(0.5f, 1.0f));
    EXPECT_EQ(c != e, 1);
    point_3d n(std::numeric_limits<float>::quiet_NaN(), 0.0f, 0.0f);
    EXPECT_EQ(c == n, 0);
    EXPECT_EQ(c != n, 0);
}

TEST(PointDivision, GuardLeavesPointUnchanged) {
    point_2d p(3.0f, 4.0f);
    point_2d q = p / 0.0f;
    EXPECT_EQ(q.x, 3.0f);
    p /= 1e-11f;
    EXPECT_EQ(p.x, 3.0f);
    p /= std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(p.y, 4.0f);
    point_3d r = point_3d(1.0f, 2.0f, 3.0f) / 3.0f;
    EXPECT_EQ(r.x, float(1.0 * (1.0 / 3.0)));
    EXPECT_EQ(r.z, float(3.0 * (1.0 / 3.0)));

    GmGuard guard;
    gmSetAbsZero(0.5);
    point_3d s(1.0f, 1.0f, 1.0f);
    EXPECT_EQ((s / 0.5f).x, 1.0f); // at the guard: no division
    EXPECT_EQ((s / -0.5f).x, 1.0f);
    EXPECT_NE((s / std::nextafter(0.5f, 1.0f)).x, 1.0f);

    gmSetAbsZero(1e-30); // point_4d keeps its own guard
    point_4d h(1.0f, 2.0f, 3.0f, 4.0f);
    h /= 1e-08f;
    EXPECT_EQ(h.x, 1.0f);
    EXPECT_EQ(h.w, 4.0f);
    h /= 2.0f;
    EXPECT_EQ(h.w, 2.0f);
}

TEST(PointUnit, ThresholdIsTheFixedLiteral) {
    point_2d tiny(5e-10f, 0.0f);
    EXPECT_EQ(tiny.Unit(), 0.0f);
    EXPECT_EQ(tiny.x, 0.0f);
    point_2d v(3.0f, 4.0f);
    EXPECT_EQ(v.Unit(), 5.0f);
    EXPECT_EQ(v.x, float(3.0 * (1.0 / 5.0)));
    EXPECT_EQ(v.y, float(4.0 * (1.0 / 5.0)));

    GmGuard guard;
    gmSetAbsDistTol(10.0);             // not read by Unit
    point_3d below(1e-9f, 0.0f, 0.0f); // rounds to just under 1e-9
    EXPECT_EQ(below.Unit(), 0.0f);
    point_3d above(std::nextafter(1e-9f, 1.0f), 0.0f, 0.0f);
    EXPECT_GT(above.Unit(), 0.0f);
    EXPECT_EQ(above.x, 1.0f);
}

TEST(PointAngles, AxisAnglesSnapAndWrap) {
    EXPECT_EQ(point_2d(1.0f, 0.0f).AngleToXAxis(), 0.0f);
    EXPECT_EQ(point_2d(1.0f, -1e-05f).AngleToXAxis(), kTwoPiF);
    EXPECT_EQ(point_2d(1.0f, 1e-05f).AngleToXAxis(), 0.0f);
    EXPECT_EQ(point_2d(-1.0f, 0.0f).AngleToXAxis(), float(3.141592653589793));
    EXPECT_EQ(point_2d(0.0f, 0.0f).AngleToXAxis(), 0.0f);
    // the single-precision pi/2 lies above the true value: wrapped, then snapped
    EXPECT_EQ(point_2d(0.0f, 1.0f).AngleToYAxis(), kTwoPiF);
    EXPECT_NEAR(point_2d(1.0f, 0.0f).AngleToYAxis(), 3.0 * 3.141592653589793 / 2.0, 1e-6);

    // 3D snaps with gmGetAbsParaTol only, and ignores z
    EXPECT_NEAR(point_3d(1.0f, -1e-05f, 7.0f).AngleToXAxis(), 6.2831854820251465 - 1e-05, 1e-6);
    EXPECT_EQ(point_3d(0.0f, 1.0f, 7.0f).AngleToYAxis(), kTwoPiF);
    EXPECT_EQ(point_3d(0.0f, 0.0f, -1.0f).AngleToZAxis(),
              float(1.5707963705062866 + 1.5707963267948966));
    EXPECT_EQ(point_3d(0.0f, 0.0f, 1.0f).AngleToZAxis(),
              float(1.5707963705062866 - 1.5707963267948966));
    EXPECT_EQ(point_3d(1.0f, 0.0f, 0.0f).AngleToZAxis(), 1.5707964f);
}

TEST(PointAngles, SnapIncludesTheToleranceItself) {
    GmGuard guard;
    const double twoPi = 6.2831854820251465;
    point_2d below(1.0f, -0.01f), above(1.0f, 0.01f);
    double gapBelow = std::fabs(std::atan2(-0.01f, 1.0) + twoPi - twoPi);
    double gapAbove = std::atan2(0.01f, 1.0);
    gmSetParaTol(gapBelow);
    EXPECT_EQ(below.AngleToXAxis(), 6.2831855f);
    gmSetParaTol(std::nextafter(gapBelow, 0.0));
    EXPECT_LT(below.AngleToXAxis(), 6.2831855f);
    gmSetParaTol(gapAbove);
    EXPECT_EQ(above.AngleToXAxis(), 0.0f);
    gmSetParaTol(std::nextafter(gapAbove, 0.0));
    EXPECT_GT(above.AngleToXAxis(), 0.0f);
    gmSetAbsParaTol(gapAbove); // 3D reads its own tolerance
    EXPECT_EQ(point_3d(1.0f, 0.01f, 5.0f).AngleToXAxis(), 0.0f);
}

TEST(PointArithmetic, MatrixProductIsRowVectorOnEitherSide) {
    float m[9] = {0.0f, 1.0f, 99.0f, -1.0f, 0.0f, 99.0f, 5.0f, 6.0f, 99.0f};
    point_2d p(2.0f, 3.0f);
    point_2d a = p * m, b = m * p;
    EXPECT_EQ(a.x, 2.0f * 0.0f - 3.0f + 5.0f);
    EXPECT_EQ(a.y, 2.0f + 6.0f);
    EXPECT_EQ(b.x, a.x);
    EXPECT_EQ(b.y, a.y);

    float n[16] = {1, 0, 0, 42, 0, 2, 0, 42, 0, 0, 3, 42, 10, 20, 30, 42};
    point_3d q(1.0f, 1.0f, 1.0f);
    point_3d r = n * q;
    EXPECT_EQ(r.x, 11.0f);
    EXPECT_EQ(r.y, 22.0f);
    EXPECT_EQ(r.z, 33.0f);
    EXPECT_EQ((2.0f * q).z, 2.0f);
}

TEST(PointArithmetic, ProductsAgreeWithTheSpaceCrossProduct) {
    point_2d p(1.5f, -2.0f), a(0.25f, 3.0f), b(-1.0f, 0.5f);
    point_3d p3(p.x, p.y, 0.0f), a3(a.x, a.y, 0.0f), b3(b.x, b.y, 0.0f);
    point_3d oracle = p3.Xproduct(a3).Xproduct(b3);
    point_2d got = p.Xproduct(a, b);
    EXPECT_FLOAT_EQ(got.x, oracle.x);
    EXPECT_FLOAT_EQ(got.y, oracle.y);
    EXPECT_FLOAT_EQ(p.Xproduct(a), p3.Xproduct(a3).z);
    point_3d c(0.5f, 1.0f, -2.0f);
    EXPECT_FLOAT_EQ(p3.HybridProduct(a3 + c, c), p3.Xproduct(a3 + c).Iproduct(c));
}

} // namespace
