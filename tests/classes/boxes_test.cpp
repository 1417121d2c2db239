#include <korvane/classes.h>

#include "classes/gm_guard.h"

#include <gtest/gtest.h>

namespace {

void expectBox(const Box3D &b, float x0, float y0, float z0, float x1, float y1, float z1) {
    EXPECT_EQ(b.min.x, x0);
    EXPECT_EQ(b.min.y, y0);
    EXPECT_EQ(b.min.z, z0);
    EXPECT_EQ(b.max.x, x1);
    EXPECT_EQ(b.max.y, y1);
    EXPECT_EQ(b.max.z, z1);
}

TEST(Box, NewBoxIsEmptyAndGivesNoCorners) {
    Box2D b;
    EXPECT_EQ(b.IsEmpty(), 1);
    point_2d out[4] = {point_2d(7, 7), point_2d(7, 7), point_2d(7, 7), point_2d(7, 7)};
    EXPECT_EQ(b.GetCorner(out), 0);
    EXPECT_EQ(out[0].x, 7.0f);
    Box3D c;
    expectBox(c, 1, 1, 1, -1, -1, -1);
    point_3d out3[8];
    out3[0].Set(7, 7, 7);
    EXPECT_EQ(c.GetCorner(out3), 0);
    EXPECT_EQ(out3[0].z, 7.0f);
}

TEST(Box, AddPtStartsFromThePointBox) {
    Box2D b;
    b.AddPt(point_2d(5, 6));
    EXPECT_EQ(b.IsEmpty(), 0);
    EXPECT_EQ(b.min.x, 5.0f);
    EXPECT_EQ(b.max.y, 6.0f);
    nd_point_2d nd;
    nd.x = 2.0f;
    nd.y = 9.0f;
    b.AddPt(nd);
    EXPECT_EQ(b.min.x, 2.0f);
    EXPECT_EQ(b.max.y, 9.0f);
    EXPECT_EQ(b.min.y, 6.0f);
    Box3D c;
    c.AddPt(point_3d(1, 2, 3));
    c.AddPt(point_3d(-1, 5, 3));
    expectBox(c, -1, 2, 3, 1, 5, 3);
}

TEST(Box, CornersRunAnticlockwiseFromMinLevelByLevel) {
    Box3D c;
    c.DefineBox(point_3d(0, 0, 0), point_3d(1, 2, 3));
    point_3d k[8];
    ASSERT_EQ(c.GetCorner(k), 1);
    const float xs[4] = {0, 1, 1, 0}, ys[4] = {0, 0, 2, 2};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(k[i].x, xs[i % 4]);
        EXPECT_EQ(k[i].y, ys[i % 4]);
        EXPECT_EQ(k[i].z, i < 4 ? 0.0f : 3.0f);
    }
}

TEST(Box, PlainContainmentExcludesTheUpperEdges) {
    Box2D b(0, 0, 1, 1);
    EXPECT_EQ(b.IsIn(point_2d(1, 0.5f)), 0);
    EXPECT_EQ(b.IsIn(point_2d(0, 0.5f)), 1);
    EXPECT_EQ(b.Contains(point_2d(0.5f, 1)), 0);
    Box3D c;
    c.DefineBox(point_3d(0, 0, 0), point_3d(1, 1, 1));
    EXPECT_EQ(c.IsIn(point_3d(0, 0, 0)), 1);
    EXPECT_EQ(c.Contains(point_3d(0.5f, 0.5f, 1)), 0);
}

TEST(Box, WithAToleranceOnlyTheUpperXEdgeIsInside) {
    Box2D b(0, 0, 1, 1);
    EXPECT_EQ(b.IsIn(point_2d(1, 0.5f), 0.0f), 1);
    EXPECT_EQ(b.IsIn(point_2d(0.5f, 1), 0.0f), 0);
    EXPECT_EQ(b.IsIn(point_2d(1.5f, 0.5f), 0.5f), 1);
    EXPECT_EQ(b.IsIn(point_2d(0.5f, 1.5f), 0.5f), 0);
    EXPECT_EQ(b.IsIn(point_2d(-0.5f, -0.5f), 0.5f), 1);
    const double px[2] = {1.5, 0.5}, py[2] = {0.5, 1.5};
    EXPECT_EQ(b.IsIn2D(px, 0.5), 1);
    EXPECT_EQ(b.IsIn2D(py, 0.5), 0);

    Box3D c;
    c.DefineBox(point_3d(0, 0, 0), point_3d(1, 1, 1));
    EXPECT_EQ(c.IsIn(point_3d(1, 0.5f, 0.5f), 0.0f), 1);
    EXPECT_EQ(c.IsIn(point_3d(0.5f, 0.5f, 1), 0.0f), 0);
    EXPECT_EQ(c.IsIn(point_2d(1, 0.5f), 0.0f), 1); // z ignored
    EXPECT_EQ(c.IsIn2D(py, 0.5), 0);
    // the tolerance is not a global one
    GmGuard guard;
    gmSetDistTol(5.0);
    gmSetAbsDistTol(5.0);
    EXPECT_EQ(c.IsIn(point_3d(2, 0.5f, 0.5f), 0.0f), 0);
}

