// Picking polylines with a line in space, and classifying polylines against
// a window through a view matrix. All in 64-bit arithmetic, no allocation.
#include <korvane/classes.h>

#include "classes/class_ops.h"

#include <cmath>

namespace {

// ---- Pick frame ----------------------------------------------------------------

// Index of the component of least magnitude, the first among equals.
int MinAbsIndex(const double *a, int n) {
    int k = 0;
    for (int i = 1; i < n; ++i)
        if (std::fabs(a[i]) < std::fabs(a[k]))
            k = i;
    return k;
}

// Coordinates across and along the pick line: U, V on the plane across it,
// D the depth along dir, all measured from org.
struct PickFrame {
    double u[3], v[3];
    const double *org, *dir;

    PickFrame(const double *o, const double *d) : org(o), dir(d) {
        // The cross axis is built on the smallest component of dir, so it is
        // never zero for a line along a coordinate axis.
        u[0] = u[1] = u[2] = 0.0;
        switch (MinAbsIndex(d, 3)) {
        case 0:
            u[1] = d[2];
            u[2] = -d[1];
            break;
        case 1:
            u[0] = -d[2];
            u[2] = d[0];
            break;
        default:
            u[0] = d[1];
            u[1] = -d[0];
            break;
        }
        // no test: a zero dir makes u NaN, and NaN coordinates pick nothing
        double inv = 1.0 / std::sqrt(u[0] * u[0] + u[1] * u[1] + u[2] * u[2]);
        u[0] *= inv;
        u[1] *= inv;
        u[2] *= inv;
        v[0] = d[1] * u[2] - d[2] * u[1];
        v[1] = d[2] * u[0] - d[0] * u[2];
        v[2] = d[0] * u[1] - d[1] * u[0];
    }

    void coords(double x, double y, double z, double &U, double &V, double &D) const {
        double dx = x - org[0], dy = y - org[1], dz = z - org[2];
        U = u[0] * dx + u[1] * dy + u[2] * dz;
        V = v[0] * dx + v[1] * dy + v[2] * dz;
        D = dir[0] * dx + dir[1] * dy + dir[2] * dz;
    }
};

inline void vertexOf(const point_2d &p, double &x, double &y, double &z) {
    x = p.x;
    y = p.y;
    z = 0.0;
}
inline void vertexOf(const nd_point_2d &p, double &x, double &y, double &z) {
    x = p.x;
    y = p.y;
    z = 0.0;
}
inline void vertexOf(const point_3d &p, double &x, double &y, double &z) {
    x = p.x;
    y = p.y;
    z = p.z;
}

template <class P>
int pickPolyline(const P *pts, int n, const double *org, const double *dir, double tol,
                 double &depth, double &param) {
    if (pts == nullptr || n <= 1)
        return 0;
    PickFrame f(org, dir);
    double x, y, z, up, vp, d0;
    vertexOf(pts[0], x, y, z);
    f.coords(x, y, z, up, vp, d0);
    for (int i = 1; i < n; ++i) {
        double uc, vc, dc;
        vertexOf(pts[i], x, y, z);
        f.coords(x, y, z, uc, vc, dc);
        double eu = uc - up, ev = vc - vp;
        double l2 = eu * eu + ev * ev;
        double b = eu * up + ev * vp;
        double c = up * up + vp * vp;
        double s;
        bool hit = false;
        // start vertex, then end vertex, then the interior
        if (std::sqrt(c) < tol) {
            s = 0.0;
            hit = true;
        } else if (std::sqrt(uc * uc + vc * vc) < tol) {
            s = 1.0;
            hit = true;
        } else if (l2 > 1e-10 && std::sqrt(std::fabs(c - b * b / l2)) < tol) {
            s = -b / l2;
            hit = s > -1e-10 && s < 1.0000000001;
        }
        if (hit) {
            param = (i - 1) + s;
            // from the depth of vertex 0 of the list, not of this segment's start
            depth = (1.0 - s) * d0 + s * dc;
            return 1;
        }
        up = uc;
        vp = vc;
    }
    return 0;
}

// ---- Window classification ---------------------------------------------------------

struct Win {
    double x, y;
};

struct Window {
    const double *m;
    Win c[4];
    double lox, loy, hix, hiy; // the window widened by the fixed margin

    Window(const double *view, const double *wmin, const double *wmax) : m(view) {
        c[0] = {wmin[0], wmin[1]};
        c[1] = {wmin[0], wmax[1]};
        c[2] = {wmax[0], wmax[1]};
        c[3] = {wmax[0], wmin[1]};
        lox = wmin[0] - 1e-05;
        loy = wmin[1] - 1e-05;
        hix = wmax[0] + 1e-05;
        hiy = wmax[1] + 1e-05;
    }

