#include "Inline.h"
#include "Scan.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_INLINE void Scan::readOptionFiles() {}

} // namespace detail
} // namespace v1
} // namespace kexa
