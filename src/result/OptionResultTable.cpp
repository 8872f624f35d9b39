#include "result/OptionResultTable.h"

#include <algorithm>
#include <memory>
#include <new>

#include "options/OptionDescription.h"
#include "options/OptionIndex.h"
#include "support/Growth.h"

namespace kexa_3_3
{

namespace
{

constexpr std::size_t expected_names = 32; // room taken at once, for command lines of usual size
constexpr std::size_t largest_table_in_pool = 2048; // bytes; larger ones are freed as they grow

// Whether every value is that of an occurrence of its own, as those of a command line are.
bool isPaired(const OptionResult& record) noexcept
{
    return std::equal(record.positions.begin(), record.positions.end(), record.values.begin(),
                      record.values.end(),
                      [](std::int32_t position, const ValueEntry& entry)
                      { return position == entry.position; });
}

// How many entries of a list the record takes.
std::size_t entriesOf(const OptionResult& record) noexcept
{
    return isPaired(record) ? record.values.size() : record.positions.size() + record.values.size();
}

// Hands the entries of the record to `append`, which does not throw.
template <class Take, class Append>
void forEachEntry(OptionResult& record, Take take, Append append) noexcept
{
    const bool paired = isPaired(record);
    if (!paired)
    {
        for (const std::int32_t position : record.positions)
        {
            append(Occurrence{.position = position, .isPosition = true});
        }
    }
    for (ValueEntry& entry : record.values)
    {
        Occurrence occurrence = take(entry);
        occurrence.isPosition = paired;
        append(occurrence);
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
      m_names(&m_memory), m_slots(m_memory), m_shares(&m_memory)
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
                     stored.byDefault = makeDefault(record);
                     append(stored, record);
                 });
    }
}

