// The records of a parse result, found by option name.
#pragma once

#include <cstdint>
#include <deque>
#include <memory_resource>
#include <optional>
#include <string_view>

#include "result/OptionResult.h"
#include "result/StoredOption.h"
#include "support/memory/Garbage.h"
#include "support/memory/NameTable.h"
#include "support/memory/SharedTexts.h"
#include "support/text/HashedText.h"

namespace kexa_3_3
{

class OptionDescription;

// Behaves as if every name had an entry of its own, in which the entries of one option start as
// copies and receive the same appends. In fact the names of one option share a record as long as
// nothing distinguishes them, as names added later do, or a result that is filled from two parsers.
class OptionResultTable
{
public:
    struct NamedRecord
    {
        HashedText name;
        StoredOption* record = nullptr;
    };

    // strings: keeps texts and records; outlives the table.
    explicit OptionResultTable(Garbage& strings);
    ~OptionResultTable() = default;
    OptionResultTable(const OptionResultTable&) = delete;
    OptionResultTable& operator=(const OptionResultTable&) = delete;

    // See IResultCollector::storeOption. Precondition: the option has a name.
    void store(const OptionDescription& option, OptionResult& record);

    // See IResultCollector::storeValue. Precondition: the option has a name.
    void storeValue(const OptionDescription& option, ValueEntry& value);

    // Returns the maker of string values whose texts share the memory of the result.
    [[nodiscard]] SharedTexts& texts() noexcept { return m_texts; }

    // The record of a name, or null. Its address is valid as long as the table lives.
    [[nodiscard]] const StoredOption* find(HashedText name) const noexcept;
    [[nodiscard]] const StoredOption* find(std::wstring_view name) const noexcept
    {
        return find(HashedText(name));
    }

    // The names in the order of their first storing, each with its record.
    [[nodiscard]] const NameTable<NamedRecord>& names() const noexcept { return m_names; }

    // Whether all that is stored came from the options of one index.
    //
    // identity: of the index.
    [[nodiscard]] bool isFilledFrom(std::uint64_t identity) const noexcept;

private:
    [[nodiscard]] StoredOption* findShared(const OptionDescription& option) noexcept;
    void storeElsewhere(const OptionDescription& option, Occurrences added,
                        std::optional<Occurrence> byDefault);
    [[nodiscard]] StoredOption& makeShared(const OptionDescription& option);
    void storeApart(const OptionDescription& option, const Occurrences& added);
    [[nodiscard]] StoredOption& copyRecord(const StoredOption& from);
    void bind(HashedText name, StoredOption& record) noexcept;
    [[nodiscard]] Occurrences makeOccurrences(OptionResult& record);
    [[nodiscard]] const wchar_t* keepText(const ValueEntry& entry);
    [[nodiscard]] std::optional<Occurrence> makeDefault(const OptionResult& record);

    Garbage& m_strings;
    SharedTexts m_texts;
    NameTable<NamedRecord> m_names;
    std::uint64_t m_storings = 0;            // by storeApart()
    std::pmr::deque<StoredOption> m_records; // whose elements never move
};

} // namespace kexa_3_3
