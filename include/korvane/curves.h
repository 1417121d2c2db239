/* Korvane: Ferguson curves, differential estimators and biarcs. */
#ifndef KORVANE_CURVES_H
#define KORVANE_CURVES_H

#include <korvane/kernel.h>

KORVANE_BEGIN_C

KORVANE_END_C

#endif
