#include "OptionFileReading.h"

#include <algorithm>

#include "../Inline.h"
#include "../platform/FileReading.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_LOCAL std::string_view reasonOf(FileProblem problem) noexcept
{
    switch (problem)
    {
    case FileProblem::not_found:
        return "no such file";
    case FileProblem::no_permission:
        return "permission denied";
    case FileProblem::is_folder:
        return "it is a folder";
    case FileProblem::too_large:
        return "it is larger than 1 GiB";
    default:
        return "it cannot be read";
    }
}

// What of a line is an argument; empty where it holds none.
KEXA_COMMAND_LOCAL std::string_view argumentOfLine(std::string_view line) noexcept
{
    line.remove_prefix(std::min(line.find_first_not_of(" \t\n\v\f\r"), line.size()));
    while (!line.empty() && line.back() == '\r')
    {
        line.remove_suffix(1);
    }
    const bool comment = !line.empty() && (line.front() == ';' || line.front() == '#');
    return comment ? std::string_view() : line;
}

KEXA_COMMAND_INLINE std::vector<OptionFileArgument> splitOptionFile(std::string_view content)
{
    constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
    if (content.substr(0, byte_order_mark.size()) == byte_order_mark)
    {
        content.remove_prefix(byte_order_mark.size());
    }
    std::vector<OptionFileArgument> arguments;
    for (std::size_t number = 1; !content.empty(); ++number)
    {
        const std::size_t end = std::min(content.find('\n'), content.size());
        const std::string_view argument = argumentOfLine(content.substr(0, end));
        if (!argument.empty())
        {
            arguments.push_back({std::string(argument), number});
        }
        content.remove_prefix(std::min(end + 1, content.size()));
    }
    return arguments;
}

KEXA_COMMAND_INLINE OptionFile readOptionFile(const std::string& name)
{
    OptionFile file;
    std::string content;
    const FileProblem problem = readFile(name, content);
    if (problem == FileProblem::none)
    {
        file.arguments = splitOptionFile(content);
    }
    else
    {
        file.error.append("Error reading option file '").append(name).append("': ");
        file.error.append(reasonOf(problem));
    }
    return file;
}

} // namespace detail
} // namespace v1
} // namespace kexa
