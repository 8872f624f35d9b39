#include <algorithm>
#include <cassert>
#include <string>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "support/platform/ConsoleStreams.h"
#include "support/text/Text.h"
#include "support/text/Utf8.h"

namespace kexa_3_3::internal
{

namespace
{

bool writeToConsole(HANDLE console, std::wstring_view text)
{
    // The round trip through UTF-8 replaces lone surrogates by U+FFFD.
    const std::wstring units = wideFromUtf8(utf8FromWide(text));
    std::wstring_view rest = units;
    while (!rest.empty())
    {
        // Older consoles fail for more than 64 KiB in one call.
        constexpr std::size_t most_units = 8192;
        std::size_t length = std::min(rest.size(), most_units);
        if (length < rest.size() && isHighSurrogate(rest[length - 1]))
        {
            --length;
        }
        assert(length > 0);
        DWORD written = 0;
        if (::WriteConsoleW(console, rest.data(), static_cast<DWORD>(length), &written, nullptr) ==
                FALSE ||
            written == 0)
        {
            return false;
        }
        rest.remove_prefix(std::min<std::size_t>(written, rest.size()));
    }
    return true;
}

bool writeToFile(HANDLE file, std::wstring_view text)
{
    const std::string bytes = utf8FromWide(text);
    std::string_view rest = bytes;
    while (!rest.empty())
    {
        constexpr std::size_t most_bytes = std::size_t{1} << 30;
        const auto length = static_cast<DWORD>(std::min(rest.size(), most_bytes));
        DWORD written = 0;
        // A full non-blocking pipe returns success, with no bytes written.
        if (::WriteFile(file, rest.data(), length, &written, nullptr) == FALSE || written == 0)
        {
            return false;
        }
        rest.remove_prefix(std::min<std::size_t>(written, rest.size()));
    }
    return true;
}

} // namespace

bool writeConsole(ConsoleTarget target, std::wstring_view text)
{
    // Not cached: the host may redirect its streams between two writes.
    const HANDLE handle =
        ::GetStdHandle(target == ConsoleTarget::output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
    if (handle == nullptr || handle == INVALID_HANDLE_VALUE)
    {
        return false; // the process has no such stream, as in a program without a console
    }
    DWORD mode = 0;
    return ::GetConsoleMode(handle, &mode) != FALSE ? writeToConsole(handle, text)
                                                    : writeToFile(handle, text);
}

} // namespace kexa_3_3::internal
