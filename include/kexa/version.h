/// @file
/// The version of the headers, and so of the interface that a host compiles against.
#ifndef KEXA_VERSION_H
#define KEXA_VERSION_H

/// Changes with the namespace, when the binary interface does.
#define KEXA_VERSION_MAJOR 3
/// Changes with the namespace, when the binary interface does.
#define KEXA_VERSION_MINOR 3
/// Changes when only behaviour does.
#define KEXA_VERSION_PATCH 0
/// The three numbers as a narrow text.
#define KEXA_VERSION_STRING "3.3.0"

#endif
