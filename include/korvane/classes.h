// Korvane value classes: single-precision tolerances, points, boxes,
// transformations, matrix functions and picking. C++ only.
#ifndef KORVANE_CLASSES_H
#define KORVANE_CLASSES_H

#ifndef __cplusplus
#error "korvane/classes.h is a C++ header"
#endif

#include <korvane/export.h>

#endif
