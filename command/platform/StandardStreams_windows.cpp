#include "StandardStreams.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "../Inline.h"
#include "../text/Encoding.h"
#include "Windows.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_LOCAL bool isHighSurrogateUnit(wchar_t unit) noexcept
{
    return (unit & 0xFC00) == 0xD800;
}

KEXA_COMMAND_LOCAL bool writeToConsole(HANDLE console, std::string_view text)
{
    const std::wstring wide = widen(text);
    std::wstring_view rest = wide;
    while (!rest.empty())
    {
        // Old consoles refuse more than 64 KiB at once.
        constexpr std::size_t most_units = 8192;
        std::size_t length = std::min(rest.size(), most_units);
        if (length < rest.size() && isHighSurrogateUnit(rest[length - 1]))
        {
            --length;
        }
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

KEXA_COMMAND_LOCAL bool writeToFile(HANDLE file, std::string_view text) noexcept
{
    while (!text.empty())
    {
        constexpr std::size_t most_bytes = std::size_t{1} << 30;
        DWORD written = 0;
        // A pipe that does not wait says that it took nothing.
        if (::WriteFile(file, text.data(), static_cast<DWORD>(std::min(text.size(), most_bytes)),
                        &written, nullptr) == FALSE ||
            written == 0)
        {
            return false;
        }
        text.remove_prefix(std::min<std::size_t>(written, text.size()));
    }
    return true;
}

KEXA_COMMAND_INLINE bool writeText(StandardStream stream, std::string_view text)
{
    const bool toOutput = stream == StandardStream::output;
    std::fflush(toOutput ? stdout : stderr);
    if (text.empty())
    {
        return true;
    }
    const HANDLE handle = ::GetStdHandle(toOutput ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
    if (handle == nullptr || handle == INVALID_HANDLE_VALUE)
    {
        return false; // a program without a console
    }
    DWORD mode = 0;
    return ::GetConsoleMode(handle, &mode) != FALSE ? writeToConsole(handle, text)
                                                    : writeToFile(handle, text);
}

} // namespace detail
} // namespace v1
} // namespace kexa
