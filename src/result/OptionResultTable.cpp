#include "result/OptionResultTable.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <numeric>

#include "options/OptionDescription.h"
#include "options/OptionIndex.h"

namespace kexa_3_3
{

namespace
{

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

// Hands the entries of the record to `append`: its positions, and what `take` makes of its values.
// Neither of the two throws.
template <class Take, class Append>
void forEachEntry(OptionResult& record, Take take, Append append) noexcept
{
    const bool paired = isPaired(record);
    if (!paired)
    {
        for (const std::int32_t position : record.positions)
        {
            append(Occurrence{.position = position, .parts = Occurrence::position_part});
        }
    }
    for (ValueEntry& entry : record.values)
    {
        Occurrence occurrence = take(entry);
        occurrence.parts = paired ? Occurrence::both_parts : Occurrence::value_part;
        append(occurrence);
    }
}

// How many characters the texts of names take with the zeros behind them.
std::size_t lengthOf(std::span<const HashedText> names) noexcept
{
    return std::accumulate(names.begin(), names.end(), names.size(),
                           [](std::size_t length, const HashedText& name)
                           { return length + name.size(); });
}

// The same of names, one at least, whose texts lie one behind the other.
std::size_t lengthOfJoined(std::span<const HashedText> names) noexcept
{
    const wchar_t* const end = names.back().data() + names.back().size() + 1;
    return static_cast<std::size_t>(end - names.front().data());
}

} // namespace

OptionResultTable::OptionResultTable(Garbage& strings)
    : m_strings(strings), m_memory(strings.memory(), largest_table_in_pool),
      m_recalled(m_firstRecalled.data()), m_names(firstNames()),
      m_slots(m_memory, m_firstSlots.bytes()), m_shares(&m_memory)
{
}

OptionResultTable::~OptionResultTable()
{
    moveInto(m_recalled, m_firstRecalled.data(), 0, m_recalledSize, 0);
    moveInto(m_names, firstNames(), 0, m_room, 0);
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
        reserveToRecall(option.tableIndex());
        StoredOption& stored = makeRecord(Names(option.names), option.namesAreJoined);
        stored.byDefault = makeDefault(record);
        append(stored, record);
        enter(option, stored, place);
    }
}

void OptionResultTable::storeValue(const OptionDescription& option, ValueEntry& value)
{
    const Place place = locate(option);
    if (place.apart) [[unlikely]]
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
        storeNewValue(option, value, place);
    }
}

// The same of an option that was never stored.
void OptionResultTable::storeNewValue(const OptionDescription& option, ValueEntry& value,
                                      const Place& place)
{
    reserveToRecall(option.tableIndex());
    StoredOption& stored =
        makeRecord(Names(option.names), option.namesAreJoined, [&] { return adoptPaired(value); });
    enter(option, stored, place);
}

// Lets the option find its record, once something is stored there.
inline void OptionResultTable::enter(const OptionDescription& option, StoredOption& stored,
                                     const Place& place) noexcept
{
    if (place.namesAreNew) [[likely]]
    {
        bindNew(Names(option.names), stored);
    }
    else
    {
        bind(Names(option.names), stored);
    }
    m_recalled[option.tableIndex()] = &stored;
}

StoredOption* OptionResultTable::find(const HashedText& name) const noexcept
{
    const std::uint32_t number = m_slots.numberAt(m_slots.slotOf(name, textOf()));
    return number == TextSlots::absent ? nullptr : m_names[number].record;
}

// Here begins every query of values. Called from one place only, so that the compiler puts it
// there.
StoredOption* OptionResultTable::findTerminated(const wchar_t* name) const noexcept
{
    // The search is for the hash, which keeps it small: what it finds is the name, or else a rare
    // other one with the same hash.
    const HashedText text = HashedText::ofTerminated(name);
    const std::uint32_t number = m_slots.numberAt(m_slots.slotOf(text, onlyHashOf()));
    if (number == TextSlots::absent)
    {
        return nullptr;
    }
    const Name& found = m_names[number];
    return found.text == text ? found.record
                              : find(HashedText(found.text, {text.data(), text.size()}));
}

