// The records of a parse result, found by option name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <forward_list>
#include <memory_resource>
#include <span>
#include <string_view>
#include <vector>

#include "result/OptionResult.h"
#include "result/StoredOption.h"
#include "support/Garbage.h"
#include "support/HashedText.h"
#include "support/SharedTexts.h"
#include "support/SmallBlocks.h"
#include "support/TextSlots.h"

namespace kexa_3_3
{

class OptionDescription;
class OptionIndex;

// Behaves as if every name had an entry of its own, in which the entries of one option start as
// copies and receive the same appends. The names of one option share one record as long as nothing
// tells them apart; only results filled from different declarations of a name ever do.
class OptionResultTable
{
public:
    // strings: keeps texts and records; lives longer than the table.
    explicit OptionResultTable(Garbage& strings);
    ~OptionResultTable() = default;
    OptionResultTable(const OptionResultTable&) = delete;
    OptionResultTable& operator=(const OptionResultTable&) = delete;

    // See IResultCollector::storeOption.
    void store(const OptionDescription& option, OptionResult& record);

    // See IResultCollector::storeValue.
    void storeValue(const OptionDescription& option, ValueEntry& value);

    // Where string values are to be made, which then are stored as they are.
    [[nodiscard]] SharedTexts& texts() noexcept { return m_texts; }

    // The record of a name, or null. It stays where it is as long as the table lives.
    [[nodiscard]] StoredOption* find(const HashedText& name) noexcept;
    [[nodiscard]] StoredOption* find(std::wstring_view name) noexcept
    {
        return find(HashedText(name));
    }

    // The names in the order of their first storing, each with its record.
    [[nodiscard]] std::size_t size() const noexcept { return m_names.size(); }
    [[nodiscard]] const HashedText& name(std::size_t number) const { return m_names[number].text; }
    [[nodiscard]] const StoredOption& record(std::size_t number) const
    {
        return *m_names[number].record;
    }

    // Whether all that is stored came from the options that the index knows.
    [[nodiscard]] bool isFilledFrom(const OptionIndex& index) const noexcept;

private:
    using Names = std::span<const HashedText>;

    struct Name
    {
        HashedText text;
        StoredOption* record = nullptr;
    };
    [[nodiscard]] auto textOf() const noexcept
    {
        return [this](std::uint32_t number) -> const HashedText&
        {
            return m_names[number].text;
        };
    }

    [[nodiscard]] StoredOption* ownRecord(const OptionDescription& option) const noexcept;
    [[nodiscard]] bool noteSource(const OptionIndex* index) noexcept;
    [[nodiscard]] StoredOption* recall(std::size_t tableIndex) const noexcept;
    void remember(std::size_t tableIndex, StoredOption* stored);

    struct Place
    {
        StoredOption* record; // null: the option was never stored
        bool apart;           // whether its names do not share exactly this one
    };
    [[nodiscard]] Place locate(const OptionDescription& option);

    void append(StoredOption& target, ValueEntry& value);
    void append(StoredOption& target, OptionResult& record);
    template <class Fill>
    void storeNew(const OptionDescription& option, Fill fill);
    void storeApart(Names names, OptionResult& record);

    // Names of one option that share a record: the whole of it, or some of its names, which a copy
    // cuts loose from the others.
    struct Part
    {
        StoredOption* record = nullptr;
        std::vector<HashedText> names;
        bool isWhole = false;
    };
    [[nodiscard]] std::vector<Part> partsOf(Names names);

    // A record for names, which find it once it is bound to them. `reserveFor` makes the room that
    // binding needs.
    [[nodiscard]] StoredOption& makeRecord(Names names);
    [[nodiscard]] StoredOption& copyRecord(const StoredOption& from, Names names);
    void reserveFor(std::size_t names);
    void bind(StoredOption& stored) noexcept;

    [[nodiscard]] const Occurrence* makeDefault(const OptionResult& record);
    void keep(ValueEntry& entry);
    void keep(OptionResult& record);
    [[nodiscard]] Occurrence take(ValueEntry& entry) noexcept;

    // The options that filled the result: an index's identity, or one of these.
    static constexpr std::uint64_t no_source = 0;
    static constexpr std::uint64_t several_sources = ~std::uint64_t{0};

    Garbage& m_strings;
    SharedTexts m_texts;
    SmallBlocks m_memory; // of the tables
    std::uint64_t m_source = no_source;

    // The record that an option of some table was stored in last, by its index there. Where all
    // options come from one table whose names are all different, the record is that of the option;
    // otherwise it is a guess.
    std::pmr::vector<StoredOption*> m_recalled;
    std::size_t m_room = 0; // for names, in both of the following
    std::pmr::vector<Name> m_names;
    TextSlots m_slots; // of m_names

    // Values whose blocks were made elsewhere: shares that the records rely on.
    std::pmr::forward_list<vexkit2::variant_t> m_shares;
};

} // namespace kexa_3_3
