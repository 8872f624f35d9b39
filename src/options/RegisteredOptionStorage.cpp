#include "options/RegisteredOptionStorage.h"

#include <algorithm>
#include <cstring>
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

[[nodiscard]] const wchar_t* orEmpty(const wchar_t* text) noexcept
{
    return text == nullptr ? L"" : text;
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
    names = orEmpty(names);
    groupText = orEmpty(groupText);
    // Declarations of a group usually stand together.
    if (!isOfLastGroup(groupText)) [[unlikely]]
    {
        changeGroup(groupText);
    }
    const std::wstring_view allNames = findNames(names);
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
    // Where the following fails, what it leaves behind lies in the owner's memory and needs no
    // destruction.
    const NewOption made = makeOption(allNames, orEmpty(description), isSwitch, valueType);
    if (keywords != nullptr || isSwitch)
    {
        addKeywords(made.option, keywords, names);
    }
    enter(made, allNames);
    m_lastRegistration = {&made.option, registered};
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

// Finds the names of a text, which ',' separates, and their places in the index. Answers the whole
// text. In one walk: names are so short that finding each of their ends by itself takes longer.
std::wstring_view RegisteredOptionStorage::findNames(const wchar_t* text)
{
    m_index.reserve(most_names); // so that what is found out about their places stays true
    m_isNameTaken = false;
    std::size_t count = 0;
    const wchar_t* begin = text;
    const wchar_t* end = endOfPiece(text);
    for (;; begin = end + 1, end = endOfPiece(begin))
    {
        if (end != begin)
        {
            if (count < most_names)
            {
                NewName& name = m_names[count];
                std::construct_at(&name.text, std::wstring_view(begin, end));
                name.slot = m_index.slotOf(name.text);
                if (m_index.isTaken(name.slot)) [[unlikely]]
                {
                    m_isNameTaken = true;
                }
            }
            ++count;
        }
        if (*end == L'\0')
        {
            break;
        }
    }
    m_nameCount = count;
    return {text, end};
}

// Applies the rules for names by themselves.
bool RegisteredOptionStorage::acceptsNames() const noexcept
{
    return m_nameCount != 0 &&
           (m_nameCount < most_names ||
            (m_nameCount == most_names && m_names.back().text.size() <= longest_short_form));
}

void RegisteredOptionStorage::reportTaken(std::wstring_view names)
{
    // Past the stream: parsers in several threads may be declaring at the same time.
    const std::wstring line = concatenate(
        {L"Tried to register an option with a name, which is alread registered: ", names, L"\n"});
    static_cast<void>(internal::writeConsole(internal::ConsoleTarget::output, line));
}

// Makes an option of the last group in one piece of memory: behind the object come its names, which
// are yet to be entered, then the texts of all names, copied at once, and the description.
RegisteredOptionStorage::NewOption
RegisteredOptionStorage::makeOption(std::wstring_view allNames, std::wstring_view description,
                                    bool isSwitch, std::int32_t valueType)
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

    // The zeros that end them are copied with them.
    std::memcpy(text, allNames.data(), (allNames.size() + 1) * sizeof(wchar_t));
    wchar_t* const ownDescription = text + allNames.size() + 1;
    std::memcpy(ownDescription, description.data(), (description.size() + 1) * sizeof(wchar_t));

    auto* const option =
        new (memory) OptionDescription(m_lastGroup, isSwitch, m_owner, {names, m_nameCount});
    option->description = {ownDescription, description.size()};
    option->separator = m_defaultSeparator;
    option->valueType = valueType;
    return {*option, names, text};
}

// Adds the keywords of an option that is about to be entered. The names of a switch are its
// keywords too.
void RegisteredOptionStorage::addKeywords(OptionDescription& option, const wchar_t* keywords,
                                          const wchar_t* names)
{
    option.addKeywords(keywords);
    if (!option.takesValue())
    {
        option.addKeywords(names);
        ++m_actionCount;
    }
    if (option.isPositional())
    {
        m_index.notePositional(m_options.size());
    }
}

// Makes a new option and its names known. In its own text a zero takes the place of every
// separator.
void RegisteredOptionStorage::enter(const NewOption& made, std::wstring_view declared) noexcept
{
    const std::size_t tableIndex = m_options.size();
    const std::size_t count = m_nameCount;
    const bool boolean = made.option.valueType == value_type_boolean;
    made.option.setPlace(m_index, tableIndex);
    for (std::size_t position = 0; position < count; ++position)
    {
        const NewName& found = m_names[position];
        wchar_t* const text = made.text + (found.text.data() - declared.data());
        text[found.text.size()] = L'\0';
        const HashedText* const name = std::construct_at(
            made.names + position, found.text, std::wstring_view(text, found.text.size()));
        m_index.add(*name, tableIndex, boolean, found.slot);
    }
    m_options.push_back(&made.option);
}

} // namespace kexa_3_3
