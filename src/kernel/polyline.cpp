// Measures of polylines and the span search in an ascending parameter array.
#include <korvane/kernel.h>

#include <cmath>

#include "kernel/vector_ops.h"

using namespace korvane;

double mathCalPolylineLen(int n, const double *pts) {
    double sum = 0.0;
    for (int i = 1; i < n; ++i)
        sum += dist3(pts + 3 * (i - 1), pts + 3 * i);
    return sum;
}

double mathCalPolylineRotateAngle(int n, const double *pts) {
    if (n < 3)
        return 0.0;
    double e[3];
    sub3(pts + 3, pts, e);
    if (!unit3(e, 1e-10))
        return 0.0;
    double sum = 0.0;
    for (int i = 2; i < n; ++i) {
        double f[3];
        sub3(pts + 3 * i, pts + 3 * (i - 1), f);
        // A degenerate segment drops the whole sum, not just its own angle.
        if (!unit3(f, 1e-10))
            return 0.0;
        const double g = acosGuarded(dot3(e, f));
        if (g > 0.0)
            sum += g;
        copy3(f, e);
    }
    return sum;
}

double mathCalArcLen1(const double *lens, int i, int j) {
    const int lo = i < j ? i : j;
    const int hi = i < j ? j : i;
    double sum = 0.0;
    for (int k = lo + 1; k <= hi; ++k)
        sum += lens[k];
    return sum;
}

double mathCalArcLen2(int n, const double *lens, const double *params, double t1, double t2) {
    // Only nearly coincident parameters are measured; any pair further apart
    // than 1e-10 gives 0.0, although the steps below are general.
    if (std::fabs(t1 - t2) > 1e-10)
        return 0.0;
    const int i = mathIntPos(n, params, t1);
    if (i == -1 || i >= n - 1)
        return 0.0;
    const int j = mathIntPos(n, params, t2);
    if (j == -1 || j >= n - 1)
        return 0.0;
    const double d1 = params[i + 1] - params[i];
    if (d1 < 1e-10)
        return 0.0;
    const double d2 = params[j + 1] - params[j];
    if (d2 < 1e-10)
        return 0.0;
    if (i == j)
        return std::fabs(t2 - t1) * lens[i + 1] / d1;
    // The sum holds element i + 1 whole besides its partial term: the double
    // count is part of the result.
    const double s = mathCalArcLen1(lens, i, j);
    if (i < j)
        return s + std::fabs(params[i + 1] - t1) * lens[i + 1] / d1 +
               std::fabs(t2 - params[j]) * lens[j + 1] / d2;
    return s + std::fabs(t1 - params[i]) * lens[i + 1] / d1 +
           std::fabs(params[j + 1] - t2) * lens[j + 1] / d2;
}

int mathIntPos(int n, const double *t, double x) {
    if (n < 1)
        return -1;
    if (t[0] + 1e-10 > x)
        return 0;
    if (t[n - 1] - 1e-10 < x)
        return n - 2;
    for (int i = 0; i < n - 1; ++i) {
        if (t[i] <= x && x < t[i + 1])
            return i;
    }
    return -1;
}
