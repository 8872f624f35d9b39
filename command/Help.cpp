#include "Definition.h"
#include "Inline.h"
#include "State.h"
namespace kexa
{
inline namespace v1
{
namespace detail
{
KEXA_COMMAND_INLINE std::string Core::help(std::string_view, std::size_t)
{
    m_state->prepare();
    return m_definition->summary;
}
} // namespace detail
} // namespace v1
} // namespace kexa
