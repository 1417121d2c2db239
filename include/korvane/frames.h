/* Korvane: Reference frames, gravity frames and double-precision boxes. */
#ifndef KORVANE_FRAMES_H
#define KORVANE_FRAMES_H

#include <korvane/kernel.h>

KORVANE_BEGIN_C

KORVANE_END_C

#endif
