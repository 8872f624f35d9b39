#include "ProcessArguments.h"

#include <cstddef>
#include <string_view>
#include <utility>

#include "../Inline.h"
#include "../text/WindowsCommandLine.h"
#include "Windows.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// Whether a narrow text is what the code page of the system makes of a wide one.
KEXA_COMMAND_LOCAL bool isCodePageForm(const char* bytes, const std::wstring& text)
{
    if (bytes == nullptr)
    {
        return false;
    }
    const std::string_view expected(bytes);
    if (text.empty() || expected.empty())
    {
        return text.empty() && expected.empty();
    }
    // One byte more than is needed tells a form that is longer.
    std::string form(expected.size() + 1, '\0');
    const int length =
        ::WideCharToMultiByte(CP_ACP, 0, text.data(), static_cast<int>(text.size()), form.data(),
                              static_cast<int>(form.size()), nullptr, nullptr);
    return length > 0 &&
           std::string_view(form.data(), static_cast<std::size_t>(length)) == expected;
}

KEXA_COMMAND_INLINE std::optional<std::vector<std::wstring>>
rereadArguments(int argc, const char* const* argv)
{
    if (argc < 2)
    {
        return std::nullopt;
    }
    const auto count = static_cast<std::size_t>(argc) - 1;
    // The runtime that split the line for main may be an old or a new one.
    for (const PairOfQuotes rule : {PairOfQuotes::stays_quoted, PairOfQuotes::ends_quoted})
    {
        std::vector<std::wstring> line = splitWindowsCommandLine(::GetCommandLineW(), rule);
        if (line.size() <= count)
        {
            continue;
        }
        const std::size_t first = line.size() - count;
        std::size_t equal = 0;
        while (equal < count && isCodePageForm(argv[equal + 1], line[first + equal]))
        {
            ++equal;
        }
        if (equal == count)
        {
            line.erase(line.begin(), line.begin() + static_cast<std::ptrdiff_t>(first));
            return line;
        }
    }
    return std::nullopt;
}

} // namespace detail
} // namespace v1
} // namespace kexa
