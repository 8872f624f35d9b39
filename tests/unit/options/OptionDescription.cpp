// The declaration of an option: what it holds at first, what each operation changes, copies.
#include "options/OptionDescription.h"

#include <string>
#include <vector>

#include "options/OptionIndex.h"
#include "support/memory/Garbage.h"

#include "EnteredOption.h"
#include "HeapOnly.h"
#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;
using vexkit2::s32_t;
using vexkit2::variant_t;

const OptionGroup no_group;

using Texts = std::vector<std::wstring>;

std::wstring_view textOf(std::wstring_view text)
{
    return text;
}
std::wstring_view textOf(const HashedText& text)
{
    return text.text();
}
template <class Container>
Texts textsOf(const Container& container)
{
    Texts texts;
    for (const auto& text : container)
    {
        texts.emplace_back(textOf(text));
    }
    return texts;
}

class OptionDescriptionTest : public testing::Test
{
protected:
    Garbage pool{unit::heap_only};
    OptionGroup group{L"group", L"text of the group"};
    OptionDescription option{group, false, pool};
};

using OptionDescriptionConstruction = OptionDescriptionTest;
using OptionDescriptionBuilder = OptionDescriptionTest;
using OptionDescriptionCopy = OptionDescriptionTest;

TEST_F(OptionDescriptionConstruction, SetsEveryMember)
{
    EXPECT_EQ(option.kind, 0);
    EXPECT_EQ(textsOf(option.names), Texts());
    EXPECT_EQ(textsOf(option.keywords()), Texts());
    EXPECT_EQ(option.group.name, L"group");
    EXPECT_EQ(option.group.text, L"text of the group");
    EXPECT_EQ(option.description, L"");
    EXPECT_FALSE(option.marked);
    EXPECT_FALSE(option.hasDefault);
    EXPECT_EQ(option.valueMode, 1U);
    EXPECT_EQ(option.separator, L',');
    EXPECT_EQ(option.valueType, 17);
    EXPECT_EQ(option.defaultValue.kind(), 17);
    EXPECT_TRUE(option.allowedValues().empty());
    EXPECT_EQ(option.restriction(), nullptr);
    EXPECT_EQ(option.owner, &pool);
    EXPECT_EQ(option.primaryName(), L"");
    EXPECT_FALSE(option.hasName(L""));
    EXPECT_TRUE(option.takesValue());
    EXPECT_FALSE(option.isPositional());
}

TEST_F(OptionDescriptionConstruction, SwitchHasValueModeZero)
{
    const OptionDescription action(no_group, true, pool);
    EXPECT_EQ(action.valueMode, 0U);
    EXPECT_FALSE(action.takesValue());
    EXPECT_EQ(action.group.name, L"");
    EXPECT_EQ(action.group.text, L"");
}

TEST_F(OptionDescriptionBuilder, EveryOperationReturnsTheOption)
{
    IOption& host = option;
    EXPECT_EQ(&host.addName(L"name"), &host);
    EXPECT_EQ(&host.addAllowedValue(variant_t(L"a")), &host);
    EXPECT_EQ(&host.addDeprecatedValue(variant_t(L"b"), variant_t(L"a")), &host);
    EXPECT_EQ(&host.setDefaultValue(variant_t(L"a")), &host);
    EXPECT_EQ(&host.setSeparator(L';'), &host);
    EXPECT_EQ(&host.setMarked(), &host);
    EXPECT_EQ(&host.addKeywords(L"k"), &host);
}

TEST_F(OptionDescriptionBuilder, NamesAreCopiedInOrder)
{
    std::wstring name = L"output";
    option.addName(name.c_str());
    name = L"changed";
    option.addName(L"o").addName(L"a,b").addName(nullptr).addName(L"o");
    EXPECT_EQ(textsOf(option.names), (Texts{L"output", L"o", L"a,b", L"", L"o"}));
    EXPECT_EQ(option.primaryName(), L"output");
    EXPECT_EQ(option.primaryName().data()[6], L'\0');
    EXPECT_TRUE(option.hasName(L"a,b"));
    EXPECT_TRUE(option.hasName(L""));
    EXPECT_FALSE(option.hasName(L"out"));
    EXPECT_FALSE(option.hasName(L"Output"));
}

TEST_F(OptionDescriptionBuilder, AllowedValuesAreKeptInOrder)
{
    option.addAllowedValue(variant_t(L"b"))
        .addAllowedValue(variant_t(1))
        .addAllowedValue(variant_t(L"b"));
    ASSERT_EQ(option.allowedValues().size(), 3U);
    EXPECT_EQ(option.allowedValues()[0], variant_t(L"b"));
    EXPECT_EQ(option.allowedValues()[1], variant_t(1));
    EXPECT_EQ(option.allowedValues()[2], variant_t(L"b"));
}

TEST_F(OptionDescriptionBuilder, AllowedValueRestoresAMissingSeparatorOnly)
{
    option.setSeparator(0);
    EXPECT_EQ(option.separator, L'\0');
    option.addAllowedValue(variant_t(1));
    EXPECT_EQ(option.separator, L',');
    option.setSeparator(L';').addAllowedValue(variant_t(2));
    EXPECT_EQ(option.separator, L';');
    option.setSeparator(0).addDeprecatedValue(variant_t(3), variant_t(2));
    EXPECT_EQ(option.separator, L'\0');
}

