#include <korvane/classes.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

const double kPi = 3.141592653589793;

void expectIdentity3D(const float *m, double tol) {
    for (int i = 0; i < 16; ++i)
        EXPECT_NEAR(m[i], i % 5 == 0 ? 1.0 : 0.0, tol) << "element " << i;
}

TEST(MultiMatrix, OutputMayBeEitherInput) {
    float a[16], b[16], want[16], m[16];
    for (int i = 0; i < 16; ++i) {
        a[i] = float(i % 7) - 2.5f;
        b[i] = float(i % 5) * 0.75f;
    }
    MultiMatrix3D(a, b, want);
    CopyMatrix3D(a, m);
    MultiMatrix3D(m, b, m);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(m[i], want[i]);
    CopyMatrix3D(b, m);
    MultiMatrix3D(a, m, m);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(m[i], want[i]);
    float w2[9];
    MultiMatrix2D(a, b, w2);
    MultiMatrix2D(a, b, a);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(a[i], w2[i]);
}

TEST(GetInverseMatrix2D, RefusesBelowTheFixedDeterminant) {
    float keep[9];
    ClearMatrix2D(keep, 7.0f);
    float a[9] = {1, 0, 0, 0, 1, 0, 0, 0, 5e-07f};
    EXPECT_EQ(GetInverseMatrix2D(a, keep), 0);
    for (float v : keep)
        EXPECT_EQ(v, 7.0f);
    a[8] = 1e-06f; // rounds to just below 1e-06
    EXPECT_EQ(GetInverseMatrix2D(a, keep), 0);
    a[8] = std::nextafter(1e-06f, 1.0f);
    EXPECT_EQ(GetInverseMatrix2D(a, keep), 1);
    EXPECT_EQ(keep[8], float(1.0 / double(a[8])));
    EXPECT_EQ(keep[1], 0.0f);
}

TEST(GetInverseMatrix2D, RoundTripsRandomMatrices) {
    std::mt19937 rng(11);
    std::uniform_real_distribution<float> u(-3.0f, 3.0f);
    for (int n = 0; n < 50; ++n) {
        float a[9], inv[9], prod[9];
        for (float &v : a)
            v = u(rng);
        a[2] = a[5] = 0.0f;
        a[8] = 1.0f;
        double det = double(a[0]) * a[4] - double(a[1]) * a[3];
        if (std::fabs(det) < 0.1)
            continue;
        ASSERT_EQ(GetInverseMatrix2D(a, inv), 1);
        MultiMatrix2D(a, inv, prod);
        for (int i = 0; i < 9; ++i)
            EXPECT_NEAR(prod[i], i % 4 == 0 ? 1.0 : 0.0, 1e-4);
    }
}

TEST(Shear, SafeAngleStaysOffTheQuarterTurns) {
    float m[9];
    MakeShearMatX(0, 0, 1.57f, m);
    EXPECT_EQ(m[3], float(std::tan(1.5610697269748965)));
    EXPECT_NEAR(m[3], 102.8, 0.1);
    EXPECT_EQ(m[1], 0.0f);
    MakeShearMatX(0, 0, 1.575f, m); // above 1.5717963...: the upper replacement
    EXPECT_EQ(m[3], float(std::tan(1.5805229269748966)));
    MakeShearMatY(0, 0, 1.59f, m);
    EXPECT_EQ(m[1], float(std::tan(double(1.59f))));
    EXPECT_EQ(m[3], 0.0f);
    MakeShearMatY(0, 0, 0.7f, m);
    EXPECT_EQ(m[1], float(std::tan(double(0.7f))));
    // -1.57 wraps to about 4.7132, below 4.7133889...
    MakeShearMatX(0, 0, -1.57f, m);
    EXPECT_EQ(m[3], float(std::tan(4.70266238056469)));
    MakeShearMatX(0, 0, 4.72f, m);
    EXPECT_EQ(m[3], float(std::tan(4.722115580564689)));
}

TEST(Shear, AboutAPointAndAlongALine) {
    float m[9], x[9];
    MakeShearMatX(2, 3, 0.5f, m);
    point_2d c(2, 3);
    point_2d r = c * m;
    EXPECT_FLOAT_EQ(r.x, 2.0f);
    EXPECT_FLOAT_EQ(r.y, 3.0f);
    // a degenerate line falls back to the x shear about p
    MakeShearMatrix(point_2d(2, 3), point_2d(2, 3.000001f), 0.5f, x);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(x[i], m[i]);
    // along the x axis the line's frame is the world: the y form
    float y[9];
    MakeShearMatY(0, 0, 0.5f, y);
    MakeShearMatrix(point_2d(0, 0), point_2d(4, 0), 0.5f, x);
    for (int i = 0; i < 9; ++i)
        EXPECT_NEAR(x[i], y[i], 1e-6);
}

