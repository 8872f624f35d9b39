// Small operations on wide texts.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>

namespace kexa_3_3
{

// Returns a view of a null-terminated string; null counts as an empty one. What the view refers to
// is null-terminated in any case.
[[nodiscard]] inline std::wstring_view viewOf(const wchar_t* text)
{
    using namespace std::string_view_literals;
    return text == nullptr ? L""sv : std::wstring_view(text);
}

[[nodiscard]] inline std::wstring_view viewOf(const std::wstring& text) noexcept
{
    return text;
}

// Returns the pieces joined to one text.
[[nodiscard]] inline std::wstring concatenate(std::initializer_list<std::wstring_view> pieces)
{
    std::size_t length = 0;
    for (const std::wstring_view piece : pieces)
    {
        length += piece.size();
    }
    std::wstring text;
    text.reserve(length);
    for (const std::wstring_view piece : pieces)
    {
        text.append(piece);
    }
    return text;
}

// Calls `use` with every maximal run of characters other than the separator; empty pieces are never
// produced.
template <class Use>
void forEachPiece(std::wstring_view text, wchar_t separator, Use use)
{
    std::size_t position = 0;
    while (position < text.size())
    {
        const std::size_t found = text.find(separator, position);
        const std::size_t end = found == std::wstring_view::npos ? text.size() : found;
        if (end > position)
        {
            use(std::wstring_view(text.data() + position, end - position));
        }
        position = end + 1;
    }
}

// Returns whether a text contains the character. For texts that are mostly short: there, calling
// the C library's search would take longer than the search.
[[nodiscard]] inline bool containsCharacter(std::wstring_view text, wchar_t character) noexcept
{
    constexpr std::size_t short_text = 16;
    if (text.size() > short_text)
    {
        return text.find(character) != std::wstring_view::npos;
    }
    // Not std::any_of or a find, which are unrolled for long texts.
    return std::ranges::any_of(text, [character](wchar_t other) { return other == character; });
}

// White space of the classic locale: six characters on every system, since the C runtimes disagree
// on which other wide characters are blank.
[[nodiscard]] constexpr bool isClassicSpace(wchar_t character) noexcept
{
    return character == L' ' || (character >= L'\t' && character <= L'\r');
}

// UTF-16 surrogates; where a wide character has 32 bits they stand for no character at all.
[[nodiscard]] constexpr bool isHighSurrogate(wchar_t character) noexcept
{
    return character >= 0xD800 && character <= 0xDBFF;
}
[[nodiscard]] constexpr bool isLowSurrogate(wchar_t character) noexcept
{
    return character >= 0xDC00 && character <= 0xDFFF;
}

// Whether text is stored as UTF-16, so that one character may take two units.
inline constexpr bool wide_is_utf16 = sizeof(wchar_t) == 2;

} // namespace kexa_3_3
