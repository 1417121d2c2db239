// Per-call cost of the kernel functions that sit at the bottom of every loop.
#include <korvane/kernel.h>

#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

namespace {

void BM_UniVec(benchmark::State &state) {
    double v[3];
    for (auto _ : state) {
        v[0] = 1.25;
        v[1] = -2.5;
        v[2] = 0.75;
        benchmark::DoNotOptimize(v);
        benchmark::DoNotOptimize(mathUniVec(v, 1e-10));
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_UniVec);

void BM_VProduct(benchmark::State &state) {
    double a[3] = {1.25, -2.5, 0.75}, b[3] = {0.5, 3.0, -1.0}, out[3];
    for (auto _ : state) {
        benchmark::DoNotOptimize(a);
        mathVProduct(a, b, out);
        benchmark::DoNotOptimize(out);
    }
}
BENCHMARK(BM_VProduct);

void BM_Dist(benchmark::State &state) {
    double a[3] = {1.25, -2.5, 0.75}, b[3] = {0.5, 3.0, -1.0};
    for (auto _ : state) {
        benchmark::DoNotOptimize(a);
        benchmark::DoNotOptimize(mathDist(a, b));
    }
}
BENCHMARK(BM_Dist);

void BM_RotPnt(benchmark::State &state) {
    const double axis[3] = {0.0, 0.6, 0.8}, pnt[3] = {1.0, 2.0, 3.0};
    double p[3] = {4.0, -1.0, 2.0}, out[3];
    double angle = 0.3;
    for (auto _ : state) {
        benchmark::DoNotOptimize(angle);
        mathRotPnt(axis, pnt, angle, p, out);
        benchmark::DoNotOptimize(out);
    }
}
BENCHMARK(BM_RotPnt);

void BM_GetAngle(benchmark::State &state) {
    double a[3] = {1.25, -2.5, 0.75}, b[3] = {0.5, 3.0, -1.0};
    for (auto _ : state) {
        benchmark::DoNotOptimize(a);
        benchmark::DoNotOptimize(mathGetAngle(a, b, 1e-10));
    }
}
BENCHMARK(BM_GetAngle);

void BM_CalPolylineLen1000(benchmark::State &state) {
    std::vector<double> pts(3 * 1000);
    for (int i = 0; i < 1000; ++i) {
        pts[3 * i] = std::cos(0.01 * i) * i;
        pts[3 * i + 1] = std::sin(0.01 * i) * i;
        pts[3 * i + 2] = 0.1 * i;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(pts.data());
        benchmark::DoNotOptimize(mathCalPolylineLen(1000, pts.data()));
    }
    state.SetItemsProcessed(state.iterations() * 1000);
}
BENCHMARK(BM_CalPolylineLen1000);

} // namespace
