#include "options/RegisteredOptionStorage.h"

#include <algorithm>
#include <cassert>
#include <exception>
#include <optional>
#include <string>

#include "support/memory/Garbage.h"
#include "support/platform/ConsoleStreams.h"
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

RegisteredOptionStorage::~RegisteredOptionStorage()
{
    // The order in which a deque destroys its elements is unspecified, and differs between
    // libraries.
    while (!m_options.empty())
    {
        m_options.pop_front();
    }
}

const Registration& RegisteredOptionStorage::registerOption(const wchar_t* names,
                                                            const wchar_t* keywords,
                                                            const wchar_t* description,
                                                            bool isSwitch, std::int32_t valueType,
                                                            const wchar_t* groupText)
{
    m_lastRegistration = {nullptr, refused};
    bool isMade = false;
    try
    {
        const OptionGroup group = enterGroup(viewOf(groupText));
        const DeclaredNames declared(names == nullptr ? L"" : names);
        if (!declared.areAcceptable())
        {
            return m_lastRegistration;
        }
        if (std::any_of(declared.begin(), declared.end(),
                        [this](HashedText name) { return m_index.findNamed(name).has_value(); }))
        {
            reportTakenName(viewOf(names));
            return m_lastRegistration;
        }
        OptionDescription& option = m_options.emplace_back(group, isSwitch, m_owner);
        isMade = true;
        option.description = m_owner.keep(viewOf(description));
        option.separator = m_defaultSeparator;
        option.valueType = valueType;
        if (keywords != nullptr)
        {
            option.addKeywords(keywords);
        }
        if (isSwitch)
        {
            option.addKeywords(names);
        }
        enter(option, declared);
        m_lastRegistration = {&option, registered};
    }
    catch (const std::exception&)
    {
        // Out of memory: a failed declaration like any other.
        if (isMade)
        {
            m_options.pop_back();
        }
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

const OptionDescription* RegisteredOptionStorage::find(HashedText name) const noexcept
{
    const std::optional<std::size_t> number = m_index.findNamed(name);
    return number ? &m_options[*number] : nullptr;
}

// Gives the last option its names and adds them to the index. Throws std::bad_alloc; the index is
// unchanged then.
void RegisteredOptionStorage::enter(OptionDescription& option, const DeclaredNames& names)
{
    assert(&option == &m_options.back());
    const bool boolean = option.valueType == value_type_boolean;
    option.names.reserve(names.size());
    for (const HashedText name : names)
    {
        option.names.push_back(m_index.keep(name, boolean));
    }
    m_index.reserveMore(names.size());

    // Nothing fails from here on.
    const std::size_t number = m_options.size() - 1;
    for (const HashedText name : option.names)
    {
        m_index.add(name, number, boolean);
    }
    option.enterInto(m_index, number);
    m_hasActions = m_hasActions || !option.takesValue();
}

// Returns the group that a declaration names, with the text of the group's first declaration.
OptionGroup RegisteredOptionStorage::enterGroup(std::wstring_view groupText)
{
    const std::size_t colon = std::min(groupText.find(L':'), groupText.size());
    // Declarations of a group usually follow each other.
    if (groupText.substr(0, colon) != m_lastGroup.name || m_groups.empty())
    {
        const HashedText name(groupText.substr(0, colon));
        const NamedGroup* group = m_groups.find(name);
        if (group == nullptr)
        {
            const std::wstring_view text = groupText.substr(std::min(colon + 1, groupText.size()));
            const HashedText kept = name.movedTo(m_owner.keep(name.text()));
            m_groups.reserveMore(1);
            const std::wstring_view keptText = m_owner.keep(text);
            NamedGroup& added = m_groups.findOrAdd(kept);
            added.text = keptText;
            group = &added;
        }
        m_lastGroup = {group->name.text(), group->text};
    }
    return m_lastGroup;
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
