#include "result/OptionResultTable.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <utility>

#include "options/OptionDescription.h"
#include "options/OptionIndex.h"
#include "support/Growth.h"

namespace kexa_3_3
{

namespace
{

constexpr std::size_t expected_names = 32; // room taken at once, for command lines of usual size
constexpr std::size_t largest_table_in_pool = 2048; // bytes; larger ones are freed as they grow

// These append into room made before, so without throwing.

void appendPositions(StoredOption& target, const OptionResult& record) noexcept
{
    for (const std::int32_t position : record.positions)
    {
        target.positions.push_back(position);
    }
}

void appendCopies(StoredOption& target, const OptionResult& record) noexcept
{
    appendPositions(target, record);
    for (const ValueEntry& entry : record.values)
    {
        target.values.push_back({entry.text.data(), entry.value, entry.position});
    }
}

bool isSharedBy(const StoredOption& stored, std::span<const HashedText> names) noexcept
{
    return std::equal(names.begin(), names.end(), stored.names.begin(), stored.names.end());
}

template <class Names>
bool contains(const Names& names, const HashedText& name) noexcept
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace

OptionResultTable::OptionResultTable(Garbage& strings)
    : m_strings(strings), m_memory(strings.memory(), largest_table_in_pool), m_recalled(&m_memory),
      m_names(&m_memory), m_slots(m_memory), m_records(&m_memory)
{
}

void OptionResultTable::store(const OptionDescription& option, OptionResult& record)
{
    const Place place = locate(option);
    if (place.apart)
    {
        storeApart(Names(option.names), record);
    }
    else if (place.record != nullptr)
    {
        append(*place.record, record);
    }
    else
    {
        storeNew(option,
                 [this, &record](StoredOption& stored)
                 {
                     if (!record.defaultText.empty())
                     {
                         stored.defaultText = keptText(record.defaultText, record.defaultValue);
                     }
                     append(stored, record);
                     stored.defaultValue = record.defaultValue;
                     stored.defaultPosition = record.defaultPosition;
                 });
    }
}

void OptionResultTable::storeValue(const OptionDescription& option, ValueEntry& value)
{
    const Place place = locate(option);
    if (place.apart)
    {
        OptionResult record;
        record.positions.push_back(value.position);
        record.values.push_back(value);
        storeApart(Names(option.names), record);
    }
    else if (place.record != nullptr)
    {
        append(*place.record, value);
    }
    else
    {
        storeNew(option, [this, &value](StoredOption& stored) { append(stored, value); });
    }
}

// Where to store an occurrence of an option.
OptionResultTable::Place OptionResultTable::locate(const OptionDescription& option)
{
    const Names names(option.names);
    const bool isOwnRecord = noteSource(option.index());
    StoredOption* known = recall(option.tableIndex());
    if (isOwnRecord && (known == nullptr || known->names.size() == names.size()))
    {
        return {known, false}; // names are only ever added, so they are the same
    }
    if (known == nullptr || !isSharedBy(*known, names))
    {
        known = find(names.front());
        if (known != nullptr && !isSharedBy(*known, names))
        {
            return {known, true};
        }
        remember(option.tableIndex(), known);
    }
    return {known, false};
}

// Notes where an option comes from. Answers whether all that is stored comes from one table of
// options in which no two have a name in common, so that the record recalled for an option is its
// own, and where there is none, the option was never stored.
bool OptionResultTable::noteSource(const OptionIndex* index) noexcept
{
    const std::uint64_t source = index == nullptr ? several_sources : index->identity();
    if (m_source != source)
    {
        m_source = m_source == no_source ? source : several_sources;
    }
    return m_source != several_sources && !index->sharesNames();
}

bool OptionResultTable::isFilledFrom(const OptionIndex& index) const noexcept
{
    return m_source == index.identity() || m_names.empty();
}

StoredOption* OptionResultTable::recall(std::size_t tableIndex) const noexcept
{
    return tableIndex < m_recalled.size() ? m_recalled[tableIndex] : nullptr;
}

void OptionResultTable::remember(std::size_t tableIndex, StoredOption* stored)
{
    if (tableIndex >= m_recalled.size())
    {
        reserveMore(m_recalled, tableIndex + 1 - m_recalled.size(), expected_names);
        m_recalled.resize(tableIndex + 1);
    }
    m_recalled[tableIndex] = stored;
}

StoredOption* OptionResultTable::find(const HashedText& name) noexcept
{
    if (m_names.empty())
    {
        return nullptr;
    }
    const std::uint32_t number = m_slots.numberAt(m_slots.slotOf(name, textOf()));
    return number == TextSlots::absent ? nullptr : m_names[number].record;
}

void OptionResultTable::append(StoredOption& target, ValueEntry& value)
{
    makeRoom(target, 1, 1);
    const wchar_t* const text = keptText(value.text, value.value).data();
    target.positions.push_back(value.position);
    target.values.push_back({text, std::move(value.value), value.position});
}

void OptionResultTable::append(StoredOption& target, OptionResult& record)
{
    makeRoom(target, record.positions.size(), record.values.size());
    keepTexts(record);
    appendPositions(target, record);
    for (ValueEntry& entry : record.values)
    {
        target.values.push_back({entry.text.data(), std::move(entry.value), entry.position});
    }
}

// Makes a record for an option that was never stored. fill: stores into it; where that throws, the
// table is as before.
template <class Fill>
void OptionResultTable::storeNew(const OptionDescription& option, Fill fill)
{
    RecordPointer stored = makeRecord(Names(option.names));
    StoredOption& target = *stored;
    reserveFor(target.names.size(), 1);
    remember(option.tableIndex(), nullptr); // makes room for it
    fill(target);
    m_recalled[option.tableIndex()] = &bind(std::move(stored));
}

// Stores where the names do not share exactly one record: another declaration stored some of them.
// All that may throw comes before the first change that can be seen.
void OptionResultTable::storeApart(Names names, OptionResult& record)
{
    std::vector<Part> parts = partsOf(names);
    for (Part& part : parts)
    {
        if (!part.isWhole)
        {
            part.copy = copyRecord(*part.record, part.names);
            part.record = part.copy.get();
        }
        makeRoom(*part.record, record.positions.size(), record.values.size());
    }
    reserveFor(names.size(), parts.size());
    keepTexts(record);
    for (Part& part : parts)
    {
        appendCopies(part.copy == nullptr ? *part.record : bind(std::move(part.copy)), record);
    }
}

std::vector<OptionResultTable::Part> OptionResultTable::partsOf(Names names)
{
    std::vector<Part> parts;
    std::size_t absent = 0;
    for (const HashedText& name : names)
    {
        StoredOption* const known = find(name);
        StoredOption* const record = known != nullptr ? known : find(names.front());
        auto part = std::find_if(parts.begin(), parts.end(),
                                 [record](const Part& other) { return other.record == record; });
        if (part == parts.end())
        {
            part = parts.insert(parts.end(), Part());
            part->record = record;
        }
        if (!contains(part->names, name))
        {
            part->names.push_back(name);
            absent += known == nullptr ? 1 : 0;
        }
    }
    for (Part& part : parts)
    {
        // Absent names join the record of the first one, whose part is the first as well.
        const std::size_t joining = &part == parts.data() ? absent : 0;
        part.isWhole = joining == 0 && part.names.size() == part.record->names.size();
    }
    return parts;
}

OptionResultTable::RecordPointer OptionResultTable::makeRecord(Names names)
{
    Arena& arena = m_strings.memory();
    RecordPointer stored(new (arena.take(sizeof(StoredOption), alignof(StoredOption)))
                             StoredOption());
    stored->names.reserveMore(names.size(), arena);
    for (const HashedText& name : names)
    {
        // An option may list a name twice; it is one entry all the same.
        if (stored->names.empty() || !contains(stored->names, name))
        {
            stored->names.push_back(HashedText(name, m_strings.keep(name)));
        }
    }
    return stored;
}

OptionResultTable::RecordPointer OptionResultTable::copyRecord(const StoredOption& from,
                                                               Names names)
{
    RecordPointer copy = makeRecord(names);
    makeRoom(*copy, from.positions.size(), from.values.size());
    for (const std::int32_t position : from.positions)
    {
        copy->positions.push_back(position);
    }
    for (const StoredValue& value : from.values)
    {
        copy->values.push_back(value);
    }
    copy->defaultText = from.defaultText;
    copy->defaultValue = from.defaultValue;
    copy->defaultPosition = from.defaultPosition;
    return copy;
}

// Makes room in the tables.
void OptionResultTable::reserveFor(std::size_t names, std::size_t records)
{
    if (m_names.size() + names > m_room)
    {
        const std::size_t room = std::max({m_names.size() + names, 2 * m_room, expected_names});
        m_names.reserve(room);
        m_slots.reserve(room);
        m_room = room;
    }
    reserveMore(m_records, records, expected_names);
}

StoredOption& OptionResultTable::bind(RecordPointer stored) noexcept
{
    for (const HashedText& name : stored->names)
    {
        const std::size_t slot = m_slots.slotOf(name, textOf());
        const std::uint32_t number = m_slots.numberAt(slot);
        if (number == TextSlots::absent)
        {
            m_slots.put(slot, static_cast<std::uint32_t>(m_names.size()), name);
            m_names.push_back({name, stored.get()});
            continue;
        }
        m_names[number].record->names.removeIf([&name](const HashedText& other)
                                               { return other == name; });
        m_names[number].record = stored.get();
    }
    m_records.push_back(std::move(stored));
    return *m_records.back();
}

void OptionResultTable::makeRoom(StoredOption& target, std::size_t positions, std::size_t values)
{
    target.positions.reserveMore(positions, m_strings.memory());
    target.values.reserveMore(values, m_strings.memory());
}

// Gives the texts of a record's values the lifetime of the table.
void OptionResultTable::keepTexts(OptionResult& record)
{
    for (ValueEntry& entry : record.values)
    {
        entry.text = keptText(entry.text, entry.value);
    }
}

// A string value holds its own text, in a block that stays where it is.
std::wstring_view OptionResultTable::keptText(std::wstring_view text,
                                              const vexkit2::variant_t& value)
{
    return value.kind() == vexkit2::kind_wide_text
               ? std::wstring_view(value.get<const wchar_t*>(), text.size())
               : m_strings.keep(text);
}

} // namespace kexa_3_3
