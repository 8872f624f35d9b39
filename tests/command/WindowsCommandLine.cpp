// The command line of a Windows process as Microsoft's C runtime splits it.
#include "text/WindowsCommandLine.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "TextPrinting.h"

using namespace kexa::detail;

namespace
{

using Arguments = std::vector<std::wstring>;

struct LineRow
{
    std::wstring line;
    Arguments arguments;
};

// Lines that old and new runtimes split alike.
void expectArguments(const std::vector<LineRow>& rows)
{
    for (const LineRow& row : rows)
    {
        for (const PairOfQuotes rule : {PairOfQuotes::stays_quoted, PairOfQuotes::ends_quoted})
        {
            EXPECT_EQ(splitWindowsCommandLine(row.line, rule), row.arguments)
                << toolbox::toUtf8(row.line);
        }
    }
}

} // namespace

TEST(WindowsCommandLine, IsSplitAtBlanks)
{
    expectArguments({
        {L"p a b", {L"p", L"a", L"b"}},
        {L"p \t a\tb  ", {L"p", L"a", L"b"}},
        {L"p a\nb\u00A0c", {L"p", L"a\nb\u00A0c"}},
        {L"p gr\u00F6\u00DFe \u65E5\u672C \U0001F600",
         {L"p", L"gr\u00F6\u00DFe", L"\u65E5\u672C", L"\U0001F600"}},
        {L"p", {L"p"}},
        {L"", {L""}},
    });
}

TEST(WindowsCommandLine, BeginsWithAProgramNameThatKnowsNoBackslash)
{
    expectArguments({
        {L"\"C:\\Program Files\\p.exe\" a", {L"C:\\Program Files\\p.exe", L"a"}},
        {L"\"C:\\folder\\\" a", {L"C:\\folder\\", L"a"}},
        {L"C:\\folder\\p.exe\ta", {L"C:\\folder\\p.exe", L"a"}},
        {L"a\"b c\"d e", {L"ab cd", L"e"}},
        {L"\"a\"\"b\" c", {L"ab", L"c"}},
        {L"\"a b", {L"a b"}},
        {L" a", {L"", L"a"}},
    });
}

TEST(WindowsCommandLine, QuotesKeepBlanksTogether)
{
    expectArguments({
        {L"p \"a b\" c", {L"p", L"a b", L"c"}},
        {L"p a\" b\"c", {L"p", L"a bc"}},
        {L"p \"\" a", {L"p", L"", L"a"}},
        {L"p --name=\"a b\"", {L"p", L"--name=a b"}},
        {L"p \"a b", {L"p", L"a b"}},
        {L"p a \"", {L"p", L"a", L""}},
    });
}

TEST(WindowsCommandLine, BackslashesCountBeforeAQuoteOnly)
{
    // The first four are the documented examples.
    expectArguments({
        {L"p \"abc\" d e", {L"p", L"abc", L"d", L"e"}},
        {L"p a\\\\b d\"e f\"g h", {L"p", L"a\\\\b", L"de fg", L"h"}},
        {L"p a\\\\\\\"b c d", {L"p", L"a\\\"b", L"c", L"d"}},
        {L"p a\\\\\\\\\"b c\" d e", {L"p", L"a\\\\b c", L"d", L"e"}},
        {L"p C:\\a\\b\\ c", {L"p", L"C:\\a\\b\\", L"c"}},
        {L"p \"C:\\a b\\\\\" c", {L"p", L"C:\\a b\\", L"c"}},
        {L"p \"C:\\a b\\\" c", {L"p", L"C:\\a b\" c"}},
        {L"p \\\"a b\\\"", {L"p", L"\"a", L"b\""}},
        {L"p \\", {L"p", L"\\"}},
        {L"p \"a\\", {L"p", L"a\\"}},
        {L"p \\\\ \\\\\\", {L"p", L"\\\\", L"\\\\\\"}},
    });
}

TEST(WindowsCommandLine, ThePairOfQuotesIsReadAsEitherRuntimeDoes)
{
    const struct
    {
        std::wstring line;
        Arguments since2008;
        Arguments before;
    } rows[] = {
        {L"p \"a\"\"b c\"", {L"p", L"a\"b c"}, {L"p", L"a\"b", L"c"}},
        {L"p a\"b\"\" c d", {L"p", L"ab\" c d"}, {L"p", L"ab\"", L"c", L"d"}},
        {L"p \"\"\"\"", {L"p", L"\""}, {L"p", L"\""}},
        {L"p \"\"\" a", {L"p", L"\" a"}, {L"p", L"\"", L"a"}},
        {L"p a\"\"b", {L"p", L"ab"}, {L"p", L"ab"}},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(splitWindowsCommandLine(row.line, PairOfQuotes::stays_quoted), row.since2008)
            << toolbox::toUtf8(row.line);
        EXPECT_EQ(splitWindowsCommandLine(row.line, PairOfQuotes::ends_quoted), row.before)
            << toolbox::toUtf8(row.line);
    }
}
