#include "options/KeywordSet.h"

#include <new>

#include "support/Garbage.h"
#include "support/Text.h"

namespace kexa_3_3
{

KeywordSet::KeywordSet(const KeywordSet& other)
{
    if (other.m_set != nullptr)
    {
        std::pmr::memory_resource* const memory = other.m_set->get_allocator().resource();
        m_set = new (memory->allocate(sizeof(Set), alignof(Set))) Set(*other.m_set, memory);
    }
}

void KeywordSet::add(std::wstring_view list, Garbage& pool)
{
    // Collected first: the set has all the new keywords or, where memory runs out, none of them.
    Set added(&pool.memory());
    forEachPiece(list, L',',
                 [this, &added, &pool](std::wstring_view piece)
                 {
                     if (!contains(piece) && added.find(piece) == added.end())
                     {
                         added.insert(pool.keep(piece));
                     }
                 });
    if (added.empty())
    {
        return;
    }
    if (m_set == nullptr)
    {
        m_set = new (pool.memory().take(sizeof(Set), alignof(Set))) Set(&pool.memory());
    }
    m_set->merge(added);
}

bool KeywordSet::contains(std::wstring_view keyword) const
{
    return m_set != nullptr && m_set->find(keyword) != m_set->end();
}

bool shareKeyword(const KeywordSet& left, const KeywordSet& right)
{
    auto first = left.begin();
    auto second = right.begin();
    while (first != left.end() && second != right.end())
    {
        const int order = first->compare(*second);
        if (order == 0)
        {
            return true;
        }
        order < 0 ? ++first : ++second;
    }
    return false;
}

} // namespace kexa_3_3
