// Random orthonormal frames for the frame and box tests.
#ifndef KORVANE_TESTS_FRAMES_FRAME_TEST_UTIL_H
#define KORVANE_TESTS_FRAMES_FRAME_TEST_UTIL_H

#include <korvane/frames.h>

#include <random>

namespace frametest {

inline RFrame randomFrame(std::mt19937 &rng) {
    std::uniform_real_distribution<double> u(-3, 3);
    RFrame f;
    for (;;) {
        const double o[3] = {u(rng), u(rng), u(rng)};
        const double z[3] = {u(rng), u(rng), u(rng)};
        const double r[3] = {u(rng), u(rng), u(rng)};
        if (mathDerivFrame(o, z, r, &f))
            return f;
    }
}

} // namespace frametest

#endif
