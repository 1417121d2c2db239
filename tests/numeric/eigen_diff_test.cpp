// Differential tests against Eigen, built only when Eigen is installed.
#include <korvane/numeric.h>

#include <gtest/gtest.h>

#ifdef KORVANE_HAVE_EIGEN

#include <Eigen/Dense>

#include <algorithm>
#include <random>

namespace {

using RowMatrix = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

RowMatrix randomMatrix(std::mt19937 &gen, int r, int c) {
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    RowMatrix m(r, c);
    for (int i = 0; i < r; ++i) {
        for (int j = 0; j < c; ++j)
            m(i, j) = u(gen);
    }
    return m;
}

TEST(EigenDiff, SolLineEquaMatchesFullPivLU) {
    std::mt19937 gen(61);
    for (int n : {2, 3, 7, 16, 40}) {
        RowMatrix a = randomMatrix(gen, n, n);
        a.diagonal().array() += 1.5;
        const Eigen::VectorXd b = randomMatrix(gen, n, 1);
        Eigen::VectorXd x(n);
        ASSERT_EQ(mathSolLineEqua(n, a.data(), b.data(), x.data()), 1);
        const Eigen::VectorXd want = a.fullPivLu().solve(b);
        EXPECT_LT((x - want).norm(), 1e-11 * (1.0 + want.norm())) << n;
    }
}

TEST(EigenDiff, MatxInvsMatchesThePseudoInverse) {
    std::mt19937 gen(62);
    for (int trial = 0; trial < 20; ++trial) {
        const int r = 3 + trial % 5, c = 2 + trial % 6, k = 1 + trial % std::min(r, c);
        const RowMatrix a = randomMatrix(gen, r, k) * randomMatrix(gen, k, c);
        RowMatrix g(c, r);
        ASSERT_EQ(mathMatxInvs(r, c, a.data(), g.data()), 1);
        const RowMatrix want = a.completeOrthogonalDecomposition().pseudoInverse();
        EXPECT_LT((g - want).norm(), 1e-9 * (1.0 + want.norm())) << r << "x" << c << " rank " << k;
    }
}

TEST(EigenDiff, MatxInvsByETAndDeterminantsMatch) {
    std::mt19937 gen(63);
    for (int n = 1; n <= 9; ++n) {
        const RowMatrix a = randomMatrix(gen, n, n);
        RowMatrix work = a, inv(n, n);
        ASSERT_EQ(mathMatxInvsByET(n, work.data(), inv.data()), 1);
        const RowMatrix want = a.inverse();
        EXPECT_LT((inv - want).norm(), 1e-9 * (1.0 + want.norm())) << n;
    }
    const RowMatrix m = randomMatrix(gen, 3, 3);
    EXPECT_NEAR(mathCalDeterm33(m(0, 0), m(0, 1), m(0, 2), m(1, 0), m(1, 1), m(1, 2), m(2, 0),
                                m(2, 1), m(2, 2)),
                m.determinant(), 1e-14);
}

} // namespace

#else

TEST(EigenDiff, SkippedWithoutEigen) {
    GTEST_SKIP() << "Eigen is not installed";
}

#endif
