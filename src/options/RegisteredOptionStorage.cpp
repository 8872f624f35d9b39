#include "options/RegisteredOptionStorage.h"

#include <algorithm>
#include <array>
#include <exception>
#include <optional>
#include <string>
#include <utility>

#include "support/ConsoleStreams.h"
#include "support/memory/Garbage.h"
#include "support/text/Text.h"

namespace kexa_3_3
{

namespace
{

constexpr std::int32_t registered = 3;
constexpr std::int32_t refused = 1;
constexpr std::size_t expected_groups = 8; // of a program of usual size

// Bypasses the stream: parsers in several threads may be declaring at the same time.
void reportTakenName(std::wstring_view names)
{
    const std::wstring line = concatenate(
        {L"Tried to register an option with a name, which is alread registered: ", names, L"\n"});
    static_cast<void>(internal::writeConsole(internal::ConsoleTarget::output, line));
}

} // namespace

RegisteredOptionStorage::RegisteredOptionStorage(Garbage& owner, wchar_t defaultSeparator)
    : m_defaultSeparator(defaultSeparator), m_options(&owner.memory()),
      m_groups(owner.memory(), expected_groups), m_owner(owner), m_index(owner)
{
}

const Registration& RegisteredOptionStorage::registerOption(const wchar_t* names,
                                                            const wchar_t* keywords,
                                                            const wchar_t* description,
                                                            bool isSwitch, std::int32_t valueType,
                                                            const wchar_t* groupText)
{
    m_lastRegistration = {nullptr, refused};
    try
    {
        const OptionGroup group = enterGroup(viewOf(groupText));
        const DeclaredNames declared(viewOf(names));
        if (!declared.areAcceptable())
        {
            return m_lastRegistration;
        }
        if (std::any_of(declared.begin(), declared.end(),
                        [this](const HashedText& name) { return m_index.findNamed(name); }))
        {
            reportTakenName(viewOf(names));
            return m_lastRegistration;
        }

        OptionDescription option(group, isSwitch, m_owner);
        option.description = m_owner.keep(viewOf(description));
        option.separator = m_defaultSeparator;
        option.valueType = valueType;
        option.addKeywords(keywords);
        if (isSwitch)
        {
            option.addKeywords(names);
        }
        m_lastRegistration = {&enterOption(std::move(option), declared), registered};
        m_hasActions = m_hasActions || isSwitch;
    }
    catch (const std::exception&) // NOLINT(bugprone-empty-catch)
    {
        // There is no memory: a failed declaration like any other.
    }
    return m_lastRegistration;
}

const Registration& RegisteredOptionStorage::registerSwitch(const wchar_t* names,
                                                            const wchar_t* description,
                                                            std::int32_t valueType,
                                                            const wchar_t* groupText)
{
    return registerOption(names, nullptr, description, true, valueType, groupText);
}

const Registration& RegisteredOptionStorage::registerValueOption(const wchar_t* names,
                                                                 const wchar_t* keywords,
                                                                 const wchar_t* description,
                                                                 std::int32_t valueType,
                                                                 const wchar_t* groupText)
{
    return registerOption(names, keywords, description, false, valueType, groupText);
}

const OptionDescription* RegisteredOptionStorage::find(const HashedText& name) const noexcept
{
    const std::optional<std::size_t> number = m_index.findNamed(name);
    return number ? &m_options[*number] : nullptr;
}

// Adds an option that has all but its names. Throws std::bad_alloc, changing nothing.
OptionDescription& RegisteredOptionStorage::enterOption(OptionDescription option,
                                                        const DeclaredNames& declared)
{
    const bool boolean = option.valueType == value_type_boolean;
    std::array<OptionIndex::NewName, DeclaredNames::most> names;
    std::transform(declared.begin(), declared.end(), names.begin(),
                   [this, boolean](const HashedText& name)
                   { return m_index.prepare(name, boolean); });
    option.names.reserve(declared.size());
    m_index.reserveMore(declared.size());
    OptionDescription& entered = m_options.emplace_back(std::move(option));

    // Nothing fails from here on.
    const std::size_t number = m_options.size() - 1;
    for (std::size_t position = 0; position < declared.size(); ++position)
    {
        entered.names.push_back(names[position].name);
        m_index.add(names[position], number);
    }
    entered.enterInto(m_index, number);
    return entered;
}

// Returns the group that a declaration names, with the text that it was first declared with.
OptionGroup RegisteredOptionStorage::enterGroup(std::wstring_view groupText)
{
    const std::size_t colon = groupText.find(L':');
    const HashedText name(groupText.substr(0, colon));
    const NamedGroup* group = m_groups.find(name);
    if (group == nullptr)
    {
        const std::wstring_view text =
            colon == std::wstring_view::npos ? std::wstring_view() : groupText.substr(colon + 1);
        m_groups.reserveMore(1);
        group = &m_groups.add({name.movedTo(m_owner.keep(name.text())), m_owner.keep(text)});
    }
    return {group->name.text(), group->text};
}

std::vector<OptionGroup> RegisteredOptionStorage::groups() const
{
    std::vector<OptionGroup> groups;
    groups.reserve(m_groups.size());
    for (const NamedGroup& group : m_groups)
    {
        groups.push_back({group.name.text(), group.text});
    }
    return groups;
}

} // namespace kexa_3_3
