/* Korvane: Intrusive chains, strings, nets, double arrays and intervals. */
#ifndef KORVANE_CONTAINERS_H
#define KORVANE_CONTAINERS_H

#include <korvane/kernel.h>

/* Link fields that lead every record travelling in a chain. A chain is the
 * pointer to its head node; null is the empty chain. There is no count and no
 * tail pointer. The payload of a record follows the link fields. */
typedef struct BDChns {
    struct BDChns *prev; /* null at the head */
    struct BDChns *next; /* null at the last node */
} BDChns;

typedef struct SDChns {
    struct SDChns *next; /* null at the last node */
} SDChns;

/* A closed parameter range. The ends are not kept in order. */
typedef struct Interval {
    double start;
    double end;
} Interval;

KORVANE_BEGIN_C

/* ---- Doubly linked chains -------------------------------------------------
 * Chain functions take and return any record that begins with BDChns links.
 * They never allocate; only mathFreBDChns releases nodes (each node must come
 * from a single-object new). */

/* Releases every node, following next. A null head does nothing. */
KORVANE_API void mathFreBDChns(void *head);
/* Puts the chain item in front of chain: the last node of item is linked to
 * the head of chain, whose prev is set to it. Returns item. A null item
 * returns chain, a null chain returns item; then nothing is touched. */
KORVANE_API void *mathInsBDChnsAtHead(void *item, void *chain);
/* Puts the chain item behind chain: the last node of chain is linked to item,
 * whose prev is set to it. Returns chain. Null arguments as above. So
 * mathInsBDChnsAtTail(b, a) builds the same chain as mathInsBDChnsAtHead(a, b). */
KORVANE_API void *mathInsBDChnsAtTail(void *item, void *chain);
/* Unlinks item and returns the (possibly new) head; the node is not released
 * and keeps its own links. Membership is not tested for a non-head item. */
KORVANE_API void *mathDelItemInBDChns(void *item, void *chain);
/* Pushes the single node item at the head and returns it (links reset). A
 * null item returns chain. */
KORVANE_API void *mathInsItemInBDChns(void *item, void *chain);
/* Number of nodes; 0 for a null head. */
KORVANE_API int mathGetNumOfItemInBDChns(void *head);
/* Reverses in place by swapping prev and next in every node; returns the old
 * last node, or null for a null head. */
KORVANE_API void *mathRevBDChns(void *head);

/* ---- Singly linked chains ------------------------------------------------- */

/* Releases every node. A null head does nothing. */
KORVANE_API void mathFreSDChns(void *head);
/* Links the last node of item to chain, returns item (null rules as for the
 * doubly linked form). */
KORVANE_API void *mathInsSDChnsAtHead(void *item, void *chain);
/* Links the last node of chain to item, returns chain. */
KORVANE_API void *mathInsSDChnsAtTail(void *item, void *chain);
/* Unlinks item by a walk from the head and returns the head; an item not in
 * the chain leaves it as it was. The node is not released. */
KORVANE_API void *mathDelItemInSDChns(void *item, void *chain);
/* Sets item's next to chain and returns item; a null item returns chain. */
KORVANE_API void *mathInsItemInSDChns(void *item, void *chain);
/* Number of nodes; 0 for a null head. */
KORVANE_API int mathGetNumOfItemInSDChns(void *head);

/* ---- Strings and nets -----------------------------------------------------
 * A string for size n holds n + 3 elements (indices up to n + 2 may be
 * written) of 1 to 5 doubles; it keeps no length. A net is a table of n + 3
 * row pointers of which rows 0..n are allocated, each a string of m + 3
 * elements; slots n + 1 and n + 2 are left uninitialised. */

/* Store the table through net at once (null if it could not be made), then
 * allocate rows 0..n, stopping at the first failure, which leaves its slot
 * null. Element widths: 1, 2, 3 or 4 doubles. */
KORVANE_API void NewNet1D(double ***net, int n, int m);
KORVANE_API void NewNet2D(double ***net, int n, int m);
KORVANE_API void NewNet3D(double ***net, int n, int m);
KORVANE_API void NewNet4D(double ***net, int n, int m);
/* Release rows 0..n up to the first null row, then the table, and store null
 * through net. Note the bound comes first here, unlike NewNet*. */
