// Differential tests against Eigen, built only when Eigen is installed.
#include <korvane/numeric.h>

#include <gtest/gtest.h>

#ifdef KORVANE_HAVE_EIGEN

#include <Eigen/Dense>

#include <algorithm>
#include <cstdlib>

namespace {

using RowMatrix = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

TEST(EigenDiff, SolLineEquaMatchesFullPivLU) {
    std::srand(61);
    for (int n : {2, 3, 7, 16, 40}) {
        const RowMatrix a = RowMatrix::Random(n, n) + 1.5 * RowMatrix::Identity(n, n);
        const Eigen::VectorXd b = Eigen::VectorXd::Random(n);
        Eigen::VectorXd x(n);
        ASSERT_EQ(mathSolLineEqua(n, a.data(), b.data(), x.data()), 1);
        const Eigen::VectorXd want = a.fullPivLu().solve(b);
        EXPECT_LT((x - want).norm(), 1e-11 * (1.0 + want.norm())) << n;
    }
}

TEST(EigenDiff, GeneralisedAndPlainInversesMatch) {
    std::srand(62);
    for (int trial = 0; trial < 20; ++trial) {
        const int r = 3 + trial % 5, c = 2 + trial % 6, k = 1 + trial % std::min(r, c);
        const RowMatrix a = RowMatrix::Random(r, k) * RowMatrix::Random(k, c);
        RowMatrix g(c, r);
        ASSERT_EQ(mathMatxInvs(r, c, a.data(), g.data()), 1);
        const RowMatrix want = a.completeOrthogonalDecomposition().pseudoInverse();
        EXPECT_LT((g - want).norm(), 1e-9 * (1.0 + want.norm())) << r << "x" << c << " rank " << k;
    }
    for (int n = 1; n <= 9; ++n) {
        const RowMatrix a = RowMatrix::Random(n, n);
        RowMatrix work = a, inv(n, n);
        ASSERT_EQ(mathMatxInvsByET(n, work.data(), inv.data()), 1);
        EXPECT_LT((inv - a.inverse()).norm(), 1e-9 * (1.0 + inv.norm())) << n;
    }
}

} // namespace

#else

TEST(EigenDiff, SkippedWithoutEigen) {
    GTEST_SKIP() << "Eigen is not installed";
}

#endif