TEST_F(OptionDescriptionBuilder, FirstReplacementOfADeprecatedValueStays)
{
    option.addDeprecatedValue(variant_t(L"old"), variant_t(L"first"))
        .addDeprecatedValue(variant_t(L"old"), variant_t(L"second"))
        .addDeprecatedValue(variant_t(1), variant_t(L"third"));
    ASSERT_EQ(option.restriction()->deprecatedValues.size(), 2U);
    EXPECT_EQ(option.restriction()->deprecatedValues.at(variant_t(L"old")), variant_t(L"first"));
    EXPECT_EQ(option.restriction()->deprecatedValues.at(variant_t(1)), variant_t(L"third"));
}

// Changes a counter when it is destroyed.
class Watched final : public vexkit2::polymorphic_t
{
public:
    explicit Watched(int& destroyed) : m_destroyed(destroyed) {}
    Watched(const Watched&) = delete;
    Watched& operator=(const Watched&) = delete;
    ~Watched() override { ++m_destroyed; }

private:
    int& m_destroyed;
};

TEST_F(OptionDescriptionBuilder, LastDefaultCountsAndTheFormerIsReleased)
{
    int destroyed = 0;
    option.setDefaultValue(variant_t::object(new Watched(destroyed)));
    EXPECT_TRUE(option.hasDefault);
    EXPECT_EQ(option.defaultValue.kind(), 18);
    EXPECT_EQ(destroyed, 0);
    option.setDefaultValue(variant_t(L"text"));
    EXPECT_EQ(destroyed, 1);
    EXPECT_EQ(option.defaultValue, variant_t(L"text"));
    option.setDefaultValue(variant_t());
    EXPECT_TRUE(option.hasDefault);
    EXPECT_EQ(option.defaultValue.kind(), 17);
}

TEST_F(OptionDescriptionBuilder, KeywordsAreSplitSortedAndUnique)
{
    option.addKeywords(L"zip,,tar, tar ,zip,")
        .addKeywords(nullptr)
        .addKeywords(L"")
        .addKeywords(L"arc,tar");
    EXPECT_EQ(textsOf(option.keywords()), (Texts{L" tar ", L"arc", L"tar", L"zip"}));
}

TEST_F(OptionDescriptionBuilder, MarkedOrKeywordedOptionIsPositional)
{
    OptionDescription byKeyword(no_group, false, pool);
    byKeyword.addKeywords(L"kexa_positional_options,a");
    EXPECT_FALSE(byKeyword.isPositional());
    byKeyword.addKeywords(L"b,kexa_positional_option");
    EXPECT_TRUE(byKeyword.isPositional());
    option.setMarked();
    EXPECT_TRUE(option.marked);
    EXPECT_TRUE(option.isPositional());
    OptionDescription action(no_group, true, pool);
    action.setMarked().addKeywords(L"kexa_positional_option");
    EXPECT_FALSE(action.isPositional());
}

TEST_F(OptionDescriptionBuilder, KeywordIsSharedWhereBothHaveIt)
{
    OptionDescription other(no_group, true, pool);
    EXPECT_FALSE(shareKeyword(option, other));
    option.addKeywords(L"b,d,f");
    EXPECT_FALSE(shareKeyword(option, other));
    other.addKeywords(L"a,c,e,g,dd");
    EXPECT_FALSE(shareKeyword(option, other));
    EXPECT_FALSE(shareKeyword(other, option));
    other.addKeywords(L"f");
    EXPECT_TRUE(shareKeyword(option, other));
    EXPECT_TRUE(shareKeyword(other, option));
    EXPECT_TRUE(shareKeyword(option, option));
}

TEST_F(OptionDescriptionCopy, HasEveryMember)
{
    option.addName(L"name").addName(L"n").addKeywords(L"k,l").setMarked();
    option.addAllowedValue(variant_t(L"a")).addDeprecatedValue(variant_t(L"b"), variant_t(L"a"));
    option.setDefaultValue(variant_t(L"a")).setSeparator(L';');
    option.kind = 7;
    option.description = L"what it does";
    option.valueType = 13;
    option.valueMode = 0;

    const OptionDescription copy(option);
    EXPECT_EQ(copy.kind, 7);
    EXPECT_EQ(textsOf(copy.names), (Texts{L"name", L"n"}));
    EXPECT_EQ(textsOf(copy.keywords()), (Texts{L"k", L"l"}));
    EXPECT_EQ(copy.group.name, L"group");
    EXPECT_EQ(copy.group.text, L"text of the group");
    EXPECT_EQ(copy.description, L"what it does");
    EXPECT_TRUE(copy.marked);
    EXPECT_TRUE(copy.hasDefault);
    EXPECT_EQ(copy.valueMode, 0U);
    EXPECT_EQ(copy.separator, L';');
    EXPECT_EQ(copy.valueType, 13);
    EXPECT_EQ(copy.defaultValue, variant_t(L"a"));
    EXPECT_EQ(copy.restriction()->allowedValues, option.restriction()->allowedValues);
    EXPECT_EQ(copy.restriction()->deprecatedValues, option.restriction()->deprecatedValues);
    EXPECT_EQ(copy.owner, &pool);
}