// Whether all that is stored comes from one table of options, this one, in which no two have a name
// in common. Then the record recalled for an option is its own, and where there is none, the option
// was never stored.
bool OptionResultTable::isOnlySource(const OptionIndex* index) const noexcept
{
    return index != nullptr && index->identity() == m_source && !index->sharesNames();
}

// Where to store an occurrence of an option.
inline OptionResultTable::Place OptionResultTable::locate(const OptionDescription& option)
{
    if (isOnlySource(option.index())) [[likely]]
    {
        StoredOption* const known = recall(option.tableIndex());
        if (known == nullptr || known->names == option.names.size())
        {
            return {.record = known, .namesAreNew = known == nullptr};
        }
    }
    return locateAnywhere(option);
}

// The same of an option from anywhere.
OptionResultTable::Place OptionResultTable::locateAnywhere(const OptionDescription& option)
{
    const Names names(option.names);
    noteSource(option.index());
    StoredOption* known = recall(option.tableIndex());
    if (isOnlySource(option.index()) && known == nullptr)
    {
        return {.namesAreNew = true};
    }
    if (known == nullptr || !isSharedBy(*known, names))
    {
        known = find(names.front());
        if (known != nullptr && !isSharedBy(*known, names))
        {
            return {.record = known, .apart = true};
        }
        remember(option.tableIndex(), known);
    }
    return {.record = known};
}

// Whether just these names, each of them listed once, find the record.
bool OptionResultTable::isSharedBy(const StoredOption& stored, Names names) const noexcept
{
    if (stored.names != names.size())
    {
        return false;
    }
    // Names that a record was made for usually follow each other. A name that left shows another
    // record.
    const auto isNameOf = [&stored](const HashedText& name, const Name& known)
    {
        return known.record == &stored && known.text == name;
    };
    if (m_size - stored.firstName >= names.size() &&
        std::equal(names.begin(), names.end(), m_names + stored.firstName, isNameOf))
    {
        return true;
    }
    // Others joined it later.
    for (const HashedText* name = names.data(); name != names.data() + names.size(); ++name)
    {
        if (find(*name) != &stored || std::find(names.data(), name, *name) != name)
        {
            return false;
        }
    }
    return true;
}

// Notes where an option comes from.
void OptionResultTable::noteSource(const OptionIndex* index) noexcept
{
    const std::uint64_t source = index == nullptr ? several_sources : index->identity();
    if (m_source != source)
    {
        m_source = m_source == no_source ? source : several_sources;
    }
}

bool OptionResultTable::isFilledFrom(const OptionIndex& index) const noexcept
{
    return m_source == index.identity() || m_size == 0;
}

StoredOption* OptionResultTable::recall(std::size_t tableIndex) const noexcept
{
    return tableIndex < m_recalledSize ? m_recalled[tableIndex] : nullptr;
}

void OptionResultTable::remember(std::size_t tableIndex, StoredOption* stored)
{
    reserveToRecall(tableIndex);
    m_recalled[tableIndex] = stored;
}

inline void OptionResultTable::append(StoredOption& target, ValueEntry& value)
{
    target.occurrences.reserveMore(1, m_strings.memory());
    target.occurrences.appendMade([&] { return adoptPaired(value); });
}

void OptionResultTable::append(StoredOption& target, OptionResult& record)
{
    target.occurrences.reserveMore(entriesOf(record), m_strings.memory());
    keep(record);
    forEachEntry(
        record, [this](ValueEntry& entry) { return take(entry); },
        [&target](const Occurrence& occurrence) { target.occurrences.append(occurrence); });
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
            bind(part.names, *part.record);
        }
    }
}

std::vector<OptionResultTable::Part> OptionResultTable::partsOf(Names names) const
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
        if (std::find(part->names.begin(), part->names.end(), name) == part->names.end())
        {
            part->names.push_back(name);
            absent += known == nullptr ? 1 : 0;
        }
    }
    for (Part& part : parts)
    {
        // Absent names join the record of the first one, whose part is the first as well.
        const std::size_t joining = &part == parts.data() ? absent : 0;
        part.isWhole = joining == 0 && part.names.size() == part.record->names;
    }
    return parts;
}

