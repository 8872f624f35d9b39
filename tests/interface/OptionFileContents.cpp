// The contents of an option file: lines, encoding and end.
#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

using Texts = std::vector<std::wstring>;

constexpr const char* byte_order_mark = "\xEF\xBB\xBF";

struct ContentCase
{
    std::string bytes;
    Texts arguments;
};

std::string showBytes(const std::string& bytes)
{
    constexpr const char* digits = "0123456789ABCDEF";
    std::string shown;
    for (const char byte : bytes)
    {
        const auto code = static_cast<unsigned char>(byte);
        shown += {digits[code >> 4], digits[code & 0xF], ' '};
    }
    return shown;
}

// Returns the arguments of a file: a positional option takes each as one value.
class OptionFileContents : public testing::Test
{
protected:
    OptionFileContents()
    {
        host.addOption(L"name");
        host.addPositional(L"argument").setSeparator(0);
        host.parser().enableOptionFiles(L"", L"");
    }

    result_t parseBytes(const std::string& bytes)
    {
        host.renewResult();
        const std::wstring argument = L"--option-file=" + folder.write(L"file", bytes);
        return host.parse({argument.c_str()});
    }

    void expectArguments(const ContentCase& row)
    {
        SCOPED_TRACE(showBytes(row.bytes));
        EXPECT_EQ(parseBytes(row.bytes), 0);
        EXPECT_EQ(host.texts(L"argument"), row.arguments);
    }

    TemporaryFolder folder;
    Host host{2};
};

} // namespace

TEST_F(OptionFileContents, OneArgumentInEachLine)
{
    const ContentCase rows[] = {
        {"", {}},
        {"\n", {}},
        {"a\nb\n", {L"a", L"b"}},
        {"a\r\nb\r\n", {L"a", L"b"}},
        {"a\nb", {L"a", L"b"}},
        {"a\r\nb\n\nc", {L"a", L"b", L"c"}},
        {"  a b \n\tc\n", {L"a b ", L"c"}},
        {"\"a b\"\n", {L"\"a b\""}},
    };
    for (const ContentCase& row : rows)
    {
        expectArguments(row);
    }
}

TEST_F(OptionFileContents, CommentsAreSkipped)
{
    const ContentCase rows[] = {
        {"; only a comment", {}},
        {"# a\n;b\n", {}},
        {"  ; a\r\nb\r\n\t#c\r\nd#e", {L"b", L"d#e"}},
    };
    for (const ContentCase& row : rows)
    {
        expectArguments(row);
    }
}

TEST_F(OptionFileContents, AreReadAsUtf8)
{
    const ContentCase rows[] = {
        {"\xC3\xA9", {L"\u00e9"}},
        {"\xE4\xB8\xAD\n\xE6\x96\x87", {L"\u4e2d", L"\u6587"}},
        {"\xF0\x9F\x98\x80", {L"\U0001F600"}},
        {"\xF4\x8F\xBF\xBF", {L"\U0010FFFF"}},
        {"\xEF\xBF\xBD\xEE\x80\x80", {L"\uFFFD\uE000"}},
    };
    for (const ContentCase& row : rows)
    {
        expectArguments(row);
    }
}

TEST_F(OptionFileContents, OneLeadingByteOrderMarkIsDropped)
{
    const std::string mark = byte_order_mark;
    const ContentCase rows[] = {
        {mark, {}},
        {mark + "a\nb", {L"a", L"b"}},
        {mark + ";a\nb", {L"b"}},
        {mark + "  a", {L"a"}},
        {mark + mark + "a", {L"\uFEFFa"}},
        {"a\n" + mark + "b", {L"a", L"\uFEFFb"}},
        {"\xEF\xBB", {L"\uFFFD"}},
    };
    for (const ContentCase& row : rows)
    {
        expectArguments(row);
    }
}

TEST_F(OptionFileContents, SpacesOutsideAsciiBelongToTheArgument)
{
    const ContentCase rows[] = {
        {"\xC2\xA0z", {L"\u00A0z"}},
        {" \xE2\x80\x83#b", {L"\u2003#b"}},
        {"\xE3\x80\x80", {L"\u3000"}},
    };
    for (const ContentCase& row : rows)
    {
        expectArguments(row);
    }
}

