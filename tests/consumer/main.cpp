// Built against an installed copy of Korvane: the whole interface from C++.
#include <korvane/korvane.h>

#include <cstdio>

int main() {
    const double p[3] = {0.0, 0.0, 0.0}, q[3] = {2.0, 3.0, 6.0};
    if (mathDist(p, q) != 7.0) {
        std::fprintf(stderr, "consumer: unexpected distance\n");
        return 1;
    }
    std::printf("consumer (C++): distance %g\n", mathDist(p, q));
    return 0;
}
