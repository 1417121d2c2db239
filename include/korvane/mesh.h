/* Korvane: Loops, mesh entities, region tessellation and patches. */
#ifndef KORVANE_MESH_H
#define KORVANE_MESH_H

#include <korvane/kernel.h>

KORVANE_BEGIN_C

KORVANE_END_C

#endif
