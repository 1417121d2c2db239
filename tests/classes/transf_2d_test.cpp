#include <korvane/classes.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

const double kPi = 3.141592653589793;

void expectSame(const TRANSF_2D &a, const TRANSF_2D &b) {
    float ma[9], mb[9];
    a.Get9(ma);
    b.Get9(mb);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(ma[i], mb[i]) << "element " << i;
}

TEST(Transf2D, FieldsSitInTheirMatrixPositions) {
    const float m[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    TRANSF_2D t(m);
    EXPECT_EQ(t.pAxis.x, 3.0f);
    EXPECT_EQ(t.pAxis.y, 6.0f);
    EXPECT_EQ(t.origin.x, 7.0f);
    EXPECT_EQ(t(1, 2), 6.0f);
    float e[16], viaFree[16];
    t.Get16(e);
    Matrix2DTo3D(m, viaFree);
    const float want[16] = {1, 2, 0, 3, 4, 5, 0, 6, 0, 0, 1, 0, 7, 8, 0, 9};
    for (int i = 0; i < 16; ++i) {
        EXPECT_EQ(e[i], want[i]);
        EXPECT_EQ(viaFree[i], want[i]);
    }
}

TEST(Transf2D, OutOfRangeIndexGivesElementZeroZero) {
    TRANSF_2D t;
    EXPECT_EQ(&t(5, 0), &t.xAxis.x);
    EXPECT_EQ(&t(0, -1), &t.xAxis.x);
    EXPECT_EQ(&t(2, 2), &t.scale);
    double d[16];
    t.GetDbl16(d);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(d[i], i % 5 == 0 ? 1.0 : 0.0);
}

TEST(Transf2D, UnitNormalisesAxesSeparatelyOrFallsBackToIdentity) {
    TRANSF_2D t;
    t.Define(point_2d(5, 5), point_2d(2, 0), point_2d(3, 3));
    EXPECT_EQ(t.xAxis.x, 1.0f);
    EXPECT_FLOAT_EQ(t.yAxis.x, float(std::sqrt(0.5)));
    EXPECT_FLOAT_EQ(t.yAxis.Length(), 1.0f);
    EXPECT_EQ(t.origin.x, 5.0f);
    t.Define(point_2d(5, 5), point_2d(0, 0), point_2d(3, 3));
    expectSame(t, TRANSF_2D());
    t.Define(point_2d(5, 5), point_2d(1, 0), point_2d(0, 0));
    expectSame(t, TRANSF_2D());
    t.pAxis.Set(1, 1);
    t.scale = 3;
    t.xAxis.Set(0, 4);
    t.Unit();
    EXPECT_EQ(t.pAxis.x, 0.0f);
    EXPECT_EQ(t.scale, 1.0f);
    EXPECT_EQ(t.xAxis.y, 1.0f);
}

TEST(Transf2D, RotationAndComposingOnTheRight) {
    TRANSF_2D r;
    r.DefRotate(float(kPi / 2));
    point_2d p = point_2d(1, 0) * r;
    EXPECT_NEAR(p.x, 0.0, 1e-7);
    EXPECT_NEAR(p.y, 1.0, 1e-7);
    TRANSF_2D t;
    t.DefMove(point_2d(1, 0));
    t.Rotate(float(kPi / 2)); // first the move, then the turn about the origin
    p = point_2d(0, 0) * t;
    EXPECT_NEAR(p.x, 0.0, 1e-7);
    EXPECT_NEAR(p.y, 1.0, 1e-7);
    TRANSF_2D c;
    c.DefRotate(point_2d(2, 3), 1.1f);
    p = point_2d(2, 3) * c;
    EXPECT_NEAR(p.x, 2.0, 1e-6);
    EXPECT_NEAR(p.y, 3.0, 1e-6);
    c.DefScale(point_2d(2, 3), 4, 5);
    p = point_2d(2, 3) * c;
    EXPECT_EQ(p.x, 2.0f);
    EXPECT_EQ(p.y, 3.0f);
    t.Move(point_2d(1, 1)); // adds to origin only
    EXPECT_NEAR(t.origin.x, 1.0, 1e-7);
    EXPECT_NEAR(t.xAxis.y, 1.0, 1e-7);
}

TEST(Transf2D, ShearMirrorsAndTranspose) {
    TRANSF_2D s;
    s.DefShear(2, 0);
    point_2d p = point_2d(0, 1) * s;
    EXPECT_EQ(p.x, 2.0f);
    EXPECT_EQ(p.y, 1.0f);
    TRANSF_2D m;
    m.DefMove(point_2d(3, 4));
    TRANSF_2D tr = m.Transpose();
    EXPECT_EQ(tr.pAxis.x, 3.0f);
    EXPECT_EQ(tr.pAxis.y, 4.0f);
    EXPECT_EQ(tr.origin.x, 0.0f);
    // the point product reads neither pAxis nor scale
    tr.scale = 5;
    p = point_2d(1, 1) * tr;
    EXPECT_EQ(p.x, 1.0f);
    point_3d q = point_3d(1, 1, 9) * m;
    EXPECT_EQ(q.x, 4.0f);
    EXPECT_EQ(q.z, 9.0f);
}

TEST(Transf2D, MirrorInALineFixesTheLineAndIsAnInvolution) {
    TRANSF_2D m;
    m.DefMirror(point_2d(0, 1), point_2d(2, 3)); // y = x + 1
    point_2d on = point_2d(5, 6) * m, off = point_2d(0, 0) * m;
    EXPECT_NEAR(on.x, 5.0, 1e-5);
    EXPECT_NEAR(on.y, 6.0, 1e-5);
    EXPECT_NEAR(off.x, -1.0, 1e-6);
    EXPECT_NEAR(off.y, 1.0, 1e-6);
    TRANSF_2D twice(m);
    twice.Mirror(point_2d(0, 1), point_2d(2, 3));
    point_2d back = point_2d(3, -7) * twice;
    EXPECT_NEAR(back.x, 3.0, 1e-5);
    EXPECT_NEAR(back.y, -7.0, 1e-5);
}

TEST(Transf2D, SingularInverseGivesTheObjectBack) {
    TRANSF_2D t;
    t.DefScale(1.0f, 5e-07f);
    t.origin.Set(3, 4);
    expectSame(t.Inverse(), t);
    TRANSF_2D flat;
    flat.DefMirror(point_2d(1, 2), point_2d(1, 2)); // equal points: a zero frame
    point_2d p = point_2d(7, -3) * flat;
    EXPECT_FLOAT_EQ(p.x, 1.0f);
    EXPECT_FLOAT_EQ(p.y, 2.0f);
}

TEST(Transf2D, InverseRoundTripsRandomTransformations) {
    std::mt19937 rng(5);
    std::uniform_real_distribution<float> u(-3.0f, 3.0f);
    for (int n = 0; n < 50; ++n) {
        TRANSF_2D t;
        t.DefRotate(point_2d(u(rng), u(rng)), u(rng));
        t.Scale(1.5f + u(rng) / 4, 1.5f - u(rng) / 4);
        t.Shear(u(rng) / 4, u(rng) / 4);
        t.Move(point_2d(u(rng), u(rng)));
        TRANSF_2D id = t * t.Inverse();
        float m[9];
        id.Get9(m);
        for (int i = 0; i < 9; ++i)
            EXPECT_NEAR(m[i], i % 4 == 0 ? 1.0 : 0.0, 1e-5);
        point_2d p(u(rng), u(rng)), q = p * t * t.Inverse();
        EXPECT_NEAR(q.x, p.x, 1e-5);
        EXPECT_NEAR(q.y, p.y, 1e-5);
    }
}

} // namespace
