#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "filesum/Actions.h"
#include "filesum/CheckFile.h"
#include "filesum/Names.h"
#include "filesum/Platform.h"
#include "filesum/Report.h"

namespace filesum
{

namespace
{

// A file with more malformed lines than this is no check file.
constexpr int most_malformed_lines = 5;

std::optional<std::string> contentOf(const std::filesystem::path& path, Report& report)
{
    const FilePointer file = openForReading(path);
    std::string content;
    if (file != nullptr)
    {
        char buffer[65536];
        while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, file.get()))
        {
            content.append(buffer, count);
        }
    }
    if (file == nullptr || std::ferror(file.get()) != 0)
    {
        report.cannotRead(nameOf(path), reasonOfErrno());
        return std::nullopt;
    }
    return content;
}

void readCheckFile(const std::filesystem::path& path, std::vector<CheckLine>& lines, Report& report)
{
    const std::optional<std::string> content = contentOf(path, report);
    std::string_view rest = content ? std::string_view(*content) : std::string_view();
    if (rest.substr(0, 3) == "\xEF\xBB\xBF") // left by an editor
    {
        rest.remove_prefix(3);
    }
    int malformed = 0;
    for (int number = 1; !rest.empty(); ++number)
    {
        const std::size_t end = rest.find('\n');
        std::string_view text = rest.substr(0, end);
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        if (!text.empty() && text.back() == '\r')
        {
            text.remove_suffix(1);
        }
        if (text.empty() || text.front() == '#')
        {
            continue;
        }
        CheckLine line;
        const std::string problem = parseCheckLine(text, line);
        if (problem.empty())
        {
            lines.push_back(std::move(line));
            continue;
        }
        report.problem(escapedName(nameOf(path)) + ":" + std::to_string(number) + ": " + problem);
        if (++malformed > most_malformed_lines)
        {
            report.problem(escapedName(nameOf(path)) + ": this seems to be no file of checksums");
            return;
        }
    }
}

enum class Outcome
{
    same,
    changed,
    missing,
    unreadable
};

Outcome check(const CheckLine& line, const Settings& settings, Report& report)
{
    const std::filesystem::path path = pathOf(line.name);
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    if (status.type() == std::filesystem::file_type::not_found)
    {
        return Outcome::missing;
    }
    if (!std::filesystem::is_regular_file(status))
    {
        report.cannotRead(line.name, error ? reasonOf(error) : "it is not a file");
        return Outcome::unreadable;
    }
    if (std::filesystem::file_size(path, error) != line.size && !error)
    {
        return Outcome::changed;
    }
    std::vector<Algorithm> algorithms;
    for (const Checksum& sum : line.sums)
    {
        algorithms.push_back(sum.algorithm);
    }
    const auto sums = sumsOf(path, algorithms, settings.bufferSize, report);
    if (!sums)
    {
        return Outcome::unreadable;
    }
    return sums->size == line.size && sums->sums == line.sums ? Outcome::same : Outcome::changed;
}

} // namespace

ExitCode verifyFiles(const std::vector<std::filesystem::path>& checkFiles, const Settings& settings,
                     Report& report)
{
    std::vector<CheckLine> lines;
    for (const std::filesystem::path& path : checkFiles)
    {
        readCheckFile(path, lines, report);
    }
    std::uint64_t bytes = 0;
    for (const CheckLine& line : lines)
    {
        bytes += line.size;
    }
    report.beginProgress(lines.size(), bytes);
    constexpr const char* labels[] = {"OK       ", "CHANGED  ", "MISSING  "};
    std::uint64_t counts[] = {0, 0, 0, 0}; // by Outcome
    for (const CheckLine& line : lines)
    {
        const Outcome outcome = check(line, settings, report);
        const auto index = static_cast<std::size_t>(outcome);
        ++counts[index];
        if (outcome != Outcome::unreadable && !(outcome == Outcome::same && settings.quiet))
        {
            report.line(labels[index] + escapedName(line.name));
        }
    }
    if (settings.total)
    {
        report.line(std::to_string(counts[0]) + " OK, " + std::to_string(counts[1]) + " changed, " +
                    std::to_string(counts[2]) + " missing, " + std::to_string(counts[3]) +
                    " unreadable");
    }
    return counts[1] + counts[2] > 0 ? exit_differs : exit_success;
}

} // namespace filesum
