#include <korvane/classes.h>

#include "classes/gm_guard.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

const double kPi = 3.141592653589793;

void expectSame(const TRANSF_3D &a, const TRANSF_3D &b) {
    float ma[16], mb[16];
    a.Get16(ma);
    b.Get16(mb);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(ma[i], mb[i]) << "element " << i;
}

void expectNear(const TRANSF_3D &a, const TRANSF_3D &b, double tol) {
    float ma[16], mb[16];
    a.Get16(ma);
    b.Get16(mb);
    for (int i = 0; i < 16; ++i)
        EXPECT_NEAR(ma[i], mb[i], tol) << "element " << i;
}

void expectPoint(const point_3d &p, double x, double y, double z, double tol) {
    EXPECT_NEAR(p.x, x, tol);
    EXPECT_NEAR(p.y, y, tol);
    EXPECT_NEAR(p.z, z, tol);
}

TEST(Transf3D, LayoutAndAccess) {
    float m[16];
    for (int i = 0; i < 16; ++i)
        m[i] = float(i + 1);
    TRANSF_3D t(m);
    EXPECT_EQ(t.pAxis.z, 12.0f);
    EXPECT_EQ(t.origin.z, 15.0f);
    EXPECT_EQ(&t(4, 0), &t.xAxis.x);
    EXPECT_EQ(&t(3, 3), &t.scale);
    TRANSF_3D tr = t.Transpose();
    EXPECT_EQ(tr.pAxis.x, t.origin.x);
    EXPECT_EQ(tr.origin.z, t.pAxis.z);
}

TEST(Transf3D, AssignmentFrom2DFlattensSet2DKeepsZ) {
    TRANSF_2D r;
    r.DefRotate(0.5f);
    r.Move(point_2d(1, 2));
    TRANSF_3D flat;
    flat = r;
    EXPECT_EQ(flat.zAxis.Length(), 0.0f);
    point_3d p = point_3d(1, 1, 7) * flat;
    EXPECT_EQ(p.z, 0.0f);
    TRANSF_3D kept;
    kept.Set2D(r);
    p = point_3d(1, 1, 7) * kept;
    EXPECT_EQ(p.z, 7.0f);
    point_2d q = point_2d(1, 1) * r;
    EXPECT_EQ(p.x, q.x);
    EXPECT_EQ(p.y, q.y);
    float m9[9];
    r.Get9(m9);
    TRANSF_3D fromArray;
    fromArray.Set2D(m9);
    expectSame(fromArray, kept);
}

TEST(Transf3D, DefineSeedsTheFrameFromTheSmallestComponent) {
    TRANSF_3D f;
    f.Define(point_3d(1, 2, 3), point_3d(0, 0, 5));
    expectPoint(f.xAxis, 0, 1, 0, 0);
    expectPoint(f.yAxis, -1, 0, 0, 0);
    expectPoint(f.zAxis, 0, 0, 1, 0);
    EXPECT_EQ(f.origin.y, 2.0f);
    f.Define(point_3d(0, 0, 0), point_3d(1, 1, 1)); // seed z: x lies in the xy plane
    EXPECT_NEAR(f.xAxis.z, 0.816497, 1e-5);
    EXPECT_NEAR(f.yAxis.z, 0.0, 1e-7);
    const double org[3] = {0, 0, 0}, dir[3] = {0, 0, 2}; // taken as it stands
    f.Define(org, dir);
    expectPoint(f.zAxis, 0, 0, 1, 0); // Unit normalises it at the end
    f.Define(point_3d(0, 0, 0), point_3d(0, 0, 1), point_3d(1, 0, 1));
    EXPECT_FLOAT_EQ(f.xAxis.x, float(std::sqrt(0.5))); // not made perpendicular
    EXPECT_FLOAT_EQ(f.xAxis.z, float(std::sqrt(0.5)));
}

TEST(Transf3D, UnitFailsToTheIdentity) {
    TRANSF_3D t;
    t.DefScale(2, 3, 4);
    t.origin.Set(1, 1, 1);
    t.scale = 7;
    EXPECT_EQ(t.Unit(), 1);
    EXPECT_EQ(t.yAxis.y, 1.0f);
    EXPECT_EQ(t.scale, 1.0f);
    EXPECT_EQ(t.origin.x, 1.0f);
    t.zAxis.Set(0, 0, 5e-07f);
    EXPECT_EQ(t.Unit(), 0);
    expectSame(t, TRANSF_3D());
    TRANSF_3D z;
    z.Define(point_3d(4, 4, 4), point_3d(0, 0, 0)); // zero direction: identity, origin lost
    expectSame(z, TRANSF_3D());
}

TEST(Transf3D, InverseOfASingularMatrixIsTheObject) {
    TRANSF_3D t;
    t.DefRotate(0.3f, 0.2f, 0.1f);
    t.yAxis.Set(0, 0, 0);
    t.origin.Set(1, 2, 3);
    expectSame(t.Inverse(), t);
    TRANSF_3D flat;
    flat = TRANSF_2D();
    expectSame(flat.Inverse(), flat);
    GmGuard guard;
    gmSetAbsDistTol(0.5); // a pivot equal to the tolerance is accepted
    TRANSF_3D s;
    s.DefScale(0.5f, 1, 1);
    EXPECT_EQ(s.Inverse().xAxis.x, 2.0f);
    s.DefScale(std::nextafter(0.5f, 0.0f), 1, 1);
    expectSame(s.Inverse(), s);
}

TEST(Transf3D, InverseOfARotationIsTheOppositeRotation) {
    TRANSF_3D r, back;
    r.DefRotateXAxis(0.7f);
    back.DefRotateXAxis(-0.7f);
    expectNear(r.Inverse(), back, 1e-6);
    r.DefRotateYAxis(-1.2f);
    back.DefRotateYAxis(1.2f);
    expectNear(r.Inverse(), back, 1e-6);
}

