// Per-call cost of the closed-form solvers and of dense solving and inversion;
// with Eigen installed, its FullPivLU solve beside mathSolLineEqua.
#include <korvane/numeric.h>

#include <benchmark/benchmark.h>

#include <chrono>
#include <random>
#include <vector>

#ifdef KORVANE_HAVE_EIGEN
#include <Eigen/Dense>
#endif

namespace {

// A pool of random coefficient sets, cycled so the branches vary.
std::vector<double> randomPool(int count, unsigned seed) {
    std::mt19937 gen(seed);
    std::uniform_real_distribution<double> u(-5.0, 5.0);
    std::vector<double> v(count);
    for (double &x : v)
        x = u(gen);
    return v;
}

void BM_SolQuarEqua(benchmark::State &state) {
    const int sets = 1024;
    const std::vector<double> pool = randomPool(5 * sets, 71);
    double r[4];
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(mathSolQuarEqua(&pool[5 * i], 1e-10, r));
        benchmark::DoNotOptimize(r);
        i = (i + 1) & (sets - 1);
    }
}
BENCHMARK(BM_SolQuarEqua);

void BM_SolTriaEqua(benchmark::State &state) {
    const int sets = 1024;
    const std::vector<double> pool = randomPool(4 * sets, 72);
    double r[3];
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(mathSolTriaEqua(&pool[4 * i], 1e-10, r));
        benchmark::DoNotOptimize(r);
        i = (i + 1) & (sets - 1);
    }
}
BENCHMARK(BM_SolTriaEqua);

// Diagonally dominated random systems: well conditioned, so elimination
// succeeds and no generalised inverse is formed.
std::vector<double> randomSystem(int n, unsigned seed) {
    std::vector<double> a = randomPool(n * n, seed);
    for (int i = 0; i < n; ++i)
        a[i * n + i] += 5.0 * n;
    return a;
}

void BM_SolLineEqua(benchmark::State &state) {
    const int n = static_cast<int>(state.range(0));
    const std::vector<double> a = randomSystem(n, 73);
    const std::vector<double> b = randomPool(n, 74);
    std::vector<double> x(n);
    for (auto _ : state) {
        benchmark::DoNotOptimize(mathSolLineEqua(n, a.data(), b.data(), x.data()));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_SolLineEqua)->Arg(4)->Arg(16)->Arg(64)->Arg(256);

void BM_MatxInvs8(benchmark::State &state) {
    const std::vector<double> a = randomSystem(8, 75);
    std::vector<double> g(64);
    for (auto _ : state) {
        benchmark::DoNotOptimize(mathMatxInvs(8, 8, a.data(), g.data()));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_MatxInvs8);

#ifdef KORVANE_HAVE_EIGEN
void BM_EigenFullPivLU(benchmark::State &state) {
    using RowMatrix = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
    const int n = static_cast<int>(state.range(0));
    const std::vector<double> a = randomSystem(n, 73);
    const std::vector<double> b = randomPool(n, 74);
    const RowMatrix m = Eigen::Map<const RowMatrix>(a.data(), n, n);
    const Eigen::VectorXd rhs = Eigen::Map<const Eigen::VectorXd>(b.data(), n);
    Eigen::VectorXd x(n);
    for (auto _ : state) {
        x = m.fullPivLu().solve(rhs);
        benchmark::DoNotOptimize(x.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_EigenFullPivLU)->Arg(4)->Arg(16)->Arg(64)->Arg(256);

// Both solvers on the same system in one loop; the counter is the ratio of
// mathSolLineEqua's time to Eigen's.
void BM_SolLineEquaOverEigen(benchmark::State &state) {
    using RowMatrix = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
    using Clock = std::chrono::steady_clock;
    const int n = static_cast<int>(state.range(0));
    const std::vector<double> a = randomSystem(n, 73);
    const std::vector<double> b = randomPool(n, 74);
    const RowMatrix m = Eigen::Map<const RowMatrix>(a.data(), n, n);
    const Eigen::VectorXd rhs = Eigen::Map<const Eigen::VectorXd>(b.data(), n);
    Eigen::VectorXd xe(n);
    std::vector<double> x(n);
    double ours = 0.0, theirs = 0.0;
    for (auto _ : state) {
        const auto t0 = Clock::now();
        benchmark::DoNotOptimize(mathSolLineEqua(n, a.data(), b.data(), x.data()));
        benchmark::ClobberMemory();
        const auto t1 = Clock::now();
        xe = m.fullPivLu().solve(rhs);
        benchmark::DoNotOptimize(xe.data());
        benchmark::ClobberMemory();
        const auto t2 = Clock::now();
        ours += std::chrono::duration<double>(t1 - t0).count();
        theirs += std::chrono::duration<double>(t2 - t1).count();
        state.SetIterationTime(std::chrono::duration<double>(t2 - t0).count());
    }
    state.counters["korvane/eigen"] = theirs > 0.0 ? ours / theirs : 0.0;
}
BENCHMARK(BM_SolLineEquaOverEigen)->Arg(4)->Arg(16)->Arg(64)->Arg(256)->UseManualTime();
#endif

} // namespace
