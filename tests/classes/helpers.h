// Shared by the value-class tests: a guard for the gm tolerances and the
// compact vector assertions applied to float values.
#ifndef KORVANE_TESTS_CLASSES_HELPERS_H
#define KORVANE_TESTS_CLASSES_HELPERS_H

#include <korvane/classes.h>

#include "support/expect.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>

// Restores the five gm tolerances when a test that changes them ends.
struct GmGuard {
    double dist = gmGetDistTol(), para = gmGetParaTol(), absDist = gmGetAbsDistTol(),
           absPara = gmGetAbsParaTol(), absZero = gmGetAbsZero();
    ~GmGuard() {
        gmSetDistTol(dist);
        gmSetParaTol(para);
        gmSetAbsDistTol(absDist);
        gmSetAbsParaTol(absPara);
        gmSetAbsZero(absZero);
    }
};

namespace korvane_test {

// The components of a value widened to double: float lists and arrays,
// points, boxes (min then max) and transformations (their matrix).
struct Wide {
    double v[16];
    int n;
    Wide(const float *p, int count) : n(count) { std::copy(p, p + count, v); }
    Wide(std::initializer_list<float> f) : Wide(f.begin(), int(f.size())) {}
    template <std::size_t N> Wide(const float (&a)[N]) : Wide(a, int(N)) {}
    Wide(const point_2d &p) : Wide({p.x, p.y}) {}
    Wide(const point_3d &p) : Wide({p.x, p.y, p.z}) {}
    Wide(const point_4d &p) : Wide({p.x, p.y, p.z, p.w}) {}
    Wide(const Box2D &b) : Wide({b.min.x, b.min.y, b.max.x, b.max.y}) {}
    Wide(const Box3D &b) : Wide({b.min.x, b.min.y, b.min.z, b.max.x, b.max.y, b.max.z}) {}
    Wide(const TRANSF_2D &t) : n(9) {
        float m[9];
        t.Get9(m);
        std::copy(m, m + 9, v);
    }
    Wide(const TRANSF_3D &t) : n(16) { t.GetDbl16(v); }
};

// Every component equal to the expected one, or within tol of it.
inline ::testing::AssertionResult is(const Wide &x, std::initializer_list<double> want,
                                     double tol = 0) {
    if (int(want.size()) != x.n)
        return ::testing::AssertionFailure() << x.n << " components, " << want.size() << " given";
    return tol == 0 ? exactly(x.v, want) : near(x.v, want, tol);
}

// Two values with the same components, or within tol of each other.
inline ::testing::AssertionResult sameAs(const Wide &a, const Wide &b, double tol = 0) {
    for (int i = 0; i < a.n; ++i) {
        if (!(a.v[i] - b.v[i] <= tol && b.v[i] - a.v[i] <= tol))
            return ::testing::AssertionFailure()
                   << "component " << i << ": " << a.v[i] << " vs " << b.v[i];
    }
    return ::testing::AssertionSuccess();
}

// The 3 by 3 and 4 by 4 identities.
inline const std::initializer_list<double> kId2D = {1, 0, 0, 0, 1, 0, 0, 0, 1};
inline const std::initializer_list<double> kId3D = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

} // namespace korvane_test

#endif
