// The records of a parse result, found by option name.
#pragma once

#include <array>
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
#include "support/InlineBlock.h"
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

    // Stands for the text with this hash: comparing it spares the characters.
    struct OnlyHash
    {
        std::uint64_t hash;
        friend bool operator==(const OnlyHash& left, const HashedText& right) noexcept
        {
            return left.hash == right.hash();
        }
    };

    // Stands for no text: a search that meets it everywhere ends at a free slot.
    struct NoText
    {
        friend bool operator==(NoText /*left*/, const HashedText& /*right*/) noexcept
        {
            return false;
        }
    };

    [[nodiscard]] auto onlyHashOf() const noexcept
    {
        return [this](std::uint32_t number)
        {
            return OnlyHash{m_names[number].text.hash()};
        };
    }

public:
    // strings: keeps texts and records; lives longer than the table.
    explicit OptionResultTable(Garbage& strings);
    ~OptionResultTable();
    OptionResultTable(const OptionResultTable&) = delete;
    OptionResultTable& operator=(const OptionResultTable&) = delete;

    // See IResultCollector::storeOption.
    void store(const OptionDescription& option, OptionResult& record);

    // See IResultCollector::storeValue.
    void storeValue(const OptionDescription& option, ValueEntry& value);

    // Where string values are to be made, which then are stored as they are.
    [[nodiscard]] SharedTexts& texts() noexcept { return m_texts; }

    // The record of a name, or null. It stays where it is as long as the table lives.
    [[nodiscard]] StoredOption* find(const HashedText& name) const noexcept;
    [[nodiscard]] StoredOption* find(std::wstring_view name) const noexcept
    {
        return find(HashedText(name));
    }

    // The same of a name that ends with its first zero. For queries of values, which take it in.
    [[nodiscard]] StoredOption* findTerminated(const wchar_t* name) const noexcept;

    // The names in the order of their first storing, each with its record.
    [[nodiscard]] std::size_t size() const noexcept { return m_size; }
    [[nodiscard]] const HashedText& name(std::size_t number) const { return m_names[number].text; }
    [[nodiscard]] const StoredOption& record(std::size_t number) const
    {
        return *m_names[number].record;
    }

    // Whether all that is stored came from the options that the index knows.
    [[nodiscard]] bool isFilledFrom(const OptionIndex& index) const noexcept;

private:
    using Names = std::span<const HashedText>;

    [[nodiscard]] bool isOnlySource(const OptionIndex* index) const noexcept;
    void noteSource(const OptionIndex* index) noexcept;
    [[nodiscard]] StoredOption* recall(std::size_t tableIndex) const noexcept;
    void remember(std::size_t tableIndex, StoredOption* stored);

    struct Place
    {
        StoredOption* record = nullptr; // null: the option was never stored
        bool apart = false;             // whether its names do not share exactly this one

        // Whether it is known that none of its names is stored, and that all of them differ. Where
        // it is not, both may be so nevertheless.
        bool namesAreNew = false;
    };
    [[nodiscard]] inline Place locate(const OptionDescription& option);
    [[nodiscard]] Place locateAnywhere(const OptionDescription& option);
    [[nodiscard]] bool isSharedBy(const StoredOption& stored, Names names) const noexcept;

    void storeNewValue(const OptionDescription& option, ValueEntry& value, const Place& place);
    inline void enter(const OptionDescription& option, StoredOption& stored,
                      const Place& place) noexcept;
    inline void append(StoredOption& target, ValueEntry& value);
    void append(StoredOption& target, OptionResult& record);
    void storeApart(Names names, OptionResult& record);

    // Names of one option that share a record: the whole of it, or some of its names, which a copy
    // cuts loose from the others.
    struct Part
    {
        StoredOption* record = nullptr;
        std::vector<HashedText> names;
        bool isWhole = false;
    };
    [[nodiscard]] std::vector<Part> partsOf(Names names) const;

    // A record for names, which find it once they are bound to it, and the room that binding needs.
    //
    // joined:    as OptionDescription::namesAreJoined.
    // makeFirst: answers the first occurrence of the record. Left out where that comes later.
    template <class... MakeFirst>
    [[nodiscard]] StoredOption& makeRecord(Names names, bool joined, MakeFirst... makeFirst);
    [[nodiscard]] static wchar_t* textsOf(void* record) noexcept;
    static void copyTexts(Names names, wchar_t* room) noexcept;
    [[nodiscard]] StoredOption& copyRecord(const StoredOption& from, Names names);
    void reserveFor(std::size_t names)
    {
        if (names > m_room - m_size)
        {
            growNames(names);
        }
    }
    void reserveToRecall(std::size_t tableIndex)
    {
        if (tableIndex >= m_recalledSize)
        {
            growRecalled(tableIndex + 1);
        }
    }
    void growNames(std::size_t names);
    void growRecalled(std::size_t size);
    template <class Entry>
    void moveInto(Entry*& entries, const Entry* first, std::size_t used, std::size_t before,
                  std::size_t room);
    [[nodiscard]] Name* firstNames() noexcept
    {
        return static_cast<Name*>(static_cast<void*>(m_firstNames.bytes().data()));
    }
    void bind(Names names, StoredOption& stored) noexcept;
    inline void bindNew(Names names, StoredOption& stored) noexcept;

    [[nodiscard]] const Occurrence* makeDefault(const OptionResult& record);
    [[nodiscard]] inline Occurrence adopt(ValueEntry& entry);
    [[nodiscard]] inline Occurrence adoptPaired(ValueEntry& entry);
    [[nodiscard]] Occurrence adoptShare(ValueEntry& entry);
    void keep(OptionResult& record);
    [[nodiscard]] Occurrence take(ValueEntry& entry) noexcept;
    [[nodiscard]] static inline Occurrence takeText(ValueEntry& entry) noexcept;
    [[nodiscard]] static inline Occurrence takeWord(ValueEntry& entry,
                                                    const wchar_t* text) noexcept;
    void keepShare(ValueEntry& entry);
    [[nodiscard]] static Occurrence takeShare(ValueEntry& entry) noexcept;

    // The options that filled the result: an index's identity, or one of these.
    static constexpr std::uint64_t no_source = 0;
    static constexpr std::uint64_t several_sources = ~std::uint64_t{0};

    // Of a command line of usual size.
    static constexpr std::size_t expected_names = 32;

    InlineBlock<expected_names * sizeof(Name)> m_firstNames;
    InlineBlock<TextSlots::bytesFor(2 * expected_names)> m_firstSlots; // few clusters among so many
    std::array<StoredOption*, expected_names> m_firstRecalled = {};
    Garbage& m_strings;
    SharedTexts m_texts;
    SmallBlocks m_memory; // of the following, once they outgrow the first, and of the shares
    std::uint64_t m_source = no_source;

    // The record that an option of some table was stored in last, by its index there. Where all
    // options come from one table whose names are all different, the record is that of the option;
    // otherwise it is a guess.
    StoredOption** m_recalled;
    std::size_t m_recalledSize = expected_names;

    Name* m_names; // in the order of their first storing
    std::uint32_t m_size = 0;
    std::uint32_t m_room = expected_names; // in m_names and m_slots
    TextSlots m_slots;                     // of m_names

    // Values whose blocks were made elsewhere: shares that the records rely on.
    std::pmr::forward_list<vexkit2::variant_t> m_shares;
};

} // namespace kexa_3_3
