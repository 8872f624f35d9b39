// The records of a parse result, found by option name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <memory_resource>
#include <span>
#include <string_view>
#include <vector>

#include "result/OptionResult.h"
#include "support/Garbage.h"
#include "support/SmallBlocks.h"
#include "support/TextTable.h"

namespace kexa_3_3
{

class OptionDescription;

// The record that some names share.
struct StoredOption
{
    explicit StoredOption(std::pmr::memory_resource& memory) : names(&memory), result(memory) {}

    std::pmr::vector<HashedText> names;
    OptionResult result;
};

// Behaves as if every name had an entry of its own, in which the entries of one option start as
// copies and receive the same appends. The names of one option share one record as long as nothing
// tells them apart; only results filled from different declarations of a name ever do.
class OptionResultTable
{
public:
    // strings: keeps the texts; lives longer than the table.
    explicit OptionResultTable(Garbage& strings) : m_strings(strings), m_memory(strings.memory()) {}

    // See IResultCollector::storeOption.
    void store(const OptionDescription& option, OptionResult& record);

    // The record of a name, or null. It stays where it is as long as the table lives.
    [[nodiscard]] StoredOption* find(const HashedText& name) noexcept;
    [[nodiscard]] StoredOption* find(std::wstring_view name) noexcept
    {
        return find(HashedText(name));
    }

    // The names in the order of their first storing, each with its record.
    [[nodiscard]] std::size_t size() const noexcept { return m_names.size(); }
    [[nodiscard]] const HashedText& name(std::size_t number) const
    {
        return m_names.text(static_cast<std::uint32_t>(number));
    }
    [[nodiscard]] const StoredOption& record(std::size_t number) const
    {
        return *m_records[m_recordOf[number]];
    }

private:
    using Names = std::span<const HashedText>;

    // The memory of a record belongs to m_strings; only the object is destroyed.
    struct Destroy
    {
        void operator()(StoredOption* stored) const noexcept { stored->~StoredOption(); }
    };
    using RecordPointer = std::unique_ptr<StoredOption, Destroy>;

    void remember(std::size_t index, StoredOption* stored);
    void storeNew(Names names, OptionResult& record);
    void storeApart(Names names, OptionResult& record);

    // The records of the names, each once and cut loose from names that are not among them. Absent
    // names join the record of the first.
    [[nodiscard]] std::vector<StoredOption*> takeRecords(Names names);

    // Lets the names in stored->names find it from now on.
    StoredOption& bind(RecordPointer stored);
    [[nodiscard]] RecordPointer makeRecord(Names names);

    // Gives the texts of a record the lifetime of the table.
    void keepTexts(OptionResult& record);

    Garbage& m_strings;
    SmallBlocks m_memory;
    // The record that an option of some table was stored in last, by its index there: a guess,
    // which saves the search where the names agree.
    std::vector<StoredOption*> m_guesses;
    TextTable m_names;
    std::vector<std::uint32_t> m_recordOf; // by the numbers of m_names
    std::vector<RecordPointer> m_records;
};

} // namespace kexa_3_3
