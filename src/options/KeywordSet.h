// The keywords of one option.
#pragma once

#include <memory_resource>
#include <set>
#include <string_view>

namespace kexa_3_3
{

class Garbage;

// In the order of wide strings, each once. They and all that finds them lie in the memory of a
// pool of texts, which lives longer, so there is nothing to destroy. Few options have keywords: the
// others pay for a pointer.
class KeywordSet
{
    using Set = std::pmr::set<std::wstring_view>;

public:
    KeywordSet() noexcept = default;
    ~KeywordSet() = default;
    KeywordSet(const KeywordSet& other);
    KeywordSet& operator=(const KeywordSet&) = delete;

    // Adds the pieces of a list. Throws std::bad_alloc, changing nothing.
    void add(std::wstring_view list, Garbage& pool);

    [[nodiscard]] bool empty() const noexcept { return m_set == nullptr; }
    [[nodiscard]] bool contains(std::wstring_view keyword) const;
    [[nodiscard]] Set::const_iterator begin() const noexcept
    {
        return m_set == nullptr ? Set::const_iterator() : m_set->begin();
    }
    [[nodiscard]] Set::const_iterator end() const noexcept
    {
        return m_set == nullptr ? Set::const_iterator() : m_set->end();
    }

private:
    Set* m_set = nullptr; // null or not empty
};

// Whether two options have a keyword in common.
[[nodiscard]] bool shareKeyword(const KeywordSet& left, const KeywordSet& right);

} // namespace kexa_3_3
