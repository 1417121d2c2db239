/* Built against an installed copy of Korvane: the C side of the interface. */
#include <korvane/korvane.h>

#include <stdio.h>

int main(void) {
    Vec3D z = {0.0, 0.0, 2.0}, x, y;
    if (mathGetXYFromZ(z, x, y) != 1 || x[1] != 1.0 || y[0] != -2.0) {
        fprintf(stderr, "consumer: unexpected frame\n");
        return 1;
    }
    printf("consumer (C): x = (%g, %g, %g)\n", x[0], x[1], x[2]);
    return 0;
}
