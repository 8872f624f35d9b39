// Declared defaults in a parse result.
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::variant_t;

using Texts = std::vector<std::wstring>;

// How often getNextValue returns the default of "mode" after the query that began the walk.
int defaultsAfter(IParseResult& result)
{
    int count = 0;
    Value value;
    while (result.getNextValue(&value, L"mode") == 0 && count < 10)
    {
        EXPECT_STREQ(value.as<const wchar_t*>(), L"fast");
        EXPECT_EQ(value.position, no_position);
        ++count;
    }
    return count;
}

class DefaultHost : public Host
{
public:
    DefaultHost() : option(addOption(L"mode,m"))
    {
        option.setDefaultValue(variant_t(L"fast"));
        EXPECT_EQ(parse({}), 0);
    }

    IOption& option;
};

TEST(ResultDefaults, DefaultIsGivenWhateverTheRange)
{
    DefaultHost host;
    for (const std::int32_t from : {-1, 0, 5, 2147483647})
    {
        for (const std::int32_t to : {-1, 0, 5, 2147483647})
        {
            Value value;
            EXPECT_EQ(host.result().isPresent(L"mode", from, to), 1) << from << ", " << to;
            EXPECT_EQ(host.result().getFirstValue(&value, L"m", from, to), 0) << from << ", " << to;
            EXPECT_EQ(value.status, 0);
            EXPECT_STREQ(value.as<const wchar_t*>(), L"fast");
            EXPECT_EQ(value.value.kind(), 13);
            EXPECT_EQ(value.position, no_position);
            EXPECT_EQ(host.result().getNextPosition(), no_position);
        }
    }
}

TEST(ResultDefaults, NextValueReturnsItOnceMoreForTheHighestBoundsOnly)
{
    DefaultHost host;
    const struct
    {
        std::int32_t from;
        std::int32_t to;
        int expected;
    } rows[] = {{0, no_position, 0}, {0, 0, 0}, {no_position, 0, 0}, {no_position, no_position, 1}};
    for (const auto& row : rows)
    {
        host.result().getFirstValue(nullptr, L"mode", row.from, row.to);
        EXPECT_EQ(defaultsAfter(host.result()), row.expected) << row.from << ", " << row.to;
    }
}

TEST(ResultDefaults, PresenceQueryIsFollowedByTheDefaultOnce)
{
    DefaultHost host;
    for (const std::int32_t bound : {0, 5, 2147483647})
    {
        EXPECT_EQ(host.result().isPresent(L"mode", bound, bound), 1) << bound;
        EXPECT_EQ(defaultsAfter(host.result()), 1) << bound;
    }
}

TEST(ResultDefaults, OccurrenceHidesTheDefault)
{
    DefaultHost host;
    const std::int32_t base = nextPosition();
    EXPECT_EQ(host.parse({L"-m=slow"}), 0);
    EXPECT_EQ(host.values(L"mode"), (std::vector<ReadValue>{{L"slow", 13, base}}));
    EXPECT_EQ(readValues(host.result(), L"mode", base + 1, no_position), std::vector<ReadValue>());
    EXPECT_EQ(host.result().isPresent(L"mode", base + 1, no_position), 0);
}

TEST(ResultDefaults, OccurrenceWithoutAValueHidesTheDefaultToo)
{
    Host host;
    host.addOption(L"flag", value_type_none).setDefaultValue(variant_t(L"default"));
    EXPECT_EQ(host.parse({}), 0);
    EXPECT_EQ(host.texts(L"flag"), Texts{L"default"});
    EXPECT_EQ(host.parse({L"--flag"}), 0);
    EXPECT_EQ(host.texts(L"flag"), Texts{L""});
}

TEST(ResultDefaults, DefaultWithoutATextIsNotFound)
{
    const std::vector<variant_t> without_text = {variant_t(L""), variant_t(), variant_t(""),
                                                 variant_t::blob("x", 1)};
    for (const variant_t& value : without_text)
    {
        Host host;
        host.addOption(L"mode").setDefaultValue(value);
        EXPECT_EQ(host.parse({}), 0);
        EXPECT_FALSE(host.isPresent(L"mode")) << value.kind();
        EXPECT_EQ(host.values(L"mode"), std::vector<ReadValue>()) << value.kind();
    }
}

TEST(ResultDefaults, FirstStoredDefaultStays)
{
    DefaultHost host;
    host.option.setDefaultValue(variant_t(L"slow"));
    EXPECT_EQ(host.parse({}), 0);
    EXPECT_EQ(host.texts(L"mode"), Texts{L"fast"});
    host.renewResult();
    EXPECT_EQ(host.parse({}), 0);
    EXPECT_EQ(host.texts(L"mode"), Texts{L"slow"});
}

TEST(ResultDefaults, CommandLineTextStoresNoDefaults)
{
    Host host;
    host.addOption(L"mode").setDefaultValue(variant_t(L"fast"));
    EXPECT_EQ(host.parseLines(L""), 0);
    EXPECT_FALSE(host.isPresent(L"mode"));
}

TEST(ResultDefaults, DefaultIsStoredThoughTheParseFails)
{
    Host host(flag_unknown_is_error);
    host.addOption(L"mode").setDefaultValue(variant_t(L"fast"));
    EXPECT_EQ(host.parse({L"unknown"}), 2);
    EXPECT_EQ(host.texts(L"mode"), Texts{L"fast"});
}

TEST(ResultDefaults, OptionWithoutADefaultIsAbsent)
{
    Host host;
    host.addOption(L"name");
    EXPECT_EQ(host.parse({}), 0);
    EXPECT_TRUE(host.values(L"name").empty());
    EXPECT_FALSE(host.isPresent(L"name"));
}

TEST(ResultDefaults, SharedNameHasTheDefaultOfTheOptionDeclaredLast)
{
    Host host;
    host.addOption(L"first").addName(L"same").setDefaultValue(variant_t(L"1"));
    host.addOption(L"second").addName(L"same").setDefaultValue(variant_t(L"2"));
    ASSERT_EQ(host.parse({}), 0);
    const auto defaultOf = [&host](const wchar_t* name)
    {
        const Value value = getLastValue(&host.result(), name, 0, no_position);
        return std::wstring(value.as<const wchar_t*>());
    };
    EXPECT_EQ(defaultOf(L"first"), L"1");
    EXPECT_EQ(defaultOf(L"second"), L"2");
    EXPECT_EQ(defaultOf(L"same"), L"2");
}

} // namespace
