// UTF-8 by the definition of well-formed sequences.
#ifndef NAIVE_UTF8_H
#define NAIVE_UTF8_H

#include <string>
#include <string_view>

namespace naive
{

// UTF-8 to wide text, one U+FFFD for each maximal ill-formed part. Slow, and independent of the
// library.
std::wstring decodeUtf8(std::string_view bytes);

} // namespace naive

#endif
