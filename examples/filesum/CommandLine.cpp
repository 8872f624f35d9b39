#include "filesum/CommandLine.h"

namespace filesum
{

namespace
{

const char* refuseUnreadable(const Settings& settings)
{
    return settings.verify && settings.paths.empty() ? "--verify needs a file that --sum wrote"
                                                     : nullptr;
}

// Without this rule the tool would empty a file before it reads it.
const char* refuseOutput(const Settings& settings)
{
    for (const std::filesystem::path& path : settings.paths)
    {
        std::error_code error; // set if either file does not exist
        if (std::filesystem::equivalent(path, settings.output, error))
        {
            return "the output is one of the paths";
        }
    }
    return nullptr;
}

} // namespace

kexa::Command<Settings> makeCommand()
{
    kexa::Command<Settings> command("filesum",
                                    "Lists, sums up and verifies the files of folder trees.");
    const auto list =
        command.action(&Settings::list, "list,l", "Print the size and the name of every file");
    const auto sum = command.action(&Settings::sum, "sum,s",
                                    "Print the checksums, the size and the name of every file");
    const auto verify = command.action(&Settings::verify, "verify,v",
                                       "Read what --sum wrote, and list the files that differ");
    const auto total =
        command.action(&Settings::total, "total,t", "Print how many files and bytes there are");
    command.together(list, total).together(sum, total).together(verify, total).actionRequired();

    command.option(&Settings::algorithms, "algorithm,a", "Checksums to compute")
        .values({{"crc32", Algorithm::crc32}, {"adler32", Algorithm::adler32}})
        .deprecated("crc", "crc32")
        .separator(',')
        .of(sum);
    auto selection = command.in(&Settings::selection);
    selection
        .option(&Selection::include, "include,i", "Take only files that match a pattern (* and ?)")
        .separator(',')
        .valueName("PATTERN")
        .of(list, sum, total);
    selection.option(&Selection::exclude, "exclude,x", "Leave out files and folders that match")
        .separator(',')
        .valueName("PATTERN")
        .of(list, sum, total);
    selection.option(&Selection::minimumSize, "min-size", "Leave out files with fewer bytes")
        .of(list, sum, total);
    command
        .option(&Settings::output, "output,o", "Write to this file, which is not summed up itself")
        .of(sum);
    command.option(&Settings::quiet, "quiet,q", "With --verify: print no OK lines")
        .of(verify, total);
    command.option(&Settings::progress, "progress", "Show the progress on a terminal");
    command.option(&Settings::bufferSize, "buffer-size", "Bytes to read at a time")
        .range(1, 1U << 26)
        .hidden();
    command.positional(&Settings::paths, "path",
                       "Files and folders; for --verify, files that --sum wrote");
    command.optionFiles().version("filesum " KEXA_VERSION_STRING);
    return std::move(command.require(refuseUnreadable).require(refuseOutput));
}

} // namespace filesum
