#include "result/ParseResult.h"

#include <stdexcept>

#include "options/OptionDescription.h"
#include "support/Text.h"

namespace kexa_3_3
{

namespace
{

void requireName(const OptionDescription& option)
{
    if (option.names.empty())
    {
        throw std::out_of_range("invalid vector<T> subscript");
    }
}

} // namespace

ParseResult::ParseResult() : m_strings(m_firstBlock.bytes()), m_options(m_strings) {}

void ParseResult::release()
{
    delete this;
}

std::int32_t ParseResult::isPresent(const wchar_t* name, std::int32_t from, std::int32_t to)
{
    const bool present = beginQuery(name, from, to);
    if (m_currentOption != nullptr && !walksOccurrences())
    {
        // A following getNextValue then gives the default, once.
        m_rangeFrom = no_position;
        m_rangeTo = no_position;
    }
    return present ? 1 : 0;
}

result_t ParseResult::getFirstValue(Value* out, const wchar_t* name, std::int32_t from,
                                    std::int32_t to)
{
    Found found;
    bool any = beginQuery(name, from, to);
    if (any)
    {
        if (walksOccurrences())
        {
            any = nextValue(found);
        }
        else
        {
            found = defaultOf(*m_currentOption);
        }
    }
    return answer(out, any, found);
}

result_t ParseResult::getNextValue(Value* out, const wchar_t* /*name*/)
{
    Found found;
    const bool any = m_currentOption != nullptr && nextValue(found);
    return answer(out, any, found);
}

std::int32_t ParseResult::getNextPosition()
{
    if (m_currentOption == nullptr || m_positionCursor >= m_currentOption->positions.size())
    {
        return no_position;
    }
    return m_currentOption->positions[m_positionCursor++];
}

result_t ParseResult::getFirstUnparsed(const wchar_t** out)
{
    m_unparsedCursor = 0;
    return getNextUnparsed(out);
}

result_t ParseResult::getNextUnparsed(const wchar_t** out)
{
    if (m_unparsedCursor >= m_unparsed.size())
    {
        return result_nothing;
    }
    if (out != nullptr)
    {
        *out = m_unparsed[m_unparsedCursor].text.data();
    }
    ++m_unparsedCursor;
    return result_success;
}

result_t ParseResult::storeOption(const OptionDescription& option, OptionResult& record)
{
    requireName(option);
    m_options.store(option, record);
    return result_success;
}

result_t ParseResult::storeValue(const OptionDescription& option, ValueEntry& value)
{
    requireName(option);
    m_options.storeValue(option, value);
    return result_success;
}

void ParseResult::addUnparsed(std::wstring_view argument)
{
    m_unparsed.push_back({m_strings.keep(argument), static_cast<std::int32_t>(m_unparsed.size())});
}

// Whether the current option is walked by its occurrences; otherwise it has only a default.
bool ParseResult::walksOccurrences() const noexcept
{
    return !m_currentOption->positions.empty() || m_currentOption->defaultText.empty();
}

// Moves the cursor to the start of an option. Answers whether there is something to give: an
// occurrence in the range (whose end is exclusive here), or a default.
bool ParseResult::beginQuery(const wchar_t* name, std::int32_t from, std::int32_t to) noexcept
{
    m_rangeFrom = from;
    m_rangeTo = to;
    m_currentOption = name == nullptr ? nullptr : m_options.find(std::wstring_view(name));
    if (m_currentOption == nullptr)
    {
        return false;
    }
    m_valueCursor = 0;
    m_positionCursor = 0;
    if (!walksOccurrences())
    {
        return true;
    }
    const auto& positions = m_currentOption->positions;
    while (m_positionCursor < positions.size() &&
           (positions[m_positionCursor] < from || positions[m_positionCursor] >= to))
    {
        ++m_positionCursor;
    }
    return m_positionCursor < positions.size();
}

// The next value of the walk. Needs a current option.
bool ParseResult::nextValue(Found& found) noexcept
{
    const StoredOption& option = *m_currentOption;
    if (!walksOccurrences())
    {
        if (m_rangeFrom != no_position || m_rangeTo != no_position)
        {
            return false;
        }
        found = defaultOf(option);
        m_rangeFrom = 0; // which ends the walk
        return true;
    }
    if (option.values.empty())
    {
        // No bound is tested here: the range chose the first occurrence only.
        if (m_positionCursor >= option.positions.size())
        {
            return false;
        }
        found.position = option.positions[m_positionCursor++];
        return true;
    }
    while (m_valueCursor < option.values.size() &&
           option.values[m_valueCursor].position < m_rangeFrom)
    {
        ++m_valueCursor;
    }
    // The upper bound is inclusive for values, exclusive for the first occurrence: on purpose.
    if (m_valueCursor >= option.values.size() || option.values[m_valueCursor].position > m_rangeTo)
    {
        return false;
    }
    const StoredValue& entry = option.values[m_valueCursor++];
    found = {entry.text, &entry.value, entry.position};
    return true;
}

ParseResult::Found ParseResult::defaultOf(const StoredOption& option) noexcept
{
    return {option.defaultText.data(), &option.defaultValue,
            static_cast<std::int32_t>(option.defaultPosition)};
}

// NOLINTNEXTLINE(bugprone-exception-escape): the copy shares a block that is there.
result_t ParseResult::answer(Value* out, bool found, const Found& what) noexcept
{
    const result_t code = found ? result_success : result_nothing;
    if (out != nullptr)
    {
        out->data = what.text;
        out->status = code;
        out->position = what.position;
        out->value = what.value == nullptr ? vexkit2::variant_t() : *what.value;
    }
    return code;
}

} // namespace kexa_3_3
