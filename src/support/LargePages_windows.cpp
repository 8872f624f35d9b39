#include "support/LargePages.h"

namespace kexa_3_3
{

// Windows gives large pages to those only who hold a privilege for it.
void preferLargePages(void* /*memory*/, std::size_t /*size*/) noexcept {}

} // namespace kexa_3_3