TEST(Transf3D, InverseRoundTripsRandomTransformations) {
    std::mt19937 rng(9);
    std::uniform_real_distribution<float> u(-2.0f, 2.0f);
    for (int n = 0; n < 50; ++n) {
        TRANSF_3D t;
        t.DefRotate(u(rng), u(rng), u(rng));
        t.Scale(point_3d(u(rng), u(rng), u(rng)), 1.5f + u(rng) / 4, 1.5f + u(rng) / 4,
                1.5f - u(rng) / 4);
        t.Move(point_3d(u(rng), u(rng), u(rng)));
        t.pAxis.Set(u(rng) / 8, u(rng) / 8, u(rng) / 8); // a perspective part too
        expectNear(t * t.Inverse(), TRANSF_3D(), 1e-5);
        point_4d p(u(rng), u(rng), u(rng), 1.0f);
        point_4d q = p * t * t.Inverse();
        EXPECT_NEAR(q.x, p.x, 1e-5);
        EXPECT_NEAR(q.w, 1.0, 1e-5);
    }
}

TEST(Transf3D, PointProductsReadPerspectiveOnlyForPoint4D) {
    TRANSF_3D t;
    t.DefMove(point_3d(1, 2, 3));
    t.pAxis.Set(1, 0, 0);
    t.scale = 2;
    point_4d h = point_4d(5, 0, 0, 1) * t;
    EXPECT_EQ(h.x, 6.0f);
    EXPECT_EQ(h.w, 7.0f); // x pAxis.x + w scale
    point_3d p = point_3d(5, 0, 0) * t;
    EXPECT_EQ(p.x, 6.0f);
    EXPECT_EQ(p.z, 3.0f);
    point_2d q = point_2d(5, 0) * t;
    EXPECT_EQ(q.y, 2.0f);
}

TEST(Transf3D, MirrorByAnUnknownPlaneChangesNothing) {
    TRANSF_3D t;
    t.DefRotate(0.1f, 0.2f, 0.3f);
    t.origin.Set(4, 5, 6);
    TRANSF_3D keep(t);
    t.DefMirror(3u);
    expectSame(t, keep);
    t.Mirror(3u);
    expectSame(t, keep);
    t.DefMirror(1u);
    EXPECT_EQ((point_3d(2, 3, 4) * t).x, -2.0f);
    t.Mirror(2u);
    point_3d p = point_3d(2, 3, 4) * t;
    EXPECT_EQ(p.y, -3.0f);
    EXPECT_EQ(p.z, 4.0f);
}

TEST(Transf3D, RotateLineTurnsAboutTheLineThroughTwiceP) {
    TRANSF_3D t;
    t.DefRotateLine(point_3d(1, 0, 0), point_3d(1, 0, 1), float(kPi));
    expectPoint(point_3d(1, 0, 0) * t, 3, 0, 0, 1e-5);
    expectPoint(point_3d(2, 0, 5) * t, 2, 0, 5, 1e-5); // on the line through 2p
    const double p[3] = {1, 0, 0}, d[3] = {0, 0, 1};
    TRANSF_3D u;
    u.DefRotate(p, d, kPi);
    expectNear(u, t, 1e-6);
    // with p at the origin it is the plain rotation about the line
    t.DefRotateLine(point_3d(0, 0, 0), point_3d(0, 0, 2), float(kPi / 2));
    expectPoint(point_3d(1, 0, 7) * t, 0, 1, 7, 1e-6);
    TRANSF_3D c;
    c.DefMove(point_3d(1, 1, 1));
    c.RotateLine(point_3d(0, 0, 0), point_3d(0, 0, 2), float(kPi / 2));
    expectPoint(point_3d(0, 0, 0) * c, -1, 1, 1, 1e-6);
}

TEST(Transf3D, RotateTurnsUTowardsV) {
    TRANSF_3D t;
    point_3d u(1, 0, 0), v(0, 1, 1), o(0, 0, 0);
    t.DefRotate(o, u, v);
    point_3d w = u * t;
    EXPECT_NEAR(w.y, std::sqrt(0.5), 1e-6);
    EXPECT_NEAR(w.z, std::sqrt(0.5), 1e-6);
    t.DefMove(point_3d(9, 9, 9));
    t.DefRotate(o, u, point_3d(3, 0, 0)); // same direction: identity
    expectSame(t, TRANSF_3D());
    t.DefRotate(o, u, point_3d(-2, 0, 0)); // opposite: a half turn across u
    expectPoint(u * t, -1, 0, 0, 1e-6);
}

TEST(Transf3D, MirrorPlaneAndScaleAboutAPoint) {
    TRANSF_3D m;
    m.DefMirrorPlane(point_3d(0, 0, 1), point_3d(0, 0, 3));
    expectPoint(point_3d(3, 4, 5) * m, 3, 4, -3, 1e-6);
    const double p[3] = {0, 0, 1}, n[3] = {0, 0, 1};
    TRANSF_3D md;
    md.DefMirror(p, n);
    expectNear(md, m, 1e-7);
    TRANSF_3D s;
    s.DefScale(point_3d(1, 2, 3), 2, 3, 4);
    expectPoint(point_3d(1, 2, 3) * s, 1, 2, 3, 0);
    expectPoint(point_3d(2, 2, 3) * s, 3, 2, 3, 0);
    const double c[3] = {1, 2, 3}, k[3] = {2, 3, 4};
    TRANSF_3D sd;
    sd.DefScale(c, k);
    expectSame(sd, s);
}

} // namespace
