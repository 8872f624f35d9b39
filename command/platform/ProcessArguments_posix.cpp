#include "ProcessArguments.h"

#include "../Inline.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_INLINE std::optional<std::vector<std::wstring>>
rereadArguments(int /*argc*/, const char* const* /*argv*/)
{
    return std::nullopt;
}

} // namespace detail
} // namespace v1
} // namespace kexa
