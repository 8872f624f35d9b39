// Fails allocations at every point of a declaration. A parser stores texts and tables in blocks,
// and allocates when a block is full. The declarations are repeated with more and more padding in
// front of them, so that a block ends at every point.
#include <cstddef>
#include <iostream>
#include <memory>
#include <new>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "AllocationFaults.h"
#include "FaultySteps.h"
#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;
using namespace faults;

namespace
{

constexpr const wchar_t* probes[] = {L"--na",  L"--no-na", L"--fur", L"--nam=1",
                                     L"--out", L"--o=1",   L"free",  L"--action"};
constexpr const wchar_t* names[] = {L"name", L"n", L"further", L"output", L"out", L"o", L"action"};

class Declarations
{
public:
    // padding: number of characters that are stored in the parser before the declarations.
    Declarations(std::size_t padding, const Record* expected)
        : m_parser(createParser()), m_steps(expected, [this] { return observe(); })
    {
        const std::wstring description(padding, L'x');
        m_parser->addOption(L"padding", description.c_str(), value_type_string, L"kexa_hidden");
        m_parser->addSwitch(L"compile", L"", value_type_boolean, L"");
        m_parser->addSwitch(L"link", L"", value_type_boolean, L"");
    }

    void run()
    {
        declare("addSwitch",
                [this]() -> const Registration&
                { return m_parser->addSwitch(L"action", L"An action.", 0, L""); });
        declare("addOption",
                [this]() -> const Registration&
                { return m_parser->addOption(L"name,n", L"Its text.", 0, L""); });
        build("addName", [](IOption& option) { option.addName(L"further"); });
        declare("addOptionWithKeywords",
                [this]() -> const Registration&
                {
                    return m_parser->addOptionWithKeywords(L"output,out,o", L"compile,run,test",
                                                           L"", value_type_integer, L"");
                });
        build("addKeywords", [](IOption& option) { option.addKeywords(L"test,link,pack,test"); });
        build("addKeywords that make it positional",
              [](IOption& option) { option.addKeywords(L"more,kexa_positional_option"); });
        // So many names that every table grows.
        for (int number = 0; number < 30; ++number)
        {
            const std::wstring name = L"name-" + std::to_wstring(number);
            build("addName again", [&](IOption& option) { option.addName(name.c_str()); });
        }
    }

    const Record& record() const { return m_steps.record(); }

private:
    template <class Declare>
    void declare(const char* title, Declare declaration)
    {
        m_steps.step(title,
                     [&]
                     {
                         const Registration registration = inLibrary(declaration);
                         m_option = registration.option;
                         EXPECT_EQ(registration.status, m_option == nullptr ? 1 : 3);
                         return Attempt{m_option == nullptr, {}};
                     });
    }

    template <class Change>
    void build(const char* title, Change change)
    {
        ASSERT_NE(m_option, nullptr);
        m_steps.step(title,
                     [&]
                     {
                         try
                         {
                             inLibrary([&] { change(*m_option); });
                             return Attempt{};
                         }
                         catch (const std::bad_alloc&)
                         {
                             return Attempt{true, {}};
                         }
                     });
    }

    std::wstring observe()
    {
        std::wostringstream state;
        state << m_parser->showFullHelp(false) << m_parser->getTopicList(false)
              << m_parser->showRelatedHelp(L"compile", false)
              << m_parser->showRelatedHelp(L"link", false)
              << m_parser->showRelatedHelp(L"action", false);
        for (const wchar_t* const probe : probes)
        {
            const ResultOwner result = createResult(*m_parser);
            const result_t code = toolbox::parse(*m_parser, {L"--link", probe}, result.get());
            state << code << (code == result_success ? L"" : m_parser->getErrorMessage()) << L'\n';
            for (const wchar_t* const name : names)
            {
                state << m_parser->hasOption(name, false, nullptr)
                      << m_parser->hasOption(name, true, nullptr);
                for (const std::wstring& text : readTexts(*result, name))
                {
                    state << L' ' << text;
                }
            }
        }
        return state.str();
    }

    ParserOwner m_parser;
    FaultySteps m_steps;
    IOption* m_option = nullptr;
};

// Runs the declarations with one failing allocation. Returns how many allocations they made.
std::size_t failAllocationOf(std::size_t padding, std::size_t number, Extent extent,
                             const Record& expected)
{
    const std::size_t before = liveBlocks();
    {
        failAllocation(number, extent);
        Declarations(padding, &expected).run();
    }
    if (!testing::Test::HasFailure()) // whose messages are kept on the heap
    {
        EXPECT_EQ(liveBlocks(), before) << "leaked";
    }
    return allocationsCounted();
}

} // namespace

TEST(AllocationFailureOfDeclarations, LeavesThemCompleteOrMissing)
{
    std::size_t runs = 0;
    std::size_t tried = 0;
    // The first block has 24 KiB. Without padding the tables of all the names outgrow it; with more
    // than this the padding itself does not fit.
    constexpr std::size_t highest = 20480 / sizeof(wchar_t);
    constexpr std::size_t stride = 64 / sizeof(wchar_t);
    for (std::size_t padding = 0; padding < highest && !testing::Test::HasFailure();
         padding += stride)
    {
        SCOPED_TRACE(padding);
        failAllocation(0, Extent::oneAllocation);
        Declarations reference(padding, nullptr);
        reference.run();
        for (const Extent extent : {Extent::oneAllocation, Extent::restOfCall})
        {
            ++runs;
            std::size_t number = 1;
            while (!testing::Test::HasFailure() &&
                   failAllocationOf(padding, number, extent, reference.record()) >= number)
            {
                ++number;
            }
            tried += number - 1;
        }
    }
    EXPECT_GT(runs, 600U);
    EXPECT_GE(tried, runs); // every run allocates at least once
    std::cout << tried << " allocations failed\n";
    RecordProperty("allocations", std::to_string(tried));
}
