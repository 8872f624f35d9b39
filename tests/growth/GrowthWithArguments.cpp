// The allocations of parsing, reading a result and declaring options grow at most linearly.
#include <array>
#include <cstdint>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "AllocationCount.h"
#include "SizedCommandLines.h"

namespace
{

using toolbox::AllocationCount;
using toolbox::countAllocations;

constexpr std::size_t smallest = 1024;

// Costs for 1, 2, 4 and 8 times the smallest size.
using Costs = std::array<AllocationCount, 4>;

template <class Measure>
Costs measureAt(Measure measure)
{
    Costs costs;
    for (std::size_t step = 0; step < costs.size(); ++step)
    {
        costs[step] = measure(smallest << step);
    }
    return costs;
}

// The cost for each unit of size at the largest size may be twice that at the smallest: memory is
// allocated ahead, in blocks of which each has twice the size of the one before, so a size that
// needs one more block costs up to twice as much as one that just fits. Quadratic growth would make
// it eight times as much.
void expectLinear(const char* what, std::uint64_t atSmallest, std::uint64_t atLargest)
{
    constexpr std::uint64_t growth = std::uint64_t{1} << (std::tuple_size_v<Costs> - 1);
    constexpr std::uint64_t constant = 64; // of what is allocated for any size
    EXPECT_LE(atLargest, 2 * growth * atSmallest + constant)
        << what << ": " << atSmallest << " at the smallest size";
}

void expectLinear(const Costs& costs)
{
    expectLinear("blocks", costs.front().blocks, costs.back().blocks);
    expectLinear("bytes", costs.front().bytes, costs.back().bytes);
}

struct Row
{
    const char* name;
    Style style;
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.name;
}

class GrowthWithArguments : public testing::TestWithParam<Row>
{
};

constexpr Row rows[] = {
    {"FullNames", Style::fullNames},         {"Abbreviations", Style::abbreviations},
    {"NextArguments", Style::nextArguments}, {"Positional", Style::positional},
    {"LeftOver", Style::leftOver},           {"Unknown", Style::unknown},
    {"ListPieces", Style::listPieces},       {"AllowedValues", Style::allowedValues}};

INSTANTIATE_TEST_SUITE_P(Styles, GrowthWithArguments, testing::ValuesIn(rows),
                         [](const testing::TestParamInfo<Row>& row)
                         { return std::string(row.param.name); });

constexpr std::size_t options = 30;

// The other tests would pass even if the library's allocations were not counted.
TEST(AllocationCount, IncludesAllocationsOfTheLibrary)
{
    const ParserPointer parser = declareOptions(0);
    parser->addOption(L"text", L"", kexa_3_3::value_type_string, L"");
    const ResultPointer result = makeResult(*parser);
    const std::wstring argument = L"--text=" + std::wstring(100000, L'x');
    const wchar_t* const arguments[] = {L"program", argument.c_str()};
    const AllocationCount count = countAllocations(
        [&] { EXPECT_EQ(parser->parse(2, arguments, result.get()), kexa_3_3::result_success); });
    EXPECT_GE(count.blocks, 1U);
    EXPECT_GE(count.bytes, 100000 * sizeof(wchar_t));
}

TEST_P(GrowthWithArguments, ParsingIsLinear)
{
    expectLinear(measureAt(
        [](std::size_t arguments)
        {
            const CommandLine line(GetParam().style, options, arguments);
            ResultPointer result;
            const AllocationCount count = countAllocations([&] { result = line.parse(); });
            EXPECT_EQ(line.countValues(*result), line.expectedValues());
            return count;
        }));
}

// A name that is added after a parse gets a record of its own, for which further occurrences are
// stored once more. Returns the allocations of a parse that stores so many occurrences.
AllocationCount countWithLateName(std::size_t count)
{
    const ParserPointer parser = declareOptions(0);
    kexa_3_3::IOption* const option =
        parser->addOption(L"a", L"", kexa_3_3::value_type_string, L"").option;
    parser->addOption(L"other", L"", kexa_3_3::value_type_string, L"");
    const ResultPointer result = makeResult(*parser);
    const std::vector<const wchar_t*> first = {L"program", L"-a=value", L"-other=value"};
    EXPECT_EQ(parser->parse(3, first.data(), result.get()), kexa_3_3::result_success);
    option->addName(L"b");
    std::vector<const wchar_t*> arguments(count, L"-a=value");
    arguments.front() = L"program";
    const AllocationCount allocations = countAllocations(
        [&]
        {
            EXPECT_EQ(parser->parse(static_cast<int>(count), arguments.data(), result.get()),
                      kexa_3_3::result_success);
        });
    EXPECT_EQ(result->isPresent(L"b", 0, kexa_3_3::no_position), 1);
    return allocations;
}

TEST(GrowthWithLateNames, ParsingIsLinear)
{
    expectLinear(measureAt(countWithLateName));
}

// Values, their texts and left-over arguments do not have blocks of their own.
TEST_P(GrowthWithArguments, ParsingAllocatesFarFewerBlocksThanArguments)
{
    constexpr std::size_t arguments = 16 * smallest;
    const CommandLine line(GetParam().style, options, arguments);
    static_cast<void>(line.parse()); // prepares what is created once
    ResultPointer result;
    EXPECT_LE(countAllocations([&] { result = line.parse(); }).blocks, arguments / 256);
    EXPECT_EQ(line.countValues(*result), line.expectedValues());
}

TEST_P(GrowthWithArguments, ReadingDoesNotAllocate)
{
    const CommandLine line(GetParam().style, options, smallest);
    const ResultPointer result = line.parse();
    std::size_t count = 0;
    EXPECT_EQ(countAllocations([&] { count = line.countValues(*result); }).blocks, 0U);
    EXPECT_EQ(count, line.expectedValues());
}

TEST_P(GrowthWithArguments, ReadingIsLinear)
{
    expectLinear(measureAt(
        [](std::size_t arguments)
        {
            const CommandLine line(GetParam().style, options, arguments);
            const ResultPointer result = line.parse();
            return countAllocations([&] { static_cast<void>(line.countValues(*result)); });
        }));
}

TEST(GrowthWithDeclarations, DeclaringIsLinear)
{
    expectLinear(measureAt([](std::size_t count)
                           { return countAllocations([&] { declareOptions(count); }); }));
}

TEST(GrowthWithDeclarations, FullHelpIsLinear)
{
    expectLinear(measureAt(
        [](std::size_t count)
        {
            const ParserPointer parser = declareOptions(count);
            return countAllocations([&] { EXPECT_NE(parser->showFullHelp(false)[0], L'\0'); });
        }));
}

} // namespace