TEST(MatrixConstructors, FixedPointsAndImages) {
    float m[9];
    MakeRotateMatrix(1, 1, float(kPi / 2), m);
    point_2d p = point_2d(2, 1) * m;
    EXPECT_NEAR(p.x, 1.0, 1e-6);
    EXPECT_NEAR(p.y, 2.0, 1e-6);
    MakeScaleMatrix(1, 1, 2, 3, m);
    p = point_2d(2, 2) * m;
    EXPECT_FLOAT_EQ(p.x, 3.0f);
    EXPECT_FLOAT_EQ(p.y, 4.0f);
    MakeMirrorMatrix(1, 0, float(kPi / 4), m); // the line y = x - 1
    p = point_2d(0, 0) * m;
    EXPECT_NEAR(p.x, 1.0, 1e-6);
    EXPECT_NEAR(p.y, -1.0, 1e-6);

    float n[16];
    MakeRotate3D_Y(float(kPi / 2), n);
    point_3d q = point_3d(1, 0, 0) * n; // m[2] = -sin
    EXPECT_NEAR(q.z, -1.0, 1e-6);
    MakeRotate3D_X(float(kPi / 2), n);
    q = point_3d(0, 1, 0) * n;
    EXPECT_NEAR(q.z, 1.0, 1e-6);
    MakeRotateMat3D(point_3d(1, 1, 1), 0.0f, float(kPi / 2), n); // -b about x through p
    q = point_3d(1, 2, 1) * n;
    EXPECT_NEAR(q.y, 1.0, 1e-6);
    EXPECT_NEAR(q.z, 0.0, 1e-6);
}

TEST(RotateAboutLine, PointsOnTheLineStayTheRestTurn) {
    point_3d v[2] = {point_3d(1, 1, 0), point_3d(1, 1, 5)};
    float m[16];
    MakeRotate3D_V(v, float(kPi / 2), m);
    point_3d on = point_3d(1, 1, 3) * m, off = point_3d(2, 1, 0) * m;
    EXPECT_NEAR(on.x, 1.0, 1e-6);
    EXPECT_NEAR(on.z, 3.0, 1e-6);
    EXPECT_NEAR(off.x, 1.0, 1e-6);
    EXPECT_NEAR(off.y, 2.0, 1e-6);
    point_3d close[2] = {point_3d(0, 0, 0), point_3d(0.005f, 0, 0)};
    MakeRotate3D_V(close, 1.0f, m);
    expectIdentity3D(m, 0.0);
}

TEST(RotateVToZ, RoundTripsToTheIdentity) {
    const point_3d cases[3][2] = {{point_3d(1, 2, 3), point_3d(4, -2, 7)},
                                  {point_3d(1, 2, 3), point_3d(9, 2, 3)}, // along x: q is 0
                                  {point_3d(-1, 0, 2), point_3d(-1, -3, 2)}};
    for (const auto &v : cases) {
        float a[16], b[16], prod[16];
        MakeRotate_VToZ(v, a);
        point_3d o = v[0] * a, e = v[1] * a;
        EXPECT_NEAR(o.Length(), 0.0, 1e-5);
        EXPECT_NEAR(e.x, 0.0, 1e-5);
        EXPECT_NEAR(e.y, 0.0, 1e-5);
        EXPECT_NEAR(e.z, v[0].DistFrom(v[1]), 1e-5);
        MakeRotate_ZToV(v, b);
        MultiMatrix3D(a, b, prod);
        expectIdentity3D(prod, 1e-6);
    }
    point_3d close[2] = {point_3d(0, 0, 0), point_3d(0, 0.0005f, 0)};
    float m[16];
    MakeRotate_VToZ(close, m);
    expectIdentity3D(m, 0.0);
}

TEST(TransPoint, ListsMatchSinglePointsAndZeroCountTouchesNothing) {
    float m[9];
    MakeRotateMatrix(0.5f, -1.0f, 0.3f, m);
    point_3d in[3] = {point_3d(1, 2, 3), point_3d(-4, 5, 6), point_3d(7, 8, 9)};
    point_3d out[3];
    point_2d out2[3];
    out[0].Set(42, 42, 42);
    TransPointList2D(in, 0, out, m);
    EXPECT_EQ(out[0].x, 42.0f);
    TransPointList2D(in, 3, out, m);
    TransPointList2D(in, 3, out2, m);
    for (int i = 0; i < 3; ++i) {
        point_2d one;
        TransPoint2D(in[i], &one, m);
        EXPECT_EQ(out[i].x, one.x);
        EXPECT_EQ(out2[i].y, one.y);
        EXPECT_EQ(out[i].z, in[i].z);
    }
    TransPointList2D(in, 3, in, m); // in place
    EXPECT_EQ(in[2].x, out[2].x);
}

TEST(MatrixBox, CornersOfAnEmptyBoxAreUsedAsTheyStand) {
    const double m[16] = {2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 10, 0, 0, 1};
    Box3D empty, out;
    mathMatrixBox3D(empty, out, m);
    EXPECT_EQ(out.IsEmpty(), 0);
    EXPECT_EQ(out.min.x, 8.0f);
    EXPECT_EQ(out.max.x, 12.0f);
    EXPECT_EQ(out.min.z, -2.0f);
    Box3D b;
    b.DefineBox(point_3d(0, 0, 0), point_3d(1, 1, 1));
    mathMatrixBox3D(b, b, m); // the input may be the output
    EXPECT_EQ(b.min.x, 10.0f);
    EXPECT_EQ(b.max.z, 2.0f);
    mathMatrixBox2D(Box2D(0, 0, 1, 3), out, m);
    EXPECT_EQ(out.max.y, 6.0f);
    EXPECT_EQ(out.max.z, 0.0f);
    point_3d q;
    mathMatrixPt_3D(point_3d(1, 1, 1), q, m);
    EXPECT_EQ(q.x, 12.0f);
    nd_point_2d nd;
    nd.x = 1;
    mathMatrixNDPt_2D(nd, q, m);
    EXPECT_EQ(q.z, 0.0f);
    EXPECT_EQ(q.x, 12.0f);
}

} // namespace
