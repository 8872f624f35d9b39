// Fails allocations while an occurrence is stored for an option whose names have different records:
// one name was added late, another also belongs to an option of a second parser. The occurrence
// must be stored for all of the names or for none.
#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "AllocationFaults.h"
#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;
using namespace faults;

namespace
{

using Texts = std::vector<std::wstring>;

// The code of a parse whose result contains a name that the parser does not have.
constexpr result_t foreign_name = result_nothing;

// Returns the values of each name.
std::vector<Texts> contents(IParseResult& result)
{
    std::vector<Texts> all;
    for (const wchar_t* const name : {L"a", L"b", L"c", L"d"})
    {
        Texts texts;
        Value value;
        result_t code = result.getFirstValue(&value, name, 0, no_position);
        for (; code == 0; code = result.getNextValue(&value, name))
        {
            texts.emplace_back(value.as<const wchar_t*>());
        }
        all.push_back(texts);
    }
    return all;
}

result_t parse(IParser& parser, IParseResult& result, const wchar_t* argument)
{
    const wchar_t* const arguments[] = {L"program", argument};
    return inLibrary([&] { return parser.parse(2, arguments, &result); });
}

// Fails each allocation of the last parse in turn. Returns how many there were.
std::size_t failEachAllocation(Extent extent)
{
    for (std::size_t number = 1;; ++number)
    {
        SCOPED_TRACE(number);
        failAllocation(0, extent);
        const ParserOwner first = createParser();
        const ParserOwner second = createParser();
        IOption* const option = first->addOption(L"a,b", L"", value_type_string, L"").option;
        second->addOption(L"b,d", L"", value_type_string, L"");
        const ResultOwner result = createResult(*first);
        EXPECT_EQ(parse(*first, *result, L"-a=1"), 0);
        EXPECT_EQ(parse(*second, *result, L"-d=2"), foreign_name);
        option->addName(L"c");
        const std::vector<Texts> before = contents(*result);

        failAllocation(number, extent);
        const result_t code = parse(*first, *result, L"-a=a long text that needs memory,another");
        const std::size_t made = allocationsCounted();
        failAllocation(0, extent);
        std::vector<Texts> after = before;
        if (code == foreign_name)
        {
            EXPECT_LT(made, number);
            // A name without a record starts with a copy of the first name's record.
            after[2] = after[0];
            for (std::size_t name = 0; name < 3; ++name)
            {
                after[name].emplace_back(L"a long text that needs memory");
                after[name].emplace_back(L"another");
            }
            EXPECT_EQ(contents(*result), after);
            return number - 1;
        }
        EXPECT_EQ(code, result_standard_exception);
        EXPECT_EQ(contents(*result), before);
        if (testing::Test::HasFailure())
        {
            return number;
        }
    }
}

TEST(AllocationFailureOfLateNames, AllNamesHaveTheOccurrenceOrNone)
{
    for (const Extent extent : {Extent::oneAllocation, Extent::restOfCall})
    {
        EXPECT_GT(failEachAllocation(extent), 0U) << "no allocation was made";
    }
}

} // namespace
