// Tests of the console streams: encoding, order and formatting.
#include "support/platform/ConsoleStreams.h"

#include <clocale>
#include <cstdio>
#include <iostream>
#include <locale>
#include <string>

#include "ConsoleCapture.h"
#include "TextPrinting.h"

namespace
{

using kexa_3_3::ucerr;
using kexa_3_3::ucout;
using kexa_3_3::internal::ConsoleTarget;
using kexa_3_3::internal::writeConsole;
using toolbox::captureError;
using toolbox::captureOutput;

const std::string replacement = "\xEF\xBF\xBD";

// Formats numbers and booleans in a way that no test expects.
class OddNumbers final : public std::numpunct<wchar_t>
{
protected:
    [[nodiscard]] char_type do_thousands_sep() const override { return L'!'; }
    [[nodiscard]] std::string do_grouping() const override { return "\1"; }
    [[nodiscard]] char_type do_decimal_point() const override { return L'?'; }
};

// Sets an odd global locale, for C++ and for C, and restores the former one in the destructor.
class OddLocale
{
public:
    OddLocale() : m_before(std::locale::global(std::locale(std::locale(), new OddNumbers))) {}
    OddLocale(const OddLocale&) = delete;
    OddLocale& operator=(const OddLocale&) = delete;
    ~OddLocale() { std::locale::global(m_before); }

private:
    std::locale m_before;
};

// A stream takes the global locale when it is created. Creating both under an odd locale, before
// any test runs, shows that they do not keep it.
[[maybe_unused]] const bool made_under_an_odd_locale = []
{
    const OddLocale locale;
    return ucout().good() && ucerr().good();
}();

TEST(ConsoleStreams, TextIsWrittenInUtf8)
{
    const std::wstring text = L"a\u00E9\u2014\u4E8C\U0001F600|";
    const std::string bytes = "a\xC3\xA9\xE2\x80\x94\xE4\xBA\x8C\xF0\x9F\x98\x80|";
    EXPECT_EQ(captureOutput([&] { ucout() << text; }), bytes);
    EXPECT_EQ(captureError([&] { ucerr() << text; }), bytes);
    EXPECT_EQ(captureOutput([&] { EXPECT_TRUE(writeConsole(ConsoleTarget::output, text)); }),
              bytes);
    EXPECT_EQ(captureError([&] { EXPECT_TRUE(writeConsole(ConsoleTarget::error, text)); }), bytes);
}

TEST(ConsoleStreams, LocaleOfTheHostIsIgnored)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* const name : {"C", "C.UTF-8", ""})
    {
        if (std::setlocale(LC_ALL, name) != nullptr)
        {
            EXPECT_EQ(captureOutput([] { ucout() << L"\u00E9\U0001F600"; }),
                      "\xC3\xA9\xF0\x9F\x98\x80")
                << name;
        }
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST(ConsoleStreams, NumbersAreNotGrouped)
{
    const OddLocale locale;
    EXPECT_EQ(captureOutput([] { ucout() << 1234567 << L' ' << -89 << L' ' << 1.5; }),
              "1234567 -89 1.5");
    EXPECT_EQ(captureError([] { ucerr() << 1234567; }), "1234567");
}

TEST(ConsoleStreams, ZeroCharactersAreWritten)
{
    EXPECT_EQ(captureOutput([] { ucout() << std::wstring(L"a\0b", 3) << L'\0'; }),
              std::string("a\0b\0", 4));
}

// put() passes the value of eof() to overflow(), where it means that there is no character to
// write.
TEST(ConsoleStreams, EndOfFileValueWritesNothingAndIsNoError)
{
    EXPECT_EQ(captureOutput(
                  []
                  {
                      using Traits = std::char_traits<wchar_t>;
                      const wchar_t mark = Traits::to_char_type(Traits::eof());
                      std::wostream& out = ucout();
                      out.put(L'a').put(mark).put(L'b');
                      EXPECT_TRUE(out.good());
                  }),
              "ab");
}

TEST(ConsoleStreams, InsertionsAreNotBuffered)
{
    toolbox::ConsoleCapture capture(toolbox::ConsoleCapture::Stream::output);
    ucout() << L"one";
    EXPECT_EQ(capture.soFar(), "one");
    ucout() << 2;
    EXPECT_EQ(capture.soFar(), "one2");
    ucout().put(L'\u00E9');
    EXPECT_EQ(capture.soFar(), "one2\xC3\xA9");
    EXPECT_EQ(capture.finish(), "one2\xC3\xA9");
}

TEST(ConsoleStreams, OrderWithFlushedStreamsIsKept)
{
    EXPECT_EQ(captureOutput(
                  []
                  {
                      std::printf("1");
                      std::fflush(stdout);
                      ucout() << L"2";
                      std::cout << "3" << std::flush;
                      ucout() << L"4";
                      std::printf("5");
                      std::fflush(stdout);
                      ucout() << L"6";
                  }),
              "123456");
    EXPECT_EQ(captureError(
                  []
                  {
                      std::cerr << "1" << std::flush;
                      ucerr() << L"2";
                      std::fputs("3", stderr);
                      std::fflush(stderr);
                      ucerr() << L"4";
                  }),
              "1234");
}

TEST(ConsoleStreams, OutputAndErrorAreSeparate)
{
    std::string error;
    const std::string output = captureOutput(
        [&error]
        {
            error = captureError(
                []
                {
                    ucout() << L"out";
                    ucerr() << L"err";
                });
        });
    EXPECT_EQ(output, "out");
    EXPECT_EQ(error, "err");
}

TEST(ConsoleStreams, HalvesOfAPairMayComeInTwoInsertions)
{
    const wchar_t high = 0xD83D;
    const wchar_t low = 0xDE00;
    const bool utf16 = sizeof(wchar_t) == 2;
    const std::string whole = utf16 ? "\xF0\x9F\x98\x80" : replacement + replacement;
    EXPECT_EQ(captureOutput([=] { ucout() << high << low << L'.'; }), whole + ".");
    EXPECT_EQ(captureOutput(
                  [=] {
                      ucout() << std::wstring{L'a', high} << std::wstring{low, L'b'};
                  }),
              "a" + whole + "b");
    EXPECT_EQ(captureOutput(
                  [=]
                  {
                      ucout() << high << std::flush;
                      ucout() << low;
                  }),
              whole);
}

TEST(ConsoleStreams, HalfWithoutTheOtherIsReplaced)
{
    const wchar_t high = 0xD83D;
    const wchar_t low = 0xDE00;
    EXPECT_EQ(captureOutput([=] { ucout() << high << L"a"; }), replacement + "a");
    EXPECT_EQ(captureOutput([=] { ucout() << low << L"a"; }), replacement + "a");
    EXPECT_EQ(captureOutput([=] { ucout() << high << high << L"a"; }),
              replacement + replacement + "a");
}

TEST(ConsoleStreams, LargeTextIsWrittenWhole)
{
    // The text is written in parts. With an emoji in every third unit, some parts would end inside
    // one.
    std::wstring text;
    std::string bytes;
    for (int count = 0; count < 20000; ++count)
    {
        text += L"x\U0001F600";
        bytes += "x\xF0\x9F\x98\x80";
    }
    const std::string written = captureOutput([&text] { ucout() << text; });
    EXPECT_TRUE(written == bytes) << written.size() << " of " << bytes.size() << " bytes";
}

} // namespace