KORVANE_API void DelNet1D(int n, double ***net);
KORVANE_API void DelNet2D(int n, double ***net);
KORVANE_API void DelNet3D(int n, double ***net);
KORVANE_API void DelNet4D(int n, double ***net);
/* n + 3 elements of 1 to 5 doubles, or null when they cannot be allocated. */
KORVANE_API double *NewStr1D(int n);
KORVANE_API double *NewStr2D(int n);
KORVANE_API double *NewStr3D(int n);
KORVANE_API double *NewStr4D(int n);
KORVANE_API double *NewStr5D(int n);
/* a + b + 5 doubles for a knot vector, or null. */
KORVANE_API double *NewKntStr(int a, int b);
/* Release the block if *str is not null, and always store null in *str. */
KORVANE_API void DelStr1D(double **str);
KORVANE_API void DelStr2D(double **str);
KORVANE_API void DelStr3D(double **str);
KORVANE_API void DelStr4D(double **str);
KORVANE_API void DelStr5D(double **str);

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

/* ---- Ranges as pairs of doubles --------------------------------------------
 * A period below 1e-10 means "not periodic". */

/* 1 if a - tol < v < b + tol or b - tol < v < a + tol (strict): the ends may
 * stand in either order. */
KORVANE_API int mathChkValInt(double a, double b, double tol, double v);
/* 0 if b1 + tol < a0 or a1 + tol < b0, else 1. Each pair must be ascending. */
KORVANE_API int mathChkIntInt(double a0, double a1, double b0, double b1, double tol);
/* Intersects two ranges, ends in any order. With lo the larger lower end and
 * hi the smaller upper end: if lo - hi < tol, s = lo, e = hi and 1 (with a
 * positive tol a small gap counts, and then s > e); otherwise s and e both get
 * the mean of lo and hi and the result is 0. */
KORVANE_API int mathIntInt(double a0, double a1, double b0, double b1, double tol, double *s,
                           double *e);
/* Intersects two arcs in radians, starts within one turn. out holds up to two
 * (start, end) pairs, *n how many. An arc longer than a turn less tol yields
 * the other arc. Only b is unrolled past the turn. 1 if *n > 0. */
KORVANE_API int mathIntIntArc(double a0, double a1, double b0, double b1, double tol, int *n,
                              double *out);
/* Interval arithmetic: op 0 add, 1 subtract, 2 multiply, 3 divide. Division
 * needs b0 >= 1e-20 and gives (a0 / b1, a1 / b0) unordered. Returns 0 with the
 * outputs untouched for a refused division or an unknown op. */
KORVANE_API int mathIntAri(int op, double a0, double a1, double b0, double b1, double *s,
                           double *e);
/* Splits the range between a and b (any order) on the period [lo, hi] into
 * *k whole periods and a remainder in first (and, when it passes hi, in
 * second, from lo on); *n is the number of remainder pairs, 0 when the
 * remainder is shorter than 1e-10. Returns 0, writing nothing, when
 * hi - lo < 1e-10. */
KORVANE_API int mathDecPeriInt(double lo, double hi, double a, double b, int *k, int *n,
                               double *first, double *second);
/* 1 if v, shifted by whole periods, lies in [a - tol, b + tol]. A range
 * longer than the period less tol holds everything. */
KORVANE_API int mathIsInPeri(double a, double b, double period, double v, double tol);

/* ---- The Interval record ---------------------------------------------------- */

/* New record, or null. Only the first end is written, with b; the second end
 * is left uninitialised and a is not read. */
KORVANE_API Interval *intervalCreate(double a, double b);
/* Release a record made by a single-object new (Interval, Param, Patch,
 * PNode); null is fine. One function under four names; always 1. */
KORVANE_API int intervalFree(void *rec);
KORVANE_API int paramFree(void *rec);
KORVANE_API int patchFree(void *rec);
KORVANE_API int pnodeFree(void *rec);
/* |end - start|; 0.0 for null. */
KORVANE_API double intervalGetLen(const Interval *iv);
/* 1 if start - tol < v < end + tol, both strict. */
KORVANE_API int intervalIsIn(const Interval *iv, double v, double tol);
/* As mathIsInPeri on the record. */
KORVANE_API int intervalIsInPeri(const Interval *iv, double period, double v, double tol);
/* Membership modulo the period without the whole-turn shortcut; *out gets v,
 * and on success the representative of v in the interval. */
KORVANE_API int intervalIsInPeEx(const Interval *iv, double period, double v, double tol,
                                 double *out);
/* mathIntInt on two pairs; out (may be null) gets (lo, hi) on 1 and the mean
 * twice on 0. */
KORVANE_API int intervalInt(const double *a, const double *b, double tol, double *out);
/* Intersects two pairs modulo the period: up to two pairs in out1, out2 and
 * their number in *n; 1 if *n > 0. Only b and b plus one period are tried
 * against a (both first brought into the base period). */
KORVANE_API int intervalIntPeri(const double *a, const double *b, double period, double tol, int *n,
                                double *out1, double *out2);

KORVANE_END_C

#endif
