/* Korvane: the whole interface. The C++ value classes and the calculator are
 * included only when compiled as C++. */
#ifndef KORVANE_KORVANE_H
#define KORVANE_KORVANE_H

#include <korvane/containers.h>
#include <korvane/curves.h>
#include <korvane/frames.h>
#include <korvane/geometry.h>
#include <korvane/kernel.h>
#include <korvane/mesh.h>
#include <korvane/numeric.h>

#ifdef __cplusplus
#include <korvane/calculator.h>
#include <korvane/classes.h>
#endif

#endif
