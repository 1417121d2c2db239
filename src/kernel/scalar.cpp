// Guarded inverse trigonometry, clamps, 16-bit packers, swaps, the random
// value and the two small vector tests of the scalar kernel.
#include <korvane/kernel.h>

#include <cmath>
#include <cstdlib>

#include "kernel/vector_ops.h"

using namespace korvane;

double mathACos(double x) {
    return acosGuarded(x);
}

double mathASin(double x) {
    return asinGuarded(x);
}

double mathSolAngleByCS(double c, double s) {
    if (std::fabs(c) + std::fabs(s) < 1e-20)
        return 0.0;
    double a = std::atan2(s, c);
    if (a < 0.0)
        a += kTwoPi;
    return a;
}

double mathClamp(double lo, double hi, double x) {
    if (x < lo)
        return lo;
    if (x > hi)
        return hi;
    return x;
}

double mathClamp01(double x) {
    return mathClamp(0.0, 1.0, x);
}

double mathClamp0PI2(double x) {
    // Both ends are inside: 2 pi is not folded to 0.
    if (x >= 0.0 && x <= kTwoPi)
        return x;
    const double y = x - std::floor(x * kInvTwoPi) * kTwoPi;
    if (y < 0.0)
        return 0.0;
    if (y > kTwoPi)
        return kTwoPi;
    return y;
}

double mathClampPeriodic(double lo, double hi, double x) {
    const double p = hi - lo;
    if (p < 1e-10)
        return (lo + hi) * 0.5;
    if (lo <= x && x <= hi)
        return x;
    // Not offset by lo again and not re-clamped.
    return x - std::floor((x - lo) / p) * p;
}

unsigned int mathGetHigh16(unsigned int v) {
    return v >> 16;
}

unsigned int mathGetLow16(unsigned int v) {
    return v & 0xFFFFu;
}

unsigned int mathSetHigh16(unsigned int v, unsigned int h) {
    return (h << 16) | (v & 0xFFFFu);
}

unsigned int mathSetLow16(unsigned int v, unsigned int l) {
    return (v & 0xFFFF0000u) | (l & 0xFFFFu);
}

unsigned int mathMerge16(unsigned int h, unsigned int l) {
    return (h << 16) | (l & 0xFFFFu);
}

double mathRand01(void) {
    return static_cast<double>(std::rand() % 10000) * 0.0001;
}

void mathSwapInt(int *a, int *b) {
    const int t = *a;
    *a = *b;
    *b = t;
}

void mathSwapDbl(double *a, double *b) {
    const double t = *a;
    *a = *b;
    *b = t;
}

void mathSwapDblN(double *a, double *b, int n) {
    for (int i = 0; i < n; ++i) {
        const double t = a[i];
        a[i] = b[i];
        b[i] = t;
    }
}

void mathSwapPnt2D(double *a, double *b) {
    mathSwapDblN(a, b, 2);
}

void mathSwapPnt3D(double *a, double *b) {
    mathSwapDblN(a, b, 3);
}

int mathChkAng(const double *a, const double *b, double tol, int opposite) {
    double e[3];
    if (opposite)
        add3(a, b, e);
    else
        sub3(b, a, e);
    return len3(e) < tol ? 1 : 0;
}

int mathNumDer(const double *p0, const double *p1, double dt, double *out) {
    if (std::fabs(dt) < 1e-20)
        return 0;
    // Multiplication by the reciprocal: its rounding is part of the result.
    const double r = 1.0 / dt;
    out[0] = (p1[0] - p0[0]) * r;
    out[1] = (p1[1] - p0[1]) * r;
    out[2] = (p1[2] - p0[2]) * r;
    return 1;
}
