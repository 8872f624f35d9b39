// The names column of the option listing: names, type or allowed values, default.
#include <functional>
#include <string>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::s32_t;
using vexkit2::variant_t;

// The names column of one option without a description: the listing without its line ends.
std::wstring columnOf(const wchar_t* names, std::int32_t valueType,
                      const std::function<void(IOption&)>& build = {})
{
    Host host;
    IOption& option = host.addOption(names, valueType);
    if (build)
    {
        build(option);
    }
    const std::wstring listing = host.parser().showFullHelp(false);
    EXPECT_GE(listing.size(), 2U);
    EXPECT_EQ(listing.substr(listing.size() - 2), L"\n\n");
    return listing.substr(0, listing.size() - 2);
}

TEST(HelpNamesColumn, PrimaryNameClosesTheReversedList)
{
    EXPECT_EQ(columnOf(L"name,n", value_type_none), L"-n, -name");
    EXPECT_EQ(columnOf(L"n,name", value_type_none), L"-name, -n");
    EXPECT_EQ(columnOf(L"first,second,x", value_type_none), L"-x, -second, -first");
    EXPECT_EQ(columnOf(L"first", value_type_none,
                       [](IOption& option) { option.addName(L"2").addName(L"3").addName(L"4"); }),
              L"-4, -3, -2, -first");
}

TEST(HelpNamesColumn, BooleanShowsItsNegatedForm)
{
    EXPECT_EQ(columnOf(L"v", value_type_boolean), L"-v | -no-v");
    EXPECT_EQ(columnOf(L"v,verbose", value_type_boolean), L"-verbose, -v | -no-v");
}

TEST(HelpNamesColumn, BooleanDefaultFollowsItsForm)
{
    const auto with = [](const variant_t& value)
    {
        return [value](IOption& option)
        {
            option.setDefaultValue(value);
        };
    };
    const std::wstring on = L"-verbose, -v (default) | -no-v";
    const std::wstring off = L"-verbose, -v | -no-v (default)";
    const struct
    {
        variant_t value;
        bool expected;
    } rows[] = {
        {variant_t(true), true},      {variant_t(false), false},
        {variant_t(s32_t{1}), true},  {variant_t(s32_t{0}), false},
        {variant_t(s32_t{-1}), true}, {variant_t(0.5), true},
        {variant_t(0.0), false},      {variant_t(vexkit2::u64_t{1} << 63), true},
        {variant_t(L"true"), false},  {variant_t(L"1"), false},
        {variant_t("1"), false},      {variant_t(), false},
    };
    for (const auto& row : rows)
    {
        // A column of thirty characters or more is a line of its own. The description is empty.
        EXPECT_EQ(columnOf(L"v,verbose", value_type_boolean, with(row.value)),
                  row.expected ? on : off)
            << row.value.kind();
    }
}

TEST(HelpNamesColumn, BooleanShowsNoAllowedValues)
{
    EXPECT_EQ(columnOf(L"v", value_type_boolean,
                       [](IOption& option) { option.addAllowedValue(variant_t(true)); }),
              L"-v | -no-v");
}

TEST(HelpNamesColumn, ValuelessOptionShowsItsNamesOnly)
{
    EXPECT_EQ(columnOf(L"flag", value_type_none,
                       [](IOption& option) {
                           option.addAllowedValue(variant_t(L"x")).setDefaultValue(variant_t(L"y"));
                       }),
              L"-flag");
}

TEST(HelpNamesColumn, OtherTypesShowTheirDisplayName)
{
    const struct
    {
        std::int32_t type;
        const wchar_t* column;
    } rows[] = {
        {value_type_integer, L"-n=<integer>"},
        {value_type_unsigned, L"-n=<unsigned integer>"},
        {value_type_integer64, L"-n=<64 bit integer>"},
        {value_type_unsigned64, L"-n=<unsigned 64 bit or hex>"},
        {value_type_double, L"-n=<double>"},
        {value_type_string, L"-n=<string>"},
        {10, L"-n=<>"},
        {12, L"-n=<>"},
        {99, L"-n=<>"},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(columnOf(L"n", row.type), row.column) << row.type;
    }
}

TEST(HelpNamesColumn, AllowedValuesStandInsteadOfTheType)
{
    EXPECT_EQ(columnOf(L"n", value_type_string,
                       [](IOption& option) { option.addAllowedValue(variant_t(L"fast")); }),
              L"-n=fast");
    EXPECT_EQ(columnOf(L"n", value_type_string,
                       [](IOption& option)
                       {
                           option.addAllowedValue(variant_t(L"slow"))
                               .addAllowedValue(variant_t("fast"))
                               .addAllowedValue(variant_t(s32_t{-5}))
                               .addAllowedValue(variant_t(2.5))
                               .addDeprecatedValue(variant_t(L"old"), variant_t(L"slow"));
                       }),
              L"-n=slow | fast | -5 | 2.5");
    EXPECT_EQ(columnOf(L"n", value_type_string,
                       [](IOption& option)
                       { option.addDeprecatedValue(variant_t(L"old"), variant_t(L"slow")); }),
              L"-n=<string>");
}

