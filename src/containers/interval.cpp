// Closed parameter ranges with a tolerance, plain and periodic: the pair
// functions used for clipping across the library, and the Interval record.
#include <korvane/containers.h>

#include <cmath>
#include <new>

#include "kernel/constants.h"

using korvane::kTwoPi;

namespace {

// v is in [a, b] modulo the period when some whole shift k brings it there:
// k0 and k1 bound the admissible shifts, widened by 1e-10 against rounding.
int periodicShift(double a, double b, double period, double v, double tol, int *k0) {
    const int lo = static_cast<int>(std::ceil((a - v - tol) / period - 1e-10));
    const int hi = static_cast<int>(std::floor((b - v + tol) / period + 1e-10));
    *k0 = lo;
    return lo <= hi ? 1 : 0;
}

int isInPeriodic(double a, double b, double period, double v, double tol) {
    if (period < 1e-10)
        return (a - tol < v && b + tol > v) ? 1 : 0;
    if (period - tol < b - a)
        return 1;
    int k0;
    return periodicShift(a, b, period, v, tol, &k0);
}

// Brings both ends into the base period by whole periods.
void toBasePeriod(double *iv, double period, double tol) {
    while ((iv[0] < iv[1] ? iv[0] : iv[1]) < -tol) {
        iv[0] += period;
        iv[1] += period;
    }
    while ((iv[0] < iv[1] ? iv[0] : iv[1]) > period + tol) {
        iv[0] -= period;
        iv[1] -= period;
    }
}

} // namespace

// ---- Ranges as pairs ------------------------------------------------------------

int mathChkValInt(double a, double b, double tol, double v) {
    if (v > a - tol && v < b + tol)
        return 1;
    if (v > b - tol && v < a + tol)
        return 1;
    return 0;
}

int mathChkIntInt(double a0, double a1, double b0, double b1, double tol) {
    if (b1 + tol < a0 || a1 + tol < b0)
        return 0;
    return 1;
}

int mathIntInt(double a0, double a1, double b0, double b1, double tol, double *s, double *e) {
    if (a0 > a1) {
        const double t = a0;
        a0 = a1;
        a1 = t;
    }
    if (b0 > b1) {
        const double t = b0;
        b0 = b1;
        b1 = t;
    }
    const double lo = a0 > b0 ? a0 : b0;
    const double hi = a1 < b1 ? a1 : b1;
    // A gap below tol still counts as a meeting; lo may then exceed hi.
    if (lo - hi < tol) {
        *s = lo;
        *e = hi;
        return 1;
    }
    const double mid = (lo + hi) * 0.5;
    *s = mid;
    *e = mid;
    return 0;
}

int mathIntIntArc(double a0, double a1, double b0, double b1, double tol, int *n, double *out) {
    *n = 0;
    const double full = kTwoPi - tol;
    if (a1 - a0 > full) {
        out[0] = b0;
        out[1] = b1;
        *n = 1;
        return 1;
    }
    if (b1 - b0 > full) {
        out[0] = a0;
        out[1] = a1;
        *n = 1;
        return 1;
    }
    if (b0 < kTwoPi) {
        const double end = b1 < kTwoPi ? b1 : kTwoPi;
        if (mathIntInt(a0, a1, b0, end, tol, &out[0], &out[1]))
            ++*n;
    }
    if (b1 <= kTwoPi)
        return *n != 0 ? 1 : 0;
    // b wraps past the turn: its tail from 0 on goes into the next free pair.
    double *pair = out + 2 * *n;
    if (mathIntInt(a0, a1, 0.0, b1 - kTwoPi, tol, &pair[0], &pair[1]))
        ++*n;
    return *n != 0 ? 1 : 0;
}

int mathIntAri(int op, double a0, double a1, double b0, double b1, double *s, double *e) {
    switch (op) {
    case 0:
        *s = a0 + b0;
        *e = a1 + b1;
        return 1;
    case 1:
        *s = a0 - b1;
        *e = a1 - b0;
        return 1;
    case 2: {
        const double p[4] = {a0 * b0, a0 * b1, a1 * b0, a1 * b1};
        double lo = p[0], hi = p[0];
        for (int i = 1; i < 4; ++i) {
            if (p[i] < lo)
                lo = p[i];
            if (p[i] > hi)
                hi = p[i];
        }
        *s = lo;
        *e = hi;
        return 1;
    }
    case 3:
        // Only a positive divisor range; the quotients are not reordered.
        if (!(b0 >= 1e-20))
            return 0;
        *s = a0 / b1;
        *e = a1 / b0;
        return 1;
    default:
        return 0;
    }
}

