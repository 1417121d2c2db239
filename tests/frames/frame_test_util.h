// Random orthonormal frames and array comparisons for the frame and box tests.
#ifndef KORVANE_TESTS_FRAMES_FRAME_TEST_UTIL_H
#define KORVANE_TESTS_FRAMES_FRAME_TEST_UTIL_H

#include <korvane/frames.h>

#include <gtest/gtest.h>

#include <random>

#include "support/expect.h"

namespace frametest {

using korvane_test::exactly;
using korvane_test::near;
using korvane_test::same;

inline RFrame randomFrame(std::mt19937 &rng) {
    std::uniform_real_distribution<double> u(-3, 3);
    RFrame f;
    double v[9]; // origin, z direction, reference
    do {
        for (double &x : v)
            x = u(rng);
    } while (!mathDerivFrame(v, v + 3, v + 6, &f));
    return f;
}

// The first n components of a and b within tol of each other.
inline ::testing::AssertionResult within(const double *a, const double *b, int n, double tol) {
    for (int i = 0; i < n; ++i)
        if (!(a[i] - b[i] <= tol && b[i] - a[i] <= tol))
            return ::testing::AssertionFailure()
                   << "component " << i << ": " << a[i] << " vs " << b[i];
    return ::testing::AssertionSuccess();
}

// Every field of a frame, scale included, read as thirteen doubles.
inline const double *fields(const RFrame &f) {
    static_assert(sizeof(RFrame) == 13 * sizeof(double), "RFrame is thirteen doubles");
    return reinterpret_cast<const double *>(&f);
}

} // namespace frametest

#endif
