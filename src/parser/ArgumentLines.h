// Texts with one argument in each line.
//
// Leading white space (of the classic locale) is skipped, trailing carriage returns are dropped,
// other trailing blanks stay. Blank lines and lines that begin with ';' or '#' hold no argument.
// There is no quoting.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "recognition/ArgumentQueue.h"

namespace kexa_3_3
{

// The arguments are views into the text.
class WideLines final : public ArgumentSource
{
public:
    explicit WideLines(std::wstring_view text) noexcept : m_rest(text) {}
    [[nodiscard]] bool next(std::wstring_view& argument) override;

private:
    std::wstring_view m_rest;
};

// Decodes one line at a time, since the whole text in wide characters may be four times as long.
// Each ill-formed part becomes U+FFFD.
class Utf8Lines final : public ArgumentSource
{
public:
    // text: outlives this. Precondition: it has no byte order mark.
    explicit Utf8Lines(std::string_view text) noexcept : m_rest(text) {}
    [[nodiscard]] bool next(std::wstring_view& argument) override;

private:
    std::string_view m_rest;
    std::array<std::wstring, 2> m_decoded; // the last two arguments, which must stay valid
    std::size_t m_latest = 0;              // which of them is the last
};

} // namespace kexa_3_3
