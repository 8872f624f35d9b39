// The version of the headers, and so of the interface that a host compiles against.
#ifndef KEXA_VERSION_H
#define KEXA_VERSION_H

#define KEXA_VERSION_MAJOR 3
#define KEXA_VERSION_MINOR 3
#define KEXA_VERSION_PATCH 0
#define KEXA_VERSION_STRING "3.3.0"

#endif
