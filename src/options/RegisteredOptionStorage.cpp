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

// The first ',' of a text, or its end.
[[nodiscard]] const wchar_t* endOfPiece(const wchar_t* text) noexcept
{
    // Nearly all characters of names have greater codes, so one comparison is enough for them.
    while (*text > L',' || (*text != L',' && *text != L'\0'))
    {
        ++text;
    }
    return text;
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
    const wchar_t* const declaredGroup = groupText == nullptr ? L"" : groupText;
    // Declarations of a group usually stand together.
    if (!isOfLastGroup(declaredGroup)) [[unlikely]]
    {
        changeGroup(declaredGroup);
    }
    const std::wstring_view allNames = findNames(names == nullptr ? L"" : names);
    if (!acceptsNames()) [[unlikely]]
    {
        return m_lastRegistration;
    }
    if (m_isNameTaken) [[unlikely]]
    {
        reportTaken(allNames);
        return m_lastRegistration;
    }

    reserveMore(m_options, 1, expected_options);
    OptionDescription& option = makeOption(allNames, viewOf(description), isSwitch);
    option.valueType = valueType;
    // Where this fails, what it leaves behind lies in the owner's memory and needs no destruction.
    if (keywords != nullptr)
    {
        option.addKeywords(keywords);
    }
    if (isSwitch)
    {
        option.addKeywords(names);
    }

    option.enterInto(m_index, m_options.size(), {m_slots.data(), m_nameCount});
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

// Whether what is declared, a group with or without a text, is the group declared last.
bool RegisteredOptionStorage::isOfLastGroup(const wchar_t* declared) const noexcept
{
    const std::wstring_view name = m_lastGroup.first;
    return name.data() != nullptr && std::wcsncmp(declared, name.data(), name.size()) == 0 &&
           (declared[name.size()] == L':' || declared[name.size()] == L'\0');
}

// Finds the group that is declared, and adds it to the list where it is new.
void RegisteredOptionStorage::changeGroup(const wchar_t* declared)
{
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
    m_lastGroup = m_groups[number];
}

// Splits a text into m_names at every ',' and finds their places in the index. Answers the whole
// text. In one walk: names are so short that finding each of their ends by itself takes longer.
std::wstring_view RegisteredOptionStorage::findNames(const wchar_t* text)
{
    m_index.reserve(most_names); // so that what is found out about their places stays true
    std::size_t count = 0;
    bool taken = false;
    const wchar_t* end = text;
    for (const wchar_t* begin = text;; begin = end + 1)
    {
        end = endOfPiece(begin);
        if (end != begin)
        {
            if (count < most_names)
            {
                const HashedText name(std::wstring_view(begin, end));
                m_names[count] = name;
                m_slots[count] = m_index.slotOf(name);
                taken = taken || m_index.isTaken(m_slots[count]);
            }
            ++count;
        }
        if (*end == L'\0')
        {
            break;
        }
    }
    m_nameCount = count;
    m_isNameTaken = taken;
    return {text, end};
}

// Applies the rules for names by themselves.
bool RegisteredOptionStorage::acceptsNames() const noexcept
{
    return m_nameCount != 0 &&
           (m_nameCount < most_names ||
            (m_nameCount == most_names && m_names.back().size() <= longest_short_form));
}

void RegisteredOptionStorage::reportTaken(std::wstring_view names)
{
    // Past the stream: parsers in several threads may be declaring at the same time.
    const std::wstring line = concatenate(
        {L"Tried to register an option with a name, which is alread registered: ", names, L"\n"});
    static_cast<void>(internal::writeConsole(internal::ConsoleTarget::output, line));
}

// Makes an option of the last group in one piece of memory: behind the object come its names, then
// the texts of all names, copied at once, and the description. In the copy a zero takes the place
// of every separator.
OptionDescription& RegisteredOptionStorage::makeOption(std::wstring_view allNames,
                                                       std::wstring_view description, bool isSwitch)
{
    static_assert(sizeof(OptionDescription) % alignof(HashedText) == 0 &&
                  sizeof(HashedText) % alignof(wchar_t) == 0);
    const std::size_t textStart = sizeof(OptionDescription) + m_nameCount * sizeof(HashedText);
    const std::size_t characters = allNames.size() + 1 + description.size() + 1;
    void* const memory =
        m_owner.memory().take(textStart + characters * sizeof(wchar_t), alignof(OptionDescription));
    std::byte* const bytes = static_cast<std::byte*>(memory);
    auto* const names = placeAt<HashedText>(bytes + sizeof(OptionDescription));
    auto* const text = placeAt<wchar_t>(bytes + textStart);

    Garbage::copyInto(text, allNames);
    for (std::size_t position = 0; position < m_nameCount; ++position)
    {
        const HashedText& name = m_names[position];
        wchar_t* const own = text + (name.data() - allNames.data());
        own[name.size()] = L'\0';
        std::construct_at(names + position, name, std::wstring_view(own, name.size()));
    }
    auto* const option =
        new (memory) OptionDescription(m_lastGroup, isSwitch, m_owner, {names, m_nameCount});
    option->description = Garbage::copyInto(text + allNames.size() + 1, description);
    option->separator = m_defaultSeparator;
    return *option;
}

} // namespace kexa_3_3
