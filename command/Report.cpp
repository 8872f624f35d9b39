#include "Inline.h"
#include "kexa/command/detail/outcome.h"
#include "platform/StandardStreams.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_INLINE std::string describe(const Outcome& outcome)
{
    const Error& error = outcome.error;
    std::string text = outcome.program + ": ";
    if (!error.file.empty())
    {
        text += error.file + ":" + std::to_string(error.line) + ": ";
    }
    text += error.message + "\n";
    if (!error.hint.empty())
    {
        text += "  " + error.hint + "\n";
    }
    if (!outcome.helpName.empty())
    {
        text += "Try '" + outcome.program + " " + outcome.helpName + "'.\n";
    }
    return text;
}

KEXA_COMMAND_INLINE void warn(const Outcome& outcome)
{
    for (const std::string& warning : outcome.warnings)
    {
        static_cast<void>(
            writeText(StandardStream::error, outcome.program + ": " + warning + "\n"));
    }
}

KEXA_COMMAND_INLINE int report(const Outcome& outcome)
{
    if (outcome.status == Status::error)
    {
        static_cast<void>(writeText(StandardStream::error, describe(outcome)));
        return 2;
    }
    static_cast<void>(writeText(StandardStream::output, outcome.text));
    return 0;
}

} // namespace detail
} // namespace v1
} // namespace kexa
