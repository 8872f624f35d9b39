#include "parser/OptionFiles.h"

#include "parser/ArgumentLines.h"
#include "support/FileLoading.h"
#include "support/text/Text.h"

namespace kexa_3_3
{

namespace
{

std::wstring_view reasonOf(FileProblem problem) noexcept
{
    switch (problem)
    {
    case FileProblem::not_found:
        return L"no such file";
    case FileProblem::no_permission:
        return L"permission denied";
    case FileProblem::is_folder:
        return L"it is a folder";
    case FileProblem::too_large:
        return L"it is larger than 1 GiB";
    default:
        return L"it cannot be read";
    }
}

// The whole text of a value, zero characters included: a name that holds one names no file.
std::wstring wholeText(const Occurrence& stored)
{
    const std::size_t units = stored.value.kind() == vexkit2::kind_wide_text
                                  ? stored.value.byte_length() / sizeof(wchar_t)
                                  : 0;
    return units == 0 ? std::wstring(stored.text) : std::wstring(stored.text, units - 1);
}

const StoredOption* resultOf(const OptionResultTable& options) noexcept
{
    return options.find(std::wstring_view(option_file_name));
}

result_t readFile(const std::wstring& name, const OptionFiles::ParseFile& parseFile,
                  std::wstring& message)
{
    constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
    std::string bytes;
    const FileProblem problem = loadFile(name, bytes);
    if (problem != FileProblem::none)
    {
        message = concatenate({L"Error reading option file '", name, L"': ", reasonOf(problem)});
        return result_unreadable_option_file;
    }
    std::string_view text(bytes);
    if (text.substr(0, byte_order_mark.size()) == byte_order_mark)
    {
        text.remove_prefix(byte_order_mark.size());
    }
    Utf8Lines lines(text);
    return parseFile(lines);
}

} // namespace

OptionFiles::OptionFiles(const OptionResultTable& options)
    : m_options(options), m_record(resultOf(options)), m_next(0)
{
    if (m_record != nullptr)
    {
        m_place = m_record->occurrences.end();
        m_next = m_record->occurrences.size();
    }
}

result_t OptionFiles::readAll(const ParseFile& parseFile, std::wstring& message)
{
    // The record is looked up each time: a file may bring the first value, more of them, or another
    // record, where an option has the name besides others.
    for (;;)
    {
        const StoredOption* const record = resultOf(m_options);
        if (record == nullptr || m_next >= record->occurrences.size())
        {
            return result_success;
        }
        if (record != m_record)
        {
            m_record = record;
            m_place = record->occurrences.placeBehind(m_next);
        }
        const Occurrence& occurrence = *record->occurrences.next(m_place);
        ++m_next;
        if (!occurrence.isValue)
        {
            continue;
        }
        const std::wstring name = wholeText(occurrence);
        if (!m_read.insert(canonicalPath(name)).second)
        {
            continue;
        }
        const result_t code = readFile(name, parseFile, message);
        if (code != result_success)
        {
            return code;
        }
    }
}

} // namespace kexa_3_3
