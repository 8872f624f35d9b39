// The output of the tool: result lines, problems, and a progress line on a terminal.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <system_error>

namespace filesum
{

// Returns a short text for a system error, which is equal on all systems.
std::string reasonOf(const std::error_code& error);

// Returns reasonOf() for the current errno.
std::string reasonOfErrno();

class Report
{
public:
    // output: receives the result lines. The caller keeps it open.
    // showProgress: whether progress lines are wanted.
    Report(std::FILE* output, bool showProgress);
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;
    ~Report() { clearProgress(); }

    // Writes one result line and adds the line feed.
    void line(std::string_view text);

    // Writes "filesum: ", the text and a line feed to standard error, and records that there was a
    // problem.
    void problem(std::string_view text);
    void cannotRead(std::string_view name, std::string_view reason);
    void cannotWrite(std::string_view name, std::string_view reason);

    [[nodiscard]] bool hasProblems() const noexcept { return m_hasProblems; }

    // Announce the total work, and report the work since the last call.
    void beginProgress(std::uint64_t files, std::uint64_t bytes);
    void advance(std::uint64_t bytes);

    // Flushes the output. A failure is reported as a problem with the name of the output.
    void finish(std::string_view outputName);

private:
    void clearProgress();

    std::FILE* m_output;
    bool m_outputIsTerminal;
    bool m_showProgress;
    bool m_hasProblems = false;
    std::string m_progress; // the line that the terminal shows
    std::uint64_t m_files = 0;
    std::uint64_t m_bytes = 0;
    std::uint64_t m_done = 0;
};

} // namespace filesum
