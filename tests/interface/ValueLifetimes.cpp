// Values that a host keeps: copies of what a query gave, and variants that it handed in itself.
#include <optional>
#include <string>
#include <vector>

#include "Host.h"
#include "VariantSamples.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using variant_samples::CountedObject;
using vexkit2::variant_t;

// Of all lengths from a few characters to hundreds.
std::wstring textOf(std::size_t number)
{
    return std::to_wstring(number) + std::wstring(number % 97 == 0 ? 300 : number % 13, L'x');
}

constexpr std::size_t many = 5000; // texts of several hundred kilobytes

// A host whose option "name" has `count` text values, given one by one.
class FilledHost : public Host
{
public:
    explicit FilledHost(std::size_t count, const wchar_t* prefix = L"")
    {
        addOption(L"name").setSeparator(L'\0');
        std::vector<std::wstring> texts;
        for (std::size_t number = 0; number < count; ++number)
        {
            texts.push_back(L"--name=" + (prefix + textOf(number)));
        }
        std::vector<const wchar_t*> arguments;
        for (const std::wstring& text : texts)
        {
            arguments.push_back(text.c_str());
        }
        EXPECT_EQ(toolbox::parse(parser(), arguments, &result()), 0);
    }
};

// Everything that a wide text holds.
std::wstring wholeText(const variant_t& text)
{
    EXPECT_EQ(text.kind(), 13);
    const std::size_t units = text.byte_length() / sizeof(wchar_t);
    return units == 0 ? L"no terminator" : std::wstring(text.get<const wchar_t*>(), units - 1);
}

std::vector<variant_t> copyValues(IParseResult& result)
{
    std::vector<variant_t> copies;
    Value value;
    for (int code = result.getFirstValue(&value, L"name", 0, no_position); code == 0;
         code = result.getNextValue(&value, L"name"))
    {
        copies.push_back(value.value);
    }
    return copies;
}

TEST(ValueLifetimes, CopiesOutliveTheResultAndTheParser)
{
    std::vector<variant_t> copies;
    {
        FilledHost host(many);
        copies = copyValues(host.result());
    }
    ASSERT_EQ(copies.size(), many);
    for (std::size_t number = 0; number < many; ++number)
    {
        ASSERT_EQ(wholeText(copies[number]), textOf(number));
    }
    // From both sides to the middle: the pieces of memory end in another order than they began.
    for (std::size_t number = 0; number < many / 2; ++number)
    {
        ASSERT_EQ(wholeText(copies[number]), textOf(number));
        ASSERT_EQ(wholeText(copies[many / 2]), textOf(many / 2));
        copies[number] = variant_t();
        copies[many - 1 - number] = variant_t();
    }
}

// Copies taken now and then keep the memory of some texts only.
TEST(ValueLifetimes, FewCopiesOutliveTheResultToo)
{
    for (const std::size_t step : {1U, 7U, 500U, 4999U})
    {
        std::vector<variant_t> copies;
        {
            FilledHost host(many);
            std::vector<variant_t> all = copyValues(host.result());
            for (std::size_t number = 0; number < many; number += step)
            {
                copies.push_back(std::move(all[number]));
            }
        }
        for (std::size_t index = 0; index < copies.size(); ++index)
        {
            ASSERT_EQ(wholeText(copies[index]), textOf(index * step));
        }
    }
}

TEST(ValueLifetimes, OneValueWalksALargeResult)
{
    FilledHost host(many);
    std::vector<variant_t> copies;
    Value value;
    for (int round = 0; round < 2; ++round)
    {
        std::size_t number = 0;
        for (int code = host.result().getFirstValue(&value, L"name", 0, no_position); code == 0;
             code = host.result().getNextValue(&value, L"name"))
        {
            ASSERT_EQ(wholeText(value.value), textOf(number));
            ASSERT_STREQ(value.as<const wchar_t*>(), textOf(number).c_str());
            if (number % 50 == 0)
            {
                copies.push_back(value.value);
            }
            ++number;
        }
        ASSERT_EQ(number, many);
    }
    host.renewResult();
    for (std::size_t index = 0; index < copies.size(); ++index)
    {
        ASSERT_EQ(wholeText(copies[index]), textOf(index * 50 % many));
    }
}

