/// @file
/// Marks the entry points of the shared library.
#ifndef KEXA_EXPORT_H
#define KEXA_EXPORT_H

/// @def KEXA_API
/// Stands before every entry point. KEXA_BUILDING is defined only while the library itself is
/// compiled, KEXA_STATIC only where its objects are linked straight into a program.
#if defined(KEXA_STATIC)
#define KEXA_API
#elif defined(_WIN32)
#if defined(KEXA_BUILDING)
#define KEXA_API __declspec(dllexport)
#else
#define KEXA_API __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define KEXA_API __attribute__((visibility("default")))
#else
#define KEXA_API
#endif

#endif
