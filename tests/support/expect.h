// Compact assertions shared by the test programs.
#ifndef KORVANE_TESTS_SUPPORT_EXPECT_H
#define KORVANE_TESTS_SUPPORT_EXPECT_H

#include <gtest/gtest.h>

#include <initializer_list>

namespace korvane_test {

// Every component equal to the expected value, exactly.
inline ::testing::AssertionResult exactly(const double *v, std::initializer_list<double> want) {
    int i = 0;
    for (double w : want) {
        if (!(v[i] == w))
            return ::testing::AssertionFailure()
                   << "component " << i << " is " << v[i] << ", expected " << w;
        ++i;
    }
    return ::testing::AssertionSuccess();
}

// Every component within tol of the expected value.
inline ::testing::AssertionResult near(const double *v, std::initializer_list<double> want,
                                       double tol) {
    int i = 0;
    for (double w : want) {
        if (!(v[i] - w <= tol && w - v[i] <= tol))
            return ::testing::AssertionFailure() << "component " << i << " is " << v[i]
                                                 << ", expected " << w << " within " << tol;
        ++i;
    }
    return ::testing::AssertionSuccess();
}

// The first n components of a and b equal, exactly.
inline ::testing::AssertionResult same(const double *a, const double *b, int n) {
    for (int i = 0; i < n; ++i) {
        if (!(a[i] == b[i]))
            return ::testing::AssertionFailure()
                   << "component " << i << ": " << a[i] << " != " << b[i];
    }
    return ::testing::AssertionSuccess();
}

} // namespace korvane_test

#endif
