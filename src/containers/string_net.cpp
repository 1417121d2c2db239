// Strings (one flat heap block of n + 3 elements) and nets (a table of row
// pointers over such rows). They are offered to hosts; the library itself does
// not use them.
#include <korvane/containers.h>

#include <cstddef>
#include <new>

namespace {

// One array allocation of count doubles; a failed or impossible allocation
// (negative count) gives null instead of an exception.
double *newDoubles(long long count) {
    if (count < 0)
        return nullptr;
    return new (std::nothrow) double[static_cast<std::size_t>(count)];
}

double *newString(int n, int width) {
    return newDoubles((static_cast<long long>(n) + 3) * width);
}

void newNet(double ***net, int n, int m, int width) {
    const long long slots = static_cast<long long>(n) + 3;
    double **table =
        slots < 0 ? nullptr : new (std::nothrow) double *[static_cast<std::size_t>(slots)];
    *net = table;
    if (!table)
        return;
    // Rows 0..n; the first failure leaves its null in the slot and ends the
    // loop, which is where the release stops reading.
    for (int i = 0; i <= n; ++i) {
        table[i] = newString(m, width);
        if (!table[i])
            break;
    }
}

void delNet(int n, double ***net) {
    double **table = *net;
    if (table) {
        for (int i = 0; i <= n; ++i) {
            if (!table[i])
                break;
            delete[] table[i];
        }
        delete[] table;
    }
    *net = nullptr;
}

void delString(double **str) {
    if (*str)
        delete[] * str;
    *str = nullptr;
}

} // namespace

void NewNet1D(double ***net, int n, int m) {
    newNet(net, n, m, 1);
}
void NewNet2D(double ***net, int n, int m) {
    newNet(net, n, m, 2);
}
void NewNet3D(double ***net, int n, int m) {
    newNet(net, n, m, 3);
}
void NewNet4D(double ***net, int n, int m) {
    newNet(net, n, m, 4);
}

void DelNet1D(int n, double ***net) {
    delNet(n, net);
}
void DelNet2D(int n, double ***net) {
    delNet(n, net);
}
void DelNet3D(int n, double ***net) {
    delNet(n, net);
}
void DelNet4D(int n, double ***net) {
    delNet(n, net);
}

double *NewStr1D(int n) {
    return newString(n, 1);
}
double *NewStr2D(int n) {
    return newString(n, 2);
}
double *NewStr3D(int n) {
    return newString(n, 3);
}
double *NewStr4D(int n) {
    return newString(n, 4);
}
double *NewStr5D(int n) {
    return newString(n, 5);
}

double *NewKntStr(int a, int b) {
    return newDoubles(static_cast<long long>(a) + b + 5);
}

void DelStr1D(double **str) {
    delString(str);
}
void DelStr2D(double **str) {
    delString(str);
}
void DelStr3D(double **str) {
    delString(str);
}
void DelStr4D(double **str) {
    delString(str);
}
void DelStr5D(double **str) {
    delString(str);
}
