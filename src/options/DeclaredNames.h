// The names of a declaration.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "support/text/HashedText.h"

namespace kexa_3_3
{

// The pieces of a text between its commas. An option has one to three names, of which the third is
// a short form of one or two characters.
class DeclaredNames
{
public:
    static constexpr std::size_t most = 3;

    // text: null-terminated; outlives this.
    explicit DeclaredNames(const wchar_t* text) noexcept
    {
        const wchar_t* begin = text;
        TextHash hash;
        for (const wchar_t* next = text;; ++next)
        {
            if (*next != L',' && *next != L'\0')
            {
                hash.add(*next);
                continue;
            }
            add({begin, static_cast<std::size_t>(next - begin)}, hash);
            if (*next == L'\0')
            {
                break;
            }
            begin = next + 1;
            hash = TextHash();
        }
    }

    // Whether an option may have these names.
    [[nodiscard]] bool areAcceptable() const noexcept
    {
        constexpr std::size_t longest_short_form = 2;
        return m_count >= 1 && m_count <= most &&
               (m_count < most || m_names.back().text().size() <= longest_short_form);
    }

    // Precondition of the following: areAcceptable().
    [[nodiscard]] std::size_t size() const noexcept { return m_count; }
    [[nodiscard]] const HashedText* begin() const noexcept { return m_names.data(); }
    [[nodiscard]] const HashedText* end() const noexcept { return m_names.data() + m_count; }

private:
    void add(std::wstring_view name, const TextHash& hash) noexcept
    {
        if (name.empty())
        {
            return;
        }
        if (m_count < most)
        {
            m_names[m_count] = HashedText(name, hash);
        }
        ++m_count;
    }

    std::array<HashedText, most> m_names;
    std::size_t m_count = 0; // of all pieces, even if there are too many
};

} // namespace kexa_3_3
