// Ordering and thinning the short root lists the equation solvers produce
// (4 to 12 values), per call including the copy of the unsorted list.
#include <korvane/containers.h>

#include <benchmark/benchmark.h>

#include <cstring>
#include <random>

namespace {

void fillRoots(double *a, int n, unsigned seed) {
    std::mt19937 rng(seed);
    std::uniform_real_distribution<double> u(-3, 3);
    for (int i = 0; i < n; ++i)
        a[i] = u(rng);
    if (n > 2)
        a[n - 1] = a[0] + 1e-12; // a double root, as the solvers report them
}

void BM_SortDblArray(benchmark::State &state) {
    const int n = static_cast<int>(state.range(0));
    double src[12], a[12];
    fillRoots(src, n, 1);
    for (auto _ : state) {
        std::memcpy(a, src, sizeof(double) * n);
        mathSortDblArray(n, a);
        benchmark::DoNotOptimize(a);
    }
}
BENCHMARK(BM_SortDblArray)->Arg(4)->Arg(8)->Arg(12);

void BM_SortAndFilterDblArray(benchmark::State &state) {
    const int n = static_cast<int>(state.range(0));
    double src[12], a[12];
    fillRoots(src, n, 1);
    for (auto _ : state) {
        std::memcpy(a, src, sizeof(double) * n);
        mathSortDblArray(n, a);
        benchmark::DoNotOptimize(mathFilterDblArray(n, a, 1e-10));
        benchmark::DoNotOptimize(a);
    }
}
BENCHMARK(BM_SortAndFilterDblArray)->Arg(4)->Arg(8)->Arg(12);

void BM_FilterDblArray(benchmark::State &state) {
    const int n = static_cast<int>(state.range(0));
    double src[12], a[12];
    fillRoots(src, n, 1);
    mathSortDblArray(n, src);
    for (auto _ : state) {
        std::memcpy(a, src, sizeof(double) * n);
        benchmark::DoNotOptimize(mathFilterDblArray(n, a, 1e-10));
        benchmark::DoNotOptimize(a);
    }
}
BENCHMARK(BM_FilterDblArray)->Arg(4)->Arg(8)->Arg(12);

} // namespace
