#include "Environment.h"

#include "../Inline.h"
#include "../text/Encoding.h"
#include "Windows.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_INLINE std::optional<std::string> environmentVariable(std::string_view name)
{
    using namespace std::string_view_literals;
    if (name.empty() || name.find_first_of("=\0"sv) != std::string_view::npos)
    {
        return std::nullopt;
    }
    const std::wstring wideName = widen(name);
    std::wstring value(255, L'\0');
    for (;;)
    {
        ::SetLastError(ERROR_SUCCESS); // only the error distinguishes an empty value from none
        const DWORD length = ::GetEnvironmentVariableW(wideName.c_str(), value.data(),
                                                       static_cast<DWORD>(value.size() + 1));
        if (length == 0 && ::GetLastError() != ERROR_SUCCESS)
        {
            return std::nullopt;
        }
        const bool fits = length <= value.size();
        value.resize(fits ? length : length - 1); // one that does not fit has its end counted
        if (fits)
        {
            return narrow(value);
        }
    }
}

} // namespace detail
} // namespace v1
} // namespace kexa
