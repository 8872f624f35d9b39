// Fails allocations while a parse stores more than a new result has room for: texts, occurrences of
// one option, and references to values of the host. The arguments before the failure must stay
// stored.
#include <algorithm>
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

// The arguments, and the values of "text" after each of them.
class Command
{
public:
    Command()
    {
        for (std::size_t number = 0; number < 400; ++number)
        {
            Texts pieces;
            for (std::size_t piece = 0; piece < (number % 50 == 49 ? 30 : 1); ++piece)
            {
                pieces.push_back(std::to_wstring(number) + L"." + std::to_wstring(piece) +
                                 std::wstring(number % 10, L'x'));
            }
            add(pieces);
        }
        add({std::wstring(20000, L'y')});
        add({L"last"});
        for (const std::wstring& argument : m_arguments)
        {
            m_vector.push_back(argument.c_str());
        }
    }

    [[nodiscard]] result_t parse(IParser& parser, IParseResult& result) const
    {
        return inLibrary(
            [&] {
                return parser.parse(static_cast<std::int32_t>(m_vector.size()), m_vector.data(),
                                    &result);
            });
    }

    [[nodiscard]] const Texts& all() const { return m_texts; }

    // Returns whether the texts are the values of the first arguments, for any number of them.
    [[nodiscard]] bool isPrefix(const Texts& texts) const
    {
        bool ends = false;
        for (const std::size_t end : m_ends)
        {
            ends = ends || end == texts.size();
        }
        return ends && std::equal(texts.begin(), texts.end(), m_texts.begin());
    }

private:
    void add(const Texts& pieces)
    {
        std::wstring argument = L"--text=";
        for (const std::wstring& piece : pieces)
        {
            argument += (&piece == pieces.data() ? L"" : L",") + piece;
            m_texts.push_back(piece);
        }
        m_arguments.push_back(argument);
        m_ends.push_back(m_texts.size());
    }

    std::vector<std::wstring> m_arguments = {L"program"};
    std::vector<const wchar_t*> m_vector;
    Texts m_texts;
    std::vector<std::size_t> m_ends = {0};
};

// Fails each allocation of a parse in turn. Returns how many failed.
std::size_t failEachAllocation(const Command& command, Extent extent)
{
    for (std::size_t number = 1;; ++number)
    {
        SCOPED_TRACE(number);
        failAllocation(0, extent);
        const std::size_t before = liveBlocks();
        result_t code = result_success;
        std::size_t made = 0;
        {
            const ParserOwner parser = createParser();
            parser->addOption(L"text,t", L"", value_type_string, L"");
            parser->addOption(L"other", L"", value_type_string, L"")
                .option->setDefaultValue(vexkit2::variant_t(L"the host's own"));
            const ResultOwner result = createResult(*parser);

            failAllocation(number, extent);
            code = command.parse(*parser, *result);
            made = allocationsCounted();
            failAllocation(0, extent);

            Texts stored = readTexts(*result, L"text");
            EXPECT_EQ(readTexts(*result, L"t"), stored);
            if (code == result_success)
            {
                EXPECT_LT(made, number);
                EXPECT_EQ(stored, command.all());
            }
            else
            {
                EXPECT_EQ(code, result_standard_exception);
                EXPECT_TRUE(command.isPrefix(stored)) << stored.size();
            }
            // A second parse appends its values to those of the first.
            EXPECT_EQ(command.parse(*parser, *result), result_success);
            stored.insert(stored.end(), command.all().begin(), command.all().end());
            EXPECT_EQ(readTexts(*result, L"text"), stored);
            EXPECT_EQ(readTexts(*result, L"other"), Texts{L"the host's own"});
        }
        if (testing::Test::HasFailure()) // whose messages are kept on the heap
        {
            return number;
        }
        EXPECT_EQ(liveBlocks(), before) << "leaked";
        if (code == result_success)
        {
            return number - 1;
        }
    }
}

TEST(AllocationFailureOfStoring, KeepsWhatTheArgumentsBeforeStored)
{
    const Command command;
    for (const Extent extent : {Extent::oneAllocation, Extent::restOfCall})
    {
        EXPECT_GT(failEachAllocation(command, extent), 0U) << "no allocation was made";
    }
}

} // namespace
