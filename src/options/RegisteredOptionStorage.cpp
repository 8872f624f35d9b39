#include "options/RegisteredOptionStorage.h"

#include <algorithm>
#include <cwchar>
#include <memory>
#include <new>
#include <span>

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
constexpr std::size_t longest_short_form = 2;
constexpr std::size_t expected_options = 32; // room taken at once, for programs of usual size
constexpr std::size_t largest_table_in_pool = 2048; // bytes; larger ones are freed as they grow

// Whether what is declared, a group with or without a text, is of the group with the name.
[[nodiscard]] bool namesGroup(const wchar_t* declared, std::wstring_view name) noexcept
{
    return std::wcsncmp(declared, name.data(), name.size()) == 0 &&
           (declared[name.size()] == L':' || declared[name.size()] == L'\0');
}

template <class T>
[[nodiscard]] T* placeAt(std::byte* bytes) noexcept
{
    return static_cast<T*>(static_cast<void*>(bytes));
}

} // namespace

RegisteredOptionStorage::RegisteredOptionStorage(Garbage& owner, wchar_t defaultSeparator)
    : m_defaultSeparator(defaultSeparator), m_owner(owner),
      m_memory(owner.memory(), largest_table_in_pool), m_options(&m_memory), m_groupNames(m_memory),
      m_index(m_memory)
{
}

RegisteredOptionStorage::~RegisteredOptionStorage()
{
    for (OptionDescription* const option : m_options) // in the order of declaration
    {
        if (option->holdsValues())
        {
            std::destroy_at(option);
        }
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
    const std::size_t nameCount = acceptNames(allNames);
    if (nameCount == 0)
    {
        return m_lastRegistration;
    }

    reserveMore(m_options, 1, expected_options);
    // What a failure leaves behind lies in the owner's memory, and is nothing to be destroyed.
    OptionDescription& option =
        makeOption(group, isSwitch, allNames, nameCount, viewOf(description));
    option.valueType = valueType;
    option.addKeywords(keywords);
    if (isSwitch)
    {
        option.addKeywords(names);
    }
    option.separator = m_defaultSeparator;

    option.enterInto(m_index, m_options.size(), std::span(m_slots).first(nameCount));
    m_options.push_back(&option);
    m_actionCount += isSwitch ? 1 : 0;
    m_lastRegistration = {&option, registered};
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
    return found == OptionIndex::none ? nullptr : m_options[static_cast<std::size_t>(found)];
}

// The group that a declaration names, added to the list where it is new.
const RegisteredOptionStorage::Group& RegisteredOptionStorage::groupOf(const wchar_t* declared)
{
    // Declarations of a group usually stand together.
    if (m_lastGroup < m_groups.size() && namesGroup(declared, m_groups[m_lastGroup].first))
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
    m_lastGroup = number;
    return m_groups[number];
}

// Splits the names text into m_names and applies the rules for names. Answers how many there are, 0
// where they are refused.
std::size_t RegisteredOptionStorage::acceptNames(std::wstring_view names)
{
    std::size_t count = 0;
    forEachPiece(names, L',',
                 [this, &count](std::wstring_view name)
                 {
                     if (count < most_names)
                     {
                         m_names[count] = HashedText(name);
                     }
                     ++count;
                 });
    if (count > most_names || (count == most_names && m_names.back().size() > longest_short_form))
    {
        return 0;
    }
    m_index.reserve(count);
    bool taken = false;
    for (std::size_t position = 0; position < count; ++position)
    {
        m_slots[position] = m_index.slotOf(m_names[position]);
        taken = taken || m_index.isTaken(m_slots[position]);
    }
    if (taken)
    {
        // Past the stream: parsers in several threads may be declaring at the same time.
        const std::wstring line =
            concatenate({L"Tried to register an option with a name, which is alread registered: ",
                         names, L"\n"});
        static_cast<void>(internal::writeConsole(internal::ConsoleTarget::output, line));
    }
    return taken ? 0 : count;
}

// Makes an option in one piece of memory: behind the object come its names, then the texts of all
// names, copied at once, and the description. In the copy a zero takes the place of every
// separator.
OptionDescription& RegisteredOptionStorage::makeOption(const Group& group, bool isSwitch,
                                                       std::wstring_view names,
                                                       std::size_t nameCount,
                                                       std::wstring_view description)
{
    static_assert(sizeof(OptionDescription) % alignof(HashedText) == 0 &&
                  sizeof(HashedText) % alignof(wchar_t) == 0);
    const std::size_t textStart = sizeof(OptionDescription) + nameCount * sizeof(HashedText);
    const std::size_t characters = names.size() + 1 + description.size() + 1;
    void* const memory =
        m_owner.memory().take(textStart + characters * sizeof(wchar_t), alignof(OptionDescription));
    std::byte* const bytes = static_cast<std::byte*>(memory);
    auto* const ownNames = placeAt<HashedText>(bytes + sizeof(OptionDescription));
    auto* const text = placeAt<wchar_t>(bytes + textStart);

    Garbage::copyInto(text, names);
    for (std::size_t position = 0; position < nameCount; ++position)
    {
        const HashedText& name = m_names[position];
        wchar_t* const own = text + (name.data() - names.data());
        own[name.size()] = L'\0';
        std::construct_at(ownNames + position, name, std::wstring_view(own, name.size()));
    }
    OptionDescription* const option = new (memory)
        OptionDescription(group, isSwitch, m_owner, std::span<HashedText>(ownNames, nameCount));
    option->description = Garbage::copyInto(text + names.size() + 1, description);
    return *option;
}

} // namespace kexa_3_3
