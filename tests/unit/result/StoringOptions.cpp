// What a result keeps of the records that it is given.
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "options/OptionDescription.h"
#include "options/OptionIndex.h"
#include "result/ParseResult.h"
#include "support/memory/Garbage.h"

#include "EnteredOption.h"
#include "EqualHashes.h"
#include "HeapOnly.h"
#include "StoredContents.h"
#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;
using vexkit2::variant_t;

const OptionGroup no_group;

class StoringOptions : public testing::Test
{
protected:
    StoringOptions() { option.addName(L"name").addName(L"n"); }

    // Stores one occurrence with one value.
    void store(const OptionDescription& target, std::wstring_view text, const variant_t& value,
               std::int32_t position)
    {
        OptionResult record;
        record.positions.push_back(position);
        record.values.push_back({text, value, position});
        EXPECT_EQ(result.storeOption(target, record), 0);
    }
    void storeDefault(std::wstring_view text, const variant_t& value)
    {
        OptionResult record;
        record.defaultText = text;
        record.defaultValue = value;
        record.defaultPosition = no_position;
        EXPECT_EQ(result.storeOption(option, record), 0);
    }
    const StoredOption* stored(std::wstring_view name) { return result.options().find(name); }

    Garbage pool{unit::heap_only};
    OptionDescription option{no_group, false, pool};
    ParseResult result;
};

TEST_F(StoringOptions, OptionWithoutNamesIsOutOfRange)
{
    const OptionDescription nameless(no_group, false, pool);
    OptionResult record;
    record.positions.push_back(1);
    try
    {
        static_cast<void>(result.storeOption(nameless, record));
        FAIL() << "nothing was thrown";
    }
    catch (const std::out_of_range& error)
    {
        EXPECT_STREQ(error.what(), "invalid vector<T> subscript");
    }
    EXPECT_EQ(result.options().names().size(), 0U);
    EXPECT_EQ(record.positions.size(), 1U);
}

TEST_F(StoringOptions, EveryNameFindsTheRecord)
{
    store(option, L"text", variant_t(L"text"), 3);
    for (const wchar_t* const name : {L"name", L"n"})
    {
        const StoredOption* const found = stored(name);
        ASSERT_NE(found, nullptr);
        const std::vector<Occurrence> values = unit::valuesOf(*found);
        ASSERT_EQ(values.size(), 1U);
        EXPECT_STREQ(values[0].text, L"text");
        EXPECT_EQ(values[0].value, variant_t(L"text"));
        EXPECT_EQ(values[0].position, 3);
        EXPECT_EQ(unit::positionsOf(*found), std::vector<std::int32_t>{3});
    }
    EXPECT_EQ(stored(L"nam"), nullptr);
    EXPECT_EQ(stored(L""), nullptr);
    EXPECT_EQ(result.options().names().size(), 2U);
}

TEST_F(StoringOptions, OptionsWhoseNamesHaveOneHashAreToldApart)
{
    const auto [first, second] = unit::textsWithOneHash();
    ASSERT_NE(first, second);
    OptionIndex index(pool);
    OptionDescription one(no_group, false, pool);
    OptionDescription two(no_group, false, pool);
    one.addName(first.c_str());
    two.addName(second.c_str());
    unit::enterOption(one, index, 0);
    unit::enterOption(two, index, 1);
    store(one, L"1", variant_t(1), 1);
    EXPECT_EQ(stored(second), nullptr);
    store(two, L"2", variant_t(2), 2);
    ASSERT_NE(stored(first), nullptr);
    ASSERT_NE(stored(second), nullptr);
    EXPECT_EQ(unit::positionsOf(*stored(first)), std::vector<std::int32_t>{1});
    EXPECT_EQ(unit::positionsOf(*stored(second)), std::vector<std::int32_t>{2});
}

