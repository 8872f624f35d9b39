#include <algorithm>
#include <stdexcept>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "SharedLibrary.h"

void* loadLibrary(const std::string& path)
{
    std::string name = path;
    std::replace(name.begin(), name.end(), '/', '\\');
    const HMODULE library = ::LoadLibraryA(name.c_str());
    if (library == nullptr)
    {
        throw std::runtime_error(name + ": error " + std::to_string(::GetLastError()));
    }
    return library;
}

void* findSymbol(void* library, const char* name)
{
    const FARPROC symbol = ::GetProcAddress(static_cast<HMODULE>(library), name);
    if (symbol == nullptr)
    {
        throw std::runtime_error(std::string(name) + ": error " + std::to_string(::GetLastError()));
    }
    return reinterpret_cast<void*>(symbol);
}
