// The names of a declaration.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "support/text/HashedText.h"
#include "support/text/Text.h"

namespace kexa_3_3
{

// The pieces of a text between its commas. An option has one to three names, of which the third is
// a short form of one or two characters.
class DeclaredNames
{
public:
    static constexpr std::size_t most = 3;

    // text: outlives this.
    explicit DeclaredNames(std::wstring_view text) noexcept
    {
        forEachPiece(text, L',',
                     [this](std::wstring_view piece)
                     {
                         if (m_count < most)
                         {
                             m_names[m_count] = HashedText(piece);
                         }
                         ++m_count;
                     });
    }

    // Whether an option may have so many names.
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
    std::array<HashedText, most> m_names;
    std::size_t m_count = 0; // of all pieces, also where there are too many
};

} // namespace kexa_3_3
