#include "parser/OptionFiles.h"

#include <algorithm>
#include <cassert>
#include <string_view>

#include "parser/ArgumentLines.h"
#include "result/ParseResult.h"
#include "support/platform/FileLoading.h"
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

// Returns the whole text of a value, zero characters included: if a name contains one, the file
// that the text before it names must not be read.
std::wstring wholeText(const Occurrence& stored)
{
    const std::size_t units = stored.value.kind() == vexkit2::kind_wide_text
                                  ? stored.value.byte_length() / sizeof(wchar_t)
                                  : 0;
    std::wstring text(stored.text, units);
    // A host's own bytes need not end with a zero.
    if (!text.empty() && text.back() == L'\0')
    {
        text.pop_back();
    }
    return text.empty() ? std::wstring(stored.text) : text;
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

OptionFiles::OptionFiles(ParseResult& result)
    : m_result(result), m_outer(result.openFiles()), m_next(occurrenceCount())
{
    if (m_outer != nullptr)
    {
        m_outer->m_inner.push_back({m_next, m_next});
    }
    m_result.setOpenFiles(this);
}

OptionFiles::~OptionFiles()
{
    assert(m_result.openFiles() == this);
    m_result.setOpenFiles(m_outer);
    if (m_outer != nullptr)
    {
        m_outer->m_inner.back().end = occurrenceCount();
    }
}

// Searched for each time: a parse may store the first value, or give the name another record.
const StoredOption* OptionFiles::record() const noexcept
{
    return m_result.options().find(std::wstring_view(option_file_name));
}

std::size_t OptionFiles::occurrenceCount() const noexcept
{
    const StoredOption* const stored = record();
    return stored == nullptr ? 0 : stored->occurrences.size();
}

// Returns the next occurrence that this parse stored, or null.
const Occurrence* OptionFiles::nextOccurrence()
{
    for (; m_passed < m_inner.size() && m_inner[m_passed].begin <= m_next; ++m_passed)
    {
        m_next = std::max(m_next, m_inner[m_passed].end);
    }
    if (m_next >= occurrenceCount())
    {
        return nullptr;
    }
    return record()->occurrences.next(m_next);
}

result_t OptionFiles::readAll(const ParseFile& parseFile, std::wstring& message)
{
    while (const Occurrence* const occurrence = nextOccurrence())
    {
        if (!occurrence->isValue)
        {
            continue;
        }
        const std::wstring name = wholeText(*occurrence);
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
    return result_success;
}

} // namespace kexa_3_3
