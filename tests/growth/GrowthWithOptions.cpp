// What one argument asks the heap for does not depend on how many options, or allowed values, are
// declared.
#include <string>

#include <gtest/gtest.h>

#include "AllocationCount.h"
#include "SizedCommandLines.h"

namespace
{

using toolbox::AllocationCount;
using toolbox::countAllocations;

constexpr std::size_t few = 64;
constexpr std::size_t many = 4096;

// Every option is given in both command lines, and the second parse of each is counted: what the
// first one prepares is paid once and not for each argument.
AllocationCount countSecondParse(Style style, std::size_t options)
{
    const CommandLine line(style, options, many);
    static_cast<void>(line.parse());
    AllocationCount count;
    {
        ResultPointer result;
        count = countAllocations([&] { result = line.parse(); });
        EXPECT_EQ(line.countValues(*result), line.expectedValues());
    }
    return count;
}

// With many options each is stored once and has a record of its own, with few it is one record that
// grows; either way the cost of an argument has the same bound. Blocks are taken for many arguments
// together: one for each text among them would be a third of the arguments and more.
void expectBounded(Style style)
{
    constexpr std::uint64_t argumentsForEachBlock = 64;
    constexpr std::uint64_t bytesForEach = 640;
    for (const std::size_t options : {few, many})
    {
        const AllocationCount count = countSecondParse(style, options);
        EXPECT_LE(count.blocks, many / argumentsForEachBlock) << options << " options";
        EXPECT_LE(count.bytes, many * bytesForEach) << options << " options";
    }
}

TEST(GrowthWithOptions, FullNameCostsTheSame)
{
    expectBounded(Style::fullNames);
}

TEST(GrowthWithOptions, AbbreviationCostsTheSame)
{
    expectBounded(Style::abbreviations);
}

TEST(GrowthWithOptions, AllowedValueCostsTheSame)
{
    expectBounded(Style::allowedValues);
}

} // namespace
