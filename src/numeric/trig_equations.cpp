// Trigonometric equations: the shifted cosine, the homogeneous quadratic form
// and the mixed form through the half-angle substitution.
#include <korvane/numeric.h>

#include <cmath>

#include "kernel/constants.h"

using namespace korvane;

int mathSolExpoEqua(double a, double b, double c, double tol, double *r) {
    r[0] = 0.0;
    r[1] = kHalfPi;
    const double n = std::sqrt(a * a + b * b);
    if (n < 1e-20)
        return std::fabs(c) < tol ? 100 : 0;
    if (std::fabs(c - n) < tol && std::fabs(c + n) < tol)
        return 100;
    const double inv = 1.0 / n;
    if (tol * inv + 1.0 < std::fabs(c * inv))
        return 0;
    // a cos t + b sin t = n cos(t - phi), so t = phi +- alpha.
    const double alpha = mathACos(c * inv);
    const double phi = mathSolAngleByCS(a * inv, b * inv);
    r[0] = mathClamp0PI2(phi + alpha);
    r[1] = mathClamp0PI2(kTwoPi - alpha + phi);
    const double m = (r[0] + r[1]) * 0.5;
    if (std::fabs(a * std::cos(m) + b * std::sin(m) - c) < tol) {
        r[0] = m;
        r[1] = m;
        return 1;
    }
    // The slightly short period: 0 and 2 pi at the two ends are one angle.
    return std::fabs(r[0] - r[1]) > 6.283185307169586 ? 1 : 2;
}

int mathSolHomoEqua(double a, double b, double c, double tol, double *r) {
    const int count = mathSolExpoEqua((a - c) * 0.5, b * 0.5, (a + c) * -0.5, tol, r);
    if (count == 100)
        return 100;
    for (int i = 0; i < count; ++i)
        r[i] *= 0.5;
    return count;
}

int mathSolAngleByCCSS(double a, double b, double c, double tol, double *r) {
    double u[4];
    int count = 0;

    // First pass: u = tan(t / 2), trusted up to |u| = 1 and a hair beyond.
    const double q1[5] = {a, 2.0 * (b - c), 0.0, -2.0 * (b + c), -a};
    int k = mathSolQuarEqua(q1, 2.0 * tol, u);
    if (k == 100) {
        r[0] = 0.0;
        return 100;
    }
    for (int i = 0; i < k; ++i) {
        if (std::fabs(u[i]) < 1.0000000001) {
            double t = 2.0 * std::atan2(u[i], 1.0);
            if (t < 0.0)
                t += kTwoPi;
            r[count++] = t;
            if (count == 4)
                return 4;
        }
    }

    // Second pass: t = pi - 2 atan(u) covers the other half of the circle.
    const double q2[5] = {a, 2.0 * (b + c), 0.0, 2.0 * (c - b), -a};
    k = mathSolQuarEqua(q2, 2.0 * tol, u);
    if (k == 100) {
        r[0] = 0.0;
        return 100;
    }
    // Narrower than the first pass, so the seam at |u| = 1 is not reported
    // twice.
    for (int i = 0; i < k; ++i) {
        if (std::fabs(u[i]) < 0.9999999999) {
            r[count++] = kPi - 2.0 * std::atan2(u[i], 1.0);
            if (count == 4)
                return 4;
        }
    }
    return count;
}
