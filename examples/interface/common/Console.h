// Writes text to standard output and standard error as UTF-8 in every locale, and as UTF-16 to a
// Windows console. Text is flushed immediately, so that it keeps its order with messages of the
// library.
#ifndef KEXA_EXAMPLES_CONSOLE_H
#define KEXA_EXAMPLES_CONSOLE_H

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>

#include "common/Text.h"

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#endif

namespace example
{

#ifdef _WIN32
// Returns false, without writing, if the stream is not a console.
inline bool writeToConsole(std::FILE* stream, std::wstring_view text)
{
    constexpr std::size_t most = 8192; // characters in one call; consoles refuse very long texts
    const HANDLE console = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
    DWORD mode = 0;
    if (!GetConsoleMode(console, &mode))
    {
        return false;
    }
    while (!text.empty())
    {
        DWORD written = 0;
        const auto count = static_cast<DWORD>(std::min(text.size(), most));
        if (!WriteConsoleW(console, text.data(), count, &written, nullptr) || written == 0)
        {
            break;
        }
        text.remove_prefix(written);
    }
    return true;
}
#endif

inline void write(std::FILE* stream, std::string_view bytes)
{
#ifdef _WIN32
    if (writeToConsole(stream, toWide(bytes)))
    {
        return;
    }
#endif
    std::fwrite(bytes.data(), 1, bytes.size(), stream);
    std::fflush(stream);
}

inline void write(std::FILE* stream, std::wstring_view text)
{
    write(stream, toBytes(text));
}

inline void print(std::wstring_view text)
{
    write(stdout, text);
}

inline void printError(std::wstring_view text)
{
    write(stderr, text);
}

// Line feeds are not converted to CR LF on Windows.
inline void useBinaryStreams()
{
#ifdef _WIN32
    std::fflush(stdout);
    std::fflush(stderr);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
#endif
}

} // namespace example

#endif
