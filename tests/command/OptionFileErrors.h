// What the library and the command layer say of one option file.
#ifndef KEXA_TESTS_COMMAND_OPTION_FILE_ERRORS_H
#define KEXA_TESTS_COMMAND_OPTION_FILE_ERRORS_H

#include <string>

#include "Host.h"
#include "text/Encoding.h"
#include "text/OptionFileReading.h"

// The message of the library that a file of this name cannot be read; empty where it can.
inline std::string errorOfLibrary(const std::string& name)
{
    toolbox::Host host;
    host.parser().enableOptionFiles(L"", L"");
    const std::wstring argument = L"--option-file=" + kexa::detail::widen(name);
    return host.parse({argument.c_str()}) == 0 ? "" : kexa::detail::narrow(host.message());
}

// That message is the layer's, and ends with a reason.
inline void expectError(const std::string& name, const std::string& reason)
{
    const std::string expected = "Error reading option file '" + name + "': " + reason;
    EXPECT_EQ(errorOfLibrary(name), expected);
    EXPECT_EQ(kexa::detail::readOptionFile(name).error, expected);
}

#endif
