// Asking for memory ahead of its use.
#pragma once

#if defined(__x86_64__) || defined(_M_X64)
#include <xmmintrin.h>
#endif

namespace kexa_3_3
{

// Lets the processor fetch what lies at the address while the program goes on. The address need not
// be one that may be read. Does nothing where it is not known how.
inline void prefetch([[maybe_unused]] const void* address) noexcept
{
#if defined(__x86_64__) || defined(_M_X64)
    _mm_prefetch(static_cast<const char*>(address), _MM_HINT_T0);
#endif
}

} // namespace kexa_3_3
