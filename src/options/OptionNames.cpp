#include "options/OptionNames.h"

#include <algorithm>

namespace kexa_3_3
{

// The names before are left where they are, for who refers to them.
void OptionNames::grow(Arena& arena)
{
    const std::size_t room = std::max<std::size_t>(std::size_t{2} * m_size, 4);
    void* const memory = arena.take(room * sizeof(HashedText), alignof(HashedText));
    HashedText* const names = static_cast<HashedText*>(memory);
    std::uninitialized_copy_n(m_first, m_size, names);
    m_first = names;
    m_spare = static_cast<std::uint32_t>(room - m_size);
}

} // namespace kexa_3_3
