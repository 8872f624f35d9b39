// Fails allocations while the tables of a parser and of a result grow, several times: for more
// options, names and groups than programs usually have. Everything that was declared or stored
// before must stay. The memory of a parser is allocated in a few large blocks, so the declarations
// are repeated with more and more padding in front of them: the blocks end at different points.
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

constexpr std::size_t options = 300;
constexpr std::size_t options_in_group = 10;

// The two names of an option, its value, and the argument with that value.
struct Texts
{
    std::wstring name;
    std::wstring other;
    std::wstring group;
    std::wstring value;
    std::wstring argument;
};

std::vector<Texts> makeTexts()
{
    std::vector<Texts> texts;
    for (std::size_t number = 0; number < options; ++number)
    {
        const std::wstring digits = std::to_wstring(number);
        Texts made;
        made.name = L"name-" + digits;
        made.other = L"other-" + digits;
        made.group = L"group-" + std::to_wstring(number / options_in_group);
        made.value = digits;
        made.argument = L"--" + made.name + L"=" + digits;
        texts.push_back(made);
    }
    return texts;
}

const std::vector<Texts>& texts()
{
    static const std::vector<Texts> made = makeTexts();
    return made;
}

// Declares the options from index `first` on until one fails. Returns how many are declared then.
std::size_t declareFrom(IParser& parser, std::size_t first)
{
    for (std::size_t number = first; number < options; ++number)
    {
        const Texts& its = texts()[number];
        const std::wstring both = its.name + L"," + its.other;
        const Registration registration = inLibrary(
            [&]
            { return parser.addOption(both.c_str(), L"", value_type_string, its.group.c_str()); });
        EXPECT_EQ(registration.status, registration.option == nullptr ? 1 : 3);
        if (registration.option == nullptr)
        {
            return number;
        }
    }
    return options;
}

result_t parseAll(IParser& parser, IParseResult& result)
{
    std::vector<const wchar_t*> arguments = {L"program"};
    for (const Texts& its : texts())
    {
        arguments.push_back(its.argument.c_str());
    }
    return inLibrary(
        [&] {
            return parser.parse(static_cast<std::int32_t>(arguments.size()), arguments.data(),
                                &result);
        });
}

// Expects that each option has its value `times` times, and the options before `end` `more` times
// in addition.
void expectValues(IParseResult& result, std::size_t end, std::size_t times, std::size_t more)
{
    for (std::size_t number = 0; number < options; ++number)
    {
        const Texts& its = texts()[number];
        const std::vector<std::wstring> expected(times + (number < end ? more : 0), its.value);
        EXPECT_EQ(readTexts(result, its.name.c_str()), expected) << number;
        EXPECT_EQ(readTexts(result, its.other.c_str()), expected) << number;
    }
}

// Returns a parser in which so many characters are stored.
ParserOwner createPadded(std::size_t padding)
{
    ParserOwner parser = createParser();
    const std::wstring description(padding, L'x');
    EXPECT_EQ(parser->addOption(L"padding", description.c_str(), 0, L"kexa_hidden").status, 3);
    return parser;
}

// Fails each allocation of the declarations in turn. Returns how many failed.
std::size_t failEachOfDeclaring(std::size_t padding, Extent extent)
{
    failAllocation(0, extent);
    const ParserOwner undisturbed = createParser();
    EXPECT_EQ(declareFrom(*undisturbed, 0), options);
    const std::wstring help = undisturbed->showFullHelp(false);
    for (std::size_t failing = 1;; ++failing)
    {
        SCOPED_TRACE(failing);
        failAllocation(0, extent);
        const std::size_t before = liveBlocks();
        std::size_t declared = 0;
        {
            const ParserOwner parser = createPadded(padding);
            failAllocation(failing, extent);
            declared = declareFrom(*parser, 0);
            failAllocation(0, extent);
            for (std::size_t number = 0; number < options; ++number)
            {
                EXPECT_EQ(parser->hasOption(texts()[number].other.c_str(), false, nullptr),
                          number < declared)
                    << number;
            }
            EXPECT_EQ(declareFrom(*parser, declared), options);
            EXPECT_EQ(parser->showFullHelp(false), help); // lists each group once
            const ResultOwner result = createResult(*parser);
            EXPECT_EQ(parseAll(*parser, *result), result_success);
            expectValues(*result, 0, 1, 0);
        }
        if (testing::Test::HasFailure()) // whose messages are kept on the heap
        {
            return failing;
        }
        EXPECT_EQ(liveBlocks(), before) << "leaked";
        if (declared == options)
        {
            return failing - 1;
        }
    }
}

// Fails each allocation of a parse in turn that stores a value of each option. Returns how many
// failed.
std::size_t failEachOfStoring(Extent extent)
{
    failAllocation(0, extent);
    const ParserOwner parser = createParser();
    EXPECT_EQ(declareFrom(*parser, 0), options);
    for (std::size_t failing = 1;; ++failing)
    {
        SCOPED_TRACE(failing);
        failAllocation(0, extent);
        const std::size_t before = liveBlocks();
        result_t code = result_success;
        {
            const ResultOwner result = createResult(*parser);
            failAllocation(failing, extent);
            code = parseAll(*parser, *result);
            failAllocation(0, extent);
            std::size_t stored = 0;
            while (stored < options &&
                   result->isPresent(texts()[stored].name.c_str(), 0, no_position) != 0)
            {
                ++stored;
            }
            EXPECT_EQ(code, stored == options ? result_success : result_standard_exception);
            expectValues(*result, stored, 0, 1);
            EXPECT_EQ(parseAll(*parser, *result), result_success);
            expectValues(*result, stored, 1, 1);
        }
        if (testing::Test::HasFailure()) // whose messages are kept on the heap
        {
            return failing;
        }
        EXPECT_EQ(liveBlocks(), before) << "leaked";
        if (code == result_success)
        {
            return failing - 1;
        }
    }
}

TEST(AllocationFailureOfManyOptions, KeepsWhatWasDeclaredBefore)
{
    for (const Extent extent : {Extent::oneAllocation, Extent::restOfCall})
    {
        for (std::size_t padding = 0; padding < 4096; padding += 512)
        {
            SCOPED_TRACE(padding);
            EXPECT_GT(failEachOfDeclaring(padding, extent), 0U) << "no allocation was made";
        }
    }
}

TEST(AllocationFailureOfManyOptions, KeepsWhatWasStoredBefore)
{
    for (const Extent extent : {Extent::oneAllocation, Extent::restOfCall})
    {
        EXPECT_GT(failEachOfStoring(extent), 0U) << "no allocation was made";
    }
}

} // namespace
