#include "result/ParseResult.h"

#include <cassert>
#include <stdexcept>
#include <utility>

#include "support/text/HashedText.h"

namespace kexa_3_3
{

namespace
{

// Fills the record of a query. A null `found` gives the not-found value.
result_t fill(Value* out, const Occurrence* found)
{
    const result_t status = found == nullptr ? result_nothing : result_success;
    if (out != nullptr)
    {
        // Released last: the destructor of an object in it may begin another query.
        const vexkit2::variant_t before(std::move(out->value));
        out->status = status;
        out->data = found == nullptr ? nullptr : found->text;
        out->position = found == nullptr ? no_position : found->position;
        if (found != nullptr)
        {
            out->value = found->value;
        }
    }
    return status;
}

} // namespace

ParseResult::ParseResult() : m_strings(m_firstBlock.bytes()), m_options(m_strings) {}

void ParseResult::release()
{
    delete this;
}

std::int32_t ParseResult::isPresent(const wchar_t* name, std::int32_t from, std::int32_t to)
{
    if (!beginQuery(name, from, to))
    {
        return 0;
    }
    if (walksOccurrences())
    {
        return findPosition() ? 1 : 0;
    }
    // A following getNextValue then gives the default, once.
    m_rangeFrom = no_position;
    m_rangeTo = no_position;
    return 1;
}

result_t ParseResult::getFirstValue(Value* out, const wchar_t* name, std::int32_t from,
                                    std::int32_t to)
{
    return fill(out, beginQuery(name, from, to) ? firstValue() : nullptr);
}

result_t ParseResult::getNextValue(Value* out, const wchar_t* /*name*/)
{
    return fill(out, m_currentOption == nullptr ? nullptr : nextValue());
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

void ParseResult::requireName(const OptionDescription& option)
{
    if (option.names.empty())
    {
        throw std::out_of_range("invalid vector<T> subscript");
    }
}

void ParseResult::addUnparsed(std::wstring_view argument)
{
    m_unparsed.push_back({m_strings.keep(argument), static_cast<std::int32_t>(m_unparsed.size())});
}

// Begins a query of an option and of a range. Returns whether the option is known.
bool ParseResult::beginQuery(const wchar_t* name, std::int32_t from, std::int32_t to) noexcept
{
    m_rangeFrom = from;
    m_rangeTo = to;
    m_currentOption = name == nullptr ? nullptr : m_options.find(HashedText::ofTerminated(name));
    if (m_currentOption == nullptr)
    {
        return false;
    }
    m_valueCursor = 0;
    m_positionCursor = 0;
    return true;
}

// Whether the current option is walked by its occurrences; otherwise it has only a default.
bool ParseResult::walksOccurrences() const noexcept
{
    assert(m_currentOption != nullptr);
    return m_currentOption->occurrences.hasPositions() || !m_currentOption->byDefault;
}

// Whether the occurrence lies in the range, whose end is exclusive here.
bool ParseResult::isInRange(const Occurrence& occurrence) const noexcept
{
    return occurrence.position >= m_rangeFrom && occurrence.position < m_rangeTo;
}

// Moves the cursor before the first position in the range. Returns whether there is one.
bool ParseResult::findPosition() noexcept
{
    const Occurrences& occurrences = m_currentOption->occurrences;
    Occurrences::Place next = m_positionCursor;
    while (const Occurrence* const occurrence = occurrences.nextPosition(next))
    {
        if (isInRange(*occurrence))
        {
            return true;
        }
        m_positionCursor = next;
    }
    return false;
}

// The first value of a walk that was begun, or null.
const Occurrence* ParseResult::firstValue() noexcept
{
    if (!walksOccurrences())
    {
        return &*m_currentOption->byDefault;
    }
    return findPosition() ? nextValue() : nullptr;
}

// The next value of the walk, or null.
const Occurrence* ParseResult::nextValue() noexcept
{
    if (!walksOccurrences())
    {
        return nextDefault();
    }
    // Without values no bound is tested: the range chose the first occurrence only.
    return m_currentOption->occurrences.hasValues()
               ? nextInRange()
               : m_currentOption->occurrences.nextPosition(m_positionCursor);
}

const Occurrence* ParseResult::nextInRange() noexcept
{
    Occurrences::Place place = m_valueCursor;
    while (const Occurrence* const next = m_currentOption->occurrences.nextValue(place))
    {
        if (next->position >= m_rangeFrom)
        {
            // The upper bound is inclusive for values, exclusive for the first occurrence: on
            // purpose.
            if (next->position > m_rangeTo)
            {
                return nullptr;
            }
            m_valueCursor = place;
            return next;
        }
        m_valueCursor = place;
    }
    return nullptr;
}

// Returns the default, once, after isPresent or a query without bounds; otherwise null.
const Occurrence* ParseResult::nextDefault() noexcept
{
    if (m_rangeFrom != no_position || m_rangeTo != no_position)
    {
        return nullptr;
    }
    m_rangeFrom = 0; // which ends the walk
    return &*m_currentOption->byDefault;
}

} // namespace kexa_3_3
