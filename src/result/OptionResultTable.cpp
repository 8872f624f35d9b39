#include "result/OptionResultTable.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <span>
#include <utility>

#include "options/OptionDescription.h"
#include "support/Growth.h"

namespace kexa_3_3
{

namespace
{

constexpr std::size_t expected_names = 16; // room taken at once, for command lines of usual size

void makeRoom(OptionResult& target, const OptionResult& record)
{
    reserveMore(target.positions, record.positions.size());
    reserveMore(target.values, record.values.size());
}

// Appends into room made before, so without throwing: variants share their blocks.
// NOLINTNEXTLINE(bugprone-exception-escape): it cannot see the room.
void appendCopies(OptionResult& target, const OptionResult& record) noexcept
{
    target.positions.insert(target.positions.end(), record.positions.begin(),
                            record.positions.end());
    target.values.insert(target.values.end(), record.values.begin(), record.values.end());
}

void appendMoved(OptionResult& target, OptionResult& record) noexcept
{
    target.positions.insert(target.positions.end(), record.positions.begin(),
                            record.positions.end());
    std::move(record.values.begin(), record.values.end(), std::back_inserter(target.values));
}

bool isSharedBy(const StoredOption& stored, std::span<const HashedText> names) noexcept
{
    return std::equal(names.begin(), names.end(), stored.names.begin(), stored.names.end());
}

bool contains(std::span<const HashedText> names, const HashedText& name) noexcept
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace

void OptionResultTable::store(const OptionDescription& option, OptionResult& record)
{
    const Names names(option.names);
    const std::size_t index = option.tableIndex();
    StoredOption* known = index < m_guesses.size() ? m_guesses[index] : nullptr;
    if (known == nullptr || !isSharedBy(*known, names))
    {
        known = find(names.front());
        if (known == nullptr)
        {
            storeNew(names, record);
            return;
        }
        if (!isSharedBy(*known, names))
        {
            storeApart(names, record);
            return;
        }
        remember(index, known);
    }
    makeRoom(known->result, record);
    keepTexts(record);
    appendMoved(known->result, record);
}

// Notes the record of an option for the next time.
void OptionResultTable::remember(std::size_t index, StoredOption* stored)
{
    if (index >= m_guesses.size())
    {
        reserveMore(m_guesses, index + 1 - m_guesses.size(), expected_names);
        m_guesses.resize(index + 1);
    }
    m_guesses[index] = stored;
}

StoredOption* OptionResultTable::find(const HashedText& name) noexcept
{
    const std::uint32_t number = m_names.find(name);
    return number == TextTable::absent ? nullptr : m_records[m_recordOf[number]].get();
}

void OptionResultTable::storeNew(Names names, OptionResult& record)
{
    RecordPointer stored = makeRecord(names);
    makeRoom(stored->result, record);
    keepTexts(record);
    OptionResult& result = bind(std::move(stored)).result;
    appendMoved(result, record);
    result.defaultText = record.defaultText;
    result.defaultValue = record.defaultValue;
    result.defaultPosition = record.defaultPosition;
}

// Stores where the names do not share exactly one record: another declaration stored some of them.
void OptionResultTable::storeApart(Names names, OptionResult& record)
{
    const std::vector<StoredOption*> targets = takeRecords(names);
    for (StoredOption* const target : targets)
    {
        makeRoom(target->result, record);
    }
    keepTexts(record);
    for (StoredOption* const target : targets)
    {
        appendCopies(target->result, record);
    }
}

std::vector<StoredOption*> OptionResultTable::takeRecords(Names names)
{
    std::vector<StoredOption*> targets;
    for (const HashedText& name : names)
    {
        StoredOption* target = find(name);
        if (target == nullptr)
        {
            StoredOption& first = *find(names.front());
            RecordPointer joined = makeRecord(names.subspan(0, 1));
            joined->result = first.result;
            joined->names = first.names;
            joined->names.emplace_back(name, m_strings.keep(name));
            targets.erase(std::remove(targets.begin(), targets.end(), &first), targets.end());
            target = &bind(std::move(joined));
        }
        const auto foreign =
            std::find_if(target->names.begin(), target->names.end(),
                         [names](const HashedText& other) { return !contains(names, other); });
        if (foreign != target->names.end())
        {
            std::vector<HashedText> own;
            std::copy_if(target->names.begin(), target->names.end(), std::back_inserter(own),
                         [names](const HashedText& other) { return contains(names, other); });
            RecordPointer apart = makeRecord(own);
            apart->result = target->result;
            target = &bind(std::move(apart));
        }
        if (std::find(targets.begin(), targets.end(), target) == targets.end())
        {
            targets.push_back(target);
        }
    }
    return targets;
}

OptionResultTable::RecordPointer OptionResultTable::makeRecord(Names names)
{
    void* const memory = m_strings.memory().take(sizeof(StoredOption), alignof(StoredOption));
    RecordPointer stored(new (memory) StoredOption(m_memory));
    stored->names.reserve(names.size());
    for (const HashedText& name : names)
    {
        if (contains(stored->names, name))
        {
            continue; // an option may list a name twice; it is one entry all the same
        }
        const std::uint32_t number = m_names.find(name);
        stored->names.emplace_back(name, number == TextTable::absent
                                             ? m_strings.keep(name)
                                             : std::wstring_view(m_names.text(number)));
    }
    return stored;
}

StoredOption& OptionResultTable::bind(RecordPointer stored)
{
    // All that may throw comes first.
    m_names.reserve(stored->names.size());
    reserveMore(m_recordOf, stored->names.size(), expected_names);
    reserveMore(m_records, 1, expected_names);

    const auto record = static_cast<std::uint32_t>(m_records.size());
    for (const HashedText& name : stored->names)
    {
        const std::uint32_t number = m_names.insert(name);
        if (number == m_recordOf.size())
        {
            m_recordOf.push_back(record);
            continue;
        }
        std::pmr::vector<HashedText>& former = m_records[m_recordOf[number]]->names;
        former.erase(std::remove(former.begin(), former.end(), name), former.end());
        m_recordOf[number] = record;
    }
    m_records.push_back(std::move(stored));
    return *m_records.back();
}

void OptionResultTable::keepTexts(OptionResult& record)
{
    const auto keep = [this](std::wstring_view text, const vexkit2::variant_t& value)
    {
        // A string value holds its own text, in a block that stays where it is.
        return value.kind() == vexkit2::kind_wide_text
                   ? std::wstring_view(value.get<const wchar_t*>(), text.size())
                   : m_strings.keep(text);
    };
    for (ValueEntry& entry : record.values)
    {
        entry.text = keep(entry.text, entry.value);
    }
    if (!record.defaultText.empty())
    {
        record.defaultText = keep(record.defaultText, record.defaultValue);
    }
}

} // namespace kexa_3_3
