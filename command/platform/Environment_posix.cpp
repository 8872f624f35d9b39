#include "Environment.h"

#include <cstdlib>

#include "../Inline.h"

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
    const char* const value = std::getenv(std::string(name).c_str());
    return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

} // namespace detail
} // namespace v1
} // namespace kexa
