#include <korvane/containers.h>
#include <korvane/frames.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>

namespace {

bool same(const double *a, const double *b, int n) {
    return std::memcmp(a, b, n * sizeof(double)) == 0;
}

TEST(DBox, AnEmptyBoxIsInvalidAndTakesTheFirstPointWhole) {
    double *box = mathCreateBox2D();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(mathIsValidBox2D(box), 0);
    const double p[2] = {3, -4}, pp[4] = {3, -4, 3, -4};
    mathEnlargeBox2D(p, box);
    EXPECT_TRUE(same(box, pp, 4));
    DelStr1D(&box);
    double b3[6];
    mathCalBox3DStr(0, nullptr, b3);
    const double empty[6] = {1e10, 1e10, 1e10, -1e10, -1e10, -1e10};
    EXPECT_TRUE(same(b3, empty, 6));
    // Validity allows an inversion of up to 1e-10.
    const double nearly[6] = {1, 1, 1, 1 - 0.5e-10, 1, 1}, inverted[6] = {1, 1, 1, 1 - 1e-9, 1, 1};
    EXPECT_EQ(mathIsValidBox3D(nearly), 1);
    EXPECT_EQ(mathIsValidBox3D(inverted), 0);
}

TEST(DBox, DefineSortsEachAxisWhileInitialiseCopies) {
    const double p[2] = {2, 1}, q[2] = {0, 3}, sorted[4] = {0, 1, 2, 3}, copied[4] = {2, 1, 0, 3};
    double box[4];
    mathDefBox2D(p, q, box);
    EXPECT_TRUE(same(box, sorted, 4));
    EXPECT_EQ(mathIniBox2D(p, q, box), box);
    EXPECT_TRUE(same(box, copied, 4));
    const double a[3] = {1, 5, -1}, b[3] = {4, 2, -3}, want[6] = {1, 2, -3, 4, 5, -1};
    double b3[6];
    mathDefBox3D(a, b, b3);
    EXPECT_TRUE(same(b3, want, 6));
}

TEST(DBox, PointAtExactlyTheToleranceIsInside) {
    const double box[4] = {0, 0, 1, 1}, onEdge[2] = {1.25, -0.25}, beyond[2] = {1.25, -0.5};
    EXPECT_EQ(mathChkBox2DPnt(box, onEdge, 0.25), 1);
    EXPECT_EQ(mathChkBox2DPnt(box, beyond, 0.25), 0);
    const double b3[6] = {0, 0, 0, 1, 1, 1}, p3[3] = {0.5, 0.5, 1.5};
    EXPECT_EQ(mathChkBox3DPnt(b3, p3, 0.5), 1);
    EXPECT_EQ(mathChkBox3DPnt(b3, p3, 0.25), 0);
}

TEST(DBox, OverlapTestsAgreeWithIntervalOverlapOnEveryAxis) {
    std::mt19937 rng(41);
    std::uniform_int_distribution<int> u(-8, 8);
    for (int k = 0; k < 2000; ++k) {
        double a[6], b[6];
        for (int i = 0; i < 3; ++i) {
            const int p = u(rng), q = u(rng), r = u(rng), s = u(rng);
            a[i] = std::min(p, q) * 0.5;
            a[3 + i] = std::max(p, q) * 0.5;
            b[i] = std::min(r, s) * 0.5;
            b[3 + i] = std::max(r, s) * 0.5;
        }
        const double tol = 0.5 * (k % 3); // touching cases are frequent
        bool overlap3 = true, overlap2 = true;
        for (int i = 0; i < 3; ++i) {
            const bool ok = b[3 + i] + tol >= a[i] && a[3 + i] + tol >= b[i];
            overlap3 = overlap3 && ok;
            overlap2 = overlap2 && (i == 2 || ok);
        }
        EXPECT_EQ(mathChkBox3DInt(a, b, tol), overlap3 ? 1 : 0);
        const double a2[4] = {a[0], a[1], a[3], a[4]}, b2[4] = {b[0], b[1], b[3], b[4]};
        EXPECT_EQ(mathChkBox2DInt(a2, b2, tol), overlap2 ? 1 : 0);
        double common[6];
        EXPECT_EQ(mathCalBox3DInt(a, b, common), mathChkBox3DInt(a, b, 0.0));
    }
}

TEST(DBox, CommonPartOfTouchingBoxesAndOfATinyGap) {
    const double a[4] = {0, 0, 1, 1}, touch[4] = {1, 0, 2, 1};
    const double tiny[4] = {1 + 1e-10, 0, 2, 1}, apart[4] = {1 + 1e-9, 0, 2, 1};
    double out[4];
    EXPECT_EQ(mathCalBox2DInt(a, touch, out), 1);
    EXPECT_EQ(mathCalBox2DInt(a, tiny, out), 1);
    EXPECT_EQ(mathCalBox2DInt(a, apart, out), 0);
    EXPECT_EQ(out[0], 1 + 1e-9); // written, inverted
    EXPECT_EQ(out[2], 1.0);
}

TEST(DBox, UnionAndCommonPartMayOverwriteAnOperand) {
    double a[6] = {0, 0, 0, 2, 2, 2};
    const double b[6] = {1, -1, 1, 3, 1, 3}, u[6] = {0, -1, 0, 3, 2, 3};
    mathCalBox3DUnion(a, b, a);
    EXPECT_TRUE(same(a, u, 6));
    EXPECT_EQ(mathCalBox3DInt(a, b, a), 1);
    EXPECT_TRUE(same(a, b, 6));
    double c[4] = {0, 0, 1, 1};
    const double d[4] = {-1, 0.5, 0.5, 2}, cu[4] = {-1, 0, 1, 2};
    mathCalBox2DUnion(c, d, c);
    EXPECT_TRUE(same(c, cu, 4));
}

TEST(DBox, HomogeneousStringsDifferInTheirWeightTests) {
    const double h2[9] = {2, 4, 2, 1, 1, 1, 5, 5, -1};
    double box[4];
    EXPECT_EQ(mathCalBox2HStr(3, h2, box), 0); // a negative weight stops it
    const double gathered[4] = {1, 1, 1, 2};
    EXPECT_TRUE(same(box, gathered, 4));
    const double h3[12] = {2, 4, 6, 2, 1, 1, 1, -1, 1, 1, 1, 0.5e-10};
    double b3[6];
    EXPECT_EQ(mathCalBox3HStr(2, h3, b3), 1); // a negative weight passes
    EXPECT_EQ(b3[0], -1.0);
    EXPECT_EQ(b3[5], 3.0);
    EXPECT_EQ(mathCalBox3HStr(3, h3, b3), 0);
}

TEST(DBox, CornersRunAnticlockwiseBottomThenTop) {
    const double box[6] = {0, 10, 20, 1, 11, 21};
    const double want[24] = {0, 10, 20, 1, 10, 20, 1, 11, 20, 0, 11, 20,
                             0, 10, 21, 1, 10, 21, 1, 11, 21, 0, 11, 21};
    double c[24];
    mathCalBox3DCorner(box, c);
    EXPECT_TRUE(same(c, want, 24));
    c[0] = 99;
    mathCalBox3DCorner(nullptr, c);
    EXPECT_EQ(c[0], 99.0);
    double e[6] = {0, 0, 0, 1, 2, 3};
    const double grown[6] = {-0.5, -0.5, -0.5, 1.5, 2.5, 3.5};
    EXPECT_EQ(mathExpandBox3D(0.5, e), e);
    EXPECT_TRUE(same(e, grown, 6));
}

TEST(DBox, NearestPointIsTheClampedPoint) {
    const double box[6] = {0, 0, 0, 1, 1, 1}, in[3] = {0.5, 0.25, 1.0}, clamped[3] = {1, 0.5, 0};
    double q[3];
    EXPECT_EQ(mathCalBox3DPntNearestDist(box, in, q), 0.0);
    EXPECT_TRUE(same(q, in, 3));
    double p[3] = {4, 0.5, -4};
    EXPECT_EQ(mathCalBox3DPntNearestDist(box, p, p), 5.0); // in place
    EXPECT_TRUE(same(p, clamped, 3));
}

} // namespace
