#include "classes/helpers.h"

#include <cmath>

namespace {

using namespace korvane_test;

Box3D box3(float x0, float y0, float z0, float x1, float y1, float z1) {
    Box3D b;
    b.DefineBox(point_3d(x0, y0, z0), point_3d(x1, y1, z1));
    return b;
}

TEST(Box, CornersRunAnticlockwiseFromMinLevelByLevelAndAnEmptyBoxHasNone) {
    point_2d k2[4] = {point_2d(7, 7)};
    point_3d k[8] = {point_3d(7, 7, 7)};
    EXPECT_EQ(Box2D().GetCorner(k2) + Box3D().GetCorner(k), 0);
    EXPECT_TRUE(is(k2[0], {7, 7}));
    EXPECT_TRUE(is(k[0], {7, 7, 7}));
    ASSERT_EQ(box3(0, 0, 0, 1, 2, 3).GetCorner(k) + Box2D(0, 0, 1, 2).GetCorner(k2), 2);
    const float xs[4] = {0, 1, 1, 0}, ys[4] = {0, 0, 2, 2};
    for (int i = 0; i < 8; ++i)
        EXPECT_TRUE(is(k[i], {xs[i % 4], ys[i % 4], i < 4 ? 0.0 : 3.0})) << i;
    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(is(k2[i], {xs[i], ys[i]})) << i;
}

TEST(Box, ContainmentIncludesOnlyTheUpperXEdgeAndOnlyWithATolerance) {
    Box2D b(0, 0, 1, 1);
    Box3D c = box3(0, 0, 0, 1, 1, 1);
    EXPECT_EQ(b.IsIn(point_2d(0, 0)) + c.IsIn(point_3d(0, 0, 0)), 2);
    EXPECT_EQ(b.IsIn(point_2d(1, 0.5f)) + b.Contains(point_2d(0.5f, 1)), 0);
    EXPECT_EQ(c.IsIn(point_3d(1, 0.5f, 0.5f)) + c.Contains(point_3d(0.5f, 0.5f, 1)), 0);
    EXPECT_EQ(b.IsIn(point_2d(1, 0.5f), 0.0f), 1);
    EXPECT_EQ(b.IsIn(point_2d(0.5f, 1), 0.0f), 0);
    EXPECT_EQ(b.IsIn(point_2d(1.5f, 0.5f), 0.5f), 1);
    EXPECT_EQ(b.IsIn(point_2d(-0.5f, -0.5f), 0.5f), 1);
    EXPECT_EQ(c.IsIn(point_3d(1, 0.5f, 0.5f), 0.0f), 1);
    EXPECT_EQ(c.IsIn(point_3d(0.5f, 1, 0.5f), 0.0f), 0);
    EXPECT_EQ(c.IsIn(point_3d(0.5f, 0.5f, 1), 0.0f), 0);
    EXPECT_EQ(c.IsIn(point_2d(1, 0.5f), 0.0f), 1); // z ignored
    const double px[2] = {1.5, 0.5}, py[2] = {0.5, 1.5};
    EXPECT_EQ(b.IsIn2D(px, 0.5) + c.IsIn2D(px, 0.5), 2);
    EXPECT_EQ(b.IsIn2D(py, 0.5) + c.IsIn2D(py, 0.5), 0);
    EXPECT_EQ(c.IsIn(point_3d(std::nextafter(1.0f, 2.0f), 0.5f, 0.5f), 0.0f), 0); // no global slack
}

TEST(Box, TouchingBoxesCanIntersectButDoNotIntersect) {
    Box2D a(0, 0, 1, 1), b(1, 0, 2, 1), far(1.5f, 0, 2, 1);
    EXPECT_EQ(a.IsIntersect(b), 0);
    EXPECT_EQ(a.CanIntersect(b), 1);
    EXPECT_EQ(a.CanIntersect(far, 0.5f), 1); // a gap equal to t still touches
    EXPECT_EQ(a.CanIntersect(far, 0.4f), 0);
    EXPECT_EQ(a.CanIntersect(b, -0.25f), 0); // negative t wants an overlap
    EXPECT_EQ(a.CanIntersect(Box2D(0.75f, 0, 2, 1), -0.25f), 1);
    Box3D c = box3(0, 0, 0, 1, 1, 1), d = box3(0, 0, 1.5f, 1, 1, 2);
    EXPECT_EQ(c.IsIntersect(d) + c.CanIntersect(d), 0);
    EXPECT_EQ(c.CanIntersect(d, 0.5f), 1);
    EXPECT_EQ(c.CanIntersect(d, 0.4f), 0);
    EXPECT_EQ(c.CanIntersect(Box2D(0.5f, 0.5f, 3, 3), 0.0f), 1); // x and y only
    EXPECT_EQ(Box2D(0.5f, 0.5f, 3, 3).CanIntersect(d, 0.0f), 1);
}

TEST(Box, ReversedAndEmptyBoxesAreTakenAtFaceValue) {
    Box2D r(point_2d(1, 1), point_2d(0, 0)), s, m, i(0, 0, 4, 4), b;
    Box3D a, g, c;
    EXPECT_EQ(r.IsEmpty() + b.IsEmpty(), 2);
    EXPECT_TRUE(is(c, {1, 1, 1, -1, -1, -1}));
    b.AddPt(point_2d(5, 6)); // an empty box becomes the point box
    EXPECT_TRUE(is(b, {5, 6, 5, 6}));
    b.AddPt(nd_point_2d()); // (0, 0)
    EXPECT_TRUE(is(b, {0, 0, 5, 6}));
    c.AddPt(point_3d(1, 2, 3));
    c.AddPt(point_3d(-1, 5, 3));
    EXPECT_TRUE(is(c, {-1, 2, 3, 1, 5, 3}));
    EXPECT_EQ(r.IsIntersect(Box2D(-1, -1, 2, 2)), 1); // no emptiness test
    s.DefineBox(point_2d(1, 1), point_2d(0, 0));      // sorts
    EXPECT_TRUE(is(s, {0, 0, 1, 1}));
    EXPECT_TRUE(is(Box3D(point_2d(1, 1), point_2d(0, 0)), {0, 0, 0, 1, 1, 0})); // sorts, z 0
    m.Move(1, 1);
    EXPECT_TRUE(is(m, {2, 2, 0, 0}));
    i.Intersect(Box2D(5, 1, 6, 2)); // comes out reversed in x
    EXPECT_TRUE(is(i, {5, 1, 4, 2}));
    a.Adjust();
    g.Grow(2, 2, 2);
    EXPECT_TRUE(is(a, {-1, -1, -1, 1, 1, 1}));
    EXPECT_TRUE(is(g, {-1, -1, -1, 1, 1, 1}));
    EXPECT_EQ(s.CheckInter(point_3d(9, 9, 9), point_3d(8, 9, 9), -1.0f) + a.CheckInter({}, {}, -1),
              2);
}

TEST(Box, Box3DSumsHonourEmptyBoxesBox2DAndUnionDoNot) {
    Box3D e, box = box3(5, 5, 5, 6, 6, 6), acc, u;
    EXPECT_EQ((e + e).IsEmpty(), 1);
    EXPECT_EQ((e + box) == box, 1);
    EXPECT_EQ((box + e) == box, 1);
    acc += box;
    acc += Box3D();
    EXPECT_EQ(acc == box, 1);
    u.Union(box); // the plain rule pulls out to the empty box's corners
    EXPECT_TRUE(is(u, {1, 1, 1, 6, 6, 6}));
    Box2D e2, b2(5, 5, 6, 6);
    EXPECT_TRUE(is(e2 + b2, {1, 1, 6, 6}));
    e2 += b2;
    EXPECT_TRUE(is(e2, {1, 1, 6, 6}));
}

TEST(Box, ProjectionsBetween2DAnd3D) {
    Box3D c = box3(0, 1, 2, 3, 4, 5);
    Box2D p(c);
    Box3D back(p);
    EXPECT_TRUE(is(back, {0, 1, 0, 3, 4, 0}));
    back.DefineBox(p, 7.0f);
    EXPECT_TRUE(is(back, {0, 1, 7, 3, 4, 7}));
    EXPECT_EQ(Box2D(-1, -1, 10, 10).CanInclude(c), 1); // z not read
    EXPECT_EQ(p.CanInclude(Box2D(0, 1, 3, 4)), 1);     // edges included
    EXPECT_EQ(p.CanInclude(Box2D(0, 1, 3, 4.5f)), 0);
}

} // namespace
