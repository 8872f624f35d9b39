// Loads a shared library at run time.
#ifndef KEXA_TESTS_ABI_SHARED_LIBRARY_H
#define KEXA_TESTS_ABI_SHARED_LIBRARY_H

#include <string>

// Both throw std::runtime_error with the system's reason. A library is never unloaded.
void* loadLibrary(const std::string& path);
void* findSymbol(void* library, const char* name);

#endif
