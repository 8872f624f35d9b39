#include "options/RegisteredOptionStorage.h"

#include <algorithm>
#include <cwchar>
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
constexpr std::size_t largest_table_in_pool = 2048; // bytes; larger ones are freed as they grow

} // namespace

RegisteredOptionStorage::RegisteredOptionStorage(Garbage& owner, wchar_t defaultSeparator)
    : m_defaultSeparator(defaultSeparator), m_owner(owner),
      m_memory(owner.memory(), largest_table_in_pool), m_options(&m_memory), m_groupNames(m_memory),
      m_index(m_memory), m_names(&m_memory)
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
    const Group& group = groupOf(groupText == nullptr ? L"" : groupText);
    const std::wstring_view allNames = viewOf(names);
    if (!acceptNames(allNames))
    {
        return m_lastRegistration;
    }

    OptionPointer option = makeOption(group, isSwitch);
    keepTexts(*option, allNames, viewOf(description));
    option->valueType = valueType;
    option->addKeywords(keywords);
    if (isSwitch)
    {
        option->addKeywords(names);
    }
    option->separator = m_defaultSeparator;

    reserveMore(m_options, 1, expected_options);
    option->enterInto(m_index, m_options.size(), m_names);
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
const RegisteredOptionStorage::Group& RegisteredOptionStorage::groupOf(const wchar_t* declared)
{
    // Declarations of a group usually stand together.
    if (m_lastGroupText != nullptr && std::wcscmp(m_lastGroupText, declared) == 0)
    {
        return m_groups[m_lastGroup];
    }
    const std::wstring_view groupText(declared);
    const std::size_t colon = std::min(groupText.find(L':'), groupText.size());
    const std::wstring_view name = groupText.substr(0, colon);
    const HashedText hashedName(name);
    std::uint32_t number = m_groupNames.find(hashedName);
    if (number == TextTable::absent)
    {
        const std::wstring_view text = groupText.substr(std::min(colon + 1, groupText.size()));
        m_groupNames.reserve(1);
        m_groups.emplace_back(m_owner.keep(name), m_owner.keep(text));
        number = m_groupNames.insert(HashedText(hashedName, m_groups.back().first));
    }
    m_lastGroupText = m_owner.internText(groupText).data();
    m_lastGroup = number;
    return m_groups[number];
}

// Splits the names text into m_names and applies the rules for names.
bool RegisteredOptionStorage::acceptNames(std::wstring_view names)
{
    m_index.reserve(most_names); // so that what is found out about their places stays true
    m_names.clear();
    forEachPiece(names, L',',
                 [this](std::wstring_view name)
                 {
                     const HashedText text(name);
                     m_names.push_back({text, m_index.slotOf(text)});
                 });
    if (m_names.empty() || m_names.size() > most_names ||
        (m_names.size() == most_names && m_names.back().text.size() > longest_short_form))
    {
        return false;
    }
    const bool taken =
        std::any_of(m_names.begin(), m_names.end(),
                    [this](const OptionIndex::NewName& name) { return m_index.isTaken(name); });
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

// Copies all names of the declaration at work at once, and the description behind them. Those in
// m_names then refer to the copies, in which a zero takes the place of every separator.
void RegisteredOptionStorage::keepTexts(OptionDescription& option, std::wstring_view names,
                                        std::wstring_view description)
{
    wchar_t* const copy = m_owner.roomFor(names.size() + 1 + description.size());
    Garbage::copyInto(copy, names);
    for (OptionIndex::NewName& name : m_names)
    {
        wchar_t* const text = copy + (name.text.data() - names.data());
        text[name.text.size()] = L'\0';
        name.text = HashedText(name.text, std::wstring_view(text, name.text.size()));
    }
    option.description = Garbage::copyInto(copy + names.size() + 1, description);
    option.setNames(m_names);
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
