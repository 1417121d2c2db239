#include <korvane/classes.h>

#include "classes/gm_guard.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

const double kIdentity[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

TEST(PntPick, PicksAlongEveryCoordinateAxis) {
    double depth = 0, param = 0;
    // top view: looking down z at a plane polyline
    point_2d plan[3] = {point_2d(0, 0), point_2d(4, 0), point_2d(4, 4)};
    const double orgZ[3] = {2, 0.01, 10}, dirZ[3] = {0, 0, -1};
    ASSERT_EQ(PntPickPT2D(plan, 3, orgZ, dirZ, 0.05, depth, param), 1);
    EXPECT_NEAR(param, 0.5, 1e-12);
    EXPECT_NEAR(depth, 10.0, 1e-12);
    // front and side views of a space polyline
    point_3d pts[3] = {point_3d(0, 0, 0), point_3d(0, 0, 4), point_3d(0, 4, 4)};
    const double orgX[3] = {-5, 2, 4}, dirX[3] = {1, 0, 0};
    ASSERT_EQ(PntPickPT3D(pts, 3, orgX, dirX, 0.05, depth, param), 1);
    EXPECT_NEAR(param, 1.5, 1e-12);
    EXPECT_NEAR(depth, 5.0, 1e-12);
    const double orgY[3] = {0, -3, 1}, dirY[3] = {0, 1, 0};
    ASSERT_EQ(PntPickPT3D(pts, 3, orgY, dirY, 0.05, depth, param), 1);
    EXPECT_NEAR(param, 0.25, 1e-12);
    const double offY[3] = {0.1, -3, 1};
    EXPECT_EQ(PntPickPT3D(pts, 3, offY, dirY, 0.05, depth, param), 0);
}

TEST(PntPick, ApertureIsStrictAndMissesLeaveOutputs) {
    const double org[3] = {0, 0, 0}, dir[3] = {0, 0, 1};
    double depth = 42;
    EXPECT_EQ(PntPickPt(point_2d(0.5f, 0), org, dir, 0.5, depth), 0);
    EXPECT_EQ(depth, 42.0);
    const double below[3] = {0, 0, 3};
    EXPECT_EQ(PntPickPt(point_2d(0.5f, 0), below, dir, std::nextafter(0.5, 1.0), depth), 1);
    EXPECT_EQ(depth, -3.0);
    point_2d seg[2] = {point_2d(0.5f, -1), point_2d(0.5f, 1)};
    double d = 7, p = 8;
    EXPECT_EQ(PntPickPT2D(seg, 2, org, dir, 0.5, d, p), 0);
    EXPECT_EQ(d, 7.0);
    EXPECT_EQ(p, 8.0);
    // vertices exactly tol away: neither the start nor the end test hits
    point_2d stub[2] = {point_2d(0.5f, 0), point_2d(0.5f, 0)};
    EXPECT_EQ(PntPickPT2D(stub, 2, org, dir, 0.5, d, p), 0);
    EXPECT_EQ(PntPickPT2D(stub, 2, org, dir, std::nextafter(0.5, 1.0), d, p), 1);
    const double zero[3] = {0, 0, 0}; // a zero direction picks nothing
    EXPECT_EQ(PntPickPT2D(seg, 2, org, zero, 10.0, d, p), 0);
    EXPECT_EQ(PntPickPt(point_2d(0, 0), org, zero, 10.0, d), 0);
}

TEST(PntPick, ASingleVertexIsNeverPickedByTheListForms) {
    const double org[3] = {1, 1, 5}, dir[3] = {0, 0, -1};
    point_2d one[1] = {point_2d(1, 1)};
    double d = 0, p = 0;
    EXPECT_EQ(PntPickPT2D(one, 1, org, dir, 0.1, d, p), 0);
    EXPECT_EQ(PntPickPT2D(nullptr, 5, org, dir, 0.1, d, p), 0);
    EXPECT_EQ(PntPickPT3D(nullptr, 5, org, dir, 0.1, d, p), 0);
    EXPECT_EQ(PntPickPt(one[0], org, dir, 0.1, d), 1);
    EXPECT_EQ(d, 5.0);
}

TEST(PntPick, SharedVertexIsTheEndOfTheEarlierSegment) {
    point_2d pts[3] = {point_2d(0, 0), point_2d(2, 0), point_2d(2, 2)};
    const double org[3] = {2, 0, 1}, dir[3] = {0, 0, -1};
    double d, p;
    ASSERT_EQ(PntPickPT2D(pts, 3, org, dir, 0.1, d, p), 1);
    EXPECT_EQ(p, 1.0);
    // a zero-length segment skips the interior test but hits through its vertices
    point_2d dup[2] = {point_2d(1, 1), point_2d(1, 1)};
    const double near[3] = {1.05, 1, 0}, far[3] = {1.2, 1, 0};
    EXPECT_EQ(PntPickPT2D(dup, 2, far, dir, 0.1, d, p), 0);
    ASSERT_EQ(PntPickPT2D(dup, 2, near, dir, 0.1, d, p), 1);
    EXPECT_EQ(p, 0.0);
}

TEST(PntPick, FirstHitInListOrderWins) {
    // both segments pass under the pick; the second is nearer the line
    point_2d pts[4] = {point_2d(-1, 0.05f), point_2d(1, 0.05f), point_2d(1, 0), point_2d(-1, 0)};
    const double org[3] = {0, 0, 1}, dir[3] = {0, 0, -1};
    double d, p;
    ASSERT_EQ(PntPickPT2D(pts, 4, org, dir, 0.1, d, p), 1);
    EXPECT_NEAR(p, 0.5, 1e-7);
}

TEST(PntPick, DepthInterpolatesFromTheFirstVertexOfTheList) {
    // the pick runs along z; vertex depths 0, 1, 2, 3
    point_3d pts[4] = {point_3d(0, 0, 0), point_3d(1, 0, 1), point_3d(2, 0, 2), point_3d(3, 0, 3)};
    const double org[3] = {2.25, 0, -10}, dir[3] = {0, 0, 1};
    double d, p;
    ASSERT_EQ(PntPickPT3D(pts, 4, org, dir, 0.01, d, p), 1);
    EXPECT_NEAR(p, 2.25, 1e-12);
    // (1 - s) D0 + s D3 with s 0.25, not (1 - s) D2 + s D3
    double d0 = 10.0, d3 = 13.0;
    EXPECT_NEAR(d, 0.75 * d0 + 0.25 * d3, 1e-12);
    // a vertex past the first segment is caught as a segment end: its own depth
    const double atVertex[3] = {2, 0, -10};
    ASSERT_EQ(PntPickPT3D(pts, 4, atVertex, dir, 0.01, d, p), 1);
    EXPECT_EQ(p, 2.0);
    EXPECT_NEAR(d, 12.0, 1e-12);
}

TEST(PntPick, PackedPointsAreWalkedWithTheirOwnStride) {
    nd_point_2d pts[3];
    const float xs[3] = {0, 3, 3}, ys[3] = {0, 0, 3};
    for (int i = 0; i < 3; ++i) {
        pts[i].x = xs[i];
        pts[i].y = ys[i];
        pts[i].tag = short(100 + i);
    }
    const double org[3] = {3, 1.5, 2}, dir[3] = {0, 0, -1};
    double d, p;
    ASSERT_EQ(PntPickNDPT2D(pts, 3, org, dir, 0.01, d, p), 1);
    EXPECT_NEAR(p, 1.5, 1e-12);
    const double wmin[2] = {2.5, 2.5}, wmax[2] = {4, 4};
    EXPECT_EQ(WinInterNDPt2D(pts, 3, kIdentity, wmin, wmax), 1);
    EXPECT_EQ(WinInterNDPt2D(pts, 2, kIdentity, wmin, wmax), 0);
}

TEST(WinInter, VerticesWithinTheMarginTouch) {
    const double wmin[2] = {0, 0}, wmax[2] = {1, 1};
    point_2d inside[1] = {point_2d(0.5f, 0.5f)};
    EXPECT_EQ(WinInterPt2D(inside, 1, kIdentity, wmin, wmax), 1);
    EXPECT_EQ(WinInterPt2D(inside, 0, kIdentity, wmin, wmax), 0);
    EXPECT_EQ(WinInterPt2D(nullptr, 3, kIdentity, wmin, wmax), 0);
    point_3d near[2] = {point_3d(3, 3, 0), point_3d(1.000005f, 0.5f, 0)};
    EXPECT_EQ(WinInterPt3D(near, 2, kIdentity, wmin, wmax), 1);
    point_3d beyond[2] = {point_3d(3, 3, 0), point_3d(1.00002f, 1.5f, 0)};
    EXPECT_EQ(WinInterPt3D(beyond, 2, kIdentity, wmin, wmax), 0);
    // an image exactly on the widened edge is outside: the margin is strict
    double m[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, -1e-05, 0, 0, 1};
    point_2d origin[1] = {point_2d(0, 0.5f)};
    EXPECT_EQ(WinInterPt2D(origin, 1, m, wmin, wmax), 0);
    m[12] = std::nextafter(-1e-05, 0.0);
    EXPECT_EQ(WinInterPt2D(origin, 1, m, wmin, wmax), 1);
}

TEST(WinInter, SegmentsCrossingOrMissingTheWindow) {
    const double wmin[2] = {0, 0}, wmax[2] = {1, 1};
    point_2d across[2] = {point_2d(-1, 0.5f), point_2d(2, 0.5f)};
    EXPECT_EQ(WinInterPt2D(across, 2, kIdentity, wmin, wmax), 1);
    point_2d left[2] = {point_2d(-1, -5), point_2d(-0.5f, 5)};
    EXPECT_EQ(WinInterPt2D(left, 2, kIdentity, wmin, wmax), 0);
    // passes the corner region outside: not rejected early, crosses no edge
    point_2d corner[2] = {point_2d(-1, 0.5f), point_2d(0.5f, 2)};
    EXPECT_EQ(WinInterPt2D(corner, 2, kIdentity, wmin, wmax), 0);
    // a loop around the window without touching it
    point_2d loop[5] = {point_2d(-1, -1), point_2d(2, -1), point_2d(2, 2), point_2d(-1, 2),
                        point_2d(-1, -1)};
    EXPECT_EQ(WinInterPt2D(loop, 5, kIdentity, wmin, wmax), 0);
    loop[2].Set(1.000005f, 1.000005f);
    EXPECT_EQ(WinInterPt2D(loop, 5, kIdentity, wmin, wmax), 1);
}

TEST(WinInter, ViewMatrixMapsBeforeClassifying) {
    const double wmin[2] = {0, 0}, wmax[2] = {1, 1};
    // x' = 0.5 x + 0.5 z + 10, y' = y: only the shifted and z-fed image is inside
    const double m[16] = {0.5, 0, 9, 9, 0, 1, 9, 9, 0.5, 0, 9, 9, -10, 0, 9, 9};
    point_3d pts[1] = {point_3d(20, 0.5f, 1)};
    EXPECT_EQ(WinInterPt3D(pts, 1, m, wmin, wmax), 1);
    pts[0].z = 3;
    EXPECT_EQ(WinInterPt3D(pts, 1, m, wmin, wmax), 0);
    point_2d flat[1] = {point_2d(20.5f, 0.5f)};
    EXPECT_EQ(WinInterPt2D(flat, 1, m, wmin, wmax), 1);
}

TEST(WinInter, EdgeTestReadsTheGlobalTolerances) {
    GmGuard guard;
    const double wmin[2] = {0, 0}, wmax[2] = {1, 1};
    // crosses x = 0 at y 7/6 and y = 1 at x -1/4: past both edges' ends
    point_2d stub[2] = {point_2d(-1, 0.5f), point_2d(0.5f, 1.5f)};
    EXPECT_EQ(WinInterPt2D(stub, 2, kIdentity, wmin, wmax), 0);
    gmSetParaTol(0.25); // the edge parameters now reach
    EXPECT_EQ(WinInterPt2D(stub, 2, kIdentity, wmin, wmax), 1);
    // crosses x = 0 at y 1.25: the edge parameter 1 + 0.25 itself counts
    point_2d rim[2] = {point_2d(-1, 0.75f), point_2d(1, 1.75f)};
    EXPECT_EQ(WinInterPt2D(rim, 2, kIdentity, wmin, wmax), 1);
    gmSetParaTol(0.2);
    EXPECT_EQ(WinInterPt2D(rim, 2, kIdentity, wmin, wmax), 0);
    gmSetParaTol(0.25);
    gmSetAbsZero(10.0); // every determinant counts as zero
    EXPECT_EQ(WinInterPt2D(stub, 2, kIdentity, wmin, wmax), 0);
}

} // namespace
