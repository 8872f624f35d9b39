// The action check, over results that no command line produces.
#include "parser/ActionCheck.h"

#include <algorithm>
#include <initializer_list>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "options/OptionDescription.h"
#include "options/RegisteredOptionStorage.h"
#include "result/ParseResult.h"
#include "support/memory/Garbage.h"

#include "HeapOnly.h"
#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;

const OptionGroup no_group;

using Keywords = std::set<std::wstring>;

// "code: message".
std::wstring outcome(int code, const std::wstring& message)
{
    return std::to_wstring(code) + L": " + message;
}

class ActionCheck : public testing::Test
{
protected:
    void addSwitch(const wchar_t* names) { options.registerSwitch(names, L"", 0, L""); }
    void addOption(const wchar_t* names, const wchar_t* keywords = nullptr)
    {
        options.registerValueOption(names, keywords, L"", 13, L"");
    }

    // Stores an occurrence or a default under exactly these names.
    void store(std::initializer_list<const wchar_t*> names, bool occurrence = true)
    {
        OptionDescription option(no_group, false, pool);
        for (const wchar_t* const name : names)
        {
            option.addName(name);
        }
        OptionResult record;
        if (occurrence)
        {
            record.positions.push_back(0);
        }
        else
        {
            record.defaultText = L"default";
        }
        EXPECT_EQ(result.storeOption(option, record), 0);
    }

    std::wstring check()
    {
        std::wstring message;
        const int code = checkActions(result.options(), options, groups, message);
        return outcome(code, message);
    }

    Garbage pool{unit::heap_only};
    RegisteredOptionStorage options{pool, L','};
    ParseResult result;
    ActionGroups groups;
};

const std::wstring passes = L"0: ";
const std::wstring unknown = L"1: ";

TEST_F(ActionCheck, EmptyResultPasses)
{
    EXPECT_EQ(check(), passes);
    addSwitch(L"pack");
    EXPECT_EQ(check(), passes);
}

TEST_F(ActionCheck, UnknownNameEndsTheCheckWithOne)
{
    addSwitch(L"pack");
    store({L"unknown"});
    EXPECT_EQ(check(), unknown);
    store({L"pack"});
    EXPECT_EQ(check(), unknown);
}

TEST_F(ActionCheck, UnknownNameCountsOnlyBeforeAConflict)
{
    addSwitch(L"m");
    addSwitch(L"p");
    store({L"m"});
    store({L"p"});
    const std::wstring conflict =
        L"2: Action '-p' and action '-m' were defined, but only one action possible.";
    EXPECT_EQ(check(), conflict);
    store({L"q"});
    EXPECT_EQ(check(), conflict);
    store({L"n"}); // sorted between the two
    EXPECT_EQ(check(), unknown);
}

TEST_F(ActionCheck, UnknownNameComesBeforeWhatIsCheckedAtTheEnd)
{
    addSwitch(L"pack");
    addOption(L"level", L"other");
    store({L"level"});
    store({L"zzz"});
    EXPECT_EQ(check(), unknown); // rather than "No action defined."
    store({L"pack"});
    EXPECT_EQ(check(),
              unknown); // rather than the message that the action does not accept the option
}

TEST_F(ActionCheck, DefaultAloneIsNeverGiven)
{
    addSwitch(L"pack");
    addSwitch(L"list");
    addOption(L"level", L"other");
    store({L"pack"}, false);
    store({L"list"}, false);
    store({L"level"}, false);
    store({L"unknown"}, false);
    EXPECT_EQ(check(), passes);
    store({L"list"});
    EXPECT_EQ(check(), passes);
    store({L"level"});
    EXPECT_EQ(check(), L"2: Action '-list' doesn't accept option '-level'");
}

TEST_F(ActionCheck, NamesOfOneActionAreOneAction)
{
    addSwitch(L"pack,p");
    addOption(L"level,l", L"pack");
    store({L"pack", L"p"});
    store({L"level", L"l"});
    EXPECT_EQ(check(), passes);
}

TEST_F(ActionCheck, NamesDecideWhichOfTwoIsReported)
{
    addSwitch(L"zip,a");
    addSwitch(L"list,l");
    store({L"zip", L"a"});
    store({L"list", L"l"});
    EXPECT_EQ(check(), L"2: Action '-list' and action '-zip' were defined, but only one action "
                       L"possible.");
}

TEST_F(ActionCheck, OneGroupHasToHoldAllActions)
{
    for (const wchar_t* const name : {L"a", L"b", L"c"})
    {
        addSwitch(name);
        store({name});
    }
    const std::wstring second =
        L"2: Action '-b' and action '-a' were defined, but only one action possible.";
    const std::wstring third =
        L"2: Action '-c' and action '-a' were defined, but only one action possible.";
    EXPECT_EQ(check(), second);
    groups = {{L"b", L"c"}, {L"a", L"c"}};
    EXPECT_EQ(check(), second);
    groups.push_back({L"a", L"b"});
    EXPECT_EQ(check(), third);
    groups.push_back({L"a", L"b", L"c", L"d"});
    EXPECT_EQ(check(), passes);
}

TEST_F(ActionCheck, GroupsHoldPrimaryNames)
{
    addSwitch(L"pack,p");
    addSwitch(L"list,l");
    store({L"pack", L"p"});
    store({L"list", L"l"});
    groups = {{L"p", L"l"}};
    EXPECT_EQ(check(), L"2: Action '-pack' and action '-list' were defined, but only one action "
                       L"possible.");
    groups = {{L"pack", L"list"}};
    EXPECT_EQ(check(), passes);
}