TEST_F(OptionFileContents, EachMaximalIllFormedPartBecomesOneReplacementCharacter)
{
    const ContentCase rows[] = {
        // Bytes that begin no sequence, one and several.
        {"a\x80z", {L"a\uFFFDz"}},
        {"\xFF\xFE", {L"\uFFFD\uFFFD"}},
        // A sequence cut short by the end of the file, the end of the line or another character.
        {"\xC3", {L"\uFFFD"}},
        {"\xE2\x82", {L"\uFFFD"}},
        {"\xF0\x9F\x98", {L"\uFFFD"}},
        {"\xF0\x9F\nb", {L"\uFFFD", L"b"}},
        {"\xE2\x82z", {L"\uFFFDz"}},
        {"\xE2\xE2\x82\xAC", {L"\uFFFD\u20AC"}},
        {"\xF0\x9F\x98\xF0\x9F\x98\x80", {L"\uFFFD\U0001F600"}},
        // Overlong forms, surrogates and values above U+10FFFF: already the first two bytes are
        // ill-formed, so each byte becomes a replacement character.
        {"\xC0\xAF", {L"\uFFFD\uFFFD"}},
        {"\xC1\xBF", {L"\uFFFD\uFFFD"}},
        {"\xE0\x80\x80", {L"\uFFFD\uFFFD\uFFFD"}},
        {"\xED\xA0\x80", {L"\uFFFD\uFFFD\uFFFD"}},
        {"\xF0\x80\x80\x80", {L"\uFFFD\uFFFD\uFFFD\uFFFD"}},
        {"\xF4\x90\x80\x80", {L"\uFFFD\uFFFD\uFFFD\uFFFD"}},
        {"\xF5\x80\x80\x80", {L"\uFFFD\uFFFD\uFFFD\uFFFD"}},
    };
    for (const ContentCase& row : rows)
    {
        expectArguments(row);
    }
}

TEST_F(OptionFileContents, MayBeLarge)
{
    std::string bytes;
    Texts expected;
    for (int line = 0; line < 20000; ++line)
    {
        expected.push_back(L"\U0001F600 " + std::to_wstring(line));
        bytes += toUtf8(expected.back()) + "\n";
    }
    EXPECT_EQ(parseBytes(bytes), 0);
    EXPECT_EQ(host.texts(L"argument"), expected);
}

TEST_F(OptionFileContents, AValueMayComeFromTheNextLine)
{
    EXPECT_EQ(parseBytes("--name\n# between\na\n--name b\n"), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a", L"b"}));
}

TEST_F(OptionFileContents, AValueIsNotTakenFromWhatFollowsTheFile)
{
    const std::wstring argument = L"--option-file=" + folder.write(L"file", "--name\n");
    EXPECT_EQ(host.parse({argument.c_str(), L"a"}), 2);
    EXPECT_EQ(host.message(), L"Option 'name' requires a value in argument: '--name'");
}

TEST_F(OptionFileContents, AnUnknownArgumentIsReportedAsOnTheCommandLine)
{
    Host strict(2);
    strict.parser().enableOptionFiles(L"", L"");
    const std::wstring argument = L"--option-file=" + folder.write(L"file", "--other=1\n");
    EXPECT_EQ(strict.parse({argument.c_str()}), 2);
    EXPECT_EQ(strict.message(), L"Unknown option: --other=1");
}

TEST_F(OptionFileContents, TheEndMarkerEndsTheOptionsOfItsFileAlone)
{
    Host plain(2);
    plain.addOption(L"name");
    plain.parser().enableOptionFiles(L"", L"");
    const std::wstring first = folder.write(L"1", "--name=a\n--\n--name=b\nx y\n");
    const std::wstring second = folder.write(L"2", "--name=c\n--\nz");
    const std::wstring argument = L"--option-file=" + first + L"," + second;
    EXPECT_EQ(plain.parse({argument.c_str(), L"--", L"w"}), 0);
    EXPECT_EQ(plain.texts(L"name"), (Texts{L"a", L"c"}));
    EXPECT_EQ(plain.unparsed(), (Texts{L"w", L"--name=b", L"x y", L"z"}));
}

TEST_F(OptionFileContents, WhatFollowsTheEndMarkerMayBePositional)
{
    EXPECT_EQ(parseBytes("a\n--\n--name=b\n"), 0);
    EXPECT_EQ(host.texts(L"argument"), (Texts{L"a", L"--name=b"}));
    EXPECT_FALSE(host.isPresent(L"name"));
}

TEST_F(OptionFileContents, TheTraceKeywordIsAnArgumentExceptOnTheFirstLine)
{
    const std::string keyword = "kexaoption=kexalogenable=1";
    captureOutput([&] { expectArguments({keyword + "\na", {L"a"}}); });
    expectArguments({"a\n" + keyword, {L"a", L"kexaoption=kexalogenable=1"}});
}
