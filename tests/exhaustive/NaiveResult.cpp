#include "NaiveResult.h"

#include <set>

namespace naive
{

void Result::store(const Option& option, const Record& record)
{
    const auto found = m_records.find(option.primaryName());
    if (found == m_records.end())
    {
        for (const std::wstring& name : option.names)
        {
            m_records[name] = record;
        }
        return;
    }
    // A name without an entry starts with a copy of the primary name's entry. This happens if
    // another option that has the primary name among its own names made that entry.
    const Record before = found->second;
    // A name that is declared twice has one entry, to which the occurrence is added once.
    const std::set<std::wstring> names(option.names.begin(), option.names.end());
    for (const std::wstring& name : names)
    {
        Record& entry = m_records.emplace(name, before).first->second;
        for (const std::int32_t position : record.positions)
        {
            entry.positions.push_back(position);
        }
        for (const StoredValue& value : record.values)
        {
            entry.values.push_back(value);
        }
    }
}

bool Result::begin(const std::wstring& name, std::int32_t from, std::int32_t to)
{
    m_from = from;
    m_to = to;
    m_current = nullptr;
    const auto found = m_records.find(name);
    if (found == m_records.end())
    {
        return false;
    }
    m_current = &found->second;
    m_valueCursor = 0;
    m_positionCursor = 0;
    if (onDefault())
    {
        return true;
    }
    while (m_positionCursor < m_current->positions.size())
    {
        const std::int32_t position = m_current->positions[m_positionCursor];
        if (from <= position && position < to)
        {
            return true;
        }
        ++m_positionCursor;
    }
    return false;
}

bool Result::onDefault() const
{
    return m_current->positions.empty() && !m_current->defaultText.empty();
}

QueriedValue Result::queriedDefault() const
{
    QueriedValue queried;
    queried.code = 0;
    queried.hasText = true;
    queried.text = m_current->defaultText;
    queried.value = m_current->defaultValue;
    queried.position = m_current->defaultPosition;
    return queried;
}

bool Result::isPresent(const std::wstring& name, std::int32_t from, std::int32_t to)
{
    const bool present = begin(name, from, to);
    if (present && onDefault())
    {
        // With these bounds getNextValue() returns the default once.
        m_from = no_position;
        m_to = no_position;
    }
    return present;
}

QueriedValue Result::getFirstValue(const std::wstring& name, std::int32_t from, std::int32_t to)
{
    if (!begin(name, from, to))
    {
        return QueriedValue();
    }
    return onDefault() ? queriedDefault() : getNextValue();
}

QueriedValue Result::getNextValue()
{
    QueriedValue queried;
    if (m_current == nullptr)
    {
        return queried;
    }
    if (onDefault())
    {
        if (m_from != no_position || m_to != no_position)
        {
            return queried;
        }
        m_from = 0;
        m_to = no_position;
        return queriedDefault();
    }
    if (m_current->values.empty())
    {
        if (m_positionCursor < m_current->positions.size())
        {
            queried.code = 0;
            queried.position = m_current->positions[m_positionCursor++];
        }
        return queried;
    }
    while (m_valueCursor < m_current->values.size() &&
           m_current->values[m_valueCursor].position < m_from)
    {
        ++m_valueCursor;
    }
    // The upper bound is inclusive here, but exclusive for the first occurrence, in begin().
    if (m_valueCursor < m_current->values.size() &&
        m_current->values[m_valueCursor].position <= m_to)
    {
        const StoredValue& value = m_current->values[m_valueCursor++];
        queried.code = 0;
        queried.hasText = true;
        queried.text = value.text;
        queried.value = value.value;
        queried.position = value.position;
    }
    return queried;
}

std::int32_t Result::getNextPosition()
{
    if (m_current == nullptr || m_positionCursor >= m_current->positions.size())
    {
        return no_position;
    }
    return m_current->positions[m_positionCursor++];
}

QueriedValue Result::getLastValue(const std::wstring& name, std::int32_t from, std::int32_t to)
{
    QueriedValue last = getFirstValue(name, from, to);
    for (QueriedValue next = getNextValue(); next.code == 0; next = getNextValue())
    {
        last = next;
    }
    return last;
}

} // namespace naive
