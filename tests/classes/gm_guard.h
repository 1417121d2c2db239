// Restores the five gm tolerances when a test that changes them ends.
#ifndef KORVANE_TESTS_CLASSES_GM_GUARD_H
#define KORVANE_TESTS_CLASSES_GM_GUARD_H

#include <korvane/classes.h>

struct GmGuard {
    double dist = gmGetDistTol(), para = gmGetParaTol(), absDist = gmGetAbsDistTol(),
           absPara = gmGetAbsParaTol(), absZero = gmGetAbsZero();
    GmGuard() = default;
    GmGuard(const GmGuard &) = delete;
    GmGuard &operator=(const GmGuard &) = delete;
    ~GmGuard() {
        gmSetDistTol(dist);
        gmSetParaTol(para);
        gmSetAbsDistTol(absDist);
        gmSetAbsParaTol(absPara);
        gmSetAbsZero(absZero);
    }
};

#endif