TEST_F(ActionCheck, FirstActionDecidesWhatIsAccepted)
{
    addSwitch(L"a");
    addSwitch(L"b");
    addOption(L"of-a", L"a");
    addOption(L"of-b,x,0", L"b");
    addOption(L"of-both", L"a,b");
    addOption(L"of-all");
    groups = {{L"a", L"b"}};
    store({L"b"});
    store({L"a"});
    store({L"of-a"});
    store({L"of-both"});
    store({L"of-all"});
    EXPECT_EQ(check(), passes);
    store({L"of-b", L"x", L"0"});
    EXPECT_EQ(check(), L"2: Action '-a' doesn't accept option '-of-b'");
}

TEST_F(ActionCheck, OptionsNeedAnActionWhereThereIsOne)
{
    addOption(L"level");
    store({L"level"});
    EXPECT_EQ(check(), passes);
    addSwitch(L"pack");
    EXPECT_EQ(check(), L"2: No action defined.");
    store({L"pack"});
    EXPECT_EQ(check(), passes);
}

// A naive check: walks over the entries sorted by name.
std::wstring walk(const std::vector<std::wstring>& entries, const RegisteredOptionStorage& options,
                  const ActionGroups& groups)
{
    const OptionDescription* chosen = nullptr;
    Keywords actions;
    bool valueOptionSeen = false;
    for (const std::wstring& name : entries)
    {
        const OptionDescription* const option = options.find(name);
        if (option == nullptr)
        {
            return unknown;
        }
        if (option->valueMode != 0)
        {
            valueOptionSeen = true;
            continue;
        }
        actions.emplace(option->primaryName());
        chosen = chosen == nullptr ? option : chosen;
        if (option != chosen && std::none_of(groups.begin(), groups.end(),
                                             [&actions](const Keywords& group) {
                                                 return std::includes(group.begin(), group.end(),
                                                                      actions.begin(),
                                                                      actions.end());
                                             }))
        {
            return outcome(2, L"Action '-" + std::wstring(option->primaryName()) +
                                  L"' and action '-" + std::wstring(chosen->primaryName()) +
                                  L"' were defined, but only one action possible.");
        }
    }
    if (chosen == nullptr)
    {
        return options.hasActions() && valueOptionSeen ? outcome(2, L"No action defined.") : passes;
    }
    for (const std::wstring& name : entries)
    {
        const OptionDescription* const option = options.find(name);
        const bool accepted = option->valueMode == 0 || option->keywords().empty() ||
                              std::any_of(option->keywords().begin(), option->keywords().end(),
                                          [chosen](std::wstring_view keyword)
                                          { return chosen->keywords().contains(keyword); });
        if (!accepted)
        {
            return outcome(2, L"Action '-" + std::wstring(chosen->primaryName()) +
                                  L"' doesn't accept option '-" +
                                  std::wstring(option->primaryName()) + L"'");
        }
    }
    return passes;
}

TEST(ActionCheckComparison, EveryResultIsCheckedAsAWalkDoes)
{
    std::map<std::wstring, int> outcomes;
    for (unsigned seed = 0; seed < 1500; ++seed)
    {
        std::mt19937_64 random(seed);
        const auto below = [&random](unsigned bound)
        {
            return static_cast<unsigned>(random() % bound);
        };
        const std::wstring names[] = {L"a", L"b", L"c", L"d", L"e", L"f", L"g", L"h"};
        Garbage pool{unit::heap_only};
        RegisteredOptionStorage options(pool, L',');
        for (unsigned first = 0; first + 1 < 8; first += 2)
        {
            // Two names, of which the primary one is not always first in sorted order.
            const bool swapped = below(2) == 0;
            const std::wstring both =
                names[first + (swapped ? 1 : 0)] + L"," + names[first + (swapped ? 0 : 1)];
            const std::wstring keywords = below(2) == 0 ? names[below(8)] : std::wstring();
            const unsigned kind = below(5);
            if (kind < 2)
            {
                options.registerOption(both.c_str(), keywords.c_str(), L"", true, 0, L"");
            }
            else if (kind < 4)
            {
                options.registerValueOption(both.c_str(), keywords.c_str(), L"", 13, L"");
            }
        }
        ActionGroups groups;
        for (unsigned count = below(3); count != 0; --count)
        {
            groups.push_back({names[below(8)], names[below(8)], names[below(8)]});
        }
        ParseResult result;
        std::vector<std::wstring> entries;
        for (const std::wstring& name : names)
        {
            if (below(3) == 0)
            {
                entries.push_back(name);
            }
        }
        std::vector<std::wstring> order(entries);
        std::shuffle(order.begin(), order.end(), random);
        for (const std::wstring& name : order)
        {
            OptionDescription option(no_group, false, pool);
            option.addName(name.c_str());
            OptionResult record;
            record.positions.push_back(0);
            ASSERT_EQ(result.storeOption(option, record), 0);
        }
        std::wstring message;
        const int code = checkActions(result.options(), options, groups, message);
        const std::wstring expected = walk(entries, options, groups);
        ASSERT_EQ(outcome(code, message), expected) << "seed " << seed;
        ++outcomes[expected.substr(0, 12)];
    }
    EXPECT_GT(outcomes[passes], 20);
    EXPECT_GT(outcomes[unknown], 20);
    EXPECT_GT(outcomes[L"2: No action"], 20);
    EXPECT_GT(outcomes[L"2: Action '-"], 20);
}

} // namespace
