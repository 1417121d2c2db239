#include <korvane/classes.h>

#include "classes/gm_guard.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

const double kPi = 3.141592653589793;

TEST(GetDistLineSeg, ShortSegmentCountsAsItsStartPoint) {
    point_2d p(3.0f, 4.0f), q(9.0f, 9.0f);
    float t = 9.0f, d = 9.0f;
    EXPECT_EQ(p.GetDistLineSeg(point_2d(0, 0), point_2d(0, 0), t, q, d), 1);
    EXPECT_EQ(t, 0.0f);
    EXPECT_EQ(q.x, 0.0f);
    EXPECT_EQ(d, 5.0f);
    // 0.001 is below gmGetDistTol: still a point, though p projects inside
    p.Set(0.0005f, 1.0f);
    p.GetDistLineSeg(point_2d(0, 0), point_2d(0.001f, 0), t, q, d);
    EXPECT_EQ(t, 0.0f);
    EXPECT_EQ(q.x, 0.0f);
}

TEST(GetDistLineSeg, ParameterSlackIsKeptUnclamped) {
    point_2d a(0.0f, 0.0f), b(1.0f, 0.0f), q;
    float t, d;
    point_2d(1.00005f, 1.0f).GetDistLineSeg(a, b, t, q, d);
    EXPECT_NEAR(t, 1.00005, 1e-6);
    EXPECT_GT(q.x, 1.0f);
    EXPECT_NEAR(d, 1.0, 1e-6);
    point_2d(1.001f, 1.0f).GetDistLineSeg(a, b, t, q, d);
    EXPECT_EQ(t, 1.0f);
    EXPECT_EQ(q.x, 1.0f);

    GmGuard guard;
    gmSetParaTol(0.25); // exact boundaries: (-0.25, 1.25]
    point_2d(1.25f, 0.0f).GetDistLineSeg(a, b, t, q, d);
    EXPECT_EQ(t, 1.25f);
    point_2d(-0.25f, 0.0f).GetDistLineSeg(a, b, t, q, d);
    EXPECT_EQ(t, 0.0f);
    EXPECT_EQ(d, 0.25f);
}

TEST(GetDistLineSeg, EqualEndDistancesGoToB) {
    GmGuard guard;
    gmSetParaTol(-0.6); // no parameter passes: the ends decide
    point_2d q;
    float t, d;
    point_2d(0.5f, 2.0f).GetDistLineSeg(point_2d(0, 0), point_2d(1, 0), t, q, d);
    EXPECT_EQ(t, 1.0f);
    EXPECT_EQ(q.x, 1.0f);
}

TEST(GetProjectPoint, ParameterIsUnclamped) {
    point_2d q;
    float t, d;
    EXPECT_EQ(point_2d(5.0f, 3.0f).GetProjectPoint(point_2d(0, 0), point_2d(2, 0), t, q, d), 1);
    EXPECT_EQ(t, 2.5f);
    EXPECT_EQ(q.x, 5.0f);
    EXPECT_EQ(d, 3.0f);
}

TEST(GetMinDistance, SquaredLengthDecidesDegeneracy) {
    point_3d p(0.0f, 1.0f, 0.0f), q;
    float t, d;
    // 0.0009 squared is below 1e-06: a point, though far above gmGetDistTol
    p.GetMinDistance(point_3d(-0.0009f, 0, 0), point_3d(0, 0, 0), t, q, d);
    EXPECT_EQ(t, 0.0f);
    EXPECT_EQ(q.x, -0.0009f);
    p.GetMinDistance(point_3d(-0.0011f, 0, 0), point_3d(0, 0, 0), t, q, d);
    EXPECT_NEAR(t, 1.0, 1e-5);
    EXPECT_NEAR(d, 1.0, 1e-6);
}