void OptionResultTable::storeValue(const OptionDescription& option, ValueEntry& value)
{
    if (StoredOption* const known = ownRecord(option))
    {
        append(*known, value);
        return;
    }
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

// The record of an option where it is known at once, else null.
StoredOption* OptionResultTable::ownRecord(const OptionDescription& option) const noexcept
{
    const OptionIndex* const index = option.index();
    const std::size_t place = option.tableIndex();
    if (index == nullptr || index->identity() != m_source || index->sharesNames() ||
        place >= m_recalled.size())
    {
        return nullptr;
    }
    StoredOption* const known = m_recalled[place];
    // Names are only ever added: as many are the same.
    return known != nullptr && known->names.size() == option.names.size() ? known : nullptr;
}

// Where to store an occurrence of an option.
OptionResultTable::Place OptionResultTable::locate(const OptionDescription& option)
{
    const Names names(option.names);
    const bool isOwnRecord = noteSource(option.index());
    StoredOption* known = recall(option.tableIndex());
    if (isOwnRecord && (known == nullptr || known->names.size() == names.size()))
    {
        return {known, false};
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
        m_recalled.resize(m_recalled.capacity());
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
    target.occurrences.reserveMore(1, m_strings.memory());
    keep(value);
    Occurrence occurrence = take(value);
    occurrence.isPosition = true;
    target.occurrences.append(occurrence);
}

void OptionResultTable::append(StoredOption& target, OptionResult& record)
{
    target.occurrences.reserveMore(entriesOf(record), m_strings.memory());
    keep(record);
    forEachEntry(
        record, [this](ValueEntry& entry) { return take(entry); },
        [&target](const Occurrence& occurrence) { target.occurrences.append(occurrence); });
}

// Makes a record for an option that was never stored. fill: stores into it; where that throws, the
// table is as before.
template <class Fill>
void OptionResultTable::storeNew(const OptionDescription& option, Fill fill)
{
    StoredOption& stored = makeRecord(Names(option.names));
    reserveFor(stored.names.size());
    remember(option.tableIndex(), nullptr); // makes room for it
    fill(stored);
    bind(stored);
    m_recalled[option.tableIndex()] = &stored;
}

// Stores where the names do not share exactly one record: another declaration stored some of them.
// All that may throw comes before the first change that can be seen.
void OptionResultTable::storeApart(Names names, OptionResult& record)
{
    const std::size_t count = entriesOf(record);
    std::vector<Part> parts = partsOf(names);
    for (Part& part : parts)
    {
        if (!part.isWhole)
        {
            part.record = &copyRecord(*part.record, part.names);
        }
        part.record->occurrences.reserveMore(count, m_strings.memory());
    }
    reserveFor(names.size());
    std::vector<Occurrence> occurrences;
    occurrences.reserve(count);
    keep(record);
    forEachEntry(
        record, [this](ValueEntry& entry) { return take(entry); },
        [&occurrences](const Occurrence& occurrence) { occurrences.push_back(occurrence); });
    for (const Part& part : parts)
    {
        for (const Occurrence& occurrence : occurrences)
        {
            part.record->occurrences.append(occurrence);
        }
        if (!part.isWhole)
        {
            bind(*part.record);
        }
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

StoredOption& OptionResultTable::makeRecord(Names names)
{
    static_assert(alignof(StoredOption) >= alignof(HashedText));
    // The record, its names and their texts lie in one piece.
    std::size_t size = sizeof(StoredOption) + names.size() * sizeof(HashedText);
    for (const HashedText& name : names)
    {
        size += (name.size() + 1) * sizeof(wchar_t);
    }
    void* const memory = m_strings.memory().take(size, alignof(StoredOption));
    auto& stored = *new (memory) StoredOption();
    auto* const kept = static_cast<HashedText*>(static_cast<void*>(&stored + 1));
    auto* text = static_cast<wchar_t*>(static_cast<void*>(kept + names.size()));
    std::size_t count = 0;
    for (const HashedText& name : names)
    {
        // An option may list a name twice; it is one entry all the same.
        if (count == 0 || !contains(stored.names, name))
        {
            std::construct_at(kept + count, name, Garbage::copyInto(text, name));
            text += name.size() + 1;
            stored.names = {kept, ++count};
        }
    }
    return stored;
}

StoredOption& OptionResultTable::copyRecord(const StoredOption& from, Names names)
{
    StoredOption& copy = makeRecord(names);
    copy.occurrences.reserveMore(from.occurrences.size(), m_strings.memory());
    Occurrences::Place place = from.occurrences.begin();
    while (const Occurrence* const occurrence = from.occurrences.next(place))
    {
        copy.occurrences.append(*occurrence);
    }
    copy.byDefault = from.byDefault;
    return copy;
}

// Makes room in the tables.
void OptionResultTable::reserveFor(std::size_t names)
{
    if (m_names.size() + names > m_room)
    {
        const std::size_t room = std::max({m_names.size() + names, 2 * m_room, expected_names});
        m_names.reserve(room);
        m_slots.reserve(room);
        m_room = room;
    }
}

// Lets names find a record. They leave those that they found before.
void OptionResultTable::bind(StoredOption& stored) noexcept
{
    for (const HashedText& name : stored.names)
    {
        const std::size_t slot = m_slots.slotOf(name, textOf());
        const std::uint32_t number = m_slots.numberAt(slot);
        if (number == TextSlots::absent)
        {
            m_slots.put(slot, static_cast<std::uint32_t>(m_names.size()), name);
            m_names.push_back({name, &stored});
            continue;
        }
        std::span<HashedText>& left = m_names[number].record->names;
        const auto end = std::remove(left.begin(), left.end(), name);
        left = {left.begin(), end};
        m_names[number].record = &stored;
    }
}

// The default to store with a new record, or null.
const Occurrence* OptionResultTable::makeDefault(const OptionResult& record)
{
    if (record.defaultText.empty())
    {
        return nullptr;
    }
    ValueEntry entry = {record.defaultText, record.defaultValue,
                        static_cast<std::int32_t>(record.defaultPosition)};
    void* const memory = m_strings.memory().take(sizeof(Occurrence), alignof(Occurrence));
    keep(entry);
    return new (memory) Occurrence(take(entry));
}

// Gives what an entry refers to the lifetime of the table.
void OptionResultTable::keep(ValueEntry& entry)
{
    switch (entry.value.kind())
    {
    case vexkit2::kind_wide_text:
        // A string value holds its own text, in a block that stays where it is.
        entry.text = {entry.value.get<const wchar_t*>(), entry.text.size()};
        if (!m_texts.made(entry.value))
        {
            m_shares.push_front(entry.value);
        }
        break;
    case vexkit2::kind_narrow_text:
    case vexkit2::kind_blob:
    case vexkit2::kind_object:
        m_shares.push_front(entry.value);
        [[fallthrough]];
    default:
        entry.text = m_strings.keep(entry.text);
    }
}

void OptionResultTable::keep(OptionResult& record)
{
    for (ValueEntry& entry : record.values)
    {
        keep(entry);
    }
}

// Takes the value out of an entry that is kept.
Occurrence OptionResultTable::take(ValueEntry& entry) noexcept
{
    Occurrence occurrence = {.text = entry.text.data(),
                             .position = entry.position,
                             .kind = static_cast<std::uint16_t>(entry.value.kind()),
                             .isValue = true};
    if (m_texts.made(entry.value))
    {
        occurrence.word = SharedTexts::takeBack(entry.value);
    }
    else
    {
        occurrence.word = entry.value.detach();
        // The share that came with it is given up here: m_shares has another one.
        static_cast<void>(vexkit2::variant_t::attach(occurrence.kind, occurrence.word));
    }
    return occurrence;
}

} // namespace kexa_3_3
