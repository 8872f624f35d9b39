// A source of arguments with the shortest lifetime of texts that the contract allows.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "recognition/ArgumentQueue.h"

namespace unit
{

// Overwrites and frees a text as soon as the contract allows, so that a late read returns another
// text or is reported by the address sanitizer.
class GivenArguments final : public kexa_3_3::ArgumentSource
{
public:
    explicit GivenArguments(std::vector<std::wstring> texts) : m_texts(std::move(texts)) {}

    [[nodiscard]] bool next(std::wstring_view& argument) override
    {
        std::unique_ptr<std::wstring>& place = m_given[m_calls++ % 2];
        if (place != nullptr)
        {
            place->assign(place->size(), L'?');
            place.reset();
        }
        if (m_next == m_texts.size())
        {
            return false;
        }
        place = std::make_unique<std::wstring>(m_texts[m_next++]);
        argument = *place;
        return true;
    }

    // The number of arguments returned so far.
    [[nodiscard]] std::size_t given() const noexcept { return m_next; }

private:
    std::vector<std::wstring> m_texts;
    std::size_t m_next = 0;
    std::size_t m_calls = 0;
    std::array<std::unique_ptr<std::wstring>, 2> m_given; // the last two
};

// Removes and returns all arguments.
inline std::vector<std::wstring> takeAll(kexa_3_3::ArgumentQueue& queue)
{
    std::vector<std::wstring> texts;
    for (; !queue.empty(); queue.removeFront())
    {
        texts.emplace_back(queue.front());
    }
    return texts;
}

} // namespace unit
