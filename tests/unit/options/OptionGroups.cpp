// The groups that declarations name.
#include <string>
#include <utility>
#include <vector>

#include "options/RegisteredOptionStorage.h"
#include "support/memory/Garbage.h"

#include "HeapOnly.h"
#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;

using Groups = std::vector<std::pair<std::wstring, std::wstring>>;

Groups groupsOf(const RegisteredOptionStorage& options)
{
    Groups groups;
    for (const OptionGroup& group : options.groups())
    {
        groups.emplace_back(group.name, group.text);
    }
    return groups;
}

class OptionGroups : public testing::Test
{
protected:
    const Registration& add(const wchar_t* names, const wchar_t* groupText)
    {
        return options.registerOption(names, nullptr, L"", false, value_type_string, groupText);
    }

    Garbage pool{unit::heap_only};
    RegisteredOptionStorage options{pool, L','};
};

TEST_F(OptionGroups, GroupIsCutAtItsFirstColon)
{
    add(L"a", L"advanced:Advanced options");
    add(L"b", L"advanced:Other");
    add(L"c", L"advanced");
    add(L"d", L"plain");
    add(L"e", L"plain:Too late");
    add(L"f", L"x:y:z");
    add(L"g", L":Of no group");
    add(L"h", L"");
    add(L"i", L"Advanced:");
    EXPECT_EQ(groupsOf(options), (Groups{{L"advanced", L"Advanced options"},
                                         {L"plain", L""},
                                         {L"x", L"y:z"},
                                         {L"", L"Of no group"},
                                         {L"Advanced", L""}}));
    for (const std::size_t index : {0U, 1U, 2U})
    {
        EXPECT_EQ(options[index].group.name, L"advanced") << index;
        EXPECT_EQ(options[index].group.text, L"Advanced options") << index;
    }
    EXPECT_EQ(options[4].group.text, L"");
    EXPECT_EQ(options[5].group.text, L"y:z");
    EXPECT_EQ(options[7].group.text, L"Of no group");
}

TEST_F(OptionGroups, DeclarationsOfOneGroupMayStandTogetherOrApart)
{
    const std::vector<const wchar_t*> declared = {L"x", L"x",    L"y:Why", L"y:Why", L"x", L"y:Why",
                                                  L"y", nullptr, L"",      L"z",     L"z"};
    const Groups expected = {{L"x", L""}, {L"x", L""},    {L"y", L"Why"}, {L"y", L"Why"},
                             {L"x", L""}, {L"y", L"Why"}, {L"y", L"Why"}, {L"", L""},
                             {L"", L""},  {L"z", L""},    {L"z", L""}};
    Groups found;
    for (const wchar_t* const groupText : declared)
    {
        add(std::to_wstring(found.size()).c_str(), groupText);
        const OptionDescription& option = options[found.size()];
        found.emplace_back(option.group.name, option.group.text);
    }
    EXPECT_EQ(found, expected);
    EXPECT_EQ(groupsOf(options), (Groups{{L"x", L""}, {L"y", L"Why"}, {L"", L""}, {L"z", L""}}));
}

TEST_F(OptionGroups, ManyGroupsAreEachListedOnce)
{
    for (int number = 0; number < 300; ++number)
    {
        const std::wstring name = std::to_wstring(number);
        const std::wstring group = L"g" + std::to_wstring(number * 7 % 100);
        add(name.c_str(), (group + L":text " + name).c_str());
    }
    ASSERT_EQ(options.groups().size(), 100U);
    for (std::size_t number = 0; number < 300; ++number)
    {
        const std::wstring number7 = std::to_wstring(number * 7 % 100);
        ASSERT_EQ(options[number].group.name, L"g" + number7);
        ASSERT_EQ(options[number].group.text, L"text " + std::to_wstring(number % 100));
    }
}

} // namespace
