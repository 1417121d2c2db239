/* Korvane: Intrusive chains, strings, nets, double arrays and intervals. */
#ifndef KORVANE_CONTAINERS_H
#define KORVANE_CONTAINERS_H

#include <korvane/kernel.h>

KORVANE_BEGIN_C

/* ---- Double arrays (count, then the caller's array) ------------------------ */

/* Ascending exchange sort in place; a count below 2 does nothing. */
KORVANE_API void mathSortDblArray(int n, double *a);
/* Thins an ascending array: drops every value closer than tol (strictly) to
 * the last value kept, compacts in place and returns the new count. Values at
 * or above 9.999999999e99 are dropped too; a count below 2 returns 1 and
 * touches nothing. The tail behind the new count keeps stale values. */
KORVANE_API int mathFilterDblArray(int n, double *a, double tol);
/* Index and value of the maximum (minimum); the first of equal extremes wins.
 * The count must be at least 1. */
KORVANE_API int mathGetDblArrayMaxVal(int n, const double *a, double *max);
KORVANE_API int mathGetDblArrayMinVal(int n, const double *a, double *min);
/* Both extremes; either out pointer may be null and is then skipped.
 * Always 1. */
KORVANE_API int mathGetDblArrayMinMax(int n, const double *a, double *min, double *max);
/* Reverses in place. */
KORVANE_API void mathRevDblArray(int n, double *a);

KORVANE_END_C

#endif
