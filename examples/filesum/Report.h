// What the tool says: result lines, problems, and a progress line on a terminal.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <system_error>

namespace filesum
{

// A short reason for an error of the system, the same on every system.
std::string reasonOf(const std::error_code& error);

// The reason for the current errno.
std::string reasonOfErrno();

class Report
{
public:
    // output: where result lines go; kept open by the caller.
    // showProgress: whether progress lines are wanted.
    Report(std::FILE* output, bool showProgress);
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;
    ~Report() { clearProgress(); }

    // Writes one result line; the line end is added.
    void line(std::string_view text);

    // Writes "filesum: ", the text and a line end to standard error, and remembers it.
    void problem(std::string_view text);
    void cannotRead(std::string_view name, std::string_view reason);
    void cannotWrite(std::string_view name, std::string_view reason);

    [[nodiscard]] bool hasProblems() const noexcept { return m_hasProblems; }

    // Announces the work ahead, and tells how much of it was done since the last call.
    void beginProgress(std::uint64_t files, std::uint64_t bytes);
    void advance(std::uint64_t bytes);

    // Writes what is still buffered. A failure is a problem, reported under the output's name.
    void finish(std::string_view outputName);

private:
    void clearProgress();

    std::FILE* m_output;
    bool m_outputIsTerminal;
    bool m_showProgress;
    bool m_hasProblems = false;
    std::string m_progress; // the line that stands on the terminal
    std::uint64_t m_files = 0;
    std::uint64_t m_bytes = 0;
    std::uint64_t m_done = 0;
};

} // namespace filesum
