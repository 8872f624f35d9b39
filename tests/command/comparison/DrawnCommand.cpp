#include "DrawnCommand.h"

#include <algorithm>
#include <iterator>
#include <set>

using namespace kexa_3_3;

namespace toolbox
{

namespace
{

// Many begin alike, and some look like the negated form of others.
constexpr const char* stems[] = {"al",
                                 "alpha",
                                 "beta",
                                 "be",
                                 "ver",
                                 "verbose",
                                 "version",
                                 "nota",
                                 "nothing",
                                 "not",
                                 "x",
                                 "xy",
                                 "gr\u00F6\u00DFe",
                                 "list",
                                 "last",
                                 "l",
                                 "v",
                                 "verbosy",
                                 "option",
                                 "sum",
                                 "s",
                                 "\u65E5",
                                 "opt",
                                 "b",
                                 "base",
                                 "remove"};
constexpr char letters[] = "abcno-=,1 ";

constexpr const char* modes[] = {"fast", "slow", "start", "a,b"};
constexpr std::int32_t levels[] = {1, 10, 100};

class Names
{
public:
    Names(Choices& choices, bool makesNames) : m_choices(&choices), m_makesNames(makesNames) {}

    std::string draw()
    {
        if (m_makesNames && m_choices->chance(3))
        {
            std::string name;
            for (std::size_t length = m_choices->below(5); length > 0; --length)
            {
                name += letters[m_choices->below(std::size(letters) - 1)];
            }
            return name;
        }
        std::size_t index = m_choices->below(std::size(stems));
        while (!m_used.insert(index).second)
        {
            index = (index + 1) % std::size(stems);
        }
        return stems[index];
    }

private:
    Choices* m_choices;
    bool m_makesNames;
    std::set<std::size_t> m_used;
};

std::wstring wide(const std::string& text)
{
    return kexa::detail::wideText(text);
}

} // namespace

DrawnDeclarations drawDeclarations(Choices& choices, bool makesNames)
{
    DrawnDeclarations drawn;
    Names names(choices, makesNames);
    if (choices.chance(2))
    {
        for (std::size_t count = 1 + choices.below(3); count > 0; --count)
        {
            drawn.actions.push_back(names.draw());
        }
        if (drawn.actions.size() > 1 && choices.chance(2))
        {
            drawn.together = {0, 1};
        }
    }
    for (std::size_t member = 0; member < member_end; ++member)
    {
        if (!choices.chance(3))
        {
            continue;
        }
        DrawnOption option;
        option.member = static_cast<Member>(member);
        option.names = names.draw();
        if (choices.chance(4))
        {
            option.names += "," + names.draw();
        }
        option.isSeparated = member >= member_numbers && member < member_count && choices.chance(2);
        for (std::size_t action = 0; action < drawn.actions.size(); ++action)
        {
            if (choices.chance(5))
            {
                option.actions.push_back(action);
            }
        }
        drawn.options.push_back(std::move(option));
        if (drawn.options.size() == 8)
        {
            break; // enough names are left for two each
        }
    }
    drawn.words = static_cast<Words>(choices.below(3));
    return drawn;
}

void declare(kexa::Command<DrawnSettings>& command, const DrawnDeclarations& declarations)
{
    command.helpOption("");
    std::vector<kexa::Action> actions;
    for (std::size_t i = 0; i < declarations.actions.size(); ++i)
    {
        actions.push_back(command.action(action_members[i], declarations.actions[i], ""));
    }
    if (!declarations.together.empty())
    {
        command.together(actions[declarations.together[0]], actions[declarations.together[1]]);
    }
    for (const DrawnOption& drawn : declarations.options)
    {
        withMember(drawn.member,
                   [&](auto member)
                   {
                       auto option = command.option(member, drawn.names, "");
                       using Element = typename decltype(option)::Element;
                       if constexpr (std::is_same_v<Element, std::string>)
                       {
                           if (drawn.member == member_mode || drawn.member == member_modes)
                           {
                               option.valuesOf(modes);
                           }
                       }
                       if constexpr (std::is_same_v<Element, std::int32_t>)
                       {
                           if (drawn.member == member_level)
                           {
                               option.values({levels[0], levels[1], levels[2]});
                           }
                           if (drawn.member == member_count)
                           {
                               option.count();
                           }
                       }
                       if (drawn.isSeparated)
                       {
                           option.separator(',');
                       }
                       for (const std::size_t action : drawn.actions)
                       {
                           option.of(actions[action]);
                       }
                   });
    }
    if (declarations.words == Words::firstAndList)
    {
        command.positional(&DrawnSettings::first, "first", "");
    }
    if (declarations.words != Words::none)
    {
        command.positional(&DrawnSettings::words, "word", "");
    }
    if (declarations.hasOptionFiles)
    {
        command.optionFiles();
    }
}

namespace
{

// One by one: a declaration takes three names at most, and a short third one.
void addFurtherNames(IOption& option, const std::string& names)
{
    for (std::size_t comma = names.find(','); comma != std::string::npos;)
    {
        const std::size_t next = names.find(',', comma + 1);
        option.addName(wide(names.substr(comma + 1, next - comma - 1)).c_str());
        comma = next;
    }
}

// Gives the option the member's initialiser as its default; lists have none.
template <class Type>
void setDefault(IOption& option, const Type& value)
{
    if constexpr (std::is_same_v<Type, std::string>)
    {
        option.setDefaultValue(vexkit2::variant_t(wide(value)));
    }
    else if constexpr (std::is_same_v<Type, bool>)
    {
        option.setDefaultValue(vexkit2::variant_t(value));
    }
    else if constexpr (std::is_arithmetic_v<Type>)
    {
        option.setDefaultValue(kexa::detail::variantOf(value));
    }
}

} // namespace

void declare(RawParser& raw, const DrawnDeclarations& declarations)
{
    IParser& parser = raw.parser();
    for (const std::string& name : declarations.actions)
    {
        parser.addSwitch(wide(name).c_str(), L"", value_type_none, L"");
    }
    if (!declarations.together.empty())
    {
        parser.addCompatibleActions({wide(declarations.actions[declarations.together[0]]),
                                     wide(declarations.actions[declarations.together[1]])});
    }
    const DrawnSettings initial;
    for (const DrawnOption& drawn : declarations.options)
    {
        std::wstring keywords;
        for (const std::size_t action : drawn.actions)
        {
            keywords += (keywords.empty() ? L"" : L",") + wide(declarations.actions[action]);
        }
        withMember(drawn.member,
                   [&](auto member)
                   {
                       using Type = std::decay_t<decltype(initial.*member)>;
                       const bool isCount = drawn.member == member_count;
                       const std::int32_t type =
                           isCount ? std::int32_t{value_type_none}
                                   : kexa::detail::Erased<Type>::operations.rawType;
                       IOption& option =
                           *parser
                                .addOptionWithKeywords(wide(drawn.primaryName()).c_str(),
                                                       keywords.c_str(), L"", type, L"")
                                .option;
                       if (drawn.member == member_mode || drawn.member == member_modes)
                       {
                           for (const char* mode : modes)
                           {
                               option.addAllowedValue(vexkit2::variant_t(wide(mode)));
                           }
                       }
                       if (drawn.member == member_level)
                       {
                           for (const std::int32_t level : levels)
                           {
                               option.addAllowedValue(kexa::detail::variantOf(level));
                           }
                       }
                       addFurtherNames(option, drawn.names);
                       // Last, because allowed values set a separator.
                       option.setSeparator(drawn.isSeparated ? L',' : L'\0');
                       if (!isCount)
                       {
                           setDefault(option, initial.*member);
                       }
                   });
    }
    if (declarations.words != Words::none)
    {
        raw.addPositional(L"words of the line");
    }
    if (declarations.hasOptionFiles)
    {
        parser.enableOptionFiles(L"", L"");
    }
}

} // namespace toolbox
