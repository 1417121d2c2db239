// Per-call cost of the box tests that sit in the inner loops of clipping and
// picking, and of carrying a box through a frame.
#include <korvane/frames.h>

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

namespace {

constexpr int kCases = 1024; // cycled through, so branches are not all predicted

struct BoxCases {
    std::vector<double> boxes, points, dirs;
    BoxCases() : boxes(6 * kCases), points(3 * kCases), dirs(3 * kCases) {
        std::mt19937 rng(7);
        std::uniform_real_distribution<double> u(-2, 2);
        for (int k = 0; k < kCases; ++k) {
            for (int i = 0; i < 3; ++i) {
                const double a = u(rng), b = u(rng);
                boxes[6 * k + i] = a < b ? a : b;
                boxes[6 * k + 3 + i] = a < b ? b : a;
                points[3 * k + i] = 1.5 * u(rng);
                dirs[3 * k + i] = u(rng);
            }
            mathUniVec(&dirs[3 * k], 1e-10);
        }
    }
};

const BoxCases &cases() {
    static const BoxCases c;
    return c;
}

void BM_ChkBoxLinInt(benchmark::State &state) {
    const BoxCases &c = cases();
    int k = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            mathChkBoxLinInt(&c.boxes[6 * k], &c.points[3 * k], &c.dirs[3 * k], 1e-6));
        k = (k + 1) & (kCases - 1);
    }
}
BENCHMARK(BM_ChkBoxLinInt);

void BM_ChkBox3DInt(benchmark::State &state) {
    const BoxCases &c = cases();
    int k = 0;
    for (auto _ : state) {
        const int j = (k * 7 + 3) & (kCases - 1);
        benchmark::DoNotOptimize(mathChkBox3DInt(&c.boxes[6 * k], &c.boxes[6 * j], 1e-6));
        k = (k + 1) & (kCases - 1);
    }
}
BENCHMARK(BM_ChkBox3DInt);

void BM_TransLocalBox3D(benchmark::State &state) {
    const BoxCases &c = cases();
    const double o[3] = {1, 2, 3}, z[3] = {0.2, -0.5, 0.84}, ref[3] = {1, 0.3, 0};
    RFrame f;
    mathDerivFrame(o, z, ref, &f);
    double out[6];
    int k = 0;
    for (auto _ : state) {
        mathTransLocalBox3D(&f, &c.boxes[6 * k], out);
        benchmark::DoNotOptimize(out);
        k = (k + 1) & (kCases - 1);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_TransLocalBox3D);

} // namespace
