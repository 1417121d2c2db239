/* A C99 host of the whole interface: includes korvane.h, calls the kernel and
 * checks a few results whose values are exact. */
#include <korvane/korvane.h>

#include <stdio.h>

static int failures = 0;

static void expect(int ok, const char *what) {
    if (!ok) {
        fprintf(stderr, "failed: %s\n", what);
        ++failures;
    }
}

int main(void) {
    Vec3D v = {3.0, 0.0, 4.0};
    Vec3D x = {1.0, 0.0, 0.0};
    Vec3D y = {0.0, 1.0, 0.0};
    Vec3D z;
    Pnt3D pts[3] = {{0.0, 0.0, 0.0}, {3.0, 4.0, 0.0}, {3.0, 4.0, 12.0}};
    Pnt2D a = {0.0, 0.0}, b = {1.0, 0.0}, left = {0.5, 1.0};

    expect(mathUniVec(v, 1e-10) == 1, "mathUniVec succeeds");
    expect(v[0] == 3.0 * (1.0 / 5.0) && v[2] == 4.0 * (1.0 / 5.0), "mathUniVec multiplies");
    mathVProduct(x, y, z);
    expect(z[0] == 0.0 && z[1] == 0.0 && z[2] == 1.0, "x cross y is z");
    expect(mathCalPolylineLen(3, &pts[0][0]) == 17.0, "polyline length");
    expect(mathChkPntLin2D(left, a, b, 1e-10) == 3, "left of the line");
    expect(mathACos(1.5) == 0.0, "guarded acos");
    expect(mathGetLow16(mathMerge16(0x12345u, 0xABCDEu)) == 0xBCDEu, "16-bit packing");

    if (failures == 0)
        printf("C interface: all checks passed\n");
    return failures == 0 ? 0 : 1;
}