// The value holds the only share that is left of a text's memory when it is used again.
TEST(ValueLifetimes, ValueMayGoFromResultToResult)
{
    Value value;
    std::optional<FilledHost> first(std::in_place, 100, L"first ");
    ASSERT_EQ(first->result().getFirstValue(&value, L"name", 0, no_position), 0);
    EXPECT_EQ(wholeText(value.value), L"first " + textOf(0));
    std::optional<FilledHost> second(std::in_place, 100, L"second ");
    first.reset();
    EXPECT_EQ(wholeText(value.value), L"first " + textOf(0));
    ASSERT_EQ(second->result().getFirstValue(&value, L"name", 0, no_position), 0);
    for (std::size_t number = 1; number < 100; ++number)
    {
        ASSERT_EQ(second->result().getNextValue(&value, L"name"), 0);
        EXPECT_EQ(wholeText(value.value), L"second " + textOf(number));
    }
    const variant_t last = value.value;
    EXPECT_EQ(second->result().getNextValue(&value, L"name"), 1);
    EXPECT_EQ(value.value.kind(), 17);
    second.reset();
    EXPECT_EQ(wholeText(last), L"second " + textOf(99));
}

// One Value that meets the texts of two results in turn, both alive and then not.
TEST(ValueLifetimes, ValueMayMixTheTextsOfTwoResults)
{
    Value value;
    {
        FilledHost first(200, L"first ");
        FilledHost second(200, L"second ");
        Value other;
        ASSERT_EQ(first.result().getFirstValue(&value, L"name", 0, no_position), 0);
        ASSERT_EQ(second.result().getFirstValue(&other, L"name", 0, no_position), 0);
        for (std::size_t number = 1; number < 200; ++number)
        {
            ASSERT_EQ((number % 3 == 0 ? second : first).result().getNextValue(&value, L"name"), 0);
        }
        EXPECT_EQ(wholeText(value.value), L"first " + textOf(133));
    }
    EXPECT_EQ(wholeText(value.value), L"first " + textOf(133));
}

// What the value held before is not the library's.
TEST(ValueLifetimes, ValueMayHoldTheHostsOwnTextBefore)
{
    FilledHost host(3);
    const variant_t own(L"the host's");
    Value value;
    value.value = own;
    ASSERT_EQ(host.result().getFirstValue(&value, L"name", 0, no_position), 0);
    EXPECT_EQ(wholeText(value.value), textOf(0));
    EXPECT_EQ(wholeText(own), L"the host's");
    value.value = variant_t(2.5);
    ASSERT_EQ(host.result().getNextValue(&value, L"name"), 0);
    EXPECT_EQ(wholeText(value.value), textOf(1));
}

// Variants of the kinds that share memory, and one that does not.
std::vector<variant_t> declaredValues()
{
    return {variant_t(L"wide"), variant_t("narrow"), variant_t(std::wstring(5000, L'x')),
            variant_t::reference(L"not owned"), variant_t(25)};
}

TEST(ValueLifetimes, WhatAValueHeldBeforeIsReleasedOnce)
{
    Host host;
    host.addOption(L"number", value_type_integer);
    host.addOption(L"text");
    ASSERT_EQ(host.parse({L"--number=1", L"--number=2", L"--text=t"}), 0);
    const auto isReleasedBy = [](auto query)
    {
        int destroyed = 0;
        Value value;
        value.value = variant_t::object(new CountedObject(destroyed));
        query(value);
        return destroyed == 1;
    };
    IParseResult& result = host.result();
    EXPECT_TRUE(isReleasedBy([&](Value& value)
                             { result.getFirstValue(&value, L"number", 0, no_position); }));
    EXPECT_TRUE(isReleasedBy([&](Value& value) { result.getNextValue(&value, L"number"); }));
    EXPECT_TRUE(isReleasedBy([&](Value& value) { result.getNextValue(&value, L"number"); }));
    EXPECT_TRUE(
        isReleasedBy([&](Value& value) { result.getFirstValue(&value, L"text", 0, no_position); }));
    EXPECT_TRUE(
        isReleasedBy([&](Value& value) { result.getFirstValue(&value, L"none", 0, no_position); }));
}

// The object goes when nothing else is left to do, so what its destructor asks for stays.
TEST(ValueLifetimes, ObjectInAValueMayAskTheResultAsItGoes)
{
    struct Asking final : vexkit2::polymorphic_t
    {
        Asking(IParseResult& asked, Value& into) : result(&asked), value(&into) {}
        Asking(const Asking&) = delete;
        Asking& operator=(const Asking&) = delete;
        ~Asking() override { static_cast<void>(result->getNextValue(value, L"name")); }
        IParseResult* result;
        Value* value;
    };
    FilledHost host(3);
    Value value;
    value.value = variant_t::object(new Asking(host.result(), value));
    ASSERT_EQ(host.result().getFirstValue(&value, L"name", 0, no_position), 0);
    EXPECT_EQ(value.as<const wchar_t*>(), textOf(1));
    EXPECT_EQ(wholeText(value.value), textOf(1));

    value.value = variant_t::object(new Asking(host.result(), value));
    EXPECT_EQ(host.result().getFirstValue(&value, L"absent", 0, no_position), 1);
    EXPECT_EQ(value.value.kind(), 17);
}

