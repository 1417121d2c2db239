// Internal helpers of the value classes: the tolerance globals and the
// single-precision circle constants. Not exported.
#ifndef KORVANE_SRC_CLASSES_CLASS_OPS_H
#define KORVANE_SRC_CLASSES_CLASS_OPS_H

namespace korvane {

// The five process-wide tolerances behind the gm getters and setters.
extern double gDistTol;
extern double gParaTol;
extern double gAbsDistTol;
extern double gAbsParaTol;
extern double gAbsZero;

// pi, pi/2 and 2 pi as they round to float, held as doubles: the angle
// functions of this layer wrap and snap with these, not with the true values.
constexpr double kPiF = 3.1415927410125732;
constexpr double kHalfPiF = 1.5707963705062866;
constexpr double kTwoPiF = 6.2831854820251465;

// The rotation by a about the x (0), y (1) or z (2) axis as a 4 by 4 matrix:
// sine above the diagonal for x and z, below it for y.
void axisRotation(int axis, double a, float *m);

// Row vector (x, y, 1) times a 3 by 3 matrix; the third column is not read.
inline void rowTimes3(double x, double y, const float *m, double &ox, double &oy) {
    ox = x * m[0] + y * m[3] + m[6];
    oy = x * m[1] + y * m[4] + m[7];
}

// Row vector (x, y, z, 1) times a 4 by 4 matrix of floats or doubles; the
// fourth column is not read.
template <class T>
inline void rowTimes4(double x, double y, double z, const T *m, double &ox, double &oy,
                      double &oz) {
    ox = x * m[0] + y * m[4] + z * m[8] + m[12];
    oy = x * m[1] + y * m[5] + z * m[9] + m[13];
    oz = x * m[2] + y * m[6] + z * m[10] + m[14];
}

} // namespace korvane

#endif
