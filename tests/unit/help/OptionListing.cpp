// Tests of the listing of options, without a parser: each test makes its own groups and entries.
#include "help/OptionListing.h"

#include <deque>
#include <string>
#include <vector>

#include "options/OptionDescription.h"
#include "support/memory/Garbage.h"

#include "HeapOnly.h"
#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;

using Groups = std::vector<OptionGroup>;

class OptionListing : public testing::Test
{
protected:
    OptionDescription& add(const wchar_t* name, const wchar_t* group,
                           const wchar_t* description = L"text")
    {
        OptionDescription& option =
            options.emplace_back(groups.emplace_back(OptionGroup{group, L"not used"}), false, pool);
        option.addName(name);
        option.valueType = value_type_none;
        option.description = description;
        entries.push_back(&option);
        return option;
    }

    Garbage pool{unit::heap_only};
    std::deque<OptionGroup> groups;
    std::deque<OptionDescription> options;
    std::vector<const OptionDescription*> entries;
};

// Returns the line that has the lead in the names column and the text in the description column.
std::wstring line(const std::wstring& lead, const std::wstring& text)
{
    return lead + std::wstring(30 - lead.size(), L' ') + text + L"\n";
}

TEST_F(OptionListing, EntryOfAGroupThatIsNotListedIsLeftOut)
{
    add(L"a", L"known");
    add(L"b", L"unknown");
    add(L"c", L"Known");
    EXPECT_EQ(formatOptionHelp({{L"known", L""}}, entries, false),
              L"known\n" + line(L"-a", L"text") + L"\n");
    EXPECT_EQ(formatOptionHelp({}, entries, false), L"");
    EXPECT_EQ(formatOptionHelp({{L"other", L""}}, entries, false), L"other\n\n");
}

TEST_F(OptionListing, HiddenGroupIsShownAlone)
{
    add(L"a", L"kexa_hidden");
    add(L"b", L"");
    const Groups listed = {{L"", L""}, {L"kexa_hidden", L""}, {L"kexa_hidden2", L""}};
    EXPECT_EQ(formatOptionHelp(listed, entries, true),
              L"kexa_hidden\n" + line(L"-a", L"text") + L"\n");
    EXPECT_EQ(formatOptionHelp(listed, entries, false),
              line(L"-b", L"text") + L"\nkexa_hidden2\n\n");
}

TEST_F(OptionListing, GroupsKeepTheirOrderAndEntriesAreSortedByName)
{
    add(L"z", L"second");
    add(L"b", L"first");
    add(L"B", L"first");
    add(L"a", L"first");
    EXPECT_EQ(formatOptionHelp({{L"second", L""}, {L"first", L""}}, entries, false),
              L"second\n" + line(L"-z", L"text") + L"\nfirst\n" + line(L"-B", L"text") +
                  line(L"-a", L"text") + line(L"-b", L"text") + L"\n");
}

TEST_F(OptionListing, EntriesOfOneNameKeepTheirOrder)
{
    std::deque<std::wstring> texts;
    std::wstring expected;
    for (int count = 0; count < 50; ++count) // so many that an unstable sort changes their order
    {
        texts.push_back(std::to_wstring(count));
        add(L"same", L"", texts.back().c_str());
        expected += line(L"-same", texts.back());
    }
    EXPECT_EQ(formatOptionHelp({{L"", L""}}, entries, false), expected + L"\n");
}

TEST_F(OptionListing, MarkedEntryIsLeftOut)
{
    add(L"a", L"").setMarked();
    EXPECT_EQ(formatOptionHelp({{L"", L""}}, entries, false), L"\n");
}

TEST_F(OptionListing, GroupTextIsAParagraphFollowedByAnEmptyLine)
{
    std::wstring line; // the longest line that fits
    for (int count = 0; count < 15; ++count)
    {
        line += L" word";
    }
    const std::wstring text = line.substr(1) + L" next";
    EXPECT_EQ(formatOptionHelp({{L"g", text}, {L"", L"t"}}, {}, false),
              L"g\n" + line + L"\n next\n\n\n" + L" t\n\n\n");
}

TEST_F(OptionListing, LongColumnHasALineOfItsOwn)
{
    add(L"a name of twenty-eight chars", L"");
    add(L"b name of twenty-nine charac.", L"");
    EXPECT_EQ(formatOptionHelp({{L"", L""}}, entries, false),
              line(L"-a name of twenty-eight chars", L"text") +
                  L"-b name of twenty-nine charac.\n" + line(L"", L"text") + L"\n");
}

TEST_F(OptionListing, EntryWithoutADescriptionIsOnlyItsColumn)
{
    add(L"a", L"", L"");
    add(L"b name of twenty-nine charac.", L"", L"");
    EXPECT_EQ(formatOptionHelp({{L"", L""}}, entries, false),
              L"-a\n-b name of twenty-nine charac.\n\n");
}

TEST(HiddenTest, HiddenHelpShowsTheHiddenGroupOnly)
{
    EXPECT_TRUE(passesHiddenTest(L"", false));
    EXPECT_TRUE(passesHiddenTest(L"kexa_hidden ", false));
    EXPECT_FALSE(passesHiddenTest(L"kexa_hidden", false));
    EXPECT_FALSE(passesHiddenTest(L"", true));
    EXPECT_FALSE(passesHiddenTest(L"Kexa_hidden", true));
    EXPECT_TRUE(passesHiddenTest(L"kexa_hidden", true));
}

} // namespace
