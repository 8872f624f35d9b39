// getLastValue and Value::as.
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::s32_t;
using vexkit2::variant_t;

void expectNotFound(const Value& value)
{
    EXPECT_EQ(value.data, nullptr);
    EXPECT_EQ(value.status, 1);
    EXPECT_EQ(value.position, 2147483647);
    EXPECT_EQ(value.value.kind(), 17);
    EXPECT_EQ(value.as<const wchar_t*>(), nullptr);
}

void expectFound(const Value& value, const wchar_t* text, std::int32_t position)
{
    EXPECT_EQ(value.status, 0);
    EXPECT_STREQ(value.as<const wchar_t*>(), text);
    EXPECT_EQ(value.position, position);
}

TEST(LastValue, NewValueIsNotFound)
{
    expectNotFound(Value());
}

TEST(LastValue, NullArgumentsGiveTheNotFoundValue)
{
    Host host;
    host.addOption(L"name");
    host.parse({L"--name=x"});
    expectNotFound(getLastValue(nullptr, L"name", 0, no_position));
    expectNotFound(getLastValue(&host.result(), nullptr, 0, no_position));
    expectNotFound(getLastValue(nullptr, nullptr, 0, no_position));
}

TEST(LastValue, OptionNotGivenIsNotFound)
{
    Host host;
    host.addOption(L"name");
    host.addOption(L"other");
    host.parse({L"--other=x"});
    expectNotFound(getLastValue(&host.result(), L"name", 0, no_position));
    expectNotFound(getLastValue(&host.result(), L"undeclared", 0, no_position));
    expectNotFound(getLastValue(&host.result(), L"Other", 0, no_position));
    expectNotFound(getLastValue(&host.result(), L"oth", 0, no_position));
    expectNotFound(getLastValue(&host.result(), L"", 0, no_position));
}

TEST(LastValue, LastOfSeveralOccurrencesIsGiven)
{
    Host host;
    host.addOption(L"name,n");
    const std::int32_t base = nextPosition();
    host.parse({L"--name=1", L"-n=2", L"--name=3"});
    expectFound(getLastValue(&host.result(), L"name", 0, no_position), L"3", base + 2);
    expectFound(getLastValue(&host.result(), L"n", 0, no_position), L"3", base + 2);
}

TEST(LastValue, LastOfAListIsGiven)
{
    Host host;
    host.addOption(L"number", value_type_integer);
    const std::int32_t base = nextPosition();
    host.parse({L"--number=1,+2,03"});
    const Value value = getLastValue(&host.result(), L"number", 0, no_position);
    expectFound(value, L"03", base + 2);
    EXPECT_EQ(value.value.kind(), 6);
    EXPECT_EQ(value.as<s32_t>(), 3);
    EXPECT_EQ(value.as<double>(), 3.0);
}

// getFirstValue needs an occurrence below the end of the range. getNextValue, called after it,
// accepts values up to and at the end.
TEST(LastValue, ValueAtTheEndOfTheRangeCounts)
{
    Host host;
    host.addOption(L"name");
    const std::int32_t base = nextPosition();
    host.parse({L"--name=0,1,2,3"});
    const struct
    {
        std::int32_t from;
        std::int32_t to;
        const wchar_t* expected; // null: not found
        std::int32_t position;
    } rows[] = {
        {0, 4, L"3", 3},    {0, 3, L"3", 3},    {0, 2, L"2", 2},      {0, 1, L"1", 1},
        {0, 0, L"0", 0},    {1, 1, L"1", 1},    {1, 2, L"2", 2},      {1, 3, L"3", 3},
        {3, 4, L"3", 3},    {3, 3, L"3", 3},    {-5, 1, L"1", 1},     {-5, 0, L"0", 0},
        {4, 9, nullptr, 0}, {2, 1, nullptr, 0}, {-5, -1, nullptr, 0}, {4, 4, nullptr, 0},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(std::to_string(row.from) + " to " + std::to_string(row.to));
        const Value value = getLastValue(&host.result(), L"name", base + row.from, base + row.to);
        if (row.expected == nullptr)
        {
            expectNotFound(value);
        }
        else
        {
            expectFound(value, row.expected, base + row.position);
        }
    }
}

TEST(LastValue, DefaultIsGivenWhateverTheRange)
{
    Host host;
    host.addOption(L"number", value_type_double).setDefaultValue(variant_t(2.5));
    host.parse({});
    for (const int bound : {0, 1, -1, 2147483647})
    {
        const Value value = getLastValue(&host.result(), L"number", bound, bound);
        expectFound(value, L"2.5", no_position);
        EXPECT_EQ(value.as<double>(), 2.5);
    }
}

TEST(LastValue, GivenValueReplacesTheDefault)
{
    Host host;
    host.addOption(L"number", value_type_double).setDefaultValue(variant_t(2.5));
    const std::int32_t base = nextPosition();
    host.parse({L"--number=7"});
    expectFound(getLastValue(&host.result(), L"number", 0, no_position), L"7", base);
    expectNotFound(getLastValue(&host.result(), L"number", base + 1, no_position));
}

TEST(LastValue, OccurrenceWithoutAValueHasAPositionOnly)
{
    Host host;
    host.addOption(L"flag", value_type_none);
    const std::int32_t base = nextPosition();
    host.parse({L"--flag"});
    const Value value = getLastValue(&host.result(), L"flag", 0, no_position);
    expectFound(value, nullptr, base);
    EXPECT_EQ(value.data, nullptr);
    EXPECT_EQ(value.value.kind(), 17);
}

TEST(LastValue, TextAndVariantOutliveTheParser)
{
    ParserOwner parser = toolbox::createParser();
    ResultOwner result = createResult(*parser);
    parser->addOption(L"name", L"", value_type_string, L"");
    ASSERT_EQ(toolbox::parse(*parser, {L"--name=some text"}, result.get()), 0);
    parser.reset();
    const Value value = getLastValue(result.get(), L"name", 0, no_position);
    EXPECT_STREQ(value.as<const wchar_t*>(), L"some text");
    result.reset();
    EXPECT_STREQ(value.value.get<const wchar_t*>(), L"some text");
}

TEST(LastValue, AsReadsTheVariantForOtherTypes)
{
    Value value;
    value.value = variant_t(s32_t{-3});
    EXPECT_EQ(value.as<s32_t>(), -3);
    EXPECT_EQ(value.as<vexkit2::s64_t>(), -3);
    try
    {
        static_cast<void>(Value().as<bool>());
        ADD_FAILURE() << "a null variant gave a bool";
    }
    catch (const AssertionFailure& failure)
    {
        EXPECT_STREQ(failure.what(), "can_get<bool>()");
    }
}

TEST(LastValue, AsTextIsNullUnlessAValueWasFound)
{
    Value value;
    value.data = L"text";
    value.value = variant_t(L"another");
    EXPECT_EQ(value.as<const wchar_t*>(), nullptr);
    value.status = 0;
    EXPECT_STREQ(value.as<const wchar_t*>(), L"text");
    value.status = 3;
    EXPECT_EQ(value.as<const wchar_t*>(), nullptr);
}

} // namespace
