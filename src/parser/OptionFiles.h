// The option files that one parse reads.
#pragma once

#include <functional>
#include <set>
#include <string>
#include <string_view>

#include "kexa/result.h"

#include "recognition/ArgumentQueue.h"
#include "result/OptionResultTable.h"

namespace kexa_3_3
{

// The option whose values name the files.
inline constexpr const wchar_t* option_file_name = L"option-file";

// Reads the files that a parse stores as values of the option, in order, those that a file names
// included. A file is read once in a parse, so that files naming each other come to an end.
class OptionFiles
{
public:
    // Parses the arguments of one file, which may store names of further files.
    using ParseFile = std::function<result_t(ArgumentSource&)>;

    // Made before a parse stores anything: what the result holds then was read by earlier parses.
    explicit OptionFiles(const OptionResultTable& options);

    // Answers 0; 6 with a message where a file cannot be read; or the first non-zero code that
    // parsing a file answered.
    [[nodiscard]] result_t readAll(const ParseFile& parseFile, std::wstring& message);

private:
    const OptionResultTable& m_options;
    const StoredOption* m_record; // the one that was looked at last, or null
    Occurrences::Place m_place;   // of the first occurrence in it not looked at
    std::size_t m_next;           // the same as an index
    std::set<std::wstring> m_read;
};

} // namespace kexa_3_3
