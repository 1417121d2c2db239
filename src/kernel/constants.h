// Constants of the double-precision family.
#ifndef KORVANE_KERNEL_CONSTANTS_H
#define KORVANE_KERNEL_CONSTANTS_H

namespace korvane {

constexpr double kPi = 3.141592653589793;
constexpr double kHalfPi = 1.5707963267948966;
constexpr double kTwoPi = 6.283185307179586;
constexpr double kInvTwoPi = 0.15915494309189535;

} // namespace korvane

#endif
