// Joining an unordered chain of line pieces into one connected run; shared
// by the planar and the spatial pieces.
#ifndef KORVANE_GEOMETRY_POLYLINE_JOIN_H
#define KORVANE_GEOMETRY_POLYLINE_JOIN_H

#include <korvane/containers.h>

namespace korvane {

template <typename Piece, int Dim> void swapEnds(Piece *p) {
    for (int i = 0; i < Dim; ++i) {
        const double t = p->start[i];
        p->start[i] = p->end[i];
        p->end[i] = t;
    }
}

template <int Dim> void copyPoint(const double *from, double *to) {
    for (int i = 0; i < Dim; ++i)
        to[i] = from[i];
}

// Grows a run from the first piece of *chain. The four touch tests run in a
// fixed order (start at S, end at S, start at E, end at E) and the scan
// restarts from the head of the remaining chain after every join.
template <typename Piece, int Dim, typename Dist>
int joinPieces(Piece **chain, double tol, Piece **result, Dist dist) {
    *result = nullptr;
    if (!*chain)
        return 0;
    Piece *head = *chain;
    *chain = head->next;
    head->next = nullptr;
    double s[Dim], e[Dim];
    copyPoint<Dim>(head->start, s);
    copyPoint<Dim>(head->end, e);
    int count = 1;

    Piece *p = *chain;
    while (p) {
        int join = 0;
        if (dist(p->start, s) < tol) {
            swapEnds<Piece, Dim>(p);
            join = 1;
        } else if (dist(p->end, s) < tol) {
            join = 1;
        } else if (dist(p->start, e) < tol) {
            join = 2;
        } else if (dist(p->end, e) < tol) {
            swapEnds<Piece, Dim>(p);
            join = 2;
        }
        if (!join) {
            p = p->next;
            continue;
        }
        *chain = static_cast<Piece *>(mathDelItemInSDChns(p, *chain));
        if (join == 1) {
            copyPoint<Dim>(p->start, s);
            head = static_cast<Piece *>(mathInsItemInSDChns(p, head));
        } else {
            copyPoint<Dim>(p->end, e);
            p->next = nullptr;
            head = static_cast<Piece *>(mathInsSDChnsAtTail(p, head));
        }
        ++count;
        p = *chain;
    }
    *result = head;
    return count;
}

} // namespace korvane

#endif
