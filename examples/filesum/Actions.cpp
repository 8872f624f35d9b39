#include "filesum/Actions.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "filesum/CheckFile.h"
#include "filesum/Names.h"
#include "filesum/Platform.h"
#include "filesum/Report.h"

namespace filesum
{

namespace
{

std::uint64_t bytesOf(const std::vector<FoundFile>& files)
{
    std::uint64_t bytes = 0;
    for (const FoundFile& file : files)
    {
        bytes += file.size;
    }
    return bytes;
}

std::string totalText(std::uint64_t files, std::uint64_t bytes)
{
    return std::to_string(files) + (files == 1 ? " file, " : " files, ") + std::to_string(bytes) +
           (bytes == 1 ? " byte" : " bytes");
}

ExitCode performTo(std::FILE* output, const Settings& settings)
{
    Report report(output, settings.progress && isTerminal(stderr));
    const ExitCode code = settings.verify ? verifyFiles(settings.paths, settings, report)
                          : settings.sum  ? sumFiles(settings.paths, settings, report)
                                          : listFiles(settings.paths, settings, report);
    report.finish(settings.output.empty() ? "standard output" : nameOf(settings.output));
    return report.hasProblems() ? exit_problem : code;
}

} // namespace

ExitCode perform(const Settings& settings)
{
    Settings complete = settings;
    complete.selection.notThis = settings.output;
    if (complete.paths.empty())
    {
        complete.paths.emplace_back(".");
    }
    if (settings.output.empty())
    {
        return performTo(stdout, complete);
    }
    const FilePointer file = openForWriting(settings.output);
    if (file == nullptr)
    {
        const std::string reason = reasonOfErrno(); // before another call changes errno
        Report(stdout, false).cannotWrite(nameOf(settings.output), reason);
        return exit_problem;
    }
    return performTo(file.get(), complete);
}

ExitCode listFiles(const std::vector<std::filesystem::path>& roots, const Settings& settings,
                   Report& report)
{
    const std::vector<FoundFile> files = findFiles(roots, settings.selection, report);
    if (settings.list)
    {
        std::size_t width = 0;
        for (const FoundFile& file : files)
        {
            width = std::max(width, std::to_string(file.size).size());
        }
        for (const FoundFile& file : files)
        {
            const std::string size = std::to_string(file.size);
            report.line(std::string(width - size.size(), ' ') + size + "  " +
                        escapedName(file.name));
        }
    }
    if (settings.total)
    {
        report.line(totalText(files.size(), bytesOf(files)));
    }
    return exit_success;
}

ExitCode sumFiles(const std::vector<std::filesystem::path>& roots, const Settings& settings,
                  Report& report)
{
    const std::vector<FoundFile> files = findFiles(roots, settings.selection, report);
    report.beginProgress(files.size(), bytesOf(files));
    std::uint64_t summed = 0;
    std::uint64_t bytes = 0;
    for (const FoundFile& file : files)
    {
        if (auto sums = sumsOf(file.path, settings.algorithms, settings.bufferSize, report))
        {
            report.line(formatCheckLine({std::move(sums->sums), sums->size, file.name}));
            bytes += sums->size;
            ++summed;
        }
    }
    if (settings.total)
    {
        report.line("# " + totalText(summed, bytes)); // which --verify skips as a comment
    }
    return exit_success;
}

} // namespace filesum
