// The option files that one parse reads.
#pragma once

#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "kexa/result.h"

#include "recognition/ArgumentQueue.h"
#include "result/StoredOption.h"

namespace kexa_3_3
{

class ParseResult;

// The option whose values name the files.
inline constexpr const wchar_t* option_file_name = L"option-file";

// Reads the files that one parse stores as values of the option, in order, including those that a
// file names. Each file is read once in a parse, so files may name each other.
//
// Values that the result held before, or that a parse inside an event stores meanwhile, belong to
// other parses and are skipped.
class OptionFiles
{
public:
    // Parses the arguments of one file, which may store names of further files.
    using ParseFile = std::function<result_t(ArgumentSource&)>;

    // Precondition: the parse has stored nothing yet. Of several objects for one result, the one
    // made last is destroyed first.
    //
    // result: filled by the parse; outlives this.
    explicit OptionFiles(ParseResult& result);
    ~OptionFiles();
    OptionFiles(const OptionFiles&) = delete;
    OptionFiles& operator=(const OptionFiles&) = delete;

    // Returns 0; 6 with a message when a file cannot be read; or the first non-zero code that
    // parsing a file returned.
    [[nodiscard]] result_t readAll(const ParseFile& parseFile, std::wstring& message);

private:
    // Occurrences by their index in the record of the option, `end` excluded.
    struct Range
    {
        std::size_t begin;
        std::size_t end;
    };

    [[nodiscard]] const StoredOption* record() const noexcept;
    [[nodiscard]] std::size_t occurrenceCount() const noexcept;
    [[nodiscard]] const Occurrence* nextOccurrence();

    ParseResult& m_result;
    OptionFiles* m_outer;       // of the parse during which this one began, or null
    std::vector<Range> m_inner; // what parses inside this one stored, in order
    std::size_t m_passed = 0;   // how many of those lie before m_next
    Occurrences::Place m_next;  // the first occurrence that was not read yet
    std::set<std::wstring> m_read;
};

} // namespace kexa_3_3
