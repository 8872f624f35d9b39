// The groups that declarations name.
#include <string>
#include <utility>
#include <vector>

#include "options/RegisteredOptionStorage.h"
#include "support/Garbage.h"

#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;

using Groups = std::vector<OptionGroup>;

class OptionGroups : public testing::Test
{
protected:
    const Registration& add(const wchar_t* names, const wchar_t* groupText)
    {
        return options.registerOption(names, nullptr, L"", false, value_type_string, groupText);
    }

    Garbage pool{4096};
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
    EXPECT_EQ(options.groups(), (Groups{{L"advanced", L"Advanced options"},
                                        {L"plain", L""},
                                        {L"x", L"y:z"},
                                        {L"", L"Of no group"},
                                        {L"Advanced", L""}}));
    for (const std::size_t index : {0U, 1U, 2U})
    {
        EXPECT_EQ(options[index].group(), L"advanced") << index;
        EXPECT_EQ(options[index].groupText(), L"Advanced options") << index;
    }
    EXPECT_EQ(options[4].groupText(), L"");
    EXPECT_EQ(options[5].groupText(), L"y:z");
    EXPECT_EQ(options[7].groupText(), L"Of no group");
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
        found.emplace_back(option.group(), option.groupText());
    }
    EXPECT_EQ(found, expected);
    EXPECT_EQ(options.groups(), (Groups{{L"x", L""}, {L"y", L"Why"}, {L"", L""}, {L"z", L""}}));
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
        ASSERT_EQ(options[number].group(), L"g" + number7);
        ASSERT_EQ(options[number].groupText(), L"text " + std::to_wstring(number % 100));
    }
}

} // namespace
