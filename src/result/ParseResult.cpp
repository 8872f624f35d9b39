#include "result/ParseResult.h"

#include <stdexcept>

#include "support/HashedText.h"

namespace kexa_3_3
{

ParseResult::ParseResult() : m_strings(m_firstBlock.bytes()), m_options(m_strings) {}

void ParseResult::release()
{
    delete this;
}

std::int32_t ParseResult::isPresent(const wchar_t* name, std::int32_t from, std::int32_t to)
{
    // Asked more seldom than values are: not worth a second copy of their search.
    const StoredOption* const option =
        name == nullptr ? nullptr : m_options.find(HashedText::ofTerminated(name));
    if (!beginQuery(option, from, to))
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
    const StoredOption* const option = name == nullptr ? nullptr : m_options.findTerminated(name);
    return answer(out, beginQuery(option, from, to) ? firstValue() : nullptr);
}

result_t ParseResult::getNextValue(Value* out, const wchar_t* /*name*/)
{
    return answer(out, m_currentOption == nullptr || isAtEndOfValues() ? nullptr : nextValue());
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

void ParseResult::refuseNameless()
{
    throw std::out_of_range("invalid vector<T> subscript");
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

// Whether a walk over values goes by those and by the range, as of any option that was given with
// one.
inline bool ParseResult::walksValuesInRange() const noexcept
{
    return m_currentOption->occurrences.hasBoth();
}

// Whether such a walk is at its end. Seen here, the end costs no calls; where it is not seen there
// may be no further value nevertheless.
inline bool ParseResult::isAtEndOfValues() const noexcept
{
    return walksValuesInRange() && m_currentOption->occurrences.isEnd(m_valueCursor);
}

// Begins a query of an option, null for none, and of a range. Answers whether there is an option.
inline bool ParseResult::beginQuery(const StoredOption* option, std::int32_t from,
                                    std::int32_t to) noexcept
{
    m_rangeFrom = from;
    m_rangeTo = to;
    m_currentOption = option;
    if (m_currentOption == nullptr)
    {
        return false;
    }
    m_valueCursor = m_currentOption->occurrences.begin();
    m_positionCursor = m_currentOption->occurrences.begin();
    return true;
}

// Whether the occurrence lies in the range, whose end is exclusive here.
bool ParseResult::isInRange(const Occurrence& occurrence) const noexcept
{
    return occurrence.position >= m_rangeFrom && occurrence.position < m_rangeTo;
}

// Moves the cursor to the first position in the range. Answers whether there is one.
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
inline const Occurrence* ParseResult::firstValue() noexcept
{
    const Occurrence* const first = m_currentOption->occurrences.first();
    if (first != nullptr && first->isBoth() && isInRange(*first))
    {
        // Whatever follows: this is the position that the range needs, and the first value.
        m_valueCursor = m_currentOption->occurrences.behindFirst();
        return first;
    }
    return firstUnusual();
}

// The same where the first occurrence is not it.
const Occurrence* ParseResult::firstUnusual() noexcept
{
    if (!walksOccurrences())
    {
        return m_currentOption->byDefault;
    }
    return findPosition() ? nextValue() : nullptr;
}

// The next value of the walk, or null. Needs a current option.
const Occurrence* ParseResult::nextValue() noexcept
{
    return walksValuesInRange() ? nextInRange() : nextUnusual();
}

const Occurrence* ParseResult::nextInRange() noexcept
{
    for (;;)
    {
        Occurrences::Place place = m_valueCursor;
        const Occurrence* const next = m_currentOption->occurrences.nextValue(place);
        // The upper bound is inclusive for values, exclusive for the first occurrence: on purpose.
        if (next == nullptr || (next->position > m_rangeTo && next->position >= m_rangeFrom))
        {
            return nullptr;
        }
        m_valueCursor = place;
        if (next->position >= m_rangeFrom)
        {
            return next;
        }
    }
}

// The same of an option without positions or without values.
const Occurrence* ParseResult::nextUnusual() noexcept
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

// NOLINTNEXTLINE(bugprone-exception-escape): the copy shares a block that is there.
inline result_t ParseResult::answer(Value* out, const Occurrence* found) noexcept
{
    if (found == nullptr)
    {
        return answerNothing(out);
    }
    if (out != nullptr)
    {
        out->status = result_success;
        out->data = found->text;
        out->position = found->position;
        found->copyValueTo(out->value, m_options.texts());
    }
    return result_success;
}

inline result_t ParseResult::answerNothing(Value* out) noexcept
{
    if (out != nullptr)
    {
        out->status = result_nothing;
        out->data = nullptr;
        out->position = no_position;
        if (!m_options.texts().reclaim(out->value))
        {
            // Goes last: the destructor of an object may ask for another value.
            vexkit2::variant_t before;
            before.swap(out->value);
        }
    }
    return result_nothing;
}

} // namespace kexa_3_3
