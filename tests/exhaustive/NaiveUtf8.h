// A reference decoder for UTF-8, written from the definition of well-formed sequences.
#ifndef NAIVE_UTF8_H
#define NAIVE_UTF8_H

#include <string>
#include <string_view>

namespace naive
{

// Decodes UTF-8 to wide text, with one U+FFFD for each maximal ill-formed part.
std::wstring decodeUtf8(std::string_view bytes);

} // namespace naive

#endif
