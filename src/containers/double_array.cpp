// Sorting, thinning, extremes and reversal of bare double arrays; they order
// and thin the root lists of the equation solvers.
#include <korvane/containers.h>

void mathSortDblArray(int n, double *a) {
    // An exchange selection sort: the lists it serves hold a dozen values.
    for (int i = 0; i < n - 1; ++i) {
        for (int j = i + 1; j < n; ++j) {
            if (a[i] > a[j]) {
                const double t = a[i];
                a[i] = a[j];
                a[j] = t;
            }
        }
    }
}

int mathFilterDblArray(int n, double *a, double tol) {
    const double marker = 1e100;
    if (n < 2)
        return 1;
    // Each value is compared with the last one kept, not with its neighbour.
    int last = 0;
    for (int i = 1; i < n; ++i) {
        if (a[i] - a[last] < tol)
            a[i] = marker;
        else
            last = i;
    }
    int count = 1;
    for (int i = 1; i < n; ++i) {
        if (a[i] < 9.999999999e99)
            a[count++] = a[i];
    }
    return count;
}

int mathGetDblArrayMaxVal(int n, const double *a, double *max) {
    int k = 0;
    double m = a[0];
    for (int i = 1; i < n; ++i) {
        if (a[i] > m) {
            m = a[i];
            k = i;
        }
    }
    *max = m;
    return k;
}

int mathGetDblArrayMinVal(int n, const double *a, double *min) {
    int k = 0;
    double m = a[0];
    for (int i = 1; i < n; ++i) {
        if (a[i] < m) {
            m = a[i];
            k = i;
        }
    }
    *min = m;
    return k;
}

int mathGetDblArrayMinMax(int n, const double *a, double *min, double *max) {
    if (min)
        mathGetDblArrayMinVal(n, a, min);
    if (max)
        mathGetDblArrayMaxVal(n, a, max);
    return 1;
}

void mathRevDblArray(int n, double *a) {
    for (int i = 0, j = n - 1; i < j; ++i, --j) {
        const double t = a[i];
        a[i] = a[j];
        a[j] = t;
    }
}