template <class... MakeFirst>
inline StoredOption& OptionResultTable::makeRecord(Names names, bool joined, MakeFirst... makeFirst)
{
    static_assert(alignof(StoredOption) >= alignof(wchar_t));
    // The record lies in one piece with the texts of its names, each with the zero behind it.
    const std::size_t length = joined ? lengthOfJoined(names) : lengthOf(names);
    reserveFor(names.size());
    const std::size_t size = sizeof(StoredOption) + length * sizeof(wchar_t);
    void* const memory = m_strings.memory().take(size, alignof(StoredOption));
    if (joined) [[likely]]
    {
        std::memcpy(textsOf(memory), names.front().data(), length * sizeof(wchar_t));
    }
    else
    {
        copyTexts(names, textsOf(memory));
    }
    return *new (memory) StoredOption(makeFirst...);
}

// Copies the texts of names one behind the other.
void OptionResultTable::copyTexts(Names names, wchar_t* room) noexcept
{
    for (const HashedText& name : names)
    {
        room += Garbage::copyInto(room, name).size() + 1;
    }
}

// Where the texts of a record's names begin.
wchar_t* OptionResultTable::textsOf(void* record) noexcept
{
    std::byte* const behind = static_cast<std::byte*>(record) + sizeof(StoredOption);
    return static_cast<wchar_t*>(static_cast<void*>(behind));
}

StoredOption& OptionResultTable::copyRecord(const StoredOption& from, Names names)
{
    StoredOption& copy = makeRecord(names, false);
    copy.occurrences.reserveMore(from.occurrences.size(), m_strings.memory());
    Occurrences::Place place = from.occurrences.begin();
    while (const Occurrence* const occurrence = from.occurrences.next(place))
    {
        copy.occurrences.append(*occurrence);
    }
    copy.byDefault = from.byDefault;
    return copy;
}

// Makes room for names to be added.
void OptionResultTable::growNames(std::size_t names)
{
    const std::size_t room = std::max(m_size + names, std::size_t{2} * m_room);
    m_slots.reserve(room);
    moveInto(m_names, firstNames(), m_size, m_room, room);
    m_room = static_cast<std::uint32_t>(room);
}

void OptionResultTable::growRecalled(std::size_t size)
{
    const std::size_t room = std::max(size, 2 * m_recalledSize);
    moveInto(m_recalled, m_firstRecalled.data(), m_recalledSize, m_recalledSize, room);
    std::fill(m_recalled + m_recalledSize, m_recalled + room, nullptr);
    m_recalledSize = room;
}

// Gives entries other memory, or none. They are no tables of their own: one size and one room serve
// the names and their slots. Throws std::bad_alloc, changing nothing.
//
// first:        where entries lie at first, in memory that is part of the table.
// used:         how many entries to copy.
// before, room: how many there was and is memory for.
template <class Entry>
void OptionResultTable::moveInto(Entry*& entries, const Entry* first, std::size_t used,
                                 std::size_t before, std::size_t room)
{
    // NOLINTNEXTLINE(bugprone-sizeof-expression): entries may be pointers.
    constexpr std::size_t size = sizeof(Entry);
    Entry* moved = nullptr;
    if (room != 0)
    {
        moved = static_cast<Entry*>(m_memory.allocate(room * size, alignof(Entry)));
        std::uninitialized_copy_n(entries, used, moved);
    }
    if (entries != first)
    {
        m_memory.deallocate(entries, before * size, alignof(Entry));
    }
    entries = moved;
}

// Lets names find the record that was made for them. They leave those that they found before.
void OptionResultTable::bind(Names names, StoredOption& stored) noexcept
{
    const wchar_t* text = textsOf(&stored);
    stored.firstName = m_size;
    for (const HashedText& name : names)
    {
        const std::size_t slot = m_slots.slotOf(name, textOf());
        const std::uint32_t number = m_slots.numberAt(slot);
        if (number == TextSlots::absent)
        {
            m_slots.put(slot, m_size, name);
            const HashedText kept(name, {text, name.size()});
            std::construct_at(m_names + m_size, Name{kept, &stored});
            ++m_size;
            ++stored.names;
        }
        else if (m_names[number].record != &stored) // An option may list a name twice.
        {
            --m_names[number].record->names;
            m_names[number].record = &stored;
            stored.firstName = stored.names == 0 ? number : stored.firstName;
            ++stored.names;
        }
        text += name.size() + 1;
    }
}

