/* Korvane: Equations, dense, sparse and symmetric matrices, band solvers, optimisers, small systems
 * and complex numbers. */
#ifndef KORVANE_NUMERIC_H
#define KORVANE_NUMERIC_H

#include <korvane/kernel.h>

KORVANE_BEGIN_C

KORVANE_END_C

#endif
