#include <korvane/containers.h>
#include <korvane/geometry.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "support/expect.h"

namespace {

using korvane_test::exactly;

TEST(IntLin2D, CrossingLinesGiveTheirPoint) {
    const double o1[2] = {0, 0}, d1[2] = {1, 0}, o2[2] = {3, -2}, d2[2] = {0, 1};
    double out[2] = {9, 9};
    EXPECT_EQ(mathIntLin2D(o1, d1, o2, d2, 1e-8, 1e-11, out), 1);
    EXPECT_TRUE(exactly(out, {3.0, 0.0}));
}

TEST(IntLin2D, ParallelLinesApartLeaveOutputUntouched) {
    const double o1[2] = {0, 0}, d[2] = {1, 0}, o2[2] = {5, 1};
    double out[2] = {9, 9};
    EXPECT_EQ(mathIntLin2D(o1, d, o2, d, 0.5, 1e-11, out), 2);
    EXPECT_TRUE(exactly(out, {9.0, 9.0}));
}

TEST(IntLin2D, CoincidentLinesGiveTheMidPointOfTheFeet) {
    const double o1[2] = {0, 0}, d[2] = {1, 0}, o2[2] = {4, 0};
    double out[2];
    EXPECT_EQ(mathIntLin2D(o1, d, o2, d, 1e-8, 1e-11, out), 4);
    EXPECT_TRUE(exactly(out, {2.0, 0.0}));
    EXPECT_EQ(mathIntLin2D(o1, d, o1, d, 1e-8, 1e-11, out), 4);
    EXPECT_EQ(out[0], 0.0);
}

TEST(IntLin2D, RandomCrossingsLieOnBothLines) {
    std::mt19937 rng(2);
    std::uniform_real_distribution<double> u(-5, 5);
    for (int k = 0; k < 200; ++k) {
        const double a1[2] = {u(rng), u(rng)}, b1[2] = {u(rng), u(rng)};
        const double a2[2] = {u(rng), u(rng)}, b2[2] = {u(rng), u(rng)};
        double out[2];
        const int r = mathIntLin2DEx(a1, b1, a2, b2, 1e-8, 1e-6, out);
        if (r != 1)
            continue;
        EXPECT_NEAR(mathDistPntLin2DEx(out, a1, b1), 0.0, 1e-9);
        EXPECT_NEAR(mathDistPntLin2DEx(out, a2, b2), 0.0, 1e-9);
    }
}

TEST(IntLin2DEx, DegeneratePieceIs800) {
    const double a[2] = {1, 1}, b[2] = {2, 2};
    double out[2];
    EXPECT_EQ(mathIntLin2DEx(a, a, a, b, 1e-8, 1e-11, out), 800);
    EXPECT_EQ(mathIntLin2DEx(a, b, b, b, 1e-8, 1e-11, out), 800);
}

TEST(Lines2D, DistancesAreSignedOnTheLeft) {
    const double o[2] = {0, 0}, d[2] = {1, 0}, p[2] = {3, 2}, q[2] = {3, -2};
    EXPECT_EQ(mathDistPntLin2D(p, o, d), 2.0);
    EXPECT_EQ(mathDistPntLin2D(q, o, d), -2.0);
    const double b[2] = {5, 0};
    EXPECT_EQ(mathDistPntLin2DEx(p, o, b), 2.0);
    EXPECT_EQ(mathDistPntLin2DEx(q, o, b), -2.0);
    // A degenerate line gives the unsigned distance to its first point.
    const double c[2] = {0, 0.5e-8};
    EXPECT_EQ(mathDistPntLin2DEx(q, o, c), std::sqrt(13.0));
}

TEST(Lines2D, FeetAndNormals) {
    const double p[2] = {3, 2}, a[2] = {1, 1}, b[2] = {1, 4};
    double out[2];
    mathPrjPntLin2DEx(p, a, b, out);
    EXPECT_TRUE(exactly(out, {1.0, 2.0}));
    mathPrjPntLin2DEx(p, a, a, out);
    EXPECT_TRUE(exactly(out, {1.0, 1.0}));
    EXPECT_EQ(mathGetLinLeftDir2D(a, b, out), 1);
    EXPECT_TRUE(exactly(out, {-1.0, 0.0}));
    EXPECT_EQ(mathGetLinRightDir2D(a, b, out), 1);
    EXPECT_EQ(out[0], 1.0);
    const double c[2] = {1 + 5e-11, 1};
    EXPECT_EQ(mathGetLinLeftDir2D(a, c, out), 0);
    EXPECT_EQ(out[0], 0.0);
    EXPECT_EQ(out[1], c[0] - a[0]); // left unnormalised
}

TEST(Lines2D, DirLenWritesBothOutputsAlways) {
    const double a[2] = {2, 2};
    double dir[2] = {9, 9}, len = 9;
    EXPECT_EQ(mathGetLinDirLen2D(a, a, 1e-10, dir, &len), 0);
    EXPECT_EQ(len, 0.0);
    EXPECT_EQ(dir[0], 0.0);
    const double b[2] = {5, 6};
    EXPECT_EQ(mathGetLinDirLen2D(a, b, 5.0, dir, &len), 1); // length equal to tol passes
    EXPECT_EQ(len, 5.0);
    EXPECT_TRUE(exactly(dir, {3.0 / 5.0, 4.0 / 5.0}));
}

TEST(Lines2D, RevLinSwapsEndsAndIgnoresNull) {
    const double s[2] = {1, 2}, e[2] = {3, 4};
    Lin2D *l = mathCreLin2D(s, e);
    ASSERT_NE(l, nullptr);
    EXPECT_EQ(l->next, nullptr);
    EXPECT_EQ(mathRevLin2D(l), 1);
    EXPECT_EQ(l->start[0], 3.0);
    EXPECT_EQ(l->end[1], 2.0);
    EXPECT_EQ(mathRevLin2D(nullptr), 0);
    mathFreSDChns(l);
}

// Builds a chain from the pieces in the given order.
Lin2D *chainOf(const std::vector<Lin2D *> &pieces) {
    Lin2D *head = nullptr;
    for (auto it = pieces.rbegin(); it != pieces.rend(); ++it)
        head = static_cast<Lin2D *>(mathInsItemInSDChns(*it, head));
    return head;
}

TEST(PolylineOfLin2ds, EmptyAndSinglePieceChains) {
    Lin2D *chain = nullptr, *result = reinterpret_cast<Lin2D *>(1);
    EXPECT_EQ(mathGetPolylineOfLin2ds(&chain, 1e-8, &result), 0);
    EXPECT_EQ(result, nullptr);
    const double a[2] = {0, 0}, b[2] = {1, 0};
    chain = mathCreLin2D(a, b);
    EXPECT_EQ(mathGetPolylineOfLin2ds(&chain, 1e-8, &result), 1);
    EXPECT_EQ(chain, nullptr);
    ASSERT_NE(result, nullptr);
    EXPECT_EQ(result->next, nullptr);
    mathFreSDChns(result);
}

TEST(PolylineOfLin2ds, MiddleLastFirstComesBackAsOneRun) {
    const double p0[2] = {0, 0}, p1[2] = {1, 0}, p2[2] = {1, 1}, p3[2] = {2, 1};
    Lin2D *first = mathCreLin2D(p0, p1), *middle = mathCreLin2D(p2, p1),
          *last = mathCreLin2D(p2, p3);
    Lin2D *chain = chainOf({middle, last, first}), *result = nullptr;
    EXPECT_EQ(mathGetPolylineOfLin2ds(&chain, 1e-8, &result), 3);
    EXPECT_EQ(chain, nullptr);
    // The run grows from the middle piece: last joins at its start, first at
    // its end, each turned to continue the run.
    ASSERT_EQ(result, last);
    EXPECT_EQ(last->next, middle);
    EXPECT_EQ(middle->next, first);
    EXPECT_EQ(first->next, nullptr);
    EXPECT_EQ(last->start[0], 2.0);
    EXPECT_TRUE(korvane_test::same(last->end, middle->start, 2));
    EXPECT_TRUE(korvane_test::same(middle->end, first->start, 2));
    EXPECT_EQ(first->end[0], 0.0);
    mathFreSDChns(result);
}

TEST(PolylineOfLin2ds, UnjoinedPiecesStayInOrder) {
    const double p0[2] = {0, 0}, p1[2] = {1, 0}, p2[2] = {2, 0};
    const double q0[2] = {5, 5}, q1[2] = {6, 5}, r0[2] = {8, 8}, r1[2] = {9, 8};
    Lin2D *a = mathCreLin2D(p0, p1), *far1 = mathCreLin2D(q0, q1), *b = mathCreLin2D(p1, p2),
          *far2 = mathCreLin2D(r0, r1);
    Lin2D *chain = chainOf({a, far1, b, far2}), *result = nullptr;
    EXPECT_EQ(mathGetPolylineOfLin2ds(&chain, 1e-8, &result), 2);
    EXPECT_EQ(result, a);
    EXPECT_EQ(a->next, b);
    EXPECT_EQ(chain, far1);
    EXPECT_EQ(far1->next, far2);
    EXPECT_EQ(far2->next, nullptr);
    mathFreSDChns(result);
    mathFreSDChns(chain);
}

TEST(PolylineOfLin2ds, ShuffledReversedPiecesRejoin) {
    std::mt19937 rng(4);
    for (int round = 0; round < 20; ++round) {
        const int n = 2 + round % 9;
        std::vector<double> pts;
        for (int i = 0; i <= n; ++i) {
            pts.push_back(std::cos(0.5 * i) * (i + 1));
            pts.push_back(std::sin(0.5 * i) * (i + 1));
        }
        std::vector<Lin2D *> pieces;
        for (int i = 0; i < n; ++i) {
            Lin2D *l = mathCreLin2D(&pts[2 * i], &pts[2 * i + 2]);
            if (rng() % 2)
                mathRevLin2D(l);
            pieces.push_back(l);
        }
        std::shuffle(pieces.begin(), pieces.end(), rng);
        Lin2D *chain = chainOf(pieces), *result = nullptr;
        ASSERT_EQ(mathGetPolylineOfLin2ds(&chain, 1e-8, &result), n);
        EXPECT_EQ(chain, nullptr);
        int count = 0;
        for (Lin2D *l = result; l; l = l->next, ++count) {
            if (l->next) {
                EXPECT_TRUE(korvane_test::same(l->end, l->next->start, 2));
            }
        }
        EXPECT_EQ(count, n);
        mathFreSDChns(result);
    }
}

} // namespace
