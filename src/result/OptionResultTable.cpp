#include "result/OptionResultTable.h"

#include <algorithm>
#include <cassert>
#include <utility>
#include <vector>

#include "options/OptionDescription.h"

namespace kexa_3_3
{

namespace
{

constexpr std::size_t expected_names = 32; // of a command line of usual size

// Returns whether every value has an occurrence of its own, as on a usual command line.
bool isPaired(const OptionResult& record) noexcept
{
    return std::equal(record.positions.begin(), record.positions.end(), record.values.begin(),
                      record.values.end(),
                      [](std::int32_t position, const ValueEntry& entry)
                      { return position == entry.position; });
}

} // namespace

OptionResultTable::OptionResultTable(Garbage& strings)
    : m_strings(strings), m_names(strings.memory(), expected_names), m_records(&strings.memory())
{
}

void OptionResultTable::store(const OptionDescription& option, OptionResult& record)
{
    assert(!option.names.empty());
    Occurrences added = makeOccurrences(record);
    if (StoredOption* const shared = findShared(option))
    {
        shared->occurrences.reserveMore(added.size());
        shared->occurrences.append(std::move(added));
        return;
    }
    storeElsewhere(option, std::move(added), makeDefault(record));
}

void OptionResultTable::storeValue(const OptionDescription& option, ValueEntry& value)
{
    assert(!option.names.empty());
    const wchar_t* const text = keepText(value);
    if (StoredOption* const shared = findShared(option))
    {
        shared->occurrences.appendValue(text, value.value, value.position, true);
        return;
    }
    Occurrences added(m_strings.memory());
    added.appendValue(text, value.value, value.position, true);
    storeElsewhere(option, std::move(added), std::nullopt);
}

const StoredOption* OptionResultTable::find(HashedText name) const noexcept
{
    const NamedRecord* const found = m_names.find(name);
    return found == nullptr ? nullptr : found->record;
}

bool OptionResultTable::isFilledFrom(std::uint64_t identity) const noexcept
{
    return std::all_of(m_records.begin(), m_records.end(),
                       [identity](const StoredOption& stored)
                       { return stored.source.index == identity; });
}

// Returns the record to which all names of the option lead, and no other name; or null.
StoredOption* OptionResultTable::findShared(const OptionDescription& option) noexcept
{
    // A record that was made for the option belongs to it alone until one of its names leads to
    // another record, or the option gets another name.
    const NamedRecord* const found = m_names.find(option.names.front());
    const bool isShared = found != nullptr && found->record->source.index != 0 &&
                          found->record->source == option.identity() &&
                          found->record->names == option.names.size();
    return isShared ? found->record : nullptr;
}

void OptionResultTable::storeElsewhere(const OptionDescription& option, Occurrences added,
                                       std::optional<Occurrence> byDefault)
{
    if (m_names.find(option.names.front()) != nullptr)
    {
        storeApart(option, added);
        return;
    }
    StoredOption& record = makeShared(option);
    record.byDefault = std::move(byDefault);
    record.occurrences.append(std::move(added));
}

// Makes an empty record for an option whose first name is new. The other names may lead to records
// of other options before. If this throws, new names among them may lead to an empty record, in
// which queries find nothing.
StoredOption& OptionResultTable::makeShared(const OptionDescription& option)
{
    m_names.reserveMore(option.names.size());
    StoredOption& record = m_records.emplace_back(option.identity(), m_strings.memory());
    // Keeping a name may fail. The first name comes last: by it the option is found.
    bool othersAreKnown = false;
    for (auto name = option.names.rbegin(); name != option.names.rend(); ++name)
    {
        if (m_names.find(*name) == nullptr)
        {
            bind(name->movedTo(m_strings.keep(name->text())), record);
        }
        else
        {
            othersAreKnown = true;
        }
    }
    if (othersAreKnown)
    {
        for (const HashedText name : option.names)
        {
            bind(name, record);
        }
    }
    return record;
}

// Stores an option whose names do not share one record: each name gets a record of its own, which
// for a new name starts as a copy of that of the first name. If this throws, names may have got
// records of their own, with the contents that they led to before.
void OptionResultTable::storeApart(const OptionDescription& option, const Occurrences& added)
{
    m_names.reserveMore(option.names.size());
    const StoredOption& first = *m_names.find(option.names.front())->record;
    for (const HashedText name : option.names)
    {
        const NamedRecord* const known = m_names.find(name);
        if (known == nullptr)
        {
            bind(name.movedTo(m_strings.keep(name.text())), copyRecord(first));
        }
        else if (known->record->names > 1)
        {
            bind(known->name, copyRecord(*known->record));
        }
        m_names.find(name)->record->occurrences.reserveMore(added.size());
    }

    // Nothing fails from here on. An option may list a name twice.
    ++m_storings;
    for (const HashedText name : option.names)
    {
        StoredOption& record = *m_names.find(name)->record;
        if (record.lastStoring != m_storings)
        {
            record.lastStoring = m_storings;
            record.occurrences.append(added);
        }
    }
}

StoredOption& OptionResultTable::copyRecord(const StoredOption& from)
{
    StoredOption copy(from);
    copy.source = OptionIdentity();
    copy.names = 0;
    return m_records.emplace_back(std::move(copy));
}

// Makes a name lead to a record. Preconditions for a new name: its text lies in the pool, and
// reserveMore() made room.
void OptionResultTable::bind(HashedText name, StoredOption& record) noexcept
{
    StoredOption*& target = m_names.findOrAdd(name).record;
    if (target == &record)
    {
        return;
    }
    if (target != nullptr)
    {
        --target->names;
    }
    target = &record;
    ++record.names;
}

// Moves what a record holds into a list of occurrences.
Occurrences OptionResultTable::makeOccurrences(OptionResult& record)
{
    Occurrences occurrences(m_strings.memory());
    occurrences.reserveMore(record.positions.size() + record.values.size());
    const bool paired = isPaired(record);
    if (!paired)
    {
        for (const std::int32_t position : record.positions)
        {
            occurrences.appendPosition(position);
        }
    }
    for (ValueEntry& entry : record.values)
    {
        occurrences.appendValue(keepText(entry), entry.value, entry.position, paired);
    }
    return occurrences;
}

// Returns the text of a value, which lives as long as the result. A string value contains it, in a
// block that never moves.
const wchar_t* OptionResultTable::keepText(const ValueEntry& entry)
{
    return entry.value.kind() == vexkit2::kind_wide_text ? entry.value.get<const wchar_t*>()
                                                         : m_strings.keep(entry.text).data();
}

// Returns the default that a record contains, or nothing.
std::optional<Occurrence> OptionResultTable::makeDefault(const OptionResult& record)
{
    std::optional<Occurrence> made;
    if (!record.defaultText.empty())
    {
        made.emplace();
        made->text = m_strings.keep(record.defaultText).data();
        made->value = record.defaultValue;
        made->position = static_cast<std::int32_t>(record.defaultPosition);
    }
    return made;
}

} // namespace kexa_3_3
