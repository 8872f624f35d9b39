// Lines that the library writes: UTF-8 in any locale, in order with the host's output.
#include <clocale>
#include <cstdio>
#include <iostream>

#include "TraceLines.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

// Sets the C locale of the whole program for one test.
class LocaleOverride
{
public:
    explicit LocaleOverride(const char* name) : m_before(std::setlocale(LC_ALL, nullptr))
    {
        m_accepted = std::setlocale(LC_ALL, name) != nullptr;
    }
    LocaleOverride(const LocaleOverride&) = delete;
    LocaleOverride& operator=(const LocaleOverride&) = delete;
    ~LocaleOverride() { std::setlocale(LC_ALL, m_before.c_str()); }

    bool accepted() const { return m_accepted; }

private:
    std::string m_before;
    bool m_accepted;
};

constexpr const char* duplicate =
    "Tried to register an option with a name, which is alread registered: ";

std::string registerTwice(const wchar_t* first, const wchar_t* second)
{
    Host host;
    host.addOption(first);
    return captureOutput(
        [&]
        {
            const Registration& registration =
                host.parser().addOption(second, L"", value_type_string, L"");
            EXPECT_EQ(registration.status, 1);
            EXPECT_EQ(registration.option, nullptr);
        });
}

std::string deprecationWarning(const wchar_t* oldValue, const wchar_t* replacement,
                               const wchar_t* argument)
{
    Host host(2);
    host.addOption(L"mode,m")
        .addAllowedValue(vexkit2::variant_t(replacement))
        .addDeprecatedValue(vexkit2::variant_t(oldValue), vexkit2::variant_t(replacement));
    const std::string warning = captureError([&] { EXPECT_EQ(host.parse({argument}), 0); });
    EXPECT_EQ(host.texts(L"mode"), (std::vector<std::wstring>{replacement}));
    return warning;
}

} // namespace

TEST(DuplicateNameLine, GoesToStandardOutputWithoutATrace)
{
    EXPECT_EQ(registerTwice(L"out", L"out"), duplicate + std::string("out\n"));
    EXPECT_EQ(registerTwice(L"out", L"x,out"), duplicate + std::string("x,out\n"));
    EXPECT_EQ(registerTwice(L"output,o", L"o,out"), duplicate + std::string("o,out\n"));
}

TEST(DuplicateNameLine, GoesToStandardOutputOnly)
{
    EXPECT_EQ(captureError([] { registerTwice(L"out", L"out"); }), "");
}

TEST(DuplicateNameLine, IsWrittenForSwitchesAndKeywordedOptionsToo)
{
    Host host;
    host.addOption(L"out");
    EXPECT_EQ(captureOutput(
                  [&]
                  {
                      host.parser().addSwitch(L"out", L"", value_type_boolean, L"");
                      host.parser().addOptionWithKeywords(L"a,out", L"", L"", value_type_string,
                                                          L"");
                  }),
              duplicate + std::string("out\n") + duplicate + "a,out\n");
}

TEST(DuplicateNameLine, IsNotWrittenForTooManyNames)
{
    Host host;
    EXPECT_EQ(captureOutput(
                  [&]
                  {
                      host.parser().addOption(L"a,b,c,d", L"", value_type_string, L"");
                      host.parser().addOption(L"a,b,cde", L"", value_type_string, L"");
                  }),
              "");
}

TEST(DeprecationWarning, GoesToStandardError)
{
    EXPECT_EQ(deprecationWarning(L"quick", L"fast", L"--mode=quick"),
              "Warning: 'quick' argument is deprecated for the option '-mode'. Use the 'fast' "
              "argument instead.\n");
}

TEST(DeprecationWarning, NamesTheOldValueInFullWhenItWasAbbreviated)
{
    EXPECT_EQ(deprecationWarning(L"quick", L"fast", L"-m=q"),
              "Warning: 'quick' argument is deprecated for the option '-mode'. Use the 'fast' "
              "argument instead.\n");
}

TEST(DeprecationWarning, IsNotPartOfStandardOutput)
{
    EXPECT_EQ(captureOutput([] { deprecationWarning(L"quick", L"fast", L"--mode=quick"); }), "");
}

TEST(ConsoleText, IsUtf8WhateverTheLocale)
{
    for (const char* name : {"C", "POSIX", "C.UTF-8", ""})
    {
        SCOPED_TRACE(name);
        const LocaleOverride locale(name);
        if (!locale.accepted())
        {
            continue; // not installed; "C" always is
        }
        EXPECT_EQ(registerTwice(L"\u00e9t\u00e9", L"\u4e2d,\u00e9t\u00e9"),
                  duplicate + std::string("\xE4\xB8\xAD,\xC3\xA9t\xC3\xA9\n"));
        EXPECT_EQ(registerTwice(L"\U0001F600", L"\U0001F600"),
                  duplicate + std::string("\xF0\x9F\x98\x80\n"));
        EXPECT_EQ(deprecationWarning(L"\U0001F40C", L"\U0001F680", L"--mode=\U0001F40C"),
                  "Warning: '\xF0\x9F\x90\x8C' argument is deprecated for the option '-mode'. Use "
                  "the '\xF0\x9F\x9A\x80' argument instead.\n");
        Host host;
        EXPECT_EQ(traceOf(host, {L"\u2014 \U0001F600"}).back(),
                  "ignoring \xE2\x80\x94 \xF0\x9F\x98\x80");
    }
}

TEST(ConsoleText, ALoneSurrogateIsWrittenAsOneReplacementCharacter)
{
    EXPECT_EQ(registerTwice(L"a\xD83Dz", L"a\xD83Dz"), duplicate + std::string("a\xEF\xBF\xBDz\n"));
    EXPECT_EQ(registerTwice(L"a\xDE00", L"a\xDE00"), duplicate + std::string("a\xEF\xBF\xBD\n"));
    EXPECT_EQ(registerTwice(L"\U0001F600", L"\U0001F600"),
              duplicate + std::string("\xF0\x9F\x98\x80\n"));
}

TEST(ConsoleText, MayBeLong)
{
    std::wstring name = L"x"; // so that the end of a buffer lies inside a character
    for (int count = 0; count < 20000; ++count)
    {
        name += L"\U0001F600";
    }
    EXPECT_EQ(registerTwice(name.c_str(), name.c_str()), duplicate + toUtf8(name) + "\n");
}

TEST(ConsoleText, IsInOrderWithTheHostsOwnOutput)
{
    Host host;
    host.addOption(L"out");
    EXPECT_EQ(captureOutput(
                  [&]
                  {
                      std::fputs("first\n", stdout);
                      std::fflush(stdout);
                      host.parser().addOption(L"out", L"", value_type_string, L"");
                      std::cout << "third" << std::endl;
                      host.parser().addOption(L"b,out", L"", value_type_string, L"");
                  }),
              "first\n" + (duplicate + std::string("out\n")) + "third\n" + duplicate + "b,out\n");
}

TEST(ConsoleText, IsWrittenAtOnce)
{
    Host host;
    host.addOption(L"out");
    ConsoleCapture console(ConsoleCapture::Stream::output);
    host.parser().addOption(L"out", L"", value_type_string, L"");
    const std::string written = console.soFar();
    EXPECT_EQ(written, duplicate + std::string("out\n"));
    console.finish();
}
