// A program with a narrow main that shows how the command layer reads its arguments, on the
// standard output in UTF-8: "as they are", or each that was read again on a line of its own.
//
//   argument_reader NUMBER ARGUMENT...    drops so many arguments from the front first, like a host
//                                         that takes them itself
//   argument_reader change ARGUMENT...    drops "change" and changes the last argument
//   argument_reader null ARGUMENT...      drops "null" and makes the last argument a null pointer
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ProcessArguments.h"
#include "platform/StandardStreams.h"
#include "text/Encoding.h"

using namespace kexa::detail;

int main(int argc, char** argv)
{
    if (argc < 2)
    {
        return 2;
    }
    const std::string_view mode = argv[1];
    const bool dropsSome = mode.size() == 1;
    const int dropped = dropsSome ? mode[0] - '0' : 1;
    std::vector<const char*> arguments(argv + dropped, argv + argc);
    static const std::string changed = std::string(argv[argc - 1]) + "x";
    if (!dropsSome)
    {
        arguments.back() = mode == "null" ? nullptr : changed.c_str();
    }

    const auto read = rereadArguments(static_cast<int>(arguments.size()), arguments.data());
    std::string output;
    for (const std::wstring& argument : read.value_or(std::vector<std::wstring>()))
    {
        output += narrow(argument) + "\n";
    }
    return writeText(StandardStream::output, read ? output : "as they are\n") ? 0 : 1;
}
