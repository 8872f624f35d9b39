#include "filesum/Report.h"

#include <algorithm>
#include <cerrno>

#include "filesum/Names.h"
#include "filesum/Platform.h"

namespace filesum
{

std::string reasonOf(const std::error_code& error)
{
    if (error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory)
    {
        return "no such file or folder";
    }
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted)
    {
        return "permission denied";
    }
    if (error == std::errc::is_a_directory)
    {
        return "it is a folder";
    }
    if (error == std::errc::no_space_on_device)
    {
        return "no space left";
    }
    if (error == std::errc::io_error)
    {
        return "input or output error";
    }
    return "system error " + std::to_string(error.value());
}

std::string reasonOfErrno()
{
    return reasonOf(std::error_code(errno, std::generic_category()));
}

Report::Report(std::FILE* output, bool showProgress)
    : m_output(output), m_outputIsTerminal(isTerminal(output)), m_showProgress(showProgress)
{
}

void Report::line(std::string_view text)
{
    clearProgress();
    std::string line(text);
    line += '\n';
    if (m_outputIsTerminal)
    {
        write(m_output, line); // immediately, and in the encoding of the console
    }
    else
    {
        std::fwrite(line.data(), 1, line.size(), m_output);
    }
}

void Report::problem(std::string_view text)
{
    clearProgress();
    std::fflush(m_output);
    m_hasProblems = true;
    write(stderr, "filesum: " + std::string(text) + "\n");
}

void Report::cannotRead(std::string_view name, std::string_view reason)
{
    problem("cannot read '" + escapedName(name) + "': " + std::string(reason));
}

void Report::cannotWrite(std::string_view name, std::string_view reason)
{
    problem("cannot write '" + escapedName(name) + "': " + std::string(reason));
}

void Report::beginProgress(std::uint64_t files, std::uint64_t bytes)
{
    m_files = files;
    m_bytes = bytes;
    m_done = 0;
    advance(0);
}

void Report::advance(std::uint64_t bytes)
{
    m_done += bytes;
    if (!m_showProgress || m_bytes == 0)
    {
        return;
    }
    // A file may have grown since its size was announced.
    const double share = static_cast<double>(m_done) / static_cast<double>(m_bytes);
    const auto percent = static_cast<int>(100 * std::min(share, 1.0));
    const std::string text = std::to_string(percent) + "% of " + std::to_string(m_files) +
                             (m_files == 1 ? " file" : " files");
    if (text != m_progress)
    {
        clearProgress();
        std::fflush(m_output);
        m_progress = text;
        write(stderr, m_progress);
    }
}

void Report::finish(std::string_view outputName)
{
    clearProgress();
    const bool flushed = std::fflush(m_output) == 0;
    if (!flushed || std::ferror(m_output) != 0)
    {
        cannotWrite(outputName, flushed ? "the output was cut short" : reasonOfErrno());
    }
}

void Report::clearProgress()
{
    if (!m_progress.empty())
    {
        std::string blank(m_progress.size() + 2, ' ');
        blank.front() = '\r';
        blank.back() = '\r';
        write(stderr, blank);
        m_progress.clear();
    }
}

} // namespace filesum
