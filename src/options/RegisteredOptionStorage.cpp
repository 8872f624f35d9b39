#include "options/RegisteredOptionStorage.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <exception>
#include <memory>
#include <new>

#include "support/ConsoleStreams.h"
#include "support/Garbage.h"
#include "support/Text.h"

namespace kexa_3_3
{

namespace
{

constexpr std::int32_t registered = 3;
constexpr std::int32_t refused = 1;
constexpr std::size_t longest_short_form = 2;
constexpr std::size_t largest_table_in_pool = 2048; // bytes; larger ones are freed as they grow

// Whether a character belongs to a name, and is neither between names nor behind them.
[[nodiscard]] bool isPartOfName(wchar_t character) noexcept
{
    // Nearly all characters of names have greater codes, so one comparison is enough for them.
    return character > L',' || (character != L',' && character != L'\0');
}

// Whether so many names are few enough. last: the last of them, which counts for the third only. No
// name at all passes here: callers take a count of zero as refused.
[[nodiscard]] bool acceptsNames(std::size_t count, std::wstring_view last) noexcept
{
    return count < most_names || (count == most_names && last.size() <= longest_short_form);
}

template <class T>
[[nodiscard]] T* placeAt(std::byte* bytes) noexcept
{
    return static_cast<T*>(static_cast<void*>(bytes));
}

} // namespace

RegisteredOptionStorage::RegisteredOptionStorage(Garbage& owner, wchar_t defaultSeparator)
    : m_defaultSeparator(defaultSeparator), m_owner(owner),
      m_memory(owner.memory(), largest_table_in_pool), m_options(m_memory, m_firstOptions.bytes()),
      m_groups(m_memory, m_firstGroups.bytes()), m_groupSlots(m_memory, m_firstGroupSlots.bytes()),
      m_index(m_memory)
{
}

RegisteredOptionStorage::~RegisteredOptionStorage()
{
    if (m_index.holdsValues())
    {
        destroyValues();
    }
}

const Registration& RegisteredOptionStorage::registerOption(const wchar_t* names,
                                                            const wchar_t* keywords,
                                                            const wchar_t* description,
                                                            bool isSwitch, std::int32_t valueType,
                                                            const wchar_t* groupText)
{
    const Declaration declaration = {names, keywords, description, isSwitch, valueType};
    try
    {
        const wchar_t* const group = groupText == nullptr ? L"" : groupText;
        // Declarations of a group usually stand together.
        if (!isOfLastGroup(group)) [[unlikely]]
        {
            changeGroup(group);
        }
        if (!m_index.hasRoom(most_names) || !m_options.hasRoom(1)) [[unlikely]]
        {
            makeRoom();
        }
        const DeclaredNames found = names == nullptr ? DeclaredNames() : findNames(names);
        if (found.count != 0) [[likely]]
        {
            // Where this fails, what it leaves behind lies in the owner's memory and needs no
            // destruction.
            const NewOption made = makeOption(declaration, found);
            enter(made, found);
            m_lastRegistration = {made.option, registered};
            return m_lastRegistration;
        }
    }
    catch (const std::exception&) // NOLINT(bugprone-empty-catch)
    {
        // There is no memory: a failed declaration like any other.
    }
    m_lastRegistration = {nullptr, refused};
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

std::vector<OptionGroup> RegisteredOptionStorage::groups() const
{
    std::vector<OptionGroup> groups;
    groups.reserve(m_groups.size());
    for (const OptionGroup* const group : m_groups)
    {
        groups.push_back(*group);
    }
    return groups;
}

// Whether what is declared, a group with or without a text, is the group declared last.
bool RegisteredOptionStorage::isOfLastGroup(const wchar_t* declared) const noexcept
{
    if (m_lastGroup == nullptr)
    {
        return false;
    }
    const std::wstring_view name = m_lastGroup->first;
    return std::wcsncmp(declared, name.data(), name.size()) == 0 &&
           (declared[name.size()] == L':' || declared[name.size()] == L'\0');
}

// Finds the group that is declared, and adds it to the list where it is new.
void RegisteredOptionStorage::changeGroup(const wchar_t* declared)
{
    TextHash hash;
    const wchar_t* const end = hashUntil(
        declared, hash, [](const wchar_t* place) { return *place == L':' || *place == L'\0'; });
    const HashedText name(std::wstring_view(declared, end), hash);
    const std::size_t known = m_groupSlots.slotOf(name, groupNameOf());
    if (!m_groupSlots.isFree(known))
    {
        m_lastGroup = m_groups[m_groupSlots.numberAt(known)];
        return;
    }
    if (!m_groups.hasRoom(1))
    {
        const std::size_t room = m_groups.nextRoom(1);
        m_groupSlots.reserve(room);
        m_groups.grow(room);
    }
    const std::wstring_view text(*end == L':' ? end + 1 : end);
    void* const memory = m_owner.memory().take(sizeof(OptionGroup), alignof(OptionGroup));
    m_lastGroup = new (memory) OptionGroup(m_owner.keep(name), m_owner.keep(text));
    const std::size_t slot = m_groupSlots.slotOf(name, groupNameOf());
    m_groupSlots.put(slot, static_cast<std::uint32_t>(m_groups.size()), name);
    m_groups.append(m_lastGroup);
}

void RegisteredOptionStorage::makeRoom()
{
    m_index.reserve(most_names);
    if (!m_options.hasRoom(1))
    {
        m_options.grow(m_options.nextRoom(1));
    }
}

// Finds the names of a text, which ',' separates, and their places in the index. In one walk: names
// are so short that each further one would take long beside it. Answers none where they are
// refused.
RegisteredOptionStorage::DeclaredNames RegisteredOptionStorage::findNames(const wchar_t* text)
{
    NewName* name = m_names.data();
    const wchar_t* next = text;
    bool joined = true;
    for (;; ++next)
    {
        const wchar_t* const begin = next;
        TextHash hash;
        next = hashUntil(next, hash, [](const wchar_t* place) { return !isPartOfName(*place); });
        if (next != begin)
        {
            if (name == m_names.data() + most_names) [[unlikely]]
            {
                return {};
            }
            std::construct_at(&name->text, std::wstring_view(begin, next), hash);
            name->slot = m_index.slotOf(name->text);
            if (m_index.isTaken(name->slot)) [[unlikely]]
            {
                refuseTaken(text);
                return {};
            }
            ++name;
        }
        else
        {
            // Also for a ',' in front or at the end, which are too rare to tell apart.
            joined = false;
        }
        if (*next == L'\0')
        {
            break;
        }
    }
    const auto count = static_cast<std::size_t>(name - m_names.data());
    // There is a third name only where there are so many.
    const bool accepted = count < most_names || acceptsNames(count, m_names.back().text);
    return {{text, next}, accepted ? count : 0, joined};
}

// Reports names of which one is taken, unless there are too many of them anyway.
void RegisteredOptionStorage::refuseTaken(std::wstring_view names)
{
    std::size_t count = 0;
    std::wstring_view last;
    forEachPiece(names, L',',
                 [&](std::wstring_view name)
                 {
                     ++count;
                     last = name;
                 });
    if (!acceptsNames(count, last))
    {
        return;
    }
    // Past the stream: parsers in several threads may be declaring at the same time.
    const std::wstring line = concatenate(
        {L"Tried to register an option with a name, which is alread registered: ", names, L"\n"});
    static_cast<void>(internal::writeConsole(internal::ConsoleTarget::output, line));
}

// Makes an option of the last group in one piece of memory: behind the object come its names, which
// are yet to be entered, then the texts of all names, copied at once, and the description. Nothing
// fails behind what the registry notes of the option.
RegisteredOptionStorage::NewOption
RegisteredOptionStorage::makeOption(const Declaration& declaration, const DeclaredNames& names)
{
    static_assert(sizeof(OptionDescription) % alignof(HashedText) == 0 &&
                  sizeof(HashedText) % alignof(wchar_t) == 0);
    const std::wstring_view description = viewOf(declaration.description);
    const std::size_t textStart = sizeof(OptionDescription) + names.count * sizeof(HashedText);
    const std::size_t characters = names.text.size() + 1 + description.size() + 1;
    void* const memory =
        m_owner.memory().take(textStart + characters * sizeof(wchar_t), alignof(OptionDescription));
    std::byte* const bytes = static_cast<std::byte*>(memory);
    auto* const ownNames = placeAt<HashedText>(bytes + sizeof(OptionDescription));
    auto* const text = placeAt<wchar_t>(bytes + textStart);

    // The zeros that end them are copied with them.
    std::memcpy(text, names.text.data(), (names.text.size() + 1) * sizeof(wchar_t));
    wchar_t* const ownDescription = text + names.text.size() + 1;
    std::memcpy(ownDescription, description.data(), (description.size() + 1) * sizeof(wchar_t));

    auto* const option = new (memory)
        OptionDescription(*m_lastGroup, declaration.isSwitch, m_owner, {ownNames, names.count});
    option->setPlace(m_index, m_options.size());
    option->description = {ownDescription, description.size()};
    option->separator = m_defaultSeparator;
    option->valueType = declaration.valueType;
    option->namesAreJoined = names.joined;
    if (declaration.keywords != nullptr || declaration.isSwitch) [[unlikely]]
    {
        addKeywords(*option, declaration);
    }
    return {option, ownNames, text};
}

// The names of a switch are its keywords too. What may fail comes before what is noted: a switch is
// never positional, so its keywords note nothing, and it is counted last.
void RegisteredOptionStorage::addKeywords(OptionDescription& option, const Declaration& declaration)
{
    option.addKeywords(declaration.keywords);
    if (!option.takesValue())
    {
        option.addKeywords(declaration.names);
        ++m_actionCount;
    }
}

// Makes a new option and its names known. In its own text a zero takes the place of every
// separator.
void RegisteredOptionStorage::enter(const NewOption& made, const DeclaredNames& declared) noexcept
{
    const std::size_t tableIndex = m_options.size();
    const bool boolean = made.option->valueType == value_type_boolean;
    m_options.append(made.option);
    for (std::size_t number = 0; number < declared.count; ++number)
    {
        const HashedText& found = m_names[number].text;
        wchar_t* const text = made.text + (found.data() - declared.text.data());
        text[found.size()] = L'\0';
        HashedText& name = made.names[number];
        std::construct_at(&name, found, std::wstring_view(text, found.size()));
        m_index.add(name, tableIndex, boolean, m_names[number].slot);
    }
}

// What the other options hold lies in the owner's memory.
void RegisteredOptionStorage::destroyValues() noexcept
{
    for (OptionDescription* const option : m_options) // in the order of declaration
    {
        if (option->holdsValues())
        {
            std::destroy_at(option);
        }
    }
}

} // namespace kexa_3_3
