// Korvane expression calculator. C++ only.
#ifndef KORVANE_CALCULATOR_H
#define KORVANE_CALCULATOR_H

#ifndef __cplusplus
#error "korvane/calculator.h is a C++ header"
#endif

#include <korvane/export.h>

#endif
