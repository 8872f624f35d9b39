// Wide texts as UTF-8: for comparing with bytes, and for showing the row of a table that failed.
// GoogleTest comes with it.
#ifndef KEXA_TESTS_TOOLBOX_TEXT_PRINTING_H
#define KEXA_TESTS_TOOLBOX_TEXT_PRINTING_H

#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace toolbox
{

// UTF-16 or UTF-32, as wide as wchar_t is here, to UTF-8. A lone surrogate or a value beyond
// Unicode becomes U+FFFD.
std::string toUtf8(std::wstring_view text);

} // namespace toolbox

#endif
