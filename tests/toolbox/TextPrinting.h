// Wide texts as UTF-8, to compare with bytes and to print the row of a table that fails. Includes
// GoogleTest.
#ifndef KEXA_TESTS_TOOLBOX_TEXT_PRINTING_H
#define KEXA_TESTS_TOOLBOX_TEXT_PRINTING_H

#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace toolbox
{

// Converts UTF-16 or UTF-32, by the width of wchar_t, to UTF-8. A lone surrogate or a value above
// U+10FFFF becomes U+FFFD.
std::string toUtf8(std::wstring_view text);

} // namespace toolbox

#endif
