#include "classes/helpers.h"

#include <cmath>
#include <random>

namespace {

using namespace korvane_test;
const double kPi = 3.141592653589793;
const float kHalfPi = float(kPi / 2);

TEST(MultiMatrix, OutputMayBeEitherInput) {
    float a[16], b[16], want[16], m[16], w2[9];
    for (int i = 0; i < 16; ++i) {
        a[i] = float(i % 7) - 2.5f;
        b[i] = float(i % 5) * 0.75f;
    }
    MultiMatrix3D(a, b, want);
    CopyMatrix3D(a, m);
    MultiMatrix3D(m, b, m);
    EXPECT_TRUE(sameAs(m, want));
    CopyMatrix3D(b, m);
    MultiMatrix3D(a, m, m);
    EXPECT_TRUE(sameAs(m, want));
    MultiMatrix2D(a, b, w2);
    MultiMatrix2D(a, b, a);
    EXPECT_TRUE(sameAs(Wide(a, 9), w2));
}

TEST(GetInverseMatrix2D, RefusesBelowTheFixedDeterminant) {
    float keep[9], a[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1e-06f}; // the float lies just below 1e-06
    ClearMatrix2D(keep, 7.0f);
    EXPECT_EQ(GetInverseMatrix2D(a, keep), 0);
    EXPECT_TRUE(is(keep, {7, 7, 7, 7, 7, 7, 7, 7, 7}));
    const float above = std::nextafter(1e-06f, 1.0f);
    a[8] = above;
    EXPECT_EQ(GetInverseMatrix2D(a, a), 1); // in place
    EXPECT_TRUE(is(a, {1, 0, 0, 0, 1, 0, 0, 0, float(1.0 / double(above))}));
}

TEST(GetInverseMatrix2D, StoresTheAdjugateBeforeScalingIt) {
    const float a[9] = {2, 1, 0.5f, 0.3f, 3, 0.1f, 1, 2, 1};
    float m[9];
    ASSERT_EQ(GetInverseMatrix2D(a, m), 1);
    const double det = 2.0 * 3 * 1 + 1.0 * double(0.1f) * 1 + double(0.5f) * double(0.3f) * 2 -
                       2.0 * double(0.1f) * 2 - 1.0 * 1 * double(0.3f) - 3.0 * 1 * double(0.5f);
    EXPECT_EQ(m[0], float(double(float(3.0 * 1 - double(0.1f) * 2)) * (1.0 / det)));
    float prod[9];
    MultiMatrix2D(a, m, prod);
    EXPECT_TRUE(is(prod, kId2D, 1e-6));
}

TEST(MakeMirrorMatrix, FiveFactorsLeftToRight) {
    float want[9], step[9], m[9];
    MakeMoveMatrix(-3, -5, want);
    MakeRotateMatrix(0, 0, -0.3f, step);
    MultiMatrix2D(want, step, want);
    InitMatrix2D(step);
    step[4] = -1.0f;
    MultiMatrix2D(want, step, want);
    MakeRotateMatrix(0, 0, 0.3f, step);
    MultiMatrix2D(want, step, want);
    MakeMoveMatrix(3, 5, step);
    MultiMatrix2D(want, step, want);
    MakeMirrorMatrix(3, 5, 0.3f, m);
    EXPECT_TRUE(sameAs(m, want));
    const point_2d on(3 + std::cos(0.3f), 5 + std::sin(0.3f));
    point_2d p;
    TransPoint2D(on, &p, m);
    EXPECT_TRUE(sameAs(p, on, 1e-6)); // a point on the line stays
}

TEST(Shear, SafeAngleStaysOffTheQuarterTurns) {
    // (angle, the angle whose tangent is used): below and above the quarter turn, clear of
    // it, -1.57 wrapped to below the three-quarter turn, and above that turn
    const double cases[6][2] = {
        {1.57f, 1.5610697269748965}, {1.575f, 1.5805229269748966}, {1.59f, 1.59f}, {0.7f, 0.7f},
        {-1.57f, 4.70266238056469},  {4.72f, 4.722115580564689}};
    float m[9];
    for (const auto &c : cases) {
        MakeShearMatX(0, 0, float(c[0]), m);
        EXPECT_TRUE(is(m, {1, 0, 0, float(std::tan(c[1])), 1, 0, 0, 0, 1})) << c[0];
        MakeShearMatY(0, 0, float(c[0]), m);
        EXPECT_TRUE(is(m, {1, float(std::tan(c[1])), 0, 0, 1, 0, 0, 0, 1})) << c[0];
    }
}

TEST(Shear, AboutAPointAndAlongALine) {
    float m[9], x[9], y[9];
    MakeShearMatX(2, 3, 0.5f, m);
    EXPECT_TRUE(is(point_2d(2, 3) * m, {2, 3}, 1e-6));
    // a degenerate line falls back to the x shear about p
    MakeShearMatrix(point_2d(2, 3), point_2d(2, 3.000001f), 0.5f, x);
    EXPECT_TRUE(sameAs(x, m));
    // along the x axis the line's frame is the world: the y form
    MakeShearMatY(0, 0, 0.5f, y);
    MakeShearMatrix(point_2d(0, 0), point_2d(4, 0), 0.5f, x);
    EXPECT_TRUE(sameAs(x, y, 1e-6));
}

TEST(MatrixConstructors, FixedPointsAndImages) {
    float m[9], n[16];
    MakeRotateMatrix(1, 1, kHalfPi, m);
    EXPECT_TRUE(is(point_2d(2, 1) * m, {1, 2}, 1e-6));
    MakeMirrorMatrix(1, 0, kHalfPi / 2, m); // the line y = x - 1
    EXPECT_TRUE(is(point_2d(0, 0) * m, {1, -1}, 1e-6));
    MakeRotate3D_Y(kHalfPi, n);
    EXPECT_TRUE(is(point_3d(1, 0, 0) * n, {0, 0, -1}, 1e-6));
    MakeRotateMat3D(point_3d(1, 1, 1), 0, kHalfPi, n); // -b about x through p
    EXPECT_TRUE(is(point_3d(1, 2, 1) * n, {1, 1, 0}, 1e-6));
    point_3d v[2] = {point_3d(1, 1, 0), point_3d(1, 1, 5)};
    MakeRotate3D_V(v, kHalfPi, n); // the points on the line stay
    EXPECT_TRUE(is(point_3d(1, 1, 3) * n, {1, 1, 3}, 1e-6));
    EXPECT_TRUE(is(point_3d(2, 1, 0) * n, {1, 2, 0}, 1e-6));
    v[1] = point_3d(1.005f, 1, 0);
    MakeRotate3D_V(v, 1.0f, n);
    EXPECT_TRUE(is(n, kId3D));
}

TEST(RotateVToZ, RoundTripsToTheIdentity) {
    const point_3d cases[3][2] = {{point_3d(1, 2, 3), point_3d(4, -2, 7)},
                                  {point_3d(1, 2, 3), point_3d(9, 2, 3)}, // along x
                                  {point_3d(-1, 0, 2), point_3d(-1, -3, 2)}};
    float a[16], b[16], prod[16];
    for (const auto &v : cases) {
        MakeRotate_VToZ(v, a);
        EXPECT_TRUE(is(v[0] * a, {0, 0, 0}, 1e-5));
        EXPECT_TRUE(is(v[1] * a, {0, 0, v[0].DistFrom(v[1])}, 1e-5));
        MakeRotate_ZToV(v, b);
        MultiMatrix3D(a, b, prod);
        EXPECT_TRUE(is(prod, kId3D, 1e-6));
    }
    point_3d close[2] = {point_3d(0, 0, 0), point_3d(0, 0.0005f, 0)};
    MakeRotate_VToZ(close, a);
    EXPECT_TRUE(is(a, kId3D));
}

TEST(TransPoint, ListsMatchSinglePointsInPlaceAndZeroCountTouchesNothing) {
    float m[9];
    MakeRotateMatrix(0.5f, -1.0f, 0.3f, m);
    point_3d in[2] = {point_3d(1, 2, 3), point_3d(-4, 5, 6)}, out[2] = {in[0], in[1]};
    point_2d flat[2], one;
    TransPointList2D(in, 0, flat, m);
    EXPECT_TRUE(is(flat[0], {0, 0}));
    TransPointList2D(in, 2, flat, m);
    TransPointList2D(out, 2, out, m); // in place, z copied
    for (int i = 0; i < 2; ++i) {
        TransPoint2D(in[i], &one, m);
        EXPECT_TRUE(sameAs(flat[i], one));
        EXPECT_TRUE(is(out[i], {one.x, one.y, in[i].z}));
    }
}

TEST(MatrixBox, CornersOfAnEmptyBoxAreUsedAsTheyStand) {
    const double m[16] = {2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 10, 0, 0, 1};
    Box3D empty, out, b;
    mathMatrixBox3D(empty, out, m);
    EXPECT_TRUE(is(out, {8, -2, -2, 12, 2, 2}));
    b.DefineBox(point_3d(0, 0, 0), point_3d(1, 1, 1));
    mathMatrixBox3D(b, b, m); // the input may be the output
    EXPECT_TRUE(is(b, {10, 0, 0, 12, 2, 2}));
    mathMatrixBox2D(Box2D(0, 0, 1, 3), out, m);
    EXPECT_TRUE(is(out, {10, 0, 0, 12, 6, 0}));
    point_3d q;
    mathMatrixNDPt_2D(nd_point_2d(), q, m);
    EXPECT_TRUE(is(q, {10, 0, 0}));
}

TEST(Transf2D, FieldsSitInTheirMatrixPositions) {
    const float m[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    TRANSF_2D t(m);
    float e[16], viaFree[16];
    EXPECT_TRUE(is(t.pAxis, {3, 6}));
    EXPECT_TRUE(is(t.origin, {7, 8}));
    EXPECT_EQ(&t(2, 2), &t.scale);
    EXPECT_EQ(&t(5, 0), &t.xAxis.x); // any index outside 0..2
    EXPECT_EQ(&t(0, -1), &t.xAxis.x);
    t.Get16(e);
    Matrix2DTo3D(m, viaFree);
    EXPECT_TRUE(is(e, {1, 2, 0, 3, 4, 5, 0, 6, 0, 0, 1, 0, 7, 8, 0, 9}));
    EXPECT_TRUE(sameAs(viaFree, e));
    EXPECT_TRUE(is(t.Transpose(), {1, 4, 7, 2, 5, 8, 3, 6, 9}));
}

TEST(Transf2D, DefineAndUnitNormaliseAxesSeparatelyOrFallBackToIdentity) {
    const float r = float(std::sqrt(0.5)), m[9] = {0, 4, 1, 3, 3, 1, 5, 5, 3};
    TRANSF_2D t(m);
    t.Unit(); // pAxis and scale reset, origin kept, the axes not made perpendicular
    EXPECT_TRUE(is(t, {0, 1, 0, r, r, 0, 5, 5, 1}, 1e-7));
    t.Define(point_2d(1, 2), point_2d(0, 3)); // the y axis is the left normal
    EXPECT_TRUE(is(t, {0, 1, 0, -1, 0, 0, 1, 2, 1}));
    t.Define(point_2d(5, 5), point_2d(2, 0), point_2d(3, 3));
    EXPECT_TRUE(is(t, {1, 0, 0, r, r, 0, 5, 5, 1}, 1e-7));
    t.Define(point_2d(5, 5), point_2d(0, 0), point_2d(3, 3));
    EXPECT_TRUE(is(t, kId2D));
    t.Define(point_2d(5, 5), point_2d(1, 0), point_2d(0, 0));
    EXPECT_TRUE(is(t, kId2D));
}

TEST(Transf2D, DefAndComposingMembers) {
    TRANSF_2D t, c, s;
    t.DefMove(point_2d(1, 0));
    t.Rotate(kHalfPi);      // first the move, then the anticlockwise turn about the origin
    t.Move(point_2d(1, 1)); // adds to origin only
    EXPECT_TRUE(is(t, {0, 1, 0, -1, 0, 0, 1, 2, 1}, 1e-7));
    c.DefScale(point_2d(2, 3), 4, 5);
    EXPECT_TRUE(is(point_2d(3, 4) * c, {6, 8}));
    s.DefShear(2, 0.5f);
    EXPECT_TRUE(is(point_2d(1, 1) * s, {3, 1.5}));
    s.DefMirrorYAxis();
    s.MirrorOrigin();
    EXPECT_TRUE(is(point_2d(2, 3) * s, {2, -3}));
    s.DefMirror(point_2d(0, 1), point_2d(2, 3)); // y = x + 1
    EXPECT_TRUE(is(point_2d(5, 6) * s, {5, 6}, 1e-5));
    EXPECT_TRUE(is(point_2d(0, 0) * s, {-1, 1}, 1e-6));
    s.Mirror(point_2d(0, 1), point_2d(2, 3)); // twice: the identity
    EXPECT_TRUE(is(point_2d(3, -7) * s, {3, -7}, 1e-5));
}

TEST(Transf2D, PointProductsReadNeitherPAxisNorScale) {
    const float m[9] = {1, 0, 5, 0, 1, 6, 3, 4, 7};
    point_2d list[2] = {point_2d(1, 1), point_2d(0, 0)};
    EXPECT_TRUE(is(point_3d(1, 1, 9) * TRANSF_2D(m), {4, 5, 9}));
    TransPointList2D(list, 2, list, TRANSF_2D(m)); // in place
    EXPECT_TRUE(is(list[0], {4, 5}));
    EXPECT_TRUE(is(list[1], {3, 4}));
}

TEST(Transf2D, SingularInverseGivesTheObjectBack) {
    TRANSF_2D t, flat;
    t.DefScale(1.0f, 5e-07f);
    t.origin.Set(3, 4);
    EXPECT_TRUE(sameAs(t.Inverse(), t));
    flat.DefMirror(point_2d(1, 2), point_2d(1, 2)); // equal points: a zero frame
    EXPECT_TRUE(is(point_2d(7, -3) * flat, {1, 2}, 1e-6));
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
        EXPECT_TRUE(is(t * t.Inverse(), kId2D, 1e-5));
    }
}

TEST(Transf3D, LayoutAccessAndTheEmbeddingOf2D) {
    float m[16];
    for (int i = 0; i < 16; ++i)
        m[i] = float(i + 1);
    TRANSF_3D t(m), kept, flat;
    EXPECT_TRUE(is(t.pAxis, {4, 8, 12}));
    EXPECT_TRUE(is(t.origin, {13, 14, 15}));
    EXPECT_EQ(&t(4, 0), &t.xAxis.x);
    EXPECT_EQ(&t(3, 3), &t.scale);
    EXPECT_TRUE(is(t.Transpose(), {1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15, 4, 8, 12, 16}));
    kept.Set2D(m); // the first nine as a 2D matrix
    EXPECT_TRUE(is(kept, {1, 2, 0, 3, 4, 5, 0, 6, 0, 0, 1, 0, 7, 8, 0, 9}));
    flat = TRANSF_2D(m); // zAxis zero: everything lands on z = 0
    EXPECT_TRUE(is(flat, {1, 2, 0, 3, 4, 5, 0, 6, 0, 0, 0, 0, 7, 8, 0, 9}));
}

TEST(Transf3D, DefineSeedsTheFrameFromTheSmallestComponent) {
    TRANSF_3D f;
    f.Define(point_3d(1, 2, 3), point_3d(0, 0, 5));
    EXPECT_TRUE(is(f, {0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 1, 2, 3, 1}));
    f.Define(point_3d(0, 0, 0), point_3d(1, 1, 1)); // seed z: the y axis lies in the xy plane
    EXPECT_NEAR(f.xAxis.z, 0.816497, 1e-5);
    EXPECT_NEAR(f.yAxis.z, 0.0, 1e-7);
    const double org[3] = {0, 0, 0}, dir[3] = {0, 0, 2}; // taken as it stands
    f.Define(org, dir);
    EXPECT_TRUE(is(f.zAxis, {0, 0, 1})); // Unit normalises it at the end
    f.Define(point_3d(0, 0, 0), point_3d(0, 0, 1), point_3d(1, 0, 1));
    EXPECT_TRUE(is(f.xAxis, {std::sqrt(0.5), 0, std::sqrt(0.5)}, 1e-7)); // not made perpendicular
}

TEST(Transf3D, UnitFailsToTheIdentity) {
    const float m[16] = {2, 0, 0, 1, 0, 3, 0, 1, 0, 0, 4, 1, 1, 1, 1, 7};
    TRANSF_3D t(m), z;
    EXPECT_EQ(t.Unit(), 1); // pAxis and scale reset, origin kept
    EXPECT_TRUE(is(t, {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 1, 1, 1, 1}));
    t.zAxis.Set(0, 0, 5e-07f);
    EXPECT_EQ(t.Unit(), 0);
    EXPECT_TRUE(is(t, kId3D));
    z.Define(point_3d(4, 4, 4), point_3d(0, 0, 0)); // zero direction: identity, origin lost
    EXPECT_TRUE(is(z, kId3D));
}

TEST(Transf3D, InverseOfASingularMatrixIsTheObject) {
    const float m[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    TRANSF_3D flat, s;
    flat = TRANSF_2D(m);
    EXPECT_TRUE(sameAs(flat.Inverse(), flat));
    GmGuard guard;
    gmSetAbsDistTol(0.5); // a pivot equal to the tolerance is accepted
    s.DefScale(0.5f, 1, 1);
    EXPECT_EQ(s.Inverse().xAxis.x, 2.0f);
    s.DefScale(std::nextafter(0.5f, 0.0f), 1, 1);
    EXPECT_TRUE(sameAs(s.Inverse(), s));
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
        EXPECT_TRUE(is(t * t.Inverse(), kId3D, 1e-5));
    }
}

TEST(Transf3D, PointProductsReadPerspectiveOnlyForPoint4D) {
    TRANSF_3D t;
    t.DefMove(point_3d(1, 2, 3));
    t.pAxis.Set(1, 0, 0);
    t.scale = 2;
    EXPECT_TRUE(is(point_4d(5, 0, 0, 1) * t, {6, 2, 3, 7})); // w: x pAxis.x + w scale
    EXPECT_TRUE(is(point_3d(5, 0, 0) * t, {6, 2, 3}));
    EXPECT_TRUE(is(point_2d(5, 0) * t, {6, 2}));
}

TEST(Transf3D, MirrorsScalesAndAnUnknownPlaneChangesNothing) {
    TRANSF_3D t, keep, m, md, s, sd;
    t.DefRotate(0.1f, 0.2f, 0.3f);
    keep = t;
    t.DefMirror(3u);
    t.Mirror(3u);
    EXPECT_TRUE(sameAs(t, keep));
    t.DefMirror(1u);
    t.Mirror(2u);
    EXPECT_TRUE(is(point_3d(2, 3, 4) * t, {-2, -3, 4}));
    m.DefMirrorPlane(point_3d(0, 0, 1), point_3d(0, 0, 3));
    EXPECT_TRUE(is(point_3d(3, 4, 5) * m, {3, 4, -3}, 1e-6));
    const double p[3] = {0, 0, 1}, n[3] = {0, 0, 1};
    md.DefMirror(p, n);
    EXPECT_TRUE(sameAs(md, m, 1e-7));
    s.DefScale(point_3d(1, 2, 3), 2, 3, 4);
    EXPECT_TRUE(is(point_3d(1, 2, 3) * s, {1, 2, 3}));
    EXPECT_TRUE(is(point_3d(2, 3, 4) * s, {3, 5, 7}));
    const double c[3] = {1, 2, 3}, k[3] = {2, 3, 4};
    sd.DefScale(c, k);
    EXPECT_TRUE(sameAs(sd, s));
}

TEST(Transf3D, RotateLineTurnsAboutTheLineThroughTwiceP) {
    TRANSF_3D t, u, c;
    t.DefRotateLine(point_3d(1, 0, 0), point_3d(1, 0, 1), float(kPi));
    EXPECT_TRUE(is(point_3d(1, 0, 0) * t, {3, 0, 0}, 1e-5));
    EXPECT_TRUE(is(point_3d(2, 0, 5) * t, {2, 0, 5}, 1e-5)); // on the line through 2p
    const double p[3] = {1, 0, 0}, d[3] = {0, 0, 1};
    u.DefRotate(p, d, kPi);
    EXPECT_TRUE(sameAs(u, t, 1e-6));
    c.DefMove(point_3d(1, 1, 1)); // with p at the origin: the plain rotation about the line
    c.RotateLine(point_3d(0, 0, 0), point_3d(0, 0, 2), float(kPi / 2));
    EXPECT_TRUE(is(point_3d(0, 0, 0) * c, {-1, 1, 1}, 1e-6));
}

TEST(Transf3D, RotateTurnsUTowardsV) {
    TRANSF_3D t;
    point_3d u(1, 0, 0), o(0, 0, 0);
    t.DefRotate(o, u, point_3d(0, 1, 1));
    EXPECT_TRUE(is(u * t, {0, std::sqrt(0.5), std::sqrt(0.5)}, 1e-6));
    t.DefMove(point_3d(9, 9, 9));
    t.DefRotate(o, u, point_3d(3, 0, 0)); // same direction: identity
    EXPECT_TRUE(is(t, kId3D));
    t.DefRotate(o, u, point_3d(-2, 0, 0)); // opposite: a half turn across u
    EXPECT_TRUE(is(u * t, {-1, 0, 0}, 1e-6));
}

} // namespace
