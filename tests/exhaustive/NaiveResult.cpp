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
    // An entry under the primary name alone came from another option, one with that name among its
    // own; the further names start where the primary name stands.
    const Record before = found->second;
    // A name that the option lists twice is one entry all the same, and grows once.
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

ValueAnswer Result::defaultAnswer() const
{
    ValueAnswer answer;
    answer.code = 0;
    answer.hasText = true;
    answer.text = m_current->defaultText;
    answer.value = m_current->defaultValue;
    answer.position = m_current->defaultPosition;
    return answer;
}

bool Result::isPresent(const std::wstring& name, std::int32_t from, std::int32_t to)
{
    const bool present = begin(name, from, to);
    if (present && onDefault())
    {
        // Lets a following getNextValue give the default once.
        m_from = no_position;
        m_to = no_position;
    }
    return present;
}

ValueAnswer Result::getFirstValue(const std::wstring& name, std::int32_t from, std::int32_t to)
{
    if (!begin(name, from, to))
    {
        return ValueAnswer();
    }
    return onDefault() ? defaultAnswer() : getNextValue();
}

ValueAnswer Result::getNextValue()
{
    ValueAnswer answer;
    if (m_current == nullptr)
    {
        return answer;
    }
    if (onDefault())
    {
        if (m_from != no_position || m_to != no_position)
        {
            return answer;
        }
        m_from = 0;
        m_to = no_position;
        return defaultAnswer();
    }
    if (m_current->values.empty())
    {
        if (m_positionCursor < m_current->positions.size())
        {
            answer.code = 0;
            answer.position = m_current->positions[m_positionCursor++];
        }
        return answer;
    }
    while (m_valueCursor < m_current->values.size() &&
           m_current->values[m_valueCursor].position < m_from)
    {
        ++m_valueCursor;
    }
    // The upper bound is inclusive here, though the walk's first occurrence must lie below it.
    if (m_valueCursor < m_current->values.size() &&
        m_current->values[m_valueCursor].position <= m_to)
    {
        const StoredValue& value = m_current->values[m_valueCursor++];
        answer.code = 0;
        answer.hasText = true;
        answer.text = value.text;
        answer.value = value.value;
        answer.position = value.position;
    }
    return answer;
}

std::int32_t Result::getNextPosition()
{
    if (m_current == nullptr || m_positionCursor >= m_current->positions.size())
    {
        return no_position;
    }
    return m_current->positions[m_positionCursor++];
}

ValueAnswer Result::getLastValue(const std::wstring& name, std::int32_t from, std::int32_t to)
{
    ValueAnswer last = getFirstValue(name, from, to);
    for (ValueAnswer next = getNextValue(); next.code == 0; next = getNextValue())
    {
        last = next;
    }
    return last;
}

} // namespace naive