TEST_F(OptionDescriptionCopy, SharesTheDataOfItsValues)
{
    option.setDefaultValue(variant_t(L"a"));
    const OptionDescription copy(option);
    EXPECT_EQ(copy.defaultValue.get<const wchar_t*>(), option.defaultValue.get<const wchar_t*>());
}

TEST_F(OptionDescriptionCopy, IsADescriptionByItself)
{
    option.addName(L"name").addAllowedValue(variant_t(L"a"));
    option.valueType = 13;
    OptionIndex index(pool);
    unit::enterOption(option, index, 3);
    ASSERT_NE(option.allowedValueIndex().findEqual(variant_t(L"a")), nullptr);

    OptionDescription copy(option);
    copy.addName(L"more").addKeywords(L"k").addAllowedValue(variant_t(L"b")).setMarked();
    EXPECT_EQ(textsOf(option.names), (Texts{L"name"}));
    EXPECT_EQ(textsOf(option.keywords()), Texts());
    EXPECT_FALSE(option.marked);
    EXPECT_EQ(option.allowedValueIndex().findEqual(variant_t(L"b")), nullptr);
    EXPECT_NE(copy.allowedValueIndex().findEqual(variant_t(L"b")), nullptr);
    EXPECT_FALSE(index.findCandidate(HashedText(L"more")));
    EXPECT_FALSE(index.firstPositional());
}

TEST_F(OptionDescriptionCopy, AddsNamesApartFromItsOriginal)
{
    option.addName(L"a").addName(L"b");
    OptionDescription copy(option);
    for (const wchar_t* const name : {L"c", L"d", L"e", L"f"})
    {
        option.addName(name);
        copy.addName((std::wstring(L"copied-") + name).c_str());
    }
    EXPECT_EQ(textsOf(option.names), (Texts{L"a", L"b", L"c", L"d", L"e", L"f"}));
    EXPECT_EQ(textsOf(copy.names),
              (Texts{L"a", L"b", L"copied-c", L"copied-d", L"copied-e", L"copied-f"}));
}

TEST_F(OptionDescriptionCopy, HasKeywordsOfItsOwn)
{
    option.addKeywords(L"b,d");
    OptionDescription copy(option);
    option.addKeywords(L"a");
    copy.addKeywords(L"c,b");
    EXPECT_EQ(textsOf(option.keywords()), (Texts{L"a", L"b", L"d"}));
    EXPECT_EQ(textsOf(copy.keywords()), (Texts{L"b", L"c", L"d"}));
}

TEST_F(OptionDescriptionBuilder, IndexFindsAllOfManyLaterNames)
{
    option.addName(L"name");
    OptionIndex index(pool);
    unit::enterOption(option, index, 3);
    const std::size_t count = 100;
    while (option.names.size() < count)
    {
        option.addName((L"name-" + std::to_wstring(option.names.size())).c_str());
    }
    EXPECT_EQ(index.findCandidate(HashedText(L"name")), 3);
    for (std::size_t number = 1; number < count; ++number)
    {
        EXPECT_EQ(index.findCandidate(HashedText(L"name-" + std::to_wstring(number))), 3) << number;
    }
    EXPECT_EQ(index.matchPrefix(L"name").count, count);
}

TEST_F(OptionDescriptionBuilder, IndexFollowsLaterChanges)
{
    option.addName(L"name");
    option.valueType = value_type_boolean;
    OptionIndex index(pool);
    unit::enterOption(option, index, 3);
    EXPECT_EQ(index.findCandidate(HashedText(L"name")), 3);
    EXPECT_EQ(index.findCandidate(HashedText(L"no-name")), 3);
    EXPECT_FALSE(index.firstPositional());
    option.addName(L"later");
    EXPECT_EQ(index.findCandidate(HashedText(L"later")), 3);
    EXPECT_EQ(index.findCandidate(HashedText(L"no-later")), 3);
    option.addKeywords(L"kexa_positional_option");
    EXPECT_EQ(index.firstPositional(), 3);
}

TEST_F(OptionDescriptionBuilder, CandidatesFollowLaterChanges)
{
    option.valueType = value_type_integer;
    option.addAllowedValue(variant_t(1));
    EXPECT_NE(option.allowedValueIndex().findEqual(variant_t(1)), nullptr);
    EXPECT_EQ(option.allowedValueIndex().findEqual(variant_t(2)), nullptr);
    option.addAllowedValue(variant_t(2));
    EXPECT_EQ(option.allowedValueIndex().findEqual(variant_t(2)), &option.allowedValues()[1]);
    option.addDeprecatedValue(variant_t(3), variant_t(1));
    EXPECT_EQ(option.allowedValueIndex().findEqual(variant_t(3)),
              &option.restriction()->deprecatedValues.begin()->first);
}

} // namespace
