#include "options/RegisteredOptionStorage.h"

#include <algorithm>
#include <cassert>
#include <exception>
#include <optional>
#include <string>

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
    const std::size_t before = m_options.size();
    try
    {
        const OptionGroup group = enterGroup(groupText == nullptr ? L"" : groupText);
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
        option.description = m_owner.keep(viewOf(description));
        option.separator = m_defaultSeparator;
        option.valueType = valueType;
        option.addKeywords(keywords);
        if (isSwitch)
        {
            option.addKeywords(names);
        }
        enter(option, declared);
        m_lastRegistration = {&option, registered};
    }
    catch (const std::exception&)
    {
        // There is no memory: a failed declaration like any other.
        if (m_options.size() > before)
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

// Gives the last option its names and makes it known by them. Throws std::bad_alloc; the index is
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

// Returns the group that a declaration names, with the text that it was first declared with.
OptionGroup RegisteredOptionStorage::enterGroup(const wchar_t* groupText)
{
    TextHash hash;
    const wchar_t* end = groupText;
    for (; *end != L':' && *end != L'\0'; ++end)
    {
        hash.add(*end);
    }
    const HashedText name({groupText, static_cast<std::size_t>(end - groupText)}, hash);
    if (const NamedGroup* const known = m_groups.find(name))
    {
        return {known->name.text(), known->text};
    }
    const std::wstring_view text(*end == L':' ? end + 1 : end);
    const OptionGroup group = {m_owner.keep(name.text()), m_owner.keep(text)};
    m_groups.reserveMore(1);
    m_groups.findOrAdd(name.movedTo(group.name)).text = group.text;
    return group;
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
