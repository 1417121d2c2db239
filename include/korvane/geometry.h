/* Korvane: Lines, segments, planes, arcs, circles, spheres, cylinders, ellipses, ellipsoids and
 * triangles. */
#ifndef KORVANE_GEOMETRY_H
#define KORVANE_GEOMETRY_H

#include <korvane/kernel.h>

KORVANE_BEGIN_C

KORVANE_END_C

#endif
