// Writing text to standard output and standard error.
#ifndef KEXA_COMMAND_PLATFORM_STANDARD_STREAMS_H
#define KEXA_COMMAND_PLATFORM_STANDARD_STREAMS_H

#include <string_view>

namespace kexa
{
inline namespace v1
{
namespace detail
{

enum class StandardStream
{
    output,
    error
};

// Writes a UTF-8 text behind what the C stream of that descriptor holds, which is flushed first.
// Returns whether all of it could be written.
//
// A Windows console gets the text through its own interface, in UTF-16, whatever its code page is;
// what is no text there is shown as U+FFFD. Anything else gets the bytes as they are, on Windows
// too: line ends stay \n.
[[nodiscard]] bool writeText(StandardStream stream, std::string_view text);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
