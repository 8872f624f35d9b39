// The system's shell splits all short lines alike.
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "text/Encoding.h"
#include "text/LineSplitting.h"

using namespace kexa::detail;

namespace
{

std::string quoted(const std::string& text)
{
    std::string result = "'";
    for (const char character : text)
    {
        result += character == '\'' ? "'\\''" : std::string(1, character);
    }
    return result + "'";
}

std::string outputOfShell(const std::string& script)
{
    std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(("sh " + quoted(script)).c_str(), "r"),
                                               &::pclose);
    std::string output;
    char buffer[4096];
    while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, pipe.get()))
    {
        output.append(buffer, count);
    }
    return output;
}

} // namespace

TEST(LineSplittingOfShell, GivesTheSameArguments)
{
    const std::string alphabet = "a '\"\\";
    std::vector<std::string> lines = {""};
    for (std::size_t begin = 0, length = 0; length < 5; ++length)
    {
        for (const std::size_t end = lines.size(); begin < end; ++begin)
        {
            for (const char character : alphabet)
            {
                lines.push_back(lines[begin] + character);
            }
        }
    }

    // A line with an open quote ends the shell that reads it, so that one gets a shell of its own.
    std::string script = "show() { for word; do printf '<%s>' \"$word\"; done; echo; }\n";
    std::string expected;
    for (const std::string& line : lines)
    {
        const SplitLine split = splitLine(line);
        const std::string command = "eval " + quoted("show " + line);
        if (split.unterminatedQuote.has_value())
        {
            script += "(" + command + ") 2>/dev/null || echo unterminated\n";
            expected += "unterminated\n";
            continue;
        }
        script += command + "\n";
        for (const std::string& argument : split.arguments)
        {
            expected += "<" + argument + ">";
        }
        expected += "\n";
    }
    const toolbox::TemporaryFolder folder;
    const std::string file = narrow(folder.write(L"script", script));
    EXPECT_EQ(outputOfShell(file), expected);
}
