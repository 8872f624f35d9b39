#include "result/OptionResultTable.h"

#include <algorithm>
#include <cassert>

#include "options/OptionDescription.h"

namespace kexa_3_3
{

namespace
{

constexpr std::size_t expected_names = 32; // of a command line of usual size

// Whether every value is that of an occurrence of its own, as those of a command line are.
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
        shared->occurrences.append(std::move(added));
        return;
    }
    storeElsewhere(option, std::move(added), record);
}

void OptionResultTable::storeValue(const OptionDescription& option, ValueEntry& value)
{
    assert(!option.names.empty());
    Occurrence occurrence = makeOccurrence(value);
    occurrence.isPosition = true;
    if (StoredOption* const shared = findShared(option))
    {
        shared->occurrences.append(std::move(occurrence));
        return;
    }
    Occurrences added(m_strings.memory());
    added.append(std::move(occurrence));
    storeElsewhere(option, std::move(added), OptionResult());
}

const StoredOption* OptionResultTable::find(const HashedText& name) const noexcept
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

// The record that all names of the option find and no other name, or null. One that was made for
// the option stays so until a name of it comes to lead elsewhere, or the option gets another one.
StoredOption* OptionResultTable::findShared(const OptionDescription& option) noexcept
{
    const NamedRecord* const found = m_names.find(option.names.front());
    const bool isShared = found != nullptr && found->record->source.index != 0 &&
                          found->record->source == option.identity() &&
                          found->record->names == option.names.size();
    return isShared ? found->record : nullptr;
}

void OptionResultTable::storeElsewhere(const OptionDescription& option, Occurrences added,
                                       const OptionResult& record)
{
    const StoredOption* const first = find(option.names.front());
    if (first == nullptr)
    {
        storeNew(option, std::move(added), record);
    }
    else
    {
        storeApart(option, *first, added);
    }
}

// Stores an option whose first name is unknown: under all its names, of which others may have led
// to another option before.
void OptionResultTable::storeNew(const OptionDescription& option, Occurrences added,
                                 const OptionResult& record)
{
    std::optional<Occurrence> byDefault;
    if (!record.defaultText.empty())
    {
        byDefault.emplace();
        byDefault->text = m_strings.keep(record.defaultText).data();
        byDefault->value = record.defaultValue;
        byDefault->position = static_cast<std::int32_t>(record.defaultPosition);
    }
    Bindings bindings = prepareBindings(option);
    StoredOption& stored = m_records.emplace_back(option.identity(), m_strings.memory());
    stored.byDefault = std::move(byDefault);
    stored.occurrences.append(std::move(added));
    for (NamedRecord& binding : bindings)
    {
        binding.record = &stored;
        bind(binding);
    }
}

// Stores an option whose names do not lead to exactly one record: each gets one of its own.
//
// first: the record of the first name. A name that is unknown starts as a copy of it.
void OptionResultTable::storeApart(const OptionDescription& option, const StoredOption& first,
                                   const Occurrences& added)
{
    Bindings bindings = prepareBindings(option);
    std::vector<Occurrences> copies;
    copies.reserve(bindings.size());
    for (NamedRecord& binding : bindings)
    {
        const NamedRecord* const known = m_names.find(binding.name);
        const StoredOption& before = known == nullptr ? first : *known->record;
        copies.emplace_back(added);
        if (known != nullptr && before.names == 1)
        {
            binding.record = known->record;
            continue;
        }
        binding.record = &m_records.emplace_back(OptionIdentity(), m_strings.memory());
        binding.record->occurrences.append(Occurrences(before.occurrences));
        binding.record->byDefault = before.byDefault;
    }
    for (std::size_t number = 0; number < bindings.size(); ++number)
    {
        bindings[number].record->occurrences.append(std::move(copies[number]));
        bind(bindings[number]);
    }
}

// Returns the different names of an option, without records yet. Afterwards nothing about binding
// them fails.
OptionResultTable::Bindings OptionResultTable::prepareBindings(const OptionDescription& option)
{
    Bindings bindings(&m_strings.memory());
    bindings.reserve(option.names.size());
    for (const HashedText& name : option.names)
    {
        const bool isRepeated = std::any_of(bindings.begin(), bindings.end(),
                                            [&name](const NamedRecord& other)
                                            { return other.name == name; });
        if (!isRepeated)
        {
            bindings.push_back({name.movedTo(m_strings.keep(name.text()))});
        }
    }
    m_names.reserveMore(bindings.size());
    return bindings;
}

// Lets a name lead to a record.
void OptionResultTable::bind(const NamedRecord& binding) noexcept
{
    assert(binding.record != nullptr);
    NamedRecord* known = m_names.find(binding.name);
    if (known == nullptr)
    {
        m_names.add(binding);
        ++binding.record->names;
    }
    else if (known->record != binding.record)
    {
        --known->record->names;
        known->record = binding.record;
        ++binding.record->names;
    }
}

// Moves what a record holds into a list of occurrences.
Occurrences OptionResultTable::makeOccurrences(OptionResult& record)
{
    Occurrences occurrences(m_strings.memory());
    const bool paired = isPaired(record);
    if (!paired)
    {
        for (const std::int32_t position : record.positions)
        {
            Occurrence occurrence;
            occurrence.position = position;
            occurrence.isPosition = true;
            occurrences.append(std::move(occurrence));
        }
    }
    for (ValueEntry& entry : record.values)
    {
        Occurrence occurrence = makeOccurrence(entry);
        occurrence.isPosition = paired;
        occurrences.append(std::move(occurrence));
    }
    return occurrences;
}

// Moves a value out of an entry.
Occurrence OptionResultTable::makeOccurrence(ValueEntry& entry)
{
    Occurrence occurrence;
    // A string value holds its own text, in a block that never moves.
    occurrence.text = entry.value.kind() == vexkit2::kind_wide_text
                          ? entry.value.get<const wchar_t*>()
                          : m_strings.keep(entry.text).data();
    occurrence.value = std::move(entry.value);
    occurrence.position = entry.position;
    occurrence.isValue = true;
    return occurrence;
}

} // namespace kexa_3_3
