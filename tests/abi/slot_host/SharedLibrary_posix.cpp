#include <stdexcept>

#include <dlfcn.h>

#include "SharedLibrary.h"

void* loadLibrary(const std::string& path)
{
    void* const library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr)
    {
        throw std::runtime_error(::dlerror());
    }
    return library;
}

void* findSymbol(void* library, const char* name)
{
    void* const symbol = ::dlsym(library, name);
    if (symbol == nullptr)
    {
        throw std::runtime_error(::dlerror());
    }
    return symbol;
}
