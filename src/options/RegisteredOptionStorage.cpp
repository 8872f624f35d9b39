#include "options/RegisteredOptionStorage.h"

#include <algorithm>
#include <new>

#include "support/ConsoleStreams.h"
#include "support/Garbage.h"
#include "support/Growth.h"
#include "support/Text.h"

namespace kexa_3_3
{

namespace
{

constexpr std::int32_t registered = 3;
constexpr std::int32_t refused = 1;
constexpr std::size_t most_names = 3;
constexpr std::size_t longest_short_form = 2;
constexpr std::size_t expected_options = 32; // room taken at once, for programs of usual size

} // namespace

RegisteredOptionStorage::RegisteredOptionStorage(Garbage& owner, wchar_t defaultSeparator)
    : m_defaultSeparator(defaultSeparator), m_owner(owner)
{
}

RegisteredOptionStorage::~RegisteredOptionStorage()
{
    for (OptionPointer& option : m_options)
    {
        option.reset(); // in the order of declaration
    }
}

const Registration& RegisteredOptionStorage::registerOption(const wchar_t* names,
                                                            const wchar_t* keywords,
                                                            const wchar_t* description,
                                                            bool isSwitch, std::int32_t valueType,
                                                            const wchar_t* groupText)
{
    m_lastRegistration = {nullptr, refused};
    const Group& group = groupOf(viewOf(groupText));
    if (!acceptNames(viewOf(names)))
    {
        return m_lastRegistration;
    }

    OptionPointer option = makeOption(group, isSwitch);
    option->setNames(m_names);
    option->valueType = valueType;
    option->description = m_owner.keep(viewOf(description));
    option->addKeywords(keywords);
    if (isSwitch)
    {
        option->addKeywords(names);
    }
    option->setSeparator(m_defaultSeparator);

    reserveMore(m_options, 1, expected_options);
    option->enterInto(m_index, m_options.size());
    m_lastRegistration = {option.get(), registered};
    m_options.push_back(std::move(option));
    m_actionCount += isSwitch ? 1 : 0;
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
    const std::int64_t found = m_index.findNamed(name);
    return found == OptionIndex::none ? nullptr : m_options[static_cast<std::size_t>(found)].get();
}

// The group that a declaration names, added to the list where it is new.
const RegisteredOptionStorage::Group& RegisteredOptionStorage::groupOf(std::wstring_view groupText)
{
    const std::size_t colon = std::min(groupText.find(L':'), groupText.size());
    const std::wstring_view name = groupText.substr(0, colon);
    if (!m_groups.empty() && m_groups.back().first == name)
    {
        return m_groups.back(); // declarations of a group usually stand together
    }
    const HashedText hashedName(name);
    std::uint32_t number = m_groupNames.find(hashedName);
    if (number == TextTable::absent)
    {
        const std::wstring_view text = groupText.substr(std::min(colon + 1, groupText.size()));
        m_groupNames.reserve(1);
        m_groups.emplace_back(m_owner.keep(name), m_owner.keep(text));
        number = m_groupNames.insert(HashedText(hashedName, m_groups.back().first));
    }
    return m_groups[number];
}

// Splits the names text into m_names and applies the rules for names.
bool RegisteredOptionStorage::acceptNames(std::wstring_view names)
{
    m_names.clear();
    forEachPiece(names, L',', [this](std::wstring_view name) { m_names.emplace_back(name); });
    if (m_names.empty() || m_names.size() > most_names ||
        (m_names.size() == most_names && m_names.back().size() > longest_short_form))
    {
        return false;
    }
    const bool taken = std::any_of(m_names.begin(), m_names.end(),
                                   [this](const HashedText& name)
                                   { return m_index.findNamed(name) != OptionIndex::none; });
    if (taken)
    {
        // Past the stream: parsers in several threads may be declaring at the same time.
        const std::wstring line =
            concatenate({L"Tried to register an option with a name, which is alread registered: ",
                         names, L"\n"});
        static_cast<void>(internal::writeConsole(internal::ConsoleTarget::output, line));
    }
    return !taken;
}

RegisteredOptionStorage::OptionPointer RegisteredOptionStorage::makeOption(const Group& group,
                                                                           bool isSwitch)
{
    void* const memory =
        m_owner.memory().take(sizeof(OptionDescription), alignof(OptionDescription));
    return OptionPointer(new (memory) OptionDescription(group, isSwitch, m_owner));
}

void RegisteredOptionStorage::Destroy::operator()(OptionDescription* option) const noexcept
{
    option->~OptionDescription();
}

} // namespace kexa_3_3
