// filesum with its command line on the binary interface. Its actions are those of the tool.
#include <exception>

#include "CommandLine.h"
#include "common/Arguments.h"
#include "filesum/Actions.h"
#include "filesum/Platform.h"

namespace filesum
{

namespace
{

ExitCode wrongCommandLine(const std::wstring& message)
{
    example::printError(L"filesum: " + message + L"\nTry 'filesum -help'.\n");
    return exit_wrong_command_line;
}

ExitCode execute(const CommandLine& commandLine, InterfaceSettings& settings)
{
    if (settings.version)
    {
        example::print(L"filesum " KEXA_VERSION_STRING "\n");
        return exit_success;
    }
    if (settings.help)
    {
        std::wstring text;
        const bool known = commandLine.help(settings.words, settings.hidden, text);
        example::print(text);
        return known ? exit_success : exit_wrong_command_line;
    }
    if (!settings.list && !settings.sum && !settings.verify && !settings.total)
    {
        return wrongCommandLine(L"there is nothing to do");
    }
    if (settings.verify && settings.words.empty())
    {
        return wrongCommandLine(L"-verify needs a file written by -sum");
    }
    for (const std::wstring& word : settings.words)
    {
        settings.paths.push_back(pathOf(example::toBytes(word)));
    }
    return perform(settings);
}

} // namespace

} // namespace filesum

int run(int argc, const wchar_t* const* argv)
{
    try
    {
        filesum::CommandLine commandLine;
        filesum::InterfaceSettings settings;
        if (!commandLine.parse(argc, argv, settings))
        {
            return filesum::wrongCommandLine(commandLine.message());
        }
        return filesum::execute(commandLine, settings);
    }
    catch (const std::exception& problem)
    {
        example::write(stderr, std::string("filesum: ") + problem.what() + "\n");
        return filesum::exit_problem;
    }
}