TEST(Box, TouchingBoxesCanIntersectButDoNotIntersect) {
    Box2D a(0, 0, 1, 1), b(1, 0, 2, 1), far(1.5f, 0, 2, 1);
    EXPECT_EQ(a.IsIntersect(b), 0);
    EXPECT_EQ(a.CanIntersect(b), 1);
    EXPECT_EQ(a.CanIntersect(far, 0.5f), 1); // a gap equal to t still touches
    EXPECT_EQ(a.CanIntersect(far, 0.4f), 0);
    EXPECT_EQ(a.CanIntersect(b, -0.25f), 0); // negative t wants an overlap
    EXPECT_EQ(a.CanIntersect(Box2D(0.75f, 0, 2, 1), -0.25f), 1);

    Box3D c, d;
    c.DefineBox(point_3d(0, 0, 0), point_3d(1, 1, 1));
    d.DefineBox(point_3d(0, 0, 1.5f), point_3d(1, 1, 2));
    EXPECT_EQ(c.CanIntersect(d), 0);
    EXPECT_EQ(c.CanIntersect(d, 0.5f), 1);
    EXPECT_EQ(c.CanIntersect(d, 0.4f), 0);
    EXPECT_EQ(c.CanIntersect(Box2D(0.5f, 0.5f, 3, 3), 0.0f), 1); // x and y only
    EXPECT_EQ(Box2D(0.5f, 0.5f, 3, 3).CanIntersect(d, 0.0f), 1);
    EXPECT_EQ(c.IsIntersect(d), 0);
}

TEST(Box, ReversedBoxesAreTakenAtFaceValue) {
    Box2D r(point_2d(1, 1), point_2d(0, 0));
    EXPECT_EQ(r.IsEmpty(), 1);
    Box2D s;
    s.DefineBox(point_2d(1, 1), point_2d(0, 0));
    EXPECT_EQ(s.IsEmpty(), 0);
    EXPECT_EQ(s.min.x, 0.0f);
    Box3D t(point_2d(1, 1), point_2d(0, 0)); // sorts, z 0
    expectBox(t, 0, 0, 0, 1, 1, 0);
    EXPECT_EQ(r.IsIntersect(Box2D(-1, -1, 2, 2)), 1); // no emptiness test
    EXPECT_FLOAT_EQ(r.GetWidth(), -1.0f);
    EXPECT_EQ(r.GetCenter().x, 0.5f);
}

TEST(Box, AdjustAndGrowTurnTheEmptyBoxIntoMinusOneToOne) {
    Box3D a;
    a.Adjust();
    expectBox(a, -1, -1, -1, 1, 1, 1);
    EXPECT_EQ(a.IsEmpty(), 0);
    Box3D g;
    g.Grow(2, 2, 2);
    expectBox(g, -1, -1, -1, 1, 1, 1);
    Box2D m;
    m.Move(1, 1);
    EXPECT_EQ(m.min.x, 2.0f);
    EXPECT_EQ(m.max.x, 0.0f);
}

TEST(Box, Box3DOperatorsHonourEmptyBoxesBox2DDoesNot) {
    Box3D e, f, box;
    box.DefineBox(point_3d(5, 5, 5), point_3d(6, 6, 6));
    EXPECT_EQ((e + f).IsEmpty(), 1);
    EXPECT_EQ((e + box) == box, 1);
    EXPECT_EQ((box + e) == box, 1);
    Box3D acc;
    acc += box;
    EXPECT_EQ(acc == box, 1);
    acc += Box3D();
    EXPECT_EQ(acc == box, 1);
    Box3D u;
    u.Union(box); // the plain rule pulls out to the empty box's corners
    expectBox(u, 1, 1, 1, 6, 6, 6);

    Box2D e2, b2(5, 5, 6, 6);
    Box2D s2 = e2 + b2;
    EXPECT_EQ(s2 == Box2D(1, 1, 6, 6), 1);
    e2 += b2;
    EXPECT_EQ(e2 == s2, 1);
    Box2D i2(0, 0, 4, 4);
    i2.Intersect(Box2D(5, 1, 6, 2)); // reversed in x, no test
    EXPECT_EQ(i2 == Box2D(5, 1, 4, 2), 1);
}

TEST(Box, ProjectionsBetween2DAnd3D) {
    Box3D c;
    c.DefineBox(point_3d(0, 1, 2), point_3d(3, 4, 5));
    Box2D p(c);
    EXPECT_EQ(p == Box2D(0, 1, 3, 4), 1);
    Box3D back(p);
    expectBox(back, 0, 1, 0, 3, 4, 0);
    back.DefineBox(p, 7.0f);
    expectBox(back, 0, 1, 7, 3, 4, 7);
    EXPECT_EQ(Box2D(-1, -1, 10, 10).CanInclude(c), 1); // z not read
    EXPECT_EQ(Box2D(0, 1, 3, 4).CanInclude(Box2D(0, 1, 3, 4.5f)), 0);
}

TEST(Box, CheckInterExaminesNothing) {
    Box2D e;
    Box3D f;
    point_3d a(100, 100, 100), b(200, 200, 200);
    EXPECT_EQ(e.CheckInter(a, b, 0.0f), 1);
    EXPECT_EQ(f.CheckInter(a, b, -1.0f), 1);
}

} // namespace
