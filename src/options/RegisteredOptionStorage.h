// The registry of all declared options.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <string_view>
#include <vector>

#include "kexa/option.h"

#include "options/OptionDescription.h"
#include "options/OptionIndex.h"
#include "support/HashedText.h"
#include "support/InlineBlock.h"
#include "support/PlainTable.h"
#include "support/SmallBlocks.h"
#include "support/TextSlots.h"

namespace kexa_3_3
{

inline constexpr std::size_t most_names = 3; // of one declaration

// Owns the options, in the order of their declaration, and the list of groups. Options are never
// removed.
class RegisteredOptionStorage final
{
public:
    // owner:            keeps all texts and the options' memory; lives longer than the registry.
    // defaultSeparator: given to every new option.
    RegisteredOptionStorage(Garbage& owner, wchar_t defaultSeparator);
    ~RegisteredOptionStorage();
    RegisteredOptionStorage(const RegisteredOptionStorage&) = delete;
    RegisteredOptionStorage& operator=(const RegisteredOptionStorage&) = delete;

    // Declares an option.
    //
    // names:     split at ','; one to three, of which the third has at most two characters. None
    //            may be a name of a declared option.
    // keywords:  split at ','; may be null. The names of a switch are its keywords too.
    // groupText: the group, optionally followed by ':' and its text. The text of the first
    //            declaration of a group stays.
    //
    // Answers lastRegistration(). Where it fails, as it does without memory, nothing but a new
    // group is kept; a taken name is reported on the console output.
    virtual const Registration& registerOption(const wchar_t* names, const wchar_t* keywords,
                                               const wchar_t* description, bool isSwitch,
                                               std::int32_t valueType, const wchar_t* groupText);

    // As registerOption, of a switch without further keywords.
    virtual const Registration& registerSwitch(const wchar_t* names, const wchar_t* description,
                                               std::int32_t valueType, const wchar_t* groupText);

    // As registerOption, of an option that takes a value.
    virtual const Registration& registerValueOption(const wchar_t* names, const wchar_t* keywords,
                                                    const wchar_t* description,
                                                    std::int32_t valueType,
                                                    const wchar_t* groupText);

    [[nodiscard]] const Registration& lastRegistration() const noexcept
    {
        return m_lastRegistration;
    }

    void setDefaultSeparator(wchar_t separator) noexcept { m_defaultSeparator = separator; }

    [[nodiscard]] bool empty() const noexcept { return m_options.empty(); }
    [[nodiscard]] std::size_t size() const noexcept { return m_options.size(); }
    [[nodiscard]] const OptionDescription& operator[](std::size_t index) const
    {
        return *m_options[index];
    }

    // The first option with exactly this name, or null.
    [[nodiscard]] const OptionDescription* find(const HashedText& name) const noexcept;
    [[nodiscard]] const OptionDescription* find(std::wstring_view name) const noexcept
    {
        return find(HashedText(name));
    }

    [[nodiscard]] const OptionIndex& index() const noexcept { return m_index; }

    // Whether an action is declared.
    [[nodiscard]] bool hasActions() const noexcept { return m_actionCount != 0; }

    // Every group once, in order of first appearance.
    [[nodiscard]] std::vector<OptionGroup> groups() const;

private:
    // What registerOption takes, without the group.
    struct Declaration
    {
        const wchar_t* names;
        const wchar_t* keywords;
        const wchar_t* description;
        bool isSwitch;
        std::int32_t valueType;
    };

    // The names of a declaration as they were written. m_names begins with them one by one.
    struct DeclaredNames
    {
        std::wstring_view text;
        std::size_t count = 0; // none where they are refused
        bool joined = false;   // whether each but the last is followed by one ',' and the next name
    };

    // A name of the declaration at work.
    struct NewName
    {
        // Sets nothing: the members are written before anybody looks at them.
        NewName() noexcept {} // NOLINT(*-member-init, modernize-use-equals-default)

        union
        {
            HashedText text; // as it was declared
        };
        std::size_t slot; // its place in the index
    };

    // An option that is made and not yet known.
    struct NewOption
    {
        OptionDescription* option;
        HashedText* names; // room for them
        wchar_t* text;     // the option's copy of all of them
    };

    [[nodiscard]] auto groupNameOf() const noexcept
    {
        return [this](std::uint32_t number)
        {
            return m_groups[number]->first;
        };
    }

    [[nodiscard]] bool isOfLastGroup(const wchar_t* declared) const noexcept;
    void changeGroup(const wchar_t* declared);
    void makeRoom();
    [[nodiscard]] DeclaredNames findNames(const wchar_t* text);
    static void refuseTaken(std::wstring_view names);
    [[nodiscard]] NewOption makeOption(const Declaration& declaration, const DeclaredNames& names);
    void addKeywords(OptionDescription& option, const Declaration& declaration);
    void enter(const NewOption& made, const DeclaredNames& declared) noexcept;
    void destroyValues() noexcept;

    // Of a program of usual size.
    static constexpr std::size_t expected_options = 32;
    static constexpr std::size_t expected_groups = 8;

    wchar_t m_defaultSeparator;
    Garbage& m_owner;
    InlineBlock<PlainTable<OptionDescription*>::bytesOf(expected_options)> m_firstOptions;
    InlineBlock<PlainTable<const OptionGroup*>::bytesOf(expected_groups)> m_firstGroups;
    InlineBlock<TextSlots::bytesFor(expected_groups)> m_firstGroupSlots;
    SmallBlocks m_memory;                     // of the tables, once they outgrow the first
    PlainTable<OptionDescription*> m_options; // these lie in memory of m_owner
    PlainTable<const OptionGroup*> m_groups;  // so do these
    Registration m_lastRegistration = {nullptr, 1};

    TextSlots m_groupSlots;                   // numbers are indices of m_groups
    const OptionGroup* m_lastGroup = nullptr; // declared last
    OptionIndex m_index;
    std::size_t m_actionCount = 0;

    // Of the declaration at work; nobody looks at what lies behind its names.
    std::array<NewName, most_names> m_names;
};

} // namespace kexa_3_3
