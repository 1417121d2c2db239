#include <korvane/containers.h>
#include <korvane/geometry.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "support/expect.h"

namespace {

using korvane_test::exactly;
using korvane_test::same;

void randomUnit(std::mt19937 &rng, double *v) {
    std::uniform_real_distribution<double> u(-1, 1);
    do {
        v[0] = u(rng);
        v[1] = u(rng);
        v[2] = u(rng);
    } while (mathUniVec(v, 0.1) == 0);
}

TEST(IntLin, LinesThroughOnePointMeetThere) {
    const double o[3] = {1, 2, 3}, x[3] = {1, 0, 0}, y[3] = {0, 1, 0};
    double out1[3], out2[3];
    EXPECT_EQ(mathIntLin(o, x, o, y, 1e-8, 1e-11, out1, out2), 1);
    EXPECT_TRUE(same(out1, o, 3));
    EXPECT_TRUE(same(out2, o, 3));
}

TEST(IntLin, ParallelLinesApartStillWriteBothOutputs) {
    const double o1[3] = {0, 0, 0}, o2[3] = {4, 1, 0}, x[3] = {1, 0, 0};
    double out1[3] = {9, 9, 9}, out2[3] = {9, 9, 9};
    EXPECT_EQ(mathIntLin(o1, x, o2, x, 0.1, 1e-11, out1, out2), 2);
    EXPECT_TRUE(exactly(out1, {2.0, 0.0}));
    EXPECT_TRUE(exactly(out2, {2.0, 1.0}));
    EXPECT_EQ(mathIntLin(o1, x, o2, x, 1.5, 1e-11, out1, out2), 4);
}

TEST(IntLin, SkewLinesGiveTheCommonPerpendicular) {
    std::mt19937 rng(8);
    std::uniform_real_distribution<double> u(-5, 5);
    for (int k = 0; k < 200; ++k) {
        double d1[3], d2[3];
        randomUnit(rng, d1);
        randomUnit(rng, d2);
        const double o1[3] = {u(rng), u(rng), u(rng)}, o2[3] = {u(rng), u(rng), u(rng)};
        double out1[3], out2[3], w[3];
        const int r = mathIntLin(o1, d1, o2, d2, 1e-8, 1e-3, out1, out2);
        if (r != 5)
            continue;
        mathGetVec(out1, out2, w);
        EXPECT_NEAR(mathOProduct(w, d1), 0.0, 1e-9);
        EXPECT_NEAR(mathOProduct(w, d2), 0.0, 1e-9);
        EXPECT_NEAR(mathDistPntLin(out1, o1, d1), 0.0, 1e-9);
        EXPECT_NEAR(mathDistPntLin(out2, o2, d2), 0.0, 1e-9);
    }
}

TEST(IntLin, CrossingInProjectionAtDistanceOneIsSkew) {
    const double o1[3] = {0, 0, 0}, x[3] = {1, 0, 0}, o2[3] = {2, 0, 1}, y[3] = {0, 1, 0};
    double out1[3], out2[3];
    EXPECT_EQ(mathIntLin(o1, x, o2, y, 1e-8, 1e-11, out1, out2), 5);
    EXPECT_TRUE(exactly(out1, {2, 0, 0}));
    EXPECT_TRUE(exactly(out2, {2, 0, 1}));
    const double a2[3] = {2, -1, 1}, b2[3] = {2, 3, 1};
    const double b1[3] = {5, 0, 0};
    EXPECT_EQ(mathIntLinEx(o1, b1, a2, b2, 1e-8, 1e-11, out1, out2), 5);
    EXPECT_EQ(mathIntLinEx(o1, o1, a2, b2, 1e-8, 1e-11, out1, out2), 800);
}

TEST(IntLine, RawDirectionsAndWhatEachClassWrites) {
    const double a1[3] = {0, 0, 0}, b1[3] = {4, 0, 0}, a2[3] = {1, -2, 0}, b2[3] = {1, 2, 0};
    const double c2[3] = {1, -2, 3}, e2[3] = {1, 2, 3}, p2[3] = {0, 1, 0}, q2[3] = {4, 1, 0};
    double out1[3] = {9, 9, 9}, out2[3] = {9, 9, 9}, t1 = 9, t2 = 9, dist = 9;
    EXPECT_EQ(mathIntLine(a1, a1, a2, b2, 1e-8, 1e-11, out1, out2, &t1, &t2, &dist), 800);
    EXPECT_TRUE(exactly(out1, {9, 9, 9}) && exactly(out2, {9, 9, 9}) && t1 == 9 && dist == 9);
    EXPECT_EQ(mathIntLine(a1, b1, a2, b2, 1e-8, 1e-11, out1, out2, &t1, &t2, &dist), 1);
    EXPECT_TRUE(t1 == 0.25 && t2 == 0.5 && dist == 0.0); // in the scale a = 0, b = 1
    EXPECT_EQ(mathIntLine(a1, b1, c2, e2, 1e-8, 1e-11, out1, out2, &t1, &t2, &dist), 5);
    EXPECT_EQ(dist, 3.0);
    t1 = t2 = 9;
    EXPECT_EQ(mathIntLine(a1, b1, p2, q2, 0.5, 1e-11, out1, out2, &t1, &t2, &dist), 2);
    EXPECT_TRUE(dist == 1.0 && t1 == 9.0 && t2 == 9.0); // parallel: no parameters
}

TEST(Lines3D, DistancesAndFeet) {
    const double a[3] = {0, 0, 0}, b[3] = {0, 0, 2}, p[3] = {3, 4, 7};
    EXPECT_EQ(mathDistPntLinEx(p, a, b), 5.0);
    EXPECT_EQ(mathDistPntLinEx(p, a, a), std::sqrt(9.0 + 16 + 49));
    EXPECT_EQ(mathChkPntLin(p, a, b, 5.0), 0);
    EXPECT_EQ(mathChkPntLin(p, a, b, 5.000001), 1);
    const double z[3] = {0, 0, 1};
    EXPECT_EQ(mathDistPntLin(p, a, z), 5.0);
    double out[3], t = 9;
    mathPrjPntLineEx(p, a, b, out, &t);
    EXPECT_EQ(out[2], 7.0);
    EXPECT_EQ(t, 3.5);
    mathPrjPntLineEx(p, b, b, out, &t);
    EXPECT_EQ(out[2], 2.0);
    EXPECT_EQ(t, 0.0);
    mathPrjPntLinEx(p, a, a, out);
    EXPECT_EQ(out[0], 0.0);
}

TEST(Lines3D, DirLenGivesMinusFourOnADegenerateLine) {
    const double a[3] = {1, 2, 3};
    double dir[3], len = 9;
    EXPECT_EQ(mathGetLinDirLen(a, a, 1e-10, dir, &len), -4);
    EXPECT_EQ(len, 0.0);
    const double b[3] = {1, 2, 5};
    EXPECT_EQ(mathGetLinDirLen(a, b, 1e-10, dir, &len), 1);
    EXPECT_EQ(dir[2], 1.0);
    EXPECT_EQ(mathRevLin3D(nullptr), 0);
}

TEST(Lines3D, ParameterFromOneCoordinate) {
    const double o[3] = {1, 1, 1}, d[3] = {0.6, 0.8, 0}, p[3] = {4, 5, 1};
    EXPECT_EQ(mathCalPntLinPara(p, o, d), (5.0 - 1.0) / 0.8);
    const double shortDir[3] = {0.3, 0.3, 0.3};
    EXPECT_EQ(mathCalPntLinPara(p, o, shortDir), 0.0);
}

TEST(Lines3D, SegmentParameterPrefersYOverANegativeX) {
    const double a[3] = {0, 0, 0}, b[3] = {-2, 1, 0}, p[3] = {-1, 0.5, 0};
    EXPECT_EQ(mathCalPntLinSegPara(p, a, b), 0.5);
    const double c[3] = {-2, 1e-12, 0}, q[3] = {-1, 0, 0};
    EXPECT_EQ(mathCalPntLinSegPara(q, a, c), 0.0); // y wins with 1e-12, at most 1e-8
    EXPECT_EQ(mathCalPntLinSegPara(q, a, a), 0.0);
}

TEST(IsLinCoplanar, ClassesOfTwoLines) {
    const double o1[3] = {0, 0, 0}, x[3] = {1, 0, 0}, y[3] = {0, 1, 0};
    const double o2[3] = {0, 0, 5};
    double pnt[3] = {9, 9, 9}, normal[3] = {9, 9, 9};
    EXPECT_EQ(mathIsLinCoplanar(o1, x, o1, y, 1e-8, 1e-11, pnt, normal), 1);
    EXPECT_EQ(normal[2], 1.0);
    EXPECT_EQ(mathIsLinCoplanar(o1, x, o2, x, 1e-8, 1e-11, pnt, normal), 1);
    EXPECT_EQ(normal[1], -1.0); // x cross unit(o2 - o1)
    EXPECT_EQ(pnt[2], 0.0);
    const double keep[3] = {normal[0], normal[1], normal[2]};
    const double o3[3] = {7, 0, 0};
    EXPECT_EQ(mathIsLinCoplanar(o1, x, o3, x, 1e-8, 1e-11, pnt, normal), 2);
    EXPECT_EQ(normal[1], keep[1]);
    EXPECT_EQ(mathIsLinCoplanar(o1, x, o2, y, 1e-8, 1e-11, pnt, normal), 0);
}

TEST(PolylineOfLin3ds, JoinsAtBothEnds) {
    const double p0[3] = {0, 0, 0}, p1[3] = {1, 0, 0}, p2[3] = {1, 1, 0}, p3[3] = {1, 1, 1};
    Lin3D *mid = mathCreLin3D(p1, p2), *last = mathCreLin3D(p3, p2), *first = mathCreLin3D(p1, p0);
    Lin3D *chain = mid;
    mid->next = last;
    last->next = first;
    Lin3D *result = nullptr;
    EXPECT_EQ(mathGetPolylineOfLin3ds(&chain, 1e-8, &result), 3);
    EXPECT_EQ(chain, nullptr);
    ASSERT_EQ(result, first);
    EXPECT_EQ(first->start[0], 0.0);
    EXPECT_EQ(first->next, mid);
    EXPECT_EQ(mid->next, last);
    EXPECT_EQ(last->end[2], 1.0);
    mathFreSDChns(result);
}

} // namespace
