// Hot paths of an interactive host: box rejection, transforming a point
// cloud, picking and window selection over a long polyline.
#include <korvane/classes.h>

#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

namespace {

void BM_Box3DCanIntersect(benchmark::State &state) {
    Box3D a, b;
    a.DefineBox(point_3d(0, 0, 0), point_3d(1, 1, 1));
    b.DefineBox(point_3d(0.5f, 0.5f, 0.5f), point_3d(2, 2, 2));
    for (auto _ : state) {
        benchmark::DoNotOptimize(a);
        benchmark::DoNotOptimize(a.CanIntersect(b, 0.01f));
    }
}
BENCHMARK(BM_Box3DCanIntersect);

void BM_TransformPoints(benchmark::State &state) {
    const int n = 10000;
    std::vector<point_3d> in(n), out(n);
    for (int i = 0; i < n; ++i)
        in[i].Set(float(i % 97), float(i % 89) * 0.5f, float(i % 83) * 0.25f);
    TRANSF_3D t;
    t.DefRotate(0.3f, 0.2f, 0.1f);
    t.Move(point_3d(1, 2, 3));
    for (auto _ : state) {
        for (int i = 0; i < n; ++i)
            out[i] = in[i] * t;
        benchmark::DoNotOptimize(out.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * n);
}
BENCHMARK(BM_TransformPoints);

// A 1000-vertex helix that the pick line and the window both miss, so the
// whole polyline is walked.
std::vector<point_3d> helix() {
    std::vector<point_3d> pts(1000);
    for (int i = 0; i < 1000; ++i) {
        double a = i * 0.05;
        pts[i].Set(float(10 * std::cos(a)), float(10 * std::sin(a)), float(i * 0.01));
    }
    return pts;
}

void BM_PntPickPT3D(benchmark::State &state) {
    std::vector<point_3d> pts = helix();
    const double org[3] = {0, 0, 100}, dir[3] = {0, 0, -1};
    double depth, param;
    for (auto _ : state)
        benchmark::DoNotOptimize(PntPickPT3D(pts.data(), 1000, org, dir, 0.1, depth, param));
    state.SetItemsProcessed(state.iterations() * 1000);
}
BENCHMARK(BM_PntPickPT3D);

void BM_WinInterPt3D(benchmark::State &state) {
    std::vector<point_3d> pts = helix();
    const double m[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    const double wmin[2] = {-1, -1}, wmax[2] = {1, 1};
    for (auto _ : state)
        benchmark::DoNotOptimize(WinInterPt3D(pts.data(), 1000, m, wmin, wmax));
    state.SetItemsProcessed(state.iterations() * 1000);
}
BENCHMARK(BM_WinInterPt3D);

// Worst case: a zigzag past the window's corner, so every segment survives
// the early rejection and runs all four edge tests without a hit.
void BM_WinInterPt3DEdges(benchmark::State &state) {
    std::vector<point_3d> pts(1000);
    for (int i = 0; i < 1000; ++i)
        pts[i] = i % 2 ? point_3d(0.5f, 3, 0) : point_3d(-2, 0.5f, 0);
    const double m[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    const double wmin[2] = {0, 0}, wmax[2] = {1, 1};
    for (auto _ : state)
        benchmark::DoNotOptimize(WinInterPt3D(pts.data(), 1000, m, wmin, wmax));
    state.SetItemsProcessed(state.iterations() * 1000);
}
BENCHMARK(BM_WinInterPt3DEdges);

} // namespace