TEST_F(StoringOptions, TextsAreKept)
{
    std::wstring number = L" 0x1F ";
    std::wstring text = L"a text that is long enough to live on the heap";
    store(option, number, variant_t(31), 0);
    store(option, text, variant_t(text), 1);
    number.assign(number.size(), L'?');
    text.assign(text.size(), L'?');
    Value value;
    ASSERT_EQ(result.getFirstValue(&value, L"name", 0, no_position), 0);
    EXPECT_EQ(std::wstring(value.as<const wchar_t*>()), L" 0x1F ");
    ASSERT_EQ(result.getNextValue(&value, L"name"), 0);
    EXPECT_EQ(std::wstring(value.as<const wchar_t*>()),
              L"a text that is long enough to live on the heap");
    EXPECT_EQ(value.value, variant_t(L"a text that is long enough to live on the heap"));
}

TEST_F(StoringOptions, NamesAreKept)
{
    {
        Garbage own{unit::heap_only};
        OptionDescription shortLived(no_group, false, own);
        shortLived.addName(L"a name that is gone when it is looked for");
        store(shortLived, L"x", variant_t(L"x"), 0);
    }
    EXPECT_NE(stored(L"a name that is gone when it is looked for"), nullptr);
}

TEST_F(StoringOptions, DefaultIsKeptAsFirstStored)
{
    storeDefault(L"first", variant_t(L"first"));
    storeDefault(L"second", variant_t(2));
    store(option, L"x", variant_t(L"x"), 4);
    const StoredOption* const found = stored(L"n");
    ASSERT_NE(found, nullptr);
    ASSERT_TRUE(found->byDefault);
    EXPECT_STREQ(found->byDefault->text, L"first");
    EXPECT_EQ(found->byDefault->value, variant_t(L"first"));
    EXPECT_EQ(found->byDefault->position, no_position);
    EXPECT_EQ(unit::positionsOf(*found).size(), 1U);
}

TEST_F(StoringOptions, DefaultAfterAnOccurrenceIsNotKept)
{
    store(option, L"x", variant_t(L"x"), 4);
    storeDefault(L"late", variant_t(L"late"));
    EXPECT_FALSE(stored(L"name")->byDefault);
    EXPECT_EQ(unit::valuesOf(*stored(L"name")).size(), 1U);
}

// A host may change the default between two parses that fill one result.
TEST_F(StoringOptions, DefaultWithoutTextIsKeptAsFirstStored)
{
    storeDefault(L"", variant_t(L""));
    storeDefault(L"late", variant_t(L"late"));
    ASSERT_NE(stored(L"name"), nullptr);
    EXPECT_FALSE(stored(L"name")->byDefault);
    EXPECT_EQ(result.isPresent(L"name", 0, no_position), 0);
}

TEST_F(StoringOptions, DefaultTextIsKept)
{
    std::wstring text = L"2.5";
    storeDefault(text, variant_t(2.5));
    text = L"???";
    Value value;
    ASSERT_EQ(result.getFirstValue(&value, L"name", 0, 0), 0);
    EXPECT_EQ(std::wstring(value.as<const wchar_t*>()), L"2.5");
    EXPECT_EQ(value.position, no_position);
}

TEST_F(StoringOptions, RecordOfADeclaredOptionStaysWhereItIs)
{
    OptionIndex index(pool);
    unit::enterOption(option, index, 0);
    store(option, L"x", variant_t(L"x"), 0);
    const StoredOption* const before = stored(L"name");
    const wchar_t* const text = unit::valuesOf(*before)[0].text;
    for (std::int32_t number = 1; number < 2000; ++number)
    {
        OptionDescription other(no_group, false, pool);
        other.addName(std::to_wstring(number).c_str());
        store(other, L"y", variant_t(L"y"), number);
        store(option, L"x", variant_t(number), number);
    }
    EXPECT_EQ(stored(L"name"), before);
    EXPECT_EQ(unit::valuesOf(*before).size(), 2000U);
    EXPECT_EQ(unit::valuesOf(*before)[0].text, text);
    EXPECT_STREQ(text, L"x");
    EXPECT_EQ(unit::valuesOf(*stored(L"1999")).size(), 1U);
}

TEST_F(StoringOptions, ReleaseDestroysTheResult)
{
    auto* const owned = new ParseResult; // or a leak checker reports it
    OptionResult record;
    record.positions.push_back(0);
    record.values.push_back({L"x", variant_t(L"x"), 0});
    EXPECT_EQ(owned->storeOption(option, record), 0);
    owned->release();
}

} // namespace