// The same of names that find nothing yet, none of them listed twice.
inline void OptionResultTable::bindNew(Names names, StoredOption& stored) noexcept
{
    const wchar_t* text = textsOf(&stored);
    std::uint32_t number = m_size;
    stored.firstName = number;
    stored.names = static_cast<std::uint32_t>(names.size());
    m_size += stored.names;
    for (const HashedText& name : names)
    {
        const std::size_t slot = m_slots.slotOf(name, [](std::uint32_t) { return NoText(); });
        m_slots.put(slot, number, name);
        const HashedText kept(name, {text, name.size()});
        std::construct_at(m_names + number, Name{kept, &stored});
        ++number;
        text += name.size() + 1;
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
    return new (memory) Occurrence(adopt(entry));
}

// Takes the value out of an entry. Throws std::bad_alloc, and the entry is as before then.
inline Occurrence OptionResultTable::adopt(ValueEntry& entry)
{
    if (entry.value.memory() == nullptr)
    {
        return takeWord(entry, m_strings.keep(entry.text).data());
    }
    return m_texts.made(entry.value) ? takeText(entry) : adoptShare(entry);
}

// The same with the position of the value, where that is an occurrence of its own.
inline Occurrence OptionResultTable::adoptPaired(ValueEntry& entry)
{
    Occurrence occurrence = adopt(entry);
    occurrence.parts = Occurrence::both_parts;
    return occurrence;
}

// The same of a value whose block was made elsewhere.
Occurrence OptionResultTable::adoptShare(ValueEntry& entry)
{
    keepShare(entry);
    return takeShare(entry);
}

// The same for all entries of a record in two steps, of which the second one does not throw.
void OptionResultTable::keep(OptionResult& record)
{
    for (ValueEntry& entry : record.values)
    {
        if (m_texts.made(entry.value))
        {
            continue;
        }
        if (entry.value.memory() == nullptr)
        {
            entry.text = m_strings.keep(entry.text);
        }
        else
        {
            keepShare(entry);
        }
    }
}

// The second step.
Occurrence OptionResultTable::take(ValueEntry& entry) noexcept
{
    return m_texts.made(entry.value)         ? takeText(entry)
           : entry.value.memory() == nullptr ? takeWord(entry, entry.text.data())
                                             : takeShare(entry);
}

// Takes a text that was made here. It stays where it is.
inline Occurrence OptionResultTable::takeText(ValueEntry& entry) noexcept
{
    Occurrence occurrence = {.position = entry.position,
                             .kind = vexkit2::kind_wide_text,
                             .parts = Occurrence::value_part};
    occurrence.word = SharedTexts::takeBack(entry.value);
    std::memcpy(&occurrence.text, &occurrence.word, sizeof(occurrence.text));
    return occurrence;
}

// Takes a value, a number most often, whose text is kept.
inline Occurrence OptionResultTable::takeWord(ValueEntry& entry, const wchar_t* text) noexcept
{
    const auto kind = static_cast<std::uint16_t>(entry.value.kind());
    return {.text = text,
            .word = entry.value.detach(),
            .position = entry.position,
            .kind = kind,
            .parts = Occurrence::value_part};
}

// Gives the block of a value that was made elsewhere, and the text, the lifetime of the table.
void OptionResultTable::keepShare(ValueEntry& entry)
{
    m_shares.push_front(entry.value);
    // A string value holds its own text, in a block that stays where it is.
    entry.text = entry.value.kind() == vexkit2::kind_wide_text
                     ? std::wstring_view(entry.value.get<const wchar_t*>(), entry.text.size())
                     : m_strings.keep(entry.text);
}

// Takes a value whose share was kept.
Occurrence OptionResultTable::takeShare(ValueEntry& entry) noexcept
{
    const Occurrence occurrence = takeWord(entry, entry.text.data());
    // The share that came with it is given up here: m_shares has another one.
    static_cast<void>(vexkit2::variant_t::attach(occurrence.kind, occurrence.word));
    return occurrence;
}

} // namespace kexa_3_3