    Win map(double x, double y, double z) const {
        return {x * m[0] + y * m[4] + z * m[8] + m[12], x * m[1] + y * m[5] + z * m[9] + m[13]};
    }

    bool WinPointInside(const Win &p) const {
        return lox < p.x && p.x < hix && loy < p.y && p.y < hiy;
    }

    // Rejects a segment that lies wholly beyond one side of the widened window.
    bool WinSegmentMayCross(const Win &a, const Win &b) const {
        if (a.x < lox && b.x < lox)
            return false;
        if (a.y < loy && b.y < loy)
            return false;
        if (a.x > hix && b.x > hix)
            return false;
        if (a.y > hiy && b.y > hiy)
            return false;
        return true;
    }
};

bool bothBelow(double a, double b, double c, double d, double e) {
    return a < c - e && a < d - e && b < c - e && b < d - e;
}

bool bothAbove(double a, double b, double c, double d, double e) {
    return a > c + e && a > d + e && b > c + e && b > d + e;
}

// Segment a-b against the window edge c-d.
bool WinSegmentCrossEdge(const Win &a, const Win &b, const Win &c, const Win &d) {
    double e = korvane::gDistTol;
    if (bothBelow(a.x, b.x, c.x, d.x, e) || bothBelow(a.y, b.y, c.y, d.y, e) ||
        bothAbove(a.x, b.x, c.x, d.x, e) || bothAbove(a.y, b.y, c.y, d.y, e))
        return false;
    double dx1 = b.x - a.x, dy1 = b.y - a.y;
    double px = c.x - a.x, py = c.y - a.y;
    double qx = c.x - d.x, qy = c.y - d.y;
    double det = qy * dx1 - qx * dy1;
    if (std::fabs(det) < korvane::gAbsZero)
        return false;
    double s = (px * qy - py * qx) / det;
    double t = -(px * dy1 - py * dx1) / det;
    double pt = korvane::gParaTol;
    return s >= -pt && s <= 1.0 + pt && t >= -pt && t <= 1.0 + pt;
}

template <class P>
int touchesWindow(const P *pts, int n, const double *m, const double *wmin, const double *wmax) {
    Window w(m, wmin, wmax);
    double x, y, z;
    vertexOf(pts[0], x, y, z);
    Win prev = w.map(x, y, z);
    if (w.WinPointInside(prev))
        return 1;
    for (int i = 1; i < n; ++i) {
        vertexOf(pts[i], x, y, z);
        Win cur = w.map(x, y, z);
        if (w.WinSegmentMayCross(prev, cur)) {
            if (w.WinPointInside(cur))
                return 1;
            for (int k = 0; k < 4; ++k)
                if (WinSegmentCrossEdge(prev, cur, w.c[k], w.c[(k + 1) % 4]))
                    return 1;
        }
        prev = cur;
    }
    // no enclosure test: a polyline around the window does not touch it
    return 0;
}

} // namespace

int PntPickPt(point_2d p, const double *org, const double *dir, double tol, double &depth) {
    PickFrame f(org, dir);
    double U, V, D;
    f.coords(p.x, p.y, 0.0, U, V, D);
    if (!(std::sqrt(U * U + V * V) < tol))
        return 0;
    depth = D;
    return 1;
}

int PntPickPT2D(const point_2d *pts, int n, const double *org, const double *dir, double tol,
                double &depth, double &param) {
    return pickPolyline(pts, n, org, dir, tol, depth, param);
}

int PntPickNDPT2D(const nd_point_2d *pts, int n, const double *org, const double *dir, double tol,
                  double &depth, double &param) {
    return pickPolyline(pts, n, org, dir, tol, depth, param);
}

int PntPickPT3D(const point_3d *pts, int n, const double *org, const double *dir, double tol,
                double &depth, double &param) {
    return pickPolyline(pts, n, org, dir, tol, depth, param);
}

int WinInterPt2D(const point_2d *pts, int n, const double *m, const double *wmin,
                 const double *wmax) {
    if (n < 1 || pts == nullptr)
        return 0;
    return touchesWindow(pts, n, m, wmin, wmax);
}

int WinInterNDPt2D(const nd_point_2d *pts, int n, const double *m, const double *wmin,
                   const double *wmax) {
    if (n < 1)
        return 0;
    return touchesWindow(pts, n, m, wmin, wmax);
}

int WinInterPt3D(const point_3d *pts, int n, const double *m, const double *wmin,
                 const double *wmax) {
    if (n < 1)
        return 0;
    return touchesWindow(pts, n, m, wmin, wmax);
}
