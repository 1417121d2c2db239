#include "classes/helpers.h"

#include <cmath>
#include <limits>
#include <random>
#include <type_traits>
#include <utility>

namespace {

using namespace korvane_test;
using Pair = std::pair<int, int>;
const double kPi = 3.141592653589793;
const float kTwoPiF = 6.2831855f;

// The packed array elements and the plain-value classes.
static_assert(sizeof(nd_point_2d) == 10 && sizeof(nd_point_3d) == 14, "packed");
static_assert(std::is_trivially_copyable<TRANSF_3D>::value, "plain value");
static_assert(std::is_trivially_copyable<Box3D>::value, "plain value");

// (a == b, a != b).
template <class P> Pair compare(const P &a, const P &b) {
    return {a == b, a != b};
}

TEST(Tolerances, Defaults) {
    EXPECT_EQ(gmGetDistTol(), 0.002);
    EXPECT_EQ(gmGetParaTol(), 0.0001);
    EXPECT_EQ(gmGetAbsDistTol(), 1e-06);
    EXPECT_EQ(gmGetAbsParaTol(), 1e-06);
    EXPECT_EQ(gmGetAbsZero(), 1e-10);
}

TEST(PointAssign, TagBelongsToTheLeftSideMissingFieldsAreFixed) {
    nd_point_2d nd;
    nd.tag = 7;
    nd = point_3d(3, 4, 5);
    EXPECT_TRUE(is(Wide{nd.x, nd.y, float(nd.tag)}, {3, 4, 7}));
    nd_point_3d nd3;
    nd3.tag = -2;
    nd3 = point_3d(1, 2, 3);
    EXPECT_EQ(nd3.tag, -2);
    point_4d h(5, 6, 7, 8), k(5, 6, 7, 8);
    h = nd3;
    k = point_2d(1, 2);
    EXPECT_TRUE(is(h, {1, 2, 3, 1}));
    EXPECT_TRUE(is(k, {1, 2, 0, 1}));
    point_3d q(1, 2, 3);
    q = point_2d(4, 5);
    EXPECT_TRUE(is(q, {4, 5, 0}));
}

TEST(PointAccess, AnyOtherIndexGivesX) {
    point_2d p(1, 0);
    point_3d q(1, 2, 3);
    EXPECT_EQ(&p[1], &p.y);
    EXPECT_EQ(&q[2], &q.z);
    EXPECT_EQ(&p[-1], &p.x);
    EXPECT_EQ(&p[2], &p.x);
    EXPECT_EQ(&q[3], &q.x);
    const float data[3] = {1, 2, 3}, *cur = data;
    EXPECT_TRUE(is(point_3d(cur), {1, 2, 3}));
    EXPECT_EQ(cur, data); // read without advancing
}

TEST(PointEquality, TenTimesTheToleranceIn2DAGapBetweenTheOperatorsIn3D) {
    EXPECT_EQ(compare(point_2d(0, 0), point_2d(5e-06f, 0)), Pair(1, 0));
    EXPECT_EQ(compare(point_3d(0, 0, 0), point_3d(5e-06f, 0, 0)), Pair(0, 1));
    GmGuard guard;
    gmSetAbsDistTol(0.0625); // 0.625 in 2D; the distances below are exact
    EXPECT_EQ(compare(point_2d(0, 0), point_2d(0.625f, 0)), Pair(0, 1));
    gmSetAbsDistTol(0.5);
    point_3d o(0, 0, 0);
    EXPECT_EQ(compare(o, point_3d(0, 0, 0.5f)), Pair(0, 0));
    EXPECT_EQ(compare(o, point_3d(0, 0, std::nextafter(0.5f, 1.0f))), Pair(0, 1));
    EXPECT_EQ(compare(o, point_3d(std::numeric_limits<float>::quiet_NaN(), 0, 0)), Pair(0, 0));
}

TEST(PointDivision, GuardLeavesPointUnchanged) {
    point_2d p(3, 4);
    p /= 0.0f;
    EXPECT_TRUE(is(p / std::numeric_limits<float>::quiet_NaN(), {3, 4}));
    GmGuard guard;
    gmSetAbsZero(0.5);
    point_3d s(1, 1, 1);
    EXPECT_TRUE(is(s / 0.5f, {1, 1, 1})); // at the guard: no division
    EXPECT_NE((s / std::nextafter(0.5f, 1.0f)).x, 1.0f);
    gmSetAbsZero(1e-30); // point_4d keeps its own guard
    point_4d h(1, 2, 3, 4);
    EXPECT_TRUE(is(h / 1e-08f, {1, 2, 3, 4}));
    EXPECT_TRUE(is(h / 2.0f, {0.5, 1, 1.5, 2}));
}

TEST(PointUnit, ThresholdIsTheFixedLiteral) {
    point_2d tiny(5e-10f, 0), v(3, 4);
    EXPECT_EQ(tiny.Unit(), 0.0f);
    EXPECT_TRUE(is(tiny, {0, 0}));
    EXPECT_EQ(v.Unit(), 5.0f);
    EXPECT_TRUE(is(v, {0.6f, 0.8f}));
    GmGuard guard;
    gmSetAbsDistTol(10.0); // not read by Unit
    // either side of 1e-9: the float nearest 1e-9 lies just below it
    point_3d below(1e-9f, 0, 0), above(std::nextafter(1e-9f, 1.0f), 0, 0);
    EXPECT_EQ(below.Unit(), 0.0f);
    EXPECT_GT(above.Unit(), 0.0f);
    EXPECT_TRUE(is(above, {1, 0, 0}));
}

TEST(PointAngles, AxisAnglesSnapAndWrap) {
    EXPECT_EQ(point_2d(1, -1e-05f).AngleToXAxis(), kTwoPiF);
    EXPECT_EQ(point_2d(-1, 0).AngleToXAxis(), float(3.141592653589793));
    EXPECT_EQ(point_2d(0, 0).AngleToXAxis(), 0.0f);
    // the single-precision pi/2 lies above the true value: wrapped, then snapped
    EXPECT_EQ(point_2d(0, 1).AngleToYAxis(), kTwoPiF);
    EXPECT_NEAR(point_2d(1, 0).AngleToYAxis(), 3.0 * 3.141592653589793 / 2.0, 1e-6);
    // 3D snaps with gmGetAbsParaTol only, and ignores z
    EXPECT_NEAR(point_3d(1, -1e-05f, 7).AngleToXAxis(), 6.2831854820251465 - 1e-05, 1e-6);
    EXPECT_EQ(point_3d(0, 1, 7).AngleToYAxis(), kTwoPiF);
    EXPECT_EQ(point_3d(0, 0, -1).AngleToZAxis(), float(1.5707963705062866 + 1.5707963267948966));
    EXPECT_EQ(point_3d(0, 0, 1).AngleToZAxis(), float(1.5707963705062866 - 1.5707963267948966));
}

TEST(PointAngles, SnapIncludesTheToleranceItself) {
    GmGuard guard;
    point_2d below(1, -0.01f), above(1, 0.01f);
    double gapBelow = std::fabs(std::atan2(-0.01f, 1.0) + 6.2831854820251465 - 6.2831854820251465);
    double gapAbove = std::atan2(0.01f, 1.0);
    gmSetParaTol(gapBelow);
    EXPECT_EQ(below.AngleToXAxis(), kTwoPiF);
    gmSetParaTol(std::nextafter(gapBelow, 0.0));
    EXPECT_LT(below.AngleToXAxis(), kTwoPiF);
    gmSetParaTol(gapAbove);
    EXPECT_EQ(above.AngleToXAxis(), 0.0f);
    gmSetParaTol(std::nextafter(gapAbove, 0.0));
    EXPECT_GT(above.AngleToXAxis(), 0.0f);
    gmSetAbsParaTol(gapAbove); // 3D reads its own tolerance
    EXPECT_EQ(point_3d(1, 0.01f, 5).AngleToXAxis(), 0.0f);
}

TEST(PointDistance, OneRoundingFromDoubleIntermediates) {
    const point_2d a(0, 0), far(1e20f, 0), tiny(1e-25f, 0);
    EXPECT_EQ(a.DistFrom(far), 1e20f); // the square would overflow a float
    EXPECT_EQ(a.DistFrom(tiny), 1e-25f);
    const point_2d p(-3.7345295f, -1.61610985f), q(0.490962982f, 3.70439053f);
    const double dx = double(p.x) - q.x, dy = double(p.y) - q.y;
    EXPECT_EQ(p.DistFrom(q), float(std::sqrt(dx * dx + dy * dy)));
    EXPECT_EQ(point_3d(0, 0, 0).DistFrom(point_3d(0, 0, 1e20f)), 1e20f);
}

TEST(PointArithmetic, MatrixProductIsRowVectorOnEitherSide) {
    float m[9] = {0, 1, 99, -1, 0, 99, 5, 6, 99},
          n[16] = {1, 0, 0, 42, 0, 2, 0, 42, 0, 0, 3, 42, 10, 20, 30, 42};
    point_2d p(2, 3);
    point_3d q(1, 1, 1);
    EXPECT_TRUE(is(p * m, {2, 8}));
    EXPECT_TRUE(is(m * p, {2, 8}));
    EXPECT_TRUE(is(q * n, {11, 22, 33}));
    EXPECT_TRUE(is(n * q, {11, 22, 33}));
}

TEST(PointArithmetic, ProductsAgreeWithTheSpaceCrossProduct) {
    point_2d p(1.5f, -2.0f), a(0.25f, 3.0f), b(-1.0f, 0.5f);
    point_3d p3(p.x, p.y, 0), a3(a.x, a.y, 0), b3(b.x, b.y, 0), c(0.5f, 1.0f, -2.0f);
    point_3d oracle = p3.Xproduct(a3).Xproduct(b3);
    EXPECT_TRUE(is(p.Xproduct(a, b), {oracle.x, oracle.y}, 1e-5));
    EXPECT_FLOAT_EQ(p.Xproduct(a), p3.Xproduct(a3).z);
    EXPECT_FLOAT_EQ(p3.HybridProduct(a3 + c, c), p3.Xproduct(a3 + c).Iproduct(c));
}

// (t, q, d) of GetDistLineSeg, or of GetProjectPoint when not clamped; both return 1.
Wide nearest(const point_2d &p, point_2d a, point_2d b, bool clamped = true) {
    float t = 9, d = 9;
    point_2d q(9, 9);
    EXPECT_EQ(clamped ? p.GetDistLineSeg(a, b, t, q, d) : p.GetProjectPoint(a, b, t, q, d), 1);
    return Wide{t, q.x, q.y, d};
}

TEST(GetDistLineSeg, ShortSegmentsSlackAndTies) {
    point_2d a(0, 0), b(1, 0);
    EXPECT_TRUE(is(nearest(point_2d(3, 4), a, a), {0, 0, 0, 5}));
    // 0.001 is below gmGetDistTol: still a point, though p projects inside
    EXPECT_TRUE(is(nearest(point_2d(0.0005f, 1), a, point_2d(0.001f, 0)), {0, 0, 0, 1}, 1e-6));
    EXPECT_TRUE(is(nearest(point_2d(1.00005f, 1), a, b), {1.00005, 1.00005, 0, 1}, 1e-6));
    EXPECT_TRUE(is(nearest(point_2d(1.001f, 1), a, b), {1, 1, 0, 1}, 1e-6));
    GmGuard guard;
    gmSetParaTol(0.25); // exact boundaries: (-0.25, 1.25]
    EXPECT_TRUE(is(nearest(point_2d(1.25f, 0), a, b), {1.25, 1.25, 0, 0}));
    EXPECT_TRUE(is(nearest(point_2d(-0.25f, 0), a, b), {0, 0, 0, 0.25}));
    gmSetParaTol(-0.6); // no parameter passes: the ends decide, a tie going to b
    EXPECT_TRUE(is(nearest(point_2d(0.5f, 2), a, b), {1, 1, 0, std::sqrt(4.25)}, 1e-6));
}

TEST(Projection, UnclampedAndShortLinesCountAsTheStartPoint) {
    EXPECT_TRUE(is(nearest(point_2d(5, 3), point_2d(0, 0), point_2d(2, 0), false), {2.5, 5, 0, 3}));
    // 2D compares the length with gmGetDistTol, 3D the squared length with gmGetAbsDistTol
    EXPECT_TRUE(
        is(nearest(point_2d(1, 3), point_2d(1, 1), point_2d(1.0015f, 1), false), {0, 1, 1, 2}));
    point_3d p(0, 1, 0), o(0, 0, 0), q;
    float t, d;
    p.GetMinDistance(point_3d(-0.0009f, 0, 0), o, t, q, d);
    EXPECT_TRUE(is(Wide{t, q.x, q.y, q.z, d}, {0, -0.0009, 0, 0, 1}, 1e-6));
    p.GetMinDistance(point_3d(-0.0011f, 0, 0), o, t, q, d);
    EXPECT_TRUE(is(Wide{t, q.x, q.y, q.z, d}, {1, 0, 0, 0, 1}, 1e-5));
    EXPECT_FLOAT_EQ(point_2d(1, 3).GetDistLine(point_2d(0, 0), point_2d(4, 4)),
                    float(std::sqrt(2)));
    EXPECT_EQ(point_2d(3, 4).GetDistLine(point_2d(0, 0), point_2d(0.0005f, 0)), 5.0f);
    // the z of o counts: the plane point sits one unit below the line
    EXPECT_EQ(point_2d(2, 0).GetDistLine(point_3d(0, 0, 1), point_3d(1, 0, 0), t), 1.0f);
    EXPECT_EQ(t, 2.0f);
    EXPECT_EQ(point_3d(2, 3, 0).GetDistLine(o, point_3d(1, 0, 0), t), 3.0f);
}

TEST(DirectionPredicates, FixedCosineZeroVectorsAndTwoPerpendicularTolerances) {
    point_2d x(1, 0), zero;
    point_3d x3(1, 0, 0), zero3;
    EXPECT_EQ(x.IsSameDirection(point_2d(0.999f, 0.01f)), 1);
    EXPECT_EQ(x.IsSameDirection(point_2d(0.999f, 0.02f)), 0);
    EXPECT_EQ(x.IsSameDirection(point_2d(-1, 0)), 0);
    EXPECT_EQ(x.IsParallel(point_2d(-1, 0)), 1);
    EXPECT_EQ(x.IsParallel(zero) + x3.IsParallel(zero3), 0);
    EXPECT_EQ(x.IsPerpendicular(zero) + x3.IsPerpendicular(zero3), 2);
    EXPECT_EQ(x.IsPerpendicular(point_2d(0.001f, 1)), 1); // gmGetDistTol in 2D
    EXPECT_EQ(x.IsPerpendicular(point_2d(0.003f, 1)), 0);
    EXPECT_EQ(x3.IsPerpendicular(point_3d(0.001f, 1, 0)), 0); // gmGetAbsDistTol in 3D
}

TEST(Collinearity, APointOnAnEndIsCollinearOnlyIn3D) {
    point_2d p(1, 1), o(0, 0);
    point_3d q(1, 1, 1), o3(0, 0, 0);
    EXPECT_EQ(p.IsConLine(p, point_2d(5, 7)), 0);
    EXPECT_EQ(p.IsConLine(o, point_2d(3, 3)), 1);
    EXPECT_EQ(p.IsConLine(o, point_2d(3, 3.01f)), 0);
    EXPECT_EQ(q.IsConLine(q, point_3d(5, 7, 2)), 1);
    EXPECT_EQ(q.IsConLine(o3, point_3d(2, 2, 2.1f)), 0);
    point_2d pts[4] = {o, point_2d(0.5f, 0.25f), point_2d(0.75f, -0.125f), point_2d(1, 0)};
    EXPECT_EQ(IsPtsColine(pts, 4, 0.25f), 1); // a distance equal to tol passes
    EXPECT_EQ(IsPtsColine(pts, 4, std::nextafter(0.25f, 0.0f)), 0);
    EXPECT_EQ(IsPtsColine(pts + 1, 2, -1.0f), 1); // no inner point
}

TEST(IsOnSeg, ThreeDimensionsMeasureTheDetourInsideTheWidenedBox) {
    point_3d a(0, 0, 0), b(2, 0, 0);
    EXPECT_EQ(point_3d(2.5f, 0, 0).IsOnSeg(a, b), 0);
    // 1e-4 off the middle: the detour is only 1e-8, but the flat box excludes it
    EXPECT_EQ(point_3d(1, 1e-4f, 0).IsOnSeg(a, b), 0);
    EXPECT_EQ(point_3d(1, 1e-4f, 0).IsOnSeg(a, point_3d(2, 1e-3f, 0)), 1);
    EXPECT_EQ(point_2d(1, 1e-4f).IsOnSeg(point_2d(0, 0), point_2d(2, 1e-3f)), 0);
    EXPECT_EQ(point_2d(1, 0).IsOn(point_2d(5, 0), point_2d(7, 0)), 1);
    EXPECT_EQ(point_2d(1, 0).IsOnSeg(point_2d(5, 0), point_2d(7, 0)), 0);
    GmGuard guard;
    gmSetAbsDistTol(0.5); // a distance equal to the tolerance is off
    point_2d l(-1, 0), r(1, 0);
    EXPECT_EQ(point_2d(0, 0.5f).IsOn(l, r) + point_2d(0, 0.5f).IsOnSeg(l, r), 0);
    EXPECT_EQ(point_2d(0, 0.25f).IsOnSeg(l, r), 1);
}

TEST(AngleToVector, AnticlockwiseInThePlaneUnsignedInSpace) {
    EXPECT_NEAR(point_2d(1, 0).AngleToVector(point_2d(0, -1)), 1.5 * kPi, 1e-6);
    EXPECT_EQ(point_3d(0, 1, 0).AngleToVector(point_3d(0, 2, 0)), 0.0f);
    EXPECT_EQ(point_3d(0, 1, 0).AngleToVector(point_3d(0, -2, 0)), 3.1415927f);
    // short vectors: the raw cross product 1e-8 counts as parallel, not the same direction
    EXPECT_EQ(point_3d(1e-4f, 0, 0).AngleToVector(point_3d(0, 1e-4f, 0)), 3.1415927f);
    std::mt19937 rng(7);
    std::uniform_real_distribution<float> u(-5.0f, 5.0f);
    for (int i = 0; i < 200; ++i) { // against atan2 and acos in double
        point_3d a(u(rng), u(rng), u(rng)), b(u(rng), u(rng), u(rng));
        point_2d a2(a.x, a.y), b2(b.x, b.y);
        if (a2.Length() < 0.1f || b2.Length() < 0.1f)
            continue;
        double turn = std::atan2(double(b.y), double(b.x)) - std::atan2(double(a.y), double(a.x));
        EXPECT_NEAR(std::remainder(a2.AngleToVector(b2) - turn, 2 * kPi), 0.0, 2e-5);
        double dot = double(a.x) * b.x + double(a.y) * b.y + double(a.z) * b.z;
        double lengths = std::hypot(double(a.x), double(a.y), double(a.z)) *
                         std::hypot(double(b.x), double(b.y), double(b.z));
        EXPECT_NEAR(a.AngleToVector(b), std::acos(dot / lengths), 2e-5);
    }
}

} // namespace
