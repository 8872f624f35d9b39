// Wide texts as UTF-8: for comparing with bytes, and for reading a failed comparison.
#ifndef KEXA_TESTS_INTERFACE_TEXT_PRINTING_H
#define KEXA_TESTS_INTERFACE_TEXT_PRINTING_H

#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace toolbox
{

// UTF-16 or UTF-32, as wide as wchar_t is here, to UTF-8. A lone surrogate or a value beyond
// Unicode becomes U+FFFD.
std::string toUtf8(std::wstring_view text);

} // namespace toolbox

// GoogleTest shows what is not ASCII as numbers; a test about dashes and emoji is easier to read
// with the characters themselves.
template <>
class testing::internal::UniversalPrinter<std::wstring>
{
public:
    static void Print(const std::wstring& text, std::ostream* out)
    {
        *out << 'L' << '"' << toolbox::toUtf8(text) << '"';
    }
};

#endif
