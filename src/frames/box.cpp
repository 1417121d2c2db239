// Double-precision axis-aligned boxes in the plane and in space: the empty
// box, corners, boxes of point strings, point and overlap tests, union and
// common part. A box is its minimum corner followed by its maximum corner.
#include <korvane/frames.h>

#include <new>

#include "kernel/vector_ops.h"

namespace {

// The empty box: a sentinel beyond the design range on either side, so that
// the first enlargement makes both corners the point.
void clean(double *box, int dim) {
    for (int i = 0; i < dim; ++i) {
        box[i] = 1e10;
        box[dim + i] = -1e10;
    }
}

void enlarge(const double *p, double *box, int dim) {
    for (int i = 0; i < dim; ++i) {
        if (p[i] < box[i])
            box[i] = p[i];
        if (p[i] > box[dim + i])
            box[dim + i] = p[i];
    }
}

void define(const double *p, const double *q, double *box, int dim) {
    double t[6];
    for (int i = 0; i < dim; ++i) {
        const bool pLow = p[i] < q[i];
        t[i] = pLow ? p[i] : q[i];
        t[dim + i] = pLow ? q[i] : p[i];
    }
    for (int i = 0; i < 2 * dim; ++i)
        box[i] = t[i];
}

int containsPoint(const double *box, const double *p, double tol, int dim) {
    // Touching the widened border passes.
    for (int i = 0; i < dim; ++i) {
        if (p[i] + tol < box[i] || box[dim + i] + tol < p[i])
            return 0;
    }
    return 1;
}

void unite(const double *a, const double *b, double *out, int dim) {
    for (int i = 0; i < dim; ++i) {
        out[i] = a[i] < b[i] ? a[i] : b[i];
        out[dim + i] = a[dim + i] > b[dim + i] ? a[dim + i] : b[dim + i];
    }
}

int intersect(const double *a, const double *b, double *out, int dim) {
    for (int i = 0; i < dim; ++i) {
        out[i] = a[i] > b[i] ? a[i] : b[i];
        out[dim + i] = a[dim + i] < b[dim + i] ? a[dim + i] : b[dim + i];
    }
    // Written in any case; a gap of at most 1e-10 still counts as a meeting.
    for (int i = 0; i < dim; ++i) {
        if (out[i] > out[dim + i] + 1e-10)
            return 0;
    }
    return 1;
}

int isValid(const double *box, int dim) {
    for (int i = 0; i < dim; ++i) {
        if (!(box[dim + i] + 1e-10 >= box[i]))
            return 0;
    }
    return 1;
}

double *initialise(const double *min, const double *max, double *box, int dim) {
    double t[6];
    for (int i = 0; i < dim; ++i) {
        t[i] = min[i];
        t[dim + i] = max[i];
    }
    for (int i = 0; i < 2 * dim; ++i)
        box[i] = t[i];
    return box;
}

} // namespace

// ---- In the plane -----------------------------------------------------------------

double *mathCreateBox2D(void) {
    double *box = new (std::nothrow) double[4];
    if (box)
        clean(box, 2);
    return box;
}

void mathClnBox2D(double *box) {
    clean(box, 2);
}

double *mathIniBox2D(const double *min, const double *max, double *box) {
    return initialise(min, max, box, 2);
}

void mathDefBox2D(const double *p, const double *q, double *box) {
    define(p, q, box, 2);
}

void mathEnlargeBox2D(const double *p, double *box) {
    enlarge(p, box, 2);
}

void mathCalBox2DStr(int n, const double *pts, double *box) {
    clean(box, 2);
    for (int i = 0; i < n; ++i)
        enlarge(pts + 2 * i, box, 2);
}

int mathCalBox2HStr(int n, const double *pts, double *box) {
    clean(box, 2);
    for (int i = 0; i < n; ++i) {
        const double *h = pts + 3 * i;
        // Signed: a negative weight stops the walk as well.
        if (h[2] < 1e-20)
            return 0;
        const double p[2] = {h[0] / h[2], h[1] / h[2]};
        enlarge(p, box, 2);
    }
    return 1;
}

int mathChkBox2DInt(const double *a, const double *b, double tol) {
    for (int i = 0; i < 2; ++i) {
        if (b[2 + i] + tol < a[i] || b[i] - tol > a[2 + i])
            return 0;
    }
    return 1;
}

int mathChkBox2DPnt(const double *box, const double *p, double tol) {
    return containsPoint(box, p, tol, 2);
}

void mathCalBox2DUnion(const double *a, const double *b, double *out) {
    unite(a, b, out, 2);
}

int mathCalBox2DInt(const double *a, const double *b, double *out) {
    return intersect(a, b, out, 2);
}

int mathIsValidBox2D(const double *box) {
    return isValid(box, 2);
}

// ---- In space -------------------------------------------------------------------------

void mathClnBox3D(double *box) {
    clean(box, 3);
}

double *mathIniBox3D(const double *min, const double *max, double *box) {
    return initialise(min, max, box, 3);
}

void mathDefBox3D(const double *p, const double *q, double *box) {
    define(p, q, box, 3);
}

void mathEnlargeBox3D(const double *p, double *box) {
    enlarge(p, box, 3);
}

double *mathExpandBox3D(double d, double *box) {
    for (int i = 0; i < 3; ++i) {
        box[i] -= d;
        box[3 + i] += d;
    }
    return box;
}

void mathCalBox3DCorner(const double *box, double *corners) {
    if (!box)
        return;
    // Four at minimum z, then four at maximum z, anticlockwise from above.
    static const int pick[8][3] = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0},
                                   {0, 0, 1}, {1, 0, 1}, {1, 1, 1}, {0, 1, 1}};
    double t[24];
    for (int k = 0; k < 8; ++k) {
        for (int i = 0; i < 3; ++i)
            t[3 * k + i] = box[3 * pick[k][i] + i];
    }
    for (int k = 0; k < 24; ++k)
        corners[k] = t[k];
}

void mathCalBox3DStr(int n, const double *pts, double *box) {
    clean(box, 3);
    for (int i = 0; i < n; ++i)
        enlarge(pts + 3 * i, box, 3);
}

int mathCalBox3HStr(int n, const double *pts, double *box) {
    clean(box, 3);
    for (int i = 0; i < n; ++i) {
        // mathGetPnt4 refuses only |w| < 1e-10: negative weights pass.
        double p[3];
        if (!mathGetPnt4(pts + 4 * i, p))
            return 0;
        enlarge(p, box, 3);
    }
    return 1;
}

int mathChkBox3DInt(const double *a, const double *b, double tol) {
    for (int i = 0; i < 3; ++i) {
        if (b[3 + i] + tol < a[i] || a[3 + i] + tol < b[i])
            return 0;
    }
    return 1;
}

int mathChkBox3DPnt(const double *box, const double *p, double tol) {
    return containsPoint(box, p, tol, 3);
}

void mathCalBox3DUnion(const double *a, const double *b, double *out) {
    unite(a, b, out, 3);
}

int mathCalBox3DInt(const double *a, const double *b, double *out) {
    return intersect(a, b, out, 3);
}

int mathIsValidBox3D(const double *box) {
    return isValid(box, 3);
}

double mathCalBox3DPntNearestDist(const double *box, const double *p, double *nearest) {
    double q[3];
    for (int i = 0; i < 3; ++i) {
        if (p[i] < box[i])
            q[i] = box[i];
        else if (p[i] > box[3 + i])
            q[i] = box[3 + i];
        else
            q[i] = p[i];
    }
    const double d = korvane::dist3(q, p);
    korvane::copy3(q, nearest);
    return d;
}