TEST(GetDistLine, ClosedFormAndThePlanePointTakenWithZZero) {
    EXPECT_FLOAT_EQ(point_2d(1.0f, 3.0f).GetDistLine(point_2d(0, 0), point_2d(4, 4)),
                    float(2.0 / std::sqrt(2.0)));
    EXPECT_EQ(point_2d(3.0f, 4.0f).GetDistLine(point_2d(0, 0), point_2d(0.0005f, 0)), 5.0f);
    float t;
    // the z of o counts: the plane point sits one unit below the line
    EXPECT_EQ(point_2d(2.0f, 0.0f).GetDistLine(point_3d(0, 0, 1), point_3d(1, 0, 0), t), 1.0f);
    EXPECT_EQ(t, 2.0f);
    EXPECT_EQ(point_3d(2.0f, 3.0f, 0.0f).GetDistLine(point_3d(0, 0, 0), point_3d(1, 0, 0), t),
              3.0f);
}

TEST(DirectionPredicates, FixedCosineAndZeroVectors) {
    EXPECT_EQ(point_2d(1, 0).IsSameDirection(point_2d(0.999f, 0.01f)), 1);
    EXPECT_EQ(point_2d(1, 0).IsSameDirection(point_2d(0.999f, 0.02f)), 0);
    EXPECT_EQ(point_2d(1, 0).IsParallel(point_2d(-1, 0)), 1);
    EXPECT_EQ(point_2d(1, 0).IsSameDirection(point_2d(-1, 0)), 0);
    EXPECT_EQ(point_3d(0, 0, 2).IsParallel(point_3d(0, 0, -5)), 1);
    EXPECT_EQ(point_2d(1, 0).IsParallel(point_2d(0, 0)), 0);
    EXPECT_EQ(point_2d(1, 0).IsPerpendicular(point_2d(0, 0)), 1);
    EXPECT_EQ(point_3d(1, 0, 0).IsParallel(point_3d(0, 0, 0)), 0);
    EXPECT_EQ(point_3d(1, 0, 0).IsPerpendicular(point_3d(0, 0, 0)), 1);
}

TEST(DirectionPredicates, PerpendicularityUsesADifferentToleranceIn2D) {
    EXPECT_EQ(point_2d(1, 0).IsPerpendicular(point_2d(0.001f, 1)), 1);
    EXPECT_EQ(point_3d(1, 0, 0).IsPerpendicular(point_3d(0.001f, 1, 0)), 0);
    EXPECT_EQ(point_2d(1, 0).IsPerpendicular(point_2d(0.003f, 1)), 0);
}

TEST(IsConLine, APointOnAnEndIsCollinearOnlyIn3D) {
    point_2d p(1.0f, 1.0f);
    EXPECT_EQ(p.IsConLine(p, point_2d(5, 7)), 0);
    EXPECT_EQ(p.IsConLine(point_2d(0, 0), point_2d(3, 3)), 1);
    EXPECT_EQ(p.IsConLine(point_2d(0, 0), point_2d(3, 3.01f)), 0);
    point_3d q(1.0f, 1.0f, 1.0f);
    EXPECT_EQ(q.IsConLine(q, point_3d(5, 7, 2)), 1);
    EXPECT_EQ(q.IsConLine(point_3d(0, 0, 0), point_3d(2, 2, 2)), 1);
    EXPECT_EQ(q.IsConLine(point_3d(0, 0, 0), point_3d(2, 2, 2.1f)), 0);
}

TEST(IsOnSeg, ThreeDimensionsMeasureTheDetour) {
    point_3d a(0, 0, 0), b(2, 0, 0);
    EXPECT_EQ(point_3d(1, 0, 0).IsOnSeg(a, b), 1);
    EXPECT_EQ(point_3d(2.5f, 0, 0).IsOnSeg(a, b), 0); // outside the box
    // 1e-4 off the middle: the detour is only 1e-8, so it counts as on
    EXPECT_EQ(point_3d(1, 1e-4f, 0).IsOnSeg(a, b), 0); // but outside the flat box
    EXPECT_EQ(point_3d(1, 1e-4f, 0).IsOnSeg(a, point_3d(2, 1e-3f, 0)), 1);
    EXPECT_EQ(point_2d(1, 1e-4f).IsOnSeg(point_2d(0, 0), point_2d(2, 1e-3f)), 0);
    EXPECT_EQ(point_2d(1, 0).IsOn(point_2d(5, 0), point_2d(7, 0)), 1);
    EXPECT_EQ(point_2d(1, 0).IsOnSeg(point_2d(5, 0), point_2d(7, 0)), 0);
    GmGuard guard;
    gmSetAbsDistTol(0.5); // a distance equal to the tolerance is off
    EXPECT_EQ(point_2d(0, 0.5f).IsOn(point_2d(-1, 0), point_2d(1, 0)), 0);
    EXPECT_EQ(point_2d(0, 0.5f).IsOnSeg(point_2d(-1, 0), point_2d(1, 0)), 0);
    EXPECT_EQ(point_2d(0, 0.25f).IsOnSeg(point_2d(-1, 0), point_2d(1, 0)), 1);
}

