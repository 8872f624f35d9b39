// How long the values that a query returns stay valid, and what filling a Value again releases.
#include <optional>
#include <string>
#include <vector>

#include "FilledHost.h"
#include "VariantSamples.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using variant_samples::CountedObject;
using vexkit2::variant_t;

constexpr std::size_t many = 5000; // together several hundred kilobytes of text

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
    // From both ends to the middle: memory is released in another order than it was allocated.
    for (std::size_t number = 0; number < many / 2; ++number)
    {
        ASSERT_EQ(wholeText(copies[number]), textOf(number));
        ASSERT_EQ(wholeText(copies[many / 2]), textOf(many / 2));
        copies[number] = variant_t();
        copies[many - 1 - number] = variant_t();
    }
}

// Copies of every fiftieth value keep the memory of only some texts alive.
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

// The Value holds the last reference to a text of the first result when the second one fills it.
TEST(ValueLifetimes, ValueMayBeFilledByAnotherResult)
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

// First while both results exist, then after one of them is released.
TEST(ValueLifetimes, ValueMayBeFilledByTwoResultsInTurn)
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

// The Value holds a text of the host before a query fills it.
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

// The destructor runs as the last step of a query: what it stores into the Value stays there.
TEST(ValueLifetimes, DestructorOfAReplacedObjectMayQueryTheResult)
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

} // namespace
