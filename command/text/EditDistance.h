// How far two words are apart, for finding the name that a user meant.
#ifndef KEXA_COMMAND_TEXT_EDIT_DISTANCE_H
#define KEXA_COMMAND_TEXT_EDIT_DISTANCE_H

#include <cstddef>
#include <string_view>

namespace kexa
{
inline namespace v1
{
namespace detail
{

// Returns the fewest insertions, removals and replacements of code points and swaps of two
// neighbours that turn one text into the other, where no place is edited twice (optimal string
// alignment); limit + 1 where that is more than `limit`.
//
// texts: UTF-8. An ill-formed byte counts as one code point.
[[nodiscard]] std::size_t editDistance(std::string_view first, std::string_view second,
                                       std::size_t limit);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