TEST(IsPtsColine, ToleranceItselfPasses) {
    point_2d two[2] = {point_2d(0, 0), point_2d(5, 5)};
    EXPECT_EQ(IsPtsColine(two, 2, 0.0f), 1);
    point_2d pts[4] = {point_2d(0, 0), point_2d(0.5f, 0.25f), point_2d(0.75f, -0.125f),
                       point_2d(1, 0)};
    EXPECT_EQ(IsPtsColine(pts, 4, 0.25f), 1);
    EXPECT_EQ(IsPtsColine(pts, 4, std::nextafter(0.25f, 0.0f)), 0);
}

TEST(AngleToVector, PlaneAngleIsAnticlockwiseSpaceAngleUnsigned) {
    EXPECT_NEAR(point_2d(1, 0).AngleToVector(point_2d(0, -1)), 1.5 * kPi, 1e-6);
    EXPECT_NEAR(point_3d(1, 0, 0).AngleToVector(point_3d(0, -1, 0)), 0.5 * kPi, 1e-6);
    EXPECT_EQ(point_2d(1, 0).AngleToVector(point_2d(3, 0)), 0.0f);
    EXPECT_EQ(point_2d(1, 0).AngleToVector(point_2d(-3, 0)), 3.1415927f);
    EXPECT_EQ(point_3d(0, 1, 0).AngleToVector(point_3d(0, 2, 0)), 0.0f);
    EXPECT_EQ(point_3d(0, 1, 0).AngleToVector(point_3d(0, -2, 0)), 3.1415927f);
}

TEST(AngleToVector, ShortVectorsFallIntoTheParallelBranch) {
    // the raw cross product is 1e-8: parallel by the test, not the same direction
    EXPECT_EQ(point_3d(1e-4f, 0, 0).AngleToVector(point_3d(0, 1e-4f, 0)), 3.1415927f);
}

TEST(AngleToVector, AgreesWithAtan2OnRandomVectors) {
    std::mt19937 rng(7);
    std::uniform_real_distribution<float> u(-5.0f, 5.0f);
    for (int i = 0; i < 200; ++i) {
        point_2d a(u(rng), u(rng)), b(u(rng), u(rng));
        if (a.Length() < 0.1f || b.Length() < 0.1f)
            continue;
        double want = std::atan2(double(b.y), double(b.x)) - std::atan2(double(a.y), double(a.x));
        if (want < 0)
            want += 2 * kPi;
        double got = a.AngleToVector(b);
        if (std::fabs(got - want) > 3.0) // either side of the wrap
            got += (got < want ? 2 : -2) * kPi;
        EXPECT_NEAR(got, want, 2e-5);
        point_3d a3(a.x, a.y, u(rng)), b3(b.x, b.y, u(rng));
        double cx = double(a3.y) * b3.z - double(a3.z) * b3.y;
        double cy = double(a3.z) * b3.x - double(a3.x) * b3.z;
        double cz = double(a3.x) * b3.y - double(a3.y) * b3.x;
        double dot = double(a3.x) * b3.x + double(a3.y) * b3.y + double(a3.z) * b3.z;
        EXPECT_NEAR(a3.AngleToVector(b3), std::atan2(std::sqrt(cx * cx + cy * cy + cz * cz), dot),
                    2e-5);
    }
}

} // namespace