int mathDecPeriInt(double lo, double hi, double a, double b, int *k, int *n, double *first,
                   double *second) {
    const double period = hi - lo;
    if (period < 1e-10)
        return 0;
    const double s = a < b ? a : b;
    const double e = a < b ? b : a;
    const double len = e - s;
    *k = static_cast<int>(std::floor(len / period));
    first[0] = mathClampPeriodic(lo, hi, s);
    first[1] = len - *k * period + first[0];
    if (first[1] - first[0] < 1e-10) {
        *n = 0;
        return 1;
    }
    if (hi + 1e-10 <= first[1]) {
        *n = 2;
        second[0] = lo;
        second[1] = first[1] - hi;
        first[1] = hi;
        return 1;
    }
    *n = 1;
    return 1;
}

int mathIsInPeri(double a, double b, double period, double v, double tol) {
    return isInPeriodic(a, b, period, v, tol);
}

// ---- The Interval record ----------------------------------------------------------

Interval *intervalCreate(double a, double b) {
    (void)a;
    // Only the first end is set, and from b: this is the function's contract.
    Interval *iv = new (std::nothrow) Interval;
    if (iv)
        iv->start = b;
    return iv;
}

namespace {

int freeRecord(void *rec) {
    // A plain record of unknown type from a single-object new.
    ::operator delete(rec);
    return 1;
}

} // namespace

int intervalFree(void *rec) {
    return freeRecord(rec);
}
int paramFree(void *rec) {
    return freeRecord(rec);
}
int patchFree(void *rec) {
    return freeRecord(rec);
}
int pnodeFree(void *rec) {
    return freeRecord(rec);
}

double intervalGetLen(const Interval *iv) {
    if (!iv)
        return 0.0;
    return std::fabs(iv->end - iv->start);
}

int intervalIsIn(const Interval *iv, double v, double tol) {
    return (iv->start - tol < v && v < iv->end + tol) ? 1 : 0;
}

int intervalIsInPeri(const Interval *iv, double period, double v, double tol) {
    return isInPeriodic(iv->start, iv->end, period, v, tol);
}

int intervalIsInPeEx(const Interval *iv, double period, double v, double tol, double *out) {
    *out = v;
    if (period < 1e-10)
        return (iv->start - tol < v && v < iv->end + tol) ? 1 : 0;
    int k0;
    if (!periodicShift(iv->start, iv->end, period, v, tol, &k0))
        return 0;
    *out = k0 * period + v;
    return 1;
}

int intervalInt(const double *a, const double *b, double tol, double *out) {
    double s, e;
    const int r = mathIntInt(a[0], a[1], b[0], b[1], tol, &s, &e);
    if (out) {
        out[0] = s;
        out[1] = e;
    }
    return r;
}

int intervalIntPeri(const double *a, const double *b, double period, double tol, int *n,
                    double *out1, double *out2) {
    *n = 0;
    if (period < 1e-10) {
        if (intervalInt(a, b, tol, out1)) {
            *n = 1;
            return 1;
        }
        return 0;
    }
    const double full = period - tol;
    if (std::fabs(a[1] - a[0]) > full) {
        *n = 1;
        if (out1) {
            out1[0] = b[0];
            out1[1] = b[1];
        }
        return 1;
    }
    if (std::fabs(b[1] - b[0]) > full) {
        *n = 1;
        if (out1) {
            out1[0] = a[0];
            out1[1] = a[1];
        }
        return 1;
    }
    double ca[2] = {a[0], a[1]};
    double cb[2] = {b[0], b[1]};
    toBasePeriod(ca, period, tol);
    toBasePeriod(cb, period, tol);
    const int first = intervalInt(ca, cb, tol, out1);
    // Only b shifted up by one period is tried, never down.
    cb[0] += period;
    cb[1] += period;
    if (first == 1) {
        *n = 1;
        if (intervalInt(ca, cb, tol, out2))
            ++*n;
    } else if (intervalInt(ca, cb, tol, out1)) {
        ++*n;
    }
    return *n != 0 ? 1 : 0;
}
