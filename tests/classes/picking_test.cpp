#include "classes/helpers.h"

#include <array>
#include <cmath>

namespace {

using namespace korvane_test;
const double kIdentity[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
const double kDown[3] = {0, 0, -1}, kUp[3] = {0, 0, 1}, kZero[3] = {0, 0, 0};
const double kWmin[2] = {0, 0}, kWmax[2] = {1, 1};

// (hit, depth, param) of a polyline pick; a miss must leave depth 7 and param 8.
template <class P>
std::array<double, 3> pick(int (*f)(const P *, int, const double *, const double *, double,
                                    double &, double &),
                           const P *pts, int n, const double *org, const double *dir, double tol) {
    double depth = 7, param = 8;
    const int hit = f(pts, n, org, dir, tol, depth, param);
    return {double(hit), depth, param};
}
const std::initializer_list<double> kMiss = {0, 7, 8};

// Window classification against the unit window.
int win(const point_2d *pts, int n, const double *m = kIdentity) {
    return WinInterPt2D(pts, n, m, kWmin, kWmax);
}
int win(const point_3d *pts, int n, const double *m = kIdentity) {
    return WinInterPt3D(pts, n, m, kWmin, kWmax);
}

TEST(PntPick, PicksAlongEveryCoordinateAxis) {
    // top view: looking down z at a plane polyline
    point_2d plan[3] = {point_2d(0, 0), point_2d(4, 0), point_2d(4, 4)};
    const double orgZ[3] = {2, 0.01, 10};
    EXPECT_TRUE(near(pick(PntPickPT2D, plan, 3, orgZ, kDown, 0.05).data(), {1, 10, 0.5}, 1e-12));
    // front and side views of a space polyline
    point_3d pts[3] = {point_3d(0, 0, 0), point_3d(0, 0, 4), point_3d(0, 4, 4)};
    const double orgX[3] = {-5, 2, 4}, dirX[3] = {1, 0, 0};
    EXPECT_TRUE(near(pick(PntPickPT3D, pts, 3, orgX, dirX, 0.05).data(), {1, 5, 1.5}, 1e-12));
    const double orgY[3] = {0, -3, 1}, dirY[3] = {0, 1, 0}, offY[3] = {0.1, -3, 1};
    EXPECT_TRUE(near(pick(PntPickPT3D, pts, 3, orgY, dirY, 0.05).data(), {1, 3, 0.25}, 1e-12));
    EXPECT_TRUE(exactly(pick(PntPickPT3D, pts, 3, offY, dirY, 0.05).data(), kMiss));
}

TEST(PntPick, ApertureIsStrictAndMissesLeaveOutputs) {
    const double below[3] = {0, 0, 3}, wider = std::nextafter(0.5, 1.0);
    double d = 7;
    EXPECT_EQ(PntPickPt(point_2d(0.5f, 0), kZero, kUp, 0.5, d), 0);
    EXPECT_EQ(PntPickPt(point_2d(0, 0), kZero, kZero, 10.0, d), 0); // a zero direction
    EXPECT_EQ(d, 7.0);
    EXPECT_EQ(PntPickPt(point_2d(0.5f, 0), below, kUp, wider, d), 1);
    EXPECT_EQ(d, -3.0);
    point_2d seg[2] = {point_2d(0.5f, -1), point_2d(0.5f, 1)};
    point_2d stub[2] = {point_2d(0.5f, 0), point_2d(0.5f, 0)}; // vertices exactly tol away
    EXPECT_TRUE(exactly(pick(PntPickPT2D, seg, 2, kZero, kUp, 0.5).data(), kMiss));
    EXPECT_TRUE(exactly(pick(PntPickPT2D, stub, 2, kZero, kUp, 0.5).data(), kMiss));
    EXPECT_TRUE(exactly(pick(PntPickPT2D, seg, 2, kZero, kZero, 10.0).data(), kMiss));
    EXPECT_TRUE(exactly(pick(PntPickPT2D, stub, 2, kZero, kUp, wider).data(), {1, 0, 0}));
    // a single vertex and a null list are never picked
    EXPECT_TRUE(exactly(pick(PntPickPT2D, stub, 1, kZero, kUp, wider).data(), kMiss));
    const point_2d *none = nullptr;
    const point_3d *none3 = nullptr;
    EXPECT_TRUE(exactly(pick(PntPickPT2D, none, 5, kZero, kUp, wider).data(), kMiss));
    EXPECT_TRUE(exactly(pick(PntPickPT3D, none3, 5, kZero, kUp, wider).data(), kMiss));
}

TEST(PntPick, FirstHitInListOrderAndSharedVertexEndsTheEarlierSegment) {
    point_2d pts[3] = {point_2d(0, 0), point_2d(2, 0), point_2d(2, 2)};
    const double corner[3] = {2, 0, 1};
    EXPECT_TRUE(exactly(pick(PntPickPT2D, pts, 3, corner, kDown, 0.1).data(), {1, 1, 1}));
    // both segments pass under the pick; the second is nearer the line
    point_2d two[4] = {point_2d(-1, 0.05f), point_2d(1, 0.05f), point_2d(1, 0), point_2d(-1, 0)};
    const double mid[3] = {0, 0, 1};
    EXPECT_TRUE(near(pick(PntPickPT2D, two, 4, mid, kDown, 0.1).data(), {1, 1, 0.5}, 1e-7));
    // a zero-length segment skips the interior test but hits through its vertices
    point_2d dup[2] = {point_2d(1, 1), point_2d(1, 1)};
    const double close[3] = {1.05, 1, 0}, far[3] = {1.2, 1, 0};
    EXPECT_TRUE(exactly(pick(PntPickPT2D, dup, 2, far, kDown, 0.1).data(), kMiss));
    EXPECT_TRUE(exactly(pick(PntPickPT2D, dup, 2, close, kDown, 0.1).data(), {1, 0, 0}));
}

TEST(PntPick, DepthInterpolatesFromTheFirstVertexOfTheList) {
    // an oblique pick in the xz plane; vertex i lies at the depth 8.65 + 0.6 i
    point_2d pts[4] = {point_2d(0, 0), point_2d(1, 0), point_2d(2, 0), point_2d(3, 0)};
    point_3d pts3[4] = {point_3d(0, 0, 0), point_3d(1, 0, 0), point_3d(2, 0, 0), point_3d(3, 0, 0)};
    const double dir[3] = {0.6, 0, 0.8}, org[3] = {-3.75, 0, -8}, atVertex[3] = {-4, 0, -8};
    // crosses segment 2 at s 0.25: (1 - s) D0 + s D3, not the true depth 10
    const std::initializer_list<double> want = {1, 0.75 * 8.65 + 0.25 * 10.45, 2.25};
    EXPECT_TRUE(near(pick(PntPickPT2D, pts, 4, org, dir, 0.1).data(), want, 1e-9));
    EXPECT_TRUE(near(pick(PntPickPT3D, pts3, 4, org, dir, 0.1).data(), want, 1e-9));
    // a vertex past the first segment is caught as a segment end: its own depth
    EXPECT_TRUE(near(pick(PntPickPT2D, pts, 4, atVertex, dir, 0.1).data(), {1, 10, 2}, 1e-9));
}

TEST(PntPick, PackedPointsAreWalkedWithTheirOwnStride) {
    nd_point_2d pts[3]; // (0, 0), (3, 0), (3, 3), with tags that must be ignored
    pts[1].x = pts[2].x = pts[2].y = 3;
    pts[0].tag = pts[1].tag = pts[2].tag = 0x7fff;
    const double org[3] = {3, 1.5, 2}, wmin[2] = {2.5, 2.5}, wmax[2] = {4, 4};
    EXPECT_TRUE(near(pick(PntPickNDPT2D, pts, 3, org, kDown, 0.01).data(), {1, 2, 1.5}, 1e-12));
    EXPECT_EQ(WinInterNDPt2D(pts, 3, kIdentity, wmin, wmax), 1);
    EXPECT_EQ(WinInterNDPt2D(pts, 2, kIdentity, wmin, wmax), 0);
}

TEST(WinInter, VerticesWithinTheStrictMarginTouch) {
    point_2d inside[1] = {point_2d(0.5f, 0.5f)};
    EXPECT_EQ(win(inside, 1), 1);
    EXPECT_EQ(win(inside, 0), 0);
    EXPECT_EQ(win(static_cast<const point_2d *>(nullptr), 3), 0);
    point_3d close[2] = {point_3d(3, 3, 0), point_3d(1.000005f, 0.5f, 0)};
    point_3d beyond[2] = {point_3d(3, 3, 0), point_3d(1.00002f, 1.5f, 0)};
    EXPECT_EQ(win(close, 2), 1);
    EXPECT_EQ(win(beyond, 2), 0);
    // an image exactly on the widened edge is outside
    double m[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, -1e-05, 0, 0, 1};
    point_2d origin[1] = {point_2d(0, 0.5f)};
    EXPECT_EQ(win(origin, 1, m), 0);
    m[12] = std::nextafter(-1e-05, 0.0);
    EXPECT_EQ(win(origin, 1, m), 1);
}

TEST(WinInter, SegmentsCrossingOrMissingTheWindow) {
    point_2d across[2] = {point_2d(-1, 0.5f), point_2d(2, 0.5f)};
    point_2d left[2] = {point_2d(-1, -5), point_2d(-0.5f, 5)};
    // passes the corner region outside: not rejected early, crosses no edge
    point_2d corner[2] = {point_2d(-1, 0.5f), point_2d(0.5f, 2)};
    EXPECT_EQ(win(across, 2), 1);
    EXPECT_EQ(win(left, 2), 0);
    EXPECT_EQ(win(corner, 2), 0);
    // a loop around the window without touching it
    point_2d loop[5] = {point_2d(-1, -1), point_2d(2, -1), point_2d(2, 2), point_2d(-1, 2),
                        point_2d(-1, -1)};
    EXPECT_EQ(win(loop, 5), 0);
    loop[2].Set(1.000005f, 1.000005f);
    EXPECT_EQ(win(loop, 5), 1);
}

TEST(WinInter, ViewMatrixMapsBeforeClassifying) {
    // x' = 0.5 x + 0.5 z - 10, y' = y: only columns 0 and 1 are read
    const double m[16] = {0.5, 0, 9, 9, 0, 1, 9, 9, 0.5, 0, 9, 9, -10, 0, 9, 9};
    point_3d pts[2] = {point_3d(20, 0.5f, 1), point_3d(20, 0.5f, 3)};
    point_2d flat[1] = {point_2d(20.5f, 0.5f)};
    EXPECT_EQ(win(pts, 1, m), 1);
    EXPECT_EQ(win(pts + 1, 1, m), 0);
    EXPECT_EQ(win(flat, 1, m), 1);
}

TEST(WinInter, EdgeTestReadsTheGlobalTolerances) {
    GmGuard guard;
    // crosses x = 0 at y 7/6 and y = 1 at x -1/4: past both edges' ends
    point_2d stub[2] = {point_2d(-1, 0.5f), point_2d(0.5f, 1.5f)};
    // crosses x = 0 at y 1.25: the edge parameter 1 + 0.25 itself counts
    point_2d rim[2] = {point_2d(-1, 0.75f), point_2d(1, 1.75f)};
    EXPECT_EQ(win(stub, 2), 0);
    gmSetParaTol(0.25); // the edge parameters now reach
    EXPECT_EQ(win(stub, 2), 1);
    EXPECT_EQ(win(rim, 2), 1);
    gmSetParaTol(0.2);
    EXPECT_EQ(win(rim, 2), 0);
    gmSetParaTol(0.25);
    gmSetAbsZero(10.0); // every determinant counts as zero
    EXPECT_EQ(win(stub, 2), 0);
}

} // namespace
