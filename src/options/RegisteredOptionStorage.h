// The registry of all declared options.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory_resource>
#include <string_view>
#include <vector>

#include "kexa/option.h"

#include "options/DeclaredNames.h"
#include "options/OptionDescription.h"
#include "options/OptionIndex.h"
#include "support/memory/NameTable.h"
#include "support/text/HashedText.h"

namespace kexa_3_3
{

// Owns the options, in the order of their declaration, and the list of groups. Options are never
// removed.
class RegisteredOptionStorage final
{
public:
    // owner:            keeps all texts and tables; outlives the registry.
    // defaultSeparator: given to every new option.
    // Throws std::bad_alloc.
    RegisteredOptionStorage(Garbage& owner, wchar_t defaultSeparator);
    ~RegisteredOptionStorage(); // frees the options in the order of their declaration
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
    // Returns lastRegistration(). On failure, running out of memory included, nothing but a new
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
    [[nodiscard]] const OptionDescription& operator[](std::size_t number) const
    {
        return m_options[number];
    }
    [[nodiscard]] auto begin() const noexcept { return m_options.begin(); }
    [[nodiscard]] auto end() const noexcept { return m_options.end(); }

    // The first option with exactly this name, or null.
    [[nodiscard]] const OptionDescription* find(HashedText name) const noexcept;
    [[nodiscard]] const OptionDescription* find(std::wstring_view name) const noexcept
    {
        return find(HashedText(name));
    }

    [[nodiscard]] const OptionIndex& index() const noexcept { return m_index; }

    // Whether an action is declared.
    [[nodiscard]] bool hasActions() const noexcept { return m_hasActions; }

    // Every group once, in order of first appearance.
    [[nodiscard]] std::vector<OptionGroup> groups() const;

private:
    struct NamedGroup
    {
        HashedText name;
        std::wstring_view text;
    };

    [[nodiscard]] OptionGroup enterGroup(std::wstring_view groupText);
    void enter(OptionDescription& option, const DeclaredNames& names);

    wchar_t m_defaultSeparator;
    std::pmr::deque<OptionDescription> m_options; // the elements never move
    NameTable<NamedGroup> m_groups;
    OptionGroup m_lastGroup; // of the last declaration
    Garbage& m_owner;
    Registration m_lastRegistration = {nullptr, 1};
    OptionIndex m_index;
    bool m_hasActions = false;
};

} // namespace kexa_3_3
