// The allocations for one argument do not depend on the number of declared options or allowed
// values.
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

// Counts the second parse, because the first one also creates what later parses reuse. Every option
// is given in the command line.
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

// With many options each value has a record of its own; with few options a few records grow. The
// bound for one argument is valid for both. One block serves many arguments; a block for each text
// would be at least a third of the arguments.
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

TEST(GrowthWithOptions, FullNameHasABoundedCost)
{
    expectBounded(Style::fullNames);
}

TEST(GrowthWithOptions, AbbreviationHasABoundedCost)
{
    expectBounded(Style::abbreviations);
}

TEST(GrowthWithOptions, AllowedValueHasABoundedCost)
{
    expectBounded(Style::allowedValues);
}

} // namespace
