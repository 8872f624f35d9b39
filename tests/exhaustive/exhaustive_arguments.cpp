// Parses every argument vector up to a length with the library and with the naive implementation,
// for every option set and combination of flags, and compares everything that a host can observe.
//
// exhaustive_arguments [LENGTH]: vectors of up to LENGTH arguments, 4 by default.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <vector>

#include "LibraryParser.h"
#include "NullOutput.h"
#include "OptionSets.h"

namespace
{

using naive::Arguments;
using naive::Comparison;
using naive::OptionSet;
using naive::ParseCall;

constexpr std::int32_t allFlags = 2 | 4 | 8 | 16 | 32;
constexpr unsigned long long reportedDifferences = 5; // for each option set

// Escapes all characters but printable ASCII and line feeds.
std::string escaped(const std::wstring& text)
{
    std::string out;
    for (const wchar_t character : text)
    {
        const auto code = static_cast<std::uint32_t>(character);
        if (code == '\n' || (code >= 0x20 && code < 0x7F))
        {
            out += static_cast<char>(code);
            continue;
        }
        char buffer[16];
        std::snprintf(buffer, sizeof(buffer), "\\u%04X", static_cast<unsigned>(code));
        out += buffer;
    }
    return out;
}

std::string describeCall(const ParseCall& call)
{
    std::string text = call.asCommandLine ? "text of lines:" : "arguments:";
    for (const std::wstring& argument : call.arguments)
    {
        text += " [" + escaped(argument) + "]";
    }
    return text + (call.storing ? "" : " (null result)");
}

class ExhaustiveRun
{
public:
    ExhaustiveRun(std::FILE* report, std::size_t length) : m_report(report), m_length(length) {}

    void runSet(const OptionSet& set)
    {
        const unsigned long long before = m_compared;
        m_differencesOfSet = 0;
        for (std::int32_t flags = 0; flags <= allFlags; ++flags)
        {
            if ((flags & ~allFlags) == 0)
            {
                runFlags(set, flags);
            }
        }
        std::fprintf(m_report, "%9llu vectors, %llu differences: %s\n", m_compared - before,
                     m_differencesOfSet, set.title.c_str());
        std::fflush(m_report);
        m_differences += m_differencesOfSet;
    }

    // Returns whether at least one vector was compared and none differed.
    bool finish() const
    {
        std::fprintf(m_report, "%llu vectors compared, %llu differences\n", m_compared,
                     m_differences);
        return m_compared != 0 && m_differences == 0;
    }

private:
    // Flags that do not affect the set are combined with shorter vectors only.
    void runFlags(const OptionSet& set, std::int32_t flags)
    {
        const bool decisive = (flags & ~set.decisiveFlags) == 0;
        const std::size_t longest = decisive || m_length == 0 ? m_length : m_length - 1;
        Comparison comparison(set.declarations, flags, set.handlers);
        for (std::size_t length = 0; length <= longest; ++length)
        {
            runLength(set, flags, comparison, length, decisive && length < m_length);
        }
    }

    void runLength(const OptionSet& set, std::int32_t flags, Comparison& comparison,
                   std::size_t length, bool everyWay)
    {
        std::vector<std::size_t> letters(length, 0);
        do
        {
            ParseCall call;
            for (const std::size_t letter : letters)
            {
                call.arguments.push_back(set.alphabet[letter]);
            }
            call.ranges =
                everyWay ? naive::QueryRanges::severalRanges : naive::QueryRanges::wholeRange;
            compare(set, flags, comparison, call);
            if (everyWay)
            {
                call.ranges = naive::QueryRanges::wholeRange;
                call.asCommandLine = true;
                compare(set, flags, comparison, call);
                call.asCommandLine = false;
                call.storing = false;
                compare(set, flags, comparison, call);
            }
        } while (advance(letters, set.alphabet.size()));
    }

    // Advances to the next vector of this length, like a counter; returns false after the last one.
    static bool advance(std::vector<std::size_t>& letters, std::size_t alphabet)
    {
        for (std::size_t& letter : letters)
        {
            if (++letter < alphabet)
            {
                return true;
            }
            letter = 0;
        }
        return false;
    }

    void compare(const OptionSet& set, std::int32_t flags, Comparison& comparison,
                 const ParseCall& call)
    {
        ++m_compared;
        if (comparison.agree(call))
        {
            return;
        }
        ++m_differencesOfSet;
        if (m_differencesOfSet <= reportedDifferences)
        {
            std::fprintf(m_report, "DIFFERENCE\noption set: %s\nflags: %s\n%s\n", set.title.c_str(),
                         std::to_string(flags).c_str(), describeCall(call).c_str());
            std::fprintf(m_report, "naive:\n%slibrary:\n%s\n",
                         escaped(naive::describe(comparison.expected())).c_str(),
                         escaped(naive::describe(comparison.actual())).c_str());
        }
    }

    std::FILE* m_report;
    std::size_t m_length;
    unsigned long long m_compared = 0;
    unsigned long long m_differences = 0;
    unsigned long long m_differencesOfSet = 0;
};

int run(std::FILE* report, std::size_t length)
{
    ExhaustiveRun exhaustive(report, length);
    for (const OptionSet& set : naive::optionSets())
    {
        exhaustive.runSet(set);
    }
    return exhaustive.finish() ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv)
{
    const int length = argc > 1 ? std::atoi(argv[1]) : 4;
    std::FILE* report = naive::silenceOutput();
    if (report == nullptr || length < 0)
    {
        return EXIT_FAILURE;
    }
    int code = EXIT_FAILURE;
    try
    {
        code = run(report, static_cast<std::size_t>(length));
    }
    catch (const std::exception& problem)
    {
        std::fprintf(report, "stopped: %s\n", problem.what());
    }
    std::fclose(report);
    return code;
}
