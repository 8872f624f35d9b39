// Splitting a command-line text into arguments.
#include <cwchar>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

using Texts = std::vector<std::wstring>;

struct SplitCase
{
    const wchar_t* text;
    Texts arguments;
};

// Returns the arguments themselves: a positional option takes each as one value.
class ArgumentLister
{
public:
    ArgumentLister() { m_host.addPositional(L"argument").setSeparator(0); }

    Texts argumentsOf(const wchar_t* text)
    {
        m_host.renewResult();
        EXPECT_EQ(m_host.parseLines(text), 0);
        return m_host.texts(L"argument");
    }

private:
    Host m_host;
};

} // namespace

TEST(CommandLineText, HoldsOneArgumentInEachLine)
{
    const SplitCase rows[] = {
        {L"", {}},
        {L"a", {L"a"}},
        {L"a\n", {L"a"}},
        {L"a\nb", {L"a", L"b"}},
        {L"a\nb\n", {L"a", L"b"}},
        {L"a b c", {L"a b c"}},
        {L"a\tb", {L"a\tb"}},
    };
    ArgumentLister lister;
    for (const SplitCase& row : rows)
    {
        SCOPED_TRACE(toUtf8(row.text));
        EXPECT_EQ(lister.argumentsOf(row.text), row.arguments);
    }
}

TEST(CommandLineText, BlankLinesAreSkipped)
{
    const SplitCase rows[] = {
        {L"\n", {}},
        {L"\n\n\n", {}},
        {L"   ", {}},
        {L" \t \n", {}},
        {L"\r\n\r\n", {}},
        {L" \r\n", {}},
        {L"a\n\nb", {L"a", L"b"}},
        {L"\n\na\n \n\t\nb\n\n", {L"a", L"b"}},
    };
    ArgumentLister lister;
    for (const SplitCase& row : rows)
    {
        SCOPED_TRACE(toUtf8(row.text));
        EXPECT_EQ(lister.argumentsOf(row.text), row.arguments);
    }
}

TEST(CommandLineText, LeadingWhiteSpaceIsSkipped)
{
    const SplitCase rows[] = {
        {L"  a", {L"a"}},
        {L"\ta", {L"a"}},
        {L" \t\v\f a", {L"a"}},
        {L"\ra", {L"a"}},
        {L"a\n  b\n\tc", {L"a", L"b", L"c"}},
    };
    ArgumentLister lister;
    for (const SplitCase& row : rows)
    {
        SCOPED_TRACE(toUtf8(row.text));
        EXPECT_EQ(lister.argumentsOf(row.text), row.arguments);
    }
}

TEST(CommandLineText, TrailingBlanksAreKept)
{
    const SplitCase rows[] = {
        {L"a ", {L"a "}},
        {L"a \t \nb", {L"a \t ", L"b"}},
        {L"a  \r\nb", {L"a  ", L"b"}},
        {L" a ", {L"a "}},
    };
    ArgumentLister lister;
    for (const SplitCase& row : rows)
    {
        SCOPED_TRACE(toUtf8(row.text));
        EXPECT_EQ(lister.argumentsOf(row.text), row.arguments);
    }
}

TEST(CommandLineText, LinesThatBeginWithASemicolonOrAHashAreComments)
{
    const SplitCase rows[] = {
        {L";a", {}},
        {L"#a", {}},
        {L";", {}},
        {L"#", {}},
        {L"  ;a", {}},
        {L"\t# a", {}},
        {L";a\nb\n# c\r\nd", {L"b", L"d"}},
        {L"a;b", {L"a;b"}},
        {L"a # b", {L"a # b"}},
        {L"a ;", {L"a ;"}},
        {L"//a", {L"//a"}},
    };
    ArgumentLister lister;
    for (const SplitCase& row : rows)
    {
        SCOPED_TRACE(toUtf8(row.text));
        EXPECT_EQ(lister.argumentsOf(row.text), row.arguments);
    }
}

TEST(CommandLineText, CarriageReturnsBelongToTheLineEndOnlyAtTheEndOfALine)
{
    const SplitCase rows[] = {
        {L"a\r\nb\r\n", {L"a", L"b"}}, {L"a\r\nb", {L"a", L"b"}}, {L"a\r", {L"a"}},
        {L"a\r\r\r\nb", {L"a", L"b"}}, {L"a\rb", {L"a\rb"}},      {L"a\r ", {L"a\r "}},
    };
    ArgumentLister lister;
    for (const SplitCase& row : rows)
    {
        SCOPED_TRACE(toUtf8(row.text));
        EXPECT_EQ(lister.argumentsOf(row.text), row.arguments);
    }
}

TEST(CommandLineText, QuotesAndBackslashesAreOrdinaryCharacters)
{
    const SplitCase rows[] = {
        {L"\"a b\"", {L"\"a b\""}},      {L"'a", {L"'a"}},
        {L"\"a\nb\"", {L"\"a", L"b\""}}, {L"a\\\nb", {L"a\\", L"b"}},
        {L"C:\\x\\y", {L"C:\\x\\y"}},
    };
    ArgumentLister lister;
    for (const SplitCase& row : rows)
    {
        SCOPED_TRACE(toUtf8(row.text));
        EXPECT_EQ(lister.argumentsOf(row.text), row.arguments);
    }
}

TEST(CommandLineText, AnyUnicodeTextIsKept)
{
    ArgumentLister lister;
    EXPECT_EQ(lister.argumentsOf(L"\u00e9t\u00e9\n\u4e2d\u6587\n\U0001F600 \U0001F680\n"),
              (Texts{L"\u00e9t\u00e9", L"\u4e2d\u6587", L"\U0001F600 \U0001F680"}));
}

TEST(CommandLineText, NullCountsAsEmpty)
{
    Host host(2);
    host.addSwitch(L"list");
    EXPECT_EQ(host.parseLines(nullptr), 0);
    EXPECT_EQ(host.message(), L"");
}

TEST(CommandLineText, AnOptionAndItsValueMayShareALine)
{
    Host host(2);
    host.addOption(L"name");
    EXPECT_EQ(host.parseLines(L"--name a b\n--name=c d \n  --name\t  e\n"), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a b", L"c d ", L"e"}));
}

TEST(CommandLineText, AValueMayComeFromTheNextLine)
{
    Host host(2);
    host.addOption(L"name");
    EXPECT_EQ(host.parseLines(L"--name\n; between\n\n  a\n"), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a"}));
}

TEST(CommandLineText, TheFirstLineIsAnArgumentAndNoProgramName)
{
    Host host(2);
    host.addOption(L"name");
    EXPECT_EQ(host.parseLines(L"--name=a"), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a"}));
}

TEST(CommandLineText, MayBeLong)
{
    std::wstring text;
    Texts expected;
    for (int line = 0; line < 20000; ++line)
    {
        expected.push_back(L"argument " + std::to_wstring(line));
        text += expected.back() + L"\r\n";
    }
    ArgumentLister lister;
    EXPECT_EQ(lister.argumentsOf(text.c_str()), expected);
}
