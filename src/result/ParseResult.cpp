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
    const Occurrence* found = nullptr;
    if (beginQuery(name, from, to))
    {
        found = walksOccurrences() ? nextValue() : m_currentOption->byDefault;
    }
    return answer(out, found);
}

result_t ParseResult::getNextValue(Value* out, const wchar_t* /*name*/)
{
    return answer(out, m_currentOption == nullptr ? nullptr : nextValue());
}

std::int32_t ParseResult::getNextPosition()
{
    if (m_currentOption == nullptr)
    {
        return no_position;
    }
    const Occurrence* const next = m_currentOption->occurrences.nextPosition(m_positionCursor);
    return next == nullptr ? no_position : next->position;
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
    return m_currentOption->occurrences.hasPositions() || m_currentOption->byDefault == nullptr;
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
    const Occurrences& occurrences = m_currentOption->occurrences;
    m_valueCursor = occurrences.begin();
    m_positionCursor = occurrences.begin();
    if (!walksOccurrences())
    {
        return true;
    }
    for (;;)
    {
        const Occurrences::Place here = m_positionCursor;
        const Occurrence* const next = occurrences.nextPosition(m_positionCursor);
        if (next == nullptr)
        {
            return false;
        }
        if (next->position >= from && next->position < to)
        {
            m_positionCursor = here;
            return true;
        }
    }
}

// The next value of the walk, or null. Needs a current option.
const Occurrence* ParseResult::nextValue() noexcept
{
    if (walksOccurrences())
    {
        // Where there are no values no bound is tested: the range chose the first occurrence only.
        return m_currentOption->occurrences.hasValues()
                   ? nextInRange()
                   : m_currentOption->occurrences.nextPosition(m_positionCursor);
    }
    if (m_rangeFrom != no_position || m_rangeTo != no_position)
    {
        return nullptr;
    }
    m_rangeFrom = 0; // which ends the walk
    return m_currentOption->byDefault;
}

const Occurrence* ParseResult::nextInRange() noexcept
{
    const Occurrences& occurrences = m_currentOption->occurrences;
    Occurrences::Place place = m_valueCursor;
    const Occurrence* next = occurrences.nextValue(place);
    while (next != nullptr && next->position < m_rangeFrom)
    {
        m_valueCursor = place;
        next = occurrences.nextValue(place);
    }
    // The upper bound is inclusive for values, exclusive for the first occurrence: on purpose.
    if (next == nullptr || next->position > m_rangeTo)
    {
        return nullptr;
    }
    m_valueCursor = place;
    return next;
}

// NOLINTNEXTLINE(bugprone-exception-escape): the copy shares a block that is there.
result_t ParseResult::answer(Value* out, const Occurrence* found) noexcept
{
    const result_t code = found != nullptr ? result_success : result_nothing;
    if (out == nullptr)
    {
        return code;
    }
    out->status = code;
    if (found == nullptr)
    {
        out->data = nullptr;
        out->position = no_position;
        out->value = vexkit2::variant_t();
        return code;
    }
    out->data = found->text;
    out->position = found->position;
    found->copyValueTo(out->value);
    return code;
}

} // namespace kexa_3_3