TEST(HelpNamesColumn, DefaultStandsInParentheses)
{
    EXPECT_EQ(columnOf(L"n", value_type_string,
                       [](IOption& option) { option.setDefaultValue(variant_t(L"some text")); }),
              L"-n=<string> (some text)");
    EXPECT_EQ(columnOf(L"n", value_type_string,
                       [](IOption& option)
                       {
                           option.addAllowedValue(variant_t(L"fast"))
                               .addAllowedValue(variant_t(L"slow"))
                               .setDefaultValue(variant_t(L"slow"));
                       }),
              L"-n=fast | slow (slow)");
    EXPECT_EQ(columnOf(L"n", value_type_integer,
                       [](IOption& option) { option.setDefaultValue(variant_t(s32_t{0})); }),
              L"-n=<integer> (0)");
}

TEST(HelpNamesColumn, DefaultWithoutATextIsNotShown)
{
    for (const variant_t& value :
         {variant_t(L""), variant_t(""), variant_t(), variant_t::blob("x", 1),
          variant_t::object(new vexkit2::polymorphic_t), variant_t::reference(L"")})
    {
        EXPECT_EQ(columnOf(L"n", value_type_string,
                           [&value](IOption& option) { option.setDefaultValue(value); }),
                  L"-n=<string>")
            << value.kind();
    }
}

// The listing of one option "n..." whose names column has the given length.
std::wstring listingOf(std::size_t length, const wchar_t* description)
{
    const ParserOwner parser = toolbox::createParser();
    const std::wstring name(length - 1, L'n');
    parser->addOption(name.c_str(), description, value_type_none, L"");
    return parser->showFullHelp(false);
}

TEST(HelpNamesColumn, ColumnOfThirtyCharactersStandsAlone)
{
    const std::wstring spaces(30, L' ');
    const auto column = [](std::size_t length)
    {
        return L"-" + std::wstring(length - 1, L'n');
    };
    EXPECT_EQ(listingOf(2, L"text"), column(2) + std::wstring(28, L' ') + L"text\n\n");
    EXPECT_EQ(listingOf(28, L"text"), column(28) + L"  text\n\n");
    EXPECT_EQ(listingOf(29, L"text"), column(29) + L" text\n\n");
    EXPECT_EQ(listingOf(30, L"text"), column(30) + L"\n" + spaces + L"text\n\n");
    EXPECT_EQ(listingOf(31, L"text"), column(31) + L"\n" + spaces + L"text\n\n");
    EXPECT_EQ(listingOf(100, L"text"), column(100) + L"\n" + spaces + L"text\n\n");
}

TEST(HelpNamesColumn, ColumnWithoutADescriptionIsWrittenOnce)
{
    const auto column = [](std::size_t length)
    {
        return L"-" + std::wstring(length - 1, L'n');
    };
    for (const std::size_t length : {2U, 29U, 30U, 31U, 100U})
    {
        EXPECT_EQ(listingOf(length, L""), column(length) + L"\n\n") << length;
    }
}

TEST(HelpNamesColumn, DescriptionIsWrappedBehindTheColumn)
{
    const wchar_t* const description =
        L"Lorem ipsum dolor sit amet, consectetur adipiscing elit, sed do eiusmod tempor.\n"
        L"Ut enim ad minim veniam";
    EXPECT_EQ(listingOf(6, description),
              L"-nnnnn                        Lorem ipsum dolor sit amet, consectetur\n"
              L"                              adipiscing elit, sed do eiusmod tempor.\n"
              L"                              Ut enim ad minim veniam\n\n");
    EXPECT_EQ(listingOf(30, description),
              L"-nnnnnnnnnnnnnnnnnnnnnnnnnnnnn\n"
              L"                              Lorem ipsum dolor sit amet, consectetur\n"
              L"                              adipiscing elit, sed do eiusmod tempor.\n"
              L"                              Ut enim ad minim veniam\n\n");
}

TEST(HelpNamesColumn, LinesHaveAtMostSeventyNineCharacters)
{
    const std::wstring spaces(30, L' ');
    EXPECT_EQ(listingOf(2, (std::wstring(49, L'a') + L" b").c_str()),
              L"-n" + spaces.substr(2) + std::wstring(49, L'a') + L"\n" + spaces + L"b\n\n");
    EXPECT_EQ(listingOf(2, std::wstring(50, L'a').c_str()),
              L"-n" + spaces.substr(2) + std::wstring(49, L'a') + L"\n" + spaces + L"a\n\n");
}

} // namespace
