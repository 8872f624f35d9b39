// filesum: lists, computes checksums of, and verifies the files in folder trees. Actions.h has the
// exit codes.
#include <algorithm>
#include <exception>

#include "common/Arguments.h"
#include "filesum/Actions.h"
#include "filesum/Platform.h"
#include "filesum/Report.h"

namespace filesum
{

namespace
{

ExitCode wrongCommandLine(const std::wstring& message)
{
    example::printError(L"filesum: " + message + L"\nTry 'filesum -help'.\n");
    return exit_wrong_command_line;
}

ExitCode perform(const Settings& settings, const std::vector<std::filesystem::path>& paths,
                 std::FILE* output)
{
    Report report(output, settings.progress && isTerminal(stderr));
    const ExitCode code = settings.verify ? verifyFiles(paths, settings, report)
                          : settings.sum  ? sumFiles(paths, settings, report)
                                          : listFiles(paths, settings, report);
    report.finish(settings.output.empty() ? "standard output" : nameOf(settings.output));
    return report.hasProblems() ? exit_problem : code;
}

ExitCode performToFile(Settings& settings, const std::vector<std::filesystem::path>& paths)
{
    settings.selection.notThis = settings.output;
    for (const std::filesystem::path& path : paths)
    {
        std::error_code error; // set if either file does not exist
        if (std::filesystem::equivalent(path, settings.output, error))
        {
            return wrongCommandLine(L"the output is one of the paths");
        }
    }
    const FilePointer file = openForWriting(settings.output);
    if (file == nullptr)
    {
        const std::string reason = reasonOfErrno(); // before another call changes errno
        Report(stdout, false).cannotWrite(nameOf(settings.output), reason);
        return exit_problem;
    }
    return perform(settings, paths, file.get());
}

ExitCode execute(const CommandLine& commandLine, Settings& settings)
{
    if (settings.version)
    {
        example::print(L"filesum " KEXA_VERSION_STRING "\n");
        return exit_success;
    }
    if (settings.help)
    {
        std::wstring text;
        const bool known = commandLine.help(settings.paths, settings.hidden, text);
        example::print(text);
        return known ? exit_success : exit_wrong_command_line;
    }
    if (!settings.list && !settings.sum && !settings.verify && !settings.total)
    {
        return wrongCommandLine(L"there is nothing to do");
    }
    if (settings.verify && settings.paths.empty())
    {
        return wrongCommandLine(L"-verify needs a file written by -sum");
    }
    std::vector<std::filesystem::path> paths;
    std::transform(settings.paths.begin(), settings.paths.end(), std::back_inserter(paths), pathOf);
    if (paths.empty())
    {
        paths.emplace_back(".");
    }
    return settings.output.empty() ? perform(settings, paths, stdout)
                                   : performToFile(settings, paths);
}

} // namespace

} // namespace filesum

int run(int argc, const wchar_t* const* argv)
{
    try
    {
        filesum::CommandLine commandLine;
        filesum::Settings settings;
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