TEST(ValueLifetimes, DefaultIsHandedBackAndOutlivesAll)
{
    for (const variant_t& declared : declaredValues())
    {
        SCOPED_TRACE(declared.kind());
        variant_t copy;
        {
            Host host;
            {
                const variant_t own = declared;
                host.addOption(L"name").setDefaultValue(own);
            }
            ASSERT_EQ(host.parse({}), 0);
            Value value;
            for (int round = 0; round < 3; ++round)
            {
                ASSERT_EQ(host.result().getFirstValue(&value, L"name", 0, no_position), 0);
                EXPECT_EQ(value.value.kind(), declared.kind());
                EXPECT_TRUE(value.value == declared);
            }
            copy = value.value;
        }
        EXPECT_TRUE(copy == declared);
    }
}

TEST(ValueLifetimes, DefaultOutlivesTheParserInItsResult)
{
    for (const variant_t& declared : declaredValues())
    {
        SCOPED_TRACE(declared.kind());
        ParserOwner parser = createParser();
        const ResultOwner result = createResult(*parser);
        // A variant of its own that ends with the parser.
        parser->addOption(L"name", L"", value_type_string, L"")
            .option->setDefaultValue(
                declared.kind() == 13 ? variant_t(declared.get<const wchar_t*>()) : declared);
        ASSERT_EQ(toolbox::parse(*parser, std::vector<const wchar_t*>(), result.get()), 0);
        parser.reset();
        for (int round = 0; round < 3; ++round)
        {
            Value value;
            ASSERT_EQ(result->getFirstValue(&value, L"name", 0, no_position), 0);
            EXPECT_TRUE(value.value == declared);
        }
    }
}

// Allowed values and replacements of deprecated ones are declared as variants as well.
TEST(ValueLifetimes, AllowedValueAndReplacementAreHandedBackAndOutliveAll)
{
    std::vector<variant_t> copies;
    {
        Host host;
        host.addOption(L"name")
            .addAllowedValue(variant_t(L"allowed by the host"))
            .addDeprecatedValue(variant_t(L"former"), variant_t(L"allowed by the host"));
        const ConsoleCapture warnings(ConsoleCapture::Stream::error);
        for (int round = 0; round < 300; ++round)
        {
            ASSERT_EQ(host.parse({L"--name=allowed", L"--name=allowed by the host",
                                  L"--name=former", L"--name=form"}),
                      0);
        }
        copies = copyValues(host.result());
    }
    ASSERT_EQ(copies.size(), 1200U);
    for (const variant_t& copy : copies)
    {
        ASSERT_EQ(wholeText(copy), L"allowed by the host");
    }
}

// A value of a result declared as the default of an option, whose occurrences go into another
// result, or into the same.
TEST(ValueLifetimes, ValueOfAResultMayBeDeclared)
{
    for (const bool same : {true, false})
    {
        SCOPED_TRACE(same);
        std::optional<FilledHost> source(std::in_place, 500);
        std::vector<variant_t> values = copyValues(source->result());
        Host other;
        Host& host = same ? static_cast<Host&>(*source) : other;
        host.addOption(L"other").setDefaultValue(values[7]);
        host.addOption(L"third").addAllowedValue(values[8]).addDeprecatedValue(values[8],
                                                                               values[9]);
        values.clear();
        {
            const ConsoleCapture warning(ConsoleCapture::Stream::error);
            ASSERT_EQ(host.parse({(L"--third=" + textOf(8)).c_str()}), 0);
        }
        if (!same)
        {
            source.reset();
        }
        for (int round = 0; round < 3; ++round)
        {
            EXPECT_EQ(host.texts(L"other"), std::vector<std::wstring>{textOf(7)});
            EXPECT_EQ(host.texts(L"third"), std::vector<std::wstring>{textOf(9)});
        }
        Value value;
        ASSERT_EQ(host.result().getFirstValue(&value, L"other", 0, no_position), 0);
        host.renewResult();
        EXPECT_EQ(wholeText(value.value), textOf(7));
    }
}

TEST(ValueLifetimes, ObjectOfADefaultIsDestroyedWithItsLastShare)
{
    int destroyed = 0;
    {
        Host host;
        host.addOption(L"name").setDefaultValue(variant_t::object(new CountedObject(destroyed)));
        EXPECT_EQ(host.parse({}), 0);
        EXPECT_EQ(host.parse({L"--name=x"}), 0);
        EXPECT_EQ(host.texts(L"name"), std::vector<std::wstring>{L"x"});
        EXPECT_EQ(destroyed, 0);
    }
    EXPECT_EQ(destroyed, 1);
}

} // namespace
