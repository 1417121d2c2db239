// The five process-wide tolerances of the value classes.
#include <korvane/classes.h>

#include "classes/class_ops.h"

namespace korvane {

double gDistTol = 0.002;
double gParaTol = 0.0001;
double gAbsDistTol = 1e-06;
double gAbsParaTol = 1e-06;
double gAbsZero = 1e-10;

} // namespace korvane

double gmGetDistTol() {
    return korvane::gDistTol;
}
void gmSetDistTol(double tol) {
    korvane::gDistTol = tol;
}
double gmGetParaTol() {
    return korvane::gParaTol;
}
void gmSetParaTol(double tol) {
    korvane::gParaTol = tol;
}
double gmGetAbsDistTol() {
    return korvane::gAbsDistTol;
}
void gmSetAbsDistTol(double tol) {
    korvane::gAbsDistTol = tol;
}
double gmGetAbsParaTol() {
    return korvane::gAbsParaTol;
}
void gmSetAbsParaTol(double tol) {
    korvane::gAbsParaTol = tol;
}
double gmGetAbsZero() {
    return korvane::gAbsZero;
}
void gmSetAbsZero(double tol) {
    korvane::gAbsZero = tol;
}
