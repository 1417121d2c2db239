/* The one export macro of Korvane: it marks the interface; everything else in
 * the shared library is hidden. */
#ifndef KORVANE_EXPORT_H
#define KORVANE_EXPORT_H

#if defined(KORVANE_STATIC_DEFINE)
#define KORVANE_API
#elif defined(_WIN32)
#if defined(KORVANE_BUILDING)
#define KORVANE_API __declspec(dllexport)
#else
#define KORVANE_API __declspec(dllimport)
#endif
#else
#define KORVANE_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
#define KORVANE_BEGIN_C extern "C" {
#define KORVANE_END_C }
#else
#define KORVANE_BEGIN_C
#define KORVANE_END_C
#endif

#endif
